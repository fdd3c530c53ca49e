#pragma once

// The record of a seal (element kind "06"): tables Sigilli and SGTipo, with a recto area and a
// verso area that have the same fields. It lives under a parchment, under a unit of an
// analytical inventory or detached under the inventory. Seven lookup lists fill its combos;
// the natura of the seal shows or hides the verso; the free-text combos take no more than 128
// characters when they are left; bAttaccato tells whether the seal's relation to its document is
// chosen in a list or described in free text.

#include "EditoreRecord.h"

#include <QString>

class ucSigillo : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucSigillo(QWidget* parent = nullptr);
    ~ucSigillo() override;

    // Set by the host before Init (and Init called again when it changes): True for a seal
    // attached to a unit whose parent is not a parchment.
    void bAttaccato(bool bValore);
    // The visibility of cmdMostraPergamene.
    void MostraPergameneVisible(bool bVisibile);

    QList<QWidget*> Controls() const override;
    void Init() override;
    // A new seal under no parent given.
    void Nuovo() override;
    // A new seal under that parent element.
    void Nuovo(long lIDElemPadre);
    void Mostra(long IDElem) override;
    void Modifica() override;
    void Salva(long IDElem) override;
    void Annulla() override;
    QString LeggiDenominazione() const override;
    void AssegnaInventario(long tempID_Inventario);
    // The state of the image button from the MAG document in hand.
    void CheckImmagine();
    // The colours of the buttons of the holders and of the parchments linked.
    void RefreshButton();
    // Titolari: the seal has rows of SGTitolari.
    void CheckTitolari(long lIdElemento);
    // PergameneLink: a row of Links ties the seal to a parchment.
    void CheckPergameneLink(long lIdElemento);
    // The index of the first entry of the combo with that code, -1 if none.
    int CercaTipologia(const QString& sCodice) const;
    int CercaTipologIco(const QString& sCodice, int iIndice) const;
    int CercaMateria(const QString& sCodice) const;
    int CercaRapporto(const QString& sCodice) const;

    // Read by the host after every Mostra and Salva.
    long ID_Inventario = 0;
    long fID_Elem = 0;
    bool OkNuovoSigillo = false;
    bool Titolari = false;
    bool PergameneLink = false;

private:
    struct Dati;
    Dati* d;

    // Browse state: controls locked, child buttons enabled and coloured.
    void StatoConsulta();
    // Edit state: controls unlocked, child buttons disabled, cmbDoc shown only when attached.
    void StatoModifica();
    // The clearing of the form and the defaults of the combos.
    void PulisciSigillo();
    // The state of the record from its row (not found: everything off).
    void LeggiStato(bool bTrovata, long lIdElemento, long lIdInventario, long lIdSigillo,
                    bool bDopoSalva);
    // The natura chosen: the verso shown for entries 1 to 3, and its form then mandatory.
    void NaturaCliccata(int indice);
    // Once a viewer has closed, before the host hears of it: its flag read again, the buttons
    // painted and whether the seal may be deleted.
    void DopoDialogo(void (ucSigillo::*ricontrolla)(long));
    // The relation to the document: its list without "02" while attached.
    void CaricaRapporto();
};
