// The start of the program: the program folder's files, the login dialog, the connection, the
// menus the session unlocks, the version gate and the exit.

#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "session/frmLogin.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"
#include "RuoloProva.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QSqlQuery>
#include <QtTest>

namespace {

// Runs the road of the start up to the login dialog, gives it up, and leaves the values read.
void AvviaEAbbandona(PrimoMDI& principale) {
    AlComparire(QStringLiteral("frmLogin"), [](QWidget* login) {
        Controllo<QPushButton>(login, QStringLiteral("cmdEsci"))->click();
    });
    principale.show();
}

// Runs the road of the start on a site whose file `nome` holds `contenuto`, up to the login
// dialog, gives it up, and leaves the values read.
void AvviaConFile(const CartellaProva& cartella, PrimoMDI& principale,
                  const PiattaformaScriptata& seam, const QString& nome,
                  const QByteArray& contenuto) {
    cartella.ScriviSito(QStringLiteral("Provider=QSQLITE"), cartella.Percorso(),
                        QStringLiteral("X"));
    cartella.Scrivi(nome, contenuto);
    AvviaEAbbandona(principale);
    QVERIFY(QTest::qWaitFor([&] { return seam.Terminazioni() == 1; }, 10000));
}

bool MenuSessioneDisponibili(const PrimoMDI& principale) {
    for (const char* nome :
         {"mnuComplessiDoc", "mnuInventari", "mnuSoggetti", "mnuRegistro", "mnuStrumenti",
          "mnuAccesso", "mnuAntroponimi", "mnuToponimi", "mnuTitolari"}) {
        if (!principale.findChild<QAction*>(QLatin1String(nome))->isEnabled()) {
            return false;
        }
    }
    return true;
}

void ImpostaVersione(const BancaDatiProva& banca, const QVariant& versione) {
    auto connessione = banca.Apri();
    connessione->Esegui(QStringLiteral("UPDATE Config SET Versione = ?"), {versione});
}

} // namespace

class TestAvvio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();

    void laFinestraPrincipaleHaTitoloEDimensioni();
    void unaVirgolaNonQuotataInParamTieneSoloCioCheLaPrecede();
    void unaRigaDiCodice12NascondeTutteLeRigheSotto();
    void unCodiceRipetutoValeNellUltimaRigaEI_codici10E11SonoIgnorati();
    void laVersioneDellApplicazioneE32QualunqueSiaIlCodice06();
    void menuTxtDaIPercorsiDeiSeiManuali();
    void paramMancanteDaErroreV1ELasciaIMenuSpenti();
    void paramConVirgoleSparseIgnoraIRecordSenzaCodice();
    void unParamCheNonSiPuoLeggereDaErroreV1();
    void menuMancanteDaErroreV1();

    void dbNamesMancanteDaIlDialogoBassoEIlDatabaseDelCodice08();
    void dbNamesVuotoDaIlDialogoAltoConQuellUnicoDatabase();
    void dbNamesAggiungeIRecordNonVuotiComeLettiAncheDoppi();
    void dbNamesIlleggibileDaUnBoxCriticoEIlDialogoProsegue();

    void accessoRiuscitoAttivaIMenuDellaSessione_data();
    void accessoRiuscitoAttivaIMenuDellaSessione();
    void laStringaDiConnessioneEComposta_data();
    void laStringaDiConnessioneEComposta();
    void unNomeUtenteConSpaziEDepuratoPrimaDellaConnessione_data();
    void unNomeUtenteConSpaziEDepuratoPrimaDellaConnessione();
    void treAccessiRifiutatiLascianoIlDialogoAperto_data();
    void treAccessiRifiutatiLascianoIlDialogoAperto();
    void unServerSpentoDaAccessoNegatoConLaCausa();
    void unProviderSconosciutoDaAccessoNegatoEConnettiERilettoAlTentativoSeguente();
    void istitutoMancanteDaAccessoNegatoEIlTentativoSeguenteLoSostituisce();
    void unSitoSEsportaENonImporta();
    void escNelNomeUtenteChiudeIlProgrammaInvioFaAvanti();
    void escEInvioNellaPasswordNonFannoNulla();
    void annullaChiudeIlProgramma();

    void versione32NonChiedeNulla_data();
    void versione32NonChiedeNulla();
    void versione31ChiedeLAggiornamentoInCinqueRighe_data();
    void versione31ChiedeLAggiornamentoInCinqueRighe();
    void versioneNullChiedeConVersioneTrovataVuota();
    void siAllAggiornamentoAvviaTabellionSqlConLaRigaDiComando();
    void configVuotaNonChiedeELasciaValoreAZero();
    void unUtenteCheNonPuoLeggereConfigERifiutatoDalLogin();
    void unDatabaseSenzaConfigERifiutatoDalLogin_data();
    void unDatabaseSenzaConfigERifiutatoDalLogin();

    void fineChiedeConfermaENoLasciaTutto();
    void fineConSiChiudeLaConnessione();
    void laChiusuraDellaFinestraNonChiedeEChiudeLaConnessione();

private:
    std::unique_ptr<PiattaformaScriptata> seam;
};

void TestAvvio::init() {
    seam.reset();
    seam = std::make_unique<PiattaformaScriptata>();
}

void TestAvvio::laFinestraPrincipaleHaTitoloEDimensioni() {
    CartellaProva cartella;
    PrimoMDI principale;
    QCOMPARE(principale.windowTitle(), QStringLiteral("Tabulario - Gestione dati"));
    // 12500 by 9500 twips.
    QCOMPARE(principale.size(), QSize(833, 633));
}

void TestAvvio::unaVirgolaNonQuotataInParamTieneSoloCioCheLaPrecede() {
    CartellaProva cartella;
    PrimoMDI principale;
    AvviaConFile(cartella, principale, *seam, QStringLiteral("Param.txt"),
                 "01 /archivio/immagini,vecchie\r\n04 /scambio\r\n");
    QCOMPARE(Sessione::sParam01, QStringLiteral("/archivio/immagini"));
    QCOMPARE(Sessione::sParam04, QStringLiteral("/scambio"));
}

void TestAvvio::unaRigaDiCodice12NascondeTutteLeRigheSotto() {
    CartellaProva cartella;
    PrimoMDI principale;
    AvviaConFile(cartella, principale, *seam, QStringLiteral("Param.txt"),
                 "01 uno\r\n12 dodici\r\n03 tre\r\n08 Database\r\n12 altro\r\n");
    QCOMPARE(Sessione::sParam01, QStringLiteral("uno"));
    QCOMPARE(Sessione::sParam12, QStringLiteral("dodici"));
    QCOMPARE(Sessione::sParam03, QString());
    QCOMPARE(Sessione::sDatabase, QString());
}

void TestAvvio::unCodiceRipetutoValeNellUltimaRigaEI_codici10E11SonoIgnorati() {
    CartellaProva cartella;
    PrimoMDI principale;
    AvviaConFile(cartella, principale, *seam, QStringLiteral("Param.txt"),
                 "\"02 primo\"\r\n10 dieci\r\n11 undici\r\n\"02 secondo\"\r\n"
                 "05 cinque\r\n07 sette\r\n08 Archivio\r\n09 nove\r\n");
    QCOMPARE(Sessione::sServer, QStringLiteral("secondo"));
    QCOMPARE(Sessione::sParam05, QStringLiteral("cinque"));
    QCOMPARE(Sessione::sParam07, QStringLiteral("sette"));
    QCOMPARE(Sessione::sDatabase, QStringLiteral("Archivio"));
    QCOMPARE(Sessione::sParam09, QStringLiteral("nove"));
    QCOMPARE(Sessione::sParam01, QString());
}

void TestAvvio::laVersioneDellApplicazioneE32QualunqueSiaIlCodice06() {
    CartellaProva cartella;
    PrimoMDI principale;
    AvviaConFile(cartella, principale, *seam, QStringLiteral("Param.txt"), "06 7.5\r\n");
    QCOMPARE(Sessione::sVersioneApp, QStringLiteral("3.2"));
}

void TestAvvio::menuTxtDaIPercorsiDeiSeiManuali() {
    CartellaProva cartella;
    PrimoMDI principale;
    AvviaConFile(cartella, principale, *seam, QStringLiteral("Menu.txt"),
                 "A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nSettimo\r\n");
    QCOMPARE(principale.PercorsoGuida(1), cartella.File(QStringLiteral("A.pdf")));
    QCOMPARE(principale.PercorsoGuida(6), cartella.File(QStringLiteral("F.pdf")));
    QCOMPARE(principale.PercorsoGuida(7), QString());
}

void TestAvvio::paramMancanteDaErroreV1ELasciaIMenuSpenti() {
    CartellaProva cartella;
    PrimoMDI principale;
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return !seam->Messaggi().isEmpty(); }, 10000));
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Errore V1"));
    QCOMPARE(box.icona, Icona::Critica);
    QVERIFY(box.sTesto.startsWith(QStringLiteral("PrimoMDI\n")));
    QVERIFY(box.sTesto.contains(cartella.File(QStringLiteral("Param.txt"))));
    QVERIFY(!principale.findChild<QAction*>(QStringLiteral("mnuComplessiDoc"))->isEnabled());
    QCOMPARE(seam->Terminazioni(), 0);
    QVERIFY(principale.isVisible());
    QVERIFY(!QFileInfo::exists(cartella.File(QStringLiteral("Param.txt"))));
}

void TestAvvio::paramConVirgoleSparseIgnoraIRecordSenzaCodice() {
    CartellaProva cartella;
    PrimoMDI principale;
    AvviaConFile(cartella, principale, *seam, QStringLiteral("Param.txt"),
                 ",,,\r\n01 immagini,,\r\n,08 Archivio\r\n,\r\n");
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Sessione::sParam01, QStringLiteral("immagini"));
    QCOMPARE(Sessione::sDatabase, QStringLiteral("Archivio"));
}

void TestAvvio::unParamCheNonSiPuoLeggereDaErroreV1() {
    CartellaProva cartella;
    cartella.ScriviSito(QStringLiteral("Provider=QSQLITE"), cartella.Percorso(),
                        QStringLiteral("X"));
    cartella.Rimuovi(QStringLiteral("Param.txt"));
    QVERIFY(QDir(cartella.Percorso()).mkdir(QStringLiteral("Param.txt")));
    PrimoMDI principale;
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return !seam->Messaggi().isEmpty(); }, 10000));
    QCOMPARE(seam->Messaggi().constFirst().sTitolo, QStringLiteral("Errore V1"));
    QVERIFY(seam->Messaggi().constFirst().sTesto.contains(QStringLiteral("Param.txt")));
    QCOMPARE(seam->Terminazioni(), 0);
    QVERIFY(QFileInfo(cartella.File(QStringLiteral("Param.txt"))).isDir());
}

void TestAvvio::menuMancanteDaErroreV1() {
    CartellaProva cartella;
    cartella.ScriviSito(QStringLiteral("Provider=QSQLITE"), cartella.Percorso(),
                        QStringLiteral("X"));
    cartella.Rimuovi(QStringLiteral("Menu.txt"));
    PrimoMDI principale;
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return !seam->Messaggi().isEmpty(); }, 10000));
    QCOMPARE(seam->Messaggi().constFirst().sTitolo, QStringLiteral("Errore V1"));
    QVERIFY(seam->Messaggi().constFirst().sTesto.contains(QStringLiteral("Menu.txt")));
    QCOMPARE(seam->Terminazioni(), 0);
}

void TestAvvio::dbNamesMancanteDaIlDialogoBassoEIlDatabaseDelCodice08() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    frmLogin alto;
    cartella.Scrivi(QStringLiteral("DbNames.txt"), "");
    Sessione::sDatabase = banca.Database();
    Sessione::sServer = banca.Server();
    alto.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    alto.show();
    cartella.Rimuovi(QStringLiteral("DbNames.txt"));
    frmLogin basso;
    basso.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    basso.show();
    QVERIFY(!basso.PiuDatabase());
    QVERIFY(!Controllo<QFrame>(&basso, QStringLiteral("fraDb"))->isVisible());
    QVERIFY(basso.height() < alto.height());
    CompilaLogin(&basso, banca.Utente(), banca.Password());
    QVERIFY(basso.AccessoRiuscito());
    QCOMPARE(Sessione::sDatabase, banca.Database());
    QVERIFY(Sessione::cnn && Sessione::cnn->Aperta());
}

void TestAvvio::dbNamesVuotoDaIlDialogoAltoConQuellUnicoDatabase() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("DbNames.txt"), "");
    Sessione::sDatabase = QStringLiteral("Tabellion");
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    login.show();
    QVERIFY(login.PiuDatabase());
    QVERIFY(Controllo<QFrame>(&login, QStringLiteral("fraDb"))->isVisible());
    auto* cmbDB = Controllo<QComboBox>(&login, QStringLiteral("cmbDB"));
    QCOMPARE(cmbDB->count(), 1);
    QCOMPARE(cmbDB->itemText(0), QStringLiteral("Tabellion"));
    QCOMPARE(cmbDB->currentIndex(), 0);
}

void TestAvvio::dbNamesAggiungeIRecordNonVuotiComeLettiAncheDoppi() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("DbNames.txt"),
                    "Archivio  \r\n   \r\nTabellion\r\nStorico,Prove\r\n");
    Sessione::sDatabase = QStringLiteral("Tabellion");
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    auto* cmbDB = Controllo<QComboBox>(&login, QStringLiteral("cmbDB"));
    QStringList voci;
    for (int i = 0; i < cmbDB->count(); ++i) {
        voci.append(cmbDB->itemText(i));
    }
    QCOMPARE(voci, (QStringList{QStringLiteral("Tabellion"), QStringLiteral("Archivio  "),
                                QStringLiteral("Tabellion"), QStringLiteral("Storico"),
                                QStringLiteral("Prove")}));
}

void TestAvvio::dbNamesIlleggibileDaUnBoxCriticoEIlDialogoProsegue() {
    CartellaProva cartella;
    QVERIFY(QDir(cartella.Percorso()).mkdir(QStringLiteral("DbNames.txt")));
    Sessione::sDatabase = QStringLiteral("Tabellion");
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.icona, Icona::Critica);
    QCOMPARE(box.sTitolo, QStringLiteral("Tabellion Archivista"));
    QVERIFY(box.sTesto.contains(QStringLiteral("DbNames.txt")));
    // What was done before the error stays: the choice with the default database.
    QVERIFY(login.PiuDatabase());
    QCOMPARE(Controllo<QComboBox>(&login, QStringLiteral("cmbDB"))->count(), 1);
}

void TestAvvio::accessoRiuscitoAttivaIMenuDellaSessione_data() {
    AggiungiBackend();
}

void TestAvvio::accessoRiuscitoAttivaIMenuDellaSessione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    QVERIFY(!MenuSessioneDisponibili(principale));
    QVERIFY(AvviaSessione(principale, banca));
    QVERIFY(MenuSessioneDisponibili(principale));
    QVERIFY(Sessione::bIstituto);
    QVERIFY(!principale.findChild<QAction*>(QStringLiteral("mnuExport"))->isEnabled());
    QVERIFY(principale.findChild<QAction*>(QStringLiteral("mnuImport"))->isEnabled());
    QVERIFY(seam->Messaggi().isEmpty());
    QVERIFY(Sessione::cnn->Aperta());
    QCOMPARE(Sessione::sUtente, banca.Utente());
    QCOMPARE(Sessione::sPassword, banca.Password());
    QCOMPARE(Sessione::sDatabase, banca.Database());
    // No child window is opened by the start.
    QVERIFY(principale.Area()->subWindowList().isEmpty());
}

void TestAvvio::laStringaDiConnessioneEComposta_data() {
    AggiungiBackend();
}

void TestAvvio::laStringaDiConnessioneEComposta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    Sessione::sServer = banca.Server();
    Sessione::sDatabase = banca.Database();
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    CompilaLogin(&login, banca.Utente(), banca.Password());
    QVERIFY(login.AccessoRiuscito());
    QCOMPARE(Sessione::sConnessione, banca.Testa() + QStringLiteral(";Data Source=") +
                                         banca.Server() + QStringLiteral(";Initial Catalog=") +
                                         banca.Database() + QStringLiteral(";User ID=") +
                                         banca.Utente() + QStringLiteral(";Password=") +
                                         banca.Password());
}

void TestAvvio::unNomeUtenteConSpaziEDepuratoPrimaDellaConnessione_data() {
    AggiungiBackend();
}

void TestAvvio::unNomeUtenteConSpaziEDepuratoPrimaDellaConnessione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    Sessione::sServer = banca.Server();
    Sessione::sDatabase = banca.Database();
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    CompilaLogin(&login, QStringLiteral("  ") + banca.Utente() + QStringLiteral(" "),
                 QStringLiteral(" ") + banca.Password() + QStringLiteral("  "));
    QVERIFY2(login.AccessoRiuscito(), seam->Messaggi().isEmpty()
                                          ? "no box"
                                          : qPrintable(seam->Messaggi().constFirst().sTesto));
    QCOMPARE(Sessione::sUtente, banca.Utente());
    QCOMPARE(Sessione::sPassword, banca.Password());
    QVERIFY(Sessione::sConnessione.contains(QStringLiteral(";User ID=") + banca.Utente() +
                                            QStringLiteral(";Password=")));
}

void TestAvvio::treAccessiRifiutatiLascianoIlDialogoAperto_data() {
    AggiungiBackend();
}

void TestAvvio::treAccessiRifiutatiLascianoIlDialogoAperto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    // A file has no logins: on SQLite the refusal is a database that is not there.
    const QString database =
        backend == TipoBackend::SQLite ? QStringLiteral("Inesistente") : banca.Database();
    cartella.ScriviSito(banca.Testa(), banca.Server(), database);
    PrimoMDI principale;
    bool ancoraAperto = false;
    AlComparire(QStringLiteral("frmLogin"), [&](QWidget* login) {
        for (int i = 0; i < 3; ++i) {
            CompilaLogin(login, banca.Utente(), QStringLiteral("password sbagliata"));
        }
        ancoraAperto = login->isVisible() && QApplication::activeModalWidget() == login;
        QCOMPARE(QApplication::focusWidget(),
                 login->findChild<QWidget*>(QStringLiteral("txtUserID")));
        Controllo<QPushButton>(login, QStringLiteral("cmdEsci"))->click();
    });
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return seam->Terminazioni() == 1; }, 20000));
    QVERIFY(ancoraAperto);
    const QList<Messaggio> boxes = seam->Messaggi();
    QCOMPARE(boxes.size(), 3);
    for (const Messaggio& box : boxes) {
        QCOMPARE(box.sTitolo, QStringLiteral("Login"));
        QCOMPARE(box.icona, Icona::Critica);
        QVERIFY(box.sTesto.endsWith(QStringLiteral("\nAccesso negato")));
        QVERIFY(box.sTesto.size() > QStringLiteral("\nAccesso negato").size());
    }
    if (backend == TipoBackend::SQLite) {
        QVERIFY(boxes.constFirst().sTesto.contains(QStringLiteral("non esiste")));
        QVERIFY(!QFileInfo::exists(banca.Server() + QStringLiteral("/Inesistente.db")));
    } else {
        QVERIFY(boxes.constFirst().sTesto.contains(QStringLiteral("password")));
    }
    QVERIFY(!MenuSessioneDisponibili(principale));
}

void TestAvvio::unServerSpentoDaAccessoNegatoConLaCausa() {
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL"))) {
        QSKIP("PostgreSQL driver missing");
    }
    CartellaProva cartella;
    // A loopback port on which nothing listens.
    cartella.ScriviSito(QStringLiteral("Provider=QPSQL;Port=1"), QStringLiteral("127.0.0.1"),
                        QStringLiteral("Tabellion"));
    Sessione::sServer = QStringLiteral("127.0.0.1");
    Sessione::sDatabase = QStringLiteral("Tabellion");
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    login.show();
    CompilaLogin(&login, QStringLiteral("archivista"), QStringLiteral("x"));
    QVERIFY(!login.AccessoRiuscito());
    QVERIFY(login.isVisible());
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Login"));
    QVERIFY2(box.sTesto.contains(QStringLiteral("127.0.0.1")) ||
                 box.sTesto.contains(QStringLiteral("refused"), Qt::CaseInsensitive),
             qPrintable(box.sTesto));
    QVERIFY(box.sTesto.endsWith(QStringLiteral("\nAccesso negato")));
}

void TestAvvio::unProviderSconosciutoDaAccessoNegatoEConnettiERilettoAlTentativoSeguente() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(QStringLiteral("Provider=SQLOLEDB.1"), banca.Server(), banca.Database());
    Sessione::sServer = banca.Server();
    Sessione::sDatabase = banca.Database();
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    login.show();
    CompilaLogin(&login, banca.Utente(), banca.Password());
    QVERIFY(!login.AccessoRiuscito());
    QCOMPARE(seam->Messaggi().size(), 1);
    QVERIFY(seam->Messaggi().constFirst().sTesto.contains(QStringLiteral("SQLOLEDB.1")));
    QVERIFY(seam->Messaggi().constFirst().sTesto.endsWith(QStringLiteral("Accesso negato")));
    cartella.Scrivi(QStringLiteral("Connetti.txt"), banca.Testa().toUtf8() + "\r\n");
    CompilaLogin(&login, banca.Utente(), banca.Password());
    QVERIFY(login.AccessoRiuscito());
    QVERIFY(Sessione::sConnessione.startsWith(banca.Testa() + QStringLiteral(";Data Source=")));
}

void TestAvvio::istitutoMancanteDaAccessoNegatoEIlTentativoSeguenteLoSostituisce() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    cartella.Rimuovi(QStringLiteral("Istituto.txt"));
    Sessione::sServer = banca.Server();
    Sessione::sDatabase = banca.Database();
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    login.show();
    CompilaLogin(&login, banca.Utente(), banca.Password());
    QVERIFY(!login.AccessoRiuscito());
    QVERIFY(seam->Messaggi().constFirst().sTesto.contains(QStringLiteral("Istituto.txt")));
    QVERIFY(seam->Messaggi().constFirst().sTesto.endsWith(QStringLiteral("\nAccesso negato")));
    // The connection stands, although the box says otherwise.
    QVERIFY(Sessione::cnn && Sessione::cnn->Aperta());
    const auto prima = Sessione::cnn;
    cartella.Scrivi(QStringLiteral("Istituto.txt"), "S\r\n");
    CompilaLogin(&login, banca.Utente(), banca.Password());
    QVERIFY(login.AccessoRiuscito());
    QVERIFY(Sessione::cnn != prima);
    QVERIFY(!prima->Aperta());
    QVERIFY(!Sessione::bIstituto);
}

void TestAvvio::unSitoSEsportaENonImporta() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("S"));
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    QVERIFY(!Sessione::bIstituto);
    QVERIFY(principale.findChild<QAction*>(QStringLiteral("mnuExport"))->isEnabled());
    QVERIFY(!principale.findChild<QAction*>(QStringLiteral("mnuImport"))->isEnabled());
}

void TestAvvio::escNelNomeUtenteChiudeIlProgrammaInvioFaAvanti() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    {
        PrimoMDI principale;
        AlComparire(QStringLiteral("frmLogin"), [](QWidget* login) {
            QTest::keyClick(Controllo<QLineEdit>(login, QStringLiteral("txtUserID")),
                            Qt::Key_Escape);
        });
        principale.show();
        QVERIFY(QTest::qWaitFor([&] { return seam->Terminazioni() == 1; }, 10000));
        QVERIFY(!MenuSessioneDisponibili(principale));
    }
    Sessione::Azzera();
    PrimoMDI principale;
    AlComparire(QStringLiteral("frmLogin"), [&](QWidget* login) {
        Controllo<QLineEdit>(login, QStringLiteral("txtPassWord"))->setText(banca.Password());
        auto* utente = Controllo<QLineEdit>(login, QStringLiteral("txtUserID"));
        utente->setText(banca.Utente());
        QTest::keyClick(utente, Qt::Key_Return);
    });
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return MenuSessioneDisponibili(principale); }, 10000));
    QCOMPARE(seam->Terminazioni(), 1);
}

void TestAvvio::escEInvioNellaPasswordNonFannoNulla() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    Sessione::sServer = banca.Server();
    Sessione::sDatabase = banca.Database();
    frmLogin login;
    login.Init(true, cartella.File(QStringLiteral("DbNames.txt")));
    login.show();
    QVERIFY(QTest::qWaitForWindowExposed(&login));
    auto* password = Controllo<QLineEdit>(&login, QStringLiteral("txtPassWord"));
    Controllo<QLineEdit>(&login, QStringLiteral("txtUserID"))->setText(banca.Utente());
    password->setFocus();
    QTest::keyClick(password, Qt::Key_Escape);
    QTest::keyClick(password, Qt::Key_Return);
    QVERIFY(login.isVisible());
    QCOMPARE(login.result(), 0);
    QVERIFY(!login.AccessoRiuscito());
    QVERIFY(seam->chiamate.isEmpty());
}

void TestAvvio::annullaChiudeIlProgramma() {
    CartellaProva cartella;
    cartella.ScriviSito(QStringLiteral("Provider=QSQLITE"), cartella.Percorso(),
                        QStringLiteral("X"));
    PrimoMDI principale;
    AvviaEAbbandona(principale);
    QVERIFY(QTest::qWaitFor([&] { return seam->Terminazioni() == 1; }, 10000));
    QVERIFY(seam->Messaggi().isEmpty());
    QVERIFY(!Sessione::cnn);
}

void TestAvvio::versione32NonChiedeNulla_data() {
    AggiungiBackend();
}

void TestAvvio::versione32NonChiedeNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    ImpostaVersione(banca, 3.2);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    QVERIFY(seam->Messaggi().isEmpty());
    QVERIFY(seam->Chiamate(QStringLiteral("processo")).isEmpty());
    // A version above the application's passes in silence too.
    ImpostaVersione(banca, 4.0);
    Sessione::Azzera();
    PrimoMDI seconda;
    QVERIFY(AvviaSessione(seconda, banca));
    QVERIFY(seam->Messaggi().isEmpty());
}

void TestAvvio::versione31ChiedeLAggiornamentoInCinqueRighe_data() {
    AggiungiBackend();
}

void TestAvvio::versione31ChiedeLAggiornamentoInCinqueRighe() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    ImpostaVersione(banca, 3.1);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    seam->risposte = {Risposta::No};
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Aggiorna versione DB"));
    QCOMPARE(box.icona, Icona::Esclamazione);
    QCOMPARE(box.pulsanti, Pulsanti::SiNo);
    QCOMPARE(box.predefinita, Risposta::No);
    QCOMPARE(box.sTesto.split(QStringLiteral("\r\n")),
             (QStringList{
                 QStringLiteral("Versione del DB precedente alla versione dell'applicazione."),
                 QStringLiteral("Versione richiesta: 3.2"), QStringLiteral("Versione trovata: 3,1"),
                 QString(), QStringLiteral("Vuoi aggiornare la versione del DB?")}));
    // No goes on with the session on the old schema.
    QVERIFY(seam->Chiamate(QStringLiteral("processo")).isEmpty());
    QVERIFY(MenuSessioneDisponibili(principale));
}

void TestAvvio::versioneNullChiedeConVersioneTrovataVuota() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    ImpostaVersione(banca, QVariant());
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    seam->risposte = {Risposta::No};
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    QCOMPARE(seam->Messaggi().size(), 1);
    QCOMPARE(seam->Messaggi().constFirst().sTesto.split(QStringLiteral("\r\n")).value(2),
             QStringLiteral("Versione trovata: "));
}

void TestAvvio::siAllAggiornamentoAvviaTabellionSqlConLaRigaDiComando() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    ImpostaVersione(banca, 3.1);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    seam->risposte = {Risposta::Si};
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    const QList<Chiamata> processi = seam->Chiamate(QStringLiteral("processo"));
    QCOMPARE(processi.size(), 1);
    QVERIFY(processi.constFirst().sProgramma.endsWith(QStringLiteral("tabellion-sql")));
    QCOMPARE(
        processi.constFirst().argomenti,
        (QStringList{QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"), banca.Password(),
                     QStringLiteral("-S"), banca.Server(), QStringLiteral("-d"), banca.Database(),
                     QStringLiteral("-i"), cartella.File(QStringLiteral("alter.sql"))}));
    // The program does not wait, nor read Config again: the session goes on.
    QVERIFY(MenuSessioneDisponibili(principale));
}

void TestAvvio::configVuotaNonChiedeELasciaValoreAZero() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    banca.Apri()->Esegui(QStringLiteral("DELETE FROM Config"));
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Sessione::dValore, 0.0);

    banca.Apri()->Esegui(
        QStringLiteral("INSERT INTO Config (Code, Versione, ID_Start, ID_End, Valore) "
                       "VALUES ('X', 3.2, 1, 10, 2.75)"));
    Sessione::Azzera();
    PrimoMDI seconda;
    QVERIFY(AvviaSessione(seconda, banca));
    QCOMPARE(Sessione::dValore, 2.75);
}

void TestAvvio::unUtenteCheNonPuoLeggereConfigERifiutatoDalLogin() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::PostgreSQL);
    // A login of the server outside the group of archivists: no right on any table.
    RuoloProva ruolo(banca);
    QVERIFY(ruolo.Creato());
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    bool bRifiutato = false;
    bool bEntrato = false;
    AlComparire(QStringLiteral("frmLogin"), [&](QWidget* login) {
        CompilaLogin(login, ruolo.Nome(), RuoloProva::Password());
        bRifiutato = login->isVisible() && QApplication::activeModalWidget() == login &&
                     QApplication::focusWidget() ==
                         login->findChild<QWidget*>(QStringLiteral("txtUserID")) &&
                     !Sessione::cnn && !MenuSessioneDisponibili(principale);
        // The dialog stays for another try, which a login of the group passes.
        CompilaLogin(login, banca.Utente(), banca.Password());
        bEntrato = !login->isVisible();
    });
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return MenuSessioneDisponibili(principale); }, 20000));
    QVERIFY(bRifiutato);
    QVERIFY(bEntrato);
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Login"));
    QCOMPARE(box.icona, Icona::Critica);
    QCOMPARE(box.pulsanti, Pulsanti::Ok);
    QVERIFY2(box.sTesto.startsWith(QStringLiteral("L'utente \"") + ruolo.Nome() +
                                   QStringLiteral("\" non può leggere le impostazioni del sito "
                                                  "(la tabella Config) nel database \"") +
                                   banca.Database() + QStringLiteral("\": ")),
             qPrintable(box.sTesto));
    QVERIFY2(box.sTesto.contains(QStringLiteral("permission denied")), qPrintable(box.sTesto));
    QVERIFY2(box.sTesto.contains(QStringLiteral("gruppo degli archivisti")),
             qPrintable(box.sTesto));
    QVERIFY(box.sTesto.endsWith(QStringLiteral("\nAccesso negato")));
    QCOMPARE(Sessione::sUtente, banca.Utente());
    QCOMPARE(seam->Terminazioni(), 0);
    principale.close();
}

void TestAvvio::unDatabaseSenzaConfigERifiutatoDalLogin_data() {
    AggiungiBackend();
}

void TestAvvio::unDatabaseSenzaConfigERifiutatoDalLogin() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    banca.Apri()->Esegui(QStringLiteral("DROP TABLE Config"));
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    bool bRifiutato = false;
    AlComparire(QStringLiteral("frmLogin"), [&](QWidget* login) {
        CompilaLogin(login, banca.Utente(), banca.Password());
        bRifiutato = login->isVisible() && !Sessione::cnn && Sessione::sUtente.isEmpty();
        Controllo<QPushButton>(login, QStringLiteral("cmdEsci"))->click();
    });
    principale.show();
    QVERIFY(QTest::qWaitFor([&] { return seam->Terminazioni() == 1; }, 20000));
    QVERIFY(bRifiutato);
    QCOMPARE(seam->Messaggi().size(), 1);
    const Messaggio box = seam->Messaggi().constFirst();
    QCOMPARE(box.sTitolo, QStringLiteral("Login"));
    QCOMPARE(box.icona, Icona::Critica);
    QVERIFY2(box.sTesto.contains(QStringLiteral("non può leggere le impostazioni del sito (la "
                                                "tabella Config)")),
             qPrintable(box.sTesto));
    QVERIFY(box.sTesto.endsWith(QStringLiteral("\nAccesso negato")));
    QVERIFY(!MenuSessioneDisponibili(principale));
}

void TestAvvio::fineChiedeConfermaENoLasciaTutto() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    seam->risposte = {Risposta::No};
    principale.findChild<QAction*>(QStringLiteral("mnuFine"))->trigger();
    const Messaggio box = seam->Messaggi().constLast();
    QCOMPARE(box.sTesto, QStringLiteral("Confermi uscita dal programma?"));
    QCOMPARE(box.sTitolo, QStringLiteral("Uscita"));
    QCOMPARE(box.icona, Icona::Domanda);
    QCOMPARE(box.pulsanti, Pulsanti::SiNo);
    QCOMPARE(box.predefinita, Risposta::No);
    QVERIFY(principale.isVisible());
    QVERIFY(Sessione::cnn->Aperta());
}

void TestAvvio::fineConSiChiudeLaConnessione() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    const auto connessione = Sessione::cnn;
    seam->risposte = {Risposta::Si};
    principale.findChild<QAction*>(QStringLiteral("mnuFine"))->trigger();
    QVERIFY(!principale.isVisible());
    QVERIFY(!connessione->Aperta());
    QVERIFY(!Sessione::cnn);
}

void TestAvvio::laChiusuraDellaFinestraNonChiedeEChiudeLaConnessione() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    const auto connessione = Sessione::cnn;
    seam->Svuota();
    principale.close();
    QVERIFY(seam->chiamate.isEmpty());
    QVERIFY(!connessione->Aperta());
}

QTEST_MAIN(TestAvvio)
#include "tst_avvio.moc"
