#include "sales/totales.h"

#include "sales/listasventa.h"
#include "store/errordatos.h"
#include "store/store.h"

namespace tarvo {

namespace {

double SumarColumna(const ListaTexto &detalle, int columna, const Moneda &moneda) {
    double suma = 0;
    for (int fila = 0; fila < detalle.Filas(); ++fila)
        suma += moneda.Numero(moneda.SinSimbolo(detalle.CeldaUtf8(fila, columna)));
    return suma;
}

} // namespace

ImpuestoPersonalizado LeerImpuesto(FrmBases &frmBases) {
    ImpuestoPersonalizado impuesto;
    try {
        if (!FilaUnica(frmBases.datImpuesto))
            return impuesto;
        impuesto.utilizar = frmBases.camImpUtilizar.Es(std::string_view("Si"));
        impuesto.nombre = frmBases.camImpNombre.Texto();
        impuesto.porcentaje = frmBases.moneda().Numero(frmBases.camImpPorcentaje.Utf8());
        impuesto.sobreIva = frmBases.camImpSobreIVA.Es(std::string_view("Si"));
        impuesto.exigeIFiscal = frmBases.camImpExisteIFiscal.Es(std::string_view("Si"));
        impuesto.sinCondicion = frmBases.camImpExisteIFiscal.Es(std::string_view("No"));
    } catch (const ErrorDatos &) {
        return {};
    }
    return impuesto;
}

Totales CalcularTotales(const ListaTexto &detalle, const ImpuestoPersonalizado &impuesto, bool hayIFiscal,
                        int descuento, const Moneda &moneda) {
    const double subtotal = SumarColumna(detalle, linea::Subtotal, moneda);
    const double iva = SumarColumna(detalle, linea::Iva, moneda);
    double personalizado = 0;
    if (impuesto.Corresponde(hayIFiscal))
        personalizado = (impuesto.sobreIva ? subtotal + iva : subtotal) * (impuesto.porcentaje / 100);
    const double total = subtotal + iva + personalizado;
    const double conDescuento = total - descuento / 100.0 * total;
    return {moneda.FormatoMoneda(subtotal, true), moneda.FormatoMoneda(iva, true),
            moneda.FormatoMoneda(personalizado, true), moneda.FormatoMoneda(total, true),
            moneda.FormatoMoneda(conDescuento, true)};
}

Totales TotalesEnCero(const Moneda &moneda) {
    const QString cero = moneda.FormatoMoneda(0.0, false);
    return {cero, cero, cero, cero, cero};
}

} // namespace tarvo
