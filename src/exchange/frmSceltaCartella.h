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

    // Dir1.Path: the folder whose subfolders Dir1 lists; setting it is Dir1's change.
    QString Percorso() const { return sPercorso; }
    void ImpostaPercorso(const QString& sNuovo);

private:
    void Dir1Change();
    void Dir1Click(QListWidgetItem* voce);
    void Dir1Apri(QListWidgetItem* voce);
    void cmdConfermaClick();
    void RiempiDir1();

    QLabel* Label1;
    QListWidget* Dir1;
    QLineEdit* Text1;
    QPushButton* cmdConferma;
    QPushButton* cmdAnnulla;
    QString sPercorso;
    Impostazioni impostazioni;
};
