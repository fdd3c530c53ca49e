#include "frmToponimi.h"

#include "authorities/ucToponimo.h"

frmToponimi::frmToponimi(QWidget* genitore)
    : frmToponimi(DescrizioneFinestra(), new ucToponimo, genitore) {}

frmToponimi::frmToponimi(const Descrizione& descrizioneFinestra, ucToponimo* editoreFinestra,
                         QWidget* genitore)
    : FinestraPuntoAccesso(descrizioneFinestra, editoreFinestra, genitore)
    , fraToponimo(editoreFinestra) {}

frmToponimi::~frmToponimi() = default;

FinestraPuntoAccesso::Descrizione frmToponimi::DescrizioneFinestra() {
    return Descrizione{
        "frmToponimi",
        "Toponimi",
        "toponimo",
        "Toponimi",
        "ID_Toponimo",
        "Denominazione",
        "fraToponimo",
        "Toponimo",
        "Nuovo Toponimo",
        "Cancella Toponimo",
        "Cancella Toponimo: ",
        "Sei sicuro di voler cancellare il toponimo?",
        "frmMostraLinkTopALL",
        {{"cmdMostraLinks(0)", "Pergamene", "0"}, {"cmdMostraLinks(1)", "Inventari Base", "1"}},
    };
}
