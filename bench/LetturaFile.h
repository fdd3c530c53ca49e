#pragma once

// A whole text file of the sources (a schema script), for the benchmarks.

#include "session/Errore.h"

#include <QFile>
#include <QString>

inline QString LeggiFile(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        throw Errore(QStringLiteral("bench"),
                     QStringLiteral("Impossibile leggere %1").arg(percorso));
    return QString::fromUtf8(file.readAll());
}
