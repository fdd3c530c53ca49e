#pragma once

// Module XmlMag: links a record to a MAG document. The images that the document lists are
// copied into the image repository (basGestImgMag), and the outcome is written to the
// record's row of Elementi and to MD5Location. Modules DaImag and AImag read the page list of
// a document for the page pickers. XmlMag does not raise: a failure comes back as an error text
// that begins with "XmlMag." and the routine's name (or the repository's own text). DaImag and
// AImag raise Errore for a page whose number is not a whole number, for their caller's handler.

#include <QString>

class QComboBox;

namespace XmlMag {

// Imports the document for the element: bGestImgXml with sParam01, sParam12 and the counter
// file of the program folder (the counters kept in the database), then the writes of
// Elementi and, with sParam12 given, of MD5Location. sMd5 receives the document's digest;
// sErrore is left empty on success.
void ImportXmlMag(long lIdElemento, const QString& sFileXml, QString& sMd5, QString& sErrore);

// Removes the link of the element: the index document and the numbered folder of the import
// (their failures ignored), Status 3 in MD5Location, then the fields of Elementi cleared. The
// error text is left empty on success.
void DeleteXmlMag(long lIdElemento, const QString& sMd5, QString& sErrore);

} // namespace XmlMag

namespace DaImag {
// For each /metadigit/img of the document, in order, an item with the text of nomenclature
// and, as its data, sequence_number as a whole number (of 16 bits). A document that can't be
// loaded leaves the combo box as it was. A sequence_number that is not such a number raises
// Errore (source "DaImag"), the pages before it staying in the combo box.
void Carica(const QString& sFileXml, QComboBox* combo);
} // namespace DaImag

namespace AImag {
// As DaImag, but only the img that follow the one whose nomenclature equals sPaginaImg (source
// "AImag" of a failure).
void Carica(const QString& sFileXml, QComboBox* combo, const QString& sPaginaImg);
} // namespace AImag
