// The start of a bench that shows windows: no screen unless QT_QPA_PLATFORM names one (a screen with a
// reader's bus measures what speaking costs), the program's own style.
#pragma once

#include "comparacion.h"

#include "desktop/ventanas/estilo.h"

#include <QApplication>

namespace comparacion {

// Returns the result of the program.
inline int MedirVentanas(int argc, char **argv, const std::function<void(Tabla &)> &medidas) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    tarvo::AplicarEstilo(aplicacion);
    Tabla tabla;
    medidas(tabla);
    return tabla.Resultado();
}

} // namespace comparacion
