#include "LetturaLista.h"

#include "Errore.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

QString Decodifica(const QByteArray& contenuto) {
    QByteArray dati = contenuto;
    if (dati.startsWith("\xEF\xBB\xBF")) {
        dati.remove(0, 3);
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString testo = utf8.decode(dati);
    if (!utf8.hasError()) {
        return testo;
    }
    // Files written on older workstations are in the Windows Latin alphabet.
    QStringDecoder latino("windows-1252");
    if (latino.isValid()) {
        return latino.decode(dati);
    }
    return QString::fromLatin1(dati);
}

bool FineRiga(QChar c) {
    return c == u'\r' || c == u'\n';
}

} // namespace

QStringList LeggiListaDaTesto(const QByteArray& contenuto) {
    const QString testo = Decodifica(contenuto);
    QStringList record;
    const qsizetype n = testo.size();
    qsizetype i = 0;
    while (i < n) {
        // Blanks before a record are not part of it.
        while (i < n && (testo[i] == u' ' || testo[i] == u'\t')) {
            ++i;
        }
        QString valore;
        if (i < n && testo[i] == u'"') {
            ++i;
            const qsizetype inizio = i;
            while (i < n && testo[i] != u'"' && !FineRiga(testo[i])) {
                ++i;
            }
            valore = testo.mid(inizio, i - inizio);
            if (i < n && testo[i] == u'"') {
                ++i;
            }
            // What stands after the closing quote up to the end of the record is dropped.
            while (i < n && testo[i] != u',' && !FineRiga(testo[i])) {
                ++i;
            }
        } else {
            const qsizetype inizio = i;
            while (i < n && testo[i] != u',' && !FineRiga(testo[i])) {
                ++i;
            }
            valore = testo.mid(inizio, i - inizio);
        }
        record.append(valore);
        if (i >= n) {
            break;
        }
        if (testo[i] == u',') {
            ++i;
            // A comma at the very end of a line leaves an empty record before the line end.
            if (i >= n) {
                record.append(QString());
            } else if (FineRiga(testo[i])) {
                record.append(QString());
                if (testo[i] == u'\r' && i + 1 < n && testo[i + 1] == u'\n') {
                    ++i;
                }
                ++i;
            }
        } else {
            if (testo[i] == u'\r' && i + 1 < n && testo[i + 1] == u'\n') {
                ++i;
            }
            ++i;
        }
    }
    return record;
}

QStringList LeggiLista(const QString& sPercorso, const QString& sSorgente) {
    QFile file(sPercorso);
    if (!QFileInfo(sPercorso).isFile()) {
        throw Errore(sSorgente, QStringLiteral("File non trovato: %1").arg(sPercorso),
                     ErroriPiattaforma::FileNonTrovato);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        throw Errore(
            sSorgente,
            QStringLiteral("Impossibile leggere il file %1: %2").arg(sPercorso, file.errorString()),
            ErroriPiattaforma::ErroreIO);
    }
    const QByteArray contenuto = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        throw Errore(
            sSorgente,
            QStringLiteral("Impossibile leggere il file %1: %2").arg(sPercorso, file.errorString()),
            ErroriPiattaforma::ErroreIO);
    }
    return LeggiListaDaTesto(contenuto);
}
