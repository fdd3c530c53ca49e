#include "BackendPostgreSQL.h"
#include "CopiaPostgreSQL.h"
#include "TestoErrore.h"

#include "StringaConnessione.h"
#include "session/Errore.h"

#include <QAtomicInt>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QString Sorgente = QStringLiteral("PostgreSQL");

QString NomeTemporaneo() {
    static QAtomicInt contatore;
    return QStringLiteral("tabellion-servizio-%1").arg(contatore.fetchAndAddRelaxed(1));
}

} // namespace

QSqlDatabase BackendPostgreSQL::Prepara(const StringaConnessione& stringa, const QString& sDatabase,
                                        const QString& sNomeConnessione) const {
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL"))) {
        throw Errore(Sorgente, QStringLiteral("Il driver PostgreSQL di Qt non è installato "
                                              "(pacchetto libqt6sql6-psql)."));
    }
    QString host = stringa.Valore(QStringLiteral("Data Source"));
    QString porta = stringa.Valore(QStringLiteral("Port"));
    // "host:port"; an address in brackets may hold colons of its own.
    const qsizetype duePunti = host.lastIndexOf(u':');
    if (duePunti > 0 && !host.endsWith(u']') && host.count(u':') == 1) {
        porta = host.mid(duePunti + 1);
        host = host.left(duePunti);
    }
    if (host.startsWith(u'[') && host.endsWith(u']')) {
        host = host.mid(1, host.size() - 2);
    }
    if (host.isEmpty()) {
        host = QStringLiteral("localhost");
    }
    bool portaValida = true;
    const int numeroPorta = porta.isEmpty() ? 5432 : porta.toInt(&portaValida);
    if (!portaValida || numeroPorta <= 0 || numeroPorta > 65535) {
        throw Errore(Sorgente, QStringLiteral("Porta del server non valida: \"%1\".").arg(porta));
    }
    if (sDatabase.isEmpty()) {
        throw Errore(Sorgente, QStringLiteral("Nessun database indicato (Initial Catalog)."));
    }
    QString attesa = stringa.Valore(QStringLiteral("Connect Timeout"));
    if (attesa.isEmpty()) {
        attesa = QStringLiteral("15");
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), sNomeConnessione);
    db.setHostName(host);
    db.setPort(numeroPorta);
    db.setDatabaseName(sDatabase);
    db.setUserName(stringa.Valore(QStringLiteral("User ID")));
    db.setPassword(stringa.Valore(QStringLiteral("Password")));
    db.setConnectOptions(QStringLiteral("connect_timeout=%1;application_name=tabellion")
                             .arg(attesa.toInt() > 0 ? attesa.toInt() : 15));
    return db;
}

QSqlDatabase BackendPostgreSQL::Apri(const StringaConnessione& stringa,
                                     const QString& sNomeConnessione) const {
    QSqlDatabase db =
        Prepara(stringa, stringa.Valore(QStringLiteral("Initial Catalog")), sNomeConnessione);
    if (!db.open()) {
        QString causa = db.lastError().databaseText().trimmed();
        if (causa.isEmpty()) {
            causa = TestoErrore(db.lastError());
        }
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(sNomeConnessione);
        throw Errore(Sorgente, causa);
    }
    QSqlQuery impostazioni(db);
    impostazioni.exec(QStringLiteral("SET client_encoding TO 'UTF8'"));
    return db;
}

void BackendPostgreSQL::EseguiSuServer(const StringaConnessione& stringa,
                                       const QString& sComando) const {
    const QString nome = NomeTemporaneo();
    {
        QSqlDatabase db = Prepara(stringa, QStringLiteral("postgres"), nome);
        if (!db.open()) {
            const QString causa = TestoErrore(db.lastError());
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(nome);
            throw Errore(Sorgente, causa);
        }
        QSqlQuery comando(db);
        if (!comando.exec(sComando)) {
            const QString causa = TestoErrore(comando.lastError());
            comando = QSqlQuery();
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(nome);
            throw Errore(Sorgente, causa);
        }
        comando = QSqlQuery();
        db.close();
    }
    QSqlDatabase::removeDatabase(nome);
}

void BackendPostgreSQL::CreaDatabase(const StringaConnessione& stringa) const {
    // Names sort in the Italian order (case and accents) by the database's own collation, ICU's
    // Italian; the server's locale stays for the rest (the character classes of text search).
    EseguiSuServer(
        stringa,
        QStringLiteral("CREATE DATABASE %1 ENCODING 'UTF8' TEMPLATE template0 "
                       "LOCALE_PROVIDER icu ICU_LOCALE '%2'")
            .arg(Identificatore(stringa.Valore(QStringLiteral("Initial Catalog"))), LocaleIcu()));
}

void BackendPostgreSQL::EliminaDatabase(const StringaConnessione& stringa) const {
    EseguiSuServer(stringa,
                   QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)")
                       .arg(Identificatore(stringa.Valore(QStringLiteral("Initial Catalog")))));
}

namespace {} // namespace

void BackendPostgreSQL::SospendiTrigger(const QSqlDatabase& db, const QString& sTabella) const {
    // A statement of the schema cannot be prepared on the server: only the name is joined in.
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("ALTER TABLE %1 DISABLE TRIGGER USER")
                        .arg(Identificatore(sTabella.toLower())))) {
        throw Errore(Sorgente, TestoErrore(query.lastError()));
    }
}

void BackendPostgreSQL::RiattivaTrigger(const QSqlDatabase& db, const QString& sTabella) const {
    // A statement of the schema cannot be prepared on the server: only the name is joined in.
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("ALTER TABLE %1 ENABLE TRIGGER USER")
                        .arg(Identificatore(sTabella.toLower())))) {
        throw Errore(Sorgente, TestoErrore(query.lastError()));
    }
}

void BackendPostgreSQL::AllineaChiavi(const QSqlDatabase& db, const QString&) const {
    // Run unprepared: a statement prepared on the server could not be freed once a refusal
    // (a login that does not own the sequences) has aborted the transaction.
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("SELECT tabellion_allinea_chiavi()")))
        throw Errore(Sorgente, TestoErrore(query.lastError()));
}

std::unique_ptr<Caricamento> BackendPostgreSQL::ApriCaricamento(const QSqlDatabase& db,
                                                                const QString& sTabella,
                                                                const QStringList& colonne) const {
    return ApriCaricamentoPostgreSQL(db, sTabella, colonne);
}

std::unique_ptr<LetturaTesto> BackendPostgreSQL::ApriLetturaTesto(const QSqlDatabase& db,
                                                                  const QString& sTabella) const {
    return ApriLetturaPostgreSQL(db, sTabella);
}

QString BackendPostgreSQL::IstruzioneInserisci(const QString& sTabella, const QString& sChiave,
                                               const QStringList& colonne) const {
    // RETURNING reads this row's key even when triggers insert into other tables.
    QStringList nomi;
    QStringList segnaposti;
    for (const QString& colonna : colonne) {
        nomi.append(Identificatore(colonna.toLower()));
        segnaposti.append(QStringLiteral("?"));
    }
    const QString tabella = Identificatore(sTabella.toLower());
    const QString chiave = Identificatore(sChiave.toLower());
    if (nomi.isEmpty()) {
        return QStringLiteral("INSERT INTO %1 DEFAULT VALUES RETURNING %2").arg(tabella, chiave);
    }
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) RETURNING %4")
        .arg(tabella, nomi.join(QStringLiteral(", ")), segnaposti.join(QStringLiteral(", ")),
             chiave);
}
