#include "Registro.h"

#include "authorities/frmAltreDenominazioni.h"
#include "exchange/frmScEsporta.h"
#include "exchange/frmScImporta.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"
#include "session/frmBackup.h"
#include "session/frmConfig.h"
#include "session/frmIdicizWeb.h"
#include "session/frmValore.h"
#include "structure/frmStrutturaCD.h"
#include "structure/frmStrutturaIN.h"

#include <QDialog>

void RegistraFinestreProgramma() {
    // The main child windows of the menu bar.
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmStrutturaCD"),
                                  [](PrimoMDI* p) { return new frmStrutturaCD(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmStrutturaIN"),
                                  [](PrimoMDI* p) { return new frmStrutturaIN(p); });

    // The dialogs of the Strumenti menu.
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmConfig"),
                                  [](PrimoMDI* p) { return new frmConfig(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmValore"),
                                  [](PrimoMDI* p) { return new frmValore(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmBackup"),
                                  [](PrimoMDI* p) { return new frmBackup(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmIdicizWeb"),
                                  [](PrimoMDI* p) { return new frmIdicizWeb(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmScEsporta"),
                                  [](PrimoMDI* p) { return new frmScEsporta(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmScImporta"),
                                  [](PrimoMDI* p) { return new frmScImporta(p); });

    // The dialogs that records and windows open by name.
    Dialoghi::RegistraPredefinito(QStringLiteral("frmAltreDenominazioni"),
                                  [](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                                      return new frmAltreDenominazioni(genitore);
                                  });
}
