#pragma once

#include <QString>

// The dates of a producer as they follow its name.
QString EstremiPersona(const QString& a, const QString& b, const QString& c, const QString& d);
QString EstremiEnte(const QString& sLuogo, const QString& sDate);
QString EstremiFamiglia(const QString& sLuogo, const QString& sDate);
