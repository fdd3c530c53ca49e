// Lays a help book out as a PDF with Qt's text document and PDF writer: the book's Markdown,
// its pictures fitted to the page, a first page with the title and the contents (the sections
// and their pages), and the page number at the foot of every page. A heading is never left
// alone at the foot of a page. It fails when the text or a picture it names cannot be read.
//
// Usage: impagina-guide <book.md> <folder of the pictures> <book.pdf>

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextStream>
#include <QTextTable>

#include <cmath>

namespace {

QTextStream errori(stderr);

const QString Carattere = QStringLiteral("DejaVu Sans");

struct Voce {
    QString sTitolo;
    int iLivello = 0;
    int iPagina = 0; // of the body, from 0
};

// The white band above each picture, in the picture's pixels.
constexpr int BandaFigura = 8;

// The page (from 0) on which a position of a laid-out document falls.
int PaginaDi(qreal y, qreal altezza) {
    return static_cast<int>(std::floor(y / altezza));
}

// The top of the first line of a block.
qreal CimaDi(const QTextDocument& documento, const QTextBlock& blocco) {
    const QRectF rettangolo = documento.documentLayout()->blockBoundingRect(blocco);
    const QTextLayout* layout = blocco.layout();
    const qreal riga = (layout != nullptr && layout->lineCount() > 0) ? layout->lineAt(0).y() : 0;
    return rettangolo.top() + riga;
}

// The pictures fitted to the text's width (a window at about the size it has on a screen, no
// wider than the page and no higher than two thirds of it), each picture's paragraph centred.
bool AdattaFigure(QTextDocument& libro, const QDir& figure, const QSizeF& pagina, int iDpi) {
    bool bTutte = true;
    for (QTextBlock blocco = libro.begin(); blocco.isValid(); blocco = blocco.next()) {
        for (auto frammento = blocco.begin(); !frammento.atEnd(); ++frammento) {
            const QTextFragment parte = frammento.fragment();
            if (!parte.isValid() || !parte.charFormat().isImageFormat()) {
                continue;
            }
            QTextImageFormat formato = parte.charFormat().toImageFormat();
            const QImage finestra(figure.filePath(formato.name()));
            if (finestra.isNull()) {
                errori << "impagina-guide: picture " << figure.filePath(formato.name())
                       << " missing" << Qt::endl;
                bTutte = false;
                continue;
            }
            // A picture at the top of a page is drawn a few pixels above it, at the foot of the
            // page before: a white band over the window keeps those pixels blank.
            QImage immagine(finestra.width(), finestra.height() + BandaFigura,
                            QImage::Format_RGB32);
            immagine.fill(Qt::white);
            QPainter(&immagine).drawImage(0, BandaFigura, finestra);
            libro.addResource(QTextDocument::ImageResource, QUrl(formato.name()), immagine);
            // The width left to the picture by its paragraph's indent (a picture in a list):
            // the layout counts an indent in pixels of a 96 dpi screen.
            const QTextBlockFormat paragrafo = blocco.blockFormat();
            qreal rientro = paragrafo.indent();
            if (blocco.textList() != nullptr) {
                rientro += blocco.textList()->format().indent();
            }
            const qreal disponibile =
                pagina.width() - paragrafo.leftMargin() - rientro * libro.indentWidth() * iDpi / 96;
            qreal larghezza = std::min<qreal>(immagine.width() * iDpi / 110.0, disponibile);
            qreal altezza = larghezza * immagine.height() / immagine.width();
            if (altezza > pagina.height() * 2 / 3) {
                altezza = pagina.height() * 2 / 3;
                larghezza = altezza * immagine.width() / immagine.height();
            }
            // The text layout measures a picture in pixels of a 96 dpi screen and scales them
            // to the device itself.
            formato.setWidth(larghezza * 96 / iDpi);
            formato.setHeight(altezza * 96 / iDpi);
            QTextCursor cursore(&libro);
            cursore.setPosition(parte.position());
            cursore.setPosition(parte.position() + parte.length(), QTextCursor::KeepAnchor);
            cursore.setCharFormat(formato);
            QTextBlockFormat centrato = blocco.blockFormat();
            centrato.setAlignment(Qt::AlignHCenter);
            cursore.setBlockFormat(centrato);
        }
    }
    return bTutte;
}

// Whether a block should begin the next page: a heading whose next paragraph begins on a later
// page or that stands in the last eighth of its page, and a paragraph of one line (a picture)
// that the layout left across the foot of its page.
bool DaSpostare(const QTextDocument& libro, const QTextBlock& blocco, qreal altezza) {
    if (blocco.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) {
        return false;
    }
    const qreal cima = CimaDi(libro, blocco);
    const int iPagina = PaginaDi(cima, altezza);
    const QTextLayout* layout = blocco.layout();
    if (layout != nullptr && layout->lineCount() == 1) {
        const qreal fondo = cima + layout->lineAt(0).height();
        if (PaginaDi(fondo - 1, altezza) > iPagina) {
            return true;
        }
    }
    const QTextBlock seguente = blocco.next();
    return blocco.blockFormat().headingLevel() > 0 && seguente.isValid() &&
           (iPagina < PaginaDi(CimaDi(libro, seguente), altezza) ||
            cima - iPagina * altezza > altezza * 0.88);
}

void TieniInsieme(QTextDocument& libro, qreal altezza) {
    for (int passo = 0; passo < 500; ++passo) {
        bool bSpostato = false;
        for (QTextBlock blocco = libro.begin(); blocco.isValid(); blocco = blocco.next()) {
            if (DaSpostare(libro, blocco, altezza)) {
                QTextBlockFormat formato;
                formato.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
                QTextCursor(blocco).mergeBlockFormat(formato);
                bSpostato = true;
                break;
            }
        }
        if (!bSpostato) {
            return;
        }
    }
}

// The first page: the title, then the contents with each section's page.
void ScriviIndice(QTextDocument& indice, const QString& sTitolo, const QList<Voce>& voci,
                  int iPrimaPagina) {
    QTextCursor cursore(&indice);
    QTextBlockFormat centrato;
    centrato.setAlignment(Qt::AlignHCenter);
    centrato.setBottomMargin(8);
    QTextCharFormat grande;
    grande.setFont(QFont(Carattere, 22, QFont::Bold));
    cursore.setBlockFormat(centrato);
    cursore.insertText(sTitolo, grande);
    QTextCharFormat sotto;
    sotto.setFont(QFont(Carattere, 12));
    cursore.insertBlock(centrato);
    cursore.insertText(QStringLiteral("Tabellion Archivista — guida per l'archivista"), sotto);
    QTextBlockFormat spazio;
    spazio.setTopMargin(36);
    spazio.setBottomMargin(12);
    cursore.insertBlock(spazio);
    QTextCharFormat intestazione;
    intestazione.setFont(QFont(Carattere, 14, QFont::Bold));
    cursore.insertText(QStringLiteral("Indice"), intestazione);

    QTextTableFormat tabella;
    tabella.setBorder(0);
    tabella.setCellPadding(2);
    tabella.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    tabella.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, 90),
                                       QTextLength(QTextLength::PercentageLength, 10)});
    QTextTable* righe = cursore.insertTable(static_cast<int>(voci.size()), 2, tabella);
    QTextCharFormat normale;
    normale.setFont(QFont(Carattere, 10));
    QTextCharFormat forte;
    forte.setFont(QFont(Carattere, 10, QFont::Bold));
    for (int i = 0; i < voci.size(); ++i) {
        const Voce& voce = voci[i];
        const QTextCharFormat& formato = voce.iLivello <= 2 ? forte : normale;
        QTextCursor titolo = righe->cellAt(i, 0).firstCursorPosition();
        QTextBlockFormat rientro;
        rientro.setLeftMargin((voce.iLivello - 2) * 18);
        titolo.setBlockFormat(rientro);
        titolo.insertText(voce.sTitolo, formato);
        QTextCursor numero = righe->cellAt(i, 1).firstCursorPosition();
        QTextBlockFormat destra;
        destra.setAlignment(Qt::AlignRight);
        numero.setBlockFormat(destra);
        numero.insertText(QString::number(iPrimaPagina + voce.iPagina), formato);
    }
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    if (argc != 4) {
        errori << "Usage: impagina-guide <book.md> <folder of the pictures> <book.pdf>" << Qt::endl;
        return 2;
    }
    QFile sorgente(QString::fromLocal8Bit(argv[1]));
    if (!sorgente.open(QIODevice::ReadOnly)) {
        errori << "impagina-guide: cannot read " << sorgente.fileName() << Qt::endl;
        return 1;
    }
    QString sTesto = QString::fromUtf8(sorgente.readAll());
    const QDir figure(QString::fromLocal8Bit(argv[2]));
    const QString sUscita = QString::fromLocal8Bit(argv[3]);

    // The first line "# ..." is the book's title: it stands on the first page, not in the body.
    QString sTitolo;
    if (sTesto.startsWith(QStringLiteral("# "))) {
        const qsizetype fine = sTesto.indexOf(u'\n');
        sTitolo = sTesto.mid(2, fine - 2).trimmed();
        sTesto = sTesto.mid(fine + 1);
    }

    const QString sParziale = sUscita + QStringLiteral(".parziale");
    QPdfWriter pdf(sParziale);
    pdf.setResolution(300);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(20, 18, 20, 14), QPageLayout::Millimeter);
    pdf.setTitle(sTitolo);
    pdf.setCreator(QStringLiteral("Tabellion Archivista"));
    const QRectF area = pdf.pageLayout().paintRectPixels(pdf.resolution());
    const qreal piede = pdf.resolution() * 0.35;
    const QSizeF pagina(area.width(), area.height() - piede);

    const auto prepara = [&](QTextDocument& documento) {
        documento.documentLayout()->setPaintDevice(&pdf);
        documento.setDefaultFont(QFont(Carattere, 10));
        documento.setDocumentMargin(0);
        documento.setPageSize(pagina);
    };
    QTextDocument libro;
    prepara(libro);
    libro.setMarkdown(sTesto, QTextDocument::MarkdownDialectGitHub);
    // The lines of a block of commands wrap at the margin like any other, rather than being cut.
    for (QTextBlock blocco = libro.begin(); blocco.isValid(); blocco = blocco.next()) {
        if (blocco.blockFormat().nonBreakableLines()) {
            QTextBlockFormat formato;
            formato.setNonBreakableLines(false);
            QTextCursor(blocco).mergeBlockFormat(formato);
        }
    }
    if (!AdattaFigure(libro, figure, pagina, pdf.resolution())) {
        return 1;
    }
    TieniInsieme(libro, pagina.height());

    QList<Voce> voci;
    for (QTextBlock blocco = libro.begin(); blocco.isValid(); blocco = blocco.next()) {
        const int iLivello = blocco.blockFormat().headingLevel();
        if (iLivello == 2 || iLivello == 3) {
            voci.append(
                {blocco.text(), iLivello, PaginaDi(CimaDi(libro, blocco), pagina.height())});
        }
    }
    // The contents' pages do not depend on the numbers they show: laid out once to count them,
    // then with the body's pages after them.
    int iPagineIndice = 0;
    {
        QTextDocument prova;
        prepara(prova);
        ScriviIndice(prova, sTitolo, voci, 1);
        iPagineIndice = prova.pageCount();
    }
    QTextDocument indice;
    prepara(indice);
    ScriviIndice(indice, sTitolo, voci, iPagineIndice + 1);

    const int iTotale = iPagineIndice + libro.pageCount();
    QPainter pittore(&pdf);
    int iNumero = 0;
    const auto stampa = [&](QTextDocument& documento) {
        for (int i = 0; i < documento.pageCount(); ++i) {
            if (++iNumero > 1) {
                pdf.newPage();
            }
            pittore.save();
            pittore.setClipRect(QRectF(QPointF(0, 0), pagina));
            pittore.translate(0, -i * pagina.height());
            QAbstractTextDocumentLayout::PaintContext contesto;
            contesto.clip = QRectF(QPointF(0, i * pagina.height()), pagina);
            documento.documentLayout()->draw(&pittore, contesto);
            pittore.restore();
            pittore.save();
            pittore.setPen(QPen(Qt::darkGray, 2));
            pittore.drawLine(QPointF(0, pagina.height() + piede / 3),
                             QPointF(pagina.width(), pagina.height() + piede / 3));
            pittore.setFont(QFont(Carattere, 8));
            const QRectF piedePagina(0, pagina.height() + piede / 3, pagina.width(), piede * 2 / 3);
            pittore.drawText(piedePagina, Qt::AlignLeft | Qt::AlignVCenter, sTitolo);
            pittore.drawText(piedePagina, Qt::AlignRight | Qt::AlignVCenter,
                             QStringLiteral("Pagina %1 di %2").arg(iNumero).arg(iTotale));
            pittore.restore();
        }
    };
    stampa(indice);
    stampa(libro);
    if (!pittore.end()) {
        errori << "impagina-guide: cannot write " << sParziale << Qt::endl;
        return 1;
    }
    QFile::remove(sUscita);
    if (!QFile::rename(sParziale, sUscita)) {
        errori << "impagina-guide: cannot write " << sUscita << Qt::endl;
        return 1;
    }
    return 0;
}
