#include "documents/superficie.h"

namespace tarvo {

namespace {

// A monospaced character is six tenths of its size wide, its line 1.133 sizes high; a point has 20 twips.
constexpr double kAnchoPorPunto = 12;
constexpr double kAltoPorPunto = 22.66;

} // namespace

double Superficie::AnchoCaracter() {
    return letra_.puntos * kAnchoPorPunto;
}

double Superficie::AltoLinea() {
    return letra_.puntos * kAltoPorPunto;
}

QString Cortar(const QString &texto, qsizetype caracteres) {
    if (caracteres <= 0)
        return {};
    if (caracteres < texto.size() && texto.at(caracteres - 1).isHighSurrogate())
        --caracteres;
    return texto.left(caracteres);
}

} // namespace tarvo
