#include "TipiProduttore.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "session/Utility.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

namespace TipiProduttore {

namespace {

const Tipo Tipi[Schede] = {
    {"Persone", "persona", "P", "Persone", "Cognome e Nome (Nascita - Morte)",
     "COALESCE(Persone.LuogoNascita, '') AS LuogoN, COALESCE(Persone.DataNascita, 0) AS DataN, "
     "COALESCE(Persone.LuogoMorte, '') AS LuogoM, COALESCE(Persone.DataMorte, 0) AS DataM"},
    {"Famiglie", "famiglia", "F", "Famiglie", "Denominazione, Titoli (Estremi cronologici)",
     "COALESCE(Famiglie.Titoli, '') AS Titoli, "
     "COALESCE(Famiglie.DescrizioneEstremi, '') AS DescrizioneEstremi"},
    {"Enti", "ente", "E", "Enti", "Denominazione, Sede (Estremi cronologici)",
     "COALESCE(Enti.Sede, '') AS Sede, COALESCE(Enti.DescrizioneEstremi, '') AS "
     "DescrizioneEstremi"},
};

} // namespace

const Tipo& Di(int iScheda) {
    return Tipi[iScheda];
}

QString Estremi(int iScheda, const LetturaRighe& riga, int iPrima) {
    if (iScheda == Persone) {
        return EstremiPersona(riga.Stringa(iPrima), riga.Stringa(iPrima + 2),
                              DataDaNumero(riga.Intero(iPrima + 1)),
                              DataDaNumero(riga.Intero(iPrima + 3)));
    }
    if (iScheda == Famiglie) {
        return EstremiFamiglia(riga.Stringa(iPrima), riga.Stringa(iPrima + 1));
    }
    return EstremiEnte(riga.Stringa(iPrima), riga.Stringa(iPrima + 1));
}

long NuovoSoggetto(int iScheda, const QString& sDenominazione) {
    if (!Sessione::cnn) {
        throw Errore(QStringLiteral("TipiProduttore"),
                     QStringLiteral("La connessione al database è chiusa."));
    }
    return static_cast<long>(
        Sessione::cnn->Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                                 {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                                 {sDenominazione, QLatin1String(Tipi[iScheda].sLettera)}));
}

} // namespace TipiProduttore
