// The slips of the ticket printer: a grid of monospaced columns, Courier New, header in size 11, body in size
// 8 and 39 columns wide. Columns count the characters to their left. docs/papel.md shows each slip.
#pragma once

#include "documents/superficie.h"

#include <QDateTime>

#include <array>
#include <vector>

namespace tarvo {

class FrmBases;

// The five header lines, of table Ticket or as typed in the options.
struct LineaCabecera {
    QString texto;
    bool negrita = false;
};
using Cabecera = std::array<LineaCabecera, 5>;

Cabecera LeerCabecera(FrmBases &frmBases);

// The body's width, the rule's length and the column at which amounts end.
inline constexpr int kColumnasTicket = 39;

// Two empty lines, the five lines centred on column 14, date and time; leaves size 8 and the bold of line 5.
void ImprimirCabecera(Superficie &papel, const Cabecera &cabecera, const QString &fecha, const QString &hora);
void ImprimirCabecera(Superficie &papel, const Cabecera &cabecera, const QDateTime &momento);

// One line of a sale; amounts as they stand on screen.
struct LineaTicket {
    QString nombre;
    QString cantidad;
    QString precioUnitario;
    QString subtotal;
};

// Everything that the ticket of a sale shows, read while the sale is still on screen.
struct SolicitudTicket {
    Cabecera cabecera;
    QString fecha;    // dd/mm/yyyy, of the sale; the header block shows it
    QString hora;     // HH:nn
    QString titulo;   // "Factura contado", "Factura crédito"
    QString numero;   // may be empty
    QString cliente;  // empty: no customer lines
    QString idFiscal; // may be empty
    std::vector<LineaTicket> lineas;
    QString subtotal;
    QString iva;
    QString nombreImpuesto; // empty: the custom tax is not in use
    QString impuesto;
    QString total;
    QString descuento; // "10 %"
    QString totalConDescuento;
    QString vendedor; // text of the combo
};

// The ticket of a sale, to the end of the document.
void ImprimirTicket(Superficie &papel, const SolicitudTicket &venta);

// The test ticket of the options window: one empty line and the five lines, nothing else.
void ImprimirTicketPrueba(Superficie &papel, const Cabecera &lineas);

} // namespace tarvo
