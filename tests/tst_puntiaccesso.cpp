// The windows of the access points, opened from the main menu: "Persone" (personal names),
// "Toponimi" and "Titolari" (seal holders). Their captions, header, commands and editor fields;
// an empty table; the whole road of an entry (new with every field, the row, edit, cancel, a
// link made behind the window's back that keeps it from being deleted, the delete); a new
// entry at the end of the list; two entries of one name; a place linked only to a unit; the
// viewers of the links opened by name with the entry in the session, the commands not read
// again after them; an entry deleted by another workstation while shown; the one-child rule of
// the menu. On SQLite and on PostgreSQL.

#include "authorities/EditoreAccesso.h"
#include "authorities/frmAntroponimi.h"
#include "authorities/frmTitolari.h"
#include "authorities/frmToponimi.h"
#include "authorities/ucAntroponimo.h"
#include "authorities/ucTitolare.h"
#include "authorities/ucToponimo.h"
#include "programma/Registro.h"
#include "records/ModelloElenco.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSqlQuery>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// One of the three windows as the tests go through it.
struct Tipo {
    const char* sVoce;         // the menu entry
    const char* sFinestra;     // the window's name
    const char* sCaption;      // its title
    const char* sEditore;      // the editor's name
    const char* sTabella;      // the table
    const char* sChiave;       // its key
    const char* sColonna;      // its name column
    const char* sIntestazione; // the list's header
    const char* sNuovo;        // cmdNuovoSog
    const char* sCancella;     // cmdCancella
    const char* sTitoloCancella;
    const char* sDomanda;
    const char* sVisualizzatore;
    // The join tables: table, the column of the other side, whether the table has a key of its
    // own; the button of each.
    struct Legame {
        const char* sTabella;
        const char* sAltro;
        const char* sChiaveLegame; // "" when none
        const char* sPulsante;
        const char* sDidascalia;
    };
    QList<Legame> legami;
    // The fields: column, label, limit, mandatory message, multi-line.
    struct Campo {
        const char* sColonna;
        const char* sEtichetta;
        int iMax;
        const char* sTag;
        bool bMultiRiga;
    };
    QList<Campo> campi;
    bool* bAperto;
};

const Tipo Antroponimi{
    "mnuAntroponimi",
    "frmAntroponimi",
    "Persone",
    "fraAntroponimo",
    "Antroponimi",
    "ID_Antroponimo",
    "Nome",
    "Persona",
    "Nuova Persona",
    "Cancella Persona",
    "Cancella Antroponimo: ",
    "Sei sicuro di voler cancellare l'antroponimo?",
    "frmMostraLinkAntALL",
    {{"PGAntroponimi", "ID_Pergamena", "ID_PGAntroponimo", "cmdMostraLinks(0)", "Pergamene"},
     {"DIAntroponimi", "ID_DatoInventariale", "ID_DIAntroponimo", "cmdMostraLinks(1)",
      "Inventari Base"}},
    {{"Nome", "Denominazione", 128, "Inserire nome e cognome", false},
     {"Titoli", "Funzioni/Titoli", 256, "", true},
     {"Note", "Note", 512, "", true}},
    &Sessione::bFrmAntroponimiAperto,
};

const Tipo Toponimi{
    "mnuToponimi",
    "frmToponimi",
    "Toponimi",
    "fraToponimo",
    "Toponimi",
    "ID_Toponimo",
    "Denominazione",
    "Toponimo",
    "Nuovo Toponimo",
    "Cancella Toponimo",
    "Cancella Toponimo: ",
    "Sei sicuro di voler cancellare il toponimo?",
    "frmMostraLinkTopALL",
    {{"PGToponimi", "ID_Pergamena", "", "cmdMostraLinks(0)", "Pergamene"},
     {"DIToponimi", "ID_DatoInventariale", "", "cmdMostraLinks(1)", "Inventari Base"}},
    {{"Denominazione", "Toponimo", 64, "Inserire toponimo", false}},
    &Sessione::bFrmToponimiAperto,
};

const Tipo Titolari{
    "mnuTitolari",
    "frmTitolari",
    "Titolari",
    "fraTitolare",
    "Titolari",
    "ID_Titolare",
    "Nome",
    "Titolare",
    "Nuovo Titolare",
    "Cancella Titolare",
    "Cancella Titolare: ",
    "Sei sicuro di voler cancellare il titolare?",
    "frmMostraLinkTitSG",
    {{"SGTitolari", "ID_Sigillo", "ID_SGTitolare", "cmdMostraLinks", "Sigilli"}},
    {{"Nome", "Nome", 128, "Inserire nome e cognome", false},
     {"Titoli", "Funzioni/Titoli", 256, "", false},
     {"Note", "Note", 1024, "", true},
     {"Bibliografia", "Bibliografia", 1024, "", true}},
    &Sessione::bFrmTitolariAperto,
};

const Tipo* const Tipi[] = {&Antroponimi, &Toponimi, &Titolari};

// A fresh database, the scripted platform, and the main form after a login on it.
struct Ambiente {
    explicit Ambiente(TipoBackend tipo)
        : banca(tipo) {
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
    // An entry made behind the window's back: its key.
    qint64 Voce(const Tipo& t, const QString& sNome) const {
        return Cnn().Inserisci(QLatin1String(t.sTabella), QLatin1String(t.sChiave),
                               {QLatin1String(t.sColonna)}, {sNome});
    }
    // A row of a join table for the entry, tied to an object of that id.
    void Lega(const Tipo& t, int iLegame, qint64 lId, qint64 lAltro) const {
        const Tipo::Legame& legame = t.legami.at(iLegame);
        const QStringList colonne{QLatin1String(legame.sAltro), QLatin1String(t.sChiave)};
        if (*legame.sChiaveLegame != '\0') {
            Cnn().Inserisci(QLatin1String(legame.sTabella), QLatin1String(legame.sChiaveLegame),
                            colonne, {L(lAltro), L(lId)});
        } else {
            Cnn().Esegui(QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (?, ?)")
                             .arg(QLatin1String(legame.sTabella), colonne[0], colonne[1]),
                         {L(lAltro), L(lId)});
        }
    }
    void Slega(const Tipo& t, int iLegame, qint64 lId) const {
        Cnn().Esegui(
            QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                .arg(QLatin1String(t.legami.at(iLegame).sTabella), QLatin1String(t.sChiave)),
            {L(lId)});
    }

    // The window, from its menu entry.
    FinestraPuntoAccesso* Apri(const Tipo& t) const {
        principale->findChild<QAction*>(QLatin1String(t.sVoce))->trigger();
        for (auto* f : principale->findChildren<FinestraPuntoAccesso*>()) {
            if (f->objectName() == QLatin1String(t.sFinestra)) {
                return f;
            }
        }
        return nullptr;
    }

    CartellaProva cartella;
    PiattaformaScriptata piattaforma;
    BancaDatiProva banca;
    std::unique_ptr<PrimoMDI> principale;
    bool bAperta = false;
};

// A stand-in for a viewer of links, registered by name for one test: each opening records the
// session values it found and whether it came up modally, runs the test's action and closes.
class Sostituto {
public:
    struct Apertura {
        bool bModale = false;
        QString sTipoLink;
        QString sDenomSoggetto;
        long lIdSoggetto = 0;
    };
    explicit Sostituto(QString nome, std::function<void()> azioneDentro = {})
        : sNome(std::move(nome))
        , azione(std::move(azioneDentro)) {
        Dialoghi::Registra(sNome, [this](QWidget* genitore, const Dialoghi::Argomenti&) {
            auto* dialogo = new QDialog(genitore);
            QTimer::singleShot(0, dialogo, [this, dialogo] {
                aperture.append({QApplication::activeModalWidget() == dialogo, Sessione::sTipoLink,
                                 Sessione::sDenomSoggetto, Sessione::lIdSoggetto});
                if (azione) {
                    azione();
                }
                dialogo->accept();
            });
            return dialogo;
        });
    }
    ~Sostituto() {
        Dialoghi::Rimuovi(sNome);
        RegistraFinestreProgramma();
    }
    Sostituto(const Sostituto&) = delete;
    Sostituto& operator=(const Sostituto&) = delete;

    QList<Apertura> aperture;

private:
    QString sNome;
    std::function<void()> azione;
};

EditoreAccesso* Editore(const FinestraPuntoAccesso& f, const Tipo& t) {
    return f.findChild<EditoreAccesso*>(QLatin1String(t.sEditore));
}

// The enabled state of "NuovoSog Modifica Cancella" and of the link buttons, as 0/1.
QString Comandi(const FinestraPuntoAccesso& f) {
    QString s;
    for (const QPushButton* p : {f.cmdNuovoSog, f.cmdModifica, f.cmdCancella}) {
        s += p->isEnabled() ? u'1' : u'0';
    }
    for (const QPushButton* p : f.cmdMostraLinks) {
        s += p->isEnabled() ? u'1' : u'0';
    }
    return s;
}

bool Chiaro(const QPushButton* p) {
    return p->palette().color(QPalette::Button) == QApplication::palette().color(QPalette::Base);
}

QStringList Testi(const FinestraPuntoAccesso& f) {
    QStringList testi;
    for (int i = 0; i < f.Modello(0).Righe(); ++i) {
        testi.append(f.Modello(0).Testo(i));
    }
    return testi;
}

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

// A text of that length with quotes and accents.
QString Lungo(int iLunghezza, QChar iniziale) {
    QString s = QString(iniziale) + QStringLiteral("'à\"è ");
    while (s.size() < iLunghezza) {
        s += QStringLiteral("ìòù'\"");
    }
    return s.left(iLunghezza);
}

} // namespace

class TestPuntiAccesso : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() {
        Sessione::bFrmAntroponimiAperto = false;
        Sessione::bFrmToponimiAperto = false;
        Sessione::bFrmTitolariAperto = false;
    }

    void siApronoDalMenuConDidascalieCampiELaTabellaVuotaHaSoloNuovo_data() { AggiungiBackend(); }
    void siApronoDalMenuConDidascalieCampiELaTabellaVuotaHaSoloNuovo();
    void laStradaDiUnaPersona_data() { AggiungiBackend(); }
    void laStradaDiUnaPersona() { Percorri(Antroponimi); }
    void laStradaDiUnToponimo_data() { AggiungiBackend(); }
    void laStradaDiUnToponimo() { Percorri(Toponimi); }
    void laStradaDiUnTitolare_data() { AggiungiBackend(); }
    void laStradaDiUnTitolare() { Percorri(Titolari); }
    void unNuovoNomeVaInFondoEDueVociPossonoAvereLoStessoNome_data() { AggiungiBackend(); }
    void unNuovoNomeVaInFondoEDueVociPossonoAvereLoStessoNome();
    void unToponimoLegatoSoloAUnUnitaNonSiCancellaEPergameneRestaSpento_data() {
        AggiungiBackend();
    }
    void unToponimoLegatoSoloAUnUnitaNonSiCancellaEPergameneRestaSpento();
    void iPulsantiDeiLegamiApronoIlVisualizzatoreSenzaRileggereIComandi_data() {
        AggiungiBackend();
    }
    void iPulsantiDeiLegamiApronoIlVisualizzatoreSenzaRileggereIComandi();
    void unaVoceCancellataDaUnAltraPostazioneMentreEMostrata_data() { AggiungiBackend(); }
    void unaVoceCancellataDaUnAltraPostazioneMentreEMostrata();
    void annullaENoLascianoLaListaComEraELUltimaCancellataSvuotaLEditore_data() {
        AggiungiBackend();
    }
    void annullaENoLascianoLaListaComEraELUltimaCancellataSvuotaLEditore();
    void unNomeNulloELoSegnapostoNellEditoreEVuotoNellaLista_data() { AggiungiBackend(); }
    void unNomeNulloELoSegnapostoNellEditoreEVuotoNellaLista();
    void unaListaCheNonSiLeggeDaErroreU5EUnaCancellazioneFallitaErroreR4_data() {
        AggiungiBackend();
    }
    void unaListaCheNonSiLeggeDaErroreU5EUnaCancellazioneFallitaErroreR4();

private:
    void Percorri(const Tipo& t);
};

void TestPuntiAccesso::siApronoDalMenuConDidascalieCampiELaTabellaVuotaHaSoloNuovo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    QVERIFY(a.bAperta);
    QPointer<FinestraPuntoAccesso> precedente;
    for (const Tipo* t : Tipi) {
        Sessione::iChiamanteAntroponimi = 2;
        QPointer<FinestraPuntoAccesso> f = a.Apri(*t);
        QVERIFY2(f, t->sFinestra);
        // One child at a time: the window opened before has gone, its flag with it.
        if (precedente != nullptr || t != Tipi[0]) {
            QVERIFY(QTest::qWaitFor([&] { return precedente.isNull(); }));
        }
        for (const Tipo* altro : Tipi) {
            QCOMPARE(*altro->bAperto, altro == t);
        }
        // Persone sets the caller of the personal names to 0 first.
        QCOMPARE(Sessione::iChiamanteAntroponimi, t == &Antroponimi ? 0 : 2);
        QCOMPARE(a.principale->Area()->subWindowList().size(), 1);
        QCOMPARE(a.principale->Area()->subWindowList()[0]->windowTitle(),
                 QLatin1String(t->sCaption));
        QVERIFY(f->SSTab1 == nullptr);
        QVERIFY(f->findChild<QTreeView*>(QStringLiteral("lvwDB(0)")));
        QCOMPARE(f->Modello(0).headerData(0, Qt::Horizontal).toString(),
                 QLatin1String(t->sIntestazione));
        QCOMPARE(f->cmdNuovoSog->objectName(), QStringLiteral("cmdNuovoSog"));
        QCOMPARE(f->cmdNuovoSog->text(), QString::fromUtf8(t->sNuovo));
        QCOMPARE(f->cmdModifica->text(), QStringLiteral("Modifica scheda"));
        QCOMPARE(f->cmdCancella->text(), QString::fromUtf8(t->sCancella));
        QCOMPARE(f->cmdConferma->text(), QStringLiteral("Conferma dati"));
        QCOMPARE(f->cmdAnnulla->text(), QStringLiteral("Annulla"));
        QCOMPARE(f->cmdMostraLinks.size(), t->legami.size());
        for (int i = 0; i < t->legami.size(); ++i) {
            QCOMPARE(f->cmdMostraLinks[i]->objectName(), QLatin1String(t->legami[i].sPulsante));
            QCOMPARE(f->cmdMostraLinks[i]->text(), QLatin1String(t->legami[i].sDidascalia));
        }
        // The editor's fields: label, limit, mandatory message, one line or several.
        EditoreAccesso* editore = Editore(*f, *t);
        QVERIFY(editore);
        QCOMPARE(editore->Controls().size(), t->campi.size());
        for (int i = 0; i < t->campi.size(); ++i) {
            const Tipo::Campo& c = t->campi[i];
            const QString sNome = QStringLiteral("Text1(%1)").arg(i);
            QCOMPARE(editore->findChild<QLabel*>(QStringLiteral("Label1(%1)").arg(i))->text(),
                     QString::fromUtf8(c.sEtichetta));
            QWidget* casella = editore->findChild<QWidget*>(sNome);
            QVERIFY(casella);
            QCOMPARE(casella->property("Tag").toString(), QString::fromUtf8(c.sTag));
            if (c.bMultiRiga) {
                QVERIFY2(qobject_cast<QPlainTextEdit*>(casella), qPrintable(sNome));
                QCOMPARE(casella->property("MaxLength").toInt(), c.iMax);
            } else {
                auto* riga = qobject_cast<QLineEdit*>(casella);
                QVERIFY2(riga, qPrintable(sNome));
                QCOMPARE(riga->maxLength(), c.iMax);
            }
        }
        // An empty table: no row, nothing shown, New alone.
        QCOMPARE(f->Modello(0).Righe(), 0);
        QCOMPARE(f->aChiave[0], QString());
        QCOMPARE(Leggi(editore, 0), QString());
        QVERIFY(!editore->isHidden());
        QCOMPARE(Comandi(*f), QStringLiteral("100") + QString(t->legami.size(), u'0'));
        QVERIFY(!f->cmdConferma->isEnabled());
        QVERIFY(!f->cmdAnnulla->isEnabled());
        QVERIFY(a.piattaforma.Messaggi().isEmpty());
        precedente = f;
    }
    // Escape closes the window and clears its flag.
    QTest::keyClick(precedente->Lista(0), Qt::Key_Escape);
    QVERIFY(QTest::qWaitFor([&] { return precedente.isNull(); }));
    QVERIFY(!Sessione::bFrmTitolariAperto);
}

void TestPuntiAccesso::Percorri(const Tipo& t) {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    QVERIFY(a.bAperta);
    QPointer<FinestraPuntoAccesso> f = a.Apri(t);
    QVERIFY(f);
    EditoreAccesso* editore = Editore(*f, t);
    const QString sNessuno = QStringLiteral("000") + QString(t.legami.size(), u'0');
    const QString sSenzaLegami = QStringLiteral("111") + QString(t.legami.size(), u'0');

    // New: the mandatory name refused as the placeholder and as blanks.
    f->cmdNuovoSog->click();
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    QCOMPARE(Comandi(*f), sNessuno);
    QVERIFY(!f->Lista(0)->isEnabled());
    QVERIFY(f->cmdConferma->isEnabled());
    for (const QString& sVuoto : {QStringLiteral("<<Inserire valore>>"), QStringLiteral("   ")}) {
        Scrivi(editore, 0, sVuoto);
        f->cmdConferma->click();
        QCOMPARE(a.piattaforma.Messaggi().size(), 1);
        QCOMPARE(a.piattaforma.Messaggi()[0].sTitolo, QStringLiteral("Attenzione"));
        QCOMPARE(a.piattaforma.Messaggi()[0].sTesto, QString::fromUtf8(t.campi[0].sTag));
        QCOMPARE(f->sStato, QStringLiteral("nuovo"));
        QCOMPARE(a.Conta(QLatin1String(t.sTabella)), 0);
        a.piattaforma.Svuota();
    }
    // Every field at its longest, with quotes and accents.
    QStringList valori;
    for (int i = 0; i < t.campi.size(); ++i) {
        valori << Lungo(t.campi[i].iMax, QChar(u'A' + i));
        Scrivi(editore, i, valori.last());
        QCOMPARE(Leggi(editore, i), valori.last());
    }
    f->cmdConferma->click();
    QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    const qint64 lId = f->aId[0];
    QVERIFY(lId > 0);
    QCOMPARE(editore->LeggiID(), static_cast<long>(lId));
    QCOMPARE(a.Conta(QLatin1String(t.sTabella)), 1);
    for (int i = 0; i < t.campi.size(); ++i) {
        QCOMPARE(a.Valore(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                              .arg(QLatin1String(t.campi[i].sColonna), QLatin1String(t.sTabella),
                                   QLatin1String(t.sChiave)),
                          {L(lId)})
                     .toString(),
                 valori[i]);
    }
    // The row, chosen, with its key; the commands of an entry without links.
    QCOMPARE(Testi(*f), QStringList{valori[0]});
    QCOMPARE(f->aChiave[0], QStringLiteral("ID%1").arg(lId));
    QCOMPARE(f->Lista(0)->currentIndex().row(), 0);
    QCOMPARE(Comandi(*f), sSenzaLegami);
    QVERIFY(f->Lista(0)->isEnabled());
    QVERIFY(!f->cmdConferma->isEnabled());

    // The list read anew gives the same row and record.
    f->close();
    QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    f = a.Apri(t);
    QVERIFY(f);
    editore = Editore(*f, t);
    QCOMPARE(Testi(*f), QStringList{valori[0]});
    for (int i = 0; i < t.campi.size(); ++i) {
        QCOMPARE(Leggi(editore, i), valori[i]);
    }

    // Edit, confirmed: the other fields emptied are stored as Null, the row follows.
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    QCOMPARE(Comandi(*f), sNessuno);
    const QString sNuovo = QStringLiteral("Nuovo nome d'\"esempio\" è");
    Scrivi(editore, 0, sNuovo);
    for (int i = 1; i < t.campi.size(); ++i) {
        Scrivi(editore, i, QString());
    }
    f->cmdConferma->click();
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    QCOMPARE(Testi(*f), QStringList{sNuovo});
    QCOMPARE(a.Valore(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                          .arg(QLatin1String(t.sColonna), QLatin1String(t.sTabella),
                               QLatin1String(t.sChiave)),
                      {L(lId)})
                 .toString(),
             sNuovo);
    for (int i = 1; i < t.campi.size(); ++i) {
        QVERIFY(a.Valore(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                             .arg(QLatin1String(t.campi[i].sColonna), QLatin1String(t.sTabella),
                                  QLatin1String(t.sChiave)),
                         {L(lId)})
                    .isNull());
    }
    QCOMPARE(a.Conta(QLatin1String(t.sTabella)), 1);
    // Edit, cancelled: the record as it was.
    f->cmdModifica->click();
    Scrivi(editore, 0, QStringLiteral("Lasciato"));
    f->cmdAnnulla->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(Leggi(editore, 0), sNuovo);
    QCOMPARE(Testi(*f), QStringList{sNuovo});
    QCOMPARE(Comandi(*f), sSenzaLegami);

    // A link in each join table in turn keeps it from being deleted and lights its button.
    for (int iLegame = 0; iLegame < t.legami.size(); ++iLegame) {
        a.Lega(t, iLegame, lId, 7001);
        f->SelezionaRiga(0);
        QString sAtteso = QStringLiteral("110") + QString(t.legami.size(), u'0');
        sAtteso[3 + iLegame] = u'1';
        QCOMPARE(Comandi(*f), sAtteso);
        for (int i = 0; i < t.legami.size(); ++i) {
            QCOMPARE(Chiaro(f->cmdMostraLinks[i]), i == iLegame);
        }
        a.Slega(t, iLegame, lId);
    }
    // Linked in all of them.
    for (int iLegame = 0; iLegame < t.legami.size(); ++iLegame) {
        a.Lega(t, iLegame, lId, 7002);
    }
    f->SelezionaRiga(0);
    QCOMPARE(Comandi(*f), QStringLiteral("110") + QString(t.legami.size(), u'1'));
    for (int iLegame = 0; iLegame < t.legami.size(); ++iLegame) {
        a.Slega(t, iLegame, lId);
    }
    f->SelezionaRiga(0);
    QCOMPARE(Comandi(*f), sSenzaLegami);
    QVERIFY(!Chiaro(f->cmdMostraLinks[0]));

    // Delete: the question with the name in the title, then the row is gone.
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTitolo, QString::fromUtf8(t.sTitoloCancella) + sNuovo);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTesto, QString::fromUtf8(t.sDomanda));
    QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Domanda);
    QCOMPARE(a.piattaforma.Messaggi()[0].pulsanti, Pulsanti::SiNo);
    QCOMPARE(a.Conta(QLatin1String(t.sTabella)), 0);
    QCOMPARE(f->Modello(0).Righe(), 0);
    QCOMPARE(f->aChiave[0], QString());
    QCOMPARE(Leggi(editore, 0), QString());
    QCOMPARE(Comandi(*f), QStringLiteral("100") + QString(t.legami.size(), u'0'));
}

void TestPuntiAccesso::unNuovoNomeVaInFondoEDueVociPossonoAvereLoStessoNome() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    for (const Tipo* t : Tipi) {
        a.Voce(*t, QStringLiteral("Bianchi"));
        a.Voce(*t, QStringLiteral("Ñ Rossi"));
        a.Voce(*t, QStringLiteral("  Conti  "));
        QPointer<FinestraPuntoAccesso> f = a.Apri(*t);
        QVERIFY(f);
        // In name order, trimmed; the first row shown.
        QCOMPARE(Testi(*f), (QStringList{QStringLiteral("Conti"), QStringLiteral("Bianchi"),
                                         QStringLiteral("Ñ Rossi")}));
        QCOMPARE(Leggi(Editore(*f, *t), 0), QStringLiteral("  Conti  "));
        QCOMPARE(f->Lista(0)->currentIndex().row(), 0);
        // A new one of a name that is already there goes at the end.
        f->cmdNuovoSog->click();
        Scrivi(Editore(*f, *t), 0, QStringLiteral("Bianchi"));
        f->cmdConferma->click();
        QVERIFY(a.piattaforma.Messaggi().isEmpty());
        QCOMPARE(Testi(*f), (QStringList{QStringLiteral("Conti"), QStringLiteral("Bianchi"),
                                         QStringLiteral("Ñ Rossi"), QStringLiteral("Bianchi")}));
        QCOMPARE(f->Lista(0)->currentIndex().row(), 3);
        QCOMPARE(a.Conta(QStringLiteral("%1 WHERE %2 = ?")
                             .arg(QLatin1String(t->sTabella), QLatin1String(t->sColonna)),
                         {QStringLiteral("Bianchi")}),
                 2);
        // Opened again, in its place.
        f->close();
        QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
        f = a.Apri(*t);
        QCOMPARE(Testi(*f), (QStringList{QStringLiteral("Conti"), QStringLiteral("Bianchi"),
                                         QStringLiteral("Bianchi"), QStringLiteral("Ñ Rossi")}));
        f->close();
        QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    }
}

void TestPuntiAccesso::unToponimoLegatoSoloAUnUnitaNonSiCancellaEPergameneRestaSpento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    const qint64 lucca = a.Voce(Toponimi, QStringLiteral("Lucca"));
    a.Lega(Toponimi, 1, lucca, 31);
    QPointer<FinestraPuntoAccesso> f = a.Apri(Toponimi);
    QVERIFY(f);
    QCOMPARE(f->aId[0], lucca);
    QCOMPARE(Comandi(*f), QStringLiteral("11001"));
    QVERIFY(!f->cmdMostraLinks[0]->isEnabled());
    QVERIFY(!Chiaro(f->cmdMostraLinks[0]));
    QVERIFY(Chiaro(f->cmdMostraLinks[1]));
    QVERIFY(!f->cmdCancella->isEnabled());
}

void TestPuntiAccesso::iPulsantiDeiLegamiApronoIlVisualizzatoreSenzaRileggereIComandi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    for (const Tipo* t : Tipi) {
        const QString sNome = QStringLiteral("D'Àngelo \"il vecchio\"");
        const qint64 lId = a.Voce(*t, sNome);
        for (int i = 0; i < t->legami.size(); ++i) {
            a.Lega(*t, i, lId, 500 + i);
        }
        QPointer<FinestraPuntoAccesso> f = a.Apri(*t);
        QVERIFY(f);
        const QString sTutti = QStringLiteral("110") + QString(t->legami.size(), u'1');
        QCOMPARE(Comandi(*f), sTutti);
        for (int i = 0; i < t->legami.size(); ++i) {
            // The viewer takes every link away; the window's commands stay as they were.
            Sostituto visualizzatore(QLatin1String(t->sVisualizzatore), [&] {
                for (int j = 0; j < t->legami.size(); ++j) {
                    a.Slega(*t, j, lId);
                }
            });
            Sessione::sTipoLink = QStringLiteral("X");
            f->cmdMostraLinks[i]->click();
            QCOMPARE(visualizzatore.aperture.size(), 1);
            const Sostituto::Apertura& apertura = visualizzatore.aperture[0];
            QVERIFY(apertura.bModale);
            // The holders' one button leaves the kind of link as it was.
            QCOMPARE(apertura.sTipoLink, t == &Titolari ? QStringLiteral("X") : QString::number(i));
            QCOMPARE(apertura.sDenomSoggetto, sNome);
            QCOMPARE(apertura.lIdSoggetto, static_cast<long>(lId));
            QCOMPARE(Comandi(*f), sTutti);
            QVERIFY(Chiaro(f->cmdMostraLinks[i]));
            for (int j = 0; j < t->legami.size(); ++j) {
                a.Lega(*t, j, lId, 500 + j);
            }
        }
        // The next display reads them again.
        for (int j = 0; j < t->legami.size(); ++j) {
            a.Slega(*t, j, lId);
        }
        f->SelezionaRiga(0);
        QCOMPARE(Comandi(*f), QStringLiteral("111") + QString(t->legami.size(), u'0'));
        f->close();
        QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    }
}

void TestPuntiAccesso::unaVoceCancellataDaUnAltraPostazioneMentreEMostrata() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    for (const Tipo* t : Tipi) {
        a.piattaforma.Svuota();
        const qint64 primo = a.Voce(*t, QStringLiteral("Alfa"));
        const qint64 secondo = a.Voce(*t, QStringLiteral("Beta"));
        QPointer<FinestraPuntoAccesso> f = a.Apri(*t);
        QVERIFY(f);
        f->SelezionaRiga(1);
        QCOMPARE(f->aId[0], secondo);

        // An edit of it writes nothing, says so, and its row goes.
        f->cmdModifica->click();
        for (int i = 0; i < t->campi.size(); ++i) {
            Scrivi(Editore(*f, *t), i, QStringLiteral("Gamma %1").arg(i));
        }
        a.Cnn().Esegui(QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                           .arg(QLatin1String(t->sTabella), QLatin1String(t->sChiave)),
                       {L(secondo)});
        f->cmdConferma->click();
        QCOMPARE(a.piattaforma.Messaggi().size(), 1);
        QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Esclamazione);
        QCOMPARE(f->sStato, QStringLiteral("mostra"));
        QCOMPARE(a.Conta(QLatin1String(t->sTabella)), 1);
        QCOMPARE(a.Valore(QStringLiteral("SELECT %1 FROM %2")
                              .arg(QLatin1String(t->sColonna), QLatin1String(t->sTabella)),
                          {})
                     .toString(),
                 QStringLiteral("Alfa"));
        QCOMPARE(Testi(*f), QStringList{QStringLiteral("Alfa")});
        QCOMPARE(f->aId[0], primo);
        QCOMPARE(Leggi(Editore(*f, *t), 0), QStringLiteral("Alfa"));

        // Its delete, once another workstation deleted it: no error, the row goes.
        a.Cnn().Esegui(QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                           .arg(QLatin1String(t->sTabella), QLatin1String(t->sChiave)),
                       {L(primo)});
        a.piattaforma.Svuota();
        a.piattaforma.risposte = {Risposta::Si};
        f->cmdCancella->click();
        QCOMPARE(a.piattaforma.Messaggi().size(), 1);
        QCOMPARE(f->Modello(0).Righe(), 0);
        QCOMPARE(Comandi(*f), QStringLiteral("100") + QString(t->legami.size(), u'0'));
        f->close();
        QVERIFY(QTest::qWaitFor([&] { return f.isNull(); }));
    }
}

void TestPuntiAccesso::annullaENoLascianoLaListaComEraELUltimaCancellataSvuotaLEditore() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    // Annulla of a new entry on an empty list leaves the editor cleared.
    QPointer<FinestraPuntoAccesso> f = a.Apri(Titolari);
    QVERIFY(f);
    f->cmdNuovoSog->click();
    Scrivi(Editore(*f, Titolari), 0, QStringLiteral("Mai salvato"));
    Scrivi(Editore(*f, Titolari), 3, QStringLiteral("Bibliografia"));
    f->cmdAnnulla->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(Leggi(Editore(*f, Titolari), 0), QString());
    QCOMPARE(Leggi(Editore(*f, Titolari), 3), QString());
    QCOMPARE(Comandi(*f), QStringLiteral("1000"));
    QCOMPARE(a.Conta(QStringLiteral("Titolari")), 0);

    // With rows: Annulla of a new one goes back to the first row; No to the delete leaves it.
    const qint64 pisa = a.Voce(Toponimi, QStringLiteral("Pisa"));
    const qint64 siena = a.Voce(Toponimi, QStringLiteral("Siena"));
    f = a.Apri(Toponimi);
    QVERIFY(f);
    f->SelezionaRiga(1);
    f->cmdNuovoSog->click();
    Scrivi(Editore(*f, Toponimi), 0, QStringLiteral("Mai salvato"));
    f->cmdAnnulla->click();
    QCOMPARE(f->aId[0], pisa);
    QCOMPARE(Leggi(Editore(*f, Toponimi), 0), QStringLiteral("Pisa"));
    f->SelezionaRiga(1);
    a.piattaforma.risposte = {Risposta::No};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.Conta(QStringLiteral("Toponimi")), 2);
    QCOMPARE(f->Modello(0).Righe(), 2);
    QCOMPARE(f->aId[0], siena);
    QCOMPARE(f->Lista(0)->currentIndex().row(), 1);
    // Yes: the first row is shown; the last deleted leaves an empty editor and New alone.
    a.piattaforma.risposte = {Risposta::Si, Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(Testi(*f), QStringList{QStringLiteral("Pisa")});
    QCOMPARE(f->aId[0], pisa);
    QCOMPARE(Comandi(*f), QStringLiteral("11100"));
    f->cmdCancella->click();
    QCOMPARE(a.Conta(QStringLiteral("Toponimi")), 0);
    QCOMPARE(f->aChiave[0], QString());
    QCOMPARE(Leggi(Editore(*f, Toponimi), 0), QString());
    QCOMPARE(Comandi(*f), QStringLiteral("10000"));
}

void TestPuntiAccesso::unNomeNulloELoSegnapostoNellEditoreEVuotoNellaLista() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    // A table of persons whose name may be Null, as an older archive may hold it.
    a.Cnn().Esegui(QStringLiteral("ALTER TABLE Antroponimi RENAME TO AntroponimiAltrove"));
    a.Cnn().Esegui(QStringLiteral("CREATE TABLE Antroponimi (ID_Antroponimo INTEGER NOT NULL "
                                  "PRIMARY KEY, Nome VARCHAR(128), Titoli VARCHAR(256), "
                                  "Note VARCHAR(512))"));
    a.Cnn().Esegui(QStringLiteral("INSERT INTO Antroponimi (ID_Antroponimo, Nome, Titoli) "
                                  "VALUES (?, NULL, ?)"),
                   {41, QStringLiteral("notaio")});
    QPointer<FinestraPuntoAccesso> f = a.Apri(Antroponimi);
    QVERIFY(f);
    QCOMPARE(Testi(*f), QStringList{QString()});
    QCOMPARE(f->aId[0], 41);
    EditoreAccesso* editore = Editore(*f, Antroponimi);
    QCOMPARE(Leggi(editore, 0), QStringLiteral("<<Inserire valore>>"));
    QCOMPARE(Leggi(editore, 1), QStringLiteral("notaio"));
    QCOMPARE(Comandi(*f), QStringLiteral("11100"));
    // Confirmed as it stands, the placeholder fails the mandatory name.
    f->cmdModifica->click();
    f->cmdConferma->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTesto, QStringLiteral("Inserire nome e cognome"));
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    QVERIFY(a.Valore(QStringLiteral("SELECT Nome FROM Antroponimi"), {}).isNull());
}

void TestPuntiAccesso::unaListaCheNonSiLeggeDaErroreU5EUnaCancellazioneFallitaErroreR4() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente a(backend);
    a.Cnn().Esegui(QStringLiteral("ALTER TABLE Titolari RENAME TO TitolariAltrove"));
    QPointer<FinestraPuntoAccesso> f = a.Apri(Titolari);
    QVERIFY(f);
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTitolo, QStringLiteral("Errore U5"));
    QCOMPARE(a.piattaforma.Messaggi()[0].icona, Icona::Critica);
    QCOMPARE(f->Modello(0).Righe(), 0);
    QCOMPARE(Comandi(*f), QStringLiteral("1000"));

    // A delete that the database refuses: the box, and the row stays.
    a.Voce(Toponimi, QStringLiteral("Lucca"));
    f = a.Apri(Toponimi);
    QVERIFY(f);
    QCOMPARE(Comandi(*f), QStringLiteral("11100"));
    a.Cnn().Esegui(QStringLiteral("ALTER TABLE Toponimi RENAME TO ToponimiAltrove"));
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 2);
    QCOMPARE(a.piattaforma.Messaggi()[1].sTitolo, QStringLiteral("Errore R4"));
    QCOMPARE(a.piattaforma.Messaggi()[1].icona, Icona::Critica);
    QVERIFY(a.piattaforma.Messaggi()[1].sTesto.startsWith(QStringLiteral("frmToponimi\n")));
    QCOMPARE(Testi(*f), QStringList{QStringLiteral("Lucca")});
}

QTEST_MAIN(TestPuntiAccesso)
#include "tst_puntiaccesso.moc"
