#pragma once

// The choice of the import folder: a folder under sParam05, then frmImporta.

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

class frmScImporta : public QDialog {
    Q_OBJECT
public:
    explicit frmScImporta(QWidget* parent = nullptr);

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
};
