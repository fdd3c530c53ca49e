#include "images/basGestImgMag.h"

#include "images/Md5.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QProgressDialog>
#include <QSqlQuery>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <exception>
#include <filesystem>
#include <memory>
#include <system_error>

namespace basGestImgMag {

namespace {

const QString CrLf = QStringLiteral("\r\n");
const QString TestaLocation = QStringLiteral("<location phisicalpath=\"");

QString Prefisso(const char* routine) {
    return QStringLiteral("basGestImgMag.") + QLatin1String(routine) + QStringLiteral(": ");
}

// A routine's work that does not raise: a failure leaves its words in sErrore after the
// routine's name, and the routine gives back its value of failure.
template <typename Risultato, typename Lavoro>
Risultato Protetto(const char* routine, QString& sErrore, Risultato fallito, Lavoro lavoro) {
    try {
        return lavoro();
    } catch (const Errore& e) {
        sErrore = Prefisso(routine) + e.descrizione();
    } catch (const std::exception& e) {
        sErrore = Prefisso(routine) + QString::fromLocal8Bit(e.what());
    }
    return fallito;
}

// A path written in the form of this platform (POSIX: it begins at the root and holds no
// backslash); anything else is read as a Windows-style text.
bool PercorsoPosix(const QString& s) {
#ifdef Q_OS_WIN
    Q_UNUSED(s);
    return false;
#else
    return s.startsWith(QLatin1Char('/')) && !s.contains(QLatin1Char('\\'));
#endif
}

// The separator of the tree that sParam01 roots.
QChar Separatore(const QString& sRadice) {
    return PercorsoPosix(sRadice) ? QLatin1Char('/') : QLatin1Char('\\');
}

bool FiniscePerSeparatore(const QString& s) {
    return s.endsWith(QLatin1Char('\\')) || s.endsWith(QLatin1Char('/'));
}

// Creates a folder one level at a time from the root down; only paths that this platform
// can reach are touched.
bool CreaCartella(const QString& sCartella, QString& sDescrizione) {
    if (!PercorsoPosix(sCartella) && !QDir::isAbsolutePath(sCartella))
        return true;
    QString sParziale;
    const QStringList livelli = sCartella.split(QLatin1Char('/'));
    for (qsizetype i = 0; i < livelli.size(); ++i) {
        sParziale += livelli.at(i);
        if (i + 1 < livelli.size())
            sParziale += QLatin1Char('/');
        if (livelli.at(i).isEmpty())
            continue;
        if (QFileInfo(sParziale).isDir())
            continue;
        if (!QDir().mkdir(sParziale)) {
            sDescrizione = QStringLiteral("Impossibile creare la cartella: %1").arg(sParziale);
            return false;
        }
    }
    return true;
}

// The leading number of a text, as the platform's Val reads it (blanks skipped, 0 when none).
double ValNumero(const QString& s) {
    QString cifre;
    bool bPunto = false;
    for (const QChar c : s) {
        if (c == QLatin1Char(' ') && cifre.isEmpty())
            continue;
        if (c.isDigit() || (c == QLatin1Char('-') && cifre.isEmpty()))
            cifre += c;
        else if (c == QLatin1Char('.') && !bPunto) {
            bPunto = true;
            cifre += c;
        } else
            break;
    }
    return cifre.toDouble();
}

QString Numero(double d) {
    return QString::number(static_cast<qint64>(d));
}

// The local part of an XML name: what follows its prefix.
QStringView Locale(QStringView nome) {
    const qsizetype dueP = nome.indexOf(QLatin1Char(':'));
    return dueP < 0 ? nome : nome.mid(dueP + 1);
}

// One `img` of a MAG document, as far as the repository reads it.
struct Pagina {
    bool bNomenclature = false;
    QString sNomenclature;
    bool bSequenza = false;
    QString sSequenza;
    bool bFile = false;
    bool bHref = false;
    QString sHref;
};

// The `img` children of the document element. Elements and attributes are matched by their
// local name, so a document that declares the standard's namespaces reads as a bare one.
bool LeggiMag(const QString& sFileXml, QList<Pagina>& pagine, QString& sDescrizione) {
    QFile file(sFileXml);
    if (!QFileInfo(sFileXml).isFile()) {
        sDescrizione = QStringLiteral("File non trovato: %1").arg(sFileXml);
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        sDescrizione = file.errorString();
        return false;
    }
    QXmlStreamReader r(&file);
    r.setNamespaceProcessing(false);
    if (r.readNextStartElement()) {
        while (r.readNextStartElement()) {
            if (Locale(r.qualifiedName()) != QLatin1String("img")) {
                r.skipCurrentElement();
                continue;
            }
            Pagina p;
            while (r.readNextStartElement()) {
                const QStringView nome = Locale(r.qualifiedName());
                if (nome == QLatin1String("nomenclature") && !p.bNomenclature) {
                    p.bNomenclature = true;
                    p.sNomenclature =
                        r.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
                } else if (nome == QLatin1String("sequence_number") && !p.bSequenza) {
                    p.bSequenza = true;
                    p.sSequenza =
                        r.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
                } else if (nome == QLatin1String("file") && !p.bFile) {
                    p.bFile = true;
                    const QXmlStreamAttributes attributi = r.attributes();
                    for (const QXmlStreamAttribute& a : attributi) {
                        if (Locale(a.qualifiedName()) == QLatin1String("href")) {
                            p.bHref = true;
                            p.sHref = a.value().toString();
                            break;
                        }
                    }
                    r.skipCurrentElement();
                } else {
                    r.skipCurrentElement();
                }
            }
            pagine.append(p);
        }
    }
    while (!r.atEnd() && !r.hasError())
        r.readNext();
    if (r.hasError()) {
        sDescrizione = QStringLiteral("Documento XML non valido: %1 (riga %2, colonna %3)")
                           .arg(r.errorString())
                           .arg(r.lineNumber())
                           .arg(r.columnNumber());
        return false;
    }
    return true;
}

// Where an image of the document lies: a relative reference resolved against the document's
// folder, an absolute one kept.
QString PercorsoImmagine(const QString& sHref, const QString& sCartellaDoc) {
    QString s = sHref;
    if (PercorsoPosix(sCartellaDoc)) {
        s.replace(QLatin1Char('\\'), QLatin1Char('/'));
        if (s.startsWith(QLatin1Char('/')))
            return s;
        if (s.startsWith(QLatin1String("./")))
            s = s.mid(2);
        return sCartellaDoc + s;
    }
    s.replace(QLatin1Char('/'), QLatin1Char('\\'));
    s.replace(QLatin1String(".\\"), sCartellaDoc);
    return s;
}

QString NomeFile(const QString& sPercorso) {
    const qsizetype ultimo =
        qMax(sPercorso.lastIndexOf(QLatin1Char('\\')), sPercorso.lastIndexOf(QLatin1Char('/')));
    return sPercorso.mid(ultimo + 1);
}

// A copy at the disk's pace: the kernel copies, no flush per file.
bool CopiaFile(const QString& sOrigine, const QString& sDestinazione, QString& sDescrizione) {
    if (!QFileInfo(sOrigine).isFile()) {
        sDescrizione = QStringLiteral("File non trovato: %1").arg(sOrigine);
        return false;
    }
    std::error_code errore;
    const std::filesystem::path origine(QFile::encodeName(sOrigine).toStdString());
    const std::filesystem::path destinazione(QFile::encodeName(sDestinazione).toStdString());
    std::filesystem::copy_file(origine, destinazione,
                               std::filesystem::copy_options::overwrite_existing, errore);
    if (errore) {
        sDescrizione =
            QStringLiteral("Impossibile copiare %1 in %2: %3")
                .arg(sOrigine, sDestinazione, QString::fromLocal8Bit(errore.message().c_str()));
        return false;
    }
    return true;
}

int iAttesaAvanzamento = 500;

// The progress of the copy, where there is a screen: file n of N, no cancel.
class Avanzamento {
public:
    explicit Avanzamento(qsizetype nTotale)
        : totale(nTotale) {
        if (totale <= 0 || qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
            return;
        dialogo = std::make_unique<QProgressDialog>(QApplication::activeWindow());
        dialogo->setWindowTitle(Sessione::TitoloProgramma);
        dialogo->setCancelButton(nullptr);
        dialogo->setWindowModality(Qt::ApplicationModal);
        dialogo->setMinimumDuration(iAttesaAvanzamento);
        dialogo->setAutoClose(false);
        dialogo->setAutoReset(false);
        dialogo->setRange(0, static_cast<int>(totale));
    }
    ~Avanzamento() {
        if (dialogo)
            dialogo->close();
    }
    void File(qsizetype n) {
        if (!dialogo)
            return;
        dialogo->setLabelText(
            QStringLiteral("Copia delle immagini: file %1 di %2").arg(n).arg(totale));
        dialogo->setValue(static_cast<int>(n - 1));
    }

private:
    qsizetype totale;
    std::unique_ptr<QProgressDialog> dialogo;
};

// The counter of a folder raised by 1 in the table, or added with 1; a failure raises its
// cause.
void AggiornaContatoreTabella(const QString& sPhisicalPath) {
    if (!Sessione::cnn)
        throw Errore(QString(), QStringLiteral("Connessione al database non aperta"));
    QSqlQuery query = Sessione::cnn->Esegui(
        QStringLiteral("UPDATE ImgCounter SET Counter = (SELECT (Counter + 1) FROM ImgCounter "
                       "WHERE PhisicalPath = ?) WHERE PhisicalPath = ?"),
        {sPhisicalPath, sPhisicalPath});
    if (query.numRowsAffected() <= 0) {
        Sessione::cnn->Esegui(
            QStringLiteral("INSERT INTO ImgCounter (PhisicalPath, Counter) VALUES (?, 1)"),
            {sPhisicalPath});
    }
}

// The same in the counter file, by plain text work; a failure raises its cause.
void AggiornaContatoreFile(const QString& sFileContatore, const QString& sPhisicalPath) {
    // 1. Read all, creating the file if missing; errors of the reading are ignored.
    QFile file(sFileContatore);
    if (!file.exists()) {
        if (!file.open(QIODevice::WriteOnly))
            throw Errore(QString(), file.errorString());
        file.close();
    }
    QString sTesto;
    if (file.open(QIODevice::ReadOnly)) {
        sTesto = QString::fromUtf8(file.readAll());
        file.close();
    }
    // 2. An empty file starts with the processing instruction.
    if (sTesto.isEmpty())
        sTesto = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>") + CrLf;
    // 3. The folder's entry, sought case sensitive, gets its number raised.
    const QString sTesta = TestaLocation + sPhisicalPath;
    const qsizetype trovato = sTesto.indexOf(sTesta);
    if (trovato >= 0) {
        const QString sAttributo = QStringLiteral("counter=\"");
        const qsizetype contatore = sTesto.indexOf(sAttributo, trovato);
        QString sVecchio;
        if (contatore >= 0) {
            const qsizetype inizio = contatore + sAttributo.size();
            const qsizetype fine = sTesto.indexOf(QLatin1Char('"'), inizio);
            sVecchio = fine < 0 ? sTesto.mid(inizio) : sTesto.mid(inizio, fine - inizio);
        }
        const QString sPrima = sTesta + QStringLiteral("\" counter=\"");
        sTesto.replace(sPrima + sVecchio + QLatin1Char('"'),
                       sPrima + Numero(ValNumero(sVecchio) + 1) + QLatin1Char('"'));
    } else {
        // 4. Else a new entry at the end, its closing tag on the next line.
        sTesto += CrLf + sTesta + QStringLiteral("\" counter=\"1\" >") + CrLf +
                  QStringLiteral("</location>");
    }
    // 5. The whole text written back.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw Errore(QString(), file.errorString());
    const QByteArray byte = sTesto.toUtf8();
    if (file.write(byte) != byte.size())
        throw Errore(QString(), file.errorString());
    file.close();
}

} // namespace

QString sCalculateMd5(const QString& sFile, QString& sErrore) {
    const QString sMessaggio =
        QStringLiteral("Errore nel calcolo del codice MD5 (File: @NOMEFILE@)")
            .replace(QStringLiteral("@NOMEFILE@"), sFile);
    try {
        QString sDescrizione;
        const QString sMd5 = GetMd5(sFile, sDescrizione);
        if (sMd5.isEmpty()) {
            sErrore = sMessaggio;
            return QString();
        }
        return sMd5;
    } catch (const std::exception& e) {
        sErrore = Prefisso("sCalculateMd5") + QString::fromLocal8Bit(e.what()) + CrLf + sMessaggio;
        return QString();
    }
}

bool bGestImgXml(const QString& sFileXml, const QString& sParam01, const QString& sParam12,
                 const QString& sFileContatore, QString& sLogicalPath, QString& sXmlName,
                 QString& sMd5, long& lNumImg, QString& sErrore, bool bUseDb) {
    try {
        lNumImg = 0;
        QString sErroreMd5;
        sMd5 = sCalculateMd5(sFileXml, sErroreMd5);
        if (!sErroreMd5.isEmpty()) {
            sErrore = sErroreMd5;
            return false;
        }
        if (!sParam01.isEmpty() && !sParam12.isEmpty() && !sFileContatore.isEmpty()) {
            ImportXmlMag(sFileXml, sMd5, sParam01, sParam12, sFileContatore, sLogicalPath, sXmlName,
                         lNumImg, sErrore, bUseDb);
        } else if (!sParam01.isEmpty() && sParam12.isEmpty()) {
            GetXmlMagNImg(sFileXml, lNumImg, sErrore);
        }
        return true;
    } catch (const std::exception& e) {
        sErrore = Prefisso("bGestImgXml") + QString::fromLocal8Bit(e.what());
        return true;
    }
}

void ImportXmlMag(const QString& sFileXml, const QString& sMd5, const QString& sParam01,
                  const QString& sParam12, const QString& sFileContatore, QString& sLogicalPath,
                  QString& sXmlName, long& lNumImg, QString& sErrore, bool bUseDb) {
    const QString sPrefisso = Prefisso("ImportXmlMag");
    try {
        QString sDescrizione;
        // 1. The physical folder, created, and its logical form.
        const QString sCartellaDoc = CartellaDaPercorso(sFileXml);
        const QString sFisica = sGetPhysicalPath(sFileXml, sParam01, &sDescrizione);
        if (!sDescrizione.isEmpty()) {
            sErrore = sPrefisso + sDescrizione;
            return;
        }
        sLogicalPath = sGetLogicalPath(sParam01, sParam12, sFisica);
        const QChar separatore = Separatore(sFisica);

        // 2. The next number; its text names the folder and, so far, the index.
        QString sErroreContatore;
        const double dNumero =
            bUseDb ? dGetImgCounterFromDb(sFisica, sErroreContatore)
                   : dGetImgCounterFromFile(sFileContatore, sFisica, sErroreContatore);
        sXmlName = Numero(dNumero);
        if (!sErroreContatore.isEmpty()) {
            sErrore = sErroreContatore;
            return;
        }

        // 3. The images' folder.
        const QString sCartellaImg = sFisica + sXmlName + separatore;
        if (!CreaCartella(sCartellaImg, sDescrizione)) {
            sErrore = sPrefisso + sDescrizione;
            return;
        }

        // 4. The document.
        QList<Pagina> pagine;
        if (!LeggiMag(sFileXml, pagine, sDescrizione)) {
            sErrore = sPrefisso + sDescrizione;
            return;
        }

        // 5. The index document, built in memory and saved once at the end.
        QByteArray indice;
        QBuffer buffer(&indice);
        buffer.open(QIODevice::WriteOnly);
        QXmlStreamWriter xml(&buffer);
        xml.setAutoFormatting(false);
        xml.writeProcessingInstruction(QStringLiteral("xml"),
                                       QStringLiteral("version = \"1.0\" encoding=\"UTF-8\""));
        xml.writeStartElement(QStringLiteral("pagine"));
        xml.writeAttribute(QStringLiteral("magmd5"), sMd5);
        xml.writeAttribute(QStringLiteral("path"),
                           sGetLogicalPath(sParam01, sParam12, sCartellaImg));

        // 6. The images, in document order.
        lNumImg = 0;
        QHash<QString, QString> dizionario;
        Avanzamento avanzamento(pagine.size());
        for (const Pagina& p : std::as_const(pagine)) {
            avanzamento.File(lNumImg + 1);
            if (!p.bNomenclature || !p.bSequenza) {
                sErrore = sPrefisso + QStringLiteral("Nodo %1 mancante in un img")
                                          .arg(p.bNomenclature ? QStringLiteral("sequence_number")
                                                               : QStringLiteral("nomenclature"));
                return;
            }
            if (!p.bFile || !p.bHref) {
                sErrore = sPrefisso + QStringLiteral("Nodo file con xlink:href mancante in un img");
                return;
            }
            const QString sImmagine = PercorsoImmagine(p.sHref, sCartellaDoc);
            if (dizionario.contains(sImmagine)) {
                sErrore = sPrefisso +
                          QStringLiteral("Chiave già associata a un elemento dell'insieme: %1")
                              .arg(sImmagine);
                return;
            }
            dizionario.insert(sImmagine, p.sSequenza);
            const QString sNome = NomeFile(sImmagine);
            if (!CopiaFile(sImmagine, sCartellaImg + sNome, sDescrizione)) {
                sErrore = sPrefisso + sDescrizione;
                return;
            }
            xml.writeCharacters(QStringLiteral("\r\n\t"));
            xml.writeEmptyElement(QStringLiteral("pagina"));
            xml.writeAttribute(QStringLiteral("sequence"), p.sSequenza);
            xml.writeAttribute(QStringLiteral("nomenclature"), p.sNomenclature);
            xml.writeAttribute(QStringLiteral("file"), sNome);
            ++lNumImg;
        }

        // 7. The closing layout of `pagine`.
        xml.writeCharacters(CrLf);
        xml.writeEndElement();
        buffer.close();

        // 8. The index document at the physical folder.
        sXmlName += QStringLiteral(".xml");
        QFile file(sFisica + sXmlName);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(indice) != indice.size()) {
            sErrore = sPrefisso + file.errorString();
            return;
        }
        file.close();

        // 9. The counter moves only now; its failure is this routine's, told by its cause.
        if (bUseDb)
            AggiornaContatoreTabella(sFisica);
        else
            AggiornaContatoreFile(sFileContatore, sFisica);
    } catch (const Errore& e) {
        sErrore = sPrefisso + e.descrizione();
    } catch (const std::exception& e) {
        sErrore = sPrefisso + QString::fromLocal8Bit(e.what());
    }
}

void ImpostaAttesaAvanzamento(int iMillisecondi) {
    iAttesaAvanzamento = iMillisecondi;
}

void GetXmlMagNImg(const QString& sFileXml, long& lNumImg, QString& sErrore) {
    try {
        QList<Pagina> pagine;
        QString sDescrizione;
        if (!LeggiMag(sFileXml, pagine, sDescrizione)) {
            sErrore = Prefisso("GetXmlMagNImg") + sDescrizione;
            return;
        }
        lNumImg = static_cast<long>(pagine.size());
    } catch (const std::exception& e) {
        sErrore = Prefisso("GetXmlMagNImg") + QString::fromLocal8Bit(e.what());
    }
}

double dGetImgCounterFromDb(const QString& sPhisicalPath, QString& sErrore) {
    return Protetto("dGetImgCounterFromDb", sErrore, 0.0, [&]() -> double {
        if (!Sessione::cnn)
            throw Errore(QString(), QStringLiteral("Connessione al database non aperta"));
        QSqlQuery query = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Counter FROM ImgCounter WHERE PhisicalPath = ?"),
            {sPhisicalPath});
        if (!query.next() || query.value(0).isNull())
            return 1;
        return query.value(0).toDouble() + 1;
    });
}

bool bAggImgCounterTable(const QString& sPhisicalPath, QString& sErrore) {
    return Protetto("bAggImgCounterTable", sErrore, false, [&]() -> bool {
        AggiornaContatoreTabella(sPhisicalPath);
        return true;
    });
}

double dGetImgCounterFromFile(const QString& sFileContatore, const QString& sPhisicalPath,
                              QString& sErrore) {
    return Protetto("dGetImgCounterFromFile", sErrore, 0.0, [&]() -> double {
        QFile file(sFileContatore);
        if (!QFileInfo(sFileContatore).isFile() || !file.open(QIODevice::ReadOnly))
            return 1;
        // Loaded as one document first: one that can't be loaded has no nodes.
        QXmlStreamReader r(&file);
        QList<std::pair<QString, QString>> location;
        while (!r.atEnd()) {
            r.readNext();
            if (r.isStartElement() && r.qualifiedName() == QLatin1String("location")) {
                location.append({r.attributes().value(QLatin1String("phisicalpath")).toString(),
                                 r.attributes().value(QLatin1String("counter")).toString()});
            }
        }
        if (r.hasError())
            return 1;
        const QString sCercata = sPhisicalPath.toUpper();
        for (const auto& [sPercorso, sContatore] : std::as_const(location)) {
            if (sPercorso.toUpper() != sCercata)
                continue;
            bool ok = false;
            const double d = sContatore.trimmed().toDouble(&ok);
            if (!ok)
                throw Errore(QString(), QStringLiteral("Tipo non corrispondente"),
                             ErroriPiattaforma::TipoNonCorrispondente);
            return d + 1;
        }
        return 1;
    });
}

bool bAggImgCounterFile(const QString& sFileContatore, const QString& sPhisicalPath,
                        QString& sErrore) {
    return Protetto("bAggImgCounterFile", sErrore, false, [&]() -> bool {
        AggiornaContatoreFile(sFileContatore, sPhisicalPath);
        return true;
    });
}

QString sGetPhysicalPath(const QString& sPercorsoDoc, const QString& sParam01, QString* sErrore) {
    const QString s = CartellaDaPercorso(sPercorsoDoc);
    QString sCoda;
    if (PercorsoPosix(s)) {
        // The root plays the part of the drive: the whole tree below it is kept.
        sCoda = s;
    } else {
        // Positions counted from 1, 0 for none.
        qsizetype p = s.indexOf(QLatin1String(":\\"), 0, Qt::CaseInsensitive) + 1;
        if (p == 0) {
            const qsizetype doppia = s.indexOf(QLatin1String("\\\\")) + 1;
            p = s.indexOf(QLatin1Char('\\'), doppia) + 1;
        }
        if (p > 0 && s.size() > p + 1)
            sCoda = s.mid(p);
    }

    QString sFisica = sParam01;
    if (PercorsoPosix(sParam01)) {
        sCoda.replace(QLatin1Char('\\'), QLatin1Char('/'));
        if (sFisica.endsWith(QLatin1Char('/')) && sCoda.startsWith(QLatin1Char('/')))
            sFisica.chop(1);
    } else if (!sParam01.contains(QLatin1Char('/'))) {
        sCoda.replace(QLatin1Char('/'), QLatin1Char('\\'));
    }
    sFisica += sCoda;

    QString sDescrizione;
    if (!CreaCartella(sFisica, sDescrizione) && sErrore != nullptr)
        *sErrore = sDescrizione;
    if (!FiniscePerSeparatore(sFisica))
        sFisica += Separatore(sFisica);
    return sFisica;
}

QString sGetLogicalPath(const QString& sParam01, const QString& sParam12,
                        const QString& sPhisicalPath) {
    QString sPercorso = sPhisicalPath;
    sPercorso.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QString sRadice = sParam01;
    sRadice.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!sRadice.isEmpty())
        sPercorso.replace(sRadice, sParam12);
    return sPercorso;
}

QString sGetPhysicalFromLogical(const QString& sParam01, const QString& sParam12,
                                const QString& sLogicalPath) {
    const QChar separatore = Separatore(sParam01);
    QString sPercorso = sLogicalPath;
    sPercorso.replace(QLatin1Char('/'), separatore);
    QString sRadice = sParam12;
    sRadice.replace(QLatin1Char('/'), separatore);
    if (!sRadice.isEmpty())
        sPercorso.replace(sRadice, sParam01);
    return sPercorso;
}

} // namespace basGestImgMag
