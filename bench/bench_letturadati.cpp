// Reading the records of a data file: the scanner of the export's layout against the general
// XML reader (QXmlStreamReader) on the same file, records per second for each.
//   build/bench/bench_letturadati [records]

#include "exchange/LetturaDati.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

namespace {

qint64 Leggi(const QString& sPercorso, qint64 lInizio, double& dSecondi) {
    QElapsedTimer orologio;
    orologio.start();
    qint64 lRecord = 0;
    Import::LettoreDati lettore(sPercorso, 4, lInizio);
    Import::BloccoLetto blocco;
    while (lettore.Prossimo(blocco))
        lRecord += static_cast<qint64>(blocco.fineRecord.size());
    dSecondi = static_cast<double>(orologio.nsecsElapsed()) / 1e9;
    return lRecord;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const qint64 lQuanti = argc > 1 ? QByteArray(argv[1]).toLongLong() : 1000000;
    QTemporaryDir cartella;
    const QString sPercorso = cartella.filePath(QStringLiteral("Prova.xml"));
    {
        QFile dati(sPercorso);
        if (!dati.open(QIODevice::WriteOnly))
            return 1;
        dati.write("<?xml version = \"1.0\" encoding=\"UTF-8\"?><table name=\"Prova\" "
                   "version=\"4\" code=\"AB01\">");
        for (qint64 i = 1; i <= lQuanti; ++i) {
            const QByteArray n = QByteArray::number(i);
            dati.write("\r\n\t<record>\r\n\t\t<field id=\"1\" null=\"0\">" + n +
                       "</field>\r\n\t\t<field id=\"2\" null=\"0\">Fascicolo n. " + n +
                       " dell'archivio di Citt\xc3\xa0 &amp; Provincia</field>\r\n\t\t<field "
                       "id=\"3\" null=\"0\">" +
                       n + ",25</field>\r\n\t\t<field id=\"4\" null=\"1\"/>\r\n\t</record>");
        }
        dati.write("\r\n</table>\r\n");
    }
    const qint64 lInizio = Import::LettoreDati::LeggiTesta(sPercorso).lInizioCorpo;
    double dScanner = 0;
    double dGenerale = 0;
    const qint64 lScanner = Leggi(sPercorso, lInizio, dScanner);
    const qint64 lGenerale = Leggi(sPercorso, -1, dGenerale);
    if (lScanner != lQuanti || lGenerale != lQuanti) {
        std::printf("record letti: %lld e %lld su %lld\n", lScanner, lGenerale, lQuanti);
        return 1;
    }
    std::printf("%lld record: scanner %.2f s (%.0f record/s), QXmlStreamReader %.2f s (%.0f "
                "record/s), rapporto %.1f\n",
                lQuanti, dScanner, static_cast<double>(lQuanti) / dScanner, dGenerale,
                static_cast<double>(lQuanti) / dGenerale, dGenerale / dScanner);
    return 0;
}
