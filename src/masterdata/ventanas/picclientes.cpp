#include "masterdata/ventanas/picclientes.h"

#include "desktop/ventanas/barrabusqueda.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/paneles.h"
#include "desktop/ventanas/teclas.h"
#include "masterdata/ventanas/picnuevocliente.h"
#include "ui_picclientes.h"

#include <QToolBar>

#include <algorithm>

namespace tarvo {

PicClientes::PicClientes(const Servicios &servicios, const ReglasSelector &reglas, Buscador &buscador,
                         FiltroCampos &filtro, QWidget *padre)
    : QFrame(padre),
      ui_(std::make_unique<Ui::PicClientes>()),
      servicios_(servicios),
      reglas_(reglas),
      clientes_(ColumnasClientes()) {
    ui_->setupUi(this);
    hide();
    ui_->LVClientes->Mostrar(&clientes_);
    ui_->LVClientes->PonerTextoVacio(
        reglas_.alta ? QStringLiteral("Todavía no hay clientes. Nuevo cliente agrega el primero.")
                     : QStringLiteral("Todavía no hay clientes."));
    PrepararBarra(buscador, filtro);
    if (reglas_.alta)
        PrepararAlta();
    ui_->cmdAgregarCliente->setVisible(reglas_.alta);
    QWidget *anterior = ui_->LVClientes;
    for (QWidget *boton : {ui_->cmdAgregarCliente, ui_->cmdAceptar, ui_->cmdCancelar}) {
        setTabOrder(anterior, boton); // as they stand
        anterior = boton;
    }
    filtro.AlEntrar(ui_->LVClientes, [this] { Aceptar(); });
    connect(ui_->cmdAceptar, &QPushButton::clicked, this, &PicClientes::Aceptar);
    connect(ui_->LVClientes, &ListaVista::FilaDobleClic, this, &PicClientes::Aceptar);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &PicClientes::Cerrar);
}

void PicClientes::PrepararBarra(Buscador &buscador, FiltroCampos &filtro) {
    QAction *actualizar = ui_->tbrClientes->addAction(IconoDe(QStringLiteral("actualizar")), QString());
    actualizar->setObjectName(QStringLiteral("actualizar"));
    actualizar->setToolTip(QStringLiteral("Acualizar"));
    ui_->tbrClientes->widgetForAction(actualizar)->setAccessibleName(QStringLiteral("Actualizar"));
    connect(actualizar, &QAction::triggered, this, &PicClientes::CargarClientes);
    busqueda_ =
        new BarraBusqueda({ui_->tbrClientes, ui_->txtBuscarClientes, ui_->cmdBuscarClientes, ui_->LVClientes},
                          reglas_.modos, QStringLiteral("nombre"), buscador, servicios_.preguntas, filtro);
    connect(busqueda_, &BarraBusqueda::Encontrado, this, [this] { ui_->txtBuscarClientes->setFocus(); });
    if (reglas_.volverAlInicio)
        connect(busqueda_, &BarraBusqueda::Terminado, this, [&buscador] { buscador.Reiniciar(); });
}

void PicClientes::PrepararAlta() {
    picNuevoCliente = new PicNuevoCliente(servicios_, this);
    PonerTecla(ui_->cmdAgregarCliente, Qt::CTRL | Qt::Key_N);
    connect(ui_->cmdAgregarCliente, &QPushButton::clicked, picNuevoCliente, &PicNuevoCliente::Abrir);
    connect(picNuevoCliente, &PicNuevoCliente::Abierto, this, [this] {
        ColocarAlta();
        HabilitarPanel(false);
    });
    connect(picNuevoCliente, &PicNuevoCliente::Guardado, this, &PicClientes::CargarClientes);
    connect(picNuevoCliente, &PicNuevoCliente::Cerrado, this, [this] {
        HabilitarPanel(true);
        EnfocarFuera(*picNuevoCliente, {ui_->txtBuscarClientes, ui_->LVClientes});
    });
}

PicClientes::~PicClientes() = default;

void PicClientes::CargarClientes() {
    tarvo::CargarClientes(servicios_.frmBases, clientes_);
    if (clientes_.Filas() > 0)
        ui_->LVClientes->SeleccionarFila(0);
    AjustarColumnas();
}

void PicClientes::Abrir() {
    show();
    raise();
    busqueda_->Empezar();
    if (reglas_.enfocarLista)
        ui_->LVClientes->setFocus();
}

int PicClientes::FilaActual() const {
    return ui_->LVClientes->FilaActual();
}

void PicClientes::Buscar(const QString &texto) {
    if (!EntradaNueva())
        busqueda_->Empezar(texto);
}

void PicClientes::Cerrar() {
    hide();
    emit Cerrado();
}

bool PicClientes::Escapar() {
    if (isHidden())
        return false;
    if (EntradaNueva())
        picNuevoCliente->Cerrar();
    else
        Cerrar();
    return true;
}

bool PicClientes::EntradaNueva() const {
    return picNuevoCliente != nullptr && !picNuevoCliente->isHidden();
}

bool PicClientes::EntradaEnCurso() const {
    return picNuevoCliente != nullptr && picNuevoCliente->EntradaEnCurso();
}

void PicClientes::Aceptar() {
    emit Elegido(FilaActual());
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
    constexpr int kLetras = 92; // wide at most
    constexpr int kRenglones = 28;
    constexpr int kMargen = 16;
    const QFontMetrics letra = fontMetrics();
    QRect lugar(0, 0, std::min(sitio.width() - 2 * kMargen, kLetras * letra.horizontalAdvance(u'0')),
                std::min(sitio.height() - 2 * kMargen, kRenglones * letra.height()));
    lugar.moveCenter(sitio.center());
    setGeometry(lugar);
}

void PicClientes::resizeEvent(QResizeEvent *evento) {
    QFrame::resizeEvent(evento);
    AjustarColumnas();
    ColocarAlta();
}

void PicClientes::ColocarAlta() {
    if (picNuevoCliente == nullptr)
        return;
    const QSize medida = picNuevoCliente->sizeHint();
    constexpr int kAire = 60;
    QRect lugar(0, 0, std::min(std::max(medida.width(), width() - kAire), width()),
                std::min(medida.height(), height()));
    lugar.moveCenter(rect().center());
    picNuevoCliente->setGeometry(lugar);
}

} // namespace tarvo
