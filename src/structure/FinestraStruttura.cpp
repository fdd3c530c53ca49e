#include "FinestraStruttura.h"

#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// A picture of the program folder's Bitmap; Errore when the file is not there or unreadable.
QPixmap Figura(const QString& sNome) {
    const QString percorso = Sessione::FileProgramma(QStringLiteral("Bitmap/") + sNome);
    QPixmap figura;
    if (!QFile::exists(percorso)) {
        throw Errore(QStringLiteral("LoadPicture"),
                     QStringLiteral("File non trovato: %1").arg(QDir::toNativeSeparators(percorso)),
                     ErroriPiattaforma::FileNonTrovato);
    }
    if (!figura.load(percorso)) {
        throw Errore(
            QStringLiteral("LoadPicture"),
            QStringLiteral("Immagine non valida: %1").arg(QDir::toNativeSeparators(percorso)),
            ErroriPiattaforma::ErroreIO);
    }
    return figura;
}

const QString Vuoto = QString(10, u' ');

} // namespace

FinestraStruttura::FinestraStruttura(const QString& sNome, QWidget* genitore)
    : QWidget(genitore) {
    setObjectName(sNome);
    pModello = new ModelloAlbero(this);

    // Left: the order option over the tree.
    FrameOrd = new QGroupBox(this);
    FrameOrd->setObjectName(QStringLiteral("FrameOrd"));
    auto* opzioni = new QHBoxLayout(FrameOrd);
    const QString didascalie[2] = {QStringLiteral("Alfabetico"), QStringLiteral("Archivistico")};
    for (int i = 0; i < 2; ++i) {
        Ord[i] = new QRadioButton(didascalie[i], FrameOrd);
        Ord[i]->setObjectName(QStringLiteral("Ord(%1)").arg(i));
        opzioni->addWidget(Ord[i]);
        connect(Ord[i], &QRadioButton::toggled, this,
                [this, i](bool bAttiva) { OpzioneCambiata(i, bAttiva); });
    }
    opzioni->addStretch();

    tvwDB = new QTreeView(this);
    tvwDB->setObjectName(QStringLiteral("tvwDB"));
    tvwDB->setHeaderHidden(true);
    tvwDB->setUniformRowHeights(true);
    tvwDB->setSelectionMode(QAbstractItemView::SingleSelection);
    tvwDB->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tvwDB->setModel(pModello);
    connect(tvwDB->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& corrente) { CambioSelezione(corrente); });
    connect(tvwDB, &QTreeView::clicked, this, [this](const QModelIndex& nodo) {
        // A click on the node already chosen shows it again.
        if (nodo == tvwDB->currentIndex() && !bSelezioneInterna) {
            NodoCliccato(nodo);
        }
    });

    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(FrameOrd);
    sinistra->addWidget(tvwDB, 1);

    // Middle: the sliding panel's two controls.
    cmdSposta = new QPushButton(this);
    cmdSposta->setObjectName(QStringLiteral("cmdSposta"));
    cmdSposta->setFixedWidth(24);
    connect(cmdSposta, &QPushButton::clicked, this, [this] {
        if (bPannelloNascosto) {
            MostraPannello();
        } else {
            NascondiPannello();
        }
    });
    picSposta = new QLabel(this);
    picSposta->setObjectName(QStringLiteral("picSposta"));
    picSposta->setFixedSize(24, 24);
    picSposta->setAlignment(Qt::AlignCenter);
    picSposta->setScaledContents(true);
    picSposta->installEventFilter(this);
    auto* centro = new QVBoxLayout;
    centro->addWidget(picSposta);
    centro->addWidget(cmdSposta, 1);

    // Right: the editor's frame, which the window fills; it scrolls when the window is lower
    // than the record, so that the commands below stay in sight.
    areaFrame1 = new QScrollArea(this);
    areaFrame1->setObjectName(QStringLiteral("areaFrame1"));
    areaFrame1->setWidgetResizable(true);
    areaFrame1->setFrameShape(QFrame::NoFrame);
    Frame1 = new QFrame;
    Frame1->setObjectName(QStringLiteral("Frame1"));
    areaFrame1->setWidget(Frame1);

    auto* corpo = new QHBoxLayout;
    corpo->addLayout(sinistra, 2);
    corpo->addLayout(centro);
    corpo->addWidget(areaFrame1, 3);

    // Bottom: the commands; the window adds its own before Conferma and Annulla.
    cmdConferma = new QPushButton(QStringLiteral("Conferma"), this);
    cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    barraComandi = new QHBoxLayout;
    barraComandi->addStretch();
    barraComandi->addWidget(cmdConferma);
    barraComandi->addWidget(cmdAnnulla);

    auto* principale = new QVBoxLayout(this);
    principale->addLayout(corpo, 1);
    principale->addLayout(barraComandi);
}

FinestraStruttura::~FinestraStruttura() = default;

void FinestraStruttura::Avvia(bool bConOrdine) {
    cmdAnnulla->hide();
    cmdConferma->hide();
    MostraPannello();
    if (bConOrdine) {
        FrameOrd->show();
        // Ord(1) on loads the tree through its click.
        Ord[1]->setChecked(true);
    } else {
        FrameOrd->hide();
        CaricaAlbero(QString());
    }
}

QString FinestraStruttura::OrdineDi(int iOpzione) const {
    return iOpzione == 0 ? QStringLiteral("ELEM_Denominazione")
                         : QStringLiteral("CD_Ordinamento, ELEM_Denominazione");
}

void FinestraStruttura::OpzioneCambiata(int iOpzione, bool bAttiva) {
    if (bAttiva) {
        CaricaAlbero(OrdineDi(iOpzione));
    }
}

void FinestraStruttura::MostraNodo(const QString&) {}

bool FinestraStruttura::CaricaGruppi(const QList<GruppoAlbero>& gruppi, bool bSoggettiComplessi) {
    if (!Sessione::cnn) {
        MsgBox(QStringLiteral("La connessione al database è chiusa."), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore U5"));
        return false;
    }
    try {
        CaricamentoAlbero::Carica(*pModello, *Sessione::cnn, gruppi, bSoggettiComplessi);
    } catch (const Errore& errore) {
        MsgBox(errore.descrizione(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore U5"));
        return false;
    }
    const QModelIndex radice = pModello->Radice();
    tvwDB->collapseAll();
    tvwDB->expand(radice);
    SelezionaNodo(radice);
    return true;
}

void FinestraStruttura::CambioSelezione(const QModelIndex& corrente) {
    if (!bSelezioneInterna && corrente.isValid()) {
        NodoCliccato(corrente);
    }
}

void FinestraStruttura::NodoCliccato(const QModelIndex& nodo) {
    if (!nodo.isValid()) {
        return;
    }
    sTagCorrente = pModello->Tag(nodo);
    lIdCorrente = pModello->Id(nodo);
    MostraNodo(sTagCorrente);
}

void FinestraStruttura::SelezionaNodo(const QModelIndex& nodo) {
    if (!nodo.isValid()) {
        return;
    }
    bSelezioneInterna = true;
    tvwDB->setCurrentIndex(nodo);
    tvwDB->scrollTo(nodo);
    bSelezioneInterna = false;
    NodoCliccato(nodo);
}

QModelIndex FinestraStruttura::NodoCorrente() const {
    return pModello->Trova(lIdCorrente);
}

// ---------------------------------------------------------------------------------------------
// The sliding panel

void FinestraStruttura::ImpostaPulsanteSposta(const QString& sBitmap, const QString& sIcona) {
    try {
        const QPixmap bitmap = Figura(sBitmap);
        cmdSposta->setIcon(QIcon(bitmap));
        cmdSposta->setIconSize(bitmap.size());
        picSposta->setPixmap(Figura(sIcona));
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica);
    }
}

void FinestraStruttura::NascondiPannello() {
    Frame1->hide();
    areaFrame1->hide();
    ImpostaPulsanteSposta(QStringLiteral("mostra.bmp"), QStringLiteral("sinistra.ico"));
    bPannelloNascosto = true;
}

void FinestraStruttura::MostraPannello() {
    ImpostaPulsanteSposta(QStringLiteral("nascondi.bmp"), QStringLiteral("destra.ico"));
    areaFrame1->show();
    Frame1->show();
    bPannelloNascosto = false;
}

bool FinestraStruttura::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == picSposta && evento->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton) {
        cmdSposta->click();
        return true;
    }
    return QWidget::eventFilter(oggetto, evento);
}

// ---------------------------------------------------------------------------------------------
// The editing state

void FinestraStruttura::RegistraComando(QPushButton* comando) {
    comandi.append(comando);
    barraComandi->insertWidget(barraComandi->count() - 2, comando);
}

void FinestraStruttura::BloccaComandi() {
    for (QPushButton* comando : comandi) {
        comando->hide();
    }
    cmdSposta->hide();
    picSposta->hide();
    tvwDB->setEnabled(false);
    cmdConferma->show();
    cmdAnnulla->show();
}

void FinestraStruttura::SbloccaComandi() {
    for (QPushButton* comando : comandi) {
        comando->show();
    }
    cmdSposta->show();
    picSposta->show();
    tvwDB->setEnabled(true);
    cmdConferma->hide();
    cmdAnnulla->hide();
}

// ---------------------------------------------------------------------------------------------
// The temporary node

QModelIndex FinestraStruttura::AggiungiNodoTemporaneo(const QString& sTag,
                                                      const QString& sImmagine) {
    const QModelIndex nodo =
        pModello->Aggiungi(lIdCorrente, ModelloAlbero::IdTemporaneo, Vuoto, sImmagine, sTag);
    sTagNuovo = sTag;
    bSelezioneInterna = true;
    tvwDB->expand(nodo.parent());
    tvwDB->setCurrentIndex(nodo);
    tvwDB->scrollTo(nodo);
    bSelezioneInterna = false;
    return nodo;
}

void FinestraStruttura::RimuoviNodoTemporaneo() {
    bSelezioneInterna = true;
    pModello->Rimuovi(ModelloAlbero::IdTemporaneo);
    bSelezioneInterna = false;
}

QModelIndex FinestraStruttura::SostituisciNodoTemporaneo(qint64 lId, const QString& sTesto,
                                                         const QString& sImmagine,
                                                         const QString& sTag) {
    RimuoviNodoTemporaneo();
    const QModelIndex nodo = pModello->Aggiungi(lIdCorrente, lId, sTesto, sImmagine, sTag);
    pModello->ImpostaOrdinato(nodo);
    SelezionaNodo(nodo);
    return nodo;
}

void FinestraStruttura::AnnullaNodoTemporaneo() {
    RimuoviNodoTemporaneo();
    SelezionaNodo(NodoCorrente());
}

// ---------------------------------------------------------------------------------------------
// The images after the link viewers

void FinestraStruttura::ChkLinks() {
    const QModelIndex nodo = NodoCorrente();
    if (!nodo.isValid()) {
        return;
    }
    pModello->ImpostaImmagine(nodo, CaricamentoAlbero::ImmagineDopoLinkInventari(
                                        pModello->Immagine(nodo), Sessione::iEsitoLinkInv));
    SelezionaNodo(nodo);
    tvwDB->setFocus();
}

void FinestraStruttura::ChkSogg() {
    const QModelIndex nodo = NodoCorrente();
    if (!nodo.isValid()) {
        return;
    }
    pModello->ImpostaImmagine(nodo, CaricamentoAlbero::ImmagineDopoLinkSoggetti(
                                        pModello->Immagine(nodo), Sessione::iEsitoLinkSogg));
    SelezionaNodo(nodo);
    tvwDB->setFocus();
}

void FinestraStruttura::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(evento);
}
