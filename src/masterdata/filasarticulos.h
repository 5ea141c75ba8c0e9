// The rows of the articles list: which articles a category filter shows, and what they cost.
//
// The price is derived here from the true percentage of the IVA type. The window derives it from the last
// three characters of the type's label instead (ArticulosLogica::CalcularPVenta); for some types the two
// differ.
#pragma once

#include "masterdata/listadetalle.h"
#include "store/moneda.h"

namespace tarvo {

namespace columnasArticulos {
enum { kCodigo, kNombre, kStock, kPCompra, kSubtotal, kIva, kPVenta, kId, kIdCategoria };
}

// Filters besides the `id` of a category.
constexpr int kTodas = 0;
constexpr int kSinCategoria = -1;

// Columns in the order of columnasArticulos. An article without an IVA type costs 0, so that its tax is the
// negative subtotal. A category that no longer exists counts as none.
ContenidoLista LeerArticulos(FrmBases &frmBases, int filtro);

// P. Venta minus subtotal, as an amount; both are money text.
QString IvaDe(const Moneda &moneda, const QString &pventa, const QString &subtotal);

} // namespace tarvo
