#include "accounts/movimientonuevo.h"

#include "desktop/reloj.h"
#include "documents/comprobante.h"
#include "store/store.h"

namespace tarvo {

namespace {

// What taking back an invoice makes of it, and the columns that it reads.
struct ReglaDevolucion {
    ListaCuenta cual;
    std::string_view detalle; // of the invoice
    const char *tipo;
    const char *descripcion;
    const char *titulo;
    int columnaTotal;
    int columnaImporte; // on the slip
    int columnaId;      // compared with the ids of Ventas
};
constexpr std::array<ReglaDevolucion, 3> kReglas{{
    {ListaCuenta::Estado, kFacturaContado, "DevContado", "Devolución contado (%1 - %2)", "Devolución Contado",
     movimiento::Haber, movimiento::Debe, movimiento::OrdFecha},
    {ListaCuenta::Estado, kFacturaCredito, "NotaCredito", "Nota de crédito (%1 - %2)", "Nota de crédito",
     movimiento::Subtotal, movimiento::Subtotal, movimiento::Id},
    {ListaCuenta::Contado, kFacturaContado, "DevContado", "Devolución contado (%1 - %2)",
     "Devolución Contado", contado::NumComp, contado::NumComp, contado::Subtotal},
}};

void EmpezarFila(FrmBases &bases, const QDateTime &momento) {
    bases.datVentas.AddNew();
    bases.camVentFecha = TextoFecha(momento);
    bases.camVentHora = TextoHora(momento);
    bases.camVentIVA = QStringLiteral("0");
}

void MarcarFactura(FrmBases &bases, const DocumentoDevuelto &devolucion) {
    if (!bases.datVentas.IrAId(devolucion.idFactura))
        return;
    bases.camVentDescripcion = devolucion.marca;
    bases.datVentas.MoveNext();
}

} // namespace

void EscribirRecibo(FrmBases &bases, const QString &idCliente, const QString &total,
                    const QDateTime &momento) {
    EmpezarFila(bases, momento);
    bases.camVentDescripcion = QStringLiteral("Recibo");
    bases.camVentIdCliente = idCliente;
    bases.camVentTipo = QStringLiteral("Recibo");
    bases.camVentTotal = total;
    bases.datVentas.Refresh();
}

std::optional<DocumentoDevuelto> DevolucionDe(const ListaTexto &lista, ListaCuenta cual, int fila,
                                              const QString &idCliente) {
    const std::string_view detalle = lista.CeldaUtf8(fila, movimiento::Detalle);
    const auto *const regla = std::ranges::find_if(
        kReglas, [&](const ReglaDevolucion &r) { return r.cual == cual && r.detalle == detalle; });
    if (regla == kReglas.end())
        return std::nullopt;
    const QString fecha = lista.Celda(fila, movimiento::Fecha);
    const QString hora = lista.Celda(fila, movimiento::Hora);
    return DocumentoDevuelto{.fecha = fecha,
                             .hora = hora,
                             .detalle = lista.Celda(fila, movimiento::Detalle),
                             .tipo = QString::fromUtf8(regla->tipo),
                             .descripcion = QString::fromUtf8(regla->descripcion).arg(fecha, hora),
                             .idCliente = cual == ListaCuenta::Contado ? QStringLiteral("0") : idCliente,
                             .total = lista.Celda(fila, regla->columnaTotal),
                             .titulo = QString::fromUtf8(regla->titulo),
                             .importe = lista.Celda(fila, regla->columnaImporte),
                             .idFactura = lista.Celda(fila, regla->columnaId),
                             .marca = QString::fromUtf8(detalle) + QStringLiteral(" (D)")};
}

bool NoSeDevuelve(const ListaTexto &lista, ListaCuenta cual, int fila) {
    const std::string_view detalle = lista.CeldaUtf8(fila, movimiento::Detalle);
    if (detalle.starts_with("Devo") || detalle.ends_with("(D)"))
        return true;
    return cual == ListaCuenta::Estado && (detalle.starts_with("Nota") || detalle == "Recibo");
}

void EscribirDevolucion(FrmBases &bases, const DocumentoDevuelto &devolucion, const QDateTime &momento) {
    EmpezarFila(bases, momento);
    bases.camVentDescripcion = devolucion.descripcion;
    bases.camVentIdCliente = devolucion.idCliente;
    bases.camVentTipo = devolucion.tipo;
    bases.camVentTotal = devolucion.total;
    bases.datVentas.Refresh();
    MarcarFactura(bases, devolucion);
}

bool EsContado(const ListaTexto &estado, int fila) {
    const std::string_view detalle = estado.CeldaUtf8(fila, movimiento::Detalle);
    return detalle.starts_with("Devo") || detalle.starts_with(kFacturaContado);
}

} // namespace tarvo
