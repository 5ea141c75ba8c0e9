// How the columns of a list share its width.
#pragma once

#include <vector>

namespace tarvo {

// Widths that add up to `disponible`, in proportion to `pesos`, but none below its `minimos`: what the narrow
// ones need is taken from the wide ones. When even the minimums don't fit, these are the widths.
std::vector<int> RepartirAncho(int disponible, const std::vector<int> &pesos,
                               const std::vector<int> &minimos);

} // namespace tarvo
