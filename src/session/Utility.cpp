#include "Utility.h"

#include "Conversioni.h"
#include "Errore.h"

#include <QFileInfo>

namespace {} // namespace

// a, b: places of birth and death; c, d: the dates. A place and its date are parted by one
// blank only when both are there, so a place alone closes its bracket at once: ", (Roma)".
// Emptiness is judged on the arguments as given, so a place of blanks still takes its blank
// before the date.
QString EstremiPersona(const QString& a, const QString& b, const QString& c, const QString& d) {
    if (a.isEmpty() && b.isEmpty() && c.isEmpty() && d.isEmpty())
        return QString();
    // Built in one string: the producers' lists make one for every person.
    const QString luogo = Trim(a);
    QString estremi;
    estremi.reserve(luogo.size() + b.size() + c.size() + d.size() + 8);
    estremi += QStringLiteral(", (");
    estremi += luogo;
    if (!a.isEmpty() && !c.isEmpty())
        estremi += QLatin1Char(' ');
    estremi += c;
    if (!b.isEmpty() || !d.isEmpty())
        estremi += QStringLiteral(" - ");
    estremi += b;
    if (!b.isEmpty() && !d.isEmpty())
        estremi += QLatin1Char(' ');
    estremi += d;
    estremi += QLatin1Char(')');
    return estremi;
}

// The dates of a body keep the user's own brackets when typed with them.
QString EstremiEnte(const QString& sLuogo, const QString& sDate) {
    const QString date = Trim(sDate);
    return QStringLiteral(", ") + Trim(sLuogo) +
           (date.startsWith(QLatin1Char('(')) ? QStringLiteral(" ") : QStringLiteral(" (")) + date +
           (date.endsWith(QLatin1Char(')')) ? QString() : QStringLiteral(")"));
}

// The same for a family: kept apart from EstremiEnte so that either may change alone.
QString EstremiFamiglia(const QString& sLuogo, const QString& sDate) {
    const QString date = Trim(sDate);
    return QStringLiteral(", ") + Trim(sLuogo) +
           (date.startsWith(QLatin1Char('(')) ? QStringLiteral(" ") : QStringLiteral(" (")) + date +
           (date.endsWith(QLatin1Char(')')) ? QString() : QStringLiteral(")"));
}

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>

namespace {

// What locking does to one control: nothing for the kinds it does not know (labels, buttons).
void ImpostaBlocco(QWidget* controllo, bool bBlocca) {
    if (auto* multiRiga = qobject_cast<QPlainTextEdit*>(controllo)) {
        multiRiga->setEnabled(true);
        multiRiga->setReadOnly(bBlocca);
        return;
    }
    if (qobject_cast<QLineEdit*>(controllo) != nullptr ||
        qobject_cast<QComboBox*>(controllo) != nullptr ||
        qobject_cast<QCheckBox*>(controllo) != nullptr ||
        qobject_cast<QDateTimeEdit*>(controllo) != nullptr) {
        controllo->setEnabled(!bBlocca);
    }
}

} // namespace

void BloccaControlli(const QList<QWidget*>& controlli) {
    for (QWidget* controllo : controlli)
        ImpostaBlocco(controllo, true);
}

void SbloccaControlli(const QList<QWidget*>& controlli) {
    for (QWidget* controllo : controlli)
        ImpostaBlocco(controllo, false);
}

QString RigheMessaggio(const QStringList& righe) {
    QString sTesto;
    for (const QString& sRiga : righe)
        sTesto += sRiga + QStringLiteral("\r\n");
    return sTesto;
}

void ControllaCartella(const QString& sCartella, const QString& sSorgente) {
    // An empty path names no folder: the working folder is not the one meant.
    const QFileInfo info(sCartella);
    if (sCartella.isEmpty() || !info.isDir())
        throw Errore(sSorgente, QStringLiteral("Impossibile trovare il percorso"),
                     ErroriPiattaforma::PercorsoNonTrovato);
    // Listing a folder needs both reading it and passing through it.
    if (!info.isReadable() || !info.isExecutable())
        throw Errore(sSorgente, QStringLiteral("Errore di accesso al percorso/file"),
                     ErroriPiattaforma::AccessoNegato);
}
