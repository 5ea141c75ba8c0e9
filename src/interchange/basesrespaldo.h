// The five data files as backup and restore number and call them.
#pragma once

#include <QString>

#include <array>

namespace tarvo {

constexpr int kBases = 5;
using Elegidas = std::array<bool, kBases>; // by index

struct BaseRespaldo {
    QString archivo; // "config.mdb"
    QString titulo;  // of its check boxes
    QString nombre;  // in a message: "configuración"
};

const std::array<BaseRespaldo, kBases> &BasesRespaldo();

// The restore has an order of its own: config, ventas, articulos, proveedores, clientes.
constexpr std::array<std::size_t, kBases> kOrdenRecuperar{0, 1, 2, 4, 3};

} // namespace tarvo
