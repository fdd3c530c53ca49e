#include "AmbienteStruttura.h"

#include "Modali.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"
#include "store/ArchivioElementi.h"
#include "store/Connessione.h"
#include "store/ModelloAlbero.h"
#include "structure/FinestraStruttura.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSqlQuery>
#include <QtTest>

AmbienteStruttura::AmbienteStruttura(TipoBackend tipo, bool bIstituto)
    : banca(tipo) {
    cartella.CopiaDalSito({QStringLiteral("Bitmap"), QStringLiteral("TipologiaIST.txt"),
                           QStringLiteral("TipologiaCD.txt"), QStringLiteral("LivelliINV.txt"),
                           QStringLiteral("TipologiaINV.txt"),
                           QStringLiteral("TipoInventario.txt")});
    Sessione::cnn = banca.Apri();
    Sessione::bIstituto = bIstituto;
    Riferimenti();
}

AmbienteStruttura::~AmbienteStruttura() {
    if (Sessione::cnn) {
        Sessione::cnn->Chiudi();
    }
    Sessione::cnn.reset();
}

void AmbienteStruttura::Riferimenti() const {
    cnn().Esegui(QStringLiteral("INSERT INTO CodiciIstituto (ID_CodiceIstituto, Denominazione, "
                                "ISAD_Codice, ISAD_Sigla) VALUES (?, ?, ?, ?)"),
                 {QVariant(10), QStringLiteral("Archivio di Stato di Lucca"),
                  QStringLiteral("IT-ASLU"), QStringLiteral("ASLU")});
    for (const auto& [sigla, nome] : {std::pair{"LU", "Lucca"}, std::pair{"FI", "Firenze"}}) {
        cnn().Esegui(
            QStringLiteral("INSERT INTO Provincie (Provincia, NomeProvincia) VALUES (?, ?)"),
            {QString::fromUtf8(sigla), QString::fromUtf8(nome)});
    }
}

const Connessione& AmbienteStruttura::cnn() const {
    return *Sessione::cnn;
}

long AmbienteStruttura::Crea(const char* tipo, const QString& nome, long padre) const {
    return ArchivioElementi::Crea(cnn(), QLatin1String(tipo), nome, padre);
}

void AmbienteStruttura::Lega(long complesso, long inventario) const {
    cnn().Esegui(
        QStringLiteral(
            "INSERT INTO Links (ID_Elemento, ID_ElementoLink, Specifica) VALUES (?, ?, '')"),
        {static_cast<qlonglong>(complesso), static_cast<qlonglong>(inventario)});
}

QVariant AmbienteStruttura::Valore(const QString& sql,
                                   std::initializer_list<QVariant> valori) const {
    QSqlQuery query = cnn().Esegui(sql, valori);
    return query.next() ? query.value(0) : QVariant();
}

int AmbienteStruttura::Righe(const char* tabella) const {
    return Valore(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabella)), {})
        .toInt();
}

std::unique_ptr<PrimoMDI> AmbienteStruttura::AvviaPrincipale() {
    cartella.ScriviSito(banca.Testa(), banca.Server(), banca.Database(), QStringLiteral("I"));
    Sessione::cnn.reset();
    auto principale = std::make_unique<PrimoMDI>();
    if (!AvviaSessione(*principale, banca)) {
        return nullptr;
    }
    piattaforma.Svuota();
    return principale;
}

void ChiusuraERiaperturaDalMenu(PrimoMDI& principale, FinestraStruttura* finestra,
                                const char* sMenu, const bool& bAperta) {
    const QPointer<FinestraStruttura> aperta(finestra);
    QTest::keyClick(finestra, Qt::Key_Escape);
    QVERIFY(QTest::qWaitFor([&] { return !aperta; }));
    QVERIFY(!bAperta);
    principale.findChild<QAction*>(QLatin1String(sMenu))->trigger();
    QVERIFY(bAperta);
    principale.Area()->subWindowList().value(0)->close();
    QVERIFY(QTest::qWaitFor([&] { return !bAperta; }));
}

QStringList TestiFigli(const ModelloAlbero& modello, const QModelIndex& padre) {
    QStringList testi;
    for (int riga = 0; riga < modello.rowCount(padre); ++riga) {
        testi.append(modello.Testo(modello.index(riga, 0, padre)));
    }
    return testi;
}

QString Albero(const ModelloAlbero& modello, const QModelIndex& nodo, int iLivello) {
    QString s;
    if (nodo.isValid()) {
        s += QString(iLivello * 2, u' ') + modello.Testo(nodo) + u' ' + modello.Tag(nodo) + u' ' +
             modello.Immagine(nodo) + u'\n';
    }
    for (int riga = 0; riga < modello.rowCount(nodo); ++riga) {
        s += Albero(modello, modello.index(riga, 0, nodo), nodo.isValid() ? iLivello + 1 : 0);
    }
    return s;
}

Strumento CreaStrumento(const AmbienteStruttura& a, const QString& sNome) {
    Strumento s;
    s.ist = a.Crea("01", QStringLiteral("Archivio di Stato di Lucca"));
    s.fondo = a.Crea("02", QStringLiteral("Fondo Guinigi"), s.ist);
    s.inv = a.Crea("03", sNome, s.ist);
    a.Lega(s.fondo, s.inv);
    s.idInv = a.Valore(QStringLiteral("SELECT ID_Inventario FROM Inventari WHERE ID_Elemento = ?"),
                       {static_cast<qlonglong>(s.inv)})
                  .toInt();
    return s;
}

QList<Messaggio> MessaggiCon(const PiattaformaScriptata& piattaforma, const QString& sTitolo) {
    QList<Messaggio> trovati;
    for (const Messaggio& messaggio : piattaforma.Messaggi()) {
        if (messaggio.sTitolo == sTitolo) {
            trovati.append(messaggio);
        }
    }
    return trovati;
}

void CompilaIstituto(const QWidget* editore, const QString& nome) {
    Riga(editore, 0)->setText(nome);
    editore->findChild<QComboBox*>(QStringLiteral("DCCodice"))->setCurrentIndex(0);
    Riga(editore, 2)->setText(QStringLiteral("Piazza Guidiccioni 8"));
    Riga(editore, 3)->setText(QStringLiteral("Lucca"));
    Riga(editore, 4)->setText(QStringLiteral("55100"));
    editore->findChild<QComboBox*>(QStringLiteral("DCProvincia"))->setCurrentIndex(0);
    Riga(editore, 6)->setText(QStringLiteral("0583 491465"));
    Riga(editore, 8)->setText(QStringLiteral("as-lu@cultura.gov.it"));
    Riga(editore, 10)->setText(QStringLiteral("Maria Rossi"));
    Riga(editore, 11)->setText(QStringLiteral("8:30-13:30"));
}

void CompilaInventario(const QWidget* editore, const QString& titolo) {
    Riga(editore, 0)->setText(titolo);
    Combo(editore, "cmbTipologiaIN2")->setCurrentIndex(0);
    Combo(editore, "cmbTipoInv")->setCurrentIndex(3);
    Riga(editore, 4)->setText(QStringLiteral("1790"));
    Riga(editore, 5)->setText(QStringLiteral("1850"));
    Riga(editore, 6)->setText(QStringLiteral("1790-1850"));
    Riga(editore, 17)->setText(QStringLiteral("Maria Rossi"));
}

bool CompilaComplesso(const QWidget* editore, const QString& nome, const QString& consistenza) {
    const struct {
        int n;
        QString testo;
    } campi[] = {{0, nome},
                 {31, QStringLiteral("Maria Rossi")},
                 {12, consistenza},
                 {8, QStringLiteral("1500-1800")},
                 {4, QStringLiteral("1500")},
                 {5, QStringLiteral("1800")}};
    for (const auto& campo : campi) {
        QLineEdit* riga = Riga(editore, campo.n);
        if (riga == nullptr) {
            return false;
        }
        riga->setText(campo.testo);
    }
    return true;
}

void AmbienteStruttura::ListeInventarioAnalitico() {
    cartella.CopiaDalSito({QStringLiteral("LivelliDI.txt"), QStringLiteral("TraditioPG.txt"),
                           QStringLiteral("TipologiaIcoSG.txt"), QStringLiteral("FormaSG.txt"),
                           QStringLiteral("MateriaSG.txt"), QStringLiteral("TipologiaSG.txt"),
                           QStringLiteral("ApposizioneSG.txt"), QStringLiteral("RapportoDocSG.txt"),
                           QStringLiteral("TipologiaDGSG.txt")});
}
