#include "interchange/exportacion.h"

#include "desktop/listatexto.h"
#include "desktop/unalinea.h"
#include "interchange/excelfile.h"
#include "interchange/tablaexportacion.h"
#include "interchange/tandatexto.h"

#include <QIODevice>

#include <vector>

namespace tarvo {

namespace {

void EscribirCabecera(ExcelFile &hoja, const TablaExportacion &tabla, const Exportable &lo) {
    hoja.EWriteString(3, 3, tabla.titulo);
    if (tabla.cliente)
        hoja.EWriteString(5, 2, QStringLiteral("Cliente: ") + lo.cliente);
    for (const ColumnaHoja &columna : tabla.columnas)
        hoja.EWriteString(tabla.filaCabecera, columna.numero, columna.cabecera);
}

// False when the walk asks for a row that the list does not have.
bool EscribirFilas(ExcelFile &hoja, const TablaExportacion &tabla, const ListaTexto &lista) {
    const int filas = tabla.filasFijas > 0 ? tabla.filasFijas : lista.Filas();
    for (int i = 1; i <= filas; ++i) {
        if (i > lista.Filas())
            return false;
        for (int columna = 0; const ColumnaHoja &enHoja : tabla.columnas)
            hoja.EWriteString(tabla.FilaDato(i), enHoja.numero, EnUnaLinea(lista.Celda(i - 1, columna++)));
    }
    return true;
}

void EscribirPie(ExcelFile &hoja, const TablaExportacion &tabla, const Exportable &lo) {
    if (tabla.pie.isEmpty())
        return;
    const int fila = tabla.FilaPie(lo.lista->Filas());
    hoja.EWriteString(fila, tabla.columnaPie, tabla.pie);
    hoja.EWriteString(fila, tabla.columnaPie + 1, lo.saldo);
}

} // namespace

void EscribirHoja(QIODevice &salida, const TablaExportacion &tabla, const Exportable &lo) {
    ExcelFile hoja(salida);
    hoja.OpenFile();
    try {
        EscribirCabecera(hoja, tabla, lo);
        if (!EscribirFilas(hoja, tabla, *lo.lista))
            return;
        EscribirPie(hoja, tabla, lo);
    } catch (const DesbordeHoja &) {
        return;
    }
    hoja.CloseFile();
}

void EscribirTexto(QIODevice &salida, const TablaExportacion &tabla, const ListaTexto &lista) {
    std::vector<const ColumnaTexto *> campos;
    for (std::size_t campo = 0; campo < tabla.columnas.size(); ++campo)
        campos.push_back(&lista.ColumnaGuardada(static_cast<int>(campo)));
    TandaTexto tanda(salida);
    for (int fila = 0; fila < lista.Filas(); ++fila) {
        const std::int64_t guardada = lista.FilaGuardada(fila);
        for (const ColumnaTexto *campo : campos) {
            if (campo != campos.front())
                tanda.Marca(',');
            tanda.Celda(campo->Celda(guardada));
        }
        tanda.Marca('\r');
        tanda.Marca('\n');
    }
    tanda.Terminar();
}

} // namespace tarvo
