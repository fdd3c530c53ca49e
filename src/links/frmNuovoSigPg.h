#pragma once

// The tree picker that ties a seal and parchments, or a parchment and seals, of one finding aid.
// The tree is the finding aid's analytical inventory (its units, parchments and seals, the
// finding aid at the root), and only the kind to choose can be ticked: parchments when a seal
// is in hand (SceltaPergamene), seals when a parchment is (SceltaSigilli). What is tied to the
// record in hand already starts ticked and locked. cmdCollega adds the rows of Links that are
// missing, the seal always in ID_Elemento and the parchment in ID_ElementoLink, and leaves
// bOkLink true when one was added. Parchments and seals can be made and edited on the spot
// (cmdNuovaPG, cmdNuovoSG, cmdModifica), with the finding aid's, the parchment's and the
// seal's editors.

#include "SelettoreAlbero.h"

class ucInventario;
class ucPergamena;
class ucSigillo;

class frmNuovoSigPg : public SelettoreAlbero {
    Q_OBJECT
public:
    static constexpr int SceltaPergamene = 0;
    static constexpr int SceltaSigilli = 1;

    explicit frmNuovoSigPg(QWidget* genitore = nullptr);
    ~frmNuovoSigPg() override;

    // TextC changes only through the ticks.
    void bLockSelected();
    // The kind to choose, the finding aid (its element), the record in hand (its element and
    // description); the tree is loaded. False when there is nothing to show.
    bool bInit(int iWhatICanSelect, long lIDInventario, long lIdEleLink, const QString& sDescrLink);

    // Show the record of the node last clicked by its kind.
    void MostraInventario();
    void MostraPergamena();
    void MostraSigillo();

    bool bOkLink = false;
    int iWhatICanSelect = SceltaPergamene;
    long lIDInventario = 0;
    long lIdEleLink = 0;
    // The key of the finding aid's row of Inventari.
    long lIdInventarioRecord = 0;

    ucInventario* fraInventario = nullptr;
    ucPergamena* fraPergamena = nullptr;
    ucSigillo* fraSigillo = nullptr;
    QPushButton* cmdNuovaPG = nullptr;
    QPushButton* cmdNuovoSG = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLineEdit* Text1 = nullptr;
    QPlainTextEdit* TextC = nullptr;

protected:
    bool Collega() override;
    void CaricaAlbero(const QString& sOrdine) override;
    void PreparaEditore(const TipoNodo& tipo) override;
    void NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) override;

private:
    // The elements of the kind to choose that are tied to the record in hand already.
    QList<qint64> GiaLegati() const;

    bool bCaricato = false;
    int iEsitoLink = 0;
};
