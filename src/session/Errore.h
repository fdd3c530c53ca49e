#pragma once

#include <QString>
#include <exception>

// A failure carried up to the routine's handler: the handler shows where it came from (the
// source) and what happened (the description), the way every box of the program does.
class Errore : public std::exception {
public:
    Errore(QString sorgente, QString descrizione, long numero = 0)
        : sSorgente(std::move(sorgente))
        , sDescrizione(std::move(descrizione))
        , lNumero(numero)
        , sUtf8(sDescrizione.toUtf8()) {}

    const QString& sorgente() const { return sSorgente; }
    const QString& descrizione() const { return sDescrizione; }
    long numero() const { return lNumero; }

    // Source, a line break and the description: the text of a handler's box.
    QString testo() const { return sSorgente + QLatin1Char('\n') + sDescrizione; }

    const char* what() const noexcept override { return sUtf8.constData(); }

private:
    QString sSorgente;
    QString sDescrizione;
    long lNumero;
    QByteArray sUtf8;
};

// The platform's own error numbers and texts that the program's routines raise.
namespace ErroriPiattaforma {
inline constexpr long TipoNonCorrispondente = 13;
inline constexpr long FileNonTrovato = 53;
inline constexpr long ErroreIO = 57;
inline constexpr long PercorsoNonTrovato = 76;
} // namespace ErroriPiattaforma
