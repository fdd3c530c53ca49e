#include "LetturaDati.h"

#include "session/Errore.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>
#include <cstring>
#include <string_view>

namespace Import {

void Fallisci(const QString& sDescrizione) {
    throw Errore(QStringLiteral("Import"), sDescrizione);
}

int Intero(QStringView s, const QString& sCosa) {
    bool ok = false;
    const int n = s.trimmed().toInt(&ok);
    if (!ok)
        Fallisci(QStringLiteral("Valore non numerico in %1: \"%2\"").arg(sCosa, s.toString()));
    return n;
}

namespace {

constexpr size_t RecordPerBlocco = 1000;
constexpr size_t BlocchiInCoda = 4;
constexpr qint64 Pezzo = 1 << 20;

// What the scanner made of the bytes in front of it.
enum class Esito {
    Fatto,  // read, and the position moved past it
    Manca,  // the bytes end first: more are needed
    Ignoto, // not the layout the scanner knows: the general reader takes over
};

bool Spazio(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

Esito Parola(const char*& p, const char* fine, std::string_view parola) {
    const size_t iResto = static_cast<size_t>(fine - p);
    if (iResto < parola.size())
        return std::memcmp(p, parola.data(), iResto) == 0 ? Esito::Manca : Esito::Ignoto;
    if (std::memcmp(p, parola.data(), parola.size()) != 0)
        return Esito::Ignoto;
    p += parola.size();
    return Esito::Fatto;
}

bool CarattereXml(char32_t c) {
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

void Emetti(char16_t*& d, char32_t c) {
    if (c >= 0x10000) {
        *d++ = QChar::highSurrogate(c);
        *d++ = QChar::lowSurrogate(c);
    } else {
        *d++ = static_cast<char16_t>(c);
    }
}

// An entity or character reference at p ("&...;"), within [p, fine).
bool Entita(const char*& p, const char* fine, char32_t& c) {
    const char* fineNome =
        static_cast<const char*>(std::memchr(p, ';', static_cast<size_t>(fine - p)));
    if (!fineNome)
        return false;
    const std::string_view nome(p + 1, static_cast<size_t>(fineNome - p - 1));
    p = fineNome + 1;
    if (nome == "lt")
        c = '<';
    else if (nome == "gt")
        c = '>';
    else if (nome == "amp")
        c = '&';
    else if (nome == "quot")
        c = '"';
    else if (nome == "apos")
        c = '\'';
    else if (nome.size() >= 2 && nome[0] == '#') {
        const bool bEsa = nome[1] == 'x';
        const std::string_view cifre = nome.substr(bEsa ? 2 : 1);
        if (cifre.empty() || cifre.size() > 8)
            return false;
        char32_t v = 0;
        for (const char k : cifre) {
            int n = -1;
            if (k >= '0' && k <= '9')
                n = k - '0';
            else if (bEsa && k >= 'a' && k <= 'f')
                n = k - 'a' + 10;
            else if (bEsa && k >= 'A' && k <= 'F')
                n = k - 'A' + 10;
            if (n < 0)
                return false;
            v = v * (bEsa ? 16 : 10) + static_cast<char32_t>(n);
        }
        if (!CarattereXml(v))
            return false;
        c = v;
    } else {
        return false;
    }
    return true;
}

// A field's text, [a, b): entities resolved, line ends as XML reads them (CR LF and a lone CR
// become LF), UTF-8 checked. False for anything the scanner leaves to the general reader.
bool Testo(const char* a, const char* b, QString& testo) {
    bool bSemplice = true;
    for (const char* p = a; p < b && bSemplice; ++p) {
        const unsigned char c = static_cast<unsigned char>(*p);
        bSemplice = c >= 0x20 ? (c < 0x80 && c != '&' && c != ']') : (c == '\t' || c == '\n');
    }
    if (bSemplice) {
        testo = QString::fromLatin1(a, b - a);
        return true;
    }
    testo.resize(b - a);
    char16_t* inizio = reinterpret_cast<char16_t*>(testo.data());
    char16_t* d = inizio;
    for (const char* p = a; p < b;) {
        const unsigned char c = static_cast<unsigned char>(*p);
        if (c < 0x80) {
            if (c == '&') {
                char32_t carattere = 0;
                if (!Entita(p, b, carattere))
                    return false;
                Emetti(d, carattere);
                continue;
            }
            if (c == '\r') {
                *d++ = u'\n';
                p += (p + 1 < b && p[1] == '\n') ? 2 : 1;
                continue;
            }
            if (c < 0x20 && c != '\t' && c != '\n')
                return false;
            if (c == ']' && b - p >= 3 && p[1] == ']' && p[2] == '>')
                return false;
            *d++ = c;
            ++p;
            continue;
        }
        int n = 0;
        char32_t codice = 0;
        if (c >= 0xC2 && c <= 0xDF) {
            n = 2;
            codice = c & 0x1F;
        } else if (c >= 0xE0 && c <= 0xEF) {
            n = 3;
            codice = c & 0x0F;
        } else if (c >= 0xF0 && c <= 0xF4) {
            n = 4;
            codice = c & 0x07;
        } else {
            return false;
        }
        if (b - p < n)
            return false;
        for (int k = 1; k < n; ++k) {
            const unsigned char s = static_cast<unsigned char>(p[k]);
            if ((s & 0xC0) != 0x80)
                return false;
            codice = (codice << 6) | (s & 0x3F);
        }
        // Overlong forms, surrogates and what lies past U+10FFFF are not UTF-8.
        if ((n == 3 && codice < 0x800) || (n == 4 && (codice < 0x10000 || codice > 0x10FFFF)) ||
            !CarattereXml(codice))
            return false;
        Emetti(d, codice);
        p += n;
    }
    testo.truncate(d - inizio);
    return true;
}

// A record from just after "<record>" to just after "</record>".
Esito Record(const char*& p, const char* fine, qsizetype iSlot, std::vector<CampoLetto>& campi) {
    for (;;) {
        while (p < fine && Spazio(*p))
            ++p;
        if (p >= fine)
            return Esito::Manca;
        const char* prova = p;
        Esito esito = Parola(prova, fine, "</record>");
        if (esito == Esito::Fatto) {
            p = prova;
            return Esito::Fatto;
        }
        if (esito == Esito::Manca)
            return esito;
        if ((esito = Parola(p, fine, "<field id=\"")) != Esito::Fatto)
            return esito;
        int iId = 0;
        int iCifre = 0;
        while (p < fine && *p >= '0' && *p <= '9' && iCifre < 9) {
            iId = iId * 10 + (*p++ - '0');
            ++iCifre;
        }
        if (p >= fine)
            return Esito::Manca;
        if (iCifre == 0 || iId < 1 || iId > iSlot)
            return Esito::Ignoto;
        if ((esito = Parola(p, fine, "\" null=\"")) != Esito::Fatto)
            return esito;
        if (p >= fine)
            return Esito::Manca;
        if (*p != '0' && *p != '1')
            return Esito::Ignoto;
        CampoLetto campo;
        campo.iSlot = iId - 1;
        campo.bNull = *p++ == '1';
        if (p >= fine)
            return Esito::Manca;
        if (*p++ != '"')
            return Esito::Ignoto;
        if (p >= fine)
            return Esito::Manca;
        if (*p == '/') {
            if ((esito = Parola(p, fine, "/>")) != Esito::Fatto)
                return esito;
            campi.push_back(std::move(campo));
            continue;
        }
        if (*p++ != '>')
            return Esito::Ignoto;
        const char* fineTesto =
            static_cast<const char*>(std::memchr(p, '<', static_cast<size_t>(fine - p)));
        if (!fineTesto)
            return Esito::Manca;
        const char* inizioTesto = p;
        p = fineTesto;
        if ((esito = Parola(p, fine, "</field>")) != Esito::Fatto)
            return esito;
        if (!Testo(inizioTesto, fineTesto, campo.sTesto))
            return Esito::Ignoto;
        campi.push_back(std::move(campo));
    }
}

} // namespace

LettoreDati::LettoreDati(const QString& sPercorsoDato, qsizetype iSlotDati, qint64 lInizio)
    : sPercorso(sPercorsoDato)
    , iSlot(iSlotDati)
    , lInizioCorpo(lInizio) {
    thread = std::thread([this] { Leggi(); });
}

LettoreDati::~LettoreDati() {
    {
        const std::lock_guard<std::mutex> blocco(mutex);
        bFermato = true;
    }
    cambiato.notify_all();
    thread.join();
}

bool LettoreDati::Prossimo(BloccoLetto& blocco) {
    std::unique_lock<std::mutex> attesa(mutex);
    cambiato.wait(attesa, [this] { return !coda.empty() || bFinito; });
    if (coda.empty())
        return false;
    blocco = std::move(coda.front());
    coda.pop_front();
    cambiato.notify_all();
    return true;
}

qint64 LettoreDati::RecordVeloci() const {
    return lVeloci;
}

LettoreDati::Testa LettoreDati::LeggiTesta(const QString& sPercorso) {
    QFile file(sPercorso);
    if (!file.open(QIODevice::ReadOnly))
        Fallisci(QStringLiteral("File non trovato: %1").arg(QDir::toNativeSeparators(sPercorso)));
    Testa testa;
    bool bVeloce = true;
    qint64 lInizio = -1;
    {
        QXmlStreamReader xml(&file);
        while (!xml.atEnd() && lInizio < 0) {
            switch (xml.readNext()) {
            case QXmlStreamReader::StartDocument:
                bVeloce = xml.documentEncoding().isEmpty() ||
                          xml.documentEncoding().compare(QStringLiteral("UTF-8"),
                                                         Qt::CaseInsensitive) == 0;
                break;
            case QXmlStreamReader::DTD:
                bVeloce = false; // it may declare entities and attribute defaults
                break;
            case QXmlStreamReader::StartElement:
                testa.sCode = xml.attributes().value(QStringLiteral("code")).toString();
                testa.sVersione = xml.attributes().value(QStringLiteral("version")).toString();
                // The scanner ends the body at "</table>": the root must be that element.
                bVeloce = bVeloce && xml.qualifiedName() == QStringLiteral("table");
                lInizio = xml.characterOffset();
                break;
            default:
                break;
            }
        }
        if (xml.hasError() || lInizio < 0)
            Fallisci(QStringLiteral("%1: %2").arg(
                QDir::toNativeSeparators(sPercorso),
                xml.hasError() ? xml.errorString() : QStringLiteral("documento senza elemento")));
    }
    if (!bVeloce || !file.seek(0))
        return testa;
    // Characters are bytes only in plain ASCII; an empty root ("/>") has no body.
    const QByteArray inizio = file.read(lInizio);
    if (inizio.size() != lInizio || !inizio.endsWith('>') || inizio.endsWith("/>"))
        return testa;
    for (const char c : inizio)
        if (static_cast<unsigned char>(c) >= 0x80)
            return testa;
    testa.lInizioCorpo = lInizio;
    return testa;
}

bool LettoreDati::Consegna(BloccoLetto& blocco) {
    std::unique_lock<std::mutex> attesa(mutex);
    cambiato.wait(attesa, [this] { return coda.size() < BlocchiInCoda || bFermato; });
    if (bFermato)
        return false;
    coda.push_back(std::move(blocco));
    blocco = BloccoLetto();
    cambiato.notify_all();
    return true;
}

void LettoreDati::Leggi() {
    BloccoLetto blocco;
    try {
        const qint64 lVelociLetti = lInizioCorpo >= 0 ? LeggiVeloce(blocco) : 0;
        if (lVelociLetti >= 0)
            LeggiFile(blocco, lVelociLetti);
    } catch (const Errore& errore) {
        blocco.sErrore = errore.descrizione();
    } catch (const std::exception& eccezione) {
        blocco.sErrore = QString::fromLocal8Bit(eccezione.what());
    }
    // Only whole records are taken.
    blocco.campi.resize(blocco.fineRecord.empty() ? 0 : blocco.fineRecord.back());
    if (!blocco.campi.empty() || !blocco.sErrore.isEmpty())
        Consegna(blocco);
    const std::lock_guard<std::mutex> fine(mutex);
    bFinito = true;
    cambiato.notify_all();
}

// The records the scanner read when the general reader must go on (passing over them), or
// -1 when the whole file was read (or the reading was stopped).
qint64 LettoreDati::LeggiVeloce(BloccoLetto& blocco) {
    QFile file(sPercorso);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(lInizioCorpo))
        return 0;
    QByteArray dati;
    qsizetype iPosizione = 0;
    bool bFineFile = false;
    const auto riempi = [&] {
        if (bFineFile)
            return false;
        dati.remove(0, iPosizione);
        iPosizione = 0;
        const QByteArray altri = file.read(Pezzo);
        if (altri.isEmpty()) {
            bFineFile = true;
            return false;
        }
        dati.append(altri);
        return true;
    };
    bool bFineTabella = false;
    for (;;) {
        const char* p = dati.constData() + iPosizione;
        const char* fine = dati.constData() + dati.size();
        while (p < fine && Spazio(*p))
            ++p;
        Esito esito = Esito::Manca;
        if (p < fine && !bFineTabella) {
            esito = Parola(p, fine, "<record>");
            if (esito == Esito::Fatto) {
                const size_t iInizio = blocco.campi.size();
                esito = Record(p, fine, iSlot, blocco.campi);
                if (esito != Esito::Fatto) {
                    blocco.campi.resize(iInizio);
                } else {
                    iPosizione = p - dati.constData();
                    blocco.fineRecord.push_back(blocco.campi.size());
                    ++lVeloci;
                    if (blocco.fineRecord.size() >= RecordPerBlocco && !Consegna(blocco))
                        return -1;
                    continue;
                }
            } else if (esito == Esito::Ignoto) {
                esito = Parola(p, fine, "</table>");
                if (esito == Esito::Fatto) {
                    bFineTabella = true;
                    iPosizione = p - dati.constData();
                    continue;
                }
            }
        } else if (p < fine) {
            esito = Esito::Ignoto; // after the end of table, only blanks
        } else {
            iPosizione = p - dati.constData();
        }
        if (esito == Esito::Ignoto)
            return lVeloci;
        if (!riempi())
            return bFineTabella ? -1 : lVeloci;
    }
}

void LettoreDati::LeggiFile(BloccoLetto& blocco, qint64 lDaSaltare) {
    QFile file(sPercorso);
    if (!file.open(QIODevice::ReadOnly))
        Fallisci(QStringLiteral("File non trovato: %1").arg(QDir::toNativeSeparators(sPercorso)));
    QXmlStreamReader xml(&file);
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::StartElement) {
    }
    const QString sRecord = QStringLiteral("record");
    const QString sField = QStringLiteral("field");
    const QString sId = QStringLiteral("id");
    const QString sNull = QStringLiteral("null");
    qint64 lRecord = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement())
            break; // the end of table
        if (!xml.isStartElement())
            continue;
        if (xml.name() != sRecord) {
            xml.skipCurrentElement();
            continue;
        }
        // The records the scanner gave are read again, not given twice.
        const bool bDato = lRecord >= lDaSaltare;
        const size_t iInizio = blocco.campi.size();
        while (xml.readNextStartElement()) {
            if (xml.name() != sField) {
                xml.skipCurrentElement();
                continue;
            }
            const QXmlStreamAttributes attributi = xml.attributes();
            const QStringView id = attributi.value(sId);
            const QStringView null = attributi.value(sNull);
            if (id.isEmpty() || null.isEmpty())
                Fallisci(QStringLiteral("Campo senza attributo id o null nel record %1")
                             .arg(lRecord + 1));
            CampoLetto campo;
            campo.iSlot = Intero(id, sId) - 1;
            campo.bNull = Intero(null, sNull) != 0;
            campo.sTesto = xml.readElementText();
            if (campo.iSlot < 0 || campo.iSlot >= iSlot)
                Fallisci(QStringLiteral("Indice non compreso nell'intervallo"));
            if (bDato)
                blocco.campi.push_back(std::move(campo));
        }
        if (xml.hasError()) {
            blocco.campi.resize(iInizio); // a record cut short is not taken
            break;
        }
        ++lRecord;
        if (!bDato)
            continue;
        blocco.fineRecord.push_back(blocco.campi.size());
        if (blocco.fineRecord.size() >= RecordPerBlocco && !Consegna(blocco))
            return;
    }
    // The rest of the file must be well formed too, or nothing of it is taken.
    while (!xml.atEnd() && !xml.hasError())
        xml.readNext();
    if (xml.hasError())
        Fallisci(QStringLiteral("%1: %2 (riga %3)")
                     .arg(QDir::toNativeSeparators(sPercorso), xml.errorString())
                     .arg(xml.lineNumber()));
}

} // namespace Import
