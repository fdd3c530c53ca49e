// The window of institutes and complessi documentari: its tree of two groups with the link
// images, the order option, the buttons from the editors' flags, the new institute and the new
// complesso with their temporary node, Conferma, Annulla, the delete with its questions and
// errors, the answers to the complesso record, and the whole road from the menu, on SQLite
// and on PostgreSQL.

#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "records/ucIstituto.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmStrutturaCD.h"

#include "AmbienteStruttura.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSqlQuery>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// The environment of the structure windows' tests, with the order of complessi and their
// producers.
struct Ambiente : AmbienteStruttura {
    using AmbienteStruttura::AmbienteStruttura;

    void Ordinamento(long complesso, int numero) const {
        cnn().Esegui(
            QStringLiteral("UPDATE ComplessiDoc SET Ordinamento = ? WHERE ID_Elemento = ?"),
            {numero, L(complesso)});
    }
    void Produttore(long complesso, const QString& nome) const {
        const qint64 soggetto =
            cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                            {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                            {nome, QStringLiteral("P")});
        QSqlQuery query = cnn().Esegui(
            QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE ID_Elemento = ?"),
            {L(complesso)});
        QVERIFY(query.next());
        cnn().Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, "
                                    "ID_Soggetto) VALUES (?, ?)"),
                     {query.value(0), soggetto});
    }
};

// The enabled state of the four commands, as "NuovoIst NuovoCD Modifica Cancella" 0/1.
QString Pulsanti4(const frmStrutturaCD& f) {
    QString s;
    for (const QPushButton* p : {f.cmdNuovoIst, f.cmdNuovoCD, f.cmdModifica, f.cmdCancella}) {
        s += p->isEnabled() ? u'1' : u'0';
    }
    return s;
}

// The id of the node selected in the tree.
qint64 Selezionato(const frmStrutturaCD& f) {
    return f.Modello().Id(f.tvwDB->currentIndex());
}

void Scegli(frmStrutturaCD& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->setCurrentIndex(nodo);
}

// True when the whole text of a line box shows: the room inside its frame holds the text.
bool TestoIntero(const QLineEdit* riga) {
    const int cornice = riga->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, riga);
    const QMargins margini = riga->textMargins();
    // Two pixels of the box's own margin on either side.
    const int spazio = riga->width() - 2 * cornice - 2 * 2 - margini.left() - margini.right();
    return spazio >= riga->fontMetrics().horizontalAdvance(riga->text());
}

// The database refuses every update of the table that writes the column: what the record's
// Salva does, not what the insert of the element and its detail row does.
void RifiutaAggiornamenti(const Ambiente& a, const QString& sTabella, const QString& sColonna) {
    if (a.banca.Tipo() == TipoBackend::SQLite) {
        a.cnn().Esegui(QStringLiteral("CREATE TRIGGER Rifiuta BEFORE UPDATE ON %1 "
                                      "WHEN NEW.%2 IS NOT NULL "
                                      "BEGIN SELECT RAISE(ABORT, 'Salvataggio rifiutato'); END")
                           .arg(sTabella, sColonna));
        return;
    }
    a.cnn().Esegui(QStringLiteral("CREATE FUNCTION rifiuta() RETURNS trigger LANGUAGE plpgsql "
                                  "AS $$ BEGIN RAISE EXCEPTION 'Salvataggio rifiutato'; END $$"));
    a.cnn().Esegui(QStringLiteral("CREATE TRIGGER Rifiuta BEFORE UPDATE ON %1 FOR EACH ROW "
                                  "WHEN (NEW.%2 IS NOT NULL) EXECUTE FUNCTION rifiuta()")
                       .arg(sTabella, sColonna));
}

// A window with one kind described here: the institutes under another name, image, question
// and titles, two commands driven by the editor's flags and one that no kind describes.
class FinestraUnTipo : public FinestraStruttura {
public:
    FinestraUnTipo()
        : FinestraStruttura(QStringLiteral("frmStrutturaUnTipo")) {
        auto* pannello = new QVBoxLayout(Frame1);
        fraIstituto = new ucIstituto(Frame1);
        fraIstituto->setObjectName(QStringLiteral("fraIstituto"));
        pannello->addWidget(fraIstituto);
        for (QPushButton** comando :
             {&cmdPrimo, &cmdSecondo, &cmdLibero, &cmdNuovaSede, &cmdSempre}) {
            *comando = new QPushButton(this);
            RegistraComando(*comando);
        }
        TipoNodo sede;
        sede.sTag = QStringLiteral("01");
        sede.altriTag = {QStringLiteral("00")};
        sede.sTipo = QStringLiteral("sede");
        sede.editore = fraIstituto;
        sede.cmdNuovo = cmdNuovaSede;
        sede.sImmagineNuovo = QStringLiteral("root");
        sede.sTabella = QStringLiteral("Istituti");
        sede.sDomandaCancella = QStringLiteral("Togliere davvero questa sede?");
        sede.sTitoloCancella = QStringLiteral("Via la sede: ");
        sede.sTitoloErroreCancella = QStringLiteral("Errore di prova");
        sede.pulsanti = {{cmdPrimo, &fraIstituto->OkNuovoComplesso},
                         {cmdSecondo, &fraIstituto->OkNuovoIstituto},
                         {cmdSempre, &TipoNodo::Sempre}};
        RegistraTipo(sede);
        fraIstituto->Init();
        Avvia(false);
    }

    // The enabled state of the three commands, "Primo Secondo Libero" 0/1.
    QString Pulsanti3() const {
        QString s;
        for (const QPushButton* p : {cmdPrimo, cmdSecondo, cmdLibero}) {
            s += p->isEnabled() ? u'1' : u'0';
        }
        return s;
    }

    ucIstituto* fraIstituto = nullptr;
    QPushButton* cmdPrimo = nullptr;
    QPushButton* cmdSecondo = nullptr;
    QPushButton* cmdLibero = nullptr;
    QPushButton* cmdNuovaSede = nullptr;
    QPushButton* cmdSempre = nullptr;
    // The id shown each time the commands were set.
    QList<qint64> pulsantiImpostati;

protected:
    void DopoPulsanti(const TipoNodo& tipo) override {
        QCOMPARE(tipo.sTipo, QStringLiteral("sede"));
        pulsantiImpostati.append(lIdCorrente);
    }
    void CaricaAlbero(const QString&) override {
        CaricaGruppi({frmStrutturaCD::Gruppi(QStringLiteral("ELEM_Denominazione")).first()}, false);
    }
};

} // namespace

class TestStrutturaCD : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void unDatabaseVuotoMostraLaSolaRadiceEIFlagDellaRadice_data() { AggiungiBackend(); }
    void unDatabaseVuotoMostraLaSolaRadiceEIFlagDellaRadice();
    void suUnSitoSNonSiCreaNullaSottoLaRadice_data() { AggiungiBackend(); }
    void suUnSitoSNonSiCreaNullaSottoLaRadice();
    void istitutiEComplessiConLeImmaginiDeiLegami_data() { AggiungiBackend(); }
    void istitutiEComplessiConLeImmaginiDeiLegami();
    void lOrdineArchivisticoSeguoCDOrdinamentoELAlfabeticoIlNome_data() { AggiungiBackend(); }
    void lOrdineArchivisticoSeguoCDOrdinamentoELAlfabeticoIlNome();
    void iFratelliSiOrdinanoComeLiLeggeUnItalianoInEntrambeLeOpzioni_data() { AggiungiBackend(); }
    void iFratelliSiOrdinanoComeLiLeggeUnItalianoInEntrambeLeOpzioni();
    void iFigliDellaRadiceEUnNuovoIstitutoSiOrdinanoAllItaliana_data() { AggiungiBackend(); }
    void iFigliDellaRadiceEUnNuovoIstitutoSiOrdinanoAllItaliana();
    void unOrfanoDaErroreU5ELasciaIlCaricato_data() { AggiungiBackend(); }
    void unOrfanoDaErroreU5ELasciaIlCaricato();
    void unNuovoIstitutoSottoLaRadiceSiSalvaESiMostra_data() { AggiungiBackend(); }
    void unNuovoIstitutoSottoLaRadiceSiSalvaESiMostra();
    void unControlloObbligatorioFallitoLasciaIlNodoTemporaneoELoStato_data() { AggiungiBackend(); }
    void unControlloObbligatorioFallitoLasciaIlNodoTemporaneoELoStato();
    void unSalvaFallitoDopoLaRigaDiElementiFaIlNodoENonUnSecondoElemento_data();
    void unSalvaFallitoDopoLaRigaDiElementiFaIlNodoENonUnSecondoElemento();
    void annullaInNuovoLasciaLAlberoComEraEMostraIlPadre_data() { AggiungiBackend(); }
    void annullaInNuovoLasciaLAlberoComEraEMostraIlPadre();
    void unNuovoComplessoSottoUnComplessoHaQuelPadre_data() { AggiungiBackend(); }
    void unNuovoComplessoSottoUnComplessoHaQuelPadre();
    void ilPrimoInventarioCollegatoCambiaLImmagineSenzaRicaricare_data() { AggiungiBackend(); }
    void ilPrimoInventarioCollegatoCambiaLImmagineSenzaRicaricare();
    void getDenonDaIlTestoDelNodoScelto_data() { AggiungiBackend(); }
    void getDenonDaIlTestoDelNodoScelto();
    void cancellaConNoLasciaTuttoComEra_data() { AggiungiBackend(); }
    void cancellaConNoLasciaTuttoComEra();
    void cancellaUnComplessoConFigliDaErroreT4ELasciaIlNodo_data() { AggiungiBackend(); }
    void cancellaUnComplessoConFigliDaErroreT4ELasciaIlNodo();
    void laStradaCompletaDalMenu_data() { AggiungiBackend(); }
    void laStradaCompletaDalMenu();
    void laDenominazioneSiLeggeInteraEAllargaConLaCornice();
    // A window whose kind is described in the test.
    void laDescrizioneDelTipoGuidaIPulsantiDaiFlagDellEditore_data() { AggiungiBackend(); }
    void laDescrizioneDelTipoGuidaIPulsantiDaiFlagDellEditore();
    void laDescrizioneDelTipoDaDomandaETitoloDellaCancellazione_data() { AggiungiBackend(); }
    void laDescrizioneDelTipoDaDomandaETitoloDellaCancellazione();
    void laDescrizioneDelTipoDaImmagineETagDelNuovoNodo_data() { AggiungiBackend(); }
    void laDescrizioneDelTipoDaImmagineETagDelNuovoNodo();
};

void TestStrutturaCD::unDatabaseVuotoMostraLaSolaRadiceEIFlagDellaRadice() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    frmStrutturaCD f;
    QCOMPARE(f.Modello().Nodi(), 1);
    const QModelIndex radice = f.Modello().Radice();
    QCOMPARE(f.Modello().Testo(radice), QStringLiteral("Archivi di Stato"));
    QCOMPARE(f.Modello().Immagine(radice), QStringLiteral("root"));
    QCOMPARE(f.tvwDB->currentIndex(), radice);
    QVERIFY(f.Ord[1]->isChecked());
    QVERIFY(!f.Ord[0]->isChecked());
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(!f.fraIstituto->isHidden());
    QVERIFY(f.fraComplesso->isHidden());
    QVERIFY(f.cmdConferma->isHidden());
    QVERIFY(f.cmdAnnulla->isHidden());
    QCOMPARE(Pulsanti4(f), QStringLiteral("1000"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestStrutturaCD::suUnSitoSNonSiCreaNullaSottoLaRadice() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend, false);
    frmStrutturaCD f;
    QCOMPARE(Pulsanti4(f), QStringLiteral("0000"));
}

void TestStrutturaCD::istitutiEComplessiConLeImmaginiDeiLegami() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long lucca = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
    const long firenze = a.Crea("01", QStringLiteral("Archivio di Stato di Firenze"));
    const long nudo = a.Crea("02", QStringLiteral("Comune di Lucca"), lucca);
    const long inv = a.Crea("02", QStringLiteral("Diplomatico"), lucca);
    const long sogg = a.Crea("02", QStringLiteral("Notarile"), firenze);
    const long tutti = a.Crea("02", QStringLiteral("Mediceo"), firenze);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), lucca);
    a.Lega(inv, inventario);
    a.Lega(tutti, inventario);
    a.Produttore(sogg, QStringLiteral("Notai"));
    a.Produttore(tutti, QStringLiteral("Medici"));
    a.Produttore(tutti, QStringLiteral("Lorena"));
    frmStrutturaCD f;
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(TestiFigli(m, m.Radice()),
             (QStringList{QStringLiteral("Archivio di Stato di Firenze"),
                          QStringLiteral("Archivio di Stato di Lucca")}));
    QCOMPARE(m.Immagine(m.Trova(lucca)), QStringLiteral("istituto"));
    QCOMPARE(m.Tag(m.Trova(lucca)), QStringLiteral("01"));
    QCOMPARE(m.Immagine(m.Trova(nudo)), QStringLiteral("nolink"));
    QCOMPARE(m.Immagine(m.Trova(inv)), QStringLiteral("silink"));
    QCOMPARE(m.Immagine(m.Trova(sogg)), QStringLiteral("slink"));
    QCOMPARE(m.Immagine(m.Trova(tutti)), QStringLiteral("islink"));
    QCOMPARE(m.Tag(m.Trova(tutti)), QStringLiteral("02"));
    // The inventario is not a node of this window.
    QVERIFY(!m.Trova(inventario).isValid());
    QCOMPARE(m.Nodi(), 7);

    // A click on the institute shows it; on a complesso the complesso.
    Scegli(f, lucca);
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(f.lIdCorrente, qint64(lucca));
    QVERIFY(!f.fraIstituto->isHidden());
    QVERIFY(f.fraComplesso->isHidden());
    QCOMPARE(f.cmdNuovoCD->isEnabled(), f.fraIstituto->OkNuovoComplesso);
    QCOMPARE(f.cmdModifica->isEnabled(), f.fraIstituto->OkModifica);
    Scegli(f, nudo);
    QCOMPARE(f.sTipo, QStringLiteral("complesso"));
    QVERIFY(f.fraIstituto->isHidden());
    QVERIFY(!f.fraComplesso->isHidden());
    QVERIFY(!f.cmdNuovoIst->isEnabled());
    QCOMPARE(f.cmdNuovoCD->isEnabled(), f.fraComplesso->OkNuovoComplesso);
    QCOMPARE(f.cmdCancella->isEnabled(), f.fraComplesso->OkCancella);
    QCOMPARE(f.cmdModifica->isEnabled(), f.fraComplesso->OkModifica);
}

void TestStrutturaCD::lOrdineArchivisticoSeguoCDOrdinamentoELAlfabeticoIlNome() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long c = a.Crea("02", QStringLiteral("Carte"), ist);
    const long b = a.Crea("02", QStringLiteral("Buste"), ist);
    const long z = a.Crea("02", QStringLiteral("Zecca"), ist);
    a.Ordinamento(c, 2);
    a.Ordinamento(b, 3);
    a.Ordinamento(z, 1);
    frmStrutturaCD f;
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(
        TestiFigli(m, m.Trova(ist)),
        (QStringList{QStringLiteral("Zecca"), QStringLiteral("Carte"), QStringLiteral("Buste")}));
    f.Ord[0]->setChecked(true);
    QCOMPARE(
        TestiFigli(m, m.Trova(ist)),
        (QStringList{QStringLiteral("Buste"), QStringLiteral("Carte"), QStringLiteral("Zecca")}));
    // A reload brings the tree back to its root.
    QCOMPARE(Selezionato(f), qint64(0));
    f.Ord[1]->setChecked(true);
    QCOMPARE(TestiFigli(m, m.Trova(ist)).first(), QStringLiteral("Zecca"));
}

// Names an Italian reader finds in this order: accents and case after the letters, a blank
// before any letter.
const QStringList NomiInOrdineItaliano{QStringLiteral("ancora"),
                                       QStringLiteral("àncora"),
                                       QStringLiteral("archivio"),
                                       QStringLiteral("Archivio"),
                                       QStringLiteral("Città di Lucca"),
                                       QStringLiteral("Cittadella"),
                                       QStringLiteral("Elia"),
                                       QStringLiteral("erba"),
                                       QStringLiteral("Èrba"),
                                       QStringLiteral("Fondo"),
                                       QStringLiteral("Zeta")};

void TestStrutturaCD::iFratelliSiOrdinanoComeLiLeggeUnItalianoInEntrambeLeOpzioni() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Istituto"));
    QHash<QString, long> ids;
    for (qsizetype i = NomiInOrdineItaliano.size() - 1; i >= 0; --i) {
        ids.insert(NomiInOrdineItaliano[i], a.Crea("02", NomiInOrdineItaliano[i], ist));
    }
    // Two numbered: in "Archivistico" after all those without a number, by their numbers.
    a.Ordinamento(ids.value(QStringLiteral("Zeta")), 1);
    a.Ordinamento(ids.value(QStringLiteral("ancora")), 2);
    QStringList archivistico = NomiInOrdineItaliano;
    archivistico.removeAll(QStringLiteral("Zeta"));
    archivistico.removeAll(QStringLiteral("ancora"));
    archivistico << QStringLiteral("Zeta") << QStringLiteral("ancora");

    frmStrutturaCD f;
    const ModelloAlbero& m = f.Modello();
    QVERIFY(f.Ord[1]->isChecked());
    QCOMPARE(TestiFigli(m, m.Trova(ist)), archivistico);
    f.Ord[0]->setChecked(true);
    QCOMPARE(TestiFigli(m, m.Trova(ist)), NomiInOrdineItaliano);
    f.Ord[1]->setChecked(true);
    QCOMPARE(TestiFigli(m, m.Trova(ist)), archivistico);
}

void TestStrutturaCD::iFigliDellaRadiceEUnNuovoIstitutoSiOrdinanoAllItaliana() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    for (qsizetype i = NomiInOrdineItaliano.size() - 1; i >= 0; --i) {
        a.Crea("01", NomiInOrdineItaliano[i]);
    }
    frmStrutturaCD f;
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(TestiFigli(m, m.Radice()), NomiInOrdineItaliano);
    // One made by Conferma takes its place among its brothers.
    f.cmdNuovoIst->click();
    CompilaIstituto(f.fraIstituto, QStringLiteral("Àbaco"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(TestiFigli(m, m.Radice()),
             QStringList{QStringLiteral("Àbaco")} + NomiInOrdineItaliano);
}

void TestStrutturaCD::unOrfanoDaErroreU5ELasciaIlCaricato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Istituto"));
    const long primo = a.Crea("02", QStringLiteral("Primo"), ist);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), ist);
    const long orfano = a.Crea("02", QStringLiteral("Sotto l'inventario"), inventario);
    frmStrutturaCD f;
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U5"));
    QVERIFY(!errori.isEmpty());
    QCOMPARE(errori[0].icona, Icona::Critica);
    QVERIFY(f.Modello().Trova(primo).isValid());
    QVERIFY(!f.Modello().Trova(orfano).isValid());
}

void TestStrutturaCD::unNuovoIstitutoSottoLaRadiceSiSalvaESiMostra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    frmStrutturaCD f;
    f.cmdNuovoIst->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(!f.tvwDB->isEnabled());
    QVERIFY(f.cmdNuovoIst->isHidden());
    QVERIFY(!f.cmdConferma->isHidden());
    const QModelIndex temp = f.Modello().Trova(ModelloAlbero::IdTemporaneo);
    QVERIFY(temp.isValid());
    QCOMPARE(f.Modello().Testo(temp), QString(10, u' '));
    QCOMPARE(f.Modello().Immagine(temp), QStringLiteral("istituto"));
    QCOMPARE(f.tvwDB->currentIndex(), temp);
    CompilaIstituto(f.fraIstituto, QStringLiteral("Archivio di Stato di Lucca"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(f.tvwDB->isEnabled());
    QVERIFY(f.cmdConferma->isHidden());
    QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    const qint64 id = Selezionato(f);
    QVERIFY(id > 0);
    QCOMPARE(f.Modello().Testo(f.tvwDB->currentIndex()),
             QStringLiteral("Archivio di Stato di Lucca"));
    QCOMPARE(f.Modello().Tag(f.tvwDB->currentIndex()), QStringLiteral("01"));
    QVERIFY(f.Modello().Ordinato(f.tvwDB->currentIndex()));
    QCOMPARE(f.lIdCorrente, id);
    QVERIFY(a.Valore(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ?"),
                     {L(id)})
                .isNull());
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Istituti WHERE ID_Elemento = ?"),
                      {L(id)})
                 .toString(),
             QStringLiteral("Archivio di Stato di Lucca"));
    QCOMPARE(Pulsanti4(f), QStringLiteral("1110"));
}

void TestStrutturaCD::unControlloObbligatorioFallitoLasciaIlNodoTemporaneoELoStato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    frmStrutturaCD f;
    f.cmdNuovoIst->click();
    f.cmdConferma->click();
    QVERIFY(!a.piattaforma.Messaggi().isEmpty());
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    QVERIFY(!f.tvwDB->isEnabled());
    QVERIFY(!f.cmdConferma->isHidden());
    QCOMPARE(a.Righe("Elementi"), 0);
}

void TestStrutturaCD::unSalvaFallitoDopoLaRigaDiElementiFaIlNodoENonUnSecondoElemento_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<bool>("bComplesso");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        QTest::newRow(qPrintable(QStringLiteral("%1 istituto").arg(QLatin1String(nome))))
            << tipo << false;
        QTest::newRow(qPrintable(QStringLiteral("%1 complesso").arg(QLatin1String(nome))))
            << tipo << true;
    }
}

void TestStrutturaCD::unSalvaFallitoDopoLaRigaDiElementiFaIlNodoENonUnSecondoElemento() {
    QFETCH(TipoBackend, backend);
    QFETCH(bool, bComplesso);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = bComplesso ? a.Crea("01", QStringLiteral("Archivio")) : 0;
    const QString sTipologia = bComplesso ? QStringLiteral("02") : QStringLiteral("01");
    const QString sNome = bComplesso ? QStringLiteral("Archivio Guinigi")
                                     : QStringLiteral("Archivio di Stato di Lucca");
    // The element and its detail row are made; the record's own writing is refused.
    if (bComplesso) {
        RifiutaAggiornamenti(a, QStringLiteral("ComplessiDoc"),
                             QStringLiteral("DescrizioneEstremi"));
    } else {
        RifiutaAggiornamenti(a, QStringLiteral("Istituti"), QStringLiteral("Telefono"));
    }
    frmStrutturaCD f;
    if (bComplesso) {
        Scegli(f, ist);
        f.cmdNuovoCD->click();
        QVERIFY(CompilaComplesso(f.fraComplesso, sNome, QStringLiteral("3")));
    } else {
        f.cmdNuovoIst->click();
        CompilaIstituto(f.fraIstituto, sNome);
    }
    f.cmdConferma->click();

    // The failure is told, and goes no further: the window is back in "mostra" on the new node.
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi().at(0).icona, Icona::Critica);
    QVERIFY(
        a.piattaforma.Messaggi().at(0).sTesto.contains(QStringLiteral("Salvataggio rifiutato")));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(f.cmdConferma->isHidden());
    QVERIFY(f.tvwDB->isEnabled());
    QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());

    // One row of Elementi, with the name typed, and its node.
    QSqlQuery righe = a.cnn().Esegui(
        QStringLiteral("SELECT ID_Elemento, Denominazione FROM Elementi WHERE Tipologia = ?"),
        {sTipologia});
    QVERIFY(righe.next());
    const qint64 id = righe.value(0).toLongLong();
    QCOMPARE(righe.value(1).toString(), sNome);
    QVERIFY(righe.value(1).toString() != QString(10, u' '));
    QVERIFY(!righe.next());
    QCOMPARE(Selezionato(f), id);
    QCOMPARE(f.Modello().Testo(f.tvwDB->currentIndex()), sNome);
    const QWidget* editore =
        bComplesso ? static_cast<QWidget*>(f.fraComplesso) : static_cast<QWidget*>(f.fraIstituto);
    QVERIFY(!Riga(editore, 0)->isEnabled());
}

void TestStrutturaCD::annullaInNuovoLasciaLAlberoComEraEMostraIlPadre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    a.Crea("02", QStringLiteral("Fondo"), ist);
    frmStrutturaCD f;
    Scegli(f, ist);
    const QString prima = Pulsanti4(f);
    f.cmdNuovoCD->click();
    QVERIFY(f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    QVERIFY(!f.fraComplesso->isHidden());
    f.cmdAnnulla->click();
    QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    QCOMPARE(TestiFigli(f.Modello(), f.Modello().Trova(ist)), QStringList{QStringLiteral("Fondo")});
    QCOMPARE(Selezionato(f), qint64(ist));
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(!f.fraIstituto->isHidden());
    QVERIFY(f.tvwDB->isEnabled());
    QVERIFY(f.cmdAnnulla->isHidden());
    QCOMPARE(Pulsanti4(f), prima);
    QCOMPARE(a.Righe("Elementi"), 2);
}

void TestStrutturaCD::unNuovoComplessoSottoUnComplessoHaQuelPadre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    frmStrutturaCD f;
    Scegli(f, fondo);
    QCOMPARE(f.cmdNuovoCD->isEnabled(), f.fraComplesso->OkNuovoComplesso);
    f.cmdNuovoCD_Click();
    const QModelIndex temp = f.Modello().Trova(ModelloAlbero::IdTemporaneo);
    QCOMPARE(f.Modello().Id(temp.parent()), qint64(fondo));
    QCOMPARE(f.Modello().Immagine(temp), QStringLiteral("nolink"));
    QCOMPARE(f.Modello().Tag(temp), QStringLiteral("02"));
    // The parent's tag "02" makes the record propose the level "04" (serie).
    auto* livello = f.fraComplesso->findChild<QComboBox*>(QStringLiteral("cmbTipologiaCD"));
    QVERIFY2(livello != nullptr, "ucComplesso has no cmbTipologiaCD");
    QCOMPARE(livello->currentData().toInt(), 4);
    QVERIFY2(CompilaComplesso(f.fraComplesso, QStringLiteral("Serie prima"), QStringLiteral("3")),
             "ucComplesso lacks its mandatory fields");
    f.cmdConferma->click();
    const qint64 id = Selezionato(f);
    QVERIFY(id > 0 && id != ModelloAlbero::IdTemporaneo);
    QCOMPARE(f.Modello().Id(f.tvwDB->currentIndex().parent()), qint64(fondo));
    QCOMPARE(f.Modello().Testo(f.tvwDB->currentIndex()), QStringLiteral("Serie prima"));
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ?"),
                      {L(id)})
                 .toLongLong(),
             qint64(fondo));
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Denominazione FROM ComplessiDoc WHERE ID_Elemento = ?"),
                 {L(id)})
            .toString(),
        QStringLiteral("Serie prima"));
}

void TestStrutturaCD::ilPrimoInventarioCollegatoCambiaLImmagineSenzaRicaricare() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    frmStrutturaCD f;
    Scegli(f, fondo);
    // A node added behind the database's back shows that nothing is reloaded.
    f.Modello().Aggiungi(ist, 777777, QStringLiteral("Solo nell'albero"), QStringLiteral("nolink"),
                         QStringLiteral("02"));
    Sessione::iEsitoLinkInv = 1;
    ChiamanteComplesso& chiamante = f;
    chiamante.ChkLinks();
    QCOMPARE(f.Modello().Immagine(f.Modello().Trova(fondo)), QStringLiteral("silink"));
    QVERIFY(f.Modello().Trova(777777).isValid());
    QCOMPARE(Selezionato(f), qint64(fondo));
    Sessione::iEsitoLinkSogg = 1;
    chiamante.ChkSogg();
    QCOMPARE(f.Modello().Immagine(f.Modello().Trova(fondo)), QStringLiteral("islink"));
    Sessione::iEsitoLinkInv = 2;
    chiamante.ChkLinks();
    QCOMPARE(f.Modello().Immagine(f.Modello().Trova(fondo)), QStringLiteral("slink"));
    Sessione::iEsitoLinkSogg = 2;
    chiamante.ChkSogg();
    QCOMPARE(f.Modello().Immagine(f.Modello().Trova(fondo)), QStringLiteral("nolink"));
    Sessione::iEsitoLinkInv = 0;
    Sessione::iEsitoLinkSogg = 0;
}

void TestStrutturaCD::getDenonDaIlTestoDelNodoScelto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo Guinigi"), ist);
    frmStrutturaCD f;
    Scegli(f, fondo);
    ChiamanteComplesso& chiamante = f;
    QCOMPARE(chiamante.GetDenon(), QStringLiteral("Fondo Guinigi"));
    Scegli(f, ist);
    QCOMPARE(chiamante.GetDenon(), QStringLiteral("Archivio"));
}

void TestStrutturaCD::cancellaConNoLasciaTuttoComEra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    frmStrutturaCD f;
    Scegli(f, fondo);
    a.piattaforma.risposte = {Risposta::No};
    f.cmdCancella_Click();
    const QList<Messaggio> domande = a.piattaforma.Messaggi();
    QCOMPARE(domande.size(), 1);
    QCOMPARE(domande[0].sTesto,
             QStringLiteral("Sei sicuro di voler cancellare il Complesso documentario?"));
    QVERIFY(domande[0].sTitolo.startsWith(QStringLiteral("Cancella Complesso documentario: ")));
    QCOMPARE(domande[0].icona, Icona::Domanda);
    QCOMPARE(domande[0].pulsanti, Pulsanti::SiNo);
    QVERIFY(f.Modello().Trova(fondo).isValid());
    QCOMPARE(Selezionato(f), qint64(fondo));
    QCOMPARE(a.Righe("ComplessiDoc"), 1);

    Scegli(f, ist);
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::No};
    f.cmdCancella_Click();
    QCOMPARE(a.piattaforma.Messaggi().value(0).sTesto,
             QStringLiteral("Sei sicuro di voler cancellare l'Istituto?"));
    QCOMPARE(a.piattaforma.Messaggi().value(0).sTitolo,
             QStringLiteral("Cancella Istituto: Archivio"));
    QCOMPARE(a.Righe("Istituti"), 1);
}

void TestStrutturaCD::cancellaUnComplessoConFigliDaErroreT4ELasciaIlNodo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    const long serie = a.Crea("02", QStringLiteral("Serie"), fondo);
    frmStrutturaCD f;
    Scegli(f, fondo);
    // The record forbids it (the button); the database refuses it anyway.
    a.piattaforma.risposte = {Risposta::Si};
    f.cmdCancella_Click();
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore T4"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QCOMPARE(errori[0].sTesto.count(u'\n'), 2);
    QVERIFY(f.Modello().Trova(fondo).isValid());
    QVERIFY(f.Modello().Trova(serie).isValid());
    QCOMPARE(a.Righe("ComplessiDoc"), 2);
}

void TestStrutturaCD::laDenominazioneSiLeggeInteraEAllargaConLaCornice() {
    Ambiente a(TipoBackend::SQLite);
    const long ist = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
    const long fondo = a.Crea("02", QStringLiteral("Archivio Guinigi"), ist);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    principale->findChild<QAction*>(QStringLiteral("mnuComplessiDoc"))->trigger();
    QPointer<frmStrutturaCD> f = principale->findChild<frmStrutturaCD*>();
    QVERIFY(f);
    const auto assesta = [] {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            QCoreApplication::processEvents();
        }
    };

    // At the size the frame has in the window opened from the menu, each editor's denomination
    // shows whole.
    Scegli(*f, ist);
    assesta();
    QLineEdit* istituto = Riga(f->fraIstituto, 0);
    QCOMPARE(istituto->text(), QStringLiteral("Archivio di Stato di Lucca"));
    QVERIFY2(TestoIntero(istituto), qPrintable(QString::number(istituto->width())));
    Scegli(*f, fondo);
    assesta();
    QLineEdit* complesso = Riga(f->fraComplesso, 0);
    QCOMPARE(complesso->text(), QStringLiteral("Archivio Guinigi"));
    QVERIFY2(TestoIntero(complesso), qPrintable(QString::number(complesso->width())));
    // The box takes the width that its editor has: no narrower than the boxes of the tab below.
    const QLineEdit* estremi = Riga(f->fraComplesso, 8);
    QVERIFY(estremi->isVisible());
    QVERIFY(complesso->width() >= estremi->width());

    // A wider frame, a wider box.
    const int prima = complesso->width();
    principale->resize(principale->width() + 300, principale->height());
    assesta();
    QVERIFY2(complesso->width() >= prima + 100,
             qPrintable(QStringLiteral("%1 -> %2").arg(prima).arg(complesso->width())));
}

void TestStrutturaCD::laStradaCompletaDalMenu() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    // The global unit of worth.
    Sessione::dValore = 2.0;
    a.piattaforma.Svuota();

    principale->findChild<QAction*>(QStringLiteral("mnuComplessiDoc"))->trigger();
    QVERIFY(Sessione::bFrmStrutturaCDAperto);
    QPointer<frmStrutturaCD> f = principale->findChild<frmStrutturaCD*>();
    QVERIFY(f);
    QCOMPARE(f->objectName(), QStringLiteral("frmStrutturaCD"));
    QCOMPARE(f->Modello().Nodi(), 1);

    // An institute at the root.
    const qint64 ist = NuovoIstitutoNellaFinestra(*f, QStringLiteral("Archivio di Stato di Lucca"));
    QVERIFY(ist > 0);
    QCOMPARE(f->Modello().Immagine(f->Modello().Trova(ist)), QStringLiteral("istituto"));
    QCOMPARE(Pulsanti4(*f), QStringLiteral("1110"));

    // A complesso under it.
    f->cmdNuovoCD->click();
    QVERIFY2(
        CompilaComplesso(f->fraComplesso, QStringLiteral("Fondo Guinigi"), QStringLiteral("10")),
        "ucComplesso lacks its mandatory fields");
    f->cmdConferma->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    const qint64 fondo = Selezionato(*f);
    QVERIFY(fondo > 0 && fondo != ModelloAlbero::IdTemporaneo);
    QCOMPARE(f->Modello().Testo(f->Modello().Trova(fondo)), QStringLiteral("Fondo Guinigi"));
    QCOMPARE(f->Modello().Immagine(f->Modello().Trova(fondo)), QStringLiteral("nolink"));
    QCOMPARE(f->Modello().Id(f->Modello().Trova(fondo).parent()), ist);
    QCOMPARE(Pulsanti4(*f), QStringLiteral("0111"));

    // One under that.
    f->cmdNuovoCD->click();
    QVERIFY(CompilaComplesso(f->fraComplesso, QStringLiteral("Carteggio"), QStringLiteral("4")));
    f->cmdConferma->click();
    const qint64 serie = Selezionato(*f);
    QCOMPARE(f->Modello().Id(f->Modello().Trova(serie).parent()), fondo);
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT QuantitaFigli FROM ComplessiDoc WHERE ID_Elemento = ?"),
                 {L(fondo)})
            .toDouble(),
        4.0);
    QCOMPARE(a.Valore(QStringLiteral("SELECT Quantita FROM ComplessiDoc WHERE ID_Elemento = ?"),
                      {L(serie)})
                 .toDouble(),
             4.0);

    // The worth carried up is the database's: the parent's ValoreFigli is the son's Valore.
    QCOMPARE(a.Valore(QStringLiteral("SELECT ValoreFigli FROM ComplessiDoc WHERE ID_Elemento = ?"),
                      {L(fondo)})
                 .toDouble(),
             a.Valore(QStringLiteral("SELECT Valore FROM ComplessiDoc WHERE ID_Elemento = ?"),
                      {L(serie)})
                 .toDouble());

    // A change of the name, saved.
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    Riga(f->fraComplesso, 0)->setText(QStringLiteral("Carteggio Guinigi"));
    f->cmdConferma->click();
    QCOMPARE(f->Modello().Testo(f->Modello().Trova(serie)), QStringLiteral("Carteggio Guinigi"));
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Denominazione FROM ComplessiDoc WHERE ID_Elemento = ?"),
                 {L(serie)})
            .toString(),
        QStringLiteral("Carteggio Guinigi"));

    // A change cancelled.
    f->cmdModifica->click();
    Riga(f->fraComplesso, 0)->setText(QStringLiteral("Da buttare"));
    f->cmdAnnulla->click();
    QCOMPARE(Riga(f->fraComplesso, 0)->text(), QStringLiteral("Carteggio Guinigi"));
    QCOMPARE(f->Modello().Testo(f->Modello().Trova(serie)), QStringLiteral("Carteggio Guinigi"));

    // The delete, from the bottom up.
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QVERIFY(!f->Modello().Trova(serie).isValid());
    QCOMPARE(Selezionato(*f), fondo);
    QCOMPARE(a.Righe("ComplessiDoc"), 1);
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT QuantitaFigli FROM ComplessiDoc WHERE ID_Elemento = ?"),
                 {L(fondo)})
            .toDouble(),
        0.0);
    QVERIFY(f->cmdCancella->isEnabled());
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QVERIFY(!f->Modello().Trova(fondo).isValid());
    QCOMPARE(Selezionato(*f), ist);
    QCOMPARE(a.Righe("ComplessiDoc"), 0);
    QCOMPARE(a.Righe("Elementi"), 1);
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore T4")).isEmpty());

    ChiusuraERiaperturaDalMenu(*principale, f, "mnuComplessiDoc", Sessione::bFrmStrutturaCDAperto);
    principale.reset();
}

void TestStrutturaCD::laDescrizioneDelTipoGuidaIPulsantiDaiFlagDellEditore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    FinestraUnTipo f;
    // The root is shown by the kind as one of its other Tags.
    QCOMPARE(f.sTipo, QStringLiteral("sede"));
    QVERIFY(!f.fraIstituto->isHidden());
    QVERIFY(!f.fraIstituto->OkNuovoComplesso);
    QVERIFY(f.fraIstituto->OkNuovoIstituto);
    QCOMPARE(f.Pulsanti3(), QStringLiteral("011"));
    QVERIFY(f.cmdSempre->isEnabled());
    QCOMPARE(f.pulsantiImpostati, QList<qint64>{0});
    f.SelezionaNodo(f.Modello().Trova(ist));
    QVERIFY(f.fraIstituto->OkNuovoComplesso);
    QCOMPARE(f.Pulsanti3(), QStringLiteral("111"));
    QCOMPARE(f.pulsantiImpostati, (QList<qint64>{0, ist}));
    // While editing the commands are hidden, and they come back after Annulla.
    f.Modifica();
    QCOMPARE(f.sStato, QStringLiteral("modifica"));
    QVERIFY(f.cmdPrimo->isHidden());
    QVERIFY(f.cmdLibero->isHidden());
    f.Annulla();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(!f.cmdPrimo->isHidden());
    QCOMPARE(f.Pulsanti3(), QStringLiteral("111"));
    f.SelezionaNodo(f.Modello().Radice());
    QCOMPARE(f.Pulsanti3(), QStringLiteral("011"));
}

void TestStrutturaCD::laDescrizioneDelTipoDaDomandaETitoloDellaCancellazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    FinestraUnTipo f;
    // The root is not the kind's own Tag: it is not deleted, nothing is asked.
    f.Cancella();
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    f.SelezionaNodo(f.Modello().Trova(ist));
    a.piattaforma.risposte = {Risposta::No};
    f.Cancella();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    const Messaggio domanda = a.piattaforma.Messaggi().first();
    QCOMPARE(domanda.sTesto, QStringLiteral("Togliere davvero questa sede?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Via la sede: Archivio"));
    QCOMPARE(domanda.icona, Icona::Domanda);
    QCOMPARE(domanda.pulsanti, Pulsanti::SiNo);
    QCOMPARE(a.Righe("Istituti"), 1);

    // A child makes the delete fail: the box has the kind's title and the node stays.
    const long figlio = a.Crea("01", QStringLiteral("Sede staccata"), ist);
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f.Cancella();
    QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore di prova")).size(), 1);
    QVERIFY(f.Modello().Trova(ist).isValid());
    QCOMPARE(a.Righe("Istituti"), 2);

    a.cnn().Esegui(QStringLiteral("UPDATE Elementi SET ID_ElementoPadre = NULL "
                                  "WHERE ID_Elemento = ?"),
                   {L(figlio)});
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f.Cancella();
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore di prova")).isEmpty());
    QVERIFY(!f.Modello().Trova(ist).isValid());
    QCOMPARE(f.tvwDB->currentIndex(), f.Modello().Radice());
    QCOMPARE(a.Righe("Istituti"), 1);
}

void TestStrutturaCD::laDescrizioneDelTipoDaImmagineETagDelNuovoNodo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    FinestraUnTipo f;
    // The kind's own New command starts it, Conferma of the window ends it.
    f.cmdNuovaSede->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(f.cmdNuovaSede->isHidden());
    const QModelIndex temp = f.Modello().Trova(ModelloAlbero::IdTemporaneo);
    QVERIFY(temp.isValid());
    QCOMPARE(f.Modello().Immagine(temp), QStringLiteral("root"));
    QCOMPARE(f.Modello().Tag(temp), QStringLiteral("01"));
    CompilaIstituto(f.fraIstituto, QStringLiteral("Archivio di Stato di Pisa"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(!f.cmdNuovaSede->isHidden());
    // The commands were set after the save, and then by the click on the new node.
    QCOMPARE(f.pulsantiImpostati.size(), 3);
    const QModelIndex nodo = f.tvwDB->currentIndex();
    QVERIFY(f.Modello().Id(nodo) > 0);
    QCOMPARE(f.Modello().Immagine(nodo), QStringLiteral("root"));
    QCOMPARE(f.Modello().Tag(nodo), QStringLiteral("01"));
    QCOMPARE(f.Modello().Testo(nodo), QStringLiteral("Archivio di Stato di Pisa"));
    QCOMPARE(a.Valore(QStringLiteral("SELECT Tipologia FROM Elementi WHERE ID_Elemento = ?"),
                      {L(f.Modello().Id(nodo))})
                 .toString(),
             QStringLiteral("01"));
    // A Tag the window does not describe makes nothing.
    f.Nuovo(QStringLiteral("02"));
    QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    f.Annulla();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
}

QTEST_MAIN(TestStrutturaCD)
#include "tst_strutturacd.moc"
