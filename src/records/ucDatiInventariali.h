#pragma once

// The record of a unit of an analytical inventory: table DatiInventariali, element kind "07",
// at any level under a finding aid. It lives in the window of the analytical inventory. Its
// level combo is rebuilt for each parent and offers only the levels below the parent's; the
// two lowest levels (the archival and the documentary unit) drop the conditions of a
// higher-level description; its dates are full dates (dd/mm/yyyy) that refuse to lose the focus
// while they are wrong. A unit may be tied to one complesso (Id_ElemComplDoc), which keeps it
// from being deleted.

#include "EditoreRecord.h"

#include <QString>

class ucDatiInventariali : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucDatiInventariali(QWidget* parent = nullptr);
    ~ucDatiInventariali() override;

    void Init() override;
    void Nuovo() override;
    void Mostra(long IDElem) override;
    // Unlocks the fields; the conditions stay off at the two unit levels.
    void Modifica() override;
    void Salva(long IDElem) override;
    void Annulla() override;
    // The buttons of the producers, people, places, notable things and complesso coloured from
    // the flags.
    void RefreshButton();
    // The flags of the link lists, each from the rows that point at the unit of that element.
    void CheckSoggetti(long lIdElemento);
    void CheckAntroponimi(long lIdElemento);
    void CheckToponimi(long lIdElemento);
    void CheckCoseNotevoli(long lIdElemento);
    // Sets the finding aid and the parent element, and rebuilds the level combo from the
    // parent's level down (from the first level when the parent is no unit).
    void AssegnaInventario(long tempID_Inventario, long tempID_ElementoPadre);
    // The unit's title, Text1(14).
    QString LeggiDenominazione() const override;
    // The image button from the MAG document in hand.
    void CheckImmagine();
    // The index of the level whose number is that of the code, -1 if the combo does not offer
    // it.
    int CercaTipologiaDI(const QString& sCodice) const;

    // Read by the host after every Mostra and Salva.
    long ID_Inventario = 0;
    // The element of the unit shown (0 when none): the parent of a new unit made under it.
    long fID_Elem = 0;
    bool OkNuovoDatoInventariale = false;
    bool Soggetti = false, Antroponimi = false, Toponimi = false, CoseNotevoli = false;

private:
    // The row of DatiInventariali as the state of the record needs it.
    struct Riga {
        bool bTrovata = false;
        long lIdElemento = 0;
        long lIdInventario = 0;
        long lIdDatoInventariale = 0;
        long lIdElemComplDoc = 0;
    };
    static Riga LeggiRiga(long lIdElemento);
    // The flags and keys from the row (not found: everything off); the finding aid kept after
    // a save.
    void LeggiStato(const Riga& riga, bool bTieniInventario);
    // Locked, with the buttons coloured and enabled; unlocked, with the buttons off.
    void StatoMostra();
    void StatoModifica();
    // Whether the level chosen is one of the two unit levels.
    bool bLivelloUnita() const;
    // The Click of the level combo; the Click of chkUnitaCond, which empties the number when
    // the box is unticked (bSvuota), and its state applied again after a change of level.
    void LivelloCliccato();
    void UnitaCondCliccato(bool bSvuota);
    // The conditions of a higher-level description on or off.
    void Condizioni(bool bAccese);
    // The link viewers: the session values set, the dialog opened by name, then the flag read
    // again, the buttons coloured and the host told.
    void ApriLink(const QString& sDialogo, void (ucDatiInventariali::*ricontrolla)(long));
    void cmdMostraLink_Click();

    struct Dati;
    Dati* d;
};
