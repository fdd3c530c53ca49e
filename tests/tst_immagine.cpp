// The button cmdImmagine and CheckImmagine as the records offer them: captions, tool tip,
// colours, Tag, the file choice with its filters and the one in force, the question before
// removal and the error shown as a critical box.

#include "images/ImmagineRecord.h"
#include "images/basGestImgMag.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"
#include "BancaDatiProva.h"
#include "PiattaformaScriptata.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A record's button and its hidden digest field, attached.
struct Record {
    explicit Record(bool bTitoloBreve = false) {
        cmdImmagine.setObjectName(QStringLiteral("cmdImmagine"));
        immagine = std::make_unique<ImmagineRecord>(
            &cmdImmagine, ImmagineRecord::Collegamento{
                              [this] { return lId; }, [this] { return md5.text(); },
                              [this](const QString& s) { md5.setText(s); }, bTitoloBreve});
    }
    QPushButton cmdImmagine;
    QLineEdit md5;
    long lId = 0;
    std::unique_ptr<ImmagineRecord> immagine;
};

// A database with one element, a MAG document of one image and a repository root.
struct Scena : DocumentoMag {
    explicit Scena(TipoBackend tipo)
        : banca(tipo) {
        Sessione::cnn = banca.Apri();
        lId = ArchivioElementi::Crea(*Sessione::cnn, QStringLiteral("01"),
                                     QStringLiteral("Archivio di Stato di Pisa"), 0);
    }
    ~Scena() { Sessione::Azzera(); }
    QVariant Md5Link() const {
        QSqlQuery query = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Md5Link FROM Elementi WHERE ID_Elemento = ?"), {qlonglong(lId)});
        return query.next() ? query.value(0) : QVariant();
    }
    int Stato(const QString& sMd5) const {
        QSqlQuery query = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Status FROM MD5Location WHERE MD5 = ?"), {sMd5});
        return query.next() ? query.value(0).toInt() : -1;
    }
    BancaDatiProva banca;
    long lId = 0;
};

QColor Sfondo(const QPushButton& p) {
    return p.palette().color(QPalette::Button);
}

} // namespace

class TestImmagine : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void senzaCollegamentoIlPulsanteOffreLImmagine();
    void conUnCollegamentoIlPulsanteOffreDiEliminarlo();
    void ilClicSenzaCollegamentoSceglieUnDocumentoXmlELoImporta_data() { AggiungiBackend(); }
    void ilClicSenzaCollegamentoSceglieUnDocumentoXmlELoImporta();
    void unaSceltaAnnullataNonCambiaNulla();
    void unErroreDellImportazioneSiMostraComeMessaggioCritico_data() { AggiungiBackend(); }
    void unErroreDellImportazioneSiMostraComeMessaggioCritico();
    void ilClicConCollegamentoChiedeConfermaERimuove_data() { AggiungiBackend(); }
    void ilClicConCollegamentoChiedeConfermaERimuove();
    void rispondendoNoIlCollegamentoResta();
    void iDatiInventarialiChiedonoSenzaPuntoFinale();
};

void TestImmagine::senzaCollegamentoIlPulsanteOffreLImmagine() {
    Record r;
    QCOMPARE(r.cmdImmagine.text(), QStringLiteral("Immagine"));
    QCOMPARE(r.cmdImmagine.toolTip(), QStringLiteral("Apri XmlMag"));
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("0"));
    QCOMPARE(Sfondo(r.cmdImmagine), QApplication::palette().color(QPalette::Button));
}

void TestImmagine::conUnCollegamentoIlPulsanteOffreDiEliminarlo() {
    Record r;
    r.md5.setText(QStringLiteral("0123456789abcdef0123456789abcdef"));
    r.immagine->CheckImmagine();
    QCOMPARE(r.cmdImmagine.text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("1"));
    QCOMPARE(Sfondo(r.cmdImmagine), QApplication::palette().color(QPalette::Window));
    r.md5.clear();
    r.immagine->CheckImmagine();
    QCOMPARE(r.cmdImmagine.text(), QStringLiteral("Immagine"));
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("0"));
    QCOMPARE(Sfondo(r.cmdImmagine), QApplication::palette().color(QPalette::Button));
}

void TestImmagine::ilClicSenzaCollegamentoSceglieUnDocumentoXmlELoImporta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    PiattaformaScriptata p;
    p.fileScelti = {s.sDoc};
    Record r;
    r.lId = s.lId;
    r.cmdImmagine.click();
    const QList<Chiamata> file = p.Chiamate(QStringLiteral("file"));
    QCOMPARE(file.size(), 1);
    // All Files first, Xml Files in force.
    QCOMPARE(file.constFirst().sceltaFile.sFiltro,
             QStringLiteral("All Files(*.*);;Xml Files(*.xml)"));
    QCOMPARE(file.constFirst().sceltaFile.sFiltroScelto, QStringLiteral("Xml Files(*.xml)"));
    QVERIFY(file.constFirst().sceltaFile.sCartella.isEmpty());
    QVERIFY(!file.constFirst().sceltaFile.bSalva);
    QVERIFY(p.Messaggi().isEmpty());
    QString sErrore;
    QCOMPARE(r.md5.text(), basGestImgMag::sCalculateMd5(s.sDoc, sErrore));
    QCOMPARE(s.Md5Link().toString(), r.md5.text());
    QCOMPARE(s.Stato(r.md5.text()), 0);
    QCOMPARE(r.cmdImmagine.text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("1"));
}

void TestImmagine::unaSceltaAnnullataNonCambiaNulla() {
    PiattaformaScriptata p;
    Record r;
    r.cmdImmagine.click();
    QCOMPARE(p.Chiamate(QStringLiteral("file")).size(), 1);
    QVERIFY(p.Messaggi().isEmpty());
    QVERIFY(r.md5.text().isEmpty());
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("0"));
}

void TestImmagine::unErroreDellImportazioneSiMostraComeMessaggioCritico() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    // The image is missing: the link is written all the same, the field is cleared.
    QFile::remove(s.cartella.path() + QStringLiteral("/scansioni/0001.tif"));
    PiattaformaScriptata p;
    p.fileScelti = {s.sDoc};
    Record r;
    r.lId = s.lId;
    r.cmdImmagine.click();
    const QList<Messaggio> m = p.Messaggi();
    QCOMPARE(m.size(), 1);
    QCOMPARE(m.constFirst().icona, Icona::Critica);
    QCOMPARE(m.constFirst().pulsanti, Pulsanti::Ok);
    QVERIFY2(m.constFirst().sTesto.startsWith(QStringLiteral("basGestImgMag.ImportXmlMag: ")),
             qPrintable(m.constFirst().sTesto));
    QVERIFY(r.md5.text().isEmpty());
    QCOMPARE(r.cmdImmagine.text(), QStringLiteral("Immagine"));
    QVERIFY(!s.Md5Link().toString().isEmpty());
}

void TestImmagine::ilClicConCollegamentoChiedeConfermaERimuove() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Scena s(backend);
    PiattaformaScriptata p;
    p.fileScelti = {s.sDoc};
    Record r;
    r.lId = s.lId;
    r.cmdImmagine.click();
    const QString sMd5 = r.md5.text();
    QVERIFY(!sMd5.isEmpty());
    p.Svuota();
    p.risposte = {Risposta::Si};
    r.cmdImmagine.click();
    const QList<Messaggio> m = p.Messaggi();
    QCOMPARE(m.size(), 1);
    QCOMPARE(m.constFirst().sTitolo, QStringLiteral("Cancella Immagini. "));
    QCOMPARE(m.constFirst().sTesto, QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
    QCOMPARE(m.constFirst().pulsanti, Pulsanti::SiNo);
    QCOMPARE(m.constFirst().icona, Icona::Domanda);
    QVERIFY(p.Chiamate(QStringLiteral("file")).isEmpty());
    QVERIFY(r.md5.text().isEmpty());
    QVERIFY(s.Md5Link().isNull());
    QCOMPARE(s.Stato(sMd5), 3);
    QCOMPARE(r.cmdImmagine.text(), QStringLiteral("Immagine"));
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("0"));
}

void TestImmagine::rispondendoNoIlCollegamentoResta() {
    PiattaformaScriptata p;
    p.risposte = {Risposta::No};
    Record r;
    r.md5.setText(QStringLiteral("0123456789abcdef0123456789abcdef"));
    r.immagine->CheckImmagine();
    r.cmdImmagine.click();
    QCOMPARE(p.Messaggi().size(), 1);
    QCOMPARE(r.md5.text(), QStringLiteral("0123456789abcdef0123456789abcdef"));
    QCOMPARE(r.cmdImmagine.property("Tag").toString(), QStringLiteral("1"));
}

void TestImmagine::iDatiInventarialiChiedonoSenzaPuntoFinale() {
    PiattaformaScriptata p;
    p.risposte = {Risposta::No};
    Record r(true);
    r.md5.setText(QStringLiteral("0123456789abcdef0123456789abcdef"));
    r.immagine->CheckImmagine();
    r.cmdImmagine.click();
    QCOMPARE(p.Messaggi().size(), 1);
    QCOMPARE(p.Messaggi().constFirst().sTitolo, QStringLiteral("Cancella Immagini"));
    QCOMPARE(p.Messaggi().constFirst().icona, Icona::Domanda);
}

QTEST_MAIN(TestImmagine)
#include "tst_immagine.moc"
