// The tree of the complessi window at scale: builds an SQLite archive of about N elements
// (institutes with complessi four levels deep, fan-out 8), then, in a process of its own so
// that the peak memory is the loading's alone, loads the institutes and complessi from
// AlberoGlobale into the window's tree and shows it, and compares the time with reading the
// same rows through a bare forward-only query. Last, the time of a click on a node at the
// bottom of the tree (selected, made visible, shown).
//
//   bench_albero [elementi]            (default 1000000)

#include "LetturaFile.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Backend.h"
#include "store/Connessione.h"
#include "store/EsecuzioneScript.h"
#include "store/ModelloAlbero.h"
#include "store/StringaConnessione.h"
#include "structure/FinestraStruttura.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTreeView>

namespace {

QTextStream& Uscita() {
    static QTextStream uscita(stdout);
    return uscita;
}

const QString GruppoIstituti =
    QStringLiteral("SELECT * FROM AlberoGlobale WHERE ELEM_Tipologia='01' "
                   "ORDER BY ELEM_ID_ElementoPadre, ELEM_Denominazione");
QString GruppoComplessi(const QString& sOrdine) {
    return QStringLiteral("SELECT * FROM AlberoGlobale WHERE ELEM_Tipologia='02' "
                          "ORDER BY ELEM_ID_ElementoPadre, ") +
           sOrdine;
}
const QString Ordine = QStringLiteral("CD_Ordinamento, ELEM_Denominazione");

QString Stringa(const QString& cartella) {
    return ComponiStringaConnessione(QStringLiteral("Provider=QSQLITE"), cartella,
                                     QStringLiteral("bench_albero"), QString(), QString());
}

// The archive: Elementi rows (the database makes their detail rows), in transactions of
// 10,000 rows.
qint64 Costruisci(const QString& cartella, qint64 quanti) {
    const QString stringa = Stringa(cartella);
    const StringaConnessione letta = StringaConnessione::Leggi(stringa);
    const Backend& backend = Connessione::BackendDi(letta);
    backend.CreaDatabase(letta);
    auto cnn = Connessione::Apri(stringa);
    const QString schema = QStringLiteral(TABELLION_SORGENTI "/db/sqlite/schema.sql");
    EseguiScript(*cnn, LeggiFile(schema), schema);
    QSqlDatabase db = cnn->Db();
    QSqlQuery inserisci(db);
    inserisci.prepare(QStringLiteral("INSERT INTO Elementi (ID_Elemento, ID_ElementoPadre, "
                                     "Tipologia, Denominazione) VALUES (?, ?, ?, ?)"));
    qint64 prossimo = 1;
    qint64 fatti = 0;
    db.transaction();
    const auto crea = [&](const char* tipo, const QString& nome, qint64 padre) {
        const qint64 id = prossimo++;
        inserisci.bindValue(0, id);
        inserisci.bindValue(1, padre > 0 ? QVariant(padre) : QVariant());
        inserisci.bindValue(2, QLatin1String(tipo));
        inserisci.bindValue(3, nome);
        if (!inserisci.exec()) {
            throw Errore(QStringLiteral("bench"), inserisci.lastError().text());
        }
        if (++fatti % 10000 == 0) {
            db.commit();
            db.transaction();
        }
        return id;
    };
    for (int numero = 1; fatti < quanti; ++numero) {
        const qint64 istituto =
            crea("01", QStringLiteral("Archivio di Stato n. %1").arg(numero), 0);
        for (int a = 0; a < 8 && fatti < quanti; ++a) {
            const qint64 fondo =
                crea("02", QStringLiteral("Fondo %1.%2").arg(numero).arg(a), istituto);
            for (int b = 0; b < 8 && fatti < quanti; ++b) {
                const qint64 serie = crea("02", QStringLiteral("Serie %1").arg(b), fondo);
                for (int d = 0; d < 8 && fatti < quanti; ++d) {
                    const qint64 sotto = crea("02", QStringLiteral("Sottoserie %1").arg(d), serie);
                    for (int e = 0; e < 8 && fatti < quanti; ++e) {
                        crea("02", QStringLiteral("Fascicoli %1").arg(e), sotto);
                    }
                }
            }
        }
    }
    db.commit();
    inserisci = QSqlQuery();
    db = QSqlDatabase();
    cnn->Esegui(QStringLiteral("ANALYZE"));
    cnn->Chiudi();
    return fatti;
}

class FinestraComplessi : public FinestraStruttura {
public:
    FinestraComplessi()
        : FinestraStruttura(QStringLiteral("frmStrutturaCD")) {}
    void Apri() { Avvia(); }
    qint64 lMostrato = 0;

protected:
    void CaricaAlbero(const QString& sOrdine) override {
        CaricaGruppi({{GruppoIstituti, QStringLiteral("istituto"), true, false, false},
                      {GruppoComplessi(sOrdine), QStringLiteral("nolink"), false, true, false}},
                     true);
    }
    void MostraNodo(const QString&) override { lMostrato = lIdCorrente; }
};

qint64 PiccoMemoriaKb() {
    QFile stato(QStringLiteral("/proc/self/status"));
    if (!stato.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray& riga : stato.readAll().split('\n')) {
        if (riga.startsWith("VmHWM:")) {
            return riga.mid(6).trimmed().split(' ').value(0).toLongLong();
        }
    }
    return -1;
}

double Secondi(const QElapsedTimer& orologio) {
    return static_cast<double>(orologio.nsecsElapsed()) / 1e9;
}

// The measures, on the archive already built.
int Misura(const QString& cartella) {
    qputenv("TABELLION_CARTELLA", QByteArrayLiteral(TABELLION_SORGENTI "/site"));
    Sessione::cnn = Connessione::Apri(Stringa(cartella));
    const qint64 memoriaIniziale = PiccoMemoriaKb();

    // The same rows, bare: each value read once.
    QElapsedTimer orologio;
    orologio.start();
    qint64 righe = 0;
    qint64 caratteri = 0;
    for (const QString& sql : {GruppoIstituti, GruppoComplessi(Ordine)}) {
        QSqlQuery query(Sessione::cnn->Db());
        query.setForwardOnly(true);
        query.exec(sql);
        while (query.next()) {
            const qint64 id = query.value(0).toLongLong();
            const QVariant padre = query.value(1);
            const QString tipo = query.value(2).toString();
            const QString nome = query.value(3).toString();
            caratteri += nome.size() + tipo.size() + (padre.isNull() ? 0 : 1) + (id > 0 ? 1 : 0);
            ++righe;
        }
    }
    const double nuda = Secondi(orologio);

    FinestraComplessi finestra;
    finestra.resize(900, 700);
    orologio.restart();
    finestra.Apri();
    finestra.show();
    QCoreApplication::processEvents();
    const double albero = Secondi(orologio);
    const ModelloAlbero& modello = finestra.Modello();

    // A click on the last complesso loaded: at the bottom of the last institute's tree.
    qint64 ultimo = 0;
    {
        QSqlQuery query = Sessione::cnn->Esegui(
            QStringLiteral("SELECT MAX(ID_Elemento) FROM Elementi WHERE Tipologia = '02'"));
        query.next();
        ultimo = query.value(0).toLongLong();
    }
    const QModelIndex profondo = modello.Trova(ultimo);
    int livello = 0;
    for (QModelIndex su = profondo.parent(); su.isValid(); su = su.parent()) {
        ++livello;
    }
    orologio.restart();
    finestra.SelezionaNodo(profondo);
    QCoreApplication::processEvents();
    const double clic = Secondi(orologio);

    const qint64 picco = PiccoMemoriaKb();
    Uscita() << "nodi nell'albero: " << modello.Nodi() << " (righe lette: " << righe << ", "
             << caratteri << " caratteri)\n";
    Uscita() << QStringLiteral("lettura nuda: %1 s\n").arg(nuda, 0, 'f', 3);
    Uscita() << QStringLiteral("albero caricato e mostrato: %1 s (rapporto %2)\n")
                    .arg(albero, 0, 'f', 3)
                    .arg(albero / nuda, 0, 'f', 2);
    Uscita() << QStringLiteral("clic su un nodo al livello %1: %2 ms (mostrato %3)\n")
                    .arg(livello)
                    .arg(clic * 1000, 0, 'f', 2)
                    .arg(finestra.lMostrato == ultimo ? QStringLiteral("sì")
                                                      : QStringLiteral("NO"));
    Uscita() << QStringLiteral("memoria di picco (VmHWM): %1 MB, di cui all'avvio %2 MB\n")
                    .arg(static_cast<double>(picco) / 1024, 0, 'f', 1)
                    .arg(static_cast<double>(memoriaIniziale) / 1024, 0, 'f', 1);
    Uscita().flush();
    finestra.close();
    Sessione::cnn->Chiudi();
    Sessione::cnn.reset();
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    const QStringList argomenti = app.arguments();
    try {
        if (argomenti.value(1) == QStringLiteral("--misura")) {
            return Misura(argomenti.value(2));
        }
        const qint64 quanti = argomenti.size() > 1 ? argomenti[1].toLongLong() : 1'000'000;
        QTemporaryDir cartella;
        QElapsedTimer orologio;
        orologio.start();
        const qint64 fatti = Costruisci(cartella.path(), quanti);
        Uscita() << QStringLiteral("archivio di %1 elementi costruito in %2 s\n")
                        .arg(fatti)
                        .arg(Secondi(orologio), 0, 'f', 1);
        Uscita().flush();
        QProcess misura;
        misura.setProcessChannelMode(QProcess::ForwardedChannels);
        misura.start(QCoreApplication::applicationFilePath(),
                     {QStringLiteral("--misura"), cartella.path()});
        misura.waitForFinished(-1);
        return misura.exitCode();
    } catch (const Errore& errore) {
        Uscita() << errore.testo() << '\n';
        return 1;
    }
}
