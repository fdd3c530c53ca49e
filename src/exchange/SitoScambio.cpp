#include "SitoScambio.h"

#include "session/Errore.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"

#include <QDir>

namespace Scambio {

QString MessaggioSenzaIdentita(const QString& sCodice) {
    const QString sTrovato = sCodice.trimmed().isEmpty()
                                 ? QStringLiteral("il codice del sito è vuoto")
                                 : QStringLiteral("il codice del sito è ancora \"%1\", quello "
                                                  "provvisorio di un database nuovo")
                                       .arg(sCodice.trimmed());
    return QStringLiteral(
               "Il sito non ha ancora la sua identità: in Config %1. Ogni riga porta il codice "
               "del sito da cui viene, e l'importazione sostituisce le righe del codice del "
               "mittente: finché il sito non ha un codice suo non esporta e non importa "
               "tabelle.\n"
               "L'identità (codice e intervallo delle chiavi) si dà creando il database del "
               "sito: tabellion-sql --crea --codice CODICE --id-inizio N --id-fine M ...; a un "
               "database che esiste già la dà l'amministratore, con uno script eseguito da "
               "tabellion-sql -i: UPDATE Config SET Code = 'CODICE', ID_Start = N, ID_End = M. "
               "Due siti non devono mai avere lo stesso codice né intervalli di chiavi che si "
               "sovrappongono.")
        .arg(sTrovato);
}

void ControllaIdentita(const Connessione& cnn, const QString& sSorgente) {
    const QString sCodice = CodiceDelSito(cnn, sSorgente);
    if (CodiceProvvisorio(sCodice))
        throw Errore(sSorgente, MessaggioSenzaIdentita(sCodice));
}

namespace {

// A file refused by its code: why (with %1 the file and %2 its code), then what is not done.
QString FileRifiutato(const QString& sPerche, const QString& sPercorso, const QString& sCodice) {
    return (sPerche + QStringLiteral(" La tabella non è importata e il database non è toccato."))
        .arg(QDir::toNativeSeparators(sPercorso), sCodice);
}

} // namespace

QString FileDelSitoStesso(const QString& sPercorso, const QString& sCodice) {
    return FileRifiutato(
        QStringLiteral("Il file %1 porta il codice \"%2\", che è quello di questo stesso sito: "
                       "l'importazione sostituisce le righe del codice del file, e cancellerebbe "
                       "così le righe del sito."),
        sPercorso, sCodice);
}

QString FileDiSitoSenzaIdentita(const QString& sPercorso, const QString& sCodice) {
    return FileRifiutato(
        QStringLiteral("Il file %1 porta il codice provvisorio \"%2\" di un sito che non aveva "
                       "ancora la sua identità: non dice da quale sito viene, e importarlo "
                       "cancellerebbe tutte le righe di quel codice."),
        sPercorso, sCodice);
}

RigheDelSito::RigheDelSito(const QString& sCodiceSito)
    : sCodice(sCodiceSito)
    , codiceUtf8(sCodiceSito.toUtf8()) {}

bool RigheDelSito::Propria(bool bNull, QByteArrayView codice) const {
    if (bNull || codice == QByteArrayView(codiceUtf8))
        return true;
    return CodiceProvvisorio(QString::fromUtf8(codice));
}

bool RigheDelSito::Propria(bool bNull, const QString& sCodiceRiga) const {
    return bNull || sCodiceRiga == sCodice || CodiceProvvisorio(sCodiceRiga);
}

} // namespace Scambio
