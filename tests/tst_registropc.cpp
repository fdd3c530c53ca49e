// The register of new acquisitions: its tree of the institutes proper with their versamenti,
// its commands (no new institute, no order option), a new versamento made, given up and
// refused, its denomination written once, the delete with its question and only without rows,
// and the road from the menu; on SQLite and on PostgreSQL.

#include "programma/Registro.h"
#include "records/ucIstituto.h"
#include "records/ucVersamento.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmRegistroPC.h"
#include "structure/frmStrutturaCD.h"

#include "AmbienteStruttura.h"
#include "IstitutiProva.h"
#include "MessaggiAttesi.h"
#include "VersamentiProva.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// The program folder of the structure windows with the list of the kinds of acquisition.
struct AmbienteRegistro : AmbienteStruttura {
    explicit AmbienteRegistro(TipoBackend tipo)
        : AmbienteStruttura(tipo) {
        cartella.CopiaDalSito({QStringLiteral("TipoAcquisizione.txt")});
    }
    long Istituto(const QString& sNome, const char* tipologia, long padre = 0) const {
        return IstitutiProva::Crea(cnn(), sNome, QLatin1String(tipologia), padre);
    }
    int Versamenti() const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE Tipologia = ?"),
                      {QStringLiteral("04")})
            .toInt();
    }
    // A versamento's name in Elementi and its number as stored.
    QString Nome(qint64 id) const {
        return Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                      {L(id)})
            .toString();
    }
    qlonglong Numero(qint64 id) const {
        return Valore(QStringLiteral("SELECT NumeroRPC FROM Versamenti WHERE ID_Elemento = ?"),
                      {L(id)})
            .toLongLong();
    }
};

// The commands "NuovoVer Modifica Cancella" as 0/1.
QString Comandi(const frmRegistroPC& f) {
    return Accesi({f.cmdNuovoVer, f.cmdModifica, f.cmdCancella});
}

qint64 Selezionato(const frmRegistroPC& f) {
    return f.Modello().Id(f.tvwDB->currentIndex());
}

void Scegli(frmRegistroPC& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->setCurrentIndex(nodo);
}

// A new versamento typed in the window under the node chosen and confirmed: its id (0 when
// none was made).
qint64 NuovoVersamento(frmRegistroPC& f, const QDate& data, const QString& sNumero) {
    f.cmdNuovoVer->click();
    f.fraVersamento->DTPData->setDate(data);
    f.fraVersamento->cmbTipoAcquisizione->setCurrentIndex(1);
    Riga(f.fraVersamento, 1)->setText(sNumero);
    Riga(f.fraVersamento, 2)->setText(QStringLiteral("Comune di Pescia"));
    f.cmdConferma->click();
    const qint64 id = Selezionato(f);
    return f.sStato == QStringLiteral("mostra") && f.sTipo == QStringLiteral("versamento") ? id : 0;
}

} // namespace

class TestRegistroPC : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::bIstituto = true; }
    void lAlberoHaSoloGliIstitutiDeiTipi01E02ConIVersamenti_data() { AggiungiBackend(); }
    void lAlberoHaSoloGliIstitutiDeiTipi01E02ConIVersamenti();
    void nonSiFaUnIstitutoENonSiSceglieUnOrdine_data() { AggiungiBackend(); }
    void nonSiFaUnIstitutoENonSiSceglieUnOrdine();
    void sottoUnIstitutoDelTipo03NonSiPuoFareUnVersamento_data() { AggiungiBackend(); }
    void sottoUnIstitutoDelTipo03NonSiPuoFareUnVersamento();
    void unVersamentoFattoAltroveSottoUnaSedeFermaIlCaricamentoConErroreU5_data() {
        AggiungiBackend();
    }
    void unVersamentoFattoAltroveSottoUnaSedeFermaIlCaricamentoConErroreU5();
    void unVersamentoNuovoPrendeDataENumeroComeNomeSoloAllaCreazione_data() { AggiungiBackend(); }
    void unVersamentoNuovoPrendeDataENumeroComeNomeSoloAllaCreazione();
    void unVersamentoNuovoAnnullatoNonLasciaRighe_data() { AggiungiBackend(); }
    void unVersamentoNuovoAnnullatoNonLasciaRighe();
    void unVersamentoSenzaNumeroNonSiConfermaENonScriveNulla_data() { AggiungiBackend(); }
    void unVersamentoSenzaNumeroNonSiConfermaENonScriveNulla();
    void unVersamentoConRigheNonSiCancellaESenzaSiDopoLaSuaDomanda_data() { AggiungiBackend(); }
    void unVersamentoConRigheNonSiCancellaESenzaSiDopoLaSuaDomanda();
    void ilMenuNuoveAcquisizioniApreIlRegistro_data() { AggiungiBackend(); }
    void ilMenuNuoveAcquisizioniApreIlRegistro();
};

void TestRegistroPC::lAlberoHaSoloGliIstitutiDeiTipi01E02ConIVersamenti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    const long sezione = a.Istituto(QStringLiteral("Sezione di Barga"), "02", lucca);
    a.Istituto(QStringLiteral("Sede di Palazzo Guinigi"), "03", lucca);
    a.Istituto(QStringLiteral("Deposito di Sant'Agostino"), "04", lucca);
    a.Crea("04", QStringLiteral("15/03/2024 - 12"), lucca);
    a.Crea("04", QStringLiteral("01/02/2023 - 3"), sezione);
    a.Crea("02", QStringLiteral("Fondo Guinigi"), lucca);

    frmRegistroPC f;
    QCOMPARE(Albero(f.Modello()), QStringLiteral("Archivi di Stato 00 root\n"
                                                 "  Archivio di Stato di Lucca 01 istituto\n"
                                                 "    Sezione di Barga 01 istituto\n"
                                                 "      01/02/2023 - 3 04 versamento\n"
                                                 "    15/03/2024 - 12 04 versamento\n"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    // The same institutes in the window of complessi have no versamenti.
    frmStrutturaCD complessi;
    const QString albero = Albero(complessi.Modello());
    QVERIFY2(!albero.contains(QStringLiteral(" 04 ")), qPrintable(albero));
    QVERIFY2(albero.contains(QStringLiteral("Sede di Palazzo Guinigi")), qPrintable(albero));
}

void TestRegistroPC::nonSiFaUnIstitutoENonSiSceglieUnOrdine() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    frmRegistroPC f;
    QCOMPARE(f.objectName(), QStringLiteral("frmRegistroPC"));
    QCOMPARE(f.windowTitle(), QStringLiteral("Nuove acquisizioni"));
    QVERIFY(f.findChild<QPushButton*>(QStringLiteral("cmdNuovoIst")) == nullptr);
    QVERIFY(f.FrameOrd->isHidden());
    QCOMPARE(f.cmdNuovoVer->text(), QStringLiteral("Nuovo Versamento"));
    // The root: nothing to make, edit or delete.
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(Comandi(f), QStringLiteral("000"));
    QVERIFY(f.cmdConferma->isHidden() && f.cmdAnnulla->isHidden());
    // An institute takes a versamento and is edited here as in its own window.
    Scegli(f, lucca);
    QCOMPARE(Comandi(f), QStringLiteral("110"));
    QVERIFY(f.fraIstituto->isVisibleTo(&f));
    QVERIFY(!f.fraVersamento->isVisibleTo(&f));
    f.cmdModifica->click();
    QCOMPARE(f.sStato, QStringLiteral("modifica"));
    QVERIFY(!f.tvwDB->isEnabled());
    f.cmdAnnulla->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(Comandi(f), QStringLiteral("110"));
}

void TestRegistroPC::sottoUnIstitutoDelTipo03NonSiPuoFareUnVersamento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    const long sede = a.Istituto(QStringLiteral("Sede di Palazzo Guinigi"), "03", lucca);
    const long magazzino = a.Istituto(QStringLiteral("Deposito"), "04", lucca);
    frmRegistroPC f;
    QVERIFY(!f.Modello().Trova(sede).isValid());
    QVERIFY(!f.Modello().Trova(magazzino).isValid());
    // Wherever the command is lit, the new versamento goes under an institute proper.
    QList<QModelIndex> nodi = {f.Modello().index(0, 0)};
    int iAccesi = 0;
    while (!nodi.isEmpty()) {
        const QModelIndex nodo = nodi.takeFirst();
        for (int i = 0; i < f.Modello().rowCount(nodo); ++i)
            nodi.append(f.Modello().index(i, 0, nodo));
        f.tvwDB->setCurrentIndex(nodo);
        if (!f.cmdNuovoVer->isEnabled())
            continue;
        ++iAccesi;
        QCOMPARE(f.Modello().Id(nodo), qint64(lucca));
    }
    QCOMPARE(iAccesi, 1);
    QCOMPARE(a.Versamenti(), 0);
}

void TestRegistroPC::unVersamentoFattoAltroveSottoUnaSedeFermaIlCaricamentoConErroreU5() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    const long sede = a.Istituto(QStringLiteral("Sede di Palazzo Guinigi"), "03", lucca);
    const long versamento = a.Crea("04", QStringLiteral("01/02/2023 - 3"), sede);
    frmRegistroPC f;
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U5"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QVERIFY(!f.Modello().Trova(versamento).isValid());
}

void TestRegistroPC::unVersamentoNuovoPrendeDataENumeroComeNomeSoloAllaCreazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    frmRegistroPC f;
    Scegli(f, lucca);
    f.cmdNuovoVer->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QCOMPARE(f.sTipo, QStringLiteral("versamento"));
    const QModelIndex temp = f.Modello().Trova(ModelloAlbero::IdTemporaneo);
    QVERIFY(temp.isValid());
    QCOMPARE(f.Modello().Testo(temp), QString(10, u' '));
    QCOMPARE(f.Modello().Immagine(temp), QStringLiteral("versamento"));
    QCOMPARE(f.Modello().Tag(temp), QStringLiteral("04"));
    QVERIFY(!f.fraIstituto->isVisibleTo(&f));
    QVERIFY(f.fraVersamento->isVisibleTo(&f));
    QCOMPARE(f.fraVersamento->ID_Istituto,
             static_cast<long>(
                 a.Valore(QStringLiteral("SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = ?"),
                          {L(lucca)})
                     .toLongLong()));
    f.cmdAnnulla->click();

    const qint64 id = NuovoVersamento(f, QDate(2024, 3, 15), QStringLiteral("123456789012345678"));
    QVERIFY2(id > 0 && id != ModelloAlbero::IdTemporaneo,
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    const QString nome = QStringLiteral("15/03/2024 - 123456789012345678");
    const QModelIndex nodo = f.Modello().Trova(id);
    QCOMPARE(f.Modello().Testo(nodo), nome);
    QCOMPARE(f.Modello().Immagine(nodo), QStringLiteral("versamento"));
    QCOMPARE(f.Modello().Tag(nodo), QStringLiteral("04"));
    QCOMPARE(f.Modello().Id(nodo.parent()), qint64(lucca));
    QCOMPARE(a.Nome(id), nome);
    QCOMPARE(a.Numero(id), 123456789012345678LL);
    QCOMPARE(Comandi(f), QStringLiteral("011"));
    QVERIFY(f.fraVersamento->isVisibleTo(&f));

    // An edit of date and number changes the act, not its name.
    f.cmdModifica->click();
    f.fraVersamento->DTPData->setDate(QDate(2024, 4, 1));
    Riga(f.fraVersamento, 1)->setText(QStringLiteral("13"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(f.Modello().Testo(f.Modello().Trova(id)), nome);
    QCOMPARE(a.Nome(id), nome);
    QCOMPARE(a.Numero(id), 13LL);
    QCOMPARE(Riga(f.fraVersamento, 1)->text(), QStringLiteral("13"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestRegistroPC::unVersamentoNuovoAnnullatoNonLasciaRighe() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    frmRegistroPC f;
    Scegli(f, lucca);
    f.cmdNuovoVer->click();
    Riga(f.fraVersamento, 1)->setText(QStringLiteral("7"));
    Riga(f.fraVersamento, 2)->setText(QStringLiteral("Comune di Pescia"));
    f.cmdAnnulla->click();
    QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    QCOMPARE(Selezionato(f), qint64(lucca));
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(a.Versamenti(), 0);
    QCOMPARE(a.Righe("Versamenti"), 0);
    QCOMPARE(a.Righe("Elementi"), 1);
    QCOMPARE(Comandi(f), QStringLiteral("110"));
}

void TestRegistroPC::unVersamentoSenzaNumeroNonSiConfermaENonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    frmRegistroPC f;
    Scegli(f, lucca);
    f.cmdNuovoVer->click();
    Riga(f.fraVersamento, 2)->setText(QStringLiteral("Comune di Pescia"));
    f.cmdConferma->click();
    const QList<Messaggio> messaggi = a.piattaforma.Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTesto, QStringLiteral("Inserire il numero"));
    QCOMPARE(messaggi[0].sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QCOMPARE(a.Versamenti(), 0);
    QCOMPARE(a.Righe("Versamenti"), 0);
    // Filled in, it goes through.
    Riga(f.fraVersamento, 1)->setText(QStringLiteral("7"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(a.Versamenti(), 1);
}

void TestRegistroPC::unVersamentoConRigheNonSiCancellaESenzaSiDopoLaSuaDomanda() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    const long id = a.Crea("04", QStringLiteral("15/03/2024 - 12"), lucca);
    a.cnn().Esegui(QStringLiteral("UPDATE Versamenti SET Data = ?, NumeroRPC = ? "
                                  "WHERE ID_Elemento = ?"),
                   {QDateTime(QDate(2024, 3, 15), QTime(0, 0)), 12, L(id)});
    NuovaRigaVersamento(a.cnn(), IdVersamento(a.cnn(), id), QStringLiteral("Mappe"));
    frmRegistroPC f;
    Scegli(f, id);
    QCOMPARE(f.sTipo, QStringLiteral("versamento"));
    QCOMPARE(Comandi(f), QStringLiteral("010"));

    // The last row deleted in the act's list: the act may go.
    f.fraVersamento->lvwDB->setCurrentItem(f.fraVersamento->lvwDB->topLevelItem(0));
    a.piattaforma.risposte = {Risposta::Si};
    f.fraVersamento->cmdCancellaRiga->click();
    QCOMPARE(a.Righe("RigheVersamento"), 0);
    QCOMPARE(Comandi(f), QStringLiteral("011"));

    // No keeps it.
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::No};
    f.cmdCancella->click();
    UnaDomanda(a.piattaforma, QStringLiteral("Cancella Versamento: 15/03/2024 - 12"),
               QStringLiteral("Sei sicuro di voler cancellare questo versamento?"));
    QCOMPARE(a.Versamenti(), 1);
    a.piattaforma.risposte = {Risposta::Si};
    f.cmdCancella->click();
    QCOMPARE(a.Versamenti(), 0);
    QCOMPARE(a.Righe("Versamenti"), 0);
    QVERIFY(!f.Modello().Trova(id).isValid());
    QCOMPARE(Selezionato(f), qint64(lucca));
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore U4")).isEmpty());
}

void TestRegistroPC::ilMenuNuoveAcquisizioniApreIlRegistro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRegistro a(backend);
    const long lucca = a.Istituto(QStringLiteral("Archivio di Stato di Lucca"), "01");
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    principale->findChild<QAction*>(QStringLiteral("mnuRegistro"))->trigger();
    QVERIFY(Sessione::bFrmRegistroPCAperto);
    QPointer<frmRegistroPC> f = principale->findChild<frmRegistroPC*>();
    QVERIFY(f);
    QCOMPARE(principale->Area()->subWindowList().size(), 1);
    QCOMPARE(principale->Area()->subWindowList()[0]->windowTitle(),
             QStringLiteral("Nuove acquisizioni"));
    // A second click changes nothing.
    principale->findChild<QAction*>(QStringLiteral("mnuRegistro"))->trigger();
    QCOMPARE(principale->findChild<frmRegistroPC*>(), f.data());
    QCOMPARE(principale->Area()->subWindowList().size(), 1);

    Scegli(*f, lucca);
    const qint64 id = NuovoVersamento(*f, QDate(2024, 3, 15), QStringLiteral("12"));
    QVERIFY(id > 0);
    QCOMPARE(f->Modello().Testo(f->Modello().Trova(id)), QStringLiteral("15/03/2024 - 12"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    // Another main window closes the register.
    principale->findChild<QAction*>(QStringLiteral("mnuComplessiDoc"))->trigger();
    QVERIFY(!f);
    QVERIFY(!Sessione::bFrmRegistroPCAperto);
    principale->findChild<QAction*>(QStringLiteral("mnuRegistro"))->trigger();
    f = principale->findChild<frmRegistroPC*>();
    QVERIFY(f);
    QVERIFY(f->Modello().Trova(id).isValid());
    ChiusuraERiaperturaDalMenu(*principale, f, "mnuRegistro", Sessione::bFrmRegistroPCAperto);
    principale.reset();
}

QTEST_MAIN(TestRegistroPC)
#include "tst_registropc.moc"
