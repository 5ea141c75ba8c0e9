// What stands in the three account lists: the rows of Ventas that belong in each, in table order, with their
// cells and tones. No window is needed for it, and only the columns of Ventas that a list shows are loaded.
//
// All three throw ErrorDatos when Ventas can't be read.
#pragma once

#include "desktop/contenidolista.h"

#include <QString>

namespace tarvo {

class FrmBases;

// The cash list: every row whose customer is "0".
ContenidoLista ContenidoContado(FrmBases &bases);

// The statement: every row of that customer. A kind that isn't known shows without "Debe" and "Haber", with
// the row's id as its "Subtotal".
ContenidoLista ContenidoEstado(FrmBases &bases, const QString &idCliente);

// Both ends are inclusive; the hours bind on the first and last day only. Dates are "yyyy/mm/dd", hours
// "HH:nn"; texts of a file that are neither are compared as texts all the same.
struct RangoCaja {
    QString desde;
    QString horaDesde;
    QString hasta;
    QString horaHasta;
};
// The cash sheet: every row of the range, whoever its customer. A kind that isn't known shows without
// amounts.
ContenidoLista ContenidoCaja(FrmBases &bases, const RangoCaja &rango);

} // namespace tarvo
