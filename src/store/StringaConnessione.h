#pragma once

// The connection string in the ADO manner: "Chiave=valore" pairs joined by ";". The head comes
// from Connetti.txt and names the backend (e.g. "Provider=QSQLITE" or
// "Provider=QPSQL;Port=5432"); the login appends Data Source, Initial Catalog, User ID and
// Password.

#include <QList>
#include <QPair>
#include <QString>

class StringaConnessione {
public:
    static StringaConnessione Leggi(const QString& sTesto);

    // The value of a key, whatever its case; where a key stands twice the later one holds, so
    // what the login appends wins over the head. "" if absent.
    QString Valore(const QString& sChiave) const;
    bool Contiene(const QString& sChiave) const;

    const QList<QPair<QString, QString>>& Voci() const { return voci; }

private:
    QList<QPair<QString, QString>> voci;
};

// The login's string: sTesta + ";Data Source=" + server + ";Initial Catalog=" + database +
// ";User ID=" + user + ";Password=" + password. A value that holds ";" or begins with a quote
// stands in double quotes, so that it reaches the server whole.
QString ComponiStringaConnessione(const QString& sTesta, const QString& sServer,
                                  const QString& sDatabase, const QString& sUtente,
                                  const QString& sPassword);

// A value as it may stand in a connection string.
QString ValoreInStringa(const QString& sValore);
