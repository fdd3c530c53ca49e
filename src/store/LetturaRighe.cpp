#include "LetturaRighe.h"

#include "TestoErrore.h"
#include "session/Errore.h"

#include <QSqlError>

LetturaRigheQt::LetturaRigheQt(const QSqlDatabase& db, const QString& sSql,
                               const QVariantList& valori, const QString& sSorgenteErrori)
    : query(db)
    , sSorgente(sSorgenteErrori) {
    // Forward only: the rows are read once and not kept by the driver.
    query.setForwardOnly(true);
    bool bFatto = false;
    if (valori.isEmpty()) {
        bFatto = query.exec(sSql);
    } else if (query.prepare(sSql)) {
        for (int i = 0; i < valori.size(); ++i) {
            query.bindValue(i, valori[i]);
        }
        bFatto = query.exec();
    }
    if (!bFatto) {
        throw Errore(sSorgente, TestoErrore(query.lastError()));
    }
}

bool LetturaRigheQt::Prossima() {
    if (query.next()) {
        return true;
    }
    if (query.lastError().isValid()) {
        throw Errore(sSorgente, TestoErrore(query.lastError()));
    }
    return false;
}

bool LetturaRigheQt::Null(int iColonna) const {
    return query.isNull(iColonna);
}

qint64 LetturaRigheQt::Intero(int iColonna) const {
    return query.value(iColonna).toLongLong();
}

QByteArrayView LetturaRigheQt::Testo(int iColonna) const {
    testo = query.value(iColonna).toString().toUtf8();
    return testo;
}

QString LetturaRigheQt::Stringa(int iColonna) const {
    return query.value(iColonna).toString();
}
