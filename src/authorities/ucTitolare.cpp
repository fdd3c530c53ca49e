#include "ucTitolare.h"

ucTitolare::ucTitolare(QWidget* parent)
    : EditoreAccesso(Descrizione(&OkLinksSG), parent) {}

EditoreAccesso::Tipo ucTitolare::Descrizione(bool* pSG) {
    return Tipo{
        "Titolari",
        "ID_Titolare",
        "ucTitolare",
        {
            {"Nome", "Nome", 128, "Inserire nome e cognome", false},
            {"Titoli", "Funzioni/Titoli", 256, "", false},
            {"Note", "Note", 1024, "", true},
            {"Bibliografia", "Bibliografia", 1024, "", true},
        },
        {{"SGTitolari", pSG}},
    };
}
