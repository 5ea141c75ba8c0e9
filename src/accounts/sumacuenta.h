// The sum under an account list, worked out from its cells as they stand on screen.
#pragma once

#include "accounts/listascuenta.h"

namespace tarvo {

class Moneda;

struct SumaCuenta {
    double suma = 0;
    int sinNumero = 0;         // rows whose cell is no number: they aren't in the sum
    int primeraSinNumero = -1; // the first of them, in the order on screen
};

// The balance of the statement (its "Subtotal"), the total of the cash list, what came in on the cash sheet
// (its "Haber": returns and credit notes add to it).
SumaCuenta CalcularSuma(const ListaTexto &lista, ListaCuenta cual, const Moneda &moneda);

// What the operator is told about rows that can't be added up; empty when there are none.
QString MensajeSinNumero(const ListaTexto &lista, ListaCuenta cual, const SumaCuenta &suma);

} // namespace tarvo
