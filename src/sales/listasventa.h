// The lists of the sale window: their columns, and how they are filled from the store.
//
// A fill replaces all rows. The store's columns are shared with the list and not copied; only the price, the
// IVA and the tones of the stock are worked out per row. A fill that the store refuses leaves its list empty,
// and so does a table that could not be opened.
#pragma once

#include "desktop/listatexto.h"
#include "desktop/modobusqueda.h"

#include <QStringList>

namespace tarvo {

class FrmBases;
class Moneda;

// Columns of LVArticulos. The stock is the working copy: every add and remove of the sale changes it.
namespace articulo {
enum Columna { Codigo, CodBarras, Nombre, Stock, Precio, Iva, Id, TipoIva };
}
// Columns of LVDetalle, the document in progress. The article's id is the key of a line.
namespace linea {
enum Columna { Codigo, Nombre, Precio, Cantidad, Subtotal, IdArticulo, Iva };
}

std::vector<ColumnaLista> ColumnasArticulos();
std::vector<ColumnaLista> ColumnasDetalle();

// What the search looks into; the first mode is that of the scanner.
std::vector<ModoBusqueda> ModosArticulos();

void CargarArticulos(FrmBases &frmBases, ListaTexto &articulos);

// First entry of the seller combo: no seller chosen.
QString SinVendedor();
// The entries of the seller combo, the first one is SinVendedor().
QStringList CargarVendedores(FrmBases &frmBases);
// `id` of the seller whose entry reads `texto`; empty when there is none (any more).
QString IdVendedor(FrmBases &frmBases, const QString &texto);

// Tone of a stock cell: green at 0, red below, normal above.
Tono TonoStock(double stock);

} // namespace tarvo
