#include "FinestraPuntoAccesso.h"

#include "authorities/EditoreAccesso.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QPushButton>
#include <QTreeView>

FinestraPuntoAccesso::FinestraPuntoAccesso(const Descrizione& descrizioneFinestra,
                                           EditoreAccesso* editoreFinestra, QWidget* genitore)
    : FinestraElenco(QLatin1String(descrizioneFinestra.sNome), false, genitore)
    , descrizione(descrizioneFinestra)
    , editore(editoreFinestra) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QString::fromUtf8(descrizione.sCaption));

    cmdNuovoSog = NuovoComando("cmdNuovoSog", QString::fromUtf8(descrizione.sNuovo));
    cmdModifica = NuovoComando("cmdModifica", QStringLiteral("Modifica scheda"));
    cmdCancella = NuovoComando("cmdCancella", QString::fromUtf8(descrizione.sCancella));
    connect(cmdModifica, &QPushButton::clicked, this, [this] { Modifica(); });
    connect(cmdCancella, &QPushButton::clicked, this, [this] { Cancella(); });
    for (int i = 0; i < descrizione.pulsanti.size(); ++i) {
        const PulsanteLink& p = descrizione.pulsanti.at(i);
        QPushButton* pulsante = NuovoComando(p.sNome, QString::fromUtf8(p.sDidascalia));
        connect(pulsante, &QPushButton::clicked, this, [this, i] { cmdMostraLinks_Click(i); });
        cmdMostraLinks << pulsante;
    }

    PaginaElenco pagina;
    pagina.sTipo = QLatin1String(descrizione.sTipo);
    pagina.sIntestazione = QString::fromUtf8(descrizione.sIntestazione);
    pagina.sSql = Sessione::cnn ? SqlLista(*Sessione::cnn) : QString();
    pagina.testoRiga = [](const LetturaRighe& riga) {
        return riga.Stringa(1).trimmed();
    };
    pagina.editore = editore;
    pagina.sNomeEditore = descrizione.sNomeEditore;
    pagina.cmdNuovo = cmdNuovoSog;
    pagina.pulsanti = {{cmdNuovoSog, &editore->OkNuovo},
                       {cmdCancella, &editore->OkCancella},
                       {cmdModifica, &editore->OkModifica}};
    const QList<const bool*> flag = editore->FlagLegami();
    for (int i = 0; i < cmdMostraLinks.size() && i < flag.size(); ++i) {
        // A button of links with links has the window's colour.
        pagina.pulsanti.append({cmdMostraLinks.at(i), flag.at(i)});
        pagina.colori.append({cmdMostraLinks.at(i), flag.at(i)});
    }
    pagina.pulisci = [this] {
        editore->Pulisci();
    };
    pagina.testoSalvato = [this] {
        return editore->LeggiDenominazione();
    };
    pagina.inserisci = [this](const QString& sDenominazione) {
        if (!Sessione::cnn) {
            throw Errore(objectName(), QStringLiteral("La connessione al database è chiusa."));
        }
        return static_cast<long>(Sessione::cnn->Inserisci(
            QLatin1String(descrizione.sTabella), QLatin1String(descrizione.sChiave),
            {QLatin1String(descrizione.sColonnaNome)}, {sDenominazione}));
    };
    pagina.sTabellaCancella = QLatin1String(descrizione.sTabella);
    pagina.sColonnaId = QLatin1String(descrizione.sChiave);
    pagina.sDomandaCancella = QString::fromUtf8(descrizione.sDomanda);
    pagina.sTitoloCancella = QString::fromUtf8(descrizione.sTitoloCancella);
    // An empty list shows no entry: only New is enabled.
    pagina.bMostraSenzaRighe = false;
    AggiungiPagina(pagina);

    // Load: the editor, then the list and its first row.
    editore->Init();
    Avvia();
}

FinestraPuntoAccesso::~FinestraPuntoAccesso() = default;

QString FinestraPuntoAccesso::SqlLista(const Connessione& connessione) const {
    const QString sChiave = QLatin1String(descrizione.sChiave);
    const QString sNome = QLatin1String(descrizione.sColonnaNome);
    return QStringLiteral("SELECT %1, COALESCE(%2, '') AS %2 FROM %3 ORDER BY %4")
        .arg(sChiave, sNome, QLatin1String(descrizione.sTabella),
             connessione.InOrdineAlfabetico(sNome));
}

void FinestraPuntoAccesso::cmdMostraLinks_Click(int indice) {
    const PulsanteLink& p = descrizione.pulsanti.at(indice);
    if (p.sTipoLink != nullptr) {
        Sessione::sTipoLink = QLatin1String(p.sTipoLink);
    }
    Sessione::sDenomSoggetto = editore->LeggiDenominazione();
    Sessione::lIdSoggetto = static_cast<long>(aId[0]);
    try {
        Dialoghi::Apri(QLatin1String(descrizione.sVisualizzatore), this);
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), objectName()).testo(), Pulsanti::Ok,
               Icona::Critica);
    }
    // The flags are not read again: the commands stay as the display step left them.
    Lista(0)->setFocus();
}
