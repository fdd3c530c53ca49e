#include "session/StrumentoSql.h"

#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream uscita(stdout);
    QTextStream errori(stderr);
    return EseguiStrumentoSql(app.arguments().mid(1), uscita, errori);
}
