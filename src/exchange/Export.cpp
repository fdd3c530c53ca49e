#include "Export.h"
#include "SitoScambio.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "session/Utility.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"
#include "store/LetturaTesto.h"
#include "store/TestoErrore.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <charconv>
#include <cmath>
#include <cstring>
#include <memory>
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

// The fifteen significant digits of a finite number, or false when the sixteenth and
// seventeenth digits leave the rounding in doubt (a tie, which the platform rounds away from
// zero), or for minus zero.
bool CifreNumero(double valore, char* inizio, char*& fine) {
    if (!std::isfinite(valore) || (valore == 0 && std::signbit(valore)))
        return false;
    char prova[40];
    const std::to_chars_result lunga =
        std::to_chars(prova, prova + sizeof prova, valore, std::chars_format::scientific, 16);
    if (lunga.ec != std::errc())
        return false;
    // d.dddddddddddddddde+x: the digits after the fifteenth.
    const char* dopo = prova + (prova[0] == '-' ? 1 : 0) + 16;
    if (dopo[0] == '5' && dopo[1] == '0')
        return false;
    const std::to_chars_result corta =
        std::to_chars(inizio, fine, valore, std::chars_format::general, 15);
    if (corta.ec != std::errc())
        return false;
    fine = corta.ptr;
    return true;
}

// The data file's bytes, gathered and handed to the file a large piece at a time. Text is
// escaped as an XML writer does (&, <, >, " as entities; tab, line feed and carriage return
// as they stand, as character references in attributes); a character XML cannot carry marks
// the writing as failed.
// Bytes gathered in one block of fixed room: appends are plain copies.
class Accumulo {
public:
    explicit Accumulo(qsizetype iSpazio)
        : blocco(static_cast<size_t>(iSpazio)) {}
    void append(const char* p, qsizetype n) {
        if (iUsati + n > static_cast<qsizetype>(blocco.size()))
            blocco.resize(static_cast<size_t>(2 * (iUsati + n)));
        std::memcpy(blocco.data() + iUsati, p, static_cast<size_t>(n));
        iUsati += n;
    }
    void append(QByteArrayView testo) { append(testo.data(), testo.size()); }
    template <size_t N> void append(const char (&testo)[N]) {
        append(testo, static_cast<qsizetype>(N - 1));
    }
    void append(char c) {
        if (iUsati + 1 > static_cast<qsizetype>(blocco.size()))
            blocco.resize(2 * blocco.size() + 1);
        blocco[static_cast<size_t>(iUsati++)] = c;
    }
    qsizetype size() const { return iUsati; }
    bool isEmpty() const { return iUsati == 0; }
    const char* data() const { return blocco.data(); }
    void clear() { iUsati = 0; }

private:
    std::vector<char> blocco;
    qsizetype iUsati = 0;
};

class ScritturaDati {
public:
    explicit ScritturaDati(QIODevice& fileDato)
        : file(fileDato)
        , dati(Soglia + 4096) {}

    void Grezzo(QByteArrayView testo) {
        dati.append(testo);
        if (dati.size() >= Soglia)
            Svuota();
    }
    void Testo(QStringView testo) { Accoda(testo, false); }
    void Attributo(QStringView testo) { Accoda(testo, true); }
    void TestoUtf8(QByteArrayView testo) {
        const char* p = testo.data();
        const char* fine = p + testo.size();
        const char* corsa = p;
        for (; p < fine; ++p) {
            const unsigned char c = static_cast<unsigned char>(*p);
            const char* sostituto = nullptr;
            if (c < 0x20) {
                if (c != '\t' && c != '\n' && c != '\r')
                    bErrore = true;
                continue;
            }
            switch (c) {
            case '<':
                sostituto = "&lt;";
                break;
            case '>':
                sostituto = "&gt;";
                break;
            case '&':
                sostituto = "&amp;";
                break;
            case '"':
                sostituto = "&quot;";
                break;
            case 0xEF: // U+FFFE and U+FFFF are not characters
                if (fine - p >= 3 && static_cast<unsigned char>(p[1]) == 0xBF &&
                    static_cast<unsigned char>(p[2]) >= 0xBE)
                    bErrore = true;
                continue;
            default:
                continue;
            }
            dati.append(corsa, p - corsa);
            dati.append(QByteArrayView(sostituto));
            corsa = p + 1;
        }
        dati.append(corsa, fine - corsa);
        if (dati.size() >= Soglia)
            Svuota();
    }
    void Svuota() {
        if (!dati.isEmpty() && file.write(dati.data(), dati.size()) != dati.size())
            bErrore = true;
        dati.clear();
    }
    bool Fallita() const { return bErrore; }

private:
    static constexpr qsizetype Soglia = 1 << 20;

    void Accoda(QStringView testo, bool bAttributo) {
        const char16_t* p = testo.utf16();
        const char16_t* fine = p + testo.size();
        for (; p < fine; ++p) {
            const char16_t c = *p;
            if (c < 0x80) {
                switch (c) {
                case u'<':
                    dati.append("&lt;");
                    break;
                case u'>':
                    dati.append("&gt;");
                    break;
                case u'&':
                    dati.append("&amp;");
                    break;
                case u'"':
                    dati.append("&quot;");
                    break;
                case u'\t':
                    if (bAttributo)
                        dati.append("&#9;");
                    else
                        dati.append('\t');
                    break;
                case u'\n':
                    if (bAttributo)
                        dati.append("&#10;");
                    else
                        dati.append('\n');
                    break;
                case u'\r':
                    if (bAttributo)
                        dati.append("&#13;");
                    else
                        dati.append('\r');
                    break;
                default:
                    if (c < 0x20)
                        bErrore = true;
                    else
                        dati.append(static_cast<char>(c));
                }
                continue;
            }
            char32_t codice = c;
            if (QChar::isHighSurrogate(c) && p + 1 < fine && QChar::isLowSurrogate(p[1])) {
                codice = QChar::surrogateToUcs4(c, p[1]);
                ++p;
            } else if (QChar::isSurrogate(c) || c >= 0xFFFE) {
                bErrore = true;
                continue;
            }
            char utf8[4];
            int n = 0;
            if (codice < 0x800) {
                utf8[n++] = static_cast<char>(0xC0 | (codice >> 6));
            } else if (codice < 0x10000) {
                utf8[n++] = static_cast<char>(0xE0 | (codice >> 12));
                utf8[n++] = static_cast<char>(0x80 | ((codice >> 6) & 0x3F));
            } else {
                utf8[n++] = static_cast<char>(0xF0 | (codice >> 18));
                utf8[n++] = static_cast<char>(0x80 | ((codice >> 12) & 0x3F));
                utf8[n++] = static_cast<char>(0x80 | ((codice >> 6) & 0x3F));
            }
            utf8[n++] = static_cast<char>(0x80 | (codice & 0x3F));
            dati.append(utf8, n);
        }
        if (dati.size() >= Soglia)
            Svuota();
    }

    QIODevice& file;
    Accumulo dati;
    bool bErrore = false;
};

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

void ScriviNumero(ScritturaDati& out, double valore) {
    char cifre[40];
    char* fine = cifre + sizeof cifre;
    if (!CifreNumero(valore, cifre, fine)) {
        out.Testo(TestoNumero(valore));
        return;
    }
    for (char* p = cifre; p < fine; ++p) {
        if (*p == 'e')
            *p = 'E';
        else if (*p == '.')
            *p = ',';
    }
    out.Grezzo(QByteArrayView(cifre, fine - cifre));
}

// A value read through Qt, as the data file carries it.
void ScriviValore(ScritturaDati& out, const QVariant& valore, int iTipo) {
    if (iTipo != 135) {
        const int iMeta = valore.metaType().id();
        if (iMeta == QMetaType::Double || iMeta == QMetaType::Float)
            ScriviNumero(out, valore.toDouble());
        else
            out.Testo(TestoValore(valore));
        return;
    }
    if (valore.metaType().id() == QMetaType::QString) {
        const QString* testo = static_cast<const QString*>(valore.constData());
        if (DataSqlCanonica(*testo)) {
            out.Testo(*testo);
            return;
        }
    }
    out.Testo(TestoData(valore));
}

// "yyyy-mm-dd hh:mm:ss" at the head of a server's text, with at most a fraction after it.
bool DataOraCanonica(QByteArrayView testo) {
    if (testo.size() < 19 || (testo.size() > 19 && testo[19] != '.'))
        return false;
    for (qsizetype i = 20; i < testo.size(); ++i)
        if (testo[i] < '0' || testo[i] > '9')
            return false;
    return DataSqlCanonica(testo.first(19));
}

// A value in the server's text form, as the data file carries it: the forms the server
// always gives are written at once, anything else as Qt's driver would have read it.
void ScriviTestoServer(ScritturaDati& out, LetturaTesto::Genere genere, QByteArrayView testo,
                       int iTipo) {
    using Genere = LetturaTesto::Genere;
    const bool bData = iTipo == 135;
    switch (genere) {
    case Genere::Testo:
        if (!bData) {
            out.TestoUtf8(testo);
            return;
        }
        break;
    case Genere::Intero:
        if (!bData) {
            out.Grezzo(testo);
            return;
        }
        break;
    case Genere::Reale:
        if (!bData) {
            double valore = 0;
            const std::from_chars_result letto =
                std::from_chars(testo.data(), testo.data() + testo.size(), valore);
            if (letto.ec == std::errc() && letto.ptr == testo.data() + testo.size()) {
                ScriviNumero(out, valore);
                return;
            }
        }
        break;
    case Genere::Logico:
        if (!bData) {
            out.Grezzo(testo == "t" ? QByteArrayView("Vero") : QByteArrayView("Falso"));
            return;
        }
        break;
    case Genere::DataOra:
        if (DataOraCanonica(testo)) {
            if (bData) {
                out.Grezzo(testo.first(19));
            } else {
                // dd/MM/yyyy HH:mm:ss
                const char* t = testo.data();
                const char giorno[] = {t[8],  t[9],  '/',  t[5],  t[6],  '/',   t[0],
                                       t[1],  t[2],  t[3], ' ',   t[11], t[12], ':',
                                       t[14], t[15], ':',  t[17], t[18]};
                out.Grezzo(QByteArrayView(giorno, sizeof giorno));
            }
            return;
        }
        break;
    case Genere::Data:
        if (testo.size() == 10 && DataOraCanonica(testo.toByteArray() + " 00:00:00")) {
            const char* t = testo.data();
            if (bData) {
                out.Grezzo(testo);
                out.Grezzo(" 00:00:00");
            } else {
                const char giorno[] = {t[8], t[9], '/', t[5], t[6], '/', t[0], t[1], t[2], t[3]};
                out.Grezzo(QByteArrayView(giorno, sizeof giorno));
            }
            return;
        }
        break;
    case Genere::Altro:
        break;
    }
    // As the driver reads the text into a value.
    QVariant valore;
    const QString sTesto = QString::fromUtf8(testo);
    switch (genere) {
    case Genere::Intero:
        valore = sTesto.toLongLong();
        break;
    case Genere::Reale: {
        bool bNumero = false;
        const double dValore = sTesto.toDouble(&bNumero);
        valore = bNumero ? QVariant(dValore) : QVariant(sTesto);
        break;
    }
    case Genere::Logico:
        valore = sTesto == QStringLiteral("t");
        break;
    case Genere::DataOra:
        valore = QDateTime::fromString(sTesto, Qt::ISODateWithMs);
        break;
    case Genere::Data:
        valore = QDate::fromString(sTesto, Qt::ISODate);
        break;
    default:
        valore = sTesto;
    }
    ScriviValore(out, valore, iTipo);
}

[[noreturn]] void ColonnaMancante() {
    Fallisci(ErroreElemento, QStringLiteral("Impossibile trovare l'elemento nell'insieme "
                                            "corrispondente al nome o al numero ordinale "
                                            "richiesto."));
}

void ApriRecord(ScritturaDati& out) {
    out.Grezzo("\r\n\t<record>");
}

// The field's opening, up to its text; Null closes it at once.
void ApriCampo(ScritturaDati& out, int iCampo, bool bNull) {
    static const std::vector<QByteArray> teste = [] {
        std::vector<QByteArray> tutte;
        for (int i = 0; i < 256; ++i)
            tutte.push_back("\r\n\t\t<field id=\"" + QByteArray::number(i) + "\" null=\"");
        return tutte;
    }();
    if (iCampo < static_cast<int>(teste.size()))
        out.Grezzo(teste[static_cast<size_t>(iCampo)]);
    else
        out.Grezzo("\r\n\t\t<field id=\"" + QByteArray::number(iCampo) + "\" null=\"");
    out.Grezzo(bNull ? QByteArrayView("1\"/>") : QByteArrayView("0\">"));
}

void ChiudiRecord(ScritturaDati& out) {
    out.Grezzo("\r\n\t</record>");
}

qint64 Scrivi(const Connessione& cnn, const QString& sTabella, const Schema& schema,
              const QString& sPercorso, bool bConfig, const QString& sCode,
              const QString& sVersione, const Progresso& progresso) {
    const Scambio::RigheDelSito righeDelSito(sCode);
    QSaveFile file(sPercorso);
    if (!file.open(QIODevice::WriteOnly)) {
        if (!QFileInfo(QFileInfo(sPercorso).absolutePath()).isDir())
            Fallisci(ErroriPiattaforma::PercorsoNonTrovato,
                     QStringLiteral("Impossibile trovare il percorso"));
        Fallisci(ErroreAccesso, QStringLiteral("Errore di accesso al percorso/file"));
    }
    ScritturaDati out(file);
    out.Grezzo(DichiarazioneXml);
    out.Grezzo("<table name=\"");
    out.Attributo(sTabella);
    out.Grezzo("\"");
    qint64 lRecord = 0;
    const auto avanza = [&] {
        ++lRecord;
        if (progresso && lRecord % 1000 == 0)
            progresso(sTabella, lRecord);
    };
    if (bConfig) {
        out.Grezzo(" version=\"");
        out.Attributo(sVersione);
        out.Grezzo("\" code=\"");
        out.Attributo(sCode);
        out.Grezzo("\">");
        std::unique_ptr<LetturaTesto> lettura;
        try {
            lettura = cnn.backend().ApriLetturaTesto(
                cnn.Db(), cnn.backend().Identificatore(sTabella.toLower()));
        } catch (const Errore& errore) {
            Fallisci(ErroreComando, errore.descrizione());
        }
        std::vector<int> indici;
        int iCodice = -1; // the column Code
        if (lettura) {
            // The server's own path: values in its text form.
            const auto indiceDi = [&lettura](const QString& sNome) {
                const QStringList& colonne = lettura->Colonne();
                qsizetype indice = 0;
                while (indice < colonne.size() &&
                       colonne[indice].compare(sNome, Qt::CaseInsensitive) != 0)
                    ++indice;
                if (indice >= colonne.size())
                    ColonnaMancante();
                return static_cast<int>(indice);
            };
            try {
                while (!out.Fallita() && lettura->Prossima()) {
                    if (indici.empty()) {
                        for (int i = 0; i < schema.iColonne; ++i)
                            indici.push_back(indiceDi(schema.nomi[static_cast<size_t>(i)]));
                        iCodice = indiceDi(QStringLiteral("Code"));
                    }
                    if (!righeDelSito.Propria(lettura->Null(iCodice), lettura->Testo(iCodice)))
                        continue;
                    ApriRecord(out);
                    for (int i = 0; i < schema.iColonne; ++i) {
                        const int indice = indici[static_cast<size_t>(i)];
                        const bool bNull = lettura->Null(indice);
                        ApriCampo(out, i + 1, bNull);
                        if (bNull)
                            continue;
                        ScriviTestoServer(out, lettura->GenereDi(indice), lettura->Testo(indice),
                                          schema.tipi[static_cast<size_t>(i)]);
                        out.Grezzo("</field>");
                    }
                    ChiudiRecord(out);
                    avanza();
                }
            } catch (const Errore& errore) {
                if (errore.numero() == ErroreElemento)
                    throw;
                Fallisci(ErroreComando, errore.descrizione());
            }
        } else {
            QSqlQuery query = Interroga(cnn, SelezionaTutto(cnn, sTabella));
            while (!out.Fallita() && query.next()) {
                if (indici.empty()) {
                    const QSqlRecord record = query.record();
                    for (int i = 0; i < schema.iColonne; ++i) {
                        const int indice = record.indexOf(schema.nomi[static_cast<size_t>(i)]);
                        if (indice < 0)
                            ColonnaMancante();
                        indici.push_back(indice);
                    }
                    iCodice = record.indexOf(QStringLiteral("Code"));
                    if (iCodice < 0)
                        ColonnaMancante();
                }
                const QVariant codice = query.value(iCodice);
                if (!righeDelSito.Propria(ENull(codice), codice.toString()))
                    continue;
                ApriRecord(out);
                for (int i = 0; i < schema.iColonne; ++i) {
                    const QVariant valore = query.value(indici[static_cast<size_t>(i)]);
                    const bool bNull = ENull(valore);
                    ApriCampo(out, i + 1, bNull);
                    if (bNull)
                        continue;
                    ScriviValore(out, valore, schema.tipi[static_cast<size_t>(i)]);
                    out.Grezzo("</field>");
                }
                ChiudiRecord(out);
                avanza();
            }
        }
    }
    out.Grezzo(bConfig ? "\r\n</table>" : ">\r\n</table>");
    out.Svuota();
    if (out.Fallita() || !file.commit())
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
    const QString sSchema = QDir(sCartellaSchemi).filePath(sTabella + QStringLiteral("Sch.xml"));
    // A refusal before anything is written: its words in a critical box.
    const auto rifiuta = [&esito](const QString& sMessaggio) {
        esito.sTitolo = QStringLiteral("Attenzione");
        esito.bCritico = true;
        esito.sMessaggio = sMessaggio;
    };
    try {
        // Step 1: pending events; an empty name is only listed.
        if (progresso)
            progresso(sTabella, 0);
        if (sTabella.isEmpty()) {
            esito.bEsportata = true;
            return esito;
        }
        esito.sPercorso = sSchema;
        // Step 2: a missing table stops here, before anything else is done (no row is read:
        // the rows are read once, when the file is written).
        const QSqlRecord colonne =
            Interroga(cnn, SelezionaTutto(cnn, sTabella) + QStringLiteral(" WHERE 1 = 0")).record();
        // A table's rows belong to the site whose code they carry: a table without it has
        // none that another site could take in or replace.
        if (colonne.indexOf(QStringLiteral("Code")) < 0) {
            rifiuta(QStringLiteral("La tabella %1 non ha la colonna Code, il codice del sito da "
                                   "cui viene ogni riga: le sue righe non viaggiano tra i siti.")
                        .arg(sTabella));
            return esito;
        }
        // Steps 3 to 5: the schema file.
        const Schema schema = LeggiSchema(sSchema);
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
            if (CodiceProvvisorio(sCode)) {
                rifiuta(Scambio::MessaggioSenzaIdentita(sCode));
                return esito;
            }
            // Step 9.
            if (!VersioniUguali(schema.sVersione, versione)) {
                rifiuta(QStringLiteral("Versioni incompatibili tra schema file [") +
                        schema.sVersione + QStringLiteral("] e Database [") + sVersione +
                        QStringLiteral("]"));
                return esito;
            }
        }
        config.finish();
        // Steps 6, 7 and 10 to 16, streamed.
        esito.sFile = QDir(sCartellaDestinazione).filePath(schema.sDataFile);
        esito.sPercorso = esito.sFile;
        esito.lRecord =
            Scrivi(cnn, sTabella, schema, esito.sFile, bConfig, sCode, sVersione, progresso);
        if (progresso)
            progresso(sTabella, esito.lRecord);
        esito.bEsportata = true;
    } catch (...) {
        // Whatever the failure, the program's own or a library's: its number and its words.
        const Errore errore = ErroreDi(std::current_exception(), Sorgente);
        const QString sPercorso = esito.sPercorso;
        esito = Esito{};
        esito.sPercorso = sPercorso;
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

QString TestoNumero(double valore) {
    char cifre[40];
    char* fine = cifre + sizeof cifre;
    QString testo = CifreNumero(valore, cifre, fine) ? QString::fromLatin1(cifre, fine - cifre)
                                                     : QString::number(valore, 'g', 15);
    testo.replace(QLatin1Char('e'), QLatin1Char('E'));
    testo.replace(QLatin1Char('.'), QLatin1Char(','));
    return testo;
}

QString ElencoTabelleEsportate() {
    return RigheMessaggio(TabelleEsportate);
}

} // namespace Export
