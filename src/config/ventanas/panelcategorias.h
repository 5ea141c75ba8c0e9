// Options panel of the article categories, table Categorias.
#pragma once

#include "desktop/servicios.h"

#include <QWidget>

#include <memory>

namespace tarvo {

class FiltroCampos;
class PanelLista;
namespace Ui {
class PanelCategorias;
}

class PanelCategorias : public QWidget {
    Q_OBJECT
  public:
    explicit PanelCategorias(const Servicios &servicios, QWidget *padre = nullptr);
    ~PanelCategorias() override;

    PanelLista &Lista() { return *lista_; }
    void ConectarTeclas(FiltroCampos &filtro);

  private:
    std::unique_ptr<Ui::PanelCategorias> ui_;
    std::unique_ptr<PanelLista> lista_;
};

} // namespace tarvo
