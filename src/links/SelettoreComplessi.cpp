#include "SelettoreComplessi.h"

#include "records/ucIstituto.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "structure/frmStrutturaCD.h"

#include <QPushButton>

const QString SelettoreComplessi::TagComplesso = QStringLiteral("02");

SelettoreComplessi::SelettoreComplessi(const QString& sNome, const Caselle& caselle,
                                       const QString& sNuovoCD, QWidget* genitore)
    : SelettoreAlbero(sNome, TagComplesso, caselle, genitore) {
    AggiungiIstituti();
    fraComplesso = new ucComplesso;
    AggiungiEditore(fraComplesso, "fraComplesso");
    cmdNuovoCD = NuovoComando("cmdNuovoCD", sNuovoCD);

    RegistraIstituti({{cmdNuovoCD, &fraIstituto->OkNuovoComplesso}});
    TipoNodo complesso;
    complesso.sTag = TagComplesso;
    complesso.sTipo = QStringLiteral("complesso");
    complesso.editore = fraComplesso;
    complesso.cmdNuovo = cmdNuovoCD;
    complesso.sImmagineNuovo = QStringLiteral("nolink");
    complesso.pulsanti = {{cmdNuovoCD, &fraComplesso->OkNuovoComplesso},
                          {cmdModifica, &fraComplesso->OkModifica}};
    RegistraTipo(complesso);
}

SelettoreComplessi::~SelettoreComplessi() = default;

void SelettoreComplessi::Carica() {
    fraComplesso->Init(true, this);
    Avvia(false);
}

void SelettoreComplessi::CaricaAlbero(const QString&) {
    if (!CaricaGruppi(frmStrutturaCD::Gruppi(frmStrutturaCD::OrdineAlfabetico()), false)) {
        return;
    }
    // The producers' images come last, and a failure there has a box of its own: the tree
    // stands as loaded.
    try {
        CaricamentoAlbero::ApplicaSoggetti(Modello(), *Sessione::cnn);
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T5"));
    }
}

void SelettoreComplessi::MostraComplesso() {
    MostraTipo(*TipoDelTag(TagComplesso));
}

long SelettoreComplessi::IstitutoDellEditore(const TipoNodo&) const {
    return fraComplesso->ID_Istituto;
}

void SelettoreComplessi::AssegnaIstituto(const TipoNodo&, long lIdIstitutoScelto) {
    fraComplesso->AssegnaIstituto(lIdIstitutoScelto);
}

void SelettoreComplessi::NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) {
    if (tipo.editore == fraComplesso) {
        fraComplesso->Nuovo(sTagPadre, static_cast<long>(lIdCorrente));
    } else {
        FinestraStruttura::NuovoNellEditore(tipo, sTagPadre);
    }
}

QString SelettoreComplessi::GetDenon() {
    const QModelIndex nodo = NodoCorrente();
    return nodo.isValid() ? Modello().Testo(nodo) : QString();
}

void SelettoreComplessi::ChkSogg() {
    FinestraStruttura::ChkSogg();
}

void SelettoreComplessi::ChkLinks() {
    FinestraStruttura::ChkLinks();
}
