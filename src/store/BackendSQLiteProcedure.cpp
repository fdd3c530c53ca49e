#include "BackendSQLite.h"

#include "ProcedureComuni.h"
#include "StringaConnessione.h"
#include "session/Errore.h"
#include "session/Sessione.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryFile>
#include <QVariant>
#include <memory>

namespace {

const QString Sorgente = QStringLiteral("SQLite");

void Esegui(QSqlQuery& query, const QString& sSql) {
    if (!query.exec(sSql)) {
        throw Errore(Sorgente, query.lastError().text());
    }
}

} // namespace

void BackendSQLite::Backup(const QSqlDatabase& db, const StringaConnessione&,
                           const QString& sDestinazione) const {
    const QString destinazione = DestinazioneCopia(sDestinazione, Sorgente);
    const std::unique_ptr<QTemporaryFile> provvisorio = FileProvvisorio(destinazione, Sorgente);
    {
        // A copy of one moment of the database, made while others may go on writing.
        QSqlQuery copia(db);
        if (!copia.prepare(QStringLiteral("VACUUM INTO ?"))) {
            throw Errore(Sorgente, copia.lastError().text());
        }
        copia.addBindValue(provvisorio->fileName());
        if (!copia.exec()) {
            throw Errore(Sorgente, QStringLiteral("Copia del database non riuscita: %1")
                                       .arg(copia.lastError().text()));
        }
    }
    // The rename does not overwrite a file that came meanwhile.
    if (!QFile::rename(provvisorio->fileName(), destinazione)) {
        throw Errore(Sorgente, QStringLiteral("Impossibile dare alla copia il nome %1.")
                                   .arg(QDir::toNativeSeparators(destinazione)));
    }
    provvisorio->setAutoRemove(false);
}

void BackendSQLite::IndiceWeb(const QSqlDatabase& db, const QString&) const {
    // The language is that of the full-text search of the other servers: the index of this
    // one reads every language alike.
    InTransazione(db, Sorgente, [&] {
        QSqlQuery query(db);
        Esegui(query, QStringLiteral("DELETE FROM IndiceWeb"));
        Esegui(query, IstruzioneIndiceWeb());
        // The full-text index reads IndiceWeb and is built again from it.
        Esegui(query,
               QStringLiteral("INSERT INTO IndiceWebTesto (IndiceWebTesto) VALUES ('rebuild')"));
    });
}
