// The import of tables sent by another site: the site's rows replaced by those of the file,
// the command log, the version checks, and a failed table left exactly as it was.

#include "exchange/Import.h"
#include "exchange/frmImporta.h"
#include "exchange/frmScImporta.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "PiattaformaScriptata.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QXmlStreamReader>
#include <QtTest>
#include <stdexcept>

namespace {

const QByteArray SchemaEsempio =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><schema datafile=\"Esempio.xml\" version=\"4\">"
    "<stru fieldcount=\"5\"><field type=\"3\" pk=\"1\">ID</field>"
    "<field type=\"202\" pk=\"0\">Nome</field><field type=\"5\" pk=\"0\">Valore</field>"
    "<field type=\"135\" pk=\"0\">Data</field><field type=\"3\" pk=\"0\">Numero</field>"
    "</stru></schema>";

QByteArray Campo(int id, const char* testo) {
    if (testo == nullptr)
        return "\r\n\t\t<field id=\"" + QByteArray::number(id) + "\" null=\"1\"/>";
    return "\r\n\t\t<field id=\"" + QByteArray::number(id) + "\" null=\"0\">" + testo + "</field>";
}

QByteArray Record(const QByteArray& campi) {
    return "\r\n\t<record>" + campi + "\r\n\t</record>";
}

QByteArray Dati(const QByteArray& record, const char* code = "AB01", int versione = 4) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"Esempio\" version=\"" +
           QByteArray::number(versione) + "\" code=\"" + code + "\">" + record + "\r\n</table>";
}

void Esegui(const QString& sql) {
    QSqlQuery query(Sessione::cnn->Db());
    QVERIFY2(query.exec(sql), qPrintable(sql));
}

QStringList Righe(const QString& tabella = QStringLiteral("Esempio")) {
    QSqlQuery query(Sessione::cnn->Db());
    if (!query.exec(QStringLiteral("SELECT ID, Nome, Valore, Numero, Code FROM %1 ORDER BY ID")
                        .arg(tabella)))
        return {QStringLiteral("errore")};
    QStringList righe;
    while (query.next()) {
        QStringList r;
        for (int i = 0; i < 5; ++i)
            r.append(query.value(i).isNull() ? QStringLiteral("NULL") : query.value(i).toString());
        righe.append(r.join(QLatin1Char('|')));
    }
    return righe;
}

// True when the whole file is well formed XML.
bool BenFormato(const QString& percorso, QString* ultimoInsert = nullptr) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (ultimoInsert && xml.isStartElement() && xml.name() == QStringLiteral("insert"))
            *ultimoInsert = xml.readElementText();
    }
    return !xml.hasError();
}

// The triggers of a table switched off: on SQLite its row in TriggerSospesi, on PostgreSQL its
// own triggers disabled.
int TriggerSospesi(TipoBackend tipo, const QString& tabella = QStringLiteral("Esempio")) {
    QSqlQuery query(Sessione::cnn->Db());
    if (tipo == TipoBackend::SQLite)
        query.prepare(
            QStringLiteral("SELECT COUNT(*) FROM TriggerSospesi WHERE lower(Tabella) = lower(?)"));
    else
        query.prepare(QStringLiteral("SELECT COUNT(*) FROM pg_trigger WHERE tgrelid = "
                                     "to_regclass(lower(?)) AND NOT tgisinternal AND "
                                     "tgenabled = 'D'"));
    query.addBindValue(tabella);
    if (!query.exec() || !query.next())
        return -1;
    return query.value(0).toInt();
}

// The triggers of a table's own that fire: on SQLite those that look at TriggerSospesi, on
// PostgreSQL the enabled ones.
int TriggerAttivi(TipoBackend tipo, const QString& tabella) {
    QSqlQuery query(Sessione::cnn->Db());
    if (tipo == TipoBackend::SQLite)
        query.prepare(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'trigger' "
                                     "AND lower(tbl_name) = lower(?)"));
    else
        query.prepare(QStringLiteral("SELECT COUNT(*) FROM pg_trigger WHERE tgrelid = "
                                     "to_regclass(lower(?)) AND NOT tgisinternal AND "
                                     "tgenabled <> 'D'"));
    query.addBindValue(tabella);
    if (!query.exec() || !query.next())
        return -1;
    return query.value(0).toInt();
}

// A failure of another kind than the program's own, as a library would raise it.
[[noreturn]] void Lancia(const QString& genere) {
    if (genere == QLatin1String("logic_error"))
        throw std::logic_error("indice fuori dai limiti");
    if (genere == QLatin1String("runtime_error"))
        throw std::runtime_error("risorsa esaurita");
    throw 42;
}

// The words of its box.
QString TestoDi(const QString& genere) {
    if (genere == QLatin1String("logic_error"))
        return QStringLiteral("indice fuori dai limiti");
    if (genere == QLatin1String("runtime_error"))
        return QStringLiteral("risorsa esaurita");
    return QStringLiteral("Errore interno");
}

} // namespace

class TestImporta : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<BancaDatiProva> banca;
    std::unique_ptr<CartellaProva> cartella;
    std::unique_ptr<PiattaformaScriptata> piattaforma;
    TipoBackend tipo = TipoBackend::SQLite;

    bool Prepara();
    void Scrivi(const QByteArray& dati) { cartella->Scrivi(QStringLiteral("Esempio.xml"), dati); }

private Q_SLOTS:
    void cleanup();
    void unFileSostituisceLeRigheDelSitoERegistraIComandi_data() { AggiungiBackend(); }
    void unFileSostituisceLeRigheDelSitoERegistraIComandi();
    void unFileSenzaRecordCancellaLeRigheDelSitoEContaComeImportato_data() { AggiungiBackend(); }
    void unFileSenzaRecordCancellaLeRigheDelSitoEContaComeImportato();
    void importareDueVolteLoStessoFileLasciaLeStesseRighe_data() { AggiungiBackend(); }
    void importareDueVolteLoStessoFileLasciaLeStesseRighe();
    void unaColonnaAssenteDalRecordPrendeIlValorePredefinito_data() { AggiungiBackend(); }
    void unaColonnaAssenteDalRecordPrendeIlValorePredefinito();
    void versioniDiverseMostranoIlMessaggioENonToccanoNulla_data() { AggiungiBackend(); }
    void versioniDiverseMostranoIlMessaggioENonToccanoNulla();
    void unFileDelSitoStessoOSenzaSitoORicevutoSenzaIdentitaNonToccaNulla_data() {
        AggiungiBackend();
    }
    void unFileDelSitoStessoOSenzaSitoORicevutoSenzaIdentitaNonToccaNulla();
    void unaTabellaSenzaCodeFallisceAllaCancellazioneEVieneAnnullata_data() { AggiungiBackend(); }
    void unaTabellaSenzaCodeFallisceAllaCancellazioneEVieneAnnullata();
    void unValoreSbagliatoNelRecordNLasciaLaTabellaComEraEIlLogFinisceColComandoFallito_data() {
        AggiungiBackend();
    }
    void unValoreSbagliatoNelRecordNLasciaLaTabellaComEraEIlLogFinisceColComandoFallito();
    void unRifiutoDelServerAMetaDiUnGruppoDiRecordFaFinireIlLogColComandoRifiutato_data() {
        AggiungiBackend();
    }
    void unRifiutoDelServerAMetaDiUnGruppoDiRecordFaFinireIlLogColComandoRifiutato();
    void unFileTroncatoDopoMoltiRecordGiaInviatiLasciaLaTabellaComEra_data() { AggiungiBackend(); }
    void unFileTroncatoDopoMoltiRecordGiaInviatiLasciaLaTabellaComEra();
    void unFileMalFormatoTroncatoOSenzaCodiceNonLasciaNulla_data() { AggiungiBackend(); }
    void unFileMalFormatoTroncatoOSenzaCodiceNonLasciaNulla();
    void leTabelleOfferteSonoQuelleDegliSchemiInMaiuscoloOMinuscolo();
    void unInterruttoreDeiTriggerRifiutatoVieneIgnoratoELImportProsegue_data();
    void unInterruttoreDeiTriggerRifiutatoVieneIgnoratoELImportProsegue();
    void senzaTabelleSceltePerImportareIlMessaggioEVuotoEIlModuloSiChiude();
    void laFinestraImportaLeTabelleScelteEMostraIlProgresso_data() { AggiungiBackend(); }
    void laFinestraImportaLeTabelleScelteEMostraIlProgresso();
    void laSceltaDellaCartellaPartedallaRadiceDiImportazione();
    void unLinkAlPostoDelLogVieneSostituitoENonSeguito_data();
    void unLinkAlPostoDelLogVieneSostituitoENonSeguito();
    void unaFallitaDiOgniGenereDaIlSuoBoxELaCorsaProsegue_data();
    void unaFallitaDiOgniGenereDaIlSuoBoxELaCorsaProsegue();
};

bool TestImporta::Prepara() {
    QFETCH(TipoBackend, backend);
    tipo = backend;
    if (tipo == TipoBackend::PostgreSQL && !ServerProva::PostgreSQLDisponibile())
        return false;
    banca = std::make_unique<BancaDatiProva>(tipo);
    cartella = std::make_unique<CartellaProva>();
    piattaforma = std::make_unique<PiattaformaScriptata>();
    Sessione::cnn = banca->Apri();
    Sessione::sParam09 = cartella->Percorso();
    Sessione::sCartellaImport = cartella->Percorso();
    Import::TabelleImportate.clear();
    const QString reale =
        tipo == TipoBackend::SQLite ? QStringLiteral("REAL") : QStringLiteral("DOUBLE PRECISION");
    const QString data =
        tipo == TipoBackend::SQLite ? QStringLiteral("VARCHAR(20)") : QStringLiteral("TIMESTAMP");
    Esegui(QStringLiteral("CREATE TABLE Esempio (ID INTEGER NOT NULL PRIMARY KEY, Nome "
                          "VARCHAR(100), Valore %1, Data %2, Numero INTEGER DEFAULT 42, Code "
                          "VARCHAR(10))")
               .arg(reale, data));
    Esegui(QStringLiteral("INSERT INTO Esempio (ID, Nome, Numero, Code) VALUES "
                          "(1, 'Vecchia', 1, 'AB01'), (2, 'Altra', 2, 'AB01'), "
                          "(100, 'Nostra', 3, 'CD02')"));
    // The receiving site: its own rows are those of its code.
    Esegui(QStringLiteral("UPDATE Config SET Code = 'CD02'"));
    cartella->Scrivi(QStringLiteral("EsempioSch.xml"), SchemaEsempio);
    return true;
}

void TestImporta::cleanup() {
    Sessione::cnn.reset();
    piattaforma.reset();
    cartella.reset();
    banca.reset();
}

void TestImporta::unFileSostituisceLeRigheDelSitoERegistraIComandi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    Scrivi(Dati(Record(Campo(1, "7") + Campo(2, "L'Aquila è città") + Campo(3, "1,5") +
                       Campo(4, "2001-03-02 12:00:00") + Campo(5, "12")) +
                Record(Campo(1, "8") + Campo(2, "") + Campo(3, nullptr) + Campo(4, nullptr) +
                       Campo(5, "9"))));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(piattaforma->Messaggi().size(), 0);
    QCOMPARE(Import::TabelleImportate, QStringList{QStringLiteral("Esempio")});
    QCOMPARE(Righe(), (QStringList{QStringLiteral("7|L'Aquila è città|1.5|12|AB01"),
                                   QStringLiteral("8||NULL|9|AB01"),
                                   QStringLiteral("100|Nostra|NULL|3|CD02")}));
    QSqlQuery query(Sessione::cnn->Db());
    QVERIFY(query.exec(QStringLiteral("SELECT Data FROM Esempio WHERE ID = 7")));
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toDateTime(), QDateTime(QDate(2001, 3, 2), QTime(12, 0)));
    QCOMPARE(TriggerSospesi(tipo), 0);

    QFile log(cartella->File(QStringLiteral("EsempioSql.xml")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray atteso =
        QStringLiteral(
            "<?xml version = \"1.0\" encoding=\"UTF-8\"?><table name=\"Esempio\">"
            "\r\n\t<tablecommand>SET IDENTITY_INSERT Esempio ON</tablecommand>"
            "\r\n\t<tablecommand>ALTER TABLE Esempio DISABLE TRIGGER ALL</tablecommand>"
            "\r\n\t<tablecommand>Delete From Esempio Where \"Code\" = 'AB01'</tablecommand>"
            "\r\n\t<record>\r\n\t\t<insert>Insert into Esempio (\"ID\", \"Nome\", \"Valore\", "
            "\"Data\", \"Numero\", \"Code\") Values ('7', 'L''Aquila è città', 1.5, "
            "Convert(datetime,'2001-03-02 12:00:00',120), '12', 'AB01') </insert>\r\n\t</record>"
            "\r\n\t<record>\r\n\t\t<insert>Insert into Esempio (\"ID\", \"Nome\", \"Valore\", "
            "\"Data\", \"Numero\", \"Code\") Values ('8', '', null, null, '9', 'AB01') "
            "</insert>\r\n\t</record>"
            "\r\n\t<tablecommand>ALTER TABLE Esempio ENABLE TRIGGER ALL</tablecommand>"
            "\r\n\t<tablecommand>SET IDENTITY_INSERT Esempio OFF</tablecommand>"
            "\r\n</table>")
            .toUtf8();
    QCOMPARE(log.readAll(), atteso);
}

void TestImporta::unFileSenzaRecordCancellaLeRigheDelSitoEContaComeImportato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    Scrivi(Dati(QByteArray()));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(Righe(), QStringList{QStringLiteral("100|Nostra|NULL|3|CD02")});
    QCOMPARE(Import::ElencoTabelleImportate(), QStringLiteral("Esempio\r\n"));
}

void TestImporta::importareDueVolteLoStessoFileLasciaLeStesseRighe() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    Scrivi(Dati(Record(Campo(1, "5") + Campo(2, "Uno") + Campo(5, "1"))));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    const QStringList prima = Righe();
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(Righe(), prima);
    QCOMPARE(prima.size(), 2);
}

void TestImporta::unaColonnaAssenteDalRecordPrendeIlValorePredefinito() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    // The position comes from id, not from the field's place in the record.
    Scrivi(Dati(Record(Campo(2, "Senza numero") + Campo(1, "9"))));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(Righe().first(), QStringLiteral("9|Senza numero|NULL|42|AB01"));
}

void TestImporta::versioniDiverseMostranoIlMessaggioENonToccanoNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    const QStringList prima = Righe();
    Scrivi(Dati(QByteArray(), "AB01", 5));
    QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(piattaforma->Messaggi().size(), 1);
    const Messaggio m = piattaforma->Messaggi().first();
    QCOMPARE(m.sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(m.icona, Icona::Critica);
    QCOMPARE(m.sTesto, QStringLiteral("Versioni incompatibili tra schema file [4], Data File [5] e "
                                      "Database [4]"));
    QCOMPARE(Righe(), prima);
    QVERIFY(!QFile::exists(cartella->File(QStringLiteral("EsempioSql.xml"))));
    QVERIFY(Import::TabelleImportate.isEmpty());
}

void TestImporta::unFileDelSitoStessoOSenzaSitoORicevutoSenzaIdentitaNonToccaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    const QStringList prima = Righe();
    const QString sFile = QDir::toNativeSeparators(cartella->File(QStringLiteral("Esempio.xml")));
    const QByteArray record = Record(Campo(1, "7") + Campo(2, "Roma"));
    const struct {
        const char* codiceFile;
        const char* codiceSito;
        QString parole;
    } casi[] = {
        // The receiving site's own code, as it stands or in another case.
        {"CD02", "CD02",
         QStringLiteral("Il file %1 porta il codice \"CD02\", che è quello di questo stesso sito")
             .arg(sFile)},
        {"cd02", "CD02",
         QStringLiteral("Il file %1 porta il codice \"cd02\", che è quello di questo stesso sito")
             .arg(sFile)},
        // The placeholder of a site without identity.
        {"SITO", "CD02",
         QStringLiteral("Il file %1 porta il codice provvisorio \"SITO\" di un sito").arg(sFile)},
        // A receiving site without identity.
        {"AB01", "SITO",
         QStringLiteral("Il sito non ha ancora la sua identità: in Config il codice del sito è "
                        "ancora \"SITO\"")},
    };
    for (const auto& caso : casi) {
        Esegui(QStringLiteral("UPDATE Config SET Code = '%1'").arg(QLatin1String(caso.codiceSito)));
        Scrivi(Dati(record, caso.codiceFile));
        piattaforma->Svuota();
        QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
        QCOMPARE(piattaforma->Messaggi().size(), 1);
        const Messaggio m = piattaforma->Messaggi().first();
        QCOMPARE(m.sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(m.icona, Icona::Critica);
        QVERIFY2(m.sTesto.startsWith(caso.parole), qPrintable(m.sTesto));
        QCOMPARE(Righe(), prima);
        QCOMPARE(TriggerSospesi(tipo), 0);
        QVERIFY(!QFile::exists(cartella->File(QStringLiteral("EsempioSql.xml"))));
        QVERIFY(Import::TabelleImportate.isEmpty());
    }
    // Without the session: the same words, and the file they are about.
    Esegui(QStringLiteral("UPDATE Config SET Code = 'CD02'"));
    Scrivi(Dati(record, "CD02"));
    const Import::Esito esito = Import::ImportaTabella(*Sessione::cnn, QStringLiteral("Esempio"),
                                                       cartella->Percorso(), cartella->Percorso());
    QVERIFY(!esito.bImportata);
    QCOMPARE(esito.sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(esito.sPercorso, cartella->File(QStringLiteral("Esempio.xml")));
    QVERIFY(esito.sMessaggio.startsWith(casi[0].parole));
    QCOMPARE(Righe(), prima);
}

void TestImporta::unaTabellaSenzaCodeFallisceAllaCancellazioneEVieneAnnullata() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    Esegui(QStringLiteral("CREATE TABLE Altro (ID INTEGER)"));
    // A trigger of the table's own, switched off by the import and on again by the rollback.
    if (tipo == TipoBackend::PostgreSQL) {
        Esegui(QStringLiteral("CREATE FUNCTION altro_nulla() RETURNS trigger LANGUAGE plpgsql "
                              "AS $$ BEGIN RETURN NEW; END $$"));
        Esegui(QStringLiteral("CREATE TRIGGER altro_nulla BEFORE INSERT ON Altro FOR EACH ROW "
                              "EXECUTE FUNCTION altro_nulla()"));
    } else {
        Esegui(QStringLiteral("CREATE TRIGGER altro_nulla BEFORE INSERT ON Altro WHEN NOT EXISTS "
                              "(SELECT 1 FROM TriggerSospesi WHERE Tabella = 'Altro') BEGIN "
                              "SELECT 1; END"));
    }
    Esegui(QStringLiteral("INSERT INTO Altro (ID) VALUES (5), (6)"));
    QCOMPARE(TriggerAttivi(tipo, QStringLiteral("Altro")), 1);
    cartella->Scrivi(QStringLiteral("AltroSch.xml"),
                     "<s datafile=\"Altro.xml\" version=\"4\"><stru fieldcount=\"1\">"
                     "<field type=\"3\" pk=\"1\">ID</field></stru></s>");
    cartella->Scrivi(QStringLiteral("Altro.xml"),
                     "<table name=\"Altro\" version=\"4\" code=\"AB01\"><record><field id=\"1\" "
                     "null=\"0\">1</field></record></table>");
    QVERIFY(!Import::ImportaTabella(QStringLiteral("Altro")));
    QCOMPARE(piattaforma->Messaggi().size(), 1);
    QCOMPARE(piattaforma->Messaggi().first().icona, Icona::Critica);
    // The switch of the failed table itself was undone with its rows.
    QCOMPARE(TriggerSospesi(tipo, QStringLiteral("Altro")), 0);
    QCOMPARE(TriggerAttivi(tipo, QStringLiteral("Altro")), 1);
    QCOMPARE(TriggerSospesi(tipo), 0);
    QSqlQuery query(Sessione::cnn->Db());
    QVERIFY(query.exec(QStringLiteral("SELECT ID FROM Altro ORDER BY ID")));
    QStringList righe;
    while (query.next())
        righe.append(query.value(0).toString());
    QCOMPARE(righe, (QStringList{QStringLiteral("5"), QStringLiteral("6")}));
    QString ultimo;
    QVERIFY(BenFormato(cartella->File(QStringLiteral("AltroSql.xml")), &ultimo));
    QVERIFY(ultimo.isEmpty());
}

void TestImporta::unValoreSbagliatoNelRecordNLasciaLaTabellaComEraEIlLogFinisceColComandoFallito() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    if (tipo == TipoBackend::PostgreSQL) {
        // A trigger of the table's own, to see it switched off and back on.
        Esegui(QStringLiteral("CREATE FUNCTION esempio_nulla() RETURNS trigger LANGUAGE plpgsql "
                              "AS $$ BEGIN RETURN NEW; END $$"));
        Esegui(QStringLiteral("CREATE TRIGGER esempio_nulla BEFORE INSERT ON Esempio FOR EACH "
                              "ROW EXECUTE FUNCTION esempio_nulla()"));
    }
    const QStringList prima = Righe();
    Scrivi(Dati(Record(Campo(1, "7") + Campo(2, "Buona")) +
                Record(Campo(1, "8") + Campo(3, "non è un numero")) +
                Record(Campo(1, "9") + Campo(2, "Mai"))));
    cartella->Scrivi(QStringLiteral("SecondaSch.xml"),
                     "<s datafile=\"Seconda.xml\" version=\"4\"><stru fieldcount=\"1\">"
                     "<field type=\"3\" pk=\"1\">ID</field></stru></s>");
    Esegui(QStringLiteral("CREATE TABLE Seconda (ID INTEGER, Code VARCHAR(10))"));
    cartella->Scrivi(QStringLiteral("Seconda.xml"),
                     "<table name=\"Seconda\" version=\"4\" code=\"AB01\"><record><field id=\"1\" "
                     "null=\"0\">3</field></record></table>");

    QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Seconda")));
    QCOMPARE(Righe(), prima);
    QCOMPARE(TriggerSospesi(tipo), 0);
    QCOMPARE(Import::TabelleImportate, QStringList{QStringLiteral("Seconda")});
    QCOMPARE(piattaforma->Messaggi().size(), 1);
    QString ultimo;
    QVERIFY(BenFormato(cartella->File(QStringLiteral("EsempioSql.xml")), &ultimo));
    QVERIFY2(ultimo.contains(QStringLiteral("non è un numero")), qPrintable(ultimo));
    QSqlQuery query(Sessione::cnn->Db());
    QVERIFY(query.exec(QStringLiteral("SELECT ID, Code FROM Seconda")));
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toInt(), 3);
    QCOMPARE(query.value(1).toString(), QStringLiteral("AB01"));
}

void TestImporta::unRifiutoDelServerAMetaDiUnGruppoDiRecordFaFinireIlLogColComandoRifiutato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    const QStringList prima = Righe();
    // Record 1500 of 2000 takes the key of the other site's row, which the import keeps: the
    // server refuses it in the middle of the rows sent together.
    QByteArray record;
    for (int i = 1; i <= 2000; ++i) {
        const QByteArray id = i == 1500 ? QByteArray("100") : QByteArray::number(1000 + i);
        record += Record(Campo(1, id.constData()) + Campo(2, "Fascicolo"));
    }
    Scrivi(Dati(record));
    QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(Righe(), prima);
    QCOMPARE(TriggerSospesi(tipo), 0);
    QVERIFY(Import::TabelleImportate.isEmpty());
    QCOMPARE(piattaforma->Messaggi().size(), 1);
    QVERIFY(!piattaforma->Messaggi().constFirst().sTesto.isEmpty());

    QString ultimo;
    QVERIFY(BenFormato(cartella->File(QStringLiteral("EsempioSql.xml")), &ultimo));
    QVERIFY2(ultimo.contains(QStringLiteral("Values ('100', 'Fascicolo', 'AB01')")),
             qPrintable(ultimo));
    QFile log(cartella->File(QStringLiteral("EsempioSql.xml")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray testo = log.readAll();
    QCOMPARE(testo.count("<insert>"), 1500);
    QVERIFY(testo.endsWith("</record></table>"));
}

void TestImporta::unFileTroncatoDopoMoltiRecordGiaInviatiLasciaLaTabellaComEra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    const QStringList prima = Righe();
    // Far more rows than the server is sent at once, then the file stops short.
    QByteArray record;
    const QByteArray nome = "Fascicolo " + QByteArray(80, 'x');
    for (int i = 1; i <= 6000; ++i)
        record +=
            Record(Campo(1, QByteArray::number(1000 + i).constData()) + Campo(2, nome.constData()));
    Scrivi(Dati(record).chopped(30));
    QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(Righe(), prima);
    QCOMPARE(TriggerSospesi(tipo), 0);
    QCOMPARE(piattaforma->Messaggi().size(), 1);
    QVERIFY(BenFormato(cartella->File(QStringLiteral("EsempioSql.xml"))));
    // The connection is usable: the same table imports from a whole file.
    Scrivi(Dati(Record(Campo(1, "7") + Campo(2, "Intera"))));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(Righe(), (QStringList{QStringLiteral("7|Intera|NULL|42|AB01"),
                                   QStringLiteral("100|Nostra|NULL|3|CD02")}));
}

void TestImporta::unFileMalFormatoTroncatoOSenzaCodiceNonLasciaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    const QStringList prima = Righe();
    const QByteArray intero = Dati(Record(Campo(1, "7")) + Record(Campo(1, "8")));
    const QList<QByteArray> casi{intero.left(intero.size() - 30), intero + "<altro/>",
                                 Dati(Record(Campo(1, "7")), ""),
                                 Dati(Record("<field null=\"0\">1</field>"))};
    for (const QByteArray& caso : casi) {
        piattaforma->Svuota();
        Scrivi(caso);
        QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
        QCOMPARE(piattaforma->Messaggi().size(), 1);
        QCOMPARE(Righe(), prima);
        QCOMPARE(TriggerSospesi(tipo), 0);
    }
    cartella->Rimuovi(QStringLiteral("Esempio.xml"));
    piattaforma->Svuota();
    QVERIFY(!Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(piattaforma->Messaggi().size(), 1);
    QVERIFY(Import::TabelleImportate.isEmpty());
}

void TestImporta::leTabelleOfferteSonoQuelleDegliSchemiInMaiuscoloOMinuscolo() {
    CartellaProva schemi;
    schemi.Scrivi(QStringLiteral("SchedeSch.xml"), "<a/>");
    schemi.Scrivi(QStringLiteral("PROVINCIESCH.XML"), "<a/>");
    schemi.Scrivi(QStringLiteral("Altro.txt"), "x");
    QCOMPARE(Import::TabelleOfferte(schemi.Percorso()),
             (QStringList{QStringLiteral("PROVINCIE"), QStringLiteral("Schede")}));
}

void TestImporta::senzaTabelleSceltePerImportareIlMessaggioEVuotoEIlModuloSiChiude() {
    CartellaProva schemi;
    schemi.Scrivi(QStringLiteral("EsempioSch.xml"), SchemaEsempio);
    PiattaformaScriptata scriptata;
    Sessione::sParam09 = schemi.Percorso();
    frmImporta finestra;
    auto* lista = finestra.findChild<QTreeWidget*>(QStringLiteral("lvwDB"));
    QVERIFY(lista);
    QCOMPARE(lista->headerItem()->text(0), QStringLiteral("Nome tabella da importare"));
    QCOMPARE(lista->topLevelItemCount(), 1);
    QCOMPARE(lista->topLevelItem(0)->checkState(0), Qt::Checked);
    lista->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    finestra.show();
    finestra.findChild<QPushButton*>(QStringLiteral("cmdImporta"))->click();
    QCOMPARE(scriptata.Messaggi().size(), 1);
    QCOMPARE(scriptata.Messaggi().first().sTitolo, QStringLiteral("Tabelle importate"));
    QCOMPARE(scriptata.Messaggi().first().sTesto, QString());
    QCOMPARE(scriptata.Messaggi().first().icona, Icona::Informazione);
    QVERIFY(!finestra.isVisible());
}

void TestImporta::laFinestraImportaLeTabelleScelteEMostraIlProgresso() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    QByteArray record;
    for (int i = 1001; i <= 2200; ++i)
        record += Record(Campo(1, QByteArray::number(i).constData()) + Campo(2, "Riga"));
    Scrivi(Dati(record));
    frmImporta finestra;
    finestra.show();
    QStringList titoli;
    piattaforma->alMessaggio = [&](const Messaggio&) {
        titoli.append(finestra.windowTitle());
        titoli.append(finestra.findChild<QLabel*>(QStringLiteral("lblRecord"))->text());
    };
    finestra.findChild<QPushButton*>(QStringLiteral("cmdImporta"))->click();
    QCOMPARE(titoli, (QStringList{QStringLiteral("Importa: Esempio ..."), QStringLiteral("1200")}));
    QCOMPARE(piattaforma->Messaggi().first().sTesto, QStringLiteral("Esempio\r\n"));
    QCOMPARE(Righe().size(), 1201);
}

void TestImporta::laSceltaDellaCartellaPartedallaRadiceDiImportazione() {
    CartellaProva radice;
    QVERIFY(QDir(radice.Percorso()).mkdir(QStringLiteral("arrivi")));
    PiattaformaScriptata scriptata;
    Sessione::sParam05 = radice.Percorso();
    frmScImporta finestra;
    QCOMPARE(finestra.windowTitle(), QStringLiteral("Scelta cartella per importazione"));
    QCOMPARE(finestra.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
             QStringLiteral("Importa in:"));
    QCOMPARE(finestra.Percorso(), QDir::cleanPath(radice.Percorso()));
    finestra.ImpostaPercorso(QDir::tempPath() + QStringLiteral("/altrove"));
    QCOMPARE(finestra.Percorso(), QDir::cleanPath(radice.Percorso()));
    QVERIFY(finestra.findChild<QPushButton*>(QStringLiteral("cmdConferma"))->isEnabled());
    QCOMPARE(scriptata.Messaggi().size(), 0);
}

void TestImporta::unInterruttoreDeiTriggerRifiutatoVieneIgnoratoELImportProsegue_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::newRow("sqlite") << TipoBackend::SQLite;
}

void TestImporta::unInterruttoreDeiTriggerRifiutatoVieneIgnoratoELImportProsegue() {
    QVERIFY(Prepara());
    // Without its switch table the backend refuses to turn the triggers off or on.
    Esegui(QStringLiteral("DROP TABLE TriggerSospesi"));
    Scrivi(Dati(Record(Campo(1, "7") + Campo(2, "Roma"))));
    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(piattaforma->Messaggi().size(), 0);
    QCOMPARE(Righe().first(), QStringLiteral("7|Roma|NULL|42|AB01"));
}

void TestImporta::unLinkAlPostoDelLogVieneSostituitoENonSeguito_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<bool>("bBersaglioEsiste");
    for (const auto& [nome, backend] : {std::pair{"sqlite", TipoBackend::SQLite},
                                        std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        QTest::addRow("%s, verso un file", nome) << backend << true;
        QTest::addRow("%s, verso un file che non c'è", nome) << backend << false;
    }
}

void TestImporta::unLinkAlPostoDelLogVieneSostituitoENonSeguito() {
    QFETCH(TipoBackend, backend);
    QFETCH(bool, bBersaglioEsiste);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    // The link points out of the chosen folder.
    QTemporaryDir altrove;
    const QString bersaglio = altrove.filePath(QStringLiteral("bersaglio.txt"));
    if (bBersaglioEsiste) {
        QFile file(bersaglio);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("da non toccare");
    }
    const QString log = cartella->File(QStringLiteral("EsempioSql.xml"));
    QVERIFY(QFile::link(bersaglio, log));
    Scrivi(Dati(Record(Campo(1, "7") + Campo(2, "Roma"))));

    QVERIFY2(Import::ImportaTabella(QStringLiteral("Esempio")),
             qPrintable(piattaforma->Messaggi().value(0).sTesto));
    QCOMPARE(piattaforma->Messaggi().size(), 0);
    QCOMPARE(Righe().first(), QStringLiteral("7|Roma|NULL|42|AB01"));
    if (bBersaglioEsiste) {
        QFile file(bersaglio);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("da non toccare"));
    } else {
        QVERIFY(!QFileInfo::exists(bersaglio));
    }
    const QFileInfo info(log);
    QVERIFY(!info.isSymLink());
    QVERIFY(info.isFile());
    QString ultimo;
    QVERIFY(BenFormato(log, &ultimo));
    QVERIFY2(ultimo.contains(QStringLiteral("'Roma'")), qPrintable(ultimo));
}

void TestImporta::unaFallitaDiOgniGenereDaIlSuoBoxELaCorsaProsegue_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("genere");
    QTest::addColumn<bool>("bNellaTabella");
    for (const auto& [nome, backend] : {std::pair{"sqlite", TipoBackend::SQLite},
                                        std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        for (const char* genere : {"logic_error", "runtime_error", "senza nome"}) {
            QTest::addRow("%s, %s, nella tabella", nome, genere)
                << backend << QString::fromLatin1(genere) << true;
            QTest::addRow("%s, %s, nella finestra", nome, genere)
                << backend << QString::fromLatin1(genere) << false;
        }
    }
}

void TestImporta::unaFallitaDiOgniGenereDaIlSuoBoxELaCorsaProsegue() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, genere);
    QFETCH(bool, bNellaTabella);
    RICHIEDI_BACKEND(backend);
    QVERIFY(Prepara());
    const QStringList prima = Righe();
    Scrivi(Dati(Record(Campo(1, "7") + Campo(2, "Nuova"))));
    // A second table, after the first in the list, that imports.
    Esegui(QStringLiteral("CREATE TABLE Seconda (ID INTEGER, Code VARCHAR(10))"));
    cartella->Scrivi(QStringLiteral("SecondaSch.xml"),
                     "<s datafile=\"Seconda.xml\" version=\"4\"><stru fieldcount=\"1\">"
                     "<field type=\"3\" pk=\"1\">ID</field></stru></s>");
    cartella->Scrivi(QStringLiteral("Seconda.xml"),
                     "<table name=\"Seconda\" version=\"4\" code=\"AB01\"><record><field id=\"1\" "
                     "null=\"0\">3</field></record></table>");

    frmImporta finestra;
    finestra.show();
    // The failure comes while the rows of Esempio are in the table's transaction, or in the
    // window before the table starts.
    bool bLanciata = false;
    finestra.alProgresso = [&](const QString& sTabella, qint64 lRecord) {
        if (bLanciata || sTabella != QLatin1String("Esempio") || bNellaTabella != (lRecord > 0))
            return;
        bLanciata = true;
        Lancia(genere);
    };
    auto* cmdImporta = finestra.findChild<QPushButton*>(QStringLiteral("cmdImporta"));
    cmdImporta->click();
    QVERIFY(bLanciata);

    const QList<Messaggio> box = piattaforma->Messaggi();
    QCOMPARE(box.size(), 2);
    QCOMPARE(box.at(0).icona, Icona::Critica);
    QCOMPARE(box.at(0).pulsanti, Pulsanti::Ok);
    QCOMPARE(box.at(0).sTitolo, Sessione::TitoloProgramma);
    QCOMPARE(box.at(0).sTesto, TestoDi(genere));
    QCOMPARE(box.at(1).sTitolo, QStringLiteral("Tabelle importate"));
    QCOMPARE(box.at(1).sTesto, QStringLiteral("Seconda\r\n"));
    // The failed table is as it was, switch and rows; the next one came in.
    QCOMPARE(Righe(), prima);
    QCOMPARE(TriggerSospesi(tipo), 0);
    QSqlQuery query(Sessione::cnn->Db());
    QVERIFY(query.exec(QStringLiteral("SELECT ID FROM Seconda")));
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toInt(), 3);
    // The pointer is back and the window closed.
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QVERIFY(cmdImporta->isEnabled());
    QVERIFY(!finestra.isVisible());
}

QTEST_MAIN(TestImporta)
#include "tst_importa.moc"
