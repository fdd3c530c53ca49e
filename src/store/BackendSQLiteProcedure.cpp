#include "BackendSQLite.h"

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

// The destination of a copy: a file that is not there yet, in a folder that is there. A
// relative path is taken from the program folder.
QString DestinazioneCopia(const QString& sDestinazione) {
    if (sDestinazione.trimmed().isEmpty()) {
        throw Errore(Sorgente, QStringLiteral("Nessun file indicato per la copia del database."));
    }
    const QString percorso =
        QDir::cleanPath(QDir(Sessione::CartellaProgramma())
                            .absoluteFilePath(QDir::fromNativeSeparators(sDestinazione)));
    const QFileInfo file(percorso);
    if (file.exists() || file.isSymLink()) {
        throw Errore(Sorgente, QStringLiteral("Il file %1 esiste già: la copia non lo sovrascrive.")
                                   .arg(QDir::toNativeSeparators(percorso)));
    }
    const QFileInfo cartella(file.absolutePath());
    if (!cartella.exists() || !cartella.isDir()) {
        throw Errore(Sorgente, QStringLiteral("La cartella %1 non esiste.")
                                   .arg(QDir::toNativeSeparators(cartella.filePath())));
    }
    return percorso;
}

// An empty file of our own beside the destination, which the copy fills and which takes the
// destination's name only at the end: a failure leaves nothing behind.
std::unique_ptr<QTemporaryFile> FileProvvisorio(const QString& sDestinazione) {
    const QFileInfo file(sDestinazione);
    auto provvisorio = std::make_unique<QTemporaryFile>(
        QDir(file.absolutePath())
            .filePath(QStringLiteral(".") + file.fileName() + QStringLiteral(".XXXXXX")));
    if (!provvisorio->open()) {
        throw Errore(Sorgente, QStringLiteral("Impossibile scrivere nella cartella %1: %2")
                                   .arg(QDir::toNativeSeparators(file.absolutePath()),
                                        provvisorio->errorString()));
    }
    provvisorio->close();
    return provvisorio;
}

void Esegui(QSqlQuery& query, const QString& sSql) {
    if (!query.exec(sSql)) {
        throw Errore(Sorgente, query.lastError().text());
    }
}

} // namespace

void BackendSQLite::Backup(const QSqlDatabase& db, const StringaConnessione&,
                           const QString& sDestinazione) const {
    const QString destinazione = DestinazioneCopia(sDestinazione);
    const std::unique_ptr<QTemporaryFile> provvisorio = FileProvvisorio(destinazione);
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
    QSqlDatabase conDb = db;
    if (!conDb.transaction()) {
        throw Errore(Sorgente, conDb.lastError().text());
    }
    try {
        QSqlQuery query(conDb);
        Esegui(query, QStringLiteral("DELETE FROM IndiceWeb"));
        // The published elements whose ancestors are all published: from the published ones at
        // the top down through published children only.
        Esegui(query,
               QStringLiteral(
                   "INSERT INTO IndiceWeb (ID_Elemento, ID_ElementoPadre, Tipologia, "
                   "Denominazione, DenomCompleta, DataInizio, DataFine) "
                   "WITH RECURSIVE Pubblicati (ID_Elemento) AS ("
                   " SELECT E.ID_Elemento FROM Elementi E"
                   " WHERE UPPER(E.Pubblicato) = 'S' AND (E.ID_ElementoPadre IS NULL OR NOT "
                   "EXISTS (SELECT 1 FROM Elementi P WHERE P.ID_Elemento = E.ID_ElementoPadre))"
                   " UNION"
                   " SELECT F.ID_Elemento FROM Elementi F"
                   " INNER JOIN Pubblicati A ON F.ID_ElementoPadre = A.ID_Elemento"
                   " WHERE UPPER(F.Pubblicato) = 'S')"
                   " SELECT E.ID_Elemento, E.ID_ElementoPadre, E.Tipologia, E.Denominazione,"
                   " COALESCE(I.DenomCompleta, C.DenomCompleta, V.DenomCompleta, "
                   "E.Denominazione),"
                   " COALESCE(NULLIF(C.DataInizio, 0), NULLIF(D.DataInizio, 0), "
                   "NULLIF(G.DataCronicaInizio, 0), NULLIF(S.DataInizio, 0), "
                   "NULLIF(V.AnnoInizio, 0) * 10000 + 101),"
                   " COALESCE(NULLIF(C.DataFine, 0), NULLIF(D.DataFine, 0), "
                   "NULLIF(G.DataCronicaFine, 0), NULLIF(S.DataFine, 0), "
                   "NULLIF(V.AnnoFine, 0) * 10000 + 1231)"
                   " FROM Pubblicati A"
                   " INNER JOIN Elementi E ON E.ID_Elemento = A.ID_Elemento"
                   " LEFT JOIN Istituti I ON I.ID_Elemento = E.ID_Elemento"
                   " LEFT JOIN ComplessiDoc C ON C.ID_Elemento = E.ID_Elemento"
                   " LEFT JOIN Inventari V ON V.ID_Elemento = E.ID_Elemento"
                   " LEFT JOIN DatiInventariali D ON D.ID_Elemento = E.ID_Elemento"
                   " LEFT JOIN Pergamene G ON G.ID_Elemento = E.ID_Elemento"
                   " LEFT JOIN Sigilli S ON S.ID_Elemento = E.ID_Elemento"));
        // The full-text index reads IndiceWeb and is built again from it.
        Esegui(query,
               QStringLiteral("INSERT INTO IndiceWebTesto (IndiceWebTesto) VALUES ('rebuild')"));
    } catch (...) {
        conDb.rollback();
        throw;
    }
    if (!conDb.commit()) {
        const QString causa = conDb.lastError().text();
        conDb.rollback();
        throw Errore(Sorgente, causa);
    }
}
