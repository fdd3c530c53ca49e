#pragma once

// The pair of place combos of a record that an institute holds: cmbSede "Consultabile in", the
// institute itself ("Sede") and its seats, and cmbMagazzino, which adds its warehouses. The
// entries carry the key of the place (0 for the institute itself) in their item data.

#include <QString>
#include <QVariant>

class QComboBox;

class SediIstituto {
public:
    SediIstituto(QComboBox* cmbSede, QComboBox* cmbMagazzino);

    // Fills both combos with the places of the institute: "Sede", then the children of the
    // institute's element that are seats ("03", in both) or warehouses ("04", in cmbMagazzino
    // only). A database error is shown in the box "Errore T5" and the combos keep "Sede".
    void CaricaSedi(long lIdIstituto);
    // The entry of the stored key; the first entry when the key is not in the list.
    int CercaSede(long lId) const;
    int CercaMagazzino(long lId) const;
    // The chosen place as its column holds it: Null for the institute itself ("Sede", key 0);
    // with no entry chosen, the number of an empty code, 0.
    QVariant Sede() const;
    QVariant Magazzino() const;

    // The seat just written goes down to the direct children of the element whose row is in
    // sTabella (ComplessiDoc, Inventari), as seat and as warehouse.
    static void PropagaSedi(const QString& sTabella, long lIdElemento, const QVariant& vSede);

private:
    static QVariant Luogo(const QComboBox* cmb);

    QComboBox* cmbSede;
    QComboBox* cmbMagazzino;
};
