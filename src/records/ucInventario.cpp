#include "ucInventario.h"

#include "SediIstituto.h"

#include "images/ImmagineRecord.h"
#include "records/DisposizioneCampi.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ProcedureComuni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <memory>

namespace {

// The entries of cmbTipoInv that reshape the form: the printed finding aid has an edition,
// the electronic one an XML document.
constexpr int VoceStampa = 0;
constexpr int VoceElettronico = 3;

// The level and the kind of a finding aid that may be tied to more than one complesso.
const QString LivelloBase = QStringLiteral("01");
const QString TipologiaGuida = QStringLiteral("05");

// The support whose finding aid is a MAG document.
const QString SupportoDigitale = QStringLiteral("D");

const QString SqlMostra = QStringLiteral(
    "SELECT COALESCE(Denominazione,'<<Inserire valore>>'), Tipologia, "
    "COALESCE(ID_IstitutoSede,0), COALESCE(ID_IstitutoMag,0), "
    "COALESCE(CAST(AnnoInizio AS VARCHAR(4)),''), COALESCE(CAST(AnnoFine AS VARCHAR(4)),''), "
    "COALESCE(DescrizioneEstremi,''), "
    "COALESCE(Autore,''), COALESCE(TipoInventario,''), COALESCE(Note,''), "
    "COALESCE(XmlLink,''), COALESCE(UrlLink,''), COALESCE(NoteDirezione,''), "
    "COALESCE(SubTipologia,''), COALESCE(Edizione,''), "
    "ID_Elemento, ID_Istituto, ID_Inventario, "
    "COALESCE(NumeroPergamene,0), COALESCE(NumeroDatiInventariali,0), COALESCE(NumeroSigilli,0), "
    "COALESCE(TipoInv,'') AS TipoInv "
    "FROM Inventari WHERE ID_Elemento = ?");

// What Salva reads back of the row it wrote: the state of the record.
const QString SqlStato =
    QStringLiteral("SELECT Tipologia, SubTipologia, ID_Istituto, COALESCE(TipoInventario,''), "
                   "COALESCE(TipoInv,'') FROM Inventari WHERE ID_Elemento = ?");

const QString SqlScrivi = QStringLiteral(
    "UPDATE Inventari SET Denominazione = ?, Tipologia = ?, ID_IstitutoSede = ?, "
    "ID_IstitutoMag = ?, AnnoInizio = ?, AnnoFine = ?, DescrizioneEstremi = ?, Autore = ?, "
    "TipoInventario = ?, Note = ?, XmlLink = ?, UrlLink = ?, NoteDirezione = ?, "
    "SubTipologia = ?, Edizione = ? WHERE ID_Elemento = ?");

// A year for its column: Null for an empty box, else the number at the head of the text.
QVariant ColonnaAnno(const QString& sTesto) {
    const QVariant anno = NumeroONull(sTesto);
    if (ENull(anno))
        return EditoreRecord::NullNumero();
    return QVariant(qlonglong(qRound64(anno.toDouble())));
}

// The state of the analytical inventory from TipoInv: "01" to "03" give 1 to 3, anything else
// (Null, "00") 0.
int StatoAnalitico(const QString& sTipoInv) {
    if (sTipoInv == QLatin1String("01"))
        return 1;
    if (sTipoInv == QLatin1String("02"))
        return 2;
    if (sTipoInv == QLatin1String("03"))
        return 3;
    return 0;
}

// A text column as the box shows it: "" for Null.
QString TestoColonna(const QVariant& valore) {
    return ENull(valore) ? QString() : valore.toString();
}

} // namespace

struct ucInventario::StatoRiga {
    bool bTrovata = false;
    QString sTipologia;
    QString sSubTipologia;
    long lIdIstituto = 0;
    QString sTipoInventario;
    QString sTipoInv;
};

struct ucInventario::Dati {
    long lIdPadre = 0;
    long lIdElemento = 0;
    long lIdInventario = 0;
    QString sMd5Link; // the MAG document in hand
    bool bPiuLegami = false;
    int iSupporto = -1; // the entry of cmbTipoInv that the form's shape follows

    QComboBox* cmbTipologiaIN = nullptr;
    QComboBox* cmbTipologiaIN2 = nullptr;
    QComboBox* cmbTipoInv = nullptr;
    QComboBox* cmbSede = nullptr;
    QComboBox* cmbMagazzino = nullptr;
    std::unique_ptr<SediIstituto> sedi;
    QCheckBox* chkPubblicaInv = nullptr;
    QDateEdit* DTPData = nullptr;
    QPushButton* cmdImmagine = nullptr;
    ImmagineRecord* immagine = nullptr;
};

ucInventario::ucInventario(QWidget* parent)
    : EditoreRecord(parent)
    , d(new Dati) {
    setObjectName(QStringLiteral("ucInventario"));

    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lbl17 = NuovaEtichetta(17, QStringLiteral("Redattore"));
    QLineEdit* txt17 = NuovoTesto(17, 64, QStringLiteral("Inserire redattore"));
    d->chkPubblicaInv = NuovaCasella(QStringLiteral("chkPubblicaInv"));
    d->chkPubblicaInv->setText(QStringLiteral("Visibile sul web"));
    QLabel* lbl12 = NuovaEtichetta(12, QStringLiteral("Note gestionali"));
    QPlainTextEdit* txt12 = NuovoTestoMultiRiga(12, 1024);
    QLabel* lbl11 = NuovaEtichetta(11, QStringLiteral("Link ad altre Risorse"));
    QLineEdit* txt11 = NuovoTesto(11, 128);
    QLabel* lbl3 = NuovaEtichetta(3, QStringLiteral("Conservato jn"));
    d->cmbMagazzino = NuovaCombo(QStringLiteral("cmbMagazzino"));
    QLabel* lbl2 = NuovaEtichetta(2, QStringLiteral("Consultabile in"));
    d->cmbSede = NuovaCombo(QStringLiteral("cmbSede"));
    d->sedi = std::make_unique<SediIstituto>(d->cmbSede, d->cmbMagazzino);
    QLabel* lbl13 = NuovaEtichetta(13, QStringLiteral("Tipologia"));
    d->cmbTipologiaIN2 =
        NuovaCombo(QStringLiteral("cmbTipologiaIN2"), QStringLiteral("Specificare la tipologia"));
    QLabel* lbl1 = NuovaEtichetta(1, QStringLiteral("Livello"));
    d->cmbTipologiaIN = NuovaCombo(QStringLiteral("cmbTipologiaIN"));
    QLabel* lbl15 = NuovaEtichetta(15, QStringLiteral("Edizione"));
    QLineEdit* txt15 = NuovoTesto(15, 256);
    QLabel* lbl10 = NuovaEtichetta(10, QStringLiteral("XmlLink"));
    QLineEdit* txt10 = NuovoTesto(10, 128);
    QLabel* lbl9 = NuovaEtichetta(9, QStringLiteral("Descrizione"));
    QPlainTextEdit* txt9 = NuovoTestoMultiRiga(9, 1024);
    QLabel* lbl7 = NuovaEtichetta(7, QStringLiteral("Autore"));
    QLineEdit* txt7 = NuovoTesto(7, 256);
    QLabel* lbl6 = NuovaEtichetta(6, QStringLiteral("Data/e redazione (testo)"));
    QLineEdit* txt6 = NuovoTesto(6, 256, QStringLiteral("Inserire la data di redazione"));
    QLineEdit* txt5 = NuovoTesto(5, 4, QStringLiteral("Inserire l'estremo cronologico superiore"));
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Titolo strumento di ricerca"));
    QLineEdit* txt0 = NuovoTesto(0, 256, QStringLiteral("Inserire titolo strumento di ricerca"));
    QLabel* lbl8 = NuovaEtichetta(8, QStringLiteral("Supporto"));
    d->cmbTipoInv =
        NuovaCombo(QStringLiteral("cmbTipoInv"), QStringLiteral("Specificare il tipo di supporto"));
    QLabel* lbl4 = NuovaEtichetta(4, QStringLiteral("Anno redazione"));
    QLineEdit* txt4 = NuovoTesto(4, 4, QStringLiteral("Inserire l'estremo cronologico inferiore"));
    QLabel* lbl16 = NuovaEtichetta(16, QStringLiteral("Data redazione"));
    d->DTPData =
        NuovaData(QStringLiteral("DTPData"), QStringLiteral("Inserire la data di registrazione"));

    // The image of a digital finding aid: one MAG document for the whole of it.
    d->cmdImmagine = new QPushButton(this);
    d->cmdImmagine->setObjectName(QStringLiteral("cmdImmagine"));
    d->immagine = new ImmagineRecord(d->cmdImmagine,
                                     ImmagineRecord::Collegamento{
                                         [this] { return d->lIdElemento; },
                                         [this] { return d->sMd5Link; },
                                         [this](const QString& s) { d->sMd5Link = s; },
                                         false,
                                         true,
                                     },
                                     this);
    d->cmdImmagine->setEnabled(false);

    // On screen: what the finding aid is, then where it is and who described it.
    auto* griglia = new QGridLayout(this);
    int riga = 0;
    const auto metti = [griglia, &riga](QLabel* etichetta, QWidget* campo,
                                        QWidget* secondo = nullptr) {
        etichetta->setBuddy(campo);
        griglia->addWidget(etichetta, riga, 0, Qt::AlignTop);
        if (secondo == nullptr) {
            griglia->addWidget(campo, riga, 1, 1, 2);
        } else {
            griglia->addWidget(campo, riga, 1);
            griglia->addWidget(secondo, riga, 2);
        }
        ++riga;
    };
    metti(lbl0, txt0);
    metti(lbl1, d->cmbTipologiaIN);
    metti(lbl13, d->cmbTipologiaIN2);
    metti(lbl8, d->cmbTipoInv);
    metti(lbl15, txt15);
    metti(lbl10, txt10);
    metti(lbl4, txt4, txt5);
    metti(lbl6, txt6);
    metti(lbl7, txt7);
    metti(lbl9, txt9);
    metti(lbl2, d->cmbSede);
    metti(lbl3, d->cmbMagazzino);
    metti(lbl11, txt11);
    metti(lbl12, txt12);
    metti(lbl17, txt17);
    metti(lbl16, d->DTPData);
    griglia->addWidget(d->chkPubblicaInv, riga, 1);
    griglia->addWidget(d->cmdImmagine, riga, 2, Qt::AlignRight);
    griglia->setColumnStretch(1, 1);
    griglia->setColumnStretch(2, 1);
    for (QPlainTextEdit* breve : {txt12})
        breve->setMaximumHeight(breve->fontMetrics().lineSpacing() * 4);

    // The keyboard walks the form as it is seen.
    CatenaDelFuoco({txt0, d->cmbTipologiaIN, d->cmbTipologiaIN2, d->cmbTipoInv, txt15, txt10, txt4,
                    txt5, txt6, txt7, txt9, d->cmbSede, d->cmbMagazzino, txt11, txt12, txt17,
                    d->DTPData, d->chkPubblicaInv, d->cmdImmagine});

    // A year box left with a text that is no year says so and keeps the focus.
    for (int n : {4, 5})
        ControllaAllUscita(Testo(n), &EditoreRecord::AnnoErrato);

    // A support chosen, by the user or by Mostra, reshapes the form.
    connect(d->cmbTipoInv, &QComboBox::currentIndexChanged, this,
            [this](int indice) { TipoInvCliccato(indice); });
    connect(d->chkPubblicaInv, &QCheckBox::clicked, this, [this] {
        ControllaPubblicazione(d->chkPubblicaInv, d->lIdPadre,
                               QStringLiteral("Inventario non pubblicabile"),
                               QStringLiteral("Errore U1"));
    });
}

ucInventario::~ucInventario() {
    delete d;
}

// --- What the window reads -----------------------------------------------------------------

bool ucInventario::bElettronico() const {
    return d->cmbTipoInv->currentIndex() == VoceElettronico;
}

bool ucInventario::bPiùLegamiComplessiDoc() const {
    return d->bPiuLegami;
}

// --- The protocol --------------------------------------------------------------------------

QList<QWidget*> ucInventario::Controls() const {
    return EditoreRecord::Controls();
}

void ucInventario::Init() {
    for (QComboBox* cmb : {d->cmbTipologiaIN, d->cmbTipologiaIN2, d->cmbTipoInv})
        cmb->clear();
    CaricaLista(d->cmbTipologiaIN, QStringLiteral("LivelliINV.txt"));
    CaricaLista(d->cmbTipologiaIN2, QStringLiteral("TipologiaINV.txt"));
    CaricaListaUnCarattere(d->cmbTipoInv, QStringLiteral("TipoInventario.txt"));
    d->lIdPadre = 0;
    d->lIdElemento = 0;
    d->lIdInventario = 0;
    d->bPiuLegami = false;
    SpegniStato(true);
    BloccaCampi();
}

void ucInventario::Nuovo() {
    Pulisci();
    // The new finding aid hangs under the institute the window assigned.
    d->lIdPadre = ElementoIstituto(ID_Istituto);
    d->lIdElemento = 0;
    d->lIdInventario = 0;
    d->sMd5Link.clear();
    d->bPiuLegami = false;
    d->cmdImmagine->setEnabled(false);
    CheckImmagine();
    const auto primaVoce = [](QComboBox* cmb) {
        cmb->setCurrentIndex(cmb->count() > 0 ? 0 : -1);
    };
    primaVoce(d->cmbTipologiaIN);
    primaVoce(d->cmbSede);
    primaVoce(d->cmbMagazzino);
    // Support and kind must be chosen.
    d->cmbTipoInv->setCurrentIndex(-1);
    d->cmbTipologiaIN2->setCurrentIndex(-1);
    SbloccaCampi();
}

void ucInventario::Mostra(long IDElem) {
    Pulisci();
    d->lIdElemento = IDElem;
    d->lIdPadre = 0;
    d->lIdInventario = 0;
    d->sMd5Link.clear();
    d->bPiuLegami = false;

    // The row of Elementi: parent, MAG document, publishing, date and author of the description.
    d->lIdPadre = MostraElemento(IDElem, d->chkPubblicaInv, d->DTPData, Testo(17), &d->sMd5Link);

    QSqlQuery riga = Sessione::cnn->Esegui(SqlMostra, {Id(IDElem)});
    if (!riga.next()) {
        // No row of the record: the fields stay empty and the flags off.
        Pulisci();
        LeggiStato(StatoRiga{}, false);
        BloccaCampi();
        return;
    }
    StatoRiga stato;
    stato.bTrovata = true;
    stato.sTipologia = TestoColonna(riga.value(1));
    stato.sSubTipologia = riga.value(13).toString();
    stato.lIdIstituto = Lungo(riga.value(16));
    stato.sTipoInventario = riga.value(8).toString();
    stato.sTipoInv = riga.value(21).toString();
    d->lIdInventario = Lungo(riga.value(17));
    // The institute first (its places fill the combos), and the state of the record.
    LeggiStato(stato, false);

    const auto testo = [&riga](int i) {
        return riga.value(i).toString();
    };
    ImpostaTestoDi(Testo(0), testo(0));
    ImpostaTestoDi(Testo(4), Trim(testo(4)));
    ImpostaTestoDi(Testo(5), Trim(testo(5)));
    ImpostaTestoDi(Testo(6), testo(6));
    ImpostaTestoDi(Testo(7), testo(7));
    ImpostaTestoDi(Testo(9), testo(9));
    ImpostaTestoDi(Testo(10), testo(10));
    ImpostaTestoDi(Testo(11), testo(11));
    ImpostaTestoDi(Testo(12), testo(12));
    ImpostaTestoDi(Testo(15), testo(14));
    d->cmbTipologiaIN->setCurrentIndex(CercaTipologiaINV(stato.sTipologia));
    d->cmbTipologiaIN2->setCurrentIndex(CercaTipologiaINV2(stato.sSubTipologia));
    d->cmbTipoInv->setCurrentIndex(CercaTipoInventario(stato.sTipoInventario));
    d->cmbSede->setCurrentIndex(d->sedi->CercaSede(Lungo(riga.value(2))));
    d->cmbMagazzino->setCurrentIndex(d->sedi->CercaMagazzino(Lungo(riga.value(3))));
    d->bPiuLegami = PiuLegami(stato);
    BloccaCampi();
}

void ucInventario::Salva(long IDElem) {
    d->lIdElemento = IDElem;
    try {
        const Connessione& cnn = *Sessione::cnn;
        bool bScritto = false;
        const QVariant sede = d->sedi->Sede();
        // The row of Elementi, the row of Inventari and the places of the children are written
        // together or not at all.
        InTransazione(cnn.Db(), QStringLiteral("ucInventario.Salva"), [&] {
            {
                QSqlQuery esiste = cnn.Esegui(
                    QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"),
                    {Id(IDElem)});
                if (!esiste.next())
                    return; // no row of the record: nothing is written, nothing said
            }
            SalvaElemento(IDElem, d->chkPubblicaInv, d->DTPData, Testo(17));
            cnn.Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                       {d->sMd5Link.isEmpty() ? NullTesto() : QVariant(d->sMd5Link), Id(IDElem)});

            cnn.Esegui(SqlScrivi,
                       {TestoODefault(TestoDi(Testo(0))), CodiceDueCifre(d->cmbTipologiaIN), sede,
                        d->sedi->Magazzino(), ColonnaAnno(TestoDi(Testo(4))),
                        ColonnaAnno(TestoDi(Testo(5))), TestoInColonna(6), TestoInColonna(7),
                        ColonnaTesto(NullSeVuoto(CarattereVoceScelta(d->cmbTipoInv))),
                        TestoInColonna(9), TestoInColonna(10), TestoInColonna(11),
                        TestoInColonna(12), CodiceDueCifre(d->cmbTipologiaIN2), TestoInColonna(15),
                        Id(IDElem)});

            // The seat just written goes down to the direct children, as seat and as warehouse.
            SediIstituto::PropagaSedi(QStringLiteral("Inventari"), IDElem, sede);
            bScritto = true;
        });

        // What the record is now, as the row says.
        const StatoRiga stato = LeggiRiga(IDElem);
        if (!bScritto || !stato.bTrovata) {
            d->bPiuLegami = false;
            LeggiStato(StatoRiga{}, true);
            BloccaCampi();
            return;
        }
        d->bPiuLegami = PiuLegami(stato);
        ID_Istituto = stato.lIdIstituto;
        LeggiStato(stato, true);
        BloccaCampi();
    } catch (const Errore& errore) {
        MsgBox(errore.descrizione(), Pulsanti::Ok, Icona::Critica);
        BloccaCampi();
    }
}

void ucInventario::Annulla() {
    BloccaCampi();
}

// --- Child lists and images ----------------------------------------------------------------

void ucInventario::CheckImmagine() {
    d->immagine->CheckImmagine();
}

void ucInventario::CheckDenominazioni(long lIdElemento) {
    AltreDenominazioni = !NessunaRiga(
        QStringLiteral("SELECT * FROM InventariDenominazioni INVD JOIN Inventari INV ON "
                       "INVD.ID_Inventario = INV.ID_Inventario WHERE INV.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucInventario::AssegnaIstituto(long tempID_Istituto) {
    ID_Istituto = tempID_Istituto;
    d->sedi->CaricaSedi(ID_Istituto);
}

QString ucInventario::LeggiDenominazione() const {
    return TestoDi(Testo(0));
}

// --- Codes of the combos -------------------------------------------------------------------

int ucInventario::CercaTipologiaINV(const QString& sCodice) const {
    return CercaIndice(d->cmbTipologiaIN, sCodice);
}

int ucInventario::CercaTipologiaINV2(const QString& sCodice) const {
    return CercaIndice(d->cmbTipologiaIN2, sCodice);
}

int ucInventario::CercaTipoInventario(const QString& sCodice) const {
    // The item data is the number of the code's character.
    if (sCodice.isEmpty())
        return -1;
    return IndiceDelNumero(d->cmbTipoInv, sCodice.at(0).unicode());
}

// --- Private -------------------------------------------------------------------------------

void ucInventario::TipoInvCliccato(int indice) {
    // Only a change of the entry: the combo also signals an index that it already had.
    if (indice == d->iSupporto)
        return;
    d->iSupporto = indice;
    // The level is no longer offered once a support has been chosen; the edition belongs to the
    // printed finding aid, the XML document to the electronic one.
    d->cmbTipologiaIN->setVisible(false);
    Etichetta(1)->setVisible(false);
    Testo(15)->setVisible(indice == VoceStampa);
    Etichetta(15)->setVisible(indice == VoceStampa);
    Testo(10)->setVisible(indice == VoceElettronico);
    Etichetta(10)->setVisible(indice == VoceElettronico);
}

bool ucInventario::PiuLegami(const StatoRiga& riga) {
    return riga.sTipologia == LivelloBase && riga.sSubTipologia == TipologiaGuida;
}

ucInventario::StatoRiga ucInventario::LeggiRiga(long lIdElemento) {
    StatoRiga stato;
    QSqlQuery riga = Sessione::cnn->Esegui(SqlStato, {Id(lIdElemento)});
    if (!riga.next())
        return stato;
    stato.bTrovata = true;
    stato.sTipologia = TestoColonna(riga.value(0));
    stato.sSubTipologia = TestoColonna(riga.value(1));
    stato.lIdIstituto = Lungo(riga.value(2));
    stato.sTipoInventario = riga.value(3).toString();
    stato.sTipoInv = riga.value(4).toString();
    return stato;
}

long ucInventario::ElementoIstituto(long lIdIstituto) {
    if (lIdIstituto <= 0)
        return 0;
    QSqlQuery riga = Sessione::cnn->Esegui(
        QStringLiteral("SELECT ID_Elemento FROM Istituti WHERE ID_Istituto = ?"),
        {Id(lIdIstituto)});
    return riga.next() ? Lungo(riga.value(0)) : 0;
}

void ucInventario::SpegniStato(bool bNuovo) {
    OkNuovoInventario = bNuovo;
    OkModifica = false;
    OkCancella = false;
    AltreDenominazioni = false;
    InventariAnalitici = -1;
    ComplessiLink = 0;
    sComplessoLinked.clear();
    d->sMd5Link.clear();
    ID_Istituto = 0;
    d->cmdImmagine->setEnabled(false);
    CheckImmagine();
}

void ucInventario::LeggiStato(const StatoRiga& riga, bool bTieniIstituto) {
    if (!riga.bTrovata) {
        SpegniStato(false);
        return;
    }
    if (!bTieniIstituto)
        AssegnaIstituto(riga.lIdIstituto);
    // No finding aid is created under a finding aid.
    OkNuovoInventario = false;
    OkModifica = true;
    InventariAnalitici = StatoAnalitico(riga.sTipoInv);
    OkCancella = FigliElemento(d->lIdElemento) == 0;

    // The complessi linked: one is named, two or more are named by their institute.
    QSqlQuery legami = Sessione::cnn->Esegui(
        QStringLiteral("SELECT RTRIM(COALESCE(CD.DenomCompleta,'')) FROM Links lnk "
                       "LEFT OUTER JOIN ComplessiDoc CD ON lnk.ID_Elemento = CD.ID_Elemento "
                       "WHERE lnk.ID_ElementoLink = ?"),
        {Id(d->lIdElemento)});
    long lLegami = 0;
    QString sPrimo;
    while (legami.next()) {
        if (lLegami == 0)
            sPrimo = legami.value(0).toString();
        ++lLegami;
    }
    ComplessiLink = lLegami;
    if (lLegami == 0) {
        sComplessoLinked.clear();
    } else if (lLegami == 1) {
        sComplessoLinked = sPrimo;
    } else {
        QSqlQuery istituto = Sessione::cnn->Esegui(
            QStringLiteral("SELECT RTRIM(COALESCE(DenomCompleta,'')) FROM Istituti "
                           "WHERE ID_Istituto = ?"),
            {Id(ID_Istituto)});
        if (istituto.next())
            sComplessoLinked = istituto.value(0).toString();
    }

    CheckDenominazioni(d->lIdElemento);
    d->cmdImmagine->setEnabled(riga.sTipoInventario == SupportoDigitale);
    CheckImmagine();
}
