// The options window: a tree on the left chooses one of four panels on the right; the ticket lines open above
// them.
#pragma once

#include "desktop/servicios.h"
#include "desktop/ventanas/dialogo.h"

#include <memory>

class QStandardItemModel;

namespace tarvo {

class PanelCategorias;
class PanelImpresion;
class PanelImpuestos;
class PanelTicket;
class PanelVendedores;
namespace Ui {
class FrmConfig;
}

class FrmConfig : public Dialogo {
    Q_OBJECT
  public:
    // All panels are filled at once. `abrirDisenador` starts on the print panel, and the invoice designer
    // opens over it as soon as the window shows.
    FrmConfig(const Servicios &servicios, bool abrirDisenador, QWidget *padre = nullptr);
    ~FrmConfig() override;

  public slots:
    void done(int resultado) override;

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    void CrearPaneles(const Servicios &servicios);
    void CrearArbol();
    void Llenar();
    void ConectarTeclas();
    void SeleccionarNodo(int nodo);
    void MostrarPanel(int nodo);
    void MostrarTicket(bool visible);

    std::unique_ptr<Ui::FrmConfig> ui_;
    QStandardItemModel *arbol_;
    PanelImpuestos *frImpuestos = nullptr;
    PanelCategorias *frCategorias = nullptr;
    PanelVendedores *frVendedores = nullptr;
    PanelImpresion *frImpresion = nullptr;
    PanelTicket *picTicket = nullptr;
};

} // namespace tarvo
