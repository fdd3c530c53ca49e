#include "ucToponimo.h"

ucToponimo::ucToponimo(QWidget* parent)
    : EditoreAccesso(Descrizione(&OkLinkPG, &OkLinkDI), parent) {}

EditoreAccesso::Tipo ucToponimo::Descrizione(bool* pPG, bool* pDI) {
    return Tipo{
        "Toponimi",
        "ID_Toponimo",
        "ucToponimo",
        {
            {"Denominazione", "Toponimo", 64, "Inserire toponimo", false},
        },
        {{"PGToponimi", pPG}, {"DIToponimi", pDI}},
    };
}
