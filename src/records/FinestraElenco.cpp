#include "FinestraElenco.h"

#include "EditoreRecord.h"
#include "ModelloElenco.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QString StatoMostra = QStringLiteral("mostra");
const QString StatoNuovo = QStringLiteral("nuovo");
const QString StatoModifica = QStringLiteral("modifica");

// A failure in the form of the program's handlers: source, a line break and the description.
void MostraErrore(const std::exception_ptr& eccezione, const QString& sSorgente,
                  const QString& sTitolo) {
    MsgBox(ErroreDi(eccezione, sSorgente).testo(), Pulsanti::Ok, Icona::Critica, sTitolo);
}

} // namespace

QTreeView* NuovaListaRighe(QWidget* genitore, const QString& sNome, QAbstractItemModel* modello) {
    auto* lista = new QTreeView(genitore);
    lista->setObjectName(sNome);
    lista->setRootIsDecorated(false);
    lista->setItemsExpandable(false);
    lista->setUniformRowHeights(true);
    lista->setSelectionMode(QAbstractItemView::SingleSelection);
    lista->setSelectionBehavior(QAbstractItemView::SelectRows);
    lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lista->setAllColumnsShowFocus(true);
    lista->header()->setStretchLastSection(true);
    lista->setModel(modello);
    return lista;
}

FinestraElenco::FinestraElenco(const QString& sNome, bool bSchede, QWidget* genitore)
    : QWidget(genitore) {
    setObjectName(sNome);

    // Right: the editors, one visible at a time.
    cornice = new QWidget;
    cornice->setObjectName(QStringLiteral("Frame1"));
    auto* editori = new QVBoxLayout(cornice);
    editori->setContentsMargins(0, 0, 0, 0);

    corpo = new QHBoxLayout;
    if (bSchede) {
        SSTab1 = new QTabWidget(this);
        SSTab1->setObjectName(QStringLiteral("SSTab1"));
        connect(SSTab1, &QTabWidget::currentChanged, this,
                [this](int iPagina) { CambioScheda(iPagina); });
        corpo->addWidget(SSTab1, 2);
    }
    // The editor scrolls when the window is smaller than its form, so that the commands below
    // stay in sight.
    auto* areaEditori = new QScrollArea(this);
    areaEditori->setObjectName(QStringLiteral("areaFrame1"));
    areaEditori->setWidgetResizable(true);
    areaEditori->setFrameShape(QFrame::NoFrame);
    areaEditori->setWidget(cornice);
    corpo->addWidget(areaEditori, 3);

    cmdConferma = new QPushButton(QStringLiteral("Conferma dati"), this);
    cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    connect(cmdConferma, &QPushButton::clicked, this, [this] { Conferma(); });
    connect(cmdAnnulla, &QPushButton::clicked, this, [this] { Annulla(); });
    barraComandi = new QHBoxLayout;
    barraComandi->addStretch();
    barraComandi->addWidget(cmdConferma);
    barraComandi->addWidget(cmdAnnulla);

    auto* principale = new QVBoxLayout(this);
    principale->addLayout(corpo, 1);
    principale->addLayout(barraComandi);
}

FinestraElenco::~FinestraElenco() = default;

// ---------------------------------------------------------------------------------------------
// The pages

void FinestraElenco::AggiungiPagina(const PaginaElenco& pagina) {
    const int iPagina = Pagine();
    pagine.append(pagina);
    aId.append(0);
    aChiave.append(QString());
    caricate.append(false);

    auto* modello = new ModelloElenco(this);
    modello->ImpostaIntestazione(pagina.sIntestazione);
    auto* lista = NuovaListaRighe(this, QStringLiteral("lvwDB(%1)").arg(iPagina), modello);
    connect(lista->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, iPagina](const QModelIndex& corrente) { CambioSelezione(iPagina, corrente); });
    connect(lista, &QTreeView::clicked, this, [this, iPagina, lista](const QModelIndex& riga) {
        // A click on the row already chosen shows it again.
        if (iPagina == PaginaCorrente() && riga == lista->currentIndex() && !bSelezioneInterna) {
            RigaCliccata(riga.row());
        }
    });
    liste.append(lista);
    modelli.append(modello);

    if (SSTab1 != nullptr) {
        SSTab1->addTab(lista, pagina.sTitolo);
    } else {
        corpo->insertWidget(0, lista, 2);
    }

    // A dialog that the editor opened has closed: the commands follow its flags again.
    connect(pagina.editore, &EditoreRecord::EventoStato, this, [this, iPagina] {
        if (iPagina == PaginaCorrente() && sStato == StatoMostra) {
            AbilitaPulsanti(pagine[iPagina]);
        }
    });
    pagina.editore->setParent(cornice);
    pagina.editore->setObjectName(QLatin1String(pagina.sNomeEditore));
    pagina.editore->setVisible(false);
    cornice->layout()->addWidget(pagina.editore);

    // A command of New that several lists share runs once.
    const bool bGiaCollegato =
        std::any_of(pagine.cbegin(), pagine.cend() - 1, [&pagina](const PaginaElenco& altra) {
            return altra.cmdNuovo == pagina.cmdNuovo;
        });
    if (pagina.cmdNuovo != nullptr && !bGiaCollegato) {
        connect(pagina.cmdNuovo, &QPushButton::clicked, this, [this] { Nuovo(); });
    }
}

QPushButton* FinestraElenco::NuovoComando(const char* sNome, const QString& sDidascalia) {
    auto* comando = new QPushButton(sDidascalia, this);
    comando->setObjectName(QLatin1String(sNome));
    comandi.append(comando);
    barraComandi->insertWidget(barraComandi->count() - 2, comando);
    return comando;
}

QTreeView* FinestraElenco::Lista(int iPagina) const {
    return liste.value(iPagina);
}

ModelloElenco& FinestraElenco::Modello(int iPagina) const {
    return *modelli[iPagina];
}

int FinestraElenco::PaginaCorrente() const {
    return SSTab1 != nullptr ? SSTab1->currentIndex() : 0;
}

bool FinestraElenco::Caricata(int iPagina) const {
    return caricate.value(iPagina);
}

void FinestraElenco::Avvia() {
    bAvviata = true;
    cmdAnnulla->setEnabled(false);
    cmdConferma->setEnabled(false);
    if (SSTab1 != nullptr && SSTab1->currentIndex() != 0) {
        SSTab1->setCurrentIndex(0); // runs the tab change
    } else {
        CambioScheda(0);
    }
}

void FinestraElenco::CambioScheda(int iPagina) {
    // The tabs made before the Load's end are not shown yet.
    if (!bAvviata || iPagina < 0 || iPagina >= Pagine()) {
        return;
    }
    if (!caricate[iPagina]) {
        CaricaLista(iPagina);
        // The first row, if any, is the one chosen.
        if (Modello(iPagina).Righe() > 0) {
            aChiave[iPagina] = ModelloElenco::Chiave(Modello(iPagina).Id(0));
            aId[iPagina] = Modello(iPagina).Id(0);
        }
    }
    if (Modello(iPagina).Righe() == 0 && !pagine[iPagina].bMostraSenzaRighe) {
        NessunaRiga(iPagina);
        return;
    }
    Mostra();
}

void FinestraElenco::CaricaLista(int iPagina) {
    const PaginaElenco& pagina = pagine[iPagina];
    ModelloElenco& modello = Modello(iPagina);
    modello.ImpostaIntestazione(pagina.sIntestazione);
    QList<qint64> ids;
    QList<QString> testi;
    try {
        if (!Sessione::cnn) {
            throw Errore(objectName(), QStringLiteral("La connessione al database è chiusa."));
        }
        const auto righe = Sessione::cnn->backend().ApriLetturaRighe(
            Sessione::cnn->Db(), pagina.sSql, pagina.valori, objectName());
        while (righe->Prossima()) {
            ids.append(righe->Intero(0));
            testi.append(pagina.testoRiga(*righe));
        }
    } catch (...) {
        // The list stays as far as it came.
        modello.Riempi(std::move(ids), std::move(testi));
        MostraErrore(std::current_exception(), objectName(), QStringLiteral("Errore U5"));
        caricate[iPagina] = true;
        return;
    }
    modello.Riempi(std::move(ids), std::move(testi));
    if (modello.Righe() > 0) {
        bSelezioneInterna = true;
        liste[iPagina]->setCurrentIndex(modello.index(0));
        bSelezioneInterna = false;
    }
    caricate[iPagina] = true;
}

// ---------------------------------------------------------------------------------------------
// Showing

void FinestraElenco::CambioSelezione(int iPagina, const QModelIndex& corrente) {
    if (!bSelezioneInterna && corrente.isValid() && iPagina == PaginaCorrente()) {
        RigaCliccata(corrente.row());
    }
}

void FinestraElenco::RigaCliccata(int iRiga) {
    const int iPagina = PaginaCorrente();
    if (iRiga < 0 || iRiga >= Modello(iPagina).Righe()) {
        return;
    }
    const qint64 lId = Modello(iPagina).Id(iRiga);
    aChiave[iPagina] = ModelloElenco::Chiave(lId);
    aId[iPagina] = ModelloElenco::IdDaChiave(aChiave[iPagina]);
    Mostra();
}

void FinestraElenco::SelezionaRiga(int iRiga) {
    QTreeView* lista = ListaCorrente();
    const QModelIndex riga = Modello(PaginaCorrente()).index(iRiga);
    if (!riga.isValid()) {
        return;
    }
    bSelezioneInterna = true;
    lista->clearSelection();
    lista->setCurrentIndex(riga);
    lista->scrollTo(riga);
    bSelezioneInterna = false;
    RigaCliccata(iRiga);
}

void FinestraElenco::NascondiAltriEditori(const PaginaElenco& pagina) {
    for (const PaginaElenco& altra : pagine) {
        if (altra.editore != pagina.editore) {
            altra.editore->setVisible(false);
        }
    }
}

void FinestraElenco::AbilitaPulsanti(const PaginaElenco& pagina) {
    for (const auto& [pulsante, flag] : pagina.pulsanti) {
        pulsante->setEnabled(flag != nullptr && *flag);
    }
    for (const auto& [pulsante, flag] : pagina.colori) {
        EditoreRecord::ColoraPulsante(pulsante, flag != nullptr && *flag);
    }
}

void FinestraElenco::Mostra() {
    const int iPagina = PaginaCorrente();
    const PaginaElenco& pagina = pagine[iPagina];
    sStato = StatoMostra;
    sTipo = pagina.sTipo;
    NascondiAltriEditori(pagina);
    try {
        pagina.editore->Mostra(static_cast<long>(aId[iPagina]));
    } catch (...) {
        // The record cannot be read: the failure is shown and the commands follow what the
        // editor knows.
        MostraErrore(std::current_exception(), objectName(), QString());
    }
    AbilitaPulsanti(pagina);
    // Visible at the end, so that the change of the controls is not seen half-done.
    pagina.editore->setVisible(true);
}

void FinestraElenco::NessunaRiga(int iPagina) {
    const PaginaElenco& pagina = pagine[iPagina];
    aId[iPagina] = 0;
    aChiave[iPagina].clear();
    sTipo = pagina.sTipo;
    NascondiAltriEditori(pagina);
    if (pagina.pulisci) {
        pagina.pulisci();
    }
    for (const auto& [pulsante, flag] : pagina.pulsanti) {
        pulsante->setEnabled(pulsante == pagina.cmdNuovo);
    }
    for (const auto& [pulsante, flag] : pagina.colori) {
        EditoreRecord::ColoraPulsante(pulsante, false);
    }
    pagina.editore->setVisible(true);
}

void FinestraElenco::DopoRimozione(int iPagina) {
    if (Modello(iPagina).Righe() > 0) {
        SelezionaRiga(0);
    } else {
        NessunaRiga(iPagina);
    }
}

// ---------------------------------------------------------------------------------------------
// The layouts

void FinestraElenco::Disposizione(bool bModifica) {
    for (QPushButton* comando : comandi) {
        comando->setEnabled(!bModifica);
    }
    ListaCorrente()->setEnabled(!bModifica);
    if (SSTab1 != nullptr) {
        SSTab1->setEnabled(!bModifica);
    }
    cmdConferma->setEnabled(bModifica);
    cmdAnnulla->setEnabled(bModifica);
    if (!bModifica) {
        // Back to browsing, the commands follow the flags of the record shown.
        const int iPagina = PaginaCorrente();
        if (aChiave[iPagina].isEmpty() && Modello(iPagina).Righe() == 0 &&
            !pagine[iPagina].bMostraSenzaRighe) {
            NessunaRiga(iPagina);
        } else {
            AbilitaPulsanti(pagine[iPagina]);
        }
        ListaCorrente()->setFocus();
    }
}

// ---------------------------------------------------------------------------------------------
// The commands

void FinestraElenco::Nuovo() {
    const PaginaElenco& pagina = pagine[PaginaCorrente()];
    sStato = StatoNuovo;
    sTipo = pagina.sTipo;
    NascondiAltriEditori(pagina);
    pagina.editore->setVisible(true);
    Disposizione(true);
    pagina.editore->Nuovo();
}

void FinestraElenco::Modifica() {
    const PaginaElenco& pagina = pagine[PaginaCorrente()];
    sStato = StatoModifica;
    sTipo = pagina.sTipo;
    NascondiAltriEditori(pagina);
    pagina.editore->setVisible(true);
    Disposizione(true);
    pagina.editore->Modifica();
}

void FinestraElenco::Conferma() {
    const int iPagina = PaginaCorrente();
    const PaginaElenco& pagina = pagine[iPagina];
    EditoreRecord& editore = *pagina.editore;
    ModelloElenco& modello = Modello(iPagina);
    try {
        if (!editore.CheckMandatoryFields()) {
            return; // the state stays and the user goes on
        }
        if (sStato == StatoNuovo) {
            aId[iPagina] = pagina.inserisci(editore.LeggiDenominazione());
            aChiave[iPagina] = ModelloElenco::Chiave(aId[iPagina]);
        }
    } catch (...) {
        // The new record's row could not be made: the edit goes on.
        MostraErrore(std::current_exception(), objectName(), QString());
        return;
    }
    try {
        editore.Salva(static_cast<long>(aId[iPagina]));
    } catch (...) {
        // The record is as the database kept it: the editor shows it again.
        MostraErrore(std::current_exception(), objectName(), QString());
        editore.Annulla();
        editore.Mostra(static_cast<long>(aId[iPagina]));
    }
    AbilitaPulsanti(pagina);

    const bool bNuovo = sStato == StatoNuovo;
    sStato = StatoMostra;
    Disposizione(false);
    if (bNuovo) {
        // At the end of the list, chosen as by a click.
        const int iRiga = modello.Aggiungi(aId[iPagina], pagina.testoSalvato());
        SelezionaRiga(iRiga);
    } else {
        const int iRiga = modello.RigaDi(aId[iPagina]);
        bool bEsiste = true;
        try {
            bEsiste = RigaEsiste(pagina, aId[iPagina]);
        } catch (...) {
            MostraErrore(std::current_exception(), objectName(), QString());
        }
        if (!bEsiste) {
            // The record is no longer there: another workstation deleted it meanwhile, and
            // nothing was written.
            MsgBox(QStringLiteral("La scheda non esiste più nel database: è stata cancellata da "
                                  "un'altra postazione e le modifiche non sono state salvate."),
                   Pulsanti::Ok, Icona::Esclamazione);
            modello.Rimuovi(iRiga);
            DopoRimozione(iPagina);
        } else {
            modello.ImpostaTesto(iRiga, pagina.testoSalvato());
        }
    }
    ListaCorrente()->setFocus();
}

void FinestraElenco::Annulla() {
    const int iPagina = PaginaCorrente();
    const PaginaElenco& pagina = pagine[iPagina];
    const bool bNuovo = sStato == StatoNuovo;
    const bool bModifica = sStato == StatoModifica;
    sStato = StatoMostra;
    if (bNuovo) {
        pagina.editore->Annulla();
        if (Modello(iPagina).Righe() > 0) {
            SelezionaRiga(0);
        } else {
            NessunaRiga(iPagina);
        }
    } else if (bModifica) {
        Mostra();
    }
    Disposizione(false);
}

bool FinestraElenco::RigaEsiste(const PaginaElenco& pagina, qint64 lId) const {
    // The table and the column come from the page's fixed texts.
    QSqlQuery riga = Sessione::cnn->Esegui(QStringLiteral("SELECT %1 FROM %2 WHERE %1 = ?")
                                               .arg(pagina.sColonnaId, pagina.sTabellaCancella),
                                           {static_cast<qlonglong>(lId)}, objectName());
    const bool bEsiste = riga.next();
    riga.finish();
    return bEsiste;
}

void FinestraElenco::Cancella() {
    const int iPagina = PaginaCorrente();
    const PaginaElenco& pagina = pagine[iPagina];
    ModelloElenco& modello = Modello(iPagina);
    const qint64 lId = aId[iPagina];
    const Risposta risposta = MsgBox(pagina.sDomandaCancella, Pulsanti::SiNo, Icona::Domanda,
                                     pagina.sTitoloCancella + pagina.editore->LeggiDenominazione());
    if (risposta != Risposta::Si) {
        const int iRiga = modello.RigaDi(lId);
        if (iRiga >= 0) {
            bSelezioneInterna = true;
            ListaCorrente()->setCurrentIndex(modello.index(iRiga));
            bSelezioneInterna = false;
        }
        ListaCorrente()->setFocus();
        return;
    }
    try {
        if (RigaEsiste(pagina, lId)) {
            Sessione::cnn->Esegui(QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                                      .arg(pagina.sTabellaCancella, pagina.sColonnaId),
                                  {static_cast<qlonglong>(lId)}, objectName());
        }
    } catch (...) {
        // The row stays.
        MostraErrore(std::current_exception(), objectName(), QStringLiteral("Errore R4"));
        return;
    }
    // A row that another workstation deleted goes from the list as well.
    modello.Rimuovi(modello.RigaDi(lId));
    DopoRimozione(iPagina);
    ListaCorrente()->setFocus();
}

void FinestraElenco::keyPressEvent(QKeyEvent* evento) {
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
