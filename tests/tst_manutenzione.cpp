// The maintenance commands of the Strumenti menu: the sight of Config, the change of Valore, the
// backup and the web index, with the two procedures behind the last two.

#include "programma/Registro.h"
#include "session/Errore.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "session/frmBackup.h"
#include "session/frmConfig.h"
#include "session/frmIdicizWeb.h"
#include "session/frmValore.h"
#include "store/Backend.h"
#include "store/BackendPostgreSQL.h"
#include "store/Connessione.h"
#include "store/Procedure.h"
#include "store/StringaConnessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QProcess>
#include <QPushButton>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <algorithm>

namespace {

QVariant Nullo() {
    return QVariant(QMetaType::fromType<int>());
}

void Elemento(const Connessione& connessione, int id, const QVariant& padre, const char* tipo,
              const QString& denominazione, const QVariant& pubblicato) {
    connessione.Esegui(
        QStringLiteral("INSERT INTO Elementi (ID_Elemento, ID_ElementoPadre, "
                       "Tipologia, Denominazione, Pubblicato) "
                       "VALUES (?, ?, ?, ?, ?)"),
        {id, padre, QString::fromLatin1(tipo), denominazione,
         pubblicato.isValid() ? pubblicato : QVariant(QMetaType::fromType<QString>())});
}

void Pubblica(const Connessione& connessione, int id, const QString& sPubblicato) {
    connessione.Esegui(QStringLiteral("UPDATE Elementi SET Pubblicato = ? WHERE ID_Elemento = ?"),
                       {sPubblicato, id});
}

// The first column of every row, as numbers in order.
QList<qint64> Numeri(const Connessione& connessione, const QString& sSql,
                     std::initializer_list<QVariant> valori = {}) {
    QSqlQuery query = connessione.Esegui(sSql, valori);
    QList<qint64> numeri;
    while (query.next()) {
        numeri.append(query.value(0).toLongLong());
    }
    std::sort(numeri.begin(), numeri.end());
    return numeri;
}

QVariant Valore(const Connessione& connessione, const QString& sSql,
                std::initializer_list<QVariant> valori = {}) {
    QSqlQuery query = connessione.Esegui(sSql, valori);
    return query.next() ? query.value(0) : QVariant();
}

// How many rows each table holds.
QMap<QString, qint64> Conteggi(const Connessione& connessione) {
    QMap<QString, qint64> conteggi;
    const QStringList tabelle = connessione.Db().tables(QSql::Tables);
    for (const QString& tabella : tabelle) {
        conteggi.insert(tabella.toLower(),
                        Valore(connessione, QStringLiteral("SELECT COUNT(*) FROM %1")
                                                .arg(connessione.backend().Identificatore(tabella)))
                            .toLongLong());
    }
    return conteggi;
}

// A small archive: an institute with a chain of complessi, an inventory with a parchment and a
// unit, and an unpublished institute with a published child.
void Archivio(const Connessione& c) {
    Elemento(c, 1, Nullo(), "01", QStringLiteral("Archivio di Stato di Trento"),
             QStringLiteral("S"));
    Elemento(c, 2, 1, "02", QStringLiteral("Archivio notarile"), QStringLiteral("S"));
    Elemento(c, 3, 2, "02", QStringLiteral("Notai di Rovereto"), QStringLiteral("S"));
    Elemento(c, 4, 3, "02", QStringLiteral("Giovanni Battista Tranquillini"), QStringLiteral("S"));
    Elemento(c, 5, 1, "03", QStringLiteral("Inventario delle pergamene"), QStringLiteral("S"));
    Elemento(c, 6, 5, "05", QStringLiteral("Pergamena 1"), QStringLiteral("S"));
    Elemento(c, 7, 5, "07", QStringLiteral("Busta 12"), QVariant());
    Elemento(c, 8, Nullo(), "01", QStringLiteral("Biblioteca civica"), QStringLiteral("N"));
    Elemento(c, 9, 8, "02", QStringLiteral("Carte Bonporti"), QStringLiteral("S"));
    c.Esegui(QStringLiteral("UPDATE ComplessiDoc SET DataInizio = ?, DataFine = ? "
                            "WHERE ID_Elemento = ?"),
             {15000101, 18001231, 2});
    c.Esegui(
        QStringLiteral("UPDATE Inventari SET AnnoInizio = ?, AnnoFine = ? WHERE ID_Elemento = ?"),
        {1850, 1900, 5});
    c.Esegui(QStringLiteral("UPDATE Pergamene SET DataCronicaInizio = ?, DataCronicaFine = ? "
                            "WHERE ID_Elemento = ?"),
             {12340312, 12340312, 6});
}

// The elements that the full-text index finds by a word.
QList<qint64> Cerca(const Connessione& connessione, TipoBackend tipo, const QString& sParola) {
    if (tipo == TipoBackend::SQLite) {
        return Numeri(
            connessione,
            QStringLiteral("SELECT rowid FROM IndiceWebTesto WHERE IndiceWebTesto MATCH ?"),
            {sParola});
    }
    return Numeri(connessione,
                  QStringLiteral("SELECT ID_Elemento FROM IndiceWeb "
                                 "WHERE Testo @@ plainto_tsquery(CAST(? AS regconfig), ?)"),
                  {QStringLiteral("italian"), sParola});
}

// Every file of a folder, hidden ones too.
QStringList Contenuto(const QString& sCartella) {
    return QDir(sCartella).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                     QDir::Name);
}

// A database of the test server made for one test and dropped after it.
class DatabaseRipristino {
public:
    explicit DatabaseRipristino(const QString& sNome)
        : sStringa(ComponiStringaConnessione(
              QStringLiteral("Provider=QPSQL;Port=%1").arg(ServerProva::Porta()),
              ServerProva::Host(), sNome, ServerProva::Utente(), ServerProva::Password())) {
        const StringaConnessione stringa = StringaConnessione::Leggi(sStringa);
        Connessione::BackendDi(stringa).CreaDatabase(stringa);
    }
    ~DatabaseRipristino() {
        try {
            const StringaConnessione stringa = StringaConnessione::Leggi(sStringa);
            Connessione::BackendDi(stringa).EliminaDatabase(stringa);
        } catch (const std::exception& errore) {
            qWarning("database not removed: %s", errore.what());
        }
    }
    DatabaseRipristino(const DatabaseRipristino&) = delete;
    DatabaseRipristino& operator=(const DatabaseRipristino&) = delete;
    const QString sStringa;
};

// Shows the value dialog, waits for it to become active and puts it in edit with Modifica; false
// when it never became active.
bool MostraInModifica(frmValore& dialogo) {
    dialogo.show();
    dialogo.activateWindow();
    if (!QTest::qWaitForWindowActive(&dialogo))
        return false;
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdCambiaV"))->click();
    return true;
}

QString Apici(const QString& sTesto) {
    QString doppio = sTesto;
    doppio.replace(QStringLiteral("'"), QStringLiteral("''"));
    return QLatin1Char('\'') + doppio + QLatin1Char('\'');
}

} // namespace

class TestManutenzione : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init();
    void cleanup();

    void ilComandoSiLeggeConLArgomentoTraApici_data();
    void ilComandoSiLeggeConLArgomentoTraApici();
    void unComandoMalFormatoVieneRifiutatoComeDalServer_data();
    void unComandoMalFormatoVieneRifiutatoComeDalServer();

    void tabellaConfigMostraLaRigaConLaVersioneDellApplicazione_data();
    void tabellaConfigMostraLaRigaConLaVersioneDellApplicazione();
    void tabellaConfigSenzaConnessioneDaErroreD1();
    void unaConfigSenzaRigaLasciaIDialoghiVuotiENonScriveNulla_data() { AggiungiBackend(); }
    void unaConfigSenzaRigaLasciaIDialoghiVuotiENonScriveNulla();
    void leVociDiStrumentiApronoIDialoghiModali();

    void ilValoreSiMostraConIlFormatoItaliano();
    void modificaAbilitaICampiEMostraConferma();
    void unValoreConPuntoDelleMigliaiaEVirgolaSiSalvaComeNumero_data();
    void unValoreConPuntoDelleMigliaiaEVirgolaSiSalvaComeNumero();
    void unaDataVuotaLasciaQuellaSalvata_data();
    void unaDataVuotaLasciaQuellaSalvata();
    void lasciareUnValoreNonNumericoDaValoreErrato();
    void lasciareUnaDataNonValidaDaDataErrata();
    void lasciareLaDataVuotaDaDataErrataEConfermaTieneQuellaSalvata_data() { AggiungiBackend(); }
    void lasciareLaDataVuotaDaDataErrataEConfermaTieneQuellaSalvata();
    void unValoreErratoArrivatoAConfermaDaErroreZ1ENonCambiaNulla_data();
    void unValoreErratoArrivatoAConfermaDaErroreZ1ENonCambiaNulla();

    void laCopiaRipristinataHaTutteLeRighe_data();
    void laCopiaRipristinataHaTutteLeRighe();
    void unaCopiaDoveNonSiPuoScrivereDaErroreB1ENonLasciaNulla_data();
    void unaCopiaDoveNonSiPuoScrivereDaErroreB1ENonLasciaNulla();
    void unaCopiaNonSovrascriveUnFileEsistente_data();
    void unaCopiaNonSovrascriveUnFileEsistente();
    void unCodice03SenzaSpazioInizialeDaErroreB1_data();
    void unCodice03SenzaSpazioInizialeDaErroreB1();
    void unPgDumpCheFallisceNonLasciaNullaEDiceIlPerche();

    void lIndiceWebTieneGliElementiConTuttiGliAntenatiPubblicati_data();
    void lIndiceWebTieneGliElementiConTuttiGliAntenatiPubblicati();
    void lIndiceWebDiUnDatabaseVuotoEVuoto_data();
    void lIndiceWebDiUnDatabaseVuotoEVuoto();
    void unaLinguaSconosciutaDaErroreE1ELasciaLIndiceComEra();
    void ilDialogoRestaVivoMentreLaProceduraLavoraENonRiparte_data();
    void ilDialogoRestaVivoMentreLaProceduraLavoraENonRiparte();

    void unBackupFallitoTornaAllaDomandaEUnSecondoTentativoRiesce_data();
    void unBackupFallitoTornaAllaDomandaEUnSecondoTentativoRiesce();
    void unCodice03ScrittoComeGliAltriDaErroreB1ConLaFormaAttesa_data();
    void unCodice03ScrittoComeGliAltriDaErroreB1ConLaFormaAttesa();
    void unCodice07SenzaApiciDaErroreE1ConLaFormaAttesa();

private:
    std::unique_ptr<PiattaformaScriptata> seam;
    std::unique_ptr<BancaDatiProva> banca;
    std::unique_ptr<QTemporaryDir> cartella;
    // A fresh database of the row's backend, open as the session's connection.
    void Apri(TipoBackend tipo);
    void VerificaUnMessaggio(const QString& sTitolo, Icona icona, const QString& sInizio = {});
};

void TestManutenzione::init() {
    Sessione::Azzera();
    seam = std::make_unique<PiattaformaScriptata>();
    cartella = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella->isValid());
}

void TestManutenzione::cleanup() {
    Sessione::Azzera();
    banca.reset();
    cartella.reset();
    seam.reset();
}

void TestManutenzione::Apri(TipoBackend tipo) {
    banca = std::make_unique<BancaDatiProva>(tipo);
    Sessione::cnn = Connessione::Apri(banca->Stringa());
}

void TestManutenzione::VerificaUnMessaggio(const QString& sTitolo, Icona icona,
                                           const QString& sInizio) {
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTitolo, sTitolo);
    QCOMPARE(messaggi[0].icona, icona);
    QCOMPARE(messaggi[0].pulsanti, Pulsanti::Ok);
    QVERIFY2(messaggi[0].sTesto.startsWith(sInizio), qPrintable(messaggi[0].sTesto));
}

// --- The command text --------------------------------------------------------------------

void TestManutenzione::ilComandoSiLeggeConLArgomentoTraApici_data() {
    QTest::addColumn<QString>("comando");
    QTest::addColumn<int>("tipo");
    QTest::addColumn<QString>("argomento");
    const int backup = static_cast<int>(Procedura::Tipo::Backup);
    const int indice = static_cast<int>(Procedura::Tipo::IndiceWeb);
    QTest::newRow("percorso") << "SP_MakeBackup '/var/copie/archivio.db'" << backup
                              << "/var/copie/archivio.db";
    QTest::newRow("spazi nel percorso") << "SP_MakeBackup 'C:\\Copie di sicurezza\\archivio.db'"
                                        << backup << "C:\\Copie di sicurezza\\archivio.db";
    QTest::newRow("apice raddoppiato")
        << "SP_MakeBackup '/copie/l''archivio.db'" << backup << "/copie/l'archivio.db";
    QTest::newRow("spazi dopo") << "SP_MakeBackup '/copie/a.db'   " << backup << "/copie/a.db";
    QTest::newRow("piu spazi prima") << "SP_MakeBackup   '/copie/a.db'" << backup << "/copie/a.db";
    QTest::newRow("lingua") << "SP_Indicizza 'italian'" << indice << "italian";
    QTest::newRow("lingua vuota") << "SP_Indicizza ''" << indice << "";
    QTest::newRow("nome in minuscolo") << "sp_indicizza 'english'" << indice << "english";
}

void TestManutenzione::ilComandoSiLeggeConLArgomentoTraApici() {
    QFETCH(QString, comando);
    QFETCH(int, tipo);
    QFETCH(QString, argomento);
    const Procedura procedura = LeggiProcedura(comando);
    QCOMPARE(static_cast<int>(procedura.tipo), tipo);
    QCOMPARE(procedura.sArgomento, argomento);
}

void TestManutenzione::unComandoMalFormatoVieneRifiutatoComeDalServer_data() {
    QTest::addColumn<QString>("comando");
    QTest::addColumn<QString>("inizio");
    QTest::newRow("senza spazio") << "SP_MakeBackup'/copie/a.db'"
                                  << "Impossibile trovare la stored procedure";
    QTest::newRow("nome sconosciuto") << "SP_Ripristina '/copie/a.db'"
                                      << "Impossibile trovare la stored procedure";
    QTest::newRow("senza apici") << "SP_MakeBackup /copie/a.db"
                                 << "Sintassi non corretta in prossimità di";
    QTest::newRow("apice non chiuso") << "SP_MakeBackup '/copie/a.db"
                                      << "Virgolette di chiusura mancanti";
    QTest::newRow("testo dopo l'argomento") << "SP_Indicizza 'italian' 'english'"
                                            << "Sintassi non corretta in prossimità di";
    QTest::newRow("senza argomento") << "SP_Indicizza"
                                     << "La procedura 'SP_Indicizza' prevede";
    QTest::newRow("vuoto") << ""
                           << "Nessuna procedura";
}

void TestManutenzione::unComandoMalFormatoVieneRifiutatoComeDalServer() {
    QFETCH(QString, comando);
    QFETCH(QString, inizio);
    try {
        LeggiProcedura(comando);
        QFAIL("the command was accepted");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().startsWith(inizio), qPrintable(errore.descrizione()));
    }
}

// --- Tabella Config ----------------------------------------------------------------------

void TestManutenzione::tabellaConfigMostraLaRigaConLaVersioneDellApplicazione_data() {
    AggiungiBackend();
}

void TestManutenzione::tabellaConfigMostraLaRigaConLaVersioneDellApplicazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Valore = ?"), {1234.5});
    {
        frmConfig dialogo;
        QCOMPARE(dialogo.objectName(), QStringLiteral("frmConfig"));
        auto testo = [&](const char* nome) {
            return Controllo<QLabel>(&dialogo, QLatin1String(nome))->text();
        };
        QCOMPARE(testo("lblCode"), QStringLiteral("SITO"));
        QCOMPARE(testo("lblDescrizione"), QString());
        QCOMPARE(testo("lblVersione"), QStringLiteral("4"));
        QCOMPARE(testo("lblID_Start"), QStringLiteral("1"));
        QCOMPARE(testo("lblID_End"), QStringLiteral("999999999"));
        QCOMPARE(testo("lblVersioneApp"), QStringLiteral("3.2"));
        QCOMPARE(testo("lblValore"), QStringLiteral("1234,5"));
        QCOMPARE(testo("lblDataValore"), QString());
        // The captions stand beside the values.
        QStringList didascalie;
        for (const QLabel* etichetta : dialogo.findChildren<QLabel*>()) {
            if (etichetta->objectName().isEmpty()) {
                didascalie.append(etichetta->text());
            }
        }
        QCOMPARE(didascalie,
                 (QStringList{QStringLiteral("Code"), QStringLiteral("Descrizione"),
                              QStringLiteral("Versione DB"), QStringLiteral("ID_Start"),
                              QStringLiteral("ID_End"), QStringLiteral("Versione Applicazione"),
                              QStringLiteral("Valore"), QStringLiteral("Data valore")}));
        QCOMPARE(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdEsci"))->text(),
                 QStringLiteral("Esci"));
    }
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Descrizione = ?, DataValore = ?, "
                                         "Versione = ?"),
                          {QStringLiteral("Archivio di Stato"), QStringLiteral("01/03/2024"), 3.2});
    frmConfig dialogo;
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("lblDescrizione"))->text(),
             QStringLiteral("Archivio di Stato"));
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("lblDataValore"))->text(),
             QStringLiteral("01/03/2024"));
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("lblVersione"))->text(),
             QStringLiteral("3,2"));
    QVERIFY(seam->Messaggi().isEmpty());
}

void TestManutenzione::tabellaConfigSenzaConnessioneDaErroreD1() {
    Apri(TipoBackend::SQLite);
    Sessione::cnn->Chiudi();
    frmConfig dialogo;
    VerificaUnMessaggio(QStringLiteral("Errore D1"), Icona::Critica, QStringLiteral("frmConfig\n"));
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("lblCode"))->text(), QString());
}

void TestManutenzione::leVociDiStrumentiApronoIDialoghiModali() {
    CartellaProva sito;
    banca = std::make_unique<BancaDatiProva>(TipoBackend::SQLite);
    sito.ScriviSito(banca->Testa(), banca->Server(), banca->Database());
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, *banca));
    seam->Svuota();
    const struct {
        const char* voce;
        const char* finestra;
        const char* chiudi;
        const char* didascalia;
    } voci[] = {
        {"mnuTabellaID", "frmConfig", "cmdEsci", "Tabella Config"},
        {"mnuAggValore", "frmValore", "cmdAnnulla", "Valore"},
        {"mnuBackup", "frmBackup", "cmdNO", "Backup"},
        {"mnuIndicizzazioneWeb", "frmIdicizWeb", "cmdNO", "Indicizzazione web"},
    };
    for (const auto& voce : voci) {
        bool visto = false;
        QString didascalia;
        const QString chiudi = QLatin1String(voce.chiudi);
        AlComparire(QLatin1String(voce.finestra), [&visto, &didascalia, chiudi](QWidget* dialogo) {
            visto = dialogo->isModal();
            didascalia = dialogo->windowTitle();
            Controllo<QPushButton>(dialogo, chiudi)->click();
        });
        principale.findChild<QAction*>(QLatin1String(voce.voce))->trigger();
        QVERIFY2(visto, voce.finestra);
        QCOMPARE(didascalia, QLatin1String(voce.didascalia));
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }
    QVERIFY(seam->Messaggi().isEmpty());
    principale.close();
}

// --- Aggiorna Valore ---------------------------------------------------------------------

void TestManutenzione::ilValoreSiMostraConIlFormatoItaliano() {
    QCOMPARE(frmValore::FormatoValore(1234567.5), QStringLiteral("1.234.567,50"));
    QCOMPARE(frmValore::FormatoValore(1234), QStringLiteral("1.234,00"));
    QCOMPARE(frmValore::FormatoValore(12.345), QStringLiteral("12,35"));
    QCOMPARE(frmValore::FormatoValore(0.5), QStringLiteral(",50"));
    QCOMPARE(frmValore::FormatoValore(0), QStringLiteral(",00"));
    QCOMPARE(frmValore::FormatoValore(-1234.5), QStringLiteral("-1.234,50"));

    Apri(TipoBackend::SQLite);
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Valore = ?, DataValore = ?"),
                          {2500.75, QStringLiteral("31/12/2023")});
    frmValore dialogo;
    QCOMPARE(dialogo.windowTitle(), QStringLiteral("Valore"));
    auto* txtValore = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"));
    auto* txtData = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"));
    QCOMPARE(txtValore->text(), QStringLiteral("2.500,75"));
    QCOMPARE(txtData->text(), QStringLiteral("31/12/2023"));
    QVERIFY(!txtValore->isEnabled());
    QVERIFY(!txtData->isEnabled());
    QVERIFY(seam->Messaggi().isEmpty());
}

void TestManutenzione::modificaAbilitaICampiEMostraConferma() {
    Apri(TipoBackend::SQLite);
    frmValore dialogo;
    dialogo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogo));
    auto* cmdCambiaV = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdCambiaV"));
    auto* cmdConferma = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"));
    QCOMPARE(cmdCambiaV->text(), QStringLiteral("Modifica"));
    QCOMPARE(cmdConferma->text(), QStringLiteral("Conferma"));
    QCOMPARE(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdAnnulla"))->text(),
             QStringLiteral("Annulla"));
    QVERIFY(cmdCambiaV->isVisible());
    QVERIFY(!cmdConferma->isVisible());
    cmdCambiaV->click();
    QVERIFY(!cmdCambiaV->isVisible());
    QVERIFY(cmdConferma->isVisible());
    QVERIFY(Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"))->isEnabled());
    QVERIFY(Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"))->isEnabled());
}

void TestManutenzione::unValoreConPuntoDelleMigliaiaEVirgolaSiSalvaComeNumero_data() {
    AggiungiBackend();
}

void TestManutenzione::unValoreConPuntoDelleMigliaiaEVirgolaSiSalvaComeNumero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::dValore = 7.0;
    frmValore dialogo;
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdCambiaV"))->click();
    auto* txtValore = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"));
    txtValore->setText(QStringLiteral("1.234,56"));
    Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"))
        ->setText(QStringLiteral(" 02/01/2024 "));
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"))->click();
    QVERIFY(seam->Messaggi().isEmpty());
    const QVariant valore = Valore(*Sessione::cnn, QStringLiteral("SELECT Valore FROM Config"));
    QCOMPARE(valore.toDouble(), 1234.56);
    if (backend == TipoBackend::SQLite) {
        QCOMPARE(
            Valore(*Sessione::cnn, QStringLiteral("SELECT typeof(Valore) FROM Config")).toString(),
            QStringLiteral("real"));
    }
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT DataValore FROM Config")).toString(),
             QStringLiteral("02/01/2024"));
    // Shown again as stored, and the boxes locked again.
    QCOMPARE(txtValore->text(), QStringLiteral("1.234,56"));
    QVERIFY(!txtValore->isEnabled());
    QVERIFY(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"))->isHidden());
    // The session keeps the value read at the start.
    QCOMPARE(Sessione::dValore, 7.0);
}

void TestManutenzione::unaDataVuotaLasciaQuellaSalvata_data() {
    AggiungiBackend();
}

void TestManutenzione::unaConfigSenzaRigaLasciaIDialoghiVuotiENonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::cnn->Esegui(QStringLiteral("DELETE FROM Config"));
    {
        frmConfig dialogo;
        QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("lblCode"))->text(), QString());
        QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("lblVersione"))->text(), QString());
    }
    frmValore dialogo;
    QCOMPARE(Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"))->text(), QString());
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdCambiaV"))->click();
    Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"))->setText(QStringLiteral("2,5"));
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"))->click();
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT COUNT(*) FROM Config")).toInt(), 0);
}

void TestManutenzione::unaDataVuotaLasciaQuellaSalvata() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Valore = ?, DataValore = ?"),
                          {10.0, QStringLiteral("15/03/2020")});
    frmValore dialogo;
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdCambiaV"))->click();
    Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"))->setText(QStringLiteral("12,5"));
    Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"))->setText(QStringLiteral("   "));
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"))->click();
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT Valore FROM Config")).toDouble(), 12.5);
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT DataValore FROM Config")).toString(),
             QStringLiteral("15/03/2020"));
    QCOMPARE(Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"))->text(),
             QStringLiteral("15/03/2020"));
}

void TestManutenzione::lasciareUnValoreNonNumericoDaValoreErrato() {
    Apri(TipoBackend::SQLite);
    frmValore dialogo;
    QVERIFY(MostraInModifica(dialogo));
    auto* txtValore = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"));
    auto* txtData = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"));
    QVERIFY(txtValore->hasFocus());
    // A good date, so that passing through its box says nothing.
    txtData->setText(QStringLiteral("01/01/2024"));
    // A good number, thousands point and decimal comma, passes without a word.
    txtValore->setText(QStringLiteral("1.234,5"));
    txtData->setFocus();
    QVERIFY(seam->Messaggi().isEmpty());
    txtValore->setFocus();
    txtValore->setText(QStringLiteral("dodici"));
    txtData->setFocus();
    VerificaUnMessaggio(QStringLiteral("Attenzione"), Icona::Informazione,
                        QStringLiteral("Valore errato"));
    QCOMPARE(seam->Messaggi()[0].sTesto, QStringLiteral("Valore errato"));
    // The message is all: the text stays and the focus goes on.
    QCOMPARE(txtValore->text(), QStringLiteral("dodici"));
    QVERIFY(txtData->hasFocus());
}

void TestManutenzione::lasciareUnaDataNonValidaDaDataErrata() {
    Apri(TipoBackend::SQLite);
    frmValore dialogo;
    QVERIFY(MostraInModifica(dialogo));
    auto* txtValore = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"));
    auto* txtData = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"));
    // A good date passes without a word.
    txtData->setFocus();
    txtData->setText(QStringLiteral("29/02/2024"));
    txtValore->setFocus();
    QVERIFY(seam->Messaggi().isEmpty());
    txtData->setFocus();
    txtData->setText(QStringLiteral("31/02/2024"));
    txtValore->setFocus();
    VerificaUnMessaggio(QStringLiteral("Attenzione"), Icona::Informazione,
                        QStringLiteral("Data errata"));
    QCOMPARE(seam->Messaggi()[0].sTesto, QStringLiteral("Data errata"));
    QCOMPARE(txtData->text(), QStringLiteral("31/02/2024"));
}

void TestManutenzione::lasciareLaDataVuotaDaDataErrataEConfermaTieneQuellaSalvata() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Valore = ?, DataValore = ?"),
                          {10.0, QStringLiteral("15/03/2020")});
    frmValore dialogo;
    QVERIFY(MostraInModifica(dialogo));
    auto* txtValore = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"));
    auto* txtData = Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"));
    // An emptied box is no date: leaving it says so, as for any text that is not one.
    txtData->setFocus();
    txtData->setText(QStringLiteral("  "));
    txtValore->setFocus();
    VerificaUnMessaggio(QStringLiteral("Attenzione"), Icona::Informazione,
                        QStringLiteral("Data errata"));
    QCOMPARE(seam->Messaggi()[0].sTesto, QStringLiteral("Data errata"));
    QCOMPARE(txtData->text(), QStringLiteral("  "));
    QVERIFY(txtValore->hasFocus());
    // The message is all: Conferma stores the value and keeps the stored date.
    txtValore->setText(QStringLiteral("12,5"));
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"))->click();
    QCOMPARE(seam->Messaggi().size(), 1);
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT Valore FROM Config")).toDouble(), 12.5);
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT DataValore FROM Config")).toString(),
             QStringLiteral("15/03/2020"));
    QCOMPARE(txtData->text(), QStringLiteral("15/03/2020"));
}

void TestManutenzione::unValoreErratoArrivatoAConfermaDaErroreZ1ENonCambiaNulla_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("valore");
    QTest::addColumn<QString>("data");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        QTest::newRow(qPrintable(QStringLiteral("%1 valore").arg(QLatin1String(nome))))
            << tipo << "dodici"
            << "01/01/2024";
        QTest::newRow(qPrintable(QStringLiteral("%1 valore vuoto").arg(QLatin1String(nome))))
            << tipo << ""
            << "01/01/2024";
        QTest::newRow(qPrintable(QStringLiteral("%1 data").arg(QLatin1String(nome))))
            << tipo << "5,5"
            << "31/02/2024";
    }
}

void TestManutenzione::unValoreErratoArrivatoAConfermaDaErroreZ1ENonCambiaNulla() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, valore);
    QFETCH(QString, data);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Valore = ?, DataValore = ?"),
                          {3.0, QStringLiteral("15/03/2020")});
    frmValore dialogo;
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdCambiaV"))->click();
    Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"))->setText(valore);
    Controllo<QLineEdit>(&dialogo, QStringLiteral("txtData"))->setText(data);
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdConferma"))->click();
    VerificaUnMessaggio(QStringLiteral("Errore Z1"), Icona::Critica);
    QVERIFY(seam->Messaggi()[0].sTesto.contains(u'\n'));
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT Valore FROM Config")).toDouble(), 3.0);
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT DataValore FROM Config")).toString(),
             QStringLiteral("15/03/2020"));
    // The boxes stay open for a correction.
    QVERIFY(Controllo<QLineEdit>(&dialogo, QStringLiteral("txtValore"))->isEnabled());
}

// --- Backup --------------------------------------------------------------------------------

void TestManutenzione::laCopiaRipristinataHaTutteLeRighe_data() {
    AggiungiBackend();
}

void TestManutenzione::laCopiaRipristinataHaTutteLeRighe() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Archivio(*Sessione::cnn);
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Descrizione = ?"),
                          {QStringLiteral("Archivio dell'abbazia")});
    EseguiProcedura(*Sessione::cnn, QStringLiteral("SP_Indicizza 'italian'"));
    const QMap<QString, qint64> prima = Conteggi(*Sessione::cnn);
    QVERIFY(prima.value(QStringLiteral("elementi")) == 9);

    // A folder and a name with a blank and a quote, as a site may well have.
    QVERIFY(QDir(cartella->path()).mkpath(QStringLiteral("copie di sicurezza")));
    const QString destinazione =
        cartella->filePath(QStringLiteral("copie di sicurezza/l'archivio.copia"));
    Sessione::sParam03 = QLatin1Char(' ') + Apici(destinazione);
    frmBackup dialogo;
    dialogo.show();
    QCOMPARE(dialogo.windowTitle(), QStringLiteral("Backup"));
    auto* Label1 = Controllo<QLabel>(&dialogo, QStringLiteral("Label1"));
    auto* cmdSI = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"));
    auto* cmdNO = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"));
    QCOMPARE(Label1->text(), QStringLiteral("Vuoi eseguire il backup?"));
    QCOMPARE(cmdSI->text(), QStringLiteral("Si"));
    QCOMPARE(cmdNO->text(), QStringLiteral("No"));
    cmdSI->click();
    QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));
    QCOMPARE(Label1->text(), QStringLiteral("Backup terminato. Click su Esci"));
    QCOMPARE(cmdNO->text(), QStringLiteral("Esci"));
    QVERIFY(cmdNO->isVisible());
    QVERIFY(!cmdSI->isVisible());
    QVERIFY(QFileInfo(destinazione).size() > 0);
    QCOMPARE(Contenuto(QFileInfo(destinazione).absolutePath()),
             QStringList{QStringLiteral("l'archivio.copia")});

    if (backend == TipoBackend::SQLite) {
        auto copia = Connessione::Apri(ComponiStringaConnessione(
            QStringLiteral("Provider=QSQLITE"), QFileInfo(destinazione).absolutePath(),
            QFileInfo(destinazione).fileName(), QStringLiteral("x"), QStringLiteral("y")));
        QCOMPARE(Conteggi(*copia), prima);
        QCOMPARE(Valore(*copia, QStringLiteral("SELECT Descrizione FROM Config")).toString(),
                 QStringLiteral("Archivio dell'abbazia"));
        QCOMPARE(Cerca(*copia, backend, QStringLiteral("Tranquillini")), QList<qint64>{4});
    } else {
        const QString pgRestore = ProgrammaPostgreSQL(QStringLiteral("pg_restore"));
        QVERIFY2(!pgRestore.isEmpty(), "pg_restore not found");
        DatabaseRipristino ripristino(banca->Database() + QStringLiteral("_ripristino"));
        QProcess processo;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(QStringLiteral("PGPASSWORD"), ServerProva::Password());
        processo.setProcessEnvironment(ambiente);
        processo.start(pgRestore,
                       {QStringLiteral("-h"), ServerProva::Host(), QStringLiteral("-p"),
                        QString::number(ServerProva::Porta()), QStringLiteral("-U"),
                        ServerProva::Utente(), QStringLiteral("-w"), QStringLiteral("--no-owner"),
                        QStringLiteral("-d"), banca->Database() + QStringLiteral("_ripristino"),
                        destinazione});
        QVERIFY(processo.waitForFinished(120000));
        QVERIFY2(processo.exitCode() == 0, processo.readAllStandardError().constData());
        auto copia = Connessione::Apri(ripristino.sStringa);
        QCOMPARE(Conteggi(*copia), prima);
        QCOMPARE(Valore(*copia, QStringLiteral("SELECT Descrizione FROM Config")).toString(),
                 QStringLiteral("Archivio dell'abbazia"));
        QCOMPARE(Cerca(*copia, backend, QStringLiteral("Tranquillini")), QList<qint64>{4});
        copia->Chiudi();
    }
    cmdNO->click();
    QVERIFY(!dialogo.isVisible());
}

void TestManutenzione::unaCopiaDoveNonSiPuoScrivereDaErroreB1ENonLasciaNulla_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("destinazione");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        QTest::newRow(qPrintable(QStringLiteral("%1 cartella assente").arg(QLatin1String(nome))))
            << tipo << "manca/copia.db";
        QTest::newRow(
            qPrintable(QStringLiteral("%1 cartella che e un file").arg(QLatin1String(nome))))
            << tipo << "file.txt/copia.db";
        QTest::newRow(qPrintable(QStringLiteral("%1 nessun percorso").arg(QLatin1String(nome))))
            << tipo << "";
    }
}

void TestManutenzione::unaCopiaDoveNonSiPuoScrivereDaErroreB1ENonLasciaNulla() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, destinazione);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    QFile file(cartella->filePath(QStringLiteral("file.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("testo");
    file.close();
    const QStringList prima = Contenuto(cartella->path());
    Sessione::sParam03 =
        QLatin1Char(' ') +
        Apici(destinazione.isEmpty() ? QString() : cartella->filePath(destinazione));
    frmBackup dialogo;
    dialogo.show();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    VerificaUnMessaggio(QStringLiteral("Errore B1"), Icona::Critica);
    QVERIFY(seam->Messaggi()[0].sTesto.contains(u'\n'));
    // The dialog asks again, with its two buttons.
    QVERIFY(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->isVisible());
    QVERIFY(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"))->isVisible());
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("Label1"))->text(),
             QStringLiteral("Vuoi eseguire il backup?"));
    QCOMPARE(Contenuto(cartella->path()), prima);
    QVERIFY(dialogo.close());
}

void TestManutenzione::unaCopiaNonSovrascriveUnFileEsistente_data() {
    AggiungiBackend();
}

void TestManutenzione::unaCopiaNonSovrascriveUnFileEsistente() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const QString destinazione = cartella->filePath(QStringLiteral("copia.db"));
    QFile file(destinazione);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("la copia di ieri");
    file.close();
    try {
        EseguiProcedura(*Sessione::cnn, QStringLiteral("SP_MakeBackup ") + Apici(destinazione));
        QFAIL("the existing file was overwritten");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().contains(QStringLiteral("esiste già")),
                 qPrintable(errore.descrizione()));
    }
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("la copia di ieri"));
    QCOMPARE(Contenuto(cartella->path()), QStringList{QStringLiteral("copia.db")});
}

void TestManutenzione::unCodice03SenzaSpazioInizialeDaErroreB1_data() {
    AggiungiBackend();
}

void TestManutenzione::unCodice03SenzaSpazioInizialeDaErroreB1() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::sParam03 = Apici(cartella->filePath(QStringLiteral("copia.db")));
    frmBackup dialogo;
    dialogo.show();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    VerificaUnMessaggio(QStringLiteral("Errore B1"), Icona::Critica);
    QVERIFY2(seam->Messaggi()[0].sTesto.contains(QStringLiteral("SP_MakeBackup'")),
             qPrintable(seam->Messaggi()[0].sTesto));
    QVERIFY(Contenuto(cartella->path()).isEmpty());
    QVERIFY(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"))->isVisible());
}

void TestManutenzione::unPgDumpCheFallisceNonLasciaNullaEDiceIlPerche() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    Apri(TipoBackend::PostgreSQL);
    // The connection as it would be with a password that the server no longer takes.
    const QString nome = QStringLiteral("prova-password-sbagliata");
    {
        QSqlDatabase sbagliata = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), nome);
        sbagliata.setHostName(ServerProva::Host());
        sbagliata.setPort(ServerProva::Porta());
        sbagliata.setDatabaseName(banca->Database());
        sbagliata.setUserName(ServerProva::Utente());
        sbagliata.setPassword(QStringLiteral("non-questa"));
        const QString destinazione = cartella->filePath(QStringLiteral("copia.dump"));
        try {
            Sessione::cnn->backend().Backup(sbagliata, Sessione::cnn->Stringa(), destinazione);
            QFAIL("pg_dump did not fail");
        } catch (const Errore& errore) {
            QCOMPARE(errore.sorgente(), QStringLiteral("pg_dump"));
            QVERIFY2(errore.descrizione().contains(QStringLiteral("password")),
                     qPrintable(errore.descrizione()));
        }
    }
    QSqlDatabase::removeDatabase(nome);
    QVERIFY(Contenuto(cartella->path()).isEmpty());
}

// --- Web index -----------------------------------------------------------------------------

void TestManutenzione::lIndiceWebTieneGliElementiConTuttiGliAntenatiPubblicati_data() {
    AggiungiBackend();
}

void TestManutenzione::lIndiceWebTieneGliElementiConTuttiGliAntenatiPubblicati() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Connessione& c = *Sessione::cnn;
    Archivio(c);
    Sessione::sParam07 = QStringLiteral(" 'italian'");
    {
        frmIdicizWeb dialogo;
        dialogo.show();
        QCOMPARE(dialogo.objectName(), QStringLiteral("frmIdicizWeb"));
        QCOMPARE(dialogo.windowTitle(), QStringLiteral("Indicizzazione web"));
        auto* Label1 = Controllo<QLabel>(&dialogo, QStringLiteral("Label1"));
        QCOMPARE(Label1->text(), QStringLiteral("Vuoi eseguire indicizzazione web?"));
        Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
        QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));
        QCOMPARE(Label1->text(), QStringLiteral("Indicizzazione web terminata. Click su Esci"));
        QCOMPARE(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"))->text(),
                 QStringLiteral("Esci"));
    }
    QCOMPARE(Numeri(c, QStringLiteral("SELECT ID_Elemento FROM IndiceWeb")),
             (QList<qint64>{1, 2, 3, 4, 5, 6}));
    // A word of a name finds the element, and those below it by their full denomination.
    QCOMPARE(Cerca(c, backend, QStringLiteral("Rovereto")), (QList<qint64>{3, 4}));
    QCOMPARE(Cerca(c, backend, QStringLiteral("Tranquillini")), QList<qint64>{4});
    QVERIFY(Cerca(c, backend, QStringLiteral("Bonporti")).isEmpty());

    // What each row carries: parent, kind, names, dates.
    QSqlQuery riga = c.Esegui(QStringLiteral("SELECT ID_ElementoPadre, Tipologia, Denominazione, "
                                             "DenomCompleta, DataInizio, DataFine "
                                             "FROM IndiceWeb WHERE ID_Elemento = ?"),
                              {2});
    QVERIFY(riga.next());
    QCOMPARE(riga.value(0).toLongLong(), 1);
    QCOMPARE(riga.value(1).toString(), QStringLiteral("02"));
    QCOMPARE(riga.value(2).toString(), QStringLiteral("Archivio notarile"));
    QCOMPARE(riga.value(3).toString(),
             Valore(c,
                    QStringLiteral("SELECT DenomCompleta FROM ComplessiDoc WHERE ID_Elemento = ?"),
                    {2})
                 .toString());
    QVERIFY(riga.value(3).toString().contains(QStringLiteral("Archivio di Stato di Trento")));
    QCOMPARE(riga.value(4).toLongLong(), 15000101);
    QCOMPARE(riga.value(5).toLongLong(), 18001231);
    riga.finish();
    QCOMPARE(
        Valore(c, QStringLiteral("SELECT DataInizio FROM IndiceWeb WHERE ID_Elemento = ?"), {5})
            .toLongLong(),
        18500101);
    QCOMPARE(Valore(c, QStringLiteral("SELECT DataFine FROM IndiceWeb WHERE ID_Elemento = ?"), {5})
                 .toLongLong(),
             19001231);
    QCOMPARE(
        Valore(c, QStringLiteral("SELECT DataInizio FROM IndiceWeb WHERE ID_Elemento = ?"), {6})
            .toLongLong(),
        12340312);
    QCOMPARE(
        Valore(c, QStringLiteral("SELECT DenomCompleta FROM IndiceWeb WHERE ID_Elemento = ?"), {6})
            .toString(),
        QStringLiteral("Pergamena 1"));
    QVERIFY(Valore(c,
                   QStringLiteral("SELECT ID_ElementoPadre FROM IndiceWeb WHERE ID_Elemento = ?"),
                   {1})
                .isNull());

    // A middle element unpublished: it and everything below it leave the index.
    Pubblica(c, 3, QStringLiteral("N"));
    Sessione::sParam07 = QStringLiteral(" ''");
    EseguiProcedura(c, QStringLiteral("SP_Indicizza") + Sessione::sParam07);
    QCOMPARE(Numeri(c, QStringLiteral("SELECT ID_Elemento FROM IndiceWeb")),
             (QList<qint64>{1, 2, 5, 6}));
    QVERIFY(Cerca(c, backend, QStringLiteral("Tranquillini")).isEmpty());
    QVERIFY(Cerca(c, backend, QStringLiteral("Rovereto")).isEmpty());
    QCOMPARE(Cerca(c, backend, QStringLiteral("notarile")), QList<qint64>{2});
    QCOMPARE(Cerca(c, backend, QStringLiteral("Inventario")), QList<qint64>{5});
    if (backend == TipoBackend::PostgreSQL) {
        // An empty language is Italian.
        QCOMPARE(Valore(c, QStringLiteral("SELECT COUNT(*) FROM IndiceWeb WHERE Testo = "
                                          "to_tsvector('italian', COALESCE(Denominazione, '') || "
                                          "' ' || COALESCE(DenomCompleta, ''))"))
                     .toLongLong(),
                 4);
    }
    // Published again, and the top one withdrawn: nothing of its branch is left.
    Pubblica(c, 3, QStringLiteral("S"));
    Pubblica(c, 1, QStringLiteral("N"));
    EseguiProcedura(c, QStringLiteral("SP_Indicizza 'italian'"));
    QVERIFY(Numeri(c, QStringLiteral("SELECT ID_Elemento FROM IndiceWeb")).isEmpty());
    QVERIFY(Cerca(c, backend, QStringLiteral("notarile")).isEmpty());
}

void TestManutenzione::lIndiceWebDiUnDatabaseVuotoEVuoto_data() {
    AggiungiBackend();
}

void TestManutenzione::lIndiceWebDiUnDatabaseVuotoEVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Sessione::sParam07 = QStringLiteral(" 'italian'");
    frmIdicizWeb dialogo;
    dialogo.show();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("Label1"))->text(),
             QStringLiteral("Indicizzazione web terminata. Click su Esci"));
    QCOMPARE(Valore(*Sessione::cnn, QStringLiteral("SELECT COUNT(*) FROM IndiceWeb")).toLongLong(),
             0);
    QVERIFY(Cerca(*Sessione::cnn, backend, QStringLiteral("archivio")).isEmpty());
}

void TestManutenzione::unaLinguaSconosciutaDaErroreE1ELasciaLIndiceComEra() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    Apri(TipoBackend::PostgreSQL);
    const Connessione& c = *Sessione::cnn;
    Archivio(c);
    EseguiProcedura(c, QStringLiteral("SP_Indicizza 'italian'"));
    Pubblica(c, 3, QStringLiteral("N"));
    Sessione::sParam07 = QStringLiteral(" 'klingon'");
    frmIdicizWeb dialogo;
    dialogo.show();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    VerificaUnMessaggio(QStringLiteral("Errore E1"), Icona::Critica);
    QVERIFY2(seam->Messaggi()[0].sTesto.contains(QStringLiteral("klingon")),
             qPrintable(seam->Messaggi()[0].sTesto));
    QVERIFY(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"))->isVisible());
    QCOMPARE(Numeri(c, QStringLiteral("SELECT ID_Elemento FROM IndiceWeb")),
             (QList<qint64>{1, 2, 3, 4, 5, 6}));
    QCOMPARE(Cerca(c, TipoBackend::PostgreSQL, QStringLiteral("Tranquillini")), QList<qint64>{4});
}

void TestManutenzione::ilDialogoRestaVivoMentreLaProceduraLavoraENonRiparte_data() {
    AggiungiBackend();
}

void TestManutenzione::ilDialogoRestaVivoMentreLaProceduraLavoraENonRiparte() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Archivio(*Sessione::cnn);
    // Another workstation holds IndiceWeb: the procedure waits for it.
    auto altra = Connessione::Apri(banca->Stringa());
    if (backend == TipoBackend::SQLite) {
        altra->Esegui(QStringLiteral("BEGIN IMMEDIATE"));
    } else {
        QVERIFY(altra->Db().transaction());
        // A statement that the server does not prepare: run as it stands.
        QSqlQuery blocco(altra->Db());
        QVERIFY(blocco.exec(QStringLiteral("LOCK TABLE IndiceWeb IN ACCESS EXCLUSIVE MODE")));
    }
    Sessione::sParam07 = QStringLiteral(" 'italian'");
    frmIdicizWeb dialogo;
    dialogo.show();
    auto* Label1 = Controllo<QLabel>(&dialogo, QStringLiteral("Label1"));
    auto* cmdSI = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"));
    auto* cmdNO = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"));

    bool visto = false;
    QString testoDurante;
    bool pulsantiNascosti = false;
    bool ancoraAperto = false;
    qint64 msSecondoClic = -1;
    QTimer::singleShot(300, &dialogo, [&] {
        visto = true;
        testoDurante = Label1->text();
        pulsantiNascosti = !cmdSI->isVisible() && !cmdNO->isVisible();
        // Neither the close box nor Escape ends it, and a second start does nothing.
        dialogo.close();
        dialogo.reject();
        ancoraAperto = dialogo.isVisible() && dialogo.InCorso();
        QElapsedTimer orologio;
        orologio.start();
        cmdSI->click();
        msSecondoClic = orologio.elapsed();
        if (backend == TipoBackend::SQLite) {
            altra->Esegui(QStringLiteral("ROLLBACK"));
        } else {
            altra->Db().rollback();
        }
    });
    QElapsedTimer durata;
    durata.start();
    cmdSI->click();
    QVERIFY(visto);
    QCOMPARE(testoDurante, QStringLiteral("Indicizzazione web in corso. Prego attendere"));
    QVERIFY(pulsantiNascosti);
    QVERIFY(ancoraAperto);
    QVERIFY2(msSecondoClic >= 0 && msSecondoClic < 200, qPrintable(QString::number(msSecondoClic)));
    QVERIFY(durata.elapsed() >= 300);
    QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));
    QCOMPARE(Label1->text(), QStringLiteral("Indicizzazione web terminata. Click su Esci"));
    QVERIFY(!dialogo.InCorso());
    QCOMPARE(Numeri(*Sessione::cnn, QStringLiteral("SELECT ID_Elemento FROM IndiceWeb")),
             (QList<qint64>{1, 2, 3, 4, 5, 6}));
    altra->Chiudi();
    cmdNO->click();
    QVERIFY(!dialogo.isVisible());
}

// --- After a failure ----------------------------------------------------------------------

void TestManutenzione::unBackupFallitoTornaAllaDomandaEUnSecondoTentativoRiesce_data() {
    AggiungiBackend();
}

void TestManutenzione::unBackupFallitoTornaAllaDomandaEUnSecondoTentativoRiesce() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    Archivio(*Sessione::cnn);
    // The folder of the copies is not there yet.
    const QString destinazione = cartella->filePath(QStringLiteral("copie/archivio.copia"));
    Sessione::sParam03 = QLatin1Char(' ') + Apici(destinazione);
    frmBackup dialogo;
    dialogo.show();
    auto* Label1 = Controllo<QLabel>(&dialogo, QStringLiteral("Label1"));
    auto* cmdSI = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"));
    auto* cmdNO = Controllo<QPushButton>(&dialogo, QStringLiteral("cmdNO"));

    // While the box is up, the dialog has already left "Backup in corso".
    QString testoAlBox;
    bool bPulsantiAlBox = false;
    seam->alMessaggio = [&](const Messaggio&) {
        testoAlBox = Label1->text();
        bPulsantiAlBox = cmdSI->isVisible() && cmdNO->isVisible();
    };
    cmdSI->click();
    VerificaUnMessaggio(QStringLiteral("Errore B1"), Icona::Critica);
    // The reason is the server's: the form of the setting was right, and is not shown.
    QVERIFY2(!seam->Messaggi()[0].sTesto.contains(QStringLiteral("Param.txt")),
             qPrintable(seam->Messaggi()[0].sTesto));
    QCOMPARE(testoAlBox, QStringLiteral("Vuoi eseguire il backup?"));
    QVERIFY(bPulsantiAlBox);
    QCOMPARE(dialogo.windowTitle(), QStringLiteral("Backup"));
    QCOMPARE(Label1->text(), QStringLiteral("Vuoi eseguire il backup?"));
    QVERIFY(cmdSI->isVisible() && cmdSI->isEnabled());
    QVERIFY(cmdNO->isVisible() && cmdNO->isEnabled());
    QCOMPARE(cmdSI->text(), QStringLiteral("Si"));
    QCOMPARE(cmdNO->text(), QStringLiteral("No"));
    QVERIFY(!dialogo.InCorso());
    QVERIFY(!QFileInfo::exists(destinazione));

    // The folder made, a second try from the same dialog runs and ends well.
    seam->alMessaggio = nullptr;
    seam->Svuota();
    QVERIFY(QDir(cartella->path()).mkpath(QStringLiteral("copie")));
    cmdSI->click();
    QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));
    QCOMPARE(Label1->text(), QStringLiteral("Backup terminato. Click su Esci"));
    QCOMPARE(cmdNO->text(), QStringLiteral("Esci"));
    QVERIFY(cmdNO->isVisible());
    QVERIFY(!cmdSI->isVisible());
    QVERIFY(QFileInfo(destinazione).size() > 0);

    // The close box works after a failure as after a success.
    QVERIFY(dialogo.close());
}

void TestManutenzione::unCodice03ScrittoComeGliAltriDaErroreB1ConLaFormaAttesa_data() {
    AggiungiBackend();
}

void TestManutenzione::unCodice03ScrittoComeGliAltriDaErroreB1ConLaFormaAttesa() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva sito;
    Apri(backend);
    // As the other codes are written: no blank after the separator, no quotes.
    sito.Scrivi(QStringLiteral("Param.txt"), "\"01=/srv/immagini\"\r\n03=/srv/copie/a.db\r\n");
    Sessione::LeggiParam(QStringLiteral("PrimoMDI"));
    QCOMPARE(Sessione::sParam03, QStringLiteral("/srv/copie/a.db"));
    frmBackup dialogo;
    dialogo.show();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    VerificaUnMessaggio(QStringLiteral("Errore B1"), Icona::Critica);
    // The box as before, source and description, with the expected form below.
    QCOMPARE(seam->Messaggi()[0].sTesto.split(u'\n'),
             (QStringList{QStringLiteral("Procedure"),
                          QStringLiteral("Impossibile trovare la stored procedure "
                                         "'SP_MakeBackup/srv/copie/a.db'."),
                          QStringLiteral("In Param.txt il codice 03 va scritto con uno spazio "
                                         "dopo il separatore e il file tra apici, per esempio: "
                                         "03= '/percorso/file'")}));
    QVERIFY(Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->isVisible());

    // Written in that form, the same file goes.
    QVERIFY(QDir(cartella->path()).mkpath(QStringLiteral("copie")));
    const QString destinazione = cartella->filePath(QStringLiteral("copie/a.db"));
    sito.Scrivi(QStringLiteral("Param.txt"), "03= " + Apici(destinazione).toUtf8() + "\r\n");
    Sessione::LeggiParam(QStringLiteral("PrimoMDI"));
    seam->Svuota();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));
    QVERIFY(QFileInfo(destinazione).size() > 0);
}

void TestManutenzione::unCodice07SenzaApiciDaErroreE1ConLaFormaAttesa() {
    Apri(TipoBackend::SQLite);
    Sessione::sParam07 = QStringLiteral("italian");
    frmIdicizWeb dialogo;
    dialogo.show();
    Controllo<QPushButton>(&dialogo, QStringLiteral("cmdSI"))->click();
    VerificaUnMessaggio(QStringLiteral("Errore E1"), Icona::Critica);
    QVERIFY2(seam->Messaggi()[0].sTesto.endsWith(
                 QStringLiteral("\nIn Param.txt il codice 07 va scritto con uno spazio dopo il "
                                "separatore e la lingua tra apici, per esempio: 07= 'italian'")),
             qPrintable(seam->Messaggi()[0].sTesto));
    QCOMPARE(Controllo<QLabel>(&dialogo, QStringLiteral("Label1"))->text(),
             QStringLiteral("Vuoi eseguire indicizzazione web?"));
}

QTEST_MAIN(TestManutenzione)
#include "tst_manutenzione.moc"
