#pragma once

// The array of the ids ticked in a link dialog: every tick takes a new slot, and an untick writes
// 0 in the slot of its id. A slot is never removed, so the number of slots counts every tick ever
// made, and the slots still holding an id are those that are not 0.

#include <QVector>

#include <algorithm>
#include <type_traits>

template <typename Id>
void SegnaSpunta(QVector<Id>& aSlot, std::type_identity_t<Id> lId, bool bSpuntato) {
    if (bSpuntato) {
        aSlot.append(lId);
        return;
    }
    for (Id& lSlot : aSlot) {
        if (lSlot == lId) {
            lSlot = 0;
        }
    }
}

// The slots whose id was unticked.
template <typename Id> qsizetype SlotVuoti(const QVector<Id>& aSlot) {
    return std::count(aSlot.cbegin(), aSlot.cend(), Id{0});
}

// The slots that still hold an id.
template <typename Id> qsizetype SlotPieni(const QVector<Id>& aSlot) {
    return aSlot.size() - SlotVuoti(aSlot);
}

// The one id chosen in a list or a tree where a single item can be ticked: a tick makes its id
// the chosen one and gives back the id chosen before it (0 when there was none, or when it is
// the same), whose tick the caller then undoes; an untick leaves no choice and gives back 0.
template <typename Id>
Id SegnaSceltaUnica(Id& lScelto, std::type_identity_t<Id> lId, bool bSpuntato) {
    const Id lPrima = lScelto;
    lScelto = bSpuntato ? lId : Id{0};
    return bSpuntato && lPrima >= 1 && lPrima != lId ? lPrima : Id{0};
}
