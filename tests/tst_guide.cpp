// The help books of the program folder: each entry of the "?" menu hands the platform a PDF
// that the build made beside Menu.txt; the book opens, has its contents page and numbered
// pages, names the captions of the window it is about, and holds the pictures its text shows.
// The books are read with poppler-utils (pdfinfo, pdftotext, pdfimages), which scripts/test
// installs.

#include "programma/Registro.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"

#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTabWidget>
#include <QtTest>

namespace {

struct Libro {
    const char* sVoceGuida; // the entry of the "?" menu
    const char* sFile;      // the book's name in Menu.txt
    const char* sFinestra;  // the menu entry of the window it is about ("" for none)
    const char* sPannello;  // the editor whose labels it names ("" for the window's commands)
};

// The books in the order of Menu.txt.
const Libro Libri[] = {
    {"mnuHlpIST", "Scheda_Istituto", "mnuComplessiDoc", "fraIstituto"},
    {"mnuHlpCD", "Complessi_documentari", "mnuComplessiDoc", ""},
    {"mnuHlpINV", "Strumenti_ricerca", "mnuInventari", ""},
    {"mnuHlpSOG", "Produttore", "mnuSoggetti", ""},
    {"mnuHlpVER", "Nuove_acquisizioni", "mnuRegistro", ""},
    {"mnuHlpSTR", "Strumenti", "", ""},
};

QString SenzaAcceleratore(QString sTesto) {
    return sTesto.remove(u'&').simplified();
}

// What a command prints, or a failure that names it.
QString Esegui(const QString& sProgramma, const QStringList& argomenti) {
    QProcess processo;
    processo.start(sProgramma, argomenti);
    if (!processo.waitForFinished(60000) || processo.exitStatus() != QProcess::NormalExit ||
        processo.exitCode() != 0) {
        QTest::qFail(qPrintable(QStringLiteral("%1 %2 failed: %3")
                                    .arg(sProgramma, argomenti.join(u' '),
                                         QString::fromUtf8(processo.readAllStandardError()))),
                     __FILE__, __LINE__);
        return {};
    }
    // The text's ligatures (the "fi" of "Modifica" is one glyph in the book) as their letters.
    return QString::fromUtf8(processo.readAllStandardOutput())
        .normalized(QString::NormalizationForm_KC);
}

QString FileLibro(const char* sFile) {
    return QStringLiteral(TABELLION_SITO "/") + QLatin1String(sFile) + QStringLiteral(".pdf");
}

// The pictures that a book's source shows.
QSet<QString> FigureDelTesto(const char* sFile) {
    QFile sorgente(QStringLiteral(TABELLION_SORGENTI "/doc/guide/") + QLatin1String(sFile) +
                   QStringLiteral(".md"));
    if (!sorgente.open(QIODevice::ReadOnly)) {
        return {};
    }
    QSet<QString> figure;
    static const QRegularExpression immagine(QStringLiteral(R"(!\[[^\]]*\]\(([^)]+)\))"));
    auto trovate = immagine.globalMatch(QString::fromUtf8(sorgente.readAll()));
    while (trovate.hasNext()) {
        figure.insert(trovate.next().captured(1));
    }
    return figure;
}

} // namespace

class TestGuide : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void ogniVoceDelMenuAiutoApreLaSuaGuidaNellaCartellaDelProgramma();
    void ogniGuidaSiApreConIndiceEPagineNumerate_data();
    void ogniGuidaSiApreConIndiceEPagineNumerate();
    void ogniGuidaNominaLeDidascalieDellaSuaFinestra_data();
    void ogniGuidaNominaLeDidascalieDellaSuaFinestra();
    void ogniGuidaContieneLeFigureDelSuoTesto_data();
    void ogniGuidaContieneLeFigureDelSuoTesto();

private:
    void DatiLibri();
    // The captions that the window of the book shows, read from the real window opened from
    // its menu entry on the demo archive: its commands and tabs, or the labels of one editor;
    // for the book without a window, the entries of the Strumenti menu.
    QStringList Didascalie(const Libro& libro);

    std::unique_ptr<PiattaformaScriptata> seam;
    std::unique_ptr<PrimoMDI> principale;
};

void TestGuide::initTestCase() {
    for (const char* strumento : {"pdfinfo", "pdftotext", "pdfimages"}) {
        QVERIFY2(!QStandardPaths::findExecutable(QLatin1String(strumento)).isEmpty(),
                 qPrintable(QStringLiteral("%1 missing: install poppler-utils (scripts/test does)")
                                .arg(QLatin1String(strumento))));
    }
    // The program folder that the build assembled, with its Menu.txt and its demo archive.
    qputenv("TABELLION_CARTELLA", TABELLION_SITO);
    Sessione::Azzera();
    RegistraFinestreProgramma();
    seam = std::make_unique<PiattaformaScriptata>();
    principale = std::make_unique<PrimoMDI>();
    QVERIFY(AvviaSessione(*principale, QStringLiteral("archivista"), QStringLiteral("demo")));
    seam->Svuota();
}

void TestGuide::cleanupTestCase() {
    principale.reset();
    seam.reset();
    Sessione::Azzera();
    qunsetenv("TABELLION_CARTELLA");
}

void TestGuide::DatiLibri() {
    QTest::addColumn<int>("indice");
    for (int i = 0; i < static_cast<int>(std::size(Libri)); ++i) {
        QTest::newRow(Libri[i].sFile) << i;
    }
}

void TestGuide::ogniVoceDelMenuAiutoApreLaSuaGuidaNellaCartellaDelProgramma() {
    for (const Libro& libro : Libri) {
        auto* voce = principale->findChild<QAction*>(QLatin1String(libro.sVoceGuida));
        QVERIFY(voce != nullptr);
        voce->trigger();
    }
    const QList<Chiamata> aperte = seam->Chiamate(QStringLiteral("guida"));
    QCOMPARE(aperte.size(), static_cast<qsizetype>(std::size(Libri)));
    for (int i = 0; i < aperte.size(); ++i) {
        QCOMPARE(QFileInfo(aperte[i].sPercorso).canonicalFilePath(),
                 QFileInfo(FileLibro(Libri[i].sFile)).canonicalFilePath());
        QVERIFY2(QFileInfo(aperte[i].sPercorso).size() > 0, qPrintable(aperte[i].sPercorso));
    }
}

void TestGuide::ogniGuidaSiApreConIndiceEPagineNumerate_data() {
    DatiLibri();
}

void TestGuide::ogniGuidaSiApreConIndiceEPagineNumerate() {
    QFETCH(int, indice);
    const QString sFile = FileLibro(Libri[indice].sFile);
    QVERIFY2(QFile::exists(sFile), qPrintable(sFile + QStringLiteral(" missing")));
    const QString sInfo = Esegui(QStringLiteral("pdfinfo"), {sFile});
    const QRegularExpressionMatch pagine =
        QRegularExpression(QStringLiteral(R"(Pages:\s+(\d+))")).match(sInfo);
    QVERIFY2(pagine.hasMatch(), qPrintable(sInfo));
    const int iPagine = pagine.captured(1).toInt();
    // The title page with the contents, and the body.
    QVERIFY2(iPagine >= 2, qPrintable(sInfo));
    const QString sPrima = Esegui(QStringLiteral("pdftotext"),
                                  {QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                                   QStringLiteral("1"), sFile, QStringLiteral("-")})
                               .simplified();
    QVERIFY2(sPrima.contains(QStringLiteral("Indice")), qPrintable(sPrima));
    QVERIFY2(sPrima.contains(QStringLiteral("Pagina 1 di %1").arg(iPagine)), qPrintable(sPrima));
    const QString sUltima =
        Esegui(QStringLiteral("pdftotext"),
               {QStringLiteral("-f"), QString::number(iPagine), QStringLiteral("-l"),
                QString::number(iPagine), sFile, QStringLiteral("-")})
            .simplified();
    QVERIFY2(sUltima.contains(QStringLiteral("Pagina %1 di %1").arg(iPagine)), qPrintable(sUltima));
}

QStringList TestGuide::Didascalie(const Libro& libro) {
    QStringList didascalie;
    if (*libro.sFinestra == '\0') {
        const auto* strumenti = principale->findChild<QMenu*>(QStringLiteral("mnuStrumentiMenu"));
        for (const QAction* voce : strumenti->actions()) {
            if (!voce->isSeparator()) {
                didascalie.append(SenzaAcceleratore(voce->text()));
            }
        }
        return didascalie;
    }
    auto* voce = principale->findChild<QAction*>(QLatin1String(libro.sFinestra));
    didascalie.append(SenzaAcceleratore(voce->text()));
    voce->trigger();
    const QMdiSubWindow* sotto = principale->Area()->subWindowList().value(0);
    if (sotto == nullptr) {
        return didascalie; // a menu entry whose window the program does not have yet
    }
    const QWidget* finestra = sotto->widget();
    if (*libro.sPannello != '\0') {
        const auto* pannello = finestra->findChild<QWidget*>(QLatin1String(libro.sPannello));
        for (const QLabel* etichetta : pannello->findChildren<QLabel*>()) {
            if (etichetta->isVisible() && !etichetta->text().trimmed().isEmpty()) {
                didascalie.append(SenzaAcceleratore(etichetta->text()));
            }
        }
        return didascalie;
    }
    for (const QPushButton* pulsante : finestra->findChildren<QPushButton*>()) {
        if (pulsante->isVisible() && !pulsante->text().trimmed().isEmpty()) {
            didascalie.append(SenzaAcceleratore(pulsante->text()));
        }
    }
    for (const QTabWidget* schede : finestra->findChildren<QTabWidget*>()) {
        if (schede->isVisible()) {
            for (int i = 0; i < schede->count(); ++i) {
                didascalie.append(SenzaAcceleratore(schede->tabText(i)));
            }
        }
    }
    return didascalie;
}

void TestGuide::ogniGuidaNominaLeDidascalieDellaSuaFinestra_data() {
    DatiLibri();
}

void TestGuide::ogniGuidaNominaLeDidascalieDellaSuaFinestra() {
    QFETCH(int, indice);
    const Libro& libro = Libri[indice];
    const QStringList didascalie = Didascalie(libro);
    principale->Scarica();
    QVERIFY(!didascalie.isEmpty());
    const QString sTesto =
        Esegui(QStringLiteral("pdftotext"), {FileLibro(libro.sFile), QStringLiteral("-")})
            .simplified();
    QStringList mancanti;
    for (const QString& sDidascalia : didascalie) {
        if (!sTesto.contains(sDidascalia)) {
            mancanti.append(sDidascalia);
        }
    }
    QVERIFY2(mancanti.isEmpty(), qPrintable(QStringLiteral("%1 does not name: %2")
                                                .arg(QLatin1String(libro.sFile),
                                                     mancanti.join(QStringLiteral(" | ")))));
}

void TestGuide::ogniGuidaContieneLeFigureDelSuoTesto_data() {
    DatiLibri();
}

void TestGuide::ogniGuidaContieneLeFigureDelSuoTesto() {
    QFETCH(int, indice);
    const Libro& libro = Libri[indice];
    const QSet<QString> figure = FigureDelTesto(libro.sFile);
    // Every book shows its window.
    QVERIFY2(!figure.isEmpty(), libro.sFile);
    // pdfimages lists an image once for each page on which it is drawn: the distinct objects
    // are the pictures.
    const QStringList righe =
        Esegui(QStringLiteral("pdfimages"), {QStringLiteral("-list"), FileLibro(libro.sFile)})
            .split(u'\n', Qt::SkipEmptyParts)
            .mid(2);
    QSet<QString> oggetti;
    for (const QString& riga : righe) {
        const QStringList colonne = riga.simplified().split(u' ');
        if (colonne.size() > 11 && colonne[2] == QStringLiteral("image")) {
            oggetti.insert(colonne[10]);
        }
    }
    QVERIFY2(oggetti.size() >= figure.size(),
             qPrintable(QStringLiteral("%1 holds %2 pictures, its text shows %3")
                            .arg(QLatin1String(libro.sFile))
                            .arg(oggetti.size())
                            .arg(figure.size())));
}

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
