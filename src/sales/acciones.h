// What the operator does with the sale in progress: what each step asks, tells and changes. The issue stands
// by itself (emision.h).
#pragma once

#include "sales/venta.h"

namespace tarvo {

class Preguntas;

// The units that the quantity field asks for, one while it is empty. Nothing for a barcode that was scanned
// into it.
std::optional<qint64> CantidadPedida(const QString &texto);

// Adds the article in row `fila`, or tells why it can't be sold. Returns its line, -1 when nothing was added.
int AgregarArticulo(Preguntas &preguntas, Venta &venta, int fila, qint64 cantidad);

// Asks, and takes line `fila` out of the sale. False, and nothing changes, without such a line or on a no.
bool QuitarLinea(Preguntas &preguntas, Venta &venta, int fila);

// Asks, and starts over. False, and nothing changes, on a no.
bool EmpezarNueva(Preguntas &preguntas, Venta &venta);

} // namespace tarvo
