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

bool EscribirFilaUnica(const Servicios &servicios, Cursor &cursor, const std::function<void()> &escribir) {
    return Almacenar(servicios.frmBases, servicios.preguntas, {}, [&] {
        ComprobarFila(cursor);
        escribir();
        cursor.Refresh();
    });
}

} // namespace tarvo
