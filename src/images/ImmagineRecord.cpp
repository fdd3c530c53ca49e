#include "images/ImmagineRecord.h"

#include "images/XmlMag.h"
#include "session/Piattaforma.h"

#include <QApplication>
#include <QPalette>
#include <QPushButton>

ImmagineRecord::ImmagineRecord(QPushButton* cmdImmagine, Collegamento collegamento,
                               QObject* genitore)
    : QObject(genitore)
    , pulsante(cmdImmagine)
    , c(std::move(collegamento)) {
    if (!pulsante)
        return;
    if (pulsante->objectName().isEmpty())
        pulsante->setObjectName(QStringLiteral("cmdImmagine"));
    pulsante->setToolTip(ToolTip);
    connect(pulsante, &QPushButton::clicked, this, &ImmagineRecord::cmdImmagine_Click);
    CheckImmagine();
}

void ImmagineRecord::CheckImmagine() {
    if (!pulsante)
        return;
    const bool bCollegata = c.leggiMd5 && !c.leggiMd5().isEmpty();
    const QPalette sistema = QApplication::palette();
    QPalette tavolozza = pulsante->palette();
    tavolozza.setColor(QPalette::Button,
                       sistema.color(bCollegata ? QPalette::Window : QPalette::Button));
    pulsante->setPalette(tavolozza);
    pulsante->setAutoFillBackground(true);
    pulsante->setText(bCollegata ? CaptionElimina : CaptionImmagine);
    pulsante->setProperty("Tag", bCollegata ? QStringLiteral("1") : QStringLiteral("0"));
}

void ImmagineRecord::cmdImmagine_Click() {
    if (!pulsante)
        return;
    const long lId = c.idElemento ? c.idElemento() : 0;
    if (pulsante->property("Tag").toString() == QStringLiteral("1")) {
        if (MsgBox(TestoDomanda, Pulsanti::SiNo, Icona::Domanda,
                   c.bTitoloBreve ? TitoloDomandaBreve : TitoloDomanda) == Risposta::Si) {
            QString sErrore;
            XmlMag::DeleteXmlMag(lId, c.leggiMd5 ? c.leggiMd5() : QString(), sErrore);
            if (c.scriviMd5)
                c.scriviMd5(QString());
            if (!sErrore.isEmpty())
                MsgBox(sErrore, Pulsanti::Ok, Icona::Critica);
        }
    } else {
        SceltaFile scelta;
        scelta.sFiltro = FiltroFile;
        scelta.sFiltroScelto = FiltroScelto;
        const QString sFile = piattaforma().ScegliFile(scelta);
        if (!sFile.isEmpty()) {
            QString sMd5;
            QString sErrore;
            XmlMag::ImportXmlMag(lId, sFile, sMd5, sErrore);
            if (c.scriviMd5)
                c.scriviMd5(sErrore.isEmpty() ? sMd5 : QString());
            if (!sErrore.isEmpty())
                MsgBox(sErrore, Pulsanti::Ok, Icona::Critica,
                       c.bTitoloErrore ? sErrore : QString());
        }
    }
    CheckImmagine();
}
