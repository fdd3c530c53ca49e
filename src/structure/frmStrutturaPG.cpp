#include "frmStrutturaPG.h"

#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Sessione.h"

#include <QPushButton>

namespace {

const QString TagInventario = QStringLiteral("03");
const QString TagPergamena = QStringLiteral("05");
const QString TagSigillo = QStringLiteral("06");
const QString ImmagineSigillo = QStringLiteral("sigilli");

} // namespace

frmStrutturaPG::frmStrutturaPG(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmStrutturaPG"), genitore) {
    lModo = Sessione::lModoStrutturaPG;
    lIdInventarioCorrente = Sessione::lIdInventario;
    const bool bPergamene = lModo == 0;
    setWindowTitle(bPergamene ? QStringLiteral("Pergamene") : QStringLiteral("Sigilli staccati"));

    fraInventario = new ucInventario;
    AggiungiEditore(fraInventario, "fraInventario");
    fraPergamena = new ucPergamena;
    AggiungiEditore(fraPergamena, "fraPergamena");
    fraSigillo = new ucSigillo;
    AggiungiEditore(fraSigillo, "fraSigillo");

    cmdNuovaPG = NuovoComando("cmdNuovaPG", QStringLiteral("Nuova Pergamena"));
    cmdNuovoSG = NuovoComando("cmdNuovoSG", QStringLiteral("Nuovo Sigillo"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] {
        Cancella();
        // The finding aid itself deleted: nothing is left to show.
        if (!Modello().Radice().isValid()) {
            SenzaAlbero();
        }
    });
    // The seals alone make no parchment: the command is off and out of sight, and the seal's
    // command takes its place.
    if (!bPergamene) {
        cmdNuovaPG->setEnabled(false);
        TieniNascosto(cmdNuovaPG);
    }
    // After a link dialog of a parchment or a seal, the delete follows the record.
    for (EditoreRecord* editore : std::initializer_list<EditoreRecord*>{fraPergamena, fraSigillo}) {
        connect(editore, &EditoreRecord::EventoStato, this,
                [this, editore] { cmdCancella->setEnabled(editore->OkCancella); });
    }

    TipoNodo inventario =
        TipoDelloStrumento(TagInventario, "inventario", fraInventario, "nolink", "Inventari",
                           "Sei sicuro di voler cancellare l'inventario?",
                           "Cancella Inventario: ", cmdCancella, cmdModifica);
    // Under the finding aid a seal is made only among the seals alone.
    inventario.pulsanti.append({cmdNuovaPG, &TipoNodo::Sempre});
    if (!bPergamene) {
        inventario.pulsanti.append({cmdNuovoSG, &TipoNodo::Sempre});
    }
    RegistraTipo(inventario);
    TipoNodo pergamena =
        TipoDelloStrumento(TagPergamena, "pergamena", fraPergamena, "pergamena", "Pergamene",
                           "Sei sicuro di voler cancellare la pergamena?",
                           "Cancella Pergamena: ", cmdCancella, cmdModifica);
    pergamena.cmdNuovo = cmdNuovaPG;
    pergamena.pulsanti += {{cmdNuovaPG, &TipoNodo::Sempre}, {cmdNuovoSG, &TipoNodo::Sempre}};
    RegistraTipo(pergamena);
    // A seal has no sons: both commands of New, which the other kinds list, are off for it.
    TipoNodo sigillo = TipoDelloStrumento(TagSigillo, "sigillo", fraSigillo, "sigilli", "Sigilli",
                                          "Sei sicuro di voler cancellare il sigillo?",
                                          "Cancella Pergamena: ", cmdCancella, cmdModifica);
    sigillo.cmdNuovo = cmdNuovoSG;
    RegistraTipo(sigillo);

    // Load: the editors (a seal here never chooses its relation to the document in a list),
    // the size, then the tree.
    fraInventario->Init();
    fraPergamena->Init();
    fraSigillo->bAttaccato(false);
    fraSigillo->Init();
    DimensioniDalPrincipale();
    Avvia(false);
}

frmStrutturaPG::~frmStrutturaPG() {
    Sessione::bFrmStrutturaINAperto = false;
}

// ---------------------------------------------------------------------------------------------
// The tree

GruppoAlbero frmStrutturaPG::Gruppo(long lIdInventarioRecord, long lModoFinestra) {
    GruppoAlbero gruppo;
    gruppo.sVista = QStringLiteral("AlberoPergamene");
    // Both kinds hang on the finding aid by the key of its row of Inventari, in either mode.
    gruppo.sCondizione = QStringLiteral("(PG_ID_Inventario = ? OR SG_ID_Inventario = ?)");
    gruppo.valori = {static_cast<qlonglong>(lIdInventarioRecord),
                     static_cast<qlonglong>(lIdInventarioRecord)};
    gruppo.sImmagine = ImmagineSigillo;
    if (lModoFinestra == 0) {
        gruppo.tipi = {{TagPergamena, QString(), QStringLiteral("pergamena")}};
    }
    // A Null parent has no node here: the root is the finding aid, not "0 ID".
    gruppo.bPadreNulloERadice = false;
    // The units are not in this tree: what lies in a unit hangs on the finding aid.
    gruppo.bPadreAssenteERadice = true;
    return gruppo;
}

void frmStrutturaPG::CaricaAlbero(const QString&) {
    RadiceAlbero radice;
    if (!LeggiStrumentoRadice(QStringLiteral("SELECT INV_ID_Inventario, ELEM_Denominazione FROM "
                                             "AlberoGlobale WHERE ELEM_ID_Elemento = ?"),
                              lIdInventarioCorrente, lIdInventarioRecord, radice.sTesto)) {
        return;
    }
    radice.lId = lIdInventarioCorrente;
    radice.sImmagine = QStringLiteral("nolink");
    radice.sTag = TagInventario;
    CaricaGruppi({Gruppo(lIdInventarioRecord, lModo)}, false, radice);
}

// ---------------------------------------------------------------------------------------------
// Showing

void frmStrutturaPG::MostraInventario() {
    MostraTipo(*TipoDelTag(TagInventario));
}

void frmStrutturaPG::MostraPergamena() {
    MostraTipo(*TipoDelTag(TagPergamena));
}

void frmStrutturaPG::MostraSigillo() {
    MostraTipo(*TipoDelTag(TagSigillo));
}

bool frmStrutturaPG::PreparaTipo(const TipoNodo& tipo) {
    if (tipo.editore == fraPergamena) {
        // Here the seals stand in the tree.
        fraPergamena->MostraSigilliVisible(false);
    }
    return true;
}

void frmStrutturaPG::DopoMostra(const TipoNodo& tipo) {
    // A record no longer in the database leaves the finding aid's key as it was.
    long lIdLetto = 0;
    if (tipo.editore == fraPergamena) {
        lIdLetto = fraPergamena->ID_Inventario;
    } else if (tipo.editore == fraSigillo) {
        lIdLetto = fraSigillo->ID_Inventario;
    }
    if (lIdLetto > 0) {
        lIdInventarioRecord = lIdLetto;
    }
}

// ---------------------------------------------------------------------------------------------
// The commands

void frmStrutturaPG::PreparaEditore(const TipoNodo& tipo) {
    if (sStato != QStringLiteral("nuovo")) {
        return;
    }
    if (tipo.editore == fraPergamena) {
        fraPergamena->AssegnaInventario(lIdInventarioRecord);
    } else if (tipo.editore == fraSigillo) {
        if (lModo == 0) {
            // A seal on a parchment: its link to the document at hand.
            fraSigillo->MostraPergameneVisible(true);
        }
        fraSigillo->AssegnaInventario(lIdInventarioRecord);
    }
}

void frmStrutturaPG::NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) {
    // The element under which the new one hangs.
    const auto lIdPadre = static_cast<long>(lIdCorrente);
    if (tipo.editore == fraPergamena) {
        fraPergamena->Nuovo(lIdPadre);
    } else if (tipo.editore == fraSigillo) {
        fraSigillo->Nuovo(lIdPadre);
    } else {
        FinestraStruttura::NuovoNellEditore(tipo, sTagPadre);
    }
}
