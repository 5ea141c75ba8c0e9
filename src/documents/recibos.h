// The slips of the accounts: the receipt of a payment, the credit note and the return of a cash sale.
//
// They share header and grid with the ticket of a sale (ticket.h). The posting has been done before, so a
// printer that fails (ErrorDatos) undoes nothing. docs/papel.md shows each slip.
#pragma once

#include "documents/ticket.h"

#include <optional>

namespace tarvo {

struct Recibo {
    QDateTime momento; // of printing
    QString cliente;
    QString importe; // as typed
};

// A returned document. A return from the cash list has no customer and no line for one.
struct Devolucion {
    QString titulo;    // "Nota de crédito" or "Devolución Contado"
    QDateTime momento; // of printing
    std::optional<QString> cliente;
    // Of the sale that is returned, from its row on screen.
    QString fecha;
    QString hora;
    QString descripcion;
    QString importe;
};

// Both to the end of the document.
void ImprimirRecibo(Superficie &papel, const Cabecera &cabecera, const Recibo &recibo);
void ImprimirDevolucion(Superficie &papel, const Cabecera &cabecera, const Devolucion &devolucion);

} // namespace tarvo
