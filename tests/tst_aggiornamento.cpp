// The upgrade of the schema from the program: at the start's gate and from the menu the program
// runs tabellion-sql with alter.sql to its end and tells the person whether it succeeded (with
// the version the database now holds) or, if not, the tool's reason.

#include "session/AggiornamentoVersione.h"
#include "session/Piattaforma.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"
#include "RuoliSitoProva.h"

#include <QAction>
#include <QFile>
#include <QSqlQuery>
#include <QtTest>
#include <memory>

namespace {

QByteArray LeggiSorgente(const QString& sPercorso) {
    QFile file(QStringLiteral(TABELLION_SORGENTI "/") + sPercorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString Versione(const BancaDatiProva& banca) {
    QSqlQuery config = banca.Apri()->Esegui(QStringLiteral("SELECT Versione FROM Config"));
    return config.next() ? config.value(0).toString() : QStringLiteral("nessuna riga");
}

} // namespace

class TestAggiornamento : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void alCancelloDellAvvioLAggiornamentoRiesceEDiceLaVersione_data();
    void alCancelloDellAvvioLAggiornamentoRiesceEDiceLaVersione();
    void unAggiornamentoFallitoDalMenuDiceLaRagioneDelloStrumento_data();
    void unAggiornamentoFallitoDalMenuDiceLaRagioneDelloStrumento();
    void unoStrumentoCheNonSiAvviaLoDice();
    void unProgrammaEseguitoFinoAllaFineDaIlSuoCodiceELeSueParole();

private:
    std::unique_ptr<PiattaformaScriptata> seam;
};

void TestAggiornamento::init() {
    seam = std::make_unique<PiattaformaScriptata>();
    // The tool runs for real, in this process, with the arguments the program gives it.
    seam->alProcesso = [](const QString& sProgramma, const QStringList& argomenti) {
        EsitoProcesso esito;
        if (!sProgramma.endsWith(QStringLiteral("tabellion-sql"))) {
            esito.sErroreAvvio = QStringLiteral("programma inatteso: ") + sProgramma;
            return esito;
        }
        const EsitoStrumento strumento = EseguiStrumento(argomenti);
        esito.bAvviato = true;
        esito.iCodice = strumento.iCodice;
        esito.sUscita = strumento.sUscita;
        esito.sErrori = strumento.sErrori;
        return esito;
    };
}

void TestAggiornamento::cleanup() {
    Sessione::cnn.reset();
    seam.reset();
}

void TestAggiornamento::alCancelloDellAvvioLAggiornamentoRiesceEDiceLaVersione_data() {
    AggiungiBackend();
}

void TestAggiornamento::alCancelloDellAvvioLAggiornamentoRiesceEDiceLaVersione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    cartella.Scrivi(QStringLiteral("alter.sql"), LeggiSorgente(QStringLiteral("site/alter.sql")));
    // A database of an earlier version: its tree's view is missing.
    banca.Apri()->Esegui(QStringLiteral("UPDATE Config SET Versione = 3.1"));
    QSqlQuery(banca.Apri()->Db()).exec(QStringLiteral("DROP VIEW AlberoGlobale"));
    seam->risposte = {Risposta::Si};
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 2);
    QCOMPARE(messaggi[0].sTitolo, QStringLiteral("Aggiorna versione DB"));
    QCOMPARE(messaggi[1].sTitolo, QStringLiteral("Aggiorna versione DB"));
    QCOMPARE(messaggi[1].icona, Icona::Informazione);
    QCOMPARE(messaggi[1].sTesto, QStringLiteral("Aggiornamento della versione del DB riuscito.\r\n"
                                                "Versione del DB: 4"));
    QCOMPARE(Versione(banca), QStringLiteral("4"));
    QVERIFY(QSqlQuery(banca.Apri()->Db()).exec(QStringLiteral("SELECT * FROM AlberoGlobale")));
    // The session goes on.
    QVERIFY(principale.findChild<QAction*>(QStringLiteral("mnuAggiorna"))->isEnabled());
}

void TestAggiornamento::unAggiornamentoFallitoDalMenuDiceLaRagioneDelloStrumento_data() {
    AggiungiBackend();
}

void TestAggiornamento::unAggiornamentoFallitoDalMenuDiceLaRagioneDelloStrumento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    BancaDatiProva banca(backend);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    cartella.Scrivi(QStringLiteral("alter.sql"), "UPDATE Config SET Versione = 5;\n"
                                                 "UPDATE Inesistente SET Campo = 1;\n");
    PrimoMDI principale;
    QVERIFY(AvviaSessione(principale, banca));
    QVERIFY(seam->Messaggi().isEmpty());
    seam->risposte = {Risposta::Si};
    principale.findChild<QAction*>(QStringLiteral("mnuAggiorna"))->trigger();
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 2);
    QCOMPARE(messaggi[1].sTitolo, QStringLiteral("Aggiorna versione DB"));
    QCOMPARE(messaggi[1].icona, Icona::Critica);
    const QStringList righe = messaggi[1].sTesto.split(QStringLiteral("\r\n"));
    QCOMPARE(righe.value(0), QStringLiteral("Aggiornamento della versione del DB non riuscito."));
    QVERIFY2(messaggi[1].sTesto.contains(QStringLiteral("alter.sql, riga 2")),
             qPrintable(messaggi[1].sTesto));
    QVERIFY2(messaggi[1].sTesto.contains(QStringLiteral("inesistente"), Qt::CaseInsensitive),
             qPrintable(messaggi[1].sTesto));
    // Nothing of the failed script stayed.
    QCOMPARE(Versione(banca), QStringLiteral("4"));
}

void TestAggiornamento::unoStrumentoCheNonSiAvviaLoDice() {
    CartellaProva cartella;
    BancaDatiProva banca(TipoBackend::SQLite);
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database());
    seam->alProcesso = nullptr;
    seam->esitoProcesso = {false, -1, QString(), QString(), QStringLiteral("No such file")};
    QVERIFY(!EseguiAggiornamento());
    QCOMPARE(seam->Messaggi().size(), 1);
    const QString testo = seam->Messaggi().constFirst().sTesto;
    QVERIFY2(testo.startsWith(QStringLiteral("Aggiornamento della versione del DB non riuscito."
                                             "\r\nImpossibile avviare ")),
             qPrintable(testo));
    QVERIFY(testo.endsWith(QStringLiteral("tabellion-sql: No such file")));
}

void TestAggiornamento::unProgrammaEseguitoFinoAllaFineDaIlSuoCodiceELeSueParole() {
    PiattaformaQt reale;
    const EsitoProcesso finito = reale.EseguiProcesso(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("echo fatto; echo motivo >&2; exit 3")});
    QVERIFY(finito.bAvviato);
    QCOMPARE(finito.iCodice, 3);
    QCOMPARE(finito.sUscita, QStringLiteral("fatto\n"));
    QCOMPARE(finito.sErrori, QStringLiteral("motivo\n"));
    const EsitoProcesso mancante =
        reale.EseguiProcesso(QStringLiteral("/nessuna/cartella/tabellion-sql"), {});
    QVERIFY(!mancante.bAvviato);
    QVERIFY(!mancante.sErroreAvvio.isEmpty());
}

QTEST_MAIN(TestAggiornamento)
#include "tst_aggiornamento.moc"
