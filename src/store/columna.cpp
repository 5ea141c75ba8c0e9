#include "store/columna.h"

#include <algorithm>
#include <cassert>

namespace tarvo {

// A chunk holds at most kFilasPorTrozo rows, so a row can't lie before the chunk that a column without
// removed rows would have it in.
std::size_t ColumnaTexto::TramoBuscado(std::size_t desde, std::int64_t fila) const {
    const auto detras = std::upper_bound(tramos_.begin() + static_cast<std::ptrdiff_t>(desde), tramos_.end(),
                                         fila, [](std::int64_t f, const Tramo &t) { return f < t.primera; });
    return static_cast<std::size_t>(detras - tramos_.begin()) - 1;
}

QString ColumnaTexto::Texto(std::int64_t fila) const {
    const std::string_view celda = Celda(fila);
    return QString::fromUtf8(celda.data(), static_cast<qsizetype>(celda.size()));
}

void ColumnaTexto::Reservar(std::int64_t filas) {
    tramos_.reserve(static_cast<std::size_t>(filas / kFilasPorTrozo + 1));
}

ColumnaTexto::Trozo &ColumnaTexto::Propio(std::size_t tramo) {
    std::shared_ptr<Trozo> &trozo = tramos_[tramo].trozo;
    if (trozo.use_count() > 1)
        trozo = std::make_shared<Trozo>(*trozo);
    return *trozo;
}

void ColumnaTexto::Agregar(std::string_view utf8) {
    if (tramos_.empty() || tramos_.back().trozo->fin.size() == kFilasPorTrozo)
        tramos_.push_back({filas_, std::make_shared<Trozo>()});
    Trozo &trozo = Propio(tramos_.size() - 1);
    trozo.texto.append(utf8);
    trozo.fin.push_back(static_cast<std::uint32_t>(trozo.texto.size()));
    ++filas_;
    if (trozo.fin.size() == kFilasPorTrozo)
        Ajustar();
}

void ColumnaTexto::Ajustar() {
    if (tramos_.empty())
        return;
    Trozo &trozo = Propio(tramos_.size() - 1);
    trozo.texto.shrink_to_fit();
    trozo.fin.shrink_to_fit();
}

void ColumnaTexto::Poner(std::int64_t fila, std::string_view utf8) {
    assert(fila >= 0 && fila < filas_);
    const std::size_t tramo = TramoDe(fila);
    const std::string valor(utf8); // may be a view into the very chunk that moves
    Trozo &trozo = Propio(tramo);
    const auto i = static_cast<std::size_t>(fila - tramos_[tramo].primera);
    const std::uint32_t inicio = i == 0 ? 0 : trozo.fin[i - 1];
    const std::uint32_t antes = trozo.fin[i] - inicio;
    trozo.texto.replace(inicio, antes, valor);
    const auto cambio =
        static_cast<std::uint32_t>(valor.size()) - antes; // wraps round when shorter, as fin does
    for (std::size_t k = i; k < trozo.fin.size(); ++k)
        trozo.fin[k] += cambio;
}

void ColumnaTexto::Quitar(std::int64_t fila) {
    assert(fila >= 0 && fila < filas_);
    const std::size_t tramo = TramoDe(fila);
    Poner(fila, {});
    Trozo &trozo = *tramos_[tramo].trozo;
    trozo.fin.erase(trozo.fin.begin() + static_cast<std::ptrdiff_t>(fila - tramos_[tramo].primera));
    for (std::size_t k = tramo + 1; k < tramos_.size(); ++k)
        --tramos_[k].primera;
    if (trozo.fin.empty())
        tramos_.erase(tramos_.begin() + static_cast<std::ptrdiff_t>(tramo));
    --filas_;
}

void ColumnaTexto::Limpiar() {
    tramos_.clear();
    filas_ = 0;
}

std::int64_t ColumnaTexto::Bytes() const {
    std::size_t bytes = tramos_.capacity() * sizeof(Tramo);
    for (const Tramo &tramo : tramos_)
        bytes += sizeof(Trozo) + tramo.trozo->texto.capacity() +
                 tramo.trozo->fin.capacity() * sizeof(std::uint32_t);
    return static_cast<std::int64_t>(bytes);
}

} // namespace tarvo
