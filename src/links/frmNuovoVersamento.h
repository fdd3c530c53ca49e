#pragma once

// The dialog in which one row of a versamento is written: on the left the tree of institutes
// and complessi, on which the one complesso that the row feeds is ticked (a second tick unticks
// the first), with its panes and cmdNuovoCD for a complesso made on the spot; on the right
// fraVersamento, the row itself. It reads the act (lIdVersamento) and the row (lIdRigaVersamento,
// 0 for a new one) from the session. A new row starts with the tree open at the act's institute;
// a row written before starts with its complesso ticked, the tree open down to it. cmdCollega
// checks the row's mandatory fields, then the choice, and writes the row with its complesso in
// one transaction: only when it went through does lIdRigaVersamento take the row's id and the
// dialog close. cmdAnnullaCol and Escape close it with nothing written.

#include "SelettoreComplessi.h"

class ucRigaVersamento;

class frmNuovoVersamento : public SelettoreComplessi {
    Q_OBJECT
public:
    explicit frmNuovoVersamento(QWidget* genitore = nullptr);
    ~frmNuovoVersamento() override;

    ucRigaVersamento* fraVersamento = nullptr;
    // The state of the row, beside the tree's: "nuovo" or "modifica".
    QString sStatoRiga;

protected:
    bool Collega() override;

private:
    void Attiva();
};
