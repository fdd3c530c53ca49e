#include "Avvio.h"

#include "IconaProgramma.h"
#include "PrimoMDI.h"

#include <QApplication>
#include <QLocale>

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
    PrimoMDI principale;
    principale.show();
    return QApplication::exec();
}
