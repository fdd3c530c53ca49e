#pragma once

// "Collegamenti ai Soggetti produttori": ties one complesso documentario, or one unit of an
// analytical inventory (Sessione::sTipoLink "1"), to producers. Three tabs, persons, families
// and bodies, each with every producer of its kind, ticked and in bold when linked already; the
// record of the chosen producer in the kind's editor; a new producer made on the spot; cmdCollega
// writes the rows of ComplessiDocSoggetti or DatiInventarialiSoggetti that are missing. It reads
// the session's lIdComplesso or lIdDatoInventariale, sDenomComplesso and iTipoSogg (the tab to
// show first), and leaves aSelSoggetti, iEsitoLinkSogg, and iTipoSogg when the links are given
// up. When it ends it closes: its opener goes on.

#include "DialogoSpunte.h"

class Connessione;
class ucEnte;
class ucFamiglia;
class ucPersona;

class frmNuovoSoggetto : public DialogoSpunte {
    Q_OBJECT
public:
    explicit frmNuovoSoggetto(QWidget* genitore = nullptr);
    ~frmNuovoSoggetto() override;

    // The statement that reads the list of a tab in the order of the names, with Checked for
    // the served object (a unit when bUnita, a complesso otherwise): id, name, the kind's
    // columns, Checked. Its values: the served element's id and the kind's letter.
    static QString SqlLista(const Connessione& connessione, int iScheda, bool bUnita);
    static QVariantList ValoriLista(int iScheda, long lIdElemento);

    // Written by the opener as it opens the dialog: the names chosen change only through the
    // ticks.
    void SetbLockSelSogg(bool bBlocca);
    bool bLockSelSogg = false;

    ucPersona* fraPersona = nullptr;
    ucFamiglia* fraFamiglia = nullptr;
    ucEnte* fraEnte = nullptr;
};
