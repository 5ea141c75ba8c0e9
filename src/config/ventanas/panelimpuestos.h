// Options panel of the taxes: the IVA types, table Iva, and the one custom tax, table Impuesto.
#pragma once

#include "config/impuestologica.h"

#include <QWidget>

#include <memory>

namespace tarvo {

class FiltroCampos;
class PanelLista;
namespace Ui {
class PanelImpuestos;
}

class PanelImpuestos : public QWidget {
    Q_OBJECT
  public:
    explicit PanelImpuestos(const Servicios &servicios, QWidget *padre = nullptr);
    ~PanelImpuestos() override;

    PanelLista &Lista() { return *lista_; }
    void CargarPersonalizado();
    void ConectarTeclas(FiltroCampos &filtro);

  private:
    void HabilitarPersonalizado(bool utilizar);
    void GuardarPersonalizado();

    std::unique_ptr<Ui::PanelImpuestos> ui_;
    std::unique_ptr<PanelLista> lista_;
    ImpuestoLogica impuesto_;
};

} // namespace tarvo
