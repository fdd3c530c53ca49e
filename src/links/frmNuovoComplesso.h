#pragma once

// The link of a finding aid, a parchment or a unit of an analytical inventory to complessi
// documentari: the tree of institutes and complessi with their check boxes, the record in hand
// (TextI, sDenomInventario) and the complessi chosen (TextC). Who opened it (iChiamanteInv)
// gives the label of the record in hand and what Collega writes: rows of Links from each
// complesso chosen to lIdInventario (1, 2, 3), or the unit's one complesso in
// DatiInventariali.Id_ElemComplDoc when exactly one complesso was ever ticked (4). Institutes
// and complessi can be made and edited here; the complesso's editor hides its link buttons.
// The dialog closes with its outcome in iEsitoLinkCD (1 a link added).

#include "SelettoreComplessi.h"

class frmNuovoComplesso : public SelettoreComplessi {
    Q_OBJECT
public:
    explicit frmNuovoComplesso(QWidget* genitore = nullptr);
    ~frmNuovoComplesso() override;

    // The label of the record in hand for a caller (iChiamanteInv).
    static QString EtichettaDelChiamante(int iChiamante);

    // Called by the opener just before showing: TextC changes only through the ticks.
    void bLockSelCompl();

    QLabel* Label4 = nullptr;
    QLineEdit* TextI = nullptr;
    QPlainTextEdit* TextC = nullptr;

protected:
    bool Collega() override;
};
