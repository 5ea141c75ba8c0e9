#include "accounts/listascuenta.h"

namespace tarvo {

namespace {

constexpr int kLargoFecha = 10;
constexpr int kLargoHora = 5;
constexpr int kLargoNumero = 13; // "0001-00000001"
constexpr int kLargoImporte = 11;

ColumnaLista Importe(const char *titulo) {
    return {.titulo = QString::fromUtf8(titulo),
            .ancho = anchocuenta::kImporte,
            .derecha = true,
            .legibles = kLargoImporte};
}

// The columns that all three lists begin with; a click on "Fecha" sorts by the column `clave`.
std::vector<ColumnaLista> Comunes(int clave) {
    return {{.titulo = QStringLiteral("Fecha"),
             .ancho = anchocuenta::kFecha,
             .claveOrden = clave,
             .legibles = kLargoFecha},
            {.titulo = QStringLiteral("Hora"), .ancho = 700, .legibles = kLargoHora},
            {.titulo = QStringLiteral("Detalle"), .ancho = 4000},
            {.titulo = QStringLiteral("Num. Comp."), .ancho = 1400, .legibles = kLargoNumero}};
}

void Ocultas(std::vector<ColumnaLista> &columnas) {
    columnas.push_back({.titulo = QStringLiteral("id"), .oculta = true});
    columnas.push_back({.titulo = QStringLiteral("ordFecha"), .oculta = true, .flecha = 0});
}

} // namespace

const ReglasCuenta &ReglasDe(ListaCuenta cual) {
    static const std::array<ReglasCuenta, 3> reglas{{
        {.nombre = QStringLiteral("LVEstado"),
         .titulo = QStringLiteral("Estado de cuenta"),
         .rotulo = QStringLiteral("Saldo"),
         .columnaSuma = movimiento::Subtotal,
         .columnaBarra = movimiento::Subtotal,
         .resto = 7070,
         .restoBarra = 7070,
         .restoMarcas = 6090},
        {.nombre = QStringLiteral("LVEstadoContado"),
         .titulo = QStringLiteral("Estado de cuenta - Ventas contado"),
         .rotulo = QStringLiteral("Total"),
         .columnaSuma = contado::Subtotal,
         .columnaBarra = contado::Subtotal,
         .resto = 4420,
         .restoBarra = 4560,
         .restoMarcas = 3480},
        {.nombre = QStringLiteral("LVCaja"),
         .titulo = QStringLiteral("Estado de cuenta - Caja"),
         .rotulo = QStringLiteral("Saldo"),
         .columnaSuma = movimiento::Haber,
         .columnaBarra = movimiento::NumComp,
         .resto = 7520,
         .restoBarra = 7520},
    }};
    return reglas[static_cast<std::size_t>(cual)];
}

std::vector<ColumnaLista> ColumnasCuenta(ListaCuenta cual) {
    std::vector<ColumnaLista> columnas =
        Comunes(cual == ListaCuenta::Contado ? int{contado::Id} : int{movimiento::Id});
    if (cual != ListaCuenta::Contado) {
        columnas.push_back(Importe("Debe"));
        columnas.push_back(Importe("Haber"));
    }
    columnas.push_back(Importe("Subtotal"));
    Ocultas(columnas);
    return columnas;
}

void OrdenInicial(ListaTexto &lista) {
    lista.DejarVaciaSinOrdenar();
    lista.Ordenar(lista.columnCount() - 1, Qt::AscendingOrder);
}

} // namespace tarvo
