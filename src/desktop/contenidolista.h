// All rows of a list, as they are handed to it at once.
#pragma once

#include "desktop/tono.h"
#include "store/columna.h"

#include <vector>

namespace tarvo {

// The tone of each row's cell in one column; as many as the list has rows.
struct TonosColumna {
    int columna = 0;
    std::vector<Tono> tonos;
};

struct ContenidoLista {
    std::vector<ColumnaTexto> celdas;  // one per column of the list, all of one length
    std::vector<TonosColumna> tonos{}; // columns without an entry have the list's own colour
};

} // namespace tarvo
