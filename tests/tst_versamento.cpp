// The records of the register of new acquisitions: the act (ucVersamento) with its fields, its
// number of up to eighteen digits kept exactly, its dates written as dates, its denomination of
// date and number, its list of rows with the row buttons and the one delete inside an editor;
// and the row (ucRigaVersamento) with its fields, years and mandatory walk; on SQLite and on
// PostgreSQL, and the number through an export and an import of the table.

#include "exchange/Export.h"
#include "exchange/Import.h"
#include "records/ucRigaVersamento.h"
#include "records/ucVersamento.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"

#include "AmbienteLink.h"
#include "AmbienteRecord.h"
#include "DialogoSostituto.h"
#include "MessaggiAttesi.h"
#include "VersamentiProva.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

namespace {

const qlonglong Diciotto = 123456789012345678LL;
const qlonglong MassimoDiciotto = 999999999999999999LL;

// The records' environment for the act: its table and the list of the kinds of acquisition.
struct AmbienteAtto : AmbienteRecord {
    explicit AmbienteAtto(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("Versamenti"), {"TipoAcquisizione.txt"}) {}
};

// A versamento under a new institute, with its key of Versamenti.
struct Atto {
    long istituto = 0;
    long id = 0;
    long idVersamento = 0;
};

Atto CreaAtto(const AmbienteRecord& a, const QString& sNome = QStringLiteral("Versamento")) {
    const AmbienteRecord::ElementoInIstituto e = a.CreaInIstituto("04", sNome);
    return {e.istituto, e.id, static_cast<long>(IdVersamento(a.Cnn(), e.id))};
}

// A row of the act, written behind the editor's back; its key.
long CreaRiga(const AmbienteRecord& a, long idVersamento, const QString& sNome) {
    return static_cast<long>(NuovaRigaVersamento(a.Cnn(), idVersamento, sNome));
}

int RigheDi(const AmbienteRecord& a, long idVersamento) {
    return a
        .Valore(QStringLiteral("SELECT COUNT(*) FROM RigheVersamento WHERE ID_Versamento = ?"),
                {qlonglong(idVersamento)})
        .toInt();
}

// The texts of the list of rows, and the text of the selected one ("" none).
QStringList Elenco(const ucVersamento& e) {
    return Testi(e.lvwDB);
}

QString Scelta(const ucVersamento& e) {
    const QList<QTreeWidgetItem*> scelte = e.lvwDB->selectedItems();
    return scelte.isEmpty() ? QString() : scelte.first()->text(0);
}

// The row buttons' enabled state, "Nuova Modifica Cancella" as 0/1.
QString PulsantiRighe(const ucVersamento& e) {
    return Accesi({e.cmdNuovaRiga, e.cmdModificaRiga, e.cmdCancellaRiga});
}

// The mandatory fields of the act filled in.
void CompilaAtto(ucVersamento& e, const QString& sNumero) {
    e.cmbTipoAcquisizione->setCurrentIndex(0);
    Riga(&e, 1)->setText(sNumero);
    Riga(&e, 2)->setText(QStringLiteral("Comune di Pescia"));
}

// The name of the box n of a record.
QString NomeCampo(int n) {
    return QStringLiteral("Text1(%1)").arg(n);
}

// The session values the row's dialog reads, as it found them.
struct AperturaRiga {
    long lIdVersamento = -1;
    long lIdRigaVersamento = -1;
};

// The mandatory fields of a row filled in.
void CompilaRiga(ucRigaVersamento& e) {
    Riga(&e, 0)->setText(QStringLiteral("Catasto terreni"));
    Riga(&e, 1)->setText(QStringLiteral("600"));
    Riga(&e, 6)->setText(QStringLiteral("1936 - 1960"));
    Riga(&e, 4)->setText(QStringLiteral("1936"));
    Riga(&e, 5)->setText(QStringLiteral("1960"));
}

} // namespace

class TestVersamento : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ilVersamentoHaLeSueEtichetteISuoiLimitiEISuoiTag();
    void ilVersamentoScrittoTornaComeEraConLeDateComeDate_data() { AggiungiBackend(); }
    void ilVersamentoScrittoTornaComeEraConLeDateComeDate();
    void unaDataMancanteMostraOggi_data() { AggiungiBackend(); }
    void unaDataMancanteMostraOggi();
    void unNumeroDiDiciottoCifreTornaEsattoSenzaDecimaliNeEsponente_data() { AggiungiBackend(); }
    void unNumeroDiDiciottoCifreTornaEsattoSenzaDecimaliNeEsponente();
    void unNumeroDiDiciannoveCifreNonEntraNellaCasella_data() { AggiungiBackend(); }
    void unNumeroDiDiciannoveCifreNonEntraNellaCasella();
    void unNumeroVuotoRifiutaIlSalvataggioEUnoConLettereSiSalvaComeIlNumeroInTesta_data() {
        AggiungiBackend();
    }
    void unNumeroVuotoRifiutaIlSalvataggioEUnoConLettereSiSalvaComeIlNumeroInTesta();
    void iCampiObbligatoriDelVersamentoSiControllanoInOrdine();
    void unaDataImpossibileNonEntraNelCalendario_data() { AggiungiBackend(); }
    void unaDataImpossibileNonEntraNelCalendario();
    void laDenominazioneEDataTrattinoENumero();
    void unAttoConUnaRigaNonSiCancellaEDopoLUltimaRigaCancellataSi_data() { AggiungiBackend(); }
    void unAttoConUnaRigaNonSiCancellaEDopoLUltimaRigaCancellataSi();
    void unaRigaSiCancellaSoloDopoIlSi_data() { AggiungiBackend(); }
    void unaRigaSiCancellaSoloDopoIlSi();
    void unaRigaCheNonENellElencoNonLasciaNullaSceltoEModificaAgisceSullaRigaTenuta_data() {
        AggiungiBackend();
    }
    void unaRigaCheNonENellElencoNonLasciaNullaSceltoEModificaAgisceSullaRigaTenuta();
    void laNuovaRigaApreIlDialogoSullAttoEPoiESceltaNellElenco_data() { AggiungiBackend(); }
    void laNuovaRigaApreIlDialogoSullAttoEPoiESceltaNellElenco();
    void iPulsantiDelleRigheFunzionanoSoloConLAttoBloccato_data() { AggiungiBackend(); }
    void iPulsantiDelleRigheFunzionanoSoloConLAttoBloccato();
    void ilTastoTabSegueIlModuloELeEtichetteIndicanoIlLoroCampo();
    void laRigaHaLeSueEtichetteISuoiLimitiEISuoiTag();
    void laRigaScrittaTornaComeEraConGliAnniEIlComplesso_data() { AggiungiBackend(); }
    void laRigaScrittaTornaComeEraConGliAnniEIlComplesso();
    void iCampiObbligatoriDellaRigaSiControllanoInOrdine();
    void numeriEAnniDellaRigaSbagliatiSonoRifiutatiAllUscita();
    void unaConsistenzaNonNumericaNonScriveNullaDellaRiga_data() { AggiungiBackend(); }
    void unaConsistenzaNonNumericaNonScriveNullaDellaRiga();
    void unNumeroDiDiciottoCifreAttraversaEsportazioneEImportazione_data() { AggiungiBackend(); }
    void unNumeroDiDiciottoCifreAttraversaEsportazioneEImportazione();
    void lAggiornamentoRendeInteroIlNumeroDiUnDatabaseDiPrima_data() { AggiungiBackend(); }
    void lAggiornamentoRendeInteroIlNumeroDiUnDatabaseDiPrima();
};

void TestVersamento::ilVersamentoHaLeSueEtichetteISuoiLimitiEISuoiTag() {
    AmbienteAtto a(TipoBackend::SQLite);
    EditorePronto<ucVersamento> e;
    QCOMPARE(Etichetta(&e, 1)->text(), QStringLiteral("Numero"));
    QCOMPARE(Etichetta(&e, 2)->text(), QStringLiteral("Soggetto versante"));
    QCOMPARE(Etichetta(&e, 5)->text(), QStringLiteral("Note"));
    QCOMPARE(Etichetta(&e, 6)->text(), QStringLiteral("Note gestionali"));
    QCOMPARE(Riga(&e, 1)->maxLength(), 18);
    QCOMPARE(Riga(&e, 2)->maxLength(), 256);
    QCOMPARE(Blocco(&e, 5)->property("MaxLength").toInt(), 1024);
    QCOMPARE(Blocco(&e, 6)->property("MaxLength").toInt(), 1024);
    QCOMPARE(e.cmbTipoAcquisizione->property("Tag").toString(),
             QStringLiteral(" Inserire il tipo di acquisizione"));
    QCOMPARE(Riga(&e, 1)->property("Tag").toString(), QStringLiteral("Inserire il numero"));
    QCOMPARE(Riga(&e, 2)->property("Tag").toString(),
             QStringLiteral("Inserire il soggetto versante"));
    QCOMPARE(e.DTPData->property("Tag").toString(),
             QStringLiteral("Inserire la data di registrazione"));
    QCOMPARE(e.DTPDataAcq->property("Tag").toString(),
             QStringLiteral(" Inserire la data di acquisizione"));
    // The list of rows: one column, its header with forty blanks behind it.
    QCOMPARE(e.lvwDB->columnCount(), 1);
    QCOMPARE(e.lvwDB->headerItem()->text(0),
             QStringLiteral("Righe di acquisizione                                         "));
    QVERIFY(e.lvwDB->header()->stretchLastSection());
    // The kinds of acquisition from their lookup list, found by their code.
    QCOMPARE(e.cmbTipoAcquisizione->count(), 9);
    QCOMPARE(e.CercaTipoAcquisizione(QStringLiteral("03")), QStringLiteral("Donazione"));
    QCOMPARE(e.CercaTipoAcquisizione(QStringLiteral("42")), QString());
    // Nothing in hand: a new act may be made, nothing else.
    QVERIFY(e.OkNuovoVersamento);
    QVERIFY(!e.OkModifica && !e.OkCancella);
    QCOMPARE(PulsantiRighe(e), QStringLiteral("000"));
}

void TestVersamento::ilVersamentoScrittoTornaComeEraConLeDateComeDate() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    EditorePronto<ucVersamento> e(atto.id);
    QCOMPARE(e.LeggiID(), atto.idVersamento);
    QCOMPARE(e.ID_Istituto, static_cast<long>(a.IdIstituto(atto.istituto)));
    QVERIFY(!e.OkNuovoVersamento);
    QVERIFY(e.OkModifica);
    QVERIFY(e.OkCancella);

    e.Modifica();
    e.DTPData->setDate(QDate(2024, 3, 15));
    e.DTPDataAcq->setDate(QDate(2024, 3, 12));
    Riga(&e, 1)->setText(QStringLiteral("12"));
    Riga(&e, 2)->setText(QStringLiteral("Agenzia delle Entrate"));
    e.cmbTipoAcquisizione->setCurrentIndex(2);
    Blocco(&e, 5)->setPlainText(QStringLiteral("Con elenco di consistenza"));
    Blocco(&e, 6)->setPlainText(QString());
    e.Salva(atto.id);

    // The dates are dates in the database, at the start of their day.
    QCOMPARE(a.Colonna(QStringLiteral("Data"), atto.id).toDateTime(),
             QDateTime(QDate(2024, 3, 15), QTime(0, 0)));
    QCOMPARE(a.Colonna(QStringLiteral("DataAcquisizione"), atto.id).toDateTime(),
             QDateTime(QDate(2024, 3, 12), QTime(0, 0)));
    QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM Versamenti WHERE ID_Elemento = ? AND "
                                     "Data = ? AND DataAcquisizione < Data"),
                      {qlonglong(atto.id), QDateTime(QDate(2024, 3, 15), QTime(0, 0))})
                 .toInt(),
             1);
    QCOMPARE(a.Colonna(QStringLiteral("NumeroRPC"), atto.id).toLongLong(), 12LL);
    QCOMPARE(a.Colonna(QStringLiteral("SogVersatore"), atto.id).toString(),
             QStringLiteral("Agenzia delle Entrate"));
    QCOMPARE(a.Colonna(QStringLiteral("TipoAcquisizione"), atto.id).toString(),
             QStringLiteral("03"));
    QCOMPARE(a.Colonna(QStringLiteral("Note"), atto.id).toString(),
             QStringLiteral("Con elenco di consistenza"));
    // An empty box is stored as Null.
    QVERIFY(a.Nullo(QStringLiteral("NoteDirezione"), atto.id));
    // Salva leaves the act shown and locked.
    QVERIFY(!Riga(&e, 1)->isEnabled());
    QVERIFY(e.OkModifica);

    EditorePronto<ucVersamento> altro(atto.id);
    QCOMPARE(altro.DTPData->date(), QDate(2024, 3, 15));
    QCOMPARE(altro.DTPDataAcq->date(), QDate(2024, 3, 12));
    QCOMPARE(Riga(&altro, 1)->text(), QStringLiteral("12"));
    QCOMPARE(Riga(&altro, 2)->text(), QStringLiteral("Agenzia delle Entrate"));
    QCOMPARE(altro.cmbTipoAcquisizione->currentText(), QStringLiteral("Donazione"));
    QCOMPARE(Blocco(&altro, 5)->toPlainText(), QStringLiteral("Con elenco di consistenza"));
    QCOMPARE(Blocco(&altro, 6)->toPlainText(), QString());
}

void TestVersamento::unaDataMancanteMostraOggi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    a.Scrivi(QStringLiteral("Data = ?, DataAcquisizione = ?"),
             {QVariant(QMetaType::fromType<QDateTime>()),
              QVariant(QMetaType::fromType<QDateTime>()), qlonglong(atto.id)});
    EditorePronto<ucVersamento> e(atto.id);
    QCOMPARE(e.DTPData->date(), QDate::currentDate());
    QCOMPARE(e.DTPDataAcq->date(), QDate::currentDate());
    QCOMPARE(e.LeggiDenominazione(),
             QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy")) + QStringLiteral(" - "));
}

void TestVersamento::unNumeroDiDiciottoCifreTornaEsattoSenzaDecimaliNeEsponente() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    for (const qlonglong numero : {Diciotto, MassimoDiciotto}) {
        const Atto atto = CreaAtto(a, QString::number(numero));
        EditorePronto<ucVersamento> e(atto.id);
        e.Modifica();
        CompilaAtto(e, QString::number(numero));
        e.Salva(atto.id);
        // Held as a whole number, to its last digit.
        QCOMPARE(a.Colonna(QStringLiteral("NumeroRPC"), atto.id).toLongLong(), numero);
        QCOMPARE(a.Valore(QStringLiteral("SELECT CAST(NumeroRPC AS VARCHAR(30)) FROM Versamenti "
                                         "WHERE ID_Elemento = ?"),
                          {qlonglong(atto.id)})
                     .toString(),
                 QString::number(numero));
        QCOMPARE(a.Valore(QStringLiteral("SELECT COUNT(*) FROM Versamenti WHERE NumeroRPC = ?"),
                          {numero})
                     .toInt(),
                 1);
        EditorePronto<ucVersamento> altro(atto.id);
        QCOMPARE(Riga(&altro, 1)->text(), QString::number(numero));
        QVERIFY(
            altro.LeggiDenominazione().endsWith(QStringLiteral(" - ") + QString::number(numero)));
    }
}

void TestVersamento::unNumeroDiDiciannoveCifreNonEntraNellaCasella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    EditorePronto<ucVersamento> e(atto.id);
    e.Modifica();
    CompilaAtto(e, QString());
    QTest::keyClicks(Riga(&e, 1), QStringLiteral("1234567890123456789"));
    QCOMPARE(Riga(&e, 1)->text(), QStringLiteral("123456789012345678"));
    Riga(&e, 1)->setText(QStringLiteral("9999999999999999999"));
    QCOMPARE(Riga(&e, 1)->text(), QStringLiteral("999999999999999999"));
    e.Salva(atto.id);
    QCOMPARE(a.Colonna(QStringLiteral("NumeroRPC"), atto.id).toLongLong(), MassimoDiciotto);
}

void TestVersamento::unNumeroVuotoRifiutaIlSalvataggioEUnoConLettereSiSalvaComeIlNumeroInTesta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    EditorePronto<ucVersamento> e(atto.id);
    e.Modifica();
    CompilaAtto(e, QStringLiteral("   "));
    QVERIFY(!e.CheckMandatoryFields());
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi()[0].sTesto, QStringLiteral("Inserire il numero"));
    QCOMPARE(a.seam.Messaggi()[0].sTitolo, QStringLiteral("Attenzione"));
    QVERIFY(a.Nullo(QStringLiteral("NumeroRPC"), atto.id));

    const QList<std::pair<QString, qlonglong>> casi = {
        {QStringLiteral("12bis"), 12}, {QStringLiteral(" 7/2024"), 7}, {QStringLiteral("bis"), 0}};
    for (const auto& [sTesto, numero] : casi) {
        e.Modifica();
        Riga(&e, 1)->setText(sTesto);
        QVERIFY(e.CheckMandatoryFields());
        e.Salva(atto.id);
        QCOMPARE(a.Colonna(QStringLiteral("NumeroRPC"), atto.id).toLongLong(), numero);
    }
}

void TestVersamento::iCampiObbligatoriDelVersamentoSiControllanoInOrdine() {
    AmbienteAtto a(TipoBackend::SQLite);
    EditorePronto<ucVersamento> e;
    e.Nuovo();
    // A new act takes the first kind of acquisition and today's dates.
    QCOMPARE(e.cmbTipoAcquisizione->currentIndex(), 0);
    QCOMPARE(e.DTPData->date(), QDate::currentDate());
    QCOMPARE(e.DTPDataAcq->date(), QDate::currentDate());
    e.cmbTipoAcquisizione->setCurrentIndex(-1);
    QVERIFY(!e.CheckMandatoryFields());
    e.cmbTipoAcquisizione->setCurrentIndex(1);
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 1)->setText(QStringLiteral("5"));
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 2)->setText(QStringLiteral("Comune di Pescia"));
    // The date pickers' Tags stop nothing.
    QVERIFY(e.CheckMandatoryFields());
    QCOMPARE(TestiDeiMessaggi(a.seam),
             QStringList({QStringLiteral(" Inserire il tipo di acquisizione"),
                          QStringLiteral("Inserire il numero"),
                          QStringLiteral("Inserire il soggetto versante")}));
}

void TestVersamento::unaDataImpossibileNonEntraNelCalendario() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    EditorePronto<ucVersamento> e(atto.id);
    e.Modifica();
    CompilaAtto(e, QStringLiteral("3"));
    e.DTPData->setDate(QDate(2023, 2, 28));
    e.DTPData->setDate(QDate(2023, 2, 31));
    QCOMPARE(e.DTPData->date(), QDate(2023, 2, 28));
    e.Salva(atto.id);
    QCOMPARE(a.Colonna(QStringLiteral("Data"), atto.id).toDateTime(),
             QDateTime(QDate(2023, 2, 28), QTime(0, 0)));
}

void TestVersamento::laDenominazioneEDataTrattinoENumero() {
    AmbienteAtto a(TipoBackend::SQLite);
    EditorePronto<ucVersamento> e;
    e.Nuovo();
    e.DTPData->setDate(QDate(2024, 3, 5));
    e.DTPDataAcq->setDate(QDate(2020, 1, 1));
    Riga(&e, 1)->setText(QStringLiteral("12"));
    QCOMPARE(e.LeggiDenominazione(), QStringLiteral("05/03/2024 - 12"));
}

void TestVersamento::unAttoConUnaRigaNonSiCancellaEDopoLUltimaRigaCancellataSi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    CreaRiga(a, atto.idVersamento, QStringLiteral("Mappe"));
    EditorePronto<ucVersamento> e(atto.id);
    QCOMPARE(Elenco(e), QStringList{QStringLiteral("Mappe")});
    QVERIFY(!e.OkCancella);
    QVERIFY(e.OkNuovaRiga && e.OkModificaRiga && e.OkCancellaRiga);

    QSignalSpy stato(&e, &EditoreRecord::EventoStato);
    e.lvwDB->setCurrentItem(e.lvwDB->topLevelItem(0));
    a.seam.risposte = {Risposta::Si};
    e.cmdCancellaRiga->click();
    UnaDomanda(a.seam, QStringLiteral("Cancella Riga: Mappe"),
               QStringLiteral("Sei sicuro di voler cancellare questa riga?"));
    QCOMPARE(RigheDi(a, atto.idVersamento), 0);
    QVERIFY(Elenco(e).isEmpty());
    // The act may be deleted now, and its host is told.
    QVERIFY(e.OkCancella);
    QCOMPARE(stato.count(), 1);
    QCOMPARE(PulsantiRighe(e), QStringLiteral("100"));
}

void TestVersamento::unaRigaSiCancellaSoloDopoIlSi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    CreaRiga(a, atto.idVersamento, QStringLiteral("Mappe"));
    const long registri = CreaRiga(a, atto.idVersamento, QStringLiteral("Registri"));
    EditorePronto<ucVersamento> e(atto.id);
    // Nothing selected: the delete asks nothing.
    e.cmdCancellaRiga->click();
    QVERIFY(a.seam.Messaggi().isEmpty());
    e.CaricaRighe(registri);
    QCOMPARE(Scelta(e), QStringLiteral("Registri"));
    a.seam.risposte = {Risposta::No};
    e.cmdCancellaRiga->click();
    QCOMPARE(a.seam.Messaggi().size(), 1);
    QCOMPARE(a.seam.Messaggi()[0].sTitolo, QStringLiteral("Cancella Riga: Registri"));
    QCOMPARE(RigheDi(a, atto.idVersamento), 2);
    QCOMPARE(Elenco(e), QStringList({QStringLiteral("Mappe"), QStringLiteral("Registri")}));
    a.seam.risposte = {Risposta::Si};
    e.cmdCancellaRiga->click();
    QCOMPARE(Elenco(e), QStringList{QStringLiteral("Mappe")});
    QVERIFY(!e.OkCancella);
}

void TestVersamento::unaRigaCheNonENellElencoNonLasciaNullaSceltoEModificaAgisceSullaRigaTenuta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    CreaRiga(a, atto.idVersamento, QStringLiteral("Mappe"));
    const long registri = CreaRiga(a, atto.idVersamento, QStringLiteral("Registri"));
    EditorePronto<ucVersamento> e(atto.id);
    e.CaricaRighe(registri);
    QCOMPARE(Scelta(e), QStringLiteral("Registri"));
    e.CaricaRighe(registri + 1000);
    QCOMPARE(Scelta(e), QString());
    e.RefreshRigheStatus();
    QVERIFY(e.cmdModificaRiga->isEnabled());

    QList<AperturaRiga> aperture;
    const DialogoSostituto dialogo(
        QStringLiteral("frmNuovoVersamento"), [&aperture](QDialog&, const Dialoghi::Argomenti&) {
            aperture.append({Sessione::lIdVersamento, Sessione::lIdRigaVersamento});
        });
    e.cmdModificaRiga->click();
    QCOMPARE(aperture.size(), 1);
    QCOMPARE(aperture[0].lIdVersamento, atto.idVersamento);
    QCOMPARE(aperture[0].lIdRigaVersamento, registri);
    // Back from the dialog the list is loaded again with that row chosen.
    QCOMPARE(Scelta(e), QStringLiteral("Registri"));
}

void TestVersamento::laNuovaRigaApreIlDialogoSullAttoEPoiESceltaNellElenco() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto atto = CreaAtto(a);
    CreaRiga(a, atto.idVersamento, QStringLiteral("Mappe"));
    EditorePronto<ucVersamento> e(atto.id);
    QSignalSpy stato(&e, &EditoreRecord::EventoStato);
    QList<AperturaRiga> aperture;
    long nuova = 0;
    const DialogoSostituto dialogo(
        QStringLiteral("frmNuovoVersamento"), [&](QDialog& finestra, const Dialoghi::Argomenti&) {
            aperture.append({Sessione::lIdVersamento, Sessione::lIdRigaVersamento});
            QVERIFY(finestra.isModal());
            nuova = CreaRiga(a, Sessione::lIdVersamento, QStringLiteral("Registri"));
            Sessione::lIdRigaVersamento = nuova;
        });
    e.cmdNuovaRiga->click();
    QCOMPARE(aperture.size(), 1);
    QCOMPARE(aperture[0].lIdVersamento, atto.idVersamento);
    QCOMPARE(aperture[0].lIdRigaVersamento, 0L);
    QCOMPARE(Elenco(e), QStringList({QStringLiteral("Mappe"), QStringLiteral("Registri")}));
    QCOMPARE(Scelta(e), QStringLiteral("Registri"));
    QCOMPARE(PulsantiRighe(e), QStringLiteral("111"));
    QCOMPARE(stato.count(), 1);
}

void TestVersamento::iPulsantiDelleRigheFunzionanoSoloConLAttoBloccato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    const Atto vuoto = CreaAtto(a, QStringLiteral("Vuoto"));
    const Atto atto = CreaAtto(a);
    CreaRiga(a, atto.idVersamento, QStringLiteral("Mappe"));
    EditorePronto<ucVersamento> e(vuoto.id);
    QCOMPARE(PulsantiRighe(e), QStringLiteral("100"));
    e.Mostra(atto.id);
    QCOMPARE(PulsantiRighe(e), QStringLiteral("111"));
    QVERIFY(e.lvwDB->isEnabled());
    e.Modifica();
    QCOMPARE(PulsantiRighe(e), QStringLiteral("000"));
    QVERIFY(!e.lvwDB->isEnabled());
    e.Annulla();
    QCOMPARE(PulsantiRighe(e), QStringLiteral("111"));
    QVERIFY(e.lvwDB->isEnabled());
    e.Modifica();
    CompilaAtto(e, QStringLiteral("4"));
    e.Salva(atto.id);
    QCOMPARE(PulsantiRighe(e), QStringLiteral("111"));
    QCOMPARE(Elenco(e), QStringList{QStringLiteral("Mappe")});
    e.Nuovo();
    QCOMPARE(PulsantiRighe(e), QStringLiteral("000"));
    QVERIFY(!e.lvwDB->isEnabled());
    QVERIFY(Elenco(e).isEmpty());
}

void TestVersamento::ilTastoTabSegueIlModuloELeEtichetteIndicanoIlLoroCampo() {
    AmbienteAtto a(TipoBackend::SQLite);
    EditorePronto<ucVersamento> atto;
    const QStringList campiAtto = {
        "DTPData",  "Text1(1)", "Text1(2)",     "cmbTipoAcquisizione", "DTPDataAcq",     "Text1(5)",
        "Text1(6)", "lvwDB",    "cmdNuovaRiga", "cmdModificaRiga",     "cmdCancellaRiga"};
    QCOMPARE(OrdineDelFuoco(atto.DTPData, campiAtto), campiAtto);
    for (const int n : {1, 2, 5, 6})
        QCOMPARE(Etichetta(&atto, n)->buddy(), atto.findChild<QWidget*>(NomeCampo(n)));

    EditorePronto<ucRigaVersamento> riga;
    const QList<int> ordineRiga = {0, 1, 2, 3, 6, 4, 5, 7};
    QStringList campiRiga;
    for (const int n : ordineRiga)
        campiRiga << NomeCampo(n);
    QCOMPARE(OrdineDelFuoco(Riga(&riga, 0), campiRiga), campiRiga);
    for (const int n : ordineRiga)
        QCOMPARE(Etichetta(&riga, n)->buddy(), riga.findChild<QWidget*>(NomeCampo(n)));
}

void TestVersamento::laRigaHaLeSueEtichetteISuoiLimitiEISuoiTag() {
    AmbienteRecord a(TipoBackend::SQLite, QStringLiteral("RigheVersamento"), {});
    EditorePronto<ucRigaVersamento> e;
    const QList<std::pair<int, QString>> etichette = {
        {0, QStringLiteral("Denominazione complesso documentario")},
        {1, QStringLiteral("Consistenza")},
        {2, QStringLiteral("Metri lineari")},
        {3, QStringLiteral("Specifiche consistenza")},
        {4, QStringLiteral("Anno inizio")},
        {5, QStringLiteral("Anno fine")},
        {6, QStringLiteral("Estremi cronologici (testo)")},
        {7, QStringLiteral("Note storico-archivistiche")}};
    for (const auto& [n, sTesto] : etichette)
        QCOMPARE(Etichetta(&e, n)->text(), sTesto);
    QCOMPARE(Riga(&e, 0)->maxLength(), 256);
    QCOMPARE(Riga(&e, 6)->maxLength(), 64);
    QCOMPARE(Riga(&e, 3)->maxLength(), 64);
    QCOMPARE(Riga(&e, 4)->maxLength(), 4);
    QCOMPARE(Riga(&e, 5)->maxLength(), 4);
    QCOMPARE(Blocco(&e, 7)->property("MaxLength").toInt(), 1024);
    QVERIFY(e.OkNuovo);
    QVERIFY(!e.OkModifica && !e.OkCancella);
    QCOMPARE(e.ID_ComplessoDoc, 0L);
}

void TestVersamento::laRigaScrittaTornaComeEraConGliAnniEIlComplesso() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRecord a(backend, QStringLiteral("RigheVersamento"), {"TipoAcquisizione.txt"});
    const Atto atto = CreaAtto(a);
    const long complesso = a.Crea("02", QStringLiteral("Catasto"), atto.istituto);
    const long idComplesso = static_cast<long>(
        a.ColonnaDi(QStringLiteral("ComplessiDoc"), QStringLiteral("ID_ComplessoDoc"), complesso)
            .toLongLong());
    const long riga = CreaRiga(a, atto.idVersamento, QStringLiteral(""));
    EditorePronto<ucRigaVersamento> e;
    e.Mostra(riga);
    QVERIFY(e.OkModifica && e.OkCancella && e.OkNuovo);
    QCOMPARE(e.ID_ComplessoDoc, 0L);
    e.Modifica();
    CompilaRiga(e);
    Riga(&e, 2)->setText(QStringLiteral("30,5"));
    Riga(&e, 4)->setText(QStringLiteral("936"));
    Riga(&e, 3)->setText(QStringLiteral("fogli di mappa"));
    Blocco(&e, 7)->setPlainText(QString());
    e.ID_ComplessoDoc = idComplesso;
    e.Salva(riga);
    QVERIFY(!Riga(&e, 0)->isEnabled());

    QSqlQuery r = a.Cnn().Esegui(
        QStringLiteral("SELECT Denominazione, Quantita, MetriLineari, Classificazione, "
                       "DescrizioneEstremi, DataInizio, DataFine, Note, ID_ComplessoDoc "
                       "FROM RigheVersamento WHERE ID_RigaVersamento = ?"),
        {qlonglong(riga)});
    QVERIFY(r.next());
    QCOMPARE(r.value(0).toString(), QStringLiteral("Catasto terreni"));
    QCOMPARE(r.value(1).toDouble(), 600.0);
    QCOMPARE(r.value(2).toDouble(), 30.5);
    QCOMPARE(r.value(3).toString(), QStringLiteral("fogli di mappa"));
    QCOMPARE(r.value(4).toString(), QStringLiteral("1936 - 1960"));
    QCOMPARE(r.value(5).toLongLong(), 9360101LL);
    QCOMPARE(r.value(6).toLongLong(), 19601231LL);
    QVERIFY(r.value(7).isNull());
    QCOMPARE(r.value(8).toLongLong(), qlonglong(idComplesso));

    EditorePronto<ucRigaVersamento> altro;
    altro.Mostra(riga);
    QCOMPARE(Riga(&altro, 0)->text(), QStringLiteral("Catasto terreni"));
    QCOMPARE(Riga(&altro, 1)->text(), QStringLiteral("600"));
    QCOMPARE(Riga(&altro, 2)->text(), QStringLiteral("30,5"));
    QCOMPARE(Riga(&altro, 4)->text(), QStringLiteral("936"));
    QCOMPARE(Riga(&altro, 5)->text(), QStringLiteral("1960"));
    QCOMPARE(altro.LeggiDenominazione(), QStringLiteral("Catasto terreni"));
    QCOMPARE(altro.ID_ComplessoDoc, idComplesso);

    // A row that is not there: nothing shown, nothing allowed but a new one.
    altro.Mostra(riga + 1000);
    QCOMPARE(Riga(&altro, 0)->text(), QString());
    QVERIFY(!altro.OkModifica && !altro.OkCancella && altro.OkNuovo);
}

void TestVersamento::iCampiObbligatoriDellaRigaSiControllanoInOrdine() {
    AmbienteRecord a(TipoBackend::SQLite, QStringLiteral("RigheVersamento"), {});
    EditorePronto<ucRigaVersamento> e;
    e.Nuovo();
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 5)->setText(QStringLiteral("1960"));
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 4)->setText(QStringLiteral("1936"));
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 6)->setText(QStringLiteral("1936 - 1960"));
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 1)->setText(QStringLiteral("3"));
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 0)->setText(EditoreRecord::InserireValore);
    QVERIFY(!e.CheckMandatoryFields());
    Riga(&e, 0)->setText(QStringLiteral("Mappe"));
    QVERIFY(e.CheckMandatoryFields());
    QCOMPARE(
        TestiDeiMessaggi(a.seam),
        QStringList({QStringLiteral("Inserire anno fine"), QStringLiteral("Inserire anno inizio"),
                     QStringLiteral("Inserire gli estremi cronologici (testo)"),
                     QStringLiteral("Inserire la consistenza"),
                     QStringLiteral("Inserire denominazione complesso"),
                     QStringLiteral("Inserire denominazione complesso")}));
}

void TestVersamento::numeriEAnniDellaRigaSbagliatiSonoRifiutatiAllUscita() {
    AmbienteRecord a(TipoBackend::SQLite, QStringLiteral("RigheVersamento"), {});
    EditorePronto<ucRigaVersamento> e;
    e.Nuovo();
    QVERIFY(Attiva(e));
    QLineEdit* nome = Riga(&e, 0);
    int iAttesi = 0;
    for (int n : {1, 2}) {
        for (const char* errato : {"molti", "3 metri", "x"}) {
            RifiutatoAllUscita(a.seam, Riga(&e, n), QLatin1String(errato), nome,
                               QStringLiteral("Numero errato"), iAttesi);
            QCOMPARE(a.seam.Messaggi().constLast().icona, Icona::Informazione);
        }
        for (const char* giusto : {"600", "30,5", ""})
            AccettatoAllUscita(a.seam, Riga(&e, n), QLatin1String(giusto), nome, iAttesi);
    }
    for (int n : {4, 5}) {
        for (const char* errato : {"19a", "12", "x"})
            RifiutatoAllUscita(a.seam, Riga(&e, n), QLatin1String(errato), nome,
                               QStringLiteral("Anno errato"), iAttesi);
        for (const char* giusto : {"936", "1960", ""})
            AccettatoAllUscita(a.seam, Riga(&e, n), QLatin1String(giusto), nome, iAttesi);
    }
}

void TestVersamento::unaConsistenzaNonNumericaNonScriveNullaDellaRiga() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRecord a(backend, QStringLiteral("RigheVersamento"), {"TipoAcquisizione.txt"});
    const Atto atto = CreaAtto(a);
    const long riga = CreaRiga(a, atto.idVersamento, QStringLiteral("Prima"));
    EditorePronto<ucRigaVersamento> e;
    e.Mostra(riga);
    e.Modifica();
    CompilaRiga(e);
    for (const auto& [n, sTesto] : QList<std::pair<int, QString>>{{1, QStringLiteral("molti")},
                                                                  {2, QStringLiteral("3 metri")},
                                                                  {4, QStringLiteral("19x6")}}) {
        CompilaRiga(e);
        Riga(&e, 2)->clear();
        Riga(&e, n)->setText(sTesto);
        bool bErrore = false;
        try {
            e.Salva(riga);
        } catch (const Errore& errore) {
            bErrore = true;
            QCOMPARE(errore.numero(), ErroriPiattaforma::TipoNonCorrispondente);
        }
        QVERIFY2(bErrore, qPrintable(sTesto));
        QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM RigheVersamento "
                                         "WHERE ID_RigaVersamento = ?"),
                          {qlonglong(riga)})
                     .toString(),
                 QStringLiteral("Prima"));
        QVERIFY(a.Valore(QStringLiteral("SELECT DataInizio FROM RigheVersamento "
                                        "WHERE ID_RigaVersamento = ?"),
                         {qlonglong(riga)})
                    .isNull());
    }
}

void TestVersamento::unNumeroDiDiciottoCifreAttraversaEsportazioneEImportazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    const QString sSchemi = QStringLiteral(TABELLION_SORGENTI "/site/Schemi");
    QTemporaryDir scambio;
    QVERIFY(scambio.isValid());
    {
        AmbienteAtto a(backend);
        a.Cnn().Esegui(QStringLiteral("UPDATE Config SET Code = ?"), {QStringLiteral("ASPT")});
        const Atto atto = CreaAtto(a);
        a.Scrivi(QStringLiteral("NumeroRPC = ?"), {MassimoDiciotto, qlonglong(atto.id)});
        const Atto secondo = CreaAtto(a, QStringLiteral("Secondo"));
        a.Cnn().Esegui(QStringLiteral("UPDATE Versamenti SET NumeroRPC = ? WHERE ID_Elemento = ?"),
                       {Diciotto, qlonglong(secondo.id)});
        const Export::Esito esito =
            Export::EsportaTabella(a.Cnn(), QStringLiteral("Versamenti"), sSchemi, scambio.path());
        QVERIFY2(esito.bEsportata, qPrintable(esito.sMessaggio));
        QFile file(esito.sFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray dati = file.readAll();
        QVERIFY2(dati.contains(">999999999999999999<") && dati.contains(">123456789012345678<"),
                 dati.constData());
    }
    AmbienteRecord b(backend, QStringLiteral("Versamenti"), {});
    b.Cnn().Esegui(QStringLiteral("UPDATE Config SET Code = ?"), {QStringLiteral("ASLU")});
    const Import::Esito esito =
        Import::ImportaTabella(b.Cnn(), QStringLiteral("Versamenti"), sSchemi, scambio.path());
    QVERIFY2(esito.bImportata, qPrintable(esito.sMessaggio));
    QCOMPARE(esito.lRecord, qint64(2));
    QSqlQuery righe = b.Cnn().Esegui(
        QStringLiteral("SELECT NumeroRPC, CAST(NumeroRPC AS VARCHAR(30)) AS Cifre FROM Versamenti "
                       "ORDER BY NumeroRPC"));
    QVERIFY(righe.next());
    QCOMPARE(righe.value(0).toLongLong(), Diciotto);
    QCOMPARE(righe.value(1).toString(), QStringLiteral("123456789012345678"));
    QVERIFY(righe.next());
    QCOMPARE(righe.value(0).toLongLong(), MassimoDiciotto);
    QCOMPARE(righe.value(1).toString(), QStringLiteral("999999999999999999"));
    QVERIFY(!righe.next());
}

void TestVersamento::lAggiornamentoRendeInteroIlNumeroDiUnDatabaseDiPrima() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteAtto a(backend);
    // The column as earlier versions had it: a floating number.
    const QString sPrima =
        backend == TipoBackend::SQLite
            ? QStringLiteral("DROP VIEW AlberoGlobale;\n"
                             "ALTER TABLE Versamenti DROP COLUMN NumeroRPC;\n"
                             "ALTER TABLE Versamenti ADD COLUMN NumeroRPC REAL;\n")
            : QStringLiteral(
                  "DROP VIEW AlberoGlobale;\n"
                  "ALTER TABLE Versamenti ALTER COLUMN NumeroRPC TYPE DOUBLE PRECISION;\n");
    EseguiScript(a.Cnn(), sPrima, QStringLiteral("prima.sql"));
    const Atto atto = CreaAtto(a);
    a.Scrivi(QStringLiteral("NumeroRPC = ?, SogVersatore = ?"),
             {1234567.0, QStringLiteral("Comune di Pescia"), qlonglong(atto.id)});
    const Atto secondo = CreaAtto(a, QStringLiteral("Secondo"));
    const long riga = CreaRiga(a, secondo.idVersamento, QStringLiteral("Mappe"));

    QFile file(QStringLiteral(TABELLION_SORGENTI "/site/alter.sql"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString sAggiornamento = QString::fromUtf8(file.readAll());
    // Twice: on a current database it changes nothing.
    for (int volta = 0; volta < 2; ++volta) {
        EseguiScript(a.Cnn(), sAggiornamento, QStringLiteral("alter.sql"));
        QCOMPARE(a.Colonna(QStringLiteral("NumeroRPC"), atto.id).toLongLong(), 1234567LL);
        QCOMPARE(a.Valore(QStringLiteral("SELECT CAST(NumeroRPC AS VARCHAR(30)) FROM Versamenti "
                                         "WHERE ID_Elemento = ?"),
                          {qlonglong(atto.id)})
                     .toString(),
                 QStringLiteral("1234567"));
        QCOMPARE(a.Colonna(QStringLiteral("SogVersatore"), atto.id).toString(),
                 QStringLiteral("Comune di Pescia"));
        QCOMPARE(a.Colonna(QStringLiteral("ID_Versamento"), secondo.id).toLongLong(),
                 qlonglong(secondo.idVersamento));
        QCOMPARE(RigheDi(a, secondo.idVersamento), 1);
    }
    // Eighteen digits are now kept, the tree's view reads the acts, and the database's duties
    // on the table are back: the act's title follows its element, its delete takes its rows
    // and its element.
    a.Scrivi(QStringLiteral("NumeroRPC = ?"), {MassimoDiciotto, qlonglong(atto.id)});
    QCOMPARE(a.Colonna(QStringLiteral("NumeroRPC"), atto.id).toLongLong(), MassimoDiciotto);
    QCOMPARE(a.Valore(QStringLiteral("SELECT VER_NumeroRPC FROM AlberoGlobale "
                                     "WHERE ELEM_ID_Elemento = ?"),
                      {qlonglong(atto.id)})
                 .toLongLong(),
             MassimoDiciotto);
    a.Cnn().Esegui(QStringLiteral("UPDATE Elementi SET Denominazione = ? WHERE ID_Elemento = ?"),
                   {QStringLiteral("Rinominato"), qlonglong(atto.id)});
    QCOMPARE(a.Colonna(QStringLiteral("Titolo"), atto.id).toString(), QStringLiteral("Rinominato"));
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Versamenti WHERE ID_Elemento = ?"),
                   {qlonglong(secondo.id)});
    QVERIFY(!a.ColonnaElemento(QStringLiteral("ID_Elemento"), secondo.id).isValid());
    QVERIFY(!a.Valore(QStringLiteral("SELECT ID_RigaVersamento FROM RigheVersamento "
                                     "WHERE ID_RigaVersamento = ?"),
                      {qlonglong(riga)})
                 .isValid());
}

QTEST_MAIN(TestVersamento)
#include "tst_versamento.moc"
