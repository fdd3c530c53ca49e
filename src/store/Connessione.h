#pragma once

// The session's one connection to the database, made from the whole connection string.

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <initializer_list>
#include <memory>

#include "StringaConnessione.h"

class Backend;

class Connessione {
public:
    // Opens the database the string names; raises Errore with the cause in words (an unknown
    // provider, a database that is not there, a refused login, a server that is down).
    static std::shared_ptr<Connessione> Apri(const QString& sStringa);

    ~Connessione();
    Connessione(const Connessione&) = delete;
    Connessione& operator=(const Connessione&) = delete;

    QSqlDatabase Db() const;
    const Backend& backend() const { return *pBackend; }
    const StringaConnessione& Stringa() const { return stringa; }
    bool Aperta() const;
    void Chiudi();

    // A statement with its values bound in order ("?" placeholders), executed; raises Errore
    // with the server's words when it fails.
    QSqlQuery Esegui(const QString& sSql, std::initializer_list<QVariant> valori = {},
                     const QString& sSorgente = QString()) const;

    // The backend a string names, or an Errore that lists the known ones.
    static const Backend& BackendDi(const StringaConnessione& stringa);

private:
    Connessione(const Backend* backend, StringaConnessione stringa, QString sNome);

    const Backend* pBackend;
    StringaConnessione stringa;
    QString sNome;
};
