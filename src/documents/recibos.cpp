#include "documents/recibos.h"

namespace tarvo {

namespace {

void LineaCliente(Superficie &papel, const QString &cliente) {
    papel.Linea(QStringLiteral("Cliente    ") + cliente);
}

void Cerrar(Superficie &papel) {
    papel.FinLinea();
    papel.FinLinea();
    papel.Terminar();
}

void LineaNegrita(Superficie &papel, const QString &texto) {
    papel.Negrita(true);
    papel.Linea(texto);
    papel.Negrita(false);
}

} // namespace

void ImprimirRecibo(Superficie &papel, const Cabecera &cabecera, const Recibo &recibo) {
    ImprimirCabecera(papel, cabecera, recibo.momento);
    LineaCliente(papel, recibo.cliente);
    papel.Negrita(false);
    papel.Linea(QStringLiteral("Recibo"));
    Raya(papel);
    papel.Negrita(true);
    papel.Texto(QStringLiteral("Total"));
    papel.Negrita(false);
    AlFinal(papel, recibo.importe);
    Cerrar(papel);
}

// The title and its rule stand in the bold that the last header line left; only the receipt's don't.
void ImprimirDevolucion(Superficie &papel, const Cabecera &cabecera, const Devolucion &devolucion) {
    ImprimirCabecera(papel, cabecera, devolucion.momento);
    if (devolucion.cliente)
        LineaCliente(papel, *devolucion.cliente);
    papel.Linea(devolucion.titulo);
    Raya(papel);
    LineaNegrita(papel, QStringLiteral("Fecha        Hora"));
    papel.Linea(devolucion.fecha + QStringLiteral(" - ") + devolucion.hora);
    LineaNegrita(papel, QStringLiteral("Detalle                          Total"));
    papel.Texto(Cortar(devolucion.descripcion, kLargoDetalle));
    AlFinal(papel, devolucion.importe);
    Cerrar(papel);
}

} // namespace tarvo
