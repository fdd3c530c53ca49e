#include "IdentitaSito.h"

#include "Connessione.h"
#include "TestoErrore.h"
#include "session/Errore.h"

#include <QRegularExpression>
#include <QSqlError>

namespace {

const QString Sorgente = QStringLiteral("Config");

} // namespace

QString CodiceSitoProvvisorio() {
    return QStringLiteral("SITO");
}

bool CodiceProvvisorio(const QString& sCodice) {
    const QString codice = sCodice.trimmed();
    return codice.isEmpty() || codice.compare(CodiceSitoProvvisorio(), Qt::CaseInsensitive) == 0;
}

QString CodiceDelSito(const Connessione& connessione, const QString& sSorgente) {
    QSqlQuery config = connessione.Esegui(QStringLiteral("SELECT Code FROM Config"), {},
                                          sSorgente.isEmpty() ? Sorgente : sSorgente);
    return config.next() ? config.value(0).toString() : QString();
}

bool SitoSenzaIdentita(const Connessione& connessione) {
    // No row gives "", which is no identity either.
    return CodiceProvvisorio(CodiceDelSito(connessione));
}

QString ErroreIdentita(const IdentitaSito& identita) {
    static const QRegularExpression forma(QStringLiteral("^[A-Za-z0-9_-]{1,10}$"));
    if (identita.sCodice.isEmpty()) {
        return QStringLiteral("Manca il codice del sito.");
    }
    if (!forma.match(identita.sCodice).hasMatch()) {
        return QStringLiteral("Codice del sito non valido: \"%1\" (da 1 a 10 lettere, cifre, "
                              "\"_\" o \"-\").")
            .arg(identita.sCodice);
    }
    if (CodiceProvvisorio(identita.sCodice)) {
        return QStringLiteral("\"%1\" è il codice provvisorio di un database nuovo: ogni sito "
                              "ha un codice suo.")
            .arg(identita.sCodice);
    }
    if (identita.lInizio < 1 || identita.lFine < identita.lInizio ||
        identita.lFine > ChiaveMassima) {
        return QStringLiteral("Intervallo delle chiavi non valido: %1..%2 (serve 1 <= inizio <= "
                              "fine <= %3).")
            .arg(identita.lInizio)
            .arg(identita.lFine)
            .arg(ChiaveMassima);
    }
    return QString();
}

void ScriviIdentita(const Connessione& connessione, const IdentitaSito& identita) {
    const QString errore = ErroreIdentita(identita);
    if (!errore.isEmpty()) {
        throw Errore(Sorgente, errore);
    }
    QSqlDatabase db = connessione.Db();
    if (!db.transaction()) {
        throw Errore(Sorgente, TestoErrore(db.lastError()));
    }
    try {
        QSqlQuery righe =
            connessione.Esegui(QStringLiteral("SELECT COUNT(*) FROM Config"), {}, Sorgente);
        if (!righe.next() || righe.value(0).toLongLong() != 1) {
            throw Errore(Sorgente, QStringLiteral("La tabella Config deve avere una riga sola "
                                                  "(ne ha %1): lo schema non è stato caricato?")
                                       .arg(righe.value(0).toLongLong()));
        }
        righe.finish();
        connessione.Esegui(QStringLiteral("UPDATE Config SET Code = ?, Descrizione = ?, "
                                          "ID_Start = ?, ID_End = ?"),
                           {identita.sCodice,
                            identita.sDescrizione.isEmpty()
                                ? QVariant(QMetaType::fromType<QString>())
                                : QVariant(identita.sDescrizione),
                            identita.lInizio, identita.lFine},
                           Sorgente);
        if (!db.commit()) {
            throw Errore(Sorgente, TestoErrore(db.lastError()));
        }
    } catch (...) {
        db.rollback();
        throw;
    }
}
