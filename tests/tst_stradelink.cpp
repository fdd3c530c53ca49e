// The roads of the links end to end, on SQLite and on PostgreSQL, through the real windows: from
// a record's button to its viewer, on to the picker that adds links, back to a fresh viewer and
// home to the record, whose tree image and buttons follow once the road ends, without a reload.
// What each road wrote is checked with queries of the test's own.

#include "links/DialogoSpunte.h"
#include "links/ModelloSpunte.h"
#include "links/SelettoreAlbero.h"
#include "links/frmNuovoSoggetto.h"
#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "records/ucDatiInventariali.h"
#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/frmStrutturaCD.h"
#include "structure/frmStrutturaDI.h"
#include "structure/frmStrutturaIN.h"

#include "AmbienteLink.h"
#include "AmbienteStruttura.h"
#include "AmbienteSulBackend.h"
#include "DialogoSostituto.h"
#include "Modali.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>
#include <functional>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// An institute with a fondo and a finding aid under it, made in this order.
struct Archivio {
    long ist;
    long fondo;
    long inventario;

    explicit Archivio(const AmbienteStruttura& a)
        : ist(a.Crea("01", QStringLiteral("Archivio")))
        , fondo(a.Crea("02", QStringLiteral("Fondo"), ist))
        , inventario(a.Crea("03", QStringLiteral("Inventario"), ist)) {}
};

// The rows of Links that tie the element to the linked one.
int RigheDiLinks(const AmbienteStruttura& a, qint64 lElemento, qint64 lLegato) {
    return a
        .Valore(QStringLiteral(
                    "SELECT COUNT(*) FROM Links WHERE ID_Elemento = ? AND ID_ElementoLink = ?"),
                {L(lElemento), L(lLegato)})
        .toInt();
}

void ScegliNodo(FinestraStruttura& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->setCurrentIndex(nodo);
}

QString Immagine(const FinestraStruttura& f, qint64 lId) {
    return f.Modello().Immagine(f.Modello().Trova(lId));
}

// The keys of every list of a viewer, list after list.
QList<qint64> ChiaviDiOgniLista(const QWidget* viewer) {
    QList<qint64> chiavi;
    for (const QTreeWidget* lista : viewer->findChildren<QTreeWidget*>()) {
        chiavi << Chiavi(lista);
    }
    return chiavi;
}

// The fresh viewer of that name, when it comes up: its keys read, then closed.
void LeggiEChiudiIlNuovo(const QString& sViewer, QList<qint64>& chiavi) {
    AlComparire(sViewer, [&chiavi](QWidget* nuovo) {
        chiavi << ChiaviDiOgniLista(nuovo);
        static_cast<QDialog*>(nuovo)->reject();
    });
}

// The user's tick on the first row of the dialog's page: the row made current, then the space key.
void SpuntaLaPrima(frmNuovoSoggetto& d, int iPagina) {
    QTreeView* lista = d.Lista(iPagina);
    lista->setCurrentIndex(d.Modello(iPagina).index(0));
    QTest::keyClick(lista, Qt::Key_Space);
}

// What a road saw on its way: whether the picker came up, its box of chosen names locked, and
// the keys of the fresh viewer that followed it.
struct Strada {
    bool bSelettore = false;
    bool bSceltiBloccati = false;
    bool bViewerDiNuovo = false;
    QList<qint64> chiaviDopo;
};

// The road from a viewer to a tree picker and back: in the viewer of that name, Nuovo
// collegamento; in the picker (hosted in its dialog), the action, then Collega (or Annulla
// collegamento); in the fresh viewer, its keys read and, when given, a last action before it
// closes.
void PerIlSelettore(Strada& strada, const QString& sViewer, const QString& sSelettore,
                    std::function<void(SelettoreAlbero&)> spunte, bool bCollega,
                    std::function<void(QWidget*)> nelNuovo = {}) {
    AlComparire(sViewer, [=, &strada](QWidget* viewer) {
        AlComparire(sSelettore + QStringLiteral("Dialogo"), [=, &strada](QWidget* dialogo) {
            auto* f = dialogo->findChild<SelettoreAlbero*>(sSelettore);
            if (f == nullptr) {
                static_cast<QDialog*>(dialogo)->reject();
                return;
            }
            strada.bSelettore = true;
            strada.bSceltiBloccati = f->casellaScelti->isReadOnly();
            AlComparire(sViewer, [=, &strada](QWidget* nuovo) {
                strada.bViewerDiNuovo = true;
                strada.chiaviDopo << ChiaviDiOgniLista(nuovo);
                if (nelNuovo) {
                    nelNuovo(nuovo);
                }
                static_cast<QDialog*>(nuovo)->reject();
            });
            spunte(*f);
            (bCollega ? f->cmdCollega : f->cmdAnnullaCol)->click();
        });
        Bottone(viewer, "cmdNuovoCol")->click();
    });
}

void Spunta(SelettoreAlbero& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    QVERIFY(f.tvwDB->model()->setData(nodo, Qt::Checked, Qt::CheckStateRole));
}

// The main form with the window of the menu entry opened.
template <typename Finestra> QPointer<Finestra> DalMenu(PrimoMDI& principale, const char* sMenu) {
    principale.findChild<QAction*>(QLatin1String(sMenu))->trigger();
    return principale.findChild<Finestra*>();
}

qint64 Soggetto(const AmbienteStruttura& a, const QString& nome, const char* tipo) {
    return a.cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                             {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                             {nome, QLatin1String(tipo)});
}

// What a viewer hands the dialog it goes on to: a stand-in in the dialog's place keeps its
// arguments; the fresh viewer that follows is closed. apri opens the viewer.
QVariantMap ArgomentiDelProseguire(const QString& sViewer, const QString& sDialogo,
                                   const std::function<void()>& apri) {
    QVariantMap ricevuti;
    bool bAperto = false;
    {
        const DialogoSostituto sostituto(sDialogo,
                                         [&](QDialog&, const Dialoghi::Argomenti& argomenti) {
                                             bAperto = true;
                                             ricevuti = argomenti;
                                         });
        AlComparire(sViewer, [&](QWidget* viewer) {
            Bottone(viewer, "cmdNuovoCol")->click();
            AlComparire(sViewer, [](QWidget* nuovo) { static_cast<QDialog*>(nuovo)->reject(); });
        });
        apri();
    }
    if (!bAperto) {
        ricevuti.insert(QStringLiteral("nessun dialogo"), true);
    }
    return ricevuti;
}

} // namespace

class TestStradeLink : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void ilPrimoStrumentoDiRicercaDelComplessoAccendeIlNodoSenzaRicaricare_data() {
        AggiungiBackend();
    }
    void ilPrimoStrumentoDiRicercaDelComplessoAccendeIlNodoSenzaRicaricare();
    void unSelettoreAbbandonatoTornaAUnVisualizzatoreNuovoSenzaScrivere_data() {
        AggiungiBackend();
    }
    void unSelettoreAbbandonatoTornaAUnVisualizzatoreNuovoSenzaScrivere();
    void unLegameGiaPresenteNonAggiungeNullaENonDiceNulla_data() { AggiungiBackend(); }
    void unLegameGiaPresenteNonAggiungeNullaENonDiceNulla();
    void unoStrumentoDiRicercaLegatoAUnComplessoDalMenu_data() { AggiungiBackend(); }
    void unoStrumentoDiRicercaLegatoAUnComplessoDalMenu();
    void unProduttoreLegatoAlComplessoCambiaLImmagineDelNodo_data() { AggiungiBackend(); }
    void unProduttoreLegatoAlComplessoCambiaLImmagineDelNodo();
    void unProduttoreEUnComplessoLegatiAllUnitaDellInventarioAnalitico_data() { AggiungiBackend(); }
    void unProduttoreEUnComplessoLegatiAllUnitaDellInventarioAnalitico();
    void unaPergamenaLegataAUnComplessoEVistaDalComplesso_data() { AggiungiBackend(); }
    void unaPergamenaLegataAUnComplessoEVistaDalComplesso();
    void dallInventarioAnaliticoIlPrimoComplessoAccendeLaRadice_data() { AggiungiBackend(); }
    void dallInventarioAnaliticoIlPrimoComplessoAccendeLaRadice();
    void ogniVisualizzatorePassaAlSuoDialogoIlBloccoDeiNomiScelti_data() { AggiungiBackend(); }
    void ogniVisualizzatorePassaAlSuoDialogoIlBloccoDeiNomiScelti();
};

void TestStradeLink::ilPrimoStrumentoDiRicercaDelComplessoAccendeIlNodoSenzaRicaricare() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const auto [ist, fondo, inventario] = Archivio(a);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    QPointer<frmStrutturaCD> f = DalMenu<frmStrutturaCD>(*principale, "mnuComplessiDoc");
    QVERIFY(f);
    const int iNodi = f->Modello().Nodi();
    ScegliNodo(*f, fondo);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("nolink"));

    Strada strada;
    PerIlSelettore(
        strada, QStringLiteral("frmMostraLinkCD"), QStringLiteral("frmNuovoInventario"),
        [&](SelettoreAlbero& s) { Spunta(s, inventario); }, true);
    Pulsante(f->fraComplesso, "cmdMostraLinks")->click();
    QVERIFY(strada.bSelettore);
    QVERIFY(strada.bSceltiBloccati);
    QVERIFY(strada.bViewerDiNuovo);
    QCOMPARE(strada.chiaviDopo, QList<qint64>{inventario});
    QCOMPARE(RigheDiLinks(a, fondo, inventario), 1);
    QCOMPARE(Sessione::iEsitoLinkInv, 1);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("silink"));
    QCOMPARE(f->Modello().Nodi(), iNodi);
    QCOMPARE(f->Modello().Id(f->tvwDB->currentIndex()), qint64(fondo));

    // The link removed in the viewer: the node back as it was.
    AlComparire(QStringLiteral("frmMostraLinkCD"), [&](QWidget* viewer) {
        CancellaLaPrimaVoce(a.piattaforma, viewer);
        static_cast<QDialog*>(viewer)->reject();
    });
    Pulsante(f->fraComplesso, "cmdMostraLinks")->click();
    QCOMPARE(a.Righe("Links"), 0);
    QCOMPARE(Sessione::iEsitoLinkInv, 2);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("nolink"));
    principale.reset();
}

void TestStradeLink::unSelettoreAbbandonatoTornaAUnVisualizzatoreNuovoSenzaScrivere() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), ist);
    const long primo = a.Crea("03", QStringLiteral("Inventario primo"), ist);
    const long secondo = a.Crea("03", QStringLiteral("Inventario secondo"), ist);
    a.Lega(fondo, primo);
    frmStrutturaCD f;
    ScegliNodo(f, fondo);
    QCOMPARE(Immagine(f, fondo), QStringLiteral("silink"));
    a.piattaforma.Svuota();

    // Ticked, then given up: nothing written, a fresh viewer with the link there was.
    Strada strada;
    PerIlSelettore(
        strada, QStringLiteral("frmMostraLinkCD"), QStringLiteral("frmNuovoInventario"),
        [&](SelettoreAlbero& s) { Spunta(s, secondo); }, false);
    Pulsante(f.fraComplesso, "cmdMostraLinks")->click();
    QVERIFY(strada.bSelettore);
    QVERIFY(strada.bViewerDiNuovo);
    QCOMPARE(strada.chiaviDopo, QList<qint64>{primo});
    QCOMPARE(a.Righe("Links"), 1);
    QCOMPARE(Sessione::iEsitoLinkInv, 0);
    QCOMPARE(Immagine(f, fondo), QStringLiteral("silink"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    // The same from the finding aid's side: the picker of complessi given up.
    frmStrutturaIN g;
    ScegliNodo(g, secondo);
    Strada inversa;
    PerIlSelettore(
        inversa, QStringLiteral("frmMostraLinkInv"), QStringLiteral("frmNuovoComplesso"),
        [&](SelettoreAlbero& s) { Spunta(s, fondo); }, false);
    g.cmdMostraLinks->click();
    QVERIFY(inversa.bSelettore);
    QVERIFY(inversa.bViewerDiNuovo);
    QVERIFY(inversa.chiaviDopo.isEmpty());
    QCOMPARE(a.Righe("Links"), 1);
    QCOMPARE(Sessione::iEsitoLinkCD, 0);
    QCOMPARE(Immagine(g, secondo), QStringLiteral("nolink"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestStradeLink::unLegameGiaPresenteNonAggiungeNullaENonDiceNulla() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const auto [ist, fondo, inventario] = Archivio(a);
    frmStrutturaCD f;
    ScegliNodo(f, fondo);
    a.piattaforma.Svuota();

    // Another workstation ties the pair while the picker is open: Collega adds nothing, says
    // nothing, and the node keeps its image.
    Strada strada;
    PerIlSelettore(
        strada, QStringLiteral("frmMostraLinkCD"), QStringLiteral("frmNuovoInventario"),
        [&](SelettoreAlbero& s) {
            Spunta(s, inventario);
            a.Lega(fondo, inventario);
        },
        true);
    Pulsante(f.fraComplesso, "cmdMostraLinks")->click();
    QVERIFY(strada.bSelettore);
    QCOMPARE(strada.chiaviDopo, QList<qint64>{inventario});
    QCOMPARE(a.Righe("Links"), 1);
    QCOMPARE(Sessione::iEsitoLinkInv, 0);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    QCOMPARE(Immagine(f, fondo), QStringLiteral("nolink"));
}

void TestStradeLink::unoStrumentoDiRicercaLegatoAUnComplessoDalMenu() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    const auto [ist, fondo, inventario] = Archivio(a);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    QPointer<frmStrutturaIN> f = DalMenu<frmStrutturaIN>(*principale, "mnuInventari");
    QVERIFY(f);
    ScegliNodo(*f, inventario);
    QCOMPARE(Immagine(*f, inventario), QStringLiteral("nolink"));
    a.piattaforma.Svuota();

    Strada strada;
    PerIlSelettore(
        strada, QStringLiteral("frmMostraLinkInv"), QStringLiteral("frmNuovoComplesso"),
        [&](SelettoreAlbero& s) { Spunta(s, fondo); }, true);
    f->cmdMostraLinks->click();
    QVERIFY(strada.bSelettore);
    QVERIFY(strada.bSceltiBloccati);
    QCOMPARE(strada.chiaviDopo, QList<qint64>{fondo});
    QCOMPARE(RigheDiLinks(a, fondo, inventario), 1);
    QCOMPARE(Sessione::iEsitoLinkCD, 1);
    QCOMPARE(Immagine(*f, inventario), QStringLiteral("silink"));
    QCOMPARE(f->Modello().Id(f->tvwDB->currentIndex()), qint64(inventario));
    QCOMPARE(f->fraInventario->ComplessiLink, 1);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    // A base inventory tied already: the warning, and no picker.
    a.cnn().Esegui(QStringLiteral("UPDATE Inventari SET TipoInv = '01' WHERE ID_Elemento = ?"),
                   {L(inventario)});
    ScegliNodo(*f, ist);
    ScegliNodo(*f, inventario);
    QCOMPARE(f->fraInventario->InventariAnalitici, 1);
    QVERIFY(!f->fraInventario->bPiùLegamiComplessiDoc());
    bool bRestato = false;
    AlComparire(QStringLiteral("frmMostraLinkInv"), [&](QWidget* viewer) {
        Bottone(viewer, "cmdNuovoCol")->click();
        bRestato = viewer->isVisible();
        if (bRestato) {
            static_cast<QDialog*>(viewer)->reject();
            return;
        }
        // Gone on all the same: the picker and the fresh viewer closed, so that the test ends.
        AlComparire(QStringLiteral("frmNuovoComplessoDialogo"), [](QWidget* dialogo) {
            AlComparire(QStringLiteral("frmMostraLinkInv"),
                        [](QWidget* nuovo) { static_cast<QDialog*>(nuovo)->reject(); });
            static_cast<QDialog*>(dialogo)->reject();
        });
    });
    f->cmdMostraLinks->click();
    QVERIFY(bRestato);
    const QList<Messaggio> avvisi = MessaggiCon(a.piattaforma, Sessione::TitoloProgramma);
    QCOMPARE(avvisi.size(), 1);
    QCOMPARE(avvisi.constFirst().sTesto,
             QStringLiteral("ATTENZIONE: il presente modulo è già legato ad un Complesso "
                            "documentario!"));
    QCOMPARE(a.Righe("Links"), 1);
    QCOMPARE(Immagine(*f, inventario), QStringLiteral("silink"));
    principale.reset();
}

void TestStradeLink::unProduttoreLegatoAlComplessoCambiaLImmagineDelNodo() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    a.cartella.CopiaDalSito({QStringLiteral("ProfiliEnti.txt")});
    const auto [ist, fondo, inventario] = Archivio(a);
    a.Lega(fondo, inventario);
    const qint64 famiglia = Soggetto(a, QStringLiteral("Guinigi"), "F");
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    QPointer<frmStrutturaCD> f = DalMenu<frmStrutturaCD>(*principale, "mnuComplessiDoc");
    QVERIFY(f);
    ScegliNodo(*f, fondo);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("silink"));

    bool bDialogo = false;
    bool bBloccati = false;
    QList<qint64> chiaviDopo;
    AlComparire(QStringLiteral("frmMostraLinkCS"), [&](QWidget* viewer) {
        // On the families' tab, Nuovo collegamento opens the dialog there.
        Controllo<QTabWidget>(viewer, QStringLiteral("SSTab1"))->setCurrentIndex(1);
        AlComparire(QStringLiteral("frmNuovoSoggetto"), [&](QWidget* finestra) {
            auto* d = static_cast<frmNuovoSoggetto*>(finestra);
            bDialogo = true;
            QCOMPARE(d->PaginaCorrente(), 1);
            bBloccati = d->Scelti(1)->isReadOnly();
            LeggiEChiudiIlNuovo(QStringLiteral("frmMostraLinkCS"), chiaviDopo);
            SpuntaLaPrima(*d, 1);
            d->cmdCollega->click();
        });
        Bottone(viewer, "cmdNuovoCol")->click();
    });
    Pulsante(f->fraComplesso, "cmdLinkSog")->click();
    QVERIFY(bDialogo);
    QVERIFY(bBloccati);
    QCOMPARE(chiaviDopo, QList<qint64>{famiglia});
    QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM ComplessiDocSoggetti CDS JOIN "
                                     "ComplessiDoc CD ON CD.ID_ComplessoDoc = CDS.ID_ComplessoDoc "
                                     "WHERE CD.ID_Elemento = ? AND CDS.ID_Soggetto = ?"),
                      {L(fondo), L(famiglia)})
                 .toInt(),
             1);
    QCOMPARE(Sessione::iEsitoLinkSogg, 1);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("islink"));

    // The dialog given up halfway, a tick given: nothing written, a fresh viewer, the image kept.
    const qint64 persona = Soggetto(a, QStringLiteral("Ubaldo"), "P");
    bool bAbbandonato = false;
    QList<qint64> chiaviNuove;
    AlComparire(QStringLiteral("frmMostraLinkCS"), [&](QWidget* viewer) {
        AlComparire(QStringLiteral("frmNuovoSoggetto"), [&](QWidget* finestra) {
            auto* d = static_cast<frmNuovoSoggetto*>(finestra);
            bAbbandonato = true;
            LeggiEChiudiIlNuovo(QStringLiteral("frmMostraLinkCS"), chiaviNuove);
            SpuntaLaPrima(*d, 0);
            d->cmdAnnullaCol->click();
        });
        Bottone(viewer, "cmdNuovoCol")->click();
    });
    Pulsante(f->fraComplesso, "cmdLinkSog")->click();
    QVERIFY(bAbbandonato);
    QCOMPARE(chiaviNuove, QList<qint64>{famiglia});
    QCOMPARE(a.Righe("ComplessiDocSoggetti"), 1);
    QCOMPARE(Sessione::iEsitoLinkSogg, 0);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("islink"));
    QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM ComplessiDocSoggetti WHERE "
                                     "ID_Soggetto = ?"),
                      {L(persona)})
                 .toInt(),
             0);

    // Its last producer removed: the finding aid's image alone.
    AlComparire(QStringLiteral("frmMostraLinkCS"), [&](QWidget* viewer) {
        Controllo<QTabWidget>(viewer, QStringLiteral("SSTab1"))->setCurrentIndex(1);
        CancellaLaPrimaVoce(a.piattaforma, viewer);
        static_cast<QDialog*>(viewer)->reject();
    });
    Pulsante(f->fraComplesso, "cmdLinkSog")->click();
    QCOMPARE(a.Righe("ComplessiDocSoggetti"), 0);
    QCOMPARE(Immagine(*f, fondo), QStringLiteral("silink"));
    principale.reset();
}

void TestStradeLink::unProduttoreEUnComplessoLegatiAllUnitaDellInventarioAnalitico() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    a.ListeInventarioAnalitico();
    const auto [ist, fondo, inventario] = Archivio(a);
    const long unita = a.Crea("07", QStringLiteral("Busta"), inventario);
    a.cartella.CopiaDalSito({QStringLiteral("ProfiliEnti.txt")});
    a.Lega(fondo, inventario);
    const qint64 ente = Soggetto(a, QStringLiteral("Comune"), "E");
    Sessione::lIdInventario = inventario;
    frmStrutturaDI f;
    f.Init(QStringLiteral("01"), QStringLiteral("Fondo"));
    ScegliNodo(f, unita);
    ucDatiInventariali* editore = f.fraDatiInventariali;
    QSignalSpy stato(editore, &EditoreRecord::EventoStato);
    QAbstractButton* soggetti = Pulsante(editore, "cmdMostraSoggetti");
    QVERIFY(!PulsanteAcceso(soggetti));
    QVERIFY(f.cmdCancella->isEnabled());

    // A producer of the unit, through its dialog, which is headed by the unit (and not by the
    // complesso last served).
    Sessione::sDenomComplesso = QStringLiteral("Fondo");
    bool bDialogo = false;
    QString sIntestazione;
    AlComparire(QStringLiteral("frmMostraLinkCS"), [&](QWidget* viewer) {
        Controllo<QTabWidget>(viewer, QStringLiteral("SSTab1"))->setCurrentIndex(2);
        AlComparire(QStringLiteral("frmNuovoSoggetto"), [&](QWidget* finestra) {
            auto* d = static_cast<frmNuovoSoggetto*>(finestra);
            bDialogo = true;
            sIntestazione = Controllo<QLineEdit>(d, QStringLiteral("Text2(2)"))->text();
            AlComparire(QStringLiteral("frmMostraLinkCS"),
                        [&](QWidget* nuovo) { static_cast<QDialog*>(nuovo)->reject(); });
            SpuntaLaPrima(*d, 2);
            d->cmdCollega->click();
        });
        Bottone(viewer, "cmdNuovoCol")->click();
    });
    soggetti->click();
    QVERIFY(bDialogo);
    QCOMPARE(sIntestazione, QStringLiteral("Busta"));
    QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM DatiInventarialiSoggetti DIS JOIN "
                                     "DatiInventariali DI ON DI.ID_DatoInventariale = "
                                     "DIS.ID_DatoInventariale WHERE DI.ID_Elemento = ? AND "
                                     "DIS.ID_Soggetto = ?"),
                      {L(unita), L(ente)})
                 .toInt(),
             1);
    QCOMPARE(stato.count(), 1);
    QVERIFY(PulsanteAcceso(soggetti));
    // A producer does not keep the unit from being deleted; its complesso does.
    QVERIFY(editore->OkCancella);
    QVERIFY(f.cmdCancella->isEnabled());

    // Its one complesso (caller 4), through the picker of complessi.
    QAbstractButton* complesso = Pulsante(editore, "cmdMostraLink");
    QVERIFY(!PulsanteAcceso(complesso));
    Strada strada;
    PerIlSelettore(
        strada, QStringLiteral("frmMostraLinkInv"), QStringLiteral("frmNuovoComplesso"),
        [&](SelettoreAlbero& s) { Spunta(s, fondo); }, true);
    complesso->click();
    QVERIFY(strada.bSelettore);
    QVERIFY(strada.bSceltiBloccati);
    QCOMPARE(strada.chiaviDopo, QList<qint64>{fondo});
    QCOMPARE(a.Valore(QStringLiteral("SELECT Id_ElemComplDoc FROM DatiInventariali WHERE "
                                     "ID_Elemento = ?"),
                      {L(unita)})
                 .toLongLong(),
             qint64(fondo));
    QCOMPARE(a.Righe("Links"), 1);
    QCOMPARE(stato.count(), 2);
    QVERIFY(PulsanteAcceso(complesso));
    QVERIFY(!editore->OkCancella);
    QVERIFY(!f.cmdCancella->isEnabled());
}

void TestStradeLink::unaPergamenaLegataAUnComplessoEVistaDalComplesso() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    a.ListeInventarioAnalitico();
    const auto [ist, fondo, inventario] = Archivio(a);
    const long pergamena = a.Crea("05", QStringLiteral("Pergamena"), inventario);
    a.cnn().Esegui(QStringLiteral("UPDATE Pergamene SET Segnatura = ? WHERE ID_Elemento = ?"),
                   {QStringLiteral("Perg. 1"), L(pergamena)});
    Sessione::lIdInventario = inventario;
    {
        frmStrutturaDI f;
        f.Init(QStringLiteral("01"), QString());
        ScegliNodo(f, pergamena);
        ucPergamena* editore = f.fraPergamena;
        QSignalSpy stato(editore, &EditoreRecord::EventoStato);
        QAbstractButton* complessi = Pulsante(editore, "cmdMostraLinks");
        QVERIFY(!PulsanteAcceso(complessi));
        Strada strada;
        PerIlSelettore(
            strada, QStringLiteral("frmMostraLinkInv"), QStringLiteral("frmNuovoComplesso"),
            [&](SelettoreAlbero& s) {
                strada.bSceltiBloccati =
                    strada.bSceltiBloccati &&
                    s.etichettaInMano->text() == QStringLiteral("Pergamena selezionata");
                Spunta(s, fondo);
            },
            true);
        complessi->click();
        QVERIFY(strada.bSelettore);
        QVERIFY(strada.bSceltiBloccati);
        QCOMPARE(strada.chiaviDopo, QList<qint64>{fondo});
        QCOMPARE(RigheDiLinks(a, fondo, pergamena), 1);
        QCOMPARE(Sessione::iEsitoLinkCD, 1);
        QCOMPARE(stato.count(), 1);
        QVERIFY(PulsanteAcceso(complessi));
        // The inventory's root keeps its image: the parchment's link is not the finding aid's.
        QCOMPARE(Immagine(f, inventario), QStringLiteral("nolink"));
    }

    // From the complesso its parchments' viewer shows it, without Nuovo collegamento, and the
    // complesso's node keeps its image when the link goes.
    frmStrutturaCD g;
    ScegliNodo(g, fondo);
    QCOMPARE(Immagine(g, fondo), QStringLiteral("nolink"));
    QList<qint64> chiavi;
    bool bNuovoCol = true;
    AlComparire(QStringLiteral("frmMostraLinkCD"), [&](QWidget* viewer) {
        chiavi = Chiavi(Lista(viewer));
        bNuovoCol = viewer->findChild<QPushButton*>(QStringLiteral("cmdNuovoCol")) != nullptr &&
                    viewer->findChild<QPushButton*>(QStringLiteral("cmdNuovoCol"))->isVisible();
        CancellaLaPrimaVoce(a.piattaforma, viewer);
        static_cast<QDialog*>(viewer)->reject();
    });
    Pulsante(g.fraComplesso, "cmdLinkPerg")->click();
    QCOMPARE(chiavi, QList<qint64>{pergamena});
    QVERIFY(!bNuovoCol);
    QCOMPARE(a.Righe("Links"), 0);
    QCOMPARE(Immagine(g, fondo), QStringLiteral("nolink"));
}

void TestStradeLink::dallInventarioAnaliticoIlPrimoComplessoAccendeLaRadice() {
    AMBIENTE_SUL_BACKEND(AmbienteStruttura, a);
    a.ListeInventarioAnalitico();
    const auto [ist, fondo, inventario] = Archivio(a);
    const long unita = a.Crea("07", QStringLiteral("Busta"), inventario);
    Sessione::lIdInventario = inventario;
    frmStrutturaDI f;
    f.Init(QStringLiteral("01"), QString());
    ScegliNodo(f, unita);
    ScegliNodo(f, inventario);
    QCOMPARE(Immagine(f, inventario), QStringLiteral("nolink"));
    QString sEtichetta;
    Strada strada;
    PerIlSelettore(
        strada, QStringLiteral("frmMostraLinkInv"), QStringLiteral("frmNuovoComplesso"),
        [&](SelettoreAlbero& s) {
            sEtichetta = s.etichettaInMano->text();
            Spunta(s, fondo);
        },
        true);
    f.cmdMostraLinks->click();
    QVERIFY(strada.bSelettore);
    QVERIFY(strada.bSceltiBloccati);
    QCOMPARE(sEtichetta, QStringLiteral("Inventario base selezionato"));
    QCOMPARE(strada.chiaviDopo, QList<qint64>{fondo});
    QCOMPARE(RigheDiLinks(a, fondo, inventario), 1);
    QCOMPARE(Sessione::iEsitoLinkCD, 1);
    QCOMPARE(Immagine(f, inventario), QStringLiteral("silink"));
    QCOMPARE(f.Modello().Id(f.tvwDB->currentIndex()), qint64(inventario));
}

void TestStradeLink::ogniVisualizzatorePassaAlSuoDialogoIlBloccoDeiNomiScelti() {
    AMBIENTE_SUL_BACKEND(AmbienteLink, a);
    const long istituto = a.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long pergamena = a.Crea("05", QStringLiteral("P1"), inventario);
    const long sigillo = a.Crea("06", QStringLiteral("Sigillo"), inventario);
    const auto apri = [](const char* sNome) {
        return [sNome] {
            Dialoghi::Apri(QLatin1String(sNome), nullptr);
        };
    };
    const auto bloccato = [](const QVariantMap& argomenti, const char* sBlocco) {
        return argomenti.value(QLatin1String(sBlocco)).toBool();
    };

    Sessione::lIdComplesso = fondo;
    Sessione::sTipoLink = QStringLiteral("0");
    QVERIFY(bloccato(ArgomentiDelProseguire(QStringLiteral("frmMostraLinkCS"),
                                            QStringLiteral("frmNuovoSoggetto"),
                                            apri("frmMostraLinkCS")),
                     "bLockSelSogg"));
    QVERIFY(bloccato(ArgomentiDelProseguire(QStringLiteral("frmMostraLinkCD"),
                                            QStringLiteral("frmNuovoInventario"),
                                            apri("frmMostraLinkCD")),
                     "bLockInvSet"));
    Sessione::lIdInventario = pergamena;
    Sessione::iChiamanteInv = 2;
    QVERIFY(bloccato(ArgomentiDelProseguire(QStringLiteral("frmMostraLinkInv"),
                                            QStringLiteral("frmNuovoComplesso"),
                                            apri("frmMostraLinkInv")),
                     "bLockSelCompl"));
    Sessione::lIdElementoLink = a.Dettaglio("Pergamene", "ID_Pergamena", pergamena);
    Sessione::iChiamanteToponimi = 1;
    QVERIFY(bloccato(ArgomentiDelProseguire(QStringLiteral("frmMostraLinkAnt"),
                                            QStringLiteral("frmLinkAntroponimi"),
                                            apri("frmMostraLinkAnt")),
                     "bLockSelAntr"));
    QVERIFY(bloccato(ArgomentiDelProseguire(QStringLiteral("frmMostraLinkTopo"),
                                            QStringLiteral("frmLinkToponimi"),
                                            apri("frmMostraLinkTopo")),
                     "bLockSelTopon"));

    // From the seal's record the holders' dialog is told where it was reached from.
    EditorePronto<ucSigillo> editore(sigillo);
    const QVariantMap titolari = ArgomentiDelProseguire(
        QStringLiteral("frmMostraLinkTitolari"), QStringLiteral("frmLinkTitolari"),
        [&] { Pulsante(&editore, "cmdMostraTitolari")->click(); });
    QVERIFY(bloccato(titolari, "bLockSelTitol"));
    QVERIFY(bloccato(titolari, "bFromSigilli"));
}

QTEST_MAIN(TestStradeLink)
#include "tst_stradelink.moc"
