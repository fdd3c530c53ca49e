#include "PrimoMDI.h"

#include "AggiornamentoVersione.h"
#include "Conversioni.h"
#include "Dialoghi.h"
#include "Errore.h"
#include "IconaProgramma.h"
#include "LetturaLista.h"
#include "Piattaforma.h"
#include "RegistroNomi.h"
#include "Sessione.h"
#include "frmLogin.h"
#include "store/Connessione.h"

#include <QAction>
#include <QCloseEvent>
#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPointer>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTimer>

namespace {

RegistroNomi<PrimoMDI::Fabbrica>& Fabbriche() {
    static RegistroNomi<PrimoMDI::Fabbrica> fabbriche;
    return fabbriche;
}

PrimoMDI* pIstanza = nullptr;

// The main child windows and their open flags, as Scarica walks them.
struct FinestraFiglia {
    const char* nome;
    bool* flag;
};
const FinestraFiglia FinestreFiglie[] = {
    {"frmStrutturaCD", &Sessione::bFrmStrutturaCDAperto},
    {"frmStrutturaIN", &Sessione::bFrmStrutturaINAperto},
    {"frmSoggetti", &Sessione::bFrmSoggettiAperto},
    {"FrmECSoggetti", &Sessione::bFrmECSoggettiAperto},
    {"FrmECComplessiDoc", &Sessione::bFrmECComplessiDocAperto},
    {"frmRegistroPC", &Sessione::bFrmRegistroPCAperto},
    {"frmAntroponimi", &Sessione::bFrmAntroponimiAperto},
    {"frmToponimi", &Sessione::bFrmToponimiAperto},
    {"frmTitolari", &Sessione::bFrmTitolariAperto},
};

bool* FlagDi(const QString& sNome) {
    for (const FinestraFiglia& finestra : FinestreFiglie) {
        if (sNome == QLatin1String(finestra.nome)) {
            return finestra.flag;
        }
    }
    return nullptr;
}

constexpr int NumeroGuide = 6;

} // namespace

struct PrimoMDI::VoceFiglia {
    QString sFinestra;
    bool* flag;
    bool bChiamanteAntroponimi;
};

PrimoMDI::PrimoMDI(QWidget* parent)
    : QMainWindow(parent)
    , mdiArea(new QMdiArea(this)) {
    pIstanza = this;
    setObjectName(QStringLiteral("PrimoMDI"));
    setWindowTitle(QStringLiteral("Tabulario - Gestione dati"));
    setWindowIcon(IconaProgramma());
    setAttribute(Qt::WA_DeleteOnClose, false);
    mdiArea->setObjectName(QStringLiteral("mdiArea"));
    mdiArea->setBackground(palette().brush(QPalette::Dark));
    setCentralWidget(mdiArea);
    resize(12500 / TwipPerPixel, 9500 / TwipPerPixel);
    for (int i = 0; i < NumeroGuide; ++i) {
        asGuide.append(QString());
    }
    CreaMenu();
    // Until the session is open only the help and the entries that need nothing can be chosen.
    for (const char* nome :
         {"mnuComplessiDoc", "mnuInventari", "mnuSoggetti", "mnuRegistro", "mnuStrumenti",
          "mnuAccesso", "mnuAntroponimi", "mnuToponimi", "mnuTitolari"}) {
        findChild<QAction*>(QLatin1String(nome))->setEnabled(false);
    }
}

PrimoMDI::~PrimoMDI() {
    if (pIstanza == this) {
        pIstanza = nullptr;
    }
}

PrimoMDI* PrimoMDI::Istanza() {
    return pIstanza;
}

void PrimoMDI::RegistraPredefinita(const QString& sNome, Fabbrica fabbrica) {
    Fabbriche().RegistraPredefinita(sNome, std::move(fabbrica));
}

void PrimoMDI::RegistraFinestra(const QString& sNome, Fabbrica fabbrica) {
    Fabbriche().Registra(sNome, std::move(fabbrica));
}

void PrimoMDI::RimuoviFinestra(const QString& sNome) {
    Fabbriche().Rimuovi(sNome);
}

QAction* PrimoMDI::Voce(QMenu* menu, const char* nome, const QString& sDidascalia) {
    QAction* azione = menu->addAction(sDidascalia);
    azione->setObjectName(QLatin1String(nome));
    return azione;
}

QAction* PrimoMDI::VoceBarra(const char* nome, const QString& sDidascalia) {
    QAction* azione = menuBar()->addAction(sDidascalia);
    azione->setObjectName(QLatin1String(nome));
    return azione;
}

void PrimoMDI::CreaMenu() {
    menuBar()->setObjectName(QStringLiteral("menuBar"));
    auto figlia = [this](QAction* azione, const char* finestra, bool* flag,
                         bool bChiamante = false) {
        const VoceFiglia voce{QLatin1String(finestra), flag, bChiamante};
        connect(azione, &QAction::triggered, this, [this, voce] { ApriFiglia(voce); });
    };
    figlia(VoceBarra("mnuComplessiDoc", QStringLiteral("&Complessi documentari")), "frmStrutturaCD",
           &Sessione::bFrmStrutturaCDAperto);
    figlia(VoceBarra("mnuInventari", QStringLiteral("&Strum. ricerca")), "frmStrutturaIN",
           &Sessione::bFrmStrutturaINAperto);
    figlia(VoceBarra("mnuSoggetti", QStringLiteral("&Produttori")), "frmSoggetti",
           &Sessione::bFrmSoggettiAperto);
    figlia(VoceBarra("mnuRegistro", QStringLiteral("&Nuove acquisizioni")), "frmRegistroPC",
           &Sessione::bFrmRegistroPCAperto);

    QMenu* mnuAccesso = menuBar()->addMenu(QStringLiteral("P&unti d'accesso"));
    mnuAccesso->setObjectName(QStringLiteral("mnuAccessoMenu"));
    mnuAccesso->menuAction()->setObjectName(QStringLiteral("mnuAccesso"));
    figlia(Voce(mnuAccesso, "mnuAntroponimi", QStringLiteral("&Persone")), "frmAntroponimi",
           &Sessione::bFrmAntroponimiAperto, true);
    figlia(Voce(mnuAccesso, "mnuToponimi", QStringLiteral("&Toponimi")), "frmToponimi",
           &Sessione::bFrmToponimiAperto);
    figlia(Voce(mnuAccesso, "mnuTitolari", QStringLiteral("&Titolari")), "frmTitolari",
           &Sessione::bFrmTitolariAperto);

    QMenu* mnuStrumenti = menuBar()->addMenu(QStringLiteral("S&trumenti"));
    mnuStrumenti->setObjectName(QStringLiteral("mnuStrumentiMenu"));
    mnuStrumenti->menuAction()->setObjectName(QStringLiteral("mnuStrumenti"));
    auto modale = [this](QAction* azione, const char* finestra) {
        const QString nome = QLatin1String(finestra);
        connect(azione, &QAction::triggered, this, [this, nome] { ApriModale(nome); });
    };
    modale(Voce(mnuStrumenti, "mnuIndicizzazioneWeb", QStringLiteral("I&ndicizzazione web")),
           "frmIdicizWeb");
    modale(Voce(mnuStrumenti, "mnuBackup", QStringLiteral("&Backup")), "frmBackup");
    modale(Voce(mnuStrumenti, "mnuExport", QStringLiteral("&Export")), "frmScEsporta");
    modale(Voce(mnuStrumenti, "mnuImport", QStringLiteral("&Import")), "frmScImporta");
    connect(Voce(mnuStrumenti, "mnuAggiorna", QStringLiteral("&Aggiorna versione")),
            &QAction::triggered, this, &PrimoMDI::mnuAggiorna_Click);
    modale(Voce(mnuStrumenti, "mnuAggValore", QStringLiteral("&Aggiorna Valore")), "frmValore");
    modale(Voce(mnuStrumenti, "mnuTabellaID", QStringLiteral("&Tabella Config")), "frmConfig");
    connect(Voce(mnuStrumenti, "mnuFine", QStringLiteral("&Fine")), &QAction::triggered, this,
            &PrimoMDI::mnuFine_Click);

    QMenu* mnuHelp = menuBar()->addMenu(QStringLiteral("?"));
    mnuHelp->setObjectName(QStringLiteral("mnuHelpMenu"));
    mnuHelp->menuAction()->setObjectName(QStringLiteral("mnuHelp"));
    const struct {
        const char* nome;
        const char* didascalia;
        int guida;
    } guide[] = {
        {"mnuHlpIST", "Scheda Istituto", 1},    {"mnuHlpCD", "Complessi documentari", 2},
        {"mnuHlpINV", "Strum. ricerca", 3},     {"mnuHlpSOG", "Produttore", 4},
        {"mnuHlpVER", "Nuove acquisizioni", 5}, {"mnuHlpATT", "Punti d'accesso", 0},
        {"mnuHlpSTR", "Strumenti", 6},
    };
    for (const auto& guida : guide) {
        QAction* azione = Voce(mnuHelp, guida.nome, QString::fromUtf8(guida.didascalia));
        if (guida.guida == 0) {
            azione->setEnabled(false);
            continue;
        }
        const int numero = guida.guida;
        connect(azione, &QAction::triggered, this, [this, numero] { Guida(numero); });
    }
}

QString PrimoMDI::PercorsoGuida(int n) const {
    return n >= 1 && n <= asGuide.size() ? asGuide[n - 1] : QString();
}

void PrimoMDI::Guida(int n) {
    piattaforma().ApriGuida(PercorsoGuida(n));
}

QMdiSubWindow* PrimoMDI::MostraFiglia(QWidget* finestra) {
    QMdiSubWindow* sotto = mdiArea->addSubWindow(finestra);
    sotto->setAttribute(Qt::WA_DeleteOnClose);
    sotto->setObjectName(finestra->objectName() + QStringLiteral("Cornice"));
    sotto->setWindowTitle(finestra->windowTitle());
    // A window that closes itself takes its frame with it.
    QPointer<QMdiSubWindow> cornice(sotto);
    connect(finestra, &QObject::destroyed, this, [cornice] {
        if (cornice) {
            cornice->close();
        }
    });
    // The main child window takes the whole frame, as the one window at work.
    sotto->showMaximized();
    finestra->setFocus();
    return sotto;
}

void PrimoMDI::ApriFiglia(const VoceFiglia& voce) {
    if (*voce.flag) {
        return; // already open: not even brought forward
    }
    const Fabbrica fabbrica = Fabbriche().Trova(voce.sFinestra);
    if (!fabbrica) {
        return; // a window the program does not have yet
    }
    if (voce.bChiamanteAntroponimi) {
        Sessione::iChiamanteAntroponimi = 0;
    }
    Scarica();
    *voce.flag = true;
    QPointer<QWidget> finestra;
    const bool bAperta = AperturaProtetta(voce.sFinestra, [&] {
        finestra = fabbrica(this);
        if (finestra == nullptr) {
            return;
        }
        finestra->setObjectName(voce.sFinestra);
        bool* flag = voce.flag;
        connect(finestra, &QObject::destroyed, this, [flag] { *flag = false; });
        MostraFiglia(finestra);
    });
    if (!bAperta) {
        // What was made of the window goes, with its frame if it had one already.
        if (finestra != nullptr) {
            QWidget* resto = qobject_cast<QMdiSubWindow*>(finestra->parentWidget());
            delete (resto != nullptr ? resto : finestra.data());
        }
        finestra = nullptr;
    }
    if (finestra == nullptr) {
        *voce.flag = false;
    }
}

void PrimoMDI::ApriModale(const QString& sNome) {
    AperturaProtetta(sNome, [&] { Dialoghi::Apri(sNome, this); });
}

bool PrimoMDI::AperturaProtetta(const QString& sNome, const std::function<void()>& apertura) {
    // An error that the window's own opening did not handle (a table it may not read, a file
    // of the program folder that is not there) ends here, in a box, and never in the event
    // loop, which would end the process.
    try {
        apertura();
        return true;
    } catch (...) {
        const Errore errore = ErroreDi(std::current_exception(), sNome);
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore T5"));
    }
    return false;
}

void PrimoMDI::Scarica() {
    const QList<QMdiSubWindow*> finestre = mdiArea->subWindowList(QMdiArea::CreationOrder);
    for (qsizetype i = finestre.size() - 1; i >= 0; --i) {
        QMdiSubWindow* sotto = finestre[i];
        QWidget* finestra = sotto->widget();
        if (finestra == nullptr) {
            continue;
        }
        if (bool* flag = FlagDi(finestra->objectName())) {
            delete sotto;
            *flag = false;
        }
    }
}

void PrimoMDI::showEvent(QShowEvent* evento) {
    QMainWindow::showEvent(evento);
    if (bPrimaAttivazione) {
        // The road of the start runs once the frame is on the screen.
        QTimer::singleShot(0, this, &PrimoMDI::Form_Activate);
    }
}

void PrimoMDI::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && bPrimaAttivazione) {
        QTimer::singleShot(0, this, &PrimoMDI::Form_Activate);
    }
}

void PrimoMDI::LeggiMenu() {
    const QStringList record =
        LeggiLista(Sessione::FileProgramma(QStringLiteral("Menu.txt")), QStringLiteral("PrimoMDI"));
    for (int i = 0; i < NumeroGuide && i < record.size(); ++i) {
        asGuide[i] = Sessione::FileProgramma(record[i] + QStringLiteral(".pdf"));
    }
}

void PrimoMDI::Form_Activate() {
    if (!bPrimaAttivazione) {
        return;
    }
    bPrimaAttivazione = false;
    try {
        Sessione::LeggiParam(QStringLiteral("PrimoMDI"));
        LeggiMenu();
        Sessione::sVersioneApp = Sessione::VersioneApplicazione;

        frmLogin login(this);
        login.Init(true, Sessione::FileProgramma(QStringLiteral("DbNames.txt")));
        login.exec();
        if (!login.AccessoRiuscito()) {
            piattaforma().TerminaProcesso();
            return;
        }
        Sessione::ChiudiConnessioneAllUscita();

        for (const char* nome :
             {"mnuComplessiDoc", "mnuInventari", "mnuRegistro", "mnuSoggetti", "mnuStrumenti",
              "mnuAccesso", "mnuAntroponimi", "mnuToponimi", "mnuTitolari"}) {
            findChild<QAction*>(QLatin1String(nome))->setEnabled(true);
        }
        // An "I" site imports and does not export, an "S" site exports and does not import.
        if (Sessione::bIstituto) {
            findChild<QAction*>(QStringLiteral("mnuExport"))->setEnabled(false);
        } else {
            findChild<QAction*>(QStringLiteral("mnuImport"))->setEnabled(false);
        }

        QSqlQuery config = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Valore, Versione FROM Config"), {}, QStringLiteral("PrimoMDI"));
        if (config.next()) {
            Sessione::dValore = config.value(0).toDouble();
            const QVariant versione = config.value(1).isNull() ? QVariant() : config.value(1);
            config.finish();
            if (VersioneDaAggiornare(versione, Sessione::sVersioneApp)) {
                CancelloVersione(versione);
            }
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore V1"));
    } catch (const std::exception& errore) {
        MsgBox(QStringLiteral("PrimoMDI\n") + QString::fromUtf8(errore.what()), Pulsanti::Ok,
               Icona::Critica, QStringLiteral("Errore V1"));
    }
}

void PrimoMDI::mnuAggiorna_Click() {
    // Unlike the gate of the start, the menu asks whatever the two versions are.
    try {
        QSqlQuery config = Sessione::cnn->Esegui(QStringLiteral("SELECT Versione FROM Config"), {},
                                                 QStringLiteral("PrimoMDI"));
        if (!config.next()) {
            return;
        }
        const QVariant versione = config.value(0).isNull() ? QVariant() : config.value(0);
        config.finish();
        const QString crlf = QStringLiteral("\r\n");
        const QString testo = QStringLiteral("Versione trovata: ") + TestoVersione(versione) +
                              crlf + QStringLiteral("Versione richiesta: ") +
                              Sessione::sVersioneApp + crlf +
                              QStringLiteral("Vuoi aggiornare la versione del DB?");
        if (MsgBox(testo, Pulsanti::SiNo, Icona::Domanda, QStringLiteral("Aggiorna versione DB"),
                   Risposta::No) == Risposta::Si) {
            EseguiAggiornamento();
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore V2"));
    }
}

void PrimoMDI::mnuFine_Click() {
    if (MsgBox(QStringLiteral("Confermi uscita dal programma?"), Pulsanti::SiNo, Icona::Domanda,
               QStringLiteral("Uscita"), Risposta::No) == Risposta::Si) {
        close();
    }
}

void PrimoMDI::closeEvent(QCloseEvent* evento) {
    // However the main form is closed, the session's connection closes with it.
    Scarica();
    mdiArea->closeAllSubWindows();
    Sessione::ChiudiConnessione();
    QMainWindow::closeEvent(evento);
}
