#include "Modali.h"

#include "BancaDatiProva.h"
#include "session/PrimoMDI.h"
#include "session/Sessione.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

void AlComparire(const QString& sNome, std::function<void(QWidget*)> azione, int iMillisecondi) {
    auto* orologio = new QTimer;
    auto* fatto = new bool(false);
    auto inizio = std::make_shared<QElapsedTimer>();
    inizio->start();
    orologio->setInterval(10);
    QObject::connect(orologio, &QTimer::timeout, [=] {
        QWidget* modale = QApplication::activeModalWidget();
        if (modale != nullptr && modale->objectName() == sNome && modale->isVisible() && !*fatto) {
            *fatto = true;
            orologio->stop();
            orologio->deleteLater();
            delete fatto;
            azione(modale);
            return;
        }
        if (inizio->elapsed() > iMillisecondi) {
            orologio->stop();
            orologio->deleteLater();
            delete fatto;
        }
    });
    orologio->start();
}

void CompilaLogin(QWidget* login, const QString& sUtente, const QString& sPassword) {
    Controllo<QLineEdit>(login, QStringLiteral("txtUserID"))->setText(sUtente);
    Controllo<QLineEdit>(login, QStringLiteral("txtPassWord"))->setText(sPassword);
    Controllo<QPushButton>(login, QStringLiteral("cmdAvanti"))->click();
}

bool AvviaSessione(PrimoMDI& principale, const BancaDatiProva& banca) {
    return AvviaSessione(principale, banca.Utente(), banca.Password());
}

bool AvviaSessione(PrimoMDI& principale, const QString& utente, const QString& password) {
    AlComparire(QStringLiteral("frmLogin"),
                [utente, password](QWidget* login) { CompilaLogin(login, utente, password); });
    principale.show();
    QAction* complessi = principale.findChild<QAction*>(QStringLiteral("mnuComplessiDoc"));
    return QTest::qWaitFor([&] { return complessi->isEnabled(); }, 20000) &&
           QTest::qWaitFor([] { return QApplication::activeModalWidget() == nullptr; }, 20000);
}
