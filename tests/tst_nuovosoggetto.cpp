// The producers' link dialog "Collegamenti ai Soggetti produttori" of a complesso and of a unit:
// its three tabs each read at its first showing, the producers linked already ticked, in bold
// and not untickable, the slots of the ticks, the links written by Collega only where missing
// (checked here with queries of the test's own), a new producer made on the spot and tied, a new
// producer given up, texts with quotes and accents, a complesso deleted by another workstation
// while the dialog is open, a list that cannot be read, on SQLite and on PostgreSQL.

#include "authorities/ucEnte.h"
#include "authorities/ucFamiglia.h"
#include "authorities/ucPersona.h"
#include "links/ModelloSpunte.h"
#include "links/frmNuovoSoggetto.h"
#include "programma/Registro.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"
#include "Modali.h"

#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTreeView>
#include <QtTest>
#include <memory>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// A fresh database with an institute, a complesso under it, a finding aid and a unit of it, and
// the bodies' profiles in the program folder; the session's values of the dialog as new.
struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("Soggetti"), {"ProfiliEnti.txt"}) {
        istituto = CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
        complesso = Crea("02", QStringLiteral("Fondo Guinigi"), istituto);
        inventario = Crea("03", QStringLiteral("Inventario"), istituto);
        unita = Crea("07", QStringLiteral("Busta 1"), inventario);
        Sessione::aSelSoggetti.clear();
        Sessione::iEsitoLinkSogg = 0;
        Sessione::iTipoSogg = 0;
        Servi(complesso, false);
    }
    ~Ambiente() { Sessione::aSelSoggetti.clear(); }

    // The dialog will serve the complesso or the unit.
    static void Servi(long lIdElemento, bool bUnita) {
        Sessione::sTipoLink = bUnita ? QStringLiteral("1") : QStringLiteral("0");
        Sessione::lIdComplesso = bUnita ? 0 : lIdElemento;
        Sessione::lIdDatoInventariale = bUnita ? lIdElemento : 0;
        Sessione::sDenomComplesso = QStringLiteral("Fondo");
        Sessione::sDenomInventario = bUnita ? QStringLiteral("Busta 1") : QString();
    }

    // A producer made behind the dialog's back: its ID_Soggetto.
    qint64 Produttore(const QString& nome, const char* tipo) const {
        return Cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                               {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                               {nome, QLatin1String(tipo)});
    }
    qint64 ChiaveComplesso() const {
        return Valore(QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE "
                                     "ID_Elemento = ?"),
                      {Id(complesso)})
            .toLongLong();
    }
    qint64 ChiaveUnita() const {
        return Valore(QStringLiteral("SELECT ID_DatoInventariale FROM DatiInventariali WHERE "
                                     "ID_Elemento = ?"),
                      {Id(unita)})
            .toLongLong();
    }
    // The rows that tie a producer to the complesso, and to the unit.
    int LegamiComplesso(qint64 soggetto) const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM ComplessiDocSoggetti WHERE "
                                     "ID_ComplessoDoc = ? AND ID_Soggetto = ?"),
                      {L(ChiaveComplesso()), L(soggetto)})
            .toInt();
    }
    int LegamiUnita(qint64 soggetto) const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM DatiInventarialiSoggetti WHERE "
                                     "ID_DatoInventariale = ? AND ID_Soggetto = ?"),
                      {L(ChiaveUnita()), L(soggetto)})
            .toInt();
    }
    void LegaAlComplesso(qint64 soggetto) const {
        Cnn().Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, "
                                    "ID_Soggetto) VALUES (?, ?)"),
                     {L(ChiaveComplesso()), L(soggetto)});
    }
    int Conta(const QString& sql, std::initializer_list<QVariant> valori = {}) const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM ") + sql, valori).toInt();
    }

    long istituto = 0;
    long complesso = 0;
    long inventario = 0;
    long unita = 0;
};

// The dialog as its opener shows it.
std::unique_ptr<frmNuovoSoggetto> Apri() {
    auto dialogo = std::make_unique<frmNuovoSoggetto>();
    dialogo->show();
    return dialogo;
}

QStringList Testi(const frmNuovoSoggetto& d, int iScheda) {
    QStringList testi;
    for (int i = 0; i < d.Modello(iScheda).Righe(); ++i) {
        testi.append(d.Modello(iScheda).Testo(i));
    }
    return testi;
}

// The ticks of a tab as 0/1, row by row.
QString Spunte(const frmNuovoSoggetto& d, int iScheda) {
    QString s;
    for (int i = 0; i < d.Modello(iScheda).Righe(); ++i) {
        s += d.Modello(iScheda).Spuntata(i) ? u'1' : u'0';
    }
    return s;
}

// The user's tick on a row of the tab on show: the row made the current one, then the space
// key, as on the keyboard.
void Spunta(frmNuovoSoggetto& d, int iRiga) {
    const int iScheda = d.PaginaCorrente();
    QTreeView* lista = d.Lista(iScheda);
    lista->setCurrentIndex(d.Modello(iScheda).index(iRiga));
    QTest::keyClick(lista, Qt::Key_Space);
}

QLineEdit* Casella(const QWidget* finestra, const QString& nome) {
    return Controllo<QLineEdit>(finestra, nome);
}

// The mandatory fields of a new person, the name given.
void CompilaPersona(const QWidget* editore, const QString& nome) {
    ScriviTesto(editore, 0, nome);
    ScriviTesto(editore, 1, QStringLiteral("notaio"));
    ScriviTesto(editore, 4, QStringLiteral("Città d'Ìschia"));
    ScriviTesto(editore, 6, QStringLiteral("Lucca"));
    ScriviTesto(editore, 7, QStringLiteral("1400"));
    ScriviTesto(editore, 9, QStringLiteral("sec. XV"));
    ScriviTesto(editore, 14, QStringLiteral("Maria d'Àngelo"));
}

} // namespace

class TestNuovoSoggetto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }

    void leTreSchedeSiLeggonoAllaPrimaVisitaConIlegatiSpuntatiInGrassetto_data() {
        AggiungiBackend();
    }
    void leTreSchedeSiLeggonoAllaPrimaVisitaConIlegatiSpuntatiInGrassetto();
    void spuntareETogliereLaSpuntaLasciaUnPostoAZeroECollegaSpento_data() { AggiungiBackend(); }
    void spuntareETogliereLaSpuntaLasciaUnPostoAZeroECollegaSpento();
    void unProduttoreGiaLegatoRestaSpuntatoQualunqueCosaFacciaLUtente_data() { AggiungiBackend(); }
    void unProduttoreGiaLegatoRestaSpuntatoQualunqueCosaFacciaLUtente();
    void loStessoProduttoreSpuntatoInDueAperturaHaUnaSolaRiga_data() { AggiungiBackend(); }
    void loStessoProduttoreSpuntatoInDueAperturaHaUnaSolaRiga();
    void unLegameDoppioESoloSpuntato_data() { AggiungiBackend(); }
    void unLegameDoppioESoloSpuntato();
    void unProduttoreSiLegaAUnComplessoEAUnUnita_data() { AggiungiBackend(); }
    void unProduttoreSiLegaAUnComplessoEAUnUnita();
    void unNuovoProduttoreFattoSulPostoSiLega_data() { AggiungiBackend(); }
    void unNuovoProduttoreFattoSulPostoSiLega();
    void unNuovoProduttoreAnnullatoNonScriveNulla_data() { AggiungiBackend(); }
    void unNuovoProduttoreAnnullatoNonScriveNulla();
    void nomiConApostrofiVirgoletteEAccentiSiMostranoESiLegano_data() { AggiungiBackend(); }
    void nomiConApostrofiVirgoletteEAccentiSiMostranoESiLegano();
    void unComplessoCancellatoNelFrattempoDaErroreO1ENessunLegame_data() { AggiungiBackend(); }
    void unComplessoCancellatoNelFrattempoDaErroreO1ENessunLegame();
    void unaListaCheNonSiLeggeDaErroreU5_data() { AggiungiBackend(); }
    void unaListaCheNonSiLeggeDaErroreU5();
    void annullaCollegamentoNonScriveNullaETieneLaScheda_data() { AggiungiBackend(); }
    void annullaCollegamentoNonScriveNullaETieneLaScheda();
    void apertoPerNomeConINomiSceltiBloccati_data() { AggiungiBackend(); }
    void apertoPerNomeConINomiSceltiBloccati();
};

void TestNuovoSoggetto::leTreSchedeSiLeggonoAllaPrimaVisitaConIlegatiSpuntatiInGrassetto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario "), "P");
    a.Cnn().Esegui(
        QStringLiteral("UPDATE Persone SET LuogoNascita = ?, DataNascita = ?, "
                       "LuogoMorte = ?, DataMorte = ? WHERE ID_Soggetto = ?"),
        {QStringLiteral("Roma"), 19000201, QStringLiteral("Milano"), 19700403, L(rossi)});
    const qint64 bianchi = a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    a.Produttore(QStringLiteral("Arnolfini "), "F");
    const qint64 guinigi = a.Produttore(QStringLiteral("Guinigi"), "F");
    a.Cnn().Esegui(QStringLiteral("UPDATE Famiglie SET Titoli = ?, DescrizioneEstremi = ? WHERE "
                                  "ID_Soggetto = ?"),
                   {QStringLiteral("conti"), QStringLiteral("(1300-1500)"), L(guinigi)});
    const qint64 spedale = a.Produttore(QStringLiteral("Spedale"), "E");
    a.Cnn().Esegui(QStringLiteral("UPDATE Enti SET Sede = ? WHERE ID_Soggetto = ?"),
                   {QStringLiteral("Altopascio"), L(spedale)});
    a.LegaAlComplesso(rossi);
    a.LegaAlComplesso(guinigi);
    Sessione::iTipoSogg = 1;
    Sessione::aSelSoggetti = {99, 0};

    auto d = Apri();
    QCOMPARE(d->objectName(), QStringLiteral("frmNuovoSoggetto"));
    QCOMPARE(d->windowTitle(), QStringLiteral("Collegamenti ai Soggetti produttori"));
    QCOMPARE(d->SSTab1->count(), 3);
    QCOMPARE(d->SSTab1->tabText(0), QStringLiteral("Persone"));
    QCOMPARE(d->SSTab1->tabText(1), QStringLiteral("Famiglie"));
    QCOMPARE(d->SSTab1->tabText(2), QStringLiteral("Enti"));
    QCOMPARE(d->cmdCollega->text(), QStringLiteral("Collega"));
    QCOMPARE(d->cmdAnnullaCol->text(), QStringLiteral("Annulla collegamento"));
    QCOMPARE(d->cmdNuovoSog->text(), QStringLiteral("Nuovo Soggetto"));
    QCOMPARE(d->cmdConferma->text(), QStringLiteral("Conferma dati"));
    QCOMPARE(d->cmdAnnulla->text(), QStringLiteral("Annulla"));
    for (int n = 0; n < 3; ++n) {
        QCOMPARE(Controllo<QLabel>(d.get(), QStringLiteral("Label2(%1)").arg(n))->text(),
                 QStringLiteral("Complesso documentario selezionato"));
        QCOMPARE(Casella(d.get(), QStringLiteral("Text2(%1)").arg(n))->text(),
                 QStringLiteral("Fondo"));
        QVERIFY(!Casella(d.get(), QStringLiteral("Text1(%1)").arg(n))->isReadOnly());
    }
    // The slots start empty; nothing to tie yet.
    QVERIFY(Sessione::aSelSoggetti.isEmpty());
    QCOMPARE(d->lNumSel, 0L);
    QVERIFY(!d->cmdCollega->isEnabled());
    QVERIFY(d->cmdAnnullaCol->isEnabled());
    QVERIFY(d->cmdNuovoSog->isEnabled());
    QVERIFY(!d->cmdConferma->isEnabled());
    QVERIFY(!d->cmdAnnulla->isEnabled());

    // The tab asked for is the one on show, and the only one read.
    QCOMPARE(d->PaginaCorrente(), 1);
    QVERIFY(d->Caricata(1));
    QVERIFY(!d->Caricata(0));
    QVERIFY(!d->Caricata(2));
    QCOMPARE(d->Modello(1).headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Denominazione, Titoli (Estremi cronologici)"));
    QCOMPARE(Testi(*d, 1), QStringList({QStringLiteral("Arnolfini,  ()"),
                                        QStringLiteral("Guinigi, conti (1300-1500)")}));
    QCOMPARE(Spunte(*d, 1), QStringLiteral("01"));
    QCOMPARE(d->Modello(1).Tag(1), 1);
    QCOMPARE(d->Modello(1).Tag(0), 0);
    QVERIFY(d->Modello(1).data(d->Modello(1).index(1), Qt::FontRole).value<QFont>().bold());
    QVERIFY(!d->Modello(1).data(d->Modello(1).index(0), Qt::FontRole).value<QFont>().bold());
    QCOMPARE(d->Modello(1).data(d->Modello(1).index(1), ModelloElenco::RuoloChiave).toString(),
             QStringLiteral("ID%1").arg(guinigi));
    // The first item is shown in the family's editor.
    QCOMPARE(d->sTipo, QStringLiteral("famiglia"));
    QCOMPARE(d->sStato, QStringLiteral("mostra"));
    QVERIFY(!d->fraFamiglia->isHidden());
    QVERIFY(d->fraPersona->isHidden());
    QCOMPARE(Testo(d->fraFamiglia, 0), QStringLiteral("Arnolfini "));

    // The persons at their first showing; a click shows a person.
    d->SSTab1->setCurrentIndex(0);
    QVERIFY(d->Caricata(0));
    QVERIFY(!d->Caricata(2));
    QCOMPARE(d->Modello(0).headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Cognome e Nome (Nascita - Morte)"));
    QCOMPARE(Testi(*d, 0),
             QStringList({QStringLiteral("Bianchi Anna"),
                          QStringLiteral("Rossi Mario, (Roma 01/02/1900 - Milano 03/04/1970)")}));
    QCOMPARE(Spunte(*d, 0), QStringLiteral("01"));
    QCOMPARE(d->aId[0], bianchi);
    QCOMPARE(Testo(d->fraPersona, 0), QStringLiteral("Bianchi Anna"));
    d->Lista(0)->setCurrentIndex(d->Modello(0).index(1));
    QCOMPARE(d->aId[0], rossi);
    QCOMPARE(d->aChiave[0], QStringLiteral("ID%1").arg(rossi));
    QCOMPARE(Testo(d->fraPersona, 2), QStringLiteral("01/02/1900"));
    QVERIFY(!d->fraPersona->isHidden());
    QVERIFY(d->fraFamiglia->isHidden());

    d->SSTab1->setCurrentIndex(2);
    QCOMPARE(d->Modello(2).headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Denominazione, Sede (Estremi cronologici)"));
    QCOMPARE(Testi(*d, 2), QStringList({QStringLiteral("Spedale, Altopascio ()")}));
    QCOMPARE(Spunte(*d, 2), QStringLiteral("0"));
    QCOMPARE(d->sTipo, QStringLiteral("ente"));

    // A list is read once for each opening: another workstation's producer comes only later.
    a.Produttore(QStringLiteral("Conti Lia"), "P");
    d->SSTab1->setCurrentIndex(0);
    QCOMPARE(d->Modello(0).Righe(), 2);
    d = Apri();
    QCOMPARE(d->PaginaCorrente(), 1);
    d->SSTab1->setCurrentIndex(0);
    QCOMPARE(d->Modello(0).Righe(), 3);
    QVERIFY(a.seam.Messaggi().isEmpty());

    // Serving a unit: its own label, and its links ticked, not the complesso's.
    Ambiente::Servi(a.unita, true);
    a.Cnn().Esegui(QStringLiteral("INSERT INTO DatiInventarialiSoggetti (ID_DatoInventariale, "
                                  "ID_Soggetto) VALUES (?, ?)"),
                   {L(a.ChiaveUnita()), L(bianchi)});
    Sessione::iTipoSogg = 0;
    d = Apri();
    QCOMPARE(Controllo<QLabel>(d.get(), QStringLiteral("Label2(0)"))->text(),
             QStringLiteral("Inventario base selezionato"));
    QCOMPARE(Casella(d.get(), QStringLiteral("Text2(2)"))->text(), QStringLiteral("Busta 1"));
    QCOMPARE(Testi(*d, 0).value(0), QStringLiteral("Bianchi Anna"));
    QCOMPARE(Spunte(*d, 0), QStringLiteral("100"));
}

void TestNuovoSoggetto::spuntareETogliereLaSpuntaLasciaUnPostoAZeroECollegaSpento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 bianchi = a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    auto d = Apri();
    QCOMPARE(Spunte(*d, 0), QStringLiteral("00"));

    Spunta(*d, 1);
    QCOMPARE(Spunte(*d, 0), QStringLiteral("01"));
    QCOMPARE(Sessione::aSelSoggetti, QVector<long>({static_cast<long>(rossi)}));
    QCOMPARE(d->lNumSel, 1L);
    QVERIFY(d->cmdCollega->isEnabled());
    QCOMPARE(d->Scelti(0)->text(), QStringLiteral("Rossi Mario"));

    // Unticked: its slot stays, at 0, and there is nothing to tie.
    Spunta(*d, 1);
    QCOMPARE(Spunte(*d, 0), QStringLiteral("00"));
    QCOMPARE(Sessione::aSelSoggetti, QVector<long>({0}));
    QCOMPARE(d->lNumSel, 1L);
    QVERIFY(!d->cmdCollega->isEnabled());
    QCOMPARE(d->Scelti(0)->text(), QString());

    // Two ticked, one unticked: still something to tie; the names in the list's order.
    Spunta(*d, 1);
    Spunta(*d, 0);
    QCOMPARE(d->Scelti(0)->text(), QStringLiteral("Bianchi Anna, Rossi Mario"));
    Spunta(*d, 1);
    QCOMPARE(Sessione::aSelSoggetti, QVector<long>({0, 0, static_cast<long>(bianchi)}));
    QCOMPARE(d->lNumSel, 3L);
    QVERIFY(d->cmdCollega->isEnabled());
    QCOMPARE(d->Scelti(0)->text(), QStringLiteral("Bianchi Anna"));

    d->cmdCollega->click();
    QCOMPARE(d->result(), int(QDialog::Accepted));
    QVERIFY(d->isHidden());
    QCOMPARE(a.LegamiComplesso(bianchi), 1);
    QCOMPARE(a.LegamiComplesso(rossi), 0);
    QCOMPARE(Sessione::iEsitoLinkSogg, 1);
    QVERIFY(a.seam.Messaggi().isEmpty());
}

void TestNuovoSoggetto::unProduttoreGiaLegatoRestaSpuntatoQualunqueCosaFacciaLUtente() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 ente = a.Produttore(QStringLiteral("Spedale"), "E");
    a.LegaAlComplesso(ente);
    Sessione::iTipoSogg = 2;
    auto d = Apri();
    QCOMPARE(Spunte(*d, 2), QStringLiteral("1"));
    Spunta(*d, 0);
    QCOMPARE(Spunte(*d, 2), QStringLiteral("1"));
    Spunta(*d, 0);
    QCOMPARE(Spunte(*d, 2), QStringLiteral("1"));
    d->Modello(2).setData(d->Modello(2).index(0), Qt::Unchecked, Qt::CheckStateRole);
    QCOMPARE(Spunte(*d, 2), QStringLiteral("1"));
    // Nothing goes in the slots nor in the names chosen, and there is nothing to tie.
    QVERIFY(Sessione::aSelSoggetti.isEmpty());
    QCOMPARE(d->lNumSel, 0L);
    QCOMPARE(d->Scelti(2)->text(), QString());
    QVERIFY(!d->cmdCollega->isEnabled());
    QCOMPARE(a.LegamiComplesso(ente), 1);
}

void TestNuovoSoggetto::loStessoProduttoreSpuntatoInDueAperturaHaUnaSolaRiga() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 famiglia = a.Produttore(QStringLiteral("Guinigi"), "F");
    Sessione::iTipoSogg = 1;
    // Two dialogs open at once, as on two workstations: the first ties the family, the second
    // ticks it too, its list read before the first wrote.
    auto primo = Apri();
    auto secondo = Apri();
    Spunta(*primo, 0);
    primo->cmdCollega->click();
    QCOMPARE(Sessione::iEsitoLinkSogg, 1);
    QCOMPARE(a.LegamiComplesso(famiglia), 1);
    QCOMPARE(secondo->Modello(1).Tag(0), 0);
    Spunta(*secondo, 0);
    QVERIFY(secondo->cmdCollega->isEnabled());
    secondo->cmdCollega->click();
    QCOMPARE(secondo->result(), int(QDialog::Accepted));
    // No error for a pair that exists, and no link added.
    QVERIFY(a.seam.Messaggi().isEmpty());
    QCOMPARE(Sessione::iEsitoLinkSogg, 0);
    QCOMPARE(a.LegamiComplesso(famiglia), 1);
    // Opened again: ticked, Tag 1.
    auto terzo = Apri();
    QCOMPARE(Spunte(*terzo, 1), QStringLiteral("1"));
    QCOMPARE(terzo->Modello(1).Tag(0), 1);
}

void TestNuovoSoggetto::unLegameDoppioESoloSpuntato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    // A table of links without its key, as an old database may hold it, with the same link
    // twice.
    if (backend == TipoBackend::SQLite) {
        a.Cnn().Esegui(
            QStringLiteral("ALTER TABLE ComplessiDocSoggetti RENAME TO ComplessiDocSoggettiPrima"));
        a.Cnn().Esegui(QStringLiteral("CREATE TABLE ComplessiDocSoggetti (ID_ComplessoDoc "
                                      "INTEGER NOT NULL, ID_Soggetto INTEGER NOT NULL)"));
    } else {
        a.Cnn().Esegui(QStringLiteral(
            "ALTER TABLE ComplessiDocSoggetti DROP CONSTRAINT complessidocsoggetti_pkey"));
    }
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    a.Produttore(QStringLiteral("Verdi Ugo"), "P");
    a.LegaAlComplesso(rossi);
    a.LegaAlComplesso(rossi);
    QCOMPARE(a.LegamiComplesso(rossi), 2);
    auto d = Apri();
    QCOMPARE(Testi(*d, 0),
             QStringList({QStringLiteral("Rossi Mario"), QStringLiteral("Verdi Ugo")}));
    QCOMPARE(Spunte(*d, 0), QStringLiteral("10"));
    QCOMPARE(d->Modello(0).Tag(0), 1);
    Spunta(*d, 0);
    QCOMPARE(Spunte(*d, 0), QStringLiteral("10"));
}

void TestNuovoSoggetto::unProduttoreSiLegaAUnComplessoEAUnUnita() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    const qint64 ente = a.Produttore(QStringLiteral("Spedale"), "E");
    auto d = Apri();
    Spunta(*d, 0);
    d->SSTab1->setCurrentIndex(2);
    Spunta(*d, 0);
    QCOMPARE(d->Scelti(0)->text(), QStringLiteral("Rossi Mario"));
    QCOMPARE(d->Scelti(2)->text(), QStringLiteral("Spedale,  ()"));
    d->cmdCollega->click();
    QCOMPARE(Sessione::iEsitoLinkSogg, 1);
    QCOMPARE(a.LegamiComplesso(rossi), 1);
    QCOMPARE(a.LegamiComplesso(ente), 1);
    QCOMPARE(a.LegamiUnita(rossi), 0);
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti")), 2);

    Ambiente::Servi(a.unita, true);
    d = Apri();
    QCOMPARE(Spunte(*d, 0), QStringLiteral("0"));
    Spunta(*d, 0);
    d->cmdCollega->click();
    QCOMPARE(Sessione::iEsitoLinkSogg, 1);
    QCOMPARE(a.LegamiUnita(rossi), 1);
    QCOMPARE(a.LegamiUnita(ente), 0);
    QCOMPARE(a.Conta(QStringLiteral("DatiInventarialiSoggetti")), 1);
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti")), 2);
    QVERIFY(a.seam.Messaggi().isEmpty());
}

void TestNuovoSoggetto::unNuovoProduttoreFattoSulPostoSiLega() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Produttore(QStringLiteral("Rossi Mario"), "P");
    a.Produttore(QStringLiteral("Guinigi"), "F");
    auto d = Apri();
    d->cmdNuovoSog->click();
    QCOMPARE(d->sStato, QStringLiteral("nuovo"));
    QCOMPARE(d->sTipo, QStringLiteral("persona"));
    QVERIFY(!d->cmdNuovoSog->isEnabled());
    QVERIFY(!d->cmdCollega->isEnabled());
    QVERIFY(!d->cmdAnnullaCol->isEnabled());
    QVERIFY(!d->Lista(0)->isEnabled());
    QVERIFY(d->SSTab1->isTabEnabled(0));
    QVERIFY(!d->SSTab1->isTabEnabled(1));
    QVERIFY(!d->SSTab1->isTabEnabled(2));
    QVERIFY(d->cmdConferma->isEnabled());
    QVERIFY(d->cmdAnnulla->isEnabled());
    QCOMPARE(Testo(d->fraPersona, 0), QString());

    // The mandatory walk refuses an empty form; nothing is written.
    const int iSoggetti = a.Conta(QStringLiteral("Soggetti"));
    d->cmdConferma->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi()[0].sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(a.Conta(QStringLiteral("Soggetti")), iSoggetti);
    QCOMPARE(d->sStato, QStringLiteral("nuovo"));

    CompilaPersona(d->fraPersona, QStringLiteral("Àlberti d'Orsù \"Nino\""));
    d->cmdConferma->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const qint64 nuovo =
        a.Valore(QStringLiteral("SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = ?"),
                 {QStringLiteral("Àlberti d'Orsù \"Nino\"")})
            .toLongLong();
    QVERIFY(nuovo > 0);
    QCOMPARE(a.Valore(QStringLiteral("SELECT TipoSoggetto FROM Soggetti WHERE ID_Soggetto = ?"),
                      {L(nuovo)})
                 .toString(),
             QStringLiteral("P"));
    QCOMPARE(a.Valore(QStringLiteral("SELECT LuogoNascita FROM Persone WHERE ID_Soggetto = ?"),
                      {L(nuovo)})
                 .toString(),
             QStringLiteral("Città d'Ìschia"));
    // At the end of the list, unticked, Tag 0, chosen; the dialog back to browsing.
    QCOMPARE(d->sStato, QStringLiteral("mostra"));
    QCOMPARE(Testi(*d, 0).value(1), QStringLiteral("Àlberti d'Orsù \"Nino\", (Città d'Ìschia)"));
    QCOMPARE(Spunte(*d, 0), QStringLiteral("00"));
    QCOMPARE(d->Modello(0).Tag(1), 0);
    QCOMPARE(d->Lista(0)->currentIndex().row(), 1);
    QCOMPARE(d->aId[0], nuovo);
    QVERIFY(d->cmdNuovoSog->isEnabled());
    QVERIFY(d->cmdAnnullaCol->isEnabled());
    QVERIFY(!d->cmdCollega->isEnabled());
    QVERIFY(d->Lista(0)->isEnabled());
    QVERIFY(d->SSTab1->isTabEnabled(2));
    QVERIFY(!d->cmdConferma->isEnabled());

    // Ticked and tied.
    Spunta(*d, 1);
    QCOMPARE(d->Scelti(0)->text(), QStringLiteral("Àlberti d'Orsù \"Nino\", (Città d'Ìschia)"));
    d->cmdCollega->click();
    QCOMPARE(a.LegamiComplesso(nuovo), 1);
    QCOMPARE(Sessione::iEsitoLinkSogg, 1);
}

void TestNuovoSoggetto::unNuovoProduttoreAnnullatoNonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    auto d = Apri();
    Spunta(*d, 0);
    d->cmdNuovoSog->click();
    CompilaPersona(d->fraPersona, QStringLiteral("Verdi Ugo"));
    d->cmdAnnulla->click();
    QCOMPARE(d->sStato, QStringLiteral("mostra"));
    QCOMPARE(a.Conta(QStringLiteral("Soggetti")), 1);
    QCOMPARE(a.Conta(QStringLiteral("Persone")), 1);
    QCOMPARE(d->Modello(0).Righe(), 1);
    // The item chosen before is shown again; the tick kept, something to tie.
    QCOMPARE(Testo(d->fraPersona, 0), QStringLiteral("Rossi Mario"));
    QCOMPARE(d->aId[0], rossi);
    QVERIFY(d->cmdCollega->isEnabled());
    QVERIFY(d->cmdNuovoSog->isEnabled());
    QVERIFY(!d->cmdAnnulla->isEnabled());

    // On an empty tab the editor is left cleared.
    d->SSTab1->setCurrentIndex(2);
    d->cmdNuovoSog->click();
    ScriviTesto(d->fraEnte, 0, QStringLiteral("Spedale"));
    d->cmdAnnulla->click();
    QCOMPARE(Testo(d->fraEnte, 0), QString());
    QCOMPARE(d->Modello(2).Righe(), 0);
    QCOMPARE(a.Conta(QStringLiteral("Soggetti")), 1);
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti")), 0);
    QVERIFY(a.seam.Messaggi().isEmpty());
}

void TestNuovoSoggetto::nomiConApostrofiVirgoletteEAccentiSiMostranoESiLegano() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const QString nome = QStringLiteral("Opera di Sant'Àgata \"la nuova\"; --");
    const qint64 ente = a.Produttore(nome, "E");
    a.Cnn().Esegui(QStringLiteral("UPDATE Enti SET Sede = ?, DescrizioneEstremi = ? WHERE "
                                  "ID_Soggetto = ?"),
                   {QStringLiteral("Forlì"), QStringLiteral("sec. XIX 'circa'"), L(ente)});
    Sessione::sDenomComplesso = QStringLiteral("Fondo dell'Opera \"è\"");
    Sessione::iTipoSogg = 2;
    auto d = Apri();
    QCOMPARE(Casella(d.get(), QStringLiteral("Text2(2)"))->text(),
             QStringLiteral("Fondo dell'Opera \"è\""));
    QCOMPARE(Testi(*d, 2), QStringList({nome + QStringLiteral(", Forlì (sec. XIX 'circa')")}));
    Spunta(*d, 0);
    d->cmdCollega->click();
    QCOMPARE(a.LegamiComplesso(ente), 1);
    QVERIFY(a.seam.Messaggi().isEmpty());
}

void TestNuovoSoggetto::unComplessoCancellatoNelFrattempoDaErroreO1ENessunLegame() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    const qint64 bianchi = a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    auto d = Apri();
    Spunta(*d, 0);
    Spunta(*d, 1);
    // Another workstation deletes the complesso.
    a.Cnn().Esegui(QStringLiteral("DELETE FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {Id(a.complesso)});
    d->cmdCollega->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    const Messaggio box = a.seam.Messaggi()[0];
    QCOMPARE(box.sTitolo, QStringLiteral("Errore O1"));
    QCOMPARE(box.icona, Icona::Critica);
    QVERIFY2(box.sTesto.startsWith(QStringLiteral("frmNuovoSoggetto\n")), qPrintable(box.sTesto));
    // No half-made link; the dialog stays open.
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti WHERE ID_Soggetto IN (?, ?)"),
                     {L(rossi), L(bianchi)}),
             0);
    QCOMPARE(Sessione::iEsitoLinkSogg, 0);
    QVERIFY(d->isVisible());
    QCOMPARE(d->result(), int(QDialog::Rejected));
}

void TestNuovoSoggetto::unaListaCheNonSiLeggeDaErroreU5() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Produttore(QStringLiteral("Rossi Mario"), "P");
    a.Produttore(QStringLiteral("Guinigi"), "F");
    auto d = Apri();
    QCOMPARE(d->Modello(0).Righe(), 1);
    a.Cnn().Esegui(QStringLiteral("ALTER TABLE Famiglie RENAME TO FamiglieAltrove"));
    d->SSTab1->setCurrentIndex(1);
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi()[0].sTitolo, QStringLiteral("Errore U5"));
    QCOMPARE(a.seam.Messaggi()[0].icona, Icona::Critica);
    QVERIFY(a.seam.Messaggi()[0].sTesto.startsWith(QStringLiteral("frmNuovoSoggetto\n")));
    QCOMPARE(d->Modello(1).Righe(), 0);
    QVERIFY(d->Caricata(1));
    // Read once: no second box when the tab comes back.
    d->SSTab1->setCurrentIndex(0);
    d->SSTab1->setCurrentIndex(1);
    QCOMPARE(a.seam.Messaggi().size(), 1);
}

void TestNuovoSoggetto::annullaCollegamentoNonScriveNullaETieneLaScheda() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Produttore(QStringLiteral("Rossi Mario"), "P");
    a.Produttore(QStringLiteral("Spedale"), "E");
    Sessione::iEsitoLinkSogg = 7;
    auto d = Apri();
    Spunta(*d, 0);
    d->SSTab1->setCurrentIndex(2);
    Spunta(*d, 0);
    d->cmdAnnullaCol->click();
    QCOMPARE(d->result(), int(QDialog::Rejected));
    QVERIFY(d->isHidden());
    QCOMPARE(Sessione::iTipoSogg, static_cast<unsigned char>(2));
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti")), 0);
    QCOMPARE(Sessione::iEsitoLinkSogg, 7);
    // Reopened on the tab kept; the slots start again.
    d = Apri();
    QCOMPARE(d->PaginaCorrente(), 2);
    QCOMPARE(Spunte(*d, 2), QStringLiteral("0"));
    QVERIFY(Sessione::aSelSoggetti.isEmpty());
    // Escape closes it as well.
    QTest::keyClick(d->Lista(2), Qt::Key_Escape);
    QVERIFY(d->isHidden());
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti")), 0);
}

void TestNuovoSoggetto::apertoPerNomeConINomiSceltiBloccati() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    Sessione::bFrmSoggettiAperto = true;
    bool bVisto = false;
    AlComparire(QStringLiteral("frmNuovoSoggetto"), [&](QWidget* finestra) {
        auto* d = qobject_cast<frmNuovoSoggetto*>(finestra);
        QVERIFY(d);
        bVisto = true;
        QVERIFY(d->bLockSelSogg);
        for (int n = 0; n < 3; ++n) {
            QVERIFY(Casella(d, QStringLiteral("Text1(%1)").arg(n))->isReadOnly());
        }
        Spunta(*d, 0);
        QCOMPARE(d->Scelti(0)->text(), QStringLiteral("Rossi Mario"));
        d->cmdCollega->click();
    });
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmNuovoSoggetto"), nullptr,
                           {{QStringLiteral("bLockSelSogg"), true}}));
    QVERIFY(bVisto);
    QCOMPARE(a.LegamiComplesso(rossi), 1);
    // Closing the dialog clears the flag of the producers' window.
    QVERIFY(!Sessione::bFrmSoggettiAperto);
}

QTEST_MAIN(TestNuovoSoggetto)
#include "tst_nuovosoggetto.moc"
