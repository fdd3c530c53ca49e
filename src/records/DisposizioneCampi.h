#pragma once

// What the record forms share in placing their fields: a captioned field on the next row of a
// grid, and the focus chain through the fields in the order of the form.

#include <QGridLayout>
#include <QLabel>
#include <QList>
#include <QWidget>

// The caption on the left of row riga (the field its buddy, both at the top), the field on the
// right; riga moves on to the next row.
inline void MettiCampo(QGridLayout* griglia, int& riga, QLabel* etichetta, QWidget* campo) {
    etichetta->setBuddy(campo);
    griglia->addWidget(etichetta, riga, 0, Qt::AlignTop);
    griglia->addWidget(campo, riga, 1);
    ++riga;
}

// The Tab key goes from each field to the next, in the order given.
inline void CatenaDelFuoco(const QList<QWidget*>& campi) {
    QWidget* precedente = nullptr;
    for (QWidget* campo : campi) {
        if (precedente != nullptr)
            QWidget::setTabOrder(precedente, campo);
        precedente = campo;
    }
}
