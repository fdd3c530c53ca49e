#pragma once

// The window of the personal names, "Persone": the list of the names and their editor; the
// parchments and the inventory units that name a person are shown by frmMostraLinkAntALL.

#include "authorities/FinestraPuntoAccesso.h"

class ucAntroponimo;

class frmAntroponimi : public FinestraPuntoAccesso {
    Q_OBJECT
public:
    explicit frmAntroponimi(QWidget* genitore = nullptr);
    ~frmAntroponimi() override;

    ucAntroponimo* fraAntroponimo = nullptr;

private:
    frmAntroponimi(const Descrizione& descrizioneFinestra, ucAntroponimo* editoreFinestra,
                   QWidget* genitore);
    static Descrizione DescrizioneFinestra();
};
