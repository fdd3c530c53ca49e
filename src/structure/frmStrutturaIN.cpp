#include "frmStrutturaIN.h"

#include "TipoIstituto.h"
#include "records/ucInventario.h"
#include "records/ucIstituto.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QPushButton>
#include <QSqlQuery>
#include <QTreeView>

namespace {

const QString TagIstituto = QStringLiteral("01");
const QString TagInventario = QStringLiteral("03");
const char* const Tag = "Tag";
const QString Sorgente = QStringLiteral("frmStrutturaIN");
// The only kind of analytical inventory the program has: the units of a finding aid.
const QString TipoInventarioBase = QStringLiteral("01");

} // namespace

frmStrutturaIN::frmStrutturaIN(QWidget* genitore)
    : FinestraStruttura(QStringLiteral("frmStrutturaIN"), genitore) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Strumenti di ricerca"));

    // The two editors in Frame1, one visible at a time.
    fraIstituto = new ucIstituto;
    AggiungiEditore(fraIstituto, "fraIstituto");
    fraInventario = new ucInventario;
    AggiungiEditore(fraInventario, "fraInventario");

    // The commands; those of a finding aid act on the node shown, so they too are put away
    // while a record is edited.
    cmdNuovoIst = NuovoComando("cmdNuovoIst", QStringLiteral("Nuovo Istituto"));
    cmdNuovoInv = NuovoComando("cmdNuovoInv", QStringLiteral("Nuovo Inventario"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella"));
    cmdAltreDen = NuovoComando("cmdAltreDen", QStringLiteral("Altre Denom."));
    cmdMostraLinks = NuovoComando("cmdMostraLinks", QStringLiteral("Complessi doc."));
    cmdInvAnalitico = NuovoComando("cmdInvAnalitico", QStringLiteral("Inventario"));
    cmdInvAnalitico->setProperty(Tag, QStringLiteral("0"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });
    connect(cmdAltreDen, &QPushButton::clicked, this, [this] { cmdAltreDen_Click(); });
    connect(cmdMostraLinks, &QPushButton::clicked, this, [this] { cmdMostraLinks_Click(); });
    connect(cmdInvAnalitico, &QPushButton::clicked, this, [this] { cmdInvAnalitico_Click(); });

    const QString sErroreCancella = QStringLiteral("Errore U4");
    TipoNodo istituto = TipoIstituto(fraIstituto, cmdNuovoIst, cmdModifica, cmdCancella,
                                     {{cmdNuovoInv, &fraIstituto->OkNuovoInventario},
                                      {cmdAltreDen, &fraIstituto->OkAltreDenominazioni}});
    istituto.sTitoloErroreCancella = sErroreCancella;
    RegistraTipo(istituto);
    TipoNodo inventario;
    inventario.sTag = TagInventario;
    inventario.sTipo = QStringLiteral("inventario");
    inventario.editore = fraInventario;
    inventario.cmdNuovo = cmdNuovoInv;
    inventario.sImmagineNuovo = QStringLiteral("nolink");
    inventario.sTabella = QStringLiteral("Inventari");
    inventario.sDomandaCancella = QStringLiteral("Sei sicuro di voler cancellare l'Inventario?");
    inventario.sTitoloCancella = QStringLiteral("Cancella Inventario: ");
    inventario.sTitoloErroreCancella = sErroreCancella;
    inventario.pulsanti = {{cmdNuovoInv, &fraInventario->OkNuovoInventario},
                           {cmdCancella, &fraInventario->OkCancella},
                           {cmdModifica, &fraInventario->OkModifica},
                           {cmdMostraLinks, &TipoNodo::Sempre},
                           {cmdAltreDen, &TipoNodo::Sempre}};
    RegistraTipo(inventario);
    RegistraMenuNodo({TagInventario}, VociStrumento(), [this](int iVoce) { MenuStrumento(iVoce); });

    // Load: the editors, then the tree, in its one order.
    fraIstituto->Init();
    fraInventario->Init();
    Avvia(false);
}

frmStrutturaIN::~frmStrutturaIN() = default;

// ---------------------------------------------------------------------------------------------
// The tree

QList<GruppoAlbero> frmStrutturaIN::Gruppi() {
    GruppoAlbero inventari;
    inventari.sCondizione = QStringLiteral("ELEM_Tipologia='03'");
    inventari.sImmagine = QStringLiteral("nolink");
    inventari.sColonnaLink = QStringLiteral("INV_NumeroComplessi");
    return {GruppoIstituti(), inventari};
}

void frmStrutturaIN::CaricaAlbero(const QString&) {
    CaricaGruppi(Gruppi(), false);
}

// ---------------------------------------------------------------------------------------------
// Showing

void frmStrutturaIN::MostraIstituto() {
    MostraTipo(*TipoDelTag(TagIstituto));
}

void frmStrutturaIN::MostraInventario() {
    MostraTipo(*TipoDelTag(TagInventario));
}

void frmStrutturaIN::DopoMostra(const TipoNodo& tipo) {
    lIdIstituto =
        tipo.editore == fraInventario ? fraInventario->ID_Istituto : fraIstituto->ID_Istituto;
}

void frmStrutturaIN::DopoPulsanti(const TipoNodo& tipo) {
    if (tipo.editore != fraInventario) {
        EditoreRecord::ColoraPulsante(cmdAltreDen, false);
        cmdInvAnalitico->setEnabled(false);
        EditoreRecord::ColoraPulsante(cmdInvAnalitico, false);
        return;
    }
    // A light button: the finding aid has other names; an analytical inventory was opened.
    EditoreRecord::ColoraPulsante(cmdAltreDen, fraInventario->AltreDenominazioni);
    const int iStato = fraInventario->InventariAnalitici;
    cmdInvAnalitico->setEnabled(iStato >= 0);
    cmdInvAnalitico->setProperty(Tag, QString::number(iStato));
    cmdInvAnalitico->setText(QStringLiteral("Inventario"));
    EditoreRecord::ColoraPulsante(cmdInvAnalitico, iStato >= 1 && iStato <= 3);
}

// ---------------------------------------------------------------------------------------------
// The commands

void frmStrutturaIN::PreparaEditore(const TipoNodo& tipo) {
    // The institute in hand goes to the editor; an edited finding aid keeps its own seats.
    if (tipo.editore == fraIstituto) {
        fraIstituto->AssegnaIstituto(lIdIstituto);
    } else if (sStato == QStringLiteral("nuovo")) {
        fraInventario->AssegnaIstituto(lIdIstituto);
    }
}

void frmStrutturaIN::cmdAltreDen_Click() {
    try {
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"),
            {static_cast<qlonglong>(lIdCorrente)}, Sorgente);
        Sessione::lIdAltreDen = riga.next() ? EditoreRecord::Lungo(riga.value(0)) : 0;
        riga.finish();
        Sessione::sTipoAltreDen = QStringLiteral("IN");
        Dialoghi::Apri(QStringLiteral("frmAltreDenominazioni"), this);
        fraInventario->CheckDenominazioni(static_cast<long>(lIdCorrente));
        EditoreRecord::ColoraPulsante(cmdAltreDen, fraInventario->AltreDenominazioni);
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore U3"));
    }
}

void frmStrutturaIN::cmdMostraLinks_Click() {
    const bool bInventarioBase =
        fraInventario->InventariAnalitici == 1 && !fraInventario->bPiùLegamiComplessiDoc();
    MostraLinkInventario(1, {{QStringLiteral("bInventarioBase"), bInventarioBase}});
}

void frmStrutturaIN::cmdInvAnalitico_Click() {
    // "0": the finding aid has no analytical inventory yet, and the first click fixes its kind.
    const bool bPrimo = cmdInvAnalitico->property(Tag).toString() == QStringLiteral("0");
    if (fraInventario->ComplessiLink != 0) {
        if (bPrimo) {
            if (!ScriviTipoInv(TipoInventarioBase)) {
                return;
            }
            fraInventario->InventariAnalitici = 1;
        }
        Sessione::lIdInventario = static_cast<long>(lIdCorrente);
        Dialoghi::Apri(QStringLiteral("frmStrutturaDI"), this,
                       {{QStringLiteral("sTipo"), TipoInventarioBase},
                        {QStringLiteral("sComplessoLinked"), fraInventario->sComplessoLinked}});
        cmdInvAnalitico->setProperty(Tag, TipoInventarioBase);
        MostraInventario();
        return;
    }
    MsgBox(AvvisoNessunComplesso(), Pulsanti::Ok, Icona::Esclamazione,
           QStringLiteral("Tabellion Archivista"));
    if (bPrimo && ScriviTipoInv(TipoInventarioBase)) {
        cmdInvAnalitico->setProperty(Tag, TipoInventarioBase);
        fraInventario->InventariAnalitici = 1;
    }
}

const QStringList& frmStrutturaIN::VociStrumento() {
    static const QStringList voci = {QStringLiteral("Inventario base"),
                                     QStringLiteral("Pergamene        "),
                                     QStringLiteral("Sigilli staccati ")};
    return voci;
}

void frmStrutturaIN::MenuStrumento(int iVoce) {
    if (iVoce == 1) {
        if (cmdInvAnalitico->isEnabled()) {
            cmdInvAnalitico_Click();
        }
    } else if (iVoce == 2 || iVoce == 3) {
        ApriPergameneESigilli(iVoce - 2);
    }
}

void frmStrutturaIN::ApriPergameneESigilli(long lModo) {
    Sessione::lModoStrutturaPG = lModo;
    Sessione::lIdInventario = static_cast<long>(lIdCorrente);
    Dialoghi::Apri(QStringLiteral("frmStrutturaPG"), this);
    MostraInventario();
}

bool frmStrutturaIN::ScriviTipoInv(const QString& sTipoInv) {
    try {
        const QSqlQuery scrittura = Sessione::cnn->Esegui(
            QStringLiteral("UPDATE Inventari SET TipoInv = ? WHERE ID_Elemento = ?"),
            {sTipoInv, static_cast<qlonglong>(lIdCorrente)}, Sorgente);
        if (scrittura.numRowsAffected() == 0) {
            // The finding aid is no longer there (another workstation deleted it): the record
            // shows so, empty and with its commands off.
            MostraInventario();
            return false;
        }
        return true;
    } catch (...) {
        // As any write of the record that the database refuses: its words, the critical icon,
        // the program's own title. Nothing was written.
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica);
        return false;
    }
}
