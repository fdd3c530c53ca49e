// The tree of the structure windows: loading by groups from AlberoGlobale, the link images
// of complessi and their changes after the link viewers, the orphans, the order option, the
// temporary node, the editing state and the sliding panel, on SQLite and on PostgreSQL.

#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/FinestraStruttura.h"
#include "structure/frmStrutturaCD.h"

#include "AmbienteStruttura.h"
#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "PiattaformaScriptata.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSqlQuery>
#include <QTimer>
#include <QTreeView>
#include <QtTest>
#include <map>

namespace {

qlonglong L(long valore) {
    return static_cast<qlonglong>(valore);
}

// A window of the family as the real ones are made: institutes and complessi, two command
// buttons, and a record of what it was asked to load and to show.
class FinestraDiProva : public FinestraStruttura {
public:
    FinestraDiProva()
        : FinestraStruttura(QStringLiteral("frmStrutturaProva")) {
        cmdNuovoCD = new QPushButton(QStringLiteral("Nuovo complesso"), this);
        cmdNuovoCD->setObjectName(QStringLiteral("cmdNuovoCD"));
        RegistraComando(cmdNuovoCD);
        cmdModifica = new QPushButton(QStringLiteral("Modifica"), this);
        cmdModifica->setObjectName(QStringLiteral("cmdModifica"));
        RegistraComando(cmdModifica);
    }

    void Carica() { Avvia(); }

    using FinestraStruttura::AggiungiNodoTemporaneo;
    using FinestraStruttura::AnnullaNodoTemporaneo;
    using FinestraStruttura::SostituisciNodoTemporaneo;

    QPushButton* cmdNuovoCD;
    QPushButton* cmdModifica;
    QStringList ordini;   // the ORDER BY tails asked for
    QStringList mostrati; // "tag id" of each node shown
    int caricamentiRiusciti = 0;

protected:
    void CaricaAlbero(const QString& sOrdine) override {
        ordini.append(sOrdine);
        const QList<GruppoAlbero> gruppi = frmStrutturaCD::Gruppi(sOrdine);
        if (CaricaGruppi(gruppi, true)) {
            ++caricamentiRiusciti;
        }
    }
    void MostraNodo(const QString& sTag) override {
        mostrati.append(sTag + u' ' + QString::number(lIdCorrente));
    }
};

// The program folder with the panel's pictures, a fresh database and the session on it.
struct Ambiente {
    explicit Ambiente(TipoBackend tipo, bool bConFigure = true)
        : banca(tipo) {
        if (bConFigure) {
            QDir().mkpath(cartella.File(QStringLiteral("Bitmap")));
            const QDir origine(QStringLiteral(TABELLION_SORGENTI "/site/Bitmap"));
            for (const QString& nome : origine.entryList(QDir::Files)) {
                QFile::copy(origine.filePath(nome),
                            cartella.File(QStringLiteral("Bitmap/") + nome));
            }
        }
        Sessione::cnn = banca.Apri();
    }
    // The session's connection is closed before its database goes away.
    ~Ambiente() {
        if (Sessione::cnn) {
            Sessione::cnn->Chiudi();
        }
        Sessione::cnn.reset();
    }
    Ambiente(const Ambiente&) = delete;
    Ambiente& operator=(const Ambiente&) = delete;
    const Connessione& cnn() const { return *Sessione::cnn; }
    long Crea(const char* tipo, const QString& nome, long padre = 0) const {
        return ArchivioElementi::Crea(cnn(), QLatin1String(tipo), nome, padre);
    }
    void Lega(long complesso, long inventario) const {
        cnn().Esegui(
            QStringLiteral(
                "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')"),
            {L(complesso), L(inventario)});
    }
    void Produttore(long complesso, const QString& nome) const {
        const qint64 soggetto =
            cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                            {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                            {nome, QStringLiteral("P")});
        QSqlQuery query =
            cnn().Esegui(QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE "
                                        "ID_Elemento = ?"),
                         {L(complesso)});
        QVERIFY(query.next());
        cnn().Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, "
                                    "ID_Soggetto) VALUES (?, ?)"),
                     {query.value(0), soggetto});
    }

    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    BancaDatiProva banca;
};

} // namespace

class TestAlbero : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The model alone.
    void laChiaveEIlNumeroSeguitoDaID();
    void unPadreSconosciutoFuoriDalCaricamentoSollevaErrore();
    void unNodoOrdinatoMetteInOrdineIFigliFuturiERestaAlSuoPosto();
    void unFiglioArrivatoPrimaDelPadreVieneCollocatoAlSuoArrivo();
    void ilPadreCheNonArrivaMaiEUnOrfano();
    void unaRadiceCheEUnElementoHaLaSuaChiaveEIlSuoTagEPortaIFigli();
    void leImmaginiDopoILegamiConGliInventari_data();
    void leImmaginiDopoILegamiConGliInventari();
    void leImmaginiDopoILegamiConIProduttori_data();
    void leImmaginiDopoILegamiConIProduttori();
    void ogniChiaveDImmagineHaLaSuaFigura();

    // The loading from the database.
    void lIndiceDelleChiaviTrovaInserisceERimuoveComeUnaMappa();
    void leIstruzioniDellAlberoLeggonoSoloLeColonneDeiNodi_data() { AggiungiBackend(); }
    void leIstruzioniDellAlberoLeggonoSoloLeColonneDeiNodi();
    void unGruppoConValoriLiLegaAllaCondizione_data() { AggiungiBackend(); }
    void unGruppoConValoriLiLegaAllaCondizione();
    void unGruppoDiPiuTipiDaAOgniNodoTestoEImmagineDelSuoTipo_data() { AggiungiBackend(); }
    void unGruppoDiPiuTipiDaAOgniNodoTestoEImmagineDelSuoTipo();
    void unTipoConLaSolaImmagineMostraLaColonnaDelGruppoLettaNuda_data() { AggiungiBackend(); }
    void unTipoConLaSolaImmagineMostraLaColonnaDelGruppoLettaNuda();
    void unDatabaseVuotoMostraLaSolaRadice_data() { AggiungiBackend(); }
    void unDatabaseVuotoMostraLaSolaRadice();
    void igruppiSiCaricanoSottoLaRadiceConIFigliDellaRadiceInOrdine_data() { AggiungiBackend(); }
    void igruppiSiCaricanoSottoLaRadiceConIFigliDellaRadiceInOrdine();
    void unComplessoConInventarioEDueProduttoriMostraIslink_data() { AggiungiBackend(); }
    void unComplessoConInventarioEDueProduttoriMostraIslink();
    void unOrfanoDaErroreU5ELasciaIlCaricato_data() { AggiungiBackend(); }
    void unOrfanoDaErroreU5ELasciaIlCaricato();
    void unPadreCheArrivaDopoNelloStessoCaricamentoVieneCollocato_data() { AggiungiBackend(); }
    void unPadreCheArrivaDopoNelloStessoCaricamentoVieneCollocato();
    void toltiUltimoInventarioEUltimoProduttoreIslinkDiventaNolink_data() { AggiungiBackend(); }
    void toltiUltimoInventarioEUltimoProduttoreIslinkDiventaNolink();

    // The window.
    void lOpzioneDOrdineRicaricaConLAltraCoda_data() { AggiungiBackend(); }
    void lOpzioneDOrdineRicaricaConLAltraCoda();
    void ilNodoTemporaneoHaDieciSpaziEDopoAnnullaTornaIlPadre_data() { AggiungiBackend(); }
    void ilNodoTemporaneoHaDieciSpaziEDopoAnnullaTornaIlPadre();
    void allaConfermaIlNodoVeroPrendeIlPostoDelTemporaneo_data() { AggiungiBackend(); }
    void allaConfermaIlNodoVeroPrendeIlPostoDelTemporaneo();
    void bloccaESbloccaComandi();
    void ilPannelloScorreviNascondeEMostraFrame1();
    void unaFiguraMancanteDaUnMessaggioENonFermaLaFinestra();
    void escChiudeLaFinestra();
    void inUnDialogoEscChiudeIlDialogo();
};

// ---------------------------------------------------------------------------------------------
// The model alone

void TestAlbero::laChiaveEIlNumeroSeguitoDaID() {
    QCOMPARE(ModelloAlbero::ChiaveDi(123), QStringLiteral("123 ID"));
    QCOMPARE(ModelloAlbero::IdDi(QStringLiteral("123 ID")), qint64(123));
    QCOMPARE(ModelloAlbero::IdDi(QStringLiteral("9999999 ID")), ModelloAlbero::IdTemporaneo);
    QCOMPARE(ModelloAlbero::IdDi(QStringLiteral("0 ID")), qint64(0));
    ModelloAlbero modello;
    const QModelIndex radice = modello.AggiungiRadice();
    QCOMPARE(modello.Chiave(radice), QStringLiteral("0 ID"));
    QCOMPARE(modello.Tag(radice), QStringLiteral("00"));
    QCOMPARE(modello.Testo(radice), QStringLiteral("Archivi di Stato"));
    QCOMPARE(modello.Immagine(radice), QStringLiteral("root"));
    const QModelIndex nodo = modello.Aggiungi(QStringLiteral("0 ID"), QStringLiteral("42 ID"),
                                              QStringLiteral("Istituto"),
                                              QStringLiteral("istituto"), QStringLiteral("01"));
    QCOMPARE(modello.data(nodo, ModelloAlbero::RuoloChiave).toString(), QStringLiteral("42 ID"));
    QCOMPARE(modello.data(nodo, ModelloAlbero::RuoloTag).toString(), QStringLiteral("01"));
    QCOMPARE(modello.data(nodo, ModelloAlbero::RuoloImmagine).toString(),
             QStringLiteral("istituto"));
    QCOMPARE(modello.data(nodo).toString(), QStringLiteral("Istituto"));
    QCOMPARE(modello.parent(nodo), radice);
    QCOMPARE(modello.Trova(QStringLiteral("42 ID")), nodo);
}

void TestAlbero::unPadreSconosciutoFuoriDalCaricamentoSollevaErrore() {
    ModelloAlbero modello;
    modello.AggiungiRadice();
    QVERIFY_THROWS_EXCEPTION(Errore,
                             modello.Aggiungi(77, 78, QStringLiteral("x"), QStringLiteral("nolink"),
                                              QStringLiteral("02")));
    QCOMPARE(modello.Nodi(), 1);
}

void TestAlbero::unNodoOrdinatoMetteInOrdineIFigliFuturiERestaAlSuoPosto() {
    ModelloAlbero modello;
    const QModelIndex radice = modello.AggiungiRadice();
    const auto aggiungi = [&](qint64 padre, qint64 id, const char* testo) {
        return modello.Aggiungi(padre, id, QLatin1String(testo), QStringLiteral("nolink"),
                                QStringLiteral("02"));
    };
    aggiungi(0, 1, "Zeta");
    const QModelIndex nuovo = aggiungi(0, 2, "Mezzo");
    aggiungi(0, 3, "Alfa");
    modello.ImpostaOrdinato(nuovo);
    QVERIFY(modello.Ordinato(nuovo));
    aggiungi(2, 10, "Gamma");
    aggiungi(2, 11, "alfa");
    aggiungi(2, 12, "Beta");
    QCOMPARE(
        TestiFigli(modello, modello.Trova(2)),
        QStringList({QStringLiteral("alfa"), QStringLiteral("Beta"), QStringLiteral("Gamma")}));
    // The node itself stays among its brothers where it was put.
    QCOMPARE(
        TestiFigli(modello, radice),
        QStringList({QStringLiteral("Zeta"), QStringLiteral("Mezzo"), QStringLiteral("Alfa")}));
    // The root Sorted puts its sons in order now.
    modello.ImpostaOrdinato(radice);
    QCOMPARE(
        TestiFigli(modello, radice),
        QStringList({QStringLiteral("Alfa"), QStringLiteral("Mezzo"), QStringLiteral("Zeta")}));
    QCOMPARE(modello.Trova(2).row(), 1);
    QCOMPARE(modello.Testo(modello.index(2, 0, modello.Trova(2))), QStringLiteral("Gamma"));
}

void TestAlbero::unFiglioArrivatoPrimaDelPadreVieneCollocatoAlSuoArrivo() {
    ModelloAlbero modello;
    modello.InizioCaricamento();
    modello.AggiungiRadice();
    // Keys of two sites: the grandson and the son come before their parents.
    modello.Aggiungi(2000001, 2000002, QStringLiteral("Nipote"), QStringLiteral("nolink"),
                     QStringLiteral("02"));
    modello.Aggiungi(1000001, 2000001, QStringLiteral("Figlio"), QStringLiteral("nolink"),
                     QStringLiteral("02"));
    modello.Aggiungi(0, 1000001, QStringLiteral("Istituto"), QStringLiteral("istituto"),
                     QStringLiteral("01"));
    modello.VerificaAttesi();
    modello.FineCaricamento();
    QCOMPARE(modello.Nodi(), 4);
    QCOMPARE(modello.Id(modello.Trova(2000002).parent()), qint64(2000001));
    QCOMPARE(modello.Id(modello.Trova(2000001).parent()), qint64(1000001));
}

void TestAlbero::ilPadreCheNonArrivaMaiEUnOrfano() {
    ModelloAlbero modello;
    modello.InizioCaricamento();
    modello.AggiungiRadice();
    modello.Aggiungi(0, 1, QStringLiteral("Istituto"), QStringLiteral("istituto"),
                     QStringLiteral("01"));
    modello.Aggiungi(555, 2, QStringLiteral("Orfano"), QStringLiteral("nolink"),
                     QStringLiteral("02"));
    try {
        modello.VerificaAttesi();
        QFAIL("an orphan must raise");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().contains(QStringLiteral("555 ID")),
                 qPrintable(errore.descrizione()));
        QVERIFY(errore.descrizione().contains(QStringLiteral("2 ID")));
    }
    modello.FineCaricamento();
    QCOMPARE(modello.Nodi(), 2);
    QVERIFY(!modello.Trova(2).isValid());
}

void TestAlbero::unaRadiceCheEUnElementoHaLaSuaChiaveEIlSuoTagEPortaIFigli() {
    ModelloAlbero modello;
    const QModelIndex radice =
        modello.AggiungiRadice(42, QStringLiteral("Inventario: Carte Guinigi"),
                               QStringLiteral("nolink"), QStringLiteral("03"));
    QCOMPARE(modello.Radice(), radice);
    QCOMPARE(modello.Chiave(radice), QStringLiteral("42 ID"));
    QCOMPARE(modello.Tag(radice), QStringLiteral("03"));
    QCOMPARE(modello.Testo(radice), QStringLiteral("Inventario: Carte Guinigi"));
    QCOMPARE(modello.Immagine(radice), QStringLiteral("nolink"));
    QVERIFY(!modello.Contiene(ModelloAlbero::IdRadice));
    const QModelIndex figlio = modello.Aggiungi(42, 43, QStringLiteral("Busta 1"),
                                                QStringLiteral("nolink"), QStringLiteral("07"));
    QCOMPARE(figlio.parent(), radice);
    // There is no "0 ID" to hang from, and the root's key is taken.
    QVERIFY_THROWS_EXCEPTION(Errore,
                             modello.Aggiungi(0, 44, QStringLiteral("Senza padre"),
                                              QStringLiteral("nolink"), QStringLiteral("07")));
    QVERIFY_THROWS_EXCEPTION(Errore, modello.AggiungiRadice(43, QStringLiteral("Doppia"),
                                                            QStringLiteral("nolink"),
                                                            QStringLiteral("03")));
    QCOMPARE(modello.Nodi(), 2);
    modello.Svuota();
    QVERIFY(!modello.Radice().isValid());
}

void TestAlbero::leImmaginiDopoILegamiConGliInventari_data() {
    QTest::addColumn<QString>("prima");
    QTest::addColumn<int>("esito");
    QTest::addColumn<QString>("dopo");
    QTest::newRow("aggiunto a slink") << "slink" << 1 << "islink";
    QTest::newRow("aggiunto a nolink") << "nolink" << 1 << "silink";
    QTest::newRow("aggiunto a silink") << "silink" << 1 << "silink";
    QTest::newRow("aggiunto a islink") << "islink" << 1 << "silink";
    QTest::newRow("tolto da silink") << "silink" << 2 << "nolink";
    QTest::newRow("tolto da islink") << "islink" << 2 << "slink";
    QTest::newRow("tolto da slink") << "slink" << 2 << "slink";
    QTest::newRow("tolto da nolink") << "nolink" << 2 << "nolink";
    QTest::newRow("nessun esito") << "silink" << 0 << "silink";
    QTest::newRow("esito sconosciuto") << "nolink" << 3 << "nolink";
}

void TestAlbero::leImmaginiDopoILegamiConGliInventari() {
    QFETCH(QString, prima);
    QFETCH(int, esito);
    QFETCH(QString, dopo);
    QCOMPARE(CaricamentoAlbero::ImmagineDopoLinkInventari(prima, esito), dopo);
}

void TestAlbero::leImmaginiDopoILegamiConIProduttori_data() {
    QTest::addColumn<QString>("prima");
    QTest::addColumn<int>("esito");
    QTest::addColumn<QString>("dopo");
    QTest::newRow("aggiunto a silink") << "silink" << 1 << "islink";
    QTest::newRow("aggiunto a nolink") << "nolink" << 1 << "slink";
    QTest::newRow("aggiunto a slink") << "slink" << 1 << "slink";
    QTest::newRow("aggiunto a islink") << "islink" << 1 << "islink";
    QTest::newRow("tolto da slink") << "slink" << 2 << "nolink";
    QTest::newRow("tolto da islink") << "islink" << 2 << "silink";
    QTest::newRow("tolto da silink") << "silink" << 2 << "silink";
    QTest::newRow("tolto da nolink") << "nolink" << 2 << "nolink";
    QTest::newRow("nessun esito") << "slink" << 0 << "slink";
}

void TestAlbero::leImmaginiDopoILegamiConIProduttori() {
    QFETCH(QString, prima);
    QFETCH(int, esito);
    QFETCH(QString, dopo);
    QCOMPARE(CaricamentoAlbero::ImmagineDopoLinkSoggetti(prima, esito), dopo);
}

void TestAlbero::ogniChiaveDImmagineHaLaSuaFigura() {
    QCOMPARE(ModelloAlbero::ChiaviImmagine().size(), 10);
    QSet<QByteArray> diverse;
    for (const QString& chiave : ModelloAlbero::ChiaviImmagine()) {
        const QImage figura = ImmaginiAlbero::Immagine(chiave).toImage();
        QCOMPARE(figura.size(), QSize(16, 16));
        diverse.insert(
            QByteArray(reinterpret_cast<const char*>(figura.constBits()), figura.sizeInBytes()));
    }
    // Ten different pictures.
    QCOMPARE(diverse.size(), 10);
    ModelloAlbero modello;
    const QModelIndex radice = modello.AggiungiRadice();
    QVERIFY(!modello.data(radice, Qt::DecorationRole).value<QIcon>().isNull());
}

// ---------------------------------------------------------------------------------------------
// The loading from the database

void TestAlbero::unDatabaseVuotoMostraLaSolaRadice() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    FinestraDiProva finestra;
    finestra.Carica();
    const ModelloAlbero& modello = finestra.Modello();
    QCOMPARE(modello.Nodi(), 1);
    QCOMPARE(modello.rowCount(), 1);
    QCOMPARE(modello.Chiave(modello.index(0, 0)), QStringLiteral("0 ID"));
    QCOMPARE(finestra.tvwDB->currentIndex(), modello.Radice());
    QCOMPARE(finestra.mostrati, QStringList({QStringLiteral("00 0")}));
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore U5")).isEmpty());
}

void TestAlbero::lIndiceDelleChiaviTrovaInserisceERimuoveComeUnaMappa() {
    // Keys in runs (two sites' ranges), far apart, strided and negative, with removals in
    // between, against a std::map that does the same.
    IndiceChiavi indice;
    std::map<qint64, qint32> attesa;
    QCOMPARE(indice.Trova(1), IndiceChiavi::Assente);
    indice.Rimuovi(1);
    QList<qint64> chiavi;
    for (qint64 k = 1; k <= 40000; ++k) {
        chiavi.append(k);
        chiavi.append(1'000'000'000 + k);
    }
    for (qint64 k = 0; k < 5000; ++k) {
        chiavi.append(k * 4096 + 7);
        chiavi.append(-k * 31 - 1);
    }
    qint32 nodo = 0;
    for (const qint64 chiave : chiavi) {
        const bool bNuova = attesa.find(chiave) == attesa.end();
        QCOMPARE(indice.Inserisci(chiave, nodo), bNuova);
        if (bNuova) {
            attesa[chiave] = nodo;
        }
        ++nodo;
        // Every seventh key goes away again at once, every eleventh an older one.
        if (nodo % 7 == 0) {
            indice.Rimuovi(chiave);
            attesa.erase(chiave);
        }
        if (nodo % 11 == 0) {
            const qint64 vecchia = chiavi[nodo / 2];
            indice.Rimuovi(vecchia);
            attesa.erase(vecchia);
        }
    }
    QCOMPARE(indice.Quante(), static_cast<qsizetype>(attesa.size()));
    for (const qint64 chiave : chiavi) {
        const auto trovata = attesa.find(chiave);
        QCOMPARE(indice.Trova(chiave),
                 trovata == attesa.end() ? IndiceChiavi::Assente : trovata->second);
    }
    // A key already there is refused and keeps its node.
    const auto prima = *attesa.begin();
    QVERIFY(!indice.Inserisci(prima.first, 12345));
    QCOMPARE(indice.Trova(prima.first), prima.second);
    indice.Svuota();
    QCOMPARE(indice.Quante(), qsizetype(0));
    QCOMPARE(indice.Trova(prima.first), IndiceChiavi::Assente);
}

void TestAlbero::leIstruzioniDellAlberoLeggonoSoloLeColonneDeiNodi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    // The brothers in the Italian order: the backend's term for the names.
    const QString sNome = a.cnn().InOrdineAlfabetico(QStringLiteral("ELEM_Denominazione"));
    const QList<GruppoAlbero> gruppi =
        frmStrutturaCD::Gruppi(QStringLiteral("CD_Ordinamento, ELEM_Denominazione"));
    QCOMPARE(gruppi.size(), 2);
    QCOMPARE(gruppi[0].Sql(a.cnn()),
             QStringLiteral("SELECT ELEM_ID_Elemento, ELEM_ID_ElementoPadre, ELEM_Denominazione, "
                            "ELEM_Tipologia FROM AlberoGlobale WHERE ELEM_Tipologia='01' "
                            "ORDER BY ELEM_ID_ElementoPadre, ") +
                 sNome);
    QCOMPARE(gruppi[1].Sql(a.cnn()),
             QStringLiteral("SELECT ELEM_ID_Elemento, ELEM_ID_ElementoPadre, ELEM_Denominazione, "
                            "ELEM_Tipologia, CD_NumeroInventari FROM AlberoGlobale "
                            "WHERE ELEM_Tipologia='02' ORDER BY ELEM_ID_ElementoPadre, "
                            "CD_Ordinamento, ELEM_Denominazione"));
    for (const GruppoAlbero& gruppo : gruppi) {
        QVERIFY(!gruppo.Sql(a.cnn()).contains(u'*'));
    }
}

void TestAlbero::unGruppoConValoriLiLegaAllaCondizione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo dell'Abbazia"), istituto);
    a.Crea("02", QStringLiteral("Altro fondo"), istituto);
    GruppoAlbero istituti;
    istituti.sCondizione = QStringLiteral("ELEM_Tipologia='01'");
    istituti.sImmagine = QStringLiteral("istituto");
    istituti.bPadreNulloERadice = true;
    GruppoAlbero unFondo;
    unFondo.sCondizione = QStringLiteral("ELEM_Tipologia='02' AND ELEM_Denominazione = ?");
    unFondo.valori = {QStringLiteral("Fondo dell'Abbazia")};
    unFondo.sImmagine = QStringLiteral("nolink");
    ModelloAlbero modello;
    CaricamentoAlbero::Carica(modello, a.cnn(), {istituti, unFondo}, false);
    QCOMPARE(modello.Nodi(), 3);
    QVERIFY(modello.Contiene(fondo));
    QCOMPARE(modello.Testo(modello.Trova(fondo)), QStringLiteral("Fondo dell'Abbazia"));
}

void TestAlbero::unGruppoDiPiuTipiDaAOgniNodoTestoEImmagineDelSuoTipo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    const long versamento = a.Crea("04", QStringLiteral("Versamento"), istituto);
    a.cnn().Esegui(
        QStringLiteral("UPDATE ComplessiDoc SET DenomCompleta = ? WHERE ID_Elemento = ?"),
        {QStringLiteral("Istituto > Fondo, per intero"), L(fondo)});
    // Under a root that is the institute itself, its three kinds in one group.
    GruppoAlbero gruppo;
    gruppo.sCondizione = QStringLiteral("ELEM_Tipologia IN ('02', '03', '04')");
    gruppo.sImmagine = QStringLiteral("versamento");
    gruppo.tipi = {
        {QStringLiteral("02"), QStringLiteral("CD_DenomCompleta"), QStringLiteral("silink")},
        {QStringLiteral("03"), QStringLiteral("INV_Denominazione"), QStringLiteral("nolink")}};
    RadiceAlbero radice;
    radice.lId = istituto;
    radice.sTesto = QStringLiteral("Istituto");
    radice.sImmagine = QStringLiteral("istituto");
    radice.sTag = QStringLiteral("01");
    ModelloAlbero modello;
    CaricamentoAlbero::Carica(modello, a.cnn(), {gruppo}, false, radice);
    QCOMPARE(modello.Nodi(), 4);
    QCOMPARE(modello.Id(modello.Radice()), qint64(istituto));
    QCOMPARE(modello.Tag(modello.Radice()), QStringLiteral("01"));
    const QModelIndex nodoFondo = modello.Trova(fondo);
    QCOMPARE(nodoFondo.parent(), modello.Radice());
    QCOMPARE(modello.Testo(nodoFondo), QStringLiteral("Istituto > Fondo, per intero"));
    QCOMPARE(modello.Immagine(nodoFondo), QStringLiteral("silink"));
    QCOMPARE(modello.Testo(modello.Trova(inventario)), QStringLiteral("Inventario"));
    QCOMPARE(modello.Immagine(modello.Trova(inventario)), QStringLiteral("nolink"));
    // A kind not listed: the group's column and image.
    QCOMPARE(modello.Testo(modello.Trova(versamento)), QStringLiteral("Versamento"));
    QCOMPARE(modello.Immagine(modello.Trova(versamento)), QStringLiteral("versamento"));
    QCOMPARE(
        TestiFigli(modello, modello.Radice()),
        QStringList({QStringLiteral("Inventario"), QStringLiteral("Istituto > Fondo, per intero"),
                     QStringLiteral("Versamento")}));
}

void TestAlbero::unTipoConLaSolaImmagineMostraLaColonnaDelGruppoLettaNuda() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    // The finding aids have an image of their own, and the name as every other node.
    GruppoAlbero gruppo;
    gruppo.sCondizione = QStringLiteral("ELEM_Tipologia IN ('01', '02', '03')");
    gruppo.sImmagine = QStringLiteral("versamento");
    gruppo.bPadreNulloERadice = true;
    gruppo.tipi = {{QStringLiteral("03"), QString(), QStringLiteral("nolink")}};
    QCOMPARE(gruppo.Testo(), QStringLiteral("ELEM_Denominazione"));
    QVERIFY2(!gruppo.Sql(a.cnn()).contains(QStringLiteral("CASE")),
             qPrintable(gruppo.Sql(a.cnn())));
    ModelloAlbero modello;
    CaricamentoAlbero::Carica(modello, a.cnn(), {gruppo}, false);
    QCOMPARE(modello.Nodi(), 4);
    QCOMPARE(modello.Testo(modello.Trova(inventario)), QStringLiteral("Inventario"));
    QCOMPARE(modello.Immagine(modello.Trova(inventario)), QStringLiteral("nolink"));
    QCOMPARE(modello.Testo(modello.Trova(fondo)), QStringLiteral("Fondo"));
    QCOMPARE(modello.Immagine(modello.Trova(fondo)), QStringLiteral("versamento"));
}

void TestAlbero::igruppiSiCaricanoSottoLaRadiceConIFigliDellaRadiceInOrdine() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long zeta = a.Crea("01", QStringLiteral("Zeta"));
    const long alfa = a.Crea("01", QStringLiteral("Alfa"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo"), zeta);
    const long serie = a.Crea("02", QStringLiteral("Serie"), fondo);
    a.Crea("02", QStringLiteral("Altro fondo"), alfa);
    FinestraDiProva finestra;
    finestra.Carica();
    const ModelloAlbero& modello = finestra.Modello();
    QCOMPARE(modello.Nodi(), 6);
    QCOMPARE(TestiFigli(modello, modello.Radice()),
             QStringList({QStringLiteral("Alfa"), QStringLiteral("Zeta")}));
    QVERIFY(modello.Ordinato(modello.Radice()));
    const QModelIndex nodoSerie = modello.Trova(ModelloAlbero::ChiaveDi(serie));
    QCOMPARE(modello.Tag(nodoSerie), QStringLiteral("02"));
    QCOMPARE(modello.Immagine(nodoSerie), QStringLiteral("nolink"));
    QCOMPARE(modello.Id(nodoSerie.parent()), qint64(fondo));
    QCOMPARE(modello.Immagine(modello.Trova(zeta)), QStringLiteral("istituto"));
    QCOMPARE(modello.Tag(modello.Trova(zeta)), QStringLiteral("01"));
    // Collapsed on the root, which is chosen and shown.
    QVERIFY(finestra.tvwDB->isExpanded(modello.Radice()));
    QVERIFY(!finestra.tvwDB->isExpanded(modello.Trova(zeta)));
    QCOMPARE(finestra.tvwDB->currentIndex(), modello.Radice());
    QCOMPARE(finestra.mostrati.last(), QStringLiteral("00 0"));
}

void TestAlbero::unComplessoConInventarioEDueProduttoriMostraIslink() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long complesso = a.Crea("02", QStringLiteral("Complesso"), istituto);
    const long soloInventario = a.Crea("02", QStringLiteral("Solo inventario"), istituto);
    const long soloProduttore = a.Crea("02", QStringLiteral("Solo produttore"), istituto);
    const long nessuno = a.Crea("02", QStringLiteral("Nessun legame"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    a.Lega(complesso, inventario);
    a.Lega(soloInventario, inventario);
    a.Produttore(complesso, QStringLiteral("Rossi Mario"));
    a.Produttore(complesso, QStringLiteral("Bianchi Luigi"));
    a.Produttore(soloProduttore, QStringLiteral("Verdi Anna"));
    FinestraDiProva finestra;
    finestra.Carica();
    const ModelloAlbero& modello = finestra.Modello();
    QCOMPARE(modello.Immagine(modello.Trova(complesso)), QStringLiteral("islink"));
    QCOMPARE(modello.Immagine(modello.Trova(soloInventario)), QStringLiteral("silink"));
    QCOMPARE(modello.Immagine(modello.Trova(soloProduttore)), QStringLiteral("slink"));
    QCOMPARE(modello.Immagine(modello.Trova(nessuno)), QStringLiteral("nolink"));
    // The inventario is not of this window.
    QVERIFY(!modello.Trova(inventario).isValid());
}

void TestAlbero::unOrfanoDaErroreU5ELasciaIlCaricato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long primo = a.Crea("02", QStringLiteral("Primo"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    // A complesso under a kind that this window does not load.
    const long orfano = a.Crea("02", QStringLiteral("Sotto l'inventario"), inventario);
    FinestraDiProva finestra;
    finestra.Carica();
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U5"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QVERIFY2(errori[0].sTesto.contains(ModelloAlbero::ChiaveDi(orfano)),
             qPrintable(errori[0].sTesto));
    QCOMPARE(finestra.caricamentiRiusciti, 0);
    const ModelloAlbero& modello = finestra.Modello();
    QVERIFY(modello.Trova(istituto).isValid());
    QVERIFY(modello.Trova(primo).isValid());
    QVERIFY(!modello.Trova(orfano).isValid());
    // Nothing after the error: the click never happened.
    QVERIFY(finestra.mostrati.isEmpty());
}

void TestAlbero::unPadreCheArrivaDopoNelloStessoCaricamentoVieneCollocato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long vecchio = a.Crea("01", QStringLiteral("Primo istituto"));
    const long padre = a.Crea("02", QStringLiteral("Fondo trasferito"), vecchio);
    const long figlio = a.Crea("02", QStringLiteral("Serie"), padre);
    const long nuovo = a.Crea("01", QStringLiteral("Secondo istituto"));
    // The fondo moves to an institute with a higher key: its son's row, ordered by the
    // parent's key, now comes before its own.
    a.cnn().Esegui(QStringLiteral("UPDATE Elementi SET ID_ElementoPadre = ? WHERE ID_Elemento = ?"),
                   {L(nuovo), L(padre)});
    QVERIFY(padre < nuovo);
    FinestraDiProva finestra;
    finestra.Carica();
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore U5")).isEmpty());
    const ModelloAlbero& modello = finestra.Modello();
    QCOMPARE(modello.Id(modello.Trova(figlio).parent()), qint64(padre));
    QCOMPARE(modello.Id(modello.Trova(padre).parent()), qint64(nuovo));
    QCOMPARE(finestra.caricamentiRiusciti, 1);
}

void TestAlbero::toltiUltimoInventarioEUltimoProduttoreIslinkDiventaNolink() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long complesso = a.Crea("02", QStringLiteral("Complesso"), istituto);
    const long inventario = a.Crea("03", QStringLiteral("Inventario"), istituto);
    a.Lega(complesso, inventario);
    a.Produttore(complesso, QStringLiteral("Rossi Mario"));
    FinestraDiProva finestra;
    finestra.Carica();
    const ModelloAlbero& modello = finestra.Modello();
    finestra.SelezionaNodo(modello.Trova(complesso));
    QCOMPARE(modello.Immagine(modello.Trova(complesso)), QStringLiteral("islink"));
    finestra.mostrati.clear();

    Sessione::iEsitoLinkInv = 2;
    finestra.ChkLinks();
    QCOMPARE(modello.Immagine(modello.Trova(complesso)), QStringLiteral("slink"));
    Sessione::iEsitoLinkSogg = 2;
    finestra.ChkSogg();
    QCOMPARE(modello.Immagine(modello.Trova(complesso)), QStringLiteral("nolink"));
    // Each time the node is shown again and stays chosen.
    const QString mostrato = QStringLiteral("02 ") + QString::number(complesso);
    QCOMPARE(finestra.mostrati, QStringList({mostrato, mostrato}));
    QCOMPARE(finestra.tvwDB->currentIndex(), modello.Trova(complesso));
    // And back.
    Sessione::iEsitoLinkSogg = 1;
    finestra.ChkSogg();
    Sessione::iEsitoLinkInv = 1;
    finestra.ChkLinks();
    QCOMPARE(modello.Immagine(modello.Trova(complesso)), QStringLiteral("islink"));
}

// ---------------------------------------------------------------------------------------------
// The window

void TestAlbero::lOpzioneDOrdineRicaricaConLAltraCoda() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    const long alfa = a.Crea("02", QStringLiteral("Alfa"), istituto);
    const long beta = a.Crea("02", QStringLiteral("Beta"), istituto);
    a.cnn().Esegui(QStringLiteral("UPDATE ComplessiDoc SET Ordinamento = ? WHERE ID_Elemento = ?"),
                   {2, L(alfa)});
    a.cnn().Esegui(QStringLiteral("UPDATE ComplessiDoc SET Ordinamento = ? WHERE ID_Elemento = ?"),
                   {1, L(beta)});
    FinestraDiProva finestra;
    finestra.Carica();
    auto* alfabetico = finestra.findChild<QRadioButton*>(QStringLiteral("Ord(0)"));
    auto* archivistico = finestra.findChild<QRadioButton*>(QStringLiteral("Ord(1)"));
    QVERIFY(alfabetico && archivistico);
    QCOMPARE(alfabetico->text(), QStringLiteral("Alfabetico"));
    QCOMPARE(archivistico->text(), QStringLiteral("Archivistico"));
    QVERIFY(archivistico->isChecked());
    QVERIFY(!alfabetico->isChecked());
    QCOMPARE(finestra.ordini, QStringList({QStringLiteral("CD_Ordinamento, ELEM_Denominazione")}));
    const ModelloAlbero& modello = finestra.Modello();
    QCOMPARE(TestiFigli(modello, modello.Trova(istituto)),
             QStringList({QStringLiteral("Beta"), QStringLiteral("Alfa")}));

    // A node chosen and opened, then the other order: reloaded and collapsed on the root.
    finestra.tvwDB->expand(modello.Trova(istituto));
    finestra.SelezionaNodo(modello.Trova(beta));
    alfabetico->click();
    QCOMPARE(finestra.ordini.last(), QStringLiteral("ELEM_Denominazione"));
    QCOMPARE(TestiFigli(modello, modello.Trova(istituto)),
             QStringList({QStringLiteral("Alfa"), QStringLiteral("Beta")}));
    QVERIFY(!finestra.tvwDB->isExpanded(modello.Trova(istituto)));
    QCOMPARE(finestra.tvwDB->currentIndex(), modello.Radice());
    // A click on the option already on loads nothing.
    alfabetico->click();
    QCOMPARE(finestra.ordini.size(), 2);
    archivistico->click();
    QCOMPARE(finestra.ordini.last(), QStringLiteral("CD_Ordinamento, ELEM_Denominazione"));
    QCOMPARE(TestiFigli(modello, modello.Trova(istituto)),
             QStringList({QStringLiteral("Beta"), QStringLiteral("Alfa")}));
}

void TestAlbero::ilNodoTemporaneoHaDieciSpaziEDopoAnnullaTornaIlPadre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    a.Crea("02", QStringLiteral("Complesso"), istituto);
    FinestraDiProva finestra;
    finestra.Carica();
    const ModelloAlbero& modello = finestra.Modello();
    finestra.SelezionaNodo(modello.Trova(istituto));
    finestra.mostrati.clear();

    finestra.BloccaComandi();
    finestra.sStato = QStringLiteral("nuovo");
    const QModelIndex temporaneo =
        finestra.AggiungiNodoTemporaneo(QStringLiteral("02"), QStringLiteral("nolink"));
    QCOMPARE(modello.Chiave(temporaneo), QStringLiteral("9999999 ID"));
    QCOMPARE(modello.Testo(temporaneo), QString(10, u' '));
    QCOMPARE(modello.Tag(temporaneo), QStringLiteral("02"));
    QCOMPARE(finestra.sTagNuovo, QStringLiteral("02"));
    QCOMPARE(modello.Id(temporaneo.parent()), qint64(istituto));
    QCOMPARE(finestra.tvwDB->currentIndex(), temporaneo);
    // Selected, not shown: the parent stays the node in hand.
    QVERIFY(finestra.mostrati.isEmpty());
    QCOMPARE(finestra.lIdCorrente, qint64(istituto));

    finestra.AnnullaNodoTemporaneo();
    finestra.sStato = QStringLiteral("mostra");
    finestra.SbloccaComandi();
    QVERIFY(!modello.Trova(ModelloAlbero::IdTemporaneo).isValid());
    QCOMPARE(modello.rowCount(modello.Trova(istituto)), 1);
    QCOMPARE(finestra.tvwDB->currentIndex(), modello.Trova(istituto));
    QCOMPARE(finestra.mostrati, QStringList({QStringLiteral("01 ") + QString::number(istituto)}));
}

void TestAlbero::allaConfermaIlNodoVeroPrendeIlPostoDelTemporaneo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const long istituto = a.Crea("01", QStringLiteral("Istituto"));
    FinestraDiProva finestra;
    finestra.Carica();
    const ModelloAlbero& modello = finestra.Modello();
    finestra.SelezionaNodo(modello.Trova(istituto));
    finestra.AggiungiNodoTemporaneo(QStringLiteral("02"), QStringLiteral("nolink"));
    const long nuovo = a.Crea("02", QStringLiteral("Nuovo fondo"), istituto);
    const QModelIndex nodo = finestra.SostituisciNodoTemporaneo(
        nuovo, QStringLiteral("Nuovo fondo"), QStringLiteral("nolink"), QStringLiteral("02"));
    QVERIFY(!modello.Trova(ModelloAlbero::IdTemporaneo).isValid());
    QCOMPARE(modello.Testo(nodo), QStringLiteral("Nuovo fondo"));
    QVERIFY(modello.Ordinato(nodo));
    QCOMPARE(finestra.tvwDB->currentIndex(), nodo);
    QCOMPARE(finestra.lIdCorrente, qint64(nuovo));
    QCOMPARE(finestra.mostrati.last(), QStringLiteral("02 ") + QString::number(nuovo));
}

void TestAlbero::bloccaESbloccaComandi() {
    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    FinestraDiProva finestra;
    finestra.show();
    finestra.BloccaComandi();
    QVERIFY(finestra.cmdNuovoCD->isHidden());
    QVERIFY(finestra.cmdModifica->isHidden());
    QVERIFY(finestra.cmdSposta->isHidden());
    QVERIFY(finestra.picSposta->isHidden());
    QVERIFY(!finestra.tvwDB->isEnabled());
    QVERIFY(!finestra.cmdConferma->isHidden());
    QVERIFY(!finestra.cmdAnnulla->isHidden());
    finestra.SbloccaComandi();
    QVERIFY(!finestra.cmdNuovoCD->isHidden());
    QVERIFY(!finestra.cmdModifica->isHidden());
    QVERIFY(!finestra.cmdSposta->isHidden());
    QVERIFY(!finestra.picSposta->isHidden());
    QVERIFY(finestra.tvwDB->isEnabled());
    QVERIFY(finestra.cmdConferma->isHidden());
    QVERIFY(finestra.cmdAnnulla->isHidden());
    QCOMPARE(finestra.sStato, QStringLiteral("mostra"));
}

void TestAlbero::ilPannelloScorreviNascondeEMostraFrame1() {
    Ambiente a(TipoBackend::SQLite);
    FinestraDiProva finestra;
    finestra.resize(800, 500);
    finestra.Carica();
    finestra.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finestra));
    QVERIFY(!finestra.Frame1->isHidden());
    QVERIFY(!finestra.bPannelloNascosto);
    const int larghezza = finestra.tvwDB->width();
    const qint64 figuraMostrato = finestra.picSposta->pixmap().cacheKey();
    QVERIFY(!finestra.picSposta->pixmap().isNull());
    QVERIFY(!finestra.cmdSposta->icon().isNull());

    QTest::mouseClick(finestra.cmdSposta, Qt::LeftButton);
    QVERIFY(finestra.Frame1->isHidden());
    QVERIFY(finestra.bPannelloNascosto);
    QVERIFY(finestra.picSposta->pixmap().cacheKey() != figuraMostrato);
    QTRY_VERIFY(finestra.tvwDB->width() > larghezza);

    // The picture acts as the same button.
    QTest::mouseClick(finestra.picSposta, Qt::LeftButton);
    QVERIFY(!finestra.Frame1->isHidden());
    QVERIFY(!finestra.bPannelloNascosto);
    QTRY_COMPARE(finestra.tvwDB->width(), larghezza);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestAlbero::unaFiguraMancanteDaUnMessaggioENonFermaLaFinestra() {
    Ambiente a(TipoBackend::SQLite, false);
    FinestraDiProva finestra;
    finestra.Carica();
    QVERIFY(!a.piattaforma.Messaggi().isEmpty());
    const Messaggio messaggio = a.piattaforma.Messaggi().first();
    QCOMPARE(messaggio.icona, Icona::Critica);
    QVERIFY2(messaggio.sTesto.contains(QStringLiteral("nascondi.bmp")),
             qPrintable(messaggio.sTesto));
    a.piattaforma.Svuota();
    finestra.NascondiPannello();
    QVERIFY(finestra.Frame1->isHidden());
    QVERIFY(a.piattaforma.Messaggi().first().sTesto.contains(QStringLiteral("mostra.bmp")));
    // The tree was loaded all the same.
    QCOMPARE(finestra.caricamentiRiusciti, 1);
}

void TestAlbero::escChiudeLaFinestra() {
    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    FinestraDiProva finestra;
    finestra.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finestra));
    finestra.BloccaComandi();
    QTest::keyClick(&finestra, Qt::Key_Escape);
    QVERIFY(!finestra.isVisible());
}

void TestAlbero::inUnDialogoEscChiudeIlDialogo() {
    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    auto* finestra = new FinestraDiProva;
    finestra->setWindowTitle(QStringLiteral("Finestra modale"));
    const QPointer<QDialog> dialogo = finestra->InDialogo();
    QCOMPARE(finestra->parentWidget(), dialogo.data());
    QCOMPARE(dialogo->windowTitle(), QStringLiteral("Finestra modale"));
    QVERIFY(dialogo->isModal());
    int iEsito = -1;
    QTimer::singleShot(0, finestra, [finestra] {
        finestra->tvwDB->setFocus();
        QTest::keyClick(finestra->tvwDB, Qt::Key_Escape);
    });
    // A dialog that Escape did not close would keep exec() waiting: the guard ends it as
    // accepted, which the assertion below tells apart.
    QTimer::singleShot(5000, dialogo.data(), [&dialogo] {
        if (dialogo) {
            dialogo->accept();
        }
    });
    iEsito = dialogo->exec();
    QCOMPARE(iEsito, int(QDialog::Rejected));
    QVERIFY(!dialogo->isVisible());
    // The window is still the dialog's, shown inside it.
    QCOMPARE(finestra->parentWidget(), dialogo.data());
    QVERIFY(finestra->isVisibleTo(dialogo));
    delete dialogo;
}

QTEST_MAIN(TestAlbero)
#include "tst_albero.moc"
