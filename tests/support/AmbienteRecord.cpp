#include "AmbienteRecord.h"

#include "IstitutiProva.h"
#include "records/EditoreRecord.h"
#include "records/ucPergamena.h"
#include "records/ucSigillo.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QSqlRecord>
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

QVariantMap AmbienteRecord::RigaIntera(const QString& tabella, const QString& chiave,
                                       long valore) const {
    QSqlQuery query = Cnn().Esegui(
        QStringLiteral("SELECT * FROM %1 WHERE %2 = ?").arg(tabella, chiave), {Id(valore)});
    QVariantMap riga;
    if (!query.next())
        return riga;
    const QSqlRecord record = query.record();
    for (int i = 0; i < record.count(); ++i)
        riga.insert(record.fieldName(i).toLower(), query.value(i));
    return riga;
}

void AmbienteRecord::RifiutaAggiornamento(const QString& tabella, const QString& sCondizione,
                                          const QString& sMessaggio) const {
    if (banca.Tipo() == TipoBackend::SQLite) {
        Cnn().Esegui(QStringLiteral("CREATE TRIGGER prova_rifiuta BEFORE UPDATE ON %1 FOR EACH "
                                    "ROW WHEN %2 BEGIN SELECT RAISE(ABORT, '%3'); END")
                         .arg(tabella, sCondizione, sMessaggio));
        return;
    }
    Cnn().Esegui(QStringLiteral("CREATE FUNCTION prova_rifiuta() RETURNS trigger LANGUAGE plpgsql "
                                "AS $$ BEGIN IF %1 THEN RAISE EXCEPTION '%2'; END IF; RETURN NEW; "
                                "END $$")
                     .arg(sCondizione, sMessaggio));
    Cnn().Esegui(QStringLiteral("CREATE TRIGGER prova_rifiuta BEFORE UPDATE ON %1 FOR EACH ROW "
                                "EXECUTE FUNCTION prova_rifiuta()")
                     .arg(tabella));
}

AmbientePergamene::AmbientePergamene(TipoBackend tipo, QString tabella)
    : AmbienteRecord(tipo, std::move(tabella),
                     {"TraditioPG.txt", "TipologiaIcoSG.txt", "FormaSG.txt", "MateriaSG.txt",
                      "TipologiaSG.txt", "ApposizioneSG.txt", "RapportoDocSG.txt",
                      "TipologiaDGSG.txt"}) {}

QVariant AmbientePergamene::ColonnaPG(const QString& tabella, const QString& colonna,
                                      long idPergamena) const {
    return Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Pergamena = ?").arg(colonna, tabella),
                  {Id(idPergamena)});
}

long AmbientePergamene::IdPergamena(long idElemento) const {
    return ColonnaDi(QStringLiteral("Pergamene"), QStringLiteral("ID_Pergamena"), idElemento)
        .toInt();
}

QVariant AmbientePergamene::Tipo(const QString& colonna, long idElemento) const {
    return Valore(QStringLiteral("SELECT %1 FROM SGTipo WHERE ID_Sigillo = (SELECT ID_Sigillo "
                                 "FROM Sigilli WHERE ID_Elemento = ?)")
                      .arg(colonna),
                  {Id(idElemento)});
}

long AmbientePergamene::IdSigillo(long idElemento) const {
    return ColonnaDi(QStringLiteral("Sigilli"), QStringLiteral("ID_Sigillo"), idElemento).toInt();
}

AmbientePergamene::Albero AmbientePergamene::CreaPergamena(const QString& sSegnatura) const {
    Albero a{};
    a.istituto = CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    a.inventario = Crea("03", QStringLiteral("Inventario"), a.istituto);
    a.pergamena = Crea("05", sSegnatura, a.inventario);
    return a;
}

AmbientePergamene::PergamenaCreata AmbientePergamene::CreaPergamenaConRiga() const {
    const Albero a = CreaPergamena();
    return {a, a.pergamena, IdPergamena(a.pergamena)};
}

EditoreOspitato<ucPergamena> OspitePergamena(long padre) {
    return {"05", padre, &ucPergamena::OkNuovaPergamena};
}

EditoreOspitato<ucSigillo> OspiteSigillo(long padre) {
    return {"06", padre, &ucSigillo::OkNuovoSigillo};
}

void Compila(ucPergamena& editore) {
    Riga(&editore, 0)->setText(QStringLiteral("Perg. 12"));
    Riga(&editore, 36)->setText(QStringLiteral("1210 marzo 3"));
    Riga(&editore, 23)->setText(QStringLiteral("320x210"));
    Riga(&editore, 21)->setText(QStringLiteral("Pergamena"));
    Combo(&editore, "cmbTraditio")->setCurrentIndex(0);
    Riga(&editore, 33)->setText(QStringLiteral("03/03/1210"));
    Riga(&editore, 15)->setText(QStringLiteral("Maria Rossi"));
    Riga(&editore, 1)->setText(QStringLiteral("03/03/1210"));
    Riga(&editore, 27)->setText(QStringLiteral("2"));
    Riga(&editore, 26)->setText(QStringLiteral("1"));
    Blocco(&editore, 4)->setPlainText(QStringLiteral("Vendita di una terra"));
    Riga(&editore, 2)->setText(QStringLiteral("Pisa"));
}

void Compila(ucSigillo& editore) {
    Riga(&editore, 0)->setText(QStringLiteral("Sigillo del comune"));
    Combo(&editore, "cmbMat")->setCurrentIndex(0);
    Riga(&editore, 43)->setText(QStringLiteral("sec. XIII"));
    Riga(&editore, 12)->setText(QStringLiteral("Maria Rossi"));
    Combo(&editore, "cmbApp")->setCurrentIndex(0);
    Riga(&editore, 6)->setText(QStringLiteral("rosso"));
    Riga(&editore, 28)->setText(QStringLiteral("buono"));
    Combo(&editore, "cmbDoc")->setCurrentIndex(1);
    Riga(&editore, 2)->setText(QStringLiteral("1250"));
    Riga(&editore, 3)->setText(QStringLiteral("1260"));
    Combo(&editore, "cmbTipol")->setCurrentIndex(0);
}

DocumentoMag::DocumentoMag() {
    Scrivi(cartella.path() + QStringLiteral("/scansioni/0001.tif"), "immagine");
    sDoc = cartella.path() + QStringLiteral("/scansioni/mag.xml");
    Scrivi(sDoc, "<?xml version=\"1.0\"?>\n<metadigit><img><sequence_number>1"
                 "</sequence_number><nomenclature>c. 1r</nomenclature>"
                 "<file xlink:href=\"./0001.tif\"/></img></metadigit>\n");
    Sessione::sParam01 = cartella.path() + QStringLiteral("/repo");
    Sessione::sParam12 = QStringLiteral("http://archivio.example.it/img");
    QDir().mkpath(Sessione::sParam01);
}

void DocumentoMag::Scrivi(const QString& percorso, const QByteArray& contenuto) {
    QDir().mkpath(QFileInfo(percorso).absolutePath());
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(contenuto) != contenuto.size())
        qFatal("can't write the test file");
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

void ScriviTesto(const QWidget* editore, int n, const QString& testo) {
    if (QLineEdit* riga = Riga(editore, n))
        riga->setText(testo);
    else
        Blocco(editore, n)->setPlainText(testo);
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

QString Accesi(const QList<const QPushButton*>& pulsanti) {
    QString s;
    for (const QPushButton* p : pulsanti)
        s += p->isEnabled() ? u'1' : u'0';
    return s;
}

QStringList Voci(const QComboBox* cmb) {
    QStringList voci;
    for (int i = 0; i < cmb->count(); ++i)
        voci << QStringLiteral("%1=%2").arg(cmb->itemData(i).toLongLong()).arg(cmb->itemText(i));
    return voci;
}

QComboBox* Indice(const QWidget* editore, const char* nome, int i) {
    return editore->findChild<QComboBox*>(QStringLiteral("%1(%2)").arg(QLatin1String(nome)).arg(i));
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

void RifiutatoAllUscita(const PiattaformaScriptata& seam, QLineEdit* casella, const QString& sTesto,
                        QLineEdit* altra, const QString& sMessaggio, int& iAttesi) {
    casella->setFocus();
    casella->setText(sTesto);
    QTest::mouseClick(altra, Qt::LeftButton);
    ++iAttesi;
    QCOMPARE(seam.Messaggi().size(), iAttesi);
    QCOMPARE(seam.Messaggi().constLast().sTesto, sMessaggio);
    QCOMPARE(seam.Messaggi().constLast().sTitolo, QStringLiteral("Attenzione"));
    QVERIFY2(casella->hasFocus(), qPrintable(sTesto));
}

void AccettatoAllUscita(const PiattaformaScriptata& seam, QLineEdit* casella, const QString& sTesto,
                        QLineEdit* altra, int iAttesi) {
    casella->setFocus();
    casella->setText(sTesto);
    QTest::mouseClick(altra, Qt::LeftButton);
    QCOMPARE(seam.Messaggi().size(), iAttesi);
    QVERIFY2(altra->hasFocus(), qPrintable(sTesto));
}

void MostraInModifica(HostEditore& ospite, long id) {
    ospite.MostraElemento(id);
    ospite.cmdModifica->click();
}

bool InModifica(HostEditore& ospite, long id) {
    if (!Attiva(ospite))
        return false;
    MostraInModifica(ospite, id);
    return true;
}

QStringList OrdineDelFuoco(const QWidget* primo, const QStringList& controlli) {
    QStringList visti;
    const QWidget* campo = primo;
    for (int i = 0; i < 1000 && visti.size() < controlli.size(); ++i) {
        if (controlli.contains(campo->objectName()) && !visti.contains(campo->objectName()))
            visti << campo->objectName();
        campo = campo->nextInFocusChain();
    }
    return visti;
}

QString DopoNelFuoco(const QWidget* editore, const QString& sNome) {
    const QWidget* w = editore->findChild<QWidget*>(sNome);
    const QWidget* prossimo = w->nextInFocusChain();
    while (prossimo != nullptr && w->isAncestorOf(prossimo))
        prossimo = prossimo->nextInFocusChain();
    return prossimo == nullptr ? QString() : prossimo->objectName();
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
