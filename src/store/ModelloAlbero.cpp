#include "ModelloAlbero.h"

#include "Backend.h"
#include "Connessione.h"
#include "LetturaRighe.h"
#include "OrdineItaliano.h"
#include "TestoErrore.h"
#include "session/Errore.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSet>
#include <algorithm>

namespace {

const QString SorgenteAlbero = QStringLiteral("tvwDB");
// The platform's number for "Elemento non trovato" and "Chiave non univoca" of a tree.
constexpr long ErroreElementoNonTrovato = 35601;
constexpr long ErroreChiaveNonUnivoca = 35602;

} // namespace

// ---------------------------------------------------------------------------------------------
// Keys

QString ModelloAlbero::ChiaveDi(qint64 lId) {
    return QString::number(lId) + QStringLiteral(" ID");
}

qint64 ModelloAlbero::IdDi(const QString& sChiave) {
    int fine = 0;
    while (fine < sChiave.size() && sChiave.at(fine).isSpace()) {
        ++fine;
    }
    const int inizio = fine;
    if (fine < sChiave.size() && (sChiave.at(fine) == u'-' || sChiave.at(fine) == u'+')) {
        ++fine;
    }
    while (fine < sChiave.size() && sChiave.at(fine).isDigit()) {
        ++fine;
    }
    bool ok = false;
    const qint64 numero = QStringView(sChiave).mid(inizio, fine - inizio).toLongLong(&ok);
    return ok ? numero : 0;
}

const QStringList& ModelloAlbero::ChiaviImmagine() {
    static const QStringList chiavi = {QStringLiteral("root"),      QStringLiteral("istituto"),
                                       QStringLiteral("nolink"),    QStringLiteral("silink"),
                                       QStringLiteral("slink"),     QStringLiteral("islink"),
                                       QStringLiteral("pergamena"), QStringLiteral("sigilli"),
                                       QStringLiteral("sigillo"),   QStringLiteral("versamento")};
    return chiavi;
}

// ---------------------------------------------------------------------------------------------
// The model

ModelloAlbero::ModelloAlbero(QObject* genitore)
    : QAbstractItemModel(genitore) {}

ModelloAlbero::~ModelloAlbero() = default;

qint32 ModelloAlbero::Nodo(const QModelIndex& indice) const {
    if (!indice.isValid() || indice.model() != this) {
        return Nessuno;
    }
    return static_cast<qint32>(indice.internalId());
}

QModelIndex ModelloAlbero::IndiceDi(qint32 nodo) const {
    if (nodo < 0 || nodo >= ids.size() || ids[nodo] < 0) {
        return QModelIndex();
    }
    return createIndex(righe[nodo], 0, static_cast<quintptr>(nodo));
}

QModelIndex ModelloAlbero::index(int riga, int colonna, const QModelIndex& padre) const {
    if (colonna != 0 || riga < 0) {
        return QModelIndex();
    }
    const QVector<qint32>& elenco = padre.isValid() ? Figli(Nodo(padre)) : cima;
    if (riga >= elenco.size()) {
        return QModelIndex();
    }
    return createIndex(riga, 0, static_cast<quintptr>(elenco[riga]));
}

QModelIndex ModelloAlbero::parent(const QModelIndex& figlio) const {
    const qint32 nodo = Nodo(figlio);
    if (nodo == Nessuno) {
        return QModelIndex();
    }
    return IndiceDi(padri[nodo]);
}

int ModelloAlbero::rowCount(const QModelIndex& padre) const {
    if (!padre.isValid()) {
        return static_cast<int>(cima.size());
    }
    if (padre.column() != 0) {
        return 0;
    }
    return static_cast<int>(Figli(Nodo(padre)).size());
}

int ModelloAlbero::columnCount(const QModelIndex&) const {
    return 1;
}

bool ModelloAlbero::hasChildren(const QModelIndex& padre) const {
    return rowCount(padre) > 0;
}

QVariant ModelloAlbero::data(const QModelIndex& indice, int ruolo) const {
    const qint32 nodo = Nodo(indice);
    if (nodo == Nessuno) {
        return QVariant();
    }
    switch (ruolo) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return TestoDi(nodo);
    case Qt::DecorationRole: {
        if (icone.isEmpty()) {
            for (const QString& chiave : ChiaviImmagine()) {
                icone.append(QIcon(ImmaginiAlbero::Immagine(chiave)));
            }
        }
        return icone.value(immagini[nodo]);
    }
    case RuoloChiave:
        return ChiaveDi(ids[nodo]);
    case RuoloTag:
        return tabellaTag.value(tags[nodo]);
    case RuoloImmagine:
        return ChiaviImmagine().value(immagini[nodo]);
    case Qt::CheckStateRole:
        if (!bSpuntabile) {
            return QVariant();
        }
        return spunte.contains(nodo) ? Qt::Checked : Qt::Unchecked;
    default:
        return QVariant();
    }
}

Qt::ItemFlags ModelloAlbero::flags(const QModelIndex& indice) const {
    Qt::ItemFlags flag = QAbstractItemModel::flags(indice);
    const qint32 nodo = Nodo(indice);
    if (bSpuntabile && nodo != Nessuno && spunte.value(nodo) != 2) {
        flag |= Qt::ItemIsUserCheckable;
    }
    return flag;
}

bool ModelloAlbero::setData(const QModelIndex& indice, const QVariant& valore, int ruolo) {
    const qint32 nodo = Nodo(indice);
    if (ruolo != Qt::CheckStateRole || !bSpuntabile || nodo == Nessuno || spunte.value(nodo) == 2) {
        return false;
    }
    const bool bSpuntato = valore.toInt() == Qt::Checked;
    if (bSpuntato == spunte.contains(nodo)) {
        return true;
    }
    ImpostaSpunta(indice, bSpuntato);
    Q_EMIT SpuntaCambiata(indice, bSpuntato);
    return true;
}

void ModelloAlbero::ImpostaSpuntabile(bool bSi) {
    bSpuntabile = bSi;
    spunte.clear();
    if (!bCaricamento && !ids.isEmpty()) {
        beginResetModel();
        endResetModel();
    }
}

bool ModelloAlbero::Spuntato(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo != Nessuno && spunte.contains(nodo);
}

bool ModelloAlbero::SpuntaBloccata(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo != Nessuno && spunte.value(nodo) == 2;
}

void ModelloAlbero::ImpostaSpunta(const QModelIndex& indice, bool bSpuntato, bool bBloccata) {
    const qint32 nodo = Nodo(indice);
    if (nodo == Nessuno) {
        return;
    }
    if (bSpuntato || bBloccata) {
        spunte.insert(nodo, bBloccata ? 2 : 1);
    } else {
        spunte.remove(nodo);
    }
    if (!bCaricamento) {
        Q_EMIT dataChanged(indice, indice, {Qt::CheckStateRole});
    }
}

QList<QModelIndex> ModelloAlbero::NodiSpuntati() const {
    QList<qint32> nodi = spunte.keys();
    std::sort(nodi.begin(), nodi.end());
    QList<QModelIndex> spuntati;
    for (const qint32 nodo : nodi) {
        spuntati.append(IndiceDi(nodo));
    }
    return spuntati;
}

void ModelloAlbero::Svuota() {
    if (!bCaricamento) {
        beginResetModel();
    }
    spunte.clear();
    ids.clear();
    padri.clear();
    righe.clear();
    inizioTesto.clear();
    lunghezzaTesto.clear();
    immagini.clear();
    tags.clear();
    ordinati.clear();
    listaFigli.clear();
    liste.clear();
    ultimoPadre = Nessuno;
    pool.clear();
    tabellaTag.clear();
    mappa.Svuota();
    attesi.clear();
    ordineAttesi.clear();
    cima.clear();
    if (!bCaricamento) {
        endResetModel();
    }
}

quint8 ModelloAlbero::IndiceImmagine(const QString& sImmagine) const {
    const qsizetype i = ChiaviImmagine().indexOf(sImmagine);
    if (i < 0) {
        throw Errore(SorgenteAlbero,
                     QStringLiteral("Immagine sconosciuta: \"%1\".").arg(sImmagine));
    }
    return static_cast<quint8>(i);
}

quint8 ModelloAlbero::IndiceTag(const QString& sTag) {
    const qsizetype i = tabellaTag.indexOf(sTag);
    if (i >= 0) {
        return static_cast<quint8>(i);
    }
    if (tabellaTag.size() >= 255) {
        throw Errore(SorgenteAlbero, QStringLiteral("Troppi tipi di nodo nell'albero."));
    }
    tabellaTag.append(sTag);
    return static_cast<quint8>(tabellaTag.size() - 1);
}

void ModelloAlbero::ScriviTesto(qint32 nodo, const QString& sTesto) {
    // A text that fits in the old place takes it; a longer one goes at the end of the pool.
    if (sTesto.size() > lunghezzaTesto[nodo]) {
        inizioTesto[nodo] = static_cast<qint32>(pool.size());
        pool.append(sTesto);
    } else {
        std::copy(sTesto.cbegin(), sTesto.cend(), pool.begin() + inizioTesto[nodo]);
    }
    lunghezzaTesto[nodo] = static_cast<qint32>(sTesto.size());
}

const QVector<qint32>& ModelloAlbero::Figli(qint32 nodo) const {
    static const QVector<qint32> nessuno;
    const qint32 lista = listaFigli[nodo];
    return lista == Nessuno ? nessuno : liste[lista];
}

QVector<qint32>& ModelloAlbero::FigliDa(qint32 nodo) {
    if (listaFigli[nodo] == Nessuno) {
        listaFigli[nodo] = static_cast<qint32>(liste.size());
        liste.append(QVector<qint32>());
    }
    return liste[listaFigli[nodo]];
}

QString ModelloAlbero::TestoDi(qint32 nodo) const {
    return pool.mid(inizioTesto[nodo], lunghezzaTesto[nodo]);
}

int ModelloAlbero::ConfrontaTesti(qint32 a, qint32 b) const {
    const QStringView vista(pool);
    return ConfrontaItaliano(vista.mid(inizioTesto[a], lunghezzaTesto[a]),
                             vista.mid(inizioTesto[b], lunghezzaTesto[b]));
}

qint32 ModelloAlbero::NuovoNodo(qint64 lId, qint32 padre, const QString& sTesto, quint8 iImmagine,
                                quint8 iTag) {
    const auto nodo = static_cast<qint32>(ids.size());
    ids.append(lId);
    padri.append(padre);
    righe.append(0);
    inizioTesto.append(static_cast<qint32>(pool.size()));
    lunghezzaTesto.append(static_cast<qint32>(sTesto.size()));
    pool.append(sTesto);
    immagini.append(iImmagine);
    tags.append(iTag);
    ordinati.append(0);
    listaFigli.append(Nessuno);
    return nodo;
}

int ModelloAlbero::PosizioneOrdinata(qint32 padre, const QString& sTesto) const {
    const QVector<qint32>& elenco = Figli(padre);
    const QStringView vista(pool);
    // After the brothers of equal text: the first one whose text is greater.
    const auto dopo = std::upper_bound(
        elenco.cbegin(), elenco.cend(), sTesto, [&](const QString& testo, qint32 fratello) {
            return ConfrontaItaliano(QStringView(testo), vista.mid(inizioTesto[fratello],
                                                                   lunghezzaTesto[fratello])) < 0;
        });
    return static_cast<int>(dopo - elenco.cbegin());
}

void ModelloAlbero::Rinumera(qint32 padre, int daRiga) {
    QVector<qint32>& elenco = padre == Nessuno ? cima : FigliDa(padre);
    for (int riga = daRiga; riga < elenco.size(); ++riga) {
        righe[elenco[riga]] = riga;
    }
}

QModelIndex ModelloAlbero::AggiungiRadice() {
    return AggiungiRadice(IdRadice, TestoRadice(), QStringLiteral("root"), QStringLiteral("00"));
}

QModelIndex ModelloAlbero::AggiungiRadice(qint64 lId, const QString& sTesto,
                                          const QString& sImmagine, const QString& sTag) {
    const quint8 iImmagine = IndiceImmagine(sImmagine);
    const quint8 iTag = IndiceTag(sTag);
    if (mappa.Contiene(lId)) {
        throw Errore(SorgenteAlbero,
                     QStringLiteral("La chiave non è univoca: %1.").arg(ChiaveDi(lId)),
                     ErroreChiaveNonUnivoca);
    }
    const int riga = static_cast<int>(cima.size());
    if (!bCaricamento) {
        beginInsertRows(QModelIndex(), riga, riga);
    }
    const qint32 nodo = NuovoNodo(lId, Nessuno, sTesto, iImmagine, iTag);
    mappa.Inserisci(lId, nodo);
    righe[nodo] = riga;
    cima.append(nodo);
    if (!bCaricamento) {
        endInsertRows();
    }
    if (bCaricamento) {
        SistemaAttesi(lId);
    }
    return IndiceDi(nodo);
}

QModelIndex ModelloAlbero::Radice() const {
    return cima.isEmpty() ? QModelIndex() : IndiceDi(cima.first());
}

QModelIndex ModelloAlbero::Aggiungi(const QString& sChiavePadre, const QString& sChiave,
                                    const QString& sTesto, const QString& sImmagine,
                                    const QString& sTag) {
    return Aggiungi(IdDi(sChiavePadre), IdDi(sChiave), sTesto, sImmagine, sTag);
}

QModelIndex ModelloAlbero::Aggiungi(qint64 lIdPadre, qint64 lId, const QString& sTesto,
                                    const QString& sImmagine, const QString& sTag) {
    const quint8 iImmagine = IndiceImmagine(sImmagine);
    const quint8 iTag = IndiceTag(sTag);
    const auto chiaveDoppia = [lId]() {
        return Errore(SorgenteAlbero,
                      QStringLiteral("La chiave non è univoca: %1.").arg(ChiaveDi(lId)),
                      ErroreChiaveNonUnivoca);
    };
    // A load gives the sons of one parent one after the other: the parent found for the last
    // row is asked of the hash only when it changes.
    qint32 padre = ultimoPadre != Nessuno && ids[ultimoPadre] == lIdPadre ? ultimoPadre : Nessuno;
    if (padre == Nessuno) {
        padre = mappa.Trova(lIdPadre);
    }
    if (padre == Nessuno) {
        if (mappa.Contiene(lId)) {
            throw chiaveDoppia();
        }
        if (bCaricamento) {
            // The parent may come later in this load.
            auto attesa = attesi.find(lIdPadre);
            if (attesa == attesi.end()) {
                ordineAttesi.append(lIdPadre);
                attesa = attesi.insert(lIdPadre, QList<Attesa>());
            }
            attesa->append(Attesa{lId, lIdPadre, sTesto, iImmagine, iTag});
            return QModelIndex();
        }
        throw Errore(SorgenteAlbero,
                     QStringLiteral("Elemento non trovato: il nodo %1 non ha il padre %2 "
                                    "nell'albero.")
                         .arg(ChiaveDi(lId), ChiaveDi(lIdPadre)),
                     ErroreElementoNonTrovato);
    }
    ultimoPadre = padre;
    // The key taken, or found taken, in one step: it names the node made below.
    if (!mappa.Inserisci(lId, static_cast<qint32>(ids.size()))) {
        throw chiaveDoppia();
    }
    const int riga =
        ordinati[padre] ? PosizioneOrdinata(padre, sTesto) : static_cast<int>(Figli(padre).size());
    if (!bCaricamento) {
        beginInsertRows(IndiceDi(padre), riga, riga);
    }
    const qint32 nodo = NuovoNodo(lId, padre, sTesto, iImmagine, iTag);
    FigliDa(padre).insert(riga, nodo);
    Rinumera(padre, riga);
    if (!bCaricamento) {
        endInsertRows();
    }
    if (bCaricamento && !attesi.isEmpty()) {
        SistemaAttesi(lId);
    }
    return IndiceDi(nodo);
}

void ModelloAlbero::SistemaAttesi(qint64 lId) {
    QList<qint64> daFare{lId};
    while (!daFare.isEmpty()) {
        const qint64 padre = daFare.takeLast();
        const auto attesa = attesi.find(padre);
        if (attesa == attesi.end()) {
            continue;
        }
        const QList<Attesa> figliAttesi = std::move(attesa.value());
        attesi.erase(attesa);
        const qint32 nodoPadre = mappa.Trova(padre);
        for (const Attesa& figlio : figliAttesi) {
            if (mappa.Contiene(figlio.lId)) {
                throw Errore(
                    SorgenteAlbero,
                    QStringLiteral("La chiave non è univoca: %1.").arg(ChiaveDi(figlio.lId)),
                    ErroreChiaveNonUnivoca);
            }
            const int riga = ordinati[nodoPadre] ? PosizioneOrdinata(nodoPadre, figlio.sTesto)
                                                 : static_cast<int>(Figli(nodoPadre).size());
            const qint32 nodo =
                NuovoNodo(figlio.lId, nodoPadre, figlio.sTesto, figlio.iImmagine, figlio.iTag);
            mappa.Inserisci(figlio.lId, nodo);
            FigliDa(nodoPadre).insert(riga, nodo);
            Rinumera(nodoPadre, riga);
            if (attesi.contains(figlio.lId)) {
                daFare.append(figlio.lId);
            }
        }
    }
}

void ModelloAlbero::InizioCaricamento() {
    if (bCaricamento) {
        return;
    }
    beginResetModel();
    bCaricamento = true;
}

void ModelloAlbero::AttesiSottoRadice() {
    const QModelIndex radice = Radice();
    if (!bCaricamento || attesi.isEmpty() || !radice.isValid()) {
        return;
    }
    // A parent that waits itself comes with its own parent; the others never come.
    QSet<qint64> figliInAttesa;
    for (const QList<Attesa>& figli : std::as_const(attesi)) {
        for (const Attesa& figlio : figli) {
            figliInAttesa.insert(figlio.lId);
        }
    }
    const qint64 lIdRadice = Id(radice);
    QList<Attesa> orfani;
    for (const qint64 padre : std::as_const(ordineAttesi)) {
        if (!figliInAttesa.contains(padre)) {
            orfani += attesi.take(padre);
        }
    }
    if (orfani.isEmpty()) {
        return;
    }
    attesi.insert(lIdRadice, orfani);
    SistemaAttesi(lIdRadice);
}

void ModelloAlbero::VerificaAttesi() const {
    for (const qint64 padre : ordineAttesi) {
        const auto attesa = attesi.constFind(padre);
        if (attesa != attesi.cend() && !attesa->isEmpty()) {
            const Attesa& orfano = attesa->first();
            throw Errore(SorgenteAlbero,
                         QStringLiteral("Elemento non trovato: il nodo %1 (\"%2\") non ha il "
                                        "padre %3 nell'albero.")
                             .arg(ChiaveDi(orfano.lId), orfano.sTesto, ChiaveDi(padre)),
                         ErroreElementoNonTrovato);
        }
    }
}

void ModelloAlbero::FineCaricamento() {
    if (!bCaricamento) {
        return;
    }
    attesi.clear();
    ordineAttesi.clear();
    bCaricamento = false;
    endResetModel();
}

void ModelloAlbero::RimuoviSottoalbero(qint32 nodo) {
    QVector<qint32> daFare{nodo};
    while (!daFare.isEmpty()) {
        const qint32 n = daFare.takeLast();
        daFare.append(Figli(n));
        mappa.Rimuovi(ids[n]);
        spunte.remove(n);
        ultimoPadre = Nessuno;
        ids[n] = -1;
        if (listaFigli[n] != Nessuno) {
            liste[listaFigli[n]] = QVector<qint32>();
        }
        lunghezzaTesto[n] = 0;
    }
}

void ModelloAlbero::Rimuovi(qint64 lId) {
    const qint32 nodo = mappa.Trova(lId);
    if (nodo == Nessuno) {
        return;
    }
    const qint32 padre = padri[nodo];
    const int riga = righe[nodo];
    if (!bCaricamento) {
        beginRemoveRows(IndiceDi(padre), riga, riga);
    }
    QVector<qint32>& elenco = padre == Nessuno ? cima : FigliDa(padre);
    elenco.removeAt(riga);
    Rinumera(padre, riga);
    RimuoviSottoalbero(nodo);
    if (!bCaricamento) {
        endRemoveRows();
    }
}

QModelIndex ModelloAlbero::Trova(qint64 lId) const {
    const qint32 nodo = mappa.Trova(lId);
    return nodo == Nessuno ? QModelIndex() : IndiceDi(nodo);
}

QString ModelloAlbero::Chiave(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo == Nessuno ? QString() : ChiaveDi(ids[nodo]);
}

qint64 ModelloAlbero::Id(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo == Nessuno ? 0 : ids[nodo];
}

QString ModelloAlbero::Tag(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo == Nessuno ? QString() : tabellaTag.value(tags[nodo]);
}

QString ModelloAlbero::Testo(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo == Nessuno ? QString() : TestoDi(nodo);
}

QString ModelloAlbero::Immagine(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo == Nessuno ? QString() : ChiaviImmagine().value(immagini[nodo]);
}

void ModelloAlbero::ImpostaTesto(const QModelIndex& indice, const QString& sTesto) {
    const qint32 nodo = Nodo(indice);
    if (nodo == Nessuno) {
        return;
    }
    ScriviTesto(nodo, sTesto);
    if (!bCaricamento) {
        Q_EMIT dataChanged(indice, indice, {Qt::DisplayRole, Qt::ToolTipRole});
    }
}

void ModelloAlbero::ImpostaImmagine(const QModelIndex& indice, const QString& sImmagine) {
    const qint32 nodo = Nodo(indice);
    if (nodo == Nessuno) {
        return;
    }
    immagini[nodo] = IndiceImmagine(sImmagine);
    if (!bCaricamento) {
        Q_EMIT dataChanged(indice, indice, {Qt::DecorationRole, RuoloImmagine});
    }
}

void ModelloAlbero::ImpostaTag(const QModelIndex& indice, const QString& sTag) {
    const qint32 nodo = Nodo(indice);
    if (nodo == Nessuno) {
        return;
    }
    tags[nodo] = IndiceTag(sTag);
    if (!bCaricamento) {
        Q_EMIT dataChanged(indice, indice, {RuoloTag});
    }
}

bool ModelloAlbero::Ordinato(const QModelIndex& indice) const {
    const qint32 nodo = Nodo(indice);
    return nodo != Nessuno && ordinati[nodo] != 0;
}

void ModelloAlbero::ImpostaOrdinato(const QModelIndex& indice, bool bOrdinato) {
    const qint32 nodo = Nodo(indice);
    if (nodo == Nessuno) {
        return;
    }
    ordinati[nodo] = bOrdinato ? 1 : 0;
    if (!bOrdinato || Figli(nodo).size() < 2) {
        return;
    }
    QVector<qint32>& elenco = FigliDa(nodo);
    if (elenco.size() < 2) {
        return;
    }
    const auto minore = [this](qint32 a, qint32 b) {
        return ConfrontaTesti(a, b) < 0;
    };
    if (std::is_sorted(elenco.cbegin(), elenco.cend(), minore)) {
        return;
    }
    if (bCaricamento) {
        std::stable_sort(elenco.begin(), elenco.end(), minore);
        Rinumera(nodo, 0);
        return;
    }
    const QList<QPersistentModelIndex> padriVisti{QPersistentModelIndex(indice)};
    Q_EMIT layoutAboutToBeChanged(padriVisti, QAbstractItemModel::VerticalSortHint);
    std::stable_sort(elenco.begin(), elenco.end(), minore);
    Rinumera(nodo, 0);
    // The views' indexes follow their nodes to the new rows.
    const QModelIndexList vecchi = persistentIndexList();
    QModelIndexList nuovi;
    nuovi.reserve(vecchi.size());
    for (const QModelIndex& vecchio : vecchi) {
        nuovi.append(IndiceDi(Nodo(vecchio)));
    }
    changePersistentIndexList(vecchi, nuovi);
    Q_EMIT layoutChanged(padriVisti, QAbstractItemModel::VerticalSortHint);
}

// ---------------------------------------------------------------------------------------------
// The pictures

namespace ImmaginiAlbero {

namespace {

// A folder of complessi, with the marks of its links: "i" an inventario, "s" a producer.
void Cartella(QPainter& p, bool bInventario, bool bSoggetto) {
    p.setPen(QPen(QColor(150, 110, 20), 1));
    p.setBrush(QColor(240, 200, 80));
    p.drawRect(QRectF(1.5, 4.5, 13, 9));
    p.setBrush(QColor(250, 220, 120));
    p.drawRect(QRectF(1.5, 2.5, 5, 2));
    if (bInventario) {
        // A blue "i" on a white disc at the bottom left.
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::white);
        p.drawEllipse(QRectF(0, 6, 8, 10));
        p.setBrush(QColor(20, 60, 200));
        p.drawRect(QRectF(3, 10, 2, 5));
        p.drawEllipse(QRectF(3, 7, 2, 2));
    }
    if (bSoggetto) {
        // A green "s" on a white disc at the bottom right.
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::white);
        p.drawEllipse(QRectF(8, 6, 8, 10));
        QPainterPath esse;
        esse.moveTo(14, 8.5);
        esse.cubicTo(12.5, 7, 9.5, 7.5, 10, 9.5);
        esse.cubicTo(10.5, 11.2, 14.2, 10.8, 14, 13);
        esse.cubicTo(13.8, 15, 10.5, 15, 9.5, 13.5);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(0, 140, 40), 1.8, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(esse);
    }
}

void Radice(QPainter& p) {
    // A cabinet of three drawers.
    p.setPen(QPen(QColor(90, 50, 20), 1));
    p.setBrush(QColor(180, 120, 60));
    p.drawRect(QRectF(2.5, 1.5, 11, 13));
    for (int i = 0; i < 3; ++i) {
        p.setBrush(QColor(215, 165, 100));
        p.drawRect(QRectF(4.5, 3 + i * 4, 7, 3));
        p.setBrush(QColor(60, 30, 10));
        p.drawRect(QRectF(7.5, 4 + i * 4, 1, 1));
    }
}

void Istituto(QPainter& p) {
    // A building with a pediment and columns.
    p.setPen(QPen(QColor(50, 60, 90), 1));
    p.setBrush(QColor(190, 200, 220));
    QPolygonF frontone;
    frontone << QPointF(1, 5.5) << QPointF(8, 1) << QPointF(15, 5.5);
    p.drawPolygon(frontone);
    p.drawRect(QRectF(1.5, 13, 13, 2));
    p.setBrush(QColor(230, 235, 245));
    for (int i = 0; i < 4; ++i) {
        p.drawRect(QRectF(2.5 + i * 3.3, 6.5, 1.6, 6));
    }
}

void Pergamena(QPainter& p) {
    // A sheet rolled at both ends.
    p.setPen(QPen(QColor(130, 100, 50), 1));
    p.setBrush(QColor(245, 230, 190));
    p.drawRect(QRectF(3.5, 2.5, 9, 11));
    p.setBrush(QColor(225, 200, 150));
    p.drawRoundedRect(QRectF(1.5, 1.5, 13, 2.5), 1.2, 1.2);
    p.drawRoundedRect(QRectF(1.5, 12, 13, 2.5), 1.2, 1.2);
    p.setPen(QPen(QColor(120, 100, 80), 0.8));
    for (int i = 0; i < 3; ++i) {
        p.drawLine(QPointF(5, 6 + i * 2), QPointF(11, 6 + i * 2));
    }
}

void Sigillo(QPainter& p, bool bConNastri) {
    if (bConNastri) {
        // The seal on its ribbons, as it hangs from a parchment.
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(40, 90, 170));
        QPolygonF sinistro;
        sinistro << QPointF(5, 9) << QPointF(3, 15.5) << QPointF(6, 14) << QPointF(7.5, 10);
        QPolygonF destro;
        destro << QPointF(11, 9) << QPointF(13, 15.5) << QPointF(10, 14) << QPointF(8.5, 10);
        p.drawPolygon(sinistro);
        p.drawPolygon(destro);
    }
    p.setPen(QPen(QColor(110, 10, 10), 1));
    p.setBrush(QColor(200, 30, 30));
    const QRectF disco = bConNastri ? QRectF(2.5, 0.5, 11, 11) : QRectF(1.5, 1.5, 13, 13);
    p.drawEllipse(disco);
    p.setPen(QPen(QColor(250, 180, 170), 1));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(disco.adjusted(2.5, 2.5, -2.5, -2.5));
}

void Versamento(QPainter& p) {
    // A box that receives: an arrow into an open case.
    p.setPen(QPen(QColor(60, 90, 40), 1));
    p.setBrush(QColor(170, 210, 130));
    p.drawRect(QRectF(1.5, 8.5, 13, 6));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 110, 40));
    QPolygonF freccia;
    freccia << QPointF(6.5, 1) << QPointF(9.5, 1) << QPointF(9.5, 6) << QPointF(12, 6)
            << QPointF(8, 11) << QPointF(4, 6) << QPointF(6.5, 6);
    p.drawPolygon(freccia);
}

// A double chevron towards the left or the right.
void Frecce(QPainter& p, const QRectF& area, bool bVersoSinistra, const QColor& colore) {
    p.setPen(QPen(colore, area.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    const double passo = area.width() / 4;
    for (int i = 0; i < 2; ++i) {
        const double x = area.left() + area.width() * 0.3 + i * passo;
        QPolygonF punta;
        if (bVersoSinistra) {
            punta << QPointF(x + passo, area.top() + area.height() * 0.2)
                  << QPointF(x, area.center().y())
                  << QPointF(x + passo, area.bottom() - area.height() * 0.2);
        } else {
            punta << QPointF(x, area.top() + area.height() * 0.2)
                  << QPointF(x + passo, area.center().y())
                  << QPointF(x, area.bottom() - area.height() * 0.2);
        }
        p.drawPolyline(punta);
    }
}

} // namespace

QPixmap Immagine(const QString& sChiave, int iLato) {
    QImage immagine(16, 16, QImage::Format_ARGB32_Premultiplied);
    immagine.fill(Qt::transparent);
    {
        QPainter p(&immagine);
        p.setRenderHint(QPainter::Antialiasing);
        if (sChiave == QLatin1String("root")) {
            Radice(p);
        } else if (sChiave == QLatin1String("istituto")) {
            Istituto(p);
        } else if (sChiave == QLatin1String("nolink")) {
            Cartella(p, false, false);
        } else if (sChiave == QLatin1String("silink")) {
            Cartella(p, true, false);
        } else if (sChiave == QLatin1String("slink")) {
            Cartella(p, false, true);
        } else if (sChiave == QLatin1String("islink")) {
            Cartella(p, true, true);
        } else if (sChiave == QLatin1String("pergamena")) {
            Pergamena(p);
        } else if (sChiave == QLatin1String("sigilli")) {
            Sigillo(p, true);
        } else if (sChiave == QLatin1String("sigillo")) {
            Sigillo(p, false);
        } else if (sChiave == QLatin1String("versamento")) {
            Versamento(p);
        }
    }
    if (iLato != 16) {
        immagine = immagine.scaled(iLato, iLato, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return QPixmap::fromImage(immagine);
}

QImage Pannello(const QString& sNomeFile) {
    const QString nome = sNomeFile.toLower();
    const bool bIcona = nome.endsWith(QLatin1String(".ico"));
    const int lato = bIcona ? 32 : 16;
    QImage immagine(lato, lato, QImage::Format_ARGB32);
    // A bitmap has no transparency: the face of a button.
    immagine.fill(bIcona ? QColor(Qt::transparent) : QColor(212, 208, 200));
    QPainter p(&immagine);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF area(0, 0, lato, lato);
    if (nome == QLatin1String("mostra.bmp")) {
        // The panel comes back from the right.
        Frecce(p, area, true, QColor(0, 0, 128));
    } else if (nome == QLatin1String("nascondi.bmp")) {
        Frecce(p, area, false, QColor(0, 0, 128));
    } else if (nome == QLatin1String("sinistra.ico") || nome == QLatin1String("destra.ico")) {
        p.setPen(QPen(QColor(30, 60, 120), 1.5));
        p.setBrush(QColor(200, 215, 240));
        p.drawRoundedRect(area.adjusted(1.5, 1.5, -1.5, -1.5), 5, 5);
        Frecce(p, area.adjusted(4, 4, -4, -4), nome == QLatin1String("sinistra.ico"),
               QColor(20, 40, 110));
    }
    return immagine;
}

} // namespace ImmaginiAlbero

// ---------------------------------------------------------------------------------------------
// The loading

QString GruppoAlbero::Testo() const {
    // The kinds are the window's fixed texts; a kind without a column of its own shows the
    // group's, and when none has one the column is read bare.
    QString sTesto = QStringLiteral("CASE ELEM_Tipologia");
    bool bColonneProprie = false;
    for (const Tipo& tipo : tipi) {
        if (!tipo.sColonnaTesto.isEmpty()) {
            sTesto += QStringLiteral(" WHEN '%1' THEN %2").arg(tipo.sTag, tipo.sColonnaTesto);
            bColonneProprie = true;
        }
    }
    if (!bColonneProprie) {
        return sColonnaTesto;
    }
    return sTesto + QStringLiteral(" ELSE ") + sColonnaTesto + QStringLiteral(" END");
}

const QString& GruppoAlbero::ImmagineDi(const QString& sTag) const {
    for (const Tipo& tipo : tipi) {
        if (tipo.sTag == sTag) {
            return tipo.sImmagine;
        }
    }
    return sImmagine;
}

QString GruppoAlbero::Ordine(const Connessione& connessione) const {
    return sOrdine.isEmpty()
               ? QStringLiteral("ELEM_ID_ElementoPadre, ") + connessione.InOrdineAlfabetico(Testo())
               : sOrdine;
}

QString GruppoAlbero::Sql(const Connessione& connessione) const {
    QString sSql = QStringLiteral("SELECT ELEM_ID_Elemento, ELEM_ID_ElementoPadre, ") + Testo() +
                   QStringLiteral(", ELEM_Tipologia");
    if (!sColonnaLink.isEmpty()) {
        sSql += QStringLiteral(", ") + sColonnaLink;
    }
    sSql += QStringLiteral(" FROM ") + sVista;
    if (!sCondizione.isEmpty()) {
        sSql += QStringLiteral(" WHERE ") + sCondizione;
    }
    sSql += QStringLiteral(" ORDER BY ") + Ordine(connessione);
    return sSql;
}

namespace CaricamentoAlbero {

namespace {

const QString SorgenteCaricamento = QStringLiteral("CaricaAlbero");

// The rows of a statement, by the backend's quickest path.
std::unique_ptr<LetturaRighe> Leggi(const Connessione& connessione, const QString& sSql,
                                    const QVariantList& valori = {}) {
    return connessione.backend().ApriLetturaRighe(connessione.Db(), sSql, valori,
                                                  SorgenteCaricamento);
}

// The columns of a group's statement, in the order of GruppoAlbero::Sql.
enum ColonnaGruppo { ColonnaId, ColonnaPadre, ColonnaTesto, ColonnaTag, ColonnaLink };

void CaricaGruppo(ModelloAlbero& modello, const Connessione& connessione,
                  const GruppoAlbero& gruppo) {
    const auto righe = Leggi(connessione, gruppo.Sql(connessione), gruppo.valori);
    const bool bLink = !gruppo.sColonnaLink.isEmpty();
    const QString silink = QStringLiteral("silink");
    // A Null parent in a group that does not hang on the root has no parent in the tree.
    constexpr qint64 PadreAssente = -1;
    // The kinds are few: the text of the last one is kept.
    QByteArray ultimoTag;
    QString sTag;
    const QString* immagineTag = &gruppo.sImmagine;
    while (righe->Prossima()) {
        qint64 lIdPadre = PadreAssente;
        if (!righe->Null(ColonnaPadre)) {
            lIdPadre = righe->Intero(ColonnaPadre);
        } else if (gruppo.bPadreNulloERadice) {
            lIdPadre = ModelloAlbero::IdRadice;
        }
        const QByteArrayView tag = righe->Testo(ColonnaTag);
        if (tag != QByteArrayView(ultimoTag)) {
            ultimoTag = tag.toByteArray();
            sTag = QString::fromUtf8(ultimoTag);
            immagineTag = &gruppo.ImmagineDi(sTag);
        }
        const QString& immagine = bLink && righe->Intero(ColonnaLink) > 0 ? silink : *immagineTag;
        modello.Aggiungi(lIdPadre, righe->Intero(ColonnaId),
                         QString::fromUtf8(righe->Testo(ColonnaTesto)), immagine, sTag);
    }
}

} // namespace

void ApplicaSoggetti(ModelloAlbero& modello, const Connessione& connessione) {
    const auto righe =
        Leggi(connessione, QStringLiteral("SELECT CD_ID_Elemento FROM V_ComplessiDocSoggetti"));
    while (righe->Prossima()) {
        const QModelIndex nodo = modello.Trova(righe->Intero(0));
        if (!nodo.isValid()) {
            continue;
        }
        const QString immagine = modello.Immagine(nodo);
        if (immagine == QLatin1String("silink")) {
            modello.ImpostaImmagine(nodo, QStringLiteral("islink"));
        } else if (immagine == QLatin1String("nolink")) {
            modello.ImpostaImmagine(nodo, QStringLiteral("slink"));
        }
    }
}

void Carica(ModelloAlbero& modello, const Connessione& connessione,
            const QList<GruppoAlbero>& gruppi, bool bSoggettiComplessi,
            const RadiceAlbero& radice) {
    modello.InizioCaricamento();
    try {
        modello.Svuota();
        modello.AggiungiRadice(radice.lId, radice.sTesto, radice.sImmagine, radice.sTag);
        for (const GruppoAlbero& gruppo : gruppi) {
            CaricaGruppo(modello, connessione, gruppo);
        }
        if (std::any_of(gruppi.cbegin(), gruppi.cend(),
                        [](const GruppoAlbero& gruppo) { return gruppo.bPadreAssenteERadice; })) {
            modello.AttesiSottoRadice();
        }
        modello.VerificaAttesi();
        if (bSoggettiComplessi) {
            ApplicaSoggetti(modello, connessione);
        }
        modello.ImpostaOrdinato(modello.Radice());
    } catch (...) {
        modello.FineCaricamento();
        throw;
    }
    modello.FineCaricamento();
}

QString ImmagineDopoLinkInventari(const QString& sImmagine, int iEsito) {
    if (iEsito == 1) {
        return sImmagine == QLatin1String("slink") ? QStringLiteral("islink")
                                                   : QStringLiteral("silink");
    }
    if (iEsito == 2) {
        if (sImmagine == QLatin1String("silink")) {
            return QStringLiteral("nolink");
        }
        if (sImmagine == QLatin1String("islink")) {
            return QStringLiteral("slink");
        }
    }
    return sImmagine;
}

QString ImmagineDopoLinkSoggetti(const QString& sImmagine, int iEsito) {
    if (iEsito == 1) {
        if (sImmagine == QLatin1String("silink")) {
            return QStringLiteral("islink");
        }
        if (sImmagine == QLatin1String("nolink")) {
            return QStringLiteral("slink");
        }
    } else if (iEsito == 2) {
        if (sImmagine == QLatin1String("slink")) {
            return QStringLiteral("nolink");
        }
        if (sImmagine == QLatin1String("islink")) {
            return QStringLiteral("silink");
        }
    }
    return sImmagine;
}

} // namespace CaricamentoAlbero
