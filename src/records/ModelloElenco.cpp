#include "ModelloElenco.h"

ModelloElenco::ModelloElenco(QObject* genitore)
    : QAbstractListModel(genitore) {}

int ModelloElenco::rowCount(const QModelIndex& genitore) const {
    return genitore.isValid() ? 0 : Righe();
}

QVariant ModelloElenco::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid() || indice.row() < 0 || indice.row() >= Righe()) {
        return {};
    }
    switch (ruolo) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return testi[indice.row()];
    case RuoloChiave:
        return Chiave(ids[indice.row()]);
    case RuoloId:
        return static_cast<qlonglong>(ids[indice.row()]);
    default:
        return {};
    }
}

QVariant ModelloElenco::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
    if (sezione == 0 && orientamento == Qt::Horizontal && ruolo == Qt::DisplayRole) {
        return sIntestazione;
    }
    return {};
}

void ModelloElenco::ImpostaIntestazione(const QString& sTesto) {
    sIntestazione = sTesto;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
}

void ModelloElenco::Riempi(QList<qint64> idNuovi, QList<QString> testiNuovi) {
    beginResetModel();
    ids = std::move(idNuovi);
    testi = std::move(testiNuovi);
    testi.resize(ids.size());
    endResetModel();
}

void ModelloElenco::Svuota() {
    Riempi({}, {});
}

int ModelloElenco::Aggiungi(qint64 lId, const QString& sTesto) {
    const int iRiga = Righe();
    beginInsertRows(QModelIndex(), iRiga, iRiga);
    ids.append(lId);
    testi.append(sTesto);
    endInsertRows();
    return iRiga;
}

void ModelloElenco::Rimuovi(int iRiga) {
    if (iRiga < 0 || iRiga >= Righe()) {
        return;
    }
    beginRemoveRows(QModelIndex(), iRiga, iRiga);
    ids.removeAt(iRiga);
    testi.removeAt(iRiga);
    endRemoveRows();
}

void ModelloElenco::ImpostaTesto(int iRiga, const QString& sTesto) {
    if (iRiga < 0 || iRiga >= Righe()) {
        return;
    }
    testi[iRiga] = sTesto;
    const QModelIndex cella = index(iRiga);
    Q_EMIT dataChanged(cella, cella);
}

int ModelloElenco::RigaDi(qint64 lId) const {
    return static_cast<int>(ids.indexOf(lId));
}

QString ModelloElenco::Chiave(qint64 lId) {
    return QStringLiteral("ID") + QString::number(lId);
}

qint64 ModelloElenco::IdDaChiave(const QString& sChiave) {
    if (!sChiave.startsWith(QLatin1String("ID"))) {
        return 0;
    }
    bool bNumero = false;
    const qint64 lId = sChiave.mid(2).toLongLong(&bNumero);
    return bNumero ? lId : 0;
}
