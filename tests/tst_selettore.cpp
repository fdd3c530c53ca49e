// The tree pickers that tie a record to complessi (frmNuovoComplesso) and a complesso to finding
// aids (frmNuovoInventario): the ticks that only the chosen kind keeps, the slots counted with
// their zeros, the names chosen, Collega and its rows of Links (or the unit's one complesso),
// the pairs already tied, a finding aid made on the spot and tied, the picker left halfway, an
// element deleted meanwhile by another workstation, and the opening by name; the single-choice
// form of the picker (one complesso at most, a second tick unticking the first, the tree opened
// down to the one chosen); on SQLite and on PostgreSQL.

#include "links/SelettoreComplessi.h"
#include "links/frmNuovoComplesso.h"
#include "links/frmNuovoInventario.h"
#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "records/ucInventario.h"
#include "records/ucIstituto.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"

#include "AmbienteStruttura.h"
#include "AmbienteSulBackend.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
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

// An archive of one institute with two complessi, a finding aid and a unit of its inventory.
struct Archivio {
    long ist = 0;
    long alfa = 0;
    long beta = 0;
    long inv = 0;
    long unita = 0;

    explicit Archivio(const AmbienteStruttura& a) {
        ist = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
        alfa = a.Crea("02", QStringLiteral("Fondo Alfa"), ist);
        beta = a.Crea("02", QStringLiteral("Fondo Beta"), ist);
        inv = a.Crea("03", QStringLiteral("Inventario dei notai"), ist);
        unita = a.Crea("07", QStringLiteral("Busta 1"), inv);
    }
};

// The user's tick (true) or untick on the node of that element, as the tree's check box gives it.
void Spunta(FinestraStruttura& f, qint64 lId, bool bSpuntato = true) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    QVERIFY(f.tvwDB->model()->setData(nodo, bSpuntato ? Qt::Checked : Qt::Unchecked,
                                      Qt::CheckStateRole));
}

bool Spuntato(const FinestraStruttura& f, qint64 lId) {
    return f.Modello().Spuntato(f.Modello().Trova(lId));
}

// The rows of Links, "complesso>other" in the order of the pair.
QStringList Legami(const AmbienteStruttura& a) {
    QStringList legami;
    QSqlQuery q = a.cnn().Esegui(QStringLiteral(
        "SELECT ID_Elemento, ID_ElementoLink, COALESCE(Specifica, 'NULL') FROM Links "
        "ORDER BY ID_Elemento, ID_ElementoLink"));
    while (q.next()) {
        legami.append(QStringLiteral("%1>%2%3")
                          .arg(q.value(0).toLongLong())
                          .arg(q.value(1).toLongLong())
                          .arg(q.value(2).toString().isEmpty()
                                   ? QString()
                                   : QStringLiteral(" [") + q.value(2).toString() + u']'));
    }
    return legami;
}

// The session of an opener that links the record of that id and name from that caller.
void ApertoDa(int iChiamante, long lId, const QString& sNome) {
    Sessione::iChiamanteInv = iChiamante;
    Sessione::lIdInventario = lId;
    Sessione::sDenomInventario = sNome;
    Sessione::iEsitoLinkCD = 0;
    Sessione::lIdElemLinkInv = 0;
}

void ComplessoInMano(long lId, const QString& sNome) {
    Sessione::lIdComplesso = lId;
    Sessione::sDenomComplesso = sNome;
    Sessione::iEsitoLinkInv = 0;
}

// A picker of complessi in its single-choice form, without boxes; Collega keeps the id chosen.
class SelettoreUnico : public SelettoreComplessi {
public:
    SelettoreUnico()
        : SelettoreComplessi(QStringLiteral("SelettoreUnico"), {.scelta = Scelta::Unica},
                             QStringLiteral("Nuovo compl. doc.")) {
        Carica();
    }
    qint64 lIdCollegato = -1;

protected:
    bool Collega() override {
        lIdCollegato = Scelto();
        return true;
    }
};

// The picker in its dialog, shown (not modally, so that the test goes on).
template <typename Selettore> struct InDialogo {
    Selettore* f = new Selettore;
    std::unique_ptr<QDialog> dialogo{f->InDialogo()};
    InDialogo() { dialogo->show(); }
};

} // namespace

class TestSelettore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void unIstitutoSpuntatoTornaSubitoSenzaSpuntaENonCambiaINomi_data() { AggiungiBackend(); }
    void unIstitutoSpuntatoTornaSubitoSenzaSpuntaENonCambiaINomi();
    void iNomiSceltiSeguonoLeSpunteNellOrdineDellAlbero_data() { AggiungiBackend(); }
    void iNomiSceltiSeguonoLeSpunteNellOrdineDellAlbero();
    void toltaLUnicaSpuntaCollegaSiSpegne_data() { AggiungiBackend(); }
    void toltaLUnicaSpuntaCollegaSiSpegne();
    void collegaScriveUnaRigaDiLinksPerOgniComplessoSpuntato_data() { AggiungiBackend(); }
    void collegaScriveUnaRigaDiLinksPerOgniComplessoSpuntato();
    void unLegameCheCEGiaNonAggiungeRigheELasciaLEsitoAZero_data() { AggiungiBackend(); }
    void unLegameCheCEGiaNonAggiungeRigheELasciaLEsitoAZero();
    void perUnUnitaUnSoloComplessoSpuntatoVaNellaSuaRiga_data() { AggiungiBackend(); }
    void perUnUnitaUnSoloComplessoSpuntatoVaNellaSuaRiga();
    void perUnUnitaSiContanoIPostiNonGliSpuntati_data() { AggiungiBackend(); }
    void perUnUnitaSiContanoIPostiNonGliSpuntati();
    void leEtichetteDeiQuattroChiamanti_data() { AggiungiBackend(); }
    void leEtichetteDeiQuattroChiamanti();
    void unComplessoCancellatoNelFrattempoDaErroreN2ENessunLegame_data() { AggiungiBackend(); }
    void unComplessoCancellatoNelFrattempoDaErroreN2ENessunLegame();
    void laSchedaInManoCancellataNelFrattempoNonLasciaMezziLegami_data() { AggiungiBackend(); }
    void laSchedaInManoCancellataNelFrattempoNonLasciaMezziLegami();
    void unSelettoreAbbandonatoAMetaNonScriveNulla_data() { AggiungiBackend(); }
    void unSelettoreAbbandonatoAMetaNonScriveNulla();
    void leImmaginiDeiProduttoriEUnLoroErroreDaErroreT5_data() { AggiungiBackend(); }
    void leImmaginiDeiProduttoriEUnLoroErroreDaErroreT5();
    void laBarraSpaziatriceSulNodoLoSpunta_data() { AggiungiBackend(); }
    void laBarraSpaziatriceSulNodoLoSpunta();
    void unComplessoFattoNelSelettoreSottoUnComplessoSiSpuntaESiLega_data() { AggiungiBackend(); }
    void unComplessoFattoNelSelettoreSottoUnComplessoSiSpuntaESiLega();
    void ilComplessoNelSelettoreNascondeIPulsantiDeiLegami_data() { AggiungiBackend(); }
    void ilComplessoNelSelettoreNascondeIPulsantiDeiLegami();

    void gliStrumentiDiRicercaHannoLeCaselleScambiate_data() { AggiungiBackend(); }
    void gliStrumentiDiRicercaHannoLeCaselleScambiate();
    void unIstitutoSpuntatoTraGliStrumentiTornaSubitoSenzaSpunta_data() { AggiungiBackend(); }
    void unIstitutoSpuntatoTraGliStrumentiTornaSubitoSenzaSpunta();
    void legareDueVolteLoStessoStrumentoAggiungeUnaRiga_data() { AggiungiBackend(); }
    void legareDueVolteLoStessoStrumentoAggiungeUnaRiga();
    void unoStrumentoFattoNelSelettoreSiSpuntaESiLega_data() { AggiungiBackend(); }
    void unoStrumentoFattoNelSelettoreSiSpuntaESiLega();

    void nellaSceltaUnicaUnaSecondaSpuntaTogliELaPrima_data() { AggiungiBackend(); }
    void nellaSceltaUnicaUnaSecondaSpuntaTogliELaPrima();
    void nellaSceltaUnicaTogliereLaSpuntaLasciaSenzaScelta_data() { AggiungiBackend(); }
    void nellaSceltaUnicaTogliereLaSpuntaLasciaSenzaScelta();
    void nellaSceltaUnicaUnIstitutoSpuntatoNonCambiaLaScelta_data() { AggiungiBackend(); }
    void nellaSceltaUnicaUnIstitutoSpuntatoNonCambiaLaScelta();
    void unComplessoSceltoDalProgrammaApreLAlberoFinoALui_data() { AggiungiBackend(); }
    void unComplessoSceltoDalProgrammaApreLAlberoFinoALui();

    void apertiPerNomeINomiSceltiCambianoSoloConLeSpunte_data() { AggiungiBackend(); }
    void apertiPerNomeINomiSceltiCambianoSoloConLeSpunte();
    void unNodoSpuntatoEBloccatoNonSiToglie();
};

void TestSelettore::unIstitutoSpuntatoTornaSubitoSenzaSpuntaENonCambiaINomi() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    frmNuovoComplesso f;

    Spunta(f, ar.alfa);
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Fondo Alfa"));
    Spunta(f, ar.ist);
    QVERIFY(!Spuntato(f, ar.ist));
    QCOMPARE(f.lIdDaTogliere, L(ar.ist));
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Fondo Alfa"));
    QCOMPARE(f.Scelti(), (QVector<qint64>{ar.alfa}));
    // Nor the root.
    Spunta(f, 0);
    QVERIFY(!Spuntato(f, 0));
    QCOMPARE(f.Scelti(), (QVector<qint64>{ar.alfa}));
    QVERIFY(f.cmdCollega->isEnabled());
}

void TestSelettore::iNomiSceltiSeguonoLeSpunteNellOrdineDellAlbero() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    frmNuovoComplesso f;

    Spunta(f, ar.beta);
    Spunta(f, ar.alfa);
    // The names by the order of the tree's nodes, not of the ticks; the slots by the ticks.
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Fondo Alfa, Fondo Beta"));
    QCOMPARE(f.Scelti(), (QVector<qint64>{ar.beta, ar.alfa}));
    Spunta(f, ar.beta, false);
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Fondo Alfa"));
    QCOMPARE(f.Scelti(), (QVector<qint64>{0, ar.alfa}));
    QCOMPARE(f.SceltiPieni(), 1);
    // Ticked again, it takes a new slot.
    Spunta(f, ar.beta);
    QCOMPARE(f.Scelti(), (QVector<qint64>{0, ar.alfa, ar.beta}));
}

void TestSelettore::toltaLUnicaSpuntaCollegaSiSpegne() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    frmNuovoComplesso f;

    QVERIFY(!f.cmdCollega->isEnabled());
    Spunta(f, ar.alfa);
    QVERIFY(f.cmdCollega->isEnabled());
    Spunta(f, ar.alfa, false);
    QVERIFY(!f.cmdCollega->isEnabled());
    QCOMPARE(f.TextC->toPlainText(), QString());
    QCOMPARE(f.Scelti(), (QVector<qint64>{0}));
}

void TestSelettore::collegaScriveUnaRigaDiLinksPerOgniComplessoSpuntato() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    InDialogo<frmNuovoComplesso> d;

    Spunta(*d.f, ar.alfa);
    Spunta(*d.f, ar.beta);
    d.f->cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QVERIFY(!d.dialogo->isVisible());
    QCOMPARE(Sessione::iEsitoLinkCD, 1);
    // The complesso in ID_Elemento, the finding aid in ID_ElementoLink, Specifica empty.
    QCOMPARE(Legami(a), (QStringList{QStringLiteral("%1>%2").arg(ar.alfa).arg(ar.inv),
                                     QStringLiteral("%1>%2").arg(ar.beta).arg(ar.inv)}));
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT COUNT(*) FROM Links WHERE Specifica = ''"), {}).toInt(), 2);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestSelettore::unLegameCheCEGiaNonAggiungeRigheELasciaLEsitoAZero() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    a.Lega(ar.alfa, ar.inv);
    ApertoDa(2, ar.inv, QStringLiteral("Inventario dei notai"));
    Sessione::iEsitoLinkCD = 7;
    InDialogo<frmNuovoComplesso> d;

    Spunta(*d.f, ar.alfa);
    d.f->cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::iEsitoLinkCD, 0);
    QCOMPARE(Legami(a).size(), 1);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestSelettore::perUnUnitaUnSoloComplessoSpuntatoVaNellaSuaRiga() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(4, ar.unita, QStringLiteral("Busta 1"));
    InDialogo<frmNuovoComplesso> d;

    Spunta(*d.f, ar.beta);
    d.f->cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::iEsitoLinkCD, 1);
    QCOMPARE(Sessione::lIdElemLinkInv, ar.beta);
    QCOMPARE(a.Valore(QStringLiteral(
                          "SELECT Id_ElemComplDoc FROM DatiInventariali WHERE ID_Elemento = ?"),
                      {L(ar.unita)})
                 .toLongLong(),
             L(ar.beta));
    // The unit's tie lives in its own row, not in Links.
    QVERIFY(Legami(a).isEmpty());
}

void TestSelettore::perUnUnitaSiContanoIPostiNonGliSpuntati() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(4, ar.unita, QStringLiteral("Busta 1"));
    InDialogo<frmNuovoComplesso> d;

    Spunta(*d.f, ar.alfa);
    Spunta(*d.f, ar.beta);
    Spunta(*d.f, ar.alfa, false);
    QCOMPARE(d.f->Scelti().size(), 2);
    QVERIFY(d.f->cmdCollega->isEnabled());
    d.f->cmdCollega->click();
    // Nothing done and nothing said: the dialog closes as after a link.
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::iEsitoLinkCD, 0);
    QCOMPARE(Sessione::lIdElemLinkInv, 0L);
    QCOMPARE(a.Valore(QStringLiteral("SELECT COALESCE(Id_ElemComplDoc, 0) FROM DatiInventariali "
                                     "WHERE ID_Elemento = ?"),
                      {L(ar.unita)})
                 .toLongLong(),
             0LL);
    QVERIFY(Legami(a).isEmpty());
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestSelettore::leEtichetteDeiQuattroChiamanti() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    const QStringList etichette{QStringLiteral("Strumento di ricerca selezionato"),
                                QStringLiteral("Pergamena selezionata"),
                                QStringLiteral("Inventario base selezionato"),
                                QStringLiteral("Inventario base selezionato")};
    for (int iChiamante = 1; iChiamante <= 4; ++iChiamante) {
        ApertoDa(iChiamante, ar.inv, QStringLiteral("Inventario dei notai"));
        frmNuovoComplesso f;
        QCOMPARE(f.Label4->text(), etichette[iChiamante - 1]);
        QCOMPARE(f.findChild<QLabel*>(QStringLiteral("Label4")), f.Label4);
        QCOMPARE(f.TextI->text(), QStringLiteral("Inventario dei notai"));
        QVERIFY(!f.TextI->isEnabled());
        QCOMPARE(f.findChild<QLabel*>(QStringLiteral("Label1(11)"))->text(),
                 QStringLiteral("Complessi documentari scelti"));
        QCOMPARE(f.findChild<QPushButton*>(QStringLiteral("cmdAnnullaCol"))->text(),
                 QStringLiteral("Annulla collegamento"));
        QCOMPARE(f.cmdNuovoCD->text(), QStringLiteral("Nuovo Complesso"));
        QCOMPARE(f.cmdCollega->text(), QStringLiteral("Collega"));
    }
}

void TestSelettore::unComplessoCancellatoNelFrattempoDaErroreN2ENessunLegame() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    InDialogo<frmNuovoComplesso> d;

    Spunta(*d.f, ar.alfa);
    Spunta(*d.f, ar.beta);
    // Another workstation deletes the second complesso meanwhile.
    ArchivioElementi::Elimina(a.cnn(), QStringLiteral("02"), ar.beta);
    d.f->cmdCollega->click();

    const QList<Messaggio> box = a.piattaforma.Messaggi();
    QCOMPARE(box.size(), 1);
    QCOMPARE(box[0].sTitolo, QStringLiteral("Errore N2"));
    QCOMPARE(box[0].icona, Icona::Critica);
    QVERIFY2(box[0].sTesto.contains(u'\n') &&
                 box[0].sTesto.contains(QString::number(ar.beta) + QStringLiteral(" non esiste")),
             qPrintable(box[0].sTesto));
    // Not even the first one: the links go in together or not at all; the dialog stays.
    QVERIFY(Legami(a).isEmpty());
    QCOMPARE(Sessione::iEsitoLinkCD, 0);
    QVERIFY(d.dialogo->isVisible());
}

void TestSelettore::laSchedaInManoCancellataNelFrattempoNonLasciaMezziLegami() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    const long lInv = a.Crea("03", QStringLiteral("Inventario delle gabelle"), ar.ist);
    {
        ApertoDa(1, lInv, QStringLiteral("Inventario delle gabelle"));
        InDialogo<frmNuovoComplesso> d;
        Spunta(*d.f, ar.alfa);
        // Another workstation deletes the finding aid in hand meanwhile.
        ArchivioElementi::Elimina(a.cnn(), QStringLiteral("03"), lInv);
        d.f->cmdCollega->click();
        QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore N2")).size(), 1);
        QVERIFY(Legami(a).isEmpty());
        QVERIFY(d.dialogo->isVisible());
    }
    {
        // A unit whose complesso went away meanwhile.
        a.piattaforma.Svuota();
        ApertoDa(4, ar.unita, QStringLiteral("Busta 1"));
        InDialogo<frmNuovoComplesso> d;
        Spunta(*d.f, ar.beta);
        ArchivioElementi::Elimina(a.cnn(), QStringLiteral("02"), ar.beta);
        d.f->cmdCollega->click();
        QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore N2")).size(), 1);
        QCOMPARE(a.Valore(QStringLiteral("SELECT COALESCE(Id_ElemComplDoc, 0) FROM "
                                         "DatiInventariali WHERE ID_Elemento = ?"),
                          {L(ar.unita)})
                     .toLongLong(),
                 0LL);
        QCOMPARE(Sessione::lIdElemLinkInv, 0L);
        QCOMPARE(Sessione::iEsitoLinkCD, 0);
    }
}

void TestSelettore::unSelettoreAbbandonatoAMetaNonScriveNulla() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    Sessione::bFrmStrutturaINAperto = true;
    {
        InDialogo<frmNuovoComplesso> d;
        Spunta(*d.f, ar.alfa);
        Spunta(*d.f, ar.beta);
        d.f->cmdAnnullaCol->click();
        QCOMPARE(d.dialogo->result(), int(QDialog::Rejected));
        QVERIFY(!d.dialogo->isVisible());
    }
    // The unload clears the open flag of the finding aids' window.
    QVERIFY(!Sessione::bFrmStrutturaINAperto);
    QVERIFY(Legami(a).isEmpty());
    QCOMPARE(Sessione::iEsitoLinkCD, 0);

    // Escape, with a complesso being made: nothing either.
    {
        InDialogo<frmNuovoComplesso> d;
        Spunta(*d.f, ar.alfa);
        d.f->SelezionaNodo(d.f->Modello().Trova(ar.ist));
        d.f->cmdNuovoCD->click();
        QCOMPARE(d.f->sStato, QStringLiteral("nuovo"));
        QTest::keyClick(d.f, Qt::Key_Escape);
        QCOMPARE(d.dialogo->result(), int(QDialog::Rejected));
    }
    QVERIFY(Legami(a).isEmpty());
    QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE Tipologia = '02'"), {})
                 .toInt(),
             2);
}

void TestSelettore::leImmaginiDeiProduttoriEUnLoroErroreDaErroreT5() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    a.Lega(ar.alfa, ar.inv);
    const QVariant soggetto =
        a.cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                          {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                          {QStringLiteral("Rossi Mario"), QStringLiteral("P")});
    a.cnn().Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto) "
                                  "SELECT ID_ComplessoDoc, ? FROM ComplessiDoc WHERE ID_Elemento "
                                  "IN (?, ?)"),
                   {soggetto, L(ar.alfa), L(ar.beta)});
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    {
        frmNuovoComplesso f;
        QCOMPARE(f.Modello().Immagine(f.Modello().Trova(ar.alfa)), QStringLiteral("islink"));
        QCOMPARE(f.Modello().Immagine(f.Modello().Trova(ar.beta)), QStringLiteral("slink"));
        QVERIFY(a.piattaforma.Messaggi().isEmpty());
    }
    // Without the view of the producers the tree loads whole, with the box of that step.
    a.cnn().Esegui(QStringLiteral("DROP VIEW V_ComplessiDocSoggetti"));
    frmNuovoComplesso f;
    QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore T5")).size(), 1);
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Critica);
    QCOMPARE(f.Modello().Immagine(f.Modello().Trova(ar.alfa)), QStringLiteral("silink"));
    QCOMPARE(f.Modello().Immagine(f.Modello().Trova(ar.beta)), QStringLiteral("nolink"));
    QCOMPARE(f.Modello().Nodi(), 4);
}

void TestSelettore::laBarraSpaziatriceSulNodoLoSpunta() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    InDialogo<frmNuovoComplesso> d;
    d.f->tvwDB->expandAll();
    d.f->tvwDB->setCurrentIndex(d.f->Modello().Trova(ar.beta));
    QTest::keyClick(d.f->tvwDB, Qt::Key_Space);
    QVERIFY(Spuntato(*d.f, ar.beta));
    QCOMPARE(d.f->TextC->toPlainText(), QStringLiteral("Fondo Beta"));
    d.f->tvwDB->setCurrentIndex(d.f->Modello().Trova(ar.ist));
    QTest::keyClick(d.f->tvwDB, Qt::Key_Space);
    QVERIFY(!Spuntato(*d.f, ar.ist));
    QCOMPARE(d.f->Scelti(), (QVector<qint64>{ar.beta}));
}

void TestSelettore::unComplessoFattoNelSelettoreSottoUnComplessoSiSpuntaESiLega() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(2, ar.inv, QStringLiteral("Inventario dei notai"));
    InDialogo<frmNuovoComplesso> d;
    frmNuovoComplesso& f = *d.f;

    // A tick made before the new complesso stays through it.
    Spunta(f, ar.beta);
    f.SelezionaNodo(f.Modello().Trova(ar.alfa));
    QVERIFY(f.cmdNuovoCD->isEnabled());
    f.cmdNuovoCD->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(!f.tvwDB->isEnabled());
    QVERIFY(f.cmdCollega->isHidden() && f.cmdAnnullaCol->isHidden());
    QVERIFY(
        CompilaComplesso(f.fraComplesso, QStringLiteral("Serie dei rogiti"), QStringLiteral("3")));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    const qint64 lNuovo = f.Modello().Id(f.tvwDB->currentIndex());
    QVERIFY(lNuovo > 0 && lNuovo != ModelloAlbero::IdTemporaneo);
    QCOMPARE(f.Modello().Id(f.Modello().Trova(lNuovo).parent()), L(ar.alfa));
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ?"),
                      {L(lNuovo)})
                 .toLongLong(),
             L(ar.alfa));

    Spunta(f, lNuovo);
    QCOMPARE(f.TextC->toPlainText(), QStringLiteral("Fondo Beta, Serie dei rogiti"));
    f.cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::iEsitoLinkCD, 1);
    QStringList attesi{QStringLiteral("%1>%2").arg(ar.beta).arg(ar.inv),
                       QStringLiteral("%1>%2").arg(lNuovo).arg(ar.inv)};
    attesi.sort();
    QStringList legami = Legami(a);
    legami.sort();
    QCOMPARE(legami, attesi);
}

void TestSelettore::ilComplessoNelSelettoreNascondeIPulsantiDeiLegami() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ApertoDa(1, ar.inv, QStringLiteral("Inventario dei notai"));
    InDialogo<frmNuovoComplesso> d;

    d.f->SelezionaNodo(d.f->Modello().Trova(ar.alfa));
    QVERIFY(d.f->fraComplesso->isVisible());
    QVERIFY(!d.f->fraIstituto->isVisible());
    QCOMPARE(d.f->GetDenon(), QStringLiteral("Fondo Alfa"));
    for (const char* nome : {"cmdAltreDen", "cmdLinkSog", "cmdMostraLinks"}) {
        const auto* pulsante = d.f->fraComplesso->findChild<QPushButton*>(QLatin1String(nome));
        QVERIFY2(pulsante != nullptr && pulsante->isHidden(), nome);
    }
    // A picker deletes nothing.
    QVERIFY(d.f->findChild<QPushButton*>(QStringLiteral("cmdCancella")) == nullptr);
}

void TestSelettore::gliStrumentiDiRicercaHannoLeCaselleScambiate() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ComplessoInMano(ar.alfa, QStringLiteral("Fondo Alfa"));
    frmNuovoInventario f;

    QCOMPARE(f.Label1->text(), QStringLiteral("Complesso documentario selezionato"));
    QCOMPARE(f.Label2->text(), QStringLiteral("Strumenti di ricerca scelti"));
    QCOMPARE(f.TextC->text(), QStringLiteral("Fondo Alfa"));
    QVERIFY(!f.TextC->isEnabled());
    QCOMPARE(f.cmdNuovoInv->text(), QStringLiteral("Nuovo strum.ricerca"));
    // The tree holds institutes and finding aids only.
    QVERIFY(f.Modello().Trova(ar.inv).isValid());
    QVERIFY(!f.Modello().Trova(ar.alfa).isValid());
    Spunta(f, ar.inv);
    QCOMPARE(f.TextI->toPlainText(), QStringLiteral("Inventario dei notai"));
}

void TestSelettore::unIstitutoSpuntatoTraGliStrumentiTornaSubitoSenzaSpunta() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ComplessoInMano(ar.alfa, QStringLiteral("Fondo Alfa"));
    frmNuovoInventario f;

    Spunta(f, ar.ist);
    QVERIFY(!Spuntato(f, ar.ist));
    QVERIFY(f.Scelti().isEmpty());
    QVERIFY(!f.cmdCollega->isEnabled());
    QCOMPARE(f.TextI->toPlainText(), QString());
}

void TestSelettore::legareDueVolteLoStessoStrumentoAggiungeUnaRiga() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    for (int iVolta = 0; iVolta < 2; ++iVolta) {
        ComplessoInMano(ar.alfa, QStringLiteral("Fondo Alfa"));
        InDialogo<frmNuovoInventario> d;
        Spunta(*d.f, ar.inv);
        d.f->cmdCollega->click();
        QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
        QCOMPARE(Sessione::iEsitoLinkInv, iVolta == 0 ? 1 : 0);
    }
    // The complesso in ID_Elemento, the finding aid in ID_ElementoLink, whichever side.
    QCOMPARE(Legami(a), QStringList{QStringLiteral("%1>%2").arg(ar.alfa).arg(ar.inv)});
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestSelettore::unoStrumentoFattoNelSelettoreSiSpuntaESiLega() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    ComplessoInMano(ar.alfa, QStringLiteral("Fondo Alfa"));
    InDialogo<frmNuovoInventario> d;
    frmNuovoInventario& f = *d.f;

    f.SelezionaNodo(f.Modello().Trova(ar.ist));
    QVERIFY(f.cmdNuovoInv->isEnabled());
    f.cmdNuovoInv->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(!f.tvwDB->isEnabled());
    QVERIFY(f.cmdCollega->isHidden());
    CompilaInventario(f.fraInventario, QStringLiteral("Inventario delle gabelle"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(f.tvwDB->isEnabled());
    QVERIFY(f.cmdCollega->isVisible());
    const qint64 lNuovo = f.Modello().Id(f.tvwDB->currentIndex());
    QVERIFY(lNuovo != ar.inv && lNuovo != ModelloAlbero::IdTemporaneo && lNuovo > 0);
    QCOMPARE(f.Modello().Tag(f.Modello().Trova(lNuovo)), QStringLiteral("03"));

    Spunta(f, lNuovo);
    QCOMPARE(f.TextI->toPlainText(), QStringLiteral("Inventario delle gabelle"));
    f.cmdCollega->click();
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::iEsitoLinkInv, 1);
    QCOMPARE(Legami(a), QStringList{QStringLiteral("%1>%2").arg(ar.alfa).arg(lNuovo)});
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                      {L(lNuovo)})
                 .toString(),
             QStringLiteral("Inventario delle gabelle"));
}

void TestSelettore::nellaSceltaUnicaUnaSecondaSpuntaTogliELaPrima() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    InDialogo<SelettoreUnico> d;
    SelettoreUnico& f = *d.f;

    // No boxes of names, and Collega can be clicked with nothing chosen.
    QVERIFY(f.casellaScelti == nullptr && f.casellaInMano == nullptr);
    QVERIFY(f.findChildren<QPlainTextEdit*>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
    QVERIFY(f.findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
    QVERIFY(f.cmdCollega->isEnabled());
    QCOMPARE(f.Scelto(), qint64{0});

    Spunta(f, ar.alfa);
    QCOMPARE(f.Scelto(), L(ar.alfa));
    // The node ticked is shown as a click shows it.
    QCOMPARE(f.lIdCorrente, L(ar.alfa));
    QCOMPARE(f.tvwDB->currentIndex(), f.Modello().Trova(ar.alfa));
    QVERIFY(f.fraComplesso->isVisible());
    QCOMPARE(f.GetDenon(), QStringLiteral("Fondo Alfa"));

    Spunta(f, ar.beta);
    QVERIFY(!Spuntato(f, ar.alfa));
    QVERIFY(Spuntato(f, ar.beta));
    QCOMPARE(f.Modello().NodiSpuntati(), QList<QModelIndex>{f.Modello().Trova(ar.beta)});
    QCOMPARE(f.Scelto(), L(ar.beta));
    QCOMPARE(f.lIdCorrente, L(ar.beta));
    // No slots are kept.
    QVERIFY(f.Scelti().isEmpty());
    QVERIFY(f.cmdCollega->isEnabled());

    f.cmdCollega->click();
    QCOMPARE(f.lIdCollegato, L(ar.beta));
    QCOMPARE(d.dialogo->result(), int(QDialog::Accepted));
}

void TestSelettore::nellaSceltaUnicaTogliereLaSpuntaLasciaSenzaScelta() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    SelettoreUnico f;

    Spunta(f, ar.alfa);
    Spunta(f, ar.alfa, false);
    QCOMPARE(f.Scelto(), qint64{0});
    QVERIFY(f.Modello().NodiSpuntati().isEmpty());
    QVERIFY(f.cmdCollega->isEnabled());
    // Ticked again after the untick, nothing else to untick.
    Spunta(f, ar.beta);
    QCOMPARE(f.Scelto(), L(ar.beta));
    QCOMPARE(f.Modello().NodiSpuntati().size(), 1);
}

void TestSelettore::nellaSceltaUnicaUnIstitutoSpuntatoNonCambiaLaScelta() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    SelettoreUnico f;

    Spunta(f, ar.alfa);
    Spunta(f, ar.ist);
    QVERIFY(!Spuntato(f, ar.ist));
    QCOMPARE(f.lIdDaTogliere, L(ar.ist));
    QVERIFY(Spuntato(f, ar.alfa));
    QCOMPARE(f.Scelto(), L(ar.alfa));
    Spunta(f, 0);
    QVERIFY(!Spuntato(f, 0));
    QCOMPARE(f.Scelto(), L(ar.alfa));
}

void TestSelettore::unComplessoSceltoDalProgrammaApreLAlberoFinoALui() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    const long lSerie = a.Crea("02", QStringLiteral("Serie dei rogiti"), ar.alfa);
    const long lFascicoli = a.Crea("02", QStringLiteral("Fascicoli"), lSerie);
    InDialogo<SelettoreUnico> d;
    SelettoreUnico& f = *d.f;
    QVERIFY(!f.tvwDB->isExpanded(f.Modello().Trova(ar.ist)));

    QVERIFY(f.Scegli(lFascicoli));
    QVERIFY(Spuntato(f, lFascicoli));
    QCOMPARE(f.Scelto(), L(lFascicoli));
    for (const qint64 lPadre : {qint64{0}, qint64{ar.ist}, qint64{ar.alfa}, qint64{lSerie}}) {
        QVERIFY2(f.tvwDB->isExpanded(f.Modello().Trova(lPadre)),
                 qPrintable(QString::number(lPadre)));
    }
    QCOMPARE(f.tvwDB->currentIndex(), f.Modello().Trova(lFascicoli));
    QCOMPARE(f.lIdCorrente, L(lFascicoli));
    QVERIFY(f.fraComplesso->isVisible());
    QCOMPARE(f.GetDenon(), QStringLiteral("Fascicoli"));

    // Another choice unticks it; an institute or an id not in the tree is not chosen.
    QVERIFY(f.Scegli(ar.beta));
    QVERIFY(!Spuntato(f, lFascicoli));
    QCOMPARE(f.Scelto(), L(ar.beta));
    QVERIFY(!f.Scegli(ar.ist));
    QVERIFY(!f.Scegli(987654));
    QCOMPARE(f.Scelto(), L(ar.beta));
    QCOMPARE(f.Modello().NodiSpuntati().size(), 1);
}

void TestSelettore::apertiPerNomeINomiSceltiCambianoSoloConLeSpunte() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const Archivio ar(a);
    RegistraFinestreProgramma();
    ApertoDa(3, ar.inv, QStringLiteral("Inventario dei notai"));
    ComplessoInMano(ar.alfa, QStringLiteral("Fondo Alfa"));

    for (const QString& sNome :
         {QStringLiteral("frmNuovoComplesso"), QStringLiteral("frmNuovoInventario")}) {
        bool bVisto = false;
        QTimer::singleShot(0, [&] {
            auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialogo != nullptr);
            auto* f = dialogo->findChild<SelettoreAlbero*>(sNome);
            QVERIFY(f != nullptr);
            bVisto = true;
            QVERIFY(f->casellaScelti->isReadOnly());
            QVERIFY(dialogo->isModal());
            f->cmdAnnullaCol->click();
        });
        QVERIFY(Dialoghi::Apri(sNome, nullptr));
        QVERIFY(bVisto);
    }
    QVERIFY(Legami(a).isEmpty());
}

void TestSelettore::unNodoSpuntatoEBloccatoNonSiToglie() {
    ModelloAlbero modello;
    modello.ImpostaSpuntabile(true);
    modello.AggiungiRadice();
    const QModelIndex a = modello.Aggiungi(0, 5, QStringLiteral("Cinque"), QStringLiteral("nolink"),
                                           QStringLiteral("02"));
    const QModelIndex b = modello.Aggiungi(0, 6, QStringLiteral("Sei"), QStringLiteral("nolink"),
                                           QStringLiteral("02"));
    QSignalSpy spunte(&modello, &ModelloAlbero::SpuntaCambiata);
    modello.ImpostaSpunta(b, true, true);
    QVERIFY(modello.SpuntaBloccata(b));
    QVERIFY(!(modello.flags(b) & Qt::ItemIsUserCheckable));
    QVERIFY(modello.flags(a) & Qt::ItemIsUserCheckable);
    QVERIFY(!modello.setData(b, Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(modello.Spuntato(b));
    QVERIFY(modello.setData(a, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(spunte.size(), 1);
    QCOMPARE(modello.data(a, Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(modello.NodiSpuntati(), (QList<QModelIndex>{a, b}));
    // A node removed takes its tick away.
    modello.Rimuovi(5);
    QCOMPARE(modello.NodiSpuntati().size(), 1);
}

QTEST_MAIN(TestSelettore)
#include "tst_selettore.moc"
