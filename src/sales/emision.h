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

// What the window's fields and labels hold when the sale is issued.
struct DatosComprobante {
    QString fecha;
    QString hora;
    QString numComp;
    QString vendedor; // text of the combo
    Totales totales;
    QString impresora; // name of the ticket printer
};

enum class ResultadoEmision {
    SinLineas,
    SinVendedor,
    NoConfirmada,
    NoGuardada, // the store refused: nothing is written, the operator has been told
    Emitida,
};

// Validates, asks, writes, offers the ticket and tells the success. The sale stays as it is: starting over
// after Emitida is the caller's. `leer` reads the window: once to validate, and again behind the question,
// since its clock goes on meanwhile.
ResultadoEmision Emitir(const Servicios &servicios, const Venta &venta,
                        const std::function<DatosComprobante()> &leer);

// The writing alone, inside the transaction that is open.
void EscribirVenta(FrmBases &frmBases, const Venta &venta, const DatosComprobante &comprobante);

// What paper shows of the sale. A custom tax in use that has no name is called "Impuesto".
Comprobante HacerComprobante(const Venta &venta, const DatosComprobante &datos);

// "Factura contado" or "Factura crédito".
QString DescripcionFactura(Pago pago);

} // namespace tarvo
