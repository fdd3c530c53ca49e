#include "AggiornamentoVersione.h"

#include "Conversioni.h"
#include "Errore.h"
#include "Piattaforma.h"
#include "Sessione.h"
#include "store/Connessione.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>
#include <QStandardPaths>

bool VersioneDaAggiornare(const QVariant& versione, const QString& sVersioneApp) {
    if (ENull(versione)) {
        return true;
    }
    bool numero = false;
    double trovata = versione.toDouble(&numero);
    if (!numero) {
        trovata = Val(versione.toString());
    }
    return Val(sVersioneApp) > trovata;
}

QString TestoVersione(const QVariant& versione) {
    if (ENull(versione)) {
        return QString();
    }
    bool numero = false;
    const double valore = versione.toDouble(&numero);
    if (!numero) {
        return versione.toString();
    }
    QString testo = QString::number(valore, 'g', 15);
    testo.replace(u'.', u',');
    return testo;
}

bool CancelloVersione(const QVariant& versione) {
    const QString crlf = QStringLiteral("\r\n");
    const QString testo =
        QStringLiteral("Versione del DB precedente alla versione dell'applicazione.") + crlf +
        QStringLiteral("Versione richiesta: ") + Sessione::sVersioneApp + crlf +
        QStringLiteral("Versione trovata: ") + TestoVersione(versione) + crlf + crlf +
        QStringLiteral("Vuoi aggiornare la versione del DB?");
    const Risposta risposta = MsgBox(testo, Pulsanti::SiNo, Icona::Esclamazione,
                                     QStringLiteral("Aggiorna versione DB"), Risposta::No);
    if (risposta != Risposta::Si) {
        return false;
    }
    return EseguiAggiornamento();
}

QString ProgrammaAggiornamento() {
    // The tool stands beside the program; failing that, the system's search path finds it.
    const QString accanto =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("tabellion-sql"));
    if (QFileInfo(accanto).isExecutable()) {
        return accanto;
    }
    const QString nelPercorso = QStandardPaths::findExecutable(QStringLiteral("tabellion-sql"));
    return nelPercorso.isEmpty() ? QStringLiteral("tabellion-sql") : nelPercorso;
}

QStringList ArgomentiAggiornamento() {
    return {QStringLiteral("-U"), Sessione::sUtente,
            QStringLiteral("-P"), Sessione::sPassword,
            QStringLiteral("-S"), Sessione::sServer,
            QStringLiteral("-d"), Sessione::sDatabase,
            QStringLiteral("-i"), Sessione::FileProgramma(QStringLiteral("alter.sql"))};
}

QString RigaComandoAggiornamento() {
    return QStringLiteral("tabellion-sql -U") + Sessione::sUtente + QStringLiteral(" -P") +
           Sessione::sPassword + QStringLiteral(" -S") + Sessione::sServer + QStringLiteral(" -d") +
           Sessione::sDatabase + QStringLiteral(" -i") +
           Sessione::FileProgramma(QStringLiteral("alter.sql"));
}

namespace {

// The version that Config holds now, "" when it cannot be read.
QString VersioneAttuale() {
    try {
        if (!Sessione::cnn) {
            return QString();
        }
        QSqlQuery config = Sessione::cnn->Esegui(QStringLiteral("SELECT Versione FROM Config"));
        return config.next()
                   ? TestoVersione(config.value(0).isNull() ? QVariant() : config.value(0))
                   : QString();
    } catch (const Errore&) {
        return QString();
    }
}

} // namespace

bool EseguiAggiornamento() {
    const QString crlf = QStringLiteral("\r\n");
    const QString programma = ProgrammaAggiornamento();
    const EsitoProcesso esito = piattaforma().EseguiProcesso(programma, ArgomentiAggiornamento());
    if (esito.bAvviato && esito.sErroreAvvio.isEmpty() && esito.iCodice == 0) {
        MsgBox(QStringLiteral("Aggiornamento della versione del DB riuscito.") + crlf +
                   QStringLiteral("Versione del DB: ") + VersioneAttuale(),
               Pulsanti::Ok, Icona::Informazione, QStringLiteral("Aggiorna versione DB"));
        return true;
    }
    QString motivo = esito.sErrori.trimmed();
    if (!esito.bAvviato) {
        motivo = QStringLiteral("Impossibile avviare %1: %2").arg(programma, esito.sErroreAvvio);
    } else if (motivo.isEmpty()) {
        motivo = esito.sErroreAvvio.isEmpty() ? QStringLiteral("%1 è terminato con il codice %2.")
                                                    .arg(QFileInfo(programma).fileName())
                                                    .arg(esito.iCodice)
                                              : esito.sErroreAvvio;
    }
    motivo.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    motivo.replace(QLatin1Char('\n'), crlf);
    MsgBox(QStringLiteral("Aggiornamento della versione del DB non riuscito.") + crlf + motivo,
           Pulsanti::Ok, Icona::Critica, QStringLiteral("Aggiorna versione DB"));
    return false;
}
