#include "EditoreAccesso.h"

#include "records/DisposizioneCampi.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSqlQuery>
#include <QStringList>
#include <utility>

namespace {

const Connessione& Cnn() {
    if (!Sessione::cnn)
        throw Errore(QStringLiteral("EditoreAccesso"),
                     QStringLiteral("La connessione al database è chiusa."));
    return *Sessione::cnn;
}

QString Colonna(const char* sNome) {
    return QLatin1String(sNome);
}

} // namespace

EditoreAccesso::EditoreAccesso(Tipo tipoPunto, QWidget* parent)
    : EditoreRecord(parent)
    , tipo(std::move(tipoPunto)) {
    setObjectName(QLatin1String(tipo.sNomeEditore));

    // One field a row, the label beside its box, in the order of the design.
    auto* griglia = new QGridLayout(this);
    QList<QWidget*> caselle;
    int riga = 0;
    for (int i = 0; i < tipo.campi.size(); ++i) {
        const Campo& c = tipo.campi.at(i);
        QLabel* etichetta = NuovaEtichetta(i, QString::fromUtf8(c.sEtichetta));
        const QString sTag = QString::fromUtf8(c.sTag);
        QWidget* casella = nullptr;
        if (c.bMultiRiga)
            casella = NuovoTestoMultiRiga(i, c.iMax, sTag);
        else
            casella = NuovoTesto(i, c.iMax, sTag);
        MettiCampo(griglia, riga, etichetta, casella);
        caselle.append(casella);
    }
    CatenaDelFuoco(caselle);
    griglia->setColumnStretch(1, 1);
    // Room left over goes below the form.
    griglia->setRowStretch(static_cast<int>(tipo.campi.size()), 1);
    for (auto* blocco : findChildren<QPlainTextEdit*>())
        blocco->setMaximumHeight(blocco->fontMetrics().lineSpacing() * 6);
}

EditoreAccesso::~EditoreAccesso() = default;

void EditoreAccesso::Init() {
    LeggiStato(false, 0);
    BloccaCampi();
}

void EditoreAccesso::Mostra(long ID) {
    Pulisci();
    QStringList colonne;
    for (int i = 0; i < tipo.campi.size(); ++i) {
        // A name never saved shows the placeholder, which the mandatory walk refuses.
        colonne << QStringLiteral("COALESCE(%1,'%2')")
                       .arg(Colonna(tipo.campi.at(i).sColonna),
                            i == 0 ? InserireValore : QString());
    }
    colonne << Colonna(tipo.sChiave);
    QSqlQuery riga = Cnn().Esegui(
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
            .arg(colonne.join(QStringLiteral(", ")), Colonna(tipo.sTabella), Colonna(tipo.sChiave)),
        {Id(ID)});
    const bool bTrovata = riga.next();
    const int iChiave = static_cast<int>(tipo.campi.size());
    LeggiStato(bTrovata, bTrovata ? Lungo(riga.value(iChiave)) : 0);
    if (bTrovata) {
        for (int i = 0; i < tipo.campi.size(); ++i)
            ImpostaTestoDi(Testo(i), riga.value(i).toString());
    }
    BloccaCampi();
}

void EditoreAccesso::Salva(long ID) {
    const Connessione& cnn = Cnn();
    QStringList colonne;
    QVariantList valori;
    for (int i = 0; i < tipo.campi.size(); ++i) {
        colonne << Colonna(tipo.campi.at(i).sColonna) + QStringLiteral(" = ?");
        if (i == 0) {
            // The name is never Null.
            valori << TestoNonNullo(TestoODefault(TestoDi(Testo(0))));
        } else {
            valori << TestoInColonna(i);
        }
    }
    valori << Id(ID);
    // A row that is not there (another workstation deleted it) is not written again.
    cnn.EseguiLista(
        QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
            .arg(Colonna(tipo.sTabella), colonne.join(QStringLiteral(", ")), Colonna(tipo.sChiave)),
        valori);
    QSqlQuery riga = cnn.Esegui(QStringLiteral("SELECT %1 FROM %2 WHERE %1 = ?")
                                    .arg(Colonna(tipo.sChiave), Colonna(tipo.sTabella)),
                                {Id(ID)});
    const bool bTrovata = riga.next();
    LeggiStato(bTrovata, bTrovata ? Lungo(riga.value(0)) : 0);
    BloccaCampi();
}

long EditoreAccesso::LeggiID() const {
    return lChiave;
}

QList<const bool*> EditoreAccesso::FlagLegami() const {
    QList<const bool*> flag;
    for (const Legame& legame : tipo.legami)
        flag << legame.flag;
    return flag;
}

void EditoreAccesso::LeggiStato(bool bTrovata, long lChiaveRiga) {
    lChiave = bTrovata ? lChiaveRiga : 0;
    OkNuovo = true;
    OkModifica = bTrovata;
    OkCancella = bTrovata;
    for (const Legame& legame : tipo.legami) {
        // A link in any join table keeps the entry from being deleted.
        const bool bLegato =
            bTrovata && !NessunaRiga(QStringLiteral("SELECT * FROM %1 WHERE %2 = ?")
                                         .arg(Colonna(legame.sTabella), Colonna(tipo.sChiave)),
                                     {Id(lChiave)});
        *legame.flag = bLegato;
        OkCancella = OkCancella && !bLegato;
    }
}
