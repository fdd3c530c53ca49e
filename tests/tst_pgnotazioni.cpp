// The chancery and archival notations of a parchment, on SQLite and on PostgreSQL: the window of
// the notations with its editor beside the list, reached from cmdMostraNotazioni of a parchment
// shown in a host. Notations added at the end of the list, changed in their place and deleted;
// the text shown as "Trascrizione/Descrizione" kept in the column Note and the columns the window
// does not show left alone; the mandatory walk; quotes, accents and the longest texts; nothing
// written by what is given up; the failures in their boxes; the parchment's button coloured as
// soon as the window closes.

#include "parchments/frmPgNotazioni.h"
#include "parchments/ucPgNotazione.h"
#include "programma/Registro.h"
#include "records/ModelloElenco.h"
#include "records/ucPergamena.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteLink.h"
#include "AmbienteRecord.h"
#include "MessaggiAttesi.h"
#include "Modali.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTreeView>
#include <QtTest>
#include <functional>

namespace {

// A parchment shown in its host, and the key of its row of Pergamene.
struct Pergamena {
    explicit Pergamena(TipoBackend tipo)
        : ambiente(tipo, QStringLiteral("Pergamene"))
        , creata(ambiente.CreaPergamenaConRiga())
        , ospitata(OspitePergamena(creata.albero.inventario))
        , editore(ospitata.editore)
        , ospite(ospitata.ospite) {
        ospite.MostraElemento(creata.id);
    }

    const Connessione& Cnn() const { return ambiente.Cnn(); }
    PiattaformaScriptata& Seam() { return ambiente.seam; }
    QPushButton* Pulsante() const { return ::Pulsante(editore, "cmdMostraNotazioni"); }
    bool Acceso() const { return PulsanteAcceso(Pulsante()); }

    // A notation written behind the window's back; its key.
    qint64 Aggiungi(const QString& sPosizione, const QVariant& note, long idPergamena = 0) const {
        return Cnn().Inserisci(
            QStringLiteral("PGNotazioni"), QStringLiteral("ID_PgNotazione"),
            {QStringLiteral("ID_Pergamena"), QStringLiteral("Posizione"), QStringLiteral("Note")},
            {static_cast<qlonglong>(idPergamena != 0 ? idPergamena : creata.idPG), sPosizione,
             note});
    }
    // The parchment's notations as stored, in the order they were made: position, date as a
    // text and note, "|" between them, "<null>" for a Null.
    QStringList Notazioni() const {
        QSqlQuery query = Cnn().Esegui(
            QStringLiteral("SELECT Posizione, DescrizioneEstremi, Note FROM PGNotazioni "
                           "WHERE ID_Pergamena = ? ORDER BY ID_PgNotazione"),
            {static_cast<qlonglong>(creata.idPG)});
        QStringList righe;
        while (query.next()) {
            QStringList campi;
            for (int i = 0; i < 3; ++i)
                campi << (query.value(i).isNull() ? QStringLiteral("<null>")
                                                  : query.value(i).toString());
            righe << campi.join(QLatin1Char('|'));
        }
        return righe;
    }
    qint64 Tutte() const {
        QSqlQuery query = Cnn().Esegui(QStringLiteral("SELECT COUNT(*) FROM PGNotazioni"));
        return query.next() ? query.value(0).toLongLong() : -1;
    }

    // The parchment's button clicked; the window, when it comes up, is driven by azione and
    // then closed with the Esc key. False when no window came up.
    bool Apri(const std::function<void(frmPgNotazioni*)>& azione) {
        bool bComparso = false;
        AlComparire(QStringLiteral("frmPgNotazioniDialogo"), [&](QWidget* dialogo) {
            auto* finestra = dialogo->findChild<frmPgNotazioni*>();
            bComparso = finestra != nullptr;
            if (finestra == nullptr) {
                static_cast<QDialog*>(dialogo)->reject();
                return;
            }
            azione(finestra);
            if (dialogo->isVisible())
                QTest::keyClick(finestra, Qt::Key_Escape);
        });
        Pulsante()->click();
        return bComparso;
    }

    AmbientePergamene ambiente;
    const AmbientePergamene::PergamenaCreata creata;
    EditoreOspitato<ucPergamena> ospitata;
    ucPergamena* const editore;
    HostEditore& ospite;
};

QStringList Righe(const frmPgNotazioni* f) {
    QStringList righe;
    for (int i = 0; i < f->Modello(0).Righe(); ++i)
        righe << f->Modello(0).Testo(i);
    return righe;
}
// The commands enabled, one 0/1 a command: New, Change, Delete, Confirm, Cancel.
QString Comandi(const frmPgNotazioni* f) {
    return Accesi(
        {f->cmdNuovaNotazione, f->cmdModifica, f->cmdCancella, f->cmdConferma, f->cmdAnnulla});
}
void Scrivi(const frmPgNotazioni* f, const QString& sPosizione, const QString& sDatazione,
            const QString& sTrascrizione) {
    Riga(f->fraNotazione, 1)->setText(sPosizione);
    Riga(f->fraNotazione, 4)->setText(sDatazione);
    Blocco(f->fraNotazione, 0)->setPlainText(sTrascrizione);
}
void Nuova(frmPgNotazioni* f, const QString& sPosizione, const QString& sDatazione,
           const QString& sTrascrizione) {
    f->cmdNuovaNotazione->click();
    Scrivi(f, sPosizione, sDatazione, sTrascrizione);
    f->cmdConferma->click();
}
// What the editor shows: position, date as a text, transcription.
QString Mostrata(const frmPgNotazioni* f) {
    return QStringList(
               {Testo(f->fraNotazione, 1), Testo(f->fraNotazione, 4), Testo(f->fraNotazione, 0)})
        .join(QLatin1Char('|'));
}

} // namespace

class TestPgNotazioni : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() { Sessione::Azzera(); }

    void laFinestraSiApreDalPulsanteDellaPergamenaConUnaListaVuota_data() { AggiungiBackend(); }
    void laFinestraSiApreDalPulsanteDellaPergamenaConUnaListaVuota();
    void notazioniAggiunteCambiateNelLoroPostoECancellate_data() { AggiungiBackend(); }
    void notazioniAggiunteCambiateNelLoroPostoECancellate();
    void laListaTieneLOrdineDiCreazioneESoloLeNotazioniDellaPergamena_data() { AggiungiBackend(); }
    void laListaTieneLOrdineDiCreazioneESoloLeNotazioniDellaPergamena();
    void unaNotazioneConNoteNulloMostraUnaCasellaVuota_data() { AggiungiBackend(); }
    void unaNotazioneConNoteNulloMostraUnaCasellaVuota();
    void leColonneNonMostrateNonSiScrivono_data() { AggiungiBackend(); }
    void leColonneNonMostrateNonSiScrivono();
    void posizioneETrascrizioneSonoObbligatorieENullaSiScrive_data() { AggiungiBackend(); }
    void posizioneETrascrizioneSonoObbligatorieENullaSiScrive();
    void apostrofiAccentiEITestiPiuLunghiSiSalvanoComeScritti_data() { AggiungiBackend(); }
    void apostrofiAccentiEITestiPiuLunghiSiSalvanoComeScritti();
    void annullaERispondereNoNonScrivonoNulla_data() { AggiungiBackend(); }
    void annullaERispondereNoNonScrivonoNulla();
    void unaScritturaRifiutataNonLasciaNotazioniAMeta_data() { AggiungiBackend(); }
    void unaScritturaRifiutataNonLasciaNotazioniAMeta();
    void ilPulsanteDellaPergamenaSiColoraAlRitornoEAvvisaLOspite_data() { AggiungiBackend(); }
    void ilPulsanteDellaPergamenaSiColoraAlRitornoEAvvisaLOspite();
    void unaPergamenaNuovaNonRaggiungeLeSueNotazioni_data() { AggiungiBackend(); }
    void unaPergamenaNuovaNonRaggiungeLeSueNotazioni();
    void unCaricamentoFallitoDaErroreU5EUnaCancellazioneFallitaErroreR4_data() {
        AggiungiBackend();
    }
    void unCaricamentoFallitoDaErroreU5EUnaCancellazioneFallitaErroreR4();
};

void TestPgNotazioni::laFinestraSiApreDalPulsanteDellaPergamenaConUnaListaVuota() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    QVERIFY(!p.Acceso());
    QString sTitolo, sIntestazione, sComandi, sEtichette, sDidascalie;
    long lPergamena = -1;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        sTitolo = f->window()->windowTitle();
        sIntestazione = f->Modello(0).Intestazione();
        sComandi = Comandi(f);
        sEtichette = QStringList({Etichetta(f->fraNotazione, 1)->text(),
                                  Etichetta(f->fraNotazione, 4)->text(),
                                  Etichetta(f->fraNotazione, 0)->text()})
                         .join(QLatin1Char('|'));
        sDidascalie = QStringList({f->cmdNuovaNotazione->text(), f->cmdCancella->text()})
                          .join(QLatin1Char('|'));
        lPergamena = Sessione::lIdPergamena;
    }));
    QCOMPARE(lPergamena, p.creata.idPG);
    QCOMPARE(sTitolo, QStringLiteral("Notazioni di cancelleria/archivistiche"));
    QCOMPARE(sIntestazione, QStringLiteral("Posizione"));
    QCOMPARE(sComandi, QStringLiteral("10000"));
    QCOMPARE(sEtichette, QStringLiteral("Posizione|Datazione (testo)|Trascrizione/Descrizione"));
    QCOMPARE(sDidascalie, QStringLiteral("Nuova notazione|Cancella notazione"));
    QVERIFY(p.Seam().Messaggi().isEmpty());
}

void TestPgNotazioni::notazioniAggiunteCambiateNelLoroPostoECancellate() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    QStringList dopoAggiunte, dopoCambio, dopoCancella;
    QString sMostrataDopoNuova, sComandiDopoNuova;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        Nuova(f, QStringLiteral("Recto, in alto"), QStringLiteral("sec. XIII"),
              QStringLiteral("Registrata"));
        Nuova(f, QStringLiteral("Verso"), QString(), QStringLiteral("Nota dorsale"));
        Nuova(f, QStringLiteral("Plica"), QStringLiteral("1290"), QStringLiteral("Segno"));
        dopoAggiunte = Righe(f);
        // The new one is the one chosen and shown.
        sMostrataDopoNuova = Mostrata(f);
        sComandiDopoNuova = Comandi(f);
        // A changed position keeps its place.
        f->SelezionaRiga(0);
        f->cmdModifica->click();
        Riga(f->fraNotazione, 1)->setText(QStringLiteral("Recto, in basso"));
        f->cmdConferma->click();
        dopoCambio = Righe(f);
        // The delete of the second after the question.
        p.Seam().risposte = {Risposta::Si};
        f->SelezionaRiga(1);
        f->cmdCancella->click();
        dopoCancella = Righe(f);
    }));
    QCOMPARE(dopoAggiunte, QStringList({"Recto, in alto", "Verso", "Plica"}));
    QCOMPARE(sMostrataDopoNuova, QStringLiteral("Plica|1290|Segno"));
    QCOMPARE(sComandiDopoNuova, QStringLiteral("11100"));
    QCOMPARE(dopoCambio, QStringList({"Recto, in basso", "Verso", "Plica"}));
    QCOMPARE(dopoCancella, QStringList({"Recto, in basso", "Plica"}));
    QCOMPARE(p.Notazioni(),
             QStringList({"Recto, in basso|sec. XIII|Registrata", "Plica|1290|Segno"}));
    UnaDomanda(p.Seam(), QStringLiteral("Cancella Notazione: Verso"),
               QStringLiteral("Sei sicuro di voler cancellare la notazione?"));

    // Opened again: the notations read back, the first one shown.
    QStringList riletti;
    QString sMostrata;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        riletti = Righe(f);
        sMostrata = Mostrata(f);
    }));
    QCOMPARE(riletti, QStringList({"Recto, in basso", "Plica"}));
    QCOMPARE(sMostrata, QStringLiteral("Recto, in basso|sec. XIII|Registrata"));
}

void TestPgNotazioni::laListaTieneLOrdineDiCreazioneESoloLeNotazioniDellaPergamena() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    p.Aggiungi(QStringLiteral("  Zeta "), QStringLiteral("z"));
    p.Aggiungi(QStringLiteral("Alfa"), QStringLiteral("a"));
    p.Aggiungi(QStringLiteral("D'altra pergamena"), QStringLiteral("x"), p.creata.idPG + 1000);
    QStringList righe;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) { righe = Righe(f); }));
    QCOMPARE(righe, QStringList({"Zeta", "Alfa"}));
}

void TestPgNotazioni::unaNotazioneConNoteNulloMostraUnaCasellaVuota() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    p.Aggiungi(QStringLiteral("Recto"), NullTesto());
    QString sMostrata, sComandi;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        sMostrata = Mostrata(f);
        sComandi = Comandi(f);
    }));
    // No placeholder in the transcription's box.
    QCOMPARE(sMostrata, QStringLiteral("Recto||"));
    QCOMPARE(sComandi, QStringLiteral("11100"));
}

void TestPgNotazioni::leColonneNonMostrateNonSiScrivono() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    const qint64 id = p.Aggiungi(QStringLiteral("Recto"), QStringLiteral("Nota"));
    p.Cnn().Esegui(QStringLiteral("UPDATE PGNotazioni SET Trascrizione = ?, DataInizio = ?, "
                                  "DataFine = ? WHERE ID_PgNotazione = ?"),
                   {QStringLiteral("Testo antico"), 12900101, 12901231, id});
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        f->cmdModifica->click();
        Scrivi(f, QStringLiteral("Verso"), QStringLiteral("1290"), QStringLiteral("Nuova nota"));
        f->cmdConferma->click();
    }));
    QCOMPARE(p.Notazioni(), QStringList({"Verso|1290|Nuova nota"}));
    QSqlQuery riga = p.Cnn().Esegui(QStringLiteral("SELECT Trascrizione, DataInizio, DataFine "
                                                   "FROM PGNotazioni WHERE ID_PgNotazione = ?"),
                                    {id});
    QVERIFY(riga.next());
    QCOMPARE(riga.value(0).toString(), QStringLiteral("Testo antico"));
    QCOMPARE(riga.value(1).toLongLong(), 12900101);
    QCOMPARE(riga.value(2).toLongLong(), 12901231);
}

void TestPgNotazioni::posizioneETrascrizioneSonoObbligatorieENullaSiScrive() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    QString sStato;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        f->cmdNuovaNotazione->click();
        // Nothing given: the position first.
        f->cmdConferma->click();
        // The position given: the transcription then.
        Riga(f->fraNotazione, 1)->setText(QStringLiteral("Recto"));
        Riga(f->fraNotazione, 4)->setText(QStringLiteral("1290"));
        f->cmdConferma->click();
        sStato = f->sStato + QLatin1Char('|') + Comandi(f);
        f->cmdAnnulla->click();
    }));
    QCOMPARE(TestiDeiMessaggi(p.Seam()),
             QStringList({"Inserire la posizione", "Inserire la trascrizione/descrizione"}));
    QCOMPARE(sStato, QStringLiteral("nuovo|00011"));
    QCOMPARE(p.Tutte(), 0);
    QVERIFY(!p.Acceso());
}

void TestPgNotazioni::apostrofiAccentiEITestiPiuLunghiSiSalvanoComeScritti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    const QString sPosizione = Lungo(QStringLiteral("Rectò \"in\" l'alto "), 63) + QLatin1Char('z');
    const QString sDatazione = Lungo(QStringLiteral("sec. XIII, metà "), 63) + QLatin1Char('z');
    const QString sTrascrizione =
        Lungo(QStringLiteral("Ego Iohannes notarius; DELETE FROM PGNotazioni; -- già "), 511) +
        QLatin1Char('z');
    QString sLimiti;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        Nuova(f, sPosizione, sDatazione, sTrascrizione);
        // One character more is not taken by the boxes.
        f->cmdModifica->click();
        Riga(f->fraNotazione, 1)->setText(sPosizione + QLatin1Char('!'));
        Riga(f->fraNotazione, 4)->setText(sDatazione + QLatin1Char('!'));
        sLimiti = QStringLiteral("%1 %2")
                      .arg(Testo(f->fraNotazione, 1).size())
                      .arg(Testo(f->fraNotazione, 4).size());
        f->cmdAnnulla->click();
    }));
    QVERIFY(p.Seam().Messaggi().isEmpty());
    QCOMPARE(sLimiti, QStringLiteral("64 64"));
    QCOMPARE(p.Notazioni(), QStringList({sPosizione + QLatin1Char('|') + sDatazione +
                                         QLatin1Char('|') + sTrascrizione}));
    QString sMostrata;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) { sMostrata = Mostrata(f); }));
    QCOMPARE(sMostrata,
             sPosizione + QLatin1Char('|') + sDatazione + QLatin1Char('|') + sTrascrizione);
}

void TestPgNotazioni::annullaERispondereNoNonScrivonoNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    p.Aggiungi(QStringLiteral("Recto"), QStringLiteral("Resta"));
    QString sMostrata, sComandi;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        f->cmdNuovaNotazione->click();
        Scrivi(f, QStringLiteral("Lasciata"), QStringLiteral("a"), QStringLiteral("metà"));
        f->cmdAnnulla->click();
        f->cmdModifica->click();
        Scrivi(f, QStringLiteral("Cambiata"), QStringLiteral("a"), QStringLiteral("metà"));
        f->cmdAnnulla->click();
        p.Seam().risposte = {Risposta::No};
        f->cmdCancella->click();
        sMostrata = Mostrata(f);
        sComandi = Comandi(f);
    }));
    QCOMPARE(sMostrata, QStringLiteral("Recto||Resta"));
    QCOMPARE(sComandi, QStringLiteral("11100"));
    QCOMPARE(p.Notazioni(), QStringList({"Recto|<null>|Resta"}));
    QCOMPARE(p.Tutte(), 1);
}

void TestPgNotazioni::unaScritturaRifiutataNonLasciaNotazioniAMeta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    p.Aggiungi(QStringLiteral("Recto"), QStringLiteral("Com'era"));
    // The database refuses any row that puts a notation on the plica once it is there (its own
    // bookkeeping updates a new row as soon as it is inserted).
    p.ambiente.RifiutaAggiornamento(QStringLiteral("PGNotazioni"),
                                    QStringLiteral("NEW.Posizione = 'Plica'"),
                                    QStringLiteral("posizione rifiutata"));
    QString sDopoCambio, sDopoNuova;
    QStringList righe;
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        // A change refused: none of the three boxes written, the notation shown as stored.
        f->cmdModifica->click();
        Scrivi(f, QStringLiteral("Plica"), QStringLiteral("1290"), QStringLiteral("Cambiata"));
        f->cmdConferma->click();
        sDopoCambio = Mostrata(f);
        // A new notation refused: it is made in one statement, so no row is left behind, and
        // the entry goes on for another try or for Annulla.
        Nuova(f, QStringLiteral("Plica"), QStringLiteral("1291"), QStringLiteral("Nuova"));
        sDopoNuova = Mostrata(f) + QLatin1Char('|') + f->sStato + QLatin1Char('|') + Comandi(f);
        f->cmdAnnulla->click();
        righe = Righe(f);
    }));
    const QList<Messaggio> errori = Errori(p.Seam());
    QCOMPARE(errori.size(), 2);
    for (const Messaggio& m : errori)
        QVERIFY2(m.sTesto.contains(QLatin1String("posizione rifiutata")), qPrintable(m.sTesto));
    QCOMPARE(sDopoCambio, QStringLiteral("Recto||Com'era"));
    QCOMPARE(sDopoNuova, QStringLiteral("Plica|1291|Nuova|nuovo|00011"));
    QCOMPARE(righe, QStringList({"Recto"}));
    QCOMPARE(p.Notazioni(), QStringList({"Recto|<null>|Com'era"}));
    QCOMPARE(p.Tutte(), 1);
}

void TestPgNotazioni::ilPulsanteDellaPergamenaSiColoraAlRitornoEAvvisaLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    QSignalSpy evento(p.editore, &EditoreRecord::EventoStato);
    QVERIFY(!p.Acceso());
    QVERIFY(!p.editore->Notazioni);
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        Nuova(f, QStringLiteral("Recto"), QString(), QStringLiteral("Nota"));
    }));
    QVERIFY(p.editore->Notazioni);
    QVERIFY(p.Acceso());
    QCOMPARE(evento.count(), 1);

    p.Seam().risposte = {Risposta::Si};
    QVERIFY(p.Apri([&](frmPgNotazioni* f) { f->cmdCancella->click(); }));
    QVERIFY(!p.editore->Notazioni);
    QVERIFY(!p.Acceso());
    QCOMPARE(evento.count(), 2);
}

void TestPgNotazioni::unaPergamenaNuovaNonRaggiungeLeSueNotazioni() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    QVERIFY(p.Pulsante()->isEnabled());
    p.ospite.Nuovo();
    QVERIFY(!p.Pulsante()->isEnabled());
    QVERIFY(!::Pulsante(p.editore, "cmdMostraAltreSeg")->isEnabled());
}

void TestPgNotazioni::unCaricamentoFallitoDaErroreU5EUnaCancellazioneFallitaErroreR4() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Pergamena p(backend);
    p.Aggiungi(QStringLiteral("Recto"), QStringLiteral("Resta"));
    QStringList righe;
    p.Seam().risposte = {Risposta::Si};
    // The table taken away while the window is open, and given back before it closes (the
    // parchment reads it then).
    const auto via = [&p] {
        p.Cnn().Esegui(QStringLiteral("ALTER TABLE PGNotazioni RENAME TO PGNotazioniVia"));
    };
    const auto indietro = [&p] {
        p.Cnn().Esegui(QStringLiteral("ALTER TABLE PGNotazioniVia RENAME TO PGNotazioni"));
    };
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        via();
        f->cmdCancella->click();
        righe = Righe(f);
        indietro();
    }));
    // The load with the table away.
    QStringList riletti{QStringLiteral("?")};
    via();
    QVERIFY(p.Apri([&](frmPgNotazioni* f) {
        riletti = Righe(f);
        indietro();
    }));

    QCOMPARE(TitoliDegliErrori(p.Seam()), QStringList({"Errore R4", "Errore U5"}));
    // The row stays in the list and in its table; the list loaded as far as it came.
    QCOMPARE(righe, QStringList({"Recto"}));
    QCOMPARE(riletti, QStringList());
    QCOMPARE(p.Notazioni(), QStringList({"Recto|<null>|Resta"}));
}

QTEST_MAIN(TestPgNotazioni)
#include "tst_pgnotazioni.moc"
