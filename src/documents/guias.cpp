#include "documents/guias.h"

#include <algorithm>
#include <array>

namespace tarvo {

namespace {

std::array<int, 3> Verticales(const QRect &pieza) {
    return {pieza.left(), pieza.center().x(), pieza.right()};
}

std::array<int, 3> Horizontales(const QRect &pieza) {
    return {pieza.top(), pieza.center().y(), pieza.bottom()};
}

// The places of `movida` that some other piece has at the same edge: left with left, middle with middle.
template <typename Lugares>
std::vector<int> Comunes(const QRect &movida, const std::vector<QRect> &otras, const Lugares &lugares) {
    std::vector<int> comunes;
    const auto propios = lugares(movida);
    for (std::size_t i = 0; i < propios.size(); ++i) {
        if (std::any_of(otras.begin(), otras.end(),
                        [&](const QRect &otra) { return lugares(otra)[i] == propios[i]; }))
            comunes.push_back(propios[i]);
    }
    return comunes;
}

} // namespace

std::vector<QLine> GuiasDe(const QRect &movida, const std::vector<QRect> &otras, const QSize &lienzo) {
    std::vector<QLine> guias;
    for (const int x : Comunes(movida, otras, Verticales))
        guias.emplace_back(x, 0, x, lienzo.height());
    for (const int y : Comunes(movida, otras, Horizontales))
        guias.emplace_back(0, y, lienzo.width(), y);
    return guias;
}

} // namespace tarvo
