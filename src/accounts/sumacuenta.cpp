#include "accounts/sumacuenta.h"

#include "accounts/importes.h"

namespace tarvo {

SumaCuenta CalcularSuma(const ListaTexto &lista, ListaCuenta cual, const Moneda &moneda) {
    const Importes importes(moneda);
    const int columna = ReglasDe(cual).columnaSuma;
    SumaCuenta suma;
    for (int fila = 0; fila < lista.Filas(); ++fila) {
        if (const auto valor = importes.Leer(lista.CeldaUtf8(fila, columna))) {
            suma.suma += *valor;
            continue;
        }
        if (suma.sinNumero++ == 0)
            suma.primeraSinNumero = fila;
    }
    return suma;
}

QString MensajeSinNumero(const ListaTexto &lista, ListaCuenta cual, const SumaCuenta &suma) {
    constexpr qsizetype kLargoMayor = 60;
    if (suma.sinNumero == 0)
        return {};
    const int fila = suma.primeraSinNumero;
    const auto celda = [&](int columna) { return lista.Celda(fila, columna).left(kLargoMayor); };
    QString mensaje = QStringLiteral("El importe \"%1\" no es un número y no se suma.\n\n%2 - %3 - %4")
                          .arg(celda(ReglasDe(cual).columnaSuma), celda(movimiento::Fecha),
                               celda(movimiento::Hora), celda(movimiento::Detalle));
    if (suma.sinNumero > 1)
        mensaje += QStringLiteral("\n\nOtras filas en el mismo caso: %1").arg(suma.sinNumero - 1);
    return mensaje;
}

} // namespace tarvo
