#include "Backend.h"

#include "BackendPostgreSQL.h"
#include "BackendSQLite.h"
#include "Caricamento.h"
#include "LetturaRighe.h"
#include "LetturaTesto.h"

QString Backend::Identificatore(const QString& sNome) const {
    QString doppio = sNome;
    doppio.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    return QLatin1Char('"') + doppio + QLatin1Char('"');
}

void Backend::AgisciDaProprietario(const QSqlDatabase&) const {}

void Backend::ConcediDiritti(const QSqlDatabase&, const RuoliSito&) const {}

std::unique_ptr<Caricamento> Backend::ApriCaricamento(const QSqlDatabase& db,
                                                      const QString& sTabella,
                                                      const QStringList& colonne) const {
    return std::make_unique<CaricamentoInserimenti>(db, sTabella, colonne, this);
}

std::unique_ptr<LetturaRighe> Backend::ApriLetturaRighe(const QSqlDatabase& db, const QString& sSql,
                                                        const QVariantList& valori,
                                                        const QString& sSorgente) const {
    QVariantList legati;
    for (const QVariant& valore : valori) {
        legati.append(ValoreDaLegare(valore));
    }
    return std::make_unique<LetturaRigheQt>(db, sSql, legati, sSorgente);
}

std::unique_ptr<LetturaTesto> Backend::ApriLetturaTesto(const QSqlDatabase&, const QString&) const {
    return nullptr;
}

const Backend* Backend::PerProvider(const QString& sProvider) {
    static const BackendSQLite sqlite;
    static const BackendPostgreSQL postgresql;
    const QString nome = sProvider.trimmed();
    for (const Backend* backend :
         {static_cast<const Backend*>(&sqlite), static_cast<const Backend*>(&postgresql)}) {
        if (nome.compare(backend->Provider(), Qt::CaseInsensitive) == 0) {
            return backend;
        }
    }
    return nullptr;
}

QStringList Backend::ProviderNoti() {
    return {QStringLiteral("QSQLITE"), QStringLiteral("QPSQL")};
}
