#include "StringaConnessione.h"

StringaConnessione StringaConnessione::Leggi(const QString& sTesto) {
    StringaConnessione stringa;
    const qsizetype n = sTesto.size();
    qsizetype i = 0;
    while (i < n) {
        // Key up to "=" (or to ";" for a key without value).
        const qsizetype inizioChiave = i;
        while (i < n && sTesto[i] != u'=' && sTesto[i] != u';') {
            ++i;
        }
        const QString chiave = sTesto.mid(inizioChiave, i - inizioChiave).trimmed();
        QString valore;
        if (i < n && sTesto[i] == u'=') {
            ++i;
            while (i < n && sTesto[i] == u' ') {
                ++i;
            }
            if (i < n && (sTesto[i] == u'"' || sTesto[i] == u'\'')) {
                // A quoted value: a doubled quote stands for one quote.
                const QChar virgoletta = sTesto[i];
                ++i;
                while (i < n) {
                    if (sTesto[i] == virgoletta) {
                        if (i + 1 < n && sTesto[i + 1] == virgoletta) {
                            valore += virgoletta;
                            i += 2;
                            continue;
                        }
                        ++i;
                        break;
                    }
                    valore += sTesto[i];
                    ++i;
                }
                while (i < n && sTesto[i] != u';') {
                    ++i;
                }
            } else {
                const qsizetype inizio = i;
                while (i < n && sTesto[i] != u';') {
                    ++i;
                }
                valore = sTesto.mid(inizio, i - inizio).trimmed();
            }
        }
        if (!chiave.isEmpty()) {
            stringa.voci.append({chiave, valore});
        }
        if (i < n && sTesto[i] == u';') {
            ++i;
        }
    }
    return stringa;
}

QString StringaConnessione::Valore(const QString& sChiave) const {
    for (qsizetype i = voci.size() - 1; i >= 0; --i) {
        if (voci[i].first.compare(sChiave, Qt::CaseInsensitive) == 0) {
            return voci[i].second;
        }
    }
    return QString();
}

bool StringaConnessione::Contiene(const QString& sChiave) const {
    for (const auto& voce : voci) {
        if (voce.first.compare(sChiave, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

QString ValoreInStringa(const QString& sValore) {
    if (!sValore.contains(u';') && !sValore.startsWith(u'"') && !sValore.startsWith(u'\'')) {
        return sValore;
    }
    QString doppio = sValore;
    doppio.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    return QLatin1Char('"') + doppio + QLatin1Char('"');
}

QString ComponiStringaConnessione(const QString& sTesta, const QString& sServer,
                                  const QString& sDatabase, const QString& sUtente,
                                  const QString& sPassword) {
    return sTesta + QStringLiteral(";Data Source=") + ValoreInStringa(sServer) +
           QStringLiteral(";Initial Catalog=") + ValoreInStringa(sDatabase) +
           QStringLiteral(";User ID=") + ValoreInStringa(sUtente) + QStringLiteral(";Password=") +
           ValoreInStringa(sPassword);
}
