// The picture of the splash and the about window.
#pragma once

#include <QPixmap>

namespace tarvo {

constexpr int kAnchoPresentacion = 360;
constexpr int kAltoPresentacion = 264;

// Drawn for a screen of that scale.
QPixmap ImagenPresentacion(qreal escala);

} // namespace tarvo
