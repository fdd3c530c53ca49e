#include "frmBackup.h"

#include "Errore.h"
#include "Piattaforma.h"
#include "Sessione.h"
#include "store/Connessione.h"
#include "store/Procedure.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

frmBackup::frmBackup(QWidget* parent)
    : frmBackup(parent, Testi{QStringLiteral("frmBackup"), QStringLiteral("Backup"),
                              QStringLiteral("Vuoi eseguire il backup?"),
                              QStringLiteral("Backup in corso. Prego attendere"),
                              QStringLiteral("Backup terminato. Click su Esci"),
                              QStringLiteral("SP_MakeBackup"), &Sessione::sParam03,
                              QStringLiteral("Errore B1"),
                              QStringLiteral("In Param.txt il codice 03 va scritto con uno spazio "
                                             "dopo il separatore e il file tra apici, per "
                                             "esempio: 03= '/percorso/file'")}) {}

frmBackup::frmBackup(QWidget* parent, Testi testiDati)
    : QDialog(parent)
    , testi(std::move(testiDati)) {
    setObjectName(testi.sNome);
    setWindowTitle(testi.sDidascalia);
    setModal(true);

    Label1 = new QLabel(testi.sDomanda, this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setMinimumWidth(320);
    cmdSI = new QPushButton(QStringLiteral("Si"), this);
    cmdSI->setObjectName(QStringLiteral("cmdSI"));
    cmdNO = new QPushButton(QStringLiteral("No"), this);
    cmdNO->setObjectName(QStringLiteral("cmdNO"));
    cmdSI->setAutoDefault(false);
    cmdNO->setAutoDefault(false);

    auto* pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(cmdSI);
    pulsanti->addWidget(cmdNO);
    pulsanti->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addLayout(pulsanti);
    // The same size whichever buttons are shown.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    const int altezza = cmdSI->sizeHint().height();
    for (QPushButton* pulsante : {cmdSI, cmdNO}) {
        QSizePolicy politica = pulsante->sizePolicy();
        politica.setRetainSizeWhenHidden(true);
        pulsante->setSizePolicy(politica);
        pulsante->setMinimumHeight(altezza);
    }

    connect(cmdSI, &QPushButton::clicked, this, &frmBackup::cmdSI_Click);
    connect(cmdNO, &QPushButton::clicked, this, &frmBackup::cmdNO_Click);
}

void frmBackup::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (const QScreen* schermo = screen()) {
        const QRect area = schermo->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
}

void frmBackup::cmdSI_Click() {
    // One run at a time; after one that ended well, no other from the same dialog.
    if (bAvviata) {
        return;
    }
    bAvviata = true;
    bInCorso = true;
    Label1->setText(testi.sInCorso);
    cmdSI->hide();
    cmdNO->hide();
    try {
        if (!Sessione::cnn) {
            throw Errore(testi.sNome, QStringLiteral("La connessione al database è chiusa."));
        }
        // The setting brings its own blank and argument: nothing stands between.
        const QString sComando = testi.sProcedura + *testi.pImpostazione;
        try {
            LeggiProcedura(sComando);
        } catch (const Errore& errore) {
            // A setting of another form: the box shows the form that is expected.
            throw Errore(errore.sorgente(), errore.descrizione() + QLatin1Char('\n') + testi.sForma,
                         errore.numero());
        }
        EseguiProcedura(*Sessione::cnn, sComando);
        bInCorso = false;
        cmdNO->setText(QStringLiteral("Esci"));
        cmdNO->show();
        Label1->setText(testi.sTerminato);
    } catch (const Errore& errore) {
        // Back to the question, with both buttons: the user may close it or try again.
        bInCorso = false;
        bAvviata = false;
        Label1->setText(testi.sDomanda);
        cmdSI->show();
        cmdNO->show();
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, testi.sTitoloErrore);
    }
}

void frmBackup::cmdNO_Click() {
    close();
}

void frmBackup::reject() {
    if (bInCorso) {
        return;
    }
    QDialog::reject();
}

void frmBackup::closeEvent(QCloseEvent* evento) {
    if (bInCorso) {
        evento->ignore();
        return;
    }
    QDialog::closeEvent(evento);
}
