// The main window: its menus, the rule of one main child window at a time, the modal tools
// and the help books.

#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAction>
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

private:
    std::unique_ptr<PiattaformaScriptata> seam;
    std::unique_ptr<CartellaProva> cartella;
    std::unique_ptr<BancaDatiProva> banca;
    std::unique_ptr<PrimoMDI> principale;
    void Avvia(const QString& sTipoSito = QStringLiteral("I"));
};

void TestFinestraPrincipale::initTestCase() {
    for (const char* nome : FinestreDiProva) {
        const QString sNome = QLatin1String(nome);
        PrimoMDI::RegistraFinestra(sNome, [sNome](PrimoMDI*) { return FinestraFinta(sNome); });
    }
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
    PrimoMDI::RegistraFinestra(QStringLiteral("frmConfig"), [&](PrimoMDI* genitore) {
        auto* dialogo = new QDialog(genitore);
        dialogo->setObjectName(QStringLiteral("frmConfig"));
        QTimer::singleShot(0, dialogo, [dialogo, &eraModale] {
            eraModale = dialogo->isModal() && QApplication::activeModalWidget() == dialogo;
            dialogo->accept();
        });
        return dialogo;
    });
    Azione(*principale, "mnuTabellaID")->trigger();
    PrimoMDI::RimuoviFinestra(QStringLiteral("frmConfig"));
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

QTEST_MAIN(TestFinestraPrincipale)
#include "tst_finestraprincipale.moc"
