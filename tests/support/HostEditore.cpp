#include "HostEditore.h"

#include "records/EditoreRecord.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

HostEditore::HostEditore(EditoreRecord* editore, QString tipologia, long lIdPadre, QWidget* parent)
    : QWidget(parent)
    , pEditore(editore)
    , sTipologia(std::move(tipologia))
    , lIdPadreNuovo(lIdPadre) {
    setObjectName(QStringLiteral("HostEditore"));
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(pEditore);
    auto* fila = new QHBoxLayout;
    const auto pulsante = [this, fila](const char* nome, const QString& testo) {
        auto* cmd = new QPushButton(testo, this);
        cmd->setObjectName(QLatin1String(nome));
        fila->addWidget(cmd);
        return cmd;
    };
    cmdNuovo = pulsante("cmdNuovo", QStringLiteral("Nuovo"));
    cmdModifica = pulsante("cmdModifica", QStringLiteral("Modifica"));
    cmdConferma = pulsante("cmdConferma", QStringLiteral("Conferma"));
    cmdAnnulla = pulsante("cmdAnnulla", QStringLiteral("Annulla"));
    cmdCancella = pulsante("cmdCancella", QStringLiteral("Cancella"));
    colonna->addLayout(fila);

    connect(cmdNuovo, &QPushButton::clicked, this, [this] { Nuovo(); });
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdConferma, &QPushButton::clicked, this, [this] { Conferma(); });
    connect(cmdAnnulla, &QPushButton::clicked, this, [this] { Annulla(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });
    // A dialog that the editor opened has closed: the delete follows the editor's flag again.
    connect(pEditore, &EditoreRecord::EventoStato, this,
            [this] { cmdCancella->setEnabled(okCancella && okCancella()); });
    ImpostaPulsanti();
}

void HostEditore::Carica() {
    pEditore->Init();
    ImpostaPulsanti();
}

void HostEditore::MostraElemento(long lIdElemento) {
    sStato = QStringLiteral("mostra");
    lIdCorrente = lIdElemento;
    pEditore->Mostra(lIdElemento);
    pEditore->setVisible(true);
    ImpostaPulsanti();
}

void HostEditore::Nuovo() {
    sStato = QStringLiteral("nuovo");
    lIdPrecedente = lIdCorrente;
    lIdCorrente = 0;
    pEditore->setVisible(true);
    pEditore->Nuovo();
    ImpostaPulsanti();
}

void HostEditore::Modifica() {
    sStato = QStringLiteral("modifica");
    pEditore->Modifica();
    ImpostaPulsanti();
}

bool HostEditore::Conferma() {
    if (!pEditore->CheckMandatoryFields())
        return false;
    long lId = lIdCorrente;
    if (sStato == QLatin1String("nuovo"))
        lId = ArchivioElementi::Crea(*Sessione::cnn, sTipologia, pEditore->LeggiDenominazione(),
                                     lIdPadreNuovo);
    // A failure of the save is shown in the host's box, and the host goes on.
    pEditore->SalvaMostrandoLErrore(lId);
    MostraElemento(lId);
    return true;
}

void HostEditore::Annulla() {
    if (sStato == QLatin1String("nuovo")) {
        pEditore->Annulla();
        if (lIdPrecedente > 0) {
            MostraElemento(lIdPrecedente);
            return;
        }
        sStato.clear();
        lIdCorrente = 0;
        ImpostaPulsanti();
        return;
    }
    if (sStato == QLatin1String("modifica"))
        MostraElemento(lIdCorrente);
}

bool HostEditore::Cancella() {
    if (lIdCorrente <= 0)
        return false;
    if (MsgBox(QStringLiteral("Cancellare l'elemento selezionato?"), Pulsanti::SiNo,
               Icona::Domanda) != Risposta::Si)
        return false;
    ArchivioElementi::Elimina(*Sessione::cnn, sTipologia, lIdCorrente);
    lIdCorrente = 0;
    sStato.clear();
    pEditore->setVisible(false);
    ImpostaPulsanti();
    return true;
}

void HostEditore::ImpostaPulsanti() {
    const bool bInScrittura =
        sStato == QLatin1String("nuovo") || sStato == QLatin1String("modifica");
    const bool bMostra = sStato == QLatin1String("mostra");
    cmdNuovo->setEnabled(!bInScrittura && (!okNuovo || okNuovo()));
    cmdModifica->setEnabled(bMostra && okModifica && okModifica());
    cmdCancella->setEnabled(bMostra && okCancella && okCancella());
    cmdConferma->setEnabled(bInScrittura);
    cmdAnnulla->setEnabled(bInScrittura);
}
