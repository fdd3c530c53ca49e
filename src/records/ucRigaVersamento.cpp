#include "ucRigaVersamento.h"

#include "records/DisposizioneCampi.h"
#include "session/Conversioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSqlQuery>

namespace {

const QString SqlMostra = QStringLiteral(
    "SELECT COALESCE(Denominazione,'<<Inserire valore>>'), Quantita, MetriLineari, "
    "COALESCE(Classificazione,''), COALESCE(DescrizioneEstremi,''), "
    "COALESCE(CAST(DataInizio AS VARCHAR(8)),''), COALESCE(CAST(DataFine AS VARCHAR(8)),''), "
    "COALESCE(Note,''), COALESCE(ID_ComplessoDoc,0), ID_Versamento, ID_RigaVersamento "
    "FROM RigheVersamento WHERE ID_RigaVersamento = ?");

const QString SqlEsiste = QStringLiteral("SELECT COALESCE(ID_ComplessoDoc,0) FROM RigheVersamento "
                                         "WHERE ID_RigaVersamento = ?");

const QString SqlScrivi = QStringLiteral(
    "UPDATE RigheVersamento SET Denominazione = ?, Quantita = ?, MetriLineari = ?, "
    "Classificazione = ?, DescrizioneEstremi = ?, DataInizio = ?, DataFine = ?, Note = ?, "
    "ID_ComplessoDoc = ? WHERE ID_RigaVersamento = ?");

// A quantity as its box shows it: Italian decimals, no thousands points, "" for Null.
QString TestoQuantita(const QVariant& valore) {
    if (ENull(valore))
        return QString();
    QLocale italiano(QLocale::Italian, QLocale::Italy);
    italiano.setNumberOptions(QLocale::OmitGroupSeparator);
    return italiano.toString(valore.toDouble(), 'g', 15);
}

// A year for its stored date (the whole year: "0101" or "1231" behind it); Errore 13 for a
// year that is no number, as the assignment to the numeric column does.
QVariant ColonnaAnno(const QString& sAnno, bool bInizio) {
    const QVariant data = DataDaAnno(Trim(sAnno), bInizio);
    if (ENull(data))
        return EditoreRecord::NullNumero();
    bool ok = false;
    const qlonglong numero = data.toString().toLongLong(&ok);
    if (!ok)
        throw Errore(QStringLiteral("ucRigaVersamento"), QStringLiteral("Tipo non corrispondente"),
                     ErroriPiattaforma::TipoNonCorrispondente);
    return QVariant(numero);
}

} // namespace

ucRigaVersamento::ucRigaVersamento(QWidget* parent)
    : EditoreRecord(parent) {
    setObjectName(QStringLiteral("ucRigaVersamento"));

    // The controls in the order of the design, which is the order of the mandatory walk.
    QLabel* lbl7 = NuovaEtichetta(7, QStringLiteral("Note storico-archivistiche"));
    QPlainTextEdit* txt7 = NuovoTestoMultiRiga(7, 1024);
    QLabel* lbl3 = NuovaEtichetta(3, QStringLiteral("Specifiche consistenza"));
    QLineEdit* txt3 = NuovoTesto(3, 64);
    QLabel* lbl2 = NuovaEtichetta(2, QStringLiteral("Metri lineari"));
    QLineEdit* txt2 = NuovoTesto(2, 0);
    QLabel* lbl5 = NuovaEtichetta(5, QStringLiteral("Anno fine"));
    QLineEdit* txt5 = NuovoTesto(5, 4, QStringLiteral("Inserire anno fine"));
    QLabel* lbl4 = NuovaEtichetta(4, QStringLiteral("Anno inizio"));
    QLineEdit* txt4 = NuovoTesto(4, 4, QStringLiteral("Inserire anno inizio"));
    QLabel* lbl6 = NuovaEtichetta(6, QStringLiteral("Estremi cronologici (testo)"));
    QLineEdit* txt6 = NuovoTesto(6, 64, QStringLiteral("Inserire gli estremi cronologici (testo)"));
    QLabel* lbl1 = NuovaEtichetta(1, QStringLiteral("Consistenza"));
    QLineEdit* txt1 = NuovoTesto(1, 0, QStringLiteral("Inserire la consistenza"));
    QLabel* lbl0 = NuovaEtichetta(0, QStringLiteral("Denominazione complesso documentario"));
    QLineEdit* txt0 = NuovoTesto(0, 256, QStringLiteral("Inserire denominazione complesso"));

    // On screen: the name, the quantities, the dates, the notes.
    auto* griglia = new QGridLayout(this);
    int riga = 0;
    MettiCampo(griglia, riga, lbl0, txt0);
    MettiCampo(griglia, riga, lbl1, txt1);
    MettiCampo(griglia, riga, lbl2, txt2);
    MettiCampo(griglia, riga, lbl3, txt3);
    MettiCampo(griglia, riga, lbl6, txt6);
    MettiCampo(griglia, riga, lbl4, txt4);
    MettiCampo(griglia, riga, lbl5, txt5);
    MettiCampo(griglia, riga, lbl7, txt7);
    griglia->setColumnStretch(1, 1);
    griglia->setRowStretch(riga, 1);

    CatenaDelFuoco({txt0, txt1, txt2, txt3, txt6, txt4, txt5, txt7});

    // Numbers and years are tested when their box loses the focus.
    for (int n : {1, 2})
        ControllaAllUscita(Testo(n), &EditoreRecord::NumeroErrato);
    for (int n : {4, 5})
        ControllaAllUscita(Testo(n), &EditoreRecord::AnnoErrato);
}

ucRigaVersamento::~ucRigaVersamento() = default;

QList<QWidget*> ucRigaVersamento::Controls() const {
    return EditoreRecord::Controls();
}

void ucRigaVersamento::Init() {
    lIdRiga = 0;
    ID_ComplessoDoc = 0;
    OkNuovo = true;
    OkModifica = false;
    OkCancella = false;
    BloccaCampi();
}

void ucRigaVersamento::Nuovo() {
    Pulisci();
    lIdRiga = 0;
    ID_ComplessoDoc = 0;
    SbloccaCampi();
}

void ucRigaVersamento::Mostra(long IDElem) {
    Pulisci();
    lIdRiga = IDElem;
    QSqlQuery riga = Sessione::cnn->Esegui(SqlMostra, {Id(IDElem)});
    if (!riga.next()) {
        LeggiStato(false, 0);
        BloccaCampi();
        return;
    }
    const auto testo = [&riga](int i) {
        return riga.value(i).toString();
    };
    ImpostaTestoDi(Testo(0), testo(0));
    ImpostaTestoDi(Testo(1), TestoQuantita(riga.value(1)));
    ImpostaTestoDi(Testo(2), TestoQuantita(riga.value(2)));
    ImpostaTestoDi(Testo(3), testo(3));
    ImpostaTestoDi(Testo(6), testo(4));
    ImpostaTestoDi(Testo(4), AnnoDaData(riga.value(5)));
    ImpostaTestoDi(Testo(5), AnnoDaData(riga.value(6)));
    ImpostaTestoDi(Testo(7), testo(7));
    LeggiStato(true, Lungo(riga.value(8)));
    BloccaCampi();
}

void ucRigaVersamento::Modifica() {
    SbloccaCampi();
}

bool ucRigaVersamento::CheckMandatoryFields() {
    return EditoreRecord::CheckMandatoryFields();
}

void ucRigaVersamento::Salva(long IDElem) {
    lIdRiga = IDElem;
    const Connessione& cnn = *Sessione::cnn;
    // Every value is read from its box before the write: a bad one stops everything.
    const QList<QVariant> valori = {TestoODefault(TestoDi(Testo(0))),
                                    NumeroOZero(Trim(TestoDi(Testo(1)))),
                                    NumeroOZero(Trim(TestoDi(Testo(2)))),
                                    TestoInColonna(3),
                                    TestoInColonna(6),
                                    ColonnaAnno(TestoDi(Testo(4)), true),
                                    ColonnaAnno(TestoDi(Testo(5)), false),
                                    TestoInColonna(7),
                                    Id(ID_ComplessoDoc),
                                    Id(IDElem)};
    QSqlQuery esiste = cnn.Esegui(SqlEsiste, {Id(IDElem)});
    if (!esiste.next()) {
        LeggiStato(false, 0);
        BloccaCampi();
        return;
    }
    esiste.finish();
    cnn.EseguiLista(SqlScrivi, valori);
    LeggiStato(true, ID_ComplessoDoc);
    BloccaCampi();
}

void ucRigaVersamento::Annulla() {
    BloccaCampi();
}

QString ucRigaVersamento::LeggiDenominazione() const {
    return TestoDi(Testo(0));
}

void ucRigaVersamento::LeggiStato(bool bTrovata, long lIdComplessoDoc) {
    OkNuovo = true;
    OkModifica = bTrovata;
    OkCancella = bTrovata;
    ID_ComplessoDoc = bTrovata ? lIdComplessoDoc : 0;
}
