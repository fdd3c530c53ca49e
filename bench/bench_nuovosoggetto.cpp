// The producers' link dialog "Collegamenti ai Soggetti produttori" on a large archive: builds N
// persons, N/5 families and N/5 bodies (10,000, 2,000 and 2,000 when not given) on SQLite or
// PostgreSQL, with places, dates and titles, and a complesso tied to one producer in fifty; then
// times, offscreen and in one run, against the bare read of the rows each list shows (the same
// statement, every value read once): the opening of the dialog on the persons' tab (its list
// read and its first producer shown) and the first showing of the families' and the bodies'
// tabs, each the best of three.
//
//   QT_QPA_PLATFORM=offscreen bench_nuovosoggetto [persone] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "links/ModelloSpunte.h"
#include "links/frmNuovoSoggetto.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"

#include <QApplication>
#include <QTabWidget>
#include <algorithm>
#include <array>

namespace {

using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

QString Rapporto(double dTempo, double dRiferimento) {
    return QStringLiteral(" (rapporto %1 sulla lettura nuda)")
        .arg(dTempo / dRiferimento, 0, 'f', 2);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    try {
        QElapsedTimer orologio;
        orologio.start();
        const ArchivioBanco::BancoFinestra banco(app.arguments(),
                                                 QStringLiteral("bench_nuovosoggetto"));
        const Connessione& cnn = *Sessione::cnn;
        const qint64 persone = app.arguments().size() > 1 ? banco.richiesti : 10000;
        const qint64 altri = std::max<qint64>(1, persone / 5);
        ArchivioBanco::CostruisciArchivioProduttori(cnn, persone, altri);
        const long complesso =
            ArchivioElementi::Crea(cnn, QStringLiteral("02"), QStringLiteral("Fondo"), 0);
        QSqlQuery chiave = cnn.Esegui(QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc "
                                                     "WHERE ID_Elemento = ?"),
                                      {static_cast<qlonglong>(complesso)});
        const qint64 lChiave = chiave.next() ? chiave.value(0).toLongLong() : 0;
        chiave.finish();
        cnn.Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, "
                                  "ID_Soggetto) SELECT ?, ID_Soggetto FROM Soggetti WHERE "
                                  "ID_Soggetto % 50 = 0"),
                   {static_cast<qlonglong>(lChiave)});
        cnn.Esegui(QStringLiteral("ANALYZE"));
        Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite") << ", produttori: " << persone
                 << " persone, " << altri << " famiglie, " << altri << " enti, in "
                 << Tempo(Secondi(orologio)) << "\n";

        Sessione::sTipoLink = QStringLiteral("0");
        Sessione::lIdComplesso = complesso;
        Sessione::sDenomComplesso = QStringLiteral("Fondo");
        Sessione::iTipoSogg = 0;

        // The bare read of each list's rows and the dialog opened with each tab shown: each
        // measured in turn, Ripetizioni times, the best of each kept (the least disturbed by the
        // rest of the machine).
        constexpr int Ripetizioni = 3;
        std::array<double, 3> nude{1e9, 1e9, 1e9};
        std::array<double, 3> mostrate{1e9, 1e9, 1e9};
        std::array<qint64, 3> righe{};
        std::unique_ptr<frmNuovoSoggetto> aperto;
        for (int r = 0; r < Ripetizioni; ++r) {
            for (int i = 0; i < 3; ++i) {
                const ArchivioBanco::Lettura nuda = ArchivioBanco::LetturaNuda(
                    cnn, QList<ArchivioBanco::Istruzione>{
                             {frmNuovoSoggetto::SqlLista(cnn, i, false),
                              frmNuovoSoggetto::ValoriLista(i, complesso)}});
                nude[i] = std::min(nude[i], nuda.dSecondi);
                righe[i] = nuda.righe;
            }
            aperto.reset();
            orologio.restart();
            aperto = std::make_unique<frmNuovoSoggetto>();
            aperto->resize(1200, 800);
            aperto->show();
            QApplication::processEvents();
            mostrate[0] = std::min(mostrate[0], Secondi(orologio));
            for (int i = 1; i < 3; ++i) {
                orologio.restart();
                aperto->SSTab1->setCurrentIndex(i);
                QApplication::processEvents();
                mostrate[i] = std::min(mostrate[i], Secondi(orologio));
            }
        }
        const char* const cosa[3] = {"apertura del dialogo (scheda Persone)",
                                     "prima visualizzazione della scheda Famiglie",
                                     "prima visualizzazione della scheda Enti"};
        for (int i = 0; i < 3; ++i) {
            qint64 spuntate = 0;
            for (int k = 0; k < aperto->Modello(i).Righe(); ++k) {
                spuntate += aperto->Modello(i).Spuntata(k) ? 1 : 0;
            }
            if (aperto->Modello(i).Righe() != righe[i]) {
                throw Errore(QStringLiteral("bench"),
                             QStringLiteral("La scheda %1 non mostra tutte le righe").arg(i));
            }
            Uscita() << "lettura nuda della scheda " << i << ": " << righe[i] << " righe in "
                     << Tempo(nude[i]) << "; " << cosa[i] << ": " << aperto->Modello(i).Righe()
                     << " righe (" << spuntate << " spuntate) in " << Tempo(mostrate[i])
                     << Rapporto(mostrate[i], nude[i]) << "\n";
        }
        aperto.reset();
        return 0;
    } catch (const Errore& errore) {
        Uscita() << errore.testo() << '\n';
        return 1;
    }
}
