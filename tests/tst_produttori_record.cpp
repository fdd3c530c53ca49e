// The records of the producers (a person, a family, a body), on SQLite and on PostgreSQL, driven
// as their window drives them: the row of Soggetti inserted with its kind, then Mostra, Salva.
// The database's share (the kind's row added, Soggetti removed with it, the code filled in), the
// form with its labels, limits and mandatory messages in the order of the design, the round trip
// of every field column by column, the tails of the list rows, the dates of a person that refuse
// to be left, the profiles of a body read from their file, the flags, the other names, and a
// producer removed by another workstation while it was shown.

#include "authorities/ucEnte.h"
#include "authorities/ucFamiglia.h"
#include "authorities/ucPersona.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest>
#include <functional>
#include <memory>

namespace {

// A program folder with ProfiliEnti.txt, a fresh database, the session's connection and the
// scripted seam.
struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("Soggetti"), {"ProfiliEnti.txt"}) {}
    // The row of Soggetti as the window inserts it, with its kind ("P", "F", "E").
    long NuovoSoggetto(const char* tipo, const QString& nome) const {
        return static_cast<long>(
            Cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                            {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                            {nome, QLatin1String(tipo)}));
    }
    // A column of a producer's row in a table keyed by ID_Soggetto.
    QVariant Di(const char* tabella, const char* colonna, long idSoggetto) const {
        return Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Soggetto = ?")
                          .arg(QLatin1String(colonna), QLatin1String(tabella)),
                      {Id(idSoggetto)});
    }
    int Righe(const char* tabella, long idSoggetto) const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ID_Soggetto = ?")
                          .arg(QLatin1String(tabella)),
                      {Id(idSoggetto)})
            .toInt();
    }
    // A top institute with its code, whose code the producers take.
    void IstitutoConCodice() const {
        const long istituto = CreaIstituto(QStringLiteral("Archivio"), QStringLiteral("01"));
        Cnn().Esegui(QStringLiteral("UPDATE Istituti SET ISAD_Codice = ?, ISAD_Sigla = ? "
                                    "WHERE ID_Elemento = ?"),
                     {QStringLiteral("SAS123"), QStringLiteral("FI"), Id(istituto)});
    }
};

// What a kind is, for the tests that go over the three.
struct Genere {
    const char* tipo;
    const char* tabella;
    const char* chiave;
    const char* nome;
    const char* denominazioni;
    const char* lettere;
    std::function<EditoreProduttore*()> crea;
};
const Genere Generi[] = {
    {"P", "Persone", "ID_Persona", "Nome", "PersoneDenominazioni", "CP",
     [] {
         return new ucPersona;
     }},
    {"F", "Famiglie", "ID_Famiglia", "Nome", "FamiglieDenominazioni", "CF",
     [] {
         return new ucFamiglia;
     }},
    {"E", "Enti", "ID_Ente", "Denominazione", "EntiDenominazioni", "CC",
     [] {
         return new ucEnte;
     }},
};

// An editor of the kind made ready by Init and, when a producer is given, showing it.
std::unique_ptr<EditoreProduttore> Pronto(const Genere& g, long idSoggetto = 0) {
    std::unique_ptr<EditoreProduttore> editore(g.crea());
    editore->Init();
    if (idSoggetto != 0)
        editore->Mostra(idSoggetto);
    return editore;
}

void Scrivi(QWidget* editore, int n, const QString& testo) {
    if (QLineEdit* riga = Riga(editore, n))
        riga->setText(testo);
    else
        Blocco(editore, n)->setPlainText(testo);
}

// A field of a kind: its box, label, limit, column and the mandatory message ("" if none).
struct Campo {
    int n;
    const char* etichetta;
    int iMax;
    const char* colonna;
    const char* tag;
};

const QList<Campo> CampiPersona = {
    {0, "Cognome e nome", 256, "Nome", "Inserire nome e cognome"},
    {1, "Professione, titoli e qualifica", 32, "Titoli",
     "Inserire professione, titolo o qualifica"},
    {2, "Data nascita", 10, "DataNascita", ""},
    {3, "Data morte", 10, "DataMorte", ""},
    {4, "Luogo nascita", 32, "LuogoNascita", ""},
    {5, "Luogo morte", 32, "LuogoMorte", ""},
    {6, "Luoghi e/o aree geografiche", 64, "AreaGeografica", "Inserire luogho e/o area geografica"},
    {7, "Anno inizio", 4, "DataInizio", "Inserire anno inizio"},
    {8, "Anno fine", 4, "DataFine", ""},
    {9, "Estremi cronologici (testo)", 64, "DescrizioneEstremi",
     "Inserire estremi cronologici (testo)"},
    {10, "Note biografiche", 1024, "Storia", ""},
    {11, "Bibliografia e fonti", 1024, "Note", ""},
    {12, "Note gestionali", 1024, "NoteDirezione", ""},
    {14, "Redattore", 64, nullptr, "Inserire redattore"},
};
// A family and a body have their years and their dates in words in the same boxes.
const QList<Campo> AnniFamigliaEnte = {
    {2, "Anno inizio", 4, "DataInizio", "Inserire anno inizio"},
    {3, "Anno fine", 4, "DataFine", ""},
    {4, "Estremi cronologici (testo)", 64, "DescrizioneEstremi",
     "Inserire estremi cronologici (testo)"},
};
const QList<Campo> CampiFamiglia =
    QList<Campo>{
        {0, "Denominazione", 256, "Nome", "Inserire denominazione"},
        {1, "Titoli", 32, "Titoli", ""},
    } +
    AnniFamigliaEnte +
    QList<Campo>{
        {5, "Luoghi e/o aree geografiche", 64, "AreaGeografica",
         "Inserire luogo e/o area geografica"},
        {6, "Storia", 1024, "Storia", ""},
        {7, "Bibliografia e fonti", 1024, "Note", ""},
        {8, "Note gestionali", 1024, "NoteDirezione", ""},
        {10, "Redattore", 64, nullptr, "Inserire redattore"},
    };
const QList<Campo> CampiEnte =
    QList<Campo>{
        {0, "Denominazione", 256, "Denominazione", "Inserire denominazione"},
        {1, "Sede", 64, "Sede", "Inserire sede"},
    } +
    AnniFamigliaEnte +
    QList<Campo>{
        {5, "Ambito geografico di competenza", 64, "AreaGeografica", ""},
        {8, "Storia, mandato, funzioni e struttura", 1024, "Storia", ""},
        {9, "Bibliografia", 1024, "Note", ""},
        {10, "Note gestionali", 1024, "NoteDirezione", ""},
        {12, "Redattore", 64, nullptr, "Inserire redattore"},
    };

// The text fields of a kind filled to their limits with quotes and accents: what each box got.
QMap<int, QString> RiempiTesti(QWidget* editore, const QList<Campo>& campi,
                               const QList<int>& nonTesti) {
    QMap<int, QString> scritti;
    for (const Campo& c : campi) {
        if (nonTesti.contains(c.n))
            continue;
        const QString testo =
            Lungo(QStringLiteral("%1 l'àèìòù \"é\" ").arg(c.n), c.iMax - 1) + QStringLiteral("Z");
        Scrivi(editore, c.n, testo);
        scritti.insert(c.n, testo);
    }
    return scritti;
}

void ControllaColonne(const Ambiente& ambiente, const char* tabella, long id,
                      const QList<Campo>& campi, const QMap<int, QString>& scritti) {
    for (const Campo& c : campi) {
        if (!scritti.contains(c.n))
            continue;
        const QVariant valore = c.colonna == nullptr ? ambiente.Di("Soggetti", "Redattore", id)
                                                     : ambiente.Di(tabella, c.colonna, id);
        QVERIFY2(valore.toString() == scritti.value(c.n), c.etichetta);
    }
}

} // namespace

class TestProduttoriRecord : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void laBancaDatiAggiungeLaRigaDelTipoEToglieSoggettiConLei_data() { AggiungiBackend(); }
    void laBancaDatiAggiungeLaRigaDelTipoEToglieSoggettiConLei();
    void ogniCampoHaLaSuaEtichettaIlSuoLimiteEIlSuoMessaggio_data() { AggiungiBackend(); }
    void ogniCampoHaLaSuaEtichettaIlSuoLimiteEIlSuoMessaggio();
    void laTastieraPercorreIlModuloComeSiVedeEGliAnniStannoNelRiquadro_data() { AggiungiBackend(); }
    void laTastieraPercorreIlModuloComeSiVedeEGliAnniStannoNelRiquadro();
    void iCampiObbligatoriSiChiedonoNellOrdineDelDisegno_data() { AggiungiBackend(); }
    void iCampiObbligatoriSiChiedonoNellOrdineDelDisegno();
    void unNomeLasciatoSegnapostoODiSpaziNonPassaIlControllo_data() { AggiungiBackend(); }
    void unNomeLasciatoSegnapostoODiSpaziNonPassaIlControllo();
    void ogniCampoDellaPersonaFaIlGiroColonnaPerColonna_data() { AggiungiBackend(); }
    void ogniCampoDellaPersonaFaIlGiroColonnaPerColonna();
    void ogniCampoDellaFamigliaFaIlGiroColonnaPerColonna_data() { AggiungiBackend(); }
    void ogniCampoDellaFamigliaFaIlGiroColonnaPerColonna();
    void ogniCampoDellEnteFaIlGiroColonnaPerColonna_data() { AggiungiBackend(); }
    void ogniCampoDellEnteFaIlGiroColonnaPerColonna();
    void unAnnoDiTreCifreSiSalvaInSetteCifreESiRilegge_data() { AggiungiBackend(); }
    void unAnnoDiTreCifreSiSalvaInSetteCifreESiRilegge();
    void leCodeDelleRigheDiElencoSiComponongonoDaiCampi_data() { AggiungiBackend(); }
    void leCodeDelleRigheDiElencoSiComponongonoDaiCampi();
    void leDateDellaPersonaNonSiLascianoSeNonSonoDate_data() { AggiungiBackend(); }
    void leDateDellaPersonaNonSiLascianoSeNonSonoDate();
    void unaDataCheNonEDataSiSalvaComeNulla_data() { AggiungiBackend(); }
    void unaDataCheNonEDataSiSalvaComeNulla();
    void gliAnniDiFamigliaEEnteAccettanoQualsiasiTesto_data() { AggiungiBackend(); }
    void gliAnniDiFamigliaEEnteAccettanoQualsiasiTesto();
    void iProfiliSiLeggonoDalFileConLaVirgola_data() { AggiungiBackend(); }
    void iProfiliSiLeggonoDalFileConLaVirgola();
    void unProfiloCheIlFileNonHaNonSiMostraEFermaIlSalvataggio_data() { AggiungiBackend(); }
    void unProfiloCheIlFileNonHaNonSiMostraEFermaIlSalvataggio();
    void pulisciLasciaLaDataEIlProfiloEAzzeraIlCodice_data() { AggiungiBackend(); }
    void pulisciLasciaLaDataEIlProfiloEAzzeraIlCodice();
    void ilCodiceSiComponeDalSitoDalTipoEDallaChiave_data() { AggiungiBackend(); }
    void ilCodiceSiComponeDalSitoDalTipoEDallaChiave();
    void soloIComplessiCollegatiImpedisconoLaCancellazione_data() { AggiungiBackend(); }
    void soloIComplessiCollegatiImpedisconoLaCancellazione();
    void leAltreDenominazioniSiContanoPerTipo_data() { AggiungiBackend(); }
    void leAltreDenominazioniSiContanoPerTipo();
    void unProduttoreCheNonCeLasciaIlModuloVuotoEIPermessiSpenti_data() { AggiungiBackend(); }
    void unProduttoreCheNonCeLasciaIlModuloVuotoEIPermessiSpenti();
    void unProduttoreToltoDaUnAltraPostazioneNonSiScrive_data() { AggiungiBackend(); }
    void unProduttoreToltoDaUnAltraPostazioneNonSiScrive();
    void unAnnoCheNonENumeroNonScriveNulla_data() { AggiungiBackend(); }
    void unAnnoCheNonENumeroNonScriveNulla();
    void laPubblicazioneLaDataEIlRedattoreVannoInSoggetti_data() { AggiungiBackend(); }
    void laPubblicazioneLaDataEIlRedattoreVannoInSoggetti();
    void mostraBloccaIlModuloEModificaLoSblocca_data() { AggiungiBackend(); }
    void mostraBloccaIlModuloEModificaLoSblocca();
};

void TestProduttoriRecord::laBancaDatiAggiungeLaRigaDelTipoEToglieSoggettiConLei() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    ambiente.IstitutoConCodice();
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
        QCOMPARE(ambiente.Righe(g.tabella, id), 1);
        QCOMPARE(ambiente.Di(g.tabella, g.nome, id).toString(), QStringLiteral("Rossi"));
        QCOMPARE(ambiente.Di(g.tabella, "ISAD_Nazione", id).toString(), QStringLiteral("IT"));
        QCOMPARE(ambiente.Di(g.tabella, "ISAD_Codice", id).toString(), QStringLiteral("SAS123"));
        QCOMPARE(ambiente.Di(g.tabella, "ISAD_Sigla", id).toString(), QStringLiteral("FI"));
        // Only the kind's own table has the producer.
        for (const Genere& altro : Generi) {
            if (&altro != &g)
                QCOMPARE(ambiente.Righe(altro.tabella, id), 0);
        }
        // The kind's row deleted takes Soggetti with it, and the other way round.
        ambiente.Cnn().Esegui(
            QStringLiteral("DELETE FROM %1 WHERE ID_Soggetto = ?").arg(QLatin1String(g.tabella)),
            {Id(id)});
        QCOMPARE(ambiente.Righe("Soggetti", id), 0);
        const long secondo = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Bianchi"));
        ambiente.Cnn().Esegui(QStringLiteral("DELETE FROM Soggetti WHERE ID_Soggetto = ?"),
                              {Id(secondo)});
        QCOMPARE(ambiente.Righe(g.tabella, secondo), 0);
    }
}

void TestProduttoriRecord::ogniCampoHaLaSuaEtichettaIlSuoLimiteEIlSuoMessaggio() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const QList<Campo>* campi[] = {&CampiPersona, &CampiFamiglia, &CampiEnte};
    const char* frame[] = {"Attività", "Esistenza", "Attività"};
    for (int k = 0; k < 3; ++k) {
        const std::unique_ptr<EditoreProduttore> editore = Pronto(Generi[k]);
        QCOMPARE(editore->objectName(),
                 QStringLiteral("uc%1").arg(k == 0   ? QStringLiteral("Persona")
                                            : k == 1 ? QStringLiteral("Famiglia")
                                                     : QStringLiteral("Ente")));
        for (const Campo& c : *campi[k]) {
            QVERIFY2(Etichetta(editore.get(), c.n) != nullptr, c.etichetta);
            QCOMPARE(Etichetta(editore.get(), c.n)->text(), QString::fromUtf8(c.etichetta));
            QWidget* casella = editore->findChild<QWidget*>(QStringLiteral("Text1(%1)").arg(c.n));
            QVERIFY(casella != nullptr);
            QCOMPARE(casella->property("Tag").toString(), QString::fromUtf8(c.tag));
            if (QLineEdit* riga = Riga(editore.get(), c.n))
                QCOMPARE(riga->maxLength(), c.iMax);
            else
                QCOMPARE(Blocco(editore.get(), c.n)->property("MaxLength").toInt(), c.iMax);
        }
        QCOMPARE(editore->findChild<QGroupBox*>(QStringLiteral("Frame1"))->title(),
                 QString::fromUtf8(frame[k]));
        QCOMPARE(editore->findChild<QCheckBox*>(QStringLiteral("chkPubblicato"))->text(),
                 QStringLiteral("Visibile sul web"));
        QCOMPARE(
            editore->findChild<QDateEdit*>(QStringLiteral("DTPData"))->property("Tag").toString(),
            QStringLiteral("Inserire la data di registrazione"));
        QCOMPARE(editore->findChild<QLabel*>(QStringLiteral("lbCodice"))->text(),
                 QStringLiteral("  -    -      "));
    }
    // The body's profile.
    ucEnte ente;
    QCOMPARE(Combo(&ente, "cmbProfili")->property("Tag").toString(),
             QStringLiteral("Specificare un profilo istituzionale"));
}

void TestProduttoriRecord::laTastieraPercorreIlModuloComeSiVedeEGliAnniStannoNelRiquadro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const QStringList catene[] = {
        {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "Text1(6)",
         "Text1(7)", "Text1(8)", "Text1(9)", "Text1(10)", "Text1(11)", "Text1(12)", "Text1(14)",
         "DTPData", "chkPubblicato"},
        {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "Text1(6)",
         "Text1(7)", "Text1(8)", "Text1(10)", "DTPData", "chkPubblicato"},
        {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "cmbProfili",
         "Text1(8)", "Text1(9)", "Text1(10)", "Text1(12)", "DTPData", "chkPubblicato"},
    };
    const QList<int> anni[] = {{7, 8}, {2, 3}, {2, 3}};
    for (int k = 0; k < 3; ++k) {
        const std::unique_ptr<EditoreProduttore> editore = Pronto(Generi[k]);
        const QStringList& catena = catene[k];
        for (qsizetype i = 1; i < catena.size(); ++i)
            QCOMPARE(DopoNelFuoco(editore.get(), catena.at(i - 1)), catena.at(i));
        auto* frame1 = editore->findChild<QGroupBox*>(QStringLiteral("Frame1"));
        for (int n : anni[k])
            QVERIFY(frame1->isAncestorOf(Riga(editore.get(), n)));
        QVERIFY(!frame1->isAncestorOf(Riga(editore.get(), 0)));
    }
}

void TestProduttoriRecord::iCampiObbligatoriSiChiedonoNellOrdineDelDisegno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    // Each message, and the box that answers it (-1: the profile).
    const QList<QPair<QString, int>> ordini[] = {
        {{QStringLiteral("Inserire redattore"), 14},
         {QStringLiteral("Inserire luogho e/o area geografica"), 6},
         {QStringLiteral("Inserire anno inizio"), 7},
         {QStringLiteral("Inserire estremi cronologici (testo)"), 9},
         {QStringLiteral("Inserire professione, titolo o qualifica"), 1},
         {QStringLiteral("Inserire nome e cognome"), 0}},
        {{QStringLiteral("Inserire redattore"), 10},
         {QStringLiteral("Inserire luogo e/o area geografica"), 5},
         {QStringLiteral("Inserire anno inizio"), 2},
         {QStringLiteral("Inserire estremi cronologici (testo)"), 4},
         {QStringLiteral("Inserire denominazione"), 0}},
        {{QStringLiteral("Inserire redattore"), 12},
         {QStringLiteral("Inserire sede"), 1},
         {QStringLiteral("Specificare un profilo istituzionale"), -1},
         {QStringLiteral("Inserire anno inizio"), 2},
         {QStringLiteral("Inserire estremi cronologici (testo)"), 4},
         {QStringLiteral("Inserire denominazione"), 0}},
    };
    for (int k = 0; k < 3; ++k) {
        const std::unique_ptr<EditoreProduttore> editore = Pronto(Generi[k]);
        editore->Nuovo();
        for (const auto& [sMessaggio, n] : ordini[k]) {
            ambiente.seam.Svuota();
            QVERIFY(!editore->CheckMandatoryFields());
            QCOMPARE(ambiente.seam.Messaggi().size(), 1);
            QCOMPARE(ambiente.seam.Messaggi().constFirst().sTesto, sMessaggio);
            QCOMPARE(ambiente.seam.Messaggi().constFirst().sTitolo, QStringLiteral("Attenzione"));
            if (n < 0)
                Combo(editore.get(), "cmbProfili")->setCurrentIndex(0);
            else
                Scrivi(editore.get(), n, QStringLiteral("1500"));
        }
        ambiente.seam.Svuota();
        QVERIFY(editore->CheckMandatoryFields());
        QVERIFY(ambiente.seam.Messaggi().isEmpty());
    }
}

void TestProduttoriRecord::unNomeLasciatoSegnapostoODiSpaziNonPassaIlControllo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucPersona> persona;
    persona.Nuovo();
    for (int n : {14, 6, 7, 9, 1})
        Scrivi(&persona, n, QStringLiteral("1500"));
    for (const QString& nome :
         {QStringLiteral("<<Inserire valore>>"), QStringLiteral("   "), QString()}) {
        ambiente.seam.Svuota();
        Scrivi(&persona, 0, nome);
        QVERIFY(!persona.CheckMandatoryFields());
        QCOMPARE(ambiente.seam.Messaggi().constFirst().sTesto,
                 QStringLiteral("Inserire nome e cognome"));
    }
    Scrivi(&persona, 0, QStringLiteral("Rossi Mario"));
    QVERIFY(persona.CheckMandatoryFields());
}

void TestProduttoriRecord::ogniCampoDellaPersonaFaIlGiroColonnaPerColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("P", QStringLiteral("Rossi"));
    EditorePronto<ucPersona> persona(id);
    persona.Modifica();
    const QMap<int, QString> scritti = RiempiTesti(&persona, CampiPersona, {2, 3, 7, 8});
    // The dates at their limits, a year of three digits.
    Scrivi(&persona, 2, QStringLiteral("01/01/1000"));
    Scrivi(&persona, 3, QStringLiteral("31/12/9999"));
    Scrivi(&persona, 7, QStringLiteral("999"));
    Scrivi(&persona, 8, QStringLiteral("9999"));
    persona.Salva(id);

    ControllaColonne(ambiente, "Persone", id, CampiPersona, scritti);
    QCOMPARE(ambiente.Di("Persone", "DataNascita", id).toLongLong(), 10000101LL);
    QCOMPARE(ambiente.Di("Persone", "DataMorte", id).toLongLong(), 99991231LL);
    QCOMPARE(ambiente.Di("Persone", "DataInizio", id).toLongLong(), 9990101LL);
    QCOMPARE(ambiente.Di("Persone", "DataFine", id).toLongLong(), 99991231LL);
    // The name reaches Soggetti through the database.
    QCOMPARE(ambiente.Di("Soggetti", "Denominazione", id).toString(), scritti.value(0));

    EditorePronto<ucPersona> riletta(id);
    for (auto it = scritti.cbegin(); it != scritti.cend(); ++it)
        QCOMPARE(Testo(&riletta, it.key()), it.value());
    QCOMPARE(Testo(&riletta, 2), QStringLiteral("01/01/1000"));
    QCOMPARE(Testo(&riletta, 3), QStringLiteral("31/12/9999"));
    QCOMPARE(Testo(&riletta, 7), QStringLiteral("999"));
    QCOMPARE(Testo(&riletta, 8), QStringLiteral("9999"));
    QCOMPARE(riletta.LeggiDenominazione(), scritti.value(0));

    // Emptied, every box is stored as Null, the name as an empty text.
    riletta.Modifica();
    for (const Campo& c : CampiPersona)
        Scrivi(&riletta, c.n, QString());
    riletta.Salva(id);
    for (const Campo& c : CampiPersona) {
        if (c.colonna == nullptr)
            QVERIFY(ambiente.Di("Soggetti", "Redattore", id).isNull());
        else if (c.n == 0)
            QCOMPARE(ambiente.Di("Persone", "Nome", id).toString(), QString());
        else
            QVERIFY2(ambiente.Di("Persone", c.colonna, id).isNull(), c.colonna);
    }
}

void TestProduttoriRecord::ogniCampoDellaFamigliaFaIlGiroColonnaPerColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("F", QStringLiteral("Medici"));
    // Persone is read by both statements and written by neither.
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Famiglie SET Persone = ? WHERE ID_Soggetto = ?"),
                          {QStringLiteral("Cosimo, Lorenzo"), Id(id)});
    EditorePronto<ucFamiglia> famiglia(id);
    famiglia.Modifica();
    const QMap<int, QString> scritti = RiempiTesti(&famiglia, CampiFamiglia, {2, 3});
    Scrivi(&famiglia, 2, QStringLiteral("1389"));
    Scrivi(&famiglia, 3, QStringLiteral("1743"));
    famiglia.Salva(id);

    ControllaColonne(ambiente, "Famiglie", id, CampiFamiglia, scritti);
    QCOMPARE(ambiente.Di("Famiglie", "DataInizio", id).toLongLong(), 13890101LL);
    QCOMPARE(ambiente.Di("Famiglie", "DataFine", id).toLongLong(), 17431231LL);
    QCOMPARE(ambiente.Di("Famiglie", "Persone", id).toString(), QStringLiteral("Cosimo, Lorenzo"));
    QCOMPARE(ambiente.Di("Soggetti", "Denominazione", id).toString(), scritti.value(0));

    EditorePronto<ucFamiglia> riletta(id);
    for (auto it = scritti.cbegin(); it != scritti.cend(); ++it)
        QCOMPARE(Testo(&riletta, it.key()), it.value());
    QCOMPARE(Testo(&riletta, 2), QStringLiteral("1389"));
    QCOMPARE(Testo(&riletta, 3), QStringLiteral("1743"));
}

void TestProduttoriRecord::ogniCampoDellEnteFaIlGiroColonnaPerColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("E", QStringLiteral("Comune"));
    ambiente.Cnn().Esegui(
        QStringLiteral("UPDATE Enti SET NaturaGiuridica = ? WHERE ID_Soggetto = ?"),
        {QStringLiteral("pubblica"), Id(id)});
    EditorePronto<ucEnte> ente(id);
    ente.Modifica();
    const QMap<int, QString> scritti = RiempiTesti(&ente, CampiEnte, {2, 3});
    Scrivi(&ente, 2, QStringLiteral("1115"));
    Scrivi(&ente, 3, QStringLiteral("1808"));
    QComboBox* cmbProfili = Combo(&ente, "cmbProfili");
    cmbProfili->setCurrentIndex(ente.CercaProfiloEnte(QStringLiteral("03")));
    QCOMPARE(cmbProfili->currentText(), QStringLiteral("Comune"));
    ente.Salva(id);

    ControllaColonne(ambiente, "Enti", id, CampiEnte, scritti);
    QCOMPARE(ambiente.Di("Enti", "DataInizio", id).toLongLong(), 11150101LL);
    QCOMPARE(ambiente.Di("Enti", "DataFine", id).toLongLong(), 18081231LL);
    QCOMPARE(ambiente.Di("Enti", "Profilo", id).toString(), QStringLiteral("03"));
    QCOMPARE(ambiente.Di("Enti", "NaturaGiuridica", id).toString(), QStringLiteral("pubblica"));
    QCOMPARE(ambiente.Di("Soggetti", "Denominazione", id).toString(), scritti.value(0));

    EditorePronto<ucEnte> riletto(id);
    for (auto it = scritti.cbegin(); it != scritti.cend(); ++it)
        QCOMPARE(Testo(&riletto, it.key()), it.value());
    QCOMPARE(Combo(&riletto, "cmbProfili")->currentText(), QStringLiteral("Comune"));

    // No profile chosen is stored as Null.
    riletto.Modifica();
    Combo(&riletto, "cmbProfili")->setCurrentIndex(-1);
    riletto.Salva(id);
    QVERIFY(ambiente.Di("Enti", "Profilo", id).isNull());
}

void TestProduttoriRecord::unAnnoDiTreCifreSiSalvaInSetteCifreESiRilegge() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Antico"));
        const std::unique_ptr<EditoreProduttore> editore = Pronto(g, id);
        const int inizio = QLatin1String(g.tipo) == QLatin1String("P") ? 7 : 2;
        editore->Modifica();
        Scrivi(editore.get(), inizio, QStringLiteral("850"));
        Scrivi(editore.get(), inizio + 1, QStringLiteral("999"));
        editore->Salva(id);
        QCOMPARE(ambiente.Di(g.tabella, "DataInizio", id).toLongLong(), 8500101LL);
        QCOMPARE(ambiente.Di(g.tabella, "DataFine", id).toLongLong(), 9991231LL);
        const std::unique_ptr<EditoreProduttore> riletto = Pronto(g, id);
        QCOMPARE(Testo(riletto.get(), inizio), QStringLiteral("850"));
        QCOMPARE(Testo(riletto.get(), inizio + 1), QStringLiteral("999"));
    }
}

void TestProduttoriRecord::leCodeDelleRigheDiElencoSiComponongonoDaiCampi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucPersona> persona;
    persona.Nuovo();
    QCOMPARE(persona.LeggiEstremi(), QString());
    Scrivi(&persona, 4, QStringLiteral("Roma"));
    QCOMPARE(persona.LeggiEstremi(), QStringLiteral(", (Roma)"));
    Scrivi(&persona, 4, QString());
    Scrivi(&persona, 3, QStringLiteral("01/01/1900"));
    QCOMPARE(persona.LeggiEstremi(), QStringLiteral(", ( - 01/01/1900)"));
    Scrivi(&persona, 4, QStringLiteral(" Roma "));
    Scrivi(&persona, 2, QStringLiteral("01/02/1850"));
    Scrivi(&persona, 5, QStringLiteral("Milano"));
    QCOMPARE(persona.LeggiEstremi(), QStringLiteral(", (Roma 01/02/1850 - Milano 01/01/1900)"));

    // A family's titles and a body's seat, each before its dates in words.
    EditorePronto<ucFamiglia> famiglia;
    EditorePronto<ucEnte> ente;
    for (EditoreProduttore* editore :
         {static_cast<EditoreProduttore*>(&famiglia), static_cast<EditoreProduttore*>(&ente)}) {
        editore->Nuovo();
        QCOMPARE(editore->LeggiEstremi(), QStringLiteral(",  ()"));
        Scrivi(editore, 1, QStringLiteral(" Siena "));
        Scrivi(editore, 4, QStringLiteral("(sec. XV-XVIII)"));
        QCOMPARE(editore->LeggiEstremi(), QStringLiteral(", Siena (sec. XV-XVIII)"));
        Scrivi(editore, 4, QStringLiteral("1400-1700"));
        QCOMPARE(editore->LeggiEstremi(), QStringLiteral(", Siena (1400-1700)"));
        Scrivi(editore, 4, QStringLiteral("1200-1800)"));
        QCOMPARE(editore->LeggiEstremi(), QStringLiteral(", Siena (1200-1800)"));
    }
}

void TestProduttoriRecord::leDateDellaPersonaNonSiLascianoSeNonSonoDate() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucPersona> persona;
    QVERIFY(Attiva(persona));
    persona.Nuovo();
    int iAttesi = 0;
    for (int n : {2, 3}) {
        QLineEdit* casella = Riga(&persona, n);
        for (const QString& errata :
             {QStringLiteral("31/02/1900"), QStringLiteral("1o/01/1900"), QStringLiteral("ieri")}) {
            RifiutatoAllUscita(ambiente.seam, casella, errata, Riga(&persona, 0),
                               QStringLiteral("Data errata"), iAttesi);
            QVERIFY2(!Riga(&persona, 0)->hasFocus(), qPrintable(errata));
        }
        for (const QString& giusta : {QStringLiteral("29/02/1904"), QString()})
            AccettatoAllUscita(ambiente.seam, casella, giusta, Riga(&persona, 0), iAttesi);
    }
}

void TestProduttoriRecord::unaDataCheNonEDataSiSalvaComeNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("P", QStringLiteral("Rossi"));
    EditorePronto<ucPersona> persona(id);
    persona.Modifica();
    Scrivi(&persona, 2, QStringLiteral("02/03/1850"));
    Scrivi(&persona, 3, QStringLiteral("04/05/1900"));
    persona.Salva(id);
    QCOMPARE(ambiente.Di("Persone", "DataNascita", id).toLongLong(), 18500302LL);
    QCOMPARE(ambiente.Di("Persone", "DataMorte", id).toLongLong(), 19000504LL);
    // Typed without leaving the box, a date that is none is stored as Null.
    persona.Modifica();
    Scrivi(&persona, 2, QStringLiteral("31/02/1900"));
    Scrivi(&persona, 3, QStringLiteral("1o/01/19oo"));
    persona.Salva(id);
    QVERIFY(ambiente.Di("Persone", "DataNascita", id).isNull());
    QVERIFY(ambiente.Di("Persone", "DataMorte", id).isNull());
}

void TestProduttoriRecord::gliAnniDiFamigliaEEnteAccettanoQualsiasiTesto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    EditorePronto<ucFamiglia> famiglia;
    QVERIFY(Attiva(famiglia));
    famiglia.Nuovo();
    for (int n : {2, 3}) {
        Riga(&famiglia, n)->setFocus();
        Riga(&famiglia, n)->setText(QStringLiteral("ab/c"));
        QTest::mouseClick(Riga(&famiglia, 0), Qt::LeftButton);
        QVERIFY(Riga(&famiglia, 0)->hasFocus());
    }
    QVERIFY(ambiente.seam.Messaggi().isEmpty());
}

void TestProduttoriRecord::iProfiliSiLeggonoDalFileConLaVirgola() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    ambiente.cartella.Scrivi(
        QStringLiteral("ProfiliEnti.txt"),
        "01,Stato preunitario\r\n03,Comune\r\n\"12\",\"Opera pia, ospedale\"\r\n7,Senza zero\r\n");
    EditorePronto<ucEnte> ente;
    QComboBox* cmb = Combo(&ente, "cmbProfili");
    QStringList voci;
    for (int i = 0; i < cmb->count(); ++i)
        voci << QStringLiteral("%1=%2").arg(cmb->itemData(i).toLongLong()).arg(cmb->itemText(i));
    QCOMPARE(voci, QStringList({QStringLiteral("1=Stato preunitario"), QStringLiteral("3=Comune"),
                                QStringLiteral("12=Opera pia, ospedale"),
                                QStringLiteral("7=Senza zero")}));
    QCOMPARE(cmb->currentIndex(), -1);
    QCOMPARE(ente.CercaProfiloEnte(QStringLiteral("12")), 2);
    QCOMPARE(ente.CercaProfiloEnte(QStringLiteral("07")), 3);
    QCOMPARE(ente.CercaProfiloEnte(QStringLiteral("99")), -1);
    // A second Init reads the file again without doubling the list.
    ente.Init();
    QCOMPARE(cmb->count(), 4);
}

void TestProduttoriRecord::unProfiloCheIlFileNonHaNonSiMostraEFermaIlSalvataggio() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("E", QStringLiteral("Ospedale"));
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Enti SET Profilo = ?, Sede = ?, DataInizio = ?, "
                                         "DescrizioneEstremi = ? WHERE ID_Soggetto = ?"),
                          {QStringLiteral("98"), QStringLiteral("Siena"), 12000101,
                           QStringLiteral("sec. XIII"), Id(id)});
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Soggetti SET Redattore = ? WHERE ID_Soggetto = ?"),
                          {QStringLiteral("Maria"), Id(id)});
    EditorePronto<ucEnte> ente;
    // A profile of the file chosen before, as the record last shown leaves it.
    Combo(&ente, "cmbProfili")->setCurrentIndex(0);
    ente.Mostra(id);
    QCOMPARE(Combo(&ente, "cmbProfili")->currentIndex(), -1);
    ente.Modifica();
    QVERIFY(!ente.CheckMandatoryFields());
    QCOMPARE(ambiente.seam.Messaggi().constFirst().sTesto,
             QStringLiteral("Specificare un profilo istituzionale"));
}

void TestProduttoriRecord::pulisciLasciaLaDataEIlProfiloEAzzeraIlCodice() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    ambiente.IstitutoConCodice();
    const long id = ambiente.NuovoSoggetto("E", QStringLiteral("Ospedale"));
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Enti SET Profilo = ? WHERE ID_Soggetto = ?"),
                          {QStringLiteral("03"), Id(id)});
    ambiente.Cnn().Esegui(QStringLiteral("UPDATE Soggetti SET Pubblicato = ?, DataRedazione = ? "
                                         "WHERE ID_Soggetto = ?"),
                          {QStringLiteral("S"), QDateTime(QDate(2001, 3, 4), QTime(0, 0)), Id(id)});
    EditorePronto<ucEnte> ente(id);
    auto* dtp = ente.findChild<QDateEdit*>(QStringLiteral("DTPData"));
    auto* chk = ente.findChild<QCheckBox*>(QStringLiteral("chkPubblicato"));
    auto* lbCodice = ente.findChild<QLabel*>(QStringLiteral("lbCodice"));
    QComboBox* cmb = Combo(&ente, "cmbProfili");
    QCOMPARE(dtp->date(), QDate(2001, 3, 4));
    QVERIFY(chk->isChecked());
    QCOMPARE(cmb->currentText(), QStringLiteral("Comune"));
    QVERIFY(lbCodice->text() != QStringLiteral("  -    -      "));
    ente.Pulisci();
    QCOMPARE(Testo(&ente, 0), QString());
    QVERIFY(!chk->isChecked());
    QCOMPARE(lbCodice->text(), QStringLiteral("  -    -      "));
    QCOMPARE(dtp->date(), QDate(2001, 3, 4));
    QCOMPARE(cmb->currentText(), QStringLiteral("Comune"));
    // A new body keeps the date of the record last shown, and no profile.
    ente.Mostra(id);
    ente.Nuovo();
    QCOMPARE(dtp->date(), QDate(2001, 3, 4));
    QCOMPARE(cmb->currentIndex(), -1);
    QVERIFY(Riga(&ente, 0)->isEnabled());
}

void TestProduttoriRecord::ilCodiceSiComponeDalSitoDalTipoEDallaChiave() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    ambiente.IstitutoConCodice();
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
        const long chiave = ambiente.Di(g.tabella, g.chiave, id).toLongLong();
        const std::unique_ptr<EditoreProduttore> editore = Pronto(g);
        QCOMPARE(editore->LeggiID(), 0L);
        editore->Mostra(id);
        QCOMPARE(editore->LeggiID(), chiave);
        QCOMPARE(editore->findChild<QLabel*>(QStringLiteral("lbCodice"))->text(),
                 QStringLiteral("IT-SAS123FI-%1%2").arg(QLatin1String(g.lettere)).arg(chiave));
        editore->Modifica();
        Scrivi(editore.get(), 0, QStringLiteral("Verdi"));
        editore->Salva(id);
        QCOMPARE(editore->LeggiID(), chiave);
    }
}

void TestProduttoriRecord::soloIComplessiCollegatiImpedisconoLaCancellazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
        const std::unique_ptr<EditoreProduttore> editore = Pronto(g, id);
        QVERIFY(editore->OkNuovo);
        QVERIFY(editore->OkModifica);
        QVERIFY(editore->OkAltreDenominazioni);
        QVERIFY(editore->OkCancella);
        QVERIFY(!editore->OkLinks);
        // A link to an inventory unit does not count.
        ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO DatiInventarialiSoggetti "
                                             "(ID_DatoInventariale, ID_Soggetto) VALUES (?, ?)"),
                              {Id(777), Id(id)});
        editore->Mostra(id);
        QVERIFY(editore->OkCancella);
        QVERIFY(!editore->OkLinks);
        // A link to a complesso does.
        ambiente.Cnn().Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti "
                                             "(ID_ComplessoDoc, ID_Soggetto) VALUES (?, ?)"),
                              {Id(888), Id(id)});
        editore->Mostra(id);
        QVERIFY(!editore->OkCancella);
        QVERIFY(editore->OkLinks);
        // Salva reads them again.
        ambiente.Cnn().Esegui(
            QStringLiteral("DELETE FROM ComplessiDocSoggetti WHERE ID_Soggetto = ?"), {Id(id)});
        editore->Modifica();
        editore->Salva(id);
        QVERIFY(editore->OkCancella);
        QVERIFY(!editore->OkLinks);
    }
}

void TestProduttoriRecord::leAltreDenominazioniSiContanoPerTipo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
        const long altro = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Neri"));
        const std::unique_ptr<EditoreProduttore> editore = Pronto(g, id);
        QVERIFY(!editore->AltreDenominazioni);
        // A name of another producer of the kind is not this one's.
        ambiente.Cnn().Esegui(
            QStringLiteral("INSERT INTO %1 (%2, AltraDenominazione) VALUES (?, ?)")
                .arg(QLatin1String(g.denominazioni), QLatin1String(g.chiave)),
            {ambiente.Di(g.tabella, g.chiave, altro), QStringLiteral("Nero")});
        editore->CheckDenominazioni(id);
        QVERIFY(!editore->AltreDenominazioni);
        ambiente.Cnn().Esegui(
            QStringLiteral("INSERT INTO %1 (%2, AltraDenominazione) VALUES (?, ?)")
                .arg(QLatin1String(g.denominazioni), QLatin1String(g.chiave)),
            {ambiente.Di(g.tabella, g.chiave, id), QStringLiteral("Rosso")});
        editore->CheckDenominazioni(id);
        QVERIFY(editore->AltreDenominazioni);
        editore->Mostra(altro);
        QVERIFY(editore->AltreDenominazioni);
    }
}

void TestProduttoriRecord::unProduttoreCheNonCeLasciaIlModuloVuotoEIPermessiSpenti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
        const std::unique_ptr<EditoreProduttore> editore = Pronto(g, id);
        QCOMPARE(Testo(editore.get(), 0), QStringLiteral("Rossi"));
        editore->Mostra(id + 1000);
        QCOMPARE(Testo(editore.get(), 0), QString());
        QCOMPARE(editore->LeggiID(), 0L);
        QVERIFY(editore->OkNuovo);
        QVERIFY(!editore->OkModifica);
        QVERIFY(!editore->OkCancella);
        QVERIFY(!editore->OkLinks);
        QVERIFY(!editore->OkAltreDenominazioni);
        QVERIFY(!editore->AltreDenominazioni);
        QVERIFY(!editore->findChild<QCheckBox*>(QStringLiteral("chkPubblicato"))->isChecked());
        QCOMPARE(editore->findChild<QLabel*>(QStringLiteral("lbCodice"))->text(),
                 QStringLiteral("  -    -      "));
    }
}

void TestProduttoriRecord::unProduttoreToltoDaUnAltraPostazioneNonSiScrive() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const Genere& g : Generi) {
        for (const char* tabellaTolta : {"Soggetti", g.tabella}) {
            const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
            const std::unique_ptr<EditoreProduttore> editore = Pronto(g, id);
            editore->Modifica();
            Scrivi(editore.get(), 0, QStringLiteral("Verdi"));
            // Another workstation deletes the producer meanwhile.
            ambiente.Cnn().Esegui(QStringLiteral("DELETE FROM %1 WHERE ID_Soggetto = ?")
                                      .arg(QLatin1String(tabellaTolta)),
                                  {Id(id)});
            editore->Salva(id);
            QCOMPARE(ambiente.Righe("Soggetti", id), 0);
            QCOMPARE(ambiente.Righe(g.tabella, id), 0);
            QCOMPARE(editore->LeggiID(), 0L);
            QVERIFY(!editore->OkModifica);
            QVERIFY(!editore->OkCancella);
            QVERIFY(ambiente.seam.Messaggi().isEmpty());
        }
    }
}

void TestProduttoriRecord::unAnnoCheNonENumeroNonScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("F", QStringLiteral("Medici"));
    EditorePronto<ucFamiglia> famiglia(id);
    famiglia.Modifica();
    Scrivi(&famiglia, 0, QStringLiteral("Strozzi"));
    Scrivi(&famiglia, 10, QStringLiteral("Maria"));
    famiglia.findChild<QCheckBox*>(QStringLiteral("chkPubblicato"))->setChecked(true);
    Scrivi(&famiglia, 2, QStringLiteral("ab"));
    QVERIFY_THROWS_EXCEPTION(Errore, famiglia.Salva(id));
    QCOMPARE(ambiente.Di("Famiglie", "Nome", id).toString(), QStringLiteral("Medici"));
    QVERIFY(ambiente.Di("Famiglie", "DataInizio", id).isNull());
    QVERIFY(ambiente.Di("Soggetti", "Redattore", id).isNull());
    QVERIFY(ambiente.Di("Soggetti", "Pubblicato", id).toString() != QStringLiteral("S"));
}

void TestProduttoriRecord::laPubblicazioneLaDataEIlRedattoreVannoInSoggetti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    for (const Genere& g : Generi) {
        const long id = ambiente.NuovoSoggetto(g.tipo, QStringLiteral("Rossi"));
        const std::unique_ptr<EditoreProduttore> editore = Pronto(g, id);
        auto* dtp = editore->findChild<QDateEdit*>(QStringLiteral("DTPData"));
        auto* chk = editore->findChild<QCheckBox*>(QStringLiteral("chkPubblicato"));
        // No date stored shows today.
        QCOMPARE(dtp->date(), QDate::currentDate());
        editore->Modifica();
        chk->setChecked(true);
        dtp->setDate(QDate(1999, 12, 31));
        const int redattore = g.tipo[0] == 'P' ? 14 : g.tipo[0] == 'F' ? 10 : 12;
        Scrivi(editore.get(), redattore, QStringLiteral("Anna D'Arco"));
        editore->Salva(id);
        QCOMPARE(ambiente.Di("Soggetti", "Pubblicato", id).toString(), QStringLiteral("S"));
        QCOMPARE(ambiente.Di("Soggetti", "Redattore", id).toString(),
                 QStringLiteral("Anna D'Arco"));
        QCOMPARE(ambiente.Di("Soggetti", "DataRedazione", id).toDateTime().date(),
                 QDate(1999, 12, 31));
        const std::unique_ptr<EditoreProduttore> riletto = Pronto(g, id);
        QCOMPARE(riletto->findChild<QDateEdit*>(QStringLiteral("DTPData"))->date(),
                 QDate(1999, 12, 31));
        QVERIFY(riletto->findChild<QCheckBox*>(QStringLiteral("chkPubblicato"))->isChecked());
        QCOMPARE(Testo(riletto.get(), redattore), QStringLiteral("Anna D'Arco"));
        riletto->Modifica();
        riletto->findChild<QCheckBox*>(QStringLiteral("chkPubblicato"))->setChecked(false);
        riletto->Salva(id);
        QCOMPARE(ambiente.Di("Soggetti", "Pubblicato", id).toString(), QStringLiteral("N"));
    }
}

void TestProduttoriRecord::mostraBloccaIlModuloEModificaLoSblocca() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const long id = ambiente.NuovoSoggetto("P", QStringLiteral("Rossi"));
    EditorePronto<ucPersona> persona;
    QVERIFY(!Riga(&persona, 0)->isEnabled());
    persona.Mostra(id);
    QVERIFY(!Riga(&persona, 0)->isEnabled());
    QVERIFY(Blocco(&persona, 10)->isReadOnly());
    QVERIFY(!persona.findChild<QDateEdit*>(QStringLiteral("DTPData"))->isEnabled());
    persona.Modifica();
    QVERIFY(Riga(&persona, 0)->isEnabled());
    QVERIFY(!Blocco(&persona, 10)->isReadOnly());
    QVERIFY(persona.findChild<QDateEdit*>(QStringLiteral("DTPData"))->isEnabled());
    persona.Annulla();
    QVERIFY(!Riga(&persona, 0)->isEnabled());
    persona.Modifica();
    persona.Salva(id);
    QVERIFY(!Riga(&persona, 0)->isEnabled());
}

QTEST_MAIN(TestProduttoriRecord)
#include "tst_produttori_record.moc"
