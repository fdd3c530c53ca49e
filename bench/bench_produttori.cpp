// The producers' window on a large archive: builds N persons, N/5 families and N/5 bodies
// (100,000, 20,000 and 20,000 when not given) on SQLite or PostgreSQL, with places, dates and
// titles, then times, offscreen and in one run, against the bare read of the rows each list
// shows: the opening of "Produttori" (its first tab loaded and its first row shown) and the
// first showing of each other tab (the best of three, each), and a click on a row until its
// record shows. To weigh the list's
// implementation it also fills the same rows into item widgets (QTreeWidget), beside the
// model over two arrays that the window uses.
//
//   QT_QPA_PLATFORM=offscreen bench_produttori [persone] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "RiferimentoMotore.h"
#include "authorities/frmSoggetti.h"
#include "authorities/ucPersona.h"
#include "records/ModelloElenco.h"
#include "session/Sessione.h"

#include <QApplication>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>

namespace {

using ArchivioBanco::MedianaELento;
using ArchivioBanco::Millisecondi;
using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_produttori"),
        [](QApplication&, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
            const Connessione& cnn = *Sessione::cnn;
            const qint64 persone = banco.richiesti;
            const qint64 altri = std::max<qint64>(1, persone / 5);
            ArchivioBanco::CostruisciArchivioProduttori(cnn, persone, altri);
            cnn.Esegui(QStringLiteral("ANALYZE"));
            ArchivioBanco::StampaProduttori(banco.bPostgreSQL, persone, altri, Secondi(orologio));

            // The bare read of each list's rows, every value read once, and the window opened
            // with each tab shown, the best of three each.
            ArchivioBanco::SchedeMisurate<frmSoggetti> misure =
                ArchivioBanco::MisuraSchede<frmSoggetti>([&cnn](int i) {
                    return ArchivioBanco::LetturaNuda(cnn, {frmSoggetti::SqlLista(cnn, i)});
                });
            std::unique_ptr<frmSoggetti>& aperta = misure.finestra;
            const char* const cosa[3] = {"apertura di Produttori (scheda Persone)",
                                         "prima visualizzazione della scheda Famiglie",
                                         "prima visualizzazione della scheda Enti"};
            for (int i = 0; i < 3; ++i) {
                Uscita() << "lettura nuda della scheda " << i << ": " << misure.righe[i]
                         << " righe in " << Tempo(misure.nude[i]) << "; " << cosa[i] << ": "
                         << aperta->Modello(i).Righe() << " righe in " << Tempo(misure.mostrate[i])
                         << Rapporto(misure.mostrate[i], misure.nude[i]) << "\n";
            }
            // Clicks on persons spread over the list: the slowest and the median.
            aperta->SSTab1->setCurrentIndex(0);
            QApplication::processEvents();
            QList<double> clic;
            const int iRighe = aperta->Modello(0).Righe();
            for (int k = 1; k <= 50; ++k) {
                const int iRiga = static_cast<int>((static_cast<qint64>(iRighe - 1) * k) / 50);
                orologio.restart();
                aperta->Lista(0)->setCurrentIndex(aperta->Modello(0).index(iRiga));
                QApplication::processEvents();
                clic.append(Secondi(orologio));
                if (aperta->aId[0] != aperta->Modello(0).Id(iRiga) ||
                    aperta->fraPersona->LeggiDenominazione().isEmpty()) {
                    throw Errore(QStringLiteral("bench"),
                                 QStringLiteral("Persona della riga %1 non mostrata").arg(iRiga));
                }
            }
            Uscita() << "clic su una persona fino al suo record (" << clic.size()
                     << " persone): " << MedianaELento(clic) << "\n";

            // The same rows of persons in the two ways a list can hold them.
            QList<qint64> ids;
            QList<QString> testi;
            for (int i = 0; i < iRighe; ++i) {
                ids.append(aperta->Modello(0).Id(i));
                testi.append(aperta->Modello(0).Testo(i));
            }
            aperta.reset();
            const long memoriaPrima = RiferimentoMotore::PiccoMemoriaKiB();
            {
                orologio.restart();
                QTreeView vista;
                ModelloElenco modello;
                vista.setUniformRowHeights(true);
                vista.setModel(&modello);
                modello.Riempi(ids, testi);
                vista.show();
                QApplication::processEvents();
                Uscita() << "le righe delle persone in un modello su due vettori: "
                         << Millisecondi(Secondi(orologio)) << "\n";
            }
            {
                orologio.restart();
                QTreeWidget vista;
                vista.setUniformRowHeights(true);
                QList<QTreeWidgetItem*> voci;
                voci.reserve(iRighe);
                for (int i = 0; i < iRighe; ++i) {
                    auto* voce = new QTreeWidgetItem(QStringList{testi[i]});
                    voce->setData(0, Qt::UserRole, ModelloElenco::Chiave(ids[i]));
                    voci.append(voce);
                }
                vista.addTopLevelItems(voci);
                vista.show();
                QApplication::processEvents();
                Uscita() << "le stesse righe in voci di QTreeWidget: "
                         << Millisecondi(Secondi(orologio)) << ", picco di memoria da "
                         << memoriaPrima << " a " << RiferimentoMotore::PiccoMemoriaKiB()
                         << " KiB\n";
            }
            return 0;
        });
}
