// How the columns of a list share its width.
#pragma once

#include <vector>

namespace tarvo {

struct AnchoColumna {
    int peso = 0;      // its part of what is to spare
    int minimo = 0;    // pixels that it never falls below
    int necesario = 0; // pixels that show its texts whole; at least `minimo`
};

// Widths that add up to `disponible`. Where all texts fit, the columns share the width in proportion to their
// weights, but none falls below what it needs. Where they don't, no column takes more than it needs, so that
// the wide ones give way first. When even the minimums don't fit, these are the widths.
std::vector<int> RepartirAncho(int disponible, const std::vector<AnchoColumna> &columnas);

} // namespace tarvo
