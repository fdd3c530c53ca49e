// tabellion-sql, the tool the schema upgrade starts: it runs a script on a site's database
// under the user's login and fails cleanly.

#include "store/Backend.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"

#include <QProcess>
#include <QSqlQuery>
#include <QtTest>

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
    const QString nome = banca.Database() + QStringLiteral("_nuovo");
    cartella.ScriviSito(banca.Testa(), banca.Server(), nome);
    const QString schema =
        QStringLiteral(TABELLION_SORGENTI) + (backend == TipoBackend::SQLite
                                                  ? QStringLiteral("/db/sqlite/schema.sql")
                                                  : QStringLiteral("/db/postgresql/schema.sql"));
    const QString demo = QStringLiteral(TABELLION_SORGENTI "/db/demo.sql");
    const Esito esito =
        Esegui(cartella, {QStringLiteral("--crea"), QStringLiteral("-U"), banca.Utente(),
                          QStringLiteral("-P"), banca.Password(), QStringLiteral("-S"),
                          banca.Server(), QStringLiteral("-d"), nome, QStringLiteral("-i"), schema,
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

QTEST_GUILESS_MAIN(TestTabellionSql)
#include "tst_tabellionsql.moc"
