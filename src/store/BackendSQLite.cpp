#include "BackendSQLite.h"

#include "LetturaRighe.h"
#include "OrdineItaliano.h"
#include "TestoErrore.h"

#include "StringaConnessione.h"
#include "session/Errore.h"
#include "session/Sessione.h"

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <memory>
#include <sqlite3.h>

namespace {

const QString Sorgente = QStringLiteral("SQLite");

void VerificaDriver() {
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        throw Errore(Sorgente, QStringLiteral("Il driver SQLite di Qt non è installato "
                                              "(pacchetto libqt6sql6-sqlite)."));
    }
}

int ConfrontoItaliano(void*, int iLunghezzaA, const void* a, int iLunghezzaB, const void* b) {
    return ConfrontaItaliano(
        std::string_view(static_cast<const char*>(a), static_cast<size_t>(iLunghezzaA)),
        std::string_view(static_cast<const char*>(b), static_cast<size_t>(iLunghezzaB)));
}

// SQLite's handle of the connection, or null when Qt's driver gives none.
sqlite3* ManigliaDi(const QSqlDatabase& db) {
    const QVariant maniglia = db.driver() ? db.driver()->handle() : QVariant();
    if (!maniglia.isValid() || qstrcmp(maniglia.typeName(), "sqlite3*") != 0)
        return nullptr;
    return *static_cast<sqlite3* const*>(maniglia.constData());
}

// The Italian order on the connection, under the name that InOrdineAlfabetico writes. Qt's
// driver hands out SQLite's own handle, of the same library that the program links.
bool RegistraCollazione(const QSqlDatabase& db) {
    sqlite3* connessione = ManigliaDi(db);
    return connessione != nullptr &&
           sqlite3_create_collation_v2(
               connessione, BackendSQLite::CollazioneItaliana().toUtf8().constData(), SQLITE_UTF8,
               nullptr, ConfrontoItaliano, nullptr) == SQLITE_OK;
}

// A SELECT on SQLite's own statement: each value read where SQLite keeps it.
class LetturaRigheSQLite : public LetturaRighe {
public:
    LetturaRigheSQLite(sqlite3* connessioneDb, const QString& sSql, const QVariantList& valori,
                       const QString& sSorgenteErrori, const Backend& backend)
        : connessione(connessioneDb)
        , sSorgente(sSorgenteErrori) {
        const QByteArray sql = sSql.toUtf8();
        sqlite3_stmt* preparata = nullptr;
        const int esito = sqlite3_prepare_v2(connessione, sql.constData(),
                                             static_cast<int>(sql.size()), &preparata, nullptr);
        // Finalized however the reading ends, a failed binding in this constructor included.
        istruzione.reset(preparata);
        if (esito != SQLITE_OK) {
            Fallita();
        }
        for (int i = 0; i < valori.size(); ++i) {
            Lega(i + 1, backend.ValoreDaLegare(valori[i]));
        }
    }

    bool Prossima() override {
        const int esito = sqlite3_step(istruzione.get());
        if (esito == SQLITE_ROW)
            return true;
        if (esito != SQLITE_DONE)
            Fallita();
        return false;
    }
    bool Null(int iColonna) const override {
        return sqlite3_column_type(istruzione.get(), iColonna) == SQLITE_NULL;
    }
    qint64 Intero(int iColonna) const override {
        return sqlite3_column_int64(istruzione.get(), iColonna);
    }
    QByteArrayView Testo(int iColonna) const override {
        const auto* testo = sqlite3_column_text(istruzione.get(), iColonna);
        return QByteArrayView(reinterpret_cast<const char*>(testo),
                              sqlite3_column_bytes(istruzione.get(), iColonna));
    }
    QString Via() const override { return QStringLiteral("sqlite3"); }

private:
    [[noreturn]] void Fallita() const {
        throw Errore(sSorgente, QString::fromUtf8(sqlite3_errmsg(connessione)));
    }
    void Lega(int iPosto, const QVariant& valore) {
        int esito = SQLITE_OK;
        switch (valore.metaType().id()) {
        case QMetaType::UnknownType:
            esito = sqlite3_bind_null(istruzione.get(), iPosto);
            break;
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::LongLong:
        case QMetaType::Short:
        case QMetaType::UShort:
            esito = valore.isNull()
                        ? sqlite3_bind_null(istruzione.get(), iPosto)
                        : sqlite3_bind_int64(istruzione.get(), iPosto, valore.toLongLong());
            break;
        case QMetaType::Double:
        case QMetaType::Float:
            esito = valore.isNull()
                        ? sqlite3_bind_null(istruzione.get(), iPosto)
                        : sqlite3_bind_double(istruzione.get(), iPosto, valore.toDouble());
            break;
        default: {
            if (valore.isNull()) {
                esito = sqlite3_bind_null(istruzione.get(), iPosto);
                break;
            }
            const QByteArray testo = valore.toString().toUtf8();
            esito = sqlite3_bind_text(istruzione.get(), iPosto, testo.constData(),
                                      static_cast<int>(testo.size()), SQLITE_TRANSIENT);
        }
        }
        if (esito != SQLITE_OK)
            Fallita();
    }

    sqlite3* connessione;
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> istruzione{nullptr, sqlite3_finalize};
    QString sSorgente;
};

} // namespace

std::unique_ptr<LetturaRighe> BackendSQLite::ApriLetturaRighe(const QSqlDatabase& db,
                                                              const QString& sSql,
                                                              const QVariantList& valori,
                                                              const QString& sSorgente) const {
    sqlite3* connessione = ManigliaDi(db);
    if (connessione == nullptr)
        return Backend::ApriLetturaRighe(db, sSql, valori, sSorgente);
    return std::make_unique<LetturaRigheSQLite>(connessione, sSql, valori, sSorgente, *this);
}

QString BackendSQLite::FileDatabase(const StringaConnessione& stringa) {
    QString cartella = stringa.Valore(QStringLiteral("Data Source"));
    // "host:port" or "[address]:port": a server's address, not a folder.
    static const QRegularExpression server(
        QStringLiteral("^([^/\\\\\\s\\[\\]:]+|\\[[^\\]]+\\]):[0-9]+$"));
    if (server.match(cartella.trimmed()).hasMatch()) {
        throw Errore(Sorgente,
                     QStringLiteral("\"%1\" è l'indirizzo di un server (host:porta), ma "
                                    "Connetti.txt indica SQLite, che tiene il database in un file "
                                    "di una cartella. Per un server PostgreSQL Connetti.txt deve "
                                    "dire Provider=QPSQL.")
                         .arg(cartella));
    }
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
        const QString causa = TestoErrore(db.lastError());
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(sNomeConnessione);
        throw Errore(Sorgente,
                     QStringLiteral("Impossibile aprire il database %1: %2").arg(file, causa));
    }
    // A file that is not a database opens all the same: the first read tells.
    QSqlQuery prova(db);
    if (!prova.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
        const QString causa = TestoErrore(prova.lastError());
        prova = QSqlQuery();
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(sNomeConnessione);
        throw Errore(Sorgente,
                     QStringLiteral("Il file %1 non è un database SQLite: %2").arg(file, causa));
    }
    // The database's duties carry changes up and down the tree, trigger by trigger.
    prova.exec(QStringLiteral("PRAGMA recursive_triggers = ON"));
    if (!RegistraCollazione(db)) {
        prova = QSqlQuery();
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(sNomeConnessione);
        throw Errore(Sorgente, QStringLiteral("Impossibile dare al database %1 l'ordine "
                                              "alfabetico italiano (collazione %2).")
                                   .arg(file, CollazioneItaliana()));
    }
    return db;
}

QString BackendSQLite::InOrdineAlfabetico(const QString& sEspressione) const {
    return sEspressione + QStringLiteral(" COLLATE ") + CollazioneItaliana();
}

QVariant BackendSQLite::ValoreDaLegare(const QVariant& valore) const {
    QDate giorno;
    QTime ora(0, 0);
    switch (valore.metaType().id()) {
    case QMetaType::QDate:
        giorno = valore.toDate();
        break;
    case QMetaType::QDateTime: {
        const QDateTime data = valore.toDateTime();
        giorno = data.date();
        ora = data.time();
        break;
    }
    default:
        return valore;
    }
    if (valore.isNull() || !giorno.isValid() || !ora.isValid())
        return QVariant(QMetaType::fromType<QString>());
    // Seconds whole: the milliseconds of a QDateTime are dropped.
    return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", giorno.year(), giorno.month(),
                             giorno.day(), ora.hour(), ora.minute(), ora.second());
}

namespace {

void Esegui(QSqlQuery& query) {
    if (!query.exec()) {
        throw Errore(Sorgente, TestoErrore(query.lastError()));
    }
}

} // namespace

void BackendSQLite::SospendiTrigger(const QSqlDatabase& db, const QString& sTabella) const {
    QSqlQuery query(db);
    query.prepare(QStringLiteral("INSERT OR IGNORE INTO TriggerSospesi (Tabella) VALUES (?)"));
    query.addBindValue(sTabella);
    Esegui(query);
}

void BackendSQLite::RiattivaTrigger(const QSqlDatabase& db, const QString& sTabella) const {
    QSqlQuery query(db);
    query.prepare(QStringLiteral("DELETE FROM TriggerSospesi WHERE Tabella = ?"));
    query.addBindValue(sTabella);
    Esegui(query);
}

void BackendSQLite::AllineaChiavi(const QSqlDatabase&, const QString&) const {
    // Each new key is taken afresh from the range and the keys present: nothing to realign.
}

QString BackendSQLite::IstruzioneInserisci(const QString& sTabella, const QString& sChiave,
                                           const QStringList& colonne) const {
    // The next key of the site's range, in the same statement as the insert, so that two
    // workstations cannot take the same one (SQLite runs one writer at a time). The greatest
    // key of the range is read backwards from its top: one index step. Past the end of the
    // range nothing is inserted and no key comes back.
    const QString tabella = Identificatore(sTabella);
    const QString chiave = Identificatore(sChiave);
    QStringList nomi{chiave};
    QStringList segnaposti{QStringLiteral("Nuova.Chiave")};
    for (const QString& colonna : colonne) {
        nomi.append(Identificatore(colonna));
        segnaposti.append(QStringLiteral("?"));
    }
    return QStringLiteral(
               "INSERT INTO %1 (%2) SELECT %3 FROM (SELECT (SELECT COALESCE((SELECT %4 FROM %1 "
               "WHERE %4 BETWEEN (SELECT ID_Start FROM Config) AND (SELECT ID_End FROM Config) "
               "ORDER BY %4 DESC LIMIT 1), (SELECT ID_Start FROM Config) - 1) + 1) AS Chiave) AS "
               "Nuova WHERE Nuova.Chiave IS NULL OR Nuova.Chiave <= COALESCE((SELECT ID_End FROM "
               "Config), Nuova.Chiave) RETURNING %4")
        .arg(tabella, nomi.join(QStringLiteral(", ")), segnaposti.join(QStringLiteral(", ")),
             chiave);
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

QString BackendSQLite::Destinazione(const StringaConnessione& stringa) const {
    return QStringLiteral("SQLite, database \"%1\" nel file %2")
        .arg(stringa.Valore(QStringLiteral("Initial Catalog")),
             QDir::toNativeSeparators(FileDatabase(stringa)));
}

void BackendSQLite::CreaDatabaseSito(const StringaConnessione& stringa,
                                     const RuoliSito& ruoli) const {
    if (!ruoli.Predefiniti()) {
        throw Errore(Sorgente, QStringLiteral("SQLite non ha ruoli: --proprietario e --gruppo "
                                              "valgono solo per PostgreSQL."));
    }
    const QString cartella = QFileInfo(FileDatabase(stringa)).absolutePath();
    if (!QFileInfo(cartella).isDir()) {
        throw Errore(Sorgente,
                     QStringLiteral("La cartella %1 non esiste: la si crei prima del database.")
                         .arg(QDir::toNativeSeparators(cartella)));
    }
    CreaDatabase(stringa);
}

void BackendSQLite::EliminaDatabase(const StringaConnessione& stringa) const {
    const QString file = FileDatabase(stringa);
    for (const QString& suffisso :
         {QString(), QStringLiteral("-journal"), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        QFile::remove(file + suffisso);
    }
}
