// The invoice designer: the sheet on which fields, logo and labels are moved by mouse or keys, the commands
// beside it. Its logic is Disenador; what it leaves behind is the file and its path in the data.
#pragma once

#include "desktop/ventanas/dialogo.h"
#include "documents/disenador.h"

#include <QTimer>

#include <memory>

namespace tarvo {

namespace Ui {
class FrmFactura;
}

class FrmFactura : public Dialogo {
    Q_OBJECT
  public:
    // Reads the stored layout; a failure of that is told before the window shows.
    FrmFactura(const Servicios &servicios, const QString &carpetaFacturas, QWidget *padre = nullptr);
    // The same with the folder of the layouts, "facturas" beside the data.
    explicit FrmFactura(const Servicios &servicios, QWidget *padre = nullptr);
    ~FrmFactura() override;

  private:
    void ConectarOrdenes();
    void CrearTeclas();
    void Presentar();
    void MostrarPosicion();
    void VigilarBorde(const QPoint &lugar);
    void Desplazar();
    void InsertarEtiqueta();
    void AdministrarCampos();

    Disenador disenador_;
    std::unique_ptr<Ui::FrmFactura> ui_;
    QTimer desplazamiento_; // runs while a held piece moves the sheet by paso_
    QPoint paso_;
};

} // namespace tarvo
