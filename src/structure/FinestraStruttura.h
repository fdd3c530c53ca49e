#pragma once

// What the structure windows share: the tree tvwDB over a ModelloAlbero with the order option
// FrameOrd (Ord(0) "Alfabetico", Ord(1) "Archivistico"), the editor's frame Frame1 that the
// sliding panel (cmdSposta, picSposta) hides and shows, the editing state that hides the
// commands and disables the tree, the temporary node of a new element, the click on a node.
// A window of the family derives from it, fills Frame1, registers its command buttons and the
// kinds of element it holds (TipoNodo), and loads its own groups of elements in CaricaAlbero.
// The commands New, Edit, Conferma, Annulla and Delete are the same for every kind: the kind's
// description says which editor, image, detail table, question and titles they use.

#include "store/ModelloAlbero.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <utility>

class EditoreRecord;
class QDialog;
class QFrame;
class QScrollArea;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPoint;
class QPushButton;
class QRadioButton;
class QTreeView;

// A kind of element of a structure window.
struct TipoNodo {
    // The kind's ELEM_Tipologia, the Tag of its nodes ("01").
    QString sTag;
    // Other Tags whose nodes this kind's editor shows and edits, not creates nor deletes (the
    // root "00" shown as an institute).
    QStringList altriTag;
    // The window's sTipo while a record of this kind is in hand ("istituto").
    QString sTipo;
    // The editor in Frame1; the editors of the other kinds are hidden while it is shown.
    EditoreRecord* editore = nullptr;
    // The command that makes a new element of this kind (none if the window makes none).
    QPushButton* cmdNuovo = nullptr;
    // The image of a new node of this kind.
    QString sImmagineNuovo;
    // The detail table whose row the delete looks for; "" for a kind that is not deleted.
    QString sTabella;
    // The delete's question, and its title followed by the record's denomination.
    QString sDomandaCancella;
    QString sTitoloCancella;
    // The title of the box when the row of Elementi cannot be written ("" the program's own),
    // and the title of the box when the delete fails.
    QString sTitoloErroreSalva;
    QString sTitoloErroreCancella = QStringLiteral("Errore T4");
    // The node's text follows the record's denomination only when the element is made, not
    // after an edit (the versamento's date and number).
    bool bTestoSoloAllaCreazione = false;
    // Each command enabled by a flag of the editor while a record of this kind is shown. A
    // command that another kind lists and this one does not is disabled; &Sempre enables a
    // command whenever a record of the kind is shown.
    QList<std::pair<QPushButton*, const bool*>> pulsanti;
    static constexpr bool Sempre = true;
};

// A kind of a window over one finding aid: its texts, the delete's failure titled "Errore U4",
// and its Cancella and Modifica enabled by the editor's OkCancella and OkModifica.
TipoNodo TipoDelloStrumento(const QString& sTag, const char* sTipo, EditoreRecord* editore,
                            const char* sImmagineNuovo, const char* sTabella, const char* sDomanda,
                            const char* sTitolo, QPushButton* cmdCancella,
                            QPushButton* cmdModifica);

// An entry of the popup of a command that makes a new element of one of several kinds: its
// text as the popup shows it and the Tag of the kind it makes.
struct VoceNuovo {
    QString sVoce;
    QString sTag;
};

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

    // The complessi linked to the finding aid of the node last clicked, in the viewer
    // frmMostraLinkInv, opened for that caller (iChiamanteInv) with those arguments; back here
    // the node's image follows the outcome without a reload (iEsitoLinkCD 1 the first complesso
    // linked: "silink", 2 the last one removed: "nolink"), and the node is shown again.
    void MostraLinkInventario(int iChiamante, const QVariantMap& argomenti = {});

    // The commands, for every kind the window describes. Nuovo makes a new element of the kind
    // with that Tag under the node last clicked; Modifica edits the node last clicked; Conferma
    // writes the record in hand (for a new one the row of Elementi first, then the editor's
    // Salva); Annulla drops the edit; Cancella deletes the node last clicked after the
    // question.
    void Nuovo(const QString& sTag);
    void Modifica();
    void Conferma();
    void Annulla();
    void Cancella();

    // Hosts the window in a modal dialog, which closes with it; the dialog is returned for its
    // exec(). A window given a size of its own gives it to the dialog.
    QDialog* InDialogo(QWidget* genitore = nullptr);

    // The state: "mostra", "nuovo" or "modifica".
    QString sStato = QStringLiteral("mostra");
    // The sTipo of the kind of the record in hand.
    QString sTipo;
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
    // Shows the node last clicked by its Tag with its kind's editor; a Tag the window does not
    // know does nothing.
    virtual void MostraNodo(const QString& sTag);

    // The kinds of the window, in the order of registration; the kind's cmdNuovo runs Nuovo
    // with its Tag. Conferma and Annulla run the commands of the same names.
    void RegistraTipo(const TipoNodo& tipo);
    // The kind whose Tag is that one (nullptr if none); with bAncheAltri also the kind that
    // shows that Tag among its other Tags.
    const TipoNodo* TipoDelTag(const QString& sTag, bool bAncheAltri = true) const;
    // The kind of the record in hand, by sTipo (nullptr if none).
    const TipoNodo* TipoInUso() const;
    // Shows the node last clicked with the kind's editor, the commands from its flags.
    void MostraTipo(const TipoNodo& tipo);
    // The commands enabled from the kind's flags, after a Mostra and after a Conferma; then
    // DopoPulsanti.
    void AbilitaPulsanti(const TipoNodo& tipo);

    // What a window adds to the commands for a kind. After the editor's Mostra:
    virtual void DopoMostra(const TipoNodo& tipo);
    // After the commands were enabled (what a window paints or tags on its own commands):
    virtual void DopoPulsanti(const TipoNodo& tipo);
    // Before a new record or an edit is started, sStato already set:
    virtual void PreparaEditore(const TipoNodo& tipo);
    // Before anything of a Mostra, a New (before its temporary node) or an Edit of the kind:
    // what the window reads for the editor. False (its box shown) ends the command where it
    // stood: nothing is shown, and a New or an Edit leaves the window as it was.
    virtual bool PreparaTipo(const TipoNodo& tipo);
    // After the editor's Salva at Conferma, sStato still "nuovo" or "modifica":
    virtual void DopoSalva(const TipoNodo& tipo);
    // The editor's Nuovo for a new element under a node with that Tag (the editor's own by
    // default).
    virtual void NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre);

    // The row of Elementi of a new element; Errore when it cannot be written, or when its
    // parent is no longer in the database.
    static long AggiungiElemento(const QString& sDenominazione, const QString& sTipologia,
                                 long lIdPadre);

    // Loads the groups into the tree. On an error the box "Errore U5" and false: the tree
    // stays as far as it came. Otherwise the tree is collapsed on its root, Sorted, and the
    // root is selected and clicked.
    bool CaricaGruppi(const QList<GruppoAlbero>& gruppi, bool bSoggettiComplessi,
                      const RadiceAlbero& radice = RadiceAlbero());

    // A command button of the window: hidden while editing, shown afterwards.
    void RegistraComando(QPushButton* comando);
    // A command button made with its name and caption, and registered.
    QPushButton* NuovoComando(const char* sNome, const QString& sDidascalia);
    // A command that makes a new element of a kind chosen in a popup at the cursor: under a
    // node whose Tag is one of tagPadri, its click offers those entries through the platform,
    // and the entry chosen runs Nuovo with its Tag; no entry chosen, or a node of another
    // Tag, does nothing. A window may give several popups to one command, for different Tags.
    void RegistraMenuNuovo(QPushButton* comando, const QStringList& tagPadri,
                           const QList<VoceNuovo>& voci);
    // A popup on the right click on a node whose Tag is one of tagNodi: the node is chosen and
    // shown, then the entries are offered through the platform at the cursor, and the number
    // of the entry chosen (1 for the first) goes to the action; no entry chosen does nothing.
    void RegistraMenuNodo(const QStringList& tagNodi, const QStringList& voci,
                          std::function<void(int)> azione);
    // A command of the window that stays hidden, also when an edit ends.
    void TieniNascosto(QPushButton* comando);
    // An editor of the window in Frame1, with its name; of the editors only the first is
    // visible until a record is shown.
    void AggiungiEditore(EditoreRecord* editore, const char* sNome);
    // The row of the command buttons, where the window puts its own ones.
    QHBoxLayout* BarraComandi() const { return barraComandi; }

    // A window over one element, hosted modally: the main form's inner size and a little more
    // (650 and 100 twips).
    void DimensioniDalPrincipale();
    // The finding aid at the root of a window over one of them: the first row of the statement
    // (its "?" the element) gives the key of its row of Inventari and its name. False, after
    // the box "Errore U5", when it cannot be read or is no finding aid: the window is emptied.
    bool LeggiStrumentoRadice(const QString& sSql, qint64 lIdElemento, long& lIdInventarioRecord,
                              QString& sDenominazione);
    // Nothing to show: the tree empty, the commands off, the editors hidden.
    void SenzaAlbero();

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
    // At its first showing a child window of the main form stands at Left 0 and Top 0.
    void showEvent(QShowEvent* evento) override;

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
    void NascondiAltriEditori(const TipoNodo& tipo);
    void MenuNuovo(const QPushButton* comando);
    void MenuDelNodo(const QPoint& posizione);

    struct MenuDelComando {
        const QPushButton* comando;
        QStringList tagPadri;
        QList<VoceNuovo> voci;
    };
    QList<MenuDelComando> menuNuovo;
    struct MenuNodo {
        QStringList tagNodi;
        QStringList voci;
        std::function<void(int)> azione;
    };
    QList<MenuNodo> menuNodi;
    QList<QPushButton*> comandiNascosti;

    ModelloAlbero* pModello = nullptr;
    QHBoxLayout* barraComandi = nullptr;
    QList<QPushButton*> comandi;
    QList<TipoNodo> tipi;
    bool bSelezioneInterna = false;
    bool bPrimaVisualizzazione = true;
};
