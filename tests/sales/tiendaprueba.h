// The small shop of these tests: three articles, two sellers, two customers, one with a fiscal id.
#pragma once

#include "testkit/mundoprueba.h"

namespace tarvo {

inline constexpr const char *kTienda =
    "INSERT INTO main.Iva(codigo,tipo,porcentaje) VALUES('G','General','21'),('R','Reducido','10,5');"
    "INSERT INTO main.Vendedores(codigo,nombre) VALUES('V1','Ana'),('V2','Beto');"
    "INSERT INTO articulos.Articulos(codigo,codbarras1,nombre,subtotal,stock,idtipoiva) VALUES"
    "('A1','7790001000011','Yerba mate','100','10','1'),"
    "('A2','7790001000028','Azúcar','12,5','1','2'),"
    "('A3','7790001000035','Café','33,33','3','99');"
    "INSERT INTO clientes.Clientes(codigo,nombre,tel1,ifiscal) VALUES"
    "('C1','Ñandú S.A.','4444','30-71234567-1'),('C2','Juan','5555','');";

inline void CobrarImpuesto(DatosPrueba &datos, const char *sobreIva, const char *existeIFiscal) {
    datos.Ejecutar(
        std::string(
            "UPDATE main.Impuesto SET utilizar='Si', nombre='Percepción', porcentaje='3', sobreiva='") +
        sobreIva + "', existeifiscal='" + existeIFiscal + "'");
}

// The questions of an issue that is confirmed, and its good news.
inline void EsperaEmision(PreguntasGuion &preguntas, Respuesta ticket) {
    preguntas.Espera(u"Confirma la emisión de la factura?"_qs, Si, Si);
    preguntas.Espera(u"Desea imprimir el ticket?"_qs, Si, ticket);
    preguntas.EsperaMensaje(u"La venta se realizó con exito."_qs);
}

} // namespace tarvo
