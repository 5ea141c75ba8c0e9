#include "interchange/tandatexto.h"

#include "desktop/unalinea.h"
#include "desktop/windows1252.h"

#include <QIODevice>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace tarvo {

namespace {

constexpr std::size_t kTanda = std::size_t{4} << 20; // bytes; the disk takes large pieces faster
using Ocho = std::uint64_t;                          // letters, the first one in the lowest byte
static_assert(std::endian::native == std::endian::little);

// How many of the letters, from the first on, are plain ones: 20 to 7E.
std::size_t Llanas(Ocho letras) {
    constexpr Ocho kUno = 0x0101010101010101;
    const Ocho otras = (letras | (letras + kUno) | (letras - kUno * 0x20)) & (kUno * 0x80);
    return static_cast<std::size_t>(std::countr_zero(otras)) / 8;
}

// The first `hay` of them, 1 to 8, and zeros. Put together in pieces: a copy of so few bytes and a look at
// all eight would wait for each other.
Ocho Primeras(const char *letras, std::size_t hay) {
    const auto pieza = [letras](auto valor, std::size_t desde) {
        std::memcpy(&valor, letras + desde, sizeof valor);
        return Ocho{valor} << desde * 8;
    };
    if (hay == sizeof(Ocho))
        return pieza(Ocho{}, 0);
    if (hay >= sizeof(std::uint32_t))
        return pieza(std::uint32_t{}, 0) | pieza(std::uint32_t{}, hay - sizeof(std::uint32_t));
    return pieza(std::uint8_t{}, 0) | pieza(std::uint8_t{}, hay / 2) | pieza(std::uint8_t{}, hay - 1);
}

// With one of U+00A0 to U+00FF, which the code page numbers alike.
bool EmpiezaAcentuada(std::string_view utf8) {
    const auto byte = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    return utf8.size() > 1 && (byte(1) & 0xC0) == 0x80 &&
           (byte(0) == 0xC3 || (byte(0) == 0xC2 && byte(1) >= 0xA0));
}

// Writes the text at `fin` and returns where it ends.
char *Convertir(std::string_view utf8, char *fin) {
    const QByteArray bytes =
        AWindows1252(EnUnaLinea(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))));
    return std::copy(bytes.begin(), bytes.end(), fin);
}

} // namespace

// Copying eight at a time touches the bytes behind the last one.
TandaTexto::TandaTexto(QIODevice &salida)
    : salida_(salida), tanda_(kTanda), fin_(tanda_.data()), tope_(fin_ + kTanda - sizeof(Ocho)) {}

void TandaTexto::HacerLugar(std::size_t bytes) {
    Terminar();
    tanda_.resize(std::max(tanda_.size(), bytes + sizeof(Ocho)));
    fin_ = tanda_.data();
    tope_ = fin_ + tanda_.size() - sizeof(Ocho);
}

// Its bytes never get more.
void TandaTexto::Celda(std::string_view utf8) {
    Caber(utf8.size());
    char *fin = fin_; // kept out of memory while characters are written
    while (!utf8.empty()) {
        const std::size_t hay = std::min(utf8.size(), sizeof(Ocho));
        const Ocho letras = Primeras(utf8.data(), hay);
        std::memcpy(fin, &letras, sizeof letras);
        const std::size_t llanas = std::min(Llanas(letras), hay);
        fin += llanas;
        utf8.remove_prefix(llanas);
        if (llanas == hay)
            continue;
        if (!EmpiezaAcentuada(utf8)) {
            fin = Convertir(utf8, fin);
            break;
        }
        *fin++ = static_cast<char>((utf8[0] & 3) << 6 | (utf8[1] & 0x3F));
        utf8.remove_prefix(2);
    }
    fin_ = fin;
}

void TandaTexto::Terminar() {
    salida_.write(tanda_.data(), fin_ - tanda_.data());
    fin_ = tanda_.data();
}

} // namespace tarvo
