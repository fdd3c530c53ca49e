// The real seam: the boxes it shows are those asked for, and no other code of the program
// speaks to the person past it.

#include "session/Piattaforma.h"
#include "session/Sessione.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QtTest>

namespace {

struct BoxVisto {
    QString titolo;
    QString testo;
    QMessageBox::Icon icona = QMessageBox::NoIcon;
    QStringList pulsanti;
    QString predefinito;
};

// Looks at the box when it is up, then presses the key given or the button with that text.
void Guarda(BoxVisto& visto, std::function<void(QMessageBox*)> risposta) {
    QTimer::singleShot(0, [&visto, risposta] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        visto.titolo = box->windowTitle();
        visto.testo = box->text();
        visto.icona = box->icon();
        for (QAbstractButton* pulsante : box->buttons()) {
            visto.pulsanti.append(pulsante->text());
        }
        visto.pulsanti.sort();
        if (box->defaultButton() != nullptr) {
            visto.predefinito = box->defaultButton()->text();
        }
        risposta(box);
    });
}

} // namespace

class TestPiattaforma : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ilBoxHaTitoloTestoIconaEPulsantiChiesti();
    void senzaTitoloIlBoxPortaIlNomeDelProgramma();
    void escapeSuUnaDomandaRispondeNo();
    void ilPulsantePremutoEDatoComeRisposta();
    void nessunAltroCodiceChiamaBoxDialoghiOMenuDiQt();
    void laSceltaDiUnFileOffreIFiltriNellOrdineConQuelloScelto();
};

void TestPiattaforma::ilBoxHaTitoloTestoIconaEPulsantiChiesti() {
    BoxVisto visto;
    Guarda(visto, [](QMessageBox* box) { box->defaultButton()->click(); });
    const Risposta risposta =
        MsgBox(QStringLiteral("Prima riga\r\nSeconda riga"), Pulsanti::SiNo, Icona::Esclamazione,
               QStringLiteral("Aggiorna versione DB"), Risposta::No);
    QCOMPARE(visto.titolo, QStringLiteral("Aggiorna versione DB"));
    QCOMPARE(visto.testo, QStringLiteral("Prima riga\nSeconda riga"));
    QCOMPARE(visto.icona, QMessageBox::Warning);
    QCOMPARE(visto.pulsanti, (QStringList{QStringLiteral("&No"), QStringLiteral("&Sì")}));
    QCOMPARE(visto.predefinito, QStringLiteral("&No"));
    QCOMPARE(risposta, Risposta::No);
}

void TestPiattaforma::senzaTitoloIlBoxPortaIlNomeDelProgramma() {
    BoxVisto visto;
    Guarda(visto, [](QMessageBox* box) { box->defaultButton()->click(); });
    QCOMPARE(MsgBox(QStringLiteral("Testo"), Pulsanti::Ok, Icona::Critica), Risposta::Ok);
    QCOMPARE(visto.titolo, QStringLiteral("Tabellion Archivista"));
    QCOMPARE(visto.icona, QMessageBox::Critical);
    QCOMPARE(visto.pulsanti, QStringList{QStringLiteral("OK")});
}

void TestPiattaforma::escapeSuUnaDomandaRispondeNo() {
    BoxVisto visto;
    Guarda(visto, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
    QCOMPARE(MsgBox(QStringLiteral("Confermi uscita dal programma?"), Pulsanti::SiNo,
                    Icona::Domanda, QStringLiteral("Uscita"), Risposta::Si),
             Risposta::No);
    QCOMPARE(visto.icona, QMessageBox::Question);
    QCOMPARE(visto.predefinito, QStringLiteral("&Sì"));
}

void TestPiattaforma::ilPulsantePremutoEDatoComeRisposta() {
    BoxVisto visto;
    Guarda(visto, [](QMessageBox* box) {
        for (QAbstractButton* pulsante : box->buttons()) {
            if (pulsante->text() == QStringLiteral("Annulla")) {
                pulsante->click();
            }
        }
    });
    QCOMPARE(MsgBox(QStringLiteral("?"), Pulsanti::SiNoAnnulla, Icona::Informazione),
             Risposta::Annulla);
    QCOMPARE(visto.icona, QMessageBox::Information);
    QCOMPARE(visto.pulsanti.size(), 3);
}

void TestPiattaforma::nessunAltroCodiceChiamaBoxDialoghiOMenuDiQt() {
    const QRegularExpression diretto(QStringLiteral(
        "QMessageBox\\b|QFileDialog\\b|QMenu::exec|\\.exec\\(QCursor|QDesktopServices|"
        "QProcess::startDetached"));
    QStringList trovati;
    QDirIterator file(QStringLiteral(TABELLION_SORGENTI "/src"),
                      {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString percorso = file.next();
        if (percorso.endsWith(QStringLiteral("/session/Piattaforma.cpp"))) {
            continue;
        }
        QFile sorgente(percorso);
        QVERIFY(sorgente.open(QIODevice::ReadOnly));
        int riga = 0;
        while (!sorgente.atEnd()) {
            ++riga;
            const QString testo = QString::fromUtf8(sorgente.readLine());
            if (diretto.match(testo).hasMatch()) {
                trovati.append(QStringLiteral("%1:%2").arg(percorso).arg(riga));
            }
        }
    }
    QVERIFY2(trovati.isEmpty(), qPrintable(trovati.join(QLatin1Char('\n'))));
}

void TestPiattaforma::laSceltaDiUnFileOffreIFiltriNellOrdineConQuelloScelto() {
    QStringList filtri;
    QString scelto;
    QTimer::singleShot(0, [&] {
        QWidget* modale = QApplication::activeModalWidget();
        if (auto* dialogo = qobject_cast<QFileDialog*>(modale)) {
            filtri = dialogo->nameFilters();
            scelto = dialogo->selectedNameFilter();
        }
        if (modale != nullptr) {
            modale->close();
        }
    });
    SceltaFile scelta;
    scelta.sFiltro = QStringLiteral("All Files(*.*);;Xml Files(*.xml)");
    scelta.sFiltroScelto = QStringLiteral("Xml Files(*.xml)");
    QCOMPARE(piattaforma().ScegliFile(scelta), QString());
    QCOMPARE(filtri,
             (QStringList{QStringLiteral("All Files(*.*)"), QStringLiteral("Xml Files(*.xml)")}));
    QCOMPARE(scelto, QStringLiteral("Xml Files(*.xml)"));
}

QTEST_MAIN(TestPiattaforma)
#include "tst_piattaforma.moc"
