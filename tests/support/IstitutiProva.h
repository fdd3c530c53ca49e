#pragma once

// Institutes and their places made for a test: an element of kind "01" whose row of Istituti
// holds the kind of place ("01" an institute, "03" a seat, "04" a warehouse) and the name.

#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QSqlQuery>
#include <QString>
#include <QVariant>

namespace IstitutiProva {

// The element of the institute (under lIdPadre when above 0).
inline long Crea(const Connessione& cnn, const QString& sNome, const QString& sTipologia,
                 long lIdPadre = 0) {
    const long id = ArchivioElementi::Crea(cnn, QStringLiteral("01"), sNome, lIdPadre);
    cnn.Esegui(QStringLiteral("UPDATE Istituti SET Tipologia = ?, Denominazione = ? "
                              "WHERE ID_Elemento = ?"),
               {sTipologia, sNome, QVariant(qlonglong(id))});
    return id;
}

// The key of the institute's row (ID_Istituto), 0 when there is none.
inline long IdIstituto(const Connessione& cnn, long lIdElemento) {
    QSqlQuery riga =
        cnn.Esegui(QStringLiteral("SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = ?"),
                   {QVariant(qlonglong(lIdElemento))});
    return riga.next() ? static_cast<long>(riga.value(0).toLongLong()) : 0;
}

} // namespace IstitutiProva
