#pragma once

// "Altre Denominazioni": the other names of a complesso, of a finding aid or of a producer,
// kept in one of five tables. The mode and the record come from the session values its opener
// fills: sTipoAltreDen ("CD", "IN", "PE", "FA", "EN") and lIdAltreDen, the record's own key in
// its table (for a producer the key of its kind, not ID_Soggetto). Run modally; the opener
// looks at the names again after it closes.

#include <QDialog>
#include <QString>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class frmAltreDenominazioni : public QDialog {
    Q_OBJECT
public:
    explicit frmAltreDenominazioni(QWidget* parent = nullptr);

    // The table of a mode and the column that holds the record's key; both empty for a mode
    // that is none of the five.
    struct Tabella {
        QString sNome;
        QString sChiaveEsterna;
    };
    static Tabella TabellaDelModo(const QString& sTipo);

    // Fills the list again from the table of the mode and shows the first name.
    void Carica();

    // "Nuova", "Modifica" or empty.
    const QString& Azione() const { return sAzione; }
    // The key of the row last clicked: "ID" followed by its ID_Denominazione.
    const QString& Chiave() const { return sChiave; }

public Q_SLOTS:
    void lvwDB_ItemClick(QTreeWidgetItem* riga);
    void cmdNuovaDenom_Click();
    void cmdModifica_Click();
    void cmdCancella_Click();
    void cmdConferma_Click();
    void cmdAnnulla_Click();

private:
    // Browse: the list usable, the text box closed and empty, only cmdNuovaDenom to press.
    void Consultazione();
    // Entry: the text box open, the list closed, only cmdConferma and cmdAnnulla to press.
    void Inserimento();
    QTreeWidgetItem* AggiungiRiga(const QString& sTesto, qint64 lId);
    QTreeWidgetItem* RigaDellaChiave() const;
    qint64 IdDellaChiave() const;

    QString sAzione;
    QString sChiave;
    bool bInterno = false; // the list is being changed by the program, not by a click

    QGroupBox* Frame1;
    QTreeWidget* lvwDB;
    QLabel* lblAltraDenominazione;
    QLineEdit* Text1;
    QPushButton* cmdNuovaDenom;
    QPushButton* cmdModifica;
    QPushButton* cmdCancella;
    QPushButton* cmdConferma;
    QPushButton* cmdAnnulla;
};
