#pragma once

// The record of a complesso documentario at any level of the tree: its description on two
// tabs ("Identificazione", "Gestione"), its figures and worth, its places, the blinking
// warning when the sub-levels say more than the level itself.

#include "EditoreRecord.h"

#include <QString>
#include <QVariant>

// What the complesso record asks of the window that hosts it, by name.
class ChiamanteComplesso {
public:
    virtual ~ChiamanteComplesso() = default;
    // The denomination of the node chosen in the window's tree.
    virtual QString GetDenon() = 0;
    // After the producers' dialog: the node's link image from iEsitoLinkSogg.
    virtual void ChkSogg() = 0;
    // After the finding aids' dialog: the node's link image from iEsitoLinkInv.
    virtual void ChkLinks() = 0;
};

class ucComplesso : public EditoreRecord {
    Q_OBJECT
public:
    explicit ucComplesso(QWidget* parent = nullptr);
    ~ucComplesso() override;

    // bFromNuovComplDoc: hosted by the complesso picker (some buttons hidden); objCaller: the
    // host that answers GetDenon, ChkSogg and ChkLinks (may be nullptr).
    void Init(bool bFromNuovComplDoc, ChiamanteComplesso* objCaller);
    void Init() override { Init(false, nullptr); }
    // sFromNodeTag: the kind of the chosen node ("01" or "02"); IDElem: the parent's id.
    void Nuovo(const QString& sFromNodeTag, long IDElem);
    void Nuovo() override { Nuovo(QStringLiteral("01"), 0); }
    void Mostra(long IDElem) override;
    void Modifica() override;
    void Salva(long IDElem) override;
    void Annulla() override;
    void AssegnaIstituto(long tempID_Istituto);
    void CheckDenominazioni();

    long ID_Istituto = 0;
    bool OkNuovoComplesso = false;
    bool AltreDenominazioni = false;

private:
    void CostruisciForm();
    int CercaTipologiaCD(const QString& sCodice) const;
    // Sets the detail state from the row of ComplessiDoc (bTrovato false: the row is missing).
    void LeggiStato(bool bTrovato, long lIdIstitutoRiga, bool bTieniIstituto);
    // The blinking boxes: quali is a mask, 1 Timer1, 2 Timer2, 4 Timer3.
    void ControllaRiporti(int quali = 7, bool bFerma = false);
    void Lampeggia(int iTimer);
    void Riposo(int iTimer);
    void BloccaCampiCD();
    void SbloccaCampiCD();
    void AltreDenClick();
    void LinkSogClick();
    void MostraLinksClick();
    void LinkPergClick();
    void PubblicaClick();
    // Entering a blinking box stops its blink.
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

    struct Dati;
    Dati* d;
};
