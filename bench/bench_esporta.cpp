// The export of one table of many rows, beside the engine's own dump of the same table in the
// same run (SQLite: sqlite3's .dump; PostgreSQL: pg_dump -t): both times, their ratio beside
// the aim, the file sizes and the peak memory.
//
//   build/bench/bench_esporta [rows] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "RiferimentoMotore.h"
#include "exchange/Export.h"
#include "store/Backend.h"
#include "store/Caricamento.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const qint64 righe = argc > 1 ? QByteArray(argv[1]).toLongLong() : 1000000;
    const bool bPg = argc > 2 && QByteArray(argv[2]) == "postgresql";
    QTemporaryDir cartella;
    const QString sNome =
        QStringLiteral("bench_esporta_%1").arg(QCoreApplication::applicationPid());
    const QString sStringa =
        bPg ? QStringLiteral("Provider=QPSQL;Port=%1;Data Source=%2;Initial Catalog=%3;User ID=%4;"
                             "Password=%5")
                  .arg(qEnvironmentVariable("TABELLION_PG_PORT", QStringLiteral("5432")),
                       qEnvironmentVariable("TABELLION_PG_HOST", QStringLiteral("127.0.0.1")),
                       sNome, qEnvironmentVariable("TABELLION_PG_USER"),
                       qEnvironmentVariable("TABELLION_PG_PASSWORD"))
            : QStringLiteral("Provider=QSQLITE;Data Source=%1;Initial Catalog=%2")
                  .arg(cartella.path(), sNome);
    const StringaConnessione stringa = StringaConnessione::Leggi(sStringa);
    Connessione::BackendDi(stringa).CreaDatabase(stringa);
    int esito = 0;
    {
        auto cnn = Connessione::Apri(sStringa);
        cnn->Esegui(QStringLiteral("CREATE TABLE Config (Code VARCHAR(10), Versione INTEGER)"));
        cnn->Esegui(QStringLiteral("INSERT INTO Config (Code, Versione) VALUES (?, ?)"),
                    {QStringLiteral("AB01"), 4});
        // The site's own rows, which the export sends, carry its code.
        cnn->Esegui(QStringLiteral("CREATE TABLE Prova (ID INTEGER, Nome VARCHAR(64), Misura "
                                   "DOUBLE PRECISION, Data TIMESTAMP, Note VARCHAR(255), Code "
                                   "VARCHAR(10))"));
        QElapsedTimer tempo;
        tempo.start();
        cnn->Db().transaction();
        {
            std::unique_ptr<Caricamento> carico = cnn->backend().ApriCaricamento(
                cnn->Db(), QStringLiteral("Prova"),
                {QStringLiteral("ID"), QStringLiteral("Nome"), QStringLiteral("Misura"),
                 QStringLiteral("Data"), QStringLiteral("Note"), QStringLiteral("Code")});
            for (qint64 i = 1; i <= righe; ++i) {
                const QVariantList riga = {QString::number(i),
                                           QStringLiteral("Fondo notarile di L'Aquila %1").arg(i),
                                           QString::number(static_cast<double>(i) * 0.25, 'g', 17),
                                           QStringLiteral("2001-03-02 12:00:00"),
                                           i % 3 ? QVariant(QStringLiteral("a < b & c\r\n\tfine"))
                                                 : QVariant(),
                                           QStringLiteral("AB01")};
                carico->Aggiungi(riga);
                if (carico->Pieno() && carico->Invia().iRiga >= 0)
                    return 1;
            }
            if (carico->Invia().iRiga >= 0)
                return 1;
        }
        cnn->Db().commit();
        std::printf("righe caricate: %lld in %.1f s\n", righe, tempo.elapsed() / 1000.0);
        const QString sSchemi = cartella.filePath(QStringLiteral("Schemi"));
        QDir().mkpath(sSchemi);
        QFile schema(sSchemi + QStringLiteral("/ProvaSch.xml"));
        if (schema.open(QIODevice::WriteOnly))
            schema.write("<schema datafile=\"Prova.xml\" version=\"4\"><stru fieldcount=\"5\">"
                         "<field type=\"3\" pk=\"1\">ID</field><field type=\"202\">Nome</field>"
                         "<field type=\"5\">Misura</field><field type=\"135\">Data</field>"
                         "<field type=\"202\">Note</field></stru></schema>");
        schema.close();
        const long memoriaPrima = RiferimentoMotore::PiccoMemoriaKiB();
        tempo.restart();
        const Export::Esito risultato =
            Export::EsportaTabella(*cnn, QStringLiteral("Prova"), sSchemi, cartella.path());
        const double secondi = static_cast<double>(tempo.nsecsElapsed()) / 1e9;
        if (!risultato.bEsportata) {
            std::printf("esportazione fallita: %s\n", qPrintable(risultato.sMessaggio));
            esito = 1;
        } else {
            // The engine's own dump of the same table, to a file.
            const QString sDump = cartella.filePath(QStringLiteral("dump.sql"));
            QString sErrore;
            const double dDump =
                bPg ? RiferimentoMotore::Cronometra(
                          QStringLiteral("pg_dump"),
                          {QStringLiteral("-h"), qEnvironmentVariable("TABELLION_PG_HOST"),
                           QStringLiteral("-p"), qEnvironmentVariable("TABELLION_PG_PORT"),
                           QStringLiteral("-U"), qEnvironmentVariable("TABELLION_PG_USER"),
                           QStringLiteral("-t"), QStringLiteral("prova"), sNome},
                          QString(), sDump, sErrore)
                    : RiferimentoMotore::Cronometra(
                          QStringLiteral("sqlite3"),
                          {cartella.filePath(sNome + QStringLiteral(".db")),
                           QStringLiteral(".dump Prova")},
                          QString(), sDump, sErrore);
            std::printf("%s export: %lld righe, %.2f s (%.0f righe/s), file %.1f MiB, memoria di "
                        "picco %ld KiB prima, %ld KiB dopo\n",
                        bPg ? "PostgreSQL" : "SQLite", risultato.lRecord, secondi,
                        static_cast<double>(risultato.lRecord) / (secondi > 0 ? secondi : 1),
                        static_cast<double>(QFileInfo(risultato.sFile).size()) / 1048576.0,
                        memoriaPrima, RiferimentoMotore::PiccoMemoriaKiB());
            if (dDump < 0) {
                std::printf("dump del motore fallito: %s\n", qPrintable(sErrore));
                esito = 1;
            } else {
                std::printf("  %s: %.2f s, file %.1f MiB\n  rapporto: %.2f (obiettivo <= 2)\n",
                            bPg ? "pg_dump -t" : "sqlite3 .dump", dDump,
                            static_cast<double>(QFileInfo(sDump).size()) / 1048576.0,
                            secondi / dDump);
            }
        }
        cnn->Chiudi();
    }
    Connessione::BackendDi(stringa).EliminaDatabase(stringa);
    return esito;
}
