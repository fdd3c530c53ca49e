// The main window: its menus, the rule of one main child window at a time, the modal tools
// and the help books.

#include "programma/Registro.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "structure/frmStrutturaCD.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"
#include "RuoloProva.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QtTest>

namespace {

const char* const FinestreDiProva[] = {"frmStrutturaCD", "frmStrutturaIN", "frmSoggetti",
                                       "frmRegistroPC",  "frmAntroponimi", "frmToponimi",
                                       "frmTitolari"};

// A stand-in for a main child window: an empty widget with a title.
QWidget* FinestraFinta(const QString& sNome) {
    auto* finestra = new QWidget;
    finestra->setWindowTitle(sNome);
    return finestra;
}

// Another window for a menu entry, in place of the stand-in, for one test.
class FinestraSostituita {
public:
    FinestraSostituita(QString nome, PrimoMDI::Fabbrica fabbrica)
        : sNome(std::move(nome)) {
        PrimoMDI::RegistraFinestra(sNome, std::move(fabbrica));
    }
    ~FinestraSostituita() {
        PrimoMDI::RegistraFinestra(sNome, [n = sNome](PrimoMDI*) { return FinestraFinta(n); });
    }
    FinestraSostituita(const FinestraSostituita&) = delete;
    FinestraSostituita& operator=(const FinestraSostituita&) = delete;

private:
    QString sNome;
};

// A window that raises as it comes on the screen, as one whose first showing reads a file of
// the program folder that is not there.
class FinestraCheFallisceAllaComparsa : public QWidget {
protected:
    void showEvent(QShowEvent*) override {
        throw Errore(QStringLiteral("frmRegistroPC"), QStringLiteral("File non trovato: Sedi.txt"));
    }
};

QStringList FinestreAperte(const PrimoMDI& principale) {
    QStringList nomi;
    const auto finestre = principale.Area()->subWindowList(QMdiArea::CreationOrder);
    for (const QMdiSubWindow* sotto : finestre) {
        if (sotto->widget() != nullptr) {
            nomi.append(sotto->widget()->objectName());
        }
    }
    return nomi;
}

QAction* Azione(const PrimoMDI& principale, const char* nome) {
    return principale.findChild<QAction*>(QLatin1String(nome));
}

} // namespace

class TestFinestraPrincipale : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void iMenuStannoInOrdineConDidascalieETastiDAccesso();
    void primaDellAccessoLeVociDellaSessioneNonSiPossonoScegliere();
    void unaVoceSenzaFinestraNonApreNulla();
    void unSecondoClicSuComplessiDocumentariNonCambiaNulla();
    void strumRicercaChiudeComplessiDocumentariEApreLaSua();
    void ogniVoceFigliaSostituisceLaFinestraAperta();
    void laChiusuraDiUnaFinestraRiattivaLaSuaVoce();
    void personeAzzeraIlChiamanteDegliAntroponimi();
    void scaricaNonToccaLeFinestreFuoriElenco();
    void gliStrumentiSonoModaliENonDisturbanoLaFinestraAperta();
    void exportOImportRestaNonDisponibilePerIlTipoDiSito_data();
    void exportOImportRestaNonDisponibilePerIlTipoDiSito();
    void iManualiSiApronoDalPercorsoDiMenuTxt();
    void ilManualeDeiPuntiDAccessoNonSiPuoScegliere();
    void aggiornaVersioneChiedeAncheConVersioneUguale();
    void aggiornaVersioneConSiAvviaLoStrumento();
    void unaFinestraCheNonSiPuoAprireDaUnBoxERestaChiusa();
    void complessiDocumentariSuTabelleIlleggibiliDaUnBoxENonFermaIlProgramma_data();
    void complessiDocumentariSuTabelleIlleggibiliDaUnBoxENonFermaIlProgramma();

private:
    std::unique_ptr<PiattaformaScriptata> seam;
    std::unique_ptr<CartellaProva> cartella;
    std::unique_ptr<BancaDatiProva> banca;
    std::unique_ptr<PrimoMDI> principale;
    std::unique_ptr<RuoloProva> ruolo;
    void Avvia(const QString& sTipoSito = QStringLiteral("I"));
};

void TestFinestraPrincipale::initTestCase() {
    for (const char* nome : FinestreDiProva) {
        const QString sNome = QLatin1String(nome);
        PrimoMDI::RegistraFinestra(sNome, [sNome](PrimoMDI*) { return FinestraFinta(sNome); });
    }
    // The program's own dialogs of the menus; its windows of the list above stay stand-ins.
    RegistraFinestreProgramma();
}

void TestFinestraPrincipale::cleanupTestCase() {
    for (const char* nome : FinestreDiProva) {
        PrimoMDI::RimuoviFinestra(QLatin1String(nome));
    }
}

void TestFinestraPrincipale::init() {
    seam = std::make_unique<PiattaformaScriptata>();
    cartella = std::make_unique<CartellaProva>();
    banca = std::make_unique<BancaDatiProva>(TipoBackend::SQLite);
}

void TestFinestraPrincipale::cleanup() {
    principale.reset();
    Sessione::ChiudiConnessione();
    ruolo.reset();
    banca.reset();
    cartella.reset();
    seam.reset();
}

void TestFinestraPrincipale::Avvia(const QString& sTipoSito) {
    cartella->ScriviSito(banca->Testa(), banca->Server(), banca->Database(), sTipoSito);
    principale = std::make_unique<PrimoMDI>();
    QVERIFY(AvviaSessione(*principale, *banca));
    seam->Svuota();
}

void TestFinestraPrincipale::iMenuStannoInOrdineConDidascalieETastiDAccesso() {
    principale = std::make_unique<PrimoMDI>();
    QStringList barra;
    for (const QAction* azione : principale->menuBar()->actions()) {
        barra.append(azione->objectName() + QLatin1Char('=') + azione->text());
    }
    QCOMPARE(barra, (QStringList{
                        QStringLiteral("mnuComplessiDoc=&Complessi documentari"),
                        QStringLiteral("mnuInventari=&Strum. ricerca"),
                        QStringLiteral("mnuSoggetti=&Produttori"),
                        QStringLiteral("mnuRegistro=&Nuove acquisizioni"),
                        QStringLiteral("mnuAccesso=P&unti d'accesso"),
                        QStringLiteral("mnuStrumenti=S&trumenti"),
                        QStringLiteral("mnuHelp=?"),
                    }));
    auto voci = [&](const char* menu) {
        QStringList elenco;
        for (const QAction* azione : Azione(*principale, menu)->menu()->actions()) {
            elenco.append(azione->objectName() + QLatin1Char('=') + azione->text());
        }
        return elenco;
    };
    QCOMPARE(voci("mnuAccesso"), (QStringList{QStringLiteral("mnuAntroponimi=&Persone"),
                                              QStringLiteral("mnuToponimi=&Toponimi"),
                                              QStringLiteral("mnuTitolari=&Titolari")}));
    QCOMPARE(voci("mnuStrumenti"),
             (QStringList{QStringLiteral("mnuIndicizzazioneWeb=I&ndicizzazione web"),
                          QStringLiteral("mnuBackup=&Backup"), QStringLiteral("mnuExport=&Export"),
                          QStringLiteral("mnuImport=&Import"),
                          QStringLiteral("mnuAggiorna=&Aggiorna versione"),
                          QStringLiteral("mnuAggValore=&Aggiorna Valore"),
                          QStringLiteral("mnuTabellaID=&Tabella Config"),
                          QStringLiteral("mnuFine=&Fine")}));
    QCOMPARE(voci("mnuHelp"), (QStringList{QStringLiteral("mnuHlpIST=Scheda Istituto"),
                                           QStringLiteral("mnuHlpCD=Complessi documentari"),
                                           QStringLiteral("mnuHlpINV=Strum. ricerca"),
                                           QStringLiteral("mnuHlpSOG=Produttore"),
                                           QStringLiteral("mnuHlpVER=Nuove acquisizioni"),
                                           QStringLiteral("mnuHlpATT=Punti d'accesso"),
                                           QStringLiteral("mnuHlpSTR=Strumenti")}));
}

void TestFinestraPrincipale::primaDellAccessoLeVociDellaSessioneNonSiPossonoScegliere() {
    principale = std::make_unique<PrimoMDI>();
    for (const char* nome :
         {"mnuComplessiDoc", "mnuInventari", "mnuSoggetti", "mnuRegistro", "mnuStrumenti"}) {
        QVERIFY2(!Azione(*principale, nome)->isEnabled(), nome);
    }
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QVERIFY(FinestreAperte(*principale).isEmpty());
    QVERIFY(!Sessione::bFrmStrutturaCDAperto);
}

void TestFinestraPrincipale::unaVoceSenzaFinestraNonApreNulla() {
    Avvia();
    PrimoMDI::RimuoviFinestra(QStringLiteral("frmSoggetti"));
    Azione(*principale, "mnuComplessiDoc")->trigger();
    Azione(*principale, "mnuSoggetti")->trigger();
    QCOMPARE(FinestreAperte(*principale), QStringList{QStringLiteral("frmStrutturaCD")});
    QVERIFY(!Sessione::bFrmSoggettiAperto);
    QVERIFY(seam->chiamate.isEmpty());
    initTestCase();
}

void TestFinestraPrincipale::unSecondoClicSuComplessiDocumentariNonCambiaNulla() {
    Avvia();
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QVERIFY(Sessione::bFrmStrutturaCDAperto);
    QPointer<QMdiSubWindow> prima = principale->Area()->subWindowList().value(0);
    QVERIFY(prima);
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(principale->Area()->subWindowList().size(), 1);
    QCOMPARE(principale->Area()->subWindowList().value(0), prima.data());
}

void TestFinestraPrincipale::strumRicercaChiudeComplessiDocumentariEApreLaSua() {
    Avvia();
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QPointer<QWidget> complessi = principale->Area()->subWindowList().value(0)->widget();
    // Whatever state the window is in, it goes without a word.
    complessi->setWindowModified(true);
    Azione(*principale, "mnuInventari")->trigger();
    QCoreApplication::processEvents();
    QVERIFY(!complessi);
    QCOMPARE(FinestreAperte(*principale), QStringList{QStringLiteral("frmStrutturaIN")});
    QVERIFY(!Sessione::bFrmStrutturaCDAperto);
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    QVERIFY(seam->chiamate.isEmpty());
}

void TestFinestraPrincipale::ogniVoceFigliaSostituisceLaFinestraAperta() {
    Avvia();
    const struct {
        const char* voce;
        const char* finestra;
        bool* flag;
    } voci[] = {
        {"mnuComplessiDoc", "frmStrutturaCD", &Sessione::bFrmStrutturaCDAperto},
        {"mnuInventari", "frmStrutturaIN", &Sessione::bFrmStrutturaINAperto},
        {"mnuSoggetti", "frmSoggetti", &Sessione::bFrmSoggettiAperto},
        {"mnuRegistro", "frmRegistroPC", &Sessione::bFrmRegistroPCAperto},
        {"mnuAntroponimi", "frmAntroponimi", &Sessione::bFrmAntroponimiAperto},
        {"mnuToponimi", "frmToponimi", &Sessione::bFrmToponimiAperto},
        {"mnuTitolari", "frmTitolari", &Sessione::bFrmTitolariAperto},
    };
    for (const auto& voce : voci) {
        Azione(*principale, voce.voce)->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(FinestreAperte(*principale), QStringList{QLatin1String(voce.finestra)});
        for (const auto& altra : voci) {
            QCOMPARE(*altra.flag, &altra == &voce);
        }
    }
}

void TestFinestraPrincipale::laChiusuraDiUnaFinestraRiattivaLaSuaVoce() {
    Avvia();
    Azione(*principale, "mnuToponimi")->trigger();
    QVERIFY(Sessione::bFrmToponimiAperto);
    principale->Area()->subWindowList().value(0)->close();
    QVERIFY(QTest::qWaitFor([&] { return !Sessione::bFrmToponimiAperto; }));
    QVERIFY(FinestreAperte(*principale).isEmpty());
    Azione(*principale, "mnuToponimi")->trigger();
    QCOMPARE(FinestreAperte(*principale), QStringList{QStringLiteral("frmToponimi")});
}

void TestFinestraPrincipale::personeAzzeraIlChiamanteDegliAntroponimi() {
    Avvia();
    Sessione::iChiamanteAntroponimi = 2;
    Azione(*principale, "mnuAntroponimi")->trigger();
    QCOMPARE(Sessione::iChiamanteAntroponimi, 0);
}

void TestFinestraPrincipale::scaricaNonToccaLeFinestreFuoriElenco() {
    Avvia();
    auto* altra = new QWidget;
    altra->setObjectName(QStringLiteral("frmMostraLinkCD"));
    principale->MostraFiglia(altra);
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QCOMPARE(FinestreAperte(*principale),
             (QStringList{QStringLiteral("frmMostraLinkCD"), QStringLiteral("frmStrutturaCD")}));
    principale->Scarica();
    QCOMPARE(FinestreAperte(*principale), QStringList{QStringLiteral("frmMostraLinkCD")});
    QVERIFY(!Sessione::bFrmStrutturaCDAperto);
}

void TestFinestraPrincipale::gliStrumentiSonoModaliENonDisturbanoLaFinestraAperta() {
    Avvia();
    Azione(*principale, "mnuComplessiDoc")->trigger();
    bool eraModale = false;
    Dialoghi::Registra(QStringLiteral("frmConfig"),
                       [&](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                           auto* dialogo = new QDialog(genitore);
                           dialogo->setObjectName(QStringLiteral("frmConfig"));
                           QTimer::singleShot(0, dialogo, [dialogo, &eraModale] {
                               eraModale = dialogo->isModal() &&
                                           QApplication::activeModalWidget() == dialogo;
                               dialogo->accept();
                           });
                           return dialogo;
                       });
    Azione(*principale, "mnuTabellaID")->trigger();
    Dialoghi::Rimuovi(QStringLiteral("frmConfig"));
    QVERIFY(eraModale);
    QCOMPARE(FinestreAperte(*principale), QStringList{QStringLiteral("frmStrutturaCD")});
    QVERIFY(Sessione::bFrmStrutturaCDAperto);
}

void TestFinestraPrincipale::exportOImportRestaNonDisponibilePerIlTipoDiSito_data() {
    QTest::addColumn<QString>("sito");
    QTest::addColumn<bool>("esporta");
    QTest::addColumn<bool>("importa");
    QTest::newRow("I importa") << QStringLiteral("I") << false << true;
    QTest::newRow("S esporta") << QStringLiteral("S") << true << false;
    // Any other first character leaves the site as it was at start, which is not "I".
    QTest::newRow("altro") << QStringLiteral("X") << true << false;
}

void TestFinestraPrincipale::exportOImportRestaNonDisponibilePerIlTipoDiSito() {
    QFETCH(QString, sito);
    QFETCH(bool, esporta);
    QFETCH(bool, importa);
    Avvia(sito);
    QCOMPARE(Azione(*principale, "mnuExport")->isEnabled(), esporta);
    QCOMPARE(Azione(*principale, "mnuImport")->isEnabled(), importa);
}

void TestFinestraPrincipale::iManualiSiApronoDalPercorsoDiMenuTxt() {
    Avvia();
    const struct {
        const char* voce;
        const char* file;
    } guide[] = {{"mnuHlpIST", "Uno.pdf"},    {"mnuHlpCD", "Due.pdf"},
                 {"mnuHlpINV", "Tre.pdf"},    {"mnuHlpSOG", "Quattro.pdf"},
                 {"mnuHlpVER", "Cinque.pdf"}, {"mnuHlpSTR", "Sei.pdf"}};
    for (const auto& guida : guide) {
        Azione(*principale, guida.voce)->trigger();
    }
    const QList<Chiamata> aperte = seam->Chiamate(QStringLiteral("guida"));
    QCOMPARE(aperte.size(), 6);
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(aperte[i].sPercorso, cartella->File(QLatin1String(guide[i].file)));
    }
}

void TestFinestraPrincipale::ilManualeDeiPuntiDAccessoNonSiPuoScegliere() {
    Avvia();
    QAction* att = Azione(*principale, "mnuHlpATT");
    QVERIFY(!att->isEnabled());
    att->trigger();
    QVERIFY(seam->chiamate.isEmpty());
}

void TestFinestraPrincipale::aggiornaVersioneChiedeAncheConVersioneUguale() {
    banca->Apri()->Esegui(QStringLiteral("UPDATE Config SET Versione = 3.2"));
    Avvia();
    seam->risposte = {Risposta::No};
    Azione(*principale, "mnuAggiorna")->trigger();
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Aggiorna versione DB"));
    QCOMPARE(box.icona, Icona::Domanda);
    QCOMPARE(box.predefinita, Risposta::No);
    QCOMPARE(box.sTesto.split(QStringLiteral("\r\n")),
             (QStringList{QStringLiteral("Versione trovata: 3,2"),
                          QStringLiteral("Versione richiesta: 3.2"),
                          QStringLiteral("Vuoi aggiornare la versione del DB?")}));
    QVERIFY(seam->Chiamate(QStringLiteral("processo")).isEmpty());
}

void TestFinestraPrincipale::aggiornaVersioneConSiAvviaLoStrumento() {
    Avvia();
    seam->risposte = {Risposta::Si};
    Azione(*principale, "mnuAggiorna")->trigger();
    const QList<Chiamata> processi = seam->Chiamate(QStringLiteral("processo"));
    QCOMPARE(processi.size(), 1);
    QCOMPARE(processi.constFirst().argomenti.value(9), cartella->File(QStringLiteral("alter.sql")));
}

void TestFinestraPrincipale::unaFinestraCheNonSiPuoAprireDaUnBoxERestaChiusa() {
    Avvia();
    Azione(*principale, "mnuToponimi")->trigger();
    QVERIFY(Sessione::bFrmToponimiAperto);
    {
        // A window whose making meets a refusal of the database.
        const FinestraSostituita rifiutata(
            QStringLiteral("frmSoggetti"), [](PrimoMDI*) -> QWidget* {
                throw Errore(QStringLiteral("frmSoggetti"),
                             QStringLiteral("permission denied for table soggetti"));
            });
        Azione(*principale, "mnuSoggetti")->trigger();
    }
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Errore T5"));
    QCOMPARE(box.icona, Icona::Critica);
    QCOMPARE(box.pulsanti, Pulsanti::Ok);
    QCOMPARE(box.sTesto, QStringLiteral("frmSoggetti\npermission denied for table soggetti"));
    // The window is not there and the one before was closed by the opening.
    QVERIFY(!Sessione::bFrmSoggettiAperto);
    QVERIFY(!Sessione::bFrmToponimiAperto);
    QCoreApplication::processEvents();
    QVERIFY(FinestreAperte(*principale).isEmpty());

    {
        // A window that fails while it is being shown: neither it nor its frame stays.
        const FinestraSostituita mostrata(QStringLiteral("frmRegistroPC"), [](PrimoMDI*) {
            return new FinestraCheFallisceAllaComparsa;
        });
        Azione(*principale, "mnuRegistro")->trigger();
    }
    QCOMPARE(seam->Messaggi().size(), 2);
    QCOMPARE(seam->Messaggi()[1].sTitolo, QStringLiteral("Errore T5"));
    QCOMPARE(seam->Messaggi()[1].sTesto,
             QStringLiteral("frmRegistroPC\nFile non trovato: Sedi.txt"));
    QVERIFY(!Sessione::bFrmRegistroPCAperto);
    QCoreApplication::processEvents();
    QVERIFY(principale->Area()->subWindowList().isEmpty());

    // The entries work again.
    Azione(*principale, "mnuSoggetti")->trigger();
    QCOMPARE(FinestreAperte(*principale), QStringList{QStringLiteral("frmSoggetti")});
    QVERIFY(Sessione::bFrmSoggettiAperto);
    QCOMPARE(seam->Messaggi().size(), 2);
}

void TestFinestraPrincipale::
    complessiDocumentariSuTabelleIlleggibiliDaUnBoxENonFermaIlProgramma_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("tabella");
    QTest::addColumn<QString>("titolo");
    QTest::addColumn<bool>("aperta");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        const QString sNome = QLatin1String(nome);
        // A table that the editors read while the window opens: the window does not open.
        QTest::newRow(qPrintable(sNome + QStringLiteral(" CodiciIstituto")))
            << tipo << QStringLiteral("CodiciIstituto") << QStringLiteral("Errore T5") << false;
        // The tree's own view: the tree's box, and the window stays with an empty tree.
        QTest::newRow(qPrintable(sNome + QStringLiteral(" AlberoGlobale")))
            << tipo << QStringLiteral("AlberoGlobale") << QStringLiteral("Errore U5") << true;
    }
}

void TestFinestraPrincipale::complessiDocumentariSuTabelleIlleggibiliDaUnBoxENonFermaIlProgramma() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, tabella);
    QFETCH(QString, titolo);
    QFETCH(bool, aperta);
    RICHIEDI_BACKEND(backend);
    banca = std::make_unique<BancaDatiProva>(backend);
    QString utente = banca->Utente();
    QString password = banca->Password();
    if (backend == TipoBackend::SQLite) {
        // A file has no rights: the table is simply not there.
        banca->Apri()->Esegui((tabella == QStringLiteral("AlberoGlobale")
                                   ? QStringLiteral("DROP VIEW ")
                                   : QStringLiteral("DROP TABLE ")) +
                              tabella);
    } else {
        // A login that reads and writes every table but that one.
        ruolo = std::make_unique<RuoloProva>(*banca);
        QVERIFY(ruolo->Creato());
        QVERIFY(ruolo->Concedi(QStringLiteral(
            "GRANT SELECT, INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA public TO %1")));
        QVERIFY(ruolo->Concedi(QStringLiteral("REVOKE ALL ON ") + tabella +
                               QStringLiteral(" FROM %1")));
        utente = ruolo->Nome();
        password = RuoloProva::Password();
    }
    cartella->ScriviSito(banca->Testa(), banca->Server(), banca->Database());
    cartella->CopiaDalSito({QStringLiteral("Bitmap"), QStringLiteral("TipologiaIST.txt"),
                            QStringLiteral("TipologiaCD.txt")});
    // The program's own window.
    const FinestraSostituita vera(QStringLiteral("frmStrutturaCD"),
                                  [](PrimoMDI* p) { return new frmStrutturaCD(p); });
    principale = std::make_unique<PrimoMDI>();
    QVERIFY(AvviaSessione(*principale, utente, password));
    seam->Svuota();
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QCoreApplication::processEvents();

    const QList<Messaggio> boxes = seam->Messaggi();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].sTitolo, titolo);
    QCOMPARE(boxes[0].icona, Icona::Critica);
    QVERIFY2(boxes[0].sTesto.contains(tabella, Qt::CaseInsensitive), qPrintable(boxes[0].sTesto));
    QCOMPARE(Sessione::bFrmStrutturaCDAperto, aperta);
    QCOMPARE(FinestreAperte(*principale).size(), aperta ? 1 : 0);
    if (aperta) {
        // Nothing of the tree but its root.
        const auto* finestra = principale->findChild<frmStrutturaCD*>();
        QVERIFY(finestra);
        QCOMPARE(finestra->Modello().Nodi(), 1);
        return;
    }
    // The program goes on: its entry works again, and says the same.
    Azione(*principale, "mnuComplessiDoc")->trigger();
    QCOMPARE(seam->Messaggi().size(), 2);
    QCOMPARE(seam->Messaggi()[1].sTesto, boxes[0].sTesto);
    QVERIFY(!Sessione::bFrmStrutturaCDAperto);
    QVERIFY(principale->isVisible());
}

QTEST_MAIN(TestFinestraPrincipale)
#include "tst_finestraprincipale.moc"
