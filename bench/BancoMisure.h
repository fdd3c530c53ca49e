#pragma once

// What the window benchmarks share in their timing and printing: a time in milliseconds, the
// ratio of a time to the bare read, the median and the slowest of a set of times, clicks on the
// nodes of a tree until the record shows each, the best of a few openings of a window with
// three tabs against the bare read of each tab's list, and the run of a benchmark offscreen
// with an error printed and turned into the exit code.

#include "ArchivioBanco.h"
#include "session/Errore.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QList>
#include <QModelIndex>
#include <QString>
#include <QTabWidget>
#include <algorithm>
#include <array>
#include <functional>
#include <memory>

namespace ArchivioBanco {

inline QString Millisecondi(double dSecondi) {
    return QStringLiteral("%1 ms").arg(dSecondi * 1000, 0, 'f', 2);
}

// A time against the bare read of the same rows, as it follows the time.
inline QString Rapporto(double dTempo, double dRiferimento) {
    return QStringLiteral(" (rapporto %1 sulla lettura nuda)")
        .arg(dTempo / dRiferimento, 0, 'f', 2);
}

// The times sorted, their median and the slowest.
inline QString MedianaELento(QList<double> tempi) {
    std::sort(tempi.begin(), tempi.end());
    return QStringLiteral("mediana %1, il più lento %2")
        .arg(Millisecondi(tempi[tempi.size() / 2]), Millisecondi(tempi.last()));
}

// The time of a click on each node of those ids in the window's tree until the window has
// shown it (bMostrato); one not shown ends the benchmark with that text and the id.
template <class Finestra>
QList<double> ClicSuiNodi(Finestra& finestra, const QList<qint64>& ids,
                          const std::function<bool()>& bMostrato, const QString& sNonMostrato) {
    QList<double> clic;
    QElapsedTimer orologio;
    for (const qint64 lId : ids) {
        const QModelIndex nodo = finestra.Modello().Trova(lId);
        orologio.restart();
        finestra.tvwDB->setCurrentIndex(nodo);
        QApplication::processEvents();
        clic.append(Secondi(orologio));
        if (finestra.lIdCorrente != lId || !bMostrato()) {
            throw Errore(QStringLiteral("bench"), sNonMostrato.arg(lId));
        }
    }
    return clic;
}

// A window of three tabs (SSTab1) opened Ripetizioni times, each time after the bare read of
// each tab's list (lettura), and each other tab shown: the best time of each kept (the least
// disturbed by the rest of the machine), the rows of each bare read, and the window of the last
// opening, left open.
template <class Finestra> struct SchedeMisurate {
    std::array<double, 3> nude{1e9, 1e9, 1e9};
    std::array<double, 3> mostrate{1e9, 1e9, 1e9};
    std::array<qint64, 3> righe{};
    std::unique_ptr<Finestra> finestra;
};

template <class Finestra>
SchedeMisurate<Finestra> MisuraSchede(const std::function<Lettura(int)>& lettura) {
    constexpr int Ripetizioni = 3;
    SchedeMisurate<Finestra> misure;
    QElapsedTimer orologio;
    for (int r = 0; r < Ripetizioni; ++r) {
        for (int i = 0; i < 3; ++i) {
            const Lettura nuda = lettura(i);
            misure.nude[i] = std::min(misure.nude[i], nuda.dSecondi);
            misure.righe[i] = nuda.righe;
        }
        misure.finestra.reset();
        orologio.restart();
        misure.finestra = std::make_unique<Finestra>();
        misure.finestra->resize(1200, 800);
        misure.finestra->show();
        QApplication::processEvents();
        misure.mostrate[0] = std::min(misure.mostrate[0], Secondi(orologio));
        for (int i = 1; i < 3; ++i) {
            orologio.restart();
            misure.finestra->SSTab1->setCurrentIndex(i);
            QApplication::processEvents();
            misure.mostrate[i] = std::min(misure.mostrate[i], Secondi(orologio));
        }
    }
    return misure;
}

// The first line of the benchmarks over producers: the server and what was built, in how long.
inline void StampaProduttori(bool bPostgreSQL, qint64 persone, qint64 altri, double dSecondi) {
    Uscita() << (bPostgreSQL ? "PostgreSQL" : "SQLite") << ", produttori: " << persone
             << " persone, " << altri << " famiglie, " << altri << " enti, in " << Tempo(dSecondi)
             << "\n";
}

// A benchmark run offscreen: its exit code, or 1 with the error's text printed.
inline int Esegui(int argc, char** argv, const std::function<int(QApplication&)>& banco) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    try {
        return banco(app);
    } catch (const Errore& errore) {
        Uscita() << errore.testo() << '\n';
        return 1;
    }
}

// A benchmark of a window run offscreen (see Esegui): the clock started, then the fresh database
// of BancoFinestra made, both handed to the benchmark with the application.
inline int EseguiFinestra(
    int argc, char** argv, const QString& sNome,
    const std::function<int(QApplication&, const BancoFinestra&, QElapsedTimer&)>& banco) {
    return Esegui(argc, argv, [&sNome, &banco](QApplication& app) {
        QElapsedTimer orologio;
        orologio.start();
        const BancoFinestra finestra(app.arguments(), sNome);
        return banco(app, finestra, orologio);
    });
}

} // namespace ArchivioBanco
