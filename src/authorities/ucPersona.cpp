#include "ucPersona.h"

#include "session/Utility.h"

ucPersona::ucPersona(QWidget* parent)
    : EditoreProduttore(Descrizione(), parent) {
    // A date of birth or death that is no date is refused, and the box keeps the focus.
    for (int n : {2, 3})
        ControllaAllUscita(Testo(n), &EditoreRecord::DataErrata, Uscita::Rifiuta);
}

EditoreProduttore::Tipo ucPersona::Descrizione() {
    return Tipo{
        "Persone",
        "ID_Persona",
        "PersoneDenominazioni",
        "CP",
        "ucPersona",
        "Attività",
        14,
        {
            {"Nome", Genere::Testo, 0, "Cognome e nome", 256, "Inserire nome e cognome", false},
            {"Titoli", Genere::Testo, 1, "Professione, titoli e qualifica", 32,
             "Inserire professione, titolo o qualifica", false},
            {"DataNascita", Genere::Data, 2, "Data nascita", 10, "", false},
            {"DataMorte", Genere::Data, 3, "Data morte", 10, "", false},
            {"AreaGeografica", Genere::Testo, 6, "Luoghi e/o aree geografiche", 64,
             "Inserire luogho e/o area geografica", false},
            {"Storia", Genere::Testo, 10, "Note biografiche", 1024, "", true},
            {"Note", Genere::Testo, 11, "Bibliografia e fonti", 1024, "", true},
            {"DataInizio", Genere::AnnoInizio, 7, "Anno inizio", 4, "Inserire anno inizio", false},
            {"DataFine", Genere::AnnoFine, 8, "Anno fine", 4, "", false},
            {"DescrizioneEstremi", Genere::Testo, 9, "Estremi cronologici (testo)", 64,
             "Inserire estremi cronologici (testo)", false},
            {"LuogoNascita", Genere::Testo, 4, "Luogo nascita", 32, "", false},
            {"LuogoMorte", Genere::Testo, 5, "Luogo morte", 32, "", false},
            {"NoteDirezione", Genere::Testo, 12, "Note gestionali", 1024, "", true},
        },
        {14, Pubblicato, DataRedazione, 12, 11, 10, 6, 5, 4, 3, 2, 8, 7, 9, 1, 0},
    };
}

QString ucPersona::LeggiEstremi() const {
    return EstremiPersona(Casella(4), Casella(5), Casella(2), Casella(3));
}
