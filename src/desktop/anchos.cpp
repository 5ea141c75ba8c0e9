#include "desktop/anchos.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace tarvo {

namespace {

constexpr int kVueltas = 50; // halvings of the share looked for: far below a pixel

// A weighted share, held between two limits.
struct Parte {
    double peso;
    int minimo;
    int maximo;
    int Con(double porPeso) const {
        return std::clamp(static_cast<int>(std::min(porPeso * peso, 1e6)), minimo, maximo);
    }
};

std::vector<int> Anchos(const std::vector<Parte> &partes, double porPeso) {
    std::vector<int> anchos;
    anchos.reserve(partes.size());
    for (const Parte &parte : partes)
        anchos.push_back(parte.Con(porPeso));
    return anchos;
}

int Suma(const std::vector<int> &anchos) {
    int suma = 0;
    for (const int ancho : anchos)
        suma += ancho;
    return suma;
}

// The largest common share with which all parts fit; what rounding leaves goes to those that can take it.
std::vector<int> Repartir(int disponible, const std::vector<Parte> &partes) {
    double cabe = 0;
    double sobra = disponible + 1.0;
    for (int vuelta = 0; vuelta < kVueltas; ++vuelta) {
        const double medio = (cabe + sobra) / 2;
        (Suma(Anchos(partes, medio)) <= disponible ? cabe : sobra) = medio;
    }
    std::vector<int> anchos = Anchos(partes, cabe);
    int resto = disponible - Suma(anchos);
    for (std::size_t i = partes.size(); i-- > 0 && resto > 0;) {
        const int mas = partes[i].peso > 0 && anchos[i] < partes[i].maximo ? 1 : 0;
        anchos[i] += mas;
        resto -= mas;
    }
    return anchos;
}

} // namespace

std::vector<int> RepartirAncho(int disponible, const std::vector<AnchoColumna> &columnas) {
    int necesario = 0;
    for (const AnchoColumna &columna : columnas)
        necesario += columna.necesario;
    const bool caben = necesario <= disponible;
    std::vector<Parte> partes;
    partes.reserve(columnas.size());
    for (const AnchoColumna &columna : columnas)
        partes.push_back(caben
                             ? Parte{double(columna.peso), columna.necesario, std::numeric_limits<int>::max()}
                             : Parte{double(columna.peso), columna.minimo, columna.necesario});
    return Repartir(disponible, partes);
}

} // namespace tarvo
