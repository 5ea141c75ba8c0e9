#include "desktop/buscador.h"

namespace tarvo {

int Buscador::Buscar(const ListaTexto &lista, const std::vector<int> &columnas, const QString &texto) {
    if (indiceBusqueda_ > lista.Filas())
        indiceBusqueda_ = 1;
    const int fila = lista.BuscarParte(columnas, texto, indiceBusqueda_ - 1);
    if (fila >= 0)
        ++indiceBusqueda_;
    return fila;
}

} // namespace tarvo
