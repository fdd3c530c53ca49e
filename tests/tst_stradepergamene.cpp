// The roads of the parchments and seals as a person walks them on an archive like the demo one,
// on SQLite and on PostgreSQL: the Pergamene e sigilli window over a finding aid whose
// parchments lie in its units, the choice of the finding aid whose boxes show whole names, the
// picker of parchments or seals, whose command of the other kind stays out of sight after a
// record is made or an edit is given up, and the parchment's dates whole in a narrow pane.

#include "links/frmNuovoSigPg.h"
#include "links/frmSelInv.h"
#include "programma/Registro.h"
#include "records/ucPergamena.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmStrutturaPG.h"

#include "AmbienteLink.h"
#include "AmbienteStruttura.h"
#include "Modali.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

#include <memory>

namespace {

QVariant Id(qint64 lId) {
    return QVariant::fromValue(static_cast<qlonglong>(lId));
}

// A finding aid whose parchments lie in a unit and in a unit of a unit, beside one that lies
// under the finding aid itself; a parchment in a unit carries a seal.
struct StrumentoConUnita {
    Strumento s;
    long busta = 0, fascicolo = 0;
    long diretta = 0, nellaBusta = 0, nelFascicolo = 0, sigillo = 0, staccato = 0;

    explicit StrumentoConUnita(AmbienteStruttura& a)
        : s(CreaStrumento(a)) {
        a.ListeInventarioAnalitico();
        busta = a.Crea("07", QStringLiteral("Busta 1"), s.inv);
        fascicolo = a.Crea("07", QStringLiteral("Fascicolo 2"), busta);
        nellaBusta = a.Crea("05", QStringLiteral("Perg. nella busta"), busta);
        nelFascicolo = a.Crea("05", QStringLiteral("Perg. nel fascicolo"), fascicolo);
        diretta = a.Crea("05", QStringLiteral("Perg. diretta"), s.inv);
        sigillo = a.Crea("06", QStringLiteral("Sigillo pendente"), nellaBusta);
        staccato = a.Crea("06", QStringLiteral("Sigillo staccato"), busta);
    }
};

// The window over that finding aid in that mode, made as the finding aids' popup makes it.
std::unique_ptr<frmStrutturaPG> ApriPergameneESigilli(long inventario, long lModo) {
    Sessione::lIdInventario = inventario;
    Sessione::lModoStrutturaPG = lModo;
    return std::make_unique<frmStrutturaPG>();
}

// A base finding aid with a parchment, under an institute, and a detached seal of another.
struct DueBasi {
    long pergamene = 0, pergamena = 0, sigilli = 0, sigillo = 0;

    explicit DueBasi(const AmbienteLink& a) {
        a.cartella.CopiaDalSito({QStringLiteral("LivelliINV.txt"),
                                 QStringLiteral("TipologiaINV.txt"),
                                 QStringLiteral("TipoInventario.txt")});
        const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
        pergamene = a.Crea("03", QStringLiteral("Pergamene del capitolo"), istituto);
        sigilli = a.Crea("03", QStringLiteral("Sigilli sciolti"), istituto);
        for (const long inventario : {pergamene, sigilli}) {
            a.Cnn().Esegui(
                QStringLiteral("UPDATE Inventari SET Tipologia = '01' WHERE ID_Elemento = ?"),
                {Id(inventario)});
        }
        pergamena = a.Crea("05", QStringLiteral("Pergamena 1"), pergamene);
        sigillo = a.Crea("06", QStringLiteral("Sigillo del vescovo"), sigilli);
    }
};

} // namespace

class TestStradePergamene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void lePergameneDiUnoStrumentoConUnitaSiVedonoSottoLoStrumentoInEntrambiIModi_data() {
        AggiungiBackend();
    }
    void lePergameneDiUnoStrumentoConUnitaSiVedonoSottoLoStrumentoInEntrambiIModi();
    void ilSelettoreTieneNascostoIlComandoDellAltroTipoDopoConfermaEAnnulla_data() {
        AggiungiBackend();
    }
    void ilSelettoreTieneNascostoIlComandoDellAltroTipoDopoConfermaEAnnulla();
    void laSceltaDelloStrumentoMostraINomiInteriNelleSueCaselle_data() { AggiungiBackend(); }
    void laSceltaDelloStrumentoMostraINomiInteriNelleSueCaselle();
    void leDateDellaPergamenaSiLeggonoInteraInUnRiquadroStretto_data() { AggiungiBackend(); }
    void leDateDellaPergamenaSiLeggonoInteraInUnRiquadroStretto();
};

void TestStradePergamene::
    lePergameneDiUnoStrumentoConUnitaSiVedonoSottoLoStrumentoInEntrambiIModi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const StrumentoConUnita u(a);

    // The units are not in this window: what lies in them hangs on the finding aid, with
    // its own seals under it, and no box stops the load.
    auto pergamene = ApriPergameneESigilli(u.s.inv, 0);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    pergamene->tvwDB->expandAll();
    QCOMPARE(Albero(pergamene->Modello()), QStringLiteral("Carte Guinigi 03 nolink\n"
                                                          "  Perg. diretta 05 pergamena\n"
                                                          "  Perg. nel fascicolo 05 pergamena\n"
                                                          "  Perg. nella busta 05 pergamena\n"
                                                          "    Sigillo pendente 06 sigilli\n"
                                                          "  Sigillo staccato 06 sigilli\n"));
    // A parchment of a unit is shown and edited as any other.
    pergamene->tvwDB->setCurrentIndex(pergamene->Modello().Trova(u.nelFascicolo));
    QCOMPARE(pergamene->sTipo, QStringLiteral("pergamena"));
    QVERIFY(pergamene->cmdModifica->isEnabled());

    auto sigilli = ApriPergameneESigilli(u.s.inv, 1);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    sigilli->tvwDB->expandAll();
    QCOMPARE(Albero(sigilli->Modello()), QStringLiteral("Carte Guinigi 03 nolink\n"
                                                        "  Perg. diretta 05 sigilli\n"
                                                        "  Perg. nel fascicolo 05 sigilli\n"
                                                        "  Perg. nella busta 05 sigilli\n"
                                                        "    Sigillo pendente 06 sigilli\n"
                                                        "  Sigillo staccato 06 sigilli\n"));
}

void TestStradePergamene::ilSelettoreTieneNascostoIlComandoDellAltroTipoDopoConfermaEAnnulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueBasi b(a);

    // Choosing parchments for a seal: a parchment made here leaves the seal's command hidden.
    frmNuovoSigPg pergamene;
    QVERIFY(pergamene.bInit(frmNuovoSigPg::SceltaPergamene, b.pergamene, b.sigillo, QString()));
    QVERIFY(!pergamene.cmdNuovaPG->isHidden());
    QVERIFY(pergamene.cmdNuovoSG->isHidden());
    pergamene.SelezionaNodo(pergamene.Modello().Radice());
    pergamene.cmdNuovaPG->click();
    QCOMPARE(pergamene.sStato, QStringLiteral("nuovo"));
    Compila(*pergamene.fraPergamena);
    pergamene.cmdConferma->click();
    QCOMPARE(pergamene.sStato, QStringLiteral("mostra"));
    QVERIFY(!pergamene.cmdNuovaPG->isHidden());
    QVERIFY(pergamene.cmdNuovoSG->isHidden());
    QVERIFY(!pergamene.cmdModifica->isHidden());

    // Choosing seals for a parchment: an edit given up leaves the parchment's command hidden.
    frmNuovoSigPg sigilli;
    QVERIFY(sigilli.bInit(frmNuovoSigPg::SceltaSigilli, b.sigilli, b.pergamena,
                          QStringLiteral("Pergamena 1")));
    QVERIFY(sigilli.cmdNuovaPG->isHidden());
    QVERIFY(!sigilli.cmdNuovoSG->isHidden());
    sigilli.SelezionaNodo(sigilli.Modello().Trova(b.sigillo));
    QVERIFY(sigilli.cmdModifica->isEnabled());
    sigilli.cmdModifica->click();
    QCOMPARE(sigilli.sStato, QStringLiteral("modifica"));
    sigilli.cmdAnnulla->click();
    QCOMPARE(sigilli.sStato, QStringLiteral("mostra"));
    QVERIFY(sigilli.cmdNuovaPG->isHidden());
    QVERIFY(!sigilli.cmdNuovoSG->isHidden());
}

void TestStradePergamene::laSceltaDelloStrumentoMostraINomiInteriNelleSueCaselle() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueBasi b(a);
    const QString sSigillo = QStringLiteral("Sigillo del capitolo di Altopascio");

    // Opened by name from a seal's viewer, as the person meets it.
    QStringList tagliate;
    bool bAperta = false;
    AlComparire(QStringLiteral("frmSelInv"), [&](QWidget* finestra) {
        bAperta = true;
        auto* scelta = static_cast<frmSelInv*>(finestra);
        for (const QLineEdit* casella : scelta->Text1) {
            const int iTesto = casella->fontMetrics().horizontalAdvance(casella->text());
            if (casella->text().isEmpty() || casella->contentsRect().width() < iTesto + 8) {
                tagliate << casella->text();
            }
        }
        scelta->cmdAnnulla->click();
    });
    Dialoghi::Apri(QStringLiteral("frmSelInv"), nullptr,
                   {{QStringLiteral("iMode"), 1},
                    {QStringLiteral("lIdEleLink"), qlonglong(b.sigillo)},
                    {QStringLiteral("sDescLink"), sSigillo}});
    QVERIFY(bAperta);
    QCOMPARE(tagliate, QStringList());
}

void TestStradePergamene::leDateDellaPergamenaSiLeggonoInteraInUnRiquadroStretto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueBasi b(a);

    // As narrow as the parchment's pane of the picker at its size.
    EditorePronto<ucPergamena> pergamena(b.pergamena);
    pergamena.resize(340, 600);
    pergamena.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pergamena));
    for (const char* nome : {"Text1(1)", "Text1(33)"}) {
        auto* data = pergamena.findChild<QLineEdit*>(QLatin1String(nome));
        QVERIFY(data != nullptr);
        data->setText(QStringLiteral("20/11/1228"));
        const int iTesto = data->fontMetrics().horizontalAdvance(data->text());
        QVERIFY2(data->contentsRect().width() >= iTesto + 4, nome);
    }
}

QTEST_MAIN(TestStradePergamene)
#include "tst_stradepergamene.moc"
