#pragma once

// A program folder of its own for a test: a temporary folder that TABELLION_CARTELLA names,
// with the session values reset so that the program folder is resolved afresh.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

class CartellaProva {
public:
    CartellaProva();
    ~CartellaProva();

    QString Percorso() const { return cartella.path(); }
    QString File(const QString& nome) const;
    // Writes a file of the folder as given (bytes, so tests choose the line ends).
    void Scrivi(const QString& nome, const QByteArray& contenuto) const;
    void Rimuovi(const QString& nome) const;

    // Param.txt, Connetti.txt and Istituto.txt for a database; no DbNames.txt.
    void ScriviSito(const QString& sTesta, const QString& sServer, const QString& sDatabase,
                    const QString& sTipoSito = QStringLiteral("I")) const;
    // Copies files or folders (as Bitmap) of the program's own site folder into this one.
    void CopiaDalSito(const QStringList& nomi) const;

private:
    QTemporaryDir cartella;
};
