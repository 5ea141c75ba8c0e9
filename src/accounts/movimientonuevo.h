// The rows that the accounts window adds to Ventas: receipts, returns and credit notes. Each is one
// transaction; a return's row and the mark on its invoice are one.
//
// The writes run inside the transaction that is open, and throw ErrorDatos.
#pragma once

#include "accounts/listascuenta.h"

#include <QDateTime>

#include <optional>

namespace tarvo {

class FrmBases;

// A payment on account; `total` is money text.
void EscribirRecibo(FrmBases &bases, const QString &idCliente, const QString &total,
                    const QDateTime &momento);

// A document of a list that is taken back whole.
struct DocumentoDevuelto {
    // The invoice, as it stands in the list.
    QString fecha;
    QString hora;
    QString detalle;
    // The new row.
    QString tipo;
    QString descripcion;
    QString idCliente;
    QString total;
    // The slip.
    QString titulo;
    QString importe;
    // The invoice whose `id` is this text gets the mark as its `descripcion`.
    QString idFactura;
    QString marca;
};

// How the invoice in row `fila` is taken back; nothing for a row that isn't one, by its detail. `idCliente`
// is that of the statement; a return from the cash list has none.
//
// `total` and slip take what stands in fixed columns: in the cash list that is the document number, not its
// amount. `idFactura` too comes from fixed columns, which hold no id: the mark is not written, and an invoice
// can be taken back more than once. Both are how the shop's files have always been kept, they stay.
std::optional<DocumentoDevuelto> DevolucionDe(const ListaTexto &lista, ListaCuenta cual, int fila,
                                              const QString &idCliente);
// Row `fila` has nothing to take back and leaves the list while documents are chosen.
bool NoSeDevuelve(const ListaTexto &lista, ListaCuenta cual, int fila);

void EscribirDevolucion(FrmBases &bases, const DocumentoDevuelto &devolucion, const QDateTime &momento);

// Row `fila` of the statement is a cash document: an invoice, marked or not, or its return.
bool EsContado(const ListaTexto &estado, int fila);

} // namespace tarvo
