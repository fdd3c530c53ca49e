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
#include "records/ucInventario.h"
#include "session/Sessione.h"
#include "structure/frmStrutturaIN.h"

#include <QApplication>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>

namespace {

using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

QString Millisecondi(double dSecondi) {
    return QStringLiteral("%1 ms").arg(dSecondi * 1000, 0, 'f', 2);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    try {
        QElapsedTimer orologio;
        orologio.start();
        const ArchivioBanco::BancoFinestra banco(app.arguments(),
                                                 QStringLiteral("bench_strutturain"));
        const qint64 richiesti = banco.richiesti;
        const bool bPostgreSQL = banco.bPostgreSQL;
        const qint64 quantiInventari = richiesti / 10;
        qint64 lComplesso = 0;
        qint64 lInventario = 0;
        const qint64 complessi = ArchivioBanco::CostruisciComplessi(
            *Sessione::cnn, richiesti - quantiInventari, lComplesso);
        const qint64 inventari =
            ArchivioBanco::CostruisciInventari(*Sessione::cnn, quantiInventari, 10, lInventario);
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
                 << Tempo(dApertura)
                 << QStringLiteral(" (rapporto %1 sulla lettura nuda)\n")
                        .arg(dApertura / nuda.dSecondi, 0, 'f', 2);

        // Clicks on finding aids, the last one built and others of other institutes: the
        // slowest of them and their median.
        QList<double> clic;
        for (qint64 lId = lInventario; lId > lInventario - 50; --lId) {
            const QModelIndex nodo = finestra->Modello().Trova(lId);
            orologio.restart();
            finestra->tvwDB->setCurrentIndex(nodo);
            QApplication::processEvents();
            clic.append(Secondi(orologio));
            if (finestra->lIdCorrente != lId ||
                finestra->fraInventario->LeggiDenominazione().isEmpty()) {
                throw Errore(QStringLiteral("bench"),
                             QStringLiteral("Strumento %1 non mostrato").arg(lId));
            }
        }
        std::sort(clic.begin(), clic.end());
        Uscita() << "clic su uno strumento di ricerca fino al suo record (" << clic.size()
                 << " strumenti): mediana " << Millisecondi(clic[clic.size() / 2])
                 << ", il più lento " << Millisecondi(clic.last()) << "\n";

        delete finestra;
        return 0;
    } catch (const Errore& errore) {
        Uscita() << errore.testo() << '\n';
        return 1;
    }
}
