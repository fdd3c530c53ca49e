// The connection string, the two backends behind it, bound values and SQL scripts.

#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/IdentitaSito.h"
#include "store/LetturaRighe.h"
#include "store/StringaConnessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"

#include <QFile>
#include <QSqlQuery>
#include <QtTest>

class TestConnessione : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void laStringaSiLeggeSenzaBadareAlleMaiuscoleEVinceLUltimaChiave();
    void unValoreTraVirgoletteTieneIPuntiEVirgola();
    void laStringaDelLoginEComposta();
    void unaPasswordConPuntoEVirgolaArrivaIntera();
    void unProviderSconosciutoElencaQuelliNoti();
    void unDatabaseSQLiteCheNonCeNonVieneCreato();
    void unFileCheNonEUnDatabaseEDettoInParole();
    void laCartellaSQLiteRelativaStaNellaCartellaDelProgramma();
    void unaPasswordSbagliataERifiutataDalServer();
    void unServerCheNonRispondeEDettoInParole();
    void iValoriLegatiConApostrofiEAccentiNonCambianoLIstruzione_data();
    void iValoriLegatiConApostrofiEAccentiNonCambianoLIstruzione();
    void loScriptSiDivideInIstruzioniConTriggerCorpiECommenti();
    void unaRigaGoChiudeLIstruzione();
    void unoScriptCheFallisceNonLasciaNulla_data();
    void unoScriptCheFallisceNonLasciaNulla();
    void unaConnessioneChiusaDaUnErroreChiaro();
    void leRigheSiLeggonoPerLaViaDelMotoreConIValoriLegati_data();
    void leRigheSiLeggonoPerLaViaDelMotoreConIValoriLegati();
    void unaLetturaDiRigheRifiutataDaUnErroreConLeParoleDelServer_data();
    void unaLetturaDiRigheRifiutataDaUnErroreConLeParoleDelServer();
    void unDatabaseNuovoHaIlCodiceProvvisorioFinoAllIdentitaDelSito_data();
    void unDatabaseNuovoHaIlCodiceProvvisorioFinoAllIdentitaDelSito();
};

void TestConnessione::laStringaSiLeggeSenzaBadareAlleMaiuscoleEVinceLUltimaChiave() {
    const StringaConnessione stringa = StringaConnessione::Leggi(
        QStringLiteral("Provider=QPSQL;Port=5433; data source = vecchio ;Data Source=server;"));
    QCOMPARE(stringa.Valore(QStringLiteral("provider")), QStringLiteral("QPSQL"));
    QCOMPARE(stringa.Valore(QStringLiteral("PORT")), QStringLiteral("5433"));
    QCOMPARE(stringa.Valore(QStringLiteral("Data Source")), QStringLiteral("server"));
    QVERIFY(!stringa.Contiene(QStringLiteral("Password")));
    QCOMPARE(stringa.Valore(QStringLiteral("Password")), QString());
}

void TestConnessione::unValoreTraVirgoletteTieneIPuntiEVirgola() {
    const StringaConnessione stringa = StringaConnessione::Leggi(
        QStringLiteral("Provider=QPSQL;Password=\"a;b\"\"c\";User ID='l''archivista'"));
    QCOMPARE(stringa.Valore(QStringLiteral("Password")), QStringLiteral("a;b\"c"));
    QCOMPARE(stringa.Valore(QStringLiteral("User ID")), QStringLiteral("l'archivista"));
}

void TestConnessione::laStringaDelLoginEComposta() {
    QCOMPARE(ComponiStringaConnessione(
                 QStringLiteral("Provider=QPSQL;Port=5432"), QStringLiteral("archivio.local"),
                 QStringLiteral("Tabellion"), QStringLiteral("mrossi"), QStringLiteral("segreta")),
             QStringLiteral("Provider=QPSQL;Port=5432;Data Source=archivio.local;Initial "
                            "Catalog=Tabellion;User ID=mrossi;Password=segreta"));
}

void TestConnessione::unaPasswordConPuntoEVirgolaArrivaIntera() {
    const QString testo = ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), QString(),
                                                    QStringLiteral("T"), QStringLiteral("u"),
                                                    QStringLiteral("x;Provider=Altro\""));
    QCOMPARE(StringaConnessione::Leggi(testo).Valore(QStringLiteral("Password")),
             QStringLiteral("x;Provider=Altro\""));
    QCOMPARE(StringaConnessione::Leggi(testo).Valore(QStringLiteral("Provider")),
             QStringLiteral("QSQLITE"));
}

void TestConnessione::unProviderSconosciutoElencaQuelliNoti() {
    try {
        Connessione::Apri(QStringLiteral("Provider=SQLOLEDB;Data Source=x;Initial Catalog=y"));
        QFAIL("an unknown provider opened");
    } catch (const Errore& errore) {
        QVERIFY(errore.descrizione().contains(QStringLiteral("SQLOLEDB")));
        QVERIFY(errore.descrizione().contains(QStringLiteral("QSQLITE")));
        QVERIFY(errore.descrizione().contains(QStringLiteral("QPSQL")));
    }
}

void TestConnessione::unDatabaseSQLiteCheNonCeNonVieneCreato() {
    CartellaProva cartella;
    const QString stringa = ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"),
                                                      cartella.Percorso(), QStringLiteral("Manca"),
                                                      QStringLiteral("u"), QStringLiteral("p"));
    QVERIFY_THROWS_EXCEPTION(Errore, Connessione::Apri(stringa));
    QVERIFY(!QFile::exists(cartella.File(QStringLiteral("Manca.db"))));
}

void TestConnessione::unFileCheNonEUnDatabaseEDettoInParole() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("Rotto.db"), QByteArray(4096, 'x'));
    try {
        Connessione::Apri(ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"),
                                                    cartella.Percorso(), QStringLiteral("Rotto"),
                                                    QString(), QString()));
        QFAIL("a broken file opened");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().contains(QStringLiteral("non è un database")),
                 qPrintable(errore.descrizione()));
    }
    QCOMPARE(QFile(cartella.File(QStringLiteral("Rotto.db"))).size(), 4096);
}

void TestConnessione::laCartellaSQLiteRelativaStaNellaCartellaDelProgramma() {
    CartellaProva cartella;
    const StringaConnessione stringa = StringaConnessione::Leggi(
        QStringLiteral("Provider=QSQLITE;Data Source=dati;Initial Catalog=A"));
    Connessione::BackendDi(stringa).CreaDatabase(stringa);
    QVERIFY(QFile::exists(cartella.File(QStringLiteral("dati/A.db"))));
    const StringaConnessione vuota = StringaConnessione::Leggi(
        QStringLiteral("Provider=QSQLITE;Data Source=;Initial Catalog=B.sqlite"));
    Connessione::BackendDi(vuota).CreaDatabase(vuota);
    QVERIFY(QFile::exists(cartella.File(QStringLiteral("B.sqlite"))));
}

void TestConnessione::unaPasswordSbagliataERifiutataDalServer() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    BancaDatiProva banca(TipoBackend::PostgreSQL);
    auto giusta = banca.Apri();
    QVERIFY(giusta->Aperta());
    try {
        Connessione::Apri(ComponiStringaConnessione(banca.Testa(), banca.Server(), banca.Database(),
                                                    banca.Utente(), QStringLiteral("sbagliata")));
        QFAIL("a wrong password entered");
    } catch (const Errore& errore) {
        QCOMPARE(errore.sorgente(), QStringLiteral("PostgreSQL"));
        QVERIFY2(errore.descrizione().contains(QStringLiteral("password")),
                 qPrintable(errore.descrizione()));
    }
}

void TestConnessione::unServerCheNonRispondeEDettoInParole() {
    try {
        Connessione::Apri(QStringLiteral("Provider=QPSQL;Data Source=127.0.0.1:1;Initial "
                                         "Catalog=Tabellion;User ID=u;Password=p"));
        QFAIL("a server that is down answered");
    } catch (const Errore& errore) {
        QVERIFY(!errore.descrizione().isEmpty());
    }
}

void TestConnessione::iValoriLegatiConApostrofiEAccentiNonCambianoLIstruzione_data() {
    AggiungiBackend();
}

void TestConnessione::iValoriLegatiConApostrofiEAccentiNonCambianoLIstruzione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    auto connessione = banca.Apri();
    const QString testo =
        QStringLiteral("Archivio dell'Abbazia di Sant'Anselmo; \"già\" -- città');"
                       " DROP TABLE Config; --");
    connessione->Esegui(QStringLiteral("UPDATE Config SET Descrizione = ?"), {testo});
    QSqlQuery letta = connessione->Esegui(QStringLiteral("SELECT descrizione FROM config"));
    QVERIFY(letta.next());
    QCOMPARE(letta.value(0).toString(), testo);
    letta = connessione->Esegui(QStringLiteral("SELECT COUNT(*) FROM CONFIG WHERE Descrizione = ?"),
                                {testo});
    QVERIFY(letta.next());
    QCOMPARE(letta.value(0).toInt(), 1);
}

void TestConnessione::loScriptSiDivideInIstruzioniConTriggerCorpiECommenti() {
    const QString script = QStringLiteral(
        "-- intestazione; con punto e virgola\n"
        "CREATE TABLE A (x INTEGER, t VARCHAR(10) DEFAULT ';');\n"
        "/* commento; lungo\n su due righe */\n"
        "CREATE TRIGGER a_dopo AFTER INSERT ON A BEGIN\n"
        "  UPDATE A SET t = CASE WHEN NEW.x > 0 THEN 'p;' ELSE 'n' END WHERE x = NEW.x;\n"
        "  UPDATE A SET x = x;\n"
        "END;\n"
        "CREATE FUNCTION f() RETURNS trigger AS $$ BEGIN NEW.t := 'a;b'; RETURN NEW; END; $$ "
        "LANGUAGE plpgsql;\n"
        "INSERT INTO A VALUES (1, 'it''s; fine')");
    const QList<IstruzioneScript> istruzioni = DividiScript(script);
    QCOMPARE(istruzioni.size(), 4);
    QCOMPARE(istruzioni[0].iRiga, 2);
    QVERIFY(istruzioni[1].sTesto.startsWith(QStringLiteral("CREATE TRIGGER")));
    QVERIFY(istruzioni[1].sTesto.endsWith(QStringLiteral("END")));
    QCOMPARE(istruzioni[1].iRiga, 5);
    QVERIFY(istruzioni[2].sTesto.contains(QStringLiteral("'a;b'; RETURN NEW; END; $$")));
    QCOMPARE(istruzioni[3].sTesto, QStringLiteral("INSERT INTO A VALUES (1, 'it''s; fine')"));
    QCOMPARE(istruzioni[3].iRiga, 10);
}

void TestConnessione::unaRigaGoChiudeLIstruzione() {
    const QList<IstruzioneScript> istruzioni =
        DividiScript(QStringLiteral("UPDATE Config SET Versione = 3.2\nGO\nSELECT 'GO'\n  go  \n"));
    QCOMPARE(istruzioni.size(), 2);
    QCOMPARE(istruzioni[0].sTesto, QStringLiteral("UPDATE Config SET Versione = 3.2"));
    QCOMPARE(istruzioni[1].sTesto, QStringLiteral("SELECT 'GO'"));
}

void TestConnessione::unoScriptCheFallisceNonLasciaNulla_data() {
    AggiungiBackend();
}

void TestConnessione::unoScriptCheFallisceNonLasciaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    auto connessione = banca.Apri();
    const QString script = QStringLiteral("CREATE TABLE Nuova (x INTEGER);\n"
                                          "UPDATE Config SET Descrizione = 'cambiata';\n"
                                          "SELEKT sbagliato;\n");
    try {
        EseguiScript(*connessione, script, QStringLiteral("alter.sql"));
        QFAIL("a bad script ran");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().startsWith(QStringLiteral("alter.sql, riga 3: ")),
                 qPrintable(errore.descrizione()));
    }
    QSqlQuery config = connessione->Esegui(QStringLiteral("SELECT Descrizione FROM Config"));
    QVERIFY(config.next());
    QVERIFY(config.value(0).isNull());
    QVERIFY_THROWS_EXCEPTION(Errore, connessione->Esegui(QStringLiteral("SELECT x FROM Nuova")));
}

void TestConnessione::unaConnessioneChiusaDaUnErroreChiaro() {
    BancaDatiProva banca(TipoBackend::SQLite);
    auto connessione = banca.Apri();
    connessione->Chiudi();
    QVERIFY(!connessione->Aperta());
    try {
        connessione->Esegui(QStringLiteral("SELECT 1"));
        QFAIL("a closed connection ran a statement");
    } catch (const Errore& errore) {
        QCOMPARE(errore.descrizione(), QStringLiteral("La connessione al database è chiusa."));
    }
}

void TestConnessione::unDatabaseNuovoHaIlCodiceProvvisorioFinoAllIdentitaDelSito_data() {
    AggiungiBackend();
}

void TestConnessione::unDatabaseNuovoHaIlCodiceProvvisorioFinoAllIdentitaDelSito() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    const auto connessione = banca.Apri();
    // The schema's placeholder is the program's.
    QSqlQuery codice = connessione->Esegui(QStringLiteral("SELECT Code FROM Config"));
    QVERIFY(codice.next());
    QCOMPARE(codice.value(0).toString(), CodiceSitoProvvisorio());
    codice.finish();
    QVERIFY(SitoSenzaIdentita(*connessione));

    // Identities that cannot be written change nothing.
    const QList<IdentitaSito> sbagliate = {
        {QStringLiteral("sito"), QString(), 1, 10},
        {QStringLiteral("AS LU"), QString(), 1, 10},
        {QStringLiteral("UNDICILETTE"), QString(), 1, 10},
        {QStringLiteral("ASLU"), QString(), 0, 10},
        {QStringLiteral("ASLU"), QString(), 20, 10},
        {QStringLiteral("ASLU"), QString(), 1, ChiaveMassima + 1}};
    for (const IdentitaSito& sbagliata : sbagliate) {
        QVERIFY(!ErroreIdentita(sbagliata).isEmpty());
        QVERIFY_THROWS_EXCEPTION(Errore, ScriviIdentita(*connessione, sbagliata));
    }
    QVERIFY(SitoSenzaIdentita(*connessione));

    ScriviIdentita(*connessione, {QStringLiteral("ASLU"),
                                  QStringLiteral("Archivio di Stato di Lucca"), 5000, 5999});
    QVERIFY(!SitoSenzaIdentita(*connessione));
    QSqlQuery config = connessione->Esegui(
        QStringLiteral("SELECT Code, Descrizione, ID_Start, ID_End FROM Config"));
    QVERIFY(config.next());
    QCOMPARE(config.value(0).toString(), QStringLiteral("ASLU"));
    QCOMPARE(config.value(1).toString(), QStringLiteral("Archivio di Stato di Lucca"));
    QCOMPARE(config.value(2).toLongLong(), 5000);
    QCOMPARE(config.value(3).toLongLong(), 5999);
    config.finish();
    // The keys generated from now on, also those the database gives the detail rows, are the
    // range's.
    const qint64 lElemento =
        connessione->Inserisci(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"),
                               {QStringLiteral("Tipologia"), QStringLiteral("Denominazione")},
                               {QStringLiteral("01"), QStringLiteral("Archivio")});
    QCOMPARE(lElemento, 5000);
    QSqlQuery istituto = connessione->Esegui(
        QStringLiteral("SELECT ID_Istituto, Code FROM Istituti WHERE ID_Elemento = ?"),
        {lElemento});
    QVERIFY(istituto.next());
    QCOMPARE(istituto.value(0).toLongLong(), 5000);
    QCOMPARE(istituto.value(1).toString(), QStringLiteral("ASLU"));
}

QTEST_GUILESS_MAIN(TestConnessione)
void TestConnessione::leRigheSiLeggonoPerLaViaDelMotoreConIValoriLegati_data() {
    AggiungiBackend();
}

void TestConnessione::leRigheSiLeggonoPerLaViaDelMotoreConIValoriLegati() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    const auto cnn = banca.Apri();
    const QString sPadre = QStringLiteral("Archivio dell'Opera di Santa Maria, \"Città\" è ñ 中");
    const qint64 padre =
        cnn->Inserisci(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"),
                       {QStringLiteral("Tipologia"), QStringLiteral("Denominazione")},
                       {QStringLiteral("01"), sPadre});
    const qint64 figlio =
        cnn->Inserisci(QStringLiteral("Elementi"), QStringLiteral("ID_Elemento"),
                       {QStringLiteral("ID_ElementoPadre"), QStringLiteral("Tipologia"),
                        QStringLiteral("Denominazione")},
                       {padre, QStringLiteral("02"), QStringLiteral("")});
    // The engine's own path where the backend has one, named.
    const auto righe = cnn->backend().ApriLetturaRighe(
        cnn->Db(),
        QStringLiteral("SELECT ID_Elemento, ID_ElementoPadre, Denominazione, Tipologia FROM "
                       "Elementi WHERE ID_Elemento IN (?, ?) AND Denominazione <> ? "
                       "ORDER BY ID_Elemento"),
        {padre, figlio, QStringLiteral("nessuno")}, QStringLiteral("prova"));
    QCOMPARE(righe->Via(),
             backend == TipoBackend::SQLite ? QStringLiteral("sqlite3") : QStringLiteral("Qt"));
    QVERIFY(righe->Prossima());
    QCOMPARE(righe->Intero(0), padre);
    QVERIFY(righe->Null(1));
    QVERIFY(!righe->Null(2));
    QCOMPARE(QString::fromUtf8(righe->Testo(2)), sPadre);
    QCOMPARE(QString::fromUtf8(righe->Testo(3)), QStringLiteral("01"));
    // The same texts as strings, for a reader that keeps them.
    QCOMPARE(righe->Stringa(2), sPadre);
    QCOMPARE(righe->Stringa(3), QStringLiteral("01"));
    QVERIFY(righe->Prossima());
    QCOMPARE(righe->Intero(0), figlio);
    QCOMPARE(righe->Intero(1), padre);
    // An empty text is no Null.
    QVERIFY(!righe->Null(2));
    QVERIFY(righe->Testo(2).isEmpty());
    QVERIFY(righe->Stringa(2).isEmpty());
    QVERIFY(!righe->Prossima());
}

void TestConnessione::unaLetturaDiRigheRifiutataDaUnErroreConLeParoleDelServer_data() {
    AggiungiBackend();
}

void TestConnessione::unaLetturaDiRigheRifiutataDaUnErroreConLeParoleDelServer() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    const auto cnn = banca.Apri();
    try {
        cnn->backend().ApriLetturaRighe(cnn->Db(),
                                        QStringLiteral("SELECT Manca FROM TabellaCheNonCe"), {},
                                        QStringLiteral("prova"));
        QFAIL("a statement on a missing table was read");
    } catch (const Errore& errore) {
        QCOMPARE(errore.sorgente(), QStringLiteral("prova"));
        QVERIFY2(
            errore.descrizione().contains(QStringLiteral("tabellachenonce"), Qt::CaseInsensitive),
            qPrintable(errore.descrizione()));
    }
}

#include "tst_connessione.moc"
