// Rows and columns of a list as one text: cells with "|" between them.
#pragma once

#include "desktop/listatexto.h"
#include "testkit/imprimir.h"

namespace tarvo {

inline QString FilaDe(const ListaTexto &lista, int fila) {
    QStringList celdas;
    for (int columna = 0; columna < lista.columnCount(); ++columna)
        celdas << lista.Celda(fila, columna);
    return celdas.join(u'|');
}

inline QString ColumnaDe(const ListaTexto &lista, int columna) {
    QStringList celdas;
    for (int fila = 0; fila < lista.Filas(); ++fila)
        celdas << lista.Celda(fila, columna);
    return celdas.join(u'|');
}

} // namespace tarvo
