#pragma once

// One row of a versamento: a body of records received with the act (table RigheVersamento).
// The row has no element of its own: the dialog that hosts the editor inserts the row and
// chooses the complesso that the row feeds; the editor only reads and updates it, by the
// row's own key (ID_RigaVersamento).

#include "EditoreRecord.h"

#include <QString>

class ucRigaVersamento : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucRigaVersamento(QWidget* parent = nullptr);
    ~ucRigaVersamento() override;

    QList<QWidget*> Controls() const override;
    void Init() override;
    void Nuovo() override;
    // Mostra and Salva take the row's ID_RigaVersamento.
    void Mostra(long IDElem) override;
    void Modifica() override;
    bool CheckMandatoryFields() override;
    // Writes the row's fields and its ID_ComplessoDoc (the member) in one statement. A number
    // of Consistenza or Metri lineari that is no number, or a year that is no year, raises
    // Errore before anything is written. A row that is not there is left alone, silently.
    void Salva(long IDElem) override;
    void Annulla() override;
    QString LeggiDenominazione() const override;

    // Read by the host after every Mostra and Salva (OkModifica and OkCancella are the
    // editor's own).
    bool OkNuovo = true;
    // The complesso that the row feeds, 0 for none: read by Mostra, written by Salva.
    long ID_ComplessoDoc = 0;

private:
    void LeggiStato(bool bTrovata, long lIdComplessoDoc);
    long lIdRiga = 0;
};
