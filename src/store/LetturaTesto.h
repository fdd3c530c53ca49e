#pragma once

// A whole table read by the server's own bulk path, each value in the server's text form
// (UTF-8, numbers with a point, dates "yyyy-mm-dd hh:mm:ss[.ffffff]", booleans "t"/"f"),
// row after row without keeping them: the export's path where the server has one.

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <vector>

class LetturaTesto {
public:
    // What a column holds, as far as the text form needs telling apart.
    enum class Genere { Testo, Intero, Reale, Logico, DataOra, Data, Altro };

    virtual ~LetturaTesto() = default;

    const QStringList& Colonne() const { return colonne; }
    Genere GenereDi(int iColonna) const { return generi[static_cast<size_t>(iColonna)]; }

    // The next row; false after the last. Raises Errore with the server's words.
    virtual bool Prossima() = 0;
    // A value of the current row: Null, or its text (valid until the next row).
    virtual bool Null(int iColonna) const = 0;
    virtual QByteArrayView Testo(int iColonna) const = 0;

protected:
    QStringList colonne;
    std::vector<Genere> generi;
};
