#include "sales/totales.h"

#include "sales/listasventa.h"
#include "store/moneda.h"

namespace tarvo {

namespace {

double SumarColumna(const ListaTexto &detalle, int columna, const Moneda &moneda) {
    double suma = 0;
    for (int fila = 0; fila < detalle.Filas(); ++fila)
        suma += moneda.Numero(moneda.SinSimbolo(detalle.CeldaUtf8(fila, columna)));
    return suma;
}

} // namespace

Totales CalcularTotales(const ListaTexto &detalle, const ImpuestoPersonalizado &impuesto, bool hayIFiscal,
                        int descuento, const Moneda &moneda) {
    const double subtotal = SumarColumna(detalle, linea::Subtotal, moneda);
    const double iva = SumarColumna(detalle, linea::Iva, moneda);
    double personalizado = 0;
    if (impuesto.Corresponde(hayIFiscal))
        personalizado = (impuesto.sobreIva ? subtotal + iva : subtotal) *
                        (Moneda::NumeroGuardado(impuesto.porcentaje) / 100);
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
