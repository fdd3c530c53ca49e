#include "frmLinkPuntiAccesso.h"

#include "authorities/ucAntroponimo.h"
#include "authorities/ucTitolare.h"
#include "authorities/ucToponimo.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QPushButton>
#include <QSqlQuery>

namespace {

const char* const PergamenaSelezionata = "Pergamena selezionata";

} // namespace

QString DialogoPuntoAccesso::SqlLista(const Connessione& connessione,
                                      const DescrizionePuntoAccesso& d) {
    // The ties of the one object are counted apart and joined: every access point comes back
    // once, its Checked 0 when not tied.
    return QStringLiteral("SELECT P.%1, COALESCE(P.%2, '') AS Nome, COALESCE(LNK.Checked, 0) AS "
                          "Checked FROM %3 P LEFT OUTER JOIN (SELECT L.%1, COUNT(L.%1) AS Checked "
                          "FROM %4 L WHERE L.%5 = ? GROUP BY L.%1) LNK ON LNK.%1 = P.%1 "
                          "ORDER BY %6")
        .arg(QLatin1String(d.sChiave), QLatin1String(d.sColonna), QLatin1String(d.sTabella),
             QLatin1String(d.sTabellaLink), QLatin1String(d.sChiaveOggetto),
             connessione.InOrdineAlfabetico(QStringLiteral("P.%1").arg(QLatin1String(d.sColonna))));
}

DialogoPuntoAccesso::DialogoPuntoAccesso(const DescrizionePuntoAccesso& d, EditoreAccesso* pannello,
                                         QVector<long>* aSel, bool* bApertoForm, QWidget* genitore)
    : DialogoSpunte(QLatin1String(d.sNome), QLatin1String(d.sTitolo), genitore)
    , editore(pannello)
    , bAperto(bApertoForm) {
    UnaLista();
    cmdNuovoSog->setText(QLatin1String(d.sNuovo));
    const long lChiave = Sessione::lIdElementoLink;

    PaginaSpunte pagina;
    pagina.sTitolo = QLatin1String(d.sTitolo);
    pagina.sTipo = QLatin1String(d.sTipo);
    pagina.sIntestazione = QLatin1String(d.sIntestazione);
    pagina.sSql = Sessione::cnn ? SqlLista(*Sessione::cnn, d) : QString();
    pagina.valori = {static_cast<qlonglong>(lChiave)};
    pagina.iColonnaChecked = 2;
    pagina.testoRiga = [](const LetturaRighe& riga) {
        return riga.Stringa(1).trimmed();
    };
    pagina.editore = editore;
    pagina.sNomeEditore = d.sNomeEditore;
    pagina.pulisci = [pannello] {
        pannello->Pulisci();
    };
    const QString sTabella = QLatin1String(d.sTabella);
    const QString sChiave = QLatin1String(d.sChiave);
    const QString sColonna = QLatin1String(d.sColonna);
    pagina.inserisci = [sTabella, sChiave, sColonna](const QString& sDenominazione) -> long {
        if (!Sessione::cnn) {
            throw Errore(sTabella, QStringLiteral("La connessione al database è chiusa."));
        }
        return static_cast<long>(
            Sessione::cnn->Inserisci(sTabella, sChiave, {sColonna}, {sDenominazione}));
    };
    pagina.testoSalvato = [pannello] {
        return pannello->LeggiDenominazione().trimmed();
    };
    pagina.okNuovo = &pannello->OkNuovo;
    AggiungiPagina(pagina, QLatin1String(d.sEtichetta), Sessione::sDenomElementoLink,
                   QLatin1String(d.sScelti));

    CollegamentoSpunte legami;
    legami.sTabella = QLatin1String(d.sTabellaLink);
    legami.sColonnaOggetto = QLatin1String(d.sChiaveOggetto);
    legami.sColonnaVoce = sChiave;
    legami.sChiaveRiga = QLatin1String(d.sChiaveLink);
    legami.sTabellaVoci = sTabella;
    legami.sChiaveVoci = sChiave;
    const QString sNome = QLatin1String(d.sNome);
    const QString sTabellaOggetto = QLatin1String(d.sTabellaOggetto);
    const QString sChiaveOggetto = QLatin1String(d.sChiaveOggetto);
    legami.chiaveOggetto = [sNome, sTabellaOggetto, sChiaveOggetto, lChiave]() -> qint64 {
        // The table and the column come from the fixed texts of the description.
        QSqlQuery riga =
            Sessione::cnn->Esegui(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?")
                                      .arg(sTabellaOggetto, sChiaveOggetto),
                                  {static_cast<qlonglong>(lChiave)}, sNome);
        if (!riga.next() || riga.value(0).toLongLong() == 0) {
            throw Errore(sNome, QStringLiteral("L'oggetto selezionato non esiste più nel "
                                               "database: è stato cancellato da un'altra "
                                               "postazione."));
        }
        return lChiave;
    };
    legami.aSel = aSel;
    legami.iEsito = &iEsito;
    ImpostaCollegamento(std::move(legami));

    // Load: the editor, then the one list.
    editore->Init();
    Avvia(0);
}

DialogoPuntoAccesso::~DialogoPuntoAccesso() {
    if (bAperto != nullptr) {
        *bAperto = false;
    }
}

// ---------------------------------------------------------------------------------------------

DescrizionePuntoAccesso frmLinkAntroponimi::Descrizione(int iChiamante) {
    DescrizionePuntoAccesso d{
        "frmLinkAntroponimi", "Persone",        "antroponimo",        "Persone",
        "Nuova Persona",      "Persone scelte", "fraAntroponimo",     "Antroponimi",
        "ID_Antroponimo",     "Nome",           PergamenaSelezionata, "Pergamene",
        "ID_Pergamena",       "PGAntroponimi",  "ID_PGAntroponimo"};
    if (iChiamante != 1) {
        d.sEtichetta = "Inventario base selezionato";
        d.sTabellaOggetto = "DatiInventariali";
        d.sChiaveOggetto = "ID_DatoInventariale";
        d.sTabellaLink = "DIAntroponimi";
        d.sChiaveLink = "ID_DIAntroponimo";
    }
    return d;
}

frmLinkAntroponimi::frmLinkAntroponimi(QWidget* genitore)
    : DialogoPuntoAccesso(Descrizione(Sessione::iChiamanteAntroponimi), new ucAntroponimo,
                          &Sessione::aSelAntroponimi, &Sessione::bFrmAntroponimiAperto, genitore) {
    fraAntroponimo = static_cast<ucAntroponimo*>(Editore());
}

void frmLinkAntroponimi::SetbLockSelAntr(bool bBlocca) {
    bLockSelAntr = bBlocca;
    BloccaScelti(bBlocca);
}

DescrizionePuntoAccesso frmLinkToponimi::Descrizione(int iChiamante) {
    DescrizionePuntoAccesso d{
        "frmLinkToponimi",    "Toponimi",    "toponimo",     "Toponimo",    "Nuovo Toponimo",
        "Toponimi scelti",    "fraToponimo", "Toponimi",     "ID_Toponimo", "Denominazione",
        PergamenaSelezionata, "Pergamene",   "ID_Pergamena", "PGToponimi",  ""};
    if (iChiamante != 1) {
        // The label keeps the text it is drawn with.
        d.sEtichetta = "Oggetto selezionato";
        d.sTabellaOggetto = "DatiInventariali";
        d.sChiaveOggetto = "ID_DatoInventariale";
        d.sTabellaLink = "DIToponimi";
    }
    return d;
}

frmLinkToponimi::frmLinkToponimi(QWidget* genitore)
    : DialogoPuntoAccesso(Descrizione(Sessione::iChiamanteToponimi), new ucToponimo,
                          &Sessione::aSelToponimi, &Sessione::bFrmToponimiAperto, genitore) {
    fraToponimo = static_cast<ucToponimo*>(Editore());
}

void frmLinkToponimi::SetbLockSelTopon(bool bBlocca) {
    bLockSelTopon = bBlocca;
    BloccaScelti(bBlocca);
}

DescrizionePuntoAccesso frmLinkTitolari::Descrizione() {
    return {"frmLinkTitolari",     "Titolari",    "titolare",   "Titolare",    "Nuovo Titolare",
            "Titolari scelti",     "fraTitolare", "Titolari",   "ID_Titolare", "Nome",
            "Sigillo selezionato", "Sigilli",     "ID_Sigillo", "SGTitolari",  "ID_SGTitolare"};
}

frmLinkTitolari::frmLinkTitolari(QWidget* genitore)
    : DialogoPuntoAccesso(Descrizione(), new ucTitolare, &Sessione::aSelTitolari,
                          &Sessione::bFrmTitolariAperto, genitore) {
    fraTitolare = static_cast<ucTitolare*>(Editore());
}

void frmLinkTitolari::SetbLockSelTitol(bool bBlocca) {
    bLockSelTitol = bBlocca;
    BloccaScelti(bBlocca);
}
