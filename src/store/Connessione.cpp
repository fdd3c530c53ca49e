#include "Connessione.h"
#include "TestoErrore.h"

#include "Backend.h"
#include "session/Errore.h"

#include <QAtomicInt>
#include <QSqlError>

namespace {

QString NuovoNome() {
    static QAtomicInt contatore;
    return QStringLiteral("cnn-%1").arg(contatore.fetchAndAddRelaxed(1));
}

} // namespace

const Backend& Connessione::BackendDi(const StringaConnessione& stringa) {
    const QString provider = stringa.Valore(QStringLiteral("Provider"));
    const Backend* backend = Backend::PerProvider(provider);
    if (backend == nullptr) {
        throw Errore(QStringLiteral("Connessione"),
                     provider.isEmpty()
                         ? QStringLiteral("Connetti.txt non indica il Provider del database "
                                          "(conosciuti: %1).")
                               .arg(Backend::ProviderNoti().join(QStringLiteral(", ")))
                         : QStringLiteral("Provider sconosciuto: \"%1\" (conosciuti: %2).")
                               .arg(provider, Backend::ProviderNoti().join(QStringLiteral(", "))));
    }
    return *backend;
}

std::shared_ptr<Connessione> Connessione::Apri(const QString& sStringa) {
    StringaConnessione stringa = StringaConnessione::Leggi(sStringa);
    const Backend& backend = BackendDi(stringa);
    const QString nome = NuovoNome();
    backend.Apri(stringa, nome);
    return std::shared_ptr<Connessione>(new Connessione(&backend, std::move(stringa), nome));
}

Connessione::Connessione(const Backend* backend, StringaConnessione stringaData, QString nome)
    : pBackend(backend)
    , stringa(std::move(stringaData))
    , sNome(std::move(nome)) {}

Connessione::~Connessione() {
    Chiudi();
}

QSqlDatabase Connessione::Db() const {
    return QSqlDatabase::database(sNome, false);
}

bool Connessione::Aperta() const {
    return !sNome.isEmpty() && QSqlDatabase::contains(sNome) && Db().isOpen();
}

void Connessione::Chiudi() {
    preparate.clear();
    if (sNome.isEmpty()) {
        return;
    }
    if (QSqlDatabase::contains(sNome)) {
        {
            QSqlDatabase db = Db();
            db.close();
        }
        QSqlDatabase::removeDatabase(sNome);
    }
    sNome.clear();
}

QSqlQuery Connessione::Esegui(const QString& sSql, std::initializer_list<QVariant> valori,
                              const QString& sSorgente) const {
    return EseguiLista(sSql, QVariantList(valori), sSorgente);
}

QSqlQuery Connessione::EseguiLista(const QString& sSql, const QVariantList& valori,
                                   const QString& sSorgente) const {
    QSqlQuery query(Db());
    const QString sorgente = sSorgente.isEmpty() ? pBackend->Descrizione() : sSorgente;
    if (!Aperta()) {
        throw Errore(sorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    // A statement without values runs as it is: a server may refuse to prepare some of them
    // (PostgreSQL prepares no statement of the schema).
    if (valori.size() == 0) {
        if (!query.exec(sSql)) {
            throw Errore(sorgente, TestoErrore(query.lastError()));
        }
        return query;
    }
    if (!query.prepare(sSql)) {
        throw Errore(sorgente, TestoErrore(query.lastError()));
    }
    int i = 0;
    for (const QVariant& valore : valori) {
        query.bindValue(i++, pBackend->ValoreDaLegare(valore));
    }
    if (!query.exec()) {
        throw Errore(sorgente, TestoErrore(query.lastError()));
    }
    return query;
}

QString Connessione::InOrdineAlfabetico(const QString& sEspressione) const {
    return pBackend->InOrdineAlfabetico(sEspressione);
}

QSqlQuery& Connessione::Preparata(const QString& sSql) const {
    auto trovata = preparate.find(sSql);
    if (trovata == preparate.end()) {
        auto query = std::make_shared<QSqlQuery>(Db());
        if (!query->prepare(sSql)) {
            throw Errore(pBackend->Descrizione(), TestoErrore(query->lastError()));
        }
        trovata = preparate.insert(sSql, query);
    }
    return **trovata;
}

qint64 Connessione::Inserisci(const QString& sTabella, const QString& sChiave,
                              const QStringList& colonne, const QVariantList& valori) const {
    if (!Aperta()) {
        throw Errore(pBackend->Descrizione(),
                     QStringLiteral("La connessione al database è chiusa."));
    }
    QSqlQuery& query = Preparata(pBackend->IstruzioneInserisci(sTabella, sChiave, colonne));
    for (qsizetype i = 0; i < valori.size(); ++i) {
        query.bindValue(static_cast<int>(i), pBackend->ValoreDaLegare(valori[i]));
    }
    if (!query.exec()) {
        throw Errore(pBackend->Descrizione(), TestoErrore(query.lastError()));
    }
    if (!query.next()) {
        throw Errore(pBackend->Descrizione(),
                     QStringLiteral("Intervallo delle chiavi di %1 esaurito (Config.ID_End).")
                         .arg(sTabella));
    }
    const qint64 chiave = query.value(0).toLongLong();
    query.finish();
    return chiave;
}
