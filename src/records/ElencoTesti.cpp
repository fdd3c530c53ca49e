#include "ElencoTesti.h"

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
#include <utility>

namespace {

const QString PrefissoChiave = QStringLiteral("ID");
constexpr int RuoloChiave = Qt::UserRole;

void MostraErrore(const QString& sTitolo, const Errore& errore) {
    MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, sTitolo);
}

const Connessione& ConnessioneAperta(const QString& sSorgente) {
    if (!Sessione::cnn) {
        throw Errore(sSorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return *Sessione::cnn;
}

} // namespace

ElencoTesti::ElencoTesti(Descrizione descrizioneDialogo, QWidget* parent)
    : QDialog(parent)
    , descrizione(std::move(descrizioneDialogo)) {
    setObjectName(descrizione.sNome);
    setWindowTitle(descrizione.sCaption);
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

    lblTesto = new QLabel(descrizione.sEtichetta, this);
    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    if (descrizione.iMax > 0) {
        Text1->setMaxLength(descrizione.iMax);
    }
    Text1->setEnabled(false);
    lblTesto->setBuddy(Text1);

    cmdNuovaDenom = new QPushButton(descrizione.sNuovo, this);
    cmdNuovaDenom->setObjectName(QStringLiteral("cmdNuovaDenom"));
    cmdModifica = new QPushButton(descrizione.sModifica, this);
    cmdModifica->setObjectName(QStringLiteral("cmdModifica"));
    cmdCancella = new QPushButton(descrizione.sCancella, this);
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
    testo->addWidget(lblTesto);
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
    connect(cmdNuovaDenom, &QPushButton::clicked, this, &ElencoTesti::cmdNuovaDenom_Click);
    connect(cmdModifica, &QPushButton::clicked, this, &ElencoTesti::cmdModifica_Click);
    connect(cmdCancella, &QPushButton::clicked, this, &ElencoTesti::cmdCancella_Click);
    connect(cmdConferma, &QPushButton::clicked, this, &ElencoTesti::cmdConferma_Click);
    connect(cmdAnnulla, &QPushButton::clicked, this, &ElencoTesti::cmdAnnulla_Click);

    Carica();
}

ElencoTesti::~ElencoTesti() = default;

void ElencoTesti::Carica() {
    cmdCancella->setEnabled(false);
    cmdAnnulla->setEnabled(false);
    cmdConferma->setEnabled(false);
    cmdModifica->setEnabled(false);
    Text1->clear();
    bInterno = true;
    lvwDB->clear();
    lvwDB->setHeaderLabels({descrizione.sIntestazione});
    bInterno = false;
    try {
        const Tabella tabella = descrizione.tabella();
        if (!tabella.sNome.isEmpty()) {
            // In the order the rows were made.
            QSqlQuery righe =
                ConnessioneAperta(descrizione.sNome)
                    .Esegui(QStringLiteral("SELECT %1, %2 FROM %3 "
                                           "WHERE %4 = ? ORDER BY %1")
                                .arg(tabella.sChiave, tabella.sColonnaTesto, tabella.sNome,
                                     tabella.sChiaveEsterna),
                            {static_cast<qlonglong>(descrizione.idRecord())}, descrizione.sNome);
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

QTreeWidgetItem* ElencoTesti::AggiungiRiga(const QString& sTesto, qint64 lId) {
    bInterno = true;
    auto* riga = new QTreeWidgetItem(lvwDB, {sTesto});
    riga->setData(0, RuoloChiave, PrefissoChiave + QString::number(lId));
    riga->setSelected(false);
    bInterno = false;
    return riga;
}

QTreeWidgetItem* ElencoTesti::RigaDellaChiave() const {
    for (int i = 0; i < lvwDB->topLevelItemCount(); ++i) {
        QTreeWidgetItem* riga = lvwDB->topLevelItem(i);
        if (riga->data(0, RuoloChiave).toString() == sChiave) {
            return riga;
        }
    }
    return nullptr;
}

qint64 ElencoTesti::IdDellaChiave() const {
    return sChiave.mid(PrefissoChiave.size()).toLongLong();
}

void ElencoTesti::lvwDB_ItemClick(QTreeWidgetItem* riga) {
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

void ElencoTesti::Inserimento() {
    Text1->setEnabled(true);
    Frame1->setEnabled(false);
    cmdNuovaDenom->setEnabled(false);
    cmdModifica->setEnabled(false);
    cmdCancella->setEnabled(false);
    cmdAnnulla->setEnabled(true);
    cmdConferma->setEnabled(true);
}

void ElencoTesti::Consultazione() {
    cmdConferma->setEnabled(false);
    cmdAnnulla->setEnabled(false);
    cmdNuovaDenom->setEnabled(true);
    cmdModifica->setEnabled(false);
    cmdCancella->setEnabled(false);
    Text1->clear();
    Text1->setEnabled(false);
    Frame1->setEnabled(true);
}

void ElencoTesti::cmdNuovaDenom_Click() {
    sAzione = QStringLiteral("Nuova");
    Inserimento();
    Text1->clear();
    Text1->setFocus();
}

void ElencoTesti::cmdModifica_Click() {
    sAzione = QStringLiteral("Modifica");
    Inserimento();
}

void ElencoTesti::cmdAnnulla_Click() {
    Consultazione();
}

void ElencoTesti::cmdConferma_Click() {
    try {
        const Tabella tabella = descrizione.tabella();
        if (sAzione == QLatin1String("Nuova")) {
            // Only a box left strictly empty is refused: blanks pass, and are stored trimmed.
            if (Text1->text().isEmpty()) {
                MsgBox(descrizione.sMessaggioVuoto, Pulsanti::Ok, Icona::Informazione,
                       QStringLiteral("Attenzione"));
                return;
            }
            const QString sTesto = Text1->text().trimmed();
            if (!tabella.sNome.isEmpty()) {
                const qint64 lId =
                    ConnessioneAperta(descrizione.sNome)
                        .Inserisci(tabella.sNome, tabella.sChiave,
                                   {tabella.sChiaveEsterna, tabella.sColonnaTesto},
                                   {static_cast<qlonglong>(descrizione.idRecord()), sTesto});
                AggiungiRiga(sTesto, lId);
            }
        } else if (sAzione == QLatin1String("Modifica")) {
            // A change is not tested for an empty text: a text may be blanked this way.
            if (!tabella.sNome.isEmpty()) {
                ConnessioneAperta(descrizione.sNome)
                    .Esegui(QStringLiteral("UPDATE %1 SET %2 = ? WHERE %3 = ?")
                                .arg(tabella.sNome, tabella.sColonnaTesto, tabella.sChiave),
                            {Text1->text().trimmed(), IdDellaChiave()}, descrizione.sNome);
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

void ElencoTesti::cmdCancella_Click() {
    if (MsgBox(QStringLiteral("Sei sicuro di voler cancellare?"), Pulsanti::SiNo, Icona::Domanda,
               QStringLiteral("Cancella")) != Risposta::Si) {
        return;
    }
    try {
        for (QPushButton* pulsante :
             {cmdNuovaDenom, cmdModifica, cmdCancella, cmdConferma, cmdAnnulla}) {
            pulsante->setEnabled(false);
        }
        const Tabella tabella = descrizione.tabella();
        if (!tabella.sNome.isEmpty()) {
            ConnessioneAperta(descrizione.sNome)
                .Esegui(QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                            .arg(tabella.sNome, tabella.sChiave),
                        {IdDellaChiave()}, descrizione.sNome);
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
