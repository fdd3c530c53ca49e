#include "Caricamento.h"

#include "Backend.h"
#include "TestoErrore.h"

#include <QSqlError>

namespace {

const QString Punto = QStringLiteral("tabellion_caricamento");

bool Esegui(const QSqlDatabase& db, const QString& sComando) {
    QSqlQuery query(db);
    return query.exec(sComando);
}

} // namespace

CaricamentoInserimenti::CaricamentoInserimenti(const QSqlDatabase& dbDato, const QString& sTabella,
                                               const QStringList& colonne, const Backend* backend)
    : db(dbDato)
    , pBackend(backend)
    , iColonne(colonne.size()) {
    sIntestazione = QStringLiteral("INSERT INTO ") + sTabella + QStringLiteral(" (") +
                    colonne.join(QStringLiteral(", ")) + QStringLiteral(") VALUES ");
    sGruppo =
        QLatin1Char('(') + QStringList(iColonne, QStringLiteral("?")).join(u',') + QLatin1Char(')');
    // SQLite takes up to 32766 values in a statement; a few hundred rows already make the
    // cost of each statement vanish.
    iPerGruppo =
        std::max<qsizetype>(1, std::min<qsizetype>(256, 30000 / std::max<qsizetype>(1, iColonne)));
    valori.reserve(iPerGruppo * iColonne);
}

QString CaricamentoInserimenti::Istruzione(qsizetype iRighe) const {
    QString sTesto = sIntestazione;
    sTesto.reserve(sIntestazione.size() + iRighe * (sGruppo.size() + 1));
    for (qsizetype i = 0; i < iRighe; ++i) {
        if (i > 0)
            sTesto += QLatin1Char(',');
        sTesto += sGruppo;
    }
    return sTesto;
}

void CaricamentoInserimenti::Aggiungi(std::span<const QVariant> riga) {
    for (const QVariant& valore : riga)
        valori.append(pBackend != nullptr ? pBackend->ValoreDaLegare(valore) : valore);
    // A short row is filled with Null, a long one cut: the columns were fixed at the start.
    for (qsizetype i = static_cast<qsizetype>(riga.size()); i < iColonne; ++i)
        valori.append(QVariant());
    valori.resize(InAttesa() * iColonne);
}

qsizetype CaricamentoInserimenti::InAttesa() const {
    return iColonne > 0 ? (valori.size() + iColonne - 1) / iColonne : 0;
}

bool CaricamentoInserimenti::Pieno() const {
    return InAttesa() >= iPerGruppo;
}

Caricamento::Rifiuto CaricamentoInserimenti::Invia() {
    const qsizetype iRighe = InAttesa();
    if (iRighe == 0)
        return {};
    AvvisaPrimaDiInviare();
    // One savepoint for all the rows held, so that a refused row takes them all away and
    // leaves the transaction usable.
    const bool bPunto = Esegui(db, QStringLiteral("SAVEPOINT ") + Punto);
    Rifiuto rifiuto;
    qsizetype iInizio = 0;
    while (iInizio < iRighe && rifiuto.iRiga < 0) {
        if (iRighe - iInizio >= iPerGruppo && Gruppo()) {
            for (qsizetype i = 0; i < iPerGruppo * iColonne; ++i)
                gruppo->bindValue(static_cast<int>(i), valori[iInizio * iColonne + i]);
            if (gruppo->exec()) {
                iInizio += iPerGruppo;
                continue;
            }
            // Which row? All of them again, one at a time.
            if (bPunto)
                Esegui(db, QStringLiteral("ROLLBACK TO SAVEPOINT ") + Punto);
            iInizio = 0;
            rifiuto = UnaAllaVolta(iInizio, iRighe);
            break;
        }
        rifiuto = UnaAllaVolta(iInizio, iInizio + 1);
        ++iInizio;
    }
    if (bPunto) {
        if (rifiuto.iRiga >= 0)
            Esegui(db, QStringLiteral("ROLLBACK TO SAVEPOINT ") + Punto);
        Esegui(db, QStringLiteral("RELEASE SAVEPOINT ") + Punto);
    }
    valori.clear();
    return rifiuto;
}

bool CaricamentoInserimenti::Gruppo() {
    if (bSoloSingole)
        return false;
    if (!gruppo) {
        gruppo = std::make_unique<QSqlQuery>(db);
        if (!gruppo->prepare(Istruzione(iPerGruppo))) {
            gruppo.reset();
            bSoloSingole = true; // one row at a time from now on
            return false;
        }
    }
    return true;
}

// Rows iDa..iA-1 one by one; a refused row stops them. A batch refused as a whole whose rows
// all go in one by one is in.
Caricamento::Rifiuto CaricamentoInserimenti::UnaAllaVolta(qsizetype iDa, qsizetype iA) {
    if (!singola) {
        singola = std::make_unique<QSqlQuery>(db);
        if (!singola->prepare(Istruzione(1))) {
            Rifiuto rifiuto{iDa, TestoErrore(singola->lastError())};
            singola.reset();
            return rifiuto;
        }
    }
    for (qsizetype r = iDa; r < iA; ++r) {
        for (qsizetype c = 0; c < iColonne; ++c)
            singola->bindValue(static_cast<int>(c), valori[r * iColonne + c]);
        if (!singola->exec())
            return {r, TestoErrore(singola->lastError())};
    }
    return {};
}
