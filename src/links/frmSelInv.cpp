#include "frmSelInv.h"

#include "frmNuovoSigPg.h"
#include "records/FinestraElenco.h"
#include "records/ModelloElenco.h"
#include "session/Errore.h"
#include "session/Piattaforma.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/LetturaRighe.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <memory>

namespace {

const QString Sorgente = QStringLiteral("frmSelInv");

// The kind the picker chooses: seals (1) for a parchment in hand, parchments (0) for a seal.
int DaScegliere(int iMode) {
    return iMode == 0 ? frmNuovoSigPg::SceltaSigilli : frmNuovoSigPg::SceltaPergamene;
}

} // namespace

frmSelInv::frmSelInv(QWidget* genitore)
    : QDialog(genitore) {
    setObjectName(Sorgente);
    setWindowTitle(QStringLiteral("Selezione dello strumento di ricerca"));

    auto* caselle = new QGridLayout;
    const char* nomiEtichette[2] = {"Label1(0)", "Label1(1)"};
    const char* nomiTesti[2] = {"Text1(0)", "Text1(1)"};
    for (int i = 0; i < 2; ++i) {
        Label1[i] = new QLabel(this);
        Label1[i]->setObjectName(QLatin1String(nomiEtichette[i]));
        Text1[i] = new QLineEdit(this);
        Text1[i]->setObjectName(QLatin1String(nomiTesti[i]));
        Text1[i]->setReadOnly(true);
    }
    Label1[0]->setText(QStringLiteral("Inventario selezionato"));
    Text1[1]->setEnabled(false);
    caselle->addWidget(Label1[1], 0, 0);
    caselle->addWidget(Text1[1], 0, 1);
    caselle->addWidget(Label1[0], 1, 0);
    caselle->addWidget(Text1[0], 1, 1);

    modello = new ModelloElenco(this);
    modello->ImpostaIntestazione(QStringLiteral("Inventario"));
    lvwDB = NuovaListaRighe(this, QStringLiteral("lvwDB"), modello);
    connect(lvwDB->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& corrente) {
                if (corrente.isValid()) {
                    ItemClick(corrente.row());
                }
            });

    cmdCollega = new QPushButton(QStringLiteral("Collega"), this);
    cmdCollega->setObjectName(QStringLiteral("cmdCollega"));
    cmdCollega->setAutoDefault(false);
    cmdCollega->setEnabled(false);
    cmdAnnulla = new QPushButton(QStringLiteral("Annulla"), this);
    cmdAnnulla->setObjectName(QStringLiteral("cmdAnnulla"));
    cmdAnnulla->setAutoDefault(false);
    connect(cmdCollega, &QPushButton::clicked, this, [this] { cmdCollega_Click(); });
    connect(cmdAnnulla, &QPushButton::clicked, this, &QDialog::reject);
    auto* barra = new QHBoxLayout;
    barra->addStretch();
    barra->addWidget(cmdCollega);
    barra->addWidget(cmdAnnulla);

    auto* principale = new QVBoxLayout(this);
    principale->addLayout(caselle);
    principale->addWidget(lvwDB, 1);
    principale->addLayout(barra);
    // Wide enough for the names of a seal, a parchment and a finding aid in their boxes.
    resize(520, 360);
}

frmSelInv::~frmSelInv() {
    Sessione::bFrmToponimiAperto = false;
}

bool frmSelInv::bInit(int iModo, long lIdElemento, const QString& sDescrizione) {
    iMode = iModo;
    lIdEleLink = lIdElemento;
    sDescLink = sDescrizione;
    bOkLink = false;
    Sessione::bOkLinkSelInv = false;
    Label1[1]->setText(iMode == 0 ? QStringLiteral("Pergamena selezionata")
                                  : QStringLiteral("Sigillo selezionato"));
    Text1[1]->setText(sDescLink);

    // A parchment looks for the finding aids with seals, a seal for those with parchments.
    const QString sSql =
        QStringLiteral("SELECT ID_Elemento, Denominazione FROM Inventari WHERE "
                       "Tipologia = '01' AND COALESCE(%1, 0) <> 0 ORDER BY %2")
            .arg(iMode == 0 ? QStringLiteral("NumeroSigilli") : QStringLiteral("NumeroPergamene"),
                 Sessione::cnn ? Sessione::cnn->InOrdineAlfabetico(QStringLiteral("Denominazione"))
                               : QStringLiteral("Denominazione"));
    QList<qint64> ids;
    QList<QString> testi;
    try {
        if (!Sessione::cnn) {
            throw Errore(Sorgente, QStringLiteral("La connessione al database è chiusa."));
        }
        const Connessione& cnn = *Sessione::cnn;
        const auto righe = cnn.backend().ApriLetturaRighe(cnn.Db(), sSql, {}, Sorgente);
        while (righe->Prossima()) {
            ids.append(righe->Intero(0));
            testi.append(righe->Stringa(1).trimmed());
        }
    } catch (...) {
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore U5"));
        return false;
    }
    modello->Riempi(std::move(ids), std::move(testi));
    if (modello->Righe() == 0) {
        return false;
    }
    lvwDB->setCurrentIndex(modello->index(0));
    ItemClick(0);
    return true;
}

void frmSelInv::ItemClick(int iRiga) {
    if (iRiga < 0 || iRiga >= modello->Righe()) {
        return;
    }
    Text1[0]->setText(modello->Testo(iRiga));
    lIdInventarioScelto = static_cast<long>(modello->Id(iRiga));
    cmdCollega->setEnabled(true);
}

void frmSelInv::cmdCollega_Click() {
    std::unique_ptr<frmNuovoSigPg> selettore;
    try {
        selettore = std::make_unique<frmNuovoSigPg>();
    } catch (...) {
        // The picker's editors could not be made ready (a list of the program folder).
        MsgBox(ErroreDi(std::current_exception(), Sorgente).testo(), Pulsanti::Ok, Icona::Critica,
               QStringLiteral("Errore T5"));
        return;
    }
    selettore->bLockSelected();
    if (selettore->bInit(DaScegliere(iMode), lIdInventarioScelto, lIdEleLink, sDescLink)) {
        frmNuovoSigPg* finestra = selettore.get();
        const std::unique_ptr<QDialog> dialogo(selettore.release()->InDialogo(this));
        dialogo->exec();
        bOkLink = finestra->bOkLink;
    }
    Sessione::bOkLinkSelInv = bOkLink;
    if (bOkLink) {
        accept();
    } else {
        reject();
    }
}
