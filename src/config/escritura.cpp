#include "config/escritura.h"

#include "desktop/almacenar.h"
#include "store/store.h"

namespace tarvo {

namespace {

void ComprobarFila(Cursor &cursor) {
    if (FilaUnica(cursor))
        return;
    const QString motivo = cursor.Abierto()
                               ? QStringLiteral("No se pudo guardar: la tabla %1 no tiene su registro.")
                               : QStringLiteral("No se pudo guardar: la tabla %1 no está abierta.");
    throw ErrorDatos(errores::kSinRegistro, motivo.arg(QLatin1String(cursor.Tabla())));
}

} // namespace

bool EscribirFilaUnica(const Servicios &servicios, Cursor &cursor, const QStringList &textos,
                       const std::function<void()> &escribir) {
    const Operacion operacion = Operacion{QLatin1String(cursor.Tabla())} + textos;
    return Almacenar(servicios.frmBases, servicios.preguntas, operacion, [&] {
        ComprobarFila(cursor);
        escribir();
        cursor.Refresh();
    });
}

} // namespace tarvo
