#pragma once

// The site's identity, the one row of Config: its code (stamped on every row the site makes,
// the key of the exchange between sites), its description and its range of keys
// (ID_Start..ID_End, within which every key the database generates falls). A new database
// holds a placeholder code until its identity is given (tabellion-sql --crea --codice ...):
// two sites must never share a code nor overlap their ranges.

#include <QString>
#include <QVariant>

class Connessione;

struct IdentitaSito {
    QString sCodice;
    QString sDescrizione; // "" leaves Config.Descrizione Null
    qint64 lInizio = 0;   // ID_Start
    qint64 lFine = 0;     // ID_End
};

// The code that a database holds before its site has an identity.
QString CodiceSitoProvvisorio();
// True when the code is the placeholder (blanks and case aside) or empty.
bool CodiceProvvisorio(const QString& sCodice);
// The code in the database's Config; "" when Config has no row. Raises Errore (under
// sSorgente, "Config" when empty) when Config cannot be read.
QString CodiceDelSito(const Connessione& connessione, const QString& sSorgente = QString());
// True when the database's Config still holds the placeholder code, or has no row at all: the
// site has no identity yet. Raises Errore when Config cannot be read.
bool SitoSenzaIdentita(const Connessione& connessione);

// The highest key a range may reach: the keys are 32-bit integers on every server.
constexpr qint64 ChiaveMassima = 2147483647;

// What is wrong with an identity, in words; "" when it can be written. A code: 1 to 10
// letters, digits, "_" or "-", not the placeholder; a range: 1 <= ID_Start <= ID_End <=
// ChiaveMassima.
QString ErroreIdentita(const IdentitaSito& identita);

// Writes the identity into Config (its one row) in a transaction of its own; on PostgreSQL the
// identity sequences follow the new range at once. Raises Errore when the identity is not valid,
// when Config has no row, or with the server's words.
void ScriviIdentita(const Connessione& connessione, const IdentitaSito& identita);
