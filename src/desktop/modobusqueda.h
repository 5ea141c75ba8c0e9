// A way to search a list by its search bar: what the menu calls it and which column it reads.
#pragma once

#include <QString>

namespace tarvo {

struct ModoBusqueda {
    QString clave;  // objectName of the menu entry, and its picture
    QString menu;   // its caption; empty: the menu doesn't offer it
    QString titulo; // the caption that it puts on the search button, which tells the mode in use
    int columna = 0;
};

} // namespace tarvo
