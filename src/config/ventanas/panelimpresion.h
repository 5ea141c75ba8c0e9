// Options panel of printing: lines of an invoice, the printers of tickets and of listings, the ways to the
// ticket lines and to the invoice designer.
#pragma once

#include "config/lineasdetalle.h"
#include "config/listaimpresoras.h"

#include <QWidget>

#include <memory>

namespace tarvo {

class FiltroCampos;
class ListaVista;
namespace Ui {
class PanelImpresion;
}

class PanelImpresion : public QWidget {
    Q_OBJECT
  public:
    explicit PanelImpresion(const Servicios &servicios, QWidget *padre = nullptr);
    ~PanelImpresion() override;

    const ListaImpresoras &ImpresoraTicket() const { return ticket_; }
    void LlenarImpresoras();
    void CargarDetalle();
    void ConectarTeclas(FiltroCampos &filtro);
    // The field of the detail lines may be left; else its message was shown, it holds the maximum and the
    // focus.
    bool PermiteSalirDeDetalle();
    // The operator is in that field.
    bool EnDetalle() const;
    // The button that opens the ticket lines.
    QWidget *BotonLineasTicket() const;

  signals:
    void LineasTicketPedidas();
    void DisenadorPedido();

  private:
    void Conectar(ListaImpresoras &impresoras, ListaVista *vista);
    void AgregarImpresora();

    Servicios servicios_;
    std::unique_ptr<Ui::PanelImpresion> ui_;
    LineasDetalle detalle_;
    ListaImpresoras ticket_;
    ListaImpresoras listado_;
    bool llenando_ = false;
};

} // namespace tarvo
