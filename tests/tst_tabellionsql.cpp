// tabellion-sql, the tool the schema upgrade starts: it runs a script on a site's database
// under the user's login and fails cleanly.

#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "RuoliSitoProva.h"
#include "session/Errore.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>
#include <optional>

namespace {

struct Esito {
    int codice;
    QString uscita;
    QString errori;
};

Esito Esegui(const CartellaProva& cartella, const QStringList& argomenti) {
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("TABELLION_CARTELLA"), cartella.Percorso());
    processo.setProcessEnvironment(ambiente);
    processo.start(qEnvironmentVariable("TABELLION_SQL"), argomenti);
    if (!processo.waitForFinished(60000)) {
        return {-1, QString(), QStringLiteral("did not finish")};
    }
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            QString::fromUtf8(processo.readAllStandardOutput()),
            QString::fromUtf8(processo.readAllStandardError())};
}

QStringList Login(const BancaDatiProva& banca, bool attaccati) {
    if (attaccati) {
        return {QStringLiteral("-U") + banca.Utente(), QStringLiteral("-P") + banca.Password(),
                QStringLiteral("-S") + banca.Server(), QStringLiteral("-d") + banca.Database()};
    }
    return {QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"), banca.Password(),
            QStringLiteral("-S"), banca.Server(), QStringLiteral("-d"), banca.Database()};
}

QStringList Identita(const QString& sCodice, qint64 lInizio, qint64 lFine) {
    return {QStringLiteral("--codice"),    sCodice,
            QStringLiteral("--id-inizio"), QString::number(lInizio),
            QStringLiteral("--id-fine"),   QString::number(lFine)};
}

// On PostgreSQL a site's database needs its roles: those of the test, with its database's
// name, so that nothing stays on the server. SQLite has none.
struct RuoliDelTest {
    std::optional<RuoliSitoProva> ruoli;
    QString sDatabase;
    QStringList opzioni; // --proprietario and --gruppo

    RuoliDelTest(TipoBackend backend, const BancaDatiProva& banca, const QString& sNome) {
        if (backend == TipoBackend::SQLite) {
            sDatabase = banca.Database() + QLatin1Char('_') + sNome;
            return;
        }
        ruoli.emplace();
        sDatabase = ruoli->Database(sNome);
        opzioni = QStringList{QStringLiteral("--proprietario"), ruoli->Proprietario(),
                              QStringLiteral("--gruppo"), ruoli->Gruppo()};
    }
    bool Creati() const { return !ruoli || ruoli->Creati(); }
};

QString Schema(TipoBackend backend) {
    return QStringLiteral(TABELLION_SORGENTI) + (backend == TipoBackend::SQLite
                                                     ? QStringLiteral("/db/sqlite/schema.sql")
                                                     : QStringLiteral("/db/postgresql/schema.sql"));
}

QString Stringa(const BancaDatiProva& banca, const QString& sDatabase) {
    return ComponiStringaConnessione(banca.Testa(), banca.Server(), sDatabase, banca.Utente(),
                                     banca.Password());
}

// Whether the database that the string names is there (it is not opened: SQLite would make it).
bool Esiste(const BancaDatiProva& banca, const QString& sDatabase) {
    if (banca.Tipo() == TipoBackend::SQLite) {
        return QFileInfo::exists(QDir(banca.Server()).filePath(sDatabase + QStringLiteral(".db")));
    }
    QSqlQuery esiste = banca.Apri()->Esegui(
        QStringLiteral("SELECT COUNT(*) FROM pg_database WHERE datname = ?"), {sDatabase});
    return esiste.next() && esiste.value(0).toInt() == 1;
}

// Removes a database of a test (the string names it) when it is there.
void Elimina(const BancaDatiProva& banca, const QString& sDatabase) {
    const StringaConnessione letta = StringaConnessione::Leggi(Stringa(banca, sDatabase));
    Connessione::BackendDi(letta).EliminaDatabase(letta);
}

} // namespace

class TestTabellionSql : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void eseguiUnoScriptSulDatabase_data();
    void eseguiUnoScriptSulDatabase();
    void unoScriptSbagliatoFallisceSenzaLasciareNulla_data();
    void unoScriptSbagliatoFallisceSenzaLasciareNulla();
    void unaPasswordSbagliataFallisceConLaCausa();
    void unFileMancanteNonToccaIlDatabase();
    void argomentiSbagliatiMostranoLUso();
    void creaUnDatabaseNuovoDalloSchema_data();
    void creaUnDatabaseNuovoDalloSchema();
    void creaScriveLIdentitaDelSitoEIlSuoIntervalloDiChiavi_data();
    void creaScriveLIdentitaDelSitoEIlSuoIntervalloDiChiavi();
    void creaSenzaIdentitaERifiutato();
    void unCreaFallitoNonLasciaIlDatabaseESiPuoRipetere_data();
    void unCreaFallitoNonLasciaIlDatabaseESiPuoRipetere();
    void conSQLiteUnIndirizzoDiServerERifiutatoInParole();
    void unoScriptDiUnAltroServerERifiutatoPrimaDiCreare_data();
    void unoScriptDiUnAltroServerERifiutatoPrimaDiCreare();
    void suSQLiteNonCiSonoRuoli();
    void unSitoPostgreSQLAppartieneAlProprietarioEAgliArchivistiSoloLeRighe();
    void iRuoliDelSitoSonoControllatiPrimaDiCreare();
    void lAiutoDescriveOgniOpzione();
    void alterPortaUnDatabaseDiUnaVersionePrecedenteAlloSchemaAttuale_data();
    void alterPortaUnDatabaseDiUnaVersionePrecedenteAlloSchemaAttuale();
    void alterDiUnSitoPostgreSQLSpettaAllAmministratoreETieneIDiritti();
};

void TestTabellionSql::initTestCase() {
    QVERIFY2(!qEnvironmentVariable("TABELLION_SQL").isEmpty(), "TABELLION_SQL names the tool");
}

void TestTabellionSql::eseguiUnoScriptSulDatabase_data() {
    AggiungiBackend();
}

void TestTabellionSql::eseguiUnoScriptSulDatabase() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    banca.Apri()->Esegui(QStringLiteral("UPDATE Config SET Versione = 3.1"));
    cartella.Scrivi(
        QStringLiteral("alter.sql"),
        "-- upgrade\nUPDATE Config SET Versione = 3.2, Descrizione = 'Archivio di Stato "
        "di Forl\xc3\xac';\nCREATE TABLE Aggiunta (ID INTEGER PRIMARY KEY);\n");
    for (const bool attaccati : {false, true}) {
        const Esito esito =
            Esegui(cartella, Login(banca, attaccati) << QStringLiteral("-i")
                                                     << cartella.File(QStringLiteral("alter.sql")));
        QVERIFY2(esito.codice == 0 || attaccati, qPrintable(esito.errori));
        if (!attaccati) {
            QVERIFY(esito.uscita.contains(QStringLiteral("alter.sql: 2 istruzioni eseguite.")));
            auto connessione = banca.Apri();
            QSqlQuery config =
                connessione->Esegui(QStringLiteral("SELECT Versione, Descrizione FROM Config"));
            QVERIFY(config.next());
            QCOMPARE(config.value(0).toDouble(), 3.2);
            QCOMPARE(config.value(1).toString(), QStringLiteral("Archivio di Stato di Forlì"));
        } else {
            // Run twice, the table is there already: a clean failure.
            QCOMPARE(esito.codice, 1);
            QVERIFY(esito.errori.contains(QStringLiteral("riga 3")));
        }
    }
}

void TestTabellionSql::unoScriptSbagliatoFallisceSenzaLasciareNulla_data() {
    AggiungiBackend();
}

void TestTabellionSql::unoScriptSbagliatoFallisceSenzaLasciareNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    cartella.Scrivi(QStringLiteral("rotto.sql"),
                    "UPDATE Config SET Versione = 9;\nUPDATE Inesistente SET x = 1;\n");
    const Esito esito =
        Esegui(cartella, Login(banca, false)
                             << QStringLiteral("-i") << cartella.File(QStringLiteral("rotto.sql")));
    QCOMPARE(esito.codice, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("rotto.sql, riga 2")), qPrintable(esito.errori));
    QVERIFY(esito.errori.contains(QStringLiteral("Inesistente"), Qt::CaseInsensitive));
    auto connessione = banca.Apri();
    QSqlQuery config = connessione->Esegui(QStringLiteral("SELECT Versione FROM Config"));
    QVERIFY(config.next());
    QCOMPARE(config.value(0).toDouble(), 4.0);
}

void TestTabellionSql::unaPasswordSbagliataFallisceConLaCausa() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::PostgreSQL);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    cartella.Scrivi(QStringLiteral("alter.sql"), "UPDATE Config SET Versione = 9;\n");
    const Esito esito = Esegui(
        cartella, {QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"), QStringLiteral("no"),
                   QStringLiteral("-S"), banca.Server(), QStringLiteral("-d"), banca.Database(),
                   QStringLiteral("-i"), cartella.File(QStringLiteral("alter.sql"))});
    QCOMPARE(esito.codice, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("password")), qPrintable(esito.errori));
}

void TestTabellionSql::unFileMancanteNonToccaIlDatabase() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    cartella.Scrivi(QStringLiteral("primo.sql"), "UPDATE Config SET Versione = 9;\n");
    const Esito esito =
        Esegui(cartella, Login(banca, false)
                             << QStringLiteral("-i") << cartella.File(QStringLiteral("primo.sql"))
                             << QStringLiteral("-i") << cartella.File(QStringLiteral("manca.sql")));
    QCOMPARE(esito.codice, 1);
    QVERIFY(esito.errori.contains(QStringLiteral("manca.sql")));
    QSqlQuery config = banca.Apri()->Esegui(QStringLiteral("SELECT Versione FROM Config"));
    QVERIFY(config.next());
    QCOMPARE(config.value(0).toDouble(), 4.0);
}

void TestTabellionSql::argomentiSbagliatiMostranoLUso() {
    CartellaProva cartella;
    const Esito senza = Esegui(cartella, {});
    QCOMPARE(senza.codice, 1);
    QVERIFY(senza.errori.contains(QStringLiteral("Uso: tabellion-sql")));
    const Esito ignota = Esegui(cartella, {QStringLiteral("-Z"), QStringLiteral("x")});
    QCOMPARE(ignota.codice, 1);
    QVERIFY(ignota.errori.contains(QStringLiteral("-Z")));
    const Esito mancaConnetti = Esegui(cartella, {QStringLiteral("-d"), QStringLiteral("X"),
                                                  QStringLiteral("-i"), QStringLiteral("a.sql")});
    QCOMPARE(mancaConnetti.codice, 1);
    QVERIFY(mancaConnetti.errori.contains(QStringLiteral("Connetti.txt")));
}

void TestTabellionSql::creaUnDatabaseNuovoDalloSchema_data() {
    AggiungiBackend();
}

void TestTabellionSql::creaUnDatabaseNuovoDalloSchema() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    // Borrow the test database's server and login, for a database of another name.
    BancaDatiProva banca(backend);
    const RuoliDelTest ruoli(backend, banca, QStringLiteral("nuovo"));
    QVERIFY(ruoli.Creati());
    const QString nome = ruoli.sDatabase;
    cartella.ScriviSito(banca.Testa(), banca.Server(), nome);
    const QString schema =
        QStringLiteral(TABELLION_SORGENTI) + (backend == TipoBackend::SQLite
                                                  ? QStringLiteral("/db/sqlite/schema.sql")
                                                  : QStringLiteral("/db/postgresql/schema.sql"));
    const QString demo = QStringLiteral(TABELLION_SORGENTI "/db/demo.sql");
    const Esito esito = Esegui(
        cartella, QStringList{QStringLiteral("--crea")}
                      << Identita(QStringLiteral("DEMO"), 1, 999999999) << ruoli.opzioni
                      << QStringList{QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"),
                                     banca.Password(), QStringLiteral("-S"), banca.Server(),
                                     QStringLiteral("-d"), nome, QStringLiteral("-i"), schema,
                                     QStringLiteral("-i"), demo});
    QVERIFY2(esito.codice == 0, qPrintable(esito.errori));
    const QString stringa = ComponiStringaConnessione(banca.Testa(), banca.Server(), nome,
                                                      banca.Utente(), banca.Password());
    {
        auto connessione = Connessione::Apri(stringa);
        QSqlQuery config = connessione->Esegui(QStringLiteral("SELECT Code, Versione FROM Config"));
        QVERIFY(config.next());
        QCOMPARE(config.value(0).toString(), QStringLiteral("DEMO"));
        QCOMPARE(config.value(1).toDouble(), 4.0);
        // Names in the Italian order: case and accents after the letters.
        QSqlQuery nomi = connessione->Esegui(
            QStringLiteral("SELECT Nome FROM (SELECT 'Zeta' AS Nome UNION ALL SELECT 'Èrba' "
                           "UNION ALL SELECT 'archivio' UNION ALL SELECT 'Erba' UNION ALL "
                           "SELECT 'erba') AS N ORDER BY ") +
            connessione->InOrdineAlfabetico(QStringLiteral("Nome")));
        QStringList ordinati;
        while (nomi.next())
            ordinati.append(nomi.value(0).toString());
        QCOMPARE(ordinati, (QStringList{QStringLiteral("archivio"), QStringLiteral("erba"),
                                        QStringLiteral("Erba"), QStringLiteral("Èrba"),
                                        QStringLiteral("Zeta")}));
        if (backend == TipoBackend::PostgreSQL) {
            QSqlQuery collazione = connessione->Esegui(
                QStringLiteral("SELECT datlocprovider, daticulocale FROM pg_database "
                               "WHERE datname = current_database()"));
            QVERIFY(collazione.next());
            QCOMPARE(collazione.value(0).toString(), QStringLiteral("i"));
            QCOMPARE(collazione.value(1).toString(), QStringLiteral("it-IT"));
        }
    }
    const StringaConnessione letta = StringaConnessione::Leggi(stringa);
    Connessione::BackendDi(letta).EliminaDatabase(letta);
}

void TestTabellionSql::creaScriveLIdentitaDelSitoEIlSuoIntervalloDiChiavi_data() {
    AggiungiBackend();
}

void TestTabellionSql::creaScriveLIdentitaDelSitoEIlSuoIntervalloDiChiavi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    const RuoliDelTest ruoli(backend, banca, QStringLiteral("sito"));
    QVERIFY(ruoli.Creati());
    const QString nome = ruoli.sDatabase;
    cartella.ScriviSito(banca.Testa(), banca.Server(), nome);
    const Esito esito = Esegui(
        cartella, QStringList{QStringLiteral("--crea"), QStringLiteral("--descrizione"),
                              QStringLiteral("Archivio di Stato di Lucca")}
                      << Identita(QStringLiteral("ASLU"), 7000, 7999) << ruoli.opzioni
                      << Login(banca, false).mid(0, 6)
                      << QStringList{QStringLiteral("-d"), nome, QStringLiteral("-i"),
                                     Schema(backend), QStringLiteral("-i"),
                                     QStringLiteral(TABELLION_SORGENTI "/db/riferimenti.sql")});
    QVERIFY2(esito.codice == 0, qPrintable(esito.errori));
    // The tool says first which server it uses.
    QVERIFY2(esito.uscita.startsWith(
                 backend == TipoBackend::SQLite
                     ? QStringLiteral("Server: SQLite, database \"%1\"").arg(nome)
                     : QStringLiteral("Server: PostgreSQL, database \"%1\"").arg(nome)),
             qPrintable(esito.uscita));
    {
        auto connessione = Connessione::Apri(Stringa(banca, nome));
        QVERIFY(!SitoSenzaIdentita(*connessione));
        QSqlQuery config = connessione->Esegui(
            QStringLiteral("SELECT Code, Descrizione, ID_Start, ID_End, Versione FROM Config"));
        QVERIFY(config.next());
        QCOMPARE(config.value(0).toString(), QStringLiteral("ASLU"));
        QCOMPARE(config.value(1).toString(), QStringLiteral("Archivio di Stato di Lucca"));
        QCOMPARE(config.value(2).toLongLong(), 7000);
        QCOMPARE(config.value(3).toLongLong(), 7999);
        QCOMPARE(config.value(4).toDouble(), 4.0);
        config.finish();
        // Keys start at ID_Start, on the rows the program inserts and on those the database
        // makes, and stay within the range.
        const qint64 lElemento =
            connessione->Inserisci(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"),
                                   {QStringLiteral("Tipologia"), QStringLiteral("Denominazione")},
                                   {QStringLiteral("01"), QStringLiteral("Archivio")});
        QCOMPARE(lElemento, 7000);
        QSqlQuery istituto = connessione->Esegui(
            QStringLiteral("SELECT ID_Istituto, Code FROM Istituti WHERE ID_Elemento = ?"),
            {lElemento});
        QVERIFY(istituto.next());
        QCOMPARE(istituto.value(0).toLongLong(), 7000);
        QCOMPARE(istituto.value(1).toString(), QStringLiteral("ASLU"));
        istituto.finish();
        if (backend == TipoBackend::PostgreSQL) {
            // Every identity sequence bounded to the range.
            QSqlQuery sequenze = connessione->Esegui(
                QStringLiteral("SELECT COUNT(*), MIN(min_value), MAX(max_value), "
                               "MIN(start_value), MAX(start_value) FROM pg_sequences "
                               "WHERE schemaname = 'public'"));
            QVERIFY(sequenze.next());
            QVERIFY(sequenze.value(0).toInt() > 10);
            QCOMPARE(sequenze.value(1).toLongLong(), 7000);
            QCOMPARE(sequenze.value(2).toLongLong(), 7999);
            QCOMPARE(sequenze.value(3).toLongLong(), 7000);
            QCOMPARE(sequenze.value(4).toLongLong(), 7000);
        }
    }
    Elimina(banca, nome);
}

void TestTabellionSql::creaSenzaIdentitaERifiutato() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    const QString nome = QStringLiteral("Senza");
    cartella.ScriviSito(banca.Testa(), banca.Server(), nome);
    const QStringList resto = QStringList{QStringLiteral("-U"), QStringLiteral("u"),
                                          QStringLiteral("-P"), QStringLiteral("p"),
                                          QStringLiteral("-S"), banca.Server(),
                                          QStringLiteral("-d"), nome,
                                          QStringLiteral("-i"), Schema(TipoBackend::SQLite)};
    // No code, the placeholder, a code too long, a range that is not one.
    const QList<QStringList> sbagliate = {{},
                                          Identita(CodiceSitoProvvisorio(), 1, 10),
                                          Identita(QStringLiteral("CODICETROPPOLUNGO"), 1, 10),
                                          Identita(QStringLiteral("ASLU"), 10, 1),
                                          {QStringLiteral("--codice"), QStringLiteral("ASLU"),
                                           QStringLiteral("--id-inizio"), QStringLiteral("uno"),
                                           QStringLiteral("--id-fine"), QStringLiteral("10")}};
    for (const QStringList& identita : sbagliate) {
        const Esito esito =
            Esegui(cartella, QStringList{QStringLiteral("--crea")} << identita << resto);
        QCOMPARE(esito.codice, 1);
        QVERIFY2(!esito.errori.isEmpty(), qPrintable(identita.join(u' ')));
        QVERIFY(!Esiste(banca, nome));
    }
    const Esito senza = Esegui(cartella, QStringList{QStringLiteral("--crea")} << resto);
    QVERIFY2(senza.errori.contains(QStringLiteral("--codice")), qPrintable(senza.errori));
    // The identity belongs to the creation.
    const Esito fuori = Esegui(cartella, Identita(QStringLiteral("ASLU"), 1, 10) << resto);
    QCOMPARE(fuori.codice, 1);
    QVERIFY2(fuori.errori.contains(QStringLiteral("solo con --crea")), qPrintable(fuori.errori));
}

void TestTabellionSql::unCreaFallitoNonLasciaIlDatabaseESiPuoRipetere_data() {
    AggiungiBackend();
}

void TestTabellionSql::unCreaFallitoNonLasciaIlDatabaseESiPuoRipetere() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    const RuoliDelTest ruoli(backend, banca, QStringLiteral("ripetuto"));
    QVERIFY(ruoli.Creati());
    const QString nome = ruoli.sDatabase;
    cartella.ScriviSito(banca.Testa(), banca.Server(), nome);
    cartella.Scrivi(QStringLiteral("dati.sql"),
                    "INSERT INTO Elementi (Tipologia, Denominazione) VALUES ('01', 'Primo');\n"
                    "INSERT INTO Inesistente (x) VALUES (1);\n");
    const QStringList argomenti =
        QStringList{QStringLiteral("--crea")}
        << Identita(QStringLiteral("ASLU"), 1, 999) << ruoli.opzioni
        << Login(banca, false).mid(0, 6)
        << QStringList{QStringLiteral("-d"), nome,
                       QStringLiteral("-i"), Schema(backend),
                       QStringLiteral("-i"), cartella.File(QStringLiteral("dati.sql"))};
    const Esito fallito = Esegui(cartella, argomenti);
    QCOMPARE(fallito.codice, 1);
    QVERIFY2(fallito.errori.contains(QStringLiteral("dati.sql, riga 2")),
             qPrintable(fallito.errori));
    QVERIFY2(fallito.errori.contains(QStringLiteral("si può ripetere il comando")),
             qPrintable(fallito.errori));
    QVERIFY(!Esiste(banca, nome));
    // The script mended, the same command works.
    cartella.Scrivi(QStringLiteral("dati.sql"),
                    "INSERT INTO Elementi (Tipologia, Denominazione) VALUES ('01', 'Primo');\n");
    const Esito riuscito = Esegui(cartella, argomenti);
    QVERIFY2(riuscito.codice == 0, qPrintable(riuscito.errori));
    {
        auto connessione = Connessione::Apri(Stringa(banca, nome));
        QSqlQuery primo = connessione->Esegui(QStringLiteral("SELECT ID_Elemento FROM Elementi"));
        QVERIFY(primo.next());
        QCOMPARE(primo.value(0).toLongLong(), 1);
    }
    // A database that is there already is refused, and stays.
    const Esito doppio = Esegui(cartella, argomenti);
    QCOMPARE(doppio.codice, 1);
    QVERIFY(Esiste(banca, nome));
    Elimina(banca, nome);
}

void TestTabellionSql::conSQLiteUnIndirizzoDiServerERifiutatoInParole() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("Connetti.txt"), "Provider=QSQLITE\r\n");
    const Esito esito =
        Esegui(cartella, QStringList{QStringLiteral("--crea")}
                             << Identita(QStringLiteral("ASLU"), 1, 999)
                             << QStringList{QStringLiteral("-U"), QStringLiteral("u"),
                                            QStringLiteral("-P"), QStringLiteral("p"),
                                            QStringLiteral("-S"), QStringLiteral("127.0.0.1:55433"),
                                            QStringLiteral("-d"), QStringLiteral("Tabellion"),
                                            QStringLiteral("-i"), Schema(TipoBackend::SQLite)});
    QCOMPARE(esito.codice, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("host:porta")), qPrintable(esito.errori));
    QVERIFY(esito.errori.contains(QStringLiteral("Provider=QPSQL")));
    // Nothing made: no folder named after the server, no file.
    QVERIFY(!QFileInfo::exists(cartella.File(QStringLiteral("127.0.0.1:55433"))));
    QCOMPARE(QDir(cartella.Percorso()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
}

void TestTabellionSql::unoScriptDiUnAltroServerERifiutatoPrimaDiCreare_data() {
    AggiungiBackend();
}

void TestTabellionSql::unoScriptDiUnAltroServerERifiutatoPrimaDiCreare() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    const QString nome = banca.Database() + QStringLiteral("_altro");
    cartella.ScriviSito(banca.Testa(), banca.Server(), nome);
    const TipoBackend altro =
        backend == TipoBackend::SQLite ? TipoBackend::PostgreSQL : TipoBackend::SQLite;
    const Esito esito =
        Esegui(cartella,
               QStringList{QStringLiteral("--crea")}
                   << Identita(QStringLiteral("ASLU"), 1, 999) << Login(banca, false).mid(0, 6)
                   << QStringList{QStringLiteral("-d"), nome, QStringLiteral("-i"), Schema(altro)});
    QCOMPARE(esito.codice, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("schema.sql è uno script per %1")
                                       .arg(altro == TipoBackend::SQLite
                                                ? QStringLiteral("SQLite")
                                                : QStringLiteral("PostgreSQL"))),
             qPrintable(esito.errori));
    QVERIFY(!Esiste(banca, nome));
}

void TestTabellionSql::suSQLiteNonCiSonoRuoli() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), QStringLiteral("Ruoli"));
    const Esito esito = Esegui(
        cartella, QStringList{QStringLiteral("--crea"), QStringLiteral("--gruppo"),
                              QStringLiteral("archivisti")}
                      << Identita(QStringLiteral("ASLU"), 1, 999) << Login(banca, false).mid(0, 6)
                      << QStringList{QStringLiteral("-d"), QStringLiteral("Ruoli"),
                                     QStringLiteral("-i"), Schema(TipoBackend::SQLite)});
    QCOMPARE(esito.codice, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("SQLite non ha ruoli")),
             qPrintable(esito.errori));
    QVERIFY(!Esiste(banca, QStringLiteral("Ruoli")));
}

namespace {

// A login of the site, on its database.
std::shared_ptr<Connessione> Accedi(const RuoliSitoProva& ruoli, const QString& sDatabase,
                                    const QString& sLogin) {
    return Connessione::Apri(ComponiStringaConnessione(QStringLiteral("Provider=QPSQL"),
                                                       ruoli.Server(), sDatabase, sLogin,
                                                       RuoliSitoProva::Password()));
}

bool Riesce(const Connessione& connessione, const QString& sSql) {
    QSqlQuery query(connessione.Db());
    return query.exec(sSql);
}

QStringList Elenco(const Connessione& connessione, const QString& sSql) {
    QSqlQuery query(connessione.Db());
    QStringList righe;
    if (!query.exec(sSql)) {
        return {QStringLiteral("errore: ") + query.lastError().text()};
    }
    while (query.next()) {
        righe.append(query.value(0).toString());
    }
    return righe;
}

} // namespace

void TestTabellionSql::unSitoPostgreSQLAppartieneAlProprietarioEAgliArchivistiSoloLeRighe() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    RuoliSitoProva ruoli;
    QVERIFY(ruoli.Creati());
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("Connetti.txt"), "Provider=QPSQL\r\n");
    const QString database = ruoli.Database(QStringLiteral("Sito"));
    // The administrator is no superuser: a login that may create databases and act as the
    // owner.
    const Esito esito = Esegui(
        cartella,
        QStringList{QStringLiteral("--crea"), QStringLiteral("--proprietario"),
                    ruoli.Proprietario(), QStringLiteral("--gruppo"), ruoli.Gruppo()}
            << Identita(QStringLiteral("ASLU"), 1000, 1999)
            << QStringList{QStringLiteral("-U"), ruoli.Amministratore(), QStringLiteral("-P"),
                           RuoliSitoProva::Password(), QStringLiteral("-S"), ruoli.Server(),
                           QStringLiteral("-d"), database, QStringLiteral("-i"),
                           Schema(TipoBackend::PostgreSQL), QStringLiteral("-i"),
                           QStringLiteral(TABELLION_SORGENTI "/db/riferimenti.sql")});
    QVERIFY2(esito.codice == 0, qPrintable(esito.errori));

    {
        const auto amministratore = Accedi(ruoli, database, ruoli.Amministratore());
        // The database and everything in it belong to the owner.
        QCOMPARE(Elenco(*amministratore,
                        QStringLiteral("SELECT pg_get_userbyid(datdba) FROM pg_database WHERE "
                                       "datname = current_database()")),
                 QStringList{ruoli.Proprietario()});
        QCOMPARE(
            Elenco(*amministratore,
                   QStringLiteral("SELECT DISTINCT pg_get_userbyid(c.relowner) FROM pg_class "
                                  "c JOIN pg_namespace n ON n.oid = c.relnamespace WHERE "
                                  "n.nspname = 'public' AND c.relkind IN ('r', 'v', 'S', 'i')")),
            QStringList{ruoli.Proprietario()});
        QCOMPARE(Elenco(*amministratore,
                        QStringLiteral("SELECT DISTINCT pg_get_userbyid(p.proowner) FROM pg_proc p "
                                       "JOIN pg_namespace n ON n.oid = p.pronamespace WHERE "
                                       "n.nspname = 'public'")),
                 QStringList{ruoli.Proprietario()});
        // The group may call two functions, PUBLIC none.
        QCOMPARE(Elenco(*amministratore,
                        QStringLiteral("SELECT p.proname FROM pg_proc p JOIN pg_namespace n ON "
                                       "n.oid = p.pronamespace WHERE n.nspname = 'public' AND "
                                       "has_function_privilege('%1', p.oid, 'EXECUTE') ORDER BY 1")
                            .arg(ruoli.Gruppo())),
                 (QStringList{QStringLiteral("tabellion_interruttore_trigger"),
                              QStringLiteral("tabellion_riallinea_chiave")}));
        QCOMPARE(Elenco(*amministratore,
                        QStringLiteral("SELECT COUNT(*) FROM pg_proc p JOIN pg_namespace n ON "
                                       "n.oid = p.pronamespace, aclexplode(p.proacl) a WHERE "
                                       "n.nspname = 'public' AND a.grantee = 0")),
                 QStringList{QStringLiteral("0")});
        // The two that run with the owner's rights keep their search path.
        QCOMPARE(Elenco(*amministratore,
                        QStringLiteral("SELECT proname || ' ' || array_to_string(proconfig, ',') "
                                       "FROM pg_proc WHERE prosecdef ORDER BY 1")),
                 (QStringList{
                     QStringLiteral("tabellion_interruttore_trigger search_path=public, pg_temp"),
                     QStringLiteral("tabellion_riallinea_chiave search_path=public, pg_temp")}));
    }

    const auto archivista = Accedi(ruoli, database, ruoli.Archivista());
    // Rows: read, written, keys from the range.
    QCOMPARE(Elenco(*archivista, QStringLiteral("INSERT INTO Elementi (Tipologia, Denominazione) "
                                                "VALUES ('01', 'Archivio') RETURNING ID_Elemento")),
             QStringList{QStringLiteral("1000")});
    QVERIFY(Riesce(*archivista, QStringLiteral("UPDATE Istituti SET Citta = 'Lucca'")));
    QVERIFY(Riesce(*archivista, QStringLiteral("DELETE FROM Istituti")));
    QVERIFY(Riesce(*archivista, QStringLiteral("UPDATE Config SET Valore = 2, DataValore = "
                                               "'01/01/2026'")));
    QVERIFY(Riesce(*archivista, QStringLiteral("SELECT COUNT(*) FROM AlberoGlobale")));
    // Not the site's identity, nor the schema, nor the database.
    for (const QString& sql :
         {QStringLiteral("UPDATE Config SET Code = 'ALTRO'"),
          QStringLiteral("UPDATE Config SET ID_Start = 1"), QStringLiteral("DELETE FROM Config"),
          QStringLiteral("DROP TABLE Elementi"),
          QStringLiteral("ALTER TABLE Elementi ADD COLUMN x "
                         "INTEGER"),
          QStringLiteral("DROP TRIGGER Elementi_Dettaglio ON Elementi"),
          QStringLiteral("CREATE TABLE Nuova (x INTEGER)"),
          QStringLiteral("SELECT tabellion_allinea_chiavi()"),
          QStringLiteral("SELECT tabellion_concedi_diritti('%1')").arg(ruoli.Archivista()),
          QStringLiteral("DROP DATABASE \"%1\"").arg(database)}) {
        QVERIFY2(!Riesce(*archivista, sql), qPrintable(sql));
    }
    // A login outside the group does not even connect.
    try {
        Accedi(ruoli, database, ruoli.Estraneo());
        QFAIL("a login outside the group connected");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().contains(QStringLiteral("CONNECT")),
                 qPrintable(errore.descrizione()));
    }
}

void TestTabellionSql::iRuoliDelSitoSonoControllatiPrimaDiCreare() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    RuoliSitoProva ruoli;
    QVERIFY(ruoli.Creati());
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("Connetti.txt"), "Provider=QPSQL\r\n");
    const QString database = ruoli.Database(QStringLiteral("Rifiutato"));
    const auto crea = [&](const QString& sProprietario, const QString& sGruppo,
                          const QString& sLogin) {
        return Esegui(cartella,
                      QStringList{QStringLiteral("--crea"), QStringLiteral("--proprietario"),
                                  sProprietario, QStringLiteral("--gruppo"), sGruppo}
                          << Identita(QStringLiteral("ASLU"), 1, 999)
                          << QStringList{QStringLiteral("-U"), sLogin, QStringLiteral("-P"),
                                         RuoliSitoProva::Password(), QStringLiteral("-S"),
                                         ruoli.Server(), QStringLiteral("-d"), database,
                                         QStringLiteral("-i"), Schema(TipoBackend::PostgreSQL)});
    };
    const Esito manca =
        crea(ruoli.Proprietario() + QStringLiteral("_x"), ruoli.Gruppo(), ruoli.Amministratore());
    QVERIFY2(manca.errori.contains(QStringLiteral("non esiste")), qPrintable(manca.errori));
    const Esito nonMembro = crea(ruoli.Proprietario(), ruoli.Gruppo(), ruoli.Archivista());
    QVERIFY2(nonMembro.errori.contains(QStringLiteral("non può agire come")),
             qPrintable(nonMembro.errori));
    QVERIFY(
        ruoli.Esegui(QStringLiteral("GRANT %1 TO %2").arg(ruoli.Proprietario(), ruoli.Gruppo())));
    const Esito gruppoProprietario =
        crea(ruoli.Proprietario(), ruoli.Gruppo(), ruoli.Amministratore());
    QVERIFY2(gruppoProprietario.errori.contains(QStringLiteral("non deve essere membro")),
             qPrintable(gruppoProprietario.errori));
    for (const Esito& esito : {manca, nonMembro, gruppoProprietario}) {
        QCOMPARE(esito.codice, 1);
    }
    QCOMPARE(ruoli.Valore(QStringLiteral("SELECT COUNT(*) FROM pg_database WHERE datname = "
                                         "'%1'")
                              .arg(database)),
             QStringLiteral("0"));
}

void TestTabellionSql::lAiutoDescriveOgniOpzione() {
    CartellaProva cartella;
    const Esito aiuto = Esegui(cartella, {QStringLiteral("--help")});
    QCOMPARE(aiuto.codice, 0);
    for (const QString& opzione :
         {QStringLiteral("--crea"), QStringLiteral("--codice"), QStringLiteral("--descrizione"),
          QStringLiteral("--id-inizio"), QStringLiteral("--id-fine"),
          QStringLiteral("--proprietario"), QStringLiteral("--gruppo"),
          RuoliSito::ProprietarioPredefinito(), RuoliSito::GruppoPredefinito(),
          QStringLiteral("-- Server: PostgreSQL")}) {
        QVERIFY2(aiuto.uscita.contains(opzione), qPrintable(opzione));
    }
}

namespace {

// The schema of a database as text, one line per object, in a fixed order: what an upgrade
// must give back exactly. Columns are listed by name (an added column stands last in its
// table).
QStringList DescrizioneSchema(const Connessione& connessione, TipoBackend backend) {
    if (backend == TipoBackend::SQLite) {
        return Elenco(connessione,
                      QStringLiteral("SELECT type || ' ' || name || ': ' || COALESCE(sql, '') "
                                     "FROM sqlite_master ORDER BY type, name"));
    }
    return Elenco(
        connessione,
        QStringLiteral(
            "SELECT * FROM ("
            "SELECT 'colonna ' || table_name || '.' || column_name || ' ' || data_type || ' ' || "
            "is_nullable || ' ' || COALESCE(column_default, '') || ' ' || is_identity AS riga "
            "FROM information_schema.columns WHERE table_schema = 'public' "
            "UNION ALL SELECT 'vista ' || viewname || ': ' || definition FROM pg_views "
            "WHERE schemaname = 'public' "
            "UNION ALL SELECT 'indice ' || indexdef FROM pg_indexes WHERE schemaname = 'public' "
            "UNION ALL SELECT 'trigger ' || pg_get_triggerdef(t.oid) || ' ' || CAST(t.tgenabled AS "
            "text) "
            "FROM pg_trigger t JOIN pg_class c ON c.oid = t.tgrelid JOIN pg_namespace n ON "
            "n.oid = c.relnamespace WHERE n.nspname = 'public' AND NOT t.tgisinternal "
            "UNION ALL SELECT 'funzione ' || p.proname || ' ' || md5(p.prosrc) || ' ' || "
            "p.prosecdef || ' ' || COALESCE(array_to_string(p.proconfig, ','), '') || ' ' || "
            "COALESCE(array_to_string(p.proacl, ','), '') FROM pg_proc p JOIN pg_namespace n "
            "ON n.oid = p.pronamespace WHERE n.nspname = 'public' "
            "UNION ALL SELECT 'sequenza ' || sequencename || ' ' || min_value || ' ' || "
            "max_value || ' ' || start_value FROM pg_sequences WHERE schemaname = 'public' "
            "UNION ALL SELECT 'diritti ' || c.relname || ' ' || COALESCE(array_to_string("
            "c.relacl, ','), '') FROM pg_class c JOIN pg_namespace n ON n.oid = "
            "c.relnamespace WHERE n.nspname = 'public' AND c.relkind IN ('r', 'v', 'S')"
            ") AS s ORDER BY 1"));
}

QString Alter() {
    return QStringLiteral(TABELLION_SORGENTI "/site/alter.sql");
}

} // namespace

void TestTabellionSql::alterPortaUnDatabaseDiUnaVersionePrecedenteAlloSchemaAttuale_data() {
    AggiungiBackend();
}

void TestTabellionSql::alterPortaUnDatabaseDiUnaVersionePrecedenteAlloSchemaAttuale() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    const QStringList aggiorna = Login(banca, false) << QStringLiteral("-i") << Alter();
    QStringList attuale;
    {
        auto connessione = banca.Apri();
        connessione->Inserisci(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"),
                               {QStringLiteral("Tipologia"), QStringLiteral("Denominazione")},
                               {QStringLiteral("01"), QStringLiteral("Archivio")});
        attuale = DescrizioneSchema(*connessione, backend);
    }
    QVERIFY2(attuale.size() > 100, qPrintable(attuale.join(u'\n')));

    // On a current database it changes nothing.
    const Esito suAttuale = Esegui(cartella, aggiorna);
    QVERIFY2(suAttuale.codice == 0, qPrintable(suAttuale.errori));
    QCOMPARE(DescrizioneSchema(*banca.Apri(), backend), attuale);

    // A database of an earlier version: a view, a trigger, an index, the table of the trigger
    // switches or the functions that run with the owner's rights, a column, missing; no version.
    {
        auto connessione = banca.Apri();
        QStringList vecchio = {QStringLiteral("DROP VIEW AlberoGlobale"),
                               QStringLiteral("DROP INDEX Links_ID_ElementoLink"),
                               QStringLiteral("UPDATE Config SET Versione = NULL")};
        if (backend == TipoBackend::SQLite) {
            vecchio << QStringLiteral("DROP TRIGGER Elementi_Inserimento")
                    << QStringLiteral("DROP TABLE TriggerSospesi");
        } else {
            vecchio.prepend(QStringLiteral("SET client_min_messages = warning"));
            vecchio << QStringLiteral("DROP TRIGGER Elementi_Inserimento ON Elementi")
                    << QStringLiteral("DROP FUNCTION tabellion_interruttore_trigger(text, boolean)")
                    << QStringLiteral("DROP FUNCTION tabellion_riallinea_chiave(text) CASCADE")
                    << QStringLiteral("ALTER TABLE Istituti DROP COLUMN ISAD_Sigla CASCADE");
        }
        for (const QString& sql : vecchio) {
            QVERIFY2(Riesce(*connessione, sql), qPrintable(sql));
        }
        QVERIFY(DescrizioneSchema(*connessione, backend) != attuale);
    }
    const Esito aggiornato = Esegui(cartella, aggiorna);
    QVERIFY2(aggiornato.codice == 0, qPrintable(aggiornato.errori));
    QVERIFY(aggiornato.uscita.contains(QStringLiteral("alter.sql: ")));
    auto connessione = banca.Apri();
    QCOMPARE(DescrizioneSchema(*connessione, backend), attuale);
    QCOMPARE(Elenco(*connessione, QStringLiteral("SELECT Versione FROM Config")),
             QStringList{QStringLiteral("4")});
    // The data stayed, and the database does its duties again.
    QCOMPARE(Elenco(*connessione, QStringLiteral("SELECT ELEM_Denominazione FROM AlberoGlobale")),
             QStringList{QStringLiteral("Archivio")});
    connessione->Inserisci(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"),
                           {QStringLiteral("Tipologia"), QStringLiteral("Denominazione")},
                           {QStringLiteral("02"), QStringLiteral("Fondo")});
    QCOMPARE(Elenco(*connessione, QStringLiteral("SELECT Denominazione FROM ComplessiDoc")),
             QStringList{QStringLiteral("Fondo")});
}

void TestTabellionSql::alterDiUnSitoPostgreSQLSpettaAllAmministratoreETieneIDiritti() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    RuoliSitoProva ruoli;
    QVERIFY(ruoli.Creati());
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("Connetti.txt"), "Provider=QPSQL\r\n");
    const QString database = ruoli.Database(QStringLiteral("Aggiornato"));
    const auto login = [&](const QString& sUtente) {
        return QStringList{
            QStringLiteral("-U"), sUtente,        QStringLiteral("-P"), RuoliSitoProva::Password(),
            QStringLiteral("-S"), ruoli.Server(), QStringLiteral("-d"), database};
    };
    const Esito creato = Esegui(
        cartella, QStringList{QStringLiteral("--crea"), QStringLiteral("--proprietario"),
                              ruoli.Proprietario(), QStringLiteral("--gruppo"), ruoli.Gruppo()}
                      << Identita(QStringLiteral("ASLU"), 1, 999) << login(ruoli.Amministratore())
                      << QStringList{QStringLiteral("-i"), Schema(TipoBackend::PostgreSQL)});
    QVERIFY2(creato.codice == 0, qPrintable(creato.errori));
    // An earlier version: no view of the tree, no version.
    QVERIFY(Riesce(*Accedi(ruoli, database, ruoli.Amministratore()),
                   QStringLiteral("SET ROLE %1; DROP VIEW AlberoGlobale; UPDATE Config SET "
                                  "Versione = 3.1")
                       .arg(ruoli.Proprietario())));

    // An archivist's login is told whose work it is, and nothing changes.
    const Esito archivista =
        Esegui(cartella, login(ruoli.Archivista()) << QStringLiteral("-i") << Alter());
    QCOMPARE(archivista.codice, 1);
    QVERIFY2(archivista.errori.contains(QStringLiteral("con il login dell'amministratore")),
             qPrintable(archivista.errori));
    QVERIFY2(archivista.errori.contains(ruoli.Proprietario()), qPrintable(archivista.errori));
    QCOMPARE(Elenco(*Accedi(ruoli, database, ruoli.Archivista()),
                    QStringLiteral("SELECT Versione FROM Config")),
             QStringList{QStringLiteral("3.1")});

    // The administrator's: the view is back, the owner's, and the archivists may read it.
    const Esito amministratore =
        Esegui(cartella, login(ruoli.Amministratore()) << QStringLiteral("-i") << Alter());
    QVERIFY2(amministratore.codice == 0, qPrintable(amministratore.errori));
    const auto lettore = Accedi(ruoli, database, ruoli.Archivista());
    QCOMPARE(Elenco(*lettore, QStringLiteral("SELECT Versione FROM Config")),
             QStringList{QStringLiteral("4")});
    QCOMPARE(Elenco(*lettore, QStringLiteral("SELECT COUNT(*) FROM AlberoGlobale")),
             QStringList{QStringLiteral("0")});
    QCOMPARE(Elenco(*lettore, QStringLiteral("SELECT viewowner FROM pg_views WHERE viewname = "
                                             "'alberoglobale'")),
             QStringList{ruoli.Proprietario()});
    QVERIFY(!Riesce(*lettore, QStringLiteral("DROP VIEW AlberoGlobale")));
}

QTEST_GUILESS_MAIN(TestTabellionSql)
#include "tst_tabellionsql.moc"
