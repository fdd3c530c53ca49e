#include "images/XmlMag.h"

#include "images/basGestImgMag.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QSqlQuery>
#include <QXmlStreamReader>
#include <exception>
#include <limits>

namespace {

const QString CrLf = QStringLiteral("\r\n");

QString Prefisso(const char* routine) {
    return QStringLiteral("XmlMag.") + QLatin1String(routine) + QStringLiteral(": ");
}

// The error text of a statement that failed: the description, then the statement in hand.
QString TestoErrore(const char* routine, const QString& sDescrizione, const QString& sSql) {
    return Prefisso(routine) + sDescrizione + CrLf + QStringLiteral("sSql: ") + sSql;
}

const Connessione& Cnn() {
    if (!Sessione::cnn)
        throw Errore(QString(), QStringLiteral("Connessione al database non aperta"));
    return *Sessione::cnn;
}

// The local part of an XML name: what follows its prefix.
QStringView Locale(QStringView nome) {
    const qsizetype dueP = nome.indexOf(QLatin1Char(':'));
    return dueP < 0 ? nome : nome.mid(dueP + 1);
}

struct Voce {
    QString sNomenclature;
    QString sSequenza;
};

// The img children of a metadigit document element, their texts kept with their white space.
bool LeggiPagine(const QString& sFileXml, QList<Voce>& voci) {
    QFile file(sFileXml);
    if (!QFileInfo(sFileXml).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader r(&file);
    r.setNamespaceProcessing(false);
    QList<Voce> lette;
    if (r.readNextStartElement()) {
        const bool bMetadigit = Locale(r.qualifiedName()) == QLatin1String("metadigit");
        while (r.readNextStartElement()) {
            if (!bMetadigit || Locale(r.qualifiedName()) != QLatin1String("img")) {
                r.skipCurrentElement();
                continue;
            }
            Voce v;
            while (r.readNextStartElement()) {
                const QStringView nome = Locale(r.qualifiedName());
                if (nome == QLatin1String("nomenclature"))
                    v.sNomenclature = r.readElementText(QXmlStreamReader::IncludeChildElements);
                else if (nome == QLatin1String("sequence_number"))
                    v.sSequenza = r.readElementText(QXmlStreamReader::IncludeChildElements);
                else
                    r.skipCurrentElement();
            }
            lette.append(v);
        }
    }
    while (!r.atEnd() && !r.hasError())
        r.readNext();
    if (r.hasError())
        return false;
    voci = lette;
    return true;
}

// The platform's number and words of a whole number too large for a page.
constexpr long Overflow = 6;

// A page's sequence_number as a whole number of 16 bits; anything else raises, under the
// module's name, the platform's error of a text that is not such a number.
qint16 NumeroPagina(const QString& sSequenza, const QString& sSorgente) {
    bool bOk = false;
    const qlonglong numero = sSequenza.trimmed().toLongLong(&bOk);
    if (!bOk)
        throw Errore(sSorgente, QStringLiteral("Tipo non corrispondente"),
                     ErroriPiattaforma::TipoNonCorrispondente);
    if (numero < std::numeric_limits<qint16>::min() || numero > std::numeric_limits<qint16>::max())
        throw Errore(sSorgente, QStringLiteral("Overflow"), Overflow);
    return static_cast<qint16>(numero);
}

// The pages from the one at da on, in order; a page whose number fails stops the list there,
// the pages before it staying in the combo box.
void Aggiungi(QComboBox* combo, const QList<Voce>& voci, qsizetype da, const QString& sSorgente) {
    for (qsizetype i = da; i < voci.size(); ++i)
        combo->addItem(voci.at(i).sNomenclature,
                       int(NumeroPagina(voci.at(i).sSequenza, sSorgente)));
}

} // namespace

namespace XmlMag {

void ImportXmlMag(long lIdElemento, const QString& sFileXml, QString& sMd5, QString& sErrore) {
    QString sSql;
    try {
        // 1. The repository: digest, copy, index, counter.
        QString sLogicalPath;
        QString sXmlName;
        long lNumImg = 0;
        if (!basGestImgMag::bGestImgXml(sFileXml, Sessione::sParam01, Sessione::sParam12,
                                        Sessione::FileProgramma(QStringLiteral("ImgCounter.xml")),
                                        sLogicalPath, sXmlName, sMd5, lNumImg, sErrore, true))
            return;

        // 2. The record's link.
        sSql = QStringLiteral("UPDATE Elementi SET Md5Link = ?, PaginaStart = 1, PaginaEnd = ?, "
                              "StruProg = 0 WHERE ID_Elemento = ?");
        Cnn().Esegui(sSql, {sMd5, qlonglong(lNumImg), qlonglong(lIdElemento)});

        // 3. Where the images lie.
        if (!Sessione::sParam12.isEmpty()) {
            sSql = QStringLiteral("UPDATE MD5Location SET LogicalPath = ?, XmlName = ?, "
                                  "Status = 0 WHERE MD5 = ?");
            QSqlQuery query = Cnn().Esegui(sSql, {sLogicalPath, sXmlName, sMd5});
            if (query.numRowsAffected() <= 0) {
                sSql = QStringLiteral("INSERT INTO MD5Location (MD5, LogicalPath, XmlName, "
                                      "Status) VALUES (?, ?, ?, 0)");
                Cnn().Esegui(sSql, {sMd5, sLogicalPath, sXmlName});
            }
        }
    } catch (const Errore& e) {
        sErrore = TestoErrore("ImportXmlMag", e.descrizione(), sSql);
    } catch (const std::exception& e) {
        sErrore = TestoErrore("ImportXmlMag", QString::fromLocal8Bit(e.what()), sSql);
    }
}

void DeleteXmlMag(long lIdElemento, const QString& sMd5, QString& sErrore) {
    QString sSql;
    try {
        if (!sMd5.isEmpty()) {
            // 1. Where the import lies.
            sSql = QStringLiteral("SELECT LogicalPath, XmlName FROM MD5Location WHERE MD5 = ?");
            bool bRiga = false;
            QString sLogicalPath;
            QString sXmlName;
            {
                QSqlQuery query = Cnn().Esegui(sSql, {sMd5});
                if (query.next()) {
                    bRiga = true;
                    sLogicalPath = query.value(0).toString();
                    sXmlName = query.value(1).toString();
                }
            }

            // 2. The index document and the numbered folder; their failures are ignored.
            if (bRiga && !sLogicalPath.isEmpty() && !sXmlName.isEmpty()) {
                QString sCartella = basGestImgMag::sGetPhysicalFromLogical(
                    Sessione::sParam01, Sessione::sParam12, sLogicalPath);
                if (!sCartella.endsWith(QLatin1Char('\\')) && !sCartella.endsWith(QLatin1Char('/')))
                    sCartella += QDir::separator();
                QFile::remove(sCartella + sXmlName);
                QString sNumerata = sXmlName;
                if (sNumerata.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive))
                    sNumerata.chop(4);
                if (!sNumerata.isEmpty()) {
                    QDir numerata(sCartella + sNumerata);
                    if (numerata.exists())
                        numerata.removeRecursively();
                }
            }

            // 3. The import is marked removed, whatever the deletions did.
            sSql = QStringLiteral("UPDATE MD5Location SET Status = 3 WHERE MD5 = ?");
            Cnn().Esegui(sSql, {sMd5});
        }
        // 4. The record's link, cleared in all cases.
        sSql = QStringLiteral("UPDATE Elementi SET Md5Link = NULL, PaginaStart = 0, "
                              "PaginaEnd = 0, StruProg = NULL WHERE ID_Elemento = ?");
        Cnn().Esegui(sSql, {qlonglong(lIdElemento)});
    } catch (const Errore& e) {
        sErrore = TestoErrore("DeleteXmlMag", e.descrizione(), sSql);
    } catch (const std::exception& e) {
        sErrore = TestoErrore("DeleteXmlMag", QString::fromLocal8Bit(e.what()), sSql);
    }
}

} // namespace XmlMag

namespace DaImag {

void Carica(const QString& sFileXml, QComboBox* combo) {
    QList<Voce> voci;
    if (combo == nullptr || !LeggiPagine(sFileXml, voci))
        return;
    Aggiungi(combo, voci, 0, QStringLiteral("DaImag"));
}

} // namespace DaImag

namespace AImag {

void Carica(const QString& sFileXml, QComboBox* combo, const QString& sPaginaImg) {
    QList<Voce> voci;
    if (combo == nullptr || !LeggiPagine(sFileXml, voci))
        return;
    for (qsizetype i = 0; i < voci.size(); ++i) {
        if (voci.at(i).sNomenclature == sPaginaImg) {
            Aggiungi(combo, voci, i + 1, QStringLiteral("AImag"));
            return;
        }
    }
}

} // namespace AImag
