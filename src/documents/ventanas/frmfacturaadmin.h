// The dialog that says which fields and whether the logo are part of the invoice. A change applies at once.
#pragma once

#include "desktop/listatexto.h"
#include "desktop/ventanas/dialogo.h"

#include <memory>

namespace tarvo {

class Disenador;
namespace Ui {
class FrmFacturaAdmin;
}

class FrmFacturaAdmin : public Dialogo {
    Q_OBJECT
  public:
    FrmFacturaAdmin(Disenador &disenador, QWidget *padre);
    ~FrmFacturaAdmin() override;

  private:
    void Llenar();
    void Marcar(int fila, bool marcada);
    void Cambio();

    Disenador &disenador_;
    std::unique_ptr<Ui::FrmFacturaAdmin> ui_;
    ListaTexto campos_;
};

} // namespace tarvo
