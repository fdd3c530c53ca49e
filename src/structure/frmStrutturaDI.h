#pragma once

// The window of the analytical inventory of one finding aid (Sessione::lIdInventario): the
// root of its tree is the finding aid itself, and below it hang its units ("07"), parchments
// ("05") and seals ("06"), each by its own parent. On the right the four editors, of which at
// most one is visible: fraInventario, fraDatiInventariali, fraPergamena, fraSigillo. Its four
// kinds are described to the structure window, which runs the commands; cmdNuovoDI offers the
// kind of the new element in a popup (under the finding aid or a unit: unit, parchment or
// seal; under a parchment: parchment or seal), and a seal takes from its parent's kind whether
// it hangs from a parchment (lModoStrutturaPG 0) or stands detached (1). It is opened modally
// by the finding aids' window, and its unload clears that window's open flag.

#include "FinestraStruttura.h"

class QPushButton;
class ucDatiInventariali;
class ucInventario;
class ucPergamena;
class ucSigillo;

class frmStrutturaDI : public FinestraStruttura {
    Q_OBJECT
public:
    explicit frmStrutturaDI(QWidget* genitore = nullptr);
    // The unload: bFrmStrutturaINAperto is cleared, though the finding aids' window stays open.
    ~frmStrutturaDI() override;

    // Once, before showing: keeps the kind of analytical inventory and the complessi linked to
    // the finding aid (its root reads "Inventario: " and the title when there are some), makes
    // the editors ready, takes its size from the main form's inner size and loads the tree of
    // Sessione::lIdInventario in the archival order.
    void Init(const QString& sTipoAnalitico, const QString& sComplesso);

    // Show the record of the node last clicked by its kind.
    void MostraInventario();
    void MostraDatiInventariali();
    void MostraPergamena();
    void MostraSigillo();

    // The complessi linked to the finding aid at the root, in their viewer.
    void cmdMostraLinks_Click();

    // The popups of cmdNuovoDI: under the finding aid or a unit, under a parchment.
    static const QList<VoceNuovo>& VociInventario();
    static const QList<VoceNuovo>& VociPergamena();

    // The ORDER BY tails of the two options: names in the Italian order on every server, and
    // in "Archivistico" the units' Ordinamento first (none counts as 0).
    static QString OrdineAlfabetico();
    static QString OrdineArchivistico();
    // The one group of the tree: the units, parchments and seals of the finding aid whose row
    // of Inventari has that key, each with its own text and image, brothers in that order.
    static GruppoAlbero Gruppo(long lIdInventarioRecord, const QString& sOrdine);

    QString sTipoAnalitico;
    QString sComplesso;
    // The finding aid's element, as loaded; the key of its row of Inventari and the parent read
    // from the editor shown.
    long lIdInventarioCorrente = 0;
    long lIdInventarioRecord = 0;
    long lIdPadreRecord = 0;

    ucInventario* fraInventario = nullptr;
    ucDatiInventariali* fraDatiInventariali = nullptr;
    ucPergamena* fraPergamena = nullptr;
    ucSigillo* fraSigillo = nullptr;
    QPushButton* cmdNuovoDI = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;
    QPushButton* cmdMostraLinks = nullptr;

protected:
    void CaricaAlbero(const QString& sOrdine) override;
    QString OrdineDi(int iOpzione) const override;
    void MostraNodo(const QString& sTag) override;
    bool PreparaTipo(const TipoNodo& tipo) override;
    void DopoMostra(const TipoNodo& tipo) override;
    void PreparaEditore(const TipoNodo& tipo) override;
    void NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) override;
    void DopoSalva(const TipoNodo& tipo) override;

private:
    // The seal's place, lModoStrutturaPG: 0 under a parchment, 1 otherwise, from the kind of
    // the parent of the seal shown (bDelSigillo) or of the node under which a new one is made;
    // then the seal's editor made ready for it. False, after the box, when it cannot be read.
    bool ModoSigillo(bool bDelSigillo);
};
