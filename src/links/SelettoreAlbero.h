#pragma once

// The tree picker: a structure window whose nodes carry check boxes, for the link dialogs that
// tie the record in hand to elements chosen in a tree. Only nodes of the kind to be chosen keep
// a tick: a tick on any other node is undone at once (NodeCheck). Every tick takes a new slot of
// the array of chosen ids, and an untick writes 0 in the slot of its id: a slot is never
// removed, so the number of slots counts every tick ever made. The box of the chosen names is
// rebuilt from the ticked nodes, in the order of the tree's nodes, after each tick and untick.
// A node can start ticked and locked (what is linked already). cmdCollega writes the links
// (enabled while a slot holds an id); cmdAnnullaCol closes and writes nothing. The window's
// editors can create and edit elements on the spot, through the commands of the structure
// window (cmdModifica and the window's own New commands), and a new node can then be ticked. The
// picker is hosted modally in a dialog (InDialogo), which closes with its outcome; its unload
// clears bFrmStrutturaINAperto.
// In its single-choice form (Scelta::Unica) one node at most is chosen: a tick on a node of the
// kind unticks the one chosen before and shows the new one as a click does, an untick leaves no
// choice, no slots are kept, and cmdCollega stays enabled (the picker tells itself what is
// missing).

#include "SlotSpunte.h"
#include "structure/FinestraStruttura.h"

#include <QVector>

#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class ucIstituto;

class SelettoreAlbero : public FinestraStruttura {
    Q_OBJECT
public:
    enum class Scelta { Multipla, Unica };

    // The names and captions of the two boxes: the record in hand (disabled) and the chosen
    // names (changed only through the ticks once bLock has been called); a box without a name
    // is not made. Then how many nodes can be chosen.
    struct Caselle {
        const char* sEtichettaInMano = nullptr;
        QString sDidascaliaInMano = {};
        const char* sCasellaInMano = nullptr;
        const char* sEtichettaScelti = nullptr;
        QString sDidascaliaScelti = {};
        const char* sCasellaScelti = nullptr;
        Scelta scelta = Scelta::Multipla;
    };

    // sTagScelto: the Tag of the nodes that can be chosen.
    SelettoreAlbero(const QString& sNome, const QString& sTagScelto, const Caselle& caselle,
                    QWidget* genitore = nullptr);
    ~SelettoreAlbero() override;

    // The check event of the tree on a node: the user ticked it (true) or unticked it.
    void NodeCheck(const QModelIndex& nodo, bool bSpuntato);
    // The chosen names' box is locked: it changes only through the ticks.
    void BloccaScelti();

    // The chosen ids, one slot for each tick ever made, 0 where the node was unticked.
    const QVector<qint64>& Scelti() const { return aScelti; }
    // The slots that still hold an id.
    int SceltiPieni() const { return static_cast<int>(SlotPieni(aScelti)); }
    // The node whose tick was last undone (its id; 0 none).
    qint64 lIdDaTogliere = 0;
    // Single choice: the id of the node chosen (0 none).
    qint64 Scelto() const { return lIdSceltaUnica; }
    // Single choice: the node of that id ticked as the chosen one, the tree opened down to it
    // and the node shown; false when the tree has no such node.
    bool Scegli(qint64 lId);
    // The node's parents opened from the root down, the node itself opened, selected and shown
    // as a click does.
    void ApriFinoA(const QModelIndex& nodo);

    QLabel* etichettaInMano = nullptr;
    QLineEdit* casellaInMano = nullptr;
    QLabel* etichettaScelti = nullptr;
    QPlainTextEdit* casellaScelti = nullptr;
    QPushButton* cmdCollega = nullptr;
    QPushButton* cmdAnnullaCol = nullptr;

    ucIstituto* fraIstituto = nullptr;
    QPushButton* cmdNuovoIst = nullptr;
    QPushButton* cmdModifica = nullptr;

    // ID_Istituto read from the editor shown.
    long lIdIstituto = 0;

protected:
    // The links of the chosen slots (cmdCollega); false, its box shown, when they could not
    // be written: the dialog then stays open.
    virtual bool Collega() = 0;
    // The Tag of the nodes that can be chosen, for a picker that learns it after being made.
    void ImpostaTagScelto(const QString& sTag) { sTagScelto = sTag; }
    // Whether the unload clears bFrmStrutturaINAperto (the pickers that always did).
    bool bSvuotaStrutturaIN = true;
    // A picker whose tree holds institutes: the institute of a record of the window's own kind
    // shown, and the institute given to that kind's editor before a new record (none by
    // default).
    virtual long IstitutoDellEditore(const TipoNodo& tipo) const;
    virtual void AssegnaIstituto(const TipoNodo& tipo, long lIdIstitutoScelto);

    // The institutes in the picker: first their editor fraIstituto (the first editor of Frame1)
    // and cmdNuovoIst, then, once the window's own commands exist, their kind (with the
    // window's commands that the institute's flags enable) and the editor's Init.
    void AggiungiIstituti();
    void RegistraIstituti(const QList<std::pair<QPushButton*, const bool*>>& altriPulsanti);
    // The writes of cmdCollega in one transaction, under the box titled "Errore N2": the
    // links go in all together or not at all.
    bool ScriviInTransazione(const std::function<void()>& lavoro);
    // The links of the slots that hold an id, written by collega (true when it added a link) in
    // one transaction: iEsito is 0 first, and 1 when they were written and one was added.
    bool CollegaScelti(const std::function<bool(long lScelto)>& collega, int& iEsito);

    void DopoMostra(const TipoNodo& tipo) override;
    void PreparaEditore(const TipoNodo& tipo) override;

private:
    void RicostruisciScelti();
    void SegnaScelta(const QModelIndex& nodo, bool bSpuntato);
    void cmdCollega_Click();
    void Chiudi(bool bAccetta);

    QString sTagScelto;
    Scelta scelta;
    QVector<qint64> aScelti;
    qint64 lIdSceltaUnica = 0;
    bool bInNodeCheck = false;
};
