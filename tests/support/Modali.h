#pragma once

// Acting on modal windows from a test: the action runs inside the window's own event loop as
// soon as the window named is up.

#include <QString>
#include <QWidget>
#include <functional>

class CartellaProva;
class BancaDatiProva;
class PrimoMDI;

// Runs the action once, on the first modal window with that objectName that comes up within
// the time given.
void AlComparire(const QString& sNome, std::function<void(QWidget*)> azione,
                 int iMillisecondi = 20000);

// A child control by objectName, or a failed QVERIFY-style abort when absent.
template <typename T> T* Controllo(const QWidget* finestra, const QString& sNome) {
    T* controllo = finestra->findChild<T*>(sNome);
    if (controllo == nullptr) {
        qFatal("control %s not found in %s", qPrintable(sNome), qPrintable(finestra->objectName()));
    }
    return controllo;
}

// Fills the login dialog and presses Avanti.
void CompilaLogin(QWidget* login, const QString& sUtente, const QString& sPassword);

// Shows the main form, logs in with the test database's login and waits for the road of the
// start to end. True when the session is open.
bool AvviaSessione(PrimoMDI& principale, const BancaDatiProva& banca);
// The same with another login of the server.
bool AvviaSessione(PrimoMDI& principale, const QString& sUtente, const QString& sPassword);
