#pragma once

#include <QIcon>

// The program's icon: a parchment with its seal, drawn at the sizes a desktop asks for.
QIcon IconaProgramma();
