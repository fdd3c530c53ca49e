#pragma once

// The record of a strumento di ricerca (a finding aid): table Inventari, element kind "03". It
// lives in the window of institutes and finding aids, and read-only in the dialogs that show a
// finding aid beside its analytical inventory or its links. It has the seat and warehouse of
// a complesso, one MAG document for the whole finding aid when it is digital, the state of its
// analytical inventory (TipoInv) and the count of the complessi it is linked to.

#include "EditoreRecord.h"

#include <QString>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QPushButton;

class ucInventario : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucInventario(QWidget* parent = nullptr);
    ~ucInventario() override;

    // True when the support chosen in cmbTipoInv is the fourth entry, the electronic one.
    bool bElettronico() const;
    // True when the record's Tipologia is "01" and its SubTipologia "05": such a finding aid
    // may be tied to more than one complesso. Refreshed by Mostra and by Salva.
    bool bPiùLegamiComplessiDoc() const;

    QList<QWidget*> Controls() const override;
    void Init() override;
    void Nuovo() override;
    void Mostra(long IDElem) override;
    void Salva(long IDElem) override;
    void Annulla() override;
    // The state of the image button: "Elimina coll. immagine" with a MAG document in hand,
    // "Immagine" without.
    void CheckImmagine();
    // AltreDenominazioni from the rows of InventariDenominazioni of the element.
    void CheckDenominazioni(long lIdElemento);
    void AssegnaIstituto(long tempID_Istituto);
    QString LeggiDenominazione() const override;
    // The combos' entries by their codes (the index, -1 if none).
    int CercaTipologiaINV(const QString& sCodice) const;
    int CercaTipologiaINV2(const QString& sCodice) const;
    int CercaTipoInventario(const QString& sCodice) const;

    // Read by the host after every Mostra and Salva.
    long ID_Istituto = 0;
    bool OkNuovoInventario = false;
    bool AltreDenominazioni = false;
    // The state of TipoInv: 0 for none ("00" or Null), 1 to 3 for "01" to "03", -1 when the
    // record is not there. The window sets it to 1 when it writes TipoInv.
    int InventariAnalitici = -1;
    // The number of complessi linked, and their name: the complesso's DenomCompleta for one,
    // the institute's for two or more.
    long ComplessiLink = 0;
    QString sComplessoLinked;

private:
    // The row of Inventari as the state of the record needs it.
    struct StatoRiga;
    // The flags, the links and the image button from the row (not found: all off).
    // The flags of a record with nothing in hand (a new one allowed or not), no institute, no
    // MAG document and the image button off.
    void SpegniStato(bool bNuovo);
    void LeggiStato(const StatoRiga& riga, bool bTieniIstituto);
    static StatoRiga LeggiRiga(long lIdElemento);
    static bool PiuLegami(const StatoRiga& riga);
    // The element of the institute whose key is given (0 if none).
    static long ElementoIstituto(long lIdIstituto);
    // The Click of cmbTipoInv: the form's shape for the support chosen.
    void TipoInvCliccato(int indice);

    struct Dati;
    Dati* d;
};
