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
#include "BancoMisure.h"
#include "links/ModelloSpunte.h"
#include "links/frmNuovoSoggetto.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"

#include <QApplication>
#include <QTabWidget>
#include <algorithm>

namespace {

using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::EseguiFinestra(
        argc, argv, QStringLiteral("bench_nuovosoggetto"),
        [](QApplication& app, const ArchivioBanco::BancoFinestra& banco, QElapsedTimer& orologio) {
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
            ArchivioBanco::StampaProduttori(banco.bPostgreSQL, persone, altri, Secondi(orologio));

            Sessione::sTipoLink = QStringLiteral("0");
            Sessione::lIdComplesso = complesso;
            Sessione::sDenomComplesso = QStringLiteral("Fondo");
            Sessione::iTipoSogg = 0;

            // The bare read of each list's rows and the dialog opened with each tab shown, the best
            // of three each.
            ArchivioBanco::SchedeMisurate<frmNuovoSoggetto> misure =
                ArchivioBanco::MisuraSchede<frmNuovoSoggetto>([&cnn, complesso](int i) {
                    return ArchivioBanco::LetturaNuda(
                        cnn, QList<ArchivioBanco::Istruzione>{
                                 {frmNuovoSoggetto::SqlLista(cnn, i, false),
                                  frmNuovoSoggetto::ValoriLista(i, complesso)}});
                });
            std::unique_ptr<frmNuovoSoggetto>& aperto = misure.finestra;
            const std::array<qint64, 3>& righe = misure.righe;
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
                         << Tempo(misure.nude[i]) << "; " << cosa[i] << ": "
                         << aperto->Modello(i).Righe() << " righe (" << spuntate << " spuntate) in "
                         << Tempo(misure.mostrate[i])
                         << Rapporto(misure.mostrate[i], misure.nude[i]) << "\n";
            }
            aperto.reset();
            return 0;
        });
}
