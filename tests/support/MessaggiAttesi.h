#pragma once

// What the tests look for in the boxes the scripted platform recorded.

#include "PiattaformaScriptata.h"

#include <QStringList>
#include <QtTest>

// The texts of the boxes shown, in order.
inline QStringList TestiDeiMessaggi(const PiattaformaScriptata& seam) {
    QStringList testi;
    for (const Messaggio& m : seam.Messaggi())
        testi << m.sTesto;
    return testi;
}

// The error boxes shown (the critical icon), in order, and their titles.
inline QList<Messaggio> Errori(const PiattaformaScriptata& seam) {
    QList<Messaggio> errori;
    for (const Messaggio& m : seam.Messaggi()) {
        if (m.icona == Icona::Critica)
            errori << m;
    }
    return errori;
}

inline QStringList TitoliDegliErrori(const PiattaformaScriptata& seam) {
    QStringList titoli;
    for (const Messaggio& m : Errori(seam))
        titoli << m.sTitolo;
    return titoli;
}

// The one box shown: a question with Yes and No, with that title and that text.
inline void UnaDomanda(const PiattaformaScriptata& seam, const QString& sTitolo,
                       const QString& sTesto) {
    const QList<Messaggio> messaggi = seam.Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTitolo, sTitolo);
    QCOMPARE(messaggi[0].sTesto, sTesto);
    QCOMPARE(messaggi[0].pulsanti, Pulsanti::SiNo);
    QCOMPARE(messaggi[0].icona, Icona::Domanda);
}
