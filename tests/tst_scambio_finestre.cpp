// The failures of the exchange windows: a folder that is not there when the choice of the export
// or import folder loads, is opened or is clicked, and a schema folder that is not there when the
// list of the tables loads. Each shows its box and the window stays open and usable. And a site
// without identity: the menus' Export and Import say so, and how to give it, and go no further.

#include "exchange/frmEsporta.h"
#include "exchange/frmImporta.h"
#include "exchange/frmScEsporta.h"
#include "exchange/frmScImporta.h"
#include "programma/Registro.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

namespace {

const QString PercorsoNonTrovato = QStringLiteral("Impossibile trovare il percorso");

// The folder choice of export ("esporta") or of import ("importa"), with its root set first.
std::unique_ptr<frmSceltaCartella> SceltaCartella(const QString& sVerso, const QString& sRadice) {
    if (sVerso == QLatin1String("esporta")) {
        Sessione::sParam04 = sRadice;
        return std::make_unique<frmScEsporta>();
    }
    Sessione::sParam05 = sRadice;
    return std::make_unique<frmScImporta>();
}

// The list of the tables of export or import, with the schema folder set first.
std::unique_ptr<QDialog> ElencoTabelle(const QString& sVerso, const QString& sSchemi) {
    Sessione::sParam09 = sSchemi;
    if (sVerso == QLatin1String("esporta"))
        return std::make_unique<frmEsporta>();
    return std::make_unique<frmImporta>();
}

// A folder that is not a folder any more: gone, or a file in its place.
void TogliCartella(const QString& sPercorso, const QString& sModo) {
    QVERIFY(QDir(sPercorso).removeRecursively());
    if (sModo == QLatin1String("file")) {
        QFile file(sPercorso);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("non sono una cartella");
    }
}

QListWidgetItem* Voce(const QListWidget* lista, const QString& sTesto) {
    const QList<QListWidgetItem*> voci = lista->findItems(sTesto, Qt::MatchExactly);
    return voci.isEmpty() ? nullptr : voci.first();
}

QStringList Voci(const QListWidget* lista) {
    QStringList voci;
    for (int i = 0; i < lista->count(); ++i)
        voci.append(lista->item(i)->text());
    return voci;
}

void VerificaBox(const Messaggio& box, const QString& sTitolo, const QString& sSorgente) {
    QCOMPARE(box.sTitolo, sTitolo);
    QCOMPARE(box.icona, Icona::Critica);
    QCOMPARE(box.pulsanti, Pulsanti::Ok);
    QCOMPARE(box.sTesto, sSorgente + QLatin1Char('\n') + PercorsoNonTrovato);
}

} // namespace

class TestScambioFinestre : public QObject {
    Q_OBJECT
private:
    static void Righe();

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() { Sessione::Azzera(); }

    void unaRadiceMancanteAlCaricamentoDaErrore2ELaSceltaRestaAperta_data() { Righe(); }
    void unaRadiceMancanteAlCaricamentoDaErrore2ELaSceltaRestaAperta();
    void aprireUnaCartellaSparitaDaErrore1ELaSceltaRestaDovEra_data() { Righe(); }
    void aprireUnaCartellaSparitaDaErrore1ELaSceltaRestaDovEra();
    void unClicSuUnaCartellaSparitaDaErrore3ETesto1RestaComEra_data() { Righe(); }
    void unClicSuUnaCartellaSparitaDaErrore3ETesto1RestaComEra();
    void unaCartellaDegliSchemiMancanteDaErroreW1ELElencoRestaApertoEVuoto_data() { Righe(); }
    void unaCartellaDegliSchemiMancanteDaErroreW1ELElencoRestaApertoEVuoto();
    void unSitoSenzaIdentitaNonAprePiuLaSceltaDellaCartellaDalMenu_data() { AggiungiBackend(); }
    void unSitoSenzaIdentitaNonAprePiuLaSceltaDellaCartellaDalMenu();
};

void TestScambioFinestre::Righe() {
    QTest::addColumn<QString>("verso");
    QTest::addColumn<QString>("modo");
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("errore");
    for (const char* modo : {"sparita", "file"}) {
        QTest::addRow("esporta, %s", modo)
            << QStringLiteral("esporta") << QString::fromLatin1(modo)
            << QStringLiteral("frmScEsporta") << QStringLiteral("Errore J");
        QTest::addRow("importa, %s", modo)
            << QStringLiteral("importa") << QString::fromLatin1(modo)
            << QStringLiteral("frmScImporta") << QStringLiteral("Errore X");
    }
}

void TestScambioFinestre::unaRadiceMancanteAlCaricamentoDaErrore2ELaSceltaRestaAperta() {
    QFETCH(QString, verso);
    QFETCH(QString, modo);
    QFETCH(QString, nome);
    QFETCH(QString, errore);
    CartellaProva sito;
    const QString sRadice = sito.File(QStringLiteral("scambio"));
    QVERIFY(QDir().mkpath(sRadice));
    TogliCartella(sRadice, modo);
    PiattaformaScriptata piattaforma;

    const auto finestra = SceltaCartella(verso, sRadice);
    QCOMPARE(piattaforma.Messaggi().size(), 1);
    VerificaBox(piattaforma.Messaggi().first(), errore + QLatin1Char('2'), nome);

    // The dialog runs all the same: nothing chosen, nothing to confirm, Annulla closes it.
    bool bAperta = false;
    QString sTesto1 = QStringLiteral("?");
    QStringList voci{QStringLiteral("?")};
    bool bConferma = true;
    AlComparire(nome, [&](QWidget* dialogo) {
        bAperta = dialogo->isVisible();
        sTesto1 = Controllo<QLineEdit>(dialogo, QStringLiteral("Text1"))->text();
        voci = Voci(Controllo<QListWidget>(dialogo, QStringLiteral("Dir1")));
        bConferma = Controllo<QPushButton>(dialogo, QStringLiteral("cmdConferma"))->isEnabled();
        Controllo<QPushButton>(dialogo, QStringLiteral("cmdAnnulla"))->click();
    });
    QCOMPARE(finestra->exec(), int(QDialog::Rejected));
    QVERIFY(bAperta);
    QCOMPARE(sTesto1, QString());
    QCOMPARE(voci, QStringList());
    QVERIFY(!bConferma);
    QCOMPARE(piattaforma.Messaggi().size(), 1);
}

void TestScambioFinestre::aprireUnaCartellaSparitaDaErrore1ELaSceltaRestaDovEra() {
    QFETCH(QString, verso);
    QFETCH(QString, modo);
    QFETCH(QString, nome);
    QFETCH(QString, errore);
    CartellaProva radice;
    QVERIFY(QDir(radice.Percorso()).mkdir(QStringLiteral("arrivi")));
    QVERIFY(QDir(radice.Percorso()).mkdir(QStringLiteral("partenze")));
    PiattaformaScriptata piattaforma;
    const auto finestra = SceltaCartella(verso, radice.Percorso());
    QCOMPARE(piattaforma.Messaggi().size(), 0);
    finestra->open();
    QVERIFY(QTest::qWaitForWindowExposed(finestra.get()));
    auto* Dir1 = Controllo<QListWidget>(finestra.get(), QStringLiteral("Dir1"));
    auto* Text1 = Controllo<QLineEdit>(finestra.get(), QStringLiteral("Text1"));
    const QString sRadice = QDir::cleanPath(radice.Percorso());
    const QStringList prima = Voci(Dir1);
    QCOMPARE(prima, (QStringList{QStringLiteral(".."), QStringLiteral("arrivi"),
                                 QStringLiteral("partenze")}));

    // Listed, then gone before it is opened with the keyboard.
    TogliCartella(radice.File(QStringLiteral("arrivi")), modo);
    Dir1->setCurrentItem(Voce(Dir1, QStringLiteral("arrivi")));
    QTest::keyClick(Dir1, Qt::Key_Return);
    QCOMPARE(piattaforma.Messaggi().size(), 1);
    VerificaBox(piattaforma.Messaggi().first(), errore + QLatin1Char('1'), nome);
    QVERIFY(finestra->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), finestra.get());
    QCOMPARE(finestra->Percorso(), sRadice);
    QCOMPARE(Voci(Dir1), prima);
    QCOMPARE(Text1->text(), QDir::toNativeSeparators(sRadice));

    // The folder that is still there opens as ever.
    Dir1->setCurrentItem(Voce(Dir1, QStringLiteral("partenze")));
    QTest::keyClick(Dir1, Qt::Key_Return);
    QCOMPARE(piattaforma.Messaggi().size(), 1);
    QCOMPARE(finestra->Percorso(), sRadice + QStringLiteral("/partenze"));
    QCOMPARE(Text1->text(), QDir::toNativeSeparators(sRadice + QStringLiteral("/partenze")));
    QCOMPARE(Voci(Dir1), QStringList{QStringLiteral("..")});
    finestra->reject();
}

void TestScambioFinestre::unClicSuUnaCartellaSparitaDaErrore3ETesto1RestaComEra() {
    QFETCH(QString, verso);
    QFETCH(QString, modo);
    QFETCH(QString, nome);
    QFETCH(QString, errore);
    CartellaProva radice;
    QVERIFY(QDir(radice.Percorso()).mkdir(QStringLiteral("arrivi")));
    QVERIFY(QDir(radice.Percorso()).mkdir(QStringLiteral("partenze")));
    PiattaformaScriptata piattaforma;
    const auto finestra = SceltaCartella(verso, radice.Percorso());
    finestra->open();
    QVERIFY(QTest::qWaitForWindowExposed(finestra.get()));
    auto* Dir1 = Controllo<QListWidget>(finestra.get(), QStringLiteral("Dir1"));
    auto* Text1 = Controllo<QLineEdit>(finestra.get(), QStringLiteral("Text1"));
    auto* cmdConferma = Controllo<QPushButton>(finestra.get(), QStringLiteral("cmdConferma"));
    const QString sRadice = QDir::cleanPath(radice.Percorso());
    const auto Clic = [Dir1](const QString& sVoce) {
        QListWidgetItem* voce = Voce(Dir1, sVoce);
        QVERIFY(voce);
        QTest::mouseClick(Dir1->viewport(), Qt::LeftButton, Qt::NoModifier,
                          Dir1->visualItemRect(voce).center());
    };

    Clic(QStringLiteral("partenze"));
    const QString sScelta = QDir::toNativeSeparators(sRadice + QStringLiteral("/partenze"));
    QCOMPARE(Text1->text(), sScelta);
    QCOMPARE(piattaforma.Messaggi().size(), 0);

    TogliCartella(radice.File(QStringLiteral("arrivi")), modo);
    Clic(QStringLiteral("arrivi"));
    QCOMPARE(piattaforma.Messaggi().size(), 1);
    VerificaBox(piattaforma.Messaggi().first(), errore + QLatin1Char('3'), nome);
    QVERIFY(finestra->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), finestra.get());
    QCOMPARE(Text1->text(), sScelta);
    QVERIFY(cmdConferma->isEnabled());
    QCOMPARE(finestra->Percorso(), sRadice);
    finestra->reject();
}

void TestScambioFinestre::unaCartellaDegliSchemiMancanteDaErroreW1ELElencoRestaApertoEVuoto() {
    QFETCH(QString, verso);
    QFETCH(QString, modo);
    CartellaProva sito;
    const QString sSchemi = sito.File(QStringLiteral("Schemi"));
    QVERIFY(QDir().mkpath(sSchemi));
    TogliCartella(sSchemi, modo);
    PiattaformaScriptata piattaforma;
    const QString sNome = verso == QLatin1String("esporta") ? QStringLiteral("frmEsporta")
                                                            : QStringLiteral("frmImporta");
    const QString sPulsante = verso == QLatin1String("esporta") ? QStringLiteral("cmdEsporta")
                                                                : QStringLiteral("cmdImporta");
    const QString sChiusura = verso == QLatin1String("esporta")
                                  ? QStringLiteral("Tabelle esportate")
                                  : QStringLiteral("Tabelle importate");

    const auto finestra = ElencoTabelle(verso, sSchemi);
    QCOMPARE(piattaforma.Messaggi().size(), 1);
    VerificaBox(piattaforma.Messaggi().first(), QStringLiteral("Errore W1"), sNome);

    // The window runs with an empty list; its button still ends the run with the closing box.
    bool bAperta = false;
    int iVoci = -1;
    int iColonne = -1;
    AlComparire(sNome, [&](QWidget* dialogo) {
        bAperta = dialogo->isVisible();
        const auto* lvwDB = Controllo<QTreeWidget>(dialogo, QStringLiteral("lvwDB"));
        iVoci = lvwDB->topLevelItemCount();
        iColonne = lvwDB->columnCount();
        Controllo<QPushButton>(dialogo, sPulsante)->click();
    });
    QCOMPARE(finestra->exec(), int(QDialog::Accepted));
    QVERIFY(bAperta);
    QCOMPARE(iVoci, 0);
    QCOMPARE(iColonne, 1);
    QCOMPARE(piattaforma.Messaggi().size(), 2);
    QCOMPARE(piattaforma.Messaggi().last().sTitolo, sChiusura);
    QCOMPARE(piattaforma.Messaggi().last().sTesto, QString());
}

void TestScambioFinestre::unSitoSenzaIdentitaNonAprePiuLaSceltaDellaCartellaDalMenu() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    for (const char* tipo : {"S", "I"}) {
        const bool bEsporta = QLatin1String(tipo) == QLatin1String("S");
        const char* voce = bEsporta ? "mnuExport" : "mnuImport";
        const QString sNome =
            bEsporta ? QStringLiteral("frmScEsporta") : QStringLiteral("frmScImporta");
        banca.Apri()->Esegui(QStringLiteral("UPDATE Config SET Code = 'SITO'"));
        CartellaProva sito;
        sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QLatin1String(tipo));
        PiattaformaScriptata piattaforma;
        PrimoMDI principale;
        QVERIFY(AvviaSessione(principale, banca));
        // The folders offered for the exchange.
        Sessione::sParam04 = sito.Percorso();
        Sessione::sParam05 = sito.Percorso();
        piattaforma.Svuota();
        QAction* azione = principale.findChild<QAction*>(QLatin1String(voce));
        QVERIFY(azione->isEnabled());
        bool bComparsa = false;
        const auto chiudi = [&bComparsa](QWidget* dialogo) {
            bComparsa = true;
            Controllo<QPushButton>(dialogo, QStringLiteral("cmdAnnulla"))->click();
        };

        // The placeholder code of a new database: one box, and no choice of a folder.
        AlComparire(sNome, chiudi, 1000);
        azione->trigger();
        QTest::qWait(1200);
        QVERIFY2(!bComparsa, voce);
        QCOMPARE(piattaforma.Messaggi().size(), 1);
        const Messaggio box = piattaforma.Messaggi().first();
        QCOMPARE(box.sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(box.icona, Icona::Critica);
        for (const QString& parole :
             {QStringLiteral("il codice del sito è ancora \"SITO\""),
              QStringLiteral("tabellion-sql --crea --codice CODICE --id-inizio N --id-fine M"),
              QStringLiteral("UPDATE Config SET Code = 'CODICE', ID_Start = N, ID_End = M")})
            QVERIFY2(box.sTesto.contains(parole), qPrintable(box.sTesto));

        // With a code of its own, the choice of the folder comes up.
        Sessione::cnn->Esegui(QStringLiteral("UPDATE Config SET Code = 'ASLU'"));
        piattaforma.Svuota();
        AlComparire(sNome, chiudi);
        azione->trigger();
        QVERIFY2(bComparsa, voce);
        QCOMPARE(piattaforma.Messaggi().size(), 0);
        Sessione::ChiudiConnessione();
    }
}

QTEST_MAIN(TestScambioFinestre)
#include "tst_scambio_finestre.moc"
