#include "frmNuovoComplesso.h"

#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>

namespace {

// The caller that ties one unit of an analytical inventory to its one complesso.
constexpr int ChiamanteDatoInventariale = 4;

} // namespace

frmNuovoComplesso::frmNuovoComplesso(QWidget* genitore)
    : SelettoreComplessi(QStringLiteral("frmNuovoComplesso"),
                         {"Label4", EtichettaDelChiamante(Sessione::iChiamanteInv), "TextI",
                          "Label1(11)", QStringLiteral("Complessi documentari scelti"), "TextC"},
                         QStringLiteral("Nuovo Complesso"), genitore) {
    setWindowTitle(QStringLiteral("Collegamento ai complessi documentari"));
    Label4 = etichettaInMano;
    TextI = casellaInMano;
    TextC = casellaScelti;
    TextI->setText(Sessione::sDenomInventario);

    Carica();
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
