// The window of institutes and complessi on a large archive: builds an archive of about N
// elements (institutes with complessi four levels deep) on SQLite or PostgreSQL, then times,
// offscreen and in one run, the bare read of the window's two groups as "SELECT *" (what the
// tree used to read), the bare read of the columns the tree uses, the opening of
// frmStrutturaCD, the switch of the order option, and a click on a complesso at the bottom of
// the tree until its record is shown.
//
//   QT_QPA_PLATFORM=offscreen bench_strutturacd [elementi] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "session/Sessione.h"
#include "structure/frmStrutturaCD.h"

#include <QApplication>
#include <QRadioButton>
#include <QTreeView>

namespace {

using ArchivioBanco::Millisecondi;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_strutturacd"),
        [](QApplication&, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
            const qint64 richiesti = banco.richiesti;
            const bool bPostgreSQL = banco.bPostgreSQL;
            qint64 lProfondo = 0;
            const qint64 elementi =
                ArchivioBanco::CostruisciComplessi(*Sessione::cnn, richiesti, lProfondo);
            Uscita() << (bPostgreSQL ? "PostgreSQL" : "SQLite") << ", archivio: " << elementi
                     << " elementi in " << Tempo(Secondi(orologio)) << "\n";

            QStringList tutte;
            QStringList usate;
            for (const GruppoAlbero& gruppo :
                 frmStrutturaCD::Gruppi(frmStrutturaCD::OrdineArchivistico())) {
                tutte.append(
                    QStringLiteral("SELECT * FROM %1 WHERE %2 ORDER BY %3")
                        .arg(gruppo.sVista, gruppo.sCondizione, gruppo.Ordine(*Sessione::cnn)));
                usate.append(gruppo.Sql(*Sessione::cnn));
            }
            const ArchivioBanco::Lettura nudaTutte =
                ArchivioBanco::LetturaNuda(*Sessione::cnn, tutte);
            Uscita() << "lettura nuda dei due gruppi, SELECT *: " << nudaTutte.righe << " righe in "
                     << Tempo(nudaTutte.dSecondi) << "\n";
            const ArchivioBanco::Lettura nudaUsate =
                ArchivioBanco::LetturaNuda(*Sessione::cnn, usate);
            Uscita() << "lettura nuda dei due gruppi, colonne usate: " << nudaUsate.righe
                     << " righe in " << Tempo(nudaUsate.dSecondi) << "\n";

            orologio.restart();
            auto* finestra = new frmStrutturaCD;
            finestra->show();
            QApplication::processEvents();
            const double dApertura = Secondi(orologio);
            Uscita() << "apertura di frmStrutturaCD: " << finestra->Modello().Nodi() << " nodi in "
                     << Tempo(dApertura)
                     << QStringLiteral(" (rapporto %1 sulla lettura delle colonne usate, %2 su "
                                       "quella di SELECT *)\n")
                            .arg(dApertura / nudaUsate.dSecondi, 0, 'f', 2)
                            .arg(dApertura / nudaTutte.dSecondi, 0, 'f', 2);

            orologio.restart();
            finestra->Ord[0]->setChecked(true);
            QApplication::processEvents();
            Uscita() << "opzione Alfabetico: " << Tempo(Secondi(orologio)) << "\n";
            orologio.restart();
            finestra->Ord[1]->setChecked(true);
            QApplication::processEvents();
            Uscita() << "opzione Archivistico: " << Tempo(Secondi(orologio)) << "\n";

            orologio.restart();
            const QModelIndex nodo = finestra->Modello().Trova(lProfondo);
            finestra->tvwDB->setCurrentIndex(nodo);
            QApplication::processEvents();
            Uscita() << "clic su un complesso al quarto livello (" << lProfondo << ", mostrato "
                     << finestra->lIdCorrente << "): " << Millisecondi(Secondi(orologio)) << "\n";

            delete finestra;
            return 0;
        });
}
