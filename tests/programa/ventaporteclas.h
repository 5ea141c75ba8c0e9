// The sale window as an operator uses it without a mouse: where the Tab key leads, and what the boxes ask.
#pragma once

#include "programa/programaenpantalla.h"

namespace tarvo {

// From the search field, in an open sale: the first customer whose name has `nombre` in it. Back in the
// search field.
inline void ElegirCliente(ProgramaEnPantalla &programa, const char *nombre) {
    programa.Teclas("Tab", 7);
    programa.Teclas("space");
    programa.Escribir(nombre);
    programa.Teclas("Return Tab Tab Tab Tab space");
}

// From anywhere in the sale: the question that confirms the issue is on screen.
inline void PedirEmision(ProgramaEnPantalla &programa) {
    programa.Teclas("ctrl+Return");
    programa.EsperarCuadro();
}

// The issue to its end, with the ticket.
inline void EmitirConTicket(ProgramaEnPantalla &programa) {
    PedirEmision(programa);
    programa.Teclas("Return");
    programa.EsperarCuadro(); // ticket?
    programa.Teclas("Return");
    programa.EsperarCuadro(); // success
    programa.Teclas("Return");
    programa.EsperarVuelta();
}

} // namespace tarvo
