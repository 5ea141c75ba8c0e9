#include "desktop/anchos.h"

#include <cstddef>
#include <cstdint>

namespace tarvo {

namespace {

// Shares out what is left to the columns that aren't held at their minimum; false when it holds one more of
// them.
bool Repartir(std::vector<int> &anchos, std::vector<bool> &fijas, std::int64_t resto,
              const std::vector<int> &pesos, const std::vector<int> &minimos) {
    std::int64_t peso = 0;
    for (std::size_t i = 0; i < anchos.size(); ++i) {
        resto -= fijas[i] ? minimos[i] : 0;
        peso += fijas[i] ? 0 : pesos[i];
    }
    for (std::size_t i = 0; i < anchos.size(); ++i) {
        if (fijas[i])
            continue;
        anchos[i] = peso > 0 ? static_cast<int>(resto * pesos[i] / peso) : 0;
        resto -= anchos[i];
        peso -= pesos[i];
        if (anchos[i] < minimos[i]) {
            fijas[i] = true;
            anchos[i] = minimos[i];
            return false;
        }
    }
    return true;
}

} // namespace

std::vector<int> RepartirAncho(int disponible, const std::vector<int> &pesos,
                               const std::vector<int> &minimos) {
    std::vector<int> anchos = minimos;
    std::vector<bool> fijas(pesos.size(), false);
    while (!Repartir(anchos, fijas, disponible, pesos, minimos)) {
    }
    return anchos;
}

} // namespace tarvo
