// Twips, the unit in which sizes of windows, columns and layouts are told: 15 to the pixel at scale 1.
#pragma once

namespace tarvo {

inline constexpr int kTwipsPorPixel = 15;
constexpr int ATwips(int pixeles) {
    return pixeles * kTwipsPorPixel;
}
constexpr int APixeles(int twips) {
    return twips / kTwipsPorPixel;
}

} // namespace tarvo
