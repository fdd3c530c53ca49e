#include "Piattaforma.h"

#include "Sessione.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QUrl>

namespace {

Piattaforma* pAltra = nullptr;

QWidget* Proprietario() {
    if (QWidget* modale = QApplication::activeModalWidget()) {
        return modale;
    }
    return QApplication::activeWindow();
}

QMessageBox::StandardButton Standard(Risposta risposta) {
    switch (risposta) {
    case Risposta::Ok:
        return QMessageBox::Ok;
    case Risposta::Annulla:
        return QMessageBox::Cancel;
    case Risposta::Si:
        return QMessageBox::Yes;
    case Risposta::No:
        return QMessageBox::No;
    case Risposta::Riprova:
        return QMessageBox::Retry;
    case Risposta::Nessuna:
        break;
    }
    return QMessageBox::NoButton;
}

QList<Risposta> RisposteDi(Pulsanti pulsanti) {
    switch (pulsanti) {
    case Pulsanti::Ok:
        return {Risposta::Ok};
    case Pulsanti::OkAnnulla:
        return {Risposta::Ok, Risposta::Annulla};
    case Pulsanti::SiNo:
        return {Risposta::Si, Risposta::No};
    case Pulsanti::SiNoAnnulla:
        return {Risposta::Si, Risposta::No, Risposta::Annulla};
    case Pulsanti::RiprovaAnnulla:
        return {Risposta::Riprova, Risposta::Annulla};
    }
    return {Risposta::Ok};
}

QString Didascalia(Risposta risposta) {
    switch (risposta) {
    case Risposta::Ok:
        return QStringLiteral("OK");
    case Risposta::Annulla:
        return QStringLiteral("Annulla");
    case Risposta::Si:
        return QStringLiteral("&Sì");
    case Risposta::No:
        return QStringLiteral("&No");
    case Risposta::Riprova:
        return QStringLiteral("&Riprova");
    case Risposta::Nessuna:
        break;
    }
    return QString();
}

QMessageBox::Icon IconaQt(Icona icona) {
    switch (icona) {
    case Icona::Critica:
        return QMessageBox::Critical;
    case Icona::Domanda:
        return QMessageBox::Question;
    case Icona::Esclamazione:
        return QMessageBox::Warning;
    case Icona::Informazione:
        return QMessageBox::Information;
    case Icona::Nessuna:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

Piattaforma& piattaforma() {
    static PiattaformaQt reale;
    return pAltra ? *pAltra : reale;
}

void ImpostaPiattaforma(Piattaforma* altra) {
    pAltra = altra;
}

Risposta MsgBox(const QString& sTesto, Pulsanti pulsanti, Icona icona, const QString& sTitolo,
                Risposta predefinita) {
    Messaggio messaggio;
    messaggio.sTitolo = sTitolo.isEmpty() ? Sessione::TitoloProgramma : sTitolo;
    messaggio.sTesto = sTesto;
    messaggio.icona = icona;
    messaggio.pulsanti = pulsanti;
    messaggio.predefinita = predefinita;
    return piattaforma().MostraMessaggio(messaggio);
}

Risposta PiattaformaQt::MostraMessaggio(const Messaggio& messaggio) {
    QMessageBox box(Proprietario());
    box.setWindowTitle(messaggio.sTitolo);
    // Boxes keep the text as written: CR LF pairs are line breaks.
    QString testo = messaggio.sTesto;
    testo.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    box.setTextFormat(Qt::PlainText);
    box.setText(testo);
    box.setIcon(IconaQt(messaggio.icona));
    const QList<Risposta> risposte = RisposteDi(messaggio.pulsanti);
    QAbstractButton* predefinito = nullptr;
    QAbstractButton* fuga = nullptr;
    for (const Risposta risposta : risposte) {
        QPushButton* pulsante = box.addButton(Standard(risposta));
        pulsante->setText(Didascalia(risposta));
        if (risposta == messaggio.predefinita) {
            predefinito = pulsante;
        }
        if (risposta == Risposta::Annulla ||
            (risposta == Risposta::No && messaggio.pulsanti == Pulsanti::SiNo)) {
            fuga = pulsante;
        }
    }
    if (predefinito == nullptr) {
        predefinito = box.button(Standard(risposte.front()));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(predefinito));
    if (fuga != nullptr) {
        box.setEscapeButton(fuga);
    } else if (risposte.size() == 1) {
        box.setEscapeButton(predefinito);
    }
    box.exec();
    QAbstractButton* premuto = box.clickedButton();
    for (const Risposta risposta : risposte) {
        if (premuto != nullptr && premuto == box.button(Standard(risposta))) {
            return risposta;
        }
    }
    return risposte.contains(Risposta::Annulla) ? Risposta::Annulla : risposte.back();
}

QString PiattaformaQt::ScegliFile(const SceltaFile& scelta) {
    QFileDialog dialogo(Proprietario(), scelta.sTitolo, scelta.sCartella, scelta.sFiltro);
    dialogo.setAcceptMode(scelta.bSalva ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(scelta.bSalva ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!scelta.sFiltroScelto.isEmpty()) {
        dialogo.selectNameFilter(scelta.sFiltroScelto);
    }
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return QString();
    }
    return dialogo.selectedFiles().constFirst();
}

QString PiattaformaQt::ScegliCartella(const QString& sTitolo, const QString& sCartella) {
    QFileDialog dialogo(Proprietario(), sTitolo, sCartella);
    dialogo.setFileMode(QFileDialog::Directory);
    dialogo.setOption(QFileDialog::ShowDirsOnly);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return QString();
    }
    return dialogo.selectedFiles().constFirst();
}

int PiattaformaQt::SceltaMenu(const QStringList& voci, const QPoint& posizione) {
    QMenu menu(Proprietario());
    QList<QAction*> azioni;
    for (const QString& voce : voci) {
        azioni.append(menu.addAction(voce));
    }
    QAction* scelta = menu.exec(posizione);
    const int indice = static_cast<int>(azioni.indexOf(scelta));
    return indice < 0 ? 0 : indice + 1;
}

void PiattaformaQt::ApriGuida(const QString& sPercorso) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(sPercorso));
}

qint64 PiattaformaQt::AvviaProcesso(const QString& sProgramma, const QStringList& argomenti) {
    qint64 pid = 0;
    if (!QProcess::startDetached(sProgramma, argomenti, QString(), &pid)) {
        return 0;
    }
    return pid;
}

EsitoProcesso Piattaforma::EseguiProcesso(const QString& sProgramma, const QStringList& argomenti) {
    EsitoProcesso esito;
    QProcess processo;
    const bool bCursore = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
    if (bCursore) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    processo.start(sProgramma, argomenti);
    esito.bAvviato = processo.waitForStarted(30000);
    if (!esito.bAvviato) {
        esito.sErroreAvvio = processo.errorString();
    } else if (!processo.waitForFinished(-1)) {
        esito.sErroreAvvio = processo.errorString();
    } else if (processo.exitStatus() == QProcess::NormalExit) {
        esito.iCodice = processo.exitCode();
    } else {
        esito.sErroreAvvio = processo.errorString();
    }
    esito.sUscita = QString::fromUtf8(processo.readAllStandardOutput());
    esito.sErrori = QString::fromUtf8(processo.readAllStandardError());
    if (bCursore) {
        QApplication::restoreOverrideCursor();
    }
    return esito;
}

void PiattaformaQt::TerminaProcesso() {
    const QWidgetList finestre = QApplication::topLevelWidgets();
    for (QWidget* finestra : finestre) {
        finestra->close();
    }
    QCoreApplication::exit(0);
}
