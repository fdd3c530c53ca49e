// The conversions that every list and record runs many times: the list-reading input over a
// large text file, the date forms and the Italian numeric test. Prints records or values per
// second for each.

#include "session/Conversioni.h"
#include "session/LetturaLista.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace {

template <typename Lavoro> double Misura(const char* nome, qint64 volte, Lavoro lavoro) {
    QElapsedTimer orologio;
    orologio.start();
    lavoro();
    const double secondi = static_cast<double>(orologio.nsecsElapsed()) / 1e9;
    QTextStream(stdout) << QStringLiteral("%1: %2 in %3 s, %4 al secondo")
                               .arg(QLatin1String(nome))
                               .arg(volte)
                               .arg(secondi, 0, 'f', 3)
                               .arg(static_cast<double>(volte) / secondi, 0, 'f', 0)
                        << Qt::endl;
    return secondi;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    constexpr qint64 righe = 1'000'000;
    QByteArray testo;
    testo.reserve(righe * 24);
    for (qint64 i = 0; i < righe; ++i) {
        testo += "\"Voce numero " + QByteArray::number(i) + ", con virgola\"\r\n";
    }
    qsizetype record = 0;
    Misura("lettura lista (record)", righe, [&] { record = LeggiListaDaTesto(testo).size(); });

    qint64 somma = 0;
    Misura("DataDaNumero", righe, [&] {
        for (qint64 i = 0; i < righe; ++i) {
            somma += DataDaNumero(15000101 + (i % 28)).size();
        }
    });
    Misura("NumeroDaData", righe, [&] {
        for (qint64 i = 0; i < righe; ++i) {
            somma += NumeroDaData(QStringLiteral("%1/02/2004").arg(1 + i % 28)).toLongLong();
        }
    });
    Misura("IsNumeric", righe, [&] {
        for (qint64 i = 0; i < righe; ++i) {
            somma +=
                IsNumeric(QStringLiteral("1.234.%1,56").arg(i % 1000, 3, 10, QLatin1Char('0')));
        }
    });
    return record == righe && somma != 0 ? 0 : 1;
}
