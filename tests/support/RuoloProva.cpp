#include "RuoloProva.h"

#include "BancaDatiProva.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

// A statement of rights or roles, run as it stands (the server does not prepare these).
bool Esegui(const QSqlDatabase& db, const QString& sSql) {
    QSqlQuery query(db);
    if (query.exec(sSql)) {
        return true;
    }
    qWarning("%s: %s", qPrintable(sSql), qPrintable(query.lastError().text()));
    return false;
}

QString NuovoNome() {
    static QAtomicInt contatore;
    return QStringLiteral("tabellion_senza_diritti_%1_%2")
        .arg(QCoreApplication::applicationPid())
        .arg(contatore.fetchAndAddRelaxed(1));
}

} // namespace

RuoloProva::RuoloProva(const BancaDatiProva& bancaDati)
    : banca(bancaDati)
    , sNome(NuovoNome()) {
    const auto proprietario = banca.Apri();
    bCreato = Esegui(proprietario->Db(),
                     QStringLiteral("CREATE ROLE %1 LOGIN PASSWORD '%2'").arg(sNome, Password())) &&
              Esegui(proprietario->Db(),
                     QStringLiteral("REVOKE ALL ON ALL TABLES IN SCHEMA public FROM PUBLIC"));
    proprietario->Chiudi();
}

RuoloProva::~RuoloProva() {
    // The database first, with the sessions still open on it: the role's rights go with it.
    try {
        const StringaConnessione stringa = StringaConnessione::Leggi(banca.Stringa());
        Connessione::BackendDi(stringa).EliminaDatabase(stringa);
    } catch (const std::exception& errore) {
        qWarning("database %s not removed: %s", qPrintable(banca.Database()), errore.what());
    }
    const QString sConnessione = QStringLiteral("ruolo-") + sNome;
    {
        QSqlDatabase server = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), sConnessione);
        server.setHostName(ServerProva::Host());
        server.setPort(ServerProva::Porta());
        server.setUserName(ServerProva::Utente());
        server.setPassword(ServerProva::Password());
        server.setDatabaseName(QStringLiteral("postgres"));
        if (server.open()) {
            Esegui(server, QStringLiteral("DROP ROLE IF EXISTS ") + sNome);
            server.close();
        } else {
            qWarning("role %s not removed: %s", qPrintable(sNome),
                     qPrintable(server.lastError().text()));
        }
    }
    QSqlDatabase::removeDatabase(sConnessione);
}

bool RuoloProva::Concedi(const QString& sSql) const {
    const auto proprietario = banca.Apri();
    const bool bFatto = Esegui(proprietario->Db(), sSql.arg(sNome));
    proprietario->Chiudi();
    return bFatto;
}
