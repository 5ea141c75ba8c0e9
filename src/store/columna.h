// One column of a table or of a list, held in memory as compact UTF-8 text.
//
// A column is a sequence of chunks of up to 4096 rows; a chunk is one run of bytes and the end offset of each
// row in it, in 16 bits as long as they reach. Chunks are shared between copies of a column until one of them
// is written (copy on write), so that a list which shows a table column as it stands costs next to nothing,
// and changing a cell costs one chunk whatever the number of rows.
#pragma once

#include <QString>

#include <cstdint>
#include <limits>
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

    // Rows of the longest cells, at most `cuantas` of them; of equally long ones those that came first. Cells
    // of more than `bytes` don't count.
    std::vector<std::int64_t>
    MasLargas(std::size_t cuantas, std::uint32_t bytes = std::numeric_limits<std::uint32_t>::max()) const;

    // Memory taken by the texts and their offsets, in bytes; shared chunks count in full.
    std::int64_t Bytes() const;

  private:
    // End offsets that rise: short ones until one of them needs more.
    class Fines {
      public:
        std::size_t size() const { return largos_.empty() ? cortos_.size() : largos_.size(); }
        std::uint32_t operator[](std::size_t i) const { return largos_.empty() ? cortos_[i] : largos_[i]; }
        void Reservar(std::size_t filas) { cortos_.reserve(filas); }
        void Agregar(std::uint32_t fin);
        // Adds `cambio`, which may be negative, to the offset of `desde` and all behind it.
        void Mover(std::size_t desde, std::int64_t cambio);
        void Quitar(std::size_t i);
        void Ajustar();
        // The length of the longest text.
        std::uint32_t MayorLargo() const;
        std::size_t Bytes() const;

      private:
        void Alargar();
        std::vector<std::uint16_t> cortos_;
        std::vector<std::uint32_t> largos_;
    };
    struct Trozo {
        std::string texto;
        Fines fin;
    };
    struct Tramo {
        std::int64_t primera = 0;
        std::shared_ptr<Trozo> trozo;
    };
    std::size_t TramoDe(std::int64_t fila) const {
        const std::size_t i = static_cast<std::size_t>(fila) / kFilasPorTrozo;
        const bool aqui = i + 1 == tramos_.size() || fila < tramos_[i + 1].primera;
        return aqui ? i : TramoBuscado(i, fila);
    }
    std::size_t TramoBuscado(std::size_t desde, std::int64_t fila) const;
    Trozo &Propio(std::size_t tramo);
    void AbrirTramo();

    std::vector<Tramo> tramos_;
    std::int64_t filas_ = 0;
};

} // namespace tarvo
