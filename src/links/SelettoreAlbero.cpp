#include "SelettoreAlbero.h"

#include "records/ucIstituto.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ProcedureComuni.h"
#include "structure/TipoIstituto.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

SelettoreAlbero::SelettoreAlbero(const QString& sNome, const QString& sTag, const Caselle& caselle,
                                 QWidget* genitore)
    : FinestraStruttura(sNome, genitore)
    , sTagScelto(sTag)
    , scelta(caselle.scelta) {
    Modello().ImpostaSpuntabile(true);
    connect(&Modello(), &ModelloAlbero::SpuntaCambiata, this,
            [this](const QModelIndex& nodo, bool bSpuntato) { NodeCheck(nodo, bSpuntato); });

    // Above the tree and the editor: the record in hand and the names chosen, those named.
    auto* riquadro = new QGridLayout;
    if (caselle.sEtichettaInMano != nullptr) {
        etichettaInMano = new QLabel(caselle.sDidascaliaInMano, this);
        etichettaInMano->setObjectName(QLatin1String(caselle.sEtichettaInMano));
        casellaInMano = new QLineEdit(this);
        casellaInMano->setObjectName(QLatin1String(caselle.sCasellaInMano));
        casellaInMano->setEnabled(false);
        riquadro->addWidget(etichettaInMano, 0, 0);
        riquadro->addWidget(casellaInMano, 0, 1);
    }
    if (caselle.sEtichettaScelti != nullptr) {
        etichettaScelti = new QLabel(caselle.sDidascaliaScelti, this);
        etichettaScelti->setObjectName(QLatin1String(caselle.sEtichettaScelti));
        casellaScelti = new QPlainTextEdit(this);
        casellaScelti->setObjectName(QLatin1String(caselle.sCasellaScelti));
        casellaScelti->setMaximumHeight(casellaScelti->fontMetrics().lineSpacing() * 4);
        riquadro->addWidget(etichettaScelti, 1, 0, Qt::AlignTop);
        riquadro->addWidget(casellaScelti, 1, 1);
    }
    if (auto* principale = qobject_cast<QVBoxLayout*>(layout())) {
        principale->insertLayout(0, riquadro);
    }

    // The edit of the record shown; the window adds the commands that make its kinds.
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });

    cmdCollega = NuovoComando("cmdCollega", QStringLiteral("Collega"));
    cmdCollega->setEnabled(scelta == Scelta::Unica);
    cmdAnnullaCol = NuovoComando("cmdAnnullaCol", QStringLiteral("Annulla collegamento"));
    connect(cmdCollega, &QPushButton::clicked, this, [this] { cmdCollega_Click(); });
    connect(cmdAnnullaCol, &QPushButton::clicked, this, [this] { Chiudi(false); });
}

SelettoreAlbero::~SelettoreAlbero() {
    // The unload clears the open flag of the finding aids' window, as it always did.
    if (bSvuotaStrutturaIN) {
        Sessione::bFrmStrutturaINAperto = false;
    }
}

void SelettoreAlbero::AggiungiIstituti() {
    fraIstituto = new ucIstituto;
    AggiungiEditore(fraIstituto, "fraIstituto");
    cmdNuovoIst = NuovoComando("cmdNuovoIst", QStringLiteral("Nuovo Istituto"));
}

void SelettoreAlbero::RegistraIstituti(
    const QList<std::pair<QPushButton*, const bool*>>& altriPulsanti) {
    // A picker deletes nothing: the institute's kind has no delete here.
    TipoNodo istituto = TipoIstituto(fraIstituto, cmdNuovoIst, cmdModifica, nullptr, altriPulsanti);
    istituto.pulsanti.removeIf([](const auto& pulsante) { return pulsante.first == nullptr; });
    istituto.sTabella.clear();
    RegistraTipo(istituto);
    fraIstituto->Init();
}

long SelettoreAlbero::IstitutoDellEditore(const TipoNodo&) const {
    return 0;
}

void SelettoreAlbero::AssegnaIstituto(const TipoNodo&, long) {}

void SelettoreAlbero::DopoMostra(const TipoNodo& tipo) {
    lIdIstituto =
        tipo.editore == fraIstituto ? fraIstituto->ID_Istituto : IstitutoDellEditore(tipo);
}

void SelettoreAlbero::PreparaEditore(const TipoNodo& tipo) {
    // The institute in hand goes to the editor; an edited record keeps its own seats.
    if (fraIstituto != nullptr && tipo.editore == fraIstituto) {
        fraIstituto->AssegnaIstituto(lIdIstituto);
    } else if (sStato == QStringLiteral("nuovo")) {
        AssegnaIstituto(tipo, lIdIstituto);
    }
}

// ---------------------------------------------------------------------------------------------
// The ticks

void SelettoreAlbero::NodeCheck(const QModelIndex& nodo, bool bSpuntato) {
    if (bInNodeCheck || !nodo.isValid()) {
        return;
    }
    if (Modello().Tag(nodo) != sTagScelto) {
        // Not of the kind to choose: the tick is undone at once, and nothing else changes.
        lIdDaTogliere = Modello().Id(nodo);
        if (bSpuntato) {
            bInNodeCheck = true;
            Modello().ImpostaSpunta(nodo, false);
            bInNodeCheck = false;
        }
        return;
    }
    if (scelta == Scelta::Unica) {
        SegnaScelta(nodo, bSpuntato);
        if (bSpuntato) {
            SelezionaNodo(nodo);
        }
        return;
    }
    SegnaSpunta(aScelti, Modello().Id(nodo), bSpuntato);
    cmdCollega->setEnabled(SceltiPieni() > 0);
    RicostruisciScelti();
}

bool SelettoreAlbero::Scegli(qint64 lId) {
    const QModelIndex nodo = Modello().Trova(lId);
    if (!nodo.isValid() || Modello().Tag(nodo) != sTagScelto) {
        return false;
    }
    Modello().ImpostaSpunta(nodo, true);
    SegnaScelta(nodo, true);
    ApriFinoA(nodo);
    return true;
}

void SelettoreAlbero::SegnaScelta(const QModelIndex& nodo, bool bSpuntato) {
    // The node chosen before loses its tick.
    const qint64 lPrima = SegnaSceltaUnica(lIdSceltaUnica, Modello().Id(nodo), bSpuntato);
    if (lPrima != 0) {
        Modello().ImpostaSpunta(Modello().Trova(lPrima), false);
    }
    RicostruisciScelti();
}

void SelettoreAlbero::ApriFinoA(const QModelIndex& nodo) {
    if (!nodo.isValid()) {
        return;
    }
    QList<QModelIndex> padri;
    for (QModelIndex padre = nodo.parent(); padre.isValid(); padre = padre.parent()) {
        padri.prepend(padre);
    }
    for (const QModelIndex& padre : std::as_const(padri)) {
        tvwDB->expand(padre);
    }
    tvwDB->expand(nodo);
    SelezionaNodo(nodo);
}

void SelettoreAlbero::RicostruisciScelti() {
    if (casellaScelti == nullptr) {
        return;
    }
    QStringList nomi;
    for (const QModelIndex& nodo : Modello().NodiSpuntati()) {
        nomi.append(Modello().Testo(nodo).trimmed());
    }
    casellaScelti->setPlainText(nomi.join(QStringLiteral(", ")));
}

void SelettoreAlbero::BloccaScelti() {
    if (casellaScelti == nullptr) {
        return;
    }
    casellaScelti->setReadOnly(true);
}

// ---------------------------------------------------------------------------------------------
// The end

bool SelettoreAlbero::ScriviInTransazione(const std::function<void()>& lavoro) {
    const QString sSorgente = objectName() + QStringLiteral(".cmdCollega");
    try {
        if (!Sessione::cnn) {
            throw Errore(sSorgente, QStringLiteral("La connessione al database è chiusa."));
        }
        InTransazione(Sessione::cnn->Db(), sSorgente, lavoro);
        return true;
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), sSorgente).testo(), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore N2"));
        return false;
    }
}

bool SelettoreAlbero::CollegaScelti(const std::function<bool(long lScelto)>& collega, int& iEsito) {
    iEsito = 0;
    bool bAggiunto = false;
    const bool bScritto = ScriviInTransazione([&] {
        for (const qint64 lScelto : std::as_const(aScelti)) {
            if (lScelto != 0 && collega(static_cast<long>(lScelto))) {
                bAggiunto = true;
            }
        }
    });
    if (bScritto && bAggiunto) {
        iEsito = 1;
    }
    return bScritto;
}

void SelettoreAlbero::cmdCollega_Click() {
    if (Collega()) {
        Chiudi(true);
    }
}

void SelettoreAlbero::Chiudi(bool bAccetta) {
    if (auto* dialogo = qobject_cast<QDialog*>(parentWidget())) {
        if (bAccetta) {
            dialogo->accept();
        } else {
            dialogo->reject();
        }
    } else {
        close();
    }
}
