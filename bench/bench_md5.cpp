// The digest of a large file against the system's md5sum, in one run: the file is written once,
// read once to bring it into the page cache, then digested by each in turn.
//   build/bench/bench_md5 [MiB]   (1024 unless told)

#include "images/basGestImgMag.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const qint64 mib = argc > 1 ? QByteArray(argv[1]).toLongLong() : 1024;
    QTemporaryDir cartella;
    const QString percorso = cartella.filePath(QStringLiteral("grande.bin"));
    {
        QFile file(percorso);
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        QByteArray blocco(1024 * 1024, Qt::Uninitialized);
        for (qint64 i = 0; i < mib; ++i) {
            for (int j = 0; j < blocco.size(); ++j)
                blocco[j] = char((i * 131 + j * 7 + (j >> 9)) & 0xFF);
            file.write(blocco);
        }
    }
    auto md5sum = [&percorso](QString& digest) {
        QProcess processo;
        processo.start(QStringLiteral("md5sum"), {percorso});
        processo.waitForFinished(-1);
        digest = QString::fromLatin1(processo.readAllStandardOutput().left(32));
    };
    QString sAtteso;
    md5sum(sAtteso); // warms the page cache

    QElapsedTimer t;
    t.start();
    QString sRiferimento;
    md5sum(sRiferimento);
    const double tMd5sum = double(t.nsecsElapsed()) / 1e9;

    t.restart();
    QString sErrore;
    const QString sDigest = basGestImgMag::sCalculateMd5(percorso, sErrore);
    const double tNostro = double(t.nsecsElapsed()) / 1e9;

    std::printf("file: %lld MiB\nmd5sum: %.3f s\nsCalculateMd5: %.3f s\nratio: %.3f\n%s\n", mib,
                tMd5sum, tNostro, tNostro / tMd5sum,
                sDigest == sRiferimento ? "digests agree" : "DIGESTS DIFFER");
    return sDigest == sRiferimento ? 0 : 1;
}
