// The image repository: physical and logical paths, the counters in the table and in the file,
// the numbered folders with their copies and the `pagine` index document.

#include "images/Md5.h"
#include "images/basGestImgMag.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <chrono>
#include <condition_variable>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace basGestImgMag;

namespace {

QByteArray Leggi(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Scrivi(const QString& percorso, const QByteArray& contenuto) {
    QDir().mkpath(QFileInfo(percorso).absolutePath());
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(contenuto) != contenuto.size())
        qFatal("can't write the test file");
}

struct Img {
    QString sSequenza;
    QString sNomenclatura;
    QString sHref;
};

// A MAG document in the standard's shape (namespaces, gen, bib, img with md5) or bare.
QByteArray Mag(const QList<Img>& immagini, bool bStandard = true) {
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    if (bStandard) {
        xml += "<metadigit xmlns=\"http://www.iccu.sbn.it/metaAG1.pdf\" "
               "xmlns:xlink=\"http://www.w3.org/TR/xlink\" "
               "xmlns:dc=\"http://purl.org/dc/elements/1.1/\" version=\"2.0.1\">\n"
               "  <gen><stprog>http://www.iccu.sbn.it</stprog></gen>\n"
               "  <bib level=\"m\"><dc:title>Statuti di Rovereto</dc:title></bib>\n";
    } else {
        xml += "<metadigit>\n";
    }
    for (const Img& img : immagini) {
        xml += "  <img>\n    <sequence_number>" + img.sSequenza.toUtf8() +
               "</sequence_number>\n    <nomenclature>" + img.sNomenclatura.toUtf8() +
               "</nomenclature>\n    <file Location=\"URI\" xlink:href=\"" + img.sHref.toUtf8() +
               "\"/>\n    <md5>0</md5>\n  </img>\n";
    }
    xml += "</metadigit>\n";
    return xml;
}

QVariant Valore(const Connessione& cnn, const QString& sql, std::initializer_list<QVariant> v) {
    QSqlQuery query = cnn.Esegui(sql, v);
    return query.next() ? query.value(0) : QVariant();
}

// A database for one row of a data-driven test, as the session's connection.
struct Banca {
    explicit Banca(TipoBackend tipo)
        : banca(tipo) {
        Sessione::cnn = banca.Apri();
    }
    ~Banca() { Sessione::Azzera(); }
    QVariant Contatore(const QString& sCartella) const {
        return Valore(*Sessione::cnn,
                      QStringLiteral("SELECT Counter FROM ImgCounter WHERE PhisicalPath = ?"),
                      {sCartella});
    }
    int Righe() const {
        return Valore(*Sessione::cnn, QStringLiteral("SELECT COUNT(*) FROM ImgCounter"), {})
            .toInt();
    }
    BancaDatiProva banca;
};

// A source folder with a MAG document and its images, and a repository root.
struct Scena {
    Scena() {
        sSorgente = cartella.path() + QStringLiteral("/scansioni/vol1/");
        sRadice = cartella.path() + QStringLiteral("/repo");
        sRadiceLogica = QStringLiteral("http://archivio.example.it/img");
        QDir().mkpath(sRadice);
        Scrivi(sSorgente + QStringLiteral("tiff/0001.tif"), QByteArray("immagine uno"));
        Scrivi(sSorgente + QStringLiteral("tiff/0002.tif"), QByteArray("immagine due"));
        sDoc = sSorgente + QStringLiteral("mag.xml");
        Scrivi(sDoc, Mag({{QStringLiteral("0001"), QStringLiteral("c. 1r"),
                           QStringLiteral("./tiff/0001.tif")},
                          {QStringLiteral("0002"), QStringLiteral("c. 1v"),
                           sSorgente + QStringLiteral("tiff/0002.tif")}}));
    }
    // The physical folder that the source folder gives under the root.
    QString Fisica() const { return sRadice + sSorgente; }
    QString Contatore() const { return cartella.filePath(QStringLiteral("ImgCounter.xml")); }
    QTemporaryDir cartella;
    QString sSorgente;
    QString sRadice;
    QString sRadiceLogica;
    QString sDoc;
};

struct Esito {
    bool bRiuscito = false;
    QString sLogicalPath;
    QString sXmlName;
    QString sMd5;
    long lNumImg = -1;
    QString sErrore;
};

Esito Gestisci(const QString& sDoc, const QString& s01, const QString& s12,
               const QString& sContatore, bool bUseDb = true) {
    Esito e;
    e.bRiuscito = bGestImgXml(sDoc, s01, s12, sContatore, e.sLogicalPath, e.sXmlName, e.sMd5,
                              e.lNumImg, e.sErrore, bUseDb);
    return e;
}

// Frees whoever would open a pipe to read it: if the test is still running after a while, the
// pipe's other end is opened and closed, so that a reading ends with an empty file instead of
// waiting for ever and the test fails on what it finds.
class SbloccoPipe {
public:
    explicit SbloccoPipe(const QString& sPipe)
        : percorso(QFile::encodeName(sPipe)) {
        guardia = std::thread([this] {
            std::unique_lock<std::mutex> blocco(mutex);
            if (!attesa.wait_for(blocco, std::chrono::seconds(10), [this] { return bFinito; })) {
                const int fd = ::open(percorso.constData(), O_WRONLY | O_NONBLOCK);
                if (fd >= 0)
                    ::close(fd);
            }
        });
    }
    ~SbloccoPipe() {
        {
            const std::lock_guard<std::mutex> blocco(mutex);
            bFinito = true;
        }
        attesa.notify_all();
        guardia.join();
    }
    SbloccoPipe(const SbloccoPipe&) = delete;
    SbloccoPipe& operator=(const SbloccoPipe&) = delete;

private:
    QByteArray percorso;
    std::mutex mutex;
    std::condition_variable attesa;
    bool bFinito = false;
    std::thread guardia;
};

} // namespace

class TestRepository : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void laCartellaFisicaPerdeLUnitaEConservaLAlbero_data();
    void laCartellaFisicaPerdeLUnitaEConservaLAlbero();
    void laCartellaFisicaDiQuestaPiattaformaSiCreaLivelloPerLivello();
    void laFormaLogicaSostituisceOgniOccorrenzaDellaRadice();
    void laFormaFisicaTornaDallaLogica();

    void laPrimaImportazioneDiUnaCartellaHaIlNumeroUno_data() { AggiungiBackend(); }
    void laPrimaImportazioneDiUnaCartellaHaIlNumeroUno();
    void unaNuovaImportazioneHaIlNumeroSeguenteELaPrecedenteResta_data() { AggiungiBackend(); }
    void unaNuovaImportazioneHaIlNumeroSeguenteELaPrecedenteResta();
    void senzaRadiceLogicaIFileRestanoDoveSonoESenzaContatore_data() { AggiungiBackend(); }
    void senzaRadiceLogicaIFileRestanoDoveSonoESenzaContatore();
    void senzaRadiceFisicaNonSiFaNulla();
    void ilDocumentoPagineHaIByteAttesi();
    void unDocumentoSenzaImgDaUnIndiceVuoto_data() { AggiungiBackend(); }
    void unDocumentoSenzaImgDaUnIndiceVuoto();
    void unDocumentoSenzaSpaziDeiNomiSiLeggeComeQuelloStandard();
    void unNumeroDiSequenzaConZeriInTestaRestaComE();

    void ilContatoreNellaTabellaSaleDiUno_data() { AggiungiBackend(); }
    void ilContatoreNellaTabellaSaleDiUno();
    void unPercorsoConApostrofoHaIlSuoContatore_data() { AggiungiBackend(); }
    void unPercorsoConApostrofoHaIlSuoContatore();
    void unContatoreNulloDaUno_data() { AggiungiBackend(); }
    void unContatoreNulloDaUno();
    void ilContatoreNelFileHaIlSuoFormatoSenzaRadice();
    void dueCartelleNelFileLoRendonoIlleggibileEDannoUno();
    void ilFileDeiContatoriSiUsaSenzaBancaDati();

    void unDocumentoMancanteDaLErroreDelDigest();
    void unaImmagineMancanteLasciaLeCopieFatteENessunIndice_data() { AggiungiBackend(); }
    void unaImmagineMancanteLasciaLeCopieFatteENessunIndice();
    void unaImmagineDueVolteEUnErrore_data() { AggiungiBackend(); }
    void unaImmagineDueVolteEUnErrore();
    void unImgSenzaNomenclatureEUnErrore_data() { AggiungiBackend(); }
    void unImgSenzaNomenclatureEUnErrore();
    void unDocumentoNonXmlEUnErrore_data() { AggiungiBackend(); }
    void unDocumentoNonXmlEUnErrore();
    void unaRadiceNonScrivibileEUnErrore_data() { AggiungiBackend(); }
    void unaRadiceNonScrivibileEUnErrore();
    void ogniRoutineDaIlSuoPrefissoDiErrore();
    void unContatoreNelFileNonAggiornatoDaUnSoloPrefissoELaCausa();
    void unContatoreNellaTabellaNonAggiornatoDaUnSoloPrefissoELaCausa_data() { AggiungiBackend(); }
    void unContatoreNellaTabellaNonAggiornatoDaUnSoloPrefissoELaCausa();
    void unRiferimentoACioCheNonEUnFileEUnaImmagineMancanteMaiLetta_data();
    void unRiferimentoACioCheNonEUnFileEUnaImmagineMancanteMaiLetta();
};

void TestRepository::laCartellaFisicaPerdeLUnitaEConservaLAlbero_data() {
    QTest::addColumn<QString>("documento");
    QTest::addColumn<QString>("radice");
    QTest::addColumn<QString>("fisica");
    QTest::newRow("unità") << QStringLiteral("D:\\scansioni\\vol1\\mag.xml")
                           << QStringLiteral("C:\\repo")
                           << QStringLiteral("C:\\repo\\scansioni\\vol1\\");
    QTest::newRow("unità minuscola")
        << QStringLiteral("d:\\Scansioni\\mag.xml") << QStringLiteral("\\\\nas\\img")
        << QStringLiteral("\\\\nas\\img\\Scansioni\\");
    QTest::newRow("rete") << QStringLiteral("\\\\server\\share\\dir\\mag.xml")
                          << QStringLiteral("C:\\repo\\")
                          << QStringLiteral("C:\\repo\\server\\share\\dir\\");
    QTest::newRow("radice dell'unità")
        << QStringLiteral("D:\\mag.xml") << QStringLiteral("C:\\repo")
        << QStringLiteral("C:\\repo\\");
    QTest::newRow("posix sotto radice windows")
        << QStringLiteral("/home/archivio/scansioni/mag.xml") << QStringLiteral("C:\\repo")
        << QStringLiteral("C:\\repo\\home\\archivio\\scansioni\\");
}

void TestRepository::laCartellaFisicaPerdeLUnitaEConservaLAlbero() {
    QFETCH(QString, documento);
    QFETCH(QString, radice);
    QFETCH(QString, fisica);
    QCOMPARE(sGetPhysicalPath(documento, radice), fisica);
}

void TestRepository::laCartellaFisicaDiQuestaPiattaformaSiCreaLivelloPerLivello() {
    QTemporaryDir cartella;
    const QString radice = cartella.path() + QStringLiteral("/repo");
    // The root "/" plays the part of the drive: the whole tree is kept below sParam01.
    const QString fisica = sGetPhysicalPath(QStringLiteral("/archivio/scansioni/mag.xml"), radice);
    QCOMPARE(fisica, radice + QStringLiteral("/archivio/scansioni/"));
    QVERIFY(QFileInfo(fisica).isDir());
    // With a final separator on the root the two don't double.
    QCOMPARE(sGetPhysicalPath(QStringLiteral("/archivio/mag.xml"), radice + QLatin1Char('/')),
             radice + QStringLiteral("/archivio/"));
    // A Windows-style document under a root of this platform.
    QCOMPARE(sGetPhysicalPath(QStringLiteral("E:\\foto\\mag.xml"), radice),
             radice + QStringLiteral("/foto/"));
    QVERIFY(QFileInfo(radice + QStringLiteral("/foto")).isDir());
}

void TestRepository::laFormaLogicaSostituisceOgniOccorrenzaDellaRadice() {
    QCOMPARE(sGetLogicalPath(QStringLiteral("C:\\repo"), QStringLiteral("http://web/img"),
                             QStringLiteral("C:\\repo\\scansioni\\vol1\\")),
             QStringLiteral("http://web/img/scansioni/vol1/"));
    // The text of sParam01 twice in the path: both are replaced.
    QCOMPARE(sGetLogicalPath(QStringLiteral("\\img"), QStringLiteral("/web"),
                             QStringLiteral("\\img\\archivio\\img\\vol1\\")),
             QStringLiteral("/web/archivio/web/vol1/"));
    QCOMPARE(sGetLogicalPath(QStringLiteral("/srv/img"), QStringLiteral("http://web/img"),
                             QStringLiteral("/srv/img/srv/img/vol1/")),
             QStringLiteral("http://web/imghttp://web/img/vol1/"));
}

void TestRepository::laFormaFisicaTornaDallaLogica() {
    QCOMPARE(sGetPhysicalFromLogical(QStringLiteral("C:\\repo"), QStringLiteral("http://web/img"),
                                     QStringLiteral("http://web/img/scansioni/vol1/")),
             QStringLiteral("C:\\repo\\scansioni\\vol1\\"));
    QCOMPARE(sGetPhysicalFromLogical(QStringLiteral("/srv/img"), QStringLiteral("http://web/img"),
                                     QStringLiteral("http://web/img/scansioni/vol1/")),
             QStringLiteral("/srv/img/scansioni/vol1/"));
    QCOMPARE(sGetPhysicalFromLogical(QStringLiteral("\\img"), QStringLiteral("/web"),
                                     QStringLiteral("/web/a/web/")),
             QStringLiteral("\\img\\a\\img\\"));
}

void TestRepository::laPrimaImportazioneDiUnaCartellaHaIlNumeroUno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QVERIFY(e.bRiuscito);
    QString sErrore;
    QCOMPARE(e.sMd5, sCalculateMd5(s.sDoc, sErrore));
    QCOMPARE(e.lNumImg, 2L);
    QCOMPARE(e.sXmlName, QStringLiteral("1.xml"));
    QCOMPARE(e.sLogicalPath, s.sRadiceLogica + s.sSorgente);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1")).isDir());
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1.xml")).isFile());
    QCOMPARE(Leggi(s.Fisica() + QStringLiteral("1/0001.tif")), QByteArray("immagine uno"));
    QCOMPARE(Leggi(s.Fisica() + QStringLiteral("1/0002.tif")), QByteArray("immagine due"));
    QCOMPARE(b.Contatore(s.Fisica()).toInt(), 1);
    QCOMPARE(b.Righe(), 1);
    // The file store is not the one in use.
    QVERIFY(!QFile::exists(s.Contatore()));
    // The document itself is left as it was.
    QCOMPARE(sCalculateMd5(s.sDoc, sErrore), e.sMd5);
}

void TestRepository::unaNuovaImportazioneHaIlNumeroSeguenteELaPrecedenteResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(e.sXmlName, QStringLiteral("2.xml"));
    QCOMPARE(e.sLogicalPath, s.sRadiceLogica + s.sSorgente);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0001.tif")).isFile());
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("2/0001.tif")).isFile());
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1.xml")).isFile());
    QVERIFY(Leggi(s.Fisica() + QStringLiteral("2.xml"))
                .contains("path=\"" + (s.sRadiceLogica + s.sSorgente).toUtf8() + "2/\""));
    QCOMPARE(b.Contatore(s.Fisica()).toInt(), 2);
    QCOMPARE(b.Righe(), 1);
}

void TestRepository::senzaRadiceLogicaIFileRestanoDoveSonoESenzaContatore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    const Esito e = Gestisci(s.sDoc, s.sRadice, QString(), s.Contatore());
    QVERIFY(e.bRiuscito);
    QVERIFY(e.sErrore.isEmpty());
    QCOMPARE(e.lNumImg, 2L);
    QVERIFY(e.sXmlName.isEmpty());
    QVERIFY(e.sLogicalPath.isEmpty());
    QCOMPARE(e.sMd5.size(), 32);
    QCOMPARE(b.Righe(), 0);
    QVERIFY(QDir(s.sRadice).isEmpty());
    QVERIFY(!QFile::exists(s.Contatore()));
}

void TestRepository::senzaRadiceFisicaNonSiFaNulla() {
    Scena s;
    const Esito e = Gestisci(s.sDoc, QString(), s.sRadiceLogica, s.Contatore());
    QVERIFY(e.bRiuscito);
    QVERIFY(e.sErrore.isEmpty());
    QCOMPARE(e.lNumImg, 0L);
    QCOMPARE(e.sMd5.size(), 32);
    QVERIFY(QDir(s.sRadice).isEmpty());
}

void TestRepository::ilDocumentoPagineHaIByteAttesi() {
    // The file store, so that no database is needed.
    Scena s;
    Scrivi(s.sDoc,
           Mag({{QStringLiteral("0001"), QStringLiteral("c. 1r &amp; \"piatto\""),
                 QStringLiteral("./tiff/0001.tif")},
                {QStringLiteral("2"), QStringLiteral("c. 1v"), QStringLiteral("tiff\\0002.tif")}}));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    const QByteArray path = (s.sRadiceLogica + s.sSorgente).toUtf8() + "1/";
    const QByteArray atteso = "<?xml version = \"1.0\" encoding=\"UTF-8\"?>"
                              "<pagine magmd5=\"" +
                              e.sMd5.toLatin1() + "\" path=\"" + path +
                              "\">\r\n"
                              "\t<pagina sequence=\"0001\" nomenclature=\"c. 1r &amp; "
                              "&quot;piatto&quot;\" file=\"0001.tif\"/>\r\n"
                              "\t<pagina sequence=\"2\" nomenclature=\"c. 1v\" "
                              "file=\"0002.tif\"/>\r\n"
                              "</pagine>";
    QCOMPARE(Leggi(s.Fisica() + QStringLiteral("1.xml")), atteso);
}

void TestRepository::unDocumentoSenzaImgDaUnIndiceVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    Scrivi(s.sDoc, Mag({}));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(e.lNumImg, 0L);
    QCOMPARE(e.sXmlName, QStringLiteral("1.xml"));
    QCOMPARE(Leggi(s.Fisica() + QStringLiteral("1.xml")),
             "<?xml version = \"1.0\" encoding=\"UTF-8\"?><pagine magmd5=\"" + e.sMd5.toLatin1() +
                 "\" path=\"" + (s.sRadiceLogica + s.sSorgente).toUtf8() + "1/\">\r\n</pagine>");
    QVERIFY(QDir(s.Fisica() + QStringLiteral("1")).isEmpty());
    QCOMPARE(b.Contatore(s.Fisica()).toInt(), 1);
}

void TestRepository::unDocumentoSenzaSpaziDeiNomiSiLeggeComeQuelloStandard() {
    Scena s;
    Scrivi(s.sDoc,
           Mag({{QStringLiteral("1"), QStringLiteral("piatto"), QStringLiteral("./tiff/0001.tif")}},
               false)
               .replace("xlink:href", "href"));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(e.lNumImg, 1L);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0001.tif")).isFile());
    long lNum = 0;
    QString sErrore;
    GetXmlMagNImg(s.sDoc, lNum, sErrore);
    QCOMPARE(lNum, 1L);
}

void TestRepository::unNumeroDiSequenzaConZeriInTestaRestaComE() {
    Scena s;
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QVERIFY(Leggi(s.Fisica() + QStringLiteral("1.xml")).contains("sequence=\"0002\""));
}

void TestRepository::ilContatoreNellaTabellaSaleDiUno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const QString a = QStringLiteral("/srv/img/scansioni/");
    const QString c = QStringLiteral("/srv/img/scansioni/vol1/");
    QString sErrore;
    QCOMPARE(dGetImgCounterFromDb(a, sErrore), 1.0);
    QVERIFY(bAggImgCounterTable(a, sErrore));
    QCOMPARE(b.Contatore(a).toInt(), 1);
    QCOMPARE(dGetImgCounterFromDb(a, sErrore), 2.0);
    QVERIFY(bAggImgCounterTable(a, sErrore));
    QVERIFY(bAggImgCounterTable(a, sErrore));
    QCOMPARE(dGetImgCounterFromDb(a, sErrore), 4.0);
    // Kept per folder, compared in full.
    QCOMPARE(dGetImgCounterFromDb(c, sErrore), 1.0);
    QVERIFY(bAggImgCounterTable(c, sErrore));
    QCOMPARE(b.Contatore(c).toInt(), 1);
    QCOMPARE(b.Contatore(a).toInt(), 3);
    QVERIFY(sErrore.isEmpty());
}

void TestRepository::unPercorsoConApostrofoHaIlSuoContatore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    const QString sorgente = s.cartella.path() + QStringLiteral("/Sant'Anna/l'archivio/");
    Scrivi(sorgente + QStringLiteral("c'1.tif"), QByteArray("x"));
    Scrivi(sorgente + QStringLiteral("mag'.xml"),
           Mag({{QStringLiteral("1"), QStringLiteral("l'unica"), QStringLiteral("./c'1.tif")}}));
    const Esito e =
        Gestisci(sorgente + QStringLiteral("mag'.xml"), s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(b.Contatore(s.sRadice + sorgente).toInt(), 1);
    QVERIFY(QFileInfo(s.sRadice + sorgente + QStringLiteral("1/c'1.tif")).isFile());
    QString sErrore;
    QCOMPARE(dGetImgCounterFromDb(s.sRadice + sorgente, sErrore), 2.0);
}

void TestRepository::unContatoreNulloDaUno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Sessione::cnn->Esegui(
        QStringLiteral("INSERT INTO ImgCounter (PhisicalPath, Counter) VALUES (?, NULL)"),
        {QStringLiteral("/srv/x/")});
    QString sErrore;
    QCOMPARE(dGetImgCounterFromDb(QStringLiteral("/srv/x/"), sErrore), 1.0);
    QVERIFY(sErrore.isEmpty());
}

void TestRepository::ilContatoreNelFileHaIlSuoFormatoSenzaRadice() {
    QTemporaryDir cartella;
    const QString file = cartella.filePath(QStringLiteral("ImgCounter.xml"));
    const QString a = QStringLiteral("C:\\repo\\scansioni\\");
    QString sErrore;
    QCOMPARE(dGetImgCounterFromFile(file, a, sErrore), 1.0);
    QVERIFY(bAggImgCounterFile(file, a, sErrore));
    QCOMPARE(Leggi(file), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n\r\n"
                                     "<location phisicalpath=\"C:\\repo\\scansioni\\\" "
                                     "counter=\"1\" >\r\n</location>"));
    QCOMPARE(dGetImgCounterFromFile(file, a, sErrore), 2.0);
    // The file's folder is compared in upper case.
    QCOMPARE(dGetImgCounterFromFile(file, a.toLower(), sErrore), 2.0);
    QCOMPARE(dGetImgCounterFromFile(file, QStringLiteral("C:\\altro\\"), sErrore), 1.0);
    QVERIFY(bAggImgCounterFile(file, a, sErrore));
    QVERIFY(bAggImgCounterFile(file, a, sErrore));
    QCOMPARE(Leggi(file), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n\r\n"
                                     "<location phisicalpath=\"C:\\repo\\scansioni\\\" "
                                     "counter=\"3\" >\r\n</location>"));
    QCOMPARE(dGetImgCounterFromFile(file, a, sErrore), 4.0);
    // The update seeks the folder case sensitive: another spelling is another entry.
    QVERIFY(bAggImgCounterFile(file, a.toLower(), sErrore));
    QVERIFY(Leggi(file).endsWith("<location phisicalpath=\"c:\\repo\\scansioni\\\" "
                                 "counter=\"1\" >\r\n</location>"));
    QVERIFY(sErrore.isEmpty());
}

void TestRepository::dueCartelleNelFileLoRendonoIlleggibileEDannoUno() {
    QTemporaryDir cartella;
    const QString file = cartella.filePath(QStringLiteral("ImgCounter.xml"));
    QString sErrore;
    QVERIFY(bAggImgCounterFile(file, QStringLiteral("/a/"), sErrore));
    QVERIFY(bAggImgCounterFile(file, QStringLiteral("/a/"), sErrore));
    QVERIFY(bAggImgCounterFile(file, QStringLiteral("/b/"), sErrore));
    QVERIFY(bAggImgCounterFile(file, QStringLiteral("/b/"), sErrore));
    QVERIFY(bAggImgCounterFile(file, QStringLiteral("/b/"), sErrore));
    QCOMPARE(Leggi(file), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n\r\n"
                                     "<location phisicalpath=\"/a/\" counter=\"2\" >\r\n"
                                     "</location>\r\n"
                                     "<location phisicalpath=\"/b/\" counter=\"3\" >\r\n"
                                     "</location>"));
    QCOMPARE(dGetImgCounterFromFile(file, QStringLiteral("/a/"), sErrore), 1.0);
    QCOMPARE(dGetImgCounterFromFile(file, QStringLiteral("/b/"), sErrore), 1.0);
    QVERIFY(sErrore.isEmpty());
}

void TestRepository::ilFileDeiContatoriSiUsaSenzaBancaDati() {
    Scena s;
    Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(e.sXmlName, QStringLiteral("1.xml"));
    QVERIFY(
        Leggi(s.Contatore())
            .contains("<location phisicalpath=\"" + s.Fisica().toUtf8() + "\" counter=\"1\" >"));
    e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QCOMPARE(e.sXmlName, QStringLiteral("2.xml"));
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("2/0002.tif")).isFile());
}

void TestRepository::unDocumentoMancanteDaLErroreDelDigest() {
    Scena s;
    const QString sDoc = s.sSorgente + QStringLiteral("manca.xml");
    const Esito e = Gestisci(sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QVERIFY(!e.bRiuscito);
    QCOMPARE(e.sErrore, QStringLiteral("Errore nel calcolo del codice MD5 (File: %1)").arg(sDoc));
    QVERIFY(QDir(s.sRadice).isEmpty());
}

void TestRepository::unaImmagineMancanteLasciaLeCopieFatteENessunIndice() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    Scrivi(s.sDoc,
           Mag({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("./tiff/0001.tif")},
                {QStringLiteral("2"), QStringLiteral("b"), QStringLiteral("./tiff/manca.tif")},
                {QStringLiteral("3"), QStringLiteral("c"), QStringLiteral("./tiff/0002.tif")}}));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY(e.bRiuscito);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QVERIFY(e.sErrore.contains(QStringLiteral("manca.tif")));
    QCOMPARE(e.lNumImg, 1L);
    QCOMPARE(e.sXmlName, QStringLiteral("1"));
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0001.tif")).isFile());
    QVERIFY(!QFile::exists(s.Fisica() + QStringLiteral("1/0002.tif")));
    QVERIFY(!QFile::exists(s.Fisica() + QStringLiteral("1.xml")));
    QCOMPARE(b.Righe(), 0);
}

void TestRepository::unaImmagineDueVolteEUnErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    Scrivi(s.sDoc,
           Mag({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("./tiff/0001.tif")},
                {QStringLiteral("2"), QStringLiteral("b"),
                 s.sSorgente + QStringLiteral("tiff/0001.tif")}}));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(e.lNumImg, 1L);
    QVERIFY(!QFile::exists(s.Fisica() + QStringLiteral("1.xml")));
    QCOMPARE(b.Righe(), 0);
}

void TestRepository::unImgSenzaNomenclatureEUnErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    Scrivi(s.sDoc,
           Mag({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("./tiff/0001.tif")}})
               .replace("<nomenclature>a</nomenclature>", ""));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QVERIFY(e.sErrore.contains(QStringLiteral("nomenclature")));
    QCOMPARE(e.lNumImg, 0L);
    QCOMPARE(b.Righe(), 0);
}

void TestRepository::unDocumentoNonXmlEUnErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    Scrivi(s.sDoc, QByteArray("questo non è XML <img>"));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY(e.bRiuscito);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(e.sXmlName, QStringLiteral("1"));
    QVERIFY(!QFile::exists(s.Fisica() + QStringLiteral("1.xml")));
    QCOMPARE(b.Righe(), 0);
    long lNum = 0;
    QString sErrore;
    GetXmlMagNImg(s.sDoc, lNum, sErrore);
    QVERIFY2(sErrore.startsWith(QStringLiteral("basGestImgMag.GetXmlMagNImg: ")),
             qPrintable(sErrore));
}

void TestRepository::unaRadiceNonScrivibileEUnErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    // A root that can't hold folders (a file stands in its place, which no user can write
    // under, root included).
    QVERIFY(QDir().rmdir(s.sRadice));
    Scrivi(s.sRadice, QByteArray("non una cartella"));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY(e.bRiuscito);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(b.Righe(), 0);
}

void TestRepository::ogniRoutineDaIlSuoPrefissoDiErrore() {
    // No connection: the table's routines say so in their own words.
    Sessione::Azzera();
    QString sErrore;
    QCOMPARE(dGetImgCounterFromDb(QStringLiteral("/a/"), sErrore), 0.0);
    QVERIFY(sErrore.startsWith(QStringLiteral("basGestImgMag.dGetImgCounterFromDb: ")));
    sErrore.clear();
    QVERIFY(!bAggImgCounterTable(QStringLiteral("/a/"), sErrore));
    QVERIFY(sErrore.startsWith(QStringLiteral("basGestImgMag.bAggImgCounterTable: ")));

    QTemporaryDir cartella;
    // A counter file that is a folder can't be written.
    const QString sCartellaFile = cartella.filePath(QStringLiteral("ImgCounter.xml"));
    QVERIFY(QDir().mkdir(sCartellaFile));
    sErrore.clear();
    QVERIFY(!bAggImgCounterFile(sCartellaFile, QStringLiteral("/a/"), sErrore));
    QVERIFY2(sErrore.startsWith(QStringLiteral("basGestImgMag.bAggImgCounterFile: ")),
             qPrintable(sErrore));
    // A counter that is not a number.
    const QString sFile = cartella.filePath(QStringLiteral("altro.xml"));
    Scrivi(sFile, "<?xml version=\"1.0\"?>\r\n<location phisicalpath=\"/a/\" counter=\"x\" >"
                  "\r\n</location>");
    sErrore.clear();
    QCOMPARE(dGetImgCounterFromFile(sFile, QStringLiteral("/a/"), sErrore), 0.0);
    QVERIFY2(sErrore.startsWith(QStringLiteral("basGestImgMag.dGetImgCounterFromFile: ")),
             qPrintable(sErrore));

    // The next number failed: its error text, the index name "0", the physical folder made.
    Scena s;
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY(e.bRiuscito);
    QVERIFY(e.sErrore.startsWith(QStringLiteral("basGestImgMag.dGetImgCounterFromDb: ")));
    QCOMPARE(e.sXmlName, QStringLiteral("0"));
    QCOMPARE(e.lNumImg, 0L);
    QVERIFY(QFileInfo(s.Fisica()).isDir());
    QVERIFY(QDir(s.Fisica()).isEmpty());
}

void TestRepository::unContatoreNelFileNonAggiornatoDaUnSoloPrefissoELaCausa() {
    Scena s;
    // A counter file that is a folder: the next number is 1, the update fails at the end.
    QVERIFY(QDir().mkdir(s.Contatore()));
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore(), false);
    QVERIFY(e.bRiuscito);
    QString sCausa;
    QVERIFY(!bAggImgCounterFile(s.Contatore(), s.Fisica(), sCausa));
    const QString sPrefissoAgg = QStringLiteral("basGestImgMag.bAggImgCounterFile: ");
    QVERIFY2(sCausa.startsWith(sPrefissoAgg), qPrintable(sCausa));
    sCausa.remove(0, sPrefissoAgg.size());
    QVERIFY(!sCausa.isEmpty());
    QCOMPARE(e.sErrore, QStringLiteral("basGestImgMag.ImportXmlMag: ") + sCausa);
    // The import itself was done.
    QCOMPARE(e.lNumImg, 2L);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1.xml")).isFile());
}

void TestRepository::unContatoreNellaTabellaNonAggiornatoDaUnSoloPrefissoELaCausa() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    if (backend == TipoBackend::PostgreSQL) {
        Sessione::cnn->Esegui(QStringLiteral(
            "CREATE FUNCTION blocca_contatore() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
            "RAISE EXCEPTION 'contatore bloccato'; END $$"));
        Sessione::cnn->Esegui(
            QStringLiteral("CREATE TRIGGER blocca_contatore BEFORE INSERT OR UPDATE ON ImgCounter "
                           "FOR EACH ROW EXECUTE FUNCTION blocca_contatore()"));
    } else {
        Sessione::cnn->Esegui(
            QStringLiteral("CREATE TRIGGER blocca_contatore BEFORE INSERT ON ImgCounter BEGIN "
                           "SELECT RAISE(ABORT, 'contatore bloccato'); END"));
    }
    const Esito e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    QVERIFY(e.bRiuscito);
    const QString sPrefisso = QStringLiteral("basGestImgMag.ImportXmlMag: ");
    QVERIFY2(e.sErrore.startsWith(sPrefisso), qPrintable(e.sErrore));
    QVERIFY2(e.sErrore.contains(QStringLiteral("contatore bloccato")), qPrintable(e.sErrore));
    QVERIFY2(e.sErrore.indexOf(QStringLiteral("basGestImgMag."), 1) < 0, qPrintable(e.sErrore));
    QCOMPARE(b.Righe(), 0);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1.xml")).isFile());
}

void TestRepository::unRiferimentoACioCheNonEUnFileEUnaImmagineMancanteMaiLetta_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("genere");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        for (const char* genere : {"cartella", "dispositivo", "pipe"})
            QTest::addRow("%s, %s", nome, genere) << tipo << QString::fromLatin1(genere);
    }
}

void TestRepository::unRiferimentoACioCheNonEUnFileEUnaImmagineMancanteMaiLetta() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, genere);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Scena s;
    QString sBersaglio;
    if (genere == QLatin1String("cartella")) {
        sBersaglio = s.sSorgente + QStringLiteral("tiff");
    } else if (genere == QLatin1String("dispositivo")) {
        sBersaglio = QStringLiteral("/dev/zero");
    } else {
        sBersaglio = s.sSorgente + QStringLiteral("tiff/0003.tif");
        QCOMPARE(::mkfifo(QFile::encodeName(sBersaglio).constData(), 0600), 0);
    }
    QVERIFY(QFileInfo::exists(sBersaglio));
    Scrivi(s.sDoc,
           Mag({{QStringLiteral("1"), QStringLiteral("c. 1r"), QStringLiteral("./tiff/0001.tif")},
                {QStringLiteral("2"), QStringLiteral("c. 1v"), sBersaglio}}));
    Esito e;
    {
        const SbloccoPipe sblocco(sBersaglio);
        e = Gestisci(s.sDoc, s.sRadice, s.sRadiceLogica, s.Contatore());
    }
    QVERIFY(e.bRiuscito);
    QCOMPARE(e.sErrore,
             QStringLiteral("basGestImgMag.ImportXmlMag: File non trovato: ") + sBersaglio);
    // What an image that is missing leaves: the copies made before it, no index, the counter
    // where it was.
    QCOMPARE(e.lNumImg, 1L);
    QCOMPARE(QDir(s.Fisica() + QStringLiteral("1"))
                 .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden),
             QStringList{QStringLiteral("0001.tif")});
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1.xml")));
    QCOMPARE(b.Righe(), 0);
}

QTEST_MAIN(TestRepository)
#include "tst_repository.moc"
