#pragma once

// The record of a parchment: element kind "05", spread over six tables (the row of Elementi and
// the rows of Pergamene, PGSupporti, PGTraditio, PGEleGrafici and PGNoteStoriche, the last four
// found by the key of the row of Pergamene). It lives in the windows of parchments and seals and
// of the analytical inventory and in the dialog that links seals and parchments. A parchment is
// either an original or a copy (the traditio): a copy carries its date, its notes and the link
// to its original.

#include "EditoreRecord.h"

#include <QString>

class ucPergamena : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucPergamena(QWidget* parent = nullptr);
    ~ucPergamena() override;

    QList<QWidget*> Controls() const override;
    void Init() override;
    // A new parchment under that parent element (whose Pubblicato the publishing rule reads).
    void Nuovo(long lIDElemPadre);
    // A new parchment with no parent known.
    void Nuovo() override;
    void Mostra(long IDElem) override;
    void Salva(long IDElem) override;
    void Annulla() override;
    QString LeggiDenominazione() const override;

    void AssegnaInventario(long tempID_Inventario);
    // The image button from the MAG document in hand.
    void CheckImmagine();
    // The buttons of the child lists coloured from the flags.
    void RefreshButton();
    // The flags of the child lists and links, each from the rows that point at the parchment.
    void CheckSegnature(long lIdElemento);
    void CheckToponimi(long lIdElemento);
    void CheckAntroponimi(long lIdElemento);
    void CheckSigilli(long lIdElemento);
    void CheckNotazioni(long lIdElemento);
    void CheckLinks(long lIdElemento);
    void CheckSigilliLink(long lIdElemento);
    // An original: whether copies point at it; a copy: whether it points at its original.
    void CheckPergamene();
    // The index of the first traditio whose code is that number, -1 if none.
    int CercaTraditio(const QString& sCodice) const;

    // cmdMostraSigilli shown or not; cmdMostraLinks enabled and shown or not.
    void MostraSigilliVisible(bool bVisibile);
    void EnabledComplessiDoc(bool bAbilitato);

    // Read by the host after every Mostra and Salva.
    long ID_Inventario = 0;
    long fID_Elem = 0;
    bool OkNuovaPergamena = false;
    bool AltreSegnature = false;
    bool Toponimi = false;
    bool Antroponimi = false;
    bool Sigilli = false;
    bool Notazioni = false;
    bool Pergamene = false;
    bool Links = false;
    bool SigilliLinks = false;

private:
    // The row of Pergamene as the state of the record needs it.
    struct Riga {
        bool bTrovata = false;
        long lIdInventario = 0;
        long lIdElemento = 0;
        long lIdPergamena = 0;
    };
    // The flags and keys from the row (not found: everything off); the inventory kept after a
    // save.
    void LeggiStato(const Riga& riga, bool bDopoSalva = false);
    // The browse state: locked, the child-list buttons coloured and enabled.
    void StatoMostra();
    // Nuovo's clearing: empty boxes, no traditio, today's date.
    void PulisciModulo();
    // The Click of cmbTraditio: the copy's fields shown for any traditio but the first.
    void TraditioCliccato(int indice);
    // The buttons that open the child lists, link viewers and the original's link.
    void ApriFiglio(const QString& sDialogo, void (ucPergamena::*ricontrolla)(long),
                    const QVariantMap& argomenti = {});
    void cmdMostraPergamene_Click();
    void cmdMostraSigilli_Click();

    struct Dati;
    Dati* d;
};
