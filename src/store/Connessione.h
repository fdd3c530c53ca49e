#pragma once

// The session's one connection to the database, made from the whole connection string.

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
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
    // with the server's words when it fails. Dates are bound in the backend's form
    // (Backend::ValoreDaLegare), here and in Inserisci.
    QSqlQuery Esegui(const QString& sSql, std::initializer_list<QVariant> valori = {},
                     const QString& sSorgente = QString()) const;
    // The same with the values in a list, for a statement whose columns are known only at
    // run time.
    QSqlQuery EseguiLista(const QString& sSql, const QVariantList& valori,
                          const QString& sSorgente = QString()) const;

    // A term of ORDER BY that puts a text in the Italian order (Backend::InOrdineAlfabetico).
    QString InOrdineAlfabetico(const QString& sEspressione) const;

    // Inserts one row and gives back its generated key, within the site's key range.
    qint64 Inserisci(const QString& sTabella, const QString& sChiave, const QStringList& colonne,
                     const QVariantList& valori) const;

    // A statement prepared once on this connection and kept for the next call: for the
    // inserts and updates that run many times (a statement on a table with many triggers is
    // costly to prepare). Only for statements whose results the caller reads at once.
    QSqlQuery& Preparata(const QString& sSql) const;

    // The backend a string names, or an Errore that lists the known ones.
    static const Backend& BackendDi(const StringaConnessione& stringa);

private:
    Connessione(const Backend* backend, StringaConnessione stringa, QString sNome);

    const Backend* pBackend;
    StringaConnessione stringa;
    QString sNome;
    mutable QHash<QString, std::shared_ptr<QSqlQuery>> preparate;
};
