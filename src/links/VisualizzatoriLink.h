#pragma once

// The twelve viewers of links, frmMostraLink and a suffix, each a description of the one viewer
// (VisualizzatoreLink.h), made by name. Each reads, as it is made, the session values that its
// opener filled (Sessione.h) and the arguments its opener hands it:
//
//   frmMostraLinkCS       producers of a complesso (lIdComplesso, sDenomComplesso) or, with
//                         sTipoLink "1", of a dato inventariale (lIdDatoInventariale,
//                         sDenomInventario); three tabs; iEsitoLinkSogg; on to frmNuovoSoggetto
//   frmMostraLinkInv      complessi of the element lIdInventario (sDenomInventario), by
//                         iChiamanteInv; iEsitoLinkCD; on to frmNuovoComplesso; argument
//                         "bInventarioBase"
//   frmMostraLinkSCD      complessi, or with sTipoLink "1" units, of the producer lIdSoggetto
//                         (sDenomSoggetto); iEsitoLinkInv
//   frmMostraLinkCD       finding aids of the complesso lIdComplesso (sDenomComplesso), or,
//                         given the argument "sDenominazione", its parchments; iEsitoLinkInv;
//                         on to frmNuovoInventario (finding aids only)
//   frmMostraLinkAnt      persons of the parchment lIdElementoLink (its key in Pergamene,
//                         sDenomElementoLink), with their role; on to frmLinkAntroponimi
//   frmMostraLinkDIAnt    persons of the unit lIdElementoLink (its key in DatiInventariali);
//                         on to frmLinkAntroponimi
//   frmMostraLinkTopo     places of the parchment or, with iChiamanteToponimi 2, of the unit
//                         lIdElementoLink; on to frmLinkToponimi
//   frmMostraLinkTitolari holders of the seal lIdElementoLink (its key in Sigilli), with their
//                         role; on to frmLinkTitolari, handed the argument "bFromSigilli"
//   frmMostraLinkTitSG    seals of the holder lIdSoggetto (sDenomSoggetto); iEsitoLinkInv
//   frmMostraLinkTopALL   units (sTipoLink "1") or parchments of the place lIdSoggetto
//   frmMostraLinkAntALL   units (sTipoLink "1") or parchments of the person lIdSoggetto
//   frmMostraLinkPGS      seals of a parchment (argument "lIdPergamena", its element) or the
//                         parchment of a seal ("lIdSigillo", its element), "sDenominazione";
//                         frmSelInv opens over it
//
// Going on, a viewer hands its dialog the lock of the box of the names chosen, so that they
// change only through the ticks ("bLockSelSogg", "bLockSelCompl", "bLockInvSet", "bLockSelAntr",
// "bLockSelTopon", "bLockSelTitol" true).

#include "VisualizzatoreLink.h"

#include <QStringList>
#include <QVariantMap>

class QWidget;

namespace VisualizzatoriLink {

// The twelve names.
const QStringList& Nomi();
// The viewer of that name, child of genitore, given its opener's arguments; nullptr for a name
// that is none of the twelve. Raises nothing: a failure to read shows its box in the viewer.
QDialog* Crea(const QString& sNome, QWidget* genitore, const QVariantMap& argomenti);

} // namespace VisualizzatoriLink

// The complessi of a finding aid, a parchment or a unit. bInventarioBase, set by the window of
// the finding aids, stops going on to a second complesso while one is linked.
class frmMostraLinkInv : public VisualizzatoreLink {
    Q_OBJECT
    Q_PROPERTY(bool bInventarioBase MEMBER bInventarioBase)
public:
    explicit frmMostraLinkInv(QWidget* parent = nullptr);

    bool bInventarioBase = false;

    // Loads the complessi linked, for the caller in iChiamanteInv.
    void MostraCollegamenti();
};
