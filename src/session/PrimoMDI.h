#pragma once

// The main form: a frame in which every window of the program opens, with the menus, the rule
// that one main child window is open at a time, and the help books.

#include <QMainWindow>
#include <QStringList>
#include <functional>

class QAction;
class QMdiArea;
class QMdiSubWindow;
class QMenu;

class PrimoMDI : public QMainWindow {
    Q_OBJECT
public:
    // The forms were drawn in twips: fifteen to a pixel on the screens they were drawn for.
    static constexpr int TwipPerPixel = 15;

    explicit PrimoMDI(QWidget* parent = nullptr);
    ~PrimoMDI() override;

    // Closes every main child window of the list, without a word, and clears its open flag.
    void Scarica();

    QMdiArea* Area() const { return mdiArea; }
    // The path of help book n (1 to 6), as Menu.txt gives it.
    QString PercorsoGuida(int n) const;

    // How the main child windows that the menu entries open are made, by name (the dialogs of
    // the menus are the registry of dialogs' own, Dialoghi): the program's windows are
    // registered in one place above the subsystems (programma/Registro.h), before the main form
    // opens. An entry whose window is not registered opens nothing.
    using Fabbrica = std::function<QWidget*(PrimoMDI*)>;
    static void RegistraFinestra(const QString& sNome, Fabbrica fabbrica);
    // The program's own windows: registered unless another window already has that name (so
    // that a test may stand in for one).
    static void RegistraPredefinita(const QString& sNome, Fabbrica fabbrica);
    static void RimuoviFinestra(const QString& sNome);

    // The one main form of the process, while it lives.
    static PrimoMDI* Istanza();

    // Shows a widget as a child window of the frame.
    QMdiSubWindow* MostraFiglia(QWidget* finestra);

protected:
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private Q_SLOTS:
    void Form_Activate();
    void mnuAggiorna_Click();
    void mnuFine_Click();

private:
    struct VoceFiglia;
    void CreaMenu();
    QAction* Voce(QMenu* menu, const char* nome, const QString& sDidascalia);
    QAction* VoceBarra(const char* nome, const QString& sDidascalia);
    void ApriFiglia(const VoceFiglia& voce);
    void ApriModale(const QString& sNome);
    // Runs the opening of a window; an error of it is shown in the box "Errore T5" (its source
    // and description) and gives false.
    bool AperturaProtetta(const QString& sNome, const std::function<void()>& apertura);
    void LeggiMenu();
    void Guida(int n);

    QMdiArea* mdiArea;
    bool bPrimaAttivazione = true;
    QStringList asGuide;
};
