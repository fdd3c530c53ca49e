// The whole road of the three access points, through the real windows and dialogs: an entry
// made in its window opened from the main menu ("Persone", "Toponimi", "Titolari"), tied from a
// parchment, a unit or a seal through the record's button, its viewer, Nuovo collegamento and
// the dialog, back to a fresh viewer where the role is given; then seen from the entry's own
// window (its link button lit, the viewer of its links showing the tie, the delete button off),
// untied, and deleted once the window is opened again. A person made on the spot inside the
// dialog is seen afterwards in "Persone". What each road wrote is checked with queries of the
// test's own, on SQLite and on PostgreSQL.

#include "authorities/EditoreAccesso.h"
#include "authorities/FinestraPuntoAccesso.h"
#include "links/ModelloSpunte.h"
#include "links/frmLinkPuntiAccesso.h"
#include "programma/Registro.h"
#include "records/ucDatiInventariali.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteLink.h"
#include "AmbienteSulBackend.h"
#include "Modali.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

namespace {

qlonglong L(qint64 valore) {
    return static_cast<qlonglong>(valore);
}

// The environment of the records with the main form open after a login on its database.
struct Ambiente : AmbienteLink {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteLink(tipo) {
        cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("I"));
        Sessione::cnn.reset();
        principale = std::make_unique<PrimoMDI>();
        bAperta = AvviaSessione(*principale, banca);
        seam.Svuota();
    }
    ~Ambiente() { principale.reset(); }
    Ambiente(const Ambiente&) = delete;
    Ambiente& operator=(const Ambiente&) = delete;

    // The window of the menu entry, opened from the main form.
    QPointer<FinestraPuntoAccesso> Finestra(const char* sVoce, const char* sNome) const {
        principale->findChild<QAction*>(QLatin1String(sVoce))->trigger();
        for (auto* f : principale->findChildren<FinestraPuntoAccesso*>()) {
            if (f->objectName() == QLatin1String(sNome)) {
                return f;
            }
        }
        return nullptr;
    }

    // The texts the test expects in a viewer of the entry's ties: the finding aid, " > ", and
    // the rest, read with a query of the test's own, with the keys of the items.
    QStringList Attesi(const QString& sql, qint64 lId, QList<qint64>& chiavi) const {
        QStringList testi;
        QSqlQuery query = Cnn().Esegui(sql, {L(lId)});
        while (query.next()) {
            chiavi << query.value(0).toLongLong();
            testi << query.value(1).toString().trimmed() + QStringLiteral(" > ") +
                         query.value(2).toString().trimmed();
        }
        return testi;
    }

    std::unique_ptr<PrimoMDI> principale;
    bool bAperta = false;
};

// An entry made in its window: Nuovo, the name, Conferma; its key.
qint64 NuovaVoce(FinestraPuntoAccesso& f, const QString& sNome) {
    f.cmdNuovoSog->click();
    ScriviTesto(f.findChild<EditoreAccesso*>(), 0, sNome);
    f.cmdConferma->click();
    return f.sStato == QStringLiteral("mostra") ? f.aId.value(0) : 0;
}

int Riga(const FinestraPuntoAccesso& f, const QString& sNome) {
    for (int i = 0; i < f.Modello(0).Righe(); ++i) {
        if (f.Modello(0).Testo(i) == sNome) {
            return i;
        }
    }
    return -1;
}

// An entry made in its window and read back by its key from its table's column of names; its key
// in lId.
void FaiVoce(const Ambiente& a, FinestraPuntoAccesso& f, const QString& sNome, const char* tabella,
             const char* colonnaNome, const char* chiave, qint64& lId) {
    lId = NuovaVoce(f, sNome);
    QVERIFY(lId > 0);
    QCOMPARE(a.Valore(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                          .arg(QLatin1String(colonnaNome), QLatin1String(tabella),
                               QLatin1String(chiave)),
                      {L(lId)})
                 .toString(),
             sNome);
}

// The window closed and opened again from the menu.
QPointer<FinestraPuntoAccesso> Riapri(const Ambiente& a, QPointer<FinestraPuntoAccesso> f,
                                      const char* sVoce, const char* sNome) {
    f->close();
    if (!QTest::qWaitFor([&] { return f.isNull(); })) {
        return nullptr;
    }
    return a.Finestra(sVoce, sNome);
}

// What the entry's viewer showed: its title, texts and keys; when bScioglie, the item at that
// text is deleted after the question before the viewer closes.
struct Vista {
    bool bAperto = false;
    QString sTitolo;
    QStringList testi;
    QList<qint64> chiavi;
};

void Guarda(Ambiente& a, const QString& sViewer, QAbstractButton* pulsante, Vista& vista,
            const QString& sScioglie = QString()) {
    AlComparire(sViewer, [&a, &vista, sScioglie](QWidget* viewer) {
        vista.bAperto = true;
        vista.sTitolo = viewer->windowTitle();
        QTreeWidget* lista = Lista(viewer);
        vista.testi = Testi(lista);
        vista.chiavi = Chiavi(lista);
        const int iRiga = static_cast<int>(vista.testi.indexOf(sScioglie));
        if (!sScioglie.isNull() && iRiga >= 0) {
            lista->setCurrentItem(lista->topLevelItem(iRiga));
            a.seam.risposte = {Risposta::Si};
            Bottone(viewer, "cmdCancella")->click();
        }
        static_cast<QDialog*>(viewer)->reject();
    });
    pulsante->click();
}

// The rows of a table whose column holds the entry's key.
qint64 RigheDellaVoce(const Ambiente& a, const char* tabella, const char* colonna, qint64 lId) {
    return a.Conta(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?")
                       .arg(QLatin1String(tabella), QLatin1String(colonna)),
                   {L(lId)});
}

// The tie at that text untied in the entry's own viewer: the viewer came up and the table of the
// ties keeps no row of the entry.
void SciogliNelVisualizzatore(Ambiente& a, const QString& sViewer, QAbstractButton* pulsante,
                              const QString& sVoce, const char* tabella, const char* colonna,
                              qint64 lId) {
    Vista sciolta;
    Guarda(a, sViewer, pulsante, sciolta, sVoce);
    QVERIFY(sciolta.bAperto);
    QCOMPARE(RigheDellaVoce(a, tabella, colonna, lId), 0);
}

// The entry deleted from its window after the question: gone from the window and from its table.
void Cancella(Ambiente& a, FinestraPuntoAccesso& f, const QString& sNome, const char* tabella,
              const char* colonna, qint64 lId) {
    f.SelezionaRiga(Riga(f, sNome));
    QVERIFY(f.cmdCancella->isEnabled());
    a.seam.risposte = {Risposta::Si};
    f.cmdCancella->click();
    QCOMPARE(Riga(f, sNome), -1);
    QCOMPARE(RigheDellaVoce(a, tabella, colonna, lId), 0);
}

const char* const PGAntALL =
    "SELECT PGANT.ID_PGAntroponimo, INV.DenomCompleta, PG.Segnatura FROM PGAntroponimi PGANT "
    "JOIN Pergamene PG ON PGANT.ID_Pergamena = PG.ID_Pergamena JOIN Inventari INV ON "
    "INV.ID_Inventario = PG.ID_Inventario WHERE PGANT.ID_Antroponimo = ?";
const char* const PGTopALL =
    "SELECT PGTOP.ID_Pergamena, INV.DenomCompleta, PG.Segnatura FROM PGToponimi PGTOP "
    "JOIN Pergamene PG ON PGTOP.ID_Pergamena = PG.ID_Pergamena JOIN Inventari INV ON "
    "INV.ID_Inventario = PG.ID_Inventario WHERE PGTOP.ID_Toponimo = ?";
const char* const TitSG =
    "SELECT SGTIT.ID_SGTitolare, INV.DenomCompleta, SG.Identificativo FROM SGTitolari SGTIT "
    "JOIN Sigilli SG ON SGTIT.ID_Sigillo = SG.ID_Sigillo JOIN Inventari INV ON "
    "INV.ID_Inventario = SG.ID_Inventario WHERE SGTIT.ID_Titolare = ?";

} // namespace

class TestStradePuntiAccesso : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void init() { Sessione::Azzera(); }
    void cleanup() { Sessione::Azzera(); }

    void unaPersonaFattaInPersoneSiLegaDallaPergamenaSiVedeSiSciogliESiCancella_data() {
        AggiungiBackend();
    }
    void unaPersonaFattaInPersoneSiLegaDallaPergamenaSiVedeSiSciogliESiCancella();
    void unLuogoLegatoAPergamenaEUnitaSiVedeNeiDueElenchiSiSciogliESiCancella_data() {
        AggiungiBackend();
    }
    void unLuogoLegatoAPergamenaEUnitaSiVedeNeiDueElenchiSiSciogliESiCancella();
    void unTitolareLegatoAlSigilloConRuoloSiVedeSiSciogliESiCancella_data() { AggiungiBackend(); }
    void unTitolareLegatoAlSigilloConRuoloSiVedeSiSciogliESiCancella();
    void unaPersonaFattaNelDialogoSiVedePoiInPersoneLegata_data() { AggiungiBackend(); }
    void unaPersonaFattaNelDialogoSiVedePoiInPersoneLegata();
};

void TestStradePuntiAccesso::
    unaPersonaFattaInPersoneSiLegaDallaPergamenaSiVedeSiSciogliESiCancella() {
    AMBIENTE_SUL_BACKEND(Ambiente, a);
    QVERIFY(a.bAperta);
    const Oggetti o = a.NuoviOggetti();
    const QString sNome = QStringLiteral("Gherardo \"il Vècchio\" d'Àngelo");

    // 1. Made in "Persone".
    QPointer<FinestraPuntoAccesso> f = a.Finestra("mnuAntroponimi", "frmAntroponimi");
    QVERIFY(f);
    qint64 lId = 0;
    FaiVoce(a, *f, sNome, "Antroponimi", "Nome", "ID_Antroponimo", lId);
    QVERIFY(!f->cmdMostraLinks[0]->isEnabled());
    QVERIFY(f->cmdCancella->isEnabled());

    // 2. Tied from the parchment, with a role.
    EditorePronto<ucPergamena> pergamena(o.pergamena);
    StradaPuntoAccesso strada;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkAnt"), QStringLiteral("frmLinkAntroponimi"),
                         sNome, QStringLiteral("Testimone"), strada);
    Pulsante(&pergamena, "cmdMostraAntroponimi")->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(strada.dopo, QStringList{sNome});
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi WHERE ID_Pergamena = ? "
                                    "AND ID_Antroponimo = ? AND Ruolo = ?"),
                     {L(o.idPergamena), L(lId), QStringLiteral("Testimone")}),
             1);
    QVERIFY(PulsanteAcceso(Pulsante(&pergamena, "cmdMostraAntroponimi")));

    // 3. Seen from its window: the parchments' button lit, the units' off, no delete.
    f->SelezionaRiga(Riga(*f, sNome));
    QVERIFY(f->cmdMostraLinks[0]->isEnabled());
    QVERIFY(PulsanteAcceso(f->cmdMostraLinks[0]));
    QVERIFY(!f->cmdMostraLinks[1]->isEnabled());
    QVERIFY(!PulsanteAcceso(f->cmdMostraLinks[1]));
    QVERIFY(!f->cmdCancella->isEnabled());
    QList<qint64> chiavi;
    const QStringList attesi = a.Attesi(QLatin1String(PGAntALL), lId, chiavi);
    QCOMPARE(attesi.size(), 1);
    Vista vista;
    Guarda(a, QStringLiteral("frmMostraLinkAntALL"), f->cmdMostraLinks[0], vista);
    QVERIFY(vista.bAperto);
    QCOMPARE(vista.sTitolo, QStringLiteral("Collegamenti alle pergamene"));
    QCOMPARE(vista.testi, attesi);
    QCOMPARE(vista.chiavi, chiavi);
    QCOMPARE(Sessione::sTipoLink, QStringLiteral("0"));
    QCOMPARE(Sessione::sDenomSoggetto, sNome);

    // 4. Untied in the entry's own viewer; the window opened again lets it go.
    SciogliNelVisualizzatore(a, QStringLiteral("frmMostraLinkAntALL"), f->cmdMostraLinks[0],
                             attesi[0], "PGAntroponimi", "ID_Antroponimo", lId);
    f = Riapri(a, f, "mnuAntroponimi", "frmAntroponimi");
    QVERIFY(f);
    f->SelezionaRiga(Riga(*f, sNome));
    QVERIFY(!f->cmdMostraLinks[0]->isEnabled());
    Cancella(a, *f, sNome, "Antroponimi", "ID_Antroponimo", lId);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi"), {}), 0);
}

void TestStradePuntiAccesso::
    unLuogoLegatoAPergamenaEUnitaSiVedeNeiDueElenchiSiSciogliESiCancella() {
    AMBIENTE_SUL_BACKEND(Ambiente, a);
    QVERIFY(a.bAperta);
    const Oggetti o = a.NuoviOggetti();
    const QString sNome = QStringLiteral("Sant'Àngelo \"in Campo\"");

    QPointer<FinestraPuntoAccesso> f = a.Finestra("mnuToponimi", "frmToponimi");
    QVERIFY(f);
    qint64 lId = 0;
    FaiVoce(a, *f, sNome, "Toponimi", "Denominazione", "ID_Toponimo", lId);

    // Tied from the parchment and from the unit.
    EditorePronto<ucPergamena> pergamena(o.pergamena);
    StradaPuntoAccesso daPergamena;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkTopo"), QStringLiteral("frmLinkToponimi"),
                         sNome, QString(), daPergamena);
    Pulsante(&pergamena, "cmdMostraToponimi")->click();
    QVERIFY(daPergamena.bDialogo);
    QCOMPARE(daPergamena.dopo, QStringList{sNome});
    EditorePronto<ucDatiInventariali> unita(o.unita);
    StradaPuntoAccesso daUnita;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkTopo"), QStringLiteral("frmLinkToponimi"),
                         sNome, QString(), daUnita);
    Pulsante(&unita, "cmdMostraToponimi")->click();
    QVERIFY(daUnita.bDialogo);
    QCOMPARE(daUnita.dopo, QStringList{sNome});
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGToponimi WHERE ID_Pergamena = ? AND "
                                    "ID_Toponimo = ?"),
                     {L(o.idPergamena), L(lId)}),
             1);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM DIToponimi WHERE ID_DatoInventariale "
                                    "= ? AND ID_Toponimo = ?"),
                     {L(o.idUnita), L(lId)}),
             1);

    // Seen from its window: both buttons lit, no delete; each viewer shows its side.
    f->SelezionaRiga(Riga(*f, sNome));
    QVERIFY(f->cmdMostraLinks[0]->isEnabled() && PulsanteAcceso(f->cmdMostraLinks[0]));
    QVERIFY(f->cmdMostraLinks[1]->isEnabled() && PulsanteAcceso(f->cmdMostraLinks[1]));
    QVERIFY(!f->cmdCancella->isEnabled());
    QList<qint64> chiaviPG;
    const QStringList attesiPG = a.Attesi(QLatin1String(PGTopALL), lId, chiaviPG);
    QCOMPARE(attesiPG.size(), 1);
    Vista pergamene;
    Guarda(a, QStringLiteral("frmMostraLinkTopALL"), f->cmdMostraLinks[0], pergamene);
    QVERIFY(pergamene.bAperto);
    QCOMPARE(Sessione::sTipoLink, QStringLiteral("0"));
    QCOMPARE(pergamene.sTitolo, QStringLiteral("Collegamenti alle pergamene"));
    QCOMPARE(pergamene.testi, attesiPG);
    QCOMPARE(pergamene.chiavi, chiaviPG);
    const QString sInventarioUnita =
        a.Valore(QStringLiteral("SELECT INV.DenomCompleta FROM DatiInventariali DI JOIN "
                                "Inventari INV ON INV.ID_Inventario = DI.ID_Inventario WHERE "
                                "DI.ID_DatoInventariale = ?"),
                 {L(o.idUnita)})
            .toString()
            .trimmed();
    Vista unitaViste;
    Guarda(a, QStringLiteral("frmMostraLinkTopALL"), f->cmdMostraLinks[1], unitaViste);
    QVERIFY(unitaViste.bAperto);
    QCOMPARE(Sessione::sTipoLink, QStringLiteral("1"));
    QCOMPARE(unitaViste.sTitolo, QStringLiteral("Collegamenti all'inventario base"));
    QCOMPARE(unitaViste.chiavi, QList<qint64>{o.idUnita});
    QCOMPARE(unitaViste.testi.size(), 1);
    QVERIFY2(unitaViste.testi[0].startsWith(sInventarioUnita + QStringLiteral(" > ")),
             qPrintable(unitaViste.testi[0]));

    // Untied: from the parchment's side in the parchment's viewer, from the unit's side in the
    // entry's viewer of units.
    a.seam.risposte = {Risposta::Si};
    AlComparire(QStringLiteral("frmMostraLinkTopo"), [](QWidget* v) {
        Lista(v)->setCurrentItem(Lista(v)->topLevelItem(0));
        Bottone(v, "cmdCancella")->click();
        static_cast<QDialog*>(v)->reject();
    });
    Pulsante(&pergamena, "cmdMostraToponimi")->click();
    QCOMPARE(
        a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGToponimi WHERE ID_Toponimo = ?"), {L(lId)}),
        0);
    // Still tied to the unit: no delete, the parchments' button off.
    f->SelezionaRiga(Riga(*f, sNome));
    QVERIFY(!f->cmdMostraLinks[0]->isEnabled());
    QVERIFY(!f->cmdCancella->isEnabled());
    SciogliNelVisualizzatore(a, QStringLiteral("frmMostraLinkTopALL"), f->cmdMostraLinks[1],
                             unitaViste.testi[0], "DIToponimi", "ID_Toponimo", lId);

    f = Riapri(a, f, "mnuToponimi", "frmToponimi");
    QVERIFY(f);
    Cancella(a, *f, sNome, "Toponimi", "ID_Toponimo", lId);
}

void TestStradePuntiAccesso::unTitolareLegatoAlSigilloConRuoloSiVedeSiSciogliESiCancella() {
    AMBIENTE_SUL_BACKEND(Ambiente, a);
    QVERIFY(a.bAperta);
    const Oggetti o = a.NuoviOggetti();
    const QString sNome = QStringLiteral("Capitolo di San Martino \"Maggiore\" d'Ìsola");

    QPointer<FinestraPuntoAccesso> f = a.Finestra("mnuTitolari", "frmTitolari");
    QVERIFY(f);
    qint64 lId = 0;
    FaiVoce(a, *f, sNome, "Titolari", "Nome", "ID_Titolare", lId);

    EditorePronto<ucSigillo> sigillo(o.sigillo);
    StradaPuntoAccesso strada;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkTitolari"), QStringLiteral("frmLinkTitolari"),
                         sNome, QStringLiteral("Garante"), strada);
    Pulsante(&sigillo, "cmdMostraTitolari")->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(strada.dopo, QStringList{sNome});
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM SGTitolari WHERE ID_Sigillo = ? AND "
                                    "ID_Titolare = ? AND Ruolo = ?"),
                     {L(o.idSigillo), L(lId), QStringLiteral("Garante")}),
             1);

    f->SelezionaRiga(Riga(*f, sNome));
    QVERIFY(f->cmdMostraLinks[0]->isEnabled());
    QVERIFY(PulsanteAcceso(f->cmdMostraLinks[0]));
    QVERIFY(!f->cmdCancella->isEnabled());
    QList<qint64> chiavi;
    const QStringList attesi = a.Attesi(QLatin1String(TitSG), lId, chiavi);
    QCOMPARE(attesi.size(), 1);
    Vista vista;
    Guarda(a, QStringLiteral("frmMostraLinkTitSG"), f->cmdMostraLinks[0], vista);
    QVERIFY(vista.bAperto);
    QCOMPARE(vista.sTitolo, QStringLiteral("Collegamenti ai sigilli"));
    QCOMPARE(vista.testi, attesi);
    QCOMPARE(vista.chiavi, chiavi);

    SciogliNelVisualizzatore(a, QStringLiteral("frmMostraLinkTitSG"), f->cmdMostraLinks[0],
                             attesi[0], "SGTitolari", "ID_Titolare", lId);
    f = Riapri(a, f, "mnuTitolari", "frmTitolari");
    QVERIFY(f);
    Cancella(a, *f, sNome, "Titolari", "ID_Titolare", lId);
}

void TestStradePuntiAccesso::unaPersonaFattaNelDialogoSiVedePoiInPersoneLegata() {
    AMBIENTE_SUL_BACKEND(Ambiente, a);
    QVERIFY(a.bAperta);
    const Oggetti o = a.NuoviOggetti();
    a.Antroponimo(QStringLiteral("Ubaldo"));
    const QString sNome = QStringLiteral("Bàrtolo \"il Giovane\" d'Orso");

    EditorePronto<ucPergamena> pergamena(o.pergamena);
    StradaPuntoAccesso strada;
    PercorriPuntoAccesso(QStringLiteral("frmMostraLinkAnt"), QStringLiteral("frmLinkAntroponimi"),
                         sNome, QString(), strada, false, [&sNome](DialogoPuntoAccesso& d) {
                             d.cmdNuovoSog->click();
                             ScriviTesto(d.Editore(), 0, sNome);
                             d.cmdConferma->click();
                         });
    Pulsante(&pergamena, "cmdMostraAntroponimi")->click();
    QVERIFY(strada.bDialogo);
    QCOMPARE(strada.dopo, QStringList{sNome});
    const qint64 lId =
        a.Valore(QStringLiteral("SELECT ID_Antroponimo FROM Antroponimi WHERE Nome = ?"), {sNome})
            .toLongLong();
    QVERIFY(lId > 0);
    QCOMPARE(a.Conta(QStringLiteral("SELECT COUNT(*) FROM PGAntroponimi WHERE ID_Pergamena = ? "
                                    "AND ID_Antroponimo = ?"),
                     {L(o.idPergamena), L(lId)}),
             1);

    QPointer<FinestraPuntoAccesso> f = a.Finestra("mnuAntroponimi", "frmAntroponimi");
    QVERIFY(f);
    const int iRiga = Riga(*f, sNome);
    QVERIFY(iRiga >= 0);
    f->SelezionaRiga(iRiga);
    QCOMPARE(f->aId.value(0), lId);
    QVERIFY(f->cmdMostraLinks[0]->isEnabled());
    QVERIFY(!f->cmdCancella->isEnabled());
    Vista vista;
    Guarda(a, QStringLiteral("frmMostraLinkAntALL"), f->cmdMostraLinks[0], vista);
    QVERIFY(vista.bAperto);
    QList<qint64> chiavi;
    QCOMPARE(vista.testi, a.Attesi(QLatin1String(PGAntALL), lId, chiavi));
    QCOMPARE(vista.chiavi, chiavi);
}

QTEST_MAIN(TestStradePuntiAccesso)
#include "tst_stradepuntiaccesso.moc"
