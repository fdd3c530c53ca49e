// Date forms, the conversions between control text and column value, and a producer's dates.
// Every rule is Italian (day first, comma decimal, point thousands) while the process runs
// with an American locale.

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Utility.h"

#include <QComboBox>
#include <QLocale>
#include <QTest>
#include <QTimeZone>
#include <limits>
#include <memory>

namespace {

std::unique_ptr<QComboBox> nuovaCombo() {
    auto cmb = std::make_unique<QComboBox>();
    cmb->addItem(QStringLiteral("Archivio"), 1);
    cmb->addItem(QStringLiteral("Biblioteca"), 12);
    cmb->addItem(QStringLiteral("Altro"), 65);
    cmb->addItem(QStringLiteral("Senza codice"));
    return cmb;
}

} // namespace

class TestConversioni : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    // Locale of the process
    void leRegoleItalianeValgonoConIlLocaleAmericano();
    void unaDataGiaNellaFormaDelServerSiRiconosceSenzaRileggerla();

    // Date tests
    void riconoscimentoDelleDateGiornoPrima_data();
    void riconoscimentoDelleDateGiornoPrima();
    void dataOraItalianaLeggeGiornoMeseAnnoEOra_data();
    void dataOraItalianaLeggeGiornoMeseAnnoEOra();

    // Date routines
    void annoDiTreCifreSopravviveAlGiroDataDaAnnoAnnoDaData();
    void dataDaAnnoAggiungeLaCodaDInizioODiFine_data();
    void dataDaAnnoAggiungeLaCodaDInizioODiFine();
    void dataDaAnnoDiTestoVuotoENull();
    void annoDaDataPrendeQuattroCifreDaOttoETreDaAltre_data();
    void annoDaDataPrendeQuattroCifreDaOttoETreDaAltre();
    void annoDaDataDiNullEVuoto();
    void numeroDaDataDelTrentunoFebbraioENull();
    void numeroDaDataConCifreSingoleDaLaFormaArchiviata();
    void numeroDaDataDaLeCifreDiAnnoMeseGiorno_data();
    void numeroDaDataDaLeCifreDiAnnoMeseGiorno();
    void dataDaNumeroDiSetteCifreTieneLeCifreSpostate();
    void dataDaNumeroDaLaFormaMostrata_data();
    void dataDaNumeroDaLaFormaMostrata();
    void dataDaTestoDiSetteCifreDaLAnnoDiTreSenzaSpazio();
    void dataDaTestoDaLaFormaMostrata_data();
    void dataDaTestoDaLaFormaMostrata();
    void dataSqlDiUnTesto_data();
    void dataSqlDiUnTesto();
    void dataSqlDiUnTestoCheNonEDataSollevaErrore13();
    void dataSqlDiUnaDataOra();

    // Numbers
    void testNumericoItaliano_data();
    void testNumericoItaliano();
    void cdblLeggeIlNumeroAllItaliana_data();
    void cdblLeggeIlNumeroAllItaliana();
    void cdblDiUnTestoNonNumericoSollevaErrore13_data();
    void cdblDiUnTestoNonNumericoSollevaErrore13();
    void valLeggeIlNumeroInTestaConIlPuntoDecimale_data();
    void valLeggeIlNumeroInTestaConIlPuntoDecimale();
    void numeroItalianoHaPuntoPerMigliaiaEVirgolaDecimale_data();
    void numeroItalianoHaPuntoPerMigliaiaEVirgolaDecimale();

    // Value routines
    void nullSeVuotoDiTestoVuotoENull();
    void nullSeVuotoTieneIlTestoOIlNull_data();
    void nullSeVuotoTieneIlTestoOIlNull();
    void testoODefaultDaIlDefaultSoloAlTestoVuoto();
    void numeroONullLeggeIlNumeroInTestaONull_data();
    void numeroONullLeggeIlNumeroInTestaONull();
    void numeroOZeroDiTestoVuotoELInteroZero();
    void numeroOZeroLeggeIlNumeroAllItaliana();
    void numeroOZeroDiTestoNonNumericoSollevaErrore13();
    void numeroValidoAccettaIlVuotoEINumeriItaliani_data();
    void numeroValidoAccettaIlVuotoEINumeriItaliani();
    void cartellaDaPercorsoTieneFinoAllUltimoSeparatore_data();
    void cartellaDaPercorsoTieneFinoAllUltimoSeparatore();

    // Combos
    void codiceVoceSceltaDaIlDatoDellaVoceOVuoto();
    void testoVoceSceltaEIlTestoDellaCombo();
    void carattereVoceSceltaDaIlCarattereDelCodice();

    // A producer's dates
    void estremiPersonaConLaSolaDataDInizio();
    void estremiPersonaConLaSolaDataDiFine();
    void estremiPersonaComponeLuoghiEDate_data();
    void estremiPersonaComponeLuoghiEDate();
    void estremiEnteDiDateGiaTraParentesiTieneLeParentesiConUnoSpazio();
    void estremiEnteEFamigliaAggiungonoLeParentesiMancanti_data();
    void estremiEnteEFamigliaAggiungonoLeParentesiMancanti();
};

void TestConversioni::initTestCase() {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestConversioni::leRegoleItalianeValgonoConIlLocaleAmericano() {
    QCOMPARE(QLocale().language(), QLocale::English);
    QCOMPARE(QLocale().territory(), QLocale::UnitedStates);
    // An American reading would take month first and a point for decimals.
    QVERIFY(IsDate(QStringLiteral("31/01/2004")));
    QCOMPARE(NumeroDaData(QStringLiteral("1/2/2004")), QVariant(qint64(20040201)));
    QCOMPARE(CDbl(QStringLiteral("1,5")), 1.5);
    QCOMPARE(CDbl(QStringLiteral("1.500")), 1500.0);
    QCOMPARE(Val(QStringLiteral("1,5")), 1.0);
    QCOMPARE(NumeroItaliano(1234.5, 2), QStringLiteral("1.234,50"));
}

void TestConversioni::riconoscimentoDelleDateGiornoPrima_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("data");

    QTest::newRow("dd/mm/yyyy") << QStringLiteral("31/01/2004") << true;
    QTest::newRow("cifre singole") << QStringLiteral("1/2/2004") << true;
    QTest::newRow("trattini") << QStringLiteral("1-2-2004") << true;
    QTest::newRow("punti") << QStringLiteral("01.02.2004") << true;
    QTest::newRow("separatori misti") << QStringLiteral("1/2-2004") << true;
    QTest::newRow("spazi attorno") << QStringLiteral("  1/2/2004 ") << true;
    QTest::newRow("anno di tre cifre") << QStringLiteral("01/01/900") << true;
    QTest::newRow("anno di due cifre") << QStringLiteral("1/2/04") << true;
    QTest::newRow("anno di una cifra") << QStringLiteral("1/2/4") << true;
    QTest::newRow("nome del mese") << QStringLiteral("3/marzo/1500") << true;
    QTest::newRow("mese abbreviato") << QStringLiteral("3-DIC-1500") << true;
    QTest::newRow("con ora") << QStringLiteral("31/01/2004 12:05") << true;
    QTest::newRow("con ora e secondi") << QStringLiteral("31/01/2004 12.05.30") << true;
    QTest::newRow("forma del database") << QStringLiteral("2004-01-31") << true;
    QTest::newRow("forma del database con ora") << QStringLiteral("2004-01-31 12:05:00") << true;
    QTest::newRow("bisestile") << QStringLiteral("29/02/2004") << true;
    QTest::newRow("31 febbraio") << QStringLiteral("31/02/2004") << false;
    QTest::newRow("29 febbraio non bisestile") << QStringLiteral("29/02/1900") << false;
    QTest::newRow("mese 13") << QStringLiteral("1/13/2004") << false;
    QTest::newRow("mese prima (americano)") << QStringLiteral("12/31/2004") << false;
    QTest::newRow("anno zero di quattro cifre") << QStringLiteral("1/1/0050") << false;
    QTest::newRow("anno di cinque cifre") << QStringLiteral("1/1/10000") << false;
    QTest::newRow("mese sconosciuto") << QStringLiteral("1/foo/2004") << false;
    QTest::newRow("ora impossibile") << QStringLiteral("1/2/2004 25:00") << false;
    QTest::newRow("solo giorno e mese") << QStringLiteral("1/2") << false;
    QTest::newRow("vuoto") << QString() << false;
    QTest::newRow("testo") << QStringLiteral("abc") << false;
    QTest::newRow("numero archiviato") << QStringLiteral("20040131") << false;
}

void TestConversioni::riconoscimentoDelleDateGiornoPrima() {
    QFETCH(QString, testo);
    QFETCH(bool, data);
    QCOMPARE(IsDate(testo), data);
}

void TestConversioni::dataOraItalianaLeggeGiornoMeseAnnoEOra_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QDate>("giorno");
    QTest::addColumn<QTime>("ora");

    QTest::newRow("giorno prima") << QStringLiteral("2/1/2004") << QDate(2004, 1, 2) << QTime(0, 0);
    QTest::newRow("finestra 2029") << QStringLiteral("1/1/29") << QDate(2029, 1, 1) << QTime(0, 0);
    QTest::newRow("finestra 1930") << QStringLiteral("1/1/30") << QDate(1930, 1, 1) << QTime(0, 0);
    QTest::newRow("anno di tre cifre")
        << QStringLiteral("5/6/900") << QDate(900, 6, 5) << QTime(0, 0);
    QTest::newRow("nome del mese")
        << QStringLiteral("1.Settembre.1500") << QDate(1500, 9, 1) << QTime(0, 0);
    QTest::newRow("ora e minuti") << QStringLiteral("31/01/2004 9:05") << QDate(2004, 1, 31)
                                  << QTime(9, 5);
    QTest::newRow("ora, minuti, secondi")
        << QStringLiteral("31/01/2004 12:05:07") << QDate(2004, 1, 31) << QTime(12, 5, 7);
    QTest::newRow("forma del database")
        << QStringLiteral("2004-01-31 12:05:07") << QDate(2004, 1, 31) << QTime(12, 5, 7);
}

void TestConversioni::dataOraItalianaLeggeGiornoMeseAnnoEOra() {
    QFETCH(QString, testo);
    QFETCH(QDate, giorno);
    QFETCH(QTime, ora);
    const std::optional<QDateTime> letta = DataOraItaliana(testo);
    QVERIFY(letta.has_value());
    QCOMPARE(letta->date(), giorno);
    QCOMPARE(letta->time(), ora);
}

void TestConversioni::annoDiTreCifreSopravviveAlGiroDataDaAnnoAnnoDaData() {
    const QVariant inizio = DataDaAnno(QStringLiteral("900"), true);
    QCOMPARE(inizio, QVariant(QStringLiteral("9000101")));
    QCOMPARE(AnnoDaData(inizio), QStringLiteral("900"));

    const QVariant fine = DataDaAnno(QStringLiteral("900"), false);
    QCOMPARE(fine, QVariant(QStringLiteral("9001231")));
    QCOMPARE(AnnoDaData(fine), QStringLiteral("900"));

    // The same stored as a number.
    QCOMPARE(AnnoDaData(QVariant(qint64(9000101))), QStringLiteral("900"));
}

void TestConversioni::dataDaAnnoAggiungeLaCodaDInizioODiFine_data() {
    QTest::addColumn<QString>("anno");
    QTest::addColumn<bool>("inizio");
    QTest::addColumn<QString>("attesa");

    QTest::newRow("inizio") << QStringLiteral("1500") << true << QStringLiteral("15000101");
    QTest::newRow("fine") << QStringLiteral("1500") << false << QStringLiteral("15001231");
    QTest::newRow("tre cifre") << QStringLiteral("900") << true << QStringLiteral("9000101");
    QTest::newRow("spazi davanti") << QStringLiteral(" 900") << true << QStringLiteral("9000101");
    QTest::newRow("due cifre") << QStringLiteral("90") << false << QStringLiteral("901231");
    QTest::newRow("cinque cifre") << QStringLiteral("12345") << true << QStringLiteral("123450101");
}

void TestConversioni::dataDaAnnoAggiungeLaCodaDInizioODiFine() {
    QFETCH(QString, anno);
    QFETCH(bool, inizio);
    QFETCH(QString, attesa);
    const QVariant data = DataDaAnno(anno, inizio);
    QCOMPARE(data.metaType(), QMetaType::fromType<QString>());
    QCOMPARE(data.toString(), attesa);
}

void TestConversioni::dataDaAnnoDiTestoVuotoENull() {
    QVERIFY(ENull(DataDaAnno(QString(), true)));
    QVERIFY(ENull(DataDaAnno(QStringLiteral(""), false)));
}

void TestConversioni::annoDaDataPrendeQuattroCifreDaOttoETreDaAltre_data() {
    QTest::addColumn<QVariant>("valore");
    QTest::addColumn<QString>("anno");

    QTest::newRow("numero di otto cifre") << QVariant(qint64(15000101)) << QStringLiteral("1500");
    QTest::newRow("testo di otto cifre")
        << QVariant(QStringLiteral("15001231")) << QStringLiteral("1500");
    QTest::newRow("testo di sette cifre")
        << QVariant(QStringLiteral("9000101")) << QStringLiteral("900");
    QTest::newRow("testo con spazi") << QVariant(QStringLiteral(" 900101")) << QStringLiteral("90");
    QTest::newRow("testo vuoto") << QVariant(QString()) << QString();
}

void TestConversioni::annoDaDataPrendeQuattroCifreDaOttoETreDaAltre() {
    QFETCH(QVariant, valore);
    QFETCH(QString, anno);
    QCOMPARE(AnnoDaData(valore), anno);
}

void TestConversioni::annoDaDataDiNullEVuoto() {
    QCOMPARE(AnnoDaData(QVariant()), QString());
    QCOMPARE(AnnoDaData(QVariant::fromValue(nullptr)), QString());
}

void TestConversioni::numeroDaDataDelTrentunoFebbraioENull() {
    const QVariant numero = NumeroDaData(QStringLiteral("31/02/2004"));
    QVERIFY(ENull(numero));
}

void TestConversioni::numeroDaDataConCifreSingoleDaLaFormaArchiviata() {
    const QVariant numero = NumeroDaData(QStringLiteral("1/2/2004"));
    QCOMPARE(numero.metaType(), QMetaType::fromType<qint64>());
    QCOMPARE(numero.toLongLong(), qint64(20040201));
}

void TestConversioni::numeroDaDataDaLeCifreDiAnnoMeseGiorno_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QVariant>("numero");

    QTest::newRow("forma mostrata") << QStringLiteral("01/01/1500") << QVariant(qint64(15000101));
    QTest::newRow("anno di tre cifre") << QStringLiteral("01/01/900") << QVariant(qint64(9000101));
    QTest::newRow("con ora") << QStringLiteral("31/12/1999 23:59") << QVariant(qint64(19991231));
    QTest::newRow("non data") << QStringLiteral("abc") << QVariant();
    QTest::newRow("vuoto") << QString() << QVariant();
}

void TestConversioni::numeroDaDataDaLeCifreDiAnnoMeseGiorno() {
    QFETCH(QString, testo);
    QFETCH(QVariant, numero);
    const QVariant letto = NumeroDaData(testo);
    QCOMPARE(ENull(letto), ENull(numero));
    if (!ENull(numero))
        QCOMPARE(letto, numero);
}

void TestConversioni::dataDaNumeroDiSetteCifreTieneLeCifreSpostate() {
    QCOMPARE(DataDaNumero(9000101), QStringLiteral("01/10/9000"));
}

void TestConversioni::dataDaNumeroDaLaFormaMostrata_data() {
    QTest::addColumn<qint64>("numero");
    QTest::addColumn<QString>("testo");

    QTest::newRow("otto cifre") << qint64(15000101) << QStringLiteral("01/01/1500");
    QTest::newRow("fine d'anno") << qint64(20041231) << QStringLiteral("31/12/2004");
    QTest::newRow("zero") << qint64(0) << QString();
    QTest::newRow("negativo") << qint64(-20040101) << QString();
    QTest::newRow("una cifra") << qint64(5) << QStringLiteral("5//5");
    QTest::newRow("tre cifre") << qint64(123) << QStringLiteral("23//123");
    QTest::newRow("cinque cifre") << qint64(12345) << QStringLiteral("45/5/1234");
    QTest::newRow("nove cifre") << qint64(120000101) << QStringLiteral("01/00/1200");
    QTest::newRow("il massimo") << std::numeric_limits<qint64>::max()
                                << QStringLiteral("07/37/9223");
}

void TestConversioni::dataDaNumeroDaLaFormaMostrata() {
    QFETCH(qint64, numero);
    QFETCH(QString, testo);
    QCOMPARE(DataDaNumero(numero), testo);
}

void TestConversioni::dataDaTestoDiSetteCifreDaLAnnoDiTreSenzaSpazio() {
    QCOMPARE(DataDaTesto(QVariant(QStringLiteral("9000101"))), QStringLiteral("01/01/900"));
}

void TestConversioni::dataDaTestoDaLaFormaMostrata_data() {
    QTest::addColumn<QVariant>("valore");
    QTest::addColumn<QString>("testo");

    QTest::newRow("testo di otto cifre")
        << QVariant(QStringLiteral("15000101")) << QStringLiteral("01/01/1500");
    QTest::newRow("numero di otto cifre")
        << QVariant(qint64(20041231)) << QStringLiteral("31/12/2004");
    QTest::newRow("numero di sette cifre")
        << QVariant(qint64(9000101)) << QStringLiteral("01/01/900");
    QTest::newRow("Null") << QVariant() << QString();
    QTest::newRow("nullptr") << QVariant::fromValue(nullptr) << QString();
    QTest::newRow("vuoto") << QVariant(QString()) << QString();
    QTest::newRow("un carattere") << QVariant(QStringLiteral("0")) << QString();
}

void TestConversioni::dataDaTestoDaLaFormaMostrata() {
    QFETCH(QVariant, valore);
    QFETCH(QString, testo);
    QCOMPARE(DataDaTesto(valore), testo);
}

void TestConversioni::dataSqlDiUnTesto_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QString>("sql");

    QTest::newRow("con ora") << QStringLiteral("31/01/2004 12:05:00")
                             << QStringLiteral("2004-01-31 12:05:00");
    QTest::newRow("senza ora") << QStringLiteral("1/2/2004")
                               << QStringLiteral("2004-02-01 00:00:00");
    QTest::newRow("anno di tre cifre")
        << QStringLiteral("01/01/900") << QStringLiteral("900-01-01 00:00:00");
    QTest::newRow("ora di una cifra")
        << QStringLiteral("5.6.1999 7:08") << QStringLiteral("1999-06-05 07:08:00");
}

void TestConversioni::dataSqlDiUnTesto() {
    QFETCH(QString, testo);
    QFETCH(QString, sql);
    QCOMPARE(DataSql(testo), sql);
}

void TestConversioni::dataSqlDiUnTestoCheNonEDataSollevaErrore13() {
    try {
        DataSql(QStringLiteral("31/02/2004"));
        QFAIL("nessun errore");
    } catch (const Errore& e) {
        QCOMPARE(e.numero(), ErroriPiattaforma::TipoNonCorrispondente);
        QCOMPARE(e.descrizione(), QStringLiteral("Tipo non corrispondente"));
    }
}

void TestConversioni::dataSqlDiUnaDataOra() {
    QCOMPARE(DataSql(QDateTime(QDate(2004, 1, 31), QTime(12, 5, 0))),
             QStringLiteral("2004-01-31 12:05:00"));
    QCOMPARE(DataSql(QDateTime(QDate(900, 1, 1), QTime(0, 0, 0), QTimeZone::utc())),
             QStringLiteral("900-01-01 00:00:00"));
    QCOMPARE(DataSql(QDateTime(QDate(1999, 12, 3), QTime(9, 7, 5, 999))),
             QStringLiteral("1999-12-03 09:07:05"));
}

void TestConversioni::testNumericoItaliano_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("numerico");

    QTest::newRow("1.234,56") << QStringLiteral("1.234,56") << true;
    QTest::newRow("intero") << QStringLiteral("42") << true;
    QTest::newRow("migliaia") << QStringLiteral("1.000") << true;
    QTest::newRow("milioni") << QStringLiteral("1.000.000") << true;
    QTest::newRow("punti irregolari") << QStringLiteral("1.00.0") << true;
    QTest::newRow("virgola davanti") << QStringLiteral(",5") << true;
    QTest::newRow("virgola in fondo") << QStringLiteral("5,") << true;
    QTest::newRow("segno meno") << QStringLiteral("-3,5") << true;
    QTest::newRow("segno piu") << QStringLiteral("+3") << true;
    QTest::newRow("segno in fondo") << QStringLiteral("3-") << true;
    QTest::newRow("esponente") << QStringLiteral("1,5E3") << true;
    QTest::newRow("esponente con segno") << QStringLiteral("2e-3") << true;
    QTest::newRow("spazi e tab attorno") << QStringLiteral(" \t12 ") << true;
    QTest::newRow("esadecimale") << QStringLiteral("&HFF") << true;
    QTest::newRow("ottale") << QStringLiteral("&o17") << true;
    QTest::newRow("1,2,3") << QStringLiteral("1,2,3") << false;
    QTest::newRow("abc") << QStringLiteral("abc") << false;
    QTest::newRow("vuoto") << QString() << false;
    QTest::newRow("spazi") << QStringLiteral("   ") << false;
    QTest::newRow("punto davanti") << QStringLiteral(".5") << false;
    QTest::newRow("punto in fondo") << QStringLiteral("5.") << false;
    QTest::newRow("due punti di fila") << QStringLiteral("1..000") << false;
    QTest::newRow("sola virgola") << QStringLiteral(",") << false;
    QTest::newRow("solo segno") << QStringLiteral("-") << false;
    QTest::newRow("due segni") << QStringLiteral("-5-") << false;
    QTest::newRow("esponente senza cifre") << QStringLiteral("5E") << false;
    QTest::newRow("esponente senza mantissa") << QStringLiteral("E5") << false;
    QTest::newRow("spazio in mezzo") << QStringLiteral("1 000") << false;
    QTest::newRow("lettere in coda") << QStringLiteral("12abc") << false;
    QTest::newRow("esadecimale sbagliato") << QStringLiteral("&HFG") << false;
    QTest::newRow("ottale sbagliato") << QStringLiteral("&O8") << false;
    QTest::newRow("fuori scala") << QStringLiteral("1E400") << false;
}

void TestConversioni::testNumericoItaliano() {
    QFETCH(QString, testo);
    QFETCH(bool, numerico);
    QCOMPARE(IsNumeric(testo), numerico);
}

void TestConversioni::cdblLeggeIlNumeroAllItaliana_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("numero");

    QTest::newRow("1.234,5") << QStringLiteral("1.234,5") << 1234.5;
    QTest::newRow("punto come migliaia") << QStringLiteral("3.2") << 32.0;
    QTest::newRow("virgola davanti") << QStringLiteral(",25") << 0.25;
    QTest::newRow("negativo") << QStringLiteral("-1.000,5") << -1000.5;
    QTest::newRow("segno in fondo") << QStringLiteral("7-") << -7.0;
    QTest::newRow("esponente") << QStringLiteral("1,5E3") << 1500.0;
    QTest::newRow("spazi attorno") << QStringLiteral("  8 ") << 8.0;
    QTest::newRow("esadecimale") << QStringLiteral("&H10") << 16.0;
    QTest::newRow("esadecimale intero corto") << QStringLiteral("&HFFFF") << -1.0;
    QTest::newRow("esadecimale lungo") << QStringLiteral("&H10000") << 65536.0;
    QTest::newRow("ottale") << QStringLiteral("&O17") << 15.0;
}

void TestConversioni::cdblLeggeIlNumeroAllItaliana() {
    QFETCH(QString, testo);
    QFETCH(double, numero);
    QCOMPARE(CDbl(testo), numero);
}

void TestConversioni::cdblDiUnTestoNonNumericoSollevaErrore13_data() {
    QTest::addColumn<QString>("testo");

    QTest::newRow("lettere") << QStringLiteral("abc");
    QTest::newRow("vuoto") << QString();
    QTest::newRow("due virgole") << QStringLiteral("1,2,3");
    QTest::newRow("numero e lettere") << QStringLiteral("12abc");
}

void TestConversioni::cdblDiUnTestoNonNumericoSollevaErrore13() {
    QFETCH(QString, testo);
    try {
        CDbl(testo);
        QFAIL("nessun errore");
    } catch (const Errore& e) {
        QCOMPARE(e.numero(), 13L);
        QCOMPARE(e.sorgente(), QStringLiteral("Conversioni"));
        QCOMPARE(e.descrizione(), QStringLiteral("Tipo non corrispondente"));
    }
}

void TestConversioni::valLeggeIlNumeroInTestaConIlPuntoDecimale_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("numero");

    QTest::newRow("spazi in mezzo") << QStringLiteral(" 1 2 3") << 123.0;
    QTest::newRow("tab e a capo") << QStringLiteral("\t4\n2") << 42.0;
    QTest::newRow("virgola ferma") << QStringLiteral("1,5") << 1.0;
    QTest::newRow("punto decimale") << QStringLiteral("3.2") << 3.2;
    QTest::newRow("lettere in coda") << QStringLiteral("12abc") << 12.0;
    QTest::newRow("secondo punto ferma") << QStringLiteral("1.2.3") << 1.2;
    QTest::newRow("niente di numerico") << QStringLiteral("abc") << 0.0;
    QTest::newRow("vuoto") << QString() << 0.0;
    QTest::newRow("negativo") << QStringLiteral("-7") << -7.0;
    QTest::newRow("segno e spazio") << QStringLiteral("- 7") << -7.0;
    QTest::newRow("piu") << QStringLiteral("+7") << 7.0;
    QTest::newRow("due segni") << QStringLiteral("--7") << 0.0;
    QTest::newRow("punto davanti") << QStringLiteral(".5") << 0.5;
    QTest::newRow("esponente E") << QStringLiteral("1.5E3") << 1500.0;
    QTest::newRow("esponente D") << QStringLiteral("2d-2") << 0.02;
    QTest::newRow("esponente senza cifre") << QStringLiteral("4E") << 4.0;
    QTest::newRow("esadecimale") << QStringLiteral("&HFF") << 255.0;
    QTest::newRow("esadecimale intero corto") << QStringLiteral("&HFFFF") << -1.0;
    QTest::newRow("esadecimale lungo") << QStringLiteral("&HFFFF&") << 65535.0;
    QTest::newRow("ottale") << QStringLiteral("&O17") << 15.0;
    QTest::newRow("esadecimale con coda") << QStringLiteral("&H1Fz") << 31.0;
}

void TestConversioni::valLeggeIlNumeroInTestaConIlPuntoDecimale() {
    QFETCH(QString, testo);
    QFETCH(double, numero);
    QCOMPARE(Val(testo), numero);
}

void TestConversioni::numeroItalianoHaPuntoPerMigliaiaEVirgolaDecimale_data() {
    QTest::addColumn<double>("numero");
    QTest::addColumn<int>("decimali");
    QTest::addColumn<QString>("testo");

    QTest::newRow("milioni") << 1234567.891 << 2 << QStringLiteral("1.234.567,89");
    QTest::newRow("senza decimali") << 1234.0 << 0 << QStringLiteral("1.234");
    QTest::newRow("piccolo") << 0.5 << 1 << QStringLiteral("0,5");
    QTest::newRow("negativo") << -9876.5 << 2 << QStringLiteral("-9.876,50");
    QTest::newRow("centinaia") << 999.0 << 0 << QStringLiteral("999");
    QTest::newRow("negativo che arrotonda a zero") << -0.001 << 2 << QStringLiteral("0,00");
}

void TestConversioni::numeroItalianoHaPuntoPerMigliaiaEVirgolaDecimale() {
    QFETCH(double, numero);
    QFETCH(int, decimali);
    QFETCH(QString, testo);
    QCOMPARE(NumeroItaliano(numero, decimali), testo);
}

void TestConversioni::nullSeVuotoDiTestoVuotoENull() {
    QVERIFY(ENull(NullSeVuoto(QVariant(QStringLiteral("")))));
    QVERIFY(ENull(NullSeVuoto(QVariant(QString()))));
}

void TestConversioni::nullSeVuotoTieneIlTestoOIlNull_data() {
    QTest::addColumn<QVariant>("valore");
    QTest::addColumn<QString>("vuoto");
    QTest::addColumn<QVariant>("atteso");

    QTest::newRow("testo") << QVariant(QStringLiteral("abc")) << QString()
                           << QVariant(QStringLiteral("abc"));
    QTest::newRow("Null") << QVariant() << QString() << QVariant();
    QTest::newRow("nullptr") << QVariant::fromValue(nullptr) << QString() << QVariant();
    QTest::newRow("valore vuoto dato")
        << QVariant(QStringLiteral("-")) << QStringLiteral("-") << QVariant();
    QTest::newRow("vuoto con valore vuoto dato")
        << QVariant(QString()) << QStringLiteral("-") << QVariant(QString());
    QTest::newRow("numero come testo")
        << QVariant(12) << QString() << QVariant(QStringLiteral("12"));
}

void TestConversioni::nullSeVuotoTieneIlTestoOIlNull() {
    QFETCH(QVariant, valore);
    QFETCH(QString, vuoto);
    QFETCH(QVariant, atteso);
    const QVariant risultato = NullSeVuoto(valore, vuoto);
    QCOMPARE(ENull(risultato), ENull(atteso));
    if (!ENull(atteso)) {
        QCOMPARE(risultato.metaType(), QMetaType::fromType<QString>());
        QCOMPARE(risultato.toString(), atteso.toString());
    }
}

void TestConversioni::testoODefaultDaIlDefaultSoloAlTestoVuoto() {
    QCOMPARE(TestoODefault(QStringLiteral("abc"), QStringLiteral("x")), QStringLiteral("abc"));
    QCOMPARE(TestoODefault(QString(), QStringLiteral("x")), QStringLiteral("x"));
    QCOMPARE(TestoODefault(QString()), QString());
    QCOMPARE(TestoODefault(QStringLiteral(" "), QStringLiteral("x")), QStringLiteral(" "));
}

void TestConversioni::numeroONullLeggeIlNumeroInTestaONull_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QString>("vuoto");
    QTest::addColumn<QVariant>("atteso");

    QTest::newRow("vuoto") << QString() << QString() << QVariant();
    QTest::newRow("valore vuoto dato") << QStringLiteral("0") << QStringLiteral("0") << QVariant();
    QTest::newRow("punto decimale") << QStringLiteral("3.25") << QString() << QVariant(3.25);
    QTest::newRow("virgola ferma") << QStringLiteral("3,25") << QString() << QVariant(3.0);
    QTest::newRow("testo") << QStringLiteral("abc") << QString() << QVariant(0.0);
}

void TestConversioni::numeroONullLeggeIlNumeroInTestaONull() {
    QFETCH(QString, testo);
    QFETCH(QString, vuoto);
    QFETCH(QVariant, atteso);
    const QVariant risultato = NumeroONull(testo, vuoto);
    QCOMPARE(ENull(risultato), ENull(atteso));
    if (!ENull(atteso)) {
        QCOMPARE(risultato.metaType(), QMetaType::fromType<double>());
        QCOMPARE(risultato.toDouble(), atteso.toDouble());
    }
}

void TestConversioni::numeroOZeroDiTestoVuotoELInteroZero() {
    const QVariant zero = NumeroOZero(QString());
    QCOMPARE(zero.metaType(), QMetaType::fromType<int>());
    QCOMPARE(zero.toInt(), 0);

    const QVariant zeroDato = NumeroOZero(QStringLiteral("-"), QStringLiteral("-"));
    QCOMPARE(zeroDato.metaType(), QMetaType::fromType<int>());
    QCOMPARE(zeroDato.toInt(), 0);
}

void TestConversioni::numeroOZeroLeggeIlNumeroAllItaliana() {
    const QVariant numero = NumeroOZero(QStringLiteral("1.234,5"));
    QCOMPARE(numero.metaType(), QMetaType::fromType<double>());
    QCOMPARE(numero.toDouble(), 1234.5);
    QCOMPARE(NumeroOZero(QStringLiteral("0,5")).toDouble(), 0.5);
}

void TestConversioni::numeroOZeroDiTestoNonNumericoSollevaErrore13() {
    QVERIFY_THROWS_EXCEPTION(Errore, NumeroOZero(QStringLiteral("abc")));
    try {
        NumeroOZero(QStringLiteral("1,2,3"));
        QFAIL("nessun errore");
    } catch (const Errore& e) {
        QCOMPARE(e.numero(), ErroriPiattaforma::TipoNonCorrispondente);
    }
}

void TestConversioni::numeroValidoAccettaIlVuotoEINumeriItaliani_data() {
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("valido");

    QTest::newRow("vuoto") << QString() << true;
    QTest::newRow("numero italiano") << QStringLiteral("1.234,56") << true;
    QTest::newRow("spazi") << QStringLiteral(" ") << false;
    QTest::newRow("testo") << QStringLiteral("abc") << false;
    QTest::newRow("due virgole") << QStringLiteral("1,2,3") << false;
}

void TestConversioni::numeroValidoAccettaIlVuotoEINumeriItaliani() {
    QFETCH(QString, testo);
    QFETCH(bool, valido);
    QCOMPARE(NumeroValido(testo), valido);
}

void TestConversioni::cartellaDaPercorsoTieneFinoAllUltimoSeparatore_data() {
    QTest::addColumn<QString>("percorso");
    QTest::addColumn<QString>("cartella");

    QTest::newRow("barre inverse") << QStringLiteral("C:\\Archivio\\Export\\dati.xml")
                                   << QStringLiteral("C:\\Archivio\\Export\\");
    QTest::newRow("barre") << QStringLiteral("/home/archivio/dati.xml")
                           << QStringLiteral("/home/archivio/");
    QTest::newRow("barra dopo la barra inversa")
        << QStringLiteral("C:\\Archivio/dati.xml") << QStringLiteral("C:\\Archivio/");
    QTest::newRow("barra inversa dopo la barra")
        << QStringLiteral("/home\\dati.xml") << QStringLiteral("/home\\");
    QTest::newRow("cartella") << QStringLiteral("C:\\Archivio\\")
                              << QStringLiteral("C:\\Archivio\\");
    QTest::newRow("senza separatore") << QStringLiteral("dati.xml") << QString();
    QTest::newRow("vuoto") << QString() << QString();
}

void TestConversioni::cartellaDaPercorsoTieneFinoAllUltimoSeparatore() {
    QFETCH(QString, percorso);
    QFETCH(QString, cartella);
    QCOMPARE(CartellaDaPercorso(percorso), cartella);
}

void TestConversioni::codiceVoceSceltaDaIlDatoDellaVoceOVuoto() {
    const std::unique_ptr<QComboBox> cmb = nuovaCombo();
    cmb->setCurrentIndex(-1);
    QCOMPARE(CodiceVoceScelta(cmb.get()), QString());
    cmb->setCurrentIndex(0);
    QCOMPARE(CodiceVoceScelta(cmb.get()), QStringLiteral("1"));
    cmb->setCurrentIndex(1);
    QCOMPARE(CodiceVoceScelta(cmb.get()), QStringLiteral("12"));
    // An entry given no code counts as code 0.
    cmb->setCurrentIndex(3);
    QCOMPARE(CodiceVoceScelta(cmb.get()), QStringLiteral("0"));
    QCOMPARE(CodiceVoceScelta(nullptr), QString());
}

void TestConversioni::testoVoceSceltaEIlTestoDellaCombo() {
    const std::unique_ptr<QComboBox> cmb = nuovaCombo();
    cmb->setCurrentIndex(1);
    QCOMPARE(TestoVoceScelta(cmb.get()), QStringLiteral("Biblioteca"));
    cmb->setCurrentIndex(-1);
    QCOMPARE(TestoVoceScelta(cmb.get()), QString());
}

void TestConversioni::carattereVoceSceltaDaIlCarattereDelCodice() {
    const std::unique_ptr<QComboBox> cmb = nuovaCombo();
    cmb->setCurrentIndex(-1);
    QCOMPARE(CarattereVoceScelta(cmb.get()), QString());
    cmb->setCurrentIndex(2);
    QCOMPARE(CarattereVoceScelta(cmb.get()), QStringLiteral("A"));
    cmb->addItem(QStringLiteral("Euro"), 128);
    cmb->setCurrentIndex(cmb->count() - 1);
    QCOMPARE(CarattereVoceScelta(cmb.get()), QString(QChar(0x20AC)));
}

void TestConversioni::estremiPersonaConLaSolaDataDInizio() {
    QCOMPARE(EstremiPersona(QString(), QString(), QStringLiteral("1500"), QString()),
             QStringLiteral(", (1500)"));
}

void TestConversioni::estremiPersonaConLaSolaDataDiFine() {
    QCOMPARE(EstremiPersona(QString(), QString(), QString(), QStringLiteral("1560")),
             QStringLiteral(", ( - 1560)"));
}

void TestConversioni::estremiPersonaComponeLuoghiEDate_data() {
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QString>("c");
    QTest::addColumn<QString>("d");
    QTest::addColumn<QString>("estremi");

    QTest::newRow("tutto vuoto") << QString() << QString() << QString() << QString() << QString();
    QTest::newRow("tutto") << QStringLiteral("Roma") << QStringLiteral("Firenze")
                           << QStringLiteral("1500") << QStringLiteral("1560")
                           << QStringLiteral(", (Roma 1500 - Firenze 1560)");
    QTest::newRow("solo luoghi") << QStringLiteral("Roma") << QStringLiteral("Firenze") << QString()
                                 << QString() << QStringLiteral(", (Roma - Firenze)");
    QTest::newRow("solo luogo di nascita") << QStringLiteral("Roma") << QString() << QString()
                                           << QString() << QStringLiteral(", (Roma)");
    QTest::newRow("solo data di morte")
        << QString() << QString() << QString() << QStringLiteral("01/01/1900")
        << QStringLiteral(", ( - 01/01/1900)");
    QTest::newRow("luogo di morte senza data")
        << QStringLiteral("Roma") << QStringLiteral("Firenze") << QStringLiteral("1500")
        << QString() << QStringLiteral(", (Roma 1500 - Firenze)");
    QTest::newRow("solo date") << QString() << QString() << QStringLiteral("1500")
                               << QStringLiteral("1560") << QStringLiteral(", (1500 - 1560)");
    QTest::newRow("luogo con spazi")
        << QStringLiteral(" Roma ") << QString() << QStringLiteral("1500") << QString()
        << QStringLiteral(", (Roma 1500)");
}

void TestConversioni::estremiPersonaComponeLuoghiEDate() {
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(QString, c);
    QFETCH(QString, d);
    QFETCH(QString, estremi);
    QCOMPARE(EstremiPersona(a, b, c, d), estremi);
}

void TestConversioni::estremiEnteDiDateGiaTraParentesiTieneLeParentesiConUnoSpazio() {
    QCOMPARE(EstremiEnte(QStringLiteral("Firenze"), QStringLiteral("(1500-1600)")),
             QStringLiteral(", Firenze (1500-1600)"));
    QCOMPARE(EstremiEnte(QStringLiteral(" Firenze "), QStringLiteral("  (sec. XV) ")),
             QStringLiteral(", Firenze (sec. XV)"));
}

void TestConversioni::estremiEnteEFamigliaAggiungonoLeParentesiMancanti_data() {
    QTest::addColumn<QString>("luogo");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("estremi");

    QTest::newRow("senza parentesi") << QStringLiteral("Siena") << QStringLiteral("1500-1600")
                                     << QStringLiteral(", Siena (1500-1600)");
    QTest::newRow("solo aperta") << QStringLiteral("Siena") << QStringLiteral("(1500")
                                 << QStringLiteral(", Siena (1500)");
    QTest::newRow("solo chiusa") << QStringLiteral("Siena") << QStringLiteral("1500)")
                                 << QStringLiteral(", Siena (1500)");
    QTest::newRow("tra parentesi")
        << QStringLiteral("Siena") << QStringLiteral("(1500)") << QStringLiteral(", Siena (1500)");
    QTest::newRow("date vuote") << QStringLiteral("Siena") << QString()
                                << QStringLiteral(", Siena ()");
}

void TestConversioni::estremiEnteEFamigliaAggiungonoLeParentesiMancanti() {
    QFETCH(QString, luogo);
    QFETCH(QString, date);
    QFETCH(QString, estremi);
    QCOMPARE(EstremiEnte(luogo, date), estremi);
    QCOMPARE(EstremiFamiglia(luogo, date), estremi);
}

void TestConversioni::unaDataGiaNellaFormaDelServerSiRiconosceSenzaRileggerla() {
    for (const QString& sData :
         {QStringLiteral("2001-03-02 12:00:00"), QStringLiteral("2000-02-29 23:59:59"),
          QStringLiteral("1000-01-01 00:00:00")}) {
        QVERIFY2(DataSqlCanonica(sData), qPrintable(sData));
        QVERIFY(DataSqlCanonica(QByteArrayView(sData.toLatin1())));
        QCOMPARE(DataSql(sData), sData);
    }
    for (const QString& sData :
         {QStringLiteral("2001-02-29 12:00:00"), QStringLiteral("0999-01-01 00:00:00"),
          QStringLiteral("2001-03-02T12:00:00"), QStringLiteral("2001-03-02 24:00:00"),
          QStringLiteral("2001-03-02 12:60:00"), QStringLiteral("02/03/2001 12:00:00"),
          QStringLiteral("2001-03-02 12:00:00.5"), QStringLiteral("2001-3-2 12:00:00"),
          QString()}) {
        QVERIFY2(!DataSqlCanonica(sData), qPrintable(sData));
        QVERIFY(!DataSqlCanonica(QByteArrayView(sData.toLatin1())));
    }
}

QTEST_MAIN(TestConversioni)
#include "tst_conversioni.moc"
