#include "frmCollegaPergamene.h"

#include "ModelloSpunte.h"
#include "records/EditoreRecord.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSqlQuery>

namespace {

const QString Sorgente = QStringLiteral("frmCollegaPergamene");
const QString ErroreCarica = QStringLiteral("Errore A3");
const QString ErroreConferma = QStringLiteral("Errore A2");

const Connessione& Cnn() {
    if (!Sessione::cnn) {
        throw Errore(Sorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return *Sessione::cnn;
}

QVariant Id(qint64 lId) {
    return QVariant::fromValue(static_cast<qlonglong>(lId));
}

} // namespace

frmCollegaPergamene::frmCollegaPergamene(QWidget* genitore)
    : DialogoSpunte(Sorgente, QStringLiteral("Collegamento tra pergamene"), genitore) {
    UnaLista();
    cmdCollega->setText(QStringLiteral("Conferma"));
    cmdAnnullaCol->setText(QStringLiteral("Annulla"));
}

void frmCollegaPergamene::Init(long lIdElemento, const QString& sDescrizione) {
    bLettura = true;
    lIdElemPergOrig = lIdElemento;
    sDescrPergOrig = sDescrizione;
}

QList<qint64> frmCollegaPergamene::Copie(long lIdElemento) {
    const Connessione& cnn = Cnn();
    QList<qint64> copie;
    QSet<qint64> viste;
    QSqlQuery prime =
        cnn.Esegui(QStringLiteral("SELECT ID_Pergamena FROM PGTraditio WHERE ID_Elemento = ? "
                                  "ORDER BY ID_Pergamena"),
                   {Id(lIdElemento)}, Sorgente);
    while (prime.next()) {
        const qint64 lCopia = prime.value(0).toLongLong();
        if (!viste.contains(lCopia)) {
            viste.insert(lCopia);
            copie.append(lCopia);
        }
    }
    prime.finish();
    // The copies of each copy, in turn; a parchment met twice (a ring of ties) is taken once.
    for (qsizetype i = 0; i < copie.size(); ++i) {
        QSqlQuery figlie = cnn.Esegui(
            QStringLiteral(
                "SELECT TRAD.ID_Pergamena FROM PGTraditio TRAD INNER JOIN Pergamene "
                "PERG ON TRAD.ID_Elemento = PERG.ID_Elemento WHERE PERG.ID_Pergamena = ? "
                "ORDER BY TRAD.ID_Pergamena"),
            {Id(copie.at(i))}, Sorgente);
        while (figlie.next()) {
            const qint64 lCopia = figlie.value(0).toLongLong();
            if (!viste.contains(lCopia)) {
                viste.insert(lCopia);
                copie.append(lCopia);
            }
        }
    }
    return copie;
}

PaginaSpunte frmCollegaPergamene::PaginaCopie() const {
    PaginaSpunte pagina;
    pagina.sTitolo = QStringLiteral("Pergamene");
    pagina.sTipo = QStringLiteral("pergamena");
    pagina.sIntestazione = QStringLiteral("Pergamene Collegate a: ") + sDescrPergOrig;
    pagina.sErroreCarica = ErroreCarica;
    pagina.bSceltaUnica = true;
    QList<qint64> copie;
    try {
        copie = Copie(lIdElemPergOrig);
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica,
               ErroreCarica);
    }
    // With no copy the list asks for the parchment 0, which is none.
    if (copie.isEmpty()) {
        copie.append(0);
    }
    QStringList segnaposto;
    for (const qint64 lCopia : std::as_const(copie)) {
        segnaposto.append(QStringLiteral("?"));
        pagina.valori.append(Id(lCopia));
    }
    const QString sOrdine = Sessione::cnn
                                ? Sessione::cnn->InOrdineAlfabetico(QStringLiteral("PG.Segnatura"))
                                : QStringLiteral("PG.Segnatura");
    pagina.sSql = QStringLiteral("SELECT PG.ID_Elemento, COALESCE(PG.Segnatura, ''), "
                                 "COALESCE(INV.DenomCompleta, ''), 0 FROM Pergamene PG INNER JOIN "
                                 "Inventari INV ON INV.ID_Inventario = PG.ID_Inventario "
                                 "WHERE PG.ID_Pergamena IN (%1) ORDER BY %2")
                      .arg(segnaposto.join(QStringLiteral(", ")), sOrdine);
    pagina.iColonnaChecked = 3;
    pagina.testoRiga = [](const LetturaRighe& riga) {
        return riga.Stringa(2).trimmed() + QStringLiteral(" > ") + riga.Stringa(1).trimmed();
    };
    return pagina;
}

PaginaSpunte frmCollegaPergamene::PaginaOriginali() const {
    PaginaSpunte pagina;
    pagina.sTitolo = QStringLiteral("Pergamene");
    pagina.sTipo = QStringLiteral("pergamena");
    pagina.sIntestazione = QStringLiteral("Pergamene ");
    pagina.sErroreCarica = ErroreCarica;
    pagina.bSceltaUnica = true;
    const QString sOrdine = Sessione::cnn
                                ? Sessione::cnn->InOrdineAlfabetico(QStringLiteral("PG.Segnatura"))
                                : QStringLiteral("PG.Segnatura");
    // The parchment in hand is left out; the one it is tied to comes ticked.
    pagina.sSql = QStringLiteral("SELECT PG.ID_Elemento, COALESCE(PG.Segnatura, ''), CASE WHEN "
                                 "PG.ID_Elemento = (SELECT TRAD.ID_Elemento FROM PGTraditio TRAD "
                                 "WHERE TRAD.ID_Pergamena = ?) THEN 1 ELSE 0 END FROM Pergamene "
                                 "PG WHERE PG.ID_Inventario = ? AND PG.ID_Pergamena <> ? "
                                 "ORDER BY %1")
                      .arg(sOrdine);
    pagina.valori = {Id(Sessione::lIdPergamena), Id(Sessione::lIdInventario),
                     Id(Sessione::lIdPergamena)};
    pagina.iColonnaChecked = 2;
    pagina.testoRiga = [](const LetturaRighe& riga) {
        return riga.Stringa(1).trimmed();
    };
    return pagina;
}

void frmCollegaPergamene::ScriviOriginale(qint64 lIdElemento) const {
    // The row of PGTraditio is the database's: it is updated, never added here.
    const QSqlQuery scrittura =
        Cnn().Esegui(QStringLiteral("UPDATE PGTraditio SET ID_Elemento = ? WHERE ID_Pergamena = ?"),
                     {lIdElemento == 0 ? EditoreRecord::NullNumero() : Id(lIdElemento),
                      Id(Sessione::lIdPergamena)},
                     Sorgente + QStringLiteral(".cmdConferma"));
    if (scrittura.numRowsAffected() == 0) {
        throw Errore(Sorgente + QStringLiteral(".cmdConferma"),
                     QStringLiteral("La pergamena non ha la sua riga della traditio nel database: "
                                    "il collegamento non è stato scritto."));
    }
    Sessione::lIdElementoLink = static_cast<long>(lIdElemento);
}

void frmCollegaPergamene::Carica() {
    QString sOggetto = sDescrPergOrig;
    if (!bLettura) {
        try {
            QSqlQuery riga =
                Cnn().Esegui(QStringLiteral("SELECT COALESCE(Segnatura, '') FROM Pergamene WHERE "
                                            "ID_Pergamena = ?"),
                             {Id(Sessione::lIdPergamena)}, Sorgente);
            sOggetto = riga.next() ? riga.value(0).toString().trimmed() : QString();
        } catch (...) {
            MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok,
                   Icona::Critica, ErroreCarica);
        }
    }
    AggiungiPagina(bLettura ? PaginaCopie() : PaginaOriginali(),
                   QStringLiteral("Pergamena selezionata"), sOggetto,
                   QStringLiteral("Copia della pergamena"));
    CollegamentoSpunte scelta;
    scelta.sErroreScelta = ErroreConferma;
    if (!bLettura) {
        scelta.scriviScelta = [this](qint64 lScelto) {
            ScriviOriginale(lScelto);
        };
    }
    ImpostaCollegamento(std::move(scelta));
    Avvia(0);
    // A list to read: nothing to confirm, and the original's name has no choice beside it.
    cmdCollega->setEnabled(!bLettura);
    Scelti(0)->setReadOnly(true);
    if (bLettura) {
        Scelti(0)->setVisible(false);
        if (auto* etichetta = findChild<QLabel*>(QStringLiteral("Label1(1)"))) {
            etichetta->setVisible(false);
        }
    }
}
