#include "accounts/ventasdelmes.h"

#include "accounts/formasmovimiento.h"
#include "accounts/importes.h"
#include "store/store.h"

#include <cstdio>
#include <cstdlib>

namespace tarvo {

namespace {

constexpr std::size_t kLugarDia = 8; // in "2026/11/22"

bool EsFactura(std::string_view tipo) {
    return tipo == "Contado" || tipo == "Credito";
}

} // namespace

int DiasDelMes(int mes) {
    switch (mes) {
    case 2:
        return 29;
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    default:
        return 31;
    }
}

VentasDelMes SumarVentasDelMes(FrmBases &frmBases, int mes, int anio) {
    VentasDelMes ventas;
    ventas.porDia.assign(std::size_t(DiasDelMes(mes)), 0);
    if (!frmBases.datVentas.Abierto())
        return ventas;
    frmBases.datVentas.Cargar({&frmBases.camVentFecha, &frmBases.camVentTipo, &frmBases.camVentTotal});
    const ColumnaTexto &fechas = frmBases.camVentFecha.Columna();
    const ColumnaTexto &tipos = frmBases.camVentTipo.Columna();
    const ColumnaTexto &totales = frmBases.camVentTotal.Columna();
    const Importes importes(frmBases.moneda());
    char buscado[16];
    const int largo = std::snprintf(buscado, sizeof buscado, "%04d/%02d/", anio, mes);
    const std::string_view delMes(buscado, std::size_t(largo));
    std::string bufer;
    for (std::int64_t fila = 0; fila < fechas.Filas(); ++fila) {
        const std::string_view fecha = FechaOrden(fechas.Celda(fila), bufer);
        const bool esFecha = fecha.data() == bufer.data(); // one that is none stays as it stands
        if (!esFecha || !fecha.starts_with(delMes) || !EsFactura(tipos.Celda(fila)))
            continue;
        const std::size_t dia = std::size_t(std::atoi(bufer.c_str() + kLugarDia));
        if (const std::optional<double> total = importes.LeerTotal(totales.Celda(fila)))
            ventas.porDia[dia - 1] += *total;
        else
            ++ventas.ilegibles;
    }
    return ventas;
}

const std::vector<double> &ValoresDeMuestra() {
    static const std::vector<double> valores{42, 55, 38, 61, 70, 84, 23, 45, 52, 49, 66, 73, 90, 28, 47, 58,
                                             44, 69, 77, 95, 31, 50, 63, 57, 72, 81, 98, 34, 53, 60, 65};
    return valores;
}

} // namespace tarvo
