// The custom tax: the one row of table Impuesto, edited in place.
#pragma once

#include "desktop/servicios.h"

#include <QString>

namespace tarvo {

// What the panel shows; the check boxes are stored as "Si" and "No", the percentage as it was typed.
struct DatosImpuesto {
    bool utilizar = false;
    QString nombre;
    QString porcentaje;
    bool sobreIva = false;
    bool existeIFiscal = false;
    bool operator==(const DatosImpuesto &) const = default;
};

class ImpuestoLogica {
  public:
    enum class Resultado { Guardado, FaltaNombre, Rechazado };

    explicit ImpuestoLogica(Servicios servicios) : servicios_(servicios) {}

    // Only a tax in use is loaded: with any other `utilizar` than "Si" the fields come empty, whatever the
    // table holds, and saving then stores them as they stand.
    DatosImpuesto Cargar();
    // A tax in use needs a name; the operator is told what is missing or what failed.
    Resultado Guardar(const DatosImpuesto &datos);

  private:
    Servicios servicios_;
};

} // namespace tarvo
