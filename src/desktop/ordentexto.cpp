#include "desktop/ordentexto.h"

#include <algorithm>
#include <numeric>

namespace tarvo {

OrdenTexto::OrdenTexto() : comparador_(QLocale(QLocale::Spanish)) {
    comparador_.setCaseSensitivity(Qt::CaseInsensitive);
}

std::vector<std::uint32_t> OrdenTexto::Rangos(const ColumnaTexto &columna) const {
    const auto filas = static_cast<std::size_t>(columna.Filas());
    std::vector<QCollatorSortKey> claves;
    claves.reserve(filas);
    for (std::size_t i = 0; i < filas; ++i)
        claves.push_back(comparador_.sortKey(columna.Texto(static_cast<std::int64_t>(i))));

    std::vector<std::uint32_t> orden(filas);
    std::iota(orden.begin(), orden.end(), 0U);
    // A merge sort: it compares least, and comparing keys is what takes the time.
    std::stable_sort(orden.begin(), orden.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return claves[a].compare(claves[b]) < 0; });

    std::vector<std::uint32_t> rangos(filas);
    std::uint32_t rango = 0;
    for (std::size_t i = 1; i < filas; ++i) {
        if (claves[orden[i - 1]].compare(claves[orden[i]]) != 0)
            ++rango;
        rangos[orden[i]] = rango;
    }
    return rangos;
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
