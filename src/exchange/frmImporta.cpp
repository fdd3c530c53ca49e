#include "frmImporta.h"

#include "exchange/Import.h"
#include "exchange/frmSceltaCartella.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmImporta::frmImporta(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmImporta"));
    setWindowTitle(QStringLiteral("Importa"));
    setModal(true);
    lvwDB = new QTreeWidget(this);
    lvwDB->setObjectName(QStringLiteral("lvwDB"));
    lvwDB->setRootIsDecorated(false);
    lvwDB->setMinimumSize(360, 260);
    lblTabella = new QLabel(this);
    lblTabella->setObjectName(QStringLiteral("lblTabella"));
    lblRecord = new QLabel(this);
    lblRecord->setObjectName(QStringLiteral("lblRecord"));
    cmdImporta = new QPushButton(QStringLiteral("Importa"), this);
    cmdImporta->setObjectName(QStringLiteral("cmdImporta"));
    cmdImporta->setAutoDefault(false);

    auto* pulsanti = new QHBoxLayout;
    pulsanti->addWidget(lblTabella, 1);
    pulsanti->addWidget(lblRecord);
    pulsanti->addWidget(cmdImporta);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwDB);
    layout->addLayout(pulsanti);
    connect(cmdImporta, &QPushButton::clicked, this, &frmImporta::cmdImportaClick);

    Carica();
    if (parent) {
        adjustSize();
        move(parent->window()->geometry().center() - rect().center());
    }
}

void frmImporta::Carica() {
    try {
        lvwDB->clear();
        lvwDB->setColumnCount(1);
        lvwDB->setHeaderLabels({QStringLiteral("Nome tabella da importare")});
        // A schema folder that is not there or can't be read is a failure, not an empty list.
        ControllaCartellaScambio(Sessione::sParam09, objectName());
        int i = 0;
        for (const QString& sTabella : Import::TabelleOfferte(Sessione::sParam09)) {
            auto* voce = new QTreeWidgetItem(lvwDB, {sTabella});
            voce->setData(0, Qt::UserRole, QStringLiteral("ID") + QString::number(++i));
            voce->setFlags(voce->flags() | Qt::ItemIsUserCheckable);
            voce->setCheckState(0, Qt::Checked);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore W1"));
    }
}

void frmImporta::MostraAvanzamento(const QString& sTabella, qint64 lRecord) {
    lblTabella->setText(sTabella);
    lblRecord->setText(QString::number(lRecord));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmImporta::cmdImportaClick() {
    if (bInCorso)
        return;
    bInCorso = true;
    cmdImporta->setEnabled(false);
    lvwDB->setEnabled(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Import::TabelleImportate.clear();
    for (int i = 0; i < lvwDB->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* voce = lvwDB->topLevelItem(i);
        if (voce->checkState(0) != Qt::Checked)
            continue;
        const QString sTabella = voce->text(0);
        setWindowTitle(QStringLiteral("Importa: ") + sTabella + QStringLiteral(" ..."));
        MostraAvanzamento(sTabella, 0);
        Import::ImportaTabella(
            sTabella, [this, sTabella](qint64 lRecord) { MostraAvanzamento(sTabella, lRecord); });
    }
    QApplication::restoreOverrideCursor();
    MsgBox(Import::ElencoTabelleImportate(), Pulsanti::Ok, Icona::Informazione,
           QStringLiteral("Tabelle importate"));
    cmdImporta->setEnabled(true);
    bInCorso = false;
    accept();
}

void frmImporta::closeEvent(QCloseEvent* evento) {
    // A run in progress cannot be left halfway.
    if (bInCorso)
        evento->ignore();
    else
        QDialog::closeEvent(evento);
}

void frmImporta::reject() {
    if (!bInCorso)
        QDialog::reject();
}
