// State of the lock keys, asked from the window system; on one that can't tell, both read as off.
#pragma once

namespace tarvo {

struct EstadoTeclado {
    bool mayusculas = false;
    bool numerico = false;
};

EstadoTeclado LeerEstadoTeclado();

} // namespace tarvo
