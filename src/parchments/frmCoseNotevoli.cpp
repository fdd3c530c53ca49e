#include "frmCoseNotevoli.h"

#include "session/Sessione.h"

frmCoseNotevoli::frmCoseNotevoli(QWidget* parent)
    : ElencoTesti(DescrizioneDialogo(), parent) {}

ElencoTesti::Descrizione frmCoseNotevoli::DescrizioneDialogo() {
    Descrizione d;
    d.sNome = QStringLiteral("frmCoseNotevoli");
    d.sCaption = QStringLiteral("Cose Notevoli");
    d.sIntestazione = QStringLiteral("Cose Notevoli ");
    d.sEtichetta = QStringLiteral("Cosa Notevole");
    d.sNuovo = QStringLiteral("Nuova Cosa Notevole");
    d.sModifica = QStringLiteral("Modifica Cosa Notevole");
    d.sCancella = QStringLiteral("Cancella Cosa Notevole");
    d.sMessaggioVuoto = QStringLiteral("Inserire Cosa notevole");
    d.tabella = [] {
        return Tabella{QStringLiteral("DICoseNotevoli"), QStringLiteral("ID_DICosaNotevole"),
                       QStringLiteral("ID_DatoInventariale"), QStringLiteral("Descrizione")};
    };
    d.idRecord = [] {
        return static_cast<qint64>(Sessione::lIdDatoInventariale);
    };
    return d;
}
