#include "frmNuovoInventario.h"

#include "records/ucInventario.h"
#include "records/ucIstituto.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "structure/frmStrutturaIN.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

const QString TagInventario = QStringLiteral("03");

} // namespace

frmNuovoInventario::frmNuovoInventario(QWidget* genitore)
    : SelettoreAlbero(QStringLiteral("frmNuovoInventario"), TagInventario,
                      {"Label1", QStringLiteral("Complesso documentario selezionato"), "TextC",
                       "Label2", QStringLiteral("Strumenti di ricerca scelti"), "TextI"},
                      genitore) {
    setWindowTitle(QStringLiteral("Collegamento agli strumenti di ricerca"));
    Label1 = etichettaInMano;
    TextC = casellaInMano;
    Label2 = etichettaScelti;
    TextI = casellaScelti;
    TextC->setText(Sessione::sDenomComplesso);

    AggiungiIstituti();
    fraInventario = new ucInventario;
    AggiungiEditore(fraInventario, "fraInventario");
    cmdNuovoInv = NuovoComando("cmdNuovoInv", QStringLiteral("Nuovo strum.ricerca"));

    RegistraIstituti({{cmdNuovoInv, &fraIstituto->OkNuovoInventario}});
    TipoNodo inventario;
    inventario.sTag = TagInventario;
    inventario.sTipo = QStringLiteral("inventario");
    inventario.editore = fraInventario;
    inventario.cmdNuovo = cmdNuovoInv;
    inventario.sImmagineNuovo = QStringLiteral("nolink");
    inventario.pulsanti = {{cmdNuovoInv, &fraInventario->OkNuovoInventario},
                           {cmdModifica, &fraInventario->OkModifica}};
    RegistraTipo(inventario);

    // Load: the editors, then the tree.
    fraInventario->Init();
    Avvia(false);
}

frmNuovoInventario::~frmNuovoInventario() = default;

void frmNuovoInventario::bLockInvSet() {
    BloccaScelti();
}

void frmNuovoInventario::CaricaAlbero(const QString&) {
    CaricaGruppi(frmStrutturaIN::Gruppi(), false);
}

void frmNuovoInventario::MostraInventario() {
    MostraTipo(*TipoDelTag(TagInventario));
}

long frmNuovoInventario::IstitutoDellEditore(const TipoNodo&) const {
    return fraInventario->ID_Istituto;
}

void frmNuovoInventario::AssegnaIstituto(const TipoNodo&, long lIdIstitutoScelto) {
    fraInventario->AssegnaIstituto(lIdIstitutoScelto);
}

bool frmNuovoInventario::Collega() {
    // The complesso stands in ID_Elemento and the finding aid in ID_ElementoLink, as from the
    // other side.
    const long lIdInMano = Sessione::lIdComplesso;
    return CollegaScelti(
        [&](long lScelto) { return ArchivioElementi::Collega(*Sessione::cnn, lIdInMano, lScelto); },
        Sessione::iEsitoLinkInv);
}
