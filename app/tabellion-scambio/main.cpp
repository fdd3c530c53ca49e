// tabellion-scambio: the exchange of tables without windows, for scheduled runs.
//   tabellion-scambio esporta|importa [-U user] [-P password] -S server -d database -c folder
//                     [-x schema folder] [table ...]
// The head of the connection string is the first record of Connetti.txt in the program folder;
// the schema folder is code 09 of Param.txt unless -x names one. With no table named, every
// table the schema folder offers is exchanged. Without -P the password is the database
// client's own (on PostgreSQL PGPASSWORD or ~/.pgpass), so that it stays off command lines.
//
// The rules of the menus hold: an "S" site (Istituto.txt) exports, an "I" site imports, and a
// site exchanges only once it has a code of its own. The arguments, the folders and the tables
// named are checked before anything is done. The messages go to the error stream, each naming
// its table and the file it is about; the tables done go to the output, one a line. The result
// is 0 when every table was done, 2 when a table was not, 1 when nothing was done (wrong
// arguments, a site that may not run this exchange, a refused connection).

#include "exchange/Export.h"
#include "exchange/Import.h"
#include "exchange/SitoScambio.h"
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

const QString Sorgente = QStringLiteral("tabellion-scambio");

const QString Uso = QStringLiteral(
    "Uso: tabellion-scambio esporta|importa [-U utente] [-P password] -S server -d database "
    "-c cartella [-x cartella degli schemi] [tabella ...]");

// A box of the modules, should one come, becomes lines on the error stream, headed by the table
// in hand.
class PiattaformaConsole : public Piattaforma {
public:
    explicit PiattaformaConsole(QTextStream& erroriDati)
        : errori(erroriDati) {}
    Risposta MostraMessaggio(const Messaggio& messaggio) override {
        if (!messaggio.sTesto.isEmpty())
            errori << sTabella << (sTabella.isEmpty() ? QString() : QStringLiteral(": "))
                   << (messaggio.sTitolo.isEmpty() ? QString()
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

    QString sTabella;

private:
    QTextStream& errori;
};

struct Opzioni {
    bool bImporta = false;
    AccessoDaRigaDiComando accesso;
    QString sCartella;
    QString sSchemi;
    QStringList tabelle;
};

Opzioni LeggiOpzioni(const QStringList& argomenti) {
    Opzioni opzioni;
    if (argomenti.isEmpty())
        throw Errore(Sorgente, Uso);
    const QString sVerbo = argomenti.first();
    if (sVerbo != QStringLiteral("esporta") && sVerbo != QStringLiteral("importa"))
        throw Errore(Sorgente, QStringLiteral("Comando sconosciuto: \"%1\".\n%2").arg(sVerbo, Uso));
    opzioni.bImporta = sVerbo == QStringLiteral("importa");
    LeggiOpzioniRigaDiComando(
        argomenti, 1, Sorgente, Uso, opzioni.accesso,
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
            Sorgente,
            QStringLiteral("Servono almeno il database (-d) e la cartella (-c).\n%1").arg(Uso));
    return opzioni;
}

// A folder that the run will list, read and write: its fault in words, or "".
QString DifettoCartella(const QString& sCartella, bool bScrittura) {
    const QFileInfo info(sCartella);
    if (!info.exists())
        return QStringLiteral("non esiste");
    if (!info.isDir())
        return QStringLiteral("non è una cartella");
    if (!info.isReadable() || !info.isExecutable())
        return QStringLiteral("non si può leggere");
    if (bScrittura && !info.isWritable())
        return QStringLiteral("non si può scrivere");
    return QString();
}

QString CartellaSchemi(const Opzioni& opzioni) {
    QString sCartella = opzioni.sSchemi;
    if (sCartella.isEmpty()) {
        Sessione::LeggiParam(Sorgente);
        sCartella = Sessione::sParam09;
    }
    if (sCartella.isEmpty())
        throw Errore(Sorgente, QStringLiteral("Cartella degli schemi non indicata (-x o codice 09 "
                                              "di Param.txt)."));
    sCartella = QDir::cleanPath(QDir(Sessione::CartellaProgramma()).absoluteFilePath(sCartella));
    const QString sDifetto = DifettoCartella(sCartella, false);
    if (!sDifetto.isEmpty())
        throw Errore(Sorgente, QStringLiteral("La cartella degli schemi %1 (-x o codice 09 di "
                                              "Param.txt) %2.")
                                   .arg(QDir::toNativeSeparators(sCartella), sDifetto));
    return sCartella;
}

QString CartellaScambio(const Opzioni& opzioni) {
    const QString sCartella = QDir::cleanPath(QDir(opzioni.sCartella).absolutePath());
    // Export writes its data files there, import its command logs.
    const QString sDifetto = DifettoCartella(sCartella, true);
    if (!sDifetto.isEmpty())
        throw Errore(Sorgente, QStringLiteral("La cartella %1 (-c) %2: %3.")
                                   .arg(QDir::toNativeSeparators(sCartella), sDifetto,
                                        opzioni.bImporta
                                            ? QStringLiteral("l'importazione vi legge i file dei "
                                                             "dati e vi scrive i registri dei "
                                                             "comandi")
                                            : QStringLiteral("l'esportazione vi scrive i file "
                                                             "dei dati")));
    return sCartella;
}

// The tables of the run, as the schema folder spells them: those named, each of which must be
// offered, or all those offered.
QStringList TabelleDellaCorsa(const Opzioni& opzioni, const QString& sSchemi) {
    const QStringList offerte =
        opzioni.bImporta ? Import::TabelleOfferte(sSchemi) : Export::TabelleDisponibili(sSchemi);
    if (offerte.isEmpty())
        throw Errore(
            Sorgente,
            QStringLiteral("La cartella degli schemi %1 non offre alcuna tabella "
                           "(nessun file <Tabella>Sch.xml): non c'è nulla da %2.")
                .arg(QDir::toNativeSeparators(sSchemi),
                     opzioni.bImporta ? QStringLiteral("importare") : QStringLiteral("esportare")));
    if (opzioni.tabelle.isEmpty())
        return offerte;
    QStringList tabelle;
    QStringList sconosciute;
    for (const QString& sNome : opzioni.tabelle) {
        qsizetype i = offerte.indexOf(sNome);
        for (qsizetype j = 0; i < 0 && j < offerte.size(); ++j)
            if (offerte[j].compare(sNome, Qt::CaseInsensitive) == 0)
                i = j;
        if (i < 0)
            sconosciute.append(sNome);
        else
            tabelle.append(offerte[i]);
    }
    if (!sconosciute.isEmpty())
        throw Errore(Sorgente,
                     QStringLiteral("Tabella sconosciuta: %1. La cartella degli schemi %2 offre "
                                    "solo: %3.")
                         .arg(sconosciute.join(QStringLiteral(", ")),
                              QDir::toNativeSeparators(sSchemi),
                              offerte.join(QStringLiteral(", "))));
    return tabelle;
}

// The rule of the menus: an "S" site exports, an "I" site imports.
void ControllaTipoSito(bool bImporta) {
    const QString sTipo = Sessione::LeggiTipoSito(Sorgente);
    const QString sFile =
        QDir::toNativeSeparators(Sessione::FileProgramma(QStringLiteral("Istituto.txt")));
    if (sTipo != QStringLiteral("I") && sTipo != QStringLiteral("S"))
        throw Errore(Sorgente, QStringLiteral("%1 dice \"%2\": deve dire il tipo del sito, \"I\" "
                                              "(un istituto, che importa) o \"S\" (che esporta).")
                                   .arg(sFile, sTipo));
    if (bImporta && sTipo == QStringLiteral("S"))
        throw Errore(Sorgente, QStringLiteral("Questo è un sito di tipo \"S\" (%1): esporta le sue "
                                              "tabelle e non ne importa. Importano i siti di tipo "
                                              "\"I\".")
                                   .arg(sFile));
    if (!bImporta && sTipo == QStringLiteral("I"))
        throw Errore(Sorgente,
                     QStringLiteral("Questo è un sito di tipo \"I\" (%1): importa le "
                                    "tabelle degli altri siti e non ne esporta. Esportano "
                                    "i siti di tipo \"S\".")
                         .arg(sFile));
}

// The line of a table not done: the table, its file and the words (of a box: lines joined).
QString RigaFallita(const QString& sTabella, const QString& sPercorso, const QString& sTitolo,
                    const QString& sMessaggio) {
    QString sParole = sMessaggio;
    sParole.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    return QStringLiteral("Tabella %1, file %2: %3%4")
        .arg(sTabella, QDir::toNativeSeparators(sPercorso),
             sTitolo.isEmpty() ? QString() : sTitolo + QStringLiteral(": "), sParole);
}

int Esegui(const QStringList& argomenti, QTextStream& uscita, QTextStream& errori) {
    PiattaformaConsole console(errori);
    ImpostaPiattaforma(&console);
    int iEsito = 0;
    try {
        // Everything that can be known without the database, before anything is done.
        const Opzioni opzioni = LeggiOpzioni(argomenti);
        const QString sSchemi = CartellaSchemi(opzioni);
        const QString sCartella = CartellaScambio(opzioni);
        const QStringList tabelle = TabelleDellaCorsa(opzioni, sSchemi);
        ControllaTipoSito(opzioni.bImporta);

        Sessione::cnn = Connessione::Apri(StringaDaConnetti(opzioni.accesso, Sorgente));
        const Connessione& cnn = *Sessione::cnn;
        Scambio::ControllaIdentita(cnn, Sorgente);

        int iFatte = 0;
        for (const QString& sTabella : tabelle) {
            console.sTabella = sTabella;
            // A table not done leaves its line among the errors, import or export alike.
            const auto annota = [&](bool bRiuscita, const auto& esito) {
                if (!bRiuscita)
                    errori << RigaFallita(sTabella, esito.sPercorso, esito.sTitolo,
                                          esito.sMessaggio)
                           << Qt::endl;
                return bRiuscita;
            };
            bool bFatta = false;
            if (opzioni.bImporta) {
                const Import::Esito esito =
                    Import::ImportaTabella(cnn, sTabella, sSchemi, sCartella);
                bFatta = annota(esito.bImportata, esito);
            } else {
                const Export::Esito esito =
                    Export::EsportaTabella(cnn, sTabella, sSchemi, sCartella);
                bFatta = annota(esito.bEsportata, esito);
            }
            if (bFatta) {
                ++iFatte;
                uscita << sTabella << Qt::endl;
            }
        }
        console.sTabella.clear();
        // A run that did not do every table is no success, and one that did none still less.
        if (iFatte < tabelle.size())
            iEsito = 2;
        if (iFatte == 0)
            errori << QStringLiteral("Nessuna tabella %1 su %2.")
                          .arg(opzioni.bImporta ? QStringLiteral("importata")
                                                : QStringLiteral("esportata"))
                          .arg(tabelle.size())
                   << Qt::endl;
        Sessione::ChiudiConnessione();
    } catch (const Errore& errore) {
        errori << errore.testo() << Qt::endl;
        Sessione::ChiudiConnessione();
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
