#pragma once

// "Altre Denominazioni": the other names of a complesso, of a finding aid or of a producer,
// kept in one of five tables. The mode and the record come from the session values its opener
// fills: sTipoAltreDen ("CD", "IN", "PE", "FA", "EN") and lIdAltreDen, the record's own key in
// its table (for a producer the key of its kind, not ID_Soggetto). Run modally; the opener
// looks at the names again after it closes.

#include "records/ElencoTesti.h"

#include <QString>

class frmAltreDenominazioni : public ElencoTesti {
    Q_OBJECT
public:
    explicit frmAltreDenominazioni(QWidget* parent = nullptr);

    // Where the names of a mode lie; all empty for a mode that is none of the five.
    static Tabella TabellaDelModo(const QString& sTipo);

private:
    static Descrizione DescrizioneDialogo();
};
