#pragma once

// The element store: every archival object is a row of Elementi with a detail row of its
// kind, which the database makes itself. The windows create an element (kind, name, parent)
// and delete it through its detail row; the database does the rest (see db/genera_schema.py).

#include <QString>

class Connessione;

namespace ArchivioElementi {

// The detail table of a kind ("01" Istituti ... "07" DatiInventariali), "" for another kind.
QString TabellaDettaglio(const QString& sTipologia);

// Inserts the element and gives back its ID_Elemento. The parent is written only when its id
// is above 0 (otherwise the element hangs at the top of the tree).
long Crea(const Connessione& connessione, const QString& sTipologia, const QString& sDenominazione,
          long lIdPadre);

// Deletes the detail row of the element; the database removes the element, its links and all
// that hangs on it, and refuses (Errore) while the element still has children.
void Elimina(const Connessione& connessione, const QString& sTipologia, long lIdElemento);

// A row of Links from the element (ID_Elemento) to the other (ID_ElementoLink), Specifica "",
// unless the pair is there already: true when a row was added. Raises Errore when one of the two
// is no longer an element (another workstation deleted it): no row is written then.
bool Collega(const Connessione& connessione, long lIdElemento, long lIdElementoLink);

} // namespace ArchivioElementi
