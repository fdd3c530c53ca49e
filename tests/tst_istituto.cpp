// The record of an institute, a seat and a warehouse, on SQLite and on PostgreSQL: the form
// that changes with the kind, the round trip of every field, what may be created and deleted,
// the publishing rule, and the road of a new institute through a host.

#include "records/ucIstituto.h"
#include "session/Conversioni.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QtTest>

namespace {

// A program folder with the lookup list of the kinds, a fresh database with some institute
// codes and provinces, the session's connection and the scripted seam.
struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("Istituti"), {"TipologiaIST.txt"}) {
        const auto codice = [](int id, const char* nome, const char* cod, const char* sigla) {
            Sessione::cnn->Esegui(QStringLiteral("INSERT INTO CodiciIstituto (ID_CodiceIstituto, "
                                                 "Denominazione, ISAD_Codice, ISAD_Sigla) "
                                                 "VALUES (?, ?, ?, ?)"),
                                  {QVariant(id), QString::fromUtf8(nome), QString::fromUtf8(cod),
                                   QString::fromUtf8(sigla)});
        };
        codice(10, "Archivio di Stato di Lucca", "IT-ASLU", "ASLU");
        codice(20, "Archivio di Stato di Firenze", "IT-ASFI", "ASFI");
        codice(30, "Archivio storico comunale di Forlì", "IT-ASCFO", "ASCFO");
        const auto provincia = [](const char* sigla, const char* nome) {
            Sessione::cnn->Esegui(
                QStringLiteral("INSERT INTO Provincie (Provincia, NomeProvincia) VALUES (?, ?)"),
                {QString::fromUtf8(sigla), QString::fromUtf8(nome)});
        };
        provincia("LU", "Lucca");
        provincia("FI", "Firenze");
        provincia("FC", "Forlì-Cesena");
    }
    QString Colonna(const QString& colonna, long idElemento) const {
        return AmbienteRecord::Colonna(colonna, idElemento).toString();
    }
};

QCheckBox* Pubblica(const QWidget* editore) {
    return editore->findChild<QCheckBox*>(QStringLiteral("chkPubblicaIst"));
}
QString Tag(const QWidget* controllo) {
    return controllo->property("Tag").toString();
}

// The mandatory fields of an institute filled in.
void CompilaIstituto(ucIstituto& editore) {
    Riga(&editore, 0)->setText(QStringLiteral("Archivio di Stato di Lucca"));
    Combo(&editore, "DCCodice")->setCurrentIndex(0);
    Riga(&editore, 2)->setText(QStringLiteral("Piazza Guidiccioni 8"));
    Riga(&editore, 3)->setText(QStringLiteral("Lucca"));
    Riga(&editore, 4)->setText(QStringLiteral("55100"));
    Combo(&editore, "DCProvincia")->setCurrentIndex(1);
    Riga(&editore, 6)->setText(QStringLiteral("0583 491465"));
    Riga(&editore, 8)->setText(QStringLiteral("as-lu@cultura.gov.it"));
    Riga(&editore, 10)->setText(QStringLiteral("Maria Rossi"));
    Riga(&editore, 11)->setText(QStringLiteral("8:30-13:30"));
}

// A text of exactly n characters made of the given piece.
} // namespace

class TestIstituto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiETag_data() { AggiungiBackend(); }
    void iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiETag();
    void ogniCampoFaIlGiroAttraversoSalvaEMostra_data() { AggiungiBackend(); }
    void ogniCampoFaIlGiroAttraversoSalvaEMostra();
    void nuovoProponeLaPrimaTipologiaSuUnSitoIELaSecondaSuUnSitoS_data() { AggiungiBackend(); }
    void nuovoProponeLaPrimaTipologiaSuUnSitoIELaSecondaSuUnSitoS();
    void suUnSitoSLaPrimaTipologiaSiSalvaCome02ELoResta_data() { AggiungiBackend(); }
    void suUnSitoSLaPrimaTipologiaSiSalvaCome02ELoResta();
    void laTipologiaRimodellaIlModuloERiscriveITag_data() { AggiungiBackend(); }
    void laTipologiaRimodellaIlModuloERiscriveITag();
    void unMagazzinoNascondeIlTelefonoMaIlSalvaNeScriveIlTesto_data() { AggiungiBackend(); }
    void unMagazzinoNascondeIlTelefonoMaIlSalvaNeScriveIlTesto();
    void unMagazzinoNonChiedeIlTelefonoMaIndirizzoCittaCapEProvinciaSi_data() { AggiungiBackend(); }
    void unMagazzinoNonChiedeIlTelefonoMaIndirizzoCittaCapEProvinciaSi();
    void unIstitutoEUnaSedeChiedonoIndirizzoCittaCapEProvincia_data();
    void unIstitutoEUnaSedeChiedonoIndirizzoCittaCapEProvincia();
    void unCodiceSenzaRigaInCodiciIstitutoSiMostraVuotoESiCancellaAlSalva_data() {
        AggiungiBackend();
    }
    void unCodiceSenzaRigaInCodiciIstitutoSiMostraVuotoESiCancellaAlSalva();
    void unaSedeSiCancellaSoloSeNessunComplessoOInventarioLaUsa_data() { AggiungiBackend(); }
    void unaSedeSiCancellaSoloSeNessunComplessoOInventarioLaUsa();
    void unMagazzinoUsatoDaUnInventarioNonSiCancella_data() { AggiungiBackend(); }
    void unMagazzinoUsatoDaUnInventarioNonSiCancella();
    void unIstitutoDiTipologia01NonSiCancellaMai_data() { AggiungiBackend(); }
    void unIstitutoDiTipologia01NonSiCancellaMai();
    void unaSedeRimandaAllIstitutoSopraENonLasciaCreareNulla_data() { AggiungiBackend(); }
    void unaSedeRimandaAllIstitutoSopraENonLasciaCreareNulla();
    void unElementoSenzaRigaSiMostraVuotoESenzaPermessi_data() { AggiungiBackend(); }
    void unElementoSenzaRigaSiMostraVuotoESenzaPermessi();
    void pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN_data() { AggiungiBackend(); }
    void pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN();
    void unIstitutoAllaRadiceSiPubblicaSempre_data() { AggiungiBackend(); }
    void unIstitutoAllaRadiceSiPubblicaSempre();
    void unErroreNelControlloDiPubblicazioneSiMostraComeErroreU2();
    void salvaSenzaRigaDiDettaglioNonScriveNullaENonDiceNulla_data() { AggiungiBackend(); }
    void salvaSenzaRigaDiDettaglioNonScriveNullaENonDiceNulla();
    void salvaSenzaRigaDiDettaglioLasciaLEditoreComeDopoMostra_data() { AggiungiBackend(); }
    void salvaSenzaRigaDiDettaglioLasciaLEditoreComeDopoMostra();
    void unIstitutoSiCreaMostraModificaESalvaAttraversoLOspite_data() { AggiungiBackend(); }
    void unIstitutoSiCreaMostraModificaESalvaAttraversoLOspite();
};

void TestIstituto::iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiETag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucIstituto> editore;
    QStringList nomi;
    const QList<QWidget*> controlli = editore.Controls();
    for (const QWidget* controllo : controlli)
        nomi << controllo->objectName();
    QCOMPARE(nomi, QStringList({"DCCodice", "cmbTipologiaIS", "Text1(13)", "Text1(12)", "Text1(11)",
                                "Text1(10)", "Text1(9)", "Text1(8)", "Text1(7)", "Text1(6)",
                                "Text1(3)", "Text1(2)", "Text1(0)", "Text1(4)", "Text1(14)",
                                "chkPubblicaIst", "DCProvincia"}));
    QCOMPARE(Riga(&editore, 0)->maxLength(), 256);
    QCOMPARE(Riga(&editore, 4)->maxLength(), 6);
    QCOMPARE(Riga(&editore, 6)->maxLength(), 64);
    QCOMPARE(Riga(&editore, 11)->maxLength(), 128);
    QVERIFY(Blocco(&editore, 12) != nullptr);
    QVERIFY(Blocco(&editore, 14) != nullptr);
    QCOMPARE(Tag(Riga(&editore, 11)), QStringLiteral("Inserire l'Orario"));
    QCOMPARE(Tag(Riga(&editore, 8)), QStringLiteral("Inserire l'E-Mail"));
    QCOMPARE(Tag(Riga(&editore, 0)), QStringLiteral("Inserire denominazione"));
    QCOMPARE(Tag(Combo(&editore, "DCProvincia")), QStringLiteral("Inserire la Provincia"));
    QCOMPARE(editore.findChild<QLabel*>(QStringLiteral("Label1(16)"))->text(),
             QStringLiteral("Sigla Istituto"));
    QCOMPARE(editore.findChild<QLabel*>(QStringLiteral("Label1(15)"))->text(),
             QStringLiteral("Visibile sul web"));
    // The data combos in the order of their names.
    QCOMPARE(Combo(&editore, "DCCodice")->itemText(0),
             QStringLiteral("Archivio di Stato di Firenze"));
    QCOMPARE(Combo(&editore, "DCCodice")->itemData(0).toInt(), 20);
    QCOMPARE(Combo(&editore, "DCProvincia")->itemText(0), QStringLiteral("Firenze"));
    QCOMPARE(Combo(&editore, "DCProvincia")->itemData(2).toString(), QStringLiteral("LU"));
    QVERIFY(editore.OkNuovoIstituto);
    QVERIFY(!Riga(&editore, 0)->isEnabled());
}

void TestIstituto::ogniCampoFaIlGiroAttraversoSalvaEMostra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    EditorePronto<ucIstituto> editore;
    const long id = ambiente.Crea("01", QStringLiteral("Provvisorio"));
    editore.Nuovo();

    const QString accenti = QStringLiteral("L'Archivio \"di\" Stato àèéìòù ÀÈÌÒÙ ç ");
    const QString denominazione = Lungo(accenti, 256);
    const QString note = Lungo(QStringLiteral("Nota con 'apici' e \"virgolette\", città\n"), 1024);
    const QString noteDirezione = Lungo(QStringLiteral("Gestione: l'ufficio è aperto\n"), 1024);
    Riga(&editore, 0)->setText(denominazione);
    Combo(&editore, "DCCodice")->setCurrentIndex(2); // Archivio storico comunale di Forlì
    Riga(&editore, 2)->setText(Lungo(QStringLiteral("Via dell'Orologio, 3 "), 64));
    Riga(&editore, 3)->setText(Lungo(QStringLiteral("Forlì "), 64));
    Riga(&editore, 4)->setText(QStringLiteral("47'21à"));
    Combo(&editore, "DCProvincia")->setCurrentIndex(1); // Forlì-Cesena
    Riga(&editore, 6)->setText(Lungo(QStringLiteral("+39 0543 '712' "), 64));
    Riga(&editore, 7)->setText(Lungo(QStringLiteral("fax \"0543\" "), 64));
    Riga(&editore, 8)->setText(Lungo(QStringLiteral("archivio.forlì@comune.it "), 64));
    Blocco(&editore, 9)
        ->setPlainText(Lungo(QStringLiteral("https://www.comune.forlì.it/l'archivio/"), 128));
    Riga(&editore, 10)->setText(Lungo(QStringLiteral("Dott.ssa Maria D'Annunzio "), 256));
    Riga(&editore, 11)->setText(Lungo(QStringLiteral("lunedì-venerdì 8:30 "), 128));
    Blocco(&editore, 12)->setPlainText(note);
    Blocco(&editore, 13)
        ->setPlainText(Lungo(QStringLiteral("https://san.beniculturali.it/'x' "), 128));
    Blocco(&editore, 14)->setPlainText(noteDirezione);
    // A text longer than the column is cut by the box itself.
    Blocco(&editore, 12)->setPlainText(note + QStringLiteral("oltre"));
    QCOMPARE(Blocco(&editore, 12)->toPlainText(), note);
    Riga(&editore, 0)->setText(denominazione + QStringLiteral("oltre"));
    QCOMPARE(Riga(&editore, 0)->text(), denominazione);

    QVERIFY(editore.CheckMandatoryFields());
    editore.Salva(id);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());

    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id), denominazione);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), id), QStringLiteral("01"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Citta"), id), Lungo(QStringLiteral("Forlì "), 64));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Cap"), id), QStringLiteral("47'21à"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Provincia"), id), QStringLiteral("FC"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Note"), id), note);
    QCOMPARE(ambiente.Colonna(QStringLiteral("NoteDirezione"), id), noteDirezione);
    QCOMPARE(ambiente.Colonna(QStringLiteral("ISAD_Codice"), id), QStringLiteral("IT-ASCFO"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("ISAD_Sigla"), id), QStringLiteral("ASCFO"));
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
                         {Id(id)})
                 .toString(),
             QStringLiteral("S"));

    // What was typed comes back, field by field, in another editor.
    QMap<QString, QString> scritto;
    for (int n : {0, 2, 3, 4, 6, 7, 8, 10, 11})
        scritto[QString::number(n)] = Riga(&editore, n)->text();
    for (int n : {9, 12, 13, 14})
        scritto[QString::number(n)] = Blocco(&editore, n)->toPlainText();

    ucIstituto altro;
    altro.Init();
    altro.Mostra(id);
    for (int n : {0, 2, 3, 4, 6, 7, 8, 10, 11})
        QCOMPARE(Riga(&altro, n)->text(), scritto[QString::number(n)]);
    for (int n : {9, 12, 13, 14})
        QCOMPARE(Blocco(&altro, n)->toPlainText(), scritto[QString::number(n)]);
    QCOMPARE(Combo(&altro, "cmbTipologiaIS")->currentText(), QStringLiteral("Archivio di Stato"));
    QCOMPARE(Combo(&altro, "DCCodice")->currentText(),
             QStringLiteral("Archivio storico comunale di Forlì"));
    QCOMPARE(Combo(&altro, "DCProvincia")->currentText(), QStringLiteral("Forlì-Cesena"));
    QVERIFY(Pubblica(&altro)->isChecked());
    QVERIFY(altro.OkModifica);
    QCOMPARE(altro.ID_Istituto, ambiente.IdIstituto(id));

    // Emptied fields are stored as Null, the denomination never.
    altro.Modifica();
    Riga(&altro, 7)->clear();
    Blocco(&altro, 12)->clear();
    Combo(&altro, "DCCodice")->setCurrentIndex(-1);
    altro.Salva(id);
    QVERIFY(ambiente.Nullo(QStringLiteral("Fax"), id));
    QVERIFY(ambiente.Nullo(QStringLiteral("Note"), id));
    QVERIFY(ambiente.Nullo(QStringLiteral("ISAD_Codice"), id));
    QVERIFY(ambiente.Nullo(QStringLiteral("ISAD_Sigla"), id));
    QVERIFY(!ambiente.Nullo(QStringLiteral("Denominazione"), id));
}

void TestIstituto::nuovoProponeLaPrimaTipologiaSuUnSitoIELaSecondaSuUnSitoS() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    EditorePronto<ucIstituto> editore;
    editore.Nuovo();
    QCOMPARE(Combo(&editore, "cmbTipologiaIS")->currentIndex(), 0);
    QVERIFY(Pubblica(&editore)->isChecked());
    QVERIFY(Riga(&editore, 0)->isEnabled());
    QCOMPARE(Riga(&editore, 0)->text(), QString());

    Sessione::bIstituto = false;
    editore.Nuovo();
    QCOMPARE(Combo(&editore, "cmbTipologiaIS")->currentIndex(), 1);
    // Nothing was chosen by hand yet: the first entry keeps its code.
    QCOMPARE(Combo(&editore, "cmbTipologiaIS")->itemData(0).toInt(), 1);
}

void TestIstituto::suUnSitoSLaPrimaTipologiaSiSalvaCome02ELoResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = false;
    EditorePronto<ucIstituto> editore;
    QComboBox* tipologia = Combo(&editore, "cmbTipologiaIS");

    const long primo = ambiente.Crea("01", QStringLiteral("Primo"));
    editore.Nuovo();
    CompilaIstituto(editore);
    tipologia->setCurrentIndex(0);
    editore.Salva(primo);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), primo), QStringLiteral("02"));
    QCOMPARE(tipologia->itemData(0).toInt(), 2);

    // The entry keeps the code for the rest of the editor's life.
    const long secondo = ambiente.Crea("01", QStringLiteral("Secondo"));
    editore.Nuovo();
    CompilaIstituto(editore);
    tipologia->setCurrentIndex(0);
    editore.Salva(secondo);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), secondo), QStringLiteral("02"));
    QCOMPARE(tipologia->itemData(0).toInt(), 2);
}

void TestIstituto::laTipologiaRimodellaIlModuloERiscriveITag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Nuovo();
    QComboBox* tipologia = Combo(&editore, "cmbTipologiaIS");
    QComboBox* codice = Combo(&editore, "DCCodice");

    // An institute: the code is asked, and the run-time spellings of the messages prevail.
    QCOMPARE(Tag(codice), QStringLiteral("Inserire un codice istituto"));
    QCOMPARE(Tag(Riga(&editore, 8)), QStringLiteral("Inserire l'E-mail"));
    QCOMPARE(Tag(Riga(&editore, 11)), QStringLiteral("Inserire l'orario"));
    QCOMPARE(Tag(Riga(&editore, 10)), QStringLiteral("Inserire il Direttore"));

    tipologia->setCurrentIndex(2); // seat
    QVERIFY(codice->isHidden());
    QCOMPARE(Tag(codice), QString());
    QVERIFY(!Riga(&editore, 6)->isHidden());
    QVERIFY(!Riga(&editore, 7)->isHidden());
    QCOMPARE(Tag(Riga(&editore, 6)), QStringLiteral("Inserire il telefono"));
    for (int n : {9, 10, 13}) {
        QVERIFY(editore.findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(n))->isHidden());
        QVERIFY(editore.findChild<QWidget*>(QStringLiteral("Label1(%1)").arg(n))->isHidden());
    }
    QVERIFY(Pubblica(&editore)->isHidden());
    QVERIFY(editore.findChild<QWidget*>(QStringLiteral("Label1(15)"))->isHidden());
    QCOMPARE(Tag(Riga(&editore, 10)), QString());

    tipologia->setCurrentIndex(3); // warehouse
    for (int n : {6, 7, 8, 11}) {
        QVERIFY(Riga(&editore, n)->isHidden());
        QVERIFY(editore.findChild<QWidget*>(QStringLiteral("Label1(%1)").arg(n))->isHidden());
    }
    QCOMPARE(Tag(Riga(&editore, 6)), QString());
    QCOMPARE(Tag(Riga(&editore, 8)), QString());
    QCOMPARE(Tag(Riga(&editore, 11)), QString());
    // The address and the notes stay in every form.
    QVERIFY(!Riga(&editore, 2)->isHidden());
    QVERIFY(!Blocco(&editore, 12)->isHidden());
    QVERIFY(!Blocco(&editore, 14)->isHidden());

    tipologia->setCurrentIndex(4); // another kind of institute
    QVERIFY(!codice->isHidden());
    QVERIFY(!Riga(&editore, 6)->isHidden());
    QVERIFY(!Riga(&editore, 10)->isHidden());
    QVERIFY(!Pubblica(&editore)->isHidden());
    QCOMPARE(Tag(codice), QStringLiteral("Inserire un codice istituto"));
    QCOMPARE(Tag(Riga(&editore, 10)), QStringLiteral("Inserire il Direttore"));
}

void TestIstituto::unMagazzinoNascondeIlTelefonoMaIlSalvaNeScriveIlTesto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long padre = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    const long id = ambiente.Crea("01", QStringLiteral("Deposito"), padre);
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Nuovo();
    CompilaIstituto(editore);
    Combo(&editore, "cmbTipologiaIS")->setCurrentIndex(3);
    QVERIFY(Riga(&editore, 6)->isHidden());
    QCOMPARE(Riga(&editore, 6)->text(), QStringLiteral("0583 491465"));
    QVERIFY(editore.CheckMandatoryFields());
    editore.Salva(id);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), id), QStringLiteral("04"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Telefono"), id), QStringLiteral("0583 491465"));
    // The director is hidden too, and written as well.
    QCOMPARE(ambiente.Colonna(QStringLiteral("Responsabile"), id), QStringLiteral("Maria Rossi"));
}

void TestIstituto::unMagazzinoNonChiedeIlTelefonoMaIndirizzoCittaCapEProvinciaSi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Nuovo();
    QComboBox* tipologia = Combo(&editore, "cmbTipologiaIS");
    tipologia->setCurrentIndex(3);
    Riga(&editore, 0)->setText(QStringLiteral("Deposito di via Brunero Paoli"));

    const QList<QPair<QWidget*, QString>> obbligatori = {
        {Riga(&editore, 3), QStringLiteral("Inserire la città")},
        {Riga(&editore, 2), QStringLiteral("Inserire l'indirizzo")},
        {Riga(&editore, 4), QStringLiteral("Inserire il Cap")},
        {Combo(&editore, "DCProvincia"), QStringLiteral("Inserire la Provincia")}};
    for (const auto& [campo, messaggio] : obbligatori) {
        ambiente.seam.Svuota();
        QVERIFY(!editore.CheckMandatoryFields());
        QCOMPARE(ambiente.seam.Messaggi().size(), 1);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, messaggio);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(editore.focusWidget(), campo);
        if (auto* riga = qobject_cast<QLineEdit*>(campo))
            riga->setText(QStringLiteral("x"));
        else
            qobject_cast<QComboBox*>(campo)->setCurrentIndex(0);
    }
    ambiente.seam.Svuota();
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY(ambiente.seam.Messaggi().isEmpty());

    // The same form as a seat asks for the phone first.
    tipologia->setCurrentIndex(2);
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().last().sTesto, QStringLiteral("Inserire l'orario"));
}

void TestIstituto::unIstitutoEUnaSedeChiedonoIndirizzoCittaCapEProvincia_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<int>("tipologia");
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        QTest::addRow("%s, istituto", nome) << tipo << 0;
        QTest::addRow("%s, sede", nome) << tipo << 2;
    }
}

void TestIstituto::unIstitutoEUnaSedeChiedonoIndirizzoCittaCapEProvincia() {
    QFETCH(TipoBackend, backend);
    QFETCH(int, tipologia);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Nuovo();
    Combo(&editore, "cmbTipologiaIS")->setCurrentIndex(tipologia);
    CompilaIstituto(editore);
    QVERIFY(editore.CheckMandatoryFields());

    // Each of the four, emptied alone, is asked for with its message.
    const QList<QPair<QWidget*, QString>> obbligatori = {
        {Riga(&editore, 2), QStringLiteral("Inserire l'indirizzo")},
        {Riga(&editore, 3), QStringLiteral("Inserire la città")},
        {Riga(&editore, 4), QStringLiteral("Inserire il Cap")},
        {Combo(&editore, "DCProvincia"), QStringLiteral("Inserire la Provincia")}};
    for (const auto& [campo, messaggio] : obbligatori) {
        auto* riga = qobject_cast<QLineEdit*>(campo);
        auto* combo = qobject_cast<QComboBox*>(campo);
        const QString prima = riga ? riga->text() : QString();
        const int iPrima = combo ? combo->currentIndex() : -1;
        if (riga)
            riga->clear();
        else
            combo->setCurrentIndex(-1);
        ambiente.seam.Svuota();
        QVERIFY(!editore.CheckMandatoryFields());
        QCOMPARE(ambiente.seam.Messaggi().size(), 1);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, messaggio);
        QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(editore.focusWidget(), campo);
        if (riga)
            riga->setText(prima);
        else
            combo->setCurrentIndex(iPrima);
    }
    ambiente.seam.Svuota();
    QVERIFY(editore.CheckMandatoryFields());
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
}

void TestIstituto::unCodiceSenzaRigaInCodiciIstitutoSiMostraVuotoESiCancellaAlSalva() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long id = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    Sessione::cnn->Esegui(QStringLiteral("UPDATE Istituti SET ISAD_Codice = ?, ISAD_Sigla = ? "
                                         "WHERE ID_Elemento = ?"),
                          {QStringLiteral("IT-XX"), QStringLiteral("XX"), Id(id)});
    EditorePronto<ucIstituto> editore(id);
    QCOMPARE(Combo(&editore, "DCCodice")->currentText(), QString());
    QCOMPARE(Combo(&editore, "DCCodice")->currentIndex(), -1);
    editore.Modifica();
    editore.Salva(id);
    QVERIFY(ambiente.Nullo(QStringLiteral("ISAD_Codice"), id));
    QVERIFY(ambiente.Nullo(QStringLiteral("ISAD_Sigla"), id));
}

void TestIstituto::unaSedeSiCancellaSoloSeNessunComplessoOInventarioLaUsa() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    const long sede = ambiente.CreaIstituto(QStringLiteral("Sede"), QStringLiteral("03"), istituto);
    const long complesso = ambiente.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = ambiente.Crea("03", QStringLiteral("Inventario"), complesso);
    const long idSede = ambiente.IdIstituto(sede);

    EditorePronto<ucIstituto> editore(sede);
    QVERIFY(editore.OkCancella);

    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE ComplessiDoc SET ID_IstitutoSede = ? WHERE ID_Elemento = ?"),
        {Id(idSede), Id(complesso)});
    editore.Mostra(sede);
    QVERIFY(!editore.OkCancella);

    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE ComplessiDoc SET ID_IstitutoSede = NULL WHERE ID_Elemento = ?"),
        {Id(complesso)});
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Inventari SET ID_IstitutoSede = ? WHERE ID_Elemento = ?"),
        {Id(idSede), Id(inventario)});
    editore.Mostra(sede);
    QVERIFY(!editore.OkCancella);

    // A warehouse column naming the seat does not hold it.
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Inventari SET ID_IstitutoSede = NULL, ID_IstitutoMag = ? "
                       "WHERE ID_Elemento = ?"),
        {Id(idSede), Id(inventario)});
    editore.Mostra(sede);
    QVERIFY(editore.OkCancella);

    // A seat with children of its own cannot go either.
    ambiente.Crea("02", QStringLiteral("Fondo nella sede"), sede);
    editore.Mostra(sede);
    QVERIFY(!editore.OkCancella);
}

void TestIstituto::unMagazzinoUsatoDaUnInventarioNonSiCancella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    const long magazzino =
        ambiente.CreaIstituto(QStringLiteral("Magazzino"), QStringLiteral("04"), istituto);
    const long complesso = ambiente.Crea("02", QStringLiteral("Fondo"), istituto);
    const long inventario = ambiente.Crea("03", QStringLiteral("Inventario"), complesso);
    EditorePronto<ucIstituto> editore(magazzino);
    QVERIFY(editore.OkCancella);
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Inventari SET ID_IstitutoMag = ? WHERE ID_Elemento = ?"),
        {Id(ambiente.IdIstituto(magazzino)), Id(inventario)});
    editore.Mostra(magazzino);
    QVERIFY(!editore.OkCancella);
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Inventari SET ID_IstitutoMag = NULL WHERE ID_Elemento = ?"),
        {Id(inventario)});
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE ComplessiDoc SET ID_IstitutoMag = ? WHERE ID_Elemento = ?"),
        {Id(ambiente.IdIstituto(magazzino)), Id(complesso)});
    editore.Mostra(magazzino);
    QVERIFY(!editore.OkCancella);
}

void TestIstituto::unIstitutoDiTipologia01NonSiCancellaMai() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    const long sezione = ambiente.CreaIstituto(QStringLiteral("Sezione"), QStringLiteral("02"));
    EditorePronto<ucIstituto> editore(istituto);
    QVERIFY(editore.OkModifica);
    QVERIFY(!editore.OkCancella);
    // Another kind without children may go.
    editore.Mostra(sezione);
    QVERIFY(editore.OkCancella);
}

void TestIstituto::unaSedeRimandaAllIstitutoSopraENonLasciaCreareNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    const long sede = ambiente.CreaIstituto(QStringLiteral("Sede"), QStringLiteral("03"), istituto);
    EditorePronto<ucIstituto> editore(sede);
    QCOMPARE(editore.ID_Istituto, ambiente.IdIstituto(istituto));
    QVERIFY(!editore.OkNuovoIstituto);
    QVERIFY(!editore.OkNuovoInventario);
    QVERIFY(!editore.OkNuovoComplesso);
    QVERIFY(!editore.OkNuovoVersamento);
    QVERIFY(editore.OkModifica);
    QVERIFY(!editore.OkAltreDenominazioni);
    QCOMPARE(Combo(&editore, "cmbTipologiaIS")->currentText(), QStringLiteral("Sede"));

    editore.Mostra(istituto);
    QCOMPARE(editore.ID_Istituto, ambiente.IdIstituto(istituto));
    QVERIFY(editore.OkNuovoIstituto);
    QVERIFY(editore.OkNuovoInventario);
    QVERIFY(editore.OkNuovoComplesso);
    QVERIFY(editore.OkNuovoVersamento);
}

void TestIstituto::unElementoSenzaRigaSiMostraVuotoESenzaPermessi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = false;
    const long id = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    EditorePronto<ucIstituto> editore(id);
    QVERIFY(editore.OkModifica);
    editore.Mostra(id + 1000);
    QCOMPARE(Riga(&editore, 0)->text(), QString());
    QVERIFY(!editore.OkNuovoIstituto);
    QVERIFY(!editore.OkModifica);
    QVERIFY(!editore.OkCancella);
    QVERIFY(!editore.OkNuovoComplesso);
    QCOMPARE(editore.ID_Istituto, 0L);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
}

void TestIstituto::pubblicareSottoUnPadreNonPubblicatoERifiutatoEIlSalvaScriveN() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Elementi SET Pubblicato = 'N' WHERE ID_Elemento = ?"),
        {Id(istituto)});
    const long sede = ambiente.CreaIstituto(QStringLiteral("Sede"), QStringLiteral("03"), istituto);
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Mostra(sede);
    editore.Modifica();
    Combo(&editore, "cmbTipologiaIS")->setCurrentIndex(4); // the box shows again
    QCheckBox* pubblica = Pubblica(&editore);
    pubblica->setChecked(false);
    pubblica->click();
    QVERIFY(!pubblica->isChecked());
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Istituto non pubblicabile"));
    editore.Salva(sede);
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
                         {Id(sede)})
                 .toString(),
             QStringLiteral("N"));
}

void TestIstituto::unIstitutoAllaRadiceSiPubblicaSempre() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Mostra(istituto);
    editore.Modifica();
    QCheckBox* pubblica = Pubblica(&editore);
    pubblica->setChecked(false);
    pubblica->click();
    QVERIFY(pubblica->isChecked());
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    editore.Salva(istituto);
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT Pubblicato FROM Elementi WHERE ID_Elemento = ?"),
                         {Id(istituto)})
                 .toString(),
             QStringLiteral("S"));
}

void TestIstituto::unErroreNelControlloDiPubblicazioneSiMostraComeErroreU2() {
    Ambiente ambiente(TipoBackend::SQLite);
    Sessione::bIstituto = true;
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
    const long sede = ambiente.CreaIstituto(QStringLiteral("Sede"), QStringLiteral("02"), istituto);
    EditorePronto<ucIstituto> editore;
    editore.show();
    editore.Mostra(sede);
    editore.Modifica();
    Sessione::cnn->Chiudi();
    QCheckBox* pubblica = Pubblica(&editore);
    pubblica->setChecked(false);
    pubblica->click();
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTitolo, QStringLiteral("Errore U2"));
    QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Critica);
    QVERIFY(ambiente.seam.Messaggi().at(0).sTesto.contains(QLatin1Char('\n')));
}

void TestIstituto::salvaSenzaRigaDiDettaglioNonScriveNullaENonDiceNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    const long id = ambiente.Crea("01", QStringLiteral("Senza dettaglio"));
    // The detail row goes, the element stays.
    const Backend& server = Sessione::cnn->backend();
    server.SospendiTrigger(Sessione::cnn->Db(), QStringLiteral("Istituti"));
    Sessione::cnn->Esegui(QStringLiteral("DELETE FROM Istituti WHERE ID_Elemento = ?"), {Id(id)});
    server.RiattivaTrigger(Sessione::cnn->Db(), QStringLiteral("Istituti"));
    QCOMPARE(
        ambiente
            .Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE ID_Elemento = ?"), {Id(id)})
            .toInt(),
        1);

    EditorePronto<ucIstituto> editore;
    editore.Nuovo();
    CompilaIstituto(editore);
    editore.Salva(id);
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QCOMPARE(ambiente.Valore(QStringLiteral("SELECT COUNT(*) FROM Istituti"), {}).toInt(), 0);
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE "
                                        "ID_Elemento = ?"),
                         {Id(id)})
                 .toString(),
             QStringLiteral("Senza dettaglio"));
}

void TestIstituto::salvaSenzaRigaDiDettaglioLasciaLEditoreComeDopoMostra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = false;
    const long id = ambiente.CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("02"));
    EditorePronto<ucIstituto> editore(id);
    QVERIFY(editore.OkModifica && editore.OkCancella && editore.OkNuovoComplesso);
    editore.Modifica();
    QVERIFY(Riga(&editore, 0)->isEnabled());
    // The detail row goes while the record is being edited.
    const Backend& server = Sessione::cnn->backend();
    server.SospendiTrigger(Sessione::cnn->Db(), QStringLiteral("Istituti"));
    Sessione::cnn->Esegui(QStringLiteral("DELETE FROM Istituti WHERE ID_Elemento = ?"), {Id(id)});
    server.RiattivaTrigger(Sessione::cnn->Db(), QStringLiteral("Istituti"));

    editore.Salva(id);
    // As after Mostra of a record that is not there: locked, and nothing may be done with it.
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
    QVERIFY(!Riga(&editore, 0)->isEnabled());
    QVERIFY(!Combo(&editore, "cmbTipologiaIS")->isEnabled());
    QVERIFY(!editore.OkModifica);
    QVERIFY(!editore.OkCancella);
    QVERIFY(!editore.OkNuovoComplesso);
    QVERIFY(!editore.OkNuovoInventario);
    QVERIFY(!editore.OkNuovoVersamento);
    QCOMPARE(editore.OkNuovoIstituto, Sessione::bIstituto);
    QCOMPARE(editore.ID_Istituto, 0L);
}

void TestIstituto::unIstitutoSiCreaMostraModificaESalvaAttraversoLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    Sessione::bIstituto = true;
    auto* editore = new ucIstituto;
    HostEditore ospite(editore, QStringLiteral("01"));
    ospite.okNuovo = [editore] {
        return editore->OkNuovoIstituto;
    };
    ospite.okModifica = [editore] {
        return editore->OkModifica;
    };
    ospite.okCancella = [editore] {
        return editore->OkCancella;
    };
    ospite.show();
    ospite.Carica();
    QVERIFY(ospite.cmdNuovo->isEnabled());

    // New: the first mandatory field stops the confirmation.
    ospite.cmdNuovo->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    QVERIFY(ospite.cmdConferma->isEnabled());
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire un codice istituto"));
    QCOMPARE(ambiente.Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi"), {}).toInt(), 0);

    CompilaIstituto(*editore);
    Riga(editore, 0)->setText(QStringLiteral("Archivio di Stato di Lucca"));
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    const long id = ospite.IdCorrente();
    QVERIFY(id > 0);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id),
             QStringLiteral("Archivio di Stato di Lucca"));
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE "
                                        "ID_Elemento = ?"),
                         {Id(id)})
                 .toString(),
             QStringLiteral("Archivio di Stato di Lucca"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("ISAD_Sigla"), id), QStringLiteral("ASFI"));
    QVERIFY(ospite.cmdModifica->isEnabled());
    QVERIFY(!ospite.cmdCancella->isEnabled()); // an institute proper is never deleted here
    QVERIFY(!Riga(editore, 0)->isEnabled());
    QCOMPARE(editore->ID_Istituto, ambiente.IdIstituto(id));

    // Change, then cancel: the stored values come back.
    ospite.cmdModifica->click();
    QVERIFY(Riga(editore, 0)->isEnabled());
    Riga(editore, 3)->setText(QStringLiteral("Pisa"));
    ospite.cmdAnnulla->click();
    QCOMPARE(Riga(editore, 3)->text(), QStringLiteral("Lucca"));

    // Change and confirm.
    ospite.cmdModifica->click();
    Riga(editore, 3)->setText(QStringLiteral("Lucca (LU)"));
    Riga(editore, 0)->setText(QStringLiteral("Archivio di Stato in Lucca"));
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Citta"), id), QStringLiteral("Lucca (LU)"));
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT Denominazione FROM Elementi WHERE "
                                        "ID_Elemento = ?"),
                         {Id(id)})
                 .toString(),
             QStringLiteral("Archivio di Stato in Lucca"));

    // A seat under it, then deleted through the host.
    ospite.ImpostaPadre(id);
    ospite.cmdNuovo->click();
    CompilaIstituto(*editore);
    Combo(editore, "cmbTipologiaIS")->setCurrentIndex(2);
    Riga(editore, 0)->setText(QStringLiteral("Sede di via Galli Tassi"));
    ospite.cmdConferma->click();
    const long sede = ospite.IdCorrente();
    QVERIFY(sede != id);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Tipologia"), sede), QStringLiteral("03"));
    QVERIFY(ospite.cmdCancella->isEnabled());
    QVERIFY(!ospite.cmdNuovo->isEnabled());
    ambiente.seam.risposte = {Risposta::Si};
    ospite.cmdCancella->click();
    QCOMPARE(ambiente
                 .Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE ID_Elemento = ?"),
                         {Id(sede)})
                 .toInt(),
             0);
}

QTEST_MAIN(TestIstituto)
#include "tst_istituto.moc"
