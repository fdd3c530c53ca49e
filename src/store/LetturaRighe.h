#pragma once

// The rows of a SELECT with its values bound, read once forward, each value as a whole number
// or as UTF-8 text without a QVariant of its own: the path of the trees, which read a million
// rows of a few columns. A backend gives its own engine's path where it has one (SQLite's
// statements through the driver's handle) and Qt's forward-only query otherwise; Via() names
// the path, so that a test can see the fast one is taken.

#include <QByteArray>
#include <QByteArrayView>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

class QSqlDatabase;

class LetturaRighe {
public:
    virtual ~LetturaRighe() = default;

    // The next row; false after the last. Raises Errore with the server's words.
    virtual bool Prossima() = 0;
    // A value of the current row: Null, a whole number, or its text (valid until the next row).
    virtual bool Null(int iColonna) const = 0;
    virtual qint64 Intero(int iColonna) const = 0;
    virtual QByteArrayView Testo(int iColonna) const = 0;
    // The same text as a string, for a reader that keeps it (by default from Testo; Qt's path
    // gives the driver's own string, without going through UTF-8 and back).
    virtual QString Stringa(int iColonna) const { return QString::fromUtf8(Testo(iColonna)); }
    // The path in a word: "sqlite3" or "Qt".
    virtual QString Via() const = 0;
};

// Qt's path: a forward-only query, for every backend.
class LetturaRigheQt : public LetturaRighe {
public:
    // Runs the statement (values bound in order when there are any); raises Errore with the
    // server's words, under sSorgente.
    LetturaRigheQt(const QSqlDatabase& db, const QString& sSql, const QVariantList& valori,
                   const QString& sSorgente);

    bool Prossima() override;
    bool Null(int iColonna) const override;
    qint64 Intero(int iColonna) const override;
    QByteArrayView Testo(int iColonna) const override;
    QString Stringa(int iColonna) const override;
    QString Via() const override { return QStringLiteral("Qt"); }

private:
    QSqlQuery query;
    QString sSorgente;
    mutable QByteArray testo; // the text last asked for
};
