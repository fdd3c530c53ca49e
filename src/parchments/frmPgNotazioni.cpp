#include "frmPgNotazioni.h"

#include "parchments/ucPgNotazione.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QPushButton>

frmPgNotazioni::frmPgNotazioni(QWidget* genitore)
    : FinestraElenco(QStringLiteral("frmPgNotazioni"), false, genitore)
    , fraNotazione(new ucPgNotazione) {
    setWindowTitle(QStringLiteral("Notazioni di cancelleria/archivistiche"));
    resize(760, 420);

    cmdNuovaNotazione = NuovoComando("cmdNuovaNotazione", QStringLiteral("Nuova notazione"));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica scheda"));
    cmdCancella = NuovoComando("cmdCancella", QStringLiteral("Cancella notazione"));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });

    // The parchment is the one the opener left: its notations in the order they were made.
    const qlonglong lIdPergamena = Sessione::lIdPergamena;
    PaginaElenco pagina;
    pagina.sTipo = QStringLiteral("notazione");
    pagina.sIntestazione = QStringLiteral("Posizione");
    pagina.sSql = QStringLiteral("SELECT ID_PgNotazione, COALESCE(Posizione,'') AS Posizione "
                                 "FROM PGNotazioni WHERE ID_Pergamena = ? "
                                 "ORDER BY ID_PgNotazione");
    pagina.valori = {lIdPergamena};
    pagina.testoRiga = [](const LetturaRighe& riga) {
        return riga.Stringa(1).trimmed();
    };
    pagina.editore = fraNotazione;
    pagina.sNomeEditore = "fraNotazione";
    pagina.cmdNuovo = cmdNuovaNotazione;
    pagina.pulsanti = {{cmdNuovaNotazione, &fraNotazione->OkNuovo},
                       {cmdCancella, &fraNotazione->OkCancella},
                       {cmdModifica, &fraNotazione->OkModifica}};
    pagina.pulisci = [this] {
        fraNotazione->Pulisci();
    };
    pagina.testoSalvato = [this] {
        return fraNotazione->LeggiPosizione();
    };
    // A new notation's row is made whole in one statement, with its parchment and what the
    // editor writes, so that no row is left half written; the editor's Salva follows.
    pagina.inserisci = [this, lIdPergamena](const QString&) {
        if (!Sessione::cnn) {
            throw Errore(objectName(), QStringLiteral("La connessione al database è chiusa."));
        }
        QVariantList valori = {lIdPergamena};
        valori << fraNotazione->ValoriScritti();
        return static_cast<long>(Sessione::cnn->Inserisci(
            QStringLiteral("PGNotazioni"), QStringLiteral("ID_PgNotazione"),
            QStringList{QStringLiteral("ID_Pergamena")} << ucPgNotazione::ColonneScritte(),
            valori));
    };
    pagina.sTabellaCancella = QStringLiteral("PGNotazioni");
    pagina.sColonnaId = QStringLiteral("ID_PgNotazione");
    pagina.sDomandaCancella = QStringLiteral("Sei sicuro di voler cancellare la notazione?");
    pagina.sTitoloCancella = QStringLiteral("Cancella Notazione: ");
    pagina.bMostraSenzaRighe = false;
    AggiungiPagina(pagina);

    // Load: the editor, then the list and its first row.
    fraNotazione->Init();
    Avvia();
}

frmPgNotazioni::~frmPgNotazioni() = default;
