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
#include "InventarioBanco.h"
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

using InventarioBanco::Costruisci;
using InventarioBanco::Inventario;

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
