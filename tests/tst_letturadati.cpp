// The records of a data file read by the scanner of the export's layout give exactly what the
// general XML reader gives, and every file the scanner does not know goes to the general
// reader with the same records and the same error.

#include "exchange/LetturaDati.h"
#include "session/Errore.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Import;

namespace {

struct Lettura {
    QStringList record; // "slot|null|text" fields joined by "¦"
    QString sErrore;
    qint64 lVeloci = 0;
};

Lettura Leggi(const QString& sPercorso, qint64 lInizio, qsizetype iSlot = 5) {
    Lettura lettura;
    LettoreDati lettore(sPercorso, iSlot, lInizio);
    BloccoLetto blocco;
    while (lettore.Prossimo(blocco)) {
        size_t iCampo = 0;
        for (const size_t iFine : blocco.fineRecord) {
            QStringList campi;
            for (; iCampo < iFine; ++iCampo) {
                const CampoLetto& campo = blocco.campi[iCampo];
                campi.append(QString::number(campo.iSlot) + QLatin1Char('|') +
                             QString::number(campo.bNull) + QLatin1Char('|') + campo.sTesto);
            }
            lettura.record.append(campi.join(QStringLiteral("¦")));
        }
        if (!blocco.sErrore.isEmpty())
            lettura.sErrore = blocco.sErrore;
    }
    lettura.lVeloci = lettore.RecordVeloci();
    return lettura;
}

const QByteArray Testa = "<?xml version = \"1.0\" encoding=\"UTF-8\"?><table name=\"Esempio\" "
                         "version=\"4\" code=\"AB01\">";

QByteArray Campo(int id, const QByteArray& testo) {
    return "\r\n\t\t<field id=\"" + QByteArray::number(id) + "\" null=\"0\">" + testo + "</field>";
}

QByteArray Nullo(int id) {
    return "\r\n\t\t<field id=\"" + QByteArray::number(id) + "\" null=\"1\"/>";
}

QByteArray Record(const QByteArray& campi) {
    return "\r\n\t<record>" + campi + "\r\n\t</record>";
}

// Texts of every kind the layout allows.
QList<QByteArray> Testi() {
    return {"Roma",
            "",
            "L'Aquila &amp; dintorni &lt;b&gt; &quot;x&quot; &apos;y&apos;",
            "accenti \xc3\xa8 \xe2\x82\xac \xe4\xb8\xad \xf0\x9f\x98\x80",
            "riferimenti &#233; &#x4E2D; &#x4e2d; &#13; &#10; &#9; &#x1F600;",
            "righe\r\nWindows\rsola\nunix\tTab",
            "parentesi ] e ]] e > da sole",
            QByteArray(3000, 'x') + "\xc3\xa8"};
}

} // namespace

class TestLetturaDati : public QObject {
    Q_OBJECT
private:
    QTemporaryDir cartella;
    QString Scrivi(const QByteArray& dati) {
        static int n = 0;
        const QString sPercorso = cartella.filePath(QStringLiteral("dati%1.xml").arg(++n));
        QFile file(sPercorso);
        if (!file.open(QIODevice::WriteOnly) || file.write(dati) != dati.size())
            qFatal("can't write the test file");
        return sPercorso;
    }

private Q_SLOTS:
    void ilFormatoDellEsportazioneSiLeggeTuttoColLettoreVeloceComeColLettoreGenerale();
    void ogniCosaCheIlLettoreVeloceNonConosceLaLeggeIlLettoreGeneraleConGliStessiErrori_data();
    void ogniCosaCheIlLettoreVeloceNonConosceLaLeggeIlLettoreGeneraleConGliStessiErrori();
    void unaTestaInsolitaLasciaTuttoAlLettoreGenerale_data();
    void unaTestaInsolitaLasciaTuttoAlLettoreGenerale();
    void unFileSenzaTestaLeggibileVieneRifiutatoInParole();
};

void TestLetturaDati::
    ilFormatoDellEsportazioneSiLeggeTuttoColLettoreVeloceComeColLettoreGenerale() {
    // More than a block of records and several pieces of the file, records across their edges.
    const QList<QByteArray> testi = Testi();
    QByteArray dati = Testa;
    const int iRecord = 2500;
    for (int i = 0; i < iRecord; ++i)
        dati += Record(Campo(1, QByteArray::number(i)) + Campo(2, testi[i % testi.size()]) +
                       Nullo(3) + "\r\n\t\t<field id=\"4\" null=\"0\"/>" +
                       Campo(5, testi[(i + 3) % testi.size()]));
    dati += Record("") + "\r\n</table>\r\n";
    const QString sPercorso = Scrivi(dati);
    const qint64 lInizio = LettoreDati::LeggiTesta(sPercorso).lInizioCorpo;
    QCOMPARE(lInizio, Testa.size());
    const Lettura veloce = Leggi(sPercorso, lInizio);
    const Lettura generale = Leggi(sPercorso, -1);
    QCOMPARE(veloce.sErrore, QString());
    QCOMPARE(veloce.record.size(), iRecord + 1);
    QCOMPARE(veloce.lVeloci, iRecord + 1);
    QCOMPARE(generale.lVeloci, 0);
    QCOMPARE(veloce.record, generale.record);
    QVERIFY(veloce.record[5].contains(QStringLiteral("righe\nWindows\nsola\nunix\tTab")));
    QVERIFY(veloce.record[4].contains(QString::fromUtf8("riferimenti é 中 中 \r \n \t 😀")));
}

void TestLetturaDati::
    ogniCosaCheIlLettoreVeloceNonConosceLaLeggeIlLettoreGeneraleConGliStessiErrori_data() {
    QTest::addColumn<QByteArray>("corpo");
    QTest::addColumn<bool>("errore");
    const QByteArray buono = Record(Campo(1, "7") + Campo(2, "Roma"));
    QTest::newRow("commento tra i record") << buono + "<!-- nota -->" + buono << false;
    QTest::newRow("record con attributi")
        << buono + "\r\n\t<record n=\"2\">" + Campo(1, "8") + "</record>" << false;
    QTest::newRow("attributi in altro ordine")
        << buono + Record("<field null=\"0\" id=\"1\">8</field>") << false;
    QTest::newRow("apici semplici") << buono + Record("<field id='1' null='0'>8</field>") << false;
    QTest::newRow("id con spazi") << buono + Record("<field id=\" 1\" null=\"0\">8</field>")
                                  << false;
    QTest::newRow("sezione CDATA") << buono + Record(Campo(2, "<![CDATA[a<b]]>")) << false;
    QTest::newRow("altro elemento nel record")
        << buono + Record("<nota/>" + Campo(1, "8")) << false;
    QTest::newRow("testo tra i record") << buono + "testo" + buono << false;
    QTest::newRow("commento dopo la tabella") << buono + "</table><!-- fine -->" << false;
    QTest::newRow("entita sconosciuta") << buono + Record(Campo(2, "&ignota;")) << true;
    QTest::newRow("UTF-8 non valido") << buono + Record(Campo(2, "a\xc3(b")) << true;
    QTest::newRow("carattere di controllo") << buono + Record(Campo(2, "a&#1;b")) << true;
    QTest::newRow("carattere di controllo crudo") << buono + Record(Campo(2, "a\x01z")) << true;
    QTest::newRow("fine di CDATA nel testo") << buono + Record(Campo(2, "a]]>b")) << true;
    QTest::newRow("id fuori intervallo") << buono + Record(Campo(9, "x")) << true;
    QTest::newRow("campo senza null") << buono + Record("<field id=\"1\">8</field>") << true;
    QTest::newRow("campo con un figlio") << buono + Record(Campo(2, "a<b/>c")) << true;
    QTest::newRow("tabella troncata") << buono + Record(Campo(2, "a")).left(20) << true;
    QTest::newRow("senza fine della tabella") << buono + buono << true;
    QTest::newRow("altro dopo la tabella") << buono + "</table><altro/>" << true;
    QTest::newRow("fine di un altro elemento") << buono + "</tavola>" << true;
}

void TestLetturaDati::
    ogniCosaCheIlLettoreVeloceNonConosceLaLeggeIlLettoreGeneraleConGliStessiErrori() {
    QFETCH(QByteArray, corpo);
    QFETCH(bool, errore);
    // Enough records before the odd part that the scanner has given some when it meets it.
    QByteArray dati = Testa + Record(Campo(1, "1") + Campo(2, "primo")).repeated(500) + corpo;
    if (!corpo.contains("</ta") && !QByteArray(QTest::currentDataTag()).contains("troncata") &&
        !QByteArray(QTest::currentDataTag()).contains("senza fine"))
        dati += "\r\n</table>";
    const QString sPercorso = Scrivi(dati);
    const qint64 lInizio = LettoreDati::LeggiTesta(sPercorso).lInizioCorpo;
    QCOMPARE(lInizio, Testa.size());
    const Lettura veloce = Leggi(sPercorso, lInizio);
    const Lettura generale = Leggi(sPercorso, -1);
    QCOMPARE(veloce.sErrore, generale.sErrore);
    QCOMPARE(!veloce.sErrore.isEmpty(), errore);
    if (!errore) {
        QCOMPARE(veloce.record, generale.record);
    } else {
        // Before an error the two may have given a different number of whole records (the
        // general reader decodes ahead of itself), each one the same; the table fails anyway.
        const qsizetype n = std::min(veloce.record.size(), generale.record.size());
        QCOMPARE(veloce.record.first(n), generale.record.first(n));
    }
    // The first record, in the layout, came from the scanner.
    QVERIFY(veloce.lVeloci >= 1);
}

void TestLetturaDati::unaTestaInsolitaLasciaTuttoAlLettoreGenerale_data() {
    QTest::addColumn<QByteArray>("dati");
    const QByteArray corpo = Record(Campo(1, "7")) + "\r\n</table>";
    QTest::newRow("BOM") << "\xef\xbb\xbf" + Testa + corpo;
    QTest::newRow("accento nella testa")
        << "<?xml version=\"1.0\"?><table name=\"Citt\xc3\xa0\" version=\"4\" code=\"AB01\">" +
               corpo;
    QTest::newRow("altra codifica") << "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><table "
                                       "version=\"4\" code=\"AB01\">" +
                                           corpo;
    QTest::newRow("DOCTYPE") << "<?xml version=\"1.0\"?><!DOCTYPE table [<!ATTLIST field null "
                                "CDATA \"0\">]><table version=\"4\" code=\"AB01\">" +
                                    corpo;
    QTest::newRow("radice vuota") << "<table version=\"4\" code=\"AB01\"/>" +
                                         QByteArray("</table>");
    QTest::newRow("radice di altro nome") << "<tavola version=\"4\" code=\"AB01\">" + corpo;
}

void TestLetturaDati::unaTestaInsolitaLasciaTuttoAlLettoreGenerale() {
    QFETCH(QByteArray, dati);
    const QString sPercorso = Scrivi(dati);
    const LettoreDati::Testa testa = LettoreDati::LeggiTesta(sPercorso);
    QCOMPARE(testa.lInizioCorpo, -1);
    QCOMPARE(testa.sVersione, QStringLiteral("4"));
    QCOMPARE(testa.sCode, QStringLiteral("AB01"));
}

void TestLetturaDati::unFileSenzaTestaLeggibileVieneRifiutatoInParole() {
    for (const QString& sPercorso : {Scrivi("non sono XML"), Scrivi("<?xml version=\"1.0\"?>"),
                                     cartella.filePath(QStringLiteral("assente.xml"))}) {
        try {
            LettoreDati::LeggiTesta(sPercorso);
            QFAIL(qPrintable(sPercorso));
        } catch (const Errore& errore) {
            QVERIFY2(errore.descrizione().contains(QDir::toNativeSeparators(sPercorso)),
                     qPrintable(errore.descrizione()));
        }
    }
}

QTEST_GUILESS_MAIN(TestLetturaDati)
#include "tst_letturadati.moc"
