#pragma once

// frmCollegaImmagini: links one element to a page range of a MAG document that already lies in
// the image repository. The person picks a folder and a document below the repository's root
// (sParam01), opens it, and chooses a first and a last page among its img. It copies nothing and
// computes no digest. It reads and leaves its values in the session (Sessione::lIdElementoImg,
// sCartellaImg, sPaginaImg, iDaPagina, iAPagina, iEsitoCollegaImmagini); its opener writes the
// link after a Conferma (PagineMag::Scrivi). Only cmdCancella writes, clearing the link.
//
// A bare drive root. Where the platform has drive letters, the folder list keeps away from the
// bare root of a drive (or of a network server): getting there sends the list back to the
// repository's root, and a click there does nothing. On POSIX the file system has one root,
// "/", and that root plays the part of the drive letter: it is the one "bare drive root" of the
// folder list. A path counts as such when QDir says it is a root.

#include <QDialog>
#include <QString>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

// The page link of an element as Elementi holds it: the document (XmlLink), the first and last
// page (PaginaStart, PaginaEnd), and the digest of an imported MAG document (Md5Link), which is
// another kind of link.
namespace PagineMag {

struct Link {
    QString sXmlLink; // "" when the element has no page link
    qint16 iDa = 0;
    qint16 iA = 0;
    QString sMd5;
};

// The link columns of the element's row; an element without a row gives an empty link. Raises
// Errore on a failed read.
Link Leggi(long lIdElemento);
// Writes the page link of the element, the document and its two pages, in one statement.
// Raises Errore on a failed write.
void Scrivi(long lIdElemento, const QString& sXmlLink, qint16 iDa, qint16 iA);
// Clears the page link of the element: XmlLink Null, PaginaStart and PaginaEnd 0. Raises Errore
// on a failed write.
void Cancella(long lIdElemento);

} // namespace PagineMag

class frmCollegaImmagini : public QDialog {
    Q_OBJECT
public:
    // The titles of the handlers' boxes, by the place of the failure.
    static inline const QString ErroreDaPagina = QStringLiteral("Errore C1");
    static inline const QString ErroreCancella = QStringLiteral("Errore C2");
    static inline const QString ErroreCambioCartella = QStringLiteral("Errore C3");
    static inline const QString ErroreClicCartella = QStringLiteral("Errore C4");
    static inline const QString ErroreCaricamento = QStringLiteral("Errore C5");
    static inline const QString ErroreClicFile = QStringLiteral("Errore C6");
    static inline const QString ErroreApri = QStringLiteral("Errore C7");

    explicit frmCollegaImmagini(QWidget* parent = nullptr);

    // Dir1.Path and FileList.Path, with the platform's separators.
    QString Dir1Path() const;
    QString FileListPath() const;
    // The full path of the chosen document that the form keeps.
    QString PercorsoDocumento() const;

private:
    void Form_Load();
    // Setting Dir1.Path: the folder is read first (a failure raises and changes nothing); the
    // list then shows the folder's ancestors from the root down, the folder itself and its
    // subfolders, and Dir1_Change follows when the path changed.
    void ImpostaDir1(const QString& sPercorso);
    // Setting FileList.Path: the folder's "*.xml" files, by name; a failure raises and changes
    // nothing.
    void ImpostaFileList(const QString& sPercorso);
    void Dir1_Change();
    void Dir1_Click(QListWidgetItem* voce);
    void FileList_Click(QListWidgetItem* voce);
    void cmdApri_Click();
    void cmbDaPagina_Click();
    void cmbAPagina_Click();
    void cmdConferma_Click();
    void cmdCancella_Click();
    // The form without a link: the lists and Text1 empty, the three buttons off, no pages.
    void SenzaLink();
    // The repository's root as a folder path, without a final separator.
    static QString Radice();

    QListWidget* Dir1;
    QLabel* lblFile;
    QListWidget* FileList;
    QLineEdit* Text1;
    QPushButton* cmdApri;
    QComboBox* cmbDaPagina;
    QComboBox* cmbAPagina;
    QPushButton* cmdConferma;
    QPushButton* cmdCancella;
    QPushButton* cmdAnnulla;

    QString sDir1Path;
    QString sFileListPath;
    QString sCodice;      // the site's Code, trimmed
    QString sPercorsoDoc; // the chosen document's full path
};
