#pragma once

// The choice of the import folder: a folder under sParam05, then frmImporta.

#include "frmSceltaCartella.h"

class frmScImporta : public frmSceltaCartella {
public:
    explicit frmScImporta(QWidget* parent = nullptr);
};
