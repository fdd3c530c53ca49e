#pragma once

// tabellion-sql: runs an SQL script on a site's database under the user's login, the way the
// schema upgrade asks for it:
//   tabellion-sql -U user -P password -S server -d database -i file [-i file ...] [--crea]
// Values may also stand glued to their option (-Uuser). The head of the connection string is
// the first record of Connetti.txt in the program folder. --crea first creates the database.
// Errors go to the error stream; the result is 0 when every script ran, else non-zero.

#include <QStringList>
#include <QTextStream>

int EseguiStrumentoSql(const QStringList& argomenti, QTextStream& uscita, QTextStream& errori);
