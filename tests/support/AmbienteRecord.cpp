#include "AmbienteRecord.h"

#include "IstitutiProva.h"
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

long AmbienteRecord::Crea(const char* tipo, const QString& nome, long padre) const {
    return ArchivioElementi::Crea(Cnn(), QLatin1String(tipo), nome, padre);
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

QVariant Id(long valore) {
    return QVariant(qlonglong(valore));
}

QVariant NullTesto() {
    return QVariant(QMetaType::fromType<QString>());
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
