// The modal dialogs by name: a name without a dialog opens nothing, the arguments reach the
// maker, the dialog runs modally and is gone afterwards, an error of its making reaches the
// opener; a stand-in registered before the program's own windows stays, Registra replaces.
// The complesso record opens the viewers of its links by name, with the session values they
// read, on SQLite and on PostgreSQL.

#include "programma/Registro.h"
#include "records/ucComplesso.h"
#include "session/Dialoghi.h"
#include "session/Errore.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "HostEditore.h"
#include "PiattaformaScriptata.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QtTest>
#include <algorithm>
#include <memory>

namespace {

// Counts the windows that come on the screen while it lives.
class ContaFinestre : public QObject {
public:
    ContaFinestre() { QCoreApplication::instance()->installEventFilter(this); }
    ~ContaFinestre() override { QCoreApplication::instance()->removeEventFilter(this); }
    int iComparse = 0;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::Show && oggetto->isWidgetType() &&
            static_cast<QWidget*>(oggetto)->isWindow())
            ++iComparse;
        return false;
    }
};

QSet<QWidget*> Finestre() {
    const QWidgetList finestre = QApplication::topLevelWidgets();
    return QSet<QWidget*>(finestre.begin(), finestre.end());
}

// What a stand-in dialog was given and saw while it was up.
struct Visto {
    int iFatti = 0;
    QWidget* genitore = nullptr;
    Dialoghi::Argomenti argomenti;
    bool bModale = false;
    QString sNome;
    QPointer<QDialog> dialogo;
    bool bSiCancellaDaSe = false;
    // Run while the dialog is up, before it closes.
    std::function<void()> alComparire;
};

// A dialog that notes what it was given and what it saw, and closes as soon as it is up.
Dialoghi::Fabbrica Sostituto(Visto& visto) {
    return [&visto](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
        ++visto.iFatti;
        visto.genitore = genitore;
        visto.argomenti = argomenti;
        auto* dialogo = new QDialog(genitore);
        if (visto.bSiCancellaDaSe)
            dialogo->setAttribute(Qt::WA_DeleteOnClose);
        visto.dialogo = dialogo;
        QTimer::singleShot(0, dialogo, [dialogo, &visto] {
            visto.bModale = dialogo->isModal() && QApplication::activeModalWidget() == dialogo;
            visto.sNome = dialogo->objectName();
            if (visto.alComparire)
                visto.alComparire();
            dialogo->accept();
        });
        return dialogo;
    };
}

// The session values that the viewers of a complesso read.
struct ValoriSessione {
    QString sDenomComplesso;
    long lIdComplesso = 0;
    int iTipoSogg = 0;
    QString sTipoLink;
    int iEsitoLinkSogg = 0;
    int iEsitoLinkInv = 0;

    static ValoriSessione Ora() {
        return {Sessione::sDenomComplesso, Sessione::lIdComplesso,   int(Sessione::iTipoSogg),
                Sessione::sTipoLink,       Sessione::iEsitoLinkSogg, Sessione::iEsitoLinkInv};
    }
};

// Values that no button sets: what a button leaves as it was shows.
void ValoriVecchi() {
    Sessione::sDenomComplesso = QStringLiteral("Altro fondo");
    Sessione::lIdComplesso = 987654;
    Sessione::iTipoSogg = 2;
    Sessione::sTipoLink = QStringLiteral("1");
    Sessione::iEsitoLinkSogg = 5;
    Sessione::iEsitoLinkInv = 5;
}

// The window that hosts the record: the tree's node has its own text; it notes the outcome of
// the viewer that it finds when the record calls it back.
class Chiamante : public ChiamanteComplesso {
public:
    QString GetDenon() override { return QStringLiteral("Nodo «Podestà»"); }
    void ChkSogg() override { esitiSogg.append(Sessione::iEsitoLinkSogg); }
    void ChkLinks() override { esitiInv.append(Sessione::iEsitoLinkInv); }
    QList<int> esitiSogg;
    QList<int> esitiInv;
};

// A complesso under an institute, shown by its record in a host window.
struct Complesso {
    explicit Complesso(TipoBackend tipo)
        : banca(tipo) {
        cartella.CopiaDalSito({QStringLiteral("TipologiaCD.txt")});
        Sessione::cnn = banca.Apri();
        Sessione::dValore = 1.0;
        const long istituto =
            ArchivioElementi::Crea(*Sessione::cnn, QStringLiteral("01"), QStringLiteral("Ist"), 0);
        lId = ArchivioElementi::Crea(*Sessione::cnn, QStringLiteral("02"),
                                     QStringLiteral("Comune di Forlì"), istituto);
        Sessione::cnn->Esegui(
            QStringLiteral("UPDATE ComplessiDoc SET Denominazione = ? WHERE ID_Elemento = ?"),
            {QStringLiteral("Comune di Forlì"), QVariant(qlonglong(lId))});
        editore = new ucComplesso;
        ospite = std::make_unique<HostEditore>(editore, QStringLiteral("02"), istituto);
        editore->Init(false, &chiamante);
        ospite->show();
        ospite->MostraElemento(lId);
    }
    ~Complesso() {
        ospite.reset();
        Sessione::cnn.reset();
    }
    QPushButton* Pulsante(const char* nome) const {
        return editore->findChild<QPushButton*>(QLatin1String(nome));
    }

    CartellaProva cartella;
    BancaDatiProva banca;
    PiattaformaScriptata seam;
    Chiamante chiamante;
    ucComplesso* editore = nullptr;
    std::unique_ptr<HostEditore> ospite;
    long lId = 0;
};

const char* const NomiDiProva[] = {"frmProva", "frmAltreDenominazioni", "frmMostraLinkCS",
                                   "frmMostraLinkCD", "frmConfig"};
const char* const FinestreDiProva[] = {"frmStrutturaCD"};

} // namespace

class TestDialoghi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void unNomeSenzaDialogoNonApreNullaERispondeFalso();
    void gliArgomentiArrivanoAlDialogoCheEModaleEPoiNonCEPiu();
    void unErroreNelFareIlDialogoArrivaAChiLoApre();
    void unSostitutoRegistratoPrimaDelProgrammaRestaERegistraSostituisce();
    void unaFinestraSenzaDimensioneOspitataSiApreLargaQuantoLoSchermoConsente();
    void unaFinestraConUnaDimensioneSuaLaDaAlDialogoCheLaOspita();
    void senzaVisoriIPulsantiDeiLegamiDelComplessoNonMostranoNulla_data() { AggiungiBackend(); }
    void senzaVisoriIPulsantiDeiLegamiDelComplessoNonMostranoNulla();
    void iPulsantiDeiLegamiDelComplessoApronoIVisoriConIValoriDellaSessione_data() {
        AggiungiBackend();
    }
    void iPulsantiDeiLegamiDelComplessoApronoIVisoriConIValoriDellaSessione();
};

void TestDialoghi::cleanup() {
    // The names the tests took go back to the program's own.
    for (const char* nome : NomiDiProva)
        Dialoghi::Rimuovi(QLatin1String(nome));
    for (const char* nome : FinestreDiProva)
        PrimoMDI::RimuoviFinestra(QLatin1String(nome));
    RegistraFinestreProgramma();
    Sessione::Azzera();
}

void TestDialoghi::unNomeSenzaDialogoNonApreNullaERispondeFalso() {
    QVERIFY(!Dialoghi::Registrato(QStringLiteral("frmProva")));
    QWidget genitore;
    genitore.show();
    const QSet<QWidget*> prima = Finestre();
    const ContaFinestre conta;
    bool bAperto = true;
    QVERIFY_THROWS_NO_EXCEPTION(bAperto = Dialoghi::Apri(QStringLiteral("frmProva"), &genitore,
                                                         {{QStringLiteral("bX"), true}}));
    QVERIFY(!bAperto);
    QCOMPARE(Finestre(), prima);
    QCOMPARE(conta.iComparse, 0);
    QVERIFY(QApplication::activeModalWidget() == nullptr);

    // A maker that gives no dialog is as no dialog.
    int iChiamate = 0;
    Dialoghi::Registra(QStringLiteral("frmProva"),
                       [&iChiamate](QWidget*, const Dialoghi::Argomenti&) -> QDialog* {
                           ++iChiamate;
                           return nullptr;
                       });
    QVERIFY(Dialoghi::Registrato(QStringLiteral("frmProva")));
    QVERIFY(!Dialoghi::Apri(QStringLiteral("frmProva"), &genitore));
    QCOMPARE(iChiamate, 1);
    QCOMPARE(Finestre(), prima);
    QCOMPARE(conta.iComparse, 0);

    Dialoghi::Rimuovi(QStringLiteral("frmProva"));
    QVERIFY(!Dialoghi::Registrato(QStringLiteral("frmProva")));
    QVERIFY(!Dialoghi::Apri(QStringLiteral("frmProva"), &genitore));
    QCOMPARE(iChiamate, 1);
}

void TestDialoghi::gliArgomentiArrivanoAlDialogoCheEModaleEPoiNonCEPiu() {
    QWidget genitore;
    genitore.show();
    const QSet<QWidget*> prima = Finestre();
    const ContaFinestre conta;
    Visto visto;
    Dialoghi::Registra(QStringLiteral("frmProva"), Sostituto(visto));
    const Dialoghi::Argomenti argomenti{
        {QStringLiteral("sTipo"), QStringLiteral("03")},
        {QStringLiteral("sComplessoLinked"), QStringLiteral("Fondo «A»")},
        {QStringLiteral("bInventarioBase"), true}};
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmProva"), &genitore, argomenti));
    QCOMPARE(visto.iFatti, 1);
    QCOMPARE(visto.genitore, &genitore);
    QCOMPARE(visto.argomenti, argomenti);
    QVERIFY(visto.bModale);
    QCOMPARE(conta.iComparse, 1);
    // Named as it was asked for, and gone once closed.
    QCOMPARE(visto.sNome, QStringLiteral("frmProva"));
    QVERIFY(visto.dialogo.isNull());
    QCOMPARE(Finestre(), prima);
    QVERIFY(QApplication::activeModalWidget() == nullptr);

    // A dialog with its own name keeps it; one that deletes itself on closing is gone too.
    Visto daSe;
    daSe.bSiCancellaDaSe = true;
    Dialoghi::Registra(QStringLiteral("frmProva"),
                       [&daSe](QWidget* g, const Dialoghi::Argomenti& a) -> QDialog* {
                           QDialog* dialogo = Sostituto(daSe)(g, a);
                           dialogo->setObjectName(QStringLiteral("frmProprio"));
                           return dialogo;
                       });
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmProva"), nullptr));
    QCOMPARE(daSe.iFatti, 1);
    QVERIFY(daSe.argomenti.isEmpty());
    QCOMPARE(daSe.genitore, nullptr);
    QVERIFY(daSe.bModale);
    QCOMPARE(daSe.sNome, QStringLiteral("frmProprio"));
    QVERIFY(daSe.dialogo.isNull());
    QCOMPARE(Finestre(), prima);
}

void TestDialoghi::unErroreNelFareIlDialogoArrivaAChiLoApre() {
    const QSet<QWidget*> prima = Finestre();
    Dialoghi::Registra(
        QStringLiteral("frmProva"), [](QWidget*, const Dialoghi::Argomenti&) -> QDialog* {
            throw Errore(QStringLiteral("frmProva"), QStringLiteral("Tabella Links non leggibile"));
        });
    bool bPreso = false;
    try {
        Dialoghi::Apri(QStringLiteral("frmProva"), nullptr);
    } catch (const Errore& errore) {
        bPreso = true;
        QCOMPARE(errore.sorgente(), QStringLiteral("frmProva"));
        QCOMPARE(errore.descrizione(), QStringLiteral("Tabella Links non leggibile"));
    }
    QVERIFY(bPreso);
    QCOMPARE(Finestre(), prima);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestDialoghi::unaFinestraSenzaDimensioneOspitataSiApreLargaQuantoLoSchermoConsente() {
    // A tree or a list beside an editor, left at its layout's size, would open cramped: the
    // dialog takes 1000 by 680, or nine tenths of the screen where that is less.
    auto* finestra = new QWidget;
    finestra->setObjectName(QStringLiteral("frmProva"));
    std::unique_ptr<QDialog> dialogo(Dialoghi::Ospita(finestra, nullptr));
    QVERIFY(finestra->sizeHint().width() < 1000 && finestra->sizeHint().height() < 680);
    const QSize schermo = dialogo->screen()->availableGeometry().size();
    QCOMPARE(dialogo->width(), std::min(1000, schermo.width() * 9 / 10));
    QCOMPARE(dialogo->height(), std::min(680, schermo.height() * 9 / 10));
    QVERIFY(dialogo->width() > finestra->sizeHint().width());
}

void TestDialoghi::unaFinestraConUnaDimensioneSuaLaDaAlDialogoCheLaOspita() {
    auto* finestra = new QWidget;
    finestra->setObjectName(QStringLiteral("frmProva"));
    finestra->resize(420, 300);
    std::unique_ptr<QDialog> dialogo(Dialoghi::Ospita(finestra, nullptr));
    QCOMPARE(dialogo->size(), QSize(420, 300));
}

void TestDialoghi::unSostitutoRegistratoPrimaDelProgrammaRestaERegistraSostituisce() {
    // Stand-ins before the program's own: a dialog, a main child window, a dialog of the menus.
    Visto sostituto;
    Dialoghi::Rimuovi(QStringLiteral("frmAltreDenominazioni"));
    Dialoghi::Registra(QStringLiteral("frmAltreDenominazioni"), Sostituto(sostituto));
    int iStrutture = 0;
    PrimoMDI::RegistraFinestra(QStringLiteral("frmStrutturaCD"), [&iStrutture](PrimoMDI*) {
        ++iStrutture;
        return new QWidget;
    });
    Visto config;
    Dialoghi::Registra(QStringLiteral("frmConfig"), Sostituto(config));
    RegistraFinestreProgramma();

    QVERIFY(Dialoghi::Apri(QStringLiteral("frmAltreDenominazioni"), nullptr));
    QCOMPARE(sostituto.iFatti, 1);
    {
        PrimoMDI principale;
        QAction* complessi = principale.findChild<QAction*>(QStringLiteral("mnuComplessiDoc"));
        complessi->setEnabled(true);
        complessi->trigger();
        QCOMPARE(iStrutture, 1);
        const QList<QMdiSubWindow*> figlie = principale.Area()->subWindowList();
        QCOMPARE(figlie.size(), 1);
        QCOMPARE(figlie[0]->widget()->objectName(), QStringLiteral("frmStrutturaCD"));
        principale.findChild<QAction*>(QStringLiteral("mnuTabellaID"))->trigger();
        QCOMPARE(config.iFatti, 1);
        QVERIFY(config.bModale);
    }

    // Registra replaces; a default does not replace what is there.
    Visto nuovo;
    Dialoghi::Registra(QStringLiteral("frmAltreDenominazioni"), Sostituto(nuovo));
    Visto predefinito;
    Dialoghi::RegistraPredefinito(QStringLiteral("frmAltreDenominazioni"), Sostituto(predefinito));
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmAltreDenominazioni"), nullptr));
    QCOMPARE(nuovo.iFatti, 1);
    QCOMPARE(sostituto.iFatti, 1);
    QCOMPARE(predefinito.iFatti, 0);
    // On a free name a default is registered.
    QVERIFY(!Dialoghi::Registrato(QStringLiteral("frmProva")));
    Dialoghi::RegistraPredefinito(QStringLiteral("frmProva"), Sostituto(predefinito));
    QVERIFY(Dialoghi::Apri(QStringLiteral("frmProva"), nullptr));
    QCOMPARE(predefinito.iFatti, 1);
}

void TestDialoghi::senzaVisoriIPulsantiDeiLegamiDelComplessoNonMostranoNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkCS"));
    Dialoghi::Rimuovi(QStringLiteral("frmMostraLinkCD"));
    Complesso complesso(backend);
    const QSet<QWidget*> prima = Finestre();
    const ContaFinestre conta;
    for (const char* nome : {"cmdLinkSog", "cmdMostraLinks", "cmdLinkPerg"}) {
        QPushButton* pulsante = complesso.Pulsante(nome);
        QVERIFY2(pulsante != nullptr && pulsante->isEnabled(), nome);
        pulsante->click();
        QCOMPARE(Finestre(), prima);
        QCOMPARE(conta.iComparse, 0);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }
    QVERIFY(complesso.seam.Messaggi().isEmpty());
    // The host is called back all the same.
    QCOMPARE(complesso.chiamante.esitiSogg, QList<int>{0});
    QCOMPARE(complesso.chiamante.esitiInv, QList<int>{0});
}

void TestDialoghi::iPulsantiDeiLegamiDelComplessoApronoIVisoriConIValoriDellaSessione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Complesso complesso(backend);
    ValoriSessione nelVisore;

    // The producers: frmMostraLinkCS, which leaves its outcome for the host.
    ValoriVecchi();
    Visto produttori;
    produttori.alComparire = [&nelVisore] {
        nelVisore = ValoriSessione::Ora();
        Sessione::iEsitoLinkSogg = 1;
    };
    Dialoghi::Registra(QStringLiteral("frmMostraLinkCS"), Sostituto(produttori));
    complesso.Pulsante("cmdLinkSog")->click();
    QCOMPARE(produttori.iFatti, 1);
    QVERIFY(produttori.bModale);
    QCOMPARE(produttori.genitore, complesso.editore);
    QVERIFY(produttori.argomenti.isEmpty());
    QCOMPARE(nelVisore.sDenomComplesso, QStringLiteral("Nodo «Podestà»"));
    QCOMPARE(nelVisore.lIdComplesso, complesso.lId);
    QCOMPARE(nelVisore.iTipoSogg, 0);
    QCOMPARE(nelVisore.sTipoLink, QStringLiteral("0"));
    QCOMPARE(nelVisore.iEsitoLinkSogg, 0);
    QVERIFY(produttori.dialogo.isNull());
    // The host repaints its node after the viewer, from the outcome it left.
    QCOMPARE(complesso.chiamante.esitiSogg, QList<int>{1});
    QVERIFY(complesso.chiamante.esitiInv.isEmpty());

    // The finding aids: frmMostraLinkCD.
    ValoriVecchi();
    Visto strumenti;
    strumenti.alComparire = [&nelVisore] {
        nelVisore = ValoriSessione::Ora();
        Sessione::iEsitoLinkInv = 2;
    };
    Dialoghi::Registra(QStringLiteral("frmMostraLinkCD"), Sostituto(strumenti));
    complesso.Pulsante("cmdMostraLinks")->click();
    QCOMPARE(strumenti.iFatti, 1);
    QVERIFY(strumenti.bModale);
    QCOMPARE(strumenti.genitore, complesso.editore);
    QVERIFY(strumenti.argomenti.isEmpty());
    QCOMPARE(nelVisore.sDenomComplesso, QStringLiteral("Nodo «Podestà»"));
    QCOMPARE(nelVisore.lIdComplesso, complesso.lId);
    QCOMPARE(nelVisore.iEsitoLinkInv, 0);
    QCOMPARE(complesso.chiamante.esitiInv, QList<int>{2});
    QCOMPARE(complesso.chiamante.esitiSogg, QList<int>{1});

    // The parchments: the same viewer, handed the denomination of the record itself.
    ValoriVecchi();
    Visto pergamene;
    pergamene.alComparire = [&nelVisore] {
        nelVisore = ValoriSessione::Ora();
    };
    Dialoghi::Registra(QStringLiteral("frmMostraLinkCD"), Sostituto(pergamene));
    complesso.Pulsante("cmdLinkPerg")->click();
    QCOMPARE(pergamene.iFatti, 1);
    QVERIFY(pergamene.bModale);
    QCOMPARE(pergamene.genitore, complesso.editore);
    QCOMPARE(pergamene.argomenti, (Dialoghi::Argomenti{{QStringLiteral("sDenominazione"),
                                                        QStringLiteral("Comune di Forlì")}}));
    QCOMPARE(nelVisore.lIdComplesso, complesso.lId);
    QCOMPARE(complesso.chiamante.esitiInv, QList<int>{2});
    QCOMPARE(complesso.chiamante.esitiSogg, QList<int>{1});
    QCOMPARE(strumenti.iFatti, 1);

    QVERIFY(complesso.seam.Messaggi().isEmpty());
}

QTEST_MAIN(TestDialoghi)
#include "tst_dialoghi.moc"
