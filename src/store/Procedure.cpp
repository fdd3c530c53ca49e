#include "Procedure.h"

#include "Backend.h"
#include "Connessione.h"
#include "StringaConnessione.h"
#include "session/Errore.h"
#include "session/Sessione.h"

#include <QEventLoop>
#include <QThread>
#include <memory>
#include <optional>

namespace {

const QString Sorgente = QStringLiteral("Procedure");

bool Spazio(QChar c) {
    return c == u' ' || c == u'\t';
}

struct NomeProcedura {
    const char* nome;
    const char* parametro;
    Procedura::Tipo tipo;
};

const NomeProcedura Procedure[] = {
    {"SP_MakeBackup", "@Destinazione", Procedura::Tipo::Backup},
    {"SP_Indicizza", "@Lingua", Procedura::Tipo::IndiceWeb},
};

// The whole connection string again, from its pairs: every value in double quotes, so that a
// value with ";", quotes or blanks at its ends reaches the other connection as it was.
QString StringaIntera(const StringaConnessione& stringa) {
    QStringList voci;
    for (const auto& [chiave, valore] : stringa.Voci()) {
        QString doppio = valore;
        doppio.replace(QStringLiteral("\""), QStringLiteral("\"\""));
        voci.append(chiave + QStringLiteral("=\"") + doppio + QLatin1Char('"'));
    }
    return voci.join(QLatin1Char(';'));
}

} // namespace

Procedura LeggiProcedura(const QString& sComando) {
    const qsizetype n = sComando.size();
    qsizetype i = 0;
    while (i < n && Spazio(sComando[i])) {
        ++i;
    }
    // The name runs up to the first blank: what is stuck to it belongs to the name.
    const qsizetype inizioNome = i;
    while (i < n && !Spazio(sComando[i])) {
        ++i;
    }
    const QString nome = sComando.mid(inizioNome, i - inizioNome);
    const NomeProcedura* trovata = nullptr;
    for (const NomeProcedura& procedura : Procedure) {
        if (nome.compare(QLatin1String(procedura.nome), Qt::CaseInsensitive) == 0) {
            trovata = &procedura;
        }
    }
    if (trovata == nullptr) {
        if (nome.isEmpty()) {
            throw Errore(Sorgente, QStringLiteral("Nessuna procedura indicata nel comando."));
        }
        throw Errore(Sorgente,
                     QStringLiteral("Impossibile trovare la stored procedure '%1'.").arg(nome));
    }
    while (i < n && Spazio(sComando[i])) {
        ++i;
    }
    if (i == n) {
        throw Errore(Sorgente,
                     QStringLiteral("La procedura '%1' prevede il parametro '%2', che "
                                    "non è stato specificato.")
                         .arg(QLatin1String(trovata->nome), QLatin1String(trovata->parametro)));
    }
    if (sComando[i] != u'\'') {
        throw Errore(
            Sorgente,
            QStringLiteral("Sintassi non corretta in prossimità di '%1'.").arg(sComando.mid(i)));
    }
    ++i;
    QString argomento;
    bool chiusa = false;
    while (i < n) {
        if (sComando[i] == u'\'') {
            if (i + 1 < n && sComando[i + 1] == u'\'') {
                argomento += u'\'';
                i += 2;
                continue;
            }
            ++i;
            chiusa = true;
            break;
        }
        argomento += sComando[i];
        ++i;
    }
    if (!chiusa) {
        throw Errore(Sorgente, QStringLiteral("Virgolette di chiusura mancanti dopo la stringa di "
                                              "caratteri '%1'.")
                                   .arg(argomento));
    }
    while (i < n && Spazio(sComando[i])) {
        ++i;
    }
    if (i < n) {
        throw Errore(
            Sorgente,
            QStringLiteral("Sintassi non corretta in prossimità di '%1'.").arg(sComando.mid(i)));
    }
    return Procedura{trovata->tipo, argomento};
}

void EseguiProcedura(const Connessione& connessione, const QString& sComando) {
    const Procedura procedura = LeggiProcedura(sComando);
    const QString stringa = StringaIntera(connessione.Stringa());
    // Resolved here, in the caller's thread: the other thread only reads it.
    Sessione::CartellaProgramma();

    std::optional<Errore> errore;
    std::unique_ptr<QThread> lavoro(QThread::create([&procedura, &stringa, &errore] {
        try {
            std::shared_ptr<Connessione> propria = Connessione::Apri(stringa);
            const Backend& backend = propria->backend();
            if (procedura.tipo == Procedura::Tipo::Backup) {
                backend.Backup(propria->Db(), propria->Stringa(), procedura.sArgomento);
            } else {
                backend.IndiceWeb(propria->Db(), procedura.sArgomento);
            }
            propria->Chiudi();
        } catch (const Errore& e) {
            errore = e;
        } catch (const std::exception& e) {
            errore = Errore(Sorgente, QString::fromUtf8(e.what()));
        } catch (...) {
            errore = Errore(Sorgente, QStringLiteral("Errore sconosciuto durante la procedura."));
        }
    }));

    // The caller waits here, while its windows go on being painted.
    QEventLoop attesa;
    QObject::connect(lavoro.get(), &QThread::finished, &attesa, &QEventLoop::quit,
                     Qt::QueuedConnection);
    lavoro->start();
    if (!lavoro->isFinished()) {
        attesa.exec();
    }
    lavoro->wait();
    if (errore) {
        throw *errore;
    }
}
