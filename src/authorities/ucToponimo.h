#pragma once

// The record of a place name (Toponimi): its one field. Its links to parchments (PGToponimi)
// and to inventory units (DIToponimi) keep it from being deleted.

#include "EditoreAccesso.h"

class ucToponimo : public EditoreAccesso {
    Q_OBJECT
public:
    explicit ucToponimo(QWidget* parent = nullptr);

    // Whether the place is linked to parchments, and to inventory units.
    bool OkLinkPG = false;
    bool OkLinkDI = false;

private:
    static Tipo Descrizione(bool* pPG, bool* pDI);
};
