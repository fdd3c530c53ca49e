#pragma once

// "Tabella Config": the one row of Config as it stands, with the application's version beside
// the database's. Nothing can be changed here.

#include <QDialog>

class QLabel;
class QPushButton;

class frmConfig : public QDialog {
    Q_OBJECT
public:
    explicit frmConfig(QWidget* parent = nullptr);

public Q_SLOTS:
    void cmdEsci_Click();

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void Form_Load();

    QLabel* lblCode;
    QLabel* lblDescrizione;
    QLabel* lblVersione;
    QLabel* lblID_Start;
    QLabel* lblID_End;
    QLabel* lblVersioneApp;
    QLabel* lblValore;
    QLabel* lblDataValore;
    QPushButton* cmdEsci;
};
