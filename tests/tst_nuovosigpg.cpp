// The ties of detached seals and parchments across finding aids, on SQLite and on PostgreSQL:
// the choice of the base finding aid that has something to tie (none: nothing opens), the
// picker over its analytical inventory where only the kind to choose keeps a tick and what is
// tied already starts ticked and locked, Collega adding only the rows of Links that are missing
// (the seal in ID_Elemento, the parchment in ID_ElementoLink), and the whole road from a seal's
// button through the viewer, the choice and the picker, and back from a parchment's button.

#include "links/frmNuovoSigPg.h"
#include "links/frmSelInv.h"
#include "programma/Registro.h"
#include "records/ModelloElenco.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"

#include "AmbienteLink.h"
#include "Modali.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

QVariant Id(qint64 lId) {
    return QVariant::fromValue(static_cast<qlonglong>(lId));
}

// Two base finding aids of one institute: the first with a detached seal and a unit, the second
// with three parchments (one under the unit-less parchment P2) and a seal of its own.
struct DueStrumenti {
    long primo = 0, sigillo = 0, unita = 0;
    long secondo = 0, p1 = 0, p2 = 0, p3 = 0, sigilloSecondo = 0;

    explicit DueStrumenti(const AmbienteLink& a) {
        // The finding aid's editor stands in the picker too.
        a.cartella.CopiaDalSito({QStringLiteral("LivelliINV.txt"),
                                 QStringLiteral("TipologiaINV.txt"),
                                 QStringLiteral("TipoInventario.txt")});
        const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
        primo = a.Crea("03", QStringLiteral("Sigilli sciolti"), istituto);
        secondo = a.Crea("03", QStringLiteral("Pergamene del capitolo"), istituto);
        for (const long inventario : {primo, secondo}) {
            a.Cnn().Esegui(
                QStringLiteral("UPDATE Inventari SET Tipologia = '01' WHERE ID_Elemento = ?"),
                {Id(inventario)});
        }
        sigillo = a.Crea("06", QStringLiteral("Sigillo del vescovo"), primo);
        unita = a.Crea("07", QStringLiteral("Busta 1"), primo);
        p1 = a.Crea("05", QStringLiteral("Pergamena 1"), secondo);
        p2 = a.Crea("05", QStringLiteral("Pergamena 2"), secondo);
        p3 = a.Crea("05", QStringLiteral("Pergamena 3"), p2);
        sigilloSecondo = a.Crea("06", QStringLiteral("Sigillo del capitolo"), secondo);
    }
};

// The rows of Links, "ID_Elemento>ID_ElementoLink", in order.
QStringList Legami(const AmbienteLink& a) {
    QStringList legami;
    QSqlQuery q = a.Cnn().Esegui(QStringLiteral(
        "SELECT ID_Elemento, ID_ElementoLink, COALESCE(Specifica, 'NULL') FROM Links "
        "ORDER BY ID_Elemento, ID_ElementoLink"));
    while (q.next()) {
        legami.append(
            QStringLiteral("%1>%2%3")
                .arg(q.value(0).toLongLong())
                .arg(q.value(1).toLongLong())
                .arg(q.value(2).toString().isEmpty() ? QString() : QStringLiteral(" [specifica]")));
    }
    return legami;
}

QString Legame(long lSigillo, long lPergamena) {
    return QStringLiteral("%1>%2").arg(lSigillo).arg(lPergamena);
}

// The user's tick (or untick) on the node of that element.
void Spunta(frmNuovoSigPg& f, qint64 lId, bool bSpuntato = true) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->model()->setData(nodo, bSpuntato ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

bool Spuntato(const frmNuovoSigPg& f, qint64 lId) {
    return f.Modello().Spuntato(f.Modello().Trova(lId));
}

// The texts of the rows of the choice of finding aids.
QStringList Righe(const frmSelInv& f) {
    QStringList righe;
    for (int i = 0; i < f.modello->Righe(); ++i) {
        righe << f.modello->Testo(i);
    }
    return righe;
}

} // namespace

class TestNuovoSigPg : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void unaPergamenaSenzaSigilliNelleBasiNonApreLaScelta_data() { AggiungiBackend(); }
    void unaPergamenaSenzaSigilliNelleBasiNonApreLaScelta();
    void laSceltaElencaSoloGliStrumentiBaseConQualcosaDaLegare_data() { AggiungiBackend(); }
    void laSceltaElencaSoloGliStrumentiBaseConQualcosaDaLegare();
    void ilSelettoreMostraLInventarioAnaliticoDelloStrumentoScelto_data() { AggiungiBackend(); }
    void ilSelettoreMostraLInventarioAnaliticoDelloStrumentoScelto();
    void unaSpuntaSuUnNodoDellAltroTipoVieneTolta_data() { AggiungiBackend(); }
    void unaSpuntaSuUnNodoDellAltroTipoVieneTolta();
    void quelloGiaLegatoPartSpuntatoEBloccatoECollegaAggiungeSoloIMancanti_data() {
        AggiungiBackend();
    }
    void quelloGiaLegatoPartSpuntatoEBloccatoECollegaAggiungeSoloIMancanti();
    void daUnaPergamenaSiScelgonoISigilliEIlSigilloStaInIdElemento_data() { AggiungiBackend(); }
    void daUnaPergamenaSiScelgonoISigilliEIlSigilloStaInIdElemento();
    void unaPergamenaNuovaFattaNelSelettoreSiSpuntaESiLega_data() { AggiungiBackend(); }
    void unaPergamenaNuovaFattaNelSelettoreSiSpuntaESiLega();
    void daUnSigilloStaccatoSiLeganoDuePergameneEDallaPergamenaSiSciolgono_data() {
        AggiungiBackend();
    }
    void daUnSigilloStaccatoSiLeganoDuePergameneEDallaPergamenaSiSciolgono();
    void ilVisualizzatoreNonRileggeQuandoNonSiLegaNulla_data() { AggiungiBackend(); }
    void ilVisualizzatoreNonRileggeQuandoNonSiLegaNulla();
    void chiusiLaSceltaTogliIlSegnoDeiToponimiEIlSelettoreNessuno();
};

void TestNuovoSigPg::unaPergamenaSenzaSigilliNelleBasiNonApreLaScelta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long base = a.Crea("03", QStringLiteral("Inventario base"), istituto);
    a.Cnn().Esegui(QStringLiteral("UPDATE Inventari SET Tipologia = '01' WHERE ID_Elemento = ?"),
                   {Id(base)});
    const long pergamena = a.Crea("05", QStringLiteral("P1"), base);
    // A seal there is, but in a finding aid that is not a base one.
    const long altro = a.Crea("03", QStringLiteral("Guida"), istituto);
    a.Crea("06", QStringLiteral("Sigillo"), altro);

    frmSelInv scelta;
    QVERIFY(!scelta.bInit(0, pergamena, QStringLiteral("P1")));
    QCOMPARE(scelta.modello->Righe(), 0);
    // Asked for by name, as the viewer does, nothing opens.
    QVERIFY(!Dialoghi::Apri(QStringLiteral("frmSelInv"), nullptr,
                            {{QStringLiteral("iMode"), 0},
                             {QStringLiteral("lIdEleLink"), qlonglong(pergamena)},
                             {QStringLiteral("sDescLink"), QStringLiteral("P1")}}));
    QVERIFY(a.seam.Messaggi().isEmpty());
}

void TestNuovoSigPg::laSceltaElencaSoloGliStrumentiBaseConQualcosaDaLegare() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    const long soloUnita = a.Crea("03", QStringLiteral("Solo buste"),
                                  static_cast<long>(a.Valore(QStringLiteral("SELECT "
                                                                            "ID_ElementoPadre FROM "
                                                                            "Elementi WHERE "
                                                                            "ID_Elemento = ?"),
                                                             {Id(s.primo)})
                                                        .toLongLong()));
    a.Crea("07", QStringLiteral("Busta"), soloUnita);

    // A parchment in hand looks for the finding aids with seals.
    frmSelInv daPergamena;
    QVERIFY(daPergamena.bInit(0, s.p1, QStringLiteral("Pergamena 1")));
    QCOMPARE(Righe(daPergamena), (QStringList{QStringLiteral("Pergamene del capitolo"),
                                              QStringLiteral("Sigilli sciolti")}));
    QCOMPARE(daPergamena.Label1[1]->text(), QStringLiteral("Pergamena selezionata"));
    QCOMPARE(daPergamena.Label1[0]->text(), QStringLiteral("Inventario selezionato"));
    QCOMPARE(daPergamena.Text1[1]->text(), QStringLiteral("Pergamena 1"));
    QVERIFY(!daPergamena.Text1[1]->isEnabled());
    // The first is chosen, as on a click; a click on another chooses it.
    QCOMPARE(daPergamena.Text1[0]->text(), QStringLiteral("Pergamene del capitolo"));
    QCOMPARE(daPergamena.lIdInventarioScelto, s.secondo);
    QVERIFY(daPergamena.cmdCollega->isEnabled());
    daPergamena.lvwDB->setCurrentIndex(daPergamena.modello->index(1));
    QCOMPARE(daPergamena.Text1[0]->text(), QStringLiteral("Sigilli sciolti"));
    QCOMPARE(daPergamena.lIdInventarioScelto, s.primo);

    // A seal in hand looks for the finding aids with parchments.
    frmSelInv daSigillo;
    QVERIFY(daSigillo.bInit(1, s.sigillo, QStringLiteral("Sigillo del vescovo")));
    QCOMPARE(Righe(daSigillo), QStringList{QStringLiteral("Pergamene del capitolo")});
    QCOMPARE(daSigillo.Label1[1]->text(), QStringLiteral("Sigillo selezionato"));
}

void TestNuovoSigPg::ilSelettoreMostraLInventarioAnaliticoDelloStrumentoScelto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    frmNuovoSigPg f;
    f.bLockSelected();
    QVERIFY(f.bInit(frmNuovoSigPg::SceltaPergamene, s.secondo, s.sigillo,
                    QStringLiteral("Sigillo del vescovo")));
    QCOMPARE(f.windowTitle(), QStringLiteral("Selezione Pergamene"));
    QCOMPARE(f.Label1->text(), QStringLiteral("Sigillo selezionato"));
    QCOMPARE(f.Text1->text(), QStringLiteral("Sigillo del vescovo"));
    QCOMPARE(f.Label2->text(), QStringLiteral("Pergamene Selezionate"));
    QVERIFY(f.TextC->isReadOnly());
    QVERIFY(!f.cmdNuovaPG->isHidden());
    QVERIFY(f.cmdNuovoSG->isHidden());
    // The finding aid at the root, its parchments and seals under it by their parents.
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(m.Id(m.Radice()), qint64(s.secondo));
    QCOMPARE(m.Testo(m.Radice()), QStringLiteral("Pergamene del capitolo"));
    QCOMPARE(m.Trova(s.p3).parent(), m.Trova(s.p2));
    QCOMPARE(m.Immagine(m.Trova(s.p1)), QStringLiteral("pergamena"));
    QCOMPARE(m.Immagine(m.Trova(s.sigilloSecondo)), QStringLiteral("sigilli"));
    QVERIFY(!m.Trova(s.sigillo).isValid());
    // A click shows the record with its kind's editor.
    f.SelezionaNodo(m.Trova(s.p1));
    QVERIFY(!f.fraPergamena->isHidden());
    QCOMPARE(f.fraPergamena->fID_Elem, s.p1);

    // From a parchment: seals.
    frmNuovoSigPg g;
    QVERIFY(g.bInit(frmNuovoSigPg::SceltaSigilli, s.primo, s.p1, QStringLiteral("Pergamena 1")));
    QCOMPARE(g.windowTitle(), QStringLiteral("Selezione Sigilli staccati"));
    QCOMPARE(g.Label1->text(), QStringLiteral("Pergamena selezionata"));
    QCOMPARE(g.Label2->text(), QStringLiteral("Sigilli Selezionati"));
    QVERIFY(g.cmdNuovaPG->isHidden());
    QVERIFY(!g.cmdNuovoSG->isHidden());

    // A finding aid that is no longer there: nothing to show, and the box of a tree's load.
    frmNuovoSigPg h;
    QVERIFY(!h.bInit(frmNuovoSigPg::SceltaSigilli, 987654, s.p1, QStringLiteral("Pergamena 1")));
    QCOMPARE(a.seam.Messaggi().constLast().sTitolo, QStringLiteral("Errore U5"));
}

void TestNuovoSigPg::unaSpuntaSuUnNodoDellAltroTipoVieneTolta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    frmNuovoSigPg f;
    QVERIFY(f.bInit(frmNuovoSigPg::SceltaSigilli, s.primo, s.p1, QStringLiteral("Pergamena 1")));
    Spunta(f, s.sigillo);
    QVERIFY(Spuntato(f, s.sigillo));
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Sigillo del vescovo"));
    // The unit and the finding aid do not keep their ticks, and the names stay.
    for (const long altro : {s.unita, s.primo}) {
        Spunta(f, altro);
        QVERIFY(!Spuntato(f, altro));
        QCOMPARE(f.lIdDaTogliere, qint64(altro));
    }
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Sigillo del vescovo"));
    QCOMPARE(f.Scelti(), QVector<qint64>{s.sigillo});

    // Choosing parchments, a seal is the other kind.
    frmNuovoSigPg g;
    QVERIFY(g.bInit(frmNuovoSigPg::SceltaPergamene, s.secondo, s.sigillo, QString()));
    Spunta(g, s.sigilloSecondo);
    QVERIFY(!Spuntato(g, s.sigilloSecondo));
    QVERIFY(g.Scelti().isEmpty());
    QVERIFY(!g.cmdCollega->isEnabled());
}

void TestNuovoSigPg::quelloGiaLegatoPartSpuntatoEBloccatoECollegaAggiungeSoloIMancanti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    a.Lega(s.sigillo, s.p1);
    frmNuovoSigPg f;
    QVERIFY(f.bInit(frmNuovoSigPg::SceltaPergamene, s.secondo, s.sigillo, QString()));
    const QModelIndex p1 = f.Modello().Trova(s.p1);
    QVERIFY(f.Modello().Spuntato(p1));
    QVERIFY(f.Modello().SpuntaBloccata(p1));
    QVERIFY(!f.Modello().SpuntaBloccata(f.Modello().Trova(s.p2)));
    // Nothing new ticked: nothing to tie.
    QVERIFY(!f.cmdCollega->isEnabled());
    // The locked one cannot be unticked.
    Spunta(f, s.p1, false);
    QVERIFY(Spuntato(f, s.p1));

    // Ticked twice over, once with the one tied already: one row more, Specifica "".
    Spunta(f, s.p3);
    Spunta(f, s.p3, false);
    Spunta(f, s.p3);
    a.Lega(s.sigillo, s.p2); // tied meanwhile from another workstation
    Spunta(f, s.p2);
    f.cmdCollega->click();
    QVERIFY(f.bOkLink);
    QCOMPARE(Legami(a), (QStringList{Legame(s.sigillo, s.p1), Legame(s.sigillo, s.p2),
                                     Legame(s.sigillo, s.p3)}));

    // A tie that was all there already: no row, and no link made.
    frmNuovoSigPg g;
    QVERIFY(g.bInit(frmNuovoSigPg::SceltaPergamene, s.secondo, s.sigilloSecondo, QString()));
    a.Lega(s.sigilloSecondo, s.p1);
    Spunta(g, s.p1);
    g.cmdCollega->click();
    QVERIFY(!g.bOkLink);
    QCOMPARE(Legami(a).size(), 4);
}

void TestNuovoSigPg::daUnaPergamenaSiScelgonoISigilliEIlSigilloStaInIdElemento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    const long altroSigillo = a.Crea("06", QStringLiteral("Altro sigillo"), s.primo);
    a.Lega(altroSigillo, s.p1);
    frmNuovoSigPg f;
    QVERIFY(f.bInit(frmNuovoSigPg::SceltaSigilli, s.primo, s.p1, QStringLiteral("Pergamena 1")));
    QVERIFY(f.Modello().SpuntaBloccata(f.Modello().Trova(altroSigillo)));
    Spunta(f, s.sigillo);
    f.cmdCollega->click();
    QVERIFY(f.bOkLink);
    QCOMPARE(Legami(a), (QStringList{Legame(s.sigillo, s.p1), Legame(altroSigillo, s.p1)}));
}

void TestNuovoSigPg::unaPergamenaNuovaFattaNelSelettoreSiSpuntaESiLega() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    frmNuovoSigPg f;
    QVERIFY(f.bInit(frmNuovoSigPg::SceltaPergamene, s.secondo, s.sigillo, QString()));
    f.SelezionaNodo(f.Modello().Radice());
    QVERIFY(f.cmdNuovaPG->isEnabled());
    f.cmdNuovaPG->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    Compila(*f.fraPergamena);
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    const qint64 nuova = f.Modello().Id(f.tvwDB->currentIndex());
    QVERIFY(nuova != s.secondo && nuova > 0);
    QCOMPARE(f.Modello().Trova(nuova).parent(), f.Modello().Radice());
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = ?"),
                      {Id(nuova)}),
             a.Valore(QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"),
                      {Id(s.secondo)}));
    Spunta(f, nuova);
    f.cmdCollega->click();
    QCOMPARE(Legami(a), QStringList{Legame(s.sigillo, nuova)});
}

void TestNuovoSigPg::daUnSigilloStaccatoSiLeganoDuePergameneEDallaPergamenaSiSciolgono() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);

    // The seal's button, its viewer, the choice of the finding aid, the picker: two parchments.
    EditorePronto<ucSigillo> sigillo(s.sigillo);
    QAbstractButton* pergamene = Pulsante(&sigillo, "cmdMostraPergamene");
    QVERIFY(!PulsanteAcceso(pergamene));
    QStringList scelte;
    QStringList vistiDopo;
    AlComparire(QStringLiteral("frmMostraLinkPGS"), [&](QWidget* visualizzatore) {
        AlComparire(QStringLiteral("frmSelInv"), [&](QWidget* finestra) {
            auto* scelta = static_cast<frmSelInv*>(finestra);
            scelte = Righe(*scelta);
            AlComparire(QStringLiteral("frmNuovoSigPgDialogo"), [&](QWidget* dialogo) {
                auto* selettore = dialogo->findChild<frmNuovoSigPg*>();
                QVERIFY(selettore != nullptr);
                Spunta(*selettore, s.p1);
                Spunta(*selettore, s.p3);
                selettore->cmdCollega->click();
            });
            scelta->cmdCollega->click();
        });
        Bottone(visualizzatore, "cmdNuovoCol")->click();
        vistiDopo = Testi(Lista(visualizzatore));
        static_cast<QDialog*>(visualizzatore)->reject();
    });
    pergamene->click();
    // A seal looks for finding aids with parchments: only the second.
    QCOMPARE(scelte, QStringList{QStringLiteral("Pergamene del capitolo")});
    QCOMPARE(vistiDopo,
             (QStringList{QStringLiteral("Pergamena 1"), QStringLiteral("Pergamena 3")}));
    QCOMPARE(Legami(a), (QStringList{Legame(s.sigillo, s.p1), Legame(s.sigillo, s.p3)}));
    QVERIFY(PulsanteAcceso(pergamene));

    // From the parchment: its seals, one untied.
    EditorePronto<ucPergamena> pergamena(s.p1);
    QAbstractButton* sigilli = Pulsante(&pergamena, "cmdMostraSigilli");
    QVERIFY(PulsanteAcceso(sigilli));
    QStringList vistiDallaPergamena;
    AlComparire(QStringLiteral("frmMostraLinkPGS"), [&](QWidget* visualizzatore) {
        vistiDallaPergamena = Testi(Lista(visualizzatore));
        CancellaLaPrimaVoce(a.seam, visualizzatore);
        static_cast<QDialog*>(visualizzatore)->reject();
    });
    sigilli->click();
    QCOMPARE(vistiDallaPergamena, QStringList{QStringLiteral("Sigillo del vescovo")});
    QVERIFY(!PulsanteAcceso(sigilli));
    QCOMPARE(Legami(a), QStringList{Legame(s.sigillo, s.p3)});
}

void TestNuovoSigPg::ilVisualizzatoreNonRileggeQuandoNonSiLegaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const DueStrumenti s(a);
    const std::unique_ptr<QDialog> visualizzatore(Visualizzatore(
        QStringLiteral("frmMostraLinkPGS"),
        {{QStringLiteral("lIdSigillo"), qlonglong(s.sigillo)},
         {QStringLiteral("lIdPergamena"), qlonglong(0)},
         {QStringLiteral("sDenominazione"), QStringLiteral("Sigillo del vescovo")}}));
    visualizzatore->show();
    QVERIFY(Testi(Lista(visualizzatore.get())).isEmpty());
    // Tied behind the viewer's back while the choice is given up: the list stays as it was.
    AlComparire(QStringLiteral("frmSelInv"), [&](QWidget* finestra) {
        a.Lega(s.sigillo, s.p2);
        Controllo<QPushButton>(finestra, QStringLiteral("cmdAnnulla"))->click();
    });
    Bottone(visualizzatore.get(), "cmdNuovoCol")->click();
    QVERIFY(Testi(Lista(visualizzatore.get())).isEmpty());
    QVERIFY(!Sessione::bOkLinkSelInv);
}

void TestNuovoSigPg::chiusiLaSceltaTogliIlSegnoDeiToponimiEIlSelettoreNessuno() {
    AmbienteLink a(TipoBackend::SQLite);
    const DueStrumenti s(a);
    Sessione::bFrmToponimiAperto = true;
    Sessione::bFrmStrutturaINAperto = true;
    {
        frmNuovoSigPg selettore;
        QVERIFY(selettore.bInit(frmNuovoSigPg::SceltaSigilli, s.primo, s.p1, QString()));
    }
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    QVERIFY(Sessione::bFrmToponimiAperto);
    { frmSelInv scelta; }
    // The choice clears a flag that is not its own, as it always did.
    QVERIFY(!Sessione::bFrmToponimiAperto);
    QVERIFY(Sessione::bFrmStrutturaINAperto);
}

QTEST_MAIN(TestNuovoSigPg)
#include "tst_nuovosigpg.moc"
