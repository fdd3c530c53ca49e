#include "RuoloProva.h"

#include "BancaDatiProva.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

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

} // namespace

RuoloProva::RuoloProva(const BancaDatiProva& bancaDati)
    : banca(bancaDati)
    , sNome(ServerProva::NomeUnico(QStringLiteral("tabellion_senza_diritti"))) {
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
    ServerProva::EseguiComeSuperutente(QStringLiteral("DROP ROLE IF EXISTS ") + sNome);
}

bool RuoloProva::Concedi(const QString& sSql) const {
    const auto proprietario = banca.Apri();
    const bool bFatto = Esegui(proprietario->Db(), sSql.arg(sNome));
    proprietario->Chiudi();
    return bFatto;
}
