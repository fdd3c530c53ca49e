#pragma once

// The button cmdImmagine and CheckImmagine, as the records that link a MAG document offer
// them. A record attaches one ImmagineRecord to its button and says where its element's id
// and its digest field are; the button then shows the state of the link and imports or
// removes it on a click.

#include <QObject>
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

    struct Collegamento {
        std::function<long()> idElemento;  // the record's element
        std::function<QString()> leggiMd5; // the digest field
        std::function<void(const QString&)> scriviMd5;
        bool bTitoloBreve = false; // the question's title without the final point and blank
        bool bTitoloErrore = false; // a failed import's box titled with the error's text too
    };

    // Takes the button (named cmdImmagine, with its tool tip) and its clicks.
    ImmagineRecord(QPushButton* cmdImmagine, Collegamento collegamento,
                   QObject* genitore = nullptr);

    // The button after the digest field: caption, back colour and Tag.
    void CheckImmagine();
    // What a click does: the import with Tag "0", the removal with Tag "1"; CheckImmagine after.
    void cmdImmagine_Click();

private:
    QPointer<QPushButton> pulsante;
    Collegamento c;
};
