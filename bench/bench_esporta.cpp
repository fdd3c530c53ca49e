// Export of one table of many rows: time and peak memory (VmHWM), SQLite or PostgreSQL.
//   build/bench/bench_esporta [rows] [sqlite|postgresql]

#include "exchange/Export.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdio>

namespace {

long PiccoMemoriaKiB() {
    QFile stato(QStringLiteral("/proc/self/status"));
    if (!stato.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& riga : stato.readAll().split('\n'))
        if (riga.startsWith("VmHWM:"))
            return riga.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const qint64 righe = argc > 1 ? QByteArray(argv[1]).toLongLong() : 1000000;
    const bool bPg = argc > 2 && QByteArray(argv[2]) == "postgresql";
    QTemporaryDir cartella;
    const QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    const QString sNome =
        QStringLiteral("bench_esporta_%1").arg(QCoreApplication::applicationPid());
    const QString sStringa =
        bPg ? QStringLiteral("Provider=QPSQL;Port=%1;Data Source=%2;Initial Catalog=%3;User ID=%4;"
                             "Password=%5")
                  .arg(env.value(QStringLiteral("TABELLION_PG_PORT"), QStringLiteral("5432")),
                       env.value(QStringLiteral("TABELLION_PG_HOST"), QStringLiteral("127.0.0.1")),
                       sNome, env.value(QStringLiteral("TABELLION_PG_USER")),
                       env.value(QStringLiteral("TABELLION_PG_PASSWORD")))
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
        cnn->Esegui(QStringLiteral("CREATE TABLE Prova (ID INTEGER, Nome VARCHAR(64), Misura "
                                   "DOUBLE PRECISION, Data TIMESTAMP, Note VARCHAR(255))"));
        QElapsedTimer tempo;
        tempo.start();
        cnn->Db().transaction();
        QSqlQuery inserisci(cnn->Db());
        inserisci.prepare(QStringLiteral(
            "INSERT INTO Prova (ID, Nome, Misura, Data, Note) VALUES (?, ?, ?, ?, ?)"));
        const QDateTime data(QDate(2001, 3, 2), QTime(12, 0, 0));
        for (qint64 i = 1; i <= righe; ++i) {
            inserisci.addBindValue(i);
            inserisci.addBindValue(QStringLiteral("Fondo notarile di L'Aquila %1").arg(i));
            inserisci.addBindValue(i * 0.25);
            inserisci.addBindValue(data);
            inserisci.addBindValue(i % 3 ? QVariant(QStringLiteral("a < b & c\r\n\tfine"))
                                         : QVariant(QMetaType::fromType<QString>()));
            inserisci.exec();
        }
        cnn->Db().commit();
        std::printf("rows loaded: %lld in %.1f s\n", righe, tempo.elapsed() / 1000.0);
        const QString sSchemi = cartella.filePath(QStringLiteral("Schemi"));
        QDir().mkpath(sSchemi);
        QFile schema(sSchemi + QStringLiteral("/ProvaSch.xml"));
        if (schema.open(QIODevice::WriteOnly))
            schema.write("<schema datafile=\"Prova.xml\" version=\"4\"><stru fieldcount=\"5\">"
                         "<field type=\"3\" pk=\"1\">ID</field><field type=\"202\">Nome</field>"
                         "<field type=\"5\">Misura</field><field type=\"135\">Data</field>"
                         "<field type=\"202\">Note</field></stru></schema>");
        schema.close();
        const long memoriaPrima = PiccoMemoriaKiB();
        tempo.restart();
        const Export::Esito risultato =
            Export::EsportaTabella(*cnn, QStringLiteral("Prova"), sSchemi, cartella.path());
        const double secondi = tempo.elapsed() / 1000.0;
        if (!risultato.bEsportata) {
            std::printf("export failed: %s\n", qPrintable(risultato.sMessaggio));
            esito = 1;
        } else {
            std::printf("%s export: %lld rows, %.1f s (%.0f rows/s), file %.1f MiB, peak memory "
                        "%ld KiB before, %ld KiB after\n",
                        bPg ? "postgresql" : "sqlite", risultato.lRecord, secondi,
                        risultato.lRecord / (secondi > 0 ? secondi : 1),
                        QFileInfo(risultato.sFile).size() / 1048576.0, memoriaPrima,
                        PiccoMemoriaKiB());
        }
        cnn->Chiudi();
    }
    Connessione::BackendDi(stringa).EliminaDatabase(stringa);
    return esito;
}
