#pragma once

// The list of the tables the schema folder offers, all checked, and the export of the checked
// ones, with the table in hand and the records done.

#include "exchange/frmTabelleScambio.h"

class frmEsporta : public frmTabelleScambio {
    Q_OBJECT
public:
    explicit frmEsporta(QWidget* parent = nullptr);

    void cmdEsportaClick() { Esegui(); }

protected:
    void Inizia() override;
    void EseguiTabella(const QString& sTabella) override;
    QString Elenco() const override;
};
