#include "store/columna.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <limits>

namespace tarvo {

namespace {

constexpr std::uint32_t kCorto = std::numeric_limits<std::uint16_t>::max();

} // namespace

void ColumnaTexto::Fines::Agregar(std::uint32_t fin) {
    if (largos_.empty() && fin > kCorto)
        Alargar();
    if (largos_.empty() && fin <= kCorto)
        cortos_.push_back(static_cast<std::uint16_t>(fin));
    else
        largos_.push_back(fin);
}

void ColumnaTexto::Fines::Mover(std::size_t desde, std::int64_t cambio) {
    if (largos_.empty() && cortos_.back() + cambio > kCorto)
        Alargar();
    for (std::size_t i = desde; i < cortos_.size(); ++i)
        cortos_[i] = static_cast<std::uint16_t>(cortos_[i] + cambio);
    for (std::size_t i = desde; i < largos_.size(); ++i)
        largos_[i] = static_cast<std::uint32_t>(largos_[i] + cambio);
}

void ColumnaTexto::Fines::Quitar(std::size_t i) {
    if (largos_.empty())
        cortos_.erase(cortos_.begin() + static_cast<std::ptrdiff_t>(i));
    else
        largos_.erase(largos_.begin() + static_cast<std::ptrdiff_t>(i));
}

// Only one of the two ever holds anything.
void ColumnaTexto::Fines::Alargar() {
    largos_.assign(cortos_.begin(), cortos_.end());
    cortos_ = {};
}

void ColumnaTexto::Fines::Ajustar() {
    cortos_.shrink_to_fit();
    largos_.shrink_to_fit();
}

std::uint32_t ColumnaTexto::Fines::MayorLargo() const {
    const auto mayor = [](const auto &fines) {
        auto largo = fines.empty() ? 0U : std::uint32_t(fines.front());
        for (std::size_t i = 1; i < fines.size(); ++i)
            largo = std::max(largo, std::uint32_t(fines[i]) - std::uint32_t(fines[i - 1]));
        return largo;
    };
    return std::max(mayor(cortos_), mayor(largos_));
}

std::size_t ColumnaTexto::Fines::Bytes() const {
    return cortos_.capacity() * sizeof(std::uint16_t) + largos_.capacity() * sizeof(std::uint32_t);
}

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

// In the midst of a long column, with room for what the chunk before has taken.
void ColumnaTexto::AbrirTramo() {
    auto trozo = std::make_shared<Trozo>();
    if (!tramos_.empty()) {
        trozo->texto.reserve(tramos_.back().trozo->texto.size());
        trozo->fin.Reservar(kFilasPorTrozo);
    }
    tramos_.push_back({filas_, std::move(trozo)});
}

void ColumnaTexto::Agregar(std::string_view utf8) {
    if (tramos_.empty() || tramos_.back().trozo->fin.size() == kFilasPorTrozo)
        AbrirTramo();
    Trozo &trozo = Propio(tramos_.size() - 1);
    trozo.texto.append(utf8);
    trozo.fin.Agregar(static_cast<std::uint32_t>(trozo.texto.size()));
    ++filas_;
    if (trozo.fin.size() == kFilasPorTrozo)
        Ajustar();
}

void ColumnaTexto::Ajustar() {
    if (tramos_.empty())
        return;
    Trozo &trozo = Propio(tramos_.size() - 1);
    trozo.texto.shrink_to_fit();
    trozo.fin.Ajustar();
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
    trozo.fin.Mover(i, static_cast<std::int64_t>(valor.size()) - antes);
}

void ColumnaTexto::Quitar(std::int64_t fila) {
    assert(fila >= 0 && fila < filas_);
    const std::size_t tramo = TramoDe(fila);
    Poner(fila, {});
    Trozo &trozo = *tramos_[tramo].trozo;
    trozo.fin.Quitar(static_cast<std::size_t>(fila - tramos_[tramo].primera));
    for (std::size_t k = tramo + 1; k < tramos_.size(); ++k)
        --tramos_[k].primera;
    if (trozo.fin.size() == 0)
        tramos_.erase(tramos_.begin() + static_cast<std::ptrdiff_t>(tramo));
    --filas_;
}

void ColumnaTexto::Limpiar() {
    tramos_.clear();
    filas_ = 0;
}

// A pass over the ends alone, without the texts: lists ask for it at every fill. A chunk without anything
// longer than what is kept is passed over as a whole.
std::vector<std::int64_t> ColumnaTexto::MasLargas(std::size_t cuantas, std::uint32_t bytes) const {
    using Larga = std::pair<std::uint32_t, std::int64_t>; // length, minus row: the least is the next to go
    std::vector<Larga> largas;
    for (const Tramo &tramo : tramos_) {
        if (largas.size() == cuantas && tramo.trozo->fin.MayorLargo() <= largas.front().first)
            continue;
        std::uint32_t inicio = 0;
        for (std::size_t i = 0; i < tramo.trozo->fin.size(); ++i) {
            const std::uint32_t fin = tramo.trozo->fin[i];
            const std::uint32_t largo = fin - inicio;
            inicio = fin;
            if (largo > bytes || (largas.size() == cuantas && largo <= largas.front().first))
                continue;
            if (largas.size() == cuantas) {
                std::pop_heap(largas.begin(), largas.end(), std::greater<>());
                largas.pop_back();
            }
            largas.emplace_back(largo, -(tramo.primera + static_cast<std::int64_t>(i)));
            std::push_heap(largas.begin(), largas.end(), std::greater<>());
        }
    }
    std::vector<std::int64_t> filas;
    filas.reserve(largas.size());
    for (const Larga &larga : largas)
        filas.push_back(-larga.second);
    return filas;
}

std::int64_t ColumnaTexto::Bytes() const {
    std::size_t bytes = tramos_.capacity() * sizeof(Tramo);
    for (const Tramo &tramo : tramos_)
        bytes += sizeof(Trozo) + tramo.trozo->texto.capacity() + tramo.trozo->fin.Bytes();
    return static_cast<std::int64_t>(bytes);
}

} // namespace tarvo
