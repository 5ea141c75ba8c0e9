// The point-of-sale window: it moves values between its controls and the sale in progress.
#pragma once

#include "desktop/buscador.h"
#include "desktop/servicios.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "sales/emision.h"

#include <memory>

namespace tarvo {

namespace Ui {
class FrmVentas;
}

class Anfitrion;
class BarraBusqueda;
class FiltroCampos;
class PicClientes;

class FrmVentas : public VentanaModulo {
    Q_OBJECT
  public:
    FrmVentas(Servicios servicios, Anfitrion &anfitrion, QWidget *padre);
    ~FrmVentas() override;

    bool EntradaEnCurso() const override;
    bool PermiteCerrarPrograma() override;

  protected:
    void resizeEvent(QResizeEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

  private:
    void Abrir();
    void PrepararReloj();
    void PrepararControles();
    void ConectarArticulos();
    void ConectarDetalle();
    void ConectarCliente();
    void ConectarDocumento();
    void FiltrarCampos();

    void MostrarHora();
    void MostrarTotales(const Totales &totales);
    void CalcularTotales() { MostrarTotales(venta_.CalcularTotales()); }
    void MostrarCliente();
    void MostrarPago();
    void MostrarVentaNueva();
    void CargarArticulos();
    void AjustarColumnas();

    void CompletarCantidad();
    void Agregar();
    void Quitar();
    void Nueva();
    void Credito();
    void AbrirClientes();
    void CerrarClientes();
    void FocoDescuento(bool entra);
    void Emitir();
    DatosComprobante Comprobante() const;

    std::unique_ptr<Ui::FrmVentas> ui_;
    Servicios servicios_;
    Venta venta_;
    Buscador buscador_;
    FiltroCampos *filtro_;
    BarraBusqueda *busqueda_;
    PicClientes *picClientes_;
    QString impresora_; // name of the ticket printer
    Totales totales_;
};

} // namespace tarvo
