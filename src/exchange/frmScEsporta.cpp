#include "frmScEsporta.h"

#include "exchange/frmEsporta.h"
#include "session/Sessione.h"

frmScEsporta::frmScEsporta(QWidget* parent)
    : frmSceltaCartella({QStringLiteral("frmScEsporta"),
                         QStringLiteral("Scelta cartella per esportazione"),
                         QStringLiteral("Esporta da:"), &Sessione::sParam04,
                         &Sessione::sCartellaExport, QStringLiteral("Errore J"),
                         [](QWidget* genitore) {
                             frmEsporta tabelle(genitore);
                             tabelle.exec();
                         }},
                        parent) {}
