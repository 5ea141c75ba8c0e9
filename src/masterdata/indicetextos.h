// Counts the texts of list columns, case ignored, so that a duplicate test needn't walk a long list at each
// save.
//
// A column is counted when it is first asked for; changes of the list are told to it from then on.
#pragma once

#include "desktop/listatexto.h"

#include <unordered_map>

namespace tarvo {

class IndiceTextos {
  public:
    // Rows of `lista` whose cell in `columna` may equal `texto`: never fewer than there are, seldom more.
    int Cuantas(const ListaTexto &lista, int columna, std::string_view texto);
    void Agregar(int columna, std::string_view texto);
    void Quitar(int columna, std::string_view texto);
    // The list was filled anew.
    void Olvidar() { columnas_.clear(); }

  private:
    using Cuentas = std::unordered_map<std::size_t, int>;
    std::unordered_map<int, Cuentas> columnas_;
};

// True when the texts are equal but for case.
bool IgualSinCaja(std::string_view uno, std::string_view otro);

} // namespace tarvo
