#pragma once

// The tree of the structure windows: each node is its Key (the element's id followed by
// " ID"; the root "0 ID", a new element not yet stored "9999999 ID"), its Tag (the element's
// kind, "00" for the root), its Text (the denomination) and its Image (one of the keys below).
// Nothing else mirrors the tree.
//
// The nodes live in flat arrays (numbers, one pool of text, the sons of each node as a vector
// of node numbers, a hash from the key's number to the node), so that a tree of a million
// elements loads in little more than the time of reading its rows and stays small.

#include "IndiceChiavi.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QList>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVector>

class Connessione;

class ModelloAlbero : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Ruoli { RuoloChiave = Qt::UserRole + 1, RuoloTag, RuoloImmagine };

    static constexpr qint64 IdRadice = 0;
    static constexpr qint64 IdTemporaneo = 9999999;
    // The root's text.
    static QString TestoRadice() { return QStringLiteral("Archivi di Stato"); }

    // "123 ID" for 123.
    static QString ChiaveDi(qint64 lId);
    // The leading number of a key ("123 ID" gives 123); 0 when it has none.
    static qint64 IdDi(const QString& sChiave);
    // The image keys, in a fixed order.
    static const QStringList& ChiaviImmagine();

    explicit ModelloAlbero(QObject* genitore = nullptr);
    ~ModelloAlbero() override;

    // QAbstractItemModel
    QModelIndex index(int riga, int colonna,
                      const QModelIndex& padre = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& figlio) const override;
    int rowCount(const QModelIndex& padre = QModelIndex()) const override;
    int columnCount(const QModelIndex& padre = QModelIndex()) const override;
    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    bool hasChildren(const QModelIndex& padre = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    // A tick or an untick of a checkable node by the user (Qt::CheckStateRole): refused on a
    // node ticked and locked; otherwise the node takes it and SpuntaCambiata is raised.
    bool setData(const QModelIndex& indice, const QVariant& valore, int ruolo) override;

    // Every node away.
    void Svuota();
    // The root: key "0 ID", tag "00", text "Archivi di Stato", image "root".
    QModelIndex AggiungiRadice();
    // A root that is an element itself (a finding aid over its analytical inventory): its own
    // key, text, image and tag. Raises Errore when the key is already taken.
    QModelIndex AggiungiRadice(qint64 lId, const QString& sTesto, const QString& sImmagine,
                               const QString& sTag);
    // A node as last son of the node with the key of lIdPadre (in text order when that node
    // is Sorted). Raises Errore when no node has that key, or when the key is already taken.
    QModelIndex Aggiungi(qint64 lIdPadre, qint64 lId, const QString& sTesto,
                         const QString& sImmagine, const QString& sTag);
    QModelIndex Aggiungi(const QString& sChiavePadre, const QString& sChiave, const QString& sTesto,
                         const QString& sImmagine, const QString& sTag);
    // Removes the node and what hangs on it; nothing when the key is not in the tree.
    void Rimuovi(qint64 lId);
    void Rimuovi(const QString& sChiave) { Rimuovi(IdDi(sChiave)); }

    // The node with that key; invalid when none.
    QModelIndex Trova(qint64 lId) const;
    QModelIndex Trova(const QString& sChiave) const { return Trova(IdDi(sChiave)); }
    // The root, whatever its key (invalid when the tree is empty).
    QModelIndex Radice() const;
    bool Contiene(qint64 lId) const { return mappa.Contiene(lId); }
    // How many nodes the tree holds.
    int Nodi() const { return static_cast<int>(mappa.Quante()); }

    // The four values of a node.
    QString Chiave(const QModelIndex& indice) const;
    qint64 Id(const QModelIndex& indice) const;
    QString Tag(const QModelIndex& indice) const;
    QString Testo(const QModelIndex& indice) const;
    QString Immagine(const QModelIndex& indice) const;
    void ImpostaTesto(const QModelIndex& indice, const QString& sTesto);
    void ImpostaImmagine(const QModelIndex& indice, const QString& sImmagine);
    void ImpostaTag(const QModelIndex& indice, const QString& sTag);

    // Sorted: the sons of the node are put in text order now, and the sons added later go to
    // their place in that order. The node itself stays where it is among its brothers.
    void ImpostaOrdinato(const QModelIndex& indice, bool bOrdinato = true);
    bool Ordinato(const QModelIndex& indice) const;

    // Check boxes on the nodes, for the pickers: in a checkable tree every node shows its box,
    // unticked until it is ticked. A node ticked and locked (already linked) cannot be unticked
    // by the user. The ticks live beside the nodes and go with them.
    void ImpostaSpuntabile(bool bSpuntabile);
    bool Spuntabile() const { return bSpuntabile; }
    bool Spuntato(const QModelIndex& indice) const;
    bool SpuntaBloccata(const QModelIndex& indice) const;
    // Ticks or unticks the node from the program (SpuntaCambiata is not raised); bBloccata
    // ticks it and locks it.
    void ImpostaSpunta(const QModelIndex& indice, bool bSpuntato, bool bBloccata = false);
    // The ticked nodes in the order of the nodes, as they were added to the tree.
    QList<QModelIndex> NodiSpuntati() const;

    // A load: the view is told once, at the end, that the whole tree changed. Between the
    // two calls a son whose parent has not come yet waits for it (keys from the ranges of two
    // sites need not ascend); one whose parent comes in no row of the load is an orphan.
    void InizioCaricamento();
    // The sons still waiting for a parent that comes in no row of the load (an element of a
    // kind the window leaves out) hang on the root, each with the sons that wait for it.
    void AttesiSottoRadice();
    // Raises Errore for the first son still waiting, leaving the load open.
    void VerificaAttesi() const;
    // Ends the load (the view is told); the sons still waiting are dropped.
    void FineCaricamento();
    bool InCaricamento() const { return bCaricamento; }

Q_SIGNALS:
    // The user ticked (true) or unticked (false) the node.
    void SpuntaCambiata(const QModelIndex& nodo, bool bSpuntato);

private:
    static constexpr qint32 Nessuno = -1;
    struct Attesa {
        qint64 lId;
        qint64 lIdPadre;
        QString sTesto;
        quint8 iImmagine;
        quint8 iTag;
    };

    qint32 Nodo(const QModelIndex& indice) const;
    QModelIndex IndiceDi(qint32 nodo) const;
    qint32 NuovoNodo(qint64 lId, qint32 padre, const QString& sTesto, quint8 iImmagine,
                     quint8 iTag);
    void Colloca(qint32 nodo, qint32 padre);
    int PosizioneOrdinata(qint32 padre, const QString& sTesto) const;
    void Rinumera(qint32 padre, int daRiga);
    void ScriviTesto(qint32 nodo, const QString& sTesto);
    QString TestoDi(qint32 nodo) const;
    const QVector<qint32>& Figli(qint32 nodo) const;
    QVector<qint32>& FigliDa(qint32 nodo); // the node's list, made when it has none
    quint8 IndiceImmagine(const QString& sImmagine) const;
    quint8 IndiceTag(const QString& sTag);
    void SistemaAttesi(qint64 lId);
    void RimuoviSottoalbero(qint32 nodo);
    int ConfrontaTesti(qint32 a, qint32 b) const;

    // One entry per node, by node number; a removed node keeps its slot, with lId -1.
    QVector<qint64> ids;
    QVector<qint32> padri;
    QVector<qint32> righe;       // the node's row among its brothers
    QVector<qint32> inizioTesto; // where its text starts in the pool
    QVector<qint32> lunghezzaTesto;
    QVector<quint8> immagini; // index into ChiaviImmagine()
    QVector<quint8> tags;     // index into tabellaTag
    QVector<quint8> ordinati;
    // The sons of a node: its list in liste, or Nessuno for a leaf (most nodes are leaves).
    QVector<qint32> listaFigli;
    QVector<QVector<qint32>> liste;
    qint32 ultimoPadre = Nessuno; // the parent of the node added last
    QString pool;                 // the texts, one after the other
    QStringList tabellaTag;
    IndiceChiavi mappa;                  // the key's number to the node
    QHash<qint64, QList<Attesa>> attesi; // by the parent's key's number, during a load
    QList<qint64> ordineAttesi;          // the parents waited for, in the order of the rows
    bool bCaricamento = false;
    bool bSpuntabile = false;
    // The ticked nodes by node number: 1 ticked, 2 ticked and locked (few nodes are ticked).
    QHash<qint32, quint8> spunte;
    QVector<qint32> cima; // the nodes without a parent: the root
    mutable QVector<QIcon> icone;
};

// The pictures of the tree and of the sliding panel, drawn in code.
namespace ImmaginiAlbero {
// The picture of an image key ("root", "istituto", "nolink", ...); a blank one for another key.
QPixmap Immagine(const QString& sChiave, int iLato = 16);
// The pictures of the sliding panel by file name: "mostra.bmp", "nascondi.bmp",
// "sinistra.ico", "destra.ico".
QImage Pannello(const QString& sNomeFile);
} // namespace ImmaginiAlbero

// One group of a tree's load: the rows of one view that become nodes, ordered by the parent
// first. The statement reads only what a node is made of (its id, its parent, its text, its
// kind, and the count that decides a link image), never the view's other columns: the views
// join five tables and carry long notes that a tree never shows.
struct GruppoAlbero {
    // The view, the condition (values as "?", bound from valori in order) and the ORDER BY;
    // an empty order is by the parent, then by the node's text in the Italian order.
    QString sVista = QStringLiteral("AlberoGlobale");
    QString sCondizione;
    QString sOrdine;
    QVariantList valori;
    // The image of the group's nodes.
    QString sImmagine;
    // A Null parent means the root (the first group of a window); otherwise such a row has no
    // parent in the tree.
    bool bPadreNulloERadice = false;
    // A row whose parent comes in no row of the load hangs on the root; otherwise the load
    // stops with "Elemento non trovato".
    bool bPadreAssenteERadice = false;
    // A count of the view (CD_NumeroInventari for complessi, INV_NumeroComplessi for inventari)
    // that gives "silink" when above 0; empty, every node has sImmagine.
    QString sColonnaLink;
    // What the node shows: a column of the view or an expression on its columns.
    QString sColonnaTesto = QStringLiteral("ELEM_Denominazione");
    // A group of several kinds whose nodes show, each by its ELEM_Tipologia, a column of its
    // own and an image of its own (a kind not listed, or listed without a column:
    // sColonnaTesto; not listed: sImmagine).
    struct Tipo {
        QString sTag;
        QString sColonnaTesto;
        QString sImmagine;
    };
    QList<Tipo> tipi;

    // The expression of the node's text: sColonnaTesto, or the column of each kind.
    QString Testo() const;
    // The image of a node of that kind.
    const QString& ImmagineDi(const QString& sTag) const;

    // The ORDER BY on that connection.
    QString Ordine(const Connessione& connessione) const;
    // The statement: "SELECT ELEM_ID_Elemento, ELEM_ID_ElementoPadre, <text>, ELEM_Tipologia
    // [, <count>] FROM <view> WHERE <condition> ORDER BY <order>".
    QString Sql(const Connessione& connessione) const;
};

// The root of a load: by default the root of the whole archive ("0 ID", "Archivi di Stato"); a
// window over one element puts that element there.
struct RadiceAlbero {
    qint64 lId = ModelloAlbero::IdRadice;
    QString sTesto = ModelloAlbero::TestoRadice();
    QString sImmagine = QStringLiteral("root");
    QString sTag = QStringLiteral("00");
};

namespace CaricamentoAlbero {
// Clears the model, adds the root, loads the groups in order, and when asked passes over
// V_ComplessiDocSoggetti for the producers' images. Raises Errore (a failed statement, an
// orphan) leaving the nodes loaded so far; on success the root's sons are in text order.
void Carica(ModelloAlbero& modello, const Connessione& connessione,
            const QList<GruppoAlbero>& gruppi, bool bSoggettiComplessi,
            const RadiceAlbero& radice = RadiceAlbero());

// The producers' pass: "silink" becomes "islink", "nolink" becomes "slink" for every row of
// V_ComplessiDocSoggetti whose complesso is in the tree.
void ApplicaSoggetti(ModelloAlbero& modello, const Connessione& connessione);

// The image after the outcome of the inventari's link viewer (1 a link added, 2 the last one
// removed) and after that of the producers' one.
QString ImmagineDopoLinkInventari(const QString& sImmagine, int iEsito);
QString ImmagineDopoLinkSoggetti(const QString& sImmagine, int iEsito);
} // namespace CaricamentoAlbero
