// The dialog of the other names of a complesso, of a finding aid and of the three kinds of
// producer: the list it reads, the names it adds, changes and deletes in the table of its mode,
// the two states of its buttons and the boxes it shows, on SQLite and on PostgreSQL.

#include "authorities/frmAltreDenominazioni.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"

#include "BancaDatiProva.h"
#include "Modali.h"
#include "PiattaformaScriptata.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

namespace {

// The table of each mode and the column of its record's key.
struct Modo {
    QString sTipo;
    QString sTabella;
    QString sChiave;
};

const QList<Modo>& Modi() {
    static const QList<Modo> modi = {
        {QStringLiteral("CD"), QStringLiteral("ComplessiDocDenominazioni"),
         QStringLiteral("ID_ComplessoDoc")},
        {QStringLiteral("IN"), QStringLiteral("InventariDenominazioni"),
         QStringLiteral("ID_Inventario")},
        {QStringLiteral("PE"), QStringLiteral("PersoneDenominazioni"),
         QStringLiteral("ID_Persona")},
        {QStringLiteral("FA"), QStringLiteral("FamiglieDenominazioni"),
         QStringLiteral("ID_Famiglia")},
        {QStringLiteral("EN"), QStringLiteral("EntiDenominazioni"), QStringLiteral("ID_Ente")},
    };
    return modi;
}

Modo ModoDi(const QString& sTipo) {
    for (const Modo& modo : Modi()) {
        if (modo.sTipo == sTipo) {
            return modo;
        }
    }
    qFatal("unknown mode %s", qPrintable(sTipo));
}

QVariant Valore(const QString& sSql, std::initializer_list<QVariant> valori = {}) {
    QSqlQuery query = Sessione::cnn->Esegui(sSql, valori);
    return query.next() ? query.value(0) : QVariant();
}

qint64 Conta(const QString& sTabella) {
    return Valore(QStringLiteral("SELECT COUNT(*) FROM %1").arg(sTabella)).toLongLong();
}

// A record of the mode's kind, and its own key (for a producer the key of its kind).
qint64 NuovoRecord(const QString& sTipo, const QString& sNome) {
    const Connessione& c = *Sessione::cnn;
    if (sTipo == QLatin1String("CD") || sTipo == QLatin1String("IN")) {
        const bool bComplesso = sTipo == QLatin1String("CD");
        const long lElemento = ArchivioElementi::Crea(
            c, bComplesso ? QStringLiteral("02") : QStringLiteral("03"), sNome, 0);
        return Valore(bComplesso ? QStringLiteral("SELECT ID_ComplessoDoc FROM ComplessiDoc "
                                                  "WHERE ID_Elemento = ?")
                                 : QStringLiteral("SELECT ID_Inventario FROM Inventari "
                                                  "WHERE ID_Elemento = ?"),
                      {static_cast<qlonglong>(lElemento)})
            .toLongLong();
    }
    const QString sTipoSoggetto = sTipo == QLatin1String("PE")   ? QStringLiteral("P")
                                  : sTipo == QLatin1String("FA") ? QStringLiteral("F")
                                                                 : QStringLiteral("E");
    const qint64 lSoggetto = c.Inserisci(
        QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
        {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")}, {sNome, sTipoSoggetto});
    const QString sSql =
        sTipo == QLatin1String("PE")
            ? QStringLiteral("SELECT ID_Persona FROM Persone WHERE ID_Soggetto = ?")
        : sTipo == QLatin1String("FA")
            ? QStringLiteral("SELECT ID_Famiglia FROM Famiglie WHERE ID_Soggetto = ?")
            : QStringLiteral("SELECT ID_Ente FROM Enti WHERE ID_Soggetto = ?");
    return Valore(sSql, {lSoggetto}).toLongLong();
}

qint64 NuovaDenominazione(const Modo& modo, qint64 lRecord, const QString& sTesto) {
    return Sessione::cnn->Inserisci(modo.sTabella, QStringLiteral("ID_Denominazione"),
                                    {modo.sChiave, QStringLiteral("AltraDenominazione")},
                                    {lRecord, sTesto});
}

// The names of a record as stored, by key.
QMap<qint64, QString> Denominazioni(const Modo& modo, qint64 lRecord) {
    QSqlQuery query = Sessione::cnn->Esegui(
        QStringLiteral("SELECT ID_Denominazione, AltraDenominazione FROM %1 WHERE %2 = ?")
            .arg(modo.sTabella, modo.sChiave),
        {lRecord});
    QMap<qint64, QString> nomi;
    while (query.next()) {
        nomi.insert(query.value(0).toLongLong(), query.value(1).toString());
    }
    return nomi;
}

// The dialog seen through its controls.
struct Dialogo {
    Dialogo()
        : finestra(std::make_unique<frmAltreDenominazioni>()) {}
    std::unique_ptr<frmAltreDenominazioni> finestra;

    QTreeWidget* lvwDB() const {
        return Controllo<QTreeWidget>(finestra.get(), QStringLiteral("lvwDB"));
    }
    QLineEdit* Text1() const {
        return Controllo<QLineEdit>(finestra.get(), QStringLiteral("Text1"));
    }
    QGroupBox* Frame1() const {
        return Controllo<QGroupBox>(finestra.get(), QStringLiteral("Frame1"));
    }
    QPushButton* Pulsante(const char* nome) const {
        return Controllo<QPushButton>(finestra.get(), QLatin1String(nome));
    }
    // The names of the enabled buttons, in the order of the form.
    QStringList Abilitati() const {
        QStringList nomi;
        for (const char* nome :
             {"cmdNuovaDenom", "cmdModifica", "cmdCancella", "cmdConferma", "cmdAnnulla"}) {
            if (Pulsante(nome)->isEnabled()) {
                nomi.append(QLatin1String(nome));
            }
        }
        return nomi;
    }
    QStringList Testi() const {
        QStringList testi;
        for (int i = 0; i < lvwDB()->topLevelItemCount(); ++i) {
            testi.append(lvwDB()->topLevelItem(i)->text(0));
        }
        return testi;
    }
    QStringList Chiavi() const {
        QStringList chiavi;
        for (int i = 0; i < lvwDB()->topLevelItemCount(); ++i) {
            chiavi.append(lvwDB()->topLevelItem(i)->data(0, Qt::UserRole).toString());
        }
        return chiavi;
    }
    // A click of the mouse on a row of the list.
    void Clicca(int iRiga) const {
        QTreeWidget* lista = lvwDB();
        QTreeWidgetItem* riga = lista->topLevelItem(iRiga);
        QVERIFY(riga != nullptr);
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                          lista->visualItemRect(riga).center());
    }
    void Mostra() const {
        finestra->show();
        QVERIFY(QTest::qWaitForWindowExposed(finestra.get()));
    }
};

const QStringList Consultazione = {QStringLiteral("cmdNuovaDenom")};
const QStringList SuUnaRiga = {QStringLiteral("cmdNuovaDenom"), QStringLiteral("cmdModifica"),
                               QStringLiteral("cmdCancella")};
const QStringList Inserimento = {QStringLiteral("cmdConferma"), QStringLiteral("cmdAnnulla")};

} // namespace

class TestAltreDenominazioni : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void ogniTipoAggiungeModificaECancellaNellaSuaTabella_data();
    void ogniTipoAggiungeModificaECancellaNellaSuaTabella();
    void ilDialogoMostraLeDenominazioniDelRecordEApreLaPrima_data();
    void ilDialogoMostraLeDenominazioniDelRecordEApreLaPrima();
    void unRecordSenzaAltreDenominazioniMostraUnaListaVuotaConSoloNuova_data();
    void unRecordSenzaAltreDenominazioniMostraUnaListaVuotaConSoloNuova();
    void nuovaDenominazioneApreIlTestoVuotoEChiudeLaLista_data();
    void nuovaDenominazioneApreIlTestoVuotoEChiudeLaLista();
    void modificaApreIlTestoConLaDenominazioneDellaRiga_data();
    void modificaApreIlTestoConLaDenominazioneDellaRiga();
    void spostarsiConIlTastoSuUnaRigaLaMostraComeUnClic();
    void annullaSvuotaEChiudeIlTestoENonCambiaNulla_data();
    void annullaSvuotaEChiudeIlTestoENonCambiaNulla();
    void unTestoVuotoChiedeDiInserireLaDenominazione_data();
    void unTestoVuotoChiedeDiInserireLaDenominazione();
    void unaDenominazioneDiSoliSpaziSiSalvaVuota_data();
    void unaDenominazioneDiSoliSpaziSiSalvaVuota();
    void unaModificaPuoSvuotareLaDenominazione_data();
    void unaModificaPuoSvuotareLaDenominazione();
    void unTipoSconosciutoMostraUnaListaVuotaENonAggiungeANessunaTabella_data();
    void unTipoSconosciutoMostraUnaListaVuotaENonAggiungeANessunaTabella();
    void rispondereNoAllaDomandaNonCancellaNulla_data();
    void rispondereNoAllaDomandaNonCancellaNulla();
    void nomiConApostrofiEAccentiSiSalvanoComeScritti_data();
    void nomiConApostrofiEAccentiSiSalvanoComeScritti();
    void unErroreDelDatabaseAlCaricamentoDaErroreA3_data();
    void unErroreDelDatabaseAlCaricamentoDaErroreA3();
    void unErroreDelDatabaseInConfermaDaErroreA2ELasciaLaListaComEra_data();
    void unErroreDelDatabaseInConfermaDaErroreA2ELasciaLaListaComEra();
    void unErroreDelDatabaseInCancellaDaErroreA1ELasciaLaRiga_data();
    void unErroreDelDatabaseInCancellaDaErroreA1ELasciaLaRiga();

private:
    std::unique_ptr<PiattaformaScriptata> seam;
    std::unique_ptr<BancaDatiProva> banca;
    // A fresh database of the row's backend, open as the session's connection.
    void Apri(TipoBackend tipo);
    void VerificaErrore(const QString& sTitolo);
};

void TestAltreDenominazioni::init() {
    Sessione::Azzera();
    seam = std::make_unique<PiattaformaScriptata>();
}

void TestAltreDenominazioni::cleanup() {
    Sessione::Azzera();
    banca.reset();
    seam.reset();
}

void TestAltreDenominazioni::Apri(TipoBackend tipo) {
    banca = std::make_unique<BancaDatiProva>(tipo);
    Sessione::cnn = Connessione::Apri(banca->Stringa());
}

void TestAltreDenominazioni::VerificaErrore(const QString& sTitolo) {
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTitolo, sTitolo);
    QCOMPARE(messaggi[0].icona, Icona::Critica);
    QCOMPARE(messaggi[0].pulsanti, Pulsanti::Ok);
    // The source, a line break, the description.
    const QStringList parti = messaggi[0].sTesto.split(QLatin1Char('\n'));
    QVERIFY2(parti.size() >= 2, qPrintable(messaggi[0].sTesto));
    QVERIFY2(!parti[0].isEmpty() && !parti[1].isEmpty(), qPrintable(messaggi[0].sTesto));
}

// --- The five tables -----------------------------------------------------------------------

void TestAltreDenominazioni::ogniTipoAggiungeModificaECancellaNellaSuaTabella_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("tipo");
    for (const auto& [nome, backend] : {std::pair{"sqlite", TipoBackend::SQLite},
                                        std::pair{"postgresql", TipoBackend::PostgreSQL}}) {
        for (const Modo& modo : Modi()) {
            QTest::addRow("%s %s", nome, qPrintable(modo.sTipo)) << backend << modo.sTipo;
        }
    }
}

void TestAltreDenominazioni::ogniTipoAggiungeModificaECancellaNellaSuaTabella() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, tipo);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(tipo);
    const qint64 lRecord = NuovoRecord(tipo, QStringLiteral("Comune di Siena"));
    const qint64 lAltro = NuovoRecord(tipo, QStringLiteral("Ospedale di Santa Maria"));
    const qint64 lAltrui = NuovaDenominazione(modo, lAltro, QStringLiteral("Spedale"));
    Sessione::sTipoAltreDen = tipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Mostra();
    QCOMPARE(d.finestra->windowTitle(), QStringLiteral("Altre Denominazioni"));
    QVERIFY(d.Testi().isEmpty());

    // Two names added: stored trimmed under the record, listed with their keys.
    d.Pulsante("cmdNuovaDenom")->click();
    QCOMPARE(d.finestra->Azione(), QStringLiteral("Nuova"));
    QTest::keyClicks(d.Text1(), QStringLiteral("  Comunit"));
    d.Text1()->insert(QStringLiteral("à di Siena  "));
    d.Pulsante("cmdConferma")->click();
    d.Pulsante("cmdNuovaDenom")->click();
    d.Text1()->setText(QStringLiteral("Repubblica di Siena"));
    d.Pulsante("cmdConferma")->click();
    QVERIFY2(seam->Messaggi().isEmpty(), qPrintable(seam->Messaggi().value(0).sTesto));

    QMap<qint64, QString> nomi = Denominazioni(modo, lRecord);
    QCOMPARE(nomi.size(), 2);
    const qint64 lPrima = nomi.firstKey();
    const qint64 lSeconda = nomi.lastKey();
    QCOMPARE(nomi.value(lPrima), QStringLiteral("Comunità di Siena"));
    QCOMPARE(nomi.value(lSeconda), QStringLiteral("Repubblica di Siena"));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Comunità di Siena"),
                                     QStringLiteral("Repubblica di Siena")}));
    QCOMPARE(d.Chiavi(), QStringList({QStringLiteral("ID%1").arg(lPrima),
                                      QStringLiteral("ID%1").arg(lSeconda)}));
    QCOMPARE(d.Abilitati(), Consultazione);
    QVERIFY(d.Text1()->text().isEmpty());
    QVERIFY(!d.Text1()->isEnabled());

    // The second changed, through a click on its row.
    d.Clicca(1);
    QCOMPARE(d.finestra->Chiave(), QStringLiteral("ID%1").arg(lSeconda));
    QCOMPARE(d.Text1()->text(), QStringLiteral("Repubblica di Siena"));
    QCOMPARE(d.Abilitati(), SuUnaRiga);
    d.Pulsante("cmdModifica")->click();
    QCOMPARE(d.finestra->Azione(), QStringLiteral("Modifica"));
    d.Text1()->setText(QStringLiteral("Stato senese"));
    d.Pulsante("cmdConferma")->click();
    nomi = Denominazioni(modo, lRecord);
    QCOMPARE(nomi.value(lPrima), QStringLiteral("Comunità di Siena"));
    QCOMPARE(nomi.value(lSeconda), QStringLiteral("Stato senese"));
    QCOMPARE(d.Testi(),
             QStringList({QStringLiteral("Comunità di Siena"), QStringLiteral("Stato senese")}));
    QCOMPARE(d.Abilitati(), Consultazione);

    // The first deleted, after the question.
    d.Clicca(0);
    QCOMPARE(d.finestra->Chiave(), QStringLiteral("ID%1").arg(lPrima));
    seam->risposte = {Risposta::Si};
    d.Pulsante("cmdCancella")->click();
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTesto, QStringLiteral("Sei sicuro di voler cancellare?"));
    QCOMPARE(messaggi[0].sTitolo, QStringLiteral("Cancella"));
    QCOMPARE(messaggi[0].pulsanti, Pulsanti::SiNo);
    QCOMPARE(messaggi[0].icona, Icona::Domanda);
    nomi = Denominazioni(modo, lRecord);
    QCOMPARE(nomi.keys(), QList<qint64>({lSeconda}));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Stato senese")}));
    QCOMPARE(d.Chiavi(), QStringList({QStringLiteral("ID%1").arg(lSeconda)}));
    QCOMPARE(d.Abilitati(), Consultazione);
    QVERIFY(d.Text1()->text().isEmpty());

    // The other record's name was never touched, and the other tables stayed empty.
    QCOMPARE(Denominazioni(modo, lAltro),
             (QMap<qint64, QString>{{lAltrui, QStringLiteral("Spedale")}}));
    for (const Modo& altro : Modi()) {
        if (altro.sTipo != tipo) {
            QCOMPARE(Conta(altro.sTabella), 0);
        }
    }

    // Read again, the dialog shows what was stored.
    Dialogo riletto;
    QCOMPARE(riletto.Testi(), QStringList({QStringLiteral("Stato senese")}));
}

void TestAltreDenominazioni::ilDialogoMostraLeDenominazioniDelRecordEApreLaPrima_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("tipo");
    QTest::newRow("sqlite IN") << TipoBackend::SQLite << QStringLiteral("IN");
    QTest::newRow("postgresql EN") << TipoBackend::PostgreSQL << QStringLiteral("EN");
}

void TestAltreDenominazioni::ilDialogoMostraLeDenominazioniDelRecordEApreLaPrima() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, tipo);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(tipo);
    const qint64 lRecord = NuovoRecord(tipo, QStringLiteral("Abbazia di Vallombrosa"));
    const qint64 lAltro = NuovoRecord(tipo, QStringLiteral("Badia di Passignano"));
    const qint64 lPrima = NuovaDenominazione(modo, lRecord, QStringLiteral("  Vallis Umbrosa "));
    NuovaDenominazione(modo, lAltro, QStringLiteral("Passignano"));
    const qint64 lSeconda = NuovaDenominazione(modo, lRecord,
                                               QStringLiteral("Monastero di San "
                                                              "Fedele"));
    Sessione::sTipoAltreDen = tipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    QCOMPARE(d.lvwDB()->columnCount(), 1);
    QCOMPARE(d.lvwDB()->headerItem()->text(0), QStringLiteral("Altre Denominazioni "));
    QVERIFY(!d.lvwDB()->rootIsDecorated());
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Vallis Umbrosa"),
                                     QStringLiteral("Monastero di San Fedele")}));
    QCOMPARE(d.Chiavi(), QStringList({QStringLiteral("ID%1").arg(lPrima),
                                      QStringLiteral("ID%1").arg(lSeconda)}));
    QVERIFY(d.lvwDB()->selectedItems().isEmpty());
    // The first row's click has run.
    QCOMPARE(d.finestra->Chiave(), QStringLiteral("ID%1").arg(lPrima));
    QCOMPARE(d.Text1()->text(), QStringLiteral("Vallis Umbrosa"));
    QVERIFY(!d.Text1()->isEnabled());
    QCOMPARE(d.Text1()->maxLength(), 256);
    QVERIFY(d.Frame1()->isEnabled());
    QCOMPARE(d.Abilitati(), SuUnaRiga);
    QVERIFY(d.finestra->Azione().isEmpty());
    QVERIFY(seam->Messaggi().isEmpty());
}

void TestAltreDenominazioni::unRecordSenzaAltreDenominazioniMostraUnaListaVuotaConSoloNuova_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::unRecordSenzaAltreDenominazioniMostraUnaListaVuotaConSoloNuova() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const qint64 lRecord = NuovoRecord(QStringLiteral("FA"), QStringLiteral("Medici"));
    NuovaDenominazione(ModoDi(QStringLiteral("FA")),
                       NuovoRecord(QStringLiteral("FA"), QStringLiteral("Strozzi")),
                       QStringLiteral("Strozzi di Firenze"));
    Sessione::sTipoAltreDen = QStringLiteral("FA");
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    QCOMPARE(d.lvwDB()->topLevelItemCount(), 0);
    QCOMPARE(d.lvwDB()->headerItem()->text(0), QStringLiteral("Altre Denominazioni "));
    QCOMPARE(d.Abilitati(), Consultazione);
    QVERIFY(d.Text1()->text().isEmpty());
    QVERIFY(!d.Text1()->isEnabled());
    QVERIFY(d.finestra->Chiave().isEmpty());
    QVERIFY(seam->Messaggi().isEmpty());
}

// --- The two states --------------------------------------------------------------------------

void TestAltreDenominazioni::nuovaDenominazioneApreIlTestoVuotoEChiudeLaLista_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::nuovaDenominazioneApreIlTestoVuotoEChiudeLaLista() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("CD"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Fondo"));
    NuovaDenominazione(modo, lRecord, QStringLiteral("Archivio Bonporti"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Mostra();
    QCOMPARE(d.Text1()->text(), QStringLiteral("Archivio Bonporti"));
    d.Pulsante("cmdNuovaDenom")->click();
    QVERIFY(d.Text1()->isEnabled());
    QVERIFY(d.Text1()->text().isEmpty());
    QCOMPARE(d.finestra->focusWidget(), d.Text1());
    QVERIFY(!d.Frame1()->isEnabled());
    QVERIFY(!d.lvwDB()->isEnabled());
    QCOMPARE(d.Abilitati(), Inserimento);
}

void TestAltreDenominazioni::modificaApreIlTestoConLaDenominazioneDellaRiga_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::modificaApreIlTestoConLaDenominazioneDellaRiga() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("PE"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Lorenzo de' Medici"));
    NuovaDenominazione(modo, lRecord, QStringLiteral("Il Magnifico"));
    const qint64 lSeconda = NuovaDenominazione(modo, lRecord, QStringLiteral("Laurentius Medices"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Mostra();
    d.Clicca(1);
    d.Pulsante("cmdModifica")->click();
    QCOMPARE(d.finestra->Chiave(), QStringLiteral("ID%1").arg(lSeconda));
    QCOMPARE(d.Text1()->text(), QStringLiteral("Laurentius Medices"));
    QVERIFY(d.Text1()->isEnabled());
    QVERIFY(!d.Frame1()->isEnabled());
    QCOMPARE(d.Abilitati(), Inserimento);
}

void TestAltreDenominazioni::spostarsiConIlTastoSuUnaRigaLaMostraComeUnClic() {
    Apri(TipoBackend::SQLite);
    const Modo modo = ModoDi(QStringLiteral("CD"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Fondo"));
    NuovaDenominazione(modo, lRecord, QStringLiteral("Archivio vecchio"));
    const qint64 lSeconda = NuovaDenominazione(modo, lRecord, QStringLiteral("Archivio nuovo"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Mostra();
    d.Clicca(0);
    d.Pulsante("cmdAnnulla")->click();
    QTest::keyClick(d.lvwDB(), Qt::Key_Down);
    QCOMPARE(d.finestra->Chiave(), QStringLiteral("ID%1").arg(lSeconda));
    QCOMPARE(d.Text1()->text(), QStringLiteral("Archivio nuovo"));
    QCOMPARE(d.Abilitati(), SuUnaRiga);
}

void TestAltreDenominazioni::annullaSvuotaEChiudeIlTestoENonCambiaNulla_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::annullaSvuotaEChiudeIlTestoENonCambiaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("EN"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Comune di Rovereto"));
    const qint64 lNome = NuovaDenominazione(modo, lRecord, QStringLiteral("Roveredo"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Pulsante("cmdModifica")->click();
    d.Text1()->setText(QStringLiteral("Rovereto"));
    d.Pulsante("cmdAnnulla")->click();
    QVERIFY(d.Text1()->text().isEmpty());
    QVERIFY(!d.Text1()->isEnabled());
    QVERIFY(d.Frame1()->isEnabled());
    QCOMPARE(d.Abilitati(), Consultazione);

    d.Pulsante("cmdNuovaDenom")->click();
    d.Text1()->setText(QStringLiteral("Città di Rovereto"));
    d.Pulsante("cmdAnnulla")->click();
    QCOMPARE(d.Abilitati(), Consultazione);

    QCOMPARE(Denominazioni(modo, lRecord),
             (QMap<qint64, QString>{{lNome, QStringLiteral("Roveredo")}}));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Roveredo")}));
    QVERIFY(seam->Messaggi().isEmpty());
}

// --- Empty and blank names -------------------------------------------------------------------

void TestAltreDenominazioni::unTestoVuotoChiedeDiInserireLaDenominazione_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::unTestoVuotoChiedeDiInserireLaDenominazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("CD"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Fondo"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Pulsante("cmdNuovaDenom")->click();
    d.Pulsante("cmdConferma")->click();
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 1);
    QCOMPARE(messaggi[0].sTesto, QStringLiteral("Inserire Denominazione"));
    QCOMPARE(messaggi[0].sTitolo, QStringLiteral("Attenzione"));
    QCOMPARE(messaggi[0].pulsanti, Pulsanti::Ok);
    QCOMPARE(Conta(modo.sTabella), 0);
    QVERIFY(d.Testi().isEmpty());
    // The entry stays open for the name.
    QCOMPARE(d.Abilitati(), Inserimento);
    QVERIFY(d.Text1()->isEnabled());
}

void TestAltreDenominazioni::unaDenominazioneDiSoliSpaziSiSalvaVuota_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::unaDenominazioneDiSoliSpaziSiSalvaVuota() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("IN"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Inventario 1950"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Pulsante("cmdNuovaDenom")->click();
    d.Text1()->setText(QStringLiteral("   "));
    d.Pulsante("cmdConferma")->click();
    QVERIFY(seam->Messaggi().isEmpty());
    const QMap<qint64, QString> nomi = Denominazioni(modo, lRecord);
    QCOMPARE(nomi.size(), 1);
    QCOMPARE(nomi.first(), QString());
    QVERIFY(
        !Valore(QStringLiteral("SELECT AltraDenominazione FROM InventariDenominazioni")).isNull());
    QCOMPARE(d.Testi(), QStringList({QString()}));
    QCOMPARE(d.Chiavi(), QStringList({QStringLiteral("ID%1").arg(nomi.firstKey())}));
    QCOMPARE(d.Abilitati(), Consultazione);
}

void TestAltreDenominazioni::unaModificaPuoSvuotareLaDenominazione_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::unaModificaPuoSvuotareLaDenominazione() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("PE"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Cosimo il Vecchio"));
    const qint64 lNome = NuovaDenominazione(modo, lRecord, QStringLiteral("Pater Patriae"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Pulsante("cmdModifica")->click();
    d.Text1()->clear();
    d.Pulsante("cmdConferma")->click();
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Denominazioni(modo, lRecord), (QMap<qint64, QString>{{lNome, QString()}}));
    QCOMPARE(d.Testi(), QStringList({QString()}));
    QCOMPARE(d.Abilitati(), Consultazione);
}

// --- A mode that is none of the five ---------------------------------------------------------

void TestAltreDenominazioni::
    unTipoSconosciutoMostraUnaListaVuotaENonAggiungeANessunaTabella_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::unTipoSconosciutoMostraUnaListaVuotaENonAggiungeANessunaTabella() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    // Every table holds a name under the same key.
    QMap<QString, qint64> conteggi;
    qint64 lChiave = 0;
    for (const Modo& modo : Modi()) {
        lChiave =
            std::max(lChiave, NuovoRecord(modo.sTipo, QStringLiteral("Record ") + modo.sTipo));
    }
    for (const Modo& modo : Modi()) {
        NuovaDenominazione(modo, lChiave, QStringLiteral("Nome di ") + modo.sTipo);
        conteggi.insert(modo.sTabella, Conta(modo.sTabella));
    }
    Sessione::sTipoAltreDen = QStringLiteral("SG");
    Sessione::lIdAltreDen = static_cast<long>(lChiave);

    Dialogo d;
    QCOMPARE(d.lvwDB()->topLevelItemCount(), 0);
    QCOMPARE(d.Abilitati(), Consultazione);
    d.Pulsante("cmdNuovaDenom")->click();
    d.Text1()->setText(QStringLiteral("Sigillo di Siena"));
    d.Pulsante("cmdConferma")->click();
    QVERIFY(seam->Messaggi().isEmpty());
    for (const Modo& modo : Modi()) {
        QCOMPARE(Conta(modo.sTabella), conteggi.value(modo.sTabella));
    }
    QVERIFY(d.Testi().isEmpty());
    QCOMPARE(d.Abilitati(), Consultazione);
}

// --- The question --------------------------------------------------------------------------

void TestAltreDenominazioni::rispondereNoAllaDomandaNonCancellaNulla_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::rispondereNoAllaDomandaNonCancellaNulla() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("FA"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Gonzaga"));
    const qint64 lNome = NuovaDenominazione(modo, lRecord, QStringLiteral("Gonzaga di Mantova"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    const QStringList prima = d.Abilitati();
    seam->risposte = {Risposta::No};
    d.Pulsante("cmdCancella")->click();
    QCOMPARE(seam->Messaggi().size(), 1);
    QCOMPARE(seam->Messaggi()[0].sTitolo, QStringLiteral("Cancella"));
    QCOMPARE(Denominazioni(modo, lRecord),
             (QMap<qint64, QString>{{lNome, QStringLiteral("Gonzaga di Mantova")}}));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Gonzaga di Mantova")}));
    QCOMPARE(d.Text1()->text(), QStringLiteral("Gonzaga di Mantova"));
    QCOMPARE(d.Abilitati(), prima);
}

// --- Quotes and accents ----------------------------------------------------------------------

void TestAltreDenominazioni::nomiConApostrofiEAccentiSiSalvanoComeScritti_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::nomiConApostrofiEAccentiSiSalvanoComeScritti() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("EN"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Opera del Duomo"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);
    const QString sNuovo = QStringLiteral("Opera di Sant'Anna \"della Città\" — Perché");
    const QString sCambiato = QStringLiteral("L'Opera'); DELETE FROM EntiDenominazioni; --");

    Dialogo d;
    d.Pulsante("cmdNuovaDenom")->click();
    d.Text1()->setText(sNuovo);
    d.Pulsante("cmdConferma")->click();
    d.Pulsante("cmdNuovaDenom")->click();
    d.Text1()->setText(QStringLiteral("Università dei Mercanti"));
    d.Pulsante("cmdConferma")->click();
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Denominazioni(modo, lRecord).values(),
             QStringList({sNuovo, QStringLiteral("Università dei Mercanti")}));

    d.finestra->lvwDB_ItemClick(d.lvwDB()->topLevelItem(1));
    d.Pulsante("cmdModifica")->click();
    d.Text1()->setText(sCambiato);
    d.Pulsante("cmdConferma")->click();
    QVERIFY(seam->Messaggi().isEmpty());
    QCOMPARE(Denominazioni(modo, lRecord).values(), QStringList({sNuovo, sCambiato}));

    Dialogo riletto;
    QCOMPARE(riletto.Testi(), QStringList({sNuovo, sCambiato}));
}

// --- Failures of the database ----------------------------------------------------------------

void TestAltreDenominazioni::unErroreDelDatabaseAlCaricamentoDaErroreA3_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<bool>("chiusa");
    QTest::newRow("sqlite connessione chiusa") << TipoBackend::SQLite << true;
    QTest::newRow("sqlite tabella mancante") << TipoBackend::SQLite << false;
    QTest::newRow("postgresql connessione chiusa") << TipoBackend::PostgreSQL << true;
    QTest::newRow("postgresql tabella mancante") << TipoBackend::PostgreSQL << false;
}

void TestAltreDenominazioni::unErroreDelDatabaseAlCaricamentoDaErroreA3() {
    QFETCH(TipoBackend, backend);
    QFETCH(bool, chiusa);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const qint64 lRecord = NuovoRecord(QStringLiteral("CD"), QStringLiteral("Fondo"));
    Sessione::sTipoAltreDen = QStringLiteral("CD");
    Sessione::lIdAltreDen = static_cast<long>(lRecord);
    if (chiusa) {
        Sessione::cnn->Chiudi();
    } else {
        Sessione::cnn->Esegui(QStringLiteral("DROP TABLE ComplessiDocDenominazioni"));
    }

    Dialogo d;
    VerificaErrore(QStringLiteral("Errore A3"));
    if (chiusa) {
        QCOMPARE(seam->Messaggi()[0].sTesto,
                 QStringLiteral("frmAltreDenominazioni\nLa connessione al database è chiusa."));
    }
    QCOMPARE(d.lvwDB()->topLevelItemCount(), 0);
    QCOMPARE(d.Abilitati(), Consultazione);
}

void TestAltreDenominazioni::unErroreDelDatabaseInConfermaDaErroreA2ELasciaLaListaComEra_data() {
    QTest::addColumn<TipoBackend>("backend");
    QTest::addColumn<QString>("azione");
    QTest::newRow("sqlite nuova") << TipoBackend::SQLite << QStringLiteral("Nuova");
    QTest::newRow("sqlite modifica") << TipoBackend::SQLite << QStringLiteral("Modifica");
    QTest::newRow("postgresql nuova") << TipoBackend::PostgreSQL << QStringLiteral("Nuova");
    QTest::newRow("postgresql modifica") << TipoBackend::PostgreSQL << QStringLiteral("Modifica");
}

void TestAltreDenominazioni::unErroreDelDatabaseInConfermaDaErroreA2ELasciaLaListaComEra() {
    QFETCH(TipoBackend, backend);
    QFETCH(QString, azione);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("PE"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Matilde di Canossa"));
    NuovaDenominazione(modo, lRecord, QStringLiteral("Contessa Matilde"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    d.Pulsante(azione == QLatin1String("Nuova") ? "cmdNuovaDenom" : "cmdModifica")->click();
    d.Text1()->setText(QStringLiteral("Matilda"));
    Sessione::cnn->Esegui(QStringLiteral("DROP TABLE PersoneDenominazioni"));
    d.Pulsante("cmdConferma")->click();
    VerificaErrore(QStringLiteral("Errore A2"));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Contessa Matilde")}));
    // The entry is left as it was, for another try or for Annulla.
    QCOMPARE(d.Abilitati(), Inserimento);
    QCOMPARE(d.Text1()->text(), QStringLiteral("Matilda"));

    // With the connection closed, the same box.
    seam->Svuota();
    Sessione::cnn->Chiudi();
    d.Pulsante("cmdConferma")->click();
    VerificaErrore(QStringLiteral("Errore A2"));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Contessa Matilde")}));
}

void TestAltreDenominazioni::unErroreDelDatabaseInCancellaDaErroreA1ELasciaLaRiga_data() {
    AggiungiBackend();
}

void TestAltreDenominazioni::unErroreDelDatabaseInCancellaDaErroreA1ELasciaLaRiga() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    Apri(backend);
    const Modo modo = ModoDi(QStringLiteral("CD"));
    const qint64 lRecord = NuovoRecord(modo.sTipo, QStringLiteral("Fondo"));
    NuovaDenominazione(modo, lRecord, QStringLiteral("Fondo antico"));
    Sessione::sTipoAltreDen = modo.sTipo;
    Sessione::lIdAltreDen = static_cast<long>(lRecord);

    Dialogo d;
    Sessione::cnn->Chiudi();
    seam->risposte = {Risposta::Si};
    d.Pulsante("cmdCancella")->click();
    const QList<Messaggio> messaggi = seam->Messaggi();
    QCOMPARE(messaggi.size(), 2);
    QCOMPARE(messaggi[1].sTitolo, QStringLiteral("Errore A1"));
    QCOMPARE(messaggi[1].icona, Icona::Critica);
    QCOMPARE(messaggi[1].sTesto,
             QStringLiteral("frmAltreDenominazioni\nLa connessione al database è chiusa."));
    QCOMPARE(d.Testi(), QStringList({QStringLiteral("Fondo antico")}));
}

QTEST_MAIN(TestAltreDenominazioni)
#include "tst_altredenominazioni.moc"
