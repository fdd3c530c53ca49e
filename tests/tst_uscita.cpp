// The end of the program by the roads that do not pass through its main window's own closing:
// the desktop session that ends, by its signals or by the display that goes away. The built
// program is started as a process on an X display of its own (Xvfb), a login is typed into its
// dialog (xdotool), a window is opened from the menu, and the process must end cleanly, with
// the session's connection closed while Qt still lives, on SQLite and on PostgreSQL.

#include "BancaDatiProva.h"
#include "CartellaProva.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <csignal>

namespace {

// An X display of its own, that Xvfb names when it is ready.
class Schermo {
public:
    Schermo() {
        xvfb.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1280x1024x24"),
                    QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        QElapsedTimer orologio;
        orologio.start();
        QByteArray uscita;
        while (!uscita.contains('\n') && orologio.elapsed() < 20000 &&
               xvfb.state() != QProcess::NotRunning) {
            xvfb.waitForReadyRead(500);
            uscita += xvfb.readAllStandardOutput();
        }
        if (uscita.contains('\n')) {
            sNome = QLatin1Char(':') + QString::fromLatin1(uscita.trimmed());
        }
    }
    ~Schermo() { Spegni(); }
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;

    // ":N", or "" when the display did not come up.
    QString Nome() const { return sNome; }
    // The display goes away, as at the end of a desktop session.
    void Spegni() {
        if (xvfb.state() != QProcess::NotRunning) {
            xvfb.terminate();
            if (!xvfb.waitForFinished(10000)) {
                xvfb.kill();
                xvfb.waitForFinished(5000);
            }
        }
    }

private:
    QProcess xvfb;
    QString sNome;
};

// Runs xdotool on the display; its exit code (-1 if it did not end in time) and its output.
struct EsitoXdotool {
    int codice;
    QString uscita;
};
EsitoXdotool Xdotool(const QString& sSchermo, const QStringList& argomenti,
                     int iMillisecondi = 30000) {
    QProcess xdotool;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("DISPLAY"), sSchermo);
    xdotool.setProcessEnvironment(ambiente);
    xdotool.start(QStringLiteral("xdotool"), argomenti);
    if (!xdotool.waitForFinished(iMillisecondi)) {
        xdotool.kill();
        xdotool.waitForFinished(5000);
        return {-1, QString()};
    }
    return {xdotool.exitStatus() == QProcess::NormalExit ? xdotool.exitCode() : -1,
            QString::fromUtf8(xdotool.readAllStandardOutput()).trimmed()};
}

// True when a window whose title matches the pattern is on the display, within the time.
bool AttendiFinestra(const QString& sSchermo, const QString& sTitolo, int iMillisecondi = 30000) {
    QElapsedTimer orologio;
    orologio.start();
    while (orologio.elapsed() < iMillisecondi) {
        if (Xdotool(sSchermo, {QStringLiteral("search"), QStringLiteral("--name"), sTitolo})
                .codice == 0) {
            return true;
        }
        QTest::qWait(100);
    }
    return false;
}

// True when no window whose title matches the pattern is left, within the time.
bool AttendiChiusura(const QString& sSchermo, const QString& sTitolo, int iMillisecondi = 30000) {
    QElapsedTimer orologio;
    orologio.start();
    while (orologio.elapsed() < iMillisecondi) {
        if (Xdotool(sSchermo, {QStringLiteral("search"), QStringLiteral("--name"), sTitolo})
                .codice == 1) {
            return true;
        }
        QTest::qWait(100);
    }
    return false;
}

// A site for the database, with the lookup lists that the window of complessi reads.
void PreparaSito(const CartellaProva& cartella, const BancaDatiProva& banca) {
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    for (const char* lista : {"TipologiaIST.txt", "TipologiaCD.txt"}) {
        QFile::copy(QStringLiteral(TABELLION_SORGENTI "/site/") + QLatin1String(lista),
                    cartella.File(QLatin1String(lista)));
    }
    QDir().mkpath(cartella.File(QStringLiteral("Bitmap")));
    const QDir immagini(QStringLiteral(TABELLION_SORGENTI "/site/Bitmap"));
    for (const QString& nome : immagini.entryList(QDir::Files)) {
        QFile::copy(immagini.filePath(nome), cartella.File(QStringLiteral("Bitmap/") + nome));
    }
}

} // namespace

class TestUscita : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void unSegnaleDiFineSessioneChiudeIlProgrammaSenzaErrori_data();
    void unSegnaleDiFineSessioneChiudeIlProgrammaSenzaErrori();
    void loSchermoCheSeNeVaNonFaCadereIlProgramma_data() { AggiungiBackend(); }
    void loSchermoCheSeNeVaNonFaCadereIlProgramma();

private:
    // Starts the program on the display, logs in and opens "Complessi documentari" from the
    // menu: the session is open and a child window stands in the main one.
    void AvviaConSessione(QProcess& programma, const Schermo& schermo,
                          const CartellaProva& cartella, const BancaDatiProva& banca);
    QString sProgramma;
};

void TestUscita::initTestCase() {
    sProgramma = qEnvironmentVariable("TABELLION_PROGRAMMA");
    QVERIFY2(!sProgramma.isEmpty(), "TABELLION_PROGRAMMA names the program");
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty() ||
        QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty()) {
        QSKIP("Xvfb or xdotool is not installed (scripts/test installs them)");
    }
}

void TestUscita::AvviaConSessione(QProcess& programma, const Schermo& schermo,
                                  const CartellaProva& cartella, const BancaDatiProva& banca) {
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("DISPLAY"), schermo.Nome());
    ambiente.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    ambiente.insert(QStringLiteral("TABELLION_CARTELLA"), cartella.Percorso());
    programma.setProcessEnvironment(ambiente);
    programma.setProcessChannelMode(QProcess::MergedChannels);
    programma.start(sProgramma, {});
    QVERIFY2(programma.waitForStarted(10000), qPrintable(programma.errorString()));

    const QString sSchermo = schermo.Nome();
    QVERIFY2(AttendiFinestra(sSchermo, QStringLiteral("^Login$")), "the login dialog came up");
    const EsitoXdotool login = Xdotool(
        sSchermo, {QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^Login$")});
    QCOMPARE(login.codice, 0);
    const QString sFinestra = login.uscita.section(QLatin1Char('\n'), 0, 0);
    QCOMPARE(Xdotool(sSchermo, {QStringLiteral("windowfocus"), QStringLiteral("--sync"), sFinestra})
                 .codice,
             0);
    // User, Tab, password, back to the user, whose Enter acts as Avanti.
    const auto scrivi = [&](const QString& sTesto) {
        if (!sTesto.isEmpty()) {
            QCOMPARE(Xdotool(sSchermo, {QStringLiteral("type"), QStringLiteral("--delay"),
                                        QStringLiteral("20"), sTesto})
                         .codice,
                     0);
        }
    };
    const auto tasto = [&](const QString& sTasto) {
        QCOMPARE(Xdotool(sSchermo, {QStringLiteral("key"), sTasto}).codice, 0);
    };
    scrivi(banca.Utente());
    tasto(QStringLiteral("Tab"));
    scrivi(banca.Password());
    tasto(QStringLiteral("shift+Tab"));
    tasto(QStringLiteral("Return"));
    QVERIFY2(AttendiChiusura(sSchermo, QStringLiteral("^Login$")),
             "the login dialog went away (a refused login leaves it, with its box)");

    // The menus of the session are on: "&Complessi documentari" opens its window in the frame.
    const EsitoXdotool principale =
        Xdotool(sSchermo, {QStringLiteral("search"), QStringLiteral("--name"),
                           QStringLiteral("^Tabulario - Gestione dati$")});
    QCOMPARE(principale.codice, 0);
    QCOMPARE(Xdotool(sSchermo, {QStringLiteral("windowfocus"), QStringLiteral("--sync"),
                                principale.uscita.section(QLatin1Char('\n'), 0, 0)})
                 .codice,
             0);
    tasto(QStringLiteral("alt+c"));
    QVERIFY2(AttendiFinestra(sSchermo, QStringLiteral("Complessi documentari")),
             "the window of complessi opened from the menu");
    QCOMPARE(programma.state(), QProcess::Running);
}

void TestUscita::unSegnaleDiFineSessioneChiudeIlProgrammaSenzaErrori_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<int>("segnale");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        QTest::newRow(qPrintable(QStringLiteral("%1 SIGTERM").arg(QLatin1String(nome))))
            << tipo << int(SIGTERM);
        QTest::newRow(qPrintable(QStringLiteral("%1 SIGHUP").arg(QLatin1String(nome))))
            << tipo << int(SIGHUP);
    }
}

void TestUscita::unSegnaleDiFineSessioneChiudeIlProgrammaSenzaErrori() {
    QFETCH(TipoBackend, backend);
    QFETCH(int, segnale);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    PreparaSito(cartella, banca);
    Schermo schermo;
    QVERIFY2(!schermo.Nome().isEmpty(), "Xvfb gave a display");
    QProcess programma;
    AvviaConSessione(programma, schermo, cartella, banca);
    if (QTest::currentTestFailed()) {
        programma.kill();
        programma.waitForFinished(5000);
        return;
    }

    // The desktop session ends: the program leaves its event loop, as QApplication::quit().
    QVERIFY(::kill(static_cast<pid_t>(programma.processId()), segnale) == 0);
    QVERIFY2(programma.waitForFinished(30000), "the program ended");
    const QString sUscita = QString::fromLocal8Bit(programma.readAll());
    QVERIFY2(
        programma.exitStatus() == QProcess::NormalExit,
        qPrintable(
            QStringLiteral("the program died (%1): %2").arg(programma.exitCode()).arg(sUscita)));
    QCOMPARE(programma.exitCode(), 0);
}

void TestUscita::loSchermoCheSeNeVaNonFaCadereIlProgramma() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    PreparaSito(cartella, banca);
    Schermo schermo;
    QVERIFY2(!schermo.Nome().isEmpty(), "Xvfb gave a display");
    QProcess programma;
    AvviaConSessione(programma, schermo, cartella, banca);
    if (QTest::currentTestFailed()) {
        programma.kill();
        programma.waitForFinished(5000);
        return;
    }

    // The display goes away under the program: Qt ends the process at once, through exit().
    schermo.Spegni();
    QVERIFY2(programma.waitForFinished(30000), "the program ended");
    const QString sUscita = QString::fromLocal8Bit(programma.readAll());
    QVERIFY2(programma.exitStatus() == QProcess::NormalExit,
             qPrintable(QStringLiteral("the program died: %1").arg(sUscita)));
}

QTEST_GUILESS_MAIN(TestUscita)
#include "tst_uscita.moc"
