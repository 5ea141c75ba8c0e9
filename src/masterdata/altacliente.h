// The quick entry of a customer from inside another task. Unlike the customers window it has no list, and
// like it no check for a repeated code.
#pragma once

#include "desktop/servicios.h"

#include <QStringList>

namespace tarvo {

// Adds a customer with these texts, one per field of CamposClientes. False when it isn't stored: the operator
// has been told, and it can be tried again.
bool GuardarClienteNuevo(const Servicios &servicios, const QStringList &valores);

} // namespace tarvo
