// Draws the pictures of the help books: the real windows of the program, offscreen, on a copy
// of the pristine demo archive. One process opens every window in turn as an archivist would
// (the login, the menus, a click on a meaningful node or row, a tab), grabs it and writes a PNG.
// It fails, naming what is missing, when a window, a node or a row is no longer there, or when
// a message box came up on the way: the pictures follow the program or the build stops.
//
// Usage: figure-guide <demo database Tabellion.db> <folder of the pictures>

#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include "programma/Registro.h"
#include "session/Avvio.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <functional>

namespace {

// The size of the main window in the pictures: the windows' own layout at a common screen size.
constexpr int Larghezza = 1280;
constexpr int Altezza = 860;
// The width of the analytical inventory's window in the pictures.
constexpr int LarghezzaInventario = 1480;

QTextStream errori(stderr);
int iMancanze = 0;

void Manca(const QString& sCosa) {
    errori << "figure-guide: " << sCosa << Qt::endl;
    ++iMancanze;
}

class Figure {
public:
    Figure(const QString& sUscita, PiattaformaScriptata& piattaforma)
        : uscita(sUscita)
        , seam(piattaforma) {}

    void Salva(QWidget* finestra, const QString& sNome) {
        QTest::qWait(30);
        for (const Messaggio& messaggio : seam.Messaggi()) {
            Manca(QStringLiteral("before %1: a box came up, \"%2\": %3")
                      .arg(sNome, messaggio.sTitolo, messaggio.sTesto));
        }
        seam.Svuota();
        if (!finestra->grab().save(uscita.filePath(sNome + QStringLiteral(".png")))) {
            Manca(QStringLiteral("%1.png not written in %2").arg(sNome, uscita.path()));
        }
    }

    static QAction* Voce(const PrimoMDI& principale, const QString& sNome) {
        auto* voce = principale.findChild<QAction*>(sNome);
        if (voce == nullptr) {
            Manca(QStringLiteral("menu entry %1").arg(sNome));
        }
        return voce;
    }

    // The main child window open in the frame.
    static QWidget* Figlia(const PrimoMDI& principale) {
        const QMdiSubWindow* sotto = principale.Area()->subWindowList().value(0);
        return sotto != nullptr ? sotto->widget() : nullptr;
    }

    template <typename T> static T* Controllo(const QWidget* finestra, const QString& sNome) {
        T* controllo = finestra != nullptr ? finestra->findChild<T*>(sNome) : nullptr;
        if (controllo == nullptr) {
            Manca(QStringLiteral("control %1").arg(sNome));
        }
        return controllo;
    }

    // A click on the node or row whose text is that one, its parents opened, as a person
    // clicks it.
    static bool Clicca(QAbstractItemView* vista, const QString& sTesto) {
        if (vista == nullptr) {
            return false;
        }
        const QModelIndex nodo = Cerca(*vista->model(), sTesto, QModelIndex());
        if (!nodo.isValid()) {
            Manca(QStringLiteral("\"%1\" in %2").arg(sTesto, vista->objectName()));
            return false;
        }
        if (auto* albero = qobject_cast<QTreeView*>(vista)) {
            for (QModelIndex padre = nodo.parent(); padre.isValid(); padre = padre.parent()) {
                albero->expand(padre);
            }
        }
        vista->scrollTo(nodo);
        QTest::qWait(10);
        QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, vista->visualRect(nodo).center());
        QTest::qWait(30);
        return true;
    }

    static void Premi(const QWidget* finestra, const QString& sPulsante) {
        if (auto* pulsante = Controllo<QPushButton>(finestra, sPulsante)) {
            pulsante->click();
            QTest::qWait(30);
        }
    }

    // Chooses the tab of that caption, as a click on it does.
    static void Scheda(const QWidget* finestra, const QString& sScheda) {
        for (auto* schede : finestra->findChildren<QTabWidget*>()) {
            for (int i = 0; i < schede->count(); ++i) {
                if (schede->tabText(i).trimmed() == sScheda) {
                    schede->setCurrentIndex(i);
                    QTest::qWait(30);
                    return;
                }
            }
        }
        Manca(QStringLiteral("tab %1 in %2").arg(sScheda, finestra->objectName()));
    }

    // Runs the action on the modal window of that name as soon as it is up, then closes it;
    // the command that opens it runs meanwhile.
    static void SuModale(const QString& sNome, const std::function<void(QWidget*)>& azione,
                         const std::function<void()>& apertura) {
        bool bVisto = false;
        AlComparire(sNome, [&](QWidget* modale) {
            bVisto = true;
            azione(modale);
            modale->close();
        });
        apertura();
        if (!bVisto) {
            Manca(QStringLiteral("modal window %1").arg(sNome));
        }
    }

private:
    static QModelIndex Cerca(QAbstractItemModel& modello, const QString& sTesto,
                             const QModelIndex& padre) {
        if (modello.canFetchMore(padre)) {
            modello.fetchMore(padre);
        }
        for (int riga = 0; riga < modello.rowCount(padre); ++riga) {
            const QModelIndex nodo = modello.index(riga, 0, padre);
            if (modello.data(nodo).toString() == sTesto) {
                return nodo;
            }
            const QModelIndex trovato = Cerca(modello, sTesto, nodo);
            if (trovato.isValid()) {
                return trovato;
            }
        }
        return {};
    }

    QDir uscita;
    PiattaformaScriptata& seam;
};

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    if (argc != 3) {
        errori << "Usage: figure-guide <demo database Tabellion.db> <folder of the pictures>"
               << Qt::endl;
        return 2;
    }
    ImpostaRegoleItaliane();
    RegistraFinestreProgramma();
    const QString sDemo = QString::fromLocal8Bit(argv[1]);
    const QString sUscita = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(sUscita);

    // A program folder of its own: the lookup lists and pictures of the sources' site folder,
    // a copy of the demo archive (nothing of the build's own is touched), an "I" site on it.
    CartellaProva cartella;
    cartella.CopiaDalSito(QDir(QStringLiteral(TABELLION_SORGENTI "/site"))
                              .entryList({QStringLiteral("*.txt")}, QDir::Files));
    cartella.CopiaDalSito({QStringLiteral("Bitmap")});
    cartella.Rimuovi(QStringLiteral("Tabellion.db"));
    if (!QFile::copy(sDemo, cartella.File(QStringLiteral("Tabellion.db")))) {
        errori << "figure-guide: cannot copy " << sDemo << Qt::endl;
        return 1;
    }
    cartella.ScriviSito(QStringLiteral("Provider=QSQLITE"), cartella.Percorso(),
                        QStringLiteral("Tabellion"), QStringLiteral("I"));
    // The settings of the demo site that the dialogs of Strumenti show: the exchange folders
    // (named from the program folder, which is the current one, so that the pictures show no
    // temporary path), with a folder of arrivals and one of dispatches; the schema files, the
    // backup's file and the web index's language.
    QDir::setCurrent(cartella.Percorso());
    cartella.CopiaDalSito({QStringLiteral("Schemi")});
    for (const char* sCartella : {"Scambio/Arrivi", "Scambio/Invii", "Copie"}) {
        QDir().mkpath(cartella.File(QLatin1String(sCartella)));
    }
    const auto riga = [](const char* sCodice, const QString& sValore) {
        return QByteArray("\"") + sCodice + '=' + sValore.toUtf8() + "\"\r\n";
    };
    if (QFile param(cartella.File(QStringLiteral("Param.txt"))); param.open(QIODevice::Append)) {
        param.write(riga("03", QStringLiteral(" 'Copie/Tabellion-copia.db'")) +
                    riga("04", QStringLiteral("Scambio")) + riga("05", QStringLiteral("Scambio")) +
                    riga("07", QStringLiteral(" 'italian'")) +
                    riga("09", cartella.File(QStringLiteral("Schemi"))));
    }

    // A road that no longer goes as it did could leave a modal window waiting and hold the
    // build: a modal window up for half a minute is reported and closed.
    QPointer<QWidget> modaleVista;
    QElapsedTimer daQuando;
    daQuando.start();
    QTimer guardia;
    QObject::connect(&guardia, &QTimer::timeout, [&] {
        QWidget* modale = QApplication::activeModalWidget();
        if (modale != modaleVista) {
            modaleVista = modale;
            daQuando.restart();
        } else if (modale != nullptr && daQuando.elapsed() > 30000) {
            Manca(QStringLiteral("modal window %1 left open").arg(modale->objectName()));
            modale->close();
        }
    });
    guardia.start(1000);

    PiattaformaScriptata seam;
    Figure figure(sUscita, seam);
    PrimoMDI principale;
    principale.resize(Larghezza, Altezza);

    // The start: the login dialog, then the main window with its menus.
    AlComparire(QStringLiteral("frmLogin"), [&](QWidget* login) {
        figure.Salva(login, QStringLiteral("accesso"));
        CompilaLogin(login, QStringLiteral("archivista"), QStringLiteral("demo"));
    });
    principale.show();
    QAction* complessi = Figure::Voce(principale, QStringLiteral("mnuComplessiDoc"));
    if (complessi == nullptr || !QTest::qWaitFor([&] { return complessi->isEnabled(); }, 20000) ||
        !QTest::qWaitFor([] { return QApplication::activeModalWidget() == nullptr; }, 20000)) {
        errori << "figure-guide: the session on the demo archive did not open" << Qt::endl;
        return 1;
    }
    // The main window before any window is opened: its menu bar over an empty frame, drawn low
    // so that the picture shows the menus and not an empty frame.
    principale.resize(Larghezza, Altezza / 4);
    figure.Salva(&principale, QStringLiteral("principale"));
    principale.resize(Larghezza, Altezza);

    // Complessi documentari: an institute, one of its seats, a complesso, a new complesso.
    complessi->trigger();
    QWidget* cd = Figure::Figlia(principale);
    auto* albero = Figure::Controllo<QAbstractItemView>(cd, QStringLiteral("tvwDB"));
    if (Figure::Clicca(albero, QStringLiteral("Archivio di Stato di Lucca"))) {
        figure.Salva(&principale, QStringLiteral("cd-istituto"));
    }
    if (Figure::Clicca(albero, QStringLiteral("Sede di Palazzo Guidiccioni"))) {
        figure.Salva(&principale, QStringLiteral("cd-sede"));
    }
    if (Figure::Clicca(albero, QStringLiteral("Archivio dei notari"))) {
        figure.Salva(&principale, QStringLiteral("cd-complesso"));
        // Its producers: the viewer of the links, then "Nuovo collegamento" and the list in
        // which producers are ticked, given up; the fresh viewer that follows is closed.
        Figure::SuModale(
            QStringLiteral("frmMostraLinkCS"),
            [&](QWidget* visore) {
                // The demo's notaries' archive was produced by a body.
                Figure::Scheda(visore, QStringLiteral("Enti"));
                figure.Salva(visore, QStringLiteral("cd-produttori"));
                AlComparire(QStringLiteral("frmNuovoSoggetto"), [&](QWidget* scelta) {
                    scelta->resize(Larghezza * 3 / 4, Altezza * 3 / 4);
                    Figure::Scheda(scelta, QStringLiteral("Enti"));
                    figure.Salva(scelta, QStringLiteral("cd-collega-produttori"));
                    AlComparire(QStringLiteral("frmMostraLinkCS"),
                                [](QWidget* nuovo) { nuovo->close(); });
                    scelta->close();
                });
                Figure::Premi(visore, QStringLiteral("cmdNuovoCol"));
            },
            [&] { Figure::Premi(cd, QStringLiteral("cmdLinkSog")); });
        Figure::Premi(cd, QStringLiteral("cmdNuovoCD"));
        figure.Salva(&principale, QStringLiteral("cd-nuovo"));
        Figure::Premi(cd, QStringLiteral("cmdAnnulla"));
    }

    // Strumenti di ricerca: a finding aid, then its analytical inventory.
    if (QAction* inventari = Figure::Voce(principale, QStringLiteral("mnuInventari"))) {
        inventari->trigger();
    }
    QWidget* in = Figure::Figlia(principale);
    albero = Figure::Controllo<QAbstractItemView>(in, QStringLiteral("tvwDB"));
    const auto inventarioAnalitico = [&](const QString& sInventario,
                                         const QList<std::pair<QString, QString>>& nodi) {
        if (!Figure::Clicca(albero, sInventario)) {
            return;
        }
        Figure::SuModale(
            QStringLiteral("frmStrutturaDIDialogo"),
            [&](QWidget* dialogo) {
                // Wide enough for the seal's record, the widest of the four, as a person
                // enlarges it.
                dialogo->resize(LarghezzaInventario, dialogo->height());
                auto* alberoDI =
                    Figure::Controllo<QAbstractItemView>(dialogo, QStringLiteral("tvwDB"));
                for (const auto& [sNodo, sFigura] : nodi) {
                    if (Figure::Clicca(alberoDI, sNodo)) {
                        figure.Salva(dialogo, sFigura);
                    }
                }
            },
            [&] { Figure::Premi(in, QStringLiteral("cmdInvAnalitico")); });
    };
    if (Figure::Clicca(albero, QStringLiteral("Regesto delle pergamene di Altopascio"))) {
        figure.Salva(&principale, QStringLiteral("in-inventario"));
    }
    inventarioAnalitico(QStringLiteral("Inventario dell'Archivio dei notari"),
                        {{QStringLiteral("Protocollo di ser Iacopo di Puccino (1352-1360)"),
                          QStringLiteral("di-dato")}});
    inventarioAnalitico(
        QStringLiteral("Regesto delle pergamene di Altopascio"),
        {{QStringLiteral("Altopascio, 1228 novembre 20"), QStringLiteral("di-pergamena")},
         {QStringLiteral("Bolla plumbea di Gregorio IX"), QStringLiteral("di-sigillo")}});

    // Produttori: a person, a body.
    if (QAction* soggetti = Figure::Voce(principale, QStringLiteral("mnuSoggetti"))) {
        soggetti->trigger();
    }
    QWidget* sog = Figure::Figlia(principale);
    figure.Salva(&principale, QStringLiteral("produttori-persone"));
    if (sog != nullptr) {
        Figure::Scheda(sog, QStringLiteral("Enti"));
        figure.Salva(&principale, QStringLiteral("produttori-enti"));
    }

    // Nuove acquisizioni: a versamento, then one of its rows in its dialog.
    if (QAction* registro = Figure::Voce(principale, QStringLiteral("mnuRegistro"))) {
        registro->trigger();
    }
    QWidget* na = Figure::Figlia(principale);
    if (Figure::Clicca(Figure::Controllo<QAbstractItemView>(na, QStringLiteral("tvwDB")),
                       QStringLiteral("15/03/2024 - 12"))) {
        figure.Salva(&principale, QStringLiteral("na-versamento"));
        if (Figure::Clicca(Figure::Controllo<QAbstractItemView>(na, QStringLiteral("lvwDB")),
                           QStringLiteral("Catasto terreni - mappe di impianto"))) {
            Figure::SuModale(
                QStringLiteral("frmNuovoVersamentoDialogo"),
                [&](QWidget* dialogo) {
                    // It opens at its least size: enlarged, as a person does, to be read.
                    dialogo->resize(Larghezza, Altezza);
                    figure.Salva(dialogo, QStringLiteral("na-riga"));
                },
                [&] { Figure::Premi(na, QStringLiteral("cmdModificaRiga")); });
        }
    }

    // Punti d'accesso: the persons' list.
    if (QAction* persone = Figure::Voce(principale, QStringLiteral("mnuAntroponimi"))) {
        persone->trigger();
        figure.Salva(&principale, QStringLiteral("accesso-persone"));
    }
    principale.Scarica();

    // Strumenti: the dialogs of the menu, and the export's, which an "S" site opens.
    const struct {
        const char* voce;
        const char* finestra;
        const char* figura;
    } strumenti[] = {{"mnuBackup", "frmBackup", "strumenti-backup"},
                     {"mnuIndicizzazioneWeb", "frmIdicizWeb", "strumenti-indicizzazione"},
                     {"mnuImport", "frmScImporta", "strumenti-import"},
                     {"mnuAggValore", "frmValore", "strumenti-valore"},
                     {"mnuTabellaID", "frmConfig", "strumenti-config"}};
    for (const auto& strumento : strumenti) {
        QAction* voce = Figure::Voce(principale, QLatin1String(strumento.voce));
        if (voce == nullptr) {
            continue;
        }
        Figure::SuModale(
            QLatin1String(strumento.finestra),
            [&](QWidget* dialogo) { figure.Salva(dialogo, QLatin1String(strumento.figura)); },
            [voce] { voce->trigger(); });
    }
    Figure::SuModale(
        QStringLiteral("frmScEsporta"),
        [&](QWidget* dialogo) {
            figure.Salva(dialogo, QStringLiteral("strumenti-export"));
            // Conferma on the folder offered: the tables that the schema files offer.
            Figure::SuModale(
                QStringLiteral("frmEsporta"),
                [&](QWidget* tabelle) {
                    figure.Salva(tabelle, QStringLiteral("strumenti-tabelle"));
                },
                [&] { Figure::Premi(dialogo, QStringLiteral("cmdConferma")); });
        },
        [&] { Dialoghi::Apri(QStringLiteral("frmScEsporta"), &principale); });

    principale.close();
    return iMancanze == 0 ? 0 : 1;
}
