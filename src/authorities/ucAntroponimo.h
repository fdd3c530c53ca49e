#pragma once

// The record of a personal name (Antroponimi): the name, its functions or titles and notes.
// Its links to parchments (PGAntroponimi) and to inventory units (DIAntroponimi) keep it from
// being deleted.

#include "EditoreAccesso.h"

class ucAntroponimo : public EditoreAccesso {
    Q_OBJECT
public:
    explicit ucAntroponimo(QWidget* parent = nullptr);

    // Whether the name is linked to parchments, and to inventory units.
    bool OkLinkPG = false;
    bool OkLinkDI = false;

private:
    static Tipo Descrizione(bool* pPG, bool* pDI);
};
