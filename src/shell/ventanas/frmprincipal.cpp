#include "shell/ventanas/frmprincipal.h"

#include "desktop/escritorio.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/estadoteclado.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "shell/apertura.h"
#include "shell/medidas.h"
#include "shell/ventanas/acciones.h"
#include "shell/ventanas/ajustebarra.h"
#include "shell/ventanas/areamodulos.h"
#include "shell/ventanas/frmabout.h"
#include "shell/ventanas/letras.h"
#include "shell/ventanas/panelinicio.h"
#include "store/store.h"
#include "ui_frmprincipal.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>
#include <QShortcut>
#include <QShortcutEvent>
#include <QStatusTipEvent>
#include <QTimer>

namespace tarvo {

FrmPrincipal::FrmPrincipal(const Servicios &servicios, const Composicion &composicion,
                           QString carpetaPrograma)
    : ui_(std::make_unique<Ui::FrmPrincipal>()),
      servicios_(servicios),
      ajustes_(servicios.ajustes),
      carpetaPrograma_(std::move(carpetaPrograma)),
      pantalla_(*this, ajustes_),
      acciones_((ui_->setupUi(this), std::make_unique<Acciones>(*ui_->mnuBarra, *ui_->tbrPrincipal))),
      inicio_(new PanelInicio(*acciones_)),
      atajos_(*acciones_, servicios.preguntas,
              servicios.frmBases.CarpetaDatos() + QStringLiteral("/atajos.dat")),
      area_(std::make_unique<AreaModulos>(*ui_->area, *this, composicion)),
      conmutador_(*this, *area_, servicios.preguntas),
      Timer1(new QTimer(this)) {
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(1);
    Timer1->setSingleShot(true);
    connect(Timer1, &QTimer::timeout, this, [this] { conmutador_.Timer1_Timer(); });
    connect(area_.get(), &AreaModulos::CalculadoraCerrada, this,
            [this] { conmutador_.CalculadoraCerrada(); });
    connect(ui_->SB1, &BarraEstado::FabricantePulsado, this, [this] { Abrir(ajustes_.SitioFabricante()); });
    ui_->pila->addWidget(inicio_, 1);
    connect(area_.get(), &AreaModulos::Cambio, this, [this](bool abierta) { MostrarInicio(!abierta); });
    CrearManejadores();
    ConectarAcciones();
    CrearAccionAtajos();
    AplicarAjustes();
    DesactivarSinVentana();
    PonerExportable(false);
    ActualizarEstado();
    MostrarInicio(true);
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, QWidget *ahora) {
        if (ui_->cuerpo->isAncestorOf(ahora))
            foco_ = ahora;
    });
}

// The controls go after everything else of the window, and with them the focus.
FrmPrincipal::~FrmPrincipal() {
    disconnect(qApp, nullptr, this, nullptr);
}

void FrmPrincipal::ConectarAcciones() {
    connect(acciones_.get(), &Acciones::MenuElegido, this, &FrmPrincipal::m_Menus_Click);
    connect(acciones_.get(), &Acciones::BotonPulsado, this, &FrmPrincipal::tbrPrincipal_ButtonClick);
    // A popup is a window of its own: its hints reach no other one by themselves.
    const QMenu *const emergente = acciones_->Emergente();
    connect(emergente, &QMenu::hovered, this, [this](QAction *accion) { accion->showStatusText(this); });
    connect(emergente, &QMenu::aboutToHide, this, [this] { PonerAyudaEntrada(QString()); });
    auto *menu = new QShortcut(Qt::Key_F10, this);
    connect(menu, &QShortcut::activated, this, [this] { EntrarAlMenu(*ui_->mnuBarra); });
}

// The dialog of the keys stands in no menu.
void FrmPrincipal::CrearAccionAtajos() {
    auto *const accion = new QAction(QStringLiteral("Atajos de teclado"), this);
    accion->setObjectName(QStringLiteral("atajos"));
    accion->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    connect(accion, &QAction::triggered, this, [this] { atajos_.Mostrar(this); });
    addAction(accion);
}

void FrmPrincipal::CrearManejadores() {
    Conmutador &regla = conmutador_;
    manejadores_ = {
        {Entrada::Exportar, [this] { area_->Exportar(); }},
        {Entrada::Salir, [this] { close(); }},
        {Entrada::BarHer, [this] { mnuBarHer(); }},
        {Entrada::BarEst, [this] { mnuBarEst(); }},
        {Entrada::Ventas, [&regla] { regla.mnuVentas(); }},
        {Entrada::DevContado, [&regla] { regla.mnuDevContado(); }},
        {Entrada::DevCliente, [&regla] { regla.mnuDevCliente(); }},
        {Entrada::Stats, [&regla] { regla.mnuStats(); }},
        {Entrada::Clientes, [&regla] { regla.mnuClientes(); }},
        {Entrada::Estado, [&regla] { regla.mnuEstadosClientes(); }},
        {Entrada::Articulos, [&regla] { regla.mnuArticulos(); }},
        {Entrada::Proveedores, [&regla] { regla.mnuProveedores(); }},
        {Entrada::Opciones, [&regla] { regla.mnuOpciones(); }},
        {Entrada::Factura, [&regla] { regla.mnuFactura(); }},
        {Entrada::PantComp, [this] { mnuPantComp(); }},
        {Entrada::Respaldar, [&regla] { regla.mnuRespaldar(); }},
        {Entrada::Calculadora, [&regla] { regla.mnuCalc(); }},
        {Entrada::AyudaPdf, [this] { mnuAyudaPdf(); }},
        {Entrada::AcercaDe, [this] { mnuAcercaDe(); }},
        {Entrada::PopAyuda, [this] { mnuAyudaPdf(); }},
        {Entrada::PopAyudaWeb, [this] { AyudaWeb(); }},
    };
}

void FrmPrincipal::AplicarAjustes() {
    ui_->CoolBar1->setVisible(ajustes_.BarHer());
    ui_->SB1->setVisible(ajustes_.BarEst());
    MarcarMenu(Entrada::BarHer, ajustes_.BarHer());
    MarcarMenu(Entrada::BarEst, ajustes_.BarEst());
}

void FrmPrincipal::DesactivarSinVentana() {
    for (const DatosEntrada &datos : Entradas())
        acciones_->Habilitar(datos.entrada, area_->HayVentana(datos.entrada));
}

// With a module open the Tab key stays within it.
void FrmPrincipal::MostrarInicio(bool visible) {
    ui_->SB1->PermitirFoco(visible);
    // Both at once, even for a moment, would ask for more height than a small screen has.
    (visible ? static_cast<QWidget *>(ui_->area) : inicio_)->hide();
    (visible ? inicio_ : static_cast<QWidget *>(ui_->area))->show();
    if (visible)
        inicio_->setFocus();
}

void FrmPrincipal::Presentar(int anchoPantalla) {
    const TamanoInicial inicial = TamanoPorPantalla(anchoPantalla);
    if (inicial.tamano)
        resize(APixeles(inicial.tamano->ancho), APixeles(inicial.tamano->alto));
    inicial.maximizada ? showMaximized() : showNormal();
}

// A click on a checkable entry has toggled its check; here only the handlers set checks.
void FrmPrincipal::m_Menus_Click(Entrada entrada) {
    QAction *const accion = acciones_->DeMenu(entrada);
    if (accion->isCheckable())
        accion->setChecked(!accion->isChecked());
    manejadores_.at(entrada)();
}

void FrmPrincipal::tbrPrincipal_ButtonClick(Entrada entrada) {
    if (entrada == Entrada::AyudaPdf)
        MostrarMenuAyuda();
    else
        manejadores_.at(entrada)();
}

void FrmPrincipal::PonerExportable(bool posible) {
    acciones_->Habilitar(Entrada::Exportar, posible && area_->HayVentana(Entrada::Exportar));
}

bool FrmPrincipal::MenuMarcado(Entrada entrada) const {
    return acciones_->DeMenu(entrada)->isChecked();
}

void FrmPrincipal::MarcarMenu(Entrada entrada, bool valor) {
    acciones_->DeMenu(entrada)->setChecked(valor);
}

bool FrmPrincipal::BotonPresionado(Entrada entrada) const {
    return acciones_->DeBarra(entrada)->isChecked();
}

void FrmPrincipal::PresionarBoton(Entrada entrada, bool valor) {
    acciones_->DeBarra(entrada)->setChecked(valor);
}

void FrmPrincipal::IniciarTimer1() {
    Timer1->start();
}

void FrmPrincipal::mnuBarHer() {
    const bool visible = !MenuMarcado(Entrada::BarHer);
    ui_->CoolBar1->setVisible(visible);
    MarcarMenu(Entrada::BarHer, visible);
    ajustes_.PonerBarHer(visible);
}

void FrmPrincipal::mnuBarEst() {
    const bool visible = !MenuMarcado(Entrada::BarEst);
    ui_->SB1->setVisible(visible);
    MarcarMenu(Entrada::BarEst, visible);
    ajustes_.PonerBarEst(visible);
}

void FrmPrincipal::mnuPantComp() {
    const bool completa = !MenuMarcado(Entrada::PantComp);
    MarcarMenu(Entrada::PantComp, completa);
    completa ? pantalla_.Entrar() : pantalla_.Salir();
}

void FrmPrincipal::mnuAyudaPdf() {
    const QString ruta = RutaAyuda(carpetaPrograma_);
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
    const QWidget *const boton = ui_->tbrPrincipal->widgetForAction(acciones_->DeBarra(Entrada::AyudaPdf));
    acciones_->Emergente()->popup(boton->mapToGlobal(boton->rect().bottomLeft()));
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

// The lock keys and midnight show at the next key or when the program becomes active. A letter that both menu
// and module underline is the module's.
bool FrmPrincipal::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::Shortcut) {
        const auto *const atajo = static_cast<QShortcutEvent *>(evento);
        return atajo->isAmbiguous() && PulsarLetra(*ui_->area, atajo->key());
    }
    // The Alt of Alt+F4 or Alt+Tab, whose other key the desktop keeps, has led to the menu bar: back.
    if (objeto == ui_->mnuBarra && evento->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent *>(evento)->reason() == Qt::ActiveWindowFocusReason)
        QTimer::singleShot(0, this, [this] {
            if (foco_ != nullptr && foco_->isVisible() && foco_->isEnabled())
                foco_->setFocus();
        });
    if (evento->type() == QEvent::KeyPress &&
        PasarDeMenu(*ui_->mnuBarra, objeto, *static_cast<QKeyEvent *>(evento)))
        return true;
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
    acciones_->DeBarra(Entrada::Salir)->setVisible(CabeSalir(ancho));
    QAction *const ayuda = acciones_->DeBarra(Entrada::AyudaPdf);
    ayuda->setVisible(CabeAyuda(ancho));
    const QList<QAction *> botones = ui_->tbrPrincipal->actions();
    botones.at(botones.indexOf(ayuda) - 1)->setVisible(CabeAyuda(ancho)); // no separator before nothing
    AjustarBarra(*ui_->tbrPrincipal, width());
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
