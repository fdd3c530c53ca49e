#include "frmStrutturaCD.h"

#include "TipoIstituto.h"
#include "records/ucIstituto.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QPushButton>

namespace {

const QString TagIstituto = QStringLiteral("01");
const QString TagComplesso = QStringLiteral("02");

} // namespace

frmStrutturaCD::frmStrutturaCD(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmStrutturaCD"), genitore) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Complessi documentari"));

    // The two editors in Frame1, one visible at a time.
    fraIstituto = new ucIstituto;
    AggiungiEditore(fraIstituto, "fraIstituto");
    fraComplesso = new ucComplesso;
    AggiungiEditore(fraComplesso, "fraComplesso");

    cmdNuovoIst = NuovoComando("cmdNuovoIst", QStringLiteral("Nuovo Istituto"));
    cmdNuovoCD = NuovoComando("cmdNuovoCD", QStringLiteral("Nuovo Complesso"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { cmdModifica_Click(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { cmdCancella_Click(); });

    RegistraTipo(TipoIstituto(fraIstituto, cmdNuovoIst, cmdModifica, cmdCancella,
                              {{cmdNuovoCD, &fraIstituto->OkNuovoComplesso}}));
    TipoNodo complesso;
    complesso.sTag = TagComplesso;
    complesso.sTipo = QStringLiteral("complesso");
    complesso.editore = fraComplesso;
    complesso.cmdNuovo = cmdNuovoCD;
    complesso.sImmagineNuovo = QStringLiteral("nolink");
    complesso.sTabella = QStringLiteral("ComplessiDoc");
    complesso.sDomandaCancella =
        QStringLiteral("Sei sicuro di voler cancellare il Complesso documentario?");
    complesso.sTitoloCancella = QStringLiteral("Cancella Complesso documentario: ");
    complesso.pulsanti = {{cmdNuovoCD, &fraComplesso->OkNuovoComplesso},
                          {cmdCancella, &fraComplesso->OkCancella},
                          {cmdModifica, &fraComplesso->OkModifica}};
    RegistraTipo(complesso);

    // Load: the editors, then the tree through Ord(1).
    fraIstituto->Init();
    fraComplesso->Init(false, this);
    Avvia(true);
}

frmStrutturaCD::~frmStrutturaCD() = default;

// ---------------------------------------------------------------------------------------------
// The tree

QList<GruppoAlbero> frmStrutturaCD::Gruppi(const QString& sOrdine) {
    GruppoAlbero complessi;
    complessi.sCondizione = QStringLiteral("ELEM_Tipologia='02'");
    complessi.sOrdine = QStringLiteral("ELEM_ID_ElementoPadre, ") + sOrdine;
    complessi.sImmagine = QStringLiteral("nolink");
    complessi.sColonnaLink = QStringLiteral("CD_NumeroInventari");
    return {GruppoIstituti(), complessi};
}

QString frmStrutturaCD::OrdineAlfabetico() {
    const QString sColonna = QStringLiteral("ELEM_Denominazione");
    return Sessione::cnn ? Sessione::cnn->InOrdineAlfabetico(sColonna) : sColonna;
}

QString frmStrutturaCD::OrdineArchivistico() {
    return QStringLiteral("CASE WHEN CD_Ordinamento IS NULL THEN 0 ELSE 1 END, CD_Ordinamento, ") +
           OrdineAlfabetico();
}

QString frmStrutturaCD::OrdineDi(int iOpzione) const {
    return iOpzione == 0 ? OrdineAlfabetico() : OrdineArchivistico();
}

void frmStrutturaCD::CaricaAlbero(const QString& sOrdine) {
    // The tail comes from the two options' fixed texts only.
    const QString sCoda = sOrdine == OrdineAlfabetico() ? OrdineAlfabetico() : OrdineArchivistico();
    CaricaGruppi(Gruppi(sCoda), true);
}

// ---------------------------------------------------------------------------------------------
// Showing

void frmStrutturaCD::MostraComplesso() {
    MostraTipo(*TipoDelTag(TagComplesso));
}

void frmStrutturaCD::DopoMostra(const TipoNodo& tipo) {
    lIdIstituto =
        tipo.editore == fraComplesso ? fraComplesso->ID_Istituto : fraIstituto->ID_Istituto;
}

// ---------------------------------------------------------------------------------------------
// What the complesso record asks

QString frmStrutturaCD::GetDenon() {
    const QModelIndex nodo = NodoCorrente();
    return nodo.isValid() ? Modello().Testo(nodo) : QString();
}

void frmStrutturaCD::ChkSogg() {
    FinestraStruttura::ChkSogg();
}

void frmStrutturaCD::ChkLinks() {
    FinestraStruttura::ChkLinks();
}

// ---------------------------------------------------------------------------------------------
// The commands

void frmStrutturaCD::PreparaEditore(const TipoNodo& tipo) {
    // The institute in hand goes to the editor; an edited complesso keeps its own seats.
    if (tipo.editore == fraIstituto) {
        fraIstituto->AssegnaIstituto(lIdIstituto);
    } else if (sStato == QStringLiteral("nuovo")) {
        fraComplesso->AssegnaIstituto(lIdIstituto);
    }
}

void frmStrutturaCD::NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) {
    if (tipo.editore == fraComplesso) {
        fraComplesso->Nuovo(sTagPadre, static_cast<long>(lIdCorrente));
    } else {
        FinestraStruttura::NuovoNellEditore(tipo, sTagPadre);
    }
}

void frmStrutturaCD::cmdNuovoIst_Click() {
    Nuovo(TagIstituto);
}

void frmStrutturaCD::cmdNuovoCD_Click() {
    Nuovo(TagComplesso);
}

void frmStrutturaCD::cmdModifica_Click() {
    Modifica();
}

void frmStrutturaCD::cmdConferma_Click() {
    Conferma();
}

void frmStrutturaCD::cmdAnnulla_Click() {
    Annulla();
}

void frmStrutturaCD::cmdCancella_Click() {
    Cancella();
}
