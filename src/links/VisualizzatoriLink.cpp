#include "VisualizzatoriLink.h"

#include "authorities/TipiProduttore.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QSqlQuery>
#include <functional>
#include <memory>

namespace {

const QString PergamenaSelezionata = QStringLiteral("Pergamena selezionata");
const QString InventarioBaseSelezionato = QStringLiteral("Inventario base selezionato");
const QString ComplessoSelezionato = QStringLiteral("Complesso documentario selezionato");
const QString SigilloSelezionato = QStringLiteral("Sigillo selezionato");

QVariant Id(qint64 lId) {
    return QVariant::fromValue(lId);
}

QString Testo(const QSqlQuery& riga, int i) {
    return riga.value(i).toString().trimmed();
}

// The session's connection; raises Errore under the source when it is closed.
const Connessione& Cnn(const QString& sSorgente) {
    if (!Sessione::cnn) {
        throw Errore(sSorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return *Sessione::cnn;
}

// The rows of a statement, one link each: its key in the first column, texts made by testi.
QList<RigaLink> Righe(const QString& sSorgente, const QString& sSql, const QVariantList& valori,
                      const std::function<QStringList(const QSqlQuery&)>& testi) {
    QSqlQuery riga = Cnn(sSorgente).EseguiLista(sSql, valori, sSorgente);
    QList<RigaLink> righe;
    while (riga.next()) {
        righe << RigaLink{riga.value(0).toLongLong(), testi(riga), 0};
    }
    return righe;
}

// A list of one column: the text of the second column of the statement.
QStringList SecondaColonna(const QSqlQuery& riga) {
    return {Testo(riga, 1)};
}

// A list of two columns: the texts of the second and third columns of the statement.
QStringList SecondaETerzaColonna(const QSqlQuery& riga) {
    return {Testo(riga, 1), Testo(riga, 2)};
}

// The titles of the failures in cmdCancella and while the list loads.
struct Errori {
    QString sCancella;
    QString sCarica;
};

const Errori ErroriL{QStringLiteral("Errore L1"), QStringLiteral("Errore L2")};
const Errori ErroriI{QStringLiteral("Errore I1"), QStringLiteral("Errore I2")};

// What every viewer states: its name, title, label, the object's denomination, the column
// titles of its one list (none where it has tabs) and the titles of its failures.
DescrizioneLink Descrizione(const QString& sNome, const QString& sTitolo, const QString& sEtichetta,
                            const QString& sDenominazione, const QStringList& colonne,
                            const Errori& errori) {
    DescrizioneLink d;
    d.sNome = sNome;
    d.sTitolo = sTitolo;
    d.sEtichetta = sEtichetta;
    d.sDenominazione = sDenominazione;
    if (!colonne.isEmpty()) {
        d.colonne = {colonne};
    }
    d.sErroreCancella = errori.sCancella;
    d.sErroreCarica = errori.sCarica;
    return d;
}

// Reads the links with a statement of one value, under the viewer's name.
std::function<QList<RigaLink>()>
Lettura(const QString& sNome, const QString& sSql, qint64 lId,
        const std::function<QStringList(const QSqlQuery&)>& testi = SecondaColonna) {
    return [sNome, sSql, lId, testi] {
        return Righe(sNome, sSql, {Id(lId)}, testi);
    };
}

// Deletes the link's row of the table by its own key.
std::function<bool(qint64)> CancellaPerChiave(const QString& sTabella, const QString& sChiave) {
    return [sTabella, sChiave](qint64 lId) {
        return VisualizzatoreLink::CancellaRiga(sTabella, {sChiave}, {Id(lId)});
    };
}

// Deletes the link's row of the table whose two columns have those values.
std::function<bool(qint64)> CancellaCoppia(const QString& sTabella, const QString& sColonnaFissa,
                                           qint64 lIdFisso, const QString& sColonna) {
    return [sTabella, sColonnaFissa, lIdFisso, sColonna](qint64 lId) {
        return VisualizzatoreLink::CancellaRiga(sTabella, {sColonnaFissa, sColonna},
                                                {Id(lIdFisso), Id(lId)});
    };
}

// A unit's description and number, one space between.
QString DescrizioneENumero(const QSqlQuery& riga) {
    return (Testo(riga, 1) + QLatin1Char(' ') + Testo(riga, 2)).trimmed();
}

// The text of a unit or a parchment under its finding aid: the finding aid, " > ", the rest.
QString SottoInventario(const QString& sInventario, const QString& sResto) {
    return sInventario + QStringLiteral(" > ") + sResto;
}

// The detail key of an element's row (ID_ComplessoDoc of ComplessiDoc...), 0 when missing.
qint64 ChiaveDettaglio(const QString& sTabella, const QString& sChiave, qint64 lIdElemento) {
    QSqlQuery riga = Cnn(sTabella).Esegui(
        QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?").arg(sChiave, sTabella),
        {Id(lIdElemento)}, sTabella);
    return riga.next() ? riga.value(0).toLongLong() : 0;
}

// --- The producers -------------------------------------------------------------------------

// The tab of a producer's kind.
int SchedaDelTipo(const QString& sTipo) {
    for (int i = 0; i < TipiProduttore::Schede; ++i) {
        if (sTipo.compare(QLatin1String(TipiProduttore::Di(i).sLettera), Qt::CaseInsensitive) == 0)
            return i;
    }
    return TipiProduttore::Persone;
}

DescrizioneLink MostraLinkCS() {
    const bool bDato = Sessione::sTipoLink == QLatin1String("1");
    const qint64 lIdElemento = bDato ? Sessione::lIdDatoInventariale : Sessione::lIdComplesso;
    DescrizioneLink d = Descrizione(
        QStringLiteral("frmMostraLinkCS"), QStringLiteral("Collegamenti ai Soggetti produttori"),
        bDato ? InventarioBaseSelezionato : ComplessoSelezionato,
        bDato ? Sessione::sDenomInventario : Sessione::sDenomComplesso, {}, ErroriL);
    for (int i = 0; i < TipiProduttore::Schede; ++i) {
        d.schede << QStringLiteral("  ") + QLatin1String(TipiProduttore::Di(i).sTitolo);
        d.colonne << QStringList{QLatin1String(TipiProduttore::Di(i).sIntestazione)};
    }
    const QString sVista = bDato ? QStringLiteral("V_DatiInventarialiSoggetti")
                                 : QStringLiteral("V_ComplessiDocSoggetti");
    const QString sColonna =
        bDato ? QStringLiteral("DI_ID_Elemento") : QStringLiteral("CD_ID_Elemento");
    d.carica = [sVista, sColonna, lIdElemento] {
        const QString sSorgente = QStringLiteral("frmMostraLinkCS");
        const Connessione& cnn = Cnn(sSorgente);
        // The id, the kind, the name, then the columns of each kind in the order of its list's
        // rows, the first of each kind's at its place in Prima.
        constexpr int Prima[TipiProduttore::Schede] = {3, 7, 9};
        const std::unique_ptr<LetturaRighe> riga = cnn.backend().ApriLetturaRighe(
            cnn.Db(),
            QStringLiteral(
                "SELECT SOG_ID_Soggetto, SOG_TipoSoggetto, COALESCE(SOG_Denominazione, ''), "
                "COALESCE(PRS_LuogoNascita, ''), COALESCE(PRS_DataNascita, 0), "
                "COALESCE(PRS_LuogoMorte, ''), COALESCE(PRS_DataMorte, 0), "
                "COALESCE(FMG_Titoli, ''), COALESCE(FMG_DescrizioneEstremi, ''), "
                "COALESCE(EN_Sede, ''), COALESCE(EN_DescrizioneEstremi, '') FROM %1 "
                "WHERE %2 = ? ORDER BY SOG_Denominazione, SOG_ID_Soggetto")
                .arg(sVista, sColonna),
            {Id(lIdElemento)}, sSorgente);
        QList<RigaLink> righe;
        while (riga->Prossima()) {
            const int iScheda = SchedaDelTipo(riga->Stringa(1).trimmed());
            righe << RigaLink{riga->Intero(0),
                              {riga->Stringa(2).trimmed() +
                               TipiProduttore::Estremi(iScheda, *riga, Prima[iScheda])},
                              iScheda};
        }
        return righe;
    };
    d.cancella = [bDato, lIdElemento](qint64 lIdSoggetto) {
        const QString sTabella =
            bDato ? QStringLiteral("DatiInventariali") : QStringLiteral("ComplessiDoc");
        const QString sChiave =
            bDato ? QStringLiteral("ID_DatoInventariale") : QStringLiteral("ID_ComplessoDoc");
        const qint64 lChiave = ChiaveDettaglio(sTabella, sChiave, lIdElemento);
        return VisualizzatoreLink::CancellaRiga(sTabella + QStringLiteral("Soggetti"),
                                                {sChiave, QStringLiteral("ID_Soggetto")},
                                                {Id(lChiave), Id(lIdSoggetto)});
    };
    d.piEsito = &Sessione::iEsitoLinkSogg;
    // The picker opens on the tab in view, its chosen names changed only by its ticks.
    d.sProsegui = QStringLiteral("frmNuovoSoggetto");
    d.argomentiProsegui = {{QStringLiteral("bLockSelSogg"), true}};
    d.puoProseguire = [](const VisualizzatoreLink& visualizzatore) {
        Sessione::iTipoSogg = static_cast<unsigned char>(visualizzatore.SchedaCorrente());
        return true;
    };
    return d;
}

DescrizioneLink MostraLinkSCD() {
    const bool bDati = Sessione::sTipoLink == QLatin1String("1");
    const qint64 lIdSoggetto = Sessione::lIdSoggetto;
    DescrizioneLink d = Descrizione(
        QStringLiteral("frmMostraLinkSCD"),
        bDati ? QStringLiteral("Collegamenti all'inventario base")
              : QStringLiteral("Collegamenti ai complessi documentari"),
        QStringLiteral("Soggetto Produttore selezionato"), Sessione::sDenomSoggetto,
        {bDati ? QStringLiteral("Inventario base") : QStringLiteral("Complesso documentario")},
        ErroriI);
    if (bDati) {
        d.carica = Lettura(
            d.sNome,
            QStringLiteral("SELECT DIS.ID_DatoInventariale, COALESCE(DI.Descrizione, ''), "
                           "COALESCE(DI.Numero, '') FROM DatiInventarialiSoggetti DIS "
                           "JOIN DatiInventariali DI ON DIS.ID_DatoInventariale = "
                           "DI.ID_DatoInventariale WHERE DIS.ID_Soggetto = ? "
                           "ORDER BY DIS.ID_DatoInventariale"),
            lIdSoggetto, [](const QSqlQuery& r) -> QStringList { return {DescrizioneENumero(r)}; });
        d.cancella = CancellaCoppia(QStringLiteral("DatiInventarialiSoggetti"),
                                    QStringLiteral("ID_Soggetto"), lIdSoggetto,
                                    QStringLiteral("ID_DatoInventariale"));
    } else {
        d.carica =
            Lettura(d.sNome,
                    QStringLiteral("SELECT CDS.ID_ComplessoDoc, COALESCE(CD.DenomCompleta, '') "
                                   "FROM ComplessiDocSoggetti CDS JOIN ComplessiDoc CD ON "
                                   "CDS.ID_ComplessoDoc = CD.ID_ComplessoDoc "
                                   "WHERE CDS.ID_Soggetto = ? ORDER BY CDS.ID_ComplessoDoc"),
                    lIdSoggetto);
        d.cancella =
            CancellaCoppia(QStringLiteral("ComplessiDocSoggetti"), QStringLiteral("ID_Soggetto"),
                           lIdSoggetto, QStringLiteral("ID_ComplessoDoc"));
    }
    d.piEsito = &Sessione::iEsitoLinkInv;
    return d;
}

// --- Complessi and finding aids ------------------------------------------------------------

DescrizioneLink MostraLinkCD(const QVariantMap& argomenti) {
    // Given a denomination by the record, the viewer serves the complesso's parchments.
    const bool bPergamene = argomenti.contains(QStringLiteral("sDenominazione"));
    const qint64 lIdComplesso = Sessione::lIdComplesso;
    DescrizioneLink d = Descrizione(
        QStringLiteral("frmMostraLinkCD"),
        bPergamene ? QStringLiteral("Collegamenti alle Pergamene")
                   : QStringLiteral("Collegamenti agli strumenti di ricerca"),
        ComplessoSelezionato,
        bPergamene ? argomenti.value(QStringLiteral("sDenominazione")).toString()
                   : Sessione::sDenomComplesso,
        {bPergamene ? QStringLiteral("Pergamena") : QStringLiteral("Strumento di ricerca")},
        ErroriI);
    // Every link of the complesso to an element of the sort shown, and a link whose other side
    // is gone (no text); the links of the other sort are the other list's.
    const QString sSql =
        bPergamene
            ? QStringLiteral("SELECT L.ID_ElementoLink, COALESCE(PG.Segnatura, '') FROM Links L "
                             "LEFT JOIN Pergamene PG ON PG.ID_Elemento = L.ID_ElementoLink "
                             "WHERE L.ID_Elemento = ? AND L.ID_ElementoLink NOT IN "
                             "(SELECT ID_Elemento FROM Inventari) ORDER BY L.ID_ElementoLink")
            : QStringLiteral("SELECT L.ID_ElementoLink, COALESCE(INV.DenomCompleta, '') "
                             "FROM Links L LEFT JOIN Inventari INV ON INV.ID_Elemento = "
                             "L.ID_ElementoLink WHERE L.ID_Elemento = ? AND L.ID_ElementoLink "
                             "NOT IN (SELECT ID_Elemento FROM Pergamene) "
                             "ORDER BY L.ID_ElementoLink");
    d.carica = Lettura(d.sNome, sSql, lIdComplesso);
    d.cancella = CancellaCoppia(QStringLiteral("Links"), QStringLiteral("ID_Elemento"),
                                lIdComplesso, QStringLiteral("ID_ElementoLink"));
    d.piEsito = &Sessione::iEsitoLinkInv;
    if (!bPergamene) {
        d.sProsegui = QStringLiteral("frmNuovoInventario");
        d.argomentiProsegui = {{QStringLiteral("bLockInvSet"), true}};
    }
    return d;
}

// --- Access points of a parchment, a unit, a seal -------------------------------------------

DescrizioneLink MostraLinkAnt() {
    const qint64 lIdPergamena = Sessione::lIdElementoLink;
    DescrizioneLink d =
        Descrizione(QStringLiteral("frmMostraLinkAnt"), QStringLiteral("Collegamenti alle Persone"),
                    PergamenaSelezionata, Sessione::sDenomElementoLink,
                    {QStringLiteral("Persona"), QStringLiteral("Ruolo")}, ErroriL);
    d.carica =
        Lettura(d.sNome,
                QStringLiteral("SELECT PGANT.ID_PGAntroponimo, COALESCE(ANT.Nome, ''), "
                               "COALESCE(PGANT.Ruolo, '') FROM PGAntroponimi PGANT JOIN "
                               "Antroponimi ANT ON PGANT.ID_Antroponimo = ANT.ID_Antroponimo "
                               "WHERE PGANT.ID_Pergamena = ? ORDER BY PGANT.ID_PGAntroponimo"),
                lIdPergamena, SecondaETerzaColonna);
    d.cancella =
        CancellaPerChiave(QStringLiteral("PGAntroponimi"), QStringLiteral("ID_PGAntroponimo"));
    d.sProsegui = QStringLiteral("frmLinkAntroponimi");
    d.argomentiProsegui = {{QStringLiteral("bLockSelAntr"), true}};
    d.puoProseguire = [](const VisualizzatoreLink&) {
        Sessione::iChiamanteAntroponimi = 1;
        return true;
    };
    d.sFileRuoli = QStringLiteral("RuoliPGANT.txt");
    d.sTabellaRuolo = QStringLiteral("PGAntroponimi");
    d.sChiaveRuolo = QStringLiteral("ID_PGAntroponimo");
    return d;
}

DescrizioneLink MostraLinkDIAnt() {
    const qint64 lIdDato = Sessione::lIdElementoLink;
    DescrizioneLink d =
        Descrizione(QStringLiteral("frmMostraLinkDIAnt"),
                    QStringLiteral("Collegamenti alle Persone"), InventarioBaseSelezionato,
                    Sessione::sDenomElementoLink, {QStringLiteral("Persona")}, ErroriL);
    d.carica = Lettura(d.sNome,
                       QStringLiteral("SELECT DIANT.ID_DIAntroponimo, COALESCE(ANT.Nome, '') "
                                      "FROM DIAntroponimi DIANT JOIN Antroponimi ANT ON "
                                      "DIANT.ID_Antroponimo = ANT.ID_Antroponimo "
                                      "WHERE DIANT.ID_DatoInventariale = ? "
                                      "ORDER BY DIANT.ID_DIAntroponimo"),
                       lIdDato);
    d.cancella =
        CancellaPerChiave(QStringLiteral("DIAntroponimi"), QStringLiteral("ID_DIAntroponimo"));
    d.sProsegui = QStringLiteral("frmLinkAntroponimi");
    d.argomentiProsegui = {{QStringLiteral("bLockSelAntr"), true}};
    d.puoProseguire = [](const VisualizzatoreLink&) {
        Sessione::iChiamanteAntroponimi = 2;
        return true;
    };
    return d;
}

DescrizioneLink MostraLinkTopo() {
    const bool bDato = Sessione::iChiamanteToponimi == 2;
    const qint64 lIdElemento = Sessione::lIdElementoLink;
    const QString sTabella = bDato ? QStringLiteral("DIToponimi") : QStringLiteral("PGToponimi");
    const QString sChiave =
        bDato ? QStringLiteral("ID_DatoInventariale") : QStringLiteral("ID_Pergamena");
    DescrizioneLink d =
        Descrizione(QStringLiteral("frmMostraLinkTopo"), QStringLiteral("Collegamenti ai toponimi"),
                    bDato ? InventarioBaseSelezionato : PergamenaSelezionata,
                    Sessione::sDenomElementoLink, {QStringLiteral("Toponimo")}, ErroriL);
    d.carica = Lettura(d.sNome,
                       QStringLiteral("SELECT L.ID_Toponimo, COALESCE(TOPO.Denominazione, '') "
                                      "FROM %1 L JOIN Toponimi TOPO ON L.ID_Toponimo = "
                                      "TOPO.ID_Toponimo WHERE L.%2 = ? ORDER BY L.ID_Toponimo")
                           .arg(sTabella, sChiave),
                       lIdElemento);
    d.cancella = [sTabella, sChiave, lIdElemento](qint64 lId) {
        return VisualizzatoreLink::CancellaRiga(sTabella, {QStringLiteral("ID_Toponimo"), sChiave},
                                                {Id(lId), Id(lIdElemento)});
    };
    d.sProsegui = QStringLiteral("frmLinkToponimi");
    d.argomentiProsegui = {{QStringLiteral("bLockSelTopon"), true}};
    return d;
}

DescrizioneLink MostraLinkTitolari(const QVariantMap& argomenti) {
    const qint64 lIdSigillo = Sessione::lIdElementoLink;
    DescrizioneLink d = Descrizione(QStringLiteral("frmMostraLinkTitolari"),
                                    QStringLiteral("Collegamenti ai titolari"), SigilloSelezionato,
                                    Sessione::sDenomElementoLink,
                                    {QStringLiteral("Titolare"), QStringLiteral("Ruolo")}, ErroriL);
    d.carica = Lettura(d.sNome,
                       QStringLiteral("SELECT SGTIT.ID_SGTitolare, COALESCE(TIT.Nome, ''), "
                                      "COALESCE(SGTIT.Ruolo, '') FROM SGTitolari SGTIT JOIN "
                                      "Titolari TIT ON SGTIT.ID_Titolare = TIT.ID_Titolare "
                                      "WHERE SGTIT.ID_Sigillo = ? ORDER BY SGTIT.ID_SGTitolare"),
                       lIdSigillo, SecondaETerzaColonna);
    d.cancella = CancellaPerChiave(QStringLiteral("SGTitolari"), QStringLiteral("ID_SGTitolare"));
    d.sProsegui = QStringLiteral("frmLinkTitolari");
    // Reached from the seal, the holders' dialog is told so, and hands it back unchanged.
    d.argomentiProsegui = {
        {QStringLiteral("bLockSelTitol"), true},
        {QStringLiteral("bFromSigilli"), argomenti.value(QStringLiteral("bFromSigilli")).toBool()}};
    d.sFileRuoli = QStringLiteral("RuoloTitolareSG.txt");
    d.sTabellaRuolo = QStringLiteral("SGTitolari");
    d.sChiaveRuolo = QStringLiteral("ID_SGTitolare");
    return d;
}

// --- The elements of an access point --------------------------------------------------------

DescrizioneLink MostraLinkTitSG() {
    const qint64 lIdTitolare = Sessione::lIdSoggetto;
    DescrizioneLink d =
        Descrizione(QStringLiteral("frmMostraLinkTitSG"), QStringLiteral("Collegamenti ai sigilli"),
                    QStringLiteral("Titolare selezionato"), Sessione::sDenomSoggetto,
                    {QStringLiteral("Sigillo")}, ErroriI);
    d.carica = Lettura(d.sNome,
                       QStringLiteral("SELECT SGTIT.ID_SGTitolare, COALESCE(SG.Identificativo, '') "
                                      "AS Identificativo, COALESCE(INV.DenomCompleta, '') FROM "
                                      "SGTitolari SGTIT JOIN Sigilli SG ON SGTIT.ID_Sigillo = "
                                      "SG.ID_Sigillo JOIN Inventari INV ON INV.ID_Inventario = "
                                      "SG.ID_Inventario WHERE SGTIT.ID_Titolare = ? "
                                      "ORDER BY Identificativo, SGTIT.ID_SGTitolare"),
                       lIdTitolare, [](const QSqlQuery& r) -> QStringList {
                           return {SottoInventario(Testo(r, 2), Testo(r, 1))};
                       });
    d.cancella = CancellaPerChiave(QStringLiteral("SGTitolari"), QStringLiteral("ID_SGTitolare"));
    d.piEsito = &Sessione::iEsitoLinkInv;
    return d;
}

// The units or parchments of a place (TopALL) or a person (AntALL): the table of the links to
// units and to parchments, the column of the access point and the key of a link's row.
struct PuntoAccesso {
    const char* sNome;
    const char* sEtichetta;
    const char* sTabellaDI;
    const char* sChiaveDI;
    const char* sTabellaPG;
    const char* sChiavePG;
    const char* sColonna;
    bool bChiavePropria; // the link's row has a key of its own; else both sides find it
};

DescrizioneLink MostraLinkPuntoAccesso(const PuntoAccesso& p) {
    const bool bDati = Sessione::sTipoLink == QLatin1String("1");
    const qint64 lIdPunto = Sessione::lIdSoggetto;
    const QString sTabella = QLatin1String(bDati ? p.sTabellaDI : p.sTabellaPG);
    const QString sChiave = QLatin1String(bDati ? p.sChiaveDI : p.sChiavePG);
    const QString sColonna = QLatin1String(p.sColonna);
    DescrizioneLink d = Descrizione(
        QLatin1String(p.sNome),
        bDati ? QStringLiteral("Collegamenti all'inventario base")
              : QStringLiteral("Collegamenti alle pergamene"),
        QLatin1String(p.sEtichetta), Sessione::sDenomSoggetto,
        {bDati ? QStringLiteral("Inventario base") : QStringLiteral("Pergamena")}, ErroriI);
    const QString sSql =
        bDati ? QStringLiteral("SELECT L.%1, COALESCE(DI.Descrizione, ''), "
                               "COALESCE(DI.Numero, ''), COALESCE(INV.DenomCompleta, '') "
                               "FROM %2 L JOIN DatiInventariali DI ON L.ID_DatoInventariale = "
                               "DI.ID_DatoInventariale JOIN Inventari INV ON "
                               "INV.ID_Inventario = DI.ID_Inventario WHERE L.%3 = ? "
                               "ORDER BY L.%1")
              : QStringLiteral("SELECT L.%1, COALESCE(PG.Segnatura, '') AS Segnatura, '', "
                               "COALESCE(INV.DenomCompleta, '') FROM %2 L JOIN Pergamene PG "
                               "ON L.ID_Pergamena = PG.ID_Pergamena JOIN Inventari INV ON "
                               "INV.ID_Inventario = PG.ID_Inventario WHERE L.%3 = ? "
                               "ORDER BY Segnatura, L.%1");
    d.carica = Lettura(d.sNome, sSql.arg(sChiave, sTabella, sColonna), lIdPunto,
                       [](const QSqlQuery& r) -> QStringList {
                           return {SottoInventario(Testo(r, 3), DescrizioneENumero(r))};
                       });
    d.cancella = [sTabella, sChiave, sColonna, lIdPunto, p](qint64 lId) {
        if (p.bChiavePropria) {
            return VisualizzatoreLink::CancellaRiga(sTabella, {sChiave}, {Id(lId)});
        }
        return VisualizzatoreLink::CancellaRiga(sTabella, {sChiave, sColonna},
                                                {Id(lId), Id(lIdPunto)});
    };
    return d;
}

// --- Parchments and seals ------------------------------------------------------------------

DescrizioneLink MostraLinkPGS(const QVariantMap& argomenti) {
    const qint64 lIdSigillo = argomenti.value(QStringLiteral("lIdSigillo")).toLongLong();
    const qint64 lIdPergamena = argomenti.value(QStringLiteral("lIdPergamena")).toLongLong();
    // From a seal: its parchment; from a parchment: its detached seals. The seal stands in
    // ID_Elemento, the parchment in ID_ElementoLink.
    const bool bDaSigillo = lIdSigillo != 0;
    DescrizioneLink d =
        Descrizione(QStringLiteral("frmMostraLinkPGS"),
                    bDaSigillo ? QStringLiteral("Collegamento al documento")
                               : QStringLiteral("Collegamenti ai Sigilli Staccati"),
                    bDaSigillo ? SigilloSelezionato : PergamenaSelezionata,
                    argomenti.value(QStringLiteral("sDenominazione")).toString(),
                    {bDaSigillo ? QStringLiteral("Pergamena") : QStringLiteral("Sigillo")}, {});
    d.sDomanda = QStringLiteral("Sei sicuro di voler cancellare il collegamento selezionato?");
    const QString sSql =
        bDaSigillo
            ? QStringLiteral("SELECT L.ID_ElementoLink, COALESCE(PG.Segnatura, '') FROM Links L "
                             "JOIN Pergamene PG ON PG.ID_Elemento = L.ID_ElementoLink "
                             "WHERE L.ID_Elemento = ? ORDER BY L.ID_ElementoLink")
            : QStringLiteral("SELECT L.ID_Elemento, COALESCE(SG.Identificativo, '') FROM Links L "
                             "JOIN Sigilli SG ON SG.ID_Elemento = L.ID_Elemento "
                             "WHERE L.ID_ElementoLink = ? ORDER BY L.ID_Elemento");
    d.carica = Lettura(d.sNome, sSql, bDaSigillo ? lIdSigillo : lIdPergamena);
    d.cancella = [bDaSigillo, lIdSigillo, lIdPergamena](qint64 lId) {
        return VisualizzatoreLink::CancellaRiga(
            QStringLiteral("Links"),
            {QStringLiteral("ID_Elemento"), QStringLiteral("ID_ElementoLink")},
            {Id(bDaSigillo ? lIdSigillo : lId), Id(bDaSigillo ? lId : lIdPergamena)});
    };
    // On to the choice of the finding aid, for the parchment in hand (mode 0) or the seal (1);
    // the list is read again once a link has been made.
    d.sProsegui = QStringLiteral("frmSelInv");
    d.argomentiProsegui = {
        {QStringLiteral("iMode"), bDaSigillo ? 1 : 0},
        {QStringLiteral("lIdEleLink"), bDaSigillo ? lIdSigillo : lIdPergamena},
        {QStringLiteral("sDescLink"), d.sDenominazione},
    };
    d.bProseguiRestando = true;
    d.collegato = [] {
        return Sessione::bOkLinkSelInv;
    };
    return d;
}

// --- The complessi of a finding aid, a parchment, a unit -------------------------------------

DescrizioneLink MostraLinkInv() {
    const int iChiamante = Sessione::iChiamanteInv;
    const qint64 lIdInventario = Sessione::lIdInventario;
    DescrizioneLink d = Descrizione(
        QStringLiteral("frmMostraLinkInv"), QStringLiteral("Collegamenti ai complessi documentari"),
        iChiamante == 1   ? QStringLiteral("Strumento di ricerca selezionato")
        : iChiamante == 2 ? PergamenaSelezionata
                          : InventarioBaseSelezionato,
        Sessione::sDenomInventario, {QStringLiteral("Complesso documentario")},
        {QStringLiteral("Errore M1"), QStringLiteral("Errore M2")});
    if (iChiamante == 4) {
        // A unit holds its one complesso in its own row, not in Links.
        d.carica = [] {
            return Righe(QStringLiteral("frmMostraLinkInv"),
                         QStringLiteral("SELECT ID_Elemento, COALESCE(DenomCompleta, '') "
                                        "FROM ComplessiDoc WHERE ID_Elemento = ?"),
                         {Id(Sessione::lIdElemLinkInv)}, SecondaColonna);
        };
        d.cancella = [lIdInventario](qint64) {
            Cnn(QStringLiteral("frmMostraLinkInv"))
                .Esegui(
                    QStringLiteral(
                        "UPDATE DatiInventariali SET Id_ElemComplDoc = 0 WHERE Id_Elemento = ?"),
                    {Id(lIdInventario)}, QStringLiteral("frmMostraLinkInv"));
            Sessione::lIdElemLinkInv = 0;
            return true;
        };
    } else {
        d.carica =
            Lettura(d.sNome,
                    QStringLiteral("SELECT L.ID_Elemento, COALESCE(CD.DenomCompleta, '') "
                                   "FROM Links L LEFT JOIN ComplessiDoc CD ON CD.ID_Elemento = "
                                   "L.ID_Elemento WHERE L.ID_ElementoLink = ? AND "
                                   "L.ID_Elemento NOT IN (SELECT ID_Elemento FROM Sigilli) "
                                   "ORDER BY L.ID_Elemento"),
                    lIdInventario);
        d.cancella = CancellaCoppia(QStringLiteral("Links"), QStringLiteral("ID_ElementoLink"),
                                    lIdInventario, QStringLiteral("ID_Elemento"));
    }
    d.piEsito = &Sessione::iEsitoLinkCD;
    d.sProsegui = QStringLiteral("frmNuovoComplesso");
    d.argomentiProsegui = {{QStringLiteral("bLockSelCompl"), true}};
    d.puoProseguire = [](const VisualizzatoreLink& visualizzatore) {
        if (visualizzatore.property("bInventarioBase").toBool() && visualizzatore.Conteggio() > 0) {
            MsgBox(QStringLiteral("ATTENZIONE: il presente modulo è già legato ad un Complesso "
                                  "documentario!"),
                   Pulsanti::Ok, Icona::Esclamazione, Sessione::TitoloProgramma);
            return false;
        }
        return true;
    };
    return d;
}

} // namespace

frmMostraLinkInv::frmMostraLinkInv(QWidget* parent)
    : VisualizzatoreLink(MostraLinkInv(), parent) {}

void frmMostraLinkInv::MostraCollegamenti() {
    Carica();
}

namespace VisualizzatoriLink {

namespace {

using Descrittore = std::function<DescrizioneLink(const QVariantMap&)>;

const PuntoAccesso Toponimo{
    "frmMostraLinkTopALL", "Toponimo selezionato", "DIToponimi",  "ID_DatoInventariale",
    "PGToponimi",          "ID_Pergamena",         "ID_Toponimo", false};
const PuntoAccesso Antroponimo{
    "frmMostraLinkAntALL", "Antroponimo selezionato", "DIAntroponimi",  "ID_DIAntroponimo",
    "PGAntroponimi",       "ID_PGAntroponimo",        "ID_Antroponimo", true};

// The viewers made of a description alone, by name (frmMostraLinkInv is a class of its own).
const QList<QPair<QString, Descrittore>>& Descrittori() {
    static const QList<QPair<QString, Descrittore>> descrittori = {
        {QStringLiteral("frmMostraLinkCS"),
         [](const QVariantMap&) {
             return MostraLinkCS();
         }},
        {QStringLiteral("frmMostraLinkSCD"),
         [](const QVariantMap&) {
             return MostraLinkSCD();
         }},
        {QStringLiteral("frmMostraLinkCD"), MostraLinkCD},
        {QStringLiteral("frmMostraLinkAnt"),
         [](const QVariantMap&) {
             return MostraLinkAnt();
         }},
        {QStringLiteral("frmMostraLinkDIAnt"),
         [](const QVariantMap&) {
             return MostraLinkDIAnt();
         }},
        {QStringLiteral("frmMostraLinkTopo"),
         [](const QVariantMap&) {
             return MostraLinkTopo();
         }},
        {QStringLiteral("frmMostraLinkTitolari"), MostraLinkTitolari},
        {QStringLiteral("frmMostraLinkTitSG"),
         [](const QVariantMap&) {
             return MostraLinkTitSG();
         }},
        {QStringLiteral("frmMostraLinkTopALL"),
         [](const QVariantMap&) {
             return MostraLinkPuntoAccesso(Toponimo);
         }},
        {QStringLiteral("frmMostraLinkAntALL"),
         [](const QVariantMap&) {
             return MostraLinkPuntoAccesso(Antroponimo);
         }},
        {QStringLiteral("frmMostraLinkPGS"), MostraLinkPGS},
    };
    return descrittori;
}

const QString NomeInv = QStringLiteral("frmMostraLinkInv");

} // namespace

const QStringList& Nomi() {
    static const QStringList nomi = [] {
        QStringList tutti{NomeInv};
        for (const auto& voce : Descrittori()) {
            tutti << voce.first;
        }
        return tutti;
    }();
    return nomi;
}

QDialog* Crea(const QString& sNome, QWidget* genitore, const QVariantMap& argomenti) {
    if (sNome == NomeInv) {
        auto* finestra = new frmMostraLinkInv(genitore);
        finestra->bInventarioBase = argomenti.value(QStringLiteral("bInventarioBase")).toBool();
        return finestra;
    }
    for (const auto& voce : Descrittori()) {
        if (voce.first == sNome) {
            return new VisualizzatoreLink(voce.second(argomenti), genitore);
        }
    }
    return nullptr;
}

} // namespace VisualizzatoriLink
