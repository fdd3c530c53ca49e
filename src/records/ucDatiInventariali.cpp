#include "ucDatiInventariali.h"

#include "images/ImmagineRecord.h"
#include "records/DisposizioneCampi.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ProcedureComuni.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSqlQuery>
#include <QStringList>
#include <QVBoxLayout>

namespace {

// The unit as the form shows it: no Null reaches the boxes. The columns in their ordinals.
const QString SqlMostra = QStringLiteral(
    "SELECT COALESCE(Tipologia,''), COALESCE(Numero,''), COALESCE(Descrizione,''), "
    "COALESCE(DescrizioneTestuale,''), COALESCE(DescrizioneEstremi,''), "
    "COALESCE(CAST(DataInizio AS VARCHAR(8)),''), COALESCE(CAST(DataFine AS VARCHAR(8)),''), "
    "COALESCE(Classificazione,''), COALESCE(Note,''), "
    "ID_Elemento, COALESCE(ID_Inventario,0), ID_DatoInventariale, "
    "COALESCE(CoseNotevoli,''), COALESCE(Ordinamento,''), COALESCE(Titolo,''), "
    "COALESCE(Acquisizione,''), COALESCE(CriteriOrdinamento,''), COALESCE(Accesso,''), "
    "COALESCE(Riproduzione,''), COALESCE(Lingua,''), COALESCE(Conservazione,''), "
    "COALESCE(NoteGestionali,''), COALESCE(Id_ElemComplDoc,0), COALESCE(FlgUnitaCond,0) "
    "FROM DatiInventariali WHERE ID_Elemento = ?");

// What the state of the record needs of its row.
const QString SqlStato =
    QStringLiteral("SELECT ID_Elemento, COALESCE(ID_Inventario,0), ID_DatoInventariale, "
                   "COALESCE(Id_ElemComplDoc,0) FROM DatiInventariali WHERE ID_Elemento = ?");

const QString SqlScrivi = QStringLiteral(
    "UPDATE DatiInventariali SET Tipologia = ?, Numero = ?, Descrizione = ?, "
    "DescrizioneTestuale = ?, DescrizioneEstremi = ?, DataInizio = ?, DataFine = ?, "
    "Classificazione = ?, Note = ?, CoseNotevoli = ?, Ordinamento = ?, Titolo = ?, "
    "Acquisizione = ?, CriteriOrdinamento = ?, Accesso = ?, Riproduzione = ?, Lingua = ?, "
    "Conservazione = ?, NoteGestionali = ?, Id_ElemComplDoc = ?, FlgUnitaCond = ? "
    "WHERE ID_Elemento = ?");

// The text boxes of the columns from ordinal 9 on: the index of the box of each ordinal.
constexpr int TestoDiOrdinale(int ordinale) {
    switch (ordinale) {
    case 16:
        return 19;
    case 17:
        return 9;
    case 18:
        return 11;
    case 19:
        return 16;
    case 20:
        return 17;
    case 21:
        return 18;
    default:
        return ordinale;
    }
}

// The conditions of a higher-level description, which the two unit levels do without.
constexpr int CampiCondizioni[] = {19, 9, 11, 16, 17};

// The two unit levels: the archival and the documentary unit.
bool LivelloUnita(long lCodice) {
    return lCodice == 5 || lCodice == 6;
}

} // namespace

struct ucDatiInventariali::Dati {
    long lIdPadre = 0;
    long lIdDatoInventariale = 0;
    long lIdElemLinkInv = 0;
    QString MD5link;
    // The names of the levels, in the order of the lookup file.
    QStringList livelli;
    bool bBloccato = true;

    QComboBox* cmbTipologiaDI = nullptr;
    QCheckBox* chkUnitaCond = nullptr;
    QCheckBox* chkPubblicaDI = nullptr;
    QDateEdit* DTPData = nullptr;
    QPushButton* cmdMostraAntroponimi = nullptr;
    QPushButton* cmdMostraLink = nullptr;
    QPushButton* cmdMostraSoggetti = nullptr;
    QPushButton* cmdMostraToponimi = nullptr;
    QPushButton* cmdCoseNotevoli = nullptr;
    QPushButton* cmdImmagine = nullptr;
    ImmagineRecord* immagine = nullptr;
};

ucDatiInventariali::ucDatiInventariali(QWidget* parent)
    : EditoreRecord(parent)
    , d(new Dati) {
    setObjectName(QStringLiteral("ucDatiInventariali"));
    const auto pulsante = [this](const char* nome, const QString& sTesto) {
        auto* cmd = new QPushButton(sTesto, this);
        cmd->setObjectName(QLatin1String(nome));
        RegistraPulsanteFiglio(cmd);
        return cmd;
    };

    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lbl14 = NuovaEtichetta(14, QStringLiteral("Denominazione"));
    QLineEdit* txt14 = NuovoTesto(14, 128, QStringLiteral("Inserire denominazione"));
    QLabel* lbl10 = NuovaEtichetta(10, QStringLiteral("Redattore"));
    QLineEdit* txt10 = NuovoTesto(10, 64, QStringLiteral("Inserire redattore"));
    QLabel* lbl7 = NuovaEtichetta(7, QStringLiteral("Consistenza"));
    QLineEdit* txt7 = NuovoTesto(7, 64, QStringLiteral("Inserire Consistenza"));
    QLabel* lbl6 = NuovaEtichetta(6, QStringLiteral("Data fine"));
    QLineEdit* txt6 = NuovoTesto(6, 10, QStringLiteral("Inserire anno fine"));
    QLabel* lbl5 = NuovaEtichetta(5, QStringLiteral("Data inizio"));
    QLineEdit* txt5 = NuovoTesto(5, 10, QStringLiteral("Inserire anno inizio"));
    QLabel* lbl4 = NuovaEtichetta(4, QStringLiteral("Datazione (testo)"));
    QLineEdit* txt4 = NuovoTesto(4, 128, QStringLiteral("Inserire datazione"));
    QLabel* lbl1 = NuovaEtichetta(1, QStringLiteral("Numero di corda"));
    // The number is asked for only for a packing unit (chkUnitaCond gives its Tag).
    QLineEdit* txt1 = NuovoTesto(1, 64);
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Livello di descrizione"));
    d->cmbTipologiaDI =
        NuovaCombo(QStringLiteral("cmbTipologiaDI"), QStringLiteral("Inserire tipologia"));
    QLabel* lbl13 = NuovaEtichetta(13, QStringLiteral("Numero d'ordinamento"));
    QLineEdit* txt13 = NuovoTesto(13, 3);
    QLabel* lbl22 = NuovaEtichetta(22, QStringLiteral("Unità di condizionamento"));
    d->chkUnitaCond = NuovaCasella(QStringLiteral("chkUnitaCond"));
    QLabel* lbl2 = NuovaEtichetta(2, QStringLiteral("Condizionamento"));
    QLineEdit* txt2 = NuovoTesto(2, 64);
    QLabel* lbl3 = NuovaEtichetta(3, QStringLiteral("Descrizione "));
    QPlainTextEdit* txt3 = NuovoTestoMultiRiga(3, 1024);
    QLabel* lbl12 = NuovaEtichetta(12, QStringLiteral("Parole chiave per la ricerca"));
    QPlainTextEdit* txt12 = NuovoTestoMultiRiga(12, 512);
    QLabel* lbl8 = NuovaEtichetta(8, QStringLiteral("Documentazione collegata e note"));
    QPlainTextEdit* txt8 = NuovoTestoMultiRiga(8, 1024);
    QLabel* lbl15 = NuovaEtichetta(15, QStringLiteral("Modalità di acquisizione e versamento"));
    QLineEdit* txt15 = NuovoTesto(15, 256);
    QLabel* lbl16 = NuovaEtichetta(16, QStringLiteral("Criteri di ordinamento"));
    QLineEdit* txt19 = NuovoTesto(19, 256);
    QLabel* lbl17 = NuovaEtichetta(17, QStringLiteral("Condizioni di accesso"));
    QLineEdit* txt9 = NuovoTesto(9, 256);
    QLabel* lbl18 = NuovaEtichetta(18, QStringLiteral("Condizioni per la riproduzione"));
    QLineEdit* txt11 = NuovoTesto(11, 128);
    QLabel* lbl19 = NuovaEtichetta(19, QStringLiteral("Lingua/Scrittura"));
    QLineEdit* txt16 = NuovoTesto(16, 128);
    QLabel* lbl20 = NuovaEtichetta(20, QStringLiteral("Stato di conservazione"));
    QLineEdit* txt17 = NuovoTesto(17, 256);
    QLabel* lbl21 = NuovaEtichetta(21, QStringLiteral("Note gestionali"));
    QPlainTextEdit* txt18 = NuovoTestoMultiRiga(18, 1024);
    d->chkPubblicaDI = NuovaCasella(QStringLiteral("chkPubblicaDI"));
    d->chkPubblicaDI->setText(QStringLiteral("Visibile sul web"));
    QLabel* lbl9 = NuovaEtichetta(9, QStringLiteral("Data redazione"));
    d->DTPData = NuovaData(QStringLiteral("DTPData"));

    // The link viewers and the image.
    d->cmdMostraSoggetti = pulsante("cmdMostraSoggetti", QStringLiteral("Produttori"));
    d->cmdMostraAntroponimi = pulsante("cmdMostraAntroponimi", QStringLiteral("Persone"));
    d->cmdMostraToponimi = pulsante("cmdMostraToponimi", QStringLiteral("Toponimi"));
    d->cmdCoseNotevoli = pulsante("cmdCoseNotevoli", QStringLiteral("Cose notevoli"));
    d->cmdMostraLink = pulsante("cmdMostraLink", QString());
    d->cmdMostraLink->setToolTip(QStringLiteral("Complesso documentario"));
    d->cmdImmagine = new QPushButton(this);
    d->cmdImmagine->setObjectName(QStringLiteral("cmdImmagine"));
    RegistraPulsanteFiglio(d->cmdImmagine);
    d->immagine = new ImmagineRecord(d->cmdImmagine,
                                     ImmagineRecord::Collegamento{
                                         [this] { return fID_Elem; },
                                         [this] { return d->MD5link; },
                                         [this](const QString& s) { d->MD5link = s; },
                                         true,
                                         true,
                                     },
                                     this);

    // On screen: what the unit is, what it holds, its conditions, who described it. One field a
    // row, the labels wrapping, so that the form fits the narrow side of the analytical
    // inventory's window and scrolls only downwards.
    auto* principale = new QVBoxLayout(this);
    auto* griglia = new QGridLayout;
    int riga = 0;
    const auto metti = [griglia, &riga](QLabel* etichetta, QWidget* campo) {
        etichetta->setWordWrap(true);
        MettiCampo(griglia, riga, etichetta, campo);
    };
    metti(lbl0, d->cmbTipologiaDI);
    metti(lbl13, txt13);
    metti(lbl14, txt14);
    metti(lbl22, d->chkUnitaCond);
    metti(lbl1, txt1);
    metti(lbl2, txt2);
    metti(lbl7, txt7);
    metti(lbl4, txt4);
    metti(lbl5, txt5);
    metti(lbl6, txt6);
    metti(lbl3, txt3);
    metti(lbl12, txt12);
    metti(lbl8, txt8);
    metti(lbl15, txt15);
    metti(lbl16, txt19);
    metti(lbl17, txt9);
    metti(lbl18, txt11);
    metti(lbl19, txt16);
    metti(lbl20, txt17);
    metti(lbl21, txt18);
    metti(lbl10, txt10);
    metti(lbl9, d->DTPData);
    griglia->setColumnStretch(0, 2);
    griglia->setColumnStretch(1, 5);
    d->cmbTipologiaDI->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    d->cmbTipologiaDI->setMinimumContentsLength(12);
    principale->addLayout(griglia);
    principale->addWidget(d->chkPubblicaDI);
    auto* pulsanti = new QGridLayout;
    int iPulsante = 0;
    for (QWidget* w :
         {static_cast<QWidget*>(d->cmdMostraSoggetti),
          static_cast<QWidget*>(d->cmdMostraAntroponimi),
          static_cast<QWidget*>(d->cmdMostraToponimi), static_cast<QWidget*>(d->cmdCoseNotevoli),
          static_cast<QWidget*>(d->cmdMostraLink), static_cast<QWidget*>(d->cmdImmagine)}) {
        pulsanti->addWidget(w, iPulsante / 3, iPulsante % 3);
        ++iPulsante;
    }
    principale->addLayout(pulsanti);
    for (QPlainTextEdit* breve : {txt3, txt12, txt8, txt18})
        breve->setMaximumHeight(breve->fontMetrics().lineSpacing() * 4);

    // The keyboard walks the form as it is seen.
    CatenaDelFuoco({d->cmbTipologiaDI,
                    txt13,
                    txt14,
                    d->chkUnitaCond,
                    txt1,
                    txt2,
                    txt7,
                    txt4,
                    txt5,
                    txt6,
                    txt3,
                    txt12,
                    txt8,
                    txt15,
                    txt19,
                    txt9,
                    txt11,
                    txt16,
                    txt17,
                    txt18,
                    txt10,
                    d->DTPData,
                    d->chkPubblicaDI,
                    d->cmdMostraSoggetti,
                    d->cmdMostraAntroponimi,
                    d->cmdMostraToponimi,
                    d->cmdCoseNotevoli,
                    d->cmdMostraLink,
                    d->cmdImmagine});

    // A wrong date does not let the focus go.
    for (int n : {5, 6})
        ControllaAllUscita(Testo(n), &EditoreRecord::DataErrata, Uscita::Rifiuta);

    connect(d->cmbTipologiaDI, &QComboBox::currentIndexChanged, this,
            [this] { LivelloCliccato(); });
    connect(d->chkUnitaCond, &QCheckBox::toggled, this, [this] { UnitaCondCliccato(true); });
    connect(d->chkPubblicaDI, &QCheckBox::clicked, this, [this] {
        ControllaPubblicazione(d->chkPubblicaDI, d->lIdPadre,
                               QStringLiteral("Inventario non pubblicabile"),
                               QStringLiteral("Errore U1"));
    });
    connect(d->cmdMostraAntroponimi, &QPushButton::clicked, this, [this] {
        Sessione::sDenomElementoLink = LeggiDenominazione();
        Sessione::lIdElementoLink = d->lIdDatoInventariale;
        ApriLink(QStringLiteral("frmMostraLinkDIAnt"), &ucDatiInventariali::CheckAntroponimi);
    });
    connect(d->cmdMostraSoggetti, &QPushButton::clicked, this, [this] {
        Sessione::sTipoLink = QStringLiteral("1");
        Sessione::sDenomInventario = LeggiDenominazione();
        Sessione::lIdDatoInventariale = fID_Elem;
        Sessione::iEsitoLinkSogg = 0;
        ApriLink(QStringLiteral("frmMostraLinkCS"), &ucDatiInventariali::CheckSoggetti);
    });
    connect(d->cmdMostraToponimi, &QPushButton::clicked, this, [this] {
        Sessione::sDenomElementoLink = LeggiDenominazione();
        Sessione::lIdElementoLink = d->lIdDatoInventariale;
        Sessione::iChiamanteToponimi = 2;
        ApriLink(QStringLiteral("frmMostraLinkTopo"), &ucDatiInventariali::CheckToponimi);
    });
    connect(d->cmdCoseNotevoli, &QPushButton::clicked, this, [this] {
        // The notable things are the unit's own rows, by the key of its row.
        Sessione::lIdDatoInventariale = d->lIdDatoInventariale;
        ApriLink(QStringLiteral("frmCoseNotevoli"), &ucDatiInventariali::CheckCoseNotevoli);
    });
    connect(d->cmdMostraLink, &QPushButton::clicked, this, [this] { cmdMostraLink_Click(); });

    UnitaCondCliccato(true);
    StatoMostra();
}

ucDatiInventariali::~ucDatiInventariali() {
    delete d;
}

// --- The protocol --------------------------------------------------------------------------

void ucDatiInventariali::Init() {
    ID_Inventario = 0;
    fID_Elem = 0;
    d->lIdPadre = 0;
    d->lIdDatoInventariale = 0;
    d->lIdElemLinkInv = 0;
    d->MD5link.clear();
    OkNuovoDatoInventariale = true;
    OkModifica = false;
    OkCancella = false;
    Soggetti = Antroponimi = Toponimi = CoseNotevoli = false;
    {
        const QSignalBlocker blocco(d->cmbTipologiaDI);
        d->cmbTipologiaDI->clear();
        CaricaLista(d->cmbTipologiaDI, QStringLiteral("LivelliDI.txt"));
    }
    d->livelli.clear();
    for (int i = 0; i < d->cmbTipologiaDI->count(); ++i)
        d->livelli << d->cmbTipologiaDI->itemText(i);
    CheckImmagine();
    StatoMostra();
}

void ucDatiInventariali::Nuovo() {
    Pulisci();
    d->cmbTipologiaDI->setCurrentIndex(-1);
    LivelloCliccato();
    StatoModifica();
}

void ucDatiInventariali::Mostra(long IDElem) {
    Pulisci();
    d->MD5link.clear();
    d->lIdPadre = MostraElemento(IDElem, d->chkPubblicaDI, d->DTPData, Testo(10), &d->MD5link);

    QSqlQuery unita = Sessione::cnn->Esegui(SqlMostra, {Id(IDElem)});
    Riga riga;
    if (unita.next()) {
        riga.bTrovata = true;
        riga.lIdElemento = Lungo(unita.value(9));
        riga.lIdInventario = Lungo(unita.value(10));
        riga.lIdDatoInventariale = Lungo(unita.value(11));
        riga.lIdElemComplDoc = Lungo(unita.value(22));
    }
    // The levels offered are those below the parent's, before the record's own is sought.
    LeggiStato(riga, false);
    if (riga.bTrovata) {
        const auto testo = [&unita](int i) {
            return Trim(unita.value(i).toString());
        };
        for (int ordinale : {1, 2, 3, 4, 7, 8, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21})
            ImpostaTestoDi(Testo(TestoDiOrdinale(ordinale)), testo(ordinale));
        ImpostaTestoDi(Testo(5), DataDaTesto(testo(5)));
        ImpostaTestoDi(Testo(6), DataDaTesto(testo(6)));
        d->cmbTipologiaDI->setCurrentIndex(CercaTipologiaDI(testo(0)));
        LivelloCliccato();
        d->chkUnitaCond->setChecked(unita.value(23).toLongLong() != 0);
    }
    StatoMostra();
}

void ucDatiInventariali::Modifica() {
    StatoModifica();
}

void ucDatiInventariali::Salva(long IDElem) {
    const Connessione& cnn = *Sessione::cnn;
    // The element and the unit are written together or not at all; an error goes on to the
    // host.
    InTransazione(cnn.Db(), QStringLiteral("ucDatiInventariali.Salva"), [&] {
        SalvaElemento(IDElem, d->chkPubblicaDI, d->DTPData, Testo(10));
        cnn.Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                   {d->MD5link.isEmpty() ? NullTesto() : QVariant(d->MD5link), Id(IDElem)});

        Riga riga = LeggiRiga(IDElem);
        if (!riga.bTrovata) {
            LeggiStato(riga, true);
            return; // no row of the unit: only the element is written
        }
        const QString sCodice = CodiceVoceScelta(d->cmbTipologiaDI);
        const QString sTipologia =
            TestoODefault(sCodice.isEmpty() ? QString() : (QStringLiteral("00") + sCodice).right(2),
                          QStringLiteral("00"));
        cnn.Esegui(SqlScrivi, {sTipologia,
                               TestoNonNullo(Trim(TestoDi(Testo(1)))),
                               TestoInColonna(2),
                               TestoInColonna(3),
                               TestoInColonna(4),
                               ColonnaDataCompleta(TestoDi(Testo(5))),
                               ColonnaDataCompleta(TestoDi(Testo(6))),
                               TestoInColonna(7),
                               TestoInColonna(8),
                               TestoInColonna(12),
                               TestoInColonna(13),
                               TestoNonNullo(TestoODefault(TestoDi(Testo(14)))),
                               TestoInColonna(15),
                               TestoInColonna(TestoDiOrdinale(16)),
                               TestoInColonna(TestoDiOrdinale(17)),
                               TestoInColonna(TestoDiOrdinale(18)),
                               TestoInColonna(TestoDiOrdinale(19)),
                               TestoInColonna(TestoDiOrdinale(20)),
                               TestoInColonna(TestoDiOrdinale(21)),
                               Id(d->lIdElemLinkInv),
                               QVariant(qlonglong(d->chkUnitaCond->isChecked() ? 1 : 0)),
                               Id(IDElem)});
        riga.lIdElemComplDoc = d->lIdElemLinkInv;
        LeggiStato(riga, true);
    });
    StatoMostra();
}

void ucDatiInventariali::Annulla() {
    StatoMostra();
}

QString ucDatiInventariali::LeggiDenominazione() const {
    return TestoDi(Testo(14));
}

// --- Levels --------------------------------------------------------------------------------

void ucDatiInventariali::AssegnaInventario(long tempID_Inventario, long tempID_ElementoPadre) {
    ID_Inventario = tempID_Inventario;
    d->lIdPadre = tempID_ElementoPadre;
    const QSignalBlocker blocco(d->cmbTipologiaDI);
    d->cmbTipologiaDI->clear();
    try {
        QSqlQuery padre = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Tipologia FROM DatiInventariali WHERE ID_Elemento = ?"),
            {Id(tempID_ElementoPadre)});
        // Under the finding aid every level; under a unit only those below its own.
        int iInizio = 1;
        if (padre.next())
            iInizio = static_cast<int>(Val(padre.value(0).toString())) + 1;
        for (int i = qMax(iInizio, 1); i <= d->livelli.size(); ++i)
            d->cmbTipologiaDI->addItem(d->livelli.at(i - 1), QVariant(qlonglong(i)));
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T5"));
    }
    d->cmbTipologiaDI->setCurrentIndex(-1);
}

int ucDatiInventariali::CercaTipologiaDI(const QString& sCodice) const {
    return CercaIndice(d->cmbTipologiaDI, sCodice);
}

bool ucDatiInventariali::bLivelloUnita() const {
    const int indice = d->cmbTipologiaDI->currentIndex();
    return indice >= 0 &&
           LivelloUnita(static_cast<long>(d->cmbTipologiaDI->itemData(indice).toLongLong()));
}

void ucDatiInventariali::LivelloCliccato() {
    const bool bUnita = bLivelloUnita();
    Condizioni(!bUnita);
    d->chkUnitaCond->setVisible(!bUnita);
    Etichetta(22)->setVisible(!bUnita);
    UnitaCondCliccato(false);
}

void ucDatiInventariali::UnitaCondCliccato(bool bSvuota) {
    const bool bSpuntata = d->chkUnitaCond->isChecked();
    QWidget* numero = Testo(1);
    QLabel* etichetta = Etichetta(1);
    // At the unit levels the number is never required.
    numero->setProperty("Tag", bSpuntata && !bLivelloUnita()
                                   ? QStringLiteral("Inserire numero di corda")
                                   : QString());
    if (!bSpuntata && bSvuota)
        ImpostaTestoDi(numero, QString());
    numero->setVisible(bSpuntata);
    etichetta->setVisible(bSpuntata);
    QPalette tavolozza = etichetta->palette();
    tavolozza.setColor(
        QPalette::WindowText,
        QApplication::palette().color(bSpuntata ? QPalette::Highlight : QPalette::ButtonText));
    etichetta->setPalette(tavolozza);
}

void ucDatiInventariali::Condizioni(bool bAccese) {
    const QPalette sistema = QApplication::palette();
    for (int n : CampiCondizioni) {
        QWidget* campo = Testo(n);
        if (!bAccese)
            ImpostaTestoDi(campo, QString());
        QPalette tavolozza = campo->palette();
        tavolozza.setColor(QPalette::Base,
                           sistema.color(bAccese ? QPalette::Base : QPalette::Button));
        campo->setPalette(tavolozza);
        campo->setEnabled(bAccese && !d->bBloccato);
    }
}

// --- State ---------------------------------------------------------------------------------

ucDatiInventariali::Riga ucDatiInventariali::LeggiRiga(long lIdElemento) {
    Riga riga;
    QSqlQuery stato = Sessione::cnn->Esegui(SqlStato, {Id(lIdElemento)});
    if (!stato.next())
        return riga;
    riga.bTrovata = true;
    riga.lIdElemento = Lungo(stato.value(0));
    riga.lIdInventario = Lungo(stato.value(1));
    riga.lIdDatoInventariale = Lungo(stato.value(2));
    riga.lIdElemComplDoc = Lungo(stato.value(3));
    return riga;
}

void ucDatiInventariali::LeggiStato(const Riga& riga, bool bTieniInventario) {
    if (!riga.bTrovata) {
        OkNuovoDatoInventariale = OkModifica = OkCancella = false;
        Soggetti = Antroponimi = Toponimi = CoseNotevoli = false;
        ID_Inventario = 0;
        fID_Elem = 0;
        d->lIdDatoInventariale = 0;
        d->lIdElemLinkInv = 0;
        d->MD5link.clear();
        CheckImmagine();
        RefreshButton();
        return;
    }
    fID_Elem = riga.lIdElemento;
    d->lIdDatoInventariale = riga.lIdDatoInventariale;
    OkNuovoDatoInventariale = true;
    OkModifica = true;
    d->lIdElemLinkInv = riga.lIdElemComplDoc;
    if (!bTieniInventario)
        AssegnaInventario(riga.lIdInventario, d->lIdPadre);
    // A unit with children or tied to a complesso stays.
    OkCancella = FigliElemento(fID_Elem) == 0 && d->lIdElemLinkInv == 0;
    CheckSoggetti(fID_Elem);
    CheckAntroponimi(fID_Elem);
    CheckToponimi(fID_Elem);
    CheckCoseNotevoli(fID_Elem);
    CheckImmagine();
    RefreshButton();
}

void ucDatiInventariali::StatoMostra() {
    d->bBloccato = true;
    BloccaCampi();
    RefreshButton();
    // No image without an element of the unit.
    d->cmdImmagine->setEnabled(fID_Elem != 0);
}

void ucDatiInventariali::StatoModifica() {
    d->bBloccato = false;
    SbloccaCampi();
    LivelloCliccato();
    if (d->cmbTipologiaDI->isEnabled())
        d->cmbTipologiaDI->setFocus();
}

void ucDatiInventariali::CheckImmagine() {
    d->immagine->CheckImmagine();
}

void ucDatiInventariali::RefreshButton() {
    ColoraPulsante(d->cmdMostraSoggetti, Soggetti);
    ColoraPulsante(d->cmdMostraAntroponimi, Antroponimi);
    ColoraPulsante(d->cmdMostraToponimi, Toponimi);
    ColoraPulsante(d->cmdCoseNotevoli, CoseNotevoli);
    ColoraPulsante(d->cmdMostraLink, d->lIdElemLinkInv != 0);
}

void ucDatiInventariali::CheckSoggetti(long lIdElemento) {
    Soggetti = !NessunaRiga(
        QStringLiteral("SELECT * FROM V_DatiInventarialiSoggetti WHERE DI_ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucDatiInventariali::CheckAntroponimi(long lIdElemento) {
    Antroponimi = !NessunaRiga(
        QStringLiteral(
            "SELECT * FROM DIAntroponimi DIANT JOIN DatiInventariali DI ON "
            "DIANT.ID_DatoInventariale = DI.ID_DatoInventariale WHERE DI.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucDatiInventariali::CheckToponimi(long lIdElemento) {
    Toponimi = !NessunaRiga(
        QStringLiteral(
            "SELECT * FROM DIToponimi DITOP JOIN DatiInventariali DI ON "
            "DITOP.ID_DatoInventariale = DI.ID_DatoInventariale WHERE DI.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

void ucDatiInventariali::CheckCoseNotevoli(long lIdElemento) {
    CoseNotevoli = !NessunaRiga(
        QStringLiteral(
            "SELECT * FROM DICoseNotevoli DICN JOIN DatiInventariali DI ON "
            "DICN.ID_DatoInventariale = DI.ID_DatoInventariale WHERE DI.ID_Elemento = ?"),
        {Id(lIdElemento)});
}

// --- Link viewers --------------------------------------------------------------------------

void ucDatiInventariali::ApriLink(const QString& sDialogo,
                                  void (ucDatiInventariali::*ricontrolla)(long)) {
    ApriDialogo(sDialogo, {}, [this, ricontrolla] {
        (this->*ricontrolla)(fID_Elem);
        RefreshButton();
    });
}

void ucDatiInventariali::cmdMostraLink_Click() {
    Sessione::sDenomInventario = LeggiDenominazione();
    Sessione::lIdInventario = fID_Elem;
    Sessione::iEsitoLinkCD = 0;
    Sessione::iChiamanteInv = 4;
    Sessione::lIdElemLinkInv = d->lIdElemLinkInv;
    ApriDialogo(QStringLiteral("frmMostraLinkInv"), {}, [this] {
        // The viewer ties or unties the complesso in the row: the tie and what it allows are
        // read again.
        const Riga riga = LeggiRiga(fID_Elem);
        if (riga.bTrovata) {
            d->lIdElemLinkInv = riga.lIdElemComplDoc;
            OkCancella = FigliElemento(fID_Elem) == 0 && d->lIdElemLinkInv == 0;
        }
        RefreshButton();
    });
}
