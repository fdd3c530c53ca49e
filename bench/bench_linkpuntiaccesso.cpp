// The access points' link dialogs on a large archive: builds N persons, N/2 places and N/20
// holders (100,000, 50,000 and 5,000 when not given) on SQLite or PostgreSQL, a parchment, a
// unit and a seal, each tied to one entry in fifty; then times, offscreen and in one run,
// against the bare read of the rows the list shows (the same statement, every value read once),
// the opening of each dialog (its list read and its first entry shown): the persons of the
// parchment, the places of the unit and the holders of the seal, each the best of three.
//
//   QT_QPA_PLATFORM=offscreen bench_linkpuntiaccesso [persone] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "BancoMisure.h"
#include "links/ModelloSpunte.h"
#include "links/frmLinkPuntiAccesso.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"

#include <QApplication>
#include <algorithm>
#include <functional>

namespace {

using ArchivioBanco::Rapporto;
using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

// N entries of an access point's table by the bulk path, in one transaction, their keys from 1
// and their names in a scattered order.
void CostruisciVoci(const Connessione& cnn, const QString& sTabella, const QString& sChiave,
                    const QString& sColonna, const QString& sPrefisso, qint64 quante) {
    QSqlDatabase db = cnn.Db();
    db.transaction();
    const auto carico = cnn.backend().ApriCaricamento(db, sTabella, {sChiave, sColonna});
    for (qint64 k = 1; k <= quante; ++k) {
        const qint64 sparso = (k * 7919) % quante;
        const std::array<QVariant, 2> riga{
            k, QStringLiteral("%1 %2").arg(sPrefisso).arg(static_cast<qlonglong>(sparso), 6, 10,
                                                          QLatin1Char('0'))};
        carico->Aggiungi(riga);
        if (carico->Pieno()) {
            ArchivioBanco::Invia(*carico);
        }
    }
    ArchivioBanco::Invia(*carico);
    db.commit();
}

qint64 Chiave(const Connessione& cnn, const QString& sSql, long lElemento) {
    QSqlQuery riga = cnn.Esegui(sSql, {static_cast<qlonglong>(lElemento)});
    return riga.next() ? riga.value(0).toLongLong() : 0;
}

struct Caso {
    const char* sCosa;
    DescrizionePuntoAccesso descrizione;
    long lChiave;
    int iChiamante;
    std::function<DialogoPuntoAccesso*()> crea;
};

} // namespace

int main(int argc, char** argv) {
    return ArchivioBanco::Esegui(argc, argv, [](QApplication& app) {
        QElapsedTimer orologio;
        orologio.start();
        const ArchivioBanco::BancoFinestra banco(app.arguments(),
                                                 QStringLiteral("bench_linkpuntiaccesso"));
        const Connessione& cnn = *Sessione::cnn;
        const qint64 persone = banco.richiesti;
        const qint64 luoghi = std::max<qint64>(1, persone / 2);
        const qint64 titolari = std::max<qint64>(1, persone / 20);
        CostruisciVoci(cnn, QStringLiteral("Antroponimi"), QStringLiteral("ID_Antroponimo"),
                       QStringLiteral("Nome"), QStringLiteral("Persona"), persone);
        CostruisciVoci(cnn, QStringLiteral("Toponimi"), QStringLiteral("ID_Toponimo"),
                       QStringLiteral("Denominazione"), QStringLiteral("Luogo"), luoghi);
        CostruisciVoci(cnn, QStringLiteral("Titolari"), QStringLiteral("ID_Titolare"),
                       QStringLiteral("Nome"), QStringLiteral("Titolare"), titolari);
        const long istituto =
            ArchivioElementi::Crea(cnn, QStringLiteral("01"), QStringLiteral("Istituto"), 0);
        const long inventario = ArchivioElementi::Crea(cnn, QStringLiteral("03"),
                                                       QStringLiteral("Inventario"), istituto);
        const long pergamena =
            ArchivioElementi::Crea(cnn, QStringLiteral("05"), QStringLiteral("P1"), inventario);
        const long unita =
            ArchivioElementi::Crea(cnn, QStringLiteral("07"), QStringLiteral("Busta"), inventario);
        const long sigillo =
            ArchivioElementi::Crea(cnn, QStringLiteral("06"), QStringLiteral("Sigillo"), pergamena);
        const qint64 idPergamena =
            Chiave(cnn, QStringLiteral("SELECT ID_Pergamena FROM Pergamene WHERE ID_Elemento = ?"),
                   pergamena);
        const qint64 idUnita = Chiave(cnn,
                                      QStringLiteral("SELECT ID_DatoInventariale FROM "
                                                     "DatiInventariali WHERE ID_Elemento = ?"),
                                      unita);
        const qint64 idSigillo = Chiave(
            cnn, QStringLiteral("SELECT ID_Sigillo FROM Sigilli WHERE ID_Elemento = ?"), sigillo);
        cnn.Esegui(QStringLiteral("INSERT INTO PGAntroponimi (ID_PGAntroponimo, ID_Pergamena, "
                                  "ID_Antroponimo) SELECT ID_Antroponimo, ?, ID_Antroponimo FROM "
                                  "Antroponimi WHERE ID_Antroponimo % 50 = 0"),
                   {static_cast<qlonglong>(idPergamena)});
        cnn.Esegui(QStringLiteral("INSERT INTO DIToponimi (ID_DatoInventariale, ID_Toponimo) "
                                  "SELECT ?, ID_Toponimo FROM Toponimi WHERE ID_Toponimo % 50 = 0"),
                   {static_cast<qlonglong>(idUnita)});
        cnn.Esegui(QStringLiteral("INSERT INTO SGTitolari (ID_SGTitolare, ID_Sigillo, "
                                  "ID_Titolare) SELECT ID_Titolare, ?, ID_Titolare FROM Titolari "
                                  "WHERE ID_Titolare % 50 = 0"),
                   {static_cast<qlonglong>(idSigillo)});
        cnn.Esegui(QStringLiteral("ANALYZE"));
        Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite")
                 << ", punti d'accesso: " << persone << " persone, " << luoghi << " toponimi, "
                 << titolari << " titolari, in " << Tempo(Secondi(orologio)) << "\n";

        const Caso casi[] = {
            {"persone della pergamena", frmLinkAntroponimi::Descrizione(1),
             static_cast<long>(idPergamena), 1,
             [] {
                 return new frmLinkAntroponimi;
             }},
            {"toponimi dell'unità", frmLinkToponimi::Descrizione(2), static_cast<long>(idUnita), 2,
             [] {
                 return new frmLinkToponimi;
             }},
            {"titolari del sigillo", frmLinkTitolari::Descrizione(), static_cast<long>(idSigillo),
             0,
             [] {
                 return new frmLinkTitolari;
             }},
        };
        constexpr int Ripetizioni = 3;
        for (const Caso& caso : casi) {
            Sessione::lIdElementoLink = caso.lChiave;
            Sessione::sDenomElementoLink = QStringLiteral("Oggetto");
            Sessione::iChiamanteAntroponimi = caso.iChiamante;
            Sessione::iChiamanteToponimi = caso.iChiamante;
            const QList<ArchivioBanco::Istruzione> istruzioni{
                {DialogoPuntoAccesso::SqlLista(cnn, caso.descrizione),
                 {static_cast<qlonglong>(caso.lChiave)}}};
            double nuda = 1e9;
            double aperta = 1e9;
            qint64 righe = 0;
            std::unique_ptr<DialogoPuntoAccesso> dialogo;
            for (int r = 0; r < Ripetizioni; ++r) {
                const ArchivioBanco::Lettura lettura = ArchivioBanco::LetturaNuda(cnn, istruzioni);
                nuda = std::min(nuda, lettura.dSecondi);
                righe = lettura.righe;
                dialogo.reset();
                orologio.restart();
                dialogo.reset(caso.crea());
                dialogo->resize(1000, 700);
                dialogo->show();
                QApplication::processEvents();
                aperta = std::min(aperta, Secondi(orologio));
            }
            qint64 spuntate = 0;
            for (int k = 0; k < dialogo->Modello(0).Righe(); ++k) {
                spuntate += dialogo->Modello(0).Spuntata(k) ? 1 : 0;
            }
            if (dialogo->Modello(0).Righe() != righe) {
                throw Errore(QStringLiteral("bench"),
                             QStringLiteral("Il dialogo non mostra tutte le righe"));
            }
            Uscita() << caso.sCosa << ": lettura nuda " << righe << " righe in " << Tempo(nuda)
                     << "; apertura del dialogo: " << dialogo->Modello(0).Righe() << " righe ("
                     << spuntate << " spuntate) in " << Tempo(aperta) << Rapporto(aperta, nuda)
                     << "\n";
            Uscita().flush();
        }
        return 0;
    });
}
