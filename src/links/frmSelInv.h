#pragma once

// The choice of the base finding aid in which to tie a seal and a parchment. In mode 0 a
// parchment is in hand and the list holds the base finding aids that have seals; in mode 1 a
// seal is in hand and the list holds those that have parchments. cmdCollega opens, over the
// finding aid chosen, the tree picker frmNuovoSigPg for the other kind, and closes with its
// outcome: bOkLink (and Sessione::bOkLinkSelInv) true when a link was made. Its unload clears
// bFrmToponimiAperto, as it always did.

#include <QDialog>

class ModelloElenco;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

class frmSelInv : public QDialog {
    Q_OBJECT
public:
    explicit frmSelInv(QWidget* genitore = nullptr);
    ~frmSelInv() override;

    // Keeps the record in hand (its element and description) and fills the list: false when
    // there is nothing to choose (the opener then does not open the window). Otherwise the
    // first finding aid is chosen.
    bool bInit(int iMode, long lIdEleLink, const QString& sDescLink);

    // The click on a row of the list: its finding aid is the one chosen.
    void ItemClick(int iRiga);
    void cmdCollega_Click();

    bool bOkLink = false;
    int iMode = 0;
    long lIdEleLink = 0;
    QString sDescLink;
    // The element of the finding aid chosen (0 none).
    long lIdInventarioScelto = 0;

    QTreeView* lvwDB = nullptr;
    ModelloElenco* modello = nullptr;
    QLabel* Label1[2] = {nullptr, nullptr};
    QLineEdit* Text1[2] = {nullptr, nullptr};
    QPushButton* cmdCollega = nullptr;
    QPushButton* cmdAnnulla = nullptr;
};
