// What the three list panels of the options are, as data: IVA types, categories and sellers. The behaviour
// that they share is the list-and-detail controller; nothing looks at the articles and sales that point at a
// row.
#pragma once

#include "masterdata/listadetalle.h"

namespace tarvo {

ReglasDetalle ReglasIva(FrmBases &frmBases);
ReglasDetalle ReglasCategorias(FrmBases &frmBases);
ReglasDetalle ReglasVendedores(FrmBases &frmBases);

// Width in twips of the second column of a list, which gives way to the scroll bar of more than `filas` rows.
struct ReglaAncho {
    int filas = 0;
    int angosto = 0;
    int ancho = 0;
    int Para(int cantidad) const { return cantidad > filas ? angosto : ancho; }
};
inline constexpr ReglaAncho kAnchoIva{11, 2060, 2300};
inline constexpr ReglaAncho kAnchoCategorias{12, 2360, 2600};
inline constexpr ReglaAncho kAnchoVendedores{7, 2560, 2800};

} // namespace tarvo
