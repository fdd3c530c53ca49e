#include "Import.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/TestoErrore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVector>
#include <QXmlStreamReader>
#include <memory>

namespace Import {

namespace {

const QString Sorgente = QStringLiteral("Import");
const QByteArray Crlf = QByteArrayLiteral("\r\n");
const QByteArray FineTabella = QByteArrayLiteral("</table>");

[[noreturn]] void Fallisci(const QString& sDescrizione) {
    throw Errore(Sorgente, sDescrizione);
}

// A table or column name goes into the statement's text: only plain names are let in.
void ControllaNome(const QString& sNome) {
    static const QRegularExpression semplice(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    if (!semplice.match(sNome).hasMatch())
        Fallisci(QStringLiteral("Nome non valido: \"%1\"").arg(sNome));
}

QString PercorsoIn(const QString& sCartella, const QString& sNome) {
    return QDir(sCartella).filePath(sNome);
}

QByteArray Testo(const QString& s) {
    QString t = s;
    t.replace(QLatin1Char('&'), QStringLiteral("&amp;"));
    t.replace(QLatin1Char('<'), QStringLiteral("&lt;"));
    t.replace(QLatin1Char('>'), QStringLiteral("&gt;"));
    t.replace(QLatin1Char('\r'), QStringLiteral("&#13;"));
    return t.toUtf8();
}

QByteArray Attributo(const QString& s) {
    QString t = s;
    t.replace(QLatin1Char('&'), QStringLiteral("&amp;"));
    t.replace(QLatin1Char('<'), QStringLiteral("&lt;"));
    t.replace(QLatin1Char('"'), QStringLiteral("&quot;"));
    return t.toUtf8();
}

// The command log <table>Sql.xml, appended and flushed before each command and well formed
// after each one: the closing tag is written after every element and overwritten by the next.
class LogComandi {
public:
    LogComandi(const QString& sPercorso, const QString& sTabella)
        : file(sPercorso) {
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            Fallisci(QStringLiteral("Impossibile scrivere il file %1: %2")
                         .arg(QDir::toNativeSeparators(sPercorso), file.errorString()));
        Aggiungi(QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?><table name=\"") +
                 Attributo(sTabella) + QByteArrayLiteral("\">"));
    }

    void ComandoTabella(const QString& sComando) {
        Aggiungi(Crlf + '\t' + QByteArrayLiteral("<tablecommand>") + Testo(sComando) +
                 QByteArrayLiteral("</tablecommand>"));
    }
    void Inserimento(const QString& sComando) {
        Aggiungi(Crlf + '\t' + QByteArrayLiteral("<record>") + Crlf + "\t\t" +
                 QByteArrayLiteral("<insert>") + Testo(sComando) + QByteArrayLiteral("</insert>") +
                 Crlf + '\t' + QByteArrayLiteral("</record>"));
    }
    void Chiudi() {
        Aggiungi(Crlf);
        file.close();
    }

private:
    void Aggiungi(const QByteArray& parte) {
        if (!file.seek(lCorpo) || file.write(parte) != parte.size() ||
            file.write(FineTabella) != FineTabella.size() || !file.flush())
            Fallisci(QStringLiteral("Impossibile scrivere il file %1: %2")
                         .arg(QDir::toNativeSeparators(file.fileName()), file.errorString()));
        lCorpo += parte.size();
    }

    QFile file;
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

int Intero(const QString& s, const QString& sCosa) {
    bool ok = false;
    const int n = s.trimmed().toInt(&ok);
    if (!ok)
        Fallisci(QStringLiteral("Valore non numerico in %1: \"%2\"").arg(sCosa, s));
    return n;
}

Schema LeggiSchema(const QString& sTabella) {
    const QString sPercorso = PercorsoIn(Sessione::sParam09, sTabella + QStringLiteral("Sch.xml"));
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

double VersioneDatabase(const Connessione& connessione) {
    QSqlQuery query(connessione.Db());
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT Versione FROM Config")))
        Fallisci(TestoErrore(query.lastError()));
    if (!query.next())
        Fallisci(QStringLiteral("La tabella Config è vuota"));
    return query.value(0).toDouble();
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

struct Valore {
    QString sLog;    // as the logged command shows it, quotes included
    QVariant valore; // what is bound
    QString sErrore; // a value the server would refuse: raised once the command is logged
};

Valore ValoreCampo(int iTipo, bool bNull, const QString& sTesto) {
    if (bNull)
        return {QStringLiteral("null"), QVariant(), QString()};
    const QString sNonNullo = sTesto.isNull() ? QStringLiteral("") : sTesto;
    if (iTipo == 5 || iTipo == 131) {
        QString sPunto = sNonNullo;
        sPunto.replace(QLatin1Char(','), QLatin1Char('.'));
        bool ok = false;
        sPunto.trimmed().toDouble(&ok);
        return {sPunto, sPunto.trimmed(),
                ok ? QString() : QStringLiteral("Valore numerico non valido: \"%1\"").arg(sPunto)};
    }
    if (iTipo == 135) {
        if (!IsDate(sNonNullo))
            return {QStringLiteral("Convert(datetime,'") + sNonNullo + QStringLiteral("',120)"),
                    QVariant(), QStringLiteral("Data non valida: \"%1\"").arg(sNonNullo)};
        const QString sData = DataSql(sNonNullo);
        return {QStringLiteral("Convert(datetime,'") + sData + QStringLiteral("',120)"), sData,
                QString()};
    }
    QString sDoppio = sNonNullo;
    sDoppio.replace(QLatin1Char('\''), QStringLiteral("''"));
    return {QLatin1Char('\'') + sDoppio + QLatin1Char('\''), sNonNullo, QString()};
}

void EseguiPreparata(QSqlQuery& query, const QVariantList& valori) {
    for (int i = 0; i < valori.size(); ++i)
        query.bindValue(i, valori[i]);
    if (!query.exec())
        Fallisci(TestoErrore(query.lastError()));
}

void Importa(const QString& sTabella, const Avanzamento& avanzamento) {
    ControllaNome(sTabella);
    const Schema schema = LeggiSchema(sTabella);
    if (!Sessione::cnn || !Sessione::cnn->Aperta())
        Fallisci(QStringLiteral("Nessuna connessione al database"));
    const Connessione& connessione = *Sessione::cnn;
    const double dVersione = VersioneDatabase(connessione);

    const QString sPercorsoDati = PercorsoIn(Sessione::sCartellaImport, schema.sDatafile);
    QFile fileDati(sPercorsoDati);
    if (!fileDati.open(QIODevice::ReadOnly))
        Fallisci(
            QStringLiteral("File non trovato: %1").arg(QDir::toNativeSeparators(sPercorsoDati)));
    QXmlStreamReader xml(&fileDati);
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::StartElement) {
    }
    if (xml.hasError() || !xml.isStartElement())
        Fallisci(QStringLiteral("%1: %2").arg(
            QDir::toNativeSeparators(sPercorsoDati),
            xml.hasError() ? xml.errorString() : QStringLiteral("documento senza elemento")));
    const QString sCode = xml.attributes().value(QStringLiteral("code")).toString();
    const int iVersioneFile =
        Intero(xml.attributes().value(QStringLiteral("version")).toString(), "version");

    if (schema.iVersione != iVersioneFile || dVersione != schema.iVersione) {
        MsgBox(QStringLiteral("Versioni incompatibili tra schema file [%1], Data File [%2] e "
                              "Database [%3]")
                   .arg(schema.iVersione)
                   .arg(iVersioneFile)
                   .arg(QString::number(dVersione)),
               Pulsanti::Ok, Icona::Critica, QStringLiteral("Attenzione"));
        throw std::logic_error("versioni"); // handled by the caller: not listed, no box
    }
    if (sCode.isEmpty())
        Fallisci(QStringLiteral("Il file %1 non indica il codice del sito")
                     .arg(QDir::toNativeSeparators(sPercorsoDati)));

    LogComandi log(PercorsoIn(Sessione::sCartellaImport, sTabella + QStringLiteral("Sql.xml")),
                   sTabella);
    QSqlDatabase db = connessione.Db();
    const Backend& backend = connessione.backend();
    // The prepared inserts, one per set of columns; they outlive the rollback.
    QHash<QString, std::shared_ptr<QSqlQuery>> inserimenti;
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

        qint64 lRecord = 0;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isEndElement())
                break; // the end of table
            if (!xml.isStartElement())
                continue;
            if (xml.name() != QStringLiteral("record")) {
                xml.skipCurrentElement();
                continue;
            }
            QStringList colonne;
            QStringList colonneLog;
            QStringList valoriLog;
            QVariantList valori;
            QString sErrore;
            while (xml.readNextStartElement()) {
                if (xml.name() != QStringLiteral("field")) {
                    xml.skipCurrentElement();
                    continue;
                }
                const QString sId = xml.attributes().value(QStringLiteral("id")).toString();
                const QString sNull = xml.attributes().value(QStringLiteral("null")).toString();
                if (sId.isEmpty() || sNull.isEmpty())
                    Fallisci(QStringLiteral("Campo senza attributo id o null nel record %1")
                                 .arg(lRecord + 1));
                const int iSlot = Intero(sId, QStringLiteral("id")) - 1;
                const bool bNull = Intero(sNull, QStringLiteral("null")) != 0;
                const QString sTesto = xml.readElementText();
                if (iSlot < 0 || iSlot >= schema.nomi.size())
                    Fallisci(QStringLiteral("Indice non compreso nell'intervallo"));
                const Valore v = ValoreCampo(schema.tipi[iSlot], bNull, sTesto);
                colonne.append(schema.nomi[iSlot]);
                colonneLog.append(QLatin1Char('"') + schema.nomi[iSlot] + QLatin1Char('"'));
                valoriLog.append(v.sLog);
                valori.append(v.valore);
                if (sErrore.isEmpty())
                    sErrore = v.sErrore;
            }
            if (xml.hasError())
                break;
            colonne.append(QStringLiteral("Code"));
            colonneLog.append(QStringLiteral("\"Code\""));
            valoriLog.append(QLatin1Char('\'') + sCode + QLatin1Char('\''));
            valori.append(sCode);

            const QString sChiave = colonne.join(QLatin1Char(','));
            std::shared_ptr<QSqlQuery>& query = inserimenti[sChiave];
            if (!query) {
                query = std::make_shared<QSqlQuery>(db);
                const QString sSegnaposti =
                    QStringList(colonne.size(), QStringLiteral("?")).join(QStringLiteral(", "));
                if (!query->prepare(QStringLiteral("INSERT INTO ") + sTabella +
                                    QStringLiteral(" (") + colonne.join(QStringLiteral(", ")) +
                                    QStringLiteral(") VALUES (") + sSegnaposti + QLatin1Char(')')))
                    Fallisci(TestoErrore(query->lastError()));
            }
            log.Inserimento(QStringLiteral("Insert into ") + sTabella + QStringLiteral(" (") +
                            colonneLog.join(QStringLiteral(", ")) + QStringLiteral(") Values (") +
                            valoriLog.join(QStringLiteral(", ")) + QStringLiteral(") "));
            if (!sErrore.isEmpty())
                Fallisci(sErrore);
            EseguiPreparata(*query, valori);
            ++lRecord;
            if (avanzamento && lRecord % 500 == 0)
                avanzamento(lRecord);
        }
        // The rest of the file must be well formed too, or nothing of it is taken.
        while (!xml.atEnd() && !xml.hasError())
            xml.readNext();
        if (xml.hasError())
            Fallisci(QStringLiteral("%1: %2 (riga %3)")
                         .arg(QDir::toNativeSeparators(sPercorsoDati), xml.errorString())
                         .arg(xml.lineNumber()));
        inserimenti.clear();
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
        for (const std::shared_ptr<QSqlQuery>& query : std::as_const(inserimenti))
            query->finish();
        db.rollback();
        throw;
    }
    log.Chiudi();
}

} // namespace

bool ImportaTabella(const QString& sTabella, const Avanzamento& avanzamento) {
    if (!sTabella.isEmpty()) {
        try {
            Importa(sTabella, avanzamento);
        } catch (const Errore& errore) {
            MsgBox(errore.descrizione(), Pulsanti::Ok, Icona::Critica);
            return false;
        } catch (const std::logic_error&) {
            return false;
        }
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
    QString sTesto;
    for (const QString& sTabella : TabelleImportate)
        sTesto += sTabella + QStringLiteral("\r\n");
    return sTesto;
}

} // namespace Import
