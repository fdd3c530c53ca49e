#pragma once

// The two maintenance procedures as the menus call them: the command text "SP_MakeBackup"
// followed directly by the setting of code 03, or "SP_Indicizza" followed by that of code 07.
// The setting brings its own leading blank and one argument in single quotes:
//   SP_MakeBackup '/percorso/copia'      (where the copy of the database goes)
//   SP_Indicizza 'italian'               (the language of the full-text index; may be empty)
// A text of another form is refused with Errore, as the server would refuse the statement.

#include <QString>

class Connessione;

struct Procedura {
    enum class Tipo { Backup, IndiceWeb };
    Tipo tipo;
    QString sArgomento;
};

// Reads a command text; raises Errore when it is not one of the two procedures.
Procedura LeggiProcedura(const QString& sComando);

// Runs the command on the session's connection, on a thread of its own with a connection
// opened there, and returns when it has ended; meanwhile the windows keep being painted.
// Raises Errore (in the caller's thread) when it fails.
void EseguiProcedura(const Connessione& connessione, const QString& sComando);
