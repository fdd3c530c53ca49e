#include "frmAltreSegnature.h"

#include "session/Sessione.h"

frmAltreSegnature::frmAltreSegnature(QWidget* parent)
    : ElencoTesti(DescrizioneDialogo(), parent) {}

ElencoTesti::Descrizione frmAltreSegnature::DescrizioneDialogo() {
    Descrizione d;
    d.sNome = QStringLiteral("frmAltreSegnature");
    d.sCaption = QStringLiteral("Antiche Segnature");
    d.sIntestazione = QStringLiteral("Antiche segnature ");
    d.sEtichetta = QStringLiteral("Antica Segnatura");
    d.iMax = 128;
    d.sNuovo = QStringLiteral("Nuova segnatura");
    d.sModifica = QStringLiteral("Modifica segnatura");
    d.sCancella = QStringLiteral("Cancella segnatura");
    d.sMessaggioVuoto = QStringLiteral("Inserire Segnatura");
    d.tabella = [] {
        return Tabella{QStringLiteral("PGAltreSegnature"), QStringLiteral("ID_PGAltraSegnatura"),
                       QStringLiteral("ID_Pergamena"), QStringLiteral("Segnatura")};
    };
    d.idRecord = [] {
        return static_cast<qint64>(Sessione::lIdPergamena);
    };
    return d;
}
