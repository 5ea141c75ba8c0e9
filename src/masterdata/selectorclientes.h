// The customers to pick from, in whatever task needs one: the columns of the list, its fill, the ways to
// search it, and in what the tasks differ.
#pragma once

#include "desktop/listatexto.h"
#include "desktop/modobusqueda.h"

namespace tarvo {

class FrmBases;

// Columns of LVClientes.
namespace cliente {
enum Columna { Codigo, Nombre, Telefono, IFiscal, Id };
}

std::vector<ColumnaLista> ColumnasClientes();

// All customers in table order; the store's columns are shared and not copied.
void CargarClientes(FrmBases &frmBases, ListaTexto &clientes);

struct ReglasSelector {
    std::vector<ModoBusqueda> modos; // the one with the key "nombre" is in use at first
    bool alta = false;               // a customer can be entered here
    bool enfocarLista = false;       // opening gives the list the focus, else the search field
    bool volverAlInicio = false;     // a search that came to its end starts at the top the next time
};

ReglasSelector SelectorDeVentas();
ReglasSelector SelectorDeCuentas();

} // namespace tarvo
