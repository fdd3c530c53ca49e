#include "ucSigillo.h"

#include "images/ImmagineRecord.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ProcedureComuni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// The longest text of the editable combos.
constexpr int MaxCombo = 128;

// The defaults of the lists: entry 7 of the ways of affixing, 5 of the forms, 1 of the
// relations to the document; the relation left out while attached.
constexpr int VoceApposizione = 7;
constexpr int VoceForma = 5;
constexpr int VoceRapporto = 1;
const QString RapportoAttaccato = QStringLiteral("02");

// The natura entries that have a verso.
constexpr int PrimaNaturaConVerso = 1;
constexpr int UltimaNaturaConVerso = 3;

const QString SqlSigillo = QStringLiteral(
    "SELECT COALESCE(Identificativo,''), COALESCE(Tipologia,''), "
    "COALESCE(CAST(DataInizio AS VARCHAR(8)),''), COALESCE(CAST(DataFine AS VARCHAR(8)),''), "
    "COALESCE(Dimensioni,''), COALESCE(MateriaNuovo,''), "
    "COALESCE(Colore,''), COALESCE(Apposizione,''), "
    "COALESCE(Rapporto,''), COALESCE(Ruolo,''), "
    "COALESCE(Posizione,''), COALESCE(NoteDirezione,''), "
    "COALESCE(Attacchi,''), COALESCE(Protezione,''), "
    "COALESCE(Qualita,''), COALESCE(Conservazione,''), "
    "COALESCE(Segni,''), COALESCE(Autenticita,''), "
    "COALESCE(Matrice,''), COALESCE(AltreImpronteSigillo,''), "
    "COALESCE(AltreImpronteTitolare,''), COALESCE(Edizione,''), "
    "COALESCE(Bibliografia,''), COALESCE(Accesso,''), "
    "COALESCE(Riproduzione,''), COALESCE(Note,''), "
    "COALESCE(RifDocNoInv,''), COALESCE(DescrizioneEstremi,''), "
    "ID_Inventario, ID_Elemento, ID_Sigillo, COALESCE(UrlLink,''), COALESCE(FlgUnitaCond,0) "
    "FROM Sigilli WHERE ID_Elemento = ?");

const QString SqlTipo =
    QStringLiteral("SELECT COALESCE(FormaR,''), COALESCE(DimensioniR,''), "
                   "COALESCE(TrascrizioneR,''), COALESCE(LinguaR,''), "
                   "COALESCE(DescrizioneR,''), COALESCE(TrascrizioneV,''), "
                   "COALESCE(LinguaV,''), COALESCE(DescrizioneV,''), "
                   "COALESCE(TipologiaR,''), COALESCE(Incisore,''), "
                   "COALESCE(FormaV,''), COALESCE(DimensioniV,''), "
                   "COALESCE(TipologiaV,''), COALESCE(TipologIcoR,'00'), "
                   "COALESCE(TipologIcoV,'00') FROM SGTipo WHERE ID_Sigillo = ?");

const QString SqlScriviSigillo = QStringLiteral(
    "UPDATE Sigilli SET Identificativo = ?, Tipologia = ?, DataInizio = ?, DataFine = ?, "
    "Dimensioni = ?, MateriaNuovo = ?, Colore = ?, Apposizione = ?, Rapporto = ?, "
    "Posizione = ?, NoteDirezione = ?, Attacchi = ?, Protezione = ?, Qualita = ?, "
    "Conservazione = ?, Segni = ?, Autenticita = ?, Matrice = ?, AltreImpronteSigillo = ?, "
    "AltreImpronteTitolare = ?, Edizione = ?, Bibliografia = ?, Accesso = ?, Riproduzione = ?, "
    "Note = ?, RifDocNoInv = ?, DescrizioneEstremi = ?, UrlLink = ?, FlgUnitaCond = ? "
    "WHERE ID_Elemento = ?");

const QString SqlScriviTipo = QStringLiteral(
    "UPDATE SGTipo SET FormaR = ?, DimensioniR = ?, TrascrizioneR = ?, LinguaR = ?, "
    "DescrizioneR = ?, TrascrizioneV = ?, LinguaV = ?, DescrizioneV = ?, TipologiaR = ?, "
    "Incisore = ?, FormaV = ?, DimensioniV = ?, TipologiaV = ?, TipologIcoR = ?, "
    "TipologIcoV = ? WHERE ID_Sigillo = ?");

const QString MsgApposizione =
    QStringLiteral("Il campo Modo di Apposizione prevede un massimo di 128 caratteri!");
const QString MsgForma = QStringLiteral("Il campo Forma prevede un massimo di 128 caratteri!");
const QString MsgTipoDG =
    QStringLiteral("Il campo Tipologia diplomatico-giuridica prevede un massimo di 128 caratteri!");

QString NomeArray(const char* sNome, int indice) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(sNome)).arg(indice);
}

} // namespace

struct ucSigillo::Dati {
    long lIdSigillo = 0;
    long lIDElemPadre = 0;
    QString sMd5Link;
    bool bAttac = false;

    QComboBox* cmbTipol = nullptr;
    QComboBox* cmbMat = nullptr;
    QComboBox* cmbApp = nullptr;
    QComboBox* cmbDoc = nullptr;
    QComboBox* cmbForma[2] = {nullptr, nullptr};
    QComboBox* cmbTipoDG[2] = {nullptr, nullptr};
    QComboBox* cmbTipoIco[2] = {nullptr, nullptr};
    QCheckBox* chkPubblicaSG = nullptr;
    QCheckBox* chkUnitaCond = nullptr;
    QDateEdit* DTPData = nullptr;
    QLabel* lblDoc = nullptr;
    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    QPushButton* cmdMostraTitolari = nullptr;
    QPushButton* cmdMostraPergamene = nullptr;
    QPushButton* cmdImmagine = nullptr;
    ImmagineRecord* immagine = nullptr;
};

ucSigillo::ucSigillo(QWidget* parent)
    : EditoreRecord(parent)
    , d(new Dati) {
    setObjectName(QStringLiteral("ucSigillo"));

    // The mandatory controls first, in the order of their messages; then the others.
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Identificativo"));
    QLineEdit* txt0 = NuovoTesto(0, 256, QStringLiteral("Inserire Identificativo"));
    auto* lblMat = new QLabel(QStringLiteral("Materia"), this);
    d->cmbMat = NuovaCombo(QStringLiteral("cmbMat"), QStringLiteral("Inserire la materia"));
    NuovaEtichetta(43, QStringLiteral("Datazione (testo)"));
    NuovoTesto(43, 256, QStringLiteral("Inserire datazione"));
    NuovaEtichetta(12, QStringLiteral("Redattore"));
    NuovoTesto(12, 64, QStringLiteral("Inserire redattore"));
    auto* lblApp = new QLabel(QStringLiteral("Modo di apposizione"), this);
    d->cmbApp = NuovaComboModificabile(QStringLiteral("cmbApp"), MaxCombo, MsgApposizione,
                                       QStringLiteral("Inserire il modo di apposizione"));
    NuovaEtichetta(6, QStringLiteral("Colore"));
    NuovoTesto(6, 64, QStringLiteral("Inserire il colore"));
    NuovaEtichetta(28, QStringLiteral("Stato di conservazione e restauro"));
    NuovoTesto(28, 256, QStringLiteral("Inserire lo stato di conservazione e restauro"));
    d->cmbForma[1] = NuovaComboModificabile(NomeArray("cmbForma", 1), MaxCombo, MsgForma);
    d->lblDoc = new QLabel(QStringLiteral("Rapporto col documento"), this);
    d->cmbDoc = NuovaCombo(QStringLiteral("cmbDoc"),
                           QStringLiteral("Inserire il rapporto con il documento"));
    NuovaEtichetta(2, QStringLiteral("Anno Inizio"));
    NuovoTesto(2, 4, QStringLiteral("Inserire Anno Inizio"));
    NuovaEtichetta(3, QStringLiteral("Anno Fine"));
    NuovoTesto(3, 4, QStringLiteral("Inserire Anno Fine"));
    auto* lblTipol = new QLabel(QStringLiteral("Natura del sigillo"), this);
    d->cmbTipol =
        NuovaCombo(QStringLiteral("cmbTipol"), QStringLiteral("Inserire la natura del sigillo"));

    // Sigilli.
    NuovaEtichetta(4, QStringLiteral("Dimensioni attuali"));
    NuovoTesto(4, 32);
    NuovaEtichetta(10, QStringLiteral("Posizione sul documento"));
    NuovoTesto(10, 64);
    NuovaEtichetta(13, QStringLiteral("Note gestionali"));
    NuovoTestoMultiRiga(13, 1024);
    NuovaEtichetta(25, QStringLiteral("Descrizione attacchi"));
    NuovoTesto(25, 128);
    NuovaEtichetta(26, QStringLiteral("Sistema di protezione"));
    NuovoTesto(26, 128);
    NuovaEtichetta(27, QStringLiteral("Qualità dell'impressione"));
    NuovoTesto(27, 128);
    NuovaEtichetta(29, QStringLiteral("Altri segni materiali"));
    NuovoTesto(29, 256);
    NuovaEtichetta(30, QStringLiteral("Autenticità"));
    NuovoTesto(30, 256);
    NuovaEtichetta(31, QStringLiteral("Matrice"));
    NuovoTesto(31, 256);
    NuovaEtichetta(32, QStringLiteral("Altre impronte dello stesso sigillo"));
    NuovoTestoMultiRiga(32, 512);
    NuovaEtichetta(33, QStringLiteral("Altre impronte dello stesso titolare"));
    NuovoTestoMultiRiga(33, 512);
    NuovaEtichetta(34, QStringLiteral("Edizioni dell'esemplare"));
    NuovoTesto(34, 256);
    NuovaEtichetta(35, QStringLiteral("Bibliografia"));
    NuovoTestoMultiRiga(35, 1024);
    NuovaEtichetta(36, QStringLiteral("Condizioni di accesso"));
    NuovoTesto(36, 256);
    NuovaEtichetta(37, QStringLiteral("Condizioni per la riproduzione"));
    NuovoTesto(37, 128);
    NuovaEtichetta(38, QStringLiteral("Nota diplomatico-archivistica"));
    NuovoTestoMultiRiga(38, 1024);
    NuovaEtichetta(42, QStringLiteral("Riferimento al documento"));
    NuovoTestoMultiRiga(42, 512);
    NuovaEtichetta(11, QStringLiteral("Link ad altre risorse"));
    NuovoTesto(11, 128);
    d->chkUnitaCond = NuovaCasella(QStringLiteral("chkUnitaCond"));
    d->chkUnitaCond->setText(QStringLiteral("Unità di condizionamento"));

    // SGTipo: the recto and the verso.
    d->cmbForma[0] = NuovaComboModificabile(NomeArray("cmbForma", 0), MaxCombo, MsgForma);
    for (int i = 0; i < 2; ++i) {
        d->cmbTipoDG[i] = NuovaComboModificabile(NomeArray("cmbTipoDG", i), MaxCombo, MsgTipoDG);
        d->cmbTipoIco[i] = NuovaCombo(NomeArray("cmbTipoIco", i));
    }
    // The same four fields for the recto and for the verso, each side with its own indices.
    const auto lato = [this](int iDimensioni, int iLegenda, int iLingua, int iDescrizione) {
        NuovaEtichetta(iDimensioni, QStringLiteral("Dimensioni originarie"));
        NuovoTesto(iDimensioni, 32);
        NuovaEtichetta(iLegenda, QStringLiteral("Legenda"));
        NuovoTestoMultiRiga(iLegenda, 512);
        NuovaEtichetta(iLingua, QStringLiteral("Lingua e scrittura"));
        NuovoTesto(iLingua, 128);
        NuovaEtichetta(iDescrizione, QStringLiteral("Descrizione iconografica"));
        NuovoTestoMultiRiga(iDescrizione, 1024);
    };
    lato(16, 17, 18, 19);
    lato(40, 20, 21, 22);
    NuovaEtichetta(24, QStringLiteral("Note Alla Macroarea Descrizione"));
    NuovoTestoMultiRiga(24, 1024);

    // Elementi.
    d->chkPubblicaSG = NuovaCasella(QStringLiteral("chkPubblicaSG"));
    d->chkPubblicaSG->setText(QStringLiteral("Visibile sul web"));
    auto* lblData = new QLabel(QStringLiteral("Data redazione"), this);
    d->DTPData =
        NuovaData(QStringLiteral("DTPData"), QStringLiteral("Inserire la data di registrazione"));

    // The buttons of the holders, of the parchments linked and of the image.
    d->cmdMostraTitolari = new QPushButton(QStringLiteral("Titolari"), this);
    d->cmdMostraTitolari->setObjectName(QStringLiteral("cmdMostraTitolari"));
    d->cmdMostraPergamene = new QPushButton(QStringLiteral("Collegamento al documento"), this);
    d->cmdMostraPergamene->setObjectName(QStringLiteral("cmdMostraPergamene"));
    d->cmdImmagine = new QPushButton(this);
    d->cmdImmagine->setObjectName(QStringLiteral("cmdImmagine"));
    d->immagine = new ImmagineRecord(d->cmdImmagine,
                                     ImmagineRecord::Collegamento{
                                         [this] { return fID_Elem; },
                                         [this] { return d->sMd5Link; },
                                         [this](const QString& s) { d->sMd5Link = s; },
                                         false,
                                         false,
                                     },
                                     this);
    for (QPushButton* pulsante : {d->cmdMostraTitolari, d->cmdMostraPergamene, d->cmdImmagine})
        RegistraPulsanteFiglio(pulsante);

    // On screen: the identifier above the four tabs.
    auto* SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    auto* principale = new QVBoxLayout(this);
    auto* testa = new QHBoxLayout;
    testa->addWidget(lbl0);
    testa->addWidget(txt0, 1);
    principale->addLayout(testa);
    principale->addWidget(SSTab1, 1);

    const auto griglia = [](QWidget* pagina) {
        auto* g = new QGridLayout(pagina);
        g->setColumnStretch(1, 1);
        return g;
    };
    // The keyboard walks the form as it is seen: the order in which the fields are laid out.
    QList<QWidget*> ordine = {txt0};
    const auto metti = [&ordine](QGridLayout* g, QWidget* etichetta, QWidget* campo) {
        ordine << campo;
        const int riga = g->rowCount();
        if (auto* l = qobject_cast<QLabel*>(etichetta))
            l->setBuddy(campo);
        g->addWidget(etichetta, riga, 0, Qt::AlignTop);
        g->addWidget(campo, riga, 1);
    };
    const auto campo = [this, &ordine](QGridLayout* g, int n) {
        ordine << Testo(n);
        const int riga = g->rowCount();
        Etichetta(n)->setBuddy(Testo(n));
        g->addWidget(Etichetta(n), riga, 0, Qt::AlignTop);
        g->addWidget(Testo(n), riga, 1);
    };

    auto* identificazione = new QWidget;
    QGridLayout* g1 = griglia(identificazione);
    metti(g1, lblTipol, d->cmbTipol);
    campo(g1, 2);
    campo(g1, 3);
    campo(g1, 43);
    metti(g1, d->lblDoc, d->cmbDoc);
    campo(g1, 42);
    campo(g1, 10);
    campo(g1, 38);
    campo(g1, 11);
    g1->addWidget(d->chkUnitaCond, g1->rowCount(), 1);
    ordine << d->chkUnitaCond;
    SSTab1->addTab(identificazione, QStringLiteral("Identificazione"));

    auto* descrizione1 = new QWidget;
    QGridLayout* g2 = griglia(descrizione1);
    campo(g2, 4);
    metti(g2, lblMat, d->cmbMat);
    campo(g2, 6);
    metti(g2, lblApp, d->cmbApp);
    for (int n : {25, 26, 27, 28, 29, 30, 24})
        campo(g2, n);
    SSTab1->addTab(descrizione1, QStringLiteral("Descrizione (1)"));

    auto* descrizione2 = new QWidget;
    auto* colonne = new QHBoxLayout(descrizione2);
    d->Frame1 = new QGroupBox(QStringLiteral("Area del tipo: Recto"));
    d->Frame1->setObjectName(QStringLiteral("Frame1"));
    d->Frame2 = new QGroupBox(QStringLiteral("Area del tipo: Verso o controsigillo"));
    d->Frame2->setObjectName(QStringLiteral("Frame2"));
    colonne->addWidget(d->Frame1);
    colonne->addWidget(d->Frame2);
    for (int i = 0; i < 2; ++i) {
        QGroupBox* frame = i == 0 ? d->Frame1 : d->Frame2;
        QGridLayout* g = griglia(frame);
        metti(g, new QLabel(QStringLiteral("Forma"), frame), d->cmbForma[i]);
        campo(g, i == 0 ? 16 : 40);
        campo(g, i == 0 ? 17 : 20);
        campo(g, i == 0 ? 18 : 21);
        metti(g, new QLabel(QStringLiteral("Tipologia iconografica"), frame), d->cmbTipoIco[i]);
        campo(g, i == 0 ? 19 : 22);
        metti(g, new QLabel(QStringLiteral("Tipologia diplomatico-giuridica"), frame),
              d->cmbTipoDG[i]);
    }
    SSTab1->addTab(descrizione2, QStringLiteral("Descrizione (2)"));

    auto* accesso = new QWidget;
    auto* colonneAccesso = new QVBoxLayout(accesso);
    auto* Frame6 = new QGroupBox(QStringLiteral("Accesso"));
    Frame6->setObjectName(QStringLiteral("Frame6"));
    QGridLayout* g6 = griglia(Frame6);
    for (int n : {36, 37, 13, 12})
        campo(g6, n);
    metti(g6, lblData, d->DTPData);
    g6->addWidget(d->chkPubblicaSG, g6->rowCount(), 1);
    g6->addWidget(d->cmdImmagine, g6->rowCount(), 1, Qt::AlignLeft);
    ordine << d->chkPubblicaSG << d->cmdImmagine;
    auto* Frame3 = new QGroupBox(QStringLiteral("Fonti"));
    Frame3->setObjectName(QStringLiteral("Frame3"));
    QGridLayout* g3 = griglia(Frame3);
    for (int n : {31, 32, 33, 34, 35})
        campo(g3, n);
    colonneAccesso->addWidget(Frame6);
    colonneAccesso->addWidget(Frame3);
    SSTab1->addTab(accesso, QStringLiteral("Accesso e fonti"));

    auto* pulsanti = new QHBoxLayout;
    pulsanti->addWidget(d->cmdMostraTitolari);
    pulsanti->addWidget(d->cmdMostraPergamene);
    pulsanti->addStretch(1);
    principale->addLayout(pulsanti);

    // The natura chosen, by the user or by Mostra, shows or hides the verso.
    connect(d->cmbTipol, &QComboBox::currentIndexChanged, this,
            [this](int indice) { NaturaCliccata(indice); });
    ordine << d->cmdMostraTitolari << d->cmdMostraPergamene;
    for (qsizetype i = 1; i < ordine.size(); ++i)
        setTabOrder(ordine.at(i - 1), ordine.at(i));
    NaturaCliccata(-1);
    // The holders of the seal and the parchments it is linked to, in their viewers; the buttons
    // are painted again once the viewer has closed.
    connect(d->cmdMostraTitolari, &QPushButton::clicked, this, [this] {
        Sessione::sDenomElementoLink = LeggiDenominazione();
        Sessione::lIdElementoLink = d->lIdSigillo;
        ApriDialogo(QStringLiteral("frmMostraLinkTitolari"),
                    {{QStringLiteral("bFromSigilli"), true}},
                    [this] { DopoDialogo(&ucSigillo::CheckTitolari); });
    });
    connect(d->cmdMostraPergamene, &QPushButton::clicked, this, [this] {
        const QVariantMap argomenti = {
            {QStringLiteral("lIdSigillo"), qlonglong(fID_Elem)},
            {QStringLiteral("lIdPergamena"), qlonglong(0)},
            {QStringLiteral("sDenominazione"), LeggiDenominazione()},
        };
        ApriDialogo(QStringLiteral("frmMostraLinkPGS"), argomenti,
                    [this] { DopoDialogo(&ucSigillo::CheckPergameneLink); });
    });
    connect(d->chkPubblicaSG, &QCheckBox::clicked, this, [this] {
        ControllaPubblicazione(d->chkPubblicaSG, d->lIDElemPadre,
                               QStringLiteral("Sigillo non pubblicabile"),
                               QStringLiteral("Errore U1"));
    });
}

ucSigillo::~ucSigillo() {
    delete d;
}

void ucSigillo::bAttaccato(bool bValore) {
    d->bAttac = bValore;
}

void ucSigillo::MostraPergameneVisible(bool bVisibile) {
    d->cmdMostraPergamene->setVisible(bVisibile);
}

// --- The protocol --------------------------------------------------------------------------

QList<QWidget*> ucSigillo::Controls() const {
    return EditoreRecord::Controls();
}

void ucSigillo::Init() {
    for (QComboBox* cmb :
         {d->cmbTipol, d->cmbMat, d->cmbApp, d->cmbDoc, d->cmbForma[0], d->cmbForma[1],
          d->cmbTipoDG[0], d->cmbTipoDG[1], d->cmbTipoIco[0], d->cmbTipoIco[1]})
        cmb->clear();
    d->lIDElemPadre = 0;
    ID_Inventario = 0;
    d->lIdSigillo = 0;
    fID_Elem = 0;
    Etichetta(42)->setVisible(!d->bAttac);
    Testo(42)->setVisible(!d->bAttac);
    for (QComboBox* cmb : d->cmbTipoIco)
        CaricaListaConVoceVuota(cmb, QStringLiteral("TipologiaIcoSG.txt"));
    for (QComboBox* cmb : d->cmbForma)
        CaricaLista(cmb, QStringLiteral("FormaSG.txt"));
    CaricaLista(d->cmbMat, QStringLiteral("MateriaSG.txt"));
    CaricaLista(d->cmbTipol, QStringLiteral("TipologiaSG.txt"));
    CaricaLista(d->cmbApp, QStringLiteral("ApposizioneSG.txt"));
    CaricaRapporto();
    for (QComboBox* cmb : d->cmbTipoDG)
        CaricaLista(cmb, QStringLiteral("TipologiaDGSG.txt"));
    LeggiStato(false, 0, 0, 0, false);
    OkNuovoSigillo = true;
    StatoConsulta();
}

void ucSigillo::Nuovo() {
    Nuovo(0);
}

void ucSigillo::Nuovo(long lIDElemPadre) {
    d->lIDElemPadre = lIDElemPadre;
    PulisciSigillo();
    // A new seal must choose its matter.
    d->cmbTipol->setCurrentIndex(-1);
    d->cmbApp->setCurrentIndex(VoceApposizione);
    d->cmbMat->setCurrentIndex(-1);
    for (int i = 0; i < 2; ++i) {
        d->cmbForma[i]->setCurrentIndex(VoceForma);
        d->cmbTipoIco[i]->setCurrentIndex(0);
        d->cmbTipoDG[i]->setCurrentIndex(-1);
    }
    StatoModifica();
}

void ucSigillo::Mostra(long IDElem) {
    PulisciSigillo();
    d->sMd5Link.clear();
    d->lIDElemPadre = MostraElemento(IDElem, d->chkPubblicaSG, d->DTPData, Testo(12), &d->sMd5Link);

    const Connessione& cnn = *Sessione::cnn;
    QSqlQuery riga = cnn.Esegui(SqlSigillo, {Id(IDElem)});
    if (!riga.next()) {
        LeggiStato(false, 0, 0, 0, false);
        StatoConsulta();
        d->cmdImmagine->setEnabled(false);
        return;
    }
    LeggiStato(true, Lungo(riga.value(29)), Lungo(riga.value(28)), Lungo(riga.value(30)), false);
    const auto testo = [&riga](int i) {
        return riga.value(i).toString();
    };
    const auto metti = [this, &testo](int n, int colonna) {
        ImpostaTestoDi(Testo(n), testo(colonna));
    };
    metti(0, 0);
    d->cmbTipol->setCurrentIndex(CercaTipologia(testo(1)));
    ImpostaTestoDi(Testo(2), AnnoDaData(testo(2)));
    ImpostaTestoDi(Testo(3), AnnoDaData(testo(3)));
    metti(4, 4);
    d->cmbMat->setCurrentIndex(CercaMateria(testo(5)));
    metti(6, 6);
    d->cmbApp->setEditText(testo(7));
    d->cmbDoc->setCurrentIndex(CercaRapporto(testo(8)));
    metti(10, 10);
    metti(13, 11);
    for (int n = 25; n <= 38; ++n)
        metti(n, n - 13);
    metti(42, 26);
    metti(43, 27);
    metti(11, 31);
    d->chkUnitaCond->setChecked(Lungo(riga.value(32)) == 1);

    QSqlQuery tipo = cnn.Esegui(SqlTipo, {Id(d->lIdSigillo)});
    if (tipo.next()) {
        const auto tipoTesto = [&tipo](int i) {
            return tipo.value(i).toString();
        };
        d->cmbForma[0]->setEditText(tipoTesto(0));
        int colonna = 1;
        for (int n : {16, 17, 18, 19, 20, 21, 22})
            ImpostaTestoDi(Testo(n), tipoTesto(colonna++));
        d->cmbTipoDG[0]->setEditText(tipoTesto(8));
        ImpostaTestoDi(Testo(24), tipoTesto(9));
        d->cmbForma[1]->setEditText(tipoTesto(10));
        ImpostaTestoDi(Testo(40), tipoTesto(11));
        d->cmbTipoDG[1]->setEditText(tipoTesto(12));
        d->cmbTipoIco[0]->setCurrentIndex(CercaTipologIco(tipoTesto(13), 0));
        d->cmbTipoIco[1]->setCurrentIndex(CercaTipologIco(tipoTesto(14), 1));
    }
    StatoConsulta();
}

void ucSigillo::Modifica() {
    StatoModifica();
}

void ucSigillo::Salva(long IDElem) {
    const Connessione& cnn = *Sessione::cnn;
    bool bTrovata = false;
    long lIdInventario = 0;
    long lIdSigillo = 0;
    // The row of Elementi, the row of Sigilli and the row of SGTipo are written together or not
    // at all; an error goes on to the host.
    InTransazione(cnn.Db(), QStringLiteral("ucSigillo.Salva"), [&] {
        SalvaElemento(IDElem, d->chkPubblicaSG, d->DTPData, Testo(12));
        {
            QSqlQuery md5 = cnn.Esegui(
                QStringLiteral("SELECT Md5Link FROM Elementi WHERE ID_Elemento = ?"), {Id(IDElem)});
            d->sMd5Link = md5.next() && !ENull(md5.value(0)) ? md5.value(0).toString() : QString();
        }
        QSqlQuery riga = cnn.Esegui(
            QStringLiteral("SELECT ID_Inventario, ID_Sigillo FROM Sigilli WHERE ID_Elemento = ?"),
            {Id(IDElem)});
        if (!riga.next())
            return; // no row of the seal: only the element is written
        bTrovata = true;
        lIdInventario = Lungo(riga.value(0));
        lIdSigillo = Lungo(riga.value(1));

        const auto testoCombo = [](const QComboBox* cmb) {
            return ColonnaTesto(NullSeVuoto(cmb->currentText()));
        };
        cnn.Esegui(SqlScriviSigillo, {TestoInColonna(0),
                                      CodiceDueCifre(d->cmbTipol),
                                      ColonnaIntera(DataDaAnno(TestoDi(Testo(2)), true)),
                                      ColonnaIntera(DataDaAnno(TestoDi(Testo(3)), false)),
                                      TestoInColonna(4),
                                      CodiceDueCifre(d->cmbMat),
                                      TestoInColonna(6),
                                      QVariant(d->cmbApp->currentText()),
                                      CodiceDueCifre(d->cmbDoc),
                                      TestoInColonna(10),
                                      TestoInColonna(13),
                                      TestoInColonna(25),
                                      TestoInColonna(26),
                                      TestoInColonna(27),
                                      TestoInColonna(28),
                                      TestoInColonna(29),
                                      TestoInColonna(30),
                                      TestoInColonna(31),
                                      TestoInColonna(32),
                                      TestoInColonna(33),
                                      TestoInColonna(34),
                                      TestoInColonna(35),
                                      TestoInColonna(36),
                                      TestoInColonna(37),
                                      TestoInColonna(38),
                                      TestoInColonna(42),
                                      TestoInColonna(43),
                                      TestoInColonna(11),
                                      QVariant(qlonglong(d->chkUnitaCond->isChecked() ? 1 : 0)),
                                      Id(IDElem)});
        QSqlQuery tipo = cnn.Esegui(SqlScriviTipo,
                                    {QVariant(d->cmbForma[0]->currentText()), TestoInColonna(16),
                                     TestoInColonna(17), TestoInColonna(18), TestoInColonna(19),
                                     TestoInColonna(20), TestoInColonna(21), TestoInColonna(22),
                                     testoCombo(d->cmbTipoDG[0]), TestoInColonna(24),
                                     QVariant(d->cmbForma[1]->currentText()), TestoInColonna(40),
                                     testoCombo(d->cmbTipoDG[1]), CodiceDueCifre(d->cmbTipoIco[0]),
                                     CodiceDueCifre(d->cmbTipoIco[1]), Id(lIdSigillo)});
        if (tipo.numRowsAffected() < 1)
            throw Errore(QStringLiteral("ucSigillo.Salva"),
                         QStringLiteral("La riga del tipo del sigillo non esiste."));
    });
    if (bTrovata)
        LeggiStato(true, IDElem, lIdInventario, lIdSigillo, true);
    StatoConsulta();
}

void ucSigillo::Annulla() {
    StatoConsulta();
}

QString ucSigillo::LeggiDenominazione() const {
    return TestoDi(Testo(0));
}

void ucSigillo::AssegnaInventario(long tempID_Inventario) {
    ID_Inventario = tempID_Inventario;
}

// --- Child lists and images ----------------------------------------------------------------

void ucSigillo::CheckImmagine() {
    d->immagine->CheckImmagine();
}

void ucSigillo::RefreshButton() {
    ColoraPulsante(d->cmdMostraTitolari, Titolari);
    ColoraPulsante(d->cmdMostraPergamene, PergameneLink);
}

void ucSigillo::CheckTitolari(long lIdElemento) {
    Titolari = !NessunaRiga(
        QStringLiteral("SELECT * FROM SGTitolari SGTIT JOIN Sigilli SG ON SGTIT.ID_Sigillo = "
                       "SG.ID_Sigillo WHERE SG.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucSigillo::CheckPergameneLink(long lIdElemento) {
    PergameneLink = !NessunaRiga(
        QStringLiteral("SELECT * FROM Links WHERE ID_Elemento = ? AND ID_ElementoLink IN "
                       "(SELECT ID_Elemento FROM Pergamene)"),
        {Id(lIdElemento)});
}

// --- Codes of the combos -------------------------------------------------------------------

int ucSigillo::CercaTipologia(const QString& sCodice) const {
    return CercaIndice(d->cmbTipol, sCodice);
}

int ucSigillo::CercaTipologIco(const QString& sCodice, int iIndice) const {
    return CercaIndice(d->cmbTipoIco[iIndice], sCodice);
}

int ucSigillo::CercaMateria(const QString& sCodice) const {
    return CercaIndice(d->cmbMat, sCodice);
}

int ucSigillo::CercaRapporto(const QString& sCodice) const {
    return CercaIndice(d->cmbDoc, sCodice);
}

// --- Private -------------------------------------------------------------------------------

void ucSigillo::StatoConsulta() {
    BloccaCampi();
    RefreshButton();
}

void ucSigillo::StatoModifica() {
    SbloccaCampi();
    d->cmbDoc->setVisible(d->bAttac);
    d->lblDoc->setVisible(d->bAttac);
}

void ucSigillo::PulisciSigillo() {
    Pulisci();
    d->cmbTipol->setCurrentIndex(-1);
    d->cmbApp->setCurrentIndex(VoceApposizione);
    d->cmbDoc->setCurrentIndex(d->bAttac ? -1 : VoceRapporto);
    d->cmbMat->setCurrentIndex(0);
    for (int i = 0; i < 2; ++i) {
        d->cmbForma[i]->setCurrentIndex(VoceForma);
        d->cmbTipoDG[i]->setCurrentIndex(-1);
        d->cmbTipoIco[i]->setCurrentIndex(0);
    }
    Etichetta(42)->setVisible(!d->bAttac);
    Testo(42)->setVisible(!d->bAttac);
}

void ucSigillo::LeggiStato(bool bTrovata, long lIdElemento, long lIdInventario, long lIdSigillo,
                           bool bDopoSalva) {
    if (!bTrovata) {
        OkNuovoSigillo = false;
        OkModifica = false;
        OkCancella = false;
        Titolari = false;
        PergameneLink = false;
        ID_Inventario = 0;
        d->lIdSigillo = 0;
        fID_Elem = 0;
        d->sMd5Link.clear();
        d->cmdImmagine->setEnabled(false);
        CheckImmagine();
        return;
    }
    fID_Elem = lIdElemento;
    d->lIdSigillo = lIdSigillo;
    OkNuovoSigillo = true;
    OkModifica = true;
    if (!bDopoSalva)
        AssegnaInventario(lIdInventario);
    OkCancella = FigliElemento(lIdElemento) == 0;
    CheckTitolari(lIdElemento);
    CheckPergameneLink(lIdElemento);
    CheckImmagine();
}

void ucSigillo::NaturaCliccata(int indice) {
    const bool bVerso = indice >= PrimaNaturaConVerso && indice <= UltimaNaturaConVerso;
    d->Frame2->setVisible(bVerso);
    d->cmbForma[1]->setProperty("Tag", bVerso ? QStringLiteral("Inserire forma") : QString());
    if (!bVerso)
        Testo(22)->setProperty("Tag", QString());
}

void ucSigillo::DopoDialogo(void (ucSigillo::*ricontrolla)(long)) {
    (this->*ricontrolla)(fID_Elem);
    RefreshButton();
    RileggiOkCancella(fID_Elem);
}

void ucSigillo::CaricaRapporto() {
    d->cmbDoc->clear();
    if (d->bAttac)
        CaricaListaSenza(d->cmbDoc, QStringLiteral("RapportoDocSG.txt"), RapportoAttaccato);
    else
        CaricaLista(d->cmbDoc, QStringLiteral("RapportoDocSG.txt"));
}
