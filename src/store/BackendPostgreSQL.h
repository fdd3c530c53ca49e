#pragma once

#include "Backend.h"

#include <QPair>
#include <functional>

// PostgreSQL, for several workstations on one database: Data Source is "host" or "host:port"
// (a "Port" in the head of the string serves when Data Source names none), Initial Catalog
// the database; the server checks the login.
class BackendPostgreSQL : public Backend {
public:
    QString Provider() const override { return QStringLiteral("QPSQL"); }
    QString Descrizione() const override { return QStringLiteral("PostgreSQL"); }
    QSqlDatabase Apri(const StringaConnessione& stringa,
                      const QString& sNomeConnessione) const override;
    void CreaDatabase(const StringaConnessione& stringa) const override;
    void EliminaDatabase(const StringaConnessione& stringa) const override;
    QString Destinazione(const StringaConnessione& stringa) const override;
    void CreaDatabaseSito(const StringaConnessione& stringa, const RuoliSito& ruoli) const override;
    void AgisciDaProprietario(const QSqlDatabase& db) const override;
    void ConcediDiritti(const QSqlDatabase& db, const RuoliSito& ruoli) const override;
    void SospendiTrigger(const QSqlDatabase& db, const QString& sTabella) const override;
    void RiattivaTrigger(const QSqlDatabase& db, const QString& sTabella) const override;
    void AllineaChiavi(const QSqlDatabase& db, const QString& sTabella) const override;
    QString IstruzioneInserisci(const QString& sTabella, const QString& sChiave,
                                const QStringList& colonne) const override;
    std::unique_ptr<Caricamento> ApriCaricamento(const QSqlDatabase& db, const QString& sTabella,
                                                 const QStringList& colonne) const override;
    std::unique_ptr<LetturaTesto> ApriLetturaTesto(const QSqlDatabase& db,
                                                   const QString& sTabella) const override;
    void Backup(const QSqlDatabase& db, const StringaConnessione& stringa,
                const QString& sDestinazione) const override;
    void IndiceWeb(const QSqlDatabase& db, const QString& sLingua) const override;

    // The ICU locale of the collation that CreaDatabase gives a new database.
    static QString LocaleIcu() { return QStringLiteral("it-IT"); }

private:
    QSqlDatabase Prepara(const StringaConnessione& stringa, const QString& sDatabase,
                         const QString& sNomeConnessione) const;
    void EseguiSuServer(const StringaConnessione& stringa, const QString& sComando) const;
    // Runs passo on a connection to the server's maintenance database "postgres", closed after.
    void SulServer(const StringaConnessione& stringa,
                   const std::function<void(const QSqlDatabase&)>& passo) const;
    // The server's address and port that the string names.
    QPair<QString, int> Indirizzo(const StringaConnessione& stringa) const;
};

// A program of the PostgreSQL client (pg_dump, pg_restore): on the PATH, else the newest of the
// versions installed under /usr/lib/postgresql; "" when there is none.
QString ProgrammaPostgreSQL(const QString& sNome);
