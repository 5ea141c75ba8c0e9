// The pictures of the program by their image key ("ventas", "cliente", "arriba", ...), drawn for it as SVG
// and compiled in under :/iconos/. A key without a picture gives a null icon. Each is read once and shared by
// whoever asks, so that a window that opens again draws nothing anew.
#pragma once

#include <QIcon>
#include <QString>

namespace tarvo {

QIcon IconoDe(const QString &clave);

} // namespace tarvo
