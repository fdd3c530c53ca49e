#include "EsecuzioneScript.h"
#include "TestoErrore.h"

#include "Backend.h"
#include "Connessione.h"
#include "session/Errore.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

namespace {

bool CarattereParola(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

// The first words of a statement, upper case, comments skipped.
QStringList PrimeParole(const QString& sTesto, int quante) {
    static const QRegularExpression parola(QStringLiteral("[A-Za-z_]+"));
    QStringList parole;
    auto it = parola.globalMatch(sTesto);
    while (it.hasNext() && parole.size() < quante) {
        parole.append(it.next().captured().toUpper());
    }
    return parole;
}

bool InizioTrigger(const QString& sTesto) {
    const QStringList parole = PrimeParole(sTesto, 4);
    if (parole.isEmpty() || parole[0] != QStringLiteral("CREATE")) {
        return false;
    }
    for (qsizetype i = 1; i < parole.size(); ++i) {
        if (parole[i] == QStringLiteral("TRIGGER")) {
            return true;
        }
    }
    return false;
}

} // namespace

QList<IstruzioneScript> DividiScript(const QString& sScript) {
    QList<IstruzioneScript> istruzioni;
    QString corrente;
    int rigaCorrente = 0;
    int riga = 1;
    int profondita = 0; // BEGIN/CASE ... END inside a trigger body
    bool inTrigger = false;
    const qsizetype n = sScript.size();

    auto chiudi = [&]() {
        const QString testo = corrente.trimmed();
        if (!testo.isEmpty()) {
            istruzioni.append({testo, rigaCorrente});
        }
        corrente.clear();
        rigaCorrente = 0;
        profondita = 0;
        inTrigger = false;
    };
    auto aggiungi = [&](QChar c) {
        if (rigaCorrente == 0 && !c.isSpace()) {
            rigaCorrente = riga;
        }
        corrente += c;
    };

    qsizetype i = 0;
    bool inizioRiga = true;
    while (i < n) {
        const QChar c = sScript[i];
        // A line that holds only GO ends the batch, as in the server tools of old.
        if (inizioRiga) {
            qsizetype j = i;
            while (j < n && (sScript[j] == u' ' || sScript[j] == u'\t')) {
                ++j;
            }
            if (j + 2 <= n &&
                sScript.mid(j, 2).compare(QStringLiteral("GO"), Qt::CaseInsensitive) == 0) {
                qsizetype k = j + 2;
                while (k < n &&
                       (sScript[k] == u' ' || sScript[k] == u'\t' || sScript[k] == u'\r')) {
                    ++k;
                }
                if (k >= n || sScript[k] == u'\n') {
                    chiudi();
                    i = k;
                    continue;
                }
            }
        }
        inizioRiga = false;
        if (c == u'\n') {
            ++riga;
            inizioRiga = true;
            corrente += c;
            ++i;
            continue;
        }
        if (c == u'-' && i + 1 < n && sScript[i + 1] == u'-') {
            while (i < n && sScript[i] != u'\n') {
                ++i;
            }
            continue;
        }
        if (c == u'/' && i + 1 < n && sScript[i + 1] == u'*') {
            i += 2;
            while (i < n && !(sScript[i] == u'*' && i + 1 < n && sScript[i + 1] == u'/')) {
                if (sScript[i] == u'\n') {
                    ++riga;
                    corrente += u'\n';
                }
                ++i;
            }
            i += 2;
            corrente += u' ';
            continue;
        }
        if (c == u'\'' || c == u'"' || c == u'`' || c == u'[') {
            const QChar fine = c == u'[' ? QChar(u']') : c;
            aggiungi(c);
            ++i;
            while (i < n) {
                const QChar d = sScript[i];
                corrente += d;
                if (d == u'\n') {
                    ++riga;
                }
                ++i;
                if (d == fine) {
                    if (i < n && sScript[i] == fine && fine != u']') {
                        corrente += sScript[i];
                        ++i;
                        continue;
                    }
                    break;
                }
            }
            continue;
        }
        if (c == u'$') {
            // A dollar-quoted body: $$ ... $$ or $tag$ ... $tag$.
            static const QRegularExpression etichetta(QStringLiteral("\\$[A-Za-z_0-9]*\\$"));
            const auto trovata = etichetta.match(sScript, i, QRegularExpression::NormalMatch,
                                                 QRegularExpression::AnchorAtOffsetMatchOption);
            if (trovata.hasMatch() && (i == 0 || !CarattereParola(sScript[i - 1]))) {
                const QString tag = trovata.captured();
                const qsizetype chiusura = sScript.indexOf(tag, i + tag.size());
                const qsizetype fine = chiusura < 0 ? n : chiusura + tag.size();
                const QString corpo = sScript.mid(i, fine - i);
                if (rigaCorrente == 0) {
                    rigaCorrente = riga;
                }
                corrente += corpo;
                riga += static_cast<int>(corpo.count(u'\n'));
                i = fine;
                continue;
            }
        }
        if (CarattereParola(c) && (i == 0 || !CarattereParola(sScript[i - 1]))) {
            qsizetype j = i;
            while (j < n && CarattereParola(sScript[j])) {
                ++j;
            }
            const QString parola = sScript.mid(i, j - i);
            if (rigaCorrente == 0) {
                rigaCorrente = riga;
            }
            corrente += parola;
            i = j;
            if (!inTrigger && InizioTrigger(corrente)) {
                inTrigger = true;
            }
            if (inTrigger) {
                const QString maiuscola = parola.toUpper();
                if (maiuscola == QStringLiteral("BEGIN") || maiuscola == QStringLiteral("CASE")) {
                    ++profondita;
                } else if (maiuscola == QStringLiteral("END") && profondita > 0) {
                    --profondita;
                }
            }
            continue;
        }
        if (c == u';' && profondita == 0) {
            chiudi();
            ++i;
            continue;
        }
        aggiungi(c);
        ++i;
    }
    chiudi();
    return istruzioni;
}

QString ScriptDelServer(const QString& sScript, const QString& sServer, const QString& sNomeFile) {
    static const QRegularExpression riga(QStringLiteral("^--[ \\t]*Server:[ \\t]*(\\S+)[ \\t]*$"));
    const QStringList righe = sScript.split(u'\n');
    QStringList tenute;
    QStringList altri;
    bool bParti = false;
    bool bTenuta = true;
    for (const QString& testo : righe) {
        const QRegularExpressionMatch server = riga.match(testo.trimmed());
        if (server.hasMatch()) {
            bParti = true;
            const QString nome = server.captured(1);
            bTenuta = nome.compare(sServer, Qt::CaseInsensitive) == 0;
            if (!bTenuta && !altri.contains(nome, Qt::CaseInsensitive)) {
                altri.append(nome);
            }
        }
        tenute.append(bTenuta ? testo : QString());
    }
    const QString risultato = tenute.join(u'\n');
    if (bParti && DividiScript(risultato).isEmpty()) {
        throw Errore(QStringLiteral("Script"),
                     QStringLiteral("%1 è uno script per %2 e la connessione è a %3 (Provider di "
                                    "Connetti.txt): nulla da eseguire.")
                         .arg(sNomeFile, altri.join(QStringLiteral(", ")), sServer));
    }
    return risultato;
}

int EseguiScript(const Connessione& connessione, const QString& sScript, const QString& sNomeFile) {
    const QList<IstruzioneScript> istruzioni =
        DividiScript(ScriptDelServer(sScript, connessione.backend().Descrizione(), sNomeFile));
    bool gestisceTransazioni = false;
    for (const IstruzioneScript& istruzione : istruzioni) {
        const QStringList parole = PrimeParole(istruzione.sTesto, 2);
        const QString prima = parole.value(0);
        if (prima == QStringLiteral("COMMIT") || prima == QStringLiteral("ROLLBACK") ||
            prima == QStringLiteral("START") ||
            (prima == QStringLiteral("BEGIN") &&
             (parole.size() == 1 || parole[1] == QStringLiteral("TRANSACTION") ||
              parole[1] == QStringLiteral("WORK")))) {
            gestisceTransazioni = true;
            break;
        }
    }
    QSqlDatabase db = connessione.Db();
    const QString sorgente = QStringLiteral("Script");
    if (!gestisceTransazioni && !db.transaction()) {
        throw Errore(sorgente, TestoErrore(db.lastError()));
    }
    int eseguite = 0;
    for (const IstruzioneScript& istruzione : istruzioni) {
        QSqlQuery query(db);
        if (!query.exec(istruzione.sTesto)) {
            const QString causa = TestoErrore(query.lastError());
            query = QSqlQuery();
            if (!gestisceTransazioni) {
                db.rollback();
            }
            throw Errore(
                sorgente,
                QStringLiteral("%1, riga %2: %3").arg(sNomeFile).arg(istruzione.iRiga).arg(causa));
        }
        ++eseguite;
    }
    if (!gestisceTransazioni && !db.commit()) {
        const QString causa = TestoErrore(db.lastError());
        db.rollback();
        throw Errore(sorgente, causa);
    }
    return eseguite;
}
