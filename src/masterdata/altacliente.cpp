#include "masterdata/altacliente.h"

#include "masterdata/reglascatalogos.h"
#include "store/store.h"
#include "store/transaccion.h"

namespace tarvo {

void GuardarClienteNuevo(FrmBases &frmBases, const QStringList &valores) {
    Transaccion transaccion(frmBases);
    frmBases.datClientes.AddNew();
    auto valor = valores.begin();
    for (const CampoDetalle &campo : CamposClientes(frmBases))
        *campo.campo = *valor++;
    frmBases.datClientes.Refresh();
    transaccion.Confirmar();
}

} // namespace tarvo
