#include "masterdata/ventanas/columnaspersonas.h"

#include "desktop/ventanas/listavista.h"

namespace tarvo {

void AjustarColumnasPersonas(ListaVista &lista, int anchoTwips) {
    constexpr int codigo = 1940;
    constexpr int nombre = 4145;
    constexpr int minimo = 1500;
    // Half as wide again as the proportion says: a phone must be read whole at the smallest window.
    const int telefono = (lista.DesbordaFilas() ? 1060 : 1300) * 3 / 2;
    const int resto = qMax(minimo, (anchoTwips - codigo - nombre - telefono) / 2);
    lista.PonerAncho(2, resto);
    lista.PonerAncho(3, resto);
    lista.PonerAncho(4, telefono);
}

} // namespace tarvo
