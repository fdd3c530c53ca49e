#pragma once

// "Backup": asks, then runs the backup procedure of the database with the setting of code 03,
// and says when it has ended. While it runs the dialog stays painted and cannot be closed, nor
// the procedure started again; after a failure it asks again, with both buttons. frmIdicizWeb
// is the same dialog for the web index.

#include <QDialog>

class QLabel;
class QPushButton;

class frmBackup : public QDialog {
    Q_OBJECT
public:
    explicit frmBackup(QWidget* parent = nullptr);

    // True while the procedure runs.
    bool InCorso() const { return bInCorso; }

public Q_SLOTS:
    void cmdSI_Click();
    void cmdNO_Click();
    void reject() override;

protected:
    // What tells one procedure's dialog from the other's.
    struct Testi {
        QString sNome;
        QString sDidascalia;
        QString sDomanda;
        QString sInCorso;
        QString sTerminato;
        QString sProcedura;           // the command's head, followed directly by the setting
        const QString* pImpostazione; // the session value of the setting, read at the start
        QString sTitoloErrore;
        QString sForma; // how the setting is written, shown when the command cannot be read
    };
    frmBackup(QWidget* parent, Testi testiDati);

    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    Testi testi;
    bool bInCorso = false;
    bool bAvviata = false;
    QLabel* Label1;
    QPushButton* cmdSI;
    QPushButton* cmdNO;
};
