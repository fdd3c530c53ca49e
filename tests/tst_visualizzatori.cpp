// The viewers of links, on SQLite and on PostgreSQL: the list and its keys, cmdCancella enabled by
// the count and its question, the outcome given only when the last link has gone, the role with
// its 32 characters and its Null, a link whose other side is gone, a link deleted meanwhile by
// another workstation, a missing file of roles, the failure titles of each family, texts with
// quotes and accents, the producers' three tabs, the complessi of a unit held in its own row,
// the warning of a finding aid already linked, the parchments' seals with frmSelInv over them,
// and the road from a viewer to the dialog that adds links and back to a fresh viewer.

#include "links/VisualizzatoriLink.h"
#include "programma/Registro.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteLink.h"
#include "Modali.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

namespace {

using Finestra = std::unique_ptr<QDialog>;

// A viewer made by name and shown, as its opener would.
Finestra Mostra(const QString& sNome, const QVariantMap& argomenti = {}) {
    Finestra finestra(Visualizzatore(sNome, argomenti));
    if (finestra) {
        finestra->show();
    }
    return finestra;
}

// A parchment under a finding aid under an institute: the finding aid's element, the
// parchment's element and its key in Pergamene.
struct Pergamena {
    long inventario, elemento, id;
};

Pergamena NuovaPergamena(const AmbienteLink& a, const QString& sSegnatura = QStringLiteral("P1")) {
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long pergamena = a.Crea("05", sSegnatura, inventario);
    return {inventario, pergamena, a.Dettaglio("Pergamene", "ID_Pergamena", pergamena)};
}

// A seal attached to a new parchment: its element and its key in Sigilli.
struct Sigillo {
    Pergamena pergamena;
    long elemento, id;
};

Sigillo NuovoSigillo(const AmbienteLink& a) {
    const Pergamena pergamena = NuovaPergamena(a);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), pergamena.elemento);
    return {pergamena, sigillo, a.Dettaglio("Sigilli", "ID_Sigillo", sigillo)};
}

QString Ripeti(QChar c, int n) {
    return QString(n, c);
}

QLineEdit* TestoRuolo(const QWidget* finestra) {
    return Controllo<QComboBox>(finestra, QStringLiteral("cmbRuolo"))->lineEdit();
}

} // namespace

class TestVisualizzatori : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The dialogs by name as the program registers them.
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() {
        for (const QString& sNome :
             {QStringLiteral("frmNuovoInventario"), QStringLiteral("frmSelInv"),
              QStringLiteral("frmNuovoComplesso")}) {
            Dialoghi::Rimuovi(sNome);
        }
        Sessione::Azzera();
    }

    void laListaVuotaLasciaCancellaDisabilitato_data() { AggiungiBackend(); }
    void laListaVuotaLasciaCancellaDisabilitato();
    void laCancellazioneChiedeConfermaELUltimaVoceDisabilitaCancella_data() { AggiungiBackend(); }
    void laCancellazioneChiedeConfermaELUltimaVoceDisabilitaCancella();
    void unRuoloDi32CaratteriPassaIl33EsimoVieneTolto_data() { AggiungiBackend(); }
    void unRuoloDi32CaratteriPassaIl33EsimoVieneTolto();
    void unRuoloLasciatoVuotoVieneSalvatoComeNull_data() { AggiungiBackend(); }
    void unRuoloLasciatoVuotoVieneSalvatoComeNull();
    void unLinkIlCuiAltroLatoNonCeNonHaTestoMaTieneIlSuoPosto_data() { AggiungiBackend(); }
    void unLinkIlCuiAltroLatoNonCeNonHaTestoMaTieneIlSuoPosto();
    void unLinkCancellatoDaUnAltraPostazioneNonSiTrovaELaVoceResta_data() { AggiungiBackend(); }
    void unLinkCancellatoDaUnAltraPostazioneNonSiTrovaELaVoceResta();
    void senzaIlFileDeiRuoliIlCaricamentoMostraLErrore_data() { AggiungiBackend(); }
    void senzaIlFileDeiRuoliIlCaricamentoMostraLErrore();
    void iFallimentiHannoIlTitoloDellaFamigliaDelVisualizzatore();
    void testiConApostrofiEAccentiSiMostranoESiSalvano_data() { AggiungiBackend(); }
    void testiConApostrofiEAccentiSiMostranoESiSalvano();
    void iProduttoriStannoNelleTreSchedeConIlLoroTesto_data() { AggiungiBackend(); }
    void iProduttoriStannoNelleTreSchedeConIlLoroTesto();
    void ilComplessoDiUnUnitaStaNellaSuaRigaESiSlegaLi_data() { AggiungiBackend(); }
    void ilComplessoDiUnUnitaStaNellaSuaRigaESiSlegaLi();
    void unInventarioBaseGiaLegatoAvverteENonProsegue_data() { AggiungiBackend(); }
    void unInventarioBaseGiaLegatoAvverteENonProsegue();
    void iSigilliDellaPergamenaRestanoApertiSottoFrmSelInv_data() { AggiungiBackend(); }
    void iSigilliDellaPergamenaRestanoApertiSottoFrmSelInv();
    void proseguireApreIlDialogoEPoiUnVisualizzatoreNuovo_data() { AggiungiBackend(); }
    void proseguireApreIlDialogoEPoiUnVisualizzatoreNuovo();
    void proseguireVersoUnDialogoCheNonCeNonMostraNulla_data() { AggiungiBackend(); }
    void proseguireVersoUnDialogoCheNonCeNonMostraNulla();
    void unaCancellazioneFallitaHaIlTitoloDellaFamigliaELaVoceResta_data() { AggiungiBackend(); }
    void unaCancellazioneFallitaHaIlTitoloDellaFamigliaELaVoceResta();
    void unRuoloRifiutatoDalDatabaseMostraNumeroEDescrizione_data() { AggiungiBackend(); }
    void unRuoloRifiutatoDalDatabaseMostraNumeroEDescrizione();
    void lePergameneDelComplessoSonoLAltraListaDelloStessoVisualizzatore_data() {
        AggiungiBackend();
    }
    void lePergameneDelComplessoSonoLAltraListaDelloStessoVisualizzatore();
    void escChiudeIlVisualizzatore_data() { AggiungiBackend(); }
    void escChiudeIlVisualizzatore();
};

void TestVisualizzatori::laListaVuotaLasciaCancellaDisabilitato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    Sessione::lIdElementoLink = pg.id;
    Sessione::sDenomElementoLink = QStringLiteral("P1");
    Finestra f = Mostra(QStringLiteral("frmMostraLinkAnt"));
    QCOMPARE(Lista(f.get())->topLevelItemCount(), 0);
    QVERIFY(!Bottone(f.get(), "cmdCancella")->isEnabled());
    QVERIFY(!Bottone(f.get(), "cmdModificaRuolo")->isEnabled());
    QVERIFY(Bottone(f.get(), "cmdNuovoCol")->isEnabled());
    QCOMPARE(Bottone(f.get(), "cmdCancella")->text(), QStringLiteral("Cancella collegamento"));
    QCOMPARE(Bottone(f.get(), "cmdNuovoCol")->text(), QStringLiteral("Nuovo collegamento"));
    QCOMPARE(f->windowTitle(), QStringLiteral("Collegamenti alle Persone"));
    QCOMPARE(Controllo<QLineEdit>(f.get(), QStringLiteral("Text1"))->text(), QStringLiteral("P1"));
    QCOMPARE(a.seam.Messaggi().size(), 0);

    // With tabs: each list empty, the delete off on each tab.
    Sessione::lIdComplesso = a.Crea("02", QStringLiteral("Fondo"));
    Finestra cs = Mostra(QStringLiteral("frmMostraLinkCS"));
    auto* schede = Controllo<QTabWidget>(cs.get(), QStringLiteral("SSTab1"));
    for (int i = 0; i < 3; ++i) {
        schede->setCurrentIndex(i);
        QCOMPARE(Lista(cs.get(), QStringLiteral("lvwDB(%1)").arg(i))->topLevelItemCount(), 0);
        QVERIFY(!Bottone(cs.get(), "cmdCancella")->isEnabled());
    }
}

void TestVisualizzatori::laCancellazioneChiedeConfermaELUltimaVoceDisabilitaCancella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long primo = a.Crea("03", QStringLiteral("Primo inventario"), istituto);
    const long secondo = a.Crea("03", QStringLiteral("Secondo inventario"), istituto);
    a.Lega(fondo, primo);
    a.Lega(fondo, secondo);
    Sessione::lIdComplesso = fondo;
    Sessione::iEsitoLinkInv = 0;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkCD"));
    QTreeWidget* lista = Lista(f.get());
    QCOMPARE(Chiavi(lista), (QList<qint64>{primo, secondo}));
    QCOMPARE(f->windowTitle(), QStringLiteral("Collegamenti agli strumenti di ricerca"));
    QCOMPARE(Controllo<QLabel>(f.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Complesso documentario selezionato"));
    QPushButton* cmdCancella = Bottone(f.get(), "cmdCancella");
    QVERIFY(cmdCancella->isEnabled());

    // No: nothing changes.
    a.seam.risposte = {Risposta::No};
    cmdCancella->click();
    const Messaggio domanda = a.seam.Messaggi().value(0);
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella"));
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare?"));
    QCOMPARE(domanda.icona, Icona::Domanda);
    QCOMPARE(domanda.pulsanti, Pulsanti::SiNo);
    QCOMPARE(lista->topLevelItemCount(), 2);
    QCOMPARE(
        a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_Elemento = ?"), {Id(fondo)}),
        2);

    // The chosen one goes; one is left, still to delete, and the opener hears nothing yet.
    lista->setCurrentItem(lista->topLevelItem(1));
    a.seam.risposte = {Risposta::Si};
    cmdCancella->click();
    QCOMPARE(Chiavi(lista), QList<qint64>{primo});
    QCOMPARE(lista->currentItem(), lista->topLevelItem(0));
    QVERIFY(cmdCancella->isEnabled());
    QCOMPARE(Sessione::iEsitoLinkInv, 0);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_Elemento = ? AND "
                                    "ID_ElementoLink = ?"),
                     {Id(fondo), Id(secondo)}),
             0);

    // The last one: the delete goes off and the outcome is 2.
    a.seam.risposte = {Risposta::Si};
    cmdCancella->click();
    QCOMPARE(lista->topLevelItemCount(), 0);
    QVERIFY(!cmdCancella->isEnabled());
    QCOMPARE(Sessione::iEsitoLinkInv, 2);
    QCOMPARE(
        a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_Elemento = ?"), {Id(fondo)}),
        0);
    QCOMPARE(a.seam.Messaggi().size(), 3);
}

void TestVisualizzatori::unRuoloDi32CaratteriPassaIl33EsimoVieneTolto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    const long riga = a.PersonaDiPergamena(pg.id, a.Antroponimo(QStringLiteral("Rolando")),
                                           QStringLiteral("Autore"));
    Sessione::lIdElementoLink = pg.id;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkAnt"));
    QTreeWidget* lista = Lista(f.get());
    QCOMPARE(Testi(lista, 0), QStringList{QStringLiteral("Rolando")});
    QCOMPARE(Testi(lista, 1), QStringList{QStringLiteral("Autore")});
    QCOMPARE(Chiavi(lista), QList<qint64>{riga});
    auto* cmbRuolo = Controllo<QComboBox>(f.get(), QStringLiteral("cmbRuolo"));
    // The roles of the file, with their codes; the role of the chosen link shown.
    QVERIFY(cmbRuolo->count() > 2);
    QCOMPARE(cmbRuolo->itemText(1), QStringLiteral("Destinatario"));
    QCOMPARE(cmbRuolo->itemData(1).toInt(), 2);
    QCOMPARE(cmbRuolo->currentText(), QStringLiteral("Autore"));
    QVERIFY(!cmbRuolo->isEnabled());
    QVERIFY(!Bottone(f.get(), "cmdConferma")->isEnabled());

    Bottone(f.get(), "cmdModificaRuolo")->click();
    QVERIFY(cmbRuolo->isEnabled());
    QVERIFY(Controllo<QWidget>(f.get(), QStringLiteral("Frame1"))->isEnabled());
    QVERIFY(!Bottone(f.get(), "cmdCancella")->isEnabled());
    QVERIFY(!Bottone(f.get(), "cmdNuovoCol")->isEnabled());
    QVERIFY(!Bottone(f.get(), "cmdModificaRuolo")->isEnabled());
    QVERIFY(Bottone(f.get(), "cmdConferma")->isEnabled());
    QVERIFY(Bottone(f.get(), "cmdAnnulla")->isEnabled());
    QLineEdit* testo = TestoRuolo(f.get());
    testo->clear();
    QTest::keyClicks(testo, Ripeti(QLatin1Char('r'), 32));
    QCOMPARE(a.seam.Messaggi().size(), 0);
    QTest::keyClick(testo, Qt::Key_X);
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio avviso = a.seam.Messaggi().constFirst();
    QCOMPARE(avviso.sTesto, QStringLiteral("Il campo Ruolo prevede un massimo di 32 caratteri!"));
    QCOMPARE(avviso.icona, Icona::Esclamazione);
    QCOMPARE(testo->text(), Ripeti(QLatin1Char('r'), 32));

    Bottone(f.get(), "cmdConferma")->click();
    QCOMPARE(a.Valore(QStringLiteral("SELECT Ruolo FROM PGAntroponimi WHERE ID_PGAntroponimo = ?"),
                      {Id(riga)})
                 .toString(),
             Ripeti(QLatin1Char('r'), 32));
    QCOMPARE(Testi(lista, 1), QStringList{Ripeti(QLatin1Char('r'), 32)});
    QVERIFY(!cmbRuolo->isEnabled());
    QVERIFY(Bottone(f.get(), "cmdCancella")->isEnabled());
    QVERIFY(!Bottone(f.get(), "cmdConferma")->isEnabled());
}

void TestVisualizzatori::unRuoloLasciatoVuotoVieneSalvatoComeNull() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Sigillo sg = NuovoSigillo(a);
    const long riga = a.TitolareDiSigillo(sg.id, a.Titolare(QStringLiteral("Capitolo")),
                                          QStringLiteral("Titolare"));
    Sessione::lIdElementoLink = sg.id;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkTitolari"));
    QCOMPARE(f->windowTitle(), QStringLiteral("Collegamenti ai titolari"));
    QCOMPARE(Controllo<QLabel>(f.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Sigillo selezionato"));
    QTreeWidget* lista = Lista(f.get());
    QCOMPARE(Testi(lista, 1), QStringList{QStringLiteral("Titolare")});

    // Annulla leaves the role as it was.
    Bottone(f.get(), "cmdModificaRuolo")->click();
    TestoRuolo(f.get())->setText(QStringLiteral("Altro"));
    Bottone(f.get(), "cmdAnnulla")->click();
    QCOMPARE(TestoRuolo(f.get())->text(), QStringLiteral("Titolare"));
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Ruolo FROM SGTitolari WHERE ID_SGTitolare = ?"), {Id(riga)})
            .toString(),
        QStringLiteral("Titolare"));

    Bottone(f.get(), "cmdModificaRuolo")->click();
    TestoRuolo(f.get())->clear();
    Bottone(f.get(), "cmdConferma")->click();
    QVERIFY(
        a.Valore(QStringLiteral("SELECT Ruolo FROM SGTitolari WHERE ID_SGTitolare = ?"), {Id(riga)})
            .isNull());
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_SGTitolare = ? AND "
                                    "Ruolo IS NULL"),
                     {Id(riga)}),
             1);
    QCOMPARE(Testi(lista, 1), QStringList{QString()});
    QCOMPARE(a.seam.Messaggi().size(), 0);
}

void TestVisualizzatori::unLinkIlCuiAltroLatoNonCeNonHaTestoMaTieneIlSuoPosto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long sparito = inventario + 500000;
    a.Lega(fondo, inventario);
    a.Lega(fondo, sparito);
    Sessione::lIdComplesso = fondo;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkCD"));
    QTreeWidget* lista = Lista(f.get());
    QCOMPARE(Chiavi(lista), (QList<qint64>{inventario, sparito}));
    const QString sInventario =
        a.Valore(QStringLiteral("SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = ?"),
                 {Id(inventario)})
            .toString();
    QVERIFY(sInventario.endsWith(QLatin1String("Inventario")));
    QCOMPARE(Testi(lista), (QStringList{sInventario, QString()}));
    QCOMPARE(a.seam.Messaggi().size(), 0);

    // It is deleted like any other.
    lista->setCurrentItem(lista->topLevelItem(1));
    a.seam.risposte = {Risposta::Si};
    Bottone(f.get(), "cmdCancella")->click();
    QCOMPARE(Chiavi(lista), QList<qint64>{inventario});
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_ElementoLink = ?"),
                     {Id(sparito)}),
             0);
}

void TestVisualizzatori::unLinkCancellatoDaUnAltraPostazioneNonSiTrovaELaVoceResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    const long luogo = a.Toponimo(QStringLiteral("Lucca"));
    a.LuogoDi("PGToponimi", "ID_Pergamena", pg.id, luogo);
    Sessione::lIdElementoLink = pg.id;
    Sessione::iChiamanteToponimi = 1;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkTopo"));
    QCOMPARE(Controllo<QLabel>(f.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Pergamena selezionata"));
    QTreeWidget* lista = Lista(f.get());
    QCOMPARE(Chiavi(lista), QList<qint64>{luogo});
    a.Cnn().Esegui(QStringLiteral("DELETE FROM PGToponimi WHERE ID_Pergamena = ?"), {Id(pg.id)});
    a.seam.risposte = {Risposta::Si};
    Bottone(f.get(), "cmdCancella")->click();
    QCOMPARE(Chiavi(lista), QList<qint64>{luogo});
    QVERIFY(Bottone(f.get(), "cmdCancella")->isEnabled());
    // Only the question was asked: a link not found is no failure.
    QCOMPARE(a.seam.Messaggi().size(), 1);
}

void TestVisualizzatori::senzaIlFileDeiRuoliIlCaricamentoMostraLErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    a.PersonaDiPergamena(pg.id, a.Antroponimo(QStringLiteral("Gualando")), QVariant());
    a.cartella.Rimuovi(QStringLiteral("RuoliPGANT.txt"));
    Sessione::lIdElementoLink = pg.id;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkAnt"));
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio errore = a.seam.Messaggi().constFirst();
    QCOMPARE(errore.sTitolo, QStringLiteral("Errore L2"));
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY2(errore.sTesto.contains(QStringLiteral("RuoliPGANT.txt")), qPrintable(errore.sTesto));
    // The links are shown all the same, the role list is empty.
    QCOMPARE(Testi(Lista(f.get())), QStringList{QStringLiteral("Gualando")});
    QCOMPARE(Controllo<QComboBox>(f.get(), QStringLiteral("cmbRuolo"))->count(), 0);
}

void TestVisualizzatori::iFallimentiHannoIlTitoloDellaFamigliaDelVisualizzatore() {
    // Without a connection every load fails: the box's title tells the viewer's family.
    CartellaProva cartella;
    PiattaformaScriptata seam;
    const QMap<QString, QString> titoli = {
        {QStringLiteral("frmMostraLinkCS"), QStringLiteral("Errore L2")},
        {QStringLiteral("frmMostraLinkAnt"), QStringLiteral("Errore L2")},
        {QStringLiteral("frmMostraLinkTopo"), QStringLiteral("Errore L2")},
        {QStringLiteral("frmMostraLinkDIAnt"), QStringLiteral("Errore L2")},
        {QStringLiteral("frmMostraLinkTitolari"), QStringLiteral("Errore L2")},
        {QStringLiteral("frmMostraLinkCD"), QStringLiteral("Errore I2")},
        {QStringLiteral("frmMostraLinkSCD"), QStringLiteral("Errore I2")},
        {QStringLiteral("frmMostraLinkTitSG"), QStringLiteral("Errore I2")},
        {QStringLiteral("frmMostraLinkTopALL"), QStringLiteral("Errore I2")},
        {QStringLiteral("frmMostraLinkAntALL"), QStringLiteral("Errore I2")},
        {QStringLiteral("frmMostraLinkInv"), QStringLiteral("Errore M2")},
        {QStringLiteral("frmMostraLinkPGS"), Sessione::TitoloProgramma},
    };
    QCOMPARE(VisualizzatoriLink::Nomi().size(), 12);
    for (const QString& sNome : VisualizzatoriLink::Nomi()) {
        seam.Svuota();
        Finestra f = Mostra(sNome);
        QVERIFY2(f != nullptr, qPrintable(sNome));
        QCOMPARE(f->objectName(), sNome);
        const QList<Messaggio> messaggi = seam.Messaggi();
        // The role viewers add the box of their missing file (none in this folder).
        QVERIFY2(!messaggi.isEmpty(), qPrintable(sNome));
        QCOMPARE(messaggi.constFirst().sTitolo, titoli.value(sNome));
        QCOMPARE(messaggi.constFirst().icona, Icona::Critica);
        QVERIFY(!Bottone(f.get(), "cmdCancella")->isEnabled());
    }
    QVERIFY(Visualizzatore(QStringLiteral("frmMostraLinkNessuno")) == nullptr);
}

void TestVisualizzatori::testiConApostrofiEAccentiSiMostranoESiSalvano() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a, QStringLiteral("Sant'Anna «così»"));
    a.Cnn().Esegui(QStringLiteral("UPDATE Pergamene SET Segnatura = ? WHERE ID_Pergamena = ?"),
                   {QStringLiteral("Sant'Anna «così»"), Id(pg.id)});
    const QString sInventario =
        a.Valore(QStringLiteral("SELECT DenomCompleta FROM Inventari WHERE ID_Elemento = ?"),
                 {Id(pg.inventario)})
            .toString();
    const QString sNome = QStringLiteral("Niccolò d'Arezzo \"il vecchio\"");
    const long riga = a.PersonaDiPergamena(pg.id, a.Antroponimo(sNome), QVariant());
    Sessione::lIdElementoLink = pg.id;
    Sessione::sDenomElementoLink = QStringLiteral("Sant'Anna «così»");
    Finestra f = Mostra(QStringLiteral("frmMostraLinkAnt"));
    QCOMPARE(Testi(Lista(f.get())), QStringList{sNome});
    QCOMPARE(Controllo<QLineEdit>(f.get(), QStringLiteral("Text1"))->text(),
             QStringLiteral("Sant'Anna «così»"));
    Bottone(f.get(), "cmdModificaRuolo")->click();
    const QString sRuolo = QStringLiteral("Testimone d'ufficio, àèìòù");
    TestoRuolo(f.get())->setText(sRuolo);
    Bottone(f.get(), "cmdConferma")->click();
    QCOMPARE(a.Valore(QStringLiteral("SELECT Ruolo FROM PGAntroponimi WHERE ID_PGAntroponimo = ?"),
                      {Id(riga)})
                 .toString(),
             sRuolo);
    QCOMPARE(Testi(Lista(f.get()), 1), QStringList{sRuolo});

    // From the person's side: its parchment under the finding aid.
    Sessione::lIdSoggetto = a.Valore(QStringLiteral("SELECT ID_Antroponimo FROM PGAntroponimi "
                                                    "WHERE ID_PGAntroponimo = ?"),
                                     {Id(riga)})
                                .toLongLong();
    Sessione::sTipoLink = QStringLiteral("0");
    Finestra tutti = Mostra(QStringLiteral("frmMostraLinkAntALL"));
    QCOMPARE(tutti->windowTitle(), QStringLiteral("Collegamenti alle pergamene"));
    QCOMPARE(Testi(Lista(tutti.get())),
             QStringList{sInventario + QStringLiteral(" > Sant'Anna «così»")});
    QCOMPARE(Chiavi(Lista(tutti.get())), QList<qint64>{riga});
    a.seam.risposte = {Risposta::Si};
    Bottone(tutti.get(), "cmdCancella")->click();
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi"), {}), 0);
}

void TestVisualizzatori::iProduttoriStannoNelleTreSchedeConIlLoroTesto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long fondo = a.Crea("02", QStringLiteral("Fondo"));
    const long idCD = a.Dettaglio("ComplessiDoc", "ID_ComplessoDoc", fondo);
    const long persona = a.Soggetto(QStringLiteral("Rossi Mario"), "P");
    const long famiglia = a.Soggetto(QStringLiteral("Guinigi"), "F");
    const long ente = a.Soggetto(QStringLiteral("Comune di Lucca"), "E");
    a.Cnn().Esegui(QStringLiteral("UPDATE Persone SET LuogoNascita = 'Lucca', DataNascita = "
                                  "18010203 WHERE ID_Soggetto = ?"),
                   {Id(persona)});
    a.Cnn().Esegui(QStringLiteral("UPDATE Famiglie SET Titoli = 'conti' WHERE ID_Soggetto = ?"),
                   {Id(famiglia)});
    for (const long sog : {persona, famiglia, ente}) {
        a.ProduttoreDi("ComplessiDocSoggetti", "ID_ComplessoDoc", idCD, sog);
    }
    Sessione::lIdComplesso = fondo;
    Sessione::sDenomComplesso = QStringLiteral("Fondo");
    Sessione::sTipoLink = QStringLiteral("0");
    Sessione::iEsitoLinkSogg = 0;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkCS"));
    QCOMPARE(f->windowTitle(), QStringLiteral("Collegamenti ai Soggetti produttori"));
    QCOMPARE(Controllo<QLabel>(f.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Complesso documentario selezionato"));
    auto* schede = Controllo<QTabWidget>(f.get(), QStringLiteral("SSTab1"));
    QCOMPARE(schede->tabText(0), QStringLiteral("  Persone"));
    QCOMPARE(schede->tabText(1), QStringLiteral("  Famiglie"));
    QCOMPARE(schede->tabText(2), QStringLiteral("  Enti"));
    QCOMPARE(Lista(f.get(), QStringLiteral("lvwDB(0)"))->headerItem()->text(0),
             QStringLiteral("Cognome e Nome (Nascita - Morte)"));
    QCOMPARE(Lista(f.get(), QStringLiteral("lvwDB(2)"))->headerItem()->text(0),
             QStringLiteral("Denominazione, Sede (Estremi cronologici)"));
    QCOMPARE(Chiavi(Lista(f.get(), QStringLiteral("lvwDB(0)"))), QList<qint64>{persona});
    QCOMPARE(Chiavi(Lista(f.get(), QStringLiteral("lvwDB(1)"))), QList<qint64>{famiglia});
    QCOMPARE(Chiavi(Lista(f.get(), QStringLiteral("lvwDB(2)"))), QList<qint64>{ente});
    QCOMPARE(Testi(Lista(f.get(), QStringLiteral("lvwDB(1)"))),
             QStringList{QStringLiteral("Guinigi, conti ()")});
    QVERIFY(Testi(Lista(f.get(), QStringLiteral("lvwDB(0)")))
                .constFirst()
                .startsWith(QStringLiteral("Rossi Mario")));
    QVERIFY(Testi(Lista(f.get(), QStringLiteral("lvwDB(0)")))
                .constFirst()
                .contains(QStringLiteral("03/02/1801")));

    // Deleting on the family tab: the others stay, and so no outcome yet.
    schede->setCurrentIndex(1);
    a.seam.risposte = {Risposta::Si};
    Bottone(f.get(), "cmdCancella")->click();
    QCOMPARE(Lista(f.get(), QStringLiteral("lvwDB(1)"))->topLevelItemCount(), 0);
    QVERIFY(!Bottone(f.get(), "cmdCancella")->isEnabled());
    QCOMPARE(Sessione::iEsitoLinkSogg, 0);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM ComplessiDocSoggetti WHERE "
                                    "ID_ComplessoDoc = ?"),
                     {Id(idCD)}),
             2);
    for (const int i : {0, 2}) {
        schede->setCurrentIndex(i);
        QVERIFY(Bottone(f.get(), "cmdCancella")->isEnabled());
        a.seam.risposte = {Risposta::Si};
        Bottone(f.get(), "cmdCancella")->click();
    }
    QCOMPARE(Sessione::iEsitoLinkSogg, 2);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM ComplessiDocSoggetti"), {}), 0);
}

void TestVisualizzatori::ilComplessoDiUnUnitaStaNellaSuaRigaESiSlegaLi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long unita = a.Crea("07", QStringLiteral("Unità"), inventario);
    a.Cnn().Esegui(QStringLiteral("UPDATE DatiInventariali SET Id_ElemComplDoc = ? WHERE "
                                  "ID_Elemento = ?"),
                   {Id(fondo), Id(unita)});
    // A row of Links is no tie of the unit.
    a.Lega(a.Crea("02", QStringLiteral("Altro fondo"), istituto), unita);
    Sessione::iChiamanteInv = 4;
    Sessione::lIdInventario = unita;
    Sessione::lIdElemLinkInv = fondo;
    Sessione::iEsitoLinkCD = 0;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkInv"));
    QCOMPARE(Controllo<QLabel>(f.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Inventario base selezionato"));
    QCOMPARE(Chiavi(Lista(f.get())), QList<qint64>{fondo});
    a.seam.risposte = {Risposta::Si};
    Bottone(f.get(), "cmdCancella")->click();
    QCOMPARE(Lista(f.get())->topLevelItemCount(), 0);
    QCOMPARE(Sessione::lIdElemLinkInv, 0);
    QCOMPARE(Sessione::iEsitoLinkCD, 2);
    QCOMPARE(a.Valore(QStringLiteral("SELECT Id_ElemComplDoc FROM DatiInventariali WHERE "
                                     "ID_Elemento = ?"),
                      {Id(unita)})
                 .toLongLong(),
             0);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_ElementoLink = ?"),
                     {Id(unita)}),
             1);

    // The other callers read Links; the label follows the caller.
    const QStringList etichette = {QStringLiteral("Strumento di ricerca selezionato"),
                                   QStringLiteral("Pergamena selezionata"),
                                   QStringLiteral("Inventario base selezionato")};
    a.Lega(fondo, inventario);
    for (int iChiamante = 1; iChiamante <= 3; ++iChiamante) {
        Sessione::iChiamanteInv = iChiamante;
        Sessione::lIdInventario = inventario;
        Finestra altro = Mostra(QStringLiteral("frmMostraLinkInv"));
        QCOMPARE(Controllo<QLabel>(altro.get(), QStringLiteral("Label1"))->text(),
                 etichette.at(iChiamante - 1));
        QCOMPARE(Chiavi(Lista(altro.get())), QList<qint64>{fondo});
        QCOMPARE(Testi(Lista(altro.get())),
                 QStringList{a.Valore(QStringLiteral("SELECT DenomCompleta FROM ComplessiDoc "
                                                     "WHERE ID_Elemento = ?"),
                                      {Id(fondo)})
                                 .toString()});
    }
}

void TestVisualizzatori::unInventarioBaseGiaLegatoAvverteENonProsegue() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    a.Lega(fondo, inventario);
    int iAperture = 0;
    Dialoghi::Registra(QStringLiteral("frmNuovoComplesso"),
                       [&](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                           ++iAperture;
                           auto* d = new QDialog(genitore);
                           QTimer::singleShot(0, d, &QDialog::reject);
                           return d;
                       });
    Sessione::iChiamanteInv = 1;
    Sessione::lIdInventario = inventario;
    bool bViewerAperto = false;
    AlComparire(QStringLiteral("frmMostraLinkInv"), [&](QWidget* w) {
        bViewerAperto = true;
        QCOMPARE(w->property("bInventarioBase").toBool(), true);
        Bottone(w, "cmdNuovoCol")->click();
        QVERIFY(w->isVisible());
        static_cast<QDialog*>(w)->reject();
    });
    Dialoghi::Apri(QStringLiteral("frmMostraLinkInv"), nullptr,
                   {{QStringLiteral("bInventarioBase"), true}});
    Dialoghi::Rimuovi(QStringLiteral("frmNuovoComplesso"));
    QVERIFY(bViewerAperto);
    QCOMPARE(iAperture, 0);
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio avviso = a.seam.Messaggi().constFirst();
    QCOMPARE(avviso.sTitolo, QStringLiteral("Tabellion Archivista"));
    QCOMPARE(avviso.sTesto, QStringLiteral("ATTENZIONE: il presente modulo è già legato ad un "
                                           "Complesso documentario!"));

    // Without a complesso, or when it is not the base finding aid, it goes on.
    auto* inv = new frmMostraLinkInv;
    const Finestra f(inv);
    inv->bInventarioBase = false;
    inv->MostraCollegamenti();
    inv->show();
    Bottone(inv, "cmdNuovoCol")->click();
    QCOMPARE(inv->property(Dialoghi::ProprietaProsegui).toString(),
             QStringLiteral("frmNuovoComplesso"));
}

void TestVisualizzatori::iSigilliDellaPergamenaRestanoApertiSottoFrmSelInv() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    const long staccato = a.Crea("06", QStringLiteral("Sigillo staccato"), pg.inventario);
    a.Cnn().Esegui(
        QStringLiteral("UPDATE Sigilli SET Identificativo = 'SG 1' WHERE ID_Elemento = ?"),
        {Id(staccato)});
    const long secondo = a.Crea("06", QStringLiteral("Secondo sigillo"), pg.inventario);
    a.Cnn().Esegui(
        QStringLiteral("UPDATE Sigilli SET Identificativo = 'SG 2' WHERE ID_Elemento = ?"),
        {Id(secondo)});
    a.Lega(staccato, pg.elemento);
    // frmSelInv adds a link while the viewer waits under it.
    Dialoghi::Registra(QStringLiteral("frmSelInv"),
                       [&](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                           a.Lega(secondo, pg.elemento);
                           Sessione::bOkLinkSelInv = true;
                           auto* d = new QDialog(genitore);
                           QTimer::singleShot(0, d, &QDialog::accept);
                           return d;
                       });
    const QVariantMap argomenti = {{QStringLiteral("lIdSigillo"), qlonglong(0)},
                                   {QStringLiteral("lIdPergamena"), qlonglong(pg.elemento)},
                                   {QStringLiteral("sDenominazione"), QStringLiteral("P1")}};
    Finestra f = Mostra(QStringLiteral("frmMostraLinkPGS"), argomenti);
    QCOMPARE(f->windowTitle(), QStringLiteral("Collegamenti ai Sigilli Staccati"));
    QCOMPARE(Testi(Lista(f.get())), QStringList{QStringLiteral("SG 1")});
    Bottone(f.get(), "cmdNuovoCol")->click();
    QVERIFY(f->isVisible());
    QCOMPARE(Chiavi(Lista(f.get())), (QList<qint64>{staccato, secondo}));
    a.seam.risposte = {Risposta::Si};
    Bottone(f.get(), "cmdCancella")->click();
    QCOMPARE(a.seam.Messaggi().constFirst().sTesto,
             QStringLiteral("Sei sicuro di voler cancellare il collegamento selezionato?"));
    QCOMPARE(Chiavi(Lista(f.get())), QList<qint64>{secondo});

    // From the seal: its parchment.
    const Finestra daSigillo =
        Mostra(QStringLiteral("frmMostraLinkPGS"),
               {{QStringLiteral("lIdSigillo"), qlonglong(secondo)},
                {QStringLiteral("lIdPergamena"), qlonglong(0)},
                {QStringLiteral("sDenominazione"), QStringLiteral("Secondo sigillo")}});
    QCOMPARE(daSigillo->windowTitle(), QStringLiteral("Collegamento al documento"));
    QCOMPARE(Controllo<QLabel>(daSigillo.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Sigillo selezionato"));
    QCOMPARE(Testi(Lista(daSigillo.get())), QStringList{QStringLiteral("P1")});
}

void TestVisualizzatori::proseguireApreIlDialogoEPoiUnVisualizzatoreNuovo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    Sessione::lIdComplesso = fondo;
    // The stand-in of the finding aids' dialog adds a link and closes, without any viewer.
    QStringList passi;
    Dialoghi::Registra(QStringLiteral("frmNuovoInventario"),
                       [&](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                           passi << QStringLiteral("frmNuovoInventario");
                           a.Lega(fondo, inventario);
                           Sessione::iEsitoLinkInv = 1;
                           auto* d = new QDialog(genitore);
                           QTimer::singleShot(0, d, &QDialog::accept);
                           return d;
                       });
    const std::function<void(QWidget*)> primo = [&](QWidget* w) {
        passi << QStringLiteral("viewer %1").arg(Lista(w)->topLevelItemCount());
        // The second viewer is a fresh one, which shows the new link; it is closed by Escape.
        AlComparire(QStringLiteral("frmMostraLinkCD"), [&](QWidget* nuovo) {
            passi << QStringLiteral("viewer %1").arg(Lista(nuovo)->topLevelItemCount());
            QTest::keyClick(nuovo, Qt::Key_Escape);
        });
        Bottone(w, "cmdNuovoCol")->click();
    };
    AlComparire(QStringLiteral("frmMostraLinkCD"), primo);
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmMostraLinkCD"), nullptr));
    QCOMPARE(passi, (QStringList{QStringLiteral("viewer 0"), QStringLiteral("frmNuovoInventario"),
                                 QStringLiteral("viewer 1")}));
    QCOMPARE(Sessione::iEsitoLinkInv, 1);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestVisualizzatori::proseguireVersoUnDialogoCheNonCeNonMostraNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    Sessione::lIdElementoLink = NuovaPergamena(a).id;
    Dialoghi::Rimuovi(QStringLiteral("frmLinkAntroponimi"));
    int iViste = 0;
    AlComparire(QStringLiteral("frmMostraLinkAnt"), [&](QWidget* w) {
        ++iViste;
        Bottone(w, "cmdNuovoCol")->click();
    });
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmMostraLinkAnt"), nullptr));
    QCOMPARE(iViste, 1);
    QCOMPARE(Sessione::iChiamanteAntroponimi, 1);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(a.seam.Messaggi().size(), 0);
}

void TestVisualizzatori::unaCancellazioneFallitaHaIlTitoloDellaFamigliaELaVoceResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    a.PersonaDiPergamena(pg.id, a.Antroponimo(QStringLiteral("Ubaldo")), QVariant());
    const long fondo = a.Crea("02", QStringLiteral("Fondo"));
    a.Lega(fondo, pg.inventario);
    a.Lega(fondo, pg.elemento);
    Sessione::lIdElementoLink = pg.id;
    Sessione::lIdComplesso = fondo;
    Sessione::iChiamanteInv = 2;
    Sessione::lIdInventario = pg.elemento;
    const struct {
        const char* sNome;
        const char* sTitolo;
    } casi[] = {{"frmMostraLinkAnt", "Errore L1"},
                {"frmMostraLinkCD", "Errore I1"},
                {"frmMostraLinkInv", "Errore M1"}};
    for (const auto& caso : casi) {
        Finestra f = Mostra(QLatin1String(caso.sNome));
        QCOMPARE(Lista(f.get())->topLevelItemCount(), 1);
        a.seam.Svuota();
        // The connection gone between the load and the delete.
        const auto connessione = Sessione::cnn;
        Sessione::cnn.reset();
        a.seam.risposte = {Risposta::Si};
        Bottone(f.get(), "cmdCancella")->click();
        Sessione::cnn = connessione;
        QCOMPARE(a.seam.Messaggi().size(), 2);
        const Messaggio errore = a.seam.Messaggi().at(1);
        QCOMPARE(errore.sTitolo, QLatin1String(caso.sTitolo));
        QCOMPARE(errore.icona, Icona::Critica);
        QCOMPARE(Lista(f.get())->topLevelItemCount(), 1);
        QVERIFY(Bottone(f.get(), "cmdCancella")->isEnabled());
    }
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links"), {}), 2);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi"), {}), 1);
}

void TestVisualizzatori::unRuoloRifiutatoDalDatabaseMostraNumeroEDescrizione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Sigillo sg = NuovoSigillo(a);
    const long riga = a.TitolareDiSigillo(sg.id, a.Titolare(QStringLiteral("Capitolo")),
                                          QStringLiteral("Titolare"));
    a.RifiutaAggiornamento(QStringLiteral("SGTitolari"), QStringLiteral("NEW.Ruolo = 'Vietato'"),
                           QStringLiteral("ruolo rifiutato"));
    Sessione::lIdElementoLink = sg.id;
    Finestra f = Mostra(QStringLiteral("frmMostraLinkTitolari"));
    Bottone(f.get(), "cmdModificaRuolo")->click();
    TestoRuolo(f.get())->setText(QStringLiteral("Vietato"));
    Bottone(f.get(), "cmdConferma")->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio errore = a.seam.Messaggi().constFirst();
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY2(errore.sTesto.contains(QStringLiteral("\r\n")), qPrintable(errore.sTesto));
    QVERIFY2(errore.sTesto.contains(QStringLiteral("ruolo rifiutato")), qPrintable(errore.sTesto));
    // Stored and shown as before, the editor closed.
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Ruolo FROM SGTitolari WHERE ID_SGTitolare = ?"), {Id(riga)})
            .toString(),
        QStringLiteral("Titolare"));
    QCOMPARE(Testi(Lista(f.get()), 1), QStringList{QStringLiteral("Titolare")});
    QVERIFY(!Controllo<QComboBox>(f.get(), QStringLiteral("cmbRuolo"))->isEnabled());
}

void TestVisualizzatori::lePergameneDelComplessoSonoLAltraListaDelloStessoVisualizzatore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const Pergamena pg = NuovaPergamena(a);
    const long fondo = a.Crea("02", QStringLiteral("Fondo"));
    a.Lega(fondo, pg.inventario);
    a.Lega(fondo, pg.elemento);
    Sessione::lIdComplesso = fondo;
    Sessione::sDenomComplesso = QStringLiteral("Fondo");
    Finestra inventari = Mostra(QStringLiteral("frmMostraLinkCD"));
    QCOMPARE(Chiavi(Lista(inventari.get())), QList<qint64>{pg.inventario});
    QVERIFY(inventari->findChild<QPushButton*>(QStringLiteral("cmdNuovoCol")) != nullptr);
    Finestra pergamene = Mostra(QStringLiteral("frmMostraLinkCD"),
                                {{QStringLiteral("sDenominazione"), QStringLiteral("Fondo «A»")}});
    QCOMPARE(pergamene->windowTitle(), QStringLiteral("Collegamenti alle Pergamene"));
    QCOMPARE(Controllo<QLineEdit>(pergamene.get(), QStringLiteral("Text1"))->text(),
             QStringLiteral("Fondo «A»"));
    QCOMPARE(Chiavi(Lista(pergamene.get())), QList<qint64>{pg.elemento});
    QCOMPARE(Testi(Lista(pergamene.get())), QStringList{QStringLiteral("P1")});
    QVERIFY(pergamene->findChild<QPushButton*>(QStringLiteral("cmdNuovoCol")) == nullptr);
}

void TestVisualizzatori::escChiudeIlVisualizzatore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    Sessione::lIdSoggetto = a.Titolare(QStringLiteral("Capitolo"));
    Sessione::sDenomSoggetto = QStringLiteral("Capitolo");
    Finestra f = Mostra(QStringLiteral("frmMostraLinkTitSG"));
    QVERIFY(f->isVisible());
    QCOMPARE(Controllo<QLabel>(f.get(), QStringLiteral("Label1"))->text(),
             QStringLiteral("Titolare selezionato"));
    QTest::keyClick(f.get(), Qt::Key_Escape);
    QVERIFY(!f->isVisible());
}

QTEST_MAIN(TestVisualizzatori)
#include "tst_visualizzatori.moc"
