#include "TestoErrore.h"

#include <QRegularExpression>

QString TestoErrore(const QSqlError& errore) {
    QString testo = errore.databaseText().trimmed();
    if (testo.isEmpty()) {
        return errore.text().trimmed();
    }
    // PostgreSQL: "ERROR:  message\nCONTEXT:  ..." (or DETAIL, HINT).
    static const QRegularExpression gravita(QStringLiteral("^(ERROR|FATAL|ERRORE):\\s+"));
    testo.remove(gravita);
    const qsizetype contesto =
        testo.indexOf(QRegularExpression(QStringLiteral("\\n(CONTEXT|CONTESTO):")));
    if (contesto >= 0) {
        testo.truncate(contesto);
    }
    return testo.trimmed();
}
