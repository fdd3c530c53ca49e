#include "ucVersamento.h"

#include "records/DisposizioneCampi.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>

namespace {

const QString SqlMostra =
    QStringLiteral("SELECT Data, COALESCE(Titolo,''), COALESCE(Note,''), NumeroRPC, "
                   "COALESCE(SogVersatore,''), COALESCE(TipoAcquisizione,''), DataAcquisizione, "
                   "COALESCE(NoteDirezione,''), Tipologia, ID_Istituto, ID_Versamento, ID_Elemento "
                   "FROM Versamenti WHERE ID_Elemento = ?");

const QString SqlScrivi = QStringLiteral(
    "UPDATE Versamenti SET Data = ?, Note = ?, NumeroRPC = ?, SogVersatore = ?, "
    "TipoAcquisizione = ?, DataAcquisizione = ?, NoteDirezione = ? WHERE ID_Elemento = ?");

const QString SqlStato =
    QStringLiteral("SELECT ID_Versamento, ID_Istituto FROM Versamenti WHERE ID_Elemento = ?");

// The number of the act for its column: Null for an empty box, else the whole number at the
// head of the text (blanks before it and a sign allowed; 0 when the text has none). The box
// takes at most 18 characters, so the number always fits.
QVariant NumeroAtto(const QString& sTesto) {
    if (sTesto.isEmpty())
        return EditoreRecord::NullNumero();
    int i = 0;
    while (i < sTesto.size() && sTesto.at(i) == QLatin1Char(' '))
        ++i;
    const int iInizio = i;
    if (i < sTesto.size() && (sTesto.at(i) == QLatin1Char('-') || sTesto.at(i) == QLatin1Char('+')))
        ++i;
    const int iCifre = i;
    while (i < sTesto.size() && sTesto.at(i).isDigit() && sTesto.at(i).unicode() < 128)
        ++i;
    if (i == iCifre)
        return QVariant(qlonglong(0));
    bool ok = false;
    const qlonglong numero = sTesto.mid(iInizio, i - iInizio).toLongLong(&ok);
    if (!ok)
        throw Errore(QStringLiteral("ucVersamento"), QStringLiteral("Overflow"), 6);
    return QVariant(numero);
}

// The number of the act as its box shows it: whole, without decimals or exponent.
QString TestoNumeroAtto(const QVariant& valore) {
    if (ENull(valore))
        return QString();
    if (valore.typeId() == QMetaType::Double)
        return QString::number(qRound64(valore.toDouble()));
    return QString::number(valore.toLongLong());
}

} // namespace

ucVersamento::ucVersamento(QWidget* parent)
    : EditoreRecord(parent) {
    setObjectName(QStringLiteral("ucVersamento"));

    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lblTipo = new QLabel(QStringLiteral("Tipo acquisizione"), this);
    cmbTipoAcquisizione = NuovaCombo(QStringLiteral("cmbTipoAcquisizione"),
                                     QStringLiteral(" Inserire il tipo di acquisizione"));
    QLabel* lbl1 = NuovaEtichetta(1, QStringLiteral("Numero"));
    QLineEdit* txt1 = NuovoTesto(1, 18, QStringLiteral("Inserire il numero"));
    QLabel* lbl2 = NuovaEtichetta(2, QStringLiteral("Soggetto versante"));
    QLineEdit* txt2 = NuovoTesto(2, 256, QStringLiteral("Inserire il soggetto versante"));
    QLabel* lbl5 = NuovaEtichetta(5, QStringLiteral("Note"));
    QPlainTextEdit* txt5 = NuovoTestoMultiRiga(5, 1024);
    QLabel* lbl6 = NuovaEtichetta(6, QStringLiteral("Note gestionali"));
    QPlainTextEdit* txt6 = NuovoTestoMultiRiga(6, 1024);
    QLabel* lblData = new QLabel(QStringLiteral("Data"), this);
    DTPData =
        NuovaData(QStringLiteral("DTPData"), QStringLiteral("Inserire la data di registrazione"));
    QLabel* lblDataAcq = new QLabel(QStringLiteral("Data acquisizione"), this);
    DTPDataAcq = NuovaData(QStringLiteral("DTPDataAcq"),
                           QStringLiteral(" Inserire la data di acquisizione"));

    // The rows of the act and their buttons.
    lvwDB = new QTreeWidget(this);
    lvwDB->setObjectName(QStringLiteral("lvwDB"));
    lvwDB->setColumnCount(1);
    lvwDB->setRootIsDecorated(false);
    lvwDB->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwDB->header()->setStretchLastSection(true);
    cmdNuovaRiga = new QPushButton(QStringLiteral("Nuova riga"), this);
    cmdNuovaRiga->setObjectName(QStringLiteral("cmdNuovaRiga"));
    cmdModificaRiga = new QPushButton(QStringLiteral("Modifica riga"), this);
    cmdModificaRiga->setObjectName(QStringLiteral("cmdModificaRiga"));
    cmdCancellaRiga = new QPushButton(QStringLiteral("Cancella riga"), this);
    cmdCancellaRiga->setObjectName(QStringLiteral("cmdCancellaRiga"));

    auto* griglia = new QGridLayout(this);
    int riga = 0;
    MettiCampo(griglia, riga, lblData, DTPData);
    MettiCampo(griglia, riga, lbl1, txt1);
    MettiCampo(griglia, riga, lbl2, txt2);
    MettiCampo(griglia, riga, lblTipo, cmbTipoAcquisizione);
    MettiCampo(griglia, riga, lblDataAcq, DTPDataAcq);
    MettiCampo(griglia, riga, lbl5, txt5);
    MettiCampo(griglia, riga, lbl6, txt6);
    griglia->addWidget(lvwDB, riga++, 0, 1, 2);
    auto* pulsanti = new QHBoxLayout;
    pulsanti->addWidget(cmdNuovaRiga);
    pulsanti->addWidget(cmdModificaRiga);
    pulsanti->addWidget(cmdCancellaRiga);
    pulsanti->addStretch(1);
    griglia->addLayout(pulsanti, riga++, 0, 1, 2);
    griglia->setColumnStretch(1, 1);
    for (QPlainTextEdit* breve : {txt5, txt6})
        breve->setMaximumHeight(breve->fontMetrics().lineSpacing() * 5);

    CatenaDelFuoco({DTPData, txt1, txt2, cmbTipoAcquisizione, DTPDataAcq, txt5, txt6, lvwDB,
                    cmdNuovaRiga, cmdModificaRiga, cmdCancellaRiga});

    connect(lvwDB, &QTreeWidget::itemClicked, this, [this] { RigaScelta(); });
    connect(cmdNuovaRiga, &QPushButton::clicked, this, [this] { cmdNuovaRiga_Click(); });
    connect(cmdModificaRiga, &QPushButton::clicked, this, [this] { cmdModificaRiga_Click(); });
    connect(cmdCancellaRiga, &QPushButton::clicked, this, [this] { cmdCancellaRiga_Click(); });
}

ucVersamento::~ucVersamento() = default;

QString ucVersamento::IntestazioneRighe() {
    return QStringLiteral("Righe di acquisizione ") + QString(40, QLatin1Char(' '));
}

// --- The protocol --------------------------------------------------------------------------

QList<QWidget*> ucVersamento::Controls() const {
    return EditoreRecord::Controls();
}

void ucVersamento::Init() {
    lIdElemento = 0;
    lIdPadre = 0;
    lIdVersamentoCorrente = 0;
    lIdRigaScelta = 0;
    iRigaScelta = -1;
    ID_Istituto = 0;
    OkNuovoVersamento = true;
    OkModifica = OkCancella = false;
    OkNuovaRiga = OkModificaRiga = OkCancellaRiga = false;
    cmbTipoAcquisizione->clear();
    CaricaLista(cmbTipoAcquisizione, QStringLiteral("TipoAcquisizione.txt"));
    lvwDB->clear();
    lvwDB->setHeaderLabels({IntestazioneRighe()});
    Blocca();
}

void ucVersamento::Nuovo() {
    Pulisci();
    lvwDB->clear();
    lIdElemento = 0;
    lIdVersamentoCorrente = 0;
    lIdRigaScelta = 0;
    iRigaScelta = -1;
    cmbTipoAcquisizione->setCurrentIndex(cmbTipoAcquisizione->count() > 0 ? 0 : -1);
    Sblocca();
}

void ucVersamento::Mostra(long IDElem) {
    Pulisci();
    lvwDB->clear();
    lIdElemento = IDElem;
    lIdPadre = 0;
    lIdRigaScelta = 0;
    iRigaScelta = -1;
    bool bPubblicato = false;
    LeggiElemento(IDElem, lIdPadre, bPubblicato);

    QSqlQuery riga = Sessione::cnn->Esegui(SqlMostra, {Id(IDElem)});
    if (!riga.next()) {
        LeggiStato(false, 0, 0);
        Blocca();
        return;
    }
    LeggiStato(true, Lungo(riga.value(10)), Lungo(riga.value(9)));
    CaricaRighe();
    // A missing date shows today.
    DTPData->setDate(GiornoDi(riga.value(0)));
    ImpostaTestoDi(Testo(5), riga.value(2).toString());
    ImpostaTestoDi(Testo(1), TestoNumeroAtto(riga.value(3)));
    ImpostaTestoDi(Testo(2), riga.value(4).toString());
    ImpostaTesto(cmbTipoAcquisizione, CercaTipoAcquisizione(riga.value(5).toString()));
    DTPDataAcq->setDate(GiornoDi(riga.value(6)));
    ImpostaTestoDi(Testo(6), riga.value(7).toString());
    Blocca();
}

void ucVersamento::CaricaRighe(long lIdSel) {
    lvwDB->clear();
    iRigaScelta = -1;
    QSqlQuery righe = Sessione::cnn->Esegui(
        QStringLiteral("SELECT ID_RigaVersamento, COALESCE(Denominazione,'') "
                       "FROM RigheVersamento WHERE ID_Versamento = ? ORDER BY ID_RigaVersamento"),
        {Id(lIdVersamentoCorrente)});
    QTreeWidgetItem* scelta = nullptr;
    while (righe.next()) {
        const long lId = Lungo(righe.value(0));
        auto* voce = new QTreeWidgetItem(lvwDB, {righe.value(1).toString()});
        voce->setData(0, Qt::UserRole, QStringLiteral("ID%1").arg(lId));
        if (lIdSel != 0 && lId == lIdSel)
            scelta = voce;
    }
    const bool bRighe = lvwDB->topLevelItemCount() > 0;
    // An act with rows cannot be deleted.
    OkCancella = lIdVersamentoCorrente != 0 && !bRighe;
    OkNuovaRiga = lIdVersamentoCorrente != 0;
    OkModificaRiga = bRighe;
    OkCancellaRiga = bRighe;
    if (scelta != nullptr) {
        lvwDB->setCurrentItem(scelta);
        scelta->setSelected(true);
        RigaScelta();
    } else {
        lvwDB->setCurrentItem(nullptr);
        lvwDB->clearSelection();
    }
}

void ucVersamento::Modifica() {
    Sblocca();
}

bool ucVersamento::CheckMandatoryFields() {
    return EditoreRecord::CheckMandatoryFields();
}

void ucVersamento::Salva(long IDElem) {
    lIdElemento = IDElem;
    const Connessione& cnn = *Sessione::cnn;
    // Every value is read from its box before anything is written.
    const QVariantList valori = {ColonnaGiorno(DTPData),
                                 TestoInColonna(5),
                                 NumeroAtto(TestoDi(Testo(1))),
                                 TestoInColonna(2),
                                 CodiceDueCifre(cmbTipoAcquisizione),
                                 ColonnaGiorno(DTPDataAcq),
                                 TestoInColonna(6),
                                 Id(IDElem)};
    QSqlQuery stato = cnn.Esegui(SqlStato, {Id(IDElem)});
    if (!stato.next()) {
        // No row of the act: nothing is written, nothing said.
        LeggiStato(false, 0, 0);
        lvwDB->clear();
        Blocca();
        return;
    }
    const long lIdVersamento = Lungo(stato.value(0));
    const long lIdIstituto = Lungo(stato.value(1));
    stato.finish();
    cnn.EseguiLista(SqlScrivi, valori);
    LeggiStato(true, lIdVersamento, lIdIstituto);
    CaricaRighe();
    Blocca();
}

void ucVersamento::Annulla() {
    Blocca();
}

void ucVersamento::AssegnaIstituto(long tempID_Istituto) {
    ID_Istituto = tempID_Istituto;
}

QString ucVersamento::LeggiDenominazione() const {
    return DTPData->date().toString(QStringLiteral("dd/MM/yyyy")) + QStringLiteral(" - ") +
           TestoDi(Testo(1));
}

long ucVersamento::LeggiID() const {
    return lIdVersamentoCorrente;
}

void ucVersamento::RefreshRigheStatus() {
    cmdNuovaRiga->setEnabled(OkNuovaRiga);
    cmdModificaRiga->setEnabled(OkModificaRiga);
    cmdCancellaRiga->setEnabled(OkCancellaRiga);
}

QString ucVersamento::CercaTipoAcquisizione(const QString& sCodice) const {
    return CercaTesto(cmbTipoAcquisizione, sCodice);
}

// --- The rows ------------------------------------------------------------------------------

void ucVersamento::cmdNuovaRiga_Click() {
    ApriRiga(0);
}

void ucVersamento::cmdModificaRiga_Click() {
    // The row kept by the last choice, even when the list shows none selected.
    if (lIdRigaScelta != 0)
        ApriRiga(lIdRigaScelta);
}

void ucVersamento::cmdCancellaRiga_Click() {
    QTreeWidgetItem* voce = lvwDB->currentItem();
    if (voce == nullptr || !voce->isSelected())
        return;
    const long lIdRiga = voce->data(0, Qt::UserRole).toString().mid(2).toLong();
    if (MsgBox(QStringLiteral("Sei sicuro di voler cancellare questa riga?"), Pulsanti::SiNo,
               Icona::Domanda, QStringLiteral("Cancella Riga: ") + voce->text(0)) != Risposta::Si)
        return;
    try {
        Sessione::cnn->Esegui(
            QStringLiteral("DELETE FROM RigheVersamento WHERE ID_RigaVersamento = ?"),
            {Id(lIdRiga)});
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica);
    }
    if (lIdRigaScelta == lIdRiga)
        lIdRigaScelta = 0;
    CaricaRighe();
    RefreshRigheStatus();
    // The act may be deletable now: the host reads OkCancella again.
    Q_EMIT EventoStato();
}

void ucVersamento::ApriRiga(long lIdRiga) {
    Sessione::lIdVersamento = lIdVersamentoCorrente;
    Sessione::lIdRigaVersamento = lIdRiga;
    ApriDialogo(QStringLiteral("frmNuovoVersamento"), {}, [this] {
        CaricaRighe(Sessione::lIdRigaVersamento);
        RefreshRigheStatus();
    });
}

// --- Private -------------------------------------------------------------------------------

void ucVersamento::RigaScelta() {
    QTreeWidgetItem* voce = lvwDB->currentItem();
    if (voce == nullptr)
        return;
    iRigaScelta = lvwDB->indexOfTopLevelItem(voce);
    // The id is the number behind "ID" in the item's key.
    lIdRigaScelta = voce->data(0, Qt::UserRole).toString().mid(2).toLong();
}

void ucVersamento::LeggiStato(bool bTrovata, long lIdVersamento, long lIdIstituto) {
    if (!bTrovata) {
        OkNuovoVersamento = OkModifica = OkCancella = false;
        OkNuovaRiga = OkModificaRiga = OkCancellaRiga = false;
        ID_Istituto = 0;
        lIdVersamentoCorrente = 0;
        return;
    }
    // There is no publishing of a versamento, and nothing is made under it.
    OkNuovoVersamento = false;
    OkModifica = true;
    lIdVersamentoCorrente = lIdVersamento;
    AssegnaIstituto(lIdIstituto);
}

void ucVersamento::Blocca() {
    BloccaCampi();
    // The row buttons work only on an act that is shown, as their flags say.
    lvwDB->setEnabled(true);
    RefreshRigheStatus();
}

void ucVersamento::Sblocca() {
    SbloccaCampi();
    lvwDB->setEnabled(false);
    for (QPushButton* pulsante : {cmdNuovaRiga, cmdModificaRiga, cmdCancellaRiga})
        pulsante->setEnabled(false);
    if (QWidget* numero = Testo(1); numero->isEnabled())
        numero->setFocus();
}
