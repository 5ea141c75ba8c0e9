// One column of a table or of a list, held in memory as compact UTF-8 text.
//
// A column is a sequence of chunks of up to 4096 rows; a chunk is one run of bytes and the end offset of each
// row in it. Chunks are shared between copies of a column until one of them is written (copy on write), so
// that a list which shows a table column as it stands costs next to nothing, and changing a cell costs one
// chunk whatever the number of rows.
#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

class ColumnaTexto {
  public:
    static constexpr std::uint32_t kFilasPorTrozo = 4096;

    std::int64_t Filas() const { return filas_; }
    // The bytes (UTF-8) of the cell of `fila`, 0 to Filas() - 1; valid until the column is next written.
    std::string_view Celda(std::int64_t fila) const {
        const Tramo &tramo = tramos_[TramoDe(fila)];
        const Trozo &trozo = *tramo.trozo;
        const auto i = static_cast<std::size_t>(fila - tramo.primera);
        const std::uint32_t inicio = i == 0 ? 0 : trozo.fin[i - 1];
        return {trozo.texto.data() + inicio, trozo.fin[i] - inicio};
    }
    QString Texto(std::int64_t fila) const;

    void Reservar(std::int64_t filas);
    // Adds a row behind the last one.
    void Agregar(std::string_view utf8);
    void Poner(std::int64_t fila, std::string_view utf8);
    void Quitar(std::int64_t fila);
    void Limpiar();
    // Gives back what the last chunk has reserved and not used; for the end of a load.
    void Ajustar();

    // Memory taken by the texts and their offsets, in bytes; shared chunks count in full.
    std::int64_t Bytes() const;

  private:
    struct Trozo {
        std::string texto;
        std::vector<std::uint32_t> fin;
    };
    struct Tramo {
        std::int64_t primera = 0;
        std::shared_ptr<Trozo> trozo;
    };
    std::size_t TramoDe(std::int64_t fila) const {
        const std::size_t i = static_cast<std::size_t>(fila) / kFilasPorTrozo;
        const bool aqui = i < tramos_.size() && (i + 1 == tramos_.size() || fila < tramos_[i + 1].primera);
        return aqui ? i : TramoBuscado(i, fila);
    }
    std::size_t TramoBuscado(std::size_t desde, std::int64_t fila) const;
    Trozo &Propio(std::size_t tramo);

    std::vector<Tramo> tramos_;
    std::int64_t filas_ = 0;
};

} // namespace tarvo
