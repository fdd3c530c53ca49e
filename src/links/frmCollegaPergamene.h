#pragma once

// The tie of a copy to the parchment it was copied from, and the list of the copies of an
// original. As an editor (the default) it serves the parchment Sessione::lIdPergamena of the
// finding aid Sessione::lIdInventario: the list holds the other parchments of that finding aid,
// the one it is tied to in PGTraditio ticked, and one at most can be ticked; cmdCollega
// ("Conferma") writes the choice into the parchment's row of PGTraditio (Null for none) and
// leaves it in Sessione::lIdElementoLink. Given Init, it only reads: the copies of the original,
// and the copies of those copies, each under its finding aid, with nothing to confirm. A failure
// at the load has the box "Errore A3", one at the confirmation "Errore A2".

#include "DialogoSpunte.h"

class frmCollegaPergamene : public DialogoSpunte {
    Q_OBJECT
public:
    explicit frmCollegaPergamene(QWidget* genitore = nullptr);

    // Before Carica: the window lists the copies of that original (its element and name).
    void Init(long lIdElemPergOrig, const QString& sDescrPergOrig);
    // The load: the list read and shown.
    void Carica();

    // The ids of the parchments (ID_Pergamena) copied from the original of that element, and,
    // step by step, those copied from them; each once. Raises Errore.
    static QList<qint64> Copie(long lIdElemPergOrig);

    bool bLettura = false;
    long lIdElemPergOrig = 0;
    QString sDescrPergOrig;

private:
    PaginaSpunte PaginaCopie() const;
    PaginaSpunte PaginaOriginali() const;
    void ScriviOriginale(qint64 lIdElemento) const;
};
