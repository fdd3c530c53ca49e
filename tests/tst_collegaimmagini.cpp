// The page link of an element to a MAG document of the image repository, on SQLite and on
// PostgreSQL: the folder and file lists below the repository's root (the bare root "/" sends the
// folder list back to the repository), the page lists of the document, a range that can't be
// confirmed, the handlers' boxes C1 to C7 (a folder or a file gone meanwhile, a page number that
// is not a whole number, a refused write), the link cleared by the dialog; and the road from the
// right click on the image button of a unit and of a parchment, with the columns of Elementi
// written and cleared and the button's caption and colour following.

#include "images/ImmagineRecord.h"
#include "images/frmCollegaImmagini.h"
#include "programma/Registro.h"
#include "records/ucDatiInventariali.h"
#include "records/ucPergamena.h"
#include "session/Sessione.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"

#include "AmbienteRecord.h"
#include "Modali.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSqlQuery>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Pagina {
    QString sSequenza;
    QString sNome;
};

// A MAG document listing those pages.
QByteArray Mag(const QList<Pagina>& pagine) {
    QByteArray testo = "<?xml version=\"1.0\"?>\n<metadigit>";
    for (const Pagina& p : pagine)
        testo += "<img><sequence_number>" + p.sSequenza.toUtf8() +
                 "</sequence_number><nomenclature>" + p.sNome.toUtf8() +
                 "</nomenclature><file xlink:href=\"./x.tif\"/></img>";
    return testo + "</metadigit>\n";
}

const QList<Pagina> TrePagine = {{QStringLiteral("1"), QStringLiteral("piatto anteriore")},
                                 {QStringLiteral("2"), QStringLiteral("c. 1r")},
                                 {QStringLiteral("3"), QStringLiteral("c. 1v")}};

// A record's environment with an image repository: its root (sParam01) holds the site's folder,
// and that folder a MAG document of three pages, a text file and a subfolder "vol2".
struct Deposito : AmbienteRecord {
    explicit Deposito(TipoBackend tipo,
                      const QString& sTabellaRecord = QStringLiteral("DatiInventariali"),
                      std::initializer_list<const char*> liste = {"LivelliDI.txt"})
        : AmbienteRecord(tipo, sTabellaRecord, liste) {
        sCodice = CodiceDelSito(Cnn()).trimmed();
        sRadice = QDir::cleanPath(disco.path() + QStringLiteral("/repo"));
        sSito = sRadice + QLatin1Char('/') + sCodice;
        QDir().mkpath(sSito + QStringLiteral("/vol2"));
        sDoc = sSito + QStringLiteral("/mag.xml");
        DocumentoMag::Scrivi(sDoc, Mag(TrePagine));
        DocumentoMag::Scrivi(sSito + QStringLiteral("/note.txt"), "non un documento");
        Sessione::sParam01 = sRadice;
    }
    ~Deposito() { Sessione::Azzera(); }
    // An element with a page link written behind the dialog's back.
    void Collega(long lId, const QString& sXmlLink, int iDa, int iA) const {
        Cnn().Esegui(QStringLiteral("UPDATE Elementi SET XmlLink = ?, PaginaStart = ?, "
                                    "PaginaEnd = ? WHERE ID_Elemento = ?"),
                     {sXmlLink, iDa, iA, Id(lId)});
    }
    // XmlLink, PaginaStart and PaginaEnd of the element, read by the test.
    QVariantList LinkPagine(long lId) const {
        QSqlQuery riga = Cnn().Esegui(QStringLiteral("SELECT XmlLink, PaginaStart, PaginaEnd "
                                                     "FROM Elementi WHERE ID_Elemento = ?"),
                                      {Id(lId)});
        if (!riga.next())
            return {};
        return {riga.value(0), riga.value(1).toInt(), riga.value(2).toInt()};
    }
    long Unita() const {
        const long istituto = CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
        const long inventario = Crea("03", QStringLiteral("Inventario"), istituto);
        return Crea("07", QStringLiteral("Busta 1"), inventario);
    }
    // The document as the link keeps it: below the repository's root.
    QString Relativo(const QString& sNome = QStringLiteral("mag.xml")) const {
        return QDir::toNativeSeparators(sCodice + QLatin1Char('/') + sNome);
    }

    QTemporaryDir disco;
    QString sCodice, sRadice, sSito, sDoc;
};

QListWidget* Dir1(const QWidget* f) {
    return Controllo<QListWidget>(f, QStringLiteral("Dir1"));
}
QListWidget* FileList(const QWidget* f) {
    return Controllo<QListWidget>(f, QStringLiteral("FileList"));
}
QComboBox* Da(const QWidget* f) {
    return Controllo<QComboBox>(f, QStringLiteral("cmbDaPagina"));
}
QComboBox* A(const QWidget* f) {
    return Controllo<QComboBox>(f, QStringLiteral("cmbAPagina"));
}
QPushButton* Tasto(const QWidget* f, const char* nome) {
    return Controllo<QPushButton>(f, QLatin1String(nome));
}
QString Testo1(const QWidget* f) {
    return Controllo<QLineEdit>(f, QStringLiteral("Text1"))->text();
}

QStringList Voci(const QListWidget* lista) {
    QStringList voci;
    for (int i = 0; i < lista->count(); ++i)
        voci << lista->item(i)->text().trimmed();
    return voci;
}

// A click on the entry of a list, as the person gives it.
void Clic(QListWidget* lista, QListWidgetItem* voce) {
    QVERIFY(voce != nullptr);
    lista->scrollToItem(voce);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, Qt::NoModifier,
                      lista->visualItemRect(voce).center());
}
void Clic(QListWidget* lista, const QString& sTesto) {
    for (int i = 0; i < lista->count(); ++i) {
        if (lista->item(i)->text().trimmed() == sTesto) {
            Clic(lista, lista->item(i));
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no entry ") + sTesto));
}

// The entry of a page list chosen, as a click on it does.
void Scegli(QComboBox* combo, int i) {
    combo->setCurrentIndex(i);
    Q_EMIT combo->activated(i);
}

// The document chosen in the site's folder and opened.
void ApriDocumento(QWidget* f, const QString& sNome = QStringLiteral("mag.xml")) {
    Clic(FileList(f), sNome);
    Tasto(f, "cmdApri")->click();
}

// The dialog for an element, as its opener starts it, shown.
struct Finestra {
    explicit Finestra(long lId, qint16 iDa = 0, qint16 iA = 0, const QString& sCartella = {}) {
        Sessione::lIdElementoImg = lId;
        Sessione::iDaPagina = iDa;
        Sessione::iAPagina = iA;
        Sessione::sCartellaImg = sCartella;
        f = std::make_unique<frmCollegaImmagini>();
        f->show();
        if (!QTest::qWaitForWindowExposed(f.get()))
            qWarning("the dialog was not exposed");
    }
    frmCollegaImmagini* operator->() const { return f.get(); }
    operator QWidget*() const { return f.get(); }
    std::unique_ptr<frmCollegaImmagini> f;
};

// The one box shown, checked for its title, icon and beginning of its text.
void UnMessaggio(const PiattaformaScriptata& seam, const QString& sTitolo, Icona icona,
                 const QString& sInizio) {
    const QList<Messaggio> m = seam.Messaggi();
    QCOMPARE(m.size(), 1);
    QCOMPARE(m.constFirst().sTitolo, sTitolo);
    QCOMPARE(m.constFirst().icona, icona);
    QVERIFY2(m.constFirst().sTesto.startsWith(sInizio), qPrintable(m.constFirst().sTesto));
}

// The dialog, once it comes up modally, driven by the action; a dialog that the action left open
// is then given up, so that a failed step ends the test instead of holding it.
void AllaFinestra(const std::function<void(QWidget*)>& azione) {
    AlComparire(QStringLiteral("frmCollegaImmagini"), [azione](QWidget* f) {
        azione(f);
        if (f->isVisible())
            static_cast<QDialog*>(f)->reject();
    });
}

// The right click on a record's image button.
void ClicDestro(QPushButton* pulsante) {
    const QPoint punto = pulsante->rect().center();
    QContextMenuEvent evento(QContextMenuEvent::Mouse, punto, pulsante->mapToGlobal(punto));
    QApplication::sendEvent(pulsante, &evento);
}

// From the right click on a record's image button: the document opened in the dialog, the
// entries iDa and iA of its page lists chosen and the dialog closed with that button.
void PagineDalClicDestro(PiattaformaScriptata& seam, QPushButton* cmdImmagine, int iDa, int iA,
                         const char* sChiusura) {
    seam.scelteMenu = {1};
    AllaFinestra([iDa, iA, sChiusura](QWidget* f) {
        ApriDocumento(f);
        Scegli(Da(f), iDa);
        Scegli(A(f), iA);
        Tasto(f, sChiusura)->click();
    });
    ClicDestro(cmdImmagine);
}

QColor Sfondo(const QPushButton* p) {
    return p->palette().color(QPalette::Button);
}

// From the right click on the image button of a record showing the element: pages 2 to 3 of the
// document linked, and the button showing the link; then the dialog opened again shows the link
// and clears it, and the button follows.
void CollegaEScollega(Deposito& d, QWidget* editore, long lId) {
    QPushButton* cmdImmagine = Controllo<QPushButton>(editore, QStringLiteral("cmdImmagine"));
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionImmagine);
    QVERIFY(cmdImmagine->isEnabled());

    PagineDalClicDestro(d.seam, cmdImmagine, 1, 0, "cmdConferma");
    const QList<Chiamata> menu = d.seam.Chiamate(QStringLiteral("menu"));
    QCOMPARE(menu.size(), 1);
    QCOMPARE(menu.constFirst().voci,
             QStringList{QStringLiteral("Collega pagine di un documento MAG…")});
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(d.LinkPagine(lId), (QVariantList{d.Relativo(), 2, 3}));
    QVERIFY(d.ColonnaElemento(QStringLiteral("Md5Link"), lId).isNull());
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionElimina);
    QCOMPARE(cmdImmagine->property("Tag").toString(), QStringLiteral("1"));
    QCOMPARE(Sfondo(cmdImmagine), QApplication::palette().color(QPalette::Window));

    // Opened again: the link in the dialog, then cleared there and the dialog closed.
    d.seam.scelteMenu = {1};
    auto visto = std::make_shared<QStringList>();
    AllaFinestra([visto](QWidget* f) {
        *visto << Da(f)->currentText() << A(f)->currentText() << Testo1(f);
        Tasto(f, "cmdCancella")->click();
        Tasto(f, "cmdAnnulla")->click();
    });
    ClicDestro(cmdImmagine);
    QCOMPARE(*visto, (QStringList{QStringLiteral("c. 1r"), QStringLiteral("c. 1v"),
                                  QStringLiteral("mag.xml")}));
    QVERIFY(d.seam.Messaggi().isEmpty());
    const QVariantList link = d.LinkPagine(lId);
    QCOMPARE(link.size(), 3);
    QVERIFY(link.at(0).isNull());
    QCOMPARE(link.at(1).toInt(), 0);
    QCOMPARE(link.at(2).toInt(), 0);
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionImmagine);
    QCOMPARE(cmdImmagine->property("Tag").toString(), QStringLiteral("0"));
    QCOMPARE(Sfondo(cmdImmagine), QApplication::palette().color(QPalette::Button));
}

} // namespace

class TestCollegaImmagini : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { RegistraFinestreProgramma(); }
    void cleanup() { Sessione::Azzera(); }

    void senzaLinkLaFinestraApreLaCartellaDelSitoConIPulsantiSpenti_data() { AggiungiBackend(); }
    void senzaLinkLaFinestraApreLaCartellaDelSitoConIPulsantiSpenti();
    void unDocumentoSceltoSiApreESiConfermaUnIntervalloDiPagine_data() { AggiungiBackend(); }
    void unDocumentoSceltoSiApreESiConfermaUnIntervalloDiPagine();
    void iNomiLunghiDellePagineSiLeggonoInteriNelleListe_data() { AggiungiBackend(); }
    void iNomiLunghiDellePagineSiLeggonoInteriNelleListe();
    void conUnSoloImgNonSiPuoConfermareUnIntervallo_data() { AggiungiBackend(); }
    void conUnSoloImgNonSiPuoConfermareUnIntervallo();
    void laPaginaFinaleSenzaQuellaInizialeChiedeDaPagina_data() { AggiungiBackend(); }
    void laPaginaFinaleSenzaQuellaInizialeChiedeDaPagina();
    void unNumeroDiPaginaNonInteroMostraIlMessaggioDelGestoreDiApri_data() { AggiungiBackend(); }
    void unNumeroDiPaginaNonInteroMostraIlMessaggioDelGestoreDiApri();
    void unDocumentoCambiatoNelFrattempoFallisceAllaSceltaDellaPrimaPagina_data() {
        AggiungiBackend();
    }
    void unDocumentoCambiatoNelFrattempoFallisceAllaSceltaDellaPrimaPagina();
    void unaCartellaSiApreConUnClicEAzzeraLaScelta_data() { AggiungiBackend(); }
    void unaCartellaSiApreConUnClicEAzzeraLaScelta();
    void laRadiceNudaRiportaAllaRadiceDelDeposito_data() { AggiungiBackend(); }
    void laRadiceNudaRiportaAllaRadiceDelDeposito();
    void unaCartellaRimossaNelFrattempoMostraErroreC4ELaFinestraResta_data() { AggiungiBackend(); }
    void unaCartellaRimossaNelFrattempoMostraErroreC4ELaFinestraResta();
    void laRadiceDelDepositoRimossaMostraErroreC3_data() { AggiungiBackend(); }
    void laRadiceDelDepositoRimossaMostraErroreC3();
    void laCartellaDelSitoMancanteMostraErroreC5ELaFinestraResta_data() { AggiungiBackend(); }
    void laCartellaDelSitoMancanteMostraErroreC5ELaFinestraResta();
    void unDocumentoRimossoNelFrattempoMostraErroreC6_data() { AggiungiBackend(); }
    void unDocumentoRimossoNelFrattempoMostraErroreC6();
    void conUnLinkLaFinestraMostraDocumentoEPagineECancellaLiToglie_data() { AggiungiBackend(); }
    void conUnLinkLaFinestraMostraDocumentoEPagineECancellaLiToglie();
    void unaCancellazioneRifiutataMostraErroreC2_data() { AggiungiBackend(); }
    void unaCancellazioneRifiutataMostraErroreC2();
    void unaUnitaSiCollegaAllePagineDalClicDestroESiScollega_data() { AggiungiBackend(); }
    void unaUnitaSiCollegaAllePagineDalClicDestroESiScollega();
    void unaPergamenaSiCollegaAllePagineDalClicDestroESiScollega_data() { AggiungiBackend(); }
    void unaPergamenaSiCollegaAllePagineDalClicDestroESiScollega();
    void annullandoLaFinestraNonSiScriveNulla_data() { AggiungiBackend(); }
    void annullandoLaFinestraNonSiScriveNulla();
    void ilClicSulPulsanteConUnLinkDiPagineLoToglie_data() { AggiungiBackend(); }
    void ilClicSulPulsanteConUnLinkDiPagineLoToglie();
    void conUnDocumentoImportatoIlClicDestroNonOffreNulla_data() { AggiungiBackend(); }
    void conUnDocumentoImportatoIlClicDestroNonOffreNulla();
    void unaScritturaRifiutataDelLinkSiMostraEIlPulsanteResta_data() { AggiungiBackend(); }
    void unaScritturaRifiutataDelLinkSiMostraEIlPulsanteResta();
    void unaRadiceConIlSeparatoreFinaleTieneLoStessoPercorso_data() { AggiungiBackend(); }
    void unaRadiceConIlSeparatoreFinaleTieneLoStessoPercorso();
};

void TestCollegaImmagini::senzaLinkLaFinestraApreLaCartellaDelSitoConIPulsantiSpenti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Finestra f(d.Unita());
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sSito));
    QCOMPARE(f->FileListPath(), QDir::toNativeSeparators(d.sSito));
    // The folder list: the ancestors from the root down, the folder, its subfolders.
    const QStringList cartelle = Voci(Dir1(f));
    QCOMPARE(cartelle.constFirst(), QDir::toNativeSeparators(QDir::rootPath()));
    QCOMPARE(cartelle.mid(cartelle.size() - 4),
             (QStringList{QDir(d.disco.path()).dirName(), QStringLiteral("repo"), d.sCodice,
                          QStringLiteral("vol2")}));
    // Only the XML documents.
    QCOMPARE(Voci(FileList(f)), QStringList{QStringLiteral("mag.xml")});
    QCOMPARE(Controllo<QLabel>(f, QStringLiteral("lblFile"))->text(), QStringLiteral("Nome file"));
    QCOMPARE(Tasto(f, "cmdApri")->text(), QStringLiteral("Apri"));
    QCOMPARE(Tasto(f, "cmdAnnulla")->text(), QStringLiteral("Annulla"));
    QVERIFY(!Tasto(f, "cmdApri")->isEnabled());
    QVERIFY(!Tasto(f, "cmdConferma")->isEnabled());
    QVERIFY(!Tasto(f, "cmdCancella")->isEnabled());
    QCOMPARE(Da(f)->count(), 0);
    QCOMPARE(A(f)->count(), 0);
}

void TestCollegaImmagini::unDocumentoSceltoSiApreESiConfermaUnIntervalloDiPagine() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    Finestra f(lId);
    Clic(FileList(f), QStringLiteral("mag.xml"));
    QVERIFY(Tasto(f, "cmdApri")->isEnabled());
    QCOMPARE(Testo1(f), QStringLiteral("mag.xml"));
    QCOMPARE(f->PercorsoDocumento(), QDir::toNativeSeparators(d.sDoc));
    // Kept by what follows the repository's root.
    QCOMPARE(Sessione::sCartellaImg, d.Relativo());

    Tasto(f, "cmdApri")->click();
    QVERIFY(Tasto(f, "cmdConferma")->isEnabled());
    QCOMPARE(Voci(Da(f)), (QStringList{QStringLiteral("1=piatto anteriore"),
                                       QStringLiteral("2=c. 1r"), QStringLiteral("3=c. 1v")}));
    QCOMPARE(Da(f)->currentIndex(), -1);
    // Only the pages after the first can be the last.
    Scegli(Da(f), 1);
    QCOMPARE(Sessione::sPaginaImg, QStringLiteral("c. 1r"));
    QCOMPARE(Voci(A(f)), QStringList{QStringLiteral("3=c. 1v")});
    QCOMPARE(A(f)->currentIndex(), -1);
    Scegli(A(f), 0);
    Tasto(f, "cmdConferma")->click();
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(f->result(), int(QDialog::Accepted));
    QCOMPARE(Sessione::iDaPagina, qint16(2));
    QCOMPARE(Sessione::iAPagina, qint16(3));
    QCOMPARE(Sessione::iEsitoCollegaImmagini, 1);
    // The dialog itself writes nothing.
    QVERIFY(d.LinkPagine(lId).value(0).isNull());
}

void TestCollegaImmagini::iNomiLunghiDellePagineSiLeggonoInteriNelleListe() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    // Pages named as the sheets of a cadastral map, like those of the demo archive.
    DocumentoMag::Scrivi(
        d.sSito + QStringLiteral("/mappe.xml"),
        Mag({{QStringLiteral("2"), QStringLiteral("Foglio 2 - Quadro d'unione")},
             {QStringLiteral("4"), QStringLiteral("Foglio 4 - Sezione B, Borgo «San Frediano»")}}));
    Finestra f(d.Unita());
    ApriDocumento(f, QStringLiteral("mappe.xml"));
    Scegli(Da(f), 0);
    Scegli(A(f), 0);
    QTest::qWait(50);
    for (const QComboBox* pagina : {Da(f), A(f)}) {
        QStyleOptionComboBox opzione;
        opzione.initFrom(pagina);
        const QRect campo = pagina->style()->subControlRect(QStyle::CC_ComboBox, &opzione,
                                                            QStyle::SC_ComboBoxEditField, pagina);
        const int iTesto = pagina->fontMetrics().horizontalAdvance(pagina->currentText());
        QVERIFY2(campo.width() >= iTesto, qPrintable(pagina->currentText()));
    }
}

void TestCollegaImmagini::conUnSoloImgNonSiPuoConfermareUnIntervallo() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    DocumentoMag::Scrivi(d.sSito + QStringLiteral("/uno.xml"),
                         Mag({{QStringLiteral("7"), QStringLiteral("unica")}}));
    Finestra f(d.Unita());
    ApriDocumento(f, QStringLiteral("uno.xml"));
    QCOMPARE(Voci(Da(f)), QStringList{QStringLiteral("7=unica")});
    Scegli(Da(f), 0);
    QCOMPARE(A(f)->count(), 0);
    Tasto(f, "cmdConferma")->click();
    UnMessaggio(d.seam, QStringLiteral("Attenzione"), Icona::Informazione,
                QStringLiteral("Inserire dati"));
    QCOMPARE(d.seam.Messaggi().constFirst().sTesto, QStringLiteral("Inserire dati"));
    QVERIFY(f->isVisible());
    QCOMPARE(Sessione::iEsitoCollegaImmagini, 0);
    QCOMPARE(Sessione::iDaPagina, qint16(0));
}

void TestCollegaImmagini::laPaginaFinaleSenzaQuellaInizialeChiedeDaPagina() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Finestra f(d.Unita());
    ApriDocumento(f);
    Scegli(Da(f), 0);
    // Opened again: the first page is to be chosen again, the last pages are still listed.
    Tasto(f, "cmdApri")->click();
    QCOMPARE(Da(f)->currentIndex(), -1);
    QCOMPARE(A(f)->count(), 2);
    Scegli(A(f), 1);
    UnMessaggio(d.seam, QStringLiteral("Attenzione"), Icona::Informazione,
                QStringLiteral("Inserire Da Pagina"));
    QCOMPARE(d.seam.Messaggi().constFirst().sTesto, QStringLiteral("Inserire Da Pagina"));
    d.seam.Svuota();
    Tasto(f, "cmdConferma")->click();
    UnMessaggio(d.seam, QStringLiteral("Attenzione"), Icona::Informazione,
                QStringLiteral("Inserire dati"));
    QCOMPARE(Sessione::iEsitoCollegaImmagini, 0);
}

void TestCollegaImmagini::unNumeroDiPaginaNonInteroMostraIlMessaggioDelGestoreDiApri() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    DocumentoMag::Scrivi(d.sSito + QStringLiteral("/rotto.xml"),
                         Mag({{QStringLiteral("1"), QStringLiteral("c. 1r")},
                              {QStringLiteral("2bis"), QStringLiteral("c. 1v")}}));
    Finestra f(d.Unita());
    ApriDocumento(f, QStringLiteral("rotto.xml"));
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreApri, Icona::Critica,
                QStringLiteral("DaImag\nTipo non corrispondente"));
    // The pages before the failing one stay, none chosen; nothing can be confirmed.
    QCOMPARE(Voci(Da(f)), QStringList{QStringLiteral("1=c. 1r")});
    QCOMPARE(Da(f)->currentIndex(), -1);
    QVERIFY(!Tasto(f, "cmdConferma")->isEnabled());
    QVERIFY(f->isVisible());
    // The form stays usable: another document opens.
    d.seam.Svuota();
    ApriDocumento(f);
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(Da(f)->count(), 3);
    QVERIFY(Tasto(f, "cmdConferma")->isEnabled());
}

void TestCollegaImmagini::unDocumentoCambiatoNelFrattempoFallisceAllaSceltaDellaPrimaPagina() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Finestra f(d.Unita());
    ApriDocumento(f);
    // The document is rewritten after it was opened: its last page has a number of 17 bits.
    DocumentoMag::Scrivi(d.sDoc, Mag({TrePagine.at(0),
                                      TrePagine.at(1),
                                      {QStringLiteral("70000"), QStringLiteral("c. 1v")}}));
    Scegli(Da(f), 0);
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreDaPagina, Icona::Critica,
                QStringLiteral("AImag\nOverflow"));
    QCOMPARE(Voci(A(f)), QStringList{QStringLiteral("2=c. 1r")});
    QCOMPARE(A(f)->currentIndex(), -1);
}

void TestCollegaImmagini::unaCartellaSiApreConUnClicEAzzeraLaScelta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    DocumentoMag::Scrivi(d.sSito + QStringLiteral("/vol2/altro.xml"), Mag(TrePagine));
    Finestra f(d.Unita());
    ApriDocumento(f);
    Scegli(Da(f), 0);
    Clic(Dir1(f), QStringLiteral("vol2"));
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sSito + QStringLiteral("/vol2")));
    QCOMPARE(Voci(FileList(f)), QStringList{QStringLiteral("altro.xml")});
    QVERIFY(!Tasto(f, "cmdApri")->isEnabled());
    QCOMPARE(Da(f)->count(), 0);
    QCOMPARE(A(f)->count(), 0);
    QVERIFY(Testo1(f).isEmpty());
    // Below the site's folder the document keeps its subfolder.
    Clic(FileList(f), QStringLiteral("altro.xml"));
    QCOMPARE(Sessione::sCartellaImg, d.Relativo(QStringLiteral("vol2/altro.xml")));
    // Up again through an ancestor.
    Clic(Dir1(f), d.sCodice);
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sSito));
    QCOMPARE(Voci(FileList(f)), QStringList{QStringLiteral("mag.xml")});
}

void TestCollegaImmagini::laRadiceNudaRiportaAllaRadiceDelDeposito() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    DocumentoMag::Scrivi(d.sRadice + QStringLiteral("/indice.xml"), Mag(TrePagine));
    Finestra f(d.Unita());
    // The root "/" plays the part of a bare drive: the list goes back to sParam01.
    Clic(Dir1(f), Dir1(f)->item(0));
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sRadice));
    QCOMPARE(f->FileListPath(), QDir::toNativeSeparators(d.sRadice));
    QCOMPARE(Voci(FileList(f)), QStringList{QStringLiteral("indice.xml")});
    Clic(FileList(f), QStringLiteral("indice.xml"));
    QCOMPARE(Sessione::sCartellaImg, QStringLiteral("indice.xml"));
}

void TestCollegaImmagini::unaCartellaRimossaNelFrattempoMostraErroreC4ELaFinestraResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Finestra f(d.Unita());
    QVERIFY(QDir(d.sSito + QStringLiteral("/vol2")).removeRecursively());
    Clic(Dir1(f), QStringLiteral("vol2"));
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreClicCartella, Icona::Critica,
                QStringLiteral("frmCollegaImmagini\nImpossibile trovare il percorso"));
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sSito));
    QVERIFY(f->isVisible());
    // Still usable: the document of the folder is chosen and opened.
    d.seam.Svuota();
    ApriDocumento(f);
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(Da(f)->count(), 3);
}

void TestCollegaImmagini::laRadiceDelDepositoRimossaMostraErroreC3() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Finestra f(d.Unita());
    // The repository's root goes elsewhere; back from the bare root it is not found.
    QVERIFY(QDir().rename(d.sRadice, d.sRadice + QStringLiteral("-spostata")));
    Clic(Dir1(f), Dir1(f)->item(0));
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreCambioCartella, Icona::Critica,
                QStringLiteral("frmCollegaImmagini\nImpossibile trovare il percorso"));
    QVERIFY(f->isVisible());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(QDir::rootPath()));
    // At the bare root a click opens nothing; Annulla closes the form.
    d.seam.Svuota();
    Clic(Dir1(f), Dir1(f)->item(Dir1(f)->count() - 1));
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(QDir::rootPath()));
    Tasto(f, "cmdAnnulla")->click();
    QCOMPARE(f->result(), int(QDialog::Rejected));
    QVERIFY(!f->isVisible());
}

void TestCollegaImmagini::laCartellaDelSitoMancanteMostraErroreC5ELaFinestraResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    QVERIFY(QDir(d.sSito).removeRecursively());
    Finestra f(d.Unita());
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreCaricamento, Icona::Critica,
                QStringLiteral("frmCollegaImmagini\nImpossibile trovare il percorso"));
    QVERIFY(f->isVisible());
    QVERIFY(!Tasto(f, "cmdApri")->isEnabled());
    QVERIFY(!Tasto(f, "cmdConferma")->isEnabled());
    QVERIFY(Tasto(f, "cmdAnnulla")->isEnabled());
}

void TestCollegaImmagini::unDocumentoRimossoNelFrattempoMostraErroreC6() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Finestra f(d.Unita());
    QVERIFY(QFile::remove(d.sDoc));
    Clic(FileList(f), QStringLiteral("mag.xml"));
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreClicFile, Icona::Critica,
                QStringLiteral("frmCollegaImmagini\nFile non trovato"));
    QVERIFY(!Tasto(f, "cmdApri")->isEnabled());
    QVERIFY(Testo1(f).isEmpty());
    QVERIFY(Sessione::sCartellaImg.isEmpty());
}

void TestCollegaImmagini::conUnLinkLaFinestraMostraDocumentoEPagineECancellaLiToglie() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    d.Collega(lId, d.Relativo(), 1, 3);
    Finestra f(lId, 1, 3, d.Relativo());
    QVERIFY(d.seam.Messaggi().isEmpty());
    QVERIFY(Tasto(f, "cmdCancella")->isEnabled());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sSito));
    QCOMPARE(Testo1(f), QStringLiteral("mag.xml"));
    QCOMPARE(FileList(f)->currentItem()->text(), QStringLiteral("mag.xml"));
    // Both lists hold every page, set on the linked ones.
    QCOMPARE(Da(f)->count(), 3);
    QCOMPARE(A(f)->count(), 3);
    QCOMPARE(Da(f)->currentText(), QStringLiteral("piatto anteriore"));
    QCOMPARE(A(f)->currentText(), QStringLiteral("c. 1v"));

    Tasto(f, "cmdCancella")->click();
    QVERIFY(d.seam.Messaggi().isEmpty());
    const QVariantList link = d.LinkPagine(lId);
    QVERIFY(link.value(0).isNull());
    QCOMPARE(link.value(1).toInt(), 0);
    QCOMPARE(link.value(2).toInt(), 0);
    // The form as one without a link, at the repository's root.
    QVERIFY(f->isVisible());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sRadice));
    QCOMPARE(f->FileListPath(), QDir::toNativeSeparators(d.sRadice));
    for (const char* nome : {"cmdApri", "cmdConferma", "cmdCancella"})
        QVERIFY2(!Tasto(f, nome)->isEnabled(), nome);
    QCOMPARE(Da(f)->count(), 0);
    QCOMPARE(A(f)->count(), 0);
    QVERIFY(Testo1(f).isEmpty());
    QCOMPARE(Sessione::iDaPagina, qint16(0));
    QCOMPARE(Sessione::iAPagina, qint16(0));
}

void TestCollegaImmagini::unaCancellazioneRifiutataMostraErroreC2() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    d.Collega(lId, d.Relativo(), 1, 3);
    d.RifiutaAggiornamento(QStringLiteral("Elementi"), QStringLiteral("NEW.XmlLink IS NULL"),
                           QStringLiteral("collegamento bloccato"));
    Finestra f(lId, 1, 3, d.Relativo());
    Tasto(f, "cmdCancella")->click();
    UnMessaggio(d.seam, frmCollegaImmagini::ErroreCancella, Icona::Critica,
                QStringLiteral("frmCollegaImmagini\n"));
    QVERIFY(
        d.seam.Messaggi().constFirst().sTesto.contains(QStringLiteral("collegamento bloccato")));
    QCOMPARE(d.LinkPagine(lId), (QVariantList{d.Relativo(), 1, 3}));
    // Nothing of the form changed.
    QVERIFY(Tasto(f, "cmdCancella")->isEnabled());
    QCOMPARE(Da(f)->count(), 3);
    QCOMPARE(Sessione::iDaPagina, qint16(1));
}

void TestCollegaImmagini::unaUnitaSiCollegaAllePagineDalClicDestroESiScollega() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    EditorePronto<ucDatiInventariali> editore(lId);
    editore.show();
    CollegaEScollega(d, &editore, lId);
}

void TestCollegaImmagini::unaPergamenaSiCollegaAllePagineDalClicDestroESiScollega() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend, QStringLiteral("Pergamene"),
               {"TraditioPG.txt", "TipologiaIcoSG.txt", "FormaSG.txt", "MateriaSG.txt",
                "TipologiaSG.txt", "ApposizioneSG.txt", "RapportoDocSG.txt", "TipologiaDGSG.txt"});
    const long istituto = d.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = d.Crea("03", QStringLiteral("Diplomatico"), istituto);
    const long lId = d.Crea("05", QStringLiteral("Perg. 1"), inventario);
    EditorePronto<ucPergamena> editore(lId);
    editore.show();
    CollegaEScollega(d, &editore, lId);
}

void TestCollegaImmagini::annullandoLaFinestraNonSiScriveNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    EditorePronto<ucDatiInventariali> editore(lId);
    editore.show();
    QPushButton* cmdImmagine = Controllo<QPushButton>(&editore, QStringLiteral("cmdImmagine"));
    PagineDalClicDestro(d.seam, cmdImmagine, 0, 1, "cmdAnnulla");
    QCOMPARE(d.seam.Chiamate(QStringLiteral("menu")).size(), 1);
    QVERIFY(d.LinkPagine(lId).value(0).isNull());
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionImmagine);
    // No entry chosen in the popup: no dialog.
    d.seam.scelteMenu = {0};
    ClicDestro(cmdImmagine);
    QCOMPARE(d.seam.Chiamate(QStringLiteral("menu")).size(), 2);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(d.LinkPagine(lId).value(0).isNull());
}

void TestCollegaImmagini::ilClicSulPulsanteConUnLinkDiPagineLoToglie() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    d.Collega(lId, d.Relativo(), 2, 3);
    EditorePronto<ucDatiInventariali> editore(lId);
    QPushButton* cmdImmagine = Controllo<QPushButton>(&editore, QStringLiteral("cmdImmagine"));
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionElimina);
    QCOMPARE(cmdImmagine->property("Tag").toString(), QStringLiteral("1"));
    d.seam.risposte = {Risposta::Si};
    cmdImmagine->click();
    UnMessaggio(d.seam, ImmagineRecord::TitoloDomandaBreve, Icona::Domanda,
                ImmagineRecord::TestoDomanda);
    QVERIFY(d.seam.Chiamate(QStringLiteral("file")).isEmpty());
    const QVariantList link = d.LinkPagine(lId);
    QVERIFY(link.value(0).isNull());
    QCOMPARE(link.value(1).toInt(), 0);
    QCOMPARE(link.value(2).toInt(), 0);
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionImmagine);
    QCOMPARE(cmdImmagine->property("Tag").toString(), QStringLiteral("0"));
}

void TestCollegaImmagini::conUnDocumentoImportatoIlClicDestroNonOffreNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    d.Cnn().Esegui(QStringLiteral("UPDATE Elementi SET Md5Link = ? WHERE ID_Elemento = ?"),
                   {QStringLiteral("0123456789abcdef0123456789abcdef"), Id(lId)});
    EditorePronto<ucDatiInventariali> editore(lId);
    QPushButton* cmdImmagine = Controllo<QPushButton>(&editore, QStringLiteral("cmdImmagine"));
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionElimina);
    d.seam.scelteMenu = {1};
    ClicDestro(cmdImmagine);
    QVERIFY(d.seam.Chiamate(QStringLiteral("menu")).isEmpty());
    QVERIFY(d.LinkPagine(lId).value(0).isNull());
    // Nor does a unit not saved yet.
    EditorePronto<ucDatiInventariali> nuovo;
    ClicDestro(Controllo<QPushButton>(&nuovo, QStringLiteral("cmdImmagine")));
    QVERIFY(d.seam.Chiamate(QStringLiteral("menu")).isEmpty());
}

void TestCollegaImmagini::unaScritturaRifiutataDelLinkSiMostraEIlPulsanteResta() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    const long lId = d.Unita();
    d.RifiutaAggiornamento(QStringLiteral("Elementi"), QStringLiteral("NEW.XmlLink IS NOT NULL"),
                           QStringLiteral("collegamento bloccato"));
    EditorePronto<ucDatiInventariali> editore(lId);
    editore.show();
    QPushButton* cmdImmagine = Controllo<QPushButton>(&editore, QStringLiteral("cmdImmagine"));
    PagineDalClicDestro(d.seam, cmdImmagine, 0, 1, "cmdConferma");
    const QList<Messaggio> m = d.seam.Messaggi();
    QCOMPARE(m.size(), 1);
    QCOMPARE(m.constFirst().icona, Icona::Critica);
    QVERIFY2(m.constFirst().sTesto.contains(QStringLiteral("collegamento bloccato")),
             qPrintable(m.constFirst().sTesto));
    QVERIFY(d.LinkPagine(lId).value(0).isNull());
    QCOMPARE(cmdImmagine->text(), ImmagineRecord::CaptionImmagine);
}

void TestCollegaImmagini::unaRadiceConIlSeparatoreFinaleTieneLoStessoPercorso() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Deposito d(backend);
    Sessione::sParam01 = d.sRadice + QLatin1Char('/');
    Finestra f(d.Unita());
    QVERIFY(d.seam.Messaggi().isEmpty());
    QCOMPARE(f->Dir1Path(), QDir::toNativeSeparators(d.sSito));
    Clic(FileList(f), QStringLiteral("mag.xml"));
    QCOMPARE(Sessione::sCartellaImg, d.Relativo());
}

QTEST_MAIN(TestCollegaImmagini)
#include "tst_collegaimmagini.moc"
