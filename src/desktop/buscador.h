// The search of all windows: a case-insensitive search for a part of a cell that starts at a remembered row.
//
// The start row (from 1) grows by one with each hit, from its own old value: it doesn't jump behind the row
// found, so the next search may find the same row again. Operators know this slow advance, it stays. A start
// row behind the last row becomes 1; the end without a hit leaves it as it is.
#pragma once

#include "desktop/listatexto.h"

namespace tarvo {

class Buscador {
  public:
    // Row found (from 0), or -1 at the end without a hit. `texto` must not be empty.
    int Buscar(const ListaTexto &lista, const std::vector<int> &columnas, const QString &texto);
    void Reiniciar() { indiceBusqueda_ = 1; }

  private:
    int indiceBusqueda_ = 1;
};

} // namespace tarvo
