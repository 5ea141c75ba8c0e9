#include "config/impuestologica.h"

#include "config/escritura.h"
#include "desktop/preguntas.h"
#include "store/store.h"

namespace tarvo {

namespace {

constexpr std::string_view kSi = "Si";

QString Marca(bool si) {
    return si ? QStringLiteral("Si") : QStringLiteral("No");
}

} // namespace

DatosImpuesto ImpuestoLogica::Cargar() {
    return LeerCallando([&bases = servicios_.frmBases]() -> DatosImpuesto {
        if (!FilaUnica(bases.datImpuesto) || !bases.camImpUtilizar.Es(kSi))
            return {};
        return {.utilizar = true,
                .nombre = bases.camImpNombre.Texto(),
                .porcentaje = bases.camImpPorcentaje.Texto(),
                .sobreIva = bases.camImpSobreIVA.Es(kSi),
                .existeIFiscal = bases.camImpExisteIFiscal.Es(kSi)};
    });
}

ImpuestoLogica::Resultado ImpuestoLogica::Guardar(const DatosImpuesto &datos) {
    if (datos.utilizar && datos.nombre.isEmpty()) {
        servicios_.preguntas.Informar(
            QStringLiteral("Debe ingresar un nombre para el impuesto personalizado."));
        return Resultado::FaltaNombre;
    }
    FrmBases &bases = servicios_.frmBases;
    const QStringList textos{Marca(datos.utilizar), datos.nombre, datos.porcentaje, Marca(datos.sobreIva),
                             Marca(datos.existeIFiscal)};
    const bool guardado = EscribirFilaUnica(servicios_, bases.datImpuesto, textos, [&] {
        bases.camImpUtilizar = Marca(datos.utilizar);
        bases.camImpNombre = datos.nombre;
        bases.camImpPorcentaje = datos.porcentaje;
        bases.camImpSobreIVA = Marca(datos.sobreIva);
        bases.camImpExisteIFiscal = Marca(datos.existeIFiscal);
    });
    return guardado ? Resultado::Guardado : Resultado::Rechazado;
}

} // namespace tarvo
