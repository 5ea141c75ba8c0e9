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
    const std::size_t largo = bytes_.size();
    if (celda.size() < largo)
        return false;
    const auto en = [&](std::size_t i) {
        return Minuscula(i > 0 ? static_cast<unsigned char>(celda[i - 1]) : 0,
                         static_cast<unsigned char>(celda[i]));
    };
    for (std::size_t inicio = 0; inicio + largo <= celda.size(); ++inicio) {
        std::size_t i = 0;
        while (i < largo && en(inicio + i) == static_cast<unsigned char>(bytes_[i]))
            ++i;
        if (i == largo)
            return true;
    }
    return false;
}

} // namespace tarvo
