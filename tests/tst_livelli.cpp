// The floors of the program: the session (start, login, session values, the platform seam) and
// the store (connection, backends, element store) are the ground on which the windows stand,
// and include no header of the windows, records and subsystems above them; the program's
// windows are registered above them all.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

// The folders of src/ above the session and the store.
const char* const Superiori[] = {"structure", "records", "parchments", "authorities",
                                 "links",     "images",  "exchange",   "programma"};

// Every "#include" of the files of a folder of src/ that names a folder above, as
// "file: include".
QStringList InclusioniDiSopra(const QString& sCartella) {
    const QDir sorgenti(QStringLiteral(TABELLION_SORGENTI "/src"));
    static const QRegularExpression inclusione(
        QStringLiteral("^\\s*#\\s*include\\s*[<\"]([^\">]+)[\">]"),
        QRegularExpression::MultilineOption);
    QStringList trovate;
    QDirIterator file(sorgenti.filePath(sCartella),
                      {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString sPercorso = file.next();
        QFile testo(sPercorso);
        if (!testo.open(QIODevice::ReadOnly)) {
            trovate.append(sPercorso + QStringLiteral(": unreadable"));
            continue;
        }
        const QString sTesto = QString::fromUtf8(testo.readAll());
        auto righe = inclusione.globalMatch(sTesto);
        while (righe.hasNext()) {
            const QString sIncluso = righe.next().captured(1);
            for (const char* superiore : Superiori) {
                if (sIncluso.startsWith(QLatin1String(superiore) + QLatin1Char('/')))
                    trovate.append(sorgenti.relativeFilePath(sPercorso) + QStringLiteral(": ") +
                                   sIncluso);
            }
        }
    }
    return trovate;
}

} // namespace

class TestLivelli : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void laSessioneEIlDepositoNonIncludonoNullaDeiSottosistemiSopra_data();
    void laSessioneEIlDepositoNonIncludonoNullaDeiSottosistemiSopra();
};

void TestLivelli::laSessioneEIlDepositoNonIncludonoNullaDeiSottosistemiSopra_data() {
    QTest::addColumn<QString>("cartella");
    QTest::newRow("session") << QStringLiteral("session");
    QTest::newRow("store") << QStringLiteral("store");
}

void TestLivelli::laSessioneEIlDepositoNonIncludonoNullaDeiSottosistemiSopra() {
    QFETCH(QString, cartella);
    QVERIFY(QDir(QStringLiteral(TABELLION_SORGENTI "/src/") + cartella).exists());
    const QStringList trovate = InclusioniDiSopra(cartella);
    QVERIFY2(trovate.isEmpty(), qPrintable(trovate.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestLivelli)
#include "tst_livelli.moc"
