// The window of institutes and finding aids on a large archive: builds an archive of about N
// elements on SQLite or PostgreSQL, nine tenths institutes with complessi four levels deep and
// one tenth finding aids dealt to the institutes (one in ten linked to a complesso), then
// times, offscreen and in one run, the bare read of the columns the window's tree uses, the
// opening of frmStrutturaIN, and a click on a finding aid until its record is shown.
//
//   QT_QPA_PLATFORM=offscreen bench_strutturain [elementi] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "records/ucInventario.h"
#include "session/Sessione.h"
#include "structure/frmStrutturaIN.h"

#include <QApplication>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>

namespace {

using ArchivioBanco::MedianaELento;
using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_strutturain"),
        [](QApplication&, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
            const qint64 richiesti = banco.richiesti;
            const bool bPostgreSQL = banco.bPostgreSQL;
            const qint64 quantiInventari = richiesti / 10;
            qint64 lComplesso = 0;
            qint64 lInventario = 0;
            const qint64 complessi = ArchivioBanco::CostruisciComplessi(
                *Sessione::cnn, richiesti - quantiInventari, lComplesso);
            const qint64 inventari = ArchivioBanco::CostruisciInventari(
                *Sessione::cnn, quantiInventari, 10, lInventario);
            Uscita() << (bPostgreSQL ? "PostgreSQL" : "SQLite")
                     << ", archivio: " << complessi + inventari << " elementi, di cui " << inventari
                     << " strumenti di ricerca, in " << Tempo(Secondi(orologio)) << "\n";

            QStringList usate;
            for (const GruppoAlbero& gruppo : frmStrutturaIN::Gruppi()) {
                usate.append(gruppo.Sql(*Sessione::cnn));
            }
            const ArchivioBanco::Lettura nuda = ArchivioBanco::LetturaNuda(*Sessione::cnn, usate);
            Uscita() << "lettura nuda dei due gruppi, colonne usate: " << nuda.righe << " righe in "
                     << Tempo(nuda.dSecondi) << "\n";

            orologio.restart();
            auto* finestra = new frmStrutturaIN;
            finestra->show();
            QApplication::processEvents();
            const double dApertura = Secondi(orologio);
            Uscita() << "apertura di frmStrutturaIN: " << finestra->Modello().Nodi() << " nodi in "
                     << Tempo(dApertura) << Rapporto(dApertura, nuda.dSecondi) << "\n";

            // Clicks on finding aids, the last one built and others of other institutes: the
            // slowest of them and their median.
            QList<qint64> ultimi;
            for (qint64 lId = lInventario; lId > lInventario - 50; --lId) {
                ultimi.append(lId);
            }
            const QList<double> clic = ArchivioBanco::ClicSuiNodi(
                *finestra, ultimi,
                [finestra] { return !finestra->fraInventario->LeggiDenominazione().isEmpty(); },
                QStringLiteral("Strumento %1 non mostrato"));
            Uscita() << "clic su uno strumento di ricerca fino al suo record (" << clic.size()
                     << " strumenti): " << MedianaELento(clic) << "\n";

            delete finestra;
            return 0;
        });
}
