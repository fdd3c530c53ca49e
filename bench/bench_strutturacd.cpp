// The window of institutes and complessi on a large archive: builds an SQLite archive of about
// N elements (institutes with complessi four levels deep) through the element store, then
// times, offscreen, the opening of frmStrutturaCD against the bare run of its two queries,
// the switch of the order option, and a click on a complesso at the bottom of the tree until
// its record is shown.
//
//   QT_QPA_PLATFORM=offscreen bench_strutturacd [elementi]

#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/StringaConnessione.h"
#include "structure/frmStrutturaCD.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRadioButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTreeView>

namespace {

QTextStream& Uscita() {
    static QTextStream uscita(stdout);
    return uscita;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const qint64 richiesti = argc > 1 ? QByteArray(argv[1]).toLongLong() : 100000;

    QTemporaryDir cartella;
    QDir().mkpath(cartella.filePath(QStringLiteral("Bitmap")));
    const QDir bitmap(QStringLiteral(TABELLION_SORGENTI "/site/Bitmap"));
    for (const QString& nome : bitmap.entryList(QDir::Files)) {
        QFile::copy(bitmap.filePath(nome), cartella.filePath(QStringLiteral("Bitmap/") + nome));
    }
    for (const char* lista : {"TipologiaIST.txt", "TipologiaCD.txt"}) {
        QFile::copy(QStringLiteral(TABELLION_SORGENTI "/site/") + QLatin1String(lista),
                    cartella.filePath(QLatin1String(lista)));
    }
    qputenv("TABELLION_CARTELLA", QFile::encodeName(cartella.path()));

    const QString stringa =
        ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), cartella.path(),
                                  QStringLiteral("banco"), QString(), QString());
    const StringaConnessione letta = StringaConnessione::Leggi(stringa);
    Connessione::BackendDi(letta).CreaDatabase(letta);
    Sessione::cnn = Connessione::Apri(stringa);
    {
        const QString schema = QStringLiteral(TABELLION_SORGENTI "/db/sqlite/schema.sql");
        QFile file(schema);
        file.open(QIODevice::ReadOnly);
        EseguiScript(*Sessione::cnn, QString::fromUtf8(file.readAll()), schema);
    }
    Sessione::bIstituto = true;
    const Connessione& cnn = *Sessione::cnn;

    // The archive: institutes, each with complessi of fan-out 8 four levels deep (4,680 each).
    QElapsedTimer orologio;
    orologio.start();
    QSqlDatabase db = cnn.Db();
    qint64 elementi = 0;
    long profondo = 0;
    db.transaction();
    int istituti = 0;
    while (elementi < richiesti) {
        const long ist = ArchivioElementi::Crea(cnn, QStringLiteral("01"),
                                                QStringLiteral("Istituto %1").arg(++istituti), 0);
        ++elementi;
        QList<long> livello{ist};
        for (int l = 0; l < 4 && elementi < richiesti; ++l) {
            QList<long> prossimo;
            for (long padre : livello) {
                for (int i = 0; i < 8 && elementi < richiesti; ++i) {
                    prossimo.append(ArchivioElementi::Crea(
                        cnn, QStringLiteral("02"), QStringLiteral("Complesso %1").arg(elementi),
                        padre));
                    ++elementi;
                    if (elementi % 1000 == 0) {
                        db.commit();
                        db.transaction();
                    }
                }
            }
            livello = prossimo;
        }
        if (!livello.isEmpty()) {
            profondo = livello.last();
        }
    }
    db.commit();
    Uscita() << "archivio: " << elementi << " elementi in " << orologio.elapsed() << " ms\n";

    orologio.restart();
    qint64 righe = 0;
    for (const QString& sql : {QStringLiteral("SELECT * FROM AlberoGlobale WHERE "
                                              "ELEM_Tipologia='01' ORDER BY ELEM_ID_ElementoPadre, "
                                              "ELEM_Denominazione"),
                               QStringLiteral("SELECT * FROM AlberoGlobale WHERE "
                                              "ELEM_Tipologia='02' ORDER BY ELEM_ID_ElementoPadre, "
                                              "CD_Ordinamento, ELEM_Denominazione")}) {
        QSqlQuery query = cnn.Esegui(sql);
        while (query.next()) {
            ++righe;
        }
    }
    Uscita() << "query nude dei due gruppi: " << righe << " righe in " << orologio.elapsed()
             << " ms\n";

    orologio.restart();
    auto* finestra = new frmStrutturaCD;
    finestra->show();
    QApplication::processEvents();
    Uscita() << "apertura di frmStrutturaCD: " << finestra->Modello().Nodi() << " nodi in "
             << orologio.elapsed() << " ms\n";

    orologio.restart();
    finestra->Ord[0]->setChecked(true);
    QApplication::processEvents();
    Uscita() << "opzione Alfabetico: " << orologio.elapsed() << " ms\n";
    orologio.restart();
    finestra->Ord[1]->setChecked(true);
    QApplication::processEvents();
    Uscita() << "opzione Archivistico: " << orologio.elapsed() << " ms\n";

    orologio.restart();
    const QModelIndex nodo = finestra->Modello().Trova(profondo);
    finestra->tvwDB->setCurrentIndex(nodo);
    QApplication::processEvents();
    Uscita() << "clic su un complesso al quarto livello (" << profondo << ", mostrato "
             << finestra->lIdCorrente << "): " << orologio.elapsed() << " ms\n";

    delete finestra;
    Sessione::cnn->Chiudi();
    Sessione::cnn.reset();
    return 0;
}
