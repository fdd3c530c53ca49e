#include "ArchivioElementi.h"

#include "Backend.h"
#include "Connessione.h"
#include "session/Errore.h"

namespace ArchivioElementi {

QString TabellaDettaglio(const QString& sTipologia) {
    static const char* const tabelle[] = {"Istituti",        "ComplessiDoc", "Inventari",
                                          "Versamenti",      "Pergamene",    "Sigilli",
                                          "DatiInventariali"};
    bool numero = false;
    const int tipo = sTipologia.toInt(&numero);
    if (!numero || sTipologia.size() != 2 || tipo < 1 || tipo > 7) {
        return QString();
    }
    return QLatin1String(tabelle[tipo - 1]);
}

long Crea(const Connessione& connessione, const QString& sTipologia, const QString& sDenominazione,
          long lIdPadre) {
    QStringList colonne{QStringLiteral("Tipologia"), QStringLiteral("Denominazione")};
    QVariantList valori{sTipologia, sDenominazione};
    if (lIdPadre > 0) {
        colonne.append(QStringLiteral("ID_ElementoPadre"));
        valori.append(static_cast<qlonglong>(lIdPadre));
    }
    return static_cast<long>(connessione.Inserisci(QStringLiteral("Elementi"),
                                                   QStringLiteral("ID_Elemento"), colonne, valori));
}

void Elimina(const Connessione& connessione, const QString& sTipologia, long lIdElemento) {
    const QString tabella = TabellaDettaglio(sTipologia);
    if (tabella.isEmpty()) {
        throw Errore(QStringLiteral("ArchivioElementi"),
                     QStringLiteral("Tipo di elemento sconosciuto: \"%1\".").arg(sTipologia));
    }
    // The table's name comes from the fixed list above, never from the caller's text.
    connessione.Esegui(QStringLiteral("DELETE FROM %1 WHERE ID_Elemento = ?").arg(tabella),
                       {static_cast<qlonglong>(lIdElemento)});
}

} // namespace ArchivioElementi
