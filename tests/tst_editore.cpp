// What every record editor shares: the mandatory walk, the lookup lists and their codes,
// locking and clearing, the child-list colours, the publishing rule, the value format.

#include "records/EditoreRecord.h"
#include "session/Conversioni.h"
#include "session/Sessione.h"
#include "session/Utility.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "PiattaformaScriptata.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// A small editor of the shape all editors have: denomination, a date with a Tag, notes on
// several lines, a list combo, a publishing box and a child-list button.
class EditoreProva : public EditoreRecord {
public:
    EditoreProva() {
        setObjectName(QStringLiteral("EditoreProva"));
        auto* colonna = new QVBoxLayout(this);
        colonna->addWidget(NuovaEtichetta(0, QStringLiteral("Denominazione")));
        txtDenominazione = NuovoTesto(0, 256, QStringLiteral("Inserire denominazione"));
        colonna->addWidget(txtDenominazione);
        dtpData = NuovaData(QStringLiteral("dtpData"), QStringLiteral("Inserire la data"));
        colonna->addWidget(dtpData);
        txtNote = NuovoTestoMultiRiga(1, 1024, QStringLiteral("Inserire le note"));
        colonna->addWidget(txtNote);
        txtFacoltativo = NuovoTesto(2, 64);
        colonna->addWidget(txtFacoltativo);
        cmbTipologia =
            NuovaCombo(QStringLiteral("cmbTipologia"), QStringLiteral("Selezionare una tipologia"));
        colonna->addWidget(cmbTipologia);
        chkPubblica = NuovaCasella(QStringLiteral("chkPubblica"));
        colonna->addWidget(chkPubblica);
        cmdAltreDen = new QPushButton(QStringLiteral("Altre denominazioni"), this);
        cmdAltreDen->setObjectName(QStringLiteral("cmdAltreDen"));
        RegistraPulsanteFiglio(cmdAltreDen);
        colonna->addWidget(cmdAltreDen);
        connect(chkPubblica, &QCheckBox::clicked, this, [this] {
            ControllaPubblicazione(chkPubblica, lIdPadre, QStringLiteral("Record non pubblicabile"),
                                   QStringLiteral("Errore U1"));
        });
    }

    void Salva(long IDElem) override {
        SalvaElemento(IDElem, chkPubblica);
        BloccaCampi();
    }

    using EditoreRecord::BloccaCampi;
    using EditoreRecord::Pulisci;
    using EditoreRecord::SbloccaCampi;

    QLineEdit* txtDenominazione;
    QDateEdit* dtpData;
    QPlainTextEdit* txtNote;
    QLineEdit* txtFacoltativo;
    QComboBox* cmbTipologia;
    QCheckBox* chkPubblica;
    QPushButton* cmdAltreDen;
    long lIdPadre = 0;
};

// The editor with every mandatory field filled.
void Compila(EditoreProva& editore) {
    editore.SbloccaCampi();
    editore.txtDenominazione->setText(QStringLiteral("Archivio di Stato"));
    editore.txtNote->setPlainText(QStringLiteral("Note"));
    editore.cmbTipologia->addItem(QStringLiteral("Istituto"), QVariant(qlonglong(1)));
    editore.cmbTipologia->setCurrentIndex(0);
}

long Crea(const Connessione& cnn, const char* tipo, const QString& nome, long padre = 0) {
    return ArchivioElementi::Crea(cnn, QLatin1String(tipo), nome, padre);
}

QVariant Valore(const Connessione& cnn, const QString& sql, std::initializer_list<QVariant> v) {
    QSqlQuery query = cnn.Esegui(sql, v);
    return query.next() ? query.value(0) : QVariant();
}

} // namespace

class TestEditore : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ilControlloObbligatorioSiFermaAlPrimoCampoVuotoNellOrdineDelDisegno();
    void inserireValoreEUnTestoDiSoliSpaziFallisconoComeUnCampoVuoto_data();
    void inserireValoreEUnTestoDiSoliSpaziFallisconoComeUnCampoVuoto();
    void unTagSuUnaDataNonFermaMaiIlSalvataggio();
    void unCampoNascostoCheFallisceNonPrendeIlFuoco();
    void unaVoceDellaListaConLaVirgolaDaDueVoci();
    void laListaAUnCarattereTieneIlCarattereComeCodice();
    void cercaTrovaLaVocePerIlNumeroDelCodice();
    void ilCodiceSiScriveADueCifreENullSeNienteEScelto();
    void unAnnoDiTreCifreSopravviveAlViaggioNelDatabase_data() { AggiungiBackend(); }
    void unAnnoDiTreCifreSopravviveAlViaggioNelDatabase();
    void bloccareLasciaLeggibiliITestiMultiRigaEDisabilitaGliAltri();
    void bloccaCampiAbilitaIPulsantiDeiFigliESbloccaCampiLiDisabilita();
    void pulisciSvuotaTestiCaselleECombo();
    void ilPulsanteDiUnaListaConRigheHaIlColoreDellaFinestra();
    void ilValoreSiScriveConPuntiDelleMigliaiaEDueDecimaliENienteSeZeroONegativo();
    void pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN_data() { AggiungiBackend(); }
    void pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN();
};

void TestEditore::ilControlloObbligatorioSiFermaAlPrimoCampoVuotoNellOrdineDelDisegno() {
    PiattaformaScriptata seam;
    EditoreProva editore;
    editore.show();
    editore.SbloccaCampi();
    editore.txtFacoltativo->setFocus();
    // Denomination and notes both empty: the denomination comes first in the design.
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(seam.Messaggi().size(), 1);
    QCOMPARE(seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire denominazione"));
    QCOMPARE(seam.Messaggi().at(0).icona, Icona::Informazione);
    QCOMPARE(editore.focusWidget(), editore.txtDenominazione);

    editore.txtDenominazione->setText(QStringLiteral("Archivio"));
    seam.Svuota();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire le note"));
    QCOMPARE(editore.focusWidget(), editore.txtNote);

    editore.txtNote->setPlainText(QStringLiteral("Note"));
    seam.Svuota();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Selezionare una tipologia"));

    Compila(editore);
    seam.Svuota();
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY(seam.Messaggi().isEmpty());
}

void TestEditore::inserireValoreEUnTestoDiSoliSpaziFallisconoComeUnCampoVuoto_data() {
    QTest::addColumn<QString>("testo");
    QTest::newRow("vuoto") << QString();
    QTest::newRow("segnaposto") << QStringLiteral("<<Inserire valore>>");
    QTest::newRow("spazi") << QStringLiteral("    ");
}

void TestEditore::inserireValoreEUnTestoDiSoliSpaziFallisconoComeUnCampoVuoto() {
    QFETCH(QString, testo);
    PiattaformaScriptata seam;
    EditoreProva editore;
    Compila(editore);
    editore.txtDenominazione->setText(testo);
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(seam.Messaggi().size(), 1);
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire denominazione"));
}

void TestEditore::unTagSuUnaDataNonFermaMaiIlSalvataggio() {
    PiattaformaScriptata seam;
    EditoreProva editore;
    Compila(editore);
    QCOMPARE(editore.dtpData->property("Tag").toString(), QStringLiteral("Inserire la data"));
    editore.dtpData->clear();
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY(seam.Messaggi().isEmpty());
}

void TestEditore::unCampoNascostoCheFallisceNonPrendeIlFuoco() {
    PiattaformaScriptata seam;
    EditoreProva editore;
    editore.show();
    Compila(editore);
    editore.txtFacoltativo->setFocus();
    editore.txtNote->clear();
    editore.txtNote->hide();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire le note"));
    QCOMPARE(editore.focusWidget(), editore.txtFacoltativo);
}

void TestEditore::unaVoceDellaListaConLaVirgolaDaDueVoci() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("TipologiaIST.txt"),
                    "01Archivio di Stato\r\n05Archivio storico, 12comunale\r\n03Sede\r\n");
    QComboBox cmb;
    EditoreRecord::CaricaLista(&cmb, QStringLiteral("TipologiaIST.txt"));
    QCOMPARE(cmb.count(), 4);
    QCOMPARE(cmb.itemText(0), QStringLiteral("Archivio di Stato"));
    QCOMPARE(cmb.itemData(0).toInt(), 1);
    QCOMPARE(cmb.itemText(1), QStringLiteral("Archivio storico"));
    QCOMPARE(cmb.itemData(1).toInt(), 5);
    // The second record of the line takes its code from its own first two characters.
    QCOMPARE(cmb.itemText(2), QStringLiteral("comunale"));
    QCOMPARE(cmb.itemData(2).toInt(), 12);
    QCOMPARE(cmb.itemText(3), QStringLiteral("Sede"));
    QCOMPARE(cmb.itemData(3).toInt(), 3);
    // Filling the list chooses no entry.
    QCOMPARE(cmb.currentIndex(), -1);
}

void TestEditore::laListaAUnCarattereTieneIlCarattereComeCodice() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("TipoInventario.txt"), "SA stampa\r\nMManoscritto\r\n");
    QComboBox cmb;
    EditoreRecord::CaricaListaUnCarattere(&cmb, QStringLiteral("TipoInventario.txt"));
    QCOMPARE(cmb.count(), 2);
    QCOMPARE(cmb.itemText(0), QStringLiteral("A stampa"));
    QCOMPARE(cmb.itemText(1), QStringLiteral("Manoscritto"));
    cmb.setCurrentIndex(1);
    QCOMPARE(CarattereVoceScelta(&cmb), QStringLiteral("M"));
}

void TestEditore::cercaTrovaLaVocePerIlNumeroDelCodice() {
    CartellaProva cartella;
    cartella.Scrivi(QStringLiteral("TipologiaIST.txt"), "01Istituto\r\n03Sede\r\n04Magazzino\r\n");
    QComboBox cmb;
    EditoreRecord::CaricaLista(&cmb, QStringLiteral("TipologiaIST.txt"));
    QCOMPARE(EditoreRecord::CercaTesto(&cmb, QStringLiteral("03")), QStringLiteral("Sede"));
    QCOMPARE(EditoreRecord::CercaTesto(&cmb, QStringLiteral("4")), QStringLiteral("Magazzino"));
    QCOMPARE(EditoreRecord::CercaIndice(&cmb, QStringLiteral("04")), 2);
    QCOMPARE(EditoreRecord::CercaTesto(&cmb, QStringLiteral("09")), QString());
    QCOMPARE(EditoreRecord::CercaIndice(&cmb, QStringLiteral("09")), -1);
    EditoreRecord::ImpostaTesto(&cmb, QStringLiteral("Sede"));
    QCOMPARE(cmb.currentIndex(), 1);
    EditoreRecord::ImpostaTesto(&cmb, QString());
    QCOMPARE(cmb.currentIndex(), -1);
}

void TestEditore::ilCodiceSiScriveADueCifreENullSeNienteEScelto() {
    QComboBox cmb;
    cmb.addItem(QStringLiteral("Istituto"), QVariant(qlonglong(1)));
    cmb.addItem(QStringLiteral("Altro"), QVariant(qlonglong(12)));
    cmb.setCurrentIndex(-1);
    QVERIFY(ENull(EditoreRecord::CodiceDueCifre(&cmb)));
    cmb.setCurrentIndex(0);
    QCOMPARE(EditoreRecord::CodiceDueCifre(&cmb).toString(), QStringLiteral("01"));
    cmb.setCurrentIndex(1);
    QCOMPARE(EditoreRecord::CodiceDueCifre(&cmb).toString(), QStringLiteral("12"));
}

void TestEditore::unAnnoDiTreCifreSopravviveAlViaggioNelDatabase() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    const auto cnn = banca.Apri();
    const long id = Crea(*cnn, "02", QStringLiteral("Fondo"));
    const QVariant inizio = DataDaAnno(QStringLiteral("987"), true);
    const QVariant fine = DataDaAnno(QStringLiteral("987"), false);
    QCOMPARE(inizio.toString(), QStringLiteral("9870101"));
    cnn->Esegui(
        QStringLiteral(
            "UPDATE ComplessiDoc SET DataInizio = ?, DataFine = ? WHERE ID_Elemento = ?"),
        {QVariant(inizio.toLongLong()), QVariant(fine.toLongLong()), QVariant(qlonglong(id))});
    const QVariant letto = Valore(
        *cnn,
        QStringLiteral("SELECT COALESCE(CAST(DataInizio AS VARCHAR(8)),'') FROM ComplessiDoc "
                       "WHERE ID_Elemento = ?"),
        {QVariant(qlonglong(id))});
    QCOMPARE(letto.toString(), QStringLiteral("9870101"));
    QCOMPARE(AnnoDaData(letto), QStringLiteral("987"));
    const QVariant lettaFine =
        Valore(*cnn, QStringLiteral("SELECT DataFine FROM ComplessiDoc WHERE ID_Elemento = ?"),
               {QVariant(qlonglong(id))});
    QCOMPARE(AnnoDaData(lettaFine), QStringLiteral("987"));
}

void TestEditore::bloccareLasciaLeggibiliITestiMultiRigaEDisabilitaGliAltri() {
    EditoreProva editore;
    BloccaControlli(editore.Controls());
    QVERIFY(editore.txtNote->isEnabled());
    QVERIFY(editore.txtNote->isReadOnly());
    QVERIFY(!editore.txtDenominazione->isEnabled());
    QVERIFY(!editore.cmbTipologia->isEnabled());
    QVERIFY(!editore.chkPubblica->isEnabled());
    QVERIFY(!editore.dtpData->isEnabled());
    SbloccaControlli(editore.Controls());
    QVERIFY(editore.txtNote->isEnabled());
    QVERIFY(!editore.txtNote->isReadOnly());
    QVERIFY(editore.txtDenominazione->isEnabled());
    QVERIFY(editore.cmbTipologia->isEnabled());
    QVERIFY(editore.chkPubblica->isEnabled());
    QVERIFY(editore.dtpData->isEnabled());
}

void TestEditore::bloccaCampiAbilitaIPulsantiDeiFigliESbloccaCampiLiDisabilita() {
    EditoreProva editore;
    editore.show();
    editore.BloccaCampi();
    QVERIFY(editore.cmdAltreDen->isEnabled());
    QVERIFY(!editore.txtDenominazione->isEnabled());
    editore.SbloccaCampi();
    QVERIFY(!editore.cmdAltreDen->isEnabled());
    QVERIFY(editore.txtDenominazione->isEnabled());
    QCOMPARE(editore.focusWidget(), editore.txtDenominazione);
}

void TestEditore::pulisciSvuotaTestiCaselleECombo() {
    EditoreProva editore;
    Compila(editore);
    editore.chkPubblica->setChecked(true);
    editore.dtpData->setDate(QDate(1999, 3, 4));
    editore.Pulisci();
    QCOMPARE(editore.txtDenominazione->text(), QString());
    QCOMPARE(editore.txtNote->toPlainText(), QString());
    QVERIFY(!editore.chkPubblica->isChecked());
    QCOMPARE(editore.cmbTipologia->currentIndex(), -1);
    QCOMPARE(editore.dtpData->date(), QDate::currentDate());
}

void TestEditore::ilPulsanteDiUnaListaConRigheHaIlColoreDellaFinestra() {
    QPushButton pulsante;
    EditoreRecord::ColoraPulsante(&pulsante, true);
    QCOMPARE(pulsante.palette().color(QPalette::Button),
             QApplication::palette().color(QPalette::Base));
    EditoreRecord::ColoraPulsante(&pulsante, false);
    QCOMPARE(pulsante.palette().color(QPalette::Button),
             QApplication::palette().color(QPalette::Button));
}

void TestEditore::ilValoreSiScriveConPuntiDelleMigliaiaEDueDecimaliENienteSeZeroONegativo() {
    QCOMPARE(EditoreRecord::FormatoValore(1234567.891), QStringLiteral("1.234.567,89"));
    QCOMPARE(EditoreRecord::FormatoValore(12), QStringLiteral("12,00"));
    QCOMPARE(EditoreRecord::FormatoValore(999.995), QStringLiteral("1.000,00"));
    QCOMPARE(EditoreRecord::FormatoValore(0.5), QStringLiteral(",50"));
    QCOMPARE(EditoreRecord::FormatoValore(0), QString());
    QCOMPARE(EditoreRecord::FormatoValore(-1500.25), QString());
}

void TestEditore::pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    CartellaProva cartella;
    Sessione::cnn = banca.Apri();
    PiattaformaScriptata seam;
    const long padre = Crea(*Sessione::cnn, "01", QStringLiteral("Istituto"));
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Elementi SET Pubblicato = 'N' WHERE ID_Elemento = ?"),
        {QVariant(qlonglong(padre))});
    const long figlio = Crea(*Sessione::cnn, "02", QStringLiteral("Fondo"), padre);

    EditoreProva editore;
    editore.show();
    editore.lIdPadre = padre;
    editore.SbloccaCampi();
    editore.chkPubblica->click();
    QVERIFY(!editore.chkPubblica->isChecked());
    QCOMPARE(seam.Messaggi().size(), 1);
    QCOMPARE(seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(seam.Messaggi().at(0).sTesto, QStringLiteral("Record non pubblicabile"));

    editore.Salva(figlio);
    QCOMPARE(Valore(*Sessione::cnn,
                    QStringLiteral("SELECT Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
                    {QVariant(qlonglong(figlio))})
                 .toString(),
             QStringLiteral("N"));

    // Under a published parent the box stays ticked and the element is published.
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Elementi SET Pubblicato = 'S' WHERE ID_Elemento = ?"),
        {QVariant(qlonglong(padre))});
    seam.Svuota();
    editore.SbloccaCampi();
    editore.chkPubblica->click();
    QVERIFY(editore.chkPubblica->isChecked());
    QVERIFY(seam.Messaggi().isEmpty());
    editore.Salva(figlio);
    QCOMPARE(Valore(*Sessione::cnn,
                    QStringLiteral("SELECT Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
                    {QVariant(qlonglong(figlio))})
                 .toString(),
             QStringLiteral("S"));
    Sessione::cnn.reset();
}

QTEST_MAIN(TestEditore)
#include "tst_editore.moc"
