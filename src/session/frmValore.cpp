#include "frmValore.h"

#include "Conversioni.h"
#include "Errore.h"
#include "Piattaforma.h"
#include "Sessione.h"
#include "store/Connessione.h"

#include <QFocusEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSqlQuery>
#include <QVBoxLayout>

namespace {

const QString Sorgente = QStringLiteral("frmValore");

void ErroreZ1(const Errore& errore) {
    MsgBox(errore.testo(), Pulsanti::Ok, Icona::Critica, QStringLiteral("Errore Z1"));
}

std::shared_ptr<Connessione> ConnessioneAperta() {
    if (!Sessione::cnn) {
        throw Errore(Sorgente, QStringLiteral("La connessione al database è chiusa."));
    }
    return Sessione::cnn;
}

} // namespace

frmValore::frmValore(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmValore"));
    setWindowTitle(QStringLiteral("Valore"));
    setModal(true);

    auto* campi = new QFormLayout;
    lblValore = new QLabel(QStringLiteral("Valore"), this);
    txtValore = new QLineEdit(this);
    txtValore->setObjectName(QStringLiteral("txtValore"));
    txtValore->setAlignment(Qt::AlignRight);
    lblValore->setBuddy(txtValore);
    campi->addRow(lblValore, txtValore);
    lblData = new QLabel(QStringLiteral("Data valore"), this);
    txtData = new QLineEdit(this);
    txtData->setObjectName(QStringLiteral("txtData"));
    lblData->setBuddy(txtData);
    campi->addRow(lblData, txtData);

    cmdCambiaV = new QPushButton(QStringLiteral("Modifica"), this);
    cmdCambiaV->setObjectName(QStringLiteral("cmdCambiaV"));
    cmdConferma = new QPushButton(QStringLiteral("Conferma"), this);
    cmdConferma->setObjectName(QStringLiteral("cmdConferma"));
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    for (QPushButton* pulsante : {cmdCambiaV, cmdConferma, cmdAnnulla}) {
        pulsante->setAutoDefault(false);
    }
    auto* pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(cmdCambiaV);
    pulsanti->addWidget(cmdConferma);
    pulsanti->addWidget(cmdAnnulla);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(campi);
    layout->addLayout(pulsanti);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    txtValore->installEventFilter(this);
    txtData->installEventFilter(this);
    connect(cmdCambiaV, &QPushButton::clicked, this, &frmValore::cmdCambiaV_Click);
    connect(cmdConferma, &QPushButton::clicked, this, &frmValore::cmdConferma_Click);
    connect(cmdAnnulla, &QPushButton::clicked, this, &frmValore::cmdAnnulla_Click);

    try {
        MostraConfig();
    } catch (const Errore& errore) {
        ErroreZ1(errore);
    }
}

QString frmValore::FormatoValore(double valore) {
    QString testo = NumeroItaliano(valore, 2);
    // As the platform's "#" before the decimal point: no digit for a zero integer part.
    if (testo.startsWith(QStringLiteral("0,"))) {
        testo.remove(0, 1);
    } else if (testo.startsWith(QStringLiteral("-0,"))) {
        testo.remove(1, 1);
    }
    return testo;
}

void frmValore::MostraConfig() {
    QSqlQuery config = ConnessioneAperta()->Esegui(
        QStringLiteral("SELECT Valore, DataValore FROM Config"), {}, Sorgente);
    if (config.next()) {
        txtValore->setText(ENull(config.value(0)) ? QString()
                                                  : FormatoValore(config.value(0).toDouble()));
        txtData->setText(ENull(config.value(1)) ? QString() : config.value(1).toString());
    }
    config.finish();
    cmdConferma->hide();
    cmdCambiaV->show();
    txtValore->setEnabled(false);
    txtData->setEnabled(false);
}

void frmValore::cmdCambiaV_Click() {
    txtData->setEnabled(true);
    txtValore->setEnabled(true);
    cmdConferma->show();
    cmdCambiaV->hide();
    txtValore->setFocus();
}

void frmValore::cmdConferma_Click() {
    try {
        // Both texts are read before anything is written: a bad one changes nothing.
        const double valore = CDbl(txtValore->text());
        const QString sData = txtData->text().trimmed();
        if (!sData.isEmpty() && !IsDate(sData)) {
            throw Errore(
                Sorgente,
                QStringLiteral("Tipo non corrispondente: \"%1\" non è una data.").arg(sData),
                ErroriPiattaforma::TipoNonCorrispondente);
        }
        const auto connessione = ConnessioneAperta();
        QSqlQuery config =
            connessione->Esegui(QStringLiteral("SELECT Code FROM Config"), {}, Sorgente);
        if (config.next()) {
            const QVariant codice = config.value(0);
            config.finish();
            // An emptied date leaves the stored one.
            if (sData.isEmpty()) {
                connessione->Esegui(QStringLiteral("UPDATE Config SET Valore = ? WHERE Code = ?"),
                                    {valore, codice}, Sorgente);
            } else {
                connessione->Esegui(
                    QStringLiteral("UPDATE Config SET Valore = ?, DataValore = ? WHERE Code = ?"),
                    {valore, sData, codice}, Sorgente);
            }
        }
        MostraConfig();
    } catch (const Errore& errore) {
        ErroreZ1(errore);
    }
}

void frmValore::cmdAnnulla_Click() {
    close();
}

void frmValore::txtValore_LostFocus() {
    if (!IsNumeric(txtValore->text())) {
        MsgBox(QStringLiteral("Valore errato"), Pulsanti::Ok, Icona::Informazione,
               QStringLiteral("Attenzione"));
    }
}

void frmValore::txtData_LostFocus() {
    // An emptied box is no date either, and is told so like any other; at Conferma it keeps
    // the stored date all the same.
    if (!IsDate(txtData->text())) {
        MsgBox(QStringLiteral("Data errata"), Pulsanti::Ok, Icona::Informazione,
               QStringLiteral("Attenzione"));
    }
}

bool frmValore::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::FocusOut) {
        // The focus that goes to another window (a box, a menu) does not leave the field.
        const Qt::FocusReason motivo = static_cast<QFocusEvent*>(evento)->reason();
        if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason) {
            if (oggetto == txtValore) {
                txtValore_LostFocus();
            } else if (oggetto == txtData) {
                txtData_LostFocus();
            }
        }
    }
    return QDialog::eventFilter(oggetto, evento);
}

void frmValore::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (const QScreen* schermo = screen()) {
        const QRect area = schermo->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
}
