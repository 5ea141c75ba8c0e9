// The slips of the ticket printer: a grid of monospaced columns, Courier New, header in size 11, body in size
// 8 and 39 columns wide. Columns count the characters to their left. docs/papel.md shows each slip.
#pragma once

#include "documents/comprobante.h"
#include "documents/superficie.h"

#include <QDateTime>

#include <array>

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
// What is left of a name or description beside its amount.
inline constexpr qsizetype kLargoDetalle = 35;

// Two empty lines, the five lines centred on column 14, date and time; leaves size 8 and the bold of line 5.
void ImprimirCabecera(Superficie &papel, const Cabecera &cabecera, const QString &fecha, const QString &hora);
void ImprimirCabecera(Superficie &papel, const Cabecera &cabecera, const QDateTime &momento);

// A rule across the body, and an amount that ends flush with it.
void Raya(Superficie &papel);
void AlFinal(Superficie &papel, const QString &importe);

// The ticket of a sale, to the end of the document.
void ImprimirTicket(Superficie &papel, const Cabecera &cabecera, const Comprobante &venta);

// The test ticket of the options window: one empty line and the five lines, nothing else.
void ImprimirTicketPrueba(Superficie &papel, const Cabecera &lineas);

} // namespace tarvo
