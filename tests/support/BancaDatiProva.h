#pragma once

// A fresh database with the program's schema for one test, on SQLite or on the PostgreSQL
// server that scripts/test starts (TABELLION_PG_HOST, _PORT, _USER, _PASSWORD). Without that
// server the PostgreSQL rows are skipped, loudly; with TABELLION_PG_RICHIESTO=1 they fail.

#include <QString>
#include <QTemporaryDir>
#include <memory>

class Connessione;

enum class TipoBackend { SQLite, PostgreSQL };
Q_DECLARE_METATYPE(TipoBackend)

namespace ServerProva {
bool PostgreSQLDisponibile();
bool PostgreSQLRichiesto();
QString Host();
int Porta();
QString Utente();
QString Password();
// A name that no other test of this run, nor another test process, takes: the prefix, the
// process and a counter.
QString NomeUnico(const QString& sPrefisso);
// A statement run as it stands by the test server's superuser on the database "postgres" (roles,
// databases, rights); false, with a warning unless bMuto, when the server refuses it. The first
// column of the first row, if any, goes to *sValore.
bool EseguiComeSuperutente(const QString& sSql, bool bMuto = false, QString* sValore = nullptr);
} // namespace ServerProva

// Adds the rows "sqlite" and "postgresql" with the column "backend" to a data-driven test.
void AggiungiBackend();

// In a test body: skips (or fails, when the server is required) a PostgreSQL row without server.
#define RICHIEDI_BACKEND(tipo)                                                                     \
    do {                                                                                           \
        if ((tipo) == TipoBackend::PostgreSQL && !ServerProva::PostgreSQLDisponibile()) {          \
            if (ServerProva::PostgreSQLRichiesto())                                                \
                QFAIL("the PostgreSQL test server is required but TABELLION_PG_* is not set");     \
            QSKIP("PostgreSQL test server not started (TABELLION_PG_* not set): row skipped");     \
        }                                                                                          \
    } while (false)

class BancaDatiProva {
public:
    // Creates the database and runs the schema (and, if given, more scripts of db/).
    explicit BancaDatiProva(TipoBackend tipo, const QStringList& altriScript = {});
    ~BancaDatiProva();
    BancaDatiProva(const BancaDatiProva&) = delete;
    BancaDatiProva& operator=(const BancaDatiProva&) = delete;

    TipoBackend Tipo() const { return tipo; }
    // The head of the connection string, as Connetti.txt gives it.
    QString Testa() const;
    // Data Source and Initial Catalog.
    QString Server() const;
    QString Database() const { return sDatabase; }
    QString Utente() const;
    QString Password() const;
    // The whole string, as the login makes it.
    QString Stringa() const;
    std::shared_ptr<Connessione> Apri() const;

private:
    TipoBackend tipo;
    QTemporaryDir cartella;
    QString sDatabase;
    bool bCreata = false;
};
