#pragma once

// The three kinds of producer as the lists show them: persons, families and bodies, each with
// its tab, its kind's text, its letter in Soggetti, its table, the header of its list and the
// columns that follow the name in a row of the list. A row of such a list reads the producer's
// id, its name and then the kind's columns; its text is the name followed by the kind's tail
// (EstremiPersona, EstremiFamiglia, EstremiEnte, the dates through DataDaNumero with 0 as
// empty). A new producer starts as a row of Soggetti with its name and its kind (the database
// makes the kind's row); the windows that make one make it here.

#include <QString>

class LetturaRighe;

namespace TipiProduttore {

// The kinds in the order of the tabs.
enum Scheda { Persone = 0, Famiglie = 1, Enti = 2 };
inline constexpr int Schede = 3;

struct Tipo {
    const char* sTitolo;       // the tab ("Persone")
    const char* sTipo;         // the kind's text ("persona")
    const char* sLettera;      // TipoSoggetto ("P")
    const char* sTabella;      // the kind's table ("Persone")
    const char* sIntestazione; // the list's header
    const char* sColonne;      // the kind's columns of a row, after the id and the name
};

const Tipo& Di(int iScheda);

// The tail that follows the name in a row of the list, from the kind's columns of the row read
// (sColonne), the first of them at iPrima.
QString Estremi(int iScheda, const LetturaRighe& riga, int iPrima = 2);

// The row of Soggetti of a new producer of that kind with its name; its ID_Soggetto. Raises
// Errore when it cannot be made.
long NuovoSoggetto(int iScheda, const QString& sDenominazione);

} // namespace TipiProduttore
