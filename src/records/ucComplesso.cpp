#include "ucComplesso.h"

#include "SediIstituto.h"
#include "session/Conversioni.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ProcedureComuni.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

namespace {

// A number as the box shows it: as it comes, with the decimal comma; Null gives "".
QString TestoNumero(const QVariant& valore) {
    if (ENull(valore))
        return QString();
    QString testo = QString::number(valore.toDouble(), 'g', 15);
    testo.replace(QLatin1Char('.'), QLatin1Char(','));
    return testo;
}

// The colours of the system that the blinking boxes use.
QColor SfondoFinestra() {
    return QApplication::palette().color(QPalette::Base);
}
QColor TestoFinestra() {
    return QApplication::palette().color(QPalette::Text);
}
QColor FacciaPulsante() {
    return QApplication::palette().color(QPalette::Button);
}
QColor TestoSelezionato() {
    return QApplication::palette().color(QPalette::HighlightedText);
}
const QColor Rosso(255, 0, 0);
const QColor Acceso(0x00, 0xC0, 0xC0);

void Colora(QWidget* casella, const QColor& sfondo, const QColor& testo) {
    QPalette tavolozza = casella->palette();
    tavolozza.setColor(QPalette::Base, sfondo);
    tavolozza.setColor(QPalette::Text, testo);
    casella->setPalette(tavolozza);
}

const QString SqlMostra = QStringLiteral(
    "SELECT COALESCE(Denominazione,'<<Inserire valore>>'), "
    "COALESCE(NoteStoriche,''), COALESCE(Note,''), "
    "COALESCE(Classificazione,''), "
    "KConservazione, KPeriodo, KSupporto, KRilevanza, KRarita, "
    "Quantita, QuantitaFigli, Valore, ValoreFigli, "
    "MetriLineari, MetriLineariFigli, "
    "COALESCE(CAST(DataInizio AS VARCHAR(8)),''), COALESCE(CAST(DataFine AS VARCHAR(8)),''), "
    "COALESCE(DescrizioneEstremi,''), COALESCE(DescrizioneEstensioni,''), "
    "COALESCE(CAST(DataInizioFigli AS VARCHAR(8)),''), "
    "COALESCE(CAST(DataFineFigli AS VARCHAR(8)),''), "
    "COALESCE(NoteDirezione,''), COALESCE(UrlLink,''), "
    "COALESCE(CAST(Ordinamento AS VARCHAR(4)),''), COALESCE(Topografico,''), "
    "COALESCE(ID_IstitutoMag,0), COALESCE(ID_IstitutoSede,0), "
    "Tipologia, "
    "ID_Elemento, ID_Istituto, ID_ComplessoDoc, "
    "COALESCE(ISAD_Nazione,''), COALESCE(ISAD_Codice,''), COALESCE(ISAD_Sigla,'') "
    "FROM ComplessiDoc WHERE ID_Elemento = ?");

const QString SqlSalva = QStringLiteral(
    "SELECT Denominazione, NoteStoriche, Note, Classificazione, "
    "KConservazione, KPeriodo, KSupporto, KRilevanza, KRarita, "
    "Quantita, QuantitaFigli, Valore, ValoreFigli, MetriLineari, MetriLineariFigli, "
    "DataInizio, DataFine, DescrizioneEstremi, DescrizioneEstensioni, "
    "DataInizioFigli, DataFineFigli, NoteDirezione, UrlLink, Ordinamento, Topografico, "
    "ID_IstitutoMag, ID_IstitutoSede, Tipologia, ID_Elemento, ID_Istituto, ID_ComplessoDoc "
    "FROM ComplessiDoc WHERE ID_Elemento = ?");

// The columns of SqlSalva that Salva writes.
const QString SqlScrivi = QStringLiteral(
    "UPDATE ComplessiDoc SET Denominazione = ?, NoteStoriche = ?, Note = ?, "
    "Classificazione = ?, KConservazione = ?, KPeriodo = ?, KSupporto = ?, KRilevanza = ?, "
    "KRarita = ?, Quantita = ?, MetriLineari = ?, DataInizio = ?, DataFine = ?, "
    "DescrizioneEstremi = ?, DescrizioneEstensioni = ?, NoteDirezione = ?, UrlLink = ?, "
    "Ordinamento = ?, Topografico = ?, ID_IstitutoMag = ?, ID_IstitutoSede = ?, "
    "Tipologia = ? WHERE ID_Elemento = ?");

// The names that the numeric checks give the K-values; the list stops at Text1(20).
QString NomeCampoK(int indice) {
    switch (indice) {
    case 17:
        return QStringLiteral("Conservazione");
    case 18:
        return QStringLiteral("Periodo");
    case 19:
        return QStringLiteral("Supporto");
    case 20:
        return QStringLiteral("Rilevanza");
    default:
        return QString();
    }
}

// The message of a box whose text cannot stay when it is left, "" when the text is taken.
QString MessaggioUscita(int indice, const QString& sTesto) {
    if (sTesto.isEmpty())
        return QString();
    switch (indice) {
    case 4:
    case 5:
        if ((sTesto.size() == 3 || sTesto.size() == 4) && IsNumeric(sTesto))
            return QString();
        return indice == 4 ? QStringLiteral("Data inizio errata")
                           : QStringLiteral("Data fine errata");
    case 28:
        return sTesto.size() < 5 && IsNumeric(sTesto)
                   ? QString()
                   : QStringLiteral("Codice ordinamento errato.");
    case 15:
        return IsNumeric(sTesto)
                   ? QString()
                   : QStringLiteral("Inserire un valore numerico nel campo 'Metri Lineari'.");
    case 12:
        return IsNumeric(sTesto)
                   ? QString()
                   : QStringLiteral("Inserire un valore numerico nel campo 'Consistenza'.");
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
        return IsNumeric(sTesto) ? QString()
                                 : QStringLiteral("Inserire un valore numerico nel campo '") +
                                       NomeCampoK(indice) + QStringLiteral("'.");
    default:
        return QString();
    }
}

} // namespace

struct ucComplesso::Dati {
    ChiamanteComplesso* objCaller = nullptr;
    long lIdPadre = 0;
    long lIdElemento = 0;
    long lIdComplessoDoc = 0;

    QLabel* lbCodice = nullptr;
    QTabWidget* SSTab1 = nullptr;
    QComboBox* cmbTipologiaCD = nullptr;
    QComboBox* cmbSede = nullptr;
    QComboBox* cmbMagazzino = nullptr;
    std::unique_ptr<SediIstituto> sedi;
    QCheckBox* chkPubblicaCD = nullptr;
    QDateEdit* DTPData = nullptr;
    QPushButton* cmdAltreDen = nullptr;
    QPushButton* cmdMostraLinks = nullptr;
    QPushButton* cmdLinkSog = nullptr;
    QPushButton* cmdLinkPerg = nullptr;
    QTimer* Timer[3] = {nullptr, nullptr, nullptr};
};

ucComplesso::ucComplesso(QWidget* parent)
    : EditoreRecord(parent)
    , d(new Dati) {
    setObjectName(QStringLiteral("ucComplesso"));
    CostruisciForm();
}

ucComplesso::~ucComplesso() {
    d->objCaller = nullptr;
    delete d;
}

// --- The form ----------------------------------------------------------------------------

void ucComplesso::CostruisciForm() {
    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Denominazione principale"));
    QLineEdit* txt0 =
        NuovoTesto(0, 256, QStringLiteral("Inserire Denominazione Complesso documentario"));
    QLabel* lbl28 = NuovaEtichetta(28, QStringLiteral("Ordinam."));
    QLineEdit* txt28 = NuovoTesto(28, 4);
    d->lbCodice = new QLabel(this);
    d->lbCodice->setObjectName(QStringLiteral("lbCodice"));
    Registra(d->lbCodice);
    auto* lblTipologia = new QLabel(QStringLiteral("Livello"), this);
    d->cmbTipologiaCD = NuovaCombo(QStringLiteral("cmbTipologiaCD"));
    QLabel* lbl31 = NuovaEtichetta(31, QStringLiteral("Redattore"));
    QLineEdit* txt31 = NuovoTesto(31, 64, QStringLiteral("Inserire redattore"));
    d->chkPubblicaCD = NuovaCasella(QStringLiteral("chkPubblicaCD"));
    d->chkPubblicaCD->setText(QStringLiteral("Visibile sul web"));
    QLabel* lbl26 = NuovaEtichetta(26, QStringLiteral("Note gestionali"));
    QPlainTextEdit* txt26 = NuovoTestoMultiRiga(26, 1024);
    QLabel* lbl25 = NuovaEtichetta(25, QStringLiteral("Link ad altre risorse web"));
    QPlainTextEdit* txt25 = NuovoTestoMultiRiga(25, 128);
    QLabel* lbl29 = NuovaEtichetta(29, QStringLiteral("Topografico"));
    QLineEdit* txt29 = NuovoTesto(29, 256);
    QLabel* lbl24 = NuovaEtichetta(24, QStringLiteral("Valore complessivo"));
    QLineEdit* txt24 = NuovoTesto(24, 0);
    QLabel* lbl23 = NuovaEtichetta(23, QStringLiteral("Riporto sottolivelli"));
    QLineEdit* txt23 = NuovoTesto(23, 0);
    QLabel* lbl22 = NuovaEtichetta(22, QStringLiteral("Valore"));
    QLineEdit* txt22 = NuovoTesto(22, 0);
    auto* lblMagazzino = new QLabel(QStringLiteral("Conservato in"), this);
    d->cmbMagazzino = NuovaCombo(QStringLiteral("cmbMagazzino"));
    QLabel* lbl21 = NuovaEtichetta(21, QStringLiteral("Rarità"));
    QLineEdit* txt21 = NuovoTesto(21, 0);
    QLabel* lbl20 = NuovaEtichetta(20, QStringLiteral("Rilevanza"));
    QLineEdit* txt20 = NuovoTesto(20, 0);
    QLabel* lbl19 = NuovaEtichetta(19, QStringLiteral("Supporto"));
    QLineEdit* txt19 = NuovoTesto(19, 0);
    QLabel* lbl18 = NuovaEtichetta(18, QStringLiteral("Periodo"));
    QLineEdit* txt18 = NuovoTesto(18, 0);
    QLabel* lbl17 = NuovaEtichetta(17, QStringLiteral("Conservazione"));
    QLineEdit* txt17 = NuovoTesto(17, 0);
    QLabel* lbl15 = NuovaEtichetta(15, QStringLiteral("Metri lineari"));
    QLineEdit* txt15 = NuovoTesto(15, 0);
    QLabel* lbl16 = NuovaEtichetta(16, QStringLiteral("Riporto metri lineari sottolivelli"));
    QLineEdit* txt16 = NuovoTesto(16, 0);
    auto* lblSede = new QLabel(QStringLiteral("Consultabile in"), this);
    d->cmbSede = NuovaCombo(QStringLiteral("cmbSede"));
    d->sedi = std::make_unique<SediIstituto>(d->cmbSede, d->cmbMagazzino);
    QLabel* lbl11 = NuovaEtichetta(11, QStringLiteral("Bibliografia"));
    QPlainTextEdit* txt11 = NuovoTestoMultiRiga(11, 1024);
    QLabel* lbl10 = NuovaEtichetta(10, QStringLiteral("Note storico archivistiche"));
    QPlainTextEdit* txt10 = NuovoTestoMultiRiga(10, 1024);
    QLabel* lbl14 = NuovaEtichetta(14, QStringLiteral("Specifiche consistenza"));
    QLineEdit* txt14 = NuovoTesto(14, 64);
    QLabel* lbl13 = NuovaEtichetta(13, QStringLiteral("Riporto cons. sottolivelli"));
    QLineEdit* txt13 = NuovoTesto(13, 0);
    QLabel* lbl12 = NuovaEtichetta(12, QStringLiteral("Consistenza"));
    QLineEdit* txt12 = NuovoTesto(12, 0, QStringLiteral("Inserire la consistenza"));
    QLabel* lbl9 = NuovaEtichetta(9, QStringLiteral("Estensione estremi cronologici"));
    QLineEdit* txt9 = NuovoTesto(9, 64);
    QLabel* lbl8 = NuovaEtichetta(8, QStringLiteral("Estremi cronologici (testo)"));
    QLineEdit* txt8 = NuovoTesto(8, 64, QStringLiteral("Inserire Estremi cronologici (testo)"));
    QLabel* lbl5 = NuovaEtichetta(5, QStringLiteral("Anno fine"));
    QLineEdit* txt5 = NuovoTesto(5, 4, QStringLiteral("Inserire anno fine"));
    QLabel* lbl4 = NuovaEtichetta(4, QStringLiteral("Anno inizio"));
    QLineEdit* txt4 = NuovoTesto(4, 4, QStringLiteral("Inserire anno inizio"));
    QLabel* lbl6 = NuovaEtichetta(6, QStringLiteral("Riporto date sottolivelli"));
    QLineEdit* txt6 = NuovoTesto(6, 0);
    QLineEdit* txt7 = NuovoTesto(7, 0);
    auto* lblData = new QLabel(QStringLiteral("Data redazione"), this);
    d->DTPData =
        NuovaData(QStringLiteral("DTPData"), QStringLiteral("Inserire la data di registrazione"));

    // The boxes that the design keeps read-only, red on the button face.
    for (QLineEdit* riporto : {txt6, txt7, txt13, txt16, txt22, txt23, txt24}) {
        RegistraSoloLettura(riporto);
        Colora(riporto, FacciaPulsante(), Rosso);
    }

    // The buttons of the child dialogs.
    const auto pulsante = [this](const char* nome, const QString& testo) {
        auto* cmd = new QPushButton(testo, this);
        cmd->setObjectName(QLatin1String(nome));
        return cmd;
    };
    d->cmdAltreDen = pulsante("cmdAltreDen", QStringLiteral("Altre Denom."));
    d->cmdMostraLinks = pulsante("cmdMostraLinks", QStringLiteral("Strum. ricerca"));
    d->cmdLinkSog = pulsante("cmdLinkSog", QStringLiteral("Produttori"));
    d->cmdLinkPerg = pulsante("cmdLinkPerg", QStringLiteral("Pergamene"));
    RegistraPulsanteFiglio(d->cmdAltreDen);
    RegistraPulsanteFiglio(d->cmdMostraLinks);
    RegistraPulsanteFiglio(d->cmdLinkSog);

    // The three timers of the blinking boxes: the first two enabled, the third not.
    for (int i = 0; i < 3; ++i) {
        d->Timer[i] = new QTimer(this);
        d->Timer[i]->setObjectName(QStringLiteral("Timer%1").arg(i + 1));
        d->Timer[i]->setInterval(1);
        connect(d->Timer[i], &QTimer::timeout, this, [this, i] { Lampeggia(i + 1); });
    }
    d->Timer[0]->start();
    d->Timer[1]->start();

    // On screen: the denomination, the sorting code and the identifier above the tabs. The
    // denomination takes the whole width of the record; the sorting code, four digits, only
    // what they need, with the identifier beside it.
    auto* colonna = new QVBoxLayout(this);
    auto* testa = new QGridLayout;
    lbl0->setBuddy(txt0);
    lbl28->setBuddy(txt28);
    testa->addWidget(lbl0, 0, 0);
    testa->addWidget(txt0, 0, 1, 1, 2);
    testa->addWidget(lbl28, 1, 0);
    testa->addWidget(txt28, 1, 1);
    testa->addWidget(d->lbCodice, 1, 2);
    testa->setColumnStretch(2, 1);
    txt28->setFixedWidth(LarghezzaPer(txt28, QStringLiteral("00000")));
    colonna->addLayout(testa);

    d->SSTab1 = new QTabWidget(this);
    d->SSTab1->setObjectName(QStringLiteral("SSTab1"));
    colonna->addWidget(d->SSTab1, 1);

    const auto pagina = [this](const QString& titolo) {
        auto* foglio = new QWidget;
        d->SSTab1->addTab(foglio, titolo);
        return new QGridLayout(foglio);
    };
    const auto metti = [](QGridLayout* griglia, int& riga, QLabel* etichetta, QWidget* campo,
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

    QGridLayout* identificazione = pagina(QStringLiteral("Identificazione"));
    int riga = 0;
    metti(identificazione, riga, lblTipologia, d->cmbTipologiaCD);
    metti(identificazione, riga, lbl4, txt4);
    metti(identificazione, riga, lbl5, txt5);
    metti(identificazione, riga, lbl6, txt6, txt7);
    metti(identificazione, riga, lbl8, txt8);
    metti(identificazione, riga, lbl9, txt9);
    metti(identificazione, riga, lbl12, txt12);
    metti(identificazione, riga, lbl13, txt13);
    metti(identificazione, riga, lbl14, txt14);
    metti(identificazione, riga, lbl10, txt10);
    metti(identificazione, riga, lbl11, txt11);
    auto* pulsanti = new QHBoxLayout;
    for (QPushButton* cmd : {d->cmdAltreDen, d->cmdMostraLinks, d->cmdLinkSog, d->cmdLinkPerg})
        pulsanti->addWidget(cmd);
    identificazione->addLayout(pulsanti, riga, 0, 1, 3);

    QGridLayout* gestione = pagina(QStringLiteral("Gestione"));
    riga = 0;
    metti(gestione, riga, lbl31, txt31);
    metti(gestione, riga, lblData, d->DTPData);
    gestione->addWidget(d->chkPubblicaCD, riga++, 1, 1, 2);
    metti(gestione, riga, lblSede, d->cmbSede);
    metti(gestione, riga, lblMagazzino, d->cmbMagazzino);
    metti(gestione, riga, lbl29, txt29);
    metti(gestione, riga, lbl15, txt15);
    metti(gestione, riga, lbl16, txt16);
    metti(gestione, riga, lbl17, txt17);
    metti(gestione, riga, lbl18, txt18);
    metti(gestione, riga, lbl19, txt19);
    metti(gestione, riga, lbl20, txt20);
    metti(gestione, riga, lbl21, txt21);
    metti(gestione, riga, lbl22, txt22);
    metti(gestione, riga, lbl23, txt23);
    metti(gestione, riga, lbl24, txt24);
    metti(gestione, riga, lbl25, txt25);
    metti(gestione, riga, lbl26, txt26);
    for (QPlainTextEdit* breve : {txt25})
        breve->setMaximumHeight(breve->fontMetrics().lineSpacing() * 3);

    // The boxes with a check on leaving; a blinking box restarts its blink when it is left
    // with a text it takes.
    for (int n : {4, 5, 28, 15, 12, 17, 18, 19, 20, 21}) {
        const int bit = n == 12 ? 1 : n == 15 ? 2 : 0;
        ControllaAllUscita(Testo(n), [this, n, bit](const QString& sTesto) {
            const QString sMessaggio = MessaggioUscita(n, sTesto);
            if (sMessaggio.isEmpty() && bit != 0)
                ControllaRiporti(bit);
            return sMessaggio;
        });
    }
    // The worth has no check: leaving it only restarts its blink.
    ControllaAllUscita(Testo(22), [this](const QString&) {
        ControllaRiporti(4);
        return QString();
    });
    // Entering a blinking box stops its blink.
    for (int n : {12, 15, 22})
        Testo(n)->installEventFilter(this);

    connect(d->chkPubblicaCD, &QCheckBox::clicked, this, [this] { PubblicaClick(); });
    connect(d->cmdAltreDen, &QPushButton::clicked, this, [this] { AltreDenClick(); });
    connect(d->cmdLinkSog, &QPushButton::clicked, this, [this] { LinkSogClick(); });
    connect(d->cmdMostraLinks, &QPushButton::clicked, this, [this] { MostraLinksClick(); });
    connect(d->cmdLinkPerg, &QPushButton::clicked, this, [this] { LinkPergClick(); });
}

// --- The protocol ------------------------------------------------------------------------

void ucComplesso::Init(bool bFromNuovComplDoc, ChiamanteComplesso* objCaller) {
    d->objCaller = objCaller;
    d->lbCodice->clear();
    d->lIdPadre = 0;
    d->lIdElemento = 0;
    d->lIdComplessoDoc = 0;
    ID_Istituto = 0;
    OkNuovoComplesso = OkModifica = OkCancella = true;
    AltreDenominazioni = false;
    d->cmbTipologiaCD->clear();
    CaricaLista(d->cmbTipologiaCD, QStringLiteral("TipologiaCD.txt"));
    // In the picker of complessi the panel is a pane: no child dialogs from it.
    d->cmdAltreDen->setVisible(!bFromNuovComplDoc);
    d->cmdLinkSog->setVisible(!bFromNuovComplDoc);
    d->cmdMostraLinks->setVisible(!bFromNuovComplDoc);
    BloccaCampiCD();
}

void ucComplesso::Nuovo(const QString& sFromNodeTag, long IDElem) {
    Pulisci();
    d->lIdPadre = IDElem;
    d->lIdElemento = 0;
    d->lIdComplessoDoc = 0;
    d->lbCodice->clear();
    // Under an institute a fonds, under a complesso a series.
    const QString sLivello = Val(sFromNodeTag) > 1 ? QStringLiteral("04") : QStringLiteral("03");
    d->cmbTipologiaCD->setCurrentIndex(CercaTipologiaCD(sLivello));
    d->cmbSede->setCurrentIndex(d->cmbSede->count() > 0 ? 0 : -1);
    d->cmbMagazzino->setCurrentIndex(d->cmbMagazzino->count() > 0 ? 0 : -1);
    SbloccaCampiCD();
}

void ucComplesso::Mostra(long IDElem) {
    d->lIdElemento = IDElem;
    d->lIdPadre = 0;

    // The row of Elementi: parent, publishing, date and author of the description.
    d->lIdPadre = MostraElemento(IDElem, d->chkPubblicaCD, d->DTPData, Testo(31));

    QSqlQuery riga = Sessione::cnn->Esegui(SqlMostra, {Id(IDElem)});
    if (!riga.next()) {
        Pulisci();
        d->lbCodice->clear();
        d->lIdComplessoDoc = 0;
        LeggiStato(false, 0, false);
        BloccaCampiCD();
        return;
    }
    const auto testo = [&riga](int i) {
        return riga.value(i).toString();
    };
    ImpostaTestoDi(Testo(0), testo(0));
    ImpostaTestoDi(Testo(10), testo(1));
    ImpostaTestoDi(Testo(11), testo(2));
    ImpostaTestoDi(Testo(14), testo(3));
    ImpostaTestoDi(Testo(17), TestoNumero(riga.value(4)));
    ImpostaTestoDi(Testo(18), TestoNumero(riga.value(5)));
    ImpostaTestoDi(Testo(19), TestoNumero(riga.value(6)));
    ImpostaTestoDi(Testo(20), TestoNumero(riga.value(7)));
    ImpostaTestoDi(Testo(21), TestoNumero(riga.value(8)));
    ImpostaTestoDi(Testo(12), TestoNumero(riga.value(9)));
    ImpostaTestoDi(Testo(13), TestoNumero(riga.value(10)));
    ImpostaTestoDi(Testo(15), TestoNumero(riga.value(13)));
    ImpostaTestoDi(Testo(16), TestoNumero(riga.value(14)));
    ImpostaTestoDi(Testo(4), AnnoDaData(riga.value(15)));
    ImpostaTestoDi(Testo(5), AnnoDaData(riga.value(16)));
    ImpostaTestoDi(Testo(8), testo(17));
    ImpostaTestoDi(Testo(9), testo(18));
    ImpostaTestoDi(Testo(6), AnnoDaData(riga.value(19)));
    ImpostaTestoDi(Testo(7), AnnoDaData(riga.value(20)));
    ImpostaTestoDi(Testo(26), testo(21));
    ImpostaTestoDi(Testo(25), testo(22));
    ImpostaTestoDi(Testo(28), Trim(testo(23)));
    ImpostaTestoDi(Testo(29), testo(24));

    // The worth: the units of the row times the global value.
    const QVariant valore = riga.value(11);
    const QVariant valoreFigli = riga.value(12);
    const double dValore = Sessione::dValore;
    ImpostaTestoDi(Testo(22),
                   ENull(valore) ? QString() : FormatoValore(valore.toDouble() * dValore));
    ImpostaTestoDi(Testo(23), ENull(valoreFigli) ? QString()
                                                 : FormatoValore(valoreFigli.toDouble() * dValore));
    ImpostaTestoDi(Testo(24), ENull(valore) || ENull(valoreFigli)
                                  ? QString()
                                  : FormatoValore(valore.toDouble() * dValore +
                                                  valoreFigli.toDouble() * dValore));

    d->cmbTipologiaCD->setCurrentIndex(CercaTipologiaCD(riga.value(27).toString()));

    d->lIdComplessoDoc = Lungo(riga.value(30));
    d->lbCodice->setText(testo(31) + QStringLiteral("-") + testo(32) + testo(33) +
                         QStringLiteral("-F") + QString::number(d->lIdComplessoDoc));

    // The places of the row's institute, then the entries of the row.
    AssegnaIstituto(Lungo(riga.value(29)));
    d->cmbMagazzino->setCurrentIndex(d->sedi->CercaMagazzino(Lungo(riga.value(25))));
    d->cmbSede->setCurrentIndex(d->sedi->CercaSede(Lungo(riga.value(26))));

    LeggiStato(true, Lungo(riga.value(29)), true);
    BloccaCampiCD();
}

void ucComplesso::Modifica() {
    SbloccaCampiCD();
}

void ucComplesso::Salva(long IDElem) {
    d->lIdElemento = IDElem;
    try {
        const Connessione& cnn = *Sessione::cnn;
        bool bTrovata = false;
        long lIdIstitutoRiga = 0;
        // The row of Elementi, the row of ComplessiDoc and the places of the children are
        // written together or not at all.
        InTransazione(cnn.Db(), QStringLiteral("ucComplesso.Salva"), [&] {
            SalvaElemento(IDElem, d->chkPubblicaCD, d->DTPData, Testo(31));
            QSqlQuery riga = cnn.Esegui(SqlSalva, {Id(IDElem)});
            if (!riga.next())
                return;
            bTrovata = true;
            lIdIstitutoRiga = Lungo(riga.value(29));
            const auto numero = [this](int n) {
                return NumeroOZero(TestoDi(Testo(n)));
            };
            const QVariant sede = d->sedi->Sede();
            const QVariant magazzino = d->sedi->Magazzino();
            const QVariant dataInizio = ColonnaIntera(DataDaAnno(TestoDi(Testo(4)), true));
            const QVariant dataFine = ColonnaIntera(DataDaAnno(TestoDi(Testo(5)), false));
            const QVariant ordinamento = ColonnaIntera(NullSeVuoto(TestoDi(Testo(28))));
            cnn.Esegui(SqlScrivi, {TestoODefault(TestoDi(Testo(0))),
                                   TestoInColonna(10),
                                   TestoInColonna(11),
                                   TestoInColonna(14),
                                   numero(17),
                                   numero(18),
                                   numero(19),
                                   numero(20),
                                   numero(21),
                                   numero(12),
                                   numero(15),
                                   dataInizio,
                                   dataFine,
                                   TestoInColonna(8),
                                   TestoInColonna(9),
                                   TestoInColonna(26),
                                   TestoInColonna(25),
                                   ordinamento,
                                   TestoInColonna(29),
                                   magazzino,
                                   sede,
                                   CodiceDueCifre(d->cmbTipologiaCD),
                                   Id(IDElem)});

            // The seat just written goes down to the direct children, as seat and as
            // warehouse.
            SediIstituto::PropagaSedi(QStringLiteral("ComplessiDoc"), IDElem, sede);
        });
        if (!bTrovata) {
            // No detail row: only the row of Elementi written, nothing said; the editor is left
            // as after Mostra of a record that is not there, locked and with the flags of a
            // missing row.
            LeggiStato(false, 0, true);
            BloccaCampiCD();
            return;
        }
        LeggiStato(true, lIdIstitutoRiga, true);
        BloccaCampiCD();
    } catch (const Errore& errore) {
        MsgBox(errore.descrizione(), Pulsanti::Ok, Icona::Critica);
        BloccaCampiCD();
    }
}

void ucComplesso::Annulla() {
    BloccaCampiCD();
}

void ucComplesso::AssegnaIstituto(long tempID_Istituto) {
    ID_Istituto = tempID_Istituto;
    d->sedi->CaricaSedi(ID_Istituto);
}

void ucComplesso::CheckDenominazioni() {
    AltreDenominazioni = !NessunaRiga(
        QStringLiteral("SELECT * FROM ComplessiDocDenominazioni CDD JOIN ComplessiDoc CD ON "
                       "CDD.ID_ComplessoDoc = CD.ID_ComplessoDoc WHERE CD.ID_Elemento = ?"),
        {Id(d->lIdElemento)});
    ColoraPulsante(d->cmdAltreDen, AltreDenominazioni);
}

// --- Places and levels -------------------------------------------------------------------

int ucComplesso::CercaTipologiaCD(const QString& sCodice) const {
    return CercaIndice(d->cmbTipologiaCD, sCodice);
}

// --- State -------------------------------------------------------------------------------

void ucComplesso::LeggiStato(bool bTrovato, long lIdIstitutoRiga, bool bTieniIstituto) {
    if (!bTrovato) {
        ID_Istituto = 0;
        OkNuovoComplesso = OkModifica = OkCancella = false;
        AltreDenominazioni = false;
        return;
    }
    if (!bTieniIstituto)
        AssegnaIstituto(lIdIstitutoRiga);
    OkNuovoComplesso = true;
    OkModifica = true;
    const QVariant id = Id(d->lIdElemento);
    OkCancella =
        FigliElemento(d->lIdElemento) == 0 &&
        NessunaRiga(QStringLiteral("SELECT * FROM ComplessiDocSoggetti CDS JOIN ComplessiDoc CD "
                                   "ON CDS.ID_ComplessoDoc = CD.ID_ComplessoDoc "
                                   "WHERE CD.ID_Elemento = ?"),
                    {id}) &&
        NessunaRiga(QStringLiteral("SELECT * FROM RigheVersamento RV JOIN ComplessiDoc CD "
                                   "ON RV.ID_ComplessoDoc = CD.ID_ComplessoDoc "
                                   "WHERE CD.ID_Elemento = ?"),
                    {id}) &&
        NessunaRiga(QStringLiteral("SELECT * FROM Links WHERE ID_Elemento = ?"), {id});
    CheckDenominazioni();
}

// --- Lock and unlock ---------------------------------------------------------------------

void ucComplesso::BloccaCampiCD() {
    BloccaCampi();
    ColoraPulsante(d->cmdAltreDen, AltreDenominazioni);
    ControllaRiporti();
}

void ucComplesso::SbloccaCampiCD() {
    SbloccaCampi();
    ColoraPulsante(d->cmdAltreDen, AltreDenominazioni);
    ControllaRiporti();
    if (QWidget* denominazione = Testo(0); denominazione->isEnabled())
        denominazione->setFocus();
}

// --- The blinking boxes ------------------------------------------------------------------

void ucComplesso::ControllaRiporti(int quali, bool bFerma) {
    const auto numero = [this](int n) {
        return Val(TestoDi(Testo(n)));
    };
    const bool condizioni[3] = {numero(13) > numero(12), numero(16) > numero(15), numero(22) < 0};
    for (int i = 0; i < 3; ++i) {
        if ((quali & (1 << i)) == 0)
            continue;
        const bool bAcceso = !bFerma && condizioni[i];
        if (!bAcceso)
            d->Timer[i]->stop();
        else if (!d->Timer[i]->isActive())
            d->Timer[i]->start();
    }
    for (int i = 0; i < 3; ++i) {
        if (!d->Timer[i]->isActive())
            Riposo(i + 1);
    }
}

void ucComplesso::Riposo(int iTimer) {
    switch (iTimer) {
    case 1:
        Colora(Testo(12), SfondoFinestra(), TestoFinestra());
        break;
    case 2:
        Colora(Testo(15), SfondoFinestra(), TestoFinestra());
        break;
    default:
        Colora(Testo(22), FacciaPulsante(), Rosso);
        break;
    }
}

void ucComplesso::Lampeggia(int iTimer) {
    QWidget* casella = Testo(iTimer == 1 ? 12 : iTimer == 2 ? 15 : 22);
    const QColor riposo = iTimer == 3 ? FacciaPulsante() : SfondoFinestra();
    if (casella->palette().color(QPalette::Base) == riposo)
        Colora(casella, Acceso, TestoSelezionato());
    else
        Riposo(iTimer);
}

// --- Entering a blinking box ------------------------------------------------------------

bool ucComplesso::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn) {
        const int bit = oggetto == Testo(12)   ? 1
                        : oggetto == Testo(15) ? 2
                        : oggetto == Testo(22) ? 4
                                               : 0;
        if (bit != 0)
            ControllaRiporti(bit, true);
    }
    return EditoreRecord::eventFilter(oggetto, evento);
}

// --- Buttons -----------------------------------------------------------------------------

void ucComplesso::PubblicaClick() {
    ControllaPubblicazione(d->chkPubblicaCD, d->lIdPadre,
                           QStringLiteral("Complesso documentario non pubblicabile"),
                           QStringLiteral("Errore U1"));
}

void ucComplesso::AltreDenClick() {
    try {
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE ID_Elemento = ?"),
            {Id(d->lIdElemento)});
        Sessione::lIdAltreDen = riga.next() ? Lungo(riga.value(0)) : 0;
        Sessione::sTipoAltreDen = QStringLiteral("CD");
        Dialoghi::Apri(QStringLiteral("frmAltreDenominazioni"), this);
        CheckDenominazioni();
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T3"));
    }
}

void ucComplesso::LinkSogClick() {
    if (d->objCaller != nullptr)
        Sessione::sDenomComplesso = d->objCaller->GetDenon();
    Sessione::lIdComplesso = d->lIdElemento;
    Sessione::iTipoSogg = 0;
    Sessione::sTipoLink = QStringLiteral("0");
    Sessione::iEsitoLinkSogg = 0;
    Dialoghi::Apri(QStringLiteral("frmMostraLinkCS"), this);
    if (d->objCaller != nullptr)
        d->objCaller->ChkSogg();
}

void ucComplesso::MostraLinksClick() {
    if (d->objCaller != nullptr)
        Sessione::sDenomComplesso = d->objCaller->GetDenon();
    Sessione::lIdComplesso = d->lIdElemento;
    Sessione::iEsitoLinkInv = 0;
    Dialoghi::Apri(QStringLiteral("frmMostraLinkCD"), this);
    if (d->objCaller != nullptr)
        d->objCaller->ChkLinks();
}

void ucComplesso::LinkPergClick() {
    // The same viewer, for the complesso's parchments: handed the record's own denomination.
    Sessione::lIdComplesso = d->lIdElemento;
    Dialoghi::Apri(QStringLiteral("frmMostraLinkCD"), this,
                   {{QStringLiteral("sDenominazione"), LeggiDenominazione()}});
}
