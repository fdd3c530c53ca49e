#pragma once

// What the tree benchmarks share: a fresh database on SQLite (in a folder) or on the PostgreSQL
// server of TABELLION_PG_HOST/PORT/USER/PASSWORD, an archive of institutes with complessi four
// levels deep loaded into Elementi by the bulk path (the database's duties make the detail
// rows), and the bare read of a statement's rows, each value read once.

#include "LetturaFile.h"
#include "session/Errore.h"
#include "store/Backend.h"
#include "store/Caricamento.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"

#include <QElapsedTimer>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>

namespace ArchivioBanco {

inline double Secondi(const QElapsedTimer& orologio) {
    return static_cast<double>(orologio.nsecsElapsed()) / 1e9;
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

// About N elements: institutes "Archivio di Stato n. k", each with 8 fondi of 8 serie of 8
// sottoserie of 8 fascicoli (4,681 elements an institute), parents before sons, in one
// transaction. Gives the number of elements and the id of the last complesso.
inline qint64 CostruisciComplessi(const Connessione& cnn, qint64 quanti, qint64& lUltimo) {
    QSqlDatabase db = cnn.Db();
    db.transaction();
    const auto carico = cnn.backend().ApriCaricamento(
        db, QStringLiteral("Elementi"),
        {QStringLiteral("ID_Elemento"), QStringLiteral("ID_ElementoPadre"),
         QStringLiteral("Tipologia"), QStringLiteral("Denominazione")});
    qint64 prossimo = 1;
    qint64 fatti = 0;
    const auto crea = [&](const char* tipo, const QString& nome, qint64 padre) {
        const qint64 id = prossimo++;
        const std::array<QVariant, 4> riga{id, padre > 0 ? QVariant(padre) : QVariant(),
                                           QString::fromLatin1(tipo), nome};
        carico->Aggiungi(riga);
        if (carico->Pieno()) {
            const Caricamento::Rifiuto rifiuto = carico->Invia();
            if (rifiuto.iRiga >= 0) {
                throw Errore(QStringLiteral("bench"), rifiuto.sErrore);
            }
        }
        ++fatti;
        return id;
    };
    for (int numero = 1; fatti < quanti; ++numero) {
        const qint64 istituto =
            crea("01", QStringLiteral("Archivio di Stato n. %1").arg(numero), 0);
        for (int a = 0; a < 8 && fatti < quanti; ++a) {
            const qint64 fondo =
                crea("02", QStringLiteral("Fondo %1.%2").arg(numero).arg(a), istituto);
            for (int b = 0; b < 8 && fatti < quanti; ++b) {
                const qint64 serie = crea("02", QStringLiteral("Serie %1").arg(b), fondo);
                for (int d = 0; d < 8 && fatti < quanti; ++d) {
                    const qint64 sotto = crea("02", QStringLiteral("Sottoserie %1").arg(d), serie);
                    for (int e = 0; e < 8 && fatti < quanti; ++e) {
                        lUltimo = crea("02", QStringLiteral("Fascicoli %1").arg(e), sotto);
                    }
                }
            }
        }
    }
    const Caricamento::Rifiuto rifiuto = carico->Invia();
    if (rifiuto.iRiga >= 0) {
        throw Errore(QStringLiteral("bench"), rifiuto.sErrore);
    }
    db.commit();
    // What the server's own maintenance does after a large load.
    cnn.Esegui(QStringLiteral("ANALYZE"));
    return fatti;
}

// The rows of the statements read bare, forward only, every value of every column read once.
struct Lettura {
    double dSecondi = 0;
    qint64 righe = 0;
    qint64 valori = 0;
};

inline Lettura LetturaNuda(const Connessione& cnn, const QStringList& istruzioni) {
    Lettura lettura;
    QElapsedTimer orologio;
    orologio.start();
    for (const QString& sql : istruzioni) {
        QSqlQuery query(cnn.Db());
        query.setForwardOnly(true);
        if (!query.exec(sql)) {
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

} // namespace ArchivioBanco
