// The amounts of a sale: what its lines come to, the custom tax and the discount.
//
// Amounts accumulate from the texts that the lines show, so that the rounding of each line counts; after that
// only the display rounds. The custom tax itself stays unrounded inside the total, and so the figures on
// screen needn't add up to the cent. The discount falls on subtotal, IVA and custom tax together and is not
// shown by itself.
#pragma once

#include <QString>

namespace tarvo {

class FrmBases;
class ListaTexto;
class Moneda;

// The custom tax as the one row of table Impuesto tells it.
struct ImpuestoPersonalizado {
    bool utilizar = false;
    QString nombre;
    double porcentaje = 0;
    bool sobreIva = false;     // the base is subtotal plus IVA, else the subtotal
    bool exigeIFiscal = false; // charged only on a customer with fiscal id
    bool sinCondicion = false; // charged on every sale

    bool Corresponde(bool hayIFiscal) const {
        return utilizar && (sinCondicion || (exigeIFiscal && hayIFiscal));
    }
};

// All off when the table is not open.
ImpuestoPersonalizado LeerImpuesto(FrmBases &frmBases);

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
