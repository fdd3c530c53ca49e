#include "images/Md5.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

// Blocks in which a file is mapped or read: large enough that the hashing, not the calls,
// sets the pace.
constexpr qint64 Blocco = qint64(64) * 1024 * 1024;
constexpr qint64 BloccoLettura = qint64(4) * 1024 * 1024;

} // namespace

QString GetMd5(const QString& sPercorso, QString& sDescrizione) {
    // The name must reach the file system unchanged: a character that its 8-bit form can't
    // carry makes the name another one.
    if (QFile::decodeName(QFile::encodeName(sPercorso)) != sPercorso) {
        sDescrizione = QStringLiteral("Nome di file non rappresentabile: %1").arg(sPercorso);
        return QString();
    }
    QFile file(sPercorso);
    if (!QFileInfo(sPercorso).isFile()) {
        sDescrizione = QStringLiteral("File non trovato: %1").arg(sPercorso);
        return QString();
    }
    if (!file.open(QIODevice::ReadOnly)) {
        sDescrizione = file.errorString();
        return QString();
    }

    QCryptographicHash hash(QCryptographicHash::Md5);
    const qint64 dimensione = file.size();
    qint64 posizione = 0;
    // Mapped blocks spare the copy into a buffer; where the file can't be mapped it is read.
    while (posizione < dimensione) {
        const qint64 lunghezza = qMin(Blocco, dimensione - posizione);
        uchar* mappa = file.map(posizione, lunghezza);
        if (mappa == nullptr)
            break;
        hash.addData(QByteArrayView(reinterpret_cast<const char*>(mappa), lunghezza));
        file.unmap(mappa);
        posizione += lunghezza;
    }
    if (posizione < dimensione || dimensione == 0) {
        // Not mapped (or a file whose size the system doesn't tell): read to its end.
        if (!file.seek(posizione)) {
            sDescrizione = file.errorString();
            return QString();
        }
        QByteArray buffer(BloccoLettura, Qt::Uninitialized);
        for (;;) {
            const qint64 letti = file.read(buffer.data(), buffer.size());
            if (letti < 0) {
                sDescrizione = file.errorString();
                return QString();
            }
            if (letti == 0)
                break;
            hash.addData(QByteArrayView(buffer.constData(), letti));
        }
    }
    return QString::fromLatin1(hash.result().toHex());
}

QString CMD5::MD5(const QString& sMessaggio) const {
    QByteArray byte;
    byte.reserve(sMessaggio.size());
    for (const QChar c : sMessaggio) {
        byte.append(c.unicode() <= 0xFF ? char(c.unicode()) : '?');
    }
    return QString::fromLatin1(QCryptographicHash::hash(byte, QCryptographicHash::Md5).toHex());
}
