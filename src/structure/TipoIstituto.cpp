#include "TipoIstituto.h"

#include "records/ucIstituto.h"

TipoNodo TipoIstituto(ucIstituto* fraIstituto, QPushButton* cmdNuovoIst, QPushButton* cmdModifica,
                      QPushButton* cmdCancella,
                      const QList<std::pair<QPushButton*, const bool*>>& altriPulsanti) {
    TipoNodo istituto;
    istituto.sTag = QStringLiteral("01");
    istituto.altriTag = {QStringLiteral("00")};
    istituto.sTipo = QStringLiteral("istituto");
    istituto.editore = fraIstituto;
    istituto.cmdNuovo = cmdNuovoIst;
    istituto.sImmagineNuovo = QStringLiteral("istituto");
    istituto.sTabella = QStringLiteral("Istituti");
    istituto.sDomandaCancella = QStringLiteral("Sei sicuro di voler cancellare l'Istituto?");
    istituto.sTitoloCancella = QStringLiteral("Cancella Istituto: ");
    istituto.pulsanti = {{cmdCancella, &fraIstituto->OkCancella},
                         {cmdModifica, &fraIstituto->OkModifica}};
    if (cmdNuovoIst != nullptr)
        istituto.pulsanti.prepend({cmdNuovoIst, &fraIstituto->OkNuovoIstituto});
    istituto.pulsanti.append(altriPulsanti);
    return istituto;
}

GruppoAlbero GruppoIstituti() {
    GruppoAlbero istituti;
    istituti.sCondizione = QStringLiteral("ELEM_Tipologia='01'");
    istituti.sImmagine = QStringLiteral("istituto");
    istituti.bPadreNulloERadice = true;
    return istituti;
}
