// Table export: the data file's exact bytes, the schema folder's offer, the failures and what
// they leave, the dialogs, and the site's schema files against both backends' tables.

#include "exchange/Export.h"
#include "exchange/frmEsporta.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "PiattaformaScriptata.h"

#include <QDateTime>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QLabel>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>
#include <cmath>
#include <random>
#include <stdexcept>

namespace {

QByteArray Leggi(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Scrivi(const QString& percorso, const QByteArray& contenuto) {
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(contenuto) != contenuto.size())
        qFatal("can't write the test file");
}

QByteArray SchemaEsempio(int iFieldcount = 3, const QByteArray& versione = "5",
                         const QByteArray& campoInPiu = QByteArray()) {
    return "<?xml version=\"1.0\"?>\r\n<schema datafile=\"Esempio.xml\" version=\"" + versione +
           "\">\r\n\t<stru fieldcount=\"" + QByteArray::number(iFieldcount) +
           "\">\r\n\t\t<field type=\"3\" pk=\"1\">ID</field>\r\n"
           "\t\t<field type=\"202\" pk=\"0\">Nome</field>\r\n"
           "\t\t<field type=\"135\" pk=\"0\">Data</field>\r\n" +
           campoInPiu + "\t</stru>\r\n</schema>\r\n";
}

const QByteArray Testa = "<?xml version = \"1.0\" encoding=\"UTF-8\"?>";

// A fresh database with table Esempio, site AB01 at version 5, and the two folders.
struct Scena {
    explicit Scena(TipoBackend tipo)
        : banca(tipo) {
        cnn = banca.Apri();
        cnn->Esegui(QStringLiteral("CREATE TABLE Esempio (ID INTEGER, Nome VARCHAR(64), "
                                   "Data TIMESTAMP, Code VARCHAR(10))"));
        cnn->Esegui(QStringLiteral("UPDATE Config SET Code = ?, Versione = ?"),
                    {QStringLiteral("AB01"), 5});
        sSchemi = cartella.path() + QStringLiteral("/Schemi");
        sDestinazione = cartella.path() + QStringLiteral("/Scambio");
        QDir().mkpath(sSchemi);
        QDir().mkpath(sDestinazione);
        Scrivi(sSchemi + QStringLiteral("/EsempioSch.xml"), SchemaEsempio());
    }
    void Riga(int id, const QVariant& nome, const QVariant& data) {
        cnn->Esegui(QStringLiteral("INSERT INTO Esempio (ID, Nome, Data) VALUES (?, ?, ?)"),
                    {id, nome, data});
    }
    Export::Esito Esporta(const QString& sTabella = QStringLiteral("Esempio")) {
        return Export::EsportaTabella(*cnn, sTabella, sSchemi, sDestinazione);
    }
    QString File() const { return sDestinazione + QStringLiteral("/Esempio.xml"); }

    BancaDatiProva banca;
    std::shared_ptr<Connessione> cnn;
    QTemporaryDir cartella;
    QString sSchemi;
    QString sDestinazione;
};

const QVariant Nullo = QVariant(QMetaType::fromType<QString>());

} // namespace

class TestEsporta : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Sessione::Azzera();
        Export::TabelleEsportate.clear();
        Export::NumeroTabelle = 0;
    }
    void cleanup() { Sessione::Azzera(); }

    void ogniGenereDiValoreEsceNellaFormaDelFile_data() { AggiungiBackend(); }
    void ogniGenereDiValoreEsceNellaFormaDelFile() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        const QString reale = backend == TipoBackend::SQLite ? QStringLiteral("REAL")
                                                             : QStringLiteral("DOUBLE PRECISION");
        scena.cnn->Esegui(QStringLiteral("CREATE TABLE Valori (ID INTEGER, Testo VARCHAR(200), "
                                         "Reale %1, Quando TIMESTAMP, DataTesto VARCHAR(30), "
                                         "Code VARCHAR(10))")
                              .arg(reale));
        Scrivi(scena.sSchemi + QStringLiteral("/ValoriSch.xml"),
               "<schema datafile=\"Valori.xml\" version=\"5\"><stru fieldcount=\"5\">"
               "<field type=\"3\">ID</field><field type=\"202\">Testo</field>"
               "<field type=\"5\">Reale</field><field type=\"135\">Quando</field>"
               "<field type=\"135\">DataTesto</field></stru></schema>");
        const QString inserisci = QStringLiteral(
            "INSERT INTO Valori (ID, Testo, Reale, Quando, DataTesto) VALUES (?, ?, ?, ?, ?)");
        const QDateTime mezzogiorno(QDate(2001, 3, 2), QTime(12, 0, 0));
        scena.cnn->Esegui(inserisci, {-1, QStringLiteral("a<b>&\"c\" \ttab\nlf\rcr è € 中 \\ fine"),
                                      0.1, mezzogiorno, QStringLiteral("02/03/2001")});
        scena.cnn->Esegui(inserisci, {2, QStringLiteral(""), -2.5, Nullo, Nullo});
        scena.cnn->Esegui(
            inserisci, {3, Nullo, 1e20, mezzogiorno.addMSecs(500), QStringLiteral("2001-03-02")});
        scena.cnn->Esegui(inserisci, {4, QStringLiteral("'"), 763287067388048.5, Nullo, Nullo});
        scena.cnn->Esegui(inserisci, {5, QStringLiteral("x"), 1e-5, Nullo, Nullo});
        const Export::Esito esito = scena.Esporta(QStringLiteral("Valori"));
        QVERIFY2(esito.bEsportata, qPrintable(esito.sMessaggio));
        QCOMPARE(esito.lRecord, 5);
        QFile file(scena.sDestinazione + QStringLiteral("/Valori.xml"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray letto = file.readAll();
        const auto campo = [](int id, const char* testo) {
            return testo ? "\r\n\t\t<field id=\"" + QByteArray::number(id) + "\" null=\"0\">" +
                               QByteArray(testo) + "</field>"
                         : "\r\n\t\t<field id=\"" + QByteArray::number(id) + "\" null=\"1\"/>";
        };
        const auto record = [](const QByteArray& campi) {
            return "\r\n\t<record>" + campi + "\r\n\t</record>";
        };
        const QByteArray atteso =
            Testa + "<table name=\"Valori\" version=\"5\" code=\"AB01\">" +
            record(campo(1, "-1") +
                   campo(2, "a&lt;b&gt;&amp;&quot;c&quot; \ttab\nlf\rcr \xc3\xa8 \xe2\x82\xac "
                            "\xe4\xb8\xad \\ fine") +
                   campo(3, "0,1") + campo(4, "2001-03-02 12:00:00") +
                   campo(5, "2001-03-02 00:00:00")) +
            record(campo(1, "2") + campo(2, "") + campo(3, "-2,5") + campo(4, nullptr) +
                   campo(5, nullptr)) +
            record(campo(1, "3") + campo(2, nullptr) + campo(3, "1E+20") +
                   campo(4, "2001-03-02 12:00:00") + campo(5, "2001-03-02 00:00:00")) +
            record(campo(1, "4") + campo(2, "'") + campo(3, "763287067388049") + campo(4, nullptr) +
                   campo(5, nullptr)) +
            record(campo(1, "5") + campo(2, "x") + campo(3, "1E-05") + campo(4, nullptr) +
                   campo(5, nullptr)) +
            "\r\n</table>";
        QCOMPARE(letto, atteso);
    }

    void unNumeroHaLeQuindiciCifreCheGliDaLaPiattaforma() {
        // Ties at the sixteenth digit go away from zero, minus zero is "0".
        std::mt19937_64 caso(20261121);
        std::uniform_real_distribution<double> ampio(-1e6, 1e6);
        QList<double> valori = {0.0,
                                -0.0,
                                0.1,
                                0.25,
                                1e15,
                                1e16,
                                1e-4,
                                1e-5,
                                1e21,
                                5e-324,
                                -2.5,
                                100.0,
                                1e14,
                                999999999999999.0,
                                763287067388048.5,
                                -616621507701774.5,
                                0.30000000000000004,
                                1.7976931348623157e308};
        for (int i = 0; i < 100000; ++i) {
            valori.append(ampio(caso));
            valori.append(std::round(ampio(caso) * 100) / 100);
            valori.append(std::round(ampio(caso) * 1e9) + 0.5);
            quint64 bit = caso();
            double qualsiasi = 0;
            std::memcpy(&qualsiasi, &bit, sizeof qualsiasi);
            if (std::isfinite(qualsiasi))
                valori.append(qualsiasi);
        }
        for (const double valore : std::as_const(valori)) {
            QString atteso = QString::number(valore, 'g', 15);
            atteso.replace(QLatin1Char('e'), QLatin1Char('E'));
            atteso.replace(QLatin1Char('.'), QLatin1Char(','));
            QCOMPARE(Export::TestoNumero(valore), atteso);
        }
    }

    void lEsempioSiScriveByteperByte_data() { AggiungiBackend(); }
    void lEsempioSiScriveByteperByte() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(7, QStringLiteral("Roma"), Nullo);
        scena.Riga(8, QStringLiteral("L'Aquila"), QDateTime(QDate(2001, 3, 2), QTime(12, 0, 0)));
        const Export::Esito esito = scena.Esporta();
        QVERIFY2(esito.bEsportata, qPrintable(esito.sMessaggio));
        QCOMPARE(esito.lRecord, 2);
        const QByteArray atteso = Testa +
                                  "<table name=\"Esempio\" version=\"5\" code=\"AB01\">"
                                  "\r\n\t<record>"
                                  "\r\n\t\t<field id=\"1\" null=\"0\">7</field>"
                                  "\r\n\t\t<field id=\"2\" null=\"0\">Roma</field>"
                                  "\r\n\t\t<field id=\"3\" null=\"1\"/>"
                                  "\r\n\t</record>"
                                  "\r\n\t<record>"
                                  "\r\n\t\t<field id=\"1\" null=\"0\">8</field>"
                                  "\r\n\t\t<field id=\"2\" null=\"0\">L'Aquila</field>"
                                  "\r\n\t\t<field id=\"3\" null=\"0\">2001-03-02 12:00:00</field>"
                                  "\r\n\t</record>"
                                  "\r\n</table>";
        QCOMPARE(Leggi(scena.File()), atteso);
    }

    void unaTabellaSenzaRigheDaSoloLaRigaFinale_data() { AggiungiBackend(); }
    void unaTabellaSenzaRigheDaSoloLaRigaFinale() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        QVERIFY(scena.Esporta().bEsportata);
        QCOMPARE(Leggi(scena.File()),
                 Testa + "<table name=\"Esempio\" version=\"5\" code=\"AB01\">\r\n</table>");
    }

    void unaConfigVuotaDaTableConSoloNameEContaComeEsportata_data() { AggiungiBackend(); }
    void unaConfigVuotaDaTableConSoloNameEContaComeEsportata() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(1, QStringLiteral("Roma"), Nullo);
        scena.cnn->Esegui(QStringLiteral("DELETE FROM Config"));
        Sessione::cnn = scena.cnn;
        Sessione::sParam09 = scena.sSchemi;
        Sessione::sCartellaExport = scena.sDestinazione;
        PiattaformaScriptata piattaforma;
        QVERIFY(Export::EsportaTabella(QStringLiteral("Esempio")));
        QCOMPARE(Leggi(scena.File()), Testa + "<table name=\"Esempio\">\r\n</table>");
        QCOMPARE(Export::TabelleEsportate, QStringList{QStringLiteral("Esempio")});
        QCOMPARE(Export::NumeroTabelle, short(1));
        QVERIFY(piattaforma.Messaggi().isEmpty());
    }

    void lUltimoSchDecideIlNomeEDistingueLeMaiuscole() {
        QTemporaryDir cartella;
        for (const char* nome : {"SchedeSch.xml", "SCHEDESCH.XML", "SchemiSch.XML", "note.txt",
                                 "Altro.xml", " Provincie Sch.xml"})
            Scrivi(cartella.filePath(QString::fromLatin1(nome)), "<a/>");
        QStringList offerte = Export::TabelleDisponibili(cartella.path());
        offerte.sort();
        QCOMPARE(offerte, (QStringList{QStringLiteral("Provincie"), QStringLiteral("Schede"),
                                       QStringLiteral("Schemi")}));
    }

    void unCampoInPiuEToleratoDueInPiuFalliscono_data() { AggiungiBackend(); }
    void unCampoInPiuEToleratoDueInPiuFalliscono() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(1, QStringLiteral("Roma"), Nullo);
        Scrivi(scena.sSchemi + QStringLiteral("/EsempioSch.xml"), SchemaEsempio(2));
        const Export::Esito tollerato = scena.Esporta();
        QVERIFY2(tollerato.bEsportata, qPrintable(tollerato.sMessaggio));
        const QByteArray scritto = Leggi(scena.File());
        QVERIFY(scritto.contains("<field id=\"2\" null=\"0\">Roma</field>"));
        QVERIFY(!scritto.contains("id=\"3\""));

        Scrivi(scena.sSchemi + QStringLiteral("/EsempioSch.xml"), SchemaEsempio(1));
        const Export::Esito fallito = scena.Esporta();
        QVERIFY(!fallito.bEsportata);
        QCOMPARE(fallito.sMessaggio, QStringLiteral("9\r\nIndice non compreso nell'intervallo"));
        QCOMPARE(Leggi(scena.File()), scritto); // the earlier file is untouched
    }

    void minoreEdEcommercialeEscapatiStringaVuotaSenzaTesto_data() { AggiungiBackend(); }
    void minoreEdEcommercialeEscapatiStringaVuotaSenzaTesto() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(1, QStringLiteral("a<b & c\r\n\td"), Nullo);
        scena.Riga(2, QString(QLatin1String("")), Nullo);
        QVERIFY(scena.Esporta().bEsportata);
        const QByteArray scritto = Leggi(scena.File());
        QVERIFY2(scritto.contains("<field id=\"2\" null=\"0\">a&lt;b &amp; c\r\n\td</field>"),
                 scritto.constData());
        QVERIFY2(scritto.contains("<field id=\"2\" null=\"0\"></field>"), scritto.constData());
        // Read back, the text is the value.
        QDomDocument documento;
        QVERIFY(documento.setContent(scritto));
        QCOMPARE(documento.documentElement()
                     .firstChildElement()
                     .firstChildElement()
                     .nextSiblingElement()
                     .text(),
                 QStringLiteral("a<b & c\n\td"));
    }

    void iNumeriDecimaliHannoLaVirgola_data() { AggiungiBackend(); }
    void iNumeriDecimaliHannoLaVirgola() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.cnn->Esegui(QStringLiteral("CREATE TABLE Misure (ID INTEGER, Metri DOUBLE "
                                         "PRECISION, Code VARCHAR(10))"));
        scena.cnn->Esegui(QStringLiteral("INSERT INTO Misure (ID, Metri) VALUES (?, ?)"), {1, 2.5});
        Scrivi(scena.sSchemi + QStringLiteral("/MisureSch.xml"),
               "<s datafile=\"Misure.xml\" version=\"5\"><stru fieldcount=\"2\">"
               "<field type=\"3\">ID</field><field type=\"5\">Metri</field></stru></s>");
        QVERIFY(scena.Esporta(QStringLiteral("Misure")).bEsportata);
        QVERIFY(Leggi(scena.sDestinazione + QStringLiteral("/Misure.xml"))
                    .contains("<field id=\"2\" null=\"0\">2,5</field>"));
    }

    void soloLeRigheDelSitoEsconoSottoIlSuoCodice_data() { AggiungiBackend(); }
    void soloLeRigheDelSitoEsconoSottoIlSuoCodice() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        const QString inserisci =
            QStringLiteral("INSERT INTO Esempio (ID, Nome, Code) VALUES (?, ?, ?)");
        scena.cnn->Esegui(inserisci, {1, QStringLiteral("Propria"), QStringLiteral("AB01")});
        scena.cnn->Esegui(inserisci, {2, QStringLiteral("Ricevuta"), QStringLiteral("CD02")});
        scena.cnn->Esegui(inserisci, {3, QStringLiteral("Senza codice"), Nullo});
        scena.cnn->Esegui(inserisci,
                          {4, QStringLiteral("Fatta prima del codice"), QStringLiteral("SITO")});
        const Export::Esito esito = scena.Esporta();
        QVERIFY2(esito.bEsportata, qPrintable(esito.sMessaggio));
        // The row received from another site stays home; the site's own, and those made here
        // before it had a code, leave under its code.
        QCOMPARE(esito.lRecord, 3);
        const QByteArray dati = Leggi(scena.File());
        QVERIFY(dati.contains("code=\"AB01\""));
        for (const char* nome : {">Propria<", ">Senza codice<", ">Fatta prima del codice<"})
            QVERIFY2(dati.contains(nome), nome);
        QVERIFY(!dati.contains("Ricevuta"));
        QCOMPARE(esito.sPercorso, scena.File());
    }

    void unSitoSenzaIdentitaOUnaTabellaSenzaCodeNonEsconoESenzaFile_data() { AggiungiBackend(); }
    void unSitoSenzaIdentitaOUnaTabellaSenzaCodeNonEsconoESenzaFile() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(7, QStringLiteral("Roma"), Nullo);
        const QString sSchema = scena.sSchemi + QStringLiteral("/EsempioSch.xml");
        scena.cnn->Esegui(QStringLiteral("UPDATE Config SET Code = 'SITO'"));
        Export::Esito esito = scena.Esporta();
        QVERIFY(!esito.bEsportata);
        QCOMPARE(esito.sTitolo, QStringLiteral("Attenzione"));
        QVERIFY(esito.bCritico);
        QVERIFY2(esito.sMessaggio.contains(QStringLiteral("il codice del sito è ancora \"SITO\"")),
                 qPrintable(esito.sMessaggio));
        QVERIFY(esito.sMessaggio.contains(QStringLiteral("tabellion-sql --crea --codice CODICE")));
        QCOMPARE(esito.sPercorso, sSchema);
        QVERIFY(!QFile::exists(scena.File()));

        scena.cnn->Esegui(QStringLiteral("UPDATE Config SET Code = 'AB01'"));
        scena.cnn->Esegui(QStringLiteral("CREATE TABLE Nuda (ID INTEGER)"));
        scena.cnn->Esegui(QStringLiteral("INSERT INTO Nuda (ID) VALUES (1)"));
        Scrivi(scena.sSchemi + QStringLiteral("/NudaSch.xml"),
               "<s datafile=\"Nuda.xml\" version=\"5\"><stru fieldcount=\"1\">"
               "<field type=\"3\">ID</field></stru></s>");
        esito = scena.Esporta(QStringLiteral("Nuda"));
        QVERIFY(!esito.bEsportata);
        QCOMPARE(esito.sTitolo, QStringLiteral("Attenzione"));
        QVERIFY2(esito.sMessaggio.startsWith(QStringLiteral("La tabella Nuda non ha la colonna "
                                                            "Code")),
                 qPrintable(esito.sMessaggio));
        QCOMPARE(esito.sPercorso, scena.sSchemi + QStringLiteral("/NudaSch.xml"));
        QVERIFY(!QFile::exists(scena.sDestinazione + QStringLiteral("/Nuda.xml")));

        // A folder that can't be written: the outcome names the data file.
        QVERIFY(QDir(scena.sDestinazione).removeRecursively());
        esito = scena.Esporta();
        QVERIFY(!esito.bEsportata);
        QCOMPARE(esito.sPercorso, scena.File());
    }

    void versioniDiverseDannoAttenzioneESenzaFile_data() { AggiungiBackend(); }
    void versioniDiverseDannoAttenzioneESenzaFile() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        Scrivi(scena.sSchemi + QStringLiteral("/EsempioSch.xml"), SchemaEsempio(3, "4"));
        Sessione::cnn = scena.cnn;
        Sessione::sParam09 = scena.sSchemi;
        Sessione::sCartellaExport = scena.sDestinazione;
        PiattaformaScriptata piattaforma;
        QVERIFY(!Export::EsportaTabella(QStringLiteral("Esempio")));
        QCOMPARE(piattaforma.Messaggi().size(), 1);
        const Messaggio box = piattaforma.Messaggi().first();
        QCOMPARE(box.sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(box.icona, Icona::Critica);
        QCOMPARE(box.sTesto,
                 QStringLiteral("Versioni incompatibili tra schema file [4] e Database [5]"));
        QVERIFY(!QFile::exists(scena.File()));
        QVERIFY(Export::TabelleEsportate.isEmpty());
    }

    void iGuastiDannoNumeroEDescrizioneELascianoIlFilePrecedente_data() { AggiungiBackend(); }
    void iGuastiDannoNumeroEDescrizioneELascianoIlFilePrecedente() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(1, QStringLiteral("Roma"), Nullo);
        Scrivi(scena.File(), "precedente");
        // A schema column that the table lacks.
        Scrivi(scena.sSchemi + QStringLiteral("/EsempioSch.xml"),
               SchemaEsempio(4, "5", "\t\t<field type=\"202\">Assente</field>\r\n"));
        Export::Esito esito = scena.Esporta();
        QVERIFY(!esito.bEsportata);
        QVERIFY2(esito.sMessaggio.startsWith(QStringLiteral("3265\r\n")),
                 qPrintable(esito.sMessaggio));
        QCOMPARE(Leggi(scena.File()), QByteArray("precedente"));
        // A schema file that is missing, or not well formed.
        QFile::remove(scena.sSchemi + QStringLiteral("/EsempioSch.xml"));
        esito = scena.Esporta();
        QCOMPARE(esito.sMessaggio,
                 QStringLiteral("91\r\nVariabile oggetto o variabile del blocco With non "
                                "impostata"));
        Scrivi(scena.sSchemi + QStringLiteral("/EsempioSch.xml"), "<schema datafile=");
        QVERIFY(scena.Esporta().sMessaggio.startsWith(QStringLiteral("91\r\n")));
        QCOMPARE(Leggi(scena.File()), QByteArray("precedente"));
        // A table that is missing.
        Scrivi(scena.sSchemi + QStringLiteral("/MancanteSch.xml"), SchemaEsempio());
        esito = scena.Esporta(QStringLiteral("Mancante"));
        QVERIFY(!esito.bEsportata);
        QVERIFY2(esito.sMessaggio.contains(QStringLiteral("\r\n")), qPrintable(esito.sMessaggio));
        // A folder that can't be written.
        Scrivi(scena.sSchemi + QStringLiteral("/EsempioSch.xml"), SchemaEsempio());
        scena.sDestinazione = scena.cartella.path() + QStringLiteral("/NonCe");
        esito = scena.Esporta();
        QCOMPARE(esito.sMessaggio, QStringLiteral("76\r\nImpossibile trovare il percorso"));
    }

    void unNomeVuotoSiElencaSoltanto() {
        QTemporaryDir cartella;
        BancaDatiProva banca(TipoBackend::SQLite);
        auto cnn = banca.Apri();
        const Export::Esito esito =
            Export::EsportaTabella(*cnn, QString(), cartella.path(), cartella.path());
        QVERIFY(esito.bEsportata);
        QVERIFY(QDir(cartella.path()).entryList(QDir::Files).isEmpty());
    }

    void senzaTabelleScelteIlMessaggioEVuotoEIlModuloSiChiude() {
        QTemporaryDir cartella;
        Scrivi(cartella.filePath(QStringLiteral("EsempioSch.xml")), SchemaEsempio());
        Scrivi(cartella.filePath(QStringLiteral("AltroSch.xml")), SchemaEsempio());
        Sessione::sParam09 = cartella.path();
        PiattaformaScriptata piattaforma;
        frmEsporta finestra;
        auto* lvwDB = finestra.findChild<QTreeWidget*>(QStringLiteral("lvwDB"));
        QVERIFY(lvwDB);
        QCOMPARE(lvwDB->headerItem()->text(0), QStringLiteral("Nome tabella da esportare"));
        QCOMPARE(lvwDB->topLevelItemCount(), 2);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(lvwDB->topLevelItem(i)->checkState(0), Qt::Checked);
            lvwDB->topLevelItem(i)->setCheckState(0, Qt::Unchecked);
        }
        finestra.show();
        finestra.cmdEsportaClick();
        QCOMPARE(piattaforma.Messaggi().size(), 1);
        QCOMPARE(piattaforma.Messaggi().first().sTitolo, QStringLiteral("Tabelle esportate"));
        QCOMPARE(piattaforma.Messaggi().first().sTesto, QString());
        QCOMPARE(piattaforma.Messaggi().first().icona, Icona::Informazione);
        QCOMPARE(finestra.result(), int(QDialog::Accepted));
        QVERIFY(!finestra.isVisible());
    }

    void ilModuloEsportaLeTabelleSceltePerNome_data() { AggiungiBackend(); }
    void ilModuloEsportaLeTabelleSceltePerNome() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(1, QStringLiteral("Roma"), Nullo);
        Scrivi(scena.sSchemi + QStringLiteral("/MancanteSch.xml"), SchemaEsempio());
        Sessione::cnn = scena.cnn;
        Sessione::sParam09 = scena.sSchemi;
        Sessione::sCartellaExport = scena.sDestinazione;
        PiattaformaScriptata piattaforma;
        frmEsporta finestra;
        finestra.cmdEsportaClick();
        // Mancante fails with its box; Esempio is done and listed.
        const QList<Messaggio> box = piattaforma.Messaggi();
        QCOMPARE(box.size(), 2);
        QCOMPARE(box.last().sTitolo, QStringLiteral("Tabelle esportate"));
        QCOMPARE(box.last().sTesto, QStringLiteral("Esempio\r\n"));
        QVERIFY(finestra.findChild<QLabel*>(QStringLiteral("lblRecord")));
        QVERIFY(QFile::exists(scena.File()));
    }

    void unaFallitaDiOgniGenereDaIlSuoBoxELaCorsaProsegue_data() {
        QTest::addColumn<TipoBackend>("backend");
        QTest::addColumn<QString>("genere");
        for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                         std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
            for (const char* genere : {"logic_error", "runtime_error", "senza nome"})
                QTest::addRow("%s, %s", nome, genere) << tipo << QString::fromLatin1(genere);
        }
    }
    void unaFallitaDiOgniGenereDaIlSuoBoxELaCorsaProsegue() {
        QFETCH(TipoBackend, backend);
        QFETCH(QString, genere);
        RICHIEDI_BACKEND(backend);
        Scena scena(backend);
        scena.Riga(1, QStringLiteral("Roma"), Nullo);
        // A second table, after the first in the list, that exports.
        scena.cnn->Esegui(QStringLiteral("CREATE TABLE Seconda (ID INTEGER, Code VARCHAR(10))"));
        scena.cnn->Esegui(QStringLiteral("INSERT INTO Seconda (ID) VALUES (3)"));
        Scrivi(scena.sSchemi + QStringLiteral("/SecondaSch.xml"),
               "<schema datafile=\"Seconda.xml\" version=\"5\"><stru fieldcount=\"1\">"
               "<field type=\"3\">ID</field></stru></schema>");
        Sessione::cnn = scena.cnn;
        Sessione::sParam09 = scena.sSchemi;
        Sessione::sCartellaExport = scena.sDestinazione;
        PiattaformaScriptata piattaforma;
        frmEsporta finestra;
        finestra.show();
        // A failure of another kind than the program's own, as a library would raise it, while
        // Esempio is in hand.
        bool bLanciata = false;
        finestra.alProgresso = [&](const QString& sTabella, qint64) {
            if (bLanciata || sTabella != QLatin1String("Esempio"))
                return;
            bLanciata = true;
            if (genere == QLatin1String("logic_error"))
                throw std::logic_error("indice fuori dai limiti");
            if (genere == QLatin1String("runtime_error"))
                throw std::runtime_error("risorsa esaurita");
            throw 42;
        };
        finestra.cmdEsportaClick();
        QVERIFY(bLanciata);
        const QString sTesto =
            genere == QLatin1String("logic_error")     ? QStringLiteral("indice fuori dai limiti")
            : genere == QLatin1String("runtime_error") ? QStringLiteral("risorsa esaurita")
                                                       : QStringLiteral("Errore interno");
        const QList<Messaggio> box = piattaforma.Messaggi();
        QCOMPARE(box.size(), 2);
        // The box of a failed table: the platform's number of an internal error and the words.
        QCOMPARE(box.at(0).sTitolo, Sessione::TitoloProgramma);
        QCOMPARE(box.at(0).icona, Icona::Nessuna);
        QCOMPARE(box.at(0).sTesto, QStringLiteral("51\r\n") + sTesto);
        QCOMPARE(box.at(1).sTitolo, QStringLiteral("Tabelle esportate"));
        QCOMPARE(box.at(1).sTesto, QStringLiteral("Seconda\r\n"));
        QVERIFY(!QFile::exists(scena.File()));
        QVERIFY(QFile::exists(scena.sDestinazione + QStringLiteral("/Seconda.xml")));
        QVERIFY(!finestra.isVisible());
    }

    void ogniColonnaDegliSchemiDelSitoEsisteNelDatabase_data() { AggiungiBackend(); }
    void ogniColonnaDegliSchemiDelSitoEsisteNelDatabase() {
        QFETCH(TipoBackend, backend);
        RICHIEDI_BACKEND(backend);
        BancaDatiProva banca(backend,
                             {QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")});
        auto cnn = banca.Apri();
        const QString sSchemi = QStringLiteral(TABELLION_SORGENTI) + QStringLiteral("/site/Schemi");
        const QStringList tabelle = Export::TabelleDisponibili(sSchemi);
        QVERIFY(tabelle.size() > 20);
        QVERIFY(!tabelle.contains(QStringLiteral("Provincie")));
        QVERIFY(!tabelle.contains(QStringLiteral("CodiciIstituto")));
        QSqlQuery config = cnn->Esegui(QStringLiteral("SELECT Versione FROM Config"));
        QVERIFY(config.next());
        const int iVersione = config.value(0).toInt();
        QTemporaryDir destinazione;
        for (const QString& sTabella : tabelle) {
            QFile file(sSchemi + QLatin1Char('/') + sTabella + QStringLiteral("Sch.xml"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QDomDocument documento;
            QVERIFY(documento.setContent(&file));
            const QDomElement radice = documento.documentElement();
            QCOMPARE(radice.attribute(QStringLiteral("version")).toInt(), iVersione);
            QCOMPARE(radice.attribute(QStringLiteral("datafile")), sTabella + ".xml");
            const QSqlRecord colonne =
                cnn->Esegui(QStringLiteral("SELECT * FROM ") +
                            cnn->backend().Identificatore(sTabella.toLower()) +
                            QStringLiteral(" WHERE 1 = 0"))
                    .record();
            // Every table that travels carries the code of each row's site; the reference
            // lists loaded into every database carry none and have no schema file.
            QVERIFY2(colonne.indexOf(QStringLiteral("Code")) >= 0, qPrintable(sTabella));
            const QDomElement stru = radice.firstChildElement(QStringLiteral("stru"));
            int iCampi = 0;
            for (QDomElement campo = stru.firstChildElement(QStringLiteral("field"));
                 !campo.isNull(); campo = campo.nextSiblingElement(QStringLiteral("field"))) {
                ++iCampi;
                QVERIFY2(colonne.indexOf(campo.text()) >= 0,
                         qPrintable(sTabella + QLatin1Char('.') + campo.text()));
                QVERIFY(campo.text().compare(QLatin1String("Code"), Qt::CaseInsensitive) != 0);
                const int tipo = campo.attribute(QStringLiteral("type")).toInt();
                QVERIFY((QList<int>{3, 5, 20, 131, 135, 202, 203}).contains(tipo));
            }
            QCOMPARE(stru.attribute(QStringLiteral("fieldcount")).toInt(), iCampi);
            // And the table travels.
            const Export::Esito esito =
                Export::EsportaTabella(*cnn, sTabella, sSchemi, destinazione.path());
            QVERIFY2(esito.bEsportata, qPrintable(sTabella + QLatin1Char(' ') + esito.sMessaggio));
        }
    }
};

QTEST_MAIN(TestEsporta)
#include "tst_esporta.moc"
