#pragma once

// What differs between the database servers the program works on. Nothing outside this
// folder asks which one is in use.

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <memory>

class Caricamento;
class LetturaTesto;
class LetturaRighe;
class StringaConnessione;

// The roles of a site's database, on a server that has roles (PostgreSQL): the owner of the
// database and of everything in it (no login of its own), and the group whose members are the
// archivists' logins. Empty names stand for the defaults.
struct RuoliSito {
    QString sProprietario;
    QString sGruppo;

    static QString ProprietarioPredefinito() { return QStringLiteral("tabellion_proprietario"); }
    static QString GruppoPredefinito() { return QStringLiteral("archivisti"); }
    bool Predefiniti() const { return sProprietario.isEmpty() && sGruppo.isEmpty(); }
};

class Backend {
public:
    virtual ~Backend() = default;

    // The provider's name as Connetti.txt gives it ("QSQLITE", "QPSQL").
    virtual QString Provider() const = 0;
    // A description for people ("SQLite", "PostgreSQL").
    virtual QString Descrizione() const = 0;

    // Opens a database under the given Qt connection name; raises Errore with the cause in
    // words (no such database, a refused login, a server that does not answer).
    virtual QSqlDatabase Apri(const StringaConnessione& stringa,
                              const QString& sNomeConnessione) const = 0;
    // Creates the empty database that the string names; raises Errore if it cannot.
    virtual void CreaDatabase(const StringaConnessione& stringa) const = 0;
    // Removes the database that the string names, if it is there.
    virtual void EliminaDatabase(const StringaConnessione& stringa) const = 0;

    // The database a string names, for people: the server's kind and where the database lies.
    // Raises Errore when the string cannot name a database of this server.
    virtual QString Destinazione(const StringaConnessione& stringa) const = 0;

    // The database of a new site, before anything is made: PostgreSQL checks the roles (they
    // exist, the login may act as the owner, the group is neither the owner nor one of its
    // members) and gives the new database to the owner; SQLite has no roles and refuses names
    // of roles, and wants the folder of the file to be there. Raises Errore in words.
    virtual void CreaDatabaseSito(const StringaConnessione& stringa,
                                  const RuoliSito& ruoli) const = 0;
    // Before scripts change the schema: where the login may act as the database's owner, the
    // connection does (PostgreSQL: SET ROLE), so that whatever the scripts make is the owner's.
    virtual void AgisciDaProprietario(const QSqlDatabase& db) const;
    // After the scripts of a new site: the group gets what the program needs and no more
    // (PostgreSQL: tabellion_concedi_diritti of the schema). Nothing where there are no roles.
    virtual void ConcediDiritti(const QSqlDatabase& db, const RuoliSito& ruoli) const;

    // An identifier as the server reads it whatever its spelling.
    virtual QString Identificatore(const QString& sNome) const;

    // A term of ORDER BY that puts a text in the order an Italian reader expects (case and
    // accents: OrdineItaliano.h). PostgreSQL: the expression itself, since the program creates
    // its databases with that collation; SQLite, whose NOCASE knows neither accents nor the
    // case of accented letters: the expression with the collation the program gives each of
    // its connections. Statements that sort names take their term from here.
    virtual QString InOrdineAlfabetico(const QString& sEspressione) const { return sEspressione; }

    // A value as it is bound into a statement. A date (QDate) or a date and time (QDateTime)
    // goes to SQLite, which has no date type, as the one text its own date functions read,
    // "yyyy-MM-dd HH:mm:ss", whatever its Qt type; PostgreSQL takes it as it is, into its
    // timestamp columns. Dates are bound as such, never as text of another form.
    virtual QVariant ValoreDaLegare(const QVariant& valore) const { return valore; }

    // A table's triggers off and on again, inside the caller's transaction, so that a failed
    // import rolls the switch back with its rows. PostgreSQL, where only a table's owner may
    // switch them, goes through tabellion_interruttore_trigger, which runs with the owner's
    // rights and which the archivists' group may call.
    virtual void SospendiTrigger(const QSqlDatabase& db, const QString& sTabella) const = 0;
    virtual void RiattivaTrigger(const QSqlDatabase& db, const QString& sTabella) const = 0;
    // After rows came in with explicit keys: the next generated key goes past those of the
    // site's range (PostgreSQL: tabellion_riallinea_chiave, with the owner's rights).
    virtual void AllineaChiavi(const QSqlDatabase& db, const QString& sTabella) const = 0;

    // The text of an insert of one row ("?" for each column, in order) that gives back the
    // row's generated key (column sChiave), within the site's range Config.ID_Start..ID_End.
    // Past the end of the range it fails, or inserts nothing and gives back no key.
    virtual QString IstruzioneInserisci(const QString& sTabella, const QString& sChiave,
                                        const QStringList& colonne) const = 0;

    // Rows into one table at once, inside the caller's transaction, by the server's fastest
    // path (the import's). Table and column names are plain names, joined as they stand.
    virtual std::unique_ptr<Caricamento> ApriCaricamento(const QSqlDatabase& db,
                                                         const QString& sTabella,
                                                         const QStringList& colonne) const;

    // A whole table read by the server's bulk path, values in the server's text form; null
    // where the server has no such path (the caller then reads through Qt). Raises Errore
    // with the server's words when the table cannot be read.
    // The rows of a SELECT with its values bound in order ("?"), read forward by the engine's
    // own path where the backend has one, by Qt's otherwise. Raises Errore (under sSorgente)
    // with the server's words when the statement fails.
    virtual std::unique_ptr<LetturaRighe> ApriLetturaRighe(const QSqlDatabase& db,
                                                           const QString& sSql,
                                                           const QVariantList& valori,
                                                           const QString& sSorgente) const;

    virtual std::unique_ptr<LetturaTesto> ApriLetturaTesto(const QSqlDatabase& db,
                                                           const QString& sTabella) const;

    // The two maintenance procedures. Backup: a consistent copy of the whole database to
    // sDestinazione (SQLite: a database file; PostgreSQL: a pg_dump archive). Web index:
    // IndiceWeb rebuilt from the published elements, with its full-text index; sLingua names
    // the language of the text search ("italian" when empty). Both raise Errore on failure and
    // leave the database as it was. They may run on a thread of their own, on a connection
    // opened there from the same string.
    virtual void Backup(const QSqlDatabase& db, const StringaConnessione& stringa,
                        const QString& sDestinazione) const = 0;
    virtual void IndiceWeb(const QSqlDatabase& db, const QString& sLingua) const = 0;

    // The backend for a provider, or nullptr if the program does not know it.
    static const Backend* PerProvider(const QString& sProvider);
    // The providers the program knows, for messages.
    static QStringList ProviderNoti();
};
