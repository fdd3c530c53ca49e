#pragma once

// The window of an access point (personal names, place names, seal holders): one list of the
// entries by name and the entry's editor beside it, with New, Edit, Delete and the buttons of
// the viewers of its links. Each window describes itself once (Descrizione): its name and
// caption, the table, its key and its name column, the list's header, the captions and the
// delete's question, the viewer of the links and the buttons that open it. A row's text is the
// name alone; a new entry's row is made in the table with its name, within the site's key
// range. An entry with links cannot be deleted (the editor's OkCancella disables the command).
// A viewer of links may change them, yet the commands are not read again until the next
// display of an entry.

#include "records/FinestraElenco.h"

#include <QList>

class Connessione;
class EditoreAccesso;
class QPushButton;

class FinestraPuntoAccesso : public FinestraElenco {
    Q_OBJECT
public:
    ~FinestraPuntoAccesso() override;

    // The statement that fills the list, in the order of the names.
    QString SqlLista(const Connessione& connessione) const;

    QPushButton* cmdNuovoSog = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;
    // The buttons of the viewers of links, in the order of the editor's flags.
    QList<QPushButton*> cmdMostraLinks;

    // The click of a button of links: the session told the entry, and its viewer shown modally.
    void cmdMostraLinks_Click(int indice);

protected:
    // A button of the viewer of links.
    struct PulsanteLink {
        const char* sNome;       // "cmdMostraLinks(0)"
        const char* sDidascalia; // "Pergamene"
        const char* sTipoLink;   // the session's sTipoLink, nullptr: left as it is
    };
    struct Descrizione {
        const char* sNome;           // "frmAntroponimi"
        const char* sCaption;        // "Persone"
        const char* sTipo;           // "antroponimo"
        const char* sTabella;        // "Antroponimi"
        const char* sChiave;         // "ID_Antroponimo"
        const char* sColonnaNome;    // "Nome"
        const char* sNomeEditore;    // "fraAntroponimo"
        const char* sIntestazione;   // "Persona"
        const char* sNuovo;          // "Nuova Persona"
        const char* sCancella;       // "Cancella Persona"
        const char* sTitoloCancella; // "Cancella Antroponimo: "
        const char* sDomanda;        // "Sei sicuro di voler cancellare l'antroponimo?"
        const char* sVisualizzatore; // "frmMostraLinkAntALL"
        QList<PulsanteLink> pulsanti;
    };
    // Builds the window around its editor, then the Load: the editor's Init, the list loaded
    // and its first row shown.
    FinestraPuntoAccesso(const Descrizione& descrizione, EditoreAccesso* editore,
                         QWidget* genitore);

private:
    const Descrizione descrizione;
    EditoreAccesso* editore = nullptr;
};
