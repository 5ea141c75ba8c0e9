#include "interchange/tablaexportacion.h"

#include <algorithm>

namespace tarvo {

namespace {

std::vector<ColumnaHoja> ColumnasPersonas() {
    return {{2, QStringLiteral("Código")},
            {3, QStringLiteral("Nombre")},
            {5, QStringLiteral("Nombre fiscal")},
            {7, QStringLiteral("Id. Fiscal")},
            {9, QStringLiteral("Teléfono")}};
}

// "Subotal" is part of the format.
const std::vector<TablaExportacion> &Tablas() {
    static const std::vector<TablaExportacion> tablas{
        {QStringLiteral("LVClientes"), QStringLiteral("Listado de clientes"), 5, ColumnasPersonas()},
        {.lista = QStringLiteral("LVArticulos"),
         .titulo = QStringLiteral("Listado de artículos"),
         .filaCabecera = 5,
         .columnas = {{2, QStringLiteral("Código")},
                      {3, QStringLiteral("Artículo")},
                      {6, QStringLiteral("Stock")},
                      {8, QStringLiteral("P.Compra")},
                      {10, QStringLiteral("Subotal")},
                      {12, QStringLiteral("P.Venta")}},
         .filasFijas = 254},
        {QStringLiteral("LVProveedores"), QStringLiteral("Listado de proveedores"), 5, ColumnasPersonas()},
        {.lista = QStringLiteral("LVEstadoContado"),
         .titulo = QStringLiteral("Listado de ventas contado"),
         .filaCabecera = 5,
         .columnas = {{2, QStringLiteral("Fecha")},
                      {3, QStringLiteral("Hora")},
                      {4, QStringLiteral("Detalle")},
                      {6, QStringLiteral("Subtotal")}},
         .pie = QStringLiteral("Total"),
         .columnaPie = 5},
        {.lista = QStringLiteral("LVEstado"),
         .titulo = QStringLiteral("Estado de cuenta"),
         .filaCabecera = 7,
         .columnas = {{2, QStringLiteral("Fecha")},
                      {3, QStringLiteral("Detalle")},
                      {5, QStringLiteral("Debe")},
                      {7, QStringLiteral("Haber")},
                      {9, QStringLiteral("Subtotal")}},
         .pie = QStringLiteral("Saldo"),
         .columnaPie = 8,
         .cliente = true},
        {.lista = QStringLiteral("LVCaja"),
         .titulo = QStringLiteral("Planilla de caja"),
         .filaCabecera = 7,
         .columnas = {{2, QStringLiteral("Fecha")},
                      {3, QStringLiteral("Hora")},
                      {4, QStringLiteral("Detalle")},
                      {6, QStringLiteral("Debe")},
                      {8, QStringLiteral("Haber")},
                      {10, QStringLiteral("Subtotal")}},
         .pie = QStringLiteral("Saldo"),
         .columnaPie = 9},
    };
    return tablas;
}

} // namespace

const TablaExportacion *TablaDe(const QString &lista) {
    const auto tabla = std::ranges::find(Tablas(), lista, &TablaExportacion::lista);
    return tabla == Tablas().end() ? nullptr : &*tabla;
}

} // namespace tarvo
