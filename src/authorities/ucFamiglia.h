#pragma once

// The record of a family that produced records: Soggetti and Famiglie. Its years of existence
// stand in Frame1 and take any four characters.

#include "EditoreProduttore.h"

class ucFamiglia : public EditoreProduttore {
    Q_OBJECT
public:
    explicit ucFamiglia(QWidget* parent = nullptr);

    // ", " the titles and the dates in brackets, from Text1(1) and Text1(4).
    QString LeggiEstremi() const override;

private:
    static Tipo Descrizione();
};
