#include "frmNuovoSigPg.h"

#include "records/ucInventario.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "structure/frmStrutturaDI.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QSqlQuery>

namespace {

const QString TagInventario = QStringLiteral("03");
const QString TagPergamena = QStringLiteral("05");
const QString TagSigillo = QStringLiteral("06");
const QString Sorgente = QStringLiteral("frmNuovoSigPg");

QVariant Id(qint64 lId) {
    return QVariant::fromValue(static_cast<qlonglong>(lId));
}

} // namespace

frmNuovoSigPg::frmNuovoSigPg(QWidget* genitore)
    : SelettoreAlbero(Sorgente, TagPergamena,
                      {"Label1", QString(), "Text1", "Label2", QString(), "TextC"}, genitore) {
    // Its unload leaves the finding aids' window's flag alone.
    bSvuotaStrutturaIN = false;
    Label1 = etichettaInMano;
    Text1 = casellaInMano;
    Label2 = etichettaScelti;
    TextC = casellaScelti;

    fraInventario = new ucInventario;
    AggiungiEditore(fraInventario, "fraInventario");
    fraPergamena = new ucPergamena;
    AggiungiEditore(fraPergamena, "fraPergamena");
    fraSigillo = new ucSigillo;
    AggiungiEditore(fraSigillo, "fraSigillo");
    cmdNuovaPG = NuovoComando("cmdNuovaPG", QStringLiteral("Nuova Pergamena"));
    cmdNuovoSG = NuovoComando("cmdNuovoSG", QStringLiteral("Nuovo Sigillo"));

    // The finding aid takes both kinds, a parchment its seals and the parchments copied from
    // it; a seal has no sons.
    TipoNodo inventario;
    inventario.sTag = TagInventario;
    inventario.sTipo = QStringLiteral("inventario");
    inventario.editore = fraInventario;
    inventario.pulsanti = {{cmdNuovaPG, &TipoNodo::Sempre},
                           {cmdNuovoSG, &TipoNodo::Sempre},
                           {cmdModifica, &fraInventario->OkModifica}};
    RegistraTipo(inventario);
    TipoNodo pergamena;
    pergamena.sTag = TagPergamena;
    pergamena.sTipo = QStringLiteral("pergamena");
    pergamena.editore = fraPergamena;
    pergamena.cmdNuovo = cmdNuovaPG;
    pergamena.sImmagineNuovo = QStringLiteral("pergamena");
    pergamena.pulsanti = {{cmdNuovaPG, &fraPergamena->OkNuovaPergamena},
                          {cmdNuovoSG, &fraPergamena->OkNuovaPergamena},
                          {cmdModifica, &fraPergamena->OkModifica}};
    RegistraTipo(pergamena);
    TipoNodo sigillo;
    sigillo.sTag = TagSigillo;
    sigillo.sTipo = QStringLiteral("sigillo");
    sigillo.editore = fraSigillo;
    sigillo.cmdNuovo = cmdNuovoSG;
    sigillo.sImmagineNuovo = QStringLiteral("sigilli");
    sigillo.pulsanti = {{cmdModifica, &fraSigillo->OkModifica}};
    RegistraTipo(sigillo);

    // After a link dialog of the parchment or the seal, the commands follow the record.
    for (EditoreRecord* editore : std::initializer_list<EditoreRecord*>{fraPergamena, fraSigillo}) {
        connect(editore, &EditoreRecord::EventoStato, this, [this] {
            if (const TipoNodo* tipo = TipoInUso()) {
                AbilitaPulsanti(*tipo);
            }
        });
    }

    // The editors: the parchment without its complessi, the seal as the document's.
    fraInventario->Init();
    fraPergamena->Init();
    fraPergamena->EnabledComplessiDoc(false);
    fraSigillo->bAttaccato(false);
    fraSigillo->Init();
}

frmNuovoSigPg::~frmNuovoSigPg() = default;

void frmNuovoSigPg::bLockSelected() {
    BloccaScelti();
}

bool frmNuovoSigPg::bInit(int iScelta, long lIdInventario, long lIdElemento,
                          const QString& sDescrLink) {
    iWhatICanSelect = iScelta == SceltaSigilli ? SceltaSigilli : SceltaPergamene;
    lIDInventario = lIdInventario;
    lIdEleLink = lIdElemento;
    const bool bPergamene = iWhatICanSelect == SceltaPergamene;
    ImpostaTagScelto(bPergamene ? TagPergamena : TagSigillo);
    // The command of the other kind stays out of sight, also when an edit ends.
    TieniNascosto(bPergamene ? cmdNuovoSG : cmdNuovaPG);
    setWindowTitle(bPergamene ? QStringLiteral("Selezione Pergamene")
                              : QStringLiteral("Selezione Sigilli staccati"));
    Label1->setText(bPergamene ? QStringLiteral("Sigillo selezionato")
                               : QStringLiteral("Pergamena selezionata"));
    Text1->setText(sDescrLink);
    Label2->setText(bPergamene ? QStringLiteral("Pergamene Selezionate")
                               : QStringLiteral("Sigilli Selezionati"));
    Avvia(false);
    return bCaricato;
}

void frmNuovoSigPg::CaricaAlbero(const QString&) {
    bCaricato = false;
    RadiceAlbero radice;
    radice.lId = lIDInventario;
    radice.sImmagine = QStringLiteral("nolink");
    radice.sTag = TagInventario;
    QList<qint64> legati;
    try {
        if (!Sessione::cnn) {
            throw Errore(Sorgente, QStringLiteral("La connessione al database è chiusa."));
        }
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT INV_ID_Inventario, ELEM_Denominazione FROM AlberoGlobale "
                           "WHERE ELEM_ID_Elemento = ? AND ELEM_Tipologia = '03'"),
            {Id(lIDInventario)}, Sorgente);
        if (!riga.next() || riga.value(0).isNull()) {
            throw Errore(Sorgente, QStringLiteral("Lo strumento di ricerca (elemento %1) non è "
                                                  "nel database.")
                                       .arg(lIDInventario));
        }
        lIdInventarioRecord = static_cast<long>(riga.value(0).toLongLong());
        radice.sTesto = riga.value(1).toString();
        riga.finish();
        legati = GiaLegati();
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore U5"));
        Modello().Svuota();
        return;
    }
    GruppoAlbero gruppo =
        frmStrutturaDI::Gruppo(lIdInventarioRecord, frmStrutturaDI::OrdineAlfabetico());
    for (GruppoAlbero::Tipo& tipo : gruppo.tipi) {
        if (tipo.sTag == TagSigillo) {
            tipo.sImmagine = QStringLiteral("sigilli");
        }
    }
    if (!CaricaGruppi({gruppo}, false, radice)) {
        return;
    }
    // What is tied already stays ticked: it is undone only from the viewer.
    for (const qint64 lLegato : std::as_const(legati)) {
        const QModelIndex nodo = Modello().Trova(lLegato);
        if (nodo.isValid() &&
            Modello().Tag(nodo) ==
                (iWhatICanSelect == SceltaPergamene ? TagPergamena : TagSigillo)) {
            Modello().ImpostaSpunta(nodo, true, true);
        }
    }
    bCaricato = true;
}

QList<qint64> frmNuovoSigPg::GiaLegati() const {
    // The seal stands in ID_Elemento, the parchment in ID_ElementoLink.
    const QString sSql =
        iWhatICanSelect == SceltaPergamene
            ? QStringLiteral("SELECT ID_ElementoLink FROM Links WHERE ID_Elemento = ?")
            : QStringLiteral("SELECT ID_Elemento FROM Links WHERE ID_ElementoLink = ?");
    QSqlQuery righe = Sessione::cnn->Esegui(sSql, {Id(lIdEleLink)}, Sorgente);
    QList<qint64> legati;
    while (righe.next()) {
        legati.append(righe.value(0).toLongLong());
    }
    return legati;
}

void frmNuovoSigPg::MostraInventario() {
    MostraTipo(*TipoDelTag(TagInventario));
}

void frmNuovoSigPg::MostraPergamena() {
    MostraTipo(*TipoDelTag(TagPergamena));
}

void frmNuovoSigPg::MostraSigillo() {
    MostraTipo(*TipoDelTag(TagSigillo));
}

void frmNuovoSigPg::PreparaEditore(const TipoNodo& tipo) {
    SelettoreAlbero::PreparaEditore(tipo);
    if (sStato != QStringLiteral("nuovo")) {
        return;
    }
    if (tipo.editore == fraPergamena) {
        fraPergamena->AssegnaInventario(lIdInventarioRecord);
    } else if (tipo.editore == fraSigillo) {
        fraSigillo->AssegnaInventario(lIdInventarioRecord);
    }
}

void frmNuovoSigPg::NuovoNellEditore(const TipoNodo& tipo, const QString& sTagPadre) {
    // The element under which the new one hangs.
    const auto lIdPadre = static_cast<long>(lIdCorrente);
    if (tipo.editore == fraPergamena) {
        fraPergamena->Nuovo(lIdPadre);
    } else if (tipo.editore == fraSigillo) {
        fraSigillo->Nuovo(lIdPadre);
    } else {
        SelettoreAlbero::NuovoNellEditore(tipo, sTagPadre);
    }
}

bool frmNuovoSigPg::Collega() {
    bOkLink = false;
    const bool bPergamene = iWhatICanSelect == SceltaPergamene;
    const long lInMano = lIdEleLink;
    const bool bScritto = CollegaScelti(
        [&](long lScelto) {
            const long lSigillo = bPergamene ? lInMano : lScelto;
            const long lPergamena = bPergamene ? lScelto : lInMano;
            return ArchivioElementi::Collega(*Sessione::cnn, lSigillo, lPergamena);
        },
        iEsitoLink);
    bOkLink = iEsitoLink == 1;
    return bScritto;
}
