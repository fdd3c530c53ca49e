#include "Dialoghi.h"

#include "RegistroNomi.h"

#include <QDialog>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>
#include <QVBoxLayout>

namespace Dialoghi {

namespace {

RegistroNomi<Fabbrica>& Registro() {
    static RegistroNomi<Fabbrica> registro;
    return registro;
}

} // namespace

void Registra(const QString& sNome, Fabbrica fabbrica) {
    Registro().Registra(sNome, std::move(fabbrica));
}

void RegistraPredefinito(const QString& sNome, Fabbrica fabbrica) {
    Registro().RegistraPredefinita(sNome, std::move(fabbrica));
}

void Rimuovi(const QString& sNome) {
    Registro().Rimuovi(sNome);
}

bool Registrato(const QString& sNome) {
    return Registro().Contiene(sNome);
}

namespace {

// Where a dialog asked to go on when it closed: the name (empty: nowhere) and its arguments.
struct Seguito {
    QString sNome;
    Argomenti argomenti;
};

// Makes and shows one dialog; shown false when no dialog has that name.
Seguito ApriUnaVolta(const QString& sNome, QWidget* genitore, const Argomenti& argomenti,
                     bool& bMostrato) {
    bMostrato = false;
    const Fabbrica fabbrica = Registro().Trova(sNome);
    if (!fabbrica) {
        return {};
    }
    const QPointer<QDialog> dialogo = fabbrica(genitore, argomenti);
    if (dialogo == nullptr) {
        return {};
    }
    // Gone afterwards, however the dialog ends (also when it deleted itself on closing).
    const auto fine = qScopeGuard([&dialogo] { delete dialogo.data(); });
    if (dialogo->objectName().isEmpty()) {
        dialogo->setObjectName(sNome);
    }
    dialogo->exec();
    bMostrato = true;
    if (dialogo == nullptr) {
        return {};
    }
    return {dialogo->property(ProprietaProsegui).toString(),
            dialogo->property(ProprietaArgomentiProsegui).toMap()};
}

} // namespace

bool Apri(const QString& sNome, QWidget* genitore, const Argomenti& argomenti) {
    bool bMostrato = false;
    Seguito seguito = ApriUnaVolta(sNome, genitore, argomenti, bMostrato);
    // The loop of going on: the dialog gone on to, then a fresh one of this name.
    while (bMostrato && !seguito.sNome.isEmpty()) {
        bool bAltroMostrato = false;
        ApriUnaVolta(seguito.sNome, genitore, seguito.argomenti, bAltroMostrato);
        if (!bAltroMostrato) {
            break;
        }
        bool bDiNuovo = false;
        seguito = ApriUnaVolta(sNome, genitore, argomenti, bDiNuovo);
        if (!bDiNuovo) {
            break;
        }
    }
    return bMostrato;
}

QDialog* Ospita(QWidget* finestra, QWidget* genitore) {
    auto* dialogo = new QDialog(genitore);
    dialogo->setObjectName(finestra->objectName() + QStringLiteral("Dialogo"));
    dialogo->setWindowTitle(finestra->windowTitle());
    dialogo->setModal(true);
    auto* disposizione = new QVBoxLayout(dialogo);
    disposizione->setContentsMargins(0, 0, 0, 0);
    const bool bDimensionata = finestra->testAttribute(Qt::WA_Resized);
    const QSize dimensione = finestra->size();
    finestra->setParent(dialogo);
    disposizione->addWidget(finestra);
    finestra->show();
    if (bDimensionata) {
        dialogo->resize(dimensione);
    } else {
        DimensioneComoda(dialogo);
    }
    return dialogo;
}

void DimensioneComoda(QWidget* dialogo) {
    QSize dimensione = dialogo->sizeHint().expandedTo(QSize(1000, 680));
    if (const QScreen* schermo = dialogo->screen()) {
        dimensione = dimensione.boundedTo(schermo->availableGeometry().size() * 9 / 10);
    }
    dialogo->resize(dimensione);
}

} // namespace Dialoghi
