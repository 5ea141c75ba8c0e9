// The quick entry of a customer, a sub-panel of the customer panel.
#pragma once

#include "desktop/servicios.h"
#include "sales/altacliente.h"

#include <QFrame>

#include <memory>

class QLineEdit;

namespace Ui {
class PicNuevoCliente;
}

namespace tarvo {

class PicNuevoCliente : public QFrame {
    Q_OBJECT
  public:
    PicNuevoCliente(const Servicios &servicios, QWidget *padre);
    ~PicNuevoCliente() override;

    // Shows empty fields over a new pending row; a table that is not open is told instead.
    void Abrir();
    // Drops the entry.
    void Cerrar();

  signals:
    void Abierto();
    void Guardado();
    void Cerrado();

  private:
    void Guardar();
    bool FaltaRequerido();
    QLineEdit *Campo(const char *control) const;

    std::unique_ptr<::Ui::PicNuevoCliente> ui_;
    Servicios servicios_;
    AltaCliente alta_;
};

} // namespace tarvo
