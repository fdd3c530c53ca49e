#pragma once

// The window of the parchments and seals of one finding aid (Sessione::lIdInventario), in one
// of two modes (Sessione::lModoStrutturaPG), both read when it is made: 0 "Pergamene", whose
// tree shows parchments and the seals on them and makes both; 1 "Sigilli staccati", which
// makes only seals and shows every element of the tree with a seal's image. The root of its
// tree is the finding aid itself, and below it hang the parchments and seals of the finding
// aid, each by its own parent. On the right the three editors, of which at most one is
// visible: fraInventario, fraPergamena, fraSigillo. Its three kinds are described to the
// structure window, which runs the commands. It is opened modally from the popup of a finding
// aid in the finding aids' window, and its unload clears that window's open flag.

#include "FinestraStruttura.h"

class QPushButton;
class ucInventario;
class ucPergamena;
class ucSigillo;

class frmStrutturaPG : public FinestraStruttura {
    Q_OBJECT
public:
    explicit frmStrutturaPG(QWidget* genitore = nullptr);
    // The unload: bFrmStrutturaINAperto is cleared, though the finding aids' window stays open.
    ~frmStrutturaPG() override;

    // Show the record of the node last clicked by its kind.
    void MostraInventario();
    void MostraPergamena();
    void MostraSigillo();

    // The one group of the tree: the parchments and seals of the finding aid whose row of
    // Inventari has that key, whatever the mode, brothers in the Italian order of their names;
    // in mode 0 a parchment has the image "pergamena", otherwise every node "sigilli".
    static GruppoAlbero Gruppo(long lIdInventarioRecord, long lModo);

    // The mode and the finding aid's element, as read when the window was made; the key of its
    // row of Inventari.
    long lModo = 0;
    long lIdInventarioCorrente = 0;
    long lIdInventarioRecord = 0;

    ucInventario* fraInventario = nullptr;
    ucPergamena* fraPergamena = nullptr;
    ucSigillo* fraSigillo = nullptr;
    QPushButton* cmdNuovaPG = nullptr;
    QPushButton* cmdNuovoSG = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;

protected:
    void CaricaAlbero(const QString& sOrdine) override;
    bool PreparaTipo(const TipoNodo& tipo) override;
    void DopoMostra(const TipoNodo& tipo) override;
    void PreparaEditore(const TipoNodo& tipo) override;
    void NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) override;
};
