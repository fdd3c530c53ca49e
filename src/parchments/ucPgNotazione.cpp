#include "ucPgNotazione.h"

#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSqlQuery>

namespace {

const Connessione& Cnn() {
    if (!Sessione::cnn)
        throw Errore(QStringLiteral("ucPgNotazione"),
                     QStringLiteral("La connessione al database è chiusa."));
    return *Sessione::cnn;
}

} // namespace

ucPgNotazione::ucPgNotazione(QWidget* parent)
    : EditoreRecord(parent) {
    setObjectName(QStringLiteral("ucPgNotazione"));

    // In the order of the design, which is the order of the mandatory walk.
    QLabel* lbl1 = NuovaEtichetta(1, QStringLiteral("Posizione"));
    QLineEdit* txt1 = NuovoTesto(1, 64, QStringLiteral("Inserire la posizione"));
    QLabel* lbl4 = NuovaEtichetta(4, QStringLiteral("Datazione (testo)"));
    QLineEdit* txt4 = NuovoTesto(4, 64);
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Trascrizione/Descrizione"));
    QPlainTextEdit* txt0 =
        NuovoTestoMultiRiga(0, 512, QStringLiteral("Inserire la trascrizione/descrizione"));

    auto* griglia = new QGridLayout(this);
    int riga = 0;
    for (const auto& [etichetta, casella] :
         {std::pair<QLabel*, QWidget*>{lbl1, txt1}, {lbl4, txt4}, {lbl0, txt0}}) {
        etichetta->setBuddy(casella);
        griglia->addWidget(etichetta, riga, 0, Qt::AlignTop);
        griglia->addWidget(casella, riga, 1);
        ++riga;
    }
    griglia->setColumnStretch(1, 1);
    griglia->setRowStretch(riga - 1, 1);
    setTabOrder(txt1, txt4);
    setTabOrder(txt4, txt0);
}

ucPgNotazione::~ucPgNotazione() = default;

void ucPgNotazione::Init() {
    LeggiStato(false);
    BloccaCampi();
}

void ucPgNotazione::Mostra(long ID) {
    Pulisci();
    // The position never written shows the placeholder, which the mandatory walk refuses; the
    // transcription has none, so a Null one shows an empty box.
    QSqlQuery riga = Cnn().Esegui(
        QStringLiteral("SELECT COALESCE(Trascrizione,'<<Inserire valore>>'), "
                       "COALESCE(Posizione,'<<Inserire valore>>'), "
                       "COALESCE(CAST(DataInizio AS VARCHAR(8)),''), "
                       "COALESCE(CAST(DataFine AS VARCHAR(8)),''), "
                       "COALESCE(DescrizioneEstremi,''), COALESCE(Note,''), ID_PgNotazione "
                       "FROM PGNotazioni WHERE ID_PgNotazione = ?"),
        {Id(ID)});
    const bool bTrovata = riga.next();
    LeggiStato(bTrovata);
    if (bTrovata) {
        ImpostaTestoDi(Testo(0), riga.value(5).toString());
        ImpostaTestoDi(Testo(1), riga.value(1).toString());
        ImpostaTestoDi(Testo(4), riga.value(4).toString());
    }
    BloccaCampi();
}

void ucPgNotazione::Salva(long ID) {
    const Connessione& cnn = Cnn();
    // A row that is not there (another workstation deleted it) is not written again. One
    // statement: the three boxes are written all or none.
    QVariantList valori = ValoriScritti();
    valori << Id(ID);
    cnn.EseguiLista(QStringLiteral("UPDATE PGNotazioni SET %1 = ? WHERE ID_PgNotazione = ?")
                        .arg(ColonneScritte().join(QStringLiteral(" = ?, "))),
                    valori);
    QSqlQuery riga = cnn.Esegui(
        QStringLiteral("SELECT ID_PgNotazione FROM PGNotazioni WHERE ID_PgNotazione = ?"),
        {Id(ID)});
    LeggiStato(riga.next());
    BloccaCampi();
}

QStringList ucPgNotazione::ColonneScritte() {
    return {QStringLiteral("Note"), QStringLiteral("Posizione"),
            QStringLiteral("DescrizioneEstremi")};
}

QVariantList ucPgNotazione::ValoriScritti() const {
    return {TestoInColonna(0), TestoNonNullo(TestoODefault(TestoDi(Testo(1)))), TestoInColonna(4)};
}

QString ucPgNotazione::LeggiPosizione() const {
    return TestoDi(Testo(1));
}

QString ucPgNotazione::LeggiDenominazione() const {
    return LeggiPosizione();
}

void ucPgNotazione::LeggiStato(bool bTrovata) {
    OkNuovo = true;
    OkModifica = bTrovata;
    OkCancella = bTrovata;
}
