#include "sales/emision.h"

#include "desktop/almacenar.h"
#include "desktop/preguntas.h"
#include "documents/impresoras.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <exception>

namespace tarvo {

namespace {

void EscribirDocumento(FrmBases &bases, const Venta &venta, const Comprobante &comprobante) {
    const ClienteVenta &cliente = venta.Cliente();
    bases.datVentas.AddNew();
    bases.camVentFecha = comprobante.fecha;
    bases.camVentHora = comprobante.hora;
    bases.camVentIdCliente = cliente.nombre.isEmpty() ? QStringLiteral("0") : cliente.id;
    bases.camVentTipo = venta.pago() == Pago::Contado ? QStringLiteral("Contado") : QStringLiteral("Credito");
    bases.camVentDescripcion = comprobante.tipo;
    bases.camVentSubtotal = comprobante.subtotal;
    bases.camVentIVA = comprobante.iva;
    bases.camVentTotal = comprobante.totalConDescuento;
    bases.camVentNumComp = comprobante.numero;
    bases.camVentIdOperador = IdVendedor(bases, comprobante.vendedor);
    bases.datVentas.Refresh();
}

// The working stock is written as it stands, not as a difference: a change made elsewhere since the list was
// filled is lost. A line whose article is gone, from the list or from the table, writes nothing.
void EscribirStock(FrmBases &bases, const Venta &venta) {
    const ListaTexto &detalle = venta.Detalle();
    bases.datArticulos.Index(QStringLiteral("primarykey"));
    for (int fila = 0; fila < detalle.Filas(); ++fila) {
        const QString id = detalle.Celda(fila, linea::IdArticulo);
        const int filaArticulo = venta.FilaArticulo(id);
        if (filaArticulo < 0)
            continue;
        bases.datArticulos.Refresh();
        if (bases.datArticulos.Seek(QStringLiteral("="), id))
            bases.camArtStock = venta.Articulos().Celda(filaArticulo, articulo::Stock);
    }
    bases.datArticulos.Refresh();
}

// The sale without its time, which goes on between two tries.
Operacion OperacionDe(const Venta &venta, const Comprobante &comprobante) {
    Operacion operacion{QStringLiteral("Venta"), comprobante.tipo,     venta.Cliente().id,
                        comprobante.numero,      comprobante.vendedor, comprobante.totalConDescuento};
    const ListaTexto &detalle = venta.Detalle();
    for (int fila = 0; fila < detalle.Filas(); ++fila)
        operacion << detalle.Celda(fila, linea::IdArticulo) << detalle.Celda(fila, linea::Cantidad)
                  << detalle.Celda(fila, linea::Subtotal);
    return operacion;
}

bool IntentarGuardar(const Servicios &servicios, const Venta &venta, const Comprobante &comprobante) {
    return Almacenar(
        servicios.frmBases, servicios.preguntas, OperacionDe(venta, comprobante),
        [&] { EscribirVenta(servicios.frmBases, venta, comprobante); },
        QStringLiteral("La venta sigue en pantalla, sin cambios."));
}

void OfrecerTicket(const Servicios &servicios, const Comprobante &comprobante, const QString &impresora) {
    if (!servicios.preguntas.Confirma(QStringLiteral("Desea imprimir el ticket?"), Respuesta::Si))
        return;
    try {
        servicios.impresoras.HacerActual(impresora);
        const Cabecera cabecera = LeerCabecera(servicios.frmBases);
        const auto papel = servicios.impresoras.NuevoDocumento(ClasePapel::Rollo, comprobante.tipo);
        ImprimirTicket(*papel, cabecera, comprobante);
    } catch (const std::exception &error) { // whatever it is, a sale that is stored must not stay on screen
        servicios.preguntas.Mostrar(
            QStringLiteral("No se pudo imprimir el ticket. %1\n\nLa venta quedó guardada.")
                .arg(QString::fromUtf8(error.what())),
            Icono::Critico);
    }
}

} // namespace

QString DescripcionFactura(Pago pago) {
    return QString::fromUtf8(pago == Pago::Contado ? kFacturaContado : kFacturaCredito);
}

void EscribirVenta(FrmBases &frmBases, const Venta &venta, const Comprobante &comprobante) {
    EscribirDocumento(frmBases, venta, comprobante);
    EscribirStock(frmBases, venta);
}

Comprobante HacerComprobante(const Venta &venta) {
    const Totales totales = venta.CalcularTotales();
    Comprobante comprobante;
    comprobante.tipo = DescripcionFactura(venta.pago());
    comprobante.numero = venta.NumComp();
    comprobante.fecha = venta.Fecha();
    comprobante.hora = venta.Hora();
    comprobante.codigoCliente = venta.Cliente().codigo;
    comprobante.cliente = venta.Cliente().nombre;
    comprobante.idFiscal = venta.Cliente().ruc;
    comprobante.consumidorFinal = venta.ConsumidorFinal();
    comprobante.vendedor = venta.Vendedor();
    const ListaTexto &detalle = venta.Detalle();
    for (int fila = 0; fila < detalle.Filas(); ++fila)
        comprobante.lineas.push_back({detalle.Celda(fila, linea::Codigo), detalle.Celda(fila, linea::Nombre),
                                      detalle.Celda(fila, linea::Cantidad),
                                      detalle.Celda(fila, linea::Precio),
                                      detalle.Celda(fila, linea::Subtotal)});
    comprobante.subtotal = totales.subtotal;
    comprobante.iva = totales.iva;
    if (const ImpuestoPersonalizado impuesto = venta.Impuesto(); impuesto.utilizar) {
        comprobante.nombreImpuesto =
            impuesto.nombre.trimmed().isEmpty() ? QStringLiteral("Impuesto") : impuesto.nombre;
        comprobante.impuesto = totales.impuesto;
    }
    comprobante.total = totales.total;
    comprobante.descuento = venta.TextoDescuento();
    comprobante.totalConDescuento = totales.conDescuento;
    return comprobante;
}

ResultadoEmision Emitir(const Servicios &servicios, const Venta &venta, const QString &impresora,
                        const std::function<void(const Comprobante &)> &alEmitir) {
    Preguntas &preguntas = servicios.preguntas;
    if (!venta.EnCurso()) {
        preguntas.Informar(QStringLiteral("Debe agregar al menos un artículo a la lista."));
        return ResultadoEmision::SinLineas;
    }
    if (venta.Vendedor() == SinVendedor()) {
        preguntas.Mostrar(QStringLiteral("Debe seleccionar un vendedor."), Icono::Ninguno);
        return ResultadoEmision::SinVendedor;
    }
    if (!preguntas.Confirma(QStringLiteral("Confirma la emisión de la factura?"), Respuesta::Si))
        return ResultadoEmision::NoConfirmada;
    const Comprobante comprobante = HacerComprobante(venta);
    if (!IntentarGuardar(servicios, venta, comprobante))
        return ResultadoEmision::NoGuardada;
    alEmitir(comprobante);
    OfrecerTicket(servicios, comprobante, impresora);
    preguntas.Informar(QStringLiteral("La venta se realizó con exito."));
    return ResultadoEmision::Emitida;
}

} // namespace tarvo
