#pragma once

// The choice of a folder for the exchange: a folder under a root the site's settings give
// (code 04 for export, 05 for import), then the dialog of the tables. Export and import differ
// only in their texts, their root, where the choice goes and the codes of their error boxes.

#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

// A folder of the exchange that is about to be listed: raises the platform's error with the
// source given when it can't be, 76 "Impossibile trovare il percorso" when it is not there or
// is not a folder, 75 "Errore di accesso al percorso/file" when it can't be read.
void ControllaCartellaScambio(const QString& sCartella, const QString& sSorgente);

class frmSceltaCartella : public QDialog {
    Q_OBJECT
public:
    struct Impostazioni {
        QString sNome;          // the dialog's name
        QString sTitolo;        // its caption
        QString sEtichetta;     // the caption above the folder
        const QString* sRadice; // the session value of the root folder
        QString* sScelta;       // the session value that takes the chosen folder
        QString sErrore;        // the title of the error boxes, without its digit ("Errore J")
        std::function<void(QWidget*)> apriTabelle; // the next dialog, on the same parent
    };

    frmSceltaCartella(Impostazioni impostazioni, QWidget* parent);

    // A site without its own code exchanges nothing: the dialog first reads Config on the
    // session's connection, and for a site still holding the placeholder code lists no folder
    // and does not come up: exec shows a critical box that says how the site's identity is
    // given, and gives back Rejected.
    int exec() override;

    // Dir1.Path: the folder whose subfolders Dir1 lists; setting it is Dir1's change. A path
    // out of the root gives the root. Raises Errore when the folder can't be listed, and then
    // Dir1, its path and Text1 stay as they were.
    QString Percorso() const { return sPercorso; }
    void ImpostaPercorso(const QString& sNuovo);

private:
    // A failure shows the box of its place: 1 when an entry is opened (Dir1's change), 2 at
    // load, 3 on a click on an entry.
    void Dir1Change();
    void Dir1Click(QListWidgetItem* voce);
    void Dir1Apri(QListWidgetItem* voce);
    void cmdConfermaClick();
    void RiempiDir1(const QString& sCartella);

    QLabel* Label1;
    QListWidget* Dir1;
    QLineEdit* Text1;
    QPushButton* cmdConferma;
    QPushButton* cmdAnnulla;
    QString sPercorso;
    Impostazioni impostazioni;
    QString sRifiuto; // why the site may not exchange, "" when it may
};
