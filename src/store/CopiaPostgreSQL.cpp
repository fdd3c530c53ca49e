#include "CopiaPostgreSQL.h"

#include "session/Errore.h"

#include <QSqlDriver>
#include <cctype>
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
    ~CaricamentoCopia() override {
        // Left in the middle of a send: the server drops what it took of it.
        if (bInCorso) {
            PQputCopyEnd(connessione, "caricamento interrotto");
            while (PGresult* risultato = PQgetResult(connessione))
                PQclear(risultato);
            Comando(connessione, "ROLLBACK TO SAVEPOINT tabellion_copia");
            Comando(connessione, "RELEASE SAVEPOINT tabellion_copia");
        }
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
        // The rows already go while the next ones are made, so that the server works along.
        if (dati.size() >= BytePerPezzo)
            Spingi();
    }

    qsizetype InAttesa() const override { return iRighe; }

    bool Pieno() const override { return iRighe >= RighePerGruppo; }

    Rifiuto Invia() override {
        if (iRighe == 0)
            return {};
        Spingi();
        bool bRiuscito = bInCorso && sErrore.isEmpty();
        if (bInCorso) {
            bInCorso = false;
            if (PQputCopyEnd(connessione, bRiuscito ? nullptr : "invio non riuscito") != 1)
                bRiuscito = false;
            while (PGresult* risultato = PQgetResult(connessione)) {
                if (PQresultStatus(risultato) != PGRES_COMMAND_OK)
                    bRiuscito = false;
                PQclear(risultato);
            }
            if (bRiuscito) {
                bRiuscito = Comando(connessione, "RELEASE SAVEPOINT tabellion_copia");
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
        sErrore.clear();
        return rifiuto;
    }

    QString Via() const override { return QStringLiteral("COPY"); }

private:
    static constexpr qsizetype RighePerGruppo = 20000;
    static constexpr qsizetype BytePerPezzo = 256 * 1024;

    // What is made so far goes to the server; the first piece of a send opens it: the caller
    // is told first, then a savepoint and the COPY. A failure is kept for Invia.
    void Spingi() {
        if (!sErrore.isEmpty() || dati.isEmpty())
            return;
        AvvisaPrimaDiInviare();
        if (!bInCorso) {
            if (!Comando(connessione, "SAVEPOINT tabellion_copia", &sErrore))
                return;
            PGresult* risultato = PQexec(connessione, sCopia.constData());
            const bool bAperta = PQresultStatus(risultato) == PGRES_COPY_IN;
            if (!bAperta)
                sErrore = Parole(risultato, connessione);
            PQclear(risultato);
            if (!bAperta) {
                Comando(connessione, "ROLLBACK TO SAVEPOINT tabellion_copia");
                Comando(connessione, "RELEASE SAVEPOINT tabellion_copia");
                return;
            }
            bInCorso = true;
        }
        if (PQputCopyData(connessione, dati.constData(), static_cast<int>(dati.size())) != 1)
            sErrore = QString::fromUtf8(PQerrorMessage(connessione)).trimmed();
        dati.clear();
    }

    PGconn* connessione;
    QSqlDatabase db;
    QString sTabellaSql;
    QStringList colonne;
    QByteArray sCopia;
    QByteArray dati;     // rows made and not yet sent
    QVariantList valori; // every row of the send, to run it again row by row
    qsizetype iRighe = 0;
    bool bInCorso = false; // a COPY is open on the connection
    QString sErrore;
};

PGconn* ConnessioneLibpq(const QSqlDatabase& db) {
    const QVariant maniglia = db.driver() ? db.driver()->handle() : QVariant();
    // The driver hands its PGconn over under the name of libpq's struct.
    const char* sTipo = maniglia.isValid() ? maniglia.typeName() : nullptr;
    if (sTipo && (qstrcmp(sTipo, "pg_conn*") == 0 || qstrcmp(sTipo, "PGconn*") == 0)) {
        PGconn* connessione = *static_cast<PGconn* const*>(maniglia.constData());
        if (connessione && PQstatus(connessione) == CONNECTION_OK)
            return connessione;
    }
    return nullptr;
}

// The text form of COPY: fields split by tabs, "\N" for Null, backslash escapes.
class LetturaCopia : public LetturaTesto {
public:
    LetturaCopia(PGconn* connessioneData, const QStringList& colonneDate,
                 std::vector<Genere> generiDati)
        : connessione(connessioneData) {
        colonne = colonneDate;
        generi = std::move(generiDati);
        campi.resize(generi.size());
    }
    ~LetturaCopia() override {
        if (riga)
            PQfreemem(riga);
        if (bInCorso) {
            // Left before the end: the rest is read and dropped, so that the connection is
            // free again.
            char* resto = nullptr;
            while (PQgetCopyData(connessione, &resto, 0) > 0)
                PQfreemem(resto);
            while (PGresult* risultato = PQgetResult(connessione))
                PQclear(risultato);
        }
    }

    void Avvia(const QByteArray& sComando) {
        PGresult* risultato = PQexec(connessione, sComando.constData());
        const bool bRiuscito = PQresultStatus(risultato) == PGRES_COPY_OUT;
        const QString sErrore = bRiuscito ? QString() : Parole(risultato, connessione);
        PQclear(risultato);
        if (!bRiuscito)
            throw Errore(QStringLiteral("PostgreSQL"), sErrore);
        bInCorso = true;
    }

    bool Prossima() override {
        if (riga) {
            PQfreemem(riga);
            riga = nullptr;
        }
        if (!bInCorso)
            return false;
        const int iLunghezza = PQgetCopyData(connessione, &riga, 0);
        if (iLunghezza > 0) {
            Dividi(riga, iLunghezza);
            return true;
        }
        bInCorso = false;
        QString sErrore;
        while (PGresult* risultato = PQgetResult(connessione)) {
            if (PQresultStatus(risultato) != PGRES_COMMAND_OK && sErrore.isEmpty())
                sErrore = Parole(risultato, connessione);
            PQclear(risultato);
        }
        if (iLunghezza == -2 && sErrore.isEmpty())
            sErrore = QString::fromUtf8(PQerrorMessage(connessione)).trimmed();
        if (!sErrore.isEmpty())
            throw Errore(QStringLiteral("PostgreSQL"), sErrore);
        return false;
    }

    bool Null(int iColonna) const override { return campi[static_cast<size_t>(iColonna)].bNull; }

    QByteArrayView Testo(int iColonna) const override {
        const Campo& campo = campi[static_cast<size_t>(iColonna)];
        return campo.bChiaro ? QByteArrayView(campo.inizio, campo.lunghezza)
                             : QByteArrayView(campo.sciolto);
    }

private:
    struct Campo {
        bool bNull = false;
        bool bChiaro = true; // no escapes: the text is read where it stands
        const char* inizio = nullptr;
        qsizetype lunghezza = 0;
        QByteArray sciolto;
    };

    void Dividi(const char* dati, int iLunghezza) {
        const char* p = dati;
        const char* fine = dati + iLunghezza;
        if (fine > p && fine[-1] == '\n')
            --fine;
        for (Campo& campo : campi) {
            const char* inizio = p;
            bool bEscape = false;
            while (p < fine && *p != '\t') {
                if (*p == '\\') {
                    bEscape = true;
                    ++p;
                }
                if (p < fine)
                    ++p;
            }
            campo.inizio = inizio;
            campo.lunghezza = p - inizio;
            campo.bNull = campo.lunghezza == 2 && inizio[0] == '\\' && inizio[1] == 'N';
            campo.bChiaro = !bEscape;
            if (bEscape && !campo.bNull)
                Sciogli(campo);
            if (p < fine)
                ++p; // the tab
        }
        if (p < fine)
            throw Errore(QStringLiteral("PostgreSQL"),
                         QStringLiteral("Riga di COPY con più campi del previsto"));
    }

    static void Sciogli(Campo& campo) {
        campo.sciolto.resize(0);
        const char* p = campo.inizio;
        const char* fine = p + campo.lunghezza;
        while (p < fine) {
            char c = *p++;
            if (c != '\\' || p >= fine) {
                campo.sciolto.append(c);
                continue;
            }
            c = *p++;
            switch (c) {
            case 'b':
                campo.sciolto.append('\b');
                break;
            case 'f':
                campo.sciolto.append('\f');
                break;
            case 'n':
                campo.sciolto.append('\n');
                break;
            case 'r':
                campo.sciolto.append('\r');
                break;
            case 't':
                campo.sciolto.append('\t');
                break;
            case 'v':
                campo.sciolto.append('\v');
                break;
            case 'x': {
                int v = 0;
                int n = 0;
                while (n < 2 && p < fine && std::isxdigit(static_cast<unsigned char>(*p))) {
                    v = v * 16 + QByteArrayView(p, 1).toInt(nullptr, 16);
                    ++p;
                    ++n;
                }
                campo.sciolto.append(static_cast<char>(v));
                break;
            }
            default:
                if (c >= '0' && c <= '7') {
                    int v = c - '0';
                    for (int n = 0; n < 2 && p < fine && *p >= '0' && *p <= '7'; ++n)
                        v = v * 8 + (*p++ - '0');
                    campo.sciolto.append(static_cast<char>(v));
                } else {
                    campo.sciolto.append(c);
                }
            }
        }
    }

    PGconn* connessione;
    char* riga = nullptr;
    bool bInCorso = false;
    std::vector<Campo> campi;
};

LetturaTesto::Genere GenereDelTipo(Oid tipo, bool& bNoto) {
    bNoto = true;
    switch (tipo) {
    case 25:   // text
    case 1043: // varchar
    case 1042: // bpchar
        return LetturaTesto::Genere::Testo;
    case 20: // int8
    case 21: // int2
    case 23: // int4
        return LetturaTesto::Genere::Intero;
    case 700:  // float4
    case 701:  // float8
    case 1700: // numeric
        return LetturaTesto::Genere::Reale;
    case 16: // bool
        return LetturaTesto::Genere::Logico;
    case 1114: // timestamp
        return LetturaTesto::Genere::DataOra;
    case 1082: // date
        return LetturaTesto::Genere::Data;
    default:
        bNoto = false;
        return LetturaTesto::Genere::Altro;
    }
}

} // namespace

std::unique_ptr<Caricamento> ApriCaricamentoPostgreSQL(const QSqlDatabase& db,
                                                       const QString& sTabella,
                                                       const QStringList& colonne) {
    if (PGconn* connessione = ConnessioneLibpq(db))
        return std::make_unique<CaricamentoCopia>(connessione, db, sTabella, colonne);
    return std::make_unique<CaricamentoInserimenti>(db, sTabella, colonne);
}

std::unique_ptr<LetturaTesto> ApriLetturaPostgreSQL(const QSqlDatabase& db,
                                                    const QString& sTabella) {
    PGconn* connessione = ConnessioneLibpq(db);
    if (!connessione)
        return nullptr;
    // The columns and their types, from a statement that reads no row.
    const QByteArray sSelect = (QStringLiteral("SELECT * FROM ") + sTabella).toUtf8();
    PGresult* risultato = PQexec(connessione, (sSelect + " LIMIT 0").constData());
    if (PQresultStatus(risultato) != PGRES_TUPLES_OK) {
        const QString sErrore = Parole(risultato, connessione);
        PQclear(risultato);
        throw Errore(QStringLiteral("PostgreSQL"), sErrore);
    }
    QStringList colonne;
    std::vector<LetturaTesto::Genere> generi;
    bool bTuttiNoti = true;
    for (int i = 0; i < PQnfields(risultato); ++i) {
        colonne.append(QString::fromUtf8(PQfname(risultato, i)));
        bool bNoto = false;
        generi.push_back(GenereDelTipo(PQftype(risultato, i), bNoto));
        bTuttiNoti = bTuttiNoti && bNoto;
    }
    PQclear(risultato);
    if (!bTuttiNoti)
        return nullptr;
    auto lettura = std::make_unique<LetturaCopia>(connessione, colonne, std::move(generi));
    lettura->Avvia("COPY (" + sSelect + ") TO STDOUT");
    return lettura;
}
