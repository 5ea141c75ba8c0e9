#include "desktop/contraste.h"

#include <algorithm>
#include <cmath>

namespace tarvo {

namespace {

double Lineal(double canal) {
    return canal <= 0.04045 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4);
}

double Luminancia(const QColor &color) {
    return 0.2126 * Lineal(color.redF()) + 0.7152 * Lineal(color.greenF()) + 0.0722 * Lineal(color.blueF());
}

} // namespace

double Contraste(const QColor &uno, const QColor &otro) {
    const double a = Luminancia(uno) + 0.05;
    const double b = Luminancia(otro) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor Legible(const QColor &color, const QColor &fondo) {
    constexpr int kPasos = 32;
    QColor legible = color;
    for (int paso = kPasos; paso >= 0 && Contraste(legible, fondo) < kContrasteTexto; --paso)
        legible =
            QColor(color.red() * paso / kPasos, color.green() * paso / kPasos, color.blue() * paso / kPasos);
    return legible;
}

} // namespace tarvo
