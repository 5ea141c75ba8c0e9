// The page machine of all listings, and the three listings of the master data.
//
// A page holds 51 counted rows, the first one 50: the counter starts at 1 and grows before each row. Columns are
// counted from 1 here, as on a typewriter's tabulator. docs/papel.md shows each listing.
#pragma once

#include "desktop/listatexto.h"
#include "documents/superficie.h"

#include <functional>

namespace tarvo {

// What differs between listings. Columns from 1.
struct Listado {
    QString titulo;
    int columnaTitulo = 1;
    QString subrayado;
    QString encabezado;          // line of column captions
    std::function<void(Superficie &)> trasTitulo; // a line between title and page number, may be empty
    std::function<void(Superficie &, int fila)> imprimirFila; // row from 0; without the line end
    std::function<QString(int contadas)> pie; // text at the end; given the counter's count of rows
    int columnaPie = 71;         // the text ends before this column
};

// Prints `filas` rows; the printer may fail with ErrorDatos(kImpresora).
void ImprimirListado(Superficie &papel, const Listado &listado, int filas);

Listado ListadoClientes(const ListaTexto &lista);
Listado ListadoArticulos(const ListaTexto &lista);
Listado ListadoProveedores(const ListaTexto &lista);

} // namespace tarvo
