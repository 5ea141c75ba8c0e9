// The custom tax: the one row of table Impuesto, edited in place.
#pragma once

#include "desktop/servicios.h"
#include "masterdata/impuesto.h"

namespace tarvo {

class ImpuestoLogica {
  public:
    enum class Resultado { Guardado, FaltaNombre, Rechazado };

    explicit ImpuestoLogica(Servicios servicios) : servicios_(servicios) {}

    // Only a tax in use is loaded: with any other `utilizar` than "Si" the fields come empty, whatever the
    // table holds, and saving then stores them as they stand.
    ImpuestoPersonalizado Cargar();
    // A tax in use needs a name; the operator is told what is missing or what failed.
    Resultado Guardar(const ImpuestoPersonalizado &impuesto);

  private:
    Servicios servicios_;
};

} // namespace tarvo
