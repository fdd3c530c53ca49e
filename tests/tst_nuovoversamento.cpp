// The dialog of a versamento's row (frmNuovoVersamento): one complesso at most ticked, a second
// tick unticking the first; the row's mandatory fields checked before the choice, and the box
// when no complesso is chosen; a new row opening on the act's institute, a row written before
// opening with its complesso ticked and the tree open down to it; a complesso made on the spot
// and chosen; the row moved to another complesso; lIdRigaVersamento taking the row's id only
// when the save went through; a complesso or an act deleted meanwhile by another workstation,
// with a box and no half-made row; the dialog left with nothing written, and its opening by
// name; on SQLite and on PostgreSQL.

#include "links/frmNuovoVersamento.h"
#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "records/ucIstituto.h"
#include "records/ucRigaVersamento.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"

#include "AmbienteStruttura.h"
#include "AmbienteSulBackend.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <memory>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// Two institutes; under the first two complessi, a series under the first of them and a
// versamento.
struct Archivio {
    long ist = 0;
    long ist2 = 0;
    long alfa = 0;
    long beta = 0;
    long serie = 0;
    long versamento = 0;
    // The act's ID_Versamento.
    long lIdVersamento = 0;

    explicit Archivio(const AmbienteStruttura& a) {
        ist = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
        ist2 = a.Crea("01", QStringLiteral("Archivio di Stato di Firenze"));
        alfa = a.Crea("02", QStringLiteral("Fondo Alfa"), ist);
        beta = a.Crea("02", QStringLiteral("Fondo Beta"), ist);
        serie = a.Crea("02", QStringLiteral("Serie dei rogiti"), alfa);
        versamento = a.Crea("04", QStringLiteral("15/03/2024 - 12"), ist);
        lIdVersamento = static_cast<long>(
            a.Valore(QStringLiteral("SELECT ID_Versamento FROM Versamenti WHERE ID_Elemento = ?"),
                     {L(versamento)})
                .toLongLong());
    }
};

// The session of ucVersamento opening the dialog for a new row (0) or for a row written.
void ApertoPer(const Archivio& ar, long lIdRiga = 0) {
    Sessione::lIdVersamento = ar.lIdVersamento;
    Sessione::lIdRigaVersamento = lIdRiga;
}

// The user's tick (true) or untick on the node of that element.
void Spunta(FinestraStruttura& f, qint64 lId, bool bSpuntato = true) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    QVERIFY(f.tvwDB->model()->setData(nodo, bSpuntato ? Qt::Checked : Qt::Unchecked,
                                      Qt::CheckStateRole));
}

bool Spuntato(const FinestraStruttura& f, qint64 lId) {
    return f.Modello().Spuntato(f.Modello().Trova(lId));
}

QLineEdit* Campo(const frmNuovoVersamento& f, int n) {
    return Riga(f.fraVersamento, n);
}

// The row's mandatory fields, with that name.
void CompilaRiga(const frmNuovoVersamento& f, const QString& sNome,
                 const QString& sConsistenza = QStringLiteral("12")) {
    const struct {
        int n;
        QString testo;
    } campi[] = {{0, sNome},
                 {1, sConsistenza},
                 {4, QStringLiteral("1900")},
                 {5, QStringLiteral("1950")},
                 {6, QStringLiteral("1900 - 1950")}};
    for (const auto& campo : campi) {
        QLineEdit* riga = Campo(f, campo.n);
        QVERIFY2(riga != nullptr, qPrintable(QString::number(campo.n)));
        riga->setText(campo.testo);
    }
}

// The rows of the act, "name>element of the complesso" in the order of their keys (0 for a
// complesso that is not there).
QStringList Righe(const AmbienteStruttura& a, const Archivio& ar) {
    QStringList righe;
    QSqlQuery q = a.cnn().Esegui(
        QStringLiteral("SELECT RV.Denominazione, COALESCE(CD.ID_Elemento, 0) FROM RigheVersamento "
                       "RV LEFT JOIN ComplessiDoc CD ON CD.ID_ComplessoDoc = RV.ID_ComplessoDoc "
                       "WHERE RV.ID_Versamento = ? ORDER BY RV.ID_RigaVersamento"),
        {L(ar.lIdVersamento)});
    while (q.next()) {
        righe.append(
            QStringLiteral("%1>%2").arg(q.value(0).toString()).arg(q.value(1).toLongLong()));
    }
    return righe;
}

// The dialog, shown (not modally, so that the test goes on).
struct InDialogo {
    frmNuovoVersamento* f = new frmNuovoVersamento;
    std::unique_ptr<QDialog> dialogo{f->InDialogo()};
    InDialogo() { dialogo->show(); }
};

} // namespace

class TestNuovoVersamento : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void spuntareUnSecondoComplessoTogliLaSpuntaAlPrimo_data() { AggiungiBackend(); }
    void spuntareUnSecondoComplessoTogliLaSpuntaAlPrimo();
    void unIstitutoSpuntatoTornaSenzaSpuntaELaSceltaResta_data() { AggiungiBackend(); }
    void unIstitutoSpuntatoTornaSenzaSpuntaELaSceltaResta();
    void conLaRigaVuotaCollegaSiFermaAlPrimoCampoObbligatorioPrimaDellAlbero_data() {
        AggiungiBackend();
    }
    void conLaRigaVuotaCollegaSiFermaAlPrimoCampoObbligatorioPrimaDellAlbero();
    void senzaComplessoSceltoIlBoxChiedeDiSceglierlo_data() { AggiungiBackend(); }
    void senzaComplessoSceltoIlBoxChiedeDiSceglierlo();
    void unaRigaNuovaSiApreSullIstitutoDellAtto_data() { AggiungiBackend(); }
    void unaRigaNuovaSiApreSullIstitutoDellAtto();
    void unaRigaSalvataSiRiapreColComplessoSpuntatoELAlberoApertoFinoALui_data() {
        AggiungiBackend();
    }
    void unaRigaSalvataSiRiapreColComplessoSpuntatoELAlberoApertoFinoALui();
    void unaRigaPassaAUnAltroComplesso_data() { AggiungiBackend(); }
    void unaRigaPassaAUnAltroComplesso();
    void unComplessoFattoSulPostoSiSceglieESiSalvaConLaRiga_data() { AggiungiBackend(); }
    void unComplessoFattoSulPostoSiSceglieESiSalvaConLaRiga();
    void lIdDellaRigaArrivaSoloSeIlSalvataggioRiesce_data() { AggiungiBackend(); }
    void lIdDellaRigaArrivaSoloSeIlSalvataggioRiesce();
    void unComplessoCancellatoNelFrattempoDaUnBoxENessunaMezzaRiga_data() { AggiungiBackend(); }
    void unComplessoCancellatoNelFrattempoDaUnBoxENessunaMezzaRiga();
    void unAttoCancellatoNelFrattempoNonPrendeRighe_data() { AggiungiBackend(); }
    void unAttoCancellatoNelFrattempoNonPrendeRighe();
    void annullaOEscNonScrivonoNullaESvuotanoIlFlagDegliStrumenti_data() { AggiungiBackend(); }
    void annullaOEscNonScrivonoNullaESvuotanoIlFlagDegliStrumenti();
    void apertoPerNomeEModaleConLeSueDidascalie_data() { AggiungiBackend(); }
    void apertoPerNomeEModaleConLeSueDidascalie();
};

void TestNuovoVersamento::spuntareUnSecondoComplessoTogliLaSpuntaAlPrimo() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    frmNuovoVersamento f;

    Spunta(f, ar.alfa);
    QCOMPARE(f.Scelto(), L(ar.alfa));
    QVERIFY(f.fraComplesso->isVisibleTo(&f));
    QCOMPARE(f.GetDenon(), QStringLiteral("Fondo Alfa"));
    Spunta(f, ar.serie);
    QVERIFY(!Spuntato(f, ar.alfa));
    QVERIFY(Spuntato(f, ar.serie));
    QCOMPARE(f.Modello().NodiSpuntati().size(), 1);
    QCOMPARE(f.Scelto(), L(ar.serie));
    // The one ticked is shown, as a click shows it.
    QCOMPARE(f.lIdCorrente, L(ar.serie));
    QCOMPARE(f.GetDenon(), QStringLiteral("Serie dei rogiti"));
    // An untick leaves no choice.
    Spunta(f, ar.serie, false);
    QCOMPARE(f.Scelto(), qint64{0});
    QVERIFY(f.Modello().NodiSpuntati().isEmpty());
}

void TestNuovoVersamento::unIstitutoSpuntatoTornaSenzaSpuntaELaSceltaResta() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    frmNuovoVersamento f;

    Spunta(f, ar.beta);
    Spunta(f, ar.ist2);
    QVERIFY(!Spuntato(f, ar.ist2));
    QCOMPARE(f.lIdDaTogliere, L(ar.ist2));
    QVERIFY(Spuntato(f, ar.beta));
    QCOMPARE(f.Scelto(), L(ar.beta));
}

void TestNuovoVersamento::conLaRigaVuotaCollegaSiFermaAlPrimoCampoObbligatorioPrimaDellAlbero() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    InDialogo d;

    // Nothing chosen either: the row's first empty mandatory field speaks, not the tree.
    QVERIFY(d.f->cmdCollega->isEnabled());
    d.f->cmdCollega->click();
    QList<Messaggio> box = a.piattaforma.Messaggi();
    QCOMPARE(box.size(), 1);
    QCOMPARE(box[0].sTesto, QStringLiteral("Inserire anno fine"));
    QCOMPARE(box[0].sTitolo, QStringLiteral("Attenzione"));
    QVERIFY(d.dialogo->isVisible());
    QVERIFY(Righe(a, ar).isEmpty());

    // The same with a complesso chosen.
    a.piattaforma.Svuota();
    Spunta(*d.f, ar.alfa);
    d.f->cmdCollega->click();
    box = a.piattaforma.Messaggi();
    QCOMPARE(box.size(), 1);
    QCOMPARE(box[0].sTesto, QStringLiteral("Inserire anno fine"));
    QVERIFY(Righe(a, ar).isEmpty());
    QCOMPARE(Sessione::lIdRigaVersamento, 0L);
}

void TestNuovoVersamento::senzaComplessoSceltoIlBoxChiedeDiSceglierlo() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    InDialogo d;

    CompilaRiga(*d.f, QStringLiteral("Carte dei notai"));
    d.f->cmdCollega->click();
    const QList<Messaggio> box = a.piattaforma.Messaggi();
    QCOMPARE(box.size(), 1);
    QCOMPARE(box[0].sTesto, QStringLiteral("Scegliere un complesso documentario."));
    QCOMPARE(box[0].sTitolo, QStringLiteral("Attenzione"));
    QVERIFY(d.dialogo->isVisible());
    QVERIFY(Righe(a, ar).isEmpty());
    QCOMPARE(Sessione::lIdRigaVersamento, 0L);

    // Chosen, the row goes in.
    a.piattaforma.Svuota();
    Spunta(*d.f, ar.beta);
    d.f->cmdCollega->click();
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Righe(a, ar), QStringList{QStringLiteral("Carte dei notai>%1").arg(ar.beta)});
}

void TestNuovoVersamento::unaRigaNuovaSiApreSullIstitutoDellAtto() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    // An act of the second institute.
    const long lVersamento2 = a.Crea("04", QStringLiteral("01/02/2025 - 3"), ar.ist2);
    Sessione::lIdVersamento = static_cast<long>(
        a.Valore(QStringLiteral("SELECT ID_Versamento FROM Versamenti WHERE ID_Elemento = ?"),
                 {L(lVersamento2)})
            .toLongLong());
    Sessione::lIdRigaVersamento = 0;
    InDialogo d;
    frmNuovoVersamento& f = *d.f;

    QCOMPARE(f.sStatoRiga, QStringLiteral("nuovo"));
    QCOMPARE(f.lIdCorrente, L(ar.ist2));
    QCOMPARE(f.tvwDB->currentIndex(), f.Modello().Trova(ar.ist2));
    QVERIFY(f.tvwDB->isExpanded(f.Modello().Trova(ar.ist2)));
    QVERIFY(f.fraIstituto->isVisible());
    QVERIFY(!f.fraComplesso->isVisible());
    QCOMPARE(f.Scelto(), qint64{0});
    // The row is empty and can be typed.
    QVERIFY(f.fraVersamento->isVisible());
    QCOMPARE(Campo(f, 0)->text(), QString());
    QVERIFY(Campo(f, 0)->isEnabled() && !Campo(f, 0)->isReadOnly());
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestNuovoVersamento::unaRigaSalvataSiRiapreColComplessoSpuntatoELAlberoApertoFinoALui() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    {
        InDialogo d;
        CompilaRiga(*d.f, QStringLiteral("Rogiti del Seicento"));
        Spunta(*d.f, ar.serie);
        d.f->cmdCollega->click();
        QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
        QVERIFY(!d.dialogo->isVisible());
    }
    const long lIdRiga = Sessione::lIdRigaVersamento;
    QVERIFY(lIdRiga > 0);
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_Versamento FROM RigheVersamento WHERE "
                                     "ID_RigaVersamento = ?"),
                      {L(lIdRiga)})
                 .toLongLong(),
             L(ar.lIdVersamento));
    QCOMPARE(a.Valore(QStringLiteral("SELECT CD.ID_Elemento FROM RigheVersamento RV JOIN "
                                     "ComplessiDoc CD ON CD.ID_ComplessoDoc = RV.ID_ComplessoDoc "
                                     "WHERE RV.ID_RigaVersamento = ?"),
                      {L(lIdRiga)})
                 .toLongLong(),
             L(ar.serie));
    QCOMPARE(a.Valore(QStringLiteral("SELECT DataFine FROM RigheVersamento WHERE "
                                     "ID_RigaVersamento = ?"),
                      {L(lIdRiga)})
                 .toLongLong(),
             19501231LL);

    ApertoPer(ar, lIdRiga);
    InDialogo d;
    frmNuovoVersamento& f = *d.f;
    QCOMPARE(f.sStatoRiga, QStringLiteral("modifica"));
    QVERIFY(Spuntato(f, ar.serie));
    QCOMPARE(f.Modello().NodiSpuntati().size(), 1);
    QCOMPARE(f.Scelto(), L(ar.serie));
    for (const qint64 lPadre : {qint64{0}, qint64{ar.ist}, qint64{ar.alfa}}) {
        QVERIFY2(f.tvwDB->isExpanded(f.Modello().Trova(lPadre)),
                 qPrintable(QString::number(lPadre)));
    }
    QCOMPARE(f.tvwDB->currentIndex(), f.Modello().Trova(ar.serie));
    QVERIFY(f.fraComplesso->isVisible());
    QCOMPARE(f.GetDenon(), QStringLiteral("Serie dei rogiti"));
    // The row shown, open to changes.
    QCOMPARE(Campo(f, 0)->text(), QStringLiteral("Rogiti del Seicento"));
    QCOMPARE(Campo(f, 5)->text(), QStringLiteral("1950"));
    QVERIFY(!Campo(f, 0)->isReadOnly() && Campo(f, 0)->isEnabled());
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestNuovoVersamento::unaRigaPassaAUnAltroComplesso() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    {
        InDialogo d;
        CompilaRiga(*d.f, QStringLiteral("Carte sciolte"));
        Spunta(*d.f, ar.alfa);
        d.f->cmdCollega->click();
    }
    const long lIdRiga = Sessione::lIdRigaVersamento;
    QCOMPARE(Righe(a, ar), QStringList{QStringLiteral("Carte sciolte>%1").arg(ar.alfa)});

    ApertoPer(ar, lIdRiga);
    InDialogo d;
    Spunta(*d.f, ar.beta);
    QVERIFY(!Spuntato(*d.f, ar.alfa));
    Campo(*d.f, 0)->setText(QStringLiteral("Carte sciolte e registri"));
    d.f->cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::lIdRigaVersamento, lIdRiga);
    QCOMPARE(Righe(a, ar), QStringList{QStringLiteral("Carte sciolte e registri>%1").arg(ar.beta)});
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestNuovoVersamento::unComplessoFattoSulPostoSiSceglieESiSalvaConLaRiga() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    InDialogo d;
    frmNuovoVersamento& f = *d.f;

    // Opened on the act's institute: a new complesso under it.
    QCOMPARE(f.lIdCorrente, L(ar.ist));
    QVERIFY(f.cmdNuovoCD->isEnabled());
    f.cmdNuovoCD->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(!f.tvwDB->isEnabled());
    QVERIFY(f.cmdCollega->isHidden());
    QVERIFY(CompilaComplesso(f.fraComplesso, QStringLiteral("Catasto"), QStringLiteral("40")));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    const qint64 lNuovo = f.Modello().Id(f.tvwDB->currentIndex());
    QVERIFY(lNuovo > 0 && lNuovo != ModelloAlbero::IdTemporaneo);
    QCOMPARE(f.Modello().Id(f.Modello().Trova(lNuovo).parent()), L(ar.ist));
    QVERIFY(f.cmdCollega->isVisible() && f.cmdCollega->isEnabled());

    Spunta(f, lNuovo);
    CompilaRiga(f, QStringLiteral("Catasto leopoldino"));
    f.cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Righe(a, ar), QStringList{QStringLiteral("Catasto leopoldino>%1").arg(lNuovo)});
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                      {L(lNuovo)})
                 .toString(),
             QStringLiteral("Catasto"));
}

void TestNuovoVersamento::lIdDellaRigaArrivaSoloSeIlSalvataggioRiesce() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    InDialogo d;

    // A consistenza that is no number: the row's save fails, and the row inserted for it goes
    // away with it.
    CompilaRiga(*d.f, QStringLiteral("Registri"), QStringLiteral("molti"));
    Spunta(*d.f, ar.alfa);
    d.f->cmdCollega->click();
    const QList<Messaggio> box = MessaggiCon(a.piattaforma, QStringLiteral("Errore N2"));
    QCOMPARE(box.size(), 1);
    QCOMPARE(box[0].icona, Icona::Critica);
    QVERIFY2(box[0].sTesto.contains(u'\n'), qPrintable(box[0].sTesto));
    QCOMPARE(Sessione::lIdRigaVersamento, 0L);
    QVERIFY(d.dialogo->isVisible());
    QCOMPARE(a.Righe("RigheVersamento"), 0);

    Campo(*d.f, 1)->setText(QStringLiteral("30"));
    d.f->cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(a.Righe("RigheVersamento"), 1);
    QCOMPARE(
        L(Sessione::lIdRigaVersamento),
        a.Valore(QStringLiteral("SELECT ID_RigaVersamento FROM RigheVersamento"), {}).toLongLong());
    QCOMPARE(a.Valore(QStringLiteral("SELECT Quantita FROM RigheVersamento"), {}).toDouble(), 30.0);
}

void TestNuovoVersamento::unComplessoCancellatoNelFrattempoDaUnBoxENessunaMezzaRiga() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    {
        InDialogo d;
        CompilaRiga(*d.f, QStringLiteral("Registri"));
        Spunta(*d.f, ar.beta);
        // Another workstation deletes the complesso meanwhile.
        ArchivioElementi::Elimina(a.cnn(), QStringLiteral("02"), ar.beta);
        d.f->cmdCollega->click();

        const QList<Messaggio> box = a.piattaforma.Messaggi();
        QCOMPARE(box.size(), 1);
        QCOMPARE(box[0].sTitolo, QStringLiteral("Errore N2"));
        QCOMPARE(box[0].icona, Icona::Critica);
        QVERIFY2(
            box[0].sTesto.startsWith(QStringLiteral("frmNuovoVersamento.cmdCollega\n")) &&
                box[0].sTesto.contains(QString::number(ar.beta) + QStringLiteral(" non esiste")),
            qPrintable(box[0].sTesto));
        QCOMPARE(a.Righe("RigheVersamento"), 0);
        QCOMPARE(Sessione::lIdRigaVersamento, 0L);
        QVERIFY(d.dialogo->isVisible());
    }

    // A row written before keeps its complesso and its fields.
    a.piattaforma.Svuota();
    {
        InDialogo d;
        CompilaRiga(*d.f, QStringLiteral("Registri"));
        Spunta(*d.f, ar.alfa);
        d.f->cmdCollega->click();
        QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    }
    const long lIdRiga = Sessione::lIdRigaVersamento;
    ApertoPer(ar, lIdRiga);
    InDialogo d;
    Spunta(*d.f, ar.serie);
    Campo(*d.f, 0)->setText(QStringLiteral("Registri e filze"));
    ArchivioElementi::Elimina(a.cnn(), QStringLiteral("02"), ar.serie);
    d.f->cmdCollega->click();
    QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore N2")).size(), 1);
    QCOMPARE(Righe(a, ar), QStringList{QStringLiteral("Registri>%1").arg(ar.alfa)});
    QVERIFY(d.dialogo->isVisible());
}

void TestNuovoVersamento::unAttoCancellatoNelFrattempoNonPrendeRighe() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    InDialogo d;
    CompilaRiga(*d.f, QStringLiteral("Registri"));
    Spunta(*d.f, ar.alfa);
    ArchivioElementi::Elimina(a.cnn(), QStringLiteral("04"), ar.versamento);
    d.f->cmdCollega->click();
    QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore N2")).size(), 1);
    QCOMPARE(a.Righe("RigheVersamento"), 0);
    QCOMPARE(Sessione::lIdRigaVersamento, 0L);
}

void TestNuovoVersamento::annullaOEscNonScrivonoNullaESvuotanoIlFlagDegliStrumenti() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoPer(ar);
    Sessione::bFrmStrutturaINAperto = true;
    {
        InDialogo d;
        CompilaRiga(*d.f, QStringLiteral("Registri"));
        Spunta(*d.f, ar.alfa);
        d.f->cmdAnnullaCol->click();
        QCOMPARE(d.dialogo->result(), int(QDialog::Rejected));
        QVERIFY(!d.dialogo->isVisible());
    }
    // The unload clears the open flag of the finding aids' window.
    QVERIFY(!Sessione::bFrmStrutturaINAperto);
    QCOMPARE(a.Righe("RigheVersamento"), 0);
    QCOMPARE(Sessione::lIdRigaVersamento, 0L);
    {
        InDialogo d;
        CompilaRiga(*d.f, QStringLiteral("Registri"));
        Spunta(*d.f, ar.alfa);
        QTest::keyClick(d.f, Qt::Key_Escape);
        QCOMPARE(d.dialogo->result(), int(QDialog::Rejected));
    }
    QCOMPARE(a.Righe("RigheVersamento"), 0);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestNuovoVersamento::apertoPerNomeEModaleConLeSueDidascalie() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    RegistraFinestreProgramma();
    ApertoPer(ar);
    bool bVisto = false;
    QTimer::singleShot(0, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialogo != nullptr);
        auto* f = dialogo->findChild<frmNuovoVersamento*>(QStringLiteral("frmNuovoVersamento"));
        QVERIFY(f != nullptr);
        bVisto = true;
        QVERIFY(dialogo->isModal());
        QCOMPARE(f->cmdCollega->text(), QStringLiteral("Conferma collegam."));
        QCOMPARE(f->cmdNuovoCD->text(), QStringLiteral("Nuovo compl. doc."));
        QVERIFY(f->findChild<ucIstituto*>(QStringLiteral("fraIstituto")) != nullptr);
        QVERIFY(f->findChild<ucComplesso*>(QStringLiteral("fraComplesso")) != nullptr);
        QVERIFY(f->findChild<ucRigaVersamento*>(QStringLiteral("fraVersamento")) != nullptr);
        // The tree holds institutes and complessi only.
        QVERIFY(f->Modello().Trova(ar.alfa).isValid());
        QVERIFY(!f->Modello().Trova(ar.versamento).isValid());
        CompilaRiga(*f, QStringLiteral("Registri"));
        Spunta(*f, ar.alfa);
        f->cmdCollega->click();
    });
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmNuovoVersamento"), nullptr));
    QVERIFY(bVisto);
    QVERIFY(Sessione::lIdRigaVersamento > 0);
    QCOMPARE(Righe(a, ar), QStringList{QStringLiteral("Registri>%1").arg(ar.alfa)});
}

QTEST_MAIN(TestNuovoVersamento)
#include "tst_nuovoversamento.moc"
