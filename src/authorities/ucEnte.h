#pragma once

// The record of a body that produced records: Soggetti and Enti. Its institutional profile is
// chosen in cmbProfili from ProfiliEnti.txt, whose lines hold the code and its text parted by
// a comma; its years of activity stand in Frame1 and take any four characters.

#include "EditoreProduttore.h"

class ucEnte : public EditoreProduttore {
    Q_OBJECT
public:
    explicit ucEnte(QWidget* parent = nullptr);

    // ", " the seat and the dates in brackets, from Text1(1) and Text1(4).
    QString LeggiEstremi() const override;
    // The index of the first profile whose item data is the code's number, -1 if none.
    int CercaProfiloEnte(const QString& sCodice) const;

private:
    static Tipo Descrizione();
};
