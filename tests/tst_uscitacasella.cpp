// The check of a box when it loses the focus, shared by the record editors: the message and the
// focus given back, with the click that moved the focus delivered or not; no check when only the
// window loses the activation or a popup opens; a text that is taken says nothing.

#include "records/EditoreRecord.h"
#include "session/Conversioni.h"

#include "PiattaformaScriptata.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// An editor with two boxes and a button: the year in Text1(0) is checked when it is left, the
// other box is checked only where a test asks for it.
class EditoreUscita : public EditoreRecord {
public:
    using EditoreRecord::Uscita;

    explicit EditoreUscita(Uscita modo) {
        setObjectName(QStringLiteral("EditoreUscita"));
        auto* colonna = new QVBoxLayout(this);
        txtAnno = NuovoTesto(0, 4);
        colonna->addWidget(txtAnno);
        txtAltro = NuovoTesto(1, 64);
        colonna->addWidget(txtAltro);
        cmdConferma = new QPushButton(QStringLiteral("Conferma"), this);
        cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
        colonna->addWidget(cmdConferma);
        connect(cmdConferma, &QPushButton::clicked, this, [this] { ++iClic; });
        ControllaAllUscita(
            txtAnno,
            [this](const QString& sTesto) {
                testiVerificati << sTesto;
                return sTesto.isEmpty() || IsNumeric(sTesto) ? QString()
                                                             : QStringLiteral("Anno errato");
            },
            modo);
    }

    // The second box refuses one text too.
    void ControllaAncheAltro(const QString& sRifiutato) {
        ControllaAllUscita(txtAltro, [sRifiutato](const QString& sTesto) {
            return sTesto == sRifiutato ? QStringLiteral("Altro errato") : QString();
        });
    }

    QLineEdit* txtAnno;
    QLineEdit* txtAltro;
    QPushButton* cmdConferma;
    int iClic = 0;
    QStringList testiVerificati;
};

// Shows the editor as the active window, the year box holding the focus and the text given.
bool Prepara(EditoreUscita& editore, const QString& sAnno) {
    editore.show();
    QApplication::setActiveWindow(&editore);
    editore.activateWindow();
    if (!QTest::qWaitForWindowActive(&editore))
        return false;
    editore.txtAnno->setFocus();
    editore.txtAnno->setText(sAnno);
    return editore.txtAnno->hasFocus();
}

// The editor of a test with the year box holding the focus and the text given, and the
// scripted boxes.
struct Prova {
    Prova(EditoreUscita::Uscita modo, const QString& sAnno)
        : editore(modo)
        , bPronto(Prepara(editore, sAnno)) {}
    // The boxes shown so far are n, the last one "Anno errato" titled "Attenzione" with the
    // information icon.
    bool AnnoErrato(qsizetype n = 1) const {
        const QList<Messaggio> messaggi = seam.Messaggi();
        return messaggi.size() == n && messaggi.last().sTesto == QStringLiteral("Anno errato") &&
               messaggi.last().sTitolo == QStringLiteral("Attenzione") &&
               messaggi.last().icona == Icona::Informazione;
    }
    PiattaformaScriptata seam;
    EditoreUscita editore;
    const bool bPronto;
};

} // namespace

class TestUscitaCasella : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void unTestoErratoDaIlMessaggioERiprendeIlFuocoMaIlClicArriva();
    void unTestoErratoConTabDaIlMessaggioERiprendeIlFuoco();
    void unaCasellaCheRifiutaTieneIlFuocoEIlClicNonArriva();
    void unaCasellaCheRifiutaTieneIlFuocoAncheControTab();
    void correttoIlTestoIlFuocoEsceEIlClicFunziona();
    void nessunControlloQuandoLaFinestraPerdeSoloLAttivazione();
    void nessunControlloQuandoSiApreUnMenu();
    void unTestoAccettatoNonDiceNulla();
    void unaCasellaDisabilitataDalProgrammaNonControllaIlSuoTesto();
    void ilFuocoCheTornaNonFaControllareLAltraCasella();
    void unNuovoControlloPrendeIlPostoDelVecchio();
};

void TestUscitaCasella::unTestoErratoDaIlMessaggioERiprendeIlFuocoMaIlClicArriva() {
    Prova prova(EditoreUscita::Uscita::RestituisceFuoco, QStringLiteral("12a"));
    QVERIFY(prova.bPronto);
    QTest::mouseClick(prova.editore.cmdConferma, Qt::LeftButton);
    QVERIFY(prova.AnnoErrato());
    QCOMPARE(prova.seam.Messaggi().at(0).pulsanti, Pulsanti::Ok);
    QVERIFY(prova.editore.txtAnno->hasFocus());
    QCOMPARE(prova.editore.iClic, 1);
    QCOMPARE(prova.editore.testiVerificati, QStringList{QStringLiteral("12a")});
    QCOMPARE(prova.editore.txtAnno->text(), QStringLiteral("12a"));
}

void TestUscitaCasella::unTestoErratoConTabDaIlMessaggioERiprendeIlFuoco() {
    Prova prova(EditoreUscita::Uscita::RestituisceFuoco, QStringLiteral("12x"));
    QVERIFY(prova.bPronto);
    QTest::keyClick(prova.editore.txtAnno, Qt::Key_Tab);
    QVERIFY(prova.AnnoErrato());
    QVERIFY(prova.editore.txtAnno->hasFocus());
    QVERIFY(!prova.editore.txtAltro->hasFocus());
    // The box still takes what is typed.
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("9"));
    QCOMPARE(prova.editore.txtAnno->text(), QStringLiteral("12x9"));
}

void TestUscitaCasella::unaCasellaCheRifiutaTieneIlFuocoEIlClicNonArriva() {
    Prova prova(EditoreUscita::Uscita::Rifiuta, QStringLiteral("12a"));
    QVERIFY(prova.bPronto);
    QTest::mouseClick(prova.editore.cmdConferma, Qt::LeftButton);
    QVERIFY(prova.AnnoErrato());
    QVERIFY(prova.editore.txtAnno->hasFocus());
    QCOMPARE(prova.editore.iClic, 0);
    QVERIFY(!prova.editore.cmdConferma->isDown());
    // A second try is refused the same way.
    QTest::mouseClick(prova.editore.cmdConferma, Qt::LeftButton);
    QVERIFY(prova.AnnoErrato(2));
    QCOMPARE(prova.editore.iClic, 0);
    QVERIFY(prova.editore.txtAnno->hasFocus());
}

void TestUscitaCasella::unaCasellaCheRifiutaTieneIlFuocoAncheControTab() {
    Prova prova(EditoreUscita::Uscita::Rifiuta, QStringLiteral("12a"));
    QVERIFY(prova.bPronto);
    QTest::keyClick(prova.editore.txtAnno, Qt::Key_Tab);
    QVERIFY(prova.AnnoErrato());
    QVERIFY(prova.editore.txtAnno->hasFocus());
    // A click on the other box does not place its cursor there either.
    QTest::mouseClick(prova.editore.txtAltro, Qt::LeftButton);
    QVERIFY(prova.AnnoErrato(2));
    QVERIFY(prova.editore.txtAnno->hasFocus());
    QCOMPARE(prova.editore.iClic, 0);
}

void TestUscitaCasella::correttoIlTestoIlFuocoEsceEIlClicFunziona() {
    PiattaformaScriptata seam;
    EditoreUscita editore(EditoreUscita::Uscita::Rifiuta);
    QVERIFY(Prepara(editore, QStringLiteral("12a")));
    QTest::mouseClick(editore.cmdConferma, Qt::LeftButton);
    QCOMPARE(seam.Messaggi().size(), 1);
    QCOMPARE(editore.iClic, 0);
    // Corrected in place, the box lets the focus go and the press reaches the button.
    QTest::keyClick(editore.txtAnno, Qt::Key_Backspace);
    QCOMPARE(editore.txtAnno->text(), QStringLiteral("12"));
    QTest::mouseClick(editore.cmdConferma, Qt::LeftButton);
    QCOMPARE(seam.Messaggi().size(), 1);
    QCOMPARE(editore.iClic, 1);
    QVERIFY(editore.cmdConferma->hasFocus());
    QCOMPARE(editore.testiVerificati, QStringList({QStringLiteral("12a"), QStringLiteral("12")}));
}

void TestUscitaCasella::nessunControlloQuandoLaFinestraPerdeSoloLAttivazione() {
    PiattaformaScriptata seam;
    EditoreUscita editore(EditoreUscita::Uscita::Rifiuta);
    QVERIFY(Prepara(editore, QStringLiteral("12a")));
    QWidget altra;
    altra.setObjectName(QStringLiteral("altra"));
    altra.show();
    QApplication::setActiveWindow(&altra);
    altra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&altra));
    QVERIFY(!editore.txtAnno->hasFocus());
    QCOMPARE(seam.Messaggi().size(), 0);
    QVERIFY(editore.testiVerificati.isEmpty());
    // Back in the editor's window, the box has the focus again and nothing was said.
    QApplication::setActiveWindow(&editore);
    editore.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editore));
    QVERIFY(editore.txtAnno->hasFocus());
    QCOMPARE(seam.Messaggi().size(), 0);
}

void TestUscitaCasella::nessunControlloQuandoSiApreUnMenu() {
    PiattaformaScriptata seam;
    EditoreUscita editore(EditoreUscita::Uscita::Rifiuta);
    QVERIFY(Prepara(editore, QStringLiteral("12a")));
    QMenu menu(&editore);
    menu.addAction(QStringLiteral("Copia"));
    menu.popup(editore.txtAnno->mapToGlobal(QPoint(2, 2)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    menu.close();
    QCOMPARE(seam.Messaggi().size(), 0);
    QVERIFY(editore.testiVerificati.isEmpty());
}

void TestUscitaCasella::unTestoAccettatoNonDiceNulla() {
    for (const auto modo :
         {EditoreUscita::Uscita::RestituisceFuoco, EditoreUscita::Uscita::Rifiuta}) {
        PiattaformaScriptata seam;
        EditoreUscita editore(modo);
        QVERIFY(Prepara(editore, QStringLiteral("1450")));
        QTest::keyClick(editore.txtAnno, Qt::Key_Tab);
        QVERIFY(editore.txtAltro->hasFocus());
        editore.txtAnno->setFocus();
        editore.txtAnno->clear();
        QTest::mouseClick(editore.cmdConferma, Qt::LeftButton);
        QVERIFY(editore.cmdConferma->hasFocus());
        QCOMPARE(editore.iClic, 1);
        QCOMPARE(seam.Messaggi().size(), 0);
        QCOMPARE(editore.testiVerificati, QStringList({QStringLiteral("1450"), QString()}));
    }
}

void TestUscitaCasella::unaCasellaDisabilitataDalProgrammaNonControllaIlSuoTesto() {
    for (const auto modo :
         {EditoreUscita::Uscita::RestituisceFuoco, EditoreUscita::Uscita::Rifiuta}) {
        PiattaformaScriptata seam;
        EditoreUscita editore(modo);
        QVERIFY(Prepara(editore, QStringLiteral("12a")));
        // Locked while it holds the focus (as after a save): the focus moves on, unchecked.
        editore.txtAnno->setEnabled(false);
        QVERIFY(!editore.txtAnno->hasFocus());
        QCOMPARE(seam.Messaggi().size(), 0);
        QVERIFY(editore.testiVerificati.isEmpty());
    }
}

void TestUscitaCasella::ilFuocoCheTornaNonFaControllareLAltraCasella() {
    PiattaformaScriptata seam;
    EditoreUscita editore(EditoreUscita::Uscita::RestituisceFuoco);
    editore.ControllaAncheAltro(QStringLiteral("x"));
    editore.txtAltro->setText(QStringLiteral("x"));
    QVERIFY(Prepara(editore, QStringLiteral("12a")));
    // The focus passes through the other box on its way back: that is no leave of the other's.
    QTest::keyClick(editore.txtAnno, Qt::Key_Tab);
    QCOMPARE(seam.Messaggi().size(), 1);
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Anno errato"));
    QVERIFY(editore.txtAnno->hasFocus());
    // Once the other box has had the focus, leaving it is checked.
    editore.txtAnno->setText(QStringLiteral("1450"));
    QTest::keyClick(editore.txtAnno, Qt::Key_Tab);
    QVERIFY(editore.txtAltro->hasFocus());
    QTest::keyClick(editore.txtAltro, Qt::Key_Tab);
    QCOMPARE(seam.Messaggi().size(), 2);
    QCOMPARE(seam.Messaggi().at(1).sTesto, QStringLiteral("Altro errato"));
    QVERIFY(editore.txtAltro->hasFocus());
}

void TestUscitaCasella::unNuovoControlloPrendeIlPostoDelVecchio() {
    PiattaformaScriptata seam;
    EditoreUscita editore(EditoreUscita::Uscita::RestituisceFuoco);
    editore.ControllaAncheAltro(QStringLiteral("x"));
    editore.ControllaAncheAltro(QStringLiteral("y"));
    editore.txtAltro->setText(QStringLiteral("x"));
    QVERIFY(Prepara(editore, QStringLiteral("1450")));
    editore.txtAltro->setFocus();
    QTest::keyClick(editore.txtAltro, Qt::Key_Tab);
    QCOMPARE(seam.Messaggi().size(), 0);
    QVERIFY(editore.cmdConferma->hasFocus());
    editore.txtAltro->setText(QStringLiteral("y"));
    editore.txtAltro->setFocus();
    QTest::keyClick(editore.txtAltro, Qt::Key_Tab);
    QCOMPARE(seam.Messaggi().size(), 1);
    QVERIFY(editore.txtAltro->hasFocus());
}

QTEST_MAIN(TestUscitaCasella)
#include "tst_uscitacasella.moc"
