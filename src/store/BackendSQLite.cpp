#include "BackendSQLite.h"

#include "StringaConnessione.h"
#include "session/Errore.h"
#include "session/Sessione.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

namespace {

const QString Sorgente = QStringLiteral("SQLite");

void VerificaDriver() {
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        throw Errore(Sorgente, QStringLiteral("Il driver SQLite di Qt non è installato "
                                              "(pacchetto libqt6sql6-sqlite)."));
    }
}

} // namespace

QString BackendSQLite::FileDatabase(const StringaConnessione& stringa) {
    QString cartella = stringa.Valore(QStringLiteral("Data Source"));
    if (cartella.isEmpty()) {
        cartella = Sessione::CartellaProgramma();
    } else if (QDir::isRelativePath(cartella)) {
        cartella = QDir(Sessione::CartellaProgramma()).filePath(cartella);
    }
    const QString nome = stringa.Valore(QStringLiteral("Initial Catalog"));
    if (nome.isEmpty()) {
        throw Errore(Sorgente, QStringLiteral("Nessun database indicato (Initial Catalog)."));
    }
    const QString file = QFileInfo(nome).suffix().isEmpty() ? nome + QStringLiteral(".db") : nome;
    return QDir::cleanPath(QDir(cartella).filePath(file));
}

QSqlDatabase BackendSQLite::Apri(const StringaConnessione& stringa,
                                 const QString& sNomeConnessione) const {
    VerificaDriver();
    const QString file = FileDatabase(stringa);
    const QFileInfo info(file);
    if (!info.exists()) {
        throw Errore(Sorgente, QStringLiteral("Il database \"%1\" non esiste: manca il file %2.")
                                   .arg(stringa.Valore(QStringLiteral("Initial Catalog")), file));
    }
    if (!info.isFile() || !info.isReadable()) {
        throw Errore(Sorgente,
                     QStringLiteral("Il file del database %1 non si può leggere.").arg(file));
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), sNomeConnessione);
    db.setDatabaseName(file);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    if (!db.open()) {
        const QString causa = db.lastError().text();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(sNomeConnessione);
        throw Errore(Sorgente,
                     QStringLiteral("Impossibile aprire il database %1: %2").arg(file, causa));
    }
    // A file that is not a database opens all the same: the first read tells.
    QSqlQuery prova(db);
    if (!prova.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
        const QString causa = prova.lastError().text();
        prova = QSqlQuery();
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(sNomeConnessione);
        throw Errore(Sorgente,
                     QStringLiteral("Il file %1 non è un database SQLite: %2").arg(file, causa));
    }
    return db;
}

void BackendSQLite::CreaDatabase(const StringaConnessione& stringa) const {
    VerificaDriver();
    const QString file = FileDatabase(stringa);
    if (QFileInfo::exists(file)) {
        throw Errore(Sorgente, QStringLiteral("Il database %1 esiste già.").arg(file));
    }
    if (!QDir().mkpath(QFileInfo(file).absolutePath())) {
        throw Errore(Sorgente, QStringLiteral("Impossibile creare la cartella di %1.").arg(file));
    }
    QFile vuoto(file);
    if (!vuoto.open(QIODevice::WriteOnly)) {
        throw Errore(
            Sorgente,
            QStringLiteral("Impossibile creare il database %1: %2").arg(file, vuoto.errorString()));
    }
}

void BackendSQLite::EliminaDatabase(const StringaConnessione& stringa) const {
    const QString file = FileDatabase(stringa);
    for (const QString& suffisso :
         {QString(), QStringLiteral("-journal"), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        QFile::remove(file + suffisso);
    }
}
