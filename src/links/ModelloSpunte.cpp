#include "ModelloSpunte.h"

#include <QFont>

ModelloSpunte::ModelloSpunte(QObject* genitore)
    : ModelloElenco(genitore) {}

QVariant ModelloSpunte::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid() || indice.row() < 0 || indice.row() >= spunte.size()) {
        return ModelloElenco::data(indice, ruolo);
    }
    if (ruolo == Qt::CheckStateRole) {
        return spunte[indice.row()] ? Qt::Checked : Qt::Unchecked;
    }
    if (ruolo == Qt::FontRole && legate[indice.row()]) {
        QFont grassetto;
        grassetto.setBold(true);
        return grassetto;
    }
    return ModelloElenco::data(indice, ruolo);
}

bool ModelloSpunte::setData(const QModelIndex& indice, const QVariant& valore, int ruolo) {
    if (ruolo != Qt::CheckStateRole || !indice.isValid() || indice.row() >= spunte.size()) {
        return false;
    }
    const int iRiga = indice.row();
    spunte[iRiga] = valore.toInt() == Qt::Checked;
    if (bSceltaUnica && spunte[iRiga]) {
        // The tick there was goes away, without telling it: only the new choice is told.
        for (int i = 0; i < spunte.size(); ++i) {
            if (i != iRiga && spunte[i]) {
                ImpostaSpunta(i, false);
            }
        }
    }
    Q_EMIT dataChanged(indice, indice, {Qt::CheckStateRole});
    Q_EMIT SpuntaCambiata(iRiga);
    return true;
}

Qt::ItemFlags ModelloSpunte::flags(const QModelIndex& indice) const {
    return ModelloElenco::flags(indice) | Qt::ItemIsUserCheckable;
}

void ModelloSpunte::Riempi(QList<qint64> idNuovi, QList<QString> testiNuovi,
                           QList<bool> legateNuove) {
    legateNuove.resize(idNuovi.size());
    if (bSceltaUnica) {
        // The one linked starts ticked as a choice the user may change; the first only.
        spunte.fill(false, legateNuove.size());
        const qsizetype iLegata = legateNuove.indexOf(true);
        if (iLegata >= 0) {
            spunte[iLegata] = true;
        }
        legate.fill(false, legateNuove.size());
        ModelloElenco::Riempi(std::move(idNuovi), std::move(testiNuovi));
        return;
    }
    legate = std::move(legateNuove);
    spunte = legate;
    ModelloElenco::Riempi(std::move(idNuovi), std::move(testiNuovi));
}

int ModelloSpunte::Aggiungi(qint64 lId, const QString& sTesto) {
    spunte.append(false);
    legate.append(false);
    return ModelloElenco::Aggiungi(lId, sTesto);
}

void ModelloSpunte::ImpostaSpunta(int iRiga, bool bSpuntata) {
    if (iRiga < 0 || iRiga >= spunte.size()) {
        return;
    }
    spunte[iRiga] = bSpuntata;
    const QModelIndex cella = index(iRiga);
    Q_EMIT dataChanged(cella, cella, {Qt::CheckStateRole});
}

qint64 ModelloSpunte::IdSpuntato() const {
    const qsizetype iRiga = spunte.indexOf(true);
    return iRiga >= 0 ? Id(static_cast<int>(iRiga)) : 0;
}
