// The ranks come by short cuts; the collator itself is the judge.
#include "desktop/ordentexto.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvo {
namespace {

TEST(OrdenTexto, RanksAgreeWithTheCollatorOnCodesAndOnMixedTexts) {
    const QString mezcla =
        QString::fromUtf8("aAbBzZ019ñÑnáÁeéçÇ -_.,;:$%&/()'\"\\<>{}[]@#*+=?!~^`|ßœ€\t\n😀¿");
    std::mt19937 azar(5);
    for (const qsizetype letras : {qsizetype{9}, qsizetype{12}, mezcla.size()}) {
        ColumnaTexto columna;
        for (int i = 0; i < 300; ++i) {
            QString texto;
            for (auto largo = azar() % 5; largo > 0; --largo)
                texto += mezcla[static_cast<qsizetype>(azar()) % letras];
            columna.Agregar(texto.toStdString());
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
}

} // namespace
} // namespace tarvo
