#include "ProcedureComuni.h"

#include "session/Errore.h"
#include "session/Sessione.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>

// The destination of a copy or a dump: a file that is not there yet, in a folder that is there. A
// relative path is taken from the program folder.
QString DestinazioneCopia(const QString& sDestinazione, const QString& sSorgente) {
    if (sDestinazione.trimmed().isEmpty()) {
        throw Errore(sSorgente, QStringLiteral("Nessun file indicato per la copia del database."));
    }
    const QString percorso =
        QDir::cleanPath(QDir(Sessione::CartellaProgramma())
                            .absoluteFilePath(QDir::fromNativeSeparators(sDestinazione)));
    const QFileInfo file(percorso);
    if (file.exists() || file.isSymLink()) {
        throw Errore(sSorgente,
                     QStringLiteral("Il file %1 esiste già: la copia non lo sovrascrive.")
                         .arg(QDir::toNativeSeparators(percorso)));
    }
    const QFileInfo cartella(file.absolutePath());
    if (!cartella.exists() || !cartella.isDir()) {
        throw Errore(sSorgente, QStringLiteral("La cartella %1 non esiste.")
                                    .arg(QDir::toNativeSeparators(cartella.filePath())));
    }
    return percorso;
}

// An empty file of our own beside the destination, which the copy fills and which takes the
// destination's name only at the end: a failure leaves nothing behind.
std::unique_ptr<QTemporaryFile> FileProvvisorio(const QString& sDestinazione,
                                                const QString& sSorgente) {
    const QFileInfo file(sDestinazione);
    auto provvisorio = std::make_unique<QTemporaryFile>(
        QDir(file.absolutePath())
            .filePath(QStringLiteral(".") + file.fileName() + QStringLiteral(".XXXXXX")));
    if (!provvisorio->open()) {
        throw Errore(sSorgente, QStringLiteral("Impossibile scrivere nella cartella %1: %2")
                                    .arg(QDir::toNativeSeparators(file.absolutePath()),
                                         provvisorio->errorString()));
    }
    provvisorio->close();
    return provvisorio;
}

QString IstruzioneIndiceWeb() {
    // The published elements whose ancestors are all published: from the published ones at
    // the top down through published children only.
    return QStringLiteral(
        "INSERT INTO IndiceWeb (ID_Elemento, ID_ElementoPadre, Tipologia, "
        "Denominazione, DenomCompleta, DataInizio, DataFine) "
        "WITH RECURSIVE Pubblicati (ID_Elemento) AS ("
        " SELECT E.ID_Elemento FROM Elementi E"
        " WHERE UPPER(E.Pubblicato) = 'S' AND (E.ID_ElementoPadre IS NULL OR NOT "
        "EXISTS (SELECT 1 FROM Elementi P WHERE P.ID_Elemento = E.ID_ElementoPadre))"
        " UNION"
        " SELECT F.ID_Elemento FROM Elementi F"
        " INNER JOIN Pubblicati A ON F.ID_ElementoPadre = A.ID_Elemento"
        " WHERE UPPER(F.Pubblicato) = 'S')"
        " SELECT E.ID_Elemento, E.ID_ElementoPadre, E.Tipologia, E.Denominazione,"
        " COALESCE(I.DenomCompleta, C.DenomCompleta, V.DenomCompleta, "
        "E.Denominazione),"
        " COALESCE(NULLIF(C.DataInizio, 0), NULLIF(D.DataInizio, 0), "
        "NULLIF(G.DataCronicaInizio, 0), NULLIF(S.DataInizio, 0), "
        "NULLIF(V.AnnoInizio, 0) * 10000 + 101),"
        " COALESCE(NULLIF(C.DataFine, 0), NULLIF(D.DataFine, 0), "
        "NULLIF(G.DataCronicaFine, 0), NULLIF(S.DataFine, 0), "
        "NULLIF(V.AnnoFine, 0) * 10000 + 1231)"
        " FROM Pubblicati A"
        " INNER JOIN Elementi E ON E.ID_Elemento = A.ID_Elemento"
        " LEFT JOIN Istituti I ON I.ID_Elemento = E.ID_Elemento"
        " LEFT JOIN ComplessiDoc C ON C.ID_Elemento = E.ID_Elemento"
        " LEFT JOIN Inventari V ON V.ID_Elemento = E.ID_Elemento"
        " LEFT JOIN DatiInventariali D ON D.ID_Elemento = E.ID_Elemento"
        " LEFT JOIN Pergamene G ON G.ID_Elemento = E.ID_Elemento"
        " LEFT JOIN Sigilli S ON S.ID_Elemento = E.ID_Elemento");
}

void InTransazione(const QSqlDatabase& db, const QString& sSorgente,
                   const std::function<void()>& lavoro) {
    QSqlDatabase conDb = db;
    if (!conDb.transaction())
        throw Errore(sSorgente, conDb.lastError().text());
    try {
        lavoro();
    } catch (...) {
        conDb.rollback();
        throw;
    }
    if (!conDb.commit()) {
        const QString causa = conDb.lastError().text();
        conDb.rollback();
        throw Errore(sSorgente, causa);
    }
}
