// The MAG import of a record: the repository's copy, the writes of Elementi and MD5Location in
// their order, what a failure leaves, the removal of a link, the page lists of DaImag and AImag
// and the progress of the copy.

#include "images/Md5.h"
#include "images/XmlMag.h"
#include "images/basGestImgMag.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

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
               "  <gen><stprog>http://www.iccu.sbn.it</stprog><agency>ASLU</agency></gen>\n"
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

// A fresh database as the session's connection, with one element to link, and a source folder
// with a MAG document of two images and a repository root.
struct Scena {
    explicit Scena(TipoBackend tipo, const QString& sCartellaSorgente = QStringLiteral("vol1"))
        : banca(tipo) {
        Sessione::cnn = banca.Apri();
        lId = ArchivioElementi::Crea(*Sessione::cnn, QStringLiteral("01"),
                                     QStringLiteral("Archivio di Stato di Lucca"), 0);
        sSorgente =
            cartella.path() + QStringLiteral("/scansioni/") + sCartellaSorgente + QLatin1Char('/');
        sRadice = cartella.path() + QStringLiteral("/repo");
        QDir().mkpath(sRadice);
        Sessione::sParam01 = sRadice;
        Sessione::sParam12 = QStringLiteral("http://archivio.example.it/img");
        Scrivi(sSorgente + QStringLiteral("tiff/0001.tif"), QByteArray("immagine uno"));
        Scrivi(sSorgente + QStringLiteral("tiff/0002.tif"), QByteArray("immagine due"));
        sDoc = sSorgente + QStringLiteral("mag.xml");
        Documento(
            {{QStringLiteral("0001"), QStringLiteral("c. 1r"), QStringLiteral("./tiff/0001.tif")},
             {QStringLiteral("0002"), QStringLiteral("c. 1v"),
              sSorgente + QStringLiteral("tiff/0002.tif")}});
    }
    ~Scena() { Sessione::Azzera(); }
    void Documento(const QList<Img>& immagini, bool bStandard = true) const {
        Scrivi(sDoc, Mag(immagini, bStandard));
    }
    QString Fisica() const { return sRadice + sSorgente; }
    QString Logica() const { return Sessione::sParam12 + sSorgente; }
    QString Md5() const {
        QString sErrore;
        return basGestImgMag::sCalculateMd5(sDoc, sErrore);
    }
    QVariant Campo(const QString& sColonna) const {
        QSqlQuery query = Sessione::cnn->Esegui(
            QStringLiteral("SELECT %1 FROM Elementi WHERE ID_Elemento = ?").arg(sColonna),
            {qlonglong(lId)});
        return query.next() ? query.value(0) : QVariant();
    }
    // LogicalPath, XmlName, Status of the digest's row, empty when there is none.
    QVariantList Posizione(const QString& sMd5) const {
        QSqlQuery query = Sessione::cnn->Esegui(
            QStringLiteral("SELECT LogicalPath, XmlName, Status FROM MD5Location WHERE MD5 = ?"),
            {sMd5});
        if (!query.next())
            return {};
        return {query.value(0).toString(), query.value(1).toString(), query.value(2).toInt()};
    }
    int RighePosizione() const {
        QSqlQuery query = Sessione::cnn->Esegui(QStringLiteral("SELECT COUNT(*) FROM MD5Location"));
        return query.next() ? query.value(0).toInt() : -1;
    }
    BancaDatiProva banca;
    QTemporaryDir cartella;
    long lId = 0;
    QString sSorgente;
    QString sRadice;
    QString sDoc;
};

struct Esito {
    QString sMd5;
    QString sErrore;
};

Esito Importa(const Scena& s) {
    Esito e;
    XmlMag::ImportXmlMag(s.lId, s.sDoc, e.sMd5, e.sErrore);
    return e;
}

} // namespace

class TestXmlMag : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        Sessione::Azzera();
        basGestImgMag::ImpostaAttesaAvanzamento(500);
    }

    void lImportazioneCollegaIlRecordEScriveLaPosizione_data() { AggiungiBackend(); }
    void lImportazioneCollegaIlRecordEScriveLaPosizione();
    void unDocumentoSenzaSpaziDeiNomiSiImportaComeQuelloStandard_data() { AggiungiBackend(); }
    void unDocumentoSenzaSpaziDeiNomiSiImportaComeQuelloStandard();
    void unDocumentoSenzaImgDaPaginaStartUnoEPaginaEndZero_data() { AggiungiBackend(); }
    void unDocumentoSenzaImgDaPaginaStartUnoEPaginaEndZero();
    void unNumeroDiSequenzaConZeriInTestaRestaComE_data() { AggiungiBackend(); }
    void unNumeroDiSequenzaConZeriInTestaRestaComE();
    void unRiferimentoDiReteConBarreRestaIntero_data() { AggiungiBackend(); }
    void unRiferimentoDiReteConBarreRestaIntero();
    void unRiferimentoDiReteConBarreRovesciateRestaIntero_data() { AggiungiBackend(); }
    void unRiferimentoDiReteConBarreRovesciateRestaIntero();
    void loStessoDocumentoDueVolteDaDueCartelleELUltimaPosizione_data() { AggiungiBackend(); }
    void loStessoDocumentoDueVolteDaDueCartelleELUltimaPosizione();
    void unPercorsoConApostrofoSiImporta_data() { AggiungiBackend(); }
    void unPercorsoConApostrofoSiImporta();
    void senzaRadiceLogicaSiContanoLeImmaginiSenzaPosizione_data() { AggiungiBackend(); }
    void senzaRadiceLogicaSiContanoLeImmaginiSenzaPosizione();

    void unDocumentoMancanteNonScriveNulla_data() { AggiungiBackend(); }
    void unDocumentoMancanteNonScriveNulla();
    void unaImmagineMancanteCollegaComunqueConLeImmaginiContate_data() { AggiungiBackend(); }
    void unaImmagineMancanteCollegaComunqueConLeImmaginiContate();
    void unaImmagineDueVolteCollegaComunqueConLErrore_data() { AggiungiBackend(); }
    void unaImmagineDueVolteCollegaComunqueConLErrore();
    void unImgSenzaNomenclatureEUnErrore_data() { AggiungiBackend(); }
    void unImgSenzaNomenclatureEUnErrore();
    void unDocumentoNonXmlEUnErrore_data() { AggiungiBackend(); }
    void unDocumentoNonXmlEUnErrore();
    void unProssimoNumeroMancanteScriveZeroComeNomeDellIndice_data() { AggiungiBackend(); }
    void unProssimoNumeroMancanteScriveZeroComeNomeDellIndice();
    void unaScritturaFallitaDaIlTestoConLIstruzione_data() { AggiungiBackend(); }
    void unaScritturaFallitaDaIlTestoConLIstruzione();

    void laRimozioneCancellaIFileESegnaLoStatoTre_data() { AggiungiBackend(); }
    void laRimozioneCancellaIFileESegnaLoStatoTre();
    void unaRimozioneConLaCartellaGiaSparitaSegnaComunqueLoStatoTre_data() { AggiungiBackend(); }
    void unaRimozioneConLaCartellaGiaSparitaSegnaComunqueLoStatoTre();
    void unaRimozioneSenzaDigestPulisceSoloIlRecord_data() { AggiungiBackend(); }
    void unaRimozioneSenzaDigestPulisceSoloIlRecord();
    void unaRimozioneDiUnDigestSenzaPosizionePulisceComunqueIlRecord_data() { AggiungiBackend(); }
    void unaRimozioneDiUnDigestSenzaPosizionePulisceComunqueIlRecord();

    void daImagElencaLePagineConIlLoroNumero();
    void aImagElencaLePagineDopoQuellaScelta();
    void aImagPerUnaPaginaAssenteNonAggiungeNulla();
    void unDocumentoIlleggibileLasciaLaListaComEra();

    void laCopiaDiPiuImmaginiMostraIlSuoAvanzamento_data() { AggiungiBackend(); }
    void laCopiaDiPiuImmaginiMostraIlSuoAvanzamento();
};

void TestXmlMag::lImportazioneCollegaIlRecordEScriveLaPosizione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(e.sMd5, s.Md5());
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Campo(QStringLiteral("PaginaStart")).toInt(), 1);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 2);
    QCOMPARE(s.Campo(QStringLiteral("StruProg")).toInt(), 0);
    QVERIFY(!s.Campo(QStringLiteral("StruProg")).isNull());
    QVERIFY(s.Campo(QStringLiteral("XmlLink")).isNull());
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("1.xml"), 0}));
    QCOMPARE(Leggi(s.Fisica() + QStringLiteral("1/0001.tif")), QByteArray("immagine uno"));
    QCOMPARE(Leggi(s.Fisica() + QStringLiteral("1/0002.tif")), QByteArray("immagine due"));
    const QByteArray indice = Leggi(s.Fisica() + QStringLiteral("1.xml"));
    QVERIFY(indice.contains("magmd5=\"" + e.sMd5.toUtf8() + "\""));
    QVERIFY(indice.contains("nomenclature=\"c. 1v\" file=\"0002.tif\""));
    // The document itself is not touched.
    QCOMPARE(s.Md5(), e.sMd5);
}

void TestXmlMag::unDocumentoSenzaSpaziDeiNomiSiImportaComeQuelloStandard() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    s.Documento({{QStringLiteral("1"), QStringLiteral("piatto anteriore"),
                  QStringLiteral("./tiff/0001.tif")},
                 {QStringLiteral("2"), QStringLiteral("c. 1r"), QStringLiteral("tiff/0002.tif")}},
                false);
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 2);
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("1.xml"), 0}));
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0001.tif")).isFile());
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0002.tif")).isFile());
}

void TestXmlMag::unDocumentoSenzaImgDaPaginaStartUnoEPaginaEndZero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    s.Documento({});
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Campo(QStringLiteral("PaginaStart")).toInt(), 1);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("1.xml"), 0}));
    QVERIFY(!Leggi(s.Fisica() + QStringLiteral("1.xml")).contains("<pagina "));
    QVERIFY(QDir(s.Fisica() + QStringLiteral("1")).isEmpty());
}

void TestXmlMag::unNumeroDiSequenzaConZeriInTestaRestaComE() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QVERIFY(Leggi(s.Fisica() + QStringLiteral("1.xml")).contains("sequence=\"0001\""));
}

void TestXmlMag::unRiferimentoDiReteConBarreRestaIntero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    // On this platform the root plays the server's part: the reference is kept whole and
    // looked for where it points.
    s.Documento({{QStringLiteral("1"), QStringLiteral("a"),
                  QStringLiteral("//server/archivio/vol1/0001.tif")}});
    const Esito e = Importa(s);
    QCOMPARE(e.sErrore, QStringLiteral("basGestImgMag.ImportXmlMag: File non trovato: "
                                       "//server/archivio/vol1/0001.tif"));
}

void TestXmlMag::unRiferimentoDiReteConBarreRovesciateRestaIntero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    // The backslashes of a network reference turn into this platform's separators; the server
    // and its tree stay whole, and nothing of the document's folder comes before them.
    s.Documento({{QStringLiteral("1"), QStringLiteral("a"),
                  QStringLiteral("\\\\server\\archivio\\vol1\\0001.tif")}});
    const Esito e = Importa(s);
    QCOMPARE(e.sErrore, QStringLiteral("basGestImgMag.ImportXmlMag: File non trovato: "
                                       "//server/archivio/vol1/0001.tif"));
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
}

void TestXmlMag::loStessoDocumentoDueVolteDaDueCartelleELUltimaPosizione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    const Esito prima = Importa(s);
    const Esito seconda = Importa(s);
    QVERIFY2(seconda.sErrore.isEmpty(), qPrintable(seconda.sErrore));
    QCOMPARE(seconda.sMd5, prima.sMd5);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0001.tif")).isFile());
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("2/0001.tif")).isFile());
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("2.xml")).isFile());
    QCOMPARE(s.Posizione(seconda.sMd5), (QVariantList{s.Logica(), QStringLiteral("2.xml"), 0}));
    QCOMPARE(s.RighePosizione(), 1);
}

void TestXmlMag::unPercorsoConApostrofoSiImporta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend, QStringLiteral("l'archivio d'Ateneo"));
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("1.xml"), 0}));
    QVERIFY(s.Logica().contains(QLatin1Char('\'')));
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0002.tif")).isFile());
    QString sErrore;
    XmlMag::DeleteXmlMag(s.lId, e.sMd5, sErrore);
    QVERIFY2(sErrore.isEmpty(), qPrintable(sErrore));
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1")));
    QCOMPARE(s.Posizione(e.sMd5).value(2).toInt(), 3);
}

void TestXmlMag::senzaRadiceLogicaSiContanoLeImmaginiSenzaPosizione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    Sessione::sParam12.clear();
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), s.Md5());
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 2);
    QCOMPARE(s.RighePosizione(), 0);
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1")));
}

void TestXmlMag::unDocumentoMancanteNonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    QFile::remove(s.sDoc);
    const Esito e = Importa(s);
    QCOMPARE(e.sErrore, QStringLiteral("Errore nel calcolo del codice MD5 (File: %1)").arg(s.sDoc));
    QVERIFY(s.Campo(QStringLiteral("Md5Link")).isNull());
    QCOMPARE(s.Campo(QStringLiteral("PaginaStart")).toInt(), 0);
    QCOMPARE(s.RighePosizione(), 0);
    QVERIFY(!QFileInfo::exists(s.Fisica()));
}

void TestXmlMag::unaImmagineMancanteCollegaComunqueConLeImmaginiContate() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    s.Documento({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("./tiff/0001.tif")},
                 {QStringLiteral("2"), QStringLiteral("b"), QStringLiteral("./tiff/manca.tif")},
                 {QStringLiteral("3"), QStringLiteral("c"), QStringLiteral("./tiff/0002.tif")}});
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 1);
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("1"), 0}));
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1/0001.tif")).isFile());
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1/0002.tif")));
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1.xml")));
    // The counter did not move: the next attempt reuses the number.
    s.Documento({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("./tiff/0001.tif")}});
    const Esito ancora = Importa(s);
    QVERIFY2(ancora.sErrore.isEmpty(), qPrintable(ancora.sErrore));
    QCOMPARE(s.Posizione(ancora.sMd5).value(1).toString(), QStringLiteral("1.xml"));
}

void TestXmlMag::unaImmagineDueVolteCollegaComunqueConLErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    s.Documento({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("./tiff/0001.tif")},
                 {QStringLiteral("2"), QStringLiteral("b"), QStringLiteral("./tiff/0001.tif")}});
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 1);
    QCOMPARE(s.Posizione(e.sMd5).value(1).toString(), QStringLiteral("1"));
}

void TestXmlMag::unImgSenzaNomenclatureEUnErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    Scrivi(s.sDoc, "<metadigit><img><sequence_number>1</sequence_number>"
                   "<file xlink:href=\"./tiff/0001.tif\"/></img></metadigit>");
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QCOMPARE(s.Posizione(e.sMd5).value(1).toString(), QStringLiteral("1"));
}

void TestXmlMag::unDocumentoNonXmlEUnErrore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    Scrivi(s.sDoc, "questo non è XML");
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1.xml")));
}

void TestXmlMag::unProssimoNumeroMancanteScriveZeroComeNomeDellIndice() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    Sessione::cnn->Esegui(QStringLiteral("DROP TABLE ImgCounter"));
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("basGestImgMag.dGetImgCounterFromDb: ")),
             qPrintable(e.sErrore));
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("0"), 0}));
    QVERIFY(QFileInfo(s.Fisica()).isDir());
}

void TestXmlMag::unaScritturaFallitaDaIlTestoConLIstruzione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    Sessione::cnn->Esegui(QStringLiteral("DROP TABLE MD5Location"));
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.startsWith(QStringLiteral("XmlMag.ImportXmlMag: ")), qPrintable(e.sErrore));
    QVERIFY2(e.sErrore.contains(QStringLiteral("\r\nsSql: UPDATE MD5Location")),
             qPrintable(e.sErrore));
    // What came before the failure stands: the files, the counter, Elementi.
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), e.sMd5);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 2);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1.xml")).isFile());
}

void TestXmlMag::laRimozioneCancellaIFileESegnaLoStatoTre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QString sErrore;
    XmlMag::DeleteXmlMag(s.lId, e.sMd5, sErrore);
    QVERIFY2(sErrore.isEmpty(), qPrintable(sErrore));
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1.xml")));
    QVERIFY(!QFileInfo::exists(s.Fisica() + QStringLiteral("1")));
    QVERIFY(QFileInfo(s.Fisica()).isDir());
    QVERIFY(QFileInfo(s.sSorgente + QStringLiteral("tiff/0001.tif")).isFile());
    QCOMPARE(s.Posizione(e.sMd5), (QVariantList{s.Logica(), QStringLiteral("1.xml"), 3}));
    QVERIFY(s.Campo(QStringLiteral("Md5Link")).isNull());
    QCOMPARE(s.Campo(QStringLiteral("PaginaStart")).toInt(), 0);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QVERIFY(s.Campo(QStringLiteral("StruProg")).isNull());
    QVERIFY(s.Campo(QStringLiteral("XmlLink")).isNull());
}

void TestXmlMag::unaRimozioneConLaCartellaGiaSparitaSegnaComunqueLoStatoTre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    const Esito e = Importa(s);
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QVERIFY(QDir(s.Fisica()).removeRecursively());
    QString sErrore;
    XmlMag::DeleteXmlMag(s.lId, e.sMd5, sErrore);
    QVERIFY2(sErrore.isEmpty(), qPrintable(sErrore));
    QCOMPARE(s.Posizione(e.sMd5).value(2).toInt(), 3);
    QVERIFY(s.Campo(QStringLiteral("Md5Link")).isNull());
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QVERIFY(s.Campo(QStringLiteral("StruProg")).isNull());
}

void TestXmlMag::unaRimozioneSenzaDigestPulisceSoloIlRecord() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    const Esito e = Importa(s);
    QString sErrore;
    XmlMag::DeleteXmlMag(s.lId, QString(), sErrore);
    QVERIFY2(sErrore.isEmpty(), qPrintable(sErrore));
    QVERIFY(s.Campo(QStringLiteral("Md5Link")).isNull());
    QCOMPARE(s.Posizione(e.sMd5).value(2).toInt(), 0);
    QVERIFY(QFileInfo(s.Fisica() + QStringLiteral("1.xml")).isFile());
}

void TestXmlMag::unaRimozioneDiUnDigestSenzaPosizionePulisceComunqueIlRecord() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    // A record linked to a digest that MD5Location does not know.
    const QString sMd5 = QStringLiteral("0123456789abcdef0123456789abcdef");
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ?, PaginaStart = 1, "
                                         "PaginaEnd = 3, StruProg = 0 WHERE ID_Elemento = ?"),
                          {sMd5, qlonglong(s.lId)});
    QCOMPARE(s.Campo(QStringLiteral("Md5Link")).toString(), sMd5);
    QString sErrore;
    XmlMag::DeleteXmlMag(s.lId, sMd5, sErrore);
    QVERIFY2(sErrore.isEmpty(), qPrintable(sErrore));
    QVERIFY(s.Campo(QStringLiteral("Md5Link")).isNull());
    QCOMPARE(s.Campo(QStringLiteral("PaginaStart")).toInt(), 0);
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 0);
    QVERIFY(s.Campo(QStringLiteral("StruProg")).isNull());
    // No row is made for it.
    QCOMPARE(s.RighePosizione(), 0);
}

void TestXmlMag::daImagElencaLePagineConIlLoroNumero() {
    QTemporaryDir cartella;
    const QString sDoc = cartella.filePath(QStringLiteral("mag.xml"));
    Scrivi(sDoc,
           Mag({{QStringLiteral("0001"), QStringLiteral("piatto"), QStringLiteral("a.tif")},
                {QStringLiteral("0002"), QStringLiteral(" c. 1r "), QStringLiteral("b.tif")}}));
    QComboBox combo;
    combo.addItem(QStringLiteral("già presente"), 0);
    DaImag::Carica(sDoc, &combo);
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.itemText(1), QStringLiteral("piatto"));
    QCOMPARE(combo.itemData(1).toInt(), 1);
    // The document is loaded keeping white space.
    QCOMPARE(combo.itemText(2), QStringLiteral(" c. 1r "));
    QCOMPARE(combo.itemData(2).toInt(), 2);
}

void TestXmlMag::aImagElencaLePagineDopoQuellaScelta() {
    QTemporaryDir cartella;
    const QString sDoc = cartella.filePath(QStringLiteral("mag.xml"));
    Scrivi(sDoc, Mag({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("a.tif")},
                      {QStringLiteral("2"), QStringLiteral("b"), QStringLiteral("b.tif")},
                      {QStringLiteral("3"), QStringLiteral("c"), QStringLiteral("c.tif")}},
                     false));
    QComboBox combo;
    AImag::Carica(sDoc, &combo, QStringLiteral("a"));
    QCOMPARE(combo.count(), 2);
    QCOMPARE(combo.itemText(0), QStringLiteral("b"));
    QCOMPARE(combo.itemData(1).toInt(), 3);
}

void TestXmlMag::aImagPerUnaPaginaAssenteNonAggiungeNulla() {
    QTemporaryDir cartella;
    const QString sDoc = cartella.filePath(QStringLiteral("mag.xml"));
    Scrivi(sDoc, Mag({{QStringLiteral("1"), QStringLiteral("a"), QStringLiteral("a.tif")}}));
    QComboBox combo;
    AImag::Carica(sDoc, &combo, QStringLiteral("z"));
    QCOMPARE(combo.count(), 0);
}

void TestXmlMag::unDocumentoIlleggibileLasciaLaListaComEra() {
    QTemporaryDir cartella;
    const QString sDoc = cartella.filePath(QStringLiteral("mag.xml"));
    Scrivi(sDoc, "<metadigit><img><nomenclature>a</nomenclature></img>");
    QComboBox combo;
    combo.addItem(QStringLiteral("x"));
    DaImag::Carica(sDoc, &combo);
    AImag::Carica(cartella.filePath(QStringLiteral("manca.xml")), &combo, QStringLiteral("a"));
    QCOMPARE(combo.count(), 1);
}

void TestXmlMag::laCopiaDiPiuImmaginiMostraIlSuoAvanzamento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    QList<Img> immagini;
    for (int i = 1; i <= 6; ++i) {
        const QString sNome = QStringLiteral("tiff/%1.tif").arg(i, 4, 10, QLatin1Char('0'));
        Scrivi(s.sSorgente + sNome, QByteArray(1024, char('a' + i)));
        immagini.append({QString::number(i), QStringLiteral("c. %1").arg(i), sNome});
    }
    s.Documento(immagini);
    basGestImgMag::ImpostaAttesaAvanzamento(0);
    QStringList visti;
    bool bAnnullabile = false;
    QTimer spia;
    spia.setInterval(0);
    connect(&spia, &QTimer::timeout, this, [&] {
        const QWidgetList finestre = QApplication::topLevelWidgets();
        for (QWidget* w : finestre) {
            auto* dialogo = qobject_cast<QProgressDialog*>(w);
            if (dialogo == nullptr || !dialogo->isVisible())
                continue;
            if (visti.isEmpty() || visti.constLast() != dialogo->labelText())
                visti.append(dialogo->labelText());
            const auto pulsanti = dialogo->findChildren<QPushButton*>();
            for (QPushButton* p : pulsanti)
                bAnnullabile = bAnnullabile || p->isVisible();
        }
    });
    spia.start();
    const Esito e = Importa(s);
    spia.stop();
    QVERIFY2(e.sErrore.isEmpty(), qPrintable(e.sErrore));
    QVERIFY2(!visti.isEmpty(), "no progress dialog was seen during the copy");
    QCOMPARE(visti.constLast(), QStringLiteral("Copia delle immagini: file 6 di 6"));
    QVERIFY(!bAnnullabile);
    // Once the import is over the dialog is gone.
    for (QWidget* w : QApplication::topLevelWidgets())
        QVERIFY(qobject_cast<QProgressDialog*>(w) == nullptr || !w->isVisible());
    QCOMPARE(s.Campo(QStringLiteral("PaginaEnd")).toInt(), 6);
}

QTEST_MAIN(TestXmlMag)
#include "tst_xmlmag.moc"
