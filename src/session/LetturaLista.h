#pragma once

// The list-reading input of the program folder's text files: a comma or a line end ends a
// record, blanks before a record are skipped, and double quotes around a record are removed
// (so a value that holds a comma must stand in double quotes, or it is cut at the comma).

#include <QByteArray>
#include <QString>
#include <QStringList>

// The records of the file, in file order. A missing or unreadable file raises Errore with the
// given source and the path in the description.
QStringList LeggiLista(const QString& sPercorso, const QString& sSorgente);

// The records of a text already in memory (UTF-8, or Windows Latin-1 where not valid UTF-8).
QStringList LeggiListaDaTesto(const QByteArray& contenuto);
