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

// The institute with its seat and warehouse, then a place of another kind, a second seat and the
// seat of the seat.
struct LuoghiCompleti : Luoghi {
    explicit LuoghiCompleti(const Ambiente& ambiente)
        : Luoghi(ambiente)
        , altro(ambiente.CreaIstituto(QStringLiteral("Sezione di Pescia"), QStringLiteral("02"),
                                      istituto))
        , sede2(ambiente.CreaIstituto(QStringLiteral("Sala dell'Archivio notarile"),
                                      QStringLiteral("03"), istituto))
        , nipote(
              ambiente.CreaIstituto(QStringLiteral("Sede della sede"), QStringLiteral("03"), sede))
        , idSede2(ambiente.IdIstituto(sede2))
        , idNipote(ambiente.IdIstituto(nipote))
        , idAltro(ambiente.IdIstituto(altro)) {}
    long altro, sede2, nipote;
    long idSede2, idNipote, idAltro;
};

// The two place combos, filled with the places of an institute.
struct ComboDeiLuoghi {
    explicit ComboDeiLuoghi(long idIstituto) { sedi.CaricaSedi(idIstituto); }
    QComboBox cmbSede;
    QComboBox cmbMagazzino;
    SediIstituto sedi{&cmbSede, &cmbMagazzino};
};

// Under the institute: a fondo with two series, the first with a subseries, another fondo, a
// finding aid at the top and one under the fondo; every row holds the warehouse in both places.
struct Albero {
    Albero(const Ambiente& ambiente, const Luoghi& luoghi)
        : fondo(ambiente.Crea("02", QStringLiteral("Fondo"), luoghi.istituto))
        , serie1(ambiente.Crea("02", QStringLiteral("Serie 1"), fondo))
        , serie2(ambiente.Crea("02", QStringLiteral("Serie 2"), fondo))
        , sottoserie(ambiente.Crea("02", QStringLiteral("Sottoserie"), serie1))
        , altroFondo(ambiente.Crea("02", QStringLiteral("Altro fondo"), luoghi.istituto))
        , inventario(ambiente.Crea("03", QStringLiteral("Inventario"), luoghi.istituto))
        , inventarioDelFondo(ambiente.Crea("03", QStringLiteral("Inventario del fondo"), fondo)) {
        const QVariant magazzino = Id(luoghi.idMagazzino);
        for (long id : {fondo, serie1, serie2, sottoserie, altroFondo})
            ambiente.ScriviLuoghi(ComplessiDoc, id, magazzino, magazzino);
        for (long id : {inventario, inventarioDelFondo})
            ambiente.ScriviLuoghi(Inventari, id, magazzino, magazzino);
    }
    const long fondo, serie1, serie2, sottoserie, altroFondo, inventario, inventarioDelFondo;
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
    const LuoghiCompleti luoghi(ambiente);
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
    const LuoghiCompleti luoghi(ambiente);
    ComboDeiLuoghi combo(luoghi.idIstituto);

    QCOMPARE(combo.sedi.CercaSede(luoghi.idSede), 1);
    QCOMPARE(combo.sedi.CercaSede(luoghi.idSede2), 2);
    QCOMPARE(combo.sedi.CercaMagazzino(luoghi.idSede), 1);
    QCOMPARE(combo.sedi.CercaMagazzino(luoghi.idMagazzino), 2);
    QCOMPARE(combo.sedi.CercaMagazzino(luoghi.idSede2), 3);
    // "Sede" itself, a warehouse where only seats are listed, a place of another kind, a place
    // of a place, a key that no row has.
    QCOMPARE(combo.sedi.CercaSede(0), 0);
    QCOMPARE(combo.sedi.CercaMagazzino(0), 0);
    QCOMPARE(combo.sedi.CercaSede(luoghi.idMagazzino), 0);
    QCOMPARE(combo.sedi.CercaSede(luoghi.idAltro), 0);
    QCOMPARE(combo.sedi.CercaMagazzino(luoghi.idAltro), 0);
    QCOMPARE(combo.sedi.CercaMagazzino(luoghi.idNipote), 0);
    QCOMPARE(combo.sedi.CercaSede(987654), 0);
    QCOMPARE(combo.sedi.CercaMagazzino(-1), 0);
}

void TestSedi::ilLuogoSceltoEComeLoTieneLaColonnaENullPerSede() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const LuoghiCompleti luoghi(ambiente);
    const long fondo = ambiente.Crea("02", QStringLiteral("Fondo"), luoghi.istituto);
    ComboDeiLuoghi combo(luoghi.idIstituto);

    // A place chosen: its key, as the column holds it.
    combo.cmbSede.setCurrentIndex(combo.sedi.CercaSede(luoghi.idSede2));
    combo.cmbMagazzino.setCurrentIndex(combo.sedi.CercaMagazzino(luoghi.idMagazzino));
    QCOMPARE(combo.sedi.Sede(), QVariant(qlonglong(luoghi.idSede2)));
    QCOMPARE(combo.sedi.Magazzino(), QVariant(qlonglong(luoghi.idMagazzino)));
    ambiente.ScriviLuoghi(ComplessiDoc, fondo, combo.sedi.Sede(), combo.sedi.Magazzino());
    QCOMPARE(ambiente.Sede(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idSede2));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idMagazzino));

    // "Sede", the institute itself: a Null of the column's kind, which every backend binds.
    combo.cmbSede.setCurrentIndex(0);
    combo.cmbMagazzino.setCurrentIndex(0);
    QVERIFY(combo.sedi.Sede().isNull());
    QVERIFY(combo.sedi.Magazzino().isNull());
    QCOMPARE(combo.sedi.Sede().metaType(), QMetaType::fromType<qlonglong>());
    ambiente.ScriviLuoghi(ComplessiDoc, fondo, combo.sedi.Sede(), combo.sedi.Magazzino());
    QVERIFY(ambiente.Sede(ComplessiDoc, fondo).isNull());
    QVERIFY(ambiente.Magazzino(ComplessiDoc, fondo).isNull());

    // No entry chosen at all (combos not yet filled): the number of an empty code.
    combo.cmbSede.setCurrentIndex(-1);
    combo.cmbMagazzino.setCurrentIndex(-1);
    QCOMPARE(combo.sedi.Sede(), QVariant(qlonglong(0)));
    QCOMPARE(combo.sedi.Magazzino(), QVariant(qlonglong(0)));
}

void TestSedi::laSedeScendeComeSedeEMagazzinoAiSoliFigliDirettiDellaTabella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const LuoghiCompleti luoghi(ambiente);
    const Albero albero(ambiente, luoghi);
    const auto [fondo, serie1, serie2, sottoserie, altroFondo, inventario, _] = albero;
    const QVariant magazzino = Id(luoghi.idMagazzino);

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
    const LuoghiCompleti luoghi(ambiente);
    ComboDeiLuoghi combo(luoghi.idIstituto);
    QCOMPARE(combo.cmbMagazzino.count(), 4);
    combo.cmbSede.setCurrentIndex(1);

    if (bChiudi)
        Sessione::cnn->Chiudi();
    else
        ambiente.Cnn().Esegui(QStringLiteral("DROP VIEW v_istituti"));
    combo.sedi.CaricaSedi(luoghi.idIstituto);
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    const Messaggio messaggio = ambiente.seam.Messaggi().at(0);
    QCOMPARE(messaggio.sTitolo, QStringLiteral("Errore T5"));
    QCOMPARE(messaggio.icona, Icona::Critica);
    QCOMPARE(messaggio.pulsanti, Pulsanti::Ok);
    QVERIFY2(messaggio.sTesto.contains(sParola, Qt::CaseInsensitive), qPrintable(messaggio.sTesto));
    QCOMPARE(Voci(combo.cmbSede), QStringList{QStringLiteral("Sede")});
    QCOMPARE(Voci(combo.cmbMagazzino), QStringList{QStringLiteral("Sede")});
    QCOMPARE(Chiavi(combo.cmbSede), QList<qlonglong>{0});
    // What was stored finds "Sede", and "Sede" is Null.
    combo.cmbSede.setCurrentIndex(combo.sedi.CercaSede(luoghi.idSede));
    QCOMPARE(combo.cmbSede.currentIndex(), 0);
    QVERIFY(combo.sedi.Sede().isNull());
}

void TestSedi::ilSalvaDelComplessoPortaLaSedeAiSuoiFigliEANessunAltro() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Ambiente ambiente(backend);
    const LuoghiCompleti luoghi(ambiente);
    const Albero albero(ambiente, luoghi);
    const long fondo = albero.fondo;
    const long serie = albero.serie1;
    const long inventario = albero.inventarioDelFondo;

    ucComplesso editore;
    editore.Init(false, nullptr);
    editore.Mostra(fondo);
    editore.Modifica();
    ScegliChiave(&editore, "cmbSede", luoghi.idSede2);
    ScegliChiave(&editore, "cmbMagazzino", luoghi.idSede);
    editore.Salva(fondo);
    QCOMPARE(ambiente.seam.Messaggi().size(), 0);

    // The record keeps the warehouse chosen; its child takes the seat as both.
    QCOMPARE(ambiente.Sede(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idSede2));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, fondo).toLongLong(), qlonglong(luoghi.idSede));
    QCOMPARE(ambiente.Sede(ComplessiDoc, serie).toLongLong(), qlonglong(luoghi.idSede2));
    QCOMPARE(ambiente.Magazzino(ComplessiDoc, serie).toLongLong(), qlonglong(luoghi.idSede2));
    // The grandchild, the sibling and a child whose row is in another table keep theirs.
    for (long id : {albero.sottoserie, albero.altroFondo}) {
        QCOMPARE(ambiente.Sede(ComplessiDoc, id).toLongLong(), qlonglong(luoghi.idMagazzino));
        QCOMPARE(ambiente.Magazzino(ComplessiDoc, id).toLongLong(), qlonglong(luoghi.idMagazzino));
    }
    QCOMPARE(ambiente.Sede(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));
    QCOMPARE(ambiente.Magazzino(Inventari, inventario).toLongLong(), qlonglong(luoghi.idMagazzino));

    // Shown again, the record finds its places in the combos.
    editore.Mostra(fondo);
    QCOMPARE(Combo(&editore, "cmbSede")->currentText(),
             QStringLiteral("Sala dell'Archivio notarile"));
    QCOMPARE(Combo(&editore, "cmbMagazzino")->currentText(),
             QStringLiteral("Sede di Palazzo Guidiccioni"));
    editore.Mostra(serie);
    QCOMPARE(Combo(&editore, "cmbSede")->currentText(),
             QStringLiteral("Sala dell'Archivio notarile"));
    QCOMPARE(Combo(&editore, "cmbMagazzino")->currentText(),
             QStringLiteral("Sala dell'Archivio notarile"));
}

QTEST_MAIN(TestSedi)
#include "tst_sedi.moc"
