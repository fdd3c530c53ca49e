#pragma once

#include <QString>

// The dates of a producer as they follow its name.
QString EstremiPersona(const QString& a, const QString& b, const QString& c, const QString& d);
QString EstremiEnte(const QString& sLuogo, const QString& sDate);
QString EstremiFamiglia(const QString& sLuogo, const QString& sDate);

#include <QList>
#include <QStringList>

class QWidget;

// The lines of a message: each text followed by carriage return and line feed ("" for none).
QString RigheMessaggio(const QStringList& righe);

// Locks the controls of a record editor: a multi-line text box stays enabled and becomes
// read-only (it can still be scrolled and read); a single-line text box, a combo, a check box
// and a date picker are disabled. Other controls are left as they are.
void BloccaControlli(const QList<QWidget*>& controlli);
// Undoes BloccaControlli: multi-line text boxes writable again, the others enabled.
void SbloccaControlli(const QList<QWidget*>& controlli);

// A folder that is about to be listed: raises the platform's error under the source given when
// it can't be, 76 "Impossibile trovare il percorso" when it is not there or is not a folder (an
// empty path names none), 75 "Errore di accesso al percorso/file" when it can't be read.
void ControllaCartella(const QString& sCartella, const QString& sSorgente);
