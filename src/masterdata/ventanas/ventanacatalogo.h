// The window that customers, suppliers and articles share: title bar, list, a card with the fields, the row
// of buttons and the search panel. A derived window puts its fields on the card and hands over its logic.
#pragma once

#include "desktop/servicios.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "masterdata/listadetalle.h"
#include "masterdata/listadoscatalogo.h"

#include <memory>

namespace tarvo {

class ControlesDetalle;
class FiltroCampos;
class ListaVista;
class PanelBusqueda;
namespace Ui {
class VentanaCatalogo;
}

class VentanaCatalogo : public VentanaModulo {
    Q_OBJECT
  public:
    ~VentanaCatalogo() override;

    bool EntradaEnCurso() const override;
    bool PermiteCerrarPrograma() override;
    // The list as the operator sees it.
    const ListaTexto &Lista() const;
    std::optional<Exportable> ParaExportar() const override;

  protected:
    // What the three windows differ in besides fields and logic.
    struct Aspecto {
        QString nombre; // objectName of the window
        QString titulo;
        QString nombreLista;
        QStringList criterios; // captions of the search boxes
        ReporteCatalogo (*reporte)(const ListaTexto &);
    };
    VentanaCatalogo(const Servicios &servicios, const Aspecto &aspecto, QWidget *padre);

    // The card for the fields, and the row above the list.
    QWidget *Ficha() const;
    void PonerSobreLista(QWidget *control);
    // To be called once, when the fields stand on the card: connects everything and sorts by the first
    // column.
    void Montar(std::unique_ptr<ListaDetalle> logica);
    // The same for a window without exceptions of its own, and fills the list.
    void Montar(const ReglasDetalle &reglas, Anfitrion &anfitrion);

    // Escape; false when there was nothing to close.
    virtual bool Escapar();
    // Widths that follow the window and the number of rows.
    virtual void AjustarColumnas() = 0;
    // A search panel and the like: centred above the fields.
    void Flotar(QWidget *panel);
    // Shows a panel in its place with the focus in `campo`; closes it with the focus in the list or, while
    // that is disabled, in the first field.
    void MostrarPanel(QWidget *panel, QWidget *campo);
    void OcultarPanel(QWidget *panel);

    ListaVista &LV() const;
    ControlesDetalle &Controles() { return *controles_; }
    // Enter in the last field leads to the save button.
    void TrasCampo(QWidget *ultimo);
    FiltroCampos &Filtro() { return *filtro_; }
    int AnchoListaTwips() const;

    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;

  private:
    void OrdenarTabulacion();
    void ConectarBotones();
    void ConectarBusqueda();
    void Buscar();
    void TitularFicha(const QString &nombre);
    void ColocarPaneles();
    void Compactar();
    bool CancelarConFoco();

    Servicios servicios_;
    std::unique_ptr<Ui::VentanaCatalogo> ui_;
    ControlesDetalle *controles_ = nullptr;
    PanelBusqueda *picBuscarClientes;
    FiltroCampos *filtro_;
    std::unique_ptr<ListaDetalle> logica_;
    ReporteCatalogo (*reporte_)(const ListaTexto &);
    std::vector<QWidget *> flotantes_;
};

} // namespace tarvo
