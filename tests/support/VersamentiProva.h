#pragma once

// The acts of new acquisitions and their rows, read and written behind the forms' backs.

#include "store/Connessione.h"

#include <QSqlQuery>
#include <QString>
#include <QVariant>

// The key in Versamenti of an act's element (0 when it has no row there).
inline qint64 IdVersamento(const Connessione& cnn, qint64 idElemento) {
    QSqlQuery riga =
        cnn.Esegui(QStringLiteral("SELECT ID_Versamento FROM Versamenti WHERE ID_Elemento = ?"),
                   {qlonglong(idElemento)});
    return riga.next() ? riga.value(0).toLongLong() : 0;
}

// A row of the act with that name; its key.
inline qint64 NuovaRigaVersamento(const Connessione& cnn, qint64 idVersamento,
                                  const QString& sNome) {
    return cnn.Inserisci(QStringLiteral("RigheVersamento"), QStringLiteral("ID_RigaVersamento"),
                         {QStringLiteral("ID_Versamento"), QStringLiteral("Denominazione")},
                         {qlonglong(idVersamento), sNome});
}
