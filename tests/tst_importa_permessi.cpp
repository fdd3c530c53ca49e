// The import under a login that may write the tables but does not own them (PostgreSQL): the
// server refuses to switch the table's triggers off and to realign its keys, the import goes on
// without them and the table comes in.

#include "exchange/Import.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "PiattaformaScriptata.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>
#include <memory>

namespace {

const QByteArray SchemaEsempio =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><schema datafile=\"Esempio.xml\" version=\"4\">"
    "<stru fieldcount=\"3\"><field type=\"3\" pk=\"1\">ID</field>"
    "<field type=\"202\" pk=\"0\">Nome</field><field type=\"3\" pk=\"0\">Numero</field>"
    "</stru></schema>";

QByteArray Record(const char* id, const char* nome, const char* numero) {
    return QByteArray("\r\n\t<record>\r\n\t\t<field id=\"1\" null=\"0\">") + id +
           "</field>\r\n\t\t<field id=\"2\" null=\"0\">" + nome +
           "</field>\r\n\t\t<field id=\"3\" null=\"0\">" + numero + "</field>\r\n\t</record>";
}

QByteArray Dati(const QByteArray& record) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"Esempio\" version=\"4\" "
           "code=\"AB01\">" +
           record + "\r\n</table>";
}

// A statement of the schema, run as it stands (the server does not prepare these).
bool Esegui(const Connessione& connessione, const QString& sql) {
    QSqlQuery query(connessione.Db());
    if (query.exec(sql))
        return true;
    qWarning("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
    return false;
}

QStringList Righe(const Connessione& connessione) {
    QSqlQuery query(connessione.Db());
    if (!query.exec(QStringLiteral("SELECT ID, Nome, Numero, Code FROM Esempio ORDER BY ID")))
        return {QStringLiteral("errore")};
    QStringList righe;
    while (query.next()) {
        QStringList riga;
        for (int i = 0; i < 4; ++i)
            riga.append(query.value(i).toString());
        righe.append(riga.join(QLatin1Char('|')));
    }
    return righe;
}

// A login of the server for one test: it may read and write every table and sequence of the
// database but owns none of them. Dropped at the end, with its rights, whatever happened.
class RuoloOspite {
public:
    RuoloOspite(const Connessione& padrone, const QString& sDatabase)
        : proprietario(padrone)
        , sNome(QStringLiteral("tabellion_ospite_%1").arg(QCoreApplication::applicationPid())) {
        bCreato =
            Esegui(proprietario,
                   QStringLiteral("CREATE ROLE %1 LOGIN PASSWORD '%2'").arg(sNome, Password()));
        bCreato =
            bCreato &&
            Esegui(proprietario,
                   QStringLiteral("GRANT CONNECT ON DATABASE %1 TO %2").arg(sDatabase, sNome)) &&
            Esegui(proprietario, QStringLiteral("GRANT USAGE ON SCHEMA public TO ") + sNome) &&
            Esegui(proprietario,
                   QStringLiteral("GRANT ALL ON ALL TABLES IN SCHEMA public TO ") + sNome) &&
            Esegui(proprietario,
                   QStringLiteral("GRANT ALL ON ALL SEQUENCES IN SCHEMA public TO ") + sNome);
    }
    ~RuoloOspite() {
        // Its sessions end first: a role still connected can't go, nor can its database.
        Sessione::cnn.reset();
        Esegui(proprietario, QStringLiteral("DROP OWNED BY ") + sNome);
        Esegui(proprietario, QStringLiteral("DROP ROLE ") + sNome);
    }
    RuoloOspite(const RuoloOspite&) = delete;
    RuoloOspite& operator=(const RuoloOspite&) = delete;

    bool Creato() const { return bCreato; }
    const QString& Nome() const { return sNome; }
    static QString Password() { return QStringLiteral("ospite"); }

private:
    const Connessione& proprietario;
    QString sNome;
    bool bCreato = false;
};

} // namespace

class TestImportaPermessi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        Sessione::cnn.reset();
        Import::TabelleImportate.clear();
    }
    void unaTabellaSiImportaAncheSeIlServerRifiutaDiSospendereITrigger();
};

void TestImportaPermessi::unaTabellaSiImportaAncheSeIlServerRifiutaDiSospendereITrigger() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    BancaDatiProva banca(TipoBackend::PostgreSQL);
    CartellaProva cartella;
    const auto proprietario = banca.Apri();
    QVERIFY(Esegui(*proprietario,
                   QStringLiteral("CREATE TABLE Esempio (ID INTEGER NOT NULL PRIMARY KEY, Nome "
                                  "VARCHAR(100), Numero INTEGER, Code VARCHAR(10))")));
    QVERIFY(Esegui(*proprietario,
                   QStringLiteral("INSERT INTO Esempio (ID, Nome, Numero, Code) VALUES "
                                  "(1, 'Vecchia', 1, 'AB01'), (100, 'Nostra', 3, 'CD02')")));
    // A trigger of the table that marks every row it sees come in.
    QVERIFY(Esegui(*proprietario,
                   QStringLiteral("CREATE FUNCTION esempio_segna() RETURNS trigger LANGUAGE "
                                  "plpgsql AS $$ BEGIN NEW.Numero := -1; RETURN NEW; END $$")));
    QVERIFY(Esegui(*proprietario, QStringLiteral("CREATE TRIGGER esempio_segna BEFORE INSERT ON "
                                                 "Esempio FOR EACH ROW EXECUTE FUNCTION "
                                                 "esempio_segna()")));

    RuoloOspite ospite(*proprietario, banca.Database());
    QVERIFY(ospite.Creato());
    Sessione::cnn = Connessione::Apri(ComponiStringaConnessione(
        banca.Testa(), banca.Server(), banca.Database(), ospite.Nome(), RuoloOspite::Password()));
    // The login writes the table but the server does not let it switch the triggers.
    {
        QSqlQuery query(Sessione::cnn->Db());
        QVERIFY(query.exec(QStringLiteral("SELECT COUNT(*) FROM Esempio")));
        QVERIFY(!query.exec(QStringLiteral("ALTER TABLE esempio DISABLE TRIGGER USER")));
    }

    PiattaformaScriptata piattaforma;
    cartella.Scrivi(QStringLiteral("EsempioSch.xml"), SchemaEsempio);
    cartella.Scrivi(QStringLiteral("Esempio.xml"),
                    Dati(Record("7", "Roma", "12") + Record("8", "L'Aquila", "9")));
    Sessione::sParam09 = cartella.Percorso();
    Sessione::sCartellaImport = cartella.Percorso();
    Import::TabelleImportate.clear();

    QVERIFY(Import::ImportaTabella(QStringLiteral("Esempio")));
    QCOMPARE(piattaforma.Messaggi().size(), 0);
    QCOMPARE(Import::TabelleImportate, QStringList{QStringLiteral("Esempio")});
    // The site's rows replaced by those of the file, the other site's row kept; the trigger
    // stayed on and marked the rows that came in.
    QCOMPARE(Righe(*Sessione::cnn),
             (QStringList{QStringLiteral("7|Roma|-1|AB01"), QStringLiteral("8|L'Aquila|-1|AB01"),
                          QStringLiteral("100|Nostra|3|CD02")}));
    // Committed: the owner sees them too, and the trigger is on as it was.
    Sessione::cnn.reset();
    QCOMPARE(Righe(*proprietario).size(), 3);
    QSqlQuery trigger(proprietario->Db());
    QVERIFY(trigger.exec(QStringLiteral("SELECT tgenabled FROM pg_trigger WHERE tgname = "
                                        "'esempio_segna'")));
    QVERIFY(trigger.next());
    QCOMPARE(trigger.value(0).toString(), QStringLiteral("O"));
}

QTEST_MAIN(TestImportaPermessi)
#include "tst_importa_permessi.moc"
