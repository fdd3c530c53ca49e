#pragma once

// Text in the order an Italian reader expects, the same in the database and in the trees:
// letters by their base letter first, then accents, then case (a lower-case letter before its
// capital), so that "àncora" stands by "ancora", "Èrba" by "erba" and "Zeta" after "archivio".
// It is ICU's Italian collation, the one the program's PostgreSQL databases are created with;
// texts it finds equal go by their characters' codes, so that the order is total (as on
// PostgreSQL).

#include <QStringView>
#include <string_view>

// Below 0, 0 or above 0 as a comes before, with or after b.
int ConfrontaItaliano(QStringView a, QStringView b);
// The same for texts in UTF-8.
int ConfrontaItaliano(std::string_view a, std::string_view b);
