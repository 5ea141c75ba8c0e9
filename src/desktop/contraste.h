// How well a text can be told from what it stands on.
#pragma once

#include <QColor>

namespace tarvo {

// What a text needs at least.
inline constexpr double kContrasteTexto = 4.5;

// Ratio of the two relative luminances, from 1 (the same) to 21 (black on white).
double Contraste(const QColor &uno, const QColor &otro);

// `color`, darkened as little as it takes to be read on the light `fondo`.
QColor Legible(const QColor &color, const QColor &fondo);

} // namespace tarvo
