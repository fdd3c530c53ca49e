#include "Sessione.h"

#include "LetturaLista.h"
#include "store/Connessione.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdlib>

namespace Sessione {

namespace {
QString sCartella;
}

void ChiudiConnessione() {
    if (cnn) {
        cnn->Chiudi();
    }
    cnn.reset();
}

void ChiudiConnessioneAllUscita() {
    // Functions given to atexit run before the destructors of the statics made before them.
    static const bool bRegistrata = std::atexit([] { ChiudiConnessione(); }) == 0;
    Q_UNUSED(bRegistrata)
}

void Azzera() {
    ChiudiConnessione();
    sConnessione.clear();
    bIstituto = false;
    sServer.clear();
    sDatabase.clear();
    sUtente.clear();
    sPassword.clear();
    sVersioneApp.clear();
    dValore = 0.0;
    sParam01.clear();
    sParam03.clear();
    sParam04.clear();
    sParam05.clear();
    sParam07.clear();
    sParam09.clear();
    sParam12.clear();
    lIdComplesso = 0;
    sDenomComplesso.clear();
    lIdInventario = 0;
    sDenomInventario.clear();
    lIdDatoInventariale = 0;
    lIdPergamena = 0;
    lIdSoggetto = 0;
    sDenomSoggetto.clear();
    sTipoLink.clear();
    lIdElementoLink = 0;
    sDenomElementoLink.clear();
    lIdAltreDen = 0;
    sTipoAltreDen.clear();
    lIdVersamento = 0;
    lIdRigaVersamento = 0;
    lModoStrutturaPG = 0;
    aSelSoggetti.clear();
    aSelAntroponimi.clear();
    aSelToponimi.clear();
    aSelTitolari.clear();
    iEsitoLinkSogg = 0;
    iEsitoLinkCD = 0;
    iEsitoLinkInv = 0;
    bOkLinkSelInv = false;
    iChiamanteInv = 0;
    iChiamanteAntroponimi = 0;
    iChiamanteToponimi = 0;
    iTipoSogg = 0;
    lIdElemLinkInv = 0;
    sCartellaExport.clear();
    sCartellaImport.clear();
    lIdElementoImg = 0;
    sCartellaImg.clear();
    sPaginaImg.clear();
    iDaPagina = 0;
    iAPagina = 0;
    iEsitoCollegaImmagini = 0;
    bFrmStrutturaCDAperto = false;
    bFrmStrutturaINAperto = false;
    bFrmSoggettiAperto = false;
    bFrmRegistroPCAperto = false;
    bFrmAntroponimiAperto = false;
    bFrmToponimiAperto = false;
    bFrmTitolariAperto = false;
    bFrmECComplessiDocAperto = false;
    bFrmECSoggettiAperto = false;
    sCartella.clear();
}

QString CartellaProgramma() {
    if (sCartella.isEmpty()) {
        const QString daAmbiente = qEnvironmentVariable("TABELLION_CARTELLA");
        sCartella = daAmbiente.isEmpty() ? QCoreApplication::applicationDirPath()
                                         : QDir(daAmbiente).absolutePath();
    }
    return sCartella;
}

void LeggiParam(const QString& sSorgente) {
    const QStringList record = LeggiLista(FileProgramma(QStringLiteral("Param.txt")), sSorgente);
    for (const QString& riga : record) {
        const QString codice = riga.left(2);
        const QString valore = riga.mid(3);
        if (codice == QStringLiteral("01")) {
            sParam01 = valore;
        } else if (codice == QStringLiteral("02")) {
            sServer = valore;
        } else if (codice == QStringLiteral("03")) {
            sParam03 = valore;
        } else if (codice == QStringLiteral("04")) {
            sParam04 = valore;
        } else if (codice == QStringLiteral("05")) {
            sParam05 = valore;
        } else if (codice == QStringLiteral("06")) {
            sVersioneApp = valore;
        } else if (codice == QStringLiteral("07")) {
            sParam07 = valore;
        } else if (codice == QStringLiteral("08")) {
            sDatabase = valore;
        } else if (codice == QStringLiteral("09")) {
            sParam09 = valore;
        } else if (codice == QStringLiteral("12")) {
            sParam12 = valore;
            break; // what follows the first record of code 12 is not read
        }
    }
}

QString LeggiTipoSito(const QString& sSorgente) {
    return LeggiLista(FileProgramma(QStringLiteral("Istituto.txt")), sSorgente).value(0).left(1);
}

QString FileProgramma(const QString& nome) {
    return QDir(CartellaProgramma()).filePath(nome);
}

} // namespace Sessione
