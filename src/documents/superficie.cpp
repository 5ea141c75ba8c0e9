#include "documents/superficie.h"

#include <algorithm>

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

QString TextoImprimible(const QString &texto) {
    const auto deControl = [](QChar letra) {
        return letra.category() == QChar::Other_Control || letra == QChar::LineSeparator ||
               letra == QChar::ParagraphSeparator;
    };
    if (std::none_of(texto.begin(), texto.end(), deControl))
        return texto;
    QString limpio = texto;
    std::replace_if(limpio.begin(), limpio.end(), deControl, QLatin1Char(' '));
    return limpio;
}

QString Cortar(const QString &texto, qsizetype caracteres) {
    if (caracteres <= 0)
        return {};
    if (caracteres < texto.size() && texto.at(caracteres - 1).isHighSurrogate())
        --caracteres;
    return texto.left(caracteres);
}

} // namespace tarvo
