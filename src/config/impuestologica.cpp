#include "config/impuestologica.h"

#include "config/escritura.h"
#include "desktop/preguntas.h"
#include "store/store.h"

namespace tarvo {

namespace {

QString Marca(bool si) {
    return si ? QStringLiteral("Si") : QStringLiteral("No");
}

} // namespace

ImpuestoPersonalizado ImpuestoLogica::Cargar() {
    const ImpuestoPersonalizado impuesto = LeerImpuesto(servicios_.frmBases);
    return impuesto.utilizar ? impuesto : ImpuestoPersonalizado();
}

ImpuestoLogica::Resultado ImpuestoLogica::Guardar(const ImpuestoPersonalizado &impuesto) {
    if (impuesto.utilizar && impuesto.nombre.isEmpty()) {
        servicios_.preguntas.Informar(
            QStringLiteral("Debe ingresar un nombre para el impuesto personalizado."));
        return Resultado::FaltaNombre;
    }
    FrmBases &bases = servicios_.frmBases;
    const QStringList textos{Marca(impuesto.utilizar), impuesto.nombre, impuesto.porcentaje,
                             Marca(impuesto.sobreIva), Marca(impuesto.exigeIFiscal)};
    const bool guardado = EscribirFilaUnica(servicios_, bases.datImpuesto, textos, [&] {
        bases.camImpUtilizar = Marca(impuesto.utilizar);
        bases.camImpNombre = impuesto.nombre;
        bases.camImpPorcentaje = impuesto.porcentaje;
        bases.camImpSobreIVA = Marca(impuesto.sobreIva);
        bases.camImpExisteIFiscal = Marca(impuesto.exigeIFiscal);
    });
    return guardado ? Resultado::Guardado : Resultado::Rechazado;
}

} // namespace tarvo
