#pragma once

// The producers' window, "Produttori": three tabs, persons, families and bodies, each with its
// list and, beside the lists, the editor of its kind. A row shows the producer's name and its
// dates (EstremiPersona, EstremiFamiglia, EstremiEnte). A new producer's row of Soggetti is
// made by the window with its kind (the database makes the kind's row); a delete removes the
// kind's row (the database removes the row of Soggetti). Besides New, Edit, Conferma, Annulla
// and Delete: the other names of the producer (cmdAltreDen) and the complessi linked to it
// (cmdMostraLinks).

#include "records/FinestraElenco.h"

class Connessione;
class EditoreProduttore;
class QPushButton;
class ucEnte;
class ucFamiglia;
class ucPersona;

class frmSoggetti : public FinestraElenco {
    Q_OBJECT
public:
    explicit frmSoggetti(QWidget* genitore = nullptr);
    ~frmSoggetti() override;

    // The tabs, in order.
    enum Scheda { Persone = 0, Famiglie = 1, Enti = 2 };

    // The statement that fills the list of a tab, in the order of the names.
    static QString SqlLista(const Connessione& connessione, int iScheda);

    ucPersona* fraPersona = nullptr;
    ucFamiglia* fraFamiglia = nullptr;
    ucEnte* fraEnte = nullptr;
    QPushButton* cmdNuovoSog = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;
    QPushButton* cmdAltreDen = nullptr;
    QPushButton* cmdMostraLinks = nullptr;

    // The handlers of the window's own commands, as their clicks run them.
    void cmdAltreDen_Click();
    void cmdMostraLinks_Click();

private:
    // The page of a kind: its tab, editor, row text and the kind's letter in Soggetti.
    PaginaElenco PaginaDi(Scheda scheda, EditoreProduttore* editore, const char* sNomeEditore);
    // The editor of the tab on show.
    EditoreProduttore* EditoreCorrente() const;
};
