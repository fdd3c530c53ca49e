#pragma once

// Module Export: one XML data file per table, the columns and their order taken from the
// table's schema file <table>Sch.xml. The file is streamed to a temporary name and renamed at
// the end, so memory stays flat whatever the rows and a failure leaves any earlier file as it
// was. The pure part (EsportaTabella with a connection and folders) shows no window: the
// command line calls it; the dialogs call the session form, which shows the boxes.

#include <QString>
#include <QStringList>
#include <functional>

class Connessione;

namespace Export {

// The processing instruction that heads every file the exchange writes, with the blanks around
// the equals sign of its version.
inline constexpr char DichiarazioneXml[] = "<?xml version = \"1.0\" encoding=\"UTF-8\"?>";

// The tables done in the current run, in order (NumeroTabelle is their count).
inline QStringList TabelleEsportate;
inline short NumeroTabelle = 0;

// Called at the start of a table (lRecord 0), every few rows and at the end with the rows
// written so far; a window repaints itself here.
using Progresso = std::function<void(const QString& sTabella, qint64 lRecord)>;

// What became of one table.
struct Esito {
    bool bEsportata = false; // the file is written (or the name was empty) and the table counts
    QString sTitolo;         // of the failure box: "Attenzione", or "" for the program's title
    QString sMessaggio;      // the failure's text, as the box shows it
    bool bCritico = false;   // the box has the critical icon (version mismatch)
    qint64 lRecord = 0;      // rows written
    QString sFile;           // the data file written
    QString sPercorso;       // the file the outcome is about: the schema file until the table
                             // is checked against it, then the data file
};

// The tables a schema folder offers, in the folder's order: files whose extension in upper case
// is XML and whose name holds "Sch" (case sensitive); the name before the last "Sch", trimmed.
QStringList TabelleDisponibili(const QString& sCartellaSchemi);

// Exports one table: reads <sCartellaSchemi>/<sTabella>Sch.xml and writes the data file it
// names into sCartellaDestinazione, with the site's own rows only (SitoScambio.h). A site
// without identity, or a table without the column Code, is refused. Never raises and never
// shows a box.
Esito EsportaTabella(const Connessione& cnn, const QString& sTabella,
                     const QString& sCartellaSchemi, const QString& sCartellaDestinazione,
                     const Progresso& progresso = {});

// The session form: cnn, sParam09 and sCartellaExport; a failure is shown through MsgBox; a
// table done is added to TabelleEsportate.
bool EsportaTabella(const QString& sTabella, const Progresso& progresso = {});

// A number as the platform turns it to text under Italian settings: comma decimal, no
// grouping, fifteen significant digits, ties away from zero, "E" before the exponent.
QString TestoNumero(double valore);

// The closing message's text: each name followed by carriage return and line feed.
QString ElencoTabelleEsportate();

} // namespace Export
