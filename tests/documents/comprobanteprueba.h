// The sale and the heading of the shop that the papers of these tests carry.
#pragma once

#include "documents/ticket.h"

namespace tarvo {

inline Cabecera CabeceraTienda() {
    return {{{u"Almacén Sol"_qs, true},
             {u"Av. Italia 1234"_qs, false},
             {QString(), true},
             {u"Tel. 2400 0000"_qs, false},
             {u"Gracias"_qs, true}}};
}

inline Comprobante VentaContado(int lineas = 1) {
    Comprobante venta;
    venta.fecha = u"22/11/2026"_qs;
    venta.hora = u"10:42"_qs;
    venta.tipo = u"Factura contado"_qs;
    for (int i = 0; i < lineas; ++i)
        venta.lineas.push_back({u"A%1"_qs.arg(i), u"Yerba"_qs, u"3"_qs, u"$ 12,50"_qs, u"$ 37,50"_qs});
    venta.subtotal = u"$ 37,50"_qs;
    venta.iva = u"$ 8,25"_qs;
    venta.total = venta.totalConDescuento = u"$ 45,75"_qs;
    venta.descuento = u"0 %"_qs;
    venta.vendedor = u"1 - Ana"_qs;
    return venta;
}

} // namespace tarvo
