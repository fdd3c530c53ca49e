#pragma once

// The check list of links with an embedded editor, written once: a dialog that ties one object
// (the served one) to any number of items of one or more lists. Each list stands in a tab of
// SSTab1 (lvwDB(n), a list with check boxes) and holds every item of its table; those linked to
// the served object already when the list was loaded are ticked, in bold, with Tag 1, and stay
// ticked whatever the user does. A tick puts the item's id in the slot array (one slot more), an
// untick writes 0 in its slot (a slot is never removed); Text1(n) shows the items newly ticked.
// cmdCollega writes, for each slot that is not 0, the link that is missing (an existing one is
// left alone, each link its own write) and closes the dialog; cmdAnnullaCol closes it and writes
// nothing. A new item is made on the spot through the tab's editor (cmdNuovoSog, then
// cmdConferma or cmdAnnulla): the states are "mostra" (the lists in control, the editors
// read-only) and "nuovo" (the editor in control). Each list is read once, at the first showing
// of its tab, by one statement that gives each item with its id first and, last, the count of
// its links to the served object (Checked).
//
// The dialog that uses it describes its lists (PaginaSpunte) and its links (CollegamentoSpunte).
// A dialog of one list only (UnaLista) shows it without tabs: lvwDB, the served object in
// Text1(0) under Label1(0), the names chosen in Text1(1) under Label1(1).
//
// A list of a single choice (PaginaSpunte::bSceltaUnica) keeps one tick at most, the item linked
// at the load ticked as a choice the user may change or take away; cmdCollega is on from the
// start and hands the item ticked (0 none) to the description's scriviScelta. A list without an
// editor makes no new items: the dialog then has no editor's frame and no editor's commands.

#include <QDialog>
#include <QList>
#include <QString>
#include <QVariantList>
#include <QVector>
#include <functional>

class Connessione;
class EditoreRecord;
class LetturaRighe;
class ModelloSpunte;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedLayout;
class QTabWidget;
class QTreeView;

// One list of the dialog and its editor.
struct PaginaSpunte {
    // The tab's caption ("Persone"), the kind's text while its editor is in hand ("persona"),
    // the list's one column header.
    QString sTitolo;
    QString sTipo;
    QString sIntestazione;
    // The statement that reads the list in its order, with its values: the item's id in the
    // first column, Checked in column iColonnaChecked; the text of an item from its row.
    QString sSql;
    QVariantList valori;
    int iColonnaChecked = 2;
    std::function<QString(const LetturaRighe& riga)> testoRiga;
    // One item at most ticked (see above).
    bool bSceltaUnica = false;
    // The title of the box of a failure while the list loads.
    QString sErroreCarica = QStringLiteral("Errore U5");
    // The editor of the tab's items, with its frame's name ("fraPersona"); none for a list whose
    // items are only chosen.
    EditoreRecord* editore = nullptr;
    const char* sNomeEditore = "";
    // The editor cleared, when the tab has no item to show or a new item is given up.
    std::function<void()> pulisci;
    // Makes the row of a new item with the denomination the editor gives, before its Salva; its
    // id. Raises Errore when it cannot.
    std::function<long(const QString& sDenominazione)> inserisci;
    // The text of the item just saved; whether the editor, after its Salva, allows the item
    // (OkNuovo).
    std::function<QString()> testoSalvato;
    const bool* okNuovo = nullptr;
};

// The links that cmdCollega writes: rows of sTabella with the served object's key in
// sColonnaOggetto and the item's id in sColonnaVoce.
struct CollegamentoSpunte {
    QString sTabella;
    QString sColonnaOggetto;
    QString sColonnaVoce;
    // The link's own key, given in the site's range of keys; empty when the table has none.
    QString sChiaveRiga;
    // The items' table and key: when given, every item ticked is read before anything is
    // written, and one that another workstation deleted meanwhile stops the links (Errore O1)
    // with nothing written.
    QString sTabellaVoci;
    QString sChiaveVoci;
    // The served object's key, read before anything is written; raises Errore when the object is
    // no longer there.
    std::function<qint64()> chiaveOggetto;
    // The ids ticked (the session's slot array) and the outcome, 0 at the start of cmdCollega
    // and 1 when a link is added.
    QVector<long>* aSel = nullptr;
    int* iEsito = nullptr;
    // For a list of a single choice, in place of the rows above: writes the choice, the item's
    // id or 0 for none (raises Errore), under the box titled sErroreScelta.
    std::function<void(qint64 lScelto)> scriviScelta;
    QString sErroreScelta;
};

class DialogoSpunte : public QDialog {
    Q_OBJECT
public:
    DialogoSpunte(const QString& sNome, const QString& sTitolo, QWidget* genitore = nullptr);
    ~DialogoSpunte() override;

    // The list of a tab, its rows, whether it was loaded, the tab on show.
    QTreeView* Lista(int iPagina) const;
    ModelloSpunte& Modello(int iPagina) const;
    bool Caricata(int iPagina) const;
    int PaginaCorrente() const;
    int Pagine() const { return static_cast<int>(pagine.size()); }
    // Text1(n), the names newly ticked in a tab.
    QLineEdit* Scelti(int iPagina) const;
    // Text2(n), the served object in a tab.
    QLineEdit* Oggetto(int iPagina) const;

    // The tick rule, for a change of the tick of a row of a tab.
    void ItemCheck(int iPagina, int iRiga);
    // Locks the boxes of the names chosen (Text1(n)), so that they change only through the ticks.
    void BloccaScelti(bool bBlocca);

    // The commands.
    void cmdCollega_Click();
    void cmdAnnullaCol_Click();
    void cmdNuovoSog_Click();
    void cmdConferma_Click();
    void cmdAnnulla_Click();

    // "mostra" or "nuovo"; the kind's text of the tab in hand.
    QString sStato;
    QString sTipo;
    // The slots used in the slot array.
    long lNumSel = 0;
    // The id and the key of the item chosen in each list (0 and "" when none).
    QList<qint64> aId;
    QList<QString> aChiave;

    QTabWidget* SSTab1 = nullptr;
    QPushButton* cmdNuovoSog = nullptr;
    QPushButton* cmdCollega = nullptr;
    QPushButton* cmdAnnullaCol = nullptr;
    QPushButton* cmdConferma = nullptr;
    QPushButton* cmdAnnulla = nullptr;

protected:
    // The dialog has one list, shown without tabs (before its AggiungiPagina).
    void UnaLista();
    // A list in a new tab: Label2(n) with sEtichettaOggetto over Text2(n) with the served
    // object's heading, the list, Label1(n) with sEtichettaScelti over Text1(n). Its editor
    // takes its place beside the tabs, hidden until shown.
    void AggiungiPagina(const PaginaSpunte& pagina, const QString& sEtichettaOggetto,
                        const QString& sOggetto, const QString& sEtichettaScelti);
    void ImpostaCollegamento(CollegamentoSpunte descrizione);
    // The load's last steps, once the editors are ready: the slot array emptied, cmdConferma and
    // cmdAnnulla disabled, the tab iScheda shown (its list loaded).
    void Avvia(int iScheda);
    // Run when cmdAnnullaCol closes the dialog, with the tab on show.
    std::function<void(int iScheda)> allAnnullaCol;

private:
    void CambioScheda(int iPagina);
    void CaricaLista(int iPagina);
    void RigaCliccata(int iPagina, int iRiga);
    // The record of the tab's chosen item in its editor (the editor cleared when none).
    void Mostra();
    void NascondiAltriEditori(const PaginaSpunte& pagina);
    // The commands of the state "mostra" (bModifica false) or "nuovo".
    void Disposizione(bool bNuovo);
    // Every item ticked is still in its table; raises Errore naming the first that is gone.
    void VerificaVoci(const Connessione& cnn) const;
    // cmdCollega enabled when some slot is not 0.
    void AbilitaCollega();
    void RicostruisciScelti(int iPagina);
    void SelezionaRiga(int iPagina, int iRiga);

    QList<PaginaSpunte> pagine;
    QList<QTreeView*> liste;
    QList<ModelloSpunte*> modelli;
    QList<QLineEdit*> scelti;
    QList<QLineEdit*> oggetti;
    QList<bool> caricate;
    CollegamentoSpunte collegamento;
    QWidget* cornice = nullptr;
    bool bSelezioneInterna = false;
    bool bAvviata = false;
    bool bUnaLista = false;
};
