#include "config/lineasdetalle.h"

#include "config/escritura.h"
#include "desktop/preguntas.h"
#include "store/store.h"

#include <algorithm>

namespace tarvo {

QString LineasDetalle::Cargar() {
    return LeerCallando([&bases = servicios_.frmBases] {
        FilaUnica(bases.datFactura);
        return bases.camFacCantLineas.Texto();
    });
}

bool LineasDetalle::Escribir(const QString &texto) {
    const QString numero = QString::number(Moneda::NumeroNeutro(texto), 'f', 0);
    return EscribirFilaUnica(servicios_, servicios_.frmBases.datFactura, {numero},
                             [&] { servicios_.frmBases.camFacCantLineas = numero; });
}

bool LineasDetalle::Admite(const QString &texto) {
    // More digits than a number has read as none, and are more lines than any.
    const bool desmedido =
        !Moneda::EsNumero(texto) && std::ranges::all_of(texto, [](QChar c) { return c.isDigit(); });
    if (!desmedido && Moneda::NumeroNeutro(texto) <= kMaximo)
        return true;
    servicios_.preguntas.Informar(
        QStringLiteral("La cantidad de lineas de detalle debe ser menor o igual a 30."));
    return false;
}

} // namespace tarvo
