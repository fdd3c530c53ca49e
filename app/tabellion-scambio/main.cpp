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
#include "session/Piattaforma.h"
#include "session/RigaDiComando.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

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
    AccessoDaRigaDiComando accesso;
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
    LeggiOpzioniRigaDiComando(
        argomenti, 1, sorgente, Uso, opzioni.accesso,
        [&opzioni](QChar lettera, const QString& valore) {
            if (lettera == u'c')
                opzioni.sCartella = valore;
            else if (lettera == u'x')
                opzioni.sSchemi = valore;
            else
                return false;
            return true;
        },
        [&opzioni](const QString& tabella) {
            opzioni.tabelle.append(tabella);
            return true;
        });
    if (opzioni.accesso.sDatabase.isEmpty() || opzioni.sCartella.isEmpty())
        throw Errore(
            sorgente,
            QStringLiteral("Servono almeno il database (-d) e la cartella (-c).\n%1").arg(Uso));
    return opzioni;
}

QString CartellaSchemi(const Opzioni& opzioni) {
    QString sCartella = opzioni.sSchemi;
    if (sCartella.isEmpty()) {
        Sessione::LeggiParam(QStringLiteral("tabellion-scambio"));
        sCartella = Sessione::sParam09;
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
        Sessione::cnn = Connessione::Apri(
            StringaDaConnetti(opzioni.accesso, QStringLiteral("tabellion-scambio")));
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
