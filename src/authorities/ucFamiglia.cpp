#include "ucFamiglia.h"

#include "session/Utility.h"

ucFamiglia::ucFamiglia(QWidget* parent)
    : EditoreProduttore(Descrizione(), parent) {}

EditoreProduttore::Tipo ucFamiglia::Descrizione() {
    return Tipo{
        "Famiglie",
        "ID_Famiglia",
        "FamiglieDenominazioni",
        "CF",
        "ucFamiglia",
        "Esistenza",
        10,
        {
            {"Nome", Genere::Testo, 0, "Denominazione", 256, "Inserire denominazione", false},
            {"Titoli", Genere::Testo, 1, "Titoli", 32, "", false},
            {"Persone", Genere::SoloLettura, -1000, "", 0, "", false},
            {"DataInizio", Genere::AnnoInizio, 2, "Anno inizio", 4, "Inserire anno inizio", false},
            {"DataFine", Genere::AnnoFine, 3, "Anno fine", 4, "", false},
            {"DescrizioneEstremi", Genere::Testo, 4, "Estremi cronologici (testo)", 64,
             "Inserire estremi cronologici (testo)", false},
            {"AreaGeografica", Genere::Testo, 5, "Luoghi e/o aree geografiche", 64,
             "Inserire luogo e/o area geografica", false},
            {"Storia", Genere::Testo, 6, "Storia", 1024, "", true},
            {"Note", Genere::Testo, 7, "Bibliografia e fonti", 1024, "", true},
            {"NoteDirezione", Genere::Testo, 8, "Note gestionali", 1024, "", true},
        },
        {10, Pubblicato, DataRedazione, 8, 7, 6, 5, 3, 2, 4, 1, 0},
    };
}

QString ucFamiglia::LeggiEstremi() const {
    return EstremiFamiglia(Casella(1), Casella(4));
}
