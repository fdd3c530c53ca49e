#include "session/Errore.h"
#include "session/LetturaLista.h"

#include "CartellaProva.h"

#include <QtTest>

class TestLetturaLista : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void unaVirgolaOUnaFineRigaChiudonoIlRecord();
    void leVirgoletteAttornoAlRecordVengonoTolteEProteggonoLeVirgole();
    void gliSpaziPrimaDelRecordSonoSaltatiQuelliDopoRestano();
    void unaVirgolaInFondoAllaRigaLasciaUnRecordVuoto();
    void righeVuoteERigheFinaliSenzaACapo();
    void testoLatinoDiVecchieStazioniSiLeggeConGliAccenti();
    void fileMancanteSollevaErroreConIlPercorso();
};

void TestLetturaLista::unaVirgolaOUnaFineRigaChiudonoIlRecord() {
    QCOMPARE(LeggiListaDaTesto("01 uno,due\r\ntre\nquattro\r"),
             (QStringList{QStringLiteral("01 uno"), QStringLiteral("due"), QStringLiteral("tre"),
                          QStringLiteral("quattro")}));
}

void TestLetturaLista::leVirgoletteAttornoAlRecordVengonoTolteEProteggonoLeVirgole() {
    QCOMPARE(LeggiListaDaTesto("\"01 C:\\Archivio, vecchio\"\r\n\"due\" avanzo,tre\r\n"),
             (QStringList{QStringLiteral("01 C:\\Archivio, vecchio"), QStringLiteral("due"),
                          QStringLiteral("tre")}));
}

void TestLetturaLista::gliSpaziPrimaDelRecordSonoSaltatiQuelliDopoRestano() {
    QCOMPARE(LeggiListaDaTesto("   Archivio  \r\n\tSecondo, terzo\r\n"),
             (QStringList{QStringLiteral("Archivio  "), QStringLiteral("Secondo"),
                          QStringLiteral("terzo")}));
}

void TestLetturaLista::unaVirgolaInFondoAllaRigaLasciaUnRecordVuoto() {
    QCOMPARE(LeggiListaDaTesto("a,\r\nb"),
             (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
}

void TestLetturaLista::righeVuoteERigheFinaliSenzaACapo() {
    QCOMPARE(LeggiListaDaTesto("a\r\n\r\nb"),
             (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
    QCOMPARE(LeggiListaDaTesto(""), QStringList());
    QCOMPARE(LeggiListaDaTesto("solo"), QStringList{QStringLiteral("solo")});
}

void TestLetturaLista::testoLatinoDiVecchieStazioniSiLeggeConGliAccenti() {
    QCOMPARE(LeggiListaDaTesto("01Citt\xe0 di Forl\xec\r\n"),
             QStringList{QStringLiteral("01Città di Forlì")});
    QCOMPARE(LeggiListaDaTesto("\xEF\xBB\xBF"
                               "01Citt\xc3\xa0\r\n"),
             QStringList{QStringLiteral("01Città")});
}

void TestLetturaLista::fileMancanteSollevaErroreConIlPercorso() {
    CartellaProva cartella;
    const QString percorso = cartella.File(QStringLiteral("Manca.txt"));
    try {
        LeggiLista(percorso, QStringLiteral("Prova"));
        QFAIL("no error for a missing file");
    } catch (const Errore& errore) {
        QCOMPARE(errore.sorgente(), QStringLiteral("Prova"));
        QVERIFY(errore.descrizione().contains(percorso));
        QCOMPARE(errore.numero(), ErroriPiattaforma::FileNonTrovato);
    }
}

QTEST_GUILESS_MAIN(TestLetturaLista)
#include "tst_letturalista.moc"
