#pragma once

// "Notazioni di cancelleria/archivistiche": the notations of the parchment whose key its opener
// left in the session value lIdPergamena, listed by their position in the order they were made,
// with the notation's editor beside the list. A new notation goes at the end of the list; a
// changed one keeps its place. Hosted modally (Dialoghi::Ospita); the Esc key closes it, and the
// opener looks at the notations again after it closes.

#include "records/FinestraElenco.h"

class QPushButton;
class ucPgNotazione;

class frmPgNotazioni : public FinestraElenco {
    Q_OBJECT
public:
    // Builds the window around its editor, then the Load: the editor's Init, the list of the
    // parchment's notations loaded and its first row shown.
    explicit frmPgNotazioni(QWidget* genitore = nullptr);
    ~frmPgNotazioni() override;

    ucPgNotazione* fraNotazione = nullptr;
    QPushButton* cmdNuovaNotazione = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;
};
