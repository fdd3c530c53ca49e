// The window of the analytical inventory on a large finding aid: builds on SQLite or
// PostgreSQL a finding aid with N units in four levels (serie, sottoserie, buste, fascicoli),
// a parchment under every fourth fascicolo up to N/5 and a seal on every fourth parchment (N/20),
// then times, offscreen and in one run, the bare read of the columns the window's tree uses
// (the finding aid's row and the one group), the opening of frmStrutturaDI, the switch to the
// other order against the bare read in that order, and a click on a seal deep in the tree
// until its record is shown.
//
//   QT_QPA_PLATFORM=offscreen bench_strutturadi [unità] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "records/ucSigillo.h"
#include "session/Sessione.h"
#include "structure/frmStrutturaDI.h"

#include <QApplication>
#include <QRadioButton>
#include <QTreeView>
#include <algorithm>

namespace {

using ArchivioBanco::MedianaELento;
using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

struct Inventario {
    qint64 lElemento = 0;
    long lInventario = 0;
    qint64 unita = 0;
    qint64 pergamene = 0;
    QList<qint64> sigilli;
};

// The institute, its fondo, the finding aid linked to it and what hangs on the finding aid,
// parents before sons, in a few transactions.
Inventario Costruisci(const Connessione& cnn, qint64 quante) {
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

// The bare read of the finding aid's row and of the tree's group in that order.
ArchivioBanco::Lettura LetturaNuda(const Inventario& inv, const QString& sOrdine) {
    const GruppoAlbero gruppo = frmStrutturaDI::Gruppo(inv.lInventario, sOrdine);
    return ArchivioBanco::LetturaNuda(
        *Sessione::cnn, {{QStringLiteral("SELECT INV_ID_Inventario, INV_Denominazione FROM "
                                         "AlberoDatiInventariali WHERE ELEM_Tipologia='03' AND "
                                         "ELEM_ID_Elemento = ?"),
                          {inv.lElemento}},
                         {gruppo.Sql(*Sessione::cnn), gruppo.valori}});
}

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_strutturadi"),
        [](QApplication&, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
            const Inventario inv = Costruisci(*Sessione::cnn, banco.richiesti);
            Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite")
                     << ", inventario analitico: " << inv.unita << " unità, " << inv.pergamene
                     << " pergamene, " << inv.sigilli.size() << " sigilli, in "
                     << Tempo(Secondi(orologio)) << "\n";

            const ArchivioBanco::Lettura nuda =
                LetturaNuda(inv, frmStrutturaDI::OrdineArchivistico());
            Uscita() << "lettura nuda delle colonne usate, ordine archivistico: " << nuda.righe
                     << " righe in " << Tempo(nuda.dSecondi) << "\n";

            orologio.restart();
            Sessione::lIdInventario = static_cast<long>(inv.lElemento);
            auto* finestra = new frmStrutturaDI;
            finestra->Init(QStringLiteral("01"), QStringLiteral("Fondo Guinigi"));
            finestra->show();
            QApplication::processEvents();
            const double dApertura = Secondi(orologio);
            Uscita() << "apertura di frmStrutturaDI: " << finestra->Modello().Nodi() << " nodi in "
                     << Tempo(dApertura) << Rapporto(dApertura, nuda.dSecondi) << "\n";

            const ArchivioBanco::Lettura alfabetica =
                LetturaNuda(inv, frmStrutturaDI::OrdineAlfabetico());
            orologio.restart();
            finestra->Ord[0]->click();
            QApplication::processEvents();
            const double dCambio = Secondi(orologio);
            Uscita()
                << "lettura nuda, ordine alfabetico: " << Tempo(alfabetica.dSecondi)
                << "; passaggio ad \"Alfabetico\": " << Tempo(dCambio)
                << QStringLiteral(" (rapporto %1)\n").arg(dCambio / alfabetica.dSecondi, 0, 'f', 2);

            // Clicks on seals, the last ones built, deep under their parchments: the slowest of
            // them and their median.
            QList<qint64> sigilli;
            for (qsizetype i = inv.sigilli.size() - 1; i >= 0 && sigilli.size() < 50; --i) {
                sigilli.append(inv.sigilli[i]);
            }
            const QList<double> clic = ArchivioBanco::ClicSuiNodi(
                *finestra, sigilli,
                [finestra] { return !finestra->fraSigillo->LeggiDenominazione().isEmpty(); },
                QStringLiteral("Sigillo %1 non mostrato"));
            Uscita() << "clic su un sigillo fino al suo record (" << clic.size()
                     << " sigilli): " << MedianaELento(clic) << "\n";

            // Of a click, what the seal's record takes by itself to show the same seals.
            QList<double> mostra;
            for (const qint64 lId : sigilli) {
                orologio.restart();
                finestra->fraSigillo->Mostra(static_cast<long>(lId));
                mostra.append(Secondi(orologio));
            }
            Uscita() << "di cui il record del sigillo da solo (Mostra): " << MedianaELento(mostra)
                     << "\n";

            delete finestra;
            return 0;
        });
}
