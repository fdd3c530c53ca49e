// The database's duties at scale: builds an archive of about N elements (institutes,
// complessi four levels deep, inventari with units two levels deep) through the element
// store, and compares the rate with a plain insert of the same rows into a table without
// triggers; then times the save of one complesso five levels down, whose ancestors re-derive
// their carried-up figures.
//
//   bench_archivio [elementi] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD (scripts/test sets them:
// TABELLION_COMANDO='build/bench/bench_archivio 200000 postgresql' scripts/test).

#include "ArchivioBanco.h"
#include "session/Errore.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QTextStream& Uscita() {
    static QTextStream uscita(stdout);
    return uscita;
}

struct Costruzione {
    const Connessione& cnn;
    qint64 elementi = 0;
    qint64 limite = 0;
    QSqlDatabase db;
    int inTransazione = 0;

    long Crea(const char* tipo, const QString& nome, long padre) {
        if (inTransazione == 0) {
            db.transaction();
        }
        const long id = ArchivioElementi::Crea(cnn, QLatin1String(tipo), nome, padre);
        ++elementi;
        if (++inTransazione == 1000) {
            db.commit();
            inTransazione = 0;
        }
        return id;
    }
    void Chiudi() {
        if (inTransazione > 0) {
            db.commit();
            inTransazione = 0;
        }
    }
};

// One institute's share of the archive: complessi with fan-out 8 four levels deep
// (8 + 64 + 512 + 4096), ten inventari each with 45 buste of 100 fascicoli.
void CostruisciIstituto(Costruzione& c, int numero) {
    const long istituto = c.Crea("01", QStringLiteral("Archivio di Stato n. %1").arg(numero), 0);
    for (int a = 0; a < 8 && c.elementi < c.limite; ++a) {
        const long fondo = c.Crea("02", QStringLiteral("Fondo %1.%2").arg(numero).arg(a), istituto);
        for (int b = 0; b < 8; ++b) {
            const long serie = c.Crea("02", QStringLiteral("Serie %1").arg(b), fondo);
            for (int d = 0; d < 8; ++d) {
                const long sotto = c.Crea("02", QStringLiteral("Sottoserie %1").arg(d), serie);
                for (int e = 0; e < 8; ++e) {
                    c.Crea("02", QStringLiteral("Fascicoli %1").arg(e), sotto);
                }
            }
        }
    }
    for (int i = 0; i < 10 && c.elementi < c.limite; ++i) {
        const long inventario =
            c.Crea("03", QStringLiteral("Inventario %1.%2").arg(numero).arg(i), istituto);
        for (int b = 0; b < 45 && c.elementi < c.limite; ++b) {
            const long busta = c.Crea("07", QStringLiteral("Busta %1").arg(b + 1), inventario);
            for (int f = 0; f < 100; ++f) {
                c.Crea("07", QStringLiteral("Fascicolo %1").arg(f + 1), busta);
            }
        }
    }
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList argomenti = app.arguments();
    const qint64 quanti = argomenti.size() > 1 ? argomenti[1].toLongLong() : 1'000'000;
    const bool postgresql = argomenti.size() > 2 && argomenti[2] == QStringLiteral("postgresql");
    QTemporaryDir cartella;
    const QString stringa =
        ArchivioBanco::Stringa(postgresql, cartella.path(), QStringLiteral("bench_archivio"));
    try {
        const StringaConnessione letta = StringaConnessione::Leggi(stringa);
        const Backend& backend = Connessione::BackendDi(letta);
        auto cnn = ArchivioBanco::Crea(postgresql, stringa);
        QSqlDatabase db = cnn->Db();

        // The archive, through the element store, with every duty.
        Costruzione costruzione{*cnn, 0, quanti, db, 0};
        QElapsedTimer orologio;
        orologio.start();
        for (int numero = 1; costruzione.elementi < quanti; ++numero) {
            CostruisciIstituto(costruzione, numero);
        }
        // A chain five complessi deep, for the save below.
        long padre = costruzione.Crea("01", QStringLiteral("Istituto della catena"), 0);
        for (int livello = 1; livello <= 5; ++livello) {
            padre = costruzione.Crea("02", QStringLiteral("Livello %1").arg(livello), padre);
        }
        costruzione.Chiudi();
        const double conDoveri = static_cast<double>(orologio.nsecsElapsed()) / 1e9;
        const qint64 elementi = costruzione.elementi;
        // What the server's own maintenance does after a large load.
        cnn->Esegui(QStringLiteral("ANALYZE"));

        // The same number of rows into a table with the same indexes and no duties.
        cnn->Esegui(QStringLiteral(
            "CREATE TABLE ElementiSemplici (ID_Elemento INTEGER PRIMARY KEY, "
            "ID_ElementoPadre INTEGER, Tipologia VARCHAR(2), Denominazione VARCHAR(512))"));
        cnn->Esegui(QStringLiteral(
            "CREATE INDEX ElementiSemplici_Padre ON ElementiSemplici (ID_ElementoPadre)"));
        orologio.restart();
        QSqlQuery semplice(db);
        semplice.prepare(
            QStringLiteral("INSERT INTO ElementiSemplici (ID_Elemento, ID_ElementoPadre, "
                           "Tipologia, Denominazione) VALUES (?, ?, ?, ?)"));
        db.transaction();
        for (qint64 i = 1; i <= elementi; ++i) {
            semplice.bindValue(0, i);
            semplice.bindValue(1, i > 1 ? QVariant(i / 8 + 1) : QVariant());
            semplice.bindValue(2, QStringLiteral("02"));
            semplice.bindValue(3, QStringLiteral("Elemento %1").arg(i));
            if (!semplice.exec()) {
                throw Errore(QStringLiteral("bench"), QStringLiteral("insert semplice fallito"));
            }
            if (i % 1000 == 0) {
                db.commit();
                db.transaction();
            }
        }
        db.commit();
        semplice = QSqlQuery();
        const double semplici = static_cast<double>(orologio.nsecsElapsed()) / 1e9;

        // The save of the complesso five levels down: its figures change, its four complesso
        // ancestors re-derive theirs.
        constexpr int salvataggi = 200;
        orologio.restart();
        for (int i = 0; i < salvataggi; ++i) {
            cnn->Esegui(
                QStringLiteral("UPDATE ComplessiDoc SET Quantita = ?, MetriLineari = ?, "
                               "KConservazione = 1.5, KPeriodo = 2, KSupporto = 1, KRilevanza = 1, "
                               "KRarita = 1, DataInizio = ?, DataFine = ? WHERE ID_Elemento = ?"),
                {10.0 + i, 1.0 + i, 14000101 + i * 10000, 15001231 + i * 10000,
                 static_cast<qlonglong>(padre)});
        }
        const double salvataggio = static_cast<double>(orologio.nsecsElapsed()) / 1e6 / salvataggi;
        const double verifica =
            cnn->Esegui(QStringLiteral(
                            "SELECT QuantitaFigli FROM ComplessiDoc WHERE ID_Elemento = "
                            "(SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = "
                            "(SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = "
                            "(SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = "
                            "(SELECT ID_ElementoPadre FROM Elementi WHERE ID_Elemento = ?))))"),
                        {static_cast<qlonglong>(padre)})
                    .next()
                ? 1.0
                : 0.0;

        Uscita() << QStringLiteral(
                        "%1: %2 elementi con i doveri del database in %3 s (%4 al secondo)")
                        .arg(backend.Descrizione())
                        .arg(elementi)
                        .arg(conDoveri, 0, 'f', 1)
                        .arg(elementi / conDoveri, 0, 'f', 0)
                 << Qt::endl;
        Uscita() << QStringLiteral("%1: %2 righe semplici in %3 s (%4 al secondo)")
                        .arg(backend.Descrizione())
                        .arg(elementi)
                        .arg(semplici, 0, 'f', 1)
                        .arg(elementi / semplici, 0, 'f', 0)
                 << Qt::endl;
        Uscita() << QStringLiteral("%1: rapporto doveri / semplice = %2")
                        .arg(backend.Descrizione())
                        .arg(conDoveri / semplici, 0, 'f', 2)
                 << Qt::endl;
        Uscita() << QStringLiteral(
                        "%1: salvataggio di un complesso al quinto livello: %2 ms (media di %3)")
                        .arg(backend.Descrizione())
                        .arg(salvataggio, 0, 'f', 3)
                        .arg(salvataggi)
                 << Qt::endl;
        costruzione.db = QSqlDatabase();
        db = QSqlDatabase();
        cnn->Chiudi();
        backend.EliminaDatabase(letta);
        return verifica > 0 ? 0 : 1;
    } catch (const Errore& errore) {
        QTextStream(stderr) << errore.testo() << Qt::endl;
        return 1;
    }
}
