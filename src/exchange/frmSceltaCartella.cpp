#include "frmSceltaCartella.h"

#include "exchange/SitoScambio.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "session/Utility.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

void MostraErrore(const Errore& errore, const QString& sTitolo) {
    MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, sTitolo);
}

QString Pulito(const QString& sPercorso) {
    return QDir::cleanPath(QDir::fromNativeSeparators(sPercorso));
}

} // namespace

void ControllaCartellaScambio(const QString& sCartella, const QString& sSorgente) {
    ControllaCartella(sCartella, sSorgente);
}

frmSceltaCartella::frmSceltaCartella(Impostazioni impostazioniDate, QWidget* parent)
    : QDialog(parent)
    , impostazioni(std::move(impostazioniDate)) {
    setObjectName(impostazioni.sNome);
    setWindowTitle(impostazioni.sTitolo);
    setModal(true);
    Label1 = new QLabel(impostazioni.sEtichetta, this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setReadOnly(true);
    Dir1 = new QListWidget(this);
    Dir1->setObjectName(QStringLiteral("Dir1"));
    Dir1->setMinimumSize(360, 220);
    cmdConferma = new QPushButton(QStringLiteral("Conferma"), this);
    cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    cmdConferma->setAutoDefault(false);
    cmdAnnulla->setAutoDefault(false);

    auto* pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(cmdConferma);
    pulsanti->addWidget(cmdAnnulla);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addWidget(Text1);
    layout->addWidget(Dir1);
    layout->addLayout(pulsanti);

    connect(Dir1, &QListWidget::itemClicked, this, &frmSceltaCartella::Dir1Click);
    connect(Dir1, &QListWidget::itemActivated, this, &frmSceltaCartella::Dir1Apri);
    connect(cmdConferma, &QPushButton::clicked, this, &frmSceltaCartella::cmdConfermaClick);
    connect(cmdAnnulla, &QPushButton::clicked, this, &QDialog::reject);

    if (Sessione::cnn) {
        try {
            Scambio::ControllaIdentita(*Sessione::cnn, impostazioni.sNome);
        } catch (const Errore& errore) {
            sRifiuto = errore.descrizione();
        }
    }
    try {
        cmdConferma->setEnabled(false);
        if (sRifiuto.isEmpty())
            ImpostaPercorso(*impostazioni.sRadice);
    } catch (const Errore& errore) {
        MostraErrore(errore, impostazioni.sErrore + QLatin1Char('2'));
    }
    if (parent) {
        adjustSize();
        move(parent->window()->geometry().center() - rect().center());
    }
}

int frmSceltaCartella::exec() {
    if (sRifiuto.isEmpty())
        return QDialog::exec();
    MsgBox(sRifiuto, Pulsanti::Ok, Icona::Critica, QStringLiteral("Attenzione"));
    if (testAttribute(Qt::WA_DeleteOnClose))
        deleteLater();
    return QDialog::Rejected;
}

void frmSceltaCartella::ImpostaPercorso(const QString& sNuovo) {
    const QString sPulito = Pulito(sNuovo);
    if (sPulito == sPercorso && !sPercorso.isEmpty())
        return;
    // Out of the root: back to it, and nothing else.
    const QString sRadice = Pulito(*impostazioni.sRadice);
    const bool bFuori = sPulito.left(sRadice.size()) != sRadice;
    RiempiDir1(bFuori ? sRadice : sPulito);
    if (!bFuori)
        Dir1Change();
}

void frmSceltaCartella::RiempiDir1(const QString& sCartella) {
    // The folder is read before anything changes: a failure leaves the list as it was.
    ControllaCartellaScambio(sCartella, impostazioni.sNome);
    QDir cartella(sCartella);
    const QStringList sottocartelle =
        cartella.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    sPercorso = sCartella;
    Dir1->clear();
    if (!cartella.isRoot())
        Dir1->addItem(QStringLiteral(".."));
    Dir1->addItems(sottocartelle);
}

void frmSceltaCartella::Dir1Change() {
    Text1->setText(QDir::toNativeSeparators(sPercorso));
    cmdConferma->setEnabled(true);
}

void frmSceltaCartella::Dir1Click(QListWidgetItem* voce) {
    try {
        if (!voce)
            return;
        // A folder that went away since it was listed can't be chosen: Text1 keeps its folder.
        const QString sScelta = Pulito(QDir(sPercorso).filePath(voce->text()));
        ControllaCartellaScambio(sScelta, impostazioni.sNome);
        Text1->setText(QDir::toNativeSeparators(sScelta));
        cmdConferma->setEnabled(true);
    } catch (const Errore& errore) {
        MostraErrore(errore, impostazioni.sErrore + QLatin1Char('3'));
    }
}

void frmSceltaCartella::Dir1Apri(QListWidgetItem* voce) {
    try {
        if (voce)
            ImpostaPercorso(QDir(sPercorso).filePath(voce->text()));
    } catch (const Errore& errore) {
        MostraErrore(errore, impostazioni.sErrore + QLatin1Char('1'));
    }
}

void frmSceltaCartella::cmdConfermaClick() {
    *impostazioni.sScelta = Text1->text();
    QWidget* genitore = parentWidget();
    accept();
    impostazioni.apriTabelle(genitore);
}
