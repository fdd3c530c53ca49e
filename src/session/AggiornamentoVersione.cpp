#include "AggiornamentoVersione.h"

#include "Conversioni.h"
#include "Piattaforma.h"
#include "Sessione.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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

qint64 CancelloVersione(const QVariant& versione) {
    const QString crlf = QStringLiteral("\r\n");
    const QString testo =
        QStringLiteral("Versione del DB precedente alla versione dell'applicazione.") + crlf +
        QStringLiteral("Versione richiesta: ") + Sessione::sVersioneApp + crlf +
        QStringLiteral("Versione trovata: ") + TestoVersione(versione) + crlf + crlf +
        QStringLiteral("Vuoi aggiornare la versione del DB?");
    const Risposta risposta = MsgBox(testo, Pulsanti::SiNo, Icona::Esclamazione,
                                     QStringLiteral("Aggiorna versione DB"), Risposta::No);
    if (risposta != Risposta::Si) {
        return 0;
    }
    return AvviaAggiornamento();
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

qint64 AvviaAggiornamento() {
    return piattaforma().AvviaProcesso(ProgrammaAggiornamento(), ArgomentiAggiornamento());
}
