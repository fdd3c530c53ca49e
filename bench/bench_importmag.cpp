// The MAG import of a document that lists many images against `cp` of the same files to the
// same disk, in one run: the images are written once and read once into the page cache, then
// copied by `cp` and imported by XmlMag::ImportXmlMag (digest, copy, index, counter, the writes
// of Elementi and MD5Location on a fresh SQLite database).
//   QT_QPA_PLATFORM=offscreen build/bench/bench_importmag [images] [KiB per image]
//   (1000 images of 1024 KiB unless told; BENCH_SENZA_DIALOGO=1 keeps the progress dialog away)

#include "images/XmlMag.h"
#include "images/basGestImgMag.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

namespace {

QString LeggiTesto(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const int nImmagini = argc > 1 ? QByteArray(argv[1]).toInt() : 1000;
    const int kib = argc > 2 ? QByteArray(argv[2]).toInt() : 1024;
    QTemporaryDir cartella;
    const QString sSorgente = cartella.path() + QStringLiteral("/scansioni/vol1/");
    QDir().mkpath(sSorgente + QStringLiteral("tiff"));

    // The images and the document, in the standard's shape.
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<metadigit "
                     "xmlns=\"http://www.iccu.sbn.it/metaAG1.pdf\" "
                     "xmlns:xlink=\"http://www.w3.org/TR/xlink\" version=\"2.0.1\">\n"
                     "  <gen><stprog>http://www.iccu.sbn.it</stprog></gen>\n";
    QByteArray blocco(kib * 1024, Qt::Uninitialized);
    for (int i = 1; i <= nImmagini; ++i) {
        const QByteArray nome = QByteArray::number(i).rightJustified(4, '0') + ".tif";
        for (int j = 0; j < blocco.size(); ++j)
            blocco[j] = char((i * 131 + j * 7 + (j >> 9)) & 0xFF);
        QFile file(sSorgente + QStringLiteral("tiff/") + QString::fromLatin1(nome));
        if (!file.open(QIODevice::WriteOnly) || file.write(blocco) != blocco.size())
            return 1;
        xml += "  <img><sequence_number>" + QByteArray::number(i) +
               "</sequence_number><nomenclature>c. " + QByteArray::number(i) +
               "</nomenclature><file Location=\"URI\" xlink:href=\"./tiff/" + nome + "\"/></img>\n";
    }
    xml += "</metadigit>\n";
    const QString sDoc = sSorgente + QStringLiteral("mag.xml");
    {
        QFile file(sDoc);
        if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
            return 1;
    }

    // A fresh database with one element, and the repository root.
    const QString stringa =
        ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), cartella.path(),
                                  QStringLiteral("bench_mag"), QString(), QString());
    long lId = 0;
    try {
        const StringaConnessione letta = StringaConnessione::Leggi(stringa);
        Connessione::BackendDi(letta).CreaDatabase(letta);
        Sessione::cnn = Connessione::Apri(stringa);
        const QString schema = QStringLiteral(TABELLION_SORGENTI "/db/sqlite/schema.sql");
        EseguiScript(*Sessione::cnn, LeggiTesto(schema), schema);
        lId = ArchivioElementi::Crea(*Sessione::cnn, QStringLiteral("01"),
                                     QStringLiteral("Archivio di Stato"), 0);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "database: %s\n", e.what());
        return 1;
    }
    Sessione::sParam01 = cartella.path() + QStringLiteral("/repo");
    Sessione::sParam12 = QStringLiteral("http://archivio.example.it/img");
    QDir().mkpath(Sessione::sParam01);

    // The page cache is warmed by a first `cp`, whose copy is then dropped.
    auto cp = [&](const QString& sDestinazione) {
        QDir().mkpath(sDestinazione);
        QProcess processo;
        processo.start(QStringLiteral("cp"),
                       {QStringLiteral("-r"), sSorgente + QStringLiteral("tiff/."), sDestinazione});
        processo.waitForFinished(-1);
        return processo.exitCode() == 0;
    };
    if (!cp(cartella.path() + QStringLiteral("/caldo")))
        return 1;
    QDir(cartella.path() + QStringLiteral("/caldo")).removeRecursively();

    if (qEnvironmentVariableIsSet("BENCH_SENZA_DIALOGO"))
        basGestImgMag::ImpostaAttesaAvanzamento(1'000'000'000);
    // Each timed step starts with no dirty pages left by the one before.
    auto sync = [] {
        QProcess::execute(QStringLiteral("sync"), {});
    };
    sync();
    QElapsedTimer t;
    t.start();
    if (!cp(cartella.path() + QStringLiteral("/copia")))
        return 1;
    const double tCp = double(t.nsecsElapsed()) / 1e9;

    sync();
    t.restart();
    QString sMd5;
    QString sErrore;
    XmlMag::ImportXmlMag(lId, sDoc, sMd5, sErrore);
    const double tImport = double(t.nsecsElapsed()) / 1e9;

    // cp once more after the import, so that neither side gains from going first.
    sync();
    t.restart();
    if (!cp(cartella.path() + QStringLiteral("/copia2")))
        return 1;
    const double tCp2 = double(t.nsecsElapsed()) / 1e9;

    const qsizetype nCopiate =
        QDir(Sessione::sParam01 + sSorgente + QStringLiteral("1")).entryList(QDir::Files).size();
    const double tCpMedio = (tCp + tCp2) / 2;
    std::printf("images: %d of %d KiB\ncp before: %.3f s\nImportXmlMag: %.3f s\ncp after: %.3f "
                "s\nratio (import / mean of cp): %.3f\n%s\n",
                nImmagini, kib, tCp, tImport, tCp2, tImport / tCpMedio,
                sErrore.isEmpty() && nCopiate == nImmagini ? "all images imported"
                                                           : qPrintable(sErrore));
    Sessione::Azzera();
    return sErrore.isEmpty() && nCopiate == nImmagini ? 0 : 1;
}
