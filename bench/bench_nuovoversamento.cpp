// The dialog of a versamento's row (frmNuovoVersamento) on a large archive: builds an archive of
// about N institutes and complessi four levels deep on SQLite or PostgreSQL, a versamento under
// the first institute and one row of it fed by a complesso deep in the tree, then times,
// offscreen and in one run, the bare read of what the dialog shows (the tree's two groups and
// the complessi with producers, the row, the complesso ticked) against the opening of the
// dialog on that row, until its complesso is ticked and shown with the tree open down to it;
// then the opening for a new row, on the act's institute.
//
//   QT_QPA_PLATFORM=offscreen bench_nuovoversamento [elementi] [sqlite|postgresql]
//
// PostgreSQL needs TABELLION_PG_HOST/PORT/USER/PASSWORD.

#include "ArchivioBanco.h"
#include "links/frmNuovoVersamento.h"
#include "session/Sessione.h"
#include "structure/frmStrutturaCD.h"

#include <QApplication>
#include <QDialog>
#include <QTreeView>

namespace {

using ArchivioBanco::Secondi;
using ArchivioBanco::Tempo;
using ArchivioBanco::Uscita;

qint64 Numero(const QString& sSql, std::initializer_list<QVariant> valori = {}) {
    QSqlQuery query = Sessione::cnn->Esegui(sSql, valori);
    const qint64 numero = query.next() ? query.value(0).toLongLong() : 0;
    query.finish();
    return numero;
}

// The dialog opened on the row in the session, shown; its time.
double Apertura(const QString& sCaso, const ArchivioBanco::Lettura& nuda, qint64 lAtteso) {
    QElapsedTimer orologio;
    orologio.start();
    auto* finestra = new frmNuovoVersamento;
    std::unique_ptr<QDialog> dialogo(finestra->InDialogo());
    dialogo->show();
    QApplication::processEvents();
    const double dApertura = Secondi(orologio);
    if (finestra->lIdCorrente != lAtteso) {
        throw Errore(
            QStringLiteral("bench"),
            QStringLiteral("Aperto su %1 invece di %2").arg(finestra->lIdCorrente).arg(lAtteso));
    }
    Uscita() << "apertura di frmNuovoVersamento " << sCaso << ": " << finestra->Modello().Nodi()
             << " nodi in " << Tempo(dApertura)
             << QStringLiteral(" (rapporto %1 sulla lettura nuda)\n")
                    .arg(dApertura / nuda.dSecondi, 0, 'f', 2);
    return dApertura;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    try {
        QElapsedTimer orologio;
        orologio.start();
        const ArchivioBanco::BancoFinestra banco(app.arguments(),
                                                 QStringLiteral("bench_nuovoversamento"));
        qint64 lProfondo = 0;
        const qint64 elementi =
            ArchivioBanco::CostruisciComplessi(*Sessione::cnn, banco.richiesti - 1, lProfondo);

        // The act under the first institute, and its row on the deep complesso.
        const qint64 lIstituto =
            Numero(QStringLiteral("SELECT MIN(ID_Elemento) FROM Elementi WHERE Tipologia = '01'"));
        const qint64 lPrimoLibero =
            Numero(QStringLiteral("SELECT MAX(ID_Elemento) FROM Elementi")) + 1;
        {
            QSqlDatabase db = Sessione::cnn->Db();
            db.transaction();
            ArchivioBanco::CaricoElementi atti(*Sessione::cnn, lPrimoLibero);
            atti.Crea("04", QStringLiteral("15/03/2024 - 12"), lIstituto);
            atti.Fine();
            db.commit();
        }
        const qint64 lIdVersamento =
            Numero(QStringLiteral("SELECT ID_Versamento FROM Versamenti WHERE ID_Elemento = ?"),
                   {lPrimoLibero});
        const qint64 lIdComplessoDoc =
            Numero(QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc WHERE ID_Elemento = ?"),
                   {lProfondo});
        const qint64 lIdRiga = Sessione::cnn->Inserisci(
            QStringLiteral("RigheVersamento"), QStringLiteral("ID_RigaVersamento"),
            {QStringLiteral("ID_Versamento"), QStringLiteral("Denominazione"),
             QStringLiteral("Quantita"), QStringLiteral("DescrizioneEstremi"),
             QStringLiteral("DataInizio"), QStringLiteral("DataFine"),
             QStringLiteral("ID_ComplessoDoc")},
            {lIdVersamento, QStringLiteral("Registri"), 12, QStringLiteral("1900 - 1950"), 19000101,
             19501231, lIdComplessoDoc});
        Uscita() << (banco.bPostgreSQL ? "PostgreSQL" : "SQLite") << ", archivio: " << elementi + 1
                 << " elementi in " << Tempo(Secondi(orologio)) << "\n";

        QList<ArchivioBanco::Istruzione> letture;
        for (const GruppoAlbero& gruppo :
             frmStrutturaCD::Gruppi(frmStrutturaCD::OrdineAlfabetico())) {
            letture.append({gruppo.Sql(*Sessione::cnn), {}});
        }
        letture.append({QStringLiteral("SELECT CD_ID_Elemento FROM V_ComplessiDocSoggetti"), {}});
        letture.append({QStringLiteral("SELECT * FROM RigheVersamento WHERE ID_RigaVersamento = ?"),
                        {lIdRiga}});
        letture.append(
            {QStringLiteral(
                 "SELECT CD.* FROM RigheVersamento RV JOIN ComplessiDoc CD ON "
                 "CD.ID_ComplessoDoc = RV.ID_ComplessoDoc WHERE RV.ID_RigaVersamento = ?"),
             {lIdRiga}});
        const ArchivioBanco::Lettura nuda = ArchivioBanco::LetturaNuda(*Sessione::cnn, letture);
        Uscita() << "lettura nuda di ciò che il dialogo mostra: " << nuda.righe << " righe in "
                 << Tempo(nuda.dSecondi) << "\n";

        Sessione::lIdVersamento = static_cast<long>(lIdVersamento);
        Sessione::lIdRigaVersamento = static_cast<long>(lIdRiga);
        Apertura(QStringLiteral("su una riga scritta"), nuda, lProfondo);
        Sessione::lIdRigaVersamento = 0;
        Apertura(QStringLiteral("per una riga nuova"), nuda, lIstituto);
        return 0;
    } catch (const Errore& errore) {
        Uscita() << errore.testo() << '\n';
        return 1;
    }
}
