#pragma once

// The small list editor of a record's texts (its other names, old shelf marks, notable things):
// a modal dialog with a one-column list lvwDB inside Frame1, one text box Text1 and the five
// buttons cmdNuovaDenom, cmdModifica, cmdCancella, cmdConferma and cmdAnnulla. Each dialog
// describes itself once (Descrizione): its name and captions, the limit of its text, the
// message for an empty text, and where its rows lie: the table, its key, the column of the
// record's key and that of the text, with the record's key itself. The table and the record are
// asked for at the load and at every write, since they come from the session values the opener
// filled; no table reads and writes nothing.
//
// Two states: browse (the list usable, the text box closed and empty, only cmdNuovaDenom to
// press, or also cmdModifica and cmdCancella once a row is clicked) and entry (the text box open,
// the list closed, only cmdConferma and cmdAnnulla to press). A new text is refused only when the
// box is strictly empty; texts are stored trimmed; a change is not tested for an empty text.
// Failures are shown in the critical box "Errore A3" at load, "Errore A2" at confirmation and
// "Errore A1" at delete, whose text begins with the dialog's name.

#include <QDialog>
#include <QString>
#include <functional>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class ElencoTesti : public QDialog {
    Q_OBJECT
public:
    // Where the rows lie: all empty when there is no table to read.
    struct Tabella {
        QString sNome;          // "PGAltreSegnature"
        QString sChiave;        // "ID_PGAltraSegnatura"
        QString sChiaveEsterna; // "ID_Pergamena"
        QString sColonnaTesto;  // "Segnatura"
    };
    struct Descrizione {
        QString sNome;           // the objectName, at the head of a failure's text
        QString sCaption;        // "Antiche Segnature"
        QString sIntestazione;   // the list's one header: "Antiche segnature "
        QString sEtichetta;      // the label of Text1: "Antica Segnatura"
        int iMax = 0;            // the limit of Text1, 0: none
        QString sNuovo;          // "Nuova segnatura"
        QString sModifica;       // "Modifica segnatura"
        QString sCancella;       // "Cancella segnatura"
        QString sMessaggioVuoto; // "Inserire Segnatura"
        std::function<Tabella()> tabella;
        std::function<qint64()> idRecord;
    };

    // Builds the dialog and loads it.
    explicit ElencoTesti(Descrizione descrizione, QWidget* parent = nullptr);
    ~ElencoTesti() override;

    // Fills the list again from the table and shows the first row.
    void Carica();

    // "Nuova", "Modifica" or empty.
    const QString& Azione() const { return sAzione; }
    // The key of the row last clicked: "ID" followed by its id.
    const QString& Chiave() const { return sChiave; }

public Q_SLOTS:
    void lvwDB_ItemClick(QTreeWidgetItem* riga);
    void cmdNuovaDenom_Click();
    void cmdModifica_Click();
    void cmdCancella_Click();
    void cmdConferma_Click();
    void cmdAnnulla_Click();

private:
    void Consultazione();
    void Inserimento();
    QTreeWidgetItem* AggiungiRiga(const QString& sTesto, qint64 lId);
    QTreeWidgetItem* RigaDellaChiave() const;
    qint64 IdDellaChiave() const;

    const Descrizione descrizione;
    QString sAzione;
    QString sChiave;
    bool bInterno = false; // the list is being changed by the program, not by a click

    QGroupBox* Frame1;
    QTreeWidget* lvwDB;
    QLabel* lblTesto;
    QLineEdit* Text1;
    QPushButton* cmdNuovaDenom;
    QPushButton* cmdModifica;
    QPushButton* cmdCancella;
    QPushButton* cmdConferma;
    QPushButton* cmdAnnulla;
};
