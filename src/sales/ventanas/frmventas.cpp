#include "sales/ventanas/frmventas.h"

#include "desktop/anfitrion.h"
#include "desktop/preguntas.h"
#include "desktop/ventanas/barrabusqueda.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/paneles.h"
#include "desktop/ventanas/solocaracteres.h"
#include "documents/impresoras.h"
#include "masterdata/ventanas/picclientes.h"
#include "sales/acciones.h"
#include "sales/ultimocomprobante.h"
#include "sales/ventanas/camposescaner.h"
#include "sales/ventanas/tarjetaultimo.h"
#include "store/store.h"
#include "ui_frmventas.h"

#include <QAction>
#include <QBoxLayout>
#include <QHeaderView>
#include <QTimer>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int kCantidadMayor = 9999; // the upper arrow stops here; more can be typed, and counted on from

} // namespace

FrmVentas::FrmVentas(Servicios servicios, Anfitrion &anfitrion, UltimoComprobante &ultimo, QWidget *padre)
    : VentanaModulo(padre),
      ui_(std::make_unique<Ui::FrmVentas>()),
      ultimo_(ultimo),
      escaner_(servicios.preguntas),
      anfitrion_(anfitrion),
      servicios_{servicios.frmBases,   escaner_,          servicios.reloj,
                 servicios.impresoras, servicios.ajustes, servicios.escritorio},
      venta_(servicios.frmBases) {
    ui_->setupUi(this);
    pie_ = new QBoxLayout(QBoxLayout::TopToBottom);
    ui_->columnaDatos->insertLayout(ui_->columnaDatos->indexOf(ui_->cmdNuevo), pie_);
    frUltimo = new TarjetaUltimo(ultimo_, servicios_.preguntas);
    pie_->setSpacing(ui_->columnaDatos->spacing());
    pie_->addWidget(ui_->cmdNuevo, 2);
    pie_->addWidget(frUltimo, 3);
    filtro_ = new FiltroCampos(this);
    PrepararReloj();
    PrepararControles();
    FiltrarCampos();
    ConectarArticulos();
    ConectarDetalle();
    ConectarCliente();
    ConectarDocumento();
    PrepararEscaner();
    PrepararAtajos();
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
    picClientes->CargarClientes();
    MostrarCliente();
    MostrarPago();
    MostrarEstado();
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
    SoloCaracteres(ui_->txtEntregado, digitos + QStringLiteral(".,"));
    connect(ui_->txtEntregado, &QLineEdit::textChanged, this, &FrmVentas::MostrarVuelto);
    filtro_->AlEntrar(ui_->txtCantidad, [this] { Agregar(); });
    filtro_->AlFlecha(ui_->txtCantidad, [this](int paso) { ui_->FSB1->Paso(paso); });
    filtro_->AlFoco(ui_->txtCantidad, [this](bool entra) {
        if (!entra)
            CompletarCantidad();
    });
    filtro_->AlFoco(ui_->txtDescuento, [this](bool entra) { FocoDescuento(entra); });
    filtro_->AlFoco(ui_->txtNumComp, [this](bool) { Marcar(ui_->txtNumComp, "conservado", false); });
    for (QPushButton *boton : {ui_->cmdVContado, ui_->cmdVCredito})
        filtro_->AlEntrar(boton, [boton] { boton->click(); });
    filtro_->AlEntrar(ui_->LVArticulos, [this] { ui_->txtCantidad->setFocus(); });
    filtro_->AlSuprimir(ui_->LVDetalle, [this] { Quitar(); });
    filtro_->AlFoco(ui_->LVDetalle, [this](bool entra) {
        if (entra && !venta_.EnCurso())
            focusNextPrevChild(true);
    });
}

void FrmVentas::PrepararAtajos() {
    Atajo(ui_->txtBuscar, QStringLiteral("Buscar un artículo"), {QKeySequence(Qt::CTRL | Qt::Key_B)},
          &FrmVentas::Buscar);
    Atajo(ui_->cmdEmitir, QStringLiteral("Emitir el comprobante"),
          {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)},
          &FrmVentas::Emitir);
    Atajo(ui_->cmdNuevo, QStringLiteral("Comenzar una nueva venta"), {QKeySequence(Qt::CTRL | Qt::Key_N)},
          &FrmVentas::Nueva);
}

// What is half typed in a field counts: the focus leaves it first.
void FrmVentas::Atajo(QWidget *control, const QString &ayuda, const QList<QKeySequence> &teclas,
                      void (FrmVentas::*accion)()) {
    auto *orden = new QAction(this);
    orden->setShortcuts(teclas);
    addAction(orden);
    control->setToolTip(
        QStringLiteral("%1 (%2)").arg(ayuda, teclas.first().toString(QKeySequence::NativeText)));
    connect(orden, &QAction::triggered, this, [this, control, accion] {
        control->setFocus();
        (this->*accion)();
    });
}

void FrmVentas::PrepararEscaner() {
    const EsBarras esBarras = [this](const QString &codigo) { return venta_.ConBarras(codigo); };
    escaner_.Montar(ui_->frArticulos,
                    [this](const QString &codigo, bool agregar) { BuscarBarras(codigo, agregar); });
    for (QWidget *marco : {ui_->frArticulos, ui_->frDetalle, ui_->frDatos})
        escaner_.Desviar(marco, [this](const QString &texto) { busqueda_->Empezar(texto); });
    escaner_.Desviar(picClientes, [this](const QString &texto) { picClientes->Buscar(texto); });
    escaner_.Vigilar(
        CampoNumerico(ui_->txtCantidad, [this] { ui_->txtCantidad->setText(QStringLiteral("1")); }));
    escaner_.Vigilar(CampoNumerico(
        ui_->txtDescuento, [this] { ui_->txtDescuento->setText(QString::number(venta_.Descuento())); }));
    escaner_.Vigilar(CampoLibre(ui_->txtNumComp, esBarras));
    escaner_.Vigilar(CampoLibre(ui_->txtEntregado, esBarras));
    escaner_.Vigilar(CampoCombo(ui_->cboxVendedores, esBarras));
}

void FrmVentas::BuscarBarras(const QString &codigo, bool agregar) {
    if (busqueda_->BuscarEn(QStringLiteral("barras"), codigo) && agregar)
        Agregar();
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
    connect(ui_->LVArticulos->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmVentas::MostrarSeleccionado);
}

void FrmVentas::ConectarDetalle() {
    connect(ui_->LVDetalle, &ListaVista::FilaDobleClic, this, &FrmVentas::Quitar);
    connect(ui_->cmdQuitar, &QPushButton::clicked, this, &FrmVentas::Quitar);
}

void FrmVentas::ConectarCliente() {
    picClientes = new PicClientes(servicios_, SelectorDeVentas(), buscador_, *filtro_, this);
    filtro_->AlEscapar([this] { return picClientes->Escapar(); });
    connect(ui_->cmdCliente, &QPushButton::clicked, this, &FrmVentas::AbrirClientes);
    connect(picClientes, &PicClientes::Cerrado, this, &FrmVentas::CerrarClientes);
    connect(picClientes, &PicClientes::Elegido, this, [this](int fila) {
        if (fila < 0)
            return;
        venta_.ElegirCliente(picClientes->Clientes(), fila);
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
    connect(ui_->txtNumComp, &QLineEdit::textChanged, this,
            [this](const QString &numero) { venta_.PonerNumComp(numero); });
    connect(ui_->cboxVendedores, &QComboBox::currentTextChanged, this,
            [this](const QString &vendedor) { venta_.PonerVendedor(vendedor); });
    connect(ui_->cmdEmitir, &QPushButton::clicked, this, &FrmVentas::Emitir);
    connect(ui_->cmdNuevo, &QPushButton::clicked, this, &FrmVentas::Nueva);
}

// --- the sale

void FrmVentas::CompletarCantidad() {
    if (ui_->txtCantidad->text().isEmpty())
        ui_->txtCantidad->setText(QStringLiteral("1"));
}

void FrmVentas::Agregar() {
    const QString texto = ui_->txtCantidad->text();
    if (const std::optional<qint64> cantidad = CantidadPedida(texto)) {
        const int fila = ui_->LVArticulos->FilaActual();
        const int renglon = AgregarArticulo(servicios_.preguntas, venta_, fila, *cantidad);
        if (renglon >= 0)
            MostrarAgregada(renglon);
        return;
    }
    ui_->txtCantidad->setText(QStringLiteral("1"));
    BuscarBarras(texto, false);
}

void FrmVentas::MostrarAgregada(int renglon) {
    ui_->LVDetalle->SeleccionarFila(renglon);
    anfitrion_.Sugerencia(venta_.TextoLinea(renglon));
    ui_->txtCantidad->setText(QStringLiteral("1"));
    ui_->txtBuscar->clear();
    ui_->txtBuscar->setFocus();
    CalcularTotales();
    MostrarEstado();
    AjustarColumnas();
}

void FrmVentas::Quitar() {
    const int fila = ui_->LVDetalle->FilaActual();
    if (!QuitarLinea(servicios_.preguntas, venta_, fila))
        return;
    if (venta_.EnCurso())
        ui_->LVDetalle->SeleccionarFila(std::min(fila, venta_.Detalle().Filas() - 1));
    CalcularTotales();
    ui_->LVArticulos->setFocus();
    MostrarEstado();
    AjustarColumnas();
}

void FrmVentas::Nueva() {
    if (!EmpezarNueva(servicios_.preguntas, venta_))
        return;
    MostrarVentaNueva();
    ui_->LVArticulos->setFocus();
}

void FrmVentas::Credito() {
    const bool puesto = venta_.PonerPago(Pago::Credito);
    MostrarPago();
    if (!puesto)
        servicios_.preguntas.Informar(QStringLiteral("Debe seleccionar un cliente."));
    ui_->cmdCliente->setFocus();
}

void FrmVentas::AbrirClientes() {
    venta_.PonerEligiendo(true);
    MostrarEstado();
    picClientes->Abrir();
}

void FrmVentas::CerrarClientes() {
    venta_.PonerEligiendo(false);
    MostrarEstado();
    buscador_.Reiniciar();
    CalcularTotales();
    EnfocarBusqueda();
}

// The search field, or the articles while the search is switched off.
void FrmVentas::EnfocarBusqueda() {
    EnfocarFuera(*picClientes, {ui_->txtBuscar, ui_->LVArticulos});
}

void FrmVentas::FocoDescuento(bool entra) {
    if (entra) {
        ui_->txtDescuento->setText(QString::number(venta_.Descuento()));
        ui_->txtDescuento->selectAll();
        return;
    }
    Marcar(ui_->txtDescuento, "conservado", false);
    venta_.PonerDescuento(ui_->txtDescuento->text());
    ui_->txtDescuento->setText(venta_.TextoDescuento());
    CalcularTotales();
}

void FrmVentas::Buscar() {
    busqueda_->Empezar();
}

void FrmVentas::Emitir() {
    const auto alEmitir = [this](const Comprobante &comprobante) { ultimo_.Poner(comprobante); };
    switch (tarvo::Emitir(servicios_, venta_, impresora_, alEmitir)) {
    case ResultadoEmision::SinLineas:
        EnfocarBusqueda();
        break;
    case ResultadoEmision::SinVendedor:
        ui_->cboxVendedores->setFocus();
        break;
    case ResultadoEmision::Emitida:
        venta_.Reiniciar();
        MostrarVentaNueva();
        MarcarConservados();
        ui_->cboxVendedores->setCurrentIndex(0);
        EnfocarBusqueda();
        break;
    case ResultadoEmision::NoConfirmada:
    case ResultadoEmision::NoGuardada:
        break;
    }
}

// --- leaving

bool FrmVentas::EntradaEnCurso() const {
    return venta_.EnCurso() || picClientes->EntradaEnCurso();
}

bool FrmVentas::PermiteCerrarPrograma() {
    return !EntradaEnCurso() ||
           servicios_.preguntas.Confirma(QStringLiteral("Desea cerrar el programa sin completar la venta?"),
                                         Respuesta::No);
}

} // namespace tarvo
