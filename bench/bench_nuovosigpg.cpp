// The picker that ties a seal to parchments, on a large finding aid: builds on SQLite or
// PostgreSQL the analytical inventory of bench_strutturadi (N units, N/5 parchments, N/20
// seals) and, in a finding aid of its own, a detached seal tied already to a thousand of those
// parchments; then times, offscreen and in one run, the bare read of what the picker reads (the
// finding aid's row, the tree's group, the parchments tied to the seal) and the opening of
// frmNuovoSigPg over that finding aid for the seal (made, loaded, the tied ones locked, shown).
//
//   QT_QPA_PLATFORM=offscreen bench_nuovosigpg [unità] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "InventarioBanco.h"
#include "links/frmNuovoSigPg.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "structure/frmStrutturaDI.h"

#include <QApplication>

namespace {

using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

constexpr int Legate = 1000;

// The detached seal, in a finding aid of its own under the same institute, tied to the first
// parchments of the large finding aid.
qint64 SigilloLegato(const Connessione& cnn, const InventarioBanco::Inventario& inv) {
    QSqlQuery padre =
        cnn.Esegui(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ?"),
                   {inv.lElemento});
    const qint64 istituto = padre.next() ? padre.value(0).toLongLong() : 0;
    padre.finish();
    // By the bulk path too, past the keys it gave: the server's own counter knows nothing of
    // them.
    QSqlQuery ultimo = cnn.Esegui(QStringLiteral("SELECT MAX(ID_Elemento) FROM Elementi"));
    const qint64 lPrimo = ultimo.next() ? ultimo.value(0).toLongLong() + 1 : 1;
    ultimo.finish();
    ArchivioBanco::CaricoElementi elementi(cnn, lPrimo);
    const qint64 altro = elementi.Crea("03", QStringLiteral("Sigilli sciolti"), istituto);
    const qint64 sigillo = elementi.Crea("06", QStringLiteral("Sigillo del vescovo"), altro);
    elementi.Fine();
    QSqlQuery pergamene = cnn.Esegui(
        QStringLiteral("SELECT ID_Elemento FROM Pergamene WHERE ID_Inventario = ? ORDER BY "
                       "ID_Elemento"),
        {qlonglong(inv.lInventario)});
    QList<qint64> prime;
    while (pergamene.next() && prime.size() < Legate) {
        prime.append(pergamene.value(0).toLongLong());
    }
    pergamene.finish();
    QSqlDatabase db = cnn.Db();
    db.transaction();
    for (const qint64 lPergamena : std::as_const(prime)) {
        ArchivioElementi::Collega(cnn, static_cast<long>(sigillo), static_cast<long>(lPergamena));
    }
    db.commit();
    return sigillo;
}

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_nuovosigpg"),
        [](QApplication&, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
            const InventarioBanco::Inventario inv =
                InventarioBanco::Costruisci(*Sessione::cnn, banco.richiesti);
            const qint64 sigillo = SigilloLegato(*Sessione::cnn, inv);
            Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite")
                     << ", inventario analitico: " << inv.unita << " unità, " << inv.pergamene
                     << " pergamene, " << inv.sigilli.size() << " sigilli; un sigillo staccato "
                     << "legato a " << Legate << " pergamene; in " << Tempo(Secondi(orologio))
                     << "\n";

            const GruppoAlbero gruppo =
                frmStrutturaDI::Gruppo(inv.lInventario, frmStrutturaDI::OrdineAlfabetico());
            const ArchivioBanco::Lettura nuda = ArchivioBanco::LetturaNuda(
                *Sessione::cnn,
                {{QStringLiteral("SELECT INV_ID_Inventario, ELEM_Denominazione FROM AlberoGlobale "
                                 "WHERE ELEM_ID_Elemento = ? AND ELEM_Tipologia = '03'"),
                  {inv.lElemento}},
                 {QStringLiteral("SELECT ID_ElementoLink FROM Links WHERE ID_Elemento = ?"),
                  {sigillo}},
                 {gruppo.Sql(*Sessione::cnn), gruppo.valori}});
            Uscita() << "lettura nuda di ciò che il selettore legge: " << nuda.righe << " righe in "
                     << Tempo(nuda.dSecondi) << "\n";

            orologio.restart();
            auto* selettore = new frmNuovoSigPg;
            selettore->bLockSelected();
            const bool bAperto =
                selettore->bInit(frmNuovoSigPg::SceltaPergamene, static_cast<long>(inv.lElemento),
                                 static_cast<long>(sigillo), QStringLiteral("Sigillo del vescovo"));
            selettore->show();
            QApplication::processEvents();
            const double dApertura = Secondi(orologio);
            const qsizetype bloccati = selettore->Modello().NodiSpuntati().size();
            Uscita() << "apertura di frmNuovoSigPg: " << selettore->Modello().Nodi() << " nodi, "
                     << bloccati << " già legati, in " << Tempo(dApertura)
                     << Rapporto(dApertura, nuda.dSecondi) << "\n";
            delete selettore;
            return bAperto && bloccati == Legate ? 0 : 1;
        });
}
