#pragma once

// The institute as one kind of the windows that hold institutes and what hangs under them
// (complessi, finding aids): the same in each, but for the commands of the window that its
// editor's flags enable and the title of a failed delete.

#include "FinestraStruttura.h"

class ucIstituto;

// Tag "01", the root "00" shown as an institute without a record, sTipo "istituto", the editor
// fraIstituto with the command cmdNuovoIst, the image "istituto" of a new node, the table
// Istituti and the delete's question and title. cmdNuovoIst, cmdCancella and cmdModifica follow
// the editor's OkNuovoIstituto, OkCancella and OkModifica; the window's other commands follow
// the flags given with them. A window that makes no institute passes no cmdNuovoIst.
TipoNodo TipoIstituto(ucIstituto* fraIstituto, QPushButton* cmdNuovoIst, QPushButton* cmdModifica,
                      QPushButton* cmdCancella,
                      const QList<std::pair<QPushButton*, const bool*>>& altriPulsanti);

// The first group of the window's tree: the institutes, a top one under the root, brothers in
// the Italian order of their names.
GruppoAlbero GruppoIstituti();
