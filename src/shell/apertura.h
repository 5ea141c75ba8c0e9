// What the operator is told about the opening of the data at start.
#pragma once

#include "store/store.h"

namespace tarvo {

// Another process holds a file: the program ends with this message.
QString MensajeBloqueada();
// Hint of the status bar when some tables could not be opened; empty when all could.
QString AvisoApertura(const ResultadoApertura &resultado);

} // namespace tarvo
