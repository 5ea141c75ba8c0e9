// A sales document as it is printed, on a ticket or on the shop's own invoice form.
//
// All values are texts as they stood on screen when the sale was issued; paper computes nothing.
#pragma once

#include <QString>

#include <string_view>
#include <vector>

namespace tarvo {

// How Ventas describes an invoice, which its return is told by.
inline constexpr std::string_view kFacturaContado = "Factura contado";
inline constexpr std::string_view kFacturaCredito = "Factura crédito";

// One line of a sale.
struct LineaComprobante {
    QString codigo;
    QString nombre;
    QString cantidad;
    QString precioUnitario;
    QString subtotal;
};

struct Comprobante {
    QString tipo;   // kFacturaContado or kFacturaCredito
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
