#include "StrumentoSql.h"

#include "Errore.h"
#include "RigaDiComando.h"
#include "Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

struct Opzioni {
    AccessoDaRigaDiComando accesso;
    QStringList file;
    bool bCrea = false;
};

const QString Uso = QStringLiteral(
    "Uso: tabellion-sql -U utente -P password -S server -d database -i file.sql [-i altro.sql] "
    "[--crea]");

Opzioni LeggiOpzioni(const QStringList& argomenti) {
    const QString sorgente = QStringLiteral("tabellion-sql");
    if (argomenti.contains(QStringLiteral("-h")) || argomenti.contains(QStringLiteral("--help"))) {
        throw Errore(sorgente, Uso);
    }
    Opzioni opzioni;
    LeggiOpzioniRigaDiComando(
        argomenti, 0, sorgente, Uso, opzioni.accesso,
        [&opzioni](QChar lettera, const QString& valore) {
            if (lettera != u'i') {
                return false;
            }
            opzioni.file.append(valore);
            return true;
        },
        [&opzioni](const QString& testo) {
            opzioni.bCrea = opzioni.bCrea || testo == QStringLiteral("--crea");
            return testo == QStringLiteral("--crea");
        });
    if (opzioni.accesso.sDatabase.isEmpty() || opzioni.file.isEmpty()) {
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
        const QString stringa = StringaDaConnetti(opzioni.accesso, QStringLiteral("tabellion-sql"));
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
