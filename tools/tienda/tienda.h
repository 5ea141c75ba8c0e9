// A sample shop: the five files filled with goods, people and three years of documents, the same for the same
// size and day. For trying the program out, for the tests of the whole program and for the benches.
#pragma once

#include "store/moneda.h"

#include <QDate>
#include <QString>

namespace tarvo {

struct MedidaTienda {
    int articulos = 400;
    int clientes = 60;
    int ventas = 6000;
};

// Makes the folder `Datos` (with its templates in `vacio`) in `carpeta` and fills it, and beside it
// `facturas` with the shop's invoice form; the last document is of the day `hasta`. Returns the path of
// `Datos`. Throws ErrorDatos, also when there is a `Datos` in `carpeta` already, and SQLite::Exception when a
// file can't be written; `Datos` is then gone again.
QString HacerTienda(const QString &carpeta, const MedidaTienda &medida, QDate hasta,
                    const Moneda &moneda = Moneda());

} // namespace tarvo
