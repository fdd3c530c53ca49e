#pragma once

// A login role of the PostgreSQL test server for one test: it has a password and may log in,
// but has no right on the tables and views of the test database (what PUBLIC may have there is
// taken away too); a test gives it what it needs with Concedi. At the end the test database is
// dropped (its sessions closed by force) and then the role, whatever happened.

#include <QString>

class BancaDatiProva;

class RuoloProva {
public:
    explicit RuoloProva(const BancaDatiProva& banca);
    ~RuoloProva();
    RuoloProva(const RuoloProva&) = delete;
    RuoloProva& operator=(const RuoloProva&) = delete;

    bool Creato() const { return bCreato; }
    const QString& Nome() const { return sNome; }
    static QString Password() { return QStringLiteral("senza-diritti"); }

    // A statement of rights (GRANT, REVOKE) run on the test database by its owner; "%1" in it
    // stands for the role's name. False, with a warning, when the server refuses it.
    bool Concedi(const QString& sSql) const;

private:
    const BancaDatiProva& banca;
    QString sNome;
    bool bCreato = false;
};
