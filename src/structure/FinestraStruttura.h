#pragma once

// What the structure windows share: the tree tvwDB over a ModelloAlbero with the order option
// FrameOrd (Ord(0) "Alfabetico", Ord(1) "Archivistico"), the editor's frame Frame1 that the
// sliding panel (cmdSposta, picSposta) hides and shows, the editing state that hides the
// commands and disables the tree, the temporary node of a new element, the click on a node.
// A window of the family derives from it, fills Frame1, registers its command buttons and
// loads its own groups of elements in CaricaAlbero.

#include "store/ModelloAlbero.h"

#include <QList>
#include <QString>
#include <QWidget>

class QFrame;
class QScrollArea;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QTreeView;

class FinestraStruttura : public QWidget {
    Q_OBJECT
public:
    explicit FinestraStruttura(const QString& sNome, QWidget* genitore = nullptr);
    ~FinestraStruttura() override;

    ModelloAlbero& Modello() { return *pModello; }
    const ModelloAlbero& Modello() const { return *pModello; }

    // The click on a node: the node's Tag and the number of its Key go to sTagCorrente and
    // lIdCorrente, then MostraNodo shows it by its Tag. Windows call it themselves to refresh
    // what is shown.
    void NodoCliccato(const QModelIndex& nodo);
    // Selects the node, shows it in the tree and runs the click on it.
    void SelezionaNodo(const QModelIndex& nodo);

    void MostraPannello();
    void NascondiPannello();
    void BloccaComandi();
    void SbloccaComandi();

    // After the link viewers: the image of the node last clicked follows iEsitoLinkInv
    // (ChkLinks) or iEsitoLinkSogg (ChkSogg); then the node is shown and selected again.
    void ChkLinks();
    void ChkSogg();

    // The state: "mostra", "nuovo" or "modifica".
    QString sStato = QStringLiteral("mostra");
    // The node last clicked.
    QString sTagCorrente;
    qint64 lIdCorrente = 0;
    // The Tag of the temporary node.
    QString sTagNuovo;
    bool bPannelloNascosto = false;

protected:
    // The Load's last steps: Conferma and Annulla hidden, the panel shown, then Ord(1) on,
    // which loads the tree. A window without order option passes false: the tree is loaded
    // at once with an empty order and FrameOrd is hidden.
    void Avvia(bool bConOrdine = true);
    // Loads the tree with that tail of the ORDER BY.
    virtual void CaricaAlbero(const QString& sOrdine) = 0;
    // The tail of the ORDER BY of each option.
    virtual QString OrdineDi(int iOpzione) const;
    // Shows the node last clicked by its Tag; a Tag the window does not know does nothing.
    virtual void MostraNodo(const QString& sTag);

    // Loads the groups into the tree. On an error the box "Errore U5" and false: the tree
    // stays as far as it came. Otherwise the tree is collapsed on its root, Sorted, and the
    // root is selected and clicked.
    bool CaricaGruppi(const QList<GruppoAlbero>& gruppi, bool bSoggettiComplessi);

    // A command button of the window: hidden while editing, shown afterwards.
    void RegistraComando(QPushButton* comando);
    // The row of the command buttons, where the window puts its own ones.
    QHBoxLayout* BarraComandi() const { return barraComandi; }

    // The temporary node of a new element: key 9999999 ID, 10 blanks, under the node last
    // clicked, selected (without its click).
    QModelIndex AggiungiNodoTemporaneo(const QString& sTag, const QString& sImmagine);
    void RimuoviNodoTemporaneo();
    // At Conferma of a new element: the temporary node gives way to the real one, under the
    // node last clicked, Sorted, selected and clicked.
    QModelIndex SostituisciNodoTemporaneo(qint64 lId, const QString& sTesto,
                                          const QString& sImmagine, const QString& sTag);
    // At Annulla of a new element: the temporary node goes away, the node last clicked is
    // selected and clicked again.
    void AnnullaNodoTemporaneo();
    // The node last clicked.
    QModelIndex NodoCorrente() const;

    void keyPressEvent(QKeyEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

public:
    QTreeView* tvwDB = nullptr;
    QGroupBox* FrameOrd = nullptr;
    QRadioButton* Ord[2] = {nullptr, nullptr};
    QPushButton* cmdSposta = nullptr;
    QLabel* picSposta = nullptr;
    QFrame* Frame1 = nullptr;
    QScrollArea* areaFrame1 = nullptr;
    QPushButton* cmdConferma = nullptr;
    QPushButton* cmdAnnulla = nullptr;

private:
    void OpzioneCambiata(int iOpzione, bool bAttiva);
    void CambioSelezione(const QModelIndex& corrente);
    void ImpostaPulsanteSposta(const QString& sBitmap, const QString& sIcona);

    ModelloAlbero* pModello = nullptr;
    QHBoxLayout* barraComandi = nullptr;
    QList<QPushButton*> comandi;
    bool bSelezioneInterna = false;
};
