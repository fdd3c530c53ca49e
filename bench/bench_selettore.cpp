// The picker of complessi (frmNuovoComplesso) on a large archive: builds an archive of about N
// institutes and complessi four levels deep on SQLite or PostgreSQL and a finding aid to tie,
// then times, offscreen and in one run, the bare read of what the picker's tree shows (its two
// groups and the complessi with producers), the opening of the picker against it, a tick on a
// complesso until the chosen names show it, and Collega with ten complessi ticked.
//
//   QT_QPA_PLATFORM=offscreen bench_selettore [elementi] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "links/frmNuovoComplesso.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "structure/frmStrutturaCD.h"

#include <QApplication>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
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
                                                 QStringLiteral("bench_selettore"));
        qint64 lProfondo = 0;
        const qint64 elementi =
            ArchivioBanco::CostruisciComplessi(*Sessione::cnn, banco.richiesti - 1, lProfondo);
        qint64 lInventario = 0;
        ArchivioBanco::CostruisciInventari(*Sessione::cnn, 1, 0, lInventario);
        Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite") << ", archivio: " << elementi + 1
                 << " elementi in " << Tempo(Secondi(orologio)) << "\n";

        QStringList letture;
        for (const GruppoAlbero& gruppo :
             frmStrutturaCD::Gruppi(frmStrutturaCD::OrdineAlfabetico())) {
            letture.append(gruppo.Sql(*Sessione::cnn));
        }
        letture.append(QStringLiteral("SELECT CD_ID_Elemento FROM V_ComplessiDocSoggetti"));
        const ArchivioBanco::Lettura nuda = ArchivioBanco::LetturaNuda(*Sessione::cnn, letture);
        Uscita() << "lettura nuda di ciò che l'albero mostra: " << nuda.righe << " righe in "
                 << Tempo(nuda.dSecondi) << "\n";

        Sessione::iChiamanteInv = 1;
        Sessione::lIdInventario = static_cast<long>(lInventario);
        Sessione::sDenomInventario = QStringLiteral("Inventario n. 1");
        orologio.restart();
        auto* finestra = new frmNuovoComplesso;
        finestra->bLockSelCompl();
        std::unique_ptr<QDialog> dialogo(finestra->InDialogo());
        dialogo->show();
        QApplication::processEvents();
        const double dApertura = Secondi(orologio);
        Uscita() << "apertura di frmNuovoComplesso: " << finestra->Modello().Nodi() << " nodi in "
                 << Tempo(dApertura)
                 << QStringLiteral(" (rapporto %1 sulla lettura nuda)\n")
                        .arg(dApertura / nuda.dSecondi, 0, 'f', 2);

        // Ticks on ten complessi deep in the tree, each until the names show it.
        QList<double> spunte;
        for (qint64 lId = lProfondo; lId > lProfondo - 10; --lId) {
            const QModelIndex nodo = finestra->Modello().Trova(lId);
            orologio.restart();
            finestra->tvwDB->model()->setData(nodo, Qt::Checked, Qt::CheckStateRole);
            QApplication::processEvents();
            spunte.append(Secondi(orologio));
            if (!finestra->TextC->toPlainText().contains(finestra->Modello().Testo(nodo))) {
                throw Errore(QStringLiteral("bench"),
                             QStringLiteral("Complesso %1 non scelto").arg(lId));
            }
        }
        std::sort(spunte.begin(), spunte.end());
        Uscita() << "spunta su un complesso fino ai nomi scelti (" << spunte.size()
                 << " complessi): mediana " << Millisecondi(spunte[spunte.size() / 2])
                 << ", la più lenta " << Millisecondi(spunte.last()) << "\n";

        orologio.restart();
        finestra->cmdCollega->click();
        QApplication::processEvents();
        const double dCollega = Secondi(orologio);
        QSqlQuery legami = Sessione::cnn->Esegui(
            QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_ElementoLink = ?"),
            {static_cast<qlonglong>(lInventario)});
        legami.next();
        Uscita() << "Collega con 10 complessi spuntati: " << legami.value(0).toLongLong()
                 << " righe di Links in " << Millisecondi(dCollega) << "\n";
        legami.finish();
        return 0;
    } catch (const Errore& errore) {
        Uscita() << errore.testo() << '\n';
        return 1;
    }
}
