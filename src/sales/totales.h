// The amounts of a sale: what its lines come to, the custom tax and the discount.
//
// Amounts accumulate from the texts that the lines show, so that the rounding of each line counts; after that
// only the display rounds. The custom tax itself stays unrounded inside the total, and so the figures on
// screen needn't add up to the cent. The discount falls on subtotal, IVA and custom tax together and is not
// shown by itself.
#pragma once

#include "masterdata/impuesto.h"

namespace tarvo {

class ListaTexto;
class Moneda;

// Money text, as the labels of the sale show it.
struct Totales {
    QString subtotal;
    QString iva;
    QString impuesto;
    QString total;        // before the discount
    QString conDescuento; // what the document is worth
};

// `descuento` is a percentage, 0 to 100.
Totales CalcularTotales(const ListaTexto &detalle, const ImpuestoPersonalizado &impuesto, bool hayIFiscal,
                        int descuento, const Moneda &moneda);

// The labels of a window that has just opened: zeros without a symbol.
Totales TotalesEnCero(const Moneda &moneda);

} // namespace tarvo
