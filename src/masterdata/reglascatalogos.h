// Customers and suppliers: their tables for the list-and-detail pattern. Codes are typed and may repeat.
#pragma once

#include "masterdata/listadetalle.h"

namespace tarvo {

ReglasDetalle ReglasClientes(FrmBases &frmBases);
ReglasDetalle ReglasProveedores(FrmBases &frmBases);

} // namespace tarvo
