// The window of the parchments and seals on a large finding aid: builds on SQLite or
// PostgreSQL a finding aid with N parchments and seals (parchments under the finding aid, a
// seal on every fourth parchment, a detached seal for every ten parchments), then times,
// offscreen and in one run, for each of the two modes the bare read of the columns the
// window's tree uses (the finding aid's row and the one group) against the opening of
// frmStrutturaPG in that mode until its tree is shown, one after the other in five rounds.
//
//   QT_QPA_PLATFORM=offscreen bench_strutturapg [pergamene e sigilli] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "session/Sessione.h"
#include "structure/frmStrutturaPG.h"

#include <QApplication>
#include <algorithm>

namespace {

using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

struct Inventario {
    qint64 lElemento = 0;
    long lInventario = 0;
    qint64 pergamene = 0;
    qint64 sigilli = 0;
};

// The institute, its fondo, the finding aid linked to it and its parchments and seals, parents
// before sons, in a few transactions.
Inventario Costruisci(const Connessione& cnn, qint64 quanti) {
    Inventario inv;
    QSqlDatabase db = cnn.Db();
    db.transaction();
    ArchivioBanco::CaricoElementi elementi(cnn, 1);
    const qint64 istituto = elementi.Crea("01", QStringLiteral("Archivio di Stato di Lucca"), 0);
    const qint64 fondo = elementi.Crea("02", QStringLiteral("Fondo Guinigi"), istituto);
    inv.lElemento = elementi.Crea("03", QStringLiteral("Diplomatico Guinigi"), istituto);
    elementi.Fine();
    cnn.Esegui(QStringLiteral("INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) "
                              "VALUES (?, ?, '')"),
               {fondo, inv.lElemento});
    while (inv.pergamene + inv.sigilli < quanti) {
        const qint64 perg =
            elementi.Crea("05", QStringLiteral("Perg. %1").arg(inv.pergamene + 1), inv.lElemento);
        ++inv.pergamene;
        if (inv.pergamene % 4 == 0 && inv.pergamene + inv.sigilli < quanti) {
            elementi.Crea("06", QStringLiteral("Sigillo %1").arg(inv.sigilli + 1), perg);
            ++inv.sigilli;
        }
        if (inv.pergamene % 10 == 0 && inv.pergamene + inv.sigilli < quanti) {
            elementi.Crea("06", QStringLiteral("Sigillo %1").arg(inv.sigilli + 1), inv.lElemento);
            ++inv.sigilli;
        }
        if (inv.pergamene % 2000 == 0) {
            // The finding aid's counters are one row, updated by every son: a commit now and
            // then lets the server drop its old versions.
            elementi.Fine();
            db.commit();
            db.transaction();
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

// The bare read of the finding aid's row and of the tree's group in that mode.
ArchivioBanco::Lettura LetturaNuda(const Inventario& inv, long lModo) {
    const GruppoAlbero gruppo = frmStrutturaPG::Gruppo(inv.lInventario, lModo);
    return ArchivioBanco::LetturaNuda(
        *Sessione::cnn, {{QStringLiteral("SELECT INV_ID_Inventario, ELEM_Denominazione FROM "
                                         "AlberoGlobale WHERE ELEM_ID_Elemento = ?"),
                          {inv.lElemento}},
                         {gruppo.Sql(*Sessione::cnn), gruppo.valori}});
}

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_strutturapg"),
        [](QApplication&, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
            const Inventario inv = Costruisci(*Sessione::cnn, banco.richiesti);
            Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite") << ", " << inv.pergamene
                     << " pergamene e " << inv.sigilli << " sigilli, in "
                     << Tempo(Secondi(orologio)) << "\n";

            // The machine being shared, each round reads bare and opens the window one right
            // after the other; the rounds' median ratio and the best times are told.
            constexpr int Giri = 5;
            for (const long lModo : {0L, 1L}) {
                QList<double> rapporti;
                double dNuda = 0;
                double dApertura = 0;
                qint64 righe = 0;
                int iNodi = 0;
                for (int giro = 0; giro < Giri; ++giro) {
                    const ArchivioBanco::Lettura nuda = LetturaNuda(inv, lModo);
                    righe = nuda.righe;
                    orologio.restart();
                    Sessione::lIdInventario = static_cast<long>(inv.lElemento);
                    Sessione::lModoStrutturaPG = lModo;
                    auto* finestra = new frmStrutturaPG;
                    finestra->show();
                    QApplication::processEvents();
                    const double dGiro = Secondi(orologio);
                    iNodi = finestra->Modello().Nodi();
                    delete finestra;
                    rapporti.append(dGiro / nuda.dSecondi);
                    dNuda = giro == 0 ? nuda.dSecondi : std::min(dNuda, nuda.dSecondi);
                    dApertura = giro == 0 ? dGiro : std::min(dApertura, dGiro);
                }
                std::sort(rapporti.begin(), rapporti.end());
                Uscita() << "modo " << lModo << ", lettura nuda delle colonne usate: " << righe
                         << " righe in " << Tempo(dNuda)
                         << "; apertura di frmStrutturaPG: " << iNodi << " nodi in "
                         << Tempo(dApertura)
                         << QStringLiteral(
                                " (rapporto mediano %1 sulla lettura nuda, in %2 giri)\n")
                                .arg(rapporti[Giri / 2], 0, 'f', 2)
                                .arg(Giri);
            }
            return 0;
        });
}
