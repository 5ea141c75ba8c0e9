// The dialog that puts a free label on the invoice. Its text shows alignment and styles at once.
#pragma once

#include "desktop/ventanas/dialogo.h"
#include "documents/disenador.h"

#include <memory>

namespace tarvo {

namespace Ui {
class FrmFacturaEtiqueta;
}

class FrmFacturaEtiqueta : public Dialogo {
    Q_OBJECT
  public:
    FrmFacturaEtiqueta(Disenador &disenador, QWidget *padre);
    ~FrmFacturaEtiqueta() override;

  private:
    EtiquetaPedida Pedida() const;
    void Vestir();
    void Agregar();

    Disenador &disenador_;
    std::unique_ptr<Ui::FrmFacturaEtiqueta> ui_;
};

} // namespace tarvo
