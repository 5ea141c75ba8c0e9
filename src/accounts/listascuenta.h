// The three lists of the accounts window, as data: their columns, widths and sort rules.
//
// Each list starts sorted by its last column and shows the arrow on "Fecha". A click on "Fecha" sorts by the
// hidden column before the last, whatever that holds in this list; filled again after that click, the list
// shows no arrow, since it then stands on that hidden column. The other columns sort by their own texts.
#pragma once

#include "desktop/listatexto.h"

#include <array>

namespace tarvo {

enum class ListaCuenta { Estado, Contado, Caja };
inline constexpr std::array kListasCuenta{ListaCuenta::Estado, ListaCuenta::Contado, ListaCuenta::Caja};

// Columns of LVEstado and LVCaja.
namespace movimiento {
enum Columna { Fecha, Hora, Detalle, NumComp, Debe, Haber, Subtotal, Id, OrdFecha, Cuantas };
}
// Columns of LVEstadoContado.
namespace contado {
enum Columna { Fecha, Hora, Detalle, NumComp, Subtotal, Id, OrdFecha, Cuantas };
}

// Widths in twips of the columns that change theirs: "Fecha" without and with a check box in it, and the
// column that gives way to a scroll bar, before and after.
namespace anchocuenta {
inline constexpr int kFecha = 960;
inline constexpr int kFechaMarcas = 1180;
inline constexpr int kImporte = 1300;
inline constexpr int kImporteBarra = 1060;
} // namespace anchocuenta

struct ReglasCuenta {
    QString nombre; // of the list control
    QString titulo; // of the window while the list is on screen
    QString rotulo; // of the sum
    int columnaSuma = 0;
    int columnaBarra = 0; // the one that gives way to a scroll bar
    // "Detalle" takes the width of the list less this: as a rule, with a scroll bar, with check boxes.
    int resto = 0;
    int restoBarra = 0;
    int restoMarcas = 0;
};
const ReglasCuenta &ReglasDe(ListaCuenta cual);

std::vector<ColumnaLista> ColumnasCuenta(ListaCuenta cual);
// Sorts by the list's first sort column, ascending; a click sorts no list without rows.
void OrdenInicial(ListaTexto &lista);

} // namespace tarvo
