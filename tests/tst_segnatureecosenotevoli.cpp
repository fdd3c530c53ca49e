// The two small list editors of the records, on SQLite and on PostgreSQL: the old shelf marks of
// a parchment (frmAltreSegnature, from cmdMostraAltreSeg of the parchment) and the notable things
// of an inventory unit (frmCoseNotevoli, from cmdCoseNotevoli of the unit). Each is reached from
// its record's button through a host, as the user reaches it: rows added, changed in their
// place and deleted, the empty text refused, quotes, accents and the longest texts kept as
// written, nothing written by what is given up, the failures in their boxes, and the record's
// button coloured by whether its list has rows as soon as the dialog closes.

#include "programma/Registro.h"
#include "records/EditoreRecord.h"
#include "records/ucDatiInventariali.h"
#include "records/ucPergamena.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteLink.h"
#include "AmbienteRecord.h"
#include "MessaggiAttesi.h"
#include "Modali.h"

#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>
#include <functional>
#include <memory>

namespace {

// What tells the two dialogs apart.
struct Caso {
    const char* sDialogo;
    const char* sPulsante; // the record's button
    const char* sTabella;
    const char* sChiave;
    const char* sChiaveEsterna;
    const char* sColonna;
    const char* sMessaggioVuoto;
    int iMax;               // 0: no limit in the box
    QStringList didascalie; // caption, header, label, New, Change, Delete
};

const Caso Segnature = {"frmAltreSegnature",
                        "cmdMostraAltreSeg",
                        "PGAltreSegnature",
                        "ID_PGAltraSegnatura",
                        "ID_Pergamena",
                        "Segnatura",
                        "Inserire Segnatura",
                        128,
                        {"Antiche Segnature", "Antiche segnature ", "Antica Segnatura",
                         "Nuova segnatura", "Modifica segnatura", "Cancella segnatura"}};
const Caso CoseNotevoli = {"frmCoseNotevoli",
                           "cmdCoseNotevoli",
                           "DICoseNotevoli",
                           "ID_DICosaNotevole",
                           "ID_DatoInventariale",
                           "Descrizione",
                           "Inserire Cosa notevole",
                           0,
                           {"Cose Notevoli", "Cose Notevoli ", "Cosa Notevole",
                            "Nuova Cosa Notevole", "Modifica Cosa Notevole",
                            "Cancella Cosa Notevole"}};

const Caso& CasoDi(const QString& sDialogo) {
    return sDialogo == QLatin1String(Segnature.sDialogo) ? Segnature : CoseNotevoli;
}

// A record of the case's kind shown in a host of its kind: a parchment under a finding aid, or a
// unit under a finding aid; its element and the key its rows point at.
struct RecordInOspite {
    RecordInOspite(TipoBackend tipo, const Caso& casoScelto)
        : caso(casoScelto) {
        const bool bPergamena = &caso == &Segnature;
        if (bPergamena) {
            auto pergamene = std::make_unique<AmbientePergamene>(tipo, QStringLiteral("Pergamene"));
            const auto creata = pergamene->CreaPergamenaConRiga();
            id = creata.id;
            idChiave = creata.idPG;
            padre = creata.albero.inventario;
            ambiente = std::move(pergamene);
            pergamena = std::make_unique<EditoreOspitato<ucPergamena>>(
                "05", padre, &ucPergamena::OkNuovaPergamena);
            editore = pergamena->editore;
            ospite = &pergamena->ospite;
        } else {
            ambiente = std::make_unique<AmbienteRecord>(
                tipo, QStringLiteral("DatiInventariali"),
                std::initializer_list<const char*>{"LivelliDI.txt"});
            const long istituto =
                ambiente->CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
            padre = ambiente->Crea("03", QStringLiteral("Inventario"), istituto);
            id = ambiente->Crea("07", QStringLiteral("Serie prima"), padre);
            idChiave = ambiente->Colonna(QStringLiteral("ID_DatoInventariale"), id).toInt();
            unita = std::make_unique<EditoreOspitato<ucDatiInventariali>>(
                "07", padre, &ucDatiInventariali::OkNuovoDatoInventariale);
            editore = unita->editore;
            ospite = &unita->ospite;
        }
        ospite->MostraElemento(id);
    }

    const Connessione& Cnn() const { return ambiente->Cnn(); }
    PiattaformaScriptata& Seam() const { return ambiente->seam; }
    QPushButton* Pulsante() const { return ::Pulsante(editore, caso.sPulsante); }
    // Whether the record's button has the colour of a list with rows.
    bool Acceso() const { return PulsanteAcceso(Pulsante()); }

    // A row of the record's list written behind the dialog's back; its key.
    qint64 Aggiungi(const QVariant& testo, qint64 idRecord = 0) const {
        return Cnn().Inserisci(QLatin1String(caso.sTabella), QLatin1String(caso.sChiave),
                               {QLatin1String(caso.sChiaveEsterna), QLatin1String(caso.sColonna)},
                               {idRecord != 0 ? idRecord : static_cast<qint64>(idChiave), testo});
    }
    // The rows of the record as stored, in the order they were made.
    QStringList Righe() const {
        QSqlQuery query =
            Cnn().Esegui(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ? ORDER BY %4")
                             .arg(QLatin1String(caso.sColonna), QLatin1String(caso.sTabella),
                                  QLatin1String(caso.sChiaveEsterna), QLatin1String(caso.sChiave)),
                         {static_cast<qlonglong>(idChiave)});
        QStringList righe;
        while (query.next())
            righe << query.value(0).toString();
        return righe;
    }
    qint64 TutteLeRighe() const {
        QSqlQuery query = Cnn().Esegui(
            QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(caso.sTabella)));
        return query.next() ? query.value(0).toLongLong() : -1;
    }

    // The record's button clicked; the dialog, when it comes up, is driven by azione and then
    // closed. False when no dialog came up.
    bool Apri(const std::function<void(QDialog*)>& azione) const {
        bool bComparso = false;
        AlComparire(QLatin1String(caso.sDialogo), [&](QWidget* finestra) {
            bComparso = true;
            auto* dialogo = qobject_cast<QDialog*>(finestra);
            azione(dialogo);
            dialogo->reject();
        });
        Pulsante()->click();
        return bComparso;
    }

    const Caso& caso;
    std::unique_ptr<AmbienteRecord> ambiente;
    long id = 0;
    long idChiave = 0;
    long padre = 0;
    // The record's host and editor, of a parchment or of a unit.
    std::unique_ptr<EditoreOspitato<ucPergamena>> pergamena;
    std::unique_ptr<EditoreOspitato<ucDatiInventariali>> unita;
    EditoreRecord* editore = nullptr;
    HostEditore* ospite = nullptr;
};

// The dialog seen through its controls.
QLineEdit* Testo(const QWidget* d) {
    return Controllo<QLineEdit>(d, QStringLiteral("Text1"));
}
QPushButton* Comando(const QWidget* d, const char* nome) {
    return Controllo<QPushButton>(d, QLatin1String(nome));
}
QStringList Testi(const QWidget* d) {
    return ::Testi(Lista(d));
}
// The names of the enabled buttons, in the order of the form.
QStringList Abilitati(const QWidget* d) {
    QStringList nomi;
    for (const char* nome :
         {"cmdNuovaDenom", "cmdModifica", "cmdCancella", "cmdConferma", "cmdAnnulla"}) {
        if (Comando(d, nome)->isEnabled())
            nomi << QLatin1String(nome);
    }
    return nomi;
}
// The user's click on a row of the list.
void Clicca(const QWidget* d, int iRiga) {
    QTreeWidget* lista = Lista(d);
    QTreeWidgetItem* riga = lista->topLevelItem(iRiga);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(riga).center());
}
void Nuovo(const QWidget* d, const QString& sTesto) {
    Comando(d, "cmdNuovaDenom")->click();
    Testo(d)->setText(sTesto);
    Comando(d, "cmdConferma")->click();
}
void Cambia(const QWidget* d, int iRiga, const QString& sTesto) {
    Clicca(d, iRiga);
    Comando(d, "cmdModifica")->click();
    Testo(d)->setText(sTesto);
    Comando(d, "cmdConferma")->click();
}

void AggiungiCasi() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("dialogo");
    for (const auto& [sNome, tipo] :
         {std::pair<const char*, TipoBackend>{"sqlite", TipoBackend::SQLite},
          {"postgresql", TipoBackend::PostgreSQL}}) {
        for (const Caso* caso : {&Segnature, &CoseNotevoli}) {
            QTest::newRow(qPrintable(
                QStringLiteral("%1 %2").arg(QLatin1String(sNome), QLatin1String(caso->sDialogo))))
                << tipo << QString::fromLatin1(caso->sDialogo);
        }
    }
}

} // namespace

class TestSegnatureECoseNotevoli : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() { Sessione::Azzera(); }

    void ilDialogoSiPresentaConLeSueDidascalieEUnaListaVuota_data() { AggiungiCasi(); }
    void ilDialogoSiPresentaConLeSueDidascalieEUnaListaVuota();
    void righeAggiunteCambiateNelLoroPostoECancellateDalPulsanteDelRecord_data() { AggiungiCasi(); }
    void righeAggiunteCambiateNelLoroPostoECancellateDalPulsanteDelRecord();
    void ilDialogoMostraSoloLeRigheDelRecordNellOrdineDiCreazione_data() { AggiungiCasi(); }
    void ilDialogoMostraSoloLeRigheDelRecordNellOrdineDiCreazione();
    void unTestoVuotoChiedeDiInserirloENonScriveNulla_data() { AggiungiCasi(); }
    void unTestoVuotoChiedeDiInserirloENonScriveNulla();
    void unTestoDiSoliSpaziSiSalvaVuotoEUnaModificaPuoSvuotarlo_data() { AggiungiCasi(); }
    void unTestoDiSoliSpaziSiSalvaVuotoEUnaModificaPuoSvuotarlo();
    void apostrofiAccentiEITestiPiuLunghiSiSalvanoComeScritti_data() { AggiungiCasi(); }
    void apostrofiAccentiEITestiPiuLunghiSiSalvanoComeScritti();
    void annullaERispondereNoNonScrivonoNulla_data() { AggiungiCasi(); }
    void annullaERispondereNoNonScrivonoNulla();
    void ilPulsanteDelRecordSiColoraAlRitornoEAvvisaLOspite_data() { AggiungiCasi(); }
    void ilPulsanteDelRecordSiColoraAlRitornoEAvvisaLOspite();
    void unRecordNuovoNonRaggiungeLaSuaLista_data() { AggiungiCasi(); }
    void unRecordNuovoNonRaggiungeLaSuaLista();
    void gliErroriDelDatabaseHannoITitoliDelleListePiccole_data() { AggiungiCasi(); }
    void gliErroriDelDatabaseHannoITitoliDelleListePiccole();
};

void TestSegnatureECoseNotevoli::ilDialogoSiPresentaConLeSueDidascalieEUnaListaVuota() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    QCOMPARE(r.Pulsante()->isEnabled(), true);
    QVERIFY(!r.Acceso());

    QStringList didascalie;
    QStringList abilitati;
    int iRighe = -1;
    int iMax = -1;
    bool bTestoChiuso = false;
    QVERIFY(r.Apri([&](QDialog* d) {
        didascalie << d->windowTitle() << Lista(d)->headerItem()->text(0);
        for (const QLabel* etichetta : d->findChildren<QLabel*>()) {
            if (etichetta->buddy() == Testo(d))
                didascalie << etichetta->text();
        }
        for (const char* nome : {"cmdNuovaDenom", "cmdModifica", "cmdCancella"})
            didascalie << Comando(d, nome)->text();
        abilitati = Abilitati(d);
        iRighe = Lista(d)->topLevelItemCount();
        iMax = Testo(d)->maxLength();
        bTestoChiuso = !Testo(d)->isEnabled() && Testo(d)->text().isEmpty();
    }));
    QCOMPARE(didascalie, caso.didascalie);
    QCOMPARE(iRighe, 0);
    QCOMPARE(abilitati, QStringList({"cmdNuovaDenom"}));
    QVERIFY(bTestoChiuso);
    // No limit is the line box's own.
    QCOMPARE(iMax, caso.iMax > 0 ? caso.iMax : QLineEdit().maxLength());
    QVERIFY(r.Seam().Messaggi().isEmpty());
}

void TestSegnatureECoseNotevoli::
    righeAggiunteCambiateNelLoroPostoECancellateDalPulsanteDelRecord() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);

    QStringList dopoAggiunte, dopoCambio, dopoCancella;
    QVERIFY(r.Apri([&](QDialog* d) {
        Nuovo(d, QStringLiteral("Prima"));
        Nuovo(d, QStringLiteral("Seconda"));
        Nuovo(d, QStringLiteral("Terza"));
        dopoAggiunte = Testi(d);
        // A change keeps the row in its place.
        Cambia(d, 0, QStringLiteral("Prima, rivista"));
        dopoCambio = Testi(d);
        // The delete after the question, answered Yes.
        r.Seam().risposte = {Risposta::Si};
        Clicca(d, 1);
        Comando(d, "cmdCancella")->click();
        dopoCancella = Testi(d);
    }));
    QCOMPARE(dopoAggiunte, QStringList({"Prima", "Seconda", "Terza"}));
    QCOMPARE(dopoCambio, QStringList({"Prima, rivista", "Seconda", "Terza"}));
    QCOMPARE(dopoCancella, QStringList({"Prima, rivista", "Terza"}));
    QCOMPARE(r.Righe(), QStringList({"Prima, rivista", "Terza"}));
    UnaDomanda(r.Seam(), QStringLiteral("Cancella"),
               QStringLiteral("Sei sicuro di voler cancellare?"));

    // Opened again, the dialog reads what was written, the first row shown.
    QStringList riletti;
    QString sMostrato;
    QVERIFY(r.Apri([&](QDialog* d) {
        riletti = Testi(d);
        sMostrato = Testo(d)->text();
    }));
    QCOMPARE(riletti, QStringList({"Prima, rivista", "Terza"}));
    QCOMPARE(sMostrato, QStringLiteral("Prima, rivista"));
}

void TestSegnatureECoseNotevoli::ilDialogoMostraSoloLeRigheDelRecordNellOrdineDiCreazione() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    r.Aggiungi(QStringLiteral("  Zeta  "));
    r.Aggiungi(QStringLiteral("Alfa"));
    // A row of another record is not this record's.
    r.Aggiungi(QStringLiteral("D'altri"), r.idChiave + 1000);
    r.ospite->MostraElemento(r.id);
    QVERIFY(r.Acceso());

    QStringList testi, abilitati;
    QString sMostrato;
    QVERIFY(r.Apri([&](QDialog* d) {
        testi = Testi(d);
        abilitati = Abilitati(d);
        sMostrato = Testo(d)->text();
    }));
    // Trimmed, in the order they were made, not alphabetical.
    QCOMPARE(testi, QStringList({"Zeta", "Alfa"}));
    QCOMPARE(sMostrato, QStringLiteral("Zeta"));
    QCOMPARE(abilitati, QStringList({"cmdNuovaDenom", "cmdModifica", "cmdCancella"}));
}

void TestSegnatureECoseNotevoli::unTestoVuotoChiedeDiInserirloENonScriveNulla() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);

    QStringList abilitati;
    QString sAzione;
    QVERIFY(r.Apri([&](QDialog* d) {
        Nuovo(d, QString());
        // The entry goes on: the text box open for the text asked.
        abilitati = Abilitati(d);
        sAzione = Testo(d)->isEnabled() ? QStringLiteral("aperto") : QStringLiteral("chiuso");
    }));
    QCOMPARE(abilitati, QStringList({"cmdConferma", "cmdAnnulla"}));
    QCOMPARE(sAzione, QStringLiteral("aperto"));
    const QList<Messaggio> messaggi = r.Seam().Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTesto, QLatin1String(caso.sMessaggioVuoto));
    QCOMPARE(messaggi[0].sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(r.TutteLeRighe(), 0);
    QVERIFY(!r.Acceso());
}

void TestSegnatureECoseNotevoli::unTestoDiSoliSpaziSiSalvaVuotoEUnaModificaPuoSvuotarlo() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);

    QVERIFY(r.Apri([&](QDialog* d) {
        Nuovo(d, QStringLiteral("   "));
        Nuovo(d, QStringLiteral("  Da svuotare "));
        Cambia(d, 1, QString());
    }));
    QVERIFY(r.Seam().Messaggi().isEmpty());
    QCOMPARE(r.Righe(), QStringList({QString(), QString()}));
    // Rows, even empty ones, colour the button.
    QVERIFY(r.Acceso());
}

void TestSegnatureECoseNotevoli::apostrofiAccentiEITestiPiuLunghiSiSalvanoComeScritti() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    const QString sVirgolette = QStringLiteral("Segn. \"antica\" dell'Opera — perché è già là");
    const QString sIniezione = QStringLiteral("X'); DELETE FROM %1; --").arg(caso.sTabella);
    // The longest text the box takes (a long one where it has no limit), and one more character
    // refused by the box.
    const int iLungo = caso.iMax > 0 ? caso.iMax : 5000;
    const QString sLungo = Lungo(QStringLiteral("àèì'\"ò "), iLungo - 1) + QLatin1Char('z');

    QString sTroncato;
    QVERIFY(r.Apri([&](QDialog* d) {
        Nuovo(d, sVirgolette);
        Nuovo(d, sIniezione);
        Nuovo(d, sLungo);
        if (caso.iMax > 0) {
            Comando(d, "cmdNuovaDenom")->click();
            Testo(d)->setText(sLungo + QLatin1Char('!'));
            sTroncato = Testo(d)->text();
            Comando(d, "cmdAnnulla")->click();
        }
    }));
    QVERIFY(r.Seam().Messaggi().isEmpty());
    QCOMPARE(r.Righe(), QStringList({sVirgolette, sIniezione, sLungo}));
    if (caso.iMax > 0)
        QCOMPARE(sTroncato, sLungo);

    QStringList riletti;
    QVERIFY(r.Apri([&](QDialog* d) { riletti = Testi(d); }));
    QCOMPARE(riletti, QStringList({sVirgolette, sIniezione, sLungo}));
}

void TestSegnatureECoseNotevoli::annullaERispondereNoNonScrivonoNulla() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    r.Aggiungi(QStringLiteral("Resta"));
    r.ospite->MostraElemento(r.id);

    QStringList testi;
    QStringList abilitati;
    QVERIFY(r.Apri([&](QDialog* d) {
        // A new text given up.
        Comando(d, "cmdNuovaDenom")->click();
        Testo(d)->setText(QStringLiteral("Lasciata a metà"));
        Comando(d, "cmdAnnulla")->click();
        // A change given up.
        Clicca(d, 0);
        Comando(d, "cmdModifica")->click();
        Testo(d)->setText(QStringLiteral("Cambiata a metà"));
        Comando(d, "cmdAnnulla")->click();
        // A delete answered No.
        r.Seam().risposte = {Risposta::No};
        Clicca(d, 0);
        Comando(d, "cmdCancella")->click();
        testi = Testi(d);
        abilitati = Abilitati(d);
    }));
    QCOMPARE(testi, QStringList({"Resta"}));
    QCOMPARE(abilitati, QStringList({"cmdNuovaDenom", "cmdModifica", "cmdCancella"}));
    QCOMPARE(r.Righe(), QStringList({"Resta"}));
    QCOMPARE(r.TutteLeRighe(), 1);
    QVERIFY(r.Acceso());
}

void TestSegnatureECoseNotevoli::ilPulsanteDelRecordSiColoraAlRitornoEAvvisaLOspite() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    QSignalSpy evento(r.editore, &EditoreRecord::EventoStato);
    // The host's delete follows the record again when it hears of the dialog's end.
    r.ospite->cmdCancella->setEnabled(false);
    QVERIFY(!r.Acceso());

    QVERIFY(r.Apri([&](QDialog* d) { Nuovo(d, QStringLiteral("Una")); }));
    QVERIFY(r.Acceso());
    QCOMPARE(evento.count(), 1);
    QCOMPARE(r.ospite->cmdCancella->isEnabled(), r.editore->OkCancella);

    r.Seam().risposte = {Risposta::Si};
    QVERIFY(r.Apri([&](QDialog* d) {
        Clicca(d, 0);
        Comando(d, "cmdCancella")->click();
    }));
    QVERIFY(!r.Acceso());
    QCOMPARE(evento.count(), 2);
    QCOMPARE(r.TutteLeRighe(), 0);
}

void TestSegnatureECoseNotevoli::unRecordNuovoNonRaggiungeLaSuaLista() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    QVERIFY(r.Pulsante()->isEnabled());
    // While a new record is written the button works not: it is for a record shown.
    r.ospite->Nuovo();
    QVERIFY(!r.Pulsante()->isEnabled());
    r.ospite->Annulla();
    r.ospite->MostraElemento(r.id);
    QVERIFY(r.Pulsante()->isEnabled());
}

void TestSegnatureECoseNotevoli::gliErroriDelDatabaseHannoITitoliDelleListePiccole() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, dialogo);
    RICHIEDI_BACKEND(backend);
    const Caso& caso = CasoDi(dialogo);
    RecordInOspite r(backend, caso);
    r.Aggiungi(QStringLiteral("Resta"));
    const QString sTabella = QLatin1String(caso.sTabella);
    const QString sProvvisoria = sTabella + QStringLiteral("Via");

    // The table taken away while the dialog is open, and given back before it closes (the
    // record reads it then): the confirm and the delete fail.
    const auto via = [&] {
        r.Cnn().Esegui(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(sTabella, sProvvisoria));
    };
    const auto indietro = [&] {
        r.Cnn().Esegui(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(sProvvisoria, sTabella));
    };
    QStringList testi;
    QVERIFY(r.Apri([&](QDialog* d) {
        via();
        Nuovo(d, QStringLiteral("Non scritta"));
        Comando(d, "cmdAnnulla")->click();
        r.Seam().risposte = {Risposta::Si};
        Clicca(d, 0);
        Comando(d, "cmdCancella")->click();
        testi = Testi(d);
        indietro();
    }));
    // The load with the table away.
    r.Seam().risposte.clear();
    via();
    QVERIFY(r.Apri([&](QDialog*) { indietro(); }));

    QCOMPARE(TitoliDegliErrori(r.Seam()), QStringList({"Errore A2", "Errore A1", "Errore A3"}));
    // The insert's failure is told by the database's own source; the others by the dialog's name.
    for (const Messaggio& m : Errori(r.Seam())) {
        if (m.sTitolo != QLatin1String("Errore A2"))
            QVERIFY2(m.sTesto.startsWith(QLatin1String(caso.sDialogo) + QLatin1Char('\n')),
                     qPrintable(m.sTesto));
    }
    // Nothing written, the row left in the list and in its table.
    QCOMPARE(testi, QStringList({"Resta"}));
    QCOMPARE(r.Righe(), QStringList({"Resta"}));
}

QTEST_MAIN(TestSegnatureECoseNotevoli)
#include "tst_segnatureecosenotevoli.moc"
