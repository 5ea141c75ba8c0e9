// The articles of the sample shop: product, variant, brand and size from lists, so that any number of them
// reads like a shop's shelves and no two have the same code, barcode or name.
#pragma once

#include "tienda/sorteo.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarvo {

// A kind of goods: one category, one IVA rate.
struct Familia {
    const char *categoria;
    int iva;            // 21, 10, 4 or 0
    int precioCentimos; // of a middling article
    const char *unidad;
    std::vector<const char *> productos;
    std::vector<const char *> variantes;
    std::vector<const char *> tamanos;
};

const std::vector<Familia> &Familias();
// The rates of IVA in use: percentage and name.
struct TipoIva {
    int porcentaje;
    const char *tipo;
};
const std::vector<TipoIva> &TiposIva();

struct ArticuloMuestra {
    std::string codigo;
    std::string codigoBarras; // EAN-13
    std::string nombre;
    std::string descripcion;
    std::string unidad;
    int categoria = 0; // position in Familias()
    int tipoIva = 0;   // position in TiposIva()
    int proveedor = 0; // from 0
    std::int64_t compraCentimos = 0;
    std::int64_t precioCentimos = 0; // before IVA
    int stock = 0;
    int stockMinimo = 0;
};

// Article number `indice`, from 0; `proveedores` is how many suppliers there are.
ArticuloMuestra HacerArticulo(int indice, int proveedores, Sorteo &sorteo);
// The thirteenth digit of an EAN-13 whose first twelve are given.
char DigitoControl(const std::string &doceDigitos);

} // namespace tarvo
