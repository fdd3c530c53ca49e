#pragma once

// The list of the tables the schema folder offers (whatever the case of "SCH"), all checked,
// and the import of the checked ones, with the table in hand and the records done.

#include "exchange/frmTabelleScambio.h"

class frmImporta : public frmTabelleScambio {
    Q_OBJECT
public:
    explicit frmImporta(QWidget* parent = nullptr);

    void cmdImportaClick() { Esegui(); }

protected:
    void Inizia() override;
    void EseguiTabella(const QString& sTabella) override;
    void Termina() override;
    QString Elenco() const override;
};
