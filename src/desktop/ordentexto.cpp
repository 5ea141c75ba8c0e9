#include "desktop/ordentexto.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace tarvo {

OrdenTexto::OrdenTexto() : comparador_(QLocale(QLocale::Spanish)) {
    comparador_.setCaseSensitivity(Qt::CaseInsensitive);
}

namespace {

// Letters and digits of ASCII in the order of the collator, by their bytes: digits, then letters whatever
// their case. 0 for all others, whose order takes more than a look at one byte.
constexpr std::array<unsigned char, 256> kSencillos = [] {
    std::array<unsigned char, 256> tabla{};
    for (unsigned char c = '0'; c <= '9'; ++c)
        tabla[c] = c;
    for (unsigned char c = 'A'; c <= 'Z'; ++c)
        tabla[c] = tabla[static_cast<unsigned char>(c + 'a' - 'A')] = c;
    return tabla;
}();

unsigned char Peso(char c) {
    return kSencillos[static_cast<unsigned char>(c)];
}

// Codes, mostly: a column of them needs no collation keys, which are dear.
bool TodosSencillos(const ColumnaTexto &columna) {
    for (std::int64_t i = 0; i < columna.Filas(); ++i) {
        const std::string_view celda = columna.Celda(i);
        if (!std::all_of(celda.begin(), celda.end(), [](char c) { return Peso(c) != 0; }))
            return false;
    }
    return true;
}

bool SencilloMenor(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Peso(x) < Peso(y); });
}

// The first row of each run of equal neighbours.
std::vector<std::int64_t> Tramos(const ColumnaTexto &columna) {
    std::vector<std::int64_t> tramos;
    for (std::int64_t fila = 0; fila < columna.Filas(); ++fila)
        if (fila == 0 || columna.Celda(fila) != columna.Celda(fila - 1))
            tramos.push_back(fila);
    return tramos;
}

// Ranks of rows of which `menor` tells whether one stands before another.
template <typename Menor> std::vector<std::uint32_t> RangosPor(std::size_t filas, Menor menor) {
    std::vector<std::uint32_t> orden(filas);
    std::iota(orden.begin(), orden.end(), 0U);
    // Codes often stand in their order already. A merge sort else: it compares least, and comparing is what
    // takes the time.
    if (!std::is_sorted(orden.begin(), orden.end(), menor))
        std::stable_sort(orden.begin(), orden.end(), menor);
    std::vector<std::uint32_t> rangos(filas);
    std::uint32_t rango = 0;
    for (std::size_t i = 1; i < filas; ++i) {
        if (menor(orden[i - 1], orden[i]))
            ++rango;
        rangos[orden[i]] = rango;
    }
    return rangos;
}

} // namespace

// Neighbours are often equal (dates stand in their order in most tables), and a run of them is ranked once.
std::vector<std::uint32_t> OrdenTexto::Rangos(const ColumnaTexto &columna) const {
    const std::vector<std::int64_t> tramos = Tramos(columna);
    const std::vector<std::uint32_t> rangosTramo = RangosTramos(columna, tramos);
    std::vector<std::uint32_t> rangos(static_cast<std::size_t>(columna.Filas()));
    for (std::size_t tramo = 0; tramo < tramos.size(); ++tramo) {
        const std::int64_t fin = tramo + 1 < tramos.size() ? tramos[tramo + 1] : columna.Filas();
        std::fill(rangos.begin() + tramos[tramo], rangos.begin() + fin, rangosTramo[tramo]);
    }
    return rangos;
}

std::vector<std::uint32_t> OrdenTexto::RangosTramos(const ColumnaTexto &columna,
                                                    const std::vector<std::int64_t> &tramos) const {
    if (TodosSencillos(columna))
        return RangosPor(tramos.size(), [&](std::uint32_t a, std::uint32_t b) {
            return SencilloMenor(columna.Celda(tramos[a]), columna.Celda(tramos[b]));
        });
    std::vector<QCollatorSortKey> claves;
    claves.reserve(tramos.size());
    for (const std::int64_t fila : tramos)
        claves.push_back(comparador_.sortKey(columna.Texto(fila)));
    return RangosPor(tramos.size(),
                     [&](std::uint32_t a, std::uint32_t b) { return claves[a].compare(claves[b]) < 0; });
}

std::vector<std::uint32_t> Permutacion(const std::vector<std::uint32_t> &rangos, Qt::SortOrder orden) {
    if (rangos.empty())
        return {};
    const std::uint32_t ultimo = *std::max_element(rangos.begin(), rangos.end());
    const bool descendente = orden == Qt::DescendingOrder;
    const auto cajon = [&](std::uint32_t rango) { return descendente ? ultimo - rango : rango; };
    std::vector<std::uint32_t> inicio(std::size_t{ultimo} + 2, 0);
    for (const std::uint32_t rango : rangos)
        ++inicio[cajon(rango) + 1];
    std::partial_sum(inicio.begin(), inicio.end(), inicio.begin());
    std::vector<std::uint32_t> filas(rangos.size());
    for (std::uint32_t fila = 0; fila < rangos.size(); ++fila)
        filas[inicio[cajon(rangos[fila])]++] = fila;
    return filas;
}

} // namespace tarvo
