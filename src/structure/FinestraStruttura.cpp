#include "FinestraStruttura.h"

#include "records/EditoreRecord.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QCursor>
#include <QDialog>
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
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSqlQuery>
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
const QString StatoMostra = QStringLiteral("mostra");
const QString StatoNuovo = QStringLiteral("nuovo");
const QString StatoModifica = QStringLiteral("modifica");

} // namespace

TipoNodo TipoDelloStrumento(const QString& sTag, const char* sTipo, EditoreRecord* editore,
                            const char* sImmagineNuovo, const char* sTabella, const char* sDomanda,
                            const char* sTitolo, QPushButton* cmdCancella,
                            QPushButton* cmdModifica) {
    TipoNodo tipo;
    tipo.sTag = sTag;
    tipo.sTipo = QLatin1String(sTipo);
    tipo.editore = editore;
    tipo.sImmagineNuovo = QLatin1String(sImmagineNuovo);
    tipo.sTabella = QLatin1String(sTabella);
    tipo.sDomandaCancella = QString::fromUtf8(sDomanda);
    tipo.sTitoloCancella = QString::fromUtf8(sTitolo);
    tipo.sTitoloErroreCancella = QStringLiteral("Errore U4");
    tipo.pulsanti = {{cmdCancella, &editore->OkCancella}, {cmdModifica, &editore->OkModifica}};
    return tipo;
}

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
    tvwDB->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tvwDB, &QTreeView::customContextMenuRequested, this,
            [this](const QPoint& posizione) { MenuDelNodo(posizione); });
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
    connect(cmdConferma, &QPushButton::clicked, this, [this] { Conferma(); });
    connect(cmdAnnulla, &QPushButton::clicked, this, [this] { Annulla(); });

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

void FinestraStruttura::MostraNodo(const QString& sTag) {
    if (const TipoNodo* tipo = TipoDelTag(sTag)) {
        MostraTipo(*tipo);
    }
}

bool FinestraStruttura::CaricaGruppi(const QList<GruppoAlbero>& gruppi, bool bSoggettiComplessi,
                                     const RadiceAlbero& radiceAlbero) {
    if (!Sessione::cnn) {
        MsgBox(QStringLiteral("La connessione al database è chiusa."), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore U5"));
        return false;
    }
    try {
        CaricamentoAlbero::Carica(*pModello, *Sessione::cnn, gruppi, bSoggettiComplessi,
                                  radiceAlbero);
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

QPushButton* FinestraStruttura::NuovoComando(const char* sNome, const QString& sDidascalia) {
    auto* comando = new QPushButton(sDidascalia, this);
    comando->setObjectName(QLatin1String(sNome));
    RegistraComando(comando);
    return comando;
}

void FinestraStruttura::RegistraMenuNuovo(QPushButton* comando, const QStringList& tagPadri,
                                          const QList<VoceNuovo>& voci) {
    bool bPrimo = true;
    for (const MenuDelComando& menu : menuNuovo) {
        bPrimo = bPrimo && menu.comando != comando;
    }
    menuNuovo.append({comando, tagPadri, voci});
    if (bPrimo) {
        connect(comando, &QPushButton::clicked, this, [this, comando] { MenuNuovo(comando); });
    }
}

void FinestraStruttura::MenuNuovo(const QPushButton* comando) {
    for (const MenuDelComando& menu : menuNuovo) {
        if (menu.comando != comando || !menu.tagPadri.contains(sTagCorrente)) {
            continue;
        }
        QStringList voci;
        for (const VoceNuovo& voce : menu.voci) {
            voci.append(voce.sVoce);
        }
        const int iScelta = piattaforma().SceltaMenu(voci, QCursor::pos());
        if (iScelta >= 1 && iScelta <= menu.voci.size()) {
            Nuovo(menu.voci[iScelta - 1].sTag);
        }
        return;
    }
}

void FinestraStruttura::RegistraMenuNodo(const QStringList& tagNodi, const QStringList& voci,
                                         std::function<void(int)> azione) {
    menuNodi.append({tagNodi, voci, std::move(azione)});
}

void FinestraStruttura::MenuDelNodo(const QPoint& posizione) {
    const QModelIndex nodo = tvwDB->indexAt(posizione);
    if (!nodo.isValid() || !tvwDB->isEnabled()) {
        return;
    }
    const QString sTag = pModello->Tag(nodo);
    for (const MenuNodo& menu : menuNodi) {
        if (!menu.tagNodi.contains(sTag)) {
            continue;
        }
        if (nodo == tvwDB->currentIndex()) {
            NodoCliccato(nodo);
        } else {
            tvwDB->setCurrentIndex(nodo);
        }
        const int iScelta =
            piattaforma().SceltaMenu(menu.voci, tvwDB->viewport()->mapToGlobal(posizione));
        if (iScelta >= 1 && iScelta <= menu.voci.size()) {
            menu.azione(iScelta);
        }
        return;
    }
}

void FinestraStruttura::TieniNascosto(QPushButton* comando) {
    comandiNascosti.append(comando);
    comando->hide();
}

void FinestraStruttura::AggiungiEditore(EditoreRecord* editore, const char* sNome) {
    auto* pannello = qobject_cast<QVBoxLayout*>(Frame1->layout());
    if (pannello == nullptr) {
        pannello = new QVBoxLayout(Frame1);
        pannello->setContentsMargins(0, 0, 0, 0);
    }
    editore->setParent(Frame1);
    editore->setObjectName(QLatin1String(sNome));
    editore->setVisible(pannello->count() == 0);
    pannello->addWidget(editore);
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
        comando->setVisible(!comandiNascosti.contains(comando));
    }
    cmdSposta->show();
    picSposta->show();
    tvwDB->setEnabled(true);
    cmdConferma->hide();
    cmdAnnulla->hide();
}

// ---------------------------------------------------------------------------------------------
// A window over one finding aid

void FinestraStruttura::DimensioniDalPrincipale() {
    if (const PrimoMDI* principale = PrimoMDI::Istanza()) {
        resize(principale->Area()->size() +
               QSize(650 / PrimoMDI::TwipPerPixel, 100 / PrimoMDI::TwipPerPixel));
    }
}

bool FinestraStruttura::LeggiStrumentoRadice(const QString& sSql, qint64 lIdElemento,
                                             long& lIdInventarioRecord, QString& sDenominazione) {
    try {
        if (!Sessione::cnn) {
            throw Errore(objectName(), QStringLiteral("La connessione al database è chiusa."));
        }
        QSqlQuery riga = Sessione::cnn->Esegui(sSql, {lIdElemento}, objectName());
        if (!riga.next() || riga.value(0).isNull()) {
            throw Errore(objectName(),
                         QStringLiteral("Lo strumento di ricerca (elemento %1) non è nel database.")
                             .arg(lIdElemento));
        }
        lIdInventarioRecord = EditoreRecord::Lungo(riga.value(0));
        sDenominazione = riga.value(1).toString();
        return true;
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), objectName()).descrizione(), Pulsanti::Ok,
               Icona::Critica, QStringLiteral("Errore U5"));
        SenzaAlbero();
        return false;
    }
}

void FinestraStruttura::SenzaAlbero() {
    pModello->Svuota();
    sTagCorrente.clear();
    lIdCorrente = 0;
    for (QPushButton* comando : comandi) {
        comando->setEnabled(false);
    }
    for (const TipoNodo& tipo : tipi) {
        tipo.editore->setVisible(false);
    }
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
    // A node that still holds the new key stands for an element that another workstation
    // deleted meanwhile, and whose key the database has given again.
    bSelezioneInterna = true;
    pModello->Rimuovi(lId);
    bSelezioneInterna = false;
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

void FinestraStruttura::MostraLinkInventario(int iChiamante, const QVariantMap& argomenti) {
    const QModelIndex nodo = NodoCorrente();
    Sessione::sDenomInventario = nodo.isValid() ? pModello->Testo(nodo) : QString();
    Sessione::iEsitoLinkCD = 0;
    Sessione::lIdInventario = static_cast<long>(lIdCorrente);
    Sessione::iChiamanteInv = iChiamante;
    Dialoghi::Apri(QStringLiteral("frmMostraLinkInv"), this, argomenti);
    const QModelIndex dopo = NodoCorrente();
    if (!dopo.isValid()) {
        return;
    }
    if (Sessione::iEsitoLinkCD == 1) {
        pModello->ImpostaImmagine(dopo, QStringLiteral("silink"));
    } else if (Sessione::iEsitoLinkCD == 2) {
        pModello->ImpostaImmagine(dopo, QStringLiteral("nolink"));
    }
    SelezionaNodo(dopo);
    tvwDB->setFocus();
}

void FinestraStruttura::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) {
        // Hosted in a dialog, the dialog closes.
        if (auto* dialogo = qobject_cast<QDialog*>(parentWidget())) {
            dialogo->reject();
        } else {
            close();
        }
        return;
    }
    QWidget::keyPressEvent(evento);
}

void FinestraStruttura::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    if (bPrimaVisualizzazione) {
        bPrimaVisualizzazione = false;
        if (auto* cornice = qobject_cast<QMdiSubWindow*>(parentWidget())) {
            cornice->move(0, 0);
        }
    }
}

QDialog* FinestraStruttura::InDialogo(QWidget* genitore) {
    return Dialoghi::Ospita(this, genitore);
}

// ---------------------------------------------------------------------------------------------
// The kinds

void FinestraStruttura::RegistraTipo(const TipoNodo& tipo) {
    tipi.append(tipo);
    if (tipo.cmdNuovo != nullptr) {
        const QString sTag = tipo.sTag;
        connect(tipo.cmdNuovo, &QPushButton::clicked, this, [this, sTag] { Nuovo(sTag); });
    }
}

const TipoNodo* FinestraStruttura::TipoDelTag(const QString& sTag, bool bAncheAltri) const {
    for (const TipoNodo& tipo : tipi) {
        if (tipo.sTag == sTag || (bAncheAltri && tipo.altriTag.contains(sTag))) {
            return &tipo;
        }
    }
    return nullptr;
}

const TipoNodo* FinestraStruttura::TipoInUso() const {
    for (const TipoNodo& tipo : tipi) {
        if (tipo.sTipo == sTipo) {
            return &tipo;
        }
    }
    return nullptr;
}

void FinestraStruttura::NascondiAltriEditori(const TipoNodo& tipo) {
    for (const TipoNodo& altro : tipi) {
        if (altro.editore != tipo.editore) {
            altro.editore->setVisible(false);
        }
    }
}

void FinestraStruttura::AbilitaPulsanti(const TipoNodo& tipo) {
    for (const TipoNodo& altro : tipi) {
        for (const auto& [pulsante, flag] : altro.pulsanti) {
            pulsante->setEnabled(false);
        }
    }
    for (const auto& [pulsante, flag] : tipo.pulsanti) {
        pulsante->setEnabled(flag != nullptr && *flag);
    }
    DopoPulsanti(tipo);
}

void FinestraStruttura::DopoMostra(const TipoNodo&) {}

void FinestraStruttura::DopoPulsanti(const TipoNodo&) {}

void FinestraStruttura::PreparaEditore(const TipoNodo&) {}

bool FinestraStruttura::PreparaTipo(const TipoNodo&) {
    return true;
}

void FinestraStruttura::DopoSalva(const TipoNodo&) {}

void FinestraStruttura::NuovoNellEditore(const TipoNodo& tipo, const QString&) {
    tipo.editore->Nuovo();
}

long FinestraStruttura::AggiungiElemento(const QString& sDenominazione, const QString& sTipologia,
                                         long lIdPadre) {
    // A parent deleted meanwhile (by another workstation) takes no new element: the element
    // would hang under nothing, and no tree could load it any more.
    if (lIdPadre > 0 &&
        EditoreRecord::NessunaRiga(
            QStringLiteral("SELECT ID_Elemento FROM Elementi WHERE ID_Elemento = ?"),
            {static_cast<qlonglong>(lIdPadre)})) {
        throw Errore(QStringLiteral("AggiungiElemento"),
                     QStringLiteral("L'elemento superiore (%1) non esiste più nel database: il "
                                    "nuovo elemento non è stato creato.")
                         .arg(lIdPadre));
    }
    return ArchivioElementi::Crea(*Sessione::cnn, sTipologia, sDenominazione, lIdPadre);
}

void FinestraStruttura::MostraTipo(const TipoNodo& tipo) {
    if (!PreparaTipo(tipo)) {
        return;
    }
    sStato = StatoMostra;
    sTipo = tipo.sTipo;
    MostraPannello();
    NascondiAltriEditori(tipo);
    tipo.editore->Mostra(static_cast<long>(lIdCorrente));
    DopoMostra(tipo);
    AbilitaPulsanti(tipo);
    tipo.editore->setVisible(true);
}

// ---------------------------------------------------------------------------------------------
// The commands

void FinestraStruttura::Nuovo(const QString& sTag) {
    const TipoNodo* tipo = TipoDelTag(sTag, false);
    if (tipo == nullptr || !NodoCorrente().isValid()) {
        return;
    }
    BloccaComandi();
    const QString sTipoPrima = sTipo;
    sStato = StatoNuovo;
    sTipo = tipo->sTipo;
    if (!PreparaTipo(*tipo)) {
        sStato = StatoMostra;
        sTipo = sTipoPrima;
        SbloccaComandi();
        return;
    }
    const QModelIndex padre = NodoCorrente();
    const QString sTagPadre = padre.isValid() ? pModello->Tag(padre) : QString();
    MostraPannello();
    AggiungiNodoTemporaneo(tipo->sTag, tipo->sImmagineNuovo);
    NascondiAltriEditori(*tipo);
    PreparaEditore(*tipo);
    tipo->editore->setVisible(true);
    NuovoNellEditore(*tipo, sTagPadre);
}

void FinestraStruttura::Modifica() {
    const TipoNodo* tipo = TipoDelTag(sTagCorrente);
    if (tipo == nullptr) {
        return;
    }
    BloccaComandi();
    const QString sTipoPrima = sTipo;
    sStato = StatoModifica;
    sTipo = tipo->sTipo;
    if (!PreparaTipo(*tipo)) {
        sStato = StatoMostra;
        sTipo = sTipoPrima;
        SbloccaComandi();
        return;
    }
    MostraPannello();
    NascondiAltriEditori(*tipo);
    PreparaEditore(*tipo);
    tipo->editore->Modifica();
    tipo->editore->setVisible(true);
}

void FinestraStruttura::Conferma() {
    const TipoNodo* tipo = TipoInUso();
    if (tipo == nullptr) {
        return;
    }
    EditoreRecord& editore = *tipo->editore;
    long lIdSalvato = 0;
    try {
        if (!editore.CheckMandatoryFields()) {
            return; // the state stays and the user goes on
        }
        lIdSalvato = sStato == StatoNuovo
                         ? AggiungiElemento(editore.LeggiDenominazione(), tipo->sTag,
                                            static_cast<long>(lIdCorrente))
                         : static_cast<long>(lIdCorrente);
    } catch (const Errore& errore) {
        // The row of Elementi could not be written (a failure of Salva does not come here):
        // the edit goes on.
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, tipo->sTitoloErroreSalva);
        return;
    }
    // A failure of Salva is shown and goes no further: the row stands and the node is made.
    editore.SalvaMostrandoLErrore(lIdSalvato);
    AbilitaPulsanti(*tipo);
    if (sStato == StatoNuovo) {
        SostituisciNodoTemporaneo(lIdSalvato, editore.LeggiDenominazione(), tipo->sImmagineNuovo,
                                  tipo->sTag);
    } else if (sStato == StatoModifica && !tipo->bTestoSoloAllaCreazione) {
        const QModelIndex nodo = NodoCorrente();
        if (nodo.isValid()) {
            pModello->ImpostaTesto(nodo, editore.LeggiDenominazione());
        }
    }
    sStato = StatoMostra;
    SbloccaComandi();
}

void FinestraStruttura::Annulla() {
    const TipoNodo* tipo = TipoInUso();
    if (tipo != nullptr && sStato == StatoNuovo) {
        RimuoviNodoTemporaneo();
        tipo->editore->Annulla();
        SelezionaNodo(NodoCorrente());
    } else if (tipo != nullptr && sStato == StatoModifica) {
        MostraTipo(*tipo);
    }
    sStato = StatoMostra;
    SbloccaComandi();
}

void FinestraStruttura::Cancella() {
    const QModelIndex nodo = NodoCorrente();
    if (!nodo.isValid()) {
        return;
    }
    const qint64 lIdPadre = pModello->Id(nodo.parent());
    const TipoNodo* tipo = TipoDelTag(sTagCorrente, false);
    if (tipo == nullptr || tipo->sTabella.isEmpty()) {
        return;
    }
    const Risposta risposta = MsgBox(tipo->sDomandaCancella, Pulsanti::SiNo, Icona::Domanda,
                                     tipo->sTitoloCancella + tipo->editore->LeggiDenominazione());
    if (risposta != Risposta::Si) {
        SelezionaNodo(nodo);
        tvwDB->setFocus();
        return;
    }
    try {
        // The table's name comes from the kinds' fixed texts.
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT ID_Elemento FROM %1 WHERE ID_Elemento = ?").arg(tipo->sTabella),
            {static_cast<qlonglong>(lIdCorrente)});
        if (riga.next()) {
            riga.finish();
            ArchivioElementi::Elimina(*Sessione::cnn, tipo->sTag, static_cast<long>(lIdCorrente));
            pModello->Rimuovi(lIdCorrente);
        }
    } catch (const Errore& errore) {
        MsgBox(QString::number(errore.numero()) + QLatin1Char('\n') + errore.sorgente() +
                   QLatin1Char('\n') + errore.descrizione(),
               Pulsanti::Ok, Icona::Critica, tipo->sTitoloErroreCancella);
        return;
    }
    SelezionaNodo(pModello->Trova(lIdPadre));
    tvwDB->setFocus();
}
