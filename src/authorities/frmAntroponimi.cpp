#include "frmAntroponimi.h"

#include "authorities/ucAntroponimo.h"

frmAntroponimi::frmAntroponimi(QWidget* genitore)
    : frmAntroponimi(DescrizioneFinestra(), new ucAntroponimo, genitore) {}

frmAntroponimi::frmAntroponimi(const Descrizione& descrizioneFinestra,
                               ucAntroponimo* editoreFinestra, QWidget* genitore)
    : FinestraPuntoAccesso(descrizioneFinestra, editoreFinestra, genitore)
    , fraAntroponimo(editoreFinestra) {}

frmAntroponimi::~frmAntroponimi() = default;

FinestraPuntoAccesso::Descrizione frmAntroponimi::DescrizioneFinestra() {
    return Descrizione{
        "frmAntroponimi",
        "Persone",
        "antroponimo",
        "Antroponimi",
        "ID_Antroponimo",
        "Nome",
        "fraAntroponimo",
        "Persona",
        "Nuova Persona",
        "Cancella Persona",
        "Cancella Antroponimo: ",
        "Sei sicuro di voler cancellare l'antroponimo?",
        "frmMostraLinkAntALL",
        {{"cmdMostraLinks(0)", "Pergamene", "0"}, {"cmdMostraLinks(1)", "Inventari Base", "1"}},
    };
}
