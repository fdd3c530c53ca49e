#include "DialogoSpunte.h"

#include "ModelloSpunte.h"
#include "SlotSpunte.h"
#include "records/EditoreRecord.h"
#include "records/FinestraElenco.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QString StatoMostra = QStringLiteral("mostra");
const QString StatoNuovo = QStringLiteral("nuovo");

// A failure in the form of the program's handlers: source, a line break and the description.
void MostraErrore(const std::exception_ptr& eccezione, const QString& sSorgente,
                  const QString& sTitolo) {
    MsgBox(ErroreDi(eccezione, sSorgente).testo(), Pulsanti::Ok, Icona::Critica, sTitolo);
}

const Connessione& Cnn(const QString& sSorgente) {
    if (!Sessione::cnn) {
        throw Errore(sSorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return *Sessione::cnn;
}

QPushButton* Comando(QWidget* genitore, const char* sNome, const QString& sDidascalia) {
    auto* comando = new QPushButton(sDidascalia, genitore);
    comando->setObjectName(QLatin1String(sNome));
    comando->setAutoDefault(false);
    return comando;
}

} // namespace

DialogoSpunte::DialogoSpunte(const QString& sNome, const QString& sTitolo, QWidget* genitore)
    : QDialog(genitore)
    , sStato(StatoMostra) {
    setObjectName(sNome);
    setWindowTitle(sTitolo);

    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    connect(SSTab1, &QTabWidget::currentChanged, this,
            [this](int iPagina) { CambioScheda(iPagina); });

    cornice = new QWidget(this);
    cornice->setObjectName(QStringLiteral("Frame1"));
    auto* editori = new QVBoxLayout(cornice);
    editori->setContentsMargins(0, 0, 0, 0);

    auto* corpo = new QHBoxLayout;
    corpo->addWidget(SSTab1, 2);
    corpo->addWidget(cornice, 3);

    cmdNuovoSog = Comando(this, "cmdNuovoSog", QStringLiteral("Nuovo Soggetto"));
    cmdCollega = Comando(this, "cmdCollega", QStringLiteral("Collega"));
    cmdAnnullaCol = Comando(this, "cmdAnnullaCol", QStringLiteral("Annulla collegamento"));
    cmdConferma = Comando(this, "cmdConferma", QStringLiteral("Conferma dati"));
    cmdAnnulla = Comando(this, "cmdAnnulla", QStringLiteral("Annulla"));
    connect(cmdNuovoSog, &QPushButton::clicked, this, [this] { cmdNuovoSog_Click(); });
    connect(cmdCollega, &QPushButton::clicked, this, [this] { cmdCollega_Click(); });
    connect(cmdAnnullaCol, &QPushButton::clicked, this, [this] { cmdAnnullaCol_Click(); });
    connect(cmdConferma, &QPushButton::clicked, this, [this] { cmdConferma_Click(); });
    connect(cmdAnnulla, &QPushButton::clicked, this, [this] { cmdAnnulla_Click(); });
    auto* barra = new QHBoxLayout;
    barra->addWidget(cmdNuovoSog);
    barra->addWidget(cmdCollega);
    barra->addWidget(cmdAnnullaCol);
    barra->addStretch();
    barra->addWidget(cmdConferma);
    barra->addWidget(cmdAnnulla);

    auto* principale = new QVBoxLayout(this);
    principale->addLayout(corpo, 1);
    principale->addLayout(barra);
    cmdCollega->setEnabled(false);
    Dialoghi::DimensioneComoda(this);
}

DialogoSpunte::~DialogoSpunte() = default;

// ---------------------------------------------------------------------------------------------
// The pages

void DialogoSpunte::AggiungiPagina(const PaginaSpunte& pagina, const QString& sEtichettaOggetto,
                                   const QString& sOggetto, const QString& sEtichettaScelti) {
    const int iPagina = Pagine();
    pagine.append(pagina);
    aId.append(0);
    aChiave.append(QString());
    caricate.append(false);

    auto* foglio = new QWidget(SSTab1);
    // With one list the names carry no tab's index: lvwDB, and the object's boxes take index 0
    // and the chosen names' index 1.
    const auto nome = [this, iPagina](const char* sNome) {
        if (bUnaLista) {
            const QLatin1String sVoce(sNome);
            if (sVoce == QLatin1String("lvwDB")) {
                return QString(sVoce);
            }
            const bool bOggetto =
                sVoce == QLatin1String("Label2") || sVoce == QLatin1String("Text2");
            const QString sBase = sVoce.startsWith(QLatin1String("Label"))
                                      ? QStringLiteral("Label1")
                                      : QStringLiteral("Text1");
            return QStringLiteral("%1(%2)").arg(sBase).arg(bOggetto ? 0 : 1);
        }
        return QStringLiteral("%1(%2)").arg(QLatin1String(sNome)).arg(iPagina);
    };
    auto* etichettaOggetto = new QLabel(sEtichettaOggetto, foglio);
    etichettaOggetto->setObjectName(nome("Label2"));
    auto* oggetto = new QLineEdit(sOggetto, foglio);
    oggetto->setObjectName(nome("Text2"));
    oggetto->setReadOnly(true);

    auto* modello = new ModelloSpunte(this);
    modello->ImpostaIntestazione(pagina.sIntestazione);
    modello->ImpostaSceltaUnica(pagina.bSceltaUnica);
    auto* lista = NuovaListaRighe(foglio, nome("lvwDB"), modello);
    connect(lista->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, iPagina](const QModelIndex& corrente) {
                if (!bSelezioneInterna && corrente.isValid()) {
                    RigaCliccata(iPagina, corrente.row());
                }
            });
    connect(modello, &ModelloSpunte::SpuntaCambiata, this,
            [this, iPagina](int iRiga) { ItemCheck(iPagina, iRiga); });

    auto* etichettaScelti = new QLabel(sEtichettaScelti, foglio);
    etichettaScelti->setObjectName(nome("Label1"));
    auto* nomiScelti = new QLineEdit(foglio);
    nomiScelti->setObjectName(nome("Text1"));

    auto* colonna = new QVBoxLayout(foglio);
    colonna->addWidget(etichettaOggetto);
    colonna->addWidget(oggetto);
    colonna->addWidget(lista, 1);
    colonna->addWidget(etichettaScelti);
    colonna->addWidget(nomiScelti);
    liste.append(lista);
    modelli.append(modello);
    scelti.append(nomiScelti);
    oggetti.append(oggetto);
    SSTab1->addTab(foglio, pagina.sTitolo);

    if (pagina.editore == nullptr) {
        return;
    }
    pagina.editore->setParent(cornice);
    pagina.editore->setObjectName(QLatin1String(pagina.sNomeEditore));
    pagina.editore->setVisible(false);
    cornice->layout()->addWidget(pagina.editore);
}

void DialogoSpunte::UnaLista() {
    bUnaLista = true;
    SSTab1->tabBar()->hide();
    SSTab1->setDocumentMode(true);
}

void DialogoSpunte::ImpostaCollegamento(CollegamentoSpunte descrizione) {
    collegamento = std::move(descrizione);
}

QTreeView* DialogoSpunte::Lista(int iPagina) const {
    return liste.value(iPagina);
}

ModelloSpunte& DialogoSpunte::Modello(int iPagina) const {
    return *modelli[iPagina];
}

bool DialogoSpunte::Caricata(int iPagina) const {
    return caricate.value(iPagina);
}

int DialogoSpunte::PaginaCorrente() const {
    return SSTab1->currentIndex();
}

QLineEdit* DialogoSpunte::Scelti(int iPagina) const {
    return scelti.value(iPagina);
}

QLineEdit* DialogoSpunte::Oggetto(int iPagina) const {
    return oggetti.value(iPagina);
}

void DialogoSpunte::BloccaScelti(bool bBlocca) {
    for (QLineEdit* testo : scelti) {
        testo->setReadOnly(bBlocca);
    }
}

void DialogoSpunte::Avvia(int iScheda) {
    lNumSel = 0;
    if (collegamento.aSel != nullptr) {
        collegamento.aSel->clear();
    }
    cmdAnnulla->setEnabled(false);
    cmdConferma->setEnabled(false);
    // Lists only chosen from: no editor's frame, no editor's commands.
    const bool bEditori = std::any_of(pagine.cbegin(), pagine.cend(),
                                      [](const PaginaSpunte& p) { return p.editore != nullptr; });
    for (QWidget* parte : {cornice, static_cast<QWidget*>(cmdNuovoSog),
                           static_cast<QWidget*>(cmdConferma), static_cast<QWidget*>(cmdAnnulla)}) {
        parte->setVisible(bEditori);
    }
    // A single choice may be written as it stands, also as no choice.
    if (collegamento.scriviScelta) {
        cmdCollega->setEnabled(true);
    }
    bAvviata = true;
    iScheda = std::clamp(iScheda, 0, Pagine() - 1);
    if (SSTab1->currentIndex() != iScheda) {
        SSTab1->setCurrentIndex(iScheda); // runs the tab change
    } else {
        CambioScheda(iScheda);
    }
}

// ---------------------------------------------------------------------------------------------
// Loading and showing

void DialogoSpunte::CambioScheda(int iPagina) {
    if (!bAvviata || iPagina < 0 || iPagina >= Pagine()) {
        return;
    }
    if (!caricate[iPagina]) {
        CaricaLista(iPagina);
    }
    Mostra();
}

void DialogoSpunte::CaricaLista(int iPagina) {
    const PaginaSpunte& pagina = pagine[iPagina];
    ModelloSpunte& modello = Modello(iPagina);
    QList<qint64> ids;
    QList<QString> testi;
    QList<bool> legate;
    caricate[iPagina] = true;
    try {
        const Connessione& cnn = Cnn(objectName());
        const auto righe =
            cnn.backend().ApriLetturaRighe(cnn.Db(), pagina.sSql, pagina.valori, objectName());
        while (righe->Prossima()) {
            ids.append(righe->Intero(0));
            testi.append(pagina.testoRiga(*righe));
            legate.append(righe->Intero(pagina.iColonnaChecked) > 0);
        }
    } catch (...) {
        // The list stays as far as it came.
        modello.Riempi(std::move(ids), std::move(testi), std::move(legate));
        MostraErrore(std::current_exception(), objectName(), pagina.sErroreCarica);
        return;
    }
    modello.Riempi(std::move(ids), std::move(testi), std::move(legate));
    // The first item is the one chosen.
    if (modello.Righe() > 0) {
        aId[iPagina] = modello.Id(0);
        aChiave[iPagina] = ModelloElenco::Chiave(aId[iPagina]);
        bSelezioneInterna = true;
        liste[iPagina]->setCurrentIndex(modello.index(0));
        bSelezioneInterna = false;
    }
}

void DialogoSpunte::RigaCliccata(int iPagina, int iRiga) {
    if (iPagina != PaginaCorrente() || iRiga < 0 || iRiga >= Modello(iPagina).Righe()) {
        return;
    }
    aChiave[iPagina] = ModelloElenco::Chiave(Modello(iPagina).Id(iRiga));
    aId[iPagina] = ModelloElenco::IdDaChiave(aChiave[iPagina]);
    Mostra();
}

void DialogoSpunte::SelezionaRiga(int iPagina, int iRiga) {
    const QModelIndex riga = Modello(iPagina).index(iRiga);
    if (!riga.isValid()) {
        return;
    }
    bSelezioneInterna = true;
    liste[iPagina]->clearSelection();
    liste[iPagina]->setCurrentIndex(riga);
    liste[iPagina]->scrollTo(riga);
    bSelezioneInterna = false;
    RigaCliccata(iPagina, iRiga);
}

void DialogoSpunte::NascondiAltriEditori(const PaginaSpunte& pagina) {
    for (const PaginaSpunte& altra : pagine) {
        if (altra.editore != nullptr && altra.editore != pagina.editore) {
            altra.editore->setVisible(false);
        }
    }
}

void DialogoSpunte::Mostra() {
    const int iPagina = PaginaCorrente();
    const PaginaSpunte& pagina = pagine[iPagina];
    sStato = StatoMostra;
    sTipo = pagina.sTipo;
    NascondiAltriEditori(pagina);
    if (pagina.editore == nullptr) {
        return;
    }
    try {
        if (aChiave[iPagina].isEmpty()) {
            pagina.pulisci();
        } else {
            pagina.editore->Mostra(static_cast<long>(aId[iPagina]));
        }
    } catch (...) {
        MostraErrore(std::current_exception(), objectName(), QString());
    }
    pagina.editore->setVisible(true);
}

// ---------------------------------------------------------------------------------------------
// The ticks

void DialogoSpunte::ItemCheck(int iPagina, int iRiga) {
    ModelloSpunte& modello = Modello(iPagina);
    if (iRiga < 0 || iRiga >= modello.Righe()) {
        return;
    }
    // One choice at most: the model took away the tick there was; the name follows.
    if (modello.SceltaUnica()) {
        RicostruisciScelti(iPagina);
        return;
    }
    // A link that exists is undone only from its viewer.
    if (modello.Tag(iRiga) == 1) {
        if (!modello.Spuntata(iRiga)) {
            modello.ImpostaSpunta(iRiga, true);
        }
        return;
    }
    const bool bSpuntata = modello.Spuntata(iRiga);
    if (bSpuntata) {
        ++lNumSel;
    }
    SegnaSpunta(*collegamento.aSel, static_cast<long>(modello.Id(iRiga)), bSpuntata);
    AbilitaCollega();
    RicostruisciScelti(iPagina);
}

void DialogoSpunte::AbilitaCollega() {
    cmdCollega->setEnabled(lNumSel > SlotVuoti(*collegamento.aSel));
}

void DialogoSpunte::RicostruisciScelti(int iPagina) {
    const ModelloSpunte& modello = Modello(iPagina);
    QStringList nomi;
    for (int i = 0; i < modello.Righe(); ++i) {
        if (modello.Tag(i) == 0 && modello.Spuntata(i)) {
            nomi.append(modello.Testo(i));
        }
    }
    scelti[iPagina]->setText(nomi.join(QStringLiteral(", ")));
}

// ---------------------------------------------------------------------------------------------
// The commands

void DialogoSpunte::cmdCollega_Click() {
    if (collegamento.scriviScelta) {
        try {
            collegamento.scriviScelta(Modello(PaginaCorrente()).IdSpuntato());
        } catch (...) {
            // Nothing written: the dialog stays open.
            MostraErrore(std::current_exception(), objectName(), collegamento.sErroreScelta);
            return;
        }
        accept();
        return;
    }
    *collegamento.iEsito = 0;
    try {
        const Connessione& cnn = Cnn(objectName());
        // The served object is read once: when it is gone nothing is written.
        const qint64 lChiave = collegamento.chiaveOggetto();
        // The table and the columns come from the description's fixed texts.
        const QString sCerca = QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ? AND %3 = ?")
                                   .arg(collegamento.sTabella, collegamento.sColonnaOggetto,
                                        collegamento.sColonnaVoce);
        const QString sAggiungi = QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (?, ?)")
                                      .arg(collegamento.sTabella, collegamento.sColonnaOggetto,
                                           collegamento.sColonnaVoce);
        if (!collegamento.sTabellaVoci.isEmpty()) {
            VerificaVoci(cnn);
        }
        for (const long lId : std::as_const(*collegamento.aSel)) {
            if (lId == 0) {
                continue;
            }
            const QVariant chiave = static_cast<qlonglong>(lChiave);
            const QVariant id = static_cast<qlonglong>(lId);
            QSqlQuery presenti = cnn.Esegui(sCerca, {chiave, id}, objectName());
            const bool bPresente = presenti.next() && presenti.value(0).toLongLong() > 0;
            presenti.finish();
            if (bPresente) {
                continue;
            }
            if (collegamento.sChiaveRiga.isEmpty()) {
                cnn.Esegui(sAggiungi, {chiave, id}, objectName());
            } else {
                cnn.Inserisci(collegamento.sTabella, collegamento.sChiaveRiga,
                              {collegamento.sColonnaOggetto, collegamento.sColonnaVoce},
                              {chiave, id});
            }
            *collegamento.iEsito = 1;
        }
    } catch (...) {
        // The links written so far stay; the dialog stays open.
        MostraErrore(std::current_exception(), objectName(), QStringLiteral("Errore O1"));
        return;
    }
    accept();
}

void DialogoSpunte::VerificaVoci(const Connessione& cnn) const {
    // The table and the column come from the description's fixed texts.
    const QString sCerca = QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?")
                               .arg(collegamento.sTabellaVoci, collegamento.sChiaveVoci);
    for (const long lId : std::as_const(*collegamento.aSel)) {
        if (lId == 0) {
            continue;
        }
        QSqlQuery voce = cnn.Esegui(sCerca, {static_cast<qlonglong>(lId)}, objectName());
        if (!voce.next() || voce.value(0).toLongLong() == 0) {
            QString sNome;
            for (int iPagina = 0; iPagina < Pagine() && sNome.isEmpty(); ++iPagina) {
                const int iRiga = Modello(iPagina).RigaDi(lId);
                if (iRiga >= 0) {
                    sNome = Modello(iPagina).Testo(iRiga);
                }
            }
            throw Errore(objectName(),
                         QStringLiteral("\"%1\" non esiste più nel database: è stato cancellato "
                                        "da un'altra postazione.")
                             .arg(sNome));
        }
    }
}

void DialogoSpunte::cmdAnnullaCol_Click() {
    if (allAnnullaCol) {
        allAnnullaCol(PaginaCorrente());
    }
    reject();
}

void DialogoSpunte::Disposizione(bool bNuovo) {
    const int iPagina = PaginaCorrente();
    for (int i = 0; i < Pagine(); ++i) {
        SSTab1->setTabEnabled(i, !bNuovo || i == iPagina);
    }
    liste[iPagina]->setEnabled(!bNuovo);
    cmdNuovoSog->setEnabled(!bNuovo);
    cmdAnnullaCol->setEnabled(!bNuovo);
    cmdConferma->setEnabled(bNuovo);
    cmdAnnulla->setEnabled(bNuovo);
    if (bNuovo) {
        cmdCollega->setEnabled(false);
    } else {
        AbilitaCollega();
        liste[iPagina]->setFocus();
    }
}

void DialogoSpunte::cmdNuovoSog_Click() {
    const PaginaSpunte& pagina = pagine[PaginaCorrente()];
    if (pagina.editore == nullptr) {
        return;
    }
    sStato = StatoNuovo;
    sTipo = pagina.sTipo;
    NascondiAltriEditori(pagina);
    pagina.editore->Nuovo();
    pagina.editore->setVisible(true);
    Disposizione(true);
}

void DialogoSpunte::cmdConferma_Click() {
    if (sStato != StatoNuovo) {
        return;
    }
    const int iPagina = PaginaCorrente();
    const PaginaSpunte& pagina = pagine[iPagina];
    EditoreRecord& editore = *pagina.editore;
    long lId = 0;
    try {
        if (!editore.CheckMandatoryFields()) {
            return; // the state stays and the user goes on
        }
        lId = pagina.inserisci(editore.LeggiDenominazione());
    } catch (...) {
        // The new item's row could not be made: the edit goes on.
        MostraErrore(std::current_exception(), objectName(), QString());
        return;
    }
    if (!editore.SalvaMostrandoLErrore(lId) || (pagina.okNuovo != nullptr && !*pagina.okNuovo)) {
        // The row is there, as the database kept it: the editor shows it.
        try {
            editore.Mostra(lId);
        } catch (...) {
            MostraErrore(std::current_exception(), objectName(), QString());
        }
    }
    const int iRiga = Modello(iPagina).Aggiungi(lId, pagina.testoSalvato());
    sStato = StatoMostra;
    Disposizione(false);
    SelezionaRiga(iPagina, iRiga);
}

void DialogoSpunte::cmdAnnulla_Click() {
    if (sStato != StatoNuovo) {
        return;
    }
    const int iPagina = PaginaCorrente();
    pagine[iPagina].pulisci();
    pagine[iPagina].editore->Annulla();
    sStato = StatoMostra;
    Disposizione(false);
    const int iRiga = Modello(iPagina).RigaDi(aId[iPagina]);
    if (!aChiave[iPagina].isEmpty() && iRiga >= 0) {
        SelezionaRiga(iPagina, iRiga);
    } else {
        Mostra();
    }
}
