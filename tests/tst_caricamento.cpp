// Rows loaded into a table at once, on each backend: every text comes back as it went in,
// a refused row is named and takes its batch away, and the transaction goes on.

#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Caricamento.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

const QStringList Colonne = {QStringLiteral("ID"), QStringLiteral("Nome"), QStringLiteral("Valore"),
                             QStringLiteral("Code")};

QVariantList Riga(int id, const QVariant& nome, const QVariant& valore = QStringLiteral("1.5")) {
    return {QString::number(id), nome, valore, QStringLiteral("AB01")};
}

qint64 Conta(const Connessione& cnn) {
    QSqlQuery query(cnn.Db());
    if (!query.exec(QStringLiteral("SELECT COUNT(*) FROM Carico")) || !query.next())
        return -1;
    return query.value(0).toLongLong();
}

} // namespace

class TestCaricamento : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<BancaDatiProva> banca;
    std::shared_ptr<Connessione> cnn;

    std::unique_ptr<Caricamento> Apri(TipoBackend tipo);

private Q_SLOTS:
    void cleanup();
    void ogniTestoTornaComeEntratoEIlNullRestaDistintoDalVuoto_data() { AggiungiBackend(); }
    void ogniTestoTornaComeEntratoEIlNullRestaDistintoDalVuoto();
    void leRigheViaggianoPerLaViaPiuRapidaDelServer_data() { AggiungiBackend(); }
    void leRigheViaggianoPerLaViaPiuRapidaDelServer();
    void unaRigaRifiutataAMetaGruppoVieneIndicataENessunaRigaDelGruppoResta_data() {
        AggiungiBackend();
    }
    void unaRigaRifiutataAMetaGruppoVieneIndicataENessunaRigaDelGruppoResta();
    void unValoreCheLaColonnaNonAccettaVieneIndicatoConLeParoleDelServer_data() {
        AggiungiBackend();
    }
    void unValoreCheLaColonnaNonAccettaVieneIndicatoConLeParoleDelServer();
};

std::unique_ptr<Caricamento> TestCaricamento::Apri(TipoBackend tipo) {
    banca = std::make_unique<BancaDatiProva>(tipo);
    cnn = banca->Apri();
    const QString reale =
        tipo == TipoBackend::SQLite ? QStringLiteral("REAL") : QStringLiteral("DOUBLE PRECISION");
    cnn->Esegui(QStringLiteral("CREATE TABLE Carico (ID INTEGER NOT NULL PRIMARY KEY, Nome "
                               "VARCHAR(200), Valore %1 NOT NULL, Code VARCHAR(10))")
                    .arg(reale));
    if (!cnn->Db().transaction())
        return nullptr;
    return cnn->backend().ApriCaricamento(cnn->Db(), QStringLiteral("Carico"), Colonne);
}

void TestCaricamento::cleanup() {
    cnn.reset();
    banca.reset();
}

void TestCaricamento::ogniTestoTornaComeEntratoEIlNullRestaDistintoDalVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    std::unique_ptr<Caricamento> caricamento = Apri(backend);
    QVERIFY(caricamento);
    const QList<QVariant> testi = {
        QStringLiteral("L'Aquila è città"),
        QStringLiteral("tab\tqui"),
        QStringLiteral("barra \\ rovescia \\N e \\t"),
        QStringLiteral("righe\r\ne\nancora\r"),
        QStringLiteral("virgolette \" e ''"),
        QStringLiteral(""),
        QVariant(),
        QStringLiteral("€ ü ß 中"),
    };
    // More rows than one batch holds, so that full batches and the rest both go.
    const int iRighe = 1200;
    for (int i = 0; i < iRighe; ++i) {
        const QVariantList riga = Riga(i + 1, testi[i % testi.size()]);
        caricamento->Aggiungi(riga);
        if (caricamento->Pieno())
            QCOMPARE(caricamento->Invia().iRiga, -1);
    }
    QCOMPARE(caricamento->Invia().iRiga, -1);
    QCOMPARE(caricamento->InAttesa(), 0);
    QVERIFY(cnn->Db().commit());
    QCOMPARE(Conta(*cnn), iRighe);
    QSqlQuery query(cnn->Db());
    QVERIFY(query.exec(QStringLiteral("SELECT ID, Nome, Valore, Code FROM Carico ORDER BY ID")));
    int i = 0;
    while (query.next()) {
        QCOMPARE(query.value(0).toInt(), i + 1);
        const QVariant atteso = testi[i % testi.size()];
        QCOMPARE(query.value(1).isNull(), atteso.isNull());
        if (!atteso.isNull())
            QCOMPARE(query.value(1).toString(), atteso.toString());
        QCOMPARE(query.value(2).toDouble(), 1.5);
        QCOMPARE(query.value(3).toString(), QStringLiteral("AB01"));
        ++i;
    }
    QCOMPARE(i, iRighe);
}

void TestCaricamento::leRigheViaggianoPerLaViaPiuRapidaDelServer() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    std::unique_ptr<Caricamento> caricamento = Apri(backend);
    QVERIFY(caricamento);
    QCOMPARE(caricamento->Via(), backend == TipoBackend::PostgreSQL ? QStringLiteral("COPY")
                                                                    : QStringLiteral("INSERT"));
}

void TestCaricamento::unaRigaRifiutataAMetaGruppoVieneIndicataENessunaRigaDelGruppoResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    std::unique_ptr<Caricamento> caricamento = Apri(backend);
    QVERIFY(caricamento);
    // A first batch goes in.
    for (int i = 1; i <= 10; ++i)
        caricamento->Aggiungi(Riga(i, QStringLiteral("primo")));
    QCOMPARE(caricamento->Invia().iRiga, -1);
    // A full batch whose row 137 repeats a key of the first one.
    int iAggiunte = 0;
    while (!caricamento->Pieno()) {
        caricamento->Aggiungi(
            Riga(iAggiunte == 137 ? 5 : 1000 + iAggiunte, QStringLiteral("secondo")));
        ++iAggiunte;
    }
    QVERIFY(iAggiunte > 137);
    const Caricamento::Rifiuto rifiuto = caricamento->Invia();
    QCOMPARE(rifiuto.iRiga, 137);
    QVERIFY(!rifiuto.sErrore.isEmpty());
    QCOMPARE(caricamento->InAttesa(), 0);
    // The transaction goes on: the first batch is there, the refused one is not, and more
    // rows still go in.
    QCOMPARE(Conta(*cnn), 10);
    caricamento->Aggiungi(Riga(11, QStringLiteral("terzo")));
    QCOMPARE(caricamento->Invia().iRiga, -1);
    QVERIFY(cnn->Db().commit());
    QCOMPARE(Conta(*cnn), 11);
}

void TestCaricamento::unValoreCheLaColonnaNonAccettaVieneIndicatoConLeParoleDelServer() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    std::unique_ptr<Caricamento> caricamento = Apri(backend);
    QVERIFY(caricamento);
    caricamento->Aggiungi(Riga(1, QStringLiteral("uno")));
    caricamento->Aggiungi(Riga(2, QStringLiteral("due"), QVariant()));
    caricamento->Aggiungi(Riga(3, QStringLiteral("tre")));
    const Caricamento::Rifiuto rifiuto = caricamento->Invia();
    QCOMPARE(rifiuto.iRiga, 1);
    QVERIFY2(rifiuto.sErrore.contains(QStringLiteral("NOT NULL"), Qt::CaseInsensitive) ||
                 rifiuto.sErrore.contains(QStringLiteral("null value"), Qt::CaseInsensitive),
             qPrintable(rifiuto.sErrore));
    QCOMPARE(Conta(*cnn), 0);
    QVERIFY(cnn->Db().rollback());
}

QTEST_GUILESS_MAIN(TestCaricamento)
#include "tst_caricamento.moc"
