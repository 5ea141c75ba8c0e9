// The customers window.
#pragma once

#include "masterdata/ventanas/ventanacatalogo.h"

namespace tarvo {

class FrmClientes : public VentanaCatalogo {
    Q_OBJECT
  public:
    FrmClientes(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre = nullptr);

  protected:
    void AjustarColumnas() override;
};

} // namespace tarvo
