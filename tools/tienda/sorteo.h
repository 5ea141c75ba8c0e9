// The dice of the sample shop: the same numbers on every machine and in every run.
//
// Standard distributions differ between libraries, so the numbers of the engine are cut to size here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace tarvo {

class Sorteo {
  public:
    explicit Sorteo(std::uint64_t semilla = 20260101) : motor_(semilla) {}

    // A number from `menor` to `mayor`, both included.
    int Entre(int menor, int mayor) {
        const auto ancho = static_cast<std::uint64_t>(mayor - menor) + 1;
        return menor + static_cast<int>(motor_() % ancho);
    }
    bool Cae(int porCiento) { return Entre(1, 100) <= porCiento; }
    template <typename Lista> const auto &Uno(const Lista &lista) {
        return lista[motor_() % std::size(lista)];
    }

  private:
    std::mt19937_64 motor_;
};

} // namespace tarvo
