#include "Export.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/TestoErrore.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QXmlStreamWriter>
#include <vector>

namespace Export {

namespace {

const QString Sorgente = QStringLiteral("Export.EsportaTabella");

// The platform's numbers and words for the failures of the routine.
constexpr long ErroreOggetto = 91;          // schema file missing or not loadable
constexpr long ErroreIndice = 9;            // more field nodes than the arrays hold
constexpr long ErroreElemento = 3265;       // a schema column that the table lacks
constexpr long ErroreComando = -2147217900; // a statement the database refuses
constexpr long ErroreAccesso = 75;          // a folder that can't be written

[[noreturn]] void Fallisci(long lNumero, const QString& sDescrizione) {
    throw Errore(Sorgente, sDescrizione, lNumero);
}

// A statement read forward only, so that rows are not kept.
QSqlQuery Interroga(const Connessione& cnn, const QString& sSql) {
    QSqlQuery query(cnn.Db());
    query.setForwardOnly(true);
    if (!query.exec(sSql))
        Fallisci(ErroreComando, TestoErrore(query.lastError()));
    return query;
}

QString SelezionaTutto(const Connessione& cnn, const QString& sTabella) {
    // Tables are created unquoted: their stored names are in lower case on every backend that
    // folds them, and SQLite ignores the case of a quoted name.
    return QStringLiteral("SELECT * FROM ") + cnn.backend().Identificatore(sTabella.toLower());
}

// A number as the platform turns it to text under Italian settings: comma decimal, no
// grouping, fifteen significant digits.
QString TestoNumero(double valore) {
    QString testo = QString::number(valore, 'g', 15);
    testo.replace(QLatin1Char('e'), QLatin1Char('E'));
    testo.replace(QLatin1Char('.'), QLatin1Char(','));
    return testo;
}

QString TestoValore(const QVariant& valore) {
    switch (valore.metaType().id()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return TestoNumero(valore.toDouble());
    case QMetaType::Bool:
        return valore.toBool() ? QStringLiteral("Vero") : QStringLiteral("Falso");
    case QMetaType::QDateTime:
        return valore.toDateTime().toString(QStringLiteral("dd/MM/yyyy HH:mm:ss"));
    case QMetaType::QDate:
        return valore.toDate().toString(QStringLiteral("dd/MM/yyyy"));
    default:
        return valore.toString();
    }
}

// A value of type 135: read back as a date and written in the style the import reads.
QString TestoData(const QVariant& valore) {
    if (valore.metaType().id() == QMetaType::QDateTime)
        return DataSql(valore.toDateTime());
    if (valore.metaType().id() == QMetaType::QDate)
        return DataSql(valore.toDate().startOfDay());
    const QString testo = valore.toString().trimmed();
    // The ISO form a backend keeps, read at once (the format parser is slow for many rows).
    if (testo.size() >= 19 && testo[4] == QLatin1Char('-') && testo[7] == QLatin1Char('-') &&
        (testo[10] == QLatin1Char(' ') || testo[10] == QLatin1Char('T')) &&
        testo[13] == QLatin1Char(':') && testo[16] == QLatin1Char(':')) {
        const QDate giorno(testo.mid(0, 4).toInt(), testo.mid(5, 2).toInt(),
                           testo.mid(8, 2).toInt());
        const QTime ora(testo.mid(11, 2).toInt(), testo.mid(14, 2).toInt(),
                        testo.mid(17, 2).toInt());
        if (giorno.isValid() && ora.isValid())
            return DataSql(QDateTime(giorno, ora));
    }
    for (const QString& forma :
         {QStringLiteral("yyyy-MM-dd HH:mm:ss"), QStringLiteral("yyyy-MM-ddTHH:mm:ss"),
          QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"), QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"),
          QStringLiteral("yyyy-MM-dd HH:mm"), QStringLiteral("yyyy-MM-dd")}) {
        const QDateTime data = QDateTime::fromString(testo, forma);
        if (data.isValid())
            return DataSql(data);
    }
    return DataSql(testo); // Italian forms; raises "Tipo non corrispondente" otherwise
}

struct Schema {
    QString sDataFile;
    QString sVersione;
    std::vector<QString> nomi;
    std::vector<int> tipi;
    int iColonne = 0;
};

Schema LeggiSchema(const QString& sPercorso) {
    const QString sNonImpostata =
        QStringLiteral("Variabile oggetto o variabile del blocco With non impostata");
    QFile file(sPercorso);
    QDomDocument documento;
    if (!file.open(QIODevice::ReadOnly) || !documento.setContent(&file))
        Fallisci(ErroreOggetto, sNonImpostata);
    const QDomElement radice = documento.documentElement();
    if (radice.isNull())
        Fallisci(ErroreOggetto, sNonImpostata);
    Schema schema;
    schema.sDataFile = radice.attribute(QStringLiteral("datafile"));
    schema.sVersione = radice.attribute(QStringLiteral("version"));
    const QDomElement stru = radice.firstChildElement(QStringLiteral("stru"));
    if (stru.isNull())
        Fallisci(ErroreOggetto, sNonImpostata);
    bool bNumero = false;
    schema.iColonne = stru.attribute(QStringLiteral("fieldcount")).trimmed().toInt(&bNumero);
    if (!bNumero || schema.iColonne < 0)
        Fallisci(ErroriPiattaforma::TipoNonCorrispondente,
                 QStringLiteral("Tipo non corrispondente"));
    // One slot more than the columns, as the arrays of the format's readers have.
    const size_t slot = static_cast<size_t>(schema.iColonne) + 1;
    schema.nomi.assign(slot, QString());
    schema.tipi.assign(slot, 0);
    size_t i = 0;
    for (QDomElement campo = stru.firstChildElement(QStringLiteral("field")); !campo.isNull();
         campo = campo.nextSiblingElement(QStringLiteral("field"))) {
        if (i >= slot)
            Fallisci(ErroreIndice, QStringLiteral("Indice non compreso nell'intervallo"));
        schema.nomi[i] = campo.text();
        schema.tipi[i] = campo.attribute(QStringLiteral("type")).trimmed().toInt();
        ++i;
    }
    return schema;
}

// The text of the layout before a node: carriage return and line feed, then the tabs.
void Allinea(QXmlStreamWriter& xml, int iLivello) {
    xml.writeCharacters(QStringLiteral("\r\n"));
    xml.writeCharacters(QString(iLivello, QLatin1Char('\t')));
}

bool VersioniUguali(const QString& sSchema, const QVariant& versione) {
    bool bNumero = false;
    const double dSchema =
        QString(sSchema).replace(QLatin1Char(','), QLatin1Char('.')).trimmed().toDouble(&bNumero);
    bool bNumeroDb = false;
    const double dDb = versione.toDouble(&bNumeroDb);
    if (bNumero && bNumeroDb)
        return dSchema == dDb;
    return sSchema.trimmed() == TestoValore(versione).trimmed();
}

qint64 Scrivi(const Connessione& cnn, const QString& sTabella, const Schema& schema,
              const QString& sPercorso, bool bConfig, const QString& sCode,
              const QString& sVersione, const Progresso& progresso) {
    QSaveFile file(sPercorso);
    if (!file.open(QIODevice::WriteOnly)) {
        if (!QFileInfo(QFileInfo(sPercorso).absolutePath()).isDir())
            Fallisci(ErroriPiattaforma::PercorsoNonTrovato,
                     QStringLiteral("Impossibile trovare il percorso"));
        Fallisci(ErroreAccesso, QStringLiteral("Errore di accesso al percorso/file"));
    }
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(false);
    xml.writeProcessingInstruction(QStringLiteral("xml"),
                                   QStringLiteral("version = \"1.0\" encoding=\"UTF-8\""));
    xml.writeStartElement(QStringLiteral("table"));
    xml.writeAttribute(QStringLiteral("name"), sTabella);
    qint64 lRecord = 0;
    if (bConfig) {
        xml.writeAttribute(QStringLiteral("version"), sVersione);
        xml.writeAttribute(QStringLiteral("code"), sCode);
        QSqlQuery query = Interroga(cnn, SelezionaTutto(cnn, sTabella));
        std::vector<int> indici;
        while (query.next()) {
            if (indici.empty()) {
                const QSqlRecord record = query.record();
                for (int i = 0; i < schema.iColonne; ++i) {
                    const int indice = record.indexOf(schema.nomi[static_cast<size_t>(i)]);
                    if (indice < 0)
                        Fallisci(ErroreElemento,
                                 QStringLiteral("Impossibile trovare l'elemento nell'insieme "
                                                "corrispondente al nome o al numero ordinale "
                                                "richiesto."));
                    indici.push_back(indice);
                }
            }
            Allinea(xml, 1);
            xml.writeStartElement(QStringLiteral("record"));
            for (int i = 0; i < schema.iColonne; ++i) {
                Allinea(xml, 2);
                xml.writeStartElement(QStringLiteral("field"));
                xml.writeAttribute(QStringLiteral("id"), QString::number(i + 1));
                const QVariant valore = query.value(indici[static_cast<size_t>(i)]);
                if (ENull(valore)) {
                    xml.writeAttribute(QStringLiteral("null"), QStringLiteral("1"));
                } else {
                    xml.writeAttribute(QStringLiteral("null"), QStringLiteral("0"));
                    xml.writeCharacters(schema.tipi[static_cast<size_t>(i)] == 135
                                            ? TestoData(valore)
                                            : TestoValore(valore));
                }
                xml.writeEndElement();
            }
            Allinea(xml, 1);
            xml.writeEndElement();
            ++lRecord;
            if (progresso && lRecord % 1000 == 0)
                progresso(sTabella, lRecord);
            if (xml.hasError())
                break;
        }
    }
    Allinea(xml, 0);
    xml.writeEndElement();
    if (xml.hasError() || !file.commit())
        Fallisci(ErroriPiattaforma::ErroreIO, QStringLiteral("Errore di I/O del dispositivo"));
    return lRecord;
}

} // namespace

QStringList TabelleDisponibili(const QString& sCartellaSchemi) {
    QStringList tabelle;
    const QStringList file =
        QDir(sCartellaSchemi).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& sNome : file) {
        if (QFileInfo(sNome).suffix().toUpper() != QLatin1String("XML"))
            continue;
        const qsizetype posizione = sNome.lastIndexOf(QLatin1String("Sch"));
        if (posizione < 0)
            continue;
        tabelle.append(Trim(sNome.left(posizione)));
    }
    return tabelle;
}

Esito EsportaTabella(const Connessione& cnn, const QString& sTabella,
                     const QString& sCartellaSchemi, const QString& sCartellaDestinazione,
                     const Progresso& progresso) {
    Esito esito;
    try {
        // Step 1: pending events; an empty name is only listed.
        if (progresso)
            progresso(sTabella, 0);
        if (sTabella.isEmpty()) {
            esito.bEsportata = true;
            return esito;
        }
        // Step 2: a missing table stops here, before anything else is done.
        Interroga(cnn, SelezionaTutto(cnn, sTabella));
        // Steps 3 to 5: the schema file.
        const Schema schema =
            LeggiSchema(QDir(sCartellaSchemi).filePath(sTabella + QStringLiteral("Sch.xml")));
        // Step 8: the site's code and version.
        QSqlQuery config = Interroga(cnn, QStringLiteral("SELECT * FROM Config"));
        const bool bConfig = config.next();
        QString sCode;
        QString sVersione;
        if (bConfig) {
            const QSqlRecord record = config.record();
            sCode = TestoValore(record.value(QStringLiteral("Code")));
            const QVariant versione = record.value(QStringLiteral("Versione"));
            sVersione = TestoValore(versione);
            config.finish();
            // Step 9.
            if (!VersioniUguali(schema.sVersione, versione)) {
                esito.sTitolo = QStringLiteral("Attenzione");
                esito.bCritico = true;
                esito.sMessaggio = QStringLiteral("Versioni incompatibili tra schema file [") +
                                   schema.sVersione + QStringLiteral("] e Database [") + sVersione +
                                   QStringLiteral("]");
                return esito;
            }
        }
        config.finish();
        // Steps 6, 7 and 10 to 16, streamed.
        esito.sFile = QDir(sCartellaDestinazione).filePath(schema.sDataFile);
        esito.lRecord =
            Scrivi(cnn, sTabella, schema, esito.sFile, bConfig, sCode, sVersione, progresso);
        if (progresso)
            progresso(sTabella, esito.lRecord);
        esito.bEsportata = true;
    } catch (const Errore& errore) {
        esito = Esito{};
        esito.sMessaggio =
            QString::number(errore.numero()) + QStringLiteral("\r\n") + errore.descrizione();
    }
    return esito;
}

bool EsportaTabella(const QString& sTabella, const Progresso& progresso) {
    Esito esito;
    if (!Sessione::cnn) {
        esito.sMessaggio = QString::number(ErroreOggetto) + QStringLiteral("\r\n") +
                           QStringLiteral("Variabile oggetto o variabile del blocco With non "
                                          "impostata");
    } else {
        esito = EsportaTabella(*Sessione::cnn, sTabella, Sessione::sParam09,
                               Sessione::sCartellaExport, progresso);
    }
    if (!esito.bEsportata) {
        MsgBox(esito.sMessaggio, Pulsanti::Ok, esito.bCritico ? Icona::Critica : Icona::Nessuna,
               esito.sTitolo);
        return false;
    }
    // Step 17.
    ++NumeroTabelle;
    TabelleEsportate.append(sTabella);
    return true;
}

QString ElencoTabelleEsportate() {
    QString sTesto;
    for (const QString& sNome : TabelleEsportate)
        sTesto += sNome + QStringLiteral("\r\n");
    return sTesto;
}

} // namespace Export
