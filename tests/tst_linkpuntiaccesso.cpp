// The three dialogs that tie access points to a described object (frmLinkAntroponimi,
// frmLinkToponimi, frmLinkTitolari): one list without tabs with every entry, those tied to the
// object ticked and in bold; the ties written by Collega only where missing (checked here with
// queries of the test's own), with the own keys of the tables that have one in the site's range;
// a new entry made on the spot and tied in the same step; the road from the records' buttons
// through the viewer, the dialog and a fresh viewer, where the role is given and the tie undone;
// an entry deleted or tied by another workstation meanwhile; quotes and accents; on SQLite and
// on PostgreSQL.

#include "authorities/ucAntroponimo.h"
#include "authorities/ucTitolare.h"
#include "authorities/ucToponimo.h"
#include "links/ModelloSpunte.h"
#include "links/frmLinkPuntiAccesso.h"
#include "programma/Registro.h"
#include "records/ucDatiInventariali.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"

#include "AmbienteLink.h"
#include "AmbienteSulBackend.h"
#include "Modali.h"

#include <QAbstractButton>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

namespace {

// The session as a viewer leaves it for the dialog.
void Servi(long lChiave, int iChiamante, const QString& sDenominazione = QStringLiteral("P1")) {
    Sessione::lIdElementoLink = lChiave;
    Sessione::sDenomElementoLink = sDenominazione;
    Sessione::iChiamanteAntroponimi = iChiamante;
    Sessione::iChiamanteToponimi = iChiamante;
}

// A dialog by name as the program registers it, shown.
std::unique_ptr<DialogoPuntoAccesso> Apri(const char* sNome) {
    std::unique_ptr<DialogoPuntoAccesso> dialogo;
    const QString nome = QLatin1String(sNome);
    if (nome == QLatin1String("frmLinkAntroponimi")) {
        auto* f = new frmLinkAntroponimi;
        f->SetbLockSelAntr(true);
        dialogo.reset(f);
    } else if (nome == QLatin1String("frmLinkToponimi")) {
        auto* f = new frmLinkToponimi;
        f->SetbLockSelTopon(true);
        dialogo.reset(f);
    } else {
        auto* f = new frmLinkTitolari;
        f->SetbLockSelTitol(true);
        dialogo.reset(f);
    }
    dialogo->show();
    return dialogo;
}

QStringList Voci(const DialogoSpunte& d) {
    QStringList testi;
    for (int i = 0; i < d.Modello(0).Righe(); ++i) {
        testi.append(d.Modello(0).Testo(i));
    }
    return testi;
}

QString Spunte(const DialogoSpunte& d) {
    QString s;
    for (int i = 0; i < d.Modello(0).Righe(); ++i) {
        s += d.Modello(0).Spuntata(i) ? u'1' : u'0';
    }
    return s;
}

// The user's tick on a row: the row made the current one, then the space key.
void Spunta(DialogoSpunte& d, int iRiga) {
    auto* lista = Controllo<QTreeView>(&d, QStringLiteral("lvwDB"));
    lista->setCurrentIndex(d.Modello(0).index(iRiga));
    QTest::keyClick(lista, Qt::Key_Space);
}

QString Testo(const QWidget* finestra, const char* nome) {
    return Controllo<QLineEdit>(finestra, QLatin1String(nome))->text();
}
QString Etichetta(const QWidget* finestra, const char* nome) {
    return Controllo<QLabel>(finestra, QLatin1String(nome))->text();
}
QAbstractButton* Comando(const QWidget* finestra, const char* nome) {
    return Controllo<QAbstractButton>(finestra, QLatin1String(nome));
}

qlonglong L(qint64 v) {
    return static_cast<qlonglong>(v);
}

// In the viewer opened next, the first tie deleted (the question answered as the test scripted
// it), then the viewer closed.
void SciogliLaPrimaAllApertura(const QString& sVisualizzatore) {
    AlComparire(sVisualizzatore, [](QWidget* v) {
        Lista(v)->setCurrentItem(Lista(v)->topLevelItem(0));
        Comando(v, "cmdCancella")->click();
        static_cast<QDialog*>(v)->reject();
    });
}

// The first tie deleted in the viewer the record's button opens: the count of its rows falls to
// nothing and the button goes off.
void SciogliDalRecord(const AmbienteLink& a, QAbstractButton* pulsante,
                      const QString& sVisualizzatore, const QString& sConta,
                      std::initializer_list<QVariant> valori) {
    SciogliLaPrimaAllApertura(sVisualizzatore);
    pulsante->click();
    QCOMPARE(a.Conta(sConta, valori), 0);
    QVERIFY2(!PulsanteAcceso(pulsante), qPrintable(pulsante->objectName()));
}

} // namespace

class TestLinkPuntiAccesso : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void ilDialogoDellePersoneHaUnaListaSenzaSchedeConILegatiSpuntati_data() { AggiungiBackend(); }
    void ilDialogoDellePersoneHaUnaListaSenzaSchedeConILegatiSpuntati();
    void leEtichetteSeguonoIlChiamanteDiOgnunoDeiTre_data() { AggiungiBackend(); }
    void leEtichetteSeguonoIlChiamanteDiOgnunoDeiTre();
    void unLuogoLegatoSiContaSpuntatoSiaPerLaPergamenaSiaPerLUnita_data() { AggiungiBackend(); }
    void unLuogoLegatoSiContaSpuntatoSiaPerLaPergamenaSiaPerLUnita();
    void unaPersonaLegataDueVolteAllaStessaPergamenaEUnaSolaVoceSpuntata_data() {
        AggiungiBackend();
    }
    void unaPersonaLegataDueVolteAllaStessaPergamenaEUnaSolaVoceSpuntata();
    void tornareSenzaSpunteNonScriveNulla_data() { AggiungiBackend(); }
    void tornareSenzaSpunteNonScriveNulla();
    void collegaScriveSoloILegamiMancantiConLeChiaviNelRangeDelSito_data() { AggiungiBackend(); }
    void collegaScriveSoloILegamiMancantiConLeChiaviNelRangeDelSito();
    void unaPersonaSiLegaDallaPergamenaPrendeIlRuoloESiScioglie_data() { AggiungiBackend(); }
    void unaPersonaSiLegaDallaPergamenaPrendeIlRuoloESiScioglie();
    void unLuogoSiLegaDallaPergamenaESiScioglie_data() { AggiungiBackend(); }
    void unLuogoSiLegaDallaPergamenaESiScioglie();
    void personeELuoghiSiLeganoDallUnitaESiSciolgono_data() { AggiungiBackend(); }
    void personeELuoghiSiLeganoDallUnitaESiSciolgono();
    void unTitolareSiLegaDalSigilloPrendeIlRuoloESiScioglie_data() { AggiungiBackend(); }
    void unTitolareSiLegaDalSigilloPrendeIlRuoloESiScioglie();
    void unRuoloDi33CaratteriVieneRiportatoA32_data() { AggiungiBackend(); }
    void unRuoloDi33CaratteriVieneRiportatoA32();
    void unaPersonaFattaSulPostoSiLegaNelloStessoPasso_data() { AggiungiBackend(); }
    void unaPersonaFattaSulPostoSiLegaNelloStessoPasso();
    void unaVoceCancellataNelFrattempoDaErroreO1ENessunLegame_data() { AggiungiBackend(); }
    void unaVoceCancellataNelFrattempoDaErroreO1ENessunLegame();
    void unaVoceLegataNelFrattempoNonSiRaddoppiaENonDaErrore_data() { AggiungiBackend(); }
    void unaVoceLegataNelFrattempoNonSiRaddoppiaENonDaErrore();
    void nomiConApostrofiVirgoletteEAccentiSiMostranoESiLegano_data() { AggiungiBackend(); }
    void nomiConApostrofiVirgoletteEAccentiSiMostranoESiLegano();
    void unaListaVuotaEUnNuovoTitolareAnnullatoNonScrivonoNulla_data() { AggiungiBackend(); }
    void unaListaVuotaEUnNuovoTitolareAnnullatoNonScrivonoNulla();
    void chiudereIlDialogoAzzeraIlFlagDellaFinestra_data() { AggiungiBackend(); }
    void chiudereIlDialogoAzzeraIlFlagDellaFinestra();
};

void TestLinkPuntiAccesso::ilDialogoDellePersoneHaUnaListaSenzaSchedeConILegatiSpuntati() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    a.Antroponimo(QStringLiteral("Ubaldo "));
    const long rolando = a.Antroponimo(QStringLiteral("Rolando"));
    a.Antroponimo(QStringLiteral("Bernardo"));
    a.PersonaDiPergamena(o.idPergamena, rolando, QVariant());
    Servi(o.idPergamena, 1, QStringLiteral("Pergamena P1"));
    Sessione::aSelAntroponimi = {7, 0};

    auto d = Apri("frmLinkAntroponimi");
    QCOMPARE(d->objectName(), QStringLiteral("frmLinkAntroponimi"));
    QCOMPARE(d->windowTitle(), QStringLiteral("Persone"));
    QVERIFY(!d->SSTab1->tabBar()->isVisible());
    QCOMPARE(d->Pagine(), 1);
    auto* lista = Controllo<QTreeView>(d.get(), QStringLiteral("lvwDB"));
    QCOMPARE(d->Modello(0).headerData(0, Qt::Horizontal).toString(), QStringLiteral("Persone"));
    QCOMPARE(d->cmdNuovoSog->text(), QStringLiteral("Nuova Persona"));
    QCOMPARE(d->cmdCollega->text(), QStringLiteral("Collega"));
    QCOMPARE(d->cmdAnnullaCol->text(), QStringLiteral("Annulla collegamento"));
    QCOMPARE(Etichetta(d.get(), "Label1(0)"), QStringLiteral("Pergamena selezionata"));
    QCOMPARE(Testo(d.get(), "Text1(0)"), QStringLiteral("Pergamena P1"));
    QCOMPARE(Etichetta(d.get(), "Label1(1)"), QStringLiteral("Persone scelte"));
    QVERIFY(Controllo<QLineEdit>(d.get(), QStringLiteral("Text1(1)"))->isReadOnly());
    // The list is read at once, in the order of the names, the slots emptied.
    QVERIFY(d->Caricata(0));
    QVERIFY(Sessione::aSelAntroponimi.isEmpty());
    QCOMPARE(Voci(*d), (QStringList{QStringLiteral("Bernardo"), QStringLiteral("Rolando"),
                                    QStringLiteral("Ubaldo")}));
    QCOMPARE(Spunte(*d), QStringLiteral("010"));
    QCOMPARE(d->Modello(0).Tag(1), 1);
    QVERIFY(d->Modello(0).data(d->Modello(0).index(1), Qt::FontRole).value<QFont>().bold());
    QVERIFY(!d->Modello(0).data(d->Modello(0).index(0), Qt::FontRole).value<QFont>().bold());
    QCOMPARE(d->Modello(0).data(d->Modello(0).index(1), ModelloElenco::RuoloChiave).toString(),
             QStringLiteral("ID%1").arg(rolando));
    // The first item is shown in the editor.
    QCOMPARE(lista->currentIndex().row(), 0);
    QCOMPARE(d->sStato, QStringLiteral("mostra"));
    QCOMPARE(d->sTipo, QStringLiteral("antroponimo"));
    QVERIFY(d->Editore()->isVisible());
    QCOMPARE(d->Editore()->objectName(), QStringLiteral("fraAntroponimo"));
    QCOMPARE(d->Editore()->LeggiDenominazione(), QStringLiteral("Bernardo"));
    QVERIFY(!d->cmdCollega->isEnabled());
    // A tied entry stays ticked whatever the user does.
    Spunta(*d, 1);
    QCOMPARE(Spunte(*d), QStringLiteral("010"));
    QVERIFY(Sessione::aSelAntroponimi.isEmpty());
    // A tick and its name; a click shows the entry.
    Spunta(*d, 2);
    QCOMPARE(Spunte(*d), QStringLiteral("011"));
    QCOMPARE(Testo(d.get(), "Text1(1)"), QStringLiteral("Ubaldo"));
    QCOMPARE(d->Editore()->LeggiDenominazione(), QStringLiteral("Ubaldo "));
    QVERIFY(d->cmdCollega->isEnabled());
}

void TestLinkPuntiAccesso::leEtichetteSeguonoIlChiamanteDiOgnunoDeiTre() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    a.Antroponimo(QStringLiteral("Ubaldo"));
    a.Toponimo(QStringLiteral("Lucca"));
    a.Titolare(QStringLiteral("Capitolo"));
    const struct {
        const char* dialogo;
        int chiamante;
        long chiave;
        const char* titolo;
        const char* colonna;
        const char* nuovo;
        const char* scelti;
        const char* oggetto;
        const char* editore;
    } casi[] = {
        {"frmLinkAntroponimi", 1, o.idPergamena, "Persone", "Persone", "Nuova Persona",
         "Persone scelte", "Pergamena selezionata", "fraAntroponimo"},
        {"frmLinkAntroponimi", 2, o.idUnita, "Persone", "Persone", "Nuova Persona",
         "Persone scelte", "Inventario base selezionato", "fraAntroponimo"},
        {"frmLinkToponimi", 1, o.idPergamena, "Toponimi", "Toponimo", "Nuovo Toponimo",
         "Toponimi scelti", "Pergamena selezionata", "fraToponimo"},
        {"frmLinkToponimi", 2, o.idUnita, "Toponimi", "Toponimo", "Nuovo Toponimo",
         "Toponimi scelti", "Oggetto selezionato", "fraToponimo"},
        {"frmLinkTitolari", 0, o.idSigillo, "Titolari", "Titolare", "Nuovo Titolare",
         "Titolari scelti", "Sigillo selezionato", "fraTitolare"},
    };
    for (const auto& caso : casi) {
        Servi(caso.chiave, caso.chiamante, QStringLiteral("Oggetto"));
        auto d = Apri(caso.dialogo);
        QCOMPARE(d->windowTitle(), QLatin1String(caso.titolo));
        QCOMPARE(d->Modello(0).headerData(0, Qt::Horizontal).toString(),
                 QLatin1String(caso.colonna));
        QCOMPARE(d->cmdNuovoSog->text(), QLatin1String(caso.nuovo));
        QCOMPARE(Etichetta(d.get(), "Label1(1)"), QLatin1String(caso.scelti));
        QCOMPARE(Etichetta(d.get(), "Label1(0)"), QLatin1String(caso.oggetto));
        QCOMPARE(Testo(d.get(), "Text1(0)"), QStringLiteral("Oggetto"));
        QCOMPARE(Voci(*d).size(), 1);
        QVERIFY(Controllo<QWidget>(d.get(), QLatin1String(caso.editore))->isVisible());
    }
}

void TestLinkPuntiAccesso::unLuogoLegatoSiContaSpuntatoSiaPerLaPergamenaSiaPerLUnita() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long lucca = a.Toponimo(QStringLiteral("Lucca"));
    const long pisa = a.Toponimo(QStringLiteral("Pisa"));
    a.Toponimo(QStringLiteral("Siena"));
    a.LuogoDi("PGToponimi", "ID_Pergamena", o.idPergamena, lucca);
    a.LuogoDi("DIToponimi", "ID_DatoInventariale", o.idUnita, pisa);
    // A place of another parchment does not count for this one.
    const long altra =
        a.Dettaglio("Pergamene", "ID_Pergamena", a.Crea("05", QStringLiteral("P2"), o.pergamena));
    a.LuogoDi("PGToponimi", "ID_Pergamena", altra, pisa);

    Servi(o.idPergamena, 1);
    QCOMPARE(Spunte(*Apri("frmLinkToponimi")), QStringLiteral("100"));
    Servi(o.idUnita, 2);
    QCOMPARE(Spunte(*Apri("frmLinkToponimi")), QStringLiteral("010"));
}

void TestLinkPuntiAccesso::unaPersonaLegataDueVolteAllaStessaPergamenaEUnaSolaVoceSpuntata() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long rolando = a.Antroponimo(QStringLiteral("Rolando"));
    a.Antroponimo(QStringLiteral("Ubaldo"));
    // A database that lets the same pair in twice.
    a.Cnn().Esegui(QStringLiteral("DROP INDEX PGAntroponimi_U1"));
    a.PersonaDiPergamena(o.idPergamena, rolando, QVariant());
    a.PersonaDiPergamena(o.idPergamena, rolando, QStringLiteral("Autore"));
    Servi(o.idPergamena, 1);
    auto d = Apri("frmLinkAntroponimi");
    QCOMPARE(Voci(*d), (QStringList{QStringLiteral("Rolando"), QStringLiteral("Ubaldo")}));
    QCOMPARE(Spunte(*d), QStringLiteral("10"));
    QCOMPARE(d->Modello(0).Tag(0), 1);
}

void TestLinkPuntiAccesso::tornareSenzaSpunteNonScriveNulla() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    a.Antroponimo(QStringLiteral("Ubaldo"));
    a.Toponimo(QStringLiteral("Lucca"));
    a.Titolare(QStringLiteral("Capitolo"));
    const struct {
        const char* dialogo;
        long chiave;
    } casi[] = {{"frmLinkAntroponimi", o.idPergamena},
                {"frmLinkToponimi", o.idPergamena},
                {"frmLinkTitolari", o.idSigillo}};
    for (const auto& caso : casi) {
        Servi(caso.chiave, 1);
        auto d = Apri(caso.dialogo);
        // A tick taken back leaves its slot at 0 and Collega off.
        Spunta(*d, 0);
        QVERIFY(d->cmdCollega->isEnabled());
        Spunta(*d, 0);
        QVERIFY(!d->cmdCollega->isEnabled());
        QCOMPARE(Testo(d.get(), "Text1(1)"), QString());
        // Collega with nothing but zeros, then Annulla collegamento: nothing written.
        d->cmdCollega_Click();
        QCOMPARE(d->iEsito, 0);
        d->show();
        d->cmdAnnullaCol->click();
        QCOMPARE(d->result(), int(QDialog::Rejected));
    }
    for (const char* tabella : {"PGAntroponimi", "PGToponimi", "SGTitolari"}) {
        QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabella)), {}),
                 0);
    }
}

void TestLinkPuntiAccesso::collegaScriveSoloILegamiMancantiConLeChiaviNelRangeDelSito() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    ScriviIdentita(a.Cnn(), {QStringLiteral("ASLU"), QString(), 700000, 799999});
    const long ubaldo = a.Antroponimo(QStringLiteral("Ubaldo"));
    const long rolando = a.Antroponimo(QStringLiteral("Rolando"));
    const long lucca = a.Toponimo(QStringLiteral("Lucca"));
    const long capitolo = a.Titolare(QStringLiteral("Capitolo"));
    const long vescovo = a.Titolare(QStringLiteral("Vescovo"));
    const long gia = a.TitolareDiSigillo(o.idSigillo, capitolo, QStringLiteral("Autore"));

    // Persons of the unit, places of the unit, holders of the seal.
    Servi(o.idUnita, 2);
    {
        auto d = Apri("frmLinkAntroponimi");
        Spunta(*d, 0);
        Spunta(*d, 1);
        QCOMPARE(Testo(d.get(), "Text1(1)"), QStringLiteral("Rolando, Ubaldo"));
        d->cmdCollega->click();
        QCOMPARE(d->result(), int(QDialog::Accepted));
        QCOMPARE(d->iEsito, 1);
    }
    {
        auto d = Apri("frmLinkToponimi");
        Spunta(*d, 0);
        d->cmdCollega->click();
    }
    Servi(o.idSigillo, 0);
    {
        auto d = Apri("frmLinkTitolari");
        QCOMPARE(Spunte(*d), QStringLiteral("10"));
        Spunta(*d, 1);
        d->cmdCollega->click();
    }
    const QString dianti = QStringLiteral(
        "SELECT COUNT(*) FROM DIAntroponimi WHERE ID_DatoInventariale = ? AND ID_Antroponimo = ? "
        "AND ID_DIAntroponimo BETWEEN 700000 AND 799999");
    QCOMPARE(a.Conta(dianti, {L(o.idUnita), L(ubaldo)}), 1);
    QCOMPARE(a.Conta(dianti, {L(o.idUnita), L(rolando)}), 1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM DIAntroponimi"), {}), 2);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM DIToponimi WHERE ID_DatoInventariale "
                                    "= ? AND ID_Toponimo = ?"),
                     {L(o.idUnita), L(lucca)}),
             1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGToponimi"), {}), 0);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_Sigillo = ? AND "
                                    "ID_Titolare = ? AND ID_SGTitolare BETWEEN 700000 AND 799999 "
                                    "AND Ruolo IS NULL"),
                     {L(o.idSigillo), L(vescovo)}),
             1);
    // The tie that was there keeps its row and its role.
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_SGTitolare = ? AND "
                                    "Ruolo = ?"),
                     {L(gia), QStringLiteral("Autore")}),
             1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari"), {}), 2);
    QCOMPARE(a.seam.Messaggi().size(), 0);
}

void TestLinkPuntiAccesso::unaPersonaSiLegaDallaPergamenaPrendeIlRuoloESiScioglie() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    a.Antroponimo(QStringLiteral("Ubaldo"));
    const long rolando = a.Antroponimo(QStringLiteral("Rolando"));
    EditorePronto<ucPergamena> editore(o.pergamena);
    QSignalSpy eventi(&editore, &EditoreRecord::EventoStato);
    QAbstractButton* pulsante = Comando(&editore, "cmdMostraAntroponimi");
    QVERIFY(!PulsanteAcceso(pulsante));

    StradaPuntoAccesso strada;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkAnt"), QStringLiteral("frmLinkAntroponimi"),
                         QStringLiteral("Rolando"), QStringLiteral("Testimone"), strada, false);
    pulsante->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(strada.etichetta, QStringLiteral("Pergamena selezionata"));
    QVERIFY(strada.bBloccati);
    QCOMPARE(strada.voci, (QStringList{QStringLiteral("Rolando"), QStringLiteral("Ubaldo")}));
    QCOMPARE(strada.dopo, QStringList{QStringLiteral("Rolando")});
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi WHERE ID_Pergamena = ? "
                                    "AND ID_Antroponimo = ? AND Ruolo = ?"),
                     {L(o.idPergamena), L(rolando), QStringLiteral("Testimone")}),
             1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi"), {}), 1);
    // The record's button follows the tie, and its host hears of it.
    QVERIFY(PulsanteAcceso(pulsante));
    QVERIFY(eventi.size() >= 1);
    QVERIFY(!Sessione::bFrmAntroponimiAperto);

    // Untied in the viewer.
    a.seam.risposte = {Risposta::Si};
    SciogliDalRecord(a, pulsante, QStringLiteral("frmMostraLinkAnt"),
                     QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi"), {});
}

void TestLinkPuntiAccesso::unLuogoSiLegaDallaPergamenaESiScioglie() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long lucca = a.Toponimo(QStringLiteral("Lucca"));
    a.Toponimo(QStringLiteral("Pisa"));
    EditorePronto<ucPergamena> editore(o.pergamena);
    QAbstractButton* pulsante = Comando(&editore, "cmdMostraToponimi");
    QVERIFY(!PulsanteAcceso(pulsante));
    StradaPuntoAccesso strada;
    a.seam.risposte = {Risposta::Si};
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkTopo"), QStringLiteral("frmLinkToponimi"),
                         QStringLiteral("Lucca"), QString(), strada, false);
    pulsante->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(strada.etichetta, QStringLiteral("Pergamena selezionata"));
    QCOMPARE(strada.dopo, QStringList{QStringLiteral("Lucca")});
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGToponimi WHERE ID_Pergamena = ? AND "
                                    "ID_Toponimo = ?"),
                     {L(o.idPergamena), L(lucca)}),
             1);
    QVERIFY(PulsanteAcceso(pulsante));
    SciogliDalRecord(a, pulsante, QStringLiteral("frmMostraLinkTopo"),
                     QStringLiteral("SELECT COUNT(*) FROM PGToponimi"), {});
}

void TestLinkPuntiAccesso::personeELuoghiSiLeganoDallUnitaESiSciolgono() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long guido = a.Antroponimo(QStringLiteral("Guido"));
    const long pescia = a.Toponimo(QStringLiteral("Pescia"));
    EditorePronto<ucDatiInventariali> editore(o.unita);
    const struct {
        const char* pulsante;
        const char* visualizzatore;
        const char* dialogo;
        const char* voce;
        const char* etichetta;
        const char* tabella;
        const char* colonna;
        long id;
    } casi[] = {{"cmdMostraAntroponimi", "frmMostraLinkDIAnt", "frmLinkAntroponimi", "Guido",
                 "Inventario base selezionato", "DIAntroponimi", "ID_Antroponimo", guido},
                {"cmdMostraToponimi", "frmMostraLinkTopo", "frmLinkToponimi", "Pescia",
                 "Oggetto selezionato", "DIToponimi", "ID_Toponimo", pescia}};
    for (const auto& caso : casi) {
        QAbstractButton* pulsante = Comando(&editore, caso.pulsante);
        QVERIFY2(!PulsanteAcceso(pulsante), caso.pulsante);
        StradaPuntoAccesso strada;
        PercorriPuntoAccesso(QLatin1String(caso.visualizzatore), QLatin1String(caso.dialogo),
                             QLatin1String(caso.voce), QString(), strada, false);
        pulsante->click();
        QVERIFY2(strada.bDialogo, caso.dialogo);
        QCOMPARE(strada.etichetta, QLatin1String(caso.etichetta));
        QCOMPARE(strada.dopo, QStringList{QLatin1String(caso.voce)});
        const QString sql = QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ID_DatoInventariale = "
                                           "? AND %2 = ?")
                                .arg(QLatin1String(caso.tabella), QLatin1String(caso.colonna));
        QCOMPARE(a.Conta(sql, {L(o.idUnita), L(caso.id)}), 1);
        QVERIFY2(PulsanteAcceso(pulsante), caso.pulsante);

        a.seam.risposte = {Risposta::Si};
        SciogliDalRecord(a, pulsante, QLatin1String(caso.visualizzatore), sql,
                         {L(o.idUnita), L(caso.id)});
    }
}

void TestLinkPuntiAccesso::unTitolareSiLegaDalSigilloPrendeIlRuoloESiScioglie() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long capitolo = a.Titolare(QStringLiteral("Capitolo"));
    EditorePronto<ucSigillo> editore(o.sigillo);
    QSignalSpy eventi(&editore, &EditoreRecord::EventoStato);
    QAbstractButton* pulsante = Comando(&editore, "cmdMostraTitolari");
    QVERIFY(!PulsanteAcceso(pulsante));
    StradaPuntoAccesso strada;
    a.seam.risposte = {Risposta::Si};
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkTitolari"), QStringLiteral("frmLinkTitolari"),
                         QStringLiteral("Capitolo"), QStringLiteral("Garante"), strada, true);
    pulsante->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(strada.etichetta, QStringLiteral("Sigillo selezionato"));
    // The seal's flag passes through the viewer to the dialog.
    QVERIFY(strada.bFromSigilli);
    QVERIFY(strada.bBloccati);
    QCOMPARE(strada.dopo, QStringList{QStringLiteral("Capitolo")});
    // The tie was there with its role before the viewer undid it.
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_Titolare = ?"),
                     {L(capitolo)}),
             0);
    QVERIFY(!PulsanteAcceso(pulsante));
    QVERIFY(eventi.size() >= 1);

    // Tied again and kept, with its role.
    StradaPuntoAccesso seconda;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkTitolari"), QStringLiteral("frmLinkTitolari"),
                         QStringLiteral("Capitolo"), QStringLiteral("Garante"), seconda, false);
    pulsante->click();
    QVERIFY(seconda.bDialogo);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_Sigillo = ? AND "
                                    "ID_Titolare = ? AND Ruolo = ?"),
                     {L(o.idSigillo), L(capitolo), QStringLiteral("Garante")}),
             1);
    QVERIFY(PulsanteAcceso(pulsante));
    QVERIFY(!Sessione::bFrmTitolariAperto);
}

void TestLinkPuntiAccesso::unRuoloDi33CaratteriVieneRiportatoA32() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long rolando = a.Antroponimo(QStringLiteral("Rolando"));
    EditorePronto<ucPergamena> editore(o.pergamena);
    StradaPuntoAccesso strada;
    const QString lungo = QString(32, QLatin1Char('r')) + QLatin1Char('x');
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkAnt"), QStringLiteral("frmLinkAntroponimi"),
                         QStringLiteral("Rolando"), lungo, strada, false);
    Comando(&editore, "cmdMostraAntroponimi")->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi().constFirst().sTesto,
             QStringLiteral("Il campo Ruolo prevede un massimo di 32 caratteri!"));
    QCOMPARE(a.Valore(QStringLiteral("SELECT Ruolo FROM PGAntroponimi WHERE ID_Pergamena = ? AND "
                                     "ID_Antroponimo = ?"),
                      {L(o.idPergamena), L(rolando)})
                 .toString(),
             QString(32, QLatin1Char('r')));
}

void TestLinkPuntiAccesso::unaPersonaFattaSulPostoSiLegaNelloStessoPasso() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    ScriviIdentita(a.Cnn(), {QStringLiteral("ASLU"), QString(), 700000, 799999});
    const long ubaldo = a.Antroponimo(QStringLiteral("Ubaldo"));
    Servi(o.idPergamena, 1);
    auto d = Apri("frmLinkAntroponimi");
    Spunta(*d, 0);
    d->cmdNuovoSog->click();
    QCOMPARE(d->sStato, QStringLiteral("nuovo"));
    QVERIFY(!d->cmdCollega->isEnabled());
    QVERIFY(!d->cmdNuovoSog->isEnabled());
    QVERIFY(d->cmdConferma->isEnabled());
    QVERIFY(!Controllo<QTreeView>(d.get(), QStringLiteral("lvwDB"))->isEnabled());
    ScriviTesto(d->Editore(), 0, QStringLiteral("Gherardo di Pàolo"));
    d->cmdConferma->click();
    QCOMPARE(d->sStato, QStringLiteral("mostra"));
    const long gherardo = static_cast<long>(
        a.Valore(QStringLiteral("SELECT ID_Antroponimo FROM Antroponimi WHERE Nome = ?"),
                 {QStringLiteral("Gherardo di Pàolo")})
            .toLongLong());
    QVERIFY(gherardo >= 700000 && gherardo <= 799999);
    // The new entry at the end, unticked, chosen and shown.
    QCOMPARE(Voci(*d),
             (QStringList{QStringLiteral("Ubaldo"), QStringLiteral("Gherardo di Pàolo")}));
    QCOMPARE(Spunte(*d), QStringLiteral("10"));
    QCOMPARE(d->Modello(0).Tag(1), 0);
    QCOMPARE(d->Editore()->LeggiDenominazione(), QStringLiteral("Gherardo di Pàolo"));
    Spunta(*d, 1);
    QCOMPARE(Testo(d.get(), "Text1(1)"), QStringLiteral("Ubaldo, Gherardo di Pàolo"));
    d->cmdCollega->click();
    const QString sql = QStringLiteral(
        "SELECT COUNT(*) FROM PGAntroponimi WHERE ID_Pergamena = ? AND ID_Antroponimo = ?");
    QCOMPARE(a.Conta(sql, {L(o.idPergamena), L(gherardo)}), 1);
    QCOMPARE(a.Conta(sql, {L(o.idPergamena), L(ubaldo)}), 1);
    QCOMPARE(a.seam.Messaggi().size(), 0);
}

void TestLinkPuntiAccesso::unaVoceCancellataNelFrattempoDaErroreO1ENessunLegame() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    a.Titolare(QStringLiteral("Capitolo"));
    const long vescovo = a.Titolare(QStringLiteral("Vescovo"));
    Servi(o.idSigillo, 0);
    auto d = Apri("frmLinkTitolari");
    Spunta(*d, 0);
    Spunta(*d, 1);
    // Another workstation deletes the holder meanwhile.
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Titolari WHERE ID_Titolare = ?"), {L(vescovo)});
    d->cmdCollega->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio errore = a.seam.Messaggi().constFirst();
    QCOMPARE(errore.sTitolo, QStringLiteral("Errore O1"));
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY2(errore.sTesto.contains(QStringLiteral("Vescovo")), qPrintable(errore.sTesto));
    // No tie half made: neither the one gone nor the other; the dialog stays.
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari"), {}), 0);
    QVERIFY(d->isVisible());
    QCOMPARE(d->iEsito, 0);

    // The unit itself deleted meanwhile: the same.
    a.seam.Svuota();
    Servi(o.idUnita, 2);
    a.Antroponimo(QStringLiteral("Ubaldo"));
    auto p = Apri("frmLinkAntroponimi");
    Spunta(*p, 0);
    a.Cnn().Esegui(QStringLiteral("DELETE FROM DatiInventariali WHERE ID_DatoInventariale = ?"),
                   {L(o.idUnita)});
    p->cmdCollega->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi().constFirst().sTitolo, QStringLiteral("Errore O1"));
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM DIAntroponimi"), {}), 0);
}

void TestLinkPuntiAccesso::unaVoceLegataNelFrattempoNonSiRaddoppiaENonDaErrore() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const long rolando = a.Antroponimo(QStringLiteral("Rolando"));
    const long lucca = a.Toponimo(QStringLiteral("Lucca"));
    Servi(o.idPergamena, 1);
    auto persone = Apri("frmLinkAntroponimi");
    auto luoghi = Apri("frmLinkToponimi");
    Spunta(*persone, 0);
    Spunta(*luoghi, 0);
    // Another workstation ties them meanwhile.
    const long riga = a.PersonaDiPergamena(o.idPergamena, rolando, QStringLiteral("Autore"));
    a.LuogoDi("PGToponimi", "ID_Pergamena", o.idPergamena, lucca);
    persone->cmdCollega->click();
    luoghi->cmdCollega->click();
    QCOMPARE(a.seam.Messaggi().size(), 0);
    QCOMPARE(persone->result(), int(QDialog::Accepted));
    QCOMPARE(persone->iEsito, 0);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi"), {}), 1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi WHERE ID_PGAntroponimo = "
                                    "? AND Ruolo = ?"),
                     {L(riga), QStringLiteral("Autore")}),
             1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGToponimi"), {}), 1);
}

void TestLinkPuntiAccesso::nomiConApostrofiVirgoletteEAccentiSiMostranoESiLegano() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const QString nome = QStringLiteral("Niccolò d'Àrezzo detto \"il Pìo\"");
    const long id = a.Titolare(nome);
    Servi(o.idSigillo, 0, QStringLiteral("Sigillo dell'Opera \"del Duomo\""));
    auto d = Apri("frmLinkTitolari");
    QCOMPARE(Voci(*d), QStringList{nome});
    QCOMPARE(Testo(d.get(), "Text1(0)"), QStringLiteral("Sigillo dell'Opera \"del Duomo\""));
    QCOMPARE(d->Editore()->LeggiDenominazione(), nome);
    Spunta(*d, 0);
    QCOMPARE(Testo(d.get(), "Text1(1)"), nome);
    d->cmdCollega->click();
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_Sigillo = ? AND "
                                    "ID_Titolare = ?"),
                     {L(o.idSigillo), L(id)}),
             1);
    QCOMPARE(a.seam.Messaggi().size(), 0);
}

void TestLinkPuntiAccesso::unaListaVuotaEUnNuovoTitolareAnnullatoNonScrivonoNulla() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    Servi(o.idSigillo, 0);
    auto d = Apri("frmLinkTitolari");
    QCOMPARE(d->Modello(0).Righe(), 0);
    QCOMPARE(d->Editore()->LeggiDenominazione(), QString());
    QVERIFY(!d->cmdCollega->isEnabled());
    QVERIFY(d->cmdNuovoSog->isEnabled());
    d->cmdNuovoSog->click();
    QCOMPARE(d->sStato, QStringLiteral("nuovo"));
    QCOMPARE(d->sTipo, QStringLiteral("titolare"));
    ScriviTesto(d->Editore(), 0, QStringLiteral("Comune di Lucca"));
    d->cmdAnnulla->click();
    QCOMPARE(d->sStato, QStringLiteral("mostra"));
    QCOMPARE(d->Editore()->LeggiDenominazione(), QString());
    QCOMPARE(d->Modello(0).Righe(), 0);
    QVERIFY(d->cmdNuovoSog->isEnabled());
    QVERIFY(!d->cmdConferma->isEnabled());
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Titolari"), {}), 0);
    d->cmdAnnullaCol->click();
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari"), {}), 0);
}

void TestLinkPuntiAccesso::chiudereIlDialogoAzzeraIlFlagDellaFinestra() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const Oggetti o = a.NuoviOggetti();
    const struct {
        const char* dialogo;
        bool* flag;
    } casi[] = {{"frmLinkAntroponimi", &Sessione::bFrmAntroponimiAperto},
                {"frmLinkToponimi", &Sessione::bFrmToponimiAperto},
                {"frmLinkTitolari", &Sessione::bFrmTitolariAperto}};
    for (const auto& caso : casi) {
        Servi(o.idPergamena, 1);
        *caso.flag = true;
        bool bChiuso = false;
        AlComparire(QLatin1String(caso.dialogo), [&bChiuso](QWidget* d) {
            QTest::keyClick(d, Qt::Key_Escape);
            bChiuso = true;
        });
        QVERIFY(Dialoghi::Apri(QLatin1String(caso.dialogo), nullptr));
        QVERIFY(bChiuso);
        QVERIFY2(!*caso.flag, caso.dialogo);
    }
    QCOMPARE(a.seam.Messaggi().size(), 0);
}

QTEST_MAIN(TestLinkPuntiAccesso)
#include "tst_linkpuntiaccesso.moc"
