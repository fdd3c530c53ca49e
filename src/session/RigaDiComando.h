#pragma once

// What the command-line tools share: the login options -U -P -S -d (values glued to the option
// or apart) and the connection made from them with the head of Connetti.txt.

#include <QString>
#include <QStringList>
#include <functional>

struct AccessoDaRigaDiComando {
    QString sUtente;
    QString sPassword;
    QString sServer;
    QString sDatabase;
};

// Reads the options from position iInizio. The login options fill `accesso`; another option
// goes to `altra(lettera, valore)`, and a text that is no option to `libera(testo)`: each
// answers false when it does not take it, and the reading stops with Errore (source sSorgente,
// the text of the error followed by sUso).
void LeggiOpzioniRigaDiComando(const QStringList& argomenti, qsizetype iInizio,
                               const QString& sSorgente, const QString& sUso,
                               AccessoDaRigaDiComando& accesso,
                               const std::function<bool(QChar, const QString&)>& altra,
                               const std::function<bool(const QString&)>& libera);

// The whole connection string: the first record of Connetti.txt in the program folder and the
// login. A missing Connetti.txt raises Errore with the given source.
QString StringaDaConnetti(const AccessoDaRigaDiComando& accesso, const QString& sSorgente);
