// The record of a parchment, on SQLite and on PostgreSQL: the form and its order, the mandatory
// walk, the round trip of every field through its six tables, the empty fields, the traditio
// (original or copy, a code out of the list, a Null code), the date of the copy that is shown and
// never written, a missing row of Pergamene or of one of its other tables, the state read with
// the record, the publishing rule, the checks on leaving a box and the child list opened by name.

#include "records/ucPergamena.h"
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
#include <QTabWidget>
#include <QTimer>
#include <QtTest>
#include <algorithm>

namespace {

// A program folder with the lookup lists, a fresh database, the session's connection and the
// scripted seam; Pergamene the record's table.
struct Ambiente : AmbientePergamene {
    explicit Ambiente(TipoBackend tipo)
        : AmbientePergamene(tipo, QStringLiteral("Pergamene")) {}
};

QCheckBox* Casella(const QWidget* editore, const char* nome) {
    return editore->findChild<QCheckBox*>(QLatin1String(nome));
}
QComboBox* Traditio(const QWidget* editore) {
    return Combo(editore, "cmbTraditio");
}

// The tab that holds a control: its title, "" when above the tabs.
QString TabDi(const QWidget* editore, const QWidget* controllo) {
    const auto* tab = editore->findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    for (int i = 0; i < tab->count(); ++i) {
        if (tab->widget(i)->isAncestorOf(controllo))
            return tab->tabText(i);
    }
    return QString();
}

} // namespace

class TestPergamena : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiSchedeETag_data() { AggiungiBackend(); }
    void iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiSchedeETag();
    void gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi_data() { AggiungiBackend(); }
    void gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi();
    void ogniCampoFaIlGiroNelleSeiTabelleColonnaPerColonna_data() { AggiungiBackend(); }
    void ogniCampoFaIlGiroNelleSeiTabelleColonnaPerColonna();
    void iCampiVuotiSiSalvanoNullEISigilliVuotiZero_data() { AggiungiBackend(); }
    void iCampiVuotiSiSalvanoNullEISigilliVuotiZero();
    void laPrimaTraditioELOriginaleEleAltreMostranoICampiDellaCopia_data() { AggiungiBackend(); }
    void laPrimaTraditioELOriginaleEleAltreMostranoICampiDellaCopia();
    void unCodiceDiTraditioFuoriListaNonSceglieNullaESiSalvaNull_data() { AggiungiBackend(); }
    void unCodiceDiTraditioFuoriListaNonSceglieNullaESiSalvaNull();
    void laDataDellaCopiaSiLeggeMaIlSalvaNonLaTocca_data() { AggiungiBackend(); }
    void laDataDellaCopiaSiLeggeMaIlSalvaNonLaTocca();
    void unaRigaMancanteDiUnaTabellaDellaPergamenaEUnErroreENonScriveNulla_data() {
        AggiungiBackend();
    }
    void unaRigaMancanteDiUnaTabellaDellaPergamenaEUnErroreENonScriveNulla();
    void senzaRigaDiPergameneSiScriveSoloLElementoESiSpegneTutto_data() { AggiungiBackend(); }
    void senzaRigaDiPergameneSiScriveSoloLElementoESiSpegneTutto();
    void loStatoSiLeggeConLaPergamenaEUnaConSigilliNonSiCancella_data() { AggiungiBackend(); }
    void loStatoSiLeggeConLaPergamenaEUnaConSigilliNonSiCancella();
    void pubblicareSottoUnPadreNonPubblicatoERifiutato_data() { AggiungiBackend(); }
    void pubblicareSottoUnPadreNonPubblicatoERifiutato();
    void leAnticheSegnatureSiApronoPerNomeEPoiSiAvvisaLOspite_data() { AggiungiBackend(); }
    void leAnticheSegnatureSiApronoPerNomeEPoiSiAvvisaLOspite();
    void ogniPulsanteApreIlSuoDialogoConIValoriDiSessione_data() { AggiungiBackend(); }
    void ogniPulsanteApreIlSuoDialogoConIValoriDiSessione();
    void unNumeroOUnaDataErratiSonoRifiutatiAllUscita_data() { AggiungiBackend(); }
    void unNumeroOUnaDataErratiSonoRifiutatiAllUscita();
    void unaPergamenaNuovaSiCreaAttraversoLOspite_data() { AggiungiBackend(); }
    void unaPergamenaNuovaSiCreaAttraversoLOspite();
    void iPulsantiSiAccendonoInLetturaESiColoranoDalleRighe_data() { AggiungiBackend(); }
    void iPulsantiSiAccendonoInLetturaESiColoranoDalleRighe();
    void ilPulsanteImmagineChiedePrimaDiImportareODiTogliereIlCollegamento_data() {
        AggiungiBackend();
    }
    void ilPulsanteImmagineChiedePrimaDiImportareODiTogliereIlCollegamento();
    void laTastieraPercorreIlModuloComeSiVede();
    void iComplessiNascostiDallOspiteNonTornanoConMostraNeConAnnulla_data() { AggiungiBackend(); }
    void iComplessiNascostiDallOspiteNonTornanoConMostraNeConAnnulla();
};

void TestPergamena::iCampiSonoNellOrdineDelDisegnoConEtichetteLimitiSchedeETag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucPergamena> editore;
    QStringList nomi;
    const QList<QWidget*> controlli = editore.Controls();
    for (const QWidget* controllo : controlli)
        nomi << controllo->objectName();
    QCOMPARE(nomi,
             QStringList({"Text1(0)",     "Text1(36)",     "Text1(23)", "Text1(21)", "cmbTraditio",
                          "Text1(33)",    "Text1(15)",     "Text1(1)",  "Text1(27)", "Text1(26)",
                          "Text1(4)",     "Text1(2)",      "Text1(3)",  "Text1(32)", "Text1(20)",
                          "chkUnitaCond", "Text1(18)",     "Text1(19)", "Text1(9)",  "Text1(25)",
                          "Text1(28)",    "Text1(5)",      "Text1(22)", "Text1(24)", "Text1(34)",
                          "Text1(7)",     "Text1(8)",      "Text1(6)",  "Text1(29)", "Text1(35)",
                          "Text1(30)",    "chkPubblicaPG", "DTPData"}));
    const auto tag = [&editore](const char* nome) {
        return editore.findChild<QWidget*>(QLatin1String(nome))->property("Tag").toString();
    };
    const QList<std::pair<const char*, const char*>> obbligatori = {
        {"Text1(0)", "Inserire segnatura attuale"},
        {"Text1(36)", "Inserire datazione"},
        {"Text1(23)", "Inserire dimensioni"},
        {"Text1(21)", "Inserire supporto"},
        {"cmbTraditio", "Inserire traditio"},
        {"Text1(33)", "Inserire data cronica"},
        {"Text1(15)", "Inserire redattore"},
        {"Text1(1)", "Inserire data cronica"},
        {"Text1(27)", "Inserire nr. di sigilli originali"},
        {"Text1(26)", "Inserire nr. di sigilli attuali"},
        {"Text1(4)", "Inserire regesto"},
        {"Text1(2)", "Inserire data topica"},
        {"DTPData", "Inserire la data di registrazione"},
    };
    for (const auto& [nome, messaggio] : obbligatori)
        QCOMPARE(tag(nome), QString::fromUtf8(messaggio));
    for (const QString& nome : nomi) {
        const bool bObbligatorio =
            std::any_of(obbligatori.begin(), obbligatori.end(),
                        [&nome](const auto& o) { return nome == QLatin1String(o.first); });
        if (!bObbligatorio)
            QVERIFY2(tag(qPrintable(nome)).isEmpty(), qPrintable(nome));
    }

    // Label, limit and tab of each box.
    struct Campo {
        int n;
        const char* etichetta; // nullptr: the label of the box before
        int iMax;
        const char* scheda;
    };
    const QList<Campo> campi = {
        {0, "Identificativo", 64, ""},
        {1, "Data cronica inizio e fine", 10, "Dati identificativi"},
        {33, nullptr, 10, "Dati identificativi"},
        {2, "Data topica", 64, "Dati identificativi"},
        {3, "Datatio", 256, "Dati identificativi"},
        {4, "Regesto", 1024, "Dati identificativi"},
        {25, "Miniature", 512, "Caratteri estrinseci"},
        {26, "Attuali/originali", 4, "Caratteri estrinseci"},
        {27, nullptr, 4, "Caratteri estrinseci"},
        {28, "Annuncio", 1024, "Caratteri estrinseci"},
        {7, "Condizioni di accesso", 256, "Contesto e accesso"},
        {8, "Condizioni per la riproduzione", 128, "Contesto e accesso"},
        {5, "Lingua e scrittura", 128, "Caratteri estrinseci"},
        {6, "Bibliografia e altre fonti", 1024, "Contesto e accesso"},
        {32, "Note gestionali", 1024, "Dati identificativi"},
        {29, "Informazioni tecniche sulla riproduzione", 256, "Contesto e accesso"},
        {20, "Note", 1024, "Dati identificativi"},
        {35, "Link ad altre risorse", 128, "Contesto e accesso"},
        {36, "Datazione (testo)", 128, "Dati identificativi"},
        {21, "Supporto", 32, "Caratteri estrinseci"},
        {22, "Stato di conservazione e restauro", 256, "Caratteri estrinseci"},
        {23, "Dimensioni", 32, "Caratteri estrinseci"},
        {24, "Note sul supporto", 1024, "Caratteri estrinseci"},
        {18, "Data copia", 10, "Dati identificativi"},
        {19, "Note alla Traditio", 512, "Dati identificativi"},
        {9, "Data traditio", 64, "Dati identificativi"},
        {34, "Segni di convalida", 512, "Caratteri estrinseci"},
        {30, "Note", 1024, "Contesto e accesso"},
        {15, "Redattore", 64, ""},
    };
    for (const Campo& c : campi) {
        const QString sCampo = QString::number(c.n);
        const QWidget* casella = editore.findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(c.n));
        QVERIFY2(casella != nullptr, qPrintable(sCampo));
        if (c.etichetta == nullptr)
            QVERIFY2(Etichetta(&editore, c.n) == nullptr, qPrintable(sCampo));
        else
            QCOMPARE(Etichetta(&editore, c.n)->text(), QString::fromUtf8(c.etichetta));
        if (const auto* riga = qobject_cast<const QLineEdit*>(casella))
            QCOMPARE(riga->maxLength(), c.iMax);
        else
            QCOMPARE(casella->property("MaxLength").toInt(), c.iMax);
        QCOMPARE(TabDi(&editore, casella), QString::fromUtf8(c.scheda));
    }
    const auto* schede = editore.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    QCOMPARE(schede->count(), 3);
    QCOMPARE(schede->tabText(0), QStringLiteral("Dati identificativi"));
    QCOMPARE(schede->tabText(1), QStringLiteral("Caratteri estrinseci"));
    QCOMPARE(schede->tabText(2), QStringLiteral("Contesto e accesso"));
    // Above the tabs, the identifier and the old signatures.
    QCOMPARE(TabDi(&editore, Pulsante(&editore, "cmdMostraAltreSeg")), QString());
    QCOMPARE(Pulsante(&editore, "cmdMostraAltreSeg")->text(), QStringLiteral("Antiche segnature"));
    QCOMPARE(TabDi(&editore, Casella(&editore, "chkUnitaCond")),
             QStringLiteral("Dati identificativi"));
    QCOMPARE(Casella(&editore, "chkUnitaCond")->text(), QStringLiteral("Unità di condizionamento"));
    QCOMPARE(Casella(&editore, "chkPubblicaPG")->text(), QStringLiteral("Visibile sul web"));
    QCOMPARE(TabDi(&editore, Traditio(&editore)), QStringLiteral("Dati identificativi"));
    QCOMPARE(Pulsante(&editore, "cmdMostraPergamene")->text(), QStringLiteral("Collegamento"));
    QCOMPARE(Pulsante(&editore, "cmdMostraLinks")->text(), QStringLiteral("Compl. documentari"));
    QCOMPARE(Pulsante(&editore, "cmdMostraToponimi")->text(), QStringLiteral("Toponimi"));
    QCOMPARE(Pulsante(&editore, "cmdMostraAntroponimi")->text(), QStringLiteral("Persone"));
    QCOMPARE(Pulsante(&editore, "cmdMostraNotazioni")->text(), QStringLiteral("Notazioni"));
    QCOMPARE(Pulsante(&editore, "cmdMostraSigilli")->text(), QStringLiteral("Collegamento"));
    QCOMPARE(Pulsante(&editore, "cmdImmagine")->text(), QStringLiteral("Immagine"));
    // The note of the record and the date of the copy are hidden with their labels.
    for (int n : {20, 18}) {
        QVERIFY(editore.findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(n))->isHidden());
        QVERIFY(Etichetta(&editore, n)->isHidden());
    }

    // The traditio list of the program folder, in the order of its file.
    const QComboBox* traditio = Traditio(&editore);
    QCOMPARE(traditio->count(), 7);
    QCOMPARE(traditio->itemText(0), QStringLiteral("Originale"));
    QCOMPARE(traditio->itemData(0).toLongLong(), qlonglong(1));
    QCOMPARE(traditio->itemText(6), QStringLiteral("Registrazione in cartulario"));
    QCOMPARE(traditio->itemData(6).toLongLong(), qlonglong(7));
    QCOMPARE(editore.CercaTraditio(QStringLiteral("03")), 2);
    QCOMPARE(editore.CercaTraditio(QStringLiteral("99")), -1);

    // After Init: locked, and what may be done allowed.
    QVERIFY(editore.OkNuovaPergamena && editore.OkModifica && editore.OkCancella);
    QVERIFY(!editore.AltreSegnature && !editore.Links && !editore.SigilliLinks);
    QVERIFY(!Riga(&editore, 0)->isEnabled());
}

void TestPergamena::gliObbligatoriSiControllanoNellOrdineDeiLoroMessaggi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucPergamena> editore;
    editore.Nuovo(0);
    // Nuovo chooses the original: the walk skips the traditio.
    QCOMPARE(Traditio(&editore)->currentIndex(), 0);
    Traditio(&editore)->setCurrentIndex(-1);
    const QStringList attesi = {QStringLiteral("Inserire segnatura attuale"),
                                QStringLiteral("Inserire datazione"),
                                QStringLiteral("Inserire dimensioni"),
                                QStringLiteral("Inserire supporto"),
                                QStringLiteral("Inserire traditio"),
                                QStringLiteral("Inserire data cronica"),
                                QStringLiteral("Inserire redattore"),
                                QStringLiteral("Inserire data cronica"),
                                QStringLiteral("Inserire nr. di sigilli originali"),
                                QStringLiteral("Inserire nr. di sigilli attuali"),
                                QStringLiteral("Inserire regesto"),
                                QStringLiteral("Inserire data topica")};
    const QList<std::function<void()>> riempi = {
        [&] { Riga(&editore, 0)->setText(QStringLiteral("Perg. 1")); },
        [&] { Riga(&editore, 36)->setText(QStringLiteral("1210")); },
        [&] { Riga(&editore, 23)->setText(QStringLiteral("30x20")); },
        [&] { Riga(&editore, 21)->setText(QStringLiteral("Pergamena")); },
        [&] { Traditio(&editore)->setCurrentIndex(1); },
        [&] { Riga(&editore, 33)->setText(QStringLiteral("01/01/1210")); },
        [&] { Riga(&editore, 15)->setText(QStringLiteral("Rossi")); },
        [&] { Riga(&editore, 1)->setText(QStringLiteral("01/01/1210")); },
        [&] { Riga(&editore, 27)->setText(QStringLiteral("1")); },
        [&] { Riga(&editore, 26)->setText(QStringLiteral("1")); },
        [&] { Blocco(&editore, 4)->setPlainText(QStringLiteral("Regesto")); },
        [&] { Riga(&editore, 2)->setText(QStringLiteral("Pisa")); },
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
    // The placeholder of a row never saved counts as empty.
    Riga(&editore, 0)->setText(QStringLiteral("<<Inserire valore>>"));
    QVERIFY(!editore.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().at(0).sTesto, QStringLiteral("Inserire segnatura attuale"));
}

void TestPergamena::ogniCampoFaIlGiroNelleSeiTabelleColonnaPerColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [albero, id, idPG] = ambiente.CreaPergamenaConRiga();
    QVERIFY(idPG > 0);

    EditorePronto<ucPergamena> editore(id);
    QCOMPARE(editore.fID_Elem, id);
    QCOMPARE(editore.ID_Inventario,
             ambiente
                 .ColonnaDi(QStringLiteral("Inventari"), QStringLiteral("ID_Inventario"),
                            albero.inventario)
                 .toInt());
    QCOMPARE(Testo(&editore, 0), QStringLiteral("Perg. 1"));
    editore.Modifica();

    // Each text column at its length, with quotes and accents.
    struct Valore {
        int n;
        QString testo;
    };
    const QList<Valore> testi = {
        {0, Lungo(QStringLiteral("Perg. «1» d'Arezzo "), 64)},
        {2, Lungo(QStringLiteral("Città \"di\" Pisa "), 64)},
        {3, Lungo(QStringLiteral("Anno dell'incarnazione è "), 256)},
        {4, Lungo(QStringLiteral("Regesto 'vero' più \"lungo\";\n"), 1024)},
        {25, Lungo(QStringLiteral("Iniziale miniata ò "), 512)},
        {28, Lungo(QStringLiteral("Annuncio 'sì' "), 1024)},
        {7, Lungo(QStringLiteral("Libero ù "), 256)},
        {8, Lungo(QStringLiteral("Riproduzione \"ammessa\" "), 128)},
        {5, Lungo(QStringLiteral("Latino; minuscola à "), 128)},
        {6, Lungo(QStringLiteral("Bibliografia «x» "), 1024)},
        {32, Lungo(QStringLiteral("Nota gestionale 'n' "), 1024)},
        {29, Lungo(QStringLiteral("Scansione 600 dpi è "), 256)},
        {20, Lungo(QStringLiteral("Nota nascosta "), 1024)},
        {35, Lungo(QStringLiteral("http://risorse.it/«p»/ "), 128)},
        {36, Lungo(QStringLiteral("1210 marzo 3 ì "), 128)},
        {21, Lungo(QStringLiteral("Pergamena 'x' "), 32)},
        {22, Lungo(QStringLiteral("Buono, \"restaurata\" "), 256)},
        {23, Lungo(QStringLiteral("320x210 mm "), 32)},
        {24, Lungo(QStringLiteral("Nota sul supporto à "), 1024)},
        {19, Lungo(QStringLiteral("Copia del notaio Ugo d'Ascoli "), 512)},
        {9, Lungo(QStringLiteral("sec. XIII «fine» "), 64)},
        {34, Lungo(QStringLiteral("Signum tabellionis è "), 512)},
        {30, Lungo(QStringLiteral("Nota storica 'ò' "), 1024)},
        {15, Lungo(QStringLiteral("Niccolò D'Amico "), 64)},
    };
    for (const Valore& v : testi) {
        if (QLineEdit* riga = Riga(&editore, v.n))
            riga->setText(v.testo);
        else
            Blocco(&editore, v.n)->setPlainText(v.testo);
    }
    Riga(&editore, 1)->setText(QStringLiteral("03/03/1210"));
    Riga(&editore, 33)->setText(QStringLiteral("25/12/1211"));
    Riga(&editore, 26)->setText(QStringLiteral("3"));
    Riga(&editore, 27)->setText(QStringLiteral("4"));
    Casella(&editore, "chkUnitaCond")->setChecked(true);
    Casella(&editore, "chkPubblicaPG")->setChecked(true);
    Traditio(&editore)->setCurrentIndex(2); // "03" Copia semplice
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(QDate(2024, 5, 17));
    editore.Salva(id);

    // Elementi.
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("S"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             testi.last().testo);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("DataRedazione"), id).toDateTime().date(),
             QDate(2024, 5, 17));
    // Pergamene, column by column.
    const auto colonna = [&](const char* nome) {
        return ambiente.Colonna(QLatin1String(nome), id);
    };
    const auto testo = [&testi](int n) {
        for (const Valore& v : testi) {
            if (v.n == n)
                return v.testo;
        }
        return QString();
    };
    QCOMPARE(colonna("Segnatura").toString(), testo(0));
    QCOMPARE(colonna("DataCronicaInizio").toLongLong(), qlonglong(12100303));
    QCOMPARE(colonna("DataCronicaFine").toLongLong(), qlonglong(12111225));
    QCOMPARE(colonna("DataTopica").toString(), testo(2));
    QCOMPARE(colonna("Datazio").toString(), testo(3));
    QCOMPARE(colonna("Regesto").toString(), testo(4));
    QCOMPARE(colonna("Miniatura").toString(), testo(25));
    QCOMPARE(colonna("SigilliAttuali").toLongLong(), qlonglong(3));
    QCOMPARE(colonna("SigilliOriginari").toLongLong(), qlonglong(4));
    QCOMPARE(colonna("Annuncio").toString(), testo(28));
    QCOMPARE(colonna("Accesso").toString(), testo(7));
    QCOMPARE(colonna("Riproduzione").toString(), testo(8));
    QCOMPARE(colonna("Lingua").toString(), testo(5));
    QCOMPARE(colonna("Bibliografia").toString(), testo(6));
    QCOMPARE(colonna("NoteDirezione").toString(), testo(32));
    QCOMPARE(colonna("NoteRiproduzione").toString(), testo(29));
    QCOMPARE(colonna("Note").toString(), testo(20));
    QCOMPARE(colonna("UrlLink").toString(), testo(35));
    QCOMPARE(colonna("DescrizioneEstremi").toString(), testo(36));
    QCOMPARE(colonna("FlgUnitaCond").toLongLong(), qlonglong(1));
    // The keys are not touched.
    QCOMPARE(colonna("ID_Pergamena").toLongLong(), qlonglong(idPG));
    QCOMPARE(colonna("ID_Inventario").toLongLong(), qlonglong(editore.ID_Inventario));
    // The other four tables.
    const auto pg = [&](const char* tabella, const char* nome) {
        return ambiente.ColonnaPG(QLatin1String(tabella), QLatin1String(nome), idPG);
    };
    QCOMPARE(pg("PGSupporti", "Supporto").toString(), testo(21));
    QCOMPARE(pg("PGSupporti", "StatoConservazione").toString(), testo(22));
    QCOMPARE(pg("PGSupporti", "Dimensioni").toString(), testo(23));
    QCOMPARE(pg("PGSupporti", "Note").toString(), testo(24));
    QCOMPARE(pg("PGTraditio", "Traditio").toString(), QStringLiteral("03"));
    QCOMPARE(pg("PGTraditio", "Rogatario").toString(), testo(19));
    QCOMPARE(pg("PGTraditio", "DataCopiaTesto").toString(), testo(9));
    QCOMPARE(pg("PGEleGrafici", "NoteGrafiche").toString(), testo(34));
    QCOMPARE(pg("PGNoteStoriche", "NoteStoriche").toString(), testo(30));

    // Shown again by a fresh editor, every box as it was written.
    ucPergamena altro;
    altro.Init();
    altro.Mostra(id);
    for (const Valore& v : testi)
        QCOMPARE(Testo(&altro, v.n), v.testo);
    QCOMPARE(Testo(&altro, 1), QStringLiteral("03/03/1210"));
    QCOMPARE(Testo(&altro, 33), QStringLiteral("25/12/1211"));
    QCOMPARE(Testo(&altro, 26), QStringLiteral("3"));
    QCOMPARE(Testo(&altro, 27), QStringLiteral("4"));
    QVERIFY(Casella(&altro, "chkUnitaCond")->isChecked());
    QVERIFY(Casella(&altro, "chkPubblicaPG")->isChecked());
    QCOMPARE(Traditio(&altro)->currentIndex(), 2);
    QCOMPARE(altro.findChild<QDateEdit*>(QStringLiteral("DTPData"))->date(), QDate(2024, 5, 17));
    QCOMPARE(altro.LeggiDenominazione(), testo(0));
    // Shown, the record is locked.
    QVERIFY(!Riga(&altro, 0)->isEnabled());
}

void TestPergamena::iCampiVuotiSiSalvanoNullEISigilliVuotiZero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    const long idPG = ambiente.IdPergamena(id);
    // Values there before, which the empty boxes must clear.
    ambiente.Scrivi(QStringLiteral("DataTopica = ?, DataCronicaInizio = ?, SigilliAttuali = ?, "
                                   "FlgUnitaCond = ?"),
                    {QStringLiteral("Siena"), 12000101, 5, 1, Id(id)});
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE PGSupporti SET Supporto = 'Carta' WHERE ID_Pergamena = ?"),
        {Id(idPG)});
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE PGTraditio SET Traditio = '02' WHERE ID_Pergamena = ?"), {Id(idPG)});

    EditorePronto<ucPergamena> editore(id);
    QCOMPARE(Testo(&editore, 2), QStringLiteral("Siena"));
    QCOMPARE(Testo(&editore, 1), QStringLiteral("01/01/1200"));
    QCOMPARE(Traditio(&editore)->currentIndex(), 1);
    editore.Modifica();
    for (QWidget* controllo : editore.Controls()) {
        if (auto* riga = qobject_cast<QLineEdit*>(controllo))
            riga->clear();
        else if (auto* blocco = qobject_cast<QPlainTextEdit*>(controllo))
            blocco->clear();
    }
    Riga(&editore, 1)->setText(QStringLiteral("31/02/1200")); // no date
    Casella(&editore, "chkUnitaCond")->setChecked(false);
    Traditio(&editore)->setCurrentIndex(-1);
    editore.Salva(id);

    // The identifier is never Null.
    QCOMPARE(ambiente.Colonna(QStringLiteral("Segnatura"), id).toString(), QString());
    QVERIFY(!ambiente.Nullo(QStringLiteral("Segnatura"), id));
    for (const char* nome :
         {"DataCronicaInizio", "DataCronicaFine", "DataTopica", "Datazio", "Regesto", "Miniatura",
          "Annuncio", "Accesso", "Riproduzione", "Lingua", "Bibliografia", "NoteDirezione",
          "NoteRiproduzione", "Note", "UrlLink", "DescrizioneEstremi"})
        QVERIFY2(ambiente.Nullo(QLatin1String(nome), id), nome);
    QCOMPARE(ambiente.Colonna(QStringLiteral("SigilliAttuali"), id).toLongLong(), qlonglong(0));
    QCOMPARE(ambiente.Colonna(QStringLiteral("SigilliOriginari"), id).toLongLong(), qlonglong(0));
    QCOMPARE(ambiente.Colonna(QStringLiteral("FlgUnitaCond"), id).toLongLong(), qlonglong(0));
    const auto nullo = [&](const char* tabella, const char* nome) {
        return ENull(ambiente.ColonnaPG(QLatin1String(tabella), QLatin1String(nome), idPG)) &&
               ambiente.Valore(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ID_Pergamena = ?")
                                   .arg(QLatin1String(tabella)),
                               {Id(idPG)})
                       .toInt() == 1;
    };
    for (const char* nome : {"Supporto", "StatoConservazione", "Dimensioni", "Note"})
        QVERIFY2(nullo("PGSupporti", nome), nome);
    for (const char* nome : {"Traditio", "Rogatario", "DataCopiaTesto"})
        QVERIFY2(nullo("PGTraditio", nome), nome);
    QVERIFY(nullo("PGEleGrafici", "NoteGrafiche"));
    QVERIFY(nullo("PGNoteStoriche", "NoteStoriche"));
    QVERIFY(ENull(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id)));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("N"));
}

void TestPergamena::laPrimaTraditioELOriginaleEleAltreMostranoICampiDellaCopia() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    const long originale = albero.pergamena;
    const long copia = ambiente.Crea("05", QStringLiteral("Perg. 2"), albero.inventario);
    const long idCopia = ambiente.IdPergamena(copia);
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE PGTraditio SET Traditio = '01' WHERE "
                                         "ID_Pergamena = ?"),
                          {Id(ambiente.IdPergamena(originale))});

    EditorePronto<ucPergamena> editore;
    const auto campiCopia = [&editore] {
        QList<bool> visibili;
        for (const QWidget* w :
             {static_cast<const QWidget*>(Riga(&editore, 9)),
              static_cast<const QWidget*>(Etichetta(&editore, 9)),
              static_cast<const QWidget*>(Blocco(&editore, 19)),
              static_cast<const QWidget*>(Etichetta(&editore, 19)),
              static_cast<const QWidget*>(Pulsante(&editore, "cmdMostraPergamene"))})
            visibili << !w->isHidden();
        return visibili;
    };
    const QList<bool> tutti(5, true);
    const QList<bool> nessuno(5, false);

    // The original: no copy's fields, and no copy points at it yet.
    editore.Mostra(originale);
    QCOMPARE(Traditio(&editore)->currentIndex(), 0);
    QCOMPARE(campiCopia(), nessuno);
    QVERIFY(!editore.Pergamene);
    // A copy that points at it lights the original's flag.
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE PGTraditio SET Traditio = '02', ID_Elemento = ? "
                                         "WHERE ID_Pergamena = ?"),
                          {Id(originale), Id(idCopia)});
    editore.Mostra(originale);
    QVERIFY(editore.Pergamene);

    // The copy shows its fields and its flag is its link to the original.
    editore.Mostra(copia);
    QCOMPARE(Traditio(&editore)->currentIndex(), 1);
    QCOMPARE(campiCopia(), tutti);
    QVERIFY(editore.Pergamene);
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE PGTraditio SET ID_Elemento = NULL WHERE ID_Pergamena = ?"),
        {Id(idCopia)});
    editore.Mostra(copia);
    QVERIFY(!editore.Pergamene);

    // The user's choice reshapes the form; a new parchment is an original.
    editore.Modifica();
    Traditio(&editore)->setCurrentIndex(0);
    QCOMPARE(campiCopia(), nessuno);
    Traditio(&editore)->setCurrentIndex(4);
    QCOMPARE(campiCopia(), tutti);
    editore.Nuovo(albero.inventario);
    QCOMPARE(Traditio(&editore)->currentIndex(), 0);
    QCOMPARE(campiCopia(), nessuno);
}

void TestPergamena::unCodiceDiTraditioFuoriListaNonSceglieNullaESiSalvaNull() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    const long idPG = ambiente.IdPergamena(id);
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE PGTraditio SET Traditio = '42' WHERE ID_Pergamena = ?"), {Id(idPG)});
    EditorePronto<ucPergamena> editore(id);
    // No entry: a copy, its fields shown.
    QCOMPARE(Traditio(&editore)->currentIndex(), -1);
    QVERIFY(!Riga(&editore, 9)->isHidden());
    editore.Modifica();
    editore.Salva(id);
    QVERIFY(
        ENull(ambiente.ColonnaPG(QStringLiteral("PGTraditio"), QStringLiteral("Traditio"), idPG)));

    // A Null code reads as 0: no line of the list has it, so nothing is chosen.
    editore.Mostra(id);
    QCOMPARE(Traditio(&editore)->currentIndex(), -1);
    QCOMPARE(editore.CercaTraditio(QString()), -1);
    QCOMPARE(editore.CercaTraditio(QStringLiteral("7")), 6);

    // A list whose code 00 is a line of its own: a Null code chooses it.
    ambiente.cartella.Scrivi(QStringLiteral("TraditioPG.txt"),
                             "01Originale\r\n00Non indicata\r\n02Copia autentica\r\n");
    ucPergamena altro;
    altro.Init();
    altro.Mostra(id);
    QCOMPARE(Traditio(&altro)->currentIndex(), 1);
    QCOMPARE(Traditio(&altro)->currentText(), QStringLiteral("Non indicata"));
    // A copy all the same, and saved as Null again.
    QVERIFY(!Riga(&altro, 9)->isHidden());
    altro.Modifica();
    altro.Salva(id);
    QVERIFY(
        ENull(ambiente.ColonnaPG(QStringLiteral("PGTraditio"), QStringLiteral("Traditio"), idPG)));
}

void TestPergamena::laDataDellaCopiaSiLeggeMaIlSalvaNonLaTocca() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    const long idPG = ambiente.IdPergamena(id);
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE PGTraditio SET Traditio = '02', DataCopia = ? "
                                         "WHERE ID_Pergamena = ?"),
                          {12500614, Id(idPG)});
    EditorePronto<ucPergamena> editore(id);
    QCOMPARE(Testo(&editore, 18), QStringLiteral("14/06/1250"));
    editore.Modifica();
    // A read-only box, whatever a program puts in it.
    QVERIFY(!Riga(&editore, 18)->isEnabled());
    Riga(&editore, 18)->setText(QStringLiteral("01/01/1300"));
    editore.Salva(id);
    QCOMPARE(ambiente.ColonnaPG(QStringLiteral("PGTraditio"), QStringLiteral("DataCopia"), idPG)
                 .toLongLong(),
             qlonglong(12500614));
}

void TestPergamena::unaRigaMancanteDiUnaTabellaDellaPergamenaEUnErroreENonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const char* tabella : {"PGSupporti", "PGTraditio", "PGEleGrafici", "PGNoteStoriche"}) {
        const long id = ambiente.CreaPergamena(QLatin1String(tabella)).pergamena;
        const long idPG = ambiente.IdPergamena(id);
        ucPergamena editore;
        editore.Init();
        editore.Mostra(id);
        editore.Modifica();
        Compila(editore);
        ambiente.Cnn().Esegui(
            QStringLiteral("DELETE FROM %1 WHERE ID_Pergamena = ?").arg(QLatin1String(tabella)),
            {Id(idPG)});
        bool bErrore = false;
        try {
            editore.Salva(id);
        } catch (const Errore& errore) {
            bErrore = errore.descrizione().contains(QLatin1String(tabella));
        }
        QVERIFY2(bErrore, tabella);
        // Nothing of the save stays: the element, Pergamene and the tables before it as they were.
        QCOMPARE(ambiente.Colonna(QStringLiteral("Segnatura"), id).toString(),
                 QLatin1String(tabella));
        QVERIFY2(ambiente.Nullo(QStringLiteral("Regesto"), id), tabella);
        QVERIFY2(ENull(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id)), tabella);
        QVERIFY2(ENull(ambiente.ColonnaPG(QStringLiteral("PGSupporti"), QStringLiteral("Supporto"),
                                          idPG)),
                 tabella);
    }
}

void TestPergamena::senzaRigaDiPergameneSiScriveSoloLElementoESiSpegneTutto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    EditorePronto<ucPergamena> editore(id);
    editore.Modifica();
    Compila(editore);
    // The row of Pergamene no longer belongs to the element.
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE Pergamene SET ID_Elemento = ? WHERE ID_Elemento = ?"),
        {Id(id + 100000), Id(id)});
    QVERIFY_THROWS_NO_EXCEPTION(editore.Salva(id));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             QStringLiteral("Maria Rossi"));
    // The row that was the parchment's is not written.
    QVERIFY(ambiente.Nullo(QStringLiteral("Regesto"), id + 100000));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Segnatura"), id + 100000).toString(),
             QStringLiteral("Perg. 1"));
    editore.Mostra(id);
    QVERIFY(!editore.OkNuovaPergamena && !editore.OkModifica && !editore.OkCancella);
    QCOMPARE(editore.fID_Elem, 0L);
    QCOMPARE(editore.ID_Inventario, 0L);
    QCOMPARE(Testo(&editore, 0), QString());
}

void TestPergamena::loStatoSiLeggeConLaPergamenaEUnaConSigilliNonSiCancella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [albero, id, idPG] = ambiente.CreaPergamenaConRiga();
    EditorePronto<ucPergamena> editore(id);
    QVERIFY(editore.OkNuovaPergamena && editore.OkModifica && editore.OkCancella);
    QVERIFY(!editore.AltreSegnature && !editore.Links && !editore.SigilliLinks);
    const QColor spento =
        Pulsante(&editore, "cmdMostraAltreSeg")->palette().color(QPalette::Button);

    // An old signature, a complesso linked and a seal under it.
    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO PGAltreSegnature (ID_PGAltraSegnatura, "
                                         "ID_Pergamena, Segnatura) VALUES (?, ?, 'Antica')"),
                          {Id(1), Id(idPG)});
    const long complesso = ambiente.Crea("02", QStringLiteral("Complesso"), albero.istituto);
    ambiente.Collega(complesso, id);
    ambiente.Crea("06", QStringLiteral("Sigillo"), id);
    editore.Mostra(id);
    QVERIFY(editore.AltreSegnature);
    QVERIFY(editore.Links);
    QVERIFY(!editore.OkCancella);
    QVERIFY(editore.OkModifica);
    QVERIFY(Pulsante(&editore, "cmdMostraAltreSeg")->palette().color(QPalette::Button) != spento);
    QVERIFY(Pulsante(&editore, "cmdMostraAltreSeg")->isEnabled());
    // A link from anything but a complesso does not count.
    QVERIFY(!editore.SigilliLinks);
}

void TestPergamena::pubblicareSottoUnPadreNonPubblicatoERifiutato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE Elementi SET Pubblicato = 'N' WHERE ID_Elemento = ?"),
        {Id(albero.inventario)});
    EditorePronto<ucPergamena> editore;
    editore.Nuovo(albero.inventario);
    Casella(&editore, "chkPubblicaPG")->click();
    QVERIFY(!Casella(&editore, "chkPubblicaPG")->isChecked());
    QCOMPARE(ambiente.seam.Messaggi().value(0).sTesto,
             QStringLiteral("Pergamena non pubblicabile"));
    QCOMPARE(ambiente.seam.Messaggi().value(0).sTitolo, QStringLiteral("Attenzione"));

    // A parchment already published stays so when its parent is not.
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE Elementi SET Pubblicato = 'S' WHERE ID_Elemento = ?"),
        {Id(albero.pergamena)});
    editore.Mostra(albero.pergamena);
    QVERIFY(Casella(&editore, "chkPubblicaPG")->isChecked());
    editore.Modifica();
    editore.Salva(albero.pergamena);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), albero.pergamena).toString(),
             QStringLiteral("S"));
}

void TestPergamena::leAnticheSegnatureSiApronoPerNomeEPoiSiAvvisaLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    const long idPG = ambiente.IdPergamena(id);
    EditorePronto<ucPergamena> editore(id);
    QSignalSpy evento(&editore, &ucPergamena::EventoStato);

    // No dialog of that name: nothing opens, nothing is said.
    Dialoghi::Rimuovi(QStringLiteral("frmAltreSegnature"));
    Pulsante(&editore, "cmdMostraAltreSeg")->click();
    QCOMPARE(evento.count(), 0);

    // A stand-in that adds an old signature of the parchment it is told.
    long lVisto = -1;
    Dialoghi::Registra(QStringLiteral("frmAltreSegnature"),
                       [&](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                           lVisto = Sessione::lIdPergamena;
                           ambiente.Cnn().Esegui(
                               QStringLiteral("INSERT INTO PGAltreSegnature (ID_PGAltraSegnatura, "
                                              "ID_Pergamena, Segnatura) VALUES (?, ?, 'A')"),
                               {Id(7), Id(Sessione::lIdPergamena)});
                           auto* dlg = new QDialog(genitore);
                           QTimer::singleShot(0, dlg, &QDialog::accept);
                           return dlg;
                       });
    QVERIFY(!editore.AltreSegnature);
    // When the host hears of it, the flag and the button are already those of the new rows.
    bool bLettoPrima = false;
    QColor coloreAllEvento;
    connect(&editore, &ucPergamena::EventoStato, this, [&] {
        bLettoPrima = editore.AltreSegnature;
        coloreAllEvento =
            Pulsante(&editore, "cmdMostraAltreSeg")->palette().color(QPalette::Button);
    });
    Pulsante(&editore, "cmdMostraAltreSeg")->click();
    Dialoghi::Rimuovi(QStringLiteral("frmAltreSegnature"));
    QCOMPARE(lVisto, idPG);
    QCOMPARE(evento.count(), 1);
    QVERIFY(editore.AltreSegnature);
    QVERIFY(bLettoPrima);
    QCOMPARE(coloreAllEvento, QApplication::palette().color(QPalette::Base));
}

void TestPergamena::ogniPulsanteApreIlSuoDialogoConIValoriDiSessione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [albero, id, idPG] = ambiente.CreaPergamenaConRiga();
    const long originale = ambiente.Crea("05", QStringLiteral("Originale"), albero.inventario);
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE PGTraditio SET Traditio = '02' WHERE ID_Pergamena = ?"), {Id(idPG)});
    EditorePronto<ucPergamena> editore(id);
    QSignalSpy evento(&editore, &ucPergamena::EventoStato);

    // A stand-in for each dialog, which notes what it finds and closes.
    QStringList aperti;
    Dialoghi::Argomenti argomenti;
    long lLinkTrovato = -1;
    const QStringList nomi = {"frmAltreSegnature",  "frmPgNotazioni",   "frmMostraLinkAnt",
                              "frmMostraLinkTopo",  "frmMostraLinkInv", "frmMostraLinkPGS",
                              "frmCollegaPergamene"};
    for (const QString& nome : nomi) {
        Dialoghi::Registra(
            nome, [&, nome](QWidget* genitore, const Dialoghi::Argomenti& dati) -> QDialog* {
                aperti << nome;
                argomenti = dati;
                lLinkTrovato = Sessione::lIdElementoLink;
                // The link dialog of the original leaves the original chosen.
                if (nome == QLatin1String("frmCollegaPergamene"))
                    Sessione::lIdElementoLink = originale;
                auto* dlg = new QDialog(genitore);
                QTimer::singleShot(0, dlg, &QDialog::accept);
                return dlg;
            });
    }
    // The values that the buttons fill, emptied before each click.
    const auto azzera = [] {
        Sessione::lIdPergamena = 0;
        Sessione::lIdElementoLink = 0;
        Sessione::lIdInventario = 0;
        Sessione::sDenomElementoLink.clear();
        Sessione::sDenomInventario.clear();
        Sessione::iChiamanteToponimi = 0;
        Sessione::iChiamanteInv = 0;
    };
    const auto clicca = [&](const char* pulsante) {
        azzera();
        Pulsante(&editore, pulsante)->click();
    };

    clicca("cmdMostraAltreSeg");
    QCOMPARE(aperti.constLast(), QStringLiteral("frmAltreSegnature"));
    QCOMPARE(Sessione::lIdPergamena, idPG);
    clicca("cmdMostraNotazioni");
    QCOMPARE(aperti.constLast(), QStringLiteral("frmPgNotazioni"));
    QCOMPARE(Sessione::lIdPergamena, idPG);
    clicca("cmdMostraAntroponimi");
    QCOMPARE(aperti.constLast(), QStringLiteral("frmMostraLinkAnt"));
    QCOMPARE(Sessione::sDenomElementoLink, QStringLiteral("Perg. 1"));
    QCOMPARE(lLinkTrovato, idPG);
    QCOMPARE(Sessione::iChiamanteToponimi, 0);
    clicca("cmdMostraToponimi");
    QCOMPARE(aperti.constLast(), QStringLiteral("frmMostraLinkTopo"));
    QCOMPARE(Sessione::sDenomElementoLink, QStringLiteral("Perg. 1"));
    QCOMPARE(lLinkTrovato, idPG);
    QCOMPARE(Sessione::iChiamanteToponimi, 1);
    azzera();
    Sessione::iEsitoLinkCD = 5;
    Pulsante(&editore, "cmdMostraLinks")->click();
    QCOMPARE(aperti.constLast(), QStringLiteral("frmMostraLinkInv"));
    QCOMPARE(Sessione::sDenomInventario, QStringLiteral("Perg. 1"));
    QCOMPARE(Sessione::lIdInventario, id);
    QCOMPARE(Sessione::iEsitoLinkCD, 0);
    QCOMPARE(Sessione::iChiamanteInv, 2);
    clicca("cmdMostraSigilli");
    QCOMPARE(aperti.constLast(), QStringLiteral("frmMostraLinkPGS"));
    QCOMPARE(argomenti.value(QStringLiteral("lIdSigillo")).toLongLong(), qlonglong(0));
    QCOMPARE(argomenti.value(QStringLiteral("lIdPergamena")).toLongLong(), qlonglong(id));
    QCOMPARE(argomenti.value(QStringLiteral("sDenominazione")).toString(),
             QStringLiteral("Perg. 1"));
    // A copy: the link dialog of its original, which it takes back afterwards.
    QVERIFY(!editore.Pergamene);
    clicca("cmdMostraPergamene");
    QCOMPARE(aperti.constLast(), QStringLiteral("frmCollegaPergamene"));
    QCOMPARE(Sessione::lIdPergamena, idPG);
    QCOMPARE(Sessione::lIdInventario, editore.ID_Inventario);
    QCOMPARE(lLinkTrovato, 0L);
    QVERIFY(editore.Pergamene);
    // The host heard of each dialog once it had closed.
    QCOMPARE(aperti.size(), 7);
    QCOMPARE(evento.count(), 7);
    for (const QString& nome : nomi)
        Dialoghi::Rimuovi(nome);
    // Without the dialogs nothing opens and nothing is said.
    for (const char* pulsante :
         {"cmdMostraAltreSeg", "cmdMostraNotazioni", "cmdMostraAntroponimi", "cmdMostraToponimi",
          "cmdMostraLinks", "cmdMostraSigilli", "cmdMostraPergamene"})
        Pulsante(&editore, pulsante)->click();
    QCOMPARE(evento.count(), 7);
}

void TestPergamena::unNumeroOUnaDataErratiSonoRifiutatiAllUscita() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena();
    auto [editore, ospite] = OspitePergamena(albero.inventario);
    QVERIFY(InModifica(ospite, albero.pergamena));
    auto* schede = editore->findChild<QTabWidget*>(QStringLiteral("SSTab1"));

    struct Prova {
        int n;
        int scheda;
        QStringList errati;
        QStringList giusti;
        QString messaggio;
    };
    const QList<Prova> prove = {
        {26, 1, {"x", "1a"}, {"3", ""}, QStringLiteral("Numero errato")},
        {27, 1, {"due"}, {"12", ""}, QStringLiteral("Numero errato")},
        {1, 0, {"31/02/1200", "ieri"}, {"03/03/1210", ""}, QStringLiteral("Data errata")},
        {33, 0, {"1210-13-01"}, {"25/12/1211", " "}, QStringLiteral("Data errata")},
    };
    int iAttesi = 0;
    for (const Prova& p : prove) {
        schede->setCurrentIndex(p.scheda);
        QLineEdit* casella = Riga(editore, p.n);
        // Left with a click on the identifier.
        for (const QString& errato : p.errati)
            RifiutatoAllUscita(ambiente.seam, casella, errato, Riga(editore, 0), p.messaggio,
                               iAttesi);
        for (const QString& giusto : p.giusti)
            AccettatoAllUscita(ambiente.seam, casella, giusto, Riga(editore, 0), iAttesi);
    }
}

void TestPergamena::unaPergamenaNuovaSiCreaAttraversoLOspite() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Ambiente::Albero albero = ambiente.CreaPergamena(QStringLiteral("Altra"));
    auto [editore, ospite] = OspitePergamena(albero.inventario);
    QVERIFY(ospite.cmdNuovo->isEnabled());
    ospite.cmdNuovo->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("nuovo"));
    // Empty, the form is refused at its first mandatory field and nothing is written.
    ospite.cmdConferma->click();
    QCOMPARE(ambiente.seam.Messaggi().value(0).sTesto,
             QStringLiteral("Inserire segnatura attuale"));
    const auto pergamene = [&ambiente] {
        return ambiente
            .Valore(QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE Tipologia = '05'"), {})
            .toInt();
    };
    QCOMPARE(pergamene(), 1);
    Compila(*editore);
    ospite.cmdConferma->click();
    QCOMPARE(ospite.Stato(), QStringLiteral("mostra"));
    QCOMPARE(pergamene(), 2);
    const long id = ospite.IdCorrente();
    QVERIFY(id > 0 && id != albero.pergamena);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("ID_ElementoPadre"), id).toLongLong(),
             qlonglong(albero.inventario));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Segnatura"), id).toString(),
             QStringLiteral("Perg. 12"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("DataCronicaInizio"), id).toLongLong(),
             qlonglong(12100303));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Regesto"), id).toString(),
             QStringLiteral("Vendita di una terra"));
    const long idPG = ambiente.IdPergamena(id);
    QCOMPARE(ambiente.ColonnaPG(QStringLiteral("PGTraditio"), QStringLiteral("Traditio"), idPG)
                 .toString(),
             QStringLiteral("01"));
    QCOMPARE(ambiente.ColonnaPG(QStringLiteral("PGSupporti"), QStringLiteral("Dimensioni"), idPG)
                 .toString(),
             QStringLiteral("320x210"));
    QCOMPARE(editore->fID_Elem, id);
    QVERIFY(editore->OkCancella);
    QVERIFY(ospite.cmdCancella->isEnabled());
    QCOMPARE(Testo(editore, 0), QStringLiteral("Perg. 12"));
}

void TestPergamena::iPulsantiSiAccendonoInLetturaESiColoranoDalleRighe() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [albero, id, idPG] = ambiente.CreaPergamenaConRiga();
    EditorePronto<ucPergamena> editore;
    const QStringList pulsanti = {"cmdMostraLinks",     "cmdMostraAltreSeg", "cmdMostraAntroponimi",
                                  "cmdMostraNotazioni", "cmdMostraToponimi", "cmdMostraSigilli",
                                  "cmdMostraPergamene", "cmdImmagine"};
    const auto accesi = [&editore, &pulsanti] {
        QList<bool> stato;
        for (const QString& nome : pulsanti)
            stato << Pulsante(&editore, qPrintable(nome))->isEnabled();
        return stato;
    };
    const QColor finestra = QApplication::palette().color(QPalette::Base);
    const QColor faccia = QApplication::palette().color(QPalette::Button);
    QVERIFY(finestra != faccia);
    const auto colore = [&editore](const char* nome) {
        return Pulsante(&editore, nome)->palette().color(QPalette::Button);
    };

    // Shown: every button works, the lists without rows in the button face.
    editore.Mostra(id);
    QCOMPARE(accesi(), QList<bool>(8, true));
    for (const char* nome :
         {"cmdMostraLinks", "cmdMostraAltreSeg", "cmdMostraAntroponimi", "cmdMostraNotazioni",
          "cmdMostraToponimi", "cmdMostraSigilli", "cmdMostraPergamene"})
        QVERIFY2(colore(nome) == faccia, nome);
    QCOMPARE(Pulsante(&editore, "cmdImmagine")->text(), QStringLiteral("Immagine"));
    // Edited: none of them.
    editore.Modifica();
    QCOMPARE(accesi(), QList<bool>(8, false));
    editore.Annulla();
    QCOMPARE(accesi(), QList<bool>(8, true));

    // With an old signature, a complesso linked and a MAG document, their buttons stand out.
    ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO PGAltreSegnature (ID_PGAltraSegnatura, "
                                         "ID_Pergamena, Segnatura) VALUES (?, ?, 'Antica')"),
                          {Id(3), Id(idPG)});
    ambiente.Collega(ambiente.Crea("02", QStringLiteral("Complesso"), albero.istituto), id);
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                          {QStringLiteral("0123456789abcdef0123456789abcdef"), Id(id)});
    editore.Mostra(id);
    QVERIFY(colore("cmdMostraAltreSeg") == finestra);
    QVERIFY(colore("cmdMostraLinks") == finestra);
    QVERIFY(colore("cmdMostraToponimi") == faccia);
    QCOMPARE(Pulsante(&editore, "cmdImmagine")->text(), QStringLiteral("Elimina coll. immagine"));

    // The hosts that hide the seals' link and the complessi.
    editore.MostraSigilliVisible(false);
    QVERIFY(Pulsante(&editore, "cmdMostraSigilli")->isHidden());
    editore.MostraSigilliVisible(true);
    QVERIFY(!Pulsante(&editore, "cmdMostraSigilli")->isHidden());
    editore.EnabledComplessiDoc(false);
    QVERIFY(Pulsante(&editore, "cmdMostraLinks")->isHidden());
    QVERIFY(!Pulsante(&editore, "cmdMostraLinks")->isEnabled());

    // A record that is not there: no image to import.
    editore.Mostra(id + 1000);
    QVERIFY(!Pulsante(&editore, "cmdImmagine")->isEnabled());
    QCOMPARE(Pulsante(&editore, "cmdImmagine")->text(), QStringLiteral("Immagine"));
}

void TestPergamena::ilPulsanteImmagineChiedePrimaDiImportareODiTogliereIlCollegamento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.CreaPergamena().pergamena;
    EditorePronto<ucPergamena> editore(id);
    QPushButton* immagine = Pulsante(&editore, "cmdImmagine");

    // Without a MAG document: the choice of one, with the XML documents in force; given up,
    // nothing changes.
    immagine->click();
    const QList<Chiamata> scelte = ambiente.seam.Chiamate(QStringLiteral("file"));
    QCOMPARE(scelte.size(), 1);
    QCOMPARE(scelte.at(0).sceltaFile.sFiltroScelto, QStringLiteral("Xml Files(*.xml)"));
    QCOMPARE(immagine->text(), QStringLiteral("Immagine"));
    QVERIFY(ENull(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id)));

    // With one: the question, and No keeps it.
    const QString md5 = QStringLiteral("0123456789abcdef0123456789abcdef");
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                          {md5, Id(id)});
    editore.Mostra(id);
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    ambiente.seam.risposte = {Risposta::No};
    immagine->click();
    const Messaggio domanda = ambiente.seam.Messaggi().constLast();
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Immagini. "));
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(), md5);
    // A save keeps the document of the element.
    editore.Modifica();
    editore.Salva(id);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Md5Link"), id).toString(), md5);
    QCOMPARE(immagine->text(), QStringLiteral("Elimina coll. immagine"));
}

void TestPergamena::laTastieraPercorreIlModuloComeSiVede() {
    ucPergamena editore;
    const QStringList attesi = {
        "Text1(0)",           "cmdMostraAltreSeg",  "Text1(1)",          "Text1(33)",
        "Text1(36)",          "Text1(2)",           "Text1(3)",          "Text1(4)",
        "cmbTraditio",        "cmdMostraPergamene", "Text1(9)",          "Text1(18)",
        "Text1(19)",          "Text1(32)",          "Text1(20)",         "chkUnitaCond",
        "Text1(21)",          "Text1(23)",          "Text1(22)",         "Text1(24)",
        "Text1(5)",           "Text1(25)",          "Text1(28)",         "Text1(34)",
        "Text1(26)",          "Text1(27)",          "cmdMostraSigilli",  "Text1(7)",
        "Text1(8)",           "Text1(29)",          "Text1(6)",          "Text1(35)",
        "Text1(30)",          "cmdMostraLinks",     "cmdMostraToponimi", "cmdMostraAntroponimi",
        "cmdMostraNotazioni", "Text1(15)",          "DTPData",           "chkPubblicaPG",
        "cmdImmagine"};
    // The chain of the focus from the identifier, the form's own controls in the order met.
    QCOMPARE(OrdineDelFuoco(Riga(&editore, 0), attesi), attesi);
}

void TestPergamena::iComplessiNascostiDallOspiteNonTornanoConMostraNeConAnnulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const auto [albero, id, idPG] = ambiente.CreaPergamenaConRiga();
    EditorePronto<ucPergamena> editore(id);
    QPushButton* complessi = Pulsante(&editore, "cmdMostraLinks");
    QVERIFY(complessi->isEnabled());
    // The dialog that links seals and parchments leaves the complessi out.
    editore.EnabledComplessiDoc(false);
    const auto fuori = [complessi] {
        return complessi->isHidden() && !complessi->isEnabled();
    };
    QVERIFY(fuori());
    editore.Mostra(id);
    QVERIFY(fuori());
    editore.Modifica();
    editore.Annulla();
    QVERIFY(fuori());
    editore.Modifica();
    Compila(editore);
    editore.Salva(id);
    QVERIFY(fuori());
    editore.Nuovo(albero.inventario);
    editore.Annulla();
    QVERIFY(fuori());
    // Offered again, the browse state enables it as the other buttons.
    editore.EnabledComplessiDoc(true);
    editore.Modifica();
    QVERIFY(!complessi->isEnabled());
    editore.Annulla();
    QVERIFY(!complessi->isHidden() && complessi->isEnabled());
}

QTEST_MAIN(TestPergamena)
#include "tst_pergamena.moc"
