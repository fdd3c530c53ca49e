#include "IconaProgramma.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

QPixmap Disegna(int lato) {
    QPixmap immagine(lato, lato);
    immagine.fill(Qt::transparent);
    QPainter pittore(&immagine);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.scale(lato / 64.0, lato / 64.0);

    // The parchment, its lower edge rolled.
    QPainterPath foglio;
    foglio.moveTo(10, 6);
    foglio.lineTo(50, 6);
    foglio.quadTo(56, 6, 56, 12);
    foglio.lineTo(56, 50);
    foglio.quadTo(50, 46, 44, 52);
    foglio.quadTo(38, 58, 30, 54);
    foglio.lineTo(10, 54);
    foglio.quadTo(6, 54, 6, 50);
    foglio.lineTo(6, 10);
    foglio.quadTo(6, 6, 10, 6);
    pittore.setPen(QPen(QColor(0x8a, 0x6a, 0x3c), 2));
    pittore.setBrush(QColor(0xf3, 0xe3, 0xbf));
    pittore.drawPath(foglio);

    // The lines of the text.
    pittore.setPen(QPen(QColor(0x6b, 0x4f, 0x2a), 2, Qt::SolidLine, Qt::RoundCap));
    for (int riga = 0; riga < 4; ++riga) {
        const int y = 16 + riga * 7;
        pittore.drawLine(13, y, riga == 3 ? 32 : 48, y);
    }

    // The seal hanging from the bottom edge.
    pittore.setPen(QPen(QColor(0x5c, 0x10, 0x10), 1.5));
    pittore.drawLine(26, 54, 26, 58);
    pittore.setBrush(QColor(0xa8, 0x1f, 0x1f));
    pittore.drawEllipse(QPointF(26, 52), 8, 8);
    pittore.setPen(QPen(QColor(0xf0, 0xc8, 0xa0), 1.5));
    pittore.setBrush(Qt::NoBrush);
    pittore.drawEllipse(QPointF(26, 52), 4.5, 4.5);
    return immagine;
}

} // namespace

QIcon IconaProgramma() {
    QIcon icona;
    for (const int lato : {16, 24, 32, 48, 64, 128}) {
        icona.addPixmap(Disegna(lato));
    }
    return icona;
}
