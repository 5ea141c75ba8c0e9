#include "shell/medidas.h"

#include <algorithm>

namespace tarvo {

TamanoInicial TamanoPorPantalla(int anchoPantalla) {
    if (anchoPantalla == 12000)
        return {MedidaVentana{9600, 7200}, true};
    if (anchoPantalla >= 15360)
        return {MedidaVentana{12000, 9000}, false};
    return {std::nullopt, anchoPantalla == 9600};
}

bool CabeSalir(int anchoVentana) {
    return anchoVentana > 11950;
}

bool CabeAyuda(int anchoVentana) {
    return anchoVentana > 11000;
}

int AnchoSeparador(int anchoVentana, bool maximizada) {
    return std::max(0, anchoVentana - (maximizada ? 4340 : 4560));
}

} // namespace tarvo
