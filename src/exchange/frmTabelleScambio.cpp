#include "frmTabelleScambio.h"

#include "exchange/frmSceltaCartella.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmTabelleScambio::frmTabelleScambio(Impostazioni impostazioniDate, QWidget* parent)
    : QDialog(parent)
    , impostazioni(std::move(impostazioniDate)) {
    setObjectName(impostazioni.sNome);
    setWindowTitle(impostazioni.sTitolo);
    setModal(true);
    lvwDB = new QTreeWidget(this);
    lvwDB->setObjectName(QStringLiteral("lvwDB"));
    lvwDB->setRootIsDecorated(false);
    lvwDB->setMinimumSize(360, 260);
    lblTabella = new QLabel(this);
    lblTabella->setObjectName(QStringLiteral("lblTabella"));
    lblRecord = new QLabel(this);
    lblRecord->setObjectName(QStringLiteral("lblRecord"));
    cmdEsegui = new QPushButton(impostazioni.sPulsante, this);
    cmdEsegui->setObjectName(impostazioni.sNomePulsante);
    cmdEsegui->setAutoDefault(false);

    auto* pulsanti = new QHBoxLayout;
    pulsanti->addWidget(lblTabella, 1);
    pulsanti->addWidget(lblRecord);
    pulsanti->addWidget(cmdEsegui);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwDB);
    layout->addLayout(pulsanti);
    connect(cmdEsegui, &QPushButton::clicked, this, &frmTabelleScambio::Esegui);

    Carica();
    if (parent) {
        adjustSize();
        move(parent->window()->geometry().center() - rect().center());
    }
}

void frmTabelleScambio::Carica() {
    try {
        lvwDB->clear();
        lvwDB->setColumnCount(1);
        lvwDB->setHeaderLabels({impostazioni.sIntestazione});
        // A schema folder that is not there or can't be read is a failure, not an empty list.
        ControllaCartellaScambio(Sessione::sParam09, objectName());
        int i = 0;
        for (const QString& sTabella : impostazioni.tabelle(Sessione::sParam09)) {
            auto* voce = new QTreeWidgetItem(lvwDB, {sTabella});
            voce->setData(0, Qt::UserRole, QStringLiteral("ID") + QString::number(++i));
            voce->setFlags(voce->flags() | Qt::ItemIsUserCheckable);
            voce->setCheckState(0, Qt::Checked);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore W1"));
    }
}

void frmTabelleScambio::MostraAvanzamento(const QString& sTabella, qint64 lRecord) {
    lblTabella->setText(sTabella);
    lblRecord->setText(QString::number(lRecord));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (alProgresso)
        alProgresso(sTabella, lRecord);
}

namespace {

// The run's last handler: a failure of any kind gives its words in a critical box.
void Protetto(const std::function<void()>& passo) {
    try {
        passo();
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), QString()).descrizione(), Pulsanti::Ok,
               Icona::Critica);
    }
}

} // namespace

void frmTabelleScambio::Esegui() {
    if (bInCorso)
        return;
    bInCorso = true;
    cmdEsegui->setEnabled(false);
    lvwDB->setEnabled(false);
    Protetto([this] { Inizia(); });
    for (int i = 0; i < lvwDB->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* voce = lvwDB->topLevelItem(i);
        if (voce->checkState(0) == Qt::Checked) {
            const QString sTabella = voce->text(0);
            Protetto([this, &sTabella] { EseguiTabella(sTabella); });
        }
    }
    Protetto([this] { Termina(); });
    Protetto(
        [this] { MsgBox(Elenco(), Pulsanti::Ok, Icona::Informazione, impostazioni.sTitoloFine); });
    cmdEsegui->setEnabled(true);
    bInCorso = false;
    accept();
}

void frmTabelleScambio::closeEvent(QCloseEvent* evento) {
    // A run in progress cannot be left halfway.
    if (bInCorso)
        evento->ignore();
    else
        QDialog::closeEvent(evento);
}

void frmTabelleScambio::reject() {
    if (!bInCorso)
        QDialog::reject();
}
