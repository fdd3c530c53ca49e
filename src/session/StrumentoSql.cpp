#include "StrumentoSql.h"

#include "Errore.h"
#include "LetturaLista.h"
#include "Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

struct Opzioni {
    QString sUtente;
    QString sPassword;
    QString sServer;
    QString sDatabase;
    QStringList file;
    bool bCrea = false;
};

const QString Uso = QStringLiteral(
    "Uso: tabellion-sql -U utente -P password -S server -d database -i file.sql [-i altro.sql] "
    "[--crea]");

Opzioni LeggiOpzioni(const QStringList& argomenti) {
    Opzioni opzioni;
    for (qsizetype i = 0; i < argomenti.size(); ++i) {
        const QString& argomento = argomenti[i];
        if (argomento == QStringLiteral("--crea")) {
            opzioni.bCrea = true;
            continue;
        }
        if (argomento == QStringLiteral("-h") || argomento == QStringLiteral("--help")) {
            throw Errore(QStringLiteral("tabellion-sql"), Uso);
        }
        if (argomento.size() < 2 || argomento[0] != u'-') {
            throw Errore(QStringLiteral("tabellion-sql"),
                         QStringLiteral("Argomento non previsto: \"%1\".\n%2").arg(argomento, Uso));
        }
        const QChar lettera = argomento[1];
        QString valore = argomento.mid(2);
        if (valore.isEmpty()) {
            if (i + 1 >= argomenti.size()) {
                throw Errore(
                    QStringLiteral("tabellion-sql"),
                    QStringLiteral("Manca il valore dell'opzione %1.\n%2").arg(argomento, Uso));
            }
            valore = argomenti[++i];
        }
        switch (lettera.unicode()) {
        case u'U':
            opzioni.sUtente = valore;
            break;
        case u'P':
            opzioni.sPassword = valore;
            break;
        case u'S':
            opzioni.sServer = valore;
            break;
        case u'd':
            opzioni.sDatabase = valore;
            break;
        case u'i':
            opzioni.file.append(valore);
            break;
        default:
            throw Errore(QStringLiteral("tabellion-sql"),
                         QStringLiteral("Opzione sconosciuta: %1.\n%2").arg(argomento, Uso));
        }
    }
    if (opzioni.sDatabase.isEmpty() || opzioni.file.isEmpty()) {
        throw Errore(
            QStringLiteral("tabellion-sql"),
            QStringLiteral("Servono almeno il database (-d) e uno script (-i).\n%1").arg(Uso));
    }
    return opzioni;
}

QString LeggiScript(const QString& sPercorso) {
    QFile file(sPercorso);
    if (!QFileInfo(sPercorso).isFile()) {
        throw Errore(QStringLiteral("tabellion-sql"),
                     QStringLiteral("File non trovato: %1").arg(sPercorso),
                     ErroriPiattaforma::FileNonTrovato);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        throw Errore(
            QStringLiteral("tabellion-sql"),
            QStringLiteral("Impossibile leggere %1: %2").arg(sPercorso, file.errorString()));
    }
    QByteArray contenuto = file.readAll();
    if (contenuto.startsWith("\xEF\xBB\xBF")) {
        contenuto.remove(0, 3);
    }
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString testo = utf8.decode(contenuto);
    if (utf8.hasError()) {
        testo = QString::fromLatin1(contenuto);
    }
    return testo;
}

} // namespace

int EseguiStrumentoSql(const QStringList& argomenti, QTextStream& uscita, QTextStream& errori) {
    try {
        const Opzioni opzioni = LeggiOpzioni(argomenti);
        const QStringList connetti =
            LeggiLista(Sessione::FileProgramma(QStringLiteral("Connetti.txt")),
                       QStringLiteral("tabellion-sql"));
        const QString testa = connetti.value(0);
        const QString stringa = ComponiStringaConnessione(testa, opzioni.sServer, opzioni.sDatabase,
                                                          opzioni.sUtente, opzioni.sPassword);
        if (opzioni.bCrea) {
            const StringaConnessione letta = StringaConnessione::Leggi(stringa);
            Connessione::BackendDi(letta).CreaDatabase(letta);
        }
        // Read every script before touching the database: a wrong path changes nothing.
        QStringList testi;
        for (const QString& file : opzioni.file) {
            testi.append(LeggiScript(file));
        }
        const std::shared_ptr<Connessione> connessione = Connessione::Apri(stringa);
        for (qsizetype i = 0; i < opzioni.file.size(); ++i) {
            const int eseguite = EseguiScript(*connessione, testi[i], opzioni.file[i]);
            uscita << QStringLiteral("%1: %2 istruzioni eseguite.")
                          .arg(QFileInfo(opzioni.file[i]).fileName())
                          .arg(eseguite)
                   << Qt::endl;
        }
        connessione->Chiudi();
        return 0;
    } catch (const Errore& errore) {
        errori << errore.testo() << Qt::endl;
        return 1;
    }
}
