// The window of the users, outside menu and toolbar.
#pragma once

#include "desktop/servicios.h"
#include "desktop/ventanas/dialogo.h"

#include <memory>

class QTimer;

namespace tarvo {

class ControlesDetalle;
class UsuariosLogica;
namespace Ui {
class FrmUsuarios;
}

class FrmUsuarios : public Dialogo {
    Q_OBJECT
  public:
    // The table of the users must be open.
    explicit FrmUsuarios(const Servicios &servicios, QWidget *padre = nullptr);
    ~FrmUsuarios() override;

  private:
    void ConectarTeclas();
    void HabilitarConfirmacion(bool pide);
    void AjustarColumnas();

    std::unique_ptr<Ui::FrmUsuarios> ui_;
    ControlesDetalle *controles_;
    QTimer *Timer1;
    std::unique_ptr<UsuariosLogica> logica_;
};

// Opens the table of the users, which no start does, and shows the window to its end. A table that can't be
// opened is told.
void MostrarUsuarios(const Servicios &servicios, QWidget *padre);

} // namespace tarvo
