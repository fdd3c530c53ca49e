#include "StrumentoSql.h"

#include "Errore.h"
#include "RigaDiComando.h"
#include "Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/IdentitaSito.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QStringDecoder>
#include <optional>

namespace {

const QString Sorgente = QStringLiteral("tabellion-sql");

struct Opzioni {
    AccessoDaRigaDiComando accesso;
    QStringList file;
    bool bCrea = false;
    bool bAiuto = false;
    IdentitaSito identita;
    bool bIdentita = false; // one of its options was given
    RuoliSito ruoli;
};

const QString Uso = QStringLiteral(
    "Uso: tabellion-sql -U utente -P password -S server -d database -i file.sql [-i altro.sql]\n"
    "     tabellion-sql --crea --codice CODICE [--descrizione TESTO] --id-inizio N --id-fine M\n"
    "         [--proprietario RUOLO] [--gruppo RUOLO] -U utente -P password -S server\n"
    "         -d database -i schema.sql [-i altro.sql]\n"
    "     tabellion-sql --help");

const QString Aiuto = QStringLiteral(
    "Esegue script SQL sul database di un sito con il login dato, ciascuno in una transazione:\n"
    "se un'istruzione fallisce non resta nulla dello script, e l'errore (file, riga, parole del\n"
    "server) va sull'errore standard. Il tipo di server viene da Connetti.txt della cartella del\n"
    "programma (Provider=QSQLITE o Provider=QPSQL) ed è detto per primo; uno script, o una sua\n"
    "parte, che comincia con la riga \"-- Server: SQLite\" o \"-- Server: PostgreSQL\" vale solo\n"
    "per quel server, e uno script che non ha nulla per il server in uso è rifiutato.\n"
    "\n"
    "  -U utente, -P password   il login (con PostgreSQL, per --crea, quello dell'amministratore)\n"
    "  -S server                SQLite: la cartella dei file dei database; PostgreSQL: host o\n"
    "                           host:porta\n"
    "  -d database              il nome del database\n"
    "  -i file.sql              uno script; più -i si eseguono in ordine\n"
    "\n"
    "  --crea                   crea prima il database del sito, poi esegue gli script (il primo\n"
    "                           è lo schema) e scrive in Config l'identità del sito. Se qualcosa\n"
    "                           fallisce il database creato è tolto, e il comando si può "
    "ripetere.\n"
    "  --codice CODICE          il codice del sito (da 1 a 10 lettere, cifre, \"_\" o \"-\"),\n"
    "                           timbrato sulle righe che il sito crea: due siti non devono mai\n"
    "                           avere lo stesso codice. Obbligatorio con --crea.\n"
    "  --descrizione TESTO      la descrizione del sito (facoltativa)\n"
    "  --id-inizio N, --id-fine M\n"
    "                           l'intervallo delle chiavi del sito (ID_Start, ID_End; 1 <= N <= M\n"
    "                           <= 2147483647): ogni chiave generata dal database vi cade. Gli\n"
    "                           intervalli di due siti non devono sovrapporsi. Obbligatori con\n"
    "                           --crea.\n"
    "  --proprietario RUOLO     solo PostgreSQL: il ruolo, senza login, proprietario del database\n"
    "                           e di tabelle, viste, funzioni e sequenze (predefinito: %1).\n"
    "                           Deve esistere, e il login di -U deve esserne membro.\n"
    "  --gruppo RUOLO           solo PostgreSQL: il gruppo dei login degli archivisti\n"
    "                           (predefinito: %2). Deve esistere e non essere membro del\n"
    "                           proprietario. Riceve solo ciò che serve al programma: "
    "connettersi,\n"
    "                           leggere e scrivere le righe di tabelle e viste (di Config solo\n"
    "                           Valore e DataValore), usare le sequenze, ed eseguire le due\n"
    "                           funzioni con cui l'import sospende i trigger di una tabella e ne\n"
    "                           riallinea le chiavi con i diritti del proprietario. Nessun\n"
    "                           archivista può cambiare o cancellare tabelle o database.\n"
    "\n"
    "Con PostgreSQL, se il login può agire come il proprietario del database, gli script sono\n"
    "eseguiti come il proprietario (SET ROLE): ciò che creano è suo. L'aggiornamento dello schema\n"
    "(alter.sql) va quindi eseguito con il login dell'amministratore.\n"
    "Il risultato è 0 se tutto è riuscito, 1 altrimenti.");

// The options that take a value and have a long name: taken out of the arguments, so that the
// rest is read as the other tools read theirs.
QStringList LeggiOpzioniLunghe(const QStringList& argomenti, Opzioni& opzioni) {
    const QStringList lunghe = {QStringLiteral("--codice"),       QStringLiteral("--descrizione"),
                                QStringLiteral("--id-inizio"),    QStringLiteral("--id-fine"),
                                QStringLiteral("--proprietario"), QStringLiteral("--gruppo")};
    QStringList resto;
    for (qsizetype i = 0; i < argomenti.size(); ++i) {
        QString nome = argomenti[i];
        std::optional<QString> valore;
        const qsizetype uguale = nome.indexOf(u'=');
        if (nome.startsWith(QStringLiteral("--")) && uguale > 0) {
            valore = nome.mid(uguale + 1);
            nome = nome.left(uguale);
        }
        if (!lunghe.contains(nome)) {
            resto.append(argomenti[i]);
            continue;
        }
        if (!valore) {
            if (i + 1 >= argomenti.size()) {
                throw Errore(Sorgente,
                             QStringLiteral("Manca il valore dell'opzione %1.\n%2").arg(nome, Uso));
            }
            valore = argomenti[++i];
        }
        const auto numero = [&]() {
            bool bNumero = false;
            const qint64 lNumero = valore->trimmed().toLongLong(&bNumero);
            if (!bNumero) {
                throw Errore(
                    Sorgente,
                    QStringLiteral("%1 vuole un numero intero, non \"%2\".").arg(nome, *valore));
            }
            return lNumero;
        };
        if (nome == QStringLiteral("--codice")) {
            opzioni.identita.sCodice = valore->trimmed();
        } else if (nome == QStringLiteral("--descrizione")) {
            opzioni.identita.sDescrizione = valore->trimmed();
        } else if (nome == QStringLiteral("--id-inizio")) {
            opzioni.identita.lInizio = numero();
        } else if (nome == QStringLiteral("--id-fine")) {
            opzioni.identita.lFine = numero();
        } else if (nome == QStringLiteral("--proprietario")) {
            opzioni.ruoli.sProprietario = valore->trimmed();
            if (opzioni.ruoli.sProprietario.isEmpty()) {
                throw Errore(Sorgente, QStringLiteral("--proprietario vuole il nome di un ruolo."));
            }
            continue;
        } else {
            opzioni.ruoli.sGruppo = valore->trimmed();
            if (opzioni.ruoli.sGruppo.isEmpty()) {
                throw Errore(Sorgente, QStringLiteral("--gruppo vuole il nome di un ruolo."));
            }
            continue;
        }
        opzioni.bIdentita = true;
    }
    return resto;
}

Opzioni LeggiOpzioni(const QStringList& argomenti) {
    Opzioni opzioni;
    if (argomenti.contains(QStringLiteral("-h")) || argomenti.contains(QStringLiteral("--help"))) {
        opzioni.bAiuto = true;
        return opzioni;
    }
    const QStringList resto = LeggiOpzioniLunghe(argomenti, opzioni);
    LeggiOpzioniRigaDiComando(
        resto, 0, Sorgente, Uso, opzioni.accesso,
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
            Sorgente,
            QStringLiteral("Servono almeno il database (-d) e uno script (-i).\n%1").arg(Uso));
    }
    if (!opzioni.bCrea && (opzioni.bIdentita || !opzioni.ruoli.Predefiniti())) {
        throw Errore(Sorgente,
                     QStringLiteral("--codice, --descrizione, --id-inizio, --id-fine, "
                                    "--proprietario e --gruppo valgono solo con --crea.\n%1")
                         .arg(Uso));
    }
    if (opzioni.bCrea) {
        const QString errore = ErroreIdentita(opzioni.identita);
        if (!errore.isEmpty()) {
            throw Errore(Sorgente, QStringLiteral("--crea vuole l'identità del sito: --codice, "
                                                  "--id-inizio e --id-fine (--descrizione a "
                                                  "scelta).\n%1")
                                       .arg(errore));
        }
    }
    return opzioni;
}

QString LeggiScript(const QString& sPercorso) {
    QFile file(sPercorso);
    if (!QFileInfo(sPercorso).isFile()) {
        throw Errore(Sorgente, QStringLiteral("File non trovato: %1").arg(sPercorso),
                     ErroriPiattaforma::FileNonTrovato);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        throw Errore(
            Sorgente,
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

// True once the scripts have made the table Config (a failed read changes nothing: the
// connection is not in a transaction here).
bool HaConfig(const Connessione& connessione) {
    QSqlQuery prova(connessione.Db());
    return prova.exec(QStringLiteral("SELECT COUNT(*) FROM Config"));
}

// The scripts on the database, and for a new site its identity and its rights.
void Esegui(const Opzioni& opzioni, const QString& sStringa, const QStringList& testi,
            QTextStream& uscita) {
    const std::shared_ptr<Connessione> connessione = Connessione::Apri(sStringa);
    const Backend& backend = connessione->backend();
    backend.AgisciDaProprietario(connessione->Db());
    bool bIdentitaScritta = false;
    for (qsizetype i = 0; i < opzioni.file.size(); ++i) {
        const int eseguite = EseguiScript(*connessione, testi[i], opzioni.file[i]);
        uscita << QStringLiteral("%1: %2 istruzioni eseguite.")
                      .arg(QFileInfo(opzioni.file[i]).fileName())
                      .arg(eseguite)
               << Qt::endl;
        // The identity goes in as soon as Config stands, so that the rows of later scripts
        // carry the site's code and keys.
        if (opzioni.bCrea && !bIdentitaScritta && HaConfig(*connessione)) {
            ScriviIdentita(*connessione, opzioni.identita);
            bIdentitaScritta = true;
        }
    }
    if (opzioni.bCrea) {
        if (!bIdentitaScritta) {
            throw Errore(Sorgente, QStringLiteral("Gli script non hanno creato la tabella Config: "
                                                  "il primo script di --crea è lo schema."));
        }
        // Again at the end: a later script may have written its own.
        ScriviIdentita(*connessione, opzioni.identita);
        backend.ConcediDiritti(connessione->Db(), opzioni.ruoli);
        uscita << QStringLiteral("Sito %1, chiavi da %2 a %3.")
                      .arg(opzioni.identita.sCodice)
                      .arg(opzioni.identita.lInizio)
                      .arg(opzioni.identita.lFine)
               << Qt::endl;
    }
    connessione->Chiudi();
}

} // namespace

int EseguiStrumentoSql(const QStringList& argomenti, QTextStream& uscita, QTextStream& errori) {
    try {
        const Opzioni opzioni = LeggiOpzioni(argomenti);
        if (opzioni.bAiuto) {
            uscita << Uso << QStringLiteral("\n\n")
                   << Aiuto.arg(RuoliSito::ProprietarioPredefinito(),
                                RuoliSito::GruppoPredefinito())
                   << Qt::endl;
            return 0;
        }
        const QString stringa = StringaDaConnetti(opzioni.accesso, Sorgente);
        const StringaConnessione letta = StringaConnessione::Leggi(stringa);
        const Backend& backend = Connessione::BackendDi(letta);
        uscita << QStringLiteral("Server: %1.").arg(backend.Destinazione(letta)) << Qt::endl;
        // Every script read, and found to be for this server, before the database is touched:
        // a wrong path or a script of another server changes nothing.
        QStringList testi;
        for (const QString& file : opzioni.file) {
            testi.append(ScriptDelServer(LeggiScript(file), backend.Descrizione(),
                                         QFileInfo(file).fileName()));
        }
        if (!opzioni.bCrea) {
            Esegui(opzioni, stringa, testi, uscita);
            return 0;
        }
        backend.CreaDatabaseSito(letta, opzioni.ruoli);
        try {
            Esegui(opzioni, stringa, testi, uscita);
        } catch (const Errore& errore) {
            // No half-made database stays behind: the command can be run again.
            QString esito = QStringLiteral("Il database non è stato creato: si può ripetere il "
                                           "comando.");
            try {
                backend.EliminaDatabase(letta);
            } catch (const Errore& rimozione) {
                esito = QStringLiteral("Il database creato a metà non si è potuto togliere: %1")
                            .arg(rimozione.descrizione());
            }
            throw Errore(errore.sorgente(), errore.descrizione() + QLatin1Char('\n') + esito);
        }
        return 0;
    } catch (const Errore& errore) {
        errori << errore.testo() << Qt::endl;
        return 1;
    }
}
