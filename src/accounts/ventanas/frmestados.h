// The accounts window: the statement of a customer, the cash list and the cash sheet, one at a time. It moves
// values between its controls and the rules.
#pragma once

#include "accounts/estadoslogica.h"
#include "desktop/buscador.h"
#include "desktop/ventanas/ventanamodulo.h"

#include <memory>

namespace tarvo {

namespace Ui {
class FrmEstados;
}

class Anfitrion;
class FiltroCampos;
class ListaVista;
class PicClientes;

class FrmEstados : public VentanaModulo, private VistaEstados {
    Q_OBJECT
  public:
    FrmEstados(Servicios servicios, Anfitrion &anfitrion, QWidget *padre);
    ~FrmEstados() override;

    // The entries of the menu that lead to a return.
    void EjecutarContado();
    void EjecutarPorCliente();

    bool EntradaEnCurso() const override { return false; }
    bool PermiteCerrarPrograma() override { return true; }
    std::optional<Exportable> ParaExportar() const override;

  protected:
    void resizeEvent(QResizeEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

  private:
    void PrepararControles();
    void PrepararClientes();
    void FiltrarCampos();
    void Conectar();

    void Mostrar(const PantallaEstados &pantalla) override;
    void SeleccionarFila(int fila) override;
    void EnfocarLista() override;
    void AbrirClientes() override;
    void CerrarClientes() override;
    std::optional<ClienteElegido> Elegido() const override;
    QString Cantidad() const override;
    void PonerCantidad(const QString &texto) override;
    void EnfocarCantidad() override;
    PeriodoCaja Periodo() const override;
    void EnfocarDesde() override;
    void EnfocarDesdeHora() override;

    void MostrarLista(const PantallaEstados &pantalla);
    void MostrarBotones(const PantallaEstados &pantalla);
    void ClientesCerrado();
    void EntrarCantidad();
    void AlternarCaja();
    void AjustarColumnas();
    ListaVista *Vista(ListaCuenta cual) const;

    std::unique_ptr<Ui::FrmEstados> ui_;
    Servicios servicios_;
    Anfitrion &anfitrion_;
    EstadosLogica logica_;
    Buscador buscador_;
    FiltroCampos *filtro_;
    PicClientes *picClientes;
    bool aceptado_ = false; // the picker is closing with a choice
};

} // namespace tarvo
