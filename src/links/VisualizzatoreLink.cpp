#include "VisualizzatoreLink.h"

#include "records/EditoreRecord.h"
#include "session/Conversioni.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QString SuffissoChiave = QStringLiteral("ID");
constexpr int RuoloChiave = Qt::UserRole;

const Connessione& ConnessioneAperta(const QString& sSorgente) {
    if (!Sessione::cnn) {
        throw Errore(sSorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return *Sessione::cnn;
}

QTreeWidget* NuovaLista(QWidget* genitore, const QString& sNome, const QStringList& colonne) {
    auto* lista = new QTreeWidget(genitore);
    lista->setObjectName(sNome);
    lista->setColumnCount(static_cast<int>(qMax<qsizetype>(1, colonne.size())));
    lista->setHeaderLabels(colonne);
    lista->setRootIsDecorated(false);
    lista->setItemsExpandable(false);
    lista->setUniformRowHeights(true);
    lista->setAllColumnsShowFocus(true);
    lista->setSelectionMode(QAbstractItemView::SingleSelection);
    lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lista->header()->setStretchLastSection(true);
    return lista;
}

QPushButton* NuovoPulsante(QWidget* genitore, const QString& sNome, const QString& sTesto) {
    auto* pulsante = new QPushButton(sTesto, genitore);
    pulsante->setObjectName(sNome);
    pulsante->setAutoDefault(false);
    return pulsante;
}

} // namespace

VisualizzatoreLink::VisualizzatoreLink(DescrizioneLink desc, QWidget* parent)
    : QDialog(parent)
    , descrizione(std::move(desc)) {
    setObjectName(descrizione.sNome);
    setWindowTitle(descrizione.sTitolo);
    setModal(true);

    auto* layout = new QVBoxLayout(this);
    Label1 = new QLabel(descrizione.sEtichetta, this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Text1 = new QLineEdit(descrizione.sDenominazione, this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setReadOnly(true);
    Label1->setBuddy(Text1);
    layout->addWidget(Label1);
    layout->addWidget(Text1);

    const auto colonneDi = [this](qsizetype i) {
        if (descrizione.colonne.isEmpty()) {
            return QStringList{QString()};
        }
        return descrizione.colonne.value(i, descrizione.colonne.constFirst());
    };
    if (descrizione.schede.isEmpty()) {
        liste << NuovaLista(this, QStringLiteral("lvwDB"), colonneDi(0));
        layout->addWidget(liste.constFirst(), 1);
    } else {
        SSTab1 = new QTabWidget(this);
        SSTab1->setObjectName(QStringLiteral("SSTab1"));
        for (qsizetype i = 0; i < descrizione.schede.size(); ++i) {
            auto* pagina = new QWidget(SSTab1);
            auto* cornice = new QVBoxLayout(pagina);
            QTreeWidget* lista =
                NuovaLista(pagina, QStringLiteral("lvwDB(%1)").arg(i), colonneDi(i));
            cornice->addWidget(lista);
            liste << lista;
            SSTab1->addTab(pagina, descrizione.schede.at(i));
        }
        layout->addWidget(SSTab1, 1);
        connect(SSTab1, &QTabWidget::currentChanged, this, [this] { ImpostaPulsanti(); });
    }
    for (QTreeWidget* lista : std::as_const(liste)) {
        connect(lista, &QTreeWidget::itemClicked, this,
                [this](QTreeWidgetItem* riga, int) { ItemClick(riga); });
        connect(lista, &QTreeWidget::currentItemChanged, this,
                [this](QTreeWidgetItem* riga, QTreeWidgetItem*) { ItemClick(riga); });
    }

    auto* pulsanti = new QHBoxLayout;
    cmdCancella =
        NuovoPulsante(this, QStringLiteral("cmdCancella"), QStringLiteral("Cancella collegamento"));
    pulsanti->addWidget(cmdCancella);
    connect(cmdCancella, &QPushButton::clicked, this, &VisualizzatoreLink::cmdCancella_Click);
    if (!descrizione.sProsegui.isEmpty()) {
        cmdNuovoCol = NuovoPulsante(this, QStringLiteral("cmdNuovoCol"),
                                    QStringLiteral("Nuovo collegamento"));
        pulsanti->addWidget(cmdNuovoCol);
        connect(cmdNuovoCol, &QPushButton::clicked, this, &VisualizzatoreLink::cmdNuovoCol_Click);
    }
    if (!descrizione.sFileRuoli.isEmpty()) {
        Frame1 = new QGroupBox(this);
        Frame1->setObjectName(QStringLiteral("Frame1"));
        auto* cornice = new QHBoxLayout(Frame1);
        cmbRuolo = new QComboBox(Frame1);
        cmbRuolo->setObjectName(QStringLiteral("cmbRuolo"));
        cmbRuolo->setEditable(true);
        cmbRuolo->setInsertPolicy(QComboBox::NoInsert);
        cornice->addWidget(cmbRuolo, 1);
        layout->addWidget(Frame1);
        cmdModificaRuolo = NuovoPulsante(this, QStringLiteral("cmdModificaRuolo"),
                                         QStringLiteral("Modifica ruolo"));
        cmdConferma =
            NuovoPulsante(this, QStringLiteral("cmdConferma"), QStringLiteral("Conferma dati"));
        cmdAnnulla = NuovoPulsante(this, QStringLiteral("cmdAnnulla"), QStringLiteral("Annulla"));
        pulsanti->addWidget(cmdModificaRuolo);
        pulsanti->addStretch();
        pulsanti->addWidget(cmdConferma);
        pulsanti->addWidget(cmdAnnulla);
        connect(cmdModificaRuolo, &QPushButton::clicked, this,
                &VisualizzatoreLink::cmdModificaRuolo_Click);
        connect(cmdConferma, &QPushButton::clicked, this, &VisualizzatoreLink::cmdConferma_Click);
        connect(cmdAnnulla, &QPushButton::clicked, this, &VisualizzatoreLink::cmdAnnulla_Click);
        connect(cmbRuolo->lineEdit(), &QLineEdit::textEdited, this,
                [this](const QString& sTesto) { RuoloDigitato(sTesto); });
    } else {
        pulsanti->addStretch();
    }
    layout->addLayout(pulsanti);
    resize(640, 400);

    Carica();
    if (cmbRuolo != nullptr) {
        CaricaRuoli();
    }
}

// --- The list ------------------------------------------------------------------------------

void VisualizzatoreLink::Carica() {
    for (QTreeWidget* lista : std::as_const(liste)) {
        const QSignalBlocker blocco(lista);
        lista->clear();
    }
    try {
        const QList<RigaLink> righe = descrizione.carica ? descrizione.carica() : QList<RigaLink>();
        for (const RigaLink& riga : righe) {
            QTreeWidget* lista = liste.value(riga.iScheda, liste.constFirst());
            const QSignalBlocker blocco(lista);
            auto* voce = new QTreeWidgetItem(lista, riga.testi);
            voce->setData(0, RuoloChiave, QString::number(riga.lId) + SuffissoChiave);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, descrizione.sErroreCarica);
    }
    for (QTreeWidget* lista : std::as_const(liste)) {
        if (lista->topLevelItemCount() > 0) {
            lista->setCurrentItem(lista->topLevelItem(0));
        }
    }
    ItemClick(ListaCorrente()->currentItem());
    ImpostaPulsanti();
}

int VisualizzatoreLink::Conteggio() const {
    int iConteggio = 0;
    for (const QTreeWidget* lista : liste) {
        iConteggio += lista->topLevelItemCount();
    }
    return iConteggio;
}

int VisualizzatoreLink::SchedaCorrente() const {
    return SSTab1 != nullptr ? SSTab1->currentIndex() : 0;
}

QTreeWidget* VisualizzatoreLink::ListaCorrente() const {
    return SSTab1 != nullptr ? liste.value(SSTab1->currentIndex(), liste.constFirst())
                             : liste.constFirst();
}

qint64 VisualizzatoreLink::IdDi(const QTreeWidgetItem* riga) {
    const QString sChiave = riga->data(0, RuoloChiave).toString();
    return sChiave.left(sChiave.size() - SuffissoChiave.size()).toLongLong();
}

void VisualizzatoreLink::ItemClick(QTreeWidgetItem* riga) {
    if (riga == nullptr || cmbRuolo == nullptr) {
        return;
    }
    cmbRuolo->setEditText(riga->text(1));
}

void VisualizzatoreLink::ImpostaPulsanti() {
    const bool bVoci = ListaCorrente()->topLevelItemCount() > 0;
    cmdCancella->setEnabled(!bModificaRuolo && bVoci);
    if (cmdNuovoCol != nullptr) {
        cmdNuovoCol->setEnabled(!bModificaRuolo);
    }
    if (cmbRuolo != nullptr) {
        Frame1->setEnabled(bModificaRuolo);
        cmbRuolo->setEnabled(bModificaRuolo);
        cmdModificaRuolo->setEnabled(!bModificaRuolo && bVoci);
        cmdConferma->setEnabled(bModificaRuolo);
        cmdAnnulla->setEnabled(bModificaRuolo);
    }
    for (QTreeWidget* lista : std::as_const(liste)) {
        lista->setEnabled(!bModificaRuolo);
    }
}

// --- Deleting ------------------------------------------------------------------------------

bool VisualizzatoreLink::CancellaRiga(const QString& sTabella, const QStringList& colonne,
                                      const QVariantList& valori) {
    QStringList condizioni;
    for (const QString& sColonna : colonne) {
        condizioni << sColonna + QStringLiteral(" = ?");
    }
    const QString sDove = condizioni.join(QStringLiteral(" AND "));
    const Connessione& cnn = ConnessioneAperta(sTabella);
    QSqlQuery trovata = cnn.EseguiLista(
        QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2").arg(sTabella, sDove), valori, sTabella);
    if (!trovata.next() || trovata.value(0).toLongLong() == 0) {
        return false;
    }
    cnn.EseguiLista(QStringLiteral("DELETE FROM %1 WHERE %2").arg(sTabella, sDove), valori,
                    sTabella);
    return true;
}

void VisualizzatoreLink::cmdCancella_Click() {
    if (MsgBox(descrizione.sDomanda, Pulsanti::SiNo, Icona::Domanda, QStringLiteral("Cancella")) !=
        Risposta::Si) {
        return;
    }
    QTreeWidget* lista = ListaCorrente();
    QTreeWidgetItem* riga = lista->currentItem();
    if (riga == nullptr) {
        ImpostaPulsanti();
        return;
    }
    try {
        if (descrizione.cancella && descrizione.cancella(IdDi(riga))) {
            const int iIndice = lista->indexOfTopLevelItem(riga);
            {
                const QSignalBlocker blocco(lista);
                delete riga;
            }
            const int iConteggio = lista->topLevelItemCount();
            if (iConteggio > 0) {
                lista->setCurrentItem(lista->topLevelItem(qMin(iIndice, iConteggio - 1)));
                ItemClick(lista->currentItem());
            }
            // The opener hears of a removal only when no link of the sort is left.
            if (descrizione.piEsito != nullptr && Conteggio() == 0) {
                *descrizione.piEsito = 2;
            }
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, descrizione.sErroreCancella);
    }
    ImpostaPulsanti();
}

// --- Going on ------------------------------------------------------------------------------

void VisualizzatoreLink::cmdNuovoCol_Click() {
    if (descrizione.puoProseguire && !descrizione.puoProseguire(*this)) {
        return;
    }
    if (descrizione.bProseguiRestando) {
        if (Dialoghi::Apri(descrizione.sProsegui, this, descrizione.argomentiProsegui) &&
            (!descrizione.collegato || descrizione.collegato())) {
            Carica();
        }
        return;
    }
    setProperty(Dialoghi::ProprietaProsegui, descrizione.sProsegui);
    setProperty(Dialoghi::ProprietaArgomentiProsegui, descrizione.argomentiProsegui);
    reject();
}

// --- The role ------------------------------------------------------------------------------

void VisualizzatoreLink::CaricaRuoli() {
    try {
        EditoreRecord::CaricaLista(cmbRuolo, descrizione.sFileRuoli);
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, descrizione.sErroreCarica);
    }
    if (QTreeWidgetItem* riga = ListaCorrente()->currentItem()) {
        ItemClick(riga);
    } else {
        cmbRuolo->setEditText(QString());
    }
}

void VisualizzatoreLink::RuoloDigitato(const QString& sTesto) {
    if (sTesto.size() <= MassimoRuolo) {
        return;
    }
    MsgBox(QStringLiteral("Il campo Ruolo prevede un massimo di 32 caratteri!"), Pulsanti::Ok,
           Icona::Esclamazione);
    cmbRuolo->setEditText(sTesto.left(MassimoRuolo));
}

void VisualizzatoreLink::cmdModificaRuolo_Click() {
    bModificaRuolo = true;
    ImpostaPulsanti();
    cmbRuolo->setFocus();
}

void VisualizzatoreLink::cmdAnnulla_Click() {
    bModificaRuolo = false;
    ImpostaPulsanti();
    ItemClick(ListaCorrente()->currentItem());
}

void VisualizzatoreLink::cmdConferma_Click() {
    QTreeWidgetItem* riga = ListaCorrente()->currentItem();
    if (riga != nullptr) {
        try {
            const Connessione& cnn = ConnessioneAperta(descrizione.sNome);
            const QString sDove = descrizione.sChiaveRuolo + QStringLiteral(" = ?");
            const QVariant id = IdDi(riga);
            QSqlQuery trovata = cnn.Esegui(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2")
                                               .arg(descrizione.sTabellaRuolo, sDove),
                                           {id}, descrizione.sNome);
            if (trovata.next() && trovata.value(0).toLongLong() > 0) {
                const QVariant ruolo = NullSeVuoto(cmbRuolo->currentText());
                cnn.Esegui(QStringLiteral("UPDATE %1 SET Ruolo = ? WHERE %2")
                               .arg(descrizione.sTabellaRuolo, sDove),
                           {ruolo.isNull() ? EditoreRecord::NullTesto() : ruolo, id},
                           descrizione.sNome);
                riga->setText(1, ruolo.isNull() ? QString() : ruolo.toString().trimmed());
            }
        } catch (const Errore& errore) {
            MsgBox(QString::number(errore.numero()) + QStringLiteral("\r\n") + errore.descrizione(),
                   Pulsanti::Ok, Icona::Critica);
        }
    }
    cmdAnnulla_Click();
}
