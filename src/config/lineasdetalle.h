// How many lines of detail an invoice holds: `cantlineas` of table Factura, 1 to 30, written while it is
// typed.
#pragma once

#include "desktop/servicios.h"

#include <QString>

namespace tarvo {

class LineasDetalle {
  public:
    static constexpr int kMinimo = 1;
    static constexpr int kMaximo = 30;

    explicit LineasDetalle(Servicios servicios) : servicios_(servicios) {}

    QString Cargar();
    // Stores the number that `texto` (digits) reads as, "0" for none, at once and for good: this setting has
    // no save button. So a number that is out of its range is on disk until the operator leaves the field.
    bool Escribir(const QString &texto);
    // Asked when the operator leaves the field: false, with a message, for more than kMaximo lines.
    bool Admite(const QString &texto);

  private:
    Servicios servicios_;
};

} // namespace tarvo
