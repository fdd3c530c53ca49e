// The MD5 digest: of a file's whole content for the image repository, and of a text in memory.

#include "images/Md5.h"
#include "images/basGestImgMag.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// RFC 1321, appendix A.5.
const char* const Alfabeto = "abcdefghijklmnopqrstuvwxyz";
const char* const TuttiICaratteri =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
const char* const OttantaCifre =
    "12345678901234567890123456789012345678901234567890123456789012345678901234567890";

void SuiteRfc1321() {
    QTest::addColumn<QByteArray>("messaggio");
    QTest::addColumn<QString>("digest");
    QTest::newRow("vuoto") << QByteArray("") << QStringLiteral("d41d8cd98f00b204e9800998ecf8427e");
    QTest::newRow("a") << QByteArray("a") << QStringLiteral("0cc175b9c0f1b6a831c399e269772661");
    QTest::newRow("abc") << QByteArray("abc") << QStringLiteral("900150983cd24fb0d6963f7d28e17f72");
    QTest::newRow("message digest")
        << QByteArray("message digest") << QStringLiteral("f96b697d7cb7938d525a2f31aaf161d0");
    QTest::newRow("alfabeto") << QByteArray(Alfabeto)
                              << QStringLiteral("c3fcd3d76192e4007dfb496cca67e13b");
    QTest::newRow("lettere e cifre")
        << QByteArray(TuttiICaratteri) << QStringLiteral("d174ab98d277d9f5a5611c2c9f419d9f");
    QTest::newRow("ottanta cifre")
        << QByteArray(OttantaCifre) << QStringLiteral("57edf4a22be3c955ac49da2e2107b67a");
}

QString Scrivi(const QTemporaryDir& cartella, const QString& nome, const QByteArray& contenuto) {
    const QString percorso = cartella.filePath(nome);
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly) || file.write(contenuto) != contenuto.size())
        qFatal("can't write the test file");
    return percorso;
}

} // namespace

class TestMd5 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ilDigestDiUnTestoSegueLaSuiteDiRfc1321_data() { SuiteRfc1321(); }
    void ilDigestDiUnTestoSegueLaSuiteDiRfc1321();
    void ilDigestDiUnFileSegueLaSuiteDiRfc1321_data() { SuiteRfc1321(); }
    void ilDigestDiUnFileSegueLaSuiteDiRfc1321();
    void ilMessaggioVuotoDaIlDigestStandard();
    void unaLetteraAccentataContaUnByte();
    void unCarattereFuoriDalLatin1DiventaPuntoInterrogativo();
    void ilDigestEScrittoInMinuscolo();
    void unFileGrandeSiLeggeFinoInFondo();
    void unFileMancanteDaIlMessaggioDiErrore();
    void unaCartellaAlPostoDelFileDaIlMessaggioDiErrore();
    void unPercorsoConApostrofoSiLegge();
    void unPercorsoChiIlFileSystemNonPuoPortareFallisce();
    void ilTestoDiErroreRestaVuotoSeIlDigestRiesce();
};

void TestMd5::ilDigestDiUnTestoSegueLaSuiteDiRfc1321() {
    QFETCH(QByteArray, messaggio);
    QFETCH(QString, digest);
    QCOMPARE(CMD5().MD5(QString::fromLatin1(messaggio)), digest);
}

void TestMd5::ilDigestDiUnFileSegueLaSuiteDiRfc1321() {
    QFETCH(QByteArray, messaggio);
    QFETCH(QString, digest);
    QTemporaryDir cartella;
    const QString percorso = Scrivi(cartella, QStringLiteral("messaggio.bin"), messaggio);
    QString sErrore;
    QCOMPARE(basGestImgMag::sCalculateMd5(percorso, sErrore), digest);
    QVERIFY(sErrore.isEmpty());
}

void TestMd5::ilMessaggioVuotoDaIlDigestStandard() {
    QCOMPARE(CMD5().MD5(QString()), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
}

void TestMd5::unaLetteraAccentataContaUnByte() {
    // "è" is the one byte 0xE8 of Latin-1, not the two of UTF-8.
    const QString sAtteso = QString::fromLatin1(
        QCryptographicHash::hash(QByteArray("citt\xe0 e caff\xe8"), QCryptographicHash::Md5)
            .toHex());
    QCOMPARE(CMD5().MD5(QStringLiteral("città e caffè")), sAtteso);
    QVERIFY(CMD5().MD5(QStringLiteral("è")) !=
            QString::fromLatin1(
                QCryptographicHash::hash(QByteArray("\xc3\xa8"), QCryptographicHash::Md5).toHex()));
}

void TestMd5::unCarattereFuoriDalLatin1DiventaPuntoInterrogativo() {
    QCOMPARE(CMD5().MD5(QStringLiteral("€ 10")), CMD5().MD5(QStringLiteral("? 10")));
}

void TestMd5::ilDigestEScrittoInMinuscolo() {
    const QString sDigest = CMD5().MD5(QStringLiteral("Tabellion Archivista"));
    QCOMPARE(sDigest.size(), 32);
    QCOMPARE(sDigest, sDigest.toLower());
    QTemporaryDir cartella;
    QString sErrore;
    const QString sFile = basGestImgMag::sCalculateMd5(
        Scrivi(cartella, QStringLiteral("m.xml"), QByteArray("<metadigit/>")), sErrore);
    QCOMPARE(sFile.size(), 32);
    QCOMPARE(sFile, sFile.toLower());
}

void TestMd5::unFileGrandeSiLeggeFinoInFondo() {
    // More than one block of the reading, and not a multiple of it.
    QByteArray contenuto;
    contenuto.reserve(70 * 1024 * 1024 + 123);
    for (int i = 0; contenuto.size() < 70 * 1024 * 1024 + 123; ++i)
        contenuto.append(char(i * 31 + (i >> 8)));
    contenuto.truncate(70 * 1024 * 1024 + 123);
    QTemporaryDir cartella;
    const QString percorso = Scrivi(cartella, QStringLiteral("grande.bin"), contenuto);
    QString sErrore;
    QCOMPARE(
        basGestImgMag::sCalculateMd5(percorso, sErrore),
        QString::fromLatin1(QCryptographicHash::hash(contenuto, QCryptographicHash::Md5).toHex()));
}

void TestMd5::unFileMancanteDaIlMessaggioDiErrore() {
    QTemporaryDir cartella;
    const QString percorso = cartella.filePath(QStringLiteral("non_c_e.xml"));
    QString sErrore;
    QCOMPARE(basGestImgMag::sCalculateMd5(percorso, sErrore), QString());
    QCOMPARE(sErrore, QStringLiteral("Errore nel calcolo del codice MD5 (File: %1)").arg(percorso));
}

void TestMd5::unaCartellaAlPostoDelFileDaIlMessaggioDiErrore() {
    QTemporaryDir cartella;
    QString sErrore;
    QCOMPARE(basGestImgMag::sCalculateMd5(cartella.path(), sErrore), QString());
    QCOMPARE(sErrore,
             QStringLiteral("Errore nel calcolo del codice MD5 (File: %1)").arg(cartella.path()));
}

void TestMd5::unPercorsoConApostrofoSiLegge() {
    QTemporaryDir cartella;
    QVERIFY(QDir(cartella.path()).mkdir(QStringLiteral("Sant'Anna")));
    const QString percorso =
        Scrivi(cartella, QStringLiteral("Sant'Anna/l'archivio.xml"), QByteArray("abc"));
    QString sErrore;
    QCOMPARE(basGestImgMag::sCalculateMd5(percorso, sErrore),
             QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
    QVERIFY(sErrore.isEmpty());
}

void TestMd5::unPercorsoChiIlFileSystemNonPuoPortareFallisce() {
    // A lone surrogate has no form among the file system's 8-bit names: the name reaches it
    // changed and the file is not the one asked for.
    QTemporaryDir cartella;
    Scrivi(cartella, QStringLiteral("a.xml"), QByteArray("abc"));
    const QString percorso =
        cartella.path() + QStringLiteral("/a") + QChar(0xD800) + QStringLiteral(".xml");
    QString sErrore;
    QCOMPARE(basGestImgMag::sCalculateMd5(percorso, sErrore), QString());
    QCOMPARE(sErrore, QStringLiteral("Errore nel calcolo del codice MD5 (File: %1)").arg(percorso));
}

void TestMd5::ilTestoDiErroreRestaVuotoSeIlDigestRiesce() {
    QTemporaryDir cartella;
    QString sErrore;
    basGestImgMag::sCalculateMd5(Scrivi(cartella, QStringLiteral("x"), QByteArray("x")), sErrore);
    QVERIFY(sErrore.isEmpty());
}

QTEST_GUILESS_MAIN(TestMd5)
#include "tst_md5.moc"
