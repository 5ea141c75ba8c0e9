// What the controls of the sale window show.
#include "desktop/anfitrion.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/tamano.h"
#include "masterdata/ventanas/picclientes.h"
#include "sales/ventanas/frmventas.h"
#include "sales/ventanas/tarjetaultimo.h"
#include "store/store.h"
#include "ui_frmventas.h"

#include <QAction>
#include <QBoxLayout>
#include <QSignalBlocker>

namespace tarvo {

void FrmVentas::MostrarHora() {
    venta_.PonerMomento(servicios_.reloj.Ahora());
    ui_->lblFecha->setText(venta_.Fecha());
    ui_->lblHora->setText(venta_.Hora());
}

void FrmVentas::MostrarTotales(const Totales &totales) {
    ui_->lblSubtotal->setText(totales.subtotal);
    ui_->lblIVA->setText(totales.iva);
    ui_->lblImpPersonalizado->setText(totales.impuesto);
    ui_->lblTotal->setText(totales.total);
    ui_->lblDescuento->setText(totales.conDescuento);
    MostrarVuelto();
}

void FrmVentas::MostrarCliente() {
    const QSignalBlocker sinEventos(ui_->chkFinal);
    ui_->lblCliente->setText(venta_.Cliente().nombre);
    // Its hint is painted, and has to be spoken too.
    ui_->lblCliente->setAccessibleName(
        venta_.Cliente().nombre.isEmpty() ? ui_->lblCliente->property("sugerencia").toString() : QString());
    ui_->lblRUC->setText(venta_.Cliente().ruc);
    ui_->lblIdCliente->setText(venta_.Cliente().id);
    ui_->chkFinal->setChecked(venta_.ConsumidorFinal());
}

void FrmVentas::MostrarPago() {
    const bool contado = venta_.pago() == Pago::Contado;
    ui_->shVContado->setVisible(contado);
    ui_->shVCredito->setVisible(!contado);
    ui_->cmdVContado->setChecked(contado);
    ui_->cmdVCredito->setChecked(!contado);
}

// What can be used follows from the state of the sale, here and nowhere else.
void FrmVentas::MostrarEstado() {
    const bool libre = venta_.Estado() != EstadoVenta::EligiendoCliente;
    for (QAction *orden : actions())
        orden->setEnabled(libre);
    for (QWidget *marco : {ui_->frArticulos, ui_->frDetalle, ui_->frDatos})
        marco->setEnabled(libre);
    ui_->cmdQuitar->setEnabled(venta_.EnCurso());
    // No key stops at an empty list, in neither direction.
    ui_->LVDetalle->setFocusPolicy(venta_.EnCurso() ? Qt::StrongFocus : Qt::ClickFocus);
    MostrarSeleccionado();
}

void FrmVentas::MostrarSeleccionado() {
    ui_->lblSeleccionado->Poner(venta_.Resumen(ui_->LVArticulos->FilaActual()));
}

void FrmVentas::MostrarVuelto() {
    const VueltoVenta vuelto = venta_.Vuelto(ui_->txtEntregado->text());
    ui_->lblVuelto1->setText(vuelto.rotulo);
    ui_->lblVuelto->setText(vuelto.importe);
}

// What the last issue left for the next document stands out until it is touched.
void FrmVentas::MarcarConservados() {
    Marcar(ui_->txtNumComp, "conservado", !venta_.NumComp().isEmpty());
    Marcar(ui_->txtDescuento, "conservado", venta_.Descuento() != 0);
}

void FrmVentas::CargarArticulos() {
    venta_.CargarArticulos();
    if (venta_.Articulos().Filas() > 0)
        ui_->LVArticulos->SeleccionarFila(0);
    AjustarColumnas();
}

// Number and discount stay: the next document goes on from them.
void FrmVentas::MostrarVentaNueva() {
    if (venta_.Articulos().Filas() > 0)
        ui_->LVArticulos->SeleccionarFila(0);
    ui_->txtCantidad->setText(QStringLiteral("1"));
    ui_->txtEntregado->clear();
    anfitrion_.Sugerencia(QString());
    MostrarEstado();
    MostrarCliente();
    MostrarPago();
    AjustarColumnas();
    CalcularTotales();
}

void FrmVentas::AjustarColumnas() {
    const auto ancho = [](const ListaVista *lista) { return lista->DesbordaFilas() ? 700 : 945; };
    ui_->LVArticulos->PonerAncho(articulo::Precio, ancho(ui_->LVArticulos));
    ui_->LVDetalle->PonerAncho(linea::Cantidad, ancho(ui_->LVDetalle));
    venta_.Detalle().PonerTitulo(linea::Cantidad, ui_->LVDetalle->DesbordaFilas()
                                                      ? QStringLiteral("Cant.")
                                                      : QStringLiteral("Cantidad"));
}

void FrmVentas::resizeEvent(QResizeEvent *evento) {
    VentanaModulo::resizeEvent(evento);
    constexpr int kAltoHolgado = 640; // pixels; below it the card is one line, and all stands closer
    constexpr int kAltoJusto = 440;   // below it that line is shared
    constexpr int kRenglonesDeSobra = 42;
    const bool plegada = height() < kAltoHolgado;
    const bool compartida = height() < kAltoJusto;
    const bool sobra = height() > kRenglonesDeSobra * fontMetrics().height();
    pie_->setDirection(compartida ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    PonerAire({ui_->columnaDatos, ui_->columnaFicha, pie_, ui_->rejillaCliente, ui_->rejillaPago,
               ui_->rejillaTotales, ui_->columnaTotal},
              plegada ? 0.4
              : sobra ? 2
                      : 1);
    Marcar(ui_->cmdNuevo, "compacto", plegada);
    frUltimo->Plegar(plegada);
    picClientes->Colocar(rect().adjusted(0, ui_->lblTitulo->height(), 0, 0));
    AjustarColumnas();
}

void FrmVentas::showEvent(QShowEvent *evento) {
    VentanaModulo::showEvent(evento);
    AjustarColumnas();
}

} // namespace tarvo
