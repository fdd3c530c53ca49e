#pragma once

// The three dialogs that tie access points to a described object, each a check list of one
// list (DialogoSpunte) with the access point's editor beside it:
//
//   frmLinkAntroponimi  "Persone": persons to a parchment (iChiamanteAntroponimi 1, rows of
//                       PGAntroponimi) or to a unit (2, rows of DIAntroponimi); aSelAntroponimi
//   frmLinkToponimi     "Toponimi": places to a parchment (iChiamanteToponimi 1, PGToponimi) or
//                       to a unit (2, DIToponimi); aSelToponimi
//   frmLinkTitolari     "Titolari": holders to a seal (SGTitolari); aSelTitolari
//
// Each reads the served object's key in its own table from Sessione::lIdElementoLink and its
// heading from sDenomElementoLink. Every access point is listed, those tied to the object
// ticked, in bold and not untickable; Collega writes the ties that are missing (a tie that exists
// is left alone; the own keys of PGAntroponimi, DIAntroponimi and SGTitolari in the site's range
// of keys; Ruolo left Null), after reading that the object and every entry ticked are still
// there. A new access point is made on the spot through the editor (Nuova Persona, Nuovo
// Toponimo, Nuovo Titolare) and comes in the list unticked. When the dialog ends it closes, and
// its opener, the viewer's loop, shows a fresh viewer. Closing it clears bFrmAntroponimiAperto,
// bFrmToponimiAperto or bFrmTitolariAperto.

#include "DialogoSpunte.h"

#include <functional>

class Connessione;
class EditoreAccesso;
class ucAntroponimo;
class ucTitolare;
class ucToponimo;

// What differs between the three: the access points' table and the served object's ties.
struct DescrizionePuntoAccesso {
    const char* sNome;           // the form's name
    const char* sTitolo;         // its caption
    const char* sTipo;           // the kind while the editor is in hand
    const char* sIntestazione;   // the list's column
    const char* sNuovo;          // cmdNuovoSog's caption
    const char* sScelti;         // the label of the names chosen
    const char* sNomeEditore;    // the editor's frame
    const char* sTabella;        // the access points
    const char* sChiave;         // their key
    const char* sColonna;        // their name
    const char* sEtichetta;      // the label of the served object
    const char* sTabellaOggetto; // the served object's table
    const char* sChiaveOggetto;  // its key, the column of the ties
    const char* sTabellaLink;    // the ties
    const char* sChiaveLink;     // their own key, "" when none
};

class DialogoPuntoAccesso : public DialogoSpunte {
    Q_OBJECT
public:
    // The statement that reads the list in the order of the names (id, name, Checked), whose
    // one value is the served object's key.
    static QString SqlLista(const Connessione& connessione, const DescrizionePuntoAccesso& d);

    // The editor of the access points, in its frame.
    EditoreAccesso* Editore() const { return editore; }
    // 1 when Collega added a tie.
    int iEsito = 0;

    ~DialogoPuntoAccesso() override;

protected:
    // Takes the editor, made by the dialog of its kind.
    DialogoPuntoAccesso(const DescrizionePuntoAccesso& descrizione, EditoreAccesso* pannello,
                        QVector<long>* aSel, bool* bApertoForm, QWidget* genitore);

private:
    EditoreAccesso* editore = nullptr;
    bool* bAperto = nullptr;
};

class frmLinkAntroponimi : public DialogoPuntoAccesso {
    Q_OBJECT
public:
    // For the caller in Sessione::iChiamanteAntroponimi.
    explicit frmLinkAntroponimi(QWidget* genitore = nullptr);
    static DescrizionePuntoAccesso Descrizione(int iChiamante);

    void SetbLockSelAntr(bool bBlocca);
    ucAntroponimo* fraAntroponimo = nullptr;
    bool bLockSelAntr = false;
};

class frmLinkToponimi : public DialogoPuntoAccesso {
    Q_OBJECT
public:
    // For the caller in Sessione::iChiamanteToponimi.
    explicit frmLinkToponimi(QWidget* genitore = nullptr);
    static DescrizionePuntoAccesso Descrizione(int iChiamante);

    void SetbLockSelTopon(bool bBlocca);
    ucToponimo* fraToponimo = nullptr;
    bool bLockSelTopon = false;
};

class frmLinkTitolari : public DialogoPuntoAccesso {
    Q_OBJECT
public:
    explicit frmLinkTitolari(QWidget* genitore = nullptr);
    static DescrizionePuntoAccesso Descrizione();

    void SetbLockSelTitol(bool bBlocca);
    ucTitolare* fraTitolare = nullptr;
    bool bLockSelTitol = false;
    // Written once before the dialog is shown: the holders' viewer was reached from the seal.
    // It passes through unchanged to the viewer shown afterwards.
    bool bFromSigilli = false;
};
