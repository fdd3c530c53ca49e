#pragma once

// The window of institutes and their strumenti di ricerca (finding aids): the tree of both
// kinds on the left, in one order only, on the right the institute's editor fraIstituto and the
// finding aid's editor fraInventario, of which at most one is visible. Its two kinds are
// described to the structure window, which runs New, Edit, Conferma, Annulla and Delete; it
// adds the other names of a finding aid (cmdAltreDen), the complessi linked to it
// (cmdMostraLinks) and its analytical inventory (cmdInvAnalitico), whose kind the first click
// fixes in Inventari.TipoInv. A right click on a finding aid offers in a popup its analytical
// inventory, its parchments and its detached seals.

#include "FinestraStruttura.h"

class QPushButton;
class ucInventario;
class ucIstituto;

class frmStrutturaIN : public FinestraStruttura {
    Q_OBJECT
public:
    explicit frmStrutturaIN(QWidget* genitore = nullptr);
    ~frmStrutturaIN() override;

    // Show the record of the node last clicked: an institute (the root as an empty one), a
    // finding aid.
    void MostraIstituto();
    void MostraInventario();

    // The two groups of the tree: institutes, then finding aids ("silink" when linked to a
    // complesso), brothers in the Italian order of their names.
    static QList<GruppoAlbero> Gruppi();

    // The warning of an analytical inventory asked for a finding aid without complessi.
    static QString AvvisoNessunComplesso() {
        return QStringLiteral(
            "Attezione! Nessun complesso documentario legato a questo inventario!");
    }

    // ID_Istituto read from the editor shown.
    long lIdIstituto = 0;

    ucIstituto* fraIstituto = nullptr;
    ucInventario* fraInventario = nullptr;
    QPushButton* cmdNuovoIst = nullptr;
    QPushButton* cmdNuovoInv = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;
    QPushButton* cmdAltreDen = nullptr;
    QPushButton* cmdMostraLinks = nullptr;
    // Its dynamic property "Tag" holds the state of the analytical inventory shown ("0" none).
    QPushButton* cmdInvAnalitico = nullptr;

    // The handlers of the window's own commands, as their clicks run them.
    void cmdAltreDen_Click();
    void cmdMostraLinks_Click();
    void cmdInvAnalitico_Click();

    // The popup of a right click on a finding aid's node: its analytical inventory (as
    // cmdInvAnalitico), its parchments, its detached seals.
    static const QStringList& VociStrumento();
    // The entry chosen in that popup (1 for the first).
    void MenuStrumento(int iVoce);
    // The parchments and seals of the finding aid shown, in their window in that mode (0 the
    // parchments, 1 the detached seals), modally; back here the finding aid is shown again.
    void ApriPergameneESigilli(long lModo);

protected:
    void CaricaAlbero(const QString& sOrdine) override;
    void DopoMostra(const TipoNodo& tipo) override;
    void DopoPulsanti(const TipoNodo& tipo) override;
    void PreparaEditore(const TipoNodo& tipo) override;

private:
    // Writes the kind of analytical inventory into Inventari.TipoInv of the finding aid shown;
    // false, after the box, when the database refuses it.
    bool ScriviTipoInv(const QString& sTipoInv);
};
