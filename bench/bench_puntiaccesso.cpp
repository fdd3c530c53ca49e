// The windows of the access points on a large archive: builds N personal names, N/2 place names
// and N/20 seal holders (100,000, 50,000 and 5,000 when not given) on SQLite or PostgreSQL, one
// in fifty of each tied in every join table, then times, offscreen and in one run, the opening
// of "Persone", "Toponimi" and "Titolari" (the list loaded and its first entry shown) against
// the bare read of the rows each list shows, the best of three each; and a click on an entry
// until its record shows.
//
//   QT_QPA_PLATFORM=offscreen bench_puntiaccesso [persone] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "authorities/EditoreAccesso.h"
#include "authorities/frmAntroponimi.h"
#include "authorities/frmTitolari.h"
#include "authorities/frmToponimi.h"
#include "authorities/ucAntroponimo.h"
#include "records/ModelloElenco.h"
#include "session/Sessione.h"
#include "store/Caricamento.h"

#include <QApplication>
#include <QTreeView>
#include <algorithm>
#include <array>
#include <memory>
#include <span>

namespace {

using ArchivioBanco::MedianaELento;
using ArchivioBanco::Millisecondi;
using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

// N rows of a table of access points by the bulk path, in one transaction, keys from 1 and
// names in a scattered order; one in fifty tied to an object in each join table.
void Costruisci(const Connessione& cnn, qint64 quanti, const QString& sTabella,
                const QString& sChiave, const QString& sColonna, const QString& sPrefisso,
                const QList<QStringList>& legami) {
    QSqlDatabase db = cnn.Db();
    db.transaction();
    {
        const auto carico = cnn.backend().ApriCaricamento(db, sTabella, {sChiave, sColonna});
        for (qint64 k = 0; k < quanti; ++k) {
            const qint64 sparso = (k * 7919) % quanti;
            const std::array<QVariant, 2> riga{
                k + 1, QStringLiteral("%1 %2").arg(sPrefisso).arg(static_cast<qlonglong>(sparso), 6,
                                                                  10, QLatin1Char('0'))};
            carico->Aggiungi(riga);
            if (carico->Pieno()) {
                ArchivioBanco::Invia(*carico);
            }
        }
        ArchivioBanco::Invia(*carico);
    }
    // Each join table: its name, its own key ("" when none) and the column of the object.
    for (const QStringList& legame : legami) {
        QStringList colonne{legame[2], sChiave};
        if (!legame[1].isEmpty()) {
            colonne.prepend(legame[1]);
        }
        const auto carico = cnn.backend().ApriCaricamento(db, legame[0], colonne);
        for (qint64 k = 1; k <= quanti; k += 50) {
            QList<QVariant> riga{k, k};
            if (!legame[1].isEmpty()) {
                riga.prepend(k);
            }
            carico->Aggiungi(std::span<const QVariant>(riga.constData(), riga.size()));
            if (carico->Pieno()) {
                ArchivioBanco::Invia(*carico);
            }
        }
        ArchivioBanco::Invia(*carico);
    }
    db.commit();
}

// A window opened three times, each after the bare read of its list: the best of each, the
// rows, and the window of the last opening, left open.
template <class Finestra> struct Misura {
    double dNuda = 1e9;
    double dAperta = 1e9;
    qint64 righe = 0;
    std::unique_ptr<Finestra> finestra;
};

template <class Finestra> Misura<Finestra> Misura3(const Connessione& cnn) {
    Misura<Finestra> misura;
    // Its statement, from a first opening that is not timed.
    const QString sSql = std::make_unique<Finestra>()->SqlLista(cnn);
    QElapsedTimer orologio;
    for (int r = 0; r < 3; ++r) {
        const ArchivioBanco::Lettura nuda = ArchivioBanco::LetturaNuda(cnn, QStringList{sSql});
        misura.dNuda = std::min(misura.dNuda, nuda.dSecondi);
        misura.righe = nuda.righe;
        misura.finestra.reset();
        orologio.restart();
        misura.finestra = std::make_unique<Finestra>();
        misura.finestra->resize(1200, 800);
        misura.finestra->show();
        QApplication::processEvents();
        misura.dAperta = std::min(misura.dAperta, Secondi(orologio));
    }
    if (misura.finestra->Modello(0).Righe() != misura.righe ||
        misura.finestra->aId[0] != misura.finestra->Modello(0).Id(0)) {
        throw Errore(QStringLiteral("bench"), QStringLiteral("Lista non caricata per intero"));
    }
    return misura;
}

template <class Finestra> void Stampa(const char* sNome, const Misura<Finestra>& misura) {
    Uscita() << "lettura nuda della lista di " << sNome << ": " << misura.righe << " righe in "
             << Millisecondi(misura.dNuda)
             << "; apertura della finestra: " << Millisecondi(misura.dAperta)
             << Rapporto(misura.dAperta, misura.dNuda) << "\n";
}

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::Esegui(argc, argv, [](QApplication& app) {
        QElapsedTimer orologio;
        orologio.start();
        const ArchivioBanco::BancoFinestra banco(app.arguments(),
                                                 QStringLiteral("bench_puntiaccesso"));
        const Connessione& cnn = *Sessione::cnn;
        const qint64 persone = banco.richiesti;
        const qint64 luoghi = std::max<qint64>(1, persone / 2);
        const qint64 titolari = std::max<qint64>(1, persone / 20);
        Costruisci(cnn, persone, QStringLiteral("Antroponimi"), QStringLiteral("ID_Antroponimo"),
                   QStringLiteral("Nome"), QStringLiteral("Rossi"),
                   {{QStringLiteral("PGAntroponimi"), QStringLiteral("ID_PGAntroponimo"),
                     QStringLiteral("ID_Pergamena")},
                    {QStringLiteral("DIAntroponimi"), QStringLiteral("ID_DIAntroponimo"),
                     QStringLiteral("ID_DatoInventariale")}});
        Costruisci(
            cnn, luoghi, QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"),
            QStringLiteral("Denominazione"), QStringLiteral("Luogo"),
            {{QStringLiteral("PGToponimi"), QString(), QStringLiteral("ID_Pergamena")},
             {QStringLiteral("DIToponimi"), QString(), QStringLiteral("ID_DatoInventariale")}});
        Costruisci(cnn, titolari, QStringLiteral("Titolari"), QStringLiteral("ID_Titolare"),
                   QStringLiteral("Nome"), QStringLiteral("Titolare"),
                   {{QStringLiteral("SGTitolari"), QStringLiteral("ID_SGTitolare"),
                     QStringLiteral("ID_Sigillo")}});
        cnn.Esegui(QStringLiteral("ANALYZE"));
        Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite")
                 << ", punti d'accesso: " << persone << " persone, " << luoghi << " toponimi, "
                 << titolari << " titolari, in " << Tempo(Secondi(orologio)) << "\n";

        Stampa("Persone", Misura3<frmAntroponimi>(cnn));
        Stampa("Toponimi", Misura3<frmToponimi>(cnn));
        Misura<frmTitolari> titolariMisura = Misura3<frmTitolari>(cnn);
        Stampa("Titolari", titolariMisura);

        // Clicks on persons spread over the list: the slowest and the median.
        Misura<frmAntroponimi> aperta = Misura3<frmAntroponimi>(cnn);
        frmAntroponimi& f = *aperta.finestra;
        QList<double> clic;
        const int iRighe = f.Modello(0).Righe();
        for (int k = 1; k <= 50; ++k) {
            const int iRiga = static_cast<int>((static_cast<qint64>(iRighe - 1) * k) / 50);
            orologio.restart();
            f.Lista(0)->setCurrentIndex(f.Modello(0).index(iRiga));
            QApplication::processEvents();
            clic.append(Secondi(orologio));
            if (f.aId[0] != f.Modello(0).Id(iRiga) || f.fraAntroponimo->LeggiID() == 0) {
                throw Errore(QStringLiteral("bench"),
                             QStringLiteral("Persona della riga %1 non mostrata").arg(iRiga));
            }
        }
        Uscita() << "clic su una persona fino al suo record (" << clic.size()
                 << " persone): " << MedianaELento(clic) << "\n";
        return 0;
    });
}
