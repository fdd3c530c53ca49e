#pragma once

// MD5 digests (RFC 1321): of a file's whole content, for the image subsystem, and of a text
// in memory (class CMD5). Both give 32 lower-case hexadecimal digits.

#include <QString>

// The digest of a file's whole content. On success gives the digest and leaves sDescrizione
// alone; on failure (a file that can't be read, a path that the platform's 8-bit file names
// can't carry) gives an empty text and puts the cause in sDescrizione.
QString GetMd5(const QString& sPercorso, QString& sDescrizione);

class CMD5 {
public:
    // The digest of a text: each character one byte of Latin-1, a character outside it "?".
    QString MD5(const QString& sMessaggio) const;
};
