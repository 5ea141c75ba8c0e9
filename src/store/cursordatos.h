// What a cursor keeps behind its header: the copy of the table, the current row and the pending edit.
#pragma once

#include "store/cursor.h"
#include "store/tablamemoria.h"

#include <algorithm>
#include <array>

namespace tarvo {

struct Cursor::Datos {
    Datos(const char *esquema, const char *tabla) : memoria(esquema, tabla) {}

    // The pending text of a column; null when it hasn't been written.
    const std::string *Escrito(int posicion) const {
        const auto suyo = [posicion](const auto &v) { return v.first == posicion; };
        const auto it = std::find_if(pendientes.begin(), pendientes.end(), suyo);
        return it == pendientes.end() ? nullptr : &it->second;
    }

    TablaMemoria memoria;
    std::int64_t fila = 0; // current row; the number of rows when none is
    Valores pendientes;    // columns written in the current or new row
    bool editada = false;  // a new row, or written columns, wait for their commit
    bool conIndice = false;
    QString ultimoId;
    mutable std::array<char, 24> idTexto{}; // Campo::Utf8 of `id` points here
};

} // namespace tarvo
