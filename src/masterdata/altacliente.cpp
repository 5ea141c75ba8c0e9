#include "masterdata/altacliente.h"

#include "desktop/almacenar.h"
#include "masterdata/reglascatalogos.h"
#include "store/store.h"

namespace tarvo {

namespace {

void Escribir(FrmBases &frmBases, const QStringList &valores) {
    frmBases.datClientes.AddNew();
    auto valor = valores.begin();
    for (const CampoDetalle &campo : CamposClientes(frmBases))
        *campo.campo = *valor++;
    frmBases.datClientes.Refresh();
}

} // namespace

bool GuardarClienteNuevo(const Servicios &servicios, const QStringList &valores) {
    return Almacenar(
        servicios.frmBases, servicios.preguntas, Operacion{QStringLiteral("Cliente")} + valores,
        [&] { Escribir(servicios.frmBases, valores); },
        QStringLiteral("Los datos del cliente siguen en pantalla."));
}

} // namespace tarvo
