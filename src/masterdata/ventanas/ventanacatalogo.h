// The window that customers, suppliers and articles share: title bar, list, a card with the fields, the row
// of buttons and the search panel. A derived window puts its fields on the card and hands over its logic.
#pragma once

#include "desktop/servicios.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "documents/listado.h"
#include "masterdata/listadetalle.h"

#include <QHash>

#include <memory>

class QLineEdit;
class QPushButton;

namespace tarvo {

class FiltroCampos;
class ListaVista;
class PanelBusqueda;
namespace Ui {
class VentanaCatalogo;
}

class VentanaCatalogo : public VentanaModulo, public VistaDetalle {
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

    ListaVista &LV() const;
    QWidget *Controles() const;
    // Enter in the last field leads to the save button.
    void TrasCampo(QWidget *ultimo);
    FiltroCampos &Filtro() { return *filtro_; }
    int AnchoListaTwips() const;
    bool CancelarConFoco();

    // --- VistaDetalle
    QString Texto(int campo) const override;
    void Poner(int campo, const QString &texto) override;
    void PonerEntradas(int campo, const QStringList &entradas) override;
    void HabilitarCampos(bool conDatos) override;
    void EnfocarCampo(int campo) override;
    int FilaActual() const override;
    void SeleccionarFila(int fila) override;
    void HabilitarLista(bool habilitada) override;
    void EnfocarLista() override;
    void MostrarBotones(const Botones &botones) override;

    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;

  private:
    void ReunirCampos();
    void OrdenarTabulacion();
    void ConectarBotones();
    void ConectarBoton(QPushButton *boton, void (ListaDetalle::*accion)());
    void ConectarBusqueda();
    void AbrirBusqueda();
    void Buscar();
    void CerrarBusqueda();
    void ColocarPaneles();

    Servicios servicios_;
    std::unique_ptr<Ui::VentanaCatalogo> ui_;
    PanelBusqueda *picBuscarClientes_;
    FiltroCampos *filtro_;
    std::unique_ptr<ListaDetalle> logica_;
    ReporteCatalogo (*reporte_)(const ListaTexto &);
    std::vector<QWidget *> campos_;       // controls in the order of the field table
    std::vector<QWidget *> habilitables_; // fields of the card, but those that are never enabled
    QHash<int, QStringList> entradas_;    // what the combos hold
    std::vector<QWidget *> flotantes_;
};

// Grey for lack of data, or the field's own colours.
void MarcarSinDatos(QWidget *campo, bool sinDatos);

} // namespace tarvo
