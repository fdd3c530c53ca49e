#pragma once

#include "Caricamento.h"
#include "LetturaTesto.h"

#include <memory>

// PostgreSQL's own bulk path: the rows travel in COPY's text form on the connection that
// Qt's driver holds, a batch per savepoint. A refused batch is run again as inserts, row by
// row, to name the row the server refuses. Where the driver gives no handle of its own, the
// portable path serves.
std::unique_ptr<Caricamento> ApriCaricamentoPostgreSQL(const QSqlDatabase& db,
                                                       const QString& sTabella,
                                                       const QStringList& colonne);

// A table read by COPY ... TO STDOUT on the driver's connection, a row at a time. Null where
// the driver gives no handle of its own or a column's type has no text form the program
// reads. Raises Errore with the server's words when the table cannot be read.
std::unique_ptr<LetturaTesto> ApriLetturaPostgreSQL(const QSqlDatabase& db,
                                                    const QString& sTabella);
