// The record of a seal, on SQLite and on PostgreSQL: the form and its order, the seven lookup
// lists with their empty entry and the relation left out while attached, the round trip of every
// field through Sigilli and SGTipo, the years, the natura that shows or hides the verso, the
// editable combos that refuse more than 128 characters when left, the codes that no list has,
// the publishing rule and a save that is written whole or not at all.

#include "records/ucSigillo.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

namespace {

// A program folder with the lookup lists, a fresh database, the session's connection and the
// scripted seam; Sigilli the record's table.
struct Ambiente : AmbientePergamene {
    explicit Ambiente(TipoBackend tipo)
        : AmbientePergamene(tipo, QStringLiteral("Sigilli")) {}
};

// Every single-line and multi-line box of the seal with its column, in the table of the box.
struct Campo {
    int n;
    const char* colonna;
    bool bTipo; // in SGTipo
    int iMax;
};
const Campo Campi[] = {
    {0, "Identificativo", false, 256},
    {4, "Dimensioni", false, 32},
    {6, "Colore", false, 64},
    {10, "Posizione", false, 64},
    {13, "NoteDirezione", false, 1024},
    {25, "Attacchi", false, 128},
    {26, "Protezione", false, 128},
    {27, "Qualita", false, 128},
    {28, "Conservazione", false, 256},
    {29, "Segni", false, 256},
    {30, "Autenticita", false, 256},
    {31, "Matrice", false, 256},
    {32, "AltreImpronteSigillo", false, 512},
    {33, "AltreImpronteTitolare", false, 512},
    {34, "Edizione", false, 256},
    {35, "Bibliografia", false, 1024},
    {36, "Accesso", false, 256},
    {37, "Riproduzione", false, 128},
    {38, "Note", false, 1024},
    {42, "RifDocNoInv", false, 512},
    {43, "DescrizioneEstremi", false, 256},
    {11, "UrlLink", false, 128},
    {16, "DimensioniR", true, 32},
    {17, "TrascrizioneR", true, 512},
    {18, "LinguaR", true, 128},
    {19, "DescrizioneR", true, 1024},
    {20, "TrascrizioneV", true, 512},
    {21, "LinguaV", true, 128},
    {22, "DescrizioneV", true, 1024},
    {24, "Incisore", true, 1024},
    {40, "DimensioniV", true, 32},
};

} // namespace

class TestSigillo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void iCampiSonoNellOrdineDelDisegnoConLeLoroSchedeEiLoroMessaggi_data() { AggiungiBackend(); }
    void iCampiSonoNellOrdineDelDisegnoConLeLoroSchedeEiLoroMessaggi();
    void leListeHannoLaVoceVuotaEIlRapportoSenza02SeAttaccato_data() { AggiungiBackend(); }
    void leListeHannoLaVoceVuotaEIlRapportoSenza02SeAttaccato();
    void nuovoEPulisciPortanoLeVociPredefinite_data() { AggiungiBackend(); }
    void nuovoEPulisciPortanoLeVociPredefinite();
    void ogniCampoFaIlGiroColonnaPerColonnaInSigilliESGTipo_data() { AggiungiBackend(); }
    void ogniCampoFaIlGiroColonnaPerColonnaInSigilliESGTipo();
    void gliAnniSiMostranoComeAnniESiSalvanoComeNumeriDiOttoOSetteCifre_data() {
        AggiungiBackend();
    }
    void gliAnniSiMostranoComeAnniESiSalvanoComeNumeriDiOttoOSetteCifre();
    void laNaturaMostraONascondeIlVersoCheSiSalvaComunque_data() { AggiungiBackend(); }
    void laNaturaMostraONascondeIlVersoCheSiSalvaComunque();
    void leComboModificabiliRifiutanoPiuDi128CaratteriAllUscita_data() { AggiungiBackend(); }
    void leComboModificabiliRifiutanoPiuDi128CaratteriAllUscita();
    void unaMateriaSconosciutaLasciaLaComboVuotaEFermaIlSalva_data() { AggiungiBackend(); }
    void unaMateriaSconosciutaLasciaLaComboVuotaEFermaIlSalva();
    void pubblicareSottoUnPadreNonPubblicatoERifiutato_data() { AggiungiBackend(); }
    void pubblicareSottoUnPadreNonPubblicatoERifiutato();
    void senzaLaRigaDelTipoIlSalvaNonScriveNulla_data() { AggiungiBackend(); }
    void senzaLaRigaDelTipoIlSalvaNonScriveNulla();
    void unSigilloCheNonCeSpegneTutto_data() { AggiungiBackend(); }
    void unSigilloCheNonCeSpegneTutto();
    void unSigilloConTitolariOFigliLoDiceAiPulsantiENonSiCancella_data() { AggiungiBackend(); }
    void unSigilloConTitolariOFigliLoDiceAiPulsantiENonSiCancella();
    void unAnnoCheNonENumeroEUnErroreDelSalvaCheNonScriveNulla_data() { AggiungiBackend(); }
    void unAnnoCheNonENumeroEUnErroreDelSalvaCheNonScriveNulla();
    void ilRapportoNascostoDaIlSuoMessaggioSenzaPrendereIlFuoco_data() { AggiungiBackend(); }
    void ilRapportoNascostoDaIlSuoMessaggioSenzaPrendereIlFuoco();
    void ilPulsanteDellImmagineSegueIlDocumentoMag_data() { AggiungiBackend(); }
    void ilPulsanteDellImmagineSegueIlDocumentoMag();
    void unSigilloSiCreaEMostraAttraversoLOspite_data() { AggiungiBackend(); }
    void unSigilloSiCreaEMostraAttraversoLOspite();
    void titolariEPergameneSiApronoEIPulsantiSiRidipingono_data() { AggiungiBackend(); }
    void titolariEPergameneSiApronoEIPulsantiSiRidipingono();
};

void TestSigillo::iCampiSonoNellOrdineDelDisegnoConLeLoroSchedeEiLoroMessaggi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucSigillo> editore;
    // The mandatory walk follows the order of the messages.
    QStringList obbligatori;
    QStringList messaggi;
    for (const QWidget* controllo : editore.Controls()) {
        const QString sTag = controllo->property("Tag").toString();
        if (sTag.isEmpty() || controllo->objectName() == QLatin1String("DTPData"))
            continue;
        obbligatori << controllo->objectName();
        messaggi << sTag;
    }
    QCOMPARE(obbligatori,
             QStringList({"Text1(0)", "cmbMat", "Text1(43)", "Text1(12)", "cmbApp", "Text1(6)",
                          "Text1(28)", "cmbDoc", "Text1(2)", "Text1(3)", "cmbTipol"}));
    QCOMPARE(messaggi,
             QStringList({"Inserire Identificativo", "Inserire la materia", "Inserire datazione",
                          "Inserire redattore", "Inserire il modo di apposizione",
                          "Inserire il colore", "Inserire lo stato di conservazione e restauro",
                          "Inserire il rapporto con il documento", "Inserire Anno Inizio",
                          "Inserire Anno Fine", "Inserire la natura del sigillo"}));
    QCOMPARE(editore.findChild<QWidget*>(QStringLiteral("DTPData"))->property("Tag").toString(),
             QStringLiteral("Inserire la data di registrazione"));

    // Each box takes no more than its column.
    for (const Campo& campo : Campi) {
        if (QLineEdit* riga = Riga(&editore, campo.n))
            QCOMPARE(riga->maxLength(), campo.iMax);
        else
            QCOMPARE(Blocco(&editore, campo.n)->property("MaxLength").toInt(), campo.iMax);
    }
    QCOMPARE(Riga(&editore, 2)->maxLength(), 4);
    QCOMPARE(Riga(&editore, 12)->maxLength(), 64);
    QCOMPARE(Etichetta(&editore, 24)->text(), QStringLiteral("Note Alla Macroarea Descrizione"));

    // The four tabs, the two areas of the type, the buttons.
    auto* tab = editore.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    QVERIFY(tab);
    QStringList titoli;
    for (int i = 0; i < tab->count(); ++i)
        titoli << tab->tabText(i);
    QCOMPARE(titoli, QStringList({"Identificazione", "Descrizione (1)", "Descrizione (2)",
                                  "Accesso e fonti"}));
    const auto scheda = [tab](const QWidget* w) {
        for (int i = 0; i < tab->count(); ++i) {
            if (tab->widget(i)->isAncestorOf(w))
                return i;
        }
        return -1;
    };
    QCOMPARE(scheda(Riga(&editore, 0)), -1);
    QCOMPARE(scheda(Combo(&editore, "cmbTipol")), 0);
    QCOMPARE(scheda(Combo(&editore, "cmbDoc")), 0);
    QCOMPARE(scheda(Combo(&editore, "cmbMat")), 1);
    QCOMPARE(scheda(Combo(&editore, "cmbApp")), 1);
    QCOMPARE(scheda(Blocco(&editore, 24)), 1);
    QCOMPARE(scheda(Blocco(&editore, 35)), 3);
    QCOMPARE(scheda(Riga(&editore, 12)), 3);
    auto* frame1 = editore.findChild<QGroupBox*>(QStringLiteral("Frame1"));
    auto* frame2 = editore.findChild<QGroupBox*>(QStringLiteral("Frame2"));
    QCOMPARE(frame1->title(), QStringLiteral("Area del tipo: Recto"));
    QCOMPARE(frame2->title(), QStringLiteral("Area del tipo: Verso o controsigillo"));
    QVERIFY(frame1->isAncestorOf(Indice(&editore, "cmbForma", 0)));
    QVERIFY(frame1->isAncestorOf(Indice(&editore, "cmbTipoDG", 0)));
    QVERIFY(frame1->isAncestorOf(Indice(&editore, "cmbTipoIco", 0)));
    QVERIFY(frame2->isAncestorOf(Indice(&editore, "cmbForma", 1)));
    QVERIFY(frame2->isAncestorOf(Indice(&editore, "cmbTipoDG", 1)));
    QVERIFY(frame2->isAncestorOf(Indice(&editore, "cmbTipoIco", 1)));
    for (int n : {16, 17, 18, 19})
        QVERIFY(
            frame1->isAncestorOf(editore.findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(n))));
    for (int n : {40, 20, 21, 22})
        QVERIFY(
            frame2->isAncestorOf(editore.findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(n))));
    QCOMPARE(Pulsante(&editore, "cmdMostraTitolari")->text(), QStringLiteral("Titolari"));
    QCOMPARE(Pulsante(&editore, "cmdMostraPergamene")->text(),
             QStringLiteral("Collegamento al documento"));
    // The keyboard walks each tab as it is laid out.
    const auto dopo = [&editore](const char* nome) {
        return DopoNelFuoco(&editore, QLatin1String(nome));
    };
    QCOMPARE(dopo("cmbTipol"), QStringLiteral("Text1(2)"));
    QCOMPARE(dopo("Text1(2)"), QStringLiteral("Text1(3)"));
    QCOMPARE(dopo("Text1(4)"), QStringLiteral("cmbMat"));
    QCOMPARE(dopo("cmbMat"), QStringLiteral("Text1(6)"));
    QCOMPARE(dopo("Text1(6)"), QStringLiteral("cmbApp"));
    QCOMPARE(dopo("cmbForma(0)"), QStringLiteral("Text1(16)"));
    QCOMPARE(dopo("Text1(12)"), QStringLiteral("DTPData"));
    // The combos of codes are lists, those of texts are editable.
    for (const char* lista : {"cmbTipol", "cmbMat", "cmbDoc"})
        QVERIFY(!Combo(&editore, lista)->isEditable());
    QVERIFY(!Indice(&editore, "cmbTipoIco", 0)->isEditable());
    QVERIFY(Combo(&editore, "cmbApp")->isEditable());
    QVERIFY(Indice(&editore, "cmbForma", 1)->isEditable());
    QVERIFY(Indice(&editore, "cmbTipoDG", 0)->isEditable());
}

void TestSigillo::leListeHannoLaVoceVuotaEIlRapportoSenza02SeAttaccato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    ucSigillo editore;
    editore.Init();
    for (int i = 0; i < 2; ++i) {
        const QStringList icone = Voci(Indice(&editore, "cmbTipoIco", i));
        QCOMPARE(icone.value(0), QStringLiteral("0="));
        QCOMPARE(icone.value(1), QStringLiteral("1=Araldico"));
        QCOMPARE(icone.size(), 13);
        QCOMPARE(Voci(Indice(&editore, "cmbForma", i)).value(0), QStringLiteral("1=Ogivale"));
        QCOMPARE(Indice(&editore, "cmbTipoDG", i)->count(), 12);
    }
    QCOMPARE(Voci(Combo(&editore, "cmbTipol")).value(3), QStringLiteral("4=Bolla"));
    QCOMPARE(Combo(&editore, "cmbMat")->count(), 9);
    QCOMPARE(Voci(Combo(&editore, "cmbApp")).value(7), QStringLiteral("8=Aderente"));
    QCOMPARE(Voci(Combo(&editore, "cmbDoc")).value(1), QStringLiteral("2=Attaccato al documento"));
    QCOMPARE(Combo(&editore, "cmbDoc")->count(), 6);
    QVERIFY(!Etichetta(&editore, 42)->isHidden());
    QVERIFY(!Blocco(&editore, 42)->isHidden());

    // Attached: the relation "02" is left out and the reference to the document hidden; Init
    // again gives each list once.
    editore.bAttaccato(true);
    editore.Init();
    const QStringList rapporti = Voci(Combo(&editore, "cmbDoc"));
    QCOMPARE(rapporti.size(), 5);
    QCOMPARE(rapporti.value(0), QStringLiteral("1=Staccato dal documento"));
    QCOMPARE(rapporti.value(1), QStringLiteral("3=Conservato con il documento"));
    QCOMPARE(Indice(&editore, "cmbTipoIco", 0)->count(), 13);
    QCOMPARE(Combo(&editore, "cmbMat")->count(), 9);
    QVERIFY(Etichetta(&editore, 42)->isHidden());
    QVERIFY(Blocco(&editore, 42)->isHidden());
    QVERIFY(editore.OkNuovoSigillo);
    QVERIFY(!editore.OkModifica);
    QVERIFY(!editore.OkCancella);
}

void TestSigillo::nuovoEPulisciPortanoLeVociPredefinite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    // Shown: the defaults of the clearing, then what the row has (its free texts empty).
    QCOMPARE(Combo(&editore, "cmbApp")->currentText(), QString());
    QCOMPARE(Indice(&editore, "cmbForma", 0)->currentText(), QString());
    QCOMPARE(Combo(&editore, "cmbMat")->currentIndex(), -1); // the row has no matter
    QCOMPARE(Combo(&editore, "cmbDoc")->currentIndex(), -1);
    QCOMPARE(Combo(&editore, "cmbTipol")->currentIndex(), -1);
    QCOMPARE(Indice(&editore, "cmbTipoIco", 0)->currentIndex(), 0);
    QCOMPARE(Indice(&editore, "cmbTipoIco", 1)->currentIndex(), 0);

    editore.Nuovo(0);
    QCOMPARE(Combo(&editore, "cmbApp")->currentIndex(), 7);
    QCOMPARE(Combo(&editore, "cmbMat")->currentIndex(), -1);
    QCOMPARE(Combo(&editore, "cmbTipol")->currentIndex(), -1);
    QCOMPARE(Combo(&editore, "cmbDoc")->currentIndex(), 1);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(Indice(&editore, "cmbForma", i)->currentIndex(), 5);
        QCOMPARE(Indice(&editore, "cmbForma", i)->currentText(), QStringLiteral("Rotonda"));
        QCOMPARE(Indice(&editore, "cmbTipoIco", i)->currentIndex(), 0);
        QCOMPARE(Indice(&editore, "cmbTipoDG", i)->currentText(), QString());
    }
    QVERIFY(Riga(&editore, 0)->isEnabled());
    // Not attached, the relation is not offered in edit; attached it must be chosen.
    QVERIFY(Combo(&editore, "cmbDoc")->isHidden());
    editore.bAttaccato(true);
    editore.Init();
    editore.Nuovo(0);
    QCOMPARE(Combo(&editore, "cmbDoc")->currentIndex(), -1);
    QVERIFY(!Combo(&editore, "cmbDoc")->isHidden());
}

void TestSigillo::ogniCampoFaIlGiroColonnaPerColonnaInSigilliESGTipo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    QVERIFY(editore.OkModifica);
    editore.Modifica();
    Compila(editore);
    // Every box at its length, with quotes and accents.
    for (const Campo& campo : Campi)
        ScriviTesto(&editore, campo.n,
                    Lungo(QStringLiteral("%1 l'è già \"").arg(campo.colonna), campo.iMax));
    Riga(&editore, 2)->setText(QStringLiteral("1250"));
    Riga(&editore, 3)->setText(QStringLiteral("1260"));
    Combo(&editore, "cmbTipol")->setCurrentIndex(2);
    Combo(&editore, "cmbMat")->setCurrentIndex(8);
    Combo(&editore, "cmbDoc")->setCurrentIndex(3);
    const QString sApposizione = Lungo(QStringLiteral("a mano d'autore "), 128);
    Combo(&editore, "cmbApp")->setEditText(sApposizione);
    Indice(&editore, "cmbForma", 0)->setEditText(QStringLiteral("Ovale allungata"));
    Indice(&editore, "cmbForma", 1)->setCurrentIndex(2);
    Indice(&editore, "cmbTipoDG", 0)->setCurrentIndex(10);
    Indice(&editore, "cmbTipoDG", 1)->setEditText(QStringLiteral("Sigillo d'altri"));
    Indice(&editore, "cmbTipoIco", 0)->setCurrentIndex(12);
    Indice(&editore, "cmbTipoIco", 1)->setCurrentIndex(3);
    editore.findChild<QCheckBox*>(QStringLiteral("chkUnitaCond"))->setChecked(true);
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(QDate(2024, 3, 9));
    QVERIFY(editore.CheckMandatoryFields());
    editore.Salva(id);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());

    // In the database, column by column.
    for (const Campo& campo : Campi) {
        const QVariant valore = campo.bTipo ? ambiente.Tipo(QLatin1String(campo.colonna), id)
                                            : ambiente.Colonna(QLatin1String(campo.colonna), id);
        QVERIFY2(valore.toString() ==
                     Lungo(QStringLiteral("%1 l'è già \"").arg(campo.colonna), campo.iMax),
                 campo.colonna);
    }
    const auto colonna = [&](const char* nome) {
        return ambiente.Colonna(QLatin1String(nome), id);
    };
    QCOMPARE(colonna("Tipologia").toString(), QStringLiteral("03"));
    QCOMPARE(colonna("MateriaNuovo").toString(), QStringLiteral("09"));
    QCOMPARE(colonna("Rapporto").toString(), QStringLiteral("04"));
    QCOMPARE(colonna("Apposizione").toString(), sApposizione);
    QCOMPARE(colonna("DataInizio").toLongLong(), 12500101LL);
    QCOMPARE(colonna("DataFine").toLongLong(), 12601231LL);
    QCOMPARE(colonna("FlgUnitaCond").toInt(), 1);
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaR"), id).toString(),
             QStringLiteral("Ovale allungata"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaV"), id).toString(), QStringLiteral("Scudiforme"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("TipologiaR"), id).toString(),
             QStringLiteral("Sigillo di famiglia"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("TipologiaV"), id).toString(),
             QStringLiteral("Sigillo d'altri"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("TipologIcoR"), id).toString(), QStringLiteral("12"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("TipologIcoV"), id).toString(), QStringLiteral("03"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             QStringLiteral("Maria Rossi"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("N"));
    QVERIFY(ambiente.Nullo(QStringLiteral("Ruolo"), id));

    // Shown again in a fresh editor, every field as it was.
    EditorePronto<ucSigillo> altro(id);
    for (const Campo& campo : Campi)
        QVERIFY2(Testo(&altro, campo.n) ==
                     Lungo(QStringLiteral("%1 l'è già \"").arg(campo.colonna), campo.iMax),
                 campo.colonna);
    QCOMPARE(Testo(&altro, 12), QStringLiteral("Maria Rossi"));
    QCOMPARE(Riga(&altro, 2)->text(), QStringLiteral("1250"));
    QCOMPARE(Riga(&altro, 3)->text(), QStringLiteral("1260"));
    QCOMPARE(Combo(&altro, "cmbTipol")->currentIndex(), 2);
    QCOMPARE(Combo(&altro, "cmbMat")->currentIndex(), 8);
    QCOMPARE(Combo(&altro, "cmbDoc")->currentIndex(), 3);
    QCOMPARE(Combo(&altro, "cmbApp")->currentText(), sApposizione);
    QCOMPARE(Indice(&altro, "cmbForma", 0)->currentText(), QStringLiteral("Ovale allungata"));
    QCOMPARE(Indice(&altro, "cmbForma", 1)->currentText(), QStringLiteral("Scudiforme"));
    QCOMPARE(Indice(&altro, "cmbTipoDG", 0)->currentText(), QStringLiteral("Sigillo di famiglia"));
    QCOMPARE(Indice(&altro, "cmbTipoDG", 1)->currentText(), QStringLiteral("Sigillo d'altri"));
    QCOMPARE(Indice(&altro, "cmbTipoIco", 0)->currentIndex(), 12);
    QCOMPARE(Indice(&altro, "cmbTipoIco", 1)->currentIndex(), 3);
    QVERIFY(altro.findChild<QCheckBox*>(QStringLiteral("chkUnitaCond"))->isChecked());
    QCOMPARE(altro.findChild<QDateEdit*>(QStringLiteral("DTPData"))->date(), QDate(2024, 3, 9));
    QVERIFY(!Riga(&altro, 0)->isEnabled());

    // Emptied: the texts are stored as Null, the forms as they stand, the codes as Null.
    altro.Modifica();
    for (const Campo& campo : Campi)
        ScriviTesto(&altro, campo.n, QString());
    Riga(&altro, 2)->clear();
    Riga(&altro, 3)->clear();
    Combo(&altro, "cmbTipol")->setCurrentIndex(-1);
    Combo(&altro, "cmbApp")->setEditText(QString());
    Indice(&altro, "cmbForma", 0)->setEditText(QString());
    Indice(&altro, "cmbTipoDG", 0)->setEditText(QString());
    Indice(&altro, "cmbTipoIco", 0)->setCurrentIndex(0);
    altro.findChild<QCheckBox*>(QStringLiteral("chkUnitaCond"))->setChecked(false);
    altro.Salva(id);
    for (const Campo& campo : Campi) {
        const QVariant valore = campo.bTipo ? ambiente.Tipo(QLatin1String(campo.colonna), id)
                                            : ambiente.Colonna(QLatin1String(campo.colonna), id);
        QVERIFY2(valore.isNull(), campo.colonna);
    }
    QVERIFY(colonna("Tipologia").isNull());
    QVERIFY(colonna("DataInizio").isNull());
    QVERIFY(colonna("DataFine").isNull());
    QCOMPARE(colonna("FlgUnitaCond").toInt(), 0);
    QVERIFY(!colonna("Apposizione").isNull());
    QCOMPARE(colonna("Apposizione").toString(), QString());
    QVERIFY(!ambiente.Tipo(QStringLiteral("FormaR"), id).isNull());
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaR"), id).toString(), QString());
    QVERIFY(ambiente.Tipo(QStringLiteral("TipologiaR"), id).isNull());
    QVERIFY(ambiente.Tipo(QStringLiteral("TipologIcoR"), id).isNull());
    QCOMPARE(ambiente.Tipo(QStringLiteral("TipologIcoV"), id).toString(), QStringLiteral("03"));
}

void TestSigillo::gliAnniSiMostranoComeAnniESiSalvanoComeNumeriDiOttoOSetteCifre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    QCOMPARE(Riga(&editore, 2)->text(), QString());
    editore.Modifica();
    Compila(editore);
    Riga(&editore, 2)->setText(QStringLiteral("812"));
    Riga(&editore, 3)->setText(QStringLiteral("1004"));
    editore.Salva(id);
    QCOMPARE(ambiente.Colonna(QStringLiteral("DataInizio"), id).toLongLong(), 8120101LL);
    QCOMPARE(ambiente.Colonna(QStringLiteral("DataFine"), id).toLongLong(), 10041231LL);
    EditorePronto<ucSigillo> altro(id);
    QCOMPARE(Riga(&altro, 2)->text(), QStringLiteral("812"));
    QCOMPARE(Riga(&altro, 3)->text(), QStringLiteral("1004"));
    // An empty year reads as empty.
    ambiente.Scrivi(QStringLiteral("DataInizio = ?"), {NullChiave(), Id(id)});
    altro.Mostra(id);
    QCOMPARE(Riga(&altro, 2)->text(), QString());
    QCOMPARE(Riga(&altro, 3)->text(), QStringLiteral("1004"));
}

void TestSigillo::laNaturaMostraONascondeIlVersoCheSiSalvaComunque() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    auto* frame2 = editore.findChild<QGroupBox*>(QStringLiteral("Frame2"));
    QComboBox* natura = Combo(&editore, "cmbTipol");
    QComboBox* formaVerso = Indice(&editore, "cmbForma", 1);
    QVERIFY(frame2->isHidden());
    editore.Modifica();
    Compila(editore);
    for (int i : {1, 2, 3}) {
        natura->setCurrentIndex(i);
        QVERIFY(!frame2->isHidden());
        QCOMPARE(formaVerso->property("Tag").toString(), QStringLiteral("Inserire forma"));
    }
    // A verso with its form mandatory: left empty, the check stops at it after the
    // conservation and before the relation.
    formaVerso->setEditText(QString());
    Riga(&editore, 28)->clear();
    Combo(&editore, "cmbDoc")->setCurrentIndex(-1);
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto,
             QStringLiteral("Inserire lo stato di conservazione e restauro"));
    Riga(&editore, 28)->setText(QStringLiteral("buono"));
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto, QStringLiteral("Inserire forma"));
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTitolo, QStringLiteral("Attenzione"));
    formaVerso->setEditText(QStringLiteral("Tonda"));
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto,
             QStringLiteral("Inserire il rapporto con il documento"));
    Combo(&editore, "cmbDoc")->setCurrentIndex(0);

    // The verso typed, then a natura without it: hidden, no longer mandatory, saved all the same.
    Blocco(&editore, 22)->setPlainText(QStringLiteral("Aquila"));
    Riga(&editore, 21)->setText(QStringLiteral("latino"));
    for (int i : {0, 4, 6, -1}) {
        natura->setCurrentIndex(i);
        QVERIFY(frame2->isHidden());
        QCOMPARE(formaVerso->property("Tag").toString(), QString());
        QCOMPARE(Blocco(&editore, 22)->property("Tag").toString(), QString());
    }
    natura->setCurrentIndex(0);
    formaVerso->setEditText(QString());
    const int iMessaggi = static_cast<int>(ambiente.seam.Messaggi().size());
    QVERIFY(editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().size(), iMessaggi);
    editore.Salva(id);
    QCOMPARE(ambiente.Tipo(QStringLiteral("DescrizioneV"), id).toString(),
             QStringLiteral("Aquila"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("LinguaV"), id).toString(), QStringLiteral("latino"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaV"), id).toString(), QString());
    // Shown, the natura chosen brings its verso back.
    ambiente.Scrivi(QStringLiteral("Tipologia = ?"), {QStringLiteral("02"), Id(id)});
    editore.Mostra(id);
    QVERIFY(!frame2->isHidden());
    QCOMPARE(Blocco(&editore, 22)->toPlainText(), QStringLiteral("Aquila"));
}

void TestSigillo::leComboModificabiliRifiutanoPiuDi128CaratteriAllUscita() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    QVERIFY(Attiva(editore));
    editore.Modifica();
    Compila(editore);
    auto* tab = editore.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    struct Caso {
        const char* combo;
        int scheda;
        int casella; // a box of the same tab, clicked to leave the combo
        const char* messaggio;
    };
    const Caso casi[] = {
        {"cmbApp", 1, 6, "Il campo Modo di Apposizione prevede un massimo di 128 caratteri!"},
        {"cmbForma(0)", 2, 16, "Il campo Forma prevede un massimo di 128 caratteri!"},
        {"cmbForma(1)", 2, 16, "Il campo Forma prevede un massimo di 128 caratteri!"},
        {"cmbTipoDG(0)", 2, 16,
         "Il campo Tipologia diplomatico-giuridica prevede un massimo di 128 caratteri!"},
        {"cmbTipoDG(1)", 2, 16,
         "Il campo Tipologia diplomatico-giuridica prevede un massimo di 128 caratteri!"},
    };
    Combo(&editore, "cmbTipol")->setCurrentIndex(1); // the verso shown
    int iAttesi = 0;
    for (const Caso& caso : casi) {
        tab->setCurrentIndex(caso.scheda);
        QComboBox* combo = Combo(&editore, caso.combo);
        QLineEdit* altra = Riga(&editore, caso.casella);
        // 128 characters leave freely; no limit while typing.
        combo->setFocus();
        combo->setEditText(Lungo(QStringLiteral("abc "), 128));
        QTest::mouseClick(altra, Qt::LeftButton);
        QCOMPARE(ambiente.seam.Messaggi().size(), iAttesi);
        QVERIFY2(altra->hasFocus(), caso.combo);
        // 129 are refused: the message, the focus back, the text whole.
        combo->setFocus();
        const QString sLungo = Lungo(QStringLiteral("abc "), 129);
        combo->setEditText(sLungo);
        QTest::mouseClick(altra, Qt::LeftButton);
        ++iAttesi;
        QCOMPARE(ambiente.seam.Messaggi().size(), iAttesi);
        const Messaggio messaggio = ambiente.seam.Messaggi().constLast();
        QCOMPARE(messaggio.sTesto, QLatin1String(caso.messaggio));
        QCOMPARE(messaggio.icona, Icona::Esclamazione);
        QVERIFY2(combo->hasFocus(), caso.combo);
        QCOMPARE(combo->currentText(), sLungo);
        combo->setEditText(QStringLiteral("breve"));
        QTest::mouseClick(altra, Qt::LeftButton);
        QCOMPARE(ambiente.seam.Messaggi().size(), iAttesi);
    }
}

void TestSigillo::unaMateriaSconosciutaLasciaLaComboVuotaEFermaIlSalva() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    editore.Modifica();
    Compila(editore);
    Indice(&editore, "cmbTipoIco", 0)->setCurrentIndex(4);
    editore.Salva(id);
    QCOMPARE(ambiente.Tipo(QStringLiteral("TipologIcoR"), id).toString(), QStringLiteral("04"));

    // A matter that no line of the list has, a Null iconographic type.
    ambiente.Scrivi(QStringLiteral("MateriaNuovo = ?"), {QStringLiteral("77"), Id(id)});
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE SGTipo SET TipologIcoR = NULL WHERE ID_Sigillo "
                       "= (SELECT ID_Sigillo FROM Sigilli WHERE ID_Elemento = ?)"),
        {Id(id)});
    editore.Mostra(id);
    QCOMPARE(Combo(&editore, "cmbMat")->currentIndex(), -1);
    QCOMPARE(Indice(&editore, "cmbTipoIco", 0)->currentIndex(), 0);
    QCOMPARE(Indice(&editore, "cmbTipoIco", 0)->currentText(), QString());
    editore.Modifica();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto, QStringLiteral("Inserire la materia"));
}

void TestSigillo::pubblicareSottoUnPadreNonPubblicatoERifiutato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long chiuso = ambiente.Crea("05", QStringLiteral("Pergamena chiusa"));
    const long aperta = ambiente.Crea("05", QStringLiteral("Pergamena aperta"));
    const auto pubblica = [](long id, const char* valore) {
        Sessione::cnn->Esegui(
            QStringLiteral("UPDATE Elementi SET Pubblicato = ? WHERE ID_Elemento = ?"),
            {QLatin1String(valore), Id(id)});
    };
    pubblica(chiuso, "N");
    pubblica(aperta, "S");
    const long sotto = ambiente.Crea("06", QStringLiteral("Sotto la chiusa"), chiuso);
    const long libero = ambiente.Crea("06", QStringLiteral("Sotto l'aperta"), aperta);

    EditorePronto<ucSigillo> editore(sotto);
    QCheckBox* pubblicato = editore.findChild<QCheckBox*>(QStringLiteral("chkPubblicaSG"));
    editore.Modifica();
    Compila(editore);
    pubblicato->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Sigillo non pubblicabile"));
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
    QVERIFY(!pubblicato->isChecked());
    editore.Salva(sotto);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), sotto).toString(),
             QStringLiteral("N"));

    ambiente.seam.Svuota();
    editore.Mostra(libero);
    editore.Modifica();
    Compila(editore);
    pubblicato->click();
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    editore.Salva(libero);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), libero).toString(),
             QStringLiteral("S"));

    // A new seal under the closed parchment is refused as well.
    editore.Nuovo(chiuso);
    pubblicato->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QVERIFY(!pubblicato->isChecked());
}

void TestSigillo::senzaLaRigaDelTipoIlSalvaNonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    editore.Modifica();
    Compila(editore);
    editore.findChild<QCheckBox*>(QStringLiteral("chkPubblicaSG"))->setChecked(true);
    ambiente.Cnn().Esegui(QStringLiteral("DELETE FROM SGTipo WHERE ID_Sigillo = (SELECT "
                                         "ID_Sigillo FROM Sigilli WHERE ID_Elemento = ?)"),
                          {Id(id)});
    QVERIFY_THROWS_EXCEPTION(Errore, editore.Salva(id));
    // Neither the element nor the seal was written.
    QVERIFY(ambiente.Nullo(QStringLiteral("Colore"), id));
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).isNull());
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString() !=
            QLatin1String("S"));
}

void TestSigillo::unSigilloCheNonCeSpegneTutto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    QVERIFY(editore.OkNuovoSigillo);
    QVERIFY(editore.OkModifica);
    QVERIFY(editore.OkCancella);
    QCOMPARE(editore.fID_Elem, id);
    QCOMPARE(Riga(&editore, 0)->text(), QStringLiteral("Sigillo"));
    QVERIFY(Pulsante(&editore, "cmdImmagine")->isEnabled());
    // Shown with a holder and a parchment linked, the two buttons say so.
    QVERIFY(!editore.Titolari);
    QVERIFY(!editore.PergameneLink);
    const long pergamena = ambiente.Crea("05", QStringLiteral("Pergamena"));
    ambiente.Cnn().Esegui(
        QStringLiteral("INSERT INTO Links (ID_Elemento, ID_ElementoLink) VALUES (?, ?)"),
        {Id(id), Id(pergamena)});
    editore.Mostra(id);
    QVERIFY(editore.PergameneLink);

    editore.Mostra(id + 1000);
    QVERIFY(!editore.OkNuovoSigillo);
    QVERIFY(!editore.OkModifica);
    QVERIFY(!editore.OkCancella);
    QVERIFY(!editore.PergameneLink);
    QCOMPARE(editore.fID_Elem, 0L);
    QVERIFY(!Pulsante(&editore, "cmdImmagine")->isEnabled());
}

void TestSigillo::titolariEPergameneSiApronoEIPulsantiSiRidipingono() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo del podestà"));
    const long pergamena = ambiente.Crea("05", QStringLiteral("Pergamena"));
    const long idSigillo = ambiente.Colonna(QStringLiteral("ID_Sigillo"), id).toLongLong();
    EditorePronto<ucSigillo> editore(id);
    QSignalSpy evento(&editore, &ucSigillo::EventoStato);
    QPushButton* titolari = Pulsante(&editore, "cmdMostraTitolari");
    QPushButton* pergamene = Pulsante(&editore, "cmdMostraPergamene");
    const QColor spento = titolari->palette().color(QPalette::Button);
    QVERIFY(titolari->isEnabled());
    QVERIFY(pergamene->isEnabled());

    // With no viewer yet, nothing opens and nothing is raised.
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkTitolari"));
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkPGS"));
    titolari->click();
    pergamene->click();
    QCOMPARE(evento.count(), 0);

    // Stand-ins that note what they find and make a link, then close.
    QString sAperto;
    Dialoghi::Argomenti argomenti;
    long lLink = 0;
    QString sDenominazione;
    for (const QString& nome :
         {QStringLiteral("frmMostraLinkTitolari"), QStringLiteral("frmMostraLinkPGS")}) {
        Dialoghi::Registra(
            nome, [&, nome](QWidget* genitore, const Dialoghi::Argomenti& dati) -> QDialog* {
                sAperto = nome;
                argomenti = dati;
                lLink = Sessione::lIdElementoLink;
                sDenominazione = Sessione::sDenomElementoLink;
                if (nome == QLatin1String("frmMostraLinkPGS"))
                    Sessione::cnn->Esegui(QStringLiteral("INSERT INTO Links (ID_Elemento, "
                                                         "ID_ElementoLink) VALUES (?, ?)"),
                                          {Id(id), Id(pergamena)});
                auto* dlg = new QDialog(genitore);
                QTimer::singleShot(0, dlg, &QDialog::accept);
                return dlg;
            });
    }
    titolari->click();
    QCOMPARE(sAperto, QStringLiteral("frmMostraLinkTitolari"));
    QCOMPARE(argomenti.value(QStringLiteral("bFromSigilli")).toBool(), true);
    QCOMPARE(lLink, idSigillo);
    QCOMPARE(sDenominazione, QStringLiteral("Sigillo del podestà"));
    QCOMPARE(evento.count(), 1);
    QVERIFY(!editore.Titolari);

    QVERIFY(!editore.PergameneLink);
    pergamene->click();
    QCOMPARE(sAperto, QStringLiteral("frmMostraLinkPGS"));
    QCOMPARE(argomenti.value(QStringLiteral("lIdSigillo")).toLongLong(), qlonglong(id));
    QCOMPARE(argomenti.value(QStringLiteral("lIdPergamena")).toLongLong(), qlonglong(0));
    QCOMPARE(argomenti.value(QStringLiteral("sDenominazione")).toString(),
             QStringLiteral("Sigillo del podestà"));
    QCOMPARE(evento.count(), 2);
    QVERIFY(editore.PergameneLink);
    QVERIFY(pergamene->palette().color(QPalette::Button) != spento);
    QCOMPARE(titolari->palette().color(QPalette::Button), spento);
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkTitolari"));
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkPGS"));

    // While the record is edited the two buttons are off.
    editore.Modifica();
    QVERIFY(!titolari->isEnabled());
    QVERIFY(!pergamene->isEnabled());
}

void TestSigillo::unSigilloConTitolariOFigliLoDiceAiPulsantiENonSiCancella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    QPushButton* titolari = Pulsante(&editore, "cmdMostraTitolari");
    const QColor spento = titolari->palette().color(QPalette::Button);
    QVERIFY(!editore.Titolari);
    QVERIFY(editore.OkCancella);

    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO Titolari (Nome) VALUES (?)"),
                          {QStringLiteral("Comune di Lucca")});
    const QVariant idTitolare =
        ambiente.Valore(QStringLiteral("SELECT ID_Titolare FROM Titolari WHERE Nome = ?"),
                        {QStringLiteral("Comune di Lucca")});
    ambiente.Cnn().Esegui(
        QStringLiteral("INSERT INTO SGTitolari (ID_Sigillo, ID_Titolare) VALUES (?, ?)"),
        {ambiente.Colonna(QStringLiteral("ID_Sigillo"), id), idTitolare});
    editore.Mostra(id);
    QVERIFY(editore.Titolari);
    QVERIFY(titolari->palette().color(QPalette::Button) != spento);
    QVERIFY(editore.OkCancella);

    // A child under the seal: no delete.
    ambiente.Crea("06", QStringLiteral("Controsigillo"), id);
    editore.Mostra(id);
    QVERIFY(!editore.OkCancella);
    QVERIFY(editore.OkModifica);
}

void TestSigillo::unAnnoCheNonENumeroEUnErroreDelSalvaCheNonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    editore.Modifica();
    Compila(editore);
    // The box takes any four characters: nothing checks them before the save.
    Riga(&editore, 2)->setText(QStringLiteral("12a"));
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY_THROWS_EXCEPTION(Errore, editore.Salva(id));
    QVERIFY(ambiente.Nullo(QStringLiteral("DataInizio"), id));
    QVERIFY(ambiente.Nullo(QStringLiteral("Colore"), id));
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).isNull());
}

void TestSigillo::ilRapportoNascostoDaIlSuoMessaggioSenzaPrendereIlFuoco() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucSigillo> editore;
    QVERIFY(Attiva(editore));
    editore.Nuovo(0);
    Compila(editore);
    QComboBox* rapporto = Combo(&editore, "cmbDoc");
    QVERIFY(rapporto->isHidden());
    rapporto->setCurrentIndex(-1);
    Riga(&editore, 0)->setFocus();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto,
             QStringLiteral("Inserire il rapporto con il documento"));
    QVERIFY(!rapporto->hasFocus());
    QVERIFY(Riga(&editore, 0)->hasFocus());
    // The button of the parchments linked follows the host.
    editore.MostraPergameneVisible(false);
    QVERIFY(Pulsante(&editore, "cmdMostraPergamene")->isHidden());
    editore.MostraPergameneVisible(true);
    QVERIFY(!Pulsante(&editore, "cmdMostraPergamene")->isHidden());
}

void TestSigillo::ilPulsanteDellImmagineSegueIlDocumentoMag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.Crea("06", QStringLiteral("Sigillo"));
    EditorePronto<ucSigillo> editore(id);
    QPushButton* immagine = Pulsante(&editore, "cmdImmagine");
    QVERIFY(immagine->isEnabled());
    QCOMPARE(immagine->text(), QStringLiteral("Immagine"));

    // A MAG document that is not there: the error's description in a critical box.
    ambiente.seam.fileScelti = {ambiente.cartella.Percorso() + QStringLiteral("/manca/mag.xml")};
    immagine->click();
    QCOMPARE(ambiente.seam.Chiamate(QStringLiteral("file")).size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Critica);
    QVERIFY(!ambiente.seam.Messaggi().at(0).sTesto.isEmpty());
    QCOMPARE(immagine->text(), QStringLiteral("Immagine"));

    // A seal with its MAG document: the removal asks first, and No keeps it.
    ambiente.seam.Svuota();
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                          {QStringLiteral("0123456789abcdef0123456789abcdef"), Id(id)});
    editore.Mostra(id);
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(immagine->property("Tag").toString(), QStringLiteral("1"));
    ambiente.seam.risposte = {Risposta::No};
    immagine->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto,
             QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Cancella Immagini. "));
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    // A save keeps the link the element holds; while editing the button is off.
    editore.Modifica();
    QVERIFY(!immagine->isEnabled());
    Compila(editore);
    editore.Salva(id);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(),
             QStringLiteral("0123456789abcdef0123456789abcdef"));
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    QVERIFY(immagine->isEnabled());
}

void TestSigillo::unSigilloSiCreaEMostraAttraversoLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long pergamena = ambiente.Crea("05", QStringLiteral("Pergamena"));
    auto [editore, ospite] = OspiteSigillo(pergamena);
    QVERIFY(Attiva(ospite));
    QVERIFY(ospite.cmdNuovo->isEnabled());

    // The empty form is refused at its first mandatory field and writes no seal.
    ospite.cmdNuovo->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().value(0).sTesto, QStringLiteral("Inserire Identificativo"));
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE Tipologia = ?"),
                         {QStringLiteral("06")})
                 .toInt(),
             0);
    // Filled in, it is written under the parchment and shown.
    Compila(*editore);
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    const long id = ospite.IdCorrente();
    QVERIFY(id > 0);
    QCOMPARE(editore->fID_Elem, id);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("ID_ElementoPadre"), id).toLongLong(),
             qlonglong(pergamena));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Identificativo"), id).toString(),
             QStringLiteral("Sigillo del comune"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Colore"), id).toString(), QStringLiteral("rosso"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Apposizione"), id).toString(),
             QStringLiteral("Pendente a cordoni di seta"));
    QCOMPARE(ambiente.Tipo(QStringLiteral("FormaR"), id).toString(), QStringLiteral("Rotonda"));
    QCOMPARE(Riga(editore, 6)->text(), QStringLiteral("rosso"));
    QVERIFY(!Riga(editore, 6)->isEnabled());
    QVERIFY(ospite.cmdModifica->isEnabled());
    QVERIFY(ospite.cmdCancella->isEnabled());
}

QTEST_MAIN(TestSigillo)
#include "tst_sigillo.moc"
