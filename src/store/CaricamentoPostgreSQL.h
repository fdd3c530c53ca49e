#pragma once

#include "Caricamento.h"

// PostgreSQL's own bulk path: the rows travel in COPY's text form on the connection that
// Qt's driver holds, a batch per savepoint. A refused batch is run again as inserts, row by
// row, to name the row the server refuses. Where the driver gives no handle of its own, the
// portable path serves.
std::unique_ptr<Caricamento> ApriCaricamentoPostgreSQL(const QSqlDatabase& db,
                                                       const QString& sTabella,
                                                       const QStringList& colonne);
