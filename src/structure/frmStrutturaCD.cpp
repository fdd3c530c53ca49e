#include "frmStrutturaCD.h"

#include "records/ucIstituto.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QMdiSubWindow>
#include <QPushButton>
#include <QShowEvent>
#include <QSqlQuery>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

const QString TagRadice = QStringLiteral("00");
const QString TagIstituto = QStringLiteral("01");
const QString TagComplesso = QStringLiteral("02");
const QString Istituto = QStringLiteral("istituto");
const QString Complesso = QStringLiteral("complesso");

QPushButton* NuovoComando(QWidget* finestra, const char* nome, const QString& sDidascalia) {
    auto* comando = new QPushButton(sDidascalia, finestra);
    comando->setObjectName(QLatin1String(nome));
    return comando;
}

} // namespace

frmStrutturaCD::frmStrutturaCD(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmStrutturaCD"), genitore) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Complessi documentari"));

    // The two editors in Frame1, one visible at a time.
    auto* pannello = new QVBoxLayout(Frame1);
    pannello->setContentsMargins(0, 0, 0, 0);
    fraIstituto = new ucIstituto(Frame1);
    fraIstituto->setObjectName(QStringLiteral("fraIstituto"));
    fraComplesso = new ucComplesso(Frame1);
    fraComplesso->setObjectName(QStringLiteral("fraComplesso"));
    pannello->addWidget(fraIstituto);
    pannello->addWidget(fraComplesso);
    fraComplesso->hide();

    cmdNuovoIst = NuovoComando(this, "cmdNuovoIst", QStringLiteral("Nuovo Istituto"));
    cmdNuovoCD = NuovoComando(this, "cmdNuovoCD", QStringLiteral("Nuovo Complesso"));
    cmdModifica = NuovoComando(this, "cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando(this, "cmdCancella", QStringLiteral("Cancella"));
    for (QPushButton* comando : {cmdNuovoIst, cmdNuovoCD, cmdModifica, cmdCancella}) {
        RegistraComando(comando);
    }
    connect(cmdNuovoIst, &QPushButton::clicked, this, [this] { cmdNuovoIst_Click(); });
    connect(cmdNuovoCD, &QPushButton::clicked, this, [this] { cmdNuovoCD_Click(); });
    connect(cmdModifica, &QPushButton::clicked, this, [this] { cmdModifica_Click(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { cmdCancella_Click(); });
    connect(cmdConferma, &QPushButton::clicked, this, [this] { cmdConferma_Click(); });
    connect(cmdAnnulla, &QPushButton::clicked, this, [this] { cmdAnnulla_Click(); });

    // Load: the editors, then the tree through Ord(1).
    fraIstituto->Init();
    fraComplesso->Init(false, this);
    Avvia(true);
}

frmStrutturaCD::~frmStrutturaCD() = default;

void frmStrutturaCD::showEvent(QShowEvent* evento) {
    FinestraStruttura::showEvent(evento);
    if (bPrimaVisualizzazione) {
        bPrimaVisualizzazione = false;
        // Left and Top 0 in the main form.
        if (auto* cornice = qobject_cast<QMdiSubWindow*>(parentWidget())) {
            cornice->move(0, 0);
        }
    }
}

// ---------------------------------------------------------------------------------------------
// The tree

QList<GruppoAlbero> frmStrutturaCD::Gruppi(const QString& sOrdine) {
    GruppoAlbero istituti;
    istituti.sCondizione = QStringLiteral("ELEM_Tipologia='01'");
    istituti.sImmagine = Istituto;
    istituti.bPadreNulloERadice = true;
    GruppoAlbero complessi;
    complessi.sCondizione = QStringLiteral("ELEM_Tipologia='02'");
    complessi.sOrdine = QStringLiteral("ELEM_ID_ElementoPadre, ") + sOrdine;
    complessi.sImmagine = QStringLiteral("nolink");
    complessi.sColonnaLink = QStringLiteral("CD_NumeroInventari");
    return {istituti, complessi};
}

QString frmStrutturaCD::OrdineAlfabetico() {
    const QString sColonna = QStringLiteral("ELEM_Denominazione");
    return Sessione::cnn ? Sessione::cnn->InOrdineAlfabetico(sColonna) : sColonna;
}

QString frmStrutturaCD::OrdineArchivistico() {
    return QStringLiteral("CASE WHEN CD_Ordinamento IS NULL THEN 0 ELSE 1 END, CD_Ordinamento, ") +
           OrdineAlfabetico();
}

QString frmStrutturaCD::OrdineDi(int iOpzione) const {
    return iOpzione == 0 ? OrdineAlfabetico() : OrdineArchivistico();
}

void frmStrutturaCD::CaricaAlbero(const QString& sOrdine) {
    // The tail comes from the two options' fixed texts only.
    const QString sCoda = sOrdine == OrdineAlfabetico() ? OrdineAlfabetico() : OrdineArchivistico();
    CaricaGruppi(Gruppi(sCoda), true);
}

void frmStrutturaCD::MostraNodo(const QString& sTag) {
    if (sTag == TagRadice || sTag == TagIstituto) {
        MostraIstituto();
    } else if (sTag == TagComplesso) {
        MostraComplesso();
    }
}

// ---------------------------------------------------------------------------------------------
// Showing

void frmStrutturaCD::PulsantiDaIstituto() {
    cmdNuovoIst->setEnabled(fraIstituto->OkNuovoIstituto);
    cmdNuovoCD->setEnabled(fraIstituto->OkNuovoComplesso);
    cmdCancella->setEnabled(fraIstituto->OkCancella);
    cmdModifica->setEnabled(fraIstituto->OkModifica);
}

void frmStrutturaCD::PulsantiDaComplesso() {
    cmdNuovoIst->setEnabled(false);
    cmdNuovoCD->setEnabled(fraComplesso->OkNuovoComplesso);
    cmdCancella->setEnabled(fraComplesso->OkCancella);
    cmdModifica->setEnabled(fraComplesso->OkModifica);
}

void frmStrutturaCD::MostraIstituto() {
    sStato = QStringLiteral("mostra");
    sTipo = Istituto;
    MostraPannello();
    fraComplesso->setVisible(false);
    fraIstituto->Mostra(static_cast<long>(lIdCorrente));
    lIdIstituto = fraIstituto->ID_Istituto;
    PulsantiDaIstituto();
    fraIstituto->setVisible(true);
}

void frmStrutturaCD::MostraComplesso() {
    sStato = QStringLiteral("mostra");
    sTipo = Complesso;
    MostraPannello();
    fraIstituto->setVisible(false);
    fraComplesso->Mostra(static_cast<long>(lIdCorrente));
    lIdIstituto = fraComplesso->ID_Istituto;
    PulsantiDaComplesso();
    fraComplesso->setVisible(true);
}

QString frmStrutturaCD::LeggiDenominazione() const {
    return sTipo == Complesso ? fraComplesso->LeggiDenominazione()
                              : fraIstituto->LeggiDenominazione();
}

// ---------------------------------------------------------------------------------------------
// What the complesso record asks

QString frmStrutturaCD::GetDenon() {
    const QModelIndex nodo = NodoCorrente();
    return nodo.isValid() ? Modello().Testo(nodo) : QString();
}

void frmStrutturaCD::ChkSogg() {
    FinestraStruttura::ChkSogg();
}

void frmStrutturaCD::ChkLinks() {
    FinestraStruttura::ChkLinks();
}

// ---------------------------------------------------------------------------------------------
// New, edit

void frmStrutturaCD::cmdNuovoIst_Click() {
    BloccaComandi();
    NuovoIstituto();
}

void frmStrutturaCD::NuovoIstituto() {
    sStato = QStringLiteral("nuovo");
    sTipo = Istituto;
    MostraPannello();
    AggiungiNodoTemporaneo(TagIstituto, QStringLiteral("istituto"));
    fraComplesso->setVisible(false);
    fraIstituto->AssegnaIstituto(lIdIstituto);
    fraIstituto->setVisible(true);
    fraIstituto->Nuovo();
}

void frmStrutturaCD::cmdNuovoCD_Click() {
    BloccaComandi();
    NuovoComplesso();
}

void frmStrutturaCD::NuovoComplesso() {
    sStato = QStringLiteral("nuovo");
    sTipo = Complesso;
    const QModelIndex padre = NodoCorrente();
    const QString sTagPadre = padre.isValid() ? Modello().Tag(padre) : QString();
    MostraPannello();
    AggiungiNodoTemporaneo(TagComplesso, QStringLiteral("nolink"));
    fraIstituto->setVisible(false);
    fraComplesso->AssegnaIstituto(lIdIstituto);
    fraComplesso->setVisible(true);
    fraComplesso->Nuovo(sTagPadre, static_cast<long>(lIdCorrente));
}

void frmStrutturaCD::cmdModifica_Click() {
    BloccaComandi();
    if (sTagCorrente == TagRadice || sTagCorrente == TagIstituto) {
        ModificaIstituto();
    } else if (sTagCorrente == TagComplesso) {
        ModificaComplesso();
    }
}

void frmStrutturaCD::ModificaIstituto() {
    sStato = QStringLiteral("modifica");
    sTipo = Istituto;
    MostraPannello();
    fraComplesso->setVisible(false);
    fraIstituto->AssegnaIstituto(lIdIstituto);
    fraIstituto->Modifica();
    fraIstituto->setVisible(true);
}

void frmStrutturaCD::ModificaComplesso() {
    sStato = QStringLiteral("modifica");
    sTipo = Complesso;
    MostraPannello();
    fraIstituto->setVisible(false);
    fraComplesso->Modifica();
    fraComplesso->setVisible(true);
}

// ---------------------------------------------------------------------------------------------
// Conferma

namespace {

// Salva of an editor, once the row of Elementi is there: a failure is shown and goes no further.
// The row stands, the node is made, and the editor is locked as after a save.
void SalvaEditore(EditoreRecord& editore, long lIdElemento) {
    QString sTesto;
    try {
        editore.Salva(lIdElemento);
        return;
    } catch (const Errore& errore) {
        sTesto = errore.testo();
    } catch (const std::exception& errore) {
        sTesto = QString::fromUtf8(errore.what());
    }
    MsgBox(sTesto, Pulsanti::Ok, Icona::Critica);
    editore.Annulla();
}

} // namespace

long frmStrutturaCD::AggiungiElemento(const QString& sDenominazione, const QString& sTipologia,
                                      long lIdPadre) {
    return ArchivioElementi::Crea(*Sessione::cnn, sTipologia, sDenominazione, lIdPadre);
}

bool frmStrutturaCD::SalvaIstituto() {
    if (!fraIstituto->CheckMandatoryFields()) {
        return false;
    }
    lIdSalvato = sStato == QStringLiteral("nuovo")
                     ? AggiungiElemento(fraIstituto->LeggiDenominazione(), TagIstituto,
                                        static_cast<long>(lIdCorrente))
                     : static_cast<long>(lIdCorrente);
    SalvaEditore(*fraIstituto, lIdSalvato);
    PulsantiDaIstituto();
    return true;
}

bool frmStrutturaCD::SalvaComplesso() {
    if (!fraComplesso->CheckMandatoryFields()) {
        return false;
    }
    lIdSalvato = sStato == QStringLiteral("nuovo")
                     ? AggiungiElemento(fraComplesso->LeggiDenominazione(), TagComplesso,
                                        static_cast<long>(lIdCorrente))
                     : static_cast<long>(lIdCorrente);
    SalvaEditore(*fraComplesso, lIdSalvato);
    PulsantiDaComplesso();
    return true;
}

void frmStrutturaCD::cmdConferma_Click() {
    const bool bComplesso = sTipo == Complesso;
    bool bSalvato = false;
    try {
        bSalvato = bComplesso ? SalvaComplesso() : SalvaIstituto();
    } catch (const Errore& errore) {
        // The row of Elementi could not be written (a failure of Salva does not come here):
        // the edit goes on.
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica);
        return;
    }
    if (!bSalvato) {
        return; // the state stays and the user goes on
    }
    if (sStato == QStringLiteral("nuovo")) {
        SostituisciNodoTemporaneo(lIdSalvato, LeggiDenominazione(),
                                  bComplesso ? QStringLiteral("nolink")
                                             : QStringLiteral("istituto"),
                                  bComplesso ? TagComplesso : TagIstituto);
    } else if (sStato == QStringLiteral("modifica")) {
        const QModelIndex nodo = NodoCorrente();
        if (nodo.isValid()) {
            Modello().ImpostaTesto(nodo, LeggiDenominazione());
        }
    }
    sStato = QStringLiteral("mostra");
    SbloccaComandi();
}

// ---------------------------------------------------------------------------------------------
// Annulla

void frmStrutturaCD::cmdAnnulla_Click() {
    if (sStato == QStringLiteral("nuovo")) {
        RimuoviNodoTemporaneo();
        if (sTipo == Complesso) {
            fraComplesso->Annulla();
        } else {
            fraIstituto->Annulla();
        }
        SelezionaNodo(NodoCorrente());
    } else if (sStato == QStringLiteral("modifica")) {
        if (sTipo == Complesso) {
            MostraComplesso();
        } else {
            MostraIstituto();
        }
    }
    sStato = QStringLiteral("mostra");
    SbloccaComandi();
}

// ---------------------------------------------------------------------------------------------
// Cancella

void frmStrutturaCD::cmdCancella_Click() {
    const QModelIndex nodo = NodoCorrente();
    if (!nodo.isValid()) {
        return;
    }
    const qint64 lIdPadre = Modello().Id(nodo.parent());
    QString sTabella;
    QString sTipologia;
    Risposta risposta = Risposta::No;
    if (sTagCorrente == TagComplesso) {
        sTabella = QStringLiteral("ComplessiDoc");
        sTipologia = TagComplesso;
        risposta =
            MsgBox(QStringLiteral("Sei sicuro di voler cancellare il Complesso documentario?"),
                   Pulsanti::SiNo, Icona::Domanda,
                   QStringLiteral("Cancella Complesso documentario: ") +
                       fraComplesso->LeggiDenominazione());
    } else if (sTagCorrente == TagIstituto) {
        sTabella = QStringLiteral("Istituti");
        sTipologia = TagIstituto;
        risposta =
            MsgBox(QStringLiteral("Sei sicuro di voler cancellare l'Istituto?"), Pulsanti::SiNo,
                   Icona::Domanda,
                   QStringLiteral("Cancella Istituto: ") + fraIstituto->LeggiDenominazione());
    } else {
        return;
    }
    if (risposta != Risposta::Si) {
        SelezionaNodo(nodo);
        tvwDB->setFocus();
        return;
    }
    try {
        // The table's name comes from the two fixed texts above.
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT ID_Elemento FROM %1 WHERE ID_Elemento = ?").arg(sTabella),
            {static_cast<qlonglong>(lIdCorrente)});
        if (riga.next()) {
            riga.finish();
            ArchivioElementi::Elimina(*Sessione::cnn, sTipologia, static_cast<long>(lIdCorrente));
            Modello().Rimuovi(lIdCorrente);
        }
    } catch (const Errore& errore) {
        MsgBox(QString::number(errore.numero()) + QLatin1Char('\n') + errore.sorgente() +
                   QLatin1Char('\n') + errore.descrizione(),
               Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T4"));
        return;
    }
    const QModelIndex padre = Modello().Trova(lIdPadre);
    SelezionaNodo(padre);
    tvwDB->setFocus();
}
