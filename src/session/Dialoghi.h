#pragma once

// The modal dialogs of the program by name. A record or a window opens a dialog by its name,
// so that its button exists before the dialog does and a test may stand in for the dialog. The
// dialogs are registered in one place above the subsystems (programma/Registro.h).
//
// The opener fills the session values that the dialog reads and reads back its outcome there
// (Sessione.h); the arguments carry only what belongs to the dialog itself, by the names of
// its members (e.g. "bInventarioBase").

#include <QString>
#include <QVariantMap>
#include <functional>

class QDialog;
class QWidget;

namespace Dialoghi {

// What the opener hands to the dialog, by the names of the dialog's members.
using Argomenti = QVariantMap;
// Makes the dialog, child of genitore, ready to be shown modally, given the arguments.
using Fabbrica = std::function<QDialog*(QWidget* genitore, const Argomenti& argomenti)>;

// Registers the maker under the name, in place of any other.
void Registra(const QString& sNome, Fabbrica fabbrica);
// Registers the maker unless the name is taken already (by a test's stand-in).
void RegistraPredefinito(const QString& sNome, Fabbrica fabbrica);
void Rimuovi(const QString& sNome);
bool Registrato(const QString& sNome);

// Makes the dialog of that name, shows it modally (exec) and deletes it once it is closed;
// true when a dialog was shown. A dialog without an objectName takes the name. When no dialog
// has that name (or its maker gives none) nothing visible happens and the answer is false. An
// error raised while the dialog is made reaches the caller.
//
// Going on: a dialog that, as it closes, leaves in its dynamic property "Prosegui" the name of
// another dialog (and in "ArgomentiProsegui" what to hand it) asks its opener to go on there.
// Apri then opens that dialog modally and, when it ends, a fresh dialog of the first name with
// the same arguments, and so on, until the first dialog closes without asking to go on; only
// then does Apri come back, so that the opener reads the outcome and refreshes once. A dialog
// gone on to that has no maker ends the road there, with nothing visible.
bool Apri(const QString& sNome, QWidget* genitore, const Argomenti& argomenti = {});

// Hosts a window in a modal dialog, child of genitore, which closes with it and takes its
// caption; the dialog is named after the window followed by "Dialogo" and returned for its
// exec(). A window given a size of its own gives it to the dialog; any other opens at
// DimensioneComoda.
QDialog* Ospita(QWidget* finestra, QWidget* genitore);

// Sizes a dialog with a tree or a list beside a record's editor so that both read without
// scrolling: at least 1000 by 680 pixels (its layout's own size when larger), never past nine
// tenths of its screen.
void DimensioneComoda(QWidget* dialogo);

// The names of the two dynamic properties of going on.
inline constexpr const char* ProprietaProsegui = "Prosegui";
inline constexpr const char* ProprietaArgomentiProsegui = "ArgomentiProsegui";

} // namespace Dialoghi
