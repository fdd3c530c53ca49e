#pragma once

// The record of a versamento, an entry of the register of new acquisitions: a numbered, dated
// act by which a party hands material to the institute (table Versamenti, element kind "04"),
// with the list of its rows, one for each body of records received. The rows are written in
// the dialog frmNuovoVersamento, opened by name from the row buttons, which work only while
// the act is shown (locked); a row is deleted here, the one delete inside an editor. An act
// with rows cannot be deleted.

#include "EditoreRecord.h"

#include <QString>

class QComboBox;
class QDateEdit;
class QPushButton;
class QTreeWidget;

class ucVersamento : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucVersamento(QWidget* parent = nullptr);
    ~ucVersamento() override;

    QList<QWidget*> Controls() const override;
    void Init() override;
    void Nuovo() override;
    void Mostra(long IDElem) override;
    // Fills the list of rows of the act in hand; the row of that id, if any, is selected and
    // kept as the row that the buttons act on.
    void CaricaRighe(long lIdSel = 0);
    void Modifica() override;
    bool CheckMandatoryFields() override;
    // Data and DataAcquisizione are written as dates, NumeroRPC as a whole number of up to 18
    // digits (the leading number of its box). Nothing is written when the act's row is not
    // there.
    void Salva(long IDElem) override;
    void Annulla() override;
    void AssegnaIstituto(long tempID_Istituto);
    // The date as dd/mm/yyyy, " - " and the number: the text of the element, written by the
    // host when it creates the act.
    QString LeggiDenominazione() const override;
    // ID_Versamento of the act in hand.
    long LeggiID() const;
    // The row buttons from the flags of the rows.
    void RefreshRigheStatus();
    // The text of the entry of the acquisition's kind of that code ("" if none).
    QString CercaTipoAcquisizione(const QString& sCodice) const;

    // The row buttons' handlers, as the buttons' clicks run them.
    void cmdNuovaRiga_Click();
    void cmdModificaRiga_Click();
    void cmdCancellaRiga_Click();

    // The header of the list of rows: its title and forty blanks.
    static QString IntestazioneRighe();

    // Read by the host after every Mostra and Salva (OkModifica and OkCancella are the
    // editor's own; OkCancella is True only for an act without rows).
    long ID_Istituto = 0;
    bool OkNuovoVersamento = true;
    bool OkNuovaRiga = false;
    bool OkModificaRiga = false;
    bool OkCancellaRiga = false;

    QComboBox* cmbTipoAcquisizione = nullptr;
    QDateEdit* DTPData = nullptr;
    QDateEdit* DTPDataAcq = nullptr;
    QTreeWidget* lvwDB = nullptr;
    QPushButton* cmdNuovaRiga = nullptr;
    QPushButton* cmdModificaRiga = nullptr;
    QPushButton* cmdCancellaRiga = nullptr;

private:
    // The flags and the keys from the row of Versamenti (not found: all off).
    void LeggiStato(bool bTrovata, long lIdVersamento, long lIdIstituto);
    void Blocca();
    void Sblocca();
    // The row chosen in the list: its index and its id are kept.
    void RigaScelta();
    void ApriRiga(long lIdRiga);

    long lIdElemento = 0;
    long lIdPadre = 0;
    long lIdVersamentoCorrente = 0;
    // The row that the buttons act on, and its index in the list (-1 none).
    long lIdRigaScelta = 0;
    int iRigaScelta = -1;
};
