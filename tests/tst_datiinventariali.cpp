// The record of a unit of an analytical inventory, on SQLite and on PostgreSQL: the form, its
// labels, limits and mandatory walk, the round trip of every field through DatiInventariali and
// Elementi, the level combo built from the parent's level down, a stored level no longer
// offered, the two unit levels without the conditions, the packing unit that asks for its
// number, the full dates that refuse to lose the focus, the state read with the unit (a unit
// tied to a complesso stays), a failed save, the publishing rule, the link viewers opened by
// name and the image button.

#include "records/ucDatiInventariali.h"
#include "session/Conversioni.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTimer>
#include <QtTest>
#include <algorithm>

namespace {

// A program folder with the list of the levels, a fresh database, the session's connection and
// the scripted seam.
struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("DatiInventariali"), {"LivelliDI.txt"}) {}
    // An institute, a finding aid under it and a unit under the finding aid.
    struct Albero {
        long istituto, inventario, unita;
    };
    Albero CreaUnita(const QString& sTitolo = QStringLiteral("Serie prima")) const {
        Albero a{};
        a.istituto = CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
        a.inventario = Crea("03", QStringLiteral("Inventario"), a.istituto);
        a.unita = Crea("07", sTitolo, a.inventario);
        return a;
    }
    // The key of the finding aid's row of Inventari.
    long IdInventario(long idElemento) const {
        return ColonnaDi(QStringLiteral("Inventari"), QStringLiteral("ID_Inventario"), idElemento)
            .toInt();
    }
    long IdDato(long idElemento) const {
        return Colonna(QStringLiteral("ID_DatoInventariale"), idElemento).toInt();
    }
    void Livello(long idElemento, const QString& sTipologia) const {
        Scrivi(QStringLiteral("Tipologia = ?"), {sTipologia, Id(idElemento)});
    }
    // All the columns of an element's row of a table, in their order.
    QVariantList RigaDi(const QString& tabella, long idElemento) const {
        QSqlQuery riga =
            Cnn().Esegui(QStringLiteral("SELECT * FROM %1 WHERE ID_Elemento = ?").arg(tabella),
                         {Id(idElemento)});
        QVariantList valori;
        if (riga.next()) {
            for (int i = 0; i < riga.record().count(); ++i)
                valori << riga.value(i);
        }
        return valori;
    }
};

QCheckBox* Casella(const QWidget* editore, const char* nome) {
    return editore->findChild<QCheckBox*>(QLatin1String(nome));
}
QComboBox* Livelli(const QWidget* editore) {
    return Combo(editore, "cmbTipologiaDI");
}
QDateEdit* DataRedazione(const QWidget* editore) {
    return editore->findChild<QDateEdit*>(QStringLiteral("DTPData"));
}
QString Tag(const QWidget* controllo) {
    return controllo->property("Tag").toString();
}
// The texts of the entries of a combo and their item data.
QStringList VociLivelli(const QComboBox* cmb) {
    QStringList voci;
    for (int i = 0; i < cmb->count(); ++i)
        voci << QStringLiteral("%1 %2").arg(cmb->itemData(i).toLongLong()).arg(cmb->itemText(i));
    return voci;
}

// The piece repeated up to n characters, the last a letter: Mostra trims the blanks at the ends.
QString Pieno(const QString& pezzo, int n) {
    return Lungo(pezzo, n - 1) + QLatin1Char('z');
}

// The mandatory fields filled in, the first level chosen.
void Compila(ucDatiInventariali& editore) {
    Riga(&editore, 14)->setText(QStringLiteral("Serie \"Atti\" d'archivio"));
    Riga(&editore, 10)->setText(QStringLiteral("Niccolò Rossi"));
    Riga(&editore, 7)->setText(QStringLiteral("3 buste"));
    Riga(&editore, 6)->setText(QStringLiteral("31/12/1899"));
    Riga(&editore, 5)->setText(QStringLiteral("01/01/1850"));
    Riga(&editore, 4)->setText(QStringLiteral("1850-1899"));
    Livelli(&editore)->setCurrentIndex(0);
}

// The host of units under a parent, its buttons following the record's flags.
EditoreOspitato<ucDatiInventariali> OspiteUnita(long padre) {
    return {"07", padre, &ucDatiInventariali::OkNuovoDatoInventariale};
}

// The five conditions of a higher-level description.
const QList<int> Condizioni = {19, 9, 11, 16, 17};

} // namespace

class TestDatiInventariali : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void iCampiHannoEtichetteLimitiETagEIlLivelloDalFile_data() { AggiungiBackend(); }
    void iCampiHannoEtichetteLimitiETagEIlLivelloDalFile();
    void gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi_data() { AggiungiBackend(); }
    void gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi();
    void ogniCampoFaIlGiroInDatiInventarialiEdElementiColonnaPerColonna_data() {
        AggiungiBackend();
    }
    void ogniCampoFaIlGiroInDatiInventarialiEdElementiColonnaPerColonna();
    void unaDataDiSetteCifreMostraLAnnoInTreEResta_data() { AggiungiBackend(); }
    void unaDataDiSetteCifreMostraLAnnoInTreEResta();
    void iLivelliOffertiPartonoSottoQuelloDelPadre_data() { AggiungiBackend(); }
    void iLivelliOffertiPartonoSottoQuelloDelPadre();
    void sottoLUltimoLivelloNonSiSalvaNulla_data() { AggiungiBackend(); }
    void sottoLUltimoLivelloNonSiSalvaNulla();
    void unLivelloNonPiuOffertoNonMostraNullaESiSalvaDoppioZero_data() { AggiungiBackend(); }
    void unLivelloNonPiuOffertoNonMostraNullaESiSalvaDoppioZero();
    void iDueLivelliDiUnitaSpengonoESvuotanoLeCondizioni_data() { AggiungiBackend(); }
    void iDueLivelliDiUnitaSpengonoESvuotanoLeCondizioni();
    void ilNumeroEObbligatorioSoloPerUnUnitaDiCondizionamento_data() { AggiungiBackend(); }
    void ilNumeroEObbligatorioSoloPerUnUnitaDiCondizionamento();
    void unaDataErrataNonLasciaAndareIlFuoco_data() { AggiungiBackend(); }
    void unaDataErrataNonLasciaAndareIlFuoco();
    void unUnitaLegataAUnComplessoOConFigliNonSiCancella_data() { AggiungiBackend(); }
    void unUnitaLegataAUnComplessoOConFigliNonSiCancella();
    void unSalvataggioFallitoLasciaLeDueTabelleComErano_data() { AggiungiBackend(); }
    void unSalvataggioFallitoLasciaLeDueTabelleComErano();
    void senzaRigaDellUnitaNonSiScriveIlDettaglioESiSpegneTutto_data() { AggiungiBackend(); }
    void senzaRigaDellUnitaNonSiScriveIlDettaglioESiSpegneTutto();
    void pubblicareSottoUnPadreNonPubblicatoERifiutato_data() { AggiungiBackend(); }
    void pubblicareSottoUnPadreNonPubblicatoERifiutato();
    void iFlagDeiCollegamentiSiLeggonoConLUnitaEColoranoIPulsanti_data() { AggiungiBackend(); }
    void iFlagDeiCollegamentiSiLeggonoConLUnitaEColoranoIPulsanti();
    void senzaIVisualizzatoriRegistratiIPulsantiNonFannoNulla_data() { AggiungiBackend(); }
    void senzaIVisualizzatoriRegistratiIPulsantiNonFannoNulla();
    void ogniVisualizzatoreRiceveISuoiValoriEPoiSiRileggonoIFlag_data() { AggiungiBackend(); }
    void ogniVisualizzatoreRiceveISuoiValoriEPoiSiRileggonoIFlag();
    void ilPulsanteImmagineChiedeConIlTitoloBreve_data() { AggiungiBackend(); }
    void ilPulsanteImmagineChiedeConIlTitoloBreve();
    void unaNuovaUnitaSiCreaSottoIlPadreAttraversoLOspite_data() { AggiungiBackend(); }
    void unaNuovaUnitaSiCreaSottoIlPadreAttraversoLOspite();
    void iLivelliPrendonoIlCodiceDallaPosizioneNelFileNonDalFile_data() { AggiungiBackend(); }
    void iLivelliPrendonoIlCodiceDallaPosizioneNelFileNonDalFile();
    void unErroreNelRiempireILivelliSiMostraConErroreT5_data() { AggiungiBackend(); }
    void unErroreNelRiempireILivelliSiMostraConErroreT5();
    void unErroreNelControlloDiPubblicazioneSiMostraConErroreU1_data() { AggiungiBackend(); }
    void unErroreNelControlloDiPubblicazioneSiMostraConErroreU1();
    void iTestiSiMostranoSenzaIBianchiAiLati_data() { AggiungiBackend(); }
    void iTestiSiMostranoSenzaIBianchiAiLati();
    void laTastieraPercorreIlModuloComeSiVede();
    void nuovoSvuotaIlModuloDopoUnUnitaMostrata_data() { AggiungiBackend(); }
    void nuovoSvuotaIlModuloDopoUnUnitaMostrata();
    void annullaUnaModificaRiportaIValoriSalvati_data() { AggiungiBackend(); }
    void annullaUnaModificaRiportaIValoriSalvati();
};

void TestDatiInventariali::iCampiHannoEtichetteLimitiETagEIlLivelloDalFile() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucDatiInventariali> editore;
    QStringList nomi;
    const QList<QWidget*> controlli = editore.Controls();
    for (const QWidget* controllo : controlli)
        nomi << controllo->objectName();
    QCOMPARE(nomi, QStringList({"Text1(14)", "Text1(10)",     "Text1(7)",  "Text1(6)",
                                "Text1(5)",  "Text1(4)",      "Text1(1)",  "cmbTipologiaDI",
                                "Text1(13)", "chkUnitaCond",  "Text1(2)",  "Text1(3)",
                                "Text1(12)", "Text1(8)",      "Text1(15)", "Text1(19)",
                                "Text1(9)",  "Text1(11)",     "Text1(16)", "Text1(17)",
                                "Text1(18)", "chkPubblicaDI", "DTPData"}));

    // Each box with its label (the label's index is the column's ordinal) and its limit.
    struct Campo {
        int n;
        int etichetta;
        const char* testo;
        int iMax;
    };
    const QList<Campo> campi = {
        {1, 1, "Numero di corda", 64},
        {2, 2, "Condizionamento", 64},
        {3, 3, "Descrizione ", 1024},
        {4, 4, "Datazione (testo)", 128},
        {5, 5, "Data inizio", 10},
        {6, 6, "Data fine", 10},
        {7, 7, "Consistenza", 64},
        {8, 8, "Documentazione collegata e note", 1024},
        {10, 10, "Redattore", 64},
        {12, 12, "Parole chiave per la ricerca", 512},
        {13, 13, "Numero d'ordinamento", 3},
        {14, 14, "Denominazione", 128},
        {15, 15, "Modalità di acquisizione e versamento", 256},
        {19, 16, "Criteri di ordinamento", 256},
        {9, 17, "Condizioni di accesso", 256},
        {11, 18, "Condizioni per la riproduzione", 128},
        {16, 19, "Lingua/Scrittura", 128},
        {17, 20, "Stato di conservazione", 256},
        {18, 21, "Note gestionali", 1024},
    };
    for (const Campo& c : campi) {
        const QString sCampo = QString::number(c.n);
        const auto* casella = editore.findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(c.n));
        QVERIFY2(casella != nullptr, qPrintable(sCampo));
        QCOMPARE(Etichetta(&editore, c.etichetta)->text(), QString::fromUtf8(c.testo));
        QVERIFY2(Etichetta(&editore, c.etichetta)->buddy() == casella, qPrintable(sCampo));
        if (const auto* riga = qobject_cast<const QLineEdit*>(casella))
            QCOMPARE(riga->maxLength(), c.iMax);
        else
            QCOMPARE(casella->property("MaxLength").toInt(), c.iMax);
    }
    QCOMPARE(Etichetta(&editore, 0)->text(), QStringLiteral("Livello di descrizione"));
    QVERIFY(Etichetta(&editore, 0)->buddy() == Livelli(&editore));
    QCOMPARE(Etichetta(&editore, 22)->text(), QStringLiteral("Unità di condizionamento"));
    QVERIFY(Etichetta(&editore, 22)->buddy() == Casella(&editore, "chkUnitaCond"));
    QCOMPARE(Casella(&editore, "chkPubblicaDI")->text(), QStringLiteral("Visibile sul web"));

    // The mandatory messages; the number only for a packing unit.
    const QList<std::pair<const char*, const char*>> obbligatori = {
        {"Text1(14)", "Inserire denominazione"},  {"Text1(10)", "Inserire redattore"},
        {"Text1(7)", "Inserire Consistenza"},     {"Text1(6)", "Inserire anno fine"},
        {"Text1(5)", "Inserire anno inizio"},     {"Text1(4)", "Inserire datazione"},
        {"cmbTipologiaDI", "Inserire tipologia"},
    };
    for (const QString& nome : std::as_const(nomi)) {
        const auto trovato =
            std::find_if(obbligatori.begin(), obbligatori.end(),
                         [&nome](const auto& o) { return nome == QLatin1String(o.first); });
        const QString atteso =
            trovato == obbligatori.end() ? QString() : QString::fromUtf8(trovato->second);
        QCOMPARE(Tag(editore.findChild<QWidget*>(nome)), atteso);
    }

    // The buttons.
    QCOMPARE(Pulsante(&editore, "cmdMostraAntroponimi")->text(), QStringLiteral("Persone"));
    QCOMPARE(Pulsante(&editore, "cmdMostraSoggetti")->text(), QStringLiteral("Produttori"));
    QCOMPARE(Pulsante(&editore, "cmdMostraToponimi")->text(), QStringLiteral("Toponimi"));
    QCOMPARE(Pulsante(&editore, "cmdMostraLink")->text(), QString());
    QCOMPARE(Pulsante(&editore, "cmdCoseNotevoli")->text(), QStringLiteral("Cose notevoli"));
    QCOMPARE(Pulsante(&editore, "cmdImmagine")->text(), QStringLiteral("Immagine"));

    // The levels of the program folder's list, in the order of its file.
    QCOMPARE(VociLivelli(Livelli(&editore)),
             QStringList({"1 Serie", "2 Sottoserie", "3 Sottosottoserie", "4 Busta",
                          "5 Unità archivistica", "6 Unità documentaria"}));
    QCOMPARE(editore.CercaTipologiaDI(QStringLiteral("04")), 3);
    QCOMPARE(editore.CercaTipologiaDI(QStringLiteral("07")), -1);

    // After Init: locked, a new unit allowed and nothing else.
    QVERIFY(editore.OkNuovoDatoInventariale);
    QVERIFY(!editore.OkModifica && !editore.OkCancella);
    QVERIFY(!editore.Soggetti && !editore.Antroponimi && !editore.Toponimi);
    QCOMPARE(editore.fID_Elem, 0L);
    QCOMPARE(editore.ID_Inventario, 0L);
    QVERIFY(!Riga(&editore, 14)->isEnabled());
}

void TestDatiInventariali::gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    EditorePronto<ucDatiInventariali> editore;
    editore.AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.inventario);
    editore.Nuovo();
    const QStringList attesi = {
        QStringLiteral("Inserire denominazione"), QStringLiteral("Inserire redattore"),
        QStringLiteral("Inserire Consistenza"),   QStringLiteral("Inserire anno fine"),
        QStringLiteral("Inserire anno inizio"),   QStringLiteral("Inserire datazione"),
        QStringLiteral("Inserire tipologia")};
    const QList<std::function<void()>> riempi = {
        [&] { Riga(&editore, 14)->setText(QStringLiteral("Serie")); },
        [&] { Riga(&editore, 10)->setText(QStringLiteral("Rossi")); },
        [&] { Riga(&editore, 7)->setText(QStringLiteral("2 buste")); },
        [&] { Riga(&editore, 6)->setText(QStringLiteral("31/12/1900")); },
        [&] { Riga(&editore, 5)->setText(QStringLiteral("01/01/1900")); },
        [&] { Riga(&editore, 4)->setText(QStringLiteral("1900")); },
        [&] { Livelli(&editore)->setCurrentIndex(1); },
    };
    for (int i = 0; i < attesi.size(); ++i) {
        ambiente.seam.Svuota();
        QVERIFY(!editore.CheckMandatoryFields());
        QCOMPARE(ambiente.seam.Messaggi().size(), 1);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, attesi.at(i));
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
        riempi.at(i)();
    }
    ambiente.seam.Svuota();
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    // The placeholder of a row never saved, and blanks, count as empty.
    for (const QString& vuoto : {QStringLiteral("<<Inserire valore>>"), QStringLiteral("   ")}) {
        Riga(&editore, 14)->setText(vuoto);
        ambiente.seam.Svuota();
        QVERIFY(!editore.CheckMandatoryFields());
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire denominazione"));
    }
}

void TestDatiInventariali::ogniCampoFaIlGiroInDatiInventarialiEdElementiColonnaPerColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    const long id = albero.unita;
    const long idDato = ambiente.IdDato(id);
    QVERIFY(idDato > 0);

    EditorePronto<ucDatiInventariali> editore(id);
    QCOMPARE(editore.fID_Elem, id);
    QCOMPARE(editore.ID_Inventario, ambiente.IdInventario(albero.inventario));
    QCOMPARE(Testo(&editore, 14), QStringLiteral("Serie prima"));
    editore.Modifica();

    // Each text column at its length, with quotes and accents.
    struct Valore {
        int n;
        const char* colonna;
        QString testo;
    };
    const QList<Valore> testi = {
        {2, "Descrizione", Pieno(QStringLiteral("Busta \"grande\" d'archivio "), 64)},
        {3, "DescrizioneTestuale", Pieno(QStringLiteral("Atti 'vari' più \"lunghi\";\n"), 1024)},
        {4, "DescrizioneEstremi", Pieno(QStringLiteral("sec. XIX «fine» è "), 128)},
        {7, "Classificazione", Pieno(QStringLiteral("3 buste, 'b' ù "), 64)},
        {8, "Note", Pieno(QStringLiteral("Nota \"collegata\" à "), 1024)},
        {12, "CoseNotevoli", Pieno(QStringLiteral("chiave 'x' ò "), 512)},
        {13, "Ordinamento", QStringLiteral("1'à")},
        {14, "Titolo", Pieno(QStringLiteral("Serie «Atti» dell'Università "), 128)},
        {15, "Acquisizione", Pieno(QStringLiteral("Deposito 'del' Comune è "), 256)},
        {19, "CriteriOrdinamento", Pieno(QStringLiteral("Cronologico \"stretto\" "), 256)},
        {9, "Accesso", Pieno(QStringLiteral("Libero 'sì' "), 256)},
        {11, "Riproduzione", Pieno(QStringLiteral("Ammessa «foto» "), 128)},
        {16, "Lingua", Pieno(QStringLiteral("Italiano; latino à "), 128)},
        {17, "Conservazione", Pieno(QStringLiteral("Buono, \"restaurato\" "), 256)},
        {18, "NoteGestionali", Pieno(QStringLiteral("Gestione 'n' è "), 1024)},
    };
    for (const Valore& v : testi) {
        if (QLineEdit* riga = Riga(&editore, v.n))
            riga->setText(v.testo);
        else
            Blocco(&editore, v.n)->setPlainText(v.testo);
    }
    Livelli(&editore)->setCurrentIndex(1); // "02" Sottoserie
    Casella(&editore, "chkUnitaCond")->setChecked(true);
    const QString sNumero = Lungo(QStringLiteral("N.'è'"), 62);
    Riga(&editore, 1)->setText(QStringLiteral(" ") + sNumero + QStringLiteral(" "));
    Riga(&editore, 5)->setText(QStringLiteral("01/01/100"));
    Riga(&editore, 6)->setText(QStringLiteral("31/12/9999"));
    const QString sRedattore = Pieno(QStringLiteral("Niccolò D'Amico "), 64);
    Riga(&editore, 10)->setText(sRedattore);
    Casella(&editore, "chkPubblicaDI")->setChecked(true);
    DataRedazione(&editore)->setDate(QDate(2024, 5, 17));
    editore.Salva(id);

    // Elementi.
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("S"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(), sRedattore);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("DataRedazione"), id).toDateTime().date(),
             QDate(2024, 5, 17));
    QVERIFY(ENull(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id)));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("ID_ElementoPadre"), id).toLongLong(),
             qlonglong(albero.inventario));
    // DatiInventariali, column by column.
    const auto colonna = [&](const char* nome) {
        return ambiente.Colonna(QLatin1String(nome), id);
    };
    for (const Valore& v : testi)
        QCOMPARE(colonna(v.colonna).toString(), v.testo);
    QCOMPARE(colonna("Tipologia").toString(), QStringLiteral("02"));
    QCOMPARE(colonna("Numero").toString(), sNumero);
    QCOMPARE(colonna("DataInizio").toLongLong(), qlonglong(1000101));
    QCOMPARE(colonna("DataFine").toLongLong(), qlonglong(99991231));
    QCOMPARE(colonna("Id_ElemComplDoc").toLongLong(), qlonglong(0));
    QCOMPARE(colonna("FlgUnitaCond").toLongLong(), qlonglong(1));
    // The keys are not touched.
    QCOMPARE(colonna("ID_DatoInventariale").toLongLong(), qlonglong(idDato));
    QCOMPARE(colonna("ID_Inventario").toLongLong(), qlonglong(editore.ID_Inventario));
    // After the save the state is that of the unit shown.
    QCOMPARE(editore.fID_Elem, id);
    QVERIFY(editore.OkModifica && editore.OkCancella && editore.OkNuovoDatoInventariale);
    QVERIFY(!Riga(&editore, 14)->isEnabled());

    // Shown again, each box as it was typed (the number trimmed).
    EditorePronto<ucDatiInventariali> altro(id);
    for (const Valore& v : testi)
        QCOMPARE(Testo(&altro, v.n), v.testo);
    QCOMPARE(Testo(&altro, 1), sNumero);
    QCOMPARE(Testo(&altro, 5), QStringLiteral("01/01/100"));
    QCOMPARE(Testo(&altro, 6), QStringLiteral("31/12/9999"));
    QCOMPARE(Testo(&altro, 10), sRedattore);
    QCOMPARE(Livelli(&altro)->currentText(), QStringLiteral("Sottoserie"));
    QVERIFY(Casella(&altro, "chkUnitaCond")->isChecked());
    QVERIFY(Casella(&altro, "chkPubblicaDI")->isChecked());
    QCOMPARE(DataRedazione(&altro)->date(), QDate(2024, 5, 17));
    QCOMPARE(altro.LeggiDenominazione(), testi.at(7).testo);

    // Emptied, the texts are stored as Null, the title and the number as empty texts, the
    // dates as Null and the packing unit as 0.
    altro.Modifica();
    for (const Valore& v : testi) {
        if (QLineEdit* riga = Riga(&altro, v.n))
            riga->clear();
        else
            Blocco(&altro, v.n)->clear();
    }
    Riga(&altro, 5)->clear();
    Riga(&altro, 6)->clear();
    Riga(&altro, 10)->clear();
    Casella(&altro, "chkUnitaCond")->setChecked(false);
    altro.Salva(id);
    for (const Valore& v : testi) {
        if (v.n == 14)
            QCOMPARE(colonna(v.colonna).toString(), QString());
        else
            QVERIFY2(ENull(colonna(v.colonna)), v.colonna);
    }
    QVERIFY(!ENull(colonna("Titolo")));
    QVERIFY(!ENull(colonna("Numero")));
    QCOMPARE(colonna("Numero").toString(), QString());
    QVERIFY(ENull(colonna("DataInizio")));
    QVERIFY(ENull(colonna("DataFine")));
    QCOMPARE(colonna("FlgUnitaCond").toLongLong(), qlonglong(0));
    QVERIFY(ENull(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id)));
}

void TestDatiInventariali::unaDataDiSetteCifreMostraLAnnoInTreEResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaUnita().unita;
    ambiente.Scrivi(QStringLiteral("DataInizio = ?, DataFine = ?"),
                    {QVariant(qlonglong(9001231)), QVariant(qlonglong(19000101)), Id(id)});
    EditorePronto<ucDatiInventariali> editore(id);
    QCOMPARE(Testo(&editore, 5), QStringLiteral("31/12/900"));
    QCOMPARE(Testo(&editore, 6), QStringLiteral("01/01/1900"));
    editore.Modifica();
    editore.Salva(id);
    QCOMPARE(ambiente.Colonna(QStringLiteral("DataInizio"), id).toLongLong(), qlonglong(9001231));
    QCOMPARE(ambiente.Colonna(QStringLiteral("DataFine"), id).toLongLong(), qlonglong(19000101));
}

void TestDatiInventariali::iLivelliOffertiPartonoSottoQuelloDelPadre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    const long idInventario = ambiente.IdInventario(albero.inventario);
    ambiente.Livello(albero.unita, QStringLiteral("03"));
    const long figlio = ambiente.Crea("07", QStringLiteral("Busta 1"), albero.unita);
    ambiente.Livello(figlio, QStringLiteral("04"));
    EditorePronto<ucDatiInventariali> editore;

    // Under a unit of level 3: from level 4 on, with the codes of their lines.
    editore.AssegnaInventario(idInventario, albero.unita);
    QCOMPARE(editore.ID_Inventario, idInventario);
    QCOMPARE(VociLivelli(Livelli(&editore)),
             QStringList({"4 Busta", "5 Unità archivistica", "6 Unità documentaria"}));
    QCOMPARE(Livelli(&editore)->currentIndex(), -1);
    // Under the finding aid: every level.
    editore.AssegnaInventario(idInventario, albero.inventario);
    QCOMPARE(Livelli(&editore)->count(), 6);
    QCOMPARE(Livelli(&editore)->itemData(0).toLongLong(), qlonglong(1));

    // Shown, a unit finds its level among those below its parent's; fID_Elem is the unit, the
    // parent of what is made under it.
    editore.Mostra(figlio);
    QCOMPARE(Livelli(&editore)->count(), 3);
    QCOMPARE(Livelli(&editore)->currentIndex(), 0);
    QCOMPARE(Livelli(&editore)->currentText(), QStringLiteral("Busta"));
    QCOMPARE(editore.fID_Elem, figlio);
    QCOMPARE(editore.ID_Inventario, idInventario);
    // A new unit under it starts below level 4.
    editore.AssegnaInventario(editore.ID_Inventario, editore.fID_Elem);
    editore.Nuovo();
    QCOMPARE(VociLivelli(Livelli(&editore)),
             QStringList({"5 Unità archivistica", "6 Unità documentaria"}));
}

void TestDatiInventariali::sottoLUltimoLivelloNonSiSalvaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    ambiente.Livello(albero.unita, QStringLiteral("06"));
    auto [editore, ospite] = OspiteUnita(albero.unita);
    editore->AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.unita);
    QCOMPARE(Livelli(editore)->count(), 0);
    ospite.cmdNuovo->click();
    Compila(*editore);
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto, QStringLiteral("Inserire tipologia"));
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    QCOMPARE(
        ambiente.Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE Tipologia = '07'"), {})
            .toInt(),
        1);
}

void TestDatiInventariali::unLivelloNonPiuOffertoNonMostraNullaESiSalvaDoppioZero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    ambiente.Livello(albero.unita, QStringLiteral("03"));
    const long figlio = ambiente.Crea("07", QStringLiteral("Figlio"), albero.unita);

    // A code that the list no longer has, and a level no longer below the parent's.
    for (const QString& sCodice : {QStringLiteral("07"), QStringLiteral("02")}) {
        ambiente.Livello(figlio, sCodice);
        EditorePronto<ucDatiInventariali> editore(figlio);
        QCOMPARE(Livelli(&editore)->currentIndex(), -1);
        QCOMPARE(Livelli(&editore)->currentText(), QString());
        QVERIFY(editore.OkModifica);
        editore.Modifica();
        editore.Salva(figlio);
        QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), figlio).toString(),
                 QStringLiteral("00"));
    }
}

void TestDatiInventariali::iDueLivelliDiUnitaSpengonoESvuotanoLeCondizioni() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaUnita().unita;
    EditorePronto<ucDatiInventariali> editore(id);
    editore.Modifica();
    QCheckBox* unitaCond = Casella(&editore, "chkUnitaCond");
    const QColor finestra = QApplication::palette().color(QPalette::Base);
    const QColor faccia = QApplication::palette().color(QPalette::Button);
    for (int livello : {5, 6}) {
        Livelli(&editore)->setCurrentIndex(1);
        for (int n : Condizioni)
            Riga(&editore, n)->setText(QStringLiteral("Condizione %1").arg(n));
        unitaCond->setChecked(true);
        QCOMPARE(Tag(Riga(&editore, 1)), QStringLiteral("Inserire numero di corda"));

        Livelli(&editore)->setCurrentIndex(livello - 1);
        for (int n : Condizioni) {
            QLineEdit* casella = Riga(&editore, n);
            QVERIFY(casella->text().isEmpty());
            QVERIFY(!casella->isEnabled());
            QCOMPARE(casella->palette().color(QPalette::Base), faccia);
        }
        QVERIFY(unitaCond->isHidden());
        QVERIFY(Etichetta(&editore, 22)->isHidden());
        // The number is not asked for at these levels.
        QCOMPARE(Tag(Riga(&editore, 1)), QString());
        Compila(editore);
        Livelli(&editore)->setCurrentIndex(livello - 1);
        Riga(&editore, 1)->clear();
        ambiente.seam.Svuota();
        QVERIFY(editore.CheckMandatoryFields());

        // Any other level turns them on again.
        Livelli(&editore)->setCurrentIndex(3);
        for (int n : Condizioni) {
            QVERIFY(Riga(&editore, n)->isEnabled());
            QCOMPARE(Riga(&editore, n)->palette().color(QPalette::Base), finestra);
        }
        QVERIFY(!unitaCond->isHidden());
        QVERIFY(!Etichetta(&editore, 22)->isHidden());
        QCOMPARE(Tag(Riga(&editore, 1)), QStringLiteral("Inserire numero di corda"));
    }

    // Saved at a unit level, the conditions are Null; shown, they stay off and locked.
    Livelli(&editore)->setCurrentIndex(1);
    for (int n : Condizioni)
        Riga(&editore, n)->setText(QStringLiteral("Da togliere"));
    Livelli(&editore)->setCurrentIndex(4);
    editore.Salva(id);
    for (const char* c :
         {"CriteriOrdinamento", "Accesso", "Riproduzione", "Lingua", "Conservazione"})
        QVERIFY2(ENull(ambiente.Colonna(QLatin1String(c), id)), c);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), id).toString(), QStringLiteral("05"));
    editore.Mostra(id);
    QVERIFY(unitaCond->isHidden());
    editore.Modifica();
    for (int n : Condizioni)
        QVERIFY(!Riga(&editore, n)->isEnabled());
    QVERIFY(Riga(&editore, 14)->isEnabled());
}

void TestDatiInventariali::ilNumeroEObbligatorioSoloPerUnUnitaDiCondizionamento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    EditorePronto<ucDatiInventariali> editore;
    editore.AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.inventario);
    editore.Nuovo();
    Compila(editore);
    QCheckBox* unitaCond = Casella(&editore, "chkUnitaCond");
    QLineEdit* numero = Riga(&editore, 1);
    QLabel* etichetta = Etichetta(&editore, 1);
    // Not a packing unit: the number is hidden and not asked for.
    QVERIFY(!unitaCond->isChecked());
    QVERIFY(numero->isHidden() && etichetta->isHidden());
    QCOMPARE(Tag(numero), QString());
    QVERIFY(editore.CheckMandatoryFields());

    // Ticked: shown, painted and asked for.
    unitaCond->click();
    QVERIFY(!numero->isHidden() && !etichetta->isHidden());
    QCOMPARE(Tag(numero), QStringLiteral("Inserire numero di corda"));
    QCOMPARE(etichetta->palette().color(QPalette::WindowText),
             QApplication::palette().color(QPalette::Highlight));
    ambiente.seam.Svuota();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire numero di corda"));
    numero->setText(QStringLiteral("12"));
    QVERIFY(editore.CheckMandatoryFields());

    // Unticked: the number goes with its box.
    unitaCond->click();
    QVERIFY(numero->text().isEmpty());
    QVERIFY(numero->isHidden() && etichetta->isHidden());
    QCOMPARE(Tag(numero), QString());
    QCOMPARE(etichetta->palette().color(QPalette::WindowText),
             QApplication::palette().color(QPalette::ButtonText));
}

void TestDatiInventariali::unaDataErrataNonLasciaAndareIlFuoco() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    auto [editore, ospite] = OspiteUnita(albero.inventario);
    QVERIFY(InModifica(ospite, albero.unita));

    int iAttesi = 0;
    for (int n : {5, 6}) {
        QLineEdit* casella = Riga(editore, n);
        for (const QString& errato :
             {QStringLiteral("12/ab/1900"), QStringLiteral("ieri"), QStringLiteral("31/02/1900")}) {
            // Left with a click on the title.
            RifiutatoAllUscita(ambiente.seam, casella, errato, Riga(editore, 14),
                               QStringLiteral("Data errata"), iAttesi);
            QVERIFY2(!Riga(editore, 14)->hasFocus(), qPrintable(errato));
        }
        for (const QString& giusto :
             {QStringLiteral("29/02/1904"), QString(), QStringLiteral("  ")})
            AccettatoAllUscita(ambiente.seam, casella, giusto, Riga(editore, 14), iAttesi);
    }
    // A click on the host's Conferma with a wrong date is not delivered: nothing is saved.
    QLineEdit* inizio = Riga(editore, 5);
    inizio->setFocus();
    inizio->setText(QStringLiteral("31/02/1900"));
    QTest::mouseClick(ospite.cmdConferma, Qt::LeftButton);
    QCOMPARE(ambiente.seam.Messaggi().size(), iAttesi + 1);
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto, QStringLiteral("Data errata"));
    QCOMPARE(ospite.Stato(), QStringLiteral("modifica"));
    QVERIFY(inizio->hasFocus());
}

void TestDatiInventariali::unUnitaLegataAUnComplessoOConFigliNonSiCancella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    const long complesso = ambiente.Crea("02", QStringLiteral("Complesso"), albero.istituto);
    auto [editore, ospite] = OspiteUnita(albero.inventario);

    // Free: it may go.
    ospite.MostraElemento(albero.unita);
    QVERIFY(editore->OkCancella);
    QVERIFY(ospite.cmdCancella->isEnabled());
    QCOMPARE(Pulsante(editore, "cmdMostraLink")->palette().color(QPalette::Button),
             QApplication::palette().color(QPalette::Button));
    // Tied to a complesso: it stays, and a save keeps the tie.
    ambiente.Scrivi(QStringLiteral("Id_ElemComplDoc = ?"), {Id(complesso), Id(albero.unita)});
    ospite.MostraElemento(albero.unita);
    QVERIFY(!editore->OkCancella);
    QVERIFY(!ospite.cmdCancella->isEnabled());
    QCOMPARE(Pulsante(editore, "cmdMostraLink")->palette().color(QPalette::Button),
             QApplication::palette().color(QPalette::Base));
    ospite.cmdModifica->click();
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.Colonna(QStringLiteral("Id_ElemComplDoc"), albero.unita).toLongLong(),
             qlonglong(complesso));
    QVERIFY(!editore->OkCancella);
    QVERIFY(!ospite.cmdCancella->isEnabled());
    // Untied but with a child: it stays too.
    ambiente.Scrivi(QStringLiteral("Id_ElemComplDoc = 0"), {Id(albero.unita)});
    ambiente.Crea("07", QStringLiteral("Figlio"), albero.unita);
    ospite.MostraElemento(albero.unita);
    QVERIFY(!editore->OkCancella);
    QVERIFY(!ospite.cmdCancella->isEnabled());
}

void TestDatiInventariali::unSalvataggioFallitoLasciaLeDueTabelleComErano() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaUnita().unita;
    EditorePronto<ucDatiInventariali> editore(id);
    editore.Modifica();
    Compila(editore);
    Casella(&editore, "chkPubblicaDI")->setChecked(true);
    const QVariantList elementoPrima = ambiente.RigaDi(QStringLiteral("Elementi"), id);
    const QVariantList unitaPrima = ambiente.RigaDi(QStringLiteral("DatiInventariali"), id);
    QVERIFY(!elementoPrima.isEmpty() && !unitaPrima.isEmpty());

    // A column of the unit that the update cannot find: the update of the unit fails after
    // that of the element.
    ambiente.Cnn().Esegui(QStringLiteral(
        "ALTER TABLE DatiInventariali RENAME COLUMN NoteGestionali TO NoteGestionaliAltrove"));
    QVERIFY_THROWS_EXCEPTION(Errore, editore.Salva(id));
    ambiente.Cnn().Esegui(QStringLiteral(
        "ALTER TABLE DatiInventariali RENAME COLUMN NoteGestionaliAltrove TO NoteGestionali"));
    QCOMPARE(ambiente.RigaDi(QStringLiteral("Elementi"), id), elementoPrima);
    QCOMPARE(ambiente.RigaDi(QStringLiteral("DatiInventariali"), id), unitaPrima);
}

void TestDatiInventariali::senzaRigaDellUnitaNonSiScriveIlDettaglioESiSpegneTutto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    // The element of the finding aid has no row of DatiInventariali.
    const long senzaRiga = albero.inventario;
    EditorePronto<ucDatiInventariali> editore(albero.unita);
    QVERIFY(editore.OkCancella);
    editore.Mostra(senzaRiga);
    QVERIFY(!editore.OkNuovoDatoInventariale && !editore.OkModifica && !editore.OkCancella);
    QCOMPARE(editore.fID_Elem, 0L);
    QCOMPARE(editore.ID_Inventario, 0L);
    QCOMPARE(Testo(&editore, 14), QString());
    editore.Modifica();
    Compila(editore);
    editore.Salva(senzaRiga);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT COUNT(*) FROM DatiInventariali WHERE "
                                        "Titolo = ?"),
                         {Testo(&editore, 14)})
                 .toInt(),
             0);
    QVERIFY(!editore.OkModifica && !editore.OkCancella);
}

void TestDatiInventariali::pubblicareSottoUnPadreNonPubblicatoERifiutato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    const auto pubblica = [&](long id, const char* s) {
        ambiente.Cnn().Esegui(
            QStringLiteral("UPDATE Elementi SET Pubblicato = ? WHERE ID_Elemento = ?"),
            {QLatin1String(s), Id(id)});
    };
    pubblica(albero.inventario, "N");
    EditorePronto<ucDatiInventariali> editore(albero.unita);
    editore.Modifica();
    QCheckBox* chk = Casella(&editore, "chkPubblicaDI");
    chk->click();
    QVERIFY(!chk->isChecked());
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inventario non pubblicabile"));
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
    editore.Salva(albero.unita);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), albero.unita).toString(),
             QStringLiteral("N"));

    // A new unit under this one, unpublished: refused by the word of the finding aid too.
    editore.AssegnaInventario(editore.ID_Inventario, editore.fID_Elem);
    editore.Nuovo();
    chk->click();
    QVERIFY(!chk->isChecked());
    QCOMPARE(ambiente.seam.Messaggi().size(), 2);
    QCOMPARE(ambiente.seam.Messaggi().at(1).sTesto, QStringLiteral("Inventario non pubblicabile"));

    // Under a published parent it is taken.
    pubblica(albero.inventario, "S");
    editore.Mostra(albero.unita);
    editore.Modifica();
    chk->click();
    QVERIFY(chk->isChecked());
    QCOMPARE(ambiente.seam.Messaggi().size(), 2);
    editore.Salva(albero.unita);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), albero.unita).toString(),
             QStringLiteral("S"));
}

void TestDatiInventariali::iFlagDeiCollegamentiSiLeggonoConLUnitaEColoranoIPulsanti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    const long altra = ambiente.Crea("07", QStringLiteral("Altra"), albero.inventario);
    const long idDato = ambiente.IdDato(albero.unita);
    EditorePronto<ucDatiInventariali> editore(albero.unita);
    QVERIFY(!editore.Soggetti && !editore.Antroponimi && !editore.Toponimi &&
            !editore.CoseNotevoli);
    const QColor faccia = QApplication::palette().color(QPalette::Button);
    const QColor finestra = QApplication::palette().color(QPalette::Base);
    for (const char* p :
         {"cmdMostraSoggetti", "cmdMostraAntroponimi", "cmdMostraToponimi", "cmdCoseNotevoli"})
        QCOMPARE(Pulsante(&editore, p)->palette().color(QPalette::Button), faccia);

    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO Soggetti (ID_Soggetto, Denominazione, "
                                         "TipoSoggetto) VALUES (41, 'Rossi', 'P')"));
    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO DatiInventarialiSoggetti "
                                         "(ID_DatoInventariale, ID_Soggetto) VALUES (?, 41)"),
                          {Id(idDato)});
    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO DIAntroponimi (ID_DIAntroponimo, "
                                         "ID_DatoInventariale, ID_Antroponimo) VALUES (5, ?, 6)"),
                          {Id(idDato)});
    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO DIToponimi (ID_DatoInventariale, "
                                         "ID_Toponimo) VALUES (?, 7)"),
                          {Id(idDato)});
    ambiente.Cnn().Esegui(
        QStringLiteral("INSERT INTO DICoseNotevoli (ID_DICosaNotevole, "
                       "ID_DatoInventariale, Descrizione) VALUES (8, ?, 'Sigillo')"),
        {Id(idDato)});
    editore.Mostra(albero.unita);
    QVERIFY(editore.Soggetti && editore.Antroponimi && editore.Toponimi && editore.CoseNotevoli);
    for (const char* p :
         {"cmdMostraSoggetti", "cmdMostraAntroponimi", "cmdMostraToponimi", "cmdCoseNotevoli"})
        QCOMPARE(Pulsante(&editore, p)->palette().color(QPalette::Button), finestra);
    // The links of one unit are not another's.
    editore.Mostra(altra);
    QVERIFY(!editore.Soggetti && !editore.Antroponimi && !editore.Toponimi &&
            !editore.CoseNotevoli);
    QCOMPARE(Pulsante(&editore, "cmdCoseNotevoli")->palette().color(QPalette::Button), faccia);
    // Each routine reads its own list for the element it is given.
    editore.CheckSoggetti(albero.unita);
    editore.CheckToponimi(albero.unita);
    QVERIFY(editore.Soggetti && !editore.Antroponimi && editore.Toponimi);
    editore.RefreshButton();
    QCOMPARE(Pulsante(&editore, "cmdMostraSoggetti")->palette().color(QPalette::Button), finestra);
    QCOMPARE(Pulsante(&editore, "cmdMostraAntroponimi")->palette().color(QPalette::Button), faccia);
}

void TestDatiInventariali::senzaIVisualizzatoriRegistratiIPulsantiNonFannoNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaUnita().unita;
    EditorePronto<ucDatiInventariali> editore(id);
    QSignalSpy evento(&editore, &ucDatiInventariali::EventoStato);
    for (const char* nome : {"frmMostraLinkDIAnt", "frmMostraLinkInv", "frmMostraLinkCS",
                             "frmMostraLinkTopo", "frmCoseNotevoli"})
        Dialoghi::Rimuovi(QLatin1String(nome));
    for (const char* pulsante : {"cmdMostraAntroponimi", "cmdMostraLink", "cmdMostraSoggetti",
                                 "cmdMostraToponimi", "cmdCoseNotevoli"}) {
        QVERIFY(Pulsante(&editore, pulsante)->isEnabled());
        Pulsante(&editore, pulsante)->click();
    }
    QCOMPARE(evento.count(), 0);
    QVERIFY(ambiente.seam.chiamate.isEmpty());
    // While a unit is edited the buttons are off.
    editore.Modifica();
    for (const char* pulsante : {"cmdMostraAntroponimi", "cmdMostraLink", "cmdMostraSoggetti",
                                 "cmdMostraToponimi", "cmdCoseNotevoli", "cmdImmagine"})
        QVERIFY2(!Pulsante(&editore, pulsante)->isEnabled(), pulsante);
}

void TestDatiInventariali::ogniVisualizzatoreRiceveISuoiValoriEPoiSiRileggonoIFlag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita(QStringLiteral("Serie «prima»"));
    const long id = albero.unita;
    const long idDato = ambiente.IdDato(id);
    const long complesso = ambiente.Crea("02", QStringLiteral("Complesso"), albero.istituto);
    EditorePronto<ucDatiInventariali> editore(id);
    QVERIFY(editore.OkCancella);
    QSignalSpy evento(&editore, &ucDatiInventariali::EventoStato);

    // Stand-ins that note the session values they find, add a row of their list and close.
    struct Visto {
        QString sDenomElementoLink, sDenomInventario, sTipoLink;
        long lIdElementoLink = -1, lIdInventario = -1, lIdDatoInventariale = -1;
        int iChiamanteToponimi = -1, iChiamanteInv = -1, iEsitoLinkCD = -1, iEsitoLinkSogg = -1;
        long lIdElemLinkInv = -1;
    };
    QMap<QString, Visto> visti;
    const QMap<QString, QString> scritture = {
        {QStringLiteral("frmMostraLinkDIAnt"),
         QStringLiteral("INSERT INTO DIAntroponimi (ID_DIAntroponimo, ID_DatoInventariale, "
                        "ID_Antroponimo) VALUES (3, ?, 4)")},
        {QStringLiteral("frmMostraLinkTopo"),
         QStringLiteral("INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo) VALUES (?, 8)")},
        {QStringLiteral("frmMostraLinkCS"),
         QStringLiteral("INSERT INTO DatiInventarialiSoggetti (ID_DatoInventariale, "
                        "ID_Soggetto) VALUES (?, 41)")},
    };
    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO Soggetti (ID_Soggetto, Denominazione, "
                                         "TipoSoggetto) VALUES (41, 'Rossi', 'P')"));
    // What the host sees when it is told: the flags and the buttons already read again.
    QStringList statiAllEvento;
    connect(&editore, &ucDatiInventariali::EventoStato, this, [&] {
        statiAllEvento << QStringLiteral("%1%2%3%4")
                              .arg(editore.Antroponimi)
                              .arg(editore.Toponimi)
                              .arg(editore.Soggetti)
                              .arg(editore.OkCancella);
    });
    const QStringList nomi = {"frmMostraLinkDIAnt", "frmMostraLinkTopo", "frmMostraLinkCS",
                              "frmMostraLinkInv"};
    for (const QString& nome : nomi) {
        Dialoghi::Registra(
            nome, [&, nome](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                Visto v;
                v.sDenomElementoLink = Sessione::sDenomElementoLink;
                v.sDenomInventario = Sessione::sDenomInventario;
                v.sTipoLink = Sessione::sTipoLink;
                v.lIdElementoLink = Sessione::lIdElementoLink;
                v.lIdInventario = Sessione::lIdInventario;
                v.lIdDatoInventariale = Sessione::lIdDatoInventariale;
                v.iChiamanteToponimi = Sessione::iChiamanteToponimi;
                v.iChiamanteInv = Sessione::iChiamanteInv;
                v.iEsitoLinkCD = Sessione::iEsitoLinkCD;
                v.iEsitoLinkSogg = Sessione::iEsitoLinkSogg;
                v.lIdElemLinkInv = Sessione::lIdElemLinkInv;
                visti.insert(nome, v);
                if (nome == QLatin1String("frmMostraLinkInv"))
                    ambiente.Cnn().Esegui(QStringLiteral("UPDATE DatiInventariali SET "
                                                         "Id_ElemComplDoc = ? WHERE "
                                                         "Id_Elemento = ?"),
                                          {Id(complesso), Id(id)});
                else
                    ambiente.Cnn().Esegui(scritture.value(nome), {Id(idDato)});
                auto* dlg = new QDialog(genitore);
                QTimer::singleShot(0, dlg, &QDialog::accept);
                return dlg;
            });
    }
    Sessione::iEsitoLinkCD = 5;
    Sessione::iEsitoLinkSogg = 5;
    const QColor finestra = QApplication::palette().color(QPalette::Base);

    Pulsante(&editore, "cmdMostraAntroponimi")->click();
    QVERIFY(visti.contains(QStringLiteral("frmMostraLinkDIAnt")));
    const Visto ant = visti.value(QStringLiteral("frmMostraLinkDIAnt"));
    QCOMPARE(ant.sDenomElementoLink, QStringLiteral("Serie «prima»"));
    QCOMPARE(ant.lIdElementoLink, idDato);
    QVERIFY(editore.Antroponimi);
    QCOMPARE(Pulsante(&editore, "cmdMostraAntroponimi")->palette().color(QPalette::Button),
             finestra);

    Pulsante(&editore, "cmdMostraToponimi")->click();
    const Visto top = visti.value(QStringLiteral("frmMostraLinkTopo"));
    QCOMPARE(top.sDenomElementoLink, QStringLiteral("Serie «prima»"));
    QCOMPARE(top.lIdElementoLink, idDato);
    QCOMPARE(top.iChiamanteToponimi, 2);
    QVERIFY(editore.Toponimi);

    Pulsante(&editore, "cmdMostraSoggetti")->click();
    const Visto sog = visti.value(QStringLiteral("frmMostraLinkCS"));
    QCOMPARE(sog.sTipoLink, QStringLiteral("1"));
    QCOMPARE(sog.sDenomInventario, QStringLiteral("Serie «prima»"));
    QCOMPARE(sog.lIdDatoInventariale, id);
    QCOMPARE(sog.iEsitoLinkSogg, 0);
    QVERIFY(editore.Soggetti);

    // The viewer of the complesso finds the unit's tie (none) in the session.
    Sessione::lIdElemLinkInv = 99;
    Pulsante(&editore, "cmdMostraLink")->click();
    const Visto inv = visti.value(QStringLiteral("frmMostraLinkInv"));
    QCOMPARE(inv.sDenomInventario, QStringLiteral("Serie «prima»"));
    QCOMPARE(inv.lIdInventario, id);
    QCOMPARE(inv.iEsitoLinkCD, 0);
    QCOMPARE(inv.iChiamanteInv, 4);
    QCOMPARE(inv.lIdElemLinkInv, 0L);
    // Tied to a complesso by the viewer: the unit may no longer be deleted.
    QVERIFY(!editore.OkCancella);
    QCOMPARE(Pulsante(&editore, "cmdMostraLink")->palette().color(QPalette::Button), finestra);

    QCOMPARE(evento.count(), 4);
    QCOMPARE(statiAllEvento, QStringList({"1001", "1101", "1111", "1110"}));
    for (const QString& nome : nomi)
        Dialoghi::Rimuovi(nome);
}

void TestDatiInventariali::ilPulsanteImmagineChiedeConIlTitoloBreve() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaUnita().unita;
    EditorePronto<ucDatiInventariali> editore;
    QPushButton* immagine = Pulsante(&editore, "cmdImmagine");
    // No unit shown: no image.
    QVERIFY(!immagine->isEnabled());
    editore.Mostra(id);
    QVERIFY(immagine->isEnabled());
    QCOMPARE(immagine->text(), QStringLiteral("Immagine"));

    const QString md5 = QStringLiteral("0123456789abcdef0123456789abcdef");
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                          {md5, Id(id)});
    editore.Mostra(id);
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    ambiente.seam.risposte = {Risposta::No};
    immagine->click();
    const Messaggio domanda = ambiente.seam.Messaggi().constLast();
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Immagini"));
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    // A save keeps the document of the element.
    editore.Modifica();
    QVERIFY(!immagine->isEnabled());
    editore.Salva(id);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(), md5);
    QVERIFY(immagine->isEnabled());
}

void TestDatiInventariali::unaNuovaUnitaSiCreaSottoIlPadreAttraversoLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    ambiente.Livello(albero.unita, QStringLiteral("01"));
    auto [editore, ospite] = OspiteUnita(albero.unita);
    // As the window does: the unit shown, then a new one under it.
    ospite.MostraElemento(albero.unita);
    QVERIFY(ospite.cmdNuovo->isEnabled());
    editore->AssegnaInventario(editore->ID_Inventario, editore->fID_Elem);
    ospite.cmdNuovo->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    QCOMPARE(Livelli(editore)->count(), 5);
    QCOMPARE(Livelli(editore)->currentIndex(), -1);
    QVERIFY(Riga(editore, 14)->text().isEmpty());
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().value(0).sTesto, QStringLiteral("Inserire denominazione"));
    Compila(*editore); // the first level offered: "02"
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    const long id = ospite.IdCorrente();
    QVERIFY(id > 0 && id != albero.unita);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("ID_ElementoPadre"), id).toLongLong(),
             qlonglong(albero.unita));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Serie \"Atti\" d'archivio"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), id).toString(), QStringLiteral("02"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("DataInizio"), id).toLongLong(), qlonglong(18500101));
    QCOMPARE(ambiente.Colonna(QStringLiteral("ID_Inventario"), id).toLongLong(),
             qlonglong(ambiente.IdInventario(albero.inventario)));
    QCOMPARE(editore->fID_Elem, id);
    QCOMPARE(Livelli(editore)->currentText(), QStringLiteral("Sottoserie"));
}

void TestDatiInventariali::iLivelliPrendonoIlCodiceDallaPosizioneNelFileNonDalFile() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    // A list whose codes are not the positions of its lines.
    ambiente.cartella.Scrivi(QStringLiteral("LivelliDI.txt"),
                             QByteArrayLiteral("10Fondo\r\n20Serie\r\n30Fascicolo\r\n"));
    const Ambiente::Albero albero = ambiente.CreaUnita();
    ambiente.Livello(albero.unita, QStringLiteral("01"));
    EditorePronto<ucDatiInventariali> editore;
    // As read from the file, with the file's codes.
    QCOMPARE(VociLivelli(Livelli(&editore)), QStringList({"10 Fondo", "20 Serie", "30 Fascicolo"}));
    // Offered for a parent, by the positions of the lines.
    editore.AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.inventario);
    QCOMPARE(VociLivelli(Livelli(&editore)), QStringList({"1 Fondo", "2 Serie", "3 Fascicolo"}));
    editore.AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.unita);
    QCOMPARE(VociLivelli(Livelli(&editore)), QStringList({"2 Serie", "3 Fascicolo"}));
    // Saved as two digits.
    editore.Mostra(albero.unita);
    QCOMPARE(Livelli(&editore)->currentText(), QStringLiteral("Fondo"));
    editore.Modifica();
    editore.Salva(albero.unita);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), albero.unita).toString(),
             QStringLiteral("01"));
}

void TestDatiInventariali::unErroreNelRiempireILivelliSiMostraConErroreT5() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    EditorePronto<ucDatiInventariali> editore;
    // The parent's level cannot be read.
    ambiente.Cnn().Esegui(
        QStringLiteral("ALTER TABLE DatiInventariali RENAME COLUMN Tipologia TO Livello"));
    editore.AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.unita);
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const Messaggio errore = ambiente.seam.Messaggi().at(0);
    QCOMPARE(errore.sTitolo, QStringLiteral("Errore T5"));
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY(errore.sTesto.contains(QLatin1Char('\n')));
    QCOMPARE(Livelli(&editore)->count(), 0);
    QCOMPARE(editore.ID_Inventario, ambiente.IdInventario(albero.inventario));
}

void TestDatiInventariali::unErroreNelControlloDiPubblicazioneSiMostraConErroreU1() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    EditorePronto<ucDatiInventariali> editore(albero.unita);
    editore.Modifica();
    // The parent's Pubblicato cannot be read.
    ambiente.Cnn().Esegui(
        QStringLiteral("ALTER TABLE Elementi RENAME COLUMN Pubblicato TO Pubblicata"));
    Casella(&editore, "chkPubblicaDI")->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const Messaggio errore = ambiente.seam.Messaggi().at(0);
    QCOMPARE(errore.sTitolo, QStringLiteral("Errore U1"));
    QCOMPARE(errore.icona, Icona::Critica);
    QVERIFY(errore.sTesto.contains(QLatin1Char('\n')));
}

void TestDatiInventariali::iTestiSiMostranoSenzaIBianchiAiLati() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaUnita().unita;
    ambiente.Scrivi(QStringLiteral("Titolo = ?, Note = ?, Accesso = ?, Numero = ?"),
                    {QStringLiteral("  Serie  "), QStringLiteral("  nota\n  "),
                     QStringLiteral(" libero "), QStringLiteral(" 7 "), Id(id)});
    ambiente.Scrivi(QStringLiteral("FlgUnitaCond = 1"), {Id(id)});
    EditorePronto<ucDatiInventariali> editore(id);
    QCOMPARE(Testo(&editore, 14), QStringLiteral("Serie"));
    QCOMPARE(Testo(&editore, 8), QStringLiteral("nota\n"));
    QCOMPARE(Testo(&editore, 9), QStringLiteral("libero"));
    QCOMPARE(Testo(&editore, 1), QStringLiteral("7"));
    QVERIFY(Casella(&editore, "chkUnitaCond")->isChecked());
    QVERIFY(!Riga(&editore, 1)->isHidden());
}

void TestDatiInventariali::laTastieraPercorreIlModuloComeSiVede() {
    ucDatiInventariali editore;
    const QStringList attesi = {"cmbTipologiaDI",
                                "Text1(13)",
                                "Text1(14)",
                                "chkUnitaCond",
                                "Text1(1)",
                                "Text1(2)",
                                "Text1(7)",
                                "Text1(4)",
                                "Text1(5)",
                                "Text1(6)",
                                "Text1(3)",
                                "Text1(12)",
                                "Text1(8)",
                                "Text1(15)",
                                "Text1(19)",
                                "Text1(9)",
                                "Text1(11)",
                                "Text1(16)",
                                "Text1(17)",
                                "Text1(18)",
                                "Text1(10)",
                                "DTPData",
                                "chkPubblicaDI",
                                "cmdMostraSoggetti",
                                "cmdMostraAntroponimi",
                                "cmdMostraToponimi",
                                "cmdCoseNotevoli",
                                "cmdMostraLink",
                                "cmdImmagine"};
    // The chain of the focus from the level, the form's own controls in the order met.
    QCOMPARE(OrdineDelFuoco(Livelli(&editore), attesi), attesi);
}

void TestDatiInventariali::nuovoSvuotaIlModuloDopoUnUnitaMostrata() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    ambiente.Livello(albero.unita, QStringLiteral("05"));
    ambiente.Scrivi(QStringLiteral("Numero = '4', FlgUnitaCond = 1, Note = 'nota'"),
                    {Id(albero.unita)});
    auto [editore, ospite] = OspiteUnita(albero.inventario);
    QVERIFY(Attiva(ospite));
    ospite.MostraElemento(albero.unita);
    QCOMPARE(Testo(editore, 8), QStringLiteral("nota"));
    QVERIFY(Casella(editore, "chkUnitaCond")->isHidden());
    editore->AssegnaInventario(ambiente.IdInventario(albero.inventario), albero.inventario);
    ospite.cmdNuovo->click();
    QCOMPARE(Testo(editore, 8), QString());
    QCOMPARE(Testo(editore, 14), QString());
    QCOMPARE(Livelli(editore)->currentIndex(), -1);
    QVERIFY(!Casella(editore, "chkUnitaCond")->isChecked());
    QVERIFY(!Casella(editore, "chkUnitaCond")->isHidden());
    QVERIFY(Riga(editore, 1)->isHidden());
    QCOMPARE(DataRedazione(editore)->date(), QDate::currentDate());
    for (int n : Condizioni)
        QVERIFY(Riga(editore, n)->isEnabled());
    QVERIFY(Livelli(editore)->hasFocus());
}

void TestDatiInventariali::annullaUnaModificaRiportaIValoriSalvati() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaUnita();
    auto [editore, ospite] = OspiteUnita(albero.inventario);
    MostraInModifica(ospite, albero.unita);
    QVERIFY(Riga(editore, 14)->isEnabled());
    QVERIFY(!Pulsante(editore, "cmdMostraSoggetti")->isEnabled());
    Riga(editore, 14)->setText(QStringLiteral("Altro titolo"));
    ospite.cmdAnnulla->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    QCOMPARE(Testo(editore, 14), QStringLiteral("Serie prima"));
    QVERIFY(!Riga(editore, 14)->isEnabled());
    QVERIFY(Pulsante(editore, "cmdMostraSoggetti")->isEnabled());
    QCOMPARE(ambiente.Colonna(QStringLiteral("Titolo"), albero.unita).toString(),
             QStringLiteral("Serie prima"));
    // Annulla alone locks the editor, the host shows the record again.
    editore->Modifica();
    editore->Annulla();
    QVERIFY(!Riga(editore, 14)->isEnabled());
    QVERIFY(Pulsante(editore, "cmdMostraToponimi")->isEnabled());
}

QTEST_MAIN(TestDatiInventariali)
#include "tst_datiinventariali.moc"
