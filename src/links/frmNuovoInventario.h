#pragma once

// The link of a complesso documentario to finding aids: the mirror of frmNuovoComplesso, with
// the tree of institutes and finding aids, the complesso in hand in TextC (sDenomComplesso) and
// the finding aids chosen in TextI. Collega adds a row of Links from lIdComplesso to each
// finding aid chosen, unless the pair is there already; institutes and finding aids can be made
// and edited here. The dialog closes with its outcome in iEsitoLinkInv (1 a link added).

#include "SelettoreAlbero.h"

class ucInventario;

class frmNuovoInventario : public SelettoreAlbero {
    Q_OBJECT
public:
    explicit frmNuovoInventario(QWidget* genitore = nullptr);
    ~frmNuovoInventario() override;

    // Called by the opener just before showing: TextI changes only through the ticks.
    void bLockInvSet();
    // Shows the finding aid of the node last clicked.
    void MostraInventario();

    ucInventario* fraInventario = nullptr;
    QPushButton* cmdNuovoInv = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLineEdit* TextC = nullptr;
    QPlainTextEdit* TextI = nullptr;

protected:
    bool Collega() override;
    void CaricaAlbero(const QString& sOrdine) override;
    long IstitutoDellEditore(const TipoNodo& tipo) const override;
    void AssegnaIstituto(const TipoNodo& tipo, long lIdIstitutoScelto) override;
};
