#include "AmbienteLink.h"

#include "links/ModelloSpunte.h"
#include "links/VisualizzatoriLink.h"
#include "links/frmLinkPuntiAccesso.h"
#include "store/Connessione.h"

#include "Modali.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

AmbienteLink::AmbienteLink(TipoBackend tipo, const QStringList& script)
    : AmbienteRecord(tipo, QStringLiteral("Pergamene"),
                     {"RuoliPGANT.txt", "RuoloTitolareSG.txt", "TraditioPG.txt",
                      "TipologiaIcoSG.txt", "FormaSG.txt", "MateriaSG.txt", "TipologiaSG.txt",
                      "ApposizioneSG.txt", "RapportoDocSG.txt", "TipologiaDGSG.txt",
                      "LivelliDI.txt"},
                     script) {}

Oggetti AmbienteLink::NuoviOggetti() const {
    Oggetti o;
    const long istituto = CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long inventario = Crea("03", QStringLiteral("Inventario"), istituto);
    o.pergamena = Crea("05", QStringLiteral("P1"), inventario);
    o.idPergamena = Dettaglio("Pergamene", "ID_Pergamena", o.pergamena);
    o.unita = Crea("07", QStringLiteral("Busta 1"), inventario);
    o.idUnita = Dettaglio("DatiInventariali", "ID_DatoInventariale", o.unita);
    o.sigillo = Crea("06", QStringLiteral("Sigillo"), o.pergamena);
    o.idSigillo = Dettaglio("Sigilli", "ID_Sigillo", o.sigillo);
    return o;
}

long AmbienteLink::Dettaglio(const char* tabella, const char* chiave, long idElemento) const {
    return static_cast<long>(Valore(QStringLiteral("SELECT %1 FROM %2 WHERE ID_Elemento = ?")
                                        .arg(QLatin1String(chiave), QLatin1String(tabella)),
                                    {Id(idElemento)})
                                 .toLongLong());
}

long AmbienteLink::Antroponimo(const QString& nome) const {
    return static_cast<long>(Cnn().Inserisci(QStringLiteral("Antroponimi"),
                                             QStringLiteral("ID_Antroponimo"),
                                             {QStringLiteral("Nome")}, {nome}));
}

long AmbienteLink::Toponimo(const QString& denominazione) const {
    return static_cast<long>(Cnn().Inserisci(QStringLiteral("Toponimi"),
                                             QStringLiteral("ID_Toponimo"),
                                             {QStringLiteral("Denominazione")}, {denominazione}));
}

long AmbienteLink::Titolare(const QString& nome) const {
    return static_cast<long>(Cnn().Inserisci(QStringLiteral("Titolari"),
                                             QStringLiteral("ID_Titolare"),
                                             {QStringLiteral("Nome")}, {nome}));
}

long AmbienteLink::Soggetto(const QString& nome, const char* tipo) const {
    return static_cast<long>(
        Cnn().Inserisci(QStringLiteral("Soggetti"), QStringLiteral("ID_Soggetto"),
                        {QStringLiteral("Denominazione"), QStringLiteral("TipoSoggetto")},
                        {nome, QLatin1String(tipo)}));
}

long AmbienteLink::PersonaDiPergamena(long idPergamena, long idAntroponimo,
                                      const QVariant& ruolo) const {
    return static_cast<long>(Cnn().Inserisci(
        QStringLiteral("PGAntroponimi"), QStringLiteral("ID_PGAntroponimo"),
        {QStringLiteral("ID_Pergamena"), QStringLiteral("ID_Antroponimo"), QStringLiteral("Ruolo")},
        {Id(idPergamena), Id(idAntroponimo), ruolo.isValid() ? ruolo : NullTesto()}));
}

long AmbienteLink::PersonaDiUnita(long idDato, long idAntroponimo) const {
    return static_cast<long>(
        Cnn().Inserisci(QStringLiteral("DIAntroponimi"), QStringLiteral("ID_DIAntroponimo"),
                        {QStringLiteral("ID_DatoInventariale"), QStringLiteral("ID_Antroponimo")},
                        {Id(idDato), Id(idAntroponimo)}));
}

void AmbienteLink::LuogoDi(const char* tabella, const char* chiave, long id,
                           long idToponimo) const {
    Cnn().Esegui(QStringLiteral("INSERT INTO %1 (%2, ID_Toponimo) VALUES (?, ?)")
                     .arg(QLatin1String(tabella), QLatin1String(chiave)),
                 {Id(id), Id(idToponimo)});
}

long AmbienteLink::TitolareDiSigillo(long idSigillo, long idTitolare, const QVariant& ruolo) const {
    return static_cast<long>(Cnn().Inserisci(
        QStringLiteral("SGTitolari"), QStringLiteral("ID_SGTitolare"),
        {QStringLiteral("ID_Sigillo"), QStringLiteral("ID_Titolare"), QStringLiteral("Ruolo")},
        {Id(idSigillo), Id(idTitolare), ruolo.isValid() ? ruolo : NullTesto()}));
}

void AmbienteLink::ProduttoreDi(const char* tabella, const char* chiave, long id,
                                long idSoggetto) const {
    Cnn().Esegui(QStringLiteral("INSERT INTO %1 (%2, ID_Soggetto) VALUES (?, ?)")
                     .arg(QLatin1String(tabella), QLatin1String(chiave)),
                 {Id(id), Id(idSoggetto)});
}

void AmbienteLink::Lega(long idElemento, long idElementoLink) const {
    Collega(idElemento, idElementoLink);
}

qint64 AmbienteLink::Conta(const QString& sql, std::initializer_list<QVariant> valori) const {
    return Valore(sql, valori).toLongLong();
}

QDialog* Visualizzatore(const QString& sNome, const QVariantMap& argomenti) {
    return VisualizzatoriLink::Crea(sNome, nullptr, argomenti);
}

QTreeWidget* Lista(const QWidget* visualizzatore, const QString& sNome) {
    return Controllo<QTreeWidget>(visualizzatore, sNome);
}

QStringList Testi(const QTreeWidget* lista, int colonna) {
    QStringList testi;
    for (int i = 0; i < lista->topLevelItemCount(); ++i) {
        testi << lista->topLevelItem(i)->text(colonna);
    }
    return testi;
}

QList<qint64> Chiavi(const QTreeWidget* lista) {
    QList<qint64> chiavi;
    for (int i = 0; i < lista->topLevelItemCount(); ++i) {
        const QString sChiave = lista->topLevelItem(i)->data(0, Qt::UserRole).toString();
        if (!sChiave.endsWith(QLatin1String("ID"))) {
            return {};
        }
        chiavi << sChiave.chopped(2).toLongLong();
    }
    return chiavi;
}

QPushButton* Bottone(const QWidget* visualizzatore, const char* nome) {
    return Controllo<QPushButton>(visualizzatore, QLatin1String(nome));
}

qint64 CancellaLaPrimaVoce(PiattaformaScriptata& seam, QWidget* visualizzatore) {
    for (QTreeWidget* lista : visualizzatore->findChildren<QTreeWidget*>()) {
        if (lista->topLevelItemCount() == 0) {
            continue;
        }
        if (auto* schede = visualizzatore->findChild<QTabWidget*>(QStringLiteral("SSTab1"))) {
            // "lvwDB(n)": the list of tab n.
            schede->setCurrentIndex(lista->objectName().mid(6, 1).toInt());
        }
        lista->setCurrentItem(lista->topLevelItem(0));
        const qint64 lChiave = Chiavi(lista).constFirst();
        seam.risposte = {Risposta::Si};
        Bottone(visualizzatore, "cmdCancella")->click();
        return lChiave;
    }
    return 0;
}

bool PulsanteAcceso(const QAbstractButton* pulsante) {
    return pulsante->palette().color(QPalette::Button) ==
           QApplication::palette().color(QPalette::Base);
}

void PercorriPuntoAccesso(const QString& sVisualizzatore, const QString& sDialogo,
                          const QString& sVoce, const QString& sRuolo, StradaPuntoAccesso& strada,
                          bool bScioglie, std::function<void(DialogoPuntoAccesso&)> prima) {
    AlComparire(sVisualizzatore, [=, &strada](QWidget* visualizzatore) {
        AlComparire(sDialogo, [=, &strada](QWidget* finestra) {
            auto* d = static_cast<DialogoPuntoAccesso*>(finestra);
            strada.bDialogo = true;
            strada.voci.clear();
            for (int i = 0; i < d->Modello(0).Righe(); ++i) {
                strada.voci << d->Modello(0).Testo(i);
            }
            strada.etichetta = Controllo<QLabel>(d, QStringLiteral("Label1(0)"))->text();
            strada.bBloccati = Controllo<QLineEdit>(d, QStringLiteral("Text1(1)"))->isReadOnly();
            if (auto* titolari = qobject_cast<frmLinkTitolari*>(d)) {
                strada.bFromSigilli = titolari->bFromSigilli;
            }
            AlComparire(sVisualizzatore, [=, &strada](QWidget* nuovo) {
                QTreeWidget* lista = Lista(nuovo);
                strada.dopo = Testi(lista);
                const int iRiga = static_cast<int>(strada.dopo.indexOf(sVoce));
                if (!sRuolo.isNull() && iRiga >= 0) {
                    lista->setCurrentItem(lista->topLevelItem(iRiga));
                    Bottone(nuovo, "cmdModificaRuolo")->click();
                    QLineEdit* ruolo =
                        Controllo<QComboBox>(nuovo, QStringLiteral("cmbRuolo"))->lineEdit();
                    ruolo->clear();
                    QTest::keyClicks(ruolo, sRuolo);
                    Bottone(nuovo, "cmdConferma")->click();
                }
                if (bScioglie && iRiga >= 0) {
                    lista->setCurrentItem(lista->topLevelItem(iRiga));
                    Bottone(nuovo, "cmdCancella")->click();
                }
                static_cast<QDialog*>(nuovo)->reject();
            });
            if (prima) {
                prima(*d);
            }
            // The user's tick on the entry's row as the list stands now: the row made the
            // current one, then the space key.
            int iVoce = -1;
            for (int i = 0; i < d->Modello(0).Righe() && iVoce < 0; ++i) {
                iVoce = d->Modello(0).Testo(i) == sVoce ? i : -1;
            }
            auto* elenco = Controllo<QTreeView>(d, QStringLiteral("lvwDB"));
            elenco->setCurrentIndex(d->Modello(0).index(iVoce));
            QTest::keyClick(elenco, Qt::Key_Space);
            d->cmdCollega->click();
        });
        Bottone(visualizzatore, "cmdNuovoCol")->click();
    });
}
