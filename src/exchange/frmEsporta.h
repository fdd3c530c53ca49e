#pragma once

// The list of the tables the schema folder offers, all checked, and the export of the checked
// ones, with the table in hand and the records done.

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

class frmEsporta : public QDialog {
    Q_OBJECT
public:
    explicit frmEsporta(QWidget* parent = nullptr);

    void cmdEsportaClick();

private:
    void Carica();
    void MostraAvanzamento(const QString& sTabella, qint64 lRecord);

    QTreeWidget* lvwDB;
    QLabel* lblTabella;
    QLabel* lblRecord;
    QPushButton* cmdEsporta;
    bool bInCorso = false;
};
