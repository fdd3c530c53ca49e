#pragma once

// Module basGestImgMag: the image repository on disk. For each MAG document linked to a record
// it keeps a copy of the images in a numbered folder under the physical root (sParam01), an
// index document `pagine` beside it, and the counters of the numbers, in the table ImgCounter
// or in the file ImgCounter.xml. Nothing here raises: every routine puts its failure in the
// error text it is given, beginning with "basGestImgMag." and the routine's name.

#include <QString>

namespace basGestImgMag {

// The digest of a file's whole content, 32 lower-case hexadecimal digits; on failure an empty
// text and sErrore "Errore nel calcolo del codice MD5 (File: <path>)".
QString sCalculateMd5(const QString& sFile, QString& sErrore);

// The digest of the document, then the import (sParam01, sParam12 and the counter file all
// given) or only the count of its images (sParam01 given, sParam12 empty). False only when
// the digest failed: the caller looks at sErrore as well.
bool bGestImgXml(const QString& sFileXml, const QString& sParam01, const QString& sParam12,
                 const QString& sFileContatore, QString& sLogicalPath, QString& sXmlName,
                 QString& sMd5, long& lNumImg, QString& sErrore, bool bUseDb);

// Copies the images that the document lists into the next numbered folder of its physical
// folder, writes the index document and moves the counter on.
void ImportXmlMag(const QString& sFileXml, const QString& sMd5, const QString& sParam01,
                  const QString& sParam12, const QString& sFileContatore, QString& sLogicalPath,
                  QString& sXmlName, long& lNumImg, QString& sErrore, bool bUseDb);

// How long the copy runs before its progress dialog may show, in milliseconds (500 unless
// told): tests set 0 to see the dialog at once.
void ImpostaAttesaAvanzamento(int iMillisecondi);

// The number of `img` children of the document element.
void GetXmlMagNImg(const QString& sFileXml, long& lNumImg, QString& sErrore);

// The next number of a physical folder: the table's counter plus 1, 1 when it has none.
double dGetImgCounterFromDb(const QString& sPhisicalPath, QString& sErrore);
// The same from the counter file: 1 when the file is missing or can't be loaded as one
// document (which it can't with two folders in it), or when it doesn't name the folder.
double dGetImgCounterFromFile(const QString& sFileContatore, const QString& sPhisicalPath,
                              QString& sErrore);
// Raises the table's counter of the folder by 1, or adds it with 1.
bool bAggImgCounterTable(const QString& sPhisicalPath, QString& sErrore);
// Raises the file's counter of the folder by 1, or adds it with 1, by plain text work.
bool bAggImgCounterFile(const QString& sFileContatore, const QString& sPhisicalPath,
                        QString& sErrore);

// The physical folder of a document: sParam01 followed by the document's folder without its
// drive (or network server, or, on POSIX, with the root as the drive), created on disk when it
// is a path of this platform, with its final separator. A folder that can't be created leaves
// its cause in *sErrore when given.
QString sGetPhysicalPath(const QString& sPercorsoDoc, const QString& sParam01,
                         QString* sErrore = nullptr);
// Forward slashes, and every occurrence of sParam01 replaced by sParam12.
QString sGetLogicalPath(const QString& sParam01, const QString& sParam12,
                        const QString& sPhisicalPath);
// The reverse: the platform's separators, every occurrence of sParam12 replaced by sParam01.
QString sGetPhysicalFromLogical(const QString& sParam01, const QString& sParam12,
                                const QString& sLogicalPath);

} // namespace basGestImgMag
