#pragma once

// The record of a person who produced records: Soggetti and Persone. The dates of birth and
// death are full dates, checked when their box is left; the years of activity stand in Frame1.

#include "EditoreProduttore.h"

class ucPersona : public EditoreProduttore {
    Q_OBJECT
public:
    explicit ucPersona(QWidget* parent = nullptr);

    // ", (" places and dates of birth " - " of death ")", from Text1(4), Text1(5), Text1(2),
    // Text1(3); "" when all four are empty.
    QString LeggiEstremi() const override;

private:
    static Tipo Descrizione();
};
