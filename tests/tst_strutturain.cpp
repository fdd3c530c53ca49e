// The window of institutes and their finding aids: its tree of two groups with the link image
// of a finding aid, the commands from the editors' flags with the colours and the Tag of
// "Inventario", the other names, the complessi linked, the analytical inventory and the kind
// its first click writes, the delete with its question and error, the whole road from the
// menu, and what it does when another workstation deleted what it shows or when the server
// refuses a write, on SQLite and on PostgreSQL.

#include "programma/Registro.h"
#include "records/ucInventario.h"
#include "records/ucIstituto.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "store/StringaConnessione.h"
#include "structure/frmStrutturaCD.h"
#include "structure/frmStrutturaIN.h"

#include "AmbienteStruttura.h"
#include "DialogoSostituto.h"
#include "Modali.h"
#include "RuoloProva.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGroupBox>
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

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// The seven commands of the window, in the order of their buttons.
QList<const QPushButton*> Comandi7(const frmStrutturaIN& f) {
    return {f.cmdNuovoIst, f.cmdNuovoInv,    f.cmdModifica,    f.cmdCancella,
            f.cmdAltreDen, f.cmdMostraLinks, f.cmdInvAnalitico};
}

// The enabled state of the seven commands, "NuovoIst NuovoInv Modifica Cancella AltreDen
// MostraLinks InvAnalitico" as 0/1.
QString Pulsanti7(const frmStrutturaIN& f) {
    return Accesi(Comandi7(f));
}

// The back colour of a command: "finestra" (the window's: the list has rows, the analytical
// inventory was opened), "pulsante" (the button face), or something else.
QString Colore(const QPushButton* p) {
    const QColor colore = p->palette().color(QPalette::Button);
    if (colore == QApplication::palette().color(QPalette::Base)) {
        return QStringLiteral("finestra");
    }
    if (colore == QApplication::palette().color(QPalette::Button)) {
        return QStringLiteral("pulsante");
    }
    return colore.name();
}

QString Tag(const QPushButton* p) {
    return p->property("Tag").toString();
}

qint64 Selezionato(const frmStrutturaIN& f) {
    return f.Modello().Id(f.tvwDB->currentIndex());
}

void Scegli(frmStrutturaIN& f, qint64 lId) {
    const QModelIndex nodo = f.Modello().Trova(lId);
    QVERIFY(nodo.isValid());
    f.tvwDB->setCurrentIndex(nodo);
}

// The session values a dialog of the finding aids reads.
struct Globali {
    long lIdInventario = 0;
    QString sDenomInventario;
    int iEsitoLinkCD = 0;
    int iChiamanteInv = 0;
    long lIdAltreDen = 0;
    QString sTipoAltreDen;
};

// A stand-in for one of the program's dialogs, registered by name for one test: each opening
// records the arguments, whether it came up modally and the session values it found, then runs
// the test's action and closes. Afterwards the program's own dialog of that name is back.
class Sostituto : public DialogoSostituto {
public:
    struct Apertura {
        Dialoghi::Argomenti argomenti;
        bool bModale = false;
        Globali globali;
    };

    explicit Sostituto(QString nome, std::function<void()> azioneDentro = {})
        : DialogoSostituto(
              std::move(nome), [this, azione = std::move(azioneDentro)](
                                   QDialog& dialogo, const Dialoghi::Argomenti& argomenti) {
                  Apertura apertura;
                  apertura.argomenti = argomenti;
                  apertura.bModale = QApplication::activeModalWidget() == &dialogo;
                  apertura.globali = {Sessione::lIdInventario, Sessione::sDenomInventario,
                                      Sessione::iEsitoLinkCD,  Sessione::iChiamanteInv,
                                      Sessione::lIdAltreDen,   Sessione::sTipoAltreDen};
                  aperture.append(apertura);
                  if (azione) {
                      azione();
                  }
              }) {}

    QList<Apertura> aperture;
};

// An institute with a finding aid and a complesso linked to it.
struct StrumentoLegato {
    long ist = 0;
    long fondo = 0;
    long inv = 0;
};

StrumentoLegato CreaStrumentoLegato(const AmbienteStruttura& a, const QString& sIstituto,
                                    const QString& sFondo) {
    StrumentoLegato s;
    s.ist = a.Crea("01", sIstituto);
    s.fondo = a.Crea("02", sFondo, s.ist);
    s.inv = a.Crea("03", QStringLiteral("Inventario"), s.ist);
    a.Lega(s.fondo, s.inv);
    return s;
}

// The Links rows of a finding aid.
int Legami(const AmbienteStruttura& a, long inventario) {
    return a
        .Valore(QStringLiteral("SELECT COUNT(*) FROM Links WHERE ID_ElementoLink = ?"),
                {L(inventario)})
        .toInt();
}

QVariant TipoInv(const AmbienteStruttura& a, long inventario) {
    return a.Valore(QStringLiteral("SELECT TipoInv FROM Inventari WHERE ID_Elemento = ?"),
                    {L(inventario)});
}

// The server refuses every update of TipoInv: a login without the right to update Inventari
// on PostgreSQL, a trigger on SQLite (a file has no logins).
std::unique_ptr<RuoloProva> RifiutaTipoInv(const AmbienteStruttura& a) {
    if (a.banca.Tipo() == TipoBackend::SQLite) {
        a.cnn().Esegui(QStringLiteral(
            "CREATE TRIGGER RifiutaTipoInv BEFORE UPDATE OF TipoInv ON Inventari "
            "BEGIN SELECT RAISE(ABORT, 'permesso negato per la tabella inventari'); END"));
        return nullptr;
    }
    auto ruolo = std::make_unique<RuoloProva>(a.banca);
    if (!ruolo->Creato() ||
        !ruolo->Concedi(QStringLiteral(
            "GRANT SELECT, INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA public TO %1")) ||
        !ruolo->Concedi(QStringLiteral("REVOKE UPDATE ON Inventari FROM %1"))) {
        qFatal("the role of the test could not be made");
    }
    Sessione::cnn->Chiudi();
    Sessione::cnn = Connessione::Apri(ComponiStringaConnessione(a.banca.Testa(), a.banca.Server(),
                                                                a.banca.Database(), ruolo->Nome(),
                                                                RuoloProva::Password()));
    return ruolo;
}

// The rows "<backend> <case>" of a data-driven test: each case on each backend, in the columns
// "backend" and colonna.
template <typename T>
void RighePerBackend(const char* colonna, const QList<std::pair<const char*, T>>& casi) {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<T>(colonna);
    for (const auto& [nome, tipo] : {std::pair{"sqlite", TipoBackend::SQLite},
                                     std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        for (const auto& [caso, valore] : casi) {
            QTest::newRow(
                qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(nome), QLatin1String(caso))))
                << tipo << valore;
        }
    }
}

} // namespace

class TestStrutturaIN : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() {
        Sessione::iEsitoLinkCD = 0;
        Sessione::lIdInventario = 0;
        Sessione::iChiamanteInv = 0;
    }
    void istitutiEStrumentiConLImmagineDeiLegamiEIComandiDaiFlag_data() { AggiungiBackend(); }
    void istitutiEStrumentiConLImmagineDeiLegamiEIComandiDaiFlag();
    void ilPrimoClicSuInventarioScriveTipoInvAncheSenzaComplessiEAvvisaComunque_data() {
        AggiungiBackend();
    }
    void ilPrimoClicSuInventarioScriveTipoInvAncheSenzaComplessiEAvvisaComunque();
    void ilPrimoClicConUnComplessoScriveTipoInvEApreLeUnitaModalmente_data() { AggiungiBackend(); }
    void ilPrimoClicConUnComplessoScriveTipoInvEApreLeUnitaModalmente();
    void unSecondoClicConTagDiversoDaZeroApreLeUnitaSenzaAggiornamento_data() { AggiungiBackend(); }
    void unSecondoClicConTagDiversoDaZeroApreLeUnitaSenzaAggiornamento();
    void unNodoSilinkCadeANolinkSoloDopoLUltimoComplessoTolto_data() { AggiungiBackend(); }
    void unNodoSilinkCadeANolinkSoloDopoLUltimoComplessoTolto();
    void leAltreDenominazioniSiApronoPerLoStrumentoEColoranoIlPulsante_data() { AggiungiBackend(); }
    void leAltreDenominazioniSiApronoPerLoStrumentoEColoranoIlPulsante();
    void unErroreDelleAltreDenominazioniSiMostraInErroreU3();
    void cancellaConNoLasciaTuttoComEraEConFigliDaErroreU4_data() { AggiungiBackend(); }
    void cancellaConNoLasciaTuttoComEraEConFigliDaErroreU4();
    void annullaInNuovoLasciaLAlberoComEraEMostraLIstituto_data() { AggiungiBackend(); }
    void annullaInNuovoLasciaLAlberoComEraEMostraLIstituto();
    void laStradaCompletaDalMenu_data() { AggiungiBackend(); }
    void laStradaCompletaDalMenu();
    void passareDaComplessiInNuovoAStrumRicercaChiudeIlPrimoEApreIlSecondo_data() {
        AggiungiBackend();
    }
    void passareDaComplessiInNuovoAStrumRicercaChiudeIlPrimoEApreIlSecondo();
    void unoStrumentoCancellatoAltroveColSuoIstitutoLoDiceELAlberoResta_data();
    void unoStrumentoCancellatoAltroveColSuoIstitutoLoDiceELAlberoResta();
    void unTipoInvRifiutatoDalServerLoDiceENonScriveNulla_data();
    void unTipoInvRifiutatoDalServerLoDiceENonScriveNulla();
};

void TestStrutturaIN::istitutiEStrumentiConLImmagineDeiLegamiEIComandiDaiFlag() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long lucca = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
    const long firenze = a.Crea("01", QStringLiteral("Archivio di Stato di Firenze"));
    const long fondo = a.Crea("02", QStringLiteral("Fondo Guinigi"), lucca);
    const long zecca = a.Crea("03", QStringLiteral("Zecca"), lucca);
    const long legato = a.Crea("03", QStringLiteral("Inventario Guinigi"), lucca);
    const long ancora = a.Crea("03", QStringLiteral("àncora"), lucca);
    const long mediceo = a.Crea("03", QStringLiteral("Mediceo"), firenze);
    a.Lega(fondo, legato);
    a.cnn().Esegui(QStringLiteral("UPDATE Inventari SET TipoInv = '02' WHERE ID_Elemento = ?"),
                   {L(mediceo)});
    a.cnn().Esegui(QStringLiteral("INSERT INTO InventariDenominazioni (ID_Inventario, "
                                  "AltraDenominazione) SELECT ID_Inventario, ? FROM Inventari "
                                  "WHERE ID_Elemento = ?"),
                   {QStringLiteral("Inventario della Zecca di Lucca"), L(zecca)});

    frmStrutturaIN f;
    QCOMPARE(f.objectName(), QStringLiteral("frmStrutturaIN"));
    QCOMPARE(f.windowTitle(), QStringLiteral("Strumenti di ricerca"));
    // One order only.
    QVERIFY(f.FrameOrd->isHidden());
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(m.Nodi(), 7);
    QCOMPARE(TestiFigli(m, m.Radice()),
             (QStringList{QStringLiteral("Archivio di Stato di Firenze"),
                          QStringLiteral("Archivio di Stato di Lucca")}));
    // Brothers in the Italian order: accents and case after the letters.
    QCOMPARE(TestiFigli(m, m.Trova(lucca)),
             (QStringList{QStringLiteral("àncora"), QStringLiteral("Inventario Guinigi"),
                          QStringLiteral("Zecca")}));
    QCOMPARE(m.Immagine(m.Trova(lucca)), QStringLiteral("istituto"));
    QCOMPARE(m.Immagine(m.Trova(legato)), QStringLiteral("silink"));
    QCOMPARE(m.Immagine(m.Trova(zecca)), QStringLiteral("nolink"));
    QCOMPARE(m.Tag(m.Trova(zecca)), QStringLiteral("03"));
    // The complesso is not a node of this window.
    QVERIFY(!m.Trova(fondo).isValid());

    // The root: the flags of the root, the finding aid's commands off and on the button face.
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QVERIFY(!f.fraIstituto->isHidden());
    QVERIFY(f.fraInventario->isHidden());
    QCOMPARE(Pulsanti7(f), QStringLiteral("1000000"));
    QCOMPARE(Colore(f.cmdInvAnalitico), QStringLiteral("pulsante"));
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("pulsante"));

    Scegli(f, lucca);
    QCOMPARE(f.lIdCorrente, qint64(lucca));
    QCOMPARE(f.cmdNuovoInv->isEnabled(), f.fraIstituto->OkNuovoInventario);
    QCOMPARE(Pulsanti7(f), QStringLiteral("1110000"));

    // A finding aid linked to a complesso, with no analytical inventory.
    Scegli(f, legato);
    QCOMPARE(f.sTipo, QStringLiteral("inventario"));
    QVERIFY(f.fraIstituto->isHidden());
    QVERIFY(!f.fraInventario->isHidden());
    QCOMPARE(Riga(f.fraInventario, 0)->text(), QStringLiteral("Inventario Guinigi"));
    QCOMPARE(f.lIdIstituto, f.fraInventario->ID_Istituto);
    QCOMPARE(Pulsanti7(f), QStringLiteral("0011111"));
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("0"));
    QCOMPARE(f.cmdInvAnalitico->text(), QStringLiteral("Inventario"));
    QCOMPARE(Colore(f.cmdInvAnalitico), QStringLiteral("pulsante"));
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("pulsante"));
    // One with other names.
    Scegli(f, zecca);
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("finestra"));
    // One whose analytical inventory was opened.
    Scegli(f, mediceo);
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("2"));
    QCOMPARE(Colore(f.cmdInvAnalitico), QStringLiteral("finestra"));
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("pulsante"));
    // Back on an institute, the finding aid's commands go off and back to the button face.
    Scegli(f, firenze);
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(Pulsanti7(f).right(3), QStringLiteral("000"));
    QCOMPARE(Colore(f.cmdInvAnalitico), QStringLiteral("pulsante"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    Q_UNUSED(ancora);
}

void TestStrutturaIN::ilPrimoClicSuInventarioScriveTipoInvAncheSenzaComplessiEAvvisaComunque() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long inv = a.Crea("03", QStringLiteral("Inventario senza complessi"), ist);
    const Sostituto unita(QStringLiteral("frmStrutturaDI"));
    frmStrutturaIN f;
    Scegli(f, inv);
    QCOMPARE(f.fraInventario->ComplessiLink, 0L);
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("0"));
    QVERIFY(TipoInv(a, inv).isNull());

    f.cmdInvAnalitico->click();
    const QList<Messaggio> avvisi = a.piattaforma.Messaggi();
    QCOMPARE(avvisi.size(), 1);
    QCOMPARE(
        avvisi[0].sTesto,
        QStringLiteral("Attezione! Nessun complesso documentario legato a questo inventario!"));
    QCOMPARE(avvisi[0].sTitolo, QStringLiteral("Tabellion Archivista"));
    QCOMPARE(avvisi[0].icona, Icona::Esclamazione);
    QCOMPARE(avvisi[0].pulsanti, Pulsanti::Ok);
    // The kind is written all the same, and the window of units is not opened.
    QCOMPARE(TipoInv(a, inv).toString(), QStringLiteral("01"));
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("01"));
    QCOMPARE(f.fraInventario->InventariAnalitici, 1);
    QVERIFY(unita.aperture.isEmpty());

    // A second click warns again and writes nothing more.
    a.cnn().Esegui(QStringLiteral("UPDATE Inventari SET TipoInv = '03' WHERE ID_Elemento = ?"),
                   {L(inv)});
    f.cmdInvAnalitico->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 2);
    QCOMPARE(TipoInv(a, inv).toString(), QStringLiteral("03"));
    QVERIFY(unita.aperture.isEmpty());
}

void TestStrutturaIN::ilPrimoClicConUnComplessoScriveTipoInvEApreLeUnitaModalmente() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long inv = CreaStrumentoLegato(a, QStringLiteral("Archivio di Stato di Lucca"),
                                         QStringLiteral("Fondo \"Guinigi\""))
                         .inv;
    frmStrutturaIN f;
    // While the window of units is up the kind is already written.
    QVariant tipoDentro;
    const Sostituto unita(QStringLiteral("frmStrutturaDI"), [&] { tipoDentro = TipoInv(a, inv); });
    Scegli(f, inv);
    QCOMPARE(f.fraInventario->ComplessiLink, 1L);
    f.cmdInvAnalitico->click();
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    QCOMPARE(unita.aperture.size(), 1);
    const Sostituto::Apertura& apertura = unita.aperture[0];
    QVERIFY(apertura.bModale);
    QCOMPARE(apertura.argomenti.value(QStringLiteral("sTipo")).toString(), QStringLiteral("01"));
    QCOMPARE(apertura.argomenti.value(QStringLiteral("sComplessoLinked")).toString(),
             QStringLiteral("Archivio di Stato di Lucca > Fondo \"Guinigi\""));
    QCOMPARE(apertura.globali.lIdInventario, inv);
    QCOMPARE(tipoDentro.toString(), QStringLiteral("01"));
    // Afterwards the finding aid is shown again: its state from the row.
    QCOMPARE(TipoInv(a, inv).toString(), QStringLiteral("01"));
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("1"));
    QCOMPARE(Colore(f.cmdInvAnalitico), QStringLiteral("finestra"));
    QCOMPARE(f.sTipo, QStringLiteral("inventario"));
    QCOMPARE(Selezionato(f), qint64(inv));
}

void TestStrutturaIN::unSecondoClicConTagDiversoDaZeroApreLeUnitaSenzaAggiornamento() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long inv =
        CreaStrumentoLegato(a, QStringLiteral("Archivio"), QStringLiteral("Fondo")).inv;
    // A kind the window never writes: an update would put "01" in its place.
    a.cnn().Esegui(QStringLiteral("UPDATE Inventari SET TipoInv = '03' WHERE ID_Elemento = ?"),
                   {L(inv)});
    const Sostituto unita(QStringLiteral("frmStrutturaDI"));
    frmStrutturaIN f;
    Scegli(f, inv);
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("3"));
    for (int clic = 1; clic <= 2; ++clic) {
        f.cmdInvAnalitico->click();
        QCOMPARE(unita.aperture.size(), clic);
        QVERIFY(unita.aperture.last().bModale);
        QCOMPARE(unita.aperture.last().argomenti.value(QStringLiteral("sTipo")).toString(),
                 QStringLiteral("01"));
        QCOMPARE(TipoInv(a, inv).toString(), QStringLiteral("03"));
        QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("3"));
    }
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestStrutturaIN::unNodoSilinkCadeANolinkSoloDopoLUltimoComplessoTolto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long primo = a.Crea("02", QStringLiteral("Fondo primo"), ist);
    const long secondo = a.Crea("02", QStringLiteral("Fondo secondo"), ist);
    const long inv = a.Crea("03", QStringLiteral("Inventario dell'archivio"), ist);
    a.Lega(primo, inv);
    a.Lega(secondo, inv);
    a.cnn().Esegui(QStringLiteral("UPDATE Inventari SET TipoInv = '01' WHERE ID_Elemento = ?"),
                   {L(inv)});
    // The viewer removes one complesso a time, and tells the last one gone.
    const Sostituto legami(QStringLiteral("frmMostraLinkInv"), [&] {
        QSqlQuery uno = a.cnn().Esegui(
            QStringLiteral("SELECT MIN(ID_Elemento) FROM Links WHERE ID_ElementoLink = ?"),
            {L(inv)});
        QVERIFY(uno.next());
        const QVariant complesso = uno.value(0);
        uno.finish();
        a.cnn().Esegui(
            QStringLiteral("DELETE FROM Links WHERE ID_Elemento = ? AND ID_ElementoLink = ?"),
            {complesso, L(inv)});
        Sessione::iEsitoLinkCD = Legami(a, inv) == 0 ? 2 : 0;
    });
    frmStrutturaIN f;
    const ModelloAlbero& m = f.Modello();
    QCOMPARE(m.Immagine(m.Trova(inv)), QStringLiteral("silink"));
    Scegli(f, inv);
    QCOMPARE(f.fraInventario->ComplessiLink, 2L);

    f.cmdMostraLinks->click();
    QCOMPARE(legami.aperture.size(), 1);
    const Sostituto::Apertura& prima = legami.aperture[0];
    QVERIFY(prima.bModale);
    QCOMPARE(prima.globali.sDenomInventario, QStringLiteral("Inventario dell'archivio"));
    QCOMPARE(prima.globali.lIdInventario, inv);
    QCOMPARE(prima.globali.iChiamanteInv, 1);
    QCOMPARE(prima.globali.iEsitoLinkCD, 0);
    // Inventario base: an analytical inventory of the first kind, on a finding aid that is not
    // a guide of the base level.
    QCOMPARE(prima.argomenti.value(QStringLiteral("bInventarioBase")).toBool(), true);
    QCOMPARE(Legami(a, inv), 1);
    QCOMPARE(m.Immagine(m.Trova(inv)), QStringLiteral("silink"));
    // The node is shown again: the record tells one complesso now.
    QCOMPARE(Selezionato(f), qint64(inv));
    QCOMPARE(f.fraInventario->ComplessiLink, 1L);

    f.cmdMostraLinks->click();
    QCOMPARE(legami.aperture.size(), 2);
    QCOMPARE(Legami(a, inv), 0);
    QCOMPARE(m.Immagine(m.Trova(inv)), QStringLiteral("nolink"));
    QCOMPARE(Selezionato(f), qint64(inv));
    QCOMPARE(f.fraInventario->ComplessiLink, 0L);
    QVERIFY(a.piattaforma.Messaggi().isEmpty());

    // A guide of the base level may have more complessi: not an inventario base.
    a.cnn().Esegui(QStringLiteral("UPDATE Inventari SET Tipologia = '01', SubTipologia = '05' "
                                  "WHERE ID_Elemento = ?"),
                   {L(inv)});
    Scegli(f, ist);
    Scegli(f, inv);
    QVERIFY(f.fraInventario->bPiùLegamiComplessiDoc());
    f.cmdMostraLinks->click();
    QCOMPARE(legami.aperture.last().argomenti.value(QStringLiteral("bInventarioBase")).toBool(),
             false);
}

void TestStrutturaIN::leAltreDenominazioniSiApronoPerLoStrumentoEColoranoIlPulsante() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long inv = a.Crea("03", QStringLiteral("Inventario"), ist);
    const QVariant idInventario = a.Valore(
        QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"), {L(inv)});
    // The dialog adds a name to the finding aid it was given.
    const Sostituto nomi(QStringLiteral("frmAltreDenominazioni"), [&] {
        a.cnn().Esegui(QStringLiteral("INSERT INTO InventariDenominazioni (ID_Inventario, "
                                      "AltraDenominazione) VALUES (?, ?)"),
                       {QVariant(qlonglong(Sessione::lIdAltreDen)), QStringLiteral("Indice")});
    });
    frmStrutturaIN f;
    Scegli(f, inv);
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("pulsante"));
    f.cmdAltreDen->click();
    QCOMPARE(nomi.aperture.size(), 1);
    QVERIFY(nomi.aperture[0].bModale);
    QCOMPARE(nomi.aperture[0].globali.sTipoAltreDen, QStringLiteral("IN"));
    QCOMPARE(qlonglong(nomi.aperture[0].globali.lIdAltreDen), idInventario.toLongLong());
    // Painted afterwards: the finding aid has other names now.
    QVERIFY(f.fraInventario->AltreDenominazioni);
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("finestra"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
}

void TestStrutturaIN::unErroreDelleAltreDenominazioniSiMostraInErroreU3() {
    AmbienteStruttura a(TipoBackend::SQLite);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long inv = a.Crea("03", QStringLiteral("Inventario"), ist);
    Dialoghi::Registra(QStringLiteral("frmAltreDenominazioni"),
                       [](QWidget*, const Dialoghi::Argomenti&) -> QDialog* {
                           throw Errore(QStringLiteral("frmAltreDenominazioni"),
                                        QStringLiteral("Tabella illeggibile"));
                       });
    frmStrutturaIN f;
    Scegli(f, inv);
    f.cmdAltreDen->click();
    Dialoghi::Rimuovi(QStringLiteral("frmAltreDenominazioni"));
    RegistraFinestreProgramma();
    const QList<Messaggio> errori = a.piattaforma.Messaggi();
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].sTitolo, QStringLiteral("Errore U3"));
    QCOMPARE(errori[0].icona, Icona::Critica);
    QCOMPARE(errori[0].sTesto, QStringLiteral("frmAltreDenominazioni\nTabella illeggibile"));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QCOMPARE(Colore(f.cmdAltreDen), QStringLiteral("pulsante"));
}

void TestStrutturaIN::cancellaConNoLasciaTuttoComEraEConFigliDaErroreU4() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long inv = a.Crea("03", QStringLiteral("Inventario Guinigi"), ist);
    frmStrutturaIN f;
    Scegli(f, inv);
    a.piattaforma.risposte = {Risposta::No};
    f.cmdCancella->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    const Messaggio domanda = a.piattaforma.Messaggi()[0];
    QCOMPARE(domanda.sTesto, QStringLiteral("Sei sicuro di voler cancellare l'Inventario?"));
    QCOMPARE(domanda.sTitolo, QStringLiteral("Cancella Inventario: Inventario Guinigi"));
    QCOMPARE(domanda.icona, Icona::Domanda);
    QCOMPARE(domanda.pulsanti, Pulsanti::SiNo);
    QVERIFY(f.Modello().Trova(inv).isValid());
    QCOMPARE(Selezionato(f), qint64(inv));
    QCOMPARE(a.Righe("Inventari"), 1);

    // A unit of the analytical inventory hangs under it: the database refuses.
    const long unita = a.Crea("07", QStringLiteral("Busta 1"), inv);
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f.cmdCancella->click();
    const QList<Messaggio> errori = MessaggiCon(a.piattaforma, QStringLiteral("Errore U4"));
    QCOMPARE(errori.size(), 1);
    QCOMPARE(errori[0].icona, Icona::Critica);
    QCOMPARE(errori[0].sTesto.count(u'\n'), 2);
    QVERIFY(f.Modello().Trova(inv).isValid());
    QCOMPARE(a.Righe("Inventari"), 1);
    Q_UNUSED(unita);

    // An institute of this window is asked as in the window of complessi, and its failure
    // has this window's title.
    Scegli(f, ist);
    a.piattaforma.Svuota();
    a.piattaforma.risposte = {Risposta::Si};
    f.Cancella();
    QCOMPARE(a.piattaforma.Messaggi().value(0).sTesto,
             QStringLiteral("Sei sicuro di voler cancellare l'Istituto?"));
    QCOMPARE(a.piattaforma.Messaggi().value(0).sTitolo,
             QStringLiteral("Cancella Istituto: Archivio"));
    QCOMPARE(MessaggiCon(a.piattaforma, QStringLiteral("Errore U4")).size(), 1);
    QCOMPARE(a.Righe("Istituti"), 1);
}

void TestStrutturaIN::annullaInNuovoLasciaLAlberoComEraEMostraLIstituto() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    a.Crea("03", QStringLiteral("Inventario"), ist);
    frmStrutturaIN f;
    Scegli(f, ist);
    const QString prima = Pulsanti7(f);
    f.cmdNuovoInv->click();
    QCOMPARE(f.sStato, QStringLiteral("nuovo"));
    QCOMPARE(f.sTipo, QStringLiteral("inventario"));
    const QModelIndex temp = f.Modello().Trova(ModelloAlbero::IdTemporaneo);
    QVERIFY(temp.isValid());
    QCOMPARE(f.Modello().Id(temp.parent()), qint64(ist));
    QCOMPARE(f.Modello().Immagine(temp), QStringLiteral("nolink"));
    QCOMPARE(f.Modello().Tag(temp), QStringLiteral("03"));
    QCOMPARE(f.Modello().Testo(temp), QString(10, u' '));
    QVERIFY(!f.tvwDB->isEnabled());
    // Every command is put away while the record is edited.
    for (const QPushButton* p : Comandi7(f)) {
        QVERIFY2(p->isHidden(), qPrintable(p->objectName()));
    }
    QVERIFY(!f.cmdConferma->isHidden());
    // The new finding aid takes the institute's places.
    QCOMPARE(f.fraInventario->ID_Istituto, f.lIdIstituto);
    f.cmdAnnulla->click();
    QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
    QCOMPARE(TestiFigli(f.Modello(), f.Modello().Trova(ist)),
             QStringList{QStringLiteral("Inventario")});
    QCOMPARE(Selezionato(f), qint64(ist));
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(f.tvwDB->isEnabled());
    QCOMPARE(Pulsanti7(f), prima);
    QCOMPARE(a.Righe("Elementi"), 2);
}

void TestStrutturaIN::laStradaCompletaDalMenu() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    // The MAG import's repository.
    Sessione::sParam01 = a.cartella.File(QStringLiteral("Immagini"));
    Sessione::sParam12 = QStringLiteral("http://archivio.example.it/img");
    QVERIFY(QDir().mkpath(Sessione::sParam01));
    const Sostituto unita(QStringLiteral("frmStrutturaDI"));

    principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    QPointer<frmStrutturaIN> f = principale->findChild<frmStrutturaIN*>();
    QVERIFY(f);
    QCOMPARE(f->objectName(), QStringLiteral("frmStrutturaIN"));
    QCOMPARE(principale->Area()->subWindowList().size(), 1);
    QCOMPARE(principale->Area()->subWindowList()[0]->windowTitle(),
             QStringLiteral("Strumenti di ricerca"));
    QCOMPARE(f->Modello().Nodi(), 1);
    QCOMPARE(Pulsanti7(*f), QStringLiteral("1000000"));

    // An institute at the root.
    const qint64 ist = NuovoIstitutoNellaFinestra(*f, QStringLiteral("Archivio di Stato di Lucca"));
    QVERIFY(ist > 0);
    QCOMPARE(f->Modello().Immagine(f->Modello().Trova(ist)), QStringLiteral("istituto"));
    QCOMPARE(Pulsanti7(*f), QStringLiteral("1110000"));

    // A finding aid under it, every field filled to its length.
    f->cmdNuovoInv->click();
    QCOMPARE(f->sStato, QStringLiteral("nuovo"));
    const QWidget* editore = f->fraInventario;
    const QString titolo =
        Lungo(QStringLiteral("Inventario dell'archivio \"Guinigi\", àèìòù "), 256);
    CompilaInventario(editore, titolo);
    const QString estremi = Lungo(QStringLiteral("secc. XVIII-XIX, l'ultimo \"fascicolo\" "), 256);
    const QString autore = Lungo(QStringLiteral("Salvatore Bongi e Niccolò Tommaseo "), 256);
    const QString descrizione =
        Lungo(QStringLiteral("Carte sciolte, registri e \"filze\"; "), 1024);
    const QString xml =
        Lungo(QStringLiteral("http://archivio.example.it/mag/guinigi.xml?a='1'&"), 128);
    const QString url = Lungo(QStringLiteral("http://archivio.example.it/guinigi/è"), 128);
    const QString gestione = Lungo(QStringLiteral("Da rivedere l'ordinamento. "), 1024);
    const QString edizione = Lungo(QStringLiteral("Lucca, Giusti, 1872 (\"ristampa\") "), 256);
    const QString redattore = Lungo(QStringLiteral("Maria d'Àngelo "), 64);
    Riga(editore, 6)->setText(estremi);
    Riga(editore, 7)->setText(autore);
    Blocco(editore, 9)->setPlainText(descrizione);
    Riga(editore, 10)->setText(xml);
    Riga(editore, 11)->setText(url);
    Blocco(editore, 12)->setPlainText(gestione);
    Riga(editore, 15)->setText(edizione);
    Riga(editore, 17)->setText(redattore);
    Combo(editore, "cmbTipologiaIN2")->setCurrentIndex(2);
    f->cmdConferma->click();
    QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    const qint64 inv = Selezionato(*f);
    QVERIFY(inv > 0 && inv != ModelloAlbero::IdTemporaneo);
    const QModelIndex nodo = f->Modello().Trova(inv);
    QCOMPARE(f->Modello().Testo(nodo), titolo);
    QCOMPARE(f->Modello().Tag(nodo), QStringLiteral("03"));
    QCOMPARE(f->Modello().Immagine(nodo), QStringLiteral("nolink"));
    QCOMPARE(f->Modello().Id(nodo.parent()), ist);
    QCOMPARE(Pulsanti7(*f), QStringLiteral("0011111"));
    QCOMPARE(Tag(f->cmdInvAnalitico), QStringLiteral("0"));
    QCOMPARE(Colore(f->cmdInvAnalitico), QStringLiteral("pulsante"));
    QCOMPARE(Colore(f->cmdAltreDen), QStringLiteral("pulsante"));
    QSqlQuery riga = a.cnn().Esegui(
        QStringLiteral("SELECT Denominazione, Tipologia, AnnoInizio, AnnoFine, "
                       "DescrizioneEstremi, Autore, TipoInventario, Note, XmlLink, UrlLink, "
                       "NoteDirezione, SubTipologia, Edizione, TipoInv FROM Inventari "
                       "WHERE ID_Elemento = ?"),
        {L(inv)});
    QVERIFY(riga.next());
    QCOMPARE(riga.value(0).toString(), titolo);
    QCOMPARE(riga.value(1).toString(), QStringLiteral("01"));
    QCOMPARE(riga.value(2).toInt(), 1790);
    QCOMPARE(riga.value(3).toInt(), 1850);
    QCOMPARE(riga.value(4).toString(), estremi);
    QCOMPARE(riga.value(5).toString(), autore);
    QCOMPARE(riga.value(6).toString(), QStringLiteral("D"));
    QCOMPARE(riga.value(7).toString(), descrizione);
    QCOMPARE(riga.value(8).toString(), xml);
    QCOMPARE(riga.value(9).toString(), url);
    QCOMPARE(riga.value(10).toString(), gestione);
    QCOMPARE(riga.value(11).toString(), QStringLiteral("03"));
    QCOMPARE(riga.value(12).toString(), edizione);
    QVERIFY(riga.value(13).isNull());
    riga.finish();
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Redattore FROM Elementi WHERE ID_Elemento = ?"), {L(inv)})
            .toString(),
        redattore);
    QCOMPARE(a.Valore(QStringLiteral("SELECT ID_ElementoPadre FROM Elementi "
                                     "WHERE ID_Elemento = ?"),
                      {L(inv)})
                 .toLongLong(),
             ist);

    // An edit, saved.
    f->cmdModifica->click();
    QCOMPARE(f->sStato, QStringLiteral("modifica"));
    QVERIFY(f->cmdInvAnalitico->isHidden());
    Riga(editore, 7)->setText(QStringLiteral("Salvatore Bongi"));
    f->cmdConferma->click();
    QCOMPARE(f->sStato, QStringLiteral("mostra"));
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT Autore FROM Inventari WHERE ID_Elemento = ?"), {L(inv)})
            .toString(),
        QStringLiteral("Salvatore Bongi"));
    QCOMPARE(Pulsanti7(*f), QStringLiteral("0011111"));
    QCOMPARE(f->Modello().Testo(f->Modello().Trova(inv)), titolo);

    // An edit cancelled.
    f->cmdModifica->click();
    Riga(editore, 0)->setText(QStringLiteral("Da buttare"));
    f->cmdAnnulla->click();
    QCOMPARE(Riga(editore, 0)->text(), titolo);
    QCOMPARE(f->Modello().Testo(f->Modello().Trova(inv)), titolo);
    QCOMPARE(a.Valore(QStringLiteral("SELECT Denominazione FROM Inventari "
                                     "WHERE ID_Elemento = ?"),
                      {L(inv)})
                 .toString(),
             titolo);
    QCOMPARE(Pulsanti7(*f), QStringLiteral("0011111"));

    // Another name, through the program's own dialog.
    AlComparire(QStringLiteral("frmAltreDenominazioni"), [](QWidget* dialogo) {
        Controllo<QPushButton>(dialogo, QStringLiteral("cmdNuovaDenom"))->click();
        Controllo<QLineEdit>(dialogo, QStringLiteral("Text1"))
            ->setText(QStringLiteral("Inventario \"vecchio\" dell'archivio Guinigi"));
        Controllo<QPushButton>(dialogo, QStringLiteral("cmdConferma"))->click();
        dialogo->close();
    });
    f->cmdAltreDen->click();
    QCOMPARE(a.Valore(QStringLiteral("SELECT D.AltraDenominazione FROM InventariDenominazioni D "
                                     "JOIN Inventari I ON I.ID_Inventario = D.ID_Inventario "
                                     "WHERE I.ID_Elemento = ?"),
                      {L(inv)})
                 .toString(),
             QStringLiteral("Inventario \"vecchio\" dell'archivio Guinigi"));
    QCOMPARE(Colore(f->cmdAltreDen), QStringLiteral("finestra"));

    // The MAG document of the digital finding aid, then its removal.
    auto* cmdImmagine = f->fraInventario->findChild<QPushButton*>(QStringLiteral("cmdImmagine"));
    QVERIFY(cmdImmagine->isEnabled());
    QCOMPARE(cmdImmagine->text(), QStringLiteral("Immagine"));
    const QString sDoc = a.cartella.File(QStringLiteral("scansioni/mag.xml"));
    QVERIFY(QDir().mkpath(a.cartella.File(QStringLiteral("scansioni"))));
    a.cartella.Scrivi(QStringLiteral("scansioni/0001.tif"), "immagine");
    a.cartella.Scrivi(QStringLiteral("scansioni/mag.xml"),
                      "<?xml version=\"1.0\"?>\n<metadigit><img><sequence_number>1"
                      "</sequence_number><nomenclature>c. 1r</nomenclature>"
                      "<file xlink:href=\"./0001.tif\"/></img></metadigit>\n");
    a.piattaforma.fileScelti = {sDoc};
    cmdImmagine->click();
    QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
             qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
    const QString sMd5 =
        a.Valore(QStringLiteral("SELECT Md5Link FROM Elementi WHERE ID_Elemento = ?"), {L(inv)})
            .toString();
    QCOMPARE(sMd5.size(), 32);
    QCOMPARE(cmdImmagine->text(), QStringLiteral("Elimina coll. immagine"));
    QCOMPARE(
        a.Valore(QStringLiteral("SELECT COUNT(*) FROM MD5Location WHERE MD5 = ?"), {sMd5}).toInt(),
        1);
    a.piattaforma.risposte = {Risposta::Si};
    cmdImmagine->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTesto,
             QStringLiteral("Sei sicuro di voler cancellare le immagini?"));
    QVERIFY(a.Valore(QStringLiteral("SELECT Md5Link FROM Elementi WHERE ID_Elemento = ?"), {L(inv)})
                .isNull());
    QCOMPARE(cmdImmagine->text(), QStringLiteral("Immagine"));
    a.piattaforma.Svuota();

    // "Inventario" with no complesso linked: the warning, and the kind written.
    f->cmdInvAnalitico->click();
    QCOMPARE(a.piattaforma.Messaggi().size(), 1);
    QCOMPARE(a.piattaforma.Messaggi()[0].sTesto, frmStrutturaIN::AvvisoNessunComplesso());
    QCOMPARE(TipoInv(a, inv).toString(), QStringLiteral("01"));
    QVERIFY(unita.aperture.isEmpty());
    a.piattaforma.Svuota();

    // With a complesso linked: the window of units, modally, with its arguments.
    const long fondo = a.Crea("02", QStringLiteral("Fondo Guinigi"), static_cast<long>(ist));
    a.Lega(fondo, static_cast<long>(inv));
    f->SelezionaNodo(f->Modello().Trova(inv));
    QCOMPARE(Tag(f->cmdInvAnalitico), QStringLiteral("1"));
    QCOMPARE(Colore(f->cmdInvAnalitico), QStringLiteral("finestra"));
    f->cmdInvAnalitico->click();
    QCOMPARE(unita.aperture.size(), 1);
    QVERIFY(unita.aperture[0].bModale);
    QCOMPARE(unita.aperture[0].argomenti.value(QStringLiteral("sTipo")).toString(),
             QStringLiteral("01"));
    QCOMPARE(unita.aperture[0].argomenti.value(QStringLiteral("sComplessoLinked")).toString(),
             QStringLiteral("Archivio di Stato di Lucca > Fondo Guinigi"));
    QCOMPARE(unita.aperture[0].globali.lIdInventario, static_cast<long>(inv));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    QVERIFY(Sessione::bFrmStrutturaINAperto);

    // The delete.
    a.piattaforma.risposte = {Risposta::Si};
    f->cmdCancella->click();
    QVERIFY(!f->Modello().Trova(inv).isValid());
    QCOMPARE(Selezionato(*f), ist);
    QCOMPARE(f->sTipo, QStringLiteral("istituto"));
    QCOMPARE(a.Righe("Inventari"), 0);
    QCOMPARE(a.Righe("InventariDenominazioni"), 0);
    QCOMPARE(a.Righe("Links"), 0);
    QCOMPARE(a.Righe("Elementi"), 2);
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore U4")).isEmpty());

    ChiusuraERiaperturaDalMenu(*principale, f, "mnuInventari", Sessione::bFrmStrutturaINAperto);
    principale.reset();
}

void TestStrutturaIN::passareDaComplessiInNuovoAStrumRicercaChiudeIlPrimoEApreIlSecondo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    auto principale = a.AvviaPrincipale();
    QVERIFY(principale);
    principale->findChild<QAction*>(QStringLiteral("mnuComplessiDoc"))->trigger();
    QPointer<frmStrutturaCD> complessi = principale->findChild<frmStrutturaCD*>();
    QVERIFY(complessi);
    complessi->cmdNuovoIst->click();
    CompilaIstituto(complessi->fraIstituto, QStringLiteral("Mai salvato"));
    QCOMPARE(complessi->sStato, QStringLiteral("nuovo"));

    principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QVERIFY(!complessi);
    QVERIFY(!Sessione::bFrmStrutturaCDAperto);
    QVERIFY(Sessione::bFrmStrutturaINAperto);
    QPointer<frmStrutturaIN> strumenti = principale->findChild<frmStrutturaIN*>();
    QVERIFY(strumenti);
    QCOMPARE(principale->Area()->subWindowList().size(), 1);
    QCOMPARE(principale->Area()->subWindowList()[0]->widget(), strumenti.data());
    // The edit was dropped without a word, and nothing was written.
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    QCOMPARE(a.Righe("Elementi"), 0);
    // A second click changes nothing.
    principale->findChild<QAction*>(QStringLiteral("mnuInventari"))->trigger();
    QCOMPARE(principale->findChild<frmStrutturaIN*>(), strumenti.data());
    QCOMPARE(principale->Area()->subWindowList().size(), 1);
    // And back.
    principale->findChild<QAction*>(QStringLiteral("mnuComplessiDoc"))->trigger();
    QVERIFY(!strumenti);
    QVERIFY(!Sessione::bFrmStrutturaINAperto);
    QVERIFY(Sessione::bFrmStrutturaCDAperto);
    principale.reset();
}

void TestStrutturaIN::unoStrumentoCancellatoAltroveColSuoIstitutoLoDiceELAlberoResta_data() {
    QList<std::pair<const char*, QString>> passi;
    for (const char* passo : {"clic", "salva", "nuovo", "cancella", "inventario"})
        passi.append({passo, QString::fromLatin1(passo)});
    RighePerBackend("sPasso", passi);
}

void TestStrutturaIN::unoStrumentoCancellatoAltroveColSuoIstitutoLoDiceELAlberoResta() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, sPasso);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long altro = a.Crea("01", QStringLiteral("Archivio di Stato di Firenze"));
    const long ist = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
    const long inv = a.Crea("03", QStringLiteral("Inventario Guinigi"), ist);
    const Sostituto unita(QStringLiteral("frmStrutturaDI"));
    frmStrutturaIN f;
    // What the window showed before the other workstation's delete.
    if (sPasso == QStringLiteral("nuovo")) {
        Scegli(f, ist);
        f.cmdNuovoInv->click();
        CompilaInventario(f.fraInventario, QStringLiteral("Inventario nuovo"));
    } else if (sPasso != QStringLiteral("clic")) {
        Scegli(f, inv);
        if (sPasso == QStringLiteral("salva")) {
            f.cmdModifica->click();
            CompilaInventario(f.fraInventario, QStringLiteral("Inventario Guinigi"));
            Riga(f.fraInventario, 7)->setText(QStringLiteral("Salvatore Bongi"));
        }
    }
    // Another workstation deletes the finding aid, then its institute.
    {
        const auto altra = a.banca.Apri();
        ArchivioElementi::Elimina(*altra, QStringLiteral("03"), inv);
        ArchivioElementi::Elimina(*altra, QStringLiteral("01"), ist);
        altra->Chiudi();
    }
    const int elementi = a.Righe("Elementi");
    QCOMPARE(elementi, 1);

    if (sPasso == QStringLiteral("clic")) {
        // The record is not there: it shows empty, with the commands of a missing row.
        Scegli(f, inv);
        QCOMPARE(f.sTipo, QStringLiteral("inventario"));
        QVERIFY(Riga(f.fraInventario, 0)->text().isEmpty());
        QCOMPARE(f.fraInventario->InventariAnalitici, -1);
        QCOMPARE(Pulsanti7(f), QStringLiteral("0000110"));
        QVERIFY(a.piattaforma.Messaggi().isEmpty());
    } else if (sPasso == QStringLiteral("salva")) {
        // Nothing is written and nothing said; the record is locked with a missing row's flags.
        f.cmdConferma->click();
        QVERIFY2(a.piattaforma.Messaggi().isEmpty(),
                 qPrintable(a.piattaforma.Messaggi().value(0).sTesto));
        QCOMPARE(f.sStato, QStringLiteral("mostra"));
        QVERIFY(!Riga(f.fraInventario, 7)->isEnabled());
        QCOMPARE(Pulsanti7(f), QStringLiteral("0000110"));
        QCOMPARE(a.Righe("Inventari"), 0);
    } else if (sPasso == QStringLiteral("nuovo")) {
        // The new finding aid would hang under nothing: refused in the box of a row of Elementi
        // that cannot be written, and the edit goes on until Annulla.
        f.cmdConferma->click();
        const QList<Messaggio> errori = a.piattaforma.Messaggi();
        QCOMPARE(errori.size(), 1);
        QCOMPARE(errori[0].icona, Icona::Critica);
        QCOMPARE(errori[0].sTitolo, Sessione::TitoloProgramma);
        QVERIFY2(errori[0].sTesto.contains(QStringLiteral("non esiste più")),
                 qPrintable(errori[0].sTesto));
        QCOMPARE(f.sStato, QStringLiteral("nuovo"));
        QCOMPARE(a.Righe("Elementi"), elementi);
        QCOMPARE(a.Righe("Inventari"), 0);
        f.cmdAnnulla->click();
        QCOMPARE(f.sStato, QStringLiteral("mostra"));
        QVERIFY(!f.Modello().Trova(ModelloAlbero::IdTemporaneo).isValid());
        QCOMPARE(Selezionato(f), qint64(ist));
    } else if (sPasso == QStringLiteral("cancella")) {
        // The question, then no row to delete: nothing more is said, the institute is shown.
        a.piattaforma.risposte = {Risposta::Si};
        f.cmdCancella->click();
        QCOMPARE(a.piattaforma.Messaggi().size(), 1);
        QCOMPARE(a.piattaforma.Messaggi()[0].sTitolo,
                 QStringLiteral("Cancella Inventario: Inventario Guinigi"));
        QCOMPARE(Selezionato(f), qint64(ist));
        QCOMPARE(f.sTipo, QStringLiteral("istituto"));
        QCOMPARE(Pulsanti7(f).mid(1), QStringLiteral("000000"));
    } else {
        // "Inventario" on it: nothing written, nothing opened; the record shows it is gone.
        f.cmdInvAnalitico->click();
        QCOMPARE(a.Righe("Inventari"), 0);
        QVERIFY(unita.aperture.isEmpty());
        QCOMPARE(f.fraInventario->InventariAnalitici, -1);
        QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("-1"));
        QVERIFY(!f.cmdInvAnalitico->isEnabled());
    }
    QCOMPARE(a.Righe("Elementi"), elementi);

    // The tree stays usable, and loads afresh without what is gone.
    a.piattaforma.Svuota();
    Scegli(f, altro);
    QCOMPARE(f.sTipo, QStringLiteral("istituto"));
    QCOMPARE(Pulsanti7(f).left(3), QStringLiteral("111"));
    f.cmdNuovoInv->click();
    CompilaInventario(f.fraInventario, QStringLiteral("Inventario di Firenze"));
    f.cmdConferma->click();
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(a.piattaforma.Messaggi().isEmpty());
    frmStrutturaIN dopo;
    QVERIFY(MessaggiCon(a.piattaforma, QStringLiteral("Errore U5")).isEmpty());
    QCOMPARE(dopo.Modello().Nodi(), 3);
    QCOMPARE(TestiFigli(dopo.Modello(), dopo.Modello().Radice()),
             QStringList{QStringLiteral("Archivio di Stato di Firenze")});
    QCOMPARE(TestiFigli(dopo.Modello(), dopo.Modello().Trova(altro)),
             QStringList{QStringLiteral("Inventario di Firenze")});
}

void TestStrutturaIN::unTipoInvRifiutatoDalServerLoDiceENonScriveNulla_data() {
    RighePerBackend<bool>("bComplesso", {{"con complesso", true}, {"senza complessi", false}});
}

void TestStrutturaIN::unTipoInvRifiutatoDalServerLoDiceENonScriveNulla() {
    QFETCH(TipoBackend, backend);
    QFETCH(bool, bComplesso);
    RICHIEDI_BACKEND(backend);
    AmbienteStruttura a(backend);
    const long ist = a.Crea("01", QStringLiteral("Archivio"));
    const long inv = a.Crea("03", QStringLiteral("Inventario"), ist);
    if (bComplesso) {
        a.Lega(a.Crea("02", QStringLiteral("Fondo"), ist), inv);
    }
    const auto ruolo = RifiutaTipoInv(a);
    const Sostituto unita(QStringLiteral("frmStrutturaDI"));
    frmStrutturaIN f;
    Scegli(f, inv);
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("0"));
    f.cmdInvAnalitico->click();

    QList<Messaggio> boxes = a.piattaforma.Messaggi();
    if (!bComplesso) {
        // The warning comes first, as always.
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes.takeFirst().sTesto, frmStrutturaIN::AvvisoNessunComplesso());
    }
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].icona, Icona::Critica);
    QCOMPARE(boxes[0].pulsanti, Pulsanti::Ok);
    QCOMPARE(boxes[0].sTitolo, Sessione::TitoloProgramma);
    QVERIFY2(boxes[0].sTesto.contains(QStringLiteral("inventari"), Qt::CaseInsensitive),
             qPrintable(boxes[0].sTesto));
    // Nothing half written: the row, the Tag, the record's state as they were, no window.
    QVERIFY(TipoInv(a, inv).isNull());
    QCOMPARE(Tag(f.cmdInvAnalitico), QStringLiteral("0"));
    QCOMPARE(f.fraInventario->InventariAnalitici, 0);
    QVERIFY(unita.aperture.isEmpty());
    QCOMPARE(f.sStato, QStringLiteral("mostra"));
    QVERIFY(f.tvwDB->isEnabled());
}

QTEST_MAIN(TestStrutturaIN)
#include "tst_strutturain.moc"
