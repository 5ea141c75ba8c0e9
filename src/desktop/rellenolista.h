// The fill of a list whose window says nothing when it fails: a table without rows leaves its list empty, one
// that the store refuses or that is closed leaves it unreadable.
#pragma once

#include "desktop/listatexto.h"
#include "store/cursor.h"
#include "store/errordatos.h"

namespace tarvo {

template <typename Relleno> void LlenarOVaciar(Cursor &cursor, ListaTexto &lista, Relleno llenar) {
    try {
        if (cursor.RecordCount() > 0)
            return llenar();
        if (cursor.Abierto())
            return lista.Limpiar();
    } catch (const ErrorDatos &) {
        // The list says it.
    }
    lista.QuedarIlegible();
}

} // namespace tarvo
