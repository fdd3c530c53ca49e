#include "BancaDatiProva.h"

#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>

namespace ServerProva {
bool PostgreSQLDisponibile() {
    return !qEnvironmentVariable("TABELLION_PG_PORT").isEmpty();
}
bool PostgreSQLRichiesto() {
    return qEnvironmentVariable("TABELLION_PG_RICHIESTO") == QStringLiteral("1");
}
QString Host() {
    const QString host = qEnvironmentVariable("TABELLION_PG_HOST");
    return host.isEmpty() ? QStringLiteral("127.0.0.1") : host;
}
int Porta() {
    return qEnvironmentVariableIntValue("TABELLION_PG_PORT");
}
QString Utente() {
    return qEnvironmentVariable("TABELLION_PG_USER");
}
QString Password() {
    return qEnvironmentVariable("TABELLION_PG_PASSWORD");
}
QString NomeUnico(const QString& sPrefisso) {
    static QAtomicInt contatore;
    return QStringLiteral("%1_%2_%3")
        .arg(sPrefisso)
        .arg(QCoreApplication::applicationPid())
        .arg(contatore.fetchAndAddRelaxed(1));
}
bool EseguiComeSuperutente(const QString& sSql, bool bMuto, QString* sValore) {
    // A connection of its own for each statement, closed and removed at once: none is left for
    // the end of the process.
    const QString sConnessione = NomeUnico(QStringLiteral("superutente"));
    bool bFatto = false;
    {
        QSqlDatabase server = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), sConnessione);
        server.setHostName(Host());
        server.setPort(Porta());
        server.setUserName(Utente());
        server.setPassword(Password());
        server.setDatabaseName(QStringLiteral("postgres"));
        if (!server.open()) {
            qWarning("%s: %s", qPrintable(sSql), qPrintable(server.lastError().text()));
        } else {
            QSqlQuery query(server);
            query.exec(QStringLiteral("SET client_min_messages = warning"));
            bFatto = query.exec(sSql);
            if (!bFatto && !bMuto) {
                qWarning("%s: %s", qPrintable(sSql), qPrintable(query.lastError().text()));
            }
            if (bFatto && sValore) {
                *sValore = query.next() ? query.value(0).toString() : QString();
            }
        }
    }
    QSqlDatabase::removeDatabase(sConnessione);
    return bFatto;
}
} // namespace ServerProva

void AggiungiBackend() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::newRow("sqlite") << TipoBackend::SQLite;
    QTest::newRow("postgresql") << TipoBackend::PostgreSQL;
}

namespace {

QString LeggiFile(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(percorso));
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

BancaDatiProva::BancaDatiProva(TipoBackend tipoDato, const QStringList& altriScript)
    : tipo(tipoDato)
    , sDatabase(ServerProva::NomeUnico(QStringLiteral("prova"))) {
    const StringaConnessione stringa = StringaConnessione::Leggi(Stringa());
    Connessione::BackendDi(stringa).CreaDatabase(stringa);
    bCreata = true;
    const QString sorgenti = QStringLiteral(TABELLION_SORGENTI);
    const QString schema =
        sorgenti + (tipo == TipoBackend::SQLite ? QStringLiteral("/db/sqlite/schema.sql")
                                                : QStringLiteral("/db/postgresql/schema.sql"));
    auto connessione = Apri();
    EseguiScript(*connessione, LeggiFile(schema), schema);
    for (const QString& script : altriScript) {
        const QString percorso = sorgenti + QStringLiteral("/db/") + script;
        EseguiScript(*connessione, LeggiFile(percorso), percorso);
    }
    connessione->Chiudi();
}

BancaDatiProva::~BancaDatiProva() {
    if (!bCreata) {
        return;
    }
    try {
        const StringaConnessione stringa = StringaConnessione::Leggi(Stringa());
        Connessione::BackendDi(stringa).EliminaDatabase(stringa);
    } catch (const std::exception& errore) {
        qWarning("database %s not removed: %s", qPrintable(sDatabase), errore.what());
    }
}

QString BancaDatiProva::Testa() const {
    return tipo == TipoBackend::SQLite
               ? QStringLiteral("Provider=QSQLITE")
               : QStringLiteral("Provider=QPSQL;Port=%1").arg(ServerProva::Porta());
}

QString BancaDatiProva::Server() const {
    return tipo == TipoBackend::SQLite ? cartella.path() : ServerProva::Host();
}

QString BancaDatiProva::Utente() const {
    return tipo == TipoBackend::SQLite ? QStringLiteral("archivista") : ServerProva::Utente();
}

QString BancaDatiProva::Password() const {
    return tipo == TipoBackend::SQLite ? QStringLiteral("segreta") : ServerProva::Password();
}

QString BancaDatiProva::Stringa() const {
    return ComponiStringaConnessione(Testa(), Server(), sDatabase, Utente(), Password());
}

std::shared_ptr<Connessione> BancaDatiProva::Apri() const {
    return Connessione::Apri(Stringa());
}
