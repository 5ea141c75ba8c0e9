#include "shell/ventanas/frmprincipal.h"

#include "desktop/escritorio.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/estadoteclado.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "shell/medidas.h"
#include "shell/ventanas/areamodulos.h"
#include "shell/ventanas/frmabout.h"
#include "shell/ventanas/tablamenu.h"
#include "store/store.h"
#include "ui_frmprincipal.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>
#include <QStatusTipEvent>
#include <QTimer>

namespace tarvo {

namespace {

constexpr int kHabilitar = 1; // types of ActDesMenu
constexpr int kMarcar = 2;
const QString kExportar = QStringLiteral("exportar");
const QString kBarHer = QStringLiteral("BarHer");
const QString kBarEst = QStringLiteral("BarEst");
const QString kPantComp = QStringLiteral("pantcomp");

} // namespace

FrmPrincipal::FrmPrincipal(const Servicios &servicios, const Composicion &composicion,
                           QString carpetaPrograma)
    : ui_(std::make_unique<Ui::FrmPrincipal>()),
      servicios_(servicios),
      ajustes_(servicios.ajustes),
      carpetaPrograma_(std::move(carpetaPrograma)),
      pantalla_(*this, ajustes_),
      area_((ui_->setupUi(this), std::make_unique<AreaModulos>(*ui_->area, *this, composicion))),
      conmutador_(*this, *area_, servicios.preguntas),
      Timer1(new QTimer(this)),
      menuAyuda_(new QMenu(this)) {
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(1);
    Timer1->setSingleShot(true);
    connect(Timer1, &QTimer::timeout, this, [this] { conmutador_.Timer1_Timer(); });
    connect(area_.get(), &AreaModulos::CalculadoraCerrada, this,
            [this] { conmutador_.CalculadoraCerrada(); });
    connect(ui_->SB1, &BarraEstado::FabricantePulsado, this, [this] { Abrir(ajustes_.SitioFabricante()); });
    CrearManejadores();
    CrearMenu();
    CrearBarra();
    AplicarAjustes();
    DesactivarSinVentana();
    ActDesMenu(kHabilitar, kExportar, false);
    ActualizarEstado();
    qApp->installEventFilter(this);
}

FrmPrincipal::~FrmPrincipal() = default;

void FrmPrincipal::CrearMenu() {
    for (const MenuSuperior &superior : MenuPrincipal())
        LlenarMenu(ui_->mnuBarra->addMenu(superior.titulo), superior.entradas);
    DeMenu(QStringLiteral("salir"))->setText(QStringLiteral("&Salir\tAlt+F4"));
    LlenarMenu(menuAyuda_, MenuAyuda());
    // A popup is a window of its own: its hints reach no other one by themselves.
    connect(menuAyuda_, &QMenu::hovered, this, [this](QAction *accion) { accion->showStatusText(this); });
    connect(menuAyuda_, &QMenu::aboutToHide, this, [this] { PonerAyudaEntrada(QString()); });
    QList<QAction *> acciones = ui_->mnuBarra->findChildren<QAction *>();
    acciones += menuAyuda_->actions();
    for (QAction *accion : acciones) {
        if (manejadores_.contains(accion->objectName()))
            connect(accion, &QAction::triggered, this, [this, accion] { m_Menus_Click(accion); });
    }
}

void FrmPrincipal::CrearBarra() {
    LlenarBarra(ui_->tbrPrincipal, BotonesPrincipal());
    for (QAction *accion : ui_->tbrPrincipal->actions()) {
        connect(accion, &QAction::triggered, this,
                [this, accion] { tbrPrincipal_ButtonClick(accion->objectName()); });
    }
}

void FrmPrincipal::CrearManejadores() {
    Conmutador &regla = conmutador_;
    manejadores_ = {
        {kExportar, [this] { area_->Exportar(); }},
        {QStringLiteral("salir"), [this] { close(); }},
        {kBarHer, [this] { mnuBarHer(); }},
        {kBarEst, [this] { mnuBarEst(); }},
        {QStringLiteral("ventas"), [&regla] { regla.mnuVentas(); }},
        {QStringLiteral("devcontado"), [&regla] { regla.mnuDevContado(); }},
        {QStringLiteral("devcliente"), [&regla] { regla.mnuDevCliente(); }},
        {QStringLiteral("stats"), [&regla] { regla.mnuStats(); }},
        {QStringLiteral("clientes"), [&regla] { regla.mnuClientes(); }},
        {QStringLiteral("estado"), [&regla] { regla.mnuEstadosClientes(); }},
        {QStringLiteral("articulos"), [&regla] { regla.mnuArticulos(); }},
        {QStringLiteral("proveedores"), [&regla] { regla.mnuProveedores(); }},
        {QStringLiteral("opciones"), [&regla] { regla.mnuOpciones(); }},
        {QStringLiteral("factura"), [&regla] { regla.mnuFactura(); }},
        {kPantComp, [this] { mnuPantComp(); }},
        {QStringLiteral("respaldar"), [&regla] { regla.mnuRespaldar(); }},
        {QStringLiteral("calculadora"), [&regla] { regla.mnuCalc(); }},
        {QStringLiteral("ayudapdf"), [this] { mnuAyudaPdf(); }},
        {QStringLiteral("acercade"), [this] { mnuAcercaDe(); }},
        {QStringLiteral("popayuda"), [this] { mnuAyudaPdf(); }},
        {QStringLiteral("popayudaweb"), [this] { AyudaWeb(); }},
    };
}

void FrmPrincipal::AplicarAjustes() {
    ui_->CoolBar1->setVisible(ajustes_.BarHer());
    ui_->SB1->setVisible(ajustes_.BarEst());
    ActDesMenu(kMarcar, kBarHer, ajustes_.BarHer());
    ActDesMenu(kMarcar, kBarEst, ajustes_.BarEst());
}

void FrmPrincipal::DesactivarSinVentana() {
    for (QAction *accion : ui_->mnuBarra->findChildren<QAction *>())
        accion->setEnabled(area_->HayVentana(accion->objectName()));
    for (QAction *accion : ui_->tbrPrincipal->actions())
        accion->setEnabled(area_->HayVentana(accion->objectName()));
}

void FrmPrincipal::Presentar(int anchoPantalla) {
    const TamanoInicial inicial = TamanoPorPantalla(anchoPantalla);
    if (inicial.tamano)
        resize(APixeles(inicial.tamano->ancho), APixeles(inicial.tamano->alto));
    inicial.maximizada ? showMaximized() : showNormal();
}

QAction *FrmPrincipal::DeMenu(const QString &clave) const {
    return AccionDe(ui_->mnuBarra, clave);
}

QAction *FrmPrincipal::DeBarra(const QString &clave) const {
    return AccionDe(ui_->tbrPrincipal, clave);
}

// A click on a checkable entry has toggled its check; here only the handlers set checks.
void FrmPrincipal::m_Menus_Click(QAction *accion) {
    if (accion->isCheckable())
        accion->setChecked(!accion->isChecked());
    manejadores_.value(accion->objectName())();
}

// Most buttons carry the key of their menu entry.
void FrmPrincipal::tbrPrincipal_ButtonClick(const QString &clave) {
    if (clave == QStringLiteral("ayuda")) {
        MostrarMenuAyuda();
        return;
    }
    static const QHash<QString, QString> otras{{QStringLiteral("estadisticas"), QStringLiteral("stats")},
                                               {QStringLiteral("config"), QStringLiteral("opciones")}};
    manejadores_.value(otras.value(clave, clave))();
}

void FrmPrincipal::ActDesMenu(int tipo, const QString &clave, bool valor) {
    QAction *const accion = DeMenu(clave);
    if (accion == nullptr)
        return;
    if (tipo == kHabilitar)
        accion->setEnabled(valor && area_->HayVentana(clave));
    else if (tipo == kMarcar)
        accion->setChecked(valor);
}

bool FrmPrincipal::MenuMarcado(const QString &clave) const {
    return DeMenu(clave)->isChecked();
}

bool FrmPrincipal::BotonPresionado(const QString &boton) const {
    return DeBarra(boton)->isChecked();
}

void FrmPrincipal::PresionarBoton(const QString &boton, bool valor) {
    DeBarra(boton)->setChecked(valor);
}

void FrmPrincipal::IniciarTimer1() {
    Timer1->start();
}

void FrmPrincipal::mnuBarHer() {
    const bool visible = !MenuMarcado(kBarHer);
    ui_->CoolBar1->setVisible(visible);
    ActDesMenu(kMarcar, kBarHer, visible);
    ajustes_.PonerBarHer(visible);
}

void FrmPrincipal::mnuBarEst() {
    const bool visible = !MenuMarcado(kBarEst);
    ui_->SB1->setVisible(visible);
    ActDesMenu(kMarcar, kBarEst, visible);
    ajustes_.PonerBarEst(visible);
}

void FrmPrincipal::mnuPantComp() {
    const bool completa = !MenuMarcado(kPantComp);
    ActDesMenu(kMarcar, kPantComp, completa);
    completa ? pantalla_.Entrar() : pantalla_.Salir();
}

void FrmPrincipal::mnuAyudaPdf() {
    const QString ruta = carpetaPrograma_ + QStringLiteral("/tarvo27me.pdf");
    if (!QFileInfo::exists(ruta))
        servicios_.preguntas.Informar(QStringLiteral("No se encontró el archivo de ayuda \"%1\".").arg(ruta));
    else if (!servicios_.escritorio.AbrirArchivo(ruta))
        servicios_.preguntas.Informar(
            QStringLiteral("No se pudo abrir el archivo de ayuda \"%1\".").arg(ruta));
}

void FrmPrincipal::AyudaWeb() {
    Abrir(ajustes_.SitioAyuda());
}

void FrmPrincipal::MostrarMenuAyuda() {
    const QWidget *const boton = ui_->tbrPrincipal->widgetForAction(DeBarra(QStringLiteral("ayuda")));
    menuAyuda_->popup(boton->mapToGlobal(boton->rect().bottomLeft()));
}

void FrmPrincipal::mnuAcercaDe() {
    FrmAbout about(servicios_, this);
    about.exec();
}

void FrmPrincipal::Abrir(const QUrl &direccion) {
    if (!servicios_.escritorio.AbrirDireccion(direccion))
        servicios_.preguntas.Informar(QStringLiteral("No se pudo abrir \"%1\".").arg(direccion.toString()));
}

void FrmPrincipal::PonerAviso(const QString &aviso) {
    aviso_ = aviso;
    MostrarTextoEstado();
}

void FrmPrincipal::Sugerencia(const QString &texto) {
    sugerencia_ = texto;
    MostrarTextoEstado();
}

void FrmPrincipal::PonerAyudaEntrada(const QString &ayuda) {
    ayudaEntrada_ = ayuda;
    MostrarTextoEstado();
}

void FrmPrincipal::MostrarTextoEstado() {
    for (const QString &texto : {ayudaEntrada_, sugerencia_, aviso_}) {
        if (!texto.isEmpty()) {
            ui_->SB1->PonerTexto(texto);
            return;
        }
    }
    ui_->SB1->PonerTexto(QString());
}

void FrmPrincipal::ActualizarEstado() {
    ui_->SB1->PonerTeclado(LeerEstadoTeclado());
    ui_->SB1->PonerFecha(TextoFecha(servicios_.reloj.Ahora()));
}

bool FrmPrincipal::event(QEvent *evento) {
    if (evento->type() == QEvent::StatusTip) {
        PonerAyudaEntrada(static_cast<QStatusTipEvent *>(evento)->tip());
        return true;
    }
    return QMainWindow::event(evento);
}

// The lock keys and midnight show at the next key or when the program becomes active.
bool FrmPrincipal::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::KeyRelease || evento->type() == QEvent::ApplicationStateChange)
        ActualizarEstado();
    return QMainWindow::eventFilter(objeto, evento);
}

void FrmPrincipal::resizeEvent(QResizeEvent *evento) {
    QMainWindow::resizeEvent(evento);
    AjustarAncho();
}

void FrmPrincipal::AjustarAncho() {
    const int ancho = ATwips(width());
    DeBarra(QStringLiteral("salir"))->setVisible(CabeSalir(ancho));
    QAction *const ayuda = DeBarra(QStringLiteral("ayuda"));
    ayuda->setVisible(CabeAyuda(ancho));
    const QList<QAction *> botones = ui_->tbrPrincipal->actions();
    botones.at(botones.indexOf(ayuda) - 1)->setVisible(CabeAyuda(ancho)); // no separator before nothing
    const bool llena = (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
    ui_->SB1->PonerAncho(APixeles(AnchoSeparador(ancho, llena)));
}

void FrmPrincipal::closeEvent(QCloseEvent *evento) {
    if (area_->Abierta() != nullptr && !area_->Abierta()->PermiteCerrarPrograma()) {
        evento->ignore();
        return;
    }
    conmutador_.CerrarModulos();
    CerrarDatos();
    area_->CerrarCalculadora();
    evento->accept();
}

void FrmPrincipal::CerrarDatos() {
    try {
        servicios_.frmBases.Cerrar();
    } catch (const std::exception &error) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("Los datos no se cerraron bien: %1").arg(QString::fromUtf8(error.what())),
            Icono::Critico);
    }
}

} // namespace tarvo
