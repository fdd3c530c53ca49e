#include "CaricamentoPostgreSQL.h"

#include <QSqlDriver>
#include <libpq-fe.h>

namespace {

constexpr qsizetype RighePerGruppo = 5000;
constexpr qsizetype BytePerGruppo = 4 * 1024 * 1024;

// What the server said, without its severity and context lines.
QString Parole(const PGresult* risultato, PGconn* connessione) {
    const char* primario =
        risultato ? PQresultErrorField(risultato, PG_DIAG_MESSAGE_PRIMARY) : nullptr;
    if (primario && *primario)
        return QString::fromUtf8(primario);
    return QString::fromUtf8(PQerrorMessage(connessione)).trimmed();
}

// A command with no rows; the server's words when it fails.
bool Comando(PGconn* connessione, const char* sComando, QString* sErrore = nullptr) {
    PGresult* risultato = PQexec(connessione, sComando);
    const bool bRiuscito = PQresultStatus(risultato) == PGRES_COMMAND_OK;
    if (!bRiuscito && sErrore)
        *sErrore = Parole(risultato, connessione);
    PQclear(risultato);
    return bRiuscito;
}

class CaricamentoCopia : public Caricamento {
public:
    CaricamentoCopia(PGconn* connessioneData, const QSqlDatabase& dbDato, const QString& sTabella,
                     const QStringList& colonneDate)
        : connessione(connessioneData)
        , db(dbDato)
        , sTabellaSql(sTabella)
        , colonne(colonneDate) {
        sCopia = (QStringLiteral("COPY ") + sTabella + QStringLiteral(" (") +
                  colonne.join(QStringLiteral(", ")) + QStringLiteral(") FROM STDIN"))
                     .toUtf8();
    }

    void Aggiungi(std::span<const QVariant> riga) override {
        const qsizetype iColonne = colonne.size();
        for (qsizetype c = 0; c < iColonne; ++c) {
            if (c > 0)
                dati.append('\t');
            const QVariant valore =
                c < static_cast<qsizetype>(riga.size()) ? riga[static_cast<size_t>(c)] : QVariant();
            valori.append(valore);
            if (valore.isNull()) {
                dati.append("\\N", 2);
                continue;
            }
            const QByteArray testo = valore.toString().toUtf8();
            for (const char carattere : testo) {
                switch (carattere) {
                case '\\':
                    dati.append("\\\\", 2);
                    break;
                case '\t':
                    dati.append("\\t", 2);
                    break;
                case '\n':
                    dati.append("\\n", 2);
                    break;
                case '\r':
                    dati.append("\\r", 2);
                    break;
                default:
                    dati.append(carattere);
                }
            }
        }
        dati.append('\n');
        ++iRighe;
    }

    qsizetype InAttesa() const override { return iRighe; }

    bool Pieno() const override { return iRighe >= RighePerGruppo || dati.size() >= BytePerGruppo; }

    Rifiuto Invia() override {
        if (iRighe == 0)
            return {};
        QString sErrore;
        bool bRiuscito = Comando(connessione, "SAVEPOINT tabellion_copia", &sErrore);
        if (bRiuscito) {
            bRiuscito = Copia(sErrore);
            if (bRiuscito) {
                bRiuscito = Comando(connessione, "RELEASE SAVEPOINT tabellion_copia", &sErrore);
            } else {
                Comando(connessione, "ROLLBACK TO SAVEPOINT tabellion_copia");
                Comando(connessione, "RELEASE SAVEPOINT tabellion_copia");
            }
        }
        Rifiuto rifiuto;
        if (!bRiuscito) {
            // Row by row, to name the row refused; if every row goes in that way, they are in.
            CaricamentoInserimenti inserimenti(db, sTabellaSql, colonne);
            const qsizetype iColonne = colonne.size();
            for (qsizetype r = 0; r < iRighe; ++r)
                inserimenti.Aggiungi(std::span<const QVariant>(valori.constData() + r * iColonne,
                                                               static_cast<size_t>(iColonne)));
            rifiuto = inserimenti.Invia();
        }
        dati.clear();
        valori.clear();
        iRighe = 0;
        return rifiuto;
    }

    QString Via() const override { return QStringLiteral("COPY"); }

private:
    bool Copia(QString& sErrore) {
        PGresult* risultato = PQexec(connessione, sCopia.constData());
        if (PQresultStatus(risultato) != PGRES_COPY_IN) {
            sErrore = Parole(risultato, connessione);
            PQclear(risultato);
            return false;
        }
        PQclear(risultato);
        bool bRiuscito = true;
        if (PQputCopyData(connessione, dati.constData(), static_cast<int>(dati.size())) != 1 ||
            PQputCopyEnd(connessione, nullptr) != 1) {
            sErrore = QString::fromUtf8(PQerrorMessage(connessione)).trimmed();
            bRiuscito = false;
        }
        while ((risultato = PQgetResult(connessione)) != nullptr) {
            if (PQresultStatus(risultato) != PGRES_COMMAND_OK && bRiuscito) {
                sErrore = Parole(risultato, connessione);
                bRiuscito = false;
            }
            PQclear(risultato);
        }
        return bRiuscito;
    }

    PGconn* connessione;
    QSqlDatabase db;
    QString sTabellaSql;
    QStringList colonne;
    QByteArray sCopia;
    QByteArray dati;
    QVariantList valori;
    qsizetype iRighe = 0;
};

} // namespace

std::unique_ptr<Caricamento> ApriCaricamentoPostgreSQL(const QSqlDatabase& db,
                                                       const QString& sTabella,
                                                       const QStringList& colonne) {
    const QVariant maniglia = db.driver() ? db.driver()->handle() : QVariant();
    // The driver hands its PGconn over under the name of libpq's struct.
    const char* sTipo = maniglia.isValid() ? maniglia.typeName() : nullptr;
    if (sTipo && (qstrcmp(sTipo, "pg_conn*") == 0 || qstrcmp(sTipo, "PGconn*") == 0)) {
        PGconn* connessione = *static_cast<PGconn* const*>(maniglia.constData());
        if (connessione && PQstatus(connessione) == CONNECTION_OK)
            return std::make_unique<CaricamentoCopia>(connessione, db, sTabella, colonne);
    }
    return std::make_unique<CaricamentoInserimenti>(db, sTabella, colonne);
}
