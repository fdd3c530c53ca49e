#pragma once

// The roles of a PostgreSQL site for one test, with names of their own (roles belong to the
// whole server): the owner (no login), the archivists' group (no login), an administrator (a
// login that may create databases, member of the owner), an archivist (a login, member of the
// group) and a stranger (a login in neither). The databases a test names through Database()
// are dropped at the end, their sessions closed by force, then the roles, whatever happened.
// Header only, for the tests that make sites with tabellion-sql --crea.

#include "BancaDatiProva.h"
#include "session/StrumentoSql.h"

#include <QStringList>
#include <QTextStream>

class RuoliSitoProva {
public:
    RuoliSitoProva()
        : sRadice(ServerProva::NomeUnico(QStringLiteral("tabellion_prova"))) {
        bCreati =
            Esegui(QStringLiteral("CREATE ROLE %1 NOLOGIN").arg(Proprietario())) &&
            Esegui(QStringLiteral("CREATE ROLE %1 NOLOGIN").arg(Gruppo())) &&
            Esegui(QStringLiteral("CREATE ROLE %1 LOGIN CREATEDB PASSWORD '%2' IN ROLE %3")
                       .arg(Amministratore(), Password(), Proprietario())) &&
            Esegui(QStringLiteral("CREATE ROLE %1 LOGIN PASSWORD '%2' IN ROLE %3")
                       .arg(Archivista(), Password(), Gruppo())) &&
            Esegui(
                QStringLiteral("CREATE ROLE %1 LOGIN PASSWORD '%2'").arg(Estraneo(), Password()));
    }
    ~RuoliSitoProva() {
        for (const QString& database : databases) {
            Esegui(QStringLiteral("DROP DATABASE IF EXISTS \"%1\" WITH (FORCE)").arg(database));
        }
        // What the roles still own or hold elsewhere goes with them.
        for (const QString& ruolo :
             {Estraneo(), Archivista(), Amministratore(), Gruppo(), Proprietario()}) {
            Esegui(QStringLiteral("DROP OWNED BY %1").arg(ruolo), true);
            Esegui(QStringLiteral("DROP ROLE IF EXISTS %1").arg(ruolo));
        }
    }
    RuoliSitoProva(const RuoliSitoProva&) = delete;
    RuoliSitoProva& operator=(const RuoliSitoProva&) = delete;

    bool Creati() const { return bCreati; }
    QString Proprietario() const { return sRadice + QStringLiteral("_proprietario"); }
    QString Gruppo() const { return sRadice + QStringLiteral("_archivisti"); }
    QString Amministratore() const { return sRadice + QStringLiteral("_amministratore"); }
    QString Archivista() const { return sRadice + QStringLiteral("_archivista"); }
    QString Estraneo() const { return sRadice + QStringLiteral("_estraneo"); }
    static QString Password() { return QStringLiteral("prova-ruoli"); }
    QString Server() const {
        return QStringLiteral("%1:%2").arg(ServerProva::Host()).arg(ServerProva::Porta());
    }

    // A name for a database of this test, dropped at the end.
    QString Database(const QString& sNome) {
        const QString nome = sRadice + QLatin1Char('_') + sNome;
        databases.append(nome);
        return nome;
    }

    // A statement run by the test server's superuser (on the database "postgres"); false, with
    // a warning unless bMuto, when the server refuses it.
    bool Esegui(const QString& sSql, bool bMuto = false) const {
        return ServerProva::EseguiComeSuperutente(sSql, bMuto);
    }
    // The first column of the first row of a statement run the same way; "" when none.
    QString Valore(const QString& sSql) const {
        QString sValore;
        ServerProva::EseguiComeSuperutente(sSql, false, &sValore);
        return sValore;
    }

private:
    QString sRadice;
    QStringList databases;
    bool bCreati = false;
};

// tabellion-sql run in this process, on the program folder that TABELLION_CARTELLA names.
struct EsitoStrumento {
    int iCodice = -1;
    QString sUscita;
    QString sErrori;
};

inline EsitoStrumento EseguiStrumento(const QStringList& argomenti) {
    EsitoStrumento esito;
    QTextStream uscita(&esito.sUscita);
    QTextStream errori(&esito.sErrori);
    esito.iCodice = EseguiStrumentoSql(argomenti, uscita, errori);
    uscita.flush();
    errori.flush();
    return esito;
}
