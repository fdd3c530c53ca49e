// The viewers of links opened from their records and windows, on SQLite and on PostgreSQL: a link
// deleted in the viewer turns the record's button off and the tree's image of the complesso or of
// the finding aid without a reload; and on the demo archive every viewer shows exactly the links
// that the database holds for its object, and deletes one.

#include "links/VisualizzatoriLink.h"
#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "records/ucDatiInventariali.h"
#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Dialoghi.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmStrutturaCD.h"
#include "structure/frmStrutturaDI.h"
#include "structure/frmStrutturaIN.h"

#include "AmbienteLink.h"
#include "AmbienteStruttura.h"
#include "Modali.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>
#include <algorithm>
#include <functional>

namespace {

// All the keys of a viewer's lists, sorted.
QList<qint64> TutteLeChiavi(const QWidget* visualizzatore) {
    QList<qint64> chiavi;
    for (const QTreeWidget* lista : visualizzatore->findChildren<QTreeWidget*>()) {
        chiavi << Chiavi(lista);
    }
    std::sort(chiavi.begin(), chiavi.end());
    return chiavi;
}

// Clicks the button and, in the viewer that opens, deletes its first link and closes it: the
// keys the viewer showed and the one deleted.
struct Visto {
    QList<qint64> chiavi;
    qint64 lCancellata = 0;
    bool bAperto = false;
};

Visto CancellaDalPulsante(PiattaformaScriptata& seam, QAbstractButton* pulsante,
                          const QString& sVisualizzatore) {
    Visto visto;
    AlComparire(sVisualizzatore, [&](QWidget* visualizzatore) {
        visto.bAperto = true;
        visto.chiavi = TutteLeChiavi(visualizzatore);
        visto.lCancellata = CancellaLaPrimaVoce(seam, visualizzatore);
        static_cast<QDialog*>(visualizzatore)->reject();
    });
    pulsante->click();
    return visto;
}

void ScegliNodo(QTreeView* albero, const ModelloAlbero& modello, qint64 lId) {
    const QModelIndex nodo = modello.Trova(lId);
    QVERIFY(nodo.isValid());
    albero->setCurrentIndex(nodo);
}

} // namespace

class TestVisualizzatoriAperture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void dalComplessoLUltimoLinkTolteCambiaLImmagineDelNodo_data() { AggiungiBackend(); }
    void dalComplessoLUltimoLinkTolteCambiaLImmagineDelNodo();
    void dalloStrumentoDiRicercaLUltimoComplessoToltoSpegneIlNodo_data() { AggiungiBackend(); }
    void dalloStrumentoDiRicercaLUltimoComplessoToltoSpegneIlNodo();
    void dallInventarioAnaliticoIlVisualizzatoreTogliIlComplesso_data() { AggiungiBackend(); }
    void dallInventarioAnaliticoIlVisualizzatoreTogliIlComplesso();
    void iPulsantiDellaPergamenaSiSpengonoDopoLaCancellazione_data() { AggiungiBackend(); }
    void iPulsantiDellaPergamenaSiSpengonoDopoLaCancellazione();
    void iPulsantiDelSigilloSiSpengonoDopoLaCancellazione_data() { AggiungiBackend(); }
    void iPulsantiDelSigilloSiSpengonoDopoLaCancellazione();
    void iPulsantiDellUnitaSiSpengonoDopoLaCancellazione_data() { AggiungiBackend(); }
    void iPulsantiDellUnitaSiSpengonoDopoLaCancellazione();
    void sulleDemoOgniVisualizzatoreMostraIlinkDelDatabase_data() { AggiungiBackend(); }
    void sulleDemoOgniVisualizzatoreMostraIlinkDelDatabase();
};

void TestVisualizzatoriAperture::dalComplessoLUltimoLinkTolteCambiaLImmagineDelNodo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), ist);
    a.Lega(fondo, inventario);
    const qint64 soggetto =
        a.cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                          {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                          {QStringLiteral("Comune"), QStringLiteral("E")});
    a.cnn().Esegui(
        QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto) "
                       "SELECT ID_ComplessoDoc, ? FROM ComplessiDoc WHERE ID_Elemento = ?"),
        {soggetto, qlonglong(fondo)});
    frmStrutturaCD f;
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(m.Immagine(m.Trova(fondo)), QStringLiteral("islink"));
    ScegliNodo(f.tvwDB, m, fondo);

    const Visto inventari =
        CancellaDalPulsante(a.piattaforma, Pulsante(f.fraComplesso, "cmdMostraLinks"),
                            QStringLiteral("frmMostraLinkCD"));
    QVERIFY(inventari.bAperto);
    QCOMPARE(inventari.chiavi, QList<qint64>{inventario});
    QCOMPARE(a.Righe("Links"), 0);
    QCOMPARE(m.Immagine(m.Trova(fondo)), QStringLiteral("slink"));

    const Visto produttori = CancellaDalPulsante(
        a.piattaforma, Pulsante(f.fraComplesso, "cmdLinkSog"), QStringLiteral("frmMostraLinkCS"));
    QCOMPARE(produttori.chiavi, QList<qint64>{soggetto});
    QCOMPARE(a.Righe("ComplessiDocSoggetti"), 0);
    QCOMPARE(m.Immagine(m.Trova(fondo)), QStringLiteral("nolink"));
    QCOMPARE(m.Id(f.tvwDB->currentIndex()), qint64(fondo));
}

void TestVisualizzatoriAperture::dalloStrumentoDiRicercaLUltimoComplessoToltoSpegneIlNodo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long primo = a.Crea("02", QStringLiteral("Fondo primo"), ist);
    const long secondo = a.Crea("02", QStringLiteral("Fondo secondo"), ist);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), ist);
    a.Lega(primo, inventario);
    a.Lega(secondo, inventario);
    frmStrutturaIN f;
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(m.Immagine(m.Trova(inventario)), QStringLiteral("silink"));
    ScegliNodo(f.tvwDB, m, inventario);
    // One of two: the node keeps its image.
    const Visto uno =
        CancellaDalPulsante(a.piattaforma, f.cmdMostraLinks, QStringLiteral("frmMostraLinkInv"));
    QCOMPARE(uno.chiavi, (QList<qint64>{primo, secondo}));
    QCOMPARE(m.Immagine(m.Trova(inventario)), QStringLiteral("silink"));
    const Visto due =
        CancellaDalPulsante(a.piattaforma, f.cmdMostraLinks, QStringLiteral("frmMostraLinkInv"));
    QCOMPARE(due.chiavi, QList<qint64>{secondo});
    QCOMPARE(a.Righe("Links"), 0);
    QCOMPARE(m.Immagine(m.Trova(inventario)), QStringLiteral("nolink"));
}

void TestVisualizzatoriAperture::dallInventarioAnaliticoIlVisualizzatoreTogliIlComplesso() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    a.ListeInventarioAnalitico();
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), ist);
    a.Lega(fondo, inventario);
    Sessione::lIdInventario = inventario;
    frmStrutturaDI f;
    f.Init(QStringLiteral("01"), QStringLiteral("Fondo"));
    const ModelloAlbero& m = f.Modello();
    ScegliNodo(f.tvwDB, m, inventario);
    QString sEtichetta;
    AlComparire(QStringLiteral("frmMostraLinkInv"), [&](QWidget* visualizzatore) {
        sEtichetta = Controllo<QLabel>(visualizzatore, QStringLiteral("Label1"))->text();
    });
    const Visto visto =
        CancellaDalPulsante(a.piattaforma, f.cmdMostraLinks, QStringLiteral("frmMostraLinkInv"));
    QCOMPARE(sEtichetta, QStringLiteral("Inventario base selezionato"));
    QCOMPARE(visto.chiavi, QList<qint64>{fondo});
    QCOMPARE(a.Righe("Links"), 0);
    QCOMPARE(Sessione::iEsitoLinkCD, 2);
    QCOMPARE(m.Immagine(m.Trova(inventario)), QStringLiteral("nolink"));
    QCOMPARE(m.Id(f.tvwDB->currentIndex()), qint64(inventario));
}

void TestVisualizzatoriAperture::iPulsantiDellaPergamenaSiSpengonoDopoLaCancellazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long pergamena = a.Crea("05", QStringLiteral("P1"), inventario);
    const long idPG = a.Dettaglio("Pergamene", "ID_Pergamena", pergamena);
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), inventario);
    const long persona =
        a.PersonaDiPergamena(idPG, a.Antroponimo(QStringLiteral("Ubaldo")), QVariant());
    const long luogo = a.Toponimo(QStringLiteral("Lucca"));
    a.LuogoDi("PGToponimi", "ID_Pergamena", idPG, luogo);
    a.Lega(fondo, pergamena);
    a.Lega(sigillo, pergamena);
    EditorePronto<ucPergamena> editore(pergamena);
    const struct {
        const char* pulsante;
        const char* visualizzatore;
        qint64 chiave;
    } casi[] = {{"cmdMostraAntroponimi", "frmMostraLinkAnt", persona},
                {"cmdMostraToponimi", "frmMostraLinkTopo", luogo},
                {"cmdMostraLinks", "frmMostraLinkInv", fondo},
                {"cmdMostraSigilli", "frmMostraLinkPGS", sigillo}};
    for (const auto& caso : casi) {
        QAbstractButton* pulsante = Pulsante(&editore, caso.pulsante);
        QVERIFY2(PulsanteAcceso(pulsante), caso.pulsante);
        const Visto visto =
            CancellaDalPulsante(a.seam, pulsante, QLatin1String(caso.visualizzatore));
        QVERIFY2(visto.bAperto, caso.visualizzatore);
        QCOMPARE(visto.chiavi, QList<qint64>{caso.chiave});
        QCOMPARE(visto.lCancellata, caso.chiave);
        QVERIFY2(!PulsanteAcceso(pulsante), caso.pulsante);
    }
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links"), {}), 0);
}

void TestVisualizzatoriAperture::iPulsantiDelSigilloSiSpengonoDopoLaCancellazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long pergamena = a.Crea("05", QStringLiteral("P1"), inventario);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), inventario);
    const long idSG = a.Dettaglio("Sigilli", "ID_Sigillo", sigillo);
    const long riga = a.TitolareDiSigillo(idSG, a.Titolare(QStringLiteral("Capitolo")), QVariant());
    a.Lega(sigillo, pergamena);
    EditorePronto<ucSigillo> editore(sigillo);
    QAbstractButton* titolari = Pulsante(&editore, "cmdMostraTitolari");
    QVERIFY(PulsanteAcceso(titolari));
    const Visto visto =
        CancellaDalPulsante(a.seam, titolari, QStringLiteral("frmMostraLinkTitolari"));
    QCOMPARE(visto.chiavi, QList<qint64>{riga});
    QVERIFY(!PulsanteAcceso(titolari));
    QAbstractButton* pergamene = Pulsante(&editore, "cmdMostraPergamene");
    QVERIFY(PulsanteAcceso(pergamene));
    const Visto documento =
        CancellaDalPulsante(a.seam, pergamene, QStringLiteral("frmMostraLinkPGS"));
    QCOMPARE(documento.chiavi, QList<qint64>{pergamena});
    QVERIFY(!PulsanteAcceso(pergamene));
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM Links"), {}), 0);
}

void TestVisualizzatoriAperture::iPulsantiDellUnitaSiSpengonoDopoLaCancellazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long unita = a.Crea("07", QStringLiteral("Serie"), inventario);
    const long idDI = a.Dettaglio("DatiInventariali", "ID_DatoInventariale", unita);
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long persona = a.PersonaDiUnita(idDI, a.Antroponimo(QStringLiteral("Guido")));
    const long luogo = a.Toponimo(QStringLiteral("Pescia"));
    a.LuogoDi("DIToponimi", "ID_DatoInventariale", idDI, luogo);
    const long soggetto = a.Soggetto(QStringLiteral("Guinigi"), "F");
    a.ProduttoreDi("DatiInventarialiSoggetti", "ID_DatoInventariale", idDI, soggetto);
    a.Cnn().Esegui(QStringLiteral("UPDATE DatiInventariali SET Id_ElemComplDoc = ? WHERE "
                                  "ID_Elemento = ?"),
                   {Id(fondo), Id(unita)});
    EditorePronto<ucDatiInventariali> editore(unita);
    QVERIFY(!editore.OkCancella);
    const struct {
        const char* pulsante;
        const char* visualizzatore;
        qint64 chiave;
    } casi[] = {{"cmdMostraAntroponimi", "frmMostraLinkDIAnt", persona},
                {"cmdMostraToponimi", "frmMostraLinkTopo", luogo},
                {"cmdMostraSoggetti", "frmMostraLinkCS", soggetto},
                {"cmdMostraLink", "frmMostraLinkInv", fondo}};
    for (const auto& caso : casi) {
        QAbstractButton* pulsante = Pulsante(&editore, caso.pulsante);
        QVERIFY2(PulsanteAcceso(pulsante), caso.pulsante);
        const Visto visto =
            CancellaDalPulsante(a.seam, pulsante, QLatin1String(caso.visualizzatore));
        QVERIFY2(visto.bAperto, caso.visualizzatore);
        QCOMPARE(visto.chiavi, QList<qint64>{caso.chiave});
        QVERIFY2(!PulsanteAcceso(pulsante), caso.pulsante);
    }
    // Untied from its complesso, the unit may be deleted.
    QVERIFY(editore.OkCancella);
    QCOMPARE(a.Valore(QStringLiteral("SELECT Id_ElemComplDoc FROM DatiInventariali WHERE "
                                     "ID_Elemento = ?"),
                      {Id(unita)})
                 .toLongLong(),
             0);
}

void TestVisualizzatoriAperture::sulleDemoOgniVisualizzatoreMostraIlinkDelDatabase() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteLink a(backend, {QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")});
    // Each viewer: how the object with most links is chosen, the session values or arguments
    // its opener gives, and the keys of its links by the test's own query.
    struct Caso {
        const char* sNome;
        QString sScelta;
        std::function<QVariantMap(qint64)> imposta;
        QString sChiavi;
    };
    const auto gruppo = [](const char* colonna, const char* tabella, const char* dove = "1 = 1") {
        return QStringLiteral("SELECT %1 FROM %2 WHERE %3 GROUP BY %1 ORDER BY COUNT(*) DESC, %1")
            .arg(QLatin1String(colonna), QLatin1String(tabella), QLatin1String(dove));
    };
    // The viewers of an entry's links, of one kind (0 the parchments', 1 the units'), and those
    // of an object's links as its record's button serves them.
    const auto perSoggetto = [](const QString& sTipo) {
        return [sTipo](qint64 id) {
            Sessione::sTipoLink = sTipo;
            Sessione::lIdSoggetto = static_cast<long>(id);
            return QVariantMap();
        };
    };
    const auto perElementoLink = [](qint64 id) {
        Sessione::lIdElementoLink = static_cast<long>(id);
        return QVariantMap();
    };
    const QList<Caso> casi = {
        {"frmMostraLinkCS",
         gruppo("CD.ID_Elemento", "ComplessiDocSoggetti L JOIN ComplessiDoc CD ON "
                                  "CD.ID_ComplessoDoc = L.ID_ComplessoDoc"),
         [](qint64 id) {
             Sessione::sTipoLink = QStringLiteral("0");
             Sessione::lIdComplesso = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral("SELECT L.ID_Soggetto FROM ComplessiDocSoggetti L JOIN ComplessiDoc CD ON "
                        "CD.ID_ComplessoDoc = L.ID_ComplessoDoc WHERE CD.ID_Elemento = ?")},
        {"frmMostraLinkCS",
         gruppo("DI.ID_Elemento", "DatiInventarialiSoggetti L JOIN DatiInventariali DI ON "
                                  "DI.ID_DatoInventariale = L.ID_DatoInventariale"),
         [](qint64 id) {
             Sessione::sTipoLink = QStringLiteral("1");
             Sessione::lIdDatoInventariale = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral(
             "SELECT L.ID_Soggetto FROM DatiInventarialiSoggetti L JOIN DatiInventariali "
             "DI ON DI.ID_DatoInventariale = L.ID_DatoInventariale WHERE "
             "DI.ID_Elemento = ?")},
        {"frmMostraLinkInv",
         gruppo("ID_ElementoLink", "Links",
                "ID_ElementoLink IN (SELECT ID_Elemento FROM Inventari)"),
         [](qint64 id) {
             Sessione::iChiamanteInv = 1;
             Sessione::lIdInventario = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral("SELECT ID_Elemento FROM Links WHERE ID_ElementoLink = ?")},
        {"frmMostraLinkSCD", gruppo("ID_Soggetto", "ComplessiDocSoggetti"),
         perSoggetto(QStringLiteral("0")),
         QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDocSoggetti WHERE ID_Soggetto = ?")},
        {"frmMostraLinkSCD", gruppo("ID_Soggetto", "DatiInventarialiSoggetti"),
         perSoggetto(QStringLiteral("1")),
         QStringLiteral("SELECT ID_DatoInventariale FROM DatiInventarialiSoggetti WHERE "
                        "ID_Soggetto = ?")},
        {"frmMostraLinkCD",
         gruppo("ID_Elemento", "Links", "ID_ElementoLink IN (SELECT ID_Elemento FROM Inventari)"),
         [](qint64 id) {
             Sessione::lIdComplesso = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral("SELECT ID_ElementoLink FROM Links WHERE ID_Elemento = ? AND "
                        "ID_ElementoLink IN (SELECT ID_Elemento FROM Inventari)")},
        {"frmMostraLinkAnt", gruppo("ID_Pergamena", "PGAntroponimi"), perElementoLink,
         QStringLiteral("SELECT ID_PGAntroponimo FROM PGAntroponimi WHERE ID_Pergamena = ?")},
        {"frmMostraLinkDIAnt", gruppo("ID_DatoInventariale", "DIAntroponimi"), perElementoLink,
         QStringLiteral(
             "SELECT ID_DIAntroponimo FROM DIAntroponimi WHERE ID_DatoInventariale = ?")},
        {"frmMostraLinkTopo", gruppo("ID_Pergamena", "PGToponimi"),
         [](qint64 id) {
             Sessione::iChiamanteToponimi = 1;
             Sessione::lIdElementoLink = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral("SELECT ID_Toponimo FROM PGToponimi WHERE ID_Pergamena = ?")},
        {"frmMostraLinkTopo", gruppo("ID_DatoInventariale", "DIToponimi"),
         [](qint64 id) {
             Sessione::iChiamanteToponimi = 2;
             Sessione::lIdElementoLink = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral("SELECT ID_Toponimo FROM DIToponimi WHERE ID_DatoInventariale = ?")},
        {"frmMostraLinkTitolari", gruppo("ID_Sigillo", "SGTitolari"), perElementoLink,
         QStringLiteral("SELECT ID_SGTitolare FROM SGTitolari WHERE ID_Sigillo = ?")},
        {"frmMostraLinkTitSG", gruppo("ID_Titolare", "SGTitolari"),
         [](qint64 id) {
             Sessione::lIdSoggetto = static_cast<long>(id);
             return QVariantMap();
         },
         QStringLiteral("SELECT ID_SGTitolare FROM SGTitolari WHERE ID_Titolare = ?")},
        {"frmMostraLinkTopALL", gruppo("ID_Toponimo", "DIToponimi"),
         perSoggetto(QStringLiteral("1")),
         QStringLiteral("SELECT ID_DatoInventariale FROM DIToponimi WHERE ID_Toponimo = ?")},
        {"frmMostraLinkTopALL", gruppo("ID_Toponimo", "PGToponimi"),
         perSoggetto(QStringLiteral("0")),
         QStringLiteral("SELECT ID_Pergamena FROM PGToponimi WHERE ID_Toponimo = ?")},
        {"frmMostraLinkAntALL", gruppo("ID_Antroponimo", "DIAntroponimi"),
         perSoggetto(QStringLiteral("1")),
         QStringLiteral("SELECT ID_DIAntroponimo FROM DIAntroponimi WHERE ID_Antroponimo = ?")},
        {"frmMostraLinkAntALL", gruppo("ID_Antroponimo", "PGAntroponimi"),
         perSoggetto(QStringLiteral("0")),
         QStringLiteral("SELECT ID_PGAntroponimo FROM PGAntroponimi WHERE ID_Antroponimo = ?")},
        {"frmMostraLinkPGS",
         gruppo("ID_ElementoLink", "Links", "ID_Elemento IN (SELECT ID_Elemento FROM Sigilli)"),
         [](qint64 id) {
             return QVariantMap{{QStringLiteral("lIdSigillo"), qlonglong(0)},
                                {QStringLiteral("lIdPergamena"), id}};
         },
         QStringLiteral("SELECT ID_Elemento FROM Links WHERE ID_ElementoLink = ? AND ID_Elemento "
                        "IN (SELECT ID_Elemento FROM Sigilli)")},
    };
    const auto chiavi = [&a](const QString& sSql, qint64 id) {
        QList<qint64> lista;
        QSqlQuery riga = a.Cnn().Esegui(sSql, {id});
        while (riga.next()) {
            lista << riga.value(0).toLongLong();
        }
        std::sort(lista.begin(), lista.end());
        return lista;
    };
    for (const Caso& caso : casi) {
        const QString sNome = QLatin1String(caso.sNome);
        QSqlQuery scelta = a.Cnn().Esegui(caso.sScelta);
        QVERIFY2(scelta.next(), qPrintable(caso.sScelta));
        const qint64 id = scelta.value(0).toLongLong();
        scelta.finish();
        const QList<qint64> attese = chiavi(caso.sChiavi, id);
        QVERIFY2(!attese.isEmpty(), caso.sNome);
        const QVariantMap argomenti = caso.imposta(id);
        Visto visto;
        AlComparire(sNome, [&](QWidget* visualizzatore) {
            visto.chiavi = TutteLeChiavi(visualizzatore);
            visto.lCancellata = CancellaLaPrimaVoce(a.seam, visualizzatore);
            static_cast<QDialog*>(visualizzatore)->reject();
        });
        QVERIFY(Dialoghi::Apri(sNome, nullptr, argomenti));
        QCOMPARE(visto.chiavi, attese);
        QVERIFY2(visto.lCancellata != 0, caso.sNome);
        QList<qint64> dopo = attese;
        dopo.removeOne(visto.lCancellata);
        QCOMPARE(chiavi(caso.sChiavi, id), dopo);
        QVERIFY2(a.seam.Messaggi().size() == 1, caso.sNome);
        a.seam.Svuota();
    }
}

QTEST_MAIN(TestVisualizzatoriAperture)
#include "tst_visualizzatori_aperture.moc"
