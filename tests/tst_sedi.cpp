// The place combos of every record that an institute holds, on SQLite and on PostgreSQL: the
// entries of cmbSede and cmbMagazzino, the entry of a stored key, the chosen place as its column
// holds it, the seat that goes down to the direct children of one table only, and the error of
// the fill shown as "Errore T5".

#include "records/SediIstituto.h"
#include "records/ucComplesso.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QComboBox>
#include <QFile>
#include <QSqlQuery>
#include <QtTest>

namespace {

// A database of the schema as the session's connection, and the scripted boxes.
struct Ambiente : AmbienteRecord {
    explicit Ambiente(TipoBackend tipo)
        : AmbienteRecord(tipo, QStringLiteral("ComplessiDoc"), {"TipologiaCD.txt"}) {}

    // The seat and the warehouse of the row of an element in its table.
    QVariant Sede(const QString& tabella, long idElemento) const {
        return ColonnaDi(tabella, QStringLiteral("ID_IstitutoSede"), idElemento);
    }
    QVariant Magazzino(const QString& tabella, long idElemento) const {
        return ColonnaDi(tabella, QStringLiteral("ID_IstitutoMag"), idElemento);
    }
    void ScriviLuoghi(const QString& tabella, long idElemento, const QVariant& sede,
                      const QVariant& magazzino) const {
        Cnn().Esegui(QStringLiteral("UPDATE %1 SET ID_IstitutoSede = ?, ID_IstitutoMag = ? "
                                    "WHERE ID_Elemento = ?")
                         .arg(tabella),
                     {sede, magazzino, Id(idElemento)});
    }
};

const QString ComplessiDoc = QStringLiteral("ComplessiDoc");
const QString Inventari = QStringLiteral("Inventari");

QStringList Voci(const QComboBox& cmb) {
    QStringList voci;
    for (int i = 0; i < cmb.count(); ++i)
        voci << cmb.itemText(i);
    return voci;
}

QList<qlonglong> Chiavi(const QComboBox& cmb) {
    QList<qlonglong> chiavi;
    for (int i = 0; i < cmb.count(); ++i)
        chiavi << cmb.itemData(i).toLongLong();
    return chiavi;
}

// An institute with a seat, a warehouse, a place of another kind, and the seat of a seat.
struct Luoghi {
    explicit Luoghi(const Ambiente& ambiente) {
        istituto = ambiente.CreaIstituto(QStringLiteral("Archivio di Stato di Lucca"),
                                         QStringLiteral("01"));
        sede = ambiente.CreaIstituto(QStringLiteral("Sede di Palazzo Guidiccioni"),
                                     QStringLiteral("03"), istituto);
        magazzino = ambiente.CreaIstituto(QStringLiteral("Deposito «San Romano»"),
                                          QStringLiteral("04"), istituto);
        altro = ambiente.CreaIstituto(QStringLiteral("Sezione di Pescia"), QStringLiteral("02"),
                                      istituto);
        sede2 = ambiente.CreaIstituto(QStringLiteral("Sala dell'Archivio notarile"),
                                      QStringLiteral("03"), istituto);
        nipote =
            ambiente.CreaIstituto(QStringLiteral("Sede della sede"), QStringLiteral("03"), sede);
        idIstituto = ambiente.IdIstituto(istituto);
        idSede = ambiente.IdIstituto(sede);
        idMagazzino = ambiente.IdIstituto(magazzino);
        idSede2 = ambiente.IdIstituto(sede2);
        idNipote = ambiente.IdIstituto(nipote);
        idAltro = ambiente.IdIstituto(altro);
    }
    long istituto, sede, magazzino, altro, sede2, nipote;
    long idIstituto, idSede, idMagazzino, idSede2, idNipote, idAltro;
};

} // namespace

class TestSedi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void leComboElencanoSedeLeSediInEntrambeEIMagazziniSoloInConservatoIn_data() {
        AggiungiBackend();
    }
    void leComboElencanoSedeLeSediInEntrambeEIMagazziniSoloInConservatoIn();
    void unaChiaveNonElencataTrovaLaPrimaVoce_data() { AggiungiBackend(); }
    void unaChiaveNonElencataTrovaLaPrimaVoce();
    void ilLuogoSceltoEComeLoTieneLaColonnaENullPerSede_data() { AggiungiBackend(); }
    void ilLuogoSceltoEComeLoTieneLaColonnaENullPerSede();
    void laSedeScendeComeSedeEMagazzinoAiSoliFigliDirettiDellaTabella_data() { AggiungiBackend(); }
    void laSedeScendeComeSedeEMagazzinoAiSoliFigliDirettiDellaTabella();
    void unErroreNelCaricareILuoghiMostraErroreT5ELasciaSede_data();
    void unErroreNelCaricareILuoghiMostraErroreT5ELasciaSede();
    void ilSalvaDelComplessoPortaLaSedeAiSuoiFigliEANessunAltro_data() { AggiungiBackend(); }
    void ilSalvaDelComplessoPortaLaSedeAiSuoiFigliEANessunAltro();
};

void TestSedi::leComboElencanoSedeLeSediInEntrambeEIMagazziniSoloInConservatoIn() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    // The places of another institute are not this one's.
    const long estraneo =
        ambiente.CreaIstituto(QStringLiteral("Archivio di Stato di Pisa"), QStringLiteral("01"));
    ambiente.CreaIstituto(QStringLiteral("Sede di Pisa"), QStringLiteral("03"), estraneo);

    QComboBox cmbSede;
    QComboBox cmbMagazzino;
    SediIstituto sedi(&cmbSede, &cmbMagazzino);
    // What the combos held before goes.
    cmbSede.addItem(QStringLiteral("vecchia"), Id(99));
    cmbMagazzino.addItem(QStringLiteral("vecchio"), Id(98));
    sedi.CaricaSedi(luoghi.idIstituto);
    QCOMPARE(Voci(cmbSede),
             QStringList({QStringLiteral("Sede"), QStringLiteral("Sede di Palazzo Guidiccioni"),
                          QStringLiteral("Sala dell'Archivio notarile")}));
    QCOMPARE(Chiavi(cmbSede),
             QList<qlonglong>({0, qlonglong(luoghi.idSede), qlonglong(luoghi.idSede2)}));
    QCOMPARE(Voci(cmbMagazzino),
             QStringList({QStringLiteral("Sede"), QStringLiteral("Sede di Palazzo Guidiccioni"),
                          QStringLiteral("Deposito «San Romano»"),
                          QStringLiteral("Sala dell'Archivio notarile")}));
    QCOMPARE(Chiavi(cmbMagazzino),
             QList<qlonglong>({0, qlonglong(luoghi.idSede), qlonglong(luoghi.idMagazzino),
                               qlonglong(luoghi.idSede2)}));
    QCOMPARE(ambiente.seam.Messaggi().size(), 0);

    // A place has places of its own; an institute without places has only "Sede".
    sedi.CaricaSedi(luoghi.idSede);
    QCOMPARE(Voci(cmbSede),
             QStringList({QStringLiteral("Sede"), QStringLiteral("Sede della sede")}));
    QCOMPARE(Chiavi(cmbMagazzino), QList<qlonglong>({0, qlonglong(luoghi.idNipote)}));
    sedi.CaricaSedi(luoghi.idMagazzino);
    QCOMPARE(Voci(cmbSede), QStringList{QStringLiteral("Sede")});
    QCOMPARE(Voci(cmbMagazzino), QStringList{QStringLiteral("Sede")});
    QCOMPARE(Chiavi(cmbMagazzino), QList<qlonglong>{0});
}

void TestSedi::unaChiaveNonElencataTrovaLaPrimaVoce() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    QComboBox cmbSede;
    QComboBox cmbMagazzino;
    SediIstituto sedi(&cmbSede, &cmbMagazzino);
    sedi.CaricaSedi(luoghi.idIstituto);

    QCOMPARE(sedi.CercaSede(luoghi.idSede), 1);
    QCOMPARE(sedi.CercaSede(luoghi.idSede2), 2);
    QCOMPARE(sedi.CercaMagazzino(luoghi.idSede), 1);
    QCOMPARE(sedi.CercaMagazzino(luoghi.idMagazzino), 2);
    QCOMPARE(sedi.CercaMagazzino(luoghi.idSede2), 3);
    // "Sede" itself, a warehouse where only seats are listed, a place of another kind, a place
    // of a place, a key that no row has.
    QCOMPARE(sedi.CercaSede(0), 0);
    QCOMPARE(sedi.CercaMagazzino(0), 0);
    QCOMPARE(sedi.CercaSede(luoghi.idMagazzino), 0);
    QCOMPARE(sedi.CercaSede(luoghi.idAltro), 0);
    QCOMPARE(sedi.CercaMagazzino(luoghi.idAltro), 0);
    QCOMPARE(sedi.CercaMagazzino(luoghi.idNipote), 0);
    QCOMPARE(sedi.CercaSede(987654), 0);
    QCOMPARE(sedi.CercaMagazzino(-1), 0);
}

void TestSedi::ilLuogoSceltoEComeLoTieneLaColonnaENullPerSede() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    const long fondo = ambiente.Crea("02", QStringLiteral("Fondo"), luoghi.istituto);
    QComboBox cmbSede;
    QComboBox cmbMagazzino;
    SediIstituto sedi(&cmbSede, &cmbMagazzino);
    sedi.CaricaSedi(luoghi.idIstituto);

    // A place chosen: its key, as the column holds it.
    cmbSede.setCurrentIndex(sedi.CercaSede(luoghi.idSede2));
    cmbMagazzino.setCurrentIndex(sedi.CercaMagazzino(luoghi.idMagazzino));
    QCOMPARE(sedi.Sede(), QVariant(qlonglong(luoghi.idSede2)));
    QCOMPARE(sedi.Magazzino(), QVariant(qlonglong(luoghi.idMagazzino)));
    ambiente.ScriviLuoghi(ComplessiDoc, fondo, sedi.Sede(), sedi.Magazzino());
    QCOMPARE(ambiente.Sede(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idSede2));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idMagazzino));

    // "Sede", the institute itself: a Null of the column's kind, which every backend binds.
    cmbSede.setCurrentIndex(0);
    cmbMagazzino.setCurrentIndex(0);
    QVERIFY(sedi.Sede().isNull());
    QVERIFY(sedi.Magazzino().isNull());
    QCOMPARE(sedi.Sede().metaType(), QMetaType::fromType<qlonglong>());
    ambiente.ScriviLuoghi(ComplessiDoc, fondo, sedi.Sede(), sedi.Magazzino());
    QVERIFY(ambiente.Sede(ComplessiDoc, fondo).isNull());
    QVERIFY(ambiente.Magazzino(ComplessiDoc, fondo).isNull());

    // No entry chosen at all (combos not yet filled): the number of an empty code.
    cmbSede.setCurrentIndex(-1);
    cmbMagazzino.setCurrentIndex(-1);
    QCOMPARE(sedi.Sede(), QVariant(qlonglong(0)));
    QCOMPARE(sedi.Magazzino(), QVariant(qlonglong(0)));
}

void TestSedi::laSedeScendeComeSedeEMagazzinoAiSoliFigliDirettiDellaTabella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    const long fondo = ambiente.Crea("02", QStringLiteral("Fondo"), luoghi.istituto);
    const long serie1 = ambiente.Crea("02", QStringLiteral("Serie 1"), fondo);
    const long serie2 = ambiente.Crea("02", QStringLiteral("Serie 2"), fondo);
    const long sottoserie = ambiente.Crea("02", QStringLiteral("Sottoserie"), serie1);
    const long altroFondo = ambiente.Crea("02", QStringLiteral("Altro fondo"), luoghi.istituto);
    const long inventario = ambiente.Crea("03", QStringLiteral("Inventario"), luoghi.istituto);
    // Every row starts with the warehouse in both places.
    const QVariant magazzino = Id(luoghi.idMagazzino);
    for (long id : {fondo, serie1, serie2, sottoserie, altroFondo})
        ambiente.ScriviLuoghi(ComplessiDoc, id, magazzino, magazzino);
    ambiente.ScriviLuoghi(Inventari, inventario, magazzino, magazzino);

    SediIstituto::PropagaSedi(ComplessiDoc, fondo, Id(luoghi.idSede));
    for (long figlio : {serie1, serie2}) {
        QCOMPARE(ambiente.Sede(ComplessiDoc, figlio).toLongLong(), qlonglong(luoghi.idSede));
        QCOMPARE(ambiente.Magazzino(ComplessiDoc, figlio).toLongLong(), qlonglong(luoghi.idSede));
    }
    // Not the element itself, not a grandchild, not a sibling.
    for (long id : {fondo, sottoserie, altroFondo}) {
        QCOMPARE(ambiente.Sede(ComplessiDoc, id).toLongLong(), qlonglong(luoghi.idMagazzino));
        QCOMPARE(ambiente.Magazzino(ComplessiDoc, id).toLongLong(), qlonglong(luoghi.idMagazzino));
    }
    QCOMPARE(ambiente.Sede(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));

    // The children of the institute in another table are not reached from ComplessiDoc...
    SediIstituto::PropagaSedi(ComplessiDoc, luoghi.istituto, Id(luoghi.idSede2));
    QCOMPARE(ambiente.Sede(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));
    QCOMPARE(ambiente.Magazzino(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, altroFondo).toLongLong(), qlonglong(luoghi.idSede2));
    // ...and from Inventari only its own rows are.
    ambiente.ScriviLuoghi(ComplessiDoc, altroFondo, magazzino, magazzino);
    SediIstituto::PropagaSedi(Inventari, luoghi.istituto, Id(luoghi.idSede));
    QCOMPARE(ambiente.Sede(Inventari, inventario).toLongLong(), qlonglong(luoghi.idSede));
    QCOMPARE(ambiente.Magazzino(Inventari, inventario).toLongLong(), qlonglong(luoghi.idSede));
    QCOMPARE(ambiente.Sede(ComplessiDoc, altroFondo).toLongLong(), qlonglong(luoghi.idMagazzino));

    // "Sede" goes down as Null in both.
    SediIstituto::PropagaSedi(ComplessiDoc, fondo, QVariant(QMetaType::fromType<qlonglong>()));
    for (long figlio : {serie1, serie2}) {
        QVERIFY(ambiente.Sede(ComplessiDoc, figlio).isNull());
        QVERIFY(ambiente.Magazzino(ComplessiDoc, figlio).isNull());
    }
    QCOMPARE(ambiente.Sede(ComplessiDoc, sottoserie).toLongLong(), qlonglong(luoghi.idMagazzino));
}

void TestSedi::unErroreNelCaricareILuoghiMostraErroreT5ELasciaSede_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<bool>("bChiudi");
    QTest::addColumn<QString>("sParola");
    QTest::newRow("sqlite: vista eliminata") << TipoBackend::SQLite << false << "v_istituti";
    QTest::newRow("sqlite: connessione chiusa")
        << TipoBackend::SQLite << true << "La connessione al database è chiusa.";
    QTest::newRow("postgresql: vista eliminata")
        << TipoBackend::PostgreSQL << false << "v_istituti";
    QTest::newRow("postgresql: connessione chiusa")
        << TipoBackend::PostgreSQL << true << "La connessione al database è chiusa.";
}

void TestSedi::unErroreNelCaricareILuoghiMostraErroreT5ELasciaSede() {
    QFETCH(TipoBackend, backend);
    QFETCH(bool, bChiudi);
    QFETCH(QString, sParola);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    QComboBox cmbSede;
    QComboBox cmbMagazzino;
    SediIstituto sedi(&cmbSede, &cmbMagazzino);
    sedi.CaricaSedi(luoghi.idIstituto);
    QCOMPARE(cmbMagazzino.count(), 4);
    cmbSede.setCurrentIndex(1);

    if (bChiudi)
        Sessione::cnn->Chiudi();
    else
        ambiente.Cnn().Esegui(QStringLiteral("DROP VIEW v_istituti"));
    sedi.CaricaSedi(luoghi.idIstituto);
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const Messaggio messaggio = ambiente.seam.Messaggi().at(0);
    QCOMPARE(messaggio.sTitolo, QStringLiteral("Errore T5"));
    QCOMPARE(messaggio.icona, Icona::Critica);
    QCOMPARE(messaggio.pulsanti, Pulsanti::Ok);
    QVERIFY2(messaggio.sTesto.contains(sParola, Qt::CaseInsensitive), qPrintable(messaggio.sTesto));
    QCOMPARE(Voci(cmbSede), QStringList{QStringLiteral("Sede")});
    QCOMPARE(Voci(cmbMagazzino), QStringList{QStringLiteral("Sede")});
    QCOMPARE(Chiavi(cmbSede), QList<qlonglong>{0});
    // What was stored finds "Sede", and "Sede" is Null.
    cmbSede.setCurrentIndex(sedi.CercaSede(luoghi.idSede));
    QCOMPARE(cmbSede.currentIndex(), 0);
    QVERIFY(sedi.Sede().isNull());
}

void TestSedi::ilSalvaDelComplessoPortaLaSedeAiSuoiFigliEANessunAltro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const Luoghi luoghi(ambiente);
    const long fondo = ambiente.Crea("02", QStringLiteral("Fondo"), luoghi.istituto);
    const long serie = ambiente.Crea("02", QStringLiteral("Serie"), fondo);
    const long sottoserie = ambiente.Crea("02", QStringLiteral("Sottoserie"), serie);
    const long altroFondo = ambiente.Crea("02", QStringLiteral("Altro fondo"), luoghi.istituto);
    const long inventario = ambiente.Crea("03", QStringLiteral("Inventario"), fondo);
    const QVariant magazzino = Id(luoghi.idMagazzino);
    for (long id : {serie, sottoserie, altroFondo})
        ambiente.ScriviLuoghi(ComplessiDoc, id, magazzino, magazzino);
    ambiente.ScriviLuoghi(Inventari, inventario, magazzino, magazzino);

    ucComplesso editore;
    editore.Init(false, nullptr);
    editore.Mostra(fondo);
    editore.Modifica();
    auto* cmbSede = editore.findChild<QComboBox*>(QStringLiteral("cmbSede"));
    auto* cmbMagazzino = editore.findChild<QComboBox*>(QStringLiteral("cmbMagazzino"));
    cmbSede->setCurrentIndex(cmbSede->findData(Id(luoghi.idSede2)));
    cmbMagazzino->setCurrentIndex(cmbMagazzino->findData(Id(luoghi.idSede)));
    editore.Salva(fondo);
    QCOMPARE(ambiente.seam.Messaggi().size(), 0);

    // The record keeps the warehouse chosen; its child takes the seat as both.
    QCOMPARE(ambiente.Sede(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idSede2));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idSede));
    QCOMPARE(ambiente.Sede(ComplessiDoc, serie).toLongLong(), qlonglong(luoghi.idSede2));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, serie).toLongLong(), qlonglong(luoghi.idSede2));
    // The grandchild, the sibling and a child whose row is in another table keep theirs.
    for (long id : {sottoserie, altroFondo}) {
        QCOMPARE(ambiente.Sede(ComplessiDoc, id).toLongLong(), qlonglong(luoghi.idMagazzino));
        QCOMPARE(ambiente.Magazzino(ComplessiDoc, id).toLongLong(), qlonglong(luoghi.idMagazzino));
    }
    QCOMPARE(ambiente.Sede(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));
    QCOMPARE(ambiente.Magazzino(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));

    // Shown again, the record finds its places in the combos.
    editore.Mostra(fondo);
    QCOMPARE(cmbSede->currentText(), QStringLiteral("Sala dell'Archivio notarile"));
    QCOMPARE(cmbMagazzino->currentText(), QStringLiteral("Sede di Palazzo Guidiccioni"));
    editore.Mostra(serie);
    QCOMPARE(cmbSede->currentText(), QStringLiteral("Sala dell'Archivio notarile"));
    QCOMPARE(cmbMagazzino->currentText(), QStringLiteral("Sala dell'Archivio notarile"));
}

QTEST_MAIN(TestSedi)
#include "tst_sedi.moc"
