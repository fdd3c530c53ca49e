#pragma once

// tabellion-sql: runs SQL scripts on a site's database under the user's login, the way the
// schema upgrade asks for it, and creates the database of a new site:
//   tabellion-sql -U user -P password -S server -d database -i file [-i file ...]
//   tabellion-sql --crea --codice CODE [--descrizione TEXT] --id-inizio N --id-fine M
//       [--proprietario ROLE] [--gruppo ROLE] -U ... -i schema.sql [-i file ...]
// Values may also stand glued to their option (-Uuser, --codice=X). The head of the connection
// string is the first record of Connetti.txt in the program folder; the first line of output
// names the server. Each script runs only its part for that server and is refused when it has
// none. --crea creates the database (on PostgreSQL owned by the owner role), runs the scripts,
// writes the site's identity into Config and gives the archivists' group its rights; when a step
// fails the new database is removed. --help prints every option. Errors go to the error stream;
// the result is 0 when everything ran, else 1.

#include <QStringList>
#include <QTextStream>

int EseguiStrumentoSql(const QStringList& argomenti, QTextStream& uscita, QTextStream& errori);
