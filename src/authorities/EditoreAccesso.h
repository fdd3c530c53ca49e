#pragma once

// What the editors of the three access points share (personal names, place names and seal
// holders). An access point is one row of its own table, found by the table's key: it has no
// element. The window that hosts the editor inserts the row with its name and deletes it; the
// editor only reads and updates it.
//
// Each kind describes itself once, as a Tipo: its table, its key, its fields in the order of the
// statements and of the design (column, label, limit, mandatory message, one line or several),
// and the join tables that tie it to parchments, units or seals, each with the flag that says
// that the row has links there. A row with a link in any join table cannot be deleted.

#include "records/EditoreRecord.h"

#include <QList>
#include <QString>

class EditoreAccesso : public EditoreRecord {
    Q_OBJECT
public:
    ~EditoreAccesso() override;

    // The key 0, nothing in hand: only a new entry may be made.
    void Init() override;
    // The row of the table's key; the fields empty and every flag but OkNuovo false when it is
    // not there.
    void Mostra(long ID) override;
    // Writes the fields into the row of the key (nothing when the row is not there), the name
    // never Null and the other fields Null when empty; then the flags as after Mostra.
    void Salva(long ID) override;
    // The key of the row in hand (0 when none).
    long LeggiID() const;
    // Every box empty.
    using EditoreRecord::Pulisci;

    // The flags of the links, one a join table in the order of the kind's description (they
    // enable the buttons of the viewers of links).
    QList<const bool*> FlagLegami() const;

    // Read by the host after every Mostra and Salva (OkModifica and OkCancella are the
    // editor's too): a new entry may be made.
    bool OkNuovo = false;

protected:
    struct Campo {
        const char* sColonna;
        const char* sEtichetta;
        int iMax;
        const char* sTag;
        bool bMultiRiga;
    };
    // A join table and the flag that it has rows for the entry in hand.
    struct Legame {
        const char* sTabella;
        bool* flag;
    };
    struct Tipo {
        const char* sTabella;     // "Antroponimi"
        const char* sChiave;      // "ID_Antroponimo"
        const char* sNomeEditore; // the object's name
        QList<Campo> campi;       // Text1(0), Text1(1), ... in order
        QList<Legame> legami;
    };
    explicit EditoreAccesso(Tipo tipo, QWidget* parent = nullptr);

private:
    // The flags and the key from the row read (bTrovata false: none).
    void LeggiStato(bool bTrovata, long lChiaveRiga);

    const Tipo tipo;
    long lChiave = 0;
};
