#include "ArchivioElementi.h"

#include "Backend.h"
#include "Connessione.h"
#include "session/Errore.h"

#include <QSqlQuery>

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

bool Collega(const Connessione& connessione, long lIdElemento, long lIdElementoLink) {
    const QString sSorgente = QStringLiteral("ArchivioElementi.Collega");
    for (const long lId : {lIdElemento, lIdElementoLink}) {
        QSqlQuery riga = connessione.Esegui(
            QStringLiteral("SELECT ID_Elemento FROM Elementi WHERE ID_Elemento = ?"),
            {static_cast<qlonglong>(lId)}, sSorgente);
        if (!riga.next()) {
            throw Errore(sSorgente, QStringLiteral("L'elemento %1 non esiste più nel database: il "
                                                   "collegamento non è stato creato.")
                                        .arg(lId));
        }
    }
    QSqlQuery coppia = connessione.Esegui(
        QStringLiteral(
            "SELECT ID_Elemento FROM Links WHERE ID_Elemento = ? AND ID_ElementoLink = ?"),
        {static_cast<qlonglong>(lIdElemento), static_cast<qlonglong>(lIdElementoLink)}, sSorgente);
    if (coppia.next()) {
        return false;
    }
    coppia.finish();
    connessione.Esegui(
        QStringLiteral(
            "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, ?)"),
        {static_cast<qlonglong>(lIdElemento), static_cast<qlonglong>(lIdElementoLink),
         QStringLiteral("")},
        sSorgente);
    return true;
}

} // namespace ArchivioElementi
