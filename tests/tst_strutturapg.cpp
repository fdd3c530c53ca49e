// The window of the parchments and seals of a finding aid, in its two modes: its tree rooted in
// the finding aid with the images of each mode (in the seals' mode a parchment of the finding
// aid still comes, with a seal's image), the commands of New by the node clicked and by the
// mode, the records made, edited, given up and deleted with the question and title of each
// kind, a finding aid no longer there, and the road from the main window's menu through the
// popup of a finding aid in the finding aids' window, on SQLite and on PostgreSQL.

#include "programma/Registro.h"
#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmStrutturaDI.h"
#include "structure/frmStrutturaIN.h"
#include "structure/frmStrutturaPG.h"

#include "AmbienteStruttura.h"
#include "Modali.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QPointer>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

#include <memory>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// The structure windows' setting with the lists of the parchment and the seal.
struct Ambiente : AmbienteStruttura {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteStruttura(tipo) {
        ListeInventarioAnalitico();
    }
    QVariant Di(const char* tabella, const char* colonna, qint64 elemento) const {
        return Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                          .arg(QLatin1String(colonna), QLatin1String(tabella)),
                      {L(elemento)});
    }
    // The rows of the three tables, "Elementi Pergamene Sigilli".
    QString Tabelle() const {
        return QStringLiteral("%1 %2 %3")
            .arg(Righe("Elementi"))
            .arg(Righe("Pergamene"))
            .arg(Righe("Sigilli"));
    }
};

// The window over that finding aid in that mode, made as its opener does.
std::unique_ptr<frmStrutturaPG> Apri(long inventario, long lModo) {
    Sessione::lIdInventario = inventario;
    Sessione::lModoStrutturaPG = lModo;
    return std::make_unique<frmStrutturaPG>();
}

// The commands "NuovaPG NuovoSG Modifica Cancella" as 0/1.
QString Comandi(const frmStrutturaPG& f) {
    return Accesi({f.cmdNuovaPG, f.cmdNuovoSG, f.cmdModifica, f.cmdCancella});
}

// The editor shown in Frame1.
QString Editore(const frmStrutturaPG& f) {
    for (const QWidget* e :
         std::initializer_list<const QWidget*>{f.fraInventario, f.fraPergamena, f.fraSigillo}) {
        if (!e->isHidden()) {
            return e->objectName();
        }
    }
    return QString();
}

void Scegli(FinestraStruttura& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->setCurrentIndex(nodo);
    QCOMPARE(f.lIdCorrente, lId);
}

qint64 Selezionato(const FinestraStruttura& f) {
    return f.Modello().Id(f.tvwDB->currentIndex());
}

// The delete of the node chosen, answered so: the box asked.
Messaggio Cancella(Ambiente& a, frmStrutturaPG& f, Risposta risposta) {
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {risposta};
    f.cmdCancella->click();
    const QList<Messaggio> messaggi = a.piattaforma.Messaggi();
    return messaggi.isEmpty() ? Messaggio() : messaggi.first();
}

// The right click on a node of the tree, as the person gives it.
void ClicDestro(FinestraStruttura& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->scrollTo(nodo);
    const QPoint punto = f.tvwDB->visualRect(nodo).center();
    QContextMenuEvent evento(QContextMenuEvent::Mouse, punto,
                             f.tvwDB->viewport()->mapToGlobal(punto));
    QApplication::sendEvent(f.tvwDB->viewport(), &evento);
}

} // namespace

class TestStrutturaPG : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() {
        Sessione::lIdInventario = 0;
        Sessione::lModoStrutturaPG = 0;
    }

    void nelModoPergameneLAlberoMostraPergameneESigilliConLeLoroImmagini_data() {
        AggiungiBackend();
    }
    void nelModoPergameneLAlberoMostraPergameneESigilliConLeLoroImmagini();
    void nelModoSigilliUnaPergamenaDelloStrumentoVieneConLImmagineDiUnSigillo_data() {
        AggiungiBackend();
    }
    void nelModoSigilliUnaPergamenaDelloStrumentoVieneConLImmagineDiUnSigillo();
    void pergameneESigilliSiCreanoModificanoAnnullanoECancellano_data() { AggiungiBackend(); }
    void pergameneESigilliSiCreanoModificanoAnnullanoECancellano();
    void nelModoSigilliUnSigilloStaccatoPendeDalloStrumento_data() { AggiungiBackend(); }
    void nelModoSigilliUnSigilloStaccatoPendeDalloStrumento();
    void cancellareLoStrumentoLasciaLaFinestraVuota_data() { AggiungiBackend(); }
    void cancellareLoStrumentoLasciaLaFinestraVuota();
    void unoStrumentoCheNonCePiuDaErroreU5_data() { AggiungiBackend(); }
    void unoStrumentoCheNonCePiuDaErroreU5();
    void ilPopupDelloStrumentoApreLeDueModalitaELInventarioDalMenu_data() { AggiungiBackend(); }
    void ilPopupDelloStrumentoApreLeDueModalitaELInventarioDalMenu();
};

void TestStrutturaPG::nelModoPergameneLAlberoMostraPergameneESigilliConLeLoroImmagini() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long perg2 = a.Crea("05", QStringLiteral("Perg. 2"), s.inv);
    const long perg1 = a.Crea("05", QStringLiteral("Perg. 1"), s.inv);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo del vescovo"), perg1);
    // What belongs to another finding aid is not of this tree.
    const Strumento altro = CreaStrumento(a, QStringLiteral("Altro"));
    a.Crea("05", QStringLiteral("Perg. dell'altro"), altro.inv);

    auto f = Apri(s.inv, 0);
    QCOMPARE(f->windowTitle(), QStringLiteral("Pergamene"));
    QCOMPARE(f->lModo, 0L);
    QCOMPARE(f->lIdInventarioCorrente, s.inv);
    QCOMPARE(f->lIdInventarioRecord, s.idInv);
    QVERIFY(f->FrameOrd->isHidden());
    QVERIFY(f->cmdConferma->isHidden());
    QVERIFY(f->cmdAnnulla->isHidden());
    QVERIFY(!f->cmdNuovaPG->isHidden());
    QVERIFY(!f->cmdNuovoSG->isHidden());
    const ModelloAlbero& m = f->Modello();
    QCOMPARE(m.Chiave(m.Radice()), QStringLiteral("%1 ID").arg(s.inv));
    f->tvwDB->expandAll();
    QCOMPARE(Albero(m), QStringLiteral("Carte Guinigi 03 nolink\n"
                                       "  Perg. 1 05 pergamena\n"
                                       "    Sigillo del vescovo 06 sigilli\n"
                                       "  Perg. 2 05 pergamena\n"));
    // The finding aid shown; under it a parchment only.
    QCOMPARE(Selezionato(*f), qint64(s.inv));
    QCOMPARE(f->sTipo, QStringLiteral("inventario"));
    QCOMPARE(Editore(*f), QStringLiteral("fraInventario"));
    QCOMPARE(Testo(f->fraInventario, 0), QStringLiteral("Carte Guinigi"));
    QCOMPARE(Comandi(*f), QStringLiteral("1010"));
    Scegli(*f, perg1);
    QCOMPARE(f->sTipo, QStringLiteral("pergamena"));
    QCOMPARE(Editore(*f), QStringLiteral("fraPergamena"));
    QCOMPARE(Testo(f->fraPergamena, 0), QStringLiteral("Perg. 1"));
    // The seals stand in the tree, not behind a button of the parchment.
    QVERIFY(Pulsante(f->fraPergamena, "cmdMostraSigilli")->isHidden());
    // A parchment with a seal on it may not go.
    QCOMPARE(Comandi(*f), QStringLiteral("1110"));
    Scegli(*f, perg2);
    QCOMPARE(Comandi(*f), QStringLiteral("1111"));
    Scegli(*f, sigillo);
    QCOMPARE(f->sTipo, QStringLiteral("sigillo"));
    QCOMPARE(Editore(*f), QStringLiteral("fraSigillo"));
    QCOMPARE(Testo(f->fraSigillo, 0), QStringLiteral("Sigillo del vescovo"));
    // A seal has no sons; its relation to the parchment is told in words.
    QCOMPARE(Comandi(*f), QStringLiteral("0011"));
    QVERIFY(!f->fraSigillo->findChild<QWidget*>(QStringLiteral("Text1(42)"))->isHidden());
}

void TestStrutturaPG::nelModoSigilliUnaPergamenaDelloStrumentoVieneConLImmagineDiUnSigillo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long staccato = a.Crea("06", QStringLiteral("Sigillo staccato"), s.inv);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), s.inv);
    const long pendente = a.Crea("06", QStringLiteral("Pendente"), perg);

    auto f = Apri(s.inv, 1);
    QCOMPARE(f->windowTitle(), QStringLiteral("Sigilli staccati"));
    QCOMPARE(f->lModo, 1L);
    const ModelloAlbero& m = f->Modello();
    f->tvwDB->expandAll();
    QCOMPARE(Albero(m), QStringLiteral("Carte Guinigi 03 nolink\n"
                                       "  Perg. 1 05 sigilli\n"
                                       "    Pendente 06 sigilli\n"
                                       "  Sigillo staccato 06 sigilli\n"));
    // Only seals are made here, also under the finding aid.
    QVERIFY(f->cmdNuovaPG->isHidden());
    QVERIFY(!f->cmdNuovoSG->isHidden());
    QVERIFY(f->cmdNuovoSG->isEnabled());
    QCOMPARE(Editore(*f), QStringLiteral("fraInventario"));
    // The parchment shows as a parchment.
    Scegli(*f, perg);
    QCOMPARE(f->sTipo, QStringLiteral("pergamena"));
    QCOMPARE(Editore(*f), QStringLiteral("fraPergamena"));
    QVERIFY(f->cmdNuovoSG->isEnabled());
    Scegli(*f, staccato);
    QCOMPARE(Editore(*f), QStringLiteral("fraSigillo"));
    QCOMPARE(Testo(f->fraSigillo, 0), QStringLiteral("Sigillo staccato"));
    QVERIFY(!f->cmdNuovoSG->isEnabled());
    // After an edit the parchment's command stays out of sight.
    Scegli(*f, pendente);
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    QVERIFY(f->cmdNuovoSG->isHidden());
    f->cmdAnnulla->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QVERIFY(f->cmdNuovaPG->isHidden());
    QVERIFY(!f->cmdNuovoSG->isHidden());
    QVERIFY(!f->cmdModifica->isHidden());
}

void TestStrutturaPG::pergameneESigilliSiCreanoModificanoAnnullanoECancellano() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    auto f = Apri(s.inv, 0);
    const ModelloAlbero& m = f->Modello();
    const QString base = a.Tabelle();

    // A new parchment under the finding aid, given up: nothing is written.
    f->cmdNuovaPG->click();
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    QCOMPARE(f->sTipo, QStringLiteral("pergamena"));
    QVERIFY(!f->tvwDB->isEnabled());
    QVERIFY(f->cmdNuovaPG->isHidden());
    QVERIFY(!f->cmdConferma->isHidden());
    const QModelIndex temporaneo = m.Trova(ModelloAlbero::IdTemporaneo);
    QVERIFY(temporaneo.isValid());
    QCOMPARE(m.Tag(temporaneo), QStringLiteral("05"));
    QCOMPARE(m.Immagine(temporaneo), QStringLiteral("pergamena"));
    QCOMPARE(m.Id(temporaneo.parent()), qint64(s.inv));
    QCOMPARE(f->fraPergamena->ID_Inventario, s.idInv);
    f->cmdAnnulla->click();
    QVERIFY(!m.Trova(ModelloAlbero::IdTemporaneo).isValid());
    QCOMPARE(Selezionato(*f), qint64(s.inv));
    QCOMPARE(a.Tabelle(), base);

    // Made and confirmed.
    f->cmdNuovaPG->click();
    Compila(*f->fraPergamena);
    Riga(f->fraPergamena, 0)->setText(QStringLiteral("Perg. 7"));
    f->cmdConferma->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    const qint64 perg = Selezionato(*f);
    QVERIFY(perg > 0 && perg != ModelloAlbero::IdTemporaneo);
    QCOMPARE(a.Di("Pergamene", "Segnatura", perg).toString(), QStringLiteral("Perg. 7"));
    QCOMPARE(a.Di("Pergamene", "ID_Inventario", perg).toLongLong(), L(s.idInv));
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", perg).toLongLong(), L(s.inv));
    QCOMPARE(m.Testo(m.Trova(perg)), QStringLiteral("Perg. 7"));
    QCOMPARE(m.Immagine(m.Trova(perg)), QStringLiteral("pergamena"));
    QCOMPARE(m.Tag(m.Trova(perg)), QStringLiteral("05"));
    QVERIFY(!f->cmdNuovaPG->isHidden());
    QCOMPARE(Comandi(*f), QStringLiteral("1111"));

    // A seal on it, its link to the document at hand.
    f->cmdNuovoSG->click();
    QCOMPARE(f->sTipo, QStringLiteral("sigillo"));
    QCOMPARE(m.Immagine(m.Trova(ModelloAlbero::IdTemporaneo)), QStringLiteral("sigilli"));
    QVERIFY(!Pulsante(f->fraSigillo, "cmdMostraPergamene")->isHidden());
    QCOMPARE(f->fraSigillo->ID_Inventario, s.idInv);
    Compila(*f->fraSigillo);
    Riga(f->fraSigillo, 0)->setText(QStringLiteral("Sigillo pendente"));
    f->cmdConferma->click();
    const qint64 sigillo = Selezionato(*f);
    QVERIFY(sigillo > 0 && sigillo != perg);
    QCOMPARE(a.Di("Sigilli", "Identificativo", sigillo).toString(),
             QStringLiteral("Sigillo pendente"));
    QCOMPARE(a.Di("Sigilli", "ID_Inventario", sigillo).toLongLong(), L(s.idInv));
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", sigillo).toLongLong(), L(perg));
    QCOMPARE(m.Immagine(m.Trova(sigillo)), QStringLiteral("sigilli"));
    QCOMPARE(Comandi(*f), QStringLiteral("0011"));

    // Edits: one given up, one confirmed.
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    Riga(f->fraSigillo, 0)->setText(QStringLiteral("Dimenticato"));
    f->cmdAnnulla->click();
    QCOMPARE(Testo(f->fraSigillo, 0), QStringLiteral("Sigillo pendente"));
    QCOMPARE(m.Testo(m.Trova(sigillo)), QStringLiteral("Sigillo pendente"));
    f->cmdModifica->click();
    Riga(f->fraSigillo, 0)->setText(QStringLiteral("Sigillo della Curia"));
    f->cmdConferma->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(m.Testo(m.Trova(sigillo)), QStringLiteral("Sigillo della Curia"));
    QCOMPARE(a.Di("Sigilli", "Identificativo", sigillo).toString(),
             QStringLiteral("Sigillo della Curia"));

    // The parchment with its seal: the database refuses, "Errore U4", the node stays.
    Scegli(*f, perg);
    f->cmdCancella->setEnabled(true);
    QCOMPARE(Cancella(a, *f, Risposta::Si).sTitolo, QStringLiteral("Cancella Pergamena: Perg. 7"));
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U4"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QVERIFY(m.Trova(perg).isValid());

    // The deletes, No first, each with its question and title; then the parent is shown.
    Scegli(*f, sigillo);
    Messaggio domanda = Cancella(a, *f, Risposta::No);
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare il sigillo?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Pergamena: Sigillo della Curia"));
    QCOMPARE(domanda.icona, Icona::Domanda);
    QCOMPARE(domanda.pulsanti, Pulsanti::SiNo);
    QVERIFY(m.Trova(sigillo).isValid());
    QCOMPARE(Selezionato(*f), sigillo);
    Cancella(a, *f, Risposta::Si);
    QVERIFY(!m.Trova(sigillo).isValid());
    QVERIFY(a.Di("Sigilli", "ID_Sigillo", sigillo).isNull());
    QCOMPARE(Selezionato(*f), perg);
    domanda = Cancella(a, *f, Risposta::Si);
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare la pergamena?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Pergamena: Perg. 7"));
    QVERIFY(!m.Trova(perg).isValid());
    QCOMPARE(Selezionato(*f), qint64(s.inv));
    QCOMPARE(a.Tabelle(), base);
    QCOMPARE(Albero(m), QStringLiteral("Carte Guinigi 03 nolink\n"));
}

void TestStrutturaPG::nelModoSigilliUnSigilloStaccatoPendeDalloStrumento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    auto f = Apri(s.inv, 1);
    const ModelloAlbero& m = f->Modello();
    f->cmdNuovoSG->click();
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    QCOMPARE(m.Immagine(m.Trova(ModelloAlbero::IdTemporaneo)), QStringLiteral("sigilli"));
    QVERIFY(f->cmdNuovaPG->isHidden());
    Compila(*f->fraSigillo);
    Riga(f->fraSigillo, 0)->setText(QStringLiteral("Bolla plumbea"));
    f->cmdConferma->click();
    const qint64 sigillo = Selezionato(*f);
    QVERIFY(sigillo > 0 && sigillo != ModelloAlbero::IdTemporaneo);
    QCOMPARE(a.Di("Elementi", "ID_ElementoPadre", sigillo).toLongLong(), L(s.inv));
    QCOMPARE(a.Di("Sigilli", "ID_Inventario", sigillo).toLongLong(), L(s.idInv));
    QCOMPARE(Albero(m), QStringLiteral("Carte Guinigi 03 nolink\n"
                                       "  Bolla plumbea 06 sigilli\n"));
    QVERIFY(f->cmdNuovaPG->isHidden());
    QVERIFY(!f->cmdNuovoSG->isHidden());
}

void TestStrutturaPG::cancellareLoStrumentoLasciaLaFinestraVuota() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    // A finding aid with no complesso may go.
    const long ist = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
    const long inv = a.Crea("03", QStringLiteral("Carte sciolte"), ist);
    auto f = Apri(inv, 0);
    QCOMPARE(Comandi(*f), QStringLiteral("1011"));
    const Messaggio domanda = Cancella(a, *f, Risposta::Si);
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare l'inventario?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Inventario: Carte sciolte"));
    QVERIFY(a.Di("Inventari", "ID_Inventario", inv).isNull());
    QCOMPARE(f->Modello().Nodi(), 0);
    QCOMPARE(Comandi(*f), QStringLiteral("0000"));
    QCOMPARE(Editore(*f), QString());
}

void TestStrutturaPG::unoStrumentoCheNonCePiuDaErroreU5() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    // Another workstation deleted the finding aid; and an element that is no finding aid.
    a.cnn().Esegui(QStringLiteral("DELETE FROM Inventari WHERE ID_Elemento = ?"), {L(s.inv)});
    for (const long id : {s.inv, s.fondo}) {
        a.piattaforma.Svuota();
        auto f = Apri(id, 0);
        const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U5"));
        QCOMPARE(errori.size(), 1);
        QCOMPARE(errori[0].icona, Icona::Critica);
        QVERIFY2(errori[0].sTesto.contains(QString::number(id)), qPrintable(errori[0].sTesto));
        QCOMPARE(f->Modello().Nodi(), 0);
        QCOMPARE(Comandi(*f), QStringLiteral("0000"));
        QCOMPARE(Editore(*f), QString());
    }
}

void TestStrutturaPG::ilPopupDelloStrumentoApreLeDueModalitaELInventarioDalMenu() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const Strumento s = CreaStrumento(a);
    const long perg = a.Crea("05", QStringLiteral("Perg. 1"), s.inv);
    a.Crea("06", QStringLiteral("Pendente"), perg);
    a.Crea("06", QStringLiteral("Staccato"), s.inv);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QPointer<frmStrutturaIN> fin = principale->findChild<frmStrutturaIN*>();
    QVERIFY(fin);
    fin->tvwDB->expandAll();

    // An institute has no popup.
    a.piattaforma.Svuota();
    a.piattaforma.scelteMenu = {2};
    ClicDestro(*fin, s.ist);
    QVERIFY(a.piattaforma.Chiamate(QStringLiteral("menu")).isEmpty());
    QCOMPARE(fin->sTipo, QStringLiteral("istituto"));

    // The parchments: the node clicked is chosen and shown, then the popup is offered.
    struct Apertura {
        long lModo = -1;
        QString sTitolo;
        QString sAlbero;
        QSize dimensione;
    };
    const auto apri = [&](int iVoce) {
        Apertura aperta;
        AlComparire(QStringLiteral("frmStrutturaPGDialogo"), [&](QWidget* dialogo) {
            auto* f = dialogo->findChild<frmStrutturaPG*>();
            if (f != nullptr) {
                aperta.lModo = f->lModo;
                aperta.sTitolo = dialogo->windowTitle();
                f->tvwDB->expandAll();
                aperta.sAlbero = Albero(f->Modello());
                aperta.dimensione = dialogo->size();
                QTest::keyClick(f, Qt::Key_Escape);
            }
            if (dialogo->isVisible()) {
                static_cast<QDialog*>(dialogo)->reject();
            }
        });
        a.piattaforma.Svuota();
        a.piattaforma.scelteMenu = {iVoce};
        ClicDestro(*fin, s.inv);
        return aperta;
    };
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    const Apertura pergamene = apri(2);
    QCOMPARE(a.piattaforma.Chiamate(QStringLiteral("menu")).size(), 1);
    QCOMPARE(a.piattaforma.Chiamate(QStringLiteral("menu")).value(0).voci,
             frmStrutturaIN::VociStrumento());
    QCOMPARE(frmStrutturaIN::VociStrumento(),
             QStringList({QStringLiteral("Inventario base"), QStringLiteral("Pergamene        "),
                          QStringLiteral("Sigilli staccati ")}));
    QCOMPARE(pergamene.lModo, 0L);
    QCOMPARE(pergamene.sTitolo, QStringLiteral("Pergamene"));
    QCOMPARE(pergamene.sAlbero, QStringLiteral("Carte Guinigi 03 nolink\n"
                                               "  Perg. 1 05 pergamena\n"
                                               "    Pendente 06 sigilli\n"
                                               "  Staccato 06 sigilli\n"));
    QCOMPARE(pergamene.dimensione, principale->Area()->size() + QSize(650 / 15, 100 / 15));
    // Back in the finding aids' window, the finding aid is shown; the window's unload cleared
    // its opener's flag.
    QVERIFY(fin);
    QCOMPARE(fin->sTipo, QStringLiteral("inventario"));
    QCOMPARE(fin->lIdCorrente, qint64(s.inv));
    QVERIFY(!Sessione::bFrmStrutturaINAperto);

    // The detached seals.
    const Apertura sigilli = apri(3);
    QCOMPARE(sigilli.lModo, 1L);
    QCOMPARE(sigilli.sTitolo, QStringLiteral("Sigilli staccati"));
    QCOMPARE(sigilli.sAlbero, QStringLiteral("Carte Guinigi 03 nolink\n"
                                             "  Perg. 1 05 sigilli\n"
                                             "    Pendente 06 sigilli\n"
                                             "  Staccato 06 sigilli\n"));

    // No entry chosen: nothing opens.
    a.piattaforma.Svuota();
    a.piattaforma.scelteMenu = {0};
    ClicDestro(*fin, s.inv);
    QCOMPARE(a.piattaforma.Chiamate(QStringLiteral("menu")).size(), 1);
    QVERIFY(QApplication::activeModalWidget() == nullptr);

    // The first entry does what cmdInvAnalitico does: the kind written, the units' window.
    bool bAnalitico = false;
    AlComparire(QStringLiteral("frmStrutturaDIDialogo"), [&](QWidget* dialogo) {
        bAnalitico = dialogo->findChild<frmStrutturaDI*>() != nullptr;
        static_cast<QDialog*>(dialogo)->reject();
    });
    a.piattaforma.scelteMenu = {1};
    ClicDestro(*fin, s.inv);
    QVERIFY(bAnalitico);
    QCOMPARE(a.Di("Inventari", "TipoInv", s.inv).toString(), QStringLiteral("01"));
    QVERIFY(fin);
    QCOMPARE(fin->cmdInvAnalitico->property("Tag").toString(), QStringLiteral("1"));
}

QTEST_MAIN(TestStrutturaPG)
#include "tst_strutturapg.moc"
