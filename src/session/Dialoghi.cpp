#include "Dialoghi.h"

#include "RegistroNomi.h"

#include <QDialog>
#include <QPointer>
#include <QScopeGuard>

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

bool Apri(const QString& sNome, QWidget* genitore, const Argomenti& argomenti) {
    const Fabbrica fabbrica = Registro().Trova(sNome);
    if (!fabbrica) {
        return false;
    }
    const QPointer<QDialog> dialogo = fabbrica(genitore, argomenti);
    if (dialogo == nullptr) {
        return false;
    }
    // Gone afterwards, however the dialog ends (also when it deleted itself on closing).
    const auto fine = qScopeGuard([&dialogo] { delete dialogo.data(); });
    if (dialogo->objectName().isEmpty()) {
        dialogo->setObjectName(sNome);
    }
    dialogo->exec();
    return true;
}

} // namespace Dialoghi
