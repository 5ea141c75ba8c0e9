// The rules of the accounts window, without the window: which of its three lists is on screen and what stands
// in it, receipts, returns, and what each step enables.
//
// A list is filled anew by every build and is the working copy until the next one: what hides rows or chooses
// documents takes rows out of the list, never out of Ventas. The sum on screen is worked out from the list.
#pragma once

#include "accounts/vistaestados.h"
#include "desktop/servicios.h"

#include <functional>

namespace tarvo {

class Moneda;
struct DocumentoDevuelto;

class EstadosLogica {
  public:
    EstadosLogica(const Servicios &servicios, VistaEstados &vista);

    ListaTexto &Lista(ListaCuenta cual) { return listas_[static_cast<std::size_t>(cual)]; }
    const PantallaEstados &Pantalla() const { return pantalla_; }
    const ListaTexto &Visible() const { return listas_[static_cast<std::size_t>(pantalla_.lista)]; }

    // The window has been made.
    void Abrir();

    // --- views
    void SeleccionarCliente();
    // The statement of the customer that is selected in the picker, which closes.
    void AceptarCliente();
    void VerContado();
    // frCaja in place of frCont1, or back; the list stays.
    void AlternarCaja();
    void VerCaja();
    void Imprimir();
    // Takes the cash documents out of the statement, or builds it with them, as the caption says.
    void OcultarContado();

    // --- receipt
    void EmpezarRecibo();
    // txtCantidad got the focus: it shows the amount without its symbol; or lost it: it shows money text.
    void FocoCantidad(bool entra);
    void AgregarRecibo();

    // --- return
    void EmpezarDevolucion();
    void Devolver();
    void CancelarDevolucion();
    // The entries of the menu that lead to a return at once. What they build leaves a return that goes on.
    void EjecutarContado();
    // The return starts with the next statement that has rows, also when the picker is closed without a
    // choice.
    void EjecutarPorCliente();

  private:
    ListaTexto &ListaVisible() { return listas_[static_cast<std::size_t>(pantalla_.lista)]; }
    const Moneda &moneda() const;
    void Mostrar() { vista_.Mostrar(pantalla_); }
    void Critico(const QString &texto);

    void PonerVista(ListaCuenta cual);
    void QuitarCliente();
    bool Llenar(const std::function<ContenidoLista(FrmBases &)> &leer);
    void Mostrada();
    void ConstruirEstado();
    void ConstruirContado();
    void Reconstruir();
    void CalcularSaldo();
    void SeleccionarPrimera();
    void SeleccionarUltima();

    std::optional<ClienteElegido> ClienteDelMovimiento();
    bool CompletarCantidad();
    void TerminarRecibo();
    void OfrecerRecibo(const QString &total);
    std::vector<int> FilasMarcadas() const;
    bool DevolverFila(int fila, const QString &idCliente);
    bool OfrecerComprobante(const DocumentoDevuelto &devuelto);
    void DejarDevolucion();

    Servicios servicios_;
    VistaEstados &vista_;
    std::array<ListaTexto, 3> listas_;
    PantallaEstados pantalla_;
    bool activarDevolucionPendiente_ = false;
};

} // namespace tarvo
