// The list window with one editor beside it, driven with a small editor of the test's own over
// the tables of personal and place names: each list loaded at its tab's first showing and only
// then, its first row shown, a new record at the end of its list and chosen, an edit and its
// cancelling, Annulla of a new record on an empty list, the delete with its question, its
// failure and the choice of the first row afterwards, a failed load, the commands and the
// colours from the editor's flags, a record that another workstation deleted meanwhile, and
// Escape, on SQLite and on PostgreSQL.

#include "records/EditoreRecord.h"
#include "records/FinestraElenco.h"
#include "records/ModelloElenco.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include "AmbienteRecord.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// An editor of one name: Text1(0) mandatory. A record may be deleted unless its name begins
// with "Legato"; it has "notes" (the colour of cmdNote) when its name ends with "*".
class EditoreNome : public EditoreRecord {
public:
    EditoreNome(QString tabella, QString chiave, QString colonna)
        : sTabella(std::move(tabella))
        , sChiave(std::move(chiave))
        , sColonna(std::move(colonna)) {
        auto* disposizione = new QVBoxLayout(this);
        disposizione->addWidget(NuovoTesto(0, 128, QStringLiteral("Inserire nome")));
    }

    void Mostra(long lId) override {
        ++iMostrati;
        lIdMostrato = lId;
        Pulisci();
        Leggi(lId);
        BloccaCampi();
    }
    void Salva(long lId) override {
        Sessione::cnn->Esegui(
            QStringLiteral("UPDATE %1 SET %2 = ? WHERE %3 = ?").arg(sTabella, sColonna, sChiave),
            {LeggiDenominazione(), static_cast<qlonglong>(lId)});
        const QString sScritto = LeggiDenominazione();
        Leggi(lId);
        ImpostaTestoDi(Testo(0), sScritto);
        BloccaCampi();
    }
    void PulisciTutto() { Pulisci(); }
    QString Nome() const { return LeggiDenominazione(); }

    bool OkNuovo = false;
    bool bNote = false;
    int iMostrati = 0;
    long lIdMostrato = -1;

private:
    void Leggi(long lId) {
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(sColonna, sTabella, sChiave),
            {static_cast<qlonglong>(lId)});
        OkNuovo = true;
        if (!riga.next()) {
            OkModifica = OkCancella = bNote = false;
            return;
        }
        const QString sNome = riga.value(0).toString();
        ImpostaTestoDi(Testo(0), sNome);
        OkModifica = true;
        OkCancella = !sNome.startsWith(QLatin1String("Legato"));
        bNote = sNome.endsWith(u'*');
    }

    QString sTabella;
    QString sChiave;
    QString sColonna;
};

// Two lists in tabs: personal names and place names.
class FinestraProva : public FinestraElenco {
public:
    explicit FinestraProva(const QString& sSqlNomi = QString(),
                           const QString& sTabellaCancella = QStringLiteral("Antroponimi"),
                           bool bMostraSenzaRighe = false)
        : FinestraElenco(QStringLiteral("frmProva"), true) {
        cmdNuovo = NuovoComando("cmdNuovo", QStringLiteral("Nuovo"));
        cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
        cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella"));
        cmdNote = NuovoComando("cmdNote", QStringLiteral("Note"));
        connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
        connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });
        fraNome = new EditoreNome(QStringLiteral("Antroponimi"), QStringLiteral("ID_Antroponimo"),
                                  QStringLiteral("Nome"));
        fraLuogo = new EditoreNome(QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"),
                                   QStringLiteral("Denominazione"));
        AggiungiPagina(Descrivi(
            QStringLiteral("Nomi"), fraNome, "fraNome",
            sSqlNomi.isEmpty() ? QStringLiteral("SELECT ID_Antroponimo, Nome FROM Antroponimi "
                                                "ORDER BY Nome")
                               : sSqlNomi,
            sTabellaCancella, QStringLiteral("ID_Antroponimo"), bMostraSenzaRighe));
        AggiungiPagina(
            Descrivi(QStringLiteral("Luoghi"), fraLuogo, "fraLuogo",
                     QStringLiteral(
                         "SELECT ID_Toponimo, Denominazione FROM Toponimi ORDER BY Denominazione"),
                     QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"), bMostraSenzaRighe));
        fraNome->Init();
        fraLuogo->Init();
        Avvia();
    }

    PaginaElenco Descrivi(const QString& sTitolo, EditoreNome* editore, const char* sNome,
                          const QString& sSql, const QString& sTabella, const QString& sColonnaId,
                          bool bMostraSenzaRighe) {
        PaginaElenco pagina;
        pagina.sTitolo = sTitolo;
        pagina.sTipo = sTitolo.toLower();
        pagina.sIntestazione = QStringLiteral("Nome (") + sTitolo + u')';
        pagina.sSql = sSql;
        pagina.testoRiga = [](const LetturaRighe& riga) {
            return QString::fromUtf8(riga.Testo(1)) + QStringLiteral(" (riga)");
        };
        pagina.editore = editore;
        pagina.sNomeEditore = sNome;
        pagina.cmdNuovo = cmdNuovo;
        pagina.pulsanti = {{cmdNuovo, &editore->OkNuovo},
                           {cmdModifica, &editore->OkModifica},
                           {cmdCancella, &editore->OkCancella},
                           {cmdNote, &editore->bNote}};
        pagina.colori = {{cmdNote, &editore->bNote}};
        pagina.pulisci = [editore] {
            editore->PulisciTutto();
        };
        pagina.testoSalvato = [editore] {
            return editore->Nome() + QStringLiteral(" (salvato)");
        };
        const QString sColonna = sTabella == QStringLiteral("Toponimi")
                                     ? QStringLiteral("Denominazione")
                                     : QStringLiteral("Nome");
        pagina.inserisci = [sTabella, sColonnaId, sColonna](const QString& sDenominazione) {
            return static_cast<long>(
                Sessione::cnn->Inserisci(sTabella, sColonnaId, {sColonna}, {sDenominazione}));
        };
        pagina.sTabellaCancella = sTabella;
        pagina.sColonnaId = sColonnaId;
        pagina.sDomandaCancella = QStringLiteral("Cancellare il nome?");
        pagina.sTitoloCancella = QStringLiteral("Cancella nome: ");
        pagina.bMostraSenzaRighe = bMostraSenzaRighe;
        return pagina;
    }

    QPushButton* cmdNuovo = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;
    QPushButton* cmdNote = nullptr;
    EditoreNome* fraNome = nullptr;
    EditoreNome* fraLuogo = nullptr;
};

struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("Antroponimi"), {}) {}

    qint64 Nome(const QString& sNome) const {
        return Cnn().Inserisci(QStringLiteral("Antroponimi"), QStringLiteral("ID_Antroponimo"),
                               {QStringLiteral("Nome")}, {sNome});
    }
    qint64 Luogo(const QString& sNome) const {
        return Cnn().Inserisci(QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"),
                               {QStringLiteral("Denominazione")}, {sNome});
    } // The rows of Antroponimi.
    int Antroponimi() const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM Antroponimi"), {}).toInt();
    }
};

QStringList Testi(const FinestraElenco& f, int iPagina) {
    QStringList testi;
    for (int i = 0; i < f.Modello(iPagina).Righe(); ++i) {
        testi.append(f.Modello(iPagina).Testo(i));
    }
    return testi;
}

// The enabled state of "Nuovo Modifica Cancella Note" as 0/1.
QString Comandi(const FinestraProva& f) {
    return Accesi({f.cmdNuovo, f.cmdModifica, f.cmdCancella, f.cmdNote});
}

bool Chiaro(const QPushButton* p) {
    return p->palette().color(QPalette::Button) == QApplication::palette().color(QPalette::Base);
}

int RigaScelta(const FinestraElenco& f, int iPagina) {
    return f.Lista(iPagina)->currentIndex().row();
}

QLineEdit* Nome(const EditoreNome* editore) {
    return editore->findChild<QLineEdit*>(QStringLiteral("Text1(0)"));
}

} // namespace

class TestFinestraElenco : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ogniListaSiCaricaUnaVoltaAllaPrimaVisualizzazioneDellaSuaScheda_data() {
        AggiungiBackend();
    }
    void ogniListaSiCaricaUnaVoltaAllaPrimaVisualizzazioneDellaSuaScheda();
    void unNuovoRecordVaInFondoAllaListaEVieneScelto_data() { AggiungiBackend(); }
    void unNuovoRecordVaInFondoAllaListaEVieneScelto();
    void unCampoObbligatorioVuotoLasciaLaFinestraInModifica_data() { AggiungiBackend(); }
    void unCampoObbligatorioVuotoLasciaLaFinestraInModifica();
    void modificaRiscriveLaRigaEAnnullaRileggeIlRecord_data() { AggiungiBackend(); }
    void modificaRiscriveLaRigaEAnnullaRileggeIlRecord();
    void annullaDiUnNuovoSuUnaListaVuotaLasciaLEditoreVuoto_data() { AggiungiBackend(); }
    void annullaDiUnNuovoSuUnaListaVuotaLasciaLEditoreVuoto();
    void unaListaVuotaPuoMostrareIlRecordVuotoConIFlagDellEditore_data() { AggiungiBackend(); }
    void unaListaVuotaPuoMostrareIlRecordVuotoConIFlagDellEditore();
    void cancellaChiedeEConNoLasciaTutto_data() { AggiungiBackend(); }
    void cancellaChiedeEConNoLasciaTutto();
    void cancellaConSiTogliELaRigaESceglieLaPrimaOLasciaLEditoreVuoto_data() { AggiungiBackend(); }
    void cancellaConSiTogliELaRigaESceglieLaPrimaOLasciaLEditoreVuoto();
    void unaCancellazioneRifiutataDaErroreR4ELaRigaResta_data() { AggiungiBackend(); }
    void unaCancellazioneRifiutataDaErroreR4ELaRigaResta();
    void unCaricamentoFallitoDaErroreU5_data() { AggiungiBackend(); }
    void unCaricamentoFallitoDaErroreU5();
    void iComandiEIColoriSeguonoIFlagDellEditore_data() { AggiungiBackend(); }
    void iComandiEIColoriSeguonoIFlagDellEditore();
    void unRecordCancellatoAltroveNonSiSalvaELaSuaRigaSparisce_data() { AggiungiBackend(); }
    void unRecordCancellatoAltroveNonSiSalvaELaSuaRigaSparisce();
    void unaSchedaVuotaNonMostraNullaNeAllaPrimaNeAlRitorno_data() { AggiungiBackend(); }
    void unaSchedaVuotaNonMostraNullaNeAllaPrimaNeAlRitorno();
    void dopoUnDialogoDellEditoreIComandiSeguonoDiNuovoISuoiFlag_data() { AggiungiBackend(); }
    void dopoUnDialogoDellEditoreIComandiSeguonoDiNuovoISuoiFlag();
    void escChiudeLaFinestra();
};

void TestFinestraElenco::unaSchedaVuotaNonMostraNullaNeAllaPrimaNeAlRitorno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    FinestraProva f;
    f.SSTab1->setCurrentIndex(1);
    QCOMPARE(f.fraLuogo->iMostrati, 0);
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
    QVERIFY(!f.fraLuogo->isHidden());
    f.SSTab1->setCurrentIndex(0);
    QCOMPARE(Comandi(f), QStringLiteral("1110"));
    f.SSTab1->setCurrentIndex(1);
    QCOMPARE(f.fraLuogo->iMostrati, 0);
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
    QCOMPARE(f.sTipo, QStringLiteral("luoghi"));
}

void TestFinestraElenco::dopoUnDialogoDellEditoreIComandiSeguonoDiNuovoISuoiFlag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    FinestraProva f;
    QCOMPARE(Comandi(f), QStringLiteral("1110"));
    // A link made in a dialog of the editor: the record may no longer be deleted.
    f.fraNome->OkCancella = false;
    f.fraNome->bNote = true;
    Q_EMIT f.fraNome->EventoStato();
    QCOMPARE(Comandi(f), QStringLiteral("1101"));
    QVERIFY(Chiaro(f.cmdNote));
}

void TestFinestraElenco::ogniListaSiCaricaUnaVoltaAllaPrimaVisualizzazioneDellaSuaScheda() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 bianchi = a.Nome(QStringLiteral("Bianchi Anna"));
    a.Nome(QStringLiteral("Rossi Mario"));
    const qint64 lucca = a.Luogo(QStringLiteral("Lucca"));
    FinestraProva f;
    QVERIFY(f.Caricata(0));
    QVERIFY(!f.Caricata(1));
    QCOMPARE(f.Lista(0)->objectName(), QStringLiteral("lvwDB(0)"));
    QCOMPARE(f.Modello(0).headerData(0, Qt::Horizontal).toString(), QStringLiteral("Nome (Nomi)"));
    QCOMPARE(Testi(f, 0), QStringList({QStringLiteral("Bianchi Anna (riga)"),
                                       QStringLiteral("Rossi Mario (riga)")}));
    // The first row is chosen and shown.
    QCOMPARE(RigaScelta(f, 0), 0);
    QCOMPARE(f.aId[0], bianchi);
    QCOMPARE(f.aChiave[0], QStringLiteral("ID%1").arg(bianchi));
    QCOMPARE(f.Modello(0).data(f.Modello(0).index(0), ModelloElenco::RuoloChiave).toString(),
             f.aChiave[0]);
    QCOMPARE(f.fraNome->lIdMostrato, static_cast<long>(bianchi));
    QVERIFY(!f.fraNome->isHidden());
    QVERIFY(f.fraLuogo->isHidden());
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(f.sTipo, QStringLiteral("nomi"));
    QVERIFY(!f.cmdConferma->isEnabled());
    QVERIFY(!f.cmdAnnulla->isEnabled());

    // Rows that come after a list was loaded appear only in a list not loaded yet.
    a.Nome(QStringLiteral("Verdi Carlo"));
    const qint64 pisa = a.Luogo(QStringLiteral("Pisa"));
    f.SSTab1->setCurrentIndex(1);
    QVERIFY(f.Caricata(1));
    QCOMPARE(Testi(f, 1),
             QStringList({QStringLiteral("Lucca (riga)"), QStringLiteral("Pisa (riga)")}));
    QCOMPARE(f.aId[1], lucca);
    QCOMPARE(f.fraLuogo->lIdMostrato, static_cast<long>(lucca));
    QVERIFY(f.fraNome->isHidden());
    QVERIFY(!f.fraLuogo->isHidden());
    QCOMPARE(f.sTipo, QStringLiteral("luoghi"));
    f.SelezionaRiga(1);
    QCOMPARE(f.aId[1], pisa);
    QCOMPARE(Nome(f.fraLuogo)->text(), QStringLiteral("Pisa"));

    f.SSTab1->setCurrentIndex(0);
    QCOMPARE(Testi(f, 0).size(), 2);
    // Back on its tab, a list shows the row chosen there before.
    QCOMPARE(f.fraNome->lIdMostrato, static_cast<long>(bianchi));
    f.SSTab1->setCurrentIndex(1);
    QCOMPARE(f.fraLuogo->lIdMostrato, static_cast<long>(pisa));
    QCOMPARE(Testi(f, 1).size(), 2);
}

void TestFinestraElenco::unNuovoRecordVaInFondoAllaListaEVieneScelto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    a.Nome(QStringLiteral("Rossi Mario"));
    FinestraProva f;
    f.cmdNuovo->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QCOMPARE(Comandi(f), QStringLiteral("0000"));
    QVERIFY(!f.Lista(0)->isEnabled());
    QVERIFY(!f.SSTab1->isEnabled());
    QVERIFY(f.cmdConferma->isEnabled());
    QVERIFY(f.cmdAnnulla->isEnabled());
    QCOMPARE(Nome(f.fraNome)->text(), QString());
    QVERIFY(Nome(f.fraNome)->isEnabled());

    Nome(f.fraNome)->setText(QStringLiteral("Abati d'Àngelo \"Nino\""));
    f.cmdConferma->click();
    QVERIFY2(a.seam.Messaggi().isEmpty(), qPrintable(a.seam.Messaggi().value(0).sTesto));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    // The row in the database, and at the end of the list though the list is in name order.
    const qint64 lId = a.Valore(QStringLiteral("SELECT ID_Antroponimo FROM Antroponimi WHERE "
                                               "Nome = ?"),
                                {QStringLiteral("Abati d'Àngelo \"Nino\"")})
                           .toLongLong();
    QVERIFY(lId > 0);
    QCOMPARE(Testi(f, 0).last(), QStringLiteral("Abati d'Àngelo \"Nino\" (salvato)"));
    QCOMPARE(f.Modello(0).Id(2), lId);
    QCOMPARE(RigaScelta(f, 0), 2);
    QCOMPARE(f.Lista(0)->selectionModel()->selectedRows().size(), 1);
    QCOMPARE(f.aId[0], lId);
    QCOMPARE(f.aChiave[0], QStringLiteral("ID%1").arg(lId));
    QCOMPARE(f.fraNome->lIdMostrato, static_cast<long>(lId));
    QCOMPARE(Comandi(f), QStringLiteral("1110"));
    QVERIFY(f.Lista(0)->isEnabled());
    QVERIFY(f.SSTab1->isEnabled());
    QVERIFY(!f.cmdConferma->isEnabled());
    QVERIFY(!f.cmdAnnulla->isEnabled());
    QVERIFY(!Nome(f.fraNome)->isEnabled());
}

void TestFinestraElenco::unCampoObbligatorioVuotoLasciaLaFinestraInModifica() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    FinestraProva f;
    f.cmdNuovo->click();
    Nome(f.fraNome)->setText(QStringLiteral("   "));
    f.cmdConferma->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi()[0].sTesto, QStringLiteral("Inserire nome"));
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QVERIFY(f.cmdConferma->isEnabled());
    QVERIFY(!f.Lista(0)->isEnabled());
    QCOMPARE(f.Modello(0).Righe(), 0);
    QCOMPARE(a.Antroponimi(), 0);
}

void TestFinestraElenco::modificaRiscriveLaRigaEAnnullaRileggeIlRecord() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    const qint64 rossi = a.Nome(QStringLiteral("Rossi Mario"));
    FinestraProva f;
    f.SelezionaRiga(1);
    f.cmdModifica->click();
    QCOMPARE(f.sStato, QStringLiteral("modifica"));
    QCOMPARE(Comandi(f), QStringLiteral("0000"));
    Nome(f.fraNome)->setText(QStringLiteral("Rossi Mario*"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(Testi(f, 0), QStringList({QStringLiteral("Bianchi Anna (riga)"),
                                       QStringLiteral("Rossi Mario* (salvato)")}));
    QCOMPARE(RigaScelta(f, 0), 1);
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Nome FROM Antroponimi WHERE ID_Antroponimo = ?"), {rossi})
            .toString(),
        QStringLiteral("Rossi Mario*"));
    QCOMPARE(Comandi(f), QStringLiteral("1111"));

    // Annulla of an edit reads the record again.
    f.cmdModifica->click();
    Nome(f.fraNome)->setText(QStringLiteral("Scritto e lasciato"));
    const int iPrima = f.fraNome->iMostrati;
    f.cmdAnnulla->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(f.fraNome->iMostrati, iPrima + 1);
    QCOMPARE(Nome(f.fraNome)->text(), QStringLiteral("Rossi Mario*"));
    QCOMPARE(Testi(f, 0)[1], QStringLiteral("Rossi Mario* (salvato)"));
    QCOMPARE(Comandi(f), QStringLiteral("1111"));
    QVERIFY(f.Lista(0)->isEnabled());
    QVERIFY(!f.cmdAnnulla->isEnabled());

    // Annulla of a new record on a list with rows chooses its first row.
    f.cmdNuovo->click();
    f.cmdAnnulla->click();
    QCOMPARE(RigaScelta(f, 0), 0);
    QCOMPARE(Nome(f.fraNome)->text(), QStringLiteral("Bianchi Anna"));
    QCOMPARE(f.Modello(0).Righe(), 2);
}

void TestFinestraElenco::annullaDiUnNuovoSuUnaListaVuotaLasciaLEditoreVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    FinestraProva f;
    // Nothing to show: no record is read, only New is enabled.
    QCOMPARE(f.fraNome->iMostrati, 0);
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
    QCOMPARE(f.aId[0], 0);
    QCOMPARE(f.aChiave[0], QString());
    f.cmdNuovo->click();
    Nome(f.fraNome)->setText(QStringLiteral("Lasciato a metà"));
    f.cmdAnnulla->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(Nome(f.fraNome)->text(), QString());
    QVERIFY(!Nome(f.fraNome)->isEnabled());
    QCOMPARE(f.aId[0], 0);
    QCOMPARE(f.aChiave[0], QString());
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
    QCOMPARE(f.Modello(0).Righe(), 0);
    QVERIFY(f.Lista(0)->isEnabled());
    QVERIFY(!f.cmdConferma->isEnabled());
    QCOMPARE(a.Antroponimi(), 0);
}

void TestFinestraElenco::unaListaVuotaPuoMostrareIlRecordVuotoConIFlagDellEditore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    FinestraProva f(QString(), QStringLiteral("Antroponimi"), true);
    QCOMPARE(f.fraNome->iMostrati, 1);
    QCOMPARE(f.fraNome->lIdMostrato, 0L);
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
}

void TestFinestraElenco::cancellaChiedeEConNoLasciaTutto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    const qint64 rossi = a.Nome(QStringLiteral("Rossi Mario"));
    FinestraProva f;
    f.SelezionaRiga(1);
    a.seam.risposte = {Risposta::No};
    f.cmdCancella->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio domanda = a.seam.Messaggi()[0];
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella nome: Rossi Mario"));
    QCOMPARE(domanda.sTesto, QStringLiteral("Cancellare il nome?"));
    QCOMPARE(domanda.icona, Icona::Domanda);
    QCOMPARE(domanda.pulsanti, Pulsanti::SiNo);
    QCOMPARE(f.Modello(0).Righe(), 2);
    QCOMPARE(RigaScelta(f, 0), 1);
    QCOMPARE(f.aId[0], rossi);
    QCOMPARE(a.Antroponimi(), 2);
}

void TestFinestraElenco::cancellaConSiTogliELaRigaESceglieLaPrimaOLasciaLEditoreVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 bianchi = a.Nome(QStringLiteral("Bianchi Anna"));
    a.Nome(QStringLiteral("Rossi Mario"));
    FinestraProva f;
    f.SelezionaRiga(1);
    a.seam.risposte = {Risposta::Si, Risposta::Si};
    f.cmdCancella->click();
    QCOMPARE(Testi(f, 0), QStringList({QStringLiteral("Bianchi Anna (riga)")}));
    QCOMPARE(a.Antroponimi(), 1);
    QCOMPARE(RigaScelta(f, 0), 0);
    QCOMPARE(f.aId[0], bianchi);
    QCOMPARE(Nome(f.fraNome)->text(), QStringLiteral("Bianchi Anna"));
    QCOMPARE(Comandi(f), QStringLiteral("1110"));

    // The last row: the editor is left empty, with New alone.
    f.cmdCancella->click();
    QCOMPARE(f.Modello(0).Righe(), 0);
    QCOMPARE(a.Antroponimi(), 0);
    QCOMPARE(f.aId[0], 0);
    QCOMPARE(f.aChiave[0], QString());
    QCOMPARE(Nome(f.fraNome)->text(), QString());
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
}

void TestFinestraElenco::unaCancellazioneRifiutataDaErroreR4ELaRigaResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    FinestraProva f(QString(), QStringLiteral("AntroponimiCheNonCiSono"));
    a.seam.risposte = {Risposta::Si};
    f.cmdCancella->click();
    QCOMPARE(a.seam.Messaggi().size(), 2);
    const Messaggio errore = a.seam.Messaggi()[1];
    QCOMPARE(errore.sTitolo, QStringLiteral("Errore R4"));
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY2(errore.sTesto.startsWith(QStringLiteral("frmProva\n")), qPrintable(errore.sTesto));
    QCOMPARE(f.Modello(0).Righe(), 1);
    QCOMPARE(a.Antroponimi(), 1);
}

void TestFinestraElenco::unCaricamentoFallitoDaErroreU5() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    FinestraProva f(QStringLiteral("SELECT ID_Antroponimo, Nome FROM NomiCheNonCiSono"));
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio errore = a.seam.Messaggi()[0];
    QCOMPARE(errore.sTitolo, QStringLiteral("Errore U5"));
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY2(errore.sTesto.startsWith(QStringLiteral("frmProva\n")), qPrintable(errore.sTesto));
    QCOMPARE(f.Modello(0).Righe(), 0);
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
}

void TestFinestraElenco::iComandiEIColoriSeguonoIFlagDellEditore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Nome(QStringLiteral("Bianchi Anna"));
    a.Nome(QStringLiteral("Legato Luigi*"));
    FinestraProva f;
    QCOMPARE(Comandi(f), QStringLiteral("1110"));
    QVERIFY(!Chiaro(f.cmdNote));
    f.SelezionaRiga(1);
    QCOMPARE(Comandi(f), QStringLiteral("1101"));
    QVERIFY(Chiaro(f.cmdNote));
    f.SelezionaRiga(0);
    QVERIFY(!Chiaro(f.cmdNote));
    // A click on the row already chosen shows it again.
    const int iPrima = f.fraNome->iMostrati;
    f.Lista(0)->clicked(f.Modello(0).index(0));
    QCOMPARE(f.fraNome->iMostrati, iPrima + 1);
}

void TestFinestraElenco::unRecordCancellatoAltroveNonSiSalvaELaSuaRigaSparisce() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 bianchi = a.Nome(QStringLiteral("Bianchi Anna"));
    const qint64 rossi = a.Nome(QStringLiteral("Rossi Mario"));
    FinestraProva f;
    f.SelezionaRiga(1);
    f.cmdModifica->click();
    Nome(f.fraNome)->setText(QStringLiteral("Rossi Mario Giuseppe"));
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Antroponimi WHERE ID_Antroponimo = ?"), {rossi});
    f.cmdConferma->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi()[0].icona, Icona::Esclamazione);
    QCOMPARE(a.seam.Messaggi()[0].sTesto,
             QStringLiteral("La scheda non esiste più nel database: è stata cancellata da "
                            "un'altra postazione e le modifiche non sono state salvate."));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(Testi(f, 0), QStringList({QStringLiteral("Bianchi Anna (riga)")}));
    QCOMPARE(f.aId[0], bianchi);
    QCOMPARE(a.Antroponimi(), 1);

    // Deleted elsewhere, then deleted here: no error, the row goes.
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Antroponimi WHERE ID_Antroponimo = ?"), {bianchi});
    a.seam.Svuota();
    a.seam.risposte = {Risposta::Si};
    f.cmdCancella->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(f.Modello(0).Righe(), 0);
    QCOMPARE(Comandi(f), QStringLiteral("1000"));
}

void TestFinestraElenco::escChiudeLaFinestra() {
    Ambiente a(TipoBackend::SQLite);
    QPointer<FinestraProva> f = new FinestraProva;
    f->setAttribute(Qt::WA_DeleteOnClose);
    f->show();
    QTest::keyClick(f->Lista(0), Qt::Key_Escape);
    QTRY_VERIFY(f.isNull());
}

QTEST_MAIN(TestFinestraElenco)
#include "tst_finestraelenco.moc"
