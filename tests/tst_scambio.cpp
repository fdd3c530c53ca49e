// tabellion-scambio, the exchange without windows: the tables done on the output, the
// messages on the error stream, each naming its table and its file; a non-zero result when a
// table fails, and 1, before anything is done, for wrong arguments, a site of the other kind or
// a site without identity. And two sites created by tabellion-sql --crea, as an administrator
// makes them, exchange every table both ways.

#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

struct Esito {
    int codice;
    QString uscita;
    QString errori;
};

// A program of the program folder, run in the given site folder.
Esito Avvia(const QString& sNome, const CartellaProva& cartella, const QStringList& argomenti,
            QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment()) {
    const QString programma = QStringLiteral(TABELLION_SITO "/") + sNome;
    if (!QFile::exists(programma))
        return {-1, QString(), sNome + QStringLiteral(" not built: ") + programma};
    QProcess processo;
    ambiente.insert(QStringLiteral("TABELLION_CARTELLA"), cartella.Percorso());
    processo.setProcessEnvironment(ambiente);
    processo.start(programma, argomenti);
    if (!processo.waitForFinished(240000))
        return {-1, QString(), QStringLiteral("did not finish")};
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            QString::fromUtf8(processo.readAllStandardOutput()),
            QString::fromUtf8(processo.readAllStandardError())};
}

Esito Esegui(const CartellaProva& cartella, const QStringList& argomenti,
             const QProcessEnvironment& ambiente = QProcessEnvironment::systemEnvironment()) {
    return Avvia(QStringLiteral("tabellion-scambio"), cartella, argomenti, ambiente);
}

QStringList Login(const BancaDatiProva& banca) {
    return {QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"), banca.Password(),
            QStringLiteral("-S"), banca.Server(), QStringLiteral("-d"), banca.Database()};
}

QByteArray Schema(const char* tabella) {
    return QByteArray("<s datafile=\"") + tabella +
           ".xml\" version=\"4\"><stru fieldcount=\"2\"><field type=\"3\" pk=\"1\">ID</field>"
           "<field type=\"202\" pk=\"0\">Nome</field></stru></s>";
}

QByteArray Dati(const char* tabella, const char* nome, const char* codice = "AB01") {
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"") + tabella +
           "\" version=\"4\" code=\"" + codice +
           "\">\r\n\t<record>\r\n\t\t<field id=\"1\" null=\"0\">7</field>\r\n\t\t<field "
           "id=\"2\" null=\"0\">" +
           nome + "</field>\r\n\t</record>\r\n</table>";
}

// The site of a test database takes a code of its own.
void DaiCodice(const BancaDatiProva& banca, const QString& sCodice) {
    banca.Apri()->Esegui(QStringLiteral("UPDATE Config SET Code = ?"), {sCodice});
}

// The tables Prima and Seconda, with the rows of another site and one of the site's own.
void CreaTabelle(const BancaDatiProva& banca) {
    auto connessione = banca.Apri();
    for (const char* tabella : {"Prima", "Seconda"}) {
        connessione->Esegui(QStringLiteral("CREATE TABLE %1 (ID INTEGER, Nome VARCHAR(50), Code "
                                           "VARCHAR(10))")
                                .arg(QLatin1String(tabella)));
        connessione->Esegui(QStringLiteral("INSERT INTO %1 (ID, Nome, Code) VALUES (1, 'Altro "
                                           "sito', 'AB01'), (2, 'Nostra', 'CD02')")
                                .arg(QLatin1String(tabella)));
    }
}

QStringList Righe(const BancaDatiProva& banca, const QString& sTabella) {
    const auto connessione = banca.Apri();
    QSqlQuery query = connessione->Esegui(
        QStringLiteral("SELECT ID, Nome, Code FROM %1 ORDER BY ID, Code").arg(sTabella));
    QStringList righe;
    while (query.next())
        righe.append(query.value(0).toString() + u'|' + query.value(1).toString() + u'|' +
                     query.value(2).toString());
    return righe;
}

// The exchange's folder with the schema and data files of Prima and Seconda.
void ScriviScambio(const CartellaProva& scambio, const char* codice = "AB01") {
    scambio.Scrivi(QStringLiteral("PrimaSch.xml"), Schema("Prima"));
    scambio.Scrivi(QStringLiteral("SecondaSch.xml"), Schema("Seconda"));
    scambio.Scrivi(QStringLiteral("Prima.xml"), Dati("Prima", "L'Aquila", codice));
    scambio.Scrivi(QStringLiteral("Seconda.xml"), Dati("Seconda", "Forlì", codice));
}

const QString SchemiDelSito = QStringLiteral(TABELLION_SORGENTI "/site/Schemi");

// The columns that travel for a table, from its schema file, and those of its key.
// A database with the site code CD02 and the exchanged tables, a site folder that opens it, and an
// exchange folder with the sender's files.
struct SitoConScambio {
    explicit SitoConScambio(TipoBackend tipo)
        : banca(tipo) {
        DaiCodice(banca, QStringLiteral("CD02"));
        CreaTabelle(banca);
        sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
        ScriviScambio(scambio);
    }
    BancaDatiProva banca;
    CartellaProva sito;
    CartellaProva scambio;
};

struct ColonneScambiate {
    QStringList colonne;
    QStringList chiave;
};

ColonneScambiate LeggiSchema(const QString& sTabella) {
    QFile file(SchemiDelSito + u'/' + sTabella + QStringLiteral("Sch.xml"));
    QDomDocument documento;
    ColonneScambiate schema;
    if (!file.open(QIODevice::ReadOnly) || !documento.setContent(&file))
        return schema;
    const QDomElement stru = documento.documentElement().firstChildElement(QStringLiteral("stru"));
    for (QDomElement campo = stru.firstChildElement(QStringLiteral("field")); !campo.isNull();
         campo = campo.nextSiblingElement(QStringLiteral("field"))) {
        schema.colonne.append(campo.text());
        if (campo.attribute(QStringLiteral("pk")) == QLatin1String("1"))
            schema.chiave.append(campo.text());
    }
    return schema;
}

QStringList TabelleDelSito() {
    QStringList tabelle;
    for (const QString& file : QDir(SchemiDelSito).entryList({QStringLiteral("*Sch.xml")}))
        tabelle.append(file.chopped(7));
    tabelle.sort();
    return tabelle;
}

// The tables a run did, one a line on its output, in the order of the names.
QStringList TabelleFatte(const Esito& esito) {
    QStringList tabelle = esito.uscita.split(u'\n', Qt::SkipEmptyParts);
    tabelle.sort();
    return tabelle;
}

// The rows of a site's code in a table, every column that travels, in the order of the key.
QStringList RigheDelCodice(const Connessione& cnn, const QString& sTabella,
                           const QString& sCodice) {
    const ColonneScambiate schema = LeggiSchema(sTabella);
    QSqlQuery query =
        cnn.Esegui(QStringLiteral("SELECT %1, Code FROM %2 WHERE Code = ? ORDER BY %3")
                       .arg(schema.colonne.join(QStringLiteral(", ")), sTabella,
                            schema.chiave.join(QStringLiteral(", "))),
                   {sCodice});
    QStringList righe;
    while (query.next()) {
        QStringList valori;
        for (int i = 0; i <= schema.colonne.size(); ++i)
            valori.append(query.value(i).isNull() ? QStringLiteral("NULL")
                                                  : query.value(i).toString());
        righe.append(valori.join(u'|'));
    }
    return righe;
}

int Conta(const Connessione& cnn, const QString& sTabella) {
    QSqlQuery query = cnn.Esegui(QStringLiteral("SELECT COUNT(*) FROM %1").arg(sTabella));
    return query.next() ? query.value(0).toInt() : -1;
}

// On PostgreSQL, the owner and the archivists' group that tabellion-sql --crea gives a site's
// database, named for this test; dropped at the end, once the databases are gone.
class RuoliDiProva {
public:
    explicit RuoliDiProva(const BancaDatiProva& bancaData)
        : banca(bancaData) {
        if (banca.Tipo() != TipoBackend::PostgreSQL)
            return;
        sProprietario = banca.Database() + QStringLiteral("_proprietario");
        sGruppo = banca.Database() + QStringLiteral("_archivisti");
        auto connessione = banca.Apri();
        connessione->Esegui(QStringLiteral("CREATE ROLE %1 NOLOGIN").arg(sProprietario));
        connessione->Esegui(QStringLiteral("CREATE ROLE %1 NOLOGIN").arg(sGruppo));
    }
    ~RuoliDiProva() {
        if (sProprietario.isEmpty())
            return;
        try {
            auto connessione = banca.Apri();
            connessione->Esegui(QStringLiteral("DROP ROLE IF EXISTS %1").arg(sGruppo));
            connessione->Esegui(QStringLiteral("DROP ROLE IF EXISTS %1").arg(sProprietario));
        } catch (const std::exception& errore) {
            qWarning("roles of %s not removed: %s", qPrintable(banca.Database()), errore.what());
        }
    }
    QStringList Opzioni() const {
        if (sProprietario.isEmpty())
            return {};
        return {QStringLiteral("--proprietario"), sProprietario, QStringLiteral("--gruppo"),
                sGruppo};
    }

private:
    const BancaDatiProva& banca;
    QString sProprietario;
    QString sGruppo;
};

// A site as its administrator makes it: a program folder, and a database created by
// tabellion-sql --crea with the site's identity, on the server of a test database, from the
// schema and the reference lists. The database is dropped at the end, whatever happened.
class SitoDiProva {
public:
    SitoDiProva(const BancaDatiProva& server, const RuoliDiProva& ruoli, const QString& sSuffisso,
                const QString& sCodice, qint64 lInizio, qint64 lFine)
        : banca(server)
        , sDatabase(server.Database() + sSuffisso) {
        cartella.ScriviSito(banca.Testa(), banca.Server(), sDatabase, QStringLiteral("S"));
        const QString schema =
            QStringLiteral(TABELLION_SORGENTI) +
            (banca.Tipo() == TipoBackend::SQLite ? QStringLiteral("/db/sqlite/schema.sql")
                                                 : QStringLiteral("/db/postgresql/schema.sql"));
        creazione =
            Avvia(QStringLiteral("tabellion-sql"), cartella,
                  QStringList{QStringLiteral("--crea"), QStringLiteral("--codice"), sCodice,
                              QStringLiteral("--descrizione"),
                              QStringLiteral("Archivio di prova ") + sCodice,
                              QStringLiteral("--id-inizio"), QString::number(lInizio),
                              QStringLiteral("--id-fine"), QString::number(lFine)}
                      << ruoli.Opzioni() << Login()
                      << QStringList{QStringLiteral("-i"), schema, QStringLiteral("-i"),
                                     QStringLiteral(TABELLION_SORGENTI "/db/riferimenti.sql")});
    }
    ~SitoDiProva() {
        try {
            const StringaConnessione stringa = StringaConnessione::Leggi(Stringa());
            Connessione::BackendDi(stringa).EliminaDatabase(stringa);
        } catch (const std::exception& errore) {
            qWarning("database %s not removed: %s", qPrintable(sDatabase), errore.what());
        }
    }
    SitoDiProva(const SitoDiProva&) = delete;
    SitoDiProva& operator=(const SitoDiProva&) = delete;

    QStringList Login() const {
        return {QStringLiteral("-U"), banca.Utente(), QStringLiteral("-P"), banca.Password(),
                QStringLiteral("-S"), banca.Server(), QStringLiteral("-d"), sDatabase};
    }
    QString Stringa() const {
        return ComponiStringaConnessione(banca.Testa(), banca.Server(), sDatabase, banca.Utente(),
                                         banca.Password());
    }
    void Tipo(const char* tipo) const {
        cartella.Scrivi(QStringLiteral("Istituto.txt"), QByteArray(tipo) + "\r\n");
    }

    const BancaDatiProva& banca;
    const QString sDatabase;
    CartellaProva cartella;
    Esito creazione;
};

// A site's archive, made as the program makes it: elements through the element store (the
// database adds their detail rows and the site's code), the other rows with keys of the site's
// range.
void Popola(const Connessione& cnn, const QString& sNome) {
    const long lIstituto =
        ArchivioElementi::Crea(cnn, QStringLiteral("01"), QStringLiteral("Archivio ") + sNome, 0);
    const long lComplesso = ArchivioElementi::Crea(
        cnn, QStringLiteral("02"), QStringLiteral("Fondo dell'Opera di ") + sNome, lIstituto);
    const long lInventario = ArchivioElementi::Crea(
        cnn, QStringLiteral("03"), QStringLiteral("Inventario ") + sNome, lIstituto);
    const long lPergamena = ArchivioElementi::Crea(cnn, QStringLiteral("05"),
                                                   QStringLiteral("Pergamena 1"), lInventario);
    const long lSigillo =
        ArchivioElementi::Crea(cnn, QStringLiteral("06"), QStringLiteral("Sigillo 1"), lInventario);
    const long lDato =
        ArchivioElementi::Crea(cnn, QStringLiteral("07"), QStringLiteral("Busta 1"), lInventario);
    ArchivioElementi::Crea(cnn, QStringLiteral("04"), QStringLiteral("Versamento"), lIstituto);
    cnn.Esegui(QStringLiteral("UPDATE Istituti SET Indirizzo = ?, Citta = ?, Provincia = ? WHERE "
                              "ID_Elemento = ?"),
               {QStringLiteral("Piazza Guidiccioni 8"), sNome, QStringLiteral("LU"),
                qlonglong(lIstituto)});
    cnn.Esegui(QStringLiteral("UPDATE ComplessiDoc SET Quantita = ?, MetriLineari = ?, "
                              "NoteStoriche = ? WHERE ID_Elemento = ?"),
               {12, 2.5, QStringLiteral("Carte dell'Opera, 1350-1800 <e oltre> & altro"),
                qlonglong(lComplesso)});
    cnn.Esegui(QStringLiteral("INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES "
                              "(?, ?, ?)"),
               {qlonglong(lComplesso), qlonglong(lInventario), QStringLiteral("inventario")});
    const auto inserisci = [&cnn](const char* tabella, const char* chiave,
                                  const QStringList& colonne, const QVariantList& valori) {
        return cnn.Inserisci(QLatin1String(tabella), QLatin1String(chiave), colonne, valori);
    };
    const qint64 lSoggetto =
        inserisci("Soggetti", "ID_Soggetto",
                  {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                  {QStringLiteral("Guinigi, Paolo ") + sNome, QStringLiteral("P")});
    cnn.Esegui(QStringLiteral("INSERT INTO ComplessiDocSoggetti (ID_ComplessoDoc, ID_Soggetto) "
                              "VALUES (?, ?)"),
               {qlonglong(lComplesso), lSoggetto});
    const qint64 lAntroponimo = inserisci("Antroponimi", "ID_Antroponimo", {QStringLiteral("Nome")},
                                          {QStringLiteral("Castracani, Castruccio ") + sNome});
    inserisci(
        "PGAntroponimi", "ID_PGAntroponimo",
        {QStringLiteral("ID_Pergamena"), QStringLiteral("ID_Antroponimo"), QStringLiteral("Ruolo")},
        {qlonglong(lPergamena), lAntroponimo, QStringLiteral("01")});
    const qint64 lToponimo = inserisci("Toponimi", "ID_Toponimo", {QStringLiteral("Denominazione")},
                                       {QStringLiteral("Lucca ") + sNome});
    cnn.Esegui(QStringLiteral("INSERT INTO PGToponimi (ID_Pergamena, ID_Toponimo) VALUES (?, ?)"),
               {qlonglong(lPergamena), lToponimo});
    const qint64 lTitolare = inserisci("Titolari", "ID_Titolare", {QStringLiteral("Nome")},
                                       {QStringLiteral("Vescovo di ") + sNome});
    inserisci(
        "SGTitolari", "ID_SGTitolare",
        {QStringLiteral("ID_Sigillo"), QStringLiteral("ID_Titolare"), QStringLiteral("Ruolo")},
        {qlonglong(lSigillo), lTitolare, QStringLiteral("01")});
    inserisci("ComplessiDocDenominazioni", "ID_Denominazione",
              {QStringLiteral("ID_ComplessoDoc"), QStringLiteral("AltraDenominazione")},
              {qlonglong(lComplesso), QStringLiteral("Diplomatico")});
    inserisci("DICoseNotevoli", "ID_DICosaNotevole",
              {QStringLiteral("ID_DatoInventariale"), QStringLiteral("Descrizione")},
              {qlonglong(lDato), QStringLiteral("Un disegno a penna")});
}

} // namespace

class TestScambio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void importaDallaRigaDiComandoEDiceLeTabelleFatte_data() { AggiungiBackend(); }
    void importaDallaRigaDiComandoEDiceLeTabelleFatte();
    void unaTabellaFallitaDaUnEsitoDiversoDaZeroENominaTabellaEFile_data() { AggiungiBackend(); }
    void unaTabellaFallitaDaUnEsitoDiversoDaZeroENominaTabellaEFile();
    void argomentiSbagliatiMostranoLUso();
    void argomentiSbagliatiEsconoConUnoPrimaDiToccareQualcosa_data() { AggiungiBackend(); }
    void argomentiSbagliatiEsconoConUnoPrimaDiToccareQualcosa();
    void unSitoSEsportaEUnSitoIImportaComeNeiMenu();
    void unSitoSenzaIdentitaNonEsportaENonImportaEDiceComeDargliela_data() { AggiungiBackend(); }
    void unSitoSenzaIdentitaNonEsportaENonImportaEDiceComeDargliela();
    void unFileColCodiceDelSitoStessoOProvvisorioERifiutatoSenzaToccareNulla_data() {
        AggiungiBackend();
    }
    void unFileColCodiceDelSitoStessoOProvvisorioERifiutatoSenzaToccareNulla();
    void senzaMenoPLaPasswordVieneDaPGPASSWORDODalFileDellePassword();
    void lArchivioDimostrativoPassaDaUnDatabaseAUnAltro_data() { AggiungiBackend(); }
    void lArchivioDimostrativoPassaDaUnDatabaseAUnAltro();
    void dueSitiCreatiDaTabellionSqlSiScambianoOgniTabellaNeiDueVersi_data() { AggiungiBackend(); }
    void dueSitiCreatiDaTabellionSqlSiScambianoOgniTabellaNeiDueVersi();
};

void TestScambio::importaDallaRigaDiComandoEDiceLeTabelleFatte() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    SitoConScambio prova(backend);
    auto& [banca, sito, scambio] = prova;
    const Esito esito = Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) +
                                         QStringList{QStringLiteral("-c"), scambio.Percorso(),
                                                     QStringLiteral("-x"), scambio.Percorso()});
    QVERIFY2(esito.codice == 0, qPrintable(esito.errori));
    QCOMPARE(esito.uscita, QStringLiteral("Prima\nSeconda\n"));
    QCOMPARE(esito.errori, QString());
    // The sender's rows replaced, the site's own kept.
    QCOMPARE(Righe(banca, QStringLiteral("Prima")),
             (QStringList{QStringLiteral("2|Nostra|CD02"), QStringLiteral("7|L'Aquila|AB01")}));
    QCOMPARE(Righe(banca, QStringLiteral("Seconda")),
             (QStringList{QStringLiteral("2|Nostra|CD02"), QStringLiteral("7|Forlì|AB01")}));
    QVERIFY(QFile::exists(scambio.File(QStringLiteral("PrimaSql.xml"))));
}

void TestScambio::unaTabellaFallitaDaUnEsitoDiversoDaZeroENominaTabellaEFile() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    SitoConScambio prova(backend);
    auto& [banca, sito, scambio] = prova;
    // A table the database lacks.
    scambio.Scrivi(QStringLiteral("MancanteSch.xml"), Schema("Mancante"));
    scambio.Scrivi(QStringLiteral("Mancante.xml"), Dati("Mancante", "Roma"));
    const QStringList cartelle{QStringLiteral("-c"), scambio.Percorso(), QStringLiteral("-x"),
                               scambio.Percorso()};
    const Esito esito =
        Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) + cartelle +
                         QStringList{QStringLiteral("Mancante"), QStringLiteral("Prima")});
    QCOMPARE(esito.codice, 2);
    QCOMPARE(esito.uscita, QStringLiteral("Prima\n"));
    QVERIFY2(esito.errori.startsWith(
                 QStringLiteral("Tabella Mancante, file %1: ")
                     .arg(QDir::toNativeSeparators(scambio.File(QStringLiteral("Mancante.xml"))))),
             qPrintable(esito.errori));
    QCOMPARE(esito.errori.count(QStringLiteral("Tabella ")), 1);

    // A data file that is not there: the run did no table.
    scambio.Rimuovi(QStringLiteral("Seconda.xml"));
    const Esito nessuna = Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) +
                                           cartelle + QStringList{QStringLiteral("Seconda")});
    QCOMPARE(nessuna.codice, 2);
    QCOMPARE(nessuna.uscita, QString());
    QVERIFY2(nessuna.errori.contains(
                 QStringLiteral("Tabella Seconda, file %1: ")
                     .arg(QDir::toNativeSeparators(scambio.File(QStringLiteral("Seconda.xml"))))),
             qPrintable(nessuna.errori));
    QVERIFY2(nessuna.errori.contains(QStringLiteral("Nessuna tabella importata su 1.")),
             qPrintable(nessuna.errori));

    // The export of a table the database lacks names its schema file.
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("S"));
    CartellaProva uscita;
    const Esito esportato =
        Esegui(sito, QStringList{QStringLiteral("esporta")} + Login(banca) +
                         QStringList{QStringLiteral("-c"), uscita.Percorso(), QStringLiteral("-x"),
                                     scambio.Percorso(), QStringLiteral("Mancante"),
                                     QStringLiteral("Prima")});
    QCOMPARE(esportato.codice, 2);
    QCOMPARE(esportato.uscita, QStringLiteral("Prima\n"));
    QVERIFY2(esportato.errori.startsWith(QStringLiteral("Tabella Mancante, file %1: ")
                                             .arg(QDir::toNativeSeparators(
                                                 scambio.File(QStringLiteral("MancanteSch.xml"))))),
             qPrintable(esportato.errori));

    // A database that is not there: nothing done.
    const Esito sbagliata = Esegui(
        sito, {QStringLiteral("importa"), QStringLiteral("-d"), QStringLiteral("nessuna_banca"),
               QStringLiteral("-S"), banca.Server(), QStringLiteral("-U"), banca.Utente(),
               QStringLiteral("-P"), banca.Password(), QStringLiteral("-c"), scambio.Percorso(),
               QStringLiteral("-x"), scambio.Percorso()});
    QCOMPARE(sbagliata.codice, 1);
    QVERIFY(!sbagliata.errori.isEmpty());
    QCOMPARE(sbagliata.uscita, QString());
}

void TestScambio::argomentiSbagliatiMostranoLUso() {
    CartellaProva sito;
    for (const QStringList& argomenti :
         {QStringList{}, QStringList{QStringLiteral("copia")},
          QStringList{QStringLiteral("importa"), QStringLiteral("-d")}}) {
        const Esito esito = Esegui(sito, argomenti);
        QCOMPARE(esito.codice, 1);
        QVERIFY2(esito.errori.contains(QStringLiteral("Uso: tabellion-scambio")),
                 qPrintable(esito.errori));
    }
}

void TestScambio::argomentiSbagliatiEsconoConUnoPrimaDiToccareQualcosa() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    DaiCodice(banca, QStringLiteral("CD02"));
    CreaTabelle(banca);
    const QStringList prima = Righe(banca, QStringLiteral("Prima"));
    CartellaProva sito;
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    CartellaProva scambio;
    ScriviScambio(scambio);
    scambio.Scrivi(QStringLiteral("un-file"), "non sono una cartella");
    CartellaProva vuota;
    const QString manca = scambio.File(QStringLiteral("manca"));
    const QString file = scambio.File(QStringLiteral("un-file"));
    struct Caso {
        QStringList argomenti;
        QString parole;
    };
    const QList<Caso> casi{
        {{QStringLiteral("-c"), scambio.Percorso(), QStringLiteral("-x"), scambio.Percorso(),
          QStringLiteral("Prima"), QStringLiteral("Terza")},
         QStringLiteral("Tabella sconosciuta: Terza. La cartella degli schemi %1 offre solo: "
                        "Prima, Seconda.")
             .arg(QDir::toNativeSeparators(scambio.Percorso()))},
        {{QStringLiteral("-c"), manca, QStringLiteral("-x"), scambio.Percorso()},
         QStringLiteral("La cartella %1 (-c) non esiste").arg(QDir::toNativeSeparators(manca))},
        {{QStringLiteral("-c"), file, QStringLiteral("-x"), scambio.Percorso()},
         QStringLiteral("La cartella %1 (-c) non è una cartella")
             .arg(QDir::toNativeSeparators(file))},
        {{QStringLiteral("-c"), scambio.Percorso(), QStringLiteral("-x"), manca},
         QStringLiteral("La cartella degli schemi %1 (-x o codice 09 di Param.txt) non esiste.")
             .arg(QDir::toNativeSeparators(manca))},
        {{QStringLiteral("-c"), scambio.Percorso(), QStringLiteral("-x"), vuota.Percorso()},
         QStringLiteral("La cartella degli schemi %1 non offre alcuna tabella")
             .arg(QDir::toNativeSeparators(vuota.Percorso()))},
    };
    for (const Caso& caso : casi) {
        const Esito esito =
            Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) + caso.argomenti);
        QCOMPARE(esito.codice, 1);
        QCOMPARE(esito.uscita, QString());
        QVERIFY2(esito.errori.contains(caso.parole), qPrintable(esito.errori));
        QCOMPARE(Righe(banca, QStringLiteral("Prima")), prima);
        QVERIFY(!QFile::exists(scambio.File(QStringLiteral("PrimaSql.xml"))));
    }
    // The same for an export: no file is written.
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("S"));
    CartellaProva uscita;
    const Esito esportato =
        Esegui(sito, QStringList{QStringLiteral("esporta")} + Login(banca) +
                         QStringList{QStringLiteral("-c"), uscita.Percorso(), QStringLiteral("-x"),
                                     scambio.Percorso(), QStringLiteral("Prima"),
                                     QStringLiteral("Terza")});
    QCOMPARE(esportato.codice, 1);
    QVERIFY2(esportato.errori.contains(QStringLiteral("Tabella sconosciuta: Terza.")),
             qPrintable(esportato.errori));
    QCOMPARE(QDir(uscita.Percorso()).entryList(QDir::Files), QStringList());
}

void TestScambio::unSitoSEsportaEUnSitoIImportaComeNeiMenu() {
    BancaDatiProva banca(TipoBackend::SQLite);
    DaiCodice(banca, QStringLiteral("CD02"));
    CreaTabelle(banca);
    CartellaProva sito;
    CartellaProva scambio;
    ScriviScambio(scambio);
    CartellaProva uscita;
    const auto esegui = [&](const char* verbo, const QString& sCartella) {
        return Esegui(sito, QStringList{QLatin1String(verbo)} + Login(banca) +
                                QStringList{QStringLiteral("-c"), sCartella, QStringLiteral("-x"),
                                            scambio.Percorso(), QStringLiteral("Prima")});
    };
    const QString sIstituto = QDir::toNativeSeparators(sito.File(QStringLiteral("Istituto.txt")));

    // An "S" site exports and does not import.
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("S"));
    const Esito importaS = esegui("importa", scambio.Percorso());
    QCOMPARE(importaS.codice, 1);
    QVERIFY2(importaS.errori.contains(
                 QStringLiteral("Questo è un sito di tipo \"S\" (%1): esporta").arg(sIstituto)),
             qPrintable(importaS.errori));
    QVERIFY(!QFile::exists(scambio.File(QStringLiteral("PrimaSql.xml"))));
    QCOMPARE(esegui("esporta", uscita.Percorso()).codice, 0);
    // Its own row only, under its code: the row of the other site stays home.
    QFile esportato(uscita.File(QStringLiteral("Prima.xml")));
    QVERIFY(esportato.open(QIODevice::ReadOnly));
    const QByteArray dati = esportato.readAll();
    esportato.close();
    QVERIFY2(dati.contains("code=\"CD02\"") && dati.contains(">Nostra<") &&
                 !dati.contains("Altro sito") && dati.count("<record>") == 1,
             dati.constData());

    // An "I" site imports and does not export.
    QVERIFY(QFile::remove(uscita.File(QStringLiteral("Prima.xml"))));
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("I"));
    const Esito esportaI = esegui("esporta", uscita.Percorso());
    QCOMPARE(esportaI.codice, 1);
    QVERIFY2(esportaI.errori.contains(
                 QStringLiteral("Questo è un sito di tipo \"I\" (%1): importa").arg(sIstituto)),
             qPrintable(esportaI.errori));
    QVERIFY(!QFile::exists(uscita.File(QStringLiteral("Prima.xml"))));
    QCOMPARE(esegui("importa", scambio.Percorso()).codice, 0);

    // A kind the file does not say, or no file: neither.
    sito.Scrivi(QStringLiteral("Istituto.txt"), "X\r\n");
    for (const char* verbo : {"esporta", "importa"}) {
        const Esito esito = esegui(verbo, uscita.Percorso());
        QCOMPARE(esito.codice, 1);
        QVERIFY2(esito.errori.contains(QStringLiteral("%1 dice \"X\"").arg(sIstituto)),
                 qPrintable(esito.errori));
    }
    sito.Rimuovi(QStringLiteral("Istituto.txt"));
    const Esito senza = esegui("esporta", uscita.Percorso());
    QCOMPARE(senza.codice, 1);
    QVERIFY2(senza.errori.contains(QStringLiteral("Istituto.txt")), qPrintable(senza.errori));
    QCOMPARE(QDir(uscita.Percorso()).entryList(QDir::Files), QStringList());
}

void TestScambio::unSitoSenzaIdentitaNonEsportaENonImportaEDiceComeDargliela() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    // A database as the schema leaves it: the placeholder code.
    BancaDatiProva banca(backend);
    CreaTabelle(banca);
    const QStringList prima = Righe(banca, QStringLiteral("Prima"));
    CartellaProva sito;
    CartellaProva scambio;
    ScriviScambio(scambio);
    CartellaProva uscita;
    for (const char* verbo : {"esporta", "importa"}) {
        const bool bImporta = QLatin1String(verbo) == QLatin1String("importa");
        sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database(),
                        bImporta ? QStringLiteral("I") : QStringLiteral("S"));
        const Esito esito =
            Esegui(sito, QStringList{QLatin1String(verbo)} + Login(banca) +
                             QStringList{QStringLiteral("-c"),
                                         bImporta ? scambio.Percorso() : uscita.Percorso(),
                                         QStringLiteral("-x"), scambio.Percorso()});
        QCOMPARE(esito.codice, 1);
        QCOMPARE(esito.uscita, QString());
        for (const QString& parole :
             {QStringLiteral("il codice del sito è ancora \"SITO\""),
              QStringLiteral("tabellion-sql --crea --codice CODICE --id-inizio N --id-fine M"),
              QStringLiteral("UPDATE Config SET Code = 'CODICE', ID_Start = N, ID_End = M")})
            QVERIFY2(esito.errori.contains(parole), qPrintable(esito.errori));
    }
    QCOMPARE(Righe(banca, QStringLiteral("Prima")), prima);
    QVERIFY(!QFile::exists(scambio.File(QStringLiteral("PrimaSql.xml"))));
    QCOMPARE(QDir(uscita.Percorso()).entryList(QDir::Files), QStringList());
}

void TestScambio::unFileColCodiceDelSitoStessoOProvvisorioERifiutatoSenzaToccareNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    DaiCodice(banca, QStringLiteral("CD02"));
    CreaTabelle(banca);
    const QStringList prima = Righe(banca, QStringLiteral("Prima"));
    CartellaProva sito;
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    const QList<QPair<const char*, QString>> casi{
        {"CD02", QStringLiteral("porta il codice \"CD02\", che è quello di questo stesso sito")},
        {"cd02", QStringLiteral("porta il codice \"cd02\", che è quello di questo stesso sito")},
        {"SITO", QStringLiteral("porta il codice provvisorio \"SITO\" di un sito che non aveva "
                                "ancora la sua identità")}};
    for (const auto& [codice, parole] : casi) {
        CartellaProva scambio;
        ScriviScambio(scambio, codice);
        const Esito esito = Esegui(sito, QStringList{QStringLiteral("importa")} + Login(banca) +
                                             QStringList{QStringLiteral("-c"), scambio.Percorso(),
                                                         QStringLiteral("-x"), scambio.Percorso(),
                                                         QStringLiteral("Prima")});
        QCOMPARE(esito.codice, 2);
        QCOMPARE(esito.uscita, QString());
        const QString sFile = QDir::toNativeSeparators(scambio.File(QStringLiteral("Prima.xml")));
        QVERIFY2(esito.errori.startsWith(QStringLiteral("Tabella Prima, file %1: ").arg(sFile)),
                 qPrintable(esito.errori));
        QVERIFY2(esito.errori.contains(QStringLiteral("Il file %1 ").arg(sFile) + parole),
                 qPrintable(esito.errori));
        QCOMPARE(Righe(banca, QStringLiteral("Prima")), prima);
        QVERIFY(!QFile::exists(scambio.File(QStringLiteral("PrimaSql.xml"))));
    }
}

void TestScambio::senzaMenoPLaPasswordVieneDaPGPASSWORDODalFileDellePassword() {
    RICHIEDI_BACKEND(TipoBackend::PostgreSQL);
    BancaDatiProva banca(TipoBackend::PostgreSQL);
    DaiCodice(banca, QStringLiteral("CD02"));
    CreaTabelle(banca);
    CartellaProva sito;
    sito.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    CartellaProva scambio;
    ScriviScambio(scambio);
    const QStringList argomenti{
        QStringLiteral("importa"), QStringLiteral("-U"), banca.Utente(),
        QStringLiteral("-S"),      banca.Server(),       QStringLiteral("-d"),
        banca.Database(),          QStringLiteral("-c"), scambio.Percorso(),
        QStringLiteral("-x"),      scambio.Percorso(),   QStringLiteral("Prima")};
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.remove(QStringLiteral("PGPASSWORD"));
    ambiente.insert(QStringLiteral("PGPASSFILE"), sito.File(QStringLiteral("nessuno")));
    // Without a password anywhere the server refuses the login.
    const Esito senza = Esegui(sito, argomenti, ambiente);
    QCOMPARE(senza.codice, 1);
    QVERIFY2(senza.errori.contains(QStringLiteral("password")), qPrintable(senza.errori));
    // From the environment.
    QProcessEnvironment conVariabile = ambiente;
    conVariabile.insert(QStringLiteral("PGPASSWORD"), banca.Password());
    const Esito variabile = Esegui(sito, argomenti, conVariabile);
    QVERIFY2(variabile.codice == 0, qPrintable(variabile.errori));
    QCOMPARE(variabile.uscita, QStringLiteral("Prima\n"));
    // From the password file of the database client (~/.pgpass, here named by PGPASSFILE).
    const QString sPgpass = sito.File(QStringLiteral("pgpass"));
    sito.Scrivi(QStringLiteral("pgpass"),
                QStringLiteral("%1:%2:%3:%4:%5\n")
                    .arg(ServerProva::Host())
                    .arg(ServerProva::Porta())
                    .arg(banca.Database(), banca.Utente(), banca.Password())
                    .toUtf8());
    QVERIFY(QFile::setPermissions(sPgpass, QFile::ReadOwner | QFile::WriteOwner));
    QProcessEnvironment conFile = ambiente;
    conFile.insert(QStringLiteral("PGPASSFILE"), sPgpass);
    const Esito file = Esegui(sito, argomenti, conFile);
    QVERIFY2(file.codice == 0, qPrintable(file.errori));
    QCOMPARE(file.uscita, QStringLiteral("Prima\n"));
}

void TestScambio::lArchivioDimostrativoPassaDaUnDatabaseAUnAltro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    // The demo site exports every table its schema files offer...
    BancaDatiProva mittente(TipoBackend::SQLite,
                            {QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")});
    CartellaProva sitoMittente;
    sitoMittente.ScriviSito(mittente.Testa(), mittente.Server(), mittente.Database(),
                            QStringLiteral("S"));
    CartellaProva scambio;
    const Esito esportato =
        Esegui(sitoMittente, QStringList{QStringLiteral("esporta")}
                                 << Login(mittente) << QStringLiteral("-c") << scambio.Percorso()
                                 << QStringLiteral("-x") << SchemiDelSito);
    QVERIFY2(esportato.codice == 0, qPrintable(esportato.errori));
    const QStringList tabelle = TabelleFatte(esportato);
    QCOMPARE(tabelle, TabelleDelSito());
    QVERIFY(tabelle.size() >= 38);
    // ...and a database of another site, with rows of its own, takes them all.
    BancaDatiProva ricevente(backend, {QStringLiteral("riferimenti.sql")});
    {
        auto proprio = ricevente.Apri();
        proprio->Esegui(QStringLiteral("UPDATE Config SET Code = 'ASLU', ID_Start = 5000000, "
                                       "ID_End = 5999999"));
        proprio->Esegui(
            QStringLiteral("INSERT INTO Elementi (ID_Elemento, Tipologia, "
                           "Denominazione) VALUES (5000000, '01', 'Istituto proprio')"));
    }
    CartellaProva sitoRicevente;
    sitoRicevente.ScriviSito(ricevente.Testa(), ricevente.Server(), ricevente.Database());
    const Esito importato =
        Esegui(sitoRicevente, QStringList{QStringLiteral("importa")}
                                  << Login(ricevente) << QStringLiteral("-c") << scambio.Percorso()
                                  << QStringLiteral("-x") << SchemiDelSito);
    QVERIFY2(importato.codice == 0, qPrintable(importato.errori));
    QCOMPARE(TabelleFatte(importato), tabelle);
    auto da = mittente.Apri();
    auto a = ricevente.Apri();
    for (const char* tabella :
         {"Elementi", "Istituti", "ComplessiDoc", "Inventari", "Pergamene", "Sigilli", "SGTipo",
          "Soggetti", "Persone", "Links", "ComplessiDocSoggetti"}) {
        const int prima = Conta(*da, QLatin1String(tabella));
        QVERIFY2(prima > 0, tabella);
        const int propri = QLatin1String(tabella) == QLatin1String("Elementi") ||
                                   QLatin1String(tabella) == QLatin1String("Istituti")
                               ? 1
                               : 0;
        QCOMPARE(Conta(*a, QLatin1String(tabella)), prima + propri);
    }
    // The reference lists stayed home: each site keeps its own.
    QCOMPARE(Conta(*a, QStringLiteral("Provincie")), Conta(*da, QStringLiteral("Provincie")));
    // The receiving site's own rows are untouched.
    QSqlQuery proprio = a->Esegui(QStringLiteral(
        "SELECT E.Code, I.Code FROM Elementi E JOIN Istituti I ON I.ID_Elemento = E.ID_Elemento "
        "WHERE E.ID_Elemento = 5000000"));
    QVERIFY(proprio.next());
    QCOMPARE(proprio.value(0).toString(), QStringLiteral("ASLU"));
    QCOMPARE(proprio.value(1).toString(), QStringLiteral("ASLU"));
    // The rows keep the sender's code, and what the database derived travels with them.
    QSqlQuery riga = a->Esegui(QStringLiteral(
        "SELECT Code, DenomCompleta FROM ComplessiDoc WHERE DenomCompleta LIKE '% > % > %'"));
    QVERIFY(riga.next());
    QCOMPARE(riga.value(0).toString(), QStringLiteral("DEMO"));

    // And on: the receiving site, now exporting, sends a third site its own rows only, under
    // its own code; the demo rows it received never leave under another code.
    sitoRicevente.ScriviSito(ricevente.Testa(), ricevente.Server(), ricevente.Database(),
                             QStringLiteral("S"));
    CartellaProva ritorno;
    const Esito riesportato =
        Esegui(sitoRicevente, QStringList{QStringLiteral("esporta")}
                                  << Login(ricevente) << QStringLiteral("-c") << ritorno.Percorso()
                                  << QStringLiteral("-x") << SchemiDelSito);
    QVERIFY2(riesportato.codice == 0, qPrintable(riesportato.errori));
    BancaDatiProva terzo(TipoBackend::SQLite);
    DaiCodice(terzo, QStringLiteral("ASFI"));
    CartellaProva sitoTerzo;
    sitoTerzo.ScriviSito(terzo.Testa(), terzo.Server(), terzo.Database());
    const Esito reimportato =
        Esegui(sitoTerzo, QStringList{QStringLiteral("importa")}
                              << Login(terzo) << QStringLiteral("-c") << ritorno.Percorso()
                              << QStringLiteral("-x") << SchemiDelSito);
    QVERIFY2(reimportato.codice == 0, qPrintable(reimportato.errori));
    auto c = terzo.Apri();
    QSqlQuery elementi =
        c->Esegui(QStringLiteral("SELECT ID_Elemento, Code FROM Elementi ORDER BY ID_Elemento"));
    QVERIFY(elementi.next());
    QCOMPARE(elementi.value(0).toInt(), 5000000);
    QCOMPARE(elementi.value(1).toString(), QStringLiteral("ASLU"));
    QVERIFY(!elementi.next());
    QCOMPARE(Conta(*c, QStringLiteral("ComplessiDoc")), 0);
}

void TestScambio::dueSitiCreatiDaTabellionSqlSiScambianoOgniTabellaNeiDueVersi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    // The server, the login and a name of this test's own.
    BancaDatiProva server(backend);
    RuoliDiProva ruoli(server);
    const SitoDiProva lucca(server, ruoli, QStringLiteral("_lucca"), QStringLiteral("ASLU"), 1,
                            999999);
    QVERIFY2(lucca.creazione.codice == 0, qPrintable(lucca.creazione.errori));
    const SitoDiProva firenze(server, ruoli, QStringLiteral("_firenze"), QStringLiteral("ASFI"),
                              1000000, 1999999);
    QVERIFY2(firenze.creazione.codice == 0, qPrintable(firenze.creazione.errori));
    struct Banca {
        const SitoDiProva& sito;
        QString sCodice;
        std::shared_ptr<Connessione> cnn;
    };
    Banca siti[] = {{lucca, QStringLiteral("ASLU"), Connessione::Apri(lucca.Stringa())},
                    {firenze, QStringLiteral("ASFI"), Connessione::Apri(firenze.Stringa())}};
    for (const Banca& banca : siti)
        Popola(*banca.cnn, banca.sCodice == QLatin1String("ASLU") ? QStringLiteral("Lucca")
                                                                  : QStringLiteral("Firenze"));
    const QStringList tabelle = TabelleDelSito();
    QVERIFY(!tabelle.contains(QStringLiteral("Provincie")));
    // What each site holds of its own before the exchange.
    QMap<QString, QStringList> propri[2];
    for (int i = 0; i < 2; ++i)
        for (const QString& sTabella : tabelle)
            propri[i][sTabella] = RigheDelCodice(*siti[i].cnn, sTabella, siti[i].sCodice);
    int iTabelleConRighe = 0;
    for (const QString& sTabella : tabelle)
        iTabelleConRighe += propri[0][sTabella].isEmpty() ? 0 : 1;
    QVERIFY2(iTabelleConRighe >= 25, qPrintable(QString::number(iTabelleConRighe)));
    const int iProvince = Conta(*siti[0].cnn, QStringLiteral("Provincie"));
    QVERIFY(iProvince > 100);

    // Every table, one way and then the other: the sender as an "S" site, the receiver as an
    // "I" site.
    for (const auto& [da, a] : {std::pair{0, 1}, std::pair{1, 0}}) {
        siti[da].sito.Tipo("S");
        siti[a].sito.Tipo("I");
        CartellaProva scambio;
        const Esito esportato =
            Esegui(siti[da].sito.cartella, QStringList{QStringLiteral("esporta")}
                                               << siti[da].sito.Login() << QStringLiteral("-c")
                                               << scambio.Percorso() << QStringLiteral("-x")
                                               << SchemiDelSito);
        QVERIFY2(esportato.codice == 0, qPrintable(esportato.errori));
        QCOMPARE(TabelleFatte(esportato), tabelle);
        const Esito importato =
            Esegui(siti[a].sito.cartella, QStringList{QStringLiteral("importa")}
                                              << siti[a].sito.Login() << QStringLiteral("-c")
                                              << scambio.Percorso() << QStringLiteral("-x")
                                              << SchemiDelSito);
        QVERIFY2(importato.codice == 0, qPrintable(importato.errori));
        QCOMPARE(TabelleFatte(importato), tabelle);
    }

    // Each site holds its own rows as they were and the other's as the other holds them, and
    // nothing else; the reference lists are each site's own, as they were.
    for (int i = 0; i < 2; ++i) {
        const Banca& banca = siti[i];
        const Banca& altra = siti[1 - i];
        for (const QString& sTabella : tabelle) {
            QCOMPARE(RigheDelCodice(*banca.cnn, sTabella, banca.sCodice), propri[i][sTabella]);
            QCOMPARE(RigheDelCodice(*banca.cnn, sTabella, altra.sCodice), propri[1 - i][sTabella]);
            QCOMPARE(Conta(*banca.cnn, sTabella),
                     propri[0][sTabella].size() + propri[1][sTabella].size());
        }
        QCOMPARE(Conta(*banca.cnn, QStringLiteral("Provincie")), iProvince);
    }
    for (Banca& banca : siti)
        banca.cnn->Chiudi();
}

QTEST_MAIN(TestScambio)
#include "tst_scambio.moc"
