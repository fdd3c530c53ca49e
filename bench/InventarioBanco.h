#pragma once

// The large finding aid of the analytical inventory's benchmarks: an institute, its fondo and a
// finding aid linked to it with N units in four levels (serie, sottoserie, buste, fascicoli), a
// parchment under every fourth fascicolo up to N/5 and a seal on every fourth parchment (N/20),
// parents before sons, loaded by the bulk path in a few transactions.

#include "ArchivioBanco.h"

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace InventarioBanco {

struct Inventario {
    qint64 lElemento = 0;
    long lInventario = 0;
    qint64 unita = 0;
    qint64 pergamene = 0;
    QList<qint64> sigilli;
};

// The whole of it on the session's kind of database; ANALYZE at the end.
inline Inventario Costruisci(const Connessione& cnn, qint64 quante) {
    Inventario inv;
    QSqlDatabase db = cnn.Db();
    db.transaction();
    ArchivioBanco::CaricoElementi elementi(cnn, 1);
    const qint64 istituto = elementi.Crea("01", QStringLiteral("Archivio di Stato di Lucca"), 0);
    const qint64 fondo = elementi.Crea("02", QStringLiteral("Fondo Guinigi"), istituto);
    inv.lElemento = elementi.Crea("03", QStringLiteral("Inventario Guinigi"), istituto);
    elementi.Fine();
    cnn.Esegui(QStringLiteral("INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) "
                              "VALUES (?, ?, '')"),
               {fondo, inv.lElemento});
    qint64 fascicoli = 0;
    for (int s = 1; inv.unita < quante; ++s) {
        const qint64 serie = elementi.Crea("07", QStringLiteral("Serie %1").arg(s), inv.lElemento);
        ++inv.unita;
        for (int ss = 1; ss <= 10 && inv.unita < quante; ++ss) {
            const qint64 sotto =
                elementi.Crea("07", QStringLiteral("Sottoserie %1").arg(ss), serie);
            ++inv.unita;
            for (int b = 1; b <= 20 && inv.unita < quante; ++b) {
                const qint64 busta = elementi.Crea("07", QStringLiteral("Busta %1").arg(b), sotto);
                ++inv.unita;
                for (int f = 1; f <= 49 && inv.unita < quante; ++f) {
                    const qint64 fascicolo =
                        elementi.Crea("07", QStringLiteral("Fascicolo %1").arg(f), busta);
                    ++inv.unita;
                    ++fascicoli;
                    if (fascicoli % 2000 == 0) {
                        // The finding aid's counters are one row, updated by every son: a
                        // commit now and then lets the server drop its old versions.
                        elementi.Fine();
                        db.commit();
                        db.transaction();
                    }
                    if (fascicoli % 4 != 0 || inv.pergamene >= quante / 5) {
                        continue;
                    }
                    const qint64 perg = elementi.Crea(
                        "05", QStringLiteral("Perg. %1").arg(inv.pergamene + 1), fascicolo);
                    ++inv.pergamene;
                    if (inv.pergamene % 4 == 0 && inv.sigilli.size() < quante / 20) {
                        inv.sigilli.append(elementi.Crea(
                            "06", QStringLiteral("Sigillo %1").arg(inv.sigilli.size() + 1), perg));
                    }
                }
            }
        }
    }
    elementi.Fine();
    db.commit();
    cnn.Esegui(QStringLiteral("ANALYZE"));
    QSqlQuery riga =
        cnn.Esegui(QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"),
                   {inv.lElemento});
    inv.lInventario = riga.next() ? static_cast<long>(riga.value(0).toLongLong()) : 0;
    return inv;
}

} // namespace InventarioBanco
