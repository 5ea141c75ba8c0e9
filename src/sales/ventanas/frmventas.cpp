#include "sales/ventanas/frmventas.h"

#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/barrabusqueda.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/solocaracteres.h"
#include "documents/impresoras.h"
#include "masterdata/ventanas/picclientes.h"
#include "store/store.h"
#include "ui_frmventas.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyle>
#include <QTimer>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int kCantidadMayor = 9999; // the upper arrow stops here; more can be typed, and counted on from

std::vector<ModoBusqueda> ModosArticulos() {
    return {{QStringLiteral("barras"), QStringLiteral("Código de barras"), QStringLiteral("Código de barras"),
             articulo::CodBarras},
            {QStringLiteral("codigo"), QStringLiteral("Buscar por código"),
             QStringLiteral("Buscar por código"), articulo::Codigo},
            // The mode searches the barcodes too and not the names: operators rely on it.
            {QStringLiteral("articulo"), QStringLiteral("Buscar por artículo"),
             QStringLiteral("Buscar por artículo"), articulo::CodBarras}};
}

} // namespace

FrmVentas::FrmVentas(Servicios servicios, Anfitrion &, QWidget *padre)
    : VentanaModulo(padre),
      ui_(std::make_unique<Ui::FrmVentas>()),
      servicios_(servicios),
      venta_(servicios.frmBases) {
    ui_->setupUi(this);
    filtro_ = new FiltroCampos(this);
    PrepararReloj();
    PrepararControles();
    FiltrarCampos();
    ConectarArticulos();
    ConectarDetalle();
    ConectarCliente();
    ConectarDocumento();
    Abrir();
}

FrmVentas::~FrmVentas() = default;

void FrmVentas::Abrir() {
    impresora_ = ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Ticket);
    MostrarTotales(TotalesEnCero(servicios_.frmBases.moneda()));
    const ImpuestoPersonalizado impuesto = venta_.Impuesto();
    ui_->lblImpPersonalizado1->setText(impuesto.nombre);
    ui_->lblImpPersonalizado1->setVisible(impuesto.utilizar);
    ui_->lblImpPersonalizado->setVisible(impuesto.utilizar);
    ui_->lblTitulo->setText(QStringLiteral("Ventas"));
    ui_->txtDescuento->setText(venta_.TextoDescuento());
    ui_->cboxVendedores->addItems(CargarVendedores(servicios_.frmBases));
    CargarArticulos();
    picClientes_->CargarClientes();
    MostrarCliente();
    MostrarPago();
    MostrarHora();
    ui_->txtBuscar->setFocus();
}

void FrmVentas::PrepararReloj() {
    auto *reloj = new QTimer(this);
    reloj->setObjectName(QStringLiteral("Timer1"));
    reloj->setInterval(1000);
    connect(reloj, &QTimer::timeout, this, &FrmVentas::MostrarHora);
    reloj->start();
}

void FrmVentas::PrepararControles() {
    ui_->LVArticulos->Mostrar(&venta_.Articulos());
    ui_->LVArticulos->PonerTextoVacio(
        QStringLiteral("Todavía no hay artículos. Artículos (F2) agrega el primero."));
    ui_->LVDetalle->PonerTextoVacio(
        QStringLiteral("Escanee un código de barras, o elija un artículo y pulse Agregar."));
    ui_->LVDetalle->Mostrar(&venta_.Detalle());
    ui_->LVDetalle->header()->setSectionsClickable(false); // lines stay in the order in which they were added
    ui_->FSB1->Acompanar(ui_->txtCantidad, 1, kCantidadMayor);
    ui_->cmdAgregar->setIcon(IconoDe(QStringLiteral("agregar")));
    ui_->cmdQuitar->setIcon(IconoDe(QStringLiteral("quitar")));
    ui_->cmdCliente->setIcon(IconoDe(QStringLiteral("cliente")));
    ui_->cmdNuevo->setIcon(IconoDe(QStringLiteral("nuevo")));
}

void FrmVentas::FiltrarCampos() {
    const QString digitos = QStringLiteral("0123456789");
    SoloCaracteres(ui_->txtCantidad, digitos);
    SoloCaracteres(ui_->txtDescuento, digitos);
    filtro_->AlEntrar(ui_->txtCantidad, [this] { Agregar(); });
    filtro_->AlFlecha(ui_->txtCantidad, [this](int paso) { ui_->FSB1->Paso(paso); });
    filtro_->AlFoco(ui_->txtCantidad, [this](bool entra) {
        if (!entra)
            CompletarCantidad();
    });
    filtro_->AlFoco(ui_->txtDescuento, [this](bool entra) { FocoDescuento(entra); });
    filtro_->AlEntrar(ui_->LVArticulos, [this] { ui_->txtCantidad->setFocus(); });
    filtro_->AlSuprimir(ui_->LVDetalle, [this] { Quitar(); });
    filtro_->AlFoco(ui_->LVDetalle, [this](bool entra) {
        if (entra && !venta_.EnCurso())
            focusNextPrevChild(true);
    });
}

void FrmVentas::ConectarArticulos() {
    busqueda_ = new BarraBusqueda({ui_->tbrControles, ui_->txtBuscar, ui_->cmdBuscar, ui_->LVArticulos},
                                  ModosArticulos(), QStringLiteral("barras"), buscador_, servicios_.preguntas,
                                  *filtro_);
    // The scanner's next Enter adds the article.
    connect(busqueda_, &BarraBusqueda::Encontrado, this, [this](const QString &modo) {
        if (modo == QLatin1String("barras"))
            ui_->cmdAgregar->setFocus();
    });
    connect(ui_->LVArticulos, &ListaVista::FilaDobleClic, this, &FrmVentas::Agregar);
    connect(ui_->cmdAgregar, &QPushButton::clicked, this, &FrmVentas::Agregar);
}

void FrmVentas::ConectarDetalle() {
    connect(ui_->LVDetalle, &ListaVista::FilaDobleClic, this, &FrmVentas::Quitar);
    connect(ui_->cmdQuitar, &QPushButton::clicked, this, &FrmVentas::Quitar);
}

void FrmVentas::ConectarCliente() {
    picClientes_ = new PicClientes(servicios_, SelectorDeVentas(), buscador_, *filtro_, this);
    filtro_->AlEscapar([this] { return picClientes_->Escapar(); });
    connect(ui_->cmdCliente, &QPushButton::clicked, this, &FrmVentas::AbrirClientes);
    connect(picClientes_, &PicClientes::Cerrado, this, &FrmVentas::CerrarClientes);
    connect(picClientes_, &PicClientes::Elegido, this, [this](int fila) {
        if (fila < 0)
            return;
        venta_.ElegirCliente(picClientes_->Clientes(), fila);
        MostrarCliente();
    });
    connect(ui_->chkFinal, &QCheckBox::toggled, this, [this](bool si) {
        venta_.PonerConsumidorFinal(si);
        MostrarCliente();
        MostrarPago();
        CalcularTotales();
    });
}

void FrmVentas::ConectarDocumento() {
    connect(ui_->cmdVContado, &QPushButton::clicked, this, [this] {
        venta_.PonerPago(Pago::Contado);
        MostrarPago();
    });
    connect(ui_->cmdVCredito, &QPushButton::clicked, this, &FrmVentas::Credito);
    connect(ui_->cmdEmitir, &QPushButton::clicked, this, &FrmVentas::Emitir);
    connect(ui_->cmdNuevo, &QPushButton::clicked, this, &FrmVentas::Nueva);
}

// --- what the controls show

void FrmVentas::MostrarHora() {
    const QDateTime ahora = servicios_.reloj.Ahora();
    ui_->lblFecha->setText(TextoFecha(ahora));
    ui_->lblHora->setText(TextoHora(ahora));
}

void FrmVentas::MostrarTotales(const Totales &totales) {
    totales_ = totales;
    ui_->lblSubtotal->setText(totales.subtotal);
    ui_->lblIVA->setText(totales.iva);
    ui_->lblImpPersonalizado->setText(totales.impuesto);
    ui_->lblTotal->setText(totales.total);
    ui_->lblDescuento->setText(totales.conDescuento);
}

void FrmVentas::MostrarCliente() {
    const QSignalBlocker sinEventos(ui_->chkFinal);
    ui_->lblCliente->setText(venta_.Cliente().nombre);
    ui_->lblRUC->setText(venta_.Cliente().ruc);
    ui_->lblIdCliente->setText(venta_.Cliente().id);
    ui_->chkFinal->setChecked(venta_.ConsumidorFinal());
}

void FrmVentas::MostrarPago() {
    const bool contado = venta_.pago() == Pago::Contado;
    ui_->shVContado->setVisible(contado);
    ui_->shVCredito->setVisible(!contado);
    ui_->cmdVContado->setProperty("marcado", contado);
    ui_->cmdVCredito->setProperty("marcado", !contado);
    for (QPushButton *boton : {ui_->cmdVContado, ui_->cmdVCredito})
        boton->style()->polish(boton);
}

void FrmVentas::CargarArticulos() {
    venta_.CargarArticulos();
    if (venta_.Articulos().Filas() > 0)
        ui_->LVArticulos->SeleccionarFila(0);
    AjustarColumnas();
}

// Number and discount stay: the next document goes on from them.
void FrmVentas::MostrarVentaNueva() {
    venta_.Reiniciar();
    if (venta_.Articulos().Filas() > 0)
        ui_->LVArticulos->SeleccionarFila(0);
    ui_->txtCantidad->setText(QStringLiteral("1"));
    ui_->cmdQuitar->setEnabled(false);
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
    picClientes_->Colocar(rect().adjusted(0, ui_->lblTitulo->height(), 0, 0));
    AjustarColumnas();
}

void FrmVentas::showEvent(QShowEvent *evento) {
    VentanaModulo::showEvent(evento);
    AjustarColumnas();
}

// --- the sale

void FrmVentas::CompletarCantidad() {
    if (ui_->txtCantidad->text().isEmpty())
        ui_->txtCantidad->setText(QStringLiteral("1"));
}

void FrmVentas::Agregar() {
    CompletarCantidad();
    const int fila = venta_.Agregar(ui_->LVArticulos->FilaActual(), ui_->txtCantidad->text().toLongLong());
    if (fila < 0)
        return;
    ui_->LVDetalle->SeleccionarFila(fila);
    ui_->txtCantidad->setText(QStringLiteral("1"));
    ui_->txtBuscar->clear();
    ui_->txtBuscar->setFocus();
    CalcularTotales();
    ui_->cmdQuitar->setEnabled(true);
    AjustarColumnas();
}

void FrmVentas::Quitar() {
    const int fila = ui_->LVDetalle->FilaActual();
    if (fila < 0 || !servicios_.preguntas.Confirma(
                        QStringLiteral("Está seguro de querer quitar artículo de la lista?"), Respuesta::No))
        return;
    venta_.Quitar(fila);
    if (venta_.EnCurso())
        ui_->LVDetalle->SeleccionarFila(std::min(fila, venta_.Detalle().Filas() - 1));
    CalcularTotales();
    ui_->LVArticulos->setFocus();
    ui_->cmdQuitar->setEnabled(venta_.EnCurso());
    AjustarColumnas();
}

void FrmVentas::Nueva() {
    if (!servicios_.preguntas.Confirma(QStringLiteral("Está seguro de querer comenzar una nueva venta?"),
                                       Respuesta::No))
        return;
    MostrarVentaNueva();
    ui_->LVArticulos->setFocus();
}

void FrmVentas::Credito() {
    if (venta_.PonerPago(Pago::Credito))
        MostrarPago();
    else
        servicios_.preguntas.Informar(QStringLiteral("Debe seleccionar un cliente."));
    ui_->cmdCliente->setFocus();
}

void FrmVentas::AbrirClientes() {
    for (QWidget *marco : {ui_->frArticulos, ui_->frDetalle, ui_->frDatos})
        marco->setEnabled(false);
    picClientes_->Abrir();
}

void FrmVentas::CerrarClientes() {
    for (QWidget *marco : {ui_->frArticulos, ui_->frDetalle, ui_->frDatos})
        marco->setEnabled(true);
    buscador_.Reiniciar();
    CalcularTotales();
    ui_->txtBuscar->setFocus();
}

void FrmVentas::FocoDescuento(bool entra) {
    if (entra) {
        ui_->txtDescuento->setText(QString::number(venta_.Descuento()));
        ui_->txtDescuento->selectAll();
        return;
    }
    venta_.PonerDescuento(ui_->txtDescuento->text());
    ui_->txtDescuento->setText(venta_.TextoDescuento());
    CalcularTotales();
}

DatosComprobante FrmVentas::Comprobante() const {
    return {ui_->lblFecha->text(),
            ui_->lblHora->text(),
            ui_->txtNumComp->text(),
            ui_->cboxVendedores->currentText(),
            totales_,
            impresora_};
}

void FrmVentas::Emitir() {
    switch (tarvo::Emitir(servicios_, venta_, [this] { return Comprobante(); })) {
    case ResultadoEmision::SinLineas:
        ui_->txtBuscar->setFocus();
        break;
    case ResultadoEmision::SinVendedor:
        ui_->cboxVendedores->setFocus();
        break;
    case ResultadoEmision::Emitida:
        MostrarVentaNueva();
        ui_->cboxVendedores->setCurrentIndex(0);
        ui_->txtBuscar->setFocus();
        break;
    case ResultadoEmision::NoConfirmada:
    case ResultadoEmision::NoGuardada:
        break;
    }
}

// --- leaving

bool FrmVentas::EntradaEnCurso() const {
    return venta_.EnCurso();
}

bool FrmVentas::PermiteCerrarPrograma() {
    return !EntradaEnCurso() ||
           servicios_.preguntas.Confirma(QStringLiteral("Desea cerrar el programa sin completar la venta?"),
                                         Respuesta::No);
}

} // namespace tarvo
