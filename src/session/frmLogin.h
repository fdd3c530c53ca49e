#pragma once

// The login dialog: the database's own login is the only access control of the program.

#include <QDialog>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

class frmLogin : public QDialog {
    Q_OBJECT
public:
    explicit frmLogin(QWidget* parent = nullptr);

    // With bAbilita and an existing list file, the dialog offers the choice of the database:
    // sDatabase first, then each non-blank record of the file.
    void Init(bool bAbilita, const QString& sFile);

    // True once a login has succeeded and the session values are set.
    bool AccessoRiuscito() const { return bAccessoRiuscito; }
    bool PiuDatabase() const { return bPiuDatabase; }

public Q_SLOTS:
    void cmdAvanti_Click();
    void cmdEsci_Click();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void Disponi();
    // Reads Config on the new connection: a login that cannot is refused, with the reason.
    void VerificaImpostazioniSito(const QString& sUtente, const QString& sDatabase);

    bool bPiuDatabase = false;
    bool bAccessoRiuscito = false;

    QFrame* fraDb;
    QLabel* lblDB;
    QComboBox* cmbDB;
    QFrame* fraLogin;
    QLabel* lblUserID;
    QLineEdit* txtUserID;
    QLabel* lblPassWord;
    QLineEdit* txtPassWord;
    QFrame* fraButtons;
    QPushButton* cmdAvanti;
    QPushButton* cmdEsci;
};
