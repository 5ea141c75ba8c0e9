// A printing surface that remembers what was written on it, for paper whose length must be known before it is
// cut.
#pragma once

#include "documents/superficie.h"

#include <functional>
#include <vector>

namespace tarvo {

class SuperficieGrabada : public Superficie {
  public:
    void Texto(const QString &texto) override;
    void Columna(int caracteres) override;
    void FinLinea() override;
    void Posicion(int xTwips, int yTwips) override;
    void Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) override;
    void NuevaPagina() override;
    void Terminar() override {}

    // Does on `otra` all that was done on this surface, without the end.
    void Repetir(Superficie &otra) const;

  private:
    using Paso = std::function<void(Superficie &)>;
    void Anotar(Paso paso);

    std::vector<Paso> pasos_;
};

} // namespace tarvo
