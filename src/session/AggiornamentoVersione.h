#pragma once

// The comparison of the database's schema version with the application's, and the upgrade of
// the schema through tabellion-sql with alter.sql of the program folder: the program waits for
// the tool and tells the person whether the upgrade succeeded and, if not, the tool's reason.

#include <QString>
#include <QStringList>
#include <QVariant>

// True when Versione is Null or below the application's version read as a number.
bool VersioneDaAggiornare(const QVariant& versione, const QString& sVersioneApp);

// The version as the boxes show it: by Italian rules, "" for Null.
QString TestoVersione(const QVariant& versione);

// The gate of the start: asks, and on Yes runs the upgrade. True when the upgrade ran and
// succeeded; false when the answer was No or the upgrade failed (its box was shown).
bool CancelloVersione(const QVariant& versione);

// The upgrade tool and its arguments, with the session's login, server and database.
QString ProgrammaAggiornamento();
QStringList ArgomentiAggiornamento();
// The command line as a person would type it.
QString RigaComandoAggiornamento();
// Runs the upgrade to its end and shows its outcome: "Aggiornamento della versione del DB
// riuscito." with the version the database now holds, or "Aggiornamento della versione del DB
// non riuscito." with the tool's reason. True when it succeeded.
bool EseguiAggiornamento();
