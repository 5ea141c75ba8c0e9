#include "desktop/filaslista.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tarvo {

namespace {

constexpr std::uint32_t kSobra = std::numeric_limits<std::uint32_t>::max();

bool MismosTextos(const ColumnaTexto &una, const ColumnaTexto &otra) {
    if (una.Filas() != otra.Filas())
        return false;
    for (std::int64_t fila = 0; fila < una.Filas(); ++fila)
        if (una.Celda(fila) != otra.Celda(fila))
            return false;
    return true;
}

ColumnaTexto Elegidas(const ColumnaTexto &columna, const FilasLista::Numeros &filas) {
    ColumnaTexto elegidas;
    elegidas.Reservar(static_cast<std::int64_t>(filas.size()));
    for (const std::uint32_t fila : filas)
        elegidas.Agregar(columna.Celda(fila));
    return elegidas;
}

template <typename Valor>
std::vector<Valor> Elegidas(const std::vector<Valor> &valores, const FilasLista::Numeros &filas) {
    std::vector<Valor> elegidos;
    elegidos.reserve(filas.size());
    for (const std::uint32_t fila : filas)
        elegidos.push_back(valores[fila]);
    return elegidos;
}

} // namespace

int FilasLista::EnPantalla(std::int64_t guardada) const {
    if (guardada < 0 || orden.empty())
        return static_cast<int>(guardada);
    return static_cast<int>(std::ranges::find(orden, guardada) - orden.begin());
}

const FilasLista::Numeros &FilasLista::RangosDe(int columna) {
    Numeros &rango = rangos_[static_cast<std::size_t>(columna)];
    if (rango.empty())
        rango = comparador_.Rangos(Columna(columna));
    return rango;
}

void FilasLista::Reemplazar(std::vector<ColumnaTexto> nuevas) {
    for (std::size_t i = 0; i < celdas.size(); ++i)
        if (!rangos_[i].empty() && !MismosTextos(celdas[i], nuevas[i]))
            rangos_[i].clear();
    celdas = std::move(nuevas);
}

void FilasLista::Reordenar(int columna, Qt::SortOrder sentido) {
    orden = columna < 0 ? Numeros{} : Permutacion(RangosDe(columna), sentido);
}

void FilasLista::PonerCelda(int fila, int columna, const QString &texto) {
    celdas[static_cast<std::size_t>(columna)].Poner(Guardada(fila), texto.toStdString());
    rangos_[static_cast<std::size_t>(columna)].clear();
}

void FilasLista::Agregar(const QStringList &textos, int lugar) {
    const auto guardada = static_cast<std::uint32_t>(celdas.front().Filas());
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        celdas[i].Agregar(textos.value(static_cast<qsizetype>(i)).toStdString());
        if (!tonos[i].empty())
            tonos[i].push_back(Tono::Normal);
    }
    marcas.push_back(false);
    if (lugar >= 0)
        orden.insert(orden.begin() + lugar, guardada);
    OlvidarRangos();
}

void FilasLista::Quitar(int fila) {
    const std::uint32_t guardada = Guardada(fila);
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        celdas[i].Quitar(guardada);
        if (!tonos[i].empty())
            tonos[i].erase(tonos[i].begin() + guardada);
    }
    marcas.erase(marcas.begin() + guardada);
    if (senalada >= guardada)
        senalada = senalada == guardada ? -1 : senalada - 1;
    if (!orden.empty()) {
        orden.erase(orden.begin() + fila);
        for (std::uint32_t &otra : orden)
            otra -= otra > guardada ? 1 : 0;
    }
    OlvidarRangos();
}

void FilasLista::Conservar(const Numeros &guardadas) {
    Numeros nuevas(static_cast<std::size_t>(celdas.front().Filas()), kSobra);
    for (std::size_t i = 0; i < guardadas.size(); ++i)
        nuevas[guardadas[i]] = static_cast<std::uint32_t>(i);
    for (ColumnaTexto &columna : celdas)
        columna = Elegidas(columna, guardadas);
    for (std::vector<Tono> &tono : tonos)
        if (!tono.empty())
            tono = Elegidas(tono, guardadas);
    marcas = Elegidas(marcas, guardadas);
    senalada = -1;
    for (std::uint32_t &fila : orden)
        fila = nuevas[fila];
    std::erase(orden, kSobra);
    OlvidarRangos();
}

int FilasLista::Lugar(const QString &texto, int columna, Qt::SortOrder sentido) const {
    const int signo = sentido == Qt::AscendingOrder ? 1 : -1;
    const auto lugar =
        std::upper_bound(orden.begin(), orden.end(), texto, [&](const QString &nuevo, auto fila) {
            return signo * comparador_.Comparar(nuevo, Columna(columna).Texto(fila)) < 0;
        });
    return static_cast<int>(lugar - orden.begin());
}

} // namespace tarvo
