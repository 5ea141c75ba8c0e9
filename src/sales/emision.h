// The issue: the only place where a sale reaches the store.
//
// One row of Ventas and the working stock of every line are written as one transaction, without a question in
// between. The ticket and the success message follow when the data are safe, so that a failing printer can't
// lose the sale. The lines themselves, the custom tax and the discount are not stored.
#pragma once

#include "desktop/servicios.h"
#include "documents/ticket.h"
#include "sales/venta.h"

#include <functional>

namespace tarvo {

enum class ResultadoEmision {
    SinLineas,
    SinVendedor,
    NoConfirmada,
    NoGuardada, // the store refused: nothing is written, the operator has been told
    Emitida,
};

// Validates, asks, writes, offers the ticket on `impresora` and tells the success. The sale stays as it is:
// starting over after Emitida is the caller's. The document is what the sale holds when the operator has
// confirmed, since the clock goes on while the question is up; table and ticket get the same one.
// `alEmitir` gets it as soon as it is stored.
ResultadoEmision Emitir(const Servicios &servicios, const Venta &venta, const QString &impresora,
                        const std::function<void(const Comprobante &)> &alEmitir);

// The document as paper shows it. A custom tax in use that has no name is called "Impuesto".
Comprobante HacerComprobante(const Venta &venta);

// The writing alone, inside the transaction that is open.
void EscribirVenta(FrmBases &frmBases, const Venta &venta, const Comprobante &comprobante);

// "Factura contado" or "Factura crédito".
QString DescripcionFactura(Pago pago);

} // namespace tarvo
