// The sale window as an operator uses it without a mouse: where the Tab key leads, and what the boxes ask.
#pragma once

#include "programa/programaenpantalla.h"

namespace tarvo {

inline QString k(const char *texto) {
    return QString::fromUtf8(texto);
}

// From the search field, in an open sale: the first customer whose name has `nombre` in it. Back in the
// search field.
inline void ElegirCliente(ProgramaEnPantalla &programa, const char *nombre) {
    programa.Teclas(QStringList(7, k("Tab")));
    programa.Teclas({k("space")});
    programa.Escribir(k(nombre));
    programa.Teclas({k("Return"), k("Tab"), k("Tab"), k("Tab"), k("space")});
}

// From anywhere in the sale: the question that confirms the issue is on screen.
inline void PedirEmision(ProgramaEnPantalla &programa) {
    programa.Teclas({k("ctrl+Return")});
    programa.EsperarCuadro();
}

// The issue to its end, with the ticket.
inline void EmitirConTicket(ProgramaEnPantalla &programa) {
    PedirEmision(programa);
    programa.Teclas({k("Return")});
    programa.EsperarCuadro(); // ticket?
    programa.Teclas({k("Return")});
    programa.EsperarCuadro(); // success
    programa.Teclas({k("Return")});
    programa.EsperarVuelta();
}

} // namespace tarvo
