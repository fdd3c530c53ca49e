#include "AmbienteRecord.h"

#include "IstitutiProva.h"
#include "records/EditoreRecord.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QtTest>
#include <utility>

AmbienteRecord::AmbienteRecord(TipoBackend tipo, QString tabella,
                               std::initializer_list<const char*> liste, const QStringList& script)
    : sTabella(std::move(tabella))
    , banca(tipo, script) {
    for (const char* nome : liste) {
        QFile lista(QStringLiteral(TABELLION_SORGENTI "/site/") + QLatin1String(nome));
        if (lista.open(QIODevice::ReadOnly))
            cartella.Scrivi(QLatin1String(nome), lista.readAll());
    }
    Sessione::cnn = banca.Apri();
}

AmbienteRecord::~AmbienteRecord() {
    Sessione::cnn.reset();
}

const Connessione& AmbienteRecord::Cnn() const {
    return *Sessione::cnn;
}

QVariant AmbienteRecord::Valore(const QString& sql, std::initializer_list<QVariant> valori) const {
    QSqlQuery query = Cnn().Esegui(sql, valori);
    return query.next() ? query.value(0) : QVariant();
}

QVariant AmbienteRecord::ColonnaDi(const QString& tabella, const QString& colonna,
                                   long idElemento) const {
    return Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?").arg(colonna, tabella),
                  {Id(idElemento)});
}

QVariant AmbienteRecord::Colonna(const QString& colonna, long idElemento) const {
    return ColonnaDi(sTabella, colonna, idElemento);
}

QVariant AmbienteRecord::ColonnaElemento(const QString& colonna, long idElemento) const {
    return ColonnaDi(QStringLiteral("Elementi"), colonna, idElemento);
}

bool AmbienteRecord::Nullo(const QString& colonna, long idElemento) const {
    return Colonna(colonna, idElemento).isNull();
}

void AmbienteRecord::Scrivi(const QString& colonne, std::initializer_list<QVariant> valori) const {
    Cnn().Esegui(QStringLiteral("UPDATE %1 SET %2 WHERE ID_Elemento = ?").arg(sTabella, colonne),
                 valori);
}

QVariant AmbienteRecord::Sede(const QString& tabella, long idElemento) const {
    return ColonnaDi(tabella, QStringLiteral("ID_IstitutoSede"), idElemento);
}

QVariant AmbienteRecord::Magazzino(const QString& tabella, long idElemento) const {
    return ColonnaDi(tabella, QStringLiteral("ID_IstitutoMag"), idElemento);
}

QVariant AmbienteRecord::Sede(long idElemento) const {
    return Sede(sTabella, idElemento);
}

QVariant AmbienteRecord::Magazzino(long idElemento) const {
    return Magazzino(sTabella, idElemento);
}

void AmbienteRecord::ScriviLuoghi(const QString& tabella, long idElemento, const QVariant& sede,
                                  const QVariant& magazzino) const {
    Cnn().Esegui(QStringLiteral(
                     "UPDATE %1 SET ID_IstitutoSede = ?, ID_IstitutoMag = ? WHERE ID_Elemento = ?")
                     .arg(tabella),
                 {sede, magazzino, Id(idElemento)});
}

void AmbienteRecord::ScriviLuoghi(long idElemento, const QVariant& sede,
                                  const QVariant& magazzino) const {
    ScriviLuoghi(sTabella, idElemento, sede, magazzino);
}

long AmbienteRecord::Crea(const char* tipo, const QString& nome, long padre) const {
    return ArchivioElementi::Crea(Cnn(), QLatin1String(tipo), nome, padre);
}

AmbienteRecord::ElementoInIstituto AmbienteRecord::CreaInIstituto(const char* tipo,
                                                                  const QString& nome) const {
    const long istituto = CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    return {istituto, Crea(tipo, nome, istituto)};
}

long AmbienteRecord::CreaIstituto(const QString& nome, const QString& tipologia, long padre) const {
    return IstitutiProva::Crea(Cnn(), nome, tipologia, padre);
}

long AmbienteRecord::IdIstituto(long idElemento) const {
    return IstitutiProva::IdIstituto(Cnn(), idElemento);
}

void AmbienteRecord::Collega(long complesso, long inventario) const {
    Cnn().Esegui(QStringLiteral("INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) "
                                "VALUES (?, ?, '')"),
                 {Id(complesso), Id(inventario)});
}

Luoghi::Luoghi(const AmbienteRecord& ambiente)
    : istituto(
          ambiente.CreaIstituto(QStringLiteral("Archivio di Stato di Lucca"), QStringLiteral("01")))
    , sede(ambiente.CreaIstituto(QStringLiteral("Sede di Palazzo Guidiccioni"),
                                 QStringLiteral("03"), istituto))
    , magazzino(ambiente.CreaIstituto(QStringLiteral("Deposito «San Romano»"), QStringLiteral("04"),
                                      istituto))
    , idIstituto(ambiente.IdIstituto(istituto))
    , idSede(ambiente.IdIstituto(sede))
    , idMagazzino(ambiente.IdIstituto(magazzino)) {}

QVariant Id(long valore) {
    return QVariant(qlonglong(valore));
}

QVariant NullTesto() {
    return QVariant(QMetaType::fromType<QString>());
}

QVariant NullChiave() {
    return QVariant(QMetaType::fromType<qlonglong>());
}

QLineEdit* Riga(const QWidget* editore, int n) {
    return editore->findChild<QLineEdit*>(QStringLiteral("Text1(%1)").arg(n));
}

QPlainTextEdit* Blocco(const QWidget* editore, int n) {
    return editore->findChild<QPlainTextEdit*>(QStringLiteral("Text1(%1)").arg(n));
}

QString Testo(const QWidget* editore, int n) {
    if (QLineEdit* riga = Riga(editore, n))
        return riga->text();
    return Blocco(editore, n)->toPlainText();
}

QLabel* Etichetta(const QWidget* editore, int n) {
    return editore->findChild<QLabel*>(QStringLiteral("Label1(%1)").arg(n));
}

QComboBox* Combo(const QWidget* editore, const char* nome) {
    return editore->findChild<QComboBox*>(QLatin1String(nome));
}

QPushButton* Pulsante(const QWidget* editore, const char* nome) {
    return editore->findChild<QPushButton*>(QLatin1String(nome));
}

void ScegliChiave(const QWidget* editore, const char* nome, long chiave) {
    QComboBox* combo = Combo(editore, nome);
    combo->setCurrentIndex(combo->findData(Id(chiave)));
}

QString Lungo(const QString& pezzo, int n) {
    QString testo;
    while (testo.size() < n)
        testo += pezzo;
    return testo.left(n);
}

bool Attiva(QWidget& finestra) {
    finestra.show();
    QApplication::setActiveWindow(&finestra);
    finestra.activateWindow();
    return QTest::qWaitForWindowActive(&finestra);
}

void LaSedeScendeAiFigliDiretti(const AmbienteRecord& ambiente, const char* tipo,
                                EditoreRecord& editore, const std::function<void()>& compila) {
    const Luoghi luoghi(ambiente);
    const long padre = ambiente.Crea(tipo, QStringLiteral("Padre"), luoghi.istituto);
    const long figlio1 = ambiente.Crea(tipo, QStringLiteral("Figlio 1"), padre);
    const long figlio2 = ambiente.Crea(tipo, QStringLiteral("Figlio 2"), padre);
    const long nipote = ambiente.Crea(tipo, QStringLiteral("Nipote"), figlio1);
    const long vicino = ambiente.Crea(tipo, QStringLiteral("Vicino"), luoghi.istituto);
    // Before: no seat, and the warehouse.
    for (long id : {figlio1, figlio2, nipote, vicino})
        ambiente.ScriviLuoghi(id, NullChiave(), Id(luoghi.idMagazzino));

    editore.Init();
    editore.Mostra(padre);
    editore.Modifica();
    compila();
    ScegliChiave(&editore, "cmbSede", luoghi.idSede);
    ScegliChiave(&editore, "cmbMagazzino", luoghi.idMagazzino);
    editore.Salva(padre);
    QCOMPARE(ambiente.Sede(padre).toLongLong(), qlonglong(luoghi.idSede));
    QCOMPARE(ambiente.Magazzino(padre).toLongLong(), qlonglong(luoghi.idMagazzino));
    // The direct children take the seat as seat and as warehouse.
    for (long figlio : {figlio1, figlio2}) {
        QCOMPARE(ambiente.Sede(figlio).toLongLong(), qlonglong(luoghi.idSede));
        QCOMPARE(ambiente.Magazzino(figlio).toLongLong(), qlonglong(luoghi.idSede));
    }
    for (long altro : {nipote, vicino}) {
        QVERIFY(ambiente.Sede(altro).isNull());
        QCOMPARE(ambiente.Magazzino(altro).toLongLong(), qlonglong(luoghi.idMagazzino));
    }

    // "Sede" on the parent: Null goes down to the children, in both places.
    editore.Modifica();
    Combo(&editore, "cmbSede")->setCurrentIndex(0);
    editore.Salva(padre);
    for (long figlio : {figlio1, figlio2}) {
        QVERIFY(ambiente.Sede(figlio).isNull());
        QVERIFY(ambiente.Magazzino(figlio).isNull());
    }
    QCOMPARE(ambiente.Magazzino(nipote).toLongLong(), qlonglong(luoghi.idMagazzino));
}

void RinominaAttraversoLOspite(const AmbienteRecord& ambiente, HostEditore& ospite,
                               const QWidget* editore, long idElemento, const QString& sPrima,
                               const QString& sNuovo) {
    ospite.cmdModifica->click();
    Riga(editore, 0)->setText(sNuovo);
    ospite.cmdAnnulla->click();
    QCOMPARE(Testo(editore, 0), sPrima);
    ospite.cmdModifica->click();
    Riga(editore, 0)->setText(sNuovo);
    ospite.cmdConferma->click();
    QCOMPARE(Testo(editore, 0), sNuovo);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), idElemento).toString(), sNuovo);
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Denominazione"), idElemento).toString(),
             sNuovo);
}
