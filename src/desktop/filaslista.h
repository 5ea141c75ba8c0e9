// The rows of a list as they are kept: cells, tones and check marks in stored rows, in the order in which
// they came, and `orden`, which tells the stored row of each row on screen.
#pragma once

#include "desktop/ordentexto.h"
#include "desktop/tono.h"
#include "store/columna.h"

#include <QStringList>

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvo {

struct FilasLista {
    using Numeros = std::vector<std::uint32_t>;

    std::vector<ColumnaTexto> celdas;
    Numeros orden;                        // empty: the stored order itself
    std::vector<std::vector<Tono>> tonos; // by column; empty: all normal
    std::vector<bool> marcas;
    bool marcable = false;
    std::int64_t senalada = -1;

    explicit FilasLista(std::size_t columnas) : celdas(columnas), tonos(columnas), rangos_(columnas) {}

    std::uint32_t Guardada(int fila) const {
        return orden.empty() ? static_cast<std::uint32_t>(fila) : orden[static_cast<std::size_t>(fila)];
    }
    // -1 for a row that isn't there.
    int EnPantalla(std::int64_t guardada) const;
    const ColumnaTexto &Columna(int columna) const { return celdas[static_cast<std::size_t>(columna)]; }
    std::string_view Celda(int fila, int columna) const { return Columna(columna).Celda(Guardada(fila)); }

    // A list that is filled again with the texts that it had needs no new sort.
    void Reemplazar(std::vector<ColumnaTexto> nuevas);
    void Reordenar(int columna, Qt::SortOrder sentido); // a negative column: the stored order
    void PonerCelda(int fila, int columna, const QString &texto);
    // A new row, without a mark. `lugar`: where it stands on screen in a sorted list; -1 in one that is not.
    void Agregar(const QStringList &textos, int lugar);
    void Quitar(int fila);
    // Only these stored rows, rising, stay; they keep their order on screen.
    void Conservar(const Numeros &guardadas);
    // Place on screen of a new row with `texto` in the sort column: behind its equals.
    int Lugar(const QString &texto, int columna, Qt::SortOrder sentido) const;

  private:
    const Numeros &RangosDe(int columna);
    void OlvidarRangos() { rangos_.assign(rangos_.size(), {}); }

    std::vector<Numeros> rangos_; // by column, once it was sorted by and until its cells change
    OrdenTexto comparador_;
};

} // namespace tarvo
