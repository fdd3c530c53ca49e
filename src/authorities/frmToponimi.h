#pragma once

// The window of the place names, "Toponimi": the list of the places and their editor; the
// parchments and the inventory units that name a place are shown by frmMostraLinkTopALL.

#include "authorities/FinestraPuntoAccesso.h"

class ucToponimo;

class frmToponimi : public FinestraPuntoAccesso {
    Q_OBJECT
public:
    explicit frmToponimi(QWidget* genitore = nullptr);
    ~frmToponimi() override;

    ucToponimo* fraToponimo = nullptr;

private:
    frmToponimi(const Descrizione& descrizioneFinestra, ucToponimo* editoreFinestra,
                QWidget* genitore);
    static Descrizione DescrizioneFinestra();
};
