#include "ucPergamena.h"

#include "images/ImmagineRecord.h"
#include "records/DisposizioneCampi.h"
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
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// The parchment's row of Pergamene as the form shows it: no Null reaches the boxes.
const QString SqlMostra =
    QStringLiteral("SELECT COALESCE(Segnatura,''), "
                   "COALESCE(CAST(DataCronicaInizio AS VARCHAR(8)),''), "
                   "COALESCE(CAST(DataCronicaFine AS VARCHAR(8)),''), "
                   "COALESCE(DataTopica,''), COALESCE(Datazio,''), "
                   "COALESCE(Regesto,''), COALESCE(Miniatura,''), "
                   "COALESCE(SigilliAttuali,0), COALESCE(SigilliOriginari,0), "
                   "COALESCE(Annuncio,''), "
                   "COALESCE(Accesso,''), COALESCE(Riproduzione,''), "
                   "COALESCE(Lingua,''), COALESCE(Bibliografia,''), "
                   "COALESCE(NoteDirezione,''), COALESCE(NoteRiproduzione,''), "
                   "COALESCE(Note,''), COALESCE(UrlLink,''), COALESCE(DescrizioneEstremi,''), "
                   "ID_Inventario, ID_Elemento, ID_Pergamena, COALESCE(FlgUnitaCond,0) "
                   "FROM Pergamene WHERE ID_Elemento = ?");

const QString SqlScrivi = QStringLiteral(
    "UPDATE Pergamene SET Segnatura = ?, DataCronicaInizio = ?, DataCronicaFine = ?, "
    "DataTopica = ?, Datazio = ?, Regesto = ?, Miniatura = ?, SigilliAttuali = ?, "
    "SigilliOriginari = ?, Annuncio = ?, Accesso = ?, Riproduzione = ?, Lingua = ?, "
    "Bibliografia = ?, NoteDirezione = ?, NoteRiproduzione = ?, Note = ?, UrlLink = ?, "
    "DescrizioneEstremi = ?, FlgUnitaCond = ? WHERE ID_Elemento = ?");

// The rows of the parchment's other tables, by the key of its row of Pergamene.
const QString SqlSupporti = QStringLiteral(
    "SELECT COALESCE(Supporto,''), COALESCE(StatoConservazione,''), COALESCE(Dimensioni,''), "
    "COALESCE(Note,'') FROM PGSupporti WHERE ID_Pergamena = ?");
const QString SqlTraditio =
    QStringLiteral("SELECT COALESCE(Traditio,''), COALESCE(CAST(DataCopia AS VARCHAR(8)),''), "
                   "COALESCE(Rogatario,''), COALESCE(DataCopiaTesto,''), COALESCE(ID_Elemento,0) "
                   "FROM PGTraditio WHERE ID_Pergamena = ?");
const QString SqlEleGrafici =
    QStringLiteral("SELECT COALESCE(NoteGrafiche,'') FROM PGEleGrafici WHERE ID_Pergamena = ?");
const QString SqlNoteStoriche =
    QStringLiteral("SELECT COALESCE(NoteStoriche,'') FROM PGNoteStoriche WHERE ID_Pergamena = ?");

// The traditio of a parchment that is itself the original: the first line of its list.
constexpr int VoceOriginale = 0;

// A count of seals for its column: 0 for an empty box.
QVariant ColonnaSigilli(const QString& sTesto) {
    return QVariant(qlonglong(qRound64(NumeroOZero(sTesto).toDouble())));
}

// An update of one row that must be there: a row missing is an error of the update.
void ScriviRiga(const QString& sTabella, const QString& sSql,
                std::initializer_list<QVariant> valori, long lIdPergamena) {
    QSqlQuery scrittura = Sessione::cnn->Esegui(sSql, valori);
    if (scrittura.numRowsAffected() < 1)
        throw Errore(QStringLiteral("ucPergamena.Salva"),
                     QStringLiteral("Manca la riga di %1 della pergamena %2.")
                         .arg(sTabella)
                         .arg(lIdPergamena));
}

} // namespace

struct ucPergamena::Dati {
    long lIDElemPadre = 0;
    long ID_Pergamena = 0;
    long lIdElemPergOrig = 0;
    QString MD5link;
    bool bOriginale = false;
    // cmdMostraLinks offered: a host that leaves the complessi out keeps it off for good.
    bool bComplessiDoc = true;

    QComboBox* cmbTraditio = nullptr;
    QCheckBox* chkUnitaCond = nullptr;
    QCheckBox* chkPubblicaPG = nullptr;
    QDateEdit* DTPData = nullptr;
    QTabWidget* SSTab1 = nullptr;
    QPushButton* cmdMostraAltreSeg = nullptr;
    QPushButton* cmdMostraPergamene = nullptr;
    QPushButton* cmdMostraLinks = nullptr;
    QPushButton* cmdMostraToponimi = nullptr;
    QPushButton* cmdMostraAntroponimi = nullptr;
    QPushButton* cmdMostraNotazioni = nullptr;
    QPushButton* cmdMostraSigilli = nullptr;
    QPushButton* cmdImmagine = nullptr;
    ImmagineRecord* immagine = nullptr;
};

ucPergamena::ucPergamena(QWidget* parent)
    : EditoreRecord(parent)
    , d(new Dati) {
    setObjectName(QStringLiteral("ucPergamena"));
    const auto pulsante = [this](const char* nome, const QString& sTesto) {
        auto* cmd = new QPushButton(sTesto, this);
        cmd->setObjectName(QLatin1String(nome));
        return cmd;
    };

    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Identificativo"));
    QLineEdit* txt0 = NuovoTesto(0, 64, QStringLiteral("Inserire segnatura attuale"));
    QLabel* lbl36 = NuovaEtichetta(36, QStringLiteral("Datazione (testo)"));
    QLineEdit* txt36 = NuovoTesto(36, 128, QStringLiteral("Inserire datazione"));
    QLabel* lbl23 = NuovaEtichetta(23, QStringLiteral("Dimensioni"));
    QLineEdit* txt23 = NuovoTesto(23, 32, QStringLiteral("Inserire dimensioni"));
    QLabel* lbl21 = NuovaEtichetta(21, QStringLiteral("Supporto"));
    QLineEdit* txt21 = NuovoTesto(21, 32, QStringLiteral("Inserire supporto"));
    d->cmbTraditio = NuovaCombo(QStringLiteral("cmbTraditio"), QStringLiteral("Inserire traditio"));
    QLineEdit* txt33 = NuovoTesto(33, 10, QStringLiteral("Inserire data cronica"));
    QLabel* lbl15 = NuovaEtichetta(15, QStringLiteral("Redattore"));
    QLineEdit* txt15 = NuovoTesto(15, 64, QStringLiteral("Inserire redattore"));
    QLabel* lbl1 = NuovaEtichetta(1, QStringLiteral("Data cronica inizio e fine"));
    QLineEdit* txt1 = NuovoTesto(1, 10, QStringLiteral("Inserire data cronica"));
    QLineEdit* txt27 = NuovoTesto(27, 4, QStringLiteral("Inserire nr. di sigilli originali"));
    QLabel* lbl26 = NuovaEtichetta(26, QStringLiteral("Attuali/originali"));
    QLineEdit* txt26 = NuovoTesto(26, 4, QStringLiteral("Inserire nr. di sigilli attuali"));
    QLabel* lbl4 = NuovaEtichetta(4, QStringLiteral("Regesto"));
    QPlainTextEdit* txt4 = NuovoTestoMultiRiga(4, 1024, QStringLiteral("Inserire regesto"));
    QLabel* lbl2 = NuovaEtichetta(2, QStringLiteral("Data topica"));
    QLineEdit* txt2 = NuovoTesto(2, 64, QStringLiteral("Inserire data topica"));
    QLabel* lbl3 = NuovaEtichetta(3, QStringLiteral("Datatio"));
    QLineEdit* txt3 = NuovoTesto(3, 256);
    QLabel* lbl32 = NuovaEtichetta(32, QStringLiteral("Note gestionali"));
    QPlainTextEdit* txt32 = NuovoTestoMultiRiga(32, 1024);
    QLabel* lbl20 = NuovaEtichetta(20, QStringLiteral("Note"));
    QPlainTextEdit* txt20 = NuovoTestoMultiRiga(20, 1024);
    d->chkUnitaCond = NuovaCasella(QStringLiteral("chkUnitaCond"));
    d->chkUnitaCond->setText(QStringLiteral("Unità di condizionamento"));
    QLabel* lbl18 = NuovaEtichetta(18, QStringLiteral("Data copia"));
    QLineEdit* txt18 = NuovoTesto(18, 10);
    QLabel* lbl19 = NuovaEtichetta(19, QStringLiteral("Note alla Traditio"));
    QPlainTextEdit* txt19 = NuovoTestoMultiRiga(19, 512);
    QLabel* lbl9 = NuovaEtichetta(9, QStringLiteral("Data traditio"));
    QLineEdit* txt9 = NuovoTesto(9, 64);
    QLabel* lbl25 = NuovaEtichetta(25, QStringLiteral("Miniature"));
    QPlainTextEdit* txt25 = NuovoTestoMultiRiga(25, 512);
    QLabel* lbl28 = NuovaEtichetta(28, QStringLiteral("Annuncio"));
    QPlainTextEdit* txt28 = NuovoTestoMultiRiga(28, 1024);
    QLabel* lbl5 = NuovaEtichetta(5, QStringLiteral("Lingua e scrittura"));
    QLineEdit* txt5 = NuovoTesto(5, 128);
    QLabel* lbl22 = NuovaEtichetta(22, QStringLiteral("Stato di conservazione e restauro"));
    QLineEdit* txt22 = NuovoTesto(22, 256);
    QLabel* lbl24 = NuovaEtichetta(24, QStringLiteral("Note sul supporto"));
    QPlainTextEdit* txt24 = NuovoTestoMultiRiga(24, 1024);
    QLabel* lbl34 = NuovaEtichetta(34, QStringLiteral("Segni di convalida"));
    QPlainTextEdit* txt34 = NuovoTestoMultiRiga(34, 512);
    QLabel* lbl7 = NuovaEtichetta(7, QStringLiteral("Condizioni di accesso"));
    QLineEdit* txt7 = NuovoTesto(7, 256);
    QLabel* lbl8 = NuovaEtichetta(8, QStringLiteral("Condizioni per la riproduzione"));
    QLineEdit* txt8 = NuovoTesto(8, 128);
    QLabel* lbl6 = NuovaEtichetta(6, QStringLiteral("Bibliografia e altre fonti"));
    QPlainTextEdit* txt6 = NuovoTestoMultiRiga(6, 1024);
    QLabel* lbl29 = NuovaEtichetta(29, QStringLiteral("Informazioni tecniche sulla riproduzione"));
    QLineEdit* txt29 = NuovoTesto(29, 256);
    QLabel* lbl35 = NuovaEtichetta(35, QStringLiteral("Link ad altre risorse"));
    QLineEdit* txt35 = NuovoTesto(35, 128);
    QLabel* lbl30 = NuovaEtichetta(30, QStringLiteral("Note"));
    QPlainTextEdit* txt30 = NuovoTestoMultiRiga(30, 1024);
    d->chkPubblicaPG = NuovaCasella(QStringLiteral("chkPubblicaPG"));
    d->chkPubblicaPG->setText(QStringLiteral("Visibile sul web"));
    QLabel* lbl16 = NuovaEtichetta(16, QStringLiteral("Data redazione"));
    d->DTPData =
        NuovaData(QStringLiteral("DTPData"), QStringLiteral("Inserire la data di registrazione"));
    // The date of the copy is only shown, never written.
    RegistraSoloLettura(txt18);

    // The buttons to the child lists, the link viewers, the original and the image.
    d->cmdMostraAltreSeg = pulsante("cmdMostraAltreSeg", QStringLiteral("Antiche segnature"));
    d->cmdMostraPergamene = pulsante("cmdMostraPergamene", QStringLiteral("Collegamento"));
    d->cmdMostraLinks = pulsante("cmdMostraLinks", QStringLiteral("Compl. documentari"));
    d->cmdMostraToponimi = pulsante("cmdMostraToponimi", QStringLiteral("Toponimi"));
    d->cmdMostraAntroponimi = pulsante("cmdMostraAntroponimi", QStringLiteral("Persone"));
    d->cmdMostraNotazioni = pulsante("cmdMostraNotazioni", QStringLiteral("Notazioni"));
    d->cmdMostraSigilli = pulsante("cmdMostraSigilli", QStringLiteral("Collegamento"));
    d->cmdImmagine = new QPushButton(this);
    d->cmdImmagine->setObjectName(QStringLiteral("cmdImmagine"));
    d->immagine = new ImmagineRecord(d->cmdImmagine,
                                     ImmagineRecord::Collegamento{
                                         [this] { return fID_Elem; },
                                         [this] { return d->MD5link; },
                                         [this](const QString& s) { d->MD5link = s; },
                                         false,
                                         false,
                                     },
                                     this);
    for (QPushButton* cmd :
         {d->cmdMostraLinks, d->cmdMostraAltreSeg, d->cmdMostraAntroponimi, d->cmdMostraNotazioni,
          d->cmdMostraToponimi, d->cmdMostraSigilli, d->cmdMostraPergamene, d->cmdImmagine})
        RegistraPulsanteFiglio(cmd);

    // On screen: the identifier and the old signatures above the three tabs.
    const auto griglia = [](QWidget* genitore) {
        auto* g = new QGridLayout(genitore);
        g->setColumnStretch(1, 1);
        return g;
    };
    const auto metti = [](QGridLayout* g, QLabel* etichetta, QWidget* campo,
                          QWidget* secondo = nullptr) {
        const int riga = g->rowCount();
        if (etichetta != nullptr) {
            etichetta->setBuddy(campo);
            g->addWidget(etichetta, riga, 0, Qt::AlignTop);
        }
        if (secondo == nullptr) {
            g->addWidget(campo, riga, 1, 1, 2);
        } else {
            g->addWidget(campo, riga, 1);
            g->addWidget(secondo, riga, 2);
        }
    };
    auto* principale = new QVBoxLayout(this);
    auto* testa = new QGridLayout;
    testa->addWidget(lbl0, 0, 0);
    testa->addWidget(txt0, 0, 1);
    testa->addWidget(d->cmdMostraAltreSeg, 0, 2);
    testa->setColumnStretch(1, 1);
    lbl0->setBuddy(txt0);
    principale->addLayout(testa);
    d->SSTab1 = new QTabWidget(this);
    d->SSTab1->setObjectName(QStringLiteral("SSTab1"));
    principale->addWidget(d->SSTab1);

    auto* identificativi = new QWidget;
    QGridLayout* g1 = griglia(identificativi);
    metti(g1, lbl1, txt1, txt33);
    // In a narrow pane the two dates still show whole.
    for (QLineEdit* casellaData : {txt1, txt33})
        casellaData->setMinimumWidth(LarghezzaPer(casellaData, QStringLiteral("00/00/0000")));
    metti(g1, lbl36, txt36);
    metti(g1, lbl2, txt2);
    metti(g1, lbl3, txt3);
    metti(g1, lbl4, txt4);
    auto* fraTraditio = new QGroupBox(QStringLiteral("Traditio"), identificativi);
    fraTraditio->setObjectName(QStringLiteral("fraTraditio"));
    QGridLayout* gt = griglia(fraTraditio);
    gt->addWidget(d->cmbTraditio, 0, 0, 1, 2);
    gt->addWidget(d->cmdMostraPergamene, 0, 2);
    metti(gt, lbl9, txt9);
    metti(gt, lbl18, txt18);
    metti(gt, lbl19, txt19);
    g1->addWidget(fraTraditio, g1->rowCount(), 0, 1, 3);
    metti(g1, lbl32, txt32);
    metti(g1, lbl20, txt20);
    g1->addWidget(d->chkUnitaCond, g1->rowCount(), 1);
    d->SSTab1->addTab(identificativi, QStringLiteral("Dati identificativi"));

    auto* estrinseci = new QWidget;
    QGridLayout* g2 = griglia(estrinseci);
    metti(g2, lbl21, txt21);
    metti(g2, lbl23, txt23);
    metti(g2, lbl22, txt22);
    metti(g2, lbl24, txt24);
    metti(g2, lbl5, txt5);
    metti(g2, lbl25, txt25);
    metti(g2, lbl28, txt28);
    metti(g2, lbl34, txt34);
    auto* fraSigilli = new QGroupBox(QStringLiteral("Sigilli"), estrinseci);
    fraSigilli->setObjectName(QStringLiteral("fraSigilli"));
    QGridLayout* gs = griglia(fraSigilli);
    metti(gs, lbl26, txt26, txt27);
    gs->addWidget(d->cmdMostraSigilli, gs->rowCount(), 2);
    g2->addWidget(fraSigilli, g2->rowCount(), 0, 1, 3);
    d->SSTab1->addTab(estrinseci, QStringLiteral("Caratteri estrinseci"));

    auto* contesto = new QWidget;
    QGridLayout* g3 = griglia(contesto);
    metti(g3, lbl7, txt7);
    metti(g3, lbl8, txt8);
    metti(g3, lbl29, txt29);
    metti(g3, lbl6, txt6);
    metti(g3, lbl35, txt35);
    auto* fraContesto = new QGroupBox(QStringLiteral("Contesto"), contesto);
    fraContesto->setObjectName(QStringLiteral("fraContesto"));
    QGridLayout* gc = griglia(fraContesto);
    metti(gc, lbl30, txt30);
    g3->addWidget(fraContesto, g3->rowCount(), 0, 1, 3);
    auto* collegamenti = new QHBoxLayout;
    for (QPushButton* cmd :
         {d->cmdMostraLinks, d->cmdMostraToponimi, d->cmdMostraAntroponimi, d->cmdMostraNotazioni})
        collegamenti->addWidget(cmd);
    g3->addLayout(collegamenti, g3->rowCount(), 0, 1, 3);
    d->SSTab1->addTab(contesto, QStringLiteral("Contesto e accesso"));

    auto* piede = new QGridLayout;
    piede->addWidget(lbl15, 0, 0);
    piede->addWidget(txt15, 0, 1);
    piede->addWidget(lbl16, 0, 2);
    piede->addWidget(d->DTPData, 0, 3);
    piede->addWidget(d->chkPubblicaPG, 1, 1);
    piede->addWidget(d->cmdImmagine, 1, 3);
    lbl15->setBuddy(txt15);
    lbl16->setBuddy(d->DTPData);
    principale->addLayout(piede);

    // The keyboard walks the form as it is seen, tab after tab.
    CatenaDelFuoco({txt0,
                    d->cmdMostraAltreSeg,
                    txt1,
                    txt33,
                    txt36,
                    txt2,
                    txt3,
                    txt4,
                    d->cmbTraditio,
                    d->cmdMostraPergamene,
                    txt9,
                    txt18,
                    txt19,
                    txt32,
                    txt20,
                    d->chkUnitaCond,
                    txt21,
                    txt23,
                    txt22,
                    txt24,
                    txt5,
                    txt25,
                    txt28,
                    txt34,
                    txt26,
                    txt27,
                    d->cmdMostraSigilli,
                    txt7,
                    txt8,
                    txt29,
                    txt6,
                    txt35,
                    txt30,
                    d->cmdMostraLinks,
                    d->cmdMostraToponimi,
                    d->cmdMostraAntroponimi,
                    d->cmdMostraNotazioni,
                    txt15,
                    d->DTPData,
                    d->chkPubblicaPG,
                    d->cmdImmagine});

    // The note of the record and the date of the copy are kept out of sight.
    for (QWidget* nascosto : {static_cast<QWidget*>(txt20), static_cast<QWidget*>(lbl20),
                              static_cast<QWidget*>(txt18), static_cast<QWidget*>(lbl18)})
        nascosto->setVisible(false);

    // Numbers and dates are checked when their box is left.
    for (int n : {26, 27})
        ControllaAllUscita(Testo(n), &EditoreRecord::NumeroErrato);
    for (int n : {1, 33})
        ControllaAllUscita(Testo(n), &EditoreRecord::DataErrata);

    connect(d->cmbTraditio, &QComboBox::currentIndexChanged, this,
            [this](int indice) { TraditioCliccato(indice); });
    connect(d->chkPubblicaPG, &QCheckBox::clicked, this, [this] {
        ControllaPubblicazione(d->chkPubblicaPG, d->lIDElemPadre,
                               QStringLiteral("Pergamena non pubblicabile"),
                               QStringLiteral("Errore U1"));
    });
    connect(d->cmdMostraAltreSeg, &QPushButton::clicked, this, [this] {
        Sessione::lIdPergamena = d->ID_Pergamena;
        ApriFiglio(QStringLiteral("frmAltreSegnature"), &ucPergamena::CheckSegnature);
    });
    connect(d->cmdMostraNotazioni, &QPushButton::clicked, this, [this] {
        Sessione::lIdPergamena = d->ID_Pergamena;
        ApriFiglio(QStringLiteral("frmPgNotazioni"), &ucPergamena::CheckNotazioni);
    });
    connect(d->cmdMostraAntroponimi, &QPushButton::clicked, this, [this] {
        Sessione::sDenomElementoLink = LeggiDenominazione();
        Sessione::lIdElementoLink = d->ID_Pergamena;
        ApriFiglio(QStringLiteral("frmMostraLinkAnt"), &ucPergamena::CheckAntroponimi);
    });
    connect(d->cmdMostraToponimi, &QPushButton::clicked, this, [this] {
        Sessione::sDenomElementoLink = LeggiDenominazione();
        Sessione::lIdElementoLink = d->ID_Pergamena;
        Sessione::iChiamanteToponimi = 1;
        ApriFiglio(QStringLiteral("frmMostraLinkTopo"), &ucPergamena::CheckToponimi);
    });
    connect(d->cmdMostraLinks, &QPushButton::clicked, this, [this] {
        Sessione::sDenomInventario = LeggiDenominazione();
        Sessione::lIdInventario = fID_Elem;
        Sessione::iEsitoLinkCD = 0;
        Sessione::iChiamanteInv = 2;
        ApriFiglio(QStringLiteral("frmMostraLinkInv"), &ucPergamena::CheckLinks);
    });
    connect(d->cmdMostraSigilli, &QPushButton::clicked, this, [this] { cmdMostraSigilli_Click(); });
    connect(d->cmdMostraPergamene, &QPushButton::clicked, this,
            [this] { cmdMostraPergamene_Click(); });
}

ucPergamena::~ucPergamena() {
    delete d;
}

// --- The protocol --------------------------------------------------------------------------

QList<QWidget*> ucPergamena::Controls() const {
    return EditoreRecord::Controls();
}

void ucPergamena::Init() {
    d->lIDElemPadre = 0;
    ID_Inventario = 0;
    d->ID_Pergamena = 0;
    fID_Elem = 0;
    d->lIdElemPergOrig = 0;
    OkNuovaPergamena = true;
    OkModifica = true;
    OkCancella = true;
    AltreSegnature = Toponimi = Antroponimi = Sigilli = Notazioni = Pergamene = Links =
        SigilliLinks = false;
    d->cmbTraditio->clear();
    CaricaLista(d->cmbTraditio, QStringLiteral("TraditioPG.txt"));
    StatoMostra();
}

void ucPergamena::Nuovo(long lIDElemPadre) {
    d->lIDElemPadre = lIDElemPadre;
    PulisciModulo();
    d->cmbTraditio->setCurrentIndex(d->cmbTraditio->count() > 0 ? VoceOriginale : -1);
    TraditioCliccato(d->cmbTraditio->currentIndex());
    SbloccaCampi();
}

void ucPergamena::Nuovo() {
    Nuovo(0);
}

void ucPergamena::Mostra(long IDElem) {
    PulisciModulo();
    d->MD5link.clear();
    d->lIdElemPergOrig = 0;
    d->lIDElemPadre = MostraElemento(IDElem, d->chkPubblicaPG, d->DTPData, Testo(15), &d->MD5link);

    const Connessione& cnn = *Sessione::cnn;
    QSqlQuery pergamena = cnn.Esegui(SqlMostra, {Id(IDElem)});
    Riga riga;
    if (pergamena.next()) {
        riga.bTrovata = true;
        riga.lIdInventario = Lungo(pergamena.value(19));
        riga.lIdElemento = Lungo(pergamena.value(20));
        riga.lIdPergamena = Lungo(pergamena.value(21));
    }
    LeggiStato(riga);
    if (riga.bTrovata) {
        const auto testo = [&pergamena](int i) {
            return pergamena.value(i).toString();
        };
        ImpostaTestoDi(Testo(0), testo(0));
        ImpostaTestoDi(Testo(1), DataDaTesto(testo(1)));
        ImpostaTestoDi(Testo(33), DataDaTesto(testo(2)));
        ImpostaTestoDi(Testo(2), testo(3));
        ImpostaTestoDi(Testo(3), testo(4));
        ImpostaTestoDi(Testo(4), testo(5));
        ImpostaTestoDi(Testo(25), testo(6));
        ImpostaTestoDi(Testo(26), testo(7));
        ImpostaTestoDi(Testo(27), testo(8));
        ImpostaTestoDi(Testo(28), testo(9));
        ImpostaTestoDi(Testo(7), testo(10));
        ImpostaTestoDi(Testo(8), testo(11));
        ImpostaTestoDi(Testo(5), testo(12));
        ImpostaTestoDi(Testo(6), testo(13));
        ImpostaTestoDi(Testo(32), testo(14));
        ImpostaTestoDi(Testo(29), testo(15));
        ImpostaTestoDi(Testo(20), testo(16));
        ImpostaTestoDi(Testo(35), testo(17));
        ImpostaTestoDi(Testo(36), testo(18));
        d->chkUnitaCond->setChecked(pergamena.value(22).toLongLong() == 1);

        const QVariant chiave = Id(d->ID_Pergamena);
        QSqlQuery supporti = cnn.Esegui(SqlSupporti, {chiave});
        if (supporti.next()) {
            for (int i = 0; i < 4; ++i)
                ImpostaTestoDi(Testo(21 + i), supporti.value(i).toString());
        }
        QSqlQuery traditio = cnn.Esegui(SqlTraditio, {chiave});
        if (traditio.next()) {
            ImpostaTestoDi(Testo(18), DataDaTesto(traditio.value(1).toString()));
            ImpostaTestoDi(Testo(19), traditio.value(2).toString());
            ImpostaTestoDi(Testo(9), traditio.value(3).toString());
            d->cmbTraditio->setCurrentIndex(CercaTraditio(traditio.value(0).toString()));
            TraditioCliccato(d->cmbTraditio->currentIndex());
            d->lIdElemPergOrig = Lungo(traditio.value(4));
            CheckPergamene();
        }
        QSqlQuery grafici = cnn.Esegui(SqlEleGrafici, {chiave});
        if (grafici.next())
            ImpostaTestoDi(Testo(34), grafici.value(0).toString());
        QSqlQuery storiche = cnn.Esegui(SqlNoteStoriche, {chiave});
        if (storiche.next())
            ImpostaTestoDi(Testo(30), storiche.value(0).toString());
    }
    StatoMostra();
}

void ucPergamena::Salva(long IDElem) {
    const Connessione& cnn = *Sessione::cnn;
    // The six tables are written together or not at all; an error goes on to the host.
    InTransazione(cnn.Db(), QStringLiteral("ucPergamena.Salva"), [&] {
        SalvaElemento(IDElem, d->chkPubblicaPG, d->DTPData, Testo(15));
        QSqlQuery elemento = cnn.Esegui(
            QStringLiteral("SELECT COALESCE(Md5Link,'') FROM Elementi WHERE ID_Elemento = ?"),
            {Id(IDElem)});
        d->MD5link = elemento.next() ? elemento.value(0).toString() : QString();

        QSqlQuery pergamena =
            cnn.Esegui(QStringLiteral("SELECT ID_Inventario, ID_Elemento, ID_Pergamena FROM "
                                      "Pergamene WHERE ID_Elemento = ?"),
                       {Id(IDElem)});
        if (!pergamena.next())
            return; // no row of Pergamene: only the element is written
        Riga riga;
        riga.bTrovata = true;
        riga.lIdInventario = Lungo(pergamena.value(0));
        riga.lIdElemento = Lungo(pergamena.value(1));
        riga.lIdPergamena = Lungo(pergamena.value(2));

        cnn.Esegui(SqlScrivi, {TestoNonNullo(TestoODefault(TestoDi(Testo(0)))),
                               ColonnaDataCompleta(TestoDi(Testo(1))),
                               ColonnaDataCompleta(TestoDi(Testo(33))),
                               TestoInColonna(2),
                               TestoInColonna(3),
                               TestoInColonna(4),
                               TestoInColonna(25),
                               ColonnaSigilli(TestoDi(Testo(26))),
                               ColonnaSigilli(TestoDi(Testo(27))),
                               TestoInColonna(28),
                               TestoInColonna(7),
                               TestoInColonna(8),
                               TestoInColonna(5),
                               TestoInColonna(6),
                               TestoInColonna(32),
                               TestoInColonna(29),
                               TestoInColonna(20),
                               TestoInColonna(35),
                               TestoInColonna(36),
                               QVariant(qlonglong(d->chkUnitaCond->isChecked() ? 1 : 0)),
                               Id(IDElem)});
        LeggiStato(riga, true);

        const QVariant chiave = Id(riga.lIdPergamena);
        ScriviRiga(QStringLiteral("PGSupporti"),
                   QStringLiteral("UPDATE PGSupporti SET Supporto = ?, StatoConservazione = ?, "
                                  "Dimensioni = ?, Note = ? WHERE ID_Pergamena = ?"),
                   {TestoInColonna(21), TestoInColonna(22), TestoInColonna(23), TestoInColonna(24),
                    chiave},
                   riga.lIdPergamena);
        // DataCopia stays as it stands; the link to the original is the link dialog's.
        ScriviRiga(QStringLiteral("PGTraditio"),
                   QStringLiteral("UPDATE PGTraditio SET Traditio = ?, Rogatario = ?, "
                                  "DataCopiaTesto = ? WHERE ID_Pergamena = ?"),
                   {CodiceDueCifre(d->cmbTraditio), TestoInColonna(19), TestoInColonna(9), chiave},
                   riga.lIdPergamena);
        ScriviRiga(
            QStringLiteral("PGEleGrafici"),
            QStringLiteral("UPDATE PGEleGrafici SET NoteGrafiche = ? WHERE ID_Pergamena = ?"),
            {TestoInColonna(34), chiave}, riga.lIdPergamena);
        ScriviRiga(
            QStringLiteral("PGNoteStoriche"),
            QStringLiteral("UPDATE PGNoteStoriche SET NoteStoriche = ? WHERE ID_Pergamena = ?"),
            {TestoInColonna(30), chiave}, riga.lIdPergamena);
    });
    StatoMostra();
}

void ucPergamena::Annulla() {
    StatoMostra();
}

QString ucPergamena::LeggiDenominazione() const {
    return TestoDi(Testo(0));
}

void ucPergamena::AssegnaInventario(long tempID_Inventario) {
    ID_Inventario = tempID_Inventario;
}

// --- State ---------------------------------------------------------------------------------

void ucPergamena::LeggiStato(const Riga& riga, bool bDopoSalva) {
    if (!riga.bTrovata) {
        OkNuovaPergamena = OkModifica = OkCancella = false;
        AltreSegnature = Toponimi = Antroponimi = Sigilli = Notazioni = Links = false;
        ID_Inventario = 0;
        d->ID_Pergamena = 0;
        fID_Elem = 0;
        d->MD5link.clear();
        d->cmdImmagine->setEnabled(false);
        CheckImmagine();
        return;
    }
    fID_Elem = riga.lIdElemento;
    d->ID_Pergamena = riga.lIdPergamena;
    OkNuovaPergamena = true;
    OkModifica = true;
    if (!bDopoSalva)
        AssegnaInventario(riga.lIdInventario);
    OkCancella = FigliElemento(fID_Elem) == 0;
    CheckSegnature(fID_Elem);
    CheckToponimi(fID_Elem);
    CheckAntroponimi(fID_Elem);
    CheckSigilli(fID_Elem);
    CheckNotazioni(fID_Elem);
    CheckLinks(fID_Elem);
    CheckSigilliLink(fID_Elem);
    CheckImmagine();
}

void ucPergamena::CheckImmagine() {
    d->immagine->CheckImmagine();
}

void ucPergamena::RefreshButton() {
    ColoraPulsante(d->cmdMostraAltreSeg, AltreSegnature);
    ColoraPulsante(d->cmdMostraLinks, Links);
    ColoraPulsante(d->cmdMostraAntroponimi, Antroponimi);
    ColoraPulsante(d->cmdMostraNotazioni, Notazioni);
    ColoraPulsante(d->cmdMostraToponimi, Toponimi);
    ColoraPulsante(d->cmdMostraPergamene, Pergamene);
    ColoraPulsante(d->cmdMostraSigilli, SigilliLinks);
}

void ucPergamena::CheckSegnature(long lIdElemento) {
    AltreSegnature = !NessunaRiga(
        QStringLiteral("SELECT * FROM PGAltreSegnature PGSEG JOIN Pergamene PG ON "
                       "PGSEG.ID_Pergamena = PG.ID_Pergamena WHERE PG.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucPergamena::CheckToponimi(long lIdElemento) {
    Toponimi = !NessunaRiga(
        QStringLiteral("SELECT * FROM PGToponimi PGTOP JOIN Pergamene PG ON "
                       "PGTOP.ID_Pergamena = PG.ID_Pergamena WHERE PG.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucPergamena::CheckAntroponimi(long lIdElemento) {
    Antroponimi = !NessunaRiga(
        QStringLiteral("SELECT * FROM PGAntroponimi PGANT JOIN Pergamene PG ON "
                       "PGANT.ID_Pergamena = PG.ID_Pergamena WHERE PG.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucPergamena::CheckSigilli(long lIdElemento) {
    Sigilli = !NessunaRiga(
        QStringLiteral("SELECT * FROM PGSigilli PGSIG JOIN Pergamene PG ON "
                       "PGSIG.ID_Pergamena = PG.ID_Pergamena WHERE PG.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucPergamena::CheckNotazioni(long lIdElemento) {
    Notazioni = !NessunaRiga(
        QStringLiteral("SELECT * FROM PGNotazioni PGNOT JOIN Pergamene PG ON "
                       "PGNOT.ID_Pergamena = PG.ID_Pergamena WHERE PG.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucPergamena::CheckLinks(long lIdElemento) {
    // Only the complessi linked count.
    Links = !NessunaRiga(
        QStringLiteral("SELECT LNK.ID_Elemento FROM Links LNK WHERE LNK.ID_ElementoLink = ? "
                       "AND EXISTS (SELECT ELEM.ID_Elemento FROM Elementi ELEM "
                       "WHERE ELEM.Tipologia = '02' AND LNK.ID_Elemento = ELEM.ID_Elemento)"),
        {Id(lIdElemento)});
}

void ucPergamena::CheckSigilliLink(long lIdElemento) {
    SigilliLinks =
        !NessunaRiga(QStringLiteral("SELECT * FROM Links WHERE ID_ElementoLink = ? "
                                    "AND ID_Elemento IN (SELECT ID_Elemento FROM Sigilli)"),
                     {Id(lIdElemento)});
}

void ucPergamena::CheckPergamene() {
    if (d->bOriginale)
        Pergamene = !NessunaRiga(QStringLiteral("SELECT * FROM PGTraditio WHERE ID_Elemento = ?"),
                                 {Id(fID_Elem)});
    else
        Pergamene = d->lIdElemPergOrig != 0;
}

int ucPergamena::CercaTraditio(const QString& sCodice) const {
    return CercaIndice(d->cmbTraditio, sCodice);
}

void ucPergamena::MostraSigilliVisible(bool bVisibile) {
    d->cmdMostraSigilli->setVisible(bVisibile);
}

void ucPergamena::EnabledComplessiDoc(bool bAbilitato) {
    d->bComplessiDoc = bAbilitato;
    d->cmdMostraLinks->setEnabled(bAbilitato);
    d->cmdMostraLinks->setVisible(bAbilitato);
}

// --- Private -------------------------------------------------------------------------------

void ucPergamena::StatoMostra() {
    BloccaCampi();
    // The browse state enables the child-list buttons, but not the complessi a host left out.
    d->cmdMostraLinks->setEnabled(d->bComplessiDoc);
    RefreshButton();
    // No image without an element of the parchment.
    d->cmdImmagine->setEnabled(fID_Elem != 0);
}

void ucPergamena::PulisciModulo() {
    Pulisci();
    d->cmbTraditio->setCurrentIndex(-1);
    TraditioCliccato(-1);
}

void ucPergamena::TraditioCliccato(int indice) {
    const bool bCopia = indice != VoceOriginale;
    for (QWidget* campo :
         {Testo(9), static_cast<QWidget*>(Etichetta(9)), Testo(19),
          static_cast<QWidget*>(Etichetta(19)), static_cast<QWidget*>(d->cmdMostraPergamene)})
        campo->setVisible(bCopia);
    d->bOriginale = !bCopia;
}

void ucPergamena::ApriFiglio(const QString& sDialogo, void (ucPergamena::*ricontrolla)(long),
                             const QVariantMap& argomenti) {
    // Once the dialog has closed: its flag read again and the buttons coloured, before the host
    // hears of it.
    ApriDialogo(sDialogo, argomenti, [this, ricontrolla] {
        (this->*ricontrolla)(fID_Elem);
        RefreshButton();
        RileggiOkCancella(fID_Elem);
    });
}

void ucPergamena::cmdMostraPergamene_Click() {
    QVariantMap argomenti;
    if (d->bOriginale) {
        // The copies of this original, to read.
        argomenti.insert(QStringLiteral("lIdElemento"), qlonglong(fID_Elem));
        argomenti.insert(QStringLiteral("sDenominazione"), LeggiDenominazione());
    } else {
        Sessione::lIdInventario = ID_Inventario;
        Sessione::lIdElementoLink = d->lIdElemPergOrig;
    }
    Sessione::lIdPergamena = d->ID_Pergamena;
    ApriDialogo(QStringLiteral("frmCollegaPergamene"), argomenti, [this] {
        if (!d->bOriginale)
            d->lIdElemPergOrig = Sessione::lIdElementoLink;
        CheckPergamene();
        RefreshButton();
        RileggiOkCancella(fID_Elem);
    });
}

void ucPergamena::cmdMostraSigilli_Click() {
    const QVariantMap argomenti = {
        {QStringLiteral("lIdSigillo"), qlonglong(0)},
        {QStringLiteral("lIdPergamena"), qlonglong(fID_Elem)},
        {QStringLiteral("sDenominazione"), LeggiDenominazione()},
    };
    ApriFiglio(QStringLiteral("frmMostraLinkPGS"), &ucPergamena::CheckSigilliLink, argomenti);
}
