#include "images/ImmagineRecord.h"

#include "images/XmlMag.h"
#include "images/frmCollegaImmagini.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"

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
    pulsante->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(pulsante, &QWidget::customContextMenuRequested, this, &ImmagineRecord::MenuPagine);
    CheckImmagine();
}

void ImmagineRecord::CheckImmagine() {
    if (!pulsante)
        return;
    const bool bCollegata = (c.leggiMd5 && !c.leggiMd5().isEmpty()) ||
                            PagineCollegate(c.idElemento ? c.idElemento() : 0);
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
            const QString sMd5 = c.leggiMd5 ? c.leggiMd5() : QString();
            // A page link alone has no imported document to remove.
            const bool bPagine = PagineCollegate(lId);
            if (!sMd5.isEmpty() || !bPagine) {
                XmlMag::DeleteXmlMag(lId, sMd5, sErrore);
                if (c.scriviMd5)
                    c.scriviMd5(QString());
            }
            if (bPagine && sErrore.isEmpty()) {
                try {
                    PagineMag::Cancella(lId);
                } catch (const Errore& errore) {
                    sErrore = errore.testo();
                }
            }
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

void ImmagineRecord::MenuPagine(const QPoint& posizione) {
    if (!pulsante || !pulsante->isEnabled())
        return;
    // Only a saved element, and not one linked to an imported document, takes a page link.
    const long lId = c.idElemento ? c.idElemento() : 0;
    if (lId <= 0 || (c.leggiMd5 && !c.leggiMd5().isEmpty()))
        return;
    if (piattaforma().SceltaMenu({VocePagine}, pulsante->mapToGlobal(posizione)) != 1)
        return;
    CollegaPagine(lId);
    CheckImmagine();
}

bool ImmagineRecord::PagineCollegate(long lIdElemento) const {
    if (lIdElemento <= 0 || !Sessione::cnn)
        return false;
    try {
        return !PagineMag::Leggi(lIdElemento).sXmlLink.isEmpty();
    } catch (const Errore&) {
        return false;
    }
}

void ImmagineRecord::CollegaPagine(long lIdElemento) {
    try {
        // The dialog starts from the element's page link, if it has one.
        const PagineMag::Link link = PagineMag::Leggi(lIdElemento);
        const bool bLink = !link.sXmlLink.isEmpty();
        Sessione::lIdElementoImg = lIdElemento;
        Sessione::sCartellaImg = link.sXmlLink;
        Sessione::sPaginaImg.clear();
        Sessione::iDaPagina = bLink ? link.iDa : qint16(0);
        Sessione::iAPagina = bLink ? link.iA : qint16(0);
        Sessione::iEsitoCollegaImmagini = 0;
        Dialoghi::Apri(QStringLiteral("frmCollegaImmagini"), pulsante->window());
        // Confirmed: the document below the repository's root and its two pages.
        if (Sessione::iEsitoCollegaImmagini == 1)
            PagineMag::Scrivi(lIdElemento, Sessione::sCartellaImg, Sessione::iDaPagina,
                              Sessione::iAPagina);
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), QStringLiteral("ImmagineRecord")).testo(),
               Pulsanti::Ok, Icona::Critica);
    }
}
