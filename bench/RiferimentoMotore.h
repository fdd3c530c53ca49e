#pragma once

// The engines' own tools, run beside the program's work in the same benchmark: sqlite3,
// psql and pg_dump, timed from start to end as a person would run them.

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace RiferimentoMotore {

// Seconds taken, or -1 when the tool is missing or fails (its words go to sErrore).
inline double Cronometra(const QString& sProgramma, const QStringList& argomenti,
                         const QString& sIngresso, const QString& sUscita, QString& sErrore) {
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("PGPASSWORD"), qEnvironmentVariable("TABELLION_PG_PASSWORD"));
    processo.setProcessEnvironment(ambiente);
    if (!sIngresso.isEmpty())
        processo.setStandardInputFile(sIngresso);
    processo.setStandardOutputFile(sUscita.isEmpty() ? QProcess::nullDevice() : sUscita);
    QElapsedTimer orologio;
    orologio.start();
    processo.start(sProgramma, argomenti);
    if (!processo.waitForFinished(-1) || processo.exitStatus() != QProcess::NormalExit ||
        processo.exitCode() != 0) {
        sErrore = sProgramma + QStringLiteral(": ") +
                  QString::fromLocal8Bit(processo.readAllStandardError()).trimmed() +
                  processo.errorString();
        return -1;
    }
    return static_cast<double>(orologio.nsecsElapsed()) / 1e9;
}

// The connection options of psql and pg_dump, from the benchmark's environment.
inline QStringList OpzioniPostgreSQL(const QString& sDatabase) {
    return {QStringLiteral("-h"), qEnvironmentVariable("TABELLION_PG_HOST"),
            QStringLiteral("-p"), qEnvironmentVariable("TABELLION_PG_PORT"),
            QStringLiteral("-U"), qEnvironmentVariable("TABELLION_PG_USER"),
            QStringLiteral("-d"), sDatabase,
            QStringLiteral("-X"), QStringLiteral("-q"),
            QStringLiteral("-v"), QStringLiteral("ON_ERROR_STOP=1")};
}

// The highest resident memory of this process so far, in KiB.
inline long PiccoMemoriaKiB() {
    QFile stato(QStringLiteral("/proc/self/status"));
    if (!stato.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& riga : stato.readAll().split('\n'))
        if (riga.startsWith("VmHWM:"))
            return riga.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}

} // namespace RiferimentoMotore
