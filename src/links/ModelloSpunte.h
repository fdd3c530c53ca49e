#pragma once

// The rows of a list with check boxes (lvwDB of a link dialog): the list's model over two arrays
// (ModelloElenco) and, beside them, for each row whether it is ticked and whether it was linked
// already when the list was loaded (its Tag 1: shown in bold). A change of a tick, as the view
// makes it at the user's click or key, is told by SpuntaCambiata after it is stored; what it
// means is the dialog's rule.
//
// A list of a single choice (ImpostaSceltaUnica) keeps one tick at most: a tick takes away the
// one there was, and the row linked when the list was loaded starts ticked but is an ordinary
// row (Tag 0, not bold), which the user may untick.

#include "records/ModelloElenco.h"

#include <QList>

class ModelloSpunte : public ModelloElenco {
    Q_OBJECT
public:
    explicit ModelloSpunte(QObject* genitore = nullptr);

    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& indice, const QVariant& valore, int ruolo) override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

    // The rows replaced at once: ids, texts and whether each was linked (ticked, Tag 1).
    void Riempi(QList<qint64> idNuovi, QList<QString> testiNuovi, QList<bool> legateNuove);
    // A row added at the end, unticked, Tag 0; its row number.
    int Aggiungi(qint64 lId, const QString& sTesto);
    // Rows are not taken away from a list of ticks (its slots would lose their rows).
    void Rimuovi(int iRiga) = delete;

    bool Spuntata(int iRiga) const { return spunte.value(iRiga); }
    // The row's Tag: 1 for a row linked when the list was loaded, 0 otherwise.
    int Tag(int iRiga) const { return legate.value(iRiga) ? 1 : 0; }
    // The tick set without telling it (the dialog's own correction).
    void ImpostaSpunta(int iRiga, bool bSpuntata);

    // One tick at most (before Riempi).
    void ImpostaSceltaUnica(bool bUnica) { bSceltaUnica = bUnica; }
    bool SceltaUnica() const { return bSceltaUnica; }
    // The id of the first row ticked; 0 when none is.
    qint64 IdSpuntato() const;

Q_SIGNALS:
    void SpuntaCambiata(int iRiga);

private:
    QList<bool> spunte;
    QList<bool> legate;
    bool bSceltaUnica = false;
};
