// The order of texts in Spanish (accents and ñ in their place, case ignored), and the row order of a column
// in it.
//
// A column is ranked once: its rows get numbers that compare as their texts do. From the ranks any direction
// of the sort follows in one pass, and stays stable.
#pragma once

#include "store/columna.h"

#include <QCollator>

#include <cstdint>
#include <vector>

namespace tarvo {

class OrdenTexto {
  public:
    OrdenTexto();
    // Below 0, 0 or above 0, as `a` stands before, beside or behind `b`.
    int Comparar(QStringView a, QStringView b) const { return comparador_.compare(a, b); }
    // One rank for each row, from 0; rows of equal text share theirs.
    std::vector<std::uint32_t> Rangos(const ColumnaTexto &columna) const;

  private:
    std::vector<std::uint32_t> RangosTramos(const ColumnaTexto &columna,
                                            const std::vector<std::int64_t> &tramos) const;
    QCollator comparador_;
};

// Rows in the order of their ranks; equal ranks keep the order of the rows, in both directions.
std::vector<std::uint32_t> Permutacion(const std::vector<std::uint32_t> &rangos, Qt::SortOrder orden);

} // namespace tarvo
