#include "Import.h"
#include "Export.h"
#include "LetturaDati.h"
#include "SitoScambio.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "session/Utility.h"
#include "store/Backend.h"
#include "store/Caricamento.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"
#include "store/TestoErrore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QVector>
#include <QXmlStreamReader>
#include <map>
#include <memory>
#include <vector>

namespace Import {

namespace {

const QByteArray FineTabella = QByteArrayLiteral("</table>");

// A table or column name goes into the statement's text: only plain names are let in.
void ControllaNome(const QString& sNome) {
    static const QRegularExpression semplice(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    if (!semplice.match(sNome).hasMatch())
        Fallisci(QStringLiteral("Nome non valido: \"%1\"").arg(sNome));
}

QString PercorsoIn(const QString& sCartella, const QString& sNome) {
    return QDir(sCartella).filePath(sNome);
}

QByteArray Attributo(const QString& s) {
    QString t = s;
    t.replace(QLatin1Char('&'), QStringLiteral("&amp;"));
    t.replace(QLatin1Char('<'), QStringLiteral("&lt;"));
    t.replace(QLatin1Char('"'), QStringLiteral("&quot;"));
    return t.toUtf8();
}

// The command log <table>Sql.xml, well formed whenever a command may run: commands are
// gathered, then written with the closing tag and flushed before the server sees them; the
// closing tag is overwritten by the next ones. Time stays linear in the commands.
class LogComandi {
public:
    LogComandi(const QString& sPercorso, const QString& sTabella)
        : file(sPercorso) {
        // Whatever stands under the log's name goes, a link included, which is removed and
        // never followed: the log is always a new file of its own, and a name taken again
        // meanwhile fails the table.
        QFile::remove(sPercorso);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            Fallisci(QStringLiteral("Impossibile scrivere il file %1: %2")
                         .arg(QDir::toNativeSeparators(sPercorso), file.errorString()));
        attesa = QByteArray(Export::DichiarazioneXml) + QByteArrayLiteral("<table name=\"") +
                 Attributo(sTabella) + QByteArrayLiteral("\">");
        Scarica();
    }

    void ComandoTabella(const QString& sComando) {
        attesa += "\r\n\t<tablecommand>";
        AggiungiTesto(sComando);
        attesa += "</tablecommand>";
        Scarica();
    }
    // An insert, held until the next Scarica; gives back where the log ends after it.
    qint64 Inserimento(const QString& sComando) {
        attesa += "\r\n\t<record>\r\n\t\t<insert>";
        AggiungiTesto(sComando);
        attesa += "</insert>\r\n\t</record>";
        return lCorpo + attesa.size();
    }
    // What is held goes to the file, which is well formed again.
    void Scarica() {
        if (!file.seek(lCorpo) || file.write(attesa) != attesa.size() ||
            file.write(FineTabella) != FineTabella.size() || !file.flush())
            Guasto();
        lCorpo += attesa.size();
        attesa.clear();
    }
    // The log ends at lFine: the commands after it never ran.
    void TroncaA(qint64 lFine) {
        attesa.clear();
        lCorpo = lFine;
        Scarica();
        if (!file.resize(lCorpo + FineTabella.size()))
            Guasto();
    }
    void Chiudi() {
        attesa += "\r\n";
        Scarica();
        file.close();
    }

private:
    void AggiungiTesto(const QString& sTesto) {
        const QByteArray utf8 = sTesto.toUtf8();
        const char* inizio = utf8.constData();
        const char* fine = inizio + utf8.size();
        const char* corsa = inizio;
        for (const char* p = inizio; p < fine; ++p) {
            const char* sostituto = nullptr;
            switch (*p) {
            case '&':
                sostituto = "&amp;";
                break;
            case '<':
                sostituto = "&lt;";
                break;
            case '>':
                sostituto = "&gt;";
                break;
            case '\r':
                sostituto = "&#13;";
                break;
            default:
                continue;
            }
            attesa.append(corsa, p - corsa);
            attesa.append(sostituto);
            corsa = p + 1;
        }
        attesa.append(corsa, fine - corsa);
    }
    [[noreturn]] void Guasto() {
        Fallisci(QStringLiteral("Impossibile scrivere il file %1: %2")
                     .arg(QDir::toNativeSeparators(file.fileName()), file.errorString()));
    }

    QFile file;
    QByteArray attesa;
    qint64 lCorpo = 0;
};

struct Schema {
    QString sDatafile;
    int iVersione = 0;
    int iCampi = 0;
    QStringList nomi;
    QVector<int> tipi;
    QVector<int> pk;
};

Schema LeggiSchema(const QString& sPercorso) {
    QFile file(sPercorso);
    if (!file.open(QIODevice::ReadOnly))
        Fallisci(QStringLiteral("File non trovato: %1").arg(QDir::toNativeSeparators(sPercorso)));
    QXmlStreamReader xml(&file);
    Schema schema;
    bool bRadice = false;
    bool bStru = false;
    int iProfondita = 0;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            ++iProfondita;
            if (!bRadice) {
                bRadice = true;
                schema.sDatafile = xml.attributes().value(QStringLiteral("datafile")).toString();
                schema.iVersione =
                    Intero(xml.attributes().value(QStringLiteral("version")).toString(), "version");
            } else if (iProfondita == 2 && xml.name() == QStringLiteral("stru") && !bStru) {
                bStru = true;
                schema.iCampi = Intero(
                    xml.attributes().value(QStringLiteral("fieldcount")).toString(), "fieldcount");
            } else if (iProfondita == 3 && bStru && xml.name() == QStringLiteral("field")) {
                const QString sTipo = xml.attributes().value(QStringLiteral("type")).toString();
                const QString sPk = xml.attributes().value(QStringLiteral("pk")).toString();
                const QString sNome = xml.readElementText().trimmed();
                --iProfondita;
                ControllaNome(sNome);
                schema.nomi.append(sNome);
                schema.tipi.append(sTipo.isEmpty() ? 0 : Intero(sTipo, QStringLiteral("type")));
                schema.pk.append(sPk.isEmpty() ? 0 : Intero(sPk, QStringLiteral("pk")));
            }
        } else if (token == QXmlStreamReader::EndElement) {
            --iProfondita;
        }
    }
    if (xml.hasError())
        Fallisci(QStringLiteral("%1: %2 (riga %3)")
                     .arg(QDir::toNativeSeparators(sPercorso), xml.errorString())
                     .arg(xml.lineNumber()));
    if (!bStru)
        Fallisci(QStringLiteral("Lo schema %1 non ha l'elemento stru")
                     .arg(QDir::toNativeSeparators(sPercorso)));
    if (schema.nomi.size() > schema.iCampi + 1)
        Fallisci(QStringLiteral("Indice non compreso nell'intervallo"));
    if (schema.sDatafile.isEmpty())
        Fallisci(QStringLiteral("Lo schema %1 non indica il file dei dati")
                     .arg(QDir::toNativeSeparators(sPercorso)));
    return schema;
}

struct Config {
    double dVersione = 0;
    QString sCodice;
};

Config LeggiConfig(const Connessione& connessione) {
    QSqlQuery query(connessione.Db());
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT Versione, Code FROM Config")))
        Fallisci(TestoErrore(query.lastError()));
    if (!query.next())
        Fallisci(QStringLiteral("La tabella Config è vuota"));
    return {query.value(0).toDouble(), query.value(1).toString()};
}

// A step that may fail without harm (a refused switch): run within a savepoint, so that its
// failure does not spoil the table's transaction.
void Tollerato(const QSqlDatabase& db, const std::function<void()>& passo) {
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("SAVEPOINT tabellion_import")))
        Fallisci(TestoErrore(query.lastError()));
    try {
        passo();
        query.exec(QStringLiteral("RELEASE SAVEPOINT tabellion_import"));
    } catch (const Errore&) {
        query.exec(QStringLiteral("ROLLBACK TO SAVEPOINT tabellion_import"));
        query.exec(QStringLiteral("RELEASE SAVEPOINT tabellion_import"));
    }
}

// A field's value: its text goes at the end of the logged command (quotes included) and its
// value to be bound is given back. A value no server would take leaves its words in sErrore,
// raised once the command is logged.
QVariant ValoreCampo(int iTipo, bool bNull, const QString& sTesto, QString& sComando,
                     QString& sErrore) {
    if (bNull) {
        sComando += QStringLiteral("null");
        return QVariant();
    }
    const QString sNonNullo = sTesto.isNull() ? QStringLiteral("") : sTesto;
    if (iTipo == 5 || iTipo == 131) {
        QString sPunto = sNonNullo;
        sPunto.replace(QLatin1Char(','), QLatin1Char('.'));
        sComando += sPunto;
        const QString sValore = sPunto.trimmed();
        bool ok = false;
        sValore.toDouble(&ok);
        if (!ok && sErrore.isEmpty())
            sErrore = QStringLiteral("Valore numerico non valido: \"%1\"").arg(sPunto);
        return sValore;
    }
    if (iTipo == 135) {
        sComando += QStringLiteral("Convert(datetime,'");
        QVariant valore;
        if (DataSqlCanonica(sNonNullo)) {
            sComando += sNonNullo;
            valore = sNonNullo;
        } else if (IsDate(sNonNullo)) {
            const QString sData = DataSql(sNonNullo);
            sComando += sData;
            valore = sData;
        } else {
            sComando += sNonNullo;
            if (sErrore.isEmpty())
                sErrore = QStringLiteral("Data non valida: \"%1\"").arg(sNonNullo);
        }
        sComando += QStringLiteral("',120)");
        return valore;
    }
    sComando += QLatin1Char('\'');
    if (sNonNullo.contains(QLatin1Char('\''))) {
        QString sDoppio = sNonNullo;
        sDoppio.replace(QLatin1Char('\''), QStringLiteral("''"));
        sComando += sDoppio;
    } else {
        sComando += sNonNullo;
    }
    sComando += QLatin1Char('\'');
    return sNonNullo;
}

void EseguiPreparata(QSqlQuery& query, const QVariantList& valori) {
    for (int i = 0; i < valori.size(); ++i)
        query.bindValue(i, valori[i]);
    if (!query.exec())
        Fallisci(TestoErrore(query.lastError()));
}

// The rows of one set of columns, and the text that opens their logged commands.
struct Destinazione {
    std::unique_ptr<Caricamento> caricamento;
    QString sInizioLog;
};

// False when the table is refused before anything is touched (versions that differ, a site
// without identity, a file of the site's own code or of none): the words are in the outcome.
bool Importa(const Connessione* cnn, const QString& sTabella, const QString& sCartellaSchemi,
             const QString& sCartellaDati, const Avanzamento& avanzamento, Esito& esito) {
    const auto rifiuta = [&esito](const QString& sMessaggio) {
        esito.sTitolo = QStringLiteral("Attenzione");
        esito.sMessaggio = sMessaggio;
        return false;
    };
    esito.sPercorso = PercorsoIn(sCartellaSchemi, sTabella + QStringLiteral("Sch.xml"));
    ControllaNome(sTabella);
    const Schema schema = LeggiSchema(esito.sPercorso);
    if (!cnn || !cnn->Aperta())
        Fallisci(QStringLiteral("Nessuna connessione al database"));
    const Connessione& connessione = *cnn;
    const Config config = LeggiConfig(connessione);
    if (CodiceProvvisorio(config.sCodice))
        return rifiuta(Scambio::MessaggioSenzaIdentita(config.sCodice));

    const QString sPercorsoDati = PercorsoIn(sCartellaDati, schema.sDatafile);
    esito.sPercorso = sPercorsoDati;
    const LettoreDati::Testa testa = LettoreDati::LeggiTesta(sPercorsoDati);
    const QString sCode = testa.sCode;
    const int iVersioneFile = Intero(testa.sVersione, QStringLiteral("version"));

    if (schema.iVersione != iVersioneFile || config.dVersione != schema.iVersione)
        return rifiuta(QStringLiteral("Versioni incompatibili tra schema file [%1], Data File "
                                      "[%2] e Database [%3]")
                           .arg(schema.iVersione)
                           .arg(iVersioneFile)
                           .arg(QString::number(config.dVersione)));
    if (sCode.isEmpty())
        Fallisci(QStringLiteral("Il file %1 non indica il codice del sito")
                     .arg(QDir::toNativeSeparators(sPercorsoDati)));
    // The import replaces the rows of the file's code: never those of the site itself, nor
    // those of a code that names no site.
    if (sCode.trimmed().compare(config.sCodice.trimmed(), Qt::CaseInsensitive) == 0)
        return rifiuta(Scambio::FileDelSitoStesso(sPercorsoDati, sCode));
    if (CodiceProvvisorio(sCode))
        return rifiuta(Scambio::FileDiSitoSenzaIdentita(sPercorsoDati, sCode));

    LogComandi log(PercorsoIn(sCartellaDati, sTabella + QStringLiteral("Sql.xml")), sTabella);
    QSqlDatabase db = connessione.Db();
    const Backend& backend = connessione.backend();
    // One load per set of columns; records of another set send the rows held first, so that
    // rows reach the table in the file's order.
    std::map<std::vector<int>, Destinazione> destinazioni;
    if (!db.transaction())
        Fallisci(TestoErrore(db.lastError()));
    try {
        log.ComandoTabella(QStringLiteral("SET IDENTITY_INSERT ") + sTabella +
                           QStringLiteral(" ON"));
        // Explicit keys go in on every backend the program knows: nothing to run here.
        log.ComandoTabella(QStringLiteral("ALTER TABLE ") + sTabella +
                           QStringLiteral(" DISABLE TRIGGER ALL"));
        Tollerato(db, [&] { backend.SospendiTrigger(db, sTabella); });

        log.ComandoTabella(QStringLiteral("Delete From ") + sTabella +
                           QStringLiteral(" Where \"Code\" = '") + sCode + QLatin1Char('\''));
        {
            QSqlQuery cancella(db);
            cancella.prepare(QStringLiteral("DELETE FROM ") + sTabella +
                             QStringLiteral(" WHERE Code = ?"));
            EseguiPreparata(cancella, {sCode});
        }

        const QString sCodeLog = QLatin1Char('\'') + sCode + QLatin1Char('\'');
        const QString sCodeLogFine = QStringLiteral(", ") + sCodeLog + QStringLiteral(") ");
        Destinazione* attuale = nullptr;
        std::vector<int> slotAttuali;
        std::vector<int> slot;
        std::vector<qint64> fineLog; // where the log ends after each row held
        QVariantList valori;
        QString sComando;
        const auto invia = [&] {
            if (!attuale || attuale->caricamento->InAttesa() == 0)
                return;
            const Caricamento::Rifiuto rifiuto = attuale->caricamento->Invia();
            if (rifiuto.iRiga >= 0) {
                // The refused command is the log's last one.
                log.TroncaA(fineLog[static_cast<size_t>(rifiuto.iRiga)]);
                Fallisci(rifiuto.sErrore);
            }
            fineLog.clear();
        };

        LettoreDati lettore(sPercorsoDati, schema.nomi.size(), testa.lInizioCorpo);
        BloccoLetto blocco;
        qint64 lRecord = 0;
        while (lettore.Prossimo(blocco)) {
            size_t iCampo = 0;
            for (const size_t iFine : blocco.fineRecord) {
                slot.clear();
                for (size_t i = iCampo; i < iFine; ++i)
                    slot.push_back(blocco.campi[i].iSlot);
                if (!attuale || slot != slotAttuali) {
                    invia();
                    Destinazione& destinazione = destinazioni[slot];
                    if (!destinazione.caricamento) {
                        QStringList colonne;
                        QStringList colonneLog;
                        for (const int i : slot) {
                            colonne.append(schema.nomi[i]);
                            colonneLog.append(QLatin1Char('"') + schema.nomi[i] + QLatin1Char('"'));
                        }
                        colonne.append(QStringLiteral("Code"));
                        colonneLog.append(QStringLiteral("\"Code\""));
                        destinazione.caricamento = backend.ApriCaricamento(db, sTabella, colonne);
                        // Every command is in the log before its row reaches the server.
                        destinazione.caricamento->PrimaDiInviare([&log] { log.Scarica(); });
                        destinazione.sInizioLog =
                            QStringLiteral("Insert into ") + sTabella + QStringLiteral(" (") +
                            colonneLog.join(QStringLiteral(", ")) + QStringLiteral(") Values (");
                    }
                    attuale = &destinazione;
                    slotAttuali = slot;
                }
                sComando.resize(0);
                sComando += attuale->sInizioLog;
                valori.clear();
                QString sErrore;
                for (size_t i = iCampo; i < iFine; ++i) {
                    const CampoLetto& campo = blocco.campi[i];
                    if (i > iCampo)
                        sComando += QStringLiteral(", ");
                    valori.append(ValoreCampo(schema.tipi[campo.iSlot], campo.bNull, campo.sTesto,
                                              sComando, sErrore));
                }
                sComando += iFine > iCampo ? sCodeLogFine : sCodeLog + QStringLiteral(") ");
                valori.append(sCode);
                iCampo = iFine;
                fineLog.push_back(log.Inserimento(sComando));
                if (!sErrore.isEmpty()) {
                    // A value no server would take: the rows before it are sent, then the
                    // table fails on this command, the log's last.
                    fineLog.pop_back();
                    invia();
                    log.Scarica();
                    Fallisci(sErrore);
                }
                attuale->caricamento->Aggiungi(valori);
                if (attuale->caricamento->Pieno())
                    invia();
                ++lRecord;
                if (avanzamento && lRecord % 500 == 0)
                    avanzamento(lRecord);
            }
            if (!blocco.sErrore.isEmpty()) {
                invia();
                Fallisci(blocco.sErrore);
            }
        }
        invia();
        destinazioni.clear();
        esito.lRecord = lRecord;
        if (avanzamento)
            avanzamento(lRecord);

        log.ComandoTabella(QStringLiteral("ALTER TABLE ") + sTabella +
                           QStringLiteral(" ENABLE TRIGGER ALL"));
        Tollerato(db, [&] { backend.RiattivaTrigger(db, sTabella); });
        log.ComandoTabella(QStringLiteral("SET IDENTITY_INSERT ") + sTabella +
                           QStringLiteral(" OFF"));
        Tollerato(db, [&] { backend.AllineaChiavi(db, sTabella); });
        if (!db.commit())
            Fallisci(TestoErrore(db.lastError()));
    } catch (...) {
        destinazioni.clear();
        db.rollback();
        throw;
    }
    log.Chiudi();
    return true;
}

} // namespace

namespace {

Esito Esegui(const Connessione* cnn, const QString& sTabella, const QString& sCartellaSchemi,
             const QString& sCartellaDati, const Avanzamento& avanzamento) {
    Esito esito;
    if (!sTabella.isEmpty()) {
        try {
            if (!Importa(cnn, sTabella, sCartellaSchemi, sCartellaDati, avanzamento, esito))
                return esito;
        } catch (...) {
            // Whatever the failure, the program's own or a library's: its words.
            esito.sTitolo.clear();
            esito.sMessaggio =
                ErroreDi(std::current_exception(), QStringLiteral("Import")).descrizione();
            return esito;
        }
    }
    esito.bImportata = true;
    return esito;
}

} // namespace

Esito ImportaTabella(const Connessione& cnn, const QString& sTabella,
                     const QString& sCartellaSchemi, const QString& sCartellaDati,
                     const Avanzamento& avanzamento) {
    return Esegui(&cnn, sTabella, sCartellaSchemi, sCartellaDati, avanzamento);
}

bool ImportaTabella(const QString& sTabella, const Avanzamento& avanzamento) {
    const Esito esito = Esegui(Sessione::cnn.get(), sTabella, Sessione::sParam09,
                               Sessione::sCartellaImport, avanzamento);
    if (!esito.bImportata) {
        // The table's box, and the table is not listed.
        MsgBox(esito.sMessaggio, Pulsanti::Ok, Icona::Critica, esito.sTitolo);
        return false;
    }
    TabelleImportate.append(sTabella);
    return true;
}

QStringList TabelleOfferte(const QString& sCartellaSchemi) {
    QStringList tabelle;
    const QFileInfoList file =
        QDir(sCartellaSchemi).entryInfoList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& info : file) {
        if (info.suffix().toUpper() != QStringLiteral("XML"))
            continue;
        const QString sNome = info.fileName();
        const qsizetype iPos = sNome.toUpper().lastIndexOf(QStringLiteral("SCH"));
        if (iPos < 0)
            continue;
        tabelle.append(sNome.left(iPos).trimmed());
    }
    return tabelle;
}

QString ElencoTabelleImportate() {
    return RigheMessaggio(TabelleImportate);
}

} // namespace Import
