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

QPair<QString, int> BackendPostgreSQL::Indirizzo(const StringaConnessione& stringa) const {
    QString host = stringa.Valore(QStringLiteral("Data Source"));
    QString porta = stringa.Valore(QStringLiteral("Port"));
    // "host:port"; an address in brackets may hold colons of its own.
    const qsizetype duePunti = host.lastIndexOf(u':');
    if (duePunti > 0 && !host.endsWith(u']') && (host.count(u':') == 1 || host.startsWith(u'['))) {
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
    return {host, numeroPorta};
}

QSqlDatabase BackendPostgreSQL::Prepara(const StringaConnessione& stringa, const QString& sDatabase,
                                        const QString& sNomeConnessione) const {
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL"))) {
        throw Errore(Sorgente, QStringLiteral("Il driver PostgreSQL di Qt non è installato "
                                              "(pacchetto libqt6sql6-psql)."));
    }
    const auto [host, numeroPorta] = Indirizzo(stringa);
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

void BackendPostgreSQL::SulServer(const StringaConnessione& stringa,
                                  const std::function<void(const QSqlDatabase&)>& passo) const {
    const QString nome = NomeTemporaneo();
    QString causa;
    {
        QSqlDatabase db = Prepara(stringa, QStringLiteral("postgres"), nome);
        if (!db.open()) {
            causa = TestoErrore(db.lastError());
        } else {
            try {
                passo(db);
            } catch (const Errore& errore) {
                causa = errore.descrizione();
            }
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(nome);
    if (!causa.isEmpty()) {
        throw Errore(Sorgente, causa);
    }
}

void BackendPostgreSQL::EseguiSuServer(const StringaConnessione& stringa,
                                       const QString& sComando) const {
    SulServer(stringa, [&sComando](const QSqlDatabase& db) {
        QSqlQuery comando(db);
        if (!comando.exec(sComando)) {
            throw Errore(Sorgente, TestoErrore(comando.lastError()));
        }
    });
}

namespace {

// Names sort in the Italian order (case and accents) by the database's own collation, ICU's
// Italian; the server's locale stays for the rest (the character classes of text search).
QString CreaDatabaseItaliano(const QString& sDatabase, const QString& sProprietario) {
    QString testo = QStringLiteral("CREATE DATABASE %1 ").arg(sDatabase);
    if (!sProprietario.isEmpty()) {
        testo += QStringLiteral("OWNER %1 ").arg(sProprietario);
    }
    return testo + QStringLiteral("ENCODING 'UTF8' TEMPLATE template0 LOCALE_PROVIDER icu "
                                  "ICU_LOCALE '%1'")
                       .arg(BackendPostgreSQL::LocaleIcu());
}

// One row of one column, from a statement with its values bound.
QVariant Valore(const QSqlDatabase& db, const QString& sSql, const QVariantList& valori) {
    QSqlQuery query(db);
    query.prepare(sSql);
    for (const QVariant& valore : valori) {
        query.addBindValue(valore);
    }
    if (!query.exec() || !query.next()) {
        throw Errore(Sorgente, TestoErrore(query.lastError()));
    }
    return query.value(0);
}

} // namespace

void BackendPostgreSQL::CreaDatabase(const StringaConnessione& stringa) const {
    EseguiSuServer(
        stringa, CreaDatabaseItaliano(
                     Identificatore(stringa.Valore(QStringLiteral("Initial Catalog"))), QString()));
}

QString BackendPostgreSQL::Destinazione(const StringaConnessione& stringa) const {
    const auto [host, porta] = Indirizzo(stringa);
    return QStringLiteral("PostgreSQL, database \"%1\" sul server %2, porta %3")
        .arg(stringa.Valore(QStringLiteral("Initial Catalog")), host)
        .arg(porta);
}

void BackendPostgreSQL::CreaDatabaseSito(const StringaConnessione& stringa,
                                         const RuoliSito& ruoli) const {
    const QString proprietario =
        ruoli.sProprietario.isEmpty() ? RuoliSito::ProprietarioPredefinito() : ruoli.sProprietario;
    const QString gruppo = ruoli.sGruppo.isEmpty() ? RuoliSito::GruppoPredefinito() : ruoli.sGruppo;
    if (proprietario == gruppo) {
        throw Errore(Sorgente,
                     QStringLiteral("Il proprietario e il gruppo degli archivisti devono essere "
                                    "due ruoli diversi (qui entrambi %1).")
                         .arg(proprietario));
    }
    SulServer(stringa, [&](const QSqlDatabase& db) {
        for (const QString& ruolo : {proprietario, gruppo}) {
            if (Valore(db, QStringLiteral("SELECT COUNT(*) FROM pg_roles WHERE rolname = ?"),
                       {ruolo})
                    .toInt() == 0) {
                throw Errore(Sorgente,
                             QStringLiteral("Il ruolo %1 non esiste sul server: lo crei prima un "
                                            "amministratore, per esempio con CREATE ROLE %2 "
                                            "NOLOGIN.")
                                 .arg(ruolo, Identificatore(ruolo)));
            }
        }
        const QString login = Valore(db, QStringLiteral("SELECT current_user"), {}).toString();
        if (!Valore(db, QStringLiteral("SELECT pg_has_role(?, 'MEMBER')"), {proprietario})
                 .toBool()) {
            throw Errore(
                Sorgente,
                QStringLiteral("Il login %1 non può agire come %2, il proprietario del "
                               "database: serve GRANT %3 TO %4.")
                    .arg(login, proprietario, Identificatore(proprietario), Identificatore(login)));
        }
        if (Valore(db, QStringLiteral("SELECT pg_has_role(?, ?, 'MEMBER')"), {gruppo, proprietario})
                .toBool()) {
            throw Errore(Sorgente,
                         QStringLiteral("Il gruppo %1 ha i diritti di %2, il proprietario: gli "
                                        "archivisti potrebbero cambiare o cancellare lo schema. "
                                        "Il gruppo non deve essere membro del proprietario.")
                             .arg(gruppo, proprietario));
        }
        QSqlQuery crea(db);
        if (!crea.exec(CreaDatabaseItaliano(
                Identificatore(stringa.Valore(QStringLiteral("Initial Catalog"))),
                Identificatore(proprietario)))) {
            throw Errore(Sorgente, TestoErrore(crea.lastError()));
        }
    });
}

void BackendPostgreSQL::AgisciDaProprietario(const QSqlDatabase& db) const {
    QSqlQuery proprietario(db);
    if (!proprietario.exec(QStringLiteral(
            "SELECT pg_get_userbyid(datdba), pg_get_userbyid(datdba) <> current_user AND "
            "pg_has_role(datdba, 'MEMBER') FROM pg_database WHERE datname = current_database()"))) {
        throw Errore(Sorgente, TestoErrore(proprietario.lastError()));
    }
    if (proprietario.next() && proprietario.value(1).toBool()) {
        const QString nome = proprietario.value(0).toString();
        QSqlQuery ruolo(db);
        // A statement of the session that takes no bound value: the name, quoted, is joined in.
        if (!ruolo.exec(QStringLiteral("SET ROLE ") + Identificatore(nome))) {
            throw Errore(Sorgente, TestoErrore(ruolo.lastError()));
        }
    }
}

void BackendPostgreSQL::ConcediDiritti(const QSqlDatabase& db, const RuoliSito& ruoli) const {
    Valore(db, QStringLiteral("SELECT CAST(tabellion_concedi_diritti(?) AS text)"),
           {ruoli.sGruppo.isEmpty() ? RuoliSito::GruppoPredefinito() : ruoli.sGruppo});
}

void BackendPostgreSQL::EliminaDatabase(const StringaConnessione& stringa) const {
    EseguiSuServer(stringa,
                   QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)")
                       .arg(Identificatore(stringa.Valore(QStringLiteral("Initial Catalog")))));
}

namespace {

// Calls one of the functions through which a login that is not the owner does what only the
// owner may (sFunzione, its signature in sFirma), with the table's name bound. First it asks,
// without failing, whether the function is there and the login may call it: a call refused by
// the server would abort the caller's transaction with a statement that could no longer be
// freed. The function answers false for a table that is not in the database.
void ChiamaDaProprietario(const QSqlDatabase& db, const QString& sFirma, const QString& sChiamata,
                          const QString& sTabella) {
    QSqlQuery permesso(db);
    if (!permesso.exec(QStringLiteral("SELECT CASE WHEN to_regprocedure('%1') IS NULL THEN 0 "
                                      "WHEN has_function_privilege(to_regprocedure('%1'), "
                                      "'EXECUTE') THEN 1 ELSE 2 END, session_user")
                           .arg(sFirma)) ||
        !permesso.next()) {
        throw Errore(Sorgente, TestoErrore(permesso.lastError()));
    }
    const int esito = permesso.value(0).toInt();
    const QString login = permesso.value(1).toString();
    permesso.finish();
    if (esito == 0) {
        throw Errore(Sorgente,
                     QStringLiteral("Il database non ha la funzione %1: lo schema va aggiornato "
                                    "(Strumenti > Aggiorna versione).")
                         .arg(sFirma));
    }
    if (esito == 2) {
        throw Errore(Sorgente, QStringLiteral("Il login %1 non può eseguire %2: non è nel gruppo "
                                              "degli archivisti del database.")
                                   .arg(login, sFirma));
    }
    QSqlQuery chiamata(db);
    chiamata.prepare(sChiamata);
    chiamata.addBindValue(sTabella);
    if (!chiamata.exec() || !chiamata.next()) {
        throw Errore(Sorgente, TestoErrore(chiamata.lastError()));
    }
    if (!chiamata.value(0).toBool()) {
        throw Errore(Sorgente, QStringLiteral("La tabella %1 non c'è nel database.").arg(sTabella));
    }
}

const QString FirmaInterruttore = QStringLiteral("tabellion_interruttore_trigger(text, boolean)");

} // namespace

void BackendPostgreSQL::SospendiTrigger(const QSqlDatabase& db, const QString& sTabella) const {
    ChiamaDaProprietario(db, FirmaInterruttore,
                         QStringLiteral("SELECT tabellion_interruttore_trigger(?, false)"),
                         sTabella);
}

void BackendPostgreSQL::RiattivaTrigger(const QSqlDatabase& db, const QString& sTabella) const {
    ChiamaDaProprietario(db, FirmaInterruttore,
                         QStringLiteral("SELECT tabellion_interruttore_trigger(?, true)"),
                         sTabella);
}

void BackendPostgreSQL::AllineaChiavi(const QSqlDatabase& db, const QString& sTabella) const {
    ChiamaDaProprietario(db, QStringLiteral("tabellion_riallinea_chiave(text)"),
                         QStringLiteral("SELECT tabellion_riallinea_chiave(?)"), sTabella);
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
