// Which window stands behind which entry of the main window: the one place that names them all.
//
// An entry without a window is shown and disabled, in the menu and on the toolbar.
#pragma once

#include "desktop/servicios.h"
#include "shell/conmutador.h"

#include <functional>
#include <map>

class QWidget;

namespace tarvo {

class Anfitrion;
class VentanaModulo;
struct Exportable;

struct Composicion {
    using FabricaModulo = std::function<VentanaModulo *(Anfitrion &, QWidget *padre)>;

    std::map<Modulo, FabricaModulo> modulos;
    // Both run their dialog to its end.
    std::function<void(bool abrirDisenador, QWidget *padre)> opciones;
    std::function<void(QWidget *padre)> respaldo;
    std::function<QWidget *(QWidget *padre)> calculadora;
    std::function<void(VentanaModulo &estados)> devContado;
    std::function<void(VentanaModulo &estados)> devCliente;
    std::function<void(const Exportable &)> exportar;

    // The window behind an entry is there; true for entries that need none.
    bool Hay(Entrada entrada) const;
};

Composicion Componer(const Servicios &servicios);

} // namespace tarvo
