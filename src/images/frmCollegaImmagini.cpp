#include "images/frmCollegaImmagini.h"

#include "images/XmlMag.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "session/Utility.h"
#include "store/Connessione.h"
#include "store/IdentitaSito.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSqlQuery>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <functional>
#include <limits>

namespace {

const QString Sorgente = QStringLiteral("frmCollegaImmagini");
constexpr int RuoloPercorso = Qt::UserRole;

const Connessione& Cnn() {
    if (!Sessione::cnn)
        throw Errore(Sorgente, QStringLiteral("Connessione al database non aperta"));
    return *Sessione::cnn;
}

QString Pulito(const QString& sPercorso) {
    return QDir::cleanPath(QDir::fromNativeSeparators(sPercorso));
}

// A name inside a folder, whatever the folder's end.
QString Dentro(const QString& sCartella, const QString& sNome) {
    return sCartella.endsWith(QLatin1Char('/')) ? sCartella + sNome
                                                : sCartella + QLatin1Char('/') + sNome;
}

bool RadiceNuda(const QString& sPercorso) {
    return !sPercorso.isEmpty() && QDir(sPercorso).isRoot();
}

qint16 Pagina(const QVariant& valore) {
    return static_cast<qint16>(qBound(qlonglong(std::numeric_limits<qint16>::min()),
                                      valore.toLongLong(),
                                      qlonglong(std::numeric_limits<qint16>::max())));
}

// A routine's handler: a failure shows its source and description under the place's title.
void Gestisci(const QString& sTitolo, const std::function<void()>& azione) {
    try {
        azione();
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica,
               sTitolo);
    }
}

// The least width of a page list.
constexpr int LarghezzaPagine = 180;

// A page list filled, with no page chosen afterwards, also when the filling fails midway.
void Riempi(QComboBox* combo, const std::function<void()>& carica) {
    struct NessunaScelta {
        QComboBox* combo;
        ~NessunaScelta() { combo->setCurrentIndex(-1); }
    } nessuna{combo};
    carica();
    // As wide as its longest page, so that the page chosen reads whole.
    combo->setMinimumWidth(std::max(LarghezzaPagine, combo->sizeHint().width()));
}

void Scegli(QComboBox* combo, qint16 iPagina) {
    combo->setCurrentIndex(combo->findData(int(iPagina)));
}

} // namespace

namespace PagineMag {

Link Leggi(long lIdElemento) {
    QSqlQuery riga =
        Cnn().Esegui(QStringLiteral("SELECT COALESCE(XmlLink,''), COALESCE(PaginaStart,0), "
                                    "COALESCE(PaginaEnd,0), COALESCE(Md5Link,'') FROM Elementi "
                                    "WHERE ID_Elemento = ?"),
                     {qlonglong(lIdElemento)}, Sorgente);
    Link link;
    if (riga.next()) {
        link.sXmlLink = riga.value(0).toString();
        link.iDa = Pagina(riga.value(1));
        link.iA = Pagina(riga.value(2));
        link.sMd5 = riga.value(3).toString();
    }
    return link;
}

void Scrivi(long lIdElemento, const QString& sXmlLink, qint16 iDa, qint16 iA) {
    Cnn().Esegui(QStringLiteral("UPDATE Elementi SET XmlLink = ?, PaginaStart = ?, PaginaEnd = ? "
                                "WHERE ID_Elemento = ?"),
                 {sXmlLink, int(iDa), int(iA), qlonglong(lIdElemento)}, Sorgente);
}

void Cancella(long lIdElemento) {
    Cnn().Esegui(QStringLiteral("UPDATE Elementi SET XmlLink = NULL, PaginaStart = 0, "
                                "PaginaEnd = 0 WHERE ID_Elemento = ?"),
                 {qlonglong(lIdElemento)}, Sorgente);
}

} // namespace PagineMag

frmCollegaImmagini::frmCollegaImmagini(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmCollegaImmagini"));
    setWindowTitle(QStringLiteral("Collega immagini"));
    setModal(true);

    Dir1 = new QListWidget(this);
    Dir1->setObjectName(QStringLiteral("Dir1"));
    Dir1->setMinimumSize(300, 200);
    lblFile = new QLabel(QStringLiteral("Nome file"), this);
    lblFile->setObjectName(QStringLiteral("lblFile"));
    FileList = new QListWidget(this);
    FileList->setObjectName(QStringLiteral("FileList"));
    FileList->setMinimumSize(300, 140);
    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setReadOnly(true);
    cmdApri = new QPushButton(QStringLiteral("Apri"), this);
    cmdApri->setObjectName(QStringLiteral("cmdApri"));
    auto* lblDa = new QLabel(QStringLiteral("Da pagina"), this);
    lblDa->setObjectName(QStringLiteral("lblDaPagina"));
    cmbDaPagina = new QComboBox(this);
    cmbDaPagina->setObjectName(QStringLiteral("cmbDaPagina"));
    auto* lblA = new QLabel(QStringLiteral("A pagina"), this);
    lblA->setObjectName(QStringLiteral("lblAPagina"));
    cmbAPagina = new QComboBox(this);
    cmbAPagina->setObjectName(QStringLiteral("cmbAPagina"));
    // The page lists widen to their longest name when they are filled (Riempi).
    for (QComboBox* combo : {cmbDaPagina, cmbAPagina}) {
        combo->setMinimumWidth(LarghezzaPagine);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }
    cmdConferma = new QPushButton(QStringLiteral("Conferma"), this);
    cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
    cmdCancella = new QPushButton(QStringLiteral("Cancella"), this);
    cmdCancella->setObjectName(QStringLiteral("cmdCancella"));
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    for (QPushButton* pulsante : {cmdApri, cmdConferma, cmdCancella, cmdAnnulla})
        pulsante->setAutoDefault(false);

    // On screen: the folders and files on the left, the document's pages on the right.
    auto* griglia = new QGridLayout;
    griglia->addWidget(Dir1, 0, 0, 1, 2);
    griglia->addWidget(lblFile, 1, 0, 1, 2);
    griglia->addWidget(FileList, 2, 0, 1, 2);
    griglia->addWidget(Text1, 3, 0);
    griglia->addWidget(cmdApri, 3, 1);
    auto* pagine = new QVBoxLayout;
    pagine->addWidget(lblDa);
    pagine->addWidget(cmbDaPagina);
    pagine->addWidget(lblA);
    pagine->addWidget(cmbAPagina);
    pagine->addStretch();
    griglia->addLayout(pagine, 0, 2, 4, 1);
    auto* pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(cmdConferma);
    pulsanti->addWidget(cmdCancella);
    pulsanti->addWidget(cmdAnnulla);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(griglia);
    layout->addLayout(pulsanti);

    connect(Dir1, &QListWidget::itemClicked, this, &frmCollegaImmagini::Dir1_Click);
    connect(FileList, &QListWidget::itemClicked, this, &frmCollegaImmagini::FileList_Click);
    connect(cmdApri, &QPushButton::clicked, this, &frmCollegaImmagini::cmdApri_Click);
    connect(cmbDaPagina, &QComboBox::activated, this, &frmCollegaImmagini::cmbDaPagina_Click);
    connect(cmbAPagina, &QComboBox::activated, this, &frmCollegaImmagini::cmbAPagina_Click);
    connect(cmdConferma, &QPushButton::clicked, this, &frmCollegaImmagini::cmdConferma_Click);
    connect(cmdCancella, &QPushButton::clicked, this, &frmCollegaImmagini::cmdCancella_Click);
    connect(cmdAnnulla, &QPushButton::clicked, this, &QDialog::reject);

    Form_Load();
}

QString frmCollegaImmagini::Dir1Path() const {
    return QDir::toNativeSeparators(sDir1Path);
}

QString frmCollegaImmagini::FileListPath() const {
    return QDir::toNativeSeparators(sFileListPath);
}

QString frmCollegaImmagini::PercorsoDocumento() const {
    return QDir::toNativeSeparators(sPercorsoDoc);
}

QString frmCollegaImmagini::Radice() {
    return Pulito(Sessione::sParam01);
}

void frmCollegaImmagini::Form_Load() {
    // Centred on the opener's window, or on the screen.
    adjustSize();
    const QRect rispetto = parentWidget() ? parentWidget()->window()->geometry()
                           : QGuiApplication::primaryScreen()
                               ? QGuiApplication::primaryScreen()->availableGeometry()
                               : QRect();
    if (rispetto.isValid())
        move(rispetto.center() - rect().center());

    Sessione::iEsitoCollegaImmagini = 0;
    const bool bLink = Sessione::iDaPagina != 0 || Sessione::iAPagina != 0;
    // With a link the document and its pages are in hand, and can be opened, changed or cleared.
    for (QPushButton* pulsante : {cmdApri, cmdConferma, cmdCancella})
        pulsante->setEnabled(bLink);
    Gestisci(ErroreCaricamento, [this, bLink] {
        sCodice = CodiceDelSito(Cnn(), Sorgente).trimmed();
        // Dir1's change brings FileList to the same folder.
        ImpostaDir1(Dentro(Radice(), sCodice));
        if (!bLink)
            return;
        // The linked document: below the root unless its path is a whole one.
        const QString sDoc = Pulito(Sessione::sCartellaImg);
        sPercorsoDoc = QDir::isAbsolutePath(sDoc) ? sDoc : Dentro(Radice(), sDoc);
        // Text1 shows the document's name, what follows its folder and the separator.
        Text1->setText(QFileInfo(sPercorsoDoc).fileName());
        const QList<QListWidgetItem*> uguali = FileList->findItems(Text1->text(), Qt::MatchExactly);
        if (!uguali.isEmpty())
            FileList->setCurrentItem(uguali.constFirst());
        for (QComboBox* combo : {cmbDaPagina, cmbAPagina})
            Riempi(combo, [this, combo] { DaImag::Carica(sPercorsoDoc, combo); });
        Scegli(cmbDaPagina, Sessione::iDaPagina);
        Scegli(cmbAPagina, Sessione::iAPagina);
    });
}

void frmCollegaImmagini::ImpostaDir1(const QString& sPercorso) {
    const QString sNuovo = Pulito(sPercorso);
    ControllaCartella(sNuovo, Sorgente);
    QDir cartella(sNuovo);
    const QStringList sottocartelle =
        cartella.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    // The folder's ancestors, from the root down, and the folder itself.
    QStringList catena;
    QDir su(sNuovo);
    while (true) {
        catena.prepend(su.absolutePath());
        if (su.isRoot() || !su.cdUp())
            break;
    }

    Dir1->clear();
    int iLivello = 0;
    for (const QString& sAntenato : catena) {
        const QString sNome =
            RadiceNuda(sAntenato) ? QDir::toNativeSeparators(sAntenato) : QDir(sAntenato).dirName();
        auto* voce = new QListWidgetItem(QString(iLivello * 2, QLatin1Char(' ')) + sNome, Dir1);
        voce->setData(RuoloPercorso, sAntenato);
        voce->setToolTip(QDir::toNativeSeparators(sAntenato));
        ++iLivello;
    }
    Dir1->setCurrentRow(Dir1->count() - 1);
    for (const QString& sSotto : sottocartelle) {
        const QString sPieno = Dentro(catena.constLast(), sSotto);
        auto* voce = new QListWidgetItem(QString(iLivello * 2, QLatin1Char(' ')) + sSotto, Dir1);
        voce->setData(RuoloPercorso, sPieno);
        voce->setToolTip(QDir::toNativeSeparators(sPieno));
    }

    const bool bCambiato = catena.constLast() != sDir1Path;
    sDir1Path = catena.constLast();
    if (bCambiato)
        Dir1_Change();
}

void frmCollegaImmagini::ImpostaFileList(const QString& sPercorso) {
    const QString sNuovo = Pulito(sPercorso);
    ControllaCartella(sNuovo, Sorgente);
    const QStringList file =
        QDir(sNuovo).entryList({QStringLiteral("*.xml")}, QDir::Files | QDir::Hidden, QDir::Name);
    FileList->clear();
    FileList->addItems(file);
    sFileListPath = sNuovo;
}

void frmCollegaImmagini::Dir1_Change() {
    Gestisci(ErroreCambioCartella, [this] {
        // A bare drive root is out of bounds: back to the repository's root.
        if (RadiceNuda(sDir1Path))
            ImpostaDir1(Radice());
        else
            ImpostaFileList(sDir1Path);
    });
}

void frmCollegaImmagini::Dir1_Click(QListWidgetItem* voce) {
    Gestisci(ErroreClicCartella, [this, voce] {
        if (voce == nullptr || RadiceNuda(sDir1Path))
            return;
        ImpostaDir1(voce->data(RuoloPercorso).toString());
        cmdApri->setEnabled(false);
        cmbDaPagina->clear();
        cmbAPagina->clear();
        Text1->clear();
    });
}

void frmCollegaImmagini::FileList_Click(QListWidgetItem* voce) {
    Gestisci(ErroreClicFile, [this, voce] {
        if (voce == nullptr)
            return;
        const QString sNome = voce->text();
        const QString sPieno = Dentro(sDir1Path, sNome);
        // A document that went away since it was listed can't be chosen.
        if (!QFileInfo(sPieno).isFile())
            throw Errore(Sorgente, QStringLiteral("File non trovato"),
                         ErroriPiattaforma::FileNonTrovato);
        cmdApri->setEnabled(true);
        Text1->setText(sNome);
        sPercorsoDoc = sPieno;
        // Below the repository's root the document is kept by what follows the root and its
        // separator; elsewhere by its whole path.
        const QString sRadice = Radice();
        const QString sTesta = Dentro(sRadice, QString());
        Sessione::sCartellaImg = QDir::toNativeSeparators(
            !sRadice.isEmpty() && sPieno.startsWith(sTesta) ? sPieno.mid(sTesta.size()) : sPieno);
    });
}

void frmCollegaImmagini::cmdApri_Click() {
    Gestisci(ErroreApri, [this] {
        cmbDaPagina->clear();
        Riempi(cmbDaPagina, [this] { DaImag::Carica(sPercorsoDoc, cmbDaPagina); });
        cmdConferma->setEnabled(true);
    });
}

void frmCollegaImmagini::cmbDaPagina_Click() {
    Gestisci(ErroreDaPagina, [this] {
        Sessione::sPaginaImg = cmbDaPagina->currentText();
        // Only the pages after the first can be the last.
        cmbAPagina->clear();
        Riempi(cmbAPagina,
               [this] { AImag::Carica(sPercorsoDoc, cmbAPagina, Sessione::sPaginaImg); });
    });
}

void frmCollegaImmagini::cmbAPagina_Click() {
    if (cmbDaPagina->currentIndex() < 0)
        MsgBox(QStringLiteral("Inserire Da Pagina"), Pulsanti::Ok, Icona::Informazione,
               QStringLiteral("Attenzione"));
}

void frmCollegaImmagini::cmdConferma_Click() {
    if (cmbDaPagina->currentIndex() < 0 || cmbAPagina->currentIndex() < 0) {
        MsgBox(QStringLiteral("Inserire dati"), Pulsanti::Ok, Icona::Informazione,
               QStringLiteral("Attenzione"));
        return;
    }
    Sessione::iDaPagina = static_cast<qint16>(cmbDaPagina->currentData().toInt());
    Sessione::iAPagina = static_cast<qint16>(cmbAPagina->currentData().toInt());
    Sessione::iEsitoCollegaImmagini = 1;
    accept();
}

void frmCollegaImmagini::cmdCancella_Click() {
    Gestisci(ErroreCancella, [this] {
        PagineMag::Cancella(Sessione::lIdElementoImg);
        // Back to a form without a link, at the repository's root.
        SenzaLink();
        ImpostaDir1(Radice());
        ImpostaFileList(Radice());
    });
}

void frmCollegaImmagini::SenzaLink() {
    for (QPushButton* pulsante : {cmdApri, cmdConferma, cmdCancella})
        pulsante->setEnabled(false);
    cmbDaPagina->clear();
    cmbAPagina->clear();
    Text1->clear();
    sPercorsoDoc.clear();
    Sessione::iDaPagina = 0;
    Sessione::iAPagina = 0;
}
