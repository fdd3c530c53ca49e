#pragma once

#include <QSqlError>
#include <QString>

// What the server said, in its own words, without the driver's additions ("Unable to fetch
// row") or the server's context lines; the driver's text where the server said nothing.
QString TestoErrore(const QSqlError& errore);
