#include "frmTitolari.h"

#include "authorities/ucTitolare.h"

frmTitolari::frmTitolari(QWidget* genitore)
    : frmTitolari(DescrizioneFinestra(), new ucTitolare, genitore) {}

frmTitolari::frmTitolari(const Descrizione& descrizioneFinestra, ucTitolare* editoreFinestra,
                         QWidget* genitore)
    : FinestraPuntoAccesso(descrizioneFinestra, editoreFinestra, genitore)
    , fraTitolare(editoreFinestra) {}

frmTitolari::~frmTitolari() = default;

FinestraPuntoAccesso::Descrizione frmTitolari::DescrizioneFinestra() {
    return Descrizione{
        "frmTitolari",
        "Titolari",
        "titolare",
        "Titolari",
        "ID_Titolare",
        "Nome",
        "fraTitolare",
        "Titolare",
        "Nuovo Titolare",
        "Cancella Titolare",
        "Cancella Titolare: ",
        "Sei sicuro di voler cancellare il titolare?",
        "frmMostraLinkTitSG",
        {{"cmdMostraLinks", "Sigilli", nullptr}},
    };
}
