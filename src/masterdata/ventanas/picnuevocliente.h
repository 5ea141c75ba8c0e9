// The quick entry of a customer, a sub-panel of the customer panel: the fields of the customers window over
// two buttons. The row begins in the table only when it is saved.
#pragma once

#include "desktop/servicios.h"

#include <QFrame>

#include <memory>
#include <vector>

class QLineEdit;

namespace tarvo {

namespace Ui {
class PicNuevoCliente;
}

class PicNuevoCliente : public QFrame {
    Q_OBJECT
  public:
    PicNuevoCliente(const Servicios &servicios, QWidget *padre);
    ~PicNuevoCliente() override;

    // Shows empty fields.
    void Abrir();
    // Drops the entry.
    void Cerrar();
    // Something has been typed that is not saved.
    bool EntradaEnCurso() const;

  signals:
    void Abierto();
    void Guardado();
    void Cerrado();

  private:
    void Guardar();
    bool FaltaRequerido(const QStringList &valores);

    std::unique_ptr<Ui::PicNuevoCliente> ui_;
    Servicios servicios_;
    std::vector<QLineEdit *> campos_; // in the order of CamposClientes
};

} // namespace tarvo
