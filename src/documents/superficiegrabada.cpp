#include "documents/superficiegrabada.h"

#include <utility>

namespace tarvo {

void SuperficieGrabada::Anotar(Paso paso) {
    pasos_.push_back([letra = letra_, paso = std::move(paso)](Superficie &otra) {
        otra.PonerLetra(letra);
        paso(otra);
    });
}

void SuperficieGrabada::Repetir(Superficie &otra) const {
    for (const Paso &paso : pasos_)
        paso(otra);
}

void SuperficieGrabada::Texto(const QString &texto) {
    Anotar([texto](Superficie &otra) { otra.Texto(texto); });
}

void SuperficieGrabada::Columna(int caracteres) {
    Anotar([caracteres](Superficie &otra) { otra.Columna(caracteres); });
}

void SuperficieGrabada::FinLinea() {
    Anotar([](Superficie &otra) { otra.FinLinea(); });
}

void SuperficieGrabada::Posicion(int xTwips, int yTwips) {
    Anotar([xTwips, yTwips](Superficie &otra) { otra.Posicion(xTwips, yTwips); });
}

void SuperficieGrabada::Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) {
    Anotar([=](Superficie &otra) { otra.Imagen(imagen, xTwips, yTwips, anchoTwips, altoTwips); });
}

void SuperficieGrabada::NuevaPagina() {
    Anotar([](Superficie &otra) { otra.NuevaPagina(); });
}

} // namespace tarvo
