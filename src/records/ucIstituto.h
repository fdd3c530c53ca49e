#pragma once

// The record of an archive institute, and of the seat and the warehouse that hang under it:
// table Istituti, element kind "01". The form changes with the kind chosen in cmbTipologiaIS,
// and with it the mandatory messages of its fields.

#include "EditoreRecord.h"

class QCheckBox;
class QComboBox;

class ucIstituto : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucIstituto(QWidget* parent = nullptr);

    void Init() override;
    void Nuovo() override;
    void Mostra(long IDElem) override;
    void Salva(long IDElem) override;
    void Annulla() override;
    void AssegnaIstituto(long tempID_Istituto);
    QString LeggiDenominazione() const override;

    // Read by the host after every Mostra and Salva.
    long ID_Istituto = 0;
    bool OkNuovoIstituto = false;
    bool OkNuovoInventario = false;
    bool OkNuovoComplesso = false;
    bool OkNuovoVersamento = false;
    bool OkAltreDenominazioni = false;

    // The kind's entry by its code, as Mostra sets it.
    QString CercaTipologiaIS(const QString& sCodice) const;

private:
    void CostruisciForm();
    // The Click of cmbTipologiaIS: the code of the first entry on an "S" site, then the form.
    void TipologiaCliccata();
    // The Click of chkPubblicaIst.
    void PubblicaCliccata();
    void CaricaCodici();
    void CaricaProvince();
    void LeggiStato(bool bTrovato, const QString& sTipologia, long lIdIstitutoRiga);

    QComboBox* DCCodice = nullptr;
    QComboBox* cmbTipologiaIS = nullptr;
    QComboBox* DCProvincia = nullptr;
    QCheckBox* chkPubblicaIst = nullptr;

    long lIdPadre = 0;
    long lIdElemento = 0;
    long lIdIstitutoRiga = 0;
};
