// The whole road of the register of new acquisitions, through the real windows from the menu
// "Nuove acquisizioni": a versamento made under an institute, three rows written in the row's
// dialog on three complessi (one of them made there on the spot), a row moved to another
// complesso, a row deleted, and the act that cannot be deleted while it has rows and then can;
// each step checked with queries of the test's own, on SQLite and on PostgreSQL.

#include "links/frmNuovoVersamento.h"
#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "records/ucRigaVersamento.h"
#include "records/ucVersamento.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmRegistroPC.h"

#include "AmbienteStruttura.h"
#include "IstitutiProva.h"
#include "Modali.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

#include <functional>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

const QString DialogoRiga = QStringLiteral("frmNuovoVersamentoDialogo");

// The rows of the act, "name>element of the complesso", in the order of their keys.
QStringList Righe(const AmbienteStruttura& a, long lIdVersamento) {
    QStringList righe;
    QSqlQuery q = a.cnn().Esegui(
        QStringLiteral("SELECT RV.Denominazione, COALESCE(CD.ID_Elemento, 0) FROM RigheVersamento "
                       "RV LEFT JOIN ComplessiDoc CD ON CD.ID_ComplessoDoc = RV.ID_ComplessoDoc "
                       "WHERE RV.ID_Versamento = ? ORDER BY RV.ID_RigaVersamento"),
        {L(lIdVersamento)});
    while (q.next()) {
        righe.append(
            QStringLiteral("%1>%2").arg(q.value(0).toString()).arg(q.value(1).toLongLong()));
    }
    return righe;
}

// The texts of the act's list of rows, in its order.
QStringList Lista(const ucVersamento& atto) {
    QStringList testi;
    for (int i = 0; i < atto.lvwDB->topLevelItemCount(); ++i) {
        testi.append(atto.lvwDB->topLevelItem(i)->text(0));
    }
    return testi;
}

// The user's click on the act's row with that text.
void ScegliRiga(const ucVersamento& atto, const QString& sTesto) {
    const QList<QTreeWidgetItem*> voci = atto.lvwDB->findItems(sTesto, Qt::MatchExactly);
    QCOMPARE(voci.size(), 1);
    QTest::mouseClick(atto.lvwDB->viewport(), Qt::LeftButton, {},
                      atto.lvwDB->visualItemRect(voci[0]).center());
    QCOMPARE(atto.lvwDB->currentItem(), voci[0]);
}

// The user's tick on the node of that element.
void Spunta(frmNuovoVersamento& d, qint64 lId) {
    const QModelIndex nodo = d.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    QVERIFY(d.tvwDB->model()->setData(nodo, Qt::Checked, Qt::CheckStateRole));
}

// The row's dialog, when the button opens it, given to the step; then the button clicked and
// the step required to have run.
void NelDialogo(QPushButton* pulsante, const std::function<void(frmNuovoVersamento&)>& passo) {
    bool bFatto = false;
    AlComparire(DialogoRiga, [&](QWidget* dialogo) {
        auto* d = dialogo->findChild<frmNuovoVersamento*>();
        QVERIFY(d != nullptr);
        QVERIFY(dialogo->isModal());
        passo(*d);
        bFatto = true;
    });
    QVERIFY(pulsante->isEnabled());
    pulsante->click();
    QVERIFY(bFatto);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

// The row's fields typed in the dialog, the row named sNome.
void CompilaRiga(const frmNuovoVersamento& d, const QString& sNome, const QString& sAnni) {
    Riga(d.fraVersamento, 0)->setText(sNome);
    Riga(d.fraVersamento, 1)->setText(QStringLiteral("25"));
    Riga(d.fraVersamento, 4)->setText(sAnni.left(4));
    Riga(d.fraVersamento, 5)->setText(sAnni.right(4));
    Riga(d.fraVersamento, 6)->setText(sAnni);
}

} // namespace

class TestStradaVersamenti : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void laStradaDiUnVersamentoDalMenuFinoAllaCancellazione_data() { AggiungiBackend(); }
    void laStradaDiUnVersamentoDalMenuFinoAllaCancellazione();
};

void TestStradaVersamenti::laStradaDiUnVersamentoDalMenuFinoAllaCancellazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    a.cartella.CopiaDalSito({QStringLiteral("TipoAcquisizione.txt")});
    const long lucca =
        IstitutiProva::Crea(a.cnn(), QStringLiteral("Archivio di Stato di Lucca"), "01");
    const long alfa = a.Crea("02", QStringLiteral("Fondo Alfa"), lucca);
    const long beta = a.Crea("02", QStringLiteral("Fondo Beta"), lucca);
    const long serie = a.Crea("02", QStringLiteral("Serie dei rogiti"), alfa);

    // The register from the menu.
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    principale->findChild<QAction*>(QStringLiteral("mnuRegistro"))->trigger();
    QPointer<frmRegistroPC> f = principale->findChild<frmRegistroPC*>();
    QVERIFY(f);
    QVERIFY(Sessione::bFrmRegistroPCAperto);

    // 1. A versamento under the institute.
    f->tvwDB->setCurrentIndex(f->Modello().Trova(lucca));
    QVERIFY(f->cmdNuovoVer->isEnabled());
    f->cmdNuovoVer->click();
    f->fraVersamento->DTPData->setDate(QDate(2024, 3, 15));
    f->fraVersamento->cmbTipoAcquisizione->setCurrentIndex(1);
    Riga(f->fraVersamento, 1)->setText(QStringLiteral("12"));
    Riga(f->fraVersamento, 2)->setText(QStringLiteral("Comune di Pescia"));
    f->cmdConferma->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    const qint64 atto = f->Modello().Id(f->tvwDB->currentIndex());
    QVERIFY(atto > 0 && atto != ModelloAlbero::IdTemporaneo);
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ? "
                                     "AND Tipologia = '04'"),
                      {L(atto)})
                 .toLongLong(),
             L(lucca));
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                      {L(atto)})
                 .toString(),
             QStringLiteral("15/03/2024 - 12"));
    QSqlQuery versamento = a.cnn().Esegui(
        QStringLiteral("SELECT ID_Versamento, CAST(NumeroRPC AS VARCHAR(20)), SogVersatore, "
                       "ID_Istituto FROM Versamenti WHERE ID_Elemento = ?"),
        {L(atto)});
    QVERIFY(versamento.next());
    const long lIdVersamento = static_cast<long>(versamento.value(0).toLongLong());
    QCOMPARE(versamento.value(1).toString(), QStringLiteral("12"));
    QCOMPARE(versamento.value(2).toString(), QStringLiteral("Comune di Pescia"));
    QCOMPARE(versamento.value(3).toLongLong(), L(IstitutiProva::IdIstituto(a.cnn(), lucca)));
    versamento.finish();
    ucVersamento& fra = *f->fraVersamento;
    QVERIFY(fra.isVisible());
    QVERIFY(Lista(fra).isEmpty());
    // Without rows the act could be deleted.
    QVERIFY(f->cmdCancella->isEnabled());

    // 2. The first row, on a complesso of the institute: the dialog opens on the institute.
    NelDialogo(fra.cmdNuovaRiga, [&](frmNuovoVersamento& d) {
        QCOMPARE(d.sStatoRiga, QStringLiteral("nuovo"));
        QCOMPARE(d.lIdCorrente, L(lucca));
        CompilaRiga(d, QStringLiteral("Carte sciolte"), QStringLiteral("1800 - 1850"));
        Spunta(d, alfa);
        d.cmdCollega->click();
    });
    QCOMPARE(Righe(a, lIdVersamento), QStringList{QStringLiteral("Carte sciolte>%1").arg(alfa)});
    QCOMPARE(Lista(fra), QStringList{QStringLiteral("Carte sciolte")});
    QVERIFY(!f->cmdCancella->isEnabled());
    QVERIFY(fra.cmdModificaRiga->isEnabled() && fra.cmdCancellaRiga->isEnabled());

    // 3. The second row on another complesso, deep in the tree.
    NelDialogo(fra.cmdNuovaRiga, [&](frmNuovoVersamento& d) {
        CompilaRiga(d, QStringLiteral("Rogiti"), QStringLiteral("1600 - 1699"));
        Spunta(d, serie);
        d.cmdCollega->click();
    });
    QCOMPARE(Righe(a, lIdVersamento), (QStringList{QStringLiteral("Carte sciolte>%1").arg(alfa),
                                                   QStringLiteral("Rogiti>%1").arg(serie)}));

    // 4. The third row on a complesso made on the spot in the dialog.
    qint64 catasto = 0;
    NelDialogo(fra.cmdNuovaRiga, [&](frmNuovoVersamento& d) {
        QVERIFY(d.cmdNuovoCD->isEnabled());
        d.cmdNuovoCD->click();
        QVERIFY(CompilaComplesso(d.fraComplesso, QStringLiteral("Catasto"), QStringLiteral("40")));
        d.cmdConferma->click();
        QCOMPARE(d.sStato, QStringLiteral("mostra"));
        catasto = d.Modello().Id(d.tvwDB->currentIndex());
        Spunta(d, catasto);
        CompilaRiga(d, QStringLiteral("Mappe"), QStringLiteral("1820 - 1835"));
        d.cmdCollega->click();
    });
    QVERIFY(catasto > 0 && catasto != ModelloAlbero::IdTemporaneo);
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ? "
                                     "AND Tipologia = '02' AND Denominazione = 'Catasto'"),
                      {L(catasto)})
                 .toLongLong(),
             L(lucca));
    QCOMPARE(Righe(a, lIdVersamento), (QStringList{QStringLiteral("Carte sciolte>%1").arg(alfa),
                                                   QStringLiteral("Rogiti>%1").arg(serie),
                                                   QStringLiteral("Mappe>%1").arg(catasto)}));
    QCOMPARE(Lista(fra).size(), 3);

    // 5. The first row moved to another complesso: the dialog opens with its complesso ticked.
    ScegliRiga(fra, QStringLiteral("Carte sciolte"));
    NelDialogo(fra.cmdModificaRiga, [&](frmNuovoVersamento& d) {
        QCOMPARE(d.sStatoRiga, QStringLiteral("modifica"));
        QCOMPARE(d.Scelto(), L(alfa));
        QVERIFY(d.Modello().Spuntato(d.Modello().Trova(alfa)));
        QCOMPARE(Riga(d.fraVersamento, 0)->text(), QStringLiteral("Carte sciolte"));
        Spunta(d, beta);
        QVERIFY(!d.Modello().Spuntato(d.Modello().Trova(alfa)));
        d.cmdCollega->click();
    });
    QCOMPARE(Righe(a, lIdVersamento), (QStringList{QStringLiteral("Carte sciolte>%1").arg(beta),
                                                   QStringLiteral("Rogiti>%1").arg(serie),
                                                   QStringLiteral("Mappe>%1").arg(catasto)}));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    // 6. A row deleted after its question.
    ScegliRiga(fra, QStringLiteral("Rogiti"));
    a.piattaforma.risposte = {Risposta::Si};
    fra.cmdCancellaRiga->click();
    const QList<Messaggio> domande =
        MessaggiCon(a.piattaforma, QStringLiteral("Cancella Riga: Rogiti"));
    QCOMPARE(domande.size(), 1);
    QCOMPARE(domande[0].sTesto, QStringLiteral("Sei sicuro di voler cancellare questa riga?"));
    QCOMPARE(Righe(a, lIdVersamento), (QStringList{QStringLiteral("Carte sciolte>%1").arg(beta),
                                                   QStringLiteral("Mappe>%1").arg(catasto)}));
    QCOMPARE(Lista(fra), (QStringList{QStringLiteral("Carte sciolte"), QStringLiteral("Mappe")}));

    // 7. The act with rows cannot be deleted; once its last row is gone, it can.
    QVERIFY(!f->cmdCancella->isEnabled());
    for (const QString& sRiga : {QStringLiteral("Carte sciolte"), QStringLiteral("Mappe")}) {
        ScegliRiga(fra, sRiga);
        a.piattaforma.risposte = {Risposta::Si};
        fra.cmdCancellaRiga->click();
    }
    QVERIFY(Righe(a, lIdVersamento).isEmpty());
    QVERIFY(Lista(fra).isEmpty());
    QVERIFY(f->cmdCancella->isEnabled());
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(
        MessaggiCon(a.piattaforma, QStringLiteral("Cancella Versamento: 15/03/2024 - 12")).size(),
        1);
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT COUNT(*) FROM Versamenti WHERE ID_Elemento = ?"), {L(atto)})
            .toInt(),
        0);
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE ID_Elemento = ?"), {L(atto)})
            .toInt(),
        0);
    QVERIFY(!f->Modello().Trova(atto).isValid());
    // The complessi stay, the one made on the spot among them.
    QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM ComplessiDoc"), {}).toInt(), 4);
    principale.reset();
}

QTEST_MAIN(TestStradaVersamenti)
#include "tst_stradaversamenti.moc"
