#include "frmRegistroPC.h"

#include "TipoIstituto.h"
#include "records/ucIstituto.h"
#include "records/ucVersamento.h"

#include <QPushButton>

namespace {

const QString TagVersamento = QStringLiteral("04");

} // namespace

frmRegistroPC::frmRegistroPC(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmRegistroPC"), genitore) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Nuove acquisizioni"));

    // The two editors in Frame1, one visible at a time.
    fraIstituto = new ucIstituto;
    AggiungiEditore(fraIstituto, "fraIstituto");
    fraVersamento = new ucVersamento;
    AggiungiEditore(fraVersamento, "fraVersamento");

    cmdNuovoVer = NuovoComando("cmdNuovoVer", QStringLiteral("Nuovo Versamento"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });
    // A row deleted in the versamento's list may make the act deletable.
    connect(fraVersamento, &EditoreRecord::EventoStato, this,
            [this] { cmdCancella->setEnabled(fraVersamento->OkCancella); });

    const QString sErroreCancella = QStringLiteral("Errore U4");
    TipoNodo istituto = TipoIstituto(fraIstituto, nullptr, cmdModifica, cmdCancella,
                                     {{cmdNuovoVer, &fraIstituto->OkNuovoVersamento}});
    istituto.sTitoloErroreCancella = sErroreCancella;
    RegistraTipo(istituto);
    TipoNodo versamento;
    versamento.sTag = TagVersamento;
    versamento.sTipo = QStringLiteral("versamento");
    versamento.editore = fraVersamento;
    versamento.cmdNuovo = cmdNuovoVer;
    versamento.sImmagineNuovo = QStringLiteral("versamento");
    versamento.sTabella = QStringLiteral("Versamenti");
    versamento.sDomandaCancella =
        QStringLiteral("Sei sicuro di voler cancellare questo versamento?");
    versamento.sTitoloCancella = QStringLiteral("Cancella Versamento: ");
    versamento.sTitoloErroreCancella = sErroreCancella;
    versamento.bTestoSoloAllaCreazione = true;
    versamento.pulsanti = {{cmdNuovoVer, &fraVersamento->OkNuovoVersamento},
                           {cmdCancella, &fraVersamento->OkCancella},
                           {cmdModifica, &fraVersamento->OkModifica}};
    RegistraTipo(versamento);

    // Load: the editors, then the tree, in its one order.
    fraIstituto->Init();
    fraVersamento->Init();
    Avvia(false);
}

frmRegistroPC::~frmRegistroPC() = default;

QList<GruppoAlbero> frmRegistroPC::Gruppi() {
    // A versamento is taken only by an institute proper.
    GruppoAlbero istituti = GruppoIstituti();
    istituti.sCondizione = QStringLiteral("ELEM_Tipologia = ? AND IST_Tipologia IN (?, ?)");
    istituti.valori = {QStringLiteral("01"), QStringLiteral("01"), QStringLiteral("02")};
    GruppoAlbero versamenti;
    versamenti.sCondizione = QStringLiteral("ELEM_Tipologia = ?");
    versamenti.valori = {TagVersamento};
    versamenti.sImmagine = QStringLiteral("versamento");
    return {istituti, versamenti};
}

void frmRegistroPC::CaricaAlbero(const QString&) {
    CaricaGruppi(Gruppi(), false);
}

void frmRegistroPC::MostraVersamento() {
    MostraTipo(*TipoDelTag(TagVersamento));
}

void frmRegistroPC::DopoMostra(const TipoNodo& tipo) {
    lIdIstituto =
        tipo.editore == fraVersamento ? fraVersamento->ID_Istituto : fraIstituto->ID_Istituto;
}

void frmRegistroPC::PreparaEditore(const TipoNodo& tipo) {
    if (tipo.editore == fraIstituto)
        fraIstituto->AssegnaIstituto(lIdIstituto);
    else
        fraVersamento->AssegnaIstituto(lIdIstituto);
}
