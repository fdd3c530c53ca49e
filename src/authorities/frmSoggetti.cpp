#include "frmSoggetti.h"

#include "authorities/TipiProduttore.h"
#include "authorities/ucEnte.h"
#include "authorities/ucFamiglia.h"
#include "authorities/ucPersona.h"
#include "records/ModelloElenco.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QPushButton>
#include <QTreeView>

namespace {

const QString Sorgente = QStringLiteral("frmSoggetti");

// What the window adds to each kind of producer (TipiProduttore).
struct Tipo {
    const char* sModoAltreDen; // sTipoAltreDen
    const char* sDomanda;      // the delete's question
};

const Tipo Tipi[] = {
    {"PE", "Sei sicuro di voler cancellare la Persona?"},
    {"FA", "Sei sicuro di voler cancellare la Famiglia?"},
    {"EN", "Sei sicuro di voler cancellare l'Ente?"},
};

// The text of a row of each tab: the name (a person's trimmed) and its dates.
QString RigaPersona(const LetturaRighe& riga) {
    return riga.Stringa(1).trimmed() + TipiProduttore::Estremi(frmSoggetti::Persone, riga);
}

QString RigaFamiglia(const LetturaRighe& riga) {
    return riga.Stringa(1) + TipiProduttore::Estremi(frmSoggetti::Famiglie, riga);
}

QString RigaEnte(const LetturaRighe& riga) {
    return riga.Stringa(1) + TipiProduttore::Estremi(frmSoggetti::Enti, riga);
}

} // namespace

QString frmSoggetti::SqlLista(const Connessione& connessione, int iScheda) {
    const TipiProduttore::Tipo& tipo = TipiProduttore::Di(iScheda);
    const QString sTabella = QLatin1String(tipo.sTabella);
    return QStringLiteral("SELECT Soggetti.ID_Soggetto, COALESCE(Soggetti.Denominazione, '') AS "
                          "Denominazione, %1 FROM Soggetti INNER JOIN %2 ON %2.ID_Soggetto = "
                          "Soggetti.ID_Soggetto WHERE Soggetti.TipoSoggetto = '%3' ORDER BY %4")
        .arg(QLatin1String(tipo.sColonne), sTabella, QLatin1String(tipo.sLettera),
             connessione.InOrdineAlfabetico(QStringLiteral("Soggetti.Denominazione")));
}

PaginaElenco frmSoggetti::PaginaDi(Scheda scheda, EditoreProduttore* editore,
                                   const char* sNomeEditore) {
    const TipiProduttore::Tipo& tipo = TipiProduttore::Di(scheda);
    PaginaElenco pagina;
    pagina.sTitolo = QLatin1String(tipo.sTitolo);
    pagina.sTipo = QLatin1String(tipo.sTipo);
    pagina.sIntestazione = QLatin1String(tipo.sIntestazione);
    pagina.sSql = Sessione::cnn ? SqlLista(*Sessione::cnn, scheda) : QString();
    pagina.testoRiga = scheda == Persone    ? RigaPersona
                       : scheda == Famiglie ? RigaFamiglia
                                            : RigaEnte;
    pagina.editore = editore;
    pagina.sNomeEditore = sNomeEditore;
    pagina.cmdNuovo = cmdNuovoSog;
    pagina.pulsanti = {{cmdNuovoSog, &editore->OkNuovo},
                       {cmdCancella, &editore->OkCancella},
                       {cmdModifica, &editore->OkModifica},
                       {cmdAltreDen, &editore->OkAltreDenominazioni},
                       {cmdMostraLinks, &editore->OkLinks}};
    pagina.colori = {{cmdAltreDen, &editore->AltreDenominazioni},
                     {cmdMostraLinks, &editore->OkLinks}};
    pagina.pulisci = [editore] {
        editore->Pulisci();
    };
    pagina.testoSalvato = [editore] {
        return editore->LeggiDenominazione() + editore->LeggiEstremi();
    };
    pagina.inserisci = [scheda](const QString& sDenominazione) {
        return TipiProduttore::NuovoSoggetto(scheda, sDenominazione);
    };
    pagina.sTabellaCancella = QLatin1String(tipo.sTabella);
    pagina.sColonnaId = QStringLiteral("ID_Soggetto");
    pagina.sDomandaCancella = QLatin1String(Tipi[scheda].sDomanda);
    pagina.sTitoloCancella = QStringLiteral("Cancella Soggetto: ");
    pagina.bMostraSenzaRighe = true;
    return pagina;
}

frmSoggetti::frmSoggetti(QWidget* genitore)
    : FinestraElenco(QStringLiteral("frmSoggetti"), true, genitore) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Produttori"));

    cmdNuovoSog = NuovoComando("cmdNuovoSog", QStringLiteral("Nuovo Soggetto"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica scheda"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella Produttori"));
    cmdAltreDen = NuovoComando("cmdAltreDen", QStringLiteral("Altre Denominazioni"));
    cmdMostraLinks = NuovoComando("cmdMostraLinks", QStringLiteral("Compl. documentari"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });
    connect(cmdAltreDen, &QPushButton::clicked, this, [this] { cmdAltreDen_Click(); });
    connect(cmdMostraLinks, &QPushButton::clicked, this, [this] { cmdMostraLinks_Click(); });

    fraPersona = new ucPersona;
    fraFamiglia = new ucFamiglia;
    fraEnte = new ucEnte;
    AggiungiPagina(PaginaDi(Persone, fraPersona, "fraPersona"));
    AggiungiPagina(PaginaDi(Famiglie, fraFamiglia, "fraFamiglia"));
    AggiungiPagina(PaginaDi(Enti, fraEnte, "fraEnte"));

    // Load: the editors, then the first tab.
    fraEnte->Init();
    fraFamiglia->Init();
    fraPersona->Init();
    Avvia();
}

frmSoggetti::~frmSoggetti() = default;

EditoreProduttore* frmSoggetti::EditoreCorrente() const {
    return static_cast<EditoreProduttore*>(Pagina(PaginaCorrente()).editore);
}

void frmSoggetti::cmdAltreDen_Click() {
    const int iScheda = PaginaCorrente();
    EditoreProduttore* editore = EditoreCorrente();
    try {
        Sessione::sTipoAltreDen = QLatin1String(Tipi[iScheda].sModoAltreDen);
        Sessione::lIdAltreDen = editore->LeggiID();
        Dialoghi::Apri(QStringLiteral("frmAltreDenominazioni"), this);
        editore->CheckDenominazioni(static_cast<long>(aId[iScheda]));
        EditoreRecord::ColoraPulsante(cmdAltreDen, editore->AltreDenominazioni);
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica);
    }
}

void frmSoggetti::cmdMostraLinks_Click() {
    const int iScheda = PaginaCorrente();
    Sessione::sTipoLink = QStringLiteral("0");
    Sessione::sDenomSoggetto = EditoreCorrente()->LeggiDenominazione();
    Sessione::lIdSoggetto = static_cast<long>(aId[iScheda]);
    try {
        Dialoghi::Apri(QStringLiteral("frmMostraLinkSCD"), this);
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica);
    }
    Lista(iScheda)->setFocus();
}
