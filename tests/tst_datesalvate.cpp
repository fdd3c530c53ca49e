// Dates as the database keeps them. SQLite has no date type: every date and date-time column
// holds one text, the one SQLite's own date functions read ("yyyy-MM-dd HH:mm:ss"), whatever
// the Qt type of the value bound and whichever road it takes (a statement, an insert with its
// key, the bulk load of the import); PostgreSQL keeps timestamps. The date of description of a
// complesso saved by its record, and the demo archive's rows, on both backends.

#include "records/ucComplesso.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Caricamento.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "PiattaformaScriptata.h"

#include <QDateEdit>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSqlQuery>
#include <QtTest>

namespace {

QVariant Id(qint64 valore) {
    return QVariant(qlonglong(valore));
}

QVariant Valore(const Connessione& cnn, const QString& sql,
                std::initializer_list<QVariant> valori) {
    QSqlQuery query = cnn.Esegui(sql, valori);
    return query.next() ? query.value(0) : QVariant();
}

// A date or date-time column of the schema and a row of its table.
struct ColonnaData {
    QString sTabella;
    QString sColonna;
    QString sChiave;
    qint64 lRiga;
};

// Every date and date-time column of the schema, each with a row to write in.
QList<ColonnaData> ColonneDiDate(const Connessione& cnn) {
    const long istituto =
        ArchivioElementi::Crea(cnn, QStringLiteral("01"), QStringLiteral("Ist"), 0);
    const long versamento =
        ArchivioElementi::Crea(cnn, QStringLiteral("04"), QStringLiteral("Versamento"), istituto);
    const qint64 soggetto =
        cnn.Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                      {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                      {QStringLiteral("Guinigi"), QStringLiteral("F")});
    const QString elemento = QStringLiteral("ID_Elemento");
    return {
        {QStringLiteral("Elementi"), QStringLiteral("DataRedazione"), elemento, istituto},
        {QStringLiteral("Versamenti"), QStringLiteral("Data"), elemento, versamento},
        {QStringLiteral("Versamenti"), QStringLiteral("DataAcquisizione"), elemento, versamento},
        {QStringLiteral("Soggetti"), QStringLiteral("DataRedazione"), QStringLiteral("ID_Soggetto"),
         soggetto}};
}

QVariant Letta(const Connessione& cnn, const ColonnaData& colonna) {
    return Valore(cnn,
                  QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                      .arg(colonna.sColonna, colonna.sTabella, colonna.sChiave),
                  {Id(colonna.lRiga)});
}

// What a column holds after the value was bound: on SQLite the text, on PostgreSQL the value.
void Verifica(TipoBackend tipo, const QVariant& letta, const QString& sTesto,
              const QDateTime& quando, const QString& sDove) {
    if (sTesto.isNull()) {
        QVERIFY2(letta.isNull(), qPrintable(sDove));
    } else if (tipo == TipoBackend::SQLite) {
        QCOMPARE(letta.metaType().id(), QMetaType::QString);
        QVERIFY2(letta.toString() == sTesto,
                 qPrintable(QStringLiteral("%1: \"%2\"").arg(sDove, letta.toString())));
    } else {
        QVERIFY2(letta.toDateTime() == quando,
                 qPrintable(QStringLiteral("%1: %2").arg(sDove, letta.toString())));
    }
}

} // namespace

class TestDateSalvate : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void ogniColonnaDiDateTieneUnaFormaSolaQualunqueSiaIlTipoLegato_data();
    void ogniColonnaDiDateTieneUnaFormaSolaQualunqueSiaIlTipoLegato();
    void ilCaricamentoInBloccoScriveLeDateNellaStessaForma_data();
    void ilCaricamentoInBloccoScriveLeDateNellaStessaForma();
    void laDataDiRedazioneSalvataDalComplessoSiRileggeNellaStessaForma_data() { AggiungiBackend(); }
    void laDataDiRedazioneSalvataDalComplessoSiRileggeNellaStessaForma();
    void leDateDellArchivioDimostrativoSonoNellaStessaForma_data() { AggiungiBackend(); }
    void leDateDellArchivioDimostrativoSonoNellaStessaForma();
};

void TestDateSalvate::cleanup() {
    Sessione::cnn.reset();
}

void TestDateSalvate::ogniColonnaDiDateTieneUnaFormaSolaQualunqueSiaIlTipoLegato_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QVariant>("legato");
    QTest::addColumn<QString>("testo");    // on SQLite; null: the column is Null
    QTest::addColumn<QDateTime>("quando"); // on PostgreSQL
    const QDateTime mattina(QDate(2026, 11, 22), QTime(9, 5, 7, 250));
    const QDateTime mezzanotte(QDate(2026, 11, 22), QTime(0, 0));
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        const auto riga = [nome](const char* caso) {
            return &QTest::newRow(
                qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(nome), QLatin1String(caso))));
        };
        *riga("giorno") << tipo << QVariant(QDate(2026, 11, 22))
                        << QStringLiteral("2026-11-22 00:00:00") << mezzanotte;
        *riga("giorno e ora") << tipo << QVariant(mattina) << QStringLiteral("2026-11-22 09:05:07")
                              << mattina;
        *riga("mezzanotte") << tipo << QVariant(mezzanotte) << QStringLiteral("2026-11-22 00:00:00")
                            << mezzanotte;
        *riga("anno di tre cifre")
            << tipo << QVariant(QDate(987, 6, 5)) << QStringLiteral("0987-06-05 00:00:00")
            << QDateTime(QDate(987, 6, 5), QTime(0, 0));
        *riga("giorno nullo") << tipo << QVariant(QMetaType::fromType<QDate>()) << QString()
                              << QDateTime();
        *riga("data e ora nulla") << tipo << QVariant(QMetaType::fromType<QDateTime>()) << QString()
                                  << QDateTime();
    }
}

void TestDateSalvate::ogniColonnaDiDateTieneUnaFormaSolaQualunqueSiaIlTipoLegato() {
    QFETCH(TipoBackend, backend);
    QFETCH(QVariant, legato);
    QFETCH(QString, testo);
    QFETCH(QDateTime, quando);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    const auto cnn = banca.Apri();
    for (const ColonnaData& colonna : ColonneDiDate(*cnn)) {
        cnn->Esegui(QStringLiteral("UPDATE %1 SET %2 = ? WHERE %3 = ?")
                        .arg(colonna.sTabella, colonna.sColonna, colonna.sChiave),
                    {legato, Id(colonna.lRiga)});
        Verifica(backend, Letta(*cnn, colonna), testo, quando,
                 colonna.sTabella + QLatin1Char('.') + colonna.sColonna);
        if (QTest::currentTestFailed())
            return;
        if (backend == TipoBackend::SQLite && !testo.isNull()) {
            // The text that SQLite's date functions read and give back unchanged.
            QCOMPARE(Valore(*cnn,
                            QStringLiteral("SELECT strftime('%Y-%m-%d %H:%M:%S', %1) FROM %2 "
                                           "WHERE %3 = ?")
                                .arg(colonna.sColonna, colonna.sTabella, colonna.sChiave),
                            {Id(colonna.lRiga)})
                         .toString(),
                     testo);
        }
    }
    // An insert that gives back its key binds the same way.
    const qint64 soggetto =
        cnn->Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                       {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto"),
                        QStringLiteral("DataRedazione")},
                       {QStringLiteral("Altopascio"), QStringLiteral("E"), legato});
    Verifica(backend,
             Letta(*cnn, {QStringLiteral("Soggetti"), QStringLiteral("DataRedazione"),
                          QStringLiteral("ID_Soggetto"), soggetto}),
             testo, quando, QStringLiteral("Inserisci"));
}

void TestDateSalvate::ilCaricamentoInBloccoScriveLeDateNellaStessaForma_data() {
    ogniColonnaDiDateTieneUnaFormaSolaQualunqueSiaIlTipoLegato_data();
}

void TestDateSalvate::ilCaricamentoInBloccoScriveLeDateNellaStessaForma() {
    QFETCH(TipoBackend, backend);
    QFETCH(QVariant, legato);
    QFETCH(QString, testo);
    QFETCH(QDateTime, quando);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend);
    const auto cnn = banca.Apri();
    QVERIFY(cnn->Db().transaction());
    const QStringList colonne{QStringLiteral("ID_Soggetto"), QStringLiteral("Denominazione"),
                              QStringLiteral("TipoSoggetto"), QStringLiteral("DataRedazione")};
    std::unique_ptr<Caricamento> caricamento =
        cnn->backend().ApriCaricamento(cnn->Db(), QStringLiteral("Soggetti"), colonne);
    const QVariantList riga{QStringLiteral("4242"), QStringLiteral("Bernardini"),
                            QStringLiteral("F"), legato};
    caricamento->Aggiungi(riga);
    QCOMPARE(caricamento->Invia().iRiga, qsizetype(-1));
    caricamento.reset();
    QVERIFY(cnn->Db().commit());
    Verifica(backend,
             Letta(*cnn, {QStringLiteral("Soggetti"), QStringLiteral("DataRedazione"),
                          QStringLiteral("ID_Soggetto"), 4242}),
             testo, quando, QStringLiteral("caricamento"));
}

void TestDateSalvate::laDataDiRedazioneSalvataDalComplessoSiRileggeNellaStessaForma() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    CartellaProva cartella;
    QFile lista(QStringLiteral(TABELLION_SORGENTI "/site/TipologiaCD.txt"));
    QVERIFY(lista.open(QIODevice::ReadOnly));
    cartella.Scrivi(QStringLiteral("TipologiaCD.txt"), lista.readAll());
    PiattaformaScriptata piattaforma;
    BancaDatiProva banca(backend);
    Sessione::cnn = banca.Apri();
    // The session's connection goes before its database.
    const auto chiudi = qScopeGuard([] { Sessione::cnn.reset(); });
    const Connessione& cnn = *Sessione::cnn;
    const long istituto =
        ArchivioElementi::Crea(cnn, QStringLiteral("01"), QStringLiteral("Archivio"), 0);
    const long complesso =
        ArchivioElementi::Crea(cnn, QStringLiteral("02"), QStringLiteral("Fondo"), istituto);

    ucComplesso editore;
    editore.Init(false, nullptr);
    editore.Mostra(complesso);
    editore.Modifica();
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(QDate(2026, 11, 22));
    editore.Salva(complesso);
    QVERIFY(piattaforma.Messaggi().isEmpty());
    Verifica(backend,
             Letta(cnn, {QStringLiteral("Elementi"), QStringLiteral("DataRedazione"),
                         QStringLiteral("ID_Elemento"), complesso}),
             QStringLiteral("2026-11-22 00:00:00"), QDateTime(QDate(2026, 11, 22), QTime(0, 0)),
             QStringLiteral("Elementi.DataRedazione"));

    // Read back by the record.
    ucComplesso altro;
    altro.Init(false, nullptr);
    altro.Mostra(complesso);
    QCOMPARE(altro.findChild<QDateEdit*>(QStringLiteral("DTPData"))->date(), QDate(2026, 11, 22));
}

void TestDateSalvate::leDateDellArchivioDimostrativoSonoNellaStessaForma() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    BancaDatiProva banca(backend, {QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")});
    const auto cnn = banca.Apri();
    static const QRegularExpression forma(
        QStringLiteral("^\\d{4}-\\d{2}-\\d{2} \\d{2}:\\d{2}:\\d{2}$"));
    int iDate = 0;
    for (const auto& [tabella, colonna] :
         {std::pair{"Elementi", "DataRedazione"}, std::pair{"Soggetti", "DataRedazione"},
          std::pair{"Versamenti", "Data"}, std::pair{"Versamenti", "DataAcquisizione"}}) {
        QSqlQuery query = cnn->Esegui(QStringLiteral("SELECT %1 FROM %2 WHERE %1 IS NOT NULL")
                                          .arg(QLatin1String(colonna), QLatin1String(tabella)));
        while (query.next()) {
            ++iDate;
            const QVariant data = query.value(0);
            if (backend == TipoBackend::SQLite) {
                QVERIFY2(forma.match(data.toString()).hasMatch(), qPrintable(data.toString()));
            } else {
                QVERIFY(data.toDateTime().isValid());
            }
        }
    }
    QVERIFY(iDate > 0);
}

QTEST_MAIN(TestDateSalvate)
#include "tst_datesalvate.moc"
