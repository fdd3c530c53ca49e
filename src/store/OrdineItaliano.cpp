#include "OrdineItaliano.h"

#include <unicode/ucol.h>

#include <memory>

namespace {

struct ChiudiCollatore {
    void operator()(UCollator* collatore) const { ucol_close(collatore); }
};

// One collator for each thread that compares (a collator is not shared between threads);
// null when ICU has no data for the language, and then the characters' codes decide alone.
UCollator* Collatore() {
    thread_local const std::unique_ptr<UCollator, ChiudiCollatore> collatore = [] {
        UErrorCode stato = U_ZERO_ERROR;
        UCollator* aperto = ucol_open("it_IT", &stato);
        if (U_FAILURE(stato)) {
            ucol_close(aperto);
            aperto = nullptr;
        }
        return std::unique_ptr<UCollator, ChiudiCollatore>(aperto);
    }();
    return collatore.get();
}

int Segno(UCollationResult risultato) {
    return risultato == UCOL_LESS ? -1 : (risultato == UCOL_GREATER ? 1 : 0);
}

} // namespace

int ConfrontaItaliano(QStringView a, QStringView b) {
    if (UCollator* collatore = Collatore()) {
        const int esito = Segno(ucol_strcoll(collatore, a.utf16(), static_cast<int32_t>(a.size()),
                                             b.utf16(), static_cast<int32_t>(b.size())));
        if (esito != 0)
            return esito;
    }
    return a.compare(b, Qt::CaseSensitive);
}

int ConfrontaItaliano(std::string_view a, std::string_view b) {
    if (UCollator* collatore = Collatore()) {
        UErrorCode stato = U_ZERO_ERROR;
        const int esito =
            Segno(ucol_strcollUTF8(collatore, a.data(), static_cast<int32_t>(a.size()), b.data(),
                                   static_cast<int32_t>(b.size()), &stato));
        if (U_SUCCESS(stato) && esito != 0)
            return esito;
    }
    const int esito = a.compare(b);
    return esito < 0 ? -1 : (esito > 0 ? 1 : 0);
}
