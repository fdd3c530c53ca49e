#include "frmEsporta.h"

#include "exchange/Export.h"
#include "exchange/frmSceltaCartella.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmEsporta::frmEsporta(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmEsporta"));
    setWindowTitle(QStringLiteral("Esporta"));
    setModal(true);
    lvwDB = new QTreeWidget(this);
    lvwDB->setObjectName(QStringLiteral("lvwDB"));
    lvwDB->setRootIsDecorated(false);
    lvwDB->setMinimumSize(360, 260);
    lblTabella = new QLabel(this);
    lblTabella->setObjectName(QStringLiteral("lblTabella"));
    lblRecord = new QLabel(this);
    lblRecord->setObjectName(QStringLiteral("lblRecord"));
    cmdEsporta = new QPushButton(QStringLiteral("Esporta"), this);
    cmdEsporta->setObjectName(QStringLiteral("cmdEsporta"));
    cmdEsporta->setAutoDefault(false);

    auto* pulsanti = new QHBoxLayout;
    pulsanti->addWidget(lblTabella, 1);
    pulsanti->addWidget(lblRecord);
    pulsanti->addWidget(cmdEsporta);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwDB);
    layout->addLayout(pulsanti);
    connect(cmdEsporta, &QPushButton::clicked, this, &frmEsporta::cmdEsportaClick);

    Carica();
    if (parent) {
        adjustSize();
        move(parent->window()->geometry().center() - rect().center());
    }
}

void frmEsporta::Carica() {
    try {
        lvwDB->clear();
        lvwDB->setColumnCount(1);
        lvwDB->setHeaderLabels({QStringLiteral("Nome tabella da esportare")});
        // A schema folder that is not there or can't be read is a failure, not an empty list.
        ControllaCartellaScambio(Sessione::sParam09, objectName());
        int i = 0;
        for (const QString& sTabella : Export::TabelleDisponibili(Sessione::sParam09)) {
            auto* voce = new QTreeWidgetItem(lvwDB, {sTabella});
            voce->setData(0, Qt::UserRole, QStringLiteral("ID") + QString::number(++i));
            voce->setFlags(voce->flags() | Qt::ItemIsUserCheckable);
            voce->setCheckState(0, Qt::Checked);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore W1"));
    }
}

void frmEsporta::MostraAvanzamento(const QString& sTabella, qint64 lRecord) {
    lblTabella->setText(sTabella);
    lblRecord->setText(QString::number(lRecord));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmEsporta::cmdEsportaClick() {
    if (bInCorso)
        return;
    bInCorso = true;
    cmdEsporta->setEnabled(false);
    lvwDB->setEnabled(false);
    Export::NumeroTabelle = 0;
    Export::TabelleEsportate.clear();
    const auto progresso = [this](const QString& sTabella, qint64 lRecord) {
        MostraAvanzamento(sTabella, lRecord);
    };
    for (int i = 0; i < lvwDB->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* voce = lvwDB->topLevelItem(i);
        if (voce->checkState(0) == Qt::Checked)
            Export::EsportaTabella(voce->text(0), progresso);
    }
    MsgBox(Export::ElencoTabelleEsportate(), Pulsanti::Ok, Icona::Informazione,
           QStringLiteral("Tabelle esportate"));
    bInCorso = false;
    accept();
}
