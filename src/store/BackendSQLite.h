#pragma once

#include "Backend.h"

// SQLite, the embedded default: Data Source is the folder of the database files (the program
// folder when empty or relative to it), Initial Catalog the database's name, kept in the file
// "<name>.db" unless the name brings its own extension. A file has no logins: any user enters.
class BackendSQLite : public Backend {
public:
    QString Provider() const override { return QStringLiteral("QSQLITE"); }
    QString Descrizione() const override { return QStringLiteral("SQLite"); }
    QSqlDatabase Apri(const StringaConnessione& stringa,
                      const QString& sNomeConnessione) const override;
    void CreaDatabase(const StringaConnessione& stringa) const override;
    QString InOrdineAlfabetico(const QString& sEspressione) const override;
    QVariant ValoreDaLegare(const QVariant& valore) const override;
    void EliminaDatabase(const StringaConnessione& stringa) const override;
    QString Destinazione(const StringaConnessione& stringa) const override;
    void CreaDatabaseSito(const StringaConnessione& stringa, const RuoliSito& ruoli) const override;
    void SospendiTrigger(const QSqlDatabase& db, const QString& sTabella) const override;
    void RiattivaTrigger(const QSqlDatabase& db, const QString& sTabella) const override;
    void AllineaChiavi(const QSqlDatabase& db, const QString& sTabella) const override;
    QString IstruzioneInserisci(const QString& sTabella, const QString& sChiave,
                                const QStringList& colonne) const override;
    void Backup(const QSqlDatabase& db, const StringaConnessione& stringa,
                const QString& sDestinazione) const override;
    void IndiceWeb(const QSqlDatabase& db, const QString& sLingua) const override;
    // SQLite's own statements on the driver's handle (Qt's path when the driver gives none).
    std::unique_ptr<LetturaRighe> ApriLetturaRighe(const QSqlDatabase& db, const QString& sSql,
                                                   const QVariantList& valori,
                                                   const QString& sSorgente) const override;

    // The file of the database that the string names. A Data Source that names a server
    // ("host:port", the form PostgreSQL takes) raises Errore: Connetti.txt says SQLite.
    static QString FileDatabase(const StringaConnessione& stringa);

    // The collation of Italian order that each connection of the program carries (a name of
    // the program's, unknown to the sqlite3 shell: the schema never names it).
    static QString CollazioneItaliana() { return QStringLiteral("ITALIANO"); }
};
