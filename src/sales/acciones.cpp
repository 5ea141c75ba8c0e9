#include "sales/acciones.h"

#include "desktop/preguntas.h"
#include "sales/rachateclas.h"

namespace tarvo {

std::optional<qint64> CantidadPedida(const QString &texto) {
    if (RachaTeclas::EsCodigo(texto))
        return std::nullopt;
    return texto.isEmpty() ? 1 : texto.toLongLong();
}

int AgregarArticulo(Preguntas &preguntas, Venta &venta, int fila, qint64 cantidad) {
    const int renglon = venta.Agregar(fila, cantidad);
    if (renglon < 0 && fila >= 0)
        preguntas.Informar(venta.Impedimento(fila));
    return renglon;
}

bool QuitarLinea(Preguntas &preguntas, Venta &venta, int fila) {
    if (fila < 0 || !preguntas.Confirma(QStringLiteral("Está seguro de querer quitar artículo de la lista?"),
                                        Respuesta::No))
        return false;
    venta.Quitar(fila);
    return true;
}

bool EmpezarNueva(Preguntas &preguntas, Venta &venta) {
    if (!preguntas.Confirma(QStringLiteral("Está seguro de querer comenzar una nueva venta?"), Respuesta::No))
        return false;
    venta.Reiniciar();
    return true;
}

} // namespace tarvo
