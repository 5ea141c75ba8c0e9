// What a module window may tell the main window.
#pragma once

#include <QString>

namespace tarvo {

class Anfitrion {
  public:
    virtual ~Anfitrion() = default;
    // Type 1: the menu entry `clave` is enabled or not; type 2: it is checked or not.
    virtual void ActDesMenu(int tipo, const QString &clave, bool valor) = 0;
    // A short hint in the panel `separador` of the status bar; empty clears it.
    virtual void Sugerencia(const QString &texto) = 0;
};

} // namespace tarvo
