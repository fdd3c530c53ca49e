// The element store and the database's own duties, on SQLite and on PostgreSQL: detail rows,
// cascades, counters, full names, worth and carried-up figures, keys and codes.

#include "session/Errore.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

// A statement that fails says which one, and why, before the test stops on it.
QSqlQuery Esegui(const Connessione& cnn, const QString& sql,
                 std::initializer_list<QVariant> valori = {}) {
    try {
        return cnn.Esegui(sql, valori);
    } catch (const Errore& errore) {
        qWarning("%s\n  -> %s", qPrintable(sql), qPrintable(errore.descrizione()));
        throw;
    }
}

QVariant Valore(const Connessione& cnn, const QString& sql,
                std::initializer_list<QVariant> valori = {}) {
    QSqlQuery query = Esegui(cnn, sql, valori);
    if (!query.next()) {
        return QVariant();
    }
    const QVariant valore = query.value(0);
    return valore.isNull() ? QVariant() : valore;
}

int Conta(const Connessione& cnn, const QString& sql, std::initializer_list<QVariant> valori = {}) {
    return Valore(cnn, sql, valori).toInt();
}

long Crea(const Connessione& cnn, const char* tipo, const QString& nome, long padre = 0) {
    return ArchivioElementi::Crea(cnn, QLatin1String(tipo), nome, padre);
}

qlonglong L(long valore) {
    return static_cast<qlonglong>(valore);
}

// What a complesso declares of itself: its extent, its metres, and K-values that make its worth
// twice its extent.
void Dichiara(const Connessione& cnn, long id, double quantita, double metri) {
    Esegui(cnn,
           QStringLiteral("UPDATE ComplessiDoc SET Quantita = ?, MetriLineari = ?, "
                          "KConservazione = 2, KPeriodo = 1, KSupporto = 1, KRilevanza = 1, "
                          "KRarita = 1 WHERE ID_Elemento = ?"),
           {quantita, metri, L(id)});
}

void Date(const Connessione& cnn, long id, int inizio, int fine) {
    Esegui(cnn,
           QStringLiteral("UPDATE ComplessiDoc SET DataInizio = ?, DataFine = ? WHERE "
                          "ID_Elemento = ?"),
           {inizio, fine, L(id)});
}

// The figures carried up to a complesso, as "extent / metres / worth".
QString Riporti(const Connessione& cnn, long id) {
    QSqlQuery query = Esegui(cnn,
                             QStringLiteral("SELECT QuantitaFigli, MetriLineariFigli, ValoreFigli "
                                            "FROM ComplessiDoc WHERE ID_Elemento = ?"),
                             {L(id)});
    if (!query.next()) {
        return QStringLiteral("(nessuna riga)");
    }
    QStringList cifre;
    for (int i = 0; i < 3; ++i) {
        cifre << QString::number(query.value(i).toDouble(), 'g', 10);
    }
    return cifre.join(QStringLiteral(" / "));
}

// The dates carried up to a complesso, as "start - end".
QString DateRiportate(const Connessione& cnn, long id) {
    QSqlQuery query =
        Esegui(cnn,
               QStringLiteral(
                   "SELECT DataInizioFigli, DataFineFigli FROM ComplessiDoc WHERE ID_Elemento = ?"),
               {L(id)});
    if (!query.next()) {
        return QStringLiteral("(nessuna riga)");
    }
    const auto data = [&](int i) {
        return query.value(i).isNull() ? QStringLiteral("Null") : query.value(i).toString();
    };
    return data(0) + QStringLiteral(" - ") + data(1);
}

// A fresh database and its connection, for one row of a data-driven test.
struct Banca {
    explicit Banca(TipoBackend tipo)
        : banca(tipo)
        , cnn(banca.Apri()) {}
    BancaDatiProva banca;
    std::shared_ptr<Connessione> cnn;
};

// Runs a check of the carried-up figures, on the backend of the current row, against a fresh
// database holding an istituto and, under it, a fondo: the top of the trees whose figures are
// carried up.
template <typename Prova> void ConFondo(Prova prova) {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    const Banca b(backend);
    const long fondo =
        Crea(*b.cnn, "02", QStringLiteral("Fondo"), Crea(*b.cnn, "01", QStringLiteral("Istituto")));
    prova(*b.cnn, fondo);
}

// Under a fondo, a serie that declares its own figures with X1 under it, and a serie that declares
// nothing with Y1 under it.
struct DueSerie {
    long dichiarata;
    long x1;
    long muta;
    long y1;
};

DueSerie CreaDueSerie(const Connessione& cnn, long fondo) {
    DueSerie serie{};
    serie.dichiarata = Crea(cnn, "02", QStringLiteral("Serie con cifre"), fondo);
    serie.x1 = Crea(cnn, "02", QStringLiteral("X1"), serie.dichiarata);
    serie.muta = Crea(cnn, "02", QStringLiteral("Serie senza cifre"), fondo);
    serie.y1 = Crea(cnn, "02", QStringLiteral("Y1"), serie.muta);
    return serie;
}

} // namespace

class TestArchivio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ogniTabellaEColonnaDelloSchemaEPresente_data() { AggiungiBackend(); }
    void ogniTabellaEColonnaDelloSchemaEPresente();
    void ogniColonnaLettaDalleVisteEPresente_data() { AggiungiBackend(); }
    void ogniColonnaLettaDalleVisteEPresente();
    void inserireOgniTipoCreaLaRigaDiDettaglio_data() { AggiungiBackend(); }
    void inserireOgniTipoCreaLaRigaDiDettaglio();
    void ogniTipoPrendeUnNomeLungoQuantoLaSuaColonna_data() { AggiungiBackend(); }
    void ogniTipoPrendeUnNomeLungoQuantoLaSuaColonna();
    void unaPergamenaHaLeSueQuattroRigheEUnSigilloLaSuaTipologia_data() { AggiungiBackend(); }
    void unaPergamenaHaLeSueQuattroRigheEUnSigilloLaSuaTipologia();
    void unProduttoreHaLaRigaDelSuoTipoEIlNomeLoSegue_data() { AggiungiBackend(); }
    void unProduttoreHaLaRigaDelSuoTipoEIlNomeLoSegue();
    void laChiaveRestituitaEQuellaDiElementiAncheSeITriggerInserisconoAltrove_data() {
        AggiungiBackend();
    }
    void laChiaveRestituitaEQuellaDiElementiAncheSeITriggerInserisconoAltrove();
    void leChiaviStannoNellIntervalloDelSito_data() { AggiungiBackend(); }
    void leChiaviStannoNellIntervalloDelSito();
    void unIntervalloEsauritoRifiutaLInserimento_data() { AggiungiBackend(); }
    void unIntervalloEsauritoRifiutaLInserimento();
    void elementoSenzaPadreStaInCimaAllAlbero_data() { AggiungiBackend(); }
    void elementoSenzaPadreStaInCimaAllAlbero();
    void figliContaGliElementiSotto_data() { AggiungiBackend(); }
    void figliContaGliElementiSotto();
    void eliminareConFigliERifiutatoELasciaTuttoComEra_data() { AggiungiBackend(); }
    void eliminareConFigliERifiutatoELasciaTuttoComEra();
    void eliminareUnDettaglioRimuoveElementoLegamiERigheAppese_data() { AggiungiBackend(); }
    void eliminareUnDettaglioRimuoveElementoLegamiERigheAppese();
    void eliminareUnProduttoreRimuoveSoggettoAltriNomiELegami_data() { AggiungiBackend(); }
    void eliminareUnProduttoreRimuoveSoggettoAltriNomiELegami();
    void ilNomeDelDettaglioPassaAllElementoEAllaDenominazioneCompleta_data() { AggiungiBackend(); }
    void ilNomeDelDettaglioPassaAllElementoEAllaDenominazioneCompleta();
    void contatoriDiIstitutiEInventari_data() { AggiungiBackend(); }
    void contatoriDiIstitutiEInventari();
    void contatoriDeiLegamiTraComplessiEInventari_data() { AggiungiBackend(); }
    void contatoriDeiLegamiTraComplessiEInventari();
    void dueLegamiDellaStessaCoppiaNonSiAggiungono_data() { AggiungiBackend(); }
    void dueLegamiDellaStessaCoppiaNonSiAggiungono();
    void valoreERiportiSalgonoDiTreLivelli_data() { AggiungiBackend(); }
    void valoreERiportiSalgonoDiTreLivelli();
    void unFiglioCheDichiaraLeSueCifrePortaSoloQuelle_data() { AggiungiBackend(); }
    void unFiglioCheDichiaraLeSueCifrePortaSoloQuelle();
    void unFiglioSenzaCifreOConCifreAZeroPortaQuelleCheRiceve_data() { AggiungiBackend(); }
    void unFiglioSenzaCifreOConCifreAZeroPortaQuelleCheRiceve();
    void unaCatenaDiTreLivelliSenzaCifrePortaLeFoglieInCima_data() { AggiungiBackend(); }
    void unaCatenaDiTreLivelliSenzaCifrePortaLeFoglieInCima();
    void ilCambioDiUnNipoteSaleSoloAttraversoILivelliSenzaCifre_data() { AggiungiBackend(); }
    void ilCambioDiUnNipoteSaleSoloAttraversoILivelliSenzaCifre();
    void eliminareUnFiglioToglieLaSuaQuotaDaiRiporti_data() { AggiungiBackend(); }
    void eliminareUnFiglioToglieLaSuaQuotaDaiRiporti();
    void leDateRiportateAbbraccianoTuttoIlSottoalbero_data() { AggiungiBackend(); }
    void leDateRiportateAbbraccianoTuttoIlSottoalbero();
    void istitutoEInventarioPiuViciniEIsad_data() { AggiungiBackend(); }
    void istitutoEInventarioPiuViciniEIsad();
    void ilCodiceVieneDalSitoSeLaRigaNonNePorta_data() { AggiungiBackend(); }
    void ilCodiceVieneDalSitoSeLaRigaNonNePorta();
    void ilTitoloDelVersamentoEIlNomeDellElemento_data() { AggiungiBackend(); }
    void ilTitoloDelVersamentoEIlNomeDellElemento();
    void ordinamentoDelleUnitaENumericoONull_data() { AggiungiBackend(); }
    void ordinamentoDelleUnitaENumericoONull();
    void triggerSospesiNonFannoIlLoroDovereERiattivatiSi_data() { AggiungiBackend(); }
    void triggerSospesiNonFannoIlLoroDovereERiattivatiSi();
    void laSospensioneAnnullataTornaComEra_data() { AggiungiBackend(); }
    void laSospensioneAnnullataTornaComEra();
};

void TestArchivio::ogniTabellaEColonnaDelloSchemaEPresente() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    // The checklist of every table and column the program reads or writes.
    QFile elenco(QStringLiteral(TABELLION_SORGENTI "/tests/dati/colonne.txt"));
    QVERIFY(elenco.open(QIODevice::ReadOnly));
    int colonne = 0;
    while (!elenco.atEnd()) {
        const QString riga = QString::fromUtf8(elenco.readLine()).trimmed();
        if (riga.isEmpty() || riga.startsWith(u'#')) {
            continue;
        }
        const QStringList parti = riga.split(u'.');
        QCOMPARE(parti.size(), 2);
        try {
            Esegui(*b.cnn, QStringLiteral("SELECT %1 FROM %2 WHERE 1 = 0").arg(parti[1], parti[0]));
        } catch (const Errore& errore) {
            QFAIL(qPrintable(riga + QStringLiteral(": ") + errore.descrizione()));
        }
        ++colonne;
    }
    QVERIFY(colonne > 370);
}

void TestArchivio::ogniColonnaLettaDalleVisteEPresente() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const QList<QPair<QString, QString>> viste = {
        {QStringLiteral("AlberoGlobale"),
         QStringLiteral(
             "ELEM_ID_Elemento, ELEM_ID_ElementoPadre, ELEM_ID_Elementopadre, "
             "ELEM_Denominazione, ELEM_Tipologia, IST_Tipologia, CD_NumeroInventari, "
             "CD_Ordinamento, INV_ID_Inventario, INV_NumeroComplessi, INV_Denominazione")},
        {QStringLiteral("AlberoPergamene"),
         QStringLiteral("ELEM_ID_Elemento, ELEM_ID_ElementoPadre, ELEM_Denominazione, "
                        "ELEM_Tipologia, PG_ID_Inventario, SG_ID_Inventario")},
        {QStringLiteral("AlberoDatiInventariali"),
         QStringLiteral("ELEM_ID_Elemento, ELEM_ID_ElementoPadre, ELEM_Tipologia, "
                        "INV_ID_Inventario, INV_Denominazione, DATIINV_ID_Inventario, "
                        "DATIINV_Titolo, DATIINV_Ordinamento, PG_ID_Inventario, PG_segnatura, "
                        "SG_ID_Inventario, SG_Identificativo")},
        {QStringLiteral("V_ComplessiDocSoggetti"),
         QStringLiteral("CD_ID_Elemento, SOG_ID_Soggetto, SOG_DEnominazione, SOG_TipoSoggetto, "
                        "PRS_LuogoNascita, PRS_DataNascita, PRS_LuogoMorte, PRS_DataMorte, "
                        "FMG_Titoli, FMG_DescrizioneEstremi, EN_Sede, EN_DescrizioneEstremi")},
        {QStringLiteral("V_DatiInventarialiSoggetti"),
         QStringLiteral("DI_ID_Elemento, SOG_ID_Soggetto, SOG_DEnominazione, SOG_TipoSoggetto, "
                        "PRS_LuogoNascita, PRS_DataNascita, PRS_LuogoMorte, PRS_DataMorte, "
                        "FMG_Titoli, FMG_DescrizioneEstremi, EN_Sede, EN_DescrizioneEstremi")},
        {QStringLiteral("v_istituti"),
         QStringLiteral(
             "ELEM_ID_ElementoPadre, IST_ID_Istituto, IST_DEnominazione, IST_Tipologia")},
    };
    for (const auto& [vista, colonne] : viste) {
        try {
            Esegui(*b.cnn, QStringLiteral("SELECT %1 FROM %2 WHERE 1 = 0").arg(colonne, vista));
        } catch (const Errore& errore) {
            QFAIL(qPrintable(vista + QStringLiteral(": ") + errore.descrizione()));
        }
    }
    // Every column of the unit tree is prefixed: a join with Elementi may name Tipologia bare.
    QVERIFY(Esegui(*b.cnn, QStringLiteral("SELECT Tipologia FROM AlberoDatiInventariali AS T1 "
                                          "INNER JOIN ELEMENTI AS T2 ON T1.ELEM_ID_Elemento = "
                                          "T2.ID_Elemento WHERE 1 = 0"))
                .isActive());
}

void TestArchivio::inserireOgniTipoCreaLaRigaDiDettaglio() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Archivio di Stato di Siena"));
    const long complesso = Crea(*b.cnn, "02", QStringLiteral("Diplomatico"), istituto);
    const long inventario =
        Crea(*b.cnn, "03", QStringLiteral("Inventario del Diplomatico"), istituto);
    const long versamento = Crea(*b.cnn, "04", QStringLiteral("15/03/2024 - 12"), istituto);
    const long unita = Crea(*b.cnn, "07", QStringLiteral("Busta 1"), inventario);
    const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg. 1"), unita);
    const long sigillo = Crea(*b.cnn, "06", QStringLiteral("Sigillo 1"), pergamena);
    const struct {
        long id;
        const char* tabella;
        const char* nome;
    } attesi[] = {
        {istituto, "Istituti", "Denominazione"},    {complesso, "ComplessiDoc", "Denominazione"},
        {inventario, "Inventari", "Denominazione"}, {versamento, "Versamenti", "Titolo"},
        {unita, "DatiInventariali", "Titolo"},      {pergamena, "Pergamene", "Segnatura"},
        {sigillo, "Sigilli", "Identificativo"}};
    for (const auto& atteso : attesi) {
        const QString tabella = QLatin1String(atteso.tabella);
        QCOMPARE(Conta(*b.cnn,
                       QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ID_Elemento = ?").arg(tabella),
                       {L(atteso.id)}),
                 1);
        QCOMPARE(Valore(*b.cnn,
                        QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                            .arg(QLatin1String(atteso.nome), tabella),
                        {L(atteso.id)}),
                 Valore(*b.cnn,
                        QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                        {L(atteso.id)}));
    }
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Elementi")), 7);
}

void TestArchivio::ogniTipoPrendeUnNomeLungoQuantoLaSuaColonna() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    // Each kind's name as long as its own column allows, longer than the narrowest name column
    // of another kind (Pergamene.Segnatura, 64): the detail rows of the other kinds never
    // see it.
    const auto nome = [](int n) {
        QString testo;
        while (testo.size() < n) {
            testo += QStringLiteral("Carteggio dell'archivio \"Guinigi\", àèìòù ");
        }
        return testo.left(n);
    };
    const long istituto = Crea(*b.cnn, "01", nome(256));
    const long inventario = Crea(*b.cnn, "03", nome(256), istituto);
    const struct {
        long id;
        const char* tabella;
        const char* colonna;
        int lunghezza;
    } attesi[] = {
        {istituto, "Istituti", "Denominazione", 256},
        {Crea(*b.cnn, "02", nome(256), istituto), "ComplessiDoc", "Denominazione", 256},
        {inventario, "Inventari", "Denominazione", 256},
        {Crea(*b.cnn, "04", nome(512), istituto), "Versamenti", "Titolo", 512},
        {Crea(*b.cnn, "07", nome(128), inventario), "DatiInventariali", "Titolo", 128},
    };
    for (const auto& atteso : attesi) {
        QCOMPARE(Valore(*b.cnn,
                        QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                            .arg(QLatin1String(atteso.colonna), QLatin1String(atteso.tabella)),
                        {L(atteso.id)})
                     .toString(),
                 nome(atteso.lunghezza));
    }
}

void TestArchivio::unaPergamenaHaLeSueQuattroRigheEUnSigilloLaSuaTipologia() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Pergamene sciolte"));
    const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg. 7"), inventario);
    const long sigillo = Crea(*b.cnn, "06", QStringLiteral("Sigillo pendente"), inventario);
    const QVariant idPergamena =
        Valore(*b.cnn, QStringLiteral("SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = ?"),
               {L(pergamena)});
    for (const char* tabella : {"PGSupporti", "PGTraditio", "PGEleGrafici", "PGNoteStoriche"}) {
        QCOMPARE(Conta(*b.cnn,
                       QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ID_Pergamena = ?")
                           .arg(QLatin1String(tabella)),
                       {idPergamena}),
                 1);
    }
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT COUNT(*) FROM SGTipo WHERE ID_Sigillo = (SELECT "
                                  "ID_Sigillo FROM Sigilli WHERE ID_Elemento = ?)"),
                   {L(sigillo)}),
             1);
}

void TestArchivio::unProduttoreHaLaRigaDelSuoTipoEIlNomeLoSegue() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const struct {
        const char* tipo;
        const char* tabella;
        const char* nome;
    } tipi[] = {
        {"P", "Persone", "Nome"}, {"F", "Famiglie", "Nome"}, {"E", "Enti", "Denominazione"}};
    for (const auto& tipo : tipi) {
        const QString nome = QStringLiteral("Produttore ") + QLatin1String(tipo.tipo);
        const qint64 soggetto =
            b.cnn->Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                             {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                             {nome, QLatin1String(tipo.tipo)});
        const QString tabella = QLatin1String(tipo.tabella);
        QCOMPARE(Valore(*b.cnn,
                        QStringLiteral("SELECT %1 FROM %2 WHERE ID_Soggetto = ?")
                            .arg(QLatin1String(tipo.nome), tabella),
                        {soggetto})
                     .toString(),
                 nome);
        QCOMPARE(
            Valore(*b.cnn,
                   QStringLiteral("SELECT ISAD_Nazione FROM %1 WHERE ID_Soggetto = ?").arg(tabella),
                   {soggetto})
                .toString(),
            QStringLiteral("IT"));
        Esegui(*b.cnn,
               QStringLiteral("UPDATE %1 SET %2 = ? WHERE ID_Soggetto = ?")
                   .arg(tabella, QLatin1String(tipo.nome)),
               {QStringLiteral("Nuovo nome d'") + QLatin1String(tipo.tipo), soggetto});
        QCOMPARE(Valore(*b.cnn,
                        QStringLiteral("SELECT Denominazione FROM Soggetti WHERE ID_Soggetto = ?"),
                        {soggetto})
                     .toString(),
                 QStringLiteral("Nuovo nome d'") + QLatin1String(tipo.tipo));
    }
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Persone")), 1);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Famiglie")), 1);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Enti")), 1);
}

void TestArchivio::laChiaveRestituitaEQuellaDiElementiAncheSeITriggerInserisconoAltrove() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    // Make the detail keys run ahead of the element keys, so that a wrong read-back shows.
    for (int i = 0; i < 3; ++i) {
        Crea(*b.cnn, "03", QStringLiteral("Inventario %1").arg(i));
    }
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario finale"));
    for (int i = 0; i < 5; ++i) {
        const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg. %1").arg(i), inventario);
        QCOMPARE(Valore(*b.cnn,
                        QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                        {L(pergamena)})
                     .toString(),
                 QStringLiteral("Perg. %1").arg(i));
        QCOMPARE(
            Valore(*b.cnn, QStringLiteral("SELECT MAX(ID_Elemento) FROM Elementi")).toLongLong(),
            L(pergamena));
    }
}

void TestArchivio::leChiaviStannoNellIntervalloDelSito() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Esegui(*b.cnn, QStringLiteral("UPDATE Config SET ID_Start = 5000, ID_End = 5999"));
    // A row that came from another site, with a key above this site's range.
    Esegui(*b.cnn,
           QStringLiteral("INSERT INTO Elementi (ID_Elemento, Tipologia, Denominazione, Code) "
                          "VALUES (900000, '01', 'Istituto di un altro sito', 'ALTRO')"));
    b.cnn->backend().AllineaChiavi(b.cnn->Db(), QStringLiteral("Elementi"));
    const long primo = Crea(*b.cnn, "01", QStringLiteral("Primo"));
    const long secondo = Crea(*b.cnn, "02", QStringLiteral("Secondo"), primo);
    QCOMPARE(primo, 5000L);
    QCOMPARE(secondo, 5001L);
    for (const char* tabella : {"Istituti", "ComplessiDoc"}) {
        QSqlQuery chiavi =
            b.cnn->Esegui(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento IN (?, ?)")
                              .arg(QLatin1String(tabella) == QLatin1String("Istituti")
                                       ? QStringLiteral("ID_Istituto")
                                       : QStringLiteral("ID_ComplessoDoc"),
                                   QLatin1String(tabella)),
                          {L(primo), L(secondo)});
        while (chiavi.next()) {
            QVERIFY2(chiavi.value(0).toLongLong() >= 5000 && chiavi.value(0).toLongLong() <= 5999,
                     tabella);
        }
    }
}

void TestArchivio::unIntervalloEsauritoRifiutaLInserimento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Esegui(*b.cnn, QStringLiteral("UPDATE Config SET ID_Start = 10, ID_End = 11"));
    Crea(*b.cnn, "01", QStringLiteral("Uno"));
    Crea(*b.cnn, "01", QStringLiteral("Due"));
    QVERIFY_THROWS_EXCEPTION(Errore, Crea(*b.cnn, "01", QStringLiteral("Tre")));
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Elementi")), 2);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Istituti")), 2);
}

void TestArchivio::elementoSenzaPadreStaInCimaAllAlbero() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("In cima"), 0);
    QVERIFY(
        Valore(*b.cnn,
               QStringLiteral(
                   "SELECT ELEM_ID_ElementoPadre FROM AlberoGlobale WHERE ELEM_ID_Elemento = ?"),
               {L(istituto)})
            .isNull());
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Figli FROM Elementi WHERE ID_Elemento = ?"),
                    {L(istituto)})
                 .toInt(),
             0);
}

void TestArchivio::figliContaGliElementiSotto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long a = Crea(*b.cnn, "02", QStringLiteral("A"), istituto);
    Crea(*b.cnn, "02", QStringLiteral("B"), istituto);
    const long c = Crea(*b.cnn, "03", QStringLiteral("C"), istituto);
    const auto figli = [&](long id) {
        return Valore(*b.cnn, QStringLiteral("SELECT Figli FROM Elementi WHERE ID_Elemento = ?"),
                      {L(id)})
            .toInt();
    };
    QCOMPARE(figli(istituto), 3);
    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("03"), c);
    QCOMPARE(figli(istituto), 2);
    Crea(*b.cnn, "02", QStringLiteral("A1"), a);
    QCOMPARE(figli(a), 1);
    QCOMPARE(figli(istituto), 2);
}

void TestArchivio::eliminareConFigliERifiutatoELasciaTuttoComEra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long complesso = Crea(*b.cnn, "02", QStringLiteral("Fondo"), istituto);
    Crea(*b.cnn, "02", QStringLiteral("Serie"), complesso);
    try {
        ArchivioElementi::Elimina(*b.cnn, QStringLiteral("02"), complesso);
        QFAIL("a delete with children went through");
    } catch (const Errore& errore) {
        QVERIFY2(errore.descrizione().contains(QStringLiteral("ha ancora elementi figli")),
                 qPrintable(errore.descrizione()));
    }
    // Directly on Elementi, too.
    QVERIFY_THROWS_EXCEPTION(
        Errore, Esegui(*b.cnn, QStringLiteral("DELETE FROM Elementi WHERE ID_Elemento = ?"),
                       {L(istituto)}));
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Elementi")), 3);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM ComplessiDoc")), 2);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT Figli FROM Elementi WHERE ID_Elemento = ?"),
                   {L(istituto)}),
             1);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroComplessi FROM Istituti WHERE ID_Elemento = ?"),
                   {L(istituto)}),
             2);
}

void TestArchivio::eliminareUnDettaglioRimuoveElementoLegamiERigheAppese() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long complesso = Crea(*b.cnn, "02", QStringLiteral("Fondo"), istituto);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"), istituto);
    const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg. 1"), inventario);
    const long sigillo = Crea(*b.cnn, "06", QStringLiteral("Sigillo"), inventario);
    const QVariant idPergamena =
        Valore(*b.cnn, QStringLiteral("SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = ?"),
               {L(pergamena)});
    const QVariant idComplesso = Valore(
        *b.cnn, QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE ID_Elemento = ?"),
        {L(complesso)});
    Esegui(*b.cnn,
           QStringLiteral(
               "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')"),
           {L(complesso), L(inventario)});
    Esegui(*b.cnn,
           QStringLiteral(
               "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')"),
           {L(complesso), L(pergamena)});
    Esegui(*b.cnn,
           QStringLiteral(
               "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')"),
           {L(sigillo), L(pergamena)});
    b.cnn->Inserisci(QStringLiteral("PGNotazioni"), QStringLiteral("ID_PgNotazione"),
                     {QStringLiteral("ID_Pergamena"), QStringLiteral("Posizione")},
                     {idPergamena, QStringLiteral("recto")});
    b.cnn->Inserisci(QStringLiteral("PGAltreSegnature"), QStringLiteral("ID_PGAltraSegnatura"),
                     {QStringLiteral("ID_Pergamena"), QStringLiteral("Segnatura")},
                     {idPergamena, QStringLiteral("Perg. A")});
    const qint64 toponimo =
        b.cnn->Inserisci(QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"),
                         {QStringLiteral("Denominazione")}, {QStringLiteral("Siena")});
    Esegui(*b.cnn,
           QStringLiteral("INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo) VALUES (?, ?)"),
           {idPergamena, toponimo});
    b.cnn->Inserisci(QStringLiteral("ComplessiDocDenominazioni"),
                     QStringLiteral("ID_Denominazione"),
                     {QStringLiteral("ID_ComplessoDoc"), QStringLiteral("AltraDenominazione")},
                     {idComplesso, QStringLiteral("Fondo antico")});

    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("05"), pergamena);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Elementi WHERE ID_Elemento = ?"),
                   {L(pergamena)}),
             0);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_ElementoLink = ?"),
                   {L(pergamena)}),
             0);
    for (const char* tabella : {"PGSupporti", "PGTraditio", "PGEleGrafici", "PGNoteStoriche",
                                "PGNotazioni", "PGAltreSegnature", "PGToponimi"}) {
        QCOMPARE(Conta(*b.cnn,
                       QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ID_Pergamena = ?")
                           .arg(QLatin1String(tabella)),
                       {idPergamena}),
                 0);
    }
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Toponimi")), 1);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroPergamene FROM Inventari WHERE ID_Elemento = ?"),
                   {L(inventario)}),
             0);

    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("02"), complesso);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM ComplessiDocDenominazioni")), 0);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Links")), 0);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroComplessi FROM Inventari WHERE ID_Elemento = ?"),
                   {L(inventario)}),
             0);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroComplessi FROM Istituti WHERE ID_Elemento = ?"),
                   {L(istituto)}),
             0);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT Figli FROM Elementi WHERE ID_Elemento = ?"),
                   {L(istituto)}),
             1);

    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("06"), sigillo);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM SGTipo")), 0);
    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("03"), inventario);
    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("01"), istituto);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Elementi")), 0);
}

void TestArchivio::eliminareUnProduttoreRimuoveSoggettoAltriNomiELegami() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long complesso = Crea(*b.cnn, "02", QStringLiteral("Fondo"));
    const QVariant idComplesso = Valore(
        *b.cnn, QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE ID_Elemento = ?"),
        {L(complesso)});
    const qint64 soggetto =
        b.cnn->Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                         {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                         {QStringLiteral("Monastero di San Salvatore"), QStringLiteral("E")});
    const QVariant idEnte = Valore(
        *b.cnn, QStringLiteral("SELECT ID_Ente FROM Enti WHERE ID_Soggetto = ?"), {soggetto});
    b.cnn->Inserisci(QStringLiteral("EntiDenominazioni"), QStringLiteral("ID_Denominazione"),
                     {QStringLiteral("ID_Ente"), QStringLiteral("AltraDenominazione")},
                     {idEnte, QStringLiteral("Badia")});
    Esegui(*b.cnn,
           QStringLiteral(
               "INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto) VALUES (?, ?)"),
           {idComplesso, soggetto});
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral(
                       "SELECT COUNT(*) FROM V_ComplessiDocSoggetti WHERE CD_ID_Elemento = ?"),
                   {L(complesso)}),
             1);
    Esegui(*b.cnn, QStringLiteral("DELETE FROM Enti WHERE ID_Ente = ?"), {idEnte});
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Soggetti")), 0);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM EntiDenominazioni")), 0);
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM ComplessiDocSoggetti")), 0);
}

void TestArchivio::ilNomeDelDettaglioPassaAllElementoEAllaDenominazioneCompleta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Archivio di Stato"));
    const long fondo = Crea(*b.cnn, "02", QStringLiteral("Fondo"), istituto);
    const long serie = Crea(*b.cnn, "02", QStringLiteral("Serie"), fondo);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"), istituto);
    const auto completa = [&](const char* tabella, long id) {
        return Valore(*b.cnn,
                      QStringLiteral("SELECT DenomCompleta FROM %1 WHERE ID_Elemento = ?")
                          .arg(QLatin1String(tabella)),
                      {L(id)})
            .toString();
    };
    QCOMPARE(completa("ComplessiDoc", serie), QStringLiteral("Archivio di Stato > Fondo > Serie"));
    QCOMPARE(completa("Inventari", inventario), QStringLiteral("Archivio di Stato > Inventario"));
    Esegui(*b.cnn, QStringLiteral("UPDATE Istituti SET Denominazione = ? WHERE ID_Elemento = ?"),
           {QStringLiteral("Archivio di Stato di Forlì"), L(istituto)});
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT Denominazione FROM Elementi WHERE ID_Elemento = ?"),
                    {L(istituto)})
                 .toString(),
             QStringLiteral("Archivio di Stato di Forlì"));
    QCOMPARE(completa("Istituti", istituto), QStringLiteral("Archivio di Stato di Forlì"));
    QCOMPARE(completa("ComplessiDoc", serie),
             QStringLiteral("Archivio di Stato di Forlì > Fondo > Serie"));
    QCOMPARE(completa("Inventari", inventario),
             QStringLiteral("Archivio di Stato di Forlì > Inventario"));
    Esegui(*b.cnn,
           QStringLiteral("UPDATE ComplessiDoc SET Denominazione = ? WHERE ID_Elemento = ?"),
           {QStringLiteral("Fondo \"Notarile\""), L(fondo)});
    QCOMPARE(completa("ComplessiDoc", serie),
             QStringLiteral("Archivio di Stato di Forlì > Fondo \"Notarile\" > Serie"));
}

void TestArchivio::contatoriDiIstitutiEInventari() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long fondo = Crea(*b.cnn, "02", QStringLiteral("Fondo"), istituto);
    Crea(*b.cnn, "02", QStringLiteral("Serie"), fondo);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"), istituto);
    const long unita = Crea(*b.cnn, "07", QStringLiteral("Busta"), inventario);
    Crea(*b.cnn, "07", QStringLiteral("Fascicolo"), unita);
    const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg."), unita);
    Crea(*b.cnn, "06", QStringLiteral("Sigillo"), pergamena);
    const auto numero = [&](const char* colonna, const char* tabella, long id) {
        return Conta(*b.cnn,
                     QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                         .arg(QLatin1String(colonna), QLatin1String(tabella)),
                     {L(id)});
    };
    QCOMPARE(numero("NumeroComplessi", "Istituti", istituto), 2);
    QCOMPARE(numero("NumeroInventari", "Istituti", istituto), 1);
    QCOMPARE(numero("NumeroDatiInventariali", "Inventari", inventario), 2);
    QCOMPARE(numero("NumeroPergamene", "Inventari", inventario), 1);
    QCOMPARE(numero("NumeroSigilli", "Inventari", inventario), 1);
    QCOMPARE(numero("NumeroComplessi", "Inventari", inventario), 0);
}

void TestArchivio::contatoriDeiLegamiTraComplessiEInventari() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long a = Crea(*b.cnn, "02", QStringLiteral("A"), istituto);
    const long c = Crea(*b.cnn, "02", QStringLiteral("C"), istituto);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"), istituto);
    const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg."), inventario);
    const auto lega = [&](long da, long a_) {
        Esegui(*b.cnn,
               QStringLiteral(
                   "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')"),
               {L(da), L(a_)});
    };
    lega(a, inventario);
    lega(c, inventario);
    lega(a, pergamena); // a complesso tied to a parchment is not a finding aid
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral(
                       "SELECT CD_NumeroInventari FROM AlberoGlobale WHERE ELEM_ID_Elemento = ?"),
                   {L(a)}),
             1);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral(
                       "SELECT INV_NumeroComplessi FROM AlberoGlobale WHERE ELEM_ID_Elemento = ?"),
                   {L(inventario)}),
             2);
    Esegui(*b.cnn,
           QStringLiteral("DELETE FROM Links WHERE ID_Elemento = ? AND ID_ElementoLink = ?"),
           {L(c), L(inventario)});
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroComplessi FROM Inventari WHERE ID_Elemento = ?"),
                   {L(inventario)}),
             1);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroInventari FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {L(c)}),
             0);
}

void TestArchivio::dueLegamiDellaStessaCoppiaNonSiAggiungono() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long a = Crea(*b.cnn, "02", QStringLiteral("A"));
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"));
    const QString lega = QStringLiteral(
        "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')");
    b.cnn->Esegui(lega, {L(a), L(inventario)});
    QVERIFY_THROWS_EXCEPTION(Errore, b.cnn->Esegui(lega, {L(a), L(inventario)}));
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Links")), 1);
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT NumeroInventari FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {L(a)}),
             1);
}

void TestArchivio::valoreERiportiSalgonoDiTreLivelli() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long fondo = Crea(*b.cnn, "02", QStringLiteral("Fondo"), istituto);
    const long serie = Crea(*b.cnn, "02", QStringLiteral("Serie"), fondo);
    const long sottoserie = Crea(*b.cnn, "02", QStringLiteral("Sottoserie"), serie);
    const long fascicoli = Crea(*b.cnn, "02", QStringLiteral("Fascicoli"), sottoserie);
    const QString aggiorna = QStringLiteral(
        "UPDATE ComplessiDoc SET Quantita = ?, MetriLineari = ?, KConservazione = ?, KPeriodo = ?, "
        "KSupporto = ?, KRilevanza = ?, KRarita = ?, DataInizio = ?, DataFine = ? WHERE "
        "ID_Elemento = ?");
    b.cnn->Esegui(aggiorna, {10.0, 2.5, 1.5, 2.0, 1.0, 1.0, 2.0, 14500101, 14991231, L(fascicoli)});
    b.cnn->Esegui(aggiorna, {4.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 13000101, 14001231, L(serie)});
    const auto figura = [&](const char* colonna, long id) {
        return Valore(*b.cnn,
                      QStringLiteral("SELECT %1 FROM ComplessiDoc WHERE ID_Elemento = ?")
                          .arg(QLatin1String(colonna)),
                      {L(id)})
            .toDouble();
    };
    QCOMPARE(figura("Valore", fascicoli), 60.0);
    QCOMPARE(figura("Valore", serie), 4.0);
    // The sottoserie declares nothing and passes the fascicoli's figures on; the serie declares
    // its own, and the fondo counts those. The dates span the whole subtree.
    QCOMPARE(figura("QuantitaFigli", sottoserie), 10.0);
    QCOMPARE(figura("QuantitaFigli", serie), 10.0);
    QCOMPARE(figura("MetriLineariFigli", serie), 2.5);
    QCOMPARE(figura("ValoreFigli", serie), 60.0);
    QCOMPARE(figura("QuantitaFigli", fondo), 4.0);
    QCOMPARE(figura("MetriLineariFigli", fondo), 1.0);
    QCOMPARE(figura("ValoreFigli", fondo), 4.0);
    QCOMPARE(figura("DataInizioFigli", fondo), 13000101.0);
    QCOMPARE(figura("DataFineFigli", fondo), 14991231.0);
    QCOMPARE(figura("DataInizioFigli", serie), 14500101.0);

    // An update deep down moves the figures up to the serie, and the dates three levels up.
    Esegui(*b.cnn,
           QStringLiteral(
               "UPDATE ComplessiDoc SET Quantita = 20, DataFine = 15501231 WHERE ID_Elemento = ?"),
           {L(fascicoli)});
    QCOMPARE(figura("Valore", fascicoli), 120.0);
    QCOMPARE(figura("QuantitaFigli", serie), 20.0);
    QCOMPARE(figura("ValoreFigli", serie), 120.0);
    QCOMPARE(figura("QuantitaFigli", fondo), 4.0);
    QCOMPARE(figura("ValoreFigli", fondo), 4.0);
    QCOMPARE(figura("DataFineFigli", fondo), 15501231.0);

    // A new complesso with its figures, then deletes.
    const long nuovo = Crea(*b.cnn, "02", QStringLiteral("Nuovo"), sottoserie);
    b.cnn->Esegui(aggiorna, {5.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 12000101, 12001231, L(nuovo)});
    QCOMPARE(figura("QuantitaFigli", serie), 25.0);
    QCOMPARE(figura("QuantitaFigli", fondo), 4.0);
    QCOMPARE(figura("DataInizioFigli", fondo), 12000101.0);
    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("02"), nuovo);
    QCOMPARE(figura("QuantitaFigli", serie), 20.0);
    QCOMPARE(figura("DataInizioFigli", fondo), 13000101.0);
    ArchivioElementi::Elimina(*b.cnn, QStringLiteral("02"), fascicoli);
    QCOMPARE(figura("QuantitaFigli", sottoserie), 0.0);
    QCOMPARE(figura("QuantitaFigli", serie), 0.0);
    QCOMPARE(figura("QuantitaFigli", fondo), 4.0);
    QCOMPARE(figura("ValoreFigli", fondo), 4.0);
    QCOMPARE(figura("DataFineFigli", fondo), 14001231.0);
    QVERIFY(Valore(*b.cnn,
                   QStringLiteral("SELECT DataInizioFigli FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {L(sottoserie)})
                .isNull());
}

void TestArchivio::unFiglioCheDichiaraLeSueCifrePortaSoloQuelle() {
    ConFondo([](const Connessione& cnn, long fondo) {
        const long serieA = Crea(cnn, "02", QStringLiteral("Serie A"), fondo);
        const long a1 = Crea(cnn, "02", QStringLiteral("Sottoserie A1"), serieA);
        const long a2 = Crea(cnn, "02", QStringLiteral("Sottoserie A2"), serieA);
        const long serieB = Crea(cnn, "02", QStringLiteral("Serie B"), fondo);
        const long b1 = Crea(cnn, "02", QStringLiteral("Sottoserie B1"), serieB);
        // Each level declares its total, as archivists do: the fondo 100 pieces, its serie 60 and
        // 35, which hold 25 + 30 and 35.
        Dichiara(cnn, fondo, 100, 10);
        Dichiara(cnn, serieA, 60, 6);
        Dichiara(cnn, a1, 25, 2.5);
        Dichiara(cnn, a2, 30, 3);
        Dichiara(cnn, serieB, 35, 3.5);
        Dichiara(cnn, b1, 35, 3.5);
        QCOMPARE(Riporti(cnn, serieA), QStringLiteral("55 / 5.5 / 110"));
        QCOMPARE(Riporti(cnn, serieB), QStringLiteral("35 / 3.5 / 70"));
        // The fondo is compared with what its serie declare, never with their sub-levels on top.
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("95 / 9.5 / 190"));

        // A serie that declares more than its sub-levels hold still brings its own figure.
        Dichiara(cnn, a2, 20, 2);
        QCOMPARE(Riporti(cnn, serieA), QStringLiteral("45 / 4.5 / 90"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("95 / 9.5 / 190"));
        Dichiara(cnn, serieA, 62, 6.5);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("97 / 10 / 194"));
    });
}

void TestArchivio::unFiglioSenzaCifreOConCifreAZeroPortaQuelleCheRiceve() {
    ConFondo([](const Connessione& cnn, long fondo) {
        // A serie that says nothing (Null), one that says 0, one with its own figures.
        const long vuota = Crea(cnn, "02", QStringLiteral("Serie senza cifre"), fondo);
        const long v1 = Crea(cnn, "02", QStringLiteral("V1"), vuota);
        const long v2 = Crea(cnn, "02", QStringLiteral("V2"), vuota);
        const long zero = Crea(cnn, "02", QStringLiteral("Serie a zero"), fondo);
        const long z1 = Crea(cnn, "02", QStringLiteral("Z1"), zero);
        const long propria = Crea(cnn, "02", QStringLiteral("Serie con cifre"), fondo);
        Dichiara(cnn, v1, 10, 1);
        Dichiara(cnn, v2, 15, 1.5);
        Dichiara(cnn, zero, 0, 0);
        Dichiara(cnn, z1, 7, 0.75);
        Dichiara(cnn, propria, 4, 0.5);
        Esegui(cnn,
               QStringLiteral("UPDATE ComplessiDoc SET Quantita = NULL, MetriLineari = NULL WHERE "
                              "ID_Elemento = ?"),
               {L(vuota)});
        QCOMPARE(Riporti(cnn, vuota), QStringLiteral("25 / 2.5 / 50"));
        QCOMPARE(Riporti(cnn, zero), QStringLiteral("7 / 0.75 / 14"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("36 / 3.75 / 72"));

        // Figures taken away again: Null and 0 pass the carried-up ones on.
        Dichiara(cnn, propria, 0, 0);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("32 / 3.25 / 64"));
        Dichiara(cnn, zero, 9, 1);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("34 / 3.5 / 68"));
        Esegui(cnn,
               QStringLiteral("UPDATE ComplessiDoc SET Quantita = NULL, MetriLineari = NULL WHERE "
                              "ID_Elemento = ?"),
               {L(zero)});
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("32 / 3.25 / 64"));
        // A worth of 0 (no K-values) brings the worth carried up, with the serie's own extent.
        Esegui(cnn,
               QStringLiteral("UPDATE ComplessiDoc SET Quantita = 30, KConservazione = NULL WHERE "
                              "ID_Elemento = ?"),
               {L(vuota)});
        QCOMPARE(Riporti(cnn, vuota), QStringLiteral("25 / 2.5 / 50"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("37 / 3.25 / 64"));
    });
}

void TestArchivio::unaCatenaDiTreLivelliSenzaCifrePortaLeFoglieInCima() {
    ConFondo([](const Connessione& cnn, long fondo) {
        const long primo = Crea(cnn, "02", QStringLiteral("Primo"), fondo);
        const long secondo = Crea(cnn, "02", QStringLiteral("Secondo"), primo);
        const long terzo = Crea(cnn, "02", QStringLiteral("Terzo"), secondo);
        const long foglia1 = Crea(cnn, "02", QStringLiteral("Foglia 1"), terzo);
        const long foglia2 = Crea(cnn, "02", QStringLiteral("Foglia 2"), terzo);
        Dichiara(cnn, foglia1, 3, 0.25);
        Dichiara(cnn, foglia2, 4, 0.5);
        for (const long livello : {terzo, secondo, primo, fondo}) {
            QCOMPARE(Riporti(cnn, livello), QStringLiteral("7 / 0.75 / 14"));
        }
        Dichiara(cnn, foglia1, 5, 1);
        for (const long livello : {terzo, secondo, primo, fondo}) {
            QCOMPARE(Riporti(cnn, livello), QStringLiteral("9 / 1.5 / 18"));
        }
    });
}

void TestArchivio::ilCambioDiUnNipoteSaleSoloAttraversoILivelliSenzaCifre() {
    ConFondo([](const Connessione& cnn, long fondo) {
        const auto [dichiarata, x1, muta, y1] = CreaDueSerie(cnn, fondo);
        Dichiara(cnn, dichiarata, 50, 5);
        Dichiara(cnn, x1, 20, 2);
        Dichiara(cnn, y1, 30, 3);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("80 / 8 / 160"));

        // Under the serie that declares its figures, the change stops there.
        Dichiara(cnn, x1, 25, 2.5);
        QCOMPARE(Riporti(cnn, dichiarata), QStringLiteral("25 / 2.5 / 50"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("80 / 8 / 160"));
        // Under the one that declares nothing, it reaches the fondo.
        Dichiara(cnn, y1, 35, 3);
        QCOMPARE(Riporti(cnn, muta), QStringLiteral("35 / 3 / 70"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("85 / 8 / 170"));
        // The first serie's extent taken away: its carried-up extent and worth go up instead.
        Esegui(cnn, QStringLiteral("UPDATE ComplessiDoc SET Quantita = NULL WHERE ID_Elemento = ?"),
               {L(dichiarata)});
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("60 / 8 / 120"));
        Dichiara(cnn, dichiarata, 50, 5);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("85 / 8 / 170"));

        // A change that leaves a level's share of its parent as it was does not climb past it: the
        // fondo is not even derived again (a figure written into it by hand stays).
        Esegui(cnn,
               QStringLiteral("UPDATE ComplessiDoc SET QuantitaFigli = 999 WHERE ID_Elemento = ?"),
               {L(fondo)});
        Dichiara(cnn, x1, 27, 2.75);
        QCOMPARE(Riporti(cnn, dichiarata), QStringLiteral("27 / 2.75 / 54"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("999 / 8 / 170"));
        Dichiara(cnn, y1, 36, 3);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("86 / 8 / 172"));
    });
}

void TestArchivio::eliminareUnFiglioToglieLaSuaQuotaDaiRiporti() {
    ConFondo([](const Connessione& cnn, long fondo) {
        const auto [dichiarata, x1, muta, y1] = CreaDueSerie(cnn, fondo);
        const long y2 = Crea(cnn, "02", QStringLiteral("Y2"), muta);
        Dichiara(cnn, dichiarata, 40, 4);
        Dichiara(cnn, x1, 10, 1);
        Dichiara(cnn, y1, 5, 0.5);
        Dichiara(cnn, y2, 6, 0.75);
        Date(cnn, y2, 13000101, 13101231);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("51 / 5.25 / 102"));
        QCOMPARE(DateRiportate(cnn, fondo), QStringLiteral("13000101 - 13101231"));

        // The detail row deleted, as the windows do.
        ArchivioElementi::Elimina(cnn, QStringLiteral("02"), y1);
        QCOMPARE(Riporti(cnn, muta), QStringLiteral("6 / 0.75 / 12"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("46 / 4.75 / 92"));
        // The row of Elementi deleted: the detail goes with it, and so does its share.
        Esegui(cnn, QStringLiteral("DELETE FROM Elementi WHERE ID_Elemento = ?"), {L(y2)});
        QCOMPARE(Riporti(cnn, muta), QStringLiteral("0 / 0 / 0"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("40 / 4 / 80"));
        QCOMPARE(DateRiportate(cnn, fondo), QStringLiteral("Null - Null"));
        // Under a serie with its own figures the fondo keeps counting the serie's.
        ArchivioElementi::Elimina(cnn, QStringLiteral("02"), x1);
        QCOMPARE(Riporti(cnn, dichiarata), QStringLiteral("0 / 0 / 0"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("40 / 4 / 80"));
        ArchivioElementi::Elimina(cnn, QStringLiteral("02"), dichiarata);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("0 / 0 / 0"));
    });
}

void TestArchivio::leDateRiportateAbbraccianoTuttoIlSottoalbero() {
    ConFondo([](const Connessione& cnn, long fondo) {
        const long serie = Crea(cnn, "02", QStringLiteral("Serie"), fondo);
        const long sottoserie = Crea(cnn, "02", QStringLiteral("Sottoserie"), serie);
        const long fascicolo = Crea(cnn, "02", QStringLiteral("Fascicolo"), sottoserie);
        // Every level declares its figures and its dates; the fascicolo's dates lie outside them.
        Dichiara(cnn, serie, 10, 1);
        Date(cnn, serie, 14000101, 14501231);
        Dichiara(cnn, sottoserie, 8, 1);
        Date(cnn, sottoserie, 13800101, 14201231);
        Dichiara(cnn, fascicolo, 1, 0.25);
        Date(cnn, fascicolo, 15000101, 15101231);
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("10 / 1 / 20"));
        QCOMPARE(DateRiportate(cnn, sottoserie), QStringLiteral("15000101 - 15101231"));
        QCOMPARE(DateRiportate(cnn, serie), QStringLiteral("13800101 - 15101231"));
        QCOMPARE(DateRiportate(cnn, fondo), QStringLiteral("13800101 - 15101231"));

        // The fascicolo's dates move: they reach the fondo through levels that declare figures.
        Date(cnn, fascicolo, 13700101, 15601231);
        QCOMPARE(DateRiportate(cnn, fondo), QStringLiteral("13700101 - 15601231"));
        QCOMPARE(Riporti(cnn, fondo), QStringLiteral("10 / 1 / 20"));
        // Gone, the span closes on what is left.
        ArchivioElementi::Elimina(cnn, QStringLiteral("02"), fascicolo);
        QCOMPARE(DateRiportate(cnn, sottoserie), QStringLiteral("Null - Null"));
        QCOMPARE(DateRiportate(cnn, fondo), QStringLiteral("13800101 - 14501231"));
    });
}

void TestArchivio::istitutoEInventarioPiuViciniEIsad() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Archivio di Stato"));
    Esegui(*b.cnn,
           QStringLiteral("UPDATE Istituti SET ISAD_Codice = 'SAS123456', ISAD_Sigla = 'ASFI' "
                          "WHERE ID_Elemento = ?"),
           {L(istituto)});
    const long sede = Crea(*b.cnn, "01", QStringLiteral("Sezione"), istituto);
    const long fondo = Crea(*b.cnn, "02", QStringLiteral("Fondo"), sede);
    const long serie = Crea(*b.cnn, "02", QStringLiteral("Serie"), fondo);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"), istituto);
    const long versamento = Crea(*b.cnn, "04", QStringLiteral("01/02/2024 - 3"), istituto);
    const long unita = Crea(*b.cnn, "07", QStringLiteral("Busta"), inventario);
    const long fascicolo = Crea(*b.cnn, "07", QStringLiteral("Fascicolo"), unita);
    const long pergamena = Crea(*b.cnn, "05", QStringLiteral("Perg."), fascicolo);
    const long sigillo = Crea(*b.cnn, "06", QStringLiteral("Sigillo"), pergamena);
    const QVariant idSede =
        Valore(*b.cnn, QStringLiteral("SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = ?"),
               {L(sede)});
    const QVariant idIstituto =
        Valore(*b.cnn, QStringLiteral("SELECT ID_Istituto FROM Istituti WHERE ID_Elemento = ?"),
               {L(istituto)});
    const QVariant idInventario =
        Valore(*b.cnn, QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"),
               {L(inventario)});
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ID_Istituto FROM ComplessiDoc WHERE ID_Elemento = ?"),
                    {L(serie)}),
             idSede);
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ID_Istituto FROM Inventari WHERE ID_Elemento = ?"),
                    {L(inventario)}),
             idIstituto);
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ID_Istituto FROM Versamenti WHERE ID_Elemento = ?"),
                    {L(versamento)}),
             idIstituto);
    QCOMPARE(
        Valore(*b.cnn,
               QStringLiteral("SELECT ID_Inventario FROM DatiInventariali WHERE ID_Elemento = ?"),
               {L(fascicolo)}),
        idInventario);
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ID_Inventario FROM Pergamene WHERE ID_Elemento = ?"),
                    {L(pergamena)}),
             idInventario);
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ID_Inventario FROM Sigilli WHERE ID_Elemento = ?"),
                    {L(sigillo)}),
             idInventario);
    // The codes of the owning institute; the sezione has none of its own yet.
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ISAD_Nazione FROM ComplessiDoc WHERE ID_Elemento = ?"),
                    {L(serie)})
                 .toString(),
             QStringLiteral("IT"));
    Esegui(*b.cnn,
           QStringLiteral("UPDATE Istituti SET ISAD_Codice = 'SAS654321', ISAD_Sigla = 'SASPO' "
                          "WHERE ID_Elemento = ?"),
           {L(sede)});
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ISAD_Codice FROM ComplessiDoc WHERE ID_Elemento = ?"),
                    {L(serie)})
                 .toString(),
             QStringLiteral("SAS654321"));
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ISAD_Sigla FROM ComplessiDoc WHERE ID_Elemento = ?"),
                    {L(fondo)})
                 .toString(),
             QStringLiteral("SASPO"));
    // A producer takes the codes of the site's first top-level institute.
    const qint64 soggetto =
        b.cnn->Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                         {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                         {QStringLiteral("Medici"), QStringLiteral("F")});
    QCOMPARE(Valore(*b.cnn,
                    QStringLiteral("SELECT ISAD_Codice FROM Famiglie WHERE ID_Soggetto = ?"),
                    {soggetto})
                 .toString(),
             QStringLiteral("SAS123456"));
}

void TestArchivio::ilCodiceVieneDalSitoSeLaRigaNonNePorta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    Esegui(*b.cnn, QStringLiteral("UPDATE Config SET Code = 'ASFI'"));
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Code FROM Elementi WHERE ID_Elemento = ?"),
                    {L(istituto)})
                 .toString(),
             QStringLiteral("ASFI"));
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Code FROM Istituti WHERE ID_Elemento = ?"),
                    {L(istituto)})
                 .toString(),
             QStringLiteral("ASFI"));
    const qint64 toponimo =
        b.cnn->Inserisci(QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"),
                         {QStringLiteral("Denominazione")}, {QStringLiteral("Lucca")});
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Code FROM Toponimi WHERE ID_Toponimo = ?"),
                    {toponimo})
                 .toString(),
             QStringLiteral("ASFI"));
    // A row of another site keeps its code, and so does the detail the database makes for it.
    Esegui(*b.cnn, QStringLiteral("INSERT INTO Elementi (ID_Elemento, Tipologia, Denominazione, "
                                  "Code) VALUES (777777, '02', 'Fondo importato', 'ASLU')"));
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Code FROM Elementi WHERE ID_Elemento = 777777"))
                 .toString(),
             QStringLiteral("ASLU"));
    QCOMPARE(
        Valore(*b.cnn, QStringLiteral("SELECT Code FROM ComplessiDoc WHERE ID_Elemento = 777777"))
            .toString(),
        QStringLiteral("ASLU"));
}

void TestArchivio::ilTitoloDelVersamentoEIlNomeDellElemento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long istituto = Crea(*b.cnn, "01", QStringLiteral("Istituto"));
    const long versamento = Crea(*b.cnn, "04", QStringLiteral("15/03/2024 - 12"), istituto);
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Titolo FROM Versamenti WHERE ID_Elemento = ?"),
                    {L(versamento)})
                 .toString(),
             QStringLiteral("15/03/2024 - 12"));
    Esegui(*b.cnn,
           QStringLiteral(
               "UPDATE Elementi SET Denominazione = '16/03/2024 - 12' WHERE ID_Elemento = ?"),
           {L(versamento)});
    QCOMPARE(Valore(*b.cnn, QStringLiteral("SELECT Titolo FROM Versamenti WHERE ID_Elemento = ?"),
                    {L(versamento)})
                 .toString(),
             QStringLiteral("16/03/2024 - 12"));
}

void TestArchivio::ordinamentoDelleUnitaENumericoONull() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    const long inventario = Crea(*b.cnn, "03", QStringLiteral("Inventario"));
    const long uno = Crea(*b.cnn, "07", QStringLiteral("Uno"), inventario);
    const long due = Crea(*b.cnn, "07", QStringLiteral("Due"), inventario);
    const long tre = Crea(*b.cnn, "07", QStringLiteral("Tre"), inventario);
    Esegui(*b.cnn,
           QStringLiteral("UPDATE DatiInventariali SET Ordinamento = ? WHERE ID_Elemento = ?"),
           {QStringLiteral(" 12"), L(uno)});
    Esegui(*b.cnn,
           QStringLiteral("UPDATE DatiInventariali SET Ordinamento = ? WHERE ID_Elemento = ?"),
           {QStringLiteral("1b"), L(due)});
    const auto ordine = [&](long id) {
        return Valore(*b.cnn,
                      QStringLiteral("SELECT DATIINV_Ordinamento FROM AlberoDatiInventariali WHERE "
                                     "ELEM_ID_Elemento = ?"),
                      {L(id)});
    };
    QCOMPARE(ordine(uno).toInt(), 12);
    QVERIFY(ordine(due).isNull());
    QVERIFY(ordine(tre).isNull());
    QSqlQuery ordinate = Esegui(
        *b.cnn,
        QStringLiteral(
            "SELECT ELEM_ID_Elemento FROM AlberoDatiInventariali WHERE ELEM_Tipologia = '07' "
            "ORDER BY Coalesce(DATIINV_Ordinamento,0) DESC, ELEM_ID_Elemento"));
    QVERIFY(ordinate.next());
    QCOMPARE(ordinate.value(0).toLongLong(), L(uno));
}

void TestArchivio::triggerSospesiNonFannoIlLoroDovereERiattivatiSi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    QSqlDatabase db = b.cnn->Db();
    QVERIFY(db.transaction());
    b.cnn->backend().SospendiTrigger(db, QStringLiteral("Elementi"));
    Esegui(*b.cnn, QStringLiteral("INSERT INTO Elementi (ID_Elemento, Tipologia, Denominazione, "
                                  "Code) VALUES (4242, '02', 'Importato', 'ALTRO')"));
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM ComplessiDoc")), 0);
    b.cnn->backend().RiattivaTrigger(db, QStringLiteral("Elementi"));
    b.cnn->backend().AllineaChiavi(db, QStringLiteral("Elementi"));
    QVERIFY(db.commit());
    const long nuovo = Crea(*b.cnn, "02", QStringLiteral("Locale"));
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT COUNT(*) FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {L(nuovo)}),
             1);
    QVERIFY(nuovo != 4242);
}

void TestArchivio::laSospensioneAnnullataTornaComEra() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Banca b(backend);
    QSqlDatabase db = b.cnn->Db();
    QVERIFY(db.transaction());
    b.cnn->backend().SospendiTrigger(db, QStringLiteral("Elementi"));
    Esegui(*b.cnn, QStringLiteral("INSERT INTO Elementi (ID_Elemento, Tipologia, Denominazione) "
                                  "VALUES (4242, '02', 'Importato')"));
    QVERIFY(db.rollback());
    QCOMPARE(Conta(*b.cnn, QStringLiteral("SELECT COUNT(*) FROM Elementi")), 0);
    // The switch went back with the rows: the duties work again.
    const long nuovo = Crea(*b.cnn, "02", QStringLiteral("Locale"));
    QCOMPARE(Conta(*b.cnn,
                   QStringLiteral("SELECT COUNT(*) FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {L(nuovo)}),
             1);
}

QTEST_GUILESS_MAIN(TestArchivio)
#include "tst_archivio.moc"
