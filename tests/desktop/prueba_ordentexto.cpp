// The short cut for codes gives the order of the collator.
#include "desktop/ordentexto.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvo {
namespace {

TEST(OrdenTexto, RanksCodesAsTheCollatorComparesThem) {
    const std::string letras = "019aAbBnNzZ";
    std::mt19937 azar(5);
    ColumnaTexto columna;
    for (int i = 0; i < 300; ++i) {
        std::string codigo;
        for (auto largo = azar() % 5; largo > 0; --largo)
            codigo += letras[azar() % letras.size()];
        columna.Agregar(codigo);
    }
    const OrdenTexto orden;
    const std::vector<std::uint32_t> rangos = orden.Rangos(columna);
    for (int a = 0; a < 300; ++a)
        for (int b = 0; b < 300; ++b) {
            const int esperado = orden.Comparar(columna.Texto(a), columna.Texto(b));
            const auto ra = rangos[static_cast<std::size_t>(a)];
            const auto rb = rangos[static_cast<std::size_t>(b)];
            ASSERT_EQ((ra > rb) - (ra < rb), (esperado > 0) - (esperado < 0))
                << columna.Celda(a) << " " << columna.Celda(b);
        }
}

} // namespace
} // namespace tarvo
