// The window of the analytical inventory of a finding aid: its tree rooted in the finding aid
// with units, parchments and seals each under its own parent, the popups of New, the place of
// a seal (on a parchment or detached), the two orders, the delete with the question and title
// of each kind, the viewer of the complessi linked, Escape while a new element is in hand, the
// whole road from the main window's menu through the finding aids' window, and what it does
// with a Null parent, a missing finding aid and a parent deleted by another workstation, on
// SQLite and on PostgreSQL.

#include "programma/Registro.h"
#include "records/ucDatiInventariali.h"
#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmStrutturaDI.h"
#include "structure/frmStrutturaIN.h"

#include "AmbienteStruttura.h"
#include "DialogoSostituto.h"
#include "Modali.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <memory>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// The structure windows' setting with the lists of the unit, the parchment and the seal.
struct Ambiente : AmbienteStruttura {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteStruttura(tipo) {
        ListeInventarioAnalitico();
    }
    // The three counters of a finding aid, "units parchments seals".
    QString Contatori(long inventario) const {
        QSqlQuery riga = cnn().Esegui(
            QStringLiteral("SELECT NumeroDatiInventariali, NumeroPergamene, NumeroSigilli FROM "
                           "Inventari WHERE ID_Elemento = ?"),
            {L(inventario)});
        return riga.next() ? QStringLiteral("%1 %2 %3")
                                 .arg(riga.value(0).toLongLong())
                                 .arg(riga.value(1).toLongLong())
                                 .arg(riga.value(2).toLongLong())
                           : QStringLiteral("nessuno");
    }
    // The rows of the four tables, "Elementi DatiInventariali Pergamene Sigilli".
    QString Tabelle() const {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(Righe("Elementi"))
            .arg(Righe("DatiInventariali"))
            .arg(Righe("Pergamene"))
            .arg(Righe("Sigilli"));
    }
    QVariant Di(const char* tabella, const char* colonna, qint64 elemento) const {
        return Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                          .arg(QLatin1String(colonna), QLatin1String(tabella)),
                      {L(elemento)});
    }
};

// The window over that finding aid, made ready as its opener does.
std::unique_ptr<frmStrutturaDI> Apri(long inventario,
                                     const QString& sComplesso = QStringLiteral("Fondo Guinigi")) {
    Sessione::lIdInventario = inventario;
    auto f = std::make_unique<frmStrutturaDI>();
    f->Init(QStringLiteral("01"), sComplesso);
    return f;
}

// The commands "NuovoDI Modifica Cancella MostraLinks" as 0/1.
QString Comandi(const frmStrutturaDI& f) {
    return Accesi({f.cmdNuovoDI, f.cmdModifica, f.cmdCancella, f.cmdMostraLinks});
}

// The editor shown in Frame1.
QString Editore(const frmStrutturaDI& f) {
    for (const QWidget* e : std::initializer_list<const QWidget*>{
             f.fraInventario, f.fraDatiInventariali, f.fraPergamena, f.fraSigillo}) {
        if (!e->isHidden()) {
            return e->objectName();
        }
    }
    return QString();
}

void Scegli(frmStrutturaDI& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->setCurrentIndex(nodo);
    QCOMPARE(f.lIdCorrente, lId);
}

qint64 Selezionato(const frmStrutturaDI& f) {
    return f.Modello().Id(f.tvwDB->currentIndex());
}

// The mandatory fields of a unit, with that title and the level at that entry of the combo.
void CompilaUnita(const QWidget* editore, const QString& titolo, int iVoce) {
    Combo(editore, "cmbTipologiaDI")->setCurrentIndex(iVoce);
    Riga(editore, 14)->setText(titolo);
    Riga(editore, 10)->setText(QStringLiteral("Maria Rossi"));
    Riga(editore, 7)->setText(QStringLiteral("3 buste"));
    Riga(editore, 5)->setText(QStringLiteral("01/01/1500"));
    Riga(editore, 6)->setText(QStringLiteral("31/12/1600"));
    Riga(editore, 4)->setText(QStringLiteral("secc. XVI"));
}

// A new element through the popup's entry, its fields filled, Conferma: the id of the node then
// chosen.
qint64 NuovoDalMenu(Ambiente& a, frmStrutturaDI& f, int iVoce,
                    const std::function<void()>& compila) {
    a.piattaforma.scelteMenu = {iVoce};
    f.cmdNuovoDI->click();
    if (f.sStato != QStringLiteral("nuovo")) {
        return 0;
    }
    compila();
    f.cmdConferma->click();
    return f.sStato == QStringLiteral("mostra") ? Selezionato(f) : 0;
}

// The delete of the node chosen, answered Yes: the box asked.
Messaggio CancellaConSi(Ambiente& a, frmStrutturaDI& f) {
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f.cmdCancella->click();
    const QList<Messaggio> messaggi = a.piattaforma.Messaggi();
    return messaggi.isEmpty() ? Messaggio() : messaggi.first();
}

// A stand-in of a dialog for one test, which runs its action and closes.
class Sostituto : public DialogoSostituto {
public:
    Sostituto(QString nome, std::function<void()> azioneDentro)
        : DialogoSostituto(std::move(nome),
                           [azione = std::move(azioneDentro)](
                               QDialog&, const Dialoghi::Argomenti&) { azione(); }) {}
};

} // namespace

class TestStrutturaDI : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() {
        Sessione::lIdInventario = 0;
        Sessione::iEsitoLinkCD = 0;
        Sessione::iChiamanteInv = 0;
        Sessione::lModoStrutturaPG = 0;
    }

    void laRadiceELoStrumentoEIFigliPendonoOgnunoDalSuoPadre_data() { AggiungiBackend(); }
    void laRadiceELoStrumentoEIFigliPendonoOgnunoDalSuoPadre();
    void unSigilloSuUnaPergamenaHaModoZeroESottoUnUnitaUno_data() { AggiungiBackend(); }
    void unSigilloSuUnaPergamenaHaModoZeroESottoUnUnitaUno();
    void unClicSuUnSigilloSpegneNuovo_data() { AggiungiBackend(); }
    void unClicSuUnSigilloSpegneNuovo();
    void alfabeticoMescolaITipiEArchivisticoMetteAvantiISenzaOrdinamento_data() {
        AggiungiBackend();
    }
    void alfabeticoMescolaITipiEArchivisticoMetteAvantiISenzaOrdinamento();
    void iPopupDiNuovoHannoLeLoroVociENessunaSceltaNonFaNulla_data() { AggiungiBackend(); }
    void iPopupDiNuovoHannoLeLoroVociENessunaSceltaNonFaNulla();
    void escInNuovoChiudeLaFinestraENonScriveNulla_data() { AggiungiBackend(); }
    void escInNuovoChiudeLaFinestraENonScriveNulla();
    void cancellaChiedeConTestoETitoloDelTipoEConFigliDaErroreU4_data() { AggiungiBackend(); }
    void cancellaChiedeConTestoETitoloDelTipoEConFigliDaErroreU4();
    void cancellareLoStrumentoSenzaUnitaLasciaLaFinestraVuota_data() { AggiungiBackend(); }
    void cancellareLoStrumentoSenzaUnitaLasciaLaFinestraVuota();
    void iLegamiDelloStrumentoApronoIlVisoreComeChiamanteTre_data() { AggiungiBackend(); }
    void iLegamiDelloStrumentoApronoIlVisoreComeChiamanteTre();
    void unErroreNelLeggereIlPostoDelSigilloSiMostraELoLasciaNascosto_data() { AggiungiBackend(); }
    void unErroreNelLeggereIlPostoDelSigilloSiMostraELoLasciaNascosto();
    void laCancellazioneSegueLEventoDegliEditori_data() { AggiungiBackend(); }
    void laCancellazioneSegueLEventoDegliEditori();
    void unPadreNulloFermaIlCaricamentoConErroreU5_data() { AggiungiBackend(); }
    void unPadreNulloFermaIlCaricamentoConErroreU5();
    void unoStrumentoSenzaIlSuoRecordDaErroreU5ELaFinestraResta_data() { AggiungiBackend(); }
    void unoStrumentoSenzaIlSuoRecordDaErroreU5ELaFinestraResta();
    void unUnitaIlCuiPadreFuCancellatoAltroveNonSiCreaELaFinestraResta_data() { AggiungiBackend(); }
    void unUnitaIlCuiPadreFuCancellatoAltroveNonSiCreaELaFinestraResta();
    void ogniSchedaStaNelLatoDellaFinestraSenzaScorrereDiLato();
    void laStradaCompletaDalMenu_data() { AggiungiBackend(); }
    void laStradaCompletaDalMenu();
};

void TestStrutturaDI::laRadiceELoStrumentoEIFigliPendonoOgnunoDalSuoPadre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie I"), s.inv);
    const long busta = a.Crea("07", QStringLiteral("Busta 1"), serie);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    a.Crea("06", QStringLiteral("Sigillo pendente"), perg);
    a.Crea("06", QStringLiteral("Sigillo staccato"), serie);
    a.Crea("05", QStringLiteral("Perg. sciolta"), s.inv);
    // The units of another finding aid are not of this tree.
    const Strumento altro = CreaStrumento(a, QStringLiteral("Altro"));
    a.Crea("07", QStringLiteral("Serie dell'altro"), altro.inv);

    auto f = Apri(s.inv);
    const ModelloAlbero& m = f->Modello();
    QCOMPARE(m.Id(m.Radice()), qint64(s.inv));
    QCOMPARE(m.Chiave(m.Radice()), QStringLiteral("%1 ID").arg(s.inv));
    QCOMPARE(f->lIdInventarioCorrente, s.inv);
    QCOMPARE(f->lIdInventarioRecord, s.idInv);
    QCOMPARE(f->sTipoAnalitico, QStringLiteral("01"));
    // The root shown: the finding aid, collapsed under the root.
    f->tvwDB->expandAll();
    QCOMPARE(Albero(m), QStringLiteral("Inventario: Carte Guinigi 03 nolink\n"
                                       "  Perg. sciolta 05 pergamena\n"
                                       "  Serie I 07 nolink\n"
                                       "    Busta 1 07 nolink\n"
                                       "    Perg. 1 05 pergamena\n"
                                       "      Sigillo pendente 06 sigillo\n"
                                       "    Sigillo staccato 06 sigillo\n"));
    QCOMPARE(Selezionato(*f), qint64(s.inv));
    QCOMPARE(f->sTipo, QStringLiteral("inventario"));
    QCOMPARE(Editore(*f), QStringLiteral("fraInventario"));
    QCOMPARE(Testo(f->fraInventario, 0), QStringLiteral("Carte Guinigi"));
    // A finding aid with units cannot go.
    QCOMPARE(Comandi(*f), QStringLiteral("1101"));
    QCOMPARE(Sessione::sDenomComplesso, QStringLiteral("Inventario: Carte Guinigi"));

    Scegli(*f, busta);
    QCOMPARE(f->sTipo, QStringLiteral("datiinventariali"));
    QCOMPARE(Editore(*f), QStringLiteral("fraDatiInventariali"));
    QCOMPARE(Testo(f->fraDatiInventariali, 14), QStringLiteral("Busta 1"));
    QCOMPARE(Comandi(*f), QStringLiteral("1110"));
    QCOMPARE(f->lIdInventarioRecord, s.idInv);
    QCOMPARE(Sessione::sDenomComplesso, QStringLiteral("Busta 1"));
    Scegli(*f, perg);
    QCOMPARE(f->sTipo, QStringLiteral("pergamena"));
    QCOMPARE(Editore(*f), QStringLiteral("fraPergamena"));
    // The seals stand in the tree, not behind a button of the parchment.
    QVERIFY(Pulsante(f->fraPergamena, "cmdMostraSigilli")->isHidden());
    QCOMPARE(Comandi(*f), QStringLiteral("1100"));

    // Without complessi linked the root is the title alone.
    f.reset();
    f = Apri(s.inv, QString());
    QCOMPARE(f->Modello().Testo(f->Modello().Radice()), QStringLiteral("Carte Guinigi"));
}

void TestStrutturaDI::unSigilloSuUnaPergamenaHaModoZeroESottoUnUnitaUno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie I"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    const long pendente = a.Crea("06", QStringLiteral("Pendente"), perg);
    const long staccato = a.Crea("06", QStringLiteral("Staccato"), serie);
    auto f = Apri(s.inv);
    const QPushButton* documento = Pulsante(f->fraSigillo, "cmdMostraPergamene");

    Scegli(*f, pendente);
    QCOMPARE(Sessione::lModoStrutturaPG, 0L);
    QCOMPARE(Editore(*f), QStringLiteral("fraSigillo"));
    QCOMPARE(Testo(f->fraSigillo, 0), QStringLiteral("Pendente"));
    QVERIFY(!documento->isHidden());
    Scegli(*f, staccato);
    QCOMPARE(Sessione::lModoStrutturaPG, 1L);
    QCOMPARE(Testo(f->fraSigillo, 0), QStringLiteral("Staccato"));
    QVERIFY(documento->isHidden());
    // The edit reads the place again, and keeps the record.
    Scegli(*f, pendente);
    Sessione::lModoStrutturaPG = 7;
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    QCOMPARE(Sessione::lModoStrutturaPG, 0L);
    QCOMPARE(Testo(f->fraSigillo, 0), QStringLiteral("Pendente"));
    f->cmdAnnulla->click();
    // A new seal under the parchment and under the unit.
    Scegli(*f, perg);
    a.piattaforma.scelteMenu = {2};
    f->cmdNuovoDI->click();
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    QCOMPARE(Sessione::lModoStrutturaPG, 0L);
    QCOMPARE(f->fraSigillo->ID_Inventario, s.idInv);
    f->cmdAnnulla->click();
    Scegli(*f, serie);
    a.piattaforma.scelteMenu = {3};
    f->cmdNuovoDI->click();
    QCOMPARE(f->sTipo, QStringLiteral("sigillo"));
    QCOMPARE(Sessione::lModoStrutturaPG, 1L);
    f->cmdAnnulla->click();
    QCOMPARE(Selezionato(*f), qint64(serie));
}

void TestStrutturaDI::unClicSuUnSigilloSpegneNuovo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie I"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), perg);
    auto f = Apri(s.inv);
    QVERIFY(f->cmdNuovoDI->isEnabled());
    Scegli(*f, sigillo);
    QVERIFY(!f->cmdNuovoDI->isEnabled());
    QCOMPARE(Comandi(*f), QStringLiteral("0110"));
    Scegli(*f, perg);
    QVERIFY(f->cmdNuovoDI->isEnabled());
    Scegli(*f, serie);
    QVERIFY(f->cmdNuovoDI->isEnabled());
    Scegli(*f, s.inv);
    QVERIFY(f->cmdNuovoDI->isEnabled());
}

void TestStrutturaDI::alfabeticoMescolaITipiEArchivisticoMetteAvantiISenzaOrdinamento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    const long beta = a.Crea("07", QStringLiteral("Beta"), serie);
    const long alfa = a.Crea("07", QStringLiteral("alfa"), serie);
    a.Crea("05", QStringLiteral("Gamma"), serie);
    a.Crea("06", QStringLiteral("Delta"), serie);
    a.Crea("07", QStringLiteral("Epsilon"), serie);
    for (const auto& [unita, ordine] : {std::pair{beta, "2"}, std::pair{alfa, "10"}}) {
        a.cnn().Esegui(
            QStringLiteral("UPDATE DatiInventariali SET Ordinamento = ? WHERE ID_Elemento = ?"),
            {QString::fromLatin1(ordine), L(unita)});
    }
    auto f = Apri(s.inv);
    const ModelloAlbero& m = f->Modello();
    QVERIFY(f->Ord[1]->isChecked());
    const QStringList archivistico = {QStringLiteral("Delta"), QStringLiteral("Epsilon"),
                                      QStringLiteral("Gamma"), QStringLiteral("Beta"),
                                      QStringLiteral("alfa")};
    QCOMPARE(TestiFigli(m, m.Trova(serie)), archivistico);
    f->Ord[0]->click();
    QCOMPARE(TestiFigli(m, m.Trova(serie)),
             QStringList({QStringLiteral("alfa"), QStringLiteral("Beta"), QStringLiteral("Delta"),
                          QStringLiteral("Epsilon"), QStringLiteral("Gamma")}));
    // A reload comes back collapsed on the root, which is shown.
    QCOMPARE(Selezionato(*f), qint64(s.inv));
    QVERIFY(!f->tvwDB->isExpanded(m.Trova(serie)));
    f->Ord[1]->click();
    QCOMPARE(TestiFigli(m, m.Trova(serie)), archivistico);
}

void TestStrutturaDI::iPopupDiNuovoHannoLeLoroVociENessunaSceltaNonFaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    auto f = Apri(s.inv);
    const QStringList vociInventario = {QStringLiteral("Inventario Base"),
                                        QStringLiteral("Pergamena              "),
                                        QStringLiteral("Sigillo                ")};
    const int nodi = f->Modello().Nodi();
    for (const qint64 nodo : {qint64(s.inv), qint64(serie), qint64(perg)}) {
        Scegli(*f, nodo);
        a.piattaforma.Svuota();
        a.piattaforma.scelteMenu = {0};
        f->cmdNuovoDI->click();
        const QList<Chiamata> menu = a.piattaforma.Chiamate(QStringLiteral("menu"));
        QCOMPARE(menu.size(), 1);
        QCOMPARE(menu[0].voci, nodo == perg ? QStringList({QStringLiteral("Pergamena"),
                                                           QStringLiteral("Sigillo  ")})
                                            : vociInventario);
        // Nothing chosen: nothing happens.
        QCOMPARE(f->sStato, QStringLiteral("mostra"));
        QVERIFY(f->tvwDB->isEnabled());
        QVERIFY(f->cmdConferma->isHidden());
        QCOMPARE(f->Modello().Nodi(), nodi);
    }
    // Under a parchment the first entry is a parchment, under a unit the first is a unit.
    a.piattaforma.scelteMenu = {1};
    f->cmdNuovoDI->click();
    QCOMPARE(f->sTipo, QStringLiteral("pergamena"));
    QCOMPARE(Editore(*f), QStringLiteral("fraPergamena"));
    const QModelIndex temporaneo = f->Modello().Trova(ModelloAlbero::IdTemporaneo);
    QCOMPARE(f->Modello().Id(temporaneo.parent()), qint64(perg));
    QCOMPARE(f->Modello().Testo(temporaneo), QString(10, u' '));
    QCOMPARE(f->Modello().Immagine(temporaneo), QStringLiteral("pergamena"));
    QCOMPARE(f->Modello().Tag(temporaneo), QStringLiteral("05"));
    f->cmdAnnulla->click();
    Scegli(*f, serie);
    a.piattaforma.scelteMenu = {1};
    f->cmdNuovoDI->click();
    QCOMPARE(f->sTipo, QStringLiteral("datiinventariali"));
    QCOMPARE(Editore(*f), QStringLiteral("fraDatiInventariali"));
    QCOMPARE(f->Modello().Tag(f->Modello().Trova(ModelloAlbero::IdTemporaneo)),
             QStringLiteral("07"));
    f->cmdAnnulla->click();
    QCOMPARE(f->Modello().Nodi(), nodi);
    QCOMPARE(Selezionato(*f), qint64(serie));
    QCOMPARE(Editore(*f), QStringLiteral("fraDatiInventariali"));
}

void TestStrutturaDI::escInNuovoChiudeLaFinestraENonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    a.Crea("07", QStringLiteral("Serie"), s.inv);
    const QString prima = a.Tabelle();
    const QString contatori = a.Contatori(s.inv);
    Sessione::lIdInventario = s.inv;
    Sessione::bFrmStrutturaINAperto = true;
    bool bNuovo = false;
    AlComparire(QStringLiteral("frmStrutturaDIDialogo"), [&](QWidget* dialogo) {
        auto* f = dialogo->findChild<frmStrutturaDI*>();
        a.piattaforma.scelteMenu = {1};
        f->cmdNuovoDI->click();
        bNuovo = f->sStato == QStringLiteral("nuovo");
        CompilaUnita(f->fraDatiInventariali, QStringLiteral("Mai salvata"), 0);
        QTest::keyClick(f, Qt::Key_Escape);
    });
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmStrutturaDI"), nullptr,
                           {{QStringLiteral("sTipo"), QStringLiteral("01")},
                            {QStringLiteral("sComplessoLinked"), QStringLiteral("Fondo")}}));
    QVERIFY(bNuovo);
    QCOMPARE(a.Tabelle(), prima);
    QCOMPARE(a.Contatori(s.inv), contatori);
    // The unload clears its opener's flag.
    QVERIFY(!Sessione::bFrmStrutturaINAperto);
}

void TestStrutturaDI::cancellaChiedeConTestoETitoloDelTipoEConFigliDaErroreU4() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), perg);
    auto f = Apri(s.inv);
    struct Caso {
        qint64 id;
        QString sTesto;
        QString sTitolo;
    };
    const QList<Caso> casi = {
        {sigillo, QStringLiteral("Sei sicuro di voler cancellare il sigillo?"),
         QStringLiteral("Cancella DatiInventariali: Sigillo")},
        {perg, QStringLiteral("Sei sicuro di voler cancellare la pergamena?"),
         QStringLiteral("Cancella Pergamena: Perg. 1")},
        {serie, QStringLiteral("Sei sicuro di voler cancellare l'Inventario?"),
         QStringLiteral("Cancella DatiInventariali: Serie")}};
    // No leaves everything as it was.
    for (const Caso& caso : casi) {
        Scegli(*f, caso.id);
        // A record with sons may not go: the command is off, and the database refuses.
        f->cmdCancella->setEnabled(true);
        a.piattaforma.Svuota();
        a.piattaforma.risposte = {Risposta::No};
        f->cmdCancella->click();
        const QList<Messaggio> domande = a.piattaforma.Messaggi();
        QCOMPARE(domande.size(), 1);
        QCOMPARE(domande[0].sTesto, caso.sTesto);
        QCOMPARE(domande[0].sTitolo, caso.sTitolo);
        QCOMPARE(domande[0].icona, Icona::Domanda);
        QCOMPARE(domande[0].pulsanti, Pulsanti::SiNo);
        QVERIFY(f->Modello().Trova(caso.id).isValid());
        QCOMPARE(Selezionato(*f), caso.id);
    }
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("1 1 1"));
    // Yes on a unit with sons: the database refuses, "Errore U4", the node stays.
    Scegli(*f, serie);
    f->cmdCancella->setEnabled(true);
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U4"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QVERIFY(f->Modello().Trova(serie).isValid());
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("1 1 1"));
    // The finding aid at the root.
    Scegli(*f, s.inv);
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::No};
    f->cmdCancella->setEnabled(true);
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().value(0).sTesto,
             QStringLiteral("Sei sicuro di voler cancellare l'Inventario?"));
    QCOMPARE(a.piattaforma.Messaggi().value(0).sTitolo,
             QStringLiteral("Cancella Inventario: Carte Guinigi"));
    QVERIFY(f->Modello().Radice().isValid());
}

void TestStrutturaDI::cancellareLoStrumentoSenzaUnitaLasciaLaFinestraVuota() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    auto f = Apri(s.inv);
    QCOMPARE(Comandi(*f), QStringLiteral("1111"));
    const Messaggio domanda = CancellaConSi(a, *f);
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Inventario: Carte Guinigi"));
    QVERIFY(a.Di("Inventari", "ID_Inventario", s.inv).isNull());
    QVERIFY(a.Di("Elementi", "ID_Elemento", s.inv).isNull());
    QCOMPARE(f->Modello().Nodi(), 0);
    QCOMPARE(Comandi(*f), QStringLiteral("0000"));
    QCOMPARE(Editore(*f), QString());
}

void TestStrutturaDI::iLegamiDelloStrumentoApronoIlVisoreComeChiamanteTre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    auto f = Apri(s.inv);
    int iChiamante = 0;
    long lIdInventario = 0;
    QString sDenominazione;
    int iEsito = 1;
    const Sostituto visore(QStringLiteral("frmMostraLinkInv"), [&] {
        iChiamante = Sessione::iChiamanteInv;
        lIdInventario = Sessione::lIdInventario;
        sDenominazione = Sessione::sDenomInventario;
        Sessione::iEsitoLinkCD = iEsito;
    });
    Scegli(*f, serie);
    QVERIFY(!f->cmdMostraLinks->isEnabled());
    Scegli(*f, s.inv);
    QVERIFY(f->cmdMostraLinks->isEnabled());
    f->cmdMostraLinks->click();
    QCOMPARE(iChiamante, 3);
    QCOMPARE(lIdInventario, s.inv);
    QCOMPARE(sDenominazione, QStringLiteral("Inventario: Carte Guinigi"));
    const ModelloAlbero& m = f->Modello();
    QCOMPARE(m.Immagine(m.Radice()), QStringLiteral("silink"));
    QCOMPARE(Selezionato(*f), qint64(s.inv));
    iEsito = 2;
    f->cmdMostraLinks->click();
    QCOMPARE(m.Immagine(m.Radice()), QStringLiteral("nolink"));
    iEsito = 0;
    f->cmdMostraLinks->click();
    QCOMPARE(m.Immagine(m.Radice()), QStringLiteral("nolink"));
}

void TestStrutturaDI::unErroreNelLeggereIlPostoDelSigilloSiMostraELoLasciaNascosto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), serie);
    auto f = Apri(s.inv);
    Scegli(*f, serie);
    a.piattaforma.Svuota();
    // The connection lost: the seal's place cannot be read.
    Sessione::cnn->Chiudi();
    // A new seal is not started, and the window is left as it was.
    a.piattaforma.scelteMenu = {3};
    f->cmdNuovoDI->click();
    QList<Messaggio> errori = a.piattaforma.Messaggi();
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QCOMPARE(errori[0].sTitolo, Sessione::TitoloProgramma);
    QCOMPARE(errori[0].sTesto, QStringLiteral("La connessione al database è chiusa."));
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(f->sTipo, QStringLiteral("datiinventariali"));
    QVERIFY(f->tvwDB->isEnabled());
    QVERIFY(f->cmdConferma->isHidden());
    QVERIFY(!f->cmdNuovoDI->isHidden());
    QVERIFY(!f->Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    // A click on the seal: the routine ends where it stood, the unit is still the record shown.
    a.piattaforma.Svuota();
    f->tvwDB->setCurrentIndex(f->Modello().Trova(sigillo));
    errori = a.piattaforma.Messaggi();
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QCOMPARE(errori[0].sTitolo, Sessione::TitoloProgramma);
    QCOMPARE(f->sTipo, QStringLiteral("datiinventariali"));
    QCOMPARE(Editore(*f), QStringLiteral("fraDatiInventariali"));
    QVERIFY(f->fraSigillo->isHidden());
}

void TestStrutturaDI::laCancellazioneSegueLEventoDegliEditori() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), serie);
    auto f = Apri(s.inv);
    const std::pair<qint64, EditoreRecord*> casi[] = {
        {serie, f->fraDatiInventariali}, {perg, f->fraPergamena}, {sigillo, f->fraSigillo}};
    for (const auto& [id, editore] : casi) {
        Scegli(*f, id);
        const bool bPrima = f->cmdCancella->isEnabled();
        editore->OkCancella = !bPrima;
        QCOMPARE(f->cmdCancella->isEnabled(), bPrima);
        Q_EMIT editore->EventoStato();
        QCOMPARE(f->cmdCancella->isEnabled(), !bPrima);
    }
}

void TestStrutturaDI::unPadreNulloFermaIlCaricamentoConErroreU5() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    const long sciolta = a.Crea("07", QStringLiteral("Senza padre"), s.inv);
    a.cnn().Esegui(QStringLiteral("UPDATE Elementi SET ID_ElementoPadre = NULL WHERE "
                                  "ID_Elemento = ?"),
                   {L(sciolta)});
    auto f = Apri(s.inv);
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U5"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QVERIFY2(errori[0].sTesto.contains(ModelloAlbero::ChiaveDi(sciolta)),
             qPrintable(errori[0].sTesto));
    const ModelloAlbero& m = f->Modello();
    QVERIFY(m.Trova(serie).isValid());
    QVERIFY(!m.Trova(sciolta).isValid());
    // The window stays usable: a node is shown by its click, and Escape closes it.
    Scegli(*f, serie);
    QCOMPARE(Editore(*f), QStringLiteral("fraDatiInventariali"));
    QCOMPARE(Testo(f->fraDatiInventariali, 14), QStringLiteral("Serie"));
    // Once the unit is put back under the finding aid, a reload shows it.
    a.cnn().Esegui(QStringLiteral("UPDATE Elementi SET ID_ElementoPadre = ? WHERE "
                                  "ID_Elemento = ?"),
                   {L(s.inv), L(sciolta)});
    f->Ord[0]->click();
    QVERIFY(m.Trova(sciolta).isValid());
    QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore U5")).size(), 1);
}

void TestStrutturaDI::unoStrumentoSenzaIlSuoRecordDaErroreU5ELaFinestraResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    // Another workstation deleted the finding aid; and an element that is no finding aid.
    a.cnn().Esegui(QStringLiteral("DELETE FROM Inventari WHERE ID_Elemento = ?"), {L(s.inv)});
    for (const long id : {s.inv, s.fondo}) {
        a.piattaforma.Svuota();
        auto f = Apri(id);
        const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U5"));
        QCOMPARE(errori.size(), 1);
        QCOMPARE(errori[0].icona, Icona::Critica);
        QVERIFY2(errori[0].sTesto.contains(QString::number(id)), qPrintable(errori[0].sTesto));
        QCOMPARE(f->Modello().Nodi(), 0);
        QCOMPARE(Comandi(*f), QStringLiteral("0000"));
        QCOMPARE(Editore(*f), QString());
        // A command does nothing; Escape closes the window.
        f->cmdModifica->setEnabled(true);
        f->cmdModifica->click();
        QCOMPARE(f->sStato, QStringLiteral("mostra"));
        QVERIFY(f->tvwDB->isEnabled());
        f->setAttribute(Qt::WA_DeleteOnClose, false);
        f->show();
        QTest::keyClick(f.get(), Qt::Key_Escape);
        QVERIFY(!f->isVisible());
    }
}

void TestStrutturaDI::unUnitaIlCuiPadreFuCancellatoAltroveNonSiCreaELaFinestraResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie"), s.inv);
    auto f = Apri(s.inv);
    Scegli(*f, serie);
    a.piattaforma.scelteMenu = {1};
    f->cmdNuovoDI->click();
    CompilaUnita(f->fraDatiInventariali, QStringLiteral("Fascicolo"), 0);
    // Meanwhile the unit goes, on another workstation.
    a.cnn().Esegui(QStringLiteral("DELETE FROM DatiInventariali WHERE ID_Elemento = ?"),
                   {L(serie)});
    const QString prima = a.Tabelle();
    a.piattaforma.Svuota();
    f->cmdConferma->click();
    const QList<Messaggio> errori = a.piattaforma.Messaggi();
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QVERIFY2(errori[0].sTesto.contains(QString::number(serie)), qPrintable(errori[0].sTesto));
    QCOMPARE(a.Tabelle(), prima);
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("0 0 0"));
    // The edit goes on; Annulla gives the window back.
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    f->cmdAnnulla->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QVERIFY(f->tvwDB->isEnabled());
    QVERIFY(!f->Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    // The unit deleted elsewhere shows empty, with nothing to do on it.
    QCOMPARE(Selezionato(*f), qint64(serie));
    QCOMPARE(Comandi(*f), QStringLiteral("0000"));
    Scegli(*f, s.inv);
    QCOMPARE(Comandi(*f), QStringLiteral("1111"));
}

// The road inside the window of the analytical inventory, opened from the finding aids'.
void StradaNellaFinestra(Ambiente& a, frmStrutturaDI& f, const Strumento& s) {
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(Albero(m), QStringLiteral("Inventario: Carte Guinigi 03 nolink\n"));
    QCOMPARE(Comandi(f), QStringLiteral("1111"));
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("0 0 0"));
    const QString base = a.Tabelle();
    QCOMPARE(base, QStringLiteral("3 0 0 0"));

    // A unit under the finding aid, of the first level.
    const qint64 serie = NuovoDalMenu(a, f, 1, [&] {
        QCOMPARE(Editore(f), QStringLiteral("fraDatiInventariali"));
        QCOMPARE(Combo(f.fraDatiInventariali, "cmbTipologiaDI")->itemText(0),
                 QStringLiteral("Serie"));
        CompilaUnita(f.fraDatiInventariali, QStringLiteral("Serie I"), 0);
    });
    QVERIFY(serie > 0);
    QCOMPARE(a.Di("DatiInventariali", "Titolo", serie).toString(), QStringLiteral("Serie I"));
    QCOMPARE(a.Di("DatiInventariali", "Tipologia", serie).toString(), QStringLiteral("01"));
    QCOMPARE(a.Di("DatiInventariali", "ID_Inventario", serie).toLongLong(), L(s.idInv));
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", serie).toLongLong(), L(s.inv));
    QCOMPARE(a.Di("Elementi", "Denominazione", serie).toString(), QStringLiteral("Serie I"));
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("1 0 0"));
    QCOMPARE(a.Tabelle(), QStringLiteral("4 1 0 0"));
    QCOMPARE(Comandi(f), QStringLiteral("1110"));

    // A sub-unit under it: the levels below the parent's only.
    const qint64 sottoserie = NuovoDalMenu(a, f, 1, [&] {
        QCOMPARE(Combo(f.fraDatiInventariali, "cmbTipologiaDI")->itemText(0),
                 QStringLiteral("Sottoserie"));
        CompilaUnita(f.fraDatiInventariali, QStringLiteral("Sottoserie A"), 0);
    });
    QVERIFY(sottoserie > 0);
    QCOMPARE(a.Di("DatiInventariali", "Tipologia", sottoserie).toString(), QStringLiteral("02"));
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", sottoserie).toLongLong(), L(serie));
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("2 0 0"));

    // A unit of the lowest level under the sub-unit: five fields go.
    const qint64 fascicolo = NuovoDalMenu(a, f, 1, [&] {
        const QComboBox* livelli = Combo(f.fraDatiInventariali, "cmbTipologiaDI");
        const int iDocumentaria = livelli->findText(QStringLiteral("Unità documentaria"));
        QVERIFY(iDocumentaria >= 0);
        CompilaUnita(f.fraDatiInventariali, QStringLiteral("Fascicolo 1"), iDocumentaria);
        for (const int n : {19, 9, 11, 16, 17}) {
            QVERIFY2(
                !Testo(f.fraDatiInventariali, n).size() &&
                    !f.fraDatiInventariali->findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(n))
                         ->isEnabled(),
                qPrintable(QString::number(n)));
        }
    });
    QVERIFY(fascicolo > 0);
    QCOMPARE(a.Di("DatiInventariali", "Tipologia", fascicolo).toString(), QStringLiteral("06"));
    QVERIFY(a.Di("DatiInventariali", "CriteriOrdinamento", fascicolo).isNull());
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("3 0 0"));

    // A parchment under the first unit.
    Scegli(f, serie);
    const qint64 perg = NuovoDalMenu(a, f, 2, [&] {
        QCOMPARE(Editore(f), QStringLiteral("fraPergamena"));
        Compila(*f.fraPergamena);
        Riga(f.fraPergamena, 0)->setText(QStringLiteral("Perg. 12"));
    });
    QVERIFY(perg > 0);
    QCOMPARE(a.Di("Pergamene", "Segnatura", perg).toString(), QStringLiteral("Perg. 12"));
    QCOMPARE(a.Di("Pergamene", "ID_Inventario", perg).toLongLong(), L(s.idInv));
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", perg).toLongLong(), L(serie));
    QCOMPARE(m.Immagine(m.Trova(perg)), QStringLiteral("pergamena"));
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("3 1 0"));
    QCOMPARE(Comandi(f), QStringLiteral("1110"));

    // A seal on the parchment, through the parchment's popup.
    a.piattaforma.Svuota();
    const qint64 pendente = NuovoDalMenu(a, f, 2, [&] {
        QCOMPARE(Sessione::lModoStrutturaPG, 0L);
        Compila(*f.fraSigillo);
        Riga(f.fraSigillo, 0)->setText(QStringLiteral("Sigillo pendente"));
    });
    QCOMPARE(a.piattaforma.Chiamate(QStringLiteral("menu")).value(0).voci,
             QStringList({QStringLiteral("Pergamena"), QStringLiteral("Sigillo  ")}));
    QVERIFY(pendente > 0);
    QCOMPARE(a.Di("Sigilli", "Identificativo", pendente).toString(),
             QStringLiteral("Sigillo pendente"));
    QCOMPARE(a.Di("Sigilli", "ID_Inventario", pendente).toLongLong(), L(s.idInv));
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", pendente).toLongLong(), L(perg));
    QCOMPARE(m.Immagine(m.Trova(pendente)), QStringLiteral("sigillo"));
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("3 1 1"));
    QCOMPARE(Comandi(f), QStringLiteral("0110"));

    // A detached seal under the first unit.
    Scegli(f, serie);
    const qint64 staccato = NuovoDalMenu(a, f, 3, [&] {
        QCOMPARE(Sessione::lModoStrutturaPG, 1L);
        Compila(*f.fraSigillo);
        Riga(f.fraSigillo, 0)->setText(QStringLiteral("Sigillo staccato"));
    });
    QVERIFY(staccato > 0);
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", staccato).toLongLong(), L(serie));
    QCOMPARE(a.Contatori(s.inv), QStringLiteral("3 1 2"));
    QCOMPARE(a.Tabelle(), QStringLiteral("9 3 1 2"));

    // Edits: the sub-unit gets another title and an Ordinamento, the seal another identifier.
    Scegli(f, sottoserie);
    f.cmdModifica->click();
    QCOMPARE(f.sStato, QStringLiteral("modifica"));
    Riga(f.fraDatiInventariali, 14)->setText(QStringLiteral("Agnelli"));
    Riga(f.fraDatiInventariali, 13)->setText(QStringLiteral("1"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(m.Testo(m.Trova(sottoserie)), QStringLiteral("Agnelli"));
    QCOMPARE(a.Di("DatiInventariali", "Titolo", sottoserie).toString(), QStringLiteral("Agnelli"));
    QCOMPARE(a.Di("DatiInventariali", "Ordinamento", sottoserie).toString(), QStringLiteral("1"));
    Scegli(f, pendente);
    f.cmdModifica->click();
    Riga(f.fraSigillo, 0)->setText(QStringLiteral("Sigillo della Curia"));
    f.cmdConferma->click();
    QCOMPARE(m.Testo(m.Trova(pendente)), QStringLiteral("Sigillo della Curia"));
    QCOMPARE(a.Di("Sigilli", "Identificativo", pendente).toString(),
             QStringLiteral("Sigillo della Curia"));

    // The two orders: the unit numbered 1 after those without a number.
    f.Ord[0]->click();
    QCOMPARE(TestiFigli(m, m.Trova(serie)),
             QStringList({QStringLiteral("Agnelli"), QStringLiteral("Perg. 12"),
                          QStringLiteral("Sigillo staccato")}));
    f.Ord[1]->click();
    QCOMPARE(TestiFigli(m, m.Trova(serie)),
             QStringList({QStringLiteral("Perg. 12"), QStringLiteral("Sigillo staccato"),
                          QStringLiteral("Agnelli")}));
    f.tvwDB->expandAll();
    QCOMPARE(Albero(m), QStringLiteral("Inventario: Carte Guinigi 03 nolink\n"
                                       "  Serie I 07 nolink\n"
                                       "    Perg. 12 05 pergamena\n"
                                       "      Sigillo della Curia 06 sigillo\n"
                                       "    Sigillo staccato 06 sigillo\n"
                                       "    Agnelli 07 nolink\n"
                                       "      Fascicolo 1 07 nolink\n"));

    // The deletes from the bottom up, each with the parent shown afterwards.
    struct Passo {
        qint64 id;
        qint64 padre;
        const char* titolo;
        const char* contatori;
        const char* tabelle;
    };
    const Passo passi[] = {
        {pendente, perg, "Cancella DatiInventariali: Sigillo della Curia", "3 1 1", "8 3 1 1"},
        {staccato, serie, "Cancella DatiInventariali: Sigillo staccato", "3 1 0", "7 3 1 0"},
        {perg, serie, "Cancella Pergamena: Perg. 12", "3 0 0", "6 3 0 0"},
        {fascicolo, sottoserie, "Cancella DatiInventariali: Fascicolo 1", "2 0 0", "5 2 0 0"},
        {sottoserie, serie, "Cancella DatiInventariali: Agnelli", "1 0 0", "4 1 0 0"},
        {serie, s.inv, "Cancella DatiInventariali: Serie I", "0 0 0", "3 0 0 0"},
    };
    for (const Passo& passo : passi) {
        Scegli(f, passo.id);
        QVERIFY2(f.cmdCancella->isEnabled(), passo.titolo);
        const Messaggio domanda = CancellaConSi(a, f);
        QCOMPARE(domanda.sTitolo, QString::fromUtf8(passo.titolo));
        QVERIFY(!m.Trova(passo.id).isValid());
        QCOMPARE(Selezionato(f), passo.padre);
        QCOMPARE(a.Contatori(s.inv), QString::fromLatin1(passo.contatori));
        QCOMPARE(a.Tabelle(), QString::fromLatin1(passo.tabelle));
    }
    QCOMPARE(Albero(m), QStringLiteral("Inventario: Carte Guinigi 03 nolink\n"));
    QCOMPARE(a.Tabelle(), base);
    QCOMPARE(Comandi(f), QStringLiteral("1111"));
}

void TestStrutturaDI::laStradaCompletaDalMenu() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    QPointer<frmStrutturaIN> fin = principale->findChild<frmStrutturaIN*>();
    QVERIFY(fin);
    fin->tvwDB->setCurrentIndex(fin->Modello().Trova(s.inv));
    QCOMPARE(fin->sTipo, QStringLiteral("inventario"));
    QVERIFY(fin->cmdInvAnalitico->isEnabled());

    bool bAperta = false;
    QSize dimensione;
    AlComparire(QStringLiteral("frmStrutturaDIDialogo"), [&](QWidget* dialogo) {
        bAperta = true;
        dimensione = dialogo->size();
        auto* f = dialogo->findChild<frmStrutturaDI*>();
        if (f != nullptr) {
            StradaNellaFinestra(a, *f, s);
            QTest::keyClick(f, Qt::Key_Escape);
        }
        if (dialogo->isVisible()) {
            static_cast<QDialog*>(dialogo)->reject();
        }
    });
    fin->cmdInvAnalitico->click();
    QVERIFY(bAperta);
    if (QTest::currentTestFailed()) {
        return;
    }
    // The window took the main form's inner size and a little more.
    QCOMPARE(dimensione, principale->Area()->size() + QSize(650 / 15, 100 / 15));
    // The kind was written at the first click; the finding aids' window is shown again, while
    // its open flag went with the unload of the analytical inventory.
    QCOMPARE(a.Di("Inventari", "TipoInv", s.inv).toString(), QStringLiteral("01"));
    QVERIFY(fin);
    QCOMPARE(fin->sTipo, QStringLiteral("inventario"));
    QCOMPARE(fin->cmdInvAnalitico->property("Tag").toString(), QStringLiteral("1"));
    QVERIFY(!Sessione::bFrmStrutturaINAperto);
    // So the menu entry closes it through Scarica and opens it afresh.
    principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    QTRY_VERIFY(!fin);
    QCOMPARE(principale->Area()->subWindowList().size(), 1);
}

QTEST_MAIN(TestStrutturaDI)
#include "tst_strutturadi.moc"

// The window at the size it takes from the main form as the program opens: the record of a unit,
// of a parchment and of a seal each fit the side beside the tree, scrolling, if at all, only
// downwards.
void TestStrutturaDI::ogniSchedaStaNelLatoDellaFinestraSenzaScorrereDiLato() {
    RICHIEDI_BACKEND(TipoBackend::SQLite);
    Ambiente a(TipoBackend::SQLite);
    const Strumento s = CreaStrumento(a);
    const long serie = a.Crea("07", QStringLiteral("Serie I"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), serie);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), perg);
    PrimoMDI principale;
    principale.show();
    QApplication::processEvents();
    auto f = Apri(s.inv);
    f->show();
    auto* area = f->findChild<QScrollArea*>(QStringLiteral("areaFrame1"));
    QVERIFY(area);
    for (const long lId : {static_cast<long>(s.inv), serie, perg, sigillo}) {
        Scegli(*f, lId);
        QApplication::processEvents();
        QVERIFY2(!area->horizontalScrollBar()->isVisible(), qPrintable(QString::number(lId)));
    }
}
