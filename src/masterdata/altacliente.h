// The quick entry of a customer from inside another task. Unlike the customers window it has no list, and
// like it no check for a repeated code.
#pragma once

#include <QStringList>

namespace tarvo {

class FrmBases;

// Adds a customer with these texts, one per field of CamposClientes, as one transaction. Throws ErrorDatos;
// then no row is written.
void GuardarClienteNuevo(FrmBases &frmBases, const QStringList &valores);

} // namespace tarvo
