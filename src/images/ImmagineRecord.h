#pragma once

// The button cmdImmagine and CheckImmagine, as the records that link a MAG document offer
// them. A record attaches one ImmagineRecord to its button and says where its element's id
// and its digest field are; the button then shows the state of the link and imports or
// removes it on a click.
//
// A right click offers the other, lighter link: "Collega pagine di un documento MAG…" opens
// frmCollegaImmagini for the record's element (a saved one, not linked to an imported document)
// and, on its Conferma, writes the chosen document and pages into the element's row. The button
// shows a link whether the element holds an imported document or such a page range, and its
// click with Tag "1" removes whichever it holds.

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <functional>

class QPushButton;

class ImmagineRecord : public QObject {
    Q_OBJECT
public:
    // Captions, tool tip and question of the button.
    static inline const QString CaptionImmagine = QStringLiteral("Immagine");
    static inline const QString CaptionElimina = QStringLiteral("Elimina coll. immagine");
    static inline const QString ToolTip = QStringLiteral("Apri XmlMag");
    static inline const QString TitoloDomanda = QStringLiteral("Cancella Immagini. ");
    static inline const QString TitoloDomandaBreve = QStringLiteral("Cancella Immagini");
    static inline const QString TestoDomanda =
        QStringLiteral("Sei sicuro di voler cancellare le immagini?");
    // The filters of the file choice, All Files first, and Xml Files in force.
    static inline const QString FiltroFile = QStringLiteral("All Files(*.*);;Xml Files(*.xml)");
    static inline const QString FiltroScelto = QStringLiteral("Xml Files(*.xml)");
    // The entry of the right click's popup.
    static inline const QString VocePagine = QStringLiteral("Collega pagine di un documento MAG…");

    struct Collegamento {
        std::function<long()> idElemento;  // the record's element
        std::function<QString()> leggiMd5; // the digest field
        std::function<void(const QString&)> scriviMd5;
        bool bTitoloBreve = false;  // the question's title without the final point and blank
        bool bTitoloErrore = false; // a failed import's box titled with the error's text too
    };

    // Takes the button (named cmdImmagine, with its tool tip) and its clicks.
    ImmagineRecord(QPushButton* cmdImmagine, Collegamento collegamento,
                   QObject* genitore = nullptr);

    // The button after the digest field: caption, back colour and Tag.
    void CheckImmagine();
    // What a click does: the import with Tag "0", the removal with Tag "1"; CheckImmagine after.
    void cmdImmagine_Click();
    // The right click at that point of the button: the popup, and the page link of the element
    // through frmCollegaImmagini; CheckImmagine after.
    void MenuPagine(const QPoint& posizione);

private:
    // Whether the element's row holds a page link (XmlLink); false when it can't be read.
    bool PagineCollegate(long lIdElemento) const;
    void CollegaPagine(long lIdElemento);

    QPointer<QPushButton> pulsante;
    Collegamento c;
};
