// A sales document as it is printed, on a ticket or on the shop's own invoice form.
//
// All values are texts as they stood on screen when the sale was issued; paper computes nothing.
#pragma once

#include <QString>

#include <vector>

namespace tarvo {

// One line of a sale.
struct LineaComprobante {
    QString codigo;
    QString nombre;
    QString cantidad;
    QString precioUnitario;
    QString subtotal;
};

struct Comprobante {
    QString tipo;   // "Factura contado", "Factura crédito"
    QString numero; // may be empty
    QString fecha;  // dd/mm/yyyy
    QString hora;   // HH:nn
    QString codigoCliente;
    QString cliente;  // empty: the sale has no customer
    QString idFiscal; // may be empty
    bool consumidorFinal = true;
    QString vendedor; // text of the combo
    std::vector<LineaComprobante> lineas;
    QString subtotal;
    QString iva;
    QString nombreImpuesto; // empty: the custom tax is not in use
    QString impuesto;
    QString total;
    QString descuento; // "10 %"
    QString totalConDescuento;
};

} // namespace tarvo
