#pragma once

// The list of the tables the schema folder offers (whatever the case of "SCH"), all checked,
// and the import of the checked ones, with the table in hand and the records done.

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

class frmImporta : public QDialog {
    Q_OBJECT
public:
    explicit frmImporta(QWidget* parent = nullptr);

    void cmdImportaClick();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void reject() override;

private:
    void Carica();
    void MostraAvanzamento(const QString& sTabella, qint64 lRecord);

    QTreeWidget* lvwDB;
    QLabel* lblTabella;
    QLabel* lblRecord;
    QPushButton* cmdImporta;
    bool bInCorso = false;
};
