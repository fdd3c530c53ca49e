#pragma once

// The window of institutes and complessi documentari: the tree of both kinds on the left, on
// the right the institute's editor fraIstituto and the complesso's editor fraComplesso, of
// which at most one is visible. Its two kinds are described to the structure window, which
// runs the commands; it adds its groups and order option, the institute handed to the editors,
// the parent's Tag given to a new complesso, and the answers to the complesso record
// (GetDenon, ChkLinks, ChkSogg, MostraComplesso).

#include "FinestraStruttura.h"
#include "records/ucComplesso.h"

class QPushButton;
class ucIstituto;

class frmStrutturaCD : public FinestraStruttura, public ChiamanteComplesso {
    Q_OBJECT
public:
    explicit frmStrutturaCD(QWidget* genitore = nullptr);
    ~frmStrutturaCD() override;

    // ChiamanteComplesso
    QString GetDenon() override;
    void ChkSogg() override;
    void ChkLinks() override;

    // Shows the complesso of the node last clicked.
    void MostraComplesso();

    // ID_Istituto read from the editor shown.
    long lIdIstituto = 0;

    ucIstituto* fraIstituto = nullptr;
    ucComplesso* fraComplesso = nullptr;
    QPushButton* cmdNuovoIst = nullptr;
    QPushButton* cmdNuovoCD = nullptr;
    QPushButton* cmdModifica = nullptr;
    QPushButton* cmdCancella = nullptr;

    // The command buttons' handlers, as the buttons' clicks run them.
    void cmdNuovoIst_Click();
    void cmdNuovoCD_Click();
    void cmdModifica_Click();
    void cmdConferma_Click();
    void cmdAnnulla_Click();
    void cmdCancella_Click();

    // The ORDER BY tails of the two options: names in the Italian order (case and accents) on
    // every server, and in "Archivistico" a complesso without Ordinamento before the numbered
    // ones (which PostgreSQL would put last).
    static QString OrdineAlfabetico();
    static QString OrdineArchivistico();
    // The two groups of the tree with that tail of the ORDER BY for the complessi.
    static QList<GruppoAlbero> Gruppi(const QString& sOrdine);

protected:
    void CaricaAlbero(const QString& sOrdine) override;
    QString OrdineDi(int iOpzione) const override;
    void DopoMostra(const TipoNodo& tipo) override;
    void PreparaEditore(const TipoNodo& tipo) override;
    void NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) override;
};
