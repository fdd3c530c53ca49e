#pragma once

// "Valore": the value of Config that the records of complessi multiply by, and its date. The
// new value works from the next start on: the session's dValore stays as it was read.

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class frmValore : public QDialog {
    Q_OBJECT
public:
    explicit frmValore(QWidget* parent = nullptr);

    // Fills the two boxes again from Config and puts the dialog back to showing.
    void MostraConfig();

    // The value as the box shows it: two decimals, thousands points, decimal comma, and no
    // zero before the comma (0,5 is ",50").
    static QString FormatoValore(double valore);

public Q_SLOTS:
    void cmdCambiaV_Click();
    void cmdConferma_Click();
    void cmdAnnulla_Click();
    void txtValore_LostFocus();
    void txtData_LostFocus();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    QLabel* lblValore;
    QLineEdit* txtValore;
    QLabel* lblData;
    QLineEdit* txtData;
    QPushButton* cmdCambiaV;
    QPushButton* cmdConferma;
    QPushButton* cmdAnnulla;
};
