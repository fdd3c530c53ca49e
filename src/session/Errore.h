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
inline constexpr long ErroreInterno = 51;
inline constexpr long FileNonTrovato = 53;
inline constexpr long ErroreIO = 57;
inline constexpr long AccessoNegato = 75;
inline constexpr long PercorsoNonTrovato = 76;
} // namespace ErroriPiattaforma

// What a last handler knows of a failure of any kind: the program's own keeps its words and
// number; one of a library gives its own words under the number of an internal error; one that
// says nothing of itself gives the words of that number.
inline Errore ErroreDi(const std::exception_ptr& eccezione, const QString& sSorgente) {
    try {
        std::rethrow_exception(eccezione);
    } catch (const Errore& errore) {
        return errore;
    } catch (const std::exception& altra) {
        return Errore(sSorgente, QString::fromLocal8Bit(altra.what()),
                      ErroriPiattaforma::ErroreInterno);
    } catch (...) {
    }
    return Errore(sSorgente, QStringLiteral("Errore interno"), ErroriPiattaforma::ErroreInterno);
}
