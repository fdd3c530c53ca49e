#include "Avvio.h"

#include "IconaProgramma.h"
#include "PrimoMDI.h"
#include "Sessione.h"

#include <QApplication>
#include <QLocale>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// The two ends of the channel by which a signal reaches the event loop: the handler may only
// write a byte, the loop reads it and does the rest.
int aCanaleSegnali[2] = {-1, -1};

extern "C" void AlSegnale(int) {
    const char segnale = 1;
    [[maybe_unused]] const ssize_t scritti = ::write(aCanaleSegnali[0], &segnale, 1);
}

// When the desktop session ends (SIGTERM, then SIGHUP) or the terminal is interrupted (SIGINT),
// the program leaves its event loop as QApplication::quit() would have it, and so takes the
// same road out as every other end: the connection closes while Qt still lives.
void EsceAiSegnali(QApplication& app) {
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, aCanaleSegnali) != 0) {
        return; // the signals keep their ordinary effect
    }
    auto* avviso = new QSocketNotifier(aCanaleSegnali[1], QSocketNotifier::Read, &app);
    QObject::connect(avviso, &QSocketNotifier::activated, &app, [avviso] {
        char segnale = 0;
        [[maybe_unused]] const ssize_t letti = ::read(aCanaleSegnali[1], &segnale, 1);
        avviso->setEnabled(false);
        QCoreApplication::quit();
    });
    struct sigaction azione = {};
    azione.sa_handler = AlSegnale;
    sigemptyset(&azione.sa_mask);
    azione.sa_flags = SA_RESTART;
    for (const int segnale : {SIGTERM, SIGHUP, SIGINT}) {
        sigaction(segnale, &azione, nullptr);
    }
}

} // namespace

void ImpostaRegoleItaliane() {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
}

int AvviaTabellion(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tabellion Archivista"));
    QApplication::setApplicationVersion(QStringLiteral("3.2"));
    QApplication::setOrganizationName(QStringLiteral("Tabellion"));
    QApplication::setWindowIcon(IconaProgramma());
    ImpostaRegoleItaliane();
    // However the event loop ends (the main form closed, QApplication::quit(), a signal of the
    // desktop), the session's connection closes here, before Qt's SQL layer goes away.
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &app, &Sessione::ChiudiConnessione);
    EsceAiSegnali(app);
    PrimoMDI principale;
    principale.show();
    return QApplication::exec();
}
