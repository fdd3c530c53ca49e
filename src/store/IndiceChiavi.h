#pragma once

// From a tree's key numbers to its nodes: a flat table with open addressing, for the million
// keys of a large tree. A database gives keys one after the other within a site's range, and
// the table keeps that closeness: the low four bits of a key choose its place within a block of
// 16 places and the rest, mixed, choose the block. Keys that follow each other are written to
// neighbouring places (a load touches memory in order instead of at random), while the ranges
// of two sites, or keys far apart, spread over the whole table.

#include <QtGlobal>
#include <vector>

class IndiceChiavi {
public:
    static constexpr qint32 Assente = -1;

    // The node of the key, or Assente.
    qint32 Trova(qint64 lChiave) const {
        if (valori.empty()) {
            return Assente;
        }
        for (std::size_t posto = Posto(lChiave);; posto = (posto + 1) & maschera) {
            if (valori[posto] == Assente) {
                return Assente;
            }
            if (chiavi[posto] == lChiave) {
                return valori[posto];
            }
        }
    }
    bool Contiene(qint64 lChiave) const { return Trova(lChiave) != Assente; }

    // Records the key's node; false, and nothing changed, when the key is already there.
    bool Inserisci(qint64 lChiave, qint32 iNodo) {
        if ((iQuante + 1) * 2 > valori.size()) {
            Ingrandisci();
        }
        std::size_t posto = Posto(lChiave);
        for (; valori[posto] != Assente; posto = (posto + 1) & maschera) {
            if (chiavi[posto] == lChiave) {
                return false;
            }
        }
        chiavi[posto] = lChiave;
        valori[posto] = iNodo;
        ++iQuante;
        return true;
    }

    // Takes the key away; nothing when it is not there.
    void Rimuovi(qint64 lChiave) {
        if (valori.empty()) {
            return;
        }
        std::size_t posto = Posto(lChiave);
        while (valori[posto] != Assente && chiavi[posto] != lChiave) {
            posto = (posto + 1) & maschera;
        }
        if (valori[posto] == Assente) {
            return;
        }
        // The keys after the gap that would no longer be found move back into it.
        std::size_t vuoto = posto;
        for (std::size_t dopo = (posto + 1) & maschera; valori[dopo] != Assente;
             dopo = (dopo + 1) & maschera) {
            const std::size_t proprio = Posto(chiavi[dopo]);
            // Whether the key's own place lies cyclically in (vuoto, dopo]: then it stays.
            const bool bResta = vuoto <= dopo ? (vuoto < proprio && proprio <= dopo)
                                              : (vuoto < proprio || proprio <= dopo);
            if (!bResta) {
                chiavi[vuoto] = chiavi[dopo];
                valori[vuoto] = valori[dopo];
                vuoto = dopo;
            }
        }
        valori[vuoto] = Assente;
        --iQuante;
    }

    void Svuota() {
        chiavi.clear();
        valori.clear();
        maschera = 0;
        iBitBlocco = 0;
        iQuante = 0;
    }

    qsizetype Quante() const { return static_cast<qsizetype>(iQuante); }

private:
    static constexpr int BitVicini = 4;

    std::size_t Posto(qint64 lChiave) const {
        const auto chiave = static_cast<quint64>(lChiave);
        const quint64 blocco = ((chiave >> BitVicini) * 0x9E3779B97F4A7C15ULL) >> (64 - iBitBlocco);
        return static_cast<std::size_t>((blocco << BitVicini) |
                                        (chiave & ((1U << BitVicini) - 1))) &
               maschera;
    }

    void Ingrandisci() {
        std::vector<qint64> vecchieChiavi;
        std::vector<qint32> vecchiValori;
        vecchieChiavi.swap(chiavi);
        vecchiValori.swap(valori);
        const std::size_t posti =
            vecchiValori.empty() ? std::size_t(1) << 10 : vecchiValori.size() * 2;
        chiavi.assign(posti, 0);
        valori.assign(posti, Assente);
        maschera = posti - 1;
        iBitBlocco = 0;
        while ((std::size_t(1) << (iBitBlocco + BitVicini)) < posti) {
            ++iBitBlocco;
        }
        iQuante = 0;
        for (std::size_t i = 0; i < vecchiValori.size(); ++i) {
            if (vecchiValori[i] != Assente) {
                Inserisci(vecchieChiavi[i], vecchiValori[i]);
            }
        }
    }

    std::vector<qint64> chiavi;
    std::vector<qint32> valori;
    std::size_t maschera = 0;
    int iBitBlocco = 0; // the bits that choose a block: places = 2^(iBitBlocco + BitVicini)
    std::size_t iQuante = 0;
};
