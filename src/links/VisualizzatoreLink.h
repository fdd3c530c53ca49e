#pragma once

// The viewer of the links of one object, written once: the list lvwDB of the links (or one list
// per tab), the object's denomination, its label, cmdCancella ("Cancella collegamento") that
// deletes the chosen link after a question, and where a viewer has them cmdNuovoCol ("Nuovo
// collegamento"), that goes on to the dialog that adds links, and the editor of a link's role
// (cmbRuolo in Frame1, cmdModificaRuolo, cmdConferma, cmdAnnulla). Each viewer describes what
// it shows and deletes (DescrizioneLink); the twelve are made by name in VisualizzatoriLink.h.
//
// An item's key is the key of the link's row followed by "ID"; the number at the head of the
// key gives the row again. Escape closes the viewer. Going on to another dialog closes the
// viewer and leaves the name in the property that Dialoghi::Apri reads, so that its opener opens
// that dialog and then a fresh viewer (see Dialoghi.h).

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>
#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;
class VisualizzatoreLink;

// One link as the list shows it: the key of its row, the texts of its columns, and the tab it
// goes to (0 where the viewer has one list).
struct RigaLink {
    qint64 lId = 0;
    QStringList testi;
    int iScheda = 0;
};

struct DescrizioneLink {
    QString sNome;              // the viewer's objectName: "frmMostraLink..."
    QString sTitolo;            // the window's title
    QString sEtichetta;         // the label over the denomination
    QString sDenominazione;     // the object's denomination
    QStringList schede;         // the titles of the tabs, one list each; empty: one list, no tabs
    QList<QStringList> colonne; // the column titles of each list (the first for all if one)
    QString sErroreCancella;    // the title of a failure in cmdCancella ("Errore L1")
    QString sErroreCarica;      // the title of a failure while the list loads ("Errore L2")
    QString sDomanda = QStringLiteral("Sei sicuro di voler cancellare?");
    // The links, read from the database (raises Errore).
    std::function<QList<RigaLink>()> carica;
    // Deletes the link of that row; false when it is not found (raises Errore).
    std::function<bool(qint64 lId)> cancella;
    // The outcome value that gets 2 when the last link has gone; none when null.
    int* piEsito = nullptr;
    // The dialog that cmdNuovoCol goes on to; no cmdNuovoCol when empty.
    QString sProsegui;
    // What it is handed, by the names of its members.
    QVariantMap argomentiProsegui;
    // The dialog opens over the viewer, which stays open and loads its list again afterwards:
    // always, or only when collegato, asked then, answers that the dialog made a link.
    bool bProseguiRestando = false;
    std::function<bool()> collegato;
    // Asked before going on, given the viewer: false stops there (it has said why).
    std::function<bool(const VisualizzatoreLink&)> puoProseguire;
    // The role of a link: the file of roles of the program folder ("RuoliPGANT.txt"), the table
    // and key column of the link's row; no role editor when the file is empty. The role is the
    // list's second column.
    QString sFileRuoli;
    QString sTabellaRuolo;
    QString sChiaveRuolo;
};

class VisualizzatoreLink : public QDialog {
    Q_OBJECT
public:
    VisualizzatoreLink(DescrizioneLink descrizione, QWidget* parent = nullptr);

    // Reads the links again into the list(s), the first one chosen.
    void Carica();
    // The items of all lists.
    int Conteggio() const;
    // The tab in view (0 without tabs).
    int SchedaCorrente() const;

    // The role's longest text.
    static constexpr int MassimoRuolo = 32;

    // Deletes the row(s) of the table whose columns have those values, when there are any:
    // false when none is there. Raises Errore.
    static bool CancellaRiga(const QString& sTabella, const QStringList& colonne,
                             const QVariantList& valori);

public Q_SLOTS:
    void cmdCancella_Click();
    void cmdNuovoCol_Click();
    void cmdModificaRuolo_Click();
    void cmdConferma_Click();
    void cmdAnnulla_Click();

protected:
    const DescrizioneLink& Descrizione() const { return descrizione; }

private:
    QTreeWidget* ListaCorrente() const;
    void ItemClick(QTreeWidgetItem* riga);
    void ImpostaPulsanti();
    void CaricaRuoli();
    void RuoloDigitato(const QString& sTesto);
    static qint64 IdDi(const QTreeWidgetItem* riga);

    DescrizioneLink descrizione;
    bool bModificaRuolo = false;

    QTabWidget* SSTab1 = nullptr;
    QList<QTreeWidget*> liste;
    QLabel* Label1 = nullptr;
    QLineEdit* Text1 = nullptr;
    QPushButton* cmdCancella = nullptr;
    QPushButton* cmdNuovoCol = nullptr;
    QGroupBox* Frame1 = nullptr;
    QComboBox* cmbRuolo = nullptr;
    QPushButton* cmdModificaRuolo = nullptr;
    QPushButton* cmdConferma = nullptr;
    QPushButton* cmdAnnulla = nullptr;
};
