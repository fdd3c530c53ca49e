#include "frmAltreDenominazioni.h"

#include "session/Sessione.h"

namespace {

ElencoTesti::Tabella Denominazioni(const QString& sTabella, const QString& sChiaveEsterna) {
    return {sTabella, QStringLiteral("ID_Denominazione"), sChiaveEsterna,
            QStringLiteral("AltraDenominazione")};
}

} // namespace

ElencoTesti::Tabella frmAltreDenominazioni::TabellaDelModo(const QString& sTipo) {
    if (sTipo == QLatin1String("CD")) {
        return Denominazioni(QStringLiteral("ComplessiDocDenominazioni"),
                             QStringLiteral("ID_ComplessoDoc"));
    }
    if (sTipo == QLatin1String("IN")) {
        return Denominazioni(QStringLiteral("InventariDenominazioni"),
                             QStringLiteral("ID_Inventario"));
    }
    if (sTipo == QLatin1String("PE")) {
        return Denominazioni(QStringLiteral("PersoneDenominazioni"), QStringLiteral("ID_Persona"));
    }
    if (sTipo == QLatin1String("FA")) {
        return Denominazioni(QStringLiteral("FamiglieDenominazioni"),
                             QStringLiteral("ID_Famiglia"));
    }
    if (sTipo == QLatin1String("EN")) {
        return Denominazioni(QStringLiteral("EntiDenominazioni"), QStringLiteral("ID_Ente"));
    }
    return {};
}

frmAltreDenominazioni::frmAltreDenominazioni(QWidget* parent)
    : ElencoTesti(DescrizioneDialogo(), parent) {}

ElencoTesti::Descrizione frmAltreDenominazioni::DescrizioneDialogo() {
    Descrizione d;
    d.sNome = QStringLiteral("frmAltreDenominazioni");
    d.sCaption = QStringLiteral("Altre Denominazioni");
    d.sIntestazione = QStringLiteral("Altre Denominazioni ");
    d.sEtichetta = QStringLiteral("Altra Denominazione");
    d.iMax = 256;
    d.sNuovo = QStringLiteral("Nuova Denominazione");
    d.sModifica = QStringLiteral("Modifica denominazione");
    d.sCancella = QStringLiteral("Cancella Denominazione");
    d.sMessaggioVuoto = QStringLiteral("Inserire Denominazione");
    // The mode is read at every step, as the opener left it.
    d.tabella = [] {
        return TabellaDelModo(Sessione::sTipoAltreDen);
    };
    d.idRecord = [] {
        return static_cast<qint64>(Sessione::lIdAltreDen);
    };
    return d;
}
