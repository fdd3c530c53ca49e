#include "frmNuovoVersamento.h"

#include "records/ucRigaVersamento.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QSqlQuery>

namespace {

const QString StatoNuovo = QStringLiteral("nuovo");
const QString StatoModifica = QStringLiteral("modifica");

} // namespace

frmNuovoVersamento::frmNuovoVersamento(QWidget* genitore)
    : SelettoreComplessi(QStringLiteral("frmNuovoVersamento"), {.scelta = Scelta::Unica},
                         QStringLiteral("Nuovo compl. doc."), genitore) {
    setWindowTitle(QStringLiteral("Riga di versamento"));
    cmdCollega->setText(QStringLiteral("Conferma collegam."));

    // The row on the right, beside the panes of the tree's records.
    fraVersamento = new ucRigaVersamento(this);
    fraVersamento->setObjectName(QStringLiteral("fraVersamento"));
    for (int i = 0; layout() != nullptr && i < layout()->count(); ++i) {
        auto* riga = qobject_cast<QHBoxLayout*>(layout()->itemAt(i)->layout());
        if (riga != nullptr && riga->indexOf(areaFrame1) >= 0) {
            riga->addWidget(fraVersamento, 3);
            break;
        }
    }
    fraVersamento->Init();

    Carica();
    Attiva();
}

frmNuovoVersamento::~frmNuovoVersamento() = default;

void frmNuovoVersamento::Attiva() {
    const QString sSorgente = QStringLiteral("frmNuovoVersamento.Attiva");
    try {
        if (!Sessione::cnn) {
            throw Errore(sSorgente, QStringLiteral("La connessione al database è chiusa."));
        }
        if (Sessione::lIdRigaVersamento == 0) {
            // A new row: the tree open at the act's institute.
            sStatoRiga = StatoNuovo;
            fraVersamento->Nuovo();
            QSqlQuery istituto = Sessione::cnn->Esegui(
                QStringLiteral("SELECT IST.ID_Elemento FROM Istituti IST JOIN Versamenti VER ON "
                               "VER.ID_Istituto = IST.ID_Istituto WHERE VER.ID_Versamento = ?"),
                {static_cast<qlonglong>(Sessione::lIdVersamento)}, sSorgente);
            const qint64 lIdIstitutoAtto = istituto.next() ? istituto.value(0).toLongLong() : 0;
            istituto.finish();
            if (lIdIstitutoAtto != 0) {
                ApriFinoA(Modello().Trova(lIdIstitutoAtto));
            }
            return;
        }
        // A row written before: its complesso ticked, the tree open down to it.
        sStatoRiga = StatoModifica;
        fraVersamento->Mostra(Sessione::lIdRigaVersamento);
        fraVersamento->Modifica();
        QSqlQuery complesso = Sessione::cnn->Esegui(
            QStringLiteral(
                "SELECT CD.ID_Elemento FROM RigheVersamento RV JOIN ComplessiDoc CD ON "
                "CD.ID_ComplessoDoc = RV.ID_ComplessoDoc WHERE RV.ID_RigaVersamento = ?"),
            {static_cast<qlonglong>(Sessione::lIdRigaVersamento)}, sSorgente);
        const qint64 lIdComplesso = complesso.next() ? complesso.value(0).toLongLong() : 0;
        complesso.finish();
        if (lIdComplesso != 0) {
            Scegli(lIdComplesso);
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T5"));
    }
}

bool frmNuovoVersamento::Collega() {
    if (!fraVersamento->CheckMandatoryFields()) {
        return false;
    }
    // A row cannot exist without its complesso.
    if (Scelto() == 0) {
        MsgBox(QStringLiteral("Scegliere un complesso documentario."), Pulsanti::Ok,
               Icona::Informazione, QStringLiteral("Attenzione"));
        return false;
    }
    const qlonglong lIdScelto = Scelto();
    const QString sSorgente = QStringLiteral("frmNuovoVersamento.cmdCollega");
    long lIdRiga = 0;
    const bool bScritto = ScriviInTransazione([&] {
        const Connessione& cnn = *Sessione::cnn;
        if (sStatoRiga == StatoNuovo) {
            QSqlQuery atto = cnn.Esegui(
                QStringLiteral("SELECT ID_Versamento FROM Versamenti WHERE ID_Versamento = ?"),
                {static_cast<qlonglong>(Sessione::lIdVersamento)}, sSorgente);
            if (!atto.next()) {
                throw Errore(sSorgente, QStringLiteral("Il versamento non esiste più nel "
                                                       "database: la riga non è stata salvata."));
            }
            atto.finish();
            lIdRiga = static_cast<long>(cnn.Inserisci(
                QStringLiteral("RigheVersamento"), QStringLiteral("ID_RigaVersamento"),
                {QStringLiteral("ID_Versamento")},
                {static_cast<qlonglong>(Sessione::lIdVersamento)}));
        } else {
            lIdRiga = Sessione::lIdRigaVersamento;
            QSqlQuery riga = cnn.Esegui(
                QStringLiteral(
                    "SELECT ID_RigaVersamento FROM RigheVersamento WHERE ID_RigaVersamento = ?"),
                {static_cast<qlonglong>(lIdRiga)}, sSorgente);
            if (!riga.next()) {
                throw Errore(sSorgente, QStringLiteral("La riga di versamento non esiste più nel "
                                                       "database: non è stata salvata."));
            }
            riga.finish();
        }
        QSqlQuery complesso = cnn.Esegui(
            QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE ID_Elemento = ?"),
            {lIdScelto}, sSorgente);
        if (!complesso.next()) {
            throw Errore(sSorgente, QStringLiteral("Il complesso documentario %1 non esiste più "
                                                   "nel database: la riga non è stata salvata.")
                                        .arg(lIdScelto));
        }
        fraVersamento->ID_ComplessoDoc = static_cast<long>(complesso.value(0).toLongLong());
        complesso.finish();
        fraVersamento->Salva(lIdRiga);
    });
    if (bScritto) {
        Sessione::lIdRigaVersamento = lIdRiga;
    }
    return bScritto;
}
