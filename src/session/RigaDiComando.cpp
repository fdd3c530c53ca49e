#include "RigaDiComando.h"

#include "Errore.h"
#include "LetturaLista.h"
#include "Sessione.h"
#include "store/StringaConnessione.h"

void LeggiOpzioniRigaDiComando(const QStringList& argomenti, qsizetype iInizio,
                               const QString& sSorgente, const QString& sUso,
                               AccessoDaRigaDiComando& accesso,
                               const std::function<bool(QChar, const QString&)>& altra,
                               const std::function<bool(const QString&)>& libera) {
    for (qsizetype i = iInizio; i < argomenti.size(); ++i) {
        const QString& argomento = argomenti[i];
        if (argomento.size() < 2 || argomento[0] != u'-' || argomento.startsWith(u"--")) {
            if (!libera(argomento)) {
                throw Errore(
                    sSorgente,
                    QStringLiteral("Argomento non previsto: \"%1\".\n%2").arg(argomento, sUso));
            }
            continue;
        }
        QString valore = argomento.mid(2);
        if (valore.isEmpty()) {
            if (i + 1 >= argomenti.size()) {
                throw Errore(
                    sSorgente,
                    QStringLiteral("Manca il valore dell'opzione %1.\n%2").arg(argomento, sUso));
            }
            valore = argomenti[++i];
        }
        const QChar lettera = argomento[1];
        if (lettera == u'U') {
            accesso.sUtente = valore;
        } else if (lettera == u'P') {
            accesso.sPassword = valore;
        } else if (lettera == u'S') {
            accesso.sServer = valore;
        } else if (lettera == u'd') {
            accesso.sDatabase = valore;
        } else if (!altra(lettera, valore)) {
            throw Errore(sSorgente,
                         QStringLiteral("Opzione sconosciuta: %1.\n%2").arg(argomento, sUso));
        }
    }
}

QString StringaDaConnetti(const AccessoDaRigaDiComando& accesso, const QString& sSorgente) {
    const QStringList connetti =
        LeggiLista(Sessione::FileProgramma(QStringLiteral("Connetti.txt")), sSorgente);
    return ComponiStringaConnessione(connetti.value(0), accesso.sServer, accesso.sDatabase,
                                     accesso.sUtente, accesso.sPassword);
}
