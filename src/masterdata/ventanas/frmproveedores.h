// The suppliers window.
#pragma once

#include "masterdata/ventanas/ventanacatalogo.h"

namespace tarvo {

class FrmProveedores : public VentanaCatalogo {
    Q_OBJECT
  public:
    FrmProveedores(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre = nullptr);

  protected:
    void AjustarColumnas() override;
};

} // namespace tarvo
