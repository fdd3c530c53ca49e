#pragma once

// The rows of a flat list of records (the list lvwDB of a list window): one column, each row a
// record's key and its text, held in two arrays. A list of a hundred thousand rows is filled in
// one reset and costs two arrays; the view asks only for the rows it shows. A row's key, as
// the list shows it to its window, is "ID" followed by the record's id.

#include <QAbstractListModel>
#include <QList>
#include <QString>

class ModelloElenco : public QAbstractListModel {
    Q_OBJECT
public:
    // The role that gives a row's key ("ID" followed by the id).
    static constexpr int RuoloChiave = Qt::UserRole;
    // The role that gives a row's id, as a whole number.
    static constexpr int RuoloId = Qt::UserRole + 1;

    explicit ModelloElenco(QObject* genitore = nullptr);

    int rowCount(const QModelIndex& genitore = QModelIndex()) const override;
    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    QVariant headerData(int sezione, Qt::Orientation orientamento,
                        int ruolo = Qt::DisplayRole) const override;

    // The one column header.
    void ImpostaIntestazione(const QString& sIntestazione);
    QString Intestazione() const { return sIntestazione; }

    // The rows replaced at once by those given (ids and texts in the same order).
    void Riempi(QList<qint64> idNuovi, QList<QString> testiNuovi);
    void Svuota();
    // A row added at the end; its row number.
    int Aggiungi(qint64 lId, const QString& sTesto);
    void Rimuovi(int iRiga);
    void ImpostaTesto(int iRiga, const QString& sTesto);

    int Righe() const { return static_cast<int>(ids.size()); }
    qint64 Id(int iRiga) const { return ids.value(iRiga); }
    QString Testo(int iRiga) const { return testi.value(iRiga); }
    // The row of that id, -1 if none (the first one from the top).
    int RigaDi(qint64 lId) const;

    // The key of a row as the list shows it, and the id read back from a key ("ID12" gives 12,
    // anything else 0).
    static QString Chiave(qint64 lId);
    static qint64 IdDaChiave(const QString& sChiave);

private:
    QString sIntestazione;
    QList<qint64> ids;
    QList<QString> testi;
};
