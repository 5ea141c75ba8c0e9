// How the options read and write their one-row tables: a read that fails leaves the panel as it is and says
// nothing, a write is one transaction and a refusal is told.
#pragma once

#include "desktop/servicios.h"
#include "store/errordatos.h"

#include <QStringList>

#include <functional>

namespace tarvo {

class Cursor;

// What `leer` gives, or an empty value when the table can't be read.
template <typename Leer> auto LeerCallando(Leer leer) -> decltype(leer()) {
    try {
        return leer();
    } catch (const ErrorDatos &) {
        return {};
    }
}

// Runs `escribir`, which writes fields of the only row of `cursor`, as one transaction; `textos` are what it
// writes (see Operacion). When the row isn't there or the disk refuses, nothing is written, the operator
// reads why, and the result is false.
bool EscribirFilaUnica(const Servicios &servicios, Cursor &cursor, const QStringList &textos,
                       const std::function<void()> &escribir);

} // namespace tarvo
