#include "frmStrutturaCD.h"

#include "records/ucIstituto.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QFrame>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {

const QString TagRadice = QStringLiteral("00");
const QString TagIstituto = QStringLiteral("01");
const QString TagComplesso = QStringLiteral("02");

QPushButton* NuovoComando(QWidget* finestra, const char* nome, const QString& sDidascalia) {
    auto* comando = new QPushButton(sDidascalia, finestra);
    comando->setObjectName(QLatin1String(nome));
    return comando;
}

} // namespace

frmStrutturaCD::frmStrutturaCD(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmStrutturaCD"), genitore) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Complessi documentari"));

    // The two editors in Frame1, one visible at a time.
    auto* pannello = new QVBoxLayout(Frame1);
    pannello->setContentsMargins(0, 0, 0, 0);
    fraIstituto = new ucIstituto(Frame1);
    fraIstituto->setObjectName(QStringLiteral("fraIstituto"));
    fraComplesso = new ucComplesso(Frame1);
    fraComplesso->setObjectName(QStringLiteral("fraComplesso"));
    pannello->addWidget(fraIstituto);
    pannello->addWidget(fraComplesso);
    fraComplesso->hide();

    cmdNuovoIst = NuovoComando(this, "cmdNuovoIst", QStringLiteral("Nuovo Istituto"));
    cmdNuovoCD = NuovoComando(this, "cmdNuovoCD", QStringLiteral("Nuovo Complesso"));
    cmdModifica = NuovoComando(this, "cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando(this, "cmdCancella", QStringLiteral("Cancella"));
    for (QPushButton* comando : {cmdNuovoIst, cmdNuovoCD, cmdModifica, cmdCancella}) {
        RegistraComando(comando);
    }
    connect(cmdModifica, &QPushButton::clicked, this, [this] { cmdModifica_Click(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { cmdCancella_Click(); });

    TipoNodo istituto;
    istituto.sTag = TagIstituto;
    istituto.altriTag = {TagRadice};
    istituto.sTipo = QStringLiteral("istituto");
    istituto.editore = fraIstituto;
    istituto.cmdNuovo = cmdNuovoIst;
    istituto.sImmagineNuovo = QStringLiteral("istituto");
    istituto.sTabella = QStringLiteral("Istituti");
    istituto.sDomandaCancella = QStringLiteral("Sei sicuro di voler cancellare l'Istituto?");
    istituto.sTitoloCancella = QStringLiteral("Cancella Istituto: ");
    istituto.pulsanti = {{cmdNuovoIst, &fraIstituto->OkNuovoIstituto},
                         {cmdNuovoCD, &fraIstituto->OkNuovoComplesso},
                         {cmdCancella, &fraIstituto->OkCancella},
                         {cmdModifica, &fraIstituto->OkModifica}};
    RegistraTipo(istituto);
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

void frmStrutturaCD::showEvent(QShowEvent* evento) {
    FinestraStruttura::showEvent(evento);
    if (bPrimaVisualizzazione) {
        bPrimaVisualizzazione = false;
        // Left and Top 0 in the main form.
        if (auto* cornice = qobject_cast<QMdiSubWindow*>(parentWidget())) {
            cornice->move(0, 0);
        }
    }
}

// ---------------------------------------------------------------------------------------------
// The tree

QList<GruppoAlbero> frmStrutturaCD::Gruppi(const QString& sOrdine) {
    GruppoAlbero istituti;
    istituti.sCondizione = QStringLiteral("ELEM_Tipologia='01'");
    istituti.sImmagine = QStringLiteral("istituto");
    istituti.bPadreNulloERadice = true;
    GruppoAlbero complessi;
    complessi.sCondizione = QStringLiteral("ELEM_Tipologia='02'");
    complessi.sOrdine = QStringLiteral("ELEM_ID_ElementoPadre, ") + sOrdine;
    complessi.sImmagine = QStringLiteral("nolink");
    complessi.sColonnaLink = QStringLiteral("CD_NumeroInventari");
    return {istituti, complessi};
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
