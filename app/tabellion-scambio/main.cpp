// tabellion-scambio: the exchange of tables without windows, for scheduled runs.
//   tabellion-scambio esporta|importa -U user -P password -S server -d database -c folder
//                     [-x schema folder] [table ...]
// The head of the connection string is the first record of Connetti.txt in the program folder;
// the schema folder is code 09 of Param.txt unless -x names one. With no table named, every
// table the schema folder offers is exchanged. The messages go to the error stream, the tables
// done to the output, one a line; the result is 0 when every table was done, else non-zero.

#include "exchange/Export.h"
#include "exchange/Import.h"
#include "session/Errore.h"
#include "session/LetturaLista.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/StringaConnessione.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

const QString Uso = QStringLiteral(
    "Uso: tabellion-scambio esporta|importa -U utente -P password -S server -d database "
    "-c cartella [-x cartella degli schemi] [tabella ...]");

// The boxes of the modules become lines on the error stream.
class PiattaformaConsole : public Piattaforma {
public:
    explicit PiattaformaConsole(QTextStream& erroriDati)
        : errori(erroriDati) {}
    Risposta MostraMessaggio(const Messaggio& messaggio) override {
        if (!messaggio.sTesto.isEmpty())
            errori << (messaggio.sTitolo.isEmpty() ? QString()
                                                   : messaggio.sTitolo + QStringLiteral(": "))
                   << messaggio.sTesto << Qt::endl;
        return Risposta::Ok;
    }
    QString ScegliFile(const SceltaFile&) override { return QString(); }
    QString ScegliCartella(const QString&, const QString&) override { return QString(); }
    int SceltaMenu(const QStringList&, const QPoint&) override { return 0; }
    void ApriGuida(const QString&) override {}
    qint64 AvviaProcesso(const QString&, const QStringList&) override { return 0; }
    void TerminaProcesso() override {}

private:
    QTextStream& errori;
};

struct Opzioni {
    QString sVerbo;
    QString sUtente;
    QString sPassword;
    QString sServer;
    QString sDatabase;
    QString sCartella;
    QString sSchemi;
    QStringList tabelle;
};

Opzioni LeggiOpzioni(const QStringList& argomenti) {
    const QString sorgente = QStringLiteral("tabellion-scambio");
    Opzioni opzioni;
    if (argomenti.isEmpty())
        throw Errore(sorgente, Uso);
    opzioni.sVerbo = argomenti.first();
    if (opzioni.sVerbo != QStringLiteral("esporta") && opzioni.sVerbo != QStringLiteral("importa"))
        throw Errore(sorgente,
                     QStringLiteral("Comando sconosciuto: \"%1\".\n%2").arg(opzioni.sVerbo, Uso));
    for (qsizetype i = 1; i < argomenti.size(); ++i) {
        const QString& argomento = argomenti[i];
        if (argomento.size() < 2 || argomento[0] != u'-') {
            opzioni.tabelle.append(argomento);
            continue;
        }
        QString valore = argomento.mid(2);
        if (valore.isEmpty()) {
            if (i + 1 >= argomenti.size())
                throw Errore(
                    sorgente,
                    QStringLiteral("Manca il valore dell'opzione %1.\n%2").arg(argomento, Uso));
            valore = argomenti[++i];
        }
        switch (argomento[1].unicode()) {
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
        case u'c':
            opzioni.sCartella = valore;
            break;
        case u'x':
            opzioni.sSchemi = valore;
            break;
        default:
            throw Errore(sorgente,
                         QStringLiteral("Opzione sconosciuta: %1.\n%2").arg(argomento, Uso));
        }
    }
    if (opzioni.sDatabase.isEmpty() || opzioni.sCartella.isEmpty())
        throw Errore(
            sorgente,
            QStringLiteral("Servono almeno il database (-d) e la cartella (-c).\n%1").arg(Uso));
    return opzioni;
}

QString CartellaSchemi(const Opzioni& opzioni) {
    QString sCartella = opzioni.sSchemi;
    if (sCartella.isEmpty()) {
        const QStringList record = LeggiLista(Sessione::FileProgramma(QStringLiteral("Param.txt")),
                                              QStringLiteral("tabellion-scambio"));
        for (const QString& riga : record) {
            if (riga.left(2) == QStringLiteral("09"))
                sCartella = riga.mid(3).trimmed();
        }
    }
    if (sCartella.isEmpty())
        throw Errore(QStringLiteral("tabellion-scambio"),
                     QStringLiteral("Cartella degli schemi non indicata (-x o codice 09 di "
                                    "Param.txt)."));
    return QDir(Sessione::CartellaProgramma()).absoluteFilePath(sCartella);
}

int Esegui(const QStringList& argomenti, QTextStream& uscita, QTextStream& errori) {
    PiattaformaConsole console(errori);
    ImpostaPiattaforma(&console);
    int iEsito = 0;
    try {
        const Opzioni opzioni = LeggiOpzioni(argomenti);
        const QString sSchemi = CartellaSchemi(opzioni);
        const bool bImporta = opzioni.sVerbo == QStringLiteral("importa");
        QStringList tabelle = opzioni.tabelle;
        if (tabelle.isEmpty())
            tabelle =
                bImporta ? Import::TabelleOfferte(sSchemi) : Export::TabelleDisponibili(sSchemi);
        const QStringList connetti =
            LeggiLista(Sessione::FileProgramma(QStringLiteral("Connetti.txt")),
                       QStringLiteral("tabellion-scambio"));
        Sessione::cnn = Connessione::Apri(
            ComponiStringaConnessione(connetti.value(0), opzioni.sServer, opzioni.sDatabase,
                                      opzioni.sUtente, opzioni.sPassword));
        Sessione::sParam09 = sSchemi;
        const QString sCartella = QDir(opzioni.sCartella).absolutePath();
        if (bImporta) {
            Sessione::sCartellaImport = sCartella;
            Import::TabelleImportate.clear();
            for (const QString& sTabella : tabelle) {
                if (Import::ImportaTabella(sTabella))
                    uscita << sTabella << Qt::endl;
                else
                    iEsito = 2;
            }
        } else {
            Sessione::sCartellaExport = sCartella;
            Export::TabelleEsportate.clear();
            Export::NumeroTabelle = 0;
            for (const QString& sTabella : tabelle) {
                if (Export::EsportaTabella(sTabella))
                    uscita << sTabella << Qt::endl;
                else
                    iEsito = 2;
            }
        }
        Sessione::cnn->Chiudi();
        Sessione::cnn.reset();
    } catch (const Errore& errore) {
        errori << errore.testo() << Qt::endl;
        iEsito = 1;
    }
    ImpostaPiattaforma(nullptr);
    return iEsito;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream uscita(stdout);
    QTextStream errori(stderr);
    return Esegui(app.arguments().mid(1), uscita, errori);
}
