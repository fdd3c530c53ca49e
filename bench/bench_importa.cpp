// The import of one table at scale: writes a data file of N rows, imports it through module
// Import (log, delete by site, one insert per record, all in one transaction) and gives the
// records per second, beside a plain prepared insert of the same rows in one transaction on
// the same connection.
//
//   bench_importa [rows] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "exchange/Import.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
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

QString LeggiFile(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        throw Errore(QStringLiteral("bench"),
                     QStringLiteral("Impossibile leggere %1").arg(percorso));
    return QString::fromUtf8(file.readAll());
}

void Esegui(const Connessione& cnn, const QString& sql) {
    QSqlQuery query(cnn.Db());
    if (!query.exec(sql))
        throw Errore(QStringLiteral("bench"), sql);
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream uscita(stdout);
    const QStringList argomenti = app.arguments();
    const qint64 quanti = argomenti.size() > 1 ? argomenti[1].toLongLong() : 1'000'000;
    const bool postgresql = argomenti.size() > 2 && argomenti[2] == QStringLiteral("postgresql");
    QTemporaryDir cartella;
    QString stringa;
    if (postgresql) {
        stringa = ComponiStringaConnessione(
            QStringLiteral("Provider=QPSQL;Port=%1").arg(qEnvironmentVariable("TABELLION_PG_PORT")),
            qEnvironmentVariable("TABELLION_PG_HOST"), QStringLiteral("bench_importa"),
            qEnvironmentVariable("TABELLION_PG_USER"),
            qEnvironmentVariable("TABELLION_PG_PASSWORD"));
    } else {
        stringa = ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), cartella.path(),
                                            QStringLiteral("bench_importa"), QString(), QString());
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
        const QString tipi = postgresql ? QStringLiteral("DOUBLE PRECISION, Data TIMESTAMP")
                                        : QStringLiteral("REAL, Data VARCHAR(20)");
        Esegui(*Sessione::cnn, QStringLiteral("CREATE TABLE Prova (ID INTEGER NOT NULL PRIMARY "
                                              "KEY, Nome VARCHAR(100), Valore %1, Code "
                                              "VARCHAR(10))")
                                   .arg(tipi));
        Esegui(*Sessione::cnn, QStringLiteral("CREATE TABLE Riferimento (ID INTEGER NOT NULL "
                                              "PRIMARY KEY, Nome VARCHAR(100), Valore %1, Code "
                                              "VARCHAR(10))")
                                   .arg(tipi));

        // The files.
        Sessione::sParam09 = cartella.path();
        Sessione::sCartellaImport = cartella.path();
        {
            QFile schemaFile(cartella.filePath(QStringLiteral("ProvaSch.xml")));
            if (!schemaFile.open(QIODevice::WriteOnly))
                throw Errore(QStringLiteral("bench"), schemaFile.fileName());
            schemaFile.write("<s datafile=\"Prova.xml\" version=\"4\"><stru fieldcount=\"4\">"
                             "<field type=\"3\" pk=\"1\">ID</field><field type=\"202\">Nome"
                             "</field><field type=\"5\">Valore</field><field type=\"135\">Data"
                             "</field></stru></s>");
            QFile dati(cartella.filePath(QStringLiteral("Prova.xml")));
            if (!dati.open(QIODevice::WriteOnly))
                throw Errore(QStringLiteral("bench"), dati.fileName());
            dati.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"Prova\" "
                       "version=\"4\" code=\"AB01\">");
            for (qint64 i = 1; i <= quanti; ++i) {
                const QByteArray n = QByteArray::number(i);
                dati.write("\r\n\t<record>\r\n\t\t<field id=\"1\" null=\"0\">" + n +
                           "</field>\r\n\t\t<field id=\"2\" null=\"0\">Fascicolo n. " + n +
                           " dell'archivio</field>\r\n\t\t<field id=\"3\" null=\"0\">" + n +
                           ",25</field>\r\n\t\t<field id=\"4\" null=\"0\">2001-03-02 "
                           "12:00:00</field>\r\n\t</record>");
            }
            dati.write("\r\n</table>");
        }
        const double dMiB =
            static_cast<double>(QFileInfo(cartella.filePath(QStringLiteral("Prova.xml"))).size()) /
            1048576.0;

        QElapsedTimer orologio;
        orologio.start();
        if (!Import::ImportaTabella(QStringLiteral("Prova")))
            throw Errore(QStringLiteral("bench"), QStringLiteral("import fallito"));
        const double dImport = static_cast<double>(orologio.elapsed()) / 1000.0;

        // The same rows through one prepared insert in one transaction.
        QSqlDatabase db = Sessione::cnn->Db();
        orologio.restart();
        db.transaction();
        {
            QSqlQuery query(db);
            query.prepare(QStringLiteral("INSERT INTO Riferimento (ID, Nome, Valore, Data, Code) "
                                         "VALUES (?, ?, ?, ?, ?)"));
            for (qint64 i = 1; i <= quanti; ++i) {
                query.bindValue(0, QString::number(i));
                query.bindValue(1, QStringLiteral("Fascicolo n. %1 dell'archivio").arg(i));
                query.bindValue(2, QStringLiteral("%1.25").arg(i));
                query.bindValue(3, QStringLiteral("2001-03-02 12:00:00"));
                query.bindValue(4, QStringLiteral("AB01"));
                if (!query.exec())
                    throw Errore(QStringLiteral("bench"), QStringLiteral("insert di riferimento"));
            }
        }
        db.commit();
        const double dRiferimento = static_cast<double>(orologio.elapsed()) / 1000.0;

        uscita << (postgresql ? "PostgreSQL" : "SQLite") << ": " << quanti << " righe ("
               << QString::number(dMiB, 'f', 1) << " MiB di dati)\n"
               << "  import:              " << QString::number(dImport, 'f', 2) << " s, "
               << QString::number(static_cast<double>(quanti) / dImport, 'f', 0) << " record/s\n"
               << "  insert preparato:    " << QString::number(dRiferimento, 'f', 2) << " s, "
               << QString::number(static_cast<double>(quanti) / dRiferimento, 'f', 0)
               << " record/s\n"
               << "  rapporto:            " << QString::number(dImport / dRiferimento, 'f', 2)
               << Qt::endl;
        Sessione::cnn->Chiudi();
        Sessione::cnn.reset();
        backend.EliminaDatabase(letta);
    } catch (const Errore& errore) {
        uscita << errore.testo() << Qt::endl;
        return 1;
    }
    return 0;
}
