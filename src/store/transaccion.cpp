#include "store/transaccion.h"

#include "store/conexion.h"
#include "store/store.h"

namespace tarvo {

Transaccion::Transaccion(FrmBases &bases, const Operacion &operacion) : bases_(bases) {
    if (!bases_.conexion_)
        throw ErrorDatos(errores::kEscritura, QStringLiteral("La base de datos está cerrada."));
    bases_.conexion_->Empezar(operacion);
}

Transaccion::~Transaccion() {
    if (abierta_ && bases_.conexion_)
        bases_.conexion_->Deshacer();
}

void Transaccion::Confirmar() {
    if (!abierta_ || !bases_.conexion_)
        throw ErrorDatos(errores::kEscritura, QStringLiteral("La transacción ya está cerrada."));
    try {
        for (Cursor *cursor : bases_.conexion_->Cursores())
            cursor->ConfirmarEdicion();
    } catch (...) {
        abierta_ = false;
        bases_.conexion_->Deshacer();
        throw;
    }
    abierta_ = false;
    bases_.conexion_->Confirmar();
}

} // namespace tarvo
