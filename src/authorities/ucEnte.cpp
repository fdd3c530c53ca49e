#include "ucEnte.h"

#include "session/Utility.h"

ucEnte::ucEnte(QWidget* parent)
    : EditoreProduttore(Descrizione(), parent) {}

EditoreProduttore::Tipo ucEnte::Descrizione() {
    return Tipo{
        "Enti",
        "ID_Ente",
        "EntiDenominazioni",
        "CC",
        "ucEnte",
        "Attività",
        12,
        {
            {"Denominazione", Genere::Testo, 0, "Denominazione", 256, "Inserire denominazione",
             false},
            {"AreaGeografica", Genere::Testo, 5, "Ambito geografico di competenza", 64, "", false},
            {"NaturaGiuridica", Genere::SoloLettura, -1000, "", 0, "", false},
            {"Storia", Genere::Testo, 8, "Storia, mandato, funzioni e struttura", 1024, "", true},
            {"Note", Genere::Testo, 9, "Bibliografia", 1024, "", true},
            {"DataInizio", Genere::AnnoInizio, 2, "Anno inizio", 4, "Inserire anno inizio", false},
            {"DataFine", Genere::AnnoFine, 3, "Anno fine", 4, "", false},
            {"DescrizioneEstremi", Genere::Testo, 4, "Estremi cronologici (testo)", 64,
             "Inserire estremi cronologici (testo)", false},
            {"Sede", Genere::Testo, 1, "Sede", 64, "Inserire sede", false},
            // The profile's place on the form is after Text1(5).
            {"Profilo", Genere::Profilo, 6, "Profili istituzionali", 0,
             "Specificare un profilo istituzionale", false},
            {"NoteDirezione", Genere::Testo, 10, "Note gestionali", 1024, "", true},
        },
        {12, Pubblicato, DataRedazione, 10, 9, 8, 5, 1, 6, 3, 2, 4, 0},
    };
}

QString ucEnte::LeggiEstremi() const {
    return EstremiEnte(Casella(1), Casella(4));
}

int ucEnte::CercaProfiloEnte(const QString& sCodice) const {
    return CercaIndice(Profili(), sCodice);
}
