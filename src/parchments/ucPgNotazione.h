#pragma once

// The record of a chancery or archival notation of a parchment (PGNotazioni): where it stands
// on the parchment, its date as a text and its transcription or description. The text shown as
// "Trascrizione/Descrizione" lies in the column Note; the columns Trascrizione, DataInizio and
// DataFine are read but neither shown nor written. The row is found by its own key, which the
// window that hosts the editor keeps; the window inserts and deletes the row, the editor only
// reads and updates it. A notation has nothing that depends on it: it may always be deleted.

#include "records/EditoreRecord.h"

#include <QStringList>
#include <QVariantList>

class ucPgNotazione : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucPgNotazione(QWidget* parent = nullptr);
    ~ucPgNotazione() override;

    // Nothing in hand: only a new notation may be made.
    void Init() override;
    // The row of the key; the boxes empty and every flag but OkNuovo false when it is not there.
    void Mostra(long ID) override;
    // Writes the three boxes into the row of the key (nothing when the row is not there): the
    // position never Null, the other two Null when empty; then the flags as after Mostra.
    void Salva(long ID) override;
    // The columns the editor writes and their values from the boxes, in the same order: the
    // transcription (Note) and the date as a text Null when empty, the position never Null.
    static QStringList ColonneScritte();
    QVariantList ValoriScritti() const;
    // The position, Text1(1): the text of the notation's row in the list.
    QString LeggiPosizione() const;
    QString LeggiDenominazione() const override;
    // Every box empty.
    using EditoreRecord::Pulisci;

    // Read by the host after every Mostra and Salva (OkModifica and OkCancella are the editor's
    // too): a new notation may be made.
    bool OkNuovo = false;

private:
    void LeggiStato(bool bTrovata);
};
