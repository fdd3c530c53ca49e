#pragma once

// The list of the tables the schema folder offers, all checked, and a run over the checked
// ones with the table in hand and the records done; the closing message lists the tables
// done. Export and import differ only in what a run does with each table.

#include <QDialog>
#include <functional>

class QLabel;
class QPushButton;
class QTreeWidget;

class frmTabelleScambio : public QDialog {
    Q_OBJECT
public:
    struct Impostazioni {
        QString sNome;         // the window's objectName
        QString sTitolo;       // its caption
        QString sIntestazione; // the list's column
        QString sPulsante;     // the button's caption
        QString sNomePulsante; // and its objectName
        QString sTitoloFine;   // the closing message's title
        std::function<QStringList(const QString& sCartellaSchemi)> tabelle;
    };

    // The button's click: the run over the checked tables. Whatever fails in a table, the
    // program's own failure or another, is told in a critical box and the run goes on with the
    // next table; the closing message and the pointer come back in every case.
    void Esegui();

    // Told of every progress of the run once the window shows it: the table in hand and the
    // records done. Whoever follows the run (a test) hooks here.
    std::function<void(const QString& sTabella, qint64 lRecord)> alProgresso;

protected:
    frmTabelleScambio(Impostazioni impostazioni, QWidget* parent);

    // Before the first table, each checked table in order, after the last one.
    virtual void Inizia() {}
    virtual void EseguiTabella(const QString& sTabella) = 0;
    virtual void Termina() {}
    // The closing message's text.
    virtual QString Elenco() const = 0;

    void MostraAvanzamento(const QString& sTabella, qint64 lRecord);

    void closeEvent(QCloseEvent* evento) override;
    void reject() override;

private:
    void Carica();

    Impostazioni impostazioni;
    QTreeWidget* lvwDB;
    QLabel* lblTabella;
    QLabel* lblRecord;
    QPushButton* cmdEsegui;
    bool bInCorso = false;
};
