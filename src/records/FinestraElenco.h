#pragma once

// The list window with one editor beside it: a flat list of records lvwDB (one column, report
// style, each row's key "ID" followed by the record's id), the record's editor on its right,
// and below the commands. The window that uses it describes its lists (PaginaElenco): the
// statement that fills the list and the text of a row, the editor, which command each flag of
// the editor enables or colours, how a new record's row is made and how a record is deleted.
// With more than one list the lists stand in the tabs of SSTab1, each with its own editor, and
// the list of a tab is loaded at the tab's first showing; with one list there are no tabs.
//
// The states are those of every host of an editor: "mostra" (list usable, cmdConferma and
// cmdAnnulla disabled), "nuovo" and "modifica" (the list and the tabs disabled, the window's
// commands disabled, only cmdConferma and cmdAnnulla enabled). A list is loaded once for each
// opening of the window: a new record goes at the end of its list, and rows that another
// workstation added appear when the window is opened again.

#include <QList>
#include <QString>
#include <QVariantList>
#include <QWidget>
#include <functional>
#include <utility>

class QAbstractItemModel;
class QTreeView;

// A list of rows in its window: flat, one row chosen at a time, read-only, the last column
// stretched, named sNome and showing modello.
QTreeView* NuovaListaRighe(QWidget* genitore, const QString& sNome, QAbstractItemModel* modello);

class EditoreRecord;
class LetturaRighe;
class ModelloElenco;
class QAbstractButton;
class QHBoxLayout;
class QPushButton;
class QStackedLayout;
class QTabWidget;
class QTreeView;

// One list of the window and its editor.
struct PaginaElenco {
    // The tab's caption ("Persone"); unused in a window of one list.
    QString sTitolo;
    // The window's sTipo while a record of this list is in hand ("persona").
    QString sTipo;
    // The list's one column header.
    QString sIntestazione;
    // The statement that fills the list, in the list's order, the record's id in its first
    // column, and the values bound to it; the text of a row from the row read.
    QString sSql;
    QVariantList valori;
    std::function<QString(const LetturaRighe& riga)> testoRiga;
    // The editor beside the list, with its name ("fraPersona").
    EditoreRecord* editore = nullptr;
    const char* sNomeEditore = "";
    // The command that starts a new record of this list (it stays enabled on an empty list).
    QPushButton* cmdNuovo = nullptr;
    // Each command enabled by a flag of the editor after its Mostra and its Salva; each button
    // coloured by a flag (the window's colour when true, the button face when false).
    QList<std::pair<QPushButton*, const bool*>> pulsanti;
    QList<std::pair<QAbstractButton*, const bool*>> colori;
    // The editor's clearing, when the list is left without a record to show.
    std::function<void()> pulisci;
    // The text of the row of the record just saved (its denomination, and what follows it).
    std::function<QString()> testoSalvato;
    // Makes the row of a new record with the denomination the editor gives, before the editor's
    // Salva; its id. Raises Errore when it cannot.
    std::function<long(const QString& sDenominazione)> inserisci;
    // The delete: the table of the record's row and the column of the id by which the row is
    // found and deleted (the database does the rest), the question and its title, which the
    // editor's denomination follows.
    QString sTabellaCancella;
    QString sColonnaId;
    QString sDomandaCancella;
    QString sTitoloCancella;
    // At the first showing of an empty list the editor shows the id 0 (an empty record, its
    // flags from its own reading); otherwise nothing is shown and only cmdNuovo is enabled.
    bool bMostraSenzaRighe = false;
};

class FinestraElenco : public QWidget {
    Q_OBJECT
public:
    // bSchede: the lists in tabs (SSTab1), one a tab.
    FinestraElenco(const QString& sNome, bool bSchede, QWidget* genitore = nullptr);
    ~FinestraElenco() override;

    // The list of a page, its rows, and the page on show.
    QTreeView* Lista(int iPagina) const;
    ModelloElenco& Modello(int iPagina) const;
    int PaginaCorrente() const;
    int Pagine() const { return static_cast<int>(pagine.size()); }
    // Whether the list of a page was loaded (its tag: "0" before, "1" after).
    bool Caricata(int iPagina) const;

    // The click on a row of the page on show: its key and id stored, then the display step.
    void RigaCliccata(int iRiga);
    // Selects a row of the page on show and runs its click.
    void SelezionaRiga(int iRiga);
    // The display step: the record of the page's stored id in its editor, the commands from
    // its flags.
    void Mostra();

    // The commands on the page on show.
    void Nuovo();
    void Modifica();
    void Conferma();
    void Annulla();
    void Cancella();

    // The state: "mostra", "nuovo" or "modifica"; the sTipo of the page in hand.
    QString sStato = QStringLiteral("mostra");
    QString sTipo;
    // The id and the key of the row chosen in each list (0 and "" when none).
    QList<qint64> aId;
    QList<QString> aChiave;

    QTabWidget* SSTab1 = nullptr;
    QPushButton* cmdConferma = nullptr;
    QPushButton* cmdAnnulla = nullptr;

protected:
    // A list of the window, in the order of the tabs; its editor takes its place beside the
    // lists, hidden until its record is shown. Its cmdNuovo runs Nuovo.
    void AggiungiPagina(const PaginaElenco& pagina);
    // A command button of the window, before cmdConferma and cmdAnnulla: disabled while a
    // record is edited.
    QPushButton* NuovoComando(const char* sNome, const QString& sDidascalia);
    // The Load's last steps, once the editors are ready: cmdConferma and cmdAnnulla disabled,
    // the first page shown (its list loaded).
    void Avvia();
    // Loads the list of a page; on an error the box "Errore U5": the list stays as far as it
    // came.
    void CaricaLista(int iPagina);
    const PaginaElenco& Pagina(int iPagina) const { return pagine[iPagina]; }
    // The commands from the editor's flags, and the colours.
    void AbilitaPulsanti(const PaginaElenco& pagina);

    void keyPressEvent(QKeyEvent* evento) override;

private:
    void CambioScheda(int iPagina);
    void CambioSelezione(int iPagina, const QModelIndex& corrente);
    void Disposizione(bool bModifica);
    void NascondiAltriEditori(const PaginaElenco& pagina);
    // The list left without a record: id 0, key "", the editor cleared, only New enabled.
    void NessunaRiga(int iPagina);
    // After a row went away: the first row chosen, or no record.
    void DopoRimozione(int iPagina);
    QTreeView* ListaCorrente() const { return Lista(PaginaCorrente()); }
    // Whether the record's row is in its table; Errore when it cannot be read.
    bool RigaEsiste(const PaginaElenco& pagina, qint64 lId) const;

    QList<PaginaElenco> pagine;
    QList<QTreeView*> liste;
    QList<ModelloElenco*> modelli;
    QList<bool> caricate;
    QList<QPushButton*> comandi;
    QHBoxLayout* barraComandi = nullptr;
    QHBoxLayout* corpo = nullptr;
    QWidget* cornice = nullptr;
    bool bSelezioneInterna = false;
    bool bAvviata = false;
};
