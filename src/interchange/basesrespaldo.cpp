#include "interchange/basesrespaldo.h"

namespace tarvo {

const std::array<BaseRespaldo, kBases> &BasesRespaldo() {
    static const std::array<BaseRespaldo, kBases> bases{{
        {QStringLiteral("config.mdb"), QStringLiteral("&Configuración"), QStringLiteral("configuración")},
        {QStringLiteral("ventas.mdb"), QStringLiteral("&Ventas"), QStringLiteral("ventas")},
        {QStringLiteral("articulos.mdb"), QStringLiteral("&Artículos"), QStringLiteral("artículos")},
        {QStringLiteral("clientes.mdb"), QStringLiteral("C&lientes"), QStringLiteral("clientes")},
        {QStringLiteral("proveedores.mdb"), QStringLiteral("&Proveedores"), QStringLiteral("proveedores")},
    }};
    return bases;
}

} // namespace tarvo
