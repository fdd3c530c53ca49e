#include "ucAntroponimo.h"

ucAntroponimo::ucAntroponimo(QWidget* parent)
    : EditoreAccesso(Descrizione(&OkLinkPG, &OkLinkDI), parent) {}

EditoreAccesso::Tipo ucAntroponimo::Descrizione(bool* pPG, bool* pDI) {
    return Tipo{
        "Antroponimi",
        "ID_Antroponimo",
        "ucAntroponimo",
        {
            {"Nome", "Denominazione", 128, "Inserire nome e cognome", false},
            {"Titoli", "Funzioni/Titoli", 256, "", true},
            {"Note", "Note", 512, "", true},
        },
        {{"PGAntroponimi", pPG}, {"DIAntroponimi", pDI}},
    };
}
