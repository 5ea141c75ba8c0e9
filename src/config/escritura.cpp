#include "config/escritura.h"

#include "desktop/preguntas.h"
#include "store/store.h"
#include "store/transaccion.h"

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

bool FilaUnica(Cursor &cursor) {
    if (!cursor.HayFila() && cursor.RecordCount() > 0)
        cursor.MoveFirst();
    return cursor.HayFila();
}

bool EscribirFilaUnica(const Servicios &servicios, Cursor &cursor, const std::function<void()> &escribir) {
    try {
        ComprobarFila(cursor);
        Transaccion transaccion(servicios.frmBases);
        escribir();
        cursor.Refresh();
        transaccion.Confirmar();
        return true;
    } catch (const ErrorDatos &error) {
        servicios.preguntas.Mostrar(error.Descripcion(), Icono::Critico);
        return false;
    }
}

} // namespace tarvo
