#include "Conversioni.h"

#include "Errore.h"

#include <QComboBox>
#include <QRegularExpression>
#include <QTimeZone>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <type_traits>

namespace {

[[noreturn]] void tipoNonCorrispondente() {
    throw Errore(QStringLiteral("Conversioni"), QStringLiteral("Tipo non corrispondente"),
                 ErroriPiattaforma::TipoNonCorrispondente);
}

// The platform's string functions: positions from 1, lengths that run past the end are cut.
QString sinistra(const QString& s, qsizetype n) {
    return s.left(qMax<qsizetype>(n, 0));
}

QString destra(const QString& s, qsizetype n) {
    return s.right(qMax<qsizetype>(n, 0));
}

QString mezzo(const QString& s, qsizetype inizio, qsizetype n) {
    if (inizio < 1 || inizio > s.size() || n <= 0)
        return QString();
    return s.mid(inizio - 1, n);
}

bool eSpazioOTab(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

QString togliSpaziETab(const QString& s) {
    qsizetype inizio = 0;
    qsizetype fine = s.size();
    while (inizio < fine && eSpazioOTab(s.at(inizio)))
        ++inizio;
    while (fine > inizio && eSpazioOTab(s.at(fine - 1)))
        --fine;
    return s.mid(inizio, fine - inizio);
}

bool eCifra(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// The text of a value, as the platform gives it when a value meets a string.
QString testoDi(const QVariant& valore) {
    return ENull(valore) ? QString() : valore.toString();
}

QString dueCifre(int n) {
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

// Month names and their three-letter forms, as an Italian system reads them in a date.
int meseDaNome(const QString& nome) {
    static const char* const mesi[] = {"gennaio",   "febbraio", "marzo",    "aprile",
                                       "maggio",    "giugno",   "luglio",   "agosto",
                                       "settembre", "ottobre",  "novembre", "dicembre"};
    const QString minuscolo = nome.toLower();
    for (int i = 0; i < 12; ++i) {
        const QString mese = QString::fromLatin1(mesi[i]);
        if (minuscolo == mese || minuscolo == mese.left(3))
            return i + 1;
    }
    return 0;
}

// A year of one or two digits falls in 1930..2029; three or four digits are taken as written.
int annoDaCifre(const QString& cifre) {
    const int anno = cifre.toInt();
    if (cifre.size() <= 2)
        return anno < 30 ? 2000 + anno : 1900 + anno;
    return anno;
}

std::optional<QDateTime> componiDataOra(int anno, int mese, int giorno, const QString& ore,
                                        const QString& minuti, const QString& secondi) {
    if (anno < 100 || anno > 9999)
        return std::nullopt;
    const QDate data(anno, mese, giorno);
    if (!data.isValid())
        return std::nullopt;
    QTime ora(0, 0, 0);
    if (!ore.isEmpty()) {
        ora = QTime(ore.toInt(), minuti.toInt(), secondi.isEmpty() ? 0 : secondi.toInt());
        if (!ora.isValid())
            return std::nullopt;
    }
    // A wall-clock reading: no local-time gap may move it.
    return QDateTime(data, ora, QTimeZone::utc());
}

// A hexadecimal or octal integer after "&H" or "&O": the platform gives it the smallest
// integer type that holds its bits, so "&HFFFF" is -1 and "&H10000" is 65536. A trailing
// "&" asks for the long type. Nothing beyond 32 bits is an integer of the platform.
std::optional<double> interoEsadecimaleOOttale(const QString& cifre, int base, bool lungo) {
    if (cifre.isEmpty())
        return std::nullopt;
    std::uint64_t valore = 0;
    for (const QChar c : cifre) {
        const int cifra = c.isDigit() ? c.digitValue()
                                      : (c.toLower().unicode() - QLatin1Char('a').unicode() + 10);
        valore = valore * static_cast<std::uint64_t>(base) + static_cast<std::uint64_t>(cifra);
        if (valore > 0xFFFFFFFFu)
            return std::nullopt;
    }
    if (!lungo && valore <= 0xFFFFu)
        return static_cast<double>(static_cast<std::int16_t>(static_cast<std::uint16_t>(valore)));
    return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(valore)));
}

bool eCifraDellaBase(QChar c, int base) {
    if (base == 8)
        return c >= QLatin1Char('0') && c <= QLatin1Char('7');
    return eCifra(c) || (c.toLower() >= QLatin1Char('a') && c.toLower() <= QLatin1Char('f'));
}

int baseDaPrefisso(const QString& s) {
    if (s.size() < 2 || s.at(0) != QLatin1Char('&'))
        return 0;
    const QChar lettera = s.at(1).toUpper();
    if (lettera == QLatin1Char('H'))
        return 16;
    if (lettera == QLatin1Char('O'))
        return 8;
    return 0;
}

// A number of the Italian system: point for thousands (between digits), comma for decimals,
// sign in front or behind, exponent, or an integer after "&H" or "&O".
std::optional<double> numeroItalianoDaTesto(const QString& testo) {
    const QString t = togliSpaziETab(testo);
    const qsizetype n = t.size();
    if (n == 0)
        return std::nullopt;

    if (const int base = baseDaPrefisso(t)) {
        const QString cifre = t.mid(2);
        for (const QChar c : cifre) {
            if (!eCifraDellaBase(c, base))
                return std::nullopt;
        }
        return interoEsadecimaleOOttale(cifre, base, false);
    }

    qsizetype i = 0;
    bool negativo = false;
    bool segnoDavanti = false;
    if (t.at(0) == QLatin1Char('+') || t.at(0) == QLatin1Char('-')) {
        negativo = t.at(0) == QLatin1Char('-');
        segnoDavanti = true;
        ++i;
    }

    QString normale;
    bool cifre = false;
    while (i < n) {
        const QChar c = t.at(i);
        if (eCifra(c)) {
            normale += c;
            cifre = true;
            ++i;
        } else if (c == QLatin1Char('.') && i > 0 && eCifra(t.at(i - 1)) && i + 1 < n &&
                   eCifra(t.at(i + 1))) {
            ++i; // a thousands point
        } else {
            break;
        }
    }
    if (i < n && t.at(i) == QLatin1Char(',')) {
        normale += QLatin1Char('.');
        ++i;
        while (i < n && eCifra(t.at(i))) {
            normale += t.at(i);
            cifre = true;
            ++i;
        }
    }
    if (!cifre)
        return std::nullopt;

    if (i < n && (t.at(i) == QLatin1Char('e') || t.at(i) == QLatin1Char('E'))) {
        normale += QLatin1Char('e');
        ++i;
        if (i < n && (t.at(i) == QLatin1Char('+') || t.at(i) == QLatin1Char('-'))) {
            normale += t.at(i);
            ++i;
        }
        bool cifreEsponente = false;
        while (i < n && eCifra(t.at(i))) {
            normale += t.at(i);
            cifreEsponente = true;
            ++i;
        }
        if (!cifreEsponente)
            return std::nullopt;
    }

    if (!segnoDavanti && i < n && (t.at(i) == QLatin1Char('+') || t.at(i) == QLatin1Char('-'))) {
        negativo = t.at(i) == QLatin1Char('-');
        ++i;
    }
    if (i != n)
        return std::nullopt;

    bool ok = false;
    const double valore = normale.toDouble(&ok);
    if (!ok || !std::isfinite(valore))
        return std::nullopt; // beyond the range of a double
    return negativo ? -valore : valore;
}

// Chr of the platform: codes 128..159 are those of the Western Windows code page.
QString carattereDaCodice(int codice) {
    static const char16_t occidentali[32] = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    if (codice >= 128 && codice < 160)
        return QString(QChar(occidentali[codice - 128]));
    if (codice < 0 || codice > 0xFFFF)
        tipoNonCorrispondente();
    return QString(QChar(static_cast<char16_t>(codice)));
}

// The item data of the chosen entry; an entry given no data holds 0, as on the platform.
std::optional<QVariant> datoVoceScelta(const QComboBox* cmb) {
    if (cmb == nullptr || cmb->currentIndex() < 0)
        return std::nullopt;
    const QVariant dato = cmb->itemData(cmb->currentIndex(), Qt::UserRole);
    if (!dato.isValid())
        return QVariant(0);
    return dato;
}

} // namespace

bool ENull(const QVariant& valore) {
    // A database Null comes as a typed variant without a value; a null QString is not Null.
    return !valore.isValid() || valore.isNull() || valore.metaType().id() == QMetaType::Nullptr;
}

std::optional<QDateTime> DataOraItaliana(const QString& testo) {
    static const QRegularExpression giornoPrima(
        QStringLiteral("^(\\d{1,2})[-/.](\\d{1,2}|[A-Za-z]+)[-/.](\\d{1,4})"
                       "(?:[ \\t]+(\\d{1,2})[:.](\\d{1,2})(?:[:.](\\d{1,2}))?)?$"));
    static const QRegularExpression iso(
        QStringLiteral("^(\\d{4})-(\\d{1,2})-(\\d{1,2})"
                       "(?:[ T](\\d{1,2}):(\\d{2})(?::(\\d{2})(?:\\.\\d{1,9})?)?)?$"));

    const QString t = togliSpaziETab(testo);

    if (const QRegularExpressionMatch m = giornoPrima.match(t); m.hasMatch()) {
        const QString testoMese = m.captured(2);
        const int mese = eCifra(testoMese.at(0)) ? testoMese.toInt() : meseDaNome(testoMese);
        if (mese == 0)
            return std::nullopt;
        return componiDataOra(annoDaCifre(m.captured(3)), mese, m.captured(1).toInt(),
                              m.captured(4), m.captured(5), m.captured(6));
    }
    if (const QRegularExpressionMatch m = iso.match(t); m.hasMatch()) {
        return componiDataOra(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt(),
                              m.captured(4), m.captured(5), m.captured(6));
    }
    return std::nullopt;
}

bool IsDate(const QString& testo) {
    return DataOraItaliana(testo).has_value();
}

bool IsNumeric(const QString& testo) {
    return numeroItalianoDaTesto(testo).has_value();
}

double CDbl(const QString& testo) {
    const std::optional<double> valore = numeroItalianoDaTesto(testo);
    if (!valore)
        tipoNonCorrispondente();
    return *valore;
}

double Val(const QString& testo) {
    // Blanks, tabs and line feeds do not count wherever they stand.
    QString s;
    s.reserve(testo.size());
    for (const QChar c : testo) {
        if (c != QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n'))
            s += c;
    }
    const qsizetype n = s.size();

    if (const int base = baseDaPrefisso(s)) {
        qsizetype i = 2;
        while (i < n && eCifraDellaBase(s.at(i), base))
            ++i;
        const bool lungo = i < n && s.at(i) == QLatin1Char('&');
        const QString cifre = s.mid(2, i - 2);
        if (const std::optional<double> valore = interoEsadecimaleOOttale(cifre, base, lungo))
            return *valore;
        // Past 32 bits: the plain value of the digits.
        double valore = 0;
        for (const QChar c : cifre)
            valore =
                valore * base + (c.isDigit() ? c.digitValue() : c.toLower().unicode() - 'a' + 10);
        return valore;
    }

    qsizetype i = 0;
    QString normale;
    if (i < n && (s.at(i) == QLatin1Char('+') || s.at(i) == QLatin1Char('-'))) {
        normale += s.at(i);
        ++i;
    }
    bool cifre = false;
    bool punto = false;
    while (i < n) {
        const QChar c = s.at(i);
        if (eCifra(c)) {
            cifre = true;
        } else if (c == QLatin1Char('.') && !punto) {
            punto = true;
        } else {
            break;
        }
        normale += c;
        ++i;
    }
    if (!cifre)
        return 0;

    if (i < n && QStringLiteral("eEdD").contains(s.at(i))) {
        qsizetype j = i + 1;
        QString esponente = QStringLiteral("e");
        if (j < n && (s.at(j) == QLatin1Char('+') || s.at(j) == QLatin1Char('-'))) {
            esponente += s.at(j);
            ++j;
        }
        const qsizetype inizioCifre = j;
        while (j < n && eCifra(s.at(j))) {
            esponente += s.at(j);
            ++j;
        }
        if (j > inizioCifre)
            normale += esponente;
    }

    bool ok = false;
    const double valore = normale.toDouble(&ok);
    if (ok)
        return valore;
    // Only a result out of range gets here.
    return normale.startsWith(QLatin1Char('-')) ? -HUGE_VAL : HUGE_VAL;
}

QString DataSql(const QString& data) {
    const std::optional<QDateTime> dataOra = DataOraItaliana(data);
    if (!dataOra)
        tipoNonCorrispondente();
    return DataSql(*dataOra);
}

namespace {

template <typename Testo> bool Canonica(const Testo& s) {
    if (s.size() != 19)
        return false;
    const auto codice = [&s](qsizetype i) -> char16_t {
        if constexpr (std::is_same_v<Testo, QStringView>)
            return s[i].unicode();
        else
            return static_cast<unsigned char>(s[i]);
    };
    for (qsizetype i = 0; i < 19; ++i) {
        const char16_t c = codice(i);
        switch (i) {
        case 4:
        case 7:
            if (c != u'-')
                return false;
            break;
        case 10:
            if (c != u' ')
                return false;
            break;
        case 13:
        case 16:
            if (c != u':')
                return false;
            break;
        default:
            if (c < u'0' || c > u'9')
                return false;
        }
    }
    const auto numero = [&codice](qsizetype i, qsizetype n) {
        int v = 0;
        for (qsizetype k = i; k < i + n; ++k)
            v = v * 10 + (codice(k) - u'0');
        return v;
    };
    return codice(0) != u'0' && QDate::isValid(numero(0, 4), numero(5, 2), numero(8, 2)) &&
           numero(11, 2) < 24 && numero(14, 2) < 60 && numero(17, 2) < 60;
}

} // namespace

bool DataSqlCanonica(QStringView testo) {
    return Canonica(testo);
}

bool DataSqlCanonica(QByteArrayView testo) {
    return Canonica(testo);
}

QString DataSql(const QDateTime& data) {
    if (!data.isValid())
        tipoNonCorrispondente();
    const QDate giorno = data.date();
    const QTime ora = data.time();
    return QString::number(giorno.year()) + QLatin1Char('-') + dueCifre(giorno.month()) +
           QLatin1Char('-') + dueCifre(giorno.day()) + QLatin1Char(' ') + dueCifre(ora.hour()) +
           QLatin1Char(':') + dueCifre(ora.minute()) + QLatin1Char(':') + dueCifre(ora.second());
}

QString DataDaNumero(qint64 lData) {
    if (lData < 1)
        return QString();
    // The digits cut as text: the last two, the fifth and sixth, the first four. A date of seven
    // digits is not padded: its digits come out shifted. Written into one buffer, as long lists
    // show a date on every row.
    char cifre[20];
    const auto fine = std::to_chars(std::begin(cifre), std::end(cifre), lData).ptr;
    const qsizetype n = fine - cifre;
    char16_t testo[2 + 1 + 2 + 1 + 4];
    qsizetype k = 0;
    for (qsizetype i = std::max<qsizetype>(0, n - 2); i < n; ++i) {
        testo[k++] = static_cast<char16_t>(cifre[i]);
    }
    testo[k++] = u'/';
    for (qsizetype i = 4; i < std::min<qsizetype>(n, 6); ++i) {
        testo[k++] = static_cast<char16_t>(cifre[i]);
    }
    testo[k++] = u'/';
    for (qsizetype i = 0; i < std::min<qsizetype>(n, 4); ++i) {
        testo[k++] = static_cast<char16_t>(cifre[i]);
    }
    return QString(reinterpret_cast<const QChar*>(testo), k);
}

QString DataDaTesto(const QVariant& vData) {
    if (ENull(vData))
        return QString();
    QString s = testoDi(vData);
    if (s.size() < 2)
        return QString();
    if (s.size() < 8)
        s = QString(8 - s.size(), QLatin1Char(' ')) + s;
    return Trim(destra(s, 2) + QLatin1Char('/') + mezzo(s, 5, 2) + QLatin1Char('/') +
                LTrim(sinistra(s, 4)));
}

QVariant NumeroDaData(const QString& sData) {
    const std::optional<QDateTime> dataOra = DataOraItaliana(sData);
    if (!dataOra)
        return QVariant();
    const QDate data = dataOra->date();
    const QString cifre =
        QString::number(data.year()) + dueCifre(data.month()) + dueCifre(data.day());
    return QVariant(cifre.toLongLong());
}

QString AnnoDaData(const QVariant& vData) {
    if (ENull(vData))
        return QString();
    const QString s = testoDi(vData);
    return Trim(sinistra(s, s.size() == 8 ? 4 : 3));
}

QVariant DataDaAnno(const QString& sAnno, bool bInizio) {
    if (sAnno.isEmpty())
        return QVariant();
    QString anno = sAnno;
    if (anno.size() < 4)
        anno = QString(4 - anno.size(), QLatin1Char(' ')) + anno;
    return QVariant(LTrim(anno) + (bInizio ? QStringLiteral("0101") : QStringLiteral("1231")));
}

QVariant NullSeVuoto(const QVariant& vTesto, const QString& sVuoto) {
    if (ENull(vTesto))
        return QVariant();
    const QString testo = testoDi(vTesto);
    if (testo == sVuoto)
        return QVariant();
    return QVariant(testo);
}

QString TestoODefault(const QString& sTesto, const QString& sDefault) {
    return sTesto.isEmpty() ? sDefault : sTesto;
}

QVariant NumeroONull(const QString& sTesto, const QString& sVuoto) {
    if (sTesto == sVuoto)
        return QVariant();
    return QVariant(Val(sTesto));
}

QVariant NumeroOZero(const QString& sTesto, const QString& sVuoto) {
    if (sTesto == sVuoto)
        return QVariant(0);
    return QVariant(CDbl(sTesto));
}

QString CodiceVoceScelta(const QComboBox* cmb) {
    const std::optional<QVariant> dato = datoVoceScelta(cmb);
    return dato ? dato->toString() : QString();
}

QString TestoVoceScelta(const QComboBox* cmb) {
    return cmb == nullptr ? QString() : cmb->currentText();
}

QString CarattereVoceScelta(const QComboBox* cmb) {
    const std::optional<QVariant> dato = datoVoceScelta(cmb);
    if (!dato)
        return QString();
    bool ok = false;
    const int codice = dato->toInt(&ok);
    if (!ok)
        tipoNonCorrispondente();
    return carattereDaCodice(codice);
}

bool NumeroValido(const QString& sTesto) {
    return sTesto.isEmpty() || IsNumeric(sTesto);
}

QString CartellaDaPercorso(const QString& sPercorso) {
    const qsizetype ultimo =
        qMax(sPercorso.lastIndexOf(QLatin1Char('\\')), sPercorso.lastIndexOf(QLatin1Char('/')));
    return ultimo < 0 ? QString() : sPercorso.left(ultimo + 1);
}

QString NumeroItaliano(double valore, int decimali) {
    if (!std::isfinite(valore))
        return QString::number(valore);
    decimali = qMax(decimali, 0);
    const QString cifre = QString::number(std::fabs(valore), 'f', decimali);
    const qsizetype punto = cifre.indexOf(QLatin1Char('.'));
    const QString intera = punto < 0 ? cifre : cifre.left(punto);
    const QString decimale = punto < 0 ? QString() : cifre.mid(punto + 1);

    QString risultato;
    for (qsizetype i = 0; i < intera.size(); ++i) {
        if (i > 0 && (intera.size() - i) % 3 == 0)
            risultato += QLatin1Char('.');
        risultato += intera.at(i);
    }
    if (!decimale.isEmpty())
        risultato += QLatin1Char(',') + decimale;

    // A negative that rounds to zero shows no sign.
    const bool zero = std::all_of(cifre.cbegin(), cifre.cend(), [](QChar c) {
        return c == QLatin1Char('0') || c == QLatin1Char('.');
    });
    if (valore < 0 && !zero)
        risultato.prepend(QLatin1Char('-'));
    return risultato;
}

QString LTrim(const QString& s) {
    qsizetype i = 0;
    while (i < s.size() && s.at(i) == QLatin1Char(' ')) {
        ++i;
    }
    return s.mid(i);
}

QString Trim(const QString& s) {
    qsizetype fine = s.size();
    while (fine > 0 && s.at(fine - 1) == QLatin1Char(' ')) {
        --fine;
    }
    return LTrim(s.left(fine));
}
