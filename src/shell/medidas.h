// Sizes of the main window, in twips: how big it starts on which screen, which toolbar
// buttons a narrow one gives up, how wide the hint panel of the status bar is.
#pragma once

#include "desktop/twips.h"

#include <optional>

namespace tarvo {

struct MedidaVentana {
    int ancho = 0; // twips
    int alto = 0;
    bool operator==(const MedidaVentana &) const = default;
};

struct TamanoInicial {
    std::optional<MedidaVentana> tamano; // none: the design size stays
    bool maximizada = false;
    bool operator==(const TamanoInicial &) const = default;
};

TamanoInicial TamanoPorPantalla(int anchoPantalla);

// One row of buttons must do on a small screen.
bool CabeSalir(int anchoVentana);
bool CabeAyuda(int anchoVentana);

int AnchoSeparador(int anchoVentana, bool maximizada);

} // namespace tarvo
