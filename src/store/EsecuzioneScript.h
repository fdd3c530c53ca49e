#pragma once

// SQL scripts: the schema of a new database, the upgrade of an old one. A script is split into
// its statements (quotes, comments, dollar-quoted bodies and trigger bodies kept whole; a line
// "GO" also ends a statement) and run in order.

#include <QList>
#include <QString>

class Connessione;

struct IstruzioneScript {
    QString sTesto;
    int iRiga = 0; // line of the script where the statement begins
};

QList<IstruzioneScript> DividiScript(const QString& sScript);

// A script may hold parts for one server only: a line "-- Server: <name>" (the name as the
// backend describes itself: "SQLite", "PostgreSQL") begins a part that runs only on that
// server, up to the next such line; what stands before the first one runs everywhere. The
// script as one server runs it: the other servers' parts become empty lines, so that every
// statement keeps its line number. Raises Errore, naming the file, when the script has parts
// and none of its statements is for sServer.
QString ScriptDelServer(const QString& sScript, const QString& sServer, const QString& sNomeFile);

// Runs the statements of the connection's server (ScriptDelServer) in order, all in one transaction
// unless the script manages its own; at the first failure the transaction is rolled back and Errore
// tells the file, the line and the server's words. Returns the number of statements run.
int EseguiScript(const Connessione& connessione, const QString& sScript, const QString& sNomeFile);
