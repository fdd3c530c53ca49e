#pragma once

// Makers of windows kept by name: the program registers its own at start, a test may stand in
// for one by registering it first (or by replacing it), and an opener asks for a name without
// knowing the window's class.

#include <QMap>
#include <QString>
#include <utility>

template <typename Fabbrica> class RegistroNomi {
public:
    // Registers the maker under the name, in place of any other.
    void Registra(const QString& sNome, Fabbrica fabbrica) {
        mappa.insert(sNome, std::move(fabbrica));
    }
    // Registers the maker unless the name is taken already.
    void RegistraPredefinita(const QString& sNome, Fabbrica fabbrica) {
        if (!mappa.contains(sNome)) {
            mappa.insert(sNome, std::move(fabbrica));
        }
    }
    void Rimuovi(const QString& sNome) { mappa.remove(sNome); }
    bool Contiene(const QString& sNome) const { return mappa.contains(sNome); }
    // A copy of the maker of that name, empty when there is none: the copy stays valid while
    // the window it makes changes the registry.
    Fabbrica Trova(const QString& sNome) const { return mappa.value(sNome); }

private:
    QMap<QString, Fabbrica> mappa;
};
