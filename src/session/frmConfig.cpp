#include "frmConfig.h"

#include "AggiornamentoVersione.h"
#include "Conversioni.h"
#include "Errore.h"
#include "Piattaforma.h"
#include "Sessione.h"
#include "store/Connessione.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSqlQuery>
#include <QVBoxLayout>

namespace {

const QString Sorgente = QStringLiteral("frmConfig");

// A column's value as the label shows it: numbers by Italian rules, "" for Null.
QString Testo(const QVariant& valore) {
    if (ENull(valore)) {
        return QString();
    }
    switch (valore.metaType().id()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return TestoVersione(valore);
    default:
        return valore.toString();
    }
}

} // namespace

frmConfig::frmConfig(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmConfig"));
    setWindowTitle(QStringLiteral("Tabella Config"));
    setModal(true);

    auto* griglia = new QFormLayout;
    auto riga = [this, griglia](const QString& sDidascalia, const char* nome) {
        auto* valore = new QLabel(this);
        valore->setObjectName(QLatin1String(nome));
        valore->setFrameShape(QFrame::StyledPanel);
        valore->setMinimumWidth(220);
        valore->setTextInteractionFlags(Qt::TextSelectableByMouse);
        griglia->addRow(new QLabel(sDidascalia, this), valore);
        return valore;
    };
    lblCode = riga(QStringLiteral("Code"), "lblCode");
    lblDescrizione = riga(QStringLiteral("Descrizione"), "lblDescrizione");
    lblVersione = riga(QStringLiteral("Versione DB"), "lblVersione");
    lblID_Start = riga(QStringLiteral("ID_Start"), "lblID_Start");
    lblID_End = riga(QStringLiteral("ID_End"), "lblID_End");
    lblVersioneApp = riga(QStringLiteral("Versione Applicazione"), "lblVersioneApp");
    lblValore = riga(QStringLiteral("Valore"), "lblValore");
    lblDataValore = riga(QStringLiteral("Data valore"), "lblDataValore");

    cmdEsci = new QPushButton(QStringLiteral("Esci"), this);
    cmdEsci->setObjectName(QStringLiteral("cmdEsci"));
    auto* pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(cmdEsci);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(griglia);
    layout->addLayout(pulsanti);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmdEsci, &QPushButton::clicked, this, &frmConfig::cmdEsci_Click);
    Form_Load();
}

void frmConfig::Form_Load() {
    try {
        if (!Sessione::cnn) {
            throw Errore(Sorgente, QStringLiteral("La connessione al database è chiusa."));
        }
        QSqlQuery config = Sessione::cnn->Esegui(
            QStringLiteral("SELECT Code, Descrizione, Versione, ID_Start, ID_End, Valore, "
                           "DataValore FROM Config"),
            {}, Sorgente);
        if (config.next()) {
            lblCode->setText(Testo(config.value(0)));
            lblDescrizione->setText(Testo(config.value(1)));
            lblVersione->setText(Testo(config.value(2)));
            lblID_Start->setText(Testo(config.value(3)));
            lblID_End->setText(Testo(config.value(4)));
            lblVersioneApp->setText(Sessione::VersioneApplicazione);
            lblValore->setText(Testo(config.value(5)));
            lblDataValore->setText(Testo(config.value(6)));
        }
    } catch (const Errore& errore) {
        MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore D1"));
    }
}

void frmConfig::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (const QScreen* schermo = screen()) {
        const QRect area = schermo->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
}

void frmConfig::cmdEsci_Click() {
    close();
}
