#include "BackendPostgreSQL.h"

#include "ProcedureComuni.h"
#include "StringaConnessione.h"
#include "session/Errore.h"
#include "session/Sessione.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QVariant>
#include <algorithm>
#include <memory>

namespace {

const QString Sorgente = QStringLiteral("PostgreSQL");

void Esegui(QSqlQuery& query, const QString& sSql) {
    if (!query.exec(sSql)) {
        throw Errore(Sorgente, query.lastError().text());
    }
}

} // namespace

QString ProgrammaPostgreSQL(const QString& sNome) {
    const QString sulPercorso = QStandardPaths::findExecutable(sNome);
    if (!sulPercorso.isEmpty()) {
        return sulPercorso;
    }
    QStringList versioni =
        QDir(QStringLiteral("/usr/lib/postgresql")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCollator ordine;
    ordine.setNumericMode(true);
    std::sort(versioni.begin(), versioni.end(),
              [&ordine](const QString& a, const QString& b) { return ordine.compare(a, b) > 0; });
    for (const QString& versione : versioni) {
        const QString programma =
            QStringLiteral("/usr/lib/postgresql/%1/bin/%2").arg(versione, sNome);
        if (QFileInfo(programma).isExecutable()) {
            return programma;
        }
    }
    return QString();
}

void BackendPostgreSQL::Backup(const QSqlDatabase& db, const StringaConnessione& stringa,
                               const QString& sDestinazione) const {
    const QString destinazione = DestinazioneCopia(sDestinazione, Sorgente);
    const QString programma = ProgrammaPostgreSQL(QStringLiteral("pg_dump"));
    if (programma.isEmpty()) {
        throw Errore(Sorgente, QStringLiteral("Il programma pg_dump non è installato (pacchetto "
                                              "postgresql-client)."));
    }
    const std::unique_ptr<QTemporaryFile> provvisorio = FileProvvisorio(destinazione, Sorgente);

    // The same server, database and login as the connection; the password goes by the
    // environment, never on the command line.
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("PGPASSWORD"), db.password());
    const int attesa = stringa.Valore(QStringLiteral("Connect Timeout")).toInt();
    ambiente.insert(QStringLiteral("PGCONNECT_TIMEOUT"), QString::number(attesa > 0 ? attesa : 15));
    QProcess dump;
    dump.setProcessEnvironment(ambiente);
    dump.setProgram(programma);
    dump.setArguments({QStringLiteral("-h"), db.hostName(), QStringLiteral("-p"),
                       QString::number(db.port()), QStringLiteral("-U"), db.userName(),
                       QStringLiteral("-d"), db.databaseName(), QStringLiteral("-w"),
                       QStringLiteral("-Fc"), QStringLiteral("-f"), provvisorio->fileName()});
    dump.start();
    if (!dump.waitForStarted(-1)) {
        throw Errore(
            Sorgente,
            QStringLiteral("Impossibile avviare %1: %2").arg(programma, dump.errorString()));
    }
    // No limit: a large database takes its time.
    dump.waitForFinished(-1);
    if (dump.exitStatus() != QProcess::NormalExit || dump.exitCode() != 0) {
        QString causa = QString::fromLocal8Bit(dump.readAllStandardError()).trimmed();
        if (causa.isEmpty()) {
            causa =
                dump.exitStatus() == QProcess::NormalExit
                    ? QStringLiteral("pg_dump è terminato con il codice %1.").arg(dump.exitCode())
                    : QStringLiteral("pg_dump si è interrotto: %1").arg(dump.errorString());
        }
        throw Errore(QStringLiteral("pg_dump"), causa);
    }
    // The rename does not overwrite a file that came meanwhile.
    if (!QFile::rename(provvisorio->fileName(), destinazione)) {
        throw Errore(Sorgente, QStringLiteral("Impossibile dare alla copia il nome %1.")
                                   .arg(QDir::toNativeSeparators(destinazione)));
    }
    provvisorio->setAutoRemove(false);
}

void BackendPostgreSQL::IndiceWeb(const QSqlDatabase& db, const QString& sLingua) const {
    // The statements outlive the transaction: a failed one is freed after the rollback.
    QSqlQuery query(db);
    QSqlQuery testo(db);
    InTransazione(db, Sorgente, [&] {
        Esegui(query, QStringLiteral("DELETE FROM IndiceWeb"));
        Esegui(query, IstruzioneIndiceWeb());
        // The text search document of each row, in the language asked for; a language the
        // server does not know makes it refuse, and nothing of the rebuild stays.
        if (!testo.prepare(QStringLiteral(
                "UPDATE IndiceWeb SET Testo = to_tsvector(CAST(? AS regconfig), "
                "COALESCE(Denominazione, '') || ' ' || COALESCE(DenomCompleta, ''))"))) {
            throw Errore(Sorgente, testo.lastError().text());
        }
        testo.addBindValue(sLingua.trimmed().isEmpty() ? QStringLiteral("italian")
                                                       : sLingua.trimmed());
        if (!testo.exec()) {
            throw Errore(Sorgente, testo.lastError().text());
        }
    });
}
