#pragma once

// Module Import: takes in the data files that another site exported, table by table. Each
// table runs in one transaction of its own (its rows, its trigger switch, its key
// realignment): a failed table leaves the database exactly as it was before it.

#include <QString>
#include <QStringList>
#include <functional>

namespace Import {

// The tables done in the current run (NumeroTabelle is its size).
inline QStringList TabelleImportate;

// Told every few records while a table comes in: the records done so far.
using Avanzamento = std::function<void(qint64 lRecord)>;

// Imports one table from Sessione::sCartellaImport, with its schema from Sessione::sParam09,
// on Sessione::cnn. Failures are shown through MsgBox. True when the table was listed in
// TabelleImportate.
bool ImportaTabella(const QString& sTabella, const Avanzamento& avanzamento = {});

// The tables the schema folder offers, as frmImporta lists them (extension XML and "SCH" in
// the name, whatever the case; the name cut before the last "SCH" and trimmed).
QStringList TabelleOfferte(const QString& sCartellaSchemi);

// The closing message: the names joined, each followed by a line break.
QString ElencoTabelleImportate();

} // namespace Import
