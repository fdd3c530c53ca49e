#pragma once

// A stand-in for one of the program's dialogs, registered by name for one test: each opening
// makes a bare dialog under the opener which, once up, hands itself and the arguments it was
// given to the test, then closes accepted. Afterwards the program's own dialogs are registered
// again, so that one of that name is back.

#include "programma/Registro.h"
#include "session/Dialoghi.h"

#include <QDialog>
#include <QString>
#include <QTimer>
#include <functional>
#include <utility>

class DialogoSostituto {
public:
    using AllApertura = std::function<void(QDialog& dialogo, const Dialoghi::Argomenti&)>;

    DialogoSostituto(QString nome, AllApertura allApertura)
        : sNome(std::move(nome)) {
        Dialoghi::Registra(sNome, [allApertura = std::move(allApertura)](
                                      QWidget* genitore, const Dialoghi::Argomenti& argomenti) {
            auto* dialogo = new QDialog(genitore);
            QTimer::singleShot(0, dialogo, [allApertura, dialogo, argomenti] {
                allApertura(*dialogo, argomenti);
                dialogo->accept();
            });
            return dialogo;
        });
    }
    ~DialogoSostituto() {
        Dialoghi::Rimuovi(sNome);
        RegistraFinestreProgramma();
    }
    DialogoSostituto(const DialogoSostituto&) = delete;
    DialogoSostituto& operator=(const DialogoSostituto&) = delete;

private:
    QString sNome;
};
