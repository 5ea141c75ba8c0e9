// The compact column against a plain vector of texts: chunk borders, writes, removals and shared chunks.
#include "store/columna.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace tarvo {
namespace {

std::vector<std::string> Celdas(const ColumnaTexto &columna) {
    std::vector<std::string> celdas;
    for (std::int64_t i = 0; i < columna.Filas(); ++i)
        celdas.emplace_back(columna.Celda(i));
    return celdas;
}

ColumnaTexto Llena(int filas) {
    ColumnaTexto columna;
    columna.Reservar(filas);
    for (int i = 0; i < filas; ++i)
        columna.Agregar("fila " + std::to_string(i));
    return columna;
}

TEST(ColumnaTexto, FollowsAVectorThroughRandomChanges) {
    ColumnaTexto columna = Llena(3 * 4096 + 7);
    std::vector<std::string> espejo = Celdas(columna);
    std::mt19937 azar(7);
    for (int paso = 0; paso < 3000; ++paso) {
        const auto fila = static_cast<std::int64_t>(azar() % espejo.size());
        const std::string texto(azar() % 40, static_cast<char>('a' + paso % 26));
        switch (azar() % 4) {
        case 0:
            columna.Agregar(texto);
            espejo.push_back(texto);
            break;
        case 1:
            columna.Poner(fila, texto);
            espejo[static_cast<std::size_t>(fila)] = texto;
            break;
        default:
            columna.Quitar(fila);
            espejo.erase(espejo.begin() + fila);
        }
    }
    EXPECT_EQ(Celdas(columna), espejo);
    while (columna.Filas() > 0)
        columna.Quitar(0);
    columna.Agregar("otra");
    EXPECT_EQ(Celdas(columna), std::vector<std::string>{"otra"});
}

TEST(ColumnaTexto, HoldsChunksOfMoreThan64KiBAndASingleLongCell) {
    const std::string largo(70'000, 'L');
    ColumnaTexto columna;
    columna.Agregar(largo);
    EXPECT_EQ(columna.Celda(0), largo);
    columna.Poner(0, "corto");
    std::vector<std::string> espejo{"corto"};
    for (int i = 1; i < 5000; ++i) {
        espejo.push_back(std::string(20, static_cast<char>('a' + i % 26)));
        columna.Agregar(espejo.back());
    }
    EXPECT_EQ(Celdas(columna), espejo);
    columna.Poner(2500, largo);
    espejo[2500] = largo;
    EXPECT_EQ(Celdas(columna), espejo);
}

TEST(ColumnaTexto, ACopyKeepsItsCellsWhenTheOriginalIsWritten) {
    ColumnaTexto columna = Llena(4096 + 10);
    const ColumnaTexto copia = columna;
    const std::vector<std::string> antes = Celdas(copia);
    columna.Poner(0, "x");
    columna.Poner(5000 - 900, "un texto más largo que el de antes");
    columna.Quitar(4096);
    columna.Agregar("y");
    EXPECT_EQ(Celdas(copia), antes);
    EXPECT_EQ(columna.Celda(0), "x");
    EXPECT_EQ(columna.Celda(columna.Filas() - 1), "y");
}

TEST(ColumnaTexto, TakesItsOwnCellAsAValue) {
    ColumnaTexto columna = Llena(3);
    columna.Poner(0, columna.Celda(2));
    EXPECT_EQ(Celdas(columna), (std::vector<std::string>{"fila 2", "fila 1", "fila 2"}));
}

TEST(ColumnaTexto, TellsItsLongestCellsWhereverTheyAre) {
    ColumnaTexto columna = Llena(3 * 4096);
    for (const std::int64_t fila : {0, 5000, 3 * 4096 - 1})
        columna.Poner(fila, std::string(40 + static_cast<std::size_t>(fila % 7), 'x'));
    columna.Poner(9000, std::string(70'000, 'x')); // ends beyond 16 bits
    const auto filas = columna.MasLargas(4);
    EXPECT_EQ(std::set(filas.begin(), filas.end()), (std::set<std::int64_t>{0, 5000, 3 * 4096 - 1, 9000}));
    EXPECT_EQ(columna.MasLargas(1), std::vector<std::int64_t>{9000});
    EXPECT_TRUE(ColumnaTexto().MasLargas(3).empty());
}

TEST(ColumnaTexto, ALoadedColumnTakesLittleMoreThanItsText) {
    const ColumnaTexto columna = Llena(40'000);
    std::int64_t texto = 0;
    for (std::int64_t i = 0; i < columna.Filas(); ++i)
        texto += static_cast<std::int64_t>(columna.Celda(i).size());
    EXPECT_LT(columna.Bytes(), texto + 2 * columna.Filas() + 40'000);
}

} // namespace
} // namespace tarvo
