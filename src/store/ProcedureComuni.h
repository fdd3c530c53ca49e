#pragma once

// What the backup and the web index share on every server.

#include <QSqlDatabase>
#include <QString>
#include <QTemporaryFile>
#include <functional>
#include <memory>

// The destination of a copy: a file that is not there yet, in a folder that is there; a
// relative path is taken from the program folder. Errore (with the given source) otherwise.
QString DestinazioneCopia(const QString& sDestinazione, const QString& sSorgente);

// An empty file of our own beside the destination, which the copy fills and which takes the
// destination's name only at the end: a failure leaves nothing behind.
std::unique_ptr<QTemporaryFile> FileProvvisorio(const QString& sDestinazione,
                                                const QString& sSorgente);

// The statement that fills IndiceWeb (after it has been emptied) from the published elements.
QString IstruzioneIndiceWeb();

// The work in one transaction of db: committed when it returns, rolled back when it raises (the
// exception goes on) or when the commit fails (Errore with the given source and the cause).
void InTransazione(const QSqlDatabase& db, const QString& sSorgente,
                   const std::function<void()>& lavoro);
