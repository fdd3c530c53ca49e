#include "frmIdicizWeb.h"

#include "Sessione.h"

frmIdicizWeb::frmIdicizWeb(QWidget* parent)
    : frmBackup(parent, Testi{QStringLiteral("frmIdicizWeb"), QStringLiteral("Indicizzazione web"),
                              QStringLiteral("Vuoi eseguire indicizzazione web?"),
                              QStringLiteral("Indicizzazione web in corso. Prego attendere"),
                              QStringLiteral("Indicizzazione web terminata. Click su Esci"),
                              QStringLiteral("SP_Indicizza"), &Sessione::sParam07,
                              QStringLiteral("Errore E1"),
                              QStringLiteral("In Param.txt il codice 07 va scritto con uno spazio "
                                             "dopo il separatore e la lingua tra apici, per "
                                             "esempio: 07= 'italian'")}) {}
