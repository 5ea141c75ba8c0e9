#include "accounts/ventanas/frmestados.h"

#include "accounts/codigoleido.h"
#include "desktop/anfitrion.h"
#include "desktop/reloj.h"
#include "desktop/twips.h"
#include "desktop/ventanas/avisarcampo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/listavista.h"
#include "desktop/ventanas/solocaracteres.h"
#include "masterdata/ventanas/picclientes.h"
#include "ui_frmestados.h"

#include <algorithm>

namespace tarvo {

namespace {

constexpr int kDetalleMenor = 600; // twips, on the narrowest screens

QString TextoMovimientos(int filas) {
    return filas == 1 ? QStringLiteral("1 movimiento") : QStringLiteral("%1 movimientos").arg(filas);
}

// What the visible list says while it has no rows.
QString TextoVacio(const PantallaEstados &pantalla) {
    if (pantalla.devolucion)
        return QStringLiteral("No hay documentos para devolver.");
    if (pantalla.ocultas)
        return QStringLiteral("Las ventas contado de este cliente están ocultas.");
    switch (pantalla.lista) {
    case ListaCuenta::Contado:
        return QStringLiteral("Todavía no hay ventas contado.");
    case ListaCuenta::Caja:
        return QStringLiteral("No hay movimientos en ese período.");
    case ListaCuenta::Estado:
        break;
    }
    return pantalla.conCliente ? QStringLiteral("Este cliente no tiene movimientos.")
                               : QStringLiteral("Seleccione un cliente para ver su estado de cuenta.");
}

} // namespace

FrmEstados::FrmEstados(Servicios servicios, Anfitrion &anfitrion, QWidget *padre)
    : VentanaModulo(padre),
      ui_(std::make_unique<Ui::FrmEstados>()),
      servicios_(servicios),
      anfitrion_(anfitrion),
      logica_(servicios, *this) {
    ui_->setupUi(this);
    SoloCaracteres(ui_->txtCantidad,
                   QLatin1String(kSignosImporte)); // before the filter, which hears keys first
    filtro_ = new FiltroCampos(this);
    PrepararControles();
    PrepararClientes();
    FiltrarCampos();
    Conectar();
    logica_.Abrir();
    picClientes->CargarClientes();
    ui_->cmdCliente->setFocus();
}

FrmEstados::~FrmEstados() = default;

void FrmEstados::PrepararControles() {
    for (const ListaCuenta cual : kListasCuenta)
        Vista(cual)->Mostrar(&logica_.Lista(cual));
    const QDate hoy = servicios_.reloj.Ahora().date();
    ui_->DTPDesde->setDate(hoy);
    ui_->DTPHasta->setDate(hoy);
    ui_->DTPDesde1->setTime(QTime(0, 0));
    ui_->DTPHasta1->setTime(QTime(23, 59));
}

void FrmEstados::PrepararClientes() {
    picClientes = new PicClientes(servicios_, SelectorDeCuentas(), buscador_, *filtro_, this);
    // What is built shows behind the panel that has closed.
    connect(picClientes, &PicClientes::Elegido, this, [this] { aceptado_ = true; });
    connect(picClientes, &PicClientes::Cerrado, this, &FrmEstados::ClientesCerrado);
    filtro_->AlEscapar([this] { return picClientes->Escapar(); });
    filtro_->AlEscribir(picClientes, [this](const QString &letra) { picClientes->Buscar(letra); });
}

void FrmEstados::FiltrarCampos() {
    filtro_->AlFoco(ui_->txtCantidad, [this](bool entra) { logica_.FocoCantidad(entra); });
    filtro_->AlEntrar(ui_->txtCantidad, [this] { EntrarCantidad(); });
}

void FrmEstados::Conectar() {
    const auto pulsar = [this](QPushButton *boton, void (EstadosLogica::*accion)()) {
        connect(boton, &QPushButton::clicked, this, [this, accion] { (logica_.*accion)(); });
    };
    pulsar(ui_->cmdCliente, &EstadosLogica::SeleccionarCliente);
    pulsar(ui_->cmdContado, &EstadosLogica::VerContado);
    pulsar(ui_->cmdVerCaja, &EstadosLogica::VerCaja);
    pulsar(ui_->cmdImprimir, &EstadosLogica::Imprimir);
    pulsar(ui_->cmdEliminar, &EstadosLogica::OcultarContado);
    pulsar(ui_->cmdRecibo, &EstadosLogica::EmpezarRecibo);
    pulsar(ui_->cmdAgregar, &EstadosLogica::AgregarRecibo);
    pulsar(ui_->cmdDevolucion, &EstadosLogica::EmpezarDevolucion);
    pulsar(ui_->cmdContinuarDev, &EstadosLogica::Devolver);
    pulsar(ui_->cmdCancelarDevolver, &EstadosLogica::CancelarDevolucion);
    connect(ui_->cmdCaja, &QPushButton::clicked, this, &FrmEstados::AlternarCaja);
    for (const ListaCuenta cual : kListasCuenta)
        connect(&logica_.Lista(cual), &ListaTexto::MarcaPulsada, this, &FrmEstados::SeleccionarFila);
}

ListaVista *FrmEstados::Vista(ListaCuenta cual) const {
    return std::array{ui_->LVEstado, ui_->LVEstadoContado, ui_->LVCaja}[static_cast<std::size_t>(cual)];
}

// --- what the controls show

void FrmEstados::Mostrar(const PantallaEstados &pantalla) {
    ui_->lblTitulo->setText(ReglasDe(pantalla.lista).titulo);
    ui_->lblCliente->setText(pantalla.cliente);
    ui_->lblIdCliente->setText(pantalla.idCliente);
    ui_->lblCliente1->setVisible(pantalla.conCliente);
    ui_->lblSaldo1->setText(ReglasDe(pantalla.lista).rotulo);
    ui_->lblSaldo->setText(pantalla.saldo);
    ui_->lblMovimientos->setText(TextoMovimientos(logica_.Visible().Filas()));
    MostrarLista(pantalla);
    MostrarBotones(pantalla);
    if (pantalla.exportable)
        anfitrion_.PonerExportable(true);
}

void FrmEstados::MostrarLista(const PantallaEstados &pantalla) {
    for (const ListaCuenta cual : kListasCuenta)
        Vista(cual)->setVisible(cual == pantalla.lista);
    Vista(pantalla.lista)->PonerTextoVacio(TextoVacio(pantalla));
    AjustarColumnas();
}

void FrmEstados::MostrarBotones(const PantallaEstados &pantalla) {
    for (QPushButton *boton : {ui_->cmdCliente, ui_->cmdContado, ui_->cmdCaja})
        boton->setEnabled(!pantalla.devolucion);
    ui_->frCont1->setEnabled(!pantalla.devolucion);
    ui_->pilaPie->setCurrentWidget(pantalla.panelCaja ? ui_->frCaja : ui_->frCont1);
    ui_->cmdImprimir->setEnabled(pantalla.conImprimir);
    ui_->cmdEliminar->setEnabled(pantalla.conEliminar);
    ui_->cmdEliminar->setText(pantalla.contadoOculto ? QStringLiteral("Mostrar contado")
                                                     : QStringLiteral("Ocultar contado"));
    ui_->cmdDevolucion->setEnabled(pantalla.conDevolucion);
    ui_->cmdRecibo->setEnabled(pantalla.conRecibo);
    ui_->txtCantidad->setEnabled(pantalla.entrada);
    ui_->cmdAgregar->setVisible(pantalla.entrada);
    ui_->cmdContinuarDev->setVisible(pantalla.devolucion);
    ui_->cmdCancelarDevolver->setVisible(pantalla.devolucion);
}

// "Detalle" takes what the other columns leave; one of them gives way to a scroll bar, and "Fecha" grows by
// a check box.
void FrmEstados::AjustarColumnas() {
    const ListaCuenta cual = logica_.Pantalla().lista;
    const ReglasCuenta &reglas = ReglasDe(cual);
    ListaVista *const vista = Vista(cual);
    const bool barra = vista->DesbordaFilas();
    const bool marcas = logica_.Pantalla().devolucion;
    const int resto = marcas ? reglas.restoMarcas : barra ? reglas.restoBarra : reglas.resto;
    vista->PonerAncho(movimiento::Fecha, marcas ? anchocuenta::kFechaMarcas : anchocuenta::kFecha);
    vista->PonerAncho(movimiento::Detalle, std::max(vista->width() * kTwipsPorPixel - resto, kDetalleMenor));
    vista->PonerAncho(reglas.columnaBarra, barra ? anchocuenta::kImporteBarra : anchocuenta::kImporte);
}

void FrmEstados::resizeEvent(QResizeEvent *evento) {
    VentanaModulo::resizeEvent(evento);
    picClientes->Colocar(rect().adjusted(0, ui_->lblTitulo->height(), 0, 0));
    AjustarColumnas();
}

void FrmEstados::showEvent(QShowEvent *evento) {
    VentanaModulo::showEvent(evento);
    AjustarColumnas();
}

void FrmEstados::SeleccionarFila(int fila) {
    Vista(logica_.Pantalla().lista)->SeleccionarFila(fila);
}

void FrmEstados::EnfocarLista() {
    Vista(logica_.Pantalla().lista)->setFocus();
}

// --- the picker

void FrmEstados::AbrirClientes() {
    ui_->frSeleccionar->setEnabled(false);
    ui_->frEstado->setEnabled(false);
    picClientes->Abrir();
}

void FrmEstados::CerrarClientes() {
    if (picClientes->isVisible())
        picClientes->Cerrar();
}

void FrmEstados::ClientesCerrado() {
    ui_->frSeleccionar->setEnabled(true);
    ui_->frEstado->setEnabled(true);
    if (std::exchange(aceptado_, false))
        logica_.AceptarCliente();
    if (logica_.Visible().Filas() > 0)
        EnfocarLista();
    else
        ui_->cmdCliente->setFocus();
}

std::optional<ClienteElegido> FrmEstados::Elegido() const {
    const int fila = picClientes->FilaActual();
    if (fila < 0)
        return std::nullopt;
    return ClienteElegido{picClientes->Clientes().Celda(fila, cliente::Id),
                          picClientes->Clientes().Celda(fila, cliente::Nombre)};
}

// --- receipt and cash sheet

QString FrmEstados::Cantidad() const {
    return ui_->txtCantidad->text();
}

void FrmEstados::PonerCantidad(const QString &texto) {
    ui_->txtCantidad->setText(texto);
}

void FrmEstados::EnfocarCantidad() {
    ui_->txtCantidad->setFocus();
}

// A code that a scanner typed is no amount: the field gets back what it held, and stays.
void FrmEstados::EntrarCantidad() {
    const QString leido = filtro_->Ritmo().Leido();
    if (!EsCodigoLeido(leido)) {
        ui_->cmdAgregar->setFocus();
        return;
    }
    ui_->txtCantidad->setText(filtro_->Ritmo().AntesDeLeer());
    ui_->txtCantidad->selectAll();
    AvisarCampo(ui_->txtCantidad, QStringLiteral("«%1» no es un importe: es un código leído.").arg(leido));
}

void FrmEstados::AlternarCaja() {
    logica_.AlternarCaja();
    if (logica_.Pantalla().panelCaja)
        EnfocarDesde();
}

PeriodoCaja FrmEstados::Periodo() const {
    return {QDateTime(ui_->DTPDesde->date(), ui_->DTPDesde1->time()),
            QDateTime(ui_->DTPHasta->date(), ui_->DTPHasta1->time())};
}

void FrmEstados::EnfocarDesde() {
    ui_->DTPDesde->setFocus();
}

void FrmEstados::EnfocarDesdeHora() {
    ui_->DTPDesde1->setFocus();
}

// --- menu and export

void FrmEstados::EjecutarContado() {
    logica_.EjecutarContado();
}

void FrmEstados::EjecutarPorCliente() {
    logica_.EjecutarPorCliente();
}

std::optional<Exportable> FrmEstados::ParaExportar() const {
    const PantallaEstados &pantalla = logica_.Pantalla();
    if (!pantalla.exportable)
        return std::nullopt;
    return Exportable{.lista = &logica_.Visible(),
                      .nombre = ReglasDe(pantalla.lista).nombre,
                      .saldo = pantalla.saldo,
                      .cliente = pantalla.cliente};
}

} // namespace tarvo
