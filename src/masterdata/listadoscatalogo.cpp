#include "masterdata/listadoscatalogo.h"

namespace tarvo {

namespace {

void FilaPersona(Superficie &papel, const ListaTexto &lista, int fila) {
    TextoEn(papel, 3, lista.Celda(fila, 0));
    TextoEn(papel, 12, Cortar(lista.Celda(fila, 1), 25));
    TextoEn(papel, 38, Cortar(lista.Celda(fila, 2), 25));
    TextoEn(papel, 64, Cortar(lista.Celda(fila, 3), 14));
    // A phone that is cut stands where the whole one would: the captions were drawn up so.
    const QString telefono = lista.Celda(fila, 4);
    TextoEn(papel, 93 - static_cast<int>(telefono.size()), Cortar(telefono, 15));
}

// Column 3 of the articles is the purchase price, though the caption says "Precio": the shop counts its stock
// with this listing.
void FilaArticulo(Superficie &papel, const ListaTexto &lista, int fila) {
    TextoEn(papel, 3, lista.Celda(fila, 0));
    TextoEn(papel, 16, lista.Celda(fila, 1));
    TextoHasta(papel, 69, lista.Celda(fila, 2));
    TextoHasta(papel, 94, lista.Celda(fila, 3));
}

using ImprimirFila = void (*)(Superficie &, const ListaTexto &, int);

std::function<void(Superficie &, int)> FilaDe(const ListaTexto &lista, ImprimirFila imprimir) {
    return [&lista, imprimir](Superficie &papel, int fila) { imprimir(papel, lista, fila); };
}

std::function<QString(int)> PieCon(const QString &rotulo) {
    return [rotulo](int contadas) { return rotulo + QString::number(contadas); };
}

QString EncabezadoPersonas() {
    return QStringLiteral("  Código   Nombre                    Nombre Fiscal             Id. Fiscal"
                          "            Teléfono");
}

} // namespace

ReporteCatalogo ReporteClientes(const ListaTexto &lista) {
    return {.pregunta = QStringLiteral("Desea imprimir el listado de clientes?"),
            .mensajeError = QStringLiteral("Ha ocurrido un error en la impresión"),
            .listado = {.titulo = QStringLiteral("LISTADO DE CLIENTES"),
                        .columnaTitulo = 28,
                        .subrayado = QStringLiteral("-------------------"),
                        .encabezado = EncabezadoPersonas(),
                        .imprimirFila = FilaDe(lista, FilaPersona),
                        .pie = PieCon(QStringLiteral("Cantidad de clientes: "))}};
}

ReporteCatalogo ReporteArticulos(const ListaTexto &lista) {
    return {.pregunta = QStringLiteral("Desea imprimir el listado de artículos?"),
            .mensajeError = QStringLiteral("Ha ocurrido un error en la impresión."),
            .listado = {.titulo = QStringLiteral("LISTADO DE ARTICULOS"),
                        .columnaTitulo = 28,
                        .subrayado = QStringLiteral("--------------------"),
                        .encabezado = QStringLiteral("  Código       Artículo                             "
                                                     "           Stock                   Precio"),
                        .imprimirFila = FilaDe(lista, FilaArticulo),
                        .pie = PieCon(QStringLiteral("Cantidad de artículos: "))}};
}

ReporteCatalogo ReporteProveedores(const ListaTexto &lista) {
    return {.pregunta = QStringLiteral("Desea imprimir el listado de proveedores?"),
            .mensajeError = QStringLiteral("Ha ocurrido un error en la impresión"),
            .listado = {.titulo = QStringLiteral("LISTADO DE PROVEEDORES"),
                        .columnaTitulo = 27,
                        .subrayado = QStringLiteral("----------------------"),
                        .encabezado = EncabezadoPersonas(),
                        .imprimirFila = FilaDe(lista, FilaPersona),
                        .pie = PieCon(QStringLiteral("Cantidad de proveedores: "))}};
}

} // namespace tarvo
