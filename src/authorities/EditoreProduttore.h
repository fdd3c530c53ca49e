#pragma once

// What the editors of the three kinds of producer share (persone, famiglie, enti). A producer
// lives in two rows: the common row of Soggetti, by ID_Soggetto, with its publishing, the date
// and the author of its description; and the row of its kind (Persone, Famiglie or Enti), found
// by the same ID_Soggetto and with a key of its own. The window that hosts the editors inserts
// the row of Soggetti with its kind; the database adds the kind's row, keeps the name of
// Soggetti in step and fills the code (ISAD_*). The editor only reads and updates both rows.
//
// Each kind describes itself once, as a Tipo: its table, its key, the letters of its code, the
// table of its other names and its fields in the order of the statements, each with its column,
// its box, label, limit and mandatory message; and the order of the design, which is the order
// of the mandatory walk. Everything else is done here once for all three.

#include "records/EditoreRecord.h"

#include <QList>
#include <QString>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QGroupBox;
class QLabel;

class EditoreProduttore : public EditoreRecord {
    Q_OBJECT
public:
    ~EditoreProduttore() override;

    void Init() override;
    void Nuovo() override;
    void Mostra(long ID_Soggetto) override;
    void Salva(long ID_Soggetto) override;
    // The tail that follows the name in a row of the list of producers.
    virtual QString LeggiEstremi() const = 0;
    // The kind's own key of the producer in hand (0 when none).
    long LeggiID() const;
    // Every box empty, every check box off and the code "  -    -      "; the date of the
    // description and the profile are left as they were, so that a new record first shows
    // those of the record last displayed.
    void Pulisci();
    // AltreDenominazioni: whether the producer has other names.
    void CheckDenominazioni(long ID_Soggetto);

    // Read by the host after every Mostra and Salva (OkModifica and OkCancella are the
    // editor's too): a new producer may be made; the button of its complessi is enabled (they
    // are what keeps it from being deleted); its other names may be opened, and it has some.
    bool OkNuovo = false;
    bool OkLinks = false;
    bool OkAltreDenominazioni = false;
    bool AltreDenominazioni = false;

    // lbCodice when no producer is shown.
    static const QString CodiceVuoto;

protected:
    // What a field is in its column and in its box.
    enum class Genere {
        Testo,       // a text: Null when the box is empty (the name: never Null)
        Data,        // a full date, yyyymmdd, typed as dd/mm/yyyy; Null when it is no date
        AnnoInizio,  // a year typed, stored as year + "0101"
        AnnoFine,    // a year typed, stored as year + "1231"
        Profilo,     // the two-digit code of ProfiliEnti.txt, chosen in cmbProfili
        SoloLettura, // read in both statements, neither shown nor written
    };
    struct Campo {
        const char* sColonna;
        Genere genere;
        int indice; // Text1(n) and Label1(n); for the profile, its place on the form
        const char* sEtichetta;
        int iMax;
        const char* sTag;
        bool bMultiRiga;
    };
    // Places in the order of the design that are not boxes of the kind's fields.
    static constexpr int Pubblicato = -1;
    static constexpr int DataRedazione = -2;
    struct Tipo {
        const char* sTabella;       // "Persone"
        const char* sChiave;        // "ID_Persona"
        const char* sDenominazioni; // "PersoneDenominazioni", keyed by sChiave
        const char* sLettere;       // "CP", in the code after the site's
        const char* sNomeEditore;   // the object's name
        const char* sTitoloFrame;   // Frame1, around the years
        int iRedattore;             // Text1(n) of Redattore
        QList<Campo> campi;         // in the order of the statements
        // The controls in the order of the design (the fields by their index; Pubblicato,
        // DataRedazione and iRedattore for the common ones).
        QList<int> ordine;
    };
    explicit EditoreProduttore(Tipo tipo, QWidget* parent = nullptr);

    // The text of a box of the kind's fields.
    QString Casella(int indice) const;
    // cmbProfili, nullptr for the kinds without a profile.
    QComboBox* Profili() const;

private:
    // The flags and the key from the kind's row (bTrovata false: none).
    void LeggiStato(bool bTrovata, long lChiave, long lIdSoggetto);
    QString SqlMostra() const;
    QString SqlSalva() const;
    // The values that Salva writes in the kind's row, in the order of SqlSalva, the id last;
    // raises, before anything is written, when a year is no number.
    QList<QVariant> ValoriSalva(long lIdSoggetto) const;

    const Tipo tipo;
    long lChiave = 0;
    QCheckBox* chkPubblicato = nullptr;
    QDateEdit* DTPData = nullptr;
    QComboBox* cmbProfili = nullptr;
    QLabel* lbCodice = nullptr;
    QGroupBox* Frame1 = nullptr;
};
