#include "frmLogin.h"

#include "Errore.h"
#include "LetturaLista.h"
#include "Piattaforma.h"
#include "Sessione.h"
#include "store/Connessione.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

frmLogin::frmLogin(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmLogin"));
    setWindowTitle(QStringLiteral("Login"));
    setModal(true);

    fraDb = new QFrame(this);
    fraDb->setObjectName(QStringLiteral("fraDb"));
    auto* layoutDb = new QFormLayout(fraDb);
    lblDB = new QLabel(QStringLiteral("Database"), fraDb);
    cmbDB = new QComboBox(fraDb);
    cmbDB->setObjectName(QStringLiteral("cmbDB"));
    cmbDB->setMinimumWidth(200);
    lblDB->setBuddy(cmbDB);
    layoutDb->addRow(lblDB, cmbDB);

    fraLogin = new QFrame(this);
    fraLogin->setObjectName(QStringLiteral("fraLogin"));
    auto* layoutLogin = new QFormLayout(fraLogin);
    lblUserID = new QLabel(QStringLiteral("User ID"), fraLogin);
    txtUserID = new QLineEdit(fraLogin);
    txtUserID->setObjectName(QStringLiteral("txtUserID"));
    lblUserID->setBuddy(txtUserID);
    lblPassWord = new QLabel(QStringLiteral("Password"), fraLogin);
    txtPassWord = new QLineEdit(fraLogin);
    txtPassWord->setObjectName(QStringLiteral("txtPassWord"));
    txtPassWord->setEchoMode(QLineEdit::Password);
    lblPassWord->setBuddy(txtPassWord);
    layoutLogin->addRow(lblUserID, txtUserID);
    layoutLogin->addRow(lblPassWord, txtPassWord);

    fraButtons = new QFrame(this);
    fraButtons->setObjectName(QStringLiteral("fraButtons"));
    auto* layoutPulsanti = new QHBoxLayout(fraButtons);
    layoutPulsanti->addStretch();
    cmdAvanti = new QPushButton(QStringLiteral("Avanti"), fraButtons);
    cmdAvanti->setObjectName(QStringLiteral("cmdAvanti"));
    cmdEsci = new QPushButton(QStringLiteral("Annulla"), fraButtons);
    cmdEsci->setObjectName(QStringLiteral("cmdEsci"));
    // Enter acts as Avanti only in the user box; neither button is the dialog's default.
    cmdAvanti->setAutoDefault(false);
    cmdEsci->setAutoDefault(false);
    layoutPulsanti->addWidget(cmdAvanti);
    layoutPulsanti->addWidget(cmdEsci);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraDb);
    layout->addWidget(fraLogin);
    layout->addWidget(fraButtons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    txtUserID->installEventFilter(this);
    connect(cmdAvanti, &QPushButton::clicked, this, &frmLogin::cmdAvanti_Click);
    connect(cmdEsci, &QPushButton::clicked, this, &frmLogin::cmdEsci_Click);

    setTabOrder(cmbDB, txtUserID);
    setTabOrder(txtUserID, txtPassWord);
    setTabOrder(txtPassWord, cmdAvanti);
    setTabOrder(cmdAvanti, cmdEsci);
    Disponi();
}

void frmLogin::Init(bool bAbilita, const QString& sFile) {
    try {
        if (QFileInfo::exists(sFile)) {
            bPiuDatabase = bAbilita;
            cmbDB->clear();
            cmbDB->addItem(Sessione::sDatabase);
            const QStringList nomi = LeggiLista(sFile, QStringLiteral("frmLogin"));
            for (const QString& nome : nomi) {
                if (!nome.trimmed().isEmpty()) {
                    cmbDB->addItem(nome);
                }
            }
            cmbDB->setCurrentIndex(0);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.descrizione(), Pulsanti::Ok, Icona::Critica);
    }
    Disponi();
}

void frmLogin::Disponi() {
    // With the choice of the database the dialog is tall; without it the login frame moves to
    // the top and the dialog is short.
    fraDb->setVisible(bPiuDatabase);
    adjustSize();
}

void frmLogin::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (const QScreen* schermo = screen()) {
        const QRect area = schermo->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
    txtUserID->setFocus();
}

void frmLogin::cmdAvanti_Click() {
    try {
        const QStringList connetti = LeggiLista(
            Sessione::FileProgramma(QStringLiteral("Connetti.txt")), QStringLiteral("frmLogin"));
        Sessione::sConnessione = connetti.value(0);
        // A new connection takes the place of the old one from here on.
        if (Sessione::cnn) {
            Sessione::cnn->Chiudi();
            Sessione::cnn.reset();
        }
        const QString database = bPiuDatabase ? cmbDB->currentText() : Sessione::sDatabase;
        Sessione::sConnessione =
            ComponiStringaConnessione(Sessione::sConnessione, Sessione::sServer, database,
                                      txtUserID->text().trimmed(), txtPassWord->text().trimmed());
        Sessione::cnn = Connessione::Apri(Sessione::sConnessione);
        VerificaImpostazioniSito(txtUserID->text().trimmed(), database);
        Sessione::sDatabase = database;
        Sessione::sUtente = txtUserID->text().trimmed();
        Sessione::sPassword = txtPassWord->text().trimmed();

        const QString tipo = Sessione::LeggiTipoSito(QStringLiteral("frmLogin"));
        if (tipo == QStringLiteral("S")) {
            Sessione::bIstituto = false;
        } else if (tipo == QStringLiteral("I")) {
            Sessione::bIstituto = true;
        }
        bAccessoRiuscito = true;
        accept();
    } catch (const Errore& errore) {
        MsgBox(errore.descrizione() + QLatin1Char('\n') + QStringLiteral("Accesso negato"),
               Pulsanti::Ok, Icona::Critica, QStringLiteral("Login"));
        txtUserID->setFocus();
    }
}

void frmLogin::VerificaImpostazioniSito(const QString& sUtente, const QString& sDatabase) {
    // The server lets in any of its logins; one that cannot read the site's settings could not
    // work in any window, so it is refused here, and its connection closed.
    try {
        Sessione::cnn->Esegui(QStringLiteral("SELECT Valore, Versione FROM Config"), {},
                              QStringLiteral("frmLogin"));
    } catch (const Errore& errore) {
        Sessione::ChiudiConnessione();
        throw Errore(
            errore.sorgente(),
            QStringLiteral("L'utente \"%1\" non può leggere le impostazioni del sito (la tabella "
                           "Config) nel database \"%2\": %3\n"
                           "Per lavorare con il programma l'utente deve appartenere al gruppo "
                           "degli archivisti, che ha i diritti di lettura e scrittura sulle "
                           "tabelle del database: rivolgersi all'amministratore.")
                .arg(sUtente, sDatabase, errore.descrizione()),
            errore.numero());
    }
}

void frmLogin::cmdEsci_Click() {
    reject();
}

bool frmLogin::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == txtUserID && evento->type() == QEvent::KeyPress) {
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        if (tasto->key() == Qt::Key_Escape) {
            reject();
            return true;
        }
        if (tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter) {
            cmdAvanti_Click();
            return true;
        }
    }
    return QDialog::eventFilter(oggetto, evento);
}

void frmLogin::keyPressEvent(QKeyEvent* evento) {
    // Escape ends the program only from the user box; elsewhere, as Enter, it does nothing.
    if (evento->key() == Qt::Key_Escape || evento->key() == Qt::Key_Return ||
        evento->key() == Qt::Key_Enter) {
        evento->accept();
        return;
    }
    QDialog::keyPressEvent(evento);
}
