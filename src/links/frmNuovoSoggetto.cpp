#include "frmNuovoSoggetto.h"

#include "authorities/TipiProduttore.h"
#include "authorities/ucEnte.h"
#include "authorities/ucFamiglia.h"
#include "authorities/ucPersona.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QSqlQuery>

namespace {

const QString Sorgente = QStringLiteral("frmNuovoSoggetto");

// What differs between a complesso and a unit as the served object.
struct Servito {
    const char* sEtichetta;   // Label2(n)
    const char* sTabella;     // the object's table
    const char* sChiave;      // its key, the column of the links
    const char* sTabellaLink; // the links
};

const Servito Complesso = {"Complesso documentario selezionato", "ComplessiDoc", "ID_ComplessoDoc",
                           "ComplessiDocSoggetti"};
const Servito Unita = {"Inventario base selezionato", "DatiInventariali", "ID_DatoInventariale",
                       "DatiInventarialiSoggetti"};

bool ServeUnita() {
    return Sessione::sTipoLink == QLatin1String("1");
}

// The text of an item: the trimmed name and the kind's tail.
QString RigaDi(int iScheda, const LetturaRighe& riga) {
    return riga.Stringa(1).trimmed() + TipiProduttore::Estremi(iScheda, riga);
}

} // namespace

QString frmNuovoSoggetto::SqlLista(const Connessione& connessione, int iScheda, bool bUnita) {
    const TipiProduttore::Tipo& tipo = TipiProduttore::Di(iScheda);
    const Servito& servito = bUnita ? Unita : Complesso;
    // The links of the one object are counted apart and joined: every producer of the kind
    // comes back once, its Checked 0 when not linked.
    return QStringLiteral(
               "SELECT SOG.ID_Soggetto, COALESCE(SOG.Denominazione, '') AS Denominazione, %1, "
               "COALESCE(LNK.Checked, 0) AS Checked FROM Soggetti SOG "
               "LEFT OUTER JOIN %2 ON %2.ID_Soggetto = SOG.ID_Soggetto "
               "LEFT OUTER JOIN (SELECT L.ID_Soggetto, COUNT(L.%3) AS Checked FROM %4 L "
               "INNER JOIN %5 O ON O.%3 = L.%3 WHERE O.ID_Elemento = ? GROUP BY L.ID_Soggetto) "
               "LNK ON LNK.ID_Soggetto = SOG.ID_Soggetto "
               "WHERE SOG.TipoSoggetto = ? ORDER BY %6")
        .arg(QLatin1String(tipo.sColonne), QLatin1String(tipo.sTabella),
             QLatin1String(servito.sChiave), QLatin1String(servito.sTabellaLink),
             QLatin1String(servito.sTabella),
             connessione.InOrdineAlfabetico(QStringLiteral("SOG.Denominazione")));
}

QVariantList frmNuovoSoggetto::ValoriLista(int iScheda, long lIdElemento) {
    return {static_cast<qlonglong>(lIdElemento),
            QLatin1String(TipiProduttore::Di(iScheda).sLettera)};
}

frmNuovoSoggetto::frmNuovoSoggetto(QWidget* genitore)
    : DialogoSpunte(QStringLiteral("frmNuovoSoggetto"),
                    QStringLiteral("Collegamenti ai Soggetti produttori"), genitore) {
    const bool bUnita = ServeUnita();
    const Servito& servito = bUnita ? Unita : Complesso;
    const long lIdElemento = bUnita ? Sessione::lIdDatoInventariale : Sessione::lIdComplesso;

    fraPersona = new ucPersona;
    fraFamiglia = new ucFamiglia;
    fraEnte = new ucEnte;
    const std::pair<EditoreProduttore*, const char*> editori[TipiProduttore::Schede] = {
        {fraPersona, "fraPersona"}, {fraFamiglia, "fraFamiglia"}, {fraEnte, "fraEnte"}};
    for (int iScheda = 0; iScheda < TipiProduttore::Schede; ++iScheda) {
        const TipiProduttore::Tipo& tipo = TipiProduttore::Di(iScheda);
        EditoreProduttore* editore = editori[iScheda].first;
        PaginaSpunte pagina;
        pagina.sTitolo = QLatin1String(tipo.sTitolo);
        pagina.sTipo = QLatin1String(tipo.sTipo);
        pagina.sIntestazione = QLatin1String(tipo.sIntestazione);
        pagina.sSql = Sessione::cnn ? SqlLista(*Sessione::cnn, iScheda, bUnita) : QString();
        pagina.valori = ValoriLista(iScheda, lIdElemento);
        pagina.iColonnaChecked = iScheda == TipiProduttore::Persone ? 6 : 4;
        pagina.testoRiga = [iScheda](const LetturaRighe& riga) {
            return RigaDi(iScheda, riga);
        };
        pagina.editore = editore;
        pagina.sNomeEditore = editori[iScheda].second;
        pagina.pulisci = [editore] {
            editore->Pulisci();
        };
        pagina.inserisci = [iScheda](const QString& sDenominazione) {
            return TipiProduttore::NuovoSoggetto(iScheda, sDenominazione);
        };
        pagina.testoSalvato = [editore] {
            return editore->LeggiDenominazione() + editore->LeggiEstremi();
        };
        pagina.okNuovo = &editore->OkNuovo;
        // The heading is the served object's, as its viewer shows it: a unit's opener leaves
        // the unit's denomination in sDenomInventario.
        AggiungiPagina(pagina, QLatin1String(servito.sEtichetta),
                       bUnita ? Sessione::sDenomInventario : Sessione::sDenomComplesso,
                       QStringLiteral("Soggetti scelti"));
    }

    CollegamentoSpunte legami;
    legami.sTabella = QLatin1String(servito.sTabellaLink);
    legami.sColonnaOggetto = QLatin1String(servito.sChiave);
    legami.sColonnaVoce = QStringLiteral("ID_Soggetto");
    legami.chiaveOggetto = [&servito, lIdElemento]() -> qint64 {
        // The table and the column come from the fixed texts above.
        QSqlQuery riga = Sessione::cnn->Esegui(
            QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                .arg(QLatin1String(servito.sChiave), QLatin1String(servito.sTabella)),
            {static_cast<qlonglong>(lIdElemento)}, Sorgente);
        if (!riga.next()) {
            throw Errore(Sorgente, QStringLiteral("L'oggetto selezionato non esiste più nel "
                                                  "database: è stato cancellato da un'altra "
                                                  "postazione."));
        }
        return riga.value(0).toLongLong();
    };
    legami.aSel = &Sessione::aSelSoggetti;
    legami.iEsito = &Sessione::iEsitoLinkSogg;
    ImpostaCollegamento(std::move(legami));
    allAnnullaCol = [](int iScheda) {
        Sessione::iTipoSogg = static_cast<unsigned char>(iScheda);
    };

    // Load: the editors, then the tab asked for.
    fraPersona->Init();
    fraFamiglia->Init();
    fraEnte->Init();
    Avvia(Sessione::iTipoSogg);
}

frmNuovoSoggetto::~frmNuovoSoggetto() {
    Sessione::bFrmSoggettiAperto = false;
}

void frmNuovoSoggetto::SetbLockSelSogg(bool bBlocca) {
    bLockSelSogg = bBlocca;
    BloccaScelti(bBlocca);
}
