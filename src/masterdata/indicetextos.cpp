#include "masterdata/indicetextos.h"

#include <algorithm>

namespace tarvo {

namespace {

bool EsAscii(std::string_view texto) {
    return std::all_of(texto.begin(), texto.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::string Plegado(std::string_view texto) {
    if (!EsAscii(texto))
        return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()))
            .toCaseFolded()
            .toStdString();
    std::string plegado(texto);
    for (char &c : plegado) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return plegado;
}

std::size_t Clave(std::string_view texto) {
    return std::hash<std::string>()(Plegado(texto));
}

} // namespace

int IndiceTextos::Cuantas(const ListaTexto &lista, int columna, std::string_view texto) {
    const auto [lugar, nueva] = columnas_.try_emplace(columna);
    Cuentas &cuentas = lugar->second;
    if (nueva) {
        cuentas.reserve(static_cast<std::size_t>(lista.Filas()));
        for (int fila = 0; fila < lista.Filas(); ++fila)
            ++cuentas[Clave(lista.CeldaUtf8(fila, columna))];
    }
    const auto hallada = cuentas.find(Clave(texto));
    return hallada == cuentas.end() ? 0 : hallada->second;
}

void IndiceTextos::Agregar(int columna, std::string_view texto) {
    const auto lugar = columnas_.find(columna);
    if (lugar != columnas_.end())
        ++lugar->second[Clave(texto)];
}

void IndiceTextos::Quitar(int columna, std::string_view texto) {
    const auto lugar = columnas_.find(columna);
    if (lugar != columnas_.end())
        --lugar->second[Clave(texto)];
}

bool IgualSinCaja(std::string_view uno, std::string_view otro) {
    return uno == otro || Plegado(uno) == Plegado(otro);
}

} // namespace tarvo
