// The statistics: a chart of one month with a bar for each day.
//
// The bars are sample values, which the line under the chart says, until the operator asks for the sales of
// the month. Month and check box count when "Buscar" is pressed; neither is remembered.
#pragma once

#include "desktop/servicios.h"
#include "desktop/ventanas/ventanamodulo.h"

#include <memory>

class QBarCategoryAxis;
class QBarSet;
class QValueAxis;

namespace tarvo {

namespace Ui {
class FrmStats;
}

class FrmStats : public VentanaModulo {
    Q_OBJECT
  public:
    FrmStats(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre = nullptr);
    ~FrmStats() override;

    bool EntradaEnCurso() const override { return false; }
    bool PermiteCerrarPrograma() override { return true; }

  protected:
    void resizeEvent(QResizeEvent *evento) override;

  private:
    void CrearGrafico();
    void cmdBuscar_Click();
    void Mostrar(const std::vector<double> &valores, int dias);

    Servicios servicios_;
    std::unique_ptr<Ui::FrmStats> ui_;
    QBarSet *valores_ = nullptr;
    QBarCategoryAxis *ejeDias_ = nullptr;
    QValueAxis *ejeValores_ = nullptr;
};

} // namespace tarvo
