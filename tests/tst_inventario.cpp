// The record of a finding aid, on SQLite and on PostgreSQL: the form and its order, the shape
// that follows the support, the round trip of every field, the state read with the record (the
// analytical inventory, the complessi linked, what may be created and deleted, the image
// button), the years, the publishing rule, the seat that goes down to the direct children, a
// save that is written whole or not at all, the MAG document of a digital finding aid and the
// road of a new finding aid through a host.

#include "images/basGestImgMag.h"
#include "records/ucInventario.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A program folder with the three lookup lists of the record, a fresh database, the session's
// connection and the scripted seam.
struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("Inventari"),
                         {"LivelliINV.txt", "TipologiaINV.txt", "TipoInventario.txt"}) {}
};

QCheckBox* Pubblica(const QWidget* editore) {
    return editore->findChild<QCheckBox*>(QStringLiteral("chkPubblicaInv"));
}
QPushButton* Immagine(const QWidget* editore) {
    return Pulsante(editore, "cmdImmagine");
}
// The mandatory fields filled in.
void Compila(ucInventario& editore) {
    Riga(&editore, 17)->setText(QStringLiteral("Maria Rossi"));
    Combo(&editore, "cmbTipologiaIN2")->setCurrentIndex(0);
    Riga(&editore, 6)->setText(QStringLiteral("1890-1895"));
    Riga(&editore, 5)->setText(QStringLiteral("1895"));
    Riga(&editore, 0)->setText(QStringLiteral("Inventario dell'archivio comunale"));
    Combo(&editore, "cmbTipoInv")->setCurrentIndex(1);
    Riga(&editore, 4)->setText(QStringLiteral("1890"));
}

// A host of finding aids under an institute and, when named, a finding aid in it.
RecordOspitato<ucInventario> Ospitato(const Ambiente& ambiente, const QString& sNome = QString()) {
    return {ambiente, "03", &ucInventario::OkNuovoInventario, Compila, sNome};
}

} // namespace

class TestInventario : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiETag_data() { AggiungiBackend(); }
    void iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiETag();
    void gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi_data() { AggiungiBackend(); }
    void gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi();
    void nuovoScegliePrimoLivelloESedeMaNonSupportoETipologia_data() { AggiungiBackend(); }
    void nuovoScegliePrimoLivelloESedeMaNonSupportoETipologia();
    void ogniCampoFaIlGiroConApiciAccentiETestiPiuLunghi_data() { AggiungiBackend(); }
    void ogniCampoFaIlGiroConApiciAccentiETestiPiuLunghi();
    void unAnnoVuotoSiSalvaNullMaLObbligoRifiutaEntrambiGliAnniVuoti_data() { AggiungiBackend(); }
    void unAnnoVuotoSiSalvaNullMaLObbligoRifiutaEntrambiGliAnniVuoti();
    void soloBaseConGuidaAmmettePiuComplessi_data() { AggiungiBackend(); }
    void soloBaseConGuidaAmmettePiuComplessi();
    void loStatoDellInventarioAnaliticoVieneDaTipoInv_data() { AggiungiBackend(); }
    void loStatoDellInventarioAnaliticoVieneDaTipoInv();
    void unInventarioMostratoNonNeCreaAltriSiModificaESiCancellaSenzaFigli_data() {
        AggiungiBackend();
    }
    void unInventarioMostratoNonNeCreaAltriSiModificaESiCancellaSenzaFigli();
    void unRecordCheNonCeSpegneTutto_data() { AggiungiBackend(); }
    void unRecordCheNonCeSpegneTutto();
    void unComplessoCollegatoSiNominaEDueNominanoLIstituto_data() { AggiungiBackend(); }
    void unComplessoCollegatoSiNominaEDueNominanoLIstituto();
    void leAltreDenominazioniSiLeggonoDaInventariDenominazioni_data() { AggiungiBackend(); }
    void leAltreDenominazioniSiLeggonoDaInventariDenominazioni();
    void lImmagineSiOffreSoloAUnInventarioDigitale_data() { AggiungiBackend(); }
    void lImmagineSiOffreSoloAUnInventarioDigitale();
    void laSceltaDelSupportoRimodellaIlModulo();
    void unAnnoNonNumericoOPiuCortoDiTreCifreERifiutatoAllUscita_data() { AggiungiBackend(); }
    void unAnnoNonNumericoOPiuCortoDiTreCifreERifiutatoAllUscita();
    void pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN_data() { AggiungiBackend(); }
    void pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN();
    void laSedeScendeAiFigliDirettiAncheComeMagazzinoMaNonAiNipoti_data() { AggiungiBackend(); }
    void laSedeScendeAiFigliDirettiAncheComeMagazzinoMaNonAiNipoti();
    void unSalvaRifiutatoDalDatabaseLasciaIlRecordComEra_data() { AggiungiBackend(); }
    void unSalvaRifiutatoDalDatabaseLasciaIlRecordComEra();
    void unInventarioCancellatoNelFrattempoNonSiScriveESiTace_data() { AggiungiBackend(); }
    void unInventarioCancellatoNelFrattempoNonSiScriveESiTace();
    void lImmagineDiUnInventarioDigitaleSiImportaESiRimuove_data() { AggiungiBackend(); }
    void lImmagineDiUnInventarioDigitaleSiImportaESiRimuove();
    void unImportazioneFallitaNonLasciaCollegamentoDopoIlSalva_data() { AggiungiBackend(); }
    void unImportazioneFallitaNonLasciaCollegamentoDopoIlSalva();
    void unInventarioSiCreaMostraModificaESalvaAttraversoLOspite_data() { AggiungiBackend(); }
    void unInventarioSiCreaMostraModificaESalvaAttraversoLOspite();
};

void TestInventario::iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiETag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucInventario> editore;
    QStringList nomi;
    const QList<QWidget*> controlli = editore.Controls();
    for (const QWidget* controllo : controlli)
        nomi << controllo->objectName();
    QCOMPARE(nomi, QStringList({"Text1(17)", "chkPubblicaInv", "Text1(12)", "Text1(11)",
                                "cmbMagazzino", "cmbSede", "cmbTipologiaIN2", "cmbTipologiaIN",
                                "Text1(15)", "Text1(10)", "Text1(9)", "Text1(7)", "Text1(6)",
                                "Text1(5)", "Text1(0)", "cmbTipoInv", "Text1(4)", "DTPData"}));
    const auto tag = [&editore](const char* nome) {
        return editore.findChild<QWidget*>(QLatin1String(nome))->property("Tag").toString();
    };
    QCOMPARE(tag("Text1(17)"), QStringLiteral("Inserire redattore"));
    QCOMPARE(tag("cmbTipologiaIN2"), QStringLiteral("Specificare la tipologia"));
    QCOMPARE(tag("Text1(6)"), QStringLiteral("Inserire la data di redazione"));
    QCOMPARE(tag("Text1(5)"), QStringLiteral("Inserire l'estremo cronologico superiore"));
    QCOMPARE(tag("Text1(0)"), QStringLiteral("Inserire titolo strumento di ricerca"));
    QCOMPARE(tag("cmbTipoInv"), QStringLiteral("Specificare il tipo di supporto"));
    QCOMPARE(tag("Text1(4)"), QStringLiteral("Inserire l'estremo cronologico inferiore"));
    QCOMPARE(tag("DTPData"), QStringLiteral("Inserire la data di registrazione"));
    for (const char* libero : {"Text1(12)", "Text1(11)", "cmbMagazzino", "cmbSede",
                               "cmbTipologiaIN", "Text1(15)", "Text1(10)", "Text1(9)", "Text1(7)"})
        QVERIFY2(tag(libero).isEmpty(), libero);

    QCOMPARE(Riga(&editore, 0)->maxLength(), 256);
    QCOMPARE(Riga(&editore, 4)->maxLength(), 4);
    QCOMPARE(Riga(&editore, 5)->maxLength(), 4);
    QCOMPARE(Riga(&editore, 6)->maxLength(), 256);
    QCOMPARE(Riga(&editore, 7)->maxLength(), 256);
    QCOMPARE(Riga(&editore, 10)->maxLength(), 128);
    QCOMPARE(Riga(&editore, 11)->maxLength(), 128);
    QCOMPARE(Riga(&editore, 15)->maxLength(), 256);
    QCOMPARE(Riga(&editore, 17)->maxLength(), 64);
    QCOMPARE(Blocco(&editore, 9)->property("MaxLength").toInt(), 1024);
    QCOMPARE(Blocco(&editore, 12)->property("MaxLength").toInt(), 1024);

    QCOMPARE(Etichetta(&editore, 0)->text(), QStringLiteral("Titolo strumento di ricerca"));
    QCOMPARE(Etichetta(&editore, 1)->text(), QStringLiteral("Livello"));
    QCOMPARE(Etichetta(&editore, 1)->buddy(), Combo(&editore, "cmbTipologiaIN"));
    QCOMPARE(Etichetta(&editore, 2)->text(), QStringLiteral("Consultabile in"));
    QCOMPARE(Etichetta(&editore, 2)->buddy(), Combo(&editore, "cmbSede"));
    QCOMPARE(Etichetta(&editore, 3)->text(), QStringLiteral("Conservato jn"));
    QCOMPARE(Etichetta(&editore, 3)->buddy(), Combo(&editore, "cmbMagazzino"));
    QCOMPARE(Etichetta(&editore, 4)->text(), QStringLiteral("Anno redazione"));
    QVERIFY(Etichetta(&editore, 5) == nullptr); // the two years share one label
    QCOMPARE(Etichetta(&editore, 6)->text(), QStringLiteral("Data/e redazione (testo)"));
    QCOMPARE(Etichetta(&editore, 7)->text(), QStringLiteral("Autore"));
    QCOMPARE(Etichetta(&editore, 8)->text(), QStringLiteral("Supporto"));
    QCOMPARE(Etichetta(&editore, 8)->buddy(), Combo(&editore, "cmbTipoInv"));
    QCOMPARE(Etichetta(&editore, 9)->text(), QStringLiteral("Descrizione"));
    QCOMPARE(Etichetta(&editore, 10)->text(), QStringLiteral("XmlLink"));
    QCOMPARE(Etichetta(&editore, 11)->text(), QStringLiteral("Link ad altre Risorse"));
    QCOMPARE(Etichetta(&editore, 12)->text(), QStringLiteral("Note gestionali"));
    QCOMPARE(Etichetta(&editore, 13)->text(), QStringLiteral("Tipologia"));
    QCOMPARE(Etichetta(&editore, 13)->buddy(), Combo(&editore, "cmbTipologiaIN2"));
    QCOMPARE(Etichetta(&editore, 15)->text(), QStringLiteral("Edizione"));
    QCOMPARE(Etichetta(&editore, 17)->text(), QStringLiteral("Redattore"));
    QCOMPARE(Pubblica(&editore)->text(), QStringLiteral("Visibile sul web"));
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Immagine"));

    // The lists of the program folder, in the order of their files.
    const QComboBox* livelli = Combo(&editore, "cmbTipologiaIN");
    QCOMPARE(livelli->count(), 4);
    QCOMPARE(livelli->itemText(0), QStringLiteral("Strumento di ricerca di base"));
    QCOMPARE(livelli->itemData(3).toLongLong(), qlonglong(4));
    const QComboBox* tipologie = Combo(&editore, "cmbTipologiaIN2");
    QCOMPARE(tipologie->count(), 12);
    QCOMPARE(tipologie->itemText(4), QStringLiteral("Guida"));
    QCOMPARE(tipologie->itemData(4).toLongLong(), qlonglong(5));
    // The supports: a one-character code, its number in the item data.
    const QComboBox* supporti = Combo(&editore, "cmbTipoInv");
    QCOMPARE(supporti->count(), 5);
    QCOMPARE(supporti->itemText(0), QStringLiteral("A stampa"));
    QCOMPARE(supporti->itemData(0).toLongLong(), qlonglong('S'));
    QCOMPARE(supporti->itemText(3), QStringLiteral("Digitale"));
    QCOMPARE(supporti->itemData(3).toLongLong(), qlonglong('D'));
    QCOMPARE(editore.CercaTipoInventario(QStringLiteral("D")), 3);
    QCOMPARE(editore.CercaTipoInventario(QStringLiteral("M")), 1);
    QCOMPARE(editore.CercaTipoInventario(QStringLiteral("X")), -1);
    QCOMPARE(editore.CercaTipoInventario(QString()), -1);
    QCOMPARE(editore.CercaTipologiaINV(QStringLiteral("03")), 2);
    QCOMPARE(editore.CercaTipologiaINV2(QStringLiteral("12")), 11);
    QCOMPARE(editore.CercaTipologiaINV2(QStringLiteral("99")), -1);

    // After Init: locked, and a new finding aid may be created.
    QVERIFY(editore.OkNuovoInventario);
    QVERIFY(!Riga(&editore, 0)->isEnabled());
    QVERIFY(!Immagine(&editore)->isEnabled());
    QCOMPARE(editore.InventariAnalitici, -1);
}

void TestInventario::gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucInventario> editore;
    editore.Nuovo();
    const QStringList attesi = {QStringLiteral("Inserire redattore"),
                                QStringLiteral("Specificare la tipologia"),
                                QStringLiteral("Inserire la data di redazione"),
                                QStringLiteral("Inserire l'estremo cronologico superiore"),
                                QStringLiteral("Inserire titolo strumento di ricerca"),
                                QStringLiteral("Specificare il tipo di supporto"),
                                QStringLiteral("Inserire l'estremo cronologico inferiore")};
    // Each field filled in turn lets the walk go on to the next message.
    const QList<std::function<void()>> riempi = {
        [&] { Riga(&editore, 17)->setText(QStringLiteral("Maria Rossi")); },
        [&] { Combo(&editore, "cmbTipologiaIN2")->setCurrentIndex(0); },
        [&] { Riga(&editore, 6)->setText(QStringLiteral("1890")); },
        [&] { Riga(&editore, 5)->setText(QStringLiteral("1895")); },
        [&] { Riga(&editore, 0)->setText(QStringLiteral("Inventario")); },
        [&] { Combo(&editore, "cmbTipoInv")->setCurrentIndex(0); },
        [&] { Riga(&editore, 4)->setText(QStringLiteral("1890")); },
    };
    for (int i = 0; i < attesi.size(); ++i) {
        ambiente.seam.Svuota();
        QVERIFY(!editore.CheckMandatoryFields());
        QCOMPARE(ambiente.seam.Messaggi().size(), 1);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, attesi.at(i));
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Informazione);
        riempi.at(i)();
    }
    ambiente.seam.Svuota();
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    // The placeholder of a row never saved counts as empty.
    Riga(&editore, 0)->setText(QStringLiteral("<<Inserire valore>>"));
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto,
             QStringLiteral("Inserire titolo strumento di ricerca"));
}

void TestInventario::nuovoScegliePrimoLivelloESedeMaNonSupportoETipologia() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    EditorePronto<ucInventario> editore;
    editore.AssegnaIstituto(luoghi.idIstituto);
    QCOMPARE(editore.ID_Istituto, luoghi.idIstituto);
    editore.Nuovo();
    QCOMPARE(Combo(&editore, "cmbTipologiaIN")->currentIndex(), 0);
    QCOMPARE(Combo(&editore, "cmbSede")->currentIndex(), 0);
    QCOMPARE(Combo(&editore, "cmbSede")->currentText(), QStringLiteral("Sede"));
    QCOMPARE(Combo(&editore, "cmbSede")->count(), 2);
    QCOMPARE(Combo(&editore, "cmbMagazzino")->currentIndex(), 0);
    QCOMPARE(Combo(&editore, "cmbMagazzino")->count(), 3);
    QCOMPARE(Combo(&editore, "cmbTipoInv")->currentIndex(), -1);
    QCOMPARE(Combo(&editore, "cmbTipologiaIN2")->currentIndex(), -1);
    QVERIFY(!Pubblica(&editore)->isChecked());
    QCOMPARE(editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->date(),
             QDate::currentDate());
    for (int n : {0, 4, 5, 6, 7, 10, 11, 15, 17})
        QVERIFY2(Riga(&editore, n)->isEnabled() && Riga(&editore, n)->text().isEmpty(),
                 qPrintable(QString::number(n)));
    // A new finding aid has no element yet: no image to import.
    QVERIFY(!Immagine(&editore)->isEnabled());
}

void TestInventario::ogniCampoFaIlGiroConApiciAccentiETestiPiuLunghi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    const long id = ambiente.Crea("03", QStringLiteral("Inventario"), luoghi.istituto);

    EditorePronto<ucInventario> editore(id);
    editore.Modifica();

    const QString titolo = Lungo(QStringLiteral("Inventario dell'archivio «Podestà» "), 256);
    const QString estremi = Lungo(QStringLiteral("sec. XIX \"metà\" è "), 256);
    const QString autore = Lungo(QStringLiteral("Niccolò D'Amico "), 256);
    const QString descrizione = Lungo(QStringLiteral("Descrizione 'vera' più \"lunga\";\n"), 1024);
    const QString xml = Lungo(QStringLiteral("https://archivio.it/mag?a='b'&c=ù "), 128);
    const QString url = Lungo(QStringLiteral("http://risorse.it/«x»/ò "), 128);
    const QString gestionali = Lungo(QStringLiteral("Nota gestionale 'sì' à "), 1024);
    const QString edizione = Lungo(QStringLiteral("Roma, \"Tipografia\" dell'Ateneo "), 256);
    const QString redattore = Lungo(QStringLiteral("Ludovica Dell'Età "), 64);

    const long idSede = luoghi.idSede;
    const long idMagazzino = luoghi.idMagazzino;
    Riga(&editore, 17)->setText(redattore);
    Pubblica(&editore)->setChecked(true);
    Blocco(&editore, 12)->setPlainText(gestionali);
    Riga(&editore, 11)->setText(url);
    ScegliChiave(&editore, "cmbMagazzino", idMagazzino);
    ScegliChiave(&editore, "cmbSede", idSede);
    Combo(&editore, "cmbTipologiaIN2")->setCurrentIndex(11); // "12" Censimento
    Combo(&editore, "cmbTipologiaIN")->setCurrentIndex(2);   // "03"
    Combo(&editore, "cmbTipoInv")->setCurrentIndex(4);       // "C"
    Riga(&editore, 15)->setText(edizione);
    Riga(&editore, 10)->setText(xml);
    Blocco(&editore, 9)->setPlainText(descrizione);
    Riga(&editore, 7)->setText(autore);
    Riga(&editore, 6)->setText(estremi);
    Riga(&editore, 5)->setText(QStringLiteral("1899"));
    Riga(&editore, 0)->setText(titolo);
    Riga(&editore, 4)->setText(QStringLiteral("812"));
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(QDate(2024, 2, 29));
    QVERIFY(editore.CheckMandatoryFields());
    editore.Salva(id);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());

    // What the row holds.
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id).toString(), titolo);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), id).toString(), QStringLiteral("03"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("SubTipologia"), id).toString(), QStringLiteral("12"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("TipoInventario"), id).toString(),
             QStringLiteral("C"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("ID_IstitutoSede"), id).toLongLong(),
             qlonglong(idSede));
    QCOMPARE(ambiente.Colonna(QStringLiteral("ID_IstitutoMag"), id).toLongLong(),
             qlonglong(idMagazzino));
    QCOMPARE(ambiente.Colonna(QStringLiteral("AnnoInizio"), id).toLongLong(), qlonglong(812));
    QCOMPARE(ambiente.Colonna(QStringLiteral("AnnoFine"), id).toLongLong(), qlonglong(1899));
    QCOMPARE(ambiente.Colonna(QStringLiteral("DescrizioneEstremi"), id).toString(), estremi);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Autore"), id).toString(), autore);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Note"), id).toString(), descrizione);
    QCOMPARE(ambiente.Colonna(QStringLiteral("XmlLink"), id).toString(), xml);
    QCOMPARE(ambiente.Colonna(QStringLiteral("UrlLink"), id).toString(), url);
    QCOMPARE(ambiente.Colonna(QStringLiteral("NoteDirezione"), id).toString(), gestionali);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Edizione"), id).toString(), edizione);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("S"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(), redattore);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Denominazione"), id).toString(), titolo);
    // The state of the analytical inventory is not Salva's to write.
    QVERIFY(ambiente.Colonna(QStringLiteral("TipoInv"), id).isNull());

    // And back into a fresh form.
    EditorePronto<ucInventario> altro(id);
    QCOMPARE(Testo(&altro, 0), titolo);
    QCOMPARE(Testo(&altro, 4), QStringLiteral("812"));
    QCOMPARE(Testo(&altro, 5), QStringLiteral("1899"));
    QCOMPARE(Testo(&altro, 6), estremi);
    QCOMPARE(Testo(&altro, 7), autore);
    QCOMPARE(Testo(&altro, 9), descrizione);
    QCOMPARE(Testo(&altro, 10), xml);
    QCOMPARE(Testo(&altro, 11), url);
    QCOMPARE(Testo(&altro, 12), gestionali);
    QCOMPARE(Testo(&altro, 15), edizione);
    QCOMPARE(Testo(&altro, 17), redattore);
    QCOMPARE(Combo(&altro, "cmbTipologiaIN")->currentIndex(), 2);
    QCOMPARE(Combo(&altro, "cmbTipologiaIN2")->currentIndex(), 11);
    QCOMPARE(Combo(&altro, "cmbTipoInv")->currentIndex(), 4);
    QCOMPARE(Combo(&altro, "cmbSede")->currentData().toLongLong(), qlonglong(idSede));
    QCOMPARE(Combo(&altro, "cmbMagazzino")->currentData().toLongLong(), qlonglong(idMagazzino));
    QVERIFY(Pubblica(&altro)->isChecked());
    QCOMPARE(altro.findChild<QDateEdit*>(QStringLiteral("DTPData"))->date(), QDate(2024, 2, 29));
    QCOMPARE(altro.LeggiDenominazione(), titolo);
    QCOMPARE(altro.ID_Istituto, luoghi.idIstituto);
    QVERIFY(!Riga(&altro, 0)->isEnabled());
    QVERIFY(!Combo(&altro, "cmbTipoInv")->isEnabled());

    // Emptied boxes are stored as Null, never as empty texts; "Sede" stores Null.
    editore.Modifica();
    for (int n : {7, 10, 11, 15})
        Riga(&editore, n)->clear();
    Blocco(&editore, 9)->clear();
    Blocco(&editore, 12)->clear();
    Combo(&editore, "cmbSede")->setCurrentIndex(0);
    Combo(&editore, "cmbMagazzino")->setCurrentIndex(0);
    Combo(&editore, "cmbTipologiaIN")->setCurrentIndex(-1);
    editore.Salva(id);
    for (const char* colonna : {"Autore", "XmlLink", "UrlLink", "Edizione", "Note", "NoteDirezione",
                                "ID_IstitutoSede", "ID_IstitutoMag", "Tipologia"})
        QVERIFY2(ambiente.Colonna(QLatin1String(colonna), id).isNull(), colonna);
}

void TestInventario::unAnnoVuotoSiSalvaNullMaLObbligoRifiutaEntrambiGliAnniVuoti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    ambiente.Scrivi(QStringLiteral("AnnoInizio = ?, AnnoFine = ?"), {Id(1700), Id(1750), Id(id)});
    EditorePronto<ucInventario> editore(id);
    QCOMPARE(Testo(&editore, 4), QStringLiteral("1700"));
    editore.Modifica();
    Compila(editore);

    // Each empty year box is refused by the mandatory check, with its own message.
    Riga(&editore, 4)->clear();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto,
             QStringLiteral("Inserire l'estremo cronologico inferiore"));
    Riga(&editore, 4)->setText(QStringLiteral("1890"));
    Riga(&editore, 5)->clear();
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constLast().sTesto,
             QStringLiteral("Inserire l'estremo cronologico superiore"));

    // A save that comes all the same stores Null, not 0.
    Riga(&editore, 4)->clear();
    editore.Salva(id);
    QVERIFY(ambiente.Colonna(QStringLiteral("AnnoInizio"), id).isNull());
    QVERIFY(ambiente.Colonna(QStringLiteral("AnnoFine"), id).isNull());
    editore.Mostra(id);
    QCOMPARE(Testo(&editore, 4), QString());
    QCOMPARE(Testo(&editore, 5), QString());
}

void TestInventario::soloBaseConGuidaAmmettePiuComplessi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    EditorePronto<ucInventario> editore;
    struct Caso {
        QVariant tipologia;
        QVariant subTipologia;
        bool bPiu;
    };
    const QList<Caso> casi = {
        {QStringLiteral("01"), QStringLiteral("05"), true},
        {QStringLiteral("01"), QStringLiteral("04"), false},
        {QStringLiteral("02"), QStringLiteral("05"), false},
        {QStringLiteral("05"), QStringLiteral("01"), false},
        {QStringLiteral("01"), NullTesto(), false},
        {NullTesto(), QStringLiteral("05"), false},
        {NullTesto(), NullTesto(), false},
    };
    for (const Caso& caso : casi) {
        const QString nome =
            caso.tipologia.toString() + QLatin1Char('/') + caso.subTipologia.toString();
        ambiente.Scrivi(QStringLiteral("Tipologia = ?, SubTipologia = ?"),
                        {caso.tipologia, caso.subTipologia, Id(id)});
        editore.Mostra(id);
        QVERIFY2(editore.bPiùLegamiComplessiDoc() == caso.bPiu, qPrintable(nome));
    }

    // Salva refreshes it from what it wrote.
    editore.Modifica();
    Compila(editore);
    Combo(&editore, "cmbTipologiaIN")->setCurrentIndex(0);  // "01"
    Combo(&editore, "cmbTipologiaIN2")->setCurrentIndex(4); // "05"
    editore.Salva(id);
    QVERIFY(editore.bPiùLegamiComplessiDoc());
    editore.Modifica();
    Combo(&editore, "cmbTipologiaIN2")->setCurrentIndex(0); // "01"
    editore.Salva(id);
    QVERIFY(!editore.bPiùLegamiComplessiDoc());
}

void TestInventario::loStatoDellInventarioAnaliticoVieneDaTipoInv() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    EditorePronto<ucInventario> editore;
    const QList<QPair<QVariant, int>> casi = {
        {NullTesto(), 0},          {QStringLiteral("00"), 0}, {QStringLiteral("01"), 1},
        {QStringLiteral("02"), 2}, {QStringLiteral("03"), 3}, {QStringLiteral("04"), 0},
        {QStringLiteral("1"), 0},  {QStringLiteral("X"), 0},
    };
    for (const auto& caso : casi) {
        ambiente.Scrivi(QStringLiteral("TipoInv = ?"), {caso.first, Id(id)});
        editore.Mostra(id);
        QVERIFY2(editore.InventariAnalitici == caso.second, qPrintable(caso.first.toString()));
    }
    // Salva leaves TipoInv alone and reads it back.
    editore.Modifica();
    Compila(editore);
    editore.Salva(id);
    QCOMPARE(ambiente.Colonna(QStringLiteral("TipoInv"), id).toString(), QStringLiteral("X"));
    QCOMPARE(editore.InventariAnalitici, 0);
    ambiente.Scrivi(QStringLiteral("TipoInv = ?"), {QStringLiteral("02"), Id(id)});
    editore.Modifica();
    editore.Salva(id);
    QCOMPARE(editore.InventariAnalitici, 2);
}

void TestInventario::unInventarioMostratoNonNeCreaAltriSiModificaESiCancellaSenzaFigli() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    EditorePronto<ucInventario> editore(id);
    QVERIFY(!editore.OkNuovoInventario);
    QVERIFY(editore.OkModifica);
    QVERIFY(editore.OkCancella);
    QCOMPARE(editore.ID_Istituto, ambiente.IdIstituto(istituto));

    // A unit of the analytical inventory under it: no delete.
    ambiente.Crea("07", QStringLiteral("Busta 1"), id);
    editore.Mostra(id);
    QVERIFY(!editore.OkCancella);
    QVERIFY(editore.OkModifica);
    editore.Modifica();
    Compila(editore);
    editore.Salva(id);
    QVERIFY(!editore.OkCancella);
    QVERIFY(!editore.OkNuovoInventario);
}

void TestInventario::unRecordCheNonCeSpegneTutto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    const long fondo = ambiente.Crea("02", QStringLiteral("Fondo"), istituto);
    ambiente.Collega(fondo, id);
    ambiente.Scrivi(QStringLiteral("TipoInventario = ?, TipoInv = ?"),
                    {QStringLiteral("D"), QStringLiteral("01"), Id(id)});
    EditorePronto<ucInventario> editore(id);
    QCOMPARE(editore.ComplessiLink, 1L);
    QVERIFY(Immagine(&editore)->isEnabled());

    // The institute is no finding aid: its id has no row of Inventari.
    editore.Mostra(istituto);
    QVERIFY(!editore.OkNuovoInventario);
    QVERIFY(!editore.OkModifica);
    QVERIFY(!editore.OkCancella);
    QVERIFY(!editore.AltreDenominazioni);
    QCOMPARE(editore.InventariAnalitici, -1);
    QCOMPARE(editore.ComplessiLink, 0L);
    QCOMPARE(editore.sComplessoLinked, QString());
    QCOMPARE(editore.ID_Istituto, 0L);
    QVERIFY(!editore.bPiùLegamiComplessiDoc());
    QVERIFY(!Immagine(&editore)->isEnabled());
    QCOMPARE(Testo(&editore, 0), QString());
    QCOMPARE(Testo(&editore, 17), QString());

    // Salva of it writes nothing and says nothing.
    editore.Modifica();
    Compila(editore);
    editore.Salva(istituto);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Redattore"), istituto).isNull());
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Denominazione"), istituto).toString(),
             QStringLiteral("Istituto"));
    QVERIFY(!editore.OkModifica);
    QVERIFY(!Riga(&editore, 0)->isEnabled());
}

void TestInventario::unComplessoCollegatoSiNominaEDueNominanoLIstituto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long istituto =
        ambiente.CreaIstituto(QStringLiteral("Archivio di Stato di Forlì"), QStringLiteral("01"));
    const long id = ambiente.Crea("03", QStringLiteral("Inventario"), istituto);
    const long fondo = ambiente.Crea("02", QStringLiteral("Fondo «Podestà»"), istituto);
    const long serie = ambiente.Crea("02", QStringLiteral("Serie"), fondo);
    // Trailing blanks of the full names are not part of the name (the institute's is written
    // first: the database carries it down to the complessi).
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Istituti SET DenomCompleta = ? WHERE ID_Elemento = ?"),
        {QStringLiteral("Archivio di Stato di Forlì  "), Id(istituto)});
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE ComplessiDoc SET DenomCompleta = ? WHERE ID_Elemento = ?"),
        {QStringLiteral("Forlì > Fondo «Podestà»   "), Id(fondo)});

    EditorePronto<ucInventario> editore(id);
    QCOMPARE(editore.ComplessiLink, 0L);
    QCOMPARE(editore.sComplessoLinked, QString());

    ambiente.Collega(fondo, id);
    editore.Mostra(id);
    QCOMPARE(editore.ComplessiLink, 1L);
    QCOMPARE(editore.sComplessoLinked, QStringLiteral("Forlì > Fondo «Podestà»"));

    ambiente.Collega(serie, id);
    editore.Mostra(id);
    QCOMPARE(editore.ComplessiLink, 2L);
    QCOMPARE(editore.sComplessoLinked, QStringLiteral("Archivio di Stato di Forlì"));

    // Salva counts them again.
    editore.Modifica();
    Compila(editore);
    Sessione::cnn->Esegui(QStringLiteral("DELETE FROM Links WHERE ID_Elemento = ?"), {Id(serie)});
    editore.Salva(id);
    QCOMPARE(editore.ComplessiLink, 1L);
    QCOMPARE(editore.sComplessoLinked, QStringLiteral("Forlì > Fondo «Podestà»"));
}

void TestInventario::leAltreDenominazioniSiLeggonoDaInventariDenominazioni() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    const long altro = ambiente.Crea("03", QStringLiteral("Altro inventario"), istituto);
    EditorePronto<ucInventario> editore(id);
    QVERIFY(!editore.AltreDenominazioni);
    const qint64 idInventario = ambiente.Colonna(QStringLiteral("ID_Inventario"), id).toLongLong();
    Sessione::cnn->Inserisci(
        QStringLiteral("InventariDenominazioni"), QStringLiteral("ID_Denominazione"),
        {QStringLiteral("ID_Inventario"), QStringLiteral("AltraDenominazione")},
        {QVariant(idInventario), QStringLiteral("Repertorio «vecchio»")});
    // After the dialog of other names the window asks again.
    editore.CheckDenominazioni(id);
    QVERIFY(editore.AltreDenominazioni);
    editore.CheckDenominazioni(altro);
    QVERIFY(!editore.AltreDenominazioni);
    editore.Mostra(id);
    QVERIFY(editore.AltreDenominazioni);
    editore.Mostra(altro);
    QVERIFY(!editore.AltreDenominazioni);
}

void TestInventario::lImmagineSiOffreSoloAUnInventarioDigitale() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    EditorePronto<ucInventario> editore;
    const QList<QPair<QVariant, bool>> casi = {
        {QStringLiteral("S"), false}, {QStringLiteral("M"), false}, {QStringLiteral("T"), false},
        {QStringLiteral("C"), false}, {NullTesto(), false},         {QStringLiteral("D"), true},
    };
    for (const auto& caso : casi) {
        ambiente.Scrivi(QStringLiteral("TipoInventario = ?"), {caso.first, Id(id)});
        editore.Mostra(id);
        QVERIFY2(Immagine(&editore)->isEnabled() == caso.second, qPrintable(caso.first.toString()));
    }
    // The button shows the state of the link of the element.
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Immagine"));
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                          {QStringLiteral("0123456789abcdef0123456789abcdef"), Id(id)});
    editore.Mostra(id);
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(Immagine(&editore)->property("Tag").toString(), QStringLiteral("1"));
    // Editing keeps it; a support changed and saved decides again.
    editore.Modifica();
    QVERIFY(Immagine(&editore)->isEnabled());
    Compila(editore); // "M"
    editore.Salva(id);
    QVERIFY(!Immagine(&editore)->isEnabled());
    // The link in hand reaches Elementi with the save.
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(),
             QStringLiteral("0123456789abcdef0123456789abcdef"));
}

void TestInventario::laSceltaDelSupportoRimodellaIlModulo() {
    Ambiente ambiente(TipoBackend::SQLite);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    EditorePronto<ucInventario> editore;
    editore.show();
    QComboBox* supporto = Combo(&editore, "cmbTipoInv");
    const auto visibile = [&editore](QWidget* w) {
        return w->isVisibleTo(&editore);
    };
    // Before any support: the level is offered.
    editore.Nuovo();
    QVERIFY(visibile(Combo(&editore, "cmbTipologiaIN")));
    QVERIFY(visibile(Etichetta(&editore, 1)));

    // A printed one: the edition, no XML document, and no longer the level.
    supporto->setCurrentIndex(0);
    QVERIFY(!visibile(Combo(&editore, "cmbTipologiaIN")));
    QVERIFY(!visibile(Etichetta(&editore, 1)));
    QVERIFY(visibile(Riga(&editore, 15)));
    QVERIFY(visibile(Etichetta(&editore, 15)));
    QVERIFY(!visibile(Riga(&editore, 10)));
    QVERIFY(!visibile(Etichetta(&editore, 10)));
    QVERIFY(!editore.bElettronico());

    // The electronic one (the fourth entry): the XML document, no edition.
    supporto->setCurrentIndex(3);
    QVERIFY(!visibile(Riga(&editore, 15)));
    QVERIFY(!visibile(Etichetta(&editore, 15)));
    QVERIFY(visibile(Riga(&editore, 10)));
    QVERIFY(visibile(Etichetta(&editore, 10)));
    QVERIFY(editore.bElettronico());

    // Any other: neither.
    for (int i : {1, 2, 4}) {
        supporto->setCurrentIndex(i);
        QVERIFY(!visibile(Riga(&editore, 15)));
        QVERIFY(!visibile(Riga(&editore, 10)));
        QVERIFY(!editore.bElettronico());
        QVERIFY(!visibile(Combo(&editore, "cmbTipologiaIN")));
    }

    // The user's choice reshapes it as well.
    supporto->setCurrentIndex(0);
    QTest::keyClick(supporto, Qt::Key_Down);
    QCOMPARE(supporto->currentIndex(), 1);
    QVERIFY(!visibile(Riga(&editore, 15)));

    // Mostra chooses the support of the row, and the form follows it.
    ambiente.Scrivi(QStringLiteral("TipoInventario = ?"), {QStringLiteral("D"), Id(id)});
    editore.Mostra(id);
    QCOMPARE(supporto->currentIndex(), 3);
    QVERIFY(visibile(Riga(&editore, 10)));
    QVERIFY(!visibile(Riga(&editore, 15)));
    QVERIFY(editore.bElettronico());
    ambiente.Scrivi(QStringLiteral("TipoInventario = ?"), {QStringLiteral("S"), Id(id)});
    editore.Mostra(id);
    QVERIFY(!visibile(Riga(&editore, 10)));
    QVERIFY(visibile(Riga(&editore, 15)));
    QVERIFY(!editore.bElettronico());
}

void TestInventario::unAnnoNonNumericoOPiuCortoDiTreCifreERifiutatoAllUscita() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    auto inventario = Ospitato(ambiente, QStringLiteral("Inventario"));
    QVERIFY(inventario.Modifica());

    int iAttesi = 0;
    for (int n : {4, 5}) {
        QLineEdit* anno = Riga(inventario.editore, n);
        for (const char* errato : {"19a", "12", "x", "1"}) {
            // Left with a click on the title.
            RifiutatoAllUscita(ambiente.seam, anno, QLatin1String(errato),
                               Riga(inventario.editore, 0), QStringLiteral("Anno errato"), iAttesi);
            QCOMPARE(ambiente.seam.Messaggi().constLast().icona, Icona::Informazione);
            QCOMPARE(anno->text(), QLatin1String(errato));
        }
        // Three or four digits, or nothing, may leave.
        for (const char* giusto : {"812", "1890", ""})
            AccettatoAllUscita(ambiente.seam, anno, QLatin1String(giusto),
                               Riga(inventario.editore, 0), iAttesi);
    }
    // The check is on leaving only: the save does not repeat it.
    Riga(inventario.editore, 4)->setText(QStringLiteral("812"));
    Riga(inventario.editore, 5)->setText(QStringLiteral("12"));
    QVERIFY(inventario.ospite.Conferma());
    QCOMPARE(ambiente.seam.Messaggi().size(), iAttesi);
    QCOMPARE(ambiente.Colonna(QStringLiteral("AnnoInizio"), inventario.id).toLongLong(),
             qlonglong(812));
    QCOMPARE(ambiente.Colonna(QStringLiteral("AnnoFine"), inventario.id).toLongLong(),
             qlonglong(12));
}

void TestInventario::pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long chiuso = ambiente.CreaIstituto(QStringLiteral("Chiuso"), QStringLiteral("01"));
    const long aperto = ambiente.CreaIstituto(QStringLiteral("Aperto"), QStringLiteral("01"));
    const auto pubblica = [](long id, const char* valore) {
        Sessione::cnn->Esegui(
            QStringLiteral("UPDATE Elementi SET Pubblicato = ? WHERE ID_Elemento = ?"),
            {QLatin1String(valore), Id(id)});
    };
    pubblica(chiuso, "N");
    pubblica(aperto, "S");
    const long sotto = ambiente.Crea("03", QStringLiteral("Sotto il chiuso"), chiuso);
    const long libero = ambiente.Crea("03", QStringLiteral("Sotto l'aperto"), aperto);

    EditorePronto<ucInventario> editore(sotto);
    editore.Modifica();
    Compila(editore);
    Pubblica(&editore)->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inventario non pubblicabile"));
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
    QVERIFY(!Pubblica(&editore)->isChecked());
    editore.Salva(sotto);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), sotto).toString(),
             QStringLiteral("N"));

    // Under a published parent the tick stays.
    ambiente.seam.Svuota();
    editore.Mostra(libero);
    editore.Modifica();
    Compila(editore);
    Pubblica(&editore)->click();
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QVERIFY(Pubblica(&editore)->isChecked());
    editore.Salva(libero);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), libero).toString(),
             QStringLiteral("S"));
    // Unticking is never refused.
    editore.Modifica();
    Pubblica(&editore)->click();
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QVERIFY(!Pubblica(&editore)->isChecked());

    // A new finding aid hangs under the institute the window assigned.
    editore.AssegnaIstituto(ambiente.IdIstituto(chiuso));
    editore.Nuovo();
    Pubblica(&editore)->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inventario non pubblicabile"));
    QVERIFY(!Pubblica(&editore)->isChecked());
    editore.AssegnaIstituto(ambiente.IdIstituto(aperto));
    editore.Nuovo();
    Pubblica(&editore)->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QVERIFY(Pubblica(&editore)->isChecked());
}

void TestInventario::laSedeScendeAiFigliDirettiAncheComeMagazzinoMaNonAiNipoti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    ucInventario editore;
    LaSedeScendeAiFigliDiretti(ambiente, "03", editore, [&editore] { Compila(editore); });
}

void TestInventario::unSalvaRifiutatoDalDatabaseLasciaIlRecordComEra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    const long idSede = luoghi.idSede;
    const long id = ambiente.Crea("03", QStringLiteral("Inventario"), luoghi.istituto);
    const long figlio = ambiente.Crea("03", QStringLiteral("Supplemento"), id);
    ambiente.Scrivi(QStringLiteral("Autore = ?"), {QStringLiteral("Anna Bianchi"), Id(id)});
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Elementi SET Redattore = ?, Pubblicato = ?, Md5Link = ? "
                       "WHERE ID_Elemento = ?"),
        {QStringLiteral("Anna Bianchi"), QStringLiteral("N"), NullTesto(), Id(id)});
    // The database refuses a finding aid by this author, after the row of Elementi is written.
    ambiente.RifiutaAggiornamento(QStringLiteral("Inventari"),
                                  QStringLiteral("NEW.Autore = 'Rifiutato'"),
                                  QStringLiteral("Autore rifiutato"));

    EditorePronto<ucInventario> editore(id);
    QVERIFY(editore.OkModifica);
    editore.Modifica();
    Compila(editore);
    Riga(&editore, 7)->setText(QStringLiteral("Rifiutato"));
    Riga(&editore, 17)->setText(QStringLiteral("Carlo Verdi"));
    ScegliChiave(&editore, "cmbSede", idSede);
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(QDate(2001, 1, 2));
    const QVariant dataPrima = ambiente.ColonnaElemento(QStringLiteral("DataRedazione"), id);
    editore.Salva(id);

    // The error in a critical box with the default title, the text being the server's words.
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const Messaggio messaggio = ambiente.seam.Messaggi().at(0);
    QCOMPARE(messaggio.icona, Icona::Critica);
    QCOMPARE(messaggio.sTitolo, Sessione::TitoloProgramma);
    QVERIFY2(messaggio.sTesto.contains(QStringLiteral("Autore rifiutato")),
             qPrintable(messaggio.sTesto));
    // Nothing of the save stays: not the row of Elementi, nor the record, nor the children.
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             QStringLiteral("Anna Bianchi"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("DataRedazione"), id), dataPrima);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Autore"), id).toString(),
             QStringLiteral("Anna Bianchi"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Inventario"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Inventario"));
    QVERIFY(ambiente.Colonna(QStringLiteral("ID_IstitutoSede"), figlio).isNull());
    // The form is locked, with the text typed still in it; the host is told nothing.
    QVERIFY(!Riga(&editore, 0)->isEnabled());
    QCOMPARE(Testo(&editore, 7), QStringLiteral("Rifiutato"));
    QVERIFY(editore.OkModifica);

    // The connection goes on working: the next save is written.
    editore.Modifica();
    Riga(&editore, 7)->setText(QStringLiteral("Carlo Verdi"));
    editore.Salva(id);
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             QStringLiteral("Carlo Verdi"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Autore"), id).toString(),
             QStringLiteral("Carlo Verdi"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("ID_IstitutoMag"), figlio).toLongLong(),
             qlonglong(idSede));
}

void TestInventario::unInventarioCancellatoNelFrattempoNonSiScriveESiTace() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [istituto, id] = ambiente.CreaInIstituto("03", QStringLiteral("Inventario"));
    EditorePronto<ucInventario> editore(id);
    editore.Modifica();
    Compila(editore);
    // Another workstation deletes it; the database takes its element with it.
    Sessione::cnn->Esegui(QStringLiteral("DELETE FROM Inventari WHERE ID_Elemento = ?"), {Id(id)});
    editore.Salva(id);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QCOMPARE(
        ambiente
            .Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE ID_Elemento = ?"), {Id(id)})
            .toInt(),
        0);
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT COUNT(*) FROM Inventari WHERE ID_Elemento = ?"),
                         {Id(id)})
                 .toInt(),
             0);
    QVERIFY(!editore.OkModifica);
    QVERIFY(!editore.OkCancella);
    QCOMPARE(editore.InventariAnalitici, -1);
    QVERIFY(!Riga(&editore, 0)->isEnabled());
}

void TestInventario::lImmagineDiUnInventarioDigitaleSiImportaESiRimuove() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    DocumentoMag mag;
    const auto [istituto, id] =
        ambiente.CreaInIstituto("03", QStringLiteral("Inventario digitale"));
    ambiente.Scrivi(QStringLiteral("TipoInventario = ?"), {QStringLiteral("D"), Id(id)});
    EditorePronto<ucInventario> editore(id);
    QVERIFY(Immagine(&editore)->isEnabled());
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Immagine"));

    // The import: the MAG document chosen, its digest in hand and on the element.
    ambiente.seam.fileScelti = {mag.sDoc};
    Immagine(&editore)->click();
    QCOMPARE(ambiente.seam.Chiamate(QStringLiteral("file")).size(), 1);
    QCOMPARE(ambiente.seam.Chiamate(QStringLiteral("file")).constFirst().sceltaFile.sFiltroScelto,
             QStringLiteral("Xml Files(*.xml)"));
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QString sErrore;
    const QString sMd5 = basGestImgMag::sCalculateMd5(mag.sDoc, sErrore);
    QVERIFY(!sMd5.isEmpty());
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(Immagine(&editore)->property("Tag").toString(), QStringLiteral("1"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(), sMd5);

    // A save keeps it, and so does the next Mostra.
    editore.Modifica();
    Compila(editore);
    Combo(&editore, "cmbTipoInv")->setCurrentIndex(3); // "D"
    editore.Salva(id);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(), sMd5);
    QCOMPARE(ambiente.Colonna(QStringLiteral("TipoInventario"), id).toString(),
             QStringLiteral("D"));
    editore.Mostra(id);
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Elimina coll. immagine"));

    // The removal asks first; No keeps the link.
    ambiente.seam.risposte = {Risposta::No};
    Immagine(&editore)->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Cancella Immagini. "));
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto,
             QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Elimina coll. immagine"));
    ambiente.seam.risposte = {Risposta::Si};
    Immagine(&editore)->click();
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Immagine"));
    QCOMPARE(Immagine(&editore)->property("Tag").toString(), QStringLiteral("0"));
    QCOMPARE(ambiente.Valore(QStringLiteral("SELECT Status FROM MD5Location WHERE MD5 = ?"), {sMd5})
                 .toInt(),
             3);
    editore.Modifica();
    editore.Salva(id);
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).isNull());
    editore.Mostra(id);
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Immagine"));
}

void TestInventario::unImportazioneFallitaNonLasciaCollegamentoDopoIlSalva() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    DocumentoMag mag;
    QFile::remove(mag.cartella.path() + QStringLiteral("/scansioni/0001.tif"));
    const auto [istituto, id] =
        ambiente.CreaInIstituto("03", QStringLiteral("Inventario digitale"));
    ambiente.Scrivi(QStringLiteral("TipoInventario = ?"), {QStringLiteral("D"), Id(id)});
    EditorePronto<ucInventario> editore(id);
    ambiente.seam.fileScelti = {mag.sDoc};
    Immagine(&editore)->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Critica);
    // The box is titled with the error's own text.
    QVERIFY(!ambiente.seam.Messaggi().at(0).sTesto.isEmpty());
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, ambiente.seam.Messaggi().at(0).sTesto);
    QCOMPARE(Immagine(&editore)->text(), QStringLiteral("Immagine"));
    // The import wrote its link; the record holds none, and its save says so.
    QVERIFY(!ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString().isEmpty());
    editore.Modifica();
    Compila(editore);
    editore.Salva(id);
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).isNull());
}

void TestInventario::unInventarioSiCreaMostraModificaESalvaAttraversoLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    auto nuovo = Ospitato(ambiente);
    nuovo.ospite.show();
    QVERIFY(nuovo.ospite.cmdNuovo->isEnabled());
    long id = 0;
    CreaAttraversoLOspite(ambiente, nuovo, "03", QStringLiteral("Inserire redattore"), id);
    QVERIFY(id > 0);
    const auto* editore = nuovo.editore;
    HostEditore& ospite = nuovo.ospite;
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Inventario dell'archivio comunale"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), id).toString(), QStringLiteral("01"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("SubTipologia"), id).toString(), QStringLiteral("01"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("TipoInventario"), id).toString(),
             QStringLiteral("M"));
    QVERIFY(ambiente.Colonna(QStringLiteral("ID_IstitutoSede"), id).isNull());
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("N"));
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).isNull());
    // Shown: no finding aid under a finding aid, but edit and delete.
    QVERIFY(!ospite.cmdNuovo->isEnabled());
    QVERIFY(ospite.cmdModifica->isEnabled());
    QVERIFY(ospite.cmdCancella->isEnabled());
    QVERIFY(!Riga(editore, 0)->isEnabled());

    RinominaAttraversoLOspite(ambiente, ospite, editore, id,
                              QStringLiteral("Inventario dell'archivio comunale"),
                              QStringLiteral("Inventario \"nuovo\""));

    ambiente.seam.risposte = {Risposta::Si};
    QVERIFY(ospite.Cancella());
    QVERIFY(ambiente.ColonnaElemento(QStringLiteral("ID_Elemento"), id).isNull());
}

QTEST_MAIN(TestInventario)
#include "tst_inventario.moc"
