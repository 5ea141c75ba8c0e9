// The fill of a list whose window says nothing when it fails: a table that the store refuses, that is closed
// or that has no row leaves its list empty.
#pragma once

#include "desktop/listatexto.h"
#include "store/cursor.h"
#include "store/errordatos.h"

namespace tarvo {

template <typename Relleno> void LlenarOVaciar(Cursor &cursor, ListaTexto &lista, Relleno llenar) {
    try {
        if (cursor.RecordCount() > 0) {
            llenar();
            return;
        }
    } catch (const ErrorDatos &) {
        // The operator sees an empty list, as with a table that is not there.
    }
    lista.Limpiar();
}

} // namespace tarvo
