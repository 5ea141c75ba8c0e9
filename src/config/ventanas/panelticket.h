// The panel of the five header lines of a ticket, shown over the options window.
#pragma once

#include "config/lineasticket.h"

#include <QFrame>

#include <array>
#include <memory>

class QAction;
class QLineEdit;

namespace tarvo {

class ListaImpresoras;
namespace Ui {
class PanelTicket;
}

class FiltroCampos;

class PanelTicket : public QFrame {
    Q_OBJECT
  public:
    // The test ticket goes to the printer that is checked in `impresoras`.
    PanelTicket(const Servicios &servicios, const ListaImpresoras &impresoras, QWidget *padre = nullptr);
    ~PanelTicket() override;

    void Cargar();
    void ConectarTeclas(FiltroCampos &filtro);

  signals:
    void CierrePedido();

  private:
    struct Linea {
        QLineEdit *texto = nullptr;
        QAction *negrita = nullptr;
    };
    void CrearAcciones();
    Cabecera Lineas() const;

    std::unique_ptr<Ui::PanelTicket> ui_;
    LineasTicket ticket_;
    const ListaImpresoras &impresoras_;
    std::array<Linea, 5> lineas_;
};

} // namespace tarvo
