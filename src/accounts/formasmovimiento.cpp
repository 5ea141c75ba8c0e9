#include "accounts/formasmovimiento.h"

#include <array>

namespace tarvo {

namespace {

// Up to three numbers with separators between them, as they stand in a text.
struct Numeros {
    std::array<int, 3> valor{};
    std::array<std::size_t, 3> cifras{};
    std::array<char, 2> separador{};
    std::size_t cuantos = 0;
};

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

// False when `texto` is anything but numbers of at most four digits with one character between two of them.
bool Leer(std::string_view texto, Numeros &numeros) {
    std::size_t i = 0;
    while (numeros.cuantos < 3) {
        const std::size_t inicio = i;
        int &valor = numeros.valor[numeros.cuantos];
        while (i < texto.size() && EsCifra(texto[i]) && i - inicio < 4)
            valor = valor * 10 + (texto[i++] - '0');
        numeros.cifras[numeros.cuantos++] = i - inicio;
        if (i == inicio)
            return false;
        if (i == texto.size())
            return true;
        if (numeros.cuantos == 3)
            return false;
        numeros.separador[numeros.cuantos - 1] = texto[i++];
    }
    return false;
}

bool EsBisiesto(int ano) {
    return (ano % 4 == 0 && ano % 100 != 0) || ano % 400 == 0;
}

int DiasDelMes(int mes, int ano) {
    constexpr std::array kDias{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return mes == 2 && EsBisiesto(ano) ? 29 : kDias[static_cast<std::size_t>(mes - 1)];
}

bool EsFecha(int ano, int mes, int dia) {
    return ano > 0 && mes >= 1 && mes <= 12 && dia >= 1 && dia <= DiasDelMes(mes, ano);
}

void Agregar(std::string &salida, int numero, int cifras) {
    for (int divisor = cifras == 4 ? 1000 : 10; divisor > 0; divisor /= 10)
        salida += static_cast<char>('0' + numero / divisor % 10);
}

} // namespace

std::string_view FechaOrden(std::string_view fecha, std::string &bufer) {
    Numeros n;
    const bool tres = Leer(fecha, n) && n.cuantos == 3 && n.separador[0] == n.separador[1] &&
                      std::string_view("/-.").find(n.separador[0]) != std::string_view::npos;
    if (!tres || n.cifras[1] > 2)
        return fecha;
    const std::size_t ano = n.cifras[0] == 4 ? 0 : 2;
    const std::size_t dia = 2 - ano;
    if (n.cifras[ano] != 4 || n.cifras[dia] > 2 || !EsFecha(n.valor[ano], n.valor[1], n.valor[dia]))
        return fecha;
    bufer.clear();
    Agregar(bufer, n.valor[ano], 4);
    bufer += '/';
    Agregar(bufer, n.valor[1], 2);
    bufer += '/';
    Agregar(bufer, n.valor[dia], 2);
    return bufer;
}

std::string_view HoraMovimiento(std::string_view hora, std::string &bufer) {
    Numeros n;
    const bool esHora = Leer(hora, n) && n.cuantos >= 2 && n.separador[0] == ':' && n.cifras[0] <= 2 &&
                        n.cifras[1] <= 2 && n.valor[0] < 24 && n.valor[1] < 60;
    const bool conSegundos = n.cuantos < 3 || (n.separador[1] == ':' && n.valor[2] < 60);
    if (!esHora || !conSegundos)
        return hora;
    if (n.cifras[0] == 2 && n.cifras[1] == 2)
        return hora.substr(0, 5);
    bufer.clear();
    Agregar(bufer, n.valor[0], 2);
    bufer += ':';
    Agregar(bufer, n.valor[1], 2);
    return bufer;
}

} // namespace tarvo
