#include "CartellaProva.h"

#include "session/Sessione.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

CartellaProva::CartellaProva() {
    QVERIFY2(cartella.isValid(), "temporary folder");
    qputenv("TABELLION_CARTELLA", cartella.path().toLocal8Bit());
    Sessione::Azzera();
}

CartellaProva::~CartellaProva() {
    Sessione::Azzera();
    qunsetenv("TABELLION_CARTELLA");
}

QString CartellaProva::File(const QString& nome) const {
    return QDir(cartella.path()).filePath(nome);
}

void CartellaProva::Scrivi(const QString& nome, const QByteArray& contenuto) const {
    QFile file(File(nome));
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(file.fileName()));
    file.write(contenuto);
}

void CartellaProva::Rimuovi(const QString& nome) const {
    QFile::remove(File(nome));
}

void CartellaProva::ScriviSito(const QString& sTesta, const QString& sServer,
                               const QString& sDatabase, const QString& sTipoSito) const {
    const QByteArray param = "\"01=" + File(QStringLiteral("Immagini")).toUtf8() + "\"\r\n" +
                             "\"02=" + sServer.toUtf8() + "\"\r\n" + "\"06=9.9\"\r\n" +
                             "\"08=" + sDatabase.toUtf8() + "\"\r\n";
    Scrivi(QStringLiteral("Param.txt"), param);
    Scrivi(QStringLiteral("Menu.txt"), "Uno\r\nDue\r\nTre\r\nQuattro\r\nCinque\r\nSei\r\n");
    Scrivi(QStringLiteral("Connetti.txt"), sTesta.toUtf8() + "\r\n");
    Scrivi(QStringLiteral("Istituto.txt"), sTipoSito.toUtf8() + "\r\n");
}

void CartellaProva::CopiaDalSito(const QStringList& nomi) const {
    const QDir sito(QStringLiteral(TABELLION_SORGENTI "/site"));
    for (const QString& nome : nomi) {
        const QFileInfo origine(sito.filePath(nome));
        if (origine.isDir()) {
            QVERIFY(QDir().mkpath(File(nome)));
            const QDir cartellaOrigine(origine.filePath());
            for (const QString& file : cartellaOrigine.entryList(QDir::Files)) {
                QVERIFY(QFile::copy(cartellaOrigine.filePath(file), File(nome + u'/' + file)));
            }
        } else {
            QVERIFY2(QFile::copy(origine.filePath(), File(nome)), qPrintable(nome));
        }
    }
}
