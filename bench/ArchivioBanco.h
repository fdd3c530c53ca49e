#pragma once

// What the tree benchmarks share: a fresh database on SQLite (in a folder) or on the PostgreSQL
// server of TABELLION_PG_HOST/PORT/USER/PASSWORD, an archive of institutes with complessi four
// levels deep and finding aids loaded into Elementi by the bulk path (the database's duties
// make the detail rows), and the bare read of a statement's rows, each value read once.

#include "LetturaFile.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Caricamento.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"

#include <QElapsedTimer>
#include <QList>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>
#include <array>
#include <memory>

namespace ArchivioBanco {

inline double Secondi(const QElapsedTimer& orologio) {
    return static_cast<double>(orologio.nsecsElapsed()) / 1e9;
}

// Where a benchmark prints, and a time in seconds as it prints it.
inline QTextStream& Uscita() {
    static QTextStream uscita(stdout);
    return uscita;
}

inline QString Tempo(double dSecondi) {
    return QStringLiteral("%1 s").arg(dSecondi, 0, 'f', 3);
}

// The connection string of the benchmark's database.
inline QString Stringa(bool bPostgreSQL, const QString& sCartella, const QString& sNome) {
    if (bPostgreSQL) {
        return ComponiStringaConnessione(
            QStringLiteral("Provider=QPSQL;Port=%1").arg(qEnvironmentVariable("TABELLION_PG_PORT")),
            qEnvironmentVariable("TABELLION_PG_HOST"), sNome,
            qEnvironmentVariable("TABELLION_PG_USER"),
            qEnvironmentVariable("TABELLION_PG_PASSWORD"));
    }
    return ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), sCartella, sNome,
                                     QString(), QString());
}

// The database made anew with the program's schema.
inline std::shared_ptr<Connessione> Crea(bool bPostgreSQL, const QString& sStringa) {
    const StringaConnessione letta = StringaConnessione::Leggi(sStringa);
    const Backend& backend = Connessione::BackendDi(letta);
    backend.EliminaDatabase(letta);
    backend.CreaDatabase(letta);
    auto cnn = Connessione::Apri(sStringa);
    const QString schema = QStringLiteral(TABELLION_SORGENTI) +
                           (bPostgreSQL ? QStringLiteral("/db/postgresql/schema.sql")
                                        : QStringLiteral("/db/sqlite/schema.sql"));
    EseguiScript(*cnn, LeggiFile(schema), schema);
    return cnn;
}

// The database away (a PostgreSQL one; an SQLite file goes with its folder).
inline void Elimina(const QString& sStringa) {
    const StringaConnessione letta = StringaConnessione::Leggi(sStringa);
    Connessione::BackendDi(letta).EliminaDatabase(letta);
}

// A benchmark of a window: the size and the server from its command line ([elementi]
// [sqlite|postgresql]; 100,000 on SQLite when not given), the program folder of the sources
// (the panel's pictures, the lookup lists), a fresh database as the session's connection, of
// an "I" site. At the end the connection is closed and the database dropped.
class BancoFinestra {
public:
    BancoFinestra(const QStringList& argomenti, const QString& sNome)
        : richiesti(argomenti.size() > 1 ? argomenti[1].toLongLong() : 100000)
        , bPostgreSQL(argomenti.value(2) == QStringLiteral("postgresql"))
        , sStringa(Stringa(bPostgreSQL, cartella.path(), sNome)) {
        qputenv("TABELLION_CARTELLA", QByteArrayLiteral(TABELLION_SORGENTI "/site"));
        Sessione::cnn = Crea(bPostgreSQL, sStringa);
        Sessione::bIstituto = true;
    }
    ~BancoFinestra() {
        try {
            Sessione::cnn->Chiudi();
            Sessione::cnn.reset();
            Elimina(sStringa);
        } catch (const Errore& errore) {
            Uscita() << errore.testo() << '\n';
        }
    }
    BancoFinestra(const BancoFinestra&) = delete;
    BancoFinestra& operator=(const BancoFinestra&) = delete;

    const qint64 richiesti;
    const bool bPostgreSQL;

private:
    QTemporaryDir cartella;
    const QString sStringa;
};

// A load refused by the server ends the benchmark with the server's words.
inline void Invia(Caricamento& carico) {
    const Caricamento::Rifiuto rifiuto = carico.Invia();
    if (rifiuto.iRiga >= 0) {
        throw Errore(QStringLiteral("bench"), rifiuto.sErrore);
    }
}

// Rows of Elementi by the bulk path, inside the caller's transaction, their keys given in
// order from the first one (the database's duties make the detail rows).
class CaricoElementi {
public:
    CaricoElementi(const Connessione& cnn, qint64 lPrimo)
        : carico(cnn.backend().ApriCaricamento(
              cnn.Db(), QStringLiteral("Elementi"),
              {QStringLiteral("ID_Elemento"), QStringLiteral("ID_ElementoPadre"),
               QStringLiteral("Tipologia"), QStringLiteral("Denominazione")}))
        , prossimo(lPrimo) {}

    // An element under that parent (0: at the top); its id.
    qint64 Crea(const char* tipo, const QString& nome, qint64 padre) {
        const qint64 id = prossimo++;
        const std::array<QVariant, 4> riga{id, padre > 0 ? QVariant(padre) : QVariant(),
                                           QString::fromLatin1(tipo), nome};
        carico->Aggiungi(riga);
        if (carico->Pieno()) {
            Invia(*carico);
        }
        ++fatti;
        return id;
    }
    // The rows still held sent.
    void Fine() { Invia(*carico); }
    qint64 Fatti() const { return fatti; }

private:
    std::unique_ptr<Caricamento> carico;
    qint64 prossimo;
    qint64 fatti = 0;
};

// N producers of a kind in Soggetti by the bulk path, in one transaction, their keys from the
// first one and their names in a scattered order (the database's duties make the kind's rows).
inline void CostruisciProduttori(const Connessione& cnn, qint64 quanti, const char* tipo,
                                 const QString& sPrefisso, qint64 lPrimo) {
    QSqlDatabase db = cnn.Db();
    db.transaction();
    const auto carico = cnn.backend().ApriCaricamento(db, QStringLiteral("Soggetti"),
                                                      {QStringLiteral("ID_Soggetto"),
                                                       QStringLiteral("Denominazione"),
                                                       QStringLiteral("TipoSoggetto")});
    for (qint64 k = 0; k < quanti; ++k) {
        const qint64 sparso = (k * 7919) % quanti;
        const std::array<QVariant, 3> riga{
            lPrimo + k,
            QStringLiteral("%1 %2").arg(sPrefisso).arg(static_cast<qlonglong>(sparso), 6, 10,
                                                       QLatin1Char('0')),
            QString::fromLatin1(tipo)};
        carico->Aggiungi(riga);
        if (carico->Pieno()) {
            Invia(*carico);
        }
    }
    Invia(*carico);
    db.commit();
}

// N persons, M families and M bodies (keys from 1 in that order), with places, dates and
// titles.
inline void CostruisciArchivioProduttori(const Connessione& cnn, qint64 persone, qint64 altri) {
    CostruisciProduttori(cnn, persone, "P", QStringLiteral("Rossi"), 1);
    CostruisciProduttori(cnn, altri, "F", QStringLiteral("Famiglia"), persone + 1);
    CostruisciProduttori(cnn, altri, "E", QStringLiteral("Ente"), persone + altri + 1);
    cnn.Esegui(QStringLiteral(
        "UPDATE Persone SET LuogoNascita = 'Lucca', DataNascita = 18000101 + ID_Soggetto % 28, "
        "LuogoMorte = 'Pisa', DataMorte = 18600101, Titoli = 'notaio'"));
    cnn.Esegui(QStringLiteral(
        "UPDATE Famiglie SET Titoli = 'conti', DescrizioneEstremi = 'secc. XIII-XIX'"));
    cnn.Esegui(
        QStringLiteral("UPDATE Enti SET Sede = 'Lucca', DescrizioneEstremi = '(1300-1800)'"));
}

// About N elements: institutes "Archivio di Stato n. k", each with 8 fondi of 8 serie of 8
// sottoserie of 8 fascicoli (4,681 elements an institute), parents before sons, in one
// transaction. Gives the number of elements and the id of the last complesso.
inline qint64 CostruisciComplessi(const Connessione& cnn, qint64 quanti, qint64& lUltimo) {
    QSqlDatabase db = cnn.Db();
    db.transaction();
    CaricoElementi elementi(cnn, 1);
    const auto crea = [&](const char* tipo, const QString& nome, qint64 padre) {
        return elementi.Crea(tipo, nome, padre);
    };
    for (int numero = 1; elementi.Fatti() < quanti; ++numero) {
        const qint64 istituto =
            crea("01", QStringLiteral("Archivio di Stato n. %1").arg(numero), 0);
        for (int a = 0; a < 8 && elementi.Fatti() < quanti; ++a) {
            const qint64 fondo =
                crea("02", QStringLiteral("Fondo %1.%2").arg(numero).arg(a), istituto);
            for (int b = 0; b < 8 && elementi.Fatti() < quanti; ++b) {
                const qint64 serie = crea("02", QStringLiteral("Serie %1").arg(b), fondo);
                for (int d = 0; d < 8 && elementi.Fatti() < quanti; ++d) {
                    const qint64 sotto = crea("02", QStringLiteral("Sottoserie %1").arg(d), serie);
                    for (int e = 0; e < 8 && elementi.Fatti() < quanti; ++e) {
                        lUltimo = crea("02", QStringLiteral("Fascicoli %1").arg(e), sotto);
                    }
                }
            }
        }
    }
    elementi.Fine();
    db.commit();
    // What the server's own maintenance does after a large load.
    cnn.Esegui(QStringLiteral("ANALYZE"));
    return elementi.Fatti();
}

// N finding aids "Inventario n. k", dealt in turn to the institutes already there, after the
// elements already there; one in iOgniLegato is linked to the first fondo of its institute.
// In one transaction. Gives the number of finding aids and the id of the last.
inline qint64 CostruisciInventari(const Connessione& cnn, qint64 quanti, int iOgniLegato,
                                  qint64& lUltimo) {
    struct Istituto {
        qint64 id;
        qint64 fondo;
    };
    QList<Istituto> istituti;
    qint64 lPrimo = 1;
    {
        QSqlQuery righe = cnn.Esegui(QStringLiteral(
            "SELECT I.ID_Elemento, MIN(F.ID_Elemento) FROM Elementi I LEFT JOIN Elementi F "
            "ON F.ID_ElementoPadre = I.ID_Elemento AND F.Tipologia = '02' "
            "WHERE I.Tipologia = '01' GROUP BY I.ID_Elemento ORDER BY I.ID_Elemento"));
        while (righe.next()) {
            istituti.append({righe.value(0).toLongLong(), righe.value(1).toLongLong()});
        }
        QSqlQuery massimo = cnn.Esegui(QStringLiteral("SELECT MAX(ID_Elemento) FROM Elementi"));
        if (massimo.next()) {
            lPrimo = massimo.value(0).toLongLong() + 1;
        }
    }
    if (istituti.isEmpty()) {
        throw Errore(QStringLiteral("bench"), QStringLiteral("Nessun istituto per gli inventari"));
    }
    QSqlDatabase db = cnn.Db();
    db.transaction();
    CaricoElementi inventari(cnn, lPrimo);
    QList<std::array<QVariant, 3>> legami;
    for (qint64 k = 0; k < quanti; ++k) {
        const Istituto& istituto = istituti[static_cast<qsizetype>(k % istituti.size())];
        lUltimo = inventari.Crea("03", QStringLiteral("Inventario n. %1").arg(k + 1), istituto.id);
        if (iOgniLegato > 0 && k % iOgniLegato == 0 && istituto.fondo > 0) {
            legami.append({istituto.fondo, lUltimo, QStringLiteral("")});
        }
    }
    inventari.Fine();
    const auto links = cnn.backend().ApriCaricamento(db, QStringLiteral("Links"),
                                                     {QStringLiteral("ID_Elemento"),
                                                      QStringLiteral("ID_ElementoLink"),
                                                      QStringLiteral("Specifica")});
    for (const auto& legame : legami) {
        links->Aggiungi(legame);
        if (links->Pieno()) {
            Invia(*links);
        }
    }
    Invia(*links);
    db.commit();
    cnn.Esegui(QStringLiteral("ANALYZE"));
    return inventari.Fatti();
}

// The rows of the statements read bare, forward only, every value of every column read once.
struct Lettura {
    double dSecondi = 0;
    qint64 righe = 0;
    qint64 valori = 0;
};

// A statement and the values bound to its "?".
struct Istruzione {
    QString sql;
    QVariantList valori;
};

inline Lettura LetturaNuda(const Connessione& cnn, const QList<Istruzione>& istruzioni) {
    Lettura lettura;
    QElapsedTimer orologio;
    orologio.start();
    for (const auto& [sql, valori] : istruzioni) {
        QSqlQuery query(cnn.Db());
        query.setForwardOnly(true);
        bool bFatta = valori.isEmpty() || query.prepare(sql);
        for (qsizetype i = 0; bFatta && i < valori.size(); ++i) {
            query.bindValue(static_cast<int>(i), cnn.backend().ValoreDaLegare(valori[i]));
        }
        if (!bFatta || !(valori.isEmpty() ? query.exec(sql) : query.exec())) {
            throw Errore(QStringLiteral("bench"), sql);
        }
        const int colonne = query.record().count();
        while (query.next()) {
            for (int i = 0; i < colonne; ++i) {
                if (!query.value(i).isNull()) {
                    ++lettura.valori;
                }
            }
            ++lettura.righe;
        }
    }
    lettura.dSecondi = Secondi(orologio);
    return lettura;
}

inline Lettura LetturaNuda(const Connessione& cnn, const QStringList& istruzioni) {
    QList<Istruzione> senzaValori;
    for (const QString& sql : istruzioni) {
        senzaValori.append({sql, {}});
    }
    return LetturaNuda(cnn, senzaValori);
}

} // namespace ArchivioBanco
