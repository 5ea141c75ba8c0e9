#include "accounts/listadoscuenta.h"

namespace tarvo {

namespace {

constexpr int kColumnaPie = 74;

void FilaContado(Superficie &papel, const ListaTexto &lista, int fila) {
    TextoEn(papel, 2, lista.Celda(fila, contado::Fecha));
    TextoEn(papel, 15, lista.Celda(fila, contado::Hora));
    TextoEn(papel, 27, lista.Celda(fila, contado::Detalle));
    TextoHasta(papel, 94, lista.Celda(fila, contado::Subtotal));
}

void FilaMovimiento(Superficie &papel, const ListaTexto &lista, int fila) {
    TextoEn(papel, 2, lista.Celda(fila, movimiento::Fecha));
    TextoEn(papel, 13, lista.Celda(fila, movimiento::Hora));
    TextoEn(papel, 21, lista.Celda(fila, movimiento::Detalle));
    TextoHasta(papel, 54, lista.Celda(fila, movimiento::Debe));
    TextoHasta(papel, 75, lista.Celda(fila, movimiento::Haber));
    TextoHasta(papel, 94, lista.Celda(fila, movimiento::Subtotal));
}

void LineaCliente(Superficie &papel, const QString &cliente) {
    papel.Texto(QStringLiteral("Cliente: "));
    papel.Negrita(true);
    papel.Linea(cliente);
    papel.Negrita(false);
    papel.FinLinea();
}

// What differs between the three.
struct FormaListado {
    const char *pregunta;
    const char *titulo;
    int columnaTitulo;
    const char *encabezado;
    void (*fila)(Superficie &, const ListaTexto &, int);
};
constexpr const char *kEncabezadoMovimientos =
    "  Fecha      Hora   Detalle                      Debe                Haber              Saldo";

const FormaListado &FormaDe(ListaCuenta cual) {
    static constexpr std::array<FormaListado, 3> formas{{
        {"Desea imprimir el estado de cuenta?", "ESTADO DE CUENTA", 30, kEncabezadoMovimientos,
         FilaMovimiento},
        {"Desea imprimir el listado de ventas contado?", "VENTAS CONTADO", 31,
         "    Fecha      Hora       Detalle                                                    Subtotal",
         FilaContado},
        {"Desea imprimir la planilla de caja?", "PLANILLA DE CAJA", 30, kEncabezadoMovimientos,
         FilaMovimiento},
    }};
    return formas[static_cast<std::size_t>(cual)];
}

} // namespace

ReporteCatalogo ReporteCuenta(const ListaTexto &lista, ListaCuenta cual, const QString &cliente,
                              const QString &saldo) {
    const FormaListado &forma = FormaDe(cual);
    const QString titulo = QString::fromUtf8(forma.titulo);
    QString pie = ReglasDe(cual).rotulo + QStringLiteral("    ") + saldo;
    ReporteCatalogo reporte{
        .pregunta = QString::fromUtf8(forma.pregunta),
        .mensajeError = QStringLiteral("Ha ocurrido un error en la impresión."),
        .listado = {
            .titulo = titulo,
            .columnaTitulo = forma.columnaTitulo,
            .subrayado = QString(titulo.size(), QLatin1Char('-')),
            .encabezado = QString::fromUtf8(forma.encabezado),
            .imprimirFila = [&lista, &forma](Superficie &papel, int fila) { forma.fila(papel, lista, fila); },
            .pie = [pie = std::move(pie)](int) { return pie; },
            .columnaPie = kColumnaPie}};
    if (cual == ListaCuenta::Estado)
        reporte.listado.trasTitulo = [cliente](Superficie &papel) { LineaCliente(papel, cliente); };
    return reporte;
}

} // namespace tarvo
