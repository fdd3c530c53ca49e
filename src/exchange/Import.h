#pragma once

// Module Import: takes in the data files that another site exported, table by table. Each
// table runs in one transaction of its own (its rows, its trigger switch, its key
// realignment): a failed table leaves the database exactly as it was before it.

#include <QString>
#include <QStringList>
#include <functional>

class Connessione;

namespace Import {

// The tables done in the current run (NumeroTabelle is its size).
inline QStringList TabelleImportate;

// Told every few records while a table comes in: the records done so far.
using Avanzamento = std::function<void(qint64 lRecord)>;

// What became of one table.
struct Esito {
    bool bImportata = false; // committed (or the name was empty)
    QString sTitolo;         // of the box: "Attenzione" for a refusal before anything was
                             // touched, "" (the program's title) for a failure rolled back
    QString sMessaggio;      // the words of the refusal or of the failure
    QString sPercorso;       // the file the outcome is about: the schema file, then the data file
    qint64 lRecord = 0;      // records taken in
};

// Imports one table: its schema <sCartellaSchemi>/<sTabella>Sch.xml, the data file the schema
// names in sCartellaDati, where the command log <sTabella>Sql.xml is written. Refused before
// anything is touched when the versions differ, when the receiving site has no identity, and
// when the file's code is the receiving site's own or the placeholder of a site without one
// (SitoScambio.h). Never raises and never shows a box.
Esito ImportaTabella(const Connessione& cnn, const QString& sTabella,
                     const QString& sCartellaSchemi, const QString& sCartellaDati,
                     const Avanzamento& avanzamento = {});

// The same on the session: Sessione::cnn, the schema from Sessione::sParam09, the data from
// Sessione::sCartellaImport. A table not imported shows its box (critical icon). True when the
// table was listed in TabelleImportate.
bool ImportaTabella(const QString& sTabella, const Avanzamento& avanzamento = {});

// The tables the schema folder offers, as frmImporta lists them (extension XML and "SCH" in
// the name, whatever the case; the name cut before the last "SCH" and trimmed).
QStringList TabelleOfferte(const QString& sCartellaSchemi);

// The closing message: the names joined, each followed by a line break.
QString ElencoTabelleImportate();

} // namespace Import
