#include "desktop/busquedaparte.h"

#include <algorithm>

namespace tarvo {

namespace {

// First byte of the two that the accented letters of Latin-1 take in UTF-8.
constexpr unsigned char kPrefijoLatino = 0xC3;

bool EsLatina(QStringView texto) {
    return std::all_of(texto.begin(), texto.end(), [](QChar c) {
        const char16_t u = c.unicode();
        return u < 0x80 || (u >= 0xC0 && u <= 0xFF);
    });
}

// Lower case of the byte `actual` behind the byte `previo`.
unsigned char Minuscula(unsigned char previo, unsigned char actual) {
    if (actual >= 'A' && actual <= 'Z')
        return static_cast<unsigned char>(actual + 0x20);
    const bool mayusculaLatina =
        previo == kPrefijoLatino && actual >= 0x80 && actual <= 0x9E && actual != 0x97;
    return mayusculaLatina ? static_cast<unsigned char>(actual + 0x20) : actual;
}

} // namespace

BusquedaParte::BusquedaParte(const QString &texto)
    : minusculas_(texto.toLower()), bytes_(minusculas_.toStdString()), latina_(EsLatina(minusculas_)) {}

bool BusquedaParte::Esta(std::string_view celda) const {
    if (latina_)
        return EstaEnBytes(celda);
    const QString texto = QString::fromUtf8(celda.data(), static_cast<qsizetype>(celda.size()));
    return texto.toLower().contains(minusculas_);
}

bool BusquedaParte::EstaEnBytes(std::string_view celda) const {
    if (bytes_.empty())
        return true;
    // Either case of the first letter, found by the library's fast search for a byte.
    const char menor = bytes_.front();
    const char mayor = menor >= 'a' && menor <= 'z' ? static_cast<char>(menor - 0x20) : menor;
    std::size_t enMenor = celda.find(menor);
    std::size_t enMayor = mayor == menor ? std::string_view::npos : celda.find(mayor);
    while (enMenor != enMayor) {
        const std::size_t inicio = std::min(enMenor, enMayor);
        if (EmpiezaEn(celda, inicio))
            return true;
        if (inicio == enMenor)
            enMenor = celda.find(menor, inicio + 1);
        else
            enMayor = celda.find(mayor, inicio + 1);
    }
    return false;
}

bool BusquedaParte::EmpiezaEn(std::string_view celda, std::size_t inicio) const {
    if (celda.size() - inicio < bytes_.size())
        return false;
    unsigned char previo = 0;
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        const auto actual = static_cast<unsigned char>(celda[inicio + i]);
        if (Minuscula(previo, actual) != static_cast<unsigned char>(bytes_[i]))
            return false;
        previo = actual;
    }
    return true;
}

} // namespace tarvo
