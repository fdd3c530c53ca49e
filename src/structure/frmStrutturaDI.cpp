#include "frmStrutturaDI.h"

#include "records/ucDatiInventariali.h"
#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QPushButton>
#include <QSqlQuery>
#include <QTreeView>

namespace {

const QString TagInventario = QStringLiteral("03");
const QString TagPergamena = QStringLiteral("05");
const QString TagSigillo = QStringLiteral("06");
const QString TagDatoInventariale = QStringLiteral("07");
const QString Sorgente = QStringLiteral("frmStrutturaDI");

qlonglong Chiave(long valore) {
    return static_cast<qlonglong>(valore);
}

} // namespace

frmStrutturaDI::frmStrutturaDI(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmStrutturaDI"), genitore) {
    setWindowTitle(QStringLiteral("Inventario analitico"));

    fraInventario = new ucInventario;
    AggiungiEditore(fraInventario, "fraInventario");
    fraDatiInventariali = new ucDatiInventariali;
    AggiungiEditore(fraDatiInventariali, "fraDatiInventariali");
    fraPergamena = new ucPergamena;
    AggiungiEditore(fraPergamena, "fraPergamena");
    fraSigillo = new ucSigillo;
    AggiungiEditore(fraSigillo, "fraSigillo");

    cmdNuovoDI = NuovoComando("cmdNuovoDI", QStringLiteral("Nuovo"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella"));
    cmdMostraLinks = NuovoComando("cmdMostraLinks", QStringLiteral("Complessi doc."));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] {
        Cancella();
        // The finding aid itself deleted: nothing is left to show.
        if (!Modello().Radice().isValid()) {
            SenzaAlbero();
        }
    });
    connect(cmdMostraLinks, &QPushButton::clicked, this, [this] { cmdMostraLinks_Click(); });
    RegistraMenuNuovo(cmdNuovoDI, {TagInventario, TagDatoInventariale}, VociInventario());
    RegistraMenuNuovo(cmdNuovoDI, {TagPergamena}, VociPergamena());

    // After a link dialog of a unit, a parchment or a seal, the delete follows the record.
    for (EditoreRecord* editore :
         std::initializer_list<EditoreRecord*>{fraDatiInventariali, fraPergamena, fraSigillo}) {
        connect(editore, &EditoreRecord::EventoStato, this,
                [this, editore] { cmdCancella->setEnabled(editore->OkCancella); });
    }

    const auto tipo = [this](const QString& sTag, const char* sTipoRecord, EditoreRecord* editore,
                             const char* sImmagine, const char* sTabella, const char* sDomanda,
                             const char* sTitolo) {
        return TipoDelloStrumento(sTag, sTipoRecord, editore, sImmagine, sTabella, sDomanda,
                                  sTitolo, cmdCancella, cmdModifica);
    };
    TipoNodo inventario =
        tipo(TagInventario, "inventario", fraInventario, "nolink", "Inventari",
             "Sei sicuro di voler cancellare l'Inventario?", "Cancella Inventario: ");
    inventario.pulsanti += {{cmdNuovoDI, &TipoNodo::Sempre}, {cmdMostraLinks, &TipoNodo::Sempre}};
    RegistraTipo(inventario);
    TipoNodo unita = tipo(TagDatoInventariale, "datiinventariali", fraDatiInventariali, "nolink",
                          "DatiInventariali", "Sei sicuro di voler cancellare l'Inventario?",
                          "Cancella DatiInventariali: ");
    unita.pulsanti.append({cmdNuovoDI, &fraDatiInventariali->OkNuovoDatoInventariale});
    RegistraTipo(unita);
    TipoNodo pergamena =
        tipo(TagPergamena, "pergamena", fraPergamena, "pergamena", "Pergamene",
             "Sei sicuro di voler cancellare la pergamena?", "Cancella Pergamena: ");
    pergamena.pulsanti.append({cmdNuovoDI, &fraPergamena->OkNuovaPergamena});
    RegistraTipo(pergamena);
    // A seal has no sons: cmdNuovoDI, which the other kinds list, is off for it.
    RegistraTipo(tipo(TagSigillo, "sigillo", fraSigillo, "sigillo", "Sigilli",
                      "Sei sicuro di voler cancellare il sigillo?", "Cancella DatiInventariali: "));
}

frmStrutturaDI::~frmStrutturaDI() {
    Sessione::bFrmStrutturaINAperto = false;
}

const QList<VoceNuovo>& frmStrutturaDI::VociInventario() {
    // The entry "Inventario Base" makes a unit.
    static const QList<VoceNuovo> voci = {{QStringLiteral("Inventario Base"), TagDatoInventariale},
                                          {QStringLiteral("Pergamena              "), TagPergamena},
                                          {QStringLiteral("Sigillo                "), TagSigillo}};
    return voci;
}

const QList<VoceNuovo>& frmStrutturaDI::VociPergamena() {
    static const QList<VoceNuovo> voci = {{QStringLiteral("Pergamena"), TagPergamena},
                                          {QStringLiteral("Sigillo  "), TagSigillo}};
    return voci;
}

void frmStrutturaDI::Init(const QString& sTipoInv, const QString& sComplessoLinked) {
    sTipoAnalitico = sTipoInv;
    sComplesso = sComplessoLinked;
    fraInventario->Init();
    fraDatiInventariali->Init();
    fraPergamena->Init();
    fraSigillo->Init();
    DimensioniDalPrincipale();
    Avvia(true);
}

// ---------------------------------------------------------------------------------------------
// The tree

QString frmStrutturaDI::OrdineAlfabetico() {
    const QString sColonna = QStringLiteral("ELEM_Denominazione");
    return Sessione::cnn ? Sessione::cnn->InOrdineAlfabetico(sColonna) : sColonna;
}

QString frmStrutturaDI::OrdineArchivistico() {
    return QStringLiteral("COALESCE(DATIINV_Ordinamento,0), ") + OrdineAlfabetico();
}

QString frmStrutturaDI::OrdineDi(int iOpzione) const {
    return iOpzione == 0 ? OrdineAlfabetico() : OrdineArchivistico();
}

GruppoAlbero frmStrutturaDI::Gruppo(long lIdInventarioRecord, const QString& sOrdine) {
    GruppoAlbero gruppo;
    gruppo.sVista = QStringLiteral("AlberoDatiInventariali");
    // The three kinds hang on the finding aid by the key of its row of Inventari.
    gruppo.sCondizione = QStringLiteral("((ELEM_Tipologia='07' AND DATIINV_ID_Inventario = ?) OR "
                                        "(ELEM_Tipologia='05' AND PG_ID_Inventario = ?) OR "
                                        "(ELEM_Tipologia='06' AND SG_ID_Inventario = ?))");
    gruppo.valori = {Chiave(lIdInventarioRecord), Chiave(lIdInventarioRecord),
                     Chiave(lIdInventarioRecord)};
    gruppo.sOrdine = QStringLiteral("ELEM_ID_ElementoPadre, ") + sOrdine;
    gruppo.sImmagine = QStringLiteral("nolink");
    gruppo.tipi = {
        {TagDatoInventariale, QStringLiteral("DATIINV_Titolo"), QStringLiteral("nolink")},
        {TagPergamena, QStringLiteral("PG_Segnatura"), QStringLiteral("pergamena")},
        {TagSigillo, QStringLiteral("SG_Identificativo"), QStringLiteral("sigillo")}};
    // A Null parent has no node here: the root is the finding aid, not "0 ID".
    gruppo.bPadreNulloERadice = false;
    return gruppo;
}

void frmStrutturaDI::CaricaAlbero(const QString& sOrdine) {
    // The tail comes from the two options' fixed texts only.
    const QString sCoda = sOrdine == OrdineAlfabetico() ? OrdineAlfabetico() : OrdineArchivistico();
    lIdInventarioCorrente = Sessione::lIdInventario;
    QString sDenominazione;
    if (!LeggiStrumentoRadice(QStringLiteral("SELECT INV_ID_Inventario, INV_Denominazione FROM "
                                             "AlberoDatiInventariali WHERE ELEM_Tipologia='03' AND "
                                             "ELEM_ID_Elemento = ?"),
                              lIdInventarioCorrente, lIdInventarioRecord, sDenominazione)) {
        return;
    }
    RadiceAlbero radice;
    radice.lId = lIdInventarioCorrente;
    radice.sImmagine = QStringLiteral("nolink");
    radice.sTag = TagInventario;
    radice.sTesto =
        sComplesso.isEmpty() ? sDenominazione : QStringLiteral("Inventario: ") + sDenominazione;
    if (CaricaGruppi({Gruppo(lIdInventarioRecord, sCoda)}, false, radice)) {
        fraDatiInventariali->setVisible(false);
        fraPergamena->setVisible(false);
        fraSigillo->setVisible(false);
    }
}

// ---------------------------------------------------------------------------------------------
// Showing

void frmStrutturaDI::MostraNodo(const QString& sTag) {
    // The dialogs that the editors open read the node's name.
    const QModelIndex nodo = NodoCorrente();
    Sessione::sDenomComplesso = nodo.isValid() ? Modello().Testo(nodo) : QString();
    FinestraStruttura::MostraNodo(sTag);
}

void frmStrutturaDI::MostraInventario() {
    MostraTipo(*TipoDelTag(TagInventario));
}

void frmStrutturaDI::MostraDatiInventariali() {
    MostraTipo(*TipoDelTag(TagDatoInventariale));
}

void frmStrutturaDI::MostraPergamena() {
    MostraTipo(*TipoDelTag(TagPergamena));
}

void frmStrutturaDI::MostraSigillo() {
    MostraTipo(*TipoDelTag(TagSigillo));
}

bool frmStrutturaDI::PreparaTipo(const TipoNodo& tipo) {
    if (tipo.editore == fraPergamena) {
        // Here the seals stand in the tree.
        fraPergamena->MostraSigilliVisible(false);
    } else if (tipo.editore == fraSigillo) {
        const bool bNuovo = sStato == QStringLiteral("nuovo");
        if (!ModoSigillo(!bNuovo)) {
            return false;
        }
        if (sStato == QStringLiteral("modifica")) {
            // The editor was made ready again for the seal's place: the seal is read again.
            fraSigillo->Mostra(static_cast<long>(lIdCorrente));
        }
    }
    return true;
}

bool frmStrutturaDI::ModoSigillo(bool bDelSigillo) {
    QString sTipoPadre;
    try {
        QSqlQuery riga =
            bDelSigillo
                ? Sessione::cnn->Esegui(
                      QStringLiteral("SELECT T2.Tipologia FROM AlberoDatiInventariali AS T1 INNER "
                                     "JOIN Elementi AS T2 ON T1.ELEM_ID_ElementoPadre = "
                                     "T2.ID_Elemento WHERE T1.ELEM_Tipologia='06' AND "
                                     "T1.SG_ID_Inventario = ? AND T1.ELEM_ID_Elemento = ?"),
                      {Chiave(lIdInventarioRecord), lIdCorrente}, Sorgente)
                : Sessione::cnn->Esegui(
                      QStringLiteral("SELECT Tipologia FROM Elementi WHERE ID_Elemento = ?"),
                      {lIdCorrente}, Sorgente);
        sTipoPadre = riga.next() ? riga.value(0).toString() : QString();
    } catch (...) {
        // The box of these routines: the description alone, no title of their own.
        MsgBox(ErroreDi(std::current_exception(), Sorgente).descrizione(), Pulsanti::Ok,
               Icona::Critica);
        return false;
    }
    Sessione::lModoStrutturaPG = sTipoPadre == TagPergamena ? 0 : 1;
    const bool bSuPergamena = Sessione::lModoStrutturaPG == 0;
    fraSigillo->MostraPergameneVisible(bSuPergamena);
    fraSigillo->bAttaccato(!bSuPergamena);
    fraSigillo->Init();
    return true;
}

void frmStrutturaDI::DopoMostra(const TipoNodo& tipo) {
    if (tipo.editore == fraDatiInventariali) {
        lIdInventarioRecord = fraDatiInventariali->ID_Inventario;
        lIdPadreRecord = fraDatiInventariali->fID_Elem;
    } else if (tipo.editore == fraPergamena) {
        lIdInventarioRecord = fraPergamena->ID_Inventario;
        lIdPadreRecord = fraPergamena->fID_Elem;
    } else if (tipo.editore == fraSigillo) {
        lIdInventarioRecord = fraSigillo->ID_Inventario;
        lIdPadreRecord = fraSigillo->fID_Elem;
    } else {
        lIdPadreRecord = 0;
    }
}

// ---------------------------------------------------------------------------------------------
// The commands

void frmStrutturaDI::PreparaEditore(const TipoNodo& tipo) {
    if (sStato != QStringLiteral("nuovo")) {
        return;
    }
    if (tipo.editore == fraDatiInventariali) {
        fraDatiInventariali->AssegnaInventario(lIdInventarioRecord, lIdPadreRecord);
    } else if (tipo.editore == fraPergamena) {
        fraPergamena->AssegnaInventario(lIdInventarioRecord);
    } else if (tipo.editore == fraSigillo) {
        fraSigillo->bAttaccato(Sessione::lModoStrutturaPG == 1);
        fraSigillo->AssegnaInventario(lIdInventarioRecord);
    }
}

void frmStrutturaDI::NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) {
    // The element under which the new one hangs.
    const auto lIdPadre = static_cast<long>(lIdCorrente);
    if (tipo.editore == fraPergamena) {
        fraPergamena->Nuovo(lIdPadre);
    } else if (tipo.editore == fraSigillo) {
        fraSigillo->Nuovo(lIdPadre);
        lIdInventarioRecord = fraSigillo->ID_Inventario;
    } else {
        FinestraStruttura::NuovoNellEditore(tipo, sTagPadre);
    }
}

void frmStrutturaDI::DopoSalva(const TipoNodo& tipo) {
    if (tipo.editore == fraSigillo && sStato == QStringLiteral("nuovo")) {
        fraSigillo->MostraPergameneVisible(Sessione::lModoStrutturaPG == 0);
    }
}

void frmStrutturaDI::cmdMostraLinks_Click() {
    MostraLinkInventario(3);
}
