// The producers' window "Produttori", opened from the main menu: its three tabs each loaded at
// its first showing, the rows with the name and the dates, the empty tab, the whole road of a
// person, a family and a body (new, every field, the row, edit, cancel, other names, delete),
// Annulla of a new producer on an empty list, a new producer at the end of its list, the
// producers of the demo archive that may and may not be deleted, the complessi of a producer,
// a producer deleted by another workstation while shown, and the boxes of a failed load and
// of a failed delete, on SQLite and on PostgreSQL.

#include "authorities/EditoreProduttore.h"
#include "authorities/frmSoggetti.h"
#include "authorities/ucEnte.h"
#include "authorities/ucFamiglia.h"
#include "authorities/ucPersona.h"
#include "programma/Registro.h"
#include "records/ModelloElenco.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"

#include "AmbienteRecord.h"
#include "DialogoSostituto.h"
#include "Modali.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// A program folder with the bodies' profiles, a fresh database (the demo archive when asked),
// the scripted platform, and the main form after a login on it.
struct Ambiente {
    explicit Ambiente(TipoBackend tipo, bool bDemo = false)
        : banca(tipo,
                bDemo ? QStringList{QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")}
                      : QStringList{}) {
        cartella.CopiaDalSito({QStringLiteral("ProfiliEnti.txt")});
        cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("I"));
        principale = std::make_unique<PrimoMDI>();
        bAperta = AvviaSessione(*principale, banca);
        piattaforma.Svuota();
    }
    ~Ambiente() {
        principale.reset();
        if (Sessione::cnn) {
            Sessione::cnn->Chiudi();
        }
        Sessione::cnn.reset();
    }
    Ambiente(const Ambiente&) = delete;
    Ambiente& operator=(const Ambiente&) = delete;

    const Connessione& Cnn() const { return *Sessione::cnn; }
    QVariant Valore(const QString& sql, std::initializer_list<QVariant> valori) const {
        QSqlQuery query = Cnn().Esegui(sql, valori);
        return query.next() ? query.value(0) : QVariant();
    }
    int Conta(const QString& sql, std::initializer_list<QVariant> valori = {}) const {
        return Valore(QStringLiteral("SELECT COUNT(*) FROM ") + sql, valori).toInt();
    }
    // A producer made behind the window's back: its ID_Soggetto.
    qint64 Produttore(const QString& nome, const char* tipo) const {
        return Cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                               {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                               {nome, QLatin1String(tipo)});
    }
    qint64 IdDi(const QString& nome) const {
        return Valore(QStringLiteral("SELECT ID_Soggetto FROM Soggetti WHERE Denominazione = ?"),
                      {nome})
            .toLongLong();
    }

    // The window, from its menu entry.
    frmSoggetti* Apri() const {
        principale->findChild<QAction*>(QStringLiteral("mnuSoggetti"))->trigger();
        return principale->findChild<frmSoggetti*>();
    }

    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    BancaDatiProva banca;
    std::unique_ptr<PrimoMDI> principale;
    bool bAperta = false;
};

// A stand-in for one of the program's dialogs, registered by name for one test: each opening
// records the session values it found and whether it came up modally, runs the test's action
// and closes. Afterwards the name is free again.
class Sostituto : public DialogoSostituto {
public:
    struct Apertura {
        bool bModale = false;
        QString sTipoAltreDen;
        long lIdAltreDen = 0;
        QString sTipoLink;
        QString sDenomSoggetto;
        long lIdSoggetto = 0;
    };
    explicit Sostituto(QString nome, std::function<void()> azioneDentro = {})
        : DialogoSostituto(std::move(nome), [this, azione = std::move(azioneDentro)](
                                                QDialog& dialogo, const Dialoghi::Argomenti&) {
            aperture.append({QApplication::activeModalWidget() == &dialogo, Sessione::sTipoAltreDen,
                             Sessione::lIdAltreDen, Sessione::sTipoLink, Sessione::sDenomSoggetto,
                             Sessione::lIdSoggetto});
            if (azione) {
                azione();
            }
        }) {}

    QList<Apertura> aperture;
};

// The enabled state of "NuovoSog Modifica Cancella AltreDen MostraLinks" as 0/1.
QString Comandi(const frmSoggetti& f) {
    return Accesi({f.cmdNuovoSog, f.cmdModifica, f.cmdCancella, f.cmdAltreDen, f.cmdMostraLinks});
}

bool Chiaro(const QPushButton* p) {
    return p->palette().color(QPalette::Button) == QApplication::palette().color(QPalette::Base);
}

QStringList Testi(const frmSoggetti& f, int iScheda) {
    QStringList testi;
    for (int i = 0; i < f.Modello(iScheda).Righe(); ++i) {
        testi.append(f.Modello(iScheda).Testo(i));
    }
    return testi;
}

// A box of an editor by its index, whether one line or many.
void Scrivi(const QWidget* editore, int n, const QString& testo) {
    const QString nome = QStringLiteral("Text1(%1)").arg(n);
    if (auto* riga = editore->findChild<QLineEdit*>(nome)) {
        riga->setText(testo);
    } else if (auto* blocco = editore->findChild<QPlainTextEdit*>(nome)) {
        blocco->setPlainText(testo);
    } else {
        QFAIL(qPrintable(nome));
    }
}

QString Leggi(const QWidget* editore, int n) {
    const QString nome = QStringLiteral("Text1(%1)").arg(n);
    if (auto* riga = editore->findChild<QLineEdit*>(nome)) {
        return riga->text();
    }
    if (auto* blocco = editore->findChild<QPlainTextEdit*>(nome)) {
        return blocco->toPlainText();
    }
    return QStringLiteral("<nessuna casella %1>").arg(n);
}

// What a kind of producer is to its road: tab, letter, table, editor, the fields to fill and
// the tail of its row.
struct Strada {
    int iScheda;
    const char* sLettera;
    const char* sTabella;
    const char* sModo;
    const char* sDenominazioni;
    const char* sChiave;
};

EditoreProduttore* EditoreDi(const frmSoggetti& f, int iScheda) {
    if (iScheda == frmSoggetti::Persone) {
        return f.fraPersona;
    }
    if (iScheda == frmSoggetti::Famiglie) {
        return f.fraFamiglia;
    }
    return f.fraEnte;
}

} // namespace

class TestProduttori : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() { Sessione::bFrmSoggettiAperto = false; }

    void siApreDalMenuConLeTreSchedeEUnaSchedaVuotaHaSoloNuovo_data() { AggiungiBackend(); }
    void siApreDalMenuConLeTreSchedeEUnaSchedaVuotaHaSoloNuovo();
    void leRigheMostranoNomeEDateELoZeroNonAggiungeNulla_data() { AggiungiBackend(); }
    void leRigheMostranoNomeEDateELoZeroNonAggiungeNulla();
    void ogniSchedaSiCaricaUnaVoltaSolaPerApertura_data() { AggiungiBackend(); }
    void ogniSchedaSiCaricaUnaVoltaSolaPerApertura();
    void laStradaDiUnaPersona_data() { AggiungiBackend(); }
    void laStradaDiUnaPersona();
    void laStradaDiUnaFamiglia_data() { AggiungiBackend(); }
    void laStradaDiUnaFamiglia();
    void laStradaDiUnEnte_data() { AggiungiBackend(); }
    void laStradaDiUnEnte();
    void annullaDiUnNuovoSuUnaListaVuotaLasciaLEditoreVuoto_data() { AggiungiBackend(); }
    void annullaDiUnNuovoSuUnaListaVuotaLasciaLEditoreVuoto();
    void unaNuovaPersonaVaInFondoAllaListaAncheSeInOrdineDiNome_data() { AggiungiBackend(); }
    void unaNuovaPersonaVaInFondoAllaListaAncheSeInOrdineDiNome();
    void unProduttoreLegatoAUnComplessoNonSiCancellaUnoLegatoSoloAUnUnitaSi_data() {
        AggiungiBackend();
    }
    void unProduttoreLegatoAUnComplessoNonSiCancellaUnoLegatoSoloAUnUnitaSi();
    void iComplessiDelProduttoreSiApronoPerNomeESenzaFinestraNonSuccedeNulla_data() {
        AggiungiBackend();
    }
    void iComplessiDelProduttoreSiApronoPerNomeESenzaFinestraNonSuccedeNulla();
    void ilVisualizzatoreMostraIComplessiDelProduttoreENeCancellaUno_data() { AggiungiBackend(); }
    void ilVisualizzatoreMostraIComplessiDelProduttoreENeCancellaUno();
    void iComandiRestanoInVistaAncheInUnaFinestraPiccola();
    void unProduttoreCancellatoDaUnAltraPostazioneMentreEMostrato_data() { AggiungiBackend(); }
    void unProduttoreCancellatoDaUnAltraPostazioneMentreEMostrato();
    void unaListaCheNonSiLeggeDaErroreU5EUnaCancellazioneFallitaErroreR4_data() {
        AggiungiBackend();
    }
    void unaListaCheNonSiLeggeDaErroreU5EUnaCancellazioneFallitaErroreR4();

private:
    // The road of a kind: the fields filled by compila, the name and the row they give, and
    // the columns of the kind's row (and of Soggetti, "Soggetti.Redattore") as they are stored.
    void Percorri(const Strada& strada, const std::function<void(const QWidget*)>& compila,
                  const QString& sNome, const QString& sRiga, const QStringList& colonne);
};

void TestProduttori::siApreDalMenuConLeTreSchedeEUnaSchedaVuotaHaSoloNuovo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    QVERIFY(a.bAperta);
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    QVERIFY(Sessione::bFrmSoggettiAperto);
    QCOMPARE(f->objectName(), QStringLiteral("frmSoggetti"));
    QCOMPARE(a.principale->Area()->subWindowList().size(), 1);
    QCOMPARE(a.principale->Area()->subWindowList()[0]->windowTitle(), QStringLiteral("Produttori"));
    QCOMPARE(f->SSTab1->count(), 3);
    QCOMPARE(f->SSTab1->tabText(0), QStringLiteral("Persone"));
    QCOMPARE(f->SSTab1->tabText(1), QStringLiteral("Famiglie"));
    QCOMPARE(f->SSTab1->tabText(2), QStringLiteral("Enti"));
    QCOMPARE(f->cmdNuovoSog->text(), QStringLiteral("Nuovo Soggetto"));
    QCOMPARE(f->cmdModifica->text(), QStringLiteral("Modifica scheda"));
    QCOMPARE(f->cmdCancella->text(), QStringLiteral("Cancella Produttori"));
    QCOMPARE(f->cmdAltreDen->text(), QStringLiteral("Altre Denominazioni"));
    QCOMPARE(f->cmdMostraLinks->text(), QStringLiteral("Compl. documentari"));
    QCOMPARE(f->cmdConferma->text(), QStringLiteral("Conferma dati"));
    QCOMPARE(f->cmdAnnulla->text(), QStringLiteral("Annulla"));
    QCOMPARE(f->Modello(0).headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Cognome e Nome (Nascita - Morte)"));
    QVERIFY(f->findChild<QTreeView*>(QStringLiteral("lvwDB(0)")));

    // An empty tab: the editor shows nothing, New alone is enabled.
    QVERIFY(f->Caricata(0));
    QVERIFY(!f->Caricata(1));
    QVERIFY(!f->Caricata(2));
    QCOMPARE(f->sTipo, QStringLiteral("persona"));
    QVERIFY(!f->fraPersona->isHidden());
    QVERIFY(f->fraFamiglia->isHidden());
    QCOMPARE(Leggi(f->fraPersona, 0), QString());
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));
    QVERIFY(!f->cmdConferma->isEnabled());
    QVERIFY(!f->cmdAnnulla->isEnabled());
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    f->SSTab1->setCurrentIndex(2);
    QVERIFY(f->Caricata(2));
    QVERIFY(!f->Caricata(1));
    QCOMPARE(f->sTipo, QStringLiteral("ente"));
    QVERIFY(!f->fraEnte->isHidden());
    QVERIFY(f->fraPersona->isHidden());
    QCOMPARE(f->Modello(2).headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Denominazione, Sede (Estremi cronologici)"));
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));
    f->SSTab1->setCurrentIndex(1);
    QCOMPARE(f->sTipo, QStringLiteral("famiglia"));
    QCOMPARE(f->Modello(1).headerData(0, Qt::Horizontal).toString(),
             QStringLiteral("Denominazione, Titoli (Estremi cronologici)"));
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));

    // A second click on the menu changes nothing; Escape closes the window and clears its flag.
    a.principale->findChild<QAction*>(QStringLiteral("mnuSoggetti"))->trigger();
    QCOMPARE(a.principale->findChild<frmSoggetti*>(), f.data());
    QTest::keyClick(f->Lista(1), Qt::Key_Escape);
    QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    QVERIFY(!Sessione::bFrmSoggettiAperto);
    f = a.Apri();
    QVERIFY(f);
    QVERIFY(Sessione::bFrmSoggettiAperto);
    // Another window of the menu closes it.
    a.principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    QVERIFY(!Sessione::bFrmSoggettiAperto);
}

void TestProduttori::leRigheMostranoNomeEDateELoZeroNonAggiungeNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    a.Cnn().Esegui(
        QStringLiteral("UPDATE Persone SET LuogoNascita = ?, DataNascita = ?, "
                       "LuogoMorte = ?, DataMorte = ? WHERE ID_Soggetto = ?"),
        {QStringLiteral("Roma"), 19000201, QStringLiteral("Milano"), 19700403, L(rossi)});
    const qint64 bianchi = a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    a.Cnn().Esegui(
        QStringLiteral("UPDATE Persone SET DataNascita = 0, LuogoMorte = ? WHERE ID_Soggetto = ?"),
        {QStringLiteral("Pisa"), L(bianchi)});
    a.Produttore(QStringLiteral("Conti Lia"), "P");
    const qint64 guinigi = a.Produttore(QStringLiteral("Guinigi"), "F");
    a.Cnn().Esegui(QStringLiteral("UPDATE Famiglie SET Titoli = ?, DescrizioneEstremi = ? WHERE "
                                  "ID_Soggetto = ?"),
                   {QStringLiteral("conti"), QStringLiteral("(1300-1500)"), L(guinigi)});
    a.Produttore(QStringLiteral("Arnolfini"), "F");
    const qint64 spedale = a.Produttore(QStringLiteral("Spedale"), "E");
    a.Cnn().Esegui(QStringLiteral("UPDATE Enti SET Sede = ?, DescrizioneEstremi = ? WHERE "
                                  "ID_Soggetto = ?"),
                   {QStringLiteral("Altopascio"), QStringLiteral("sec. XII"), L(spedale)});
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    QCOMPARE(Testi(*f, 0),
             QStringList({QStringLiteral("Bianchi Anna, ( - Pisa)"), QStringLiteral("Conti Lia"),
                          QStringLiteral("Rossi Mario, (Roma 01/02/1900 - Milano "
                                         "03/04/1970)")}));
    QCOMPARE(f->Modello(0).data(f->Modello(0).index(2), ModelloElenco::RuoloChiave).toString(),
             QStringLiteral("ID%1").arg(rossi));
    // The first row is shown.
    QCOMPARE(f->aId[0], bianchi);
    QCOMPARE(f->Lista(0)->currentIndex().row(), 0);
    QCOMPARE(Leggi(f->fraPersona, 0), QStringLiteral("Bianchi Anna"));
    QCOMPARE(Comandi(*f), QStringLiteral("11110"));
    f->SSTab1->setCurrentIndex(1);
    QCOMPARE(Testi(*f, 1), QStringList({QStringLiteral("Arnolfini,  ()"),
                                        QStringLiteral("Guinigi, conti (1300-1500)")}));
    f->SSTab1->setCurrentIndex(2);
    QCOMPARE(Testi(*f, 2), QStringList({QStringLiteral("Spedale, Altopascio (sec. XII)")}));
    // A click on a row shows it.
    f->SSTab1->setCurrentIndex(0);
    f->Lista(0)->setCurrentIndex(f->Modello(0).index(2));
    QCOMPARE(f->aId[0], rossi);
    QCOMPARE(f->aChiave[0], QStringLiteral("ID%1").arg(rossi));
    QCOMPARE(Leggi(f->fraPersona, 0), QStringLiteral("Rossi Mario"));
    QCOMPARE(Leggi(f->fraPersona, 2), QStringLiteral("01/02/1900"));
}

void TestProduttori::ogniSchedaSiCaricaUnaVoltaSolaPerApertura() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Produttore(QStringLiteral("Rossi Mario"), "P");
    a.Produttore(QStringLiteral("Guinigi"), "F");
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    f->SSTab1->setCurrentIndex(1);
    QCOMPARE(f->Modello(1).Righe(), 1);
    // Another workstation adds a person and a family.
    a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    a.Produttore(QStringLiteral("Arnolfini"), "F");
    f->SSTab1->setCurrentIndex(0);
    f->SSTab1->setCurrentIndex(1);
    QCOMPARE(Testi(*f, 0), QStringList({QStringLiteral("Rossi Mario")}));
    QCOMPARE(f->Modello(1).Righe(), 1);
    // Opened again, the window shows them.
    f->close();
    QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    f = a.Apri();
    QVERIFY(f);
    QCOMPARE(Testi(*f, 0),
             QStringList({QStringLiteral("Bianchi Anna"), QStringLiteral("Rossi Mario")}));
    f->SSTab1->setCurrentIndex(1);
    QCOMPARE(f->Modello(1).Righe(), 2);
}

void TestProduttori::Percorri(const Strada& strada,
                              const std::function<void(const QWidget*)>& compila,
                              const QString& sNome, const QString& sRiga,
                              const QStringList& colonne) {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    f->SSTab1->setCurrentIndex(strada.iScheda);
    EditoreProduttore* editore = EditoreDi(*f, strada.iScheda);
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));

    // New: every field, the longest texts, quotes and accents.
    f->cmdNuovoSog->click();
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    QCOMPARE(Comandi(*f), QStringLiteral("00000"));
    QVERIFY(!f->SSTab1->isEnabled());
    QVERIFY(!f->Lista(strada.iScheda)->isEnabled());
    QVERIFY(f->cmdConferma->isEnabled());
    QVERIFY(f->cmdAnnulla->isEnabled());
    compila(editore);
    f->cmdConferma->click();
    QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    const qint64 lId = f->aId[strada.iScheda];
    QVERIFY(lId > 0);
    QCOMPARE(a.Valore(QStringLiteral("SELECT TipoSoggetto FROM Soggetti WHERE ID_Soggetto = ?"),
                      {L(lId)})
                 .toString(),
             QLatin1String(strada.sLettera));
    QCOMPARE(a.Conta(QLatin1String(strada.sTabella) + QStringLiteral(" WHERE ID_Soggetto = ?"),
                     {L(lId)}),
             1);
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Soggetti WHERE ID_Soggetto = ?"),
                      {L(lId)})
                 .toString(),
             sNome);
    // Every column as it was typed, converted where it is a date or a year.
    for (qsizetype i = 0; i + 1 < colonne.size(); i += 2) {
        const QStringList tabellaColonna = colonne[i].split(u'.');
        const QString sTabella =
            tabellaColonna.size() > 1 ? tabellaColonna[0] : QLatin1String(strada.sTabella);
        QCOMPARE(a.Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Soggetto = ?")
                              .arg(tabellaColonna.last(), sTabella),
                          {L(lId)})
                     .toString(),
                 colonne[i + 1]);
    }
    // The composed row at the end of the list, chosen.
    QCOMPARE(Testi(*f, strada.iScheda), QStringList({sRiga}));
    QCOMPARE(f->aChiave[strada.iScheda], QStringLiteral("ID%1").arg(lId));
    QCOMPARE(f->Lista(strada.iScheda)->currentIndex().row(), 0);
    QCOMPARE(Comandi(*f), QStringLiteral("11110"));
    QVERIFY(!Chiaro(f->cmdAltreDen));
    QVERIFY(!Chiaro(f->cmdMostraLinks));
    QVERIFY(f->SSTab1->isEnabled());
    QVERIFY(!f->cmdConferma->isEnabled());

    // The list read anew gives the same row.
    f->close();
    QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    f = a.Apri();
    QVERIFY(f);
    f->SSTab1->setCurrentIndex(strada.iScheda);
    editore = EditoreDi(*f, strada.iScheda);
    QCOMPARE(Testi(*f, strada.iScheda), QStringList({sRiga}));
    QCOMPARE(Leggi(editore, 0), sNome);

    // Edit, confirmed: the row follows.
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    QCOMPARE(Comandi(*f), QStringLiteral("00000"));
    const QString sNuovoNome = QStringLiteral("Nuovo nome d'\"esempio\"");
    Scrivi(editore, 0, sNuovoNome);
    f->cmdConferma->click();
    QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    QVERIFY(Testi(*f, strada.iScheda)[0].startsWith(sNuovoNome + u','));
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Soggetti WHERE ID_Soggetto = ?"),
                      {L(lId)})
                 .toString(),
             sNuovoNome);
    // Edit, cancelled: the record as it was.
    f->cmdModifica->click();
    Scrivi(editore, 0, QStringLiteral("Lasciato"));
    f->cmdAnnulla->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(Leggi(editore, 0), sNuovoNome);
    QVERIFY(Testi(*f, strada.iScheda)[0].startsWith(sNuovoNome + u','));
    QCOMPARE(Comandi(*f), QStringLiteral("11110"));

    // Other names: the dialog in the kind's mode with the kind's own key, then the colour.
    const qint64 lChiave =
        a.Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Soggetto = ?")
                     .arg(QLatin1String(strada.sChiave), QLatin1String(strada.sTabella)),
                 {L(lId)})
            .toLongLong();
    {
        Sostituto altre(QStringLiteral("frmAltreDenominazioni"), [&] {
            a.Cnn().Esegui(
                QStringLiteral("INSERT INTO %1 (%2, AltraDenominazione) VALUES (?, ?)")
                    .arg(QLatin1String(strada.sDenominazioni), QLatin1String(strada.sChiave)),
                {L(lChiave), QStringLiteral("Altro nome")});
        });
        f->cmdAltreDen->click();
        QCOMPARE(altre.aperture.size(), 1);
        QVERIFY(altre.aperture[0].bModale);
        QCOMPARE(altre.aperture[0].sTipoAltreDen, QLatin1String(strada.sModo));
        QCOMPARE(altre.aperture[0].lIdAltreDen, static_cast<long>(lChiave));
        QVERIFY(Chiaro(f->cmdAltreDen));
    }

    // Delete: the question, then the kind's row and its Soggetti row are gone.
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTitolo,
             QStringLiteral("Cancella Soggetto: ") + sNuovoNome);
    QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Domanda);
    QCOMPARE(a.Conta(QLatin1String(strada.sTabella) + QStringLiteral(" WHERE ID_Soggetto = ?"),
                     {L(lId)}),
             0);
    QCOMPARE(a.Conta(QStringLiteral("Soggetti WHERE ID_Soggetto = ?"), {L(lId)}), 0);
    QCOMPARE(f->Modello(strada.iScheda).Righe(), 0);
    QCOMPARE(f->aId[strada.iScheda], 0);
    QCOMPARE(f->aChiave[strada.iScheda], QString());
    QCOMPARE(Leggi(editore, 0), QString());
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));
}

void TestProduttori::laStradaDiUnaPersona() {
    const QString nome = Lungo(QStringLiteral("Àlberti d'Orsù \"Nino\" "), 256);
    const QString nascita = Lungo(QStringLiteral("Città d'Ìschia "), 32);
    const QString morte = Lungo(QStringLiteral("Forlì \"vecchia\" "), 32);
    Percorri({frmSoggetti::Persone, "P", "Persone", "PE", "PersoneDenominazioni", "ID_Persona"},
             [&](const QWidget* e) {
                 Scrivi(e, 0, nome);
                 Scrivi(e, 1, Lungo(QStringLiteral("Notaio \"regio\" "), 32));
                 Scrivi(e, 2, QStringLiteral("01/01/1000"));
                 Scrivi(e, 3, QStringLiteral("31/12/9999"));
                 Scrivi(e, 4, nascita);
                 Scrivi(e, 5, morte);
                 Scrivi(e, 6, Lungo(QStringLiteral("Lucca e l'Oltreserchio "), 64));
                 Scrivi(e, 7, QStringLiteral("1000"));
                 Scrivi(e, 8, QStringLiteral("9999"));
                 Scrivi(e, 9, Lungo(QStringLiteral("secc. XI-XX \"circa\" "), 64));
                 Scrivi(e, 10, Lungo(QStringLiteral("Nacque a Lucca; l'anno è incerto. "), 1024));
                 Scrivi(e, 11, Lungo(QStringLiteral("ASLu, \"Notarile\" "), 1024));
                 Scrivi(e, 12, Lungo(QStringLiteral("Da rivedere l'ordinamento. "), 1024));
                 Scrivi(e, 14, Lungo(QStringLiteral("Maria d'Àngelo "), 64));
             },
             nome,
             nome.trimmed() + QStringLiteral(", (") + nascita.trimmed() +
                 QStringLiteral(" 01/01/1000 - ") + morte + QStringLiteral(" 31/12/9999)"),
             {QStringLiteral("Nome"), nome, QStringLiteral("LuogoNascita"), nascita,
              QStringLiteral("LuogoMorte"), morte, QStringLiteral("DataNascita"),
              QStringLiteral("10000101"), QStringLiteral("DataMorte"), QStringLiteral("99991231"),
              QStringLiteral("DataInizio"), QStringLiteral("10000101"), QStringLiteral("DataFine"),
              QStringLiteral("99991231"), QStringLiteral("Storia"),
              Lungo(QStringLiteral("Nacque a Lucca; l'anno è incerto. "), 1024),
              QStringLiteral("Soggetti.Redattore"), Lungo(QStringLiteral("Maria d'Àngelo "), 64)});
}

void TestProduttori::laStradaDiUnaFamiglia() {
    const QString nome = Lungo(QStringLiteral("Guinigi dell'Àrco \"antichi\" "), 256);
    const QString titoli = Lungo(QStringLiteral("conti \"palatini\" "), 32);
    const QString estremi = Lungo(QStringLiteral("secc. XIII-XIX d'epoca "), 64);
    Percorri({frmSoggetti::Famiglie, "F", "Famiglie", "FA", "FamiglieDenominazioni", "ID_Famiglia"},
             [&](const QWidget* e) {
                 Scrivi(e, 0, nome);
                 Scrivi(e, 1, titoli);
                 Scrivi(e, 2, QStringLiteral("1000"));
                 Scrivi(e, 3, QStringLiteral("9999"));
                 Scrivi(e, 4, estremi);
                 Scrivi(e, 5, Lungo(QStringLiteral("Lucca e Pisa, l'Oltreserchio "), 64));
                 Scrivi(e, 6, Lungo(QStringLiteral("Famiglia di mercanti \"setaioli\". "), 1024));
                 Scrivi(e, 7, Lungo(QStringLiteral("Bongi, Inventario, è citata. "), 1024));
                 Scrivi(e, 8, Lungo(QStringLiteral("Da rivedere. "), 1024));
                 Scrivi(e, 10, Lungo(QStringLiteral("Niccolò Tommaseo "), 64));
             },
             nome,
             nome + QStringLiteral(", ") + titoli.trimmed() + QStringLiteral(" (") +
                 estremi.trimmed() + u')',
             {QStringLiteral("Nome"), nome, QStringLiteral("Titoli"), titoli,
              QStringLiteral("DescrizioneEstremi"), estremi, QStringLiteral("DataInizio"),
              QStringLiteral("10000101"), QStringLiteral("DataFine"), QStringLiteral("99991231"),
              QStringLiteral("Note"), Lungo(QStringLiteral("Bongi, Inventario, è citata. "), 1024),
              QStringLiteral("Soggetti.Redattore"),
              Lungo(QStringLiteral("Niccolò Tommaseo "), 64)});
}

void TestProduttori::laStradaDiUnEnte() {
    const QString nome = Lungo(QStringLiteral("Spedale di San Jacopo d'Altopascio \"Tau\" "), 256);
    const QString sede = Lungo(QStringLiteral("Altopascio, Città \"vecchia\" "), 64);
    const QString estremi = Lungo(QStringLiteral("sec. XI - 1773 (soppressione) "), 64);
    Percorri({frmSoggetti::Enti, "E", "Enti", "EN", "EntiDenominazioni", "ID_Ente"},
             [&](const QWidget* e) {
                 Scrivi(e, 0, nome);
                 Scrivi(e, 1, sede);
                 Scrivi(e, 2, QStringLiteral("1000"));
                 Scrivi(e, 3, QStringLiteral("9999"));
                 Scrivi(e, 4, estremi);
                 Scrivi(e, 5, Lungo(QStringLiteral("Valdinievole e l'Ospedaletto "), 64));
                 Scrivi(e, 8, Lungo(QStringLiteral("Ordine ospedaliero \"del Tau\". "), 1024));
                 Scrivi(e, 9, Lungo(QStringLiteral("Archivio, l'inventario è a stampa. "), 1024));
                 Scrivi(e, 10, Lungo(QStringLiteral("Da rivedere. "), 1024));
                 Scrivi(e, 12, Lungo(QStringLiteral("Salvatore Bongi "), 64));
                 auto* profili = e->findChild<QComboBox*>(QStringLiteral("cmbProfili"));
                 QVERIFY(profili && profili->count() > 0);
                 profili->setCurrentIndex(profili->count() - 1);
             },
             nome,
             nome + QStringLiteral(", ") + sede.trimmed() + QStringLiteral(" (") +
                 estremi.trimmed() + u')',
             {QStringLiteral("Denominazione"), nome, QStringLiteral("Sede"), sede,
              QStringLiteral("DescrizioneEstremi"), estremi, QStringLiteral("DataInizio"),
              QStringLiteral("10000101"), QStringLiteral("DataFine"), QStringLiteral("99991231"),
              QStringLiteral("NoteDirezione"), Lungo(QStringLiteral("Da rivedere. "), 1024),
              QStringLiteral("Soggetti.Redattore"), Lungo(QStringLiteral("Salvatore Bongi "), 64)});
}

void TestProduttori::annullaDiUnNuovoSuUnaListaVuotaLasciaLEditoreVuoto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Produttore(QStringLiteral("Rossi Mario"), "P");
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    QCOMPARE(Leggi(f->fraPersona, 0), QStringLiteral("Rossi Mario"));
    f->SSTab1->setCurrentIndex(1);
    f->cmdNuovoSog->click();
    Scrivi(f->fraFamiglia, 0, QStringLiteral("Lasciata a metà"));
    f->cmdAnnulla->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(Leggi(f->fraFamiglia, 0), QString());
    QCOMPARE(f->aId[1], 0);
    QCOMPARE(f->aChiave[1], QString());
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));
    QVERIFY(f->SSTab1->isEnabled());
    QVERIFY(!f->cmdAnnulla->isEnabled());
    QCOMPARE(a.Conta(QStringLiteral("Soggetti")), 1);
    // The person's tab kept its record.
    f->SSTab1->setCurrentIndex(0);
    QCOMPARE(Leggi(f->fraPersona, 0), QStringLiteral("Rossi Mario"));
}

void TestProduttori::unaNuovaPersonaVaInFondoAllaListaAncheSeInOrdineDiNome() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    // The site's range of keys, which the new producer's key falls in.
    ScriviIdentita(a.Cnn(), {QStringLiteral("ASLU"), QString(), 700000, 799999});
    a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    a.Produttore(QStringLiteral("Rossi Mario"), "P");
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    f->cmdNuovoSog->click();
    Scrivi(f->fraPersona, 0, QStringLiteral("Abati Nino"));
    Scrivi(f->fraPersona, 1, QStringLiteral("notaio"));
    Scrivi(f->fraPersona, 6, QStringLiteral("Lucca"));
    Scrivi(f->fraPersona, 7, QStringLiteral("1500"));
    Scrivi(f->fraPersona, 9, QStringLiteral("sec. XVI"));
    Scrivi(f->fraPersona, 14, QStringLiteral("Maria Rossi"));
    f->cmdConferma->click();
    QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    QCOMPARE(Testi(*f, 0),
             QStringList({QStringLiteral("Bianchi Anna"), QStringLiteral("Rossi Mario"),
                          QStringLiteral("Abati Nino")}));
    QCOMPARE(f->Lista(0)->currentIndex().row(), 2);
    QCOMPARE(f->Lista(0)->selectionModel()->selectedRows().size(), 1);
    QCOMPARE(f->aId[0], a.IdDi(QStringLiteral("Abati Nino")));
    QVERIFY2(f->aId[0] > a.IdDi(QStringLiteral("Rossi Mario")) && f->aId[0] <= 799999,
             qPrintable(QString::number(f->aId[0])));
    QVERIFY(a.IdDi(QStringLiteral("Bianchi Anna")) >= 700000);
}

void TestProduttori::unProduttoreLegatoAUnComplessoNonSiCancellaUnoLegatoSoloAUnUnitaSi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend, true);
    QVERIFY(a.bAperta);
    const qint64 guinigi = a.IdDi(QStringLiteral("Guinigi Paolo"));
    const qint64 bardelli = a.IdDi(QStringLiteral("Bardelli Ugo"));
    QVERIFY(guinigi > 0 && bardelli > 0);
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    const int iGuinigi = f->Modello(0).RigaDi(guinigi);
    const int iBardelli = f->Modello(0).RigaDi(bardelli);
    QVERIFY(iGuinigi >= 0 && iBardelli >= 0);
    QVERIFY(f->Modello(0).Testo(iGuinigi).startsWith(QStringLiteral("Guinigi Paolo, (Lucca")));

    // Tied to a complesso: not deleted, its complessi may be seen; it has other names.
    f->SelezionaRiga(iGuinigi);
    QCOMPARE(Comandi(*f), QStringLiteral("11011"));
    QVERIFY(Chiaro(f->cmdMostraLinks));
    QVERIFY(Chiaro(f->cmdAltreDen));

    // Tied only to a unit: deleted, with its rows.
    f->SelezionaRiga(iBardelli);
    QCOMPARE(Comandi(*f), QStringLiteral("11110"));
    QVERIFY(!Chiaro(f->cmdMostraLinks));
    const int iRighe = f->Modello(0).Righe();
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTesto,
             QStringLiteral("Sei sicuro di voler cancellare la Persona?"));
    QCOMPARE(a.Conta(QStringLiteral("Soggetti WHERE ID_Soggetto = ?"), {L(bardelli)}), 0);
    QCOMPARE(a.Conta(QStringLiteral("Persone WHERE ID_Soggetto = ?"), {L(bardelli)}), 0);
    QCOMPARE(
        a.Conta(QStringLiteral("DatiInventarialiSoggetti WHERE ID_Soggetto = ?"), {L(bardelli)}),
        0);
    QCOMPARE(f->Modello(0).Righe(), iRighe - 1);
    QCOMPARE(f->Modello(0).RigaDi(bardelli), -1);
    // The first row is chosen and shown.
    QCOMPARE(f->Lista(0)->currentIndex().row(), 0);
    QCOMPARE(f->aId[0], f->Modello(0).Id(0));

    // No, on a body: nothing changes.
    f->SSTab1->setCurrentIndex(2);
    const qint64 ente = f->aId[2];
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::No};
    QCOMPARE(f->cmdCancella->isEnabled(), false); // the demo's bodies all have complessi
    f->Cancella();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTesto,
             QStringLiteral("Sei sicuro di voler cancellare l'Ente?"));
    QCOMPARE(f->aId[2], ente);
    QCOMPARE(a.Conta(QStringLiteral("Soggetti WHERE ID_Soggetto = ?"), {L(ente)}), 1);
}

// The main form at the size it opens with: the form of a person is taller than the room left, so
// it scrolls, and the window's commands stay where they can be seen and clicked.
void TestProduttori::iComandiRestanoInVistaAncheInUnaFinestraPiccola() {
    RICHIEDI_BACKEND(TipoBackend::SQLite);
    Ambiente a(TipoBackend::SQLite);
    QVERIFY(a.bAperta);
    a.principale->show();
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    QMdiSubWindow* sotto = a.principale->Area()->subWindowList().value(0);
    QVERIFY(sotto);
    sotto->showMaximized();
    QApplication::processEvents();
    QWidget* vista = a.principale->Area()->viewport();
    for (QPushButton* comando : {f->cmdNuovoSog, f->cmdModifica, f->cmdCancella, f->cmdAltreDen,
                                 f->cmdMostraLinks, f->cmdConferma, f->cmdAnnulla}) {
        const QRect rect(comando->mapTo(vista, QPoint(0, 0)), comando->size());
        QVERIFY2(vista->rect().contains(rect), qPrintable(comando->objectName()));
    }
}

void TestProduttori::iComplessiDelProduttoreSiApronoPerNomeESenzaFinestraNonSuccedeNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend, true);
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    f->SSTab1->setCurrentIndex(1);
    const qint64 guinigi = a.IdDi(QStringLiteral("Guinigi"));
    f->SelezionaRiga(f->Modello(1).RigaDi(guinigi));
    QVERIFY(f->cmdMostraLinks->isEnabled());
    // Without the viewer registered, nothing visible happens.
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkSCD"));
    f->cmdMostraLinks->click();
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    const QWidgetList finestre = QApplication::topLevelWidgets();
    QCOMPARE(std::count_if(finestre.cbegin(), finestre.cend(),
                           [](const QWidget* w) { return qobject_cast<const QDialog*>(w); }),
             0);
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    {
        Sostituto collegati(QStringLiteral("frmMostraLinkSCD"));
        f->cmdMostraLinks->click();
        QCOMPARE(collegati.aperture.size(), 1);
        QVERIFY(collegati.aperture[0].bModale);
        QCOMPARE(collegati.aperture[0].sTipoLink, QStringLiteral("0"));
        QCOMPARE(collegati.aperture[0].sDenomSoggetto, QStringLiteral("Guinigi"));
        QCOMPARE(collegati.aperture[0].lIdSoggetto, static_cast<long>(guinigi));
    }
}

void TestProduttori::ilVisualizzatoreMostraIComplessiDelProduttoreENeCancellaUno() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend, true);
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    f->SSTab1->setCurrentIndex(1);
    const qint64 guinigi = a.IdDi(QStringLiteral("Guinigi"));
    f->SelezionaRiga(f->Modello(1).RigaDi(guinigi));
    const int iComplessi =
        a.Conta(QStringLiteral("ComplessiDocSoggetti WHERE ID_Soggetto = ?"), {L(guinigi)});
    QVERIFY(iComplessi > 0);
    // The viewer of the program: the family's complessi, the first deleted, closed by Escape.
    int iVoci = -1;
    QString sDenominazione;
    AlComparire(QStringLiteral("frmMostraLinkSCD"), [&](QWidget* visualizzatore) {
        auto* lista = visualizzatore->findChild<QTreeWidget*>(QStringLiteral("lvwDB"));
        iVoci = lista->topLevelItemCount();
        sDenominazione = visualizzatore->findChild<QLineEdit*>(QStringLiteral("Text1"))->text();
        lista->setCurrentItem(lista->topLevelItem(0));
        a.piattaforma.risposte = {Risposta::Si};
        visualizzatore->findChild<QPushButton*>(QStringLiteral("cmdCancella"))->click();
        QTest::keyClick(visualizzatore, Qt::Key_Escape);
    });
    f->cmdMostraLinks->click();
    QCOMPARE(iVoci, iComplessi);
    QCOMPARE(sDenominazione, QStringLiteral("Guinigi"));
    QCOMPARE(a.Conta(QStringLiteral("ComplessiDocSoggetti WHERE ID_Soggetto = ?"), {L(guinigi)}),
             iComplessi - 1);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestProduttori::unProduttoreCancellatoDaUnAltraPostazioneMentreEMostrato() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 bianchi = a.Produttore(QStringLiteral("Bianchi Anna"), "P");
    const qint64 rossi = a.Produttore(QStringLiteral("Rossi Mario"), "P");
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    f->SelezionaRiga(1);
    QCOMPARE(f->aId[0], rossi);

    // An edit of it writes nothing, says so, and its row goes.
    f->cmdModifica->click();
    Scrivi(f->fraPersona, 0, QStringLiteral("Rossi Mario Giuseppe"));
    Scrivi(f->fraPersona, 1, QStringLiteral("notaio"));
    Scrivi(f->fraPersona, 6, QStringLiteral("Lucca"));
    Scrivi(f->fraPersona, 7, QStringLiteral("1500"));
    Scrivi(f->fraPersona, 9, QStringLiteral("sec. XVI"));
    Scrivi(f->fraPersona, 14, QStringLiteral("Maria Rossi"));
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Persone WHERE ID_Soggetto = ?"), {L(rossi)});
    f->cmdConferma->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Esclamazione);
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(a.Conta(QStringLiteral("Soggetti")), 1);
    QCOMPARE(Testi(*f, 0), QStringList({QStringLiteral("Bianchi Anna")}));
    QCOMPARE(f->aId[0], bianchi);
    QCOMPARE(Leggi(f->fraPersona, 0), QStringLiteral("Bianchi Anna"));

    // Its delete, once another workstation deleted it: no error, the row goes.
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Persone WHERE ID_Soggetto = ?"), {L(bianchi)});
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(f->Modello(0).Righe(), 0);
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));

    // A click on a row deleted elsewhere shows an empty record with New alone.
    const qint64 conti = a.Produttore(QStringLiteral("Conti Lia"), "F");
    f->SSTab1->setCurrentIndex(1);
    QCOMPARE(f->aId[1], conti);
    a.Cnn().Esegui(QStringLiteral("DELETE FROM Famiglie WHERE ID_Soggetto = ?"), {L(conti)});
    f->SelezionaRiga(0);
    QCOMPARE(Leggi(f->fraFamiglia, 0), QString());
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));
}

void TestProduttori::unaListaCheNonSiLeggeDaErroreU5EUnaCancellazioneFallitaErroreR4() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Produttore(QStringLiteral("Spedale"), "E");
    QPointer<frmSoggetti> f = a.Apri();
    QVERIFY(f);
    a.Cnn().Esegui(QStringLiteral("ALTER TABLE Famiglie RENAME TO FamiglieAltrove"));
    f->SSTab1->setCurrentIndex(1);
    // The list's box; then the editor, which cannot read its table either, says so.
    QCOMPARE(a.piattaforma.Messaggi().size(), 2);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTitolo, QStringLiteral("Errore U5"));
    QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Critica);
    QVERIFY(a.piattaforma.Messaggi()[0].sTesto.startsWith(QStringLiteral("frmSoggetti\n")));
    QCOMPARE(f->Modello(1).Righe(), 0);

    f->SSTab1->setCurrentIndex(2);
    QCOMPARE(f->cmdCancella->isEnabled(), true);
    a.Cnn().Esegui(QStringLiteral("ALTER TABLE Enti RENAME TO EntiAltrove"));
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 2);
    QCOMPARE(a.piattaforma.Messaggi()[1].sTitolo, QStringLiteral("Errore R4"));
    QCOMPARE(a.piattaforma.Messaggi()[1].icona, Icona::Critica);
    QVERIFY(a.piattaforma.Messaggi()[1].sTesto.startsWith(QStringLiteral("frmSoggetti\n")));
    QCOMPARE(Testi(*f, 2).size(), 1);
}

QTEST_MAIN(TestProduttori)
#include "tst_produttori.moc"
