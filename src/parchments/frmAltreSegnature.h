#pragma once

// "Antiche Segnature": the old shelf marks of a parchment (PGAltreSegnature), for the parchment
// whose key its opener left in the session value lIdPergamena. Run modally; the opener looks at
// the marks again after it closes.

#include "records/ElencoTesti.h"

class frmAltreSegnature : public ElencoTesti {
    Q_OBJECT
public:
    explicit frmAltreSegnature(QWidget* parent = nullptr);

private:
    static Descrizione DescrizioneDialogo();
};
