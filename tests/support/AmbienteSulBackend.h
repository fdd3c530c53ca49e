#pragma once

// The opening of a test run on each backend: the row's backend fetched, the row skipped when its
// server is not at hand, and the test's environment of the given kind made on that backend.

#include "BancaDatiProva.h"

#include <QtTest>

#define AMBIENTE_SUL_BACKEND(Tipo, a)                                                              \
    QFETCH(TipoBackend, backend);                                                                  \
    RICHIEDI_BACKEND(backend);                                                                     \
    Tipo a(backend)
