#include "frmScImporta.h"

#include "exchange/frmImporta.h"
#include "session/Sessione.h"

frmScImporta::frmScImporta(QWidget* parent)
    : frmSceltaCartella({QStringLiteral("frmScImporta"),
                         QStringLiteral("Scelta cartella per importazione"),
                         QStringLiteral("Importa in:"), &Sessione::sParam05,
                         &Sessione::sCartellaImport, QStringLiteral("Errore X"),
                         [](QWidget* genitore) {
                             frmImporta tabelle(genitore);
                             tabelle.exec();
                         }},
                        parent) {}
