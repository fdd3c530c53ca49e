#pragma once

// "Cose Notevoli": the notable things of a unit of an analytical inventory (DICoseNotevoli),
// for the unit whose ID_DatoInventariale its opener left in the session value
// lIdDatoInventariale. A notable thing has no limit in its box. Run modally; the opener looks at
// the notable things again after it closes.

#include "records/ElencoTesti.h"

class frmCoseNotevoli : public ElencoTesti {
    Q_OBJECT
public:
    explicit frmCoseNotevoli(QWidget* parent = nullptr);

private:
    static Descrizione DescrizioneDialogo();
};
