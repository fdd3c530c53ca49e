// The save of a record spread over Elementi and its own table, on SQLite and on PostgreSQL:
// when the database refuses the write of the record's table, the row of Elementi written
// before it in the same save is not left behind.

#include "records/ucComplesso.h"
#include "records/ucIstituto.h"
#include "session/Errore.h"
#include "session/Sessione.h"
#include "store/Connessione.h"

#include "AmbienteRecord.h"

#include <QCheckBox>
#include <QDate>
#include <QDateEdit>
#include <QLineEdit>
#include <QtTest>

namespace {

// A trigger of the test's own: the database refuses an update of the table that would name the
// row "Rifiutato".
void RifiutaNome(TipoBackend backend, const QString& sTabella) {
    if (backend == TipoBackend::SQLite) {
        Sessione::cnn->Esegui(
            QStringLiteral("CREATE TRIGGER prova_rifiuta BEFORE UPDATE ON %1 FOR EACH ROW WHEN "
                           "NEW.Denominazione = 'Rifiutato' BEGIN SELECT RAISE(ABORT, "
                           "'Nome rifiutato'); END")
                .arg(sTabella));
        return;
    }
    Sessione::cnn->Esegui(QStringLiteral(
        "CREATE FUNCTION prova_rifiuta() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN IF "
        "NEW.Denominazione = 'Rifiutato' THEN RAISE EXCEPTION 'Nome rifiutato'; END IF; RETURN "
        "NEW; END $$"));
    Sessione::cnn->Esegui(QStringLiteral("CREATE TRIGGER prova_rifiuta BEFORE UPDATE ON %1 FOR "
                                         "EACH ROW EXECUTE FUNCTION prova_rifiuta()")
                              .arg(sTabella));
}

// The row of Elementi before the save: not published, its writer and date of its own.
void PreparaElemento(long id) {
    Sessione::cnn->Esegui(
        QStringLiteral("UPDATE Elementi SET Pubblicato = ?, Redattore = ? WHERE ID_Elemento = ?"),
        {QStringLiteral("N"), QStringLiteral("Anna Bianchi"), Id(id)});
}

} // namespace

class TestSalvataggio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Sessione::Azzera(); }

    void unComplessoRifiutatoNonLasciaScrittoElementi_data() { AggiungiBackend(); }
    void unComplessoRifiutatoNonLasciaScrittoElementi();
    void unIstitutoRifiutatoNonLasciaScrittoElementi_data() { AggiungiBackend(); }
    void unIstitutoRifiutatoNonLasciaScrittoElementi();
};

void TestSalvataggio::unComplessoRifiutatoNonLasciaScrittoElementi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRecord ambiente(backend, QStringLiteral("ComplessiDoc"), {"TipologiaCD.txt"});
    const long istituto = ambiente.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    const long id = ambiente.Crea("02", QStringLiteral("Fondo"), istituto);
    PreparaElemento(id);
    const QVariant dataPrima = ambiente.ColonnaElemento(QStringLiteral("DataRedazione"), id);
    RifiutaNome(backend, QStringLiteral("ComplessiDoc"));

    ucComplesso editore;
    editore.Init();
    editore.Mostra(id);
    QVERIFY(editore.OkModifica);
    editore.Modifica();
    Riga(&editore, 0)->setText(QStringLiteral("Rifiutato"));
    Riga(&editore, 31)->setText(QStringLiteral("Carlo Verdi"));
    editore.findChild<QCheckBox*>(QStringLiteral("chkPubblicaCD"))->setChecked(true);
    editore.findChild<QDateEdit*>(QStringLiteral("DTPData"))->setDate(QDate(2001, 1, 2));
    editore.Salva(id);

    // The server's words in a critical box; nothing of the save in either table.
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.seam.Messaggi().at(0).icona, Icona::Critica);
    QVERIFY2(ambiente.seam.Messaggi().at(0).sTesto.contains(QStringLiteral("Nome rifiutato")),
             qPrintable(ambiente.seam.Messaggi().at(0).sTesto));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             QStringLiteral("Anna Bianchi"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("N"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("DataRedazione"), id), dataPrima);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Fondo"));
    // The connection is usable afterwards: the same record saves with another name.
    editore.Modifica();
    Riga(&editore, 0)->setText(QStringLiteral("Fondo \"nuovo\" dell'Opera"));
    editore.Salva(id);
    QCOMPARE(ambiente.seam.Messaggi().size(), 1);
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Fondo \"nuovo\" dell'Opera"));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Redattore"), id).toString(),
             QStringLiteral("Carlo Verdi"));
}

void TestSalvataggio::unIstitutoRifiutatoNonLasciaScrittoElementi() {
    QFETCH(TipoBackend, backend);
    RICHIEDI_BACKEND(backend);
    AmbienteRecord ambiente(backend, QStringLiteral("Istituti"), {"TipologiaIST.txt"});
    const long id = ambiente.CreaIstituto(QStringLiteral("Istituto"), QStringLiteral("01"));
    PreparaElemento(id);
    RifiutaNome(backend, QStringLiteral("Istituti"));

    ucIstituto editore;
    editore.Init();
    editore.Mostra(id);
    QVERIFY(editore.OkModifica);
    editore.Modifica();
    Riga(&editore, 0)->setText(QStringLiteral("Rifiutato"));
    editore.findChild<QCheckBox*>(QStringLiteral("chkPubblicaIst"))->setChecked(true);
    // The institute's save leaves its errors to the host.
    QVERIFY_THROWS_EXCEPTION(Errore, editore.Salva(id));
    QCOMPARE(ambiente.ColonnaElemento(QStringLiteral("Pubblicato"), id).toString(),
             QStringLiteral("N"));
    QCOMPARE(ambiente.Colonna(QStringLiteral("Denominazione"), id).toString(),
             QStringLiteral("Istituto"));
}

QTEST_MAIN(TestSalvataggio)
#include "tst_salvataggio.moc"
