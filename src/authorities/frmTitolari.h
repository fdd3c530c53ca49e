#pragma once

// The window of the seal holders, "Titolari": the list of the holders and their editor;
// the seals of a holder are shown by frmMostraLinkTitSG.

#include "authorities/FinestraPuntoAccesso.h"

class ucTitolare;

class frmTitolari : public FinestraPuntoAccesso {
    Q_OBJECT
public:
    explicit frmTitolari(QWidget* genitore = nullptr);
    ~frmTitolari() override;

    ucTitolare* fraTitolare = nullptr;

private:
    frmTitolari(const Descrizione& descrizioneFinestra, ucTitolare* editoreFinestra,
                QWidget* genitore);
    static Descrizione DescrizioneFinestra();
};
