// The pictures of the program by their image key ("ventas", "cliente", "arriba", ...), drawn for it as SVG
// and compiled in under :/iconos/. A key without a picture gives a null icon.
#pragma once

#include <QIcon>
#include <QString>

namespace tarvo {

QIcon IconoDe(const QString &clave);

} // namespace tarvo
