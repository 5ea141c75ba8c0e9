#include "masterdata/impuesto.h"

#include "store/errordatos.h"
#include "store/store.h"

namespace tarvo {

ImpuestoPersonalizado LeerImpuesto(FrmBases &frmBases) {
    constexpr std::string_view kSi = "Si";
    try {
        if (!FilaUnica(frmBases.datImpuesto))
            return {};
        return {.utilizar = frmBases.camImpUtilizar.Es(kSi),
                .nombre = frmBases.camImpNombre.Texto(),
                .porcentaje = frmBases.camImpPorcentaje.Texto(),
                .sobreIva = frmBases.camImpSobreIVA.Es(kSi),
                .exigeIFiscal = frmBases.camImpExisteIFiscal.Es(kSi),
                .sinCondicion = frmBases.camImpExisteIFiscal.Es(std::string_view("No"))};
    } catch (const ErrorDatos &) {
        return {};
    }
}

} // namespace tarvo
