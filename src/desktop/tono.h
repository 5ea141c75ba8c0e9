// Colour of a cell's text: what it means for the list, and the one place that maps it to a colour.
#pragma once

#include <QColor>

#include <cstdint>

namespace tarvo {

// Normal is the list's own colour.
enum class Tono : std::uint8_t { Normal, Verde, Rojo, Azul, Purpura, Marron };

inline QColor ColorDe(Tono tono) { // invalid for Tono::Normal
    switch (tono) {
    case Tono::Verde:
        return {0, 128, 0};
    case Tono::Rojo:
        return {255, 0, 0};
    case Tono::Azul:
        return {0, 0, 255};
    case Tono::Purpura:
        return {128, 0, 128};
    case Tono::Marron:
        return {128, 64, 0};
    case Tono::Normal:
        break;
    }
    return {};
}

} // namespace tarvo
