#include "frmAltreDenominazioni.h"

#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QString Sorgente = QStringLiteral("frmAltreDenominazioni");
const QString PrefissoChiave = QStringLiteral("ID");
constexpr int RuoloChiave = Qt::UserRole;

void MostraErrore(const QString& sTitolo, const Errore& errore) {
    MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, sTitolo);
}

const Connessione& ConnessioneAperta() {
    if (!Sessione::cnn) {
        throw Errore(Sorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return *Sessione::cnn;
}

} // namespace

frmAltreDenominazioni::Tabella frmAltreDenominazioni::TabellaDelModo(const QString& sTipo) {
    if (sTipo == QLatin1String("CD")) {
        return {QStringLiteral("ComplessiDocDenominazioni"), QStringLiteral("ID_ComplessoDoc")};
    }
    if (sTipo == QLatin1String("IN")) {
        return {QStringLiteral("InventariDenominazioni"), QStringLiteral("ID_Inventario")};
    }
    if (sTipo == QLatin1String("PE")) {
        return {QStringLiteral("PersoneDenominazioni"), QStringLiteral("ID_Persona")};
    }
    if (sTipo == QLatin1String("FA")) {
        return {QStringLiteral("FamiglieDenominazioni"), QStringLiteral("ID_Famiglia")};
    }
    if (sTipo == QLatin1String("EN")) {
        return {QStringLiteral("EntiDenominazioni"), QStringLiteral("ID_Ente")};
    }
    return {};
}

frmAltreDenominazioni::frmAltreDenominazioni(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmAltreDenominazioni"));
    setWindowTitle(QStringLiteral("Altre Denominazioni"));
    setModal(true);

    Frame1 = new QGroupBox(this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    lvwDB = new QTreeWidget(Frame1);
    lvwDB->setObjectName(QStringLiteral("lvwDB"));
    lvwDB->setColumnCount(1);
    lvwDB->setRootIsDecorated(false);
    lvwDB->setItemsExpandable(false);
    lvwDB->setUniformRowHeights(true);
    lvwDB->setAllColumnsShowFocus(true);
    lvwDB->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwDB->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lvwDB->header()->setStretchLastSection(true);
    auto* cornice = new QVBoxLayout(Frame1);
    cornice->addWidget(lvwDB);

    lblAltraDenominazione = new QLabel(QStringLiteral("Altra Denominazione"), this);
    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setMaxLength(256);
    Text1->setEnabled(false);
    lblAltraDenominazione->setBuddy(Text1);

    cmdNuovaDenom = new QPushButton(QStringLiteral("Nuova Denominazione"), this);
    cmdNuovaDenom->setObjectName(QStringLiteral("cmdNuovaDenom"));
    cmdModifica = new QPushButton(QStringLiteral("Modifica denominazione"), this);
    cmdModifica->setObjectName(QStringLiteral("cmdModifica"));
    cmdCancella = new QPushButton(QStringLiteral("Cancella Denominazione"), this);
    cmdCancella->setObjectName(QStringLiteral("cmdCancella"));
    cmdConferma = new QPushButton(QStringLiteral("Conferma dati"), this);
    cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    for (QPushButton* pulsante :
         {cmdNuovaDenom, cmdModifica, cmdCancella, cmdConferma, cmdAnnulla}) {
        pulsante->setAutoDefault(false);
    }

    auto* testo = new QHBoxLayout;
    testo->addWidget(lblAltraDenominazione);
    testo->addWidget(Text1, 1);
    auto* pulsanti = new QHBoxLayout;
    pulsanti->addWidget(cmdNuovaDenom);
    pulsanti->addWidget(cmdModifica);
    pulsanti->addWidget(cmdCancella);
    pulsanti->addStretch();
    pulsanti->addWidget(cmdConferma);
    pulsanti->addWidget(cmdAnnulla);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Frame1, 1);
    layout->addLayout(testo);
    layout->addLayout(pulsanti);
    resize(560, 360);

    connect(lvwDB, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* riga, int) { lvwDB_ItemClick(riga); });
    // Moving along the list with the keys is a click on the row reached.
    connect(lvwDB, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* riga, QTreeWidgetItem*) {
                if (!bInterno && riga != nullptr) {
                    lvwDB_ItemClick(riga);
                }
            });
    connect(cmdNuovaDenom, &QPushButton::clicked, this,
            &frmAltreDenominazioni::cmdNuovaDenom_Click);
    connect(cmdModifica, &QPushButton::clicked, this, &frmAltreDenominazioni::cmdModifica_Click);
    connect(cmdCancella, &QPushButton::clicked, this, &frmAltreDenominazioni::cmdCancella_Click);
    connect(cmdConferma, &QPushButton::clicked, this, &frmAltreDenominazioni::cmdConferma_Click);
    connect(cmdAnnulla, &QPushButton::clicked, this, &frmAltreDenominazioni::cmdAnnulla_Click);

    Carica();
}

void frmAltreDenominazioni::Carica() {
    cmdCancella->setEnabled(false);
    cmdAnnulla->setEnabled(false);
    cmdConferma->setEnabled(false);
    cmdModifica->setEnabled(false);
    Text1->clear();
    bInterno = true;
    lvwDB->clear();
    lvwDB->setHeaderLabels({QStringLiteral("Altre Denominazioni ")});
    bInterno = false;
    try {
        const Tabella tabella = TabellaDelModo(Sessione::sTipoAltreDen);
        if (!tabella.sNome.isEmpty()) {
            QSqlQuery righe = ConnessioneAperta().Esegui(
                QStringLiteral("SELECT ID_Denominazione, AltraDenominazione FROM %1 "
                               "WHERE %2 = ? ORDER BY ID_Denominazione")
                    .arg(tabella.sNome, tabella.sChiaveEsterna),
                {static_cast<qlonglong>(Sessione::lIdAltreDen)}, Sorgente);
            while (righe.next()) {
                AggiungiRiga(righe.value(1).toString().trimmed(), righe.value(0).toLongLong());
            }
        }
        if (lvwDB->topLevelItemCount() > 0) {
            cmdModifica->setEnabled(true);
            cmdCancella->setEnabled(true);
            lvwDB_ItemClick(lvwDB->topLevelItem(0));
        }
    } catch (const Errore& errore) {
        MostraErrore(QStringLiteral("Errore A3"), errore);
    }
}

QTreeWidgetItem* frmAltreDenominazioni::AggiungiRiga(const QString& sTesto, qint64 lId) {
    bInterno = true;
    auto* riga = new QTreeWidgetItem(lvwDB, {sTesto});
    riga->setData(0, RuoloChiave, PrefissoChiave + QString::number(lId));
    riga->setSelected(false);
    bInterno = false;
    return riga;
}

QTreeWidgetItem* frmAltreDenominazioni::RigaDellaChiave() const {
    for (int i = 0; i < lvwDB->topLevelItemCount(); ++i) {
        QTreeWidgetItem* riga = lvwDB->topLevelItem(i);
        if (riga->data(0, RuoloChiave).toString() == sChiave) {
            return riga;
        }
    }
    return nullptr;
}

qint64 frmAltreDenominazioni::IdDellaChiave() const {
    return sChiave.mid(PrefissoChiave.size()).toLongLong();
}

void frmAltreDenominazioni::lvwDB_ItemClick(QTreeWidgetItem* riga) {
    if (riga == nullptr) {
        return;
    }
    sChiave = riga->data(0, RuoloChiave).toString();
    cmdConferma->setEnabled(false);
    cmdAnnulla->setEnabled(false);
    cmdNuovaDenom->setEnabled(true);
    cmdModifica->setEnabled(true);
    cmdCancella->setEnabled(true);
    Text1->setText(riga->text(0));
}

void frmAltreDenominazioni::Inserimento() {
    Text1->setEnabled(true);
    Frame1->setEnabled(false);
    cmdNuovaDenom->setEnabled(false);
    cmdModifica->setEnabled(false);
    cmdCancella->setEnabled(false);
    cmdAnnulla->setEnabled(true);
    cmdConferma->setEnabled(true);
}

void frmAltreDenominazioni::Consultazione() {
    cmdConferma->setEnabled(false);
    cmdAnnulla->setEnabled(false);
    cmdNuovaDenom->setEnabled(true);
    cmdModifica->setEnabled(false);
    cmdCancella->setEnabled(false);
    Text1->clear();
    Text1->setEnabled(false);
    Frame1->setEnabled(true);
}

void frmAltreDenominazioni::cmdNuovaDenom_Click() {
    sAzione = QStringLiteral("Nuova");
    Inserimento();
    Text1->clear();
    Text1->setFocus();
}

void frmAltreDenominazioni::cmdModifica_Click() {
    sAzione = QStringLiteral("Modifica");
    Inserimento();
}

void frmAltreDenominazioni::cmdAnnulla_Click() {
    Consultazione();
}

void frmAltreDenominazioni::cmdConferma_Click() {
    try {
        const Tabella tabella = TabellaDelModo(Sessione::sTipoAltreDen);
        if (sAzione == QLatin1String("Nuova")) {
            // Only a box left strictly empty is refused: blanks pass, and are stored trimmed.
            if (Text1->text().isEmpty()) {
                MsgBox(QStringLiteral("Inserire Denominazione"), Pulsanti::Ok, Icona::Informazione,
                       QStringLiteral("Attenzione"));
                return;
            }
            const QString sTesto = Text1->text().trimmed();
            if (!tabella.sNome.isEmpty()) {
                const qint64 lId = ConnessioneAperta().Inserisci(
                    tabella.sNome, QStringLiteral("ID_Denominazione"),
                    {tabella.sChiaveEsterna, QStringLiteral("AltraDenominazione")},
                    {static_cast<qlonglong>(Sessione::lIdAltreDen), sTesto});
                AggiungiRiga(sTesto, lId);
            }
        } else if (sAzione == QLatin1String("Modifica")) {
            // A change is not tested for an empty text: a name may be blanked this way.
            if (!tabella.sNome.isEmpty()) {
                ConnessioneAperta().Esegui(QStringLiteral("UPDATE %1 SET AltraDenominazione = ? "
                                                          "WHERE ID_Denominazione = ?")
                                               .arg(tabella.sNome),
                                           {Text1->text().trimmed(), IdDellaChiave()}, Sorgente);
            }
            if (QTreeWidgetItem* riga = RigaDellaChiave()) {
                riga->setText(0, Text1->text());
            }
        }
        Consultazione();
    } catch (const Errore& errore) {
        MostraErrore(QStringLiteral("Errore A2"), errore);
    }
}

void frmAltreDenominazioni::cmdCancella_Click() {
    if (MsgBox(QStringLiteral("Sei sicuro di voler cancellare?"), Pulsanti::SiNo, Icona::Domanda,
               QStringLiteral("Cancella")) != Risposta::Si) {
        return;
    }
    try {
        for (QPushButton* pulsante :
             {cmdNuovaDenom, cmdModifica, cmdCancella, cmdConferma, cmdAnnulla}) {
            pulsante->setEnabled(false);
        }
        const Tabella tabella = TabellaDelModo(Sessione::sTipoAltreDen);
        if (!tabella.sNome.isEmpty()) {
            ConnessioneAperta().Esegui(
                QStringLiteral("DELETE FROM %1 WHERE ID_Denominazione = ?").arg(tabella.sNome),
                {IdDellaChiave()}, Sorgente);
        }
        if (QTreeWidgetItem* riga = RigaDellaChiave()) {
            bInterno = true;
            delete riga;
            bInterno = false;
        }
        Consultazione();
    } catch (const Errore& errore) {
        MostraErrore(QStringLiteral("Errore A1"), errore);
    }
}
