// The tie of a copy to its original and the list of an original's copies, on SQLite and on
// PostgreSQL: the parchment itself left out of the choice, the original tied in the traditio
// ticked, one tick at most, no choice written as Null, the copy's record lit after the tie, the
// copies of the copies seen from the original, and the boxes "Errore A2" and "Errore A3".

#include "links/ModelloSpunte.h"
#include "links/frmCollegaPergamene.h"
#include "programma/Registro.h"
#include "records/ucPergamena.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteLink.h"
#include "Modali.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

namespace {

QVariant Id(qint64 lId) {
    return QVariant::fromValue(static_cast<qlonglong>(lId));
}

// A base finding aid with three parchments, and a parchment of another finding aid.
struct Pergamene {
    long inventario = 0, idInventario = 0;
    long a = 0, b = 0, c = 0;
    long idA = 0, idB = 0, idC = 0;
    long altrove = 0;

    explicit Pergamene(const AmbienteLink& amb) {
        const long istituto = amb.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
        inventario = amb.Crea("03", QStringLiteral("Diplomatico"), istituto);
        idInventario = amb.Dettaglio("Inventari", "ID_Inventario", inventario);
        a = amb.Crea("05", QStringLiteral("Perg. A"), inventario);
        b = amb.Crea("05", QStringLiteral("Perg. B"), inventario);
        c = amb.Crea("05", QStringLiteral("Perg. C"), inventario);
        idA = amb.Dettaglio("Pergamene", "ID_Pergamena", a);
        idB = amb.Dettaglio("Pergamene", "ID_Pergamena", b);
        idC = amb.Dettaglio("Pergamene", "ID_Pergamena", c);
        const long altro = amb.Crea("03", QStringLiteral("Altro fondo"), istituto);
        altrove = amb.Crea("05", QStringLiteral("Perg. X"), altro);
    }
};

// The copy (its key in Pergamene) tied to the original (its element).
void Copia(const AmbienteLink& amb, long idCopia, long originale) {
    amb.Cnn().Esegui(QStringLiteral("UPDATE PGTraditio SET Traditio = '02', ID_Elemento = ? "
                                    "WHERE ID_Pergamena = ?"),
                     {Id(originale), Id(idCopia)});
}

QVariant Originale(const AmbienteLink& amb, long idCopia) {
    return amb.Valore(QStringLiteral("SELECT ID_Elemento FROM PGTraditio WHERE ID_Pergamena = ?"),
                      {Id(idCopia)});
}

// The window as the copy's record opens it: the copy and its finding aid in the session.
void PerLaCopia(const Pergamene& p, long idCopia, long originale) {
    Sessione::lIdInventario = p.idInventario;
    Sessione::lIdPergamena = idCopia;
    Sessione::lIdElementoLink = originale;
}

QStringList Voci(const frmCollegaPergamene& f) {
    QStringList voci;
    for (int i = 0; i < f.Modello(0).Righe(); ++i) {
        voci << f.Modello(0).Testo(i);
    }
    return voci;
}

// The user's tick (or untick) on the row of that element.
void Spunta(frmCollegaPergamene& f, long lId, bool bSpuntata = true) {
    const int iRiga = f.Modello(0).RigaDi(lId);
    QVERIFY(iRiga >= 0);
    f.Lista(0)->model()->setData(f.Modello(0).index(iRiga), bSpuntata ? Qt::Checked : Qt::Unchecked,
                                 Qt::CheckStateRole);
}

bool Spuntata(const frmCollegaPergamene& f, long lId) {
    return f.Modello(0).Spuntata(f.Modello(0).RigaDi(lId));
}

} // namespace

class TestCollegaPergamene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void laPergamenaStessaNonEInElencoEQuellaLegataEPartitaSpuntata_data() { AggiungiBackend(); }
    void laPergamenaStessaNonEInElencoEQuellaLegataEPartitaSpuntata();
    void unaSpuntaTogliequellaDiPrimaEConfermaScriveLOriginale_data() { AggiungiBackend(); }
    void unaSpuntaTogliequellaDiPrimaEConfermaScriveLOriginale();
    void senzaSceltaLOriginaleDiventaNull_data() { AggiungiBackend(); }
    void senzaSceltaLOriginaleDiventaNull();
    void dalPulsanteDellaCopiaSiLegaLOriginaleEIlPulsanteSiAccende_data() { AggiungiBackend(); }
    void dalPulsanteDellaCopiaSiLegaLOriginaleEIlPulsanteSiAccende();
    void unaCatenaDiTreCopieSiVedeTuttaDallOriginale_data() { AggiungiBackend(); }
    void unaCatenaDiTreCopieSiVedeTuttaDallOriginale();
    void unOriginaleSenzaCopieMostraUnElencoVuoto_data() { AggiungiBackend(); }
    void unOriginaleSenzaCopieMostraUnElencoVuoto();
    void senzaLaRigaDellaTraditioLaConfermaDaErroreA2_data() { AggiungiBackend(); }
    void senzaLaRigaDellaTraditioLaConfermaDaErroreA2();
    void unErroreAlCaricamentoDaErroreA3();
};

void TestCollegaPergamene::laPergamenaStessaNonEInElencoEQuellaLegataEPartitaSpuntata() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    Copia(amb, p.idB, p.c);
    PerLaCopia(p, p.idB, p.c);
    frmCollegaPergamene f;
    f.Carica();
    // Neither B itself nor the parchment of another finding aid.
    QCOMPARE(Voci(f), (QStringList{QStringLiteral("Perg. A"), QStringLiteral("Perg. C")}));
    QCOMPARE(f.Modello(0).Intestazione(), QStringLiteral("Pergamene "));
    QCOMPARE(f.Oggetto(0)->text(), QStringLiteral("Perg. B"));
    QVERIFY(Spuntata(f, p.c));
    QVERIFY(!Spuntata(f, p.a));
    // An ordinary tick: not bold, and the user may take it away.
    QCOMPARE(f.Modello(0).Tag(f.Modello(0).RigaDi(p.c)), 0);
    QVERIFY(f.cmdCollega->isEnabled());
    QCOMPARE(f.cmdCollega->text(), QStringLiteral("Conferma"));
    QVERIFY(f.cmdNuovoSog->isHidden());
}

void TestCollegaPergamene::unaSpuntaTogliequellaDiPrimaEConfermaScriveLOriginale() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    Copia(amb, p.idB, p.c);
    PerLaCopia(p, p.idB, p.c);
    frmCollegaPergamene f;
    f.Carica();
    f.show();
    Spunta(f, p.a);
    QVERIFY(Spuntata(f, p.a));
    QVERIFY(!Spuntata(f, p.c));
    QCOMPARE(f.Scelti(0)->text(), QStringLiteral("Perg. A"));
    Spunta(f, p.c);
    QVERIFY(!Spuntata(f, p.a));
    QCOMPARE(f.Scelti(0)->text(), QStringLiteral("Perg. C"));
    Spunta(f, p.c, false);
    QCOMPARE(f.Scelti(0)->text(), QString());
    Spunta(f, p.a);
    f.cmdCollega->click();
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QCOMPARE(Originale(amb, p.idB).toLongLong(), qint64(p.a));
    QCOMPARE(Sessione::lIdElementoLink, p.a);
    QVERIFY(amb.seam.Messaggi().isEmpty());
}

void TestCollegaPergamene::senzaSceltaLOriginaleDiventaNull() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    Copia(amb, p.idB, p.c);
    PerLaCopia(p, p.idB, p.c);
    frmCollegaPergamene f;
    f.Carica();
    Spunta(f, p.c, false);
    f.cmdCollega->click();
    QVERIFY(Originale(amb, p.idB).isNull());
    QCOMPARE(Sessione::lIdElementoLink, 0L);
}

void TestCollegaPergamene::dalPulsanteDellaCopiaSiLegaLOriginaleEIlPulsanteSiAccende() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    // B is a copy, tied to nothing yet.
    amb.Cnn().Esegui(QStringLiteral("UPDATE PGTraditio SET Traditio = '02' WHERE ID_Pergamena = ?"),
                     {Id(p.idB)});
    EditorePronto<ucPergamena> copia(p.b);
    QAbstractButton* pulsante = Pulsante(&copia, "cmdMostraPergamene");
    QVERIFY(!pulsante->isHidden());
    QVERIFY(!PulsanteAcceso(pulsante));
    QStringList voci;
    AlComparire(QStringLiteral("frmCollegaPergamene"), [&](QWidget* finestra) {
        auto* f = static_cast<frmCollegaPergamene*>(finestra);
        voci = Voci(*f);
        Spunta(*f, p.a);
        f->cmdCollega->click();
    });
    pulsante->click();
    QCOMPARE(voci, (QStringList{QStringLiteral("Perg. A"), QStringLiteral("Perg. C")}));
    QCOMPARE(Originale(amb, p.idB).toLongLong(), qint64(p.a));
    QVERIFY(PulsanteAcceso(pulsante));

    // Opened again: the original comes ticked; given up, nothing changes.
    bool bSpuntata = false;
    AlComparire(QStringLiteral("frmCollegaPergamene"), [&](QWidget* finestra) {
        auto* f = static_cast<frmCollegaPergamene*>(finestra);
        bSpuntata = Spuntata(*f, p.a);
        Spunta(*f, p.a, false);
        f->cmdAnnullaCol->click();
    });
    pulsante->click();
    QVERIFY(bSpuntata);
    QCOMPARE(Originale(amb, p.idB).toLongLong(), qint64(p.a));
    QVERIFY(PulsanteAcceso(pulsante));
}

void TestCollegaPergamene::unaCatenaDiTreCopieSiVedeTuttaDallOriginale() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    // A copied into B, B into C, and A also into X of another finding aid.
    Copia(amb, p.idB, p.a);
    Copia(amb, p.idC, p.b);
    const long idX = amb.Dettaglio("Pergamene", "ID_Pergamena", p.altrove);
    Copia(amb, idX, p.a);
    QCOMPARE(frmCollegaPergamene::Copie(p.a), (QList<qint64>{p.idB, idX, p.idC}));

    frmCollegaPergamene f;
    f.Init(p.a, QStringLiteral("Perg. A"));
    f.Carica();
    QCOMPARE(Voci(f), (QStringList{QStringLiteral("Istituto > Diplomatico > Perg. B"),
                                   QStringLiteral("Istituto > Diplomatico > Perg. C"),
                                   QStringLiteral("Istituto > Altro fondo > Perg. X")}));
    QCOMPARE(f.Modello(0).Intestazione(), QStringLiteral("Pergamene Collegate a: Perg. A"));
    QCOMPARE(f.Oggetto(0)->text(), QStringLiteral("Perg. A"));
    // Only to read.
    QVERIFY(!f.cmdCollega->isEnabled());
    // From the middle of the chain, only what was copied from it.
    QCOMPARE(frmCollegaPergamene::Copie(p.b), QList<qint64>{p.idC});
    // A ring of ties ends.
    Copia(amb, p.idA, p.c);
    QCOMPARE(frmCollegaPergamene::Copie(p.a), (QList<qint64>{p.idB, idX, p.idC, p.idA}));
}

void TestCollegaPergamene::unOriginaleSenzaCopieMostraUnElencoVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    frmCollegaPergamene f;
    f.Init(p.a, QStringLiteral("Perg. A"));
    f.Carica();
    QCOMPARE(f.Modello(0).Righe(), 0);
    QVERIFY(amb.seam.Messaggi().isEmpty());
}

void TestCollegaPergamene::senzaLaRigaDellaTraditioLaConfermaDaErroreA2() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink amb(backend);
    const Pergamene p(amb);
    PerLaCopia(p, p.idB, 0);
    frmCollegaPergamene f;
    f.Carica();
    f.show();
    amb.Cnn().Esegui(QStringLiteral("DELETE FROM PGTraditio WHERE ID_Pergamena = ?"), {Id(p.idB)});
    Spunta(f, p.a);
    f.cmdCollega->click();
    QCOMPARE(amb.seam.Messaggi().size(), 1);
    QCOMPARE(amb.seam.Messaggi().constFirst().sTitolo, QStringLiteral("Errore A2"));
    QVERIFY(f.isVisible());
    QCOMPARE(amb.Valore(QStringLiteral("SELECT COUNT(*) FROM PGTraditio WHERE ID_Pergamena = ?"),
                        {Id(p.idB)})
                 .toInt(),
             0);
}

void TestCollegaPergamene::unErroreAlCaricamentoDaErroreA3() {
    AmbienteLink amb(TipoBackend::SQLite);
    const Pergamene p(amb);
    PerLaCopia(p, p.idB, 0);
    // The connection closed: the list cannot be read.
    Sessione::cnn.reset();
    frmCollegaPergamene f;
    f.Carica();
    QVERIFY(!amb.seam.Messaggi().isEmpty());
    for (const Messaggio& m : amb.seam.Messaggi()) {
        QCOMPARE(m.sTitolo, QStringLiteral("Errore A3"));
    }
    QCOMPARE(f.Modello(0).Righe(), 0);
}

QTEST_MAIN(TestCollegaPergamene)
#include "tst_collegapergamene.moc"
