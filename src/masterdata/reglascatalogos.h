// Customers and suppliers: their tables for the list-and-detail pattern. Codes are typed and may repeat.
#pragma once

#include "masterdata/listadetalle.h"

namespace tarvo {

// The fields of a customer, wherever one is entered.
std::vector<CampoDetalle> CamposClientes(FrmBases &frmBases);

ReglasDetalle ReglasClientes(FrmBases &frmBases);
ReglasDetalle ReglasProveedores(FrmBases &frmBases);

} // namespace tarvo
