#pragma once

// The comparison of the database's schema version with the application's, and the offer to
// upgrade the schema through tabellion-sql with alter.sql of the program folder.

#include <QString>
#include <QStringList>
#include <QVariant>

// True when Versione is Null or below the application's version read as a number.
bool VersioneDaAggiornare(const QVariant& versione, const QString& sVersioneApp);

// The version as the boxes show it: by Italian rules, "" for Null.
QString TestoVersione(const QVariant& versione);

// The gate of the start: asks, and on Yes starts the upgrade. Returns the process number, or 0
// when the answer was No or the tool did not start.
qint64 CancelloVersione(const QVariant& versione);

// The upgrade tool and its arguments, with the session's login, server and database.
QString ProgrammaAggiornamento();
QStringList ArgomentiAggiornamento();
// The command line as a person would type it.
QString RigaComandoAggiornamento();
// Starts the upgrade and returns at once.
qint64 AvviaAggiornamento();
