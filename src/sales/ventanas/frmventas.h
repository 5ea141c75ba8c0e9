// The point-of-sale window: it moves values between its controls and the sale in progress.
#pragma once

#include "desktop/buscador.h"
#include "desktop/servicios.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "sales/emision.h"
#include "sales/ventanas/rutaescaner.h"

#include <memory>

class QBoxLayout;

namespace tarvo {

namespace Ui {
class FrmVentas;
}

class Anfitrion;
class BarraBusqueda;
class FiltroCampos;
class PicClientes;
class TarjetaUltimo;
class UltimoComprobante;

class FrmVentas : public VentanaModulo {
    Q_OBJECT
  public:
    // `ultimo` outlives the window, which shows it and puts there what it issues.
    FrmVentas(Servicios servicios, Anfitrion &anfitrion, UltimoComprobante &ultimo, QWidget *padre);
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
    void PrepararAtajos();
    void Atajo(QWidget *control, const QString &ayuda, const QList<QKeySequence> &teclas,
               void (FrmVentas::*accion)());
    void PrepararEscaner();

    void MostrarHora();
    void MostrarTotales(const Totales &totales);
    void CalcularTotales() { MostrarTotales(venta_.CalcularTotales()); }
    void MostrarCliente();
    void MostrarPago();
    void MostrarEstado();
    void MostrarSeleccionado();
    void MostrarVuelto();
    void MarcarConservados();
    void MostrarVentaNueva();
    void CargarArticulos();
    void AjustarColumnas();

    void CompletarCantidad();
    void BuscarBarras(const QString &codigo, bool agregar);
    void Agregar();
    void MostrarAgregada(int renglon);
    void Quitar();
    void Nueva();
    void Credito();
    void AbrirClientes();
    void CerrarClientes();
    void EnfocarBusqueda();
    void FocoDescuento(bool entra);
    void Buscar();
    void Emitir();

    std::unique_ptr<Ui::FrmVentas> ui_;
    UltimoComprobante &ultimo_;
    TarjetaUltimo *frUltimo = nullptr;
    QBoxLayout *pie_ = nullptr; // "Nueva Venta" and the card: below each other, side by side in a low window
    RutaEscaner escaner_;
    Anfitrion &anfitrion_;
    Servicios servicios_; // whose questions go through the scanner's road
    Venta venta_;
    Buscador buscador_;
    FiltroCampos *filtro_;
    BarraBusqueda *busqueda_;
    PicClientes *picClientes;
    QString impresora_; // name of the ticket printer
};

} // namespace tarvo
