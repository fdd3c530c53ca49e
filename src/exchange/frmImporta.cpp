#include "frmImporta.h"

#include "exchange/Import.h"

#include <QApplication>

frmImporta::frmImporta(QWidget* parent)
    : frmTabelleScambio({QStringLiteral("frmImporta"), QStringLiteral("Importa"),
                         QStringLiteral("Nome tabella da importare"), QStringLiteral("Importa"),
                         QStringLiteral("cmdImporta"), QStringLiteral("Tabelle importate"),
                         &Import::TabelleOfferte},
                        parent) {}

void frmImporta::Inizia() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Import::TabelleImportate.clear();
}

void frmImporta::EseguiTabella(const QString& sTabella) {
    setWindowTitle(QStringLiteral("Importa: ") + sTabella + QStringLiteral(" ..."));
    MostraAvanzamento(sTabella, 0);
    Import::ImportaTabella(
        sTabella, [this, sTabella](qint64 lRecord) { MostraAvanzamento(sTabella, lRecord); });
}

void frmImporta::Termina() {
    QApplication::restoreOverrideCursor();
}

QString frmImporta::Elenco() const {
    return Import::ElencoTabelleImportate();
}
