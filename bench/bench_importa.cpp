// The import of one table at scale, beside the engine's own bulk path on the same rows in the
// same run: writes a data file of N rows, imports it through module Import (log, delete by
// site, every record, one transaction), then loads the same rows into a twin table with the
// engine's tool (SQLite: sqlite3 running the inserts in one transaction; PostgreSQL: psql's
// \copy). Prints both times, their ratio beside the aim, and the peak memory.
//
//   bench_importa [rows] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "LetturaFile.h"
#include "RiferimentoMotore.h"
#include "exchange/Import.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

void Esegui(const Connessione& cnn, const QString& sql) {
    QSqlQuery query(cnn.Db());
    if (!query.exec(sql))
        throw Errore(QStringLiteral("bench"), sql);
}

void Apri(QFile& file) {
    if (!file.open(QIODevice::WriteOnly))
        throw Errore(QStringLiteral("bench"), file.fileName());
}

qint64 Conta(const Connessione& cnn, const QString& sTabella) {
    QSqlQuery query(cnn.Db());
    if (!query.exec(QStringLiteral("SELECT COUNT(*) FROM ") + sTabella) || !query.next())
        throw Errore(QStringLiteral("bench"), sTabella);
    return query.value(0).toLongLong();
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream uscita(stdout);
    const QStringList argomenti = app.arguments();
    const qint64 quanti = argomenti.size() > 1 ? argomenti[1].toLongLong() : 1'000'000;
    const bool postgresql = argomenti.size() > 2 && argomenti[2] == QStringLiteral("postgresql");
    QTemporaryDir cartella;
    const QString sDatabase = QStringLiteral("bench_importa");
    QString stringa;
    if (postgresql) {
        stringa = ComponiStringaConnessione(
            QStringLiteral("Provider=QPSQL;Port=%1").arg(qEnvironmentVariable("TABELLION_PG_PORT")),
            qEnvironmentVariable("TABELLION_PG_HOST"), sDatabase,
            qEnvironmentVariable("TABELLION_PG_USER"),
            qEnvironmentVariable("TABELLION_PG_PASSWORD"));
    } else {
        stringa = ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), cartella.path(),
                                            sDatabase, QString(), QString());
    }
    try {
        const StringaConnessione letta = StringaConnessione::Leggi(stringa);
        const Backend& backend = Connessione::BackendDi(letta);
        backend.EliminaDatabase(letta);
        backend.CreaDatabase(letta);
        Sessione::cnn = Connessione::Apri(stringa);
        const QString schema = QStringLiteral(TABELLION_SORGENTI) +
                               (postgresql ? QStringLiteral("/db/postgresql/schema.sql")
                                           : QStringLiteral("/db/sqlite/schema.sql"));
        EseguiScript(*Sessione::cnn, LeggiFile(schema), schema);
        // The receiving site has a code of its own, other than the file's.
        Esegui(*Sessione::cnn, QStringLiteral("UPDATE Config SET Code = 'CD02'"));
        const QString tipi = postgresql ? QStringLiteral("DOUBLE PRECISION, Data TIMESTAMP")
                                        : QStringLiteral("REAL, Data VARCHAR(20)");
        for (const QString& sTabella : {QStringLiteral("Prova"), QStringLiteral("Riferimento")})
            Esegui(*Sessione::cnn, QStringLiteral("CREATE TABLE %1 (ID INTEGER NOT NULL PRIMARY "
                                                  "KEY, Nome VARCHAR(100), Valore %2, Code "
                                                  "VARCHAR(10))")
                                       .arg(sTabella, tipi));

        // The same rows three ways: the data file, and the engine's input.
        Sessione::sParam09 = cartella.path();
        Sessione::sCartellaImport = cartella.path();
        const QString sRiferimento = cartella.filePath(QStringLiteral("riferimento.txt"));
        {
            QFile schemaFile(cartella.filePath(QStringLiteral("ProvaSch.xml")));
            Apri(schemaFile);
            schemaFile.write("<s datafile=\"Prova.xml\" version=\"4\"><stru fieldcount=\"4\">"
                             "<field type=\"3\" pk=\"1\">ID</field><field type=\"202\">Nome"
                             "</field><field type=\"5\">Valore</field><field type=\"135\">Data"
                             "</field></stru></s>");
            QFile dati(cartella.filePath(QStringLiteral("Prova.xml")));
            Apri(dati);
            QFile motore(sRiferimento);
            Apri(motore);
            dati.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"Prova\" "
                       "version=\"4\" code=\"AB01\">");
            if (!postgresql)
                motore.write("BEGIN;\n");
            for (qint64 i = 1; i <= quanti; ++i) {
                const QByteArray n = QByteArray::number(i);
                dati.write("\r\n\t<record>\r\n\t\t<field id=\"1\" null=\"0\">" + n +
                           "</field>\r\n\t\t<field id=\"2\" null=\"0\">Fascicolo n. " + n +
                           " dell'archivio</field>\r\n\t\t<field id=\"3\" null=\"0\">" + n +
                           ",25</field>\r\n\t\t<field id=\"4\" null=\"0\">2001-03-02 "
                           "12:00:00</field>\r\n\t</record>");
                if (postgresql)
                    motore.write(n + "\tFascicolo n. " + n + " dell'archivio\t" + n +
                                 ".25\t2001-03-02 12:00:00\tAB01\n");
                else
                    motore.write("INSERT INTO Riferimento (ID, Nome, Valore, Data, Code) VALUES "
                                 "(" +
                                 n + ", 'Fascicolo n. " + n + " dell''archivio', " + n +
                                 ".25, '2001-03-02 12:00:00', 'AB01');\n");
            }
            dati.write("\r\n</table>");
            if (!postgresql)
                motore.write("COMMIT;\n");
        }
        const double dMiB =
            static_cast<double>(QFileInfo(cartella.filePath(QStringLiteral("Prova.xml"))).size()) /
            1048576.0;

        const long lMemoriaPrima = RiferimentoMotore::PiccoMemoriaKiB();
        QElapsedTimer orologio;
        orologio.start();
        if (!Import::ImportaTabella(QStringLiteral("Prova")))
            throw Errore(QStringLiteral("bench"), QStringLiteral("import fallito"));
        const double dImport = static_cast<double>(orologio.nsecsElapsed()) / 1e9;
        const long lMemoriaDopo = RiferimentoMotore::PiccoMemoriaKiB();
        if (Conta(*Sessione::cnn, QStringLiteral("Prova")) != quanti)
            throw Errore(QStringLiteral("bench"), QStringLiteral("righe importate mancanti"));

        QString sErrore;
        double dMotore = -1;
        QString sStrumento;
        if (postgresql) {
            sStrumento = QStringLiteral("psql \\copy");
            dMotore = RiferimentoMotore::Cronometra(
                QStringLiteral("psql"),
                RiferimentoMotore::OpzioniPostgreSQL(sDatabase)
                    << QStringLiteral("-c")
                    << QStringLiteral("\\copy riferimento (id, nome, valore, data, code) FROM "
                                      "'%1'")
                           .arg(sRiferimento),
                QString(), QString(), sErrore);
        } else {
            sStrumento = QStringLiteral("sqlite3");
            dMotore = RiferimentoMotore::Cronometra(
                QStringLiteral("sqlite3"), {cartella.filePath(sDatabase + QStringLiteral(".db"))},
                sRiferimento, QString(), sErrore);
        }
        if (dMotore < 0)
            throw Errore(QStringLiteral("bench"), sErrore);
        if (Conta(*Sessione::cnn, QStringLiteral("Riferimento")) != quanti)
            throw Errore(QStringLiteral("bench"), QStringLiteral("righe di riferimento mancanti"));

        const double dObiettivo = postgresql ? 4.0 : 2.0;
        uscita << (postgresql ? "PostgreSQL" : "SQLite") << " import: " << quanti << " righe ("
               << QString::number(dMiB, 'f', 1) << " MiB di dati)\n"
               << "  import:     " << QString::number(dImport, 'f', 2) << " s, "
               << QString::number(static_cast<double>(quanti) / dImport, 'f', 0)
               << " record/s, memoria di picco " << lMemoriaPrima << " KiB prima, " << lMemoriaDopo
               << " KiB dopo\n"
               << "  " << sStrumento.leftJustified(10) << ' ' << QString::number(dMotore, 'f', 2)
               << " s, " << QString::number(static_cast<double>(quanti) / dMotore, 'f', 0)
               << " righe/s\n"
               << "  rapporto:   " << QString::number(dImport / dMotore, 'f', 2)
               << " (obiettivo <= " << dObiettivo << ")" << Qt::endl;
        Sessione::cnn->Chiudi();
        Sessione::cnn.reset();
        backend.EliminaDatabase(letta);
    } catch (const Errore& errore) {
        uscita << errore.testo() << Qt::endl;
        return 1;
    }
    return 0;
}
