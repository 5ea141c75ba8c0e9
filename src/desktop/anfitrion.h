// What a module window may tell the main window.
#pragma once

#include <QString>

namespace tarvo {

class Anfitrion {
  public:
    virtual ~Anfitrion() = default;
    // A list that can be exported is on screen, or no more.
    virtual void PonerExportable(bool posible) = 0;
    // A short hint in the panel `separador` of the status bar; empty clears it.
    virtual void Sugerencia(const QString &texto) = 0;
};

} // namespace tarvo
