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

// Runs the statements in order, all in one transaction unless the script manages its own;
// at the first failure the transaction is rolled back and Errore tells the file, the line and
// the server's words. Returns the number of statements run.
int EseguiScript(const Connessione& connessione, const QString& sScript, const QString& sNomeFile);
