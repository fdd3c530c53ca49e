#include "frmSceltaCartella.h"

#include "session/Errore.h"
#include "session/Piattaforma.h"

#include <QDir>
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

    try {
        cmdConferma->setEnabled(false);
        ImpostaPercorso(*impostazioni.sRadice);
    } catch (const Errore& errore) {
        MostraErrore(errore, impostazioni.sErrore + QLatin1Char('2'));
    }
    if (parent) {
        adjustSize();
        move(parent->window()->geometry().center() - rect().center());
    }
}

void frmSceltaCartella::ImpostaPercorso(const QString& sNuovo) {
    const QString sPulito = Pulito(sNuovo);
    if (sPulito == sPercorso && !sPercorso.isEmpty())
        return;
    sPercorso = sPulito;
    RiempiDir1();
    Dir1Change();
}

void frmSceltaCartella::RiempiDir1() {
    Dir1->clear();
    QDir cartella(sPercorso);
    if (!cartella.isRoot())
        Dir1->addItem(QStringLiteral(".."));
    for (const QString& sNome : cartella.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        Dir1->addItem(sNome);
}

void frmSceltaCartella::Dir1Change() {
    try {
        const QString sRadice = Pulito(*impostazioni.sRadice);
        if (sPercorso.left(sRadice.size()) != sRadice) {
            // Out of the root: back to it, and nothing else.
            sPercorso = sRadice;
            RiempiDir1();
            return;
        }
        Text1->setText(QDir::toNativeSeparators(sPercorso));
        cmdConferma->setEnabled(true);
    } catch (const Errore& errore) {
        MostraErrore(errore, impostazioni.sErrore + QLatin1Char('1'));
    }
}

void frmSceltaCartella::Dir1Click(QListWidgetItem* voce) {
    try {
        if (!voce)
            return;
        Text1->setText(QDir::toNativeSeparators(Pulito(QDir(sPercorso).filePath(voce->text()))));
        cmdConferma->setEnabled(true);
    } catch (const Errore& errore) {
        MostraErrore(errore, impostazioni.sErrore + QLatin1Char('3'));
    }
}

void frmSceltaCartella::Dir1Apri(QListWidgetItem* voce) {
    if (voce)
        ImpostaPercorso(QDir(sPercorso).filePath(voce->text()));
}

void frmSceltaCartella::cmdConfermaClick() {
    *impostazioni.sScelta = Text1->text();
    QWidget* genitore = parentWidget();
    accept();
    impostazioni.apriTabelle(genitore);
}
