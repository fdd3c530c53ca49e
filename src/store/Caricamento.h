#pragma once

// Many rows into one table at once, inside the caller's transaction: the import's path.
// Rows are held and sent together; a batch goes in whole or not at all, and a refused batch
// names the row the server refused, in the server's own words.

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <span>

class Caricamento {
public:
    struct Rifiuto {
        qsizetype iRiga = -1; // among the rows sent, from 0; -1 when all went in
        QString sErrore;
    };

    virtual ~Caricamento() = default;

    // One row: a value per column, in the order given when the load was opened; a null
    // QVariant is Null, anything else goes as text and the server reads it for the column.
    virtual void Aggiungi(std::span<const QVariant> riga) = 0;
    // The rows held and not sent yet.
    virtual qsizetype InAttesa() const = 0;
    // Enough rows held that sending them now costs least (some may have gone already).
    virtual bool Pieno() const = 0;
    // Sends the rows held. When the server refuses one, none of them stays in the table and
    // the transaction can go on; the rows held are dropped either way. A batch refused as a
    // whole whose rows each go in alone is in.
    virtual Rifiuto Invia() = 0;
    // The path the rows take, in a word ("INSERT", "COPY"), for reports and diagnosis.
    virtual QString Via() const = 0;

    // Called each time rows are about to reach the server (a log of commands is written
    // then): rows may go before Invia while more are added.
    void PrimaDiInviare(std::function<void()> avviso) { prima = std::move(avviso); }

protected:
    void AvvisaPrimaDiInviare() const {
        if (prima)
            prima();
    }

private:
    std::function<void()> prima;
};

class Backend;

// The portable path: multi-row INSERT statements, prepared once for a full batch, each batch
// within a savepoint; a refused batch is run again row by row to find the row refused. Given a
// backend, values are bound in its form (Backend::ValoreDaLegare).
class CaricamentoInserimenti : public Caricamento {
public:
    CaricamentoInserimenti(const QSqlDatabase& db, const QString& sTabella,
                           const QStringList& colonne, const Backend* backend = nullptr);

    void Aggiungi(std::span<const QVariant> riga) override;
    qsizetype InAttesa() const override;
    bool Pieno() const override;
    Rifiuto Invia() override;
    QString Via() const override { return QStringLiteral("INSERT"); }

private:
    bool Gruppo();
    Rifiuto UnaAllaVolta(qsizetype iDa, qsizetype iA);
    QString Istruzione(qsizetype iRighe) const;

    QSqlDatabase db;
    const Backend* pBackend;
    QString sIntestazione; // INSERT INTO t (a, b) VALUES
    QString sGruppo;       // (?, ?)
    qsizetype iColonne;
    qsizetype iPerGruppo;
    bool bSoloSingole = false; // the server took no statement of a whole batch
    QVariantList valori;
    std::unique_ptr<QSqlQuery> gruppo;  // a full batch
    std::unique_ptr<QSqlQuery> singola; // one row
};
