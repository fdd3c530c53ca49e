#include "Connessione.h"

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
    QSqlQuery query(Db());
    const QString sorgente = sSorgente.isEmpty() ? pBackend->Descrizione() : sSorgente;
    if (!Aperta()) {
        throw Errore(sorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    if (!query.prepare(sSql)) {
        throw Errore(sorgente, query.lastError().text());
    }
    int i = 0;
    for (const QVariant& valore : valori) {
        query.bindValue(i++, valore);
    }
    if (!query.exec()) {
        throw Errore(sorgente, query.lastError().text());
    }
    return query;
}
