#include "masterdata/ventanas/ventanacatalogo.h"

#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/teclas.h"
#include "documents/impresoras.h"
#include "masterdata/ventanas/panelbusqueda.h"
#include "ui_ventanacatalogo.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyle>

namespace tarvo {

namespace {

constexpr int kTwipsPorPunto = 15;
constexpr int kBajoControles = 300 / kTwipsPorPunto; // panels stand so far below the top of the fields

} // namespace

void MarcarSinDatos(QWidget *campo, bool sinDatos) {
    if (campo->property("sinDatos").toBool() == sinDatos)
        return;
    campo->setProperty("sinDatos", sinDatos);
    campo->style()->unpolish(campo);
    campo->style()->polish(campo);
}

VentanaCatalogo::VentanaCatalogo(const Servicios &servicios, const Aspecto &aspecto, QWidget *padre)
    : VentanaModulo(padre),
      servicios_(servicios),
      ui_(std::make_unique<Ui::VentanaCatalogo>()),
      picBuscarClientes_(nullptr),
      filtro_(nullptr),
      reporte_(aspecto.reporte) {
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Listado);
    ui_->setupUi(this);
    setObjectName(aspecto.nombre);
    ui_->lblTitulo->setText(aspecto.titulo);
    ui_->lista->setObjectName(aspecto.nombreLista);
    ui_->lista->setAccessibleName(aspecto.titulo);
    ui_->lista->PonerTextoVacio(
        QStringLiteral("Todavía no hay %1. Nuevo agrega el primero.").arg(aspecto.titulo.toLower()));
    picBuscarClientes_ = new PanelBusqueda(aspecto.criterios, this);
    Flotar(picBuscarClientes_);
    filtro_ = new FiltroCampos(this);
}

VentanaCatalogo::~VentanaCatalogo() = default;

void VentanaCatalogo::Montar(std::unique_ptr<ListaDetalle> logica) {
    logica_ = std::move(logica);
    ReunirCampos();
    ListaTexto &lista = logica_->Lista();
    lista.Ordenar(0, Qt::AscendingOrder);
    LV().Mostrar(&lista);
    connect(&lista, &QAbstractItemModel::modelReset, this, [this] { AjustarColumnas(); });
    connect(&lista, &QAbstractItemModel::rowsInserted, this, [this] { AjustarColumnas(); });
    LV().viewport()->installEventFilter(this);
    connect(&LV(), &ListaVista::FilaPulsada, this, [this] { logica_->Mostrar(); });
    filtro_->AlSuprimir(&LV(), [this] {
        if (logica_->Lista().Filas() > 0)
            logica_->Eliminar();
    });
    filtro_->AlEscapar([this] { return Escapar(); });
    OrdenarTabulacion();
    ConectarBotones();
    ConectarBusqueda();
    EnfocarLista();
}

void VentanaCatalogo::Montar(const ReglasDetalle &reglas, Anfitrion &anfitrion) {
    Montar(
        std::make_unique<ListaDetalle>(servicios_.frmBases, servicios_.preguntas, *this, reglas, &anfitrion));
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

QWidget *VentanaCatalogo::Controles() const {
    return ui_->frControles;
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

void VentanaCatalogo::ReunirCampos() {
    for (const CampoDetalle &campo : logica_->Reglas().campos)
        campos_.push_back(Ficha()->findChild<QWidget *>(QString::fromUtf8(campo.control)));
    for (QWidget *control : Ficha()->findChildren<QWidget *>()) {
        const bool esCampo = qobject_cast<QLineEdit *>(control) || qobject_cast<QComboBox *>(control);
        if (esCampo && control->isEnabled())
            habilitables_.push_back(control);
    }
}

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

void VentanaCatalogo::ConectarBoton(QPushButton *boton, void (ListaDetalle::*accion)()) {
    connect(boton, &QPushButton::clicked, this, [this, boton, accion] {
        boton->setFocus(); // whatever field is being typed in is left first
        (logica_.get()->*accion)();
    });
}

void VentanaCatalogo::ConectarBotones() {
    const std::initializer_list<std::pair<QPushButton *, const char *>> iconos = {
        {ui_->cmdNuevo, "nuevo"},       {ui_->cmdEliminar, "eliminar"}, {ui_->cmdActualizar, "actualizar"},
        {ui_->cmdCancelar, "cancelar"}, {ui_->cmdBuscar, "buscar"},     {ui_->cmdImprimir, "imprimir"}};
    for (const auto &[boton, icono] : iconos)
        boton->setIcon(IconoDe(QString::fromUtf8(icono)));
    ConectarBoton(ui_->cmdNuevo, &ListaDetalle::Nuevo);
    ConectarBoton(ui_->cmdGuardar, &ListaDetalle::Guardar);
    ConectarBoton(ui_->cmdEliminar, &ListaDetalle::Eliminar);
    ConectarBoton(ui_->cmdActualizar, &ListaDetalle::Actualizar);
    ConectarBoton(ui_->cmdCancelar, &ListaDetalle::Cancelar);
    PonerTecla(ui_->cmdNuevo, Qt::CTRL | Qt::Key_N);
    PonerTecla(ui_->cmdGuardar, Qt::CTRL | Qt::Key_G);
    PonerTecla(ui_->cmdBuscar, Qt::CTRL | Qt::Key_B);
    connect(ui_->cmdBuscar, &QPushButton::clicked, this, &VentanaCatalogo::AbrirBusqueda);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, [this] {
        ImprimirReporte(servicios_.impresoras, servicios_.preguntas, reporte_(Lista()), Lista().Filas());
    });
}

void VentanaCatalogo::ConectarBusqueda() {
    connect(picBuscarClientes_->cmdBuscarArt, &QPushButton::clicked, this, &VentanaCatalogo::Buscar);
    connect(picBuscarClientes_->cmdCancelarArt, &QPushButton::clicked, this,
            &VentanaCatalogo::CerrarBusqueda);
    filtro_->AlEntrar(picBuscarClientes_->txtArtBuscar, [this] { Buscar(); });
}

// --- panels

void VentanaCatalogo::Flotar(QWidget *panel) {
    flotantes_.push_back(panel);
}

void VentanaCatalogo::ColocarPaneles() {
    const int arriba = Controles()->mapTo(this, QPoint(0, kBajoControles)).y();
    for (QWidget *panel : flotantes_) {
        panel->adjustSize();
        panel->move((width() - panel->width()) / 2, qMin(arriba, height() - panel->height()));
        panel->raise();
    }
}

void VentanaCatalogo::AbrirBusqueda() {
    picBuscarClientes_->txtArtBuscar->clear();
    ColocarPaneles();
    picBuscarClientes_->show();
    picBuscarClientes_->txtArtBuscar->setFocus();
    Controles()->setEnabled(false);
}

void VentanaCatalogo::Buscar() {
    QLineEdit *texto = picBuscarClientes_->txtArtBuscar;
    const bool hallado = logica_->Buscar(texto->text(), picBuscarClientes_->Marcados());
    texto->setFocus();
    if (hallado)
        texto->selectAll();
}

void VentanaCatalogo::CerrarBusqueda() {
    Controles()->setEnabled(true);
    if (LV().isEnabled())
        EnfocarLista();
    else
        EnfocarCampo(0);
    picBuscarClientes_->hide();
}

bool VentanaCatalogo::CancelarConFoco() {
    if (!EntradaEnCurso())
        return false;
    logica_->Cancelar();
    EnfocarLista();
    return true;
}

bool VentanaCatalogo::Escapar() {
    if (!picBuscarClientes_->isVisible())
        return CancelarConFoco();
    CerrarBusqueda();
    return true;
}

int VentanaCatalogo::AnchoListaTwips() const {
    return LV().viewport()->width() * kTwipsPorPunto;
}

// The list gets its new width after the window.
bool VentanaCatalogo::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::Resize && objeto == LV().viewport())
        AjustarColumnas();
    return VentanaModulo::eventFilter(objeto, evento);
}

void VentanaCatalogo::resizeEvent(QResizeEvent *evento) {
    VentanaModulo::resizeEvent(evento);
    ColocarPaneles();
}

void VentanaCatalogo::closeEvent(QCloseEvent *evento) {
    logica_->AlCerrar();
    VentanaModulo::closeEvent(evento);
}

// --- VistaDetalle

QString VentanaCatalogo::Texto(int campo) const {
    QWidget *control = campos_[static_cast<std::size_t>(campo)];
    if (auto *combo = qobject_cast<QComboBox *>(control))
        return combo->currentText();
    return static_cast<QLineEdit *>(control)->text();
}

void VentanaCatalogo::Poner(int campo, const QString &texto) {
    QWidget *control = campos_[static_cast<std::size_t>(campo)];
    auto *combo = qobject_cast<QComboBox *>(control);
    if (combo == nullptr) {
        static_cast<QLineEdit *>(control)->setText(texto);
        return;
    }
    const int entrada = texto.isEmpty() ? -1 : static_cast<int>(entradas_.value(campo).indexOf(texto));
    combo->setPlaceholderText(entrada < 0 ? texto : QString());
    combo->setCurrentIndex(entrada);
}

void VentanaCatalogo::PonerEntradas(int campo, const QStringList &entradas) {
    auto *combo = static_cast<QComboBox *>(campos_[static_cast<std::size_t>(campo)]);
    if (entradas_.value(campo) != entradas) {
        entradas_.insert(campo, entradas);
        combo->clear();
        combo->addItems(entradas);
    }
    combo->setPlaceholderText({});
    combo->setCurrentIndex(-1);
}

void VentanaCatalogo::HabilitarCampos(bool conDatos) {
    for (QWidget *campo : habilitables_)
        campo->setEnabled(conDatos);
    for (QWidget *campo : Ficha()->findChildren<QWidget *>(QRegularExpression(QStringLiteral("^(txt|cbox)"))))
        MarcarSinDatos(campo, !conDatos);
}

void VentanaCatalogo::EnfocarCampo(int campo) {
    campos_[static_cast<std::size_t>(campo)]->setFocus();
}

int VentanaCatalogo::FilaActual() const {
    return LV().FilaActual();
}

void VentanaCatalogo::SeleccionarFila(int fila) {
    LV().SeleccionarFila(fila);
}

void VentanaCatalogo::HabilitarLista(bool habilitada) {
    LV().setEnabled(habilitada);
}

void VentanaCatalogo::EnfocarLista() {
    if (LV().isEnabled())
        LV().setFocus();
}

void VentanaCatalogo::MostrarBotones(const Botones &botones) {
    ui_->cmdNuevo->setEnabled(botones.nuevo);
    ui_->cmdGuardar->setEnabled(botones.guardar);
    ui_->cmdEliminar->setEnabled(botones.eliminar);
    ui_->cmdActualizar->setEnabled(botones.actualizar);
    ui_->cmdCancelar->setEnabled(botones.cancelar);
    ui_->cmdBuscar->setEnabled(botones.buscar);
    ui_->cmdImprimir->setEnabled(botones.imprimir);
}

} // namespace tarvo
