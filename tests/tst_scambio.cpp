// tabellion-scambio, the exchange without windows: the tables done on the output, the
// messages on the error stream, a non-zero result when a table fails.

#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"

#include <QFile>
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
    const QString programma = QStringLiteral(TABELLION_SITO "/tabellion-scambio");
    if (!QFile::exists(programma))
        return {-1, QString(), QStringLiteral("tabellion-scambio not built: ") + programma};
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("TABELLION_CARTELLA"), cartella.Percorso());
    processo.setProcessEnvironment(ambiente);
    processo.start(programma, argomenti);
    if (!processo.waitForFinished(120000))
        return {-1, QString(), QStringLiteral("did not finish")};
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            QString::fromUtf8(processo.readAllStandardOutput()),
            QString::fromUtf8(processo.readAllStandardError())};
}

QStringList Login(const BancaDatiProva& banca) {
    return {QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"), banca.Password(),
            QStringLiteral("-S"), banca.Server(), QStringLiteral("-d"), banca.Database()};
}

QByteArray Schema(const char* tabella) {
    return QByteArray("<s datafile=\"") + tabella +
           ".xml\" version=\"4\"><stru fieldcount=\"2\"><field type=\"3\" pk=\"1\">ID</field>"
           "<field type=\"202\" pk=\"0\">Nome</field></stru></s>";
}

QByteArray Dati(const char* tabella, const char* nome) {
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"") + tabella +
           "\" version=\"4\" code=\"AB01\">\r\n\t<record>\r\n\t\t<field id=\"1\" "
           "null=\"0\">7</field>\r\n\t\t<field id=\"2\" null=\"0\">" +
           nome + "</field>\r\n\t</record>\r\n</table>";
}

} // namespace

class TestScambio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void importaDallaRigaDiComandoEDiceLeTabelleFatte_data() { AggiungiBackend(); }
    void importaDallaRigaDiComandoEDiceLeTabelleFatte();
    void unaTabellaFallitaDaUnEsitoDiversoDaZero_data() { AggiungiBackend(); }
    void unaTabellaFallitaDaUnEsitoDiversoDaZero();
    void argomentiSbagliatiMostranoLUso();
    void lArchivioDimostrativoPassaDaUnDatabaseAUnAltro_data() { AggiungiBackend(); }
    void lArchivioDimostrativoPassaDaUnDatabaseAUnAltro();
};

void TestScambio::lArchivioDimostrativoPassaDaUnDatabaseAUnAltro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    // The demo site exports every table its schema files offer...
    BancaDatiProva mittente(TipoBackend::SQLite,
                            {QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")});
    CartellaProva sitoMittente;
    sitoMittente.ScriviSito(mittente.Testa(), mittente.Server(), mittente.Database());
    CartellaProva scambio;
    const QString schemi = QStringLiteral(TABELLION_SITO "/Schemi");
    const Esito esportato =
        Esegui(sitoMittente, QStringList{QStringLiteral("esporta")}
                                 << Login(mittente) << QStringLiteral("-c") << scambio.Percorso()
                                 << QStringLiteral("-x") << schemi);
    QVERIFY2(esportato.codice == 0, qPrintable(esportato.errori));
    const QStringList tabelle = esportato.uscita.split(u'\n', Qt::SkipEmptyParts);
    QVERIFY(tabelle.size() >= 39);
    // ...and a database of another site, with rows of its own, takes them all.
    BancaDatiProva ricevente(backend);
    {
        auto proprio = ricevente.Apri();
        proprio->Esegui(QStringLiteral("UPDATE Config SET Code = 'ASLU', ID_Start = 5000000, "
                                       "ID_End = 5999999"));
        proprio->Esegui(
            QStringLiteral("INSERT INTO Elementi (ID_Elemento, Tipologia, "
                           "Denominazione) VALUES (5000000, '01', 'Istituto proprio')"));
    }
    CartellaProva sitoRicevente;
    sitoRicevente.ScriviSito(ricevente.Testa(), ricevente.Server(), ricevente.Database());
    const Esito importato =
        Esegui(sitoRicevente, QStringList{QStringLiteral("importa")}
                                  << Login(ricevente) << QStringLiteral("-c") << scambio.Percorso()
                                  << QStringLiteral("-x") << schemi);
    QVERIFY2(importato.codice == 0, qPrintable(importato.errori));
    QCOMPARE(importato.uscita.split(u'\n', Qt::SkipEmptyParts).size(), tabelle.size());
    auto da = mittente.Apri();
    auto a = ricevente.Apri();
    for (const char* tabella :
         {"Elementi", "Istituti", "ComplessiDoc", "Inventari", "Pergamene", "Sigilli", "SGTipo",
          "Soggetti", "Persone", "Links", "ComplessiDocSoggetti", "Provincie"}) {
        const QString conta = QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabella));
        QSqlQuery prima = da->Esegui(conta);
        QSqlQuery dopo = a->Esegui(conta);
        QVERIFY(prima.next() && dopo.next());
        QVERIFY2(prima.value(0).toInt() > 0, tabella);
        const int propri = QLatin1String(tabella) == QLatin1String("Elementi") ||
                                   QLatin1String(tabella) == QLatin1String("Istituti")
                               ? 1
                               : 0;
        QCOMPARE(dopo.value(0).toInt(), prima.value(0).toInt() + propri);
    }
    // The receiving site's own rows are untouched.
    QSqlQuery proprio = a->Esegui(QStringLiteral(
        "SELECT E.Code, I.Code FROM Elementi E JOIN Istituti I ON I.ID_Elemento = E.ID_Elemento "
        "WHERE E.ID_Elemento = 5000000"));
    QVERIFY(proprio.next());
    QCOMPARE(proprio.value(0).toString(), QStringLiteral("ASLU"));
    QCOMPARE(proprio.value(1).toString(), QStringLiteral("ASLU"));
    // And back: the receiving site's database gives the demo rows to a third, on SQLite.
    CartellaProva ritorno;
    const Esito riesportato =
        Esegui(sitoRicevente, QStringList{QStringLiteral("esporta")}
                                  << Login(ricevente) << QStringLiteral("-c") << ritorno.Percorso()
                                  << QStringLiteral("-x") << schemi);
    QVERIFY2(riesportato.codice == 0, qPrintable(riesportato.errori));
    BancaDatiProva terzo(TipoBackend::SQLite);
    CartellaProva sitoTerzo;
    sitoTerzo.ScriviSito(terzo.Testa(), terzo.Server(), terzo.Database());
    const Esito reimportato =
        Esegui(sitoTerzo, QStringList{QStringLiteral("importa")}
                              << Login(terzo) << QStringLiteral("-c") << ritorno.Percorso()
                              << QStringLiteral("-x") << schemi);
    QVERIFY2(reimportato.codice == 0, qPrintable(reimportato.errori));
    auto c = terzo.Apri();
    QSqlQuery elementi = c->Esegui(QStringLiteral("SELECT COUNT(*) FROM Elementi"));
    QSqlQuery attesi = da->Esegui(QStringLiteral("SELECT COUNT(*) FROM Elementi"));
    QVERIFY(elementi.next() && attesi.next());
    // The receiving site exported its own rows too, under its own code.
    QCOMPARE(elementi.value(0).toInt(), attesi.value(0).toInt() + 1);
    // The rows keep the sender's code, and what the database derived travels with them.
    QSqlQuery riga = a->Esegui(QStringLiteral(
        "SELECT Code, DenomCompleta FROM ComplessiDoc WHERE DenomCompleta LIKE '% > % > %'"));
    QVERIFY(riga.next());
    QCOMPARE(riga.value(0).toString(), QStringLiteral("DEMO"));
}

void TestScambio::importaDallaRigaDiComandoEDiceLeTabelleFatte() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    CartellaProva sito;
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    CartellaProva scambio;
    scambio.Scrivi(QStringLiteral("PrimaSch.xml"), Schema("Prima"));
    scambio.Scrivi(QStringLiteral("SecondaSch.xml"), Schema("Seconda"));
    scambio.Scrivi(QStringLiteral("Prima.xml"), Dati("Prima", "L'Aquila"));
    scambio.Scrivi(QStringLiteral("Seconda.xml"), Dati("Seconda", "Forlì"));
    {
        auto connessione = banca.Apri();
        QSqlQuery query(connessione->Db());
        QVERIFY(query.exec(
            QStringLiteral("CREATE TABLE Prima (ID INTEGER, Nome VARCHAR(50), Code VARCHAR(10))")));
        QVERIFY(query.exec(QStringLiteral(
            "CREATE TABLE Seconda (ID INTEGER, Nome VARCHAR(50), Code VARCHAR(10))")));
    }
    const Esito esito = Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) +
                                         QStringList{QStringLiteral("-c"), scambio.Percorso(),
                                                     QStringLiteral("-x"), scambio.Percorso()});
    QVERIFY2(esito.codice == 0, qPrintable(esito.errori));
    QCOMPARE(esito.uscita, QStringLiteral("Prima\nSeconda\n"));
    QCOMPARE(esito.errori, QString());
    auto connessione = banca.Apri();
    QSqlQuery query(connessione->Db());
    QVERIFY(query.exec(QStringLiteral("SELECT Nome, Code FROM Seconda")));
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toString(), QStringLiteral("Forlì"));
    QCOMPARE(query.value(1).toString(), QStringLiteral("AB01"));
    QVERIFY(QFile::exists(scambio.File(QStringLiteral("PrimaSql.xml"))));
}

void TestScambio::unaTabellaFallitaDaUnEsitoDiversoDaZero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    CartellaProva sito;
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    CartellaProva scambio;
    scambio.Scrivi(QStringLiteral("PrimaSch.xml"), Schema("Prima"));
    scambio.Scrivi(QStringLiteral("MancanteSch.xml"), Schema("Mancante"));
    scambio.Scrivi(QStringLiteral("Prima.xml"), Dati("Prima", "Roma"));
    scambio.Scrivi(QStringLiteral("Mancante.xml"), Dati("Mancante", "Roma"));
    {
        auto connessione = banca.Apri();
        QSqlQuery query(connessione->Db());
        QVERIFY(query.exec(
            QStringLiteral("CREATE TABLE Prima (ID INTEGER, Nome VARCHAR(50), Code VARCHAR(10))")));
    }
    const Esito esito =
        Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) +
                         QStringList{QStringLiteral("-c"), scambio.Percorso(), QStringLiteral("-x"),
                                     scambio.Percorso(), QStringLiteral("Mancante"),
                                     QStringLiteral("Prima")});
    QCOMPARE(esito.codice, 2);
    QCOMPARE(esito.uscita, QStringLiteral("Prima\n"));
    QVERIFY(!esito.errori.isEmpty());

    const Esito sbagliata = Esegui(
        sito, {QStringLiteral("importa"), QStringLiteral("-d"), QStringLiteral("nessuna_banca"),
               QStringLiteral("-S"), banca.Server(), QStringLiteral("-U"), banca.Utente(),
               QStringLiteral("-P"), banca.Password(), QStringLiteral("-c"), scambio.Percorso(),
               QStringLiteral("-x"), scambio.Percorso()});
    QCOMPARE(sbagliata.codice, 1);
    QVERIFY(!sbagliata.errori.isEmpty());
    QCOMPARE(sbagliata.uscita, QString());
}

void TestScambio::argomentiSbagliatiMostranoLUso() {
    CartellaProva sito;
    for (const QStringList& argomenti :
         {QStringList{}, QStringList{QStringLiteral("copia")},
          QStringList{QStringLiteral("importa"), QStringLiteral("-d")}}) {
        const Esito esito = Esegui(sito, argomenti);
        QCOMPARE(esito.codice, 1);
        QVERIFY2(esito.errori.contains(QStringLiteral("Uso: tabellion-scambio")),
                 qPrintable(esito.errori));
    }
}

QTEST_MAIN(TestScambio)
#include "tst_scambio.moc"
