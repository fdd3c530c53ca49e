#pragma once

// What differs between the database servers the program works on. Nothing outside this
// folder asks which one is in use.

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class StringaConnessione;

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

    // An identifier as the server reads it whatever its spelling.
    virtual QString Identificatore(const QString& sNome) const;

    // The backend for a provider, or nullptr if the program does not know it.
    static const Backend* PerProvider(const QString& sProvider);
    // The providers the program knows, for messages.
    static QStringList ProviderNoti();
};
