#include "frmEsporta.h"

#include "exchange/Export.h"

frmEsporta::frmEsporta(QWidget* parent)
    : frmTabelleScambio({QStringLiteral("frmEsporta"), QStringLiteral("Esporta"),
                         QStringLiteral("Nome tabella da esportare"), QStringLiteral("Esporta"),
                         QStringLiteral("cmdEsporta"), QStringLiteral("Tabelle esportate"),
                         &Export::TabelleDisponibili},
                        parent) {}

void frmEsporta::Inizia() {
    Export::NumeroTabelle = 0;
    Export::TabelleEsportate.clear();
}

void frmEsporta::EseguiTabella(const QString& sTabella) {
    Export::EsportaTabella(sTabella, [this](const QString& sInCorso, qint64 lRecord) {
        MostraAvanzamento(sInCorso, lRecord);
    });
}

QString frmEsporta::Elenco() const {
    return Export::ElencoTabelleEsportate();
}
