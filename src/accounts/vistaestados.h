// What the rules of the accounts window need of the window itself, and all that they have it show.
#pragma once

#include "accounts/contenidocuenta.h"
#include "accounts/listascuenta.h"

#include <QDateTime>

#include <optional>

namespace tarvo {

// Captions, enabled and visible controls.
struct PantallaEstados {
    ListaCuenta lista = ListaCuenta::Estado; // the one of the three that is visible
    QString cliente;                         // lblCliente
    QString idCliente;                       // lblIdCliente
    bool conCliente = false;                 // lblCliente1 is visible
    QString saldo;                           // lblSaldo
    bool contadoOculto = false; // the caption of cmdEliminar offers to show the cash documents again
    bool ocultas = false;       // cash documents were taken out of the list since it was filled
    bool exportable = false;    // a list has been filled
    bool panelCaja = false;     // frCaja is visible in place of frCont1
    bool devolucion = false; // return mode: its two buttons are visible, what chooses a view and frCont1 are
                             // disabled
    // Enabled, of the buttons in frCont1.
    bool conImprimir = false;
    bool conEliminar = false;
    bool conDevolucion = false;
    bool conRecibo = false;
    bool entrada = false; // a receipt is entered: txtCantidad is enabled and cmdAgregar visible
};

// The customer that is selected in the picker.
struct ClienteElegido {
    QString id;
    QString nombre;
};

// The pickers of the cash sheet.
struct PeriodoCaja {
    QDateTime desde;
    QDateTime hasta;
};

class VistaEstados {
  public:
    virtual ~VistaEstados() = default;
    virtual void Mostrar(const PantallaEstados &pantalla) = 0;

    // Row of the visible list.
    virtual void SeleccionarFila(int fila) = 0;
    virtual void EnfocarLista() = 0;

    virtual void AbrirClientes() = 0;
    virtual void CerrarClientes() = 0;
    // Nothing when the picker is empty.
    virtual std::optional<ClienteElegido> Elegido() const = 0;

    virtual QString Cantidad() const = 0; // text of txtCantidad
    virtual void PonerCantidad(const QString &texto) = 0;
    virtual void EnfocarCantidad() = 0;

    virtual PeriodoCaja Periodo() const = 0;
    virtual void EnfocarDesde() = 0;     // DTPDesde
    virtual void EnfocarDesdeHora() = 0; // DTPDesde1
};

} // namespace tarvo
