#pragma once

// The choice of the export folder: a folder under sParam04, then frmEsporta.

#include "frmSceltaCartella.h"

class frmScEsporta : public frmSceltaCartella {
public:
    explicit frmScEsporta(QWidget* parent = nullptr);
};
