// The small shop of these tests: two customers and a history with every kind of movement, and lists as text.
#pragma once

#include "accounts/listascuenta.h"
#include "testkit/mundoprueba.h"

namespace tarvo {

// Rows of Ventas: fecha, hora, idcliente, numcomp, tipo, descripcion, total.
inline constexpr const char *kHistoria =
    "INSERT INTO clientes.Clientes(codigo,nombre,tel1,ifiscal) VALUES"
    "('C1','Ñandú S.A.','4444','30-71234567-1'),('C2','Juan','5555','');"
    "INSERT INTO ventas.Ventas(fecha,hora,idcliente,numcomp,tipo,descripcion,total) VALUES"
    "('03/11/2026','09:14','1','51','Credito','Factura crédito','$ 1250,00'),"
    "('05/11/2026','18:40','1','55','Contado','Factura contado','$ 84,90'),"
    "('05/11/2026','19:00','0','56','Contado','Factura contado','$ 10,00'),"
    "('08/11/2026','11:02','1','','Recibo','Recibo','$ 500,00'),"
    "('14/11/2026','10:05','1','','NotaCredito','Nota de crédito (12/11/2026 - 16:27)','$ 320,75'),"
    "('19/11/2026','12:51','1','','DevContado','Devolución contado (05/11/2026 - 18:40)','$ 84,90'),"
    "('21/11/2026','9:05','0','','DevContado','Devolución contado (05/11/2026 - 19:00)','10'),"
    "('22/11/2026','10:00','1','60','Otro','Ticket','$ 7,00'),"
    "('22/11/2026','10:30','2','61','Contado','Factura contado (D)','$ 3,00');";

inline void PonerVenta(DatosPrueba &datos, const char *valores) {
    datos.Ejecutar((std::string("INSERT INTO ventas.Ventas"
                                "(fecha,hora,idcliente,numcomp,tipo,descripcion,total) VALUES(") +
                    valores + ")")
                       .c_str());
}

// A row as its cells with "|" between them.
inline std::string Fila(const ListaTexto &lista, int fila) {
    QStringList celdas;
    for (int columna = 0; columna < lista.columnCount(); ++columna)
        celdas += lista.Celda(fila, columna);
    return celdas.join(QLatin1Char('|')).toStdString();
}

inline std::vector<std::string> FilasDe(const ListaTexto &lista) {
    std::vector<std::string> filas;
    for (int fila = 0; fila < lista.Filas(); ++fila)
        filas.push_back(Fila(lista, fila));
    return filas;
}

} // namespace tarvo
