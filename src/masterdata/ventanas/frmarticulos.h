// The articles window: the list-and-detail window with a category filter and the panel for a new category.
#pragma once

#include "masterdata/articuloslogica.h"
#include "masterdata/ventanas/ventanacatalogo.h"

class QComboBox;
class QLineEdit;

namespace tarvo {

class PanelCategoria;
namespace Ui {
class FichaArticulos;
}

class FrmArticulos : public VentanaCatalogo, public VistaFiltro {
    Q_OBJECT
  public:
    FrmArticulos(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre = nullptr);
    ~FrmArticulos() override;

  protected:
    bool Escapar() override;
    void AjustarColumnas() override;

  private:
    void CrearFiltro();
    void ConectarFicha();
    void ConectarImporte(QLineEdit *campo, int posicion);
    void ConectarCantidad(QLineEdit *campo, int posicion);
    void ConectarCategoria();
    void MostrarIdFiltro();

    // --- VistaFiltro
    void PonerFiltros(const QStringList &entradas) override;
    void ElegirFiltro(int indice) override;
    void HabilitarFiltro(bool habilitado) override;
    void EnfocarCatCodigo() override;
    void EnfocarCatCategoria() override;

    std::unique_ptr<Ui::FichaArticulos> ficha_;
    QComboBox *cboxFiltrarCategoria = nullptr;
    QLineEdit *txtIdCategoriaFiltro = nullptr;
    PanelCategoria *picNuevaCategoria = nullptr;
    ArticulosLogica *logica_ = nullptr; // belongs to the base window
};

} // namespace tarvo
