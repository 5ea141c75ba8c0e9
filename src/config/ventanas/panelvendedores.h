// Options panel of the sellers, table Vendedores.
#pragma once

#include "desktop/servicios.h"

#include <QWidget>

#include <memory>

namespace tarvo {

class FiltroCampos;
class PanelLista;
namespace Ui {
class PanelVendedores;
}

class PanelVendedores : public QWidget {
    Q_OBJECT
  public:
    explicit PanelVendedores(const Servicios &servicios, QWidget *padre = nullptr);
    ~PanelVendedores() override;

    PanelLista &Lista() { return *lista_; }
    void ConectarTeclas(FiltroCampos &filtro);

  private:
    std::unique_ptr<Ui::PanelVendedores> ui_;
    std::unique_ptr<PanelLista> lista_;
};

} // namespace tarvo
