#include "Registro.h"

#include "authorities/frmAltreDenominazioni.h"
#include "authorities/frmAntroponimi.h"
#include "authorities/frmSoggetti.h"
#include "authorities/frmTitolari.h"
#include "authorities/frmToponimi.h"
#include "exchange/frmScEsporta.h"
#include "exchange/frmScImporta.h"
#include "images/frmCollegaImmagini.h"
#include "links/VisualizzatoriLink.h"
#include "links/frmCollegaPergamene.h"
#include "links/frmLinkPuntiAccesso.h"
#include "links/frmNuovoComplesso.h"
#include "links/frmNuovoInventario.h"
#include "links/frmNuovoSoggetto.h"
#include "links/frmNuovoVersamento.h"
#include "links/frmSelInv.h"
#include "parchments/frmAltreSegnature.h"
#include "parchments/frmCoseNotevoli.h"
#include "parchments/frmPgNotazioni.h"
#include "session/Dialoghi.h"
#include "session/PrimoMDI.h"
#include "session/frmBackup.h"
#include "session/frmConfig.h"
#include "session/frmIdicizWeb.h"
#include "session/frmValore.h"
#include "structure/frmRegistroPC.h"
#include "structure/frmStrutturaCD.h"
#include "structure/frmStrutturaDI.h"
#include "structure/frmStrutturaIN.h"
#include "structure/frmStrutturaPG.h"

#include <QDialog>

#include <memory>

void RegistraFinestreProgramma() {
    // The main child windows of the menu bar.
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmStrutturaCD"),
                                  [](PrimoMDI* p) { return new frmStrutturaCD(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmStrutturaIN"),
                                  [](PrimoMDI* p) { return new frmStrutturaIN(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmRegistroPC"),
                                  [](PrimoMDI* p) { return new frmRegistroPC(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmSoggetti"),
                                  [](PrimoMDI* p) { return new frmSoggetti(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmAntroponimi"),
                                  [](PrimoMDI* p) { return new frmAntroponimi(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmToponimi"),
                                  [](PrimoMDI* p) { return new frmToponimi(p); });
    PrimoMDI::RegistraPredefinita(QStringLiteral("frmTitolari"),
                                  [](PrimoMDI* p) { return new frmTitolari(p); });

    // The dialogs of the Strumenti menu, opened by name like every other dialog.
    const auto dialogo = [](const char* nome, auto crea) {
        Dialoghi::RegistraPredefinito(
            QLatin1String(nome), [crea](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                return crea(genitore);
            });
    };
    dialogo("frmConfig", [](QWidget* g) { return new frmConfig(g); });
    dialogo("frmValore", [](QWidget* g) { return new frmValore(g); });
    dialogo("frmBackup", [](QWidget* g) { return new frmBackup(g); });
    dialogo("frmIdicizWeb", [](QWidget* g) { return new frmIdicizWeb(g); });
    dialogo("frmScEsporta", [](QWidget* g) { return new frmScEsporta(g); });
    dialogo("frmScImporta", [](QWidget* g) { return new frmScImporta(g); });

    // The dialogs that records and windows open by name.
    dialogo("frmAltreDenominazioni", [](QWidget* g) { return new frmAltreDenominazioni(g); });
    // The page link of the element in Sessione::lIdElementoImg, opened from a record's image
    // button.
    dialogo("frmCollegaImmagini", [](QWidget* g) { return new frmCollegaImmagini(g); });
    dialogo("frmAltreSegnature", [](QWidget* g) { return new frmAltreSegnature(g); });
    dialogo("frmCoseNotevoli", [](QWidget* g) { return new frmCoseNotevoli(g); });
    // The notations of the parchment in Sessione::lIdPergamena, hosted modally.
    dialogo("frmPgNotazioni", [](QWidget* g) { return Dialoghi::Ospita(new frmPgNotazioni, g); });
    // The twelve viewers of links, each reading its opener's session values and arguments.
    for (const QString& sNome : VisualizzatoriLink::Nomi()) {
        Dialoghi::RegistraPredefinito(
            sNome, [sNome](QWidget* genitore, const Dialoghi::Argomenti& argomenti) {
                return VisualizzatoriLink::Crea(sNome, genitore, argomenti);
            });
    }
    // The producers' link dialog of the complesso or unit in the session; its opener may lock
    // the names chosen ("bLockSelSogg").
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmNuovoSoggetto"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto* collegamenti = new frmNuovoSoggetto(genitore);
            collegamenti->SetbLockSelSogg(argomenti.value(QStringLiteral("bLockSelSogg")).toBool());
            return collegamenti;
        });
    // The access points' link dialogs of the object in Sessione::lIdElementoLink; the names
    // chosen change only through the ticks unless the opener says otherwise ("bLockSelAntr",
    // "bLockSelTopon", "bLockSelTitol" false); the holders' takes "bFromSigilli".
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmLinkAntroponimi"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto* collegamenti = new frmLinkAntroponimi(genitore);
            collegamenti->SetbLockSelAntr(
                argomenti.value(QStringLiteral("bLockSelAntr"), true).toBool());
            return collegamenti;
        });
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmLinkToponimi"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto* collegamenti = new frmLinkToponimi(genitore);
            collegamenti->SetbLockSelTopon(
                argomenti.value(QStringLiteral("bLockSelTopon"), true).toBool());
            return collegamenti;
        });
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmLinkTitolari"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto* collegamenti = new frmLinkTitolari(genitore);
            collegamenti->bFromSigilli = argomenti.value(QStringLiteral("bFromSigilli")).toBool();
            collegamenti->SetbLockSelTitol(
                argomenti.value(QStringLiteral("bLockSelTitol"), true).toBool());
            return collegamenti;
        });
    // The pickers of complessi (for the record in Sessione::lIdInventario, by iChiamanteInv) and
    // of finding aids (for Sessione::lIdComplesso), hosted modally; the opener locks the box of
    // the names chosen unless it says otherwise ("bLockSelCompl", "bLockInvSet" false).
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmNuovoComplesso"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto finestra = std::make_unique<frmNuovoComplesso>();
            if (argomenti.value(QStringLiteral("bLockSelCompl"), true).toBool()) {
                finestra->bLockSelCompl();
            }
            return finestra.release()->InDialogo(genitore);
        });
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmNuovoInventario"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto finestra = std::make_unique<frmNuovoInventario>();
            if (argomenti.value(QStringLiteral("bLockInvSet"), true).toBool()) {
                finestra->bLockInvSet();
            }
            return finestra.release()->InDialogo(genitore);
        });
    // The row of a versamento (Sessione::lIdVersamento, lIdRigaVersamento 0 for a new one),
    // hosted modally.
    Dialoghi::RegistraPredefinito(QStringLiteral("frmNuovoVersamento"),
                                  [](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                                      return (new frmNuovoVersamento)->InDialogo(genitore);
                                  });
    // The analytical inventory of Sessione::lIdInventario, hosted modally: its kind ("sTipo")
    // and the complessi linked to the finding aid ("sComplessoLinked").
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmStrutturaDI"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto finestra = std::make_unique<frmStrutturaDI>();
            finestra->Init(argomenti.value(QStringLiteral("sTipo")).toString(),
                           argomenti.value(QStringLiteral("sComplessoLinked")).toString());
            return finestra.release()->InDialogo(genitore);
        });
    // The choice of the finding aid in which to tie the parchment ("iMode" 0) or the seal (1) in
    // hand ("lIdEleLink", its element; "sDescLink"): nothing opens when there is nothing to choose.
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmSelInv"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto scelta = std::make_unique<frmSelInv>(genitore);
            if (!scelta->bInit(
                    argomenti.value(QStringLiteral("iMode")).toInt(),
                    static_cast<long>(argomenti.value(QStringLiteral("lIdEleLink")).toLongLong()),
                    argomenti.value(QStringLiteral("sDescLink")).toString())) {
                return nullptr;
            }
            return scelta.release();
        });
    // The original of the parchment in Sessione::lIdPergamena; given "lIdElemento" (and
    // "sDenominazione") the copies of that original, to read.
    Dialoghi::RegistraPredefinito(
        QStringLiteral("frmCollegaPergamene"),
        [](QWidget* genitore, const Dialoghi::Argomenti& argomenti) -> QDialog* {
            auto* collegamento = new frmCollegaPergamene(genitore);
            if (argomenti.contains(QStringLiteral("lIdElemento"))) {
                collegamento->Init(
                    static_cast<long>(argomenti.value(QStringLiteral("lIdElemento")).toLongLong()),
                    argomenti.value(QStringLiteral("sDenominazione")).toString());
            }
            collegamento->Carica();
            return collegamento;
        });
    // The parchments and seals of Sessione::lIdInventario, hosted modally, in the mode of
    // Sessione::lModoStrutturaPG.
    Dialoghi::RegistraPredefinito(QStringLiteral("frmStrutturaPG"),
                                  [](QWidget* genitore, const Dialoghi::Argomenti&) -> QDialog* {
                                      return (new frmStrutturaPG)->InDialogo(genitore);
                                  });
}
