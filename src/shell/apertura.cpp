#include "shell/apertura.h"

namespace tarvo {

QString MensajeBloqueada() {
    return QStringLiteral(
        "La Base de datos se encuentra abierta en modo exclusivo por otro usuario, debe cerrarla "
        "antes de iniciar la aplicación.");
}

QString AvisoApertura(const ResultadoApertura &resultado) {
    if (resultado.estado != EstadoApertura::Parcial)
        return {};
    if (resultado.archivo.isEmpty())
        return QStringLiteral("No se pudieron abrir los datos: %1").arg(resultado.motivo);
    return QStringLiteral("No se pudo abrir %1: %2").arg(resultado.archivo, resultado.motivo);
}

} // namespace tarvo
