#include "sales/ventanas/picclientes.h"

#include "desktop/ventanas/iconos.h"
#include "sales/listasventa.h"
#include "sales/ventanas/barrabusqueda.h"
#include "sales/ventanas/picnuevocliente.h"
#include "ui_picclientes.h"

#include <QToolBar>

#include <algorithm>

namespace tarvo {

namespace {

std::vector<ModoBusqueda> ModosClientes() {
    return {{QStringLiteral("codigo"), QStringLiteral("Buscar por Código"),
             QStringLiteral("Buscar por código"), cliente::Codigo},
            {QStringLiteral("nombre"), QStringLiteral("Buscar por Nombre"),
             QStringLiteral("Buscar por nombre"), cliente::Nombre},
            {QStringLiteral("telefono"), QStringLiteral("Buscar por Teléfono"),
             QStringLiteral("Buscar por teléfono"), cliente::Telefono},
            {QStringLiteral("ruc"), QStringLiteral("Buscar por I. Fiscal"),
             QStringLiteral("Buscar por i.fiscal"), cliente::IFiscal}};
}

} // namespace

PicClientes::PicClientes(const Servicios &servicios, Buscador &buscador, FiltroCampos &filtro, QWidget *padre)
    : QFrame(padre),
      ui_(std::make_unique<Ui::PicClientes>()),
      frmBases_(servicios.frmBases),
      clientes_(ColumnasClientes()) {
    ui_->setupUi(this);
    hide();
    ui_->LVClientes->Mostrar(&clientes_);
    QAction *actualizar = ui_->tbrClientes->addAction(IconoDe(QStringLiteral("actualizar")), QString());
    actualizar->setObjectName(QStringLiteral("actualizar"));
    actualizar->setToolTip(QStringLiteral("Acualizar"));
    busqueda_ =
        new BarraBusqueda({ui_->tbrClientes, ui_->txtBuscarClientes, ui_->cmdBuscarClientes, ui_->LVClientes},
                          ModosClientes(), QStringLiteral("nombre"), buscador, servicios.preguntas, filtro);
    picNuevoCliente_ = new PicNuevoCliente(servicios, this);
    connect(actualizar, &QAction::triggered, this, &PicClientes::CargarClientes);
    // A search that has reached the end starts at the top again.
    connect(busqueda_, &BarraBusqueda::Terminado, this, [&buscador] { buscador.Reiniciar(); });
    connect(ui_->cmdAceptar, &QPushButton::clicked, this, &PicClientes::Aceptar);
    connect(ui_->LVClientes, &ListaVista::FilaDobleClic, this, &PicClientes::Aceptar);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &PicClientes::Cerrar);
    connect(ui_->cmdAgregarCliente, &QPushButton::clicked, picNuevoCliente_, &PicNuevoCliente::Abrir);
    connect(picNuevoCliente_, &PicNuevoCliente::Abierto, this, [this] { HabilitarPanel(false); });
    connect(picNuevoCliente_, &PicNuevoCliente::Guardado, this, &PicClientes::CargarClientes);
    connect(picNuevoCliente_, &PicNuevoCliente::Cerrado, this, [this] {
        HabilitarPanel(true);
        ui_->txtBuscarClientes->setFocus();
    });
}

PicClientes::~PicClientes() = default;

void PicClientes::CargarClientes() {
    tarvo::CargarClientes(frmBases_, clientes_);
    if (clientes_.Filas() > 0)
        ui_->LVClientes->SeleccionarFila(0);
    AjustarColumnas();
}

void PicClientes::Abrir() {
    show();
    raise();
    busqueda_->Empezar();
}

void PicClientes::Cerrar() {
    hide();
    emit Cerrado();
}

bool PicClientes::Escapar() {
    if (isHidden())
        return false;
    if (picNuevoCliente_->isHidden())
        Cerrar();
    else
        picNuevoCliente_->Cerrar();
    return true;
}

void PicClientes::Aceptar() {
    const int fila = ui_->LVClientes->FilaActual();
    if (fila >= 0)
        emit Elegido(fila);
    Cerrar();
}

void PicClientes::HabilitarPanel(bool si) {
    for (QWidget *control : std::initializer_list<QWidget *>{
             ui_->LVClientes, ui_->tbrClientes, ui_->cmdAceptar, ui_->cmdCancelar, ui_->cmdAgregarCliente})
        control->setEnabled(si);
    const bool buscando = busqueda_->EnUso();
    ui_->txtBuscarClientes->setEnabled(si && buscando);
    ui_->cmdBuscarClientes->setEnabled(si && buscando);
}

void PicClientes::AjustarColumnas() {
    ui_->LVClientes->PonerAncho(cliente::Nombre, ui_->LVClientes->DesbordaFilas() ? 855 : 1100);
}

void PicClientes::Colocar(const QRect &sitio) {
    constexpr int kAnchoMayor = 680;
    constexpr int kAltoMayor = 480;
    constexpr int kMargen = 16;
    QRect lugar(0, 0, std::min(sitio.width() - 2 * kMargen, kAnchoMayor),
                std::min(sitio.height() - 2 * kMargen, kAltoMayor));
    lugar.moveCenter(sitio.center());
    setGeometry(lugar);
}

void PicClientes::resizeEvent(QResizeEvent *evento) {
    QFrame::resizeEvent(evento);
    AjustarColumnas();
    ColocarAlta();
}

void PicClientes::ColocarAlta() {
    const QSize medida = picNuevoCliente_->sizeHint();
    QRect lugar(0, 0, std::max(medida.width(), width() - 60), std::min(medida.height(), height()));
    lugar.moveCenter(rect().center());
    picNuevoCliente_->setGeometry(lugar);
}

} // namespace tarvo
