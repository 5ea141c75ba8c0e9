#include "masterdata/ventanas/ventanacatalogo.h"

#include "desktop/twips.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/etiquetaelidida.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/listavista.h"
#include "desktop/ventanas/paneles.h"
#include "desktop/ventanas/tamano.h"
#include "desktop/ventanas/teclas.h"
#include "documents/impresoras.h"
#include "masterdata/ventanas/controlesdetalle.h"
#include "masterdata/ventanas/panelbusqueda.h"
#include "ui_ventanacatalogo.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>

namespace tarvo {

namespace {

constexpr int kBajoControles = APixeles(300); // panels stand so far below the top of the fields

} // namespace

VentanaCatalogo::VentanaCatalogo(const Servicios &servicios, const Aspecto &aspecto, QWidget *padre)
    : VentanaModulo(padre),
      servicios_(servicios),
      ui_(std::make_unique<Ui::VentanaCatalogo>()),
      picBuscarClientes(nullptr),
      filtro_(nullptr),
      reporte_(aspecto.reporte) {
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Listado);
    ui_->setupUi(this);
    setObjectName(aspecto.nombre);
    ui_->lblTitulo->setText(aspecto.titulo);
    ui_->lista->setObjectName(aspecto.nombreLista);
    ui_->lista->setAccessibleName(aspecto.titulo);
    controles_ = new ControlesDetalle(this, ui_->lista, QString(), ui_->frControles);
    ui_->lista->PonerTextoVacio(
        QStringLiteral("Todavía no hay %1. Nuevo agrega el primero.").arg(aspecto.titulo.toLower()));
    picBuscarClientes = new PanelBusqueda(aspecto.criterios, this);
    Flotar(picBuscarClientes);
    filtro_ = new FiltroCampos(this);
}

VentanaCatalogo::~VentanaCatalogo() = default;

void VentanaCatalogo::Montar(std::unique_ptr<ListaDetalle> logica) {
    logica_ = std::move(logica);
    logica_->Lista().Ordenar(0, Qt::AscendingOrder);
    controles_->Montar(*logica_);
    controles_->ConectarTeclas(*filtro_);
    connect(controles_, &ControlesDetalle::FilasCambiadas, this, [this] { AjustarColumnas(); });
    connect(controles_, &ControlesDetalle::FichaTitulada, this, &VentanaCatalogo::TitularFicha);
    LV().viewport()->installEventFilter(this);
    filtro_->AlEscapar([this] { return Escapar(); });
    OrdenarTabulacion();
    ConectarBotones();
    ConectarBusqueda();
    LV().setFocus(); // it gets the keyboard when the window is shown
}

void VentanaCatalogo::Montar(const ReglasDetalle &reglas, Anfitrion &anfitrion) {
    Montar(std::make_unique<ListaDetalle>(servicios_.frmBases, servicios_.preguntas, *controles_, reglas,
                                          &anfitrion));
    logica_->LlenarLista();
}

bool VentanaCatalogo::EntradaEnCurso() const {
    return logica_->EntradaEnCurso();
}

bool VentanaCatalogo::PermiteCerrarPrograma() {
    return logica_->PermiteCerrarPrograma();
}

const ListaTexto &VentanaCatalogo::Lista() const {
    return logica_->Lista();
}

std::optional<Exportable> VentanaCatalogo::ParaExportar() const {
    return Exportable{&Lista(), LV().objectName()};
}

QWidget *VentanaCatalogo::Ficha() const {
    return ui_->frCampos;
}

ListaVista &VentanaCatalogo::LV() const {
    return *ui_->lista;
}

void VentanaCatalogo::TrasCampo(QWidget *ultimo) {
    filtro_->AlEntrar(ultimo, [this] { ui_->cmdGuardar->setFocus(); });
}

void VentanaCatalogo::PonerSobreLista(QWidget *control) {
    ui_->filaFiltro->addWidget(control);
    ui_->filaFiltro->addStretch();
}

// --- setting up

// List, fields as the card has them, buttons.
void VentanaCatalogo::OrdenarTabulacion() {
    std::vector<QWidget *> cadena{&LV()};
    for (QWidget *control = Ficha()->nextInFocusChain(); control != Ficha();
         control = control->nextInFocusChain())
        if (Ficha()->isAncestorOf(control))
            cadena.push_back(control);
    for (QWidget *boton : {ui_->cmdNuevo, ui_->cmdGuardar, ui_->cmdEliminar, ui_->cmdActualizar,
                           ui_->cmdCancelar, ui_->cmdBuscar, ui_->cmdImprimir})
        cadena.push_back(boton);
    for (std::size_t i = 1; i < cadena.size(); ++i)
        setTabOrder(cadena[i - 1], cadena[i]);
}

void VentanaCatalogo::ConectarBotones() {
    const std::initializer_list<std::pair<QPushButton *, const char *>> iconos = {
        {ui_->cmdNuevo, "nuevo"},       {ui_->cmdEliminar, "eliminar"}, {ui_->cmdActualizar, "actualizar"},
        {ui_->cmdCancelar, "cancelar"}, {ui_->cmdBuscar, "buscar"},     {ui_->cmdImprimir, "imprimir"}};
    for (const auto &[boton, icono] : iconos)
        boton->setIcon(IconoDe(QString::fromUtf8(icono)));
    PonerTecla(ui_->cmdBuscar, Qt::CTRL | Qt::Key_B);
    connect(ui_->cmdBuscar, &QPushButton::clicked, this,
            [this] { logica_->AbrirPanel(PanelDetalle::Busqueda); });
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, [this] {
        ImprimirReporte(servicios_.impresoras, servicios_.preguntas, reporte_(Lista()), Lista().Filas());
    });
}

void VentanaCatalogo::ConectarBusqueda() {
    PanelBusqueda *panel = picBuscarClientes;
    connect(panel->cmdBuscarArt, &QPushButton::clicked, this, &VentanaCatalogo::Buscar);
    connect(panel->cmdCancelarArt, &QPushButton::clicked, this, [this] { logica_->CerrarPanel(); });
    filtro_->AlEntrar(panel->txtArtBuscar, [this] { Buscar(); });
    connect(controles_, &ControlesDetalle::PanelAbierto, this, [this, panel](PanelDetalle cual) {
        if (cual != PanelDetalle::Busqueda)
            return;
        panel->txtArtBuscar->clear();
        MostrarPanel(panel, panel->txtArtBuscar);
    });
    connect(controles_, &ControlesDetalle::PanelCerrado, this, [this, panel](PanelDetalle cual) {
        if (cual == PanelDetalle::Busqueda)
            OcultarPanel(panel);
    });
}

// --- panels

void VentanaCatalogo::Flotar(QWidget *panel) {
    flotantes_.push_back(panel);
}

void VentanaCatalogo::ColocarPaneles() {
    const int arriba = ui_->frControles->mapTo(this, QPoint(0, kBajoControles)).y();
    for (QWidget *panel : flotantes_) {
        panel->adjustSize();
        panel->move((width() - panel->width()) / 2, qMin(arriba, height() - panel->height()));
        panel->raise();
    }
}

void VentanaCatalogo::MostrarPanel(QWidget *panel, QWidget *campo) {
    ColocarPaneles();
    panel->show();
    campo->setFocus();
}

void VentanaCatalogo::OcultarPanel(QWidget *panel) {
    CerrarPanel(*panel, {&LV(), controles_->Campo(0)});
}

void VentanaCatalogo::Buscar() {
    QLineEdit *texto = picBuscarClientes->txtArtBuscar;
    const bool hallado = logica_->Buscar(texto->text(), picBuscarClientes->Marcados());
    texto->setFocus();
    if (hallado)
        texto->selectAll();
}

// What save and delete act on, while the selected row is another one. The line takes its height from the
// list.
void VentanaCatalogo::TitularFicha(const QString &nombre) {
    const QString titulo = nombre.isEmpty() ? QString() : QStringLiteral("Ficha de %1").arg(nombre);
    if (titulo == ui_->lblFicha->text())
        return;
    ui_->lblFicha->setText(titulo);
    ui_->lblFicha->setVisible(!titulo.isEmpty());
    Ficha()->setAccessibleName(titulo);
    ui_->cuerpo->activate();
    LV().scrollTo(LV().currentIndex());
}

bool VentanaCatalogo::CancelarConFoco() {
    if (!EntradaEnCurso())
        return false;
    logica_->Cancelar();
    controles_->EnfocarLista();
    return true;
}

bool VentanaCatalogo::Escapar() {
    if (logica_->Panel() == PanelDetalle::Ninguno)
        return CancelarConFoco();
    logica_->CerrarPanel();
    return true;
}

int VentanaCatalogo::AnchoListaTwips() const {
    return ATwips(LV().viewport()->width());
}

// The row of buttons says how narrow the window can be, the list how low: where the window would be scrolled
// the buttons move closer together, and captions and a row and a half are enough. What stands between them
// has its share of the height.
void VentanaCatalogo::Compactar() {
    constexpr int kLetrasHolgadas = 95;
    const int sitio = parentWidget() == nullptr ? width() : parentWidget()->width();
    const bool compacto = sitio < kLetrasHolgadas * fontMetrics().horizontalAdvance(u'0');
    for (int i = 0; i < ui_->botones->count(); ++i)
        if (QWidget *boton = ui_->botones->itemAt(i)->widget())
            Marcar(boton, "compacto", compacto);
    constexpr double kRenglones = 3.75;
    LV().setMinimumHeight(qRound(kRenglones * fontMetrics().height()));
    constexpr int kBajo = 24; // lines
    constexpr int kAlto = 40;
    const int renglones =
        (parentWidget() == nullptr ? height() : parentWidget()->height()) / fontMetrics().height();
    PonerAire({ui_->cuerpo, ui_->controles, Ficha()->layout()}, renglones < kBajo   ? 0.5
                                                                : renglones < kAlto ? 1
                                                                                    : 1.5);
}

// The list gets its new width after the window, which itself stays as wide as its buttons.
bool VentanaCatalogo::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::Resize && objeto == LV().viewport())
        AjustarColumnas();
    else if (evento->type() == QEvent::Resize && objeto == parentWidget())
        Compactar();
    return VentanaModulo::eventFilter(objeto, evento);
}

void VentanaCatalogo::resizeEvent(QResizeEvent *evento) {
    VentanaModulo::resizeEvent(evento);
    ColocarPaneles();
}

void VentanaCatalogo::showEvent(QShowEvent *evento) {
    VentanaModulo::showEvent(evento);
    if (parentWidget() != nullptr)
        parentWidget()->installEventFilter(this);
    Compactar();
}

void VentanaCatalogo::closeEvent(QCloseEvent *evento) {
    logica_->AlCerrar();
    VentanaModulo::closeEvent(evento);
}

} // namespace tarvo
