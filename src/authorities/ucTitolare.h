#pragma once

// The record of a seal holder (Titolari): the name, functions or titles, notes and
// bibliography. Its links to seals (SGTitolari) keep it from being deleted.

#include "EditoreAccesso.h"

class ucTitolare : public EditoreAccesso {
    Q_OBJECT
public:
    explicit ucTitolare(QWidget* parent = nullptr);

    // Whether the holder is linked to seals.
    bool OkLinksSG = false;

private:
    static Tipo Descrizione(bool* pSG);
};
