// The tour: logged in on the demo archive, every entry of every menu is clicked in turn, as a
// person would. Each main child window opens and closes the one before it, each tool of
// "Strumenti" opens and is closed, each help entry hands its book (a PDF file of the program
// folder) to the desktop. In each main child window, and in the dialogs that its buttons open,
// every command button that is visible and enabled is pressed in browse state on the nodes or
// rows that enable it; every window that opens is closed and every question is answered No. A
// press that does nothing a person can see, or that leaves a box of an error, is reported; at
// the end the program is still usable.

#include "programma/Registro.h"
#include "records/EditoreRecord.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"

#include "BancaDatiProva.h"
#include "CartellaProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

// The seam of a person who, asked, says No: a question is answered No, a choice between going
// on and giving up is given up; a box that only informs is acknowledged.
class PiattaformaGiro : public PiattaformaScriptata {
public:
    Risposta MostraMessaggio(const Messaggio& messaggio) override {
        if (risposte.isEmpty()) {
            switch (messaggio.pulsanti) {
            case Pulsanti::SiNo:
            case Pulsanti::SiNoAnnulla:
                risposte.append(Risposta::No);
                break;
            case Pulsanti::OkAnnulla:
            case Pulsanti::RiprovaAnnulla:
                risposte.append(Risposta::Annulla);
                break;
            case Pulsanti::Ok:
                break;
            }
        }
        return PiattaformaScriptata::MostraMessaggio(messaggio);
    }
};

// The tree or the list by whose nodes or rows a window is driven: the tree tvwDB, the list
// lvwDB, or the list of one tab, lvwDB(n), not a list of the same name inside a record of the
// window.
bool DiNavigazione(const QWidget* w, const QWidget* finestra) {
    if (w->objectName() != QLatin1String("tvwDB") &&
        !w->objectName().startsWith(QLatin1String("lvwDB"))) {
        return false;
    }
    for (const QObject* o = w->parent(); o != nullptr && o != finestra; o = o->parent()) {
        if (qobject_cast<const EditoreRecord*>(o) != nullptr) {
            return false;
        }
    }
    return true;
}

// The data of a node or row that names it (its key or its id) and that tells its kind (the
// tree's Tag), where the model gives them.
constexpr int RuoloIdentita = Qt::UserRole + 1;
constexpr int RuoloGenere = Qt::UserRole + 2;

// What each entry of the menu bar is expected to do.
struct AttesaVoce {
    const char* sVoce;
    const char* sFinestra; // the main child window it opens, or the modal dialog
    bool bFiglia;
};
const AttesaVoce VociAttese[] = {
    {"mnuComplessiDoc", "frmStrutturaCD", true}, {"mnuInventari", "frmStrutturaIN", true},
    {"mnuSoggetti", "frmSoggetti", true},        {"mnuRegistro", "frmRegistroPC", true},
    {"mnuAntroponimi", "frmAntroponimi", true},  {"mnuToponimi", "frmToponimi", true},
    {"mnuTitolari", "frmTitolari", true},        {"mnuIndicizzazioneWeb", "frmIdicizWeb", false},
    {"mnuBackup", "frmBackup", false},           {"mnuExport", "frmScEsporta", false},
    {"mnuImport", "frmScImporta", false},        {"mnuAggValore", "frmValore", false},
    {"mnuTabellaID", "frmConfig", false},
};

// The entries that ask a question, answered No: the version upgrade, and the end of the
// program, which would end the tour (it is taken with Yes at the very end).
struct DomandaVoce {
    const char* sVoce;
    const char* sTitolo;
};
const DomandaVoce DomandeAttese[] = {
    {"mnuAggiorna", "Aggiorna versione DB"},
    {"mnuFine", "Uscita"},
};

// The help entries and the line of Menu.txt that names their book.
struct GuidaVoce {
    const char* sVoce;
    int iLibro;
};
const GuidaVoce GuideAttese[] = {
    {"mnuHlpIST", 1}, {"mnuHlpCD", 2},  {"mnuHlpINV", 3},
    {"mnuHlpSOG", 4}, {"mnuHlpVER", 5}, {"mnuHlpSTR", 6},
};

// Entries that cannot be chosen, and why: the help of the access points has no book; an "I"
// site imports and does not export.
const char* const VociNonDisponibili[] = {"mnuHlpATT", "mnuExport"};

// How deep the tour goes: the main child windows, the dialogs their buttons open, and the
// dialogs that these open; deeper ones are closed as they come up.
constexpr int LivelliVisitati = 2;
// How many nodes or rows of each kind are stations of the tour.
constexpr int StazioniPerGenere = 6;

// Buttons pressed twice, the second press undoing the first: the sliding panel hides the
// editor, and shows it again.
const char* const PulsantiAlterni[] = {"cmdSposta"};

// Buttons that may end their dialog, pressed after all the others: a viewer gives way to its
// picker (cmdNuovoCol; the seal's viewer of parchments stays, under its picker), a picker is
// given up (cmdAnnullaCol), a dialog is left (cmdEsci, or cmdAnnulla where it is at hand in
// browse state; in the windows it only gives up an edit, and the tour presses it for that). Any
// other button of a dialog may close it too (a picker's cmdCollega writes and ends it); the buttons
// it did not reach are pressed when the dialog is met again. A main child window is never closed by
// its own buttons.
const char* const PulsantiDiChiusura[] = {"cmdNuovoCol", "cmdAnnullaCol", "cmdEsci", "cmdAnnulla"};

bool InElenco(const QAbstractButton* pulsante, const char* const* inizio, const char* const* fine) {
    for (const char* const* nome = inizio; nome != fine; ++nome) {
        if (pulsante->objectName() == QLatin1String(*nome)) {
            return true;
        }
    }
    return false;
}
bool DiChiusura(const QAbstractButton* pulsante) {
    return InElenco(pulsante, std::begin(PulsantiDiChiusura), std::end(PulsantiDiChiusura));
}

// What one press or one entry brought about.
struct Esito {
    QStringList dialoghi;      // modal windows that came up, closed by the tour
    QStringList fuoriSeam;     // boxes and popups that did not go through the platform seam
    QList<Messaggio> messaggi; // boxes of the seam
    QStringList altreChiamate; // popups, file and folder choices, help, processes
    QStringList nuoveFinestre; // windows that came up not modally
    QStringList vociMenu;      // the entries of the last popup offered
    bool bCambiata = false;    // the window changed in a way a person sees
    bool bModifica = false;    // the window went editing, and Annulla brought it back
    bool bChiusa = false;      // the window went

    bool Nulla() const {
        return dialoghi.isEmpty() && fuoriSeam.isEmpty() && messaggi.isEmpty() &&
               altreChiamate.isEmpty() && nuoveFinestre.isEmpty() && !bCambiata && !bModifica &&
               !bChiusa;
    }
    QString Descrizione() const {
        QStringList parti;
        for (const QString& d : dialoghi) {
            parti.append(QStringLiteral("dialog ") + d);
        }
        for (const Messaggio& m : messaggi) {
            parti.append(QStringLiteral("box \"%1\": %2").arg(m.sTitolo, m.sTesto.simplified()));
        }
        parti += fuoriSeam;
        parti += altreChiamate;
        for (const QString& f : nuoveFinestre) {
            parti.append(QStringLiteral("window ") + f);
        }
        if (bModifica) {
            parti.append(QStringLiteral("editing, given up with Annulla"));
        } else if (bCambiata) {
            parti.append(QStringLiteral("changed on screen"));
        }
        if (bChiusa) {
            parti.append(QStringLiteral("window closed"));
        }
        return parti.isEmpty() ? QStringLiteral("nothing") : parti.join(QStringLiteral("; "));
    }
};

// A box of an error: the critical icon, or a title of the error codes.
bool DiErrore(const Messaggio& m) {
    return m.icona == Icona::Critica || m.sTitolo.startsWith(QLatin1String("Errore"));
}

// Closes every modal window and popup that comes up while it lives, and records them. A window
// that it is given to tour (visita) has its own buttons pressed first, by a closer of its own,
// one level deeper.
class Chiusore : public QObject {
public:
    explicit Chiusore(QWidget* ospiteDato = nullptr, int iLivelloDato = 0)
        : ospite(ospiteDato)
        , iLivello(iLivelloDato) {
        orologio.setInterval(10);
        connect(&orologio, &QTimer::timeout, this, [this] { Guarda(); });
        orologio.start();
    }
    QStringList chiusi;
    QStringList fuoriSeam;
    // The tour of a modal window that came up; its level is one more than this closer's.
    std::function<void(QWidget*, int)> visita;
    // The window this closer's level tours: the modal window it leaves alone, as it does those
    // that the levels above tour (inGiro).
    QPointer<QWidget> ospite;
    std::function<bool(const QWidget*)> inGiro;
    int iLivello = 0;

private:
    QTimer orologio;
    QPointer<QWidget> ultimo;
    int iTentativi = 0;

    void Guarda() {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            fuoriSeam.append(QStringLiteral("popup %1 outside the seam")
                                 .arg(QLatin1String(popup->metaObject()->className())));
            popup->close();
            return;
        }
        QWidget* modale = QApplication::activeModalWidget();
        if (modale == nullptr || !modale->isVisible() || modale == ospite ||
            (inGiro && inGiro(modale))) {
            ultimo = nullptr;
            return;
        }
        if (modale != ultimo) {
            ultimo = modale;
            iTentativi = 0;
            if (auto* box = qobject_cast<QMessageBox*>(modale)) {
                fuoriSeam.append(QStringLiteral("box \"%1\" outside the seam: %2")
                                     .arg(box->windowTitle(), box->text().simplified()));
            } else {
                chiusi.append(modale->objectName().isEmpty()
                                  ? QLatin1String(modale->metaObject()->className())
                                  : modale->objectName());
                if (visita) {
                    QPointer<QWidget> visitata(modale);
                    visita(modale, iLivello + 1);
                    if (visitata.isNull() || !visitata->isVisible()) {
                        return;
                    }
                }
            }
        }
        // A window that does not go when asked is hidden, so that the tour goes on.
        if (++iTentativi > 50) {
            fuoriSeam.append(QStringLiteral("%1 would not close").arg(modale->objectName()));
            modale->hide();
            return;
        }
        if (auto* dialogo = qobject_cast<QDialog*>(modale)) {
            dialogo->reject();
        } else {
            modale->close();
        }
    }
};

// A window still there and on the screen.
bool Viva(const QPointer<QWidget>& finestra) {
    return !finestra.isNull() && finestra->isVisible();
}

// A button by the names of its parents inside the window, so that two editors' buttons of the
// same name stay apart.
QString NomeDi(const QWidget* finestra, const QObject* oggetto) {
    QStringList nomi;
    for (const QObject* o = oggetto; o != nullptr && o != finestra; o = o->parent()) {
        if (!o->objectName().isEmpty() && !o->objectName().startsWith(QLatin1String("qt_"))) {
            nomi.prepend(o->objectName());
        }
    }
    if (const auto* pulsante = qobject_cast<const QAbstractButton*>(oggetto);
        pulsante != nullptr && pulsante->objectName().isEmpty()) {
        nomi.append(QStringLiteral("\"%1\"").arg(pulsante->text()));
    }
    return nomi.join(u'.');
}

// What a person sees of a window: which controls are there and usable, their texts and
// states, the first rows of its lists and trees and which one is chosen.
QStringList Fotografia(const QWidget* finestra) {
    QStringList foto;
    const auto figli = finestra->findChildren<QWidget*>();
    for (const QWidget* w : figli) {
        if (!w->isVisible()) {
            continue;
        }
        QString voce = NomeDi(finestra, w) + u' ' + QLatin1String(w->metaObject()->className()) +
                       (w->isEnabled() ? QStringLiteral(" on") : QStringLiteral(" off"));
        if (const auto* b = qobject_cast<const QAbstractButton*>(w)) {
            voce += b->text() + (b->isChecked() ? QStringLiteral(" [x]") : QString()) +
                    b->palette().color(QPalette::Button).name();
        } else if (const auto* e = qobject_cast<const QLineEdit*>(w)) {
            voce += e->text() + (e->isReadOnly() ? QStringLiteral(" ro") : QString());
        } else if (const auto* t = qobject_cast<const QTextEdit*>(w)) {
            voce += t->toPlainText() + (t->isReadOnly() ? QStringLiteral(" ro") : QString());
        } else if (const auto* p = qobject_cast<const QPlainTextEdit*>(w)) {
            voce += p->toPlainText() + (p->isReadOnly() ? QStringLiteral(" ro") : QString());
        } else if (const auto* c = qobject_cast<const QComboBox*>(w)) {
            voce += c->currentText();
        } else if (const auto* l = qobject_cast<const QLabel*>(w)) {
            voce += l->text();
        } else if (const auto* tab = qobject_cast<const QTabWidget*>(w)) {
            voce += QString::number(tab->currentIndex());
        } else if (const auto* v = qobject_cast<const QAbstractItemView*>(w);
                   v != nullptr && v->model() != nullptr) {
            const QAbstractItemModel* m = v->model();
            voce += QStringLiteral(" rows %1 current %2")
                        .arg(m->rowCount())
                        .arg(v->currentIndex().data().toString());
            for (int r = 0; r < m->rowCount() && r < 20; ++r) {
                voce += u'|' + m->index(r, 0).data().toString();
            }
        }
        foto.append(voce);
    }
    return foto;
}

// The nodes or rows of a view, the tree walked in depth, with the datum that names each.
QList<QModelIndex> Nodi(const QAbstractItemModel* modello, const QModelIndex& padre = {}) {
    QList<QModelIndex> nodi;
    for (int r = 0; r < modello->rowCount(padre); ++r) {
        const QModelIndex nodo = modello->index(r, 0, padre);
        nodi.append(nodo);
        nodi += Nodi(modello, nodo);
    }
    return nodi;
}

QAbstractItemView* Navigazione(const QWidget* finestra) {
    const auto viste = finestra->findChildren<QAbstractItemView*>();
    for (QAbstractItemView* v : viste) {
        if (DiNavigazione(v, finestra) && v->isVisible()) {
            return v;
        }
    }
    return nullptr;
}

// The tab widget that holds the window's lists, one a tab (none when the window has one list).
QTabWidget* SchedeNavigazione(const QWidget* finestra) {
    const auto schede = finestra->findChildren<QTabWidget*>();
    for (QTabWidget* s : schede) {
        const auto viste = s->findChildren<QAbstractItemView*>();
        for (const QAbstractItemView* v : viste) {
            if (DiNavigazione(v, finestra)) {
                return s;
            }
        }
    }
    return nullptr;
}

// The lists inside a record (the rows of a versamento, ...) with a row chosen, the first one,
// where they have rows and none is chosen: a command on a row has one to act on.
void SceglieRigheInterne(QWidget* finestra) {
    const auto viste = finestra->findChildren<QAbstractItemView*>();
    for (QAbstractItemView* v : viste) {
        if (DiNavigazione(v, finestra) || !v->isVisible() || !v->isEnabled() ||
            v->model() == nullptr || v->model()->rowCount() == 0 || v->currentIndex().isValid()) {
            continue;
        }
        const QModelIndex prima = v->model()->index(0, 0);
        v->scrollTo(prima);
        QTest::mouseClick(v->viewport(), Qt::LeftButton, {}, v->visualRect(prima).center());
    }
}

// A folder with all it holds, copied.
void CopiaAlbero(const QString& sOrigine, const QString& sDestinazione) {
    QDir().mkpath(sDestinazione);
    const QDir origine(sOrigine);
    for (const QFileInfo& voce :
         origine.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString sArrivo = QDir(sDestinazione).filePath(voce.fileName());
        if (voce.isDir()) {
            CopiaAlbero(voce.filePath(), sArrivo);
        } else {
            QFile::copy(voce.filePath(), sArrivo);
        }
    }
}

} // namespace

class TestGiro : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void ilGiroDiMenuEPulsantiSulDemoNonTrovaVicoliCiechiNeErroriInattesi_data();
    void ilGiroDiMenuEPulsantiSulDemoNonTrovaVicoliCiechiNeErroriInattesi();

private:
    std::unique_ptr<PiattaformaGiro> seam;
    std::unique_ptr<CartellaProva> cartella;
    std::unique_ptr<BancaDatiProva> banca;
    std::unique_ptr<PrimoMDI> principale;
    // The closers of the levels of the tour: the main window's, then one for each modal window
    // being toured inside it.
    std::vector<std::unique_ptr<Chiusore>> chiusori;
    Chiusore& chiusore() { return *chiusori.back(); }
    void NuovoChiusore(QWidget* ospite, int iLivello);
    // No modal window, or one that the tour is going through.
    bool ModaleInGiro(const QWidget* modale) const {
        if (modale == nullptr) {
            return true;
        }
        for (const auto& c : chiusori) {
            if (c->ospite == modale) {
                return true;
            }
        }
        return false;
    }
    void Annota(const QString& sRiga);

    // What the tour saw, in order, and what went wrong.
    QStringList diario;
    QStringList problemi;
    // The dialogs whose buttons were pressed, by name.
    QSet<QString> visitati;
    // The buttons pressed in each window or dialog, by its name; those whose press opened a
    // dialog, pressed again on each node or row, since the dialog shows what that one has.
    std::map<QString, QSet<QString>> premutiPer;
    QSet<QString> apronoDialoghi;
    QSet<QString> nonPremuti;
    bool bVisitaDialoghi = true;

    void PreparaCartella();
    QStringList FinestreAperte() const;
    QWidget* FinestraAperta() const;
    // Runs an action (a click, an entry), then gathers what came of it for that window.
    Esito Osserva(QWidget* finestra, const std::function<void()>& azione);
    void VoceFiglia(QAction* voce, const AttesaVoce& attesa);
    void VoceModale(QAction* voce, const AttesaVoce& attesa);
    void VoceDomanda(QAction* voce, const DomandaVoce& attesa);
    void VoceGuida(QAction* voce, const GuidaVoce& attesa);
    // Every button of the window, at every station (node or row) where a new one is enabled.
    void GiroPulsanti(QWidget* finestra, bool bChiudeAllaFine);
    void PremiAllaStazione(QWidget* finestra, QAbstractItemView* vista, const QVariant& stazione,
                           QSet<QString>& premuti);
    void PremiVisibili(QWidget* finestra, QAbstractItemView* vista, const QVariant& stazione,
                       QSet<QString>& premuti, QSet<QString>& premutiQui);
    bool Scegli(QAbstractItemView* vista, const QVariant& stazione);
    // A left click on a button, a right click on a button that has a popup of its own, or a
    // right click on a node of a tree that has one.
    enum class Clic { Sinistro, Destro, DestroSuNodo };
    // The popup that the press offers is answered with the entry iVoce; at the first press each
    // other entry is taken by a press of its own.
    void Premi(QWidget* finestra, QWidget* pulsante, const QString& sNome,
               Clic clic = Clic::Sinistro, const QPoint& punto = QPoint(5, 5), int iVoce = 1);
    void Segnala(const QString& sProblema);
};

void TestGiro::initTestCase() {
    RegistraFinestreProgramma();
}

void TestGiro::init() {
    seam = std::make_unique<PiattaformaGiro>();
    cartella = std::make_unique<CartellaProva>();
    diario.clear();
    problemi.clear();
    visitati.clear();
    premutiPer.clear();
    apronoDialoghi.clear();
    nonPremuti.clear();
}

void TestGiro::cleanup() {
    chiusori.clear();
    principale.reset();
    Sessione::ChiudiConnessione();
    banca.reset();
    cartella.reset();
    seam.reset();
}

void TestGiro::NuovoChiusore(QWidget* ospite, int iLivello) {
    chiusori.push_back(std::make_unique<Chiusore>(ospite, iLivello));
    chiusori.back()->inGiro = [this](const QWidget* modale) {
        return ModaleInGiro(modale);
    };
    if (iLivello >= LivelliVisitati) {
        return;
    }
    chiusori.back()->visita = [this](QWidget* modale, int iLivelloModale) {
        // A tool of the menu is only closed. A dialog met again (from another node, or a fresh
        // viewer after its picker) has the buttons pressed that it did not offer before, and is
        // closed as it stands.
        if (!bVisitaDialoghi) {
            return;
        }
        const bool bPrimaVolta = !visitati.contains(modale->objectName());
        visitati.insert(modale->objectName());
        NuovoChiusore(modale, iLivelloModale);
        GiroPulsanti(modale, bPrimaVolta);
        chiusori.pop_back();
    };
}

void TestGiro::PreparaCartella() {
    cartella->ScriviSito(banca->Testa(), banca->Server(), banca->Database(), QStringLiteral("I"));
    // The program folder as it is delivered: its help list, lookup lists, pictures, exchange
    // schema files and upgrade script, beside the settings of the test's database.
    cartella->Rimuovi(QStringLiteral("Menu.txt"));
    const QDir sito(QStringLiteral(TABELLION_SORGENTI "/site"));
    QStringList nomi{QStringLiteral("Bitmap"), QStringLiteral("Schemi"),
                     QStringLiteral("alter.sql")};
    const QStringList propri{QStringLiteral("Param.txt"), QStringLiteral("Connetti.txt"),
                             QStringLiteral("Istituto.txt"), QStringLiteral("DbNames.txt")};
    for (const QString& file : sito.entryList({QStringLiteral("*.txt")}, QDir::Files)) {
        if (!propri.contains(file)) {
            nomi.append(file);
        }
    }
    cartella->CopiaDalSito(nomi);
    // The demo's image repository, as the site is delivered.
    CopiaAlbero(QStringLiteral(TABELLION_SORGENTI "/site/demo/Immagini"),
                cartella->File(QStringLiteral("Immagini")));
    // The help books, as the build lays them out in its program folder.
    for (const QString& libro :
         QDir(QStringLiteral(TABELLION_SITO)).entryList({QStringLiteral("*.pdf")}, QDir::Files)) {
        QFile::copy(QStringLiteral(TABELLION_SITO "/") + libro, cartella->File(libro));
    }
    // The settings of a delivered site: images, backups, exchange folders and schema files in
    // the program folder, the database of the test.
    const QString sCartella = cartella->Percorso();
    for (const char* sotto : {"Immagini", "Copie", "Scambio"}) {
        QVERIFY(QDir(sCartella).mkpath(QLatin1String(sotto)));
    }
    const QString param = QStringLiteral("\"01=%1/Immagini\"\r\n\"02=%2\"\r\n"
                                         "\"03= '%1/Copie/copia.db'\"\r\n\"04=%1/Scambio\"\r\n"
                                         "\"05=%1/Scambio\"\r\n\"06=3.2\"\r\n\"07= 'italian'\"\r\n"
                                         "\"08=%3\"\r\n\"09=%1/Schemi\"\r\n\"12=/immagini\"\r\n")
                              .arg(sCartella, banca->Server(), banca->Database());
    cartella->Scrivi(QStringLiteral("Param.txt"), param.toUtf8());
}

QStringList TestGiro::FinestreAperte() const {
    QStringList nomi;
    const auto finestre = principale->Area()->subWindowList(QMdiArea::CreationOrder);
    for (const QMdiSubWindow* sotto : finestre) {
        if (sotto->widget() != nullptr) {
            nomi.append(sotto->widget()->objectName());
        }
    }
    return nomi;
}

QWidget* TestGiro::FinestraAperta() const {
    const auto finestre = principale->Area()->subWindowList(QMdiArea::CreationOrder);
    return finestre.isEmpty() ? nullptr : finestre.last()->widget();
}

void TestGiro::Segnala(const QString& sProblema) {
    problemi.append(sProblema);
    Annota(QStringLiteral("  !! ") + sProblema);
}

void TestGiro::Annota(const QString& sRiga) {
    const QString sRientro(2 * (chiusori.empty() ? 0 : chiusori.back()->iLivello), u' ');
    diario.append(sRientro + sRiga);
    if (qEnvironmentVariableIsSet("TABELLION_GIRO_DIARIO")) {
        qInfo().noquote() << sRientro + sRiga;
    }
}

Esito TestGiro::Osserva(QWidget* finestra, const std::function<void()>& azione) {
    QPointer<QWidget> guardata(finestra);
    const QStringList prima = finestra != nullptr ? Fotografia(finestra) : QStringList();
    const qsizetype iChiamate = seam->chiamate.size();
    const qsizetype iChiusi = chiusore().chiusi.size();
    const qsizetype iFuori = chiusore().fuoriSeam.size();
    QSet<QWidget*> finestrePrima;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->isVisible()) {
            finestrePrima.insert(w);
        }
    }
    QSet<QMdiSubWindow*> figliePrima;
    for (QMdiSubWindow* s : principale->Area()->subWindowList()) {
        figliePrima.insert(s);
    }

    azione();
    QTest::qWait(20);
    // A window that opened modally a moment later (a timer of the window's own) is closed too.
    const bool bModaliChiuse =
        QTest::qWaitFor([this] { return ModaleInGiro(QApplication::activeModalWidget()); }, 5000);

    Esito esito;
    if (!bModaliChiuse) {
        esito.fuoriSeam.append(QStringLiteral("a modal window stayed up"));
    }
    esito.dialoghi = chiusore().chiusi.mid(iChiusi);
    esito.fuoriSeam = chiusore().fuoriSeam.mid(iFuori);
    for (qsizetype i = iChiamate; i < seam->chiamate.size(); ++i) {
        const Chiamata& c = seam->chiamate[i];
        if (c.sTipo == QLatin1String("messaggio")) {
            esito.messaggi.append(c.messaggio);
        } else if (c.sTipo == QLatin1String("menu")) {
            esito.altreChiamate.append(QStringLiteral("popup [%1]").arg(c.voci.join(u',')));
            esito.vociMenu = c.voci;
        } else if (c.sTipo == QLatin1String("guida")) {
            esito.altreChiamate.append(QStringLiteral("help ") + c.sPercorso);
        } else if (c.sTipo == QLatin1String("file")) {
            esito.altreChiamate.append(
                QStringLiteral("file choice \"%1\"").arg(c.sceltaFile.sTitolo));
        } else {
            esito.altreChiamate.append(c.sTipo + u' ' + c.sPercorso + u' ' + c.sProgramma);
        }
    }
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && !finestrePrima.contains(w)) {
            esito.nuoveFinestre.append(w->objectName());
            w->close();
        }
    }
    for (QMdiSubWindow* s : principale->Area()->subWindowList()) {
        if (!figliePrima.contains(s) && s->widget() != nullptr && s->widget() != guardata.data()) {
            esito.nuoveFinestre.append(s->widget()->objectName());
        }
    }
    if (finestra != nullptr && !Viva(guardata)) {
        esito.bChiusa = true;
    } else if (finestra != nullptr) {
        esito.bCambiata = Fotografia(finestra) != prima;
    }
    return esito;
}

void TestGiro::VoceFiglia(QAction* voce, const AttesaVoce& attesa) {
    QPointer<QWidget> precedente = FinestraAperta();
    const Esito esito = Osserva(nullptr, [voce] { voce->trigger(); });
    Annota(voce->objectName() + QStringLiteral(": ") + esito.Descrizione() +
           QStringLiteral("; open: ") + FinestreAperte().join(u','));
    const QString sAttesa = QLatin1String(attesa.sFinestra);
    if (FinestreAperte() != QStringList{sAttesa}) {
        Segnala(QStringLiteral("%1 left the windows [%2] open, not %3 alone")
                    .arg(voce->objectName(), FinestreAperte().join(u','), sAttesa));
        return;
    }
    if (!precedente.isNull() && precedente->objectName() != sAttesa) {
        Segnala(QStringLiteral("%1 did not close %2")
                    .arg(voce->objectName(), precedente->objectName()));
    }
    for (const Messaggio& m : esito.messaggi) {
        if (DiErrore(m)) {
            Segnala(QStringLiteral("%1: box \"%2\": %3")
                        .arg(voce->objectName(), m.sTitolo, m.sTesto.simplified()));
        }
    }
    for (const QString& f : esito.fuoriSeam) {
        Segnala(voce->objectName() + QStringLiteral(": ") + f);
    }
    GiroPulsanti(FinestraAperta(), false);
}

void TestGiro::VoceModale(QAction* voce, const AttesaVoce& attesa) {
    QPointer<QWidget> aperta = FinestraAperta();
    const QStringList prima = aperta ? Fotografia(aperta) : QStringList();
    // The tool opens and is closed as it stands: its buttons would run it.
    bVisitaDialoghi = false;
    const Esito esito = Osserva(nullptr, [voce] { voce->trigger(); });
    bVisitaDialoghi = true;
    Annota(voce->objectName() + QStringLiteral(": ") + esito.Descrizione());
    if (esito.dialoghi != QStringList{QLatin1String(attesa.sFinestra)}) {
        Segnala(QStringLiteral("%1 opened [%2], not the dialog %3")
                    .arg(voce->objectName(), esito.dialoghi.join(u','),
                         QLatin1String(attesa.sFinestra)));
    }
    for (const Messaggio& m : esito.messaggi) {
        if (DiErrore(m)) {
            Segnala(QStringLiteral("%1: box \"%2\": %3")
                        .arg(voce->objectName(), m.sTitolo, m.sTesto.simplified()));
        }
    }
    for (const QString& f : esito.fuoriSeam) {
        Segnala(voce->objectName() + QStringLiteral(": ") + f);
    }
    // The window at work stays as it was under the tool.
    if (aperta.isNull() || Fotografia(aperta) != prima) {
        Segnala(voce->objectName() + QStringLiteral(" disturbed the window at work"));
    }
}

void TestGiro::VoceDomanda(QAction* voce, const DomandaVoce& attesa) {
    seam->risposte = {Risposta::No};
    const Esito esito = Osserva(nullptr, [voce] { voce->trigger(); });
    seam->risposte.clear();
    Annota(voce->objectName() + QStringLiteral(": ") + esito.Descrizione());
    if (esito.messaggi.size() != 1 ||
        esito.messaggi.value(0).sTitolo != QLatin1String(attesa.sTitolo) ||
        esito.messaggi.value(0).pulsanti != Pulsanti::SiNo || !esito.dialoghi.isEmpty()) {
        Segnala(QStringLiteral("%1 did not ask its question \"%2\" alone: %3")
                    .arg(voce->objectName(), QLatin1String(attesa.sTitolo), esito.Descrizione()));
    }
    if (!principale->isVisible() || seam->Terminazioni() > 0) {
        Segnala(voce->objectName() + QStringLiteral(" answered No ended the program"));
    }
}

void TestGiro::VoceGuida(QAction* voce, const GuidaVoce& attesa) {
    const Esito esito = Osserva(nullptr, [voce] { voce->trigger(); });
    Annota(voce->objectName() + QStringLiteral(": ") + esito.Descrizione());
    const QList<Chiamata> guide = seam->Chiamate(QStringLiteral("guida"));
    QFile menu(QStringLiteral(TABELLION_SORGENTI "/site/Menu.txt"));
    QVERIFY(menu.open(QIODevice::ReadOnly));
    const QStringList libri =
        QString::fromUtf8(menu.readAll())
            .split(QRegularExpression(QStringLiteral("[\r\n]+")), Qt::SkipEmptyParts);
    const QString sAtteso = cartella->File(libri.value(attesa.iLibro - 1) + QStringLiteral(".pdf"));
    if (esito.altreChiamate != QStringList{QStringLiteral("help ") + sAtteso} || guide.isEmpty() ||
        guide.last().sPercorso != sAtteso) {
        Segnala(QStringLiteral("%1 did not hand %2 alone to the desktop: %3")
                    .arg(voce->objectName(), sAtteso, esito.Descrizione()));
        return;
    }
    // The book handed is there, and it is a PDF file.
    QFile libro(sAtteso);
    if (!libro.open(QIODevice::ReadOnly) || !libro.read(5).startsWith("%PDF-")) {
        Segnala(QStringLiteral("%1 handed %2, which is not a PDF book of the program folder")
                    .arg(voce->objectName(), sAtteso));
    }
}

bool TestGiro::Scegli(QAbstractItemView* vista, const QVariant& stazione) {
    const QModelIndexList trovati =
        vista->model()->match(vista->model()->index(0, 0), RuoloIdentita, stazione, 1,
                              Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchWrap);
    if (trovati.isEmpty()) {
        return false;
    }
    const QModelIndex nodo = trovati.first();
    vista->scrollTo(nodo);
    QCoreApplication::processEvents();
    QRect rettangolo = vista->visualRect(nodo);
    // A node past the right edge of a narrow tree is brought into sight with the scroll bar.
    if (rettangolo.center().x() >= vista->viewport()->width()) {
        QScrollBar* barra = vista->horizontalScrollBar();
        barra->setValue(barra->value() + rettangolo.center().x() - vista->viewport()->width() / 2);
        QCoreApplication::processEvents();
        rettangolo = vista->visualRect(nodo);
    }
    QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, rettangolo.center());
    QCoreApplication::processEvents();
    return vista->currentIndex() == nodo;
}

void TestGiro::GiroPulsanti(QWidget* finestra, bool bChiudeAllaFine) {
    QPointer<QWidget> guardata(finestra);
    const QString sFinestra = finestra->objectName();
    QSet<QString>& premuti = premutiPer[sFinestra];
    Annota(QStringLiteral(" buttons of ") + sFinestra);
    // A dialog whose Annulla is at hand from the start is not editing when it stays so.
    const auto* annullaIniziale =
        finestra->findChild<QAbstractButton*>(QStringLiteral("cmdAnnulla"));
    const bool bAnnullaIniziale =
        annullaIniziale != nullptr && annullaIniziale->isVisible() && annullaIniziale->isEnabled();
    QTabWidget* schede = SchedeNavigazione(finestra);
    const int iSchede = schede != nullptr ? schede->count() : 1;
    for (int s = 0; s < iSchede && Viva(guardata); ++s) {
        if (schede != nullptr) {
            schede->setCurrentIndex(s);
            QCoreApplication::processEvents();
            Annota(QStringLiteral("  tab ") + schede->tabText(s));
        }
        QAbstractItemView* vista = Navigazione(finestra);
        if (vista == nullptr || vista->model() == nullptr) {
            PremiAllaStazione(finestra, nullptr, QVariant(), premuti);
            continue;
        }
        // The stations: the node chosen when the window opened, then the first nodes of each
        // kind, in the tree's order.
        QList<QVariant> stazioni;
        if (vista->currentIndex().isValid()) {
            stazioni.append(vista->currentIndex().data(RuoloIdentita));
        }
        QHash<QString, int> perGenere;
        for (const QModelIndex& nodo : Nodi(vista->model())) {
            const QString sGenere = nodo.data(RuoloGenere).toString();
            const QVariant identita = nodo.data(RuoloIdentita);
            if (perGenere[sGenere] < StazioniPerGenere && !stazioni.contains(identita)) {
                ++perGenere[sGenere];
                stazioni.append(identita);
            }
        }
        if (stazioni.isEmpty()) {
            PremiAllaStazione(finestra, nullptr, QVariant(), premuti);
        }
        for (const QVariant& stazione : stazioni) {
            if (!Viva(guardata)) {
                break;
            }
            vista = Navigazione(finestra);
            if (!Scegli(vista, stazione)) {
                Segnala(QStringLiteral("%1: the node %2 cannot be chosen with a click")
                            .arg(sFinestra, stazione.toString()));
                continue;
            }
            Annota(QStringLiteral("  at ") + vista->currentIndex().data().toString());
            PremiAllaStazione(finestra, vista, stazione, premuti);
        }
    }
    if (!Viva(guardata)) {
        return;
    }
    // Back in browse state, usable.
    auto* annulla = finestra->findChild<QAbstractButton*>(QStringLiteral("cmdAnnulla"));
    if (annulla != nullptr && annulla->isVisible() && annulla->isEnabled() && !bAnnullaIniziale) {
        Segnala(sFinestra + QStringLiteral(" did not come back to browse state"));
    }
    QAbstractItemView* vista = Navigazione(finestra);
    if (vista != nullptr && !vista->isEnabled()) {
        Segnala(sFinestra + QStringLiteral(": its tree or list is left disabled"));
    }
    // What the window has and the tour could not press (never enabled in browse state where it
    // went), told in the diary.
    const auto tutti = finestra->findChildren<QAbstractButton*>();
    for (const QAbstractButton* p : tutti) {
        if (p->objectName().startsWith(QLatin1String("cmd"))) {
            nonPremuti.insert(sFinestra + u'/' + NomeDi(finestra, p));
        }
    }
    // Last, the buttons that may end the dialog, at the first meeting.
    if (!bChiudeAllaFine) {
        return;
    }
    const auto pulsanti = finestra->findChildren<QAbstractButton*>();
    for (QAbstractButton* p : pulsanti) {
        if (Viva(guardata) && DiChiusura(p) && p->isVisible() && p->isEnabled()) {
            premuti.insert(NomeDi(finestra, p));
            Premi(finestra, p, NomeDi(finestra, p));
        }
    }
}

void TestGiro::PremiAllaStazione(QWidget* finestra, QAbstractItemView* vista,
                                 const QVariant& stazione, QSet<QString>& premuti) {
    QPointer<QWidget> guardata(finestra);
    QSet<QString> premutiQui;
    PremiVisibili(finestra, vista, stazione, premuti, premutiQui);
    // The popup of the tree, once for each kind of node; on each node of its kind when it opens
    // a dialog, as the buttons that do.
    if (Viva(guardata) && vista != nullptr && vista->isEnabled() &&
        vista->contextMenuPolicy() == Qt::CustomContextMenu && vista->currentIndex().isValid()) {
        const QString sNome =
            QStringLiteral("%1 (right click on a node of kind %2)")
                .arg(vista->objectName(), vista->currentIndex().data(RuoloGenere).toString());
        if (!premuti.contains(sNome) ||
            apronoDialoghi.contains(finestra->objectName() + u'/' + sNome)) {
            premuti.insert(sNome);
            Premi(finestra, vista->viewport(), sNome, Clic::DestroSuNodo,
                  vista->visualRect(vista->currentIndex()).center());
        }
    }
    // The pages of the editors' tabs, each in turn, then the first one again.
    if (!Viva(guardata)) {
        return;
    }
    const QTabWidget* navigazione = SchedeNavigazione(finestra);
    const auto schede = finestra->findChildren<QTabWidget*>();
    for (QTabWidget* scheda : schede) {
        if (!Viva(guardata)) {
            return;
        }
        if (scheda == navigazione || !scheda->isVisible() || !scheda->isEnabled()) {
            continue;
        }
        const int iPrima = scheda->currentIndex();
        for (int i = 0; i < scheda->count() && Viva(guardata); ++i) {
            if (!scheda->isTabEnabled(i) || i == iPrima) {
                continue;
            }
            scheda->setCurrentIndex(i);
            QCoreApplication::processEvents();
            PremiVisibili(finestra, vista, stazione, premuti, premutiQui);
        }
        if (Viva(guardata)) {
            scheda->setCurrentIndex(iPrima);
        }
    }
}

void TestGiro::PremiVisibili(QWidget* finestra, QAbstractItemView* vista, const QVariant& stazione,
                             QSet<QString>& premuti, QSet<QString>& premutiQui) {
    QPointer<QWidget> guardata(finestra);
    for (;;) {
        if (!Viva(guardata)) {
            return;
        }
        QAbstractButton* prossimo = nullptr;
        QString sNome;
        const auto pulsanti = finestra->findChildren<QAbstractButton*>();
        for (QAbstractButton* p : pulsanti) {
            if (!p->isVisible() || !p->isEnabled() || p->objectName().startsWith(u"qt_")) {
                continue;
            }
            const QString nome = NomeDi(finestra, p);
            // A choice already made (an option on) does nothing when chosen again.
            if ((premuti.contains(nome) &&
                 !apronoDialoghi.contains(finestra->objectName() + u'/' + nome)) ||
                premutiQui.contains(nome) || DiChiusura(p) ||
                (p->isCheckable() && p->isChecked() && p->autoExclusive())) {
                continue;
            }
            prossimo = p;
            sNome = nome;
            break;
        }
        if (prossimo == nullptr) {
            return;
        }
        premuti.insert(sNome);
        premutiQui.insert(sNome);
        // Each press on the node or row of its station, as a person would have it chosen.
        if (vista != nullptr && stazione.isValid() && vista->isEnabled() &&
            vista->currentIndex().data(RuoloIdentita) != stazione) {
            Scegli(vista, stazione);
        }
        SceglieRigheInterne(finestra);
        QPointer<QAbstractButton> premuto(prossimo);
        Premi(finestra, prossimo, sNome);
        // Its own popup, where it has one.
        if (Viva(guardata) && premuto && premuto->isVisible() && premuto->isEnabled() &&
            premuto->contextMenuPolicy() == Qt::CustomContextMenu) {
            Premi(finestra, premuto, sNome + QStringLiteral(" (right click)"), Clic::Destro);
        }
    }
}

void TestGiro::Premi(QWidget* finestra, QWidget* pulsante, const QString& sNome, Clic clic,
                     const QPoint& punto, int iVoce) {
    const QString sFinestra = finestra->objectName();
    QPointer<QWidget> guardata(finestra);
    auto* annulla = finestra->findChild<QAbstractButton*>(QStringLiteral("cmdAnnulla"));
    const bool bAnnullaPrima = annulla != nullptr && annulla->isVisible() && annulla->isEnabled();
    // A popup's entry is taken, so that what it starts is seen too.
    seam->scelteMenu = {iVoce};
    QPointer<QWidget> premuto(pulsante);
    Esito esito = Osserva(finestra, [premuto, clic, punto] {
        if (premuto && clic == Clic::Sinistro) {
            QTest::mouseClick(premuto, Qt::LeftButton);
        } else if (premuto) {
            // The right button: the request of the widget's own popup.
            QContextMenuEvent evento(QContextMenuEvent::Mouse, punto, premuto->mapToGlobal(punto));
            QApplication::sendEvent(premuto, &evento);
        }
    });
    seam->scelteMenu.clear();
    if (Viva(guardata) && annulla != nullptr && !bAnnullaPrima && annulla->isVisible() &&
        annulla->isEnabled()) {
        const Esito ritorno =
            Osserva(finestra, [annulla] { QTest::mouseClick(annulla, Qt::LeftButton); });
        esito.bModifica = true;
        esito.messaggi += ritorno.messaggi;
        esito.dialoghi += ritorno.dialoghi;
        esito.fuoriSeam += ritorno.fuoriSeam;
    }
    const auto* comando = qobject_cast<const QAbstractButton*>(premuto.data());
    const bool bAlterno = clic == Clic::Sinistro && comando != nullptr &&
                          InElenco(comando, std::begin(PulsantiAlterni), std::end(PulsantiAlterni));
    if (bAlterno && Viva(guardata) && premuto) {
        const Esito ritorno =
            Osserva(finestra, [premuto] { QTest::mouseClick(premuto, Qt::LeftButton); });
        if (!ritorno.bCambiata) {
            Segnala(
                QStringLiteral("%1: %2 pressed again did not undo itself").arg(sFinestra, sNome));
        }
    }
    Annota(QStringLiteral("   %1: %2").arg(sNome, esito.Descrizione()));
    if (!esito.dialoghi.isEmpty()) {
        apronoDialoghi.insert(sFinestra + u'/' + sNome);
    }
    // A right click on a tree offers a popup on some kinds of node only.
    if (esito.Nulla() && clic != Clic::DestroSuNodo) {
        Segnala(QStringLiteral("%1: %2 does nothing").arg(sFinestra, sNome));
    }
    for (const Messaggio& m : esito.messaggi) {
        if (DiErrore(m)) {
            Segnala(QStringLiteral("%1: %2 leaves the box \"%3\": %4")
                        .arg(sFinestra, sNome, m.sTitolo, m.sTesto.simplified()));
        }
    }
    for (const QString& f : esito.fuoriSeam) {
        Segnala(QStringLiteral("%1: %2: %3").arg(sFinestra, sNome, f));
    }
    if (!esito.nuoveFinestre.isEmpty()) {
        Segnala(QStringLiteral("%1: %2 opened the windows %3 not modally")
                    .arg(sFinestra, sNome, esito.nuoveFinestre.join(u',')));
    }
    if (esito.bChiusa && chiusore().iLivello == 0) {
        Segnala(QStringLiteral("%1: %2 closed the window").arg(sFinestra, sNome));
    }
    // The other entries of the popup, each by a press of its own on the same place.
    for (int i = 2; iVoce == 1 && i <= esito.vociMenu.size(); ++i) {
        if (!Viva(guardata) || !premuto || !premuto->isVisible() || !premuto->isEnabled()) {
            break;
        }
        Premi(finestra, premuto,
              QStringLiteral("%1 [%2]").arg(sNome, esito.vociMenu[i - 1].trimmed()), clic, punto,
              i);
    }
}

void TestGiro::ilGiroDiMenuEPulsantiSulDemoNonTrovaVicoliCiechiNeErroriInattesi_data() {
    AggiungiBackend();
}

void TestGiro::ilGiroDiMenuEPulsantiSulDemoNonTrovaVicoliCiechiNeErroriInattesi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    banca = std::make_unique<BancaDatiProva>(
        backend, QStringList{QStringLiteral("riferimenti.sql"), QStringLiteral("demo.sql")});
    PreparaCartella();
    principale = std::make_unique<PrimoMDI>();
    QVERIFY(AvviaSessione(*principale, *banca));
    QVERIFY2(seam->Messaggi().isEmpty(), "the start showed a box");
    seam->Svuota();
    NuovoChiusore(nullptr, 0);

    // The menu bar, entry by entry, as it stands.
    QStringList visti;
    QList<QAction*> voci;
    for (QAction* azione : principale->menuBar()->actions()) {
        if (azione->menu() != nullptr) {
            for (QAction* voce : azione->menu()->actions()) {
                if (!voce->isSeparator()) {
                    voci.append(voce);
                }
            }
        } else {
            voci.append(azione);
        }
    }
    for (QAction* voce : voci) {
        const QString sVoce = voce->objectName();
        visti.append(sVoce);
        bool bNonDisponibile = false;
        for (const char* nome : VociNonDisponibili) {
            bNonDisponibile = bNonDisponibile || sVoce == QLatin1String(nome);
        }
        if (bNonDisponibile) {
            if (voce->isEnabled()) {
                Segnala(sVoce + QStringLiteral(" can be chosen"));
            }
            Annota(sVoce + QStringLiteral(": unavailable"));
            continue;
        }
        if (!voce->isEnabled()) {
            Segnala(sVoce + QStringLiteral(" cannot be chosen"));
            continue;
        }
        bool bNota = false;
        for (const AttesaVoce& attesa : VociAttese) {
            if (sVoce == QLatin1String(attesa.sVoce)) {
                bNota = true;
                if (attesa.bFiglia) {
                    VoceFiglia(voce, attesa);
                } else {
                    VoceModale(voce, attesa);
                }
            }
        }
        for (const DomandaVoce& attesa : DomandeAttese) {
            if (sVoce == QLatin1String(attesa.sVoce)) {
                bNota = true;
                VoceDomanda(voce, attesa);
            }
        }
        for (const GuidaVoce& attesa : GuideAttese) {
            if (sVoce == QLatin1String(attesa.sVoce)) {
                bNota = true;
                VoceGuida(voce, attesa);
            }
        }
        if (!bNota) {
            Segnala(sVoce + QStringLiteral(" is an entry the tour does not know"));
        }
    }

    // Still usable: the complessi open again, a node is chosen and shown, and the end of the
    // program taken with Yes closes the main form.
    QAction* complessi = principale->findChild<QAction*>(QStringLiteral("mnuComplessiDoc"));
    complessi->trigger();
    QCOMPARE(FinestreAperte(), QStringList{QStringLiteral("frmStrutturaCD")});
    QAbstractItemView* albero = Navigazione(FinestraAperta());
    QVERIFY(albero != nullptr && albero->isEnabled() && albero->model()->rowCount() > 0);
    const QList<QModelIndex> nodi = Nodi(albero->model());
    QVERIFY(nodi.size() > 1);
    QVERIFY(Scegli(albero, nodi.at(1).data(RuoloIdentita)));

    chiusori.clear();
    QStringList mai;
    for (const QString& sPulsante : std::as_const(nonPremuti)) {
        const QString sFinestra = sPulsante.section(u'/', 0, 0);
        if (!premutiPer[sFinestra].contains(sPulsante.section(u'/', 1))) {
            mai.append(sPulsante);
        }
    }
    mai.sort();
    Annota(QStringLiteral("never enabled where the tour went: ") + mai.join(QStringLiteral(", ")));
    const QString sDiario = diario.join(u'\n');
    if (!problemi.isEmpty() && !qEnvironmentVariableIsSet("TABELLION_GIRO_DIARIO")) {
        qInfo().noquote() << sDiario;
    }
    QVERIFY2(problemi.isEmpty(), qPrintable(problemi.join(u'\n')));
    // Every entry the tour expects was met on the menu bar.
    for (const AttesaVoce& attesa : VociAttese) {
        QVERIFY2(visti.contains(QLatin1String(attesa.sVoce)), attesa.sVoce);
    }
    for (const DomandaVoce& attesa : DomandeAttese) {
        QVERIFY2(visti.contains(QLatin1String(attesa.sVoce)), attesa.sVoce);
    }
    for (const GuidaVoce& attesa : GuideAttese) {
        QVERIFY2(visti.contains(QLatin1String(attesa.sVoce)), attesa.sVoce);
    }
    for (const char* sVoce : VociNonDisponibili) {
        QVERIFY2(visti.contains(QLatin1String(sVoce)), sVoce);
    }

    seam->risposte = {Risposta::Si};
    principale->findChild<QAction*>(QStringLiteral("mnuFine"))->trigger();
    QTRY_VERIFY(!principale->isVisible());
    QVERIFY(!Sessione::cnn);
}

QTEST_MAIN(TestGiro)
#include "tst_giro.moc"
