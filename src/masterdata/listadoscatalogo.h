// The listings of customers, suppliers and articles: what they say and where their cells stand.
#pragma once

#include "documents/listado.h"

namespace tarvo {

// The list must outlive the report; its rows are printed as they stand on screen.
ReporteCatalogo ReporteClientes(const ListaTexto &lista);
ReporteCatalogo ReporteArticulos(const ListaTexto &lista);
ReporteCatalogo ReporteProveedores(const ListaTexto &lista);

} // namespace tarvo
