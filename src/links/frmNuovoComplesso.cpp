#include "frmNuovoComplesso.h"

#include "records/ucIstituto.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "structure/frmStrutturaCD.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>

namespace {

const QString TagComplesso = QStringLiteral("02");
// The caller that ties one unit of an analytical inventory to its one complesso.
constexpr int ChiamanteDatoInventariale = 4;

} // namespace

frmNuovoComplesso::frmNuovoComplesso(QWidget* genitore)
    : SelettoreAlbero(QStringLiteral("frmNuovoComplesso"), TagComplesso,
                      {"Label4", EtichettaDelChiamante(Sessione::iChiamanteInv), "TextI",
                       "Label1(11)", QStringLiteral("Complessi documentari scelti"), "TextC"},
                      genitore) {
    setWindowTitle(QStringLiteral("Collegamento ai complessi documentari"));
    Label4 = etichettaInMano;
    TextI = casellaInMano;
    TextC = casellaScelti;
    TextI->setText(Sessione::sDenomInventario);

    AggiungiIstituti();
    fraComplesso = new ucComplesso;
    AggiungiEditore(fraComplesso, "fraComplesso");
    cmdNuovoCD = NuovoComando("cmdNuovoCD", QStringLiteral("Nuovo Complesso"));

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

    // Load: the editors, the complesso's without its link buttons, then the tree.
    fraComplesso->Init(true, this);
    Avvia(false);
}

frmNuovoComplesso::~frmNuovoComplesso() = default;

QString frmNuovoComplesso::EtichettaDelChiamante(int iChiamante) {
    switch (iChiamante) {
    case 1:
        return QStringLiteral("Strumento di ricerca selezionato");
    case 2:
        return QStringLiteral("Pergamena selezionata");
    default:
        return QStringLiteral("Inventario base selezionato");
    }
}

void frmNuovoComplesso::bLockSelCompl() {
    BloccaScelti();
}

void frmNuovoComplesso::CaricaAlbero(const QString&) {
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

void frmNuovoComplesso::MostraComplesso() {
    MostraTipo(*TipoDelTag(TagComplesso));
}

long frmNuovoComplesso::IstitutoDellEditore(const TipoNodo&) const {
    return fraComplesso->ID_Istituto;
}

void frmNuovoComplesso::AssegnaIstituto(const TipoNodo&, long lIdIstitutoScelto) {
    fraComplesso->AssegnaIstituto(lIdIstitutoScelto);
}

void frmNuovoComplesso::NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) {
    if (tipo.editore == fraComplesso) {
        fraComplesso->Nuovo(sTagPadre, static_cast<long>(lIdCorrente));
    } else {
        FinestraStruttura::NuovoNellEditore(tipo, sTagPadre);
    }
}

QString frmNuovoComplesso::GetDenon() {
    const QModelIndex nodo = NodoCorrente();
    return nodo.isValid() ? Modello().Testo(nodo) : QString();
}

void frmNuovoComplesso::ChkSogg() {
    FinestraStruttura::ChkSogg();
}

void frmNuovoComplesso::ChkLinks() {
    FinestraStruttura::ChkLinks();
}

bool frmNuovoComplesso::Collega() {
    const long lIdInMano = Sessione::lIdInventario;
    if (Sessione::iChiamanteInv < ChiamanteDatoInventariale) {
        return CollegaScelti(
            [&](long lScelto) {
                return ArchivioElementi::Collega(*Sessione::cnn, lScelto, lIdInMano);
            },
            Sessione::iEsitoLinkCD);
    }
    // A unit has one complesso, held in its own row: only when a single complesso was ever
    // ticked; otherwise nothing is done and nothing is said.
    if (Scelti().size() != 1 || Scelti().constFirst() == 0) {
        return true;
    }
    const long lIdScelto = static_cast<long>(Scelti().constFirst());
    const bool bScritto = ScriviInTransazione([&] {
        const QString sSorgente = QStringLiteral("frmNuovoComplesso.cmdCollega");
        QSqlQuery complesso = Sessione::cnn->Esegui(
            QStringLiteral("SELECT ID_Elemento FROM ComplessiDoc WHERE ID_Elemento = ?"),
            {static_cast<qlonglong>(lIdScelto)}, sSorgente);
        if (!complesso.next()) {
            throw Errore(sSorgente, QStringLiteral("Il complesso documentario %1 non esiste più "
                                                   "nel database: il collegamento non è stato "
                                                   "creato.")
                                        .arg(lIdScelto));
        }
        complesso.finish();
        const QSqlQuery scrittura = Sessione::cnn->Esegui(
            QStringLiteral("UPDATE DatiInventariali SET Id_ElemComplDoc = ? WHERE Id_Elemento = ?"),
            {static_cast<qlonglong>(lIdScelto), static_cast<qlonglong>(lIdInMano)}, sSorgente);
        if (scrittura.numRowsAffected() == 0) {
            throw Errore(sSorgente, QStringLiteral("L'unità %1 non esiste più nel database: il "
                                                   "collegamento non è stato creato.")
                                        .arg(lIdInMano));
        }
    });
    if (bScritto) {
        Sessione::lIdElemLinkInv = lIdScelto;
        Sessione::iEsitoLinkCD = 1;
    }
    return bScritto;
}
