// The customer panel of a sale: a list to pick from, its search, and the way to the quick entry. It lies over
// the window, whose frames are disabled meanwhile.
#pragma once

#include "desktop/listatexto.h"
#include "desktop/servicios.h"

#include <QFrame>

#include <memory>

namespace Ui {
class PicClientes;
}

namespace tarvo {

class BarraBusqueda;
class Buscador;
class FiltroCampos;
class PicNuevoCliente;

class PicClientes : public QFrame {
    Q_OBJECT
  public:
    PicClientes(const Servicios &servicios, Buscador &buscador, FiltroCampos &filtro, QWidget *padre);
    ~PicClientes() override;

    const ListaTexto &Clientes() const { return clientes_; }
    // Fills the list anew from the store.
    void CargarClientes();

    void Abrir();
    void Cerrar();
    // Escape closes the topmost panel; false when none is open.
    bool Escapar();
    // Takes its place in the middle of `sitio`, a part of the window.
    void Colocar(const QRect &sitio);

  signals:
    void Elegido(int fila); // row of Clientes(); the panel closes behind it
    void Cerrado();

  protected:
    void resizeEvent(QResizeEvent *evento) override;

  private:
    void Aceptar();
    void HabilitarPanel(bool si);
    void AjustarColumnas();
    void ColocarAlta();

    std::unique_ptr<::Ui::PicClientes> ui_;
    FrmBases &frmBases_;
    ListaTexto clientes_;
    BarraBusqueda *busqueda_;
    PicNuevoCliente *picNuevoCliente_;
};

} // namespace tarvo
