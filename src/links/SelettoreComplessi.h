#pragma once

// The tree picker of complessi documentari: the tree of institutes and complessi, the panes
// fraIstituto and fraComplesso that show the node clicked, and cmdNuovoCD that makes a new
// complesso on the spot (the complesso's editor hides its link buttons). It is the left part of
// the dialogs that tie something to complessi, which add what they write.

#include "SelettoreAlbero.h"
#include "records/ucComplesso.h"

class SelettoreComplessi : public SelettoreAlbero, public ChiamanteComplesso {
    Q_OBJECT
public:
    // sNuovoCD: the caption of cmdNuovoCD.
    SelettoreComplessi(const QString& sNome, const Caselle& caselle, const QString& sNuovoCD,
                       QWidget* genitore = nullptr);
    ~SelettoreComplessi() override;

    // Shows the complesso of the node last clicked.
    void MostraComplesso();

    // ChiamanteComplesso
    QString GetDenon() override;
    void ChkSogg() override;
    void ChkLinks() override;

    ucComplesso* fraComplesso = nullptr;
    QPushButton* cmdNuovoCD = nullptr;

    static const QString TagComplesso;

protected:
    // The Load's end, once the dialog has put its own parts: the editors' Init, the complesso's
    // without its link buttons, then the tree.
    void Carica();
    void CaricaAlbero(const QString& sOrdine) override;
    long IstitutoDellEditore(const TipoNodo& tipo) const override;
    void AssegnaIstituto(const TipoNodo& tipo, long lIdIstitutoScelto) override;
    void NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) override;
};
