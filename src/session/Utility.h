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
