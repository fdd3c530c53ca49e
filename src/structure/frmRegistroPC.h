#pragma once

// The register of new acquisitions: the tree of the institutes proper (kinds "01" and "02")
// with their versamenti, on the right the institute's editor fraIstituto and the versamento's
// editor fraVersamento, of which at most one is visible. No institute is made here and the tree
// has one order. A versamento's text in the tree is its date and number as they were when it
// was made.

#include "FinestraStruttura.h"

class QPushButton;
class ucIstituto;
class ucVersamento;

class frmRegistroPC : public FinestraStruttura {
    Q_OBJECT
public:
    explicit frmRegistroPC(QWidget* genitore = nullptr);
    ~frmRegistroPC() override;

    // Shows the versamento of the node last clicked.
    void MostraVersamento();

    // The two groups of the tree: the institutes of kinds "01" and "02", then the versamenti.
    static QList<GruppoAlbero> Gruppi();

    // ID_Istituto read from the editor shown.
    long lIdIstituto = 0;

    ucIstituto* fraIstituto = nullptr;
    ucVersamento* fraVersamento = nullptr;
    QPushButton* cmdNuovoVer = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;

protected:
    void CaricaAlbero(const QString& sOrdine) override;
    void DopoMostra(const TipoNodo& tipo) override;
    void PreparaEditore(const TipoNodo& tipo) override;
};
