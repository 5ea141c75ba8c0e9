// The customer panel: a list to pick from, its search and, where the rules offer it, the way to the quick
// entry. It lies over its window, which disables its own frames meanwhile.
#pragma once

#include "desktop/servicios.h"
#include "masterdata/selectorclientes.h"

#include <QFrame>

#include <memory>

namespace tarvo {

namespace Ui {
class PicClientes;
}

class BarraBusqueda;
class Buscador;
class FiltroCampos;
class PicNuevoCliente;

class PicClientes : public QFrame {
    Q_OBJECT
  public:
    // `buscador` holds the start row of the search, which other lists of the window may share.
    PicClientes(const Servicios &servicios, const ReglasSelector &reglas, Buscador &buscador,
                FiltroCampos &filtro, QWidget *padre);
    ~PicClientes() override;

    const ListaTexto &Clientes() const { return clientes_; }
    // Selected row of Clientes(), -1 when there is none.
    int FilaActual() const;
    // Fills the list anew from the store and selects its first row.
    void CargarClientes();

    void Abrir();
    // Begins a new search with `texto`, unless a new customer is being entered.
    void Buscar(const QString &texto = QString());
    // As "Cancelar".
    void Cerrar();
    // Escape closes the topmost panel; false when none is open.
    bool Escapar();
    // A new customer is half typed.
    bool EntradaEnCurso() const;
    // Takes its place in the middle of `sitio`, a part of the window.
    void Colocar(const QRect &sitio);

  signals:
    void Elegido(int fila); // row of Clientes(), -1 when the list is empty; the panel closes behind it
    void Cerrado();

  protected:
    void resizeEvent(QResizeEvent *evento) override;

  private:
    bool EntradaNueva() const;
    void PrepararBarra(Buscador &buscador, FiltroCampos &filtro);
    void PrepararAlta();
    void Aceptar();
    void HabilitarPanel(bool si);
    void AjustarColumnas();
    void ColocarAlta();

    std::unique_ptr<Ui::PicClientes> ui_;
    Servicios servicios_;
    ReglasSelector reglas_;
    ListaTexto clientes_;
    BarraBusqueda *busqueda_;
    PicNuevoCliente *picNuevoCliente = nullptr; // null: no quick entry
};

} // namespace tarvo
